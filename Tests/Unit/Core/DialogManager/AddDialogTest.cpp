// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"
#include "Tests/Unit/TraceMoment.h"

#include <memory>

namespace
{
class CAddDialogTest : public CDialogTest
{
};

TEST_F(CAddDialogTest, AddDialog_OfNull_LogsAnErrorAndChangesNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    Manager().AddDialog(nullptr, ODA_DELETE, true);

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CAddDialogTest, AddDialog_TheFirst_BecomesCurrentAndMayNeverBeDeleted)
{
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 focusable }");

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE, no deletion
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CAddDialogTest, AddDialog_WithoutRecovery_StoresThat)
{
    Manager().AddDialog(Attach("DLG_A"), ODA_NOTHING, false);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion, no recovery
        tree:
          DLG_A
    )");
}

TEST_F(CAddDialogTest, AddDialog_NeitherAttachesNorShowsNorActivates_Intended)
{
    std::unique_ptr<CGUIObject> pkDialog(CObjectTree("DLG_A invisible { OBJ_1 focusable }").Build());

    Manager().AddDialog(pkDialog.get(), ODA_NOTHING, true);

    EXPECT_HOOKS("OnDialogAdded(DLG_A)\n");
    EXPECT_EQ(nullptr, pkDialog->GetParent());
    EXPECT_TRUE(pkDialog->IsInvisible());
    EXPECT_EQ(nullptr, Manager().GetCurrentDialog());
    EXPECT_STATE("current: DLG_A after ODA_NOTHING, no deletion\n");
}

TEST_F(CAddDialogTest, AddDialog_DoesNotRaiseTheDialog_Intended)
{
    CGUIObject* pkDialog = Attach("DLG_A invisible");
    Attach("DLG_B");

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CAddDialogTest, AddDialog_OfAnAnonymousObject_GivesItADynamicIdentifier)
{
    CGUIObject* pkDialog = Attach("-");

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_HOOKS(R"(
        OnDialogAdded(29)
    )");
    EXPECT_STATE(R"(
        current: 29 after ODA_NOTHING, no deletion
        dynamic: 29
        tree:
          29
    )");
}

TEST_F(CAddDialogTest, AddDialog_WithoutOrWithIdentifierInTheHistory_IsAddedAlways)
{
    AddHistoryEntry(DLG_A, ODA_NOTHING);

    Manager().AddDialog(Attach("DLG_A"), ODA_NOTHING, true);

    EXPECT_HOOKS("OnDialogAdded(DLG_A)\n");
}

TEST_F(CAddDialogTest, AddDialog_RecordsTheCurrentDialogWithItsFocusAndLeavesItAsAsked)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Go(DLG_A, ODA_NOTHING);
    CGUIObject* pkDialog = Attach("DLG_B { OBJ_2 focusable }");

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE, no deletion
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)
        focus: OBJ_2
        tree:
          DLG_A invisible
            OBJ_1 focusable
          DLG_B
            OBJ_2 focussed
    )");
}

TEST_F(CAddDialogTest, AddDialog_WithEveryAction_LeavesTheOldDialogsAsCreateDialogDoes)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    CGUIObject* pkDialog = Attach("DLG_E");

    Manager().AddDialog(pkDialog, ODA_DELETE_ALL, true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> true
        OnDialogDeletion(DLG_B) -> true
        OnDialogAdded(DLG_E)
    )");
    EXPECT_STATE(R"(
        current: DLG_E after ODA_DELETE_ALL, no deletion
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_E
    )");
}

TEST_F(CAddDialogTest, AddDialog_GivesTheFocussedObjectAndTheDialogOneIdentifierForBoth_Intended)
{
    DefineDialog(DLG_A, "DLG_A { - focusable }");
    Go(DLG_A, ODA_NOTHING);
    CGUIObject* pkDialog = Attach("-");

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_STATE(R"(
        current: 29 after ODA_INVISIBLE, no deletion
        history: DLG_A ODA_INVISIBLE focus 29 (after ODA_NOTHING)
        dynamic: 29 29
        tree:
          DLG_A invisible
            29 focusable
          29
    )");
}

TEST_F(CAddDialogTest, AddDialog_WhileSomethingHasTheFocus_LeavesItThere)
{
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 focusable }");

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_EQ(Object(OBJ_9), Focus());
}

TEST_F(CAddDialogTest, AddDialog_EnsuresTheFocusAfterTheHook)
{
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED,
                      [this](CGUIObject*)
                      {
                          EXPECT_EQ(nullptr, Focus());
                          SetFocus(OBJ_2);
                      });

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_EQ(Object(OBJ_2), Focus());
}

