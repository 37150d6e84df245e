// SPDX-License-Identifier: MIT
#include "Tests/CoffeeMachineTest.h"

using CDialogsTest = CCoffeeMachineTest;

TEST_F(CDialogsTest, PowerOn_ShowsTheHomeScreen)
{
    PowerOn();

    EXPECT_TEXT(R"(
        +----------------------------------------+
        | Coffee machine                         |
        |----------------------------------------|
        |                                        |
        | >[ Drinks ]<         Water  ##### 100% |
        |                                        |
        |  [ Settings ]        Beans  ##### 100% |
        |                                        |
        |  [ Cleaning ]                          |
        |                                        |
        |  [ About ]           Ready             |
        |                                        |
        |                                        |
        +----------------------------------------+
    )",
                Frame());
    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        focus: BTN_DRINKS
    )",
                State());
}

TEST_F(CDialogsTest, Drink_OpensAWindowOverTheListThatStaysVisibleAndTakesTheFocus)
{
    PowerOn();

    Touch({BTN_DRINKS, BTN_COFFEE});

    EXPECT_TEXT(R"(
        DLG_HOME invisible
        DLG_DRINKS
        DLG_DRINK_DETAIL
    )",
                Windows());
    EXPECT_TEXT(R"(
        current: DLG_DRINK_DETAIL after ODA_NOTHING
        history: DLG_DRINKS ODA_NOTHING focus BTN_COFFEE (after ODA_INVISIBLE)
        history: DLG_HOME ODA_INVISIBLE focus BTN_DRINKS (after ODA_NOTHING)
        focus: BTN_BREW
    )",
                State());
}

TEST_F(CDialogsTest, Touch_OfAButtonBehindTheWindow_HasNoEffect)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE});

    EXPECT_FALSE(Controller().Touch(BTN_CAPPUCCINO));

    EXPECT_EQ(DRINK_COFFEE, Machine().GetDrink());
}

TEST_F(CDialogsTest, Brew_HidesTheListAsWell)
{
    PowerOn();

    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});

    EXPECT_TEXT(R"(
        DLG_HOME invisible
        DLG_DRINKS invisible
        DLG_DRINK_DETAIL invisible
        DLG_BREWING
    )",
                Windows());
}

TEST_F(CDialogsTest, Back_WhileBrewing_IsVetoedSoTheDialogIsOnlyHidden)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Clock().Advance(1000);
    TakeHooks();

    Controller().PressKey(KEY_BACK);

    EXPECT_TEXT(R"(
        OnDialogDeletion(DLG_BREWING)
        OnDialogDeactivation(DLG_BREWING)
        OnDialogActivation(DLG_DRINK_DETAIL)
        OnAfterDialogDeletion(DLG_BREWING, DLG_DRINK_DETAIL)
    )",
                TakeHooks());
    EXPECT_TEXT(R"(
        DLG_HOME invisible
        DLG_BREWING invisible
        DLG_DRINKS
        DLG_DRINK_DETAIL
    )",
                Windows());
    EXPECT_EQ(BREWING_RUNNING, Machine().GetBrewingState());
}

TEST_F(CDialogsTest, Back_WhenTheCupIsFull_DeletesTheBrewingDialogAndTakesTheCup)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Clock().Advance(5000);
    ASSERT_EQ(BREWING_DONE, Machine().GetBrewingState());

    Controller().PressKey(KEY_BACK);

    EXPECT_EQ(nullptr, Object(DLG_BREWING));
    EXPECT_EQ(BREWING_IDLE, Machine().GetBrewingState());
}

TEST_F(CDialogsTest, Stop_GivesUpTheCupAndDeletesTheBrewingDialog)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Clock().Advance(1000);

    Touch({BTN_STOP});

    EXPECT_EQ(nullptr, Object(DLG_BREWING));
    EXPECT_EQ(BREWING_IDLE, Machine().GetBrewingState());
    const eC_UInt uiWater = Machine().GetWater();
    Clock().Advance(5000);
    EXPECT_EQ(uiWater, Machine().GetWater());
}

TEST_F(CDialogsTest, FullCup_WhileAnotherDialogIsShown_BringsTheBrewingDialogBack)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Controller().PressKey(KEY_HOME);

    Clock().Advance(5000);

    EXPECT_TEXT(R"(
        current: DLG_BREWING after ODA_INVISIBLE, no deletion
        history: DLG_HOME ODA_INVISIBLE focus BTN_DRINKS (after ODA_NOTHING)
        focus: BTN_BACK
    )",
                State());
}

