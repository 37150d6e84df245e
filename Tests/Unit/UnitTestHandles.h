// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_UNITTESTHANDLES_H
#define TESTS_UNIT_UNITTESTHANDLES_H

/** @file
 *  The handles that the unit tests share: DLG_A is 1, POP_1 is 9, OBJ_1 is 17, OBJ_12 is 28, the last
 *  one. Dynamic identifiers start at 29.
 */

#include "GUIConfig/GUIObjectHandleResource.h"

#define UNIT_TEST_HANDLES(HANDLE)                                                                            \
    HANDLE(DLG_A)                                                                                            \
    HANDLE(DLG_B)                                                                                            \
    HANDLE(DLG_C)                                                                                            \
    HANDLE(DLG_D)                                                                                            \
    HANDLE(DLG_E)                                                                                            \
    HANDLE(DLG_F)                                                                                            \
    HANDLE(DLG_G)                                                                                            \
    HANDLE(DLG_H)                                                                                            \
    HANDLE(POP_1)                                                                                            \
    HANDLE(POP_2)                                                                                            \
    HANDLE(POP_3)                                                                                            \
    HANDLE(POP_4)                                                                                            \
    HANDLE(POP_5)                                                                                            \
    HANDLE(POP_6)                                                                                            \
    HANDLE(POP_7)                                                                                            \
    HANDLE(POP_8)                                                                                            \
    HANDLE(OBJ_1)                                                                                            \
    HANDLE(OBJ_2)                                                                                            \
    HANDLE(OBJ_3)                                                                                            \
    HANDLE(OBJ_4)                                                                                            \
    HANDLE(OBJ_5)                                                                                            \
    HANDLE(OBJ_6)                                                                                            \
    HANDLE(OBJ_7)                                                                                            \
    HANDLE(OBJ_8)                                                                                            \
    HANDLE(OBJ_9)                                                                                            \
    HANDLE(OBJ_10)                                                                                           \
    HANDLE(OBJ_11)                                                                                           \
    HANDLE(OBJ_12)

GUI_DECLARE_OBJECT_HANDLES(UNIT_TEST_HANDLES)

#endif
