// SPDX-License-Identifier: MIT
#include "Tests/FLTK/FLTKTest.h"

#include "Core/GUITimer.h"

#include <FL/Fl_Check_Button.H>
#include <FL/Fl_Hold_Browser.H>
#include <FL/Fl_Input.H>
#include <FL/Fl_Pixmap.H>
#include <FL/Fl_Progress.H>
#include <FL/Fl_Slider.H>
#include <FL/fl_draw.H>

#include <chrono>

// ---- The classes of widgets ------------------------------------------------------------------------

TEST_F(CFLTKTest, EveryClassOfWidgets_ShowsItsContentsInItsNativeWidget)
{
    static const char* s_apcPixels[] = {"1 1 1 1", ". c #FF0000", "."};
    static Fl_Pixmap s_kPicture(s_apcPixels);
    m_pkFLTK->SetImages([](const eC_Char*) -> Fl_Image* { return &s_kPicture; });
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetText("Title");
    new CGUIContainer(pkScreen, OBJ_1);
    (new CGUILabel(pkScreen, OBJ_2))->SetText("Label");
    (new CGUIImage(pkScreen, OBJ_3))->SetImage("red");
    (new CGUIButton(pkScreen, OBJ_4))->SetText("Button");
    (new CGUICheckBox(pkScreen, OBJ_5))->SetValue(1);
    (new CGUIBar(pkScreen, OBJ_6))->SetValue(40);
    (new CGUISlider(pkScreen, OBJ_7))->SetValue(60);
    auto* pkList = new CGUIList(pkScreen, OBJ_8);
    eC_String kExpected;
    pkList->SetAttribute("entries", "one|@btwo", kExpected);
    pkList->SetValue(1);
    (new CGUITextField(pkScreen, OBJ_9))->SetText("typed");
    (new CGUIPopup(&Root(), POP_1))->SetText("Hint");
    Turn();

    EXPECT_STREQ("Title", NativeAs<Fl_Group>(DLG_A).child(0)->label());
    EXPECT_NE(nullptr, NativeOf(OBJ_1)->as_group());
    EXPECT_STREQ("Label", NativeOf(OBJ_2)->label());
    EXPECT_EQ(&s_kPicture, NativeOf(OBJ_3)->image());
    EXPECT_STREQ("Button", NativeOf(OBJ_4)->label());
    EXPECT_EQ(1, NativeAs<Fl_Check_Button>(OBJ_5).value());
    EXPECT_EQ(40.0F, NativeAs<Fl_Progress>(OBJ_6).value());
    EXPECT_EQ(60.0, NativeAs<Fl_Slider>(OBJ_7).value());
    EXPECT_EQ(2, NativeAs<Fl_Hold_Browser>(OBJ_8).size());
    EXPECT_STREQ("@btwo", NativeAs<Fl_Hold_Browser>(OBJ_8).text(2));
    EXPECT_EQ(2, NativeAs<Fl_Hold_Browser>(OBJ_8).value());
    EXPECT_STREQ("typed", NativeAs<Fl_Input>(OBJ_9).value());
    EXPECT_STREQ("Hint", NativeAs<Fl_Group>(POP_1).child(0)->label());
    EXPECT_EQ("", TakeErrors());

    pkList->SetAttribute("entries", "three", kExpected);
    pkScreen->SetText("");
    Turn();
    EXPECT_EQ(1, NativeAs<Fl_Hold_Browser>(OBJ_8).size());
    EXPECT_STREQ("three", NativeAs<Fl_Hold_Browser>(OBJ_8).text(1));
    EXPECT_EQ(0, NativeAs<Fl_Group>(DLG_A).child(0)->visible());
}

TEST_F(CFLTKTest, UnknownClass_IsOneErrorAndTheRestIsThere)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {OBJ_1});
    new CGUINativePart(pkScreen, OBJ_2);
    Turn();
    EXPECT_TRUE(IsSeen(OBJ_1));
    EXPECT_EQ(
        "ERROR: CGUIMirror::Commit: No native object could be made for the object with ID OBJ_2.\\nIt and "
        "everything in it stay invisible.\\n\n",
        TakeErrors());
    Touch(NativeOf(OBJ_1));
    EXPECT_EQ("activated OBJ_1; ", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, PictureThatNobodyKnows_IsAnError)
{
    (new CGUIImage(AddScreen(DLG_A, {}), OBJ_1))->SetImage("logo");
    Turn();
    EXPECT_EQ("ERROR: CGUINativeAdapter: There is no picture logo.\\n\n", TakeErrors());
}