TEST_F(CDialogsTest, FullCup_WhileInService_DoesNotDisturb)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    EnterService();

    Clock().Advance(5000);

    EXPECT_EQ(DLG_SERVICE, Manager().GetCurrentDialogID());
    EXPECT_EQ(BREWING_DONE, Machine().GetBrewingState());
}

TEST_F(CDialogsTest, Brew_WhileACupIsBeingMade_ShowsThatCupAndChangesNothing)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Clock().Advance(1000);
    Controller().PressKey(KEY_HOME);

    Touch({BTN_DRINKS, BTN_ESPRESSO, BTN_BREW});

    EXPECT_EQ(DLG_BREWING, Manager().GetCurrentDialogID());
    EXPECT_EQ(DRINK_COFFEE, Machine().GetCup());
    EXPECT_EQ(20U, Machine().GetProgress());
}

TEST_F(CDialogsTest, Language_DeletesTheSettingsAndBackRebuildsThemWithTheirFocusAndNewTexts)
{
    PowerOn();
    Touch({BTN_SETTINGS, BTN_LANGUAGE});
    ASSERT_EQ(nullptr, Object(DLG_SETTINGS));

    Touch({BTN_GERMAN});

    EXPECT_TEXT(R"(
        +----------------------------------------+
        | Einstellungen                          |
        |----------------------------------------|
        |                                        |
        | >[ Sprache ]<          Deutsch         |
        |                                        |
        |  [ Meldungen: 2 s ]                    |
        |                                        |
        |                                        |
        |           +================+           |
        |           |  Gespeichert   |           |
        |  [ Zurück +================+           |
        |                                        |
        +----------------------------------------+
    )",
                Frame());
    EXPECT_EQ(nullptr, Object(DLG_LANGUAGE));
}

TEST_F(CDialogsTest, Language_ShowsInADialogThatStayedInMemory)
{
    PowerOn();
    const CGUIObject* pkHome = Object(DLG_HOME);
    Touch({BTN_SETTINGS, BTN_LANGUAGE, BTN_GERMAN});

    Controller().PressKey(KEY_HOME);

    EXPECT_EQ(pkHome, Object(DLG_HOME));
    EXPECT_NE(std::string::npos, Frame().find("Kaffeemaschine"));
}

TEST_F(CDialogsTest, About_IsAddedWithADynamicIdentifierAndDeletedByTheProgram)
{
    PowerOn();
    Touch({BTN_ABOUT});
    const ObjectHandle_t eAbout = Manager().GetCurrentDialogID();
    ASSERT_EQ(static_cast<ObjectHandle_t>(cuiNOFObjectHandles - 8), eAbout);

    Touch({BTN_BACK});

    EXPECT_EQ(nullptr, Object(eAbout));
    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        focus: BTN_ABOUT
    )",
                State());
}

