// SPDX-License-Identifier: MIT
#ifndef HANDLES_H
#define HANDLES_H

#include "GUIConfig/GUIObjectHandleResource.h"

#define APPLICATION_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(BTN_START)
GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)

#endif
