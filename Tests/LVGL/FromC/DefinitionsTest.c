/* SPDX-License-Identifier: MIT */
/* What is registered, and what is refused. */
#include "Tests/LVGL/FromC/Application.h"

static void arguments_are_checked(void)
{
    const dialogmanager_result_t bad = DIALOGMANAGER_ERROR_ARGUMENT;
    const dialogmanager_id_t ids[] = {0, -1, DIALOGMANAGER_GREATEST_ID + 1};
    size_t index;
    start(NULL);
    for (index = 0; index < sizeof(ids) / sizeof(ids[0]); ++index)
    {
        EXPECT(dialogmanager_register_dialog(ids[index], build, menu_ids) == bad);
        EXPECT(dialogmanager_register_compiled_dialog(ids[index], "Settings.xml") == bad);
        EXPECT(dialogmanager_register_popup(ids[index], 5, 0, true, build, warning_ids) == bad);
        EXPECT(dialogmanager_register_compiled_popup(ids[index], 5, 0, true, "Saved.xml") == bad);
        EXPECT(dialogmanager_identify(lv_screen_active(), ids[index]) == bad);
        EXPECT(dialogmanager_show(ids[index], DIALOGMANAGER_ACTION_HIDE) == bad);
        EXPECT(dialogmanager_back_to(ids[index], true) == DIALOGMANAGER_ERROR_UNKNOWN);
        EXPECT(dialogmanager_show_popup(ids[index]) == DIALOGMANAGER_ERROR_UNKNOWN);
        EXPECT(dialogmanager_close_popup(ids[index]) == DIALOGMANAGER_ERROR_UNKNOWN);
        EXPECT(dialogmanager_set_popup_modal(ids[index], true) == DIALOGMANAGER_ERROR_UNKNOWN);
        EXPECT(dialogmanager_set_focus(ids[index]) == DIALOGMANAGER_ERROR_UNKNOWN);
        EXPECT(!dialogmanager_is_popup_shown(ids[index]));
        EXPECT(dialogmanager_get_object(ids[index]) == NULL);
    }
    EXPECT(dialogmanager_register_dialog(NOBODY, NULL, NULL) == bad);
    EXPECT(dialogmanager_register_compiled_dialog(NOBODY, "") == bad);
    EXPECT(dialogmanager_register_compiled_dialog(NOBODY, NULL) == bad);
    EXPECT(dialogmanager_register_popup(NOBODY, 0, 0, true, build, warning_ids) == bad);
    EXPECT(dialogmanager_register_popup(NOBODY, 10, 0, true, build, warning_ids) == bad);
    EXPECT(dialogmanager_register_popup(NOBODY, 5, 0, true, NULL, NULL) == bad);
    EXPECT(dialogmanager_register_compiled_popup(NOBODY, 0, 0, true, "Saved.xml") == bad);
    EXPECT(dialogmanager_register_compiled_popup(NOBODY, 10, 0, true, "Saved.xml") == bad);
    EXPECT(dialogmanager_register_compiled_popup(NOBODY, 3, 0, true, "") == bad);
    EXPECT(dialogmanager_register_compiled_popup(NOBODY, 3, 0, true, NULL) == bad);
    EXPECT(dialogmanager_set_tables(NULL) == bad);
    EXPECT(dialogmanager_identify(NULL, 99) == bad);
    EXPECT(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_HIDE - 1) == bad);
    EXPECT(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP + 1) == bad);
    /* None of them has registered anything. */
    EXPECT_OK(dialogmanager_register_popup(NOBODY, 9, 0, true, build, warning_ids));
    EXPECT_OK(dialogmanager_register_compiled_popup(78, 1, 0, true, "Saved.xml"));
    EXPECT_OK(dialogmanager_register_dialog(DIALOGMANAGER_GREATEST_ID, build, menu_ids));
    run();
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT_EVENTS("");
    stop();
}

