// SPDX-License-Identifier: MIT
// Where dialogs are while nobody sees them, and what becomes of their focus.
#include "Tests/LVGL/LVGLTest.h"

namespace
{
eC_UInt g_uiFocussed = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): for a handler of LVGL
lv_obj_t* g_pkParent = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): likewise

lv_obj_t* BuildLabel(lv_obj_t* pkParent, void*)
{
    g_pkParent = pkParent;
    lv_obj_t* pkScreen = lv_obj_create(pkParent);
    lv_obj_remove_style_all(pkScreen);
    lv_obj_set_size(pkScreen, LV_PCT(100), LV_PCT(100));
    lv_label_set_text(lv_label_create(pkScreen), "Label");
    return pkScreen;
}
} // namespace

class CHiddenDialogsTest : public CLVGLTest
{
protected:
    /** Makes screens from 1000 on with a button each, and shows one after the other. */
    void Climb(int iScreens)
    {
        for (int iScreen = 0; iScreen < iScreens; ++iScreen)
        {
            AddScreen(GetScreen(iScreen), {OBJ_1})->SetInvisible(true);
            Show(GetScreen(iScreen));
            m_pkBoard->Run(40);
        }
    }
    static ObjectHandle_t GetScreen(int iScreen) { return static_cast<ObjectHandle_t>(1000 + iScreen); }
};

TEST_F(CHiddenDialogsTest, KeptDialog_ComesBackWithoutBeingFocussedAgain)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    AddScreen(DLG_B, {OBJ_3});
    Show(DLG_A);
    SetFocus(OBJ_2);
    m_pkBoard->Run();
    g_uiFocussed = 0;
    lv_obj_add_event_cb(
        NativeOf(OBJ_2), [](lv_event_t*) { ++g_uiFocussed; }, LV_EVENT_FOCUSED, nullptr);

    Show(DLG_B);
    m_pkBoard->Run();
    EXPECT_EQ(NativeOf(OBJ_3), NativeFocus());
    Dialogs().Back(false);
    m_pkBoard->Run();

    EXPECT_EQ(NativeOf(OBJ_2), NativeFocus());
    EXPECT_TRUE(lv_obj_has_state(NativeOf(OBJ_2), LV_STATE_FOCUSED));
    EXPECT_EQ(0U, g_uiFocussed);
}

TEST_F(CHiddenDialogsTest, KeptDialogThatComesBackBelowAModalPopup_ShowsNoFocus)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    AddScreen(DLG_B, {OBJ_3});
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetModal(true);
    pkPopup->SetInvisible(true);
    new CGUIButton(pkPopup, OBJ_5);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Show(DLG_A);
    SetFocus(OBJ_2);
    m_pkBoard->Run();
    Show(DLG_B);
    m_pkBoard->Run();
    Dialogs().ShowPopup(POP_1);
    m_pkBoard->Run();

    Dialogs().Back(false);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_FALSE(lv_obj_has_state(NativeOf(OBJ_2), LV_STATE_FOCUSED));

    Dialogs().ClosePopup(POP_1);
    m_pkBoard->Run();
    EXPECT_TRUE(lv_obj_has_state(NativeOf(OBJ_2), LV_STATE_FOCUSED));
    EXPECT_EQ(NativeOf(OBJ_2), NativeFocus());
}

TEST_F(CHiddenDialogsTest, DialogThatStaysVisibleBelow_ShowsNoFocus)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    AddScreen(DLG_B, {OBJ_3});
    Show(DLG_A);
    SetFocus(OBJ_2);
    m_pkBoard->Run();
    Show(DLG_B, CGUIDialogManager::ODA_NOTHING);
    SetFocus(OBJ_3);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_FALSE(lv_obj_has_state(NativeOf(OBJ_2), LV_STATE_FOCUSED));
}

