// SPDX-License-Identifier: MIT
// Screens that an application builds itself, and what goes wrong with those that are managed by hand.
#include "Tests/FLTK/FLTKTest.h"

class COwnScreensOnFLTKTest : public CFLTKTest
{
protected:
    COwnScreensOnFLTKTest()
    {
        m_kHome.m_aeButtons = {OBJ_1, OBJ_2};
        m_kMenu.m_aeButtons = {OBJ_3, OBJ_4};
        m_kHint.m_aeButtons = {OBJ_5};
        Restart();
        Show(DLG_A);
        Turn();
    }

    void Restart()
    {
        CFLTKTest::Restart();
        m_kHome.m_pkFLTK = m_kMenu.m_pkFLTK = m_kHint.m_pkFLTK = m_pkFLTK.get();
        m_pkFLTK->GetMirror().AddBuilder(DLG_A, m_kBuildsHome);
        m_pkFLTK->GetMirror().AddBuilder(DLG_B, m_kBuildsMenu);
        m_pkFLTK->GetMirror().AddBuilder(POP_1, m_kBuildsHint);
        Dialogs().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "");
    }

    Fl_Group& Stage() const { return *m_pkWindow->child(0)->as_group(); }

    static std::string Deleted(const std::string& kName)
    {
        return "ERROR: CGUIMirror::OnNativeDeleted: The native object with ID " + kName +
               " was deleted by something else.\\n\n";
    }

    void DoSomething(CRandom& kRandom) override
    {
        if (kRandom.Below(30) == 0)
        {
            m_pkWindow->clear();
        }
        else if (kRandom.Below(2) == 0)
        {
            PressKey(kRandom.Below(2) == 0 ? FL_Tab : ' ', " ");
        }
        else if (m_pkWindow->children() > 0 && Stage().children() > 0)
        {
            Touch(Stage().child(static_cast<int>(kRandom.Below(static_cast<unsigned>(Stage().children())))));
        }
    }

    void LetTimePass(CRandom& kRandom) override
    {
        Clock().Advance(10);
        if (kRandom.Below(3) != 0)
        {
            Turn();
        }
    }

    Screen_t m_kHome;
    Screen_t m_kMenu;
    Screen_t m_kHint;
    CGUIFLTKBuilder m_kBuildsHome{&BuildScreen, &m_kHome};
    CGUIFLTKBuilder m_kBuildsMenu{&BuildScreen, &m_kMenu};
    CGUIFLTKBuilder m_kBuildsHint{&BuildScreen, &m_kHint};
};

TEST_F(COwnScreensOnFLTKTest, DeletionOfTheActiveScreen_ShowsTheNextOne)
{
    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    Turn();
    EXPECT_TRUE(IsSeen(DLG_B));
    EXPECT_EQ(nullptr, Object(DLG_A));
    delete Object(DLG_B);
    Turn();
    EXPECT_EQ(0, Stage().children());
    EXPECT_EQ("", TakeErrors());
}

TEST_F(COwnScreensOnFLTKTest, DeletionInItsOwnCallback_IsSafe)
{
    m_kMenu.m_pfnClick = [](Fl_Widget* pkWidget, void* pDialogs)
    {
        static_cast<CGUIMirroredManager*>(pDialogs)->Back(true);
        // The button is still there.
        EXPECT_NE(0, pkWidget->visible_r());
    };
    m_kMenu.m_pClicked = &Dialogs();
    Show(DLG_B);
    Turn();
    Touch(NativeOf(OBJ_3));
    EXPECT_EQ(nullptr, Object(DLG_B));
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ("", TakeErrors());
}

TEST_F(COwnScreensOnFLTKTest, NativeScreenDeletedBehindOurBack_IsOneErrorAndItComesBack)
{
    delete m_kHome.m_pkBuilt;
    Turn();
    EXPECT_EQ(Deleted("DLG_A"), TakeErrors());
    EXPECT_EQ(2U, m_kHome.m_uiBuilt);
    EXPECT_TRUE(IsSeen(DLG_A));
    Turn();
    EXPECT_EQ(1, Stage().children());
    Touch(NativeOf(OBJ_2));
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ("", TakeErrors());
}

