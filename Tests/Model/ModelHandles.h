// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_MODELHANDLES_H
#define TESTS_MODEL_MODELHANDLES_H

/** @file
 *  The handles for the comparison with the model. Dynamic identifiers start after the last one.
 */

#include "GUIConfig/GUIObjectHandleResource.h"

#define MODEL_TEST_HANDLES(HANDLE)                                                                           \
    HANDLE(DLG_A)                                                                                            \
    HANDLE(DLG_B)                                                                                            \
    HANDLE(DLG_C)                                                                                            \
    HANDLE(DLG_D)                                                                                            \
    HANDLE(POP_1)                                                                                            \
    HANDLE(POP_2)                                                                                            \
    HANDLE(POP_3)                                                                                            \
    HANDLE(POP_4)                                                                                            \
    HANDLE(OBJ_1)                                                                                            \
    HANDLE(OBJ_2)                                                                                            \
    HANDLE(OBJ_3)

GUI_DECLARE_OBJECT_HANDLES(MODEL_TEST_HANDLES)

#endif
