// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gmock/gmock.h>

#include <stdexcept>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CHookRecorderTest : public CGUITest
{
protected:
    /** Makes DLG_A current, and defines DLG_B. */
    void GoToA()
    {
        DefineDialog(DLG_A, "DLG_A");
        DefineDialog(DLG_B, "DLG_B");
        Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
        ClearEvents();
    }
};

TEST_F(CHookRecorderTest, DialogHooks_AreRecordedWithTheirArgumentsInOrder)
{
    GoToA();

    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
}

TEST_F(CHookRecorderTest, PopupHooks_AreRecordedWithTheirArgumentsInOrder)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");

    Manager().ShowPopup(POP_1);
    Manager().ClosePopup(POP_1);

    EXPECT_THAT(TakeHooks(), ElementsAre("OnPopupActivation(POP_1)", "OnPopupDeactivation(POP_1)"));
}

TEST_F(CHookRecorderTest, OnLastDialogDeletion_IsRecorded)
{
    GoToA();
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
    CodeFactory().FailLoad(1, FAILURE_NULL);
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        CreateDialogImpl(DLG_A, false, false) -> null
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
}

TEST_F(CHookRecorderTest, CreationHooks_WithoutCreatorBehaveAsTheDefaultOnes)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "");

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_NOTHING));
    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 3.\n
        CreateDialogImpl(DLG_C, true, true) -> null
        DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 3 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        CreatePopupImpl(POP_1) -> null
        DEBUG: CGUIDialogManager::CreatePopupImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreatePopup: Creating popup with ID 9 failed!\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CHookRecorderTest, SetDialogCreator_BuildsTheDialogAndLeavesItsFlags)
{
    Manager().SetDialogCreator(
        DLG_C, [this] { return Attach("DLG_C"); }, false, false);

    const CGUIObject* pkDialog = Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE);

    ASSERT_NE(nullptr, pkDialog);
    EXPECT_EQ(Object(DLG_C), pkDialog);
    EXPECT_THAT(TakeHooks(), ElementsAre("CreateDialogImpl(DLG_C, true, true) -> DLG_C (false, false)",
                                         "OnDialogAdded(DLG_C)", "OnDialogActivation(DLG_C)"));
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE, no deletion, no recovery
        tree:
          DLG_C
    )");
}

TEST_F(CHookRecorderTest, SetDialogCreator_ReplacesTheCreatorSetBefore)
{
    Manager().SetDialogCreator(DLG_C, [] { return nullptr; });
    Manager().SetDialogCreator(DLG_C, [this] { return Attach("DLG_C"); });
    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE));
}

TEST_F(CHookRecorderTest, SetPopupCreator_BuildsThePopup)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "");
    Manager().SetPopupCreator(POP_1, [] { return new CGUIObject(nullptr, OBJ_1); });

    EXPECT_EQ(POP_1, Manager().ShowPopup(POP_1)->GetID());

    EXPECT_THAT(TakeHooks(), ElementsAre("CreatePopupImpl(POP_1) -> OBJ_1", "OnPopupActivation(POP_1)"));
}

TEST_F(CHookRecorderTest, SetVeto_RefusesTheDeletionOfThatDialogUntilItIsLifted)
{
    GoToA();
    Manager().SetVeto(DLG_A);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
    EXPECT_NE(nullptr, Object(DLG_A));
    EXPECT_EQ("OnDialogDeletion(DLG_A) -> false", TakeHooks().front());

    Manager().Back(true);
    EXPECT_EQ("OnDialogDeletion(DLG_B) -> true", TakeHooks().front());

    Manager().SetVeto(DLG_A, false);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
    EXPECT_EQ(nullptr, Object(DLG_A));
}

TEST_F(CHookRecorderTest, RunOnce_ActsInTheNextCallOfTheHookWithItsObject)
{
    GoToA();
    std::vector<CGUIObject*> kObjects;
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [&](CGUIObject* pkObject) { kObjects.push_back(pkObject); });

    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    const CGUIObject* pkB = Object(DLG_B);
    Manager().Back(false);

    EXPECT_THAT(kObjects, ElementsAre(pkB));
}

