// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <stdexcept>

namespace
{
class CBackNavigationTest : public CDialogTest
{
};

// --- Back ------------------------------------------------------------------------------------------

TEST_F(CBackNavigationTest, Back_WithoutCurrentDialog_ChangesNothingAndCallsNoHook)
{
    Manager().Back(true);
    EXPECT_EVENTS("");
    EXPECT_STATE("current: none\n");

    Attach("DLG_A invisible");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE);
    Manager().Back(true);
    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
    )");
}

TEST_F(CBackNavigationTest, Back_WithEmptyHistory_ChangesNothingAndCallsNoHook)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_DELETE);

    Manager().Back(true);
    Manager().Back(false);

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_AfterInvisible_DeletesTheCurrentDialogAndShowsThePreviousOne)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_DELETE_ALL);
    Go(DLG_B, ODA_INVISIBLE);
    Attach("OBJ_9");

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE_ALL
        tree:
          OBJ_9
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_RestoresTheWholeRecordedDescription)
{
    DefineEmptyDialogs();
    Manager().AddDialog(Attach("DLG_E"), ODA_INVISIBLE_ALL, false);
    Go(DLG_B, ODA_INVISIBLE);

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_E after ODA_INVISIBLE_ALL, no deletion, no recovery
        tree:
          DLG_E
    )");
}

TEST_F(CBackNavigationTest, Back_WithoutDeletion_HidesTheCurrentDialog)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);

    Manager().Back(false);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_B invisible
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_WithDeletionThatIsVetoed_HidesTheCurrentDialog)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().SetVeto(DLG_B);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> false
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_B invisible
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_AfterDelete_LoadsThePreviousDialogAgain)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_DELETE);

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        INFO: Time for loading code:DLG_A: 0.\n
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
    )");
}

TEST_F(CBackNavigationTest, Back_AfterADeletionThatWasRefused_ShowsTheHiddenDialogAgain)
{
    DefineEmptyDialogs();
    Manager().AddDialog(Attach("DLG_E"), ODA_NOTHING, true);
    Go(DLG_B, ODA_DELETE);
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_E ODA_DELETE (after ODA_NOTHING, no deletion)
        tree:
          DLG_E invisible
          DLG_B
    )");

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_E after ODA_NOTHING, no deletion
        tree:
          DLG_E
    )");
}

TEST_F(CBackNavigationTest, Back_AfterNothing_FindsThePreviousDialogAndDoesNotRaiseIt)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Attach("OBJ_9");

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
          OBJ_9
    )");
}

TEST_F(CBackNavigationTest, Back_AfterNothing_LeavesADialogInvisibleThatWasHiddenMeanwhile)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Object(DLG_A)->SetInvisible(true);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A invisible
    )");
}

TEST_F(CBackNavigationTest, Back_DoesNotLoadADialogThatStayedVisibleAndIsGone)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    delete Object(DLG_A);

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion()
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE("current: none\n");
}

TEST_F(CBackNavigationTest, Back_ToAHiddenDialogThatIsGone_LogsAnErrorAndCallsOnLastDialogDeletion)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);
    delete Object(DLG_B);

    Manager().Back(true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\\n\n"
        "OnDialogDeletion(DLG_C) -> true\n"
        "ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
        "deleted in the mean time.\\n @Source/Core/GUIDialogManager.cpp:#\n"
        "OnLastDialogDeletion()\n"
        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n"
        "OnAfterDialogDeletion(DLG_C, NO_HANDLE)\n");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
    )");
}

TEST_F(CBackNavigationTest, Back_AfterTheReturnFailed_DoesNothingAndCreateDialogStartsAfresh)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);
    delete Object(DLG_B);
    Manager().Back(true);
    ClearEvents();

    Manager().Back(true);
    EXPECT_EVENTS("");

    Manager().CreateDialog(DLG_D, ODA_DELETE_ALL);
    EXPECT_STATE(R"(
        current: DLG_D after ODA_DELETE_ALL
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_D
    )");
}

TEST_F(CBackNavigationTest, Back_ToAnEntryWithAnUnknownAction_BringsNothingBack)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, eFirstUnknownAction);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_ToAnEntryWithAnUnknownAction_DoesNotBringBackTheOlderDialogThatStayedVisible)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, eFirstUnknownAction);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_C) -> true
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_C, NO_HANDLE)
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_B
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_WhenTheDialogCannotBeMadeAgain_LeavesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_DELETE);
    CodeFactory().FailLoad(1, FAILURE_NULL);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        CreateDialogImpl(DLG_A, false, false) -> null
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE("current: none\n");
}

TEST_F(CBackNavigationTest, Back_WhenTheHookMakesTheDialogWithAnotherIdentifier_ActivatesWhatTheHookMade)
{
    DefineDialog(DLG_B, "DLG_B");
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_A"); });
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_DELETE);
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_C invisible"); });

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        CreateDialogImpl(DLG_A, false, false) -> DLG_C (true, true)
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_C
    )");
}

