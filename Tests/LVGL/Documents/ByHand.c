// SPDX-License-Identifier: MIT
// Screens by hand, as on the page about adapters.
#include <lvgl.h>

lv_obj_t* build_home(void);
lv_obj_t* build_menu(void);
void connect(lv_obj_t* object);
extern lv_indev_t* keypad;
extern lv_group_t* home_group;
extern lv_group_t* menu_group;

static void on_menu(lv_event_t* event)
{
    lv_obj_t* old = lv_screen_active();
    lv_screen_load(build_menu());
    lv_obj_delete_async(old); /* not lv_obj_delete: this is its own event */
    lv_indev_set_group(keypad, menu_group);
}

static void on_back(lv_event_t* event)
{
    lv_obj_t* old = lv_screen_active();
    lv_screen_load(build_home()); /* which button had the focus? */
    lv_obj_delete_async(old);
    lv_group_delete(menu_group); /* or it leaks */
    lv_indev_set_group(keypad, home_group);
}

void connect(lv_obj_t* object)
{
    lv_obj_add_event_cb(object, on_menu, LV_EVENT_CLICKED, NULL);
    lv_obj_add_event_cb(object, on_back, LV_EVENT_CLICKED, NULL);
}
