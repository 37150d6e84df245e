/* SPDX-License-Identifier: MIT */
/* Calls every function of dialogmanager_lvgl.h, as a program in C does. */
#include "Adapters/LVGL/dialogmanager_lvgl.h"

#include <stdio.h>
#include <string.h>

enum
{
    HOME = 1,
    MENU = 2,
    SETTINGS = 3,
    BROKEN = 4,
    WARNING = 5,
    SAVED = 6,
    HOME_MENU = 11,
    HOME_OTHER = 12,
    MENU_BACK = 21,
    SETTINGS_BACK = 31,
    SETTINGS_SOUND = 32,
    WARNING_OK = 51,
    WIDTH = 320,
    HEIGHT = 240
};

extern const struct DialogROMTables_t ckDialogs;

static int failures;
static uint32_t now;
static uint16_t pixels[WIDTH * HEIGHT + 32];
static char events[1000];
static bool is_german;
static bool keeps_menu;
static lv_point_t finger;
static bool is_touched;
static uint32_t key;
static bool is_key_pressed;

#define EXPECT(condition) expect((condition), #condition, __LINE__)

static void expect(bool condition, const char* text, int line)
{
    if (!condition)
    {
        printf("line %d: expected %s\n", line, text);
        ++failures;
    }
}

static void expect_events(const char* expected, int line)
{
    if (strcmp(expected, events) != 0)
    {
        printf("line %d: expected \"%s\", found \"%s\"\n", line, expected, events);
        ++failures;
    }
    events[0] = '\0';
}

static void add_event(const char* name, dialogmanager_id_t id)
{
    const size_t length = strlen(events);
    snprintf(events + length, sizeof(events) - length, "%s %d; ", name, (int)id);
}

/* --- LVGL with a display in memory ------------------------------------------------------------------- */

static uint32_t read_tick(void)
{
    return now;
}

static void flush(lv_display_t* display, const lv_area_t* area, uint8_t* map)
{
    (void)area;
    (void)map;
    lv_display_flush_ready(display);
}

static void read_panel(lv_indev_t* device, lv_indev_data_t* data)
{
    (void)device;
    data->point = finger;
    data->state = is_touched ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
}

static void read_keypad(lv_indev_t* device, lv_indev_data_t* data)
{
    (void)device;
    data->key = key;
    data->state = is_key_pressed ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
}

static void run(void)
{
    int step;
    for (step = 0; step < 30; ++step)
    {
        now += 5;
        lv_timer_handler();
    }
}

static void touch(dialogmanager_id_t id)
{
    lv_area_t area;
    lv_obj_get_coords(dialogmanager_get_object(id), &area);
    finger.x = (area.x1 + area.x2) / 2;
    finger.y = (area.y1 + area.y2) / 2;
    is_touched = true;
    run();
    is_touched = false;
    run();
}

static void press(uint32_t pressed)
{
    key = pressed;
    is_key_pressed = true;
    run();
    is_key_pressed = false;
    run();
}

static void set_up_lvgl(void)
{
    lv_display_t* display;
    lv_indev_t* device;
    lv_init();
    lv_tick_set_cb(read_tick);
    display = lv_display_create(WIDTH, HEIGHT);
    lv_display_set_flush_cb(display, flush);
    lv_display_set_buffers(display, lv_draw_buf_align(pixels, LV_COLOR_FORMAT_RGB565), NULL, WIDTH * HEIGHT * 2,
                           LV_DISPLAY_RENDER_MODE_DIRECT);
    device = lv_indev_create();
    lv_indev_set_type(device, LV_INDEV_TYPE_POINTER);
    lv_indev_set_read_cb(device, read_panel);
    device = lv_indev_create();
    lv_indev_set_type(device, LV_INDEV_TYPE_KEYPAD);
    lv_indev_set_read_cb(device, read_keypad);
}

/* --- The application ----------------------------------------------------------------------------------- */

static void on_click(lv_event_t* event)
{
    const dialogmanager_id_t* id = lv_event_get_user_data(event);
    switch (*id)
    {
    case HOME_MENU:
        EXPECT(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_DELETE) == DIALOGMANAGER_OK);
        break;
    case MENU_BACK:
        EXPECT(dialogmanager_destroy() == DIALOGMANAGER_ERROR_STATE);
        EXPECT(dialogmanager_back(true) == DIALOGMANAGER_OK);
        EXPECT(dialogmanager_turn() == DIALOGMANAGER_OK);
        EXPECT(lv_obj_is_valid(lv_event_get_target_obj(event)));
        break;
    default:
        add_event("click", *id);
        break;
    }
}

