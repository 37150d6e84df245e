/* SPDX-License-Identifier: MIT */
/* Switching, the way back, the history and the focus. */
#include "Tests/LVGL/FromC/Application.h"

static void show_quietly(dialogmanager_id_t id, dialogmanager_action_t action)
{
    EXPECT_OK(dialogmanager_show(id, action));
    run();
    events[0] = '\0';
}

static void a_switch_is_seen_in_the_next_turn(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_HIDE));
    EXPECT(dialogmanager_current() == MENU);
    EXPECT(is_seen(HOME));
    EXPECT(!is_seen(MENU));
    run();
    EXPECT(!is_seen(HOME));
    EXPECT(is_seen(MENU));
    EXPECT_OK(dialogmanager_back(false));
    EXPECT(is_seen(MENU));
    EXPECT_OK(dialogmanager_turn());
    EXPECT(!is_seen(MENU));
    EXPECT(is_seen(HOME));
    stop();
}

static void action_hide_keeps_what_was_replaced(void)
{
    lv_obj_t* home;
    start(NULL);
    home = dialogmanager_get_object(HOME);
    EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT_EVENTS("deactivated 1; added 2; activated 2; ");
    EXPECT_DIALOGS("current 2; history 1; focus 21; seen 2; ");
    EXPECT(dialogmanager_get_object(HOME) == home);
    EXPECT_OK(dialogmanager_back(false));
    run();
    EXPECT_EVENTS("deactivated 2; activated 1; left 2; for 1; ");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT(dialogmanager_get_object(HOME) == home);
    EXPECT(dialogmanager_get_object(MENU) != NULL);
    stop();
}

static void action_hide_all_hides_the_history(void)
{
    start(NULL);
    show_quietly(MENU, DIALOGMANAGER_ACTION_KEEP);
    EXPECT_DIALOGS("current 2; history 1; focus 11; seen 1; seen 2; ");
    EXPECT_OK(dialogmanager_show(DETAIL, DIALOGMANAGER_ACTION_HIDE_ALL));
    run();
    EXPECT_EVENTS("deactivated 1; deactivated 2; added 7; activated 7; ");
    EXPECT_DIALOGS("current 7; history 2; history 1; focus 71; seen 7; ");
    EXPECT(dialogmanager_get_object(HOME) != NULL);
    EXPECT(dialogmanager_get_object(MENU) != NULL);
    EXPECT_OK(dialogmanager_back(true));
    run();
    EXPECT_DIALOGS("current 2; history 1; focus 11; seen 1; seen 2; ");
    stop();
}

static void action_delete_deletes_what_was_replaced(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_DELETE));
    run();
    EXPECT_EVENTS("delete 1; added 2; activated 2; ");
    EXPECT_DIALOGS("current 2; history 1; focus 21; seen 2; ");
    EXPECT(dialogmanager_get_object(HOME) == NULL);
    EXPECT_OK(dialogmanager_back(true));
    run();
    EXPECT_EVENTS("delete 2; activated 1; left 2; for 1; ");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT(dialogmanager_get_object(MENU) == NULL);
    stop();
}

static void action_delete_all_deletes_the_visible_ones_of_the_history(void)
{
    start(NULL);
    show_quietly(SETTINGS, DIALOGMANAGER_ACTION_HIDE);
    show_quietly(MENU, DIALOGMANAGER_ACTION_KEEP);
    EXPECT_DIALOGS("current 2; history 3; history 1; focus 31; seen 2; seen 3; ");
    EXPECT_OK(dialogmanager_show(DETAIL, DIALOGMANAGER_ACTION_DELETE_ALL));
    run();
    EXPECT_EVENTS("delete 3; delete 2; added 7; activated 7; ");
    EXPECT_DIALOGS("current 7; history 2; history 3; history 1; focus 71; seen 7; ");
    EXPECT(dialogmanager_get_object(MENU) == NULL);
    EXPECT(dialogmanager_get_object(SETTINGS) == NULL);
    EXPECT(dialogmanager_get_object(HOME) != NULL); /* was hidden */
    EXPECT_OK(dialogmanager_back(true));
    run();
    EXPECT_DIALOGS("current 2; history 3; history 1; focus 31; seen 2; seen 3; ");
    stop();
}

static void action_keep_leaves_what_was_replaced_visible_below(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_KEEP));
    run();
    EXPECT_EVENTS("deactivated 1; added 2; activated 2; ");
    EXPECT_DIALOGS("current 2; history 1; focus 11; seen 1; seen 2; ");
    EXPECT(lv_obj_get_index(dialogmanager_get_object(HOME)) < lv_obj_get_index(dialogmanager_get_object(MENU)));
    stop();
}

