// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

namespace
{
/** DLG_D is current, over DLG_C, DLG_B and DLG_A. */
class CClearDialogHistoryTest : public CDialogTest
{
protected:
    CClearDialogHistoryTest()
    {
        DefineEmptyDialogs();
        Go(DLG_A, ODA_NOTHING);
        Go(DLG_B, ODA_INVISIBLE);
        Go(DLG_C, ODA_INVISIBLE);
        Go(DLG_D, ODA_INVISIBLE);
    }

    void ExpectNothingHasHappened()
    {
        EXPECT_EVENTS("");
        EXPECT_STATE(R"(
            current: DLG_D after ODA_INVISIBLE
            history: DLG_C ODA_INVISIBLE (after ODA_INVISIBLE)
            history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
            history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
            tree:
              DLG_A invisible
              DLG_B invisible
              DLG_C invisible
              DLG_D
        )");
    }
};

TEST_F(CClearDialogHistoryTest, Clear_NotMoreThanAreToBeKept_DoesNothing)
{
    Manager().ClearDialogHistory(3, true, false);
    ExpectNothingHasHappened();

    Manager().ClearDialogHistory(4, true, true);
    ExpectNothingHasHappened();

    Manager().ClearDialogHistory(0xFFFFFFFFU, true, true);
    ExpectNothingHasHappened();
}

TEST_F(CClearDialogHistoryTest, Clear_AsManyAsEntriesButWithTheCurrentDialog_RemovesTheCurrentDialog)
{
    Manager().ClearDialogHistory(3, true, true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, DLG_A)
        OnDialogActivation(DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B invisible
          DLG_C
    )");
}

TEST_F(CClearDialogHistoryTest,
       Clear_ToNothingWithTheCurrentDialog_LeavesNoDialogAndCallsNoOnLastDialogDeletion)
{
    Manager().ClearDialogHistory(0, true, true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, NO_HANDLE)
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, NO_HANDLE)
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
        OnDialogDeletion(DLG_A) -> true
        OnAfterDialogDeletion(DLG_A, NO_HANDLE)
    )");
    EXPECT_STATE("current: none\n");
}

TEST_F(CClearDialogHistoryTest, Clear_ToOneWithoutTheCurrentDialog_KeepsTheOldestAndLeavesTheCurrentOneShown)
{
    Manager().ClearDialogHistory(1, true, false);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, NO_HANDLE)
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_D
    )");
}

TEST_F(CClearDialogHistoryTest, Clear_WithoutDeletion_HidesWhatIsRemoved)
{
    Object(DLG_B)->SetInvisible(false);

    Manager().ClearDialogHistory(1, false, true);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_D)
        OnAfterDialogDeletion(DLG_D, DLG_C)
        OnAfterDialogDeletion(DLG_C, DLG_C)
        OnDialogDeactivation(DLG_B)
        OnAfterDialogDeletion(DLG_B, DLG_C)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_B invisible
          DLG_C invisible
          DLG_D invisible
          DLG_A
    )");
}

TEST_F(CClearDialogHistoryTest, Clear_NamesTheTargetCountedFromTheMostRecentEnd_Intended)
{
    Manager().ClearDialogHistory(2, true, true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, DLG_B)
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CClearDialogHistoryTest, Clear_WithoutTheCurrentDialog_NamesNoTarget)
{
    Manager().ClearDialogHistory(2, true, false);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, NO_HANDLE)
    )");
}

TEST_F(CClearDialogHistoryTest, Clear_WithTheCurrentDialogButWithoutOne_StillTakesOneEntryAsTheCurrentDialog)
{
    delete Object(DLG_D);
    Access::GetCurrentDialog(Manager()) = Access::DialogDescription_t();

    Manager().ClearDialogHistory(3, true, true);
    EXPECT_EVENTS("");

    Manager().ClearDialogHistory(2, true, true);
    EXPECT_HOOKS(R"(
        OnAfterDialogDeletion(NO_HANDLE, DLG_B)
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CClearDialogHistoryTest,
       Clear_WhenTheKeptDialogCannotComeBack_LeavesNoDialogAndCallsNoOnLastDialogDeletion)
{
    delete Object(DLG_B);

    Manager().ClearDialogHistory(2, true, true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 4.\\n\n"
        "OnDialogDeletion(DLG_D) -> true\n"
        "OnAfterDialogDeletion(DLG_D, DLG_B)\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\\n\n"
        "OnDialogDeletion(DLG_C) -> true\n"
        "OnAfterDialogDeletion(DLG_C, DLG_B)\n"
        "ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
        "deleted in the mean time.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
    )");
}

TEST_F(CClearDialogHistoryTest, Clear_WhenAHookThrows_EndsThereAndKeepsWhatIsDone)
{
    Manager().FailHook(4, FAILURE_INT);

    Manager().ClearDialogHistory(0, true, true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 4.\\n\n"
        "OnDialogDeletion(DLG_D) -> true\n"
        "OnAfterDialogDeletion(DLG_D, NO_HANDLE)\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\\n\n"
        "OnDialogDeletion(DLG_C) -> true\n"
        "OnAfterDialogDeletion(DLG_C, NO_HANDLE) throws int 7\n"
        "ERROR: CGUIDialogManager::ClearDialogHistory: Caught an exception during deletion of the dialog "
        "history.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_INVISIBLE
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B invisible
    )");
}

TEST_F(CClearDialogHistoryTest, Clear_WhenTheFactoryThrows_LogsAnError)
{
    Go(DLG_A, ODA_DELETE);
    CodeFactory().FailLoad(1, FAILURE_EXCEPTION);

    Manager().ClearDialogHistory(4, true, true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: Dialog with ID 1 may not be deleted and will be set "
        "invisible instead.\\n\n"
        "OnDialogDeactivation(DLG_A)\n"
        "OnAfterDialogDeletion(DLG_A, DLG_A)\n"
        "ERROR: CGUIDialogManager::ClearDialogHistory: Caught an exception during deletion of the dialog "
        "history.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
    EXPECT_EQ(3U, Manager().GetHistoryStackSize());
}

class CClearEmptyDialogHistoryTest : public CDialogTest
{
};

TEST_F(CClearEmptyDialogHistoryTest, Clear_OfAFreshManager_DoesNothing)
{
    Manager().ClearDialogHistory(0, true, true);
    Manager().ClearDialogHistory(0, true, false);

    EXPECT_EVENTS("");
    EXPECT_STATE("current: none\n");
}

TEST_F(CClearEmptyDialogHistoryTest, Clear_WithNothingButTheCurrentDialog_RemovesItOnRequestOnly)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    Manager().ClearDialogHistory(0, true, false);
    Manager().ClearDialogHistory(1, true, true);
    EXPECT_EVENTS("");

    Manager().ClearDialogHistory(0, true, true);
    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> true
        OnAfterDialogDeletion(DLG_A, NO_HANDLE)
    )");
    EXPECT_STATE("current: none\n");
}

TEST_F(CClearEmptyDialogHistoryTest, Clear_ToNothing_OfAnAddedDialog_HidesIt)
{
    Manager().AddDialog(Attach("DLG_E"), ODA_NOTHING, true);

    Manager().ClearDialogHistory(0, true, true);

    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_E invisible
    )");
}
} // namespace
