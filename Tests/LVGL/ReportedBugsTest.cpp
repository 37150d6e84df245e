// SPDX-License-Identifier: MIT
// What goes wrong with screens that are managed by hand in LVGL, each as its users report it.
#include "Tests/LVGL/LVGLTest.h"

namespace
{
struct Screen_t
{
    CGUILVGL* m_pkLVGL = nullptr;
    std::vector<ObjectHandle_t> m_aeButtons;
    lv_event_cb_t m_pfnClick = nullptr;
    void* m_pClicked = nullptr;
    lv_timer_cb_t m_pfnTimer = nullptr;
    eC_Bool m_bFails = false;
    eC_UInt m_uiBuilt = 0;
};

/** An application's own screen, as its users write it. */
lv_obj_t* BuildScreen(lv_obj_t* pkParent, void* pUserData)
{
    auto& kScreen = *static_cast<Screen_t*>(pUserData);
    ++kScreen.m_uiBuilt;
    lv_obj_t* pkScreen = lv_obj_create(pkParent);
    lv_obj_set_size(pkScreen, LV_PCT(100), LV_PCT(100));
    lv_obj_set_flex_flow(pkScreen, LV_FLEX_FLOW_COLUMN);
    for (const ObjectHandle_t eButton : kScreen.m_aeButtons)
    {
        lv_obj_t* pkButton = lv_button_create(pkScreen);
        lv_label_set_text(lv_label_create(pkButton), NameOfHandle(eButton).c_str());
        kScreen.m_pkLVGL->Identify(pkButton, eButton);
        if (kScreen.m_pfnClick != nullptr)
        {
            lv_obj_add_event_cb(pkButton, kScreen.m_pfnClick, LV_EVENT_CLICKED, kScreen.m_pClicked);
        }
    }
    if (kScreen.m_bFails)
    {
        // A builder should delete what it has made; this one forgets.
        return nullptr;
    }
    if (kScreen.m_pfnTimer != nullptr)
    {
        lv_timer_t* pkTimer = lv_timer_create(kScreen.m_pfnTimer, 10, pkScreen);
        lv_obj_add_event_cb(
            pkScreen,
            [](lv_event_t* pkEvent)
            { lv_timer_delete(static_cast<lv_timer_t*>(lv_event_get_user_data(pkEvent))); },
            LV_EVENT_DELETE, pkTimer);
    }
    return pkScreen;
}
} // namespace

class CReportedBugsTest : public CLVGLTest
{
protected:
    CReportedBugsTest()
    {
        m_kHome.m_pkLVGL = m_pkLVGL.get();
        m_kHome.m_aeButtons = {OBJ_1, OBJ_2};
        m_kMenu.m_pkLVGL = m_pkLVGL.get();
        m_kMenu.m_aeButtons = {OBJ_3, OBJ_4};
        m_kHint.m_pkLVGL = m_pkLVGL.get();
        m_kHint.m_aeButtons = {OBJ_5};
        m_pkLVGL->GetMirror().AddBuilder(DLG_A, m_kBuildsHome);
        m_pkLVGL->GetMirror().AddBuilder(DLG_B, m_kBuildsMenu);
        m_pkLVGL->GetMirror().AddBuilder(POP_1, m_kBuildsHint);
        Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "");
        Show(DLG_A);
        m_pkBoard->Run();
    }

    void DoSomething(CRandom& kRandom) override
    {
        if (kRandom.Below(30) == 0)
        {
            lv_obj_clean(lv_screen_active());
        }
        else
        {
            m_pkLVGL->SetTransition(static_cast<EGUITransition>(kRandom.Below(TRANSITION_FADE + 1)),
                                    kRandom.Below(3) * 20);
        }
    }

    void EndEverything() override { m_pkLVGL->SetTransition(TRANSITION_NONE, 0); }

    void LetTimePass(CRandom& kRandom) override
    {
        if (kRandom.Below(3) != 0)
        {
            m_pkBoard->Run(kRandom.Below(4) == 0 ? 35 : 5);
        }
    }

    Screen_t m_kHome;
    Screen_t m_kMenu;
    Screen_t m_kHint;
    CGUILVGLBuilder m_kBuildsHome{&BuildScreen, &m_kHome};
    CGUILVGLBuilder m_kBuildsMenu{&BuildScreen, &m_kMenu};
    CGUILVGLBuilder m_kBuildsHint{&BuildScreen, &m_kHint};
};

