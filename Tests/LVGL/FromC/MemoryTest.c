/* SPDX-License-Identifier: MIT */
/* Memory runs out at each place in turn: every function says so, and nothing has changed. */
#include "Tests/LVGL/FromC/Application.h"
#include "Tests/LVGL/FromC/FailingMemory.h"

#include <stdio.h>
#include <string.h>

static char before[400];

/* The dialogs, and everything that is there. */
static char* state(void)
{
    static char text[400];
    dialogmanager_id_t id;
    strcpy(text, dialogs());
    for (id = HOME; id < 100; ++id)
    {
        const size_t length = strlen(text);
        if (dialogmanager_get_object(id) != NULL)
        {
            snprintf(text + length, sizeof(text) - length, "made %d; ", (int)id);
        }
    }
    return text;
}

static dialogmanager_result_t create(void)
{
    dialogmanager_config_t config;
    memset(&config, 0, sizeof(config));
    config.log_to_lvgl = true;
    return dialogmanager_create(&config);
}

static dialogmanager_result_t register_dialog(void)
{
    return dialogmanager_register_dialog(NOBODY, build, menu_ids);
}

static dialogmanager_result_t register_compiled_dialog(void)
{
    return dialogmanager_register_compiled_dialog(NOBODY, "Settings.xml");
}

static dialogmanager_result_t register_popup(void)
{
    return dialogmanager_register_popup(NOBODY, 5, 0, true, build, warning_ids);
}

static dialogmanager_result_t register_compiled_popup(void)
{
    return dialogmanager_register_compiled_popup(NOBODY, 5, 0, true, "Saved.xml");
}

static dialogmanager_result_t set_tables(void)
{
    return dialogmanager_set_tables(&ckDialogs);
}

static dialogmanager_result_t add_style(void)
{
    static lv_style_t style;
    return dialogmanager_add_style("Nothing", &style, 0);
}

static dialogmanager_result_t show_built(void)
{
    return dialogmanager_show(MENU, DIALOGMANAGER_ACTION_HIDE);
}

static dialogmanager_result_t show_compiled(void)
{
    return dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_DELETE);
}

static dialogmanager_result_t show_popup(void)
{
    return dialogmanager_show_popup(WARNING);
}

static dialogmanager_result_t show_compiled_popup(void)
{
    return dialogmanager_show_popup(SAVED);
}

static dialogmanager_result_t close_popup(void)
{
    return dialogmanager_close_popup(WARNING);
}

static dialogmanager_result_t back(void)
{
    return dialogmanager_back(true);
}

static dialogmanager_result_t back_to(void)
{
    return dialogmanager_back_to(HOME, true);
}

static dialogmanager_result_t clear(void)
{
    return dialogmanager_clear(0, true, true);
}

static dialogmanager_result_t set_modal(void)
{
    return dialogmanager_set_popup_modal(WARNING, false);
}

static dialogmanager_result_t set_focus(void)
{
    return dialogmanager_set_focus(HOME_MENU);
}

static dialogmanager_result_t turn(void)
{
    return dialogmanager_turn();
}

static dialogmanager_result_t set_others(void)
{
    EXPECT_OK(dialogmanager_set_hooks(&hooks));
    EXPECT_OK(dialogmanager_set_listener(&listener));
    EXPECT_OK(dialogmanager_set_contents(&contents));
    EXPECT_OK(dialogmanager_update_texts());
    EXPECT_OK(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_FADE, 50, true));
    EXPECT(dialogmanager_current() == HOME);
    EXPECT(dialogmanager_history_size() == 0);
    EXPECT(dialogmanager_history(0) == 0);
    EXPECT(dialogmanager_focus() == HOME_MENU);
    EXPECT(!dialogmanager_is_popup_shown(WARNING));
    EXPECT(dialogmanager_get_object(HOME) != NULL);
    return dialogmanager_destroy();
}

static void start_lvgl_alone(void)
{
    start_lvgl();
}

static void start_with_home(void)
{
    start(NULL);
}

static void start_without_tables(void)
{
    start_lvgl();
    EXPECT_OK(create());
}

static void start_with_popup(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    run();
}

static void start_with_a_way_back(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_DELETE));
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_DELETE));
    run();
}

static void start_with_changes(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    EXPECT_OK(dialogmanager_show_popup(WARNING));
}

/* What a result that is not DIALOGMANAGER_OK has left. */
typedef enum
{
    NOTHING_CHANGED,     /* and the same call succeeds when there is memory */
    SOMETHING_MAY_CHANGE /* the header says what */
} promise_t;

/* @return whether memory has run out */
static bool fail_once(void (*prepare)(void), dialogmanager_result_t (*call)(void), promise_t promise, const char* name,
                      unsigned granted, int all)
{
    dialogmanager_result_t result;
    unsigned refused;
    const int failures_before = failures;
    prepare();
    strcpy(before, state());
    events[0] = '\0';
    let_memory_fail(granted, all);
    result = call();
    refused = stop_failing();
    if (refused == 0)
    {
        EXPECT_OK(result);
    }
    else if (result != DIALOGMANAGER_OK)
    {
        EXPECT(result == DIALOGMANAGER_ERROR_MEMORY || result == DIALOGMANAGER_ERROR_FAILED);
        if (promise == NOTHING_CHANGED)
        {
            expect_text(before, state(), __FILE__, __LINE__);
            EXPECT_OK(call());
        }
    }
    if (failures != failures_before)
    {
        printf("when allocation %u of %s failed%s with %d\n", granted + 1, name, all != 0 ? ", and all others," : "",
               (int)result);
    }
    dialogmanager_destroy();
    if (prepare != start_lvgl_alone)
    {
        /* There is a new start after whatever has happened. */
        EXPECT_OK(dialogmanager_create(NULL));
    }
    dialogmanager_destroy();
    lv_deinit();
    events[0] = '\0';
    return refused != 0;
}

static void expect_every_failure(void (*prepare)(void), dialogmanager_result_t (*call)(void), promise_t promise,
                                 const char* name)
{
    int all;
    for (all = 0; all < 2; ++all)
    {
        unsigned granted = 0;
        while (fail_once(prepare, call, promise, name, granted, all))
        {
            ++granted;
        }
    }
}

#define EXPECT_EVERY_FAILURE(prepare, call, promise) expect_every_failure(prepare, call, promise, #call)

void test_memory(void)
{
    EXPECT_EVERY_FAILURE(start_lvgl_alone, create, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, register_dialog, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, register_compiled_dialog, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, register_popup, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, register_compiled_popup, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_without_tables, set_tables, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, add_style, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, show_built, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, show_compiled, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, show_popup, SOMETHING_MAY_CHANGE);
    EXPECT_EVERY_FAILURE(start_with_home, show_compiled_popup, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_popup, close_popup, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_popup, set_modal, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_a_way_back, back, SOMETHING_MAY_CHANGE);
    EXPECT_EVERY_FAILURE(start_with_a_way_back, back_to, SOMETHING_MAY_CHANGE);
    EXPECT_EVERY_FAILURE(start_with_a_way_back, clear, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, set_focus, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_changes, turn, NOTHING_CHANGED);
    EXPECT_EVERY_FAILURE(start_with_home, set_others, NOTHING_CHANGED);
}
