/* SPDX-License-Identifier: MIT */
#include "Tests/LVGL/FromC/Application.h"

#include <stdio.h>
#include <string.h>

int failures;
char events[2000];
bool is_german;
dialogmanager_id_t kept;
dialogmanager_result_t click_result;

static uint32_t now;
static uint16_t pixels[2][WIDTH * HEIGHT + 32];
static int used_pixels;
static lv_point_t finger;
static bool is_touched;
static uint32_t key;
static bool is_key_pressed;
static int errors;

/* --- Expectations ------------------------------------------------------------------------------------ */

void expect(bool condition, const char* text, const char* file, int line)
{
    if (!condition)
    {
        printf("%s:%d: expected %s\n", file, line, text);
        ++failures;
    }
}

void expect_text(const char* expected, char* found, const char* file, int line)
{
    if (strcmp(expected, found) != 0)
    {
        printf("%s:%d: expected \"%s\", found \"%s\"\n", file, line, expected, found);
        ++failures;
    }
    found[0] = '\0';
}

static void append(char* text, size_t size, const char* name, dialogmanager_id_t id)
{
    const size_t length = strlen(text);
    snprintf(text + length, size - length, "%s %d; ", name, (int)id);
}

void add_event(const char* name, dialogmanager_id_t id)
{
    append(events, sizeof(events), name, id);
}

char* dialogs(void)
{
    static char text[300];
    uint32_t index;
    dialogmanager_id_t id;
    text[0] = '\0';
    append(text, sizeof(text), "current", dialogmanager_current());
    for (index = 0; index < dialogmanager_history_size(); ++index)
    {
        append(text, sizeof(text), "history", dialogmanager_history(index));
    }
    append(text, sizeof(text), "focus", dialogmanager_focus());
    for (id = HOME; id <= QUESTION; ++id)
    {
        if (is_seen(id))
        {
            append(text, sizeof(text), "seen", id);
        }
    }
    return text;
}

bool is_seen(dialogmanager_id_t id)
{
    lv_obj_t* object = dialogmanager_get_object(id);
    return object != NULL && lv_obj_is_visible(object);
}

int take_errors(void)
{
    const int taken = errors;
    errors = 0;
    return taken;
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

static void count_errors(lv_log_level_t level, const char* text)
{
    (void)text;
    errors += level == LV_LOG_LEVEL_ERROR ? 1 : 0;
}

void run(void)
{
    int step;
    for (step = 0; step < 30; ++step)
    {
        now += 5;
        lv_timer_handler();
    }
}

void touch(dialogmanager_id_t id)
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

void press(uint32_t pressed)
{
    key = pressed;
    is_key_pressed = true;
    run();
    is_key_pressed = false;
    run();
}

lv_display_t* add_display(void)
{
    lv_display_t* display = lv_display_create(WIDTH, HEIGHT);
    lv_display_set_flush_cb(display, flush);
    lv_display_set_buffers(display, lv_draw_buf_align(pixels[used_pixels++], LV_COLOR_FORMAT_RGB565), NULL,
                           WIDTH * HEIGHT * 2, LV_DISPLAY_RENDER_MODE_DIRECT);
    return display;
}

void start_lvgl(void)
{
    lv_indev_t* device;
    lv_init();
    lv_tick_set_cb(read_tick);
    lv_log_register_print_cb(count_errors);
    used_pixels = 0;
    add_display();
    device = lv_indev_create();
    lv_indev_set_type(device, LV_INDEV_TYPE_POINTER);
    lv_indev_set_read_cb(device, read_panel);
    device = lv_indev_create();
    lv_indev_set_type(device, LV_INDEV_TYPE_KEYPAD);
    lv_indev_set_read_cb(device, read_keypad);
}

/* --- The application --------------------------------------------------------------------------------- */

dialogmanager_id_t home_ids[] = {HOME_MENU, HOME_OTHER, 0};
dialogmanager_id_t menu_ids[] = {MENU_BACK, MENU_DETAIL, 0};
dialogmanager_id_t warning_ids[] = {WARNING_OK, 0};
static dialogmanager_id_t detail_ids[] = {DETAIL_BACK, 0};

static void on_click(lv_event_t* event)
{
    const dialogmanager_id_t* id = lv_event_get_user_data(event);
    switch (*id)
    {
    case HOME_MENU:
        click_result = dialogmanager_show(MENU, DIALOGMANAGER_ACTION_DELETE);
        break;
    case MENU_BACK:
        EXPECT(dialogmanager_destroy() == DIALOGMANAGER_ERROR_STATE);
        click_result = dialogmanager_back(true);
        EXPECT_OK(dialogmanager_turn());
        EXPECT(lv_obj_is_valid(lv_event_get_target_obj(event)));
        break;
    default:
        add_event("click", *id);
        break;
    }
}

lv_obj_t* build(lv_obj_t* parent, void* user_data)
{
    const dialogmanager_id_t* id = user_data;
    lv_obj_t* screen = lv_obj_create(parent);
    lv_obj_set_size(screen, LV_PCT(100), LV_PCT(100));
    lv_obj_set_flex_flow(screen, LV_FLEX_FLOW_COLUMN);
    for (; *id != 0; ++id)
    {
        lv_obj_t* button = lv_button_create(screen);
        lv_obj_set_size(button, 100, 30);
        lv_obj_add_event_cb(button, on_click, LV_EVENT_CLICKED, (void*)(uintptr_t)id);
        if (dialogmanager_identify(button, *id) != DIALOGMANAGER_OK)
        {
            return NULL;
        }
    }
    return screen;
}

lv_obj_t* build_nothing(lv_obj_t* parent, void* user_data)
{
    (void)user_data;
    EXPECT_OK(dialogmanager_identify(lv_button_create(parent), 99));
    return NULL;
}

static void on_added(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("added", id);
}

static void on_activated(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    EXPECT(dialogmanager_current() == id);
    add_event("activated", id);
}

static void on_deactivated(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("deactivated", id);
}

static bool may_delete(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("delete", id);
    return id != kept;
}

static void on_left(dialogmanager_id_t left, dialogmanager_id_t target, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("left", left);
    add_event("for", target);
}

static void on_last_left(void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("last", 0);
}

static void on_popup_shown(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("popup", id);
}

static void on_popup_hidden(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == &failures);
    add_event("no popup", id);
}