TEST_F(CReportedBugsTest, DeletionOfTheActiveScreen_ShowsTheNextOne)
{
    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(DLG_B));
    EXPECT_EQ(nullptr, Object(DLG_A));
    delete Object(DLG_B);
    m_pkBoard->Run();
    EXPECT_NE(nullptr, lv_screen_active());
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CReportedBugsTest, ScreenOfTheApplicationDeletedWithTheDialogs_IsAnErrorForEachAndTheyComeBack)
{
    lv_obj_t* pkOld = lv_screen_active();
    lv_screen_load(lv_obj_create(nullptr));
    lv_obj_delete(pkOld);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ(2U, m_kHome.m_uiBuilt);
    EXPECT_EQ("ERROR: CGUIMirror::OnNativeDeleted: The native object with ID DLG_A was deleted by something "
              "else.\\n\n",
              TakeErrors());
}

TEST_F(CReportedBugsTest, DeletionInItsOwnClickHandler_IsSafe)
{
    Restart();
    m_kMenu.m_pkLVGL = m_pkLVGL.get();
    m_kMenu.m_pfnClick = [](lv_event_t* pkEvent)
    {
        auto& kDialogs = *static_cast<CGUIMirroredManager*>(lv_event_get_user_data(pkEvent));
        kDialogs.Back(true);
        // The button is still there.
        EXPECT_TRUE(lv_obj_is_valid(lv_event_get_target_obj(pkEvent)));
        EXPECT_TRUE(lv_obj_is_visible(lv_event_get_target_obj(pkEvent)));
    };
    m_kMenu.m_pClicked = &Dialogs();
    m_kHome.m_pkLVGL = m_pkLVGL.get();
    delete Object(DLG_A);
    m_pkLVGL->GetMirror().AddBuilder(DLG_A, m_kBuildsHome);
    m_pkLVGL->GetMirror().AddBuilder(DLG_B, m_kBuildsMenu);
    Show(DLG_A);
    Show(DLG_B);
    m_pkBoard->Run();

    m_pkBoard->Touch(NativeOf(OBJ_3));

    EXPECT_EQ(nullptr, Object(DLG_B));
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CReportedBugsTest, DoubleDeletion_IsOneError)
{
    // The application deletes the native object, and the dialog goes as well.
    lv_obj_delete(NativeOf(DLG_A));
    delete Object(DLG_A);
    m_pkBoard->Run();
    EXPECT_EQ("ERROR: CGUIMirror::OnNativeDeleted: The native object with ID DLG_A was deleted by something "
              "else.\\n\n",
              TakeErrors());
    Show(DLG_B);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(DLG_B));
}

TEST_F(CReportedBugsTest, DialogAndThenItsNativeObjectDeletedInOneTurn_IsNoDoubleDeletion)
{
    lv_obj_t* pkNative = NativeOf(DLG_A);
    delete Object(DLG_A);
    lv_obj_delete(pkNative);
    m_pkBoard->Run();
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CReportedBugsTest, SwitchingInMidAnimation_ShowsTheLastOneWithInput)
{
    m_pkLVGL->SetTransition(TRANSITION_OVER_LEFT, 300);
    for (int iSwitch = 0; iSwitch < 10; ++iSwitch)
    {
        Show(DLG_B, CGUIDialogManager::ODA_DELETE);
        m_pkBoard->Run(30);
        Dialogs().Back(true);
        m_pkBoard->Run(iSwitch % 2 == 0 ? 5 : 100);
    }
    m_pkBoard->Run(500);
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_FALSE(m_pkLVGL->IsInTransition());
    m_pkBoard->PressKey(LV_KEY_NEXT);
    EXPECT_EQ("OBJ_2", FocusName());
}

