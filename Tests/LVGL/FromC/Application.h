// SPDX-License-Identifier: MIT
#ifndef TESTS_LVGL_FROMC_APPLICATION_H
#define TESTS_LVGL_FROMC_APPLICATION_H

/** @file
 *  An application in C with a display in memory, and what it expects.
 */

#include "Adapters/LVGL/dialogmanager_lvgl.h"

enum
{
    HOME = 1,
    MENU = 2,
    SETTINGS = 3, /* compiled, as are SAVED, ANONYMOUS and QUESTION */
    BROKEN = 4,   /* its builder returns NULL */
    WARNING = 5,  /* a popup of priority 5 that is deleted when it is closed */
    SAVED = 6,    /* a popup of priority 3 that closes itself after 300 ms, and is only hidden then */
    DETAIL = 7,
    ANONYMOUS = 8,
    QUESTION = 9,
    NOBODY = 77, /* is not registered */
    HOME_MENU = 11,
    HOME_OTHER = 12,
    MENU_BACK = 21,
    MENU_DETAIL = 22,
    SETTINGS_BACK = 31,
    SETTINGS_SOUND = 32,
    SETTINGS_LEVEL = 33,
    SETTINGS_BAR = 34,
    SETTINGS_NAME = 35,
    SETTINGS_OK = 36,
    WARNING_OK = 51,
    DETAIL_BACK = 71,
    WIDTH = 320,
    HEIGHT = 240
};

extern const struct DialogROMTables_t ckDialogs;

/* --- Expectations ------------------------------------------------------------------------------------ */

#define EXPECT(condition) expect((condition), #condition, __FILE__, __LINE__)
#define EXPECT_OK(call) EXPECT((call) == DIALOGMANAGER_OK)
#define EXPECT_EVENTS(expected) expect_text((expected), events, __FILE__, __LINE__)
#define EXPECT_DIALOGS(expected) expect_text((expected), dialogs(), __FILE__, __LINE__)

extern int failures;
extern char events[2000]; /* the hooks called, what the user did and the clicks, since EXPECT_EVENTS */

void expect(bool condition, const char* text, const char* file, int line);
void expect_text(const char* expected, char* found, const char* file, int line); /* empties what was found */
void add_event(const char* name, dialogmanager_id_t id);

/* The current dialog, the history with the most recent one first, the focus, and the dialogs that are seen.
 */
char* dialogs(void);

/* The errors of the trace since the last call, if it goes to LVGL's log. */
int take_errors(void);

/* --- LVGL with a display in memory ------------------------------------------------------------------- */

void start_lvgl(void);
lv_display_t* add_display(void);
void run(void);
void touch(dialogmanager_id_t id);
void press(uint32_t key);

/* --- The application --------------------------------------------------------------------------------- */

extern bool is_german;
extern dialogmanager_id_t kept;             /* the dialog that may not be deleted */
extern dialogmanager_result_t click_result; /* of what the last click has called */

extern const dialogmanager_hooks_t hooks;
extern const dialogmanager_listener_t listener;
extern const dialogmanager_contents_t contents;

extern dialogmanager_id_t home_ids[]; /* for build: the identifiers of its buttons, and 0 */
extern dialogmanager_id_t menu_ids[];
extern dialogmanager_id_t warning_ids[];
lv_obj_t* build(lv_obj_t* parent, void* user_data);
lv_obj_t* build_nothing(lv_obj_t* parent, void* user_data);

void register_all(void);
void start(const dialogmanager_config_t* config); /* everything, with home as the current dialog */
void stop(void);
bool is_seen(dialogmanager_id_t id);
const char* text_of_button(dialogmanager_id_t id);

/* --- The tests --------------------------------------------------------------------------------------- */

void test_life(void);
void test_definitions(void);
void test_dialogs(void);
void test_compiled_dialogs(void);
void test_popups(void);
void test_transitions(void);
void test_memory(void);

#endif
