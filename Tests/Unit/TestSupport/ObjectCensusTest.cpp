// SPDX-License-Identifier: MIT
#include "TestSupport/ObjectCensus.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIAnimatable.h"
#include "Core/GUITimer.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/GTest/CensusListener.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(CObjectCensusTest, Take_CountsObjectsSafePointersAndCallbacks)
{
    const ObjectCensus_t kBefore = TakeObjectCensus();
    {
        const CGUIObject kFirst;
        const CGUIObject kSecond;
        const CSafeGUIObjectPtr pkNothing;
        CGUIAnimatable kAnimatable;
        GETTIMER.AddAnimationCallback(1000, &kAnimatable);
        const ObjectCensus_t kNow = TakeObjectCensus();

        EXPECT_EQ(kBefore.m_uiObjects + 2, kNow.m_uiObjects);
        EXPECT_EQ(kBefore.m_uiSafePointers + 1, kNow.m_uiSafePointers);
        EXPECT_TRUE(kNow.m_bTimerCallbacks);
        EXPECT_EQ("2 GUI objects left over\n1 safe pointers left over\ntimer callbacks left over\n",
                  CompareObjectCensus(kBefore, kNow));
        EXPECT_EQ(
            "2 GUI objects destroyed too many\n1 safe pointers destroyed too many\ntimer callbacks lost\n",
            CompareObjectCensus(kNow, kBefore));
    }
    EXPECT_EQ("", CompareObjectCensus(kBefore, TakeObjectCensus()));
}

TEST(CObjectCensusTest, Compare_TellsACountBelowZeroAsTooFew)
{
    ObjectCensus_t kWrapped;
    kWrapped.m_uiObjects = 0xFFFFFFFFU;
    EXPECT_EQ("1 GUI objects destroyed too many\n", CompareObjectCensus(ObjectCensus_t(), kWrapped));
}

TEST(CObjectCensusTest, Listener_FailsATestThatLeaksAndNoOther)
{
    const ::testing::TestInfo& kThisTest = *::testing::UnitTest::GetInstance()->current_test_info();
    CCensusListener kCensusListener;
    ::testing::TestEventListener& kListener = kCensusListener;

    kListener.OnTestStart(kThisTest);
    CGUIObject* pkLeaked = new CGUIObject;
    EXPECT_NONFATAL_FAILURE(kListener.OnTestEnd(kThisTest), "1 GUI objects left over");

    delete pkLeaked;
    kListener.OnTestEnd(kThisTest);
}