TEST_F(CReportedBugsTest, Navigation_LeaksNoGroup)
{
    const auto Navigate = [this]
    {
        Show(DLG_B, CGUIDialogManager::ODA_DELETE);
        m_pkBoard->Run(40);
        Dialogs().ShowPopup(POP_1);
        m_pkBoard->Run(40);
        Dialogs().ClosePopup(POP_1);
        m_pkBoard->Run(40);
        Dialogs().Back(true);
        m_pkBoard->Run(40);
    };
    for (int iWarmUp = 0; iWarmUp < 5; ++iWarmUp)
    {
        Navigate();
    }
    ClearEvents();
    const std::size_t uiBefore = GetHeapUse();
    for (int iTurn = 0; iTurn < 50; ++iTurn)
    {
        Navigate();
        ClearEvents();
    }
    EXPECT_EQ(uiBefore, GetHeapUse());
}

TEST_F(CReportedBugsTest, Focus_IsThereAfterARebuild)
{
    SetFocus(OBJ_1);
    m_pkBoard->Run();
    m_pkBoard->PressKey(LV_KEY_NEXT);
    EXPECT_EQ("OBJ_2", FocusName());

    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    m_pkBoard->Run();
    Dialogs().Back(true);
    m_pkBoard->Run();

    EXPECT_EQ(2U, m_kHome.m_uiBuilt);
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ(NativeOf(OBJ_2), NativeFocus());
    EXPECT_TRUE(lv_obj_has_state(NativeOf(OBJ_2), LV_STATE_FOCUSED));
}

TEST_F(CReportedBugsTest, Popup_StaysAboveTheNextScreen)
{
    Dialogs().ShowPopup(POP_1);
    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    m_pkBoard->Run();
    EXPECT_LT(lv_obj_get_index(NativeOf(DLG_B)), lv_obj_get_index(NativeOf(POP_1)));
    m_pkBoard->PressKey(LV_KEY_NEXT);
    EXPECT_EQ("OBJ_5", FocusName());
    // Nor can the new one be touched.
    lv_point_t kPoint = {5, 200};
    const lv_obj_t* pkFound = lv_indev_search_obj(lv_screen_active(), &kPoint);
    EXPECT_NE(NativeOf(DLG_B), pkFound);
}

TEST_F(CReportedBugsTest, TimerOfAScreen_DoesNotFireIntoADeletedOne)
{
    static eC_UInt s_uiFired;
    s_uiFired = 0;
    m_kMenu.m_pfnTimer = [](lv_timer_t* pkTimer)
    {
        EXPECT_TRUE(lv_obj_is_valid(static_cast<lv_obj_t*>(lv_timer_get_user_data(pkTimer))));
        ++s_uiFired;
    };
    Show(DLG_B);
    m_pkBoard->Run();
    EXPECT_LT(0U, s_uiFired);
    Dialogs().Back(true);
    m_pkBoard->Run(40);
    const eC_UInt uiFired = s_uiFired;
    m_pkBoard->Run(200);
    EXPECT_EQ(uiFired, s_uiFired);
}

TEST_F(CReportedBugsTest, BuilderThatReturnsNull_IsAnErrorAndLeavesNothing)
{
    m_kMenu.m_bFails = true;
    const std::size_t uiChildren = lv_obj_get_child_count(lv_screen_active());
    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE));
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ(uiChildren, lv_obj_get_child_count(lv_screen_active()));
    EXPECT_EQ("ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 2 failed!\\nThe current "
              "dialog stays "
              "active.\\n\n",
              TakeErrors());
}

TEST_F(CReportedBugsTest, ManyRandomSwitchesAndPopups_KeepTheHeapAsItIs)
{
    PlayAtRandom("LVGL_RANDOM_TURNS", 3000);
    EXPECT_LT(100U, m_kHome.m_uiBuilt);
    EXPECT_LT(100U, m_kHint.m_uiBuilt);
}
