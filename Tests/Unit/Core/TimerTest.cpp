#include "Core/GUITimer.h"

#include "Core/GUIAnimatable.h"
#include "Scenario/SteppedClock.h"
#include "Tests/Unit/AllocationCounter.h"
#include "Tests/Unit/VirtualSlot.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
using Calls_t = std::vector<std::string>;

/** Records its calls as its name and the number of intervals, and then runs an action. */
class CRecordingAnimatable : public CGUIAnimatable
{
public:
    CRecordingAnimatable(std::string kName, Calls_t& kCalls) : m_kName(std::move(kName)), m_kCalls(kCalls) {}

    void DoAnimate(const eC_Value& vTimes) override
    {
        EXPECT_EQ(static_cast<eC_Value>(static_cast<eC_UInt>(vTimes)), vTimes);
        m_kCalls.push_back(m_kName + " " + std::to_string(static_cast<eC_UInt>(vTimes)));
        if (m_kAction)
        {
            // The action may destroy this object and itself with it.
            const std::function<void()> kAction = m_kAction;
            kAction();
        }
    }

    std::function<void()> m_kAction;

private:
    std::string m_kName;
    Calls_t& m_kCalls;
};

class CTimerTest : public ::testing::Test
{
protected:
    CTimerTest() : m_kClock(0), m_kA("A", m_kCalls), m_kB("B", m_kCalls), m_kC("C", m_kCalls) {}

    ~CTimerTest() override
    {
        for (CGUIAnimatable* pkAnimatable : {&m_kA, &m_kB, &m_kC})
        {
            GETTIMER.RemoveAnimationCallback(pkAnimatable);
        }
        EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    }

    /** Sets the time and runs what is due. @return the calls made */
    Calls_t RunAt(eC_UInt uiTime)
    {
        m_kClock.Set(uiTime);
        GETTIMER.ProcessCallbacks();
        return TakeCalls();
    }

    Calls_t TakeCalls()
    {
        Calls_t kCalls;
        kCalls.swap(m_kCalls);
        return kCalls;
    }

    Calls_t m_kCalls;
    CSteppedClock m_kClock;
    CRecordingAnimatable m_kA;
    CRecordingAnimatable m_kB;
    CRecordingAnimatable m_kC;
};

TEST_F(CTimerTest, Instance_IsTheStaticTimer)
{
    EXPECT_EQ(&CGUITimer::ms_kTimer, &CGUITimer::GetInstance());
    EXPECT_EQ(&CGUITimer::ms_kTimer, &GETTIMER);
}

TEST_F(CTimerTest, GetTime_AsksTheClockThatWasSet)
{
    m_kClock.Set(123456);

    EXPECT_EQ(123456U, GETTIMER.GetTime());
}

TEST_F(CTimerTest, Callback_ComesOncePerInterval)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(Calls_t(), RunAt(99));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(100));
    EXPECT_EQ(Calls_t(), RunAt(100));
    EXPECT_EQ(Calls_t(), RunAt(199));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(200));
}

TEST_F(CTimerTest, LateMainLoop_GetsOneCallWithTheElapsedIntervalsAndKeepsTheGrid)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(Calls_t({"A 7"}), RunAt(750));
    EXPECT_EQ(50U, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_EQ(Calls_t(), RunAt(799));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(800));
    EXPECT_EQ(Calls_t({"A 2"}), RunAt(1000));
}

