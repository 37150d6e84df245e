// SPDX-License-Identifier: MIT
#include "Application/Machine.h"
#include "Core/GUITimer.h"
#include "Scenario/SteppedClock.h"

#include <gtest/gtest.h>

namespace
{
class CMachineTest : public ::testing::Test
{
protected:
    CSteppedClock m_kClock;
    CMachine m_kMachine;
};
} // namespace

TEST_F(CMachineTest, Cup_TakesFiveSecondsAndItsWaterAndBeans)
{
    m_kMachine.SelectDrink(DRINK_COFFEE);
    m_kMachine.StartBrewing();

    m_kClock.Advance(4999);
    EXPECT_EQ(BREWING_RUNNING, m_kMachine.GetBrewingState());
    EXPECT_EQ(90U, m_kMachine.GetProgress());
    m_kClock.Advance(1);

    EXPECT_EQ(BREWING_DONE, m_kMachine.GetBrewingState());
    EXPECT_EQ(CMachine::cuiWaterTank - 120, m_kMachine.GetWater());
    EXPECT_EQ(CMachine::cuiBeanHopper - 10, m_kMachine.GetBeans());
    EXPECT_EQ(1U, m_kMachine.GetCups());
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CMachineTest, Cup_IsFullAtOnceWhenTheMainLoopComesLate)
{
    m_kMachine.StartBrewing();
    m_kClock.Set(60000);

    GETTIMER.ProcessCallbacks();

    EXPECT_EQ(BREWING_DONE, m_kMachine.GetBrewingState());
    EXPECT_EQ(CMachine::cuiWaterTank - 40, m_kMachine.GetWater());
}

TEST_F(CMachineTest, Strength_ChangesTheBeansOfACup)
{
    m_kMachine.SetNextStrength();
    EXPECT_EQ(STRENGTH_STRONG, m_kMachine.GetStrength());
    m_kMachine.StartBrewing();
    EXPECT_EQ(CMachine::cuiBeanHopper - 10, m_kMachine.GetBeans());

    m_kMachine.StopBrewing();
    m_kMachine.SetNextStrength();
    EXPECT_EQ(STRENGTH_MILD, m_kMachine.GetStrength());
    m_kMachine.StartBrewing();
    EXPECT_EQ(CMachine::cuiBeanHopper - 10 - 6, m_kMachine.GetBeans());
}

TEST_F(CMachineTest, SelectingADrink_DoesNotChangeTheCupThatIsBeingMade)
{
    m_kMachine.SelectDrink(DRINK_TEA_WATER);
    m_kMachine.StartBrewing();
    m_kMachine.SelectDrink(DRINK_ESPRESSO);

    m_kClock.Advance(5000);

    EXPECT_EQ(CMachine::cuiWaterTank - 200, m_kMachine.GetWater());
}

TEST_F(CMachineTest, Start_WithSomethingMissing_DoesNothing)
{
    m_kMachine.SetTray(false);
    EXPECT_FALSE(m_kMachine.CanStartBrewing());
    m_kMachine.SetTray(true);
    m_kMachine.SetWater(19);
    EXPECT_FALSE(m_kMachine.CanStartBrewing());
    m_kMachine.SetWater(20);
    m_kMachine.SetBeans(7);
    EXPECT_FALSE(m_kMachine.CanStartBrewing());
    m_kMachine.StartBrewing();
    EXPECT_EQ(BREWING_IDLE, m_kMachine.GetBrewingState());

    m_kMachine.SetBeans(8);
    EXPECT_TRUE(m_kMachine.CanStartBrewing());
}

TEST_F(CMachineTest, Tray_TakenOutWhileBrewing_MakesTheMachineWait)
{
    m_kMachine.StartBrewing();
    m_kClock.Advance(1000);
    m_kMachine.SetTray(false);
    m_kClock.Advance(10000);
    EXPECT_EQ(BREWING_WAITING, m_kMachine.GetBrewingState());
    EXPECT_EQ(20U, m_kMachine.GetProgress());

    m_kMachine.SetTray(true);
    m_kClock.Advance(500);

    EXPECT_EQ(30U, m_kMachine.GetProgress());
}

TEST_F(CMachineTest, Tanks_TakeNoMoreThanTheirSize)
{
    m_kMachine.SetWater(4294967295U);
    m_kMachine.SetBeans(4294967295U);

    EXPECT_EQ(CMachine::cuiWaterTank, m_kMachine.GetWater());
    EXPECT_EQ(CMachine::cuiBeanHopper, m_kMachine.GetBeans());
}

TEST(CMachineLifetimeTest, Machine_DestroyedWhileBrewing_LeavesNoCallback)
{
    CSteppedClock kClock;
    {
        CMachine kMachine;
        kMachine.StartBrewing();
        ASSERT_EQ(500U, GETTIMER.GetTimeUntilNextCallback());
    }
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}