TEST_F(CHookRecorderTest, RunAlways_ActsInEveryCallUntilCleared)
{
    GoToA();
    int iCalls = 0;
    Manager().RunAlways(HOOK_ON_DIALOG_ACTIVATION, [&](CGUIObject*) { ++iCalls; });

    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    Manager().Back(false);
    EXPECT_EQ(2, iCalls);

    Manager().ClearActions();
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ(2, iCalls);
}

TEST_F(CHookRecorderTest, RunOnce_RunsBeforeTheVetoAndTheCreatorAreAsked)
{
    GoToA();
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, [&](CGUIObject*) { Manager().SetVeto(DLG_A); });
    Manager().RunOnce(HOOK_CREATE_DIALOG_IMPL, [&](CGUIObject*)
                      { Manager().SetDialogCreator(DLG_C, [this] { return Attach("DLG_C"); }); });

    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_DELETE));

    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_C, true, true) -> DLG_C (true, true)
        OnDialogDeletion(DLG_A) -> false
        OnDialogDeactivation(DLG_A)
        OnDialogAdded(DLG_C)
        OnDialogActivation(DLG_C)
    )");
}

TEST_F(CHookRecorderTest, AnActionThatCallsTheManager_IsRecordedInsideItsHook)
{
    GoToA();
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION,
                      [&](CGUIObject*) { Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_NOTHING); });

    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_A) -> true
        CreateDialogImpl(DLG_C, true, true) -> null
        OnDialogAdded(DLG_B)
        OnDialogActivation(DLG_B)
    )");
}

TEST_F(CHookRecorderTest, AnActionThatThrows_IsRecordedAndPassesThrough)
{
    GoToA();
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, [](CGUIObject*) { throw 42; });
    EXPECT_THROW(Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE), int);
    EXPECT_EQ("OnDialogAdded(DLG_B) throws int 42", TakeHooks().back());

    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [](CGUIObject*) { throw std::runtime_error("enough"); });
    EXPECT_THROW(Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_INVISIBLE), std::runtime_error);
    EXPECT_EQ("OnDialogActivation(DLG_A) throws enough", TakeHooks().back());
}

TEST_F(CHookRecorderTest, FailHook_CountsTheCallsOfAllHooks)
{
    GoToA();
    const eC_UInt uiCalls = Manager().GetHookCalls();
    Manager().FailHook(2, FAILURE_INT);

    EXPECT_THROW(Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE), int);

    EXPECT_THAT(TakeHooks(), ElementsAre("OnDialogDeactivation(DLG_A)", "OnDialogAdded(DLG_B) throws int 7"));
    EXPECT_EQ(uiCalls + 2, Manager().GetHookCalls());
}

TEST_F(CHookRecorderTest, OnDialogDeletion_MayDestroyItsDialog)
{
    GoToA();
    Manager().RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject* pkDialog) { delete pkDialog; });

    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);

    EXPECT_EQ("OnDialogDeletion(DLG_A) -> true", TakeHooks().front());
    EXPECT_EQ(nullptr, Object(DLG_A));
}

TEST_F(CHookRecorderTest, TakeHooks_LeavesTheTraceAndTakeTraceTheHooks)
{
    GoToA();
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);

    EXPECT_EQ(3U, TakeHooks().size());
    EXPECT_EQ(2U, TakeTrace().size());
    EXPECT_THAT(TakeEvents(), IsEmpty());
}

TEST_F(CHookRecorderTest, ProtectedOperations_CanBeCalled)
{
    DefineDialog(DLG_A, "DLG_A");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");
    EXPECT_EQ(DLG_A, Manager().LoadDialogDescription(DLG_A)->GetID());
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;
    EXPECT_EQ(Object(DLG_A), Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));
    EXPECT_EQ(0U, Manager().GetDialogHistory().GetQuantity());
    Manager().ShowPopup(POP_1);
    EXPECT_EQ(Object(POP_1), Manager().GetActivePopup(POP_1)->GetObject());
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_EQ(1U, TakeTrace().size());
}