TEST_F(CTimerTest, DueCallbacks_ComeInTheOrderOfTheirDueTimes)
{
    GETTIMER.AddAnimationCallback(300, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    GETTIMER.AddAnimationCallback(200, &m_kC);

    EXPECT_EQ(Calls_t({"B 3", "C 1", "A 1"}), RunAt(300));
}

TEST_F(CTimerTest, DueCallbacks_OrderByWhenTheyBecameDueNotByWhenTheyWereRegistered)
{
    GETTIMER.AddAnimationCallback(300, &m_kA);
    m_kClock.Set(250);
    GETTIMER.AddAnimationCallback(100, &m_kB);

    EXPECT_EQ(Calls_t({"A 1", "B 2"}), RunAt(500));
}

TEST_F(CTimerTest, CallbacksDueTogether_ComeInTheOrderOfRegistration)
{
    GETTIMER.AddAnimationCallback(100, &m_kB);
    GETTIMER.AddAnimationCallback(100, &m_kA);
    m_kClock.Set(50);
    GETTIMER.AddAnimationCallback(50, &m_kC);

    EXPECT_EQ(Calls_t({"B 1", "A 1", "C 1"}), RunAt(100));
}

TEST_F(CTimerTest, AddingWithTheSameInterval_KeepsTheRunningRegistration)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    m_kClock.Set(90);

    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(10U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(Calls_t({"A 1", "B 1"}), RunAt(100));
    GETTIMER.RemoveAnimationCallback(&m_kA);
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));
}

TEST_F(CTimerTest, AddingWithAnotherInterval_ReplacesTheRegistrationCountedFromNowInTheLastPlace)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(140, &m_kB);
    m_kClock.Set(90);

    GETTIMER.AddAnimationCallback(50, &m_kA);

    EXPECT_EQ(50U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(Calls_t(), RunAt(139));
    EXPECT_EQ(Calls_t({"B 1", "A 1"}), RunAt(140));
    GETTIMER.RemoveAnimationCallback(&m_kA);
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));
}

TEST_F(CTimerTest, AnIntervalOfZero_IsNeverRegisteredAndKeepsARunningRegistration)
{
    GETTIMER.AddAnimationCallback(0, &m_kA);
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));

    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(0, &m_kA);
    EXPECT_TRUE(GETTIMER.IsAnimating(&m_kA));
    EXPECT_EQ(100U, GETTIMER.GetTimeUntilCallback(&m_kA));
}

TEST_F(CTimerTest, AddingAndRemovingNull_IsIgnored)
{
    GETTIMER.AddAnimationCallback(100, nullptr);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_FALSE(GETTIMER.IsAnimating(nullptr));

    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.RemoveAnimationCallback(nullptr);
    EXPECT_TRUE(GETTIMER.IsAnimating(&m_kA));
}

TEST_F(CTimerTest, Removing_EndsTheCallsOfThatOneOnly)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);

    GETTIMER.RemoveAnimationCallback(&m_kA);
    GETTIMER.RemoveAnimationCallback(&m_kC);

    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));
    EXPECT_TRUE(GETTIMER.IsAnimating(&m_kB));
    EXPECT_EQ(Calls_t({"B 1"}), RunAt(100));
}

TEST_F(CTimerTest, RemovingItselfFromInsideItsCallback_IsSafeAndEndsItsCalls)
{
    m_kA.m_kAction = [this] { GETTIMER.RemoveAnimationCallback(&m_kA); };
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);

    EXPECT_EQ(Calls_t({"A 1", "B 1"}), RunAt(100));
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));
    EXPECT_EQ(Calls_t({"B 1"}), RunAt(200));
}

TEST_F(CTimerTest, RemovingAnotherDueOneFromInsideACallback_KeepsItFromBeingCalledInThatPass)
{
    m_kA.m_kAction = [this] { GETTIMER.RemoveAnimationCallback(&m_kB); };
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    GETTIMER.AddAnimationCallback(100, &m_kC);

    EXPECT_EQ(Calls_t({"A 1", "C 1"}), RunAt(100));
}

TEST_F(CTimerTest, DestroyingTheRunningOneAndOthersFromInsideACallback_IsSafe)
{
    auto pkDoomed = std::make_unique<CRecordingAnimatable>("doomed", m_kCalls);
    auto pkRunning = std::make_unique<CRecordingAnimatable>("running", m_kCalls);
    pkRunning->m_kAction = [&pkRunning, &pkDoomed]
    {
        pkDoomed.reset();
        pkRunning.reset();
    };
    GETTIMER.AddAnimationCallback(100, pkRunning.get());
    GETTIMER.AddAnimationCallback(100, pkDoomed.get());
    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(Calls_t({"running 1", "A 1"}), RunAt(100));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(200));
}

