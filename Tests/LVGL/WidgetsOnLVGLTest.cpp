// SPDX-License-Identifier: MIT
#include "Tests/LVGL/LVGLTest.h"

#include "Core/GUIAnimatable.h"

#include <cstring>

// ---- The classes of widgets ------------------------------------------------------------------------

TEST_F(CLVGLTest, EveryClassOfWidgets_HasItsNativeWidget)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    new CGUIContainer(pkScreen, OBJ_1);
    new CGUILabel(pkScreen, OBJ_2);
    new CGUIImage(pkScreen, OBJ_3);
    new CGUIButton(pkScreen, OBJ_4);
    new CGUICheckBox(pkScreen, OBJ_5);
    new CGUIBar(pkScreen, OBJ_6);
    new CGUISlider(pkScreen, OBJ_7);
    new CGUIList(pkScreen, OBJ_8);
    new CGUITextField(pkScreen, OBJ_9);
    new CGUIPopup(&Root(), POP_1);
    m_pkBoard->Run();

    EXPECT_TRUE(lv_obj_check_type(NativeOf(DLG_A), &lv_obj_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_1), &lv_obj_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_2), &lv_label_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_3), &lv_image_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_4), &lv_button_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_5), &lv_checkbox_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_6), &lv_bar_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_7), &lv_slider_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_8), &lv_roller_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(OBJ_9), &lv_textarea_class));
    EXPECT_TRUE(lv_obj_check_type(NativeOf(POP_1), &lv_obj_class));
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CLVGLTest, UnknownClass_IsOneErrorAndTheRestIsThere)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1});
    new CGUINativePart(pkScreen, OBJ_2);
    m_pkBoard->Run();
    EXPECT_TRUE(IsSeen(OBJ_1));
    EXPECT_EQ(
        "ERROR: CGUIMirror::Commit: No native object could be made for the object with ID OBJ_2.\\nIt and "
        "everything in it stay invisible.\\n\n",
        TakeErrors());
}

TEST_F(CLVGLTest, PictureThatNobodyKnows_IsAnError)
{
    (new CGUIImage(AddScreen(DLG_A, {}), OBJ_1))->SetImage("logo");
    m_pkBoard->Run();
    EXPECT_EQ("ERROR: CGUINativeAdapter: There is no picture logo.\\n\n", TakeErrors());
}

TEST_F(CLVGLTest, PlaceAndSize_AreUnitsOfTheDisplay)
{
    m_pkDialogs.reset();
    m_pkLVGL.reset();
    GUILVGLOptions_t kOptions;
    kOptions.m_iWidth = 40;
    kOptions.m_iHeight = 12;
    m_pkLVGL.reset(new CGUILVGL(kOptions, m_kUser));
    m_pkDialogs.reset(new CGUIMirroredManager(m_pkLVGL->GetMirror()));
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkBox = new CGUIContainer(pkScreen, OBJ_1);
    pkBox->SetPosition(10, 3);
    auto* pkButton = new CGUIButton(pkBox, OBJ_2);
    pkButton->SetPosition(5, 6);
    pkButton->SetSize(20, 2);
    m_pkBoard->Run();

    lv_area_t kArea;
    lv_obj_get_coords(NativeOf(OBJ_2), &kArea);
    EXPECT_EQ(120, kArea.x1);
    EXPECT_EQ(180, kArea.y1);
    EXPECT_EQ(160, lv_area_get_width(&kArea));
    EXPECT_EQ(40, lv_area_get_height(&kArea));
}

TEST_F(CLVGLTest, Texts_FollowTheLanguage)
{
    class CTexts : public CGUITranslator
    {
    public:
        bool m_bIsGerman = false;
        eC_Bool FindText(const eC_Char*, GUIContentKey_t&) const override { return false; }
        const eC_Char* GetText(GUIContentKey_t) const override { return m_bIsGerman ? "Zurück" : "Back"; }
    } kTexts;
    CGUIWidget::SetTranslator(&kTexts);
    AddScreen(DLG_A, {OBJ_1});
    CGUIWidget* pkButton = CGUIWidget::Find(Object(OBJ_1));
    pkButton->SetText("");
    pkButton->SetTextKey(1);
    m_pkBoard->Run();
    EXPECT_STREQ("Back", lv_label_get_text(lv_obj_get_child(NativeOf(OBJ_1), 0)));

    kTexts.m_bIsGerman = true;
    CGUIWidget::MarkTexts();
    m_pkBoard->Run();
    EXPECT_STREQ("Zurück", lv_label_get_text(lv_obj_get_child(NativeOf(OBJ_1), 0)));
    CGUIWidget::SetTranslator(nullptr);
}