TEST_F(CFLTKTest, PlaceAndSize_AreUnitsOfTheDisplay)
{
    GUIAdapterOptions_t kUnits;
    kUnits.m_iWidth = 40;
    kUnits.m_iHeight = 12;
    Restart(kUnits);
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkBox = new CGUIContainer(pkScreen, OBJ_1);
    pkBox->SetPosition(10, 3);
    pkBox->SetSize(20, 9);
    auto* pkButton = new CGUIButton(pkBox, OBJ_2);
    pkButton->SetPosition(5, 6);
    pkButton->SetSize(10, 2);
    const auto PlaceOf = [this](ObjectHandle_t eID)
    {
        const Fl_Widget& kNative = *NativeOf(eID);
        return std::to_string(kNative.x()) + "," + std::to_string(kNative.y()) + " " +
               std::to_string(kNative.w()) + "x" + std::to_string(kNative.h());
    };
    Turn();
    EXPECT_EQ("80,60 160x180", PlaceOf(OBJ_1));
    EXPECT_EQ("120,180 80x40", PlaceOf(OBJ_2));

    // FLTK counts from the window, so what is in a container must come along.
    pkBox->SetPosition(12, 2);
    Turn();
    EXPECT_EQ("96,40 160x180", PlaceOf(OBJ_1));
    EXPECT_EQ("136,160 80x40", PlaceOf(OBJ_2));
}

TEST_F(CFLTKTest, Texts_FollowTheLanguage)
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
    Turn();
    EXPECT_STREQ("Back", NativeOf(OBJ_1)->label());

    kTexts.m_bIsGerman = true;
    CGUIWidget::MarkTexts();
    Turn();
    EXPECT_STREQ("Zurück", NativeOf(OBJ_1)->label());
    CGUIWidget::SetTranslator(nullptr);
}

