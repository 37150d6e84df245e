// SPDX-License-Identifier: MIT
#ifndef TESTS_SCENARIO_SCENARIOHANDLES_H
#define TESTS_SCENARIO_SCENARIOHANDLES_H

/** @file
 *  The handles of the scenarios: DLG_HOME is 1, POP_NOTE is 7, OBJ_START is 11, OBJ_CONFIRM is 19, the last
 *  one. Dynamic identifiers are 20.
 */

#include "GUIConfig/GUIObjectHandleResource.h"

#define SCENARIO_HANDLES(HANDLE)                                                                             \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_LIST)                                                                                         \
    HANDLE(DLG_DETAIL)                                                                                       \
    HANDLE(DLG_SETTINGS)                                                                                     \
    HANDLE(DLG_LANGUAGE)                                                                                     \
    HANDLE(DLG_ABOUT)                                                                                        \
    HANDLE(POP_NOTE)                                                                                         \
    HANDLE(POP_HINT)                                                                                         \
    HANDLE(POP_WARNING)                                                                                      \
    HANDLE(POP_ALARM)                                                                                        \
    HANDLE(OBJ_START)                                                                                        \
    HANDLE(OBJ_STOP)                                                                                         \
    HANDLE(OBJ_ITEM)                                                                                         \
    HANDLE(OBJ_PANEL)                                                                                        \
    HANDLE(OBJ_EDIT)                                                                                         \
    HANDLE(OBJ_SAVE)                                                                                         \
    HANDLE(OBJ_NAME)                                                                                         \
    HANDLE(OBJ_STATUS_BAR)                                                                                   \
    HANDLE(OBJ_CONFIRM)

GUI_DECLARE_OBJECT_HANDLES(SCENARIO_HANDLES)

#endif