TEST_F(CTimerTest, AddingFromInsideACallback_BecomesDueInALaterPass)
{
    m_kA.m_kAction = [this] { GETTIMER.AddAnimationCallback(1, &m_kB); };
    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(Calls_t({"A 5"}), RunAt(500));
    EXPECT_EQ(1U, GETTIMER.GetTimeUntilCallback(&m_kB));
    EXPECT_EQ(Calls_t({"B 1"}), RunAt(501));
}

TEST_F(CTimerTest, AddingFromInsideACallbackThatTakesItsTime_BecomesDueInALaterPassToo)
{
    m_kA.m_kAction = [this]
    {
        m_kClock.Set(m_kClock.GetTime() + 7);
        GETTIMER.AddAnimationCallback(100, &m_kB);
    };
    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(Calls_t({"A 1"}), RunAt(100));
    EXPECT_EQ(100U, GETTIMER.GetTimeUntilCallback(&m_kB));
    m_kA.m_kAction = nullptr;
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(206));
    EXPECT_EQ(Calls_t({"B 1"}), RunAt(207));
}

TEST_F(CTimerTest, AddingItselfAnewFromInsideItsCallbackThatTakesItsTime_BecomesDueInALaterPassToo)
{
    m_kA.m_kAction = [this]
    {
        m_kClock.Set(m_kClock.GetTime() + 7);
        GETTIMER.AddAnimationCallback(50, &m_kA);
    };
    GETTIMER.AddAnimationCallback(100, &m_kA);

    EXPECT_EQ(Calls_t({"A 1"}), RunAt(100));
    EXPECT_EQ(50U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(Calls_t(), RunAt(156));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(157));
}

TEST_F(CTimerTest, ACallbackThatTakesItsTime_DoesNotMakeOthersDueInThatPass)
{
    m_kA.m_kAction = [this] { m_kClock.Set(m_kClock.GetTime() + 50); };
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(120, &m_kB);

    EXPECT_EQ(Calls_t({"A 1"}), RunAt(100));
    EXPECT_EQ(0U, GETTIMER.GetTimeUntilCallback(&m_kB));
    m_kA.m_kAction = nullptr;
    EXPECT_EQ(Calls_t({"B 1"}), RunAt(150));
}

TEST_F(CTimerTest, AnException_EndsThePassAndLeavesTheTimerConsistent)
{
    m_kA.m_kAction = [] { throw std::runtime_error("deliberate failure"); };
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    m_kClock.Set(130);

    EXPECT_THROW(GETTIMER.ProcessCallbacks(), std::runtime_error);
    EXPECT_EQ(Calls_t({"A 1"}), TakeCalls());
    EXPECT_EQ(70U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(0U, GETTIMER.GetTimeUntilCallback(&m_kB));

    EXPECT_EQ(Calls_t({"B 1"}), RunAt(130));
    m_kA.m_kAction = nullptr;
    EXPECT_EQ(Calls_t({"A 1", "B 1"}), RunAt(200));
}

TEST_F(CTimerTest, APassFromInsideACallback_CallsNothingTwice)
{
    m_kA.m_kAction = [this]
    {
        m_kA.m_kAction = nullptr;
        m_kClock.Set(m_kClock.GetTime() + 7);
        GETTIMER.ProcessCallbacks();
    };
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    GETTIMER.AddAnimationCallback(105, &m_kC);

    EXPECT_EQ(Calls_t({"A 1", "B 1", "C 1"}), RunAt(100));
    EXPECT_EQ(Calls_t({"A 1", "B 1"}), RunAt(200));
}

TEST_F(CTimerTest, Intervals_RunAcrossTheWrapAround)
{
    m_kClock.Set(0xFFFFFFF0U);
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(8, &m_kB);

    EXPECT_EQ(Calls_t({"B 1"}), RunAt(0xFFFFFFFFU));
    EXPECT_EQ(85U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(Calls_t({"B 1"}), RunAt(0U));
    EXPECT_EQ(Calls_t({"B 10"}), RunAt(83U));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(84U));
    EXPECT_EQ(100U, GETTIMER.GetTimeUntilCallback(&m_kA));
}

TEST_F(CTimerTest, DueTimes_OrderAcrossTheWrapAround)
{
    m_kClock.Set(0xFFFFFFF0U);
    GETTIMER.AddAnimationCallback(20, &m_kA);
    GETTIMER.AddAnimationCallback(10, &m_kB);

    EXPECT_EQ(Calls_t({"B 3", "A 1"}), RunAt(20U));
}

TEST_F(CTimerTest, TheLongestInterval_IsKept)
{
    GETTIMER.AddAnimationCallback(0xFFFFFFFFU, &m_kA);

    EXPECT_EQ(Calls_t(), RunAt(0x80000000U));
    EXPECT_EQ(Calls_t(), RunAt(0xFFFFFFFEU));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(0xFFFFFFFFU));
}

