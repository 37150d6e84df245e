// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <cstdlib>
#include <memory>

namespace
{
class CDialogSwitchingTest : public CDialogTest
{
};

// --- The new dialog --------------------------------------------------------------------------------

TEST_F(CDialogSwitchingTest, CreateDialog_TheFirst_RecordsNothingAndCallsAddedAndActivationOnce)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_INVISIBLE));

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Unregistered_FailsWithBothPartsOfTheMessageAndChangesNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_E, ODA_DELETE_ALL));

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 5.\\n\n"
        "CreateDialogImpl(DLG_E, true, true) -> null\n"
        "DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement "
        "the CreateDialogImpl in you derived class.\\n\n"
        "ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 5 failed!\\nThe current dialog "
        "stays active.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Failing_LogsTheManagersSourceFileAndTheLine)
{
    Manager().CreateDialog(DLG_E, ODA_NOTHING);

    const TraceEntry_t& kEntry = TraceRecorder().GetEntries().back();
    EXPECT_EQ("ERROR: ", kEntry.m_kPrefix);
    EXPECT_EQ("CGUIDialogManager::CreateDialog: Createing dialog with ID 5 failed!\n"
              "The current dialog stays active.\n",
              kEntry.m_kMessage);
    const std::string kFile = "Source/Core/GUIDialogManager.cpp";
    ASSERT_LE(kFile.size(), kEntry.m_kFile.size());
    EXPECT_EQ(kFile, kEntry.m_kFile.substr(kEntry.m_kFile.size() - kFile.size()));
    EXPECT_LT(0, std::atoi(kEntry.m_kLine.c_str()));
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenTheFactoryThrows_LogsBothErrorsAndChangesNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        CodeFactory().FailLoad(1, eFailure);

        EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_B, ODA_DELETE));

        EXPECT_EVENTS(
            "ERROR: CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.\\n "
            "@Source/Core/GUIDialogManager.cpp:#\n"
            "ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 2 failed!\\nThe current "
            "dialog stays active.\\n @Source/Core/GUIDialogManager.cpp:#\n");
        EXPECT_STATE(R"(
            current: DLG_A after ODA_NOTHING
            tree:
              DLG_A
        )");
    }
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenCreateDialogImplThrows_LogsBothErrorsAndChangesNothing)
{
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        Manager().FailHook(1, eFailure);

        EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_B, ODA_DELETE));

        EXPECT_TRACE(
            "DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 2.\\n\n"
            "ERROR: CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.\\n "
            "@Source/Core/GUIDialogManager.cpp:#\n"
            "ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 2 failed!\\nThe current "
            "dialog stays active.\\n @Source/Core/GUIDialogManager.cpp:#\n");
        EXPECT_STATE("current: none\n");
    }
}

