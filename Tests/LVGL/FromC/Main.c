/* SPDX-License-Identifier: MIT */
/* Calls every function of dialogmanager_lvgl.h, as a program in C does. */
#include "Tests/LVGL/FromC/Application.h"

#include <stdio.h>

int main(void)
{
    test_life();
    test_definitions();
    test_dialogs();
    test_compiled_dialogs();
    test_popups();
    test_transitions();
    test_memory();
    printf(failures == 0 ? "All functions of dialogmanager_lvgl.h do what they say\n" : "");
    return failures == 0 ? 0 : 1;
}