TEST_F(CBackNavigationTest, Back_WhenTheCurrentObjectIsGone_BringsThePreviousDialogBackAllTheSame)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    delete Object(DLG_B);

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_OfADialogThatReplacedOthersWithNothing_RestoresTheRecordedStates)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, ODA_DELETE);
    Go(DLG_D, ODA_DELETE_ALL);
    EXPECT_STATE(R"(
        current: DLG_D after ODA_DELETE_ALL
        history: DLG_C ODA_DELETE_ALL (after ODA_DELETE)
        history: DLG_B ODA_DELETE (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_D
    )");

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_D, DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_DELETE
        history: DLG_B ODA_DELETE (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A
          DLG_C
    )");
}

TEST_F(CBackNavigationTest, Back_ToADialogThatHidAllOthers_HidesThemAgain)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, ODA_INVISIBLE_ALL);
    Go(DLG_D, ODA_NOTHING);
    Object(DLG_A)->SetInvisible(false);

    Manager().Back(false);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_D)
        OnDialogDeactivation(DLG_A)
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_D, DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE_ALL
        history: DLG_B ODA_INVISIBLE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B invisible
          DLG_C
          DLG_D invisible
    )");
}

TEST_F(CBackNavigationTest, Back_AmongHiddenDialogs_HidesThoseAgainThatWereShownMeanwhile)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);
    Go(DLG_D, ODA_INVISIBLE);
    Object(DLG_B)->SetInvisible(false);

    Manager().Back(false);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_D)
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_D, DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B invisible
          DLG_D invisible
          DLG_C
    )");
}

TEST_F(CBackNavigationTest, Back_ToADialogThatDeletedAllOthers_DeletesThemAgain)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, ODA_DELETE_ALL);
    Go(DLG_D, ODA_INVISIBLE);
    Attach("DLG_A");

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_D) -> true
        OnDialogDeletion(DLG_A) -> true
        OnDialogActivation(DLG_C)
        OnAfterDialogDeletion(DLG_D, DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_DELETE_ALL
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_C
    )");
}

TEST_F(CBackNavigationTest, Back_IsAStack)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);

    Manager().Back(true);
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");

    Manager().Back(true);
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_WhenAHookThrows_EndsThereAndLogsAnError)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        Manager().FailHook(1, eFailure);

        Manager().Back(true);

        EXPECT_TRACE(R"(
            DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
            ERROR: CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n @Source/Core/GUIDialogManager.cpp:#
        )");
        EXPECT_STATE(R"(
            current: DLG_B after ODA_INVISIBLE
            history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
            tree:
              DLG_A invisible
              DLG_B
        )");
    }
}

TEST_F(CBackNavigationTest, Back_WhenTheFactoryThrows_LogsAnErrorAndTheEntryIsGone)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_DELETE);
    CodeFactory().FailLoad(1, FAILURE_EXCEPTION);

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        ERROR: CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE("current: DLG_B after ODA_DELETE\n");
}

TEST_F(CBackNavigationTest, Back_WhenTheLastHookThrows_IsDoneAllTheSame)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().FailHook(3, FAILURE_INT);

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        OnAfterDialogDeletion(DLG_B, DLG_A) throws int 7
        ERROR: CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, Back_WhilePopupsAreActive_KeepsThemAboveTheReturningDialog)
{
    DefineEmptyDialogs();
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().ShowPopup(POP_1);

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 3, 0 ms, delete on close, shown
        tree:
          DLG_A
          POP_1
    )");
}

// --- CreateDialogFromHistory -----------------------------------------------------------------------

TEST_F(CBackNavigationTest, CreateDialogFromHistory_OnAnEmptyHistory_LeavesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_DELETE);

    EXPECT_EQ(nullptr, Access::CreateDialogFromHistory(Manager()));

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, CreateDialogFromHistory_ArbitratesAfterTheActivation)
{
    Attach("DLG_A invisible");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE_ALL);

    ExpectIsObject(DLG_A, Access::CreateDialogFromHistory(Manager()));

    EXPECT_EVENTS(R"(
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CBackNavigationTest, CreateDialogFromHistory_AfterDeleteAll_MakesTheDialogAgain)
{
    DefineDialog(DLG_A, "DLG_A");
    AddHistoryEntry(DLG_A, ODA_DELETE_ALL);

    ExpectIsObject(DLG_A, Access::CreateDialogFromHistory(Manager()));
}

TEST_F(CBackNavigationTest, CreateDialogFromHistory_PassesExceptionsOn)
{
    Attach("DLG_A invisible");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE);
    Manager().FailHook(1, FAILURE_EXCEPTION);

    EXPECT_THROW(Access::CreateDialogFromHistory(Manager()), std::runtime_error);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}
} // namespace