TEST_F(CDialogSwitchingTest, CreateDialog_InTheTree_ShowsItOnTopAndForbidsItsDeletion)
{
    Attach("DLG_A invisible { OBJ_1 focusable }");
    Attach("DLG_B");

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        focus: OBJ_1
        tree:
          DLG_B
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_FromCreateDialogImpl_TakesOverTheFlags)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A invisible"); }, false, false);

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_DELETE));

    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_A, true, true) -> DLG_A (false, false)
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE, no deletion, no recovery
        tree:
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfAnObjectWithAnotherIdentifier_StoresTheObjectsOwn)
{
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_F"); });

    ExpectIsObject(DLG_F, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_STATE(R"(
        current: DLG_F after ODA_NOTHING
        tree:
          DLG_F
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfAnObjectWithAnotherIdentifier_LooksTheRequestedOneUpInTheHistory)
{
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_F"); });
    AddHistoryEntry(DLG_A, ODA_DELETE);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_A, true, true) -> DLG_F (true, true)
        OnDialogActivation(DLG_F)
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfAnObjectWhoseOwnIdentifierIsInTheHistory_AddsItAllTheSame)
{
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_F"); });
    AddHistoryEntry(DLG_F, ODA_DELETE);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_A, true, true) -> DLG_F (true, true)
        OnDialogAdded(DLG_F)
        OnDialogActivation(DLG_F)
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfADetachedObject_ShowsItWithoutAttachingIt)
{
    std::unique_ptr<CGUIObject> pkDialog(CObjectTree("DLG_A invisible").Build());
    Manager().SetDialogCreator(DLG_A, [&pkDialog] { return pkDialog.get(); });

    EXPECT_EQ(pkDialog.get(), Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_FALSE(pkDialog->IsInvisible());
    EXPECT_EQ(nullptr, pkDialog->GetParent());
    EXPECT_STATE("current: DLG_A after ODA_NOTHING\n");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfADialogDeeperInTheTree_RaisesItUnderItsOwnParent)
{
    Attach("OBJ_1 { DLG_A invisible; OBJ_2 }");
    Attach("OBJ_3");

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        tree:
          OBJ_1
            OBJ_2
            DLG_A
          OBJ_3
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfADialogInTheHistory_IsNotAddedAgainButActivated)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_INVISIBLE));

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_B)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE, no deletion
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_B invisible
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OfADialogThatLeftTheHistory_IsAddedAgain)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().Back(true);
    ClearEvents();

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_ToTheCurrentDialogItself_FindsTheEntryJustWritten)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_INVISIBLE));

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE, no deletion
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhilePopupsAreActive_KeepsTheMostImportantPopupAboveTheDialog)
{
    DefineEmptyDialogs();
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    Go(DLG_A, ODA_NOTHING);
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        active: POP_1 prio 7, 0 ms, delete on close, shown
        tree:
          DLG_A invisible
          DLG_B
          POP_1
    )");
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CDialogSwitchingTest, CreateDialog_WithoutRoot_StopsTheProgram)
{
    DefineDialog(DLG_A, "DLG_A");
    DestroyRoot();

    EXPECT_DEATH(Manager().CreateDialog(DLG_A, ODA_NOTHING), "NULL != ms_pInstance");
}
#endif

// --- The old dialog --------------------------------------------------------------------------------

TEST_F(CDialogSwitchingTest, CreateDialog_Invisible_HidesTheOldDialogWithOneDeactivation)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    Go(DLG_A, ODA_NOTHING);

    ExpectIsObject(DLG_B, Manager().CreateDialog(DLG_B, ODA_INVISIBLE));

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)
        focus: OBJ_2
        tree:
          DLG_A invisible
            OBJ_1 focusable
          DLG_B
            OBJ_2 focussed
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_InvisibleAll_HidesTheOlderDialogsFirst)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C, ODA_NOTHING);

    Manager().CreateDialog(DLG_D, ODA_INVISIBLE_ALL);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogDeactivation(DLG_B)
        OnDialogDeactivation(DLG_C)
        OnDialogAdded(DLG_D)
        OnDialogActivation(DLG_D)
    )");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_INVISIBLE_ALL
        history: DLG_C ODA_INVISIBLE_ALL (after ODA_NOTHING)
        history: DLG_B ODA_NOTHING (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B invisible
          DLG_C invisible
          DLG_D
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Delete_DeletesTheOldDialogWithoutDeactivation)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

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