TEST_F(CHiddenDialogsTest, ManyKeptDialogs_LeaveTheScreenAndComeBack)
{
    Climb(40);
    EXPECT_GE(17U, lv_obj_get_child_count(lv_screen_active()));
    for (int iScreen = 38; iScreen >= 0; --iScreen)
    {
        Dialogs().Back(false);
        m_pkBoard->Run(40);
        EXPECT_TRUE(IsSeen(GetScreen(iScreen))) << iScreen;
        EXPECT_FALSE(IsSeen(GetScreen(iScreen + 1))) << iScreen;
        EXPECT_EQ("OBJ_1", FocusName());
        EXPECT_EQ(m_pkLVGL->GetNative(Focus()), NativeFocus());
    }
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CHiddenDialogsTest, ScreenDeletedWithManyKeptDialogs_IsMadeAgain)
{
    Climb(20);
    lv_obj_clean(lv_screen_active());
    lv_obj_t* pkOther = lv_obj_create(nullptr);
    lv_obj_t* pkOld = lv_screen_active();
    lv_screen_load(pkOther);
    lv_obj_delete(pkOld);
    ClearEvents();
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(GetScreen(19)));
    Dialogs().Back(false);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(GetScreen(18)));
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CHiddenDialogsTest, Builder_WorksWhereNothingIsDrawnAgain)
{
    CGUILVGLBuilder kBuilder(&BuildLabel, nullptr);
    m_pkLVGL->GetMirror().AddBuilder(DLG_A, kBuilder);
    Show(DLG_A);
    EXPECT_NE(lv_screen_active(), g_pkParent);
    EXPECT_EQ(nullptr, lv_obj_get_parent(g_pkParent));
    m_pkBoard->Run();
    EXPECT_EQ(lv_screen_active(), lv_obj_get_parent(NativeOf(DLG_A)));
    EXPECT_TRUE(IsSeen(DLG_A));
}

TEST_F(CHiddenDialogsTest, Dialog_HasFontAndRoomOfTheScreenThatShowsIt)
{
    lv_obj_set_style_text_font(lv_screen_active(), &lv_font_montserrat_24, 0);
    lv_obj_set_style_pad_left(lv_screen_active(), 20, 0);
    CGUILVGLBuilder kBuilder(&BuildLabel, nullptr);
    m_pkLVGL->GetMirror().AddBuilder(DLG_A, kBuilder);
    AddScreen(DLG_B, {OBJ_1});
    Show(DLG_A);
    m_pkBoard->Run();
    EXPECT_EQ(300, lv_obj_get_width(NativeOf(DLG_A)));
    EXPECT_EQ(lv_font_get_line_height(&lv_font_montserrat_24),
              lv_obj_get_height(lv_obj_get_child(NativeOf(DLG_A), 0)));
    Show(DLG_B);
    m_pkBoard->Run();
    lv_area_t kArea;
    lv_obj_get_coords(NativeOf(DLG_B), &kArea);
    EXPECT_EQ(0, kArea.x1);
    EXPECT_EQ(319, kArea.x2);
}

TEST_F(CHiddenDialogsTest, SecondDisplay_HasItsDialogs)
{
    m_pkDialogs.reset();
    m_pkLVGL.reset();
    lv_display_t* pkSecond = lv_display_create(64, 48);
    GUILVGLOptions_t kOptions;
    kOptions.m_pkDisplay = pkSecond;
    m_pkLVGL = std::make_unique<CGUILVGL>(kOptions, m_kUser);
    m_pkDialogs = std::make_unique<CGUIMirroredManager>(m_pkLVGL->GetMirror());
    CGUILVGLBuilder kBuilder(&BuildLabel, nullptr);
    m_pkLVGL->GetMirror().AddBuilder(DLG_A, kBuilder);
    Show(DLG_A);
    EXPECT_EQ(pkSecond, lv_obj_get_display(NativeOf(DLG_A)));
    m_pkLVGL->Turn();
    EXPECT_EQ(pkSecond, lv_obj_get_display(NativeOf(DLG_A)));
    EXPECT_EQ(m_pkBoard->m_pkDisplay, lv_display_get_default());
    m_pkDialogs.reset();
    DestroyRoot();
    m_pkLVGL.reset();
}
