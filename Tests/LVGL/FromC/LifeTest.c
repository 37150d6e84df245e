/* SPDX-License-Identifier: MIT */
/* The life of the dialog manager, and where its dialogs are. */
#include "Tests/LVGL/FromC/Application.h"

#include <string.h>

static const dialogmanager_config_t defaults;

static void nothing_works_without_a_dialog_manager(void)
{
    static lv_style_t style;
    const dialogmanager_result_t no = DIALOGMANAGER_ERROR_STATE;
    EXPECT(dialogmanager_destroy() == no);
    EXPECT(dialogmanager_set_hooks(&hooks) == no);
    EXPECT(dialogmanager_set_listener(&listener) == no);
    EXPECT(dialogmanager_set_contents(&contents) == no);
    EXPECT(dialogmanager_update_texts() == no);
    EXPECT(dialogmanager_add_style("Button", &style, 0) == no);
    EXPECT(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_FADE, 100, false) == no);
    EXPECT(dialogmanager_turn() == no);
    EXPECT(dialogmanager_register_dialog(HOME, build, home_ids) == no);
    EXPECT(dialogmanager_set_tables(&ckDialogs) == no);
    EXPECT(dialogmanager_register_compiled_dialog(SETTINGS, "Settings.xml") == no);
    EXPECT(dialogmanager_register_popup(WARNING, 5, 0, true, build, warning_ids) == no);
    EXPECT(dialogmanager_register_compiled_popup(SAVED, 3, 300, false, "Saved.xml") == no);
    EXPECT(dialogmanager_identify(NULL, HOME_MENU) == no);
    EXPECT(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP) == no);
    EXPECT(dialogmanager_back(true) == no);
    EXPECT(dialogmanager_back_to(HOME, true) == no);
    EXPECT(dialogmanager_clear(0, true, true) == no);
    EXPECT(dialogmanager_current() == 0);
    EXPECT(dialogmanager_history_size() == 0);
    EXPECT(dialogmanager_history(0) == 0);
    EXPECT(dialogmanager_show_popup(WARNING) == no);
    EXPECT(dialogmanager_close_popup(WARNING) == no);
    EXPECT(!dialogmanager_is_popup_shown(WARNING));
    EXPECT(dialogmanager_set_popup_modal(WARNING, false) == no);
    EXPECT(dialogmanager_focus() == 0);
    EXPECT(dialogmanager_set_focus(HOME_MENU) == no);
    EXPECT(dialogmanager_get_object(HOME) == NULL);
}

static void there_is_one_and_it_needs_a_display(void)
{
    lv_init();
    EXPECT(dialogmanager_create(NULL) == DIALOGMANAGER_ERROR_STATE);
    lv_deinit();
    start_lvgl();
    EXPECT_OK(dialogmanager_create(NULL));
    EXPECT(dialogmanager_create(NULL) == DIALOGMANAGER_ERROR_STATE);
    EXPECT_OK(dialogmanager_destroy());
    EXPECT(dialogmanager_destroy() == DIALOGMANAGER_ERROR_STATE);
    EXPECT_OK(dialogmanager_create(NULL));
    stop();
}

static void destruction_deletes_everything_without_hooks(void)
{
    uint32_t children;
    start(NULL);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    EXPECT_OK(dialogmanager_show_popup(WARNING));
    run();
    events[0] = '\0';
    EXPECT_OK(dialogmanager_destroy());
    EXPECT_EVENTS("");
    children = lv_obj_get_child_count(lv_screen_active());
    EXPECT(children == 0);
    /* Nothing is left from before. */
    EXPECT_OK(dialogmanager_create(NULL));
    EXPECT(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT_DIALOGS("current 0; focus 0; ");
    register_all();
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP));
    stop();
}

static void what_is_given_is_copied(void)
{
    dialogmanager_config_t config = defaults;
    dialogmanager_hooks_t own_hooks = hooks;
    dialogmanager_listener_t own_listener = listener;
    dialogmanager_contents_t own_contents = contents;
    char path[] = "Settings.xml";
    start_lvgl();
    config.width = WIDTH / 2;
    config.height = HEIGHT / 2;
    EXPECT_OK(dialogmanager_create(&config));
    memset(&config, 0xFF, sizeof(config));
    EXPECT_OK(dialogmanager_set_hooks(&own_hooks));
    memset(&own_hooks, 0xFF, sizeof(own_hooks));
    EXPECT_OK(dialogmanager_set_listener(&own_listener));
    memset(&own_listener, 0xFF, sizeof(own_listener));
    EXPECT_OK(dialogmanager_set_contents(&own_contents));
    memset(&own_contents, 0xFF, sizeof(own_contents));
    EXPECT_OK(dialogmanager_set_tables(&ckDialogs));
    EXPECT_OK(dialogmanager_register_compiled_dialog(SETTINGS, path));
    memset(path, 'x', sizeof(path) - 1);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_KEEP));
    run();
    EXPECT_EVENTS("added 3; activated 3; ");
    touch(SETTINGS_BACK);
    EXPECT_EVENTS("pressed 31; ");
    stop();
}

