// SPDX-License-Identifier: MIT
#include "Core/GUITimer.h"

#include <gtest/gtest.h>

namespace
{
TEST(CDefaultClockTest, GetTime_RunsForwardInMilliseconds)
{
    CGUITimer kTimer;
    const eC_UInt uiFirst = kTimer.GetTime();
    eC_UInt uiElapsed = 0;
    eC_UInt uiSteps = 0;
    while (uiElapsed < 30)
    {
        const eC_UInt uiNow = kTimer.GetTime() - uiFirst;
        ASSERT_GE(uiNow, uiElapsed);
        ASSERT_LT(uiNow, 60000U);
        uiSteps += uiNow != uiElapsed ? 1U : 0U;
        uiElapsed = uiNow;
    }

    EXPECT_GE(uiSteps, 1U);
}

TEST(CDefaultClockTest, SetClockWithNull_GivesItBack)
{
    CGUITimer kTimer;
    kTimer.SetClock([] { return eC_UInt{42}; });
    EXPECT_EQ(42U, kTimer.GetTime());
    const eC_UInt uiBefore = CGUITimer().GetTime();

    kTimer.SetClock(nullptr);

    EXPECT_LT(kTimer.GetTime() - uiBefore, 60000U);
}
} // namespace