TEST_F(COwnScreensOnFLTKTest, GroupOfAScreenDeletedBehindOurBack_IsOneErrorAndItComesBack)
{
    delete NativeOf(DLG_A);
    Turn();
    EXPECT_EQ(Deleted("DLG_A"), TakeErrors());
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ(1, Stage().children());
}

TEST_F(COwnScreensOnFLTKTest, PartDeletedBehindOurBack_IsOneErrorAndRefusesTheFocus)
{
    SetFocus(OBJ_1);
    Turn();
    delete NativeOf(OBJ_1);
    EXPECT_EQ(nullptr, NativeOf(OBJ_1));
    Object(OBJ_1)->SetInvisible(true);
    Turn();
    EXPECT_EQ(Deleted("OBJ_1"), TakeErrors());
    EXPECT_FALSE(Object(OBJ_1)->IsFocusable());
    Turn();
    EXPECT_EQ("", TakeErrors());
    Touch(NativeOf(OBJ_2));
    EXPECT_EQ("OBJ_2", FocusName());
}

TEST_F(COwnScreensOnFLTKTest, PartAndItsObjectDeletedInOneTurn_IsNoDoubleDeletion)
{
    Fl_Widget* pkNative = NativeOf(OBJ_1);
    delete Object(OBJ_1);
    delete pkNative;
    Turn();
    EXPECT_EQ("", TakeErrors());
    delete Object(OBJ_2);
    Turn();
    EXPECT_EQ(1, m_kHome.m_pkBuilt->children()); // the one without an identifier
    EXPECT_EQ("", TakeErrors());
}

TEST_F(COwnScreensOnFLTKTest, DialogAndItsNativeScreenDeletedInOneTurn_IsNoDoubleDeletion)
{
    delete Object(DLG_A);
    delete m_kHome.m_pkBuilt;
    Turn();
    EXPECT_EQ("", TakeErrors());
    Show(DLG_B);
    Turn();
    EXPECT_TRUE(IsSeen(DLG_B));
    EXPECT_EQ(1, Stage().children());
}

TEST_F(COwnScreensOnFLTKTest, WidgetOfADialogFileDeletedBehindOurBack_IsOneErrorAndItComesBack)
{
    AddScreen(DLG_C, {OBJ_6, OBJ_7});
    Show(DLG_C);
    Turn();
    delete NativeOf(OBJ_6);
    Turn();
    EXPECT_EQ(Deleted("OBJ_6"), TakeErrors());
    EXPECT_TRUE(IsSeen(OBJ_6));
    delete NativeOf(DLG_C);
    Turn();
    EXPECT_EQ(Deleted("DLG_C"), TakeErrors());
    Touch(NativeOf(OBJ_7));
    EXPECT_EQ("activated OBJ_7; ", m_kUser.TakeLog());
}

TEST_F(COwnScreensOnFLTKTest, EverythingInTheWindowDeleted_IsAnErrorForEachShownAndComesBack)
{
    Dialogs().ShowPopup(POP_1);
    Turn();
    m_pkWindow->clear();
    Turn();
    EXPECT_EQ(Deleted("DLG_A") + Deleted("POP_1"), TakeErrors());
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_TRUE(IsSeen(POP_1));
    Touch(NativeOf(OBJ_5));
    EXPECT_EQ("OBJ_5", FocusName());
}

TEST_F(COwnScreensOnFLTKTest, WindowDeletedBeforeTheAdapter_IsErrorsAndNothingDangles)
{
    AddScreen(DLG_C, {OBJ_6});
    Show(DLG_C);
    Turn();
    m_pkWindow.reset();
    EXPECT_NE("", TakeErrors());
    Turn();
    EXPECT_EQ("ERROR: CGUIMirror::Commit: No native object could be made for the object with ID DLG_C.\\nIt "
              "and everything in it stay invisible.\\n\n",
              TakeErrors());
    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE));
    Turn();
}

