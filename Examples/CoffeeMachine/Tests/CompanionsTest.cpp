// SPDX-License-Identifier: MIT
// What the coffee machine does with the classes of Companions/.

#include "Application/RetainedMemory.h"
#include "Tests/CoffeeMachineTest.h"

namespace
{
/** A machine whose memory keeps its contents without power. */
class CCompanionsTest : public CCoffeeMachineTest
{
protected:
    CCompanionsTest() { CutPower(); }

    /** Ends the machine without any notice, and builds another one with the same memory. */
    void CutPower()
    {
        m_pkCoffeeMachine.reset();
        m_pkCoffeeMachine = std::make_unique<CCoffeeMachine>(&m_kMemory);
    }

    CRetainedMemory m_kMemory;
};

// --- The service code --------------------------------------------------------------------------------

TEST_F(CCompanionsTest, Service_WithTheRightCode_IsShownAndTheQuestionIsForgotten)
{
    PowerOn();

    EnterService();

    EXPECT_TEXT(R"(
        current: DLG_SERVICE after ODA_DELETE_ALL
        history: DLG_HOME ODA_DELETE_ALL focus BTN_DRINKS (after ODA_NOTHING)
        focus: BTN_HOME_LAYOUT
    )",
                State());
}

TEST_F(CCompanionsTest, Service_WithAWrongCode_GoesBack)
{
    PowerOn();
    Touch({BTN_DRINKS});
    Controller().PressKey(KEY_SERVICE);

    Touch({BTN_DIGIT_1, BTN_DIGIT_1, BTN_DIGIT_1, BTN_DIGIT_1});

    EXPECT_EQ(DLG_DRINKS, Manager().GetCurrentDialogID());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CCompanionsTest, Service_DigitsOfAnEarlierQuestion_DoNotCount)
{
    PowerOn();
    Controller().PressKey(KEY_SERVICE);
    Touch({BTN_DIGIT_3, BTN_DIGIT_1});
    Controller().PressKey(KEY_BACK);

    EnterService();

    EXPECT_EQ(DLG_SERVICE, Manager().GetCurrentDialogID());
}

TEST_F(CCompanionsTest, Service_ReachedByGoingBack_AsksAgain)
{
    PowerOn();
    EnterService();
    Machine().SetCups(CMachine::cuiCupsToDescale);
    Touch({BTN_DESCALE_NOW});

    Controller().PressKey(KEY_BACK);

    EXPECT_TRUE(Object(DLG_SERVICE)->IsInvisible());
    EXPECT_EQ(DLG_CODE, Manager().GetCurrentDialogID());
    Controller().PressKey(KEY_BACK);
    EXPECT_EQ(DLG_HOME, Manager().GetCurrentDialogID());
}

// --- Nobody is there ---------------------------------------------------------------------------------

TEST_F(CCompanionsTest, NobodyIsThere_GoesHome)
{
    PowerOn();
    Touch({BTN_SETTINGS, BTN_LANGUAGE});

    Clock().Advance(19000);
    EXPECT_EQ(DLG_LANGUAGE, Manager().GetCurrentDialogID());
    Controller().PressKey(KEY_NEXT);
    Clock().Advance(19999);
    EXPECT_EQ(DLG_LANGUAGE, Manager().GetCurrentDialogID());
    Clock().Advance(2);

    EXPECT_EQ(DLG_HOME, Manager().GetCurrentDialogID());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
}

TEST_F(CCompanionsTest, NobodyIsThere_WhileTheGuideIsOpenOrWaterIsMissing_NothingHappens)
{
    PowerOn();
    Touch({BTN_CLEANING});
    Clock().Advance(60000);
    EXPECT_EQ(DLG_CLEANING_TABLET, Manager().GetCurrentDialogID());

    Controller().PressKey(KEY_HOME);
    Touch({BTN_DRINKS});
    Machine().SetWater(0);
    Clock().Advance(60000);
    EXPECT_EQ(DLG_DRINKS, Manager().GetCurrentDialogID());
}

// --- The power fails ---------------------------------------------------------------------------------

TEST_F(CCompanionsTest, PowerFails_TheDialogOfTheDrinkIsShownAgain)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_CAPPUCCINO});
    Clock().Advance(500);

    CutPower();
    PowerOn();

    EXPECT_EQ(DRINK_CAPPUCCINO, Machine().GetDrink());
    EXPECT_TEXT(R"(
        current: DLG_DRINK_DETAIL after ODA_NOTHING
        history: DLG_DRINKS ODA_NOTHING focus BTN_CAPPUCCINO (after ODA_INVISIBLE)
        history: DLG_HOME ODA_INVISIBLE focus BTN_DRINKS (after ODA_NOTHING)
        focus: BTN_BREW
    )",
                State());
}

TEST_F(CCompanionsTest, PowerFails_WhileACupIsBeingMade_ItIsLost)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_TEA_WATER, BTN_BREW});
    Clock().Advance(1000);

    CutPower();
    PowerOn();

    EXPECT_EQ(DLG_DRINK_DETAIL, Manager().GetCurrentDialogID());
    EXPECT_EQ(DRINK_TEA_WATER, Machine().GetDrink());
    EXPECT_FALSE(Machine().IsBrewing());
}

TEST_F(CCompanionsTest, PowerFails_InService_AsksForTheCodeAgain)
{
    PowerOn();
    EnterService();
    Clock().Advance(500);

    CutPower();
    PowerOn();
    Frame();

    EXPECT_TRUE(Object(DLG_SERVICE)->IsInvisible());
    EXPECT_EQ(DLG_CODE, Manager().GetCurrentDialogID());
}

// --- Drinks and sensors ------------------------------------------------------------------------------

TEST_F(CCompanionsTest, BackToADrink_SelectsThatDrinkAgain)
{
    PowerOn();
    Touch({BTN_DRINKS, BTN_CAPPUCCINO, BTN_BREW});
    Machine().SelectDrink(DRINK_ESPRESSO);

    Controller().PressKey(KEY_BACK);

    EXPECT_EQ(DRINK_CAPPUCCINO, Machine().GetDrink());
}

TEST_F(CCompanionsTest, Sensors_TheMachineHearsOfThemInTheMainLoop)
{
    PowerOn();
    CSensors& kSensors = m_pkCoffeeMachine->GetSensors();

    EXPECT_TRUE(kSensors.NoteWater(0));
    EXPECT_TRUE(kSensors.NoteTray(false));
    EXPECT_TRUE(kSensors.NoteBeans(20));
    EXPECT_FALSE(Machine().IsWaterEmpty());
    kSensors.Process();

    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_WATER_EMPTY));
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_TRAY_MISSING));
    EXPECT_EQ(20U, Machine().GetBeans());
}

TEST_F(CCompanionsTest, Sensors_TooManyValues_AreRefusedAndFourAreTakenAtATime)
{
    CSensors& kSensors = m_pkCoffeeMachine->GetSensors();
    for (eC_UInt uiValue = 1; uiValue <= 8; ++uiValue)
    {
        EXPECT_TRUE(kSensors.NoteWater(uiValue * 100));
    }
    EXPECT_FALSE(kSensors.NoteWater(900));

    kSensors.Process();
    EXPECT_EQ(400U, Machine().GetWater());
    kSensors.Process();
    EXPECT_EQ(800U, Machine().GetWater());
}
} // namespace
