// SPDX-License-Identifier: MIT
#ifndef SCENARIO_NAMES_H
#define SCENARIO_NAMES_H

/** @file
 *  Names of handles, actions and priorities, as recorders print them and scripts write them.
 */

#include "Core/GUIDialogManager.h"

#include <string>

/** @return the name of the handle's constant, "NO_HANDLE" for 0, or the number if it has no constant */
std::string NameOfHandle(ObjectHandle_t eHandle);

/** @return the name of the object's identifier, or "null" */
std::string NameOfObject(const CGUIObject* pkObject);

/** @return the name of the action's enumerator, null if none has this value */
const eC_Char* GetActionName(CGUIDialogManager::EOldDialogAction eAction);

/** @return the name of the action, or its number if it has no enumerator */
std::string NameOfAction(CGUIDialogManager::EOldDialogAction eAction);

/** Reads an action as NameOfAction writes it, or any number from 0 to 255.
 *  @param pcText zero-terminated
 *  @param eActionOUT receives the action; unchanged if the text is not an action
 *  @return true if the text is an action
 */
eC_Bool ParseAction(const eC_Char* pcText, CGUIDialogManager::EOldDialogAction& eActionOUT);

/** Reads a priority: the name of its enumerator, or any number from 0 to 255.
 *  @param pcText zero-terminated
 *  @param ePriorityOUT receives the priority; unchanged if the text is not a priority
 *  @return true if the text is a priority
 */
eC_Bool ParsePriority(const eC_Char* pcText, CGUIDialogManager::PopupPriority_t& ePriorityOUT);

/** Reads an unsigned decimal number with nothing before or after it, of at most ten digits.
 *  @param pcText zero-terminated
 *  @param uiMaximum the greatest number that is accepted
 *  @param uiNumberOUT receives the number; unchanged if the text is not such a number
 *  @return true if the text is such a number
 */
eC_Bool ParseNumber(const eC_Char* pcText, eC_UInt uiMaximum, eC_UInt& uiNumberOUT);

#endif