TEST_F(CLVGLTest, Styles_AreFoundByClassAndByName)
{
    lv_style_t kClass;
    lv_style_t kName;
    lv_style_init(&kClass);
    lv_style_init(&kName);
    lv_style_set_bg_color(&kClass, lv_color_hex(0x112233));
    lv_style_set_bg_color(&kName, lv_color_hex(0x445566));
    m_pkLVGL->AddStyle("Button", &kClass);
    m_pkLVGL->AddStyle("warm", &kName);
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CGUIWidget::Find(Object(OBJ_2))->SetStyle("warm");
    const auto ColorOf = [this](ObjectHandle_t eID)
    { return lv_color_to_u32(lv_obj_get_style_bg_color(NativeOf(eID), LV_PART_MAIN)) & 0xFFFFFFU; };
    m_pkBoard->Run();
    EXPECT_EQ(0x112233U, ColorOf(OBJ_1));
    EXPECT_EQ(0x445566U, ColorOf(OBJ_2));

    CGUIWidget::Find(Object(OBJ_1))->SetStyle("warm");
    CGUIWidget::Find(Object(OBJ_2))->SetStyle("unknown");
    m_pkBoard->Run();
    EXPECT_EQ(0x445566U, ColorOf(OBJ_1));
    EXPECT_EQ(0x112233U, ColorOf(OBJ_2));
    delete Object(DLG_A);
    m_pkBoard->Run();
    lv_style_reset(&kClass);
    lv_style_reset(&kName);
}

// ---- Input -----------------------------------------------------------------------------------------

TEST_F(CLVGLTest, Keypad_MovesTheFocusAndPressesButtons)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2, OBJ_3});
    Show(DLG_A);
    SetFocus(OBJ_1);
    m_pkBoard->Run();
    EXPECT_EQ(NativeOf(OBJ_1), NativeFocus());

    m_pkBoard->PressKey(LV_KEY_NEXT);
    EXPECT_EQ("OBJ_2", FocusName());
    m_pkBoard->PressKey(LV_KEY_DOWN);
    EXPECT_EQ("OBJ_3", FocusName());
    m_pkBoard->PressKey(LV_KEY_UP);
    m_pkBoard->PressKey(LV_KEY_ENTER);
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ(NativeOf(OBJ_2), NativeFocus());
    EXPECT_EQ("activated OBJ_2; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTest, Encoder_MovesTheFocusAndChangesASlider)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1});
    new CGUISlider(pkScreen, OBJ_2);
    Show(DLG_A);
    SetFocus(OBJ_1);
    m_pkBoard->Run();

    m_pkBoard->Turn(1);
    EXPECT_EQ("OBJ_2", FocusName());
    m_pkBoard->Click();
    m_kUser.TakeLog();
    m_pkBoard->Turn(3);
    EXPECT_EQ(3, CGUIWidget::Find(Object(OBJ_2))->GetValue());
    m_pkBoard->Click();
    m_pkBoard->Turn(-1);
    EXPECT_EQ("OBJ_1", FocusName());
}

TEST_F(CLVGLTest, Touch_FocusesAndPresses)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Show(DLG_A);
    m_pkBoard->Run();
    m_pkBoard->Touch(NativeOf(OBJ_2));
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ("activated OBJ_2; ", m_kUser.TakeLog());
    EXPECT_EQ(NativeOf(OBJ_2), NativeFocus());
}