static void add_button(lv_obj_t* parent, const dialogmanager_id_t* id)
{
    lv_obj_t* button = lv_button_create(parent);
    lv_obj_set_size(button, 100, 30);
    lv_obj_add_event_cb(button, on_click, LV_EVENT_CLICKED, (void*)(uintptr_t)id);
    EXPECT(dialogmanager_identify(button, *id) == DIALOGMANAGER_OK);
}

/* Builds a dialog from its identifiers, which end with 0. */
static lv_obj_t* build(lv_obj_t* parent, void* user_data)
{
    const dialogmanager_id_t* id = user_data;
    lv_obj_t* screen = lv_obj_create(parent);
    lv_obj_set_size(screen, LV_PCT(100), LV_PCT(100));
    lv_obj_set_flex_flow(screen, LV_FLEX_FLOW_COLUMN);
    for (; *id != 0; ++id)
    {
        add_button(screen, id);
    }
    return screen;
}

static lv_obj_t* build_nothing(lv_obj_t* parent, void* user_data)
{
    (void)user_data;
    EXPECT(dialogmanager_identify(lv_button_create(parent), 99) == DIALOGMANAGER_OK);
    return NULL;
}

static void on_added(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("added", id);
}

static void on_activated(dialogmanager_id_t id, void* user_data)
{
    (void)user_data;
    add_event("activated", id);
}

static void on_deactivated(dialogmanager_id_t id, void* user_data)
{
    (void)user_data;
    add_event("deactivated", id);
}

static bool may_delete(dialogmanager_id_t id, void* user_data)
{
    (void)user_data;
    add_event("delete", id);
    return id != MENU || !keeps_menu;
}

static void on_left(dialogmanager_id_t left, dialogmanager_id_t target, void* user_data)
{
    (void)user_data;
    add_event("left", left);
    add_event("for", target);
}

static void on_last_left(void* user_data)
{
    (void)user_data;
    add_event("last", 0);
}

static void on_popup_shown(dialogmanager_id_t id, void* user_data)
{
    (void)user_data;
    add_event("popup", id);
}

static void on_popup_hidden(dialogmanager_id_t id, void* user_data)
{
    (void)user_data;
    add_event("no popup", id);
}

static void on_pressed(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == events);
    add_event("pressed", id);
}

static void on_changed(dialogmanager_id_t id, int32_t value, const char* text, void* user_data)
{
    (void)user_data;
    EXPECT(strcmp(text, "Sound") == 0);
    add_event("changed", id);
    add_event("to", value);
}

static uint16_t find_text(const char* name, void* user_data)
{
    (void)user_data;
    return strcmp(name, "TXT_SETTINGS") == 0 ? 1 : strcmp(name, "TXT_BACK") == 0 ? 2 : 0;
}

static const char* get_text(uint16_t text, void* user_data)
{
    (void)user_data;
    return text == 1 ? "Settings" : is_german ? "Zur\xc3\xbc\x63k" : "Back";
}

static uint16_t find_value(const char* name, void* user_data)
{
    (void)user_data;
    return strcmp(name, "LEVEL") == 0 ? 1 : 0;
}

static const char* get_value_text(uint16_t value, void* user_data)
{
    (void)user_data;
    return value == 1 ? "high" : "";
}

static int32_t get_value_number(uint16_t value, void* user_data)
{
    (void)user_data;
    return value;
}

static const char* text_of_button(dialogmanager_id_t id)
{
    return lv_label_get_text(lv_obj_get_child(dialogmanager_get_object(id), 0));
}

/* --- The tests ----------------------------------------------------------------------------------------- */

static dialogmanager_id_t home_ids[] = {HOME_MENU, HOME_OTHER, 0};
static dialogmanager_id_t menu_ids[] = {MENU_BACK, 0};
static dialogmanager_id_t warning_ids[] = {WARNING_OK, 0};