static void identifier_is_registered_once(void)
{
    const dialogmanager_result_t exists = DIALOGMANAGER_ERROR_EXISTS;
    const dialogmanager_id_t ids[] = {HOME, SETTINGS, WARNING, SAVED};
    size_t index;
    start(NULL);
    for (index = 0; index < sizeof(ids) / sizeof(ids[0]); ++index)
    {
        EXPECT(dialogmanager_register_dialog(ids[index], build, menu_ids) == exists);
        EXPECT(dialogmanager_register_compiled_dialog(ids[index], "Anonymous.xml") == exists);
        EXPECT(dialogmanager_register_popup(ids[index], 5, 0, true, build, menu_ids) == exists);
        EXPECT(dialogmanager_register_compiled_popup(ids[index], 5, 0, true, "Question.xml") == exists);
    }
    EXPECT(dialogmanager_set_tables(&ckDialogs) == exists);
    /* Each is still what it was. */
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_DELETE));
    EXPECT_OK(dialogmanager_show_popup(SAVED));
    EXPECT(dialogmanager_show_popup(HOME) == DIALOGMANAGER_ERROR_UNKNOWN);
    run();
    EXPECT(is_seen(SETTINGS_BACK));
    EXPECT(is_seen(SAVED));
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    EXPECT_OK(dialogmanager_back(true));
    run();
    EXPECT(is_seen(WARNING_OK));
    EXPECT(is_seen(HOME_MENU));
    stop();
}

static lv_obj_t* build_twice(lv_obj_t* parent, void* user_data)
{
    lv_obj_t* screen = lv_obj_create(parent);
    lv_obj_t* button = lv_button_create(screen);
    lv_obj_t* unnamed = lv_button_create(screen);
    (void)user_data;
    EXPECT_OK(dialogmanager_identify(button, 101));
    EXPECT(lv_obj_get_group(button) != NULL);
    EXPECT(lv_obj_get_group(button) == lv_group_get_default());
    EXPECT(lv_obj_get_group(unnamed) == lv_group_get_default());
    EXPECT(dialogmanager_identify(unnamed, 101) == DIALOGMANAGER_ERROR_FAILED);
    /* What cannot have the focus by itself gets into the group as well. */
    EXPECT_OK(dialogmanager_identify(lv_label_create(screen), 102));
    EXPECT(lv_obj_get_group(lv_obj_get_child(screen, 2)) == lv_group_get_default());
    return screen;
}

static void objects_are_named_in_a_builder_once(void)
{
    start(NULL);
    EXPECT(dialogmanager_identify(lv_screen_active(), 99) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() == 1);
    EXPECT_OK(dialogmanager_register_dialog(NOBODY, build_twice, NULL));
    EXPECT(dialogmanager_get_object(101) == NULL);
    EXPECT_OK(dialogmanager_show(NOBODY, DIALOGMANAGER_ACTION_HIDE));
    EXPECT(take_errors() == 1);
    EXPECT(lv_obj_check_type(dialogmanager_get_object(101), &lv_button_class));
    stop();
}

static void what_is_not_in_the_tables_cannot_be_shown(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_register_compiled_dialog(NOBODY, "Nobody.xml"));
    EXPECT(dialogmanager_show(NOBODY, DIALOGMANAGER_ACTION_DELETE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() > 0);
    EXPECT_OK(dialogmanager_register_compiled_dialog(78, "Settings.txt"));
    EXPECT(dialogmanager_show(78, DIALOGMANAGER_ACTION_DELETE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() > 0);
    EXPECT_OK(dialogmanager_register_compiled_popup(79, 3, 0, true, "Nobody.xml"));
    EXPECT(dialogmanager_show_popup(79) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() > 0);
    run();
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    EXPECT_EVENTS("");
    stop();
}

void test_definitions(void)
{
    arguments_are_checked();
    identifier_is_registered_once();
    objects_are_named_in_a_builder_once();
    what_is_not_in_the_tables_cannot_be_shown();
}