TEST_F(CAddDialogTest, AddDialog_EnsuresTheFocusBeforeTheArbitration)
{
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Object(POP_1)->SetInvisible(true);
    ClearEvents();
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, [this](CGUIObject*) { EXPECT_EQ(Object(OBJ_1), Focus()); });

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnPopupActivation(POP_1)
    )");
}

TEST_F(CAddDialogTest, AddDialog_LogsTheIdentifierBeforeTheDialogIsCurrent)
{
    CGUIObject* pkDialog = Attach("DLG_A");
    const CTraceMoment kMoment("new dialog has object ID",
                               [this] { EXPECT_EQ(NO_HANDLE, Manager().GetCurrentDialogID()); });

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

TEST_F(CAddDialogTest, AddedDialog_LeftWithADeletingAction_IsHidden)
{
    DefineEmptyDialogs();
    CGUIObject* pkDialog = Attach("DLG_E");
    Manager().AddDialog(pkDialog, ODA_NOTHING, true);
    ClearEvents();

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_E)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_E ODA_DELETE (after ODA_NOTHING, no deletion)
        tree:
          DLG_E invisible
          DLG_B
    )");
}

TEST_F(CAddDialogTest, AddDialog_OfTheCurrentDialogItselfWithDelete_FindsItDestroyedAndLeavesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    Manager().AddDialog(Object(DLG_A), ODA_DELETE, true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
        OnDialogDeletion(DLG_A) -> true
        ERROR: CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
    )");
}

TEST_F(CAddDialogTest, AddDialog_OfADialogStillShownWithDeleteAll_FindsItDestroyedAndLeavesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);

    Manager().AddDialog(Object(DLG_A), ODA_DELETE_ALL, true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
        OnDialogDeletion(DLG_A) -> true
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        ERROR: CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
    )");
}

TEST_F(CAddDialogTest, AddDialog_WhenLeavingTheOldDialogThrows_StopsThereAndLogsAnError)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    CGUIObject* pkDialog = Attach("-");
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        Manager().FailHook(1, eFailure);

        Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

        EXPECT_TRACE(R"(
            ERROR: CGUIDialogManager::AddDialog: Caught an exception during adding a dialog.\n @Source/Core/GUIDialogManager.cpp:#
        )");
        EXPECT_STATE(R"(
            current: DLG_A after ODA_NOTHING
            tree:
              DLG_A
              -
        )");
    }
}

TEST_F(CAddDialogTest, AddDialog_WhenOnDialogAddedThrows_SkipsTheRestAndLogsAnError)
{
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 focusable }");
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        Manager().FailHook(1, eFailure);

        Manager().AddDialog(pkDialog, eFirstUnknownAction, true);

        EXPECT_TRACE(R"(
            DEBUG: CGUIDialogManager::AddDialog: new dialog has object ID 1.\n
            ERROR: CGUIDialogManager::AddDialog: Caught an exception during adding a dialog.\n @Source/Core/GUIDialogManager.cpp:#
        )");
        EXPECT_TEXT("current: DLG_A after 5, no deletion\n", PrintState(Manager(), STATE_CURRENT));
        EXPECT_EQ(nullptr, Focus());
    }
}

TEST_F(CAddDialogTest, AddDialog_WhenTheArbitrationThrows_LogsAnErrorAndStaysCurrent)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Object(POP_1)->SetInvisible(true);
    CGUIObject* pkDialog = Attach("DLG_A");
    ClearEvents();
    Manager().FailHook(2, FAILURE_EXCEPTION);

    Manager().AddDialog(pkDialog, ODA_NOTHING, true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::AddDialog: new dialog has object ID 1.\n
        OnDialogAdded(DLG_A)
        OnPopupActivation(POP_1) throws deliberate failure
        ERROR: CGUIDialogManager::AddDialog: Caught an exception during adding a dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

TEST_F(CAddDialogTest, AddDialog_WhenTheCurrentDialogIsGone_RecordsNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    delete Object(DLG_A);

    Manager().AddDialog(Attach("DLG_E"), ODA_DELETE, true);

    EXPECT_STATE(R"(
        current: DLG_E after ODA_DELETE, no deletion
        tree:
          DLG_E
    )");
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CAddDialogTest, AddDialog_WithoutRoot_StopsTheProgram)
{
    std::unique_ptr<CGUIObject> pkDialog(CObjectTree("DLG_A").Build());
    DestroyRoot();

    EXPECT_DEATH(Manager().AddDialog(pkDialog.get(), ODA_NOTHING, true), "NULL != ms_pInstance");
}
#endif
} // namespace
