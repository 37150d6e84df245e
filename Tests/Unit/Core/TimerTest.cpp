// SPDX-License-Identifier: MIT
#include "Core/GUITimer.h"

#include "Core/GUIAnimatable.h"
#include "Scenario/SteppedClock.h"
#include "TestSupport/TestAccess.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/VirtualSlot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
using Calls_t = std::vector<std::string>;

/** Records each call as its name and the number of intervals, then runs an action. */
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
            // Copied, because the action may destroy this object.
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

TEST_F(CTimerTest, TheLongestInterval_ComesAlsoWhenTheMainLoopIsLate)
{
    GETTIMER.AddAnimationCallback(0xFFFFFFFFU, &m_kA);
    EXPECT_EQ(Calls_t(), RunAt(0x7FFFFFFFU));

    // One millisecond late, the clock shows the same time as when the interval began.
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(0U));
    EXPECT_EQ(0xFFFFFFFEU, GETTIMER.GetTimeUntilCallback(&m_kA));
}

TEST_F(CTimerTest, AMainLoopThatIsLateByARoundOfTheClock_GetsAllIntervalsAndKeepsTheGrid)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(0xFFFFFFFFU, &m_kB);
    // Nothing runs, but the clock is read before it has wrapped around completely.
    for (const eC_UInt uiTime : {0x60000000U, 0xC0000000U, 0x20000000U})
    {
        m_kClock.Set(uiTime);
        EXPECT_EQ(0U, GETTIMER.GetTimeUntilNextCallback());
    }

    // 2^32 + 0x40000000 milliseconds have passed, 5,368,709,120: 20 more than a multiple of the interval.
    EXPECT_EQ(Calls_t({"A 53687092", "B 1"}), RunAt(0x40000000U));
    EXPECT_EQ(80U, GETTIMER.GetTimeUntilCallback(&m_kA));
    EXPECT_EQ(Calls_t({"A 1"}), RunAt(0x40000050U));
}

TEST_F(CTimerTest, RegisteringAnother_ReadsTheClockToo)
{
    GETTIMER.AddAnimationCallback(0xFFFFFFFFU, &m_kA);
    m_kClock.Set(0x80000000U);
    GETTIMER.AddAnimationCallback(0x10, &m_kB);

    EXPECT_EQ(Calls_t({"B 134217728", "A 1"}), RunAt(0U));
}