TEST_F(CDialogSwitchingTest, CreateDialog_DeleteAll_DeletesWhatIsShownAndKeepsWhatIsHidden_Intended)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_NOTHING);

    Manager().CreateDialog(DLG_D, ODA_DELETE_ALL);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnDialogDeletion(DLG_C) -> true
        OnDialogAdded(DLG_D)
        OnDialogActivation(DLG_D)
    )");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_DELETE_ALL
        history: DLG_C ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_B ODA_NOTHING (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_D
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Nothing_KeepsTheOldDialogVisibleButDeactivatesIt)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    Go(DLG_A, ODA_NOTHING);

    Manager().CreateDialog(DLG_B, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_NOTHING
        history: DLG_A ODA_NOTHING focus OBJ_1 (after ODA_NOTHING)
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
          DLG_B
            OBJ_2 focusable
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Nothing_DeactivatesAnInvisibleDialogToo)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Object(DLG_A)->SetInvisible(true);

    Manager().CreateDialog(DLG_B, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_WithAnUnknownAction_LeavesTheOldDialogAloneAndRecordsIt)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    Manager().CreateDialog(DLG_B, eFirstUnknownAction);
    Manager().CreateDialog(DLG_C, eLastUnknownAction);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
        OnDialogAdded(DLG_C)
        OnDialogActivation(DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after 255
        history: DLG_B 255 (after 5)
        history: DLG_A 5 (after ODA_NOTHING)
        tree:
          DLG_A
          DLG_B
          DLG_C
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenTheCurrentDialogIsGone_RecordsNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    delete Object(DLG_A);

    Manager().CreateDialog(DLG_B, ODA_DELETE_ALL);

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_B: 0.\n
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE_ALL
        tree:
          DLG_B
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenTheCurrentDialogIsGone_LeavesTheHistoryAlone)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);
    delete Object(DLG_B);

    Manager().CreateDialog(DLG_C, ODA_DELETE_ALL);

    EXPECT_STATE(R"(
        current: DLG_C after ODA_DELETE_ALL
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A
          DLG_C
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Delete_OfADialogFoundInTheTree_HidesItInstead)
{
    DefineEmptyDialogs();
    Attach("DLG_A");
    Go(DLG_A, ODA_NOTHING);

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING, no deletion)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_Delete_OfADialogWhoseDeletionIsVetoed_HidesItInstead)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Manager().SetVeto(DLG_A);

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
          DLG_B
    )");
}

// --- The action destroys the new dialog ------------------------------------------------------------

TEST_F(CDialogSwitchingTest, CreateDialog_ToItselfWithDelete_LoadsTheDialogOnceMore)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Go(DLG_A, ODA_NOTHING);

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_DELETE));

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
        "the id 1 is already contained in the GUI.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "OnDialogDeletion(DLG_A) -> true\n"
        "INFO: Time for loading code:DLG_A: 0.\\n\n"
        "OnDialogActivation(DLG_A)\n"
        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE
        history: DLG_A ODA_DELETE focus OBJ_1 (after ODA_NOTHING)
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_ToADialogStillShownWithDeleteAll_LoadsTheDialogOnceMore)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_DELETE_ALL));

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
        "the id 1 is already contained in the GUI.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "OnDialogDeletion(DLG_A) -> true\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\\n\n"
        "OnDialogDeletion(DLG_B) -> true\n"
        "INFO: Time for loading code:DLG_A: 0.\\n\n"
        "OnDialogActivation(DLG_A)\n"
        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE_ALL
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OnceMoreFromTheHook_HandsItBothFlagsTrueAgain)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A"); }, true, false);
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_NOTHING);

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_DELETE_ALL));

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> true
        OnDialogDeletion(DLG_B) -> true
        CreateDialogImpl(DLG_A, true, true) -> DLG_A (true, false)
        OnDialogActivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE_ALL, no recovery
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING, no recovery)
        tree:
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_OnceMoreFromAFile_ForgetsTheFlagsOfTheDestroyedDialog)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A"); }, true, false);
    Go(DLG_A, ODA_NOTHING);
    DefineEmptyDialogs();
    Go(DLG_B, ODA_NOTHING);

    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_A, ODA_DELETE_ALL));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE_ALL
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_NOTHING (after ODA_NOTHING, no recovery)
        tree:
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenTheDialogCannotBeObtainedOnceMore_LeavesNoDialogCurrent)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_A));

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_DELETE));

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
        "the id 1 is already contained in the GUI.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "OnDialogDeletion(DLG_A) -> true\n"
        "DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 1.\\n\n"
        "CreateDialogImpl(DLG_A, true, true) -> null\n"
        "DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement "
        "the CreateDialogImpl in you derived class.\\n\n"
        "ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
        "deleted in the mean time.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
    )");
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenObtainingOnceMoreThrows_LogsThatToo)
{
    DefineEmptyDialogs();
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        Go(DLG_A, ODA_NOTHING);
        Access::GetHistory(Manager()).RemoveAll();
        CodeFactory().FailLoad(1, eFailure);

        EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_DELETE));

        EXPECT_EVENTS(
            "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object "
            "with the id 1 is already contained in the GUI.\\n\n"
            "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
            "OnDialogDeletion(DLG_A) -> true\n"
            "ERROR: CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.\\n "
            "@Source/Core/GUIDialogManager.cpp:#\n"
            "ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
            "deleted in the mean time.\\n @Source/Core/GUIDialogManager.cpp:#\n");
        EXPECT_STATE(R"(
            current: none
            history: DLG_A ODA_DELETE (after ODA_NOTHING)
        )");
    }
}

