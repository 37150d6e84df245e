// SPDX-License-Identifier: MIT
#include "Tests/CoffeeMachineTest.h"

using CPopupsTest = CCoffeeMachineTest;

TEST_F(CPopupsTest, Saved_VanishesWhenItsTimeIsOver)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_STRENGTH});
    Clock().Advance(1999);
    ASSERT_TRUE(Manager().IsPopupDisplayed(POP_SAVED));

    Clock().Advance(1);

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_SAVED));
}

TEST_F(CPopupsTest, Saved_OnceMoreWhileItIsShown_BeginsItsTimeAgain)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_STRENGTH});
    Clock().Advance(1500);

    Touch({BTN_STRENGTH});

    EXPECT_TEXT(R"(
        current: DLG_DRINK_DETAIL after ODA_NOTHING
        history: DLG_DRINKS ODA_NOTHING focus BTN_COFFEE (after ODA_INVISIBLE)
        history: DLG_HOME ODA_INVISIBLE focus BTN_DRINKS (after ODA_NOTHING)
        active: POP_SAVED prio 3, 2000 ms, hide on close, shown, 2000 ms left
        focus: BTN_STRENGTH
    )",
                State());
}

TEST_F(CPopupsTest, Saved_IsBuiltOnceAndKept)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_STRENGTH});
    const CGUIObject* pkSaved = Object(POP_SAVED);
    Clock().Advance(2000);
    ASSERT_EQ(pkSaved, Object(POP_SAVED));
    TakeHooks();

    Touch({BTN_STRENGTH});

    EXPECT_TEXT(R"(
        OnPopupActivation(POP_SAVED)
    )",
                TakeHooks());
    EXPECT_EQ(pkSaved, Object(POP_SAVED));
}

TEST_F(CPopupsTest, MessageTime_IsDoubledAndBackAgain)
{
    PowerOn();
    eC_UInt uiTime = 0;

    Touch({BTN_SETTINGS, BTN_MESSAGE_TIME});
    ASSERT_TRUE(Manager().GetRegisteredPopupDisplayTime(POP_SAVED, uiTime));
    EXPECT_EQ(4000U, uiTime);

    Touch({BTN_MESSAGE_TIME});
    ASSERT_TRUE(Manager().GetRegisteredPopupDisplayTime(POP_SAVED, uiTime));
    EXPECT_EQ(2000U, uiTime);
}

TEST_F(CPopupsTest, WaterEmpty_StopsTheMachineUntilTheTankIsFilled)
{
    PowerOn();
    Machine().SetWater(60);
    Touch({BTN_DRINKS, BTN_CAPPUCCINO, BTN_BREW});
    Clock().Advance(60000);
    EXPECT_EQ(BREWING_WAITING, Machine().GetBrewingState());
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_WATER_EMPTY));

    Machine().SetWater(CMachine::cuiWaterTank);
    EXPECT_EQ(nullptr, Object(POP_WATER_EMPTY));
    Clock().Advance(2000);

    EXPECT_EQ(BREWING_DONE, Machine().GetBrewingState());
}

TEST_F(CPopupsTest, WaterEmpty_LetsNoTouchAndNoKeyThroughButTheTechnicians)
{
    PowerOn();
    Machine().SetWater(0);

    EXPECT_FALSE(Controller().Touch(BTN_DRINKS));
    Controller().PressKey(KEY_OK);
    EXPECT_EQ(DLG_HOME, Manager().GetCurrentDialogID());

    Controller().PressKey(KEY_SERVICE);
    EXPECT_EQ(DLG_CODE, Manager().GetCurrentDialogID());
}

TEST_F(CPopupsTest, TrayMissing_WaitsBehindWaterEmptyAndThenHasItsTurn)
{
    PowerOn();
    Machine().SetWater(0);
    Machine().SetTray(false);
    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        active: POP_TRAY_MISSING prio 7, 0 ms, hide on close, hidden
        active: POP_WATER_EMPTY prio 9, 0 ms, delete on close, shown
        focus: BTN_DRINKS
    )",
                State());

    Machine().SetWater(CMachine::cuiWaterTank);

    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        active: POP_TRAY_MISSING prio 7, 0 ms, hide on close, shown
        focus: BTN_DRINKS
    )",
                State());
}

