// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <memory>
#include <stdexcept>

namespace
{
class CDialogHookTest : public CDialogTest
{
protected:
    static void Destroy(CGUIObject* pkObject) { delete pkObject; }

    /** @return the state that a hook sees, without the popups */
    std::string StateInHook() { return PrintState(Manager(), STATE_CURRENT | STATE_HISTORY | STATE_TREE); }
};

// --- What a hook sees ------------------------------------------------------------------------------

TEST_F(CDialogHookTest, OnDialogAdded_InCreateDialog_SeesTheNewDialogCurrentAndShown)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    std::string kState;
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_TEXT(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )",
                kState);
}

TEST_F(CDialogHookTest, OnDialogAdded_InAddDialog_SeesTheNewDialogCurrent)
{
    std::string kState;
    CGUIObject* pkDialog = Attach("-");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_TEXT(R"(
        current: 29 after ODA_INVISIBLE, no deletion
        tree:
          29
    )",
                kState);
}

TEST_F(CDialogHookTest, OnDialogActivation_InBack_SeesTheDialogCurrentAndShown)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_DELETE);
    Go(DLG_B, ODA_INVISIBLE);
    std::string kState;
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().Back(true);

    EXPECT_TEXT(R"(
        current: DLG_A after ODA_DELETE
        tree:
          DLG_A
    )",
                kState);
}

TEST_F(CDialogHookTest, OnDialogDeactivation_SeesTheOldDialogCurrentShownAndNotYetRecorded)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    std::string kState;
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_TEXT(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
          DLG_B
    )",
                kState);
}

TEST_F(CDialogHookTest, OnDialogDeletion_IsAskedBeforeAnythingIsDeleted)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    std::string kState;
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_TEXT(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
            OBJ_1
          DLG_B
    )",
                kState);
}

TEST_F(CDialogHookTest, OnAfterDialogDeletion_InBack_SeesThePreviousDialogBack)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    std::string kState;
    Manager().RunOnce(HOOK_ON_AFTER_DIALOG_DELETION, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().Back(true);

    EXPECT_TEXT(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )",
                kState);
}

TEST_F(CDialogHookTest, OnAfterDialogDeletion_InBackToDialog_SeesTheOldDescriptionStillCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    std::string kState;
    Manager().RunOnce(HOOK_ON_AFTER_DIALOG_DELETION, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_TEXT(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
    )",
                kState);
}

TEST_F(CDialogHookTest, OnLastDialogDeletion_InBack_SeesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    delete Object(DLG_A);
    std::string kState;
    Manager().RunOnce(HOOK_ON_LAST_DIALOG_DELETION, [&](CGUIObject*) { kState = StateInHook(); });

    Manager().Back(true);

    EXPECT_TEXT("current: none\n", kState);
}

// --- Hooks that throw inside CreateDialog ----------------------------------------------------------

TEST_F(CDialogHookTest, OnDialogDeactivation_ThrowingInCreateDialog_PassesAndTheOldDialogStaysCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().FailHook(1, FAILURE_EXCEPTION);

    EXPECT_THROW(Manager().CreateDialog(DLG_B, ODA_INVISIBLE), std::runtime_error);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_ThrowingInCreateDialogWithNothing_PassesAndNothingIsRecorded)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().FailHook(1, FAILURE_INT);

    EXPECT_THROW(Manager().CreateDialog(DLG_B, ODA_NOTHING), int);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_ThrowingInCreateDialog_PassesAndNothingIsDeleted)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().FailHook(1, FAILURE_INT);

    EXPECT_THROW(Manager().CreateDialog(DLG_B, ODA_DELETE), int);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) throws int 7
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogAdded_ThrowingInCreateDialog_PassesAndTheNewDialogIsCurrent)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Manager().FailHook(1, FAILURE_EXCEPTION);

    EXPECT_THROW(Manager().CreateDialog(DLG_A, ODA_INVISIBLE), std::runtime_error);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE
        tree:
          DLG_A
            OBJ_1 focusable
    )");
}