const dialogmanager_hooks_t hooks = {on_added, on_activated, on_deactivated, may_delete,     on_left,
                                     on_last_left, on_popup_shown, on_popup_hidden, &failures};

static void on_pressed(dialogmanager_id_t id, void* user_data)
{
    EXPECT(user_data == events);
    add_event("pressed", id);
}

static void on_changed(dialogmanager_id_t id, int32_t value, const char* text, void* user_data)
{
    EXPECT(user_data == events);
    add_event("changed", id);
    add_event(text, value);
}

const dialogmanager_listener_t listener = {on_pressed, on_changed, events};

static uint16_t find_text(const char* name, void* user_data)
{
    EXPECT(user_data == &is_german);
    return strcmp(name, "TXT_SETTINGS") == 0 ? 1 : strcmp(name, "TXT_BACK") == 0 ? 2 : 0;
}

static const char* get_text(uint16_t text, void* user_data)
{
    EXPECT(user_data == &is_german);
    return text == 1 ? "Settings" : is_german ? "Zur\xc3\xbc\x63k" : "Back";
}

static uint16_t find_value(const char* name, void* user_data)
{
    EXPECT(user_data == &is_german);
    return strcmp(name, "LEVEL") == 0 ? 1 : 0;
}

static const char* get_value_text(uint16_t value, void* user_data)
{
    EXPECT(user_data == &is_german);
    return value == 1 ? "high" : "";
}

static int32_t get_value_number(uint16_t value, void* user_data)
{
    EXPECT(user_data == &is_german);
    return value == 1 ? 7 : 0;
}

const dialogmanager_contents_t contents = {find_text,      get_text,         find_value,
                                           get_value_text, get_value_number, &is_german};

const char* text_of_button(dialogmanager_id_t id)
{
    return lv_label_get_text(lv_obj_get_child(dialogmanager_get_object(id), 0));
}

void register_all(void)
{
    EXPECT_OK(dialogmanager_set_hooks(&hooks));
    EXPECT_OK(dialogmanager_set_listener(&listener));
    EXPECT_OK(dialogmanager_set_contents(&contents));
    EXPECT_OK(dialogmanager_register_dialog(HOME, build, home_ids));
    EXPECT_OK(dialogmanager_register_dialog(MENU, build, menu_ids));
    EXPECT_OK(dialogmanager_register_dialog(DETAIL, build, detail_ids));
    EXPECT_OK(dialogmanager_register_dialog(BROKEN, build_nothing, NULL));
    EXPECT_OK(dialogmanager_set_tables(&ckDialogs));
    EXPECT_OK(dialogmanager_register_compiled_dialog(SETTINGS, "Settings.xml"));
    EXPECT_OK(dialogmanager_register_compiled_dialog(ANONYMOUS, "Anonymous.xml"));
    EXPECT_OK(dialogmanager_register_popup(WARNING, 5, 0, true, build, warning_ids));
    EXPECT_OK(dialogmanager_register_compiled_popup(SAVED, 3, 300, false, "Saved.xml"));
    EXPECT_OK(dialogmanager_register_compiled_popup(QUESTION, 3, 0, false, "Question.xml"));
}

void start(const dialogmanager_config_t* config)
{
    dialogmanager_config_t with_log;
    memset(&with_log, 0, sizeof(with_log));
    with_log = config != NULL ? *config : with_log;
    with_log.log_to_lvgl = true;
    start_lvgl();
    EXPECT_OK(dialogmanager_create(&with_log));
    register_all();
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP));
    run();
    EXPECT_EVENTS("added 1; activated 1; ");
    kept = 0;
    is_german = false;
    take_errors();
}

void stop(void)
{
    EXPECT_OK(dialogmanager_destroy());
    lv_deinit();
    events[0] = '\0';
}