TEST_F(CPopupsTest, TrayMissing_IsKeptWhenItIsClosed)
{
    PowerOn();
    Machine().SetTray(false);
    const CGUIObject* pkTrayMissing = Object(POP_TRAY_MISSING);

    Machine().SetTray(true);

    EXPECT_EQ(pkTrayMissing, Object(POP_TRAY_MISSING));
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_TRAY_MISSING));
}

TEST_F(CPopupsTest, BeansLow_ComesOnceAndAgainOnlyAfterRefilling)
{
    PowerOn();
    Machine().SetBeans(20);
    Touch({BTN_BEANS_OK});
    Machine().SetBeans(19);
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_BEANS_LOW));

    Machine().SetBeans(CMachine::cuiBeanHopper);
    Machine().SetBeans(20);

    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_BEANS_LOW));
}

TEST_F(CPopupsTest, BeansLow_ClosesWhenBeansAreAdded)
{
    PowerOn();
    Machine().SetBeans(20);

    Machine().SetBeans(CMachine::cuiBeanHopper);

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_BEANS_LOW));
}

TEST_F(CPopupsTest, Brew_WithoutBeans_ShowsTheHintInsteadOfBrewing)
{
    PowerOn();
    Machine().SetBeans(2);
    Touch({BTN_BEANS_OK, BTN_DRINKS, BTN_COFFEE});

    Touch({BTN_BREW});

    EXPECT_EQ(DLG_DRINK_DETAIL, Manager().GetCurrentDialogID());
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_BEANS_LOW));
    EXPECT_EQ(BREWING_IDLE, Machine().GetBrewingState());
}

TEST_F(CPopupsTest, BeansLowAndDescale_AreDisplayedTogetherTheNewerOneOnTop)
{
    PowerOn();
    Machine().SetBeans(20);
    Machine().SetCups(CMachine::cuiCupsToDescale);

    EXPECT_TEXT(R"(
        +----------------------------------------+
        | Coffee machine                         |
        |----------------------------------------|
        |              += Descale soon ========+ |
        |  [ Drinks ]  |                       | |
        |              | >[ Clean now ]<       | |
        |  [ Settings ]+=======================+ |
        |  += Few beans ==========+              |
        |  |  Please add beans.   |              |
        |  |                      |              |
        |  |  [ OK ]              |y             |
        |  +======================+              |
        |                                        |
        +----------------------------------------+
    )",
                Frame());
    EXPECT_TEXT(R"(
        DLG_HOME
        POP_BEANS_LOW
        POP_DESCALE
    )",
                Windows());
}

TEST_F(CPopupsTest, Descale_GoesByItselfAndLeavesTheFocusToTheOtherPopup)
{
    PowerOn();
    Machine().SetBeans(20);
    Machine().SetCups(CMachine::cuiCupsToDescale);

    Clock().Advance(5000);

    EXPECT_TEXT(R"(
        current: DLG_HOME after ODA_NOTHING
        active: POP_BEANS_LOW prio 5, 0 ms, delete on close, shown
        focus: BTN_BEANS_OK
    )",
                State());
}

TEST_F(CPopupsTest, Descale_CleanNow_OpensTheGuide)
{
    PowerOn();
    Machine().SetCups(CMachine::cuiCupsToDescale);

    Touch({BTN_DESCALE_NOW});

    EXPECT_TEXT(R"(
        current: DLG_CLEANING_TABLET after ODA_INVISIBLE
        history: DLG_HOME ODA_INVISIBLE focus BTN_DRINKS (after ODA_NOTHING)
        focus: BTN_CLEANING_NEXT
    )",
                State());
}