TEST_F(CDialogHookTest, OnDialogActivation_ThrowingInCreateDialog_PassesAndTheNewDialogIsCurrent)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Manager().FailHook(2, FAILURE_INT);

    EXPECT_THROW(Manager().CreateDialog(DLG_A, ODA_INVISIBLE), int);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A) throws int 7
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE
        tree:
          DLG_A
            OBJ_1 focusable
    )");
}

TEST_F(CDialogHookTest, OnLastDialogDeletion_ThrowingInBack_EndsItWithAnError)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    delete Object(DLG_A);
    Manager().FailHook(2, FAILURE_INT);

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion() throws int 7
        ERROR: CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE("current: none\n");
}

// --- Hooks that destroy the dialog -----------------------------------------------------------------

TEST_F(CDialogHookTest, OnDialogDeactivation_DestroyingTheDialogThatIsHidden_IsSafe)
{
    DefineEmptyDialogs();
    for (const EOldDialogAction eAction : {ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_NOTHING})
    {
        Access::GetHistory(Manager()).RemoveAll();
        Go(DLG_A, ODA_NOTHING);
        Access::GetHistory(Manager()).RemoveAll();
        Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, Destroy);

        ExpectIsObject(DLG_B, Manager().CreateDialog(DLG_B, eAction));

        EXPECT_TEXT("history: DLG_A " + NameOfAction(eAction) + " (after ODA_NOTHING)\n",
                    PrintState(Manager(), STATE_HISTORY));
        EXPECT_TEXT("tree:\n  DLG_B\n", PrintState(Manager(), STATE_TREE));
        delete Object(DLG_B);
    }
}

TEST_F(CDialogHookTest, OnDialogDeactivation_DestroyingTheDialogThatBackHides_IsSafe)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, Destroy);

    Manager().Back(false);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_OfAnOlderDialogDestroyingTheCurrentOne_IsSafe)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { delete Object(DLG_B); });

    Manager().CreateDialog(DLG_C, ODA_INVISIBLE_ALL);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_C)
        OnDialogActivation(DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE_ALL
        history: DLG_B ODA_INVISIBLE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_DestroyingTheNewDialog_MakesItBeObtainedOnceMore)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { delete Object(DLG_B); });

    ExpectIsObject(DLG_B, Manager().CreateDialog(DLG_B, ODA_INVISIBLE));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_B: 0.\n
        OnDialogDeactivation(DLG_A)
        INFO: Time for loading code:DLG_B: 0.\n
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_DestroyingTheDialogItself_IsSafe)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, Destroy);

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> true
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_DestroyingTheDialogAndRefusing_IsSafe)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().SetVeto(DLG_A);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, Destroy);

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> false
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogAdded_DestroyingTheNewDialog_EndsInNullWithoutActivation)
{
    DefineEmptyDialogs();
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, Destroy);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
    )");
    EXPECT_STATE("current: DLG_A after ODA_NOTHING\n");
}

TEST_F(CDialogHookTest, OnDialogActivation_DestroyingTheNewDialog_EndsInNull)
{
    DefineEmptyDialogs();
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, Destroy);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE("current: DLG_A after ODA_NOTHING\n");
}

TEST_F(CDialogHookTest, OnDialogAdded_DestroyingTheAddedDialog_IsSafe)
{
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, Destroy);

    Manager().AddDialog(Attach("DLG_A { OBJ_1 focusable }"), ODA_NOTHING, true);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
    )");
    EXPECT_STATE("current: DLG_A after ODA_NOTHING, no deletion\n");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_DestroyingTheDialogToAdd_LeavesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    CGUIObject* pkDialog = Attach("DLG_E");
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [pkDialog](CGUIObject*) { delete pkDialog; });

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_EVENTS(R"(
        OnDialogDeactivation(DLG_A)
        ERROR: CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
    )");
}