TEST_F(CTimerTest, GetTimeUntilNextCallback_LetsNobodySleepThroughARoundOfTheClock)
{
    EXPECT_EQ(0x7FFFFFFFU, CGUITimer::cuiLongestWait);

    GETTIMER.AddAnimationCallback(0xFFFFFFFFU, &m_kA);
    EXPECT_EQ(0x7FFFFFFFU, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_EQ(0xFFFFFFFFU, GETTIMER.GetTimeUntilCallback(&m_kA));

    m_kClock.Set(0x7FFFFFFFU);
    EXPECT_EQ(0x7FFFFFFFU, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_EQ(0x80000000U, GETTIMER.GetTimeUntilCallback(&m_kA));
    m_kClock.Set(0x80000001U);
    EXPECT_EQ(0x7FFFFFFEU, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_EQ(0x7FFFFFFEU, GETTIMER.GetTimeUntilCallback(&m_kA));
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

TEST_F(CTimerTest, AddingWithAnotherInterval_NeedsNoMemory)
{
    GETTIMER.AddAnimationCallback(100, &m_kA);
    GETTIMER.AddAnimationCallback(100, &m_kB);
    {
        const CAllocationFailure kFailure;
        GETTIMER.AddAnimationCallback(50, &m_kA);
    }

    EXPECT_EQ(Calls_t({"A 1"}), RunAt(50));
    EXPECT_EQ(Calls_t({"B 1", "A 1"}), RunAt(100));
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

TEST_F(CTimerTest, ATimerThatIsDestroyed_ForgetsItsRegistrationsAndCallsNobody)
{
    const HeapUse_t kBefore = GetHeapUse();
    {
        CGUITimer kTimer;
        kTimer.AddAnimationCallback(100, &m_kA);
        kTimer.AddAnimationCallback(100, &m_kB);
        kTimer.AddAnimationCallback(100, &m_kC);
    }

    EXPECT_EQ(kBefore.m_uiBlocks, GetHeapUse().m_uiBlocks);
    EXPECT_EQ(Calls_t(), TakeCalls());
}

// ---- Many registrations ------------------------------------------------------------------------------

/** Records its number when it is called. */
class CNumbered : public CGUIAnimatable
{
public:
    void DoAnimate(const eC_Value&) override { m_pkCalled->push_back(m_uiNumber); }

    eC_UInt m_uiNumber = 0;
    std::vector<eC_UInt>* m_pkCalled = nullptr;
};

/** Many animatables in an array, and so at equal distances in memory. */
class CManyTimersTest : public ::testing::Test
{
protected:
    using Callback_t = CGUITestAccess::AnimationCallback_t;

    CManyTimersTest() : m_kClock(0), m_kTimer(GETTIMER) {}

    ~CManyTimersTest() override
    {
        m_kMany.clear();
        EXPECT_EQ(CGUITimer::cuiNoCallback, m_kTimer.GetTimeUntilNextCallback());
    }

    void Make(eC_UInt uiNumber)
    {
        m_kMany = std::vector<CNumbered>(uiNumber);
        for (eC_UInt uiIndex = 0; uiIndex < uiNumber; ++uiIndex)
        {
            m_kMany[uiIndex].m_uiNumber = uiIndex;
            m_kMany[uiIndex].m_pkCalled = &m_kCalled;
        }
    }

    void AddAll(eC_UInt uiInterval)
    {
        for (CNumbered& kAnimatable : m_kMany)
        {
            m_kTimer.AddAnimationCallback(uiInterval, &kAnimatable);
        }
    }

    /** @return the maximum number of steps to find a registration, or to go from it back to the top */
    eC_UInt GetMostSteps() const { return GetMostSteps(CGUITestAccess::GetTopCallback(m_kTimer)); }

    static eC_UInt GetMostSteps(const Callback_t* pkTop)
    {
        return pkTop == nullptr ? 0
                                : 1 + std::max(GetMostSteps(pkTop->m_apkChildren[0]),
                                               GetMostSteps(pkTop->m_apkChildren[1]));
    }

    CSteppedClock m_kClock;
    CGUITimer& m_kTimer;
    std::vector<CNumbered> m_kMany;
    std::vector<eC_UInt> m_kCalled;
};

TEST_F(CManyTimersTest, FindingOneOfMany_TakesStepsAsTheLogarithmOfTheirNumber)
{
    Make(1000);
    AddAll(100);
    EXPECT_LE(GetMostSteps(), 20U);
    EXPECT_GE(GetMostSteps(), 10U);

    Make(10000);
    AddAll(100);
    EXPECT_LE(GetMostSteps(), 26U);
    EXPECT_GE(GetMostSteps(), 14U);
}

TEST_F(CManyTimersTest, FindingOneOfMany_NeverTakesMoreStepsThanAnAddressHasBits)
{
    // Allocated one by one, with other blocks in between, so that all distances differ.
    std::vector<std::unique_ptr<CNumbered>> kScattered;
    std::vector<std::unique_ptr<std::vector<char>>> kBetween;
    for (std::size_t uiIndex = 0; uiIndex < 1000; ++uiIndex)
    {
        kScattered.push_back(std::make_unique<CNumbered>());
        kBetween.push_back(std::make_unique<std::vector<char>>(1 + uiIndex * 7919 % 500));
        m_kTimer.AddAnimationCallback(100, kScattered.back().get());
    }

    EXPECT_LE(GetMostSteps(), sizeof(void*) * 8);
}

TEST_F(CManyTimersTest, Many_AreCalledInOrderOfDueTimeAndThenOfRegistration)
{
    Make(1000);
    // Due at 1, 2, ... 10, in turn.
    std::vector<eC_UInt> kExpected;
    for (CNumbered& kAnimatable : m_kMany)
    {
        m_kTimer.AddAnimationCallback(1 + kAnimatable.m_uiNumber % 10, &kAnimatable);
    }
    for (eC_UInt uiRemainder = 0; uiRemainder < 10; ++uiRemainder)
    {
        for (eC_UInt uiIndex = uiRemainder; uiIndex < 1000; uiIndex += 10)
        {
            kExpected.push_back(uiIndex);
        }
    }

    m_kClock.Set(10);
    m_kTimer.ProcessCallbacks();

    EXPECT_EQ(kExpected, m_kCalled);
}

TEST_F(CManyTimersTest, Many_AreFoundAndCalledWhateverOthersAreRemoved)
{
    Make(1000);
    AddAll(100);
    // The remaining ones are called in order, no matter which ones above or below them in the tree were
    // removed.
    for (eC_UInt uiRemoved = 0; uiRemoved < 1000; ++uiRemoved)
    {
        const eC_UInt uiIndex = uiRemoved * 617 % 1000;
        m_kTimer.RemoveAnimationCallback(&m_kMany[uiIndex]);
        ASSERT_FALSE(m_kTimer.IsAnimating(&m_kMany[uiIndex]));
        m_kMany[uiIndex].m_uiNumber = 1000;
        if (uiRemoved % 37 == 0)
        {
            std::vector<eC_UInt> kExpected;
            for (const CNumbered& kAnimatable : m_kMany)
            {
                ASSERT_EQ(kAnimatable.m_uiNumber != 1000, m_kTimer.IsAnimating(&kAnimatable));
                if (kAnimatable.m_uiNumber != 1000)
                {
                    kExpected.push_back(kAnimatable.m_uiNumber);
                }
            }
            m_kCalled.clear();
            m_kClock.Set(m_kClock.GetTime() + 100);
            m_kTimer.ProcessCallbacks();
            ASSERT_EQ(kExpected, m_kCalled);
        }
    }
    EXPECT_EQ(CGUITimer::cuiNoCallback, m_kTimer.GetTimeUntilNextCallback());
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST(CTimerSlotsTest, GetTime_IsTheFirstVirtualOperation)
{
    EXPECT_EQ(0, GetVirtualSlot(&CGUITimer::GetTime));
}
#endif
} // namespace