TEST_F(CPopupsTest, Descale_CleanNowInTheGuide_StaysWhereOneIs)
{
    PowerOn();
    Touch({BTN_CLEANING, BTN_CLEANING_NEXT});
    Machine().SetCups(CMachine::cuiCupsToDescale);

    Touch({BTN_DESCALE_NOW});

    EXPECT_EQ(DLG_CLEANING_RINSE, Manager().GetCurrentDialogID());
    EXPECT_EQ(2U, Manager().GetHistoryStackSize());
}

TEST_F(CPopupsTest, Descale_SwitchedOff_DoesNotComeAndLogsNoError)
{
    PowerOn();
    EnterService();
    Touch({BTN_REMINDER});

    Machine().SetCups(CMachine::cuiCupsToDescale);

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_DESCALE));
    for (const TraceEntry_t& kEntry : GetTrace())
    {
        EXPECT_NE("ERROR: ", kEntry.m_kPrefix) << kEntry.m_kMessage;
    }
}

TEST_F(CPopupsTest, Descale_SwitchedOffAndOn_IsRegisteredAsBefore)
{
    PowerOn();
    CGUIDialogManager::RegisteredPopup_t kBefore;
    ASSERT_TRUE(Manager().GetRegisteredPopupInfo(POP_DESCALE, kBefore));
    EnterService();

    Touch({BTN_REMINDER, BTN_REMINDER});

    CGUIDialogManager::RegisteredPopup_t kAfter;
    ASSERT_TRUE(Manager().GetRegisteredPopupInfo(POP_DESCALE, kAfter));
    EXPECT_EQ(PrintPopupDefinition(kBefore), PrintPopupDefinition(kAfter));
}

TEST_F(CPopupsTest, Close_WithAnotherPopupBelow_GivesTheFocusBackToWhereItWasInTheDialog)
{
    PowerOn();
    EnterService();
    Touch({BTN_REMINDER, BTN_REMINDER});
    Manager().ShowPopup(POP_DESCALE);
    ASSERT_EQ(BTN_DESCALE_NOW, CGUIEventHandler::GetInstance().GetFocussedObject()->GetID());

    Manager().ClosePopup(POP_DESCALE);

    EXPECT_TEXT(R"(
        current: DLG_SERVICE after ODA_DELETE_ALL
        history: DLG_HOME ODA_DELETE_ALL focus BTN_DRINKS (after ODA_NOTHING)
        active: POP_SAVED prio 3, 2000 ms, hide on close, shown, 2000 ms left
        focus: BTN_REMINDER
    )",
                State());
}

TEST_F(CPopupsTest, Popup_StaysOverADialogThatComes)
{
    PowerOn();
    Machine().SetBeans(20);

    Touch({BTN_SETTINGS});

    EXPECT_TEXT(R"(
        DLG_HOME invisible
        DLG_SETTINGS
        POP_BEANS_LOW
    )",
                Windows());
}

TEST_F(CPopupsTest, Popup_KeepsTheFocusWhenADialogComesByItself)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_COFFEE, BTN_BREW});
    Controller().PressKey(KEY_HOME);
    Machine().SetBeans(20);

    Clock().Advance(5000);

    ASSERT_EQ(DLG_BREWING, Manager().GetCurrentDialogID());
    EXPECT_EQ(BTN_BEANS_OK, CGUIEventHandler::GetInstance().GetFocussedObject()->GetID());
}

TEST_F(CPopupsTest, Touch_GoesThroughWhileAModalPopupWaits)
{
    PowerOn();
    Manager().UnregisterPopupDefinition(POP_SAVED);
    Manager().RegisterPopupDefinition(POP_SAVED, CGUIDialogManager::PRIO_HIGHEST, 1000, false, "");
    Machine().SetTray(false);
    Manager().ShowPopup(POP_SAVED);
    ASSERT_FALSE(Manager().IsPopupDisplayed(POP_TRAY_MISSING));

    Touch({BTN_DRINKS});

    EXPECT_EQ(DLG_DRINKS, Manager().GetCurrentDialogID());
}