static void nothing_works_without_a_dialog_manager(void)
{
    EXPECT(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP) == DIALOGMANAGER_ERROR_STATE);
    EXPECT(dialogmanager_destroy() == DIALOGMANAGER_ERROR_STATE);
    EXPECT(dialogmanager_turn() == DIALOGMANAGER_ERROR_STATE);
    EXPECT(dialogmanager_current() == 0);
    EXPECT(dialogmanager_history_size() == 0);
    EXPECT(dialogmanager_history(0) == 0);
    EXPECT(dialogmanager_focus() == 0);
    EXPECT(dialogmanager_get_object(HOME) == NULL);
    EXPECT(!dialogmanager_is_popup_shown(WARNING));
}

static void set_up(void)
{
    static const dialogmanager_hooks_t hooks = {on_added,     on_activated,   on_deactivated,  may_delete, on_left,
                                                on_last_left, on_popup_shown, on_popup_hidden, &failures};
    static const dialogmanager_listener_t listener = {on_pressed, on_changed, events};
    static const dialogmanager_contents_t contents = {find_text,      get_text,         find_value,
                                                      get_value_text, get_value_number, NULL};
    dialogmanager_config_t config;
    memset(&config, 0, sizeof(config));
    config.log_to_lvgl = true;
    EXPECT(dialogmanager_create(NULL) == DIALOGMANAGER_ERROR_STATE);
    set_up_lvgl();
    EXPECT(dialogmanager_create(&config) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_create(NULL) == DIALOGMANAGER_ERROR_STATE);
    EXPECT(dialogmanager_set_hooks(&hooks) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_set_listener(&listener) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_set_contents(&contents) == DIALOGMANAGER_OK);
}