TEST_F(CDialogHookTest, OnDialogActivation_DestroyingTheDialogThatCameBack_CountsAsBack)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, Destroy);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE("current: DLG_A after ODA_NOTHING\n");
}

// --- Hooks that change the dialog ------------------------------------------------------------------

TEST_F(CDialogHookTest, OnDialogDeactivation_RenamingTheDialog_HidesItAllTheSame)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [](CGUIObject* pkDialog) { pkDialog->SetID(DLG_H); });

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_H invisible
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_DetachingTheDialog_HidesItAllTheSame)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    const std::unique_ptr<CGUIObject> pkDialog(Object(DLG_A));
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION,
                      [](CGUIObject* pkObject) { pkObject->SetParent(nullptr); });

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_TRUE(pkDialog->IsInvisible());
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_ReplacingTheDialog_LeavesTheReplacementShown)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION,
                      [this](CGUIObject* pkDialog)
                      {
                          delete pkDialog;
                          Attach("DLG_A { OBJ_1 }");
                      });

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A
            OBJ_1
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_OfAnOlderDialogRenamingTheCurrentOne_HidesThatAllTheSame)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { Object(DLG_B)->SetID(DLG_H); });

    Manager().CreateDialog(DLG_C, ODA_INVISIBLE_ALL);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogDeactivation(DLG_H)
        OnDialogAdded(DLG_C)
        OnDialogActivation(DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE_ALL
        history: DLG_B ODA_INVISIBLE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_H invisible
          DLG_C
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_RenamingTheDialog_DeletesItAllTheSame)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject* pkDialog) { pkDialog->SetID(DLG_H); });

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_ReplacingTheDialog_DoesNotDeleteTheReplacement)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION,
                      [this](CGUIObject* pkDialog)
                      {
                          delete pkDialog;
                          Attach("DLG_A { OBJ_1 }");
                      });

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_A
            OBJ_1
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_ReplacingTheDialogAndRefusing_HidesTheReplacement)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().SetVeto(DLG_A);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION,
                      [this](CGUIObject* pkDialog)
                      {
                          delete pkDialog;
                          Attach("DLG_A { OBJ_1 }");
                      });

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> false
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_A invisible
            OBJ_1
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_RenamingTheDialogAndRefusing_NamesTheOldIdentifierAndFindsItNoMore)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().SetVeto(DLG_A);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject* pkDialog) { pkDialog->SetID(DLG_H); });

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_TRACE(
        "INFO: Time for loading code:DLG_B: 0.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: Dialog with ID 1 may not be deleted and will be set "
        "invisible instead.\\n\n"
        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_H
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_ChangingTheCurrentDialog_BackStillNamesTheDialogLeft)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().SetVeto(DLG_B);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, [this](CGUIObject*)
                      { Access::GetCurrentDialog(Manager()) = Access::DialogDescription_t(); });

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> false
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
}

// --- Hooks that call the manager -------------------------------------------------------------------

TEST_F(CDialogHookTest, OnLastDialogDeletion_CreatingADialog_ReportsThatDialogAsTheNewOne)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    delete Object(DLG_A);
    Manager().RunOnce(HOOK_ON_LAST_DIALOG_DELETION,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_C, ODA_NOTHING); });

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion()
        OnDialogAdded(DLG_C)
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_B, DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_NOTHING
        tree:
          DLG_C
    )");
}

TEST_F(CDialogHookTest, OnDialogActivation_CreatingAnotherDialog_LeavesThatOneCurrent)
{
    DefineEmptyDialogs();
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_B, ODA_INVISIBLE); });

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
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

TEST_F(CDialogHookTest, OnDialogAdded_ReplacingTheNewDialogWithDelete_GivesItNoActivation)
{
    DefineEmptyDialogs();
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_B, ODA_DELETE); });

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogDeletion(DLG_A) -> true
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeactivation_ShowingAPopup_IsArbitratedAboveTheNewDialog)
{
    DefineEmptyDialogs();
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");
    Go(DLG_A, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { Manager().ShowPopup(POP_1); });

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        active: POP_1 prio 3, 0 ms, delete on close, shown
        tree:
          DLG_A invisible
          DLG_B
          POP_1
    )");
}

