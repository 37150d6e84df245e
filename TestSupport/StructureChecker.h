// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_STRUCTURECHECKER_H
#define TESTSUPPORT_STRUCTURECHECKER_H

/** @file
 *  Checks all the linked structures of the library and reports what is wrong.
 */

#include "Core/GUIDialogManager.h"

#include <string>

/** Checks the state of the whole framework between two operations. The root must exist.
 *
 *  - Lists (the manager's and that of the safe pointers): both chains have the same nodes, as many as the
 *    list counts, and no safe iterator is registered any more.
 *  - The tree: parents, children and siblings agree, and everything under the root knows it.
 *  - The index: it holds every object under the root that has an identifier, once, and nothing else, and a
 *    lookup finds the first one in pre-order.
 *  - The focus: on an object under the root that is focusable and not invisible, or on none.
 *  - Safe pointers: each one is registered once and points to nothing, or to an object that its parent has as
 *    a child. This reads through the pointer, so that a sanitizer reports one to freed memory.
 *  - The timer: each animatable is there once, alive, with an interval, and where a search finds it; each
 *    registration knows the one above it and which of those below it is due first.
 *  - Popups: in ascending order of priority, and each one belongs to the manager.
 *
 *  Nothing is logged, and the only change is that the index may remember which object comes first.
 *  @return one line for each fault, empty if there is none
 */
std::string CheckStructures(CGUIDialogManager& kManager);

#endif
