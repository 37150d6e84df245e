// SPDX-License-Identifier: MIT
#include "Scenario/SteppedClock.h"
#include "Core/GUIAnimatable.h"
#include "Core/GUITimer.h"

#include <gmock/gmock.h>

#include <vector>

using ::testing::ElementsAre;

namespace
{
/** Records the times at which it is called, and stops after a number of calls. */
class CCalls : public CGUIAnimatable
{
public:
    CCalls(std::vector<eC_UInt>& kTimes, eC_UInt uiCalls) : m_kTimes(kTimes), m_uiCallsLeft(uiCalls) {}

    void DoAnimate(const eC_Value&) override
    {
        m_kTimes.push_back(GETTIMER.GetTime());
        if (--m_uiCallsLeft == 0)
        {
            GETTIMER.RemoveAnimationCallback(this);
        }
    }

private:
    std::vector<eC_UInt>& m_kTimes;
    eC_UInt m_uiCallsLeft;
};

class CThrowing : public CGUIAnimatable
{
public:
    void DoAnimate(const eC_Value&) override { throw 7; }
};
} // namespace

TEST(CSteppedClockTest, Construction_SetsTheTimersClock)
{
    const CSteppedClock kClock(1234);
    EXPECT_EQ(1234U, GETTIMER.GetTime());
    EXPECT_EQ(1234U, kClock.GetTime());
}

TEST(CSteppedClockTest, Destruction_GivesTheTimerItsOwnClockBack)
{
    constexpr eC_UInt cuiFarFromNow = 0x80000000U;
    const eC_UInt uiSystemTime = GETTIMER.GetTime();
    {
        const CSteppedClock kClock(uiSystemTime + cuiFarFromNow);
        EXPECT_EQ(uiSystemTime + cuiFarFromNow, GETTIMER.GetTime());
    }
    EXPECT_LT(GETTIMER.GetTime() - uiSystemTime, 60000U);
}

TEST(CSteppedClockTest, Advance_RunsEachCallbackAtItsTimeInOrder)
{
    CSteppedClock kClock;
    std::vector<eC_UInt> kTimes;
    CCalls kSlow(kTimes, 1);
    CCalls kFast(kTimes, 3);
    GETTIMER.AddAnimationCallback(250, &kSlow);
    GETTIMER.AddAnimationCallback(100, &kFast);

    kClock.Advance(1000);

    EXPECT_THAT(kTimes, ElementsAre(100U, 200U, 250U, 300U));
    EXPECT_EQ(1000U, kClock.GetTime());
}

TEST(CSteppedClockTest, Advance_RunsACallbackThatIsDueAtItsLastMillisecondAndNoneLater)
{
    CSteppedClock kClock;
    std::vector<eC_UInt> kTimes;
    CCalls kCalls(kTimes, 9);
    GETTIMER.AddAnimationCallback(100, &kCalls);

    kClock.Advance(99);
    EXPECT_TRUE(kTimes.empty());

    kClock.Advance(1);
    EXPECT_THAT(kTimes, ElementsAre(100U));
}

TEST(CSteppedClockTest, Advance_RunsWhatIsOverdueFirst)
{
    CSteppedClock kClock;
    std::vector<eC_UInt> kTimes;
    CCalls kCalls(kTimes, 1);
    GETTIMER.AddAnimationCallback(100, &kCalls);
    kClock.Set(150);
    EXPECT_TRUE(kTimes.empty());

    kClock.Advance(0);

    EXPECT_THAT(kTimes, ElementsAre(150U));
}

TEST(CSteppedClockTest, Advance_GoesOverTheWrapAround)
{
    CSteppedClock kClock(0xFFFFFFF0U);
    std::vector<eC_UInt> kTimes;
    CCalls kCalls(kTimes, 1);
    GETTIMER.AddAnimationCallback(0x20, &kCalls);

    kClock.Advance(0x100);

    EXPECT_THAT(kTimes, ElementsAre(0x10U));
    EXPECT_EQ(0xF0U, kClock.GetTime());
}

TEST(CSteppedClockTest, Advance_StandsWhereACallbackThrew)
{
    CSteppedClock kClock;
    CThrowing kThrowing;
    GETTIMER.AddAnimationCallback(100, &kThrowing);

    EXPECT_THROW(kClock.Advance(1000), int);

    EXPECT_EQ(100U, kClock.GetTime());
}