static void a_refused_deletion_hides(void)
{
    start(NULL);
    kept = HOME;
    EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_DELETE));
    run();
    EXPECT_EVENTS("delete 1; deactivated 1; added 2; activated 2; ");
    EXPECT(dialogmanager_get_object(HOME) != NULL);
    EXPECT_DIALOGS("current 2; history 1; focus 21; seen 2; ");
    stop();
}

static void what_is_in_the_history_is_not_added_again(void)
{
    start(NULL);
    show_quietly(MENU, DIALOGMANAGER_ACTION_HIDE);
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT_EVENTS("deactivated 2; activated 1; ");
    EXPECT_DIALOGS("current 1; history 2; history 1; focus 11; seen 1; ");
    stop();
}

static void what_cannot_be_made_changes_nothing(void)
{
    start(NULL);
    EXPECT(dialogmanager_show(BROKEN, DIALOGMANAGER_ACTION_DELETE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() == 1);
    EXPECT(dialogmanager_show(NOBODY, DIALOGMANAGER_ACTION_DELETE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() == 1);
    run();
    EXPECT_EVENTS("");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT(dialogmanager_get_object(99) == NULL);
    stop();
}

static void handlers_may_delete_their_own_dialog(void)
{
    start(NULL);
    touch(HOME_MENU);
    EXPECT_OK(click_result);
    EXPECT_EVENTS("delete 1; added 2; activated 2; ");
    touch(MENU_BACK);
    EXPECT_OK(click_result);
    EXPECT_EVENTS("delete 2; activated 1; left 2; for 1; ");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    stop();
}

static void the_way_back_needs_a_history(void)
{
    start(NULL);
    EXPECT(dialogmanager_back(true) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_back_to(HOME, true) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_back_to(BROKEN, true) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT(dialogmanager_history(0) == 0);
    run();
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT_OK(dialogmanager_clear(0, true, true));
    EXPECT(dialogmanager_back(true) == DIALOGMANAGER_ERROR_UNKNOWN);
    stop();
}

static dialogmanager_id_t no_more_ids[] = {HOME_MENU, HOME_MENU, 0};

static void what_cannot_be_brought_back_is_an_error(void)
{
    const dialogmanager_id_t before = home_ids[1];
    start(NULL);
    show_quietly(MENU, DIALOGMANAGER_ACTION_DELETE);
    home_ids[1] = no_more_ids[1];
    EXPECT(dialogmanager_back(true) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() > 0);
    run();
    EXPECT_EVENTS("delete 2; last 0; left 2; for 0; ");
    EXPECT_DIALOGS("current 0; focus 0; ");
    EXPECT(dialogmanager_back(true) == DIALOGMANAGER_ERROR_UNKNOWN);
    home_ids[1] = before;
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_HIDE));
    show_quietly(MENU, DIALOGMANAGER_ACTION_DELETE);
    show_quietly(DETAIL, DIALOGMANAGER_ACTION_DELETE);
    home_ids[1] = no_more_ids[1];
    EXPECT(dialogmanager_back_to(HOME, true) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() > 0);
    home_ids[1] = before;
    EXPECT_DIALOGS("current 0; focus 0; ");
    stop();
}

static void back_to_shows_nothing_in_between(void)
{
    start(NULL);
    show_quietly(MENU, DIALOGMANAGER_ACTION_DELETE);
    show_quietly(SETTINGS, DIALOGMANAGER_ACTION_HIDE);
    show_quietly(DETAIL, DIALOGMANAGER_ACTION_HIDE);
    EXPECT_OK(dialogmanager_back_to(HOME, true));
    run();
    EXPECT_EVENTS("delete 7; left 7; for 1; delete 3; left 3; for 1; delete 2; left 2; for 1; activated 1; ");
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT(dialogmanager_get_object(MENU) == NULL);
    EXPECT(dialogmanager_get_object(SETTINGS) == NULL);

    show_quietly(MENU, DIALOGMANAGER_ACTION_HIDE);
    show_quietly(DETAIL, DIALOGMANAGER_ACTION_HIDE);
    EXPECT_OK(dialogmanager_back_to(HOME, false));
    run();
    EXPECT_EVENTS("deactivated 7; left 7; for 1; left 2; for 1; activated 1; ");
    EXPECT(dialogmanager_get_object(MENU) != NULL);
    EXPECT(dialogmanager_get_object(DETAIL) != NULL);
    stop();
}

static void history_is_shortened_to_its_oldest(void)
{
    start(NULL);
    show_quietly(MENU, DIALOGMANAGER_ACTION_HIDE);
    show_quietly(SETTINGS, DIALOGMANAGER_ACTION_HIDE);
    show_quietly(DETAIL, DIALOGMANAGER_ACTION_HIDE);
    EXPECT(dialogmanager_history_size() == 3);
    EXPECT(dialogmanager_history(0) == SETTINGS);
    EXPECT(dialogmanager_history(2) == HOME);
    EXPECT(dialogmanager_history(3) == 0);

    EXPECT_OK(dialogmanager_clear(2, true, false));
    run();
    EXPECT_DIALOGS("current 7; history 2; history 1; focus 71; seen 7; ");
    EXPECT(dialogmanager_get_object(SETTINGS) == NULL);
    EXPECT_OK(dialogmanager_clear(1, false, true));
    run();
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT(dialogmanager_get_object(DETAIL) != NULL);
    EXPECT(dialogmanager_get_object(MENU) != NULL);
    EXPECT_OK(dialogmanager_clear(0, true, true));
    run();
    EXPECT_DIALOGS("current 0; focus 0; ");
    EXPECT(dialogmanager_get_object(HOME) == NULL);
    stop();
}

static void focus_is_native_and_comes_back(void)
{
    start(NULL);
    EXPECT(dialogmanager_focus() == HOME_MENU);
    EXPECT(dialogmanager_set_focus(NOBODY) == DIALOGMANAGER_ERROR_UNKNOWN);
    EXPECT_OK(dialogmanager_set_focus(HOME_OTHER));
    run();
    EXPECT(dialogmanager_focus() == HOME_OTHER);
    EXPECT(lv_obj_has_state(dialogmanager_get_object(HOME_OTHER), LV_STATE_FOCUSED));
    press(LV_KEY_NEXT);
    EXPECT(dialogmanager_focus() == HOME_MENU);
    press(LV_KEY_PREV);
    EXPECT(dialogmanager_focus() == HOME_OTHER);
    show_quietly(SETTINGS, DIALOGMANAGER_ACTION_DELETE);
    EXPECT(dialogmanager_set_focus(SETTINGS_LEVEL) == DIALOGMANAGER_ERROR_UNKNOWN); /* a label */
    EXPECT(dialogmanager_set_focus(HOME_OTHER) == DIALOGMANAGER_ERROR_UNKNOWN);     /* of another dialog */
    EXPECT_OK(dialogmanager_back(true));
    run();
    EXPECT(dialogmanager_focus() == HOME_OTHER);
    EXPECT(lv_obj_has_state(dialogmanager_get_object(HOME_OTHER), LV_STATE_FOCUSED));
    EXPECT_OK(dialogmanager_clear(0, true, true));
    EXPECT(dialogmanager_focus() == 0);
    EXPECT(dialogmanager_set_focus(HOME_OTHER) == DIALOGMANAGER_ERROR_UNKNOWN);
    stop();
}

/* What the focus is given for the way back is no identifier that the application may choose. */
static void focus_without_an_identifier_comes_back(void)
{
    lv_obj_t* first;
    lv_obj_t* second;
    start(NULL);
    show_quietly(ANONYMOUS, DIALOGMANAGER_ACTION_DELETE);
    first = lv_obj_get_child(dialogmanager_get_object(ANONYMOUS), 1);
    second = lv_obj_get_child(dialogmanager_get_object(ANONYMOUS), 2);
    press(LV_KEY_NEXT);
    EXPECT(lv_obj_has_state(second, LV_STATE_FOCUSED));
    EXPECT_DIALOGS("current 8; history 1; focus 0; seen 8; ");
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT_EVENTS("deactivated 8; activated 1; ");
    EXPECT(lv_obj_get_child_count(dialogmanager_get_object(HOME)) == 2);
    EXPECT(is_seen(HOME_MENU));
    EXPECT_OK(dialogmanager_back(true));
    run();
    EXPECT(lv_obj_has_state(second, LV_STATE_FOCUSED));
    press(LV_KEY_PREV);
    EXPECT(lv_obj_has_state(first, LV_STATE_FOCUSED));
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    run();
    press(LV_KEY_NEXT);
    EXPECT(dialogmanager_focus() == WARNING_OK);
    EXPECT_OK(dialogmanager_close_popup(WARNING));
    run();
    EXPECT(lv_obj_has_state(first, LV_STATE_FOCUSED));
    EXPECT_DIALOGS("current 8; history 1; focus 0; seen 8; ");
    stop();
}

void test_dialogs(void)
{
    a_switch_is_seen_in_the_next_turn();
    action_hide_keeps_what_was_replaced();
    action_hide_all_hides_the_history();
    action_delete_deletes_what_was_replaced();
    action_delete_all_deletes_the_visible_ones_of_the_history();
    action_keep_leaves_what_was_replaced_visible_below();
    a_refused_deletion_hides();
    what_is_in_the_history_is_not_added_again();
    what_cannot_be_made_changes_nothing();
    handlers_may_delete_their_own_dialog();
    the_way_back_needs_a_history();
    what_cannot_be_brought_back_is_an_error();
    back_to_shows_nothing_in_between();
    history_is_shortened_to_its_oldest();
    focus_is_native_and_comes_back();
    focus_without_an_identifier_comes_back();
}