TEST_F(CDialogSwitchingTest, CreateDialog_WhenLoadingDestroysTheFocussedObject_RecordsNoFocus)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Go(DLG_A, ODA_NOTHING);
    CodeFactory().RegisterBuilder("code:DLG_B",
                                  [this]
                                  {
                                      delete Object(OBJ_1);
                                      return new CGUICompositeObject(nullptr, DLG_B);
                                  });
    Manager().RegisterDialogDefinition("code:DLG_B", DLG_B);

    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_B, ODA_INVISIBLE));

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

// --- Deleting --------------------------------------------------------------------------------------

TEST_F(CDialogSwitchingTest, DeleteDialog_OfADialogThatDoesNotExist_LogsItsRemovalOnly)
{
    Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true), true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
    )");
}

TEST_F(CDialogSwitchingTest, DeleteDialog_WithoutDeletion_HidesTheDialogWithoutAsking)
{
    Attach("DLG_A");

    Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true), false);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A invisible
    )");
}

TEST_F(CDialogSwitchingTest, DeleteDialog_WithoutPermission_DoesNotAskTheHook)
{
    Attach("DLG_A invisible");

    Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, false, true), true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "DEBUG: CGUIDialogManager::DeleteDialog: Dialog with ID 1 may not be deleted and will be set "
        "invisible instead.\\n\n");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A invisible
    )");
}

TEST_F(CDialogSwitchingTest, DeleteDialog_WhoseFocusHasADynamicIdentifier_WarnsAndDeletesItAllTheSame)
{
    Attach("DLG_A { 29 focusable }");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, static_cast<ObjectHandle_t>(29));

    Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true), true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "OnDialogDeletion(DLG_A) -> true\n"
        "WARNING: CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic object "
        "ID,is deleted. This destroys the focus history.\\n\n");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE focus 29 (after ODA_NOTHING)
    )");
}

TEST_F(CDialogSwitchingTest, DeleteDialog_WarnsForEveryRecordedFocusBehindTheFirstHandle_Intended)
{
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, static_cast<ObjectHandle_t>(2));
    Attach("DLG_A");

    Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true), true);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\\n\n"
        "OnDialogDeletion(DLG_A) -> true\n"
        "WARNING: CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic object "
        "ID,is deleted. This destroys the focus history.\\n\n");
}

TEST_F(CDialogSwitchingTest, DeleteDialog_DoesNotWarnForOtherRecordedFoci)
{
    for (const int iFocus : {1, 0, -5})
    {
        AddHistoryEntry(DLG_A, ODA_INVISIBLE, static_cast<ObjectHandle_t>(iFocus));
        Attach("DLG_A");

        Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true), true);

        EXPECT_EVENTS(R"(
            DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
            OnDialogDeletion(DLG_A) -> true
        )");
    }
}

TEST_F(CDialogSwitchingTest, DeleteDialog_OfTheDialogThatIsBeingLeft_DoesNotWarnForTheFocusNotYetRecorded)
{
    DefineDialog(DLG_A, "DLG_A { - focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_B: 0.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
        OnDialogDeletion(DLG_A) -> true
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE focus 29 (after ODA_NOTHING)
        dynamic: 29
        tree:
          DLG_B
    )");
}

TEST_F(CDialogSwitchingTest, DeleteDialog_WarnsWithoutABlankBehindTheCommaAndWithoutFileAndLine_Intended)
{
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, static_cast<ObjectHandle_t>(29));
    Attach("DLG_A");

    Access::DeleteDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true), true);

    const TraceEntry_t& kEntry = TraceRecorder().GetEntries().back();
    EXPECT_EQ("WARNING: ", kEntry.m_kPrefix);
    EXPECT_EQ("CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic object ID,"
              "is deleted. This destroys the focus history.\n",
              kEntry.m_kMessage);
    EXPECT_EQ("", kEntry.m_kFile);
    EXPECT_EQ("", kEntry.m_kLine);
}

