// SPDX-License-Identifier: MIT
#include "Core/GUIAnimatable.h"

#include "Core/GUITimer.h"
#include "Scenario/EventLog.h"
#include "Scenario/SteppedClock.h"
#include "Scenario/TraceRecorder.h"
#include "Tests/Unit/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace
{
/** Counts its calls, in memory that outlives it. */
class CCallCounter : public CGUIAnimatable
{
public:
    explicit CCallCounter(int& iCalls) : m_piCalls(&iCalls) {}

    void DoAnimate(const eC_Value&) override { ++*m_piCalls; }

private:
    int* m_piCalls;
};

/** Records in its destructor whether the timer still holds it. */
class CLastWill : public CGUIAnimatable
{
public:
    explicit CLastWill(bool& bWasAnimating) : m_pbWasAnimating(&bWasAnimating) {}
    ~CLastWill() override { *m_pbWasAnimating = CGUITimer::ms_kTimer.IsAnimating(this); }

private:
    bool* m_pbWasAnimating;
};

/** A timer with a stepped clock, and a recording trace. */
class CAnimatableTest : public ::testing::Test
{
protected:
    CAnimatableTest() : m_kTrace(m_kEvents), m_kClock(0) {}

    /** @return the four texts of every trace entry, separated by bars */
    std::vector<std::string> GetTrace() const
    {
        std::vector<std::string> kEntries;
        for (const TraceEntry_t& kEntry : m_kTrace.GetEntries())
        {
            kEntries.push_back(kEntry.m_kPrefix + "|" + kEntry.m_kMessage + "|" + kEntry.m_kFile + "|" +
                               kEntry.m_kLine);
        }
        return kEntries;
    }

    CEventLog m_kEvents;
    CTraceRecorder m_kTrace;
    CSteppedClock m_kClock;
};

TEST_F(CAnimatableTest, Type_IsPolymorphicWithoutDataOfItsOwn)
{
    EXPECT_EQ(sizeof(CGUIAnimatable), sizeof(void*));
    EXPECT_TRUE(std::has_virtual_destructor_v<CGUIAnimatable>);
    EXPECT_TRUE(std::is_copy_constructible_v<CGUIAnimatable>);
    EXPECT_TRUE(std::is_copy_assignable_v<CGUIAnimatable>);
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST_F(CAnimatableTest, VirtualOperations_KeepTheirSlots)
{
    EXPECT_EQ(2, GetVirtualSlot(&CGUIAnimatable::DoAnimate));
    EXPECT_EQ(3, GetVirtualSlot(&CGUIAnimatable::StartAnimation));
    EXPECT_EQ(4, GetVirtualSlot(&CGUIAnimatable::StopAnimation));
    EXPECT_EQ(5, GetVirtualSlot(&CGUIAnimatable::IsAnimating));
}
#endif

TEST_F(CAnimatableTest, DoAnimate_Default_WritesExactlyOneDebugEntryAndChangesNothing)
{
    CGUIAnimatable kAnimatable;
    CGUITimer::ms_kTimer.AddAnimationCallback(100, &kAnimatable);
    kAnimatable.DoAnimate(1.0F);
    EXPECT_EQ(GetTrace(),
              (std::vector<std::string>{
                  "DEBUG: | GUIAnimatable's default DoAnimate() method has just been called. \n"
                  "Could it be that you planned to call an overridden DoAnimate()-method, but the overridden "
                  "method's name or parameter list does not match? \n||"}));
    EXPECT_TRUE(kAnimatable.IsAnimating());
    EXPECT_EQ(100U, CGUITimer::ms_kTimer.GetTimeUntilCallback(&kAnimatable));
}

TEST_F(CAnimatableTest, StartAnimation_Default_WritesExactlyOneDebugEntryAndChangesNothing)
{
    CGUIAnimatable kAnimatable;
    kAnimatable.StartAnimation();
    EXPECT_EQ(GetTrace(),
              (std::vector<std::string>{
                  "DEBUG: | GUIAnimatable's default StartAnimation() method has just been called. \n"
                  "Could it be that you planned to call an overridden StartAnimation()-method, but the "
                  "overridden method's name or parameter list does not match? \n||"}));
    EXPECT_FALSE(kAnimatable.IsAnimating());
}

TEST_F(CAnimatableTest, StopAnimation_Default_WritesExactlyOneDebugEntryAndChangesNothing)
{
    CGUIAnimatable kAnimatable;
    CGUITimer::ms_kTimer.AddAnimationCallback(100, &kAnimatable);
    kAnimatable.StopAnimation();
    EXPECT_EQ(GetTrace(),
              (std::vector<std::string>{
                  "DEBUG: | GUIAnimatable's default StopAnimation() method has just been called. \n"
                  "Could it be that you planned to call an overridden StopAnimation()-method, but the "
                  "overridden method's name or parameter list does not match? \n||"}));
    EXPECT_TRUE(kAnimatable.IsAnimating());
}

TEST_F(CAnimatableTest, IsAnimating_IsTrueBetweenAddingAndRemovingTheCallback)
{
    CGUIAnimatable kAnimatable;
    const CGUIAnimatable kOther;
    EXPECT_FALSE(kAnimatable.IsAnimating());
    CGUITimer::ms_kTimer.AddAnimationCallback(100, &kAnimatable);
    EXPECT_TRUE(kAnimatable.IsAnimating());
    EXPECT_FALSE(kOther.IsAnimating());
    CGUITimer::ms_kTimer.RemoveAnimationCallback(&kAnimatable);
    EXPECT_FALSE(kAnimatable.IsAnimating());
}

TEST_F(CAnimatableTest, Destruction_WhileRegistered_UnregistersAndIsNeverCalledAgain)
{
    int iCalls = 0;
    auto pAnimatable = std::make_unique<CCallCounter>(iCalls);
    const CGUIAnimatable* pkAddress = pAnimatable.get();
    CGUITimer::ms_kTimer.AddAnimationCallback(100, pAnimatable.get());
    m_kClock.Advance(100);
    CGUITimer::ms_kTimer.ProcessCallbacks();
    EXPECT_EQ(1, iCalls);
    pAnimatable.reset();
    EXPECT_FALSE(CGUITimer::ms_kTimer.IsAnimating(pkAddress));
    m_kClock.Advance(100);
    CGUITimer::ms_kTimer.ProcessCallbacks();
    EXPECT_EQ(1, iCalls);
}

TEST_F(CAnimatableTest, Destruction_ThroughTheBase_UnregistersToo)
{
    int iCalls = 0;
    std::unique_ptr<CGUIAnimatable> pAnimatable = std::make_unique<CCallCounter>(iCalls);
    const CGUIAnimatable* pkAddress = pAnimatable.get();
    CGUITimer::ms_kTimer.AddAnimationCallback(100, pAnimatable.get());
    pAnimatable.reset();
    EXPECT_FALSE(CGUITimer::ms_kTimer.IsAnimating(pkAddress));
}

TEST_F(CAnimatableTest, Destruction_UnregistersAsItsLastStep)
{
    bool bWasAnimating = false;
    auto pAnimatable = std::make_unique<CLastWill>(bWasAnimating);
    const CGUIAnimatable* pkAddress = pAnimatable.get();
    CGUITimer::ms_kTimer.AddAnimationCallback(100, pAnimatable.get());
    pAnimatable.reset();
    EXPECT_TRUE(bWasAnimating);
    EXPECT_FALSE(CGUITimer::ms_kTimer.IsAnimating(pkAddress));
}

TEST_F(CAnimatableTest, Destruction_OfAnUnregisteredOne_LeavesOtherRegistrationsAlone)
{
    CGUIAnimatable kRegistered;
    CGUITimer::ms_kTimer.AddAnimationCallback(100, &kRegistered);
    auto pUnregistered = std::make_unique<CGUIAnimatable>();
    pUnregistered.reset();
    EXPECT_TRUE(kRegistered.IsAnimating());
    EXPECT_EQ(100U, CGUITimer::ms_kTimer.GetTimeUntilCallback(&kRegistered));
    EXPECT_EQ(GetTrace(), std::vector<std::string>());
}

TEST_F(CAnimatableTest, Copies_AreNotRegistered)
{
    CGUIAnimatable kRegistered;
    CGUITimer::ms_kTimer.AddAnimationCallback(100, &kRegistered);
    const CGUIAnimatable kCopy(kRegistered);
    CGUIAnimatable kAssigned;
    kAssigned = kRegistered;
    EXPECT_FALSE(kCopy.IsAnimating());
    EXPECT_FALSE(kAssigned.IsAnimating());
    EXPECT_TRUE(kRegistered.IsAnimating());
}

TEST_F(CAnimatableTest, AssignmentToARegisteredOne_KeepsItsRegistration)
{
    CGUIAnimatable kRegistered;
    CGUITimer::ms_kTimer.AddAnimationCallback(100, &kRegistered);
    const CGUIAnimatable kOther;
    kRegistered = kOther;
    EXPECT_TRUE(kRegistered.IsAnimating());
}
} // namespace