TEST_F(CLVGLTest, CheckBoxListAndTextField_TellWhatTheUserSets)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {});
    new CGUICheckBox(pkScreen, OBJ_1);
    auto* pkList = new CGUIList(pkScreen, OBJ_2);
    eC_String kExpected;
    pkList->SetAttribute("entries", "one|two|three", kExpected);
    pkList->SetSize(100, 60);
    auto* pkField = new CGUITextField(pkScreen, OBJ_3);
    pkField->SetSize(100, 40);
    Show(DLG_A);
    m_pkBoard->Run();

    CGUIWidget::Find(Object(OBJ_1))->SetText("Milk");
    m_pkBoard->Run();
    m_pkBoard->Touch(NativeOf(OBJ_1));
    EXPECT_EQ("changed OBJ_1 1Milk; ", m_kUser.TakeLog());

    SetFocus(OBJ_2);
    m_pkBoard->Run();
    m_pkBoard->PressKey(LV_KEY_DOWN);
    m_pkBoard->PressKey(LV_KEY_ENTER);
    EXPECT_EQ(1, pkList->GetValue());
    EXPECT_STREQ("one\ntwo\nthree", lv_roller_get_options(NativeOf(OBJ_2)));

    SetFocus(OBJ_3);
    m_pkBoard->Run();
    m_kUser.TakeLog();
    m_pkBoard->PressKey('A');
    EXPECT_STREQ("A", pkField->GetText());
    m_pkBoard->PressKey(LV_KEY_ENTER);
    EXPECT_EQ("changed OBJ_3 0A; activated OBJ_3; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTest, WithoutAFocus_TheNextKeyFocusesTheFirstObject)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    m_pkBoard->Run();
    EXPECT_EQ(nullptr, Focus());
    m_pkBoard->PressKey(LV_KEY_ENTER);
    EXPECT_EQ("", m_kUser.TakeLog());
    m_pkBoard->PressKey(LV_KEY_NEXT);
    EXPECT_EQ("OBJ_1", FocusName());
    m_pkBoard->PressKey(LV_KEY_PREV);
    EXPECT_EQ("OBJ_2", FocusName());
}

TEST_F(CLVGLTest, ModalPopup_TakesKeysAndTouches)
{
    AddScreen(DLG_A, {OBJ_1});
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetModal(true);
    pkPopup->SetPosition(200, 100);
    pkPopup->SetSize(100, 100);
    (new CGUIButton(pkPopup, OBJ_2))->SetSize(50, 50);
    pkPopup->SetInvisible(true);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Show(DLG_A);
    Dialogs().ShowPopup(POP_1);
    m_pkBoard->Run();

    m_pkBoard->Touch(NativeOf(OBJ_1));
    EXPECT_EQ("", m_kUser.TakeLog());
    m_pkBoard->PressKey(LV_KEY_NEXT);
    EXPECT_EQ("OBJ_2", FocusName());
    m_pkBoard->PressKey(LV_KEY_ENTER);
    m_pkBoard->Touch(NativeOf(OBJ_2));
    EXPECT_EQ("activated OBJ_2; activated OBJ_2; ", m_kUser.TakeLog());

    pkPopup->SetModal(false);
    m_pkBoard->Run();
    m_pkBoard->Touch(NativeOf(OBJ_1));
    EXPECT_EQ("activated OBJ_1; ", m_kUser.TakeLog());
    EXPECT_EQ(NativeOf(OBJ_1), NativeFocus());

    Dialogs().ClosePopup(POP_1);
    m_pkBoard->Run();
    EXPECT_FALSE(IsSeen(POP_1));
}

TEST_F(CLVGLTest, ExceptionOfTheApplication_IsLoggedAndTheApplicationGoesOn)
{
    AddScreen(DLG_A, {OBJ_1});
    Show(DLG_A);
    m_pkBoard->Run();
    m_kUser.m_kOnActivated = [] { throw 1; };
    m_pkBoard->Touch(NativeOf(OBJ_1));
    EXPECT_EQ("ERROR: CGUINativeAdapter: Caught an exception of the application.\\n\n", TakeErrors());
    m_kUser.m_kOnActivated = nullptr;
    m_kUser.TakeLog();
    m_pkBoard->Touch(NativeOf(OBJ_1));
    EXPECT_EQ("activated OBJ_1; ", m_kUser.TakeLog());
}

// ---- Clock, timer, log -----------------------------------------------------------------------------