static void definitions_are_checked(void)
{
    EXPECT(dialogmanager_register_dialog(HOME, build, home_ids) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_register_dialog(HOME, build, home_ids) == DIALOGMANAGER_ERROR_EXISTS);
    EXPECT(dialogmanager_register_dialog(0, build, NULL) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_register_dialog(MENU, NULL, NULL) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_register_dialog(MENU, build, menu_ids) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_register_dialog(BROKEN, build_nothing, NULL) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_set_tables(NULL) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_set_tables(&ckDialogs) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_set_tables(&ckDialogs) == DIALOGMANAGER_ERROR_EXISTS);
    EXPECT(dialogmanager_register_compiled_dialog(SETTINGS, "Settings.xml") == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_register_compiled_dialog(SETTINGS, "Settings.xml") == DIALOGMANAGER_ERROR_EXISTS);
    EXPECT(dialogmanager_register_compiled_dialog(7, "") == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_register_popup(WARNING, 10, 0, true, build, warning_ids) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_register_popup(WARNING, 5, 0, true, build, warning_ids) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_register_popup(WARNING, 5, 0, true, build, warning_ids) == DIALOGMANAGER_ERROR_EXISTS);
    EXPECT(dialogmanager_register_compiled_popup(SAVED, 3, 300, false, NULL) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_register_compiled_popup(SAVED, 3, 300, false, "Saved.xml") == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_identify(lv_screen_active(), 99) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(dialogmanager_identify(NULL, 99) == DIALOGMANAGER_ERROR_ARGUMENT);
}

static void dialogs_come_and_go(void)
{
    EXPECT(dialogmanager_show(HOME, 9) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_show(77, DIALOGMANAGER_ACTION_HIDE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP) == DIALOGMANAGER_OK);
    run();
    expect_events("added 1; activated 1; ", __LINE__);
    EXPECT(dialogmanager_show(BROKEN, DIALOGMANAGER_ACTION_DELETE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(dialogmanager_current() == HOME);
    EXPECT(dialogmanager_back(true) == DIALOGMANAGER_ERROR_UNKNOWN);

    EXPECT(dialogmanager_set_focus(77) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_set_focus(HOME_MENU) == DIALOGMANAGER_OK);
    run();
    press(LV_KEY_NEXT);
    EXPECT(dialogmanager_focus() == HOME_OTHER);
    touch(HOME_MENU);
    expect_events("delete 1; added 2; activated 2; ", __LINE__);
    EXPECT(dialogmanager_current() == MENU);
    EXPECT(dialogmanager_history_size() == 1);
    EXPECT(dialogmanager_history(0) == HOME);
    EXPECT(dialogmanager_history(1) == 0);
    EXPECT(dialogmanager_get_object(HOME) == NULL);

    touch(MENU_BACK);
    expect_events("delete 2; activated 1; left 2; for 1; ", __LINE__);
    EXPECT(dialogmanager_focus() == HOME_MENU);
    EXPECT(lv_obj_has_state(dialogmanager_get_object(HOME_MENU), LV_STATE_FOCUSED));

    keeps_menu = true;
    EXPECT(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_HIDE) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_back_to(BROKEN, true) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_back_to(HOME, true) == DIALOGMANAGER_OK);
    run();
    EXPECT(dialogmanager_current() == HOME);
    EXPECT(dialogmanager_get_object(MENU) != NULL);
    keeps_menu = false;
    events[0] = '\0';
}

static void compiled_dialogs_show_texts_and_values(void)
{
    static lv_style_t style;
    lv_style_init(&style);
    lv_style_set_radius(&style, 3);
    EXPECT(dialogmanager_add_style(NULL, &style, 0) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_add_style("Button", &style, 0) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE) == DIALOGMANAGER_OK);
    run();
    EXPECT(strcmp(text_of_button(SETTINGS_BACK), "Back") == 0);
    EXPECT(strcmp(lv_label_get_text(dialogmanager_get_object(33)), "high") == 0);
    EXPECT(lv_obj_get_style_radius(dialogmanager_get_object(SETTINGS_BACK), LV_PART_MAIN) == 3);
    is_german = true;
    EXPECT(dialogmanager_update_texts() == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_turn() == DIALOGMANAGER_OK);
    EXPECT(strcmp(text_of_button(SETTINGS_BACK), "Zur\xc3\xbc\x63k") == 0);
    events[0] = '\0';
    touch(SETTINGS_SOUND);
    touch(SETTINGS_BACK);
    expect_events("changed 32; to 1; pressed 31; ", __LINE__);
    EXPECT(dialogmanager_back(false) == DIALOGMANAGER_OK);
    run();
    events[0] = '\0';
}

static void popups_take_the_input(void)
{
    EXPECT(dialogmanager_show_popup(HOME) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_close_popup(WARNING) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_set_popup_modal(WARNING, false) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_show_popup(SAVED) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_show_popup(WARNING) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_is_popup_shown(WARNING));
    EXPECT(!dialogmanager_is_popup_shown(SAVED));
    run();
    lv_obj_set_size(dialogmanager_get_object(WARNING), 100, 60);
    lv_obj_set_pos(dialogmanager_get_object(WARNING), 200, 150);
    expect_events("popup 6; popup 5; no popup 6; ", __LINE__);
    touch(HOME_OTHER);
    expect_events("", __LINE__);
    EXPECT(dialogmanager_set_popup_modal(WARNING, false) == DIALOGMANAGER_OK);
    run();
    touch(HOME_OTHER);
    expect_events("click 12; ", __LINE__);
    EXPECT(dialogmanager_close_popup(WARNING) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_is_popup_shown(SAVED));
    run();
    run();
    run();
    EXPECT(!dialogmanager_is_popup_shown(SAVED));
    events[0] = '\0';
}

static void transitions_and_the_end(void)
{
    EXPECT(dialogmanager_set_transition(99, 100, false) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_MOVE_LEFT, 100, true) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE) == DIALOGMANAGER_OK);
    run();
    run();
    EXPECT(lv_obj_is_visible(dialogmanager_get_object(SETTINGS)));
    EXPECT(dialogmanager_clear(0, true, true) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_current() == 0);
    EXPECT(dialogmanager_set_hooks(NULL) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_set_listener(NULL) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_set_contents(NULL) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_destroy() == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_create(NULL) == DIALOGMANAGER_OK);
    EXPECT(dialogmanager_destroy() == DIALOGMANAGER_OK);
    lv_deinit();
}

int main(void)
{
    nothing_works_without_a_dialog_manager();
    set_up();
    definitions_are_checked();
    dialogs_come_and_go();
    compiled_dialogs_show_texts_and_values();
    popups_take_the_input();
    transitions_and_the_end();
    printf(failures == 0 ? "All functions of dialogmanager_lvgl.h do what they say\n" : "");
    return failures == 0 ? 0 : 1;
}