TEST_F(COwnScreensOnFLTKTest, Navigation_KeepsTheHeapAsItIs)
{
    const auto Navigate = [this]
    {
        Show(DLG_B, CGUIDialogManager::ODA_DELETE);
        Turn();
        Dialogs().ShowPopup(POP_1);
        Turn();
        Dialogs().ClosePopup(POP_1);
        Turn();
        Dialogs().Back(true);
        Turn();
    };
    for (int iWarmUp = 0; iWarmUp < 10; ++iWarmUp)
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

TEST_F(COwnScreensOnFLTKTest, Focus_IsThereAfterARebuild)
{
    SetFocus(OBJ_1);
    Turn();
    PressKey(FL_Tab);
    EXPECT_EQ("OBJ_2", FocusName());

    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    Turn();
    EXPECT_EQ(nullptr, Object(DLG_A));
    Dialogs().Back(true);
    Turn();

    EXPECT_EQ(2U, m_kHome.m_uiBuilt);
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_EQ(NativeOf(OBJ_2), Fl::focus());
}

TEST_F(COwnScreensOnFLTKTest, ObjectWithoutAnIdentifier_TakesPartInTheKeysOfItsWindowAlone)
{
    SetFocus(OBJ_2);
    Turn();
    PressKey(FL_Tab);
    EXPECT_EQ(m_kHome.m_pkBuilt->child(2), Fl::focus());
    EXPECT_EQ("OBJ_2", FocusName());
    Turn();
    EXPECT_EQ(m_kHome.m_pkBuilt->child(2), Fl::focus());
    PressKey(FL_Tab);
    EXPECT_EQ("OBJ_1", FocusName());
    PressKey(FL_Tab, "", FL_SHIFT);
    EXPECT_EQ(m_kHome.m_pkBuilt->child(2), Fl::focus());
}

TEST_F(COwnScreensOnFLTKTest, WidgetOfTheApplicationBesideTheDialogs_KeepsTheFocusUntilADialogTakesIt)
{
    Fl_Button kBeside(300, 220, 20, 20);
    m_pkWindow->add(kBeside);
    kBeside.take_focus();
    Show(DLG_B);
    Turn();
    EXPECT_EQ("OBJ_3", FocusName());
    EXPECT_EQ(NativeOf(OBJ_3), Fl::focus());
    kBeside.take_focus();
    delete Object(OBJ_3);
    Turn();
    EXPECT_EQ(nullptr, Focus());
    EXPECT_EQ(&kBeside, Fl::focus());
}

TEST_F(COwnScreensOnFLTKTest, Popup_StaysAboveTheNextScreen)
{
    Dialogs().ShowPopup(POP_1);
    Show(DLG_B, CGUIDialogManager::ODA_DELETE);
    Turn();
    EXPECT_LT(Stage().find(NativeOf(DLG_B)), Stage().find(NativeOf(POP_1)));
    PressKey(FL_Tab);
    EXPECT_EQ("OBJ_5", FocusName());
}

TEST_F(COwnScreensOnFLTKTest, BuilderThatReturnsNull_IsOneErrorAndLeavesNothing)
{
    m_kMenu.m_bFails = true;
    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE));
    Turn();
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ(1, Stage().children());
    EXPECT_EQ("ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 2 failed!\\nThe current "
              "dialog stays "
              "active.\\n\n",
              TakeErrors());
}

TEST_F(COwnScreensOnFLTKTest, BuilderThatThrows_LeavesNothing)
{
    m_kMenu.m_bThrows = true;
    EXPECT_EQ(nullptr, Dialogs().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE));
    Turn();
    EXPECT_TRUE(IsSeen(DLG_A));
    EXPECT_EQ(1, Stage().children());
    m_kMenu.m_bThrows = false;
    Show(DLG_B);
    Turn();
    EXPECT_TRUE(IsSeen(OBJ_3));
}

TEST_F(COwnScreensOnFLTKTest, IdentifyOutsideABuilder_IsRefused)
{
    EXPECT_FALSE(m_pkFLTK->Identify(*m_kHome.m_pkBuilt->child(2), OBJ_9));
    EXPECT_EQ("ERROR: CGUIMirror::AddPart: The native object with ID OBJ_9 is not named by a builder.\\n\n",
              TakeErrors());
}

TEST_F(COwnScreensOnFLTKTest, ManyRandomSwitchesAndPopups_KeepTheHeapAsItIs)
{
    PlayAtRandom("FLTK_RANDOM_TURNS", 2000);
    EXPECT_LT(100U, m_kHome.m_uiBuilt);
    EXPECT_LT(100U, m_kHint.m_uiBuilt);
}