static void units_and_sizes_are_those_of_the_configuration(void)
{
    dialogmanager_config_t config = defaults;
    int32_t height_of_font;
    start(NULL);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT(lv_obj_get_width(dialogmanager_get_object(SETTINGS_BACK)) == 100);
    EXPECT(lv_obj_get_height(dialogmanager_get_object(SETTINGS_BACK)) == 30);
    height_of_font = lv_obj_get_height(dialogmanager_get_object(SETTINGS_OK));
    EXPECT(height_of_font == lv_font_get_line_height(lv_font_get_default()));
    stop();

    config.width = WIDTH / 2;
    config.height = HEIGHT / 3;
    start(&config);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT(lv_obj_get_width(dialogmanager_get_object(SETTINGS_BACK)) == 200);
    EXPECT(lv_obj_get_height(dialogmanager_get_object(SETTINGS_BACK)) == 90);
    stop();

    config = defaults;
    config.button_width = 123;
    config.button_height = 45;
    start(&config);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT(lv_obj_get_width(dialogmanager_get_object(SETTINGS_OK)) == 123);
    EXPECT(lv_obj_get_height(dialogmanager_get_object(SETTINGS_OK)) == 45);
    stop();

    config = defaults;
    config.font = &lv_font_montserrat_24;
    start(&config);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT(lv_obj_get_height(dialogmanager_get_object(SETTINGS_OK)) ==
           lv_font_get_line_height(&lv_font_montserrat_24));
    stop();
}

static void dialogs_are_where_the_configuration_says(void)
{
    dialogmanager_config_t config = defaults;
    start_lvgl();
    config.display = add_display();
    EXPECT_OK(dialogmanager_create(&config));
    register_all();
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP));
    run();
    EXPECT(lv_obj_get_display(dialogmanager_get_object(HOME)) == config.display);
    stop();

    start_lvgl();
    config = defaults;
    config.parent = lv_obj_create(lv_screen_active());
    EXPECT_OK(dialogmanager_create(&config));
    register_all();
    EXPECT_OK(dialogmanager_show(HOME, DIALOGMANAGER_ACTION_KEEP));
    run();
    EXPECT(lv_obj_get_parent(dialogmanager_get_object(HOME)) == config.parent);
    stop();
}

static void trace_goes_where_the_configuration_says(void)
{
    dialogmanager_config_t config = defaults;
    start_lvgl();
    config.log_to_lvgl = true;
    EXPECT_OK(dialogmanager_create(&config));
    EXPECT(dialogmanager_show(NOBODY, DIALOGMANAGER_ACTION_KEEP) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() == 1);
    EXPECT_OK(dialogmanager_destroy());
    EXPECT_OK(dialogmanager_create(NULL));
    EXPECT(dialogmanager_show(NOBODY, DIALOGMANAGER_ACTION_KEEP) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() == 0);
    stop();
}

static void hooks_listener_and_contents_may_be_absent(void)
{
    static const dialogmanager_hooks_t no_hooks;
    static const dialogmanager_listener_t no_listener;
    static const dialogmanager_contents_t no_contents;
    int absent;
    for (absent = 0; absent < 2; ++absent)
    {
        start(NULL);
        EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_DELETE));
        run();
        events[0] = '\0';
        EXPECT_OK(dialogmanager_set_hooks(absent == 0 ? NULL : &no_hooks));
        EXPECT_OK(dialogmanager_set_listener(absent == 0 ? NULL : &no_listener));
        EXPECT_OK(dialogmanager_set_contents(absent == 0 ? NULL : &no_contents));
        run();
        EXPECT(strcmp(text_of_button(SETTINGS_BACK), "") == 0);
        touch(SETTINGS_BACK);
        touch(SETTINGS_SOUND);
        EXPECT_OK(dialogmanager_show_popup(WARNING));
        EXPECT_OK(dialogmanager_close_popup(WARNING));
        EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_HIDE));
        EXPECT_OK(dialogmanager_back_to(HOME, true));
        EXPECT_EVENTS("");
        EXPECT(dialogmanager_get_object(SETTINGS) == NULL);
        stop();
    }
}

void test_life(void)
{
    nothing_works_without_a_dialog_manager();
    there_is_one_and_it_needs_a_display();
    destruction_deletes_everything_without_hooks();
    what_is_given_is_copied();
    units_and_sizes_are_those_of_the_configuration();
    dialogs_are_where_the_configuration_says();
    trace_goes_where_the_configuration_says();
    hooks_listener_and_contents_may_be_absent();
}
