// SPDX-License-Identifier: MIT
// The same with the dialog manager, as on the page about adapters.
#include "Adapters/LVGL/dialogmanager_lvgl.h"

enum { HOME = 1, MENU, HOME_MENU, MENU_BACK };

static lv_obj_t* build_menu(lv_obj_t* parent, void* user_data); /* like build_home below */

static void on_menu(lv_event_t* event) { dialogmanager_show(MENU, DIALOGMANAGER_ACTION_DELETE); }
static void on_back(lv_event_t* event) { dialogmanager_back(true); }

static lv_obj_t* build_home(lv_obj_t* parent, void* user_data)
{
    lv_obj_t* screen = lv_obj_create(parent);
    lv_obj_set_size(screen, LV_PCT(100), LV_PCT(100));
    lv_obj_t* menu = lv_button_create(screen);
    lv_obj_add_event_cb(menu, on_menu, LV_EVENT_CLICKED, NULL);
    dialogmanager_identify(menu, HOME_MENU);
    return screen;
}

int main(void)
{
    /* ... lv_init, a display, input devices ... */
    dialogmanager_create(NULL);
    dialogmanager_register_dialog(HOME, build_home, NULL);
    dialogmanager_register_dialog(MENU, build_menu, NULL);
    dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP);
    for (;;)
    {
        lv_delay_ms(lv_timer_handler());
    }
}

static lv_obj_t* build_menu(lv_obj_t* parent, void* user_data)
{
    lv_obj_t* screen = lv_obj_create(parent);
    lv_obj_t* back = lv_button_create(screen);
    lv_obj_add_event_cb(back, on_back, LV_EVENT_CLICKED, user_data);
    dialogmanager_identify(back, MENU_BACK);
    return screen;
}
