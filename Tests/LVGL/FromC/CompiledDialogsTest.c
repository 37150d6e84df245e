/* SPDX-License-Identifier: MIT */
/* Dialogs from tables: texts, values, styles, and what the user does. */
#include "Tests/LVGL/FromC/Application.h"

#include <string.h>

static void start_with_settings(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    run();
    events[0] = '\0';
}

static void texts_and_values_come_from_the_application(void)
{
    start_with_settings();
    EXPECT(strcmp(text_of_button(SETTINGS), "Settings") == 0);
    EXPECT(strcmp(text_of_button(SETTINGS_BACK), "Back") == 0);
    EXPECT(strcmp(lv_label_get_text(dialogmanager_get_object(SETTINGS_LEVEL)), "high") == 0);
    EXPECT(lv_bar_get_value(dialogmanager_get_object(SETTINGS_BAR)) == 7);
    is_german = true;
    run();
    EXPECT(strcmp(text_of_button(SETTINGS_BACK), "Back") == 0);
    EXPECT_OK(dialogmanager_update_texts());
    EXPECT_OK(dialogmanager_turn());
    EXPECT(strcmp(text_of_button(SETTINGS_BACK), "Zur\xc3\xbc\x63k") == 0);
    stop();
}

static void names_that_the_application_does_not_know_are_errors(void)
{
    start(NULL);
    EXPECT_OK(dialogmanager_set_contents(NULL));
    EXPECT(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE) == DIALOGMANAGER_ERROR_FAILED);
    EXPECT(take_errors() > 0);
    EXPECT_DIALOGS("current 1; focus 11; seen 1; ");
    stop();
}

static void listener_learns_what_the_user_does(void)
{
    start_with_settings();
    touch(SETTINGS_BACK);
    EXPECT_EVENTS("pressed 31; ");
    touch(SETTINGS_SOUND);
    EXPECT_EVENTS("changed 32; Sound 1; ");
    EXPECT_OK(dialogmanager_set_focus(SETTINGS_NAME));
    run();
    press('a');
    EXPECT_EVENTS("changed 35; a 0; ");
    press(LV_KEY_ENTER);
    EXPECT_EVENTS("pressed 35; ");
    stop();
}

static void styles_have_names_and_selectors(void)
{
    static lv_style_t style;
    static lv_style_t pressed_style;
    lv_style_init(&style);
    lv_style_set_radius(&style, 3);
    lv_style_init(&pressed_style);
    lv_style_set_radius(&pressed_style, 7);
    start(NULL);
    EXPECT(dialogmanager_add_style(NULL, &style, 0) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT(dialogmanager_add_style("Button", NULL, 0) == DIALOGMANAGER_ERROR_ARGUMENT);
    EXPECT_OK(dialogmanager_add_style("Button", &style, 0));
    EXPECT_OK(dialogmanager_add_style("Button", &pressed_style, (lv_style_selector_t)LV_STATE_PRESSED));
    EXPECT_OK(dialogmanager_show(SETTINGS, DIALOGMANAGER_ACTION_HIDE));
    run();
    EXPECT(lv_obj_get_style_radius(dialogmanager_get_object(SETTINGS_BACK), LV_PART_MAIN) == 3);
    lv_obj_add_state(dialogmanager_get_object(SETTINGS_BACK), LV_STATE_PRESSED);
    EXPECT(lv_obj_get_style_radius(dialogmanager_get_object(SETTINGS_BACK), LV_PART_MAIN) == 7);
    stop();
    lv_style_reset(&style);
    lv_style_reset(&pressed_style);
}

void test_compiled_dialogs(void)
{
    texts_and_values_come_from_the_application();
    names_that_the_application_does_not_know_are_errors();
    listener_learns_what_the_user_does();
    styles_have_names_and_selectors();
}
