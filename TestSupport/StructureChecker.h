// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_STRUCTURECHECKER_H
#define TESTSUPPORT_STRUCTURECHECKER_H

/** @file
 *  Walks everything that the library links together and says what is not as it must be.
 */

#include "Core/GUIDialogManager.h"

#include <string>

/** Checks the whole framework as it must be found between two operations. The root must exist.
 *
 *  - Lists (the manager's and that of the safe pointers): both chains have the same nodes and as
 *    many as the list counts; no safe iterator is registered any more.
 *  - The tree: parents, children and siblings agree, and whatever lies under the root knows it.
 *  - The index: it holds every object under the root that has an identifier, once, and nothing else,
 *    and a lookup finds the first in pre-order.
 *  - The focus: on an object under the root that is focusable and not invisible, or on none.
 *  - Safe pointers: each one is registered once and points to nothing or to an object that lies where its
 *    parent has it. A pointer to freed memory is read on the way, so that a sanitizer sees it.
 *  - The timer: every animatable once, alive, with an interval, and where it is found; each registration
 *  knows the one above it and which of those below it is due first.
 *  - Popups: in ascending order of priority, and each one belongs to the manager.
 *
 *  Nothing is logged, and the only change is that the index may remember which object comes first.
 *  @return one line for each fault, empty when there is none
 */
std::string CheckStructures(CGUIDialogManager& kManager);

#endif
