// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_HANDLES_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_HANDLES_H

/** @file
 *  The application's table of object handles: every dialog, popup and button that the program or a dialog
 *  file names. The about dialog has none; it gets a dynamic identifier when it is added.
 */

#include "GUIConfig/GUIObjectHandleResource.h"

// clang-format off
#define COFFEE_MACHINE_HANDLES(HANDLE)                                                                       \
    /* Dialogs */                                                                                            \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_DRINKS)                                                                                       \
    HANDLE(DLG_DRINK_DETAIL)                                                                                 \
    HANDLE(DLG_BREWING)                                                                                      \
    HANDLE(DLG_SETTINGS)                                                                                     \
    HANDLE(DLG_LANGUAGE)                                                                                     \
    HANDLE(DLG_CLEANING_TABLET)                                                                              \
    HANDLE(DLG_CLEANING_RINSE)                                                                               \
    HANDLE(DLG_CLEANING_EMPTY)                                                                               \
    HANDLE(DLG_SERVICE)                                                                                      \
    HANDLE(DLG_CODE)                                                                                         \
    /* Popups */                                                                                             \
    HANDLE(POP_WATER_EMPTY)                                                                                  \
    HANDLE(POP_TRAY_MISSING)                                                                                 \
    HANDLE(POP_BEANS_LOW)                                                                                    \
    HANDLE(POP_SAVED)                                                                                        \
    HANDLE(POP_DESCALE)                                                                                      \
    /* Buttons that several dialogs share */                                                                 \
    HANDLE(BTN_BACK)                                                                                         \
    HANDLE(BTN_HOME)                                                                                         \
    /* Buttons of the home screen */                                                                         \
    HANDLE(BTN_DRINKS)                                                                                       \
    HANDLE(BTN_SETTINGS)                                                                                     \
    HANDLE(BTN_CLEANING)                                                                                     \
    HANDLE(BTN_ABOUT)                                                                                        \
    /* Buttons on the way to a cup */                                                                        \
    HANDLE(BTN_ESPRESSO)                                                                                     \
    HANDLE(BTN_COFFEE)                                                                                       \
    HANDLE(BTN_CAPPUCCINO)                                                                                   \
    HANDLE(BTN_TEA_WATER)                                                                                    \
    HANDLE(BTN_STRENGTH)                                                                                     \
    HANDLE(BTN_BREW)                                                                                         \
    HANDLE(BTN_STOP)                                                                                         \
    /* Buttons of settings, language, cleaning and service */                                                \
    HANDLE(BTN_LANGUAGE)                                                                                     \
    HANDLE(BTN_MESSAGE_TIME)                                                                                 \
    HANDLE(BTN_ENGLISH)                                                                                      \
    HANDLE(BTN_GERMAN)                                                                                       \
    HANDLE(BTN_CLEANING_NEXT)                                                                                \
    HANDLE(BTN_CLEANING_RESTART)                                                                             \
    HANDLE(BTN_HOME_LAYOUT)                                                                                  \
    HANDLE(BTN_REMINDER)                                                                                     \
    HANDLE(BTN_DIGIT_1)                                                                                      \
    HANDLE(BTN_DIGIT_2)                                                                                      \
    HANDLE(BTN_DIGIT_3)                                                                                      \
    /* Buttons of popups */                                                                                  \
    HANDLE(BTN_BEANS_OK)                                                                                     \
    HANDLE(BTN_DESCALE_NOW)
// clang-format on

GUI_DECLARE_OBJECT_HANDLES(COFFEE_MACHINE_HANDLES)

#endif
