// SPDX-License-Identifier: MIT
#ifndef SCENARIO_STATEPRINTER_H
#define SCENARIO_STATEPRINTER_H

/** @file
 *  The whole state of a dialog manager and of the framework around it, as text.
 */

#include "Scenario/StateReader.h"

#include <string>

/** Prints the state, one line for each item. Empty items have no line, except the current dialog:
 *
 *      current: DLG_B after ODA_INVISIBLE
 *      history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING, no deletion, no recovery)
 *      dialog: DLG_A "code:A"
 *      popup: POP_1 prio 5, 3000 ms, delete on close, "code:P1"
 *      active: POP_1 prio 5, 3000 ms, delete on close, shown, 2500 ms left
 *      remembered: OBJ_2
 *      dynamic: 29 29
 *      focus: OBJ_2
 *      tree:
 *        DLG_A invisible
 *          OBJ_1 focusable
 *        DLG_B
 *          OBJ_2 focussed
 *        POP_1
 *      timer: POP_1 every 3000 ms, 2500 ms left
 *
 *  - Identifiers are shown by name, or as numbers if they have none; an object without identifier is "-".
 *  - "after" names the action that the dialog executed on its predecessor. "no deletion" means that the
 *    manager may not delete the dialog, "no recovery" that the focus is not restored.
 *  - history: the most recent entry first; the action is what the successor did to the dialog.
 *  - dialog, popup: the definitions in order of registration.
 *  - active: the popups in the order of the manager's list; "shown" or "hidden"; "gone" instead of the
 *    identifier if the object was destroyed; "detached" if it is not below the root; the time until the timer
 *    calls it, if it is registered.
 *  - remembered: the object that gets the focus back when the last popup closes.
 *  - dynamic: the identifiers given out.
 *  - tree: the objects below the root, in drawing order. "invisible" is the object's own flag; the object
 *    with the focus is marked "focussed", others that can have it "focusable".
 *  - timer: the timer's callbacks, the one due first at the top; "-" for one of no active popup.
 *
 *  @param kManager the manager; it is not changed and nothing is logged
 *  @param uiParts which parts to print
 *  @return the lines, each with a line break
 */
std::string PrintState(const CGUIDialogManager& kManager, eC_UInt uiParts = STATE_ALL);

/** @return a popup definition as PrintState prints it after "popup: ", without a line break */
std::string PrintPopupDefinition(const CGUIDialogManager::RegisteredPopup_t& kDefinition);

#endif