TEST_F(CLVGLTest, DisplayTimes_RunInTheTimerOfLVGL)
{
    (new CGUIPopup(&Root(), POP_1))->SetInvisible(true);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, false, "");
    Dialogs().ShowPopup(POP_1);
    EXPECT_EQ(lv_tick_get(), GETTIMER.GetTime());
    m_pkBoard->Run(450);
    EXPECT_TRUE(IsSeen(POP_1));
    m_pkBoard->Run(60);
    EXPECT_FALSE(Dialogs().IsPopupInPopupList(POP_1));
    m_pkBoard->Run(50);
    EXPECT_FALSE(IsSeen(POP_1));
}

TEST_F(CLVGLTest, Log_GoesToTheLogOfLVGL)
{
    static std::string s_kLog;
    s_kLog.clear();
    lv_log_register_print_cb([](lv_log_level_t eLevel, const char* pcText)
                             { s_kLog += std::to_string(eLevel) + " " + pcText; });
    CGUILVGLLog kLog;
    CGUITraceSink* pkBefore = CGUITrace::GetInstance().GetSink();
    CGUITrace::GetInstance().SetSink(&kLog);
    GUILOG(GUI_TRACE_ERROR, "wrong\n");
    GUILOG(GUI_TRACE_WARNING, "odd\n");
    GUILOG(GUI_TRACE_DEBUG, "usual\n");
    CGUITrace::GetInstance().SetSink(pkBefore);
    lv_log_register_print_cb(nullptr);
    EXPECT_NE(std::string::npos, s_kLog.find("wrong (")) << s_kLog;
    EXPECT_NE(std::string::npos, s_kLog.find("odd")) << s_kLog;
    EXPECT_EQ(std::string::npos, s_kLog.find("usual")) << s_kLog;
    EXPECT_EQ(std::to_string(LV_LOG_LEVEL_ERROR), s_kLog.substr(0, 1));
}

// ---- Transitions -----------------------------------------------------------------------------------

class CLVGLTransitionTest : public CLVGLTest
{
protected:
    CLVGLTransitionTest()
    {
        AddScreen(DLG_A, {OBJ_1});
        AddScreen(DLG_B, {OBJ_2})->SetInvisible(true);
        Show(DLG_A);
        m_pkBoard->Run();
        m_pkLVGL->SetTransition(TRANSITION_MOVE_LEFT, 300);
    }

    int LeftOf(ObjectHandle_t eID) const
    {
        lv_area_t kArea;
        lv_obj_get_coords(NativeOf(eID), &kArea);
        return kArea.x1;
    }
};

TEST_F(CLVGLTransitionTest, EachKind_EndsWithTheNewDialogAlone)
{
    for (int iKind = TRANSITION_NONE; iKind <= TRANSITION_FADE; ++iKind)
    {
        m_pkLVGL->SetTransition(static_cast<EGUITransition>(iKind), 300);
        Show(DLG_B);
        m_pkBoard->Run(100);
        EXPECT_EQ(iKind != TRANSITION_NONE, m_pkLVGL->IsInTransition()) << iKind;
        EXPECT_TRUE(iKind == TRANSITION_NONE || iKind == TRANSITION_OVER_LEFT || !IsSeen(DLG_A) ||
                    !lv_obj_has_flag(NativeOf(DLG_A), LV_OBJ_FLAG_HIDDEN));
        m_pkBoard->Run(400);
        EXPECT_FALSE(m_pkLVGL->IsInTransition()) << iKind;
        EXPECT_FALSE(IsSeen(DLG_A)) << iKind;
        EXPECT_TRUE(IsSeen(DLG_B)) << iKind;
        EXPECT_EQ(0, LeftOf(DLG_B)) << iKind;
        m_pkLVGL->SetTransition(TRANSITION_NONE, 0);
        Dialogs().Back(false);
        m_pkBoard->Run();
    }
}

TEST_F(CLVGLTransitionTest, Move_MovesBothDialogs)
{
    Show(DLG_B);
    m_pkBoard->Run(100);
    EXPECT_GT(0, LeftOf(DLG_A));
    EXPECT_LT(0, LeftOf(DLG_B));
    EXPECT_TRUE(m_pkLVGL->IsInTransition());
}