// --- Showing, hiding, recreating -------------------------------------------------------------------

TEST_F(CDialogSwitchingTest, MakeDialogVisible_OfNull_LogsAnError)
{
    Access::MakeDialogVisible(Manager(), nullptr);

    EXPECT_EVENTS(
        "ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
        "deleted in the mean time.\\n @Source/Core/GUIDialogManager.cpp:#\n");
}

TEST_F(CDialogSwitchingTest, MakeDialogVisible_ShowsAndRaisesWithoutCallingAHook)
{
    CGUIObject* pkDialog = Attach("DLG_A invisible");
    Attach("DLG_B");

    Access::MakeDialogVisible(Manager(), pkDialog);

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_B
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, MakeDialogInvisible_CallsTheHookWhileTheDialogIsStillVisible)
{
    CGUIObject* pkDialog = Attach("DLG_A");
    bool bWasInvisible = true;
    Manager().RunOnce(HOOK_ON_DIALOG_DEACTIVATION,
                      [&bWasInvisible](CGUIObject* pkObject) { bWasInvisible = pkObject->IsInvisible(); });

    Access::MakeDialogInvisible(Manager(), pkDialog);

    EXPECT_FALSE(bWasInvisible);
    EXPECT_TRUE(pkDialog->IsInvisible());
    EXPECT_EVENTS("OnDialogDeactivation(DLG_A)\n");
}

TEST_F(CDialogSwitchingTest, MakeDialogInvisible_OfNullAndOfAHiddenDialog_CallsNoHook)
{
    CGUIObject* pkDialog = Attach("DLG_A invisible");

    Access::MakeDialogInvisible(Manager(), nullptr);
    Access::MakeDialogInvisible(Manager(), pkDialog);

    EXPECT_EVENTS("");
    EXPECT_TRUE(pkDialog->IsInvisible());
}

TEST_F(CDialogSwitchingTest, ReCreateDialog_InTheTree_ShowsItWithoutLoggingAndWithoutHook)
{
    CGUIObject* pkDialog = Attach("DLG_A invisible");
    Attach("DLG_B");

    EXPECT_EQ(pkDialog,
              Access::ReCreateDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true)));

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_B
          DLG_A
    )");
}

TEST_F(CDialogSwitchingTest, ReCreateDialog_NotInTheTree_LoadsIt)
{
    DefineDialog(DLG_A, "DLG_A");
    Attach("DLG_B");

    CGUIObject* pkDialog =
        Access::ReCreateDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true));

    EXPECT_NE(nullptr, pkDialog);
    EXPECT_EQ(Object(DLG_A), pkDialog);
    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
    )");
}

TEST_F(CDialogSwitchingTest, ReCreateDialog_FromTheHook_HandsItTwoFlagsThatAreFalseAndIgnoresWhatItLeaves)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A invisible"); }, true, true);
    Access::DialogDescription_t kDialog(DLG_A, ODA_NOTHING, true, false);

    EXPECT_NE(nullptr, Access::ReCreateDialog(Manager(), kDialog));

    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_A, false, false) -> DLG_A (true, true)
    )");
    EXPECT_TRUE(kDialog.m_bAllowObjectDeletion);
    EXPECT_FALSE(kDialog.m_bRecoverFocus);
    EXPECT_FALSE(Object(DLG_A)->IsInvisible());
}

TEST_F(CDialogSwitchingTest, ReCreateDialog_OfADialogThatCannotBeObtained_IsNullWithoutAnErrorOfItsOwn)
{
    EXPECT_EQ(nullptr,
              Access::ReCreateDialog(Manager(), Access::DialogDescription_t(DLG_A, ODA_NOTHING, true, true)));

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 1.\\n\n"
        "CreateDialogImpl(DLG_A, false, false) -> null\n"
        "DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement "
        "the CreateDialogImpl in you derived class.\\n\n");
}
} // namespace
