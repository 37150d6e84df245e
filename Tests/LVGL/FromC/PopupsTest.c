/* SPDX-License-Identifier: MIT */
/* Popups by priority, their time, and the input that they keep. */
#include "Tests/LVGL/FromC/Application.h"

static void make_small(dialogmanager_id_t id)
{
    lv_obj_set_size(dialogmanager_get_object(id), 100, 60);
    lv_obj_set_pos(dialogmanager_get_object(id), 200, 150);
}

static void popups_are_known_when_they_are_registered(void)
{
    start(NULL);
    EXPECT(dialogmanager_show_popup(HOME) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_show_popup(NOBODY) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_close_popup(WARNING) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_set_popup_modal(WARNING, false) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_set_popup_modal(HOME, false) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(!dialogmanager_is_popup_shown(WARNING));
    EXPECT_OK(dialogmanager_register_popup(NOBODY, 5, 0, true, build_nothing, NULL));
    EXPECT(dialogmanager_show_popup(NOBODY) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() == 1);
    EXPECT(dialogmanager_close_popup(NOBODY) == DIALOGMANAGER_ERROR_UNKNOWN);
    run();
    EXPECT_EVENTS("");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    stop();
}

static void the_greater_priority_wins(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show_popup(QUESTION));
    run();
    EXPECT_EVENTS("popup 9; ");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; seen 9; ");
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    run();
    EXPECT_EVENTS("popup 5; no popup 9; ");
    EXPECT(dialogmanager_is_popup_shown(WARNING));
    EXPECT(!dialogmanager_is_popup_shown(QUESTION));
    EXPECT(!is_seen(QUESTION));
    /* One that waits can be closed, too. */
    EXPECT_OK(dialogmanager_close_popup(QUESTION));
    EXPECT(dialogmanager_close_popup(QUESTION) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT_OK(dialogmanager_show_popup(QUESTION));
    events[0] = '\0';
    EXPECT_OK(dialogmanager_close_popup(WARNING));
    EXPECT(dialogmanager_is_popup_shown(QUESTION));
    EXPECT_EVENTS("no popup 5; popup 9; ");
    run();
    EXPECT(is_seen(QUESTION));
    stop();
}

static void closing_hides_or_deletes(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    run();
    EXPECT_OK(dialogmanager_close_popup(WARNING));
    run();
    EXPECT(dialogmanager_get_object(WARNING) == NULL);
    EXPECT_OK(dialogmanager_show_popup(QUESTION));
    run();
    EXPECT_OK(dialogmanager_close_popup(QUESTION));
    run();
    EXPECT(dialogmanager_get_object(QUESTION) != NULL);
    EXPECT(!is_seen(QUESTION));
    stop();
}

static void popup_with_a_time_closes_itself(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show_popup(SAVED));
    run();
    EXPECT(dialogmanager_is_popup_shown(SAVED));
    run();
    run();
    EXPECT(!dialogmanager_is_popup_shown(SAVED));
    EXPECT(!is_seen(SAVED));
    EXPECT_EVENTS("popup 6; no popup 6; ");
    stop();
}

static void built_popup_keeps_the_input_unless_switched_off(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    run();
    make_small(WARNING);
    events[0] = '\0';
    touch(HOME_OTHER);
    EXPECT_EVENTS("");
    EXPECT_OK(dialogmanager_set_popup_modal(WARNING, false));
    run();
    touch(HOME_OTHER);
    EXPECT_EVENTS("click 12; ");
    EXPECT_OK(dialogmanager_set_popup_modal(WARNING, true));
    run();
    touch(HOME_OTHER);
    EXPECT_EVENTS("");
    touch(WARNING_OK);
    EXPECT_EVENTS("click 51; ");
    /* Also while it waits for one of a higher priority. */
    EXPECT_OK(dialogmanager_register_popup(NOBODY, 9, 0, true, build, home_ids + 2));
    EXPECT_OK(dialogmanager_show_popup(NOBODY));
    EXPECT_OK(dialogmanager_set_popup_modal(WARNING, false));
    EXPECT_OK(dialogmanager_close_popup(NOBODY));
    run();
    events[0] = '\0';
    touch(HOME_OTHER);
    EXPECT_EVENTS("click 12; ");
    stop();
}

static void attribute_of_a_compiled_popup_says_whether_it_keeps_the_input(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_register_compiled_popup(NOBODY, 3, 0, false, "Saved.xml"));
    EXPECT_OK(dialogmanager_show_popup(NOBODY));
    run();
    events[0] = '\0';
    touch(HOME_OTHER);
    EXPECT_EVENTS("click 12; ");
    EXPECT_OK(dialogmanager_show_popup(QUESTION));
    run();
    events[0] = '\0';
    touch(HOME_OTHER);
    EXPECT_EVENTS("");
    stop();
}

void test_popups(void)
{
    popups_are_known_when_they_are_registered();
    the_greater_priority_wins();
    closing_hides_or_deletes();
    popup_with_a_time_closes_itself();
    built_popup_keeps_the_input_unless_switched_off();
    attribute_of_a_compiled_popup_says_whether_it_keeps_the_input();
}
