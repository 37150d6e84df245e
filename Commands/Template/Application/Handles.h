#ifndef APPLICATION_HANDLES_H
#define APPLICATION_HANDLES_H

#include "GUIConfig/GUIObjectHandleResource.h"

/** Every dialog, popup and object that the program or a dialog file names. */
#define APPLICATION_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_SETTINGS)                                                                                     \
    HANDLE(POP_SAVED)                                                                                        \
    HANDLE(TXT_BRIGHTNESS)                                                                                   \
    HANDLE(BTN_SETTINGS)                                                                                     \
    HANDLE(BTN_BRIGHTER)                                                                                     \
    HANDLE(BTN_DONE)

GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)

#endif
