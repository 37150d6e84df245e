// SPDX-License-Identifier: MIT
#ifndef TESTS_HANDLETABLE_HANDLES_H
#define TESTS_HANDLETABLE_HANDLES_H

/** @file
 *  The table of handles for the programs that have one.
 */

#include "GUIConfig/GUIObjectHandleResource.h"

#define PROGRAM_HANDLES(HANDLE)                                                                              \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_SETTINGS)                                                                                     \
    HANDLE(POP_SAVED)

GUI_DECLARE_OBJECT_HANDLES(PROGRAM_HANDLES)

#endif
