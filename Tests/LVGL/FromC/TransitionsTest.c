/* SPDX-License-Identifier: MIT */
/* Transitions between dialogs. */
#include "Tests/LVGL/FromC/Application.h"

enum
{
    TIME = 100 /* less than run takes */
};

/* Where the two dialogs are when a transition begins, in widths and heights of the display. */
typedef struct
{
    dialogmanager_transition_t transition;
    int new_x;
    int new_y;
    int old_x; /* when it ends */
    int old_y;
    bool is_old_above;
} case_t;

static const case_t cases[] = {
    {DIALOGMANAGER_TRANSITION_OVER_LEFT, 1, 0, 0, 0, false},
    {DIALOGMANAGER_TRANSITION_OVER_RIGHT, -1, 0, 0, 0, false},
    {DIALOGMANAGER_TRANSITION_OVER_UP, 0, 1, 0, 0, false},
    {DIALOGMANAGER_TRANSITION_OVER_DOWN, 0, -1, 0, 0, false},
    {DIALOGMANAGER_TRANSITION_MOVE_LEFT, 1, 0, -1, 0, false},
    {DIALOGMANAGER_TRANSITION_MOVE_RIGHT, -1, 0, 1, 0, false},
    {DIALOGMANAGER_TRANSITION_MOVE_UP, 0, 1, 0, -1, false},
    {DIALOGMANAGER_TRANSITION_MOVE_DOWN, 0, -1, 0, 1, false},
    {DIALOGMANAGER_TRANSITION_OUT_LEFT, 0, 0, -1, 0, true},
    {DIALOGMANAGER_TRANSITION_OUT_RIGHT, 0, 0, 1, 0, true},
    {DIALOGMANAGER_TRANSITION_OUT_UP, 0, 0, 0, -1, true},
    {DIALOGMANAGER_TRANSITION_OUT_DOWN, 0, 0, 0, 1, true},
    {DIALOGMANAGER_TRANSITION_FADE, 0, 0, 0, 0, false},
};

static int sign(int32_t number)
{
    return number > 0 ? 1 : number < 0 ? -1 : 0;
}

static void expect_begin(const case_t* expected, const lv_obj_t* old)
{
    const lv_obj_t* entering = dialogmanager_get_object(MENU);
    EXPECT(lv_obj_get_style_translate_x(entering, LV_PART_MAIN) == expected->new_x * WIDTH);
    EXPECT(lv_obj_get_style_translate_y(entering, LV_PART_MAIN) == expected->new_y * HEIGHT);
    EXPECT((lv_obj_get_index(old) > lv_obj_get_index(entering)) == expected->is_old_above);
    EXPECT((lv_obj_get_style_opa(entering, LV_PART_MAIN) == LV_OPA_COVER) ==
           (expected->transition != DIALOGMANAGER_TRANSITION_FADE));
}

static void expect_middle(const case_t* expected, const lv_obj_t* old)
{
    const lv_obj_t* entering = dialogmanager_get_object(MENU);
    EXPECT(sign(lv_obj_get_style_translate_x(entering, LV_PART_MAIN)) == expected->new_x);
    EXPECT(sign(lv_obj_get_style_translate_y(entering, LV_PART_MAIN)) == expected->new_y);
    EXPECT(sign(lv_obj_get_style_translate_x(old, LV_PART_MAIN)) == expected->old_x);
    EXPECT(sign(lv_obj_get_style_translate_y(old, LV_PART_MAIN)) == expected->old_y);
    EXPECT(is_seen(HOME));
}

static void expect_end(const lv_obj_t* old)
{
    const lv_obj_t* entering = dialogmanager_get_object(MENU);
    EXPECT_DIALOGS("current 2; history 1; focus 21; seen 2; ");
    EXPECT(lv_obj_get_style_translate_x(entering, LV_PART_MAIN) == 0);
    EXPECT(lv_obj_get_style_translate_y(entering, LV_PART_MAIN) == 0);
    EXPECT(lv_obj_get_style_opa(entering, LV_PART_MAIN) == LV_OPA_COVER);
    EXPECT(lv_obj_get_style_translate_x(old, LV_PART_MAIN) == 0);
    EXPECT(lv_obj_get_style_translate_y(old, LV_PART_MAIN) == 0);
}

static void each_kind_moves_as_it_says(void)
{
    size_t index;
    EXPECT(sizeof(cases) / sizeof(cases[0]) == DIALOGMANAGER_TRANSITION_FADE);
    for (index = 0; index < sizeof(cases) / sizeof(cases[0]); ++index)
    {
        const lv_obj_t* old;
        start(NULL);
        old = dialogmanager_get_object(HOME);
        EXPECT_OK(dialogmanager_set_transition((int)cases[index].transition, 3 * TIME, false));
        EXPECT_OK(dialogmanager_show(MENU, DIALOGMANAGER_ACTION_HIDE));
        EXPECT_OK(dialogmanager_turn());
        expect_begin(&cases[index], old);
        run();
        expect_middle(&cases[index], old);
        run();
        run();
        expect_end(old);
        stop();
    }
}

/* @return whether the next switch has a transition */
static bool is_next_moved(dialogmanager_id_t id)
{
    bool is_moved;
    EXPECT_OK(dialogmanager_show(id, DIALOGMANAGER_ACTION_HIDE));
    EXPECT_OK(dialogmanager_turn());
    is_moved = lv_obj_get_style_translate_x(dialogmanager_get_object(id), LV_PART_MAIN) != 0;
    run();
    run();
    EXPECT(is_seen(id));
    return is_moved;
}

static void transition_is_of_all_switches_or_of_one(void)
{
    const dialogmanager_result_t bad = DIALOGMANAGER_ERROR_ARGUMENT;
    start(NULL);
    EXPECT(!is_next_moved(MENU));
    EXPECT_OK(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_MOVE_LEFT, TIME, false));
    EXPECT(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_NONE - 1, TIME, false) == bad);
    EXPECT(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_FADE + 1, TIME, false) == bad);
    EXPECT(is_next_moved(DETAIL));
    EXPECT(is_next_moved(HOME));
    EXPECT_OK(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_MOVE_LEFT, TIME, true));
    EXPECT(is_next_moved(MENU));
    EXPECT(!is_next_moved(DETAIL));
    EXPECT_OK(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_MOVE_LEFT, 0, false));
    EXPECT(!is_next_moved(HOME));
    EXPECT_OK(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_MOVE_LEFT, TIME, false));
    EXPECT_OK(dialogmanager_set_transition(DIALOGMANAGER_TRANSITION_NONE, TIME, false));
    EXPECT(!is_next_moved(MENU));
    stop();
}

void test_transitions(void)
{
    each_kind_moves_as_it_says();
    transition_is_of_all_switches_or_of_one();
}
