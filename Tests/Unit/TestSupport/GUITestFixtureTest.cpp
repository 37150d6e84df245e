// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest-spi.h>

class CGUITestFixtureTest : public CGUITest
{
};

TEST_F(CGUITestFixtureTest, Stage_BeginsEmptyAtTimeZero)
{
    EXPECT_EQ(0U, GETTIMER.GetTime());
    EXPECT_EQ(&Root(), CGUI::ms_pInstance);
    EXPECT_EQ(nullptr, Focus());
    EXPECT_WHOLE_STATE("current: none");
    EXPECT_EVENTS("");
}

TEST_F(CGUITestFixtureTest, EmptyStage_CanBeTakenDownInAnyOrder)
{
    DestroyRoot();
    DestroyManager();
    EXPECT_EQ(nullptr, CGUI::ms_pInstance);
}

TEST_F(CGUITestFixtureTest, SetFocus_FailsTheTestWhenTheObjectDoesNotTakeIt)
{
    Attach("DLG_A { OBJ_1; OBJ_2 focusable }");
    SetFocus(OBJ_2);
    EXPECT_EQ(Object(OBJ_2), Focus());
    EXPECT_NONFATAL_FAILURE(SetFocus(OBJ_1), "RequestFocus");
}

TEST_F(CGUITestFixtureTest, ExpectState_ShowsTheDifference)
{
    Attach("DLG_A");
    EXPECT_NONFATAL_FAILURE(EXPECT_STATE("current: DLG_A"), "- current: DLG_A\n"
                                                            "+ current: none\n"
                                                            "+ tree:\n"
                                                            "+   DLG_A\n");
}

TEST_F(CGUITestFixtureTest, ExpectEvents_TakesThem)
{
    GUILOGMESSAGE("once");
    EXPECT_EVENTS("INFO: once");
    EXPECT_EVENTS("");
}

namespace
{
/** A test that leaves something behind. Only its construction and destruction matter. */
class CLeakingTest : public CGUITest
{
public:
    CGUIObject* Leak() { return new CGUIObject; }
    void OverDelete(CGUIObject* pkObject) { delete pkObject; }

private:
    void TestBody() override {}
};
} // namespace

TEST(CGUITestCensusTest, ATestThatLeaksAnObject_Fails)
{
    CGUIObject* pkLeaked = nullptr;
    const auto Run = [&]
    {
        CLeakingTest kTest;
        pkLeaked = kTest.Leak();
    };
    EXPECT_NONFATAL_FAILURE(Run(), "1 GUI objects left over");
    delete pkLeaked;
}

TEST(CGUITestCensusTest, ATestThatDestroysWhatWasThereBefore_Fails)
{
    CGUIObject* pkObject = new CGUIObject;
    const auto Run = [&]
    {
        CLeakingTest kTest;
        kTest.OverDelete(pkObject);
    };
    EXPECT_NONFATAL_FAILURE(Run(), "1 GUI objects destroyed too many");
}