TEST_F(CFLTKTest, TextsThatFLTKWouldTakeForSymbols_AreShownAsTheyAre)
{
    AddScreen(DLG_A, {OBJ_1});
    CGUIWidget::Find(Object(OBJ_1))->SetText("@-> Milk & Sugar");
    Turn();
    int iWidth = 0;
    int iHeight = 0;
    NativeOf(OBJ_1)->measure_label(iWidth, iHeight);
    int iExpected = 0;
    fl_font(FL_HELVETICA, 14);
    fl_measure("@-> Milk & Sugar", iExpected, iHeight, 0);
    EXPECT_EQ(iExpected, iWidth);
    PressKey('s', "s", FL_ALT); // no shortcut of the letter behind the ampersand
    EXPECT_EQ("", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, Styles_AreFoundByClassByNameAndByFocus)
{
    m_pkFLTK->AddStyle("Button", [](Fl_Widget& kWidget) { kWidget.color(FL_RED); });
    m_pkFLTK->AddStyle("warm", [](Fl_Widget& kWidget) { kWidget.color(FL_YELLOW); });
    m_pkFLTK->AddStyle("Button:focus", [](Fl_Widget& kWidget) { kWidget.box(FL_BORDER_BOX); });
    m_pkFLTK->AddStyle("ScreenTitle", [](Fl_Widget& kWidget) { kWidget.color(FL_BLUE); });
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    CGUIWidget::Find(Object(OBJ_2))->SetStyle("warm");
    Show(DLG_A);
    SetFocus(OBJ_1);
    Turn();
    EXPECT_EQ(FL_RED, NativeOf(OBJ_1)->color());
    EXPECT_EQ(FL_YELLOW, NativeOf(OBJ_2)->color());
    EXPECT_EQ(FL_BORDER_BOX, NativeOf(OBJ_1)->box());
    EXPECT_EQ(FL_UP_BOX, NativeOf(OBJ_2)->box());
    EXPECT_EQ(FL_BLUE, NativeAs<Fl_Group>(DLG_A).child(0)->color());

    CGUIWidget::Find(Object(OBJ_1))->SetStyle("warm");
    CGUIWidget::Find(Object(OBJ_2))->SetStyle("unknown");
    PressKey(FL_Tab);
    EXPECT_EQ(FL_YELLOW, NativeOf(OBJ_1)->color());
    EXPECT_EQ(FL_RED, NativeOf(OBJ_2)->color());
    EXPECT_EQ(FL_UP_BOX, NativeOf(OBJ_1)->box());
    EXPECT_EQ(FL_BORDER_BOX, NativeOf(OBJ_2)->box());
}

// ---- Input -----------------------------------------------------------------------------------------

TEST_F(CFLTKTest, Keys_MoveTheFocusAroundInTheWindowAndPressButtons)
{
    AddScreen(DLG_B, {OBJ_8, OBJ_9});
    AddScreen(DLG_A, {OBJ_1, OBJ_2, OBJ_3});
    Show(DLG_A);
    SetFocus(OBJ_1);
    Turn();
    EXPECT_EQ(NativeOf(OBJ_1), Fl::focus());

    std::string kWay;
    for (const int iKey : {FL_Tab, FL_Down, FL_Tab, FL_Up, FL_Up})
    {
        PressKey(iKey);
        kWay += FocusName() + " ";
        EXPECT_EQ(NativeOf(Focus()->GetID()), Fl::focus());
    }
    PressKey(FL_Tab, "", FL_SHIFT);
    EXPECT_EQ("OBJ_2 OBJ_3 OBJ_1 OBJ_3 OBJ_2 OBJ_1", kWay + FocusName());
    EXPECT_EQ("", m_kUser.TakeLog());
    PressKey(FL_Enter, "\r");
    PressKey(' ', " ");
    EXPECT_EQ("activated OBJ_1; activated OBJ_1; ", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, Touch_FocusesAndPresses)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Show(DLG_A);
    Turn();
    Touch(NativeOf(OBJ_2));
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ("activated OBJ_2; ", m_kUser.TakeLog());
    EXPECT_EQ(NativeOf(OBJ_2), Fl::focus());
}

TEST_F(CFLTKTest, TouchBesideTheWidgetsOfAWindow_DoesNotReachTheOneBelow)
{
    AddScreen(DLG_A, {OBJ_1});
    auto* pkAbove = new CGUIScreen(&Root(), DLG_B);
    pkAbove->SetPosition(0, 0);
    pkAbove->SetSize(200, 200);
    Turn();
    Touch(NativeOf(OBJ_1));
    EXPECT_EQ("", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, CheckBoxSliderListAndTextField_TellWhatTheUserSets)
{
    CGUIScreen* pkScreen = AddScreen(DLG_A, {});
    new CGUICheckBox(pkScreen, OBJ_1);
    auto* pkList = new CGUIList(pkScreen, OBJ_2);
    eC_String kExpected;
    pkList->SetAttribute("entries", "one|two|three", kExpected);
    pkList->SetSize(100, 60);
    auto* pkField = new CGUITextField(pkScreen, OBJ_3);
    pkField->SetSize(100, 30);
    auto* pkSlider = new CGUISlider(pkScreen, OBJ_4);
    pkSlider->SetSize(100, 30);
    pkSlider->SetStep(5);
    Show(DLG_A);
    CGUIWidget::Find(Object(OBJ_1))->SetText("Milk");
    Turn();

    Touch(NativeOf(OBJ_1));
    PressKey(FL_Enter, "\r");
    EXPECT_EQ("changed OBJ_1 1Milk; changed OBJ_1 0Milk; ", m_kUser.TakeLog());
    EXPECT_EQ(0, NativeAs<Fl_Check_Button>(OBJ_1).value());

    SetFocus(OBJ_2);
    Turn();
    PressKey(FL_Down);
    PressKey(FL_Enter, "\r");
    EXPECT_EQ(1, pkList->GetValue());
    EXPECT_EQ("changed OBJ_2 1; activated OBJ_2; ", m_kUser.TakeLog());

    SetFocus(OBJ_3);
    Turn();
    PressKey('a', "A");
    PressKey(FL_Enter, "\r");
    EXPECT_STREQ("A", pkField->GetText());
    EXPECT_EQ("changed OBJ_3 0A; activated OBJ_3; ", m_kUser.TakeLog());

    SetFocus(OBJ_4);
    Turn();
    PressKey(FL_Right);
    EXPECT_EQ(5, pkSlider->GetValue());
    EXPECT_EQ("changed OBJ_4 5; ", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, WithoutAFocus_TheNextKeyFocusesTheFirstObject)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Turn();
    EXPECT_EQ(nullptr, Focus());
    PressKey(FL_Enter, "\r");
    EXPECT_EQ("", m_kUser.TakeLog());
    EXPECT_EQ(nullptr, Focus());
    PressKey(FL_Tab);
    EXPECT_EQ("OBJ_1", FocusName());
    PressKey(FL_Tab, "", FL_SHIFT);
    EXPECT_EQ("OBJ_2", FocusName());
}

TEST_F(CFLTKTest, ObjectThatCannotHaveTheFocus_IsInactive)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Object(OBJ_1)->SetFocusable(false);
    Turn();
    EXPECT_EQ(0, NativeOf(OBJ_1)->active());
    Touch(NativeOf(OBJ_1));
    PressKey(FL_Tab);
    EXPECT_EQ("", m_kUser.TakeLog());
    EXPECT_EQ("OBJ_2", FocusName());
}

TEST_F(CFLTKTest, ModalPopup_TakesKeysTouchesAndShortcuts)
{
    AddScreen(DLG_A, {OBJ_1});
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetModal(true);
    pkPopup->SetPosition(200, 100);
    pkPopup->SetSize(100, 100);
    auto* pkButton = new CGUIButton(pkPopup, OBJ_2);
    pkButton->SetPosition(20, 40);
    pkButton->SetSize(50, 50);
    pkPopup->SetInvisible(true);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Show(DLG_A);
    Turn();
    NativeAs<Fl_Button>(OBJ_1).shortcut('x');
    Touch(NativeOf(OBJ_1));
    PressKey('x', "x");
    EXPECT_EQ("activated OBJ_1; activated OBJ_1; ", m_kUser.TakeLog());

    Dialogs().ShowPopup(POP_1);
    Turn();
    Touch(NativeOf(OBJ_1));
    PressKey('x', "x");
    EXPECT_EQ("", m_kUser.TakeLog());
    PressKey(FL_Tab);
    EXPECT_EQ("OBJ_2", FocusName());
    PressKey(FL_Enter, "\r");
    Touch(NativeOf(OBJ_2));
    EXPECT_EQ("activated OBJ_2; activated OBJ_2; ", m_kUser.TakeLog());

    pkPopup->SetModal(false);
    Turn();
    Touch(NativeOf(OBJ_1));
    EXPECT_EQ("activated OBJ_1; ", m_kUser.TakeLog());
    EXPECT_EQ(NativeOf(OBJ_1), Fl::focus());

    Dialogs().ClosePopup(POP_1);
    Turn();
    EXPECT_FALSE(IsSeen(POP_1));
}

TEST_F(CFLTKTest, PopupThatComesWhileAButtonIsHeld_GetsTheRestOfTheTouch)
{
    AddScreen(DLG_A, {OBJ_1});
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetModal(true);
    pkPopup->SetInvisible(true);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Show(DLG_A);
    Turn();
    Touch(0, 239);
    Fl::e_x = NativeOf(OBJ_1)->x() + 5;
    Fl::e_y = NativeOf(OBJ_1)->y() + 5;
    Fl::e_state = FL_BUTTON1;
    Fl::e_keysym = FL_Button + FL_LEFT_MOUSE;
    Fl::handle(FL_PUSH, m_pkWindow.get());
    EXPECT_EQ(NativeOf(OBJ_1), Fl::pushed());
    Dialogs().ShowPopup(POP_1);
    Turn();
    EXPECT_EQ(nullptr, Fl::pushed());
    Fl::e_state = 0;
    Fl::handle(FL_RELEASE, m_pkWindow.get());
    Turn();
    EXPECT_EQ("", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, ExceptionOfTheApplication_IsLoggedAndTheApplicationGoesOn)
{
    AddScreen(DLG_A, {OBJ_1});
    Show(DLG_A);
    Turn();
    m_kUser.m_kOnActivated = [] { throw 1; };
    Touch(NativeOf(OBJ_1));
    PressKey(FL_Enter, "\r");
    const std::string kError = "ERROR: CGUINativeAdapter: Caught an exception of the application.\\n\n";
    EXPECT_EQ(kError + kError, TakeErrors());
    m_kUser.m_kOnActivated = nullptr;
    m_kUser.TakeLog();
    Touch(NativeOf(OBJ_1));
    EXPECT_EQ("activated OBJ_1; ", m_kUser.TakeLog());
}

TEST_F(CFLTKTest, WindowThatLosesTheKeysAndGetsThemBack_HasTheSameFocus)
{
    AddScreen(DLG_A, {OBJ_1, OBJ_2});
    Show(DLG_A);
    SetFocus(OBJ_2);
    Turn();
    Fl::handle(FL_UNFOCUS, m_pkWindow.get());
    Turn();
    EXPECT_EQ("OBJ_2", FocusName());
    Fl::handle(FL_FOCUS, m_pkWindow.get());
    Turn();
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ(NativeOf(OBJ_2), Fl::focus());
}

// ---- Drawing ---------------------------------------------------------------------------------------

TEST_F(CFLTKTest, WhatChangesBelowAPopup_IsNotDrawnOverIt)
{
    m_pkFLTK->AddStyle("Label", [](Fl_Widget& kWidget) { kWidget.box(FL_FLAT_BOX); });
    m_pkFLTK->AddStyle("Label", [](Fl_Widget& kWidget) { kWidget.color(FL_RED); });
    m_pkFLTK->AddStyle("Popup", [](Fl_Widget& kWidget) { kWidget.box(FL_FLAT_BOX); });
    m_pkFLTK->AddStyle("Popup", [](Fl_Widget& kWidget) { kWidget.color(FL_BLUE); });
    auto* pkLabel = new CGUILabel(AddScreen(DLG_A, {}), OBJ_1);
    pkLabel->SetSize(200, 100);
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetPosition(100, 50);
    pkPopup->SetSize(100, 60);
    const auto ColorAt = [this](int iX, int iY)
    {
        Turn();
        Fl::flush();
        m_pkWindow->make_current();
        uchar auiPixel[3] = {};
        fl_read_image(auiPixel, iX, iY, 1, 1);
        return fl_rgb_color(auiPixel[0], auiPixel[1], auiPixel[2]);
    };
    const Fl_Color uiBlue = fl_rgb_color(0, 0, 255);
    const Fl_Color uiRed = fl_rgb_color(255, 0, 0);
    EXPECT_EQ(uiBlue, ColorAt(150, 80));
    EXPECT_EQ(uiRed, ColorAt(50, 80));

    pkLabel->SetText("new");
    EXPECT_EQ(uiBlue, ColorAt(150, 80));
    NativeOf(OBJ_1)->redraw(); // by somebody else
    EXPECT_EQ(uiBlue, ColorAt(150, 80));
    pkPopup->SetInvisible(true);
    EXPECT_EQ(uiRed, ColorAt(150, 80));
}

// ---- The main loop ---------------------------------------------------------------------------------

TEST_F(CFLTKTest, DisplayTimes_WakeFLTKUp)
{
    (new CGUIPopup(&Root(), POP_1))->SetInvisible(true);
    Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 60, false, "");
    GETTIMER.SetClock(nullptr);
    Dialogs().ShowPopup(POP_1);
    Turn();
    EXPECT_TRUE(IsSeen(POP_1));
    const auto kBegin = std::chrono::steady_clock::now();
    while (Dialogs().IsPopupInPopupList(POP_1) &&
           std::chrono::steady_clock::now() < kBegin + std::chrono::seconds(20))
    {
        Fl::wait();
    }
    EXPECT_FALSE(IsSeen(POP_1));
    EXPECT_LE(std::chrono::milliseconds(59), std::chrono::steady_clock::now() - kBegin);
}

TEST_F(CFLTKTest, LoopInsideAnEvent_CommitsNothing)
{
    AddScreen(DLG_A, {OBJ_1});
    Show(DLG_A);
    Turn();
    m_kUser.m_kOnActivated = [this]
    {
        delete Object(DLG_A);
        const int iChildren = m_pkWindow->child(0)->as_group()->children();
        Turn(); // as a menu or a message does
        m_pkFLTK->Turn();
        EXPECT_EQ(iChildren, m_pkWindow->child(0)->as_group()->children());
    };
    Touch(NativeOf(OBJ_1));
    EXPECT_EQ(0, m_pkWindow->child(0)->as_group()->children());
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CFLTKTest, AdapterDestroyedInAnEvent_IsGone)
{
    static int s_iEvents;
    s_iEvents = 0;
    m_pkDialogs.reset();
    m_pkFLTK.reset();
    Fl::event_dispatch(
        [](int iEvent, Fl_Window* pkWindow)
        {
            ++s_iEvents;
            return Fl::handle_(iEvent, pkWindow);
        });
    Restart();
    static std::unique_ptr<CGUIFLTK>* s_pkDestroyed;
    s_pkDestroyed = &m_pkFLTK;
    Fl_Button kButton(0, 200, 20, 20);
    m_pkWindow->add(kButton);
    kButton.callback([](Fl_Widget*, void*) { s_pkDestroyed->reset(); });
    m_pkDialogs.reset();
    Touch(&kButton);
    EXPECT_EQ(nullptr, m_pkFLTK);
    EXPECT_LT(0, s_iEvents);
    // The application's own is in place again.
    s_iEvents = 0;
    Touch(5, 5);
    EXPECT_LT(0, s_iEvents);
    Fl::event_dispatch(nullptr);
}