TEST_F(CDialogsTest, About_IsAWindowOverTheHomeScreenAndTakesTheFocus)
{
    PowerOn();

    Touch({BTN_ABOUT});

    EXPECT_TEXT(R"(
        +----------------------------------------+
        | Coffee machine                         |
        |----------------------------------------|
        |                                        |
        |  [ +- About ----------------------+00% |
        |    |                              |    |
        |  [ |  An example of dialogs       |00% |
        |    |  and popups in one program.  |    |
        |  [ |                              |    |
        |    | >[ Back ]<                   |    |
        |  [ +------------------------------+    |
        |                                        |
        |                                        |
        +----------------------------------------+
    )",
                Frame());
}

TEST_F(CDialogsTest, BackToBrewing_GivesTheFocusToTheFirstButtonWhateverHadItBefore)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Controller().PressKey(KEY_NEXT);
    ASSERT_EQ(BTN_STOP, CGUIEventHandler::GetInstance().GetFocussedObject()->GetID());
    EnterService();

    Controller().PressKey(KEY_BACK);

    ASSERT_EQ(DLG_BREWING, Manager().GetCurrentDialogID());
    EXPECT_EQ(BTN_BACK, CGUIEventHandler::GetInstance().GetFocussedObject()->GetID());
}

TEST_F(CDialogsTest, Cleaning_HasTheValveOpenWhileTheSecondStepIsShownOnly)
{
    PowerOn();
    Touch({BTN_CLEANING});
    EXPECT_FALSE(Machine().IsValveOpen());
    Touch({BTN_CLEANING_NEXT});
    EXPECT_TRUE(Machine().IsValveOpen());
    Touch({BTN_CLEANING_NEXT});
    EXPECT_FALSE(Machine().IsValveOpen());
    Touch({BTN_BACK});
    EXPECT_TRUE(Machine().IsValveOpen());
    Touch({BTN_BACK});
    EXPECT_FALSE(Machine().IsValveOpen());
}

TEST_F(CDialogsTest, Cleaning_Restart_GoesToTheFirstStepWithoutShowingTheSecond)
{
    PowerOn();
    Touch({BTN_CLEANING, BTN_CLEANING_NEXT, BTN_CLEANING_NEXT});
    TakeHooks();

    Touch({BTN_CLEANING_RESTART});

    EXPECT_TEXT(R"(
        OnDialogDeletion(DLG_CLEANING_EMPTY)
        OnAfterDialogDeletion(DLG_CLEANING_EMPTY, DLG_CLEANING_TABLET)
        OnDialogDeletion(DLG_CLEANING_RINSE)
        OnAfterDialogDeletion(DLG_CLEANING_RINSE, DLG_CLEANING_TABLET)
        OnDialogActivation(DLG_CLEANING_TABLET)
    )",
                TakeHooks());
}

TEST_F(CDialogsTest, Cleaning_Home_GoesThroughTheSecondStepSoThatTheValveFlushes)
{
    PowerOn();
    Touch({BTN_CLEANING, BTN_CLEANING_NEXT, BTN_CLEANING_NEXT});
    TakeHooks();

    Touch({BTN_HOME});

    EXPECT_TEXT(R"(
        OnDialogDeletion(DLG_CLEANING_EMPTY)
        OnDialogActivation(DLG_CLEANING_RINSE)
        OnAfterDialogDeletion(DLG_CLEANING_EMPTY, DLG_CLEANING_RINSE)
        OnDialogDeletion(DLG_CLEANING_RINSE)
        OnDialogActivation(DLG_CLEANING_TABLET)
        OnAfterDialogDeletion(DLG_CLEANING_RINSE, DLG_CLEANING_TABLET)
        OnDialogDeletion(DLG_CLEANING_TABLET)
        OnAfterDialogDeletion(DLG_CLEANING_TABLET, DLG_HOME)
        OnDialogActivation(DLG_HOME)
    )",
                TakeHooks());
    EXPECT_FALSE(Machine().IsValveOpen());
}

TEST_F(CDialogsTest, Cleaning_HomeWithoutAHomeScreenInTheHistory_StartsOver)
{
    PowerOn();
    EnterService();
    Touch({BTN_HOME_LAYOUT});
    Clock().Advance(2000);
    Machine().SetCups(CMachine::cuiCupsToDescale);
    Touch({BTN_DESCALE_NOW, BTN_CLEANING_NEXT});

    Touch({BTN_HOME});

    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        focus: BTN_DRINKS
    )",
                State());
    EXPECT_FALSE(Machine().IsValveOpen());
}

TEST_F(CDialogsTest, Cleaning_Done_KeepsTheHomeScreenOnlyAndResetsTheCups)
{
    PowerOn();
    Machine().SetCups(10);
    Touch({BTN_CLEANING, BTN_CLEANING_NEXT, BTN_CLEANING_NEXT});

    Touch({BTN_CLEANING_NEXT});

    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        focus: BTN_CLEANING
    )",
                State());
    EXPECT_EQ("DLG_HOME\n", Windows());
    EXPECT_EQ(0U, Machine().GetCups());
}

TEST_F(CDialogsTest, Service_DeletesWhatCanBeLoadedAgainAndBackLoadsIt)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_TEA_WATER});

    EnterService();
    EXPECT_TEXT(R"(
        DLG_HOME invisible
        DLG_SERVICE
    )",
                Windows());

    Controller().PressKey(KEY_BACK);
    EXPECT_TEXT(R"(
        DLG_HOME invisible
        DLG_DRINKS
        DLG_DRINK_DETAIL
    )",
                Windows());
}

TEST_F(CDialogsTest, Service_FromAboutAndBack_FindsTheAddedDialogAgain)
{
    PowerOn();
    Touch({BTN_ABOUT});
    const ObjectHandle_t eAbout = Manager().GetCurrentDialogID();
    EnterService();

    Controller().PressKey(KEY_BACK);

    EXPECT_EQ(eAbout, Manager().GetCurrentDialogID());
    EXPECT_NE(nullptr, Manager().GetCurrentDialog());
}

