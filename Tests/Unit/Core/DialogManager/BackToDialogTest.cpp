// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <stdexcept>

namespace
{
class CBackToDialogTest : public CDialogTest
{
protected:
    void GoFromAToD(EOldDialogAction eAction)
    {
        DefineEmptyDialogs();
        Go(DLG_A, ODA_NOTHING);
        Go(DLG_B, eAction);
        Go(DLG_C, eAction);
        Go(DLG_D, eAction);
    }
};

TEST_F(CBackToDialogTest, BackToDialog_NotInTheHistory_LogsAnErrorAndChangesNothing)
{
    GoFromAToD(ODA_INVISIBLE);
    for (const eC_Bool bHistoryActivation : {false, true})
    {
        EXPECT_FALSE(Manager().BackToDialog(DLG_E, true, bHistoryActivation));

        EXPECT_EVENTS(
            "ERROR: CGUIDialogManager::BackToDialog: The dialog with id 5 is not contained in the dialog "
            "history.\\n @Source/Core/GUIDialogManager.cpp:#\n");
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
}

TEST_F(CBackToDialogTest, BackToDialog_TheCurrentOneThatIsNotInTheHistory_IsRefused)
{
    GoFromAToD(ODA_INVISIBLE);
    for (const eC_Bool bHistoryActivation : {false, true})
    {
        EXPECT_FALSE(Manager().BackToDialog(DLG_D, true, bHistoryActivation));

        EXPECT_EVENTS(
            "ERROR: CGUIDialogManager::BackToDialog: The dialog with id 4 is not contained in the dialog "
            "history.\\n @Source/Core/GUIDialogManager.cpp:#\n");
        EXPECT_EQ(DLG_D, Manager().GetCurrentDialogID());
        EXPECT_EQ(3U, Manager().GetHistoryStackSize());
    }
}

// --- Direct ----------------------------------------------------------------------------------------

TEST_F(CBackToDialogTest, BackToDialog_Direct_DeletesIntermediatesWithoutShowingThem)
{
    GoFromAToD(ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, DLG_A)
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, DLG_A)
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_WithoutDeletion_HidesWhatIsLeft)
{
    GoFromAToD(ODA_NOTHING);

    EXPECT_TRUE(Manager().BackToDialog(DLG_B, false, false));

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_D)
        OnAfterDialogDeletion(DLG_D, DLG_B)
        OnDialogDeactivation(DLG_C)
        OnAfterDialogDeletion(DLG_C, DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_NOTHING
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_B
          DLG_C invisible
          DLG_D invisible
          DLG_A
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_DoesNotUndoTheActionsOfTheDialogsOnTheWay)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, ODA_INVISIBLE_ALL);
    Go(DLG_D, ODA_DELETE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, DLG_A)
        OnAfterDialogDeletion(DLG_C, DLG_A)
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A invisible
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_StopsAtTheMostRecentEntryOfTheDialog)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_A, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE, no deletion
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_B invisible
          DLG_A
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_TheCurrentOneThatIsInTheHistoryToo_GoesToThatEntry)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_A, ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnAfterDialogDeletion(DLG_A, DLG_A)
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_WithoutCurrentDialog_NamesNoHandleAsTheDialogLeft)
{
    Attach("DLG_A invisible");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_HOOKS(R"(
        OnAfterDialogDeletion(NO_HANDLE, DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_ToADialogThatCannotComeBack_LogsAnErrorAndIsTrue)
{
    GoFromAToD(ODA_INVISIBLE);
    delete Object(DLG_B);

    EXPECT_TRUE(Manager().BackToDialog(DLG_B, true, false));

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 4.\\n\n"
        "OnDialogDeletion(DLG_D) -> true\n"
        "OnAfterDialogDeletion(DLG_D, DLG_B)\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\\n\n"
        "OnDialogDeletion(DLG_C) -> true\n"
        "OnAfterDialogDeletion(DLG_C, DLG_B)\n"
        "ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
        "deleted in the mean time.\\n @Source/Core/GUIDialogManager.cpp:#\n"
        "ERROR: CGUIDialogManager::BackToDialog: Unable to reactivate dialog with id 2.\\n "
        "@Source/Core/GUIDialogManager.cpp:#\n"
        "OnLastDialogDeletion()\n");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_WhenAHookThrows_PassesTheExceptionOnAndLogsNoError)
{
    GoFromAToD(ODA_INVISIBLE);
    Manager().FailHook(3, FAILURE_EXCEPTION);

    EXPECT_THROW(Manager().BackToDialog(DLG_A, true, false), std::runtime_error);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 4.\n
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, DLG_A)
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        OnDialogDeletion(DLG_C) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_INVISIBLE
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B invisible
          DLG_C invisible
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_WhenTheFactoryThrows_PassesTheExceptionOn)
{
    GoFromAToD(ODA_DELETE);
    CodeFactory().FailLoad(1, FAILURE_INT);

    EXPECT_THROW(Manager().BackToDialog(DLG_C, true, false), int);
}

TEST_F(CBackToDialogTest, BackToDialog_Direct_WhenTheHistoryRunsOutBeforeTheTarget_ThrowsTheInt0)
{
    GoFromAToD(ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_AFTER_DIALOG_DELETION,
                      [this](CGUIObject*) { Access::GetHistory(Manager()).RemoveAll(); });

    int iThrown = -1;
    try
    {
        Manager().BackToDialog(DLG_A, true, false);
    }
    catch (int iValue)
    {
        iThrown = iValue;
    }

    EXPECT_EQ(0, iThrown);
    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnAfterDialogDeletion(DLG_D, DLG_A)
    )");
}

// --- Stepwise --------------------------------------------------------------------------------------

TEST_F(CBackToDialogTest, BackToDialog_Stepwise_ActivatesEveryDialogOnTheWay)
{
    GoFromAToD(ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_B, true, true));

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_D, DLG_C)
        OnDialogDeletion(DLG_C) -> true
        OnDialogActivation(DLG_B)
        OnAfterDialogDeletion(DLG_C, DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Stepwise_WithoutDeletion_HidesWhatIsLeft)
{
    GoFromAToD(ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, false, true));

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_D)
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_D, DLG_C)
        OnDialogDeactivation(DLG_C)
        OnDialogActivation(DLG_B)
        OnAfterDialogDeletion(DLG_C, DLG_B)
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_D invisible
          DLG_C invisible
          DLG_B invisible
          DLG_A
    )");
}

TEST_F(CBackToDialogTest, BackToDialog_Stepwise_TheCurrentOneThatIsInTheHistoryToo_IsThereAlready)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_A, ODA_INVISIBLE);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, true));

    EXPECT_EVENTS("");
    EXPECT_EQ(2U, Manager().GetHistoryStackSize());
}

TEST_F(CBackToDialogTest, BackToDialog_Stepwise_WhenAHookThrowsOnce_TriesThatStepAgain)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().FailHook(1, FAILURE_INT);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, true));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) throws int 7
        ERROR: CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
}
} // namespace