TEST_F(CDialogHookTest, OnAfterDialogDeletion_CreatingADialogInBack_ComesAfterTheReturn)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_AFTER_DIALOG_DELETION,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_C, ODA_INVISIBLE); });

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C
    )");
}

TEST_F(CDialogHookTest, CreateDialogImpl_CreatingAnotherDialog_RecordsThatOneAsTheOneLeft)
{
    DefineDialog(DLG_C, "DLG_C");
    Manager().SetDialogCreator(DLG_B, [this] { return Attach("DLG_B"); });
    Manager().RunOnce(HOOK_CREATE_DIALOG_IMPL,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_C, ODA_NOTHING); });

    ExpectIsObject(DLG_B, Manager().CreateDialog(DLG_B, ODA_INVISIBLE));

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_C ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_C invisible
          DLG_B
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_ClearingTheHistoryWhileItIsWalked_IsSafe)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, ODA_NOTHING);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION,
                      [this](CGUIObject*) { Manager().ClearDialogHistory(0, false, false); });

    Manager().CreateDialog(DLG_D, ODA_DELETE_ALL);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> true
        OnDialogDeactivation(DLG_B)
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
        OnDialogDeactivation(DLG_A)
        OnAfterDialogDeletion(DLG_A, NO_HANDLE)
        OnDialogDeletion(DLG_C) -> true
        OnDialogAdded(DLG_D)
        OnDialogActivation(DLG_D)
    )");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_DELETE_ALL
        history: DLG_C ODA_DELETE_ALL (after ODA_NOTHING)
        tree:
          DLG_B invisible
          DLG_D
    )");
}

TEST_F(CDialogHookTest, OnDialogDeletion_EmptyingTheHistoryInsideBack_BringsNothingBack)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION,
                      [this](CGUIObject*) { Manager().ClearDialogHistory(0, false, false); });

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_A, NO_HANDLE)
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        tree:
          DLG_A invisible
    )");
}

// --- After every switch some object has the focus ----------------------------------------------------

TEST_F(CDialogHookTest, CreateDialog_WhenOnDialogAddedDestroysTheDialog_GivesTheFocusToAnotherObject)
{
    Attach("DLG_E { OBJ_1 focusable }");
    DefineDialog(DLG_A, "DLG_A");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, Destroy);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_E
            OBJ_1 focussed
    )");
}

TEST_F(CDialogHookTest, CreateDialog_WhenOnDialogActivationDestroysTheDialog_GivesTheFocusToAnotherObject)
{
    Attach("DLG_E { OBJ_1 focusable }");
    DefineDialog(DLG_A, "DLG_A");
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, Destroy);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_E
            OBJ_1 focussed
    )");
}

TEST_F(CDialogHookTest, AddDialog_WhenOnDialogAddedDestroysTheDialog_GivesTheFocusToAnotherObject)
{
    Attach("DLG_E { OBJ_1 focusable }");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, Destroy);

    Manager().AddDialog(Attach("DLG_A"), ODA_NOTHING, true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        focus: OBJ_1
        tree:
          DLG_E
            OBJ_1 focussed
    )");
}

// --- Switching inside the hook of a switch that fails ------------------------------------------------

TEST_F(CDialogHookTest,
       CreateDialog_ThatCannotObtainItsDialogAgain_LeavesTheDialogCurrentThatTheHookSwitchedTo)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 }");
    Go(DLG_A, ODA_NOTHING);
    DefineDialog(DLG_B, "DLG_B");
    Manager().RunOnce(HOOK_CREATE_DIALOG_IMPL,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_B, ODA_INVISIBLE); });

    // The object is inside the dialog that the action deletes, and nothing can create it again.
    EXPECT_EQ(nullptr, Manager().CreateDialog(OBJ_1, ODA_DELETE));

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}
} // namespace