TEST_F(CDialogsTest, Service_KeyWhileServiceIsInTheHistory_GoesBackToIt)
{
    PowerOn();
    EnterService();
    Machine().SetCups(CMachine::cuiCupsToDescale);
    Touch({BTN_DESCALE_NOW});
    ASSERT_EQ(DLG_CLEANING_TABLET, Manager().GetCurrentDialogID());

    EnterService();

    EXPECT_EQ(DLG_SERVICE, Manager().GetCurrentDialogID());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CDialogsTest, HomeLayout_IsLoadedFromTheOtherFileAfterwards)
{
    PowerOn();
    EnterService();
    Touch({BTN_HOME_LAYOUT});
    EXPECT_EQ("DLG_SERVICE\nPOP_SAVED\n", Windows());
    Clock().Advance(2000);

    Controller().PressKey(KEY_HOME);

    EXPECT_NE(std::string::npos, Frame().find("Good morning!"));
    EXPECT_EQ(nullptr, Object(BTN_SETTINGS));
}

TEST_F(CDialogsTest, HomeLayout_ReplacesAHomeScreenThatTheManagerMayNotDelete)
{
    PowerOn();
    Manager().CreateDialog(DLG_SETTINGS, CGUIDialogManager::ODA_INVISIBLE);
    Manager().ClearDialogHistory(0, false, false);
    Manager().CreateDialog(DLG_HOME, CGUIDialogManager::ODA_INVISIBLE);
    EnterService();

    Touch({BTN_HOME_LAYOUT});
    Controller().PressKey(KEY_HOME);

    EXPECT_NE(std::string::npos, Frame().find("Good morning!"));
}

TEST_F(CDialogsTest, HomeLayout_Twice_IsTheFirstOneAgain)
{
    PowerOn();
    EnterService();

    Touch({BTN_HOME_LAYOUT, BTN_HOME_LAYOUT});
    Controller().PressKey(KEY_HOME);

    EXPECT_NE(nullptr, Object(BTN_SETTINGS));
}

TEST_F(CDialogsTest, Back_ToADialogThatCannotBeLoaded_StartsOver)
{
    PowerOn();
    Touch({BTN_SETTINGS, BTN_LANGUAGE});
    Manager().UnregisterDialogDefinition(DLG_SETTINGS);

    Touch({BTN_BACK});

    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        focus: BTN_DRINKS
    )",
                State());
    EXPECT_EQ("DLG_HOME\n", Windows());
}

TEST_F(CDialogsTest, BackKey_ToADialogThatCannotBeLoaded_StartsOver)
{
    PowerOn();
    Touch({BTN_SETTINGS, BTN_LANGUAGE});
    Manager().UnregisterDialogDefinition(DLG_SETTINGS);

    Controller().PressKey(KEY_BACK);

    EXPECT_EQ(DLG_HOME, Manager().GetCurrentDialogID());
    EXPECT_EQ("DLG_HOME\n", Windows());
}

TEST_F(CDialogsTest, HomeKey_OnTheHomeScreen_ChangesNothing)
{
    PowerOn();
    const CGUIObject* pkHome = Object(DLG_HOME);
    TakeHooks();

    Controller().PressKey(KEY_HOME);

    EXPECT_EQ("", TakeHooks());
    EXPECT_EQ(pkHome, Object(DLG_HOME));
}

TEST_F(CDialogsTest, NextKey_MovesTheFocusThroughTheButtonsAndRound)
{
    PowerOn();
    std::vector<ObjectHandle_t> kFocussed;

    for (int iPress = 0; iPress < 4; ++iPress)
    {
        Controller().PressKey(KEY_NEXT);
        kFocussed.push_back(CGUIEventHandler::GetInstance().GetFocussedObject()->GetID());
    }

    EXPECT_EQ((std::vector<ObjectHandle_t>{BTN_SETTINGS, BTN_CLEANING, BTN_ABOUT, BTN_DRINKS}), kFocussed);
}

TEST_F(CDialogsTest, OkKey_PressesTheButtonThatHasTheFocus)
{
    PowerOn();
    Controller().PressKey(KEY_NEXT);

    Controller().PressKey(KEY_OK);

    EXPECT_EQ(DLG_SETTINGS, Manager().GetCurrentDialogID());
}

TEST_F(CDialogsTest, PowerOn_WithoutTheHomeFile_Fails)
{
    Manager().RegisterDialogDefinition("Dialogs/Missing.xml", DLG_HOME);

    EXPECT_FALSE(Controller().Start());
}