TEST_F(CTimerTest, GetTimeUntilNextCallback_IsTheShortestTimeLeft)
{
    EXPECT_EQ(0xFFFFFFFFU, CGUITimer::cuiNoCallback);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());

    GETTIMER.AddAnimationCallback(300, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    GETTIMER.AddAnimationCallback(200, &m_kC);
    EXPECT_EQ(100U, GETTIMER.GetTimeUntilNextCallback());

    m_kClock.Set(60);
    EXPECT_EQ(40U, GETTIMER.GetTimeUntilNextCallback());
    m_kClock.Set(100);
    EXPECT_EQ(0U, GETTIMER.GetTimeUntilNextCallback());
    m_kClock.Set(170);
    EXPECT_EQ(0U, GETTIMER.GetTimeUntilNextCallback());

    GETTIMER.RemoveAnimationCallback(&m_kB);
    EXPECT_EQ(30U, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CTimerTest, GetTimeUntilCallback_IsThatOfOneAnimatable)
{
    GETTIMER.AddAnimationCallback(300, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    m_kClock.Set(120);

    EXPECT_EQ(180U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(0U, GETTIMER.GetTimeUntilCallback(&m_kB));
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilCallback(&m_kC));
}

TEST_F(CTimerTest, IsAnimating_IsTrueWhileRegistered)
{
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));

    GETTIMER.AddAnimationCallback(100, &m_kA);
    EXPECT_TRUE(GETTIMER.IsAnimating(&m_kA));
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kB));

    RunAt(100);
    EXPECT_TRUE(GETTIMER.IsAnimating(&m_kA));

    GETTIMER.RemoveAnimationCallback(&m_kA);
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));
}

TEST_F(CTimerTest, AddingWithoutMemory_ThrowsAndKeepsTheOthers)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(GETTIMER.AddAnimationCallback(100, &m_kB), std::bad_alloc);
    }

    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kB));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(100));
}

TEST_F(CTimerTest, RunningCallbacks_AllocatesNothing)
{
    class CCounting : public CGUIAnimatable
    {
    public:
        void DoAnimate(const eC_Value&) override { ++m_iCalls; }

        int m_iCalls = 0;
    };
    CCounting kAnimatable;
    GETTIMER.AddAnimationCallback(100, &kAnimatable);
    m_kClock.Set(100);
    const CAllocationCounter kCounter;

    GETTIMER.ProcessCallbacks();
    GETTIMER.AddAnimationCallback(100, &kAnimatable);

    EXPECT_EQ(0U, kCounter.GetNumber());
    EXPECT_EQ(1, kAnimatable.m_iCalls);
}

TEST_F(CTimerTest, TimersAreIndependent)
{
    CGUITimer kTimer;

    kTimer.AddAnimationCallback(100, &m_kA);

    EXPECT_TRUE(kTimer.IsAnimating(&m_kA));
    EXPECT_FALSE(GETTIMER.IsAnimating(&m_kA));
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST(TimerSlots, GetTime_IsTheFirstVirtualOperation)
{
    EXPECT_EQ(0, GetVirtualSlot(&CGUITimer::GetTime));
}
#endif
} // namespace
