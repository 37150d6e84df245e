// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <initializer_list>

namespace
{
class CDynamicObjectIDTest : public CDialogTest
{
protected:
    /** Moves the manager to the end of its range, with these identifiers already handed out. */
    void Exhaust(std::initializer_list<int> kHandedOut)
    {
        Access::GetLastDynObjID(Manager()) = 0x7FFFFFFF;
        for (const int iID : kHandedOut)
        {
            Access::GetDynamicObjectIDs(Manager()).AddAtEnd(iID);
        }
    }
};

TEST_F(CDynamicObjectIDTest, Create_TwiceOnAFreshManager_GivesTheSameIdentifierAndRecordsItTwice_Intended)
{
    EXPECT_EQ(29, Manager().CreateDynamicObjectID());
    EXPECT_EQ(29, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 29 29
    )");
    EXPECT_EVENTS("");
}

TEST_F(CDynamicObjectIDTest, Create_NeverAdvancesItsSource_Intended)
{
    Manager().CreateDynamicObjectID();
    EXPECT_EQ(29, Access::GetLastDynObjID(Manager()));

    Exhaust({});
    Manager().CreateDynamicObjectID();
    EXPECT_EQ(0x7FFFFFFF, Access::GetLastDynObjID(Manager()));
}

TEST_F(CDynamicObjectIDTest, Create_JustBeforeTheEndOfTheRange_DoesNotSearch)
{
    Access::GetLastDynObjID(Manager()) = 0x7FFFFFFE;

    EXPECT_EQ(0x7FFFFFFE, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 2147483646
    )");
}

TEST_F(CDynamicObjectIDTest, Create_Exhausted_WithoutRecords_StartsOneBehindTheFirstDynamicIdentifier)
{
    Exhaust({});

    EXPECT_EQ(30, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 30
    )");
}

TEST_F(CDynamicObjectIDTest, Create_Exhausted_WithRecordsFromTheStart_GoesOnBehindThem)
{
    Exhaust({30, 31, 32});

    EXPECT_EQ(33, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 30 31 32 33
    )");
}

TEST_F(CDynamicObjectIDTest, Create_Exhausted_WithAGap_InsertsTheIdentifierThereAndAppendsItAsWell_Intended)
{
    Exhaust({30, 31, 34, 35});

    EXPECT_EQ(32, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 30 31 32 34 35 32
    )");
}

TEST_F(CDynamicObjectIDTest, Create_Exhausted_WithAGapAtTheFront_InsertsBeforeTheFirstRecord)
{
    Exhaust({29, 30});

    EXPECT_EQ(30, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 30 29 30 30
    )");
}

TEST_F(CDynamicObjectIDTest, Create_Exhausted_Repeatedly_StopsAtTheFirstRecordThatDiffers)
{
    Exhaust({});

    EXPECT_EQ(30, Manager().CreateDynamicObjectID());
    EXPECT_EQ(31, Manager().CreateDynamicObjectID());
    EXPECT_EQ(32, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: none
        dynamic: 30 31 32
    )");
}

TEST_F(CDynamicObjectIDTest, Create_RecordsNothingThatIsEverTakenBack_Intended)
{
    CGUIObject* pkDialog = Attach("-");
    Manager().AddDialog(pkDialog, ODA_NOTHING, true);
    delete pkDialog;

    EXPECT_EQ(29, Manager().CreateDynamicObjectID());

    EXPECT_STATE(R"(
        current: 29 after ODA_NOTHING, no deletion
        dynamic: 29 29
    )");
}
} // namespace