TEST_F(CLVGLTransitionTest, Input_IsBlockedWhileItRunsAndNotLonger)
{
    Show(DLG_B);
    m_pkBoard->Run(50);
    m_pkBoard->Touch(10, 10);
    m_pkBoard->PressKey(LV_KEY_ENTER);
    EXPECT_EQ("", m_kUser.TakeLog());
    m_pkBoard->Run(300);
    m_pkBoard->PressKey(LV_KEY_ENTER);
    m_pkBoard->Touch(NativeOf(OBJ_2));
    EXPECT_EQ("activated OBJ_2; activated OBJ_2; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTransitionTest, AnimationDeletedBySomethingElse_DoesNotBlockTheInputForGood)
{
    Show(DLG_B);
    m_pkBoard->Run(50);
    lv_anim_delete_all();
    m_pkBoard->Run(50);
    EXPECT_FALSE(m_pkLVGL->IsInTransition());
    m_pkBoard->Touch(NativeOf(OBJ_2));
    EXPECT_EQ("activated OBJ_2; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTransitionTest, SwitchAndBackInMidAnimation_EndItCleanly)
{
    AddScreen(DLG_C, {OBJ_3})->SetInvisible(true);
    Show(DLG_B);
    m_pkBoard->Run(100);
    Show(DLG_C);
    m_pkBoard->Run(100);
    EXPECT_FALSE(IsSeen(DLG_A));
    Dialogs().Back(false);
    m_pkBoard->Run(100);
    Dialogs().Back(false);
    m_pkBoard->Run(500);
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ(0, LeftOf(DLG_A));
    EXPECT_FALSE(IsSeen(DLG_B));
    EXPECT_FALSE(IsSeen(DLG_C));
    m_pkBoard->Touch(NativeOf(OBJ_1));
    EXPECT_EQ("activated OBJ_1; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTransitionTest, DeletedDialog_StaysUntilTheEndOfTheTransition)
{
    delete Object(DLG_A);
    Object(DLG_B)->SetInvisible(false);
    SetFocus(OBJ_2);
    lv_obj_t* pkScreen = lv_screen_active();
    m_pkBoard->Run(100);
    EXPECT_TRUE(m_pkLVGL->IsInTransition());
    const unsigned uiDuring = lv_obj_get_child_count(pkScreen);
    m_pkBoard->Run(500);
    EXPECT_EQ(uiDuring - 1, lv_obj_get_child_count(pkScreen));
    m_pkBoard->Touch(NativeOf(OBJ_2));
    EXPECT_EQ("activated OBJ_2; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTransitionTest, DialogDeletedInMidAnimation_EndsItCleanly)
{
    Show(DLG_B);
    m_pkBoard->Run(100);
    delete Object(DLG_A);
    delete Object(DLG_B);
    m_pkBoard->Run(100);
    EXPECT_FALSE(m_pkLVGL->IsInTransition());

    AddScreen(DLG_C, {OBJ_3});
    m_pkBoard->Run(500);
    m_pkBoard->Touch(NativeOf(OBJ_3));
    EXPECT_EQ("activated OBJ_3; ", m_kUser.TakeLog());
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CLVGLTransitionTest, NativeDialogsDeletedInMidAnimation_AreErrorsAndTheDialogIsMadeAgain)
{
    Show(DLG_B);
    m_pkBoard->Run(100);
    lv_obj_clean(lv_screen_active());
    m_pkBoard->Run(600);
    EXPECT_TRUE(IsSeen(DLG_B));
    m_pkBoard->Touch(NativeOf(OBJ_2));
    EXPECT_EQ("activated OBJ_2; ", m_kUser.TakeLog());
}

TEST_F(CLVGLTransitionTest, TransitionOfTheNextSwitch_IsOfThatOneAlone)
{
    m_pkLVGL->SetTransition(TRANSITION_FADE, 100, true);
    Show(DLG_B);
    m_pkBoard->Run(50);
    EXPECT_TRUE(m_pkLVGL->IsInTransition());
    m_pkBoard->Run(200);
    Dialogs().Back(false);
    m_pkBoard->Run(50);
    EXPECT_FALSE(m_pkLVGL->IsInTransition());
}

TEST_F(CLVGLTransitionTest, ClosingTheOnlyDialog_LeavesNothing)
{
    Dialogs().ClearDialogHistory(0, true, true);
    m_pkBoard->Run(100);
    EXPECT_FALSE(m_pkLVGL->IsInTransition());
    EXPECT_FALSE(IsSeen(DLG_A));
}
