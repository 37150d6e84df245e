// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "TestSupport/ReactingObject.h"
#include "Tests/Unit/TraceMoment.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

// What happens when not a hook calls the manager or destroys objects, but a trace sink, or an object that the
// manager shows, hides, attaches, focusses or deletes. The sanitizers check that no freed memory is read.

namespace
{
using M = CGUIDialogManager;

class CReentranceTest : public CGUITest
{
protected:
    /** Creates an object that calls back. */
    CReactingObject* Make(ObjectHandle_t eID, CGUICompositeObject* pkParent = nullptr)
    {
        return new CReactingObject(pkParent, eID, m_kReaction);
    }

    /** Registers a dialog or popup whose object calls back. Its one child is focusable and calls back too. */
    void RegisterReacting(ObjectHandle_t eID, ObjectHandle_t eChild)
    {
        CodeFactory().RegisterBuilder(PathOf(eID),
                                      [this, eID, eChild]
                                      {
                                          CReactingObject* pkObject = Make(eID);
                                          Make(eChild, pkObject)->SetFocusable(true);
                                          return pkObject;
                                      });
    }

    void DefineReactingDialog(ObjectHandle_t eID, ObjectHandle_t eChild)
    {
        RegisterReacting(eID, eChild);
        EXPECT_TRUE(Manager().RegisterDialogDefinition(PathOf(eID).c_str(), eID));
    }

    void DefineReactingPopup(ObjectHandle_t eID, M::PopupPriority_t ePriority, eC_UInt uiTime,
                             eC_Bool bDelete)
    {
        RegisterReacting(eID, NO_HANDLE);
        EXPECT_TRUE(Manager().RegisterPopupDefinition(eID, ePriority, uiTime, bDelete, PathOf(eID).c_str()));
    }

    /** Runs an action once, at the given call of a virtual operation of the object with that identifier. */
    void React(EReaction eReaction, ObjectHandle_t eID, const std::function<void(CGUIObject*)>& kAction,
               int iCall = 1)
    {
        const std::shared_ptr<int> piCalls = std::make_shared<int>(0);
        m_kReaction = [=](EReaction eWhere, CGUIObject* pkObject)
        {
            const bool bIsMeant = eWhere == eReaction && pkObject->GetID() == eID;
            if (bIsMeant && ++*piCalls == iCall)
            {
                m_kReaction = nullptr;
                kAction(pkObject);
            }
        };
    }

    static void Destroy(CGUIObject* pkObject) { delete pkObject; }

    CReactingObject::Reaction_t m_kReaction;
};

// --- Dialogs ------------------------------------------------------------------------------------------

TEST_F(CReentranceTest, CreateDialog_OfADialogThatDestroysItselfWhenShown_ReturnsNullAndLeavesNoneCurrent)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineReactingDialog(DLG_B, OBJ_2);
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    React(REACTION_SET_INVISIBLE, DLG_B, Destroy, 2);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE));

    EXPECT_HOOKS("OnDialogDeactivation(DLG_A)");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)
        tree:
          DLG_A invisible
            OBJ_1 focusable
    )");
}

TEST_F(CReentranceTest, CreateDialog_OfADialogThatTheSinkDestroysWhileItsFocusIsRecovered_ReturnsNull)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
    Object(OBJ_1)->SetFocusable(false);
    CTraceMoment kMoment("RecoverFocus", [this] { delete Object(DLG_A); });
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, M::ODA_INVISIBLE));

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_HOOKS("OnDialogDeactivation(DLG_B)");
    EXPECT_STATE(R"(
        current: none
        history: DLG_B ODA_INVISIBLE focus OBJ_2 (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)
        tree:
          DLG_B invisible
            OBJ_2 focusable
    )");
}

TEST_F(CReentranceTest, CreateDialog_OfADialogThatDestroysItselfWhenItIsAskedToTakeTheFocus_ReturnsNull)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
    Object(OBJ_1)->SetFocusable(false);
    React(REACTION_FOCUS_ANY, DLG_A, Destroy);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, M::ODA_INVISIBLE));

    EXPECT_HOOKS("OnDialogDeactivation(DLG_B)");
    EXPECT_STATE(R"(
        current: none
        history: DLG_B ODA_INVISIBLE focus OBJ_2 (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)
        tree:
          DLG_B invisible
            OBJ_2 focusable
    )");
}

TEST_F(CReentranceTest, CreateDialog_OfADialogInTheTreeThatTheSinkDestroys_FailsAndChangesNothing)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Attach("DLG_B { OBJ_2 focusable }");
    CTraceMoment kMoment("AllowDeletion was set to false", [this] { delete Object(DLG_B); });
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE));

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 2 is already contained in the GUI.\n
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 2 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CReentranceTest, CreateDialog_WhoseObjectDestroysItselfWhenAttached_Fails)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    React(REACTION_SET_PARENT, DLG_A, Destroy);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, M::ODA_NOTHING));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
        CreateDialogImpl(DLG_A, true, true) -> null
        DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 1 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, CreateDialog_WhoseObjectDestroysItselfWhenLoaded_Fails)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    React(REACTION_SET_INVISIBLE, DLG_A, Destroy);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, M::ODA_NOTHING));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
        CreateDialogImpl(DLG_A, true, true) -> null
        DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 1 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, CreateDialog_WhoseObjectTheSinkDestroysBeforeItIsAttached_Fails)
{
    CSafeGUIObjectPtr pkBuilt;
    CodeFactory().RegisterBuilder(PathOf(DLG_A), [this, &pkBuilt] { return pkBuilt = Make(DLG_A); });
    EXPECT_TRUE(Manager().RegisterDialogDefinition(PathOf(DLG_A).c_str(), DLG_A));
    CTraceMoment kMoment("Time for loading", [&pkBuilt] { delete pkBuilt.get(); });

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, M::ODA_NOTHING));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
        ERROR: CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID 1 with registered path code:DLG_A.\n. @Source/Core/GUIDialogManager.cpp:#
        CreateDialogImpl(DLG_A, true, true) -> null
        DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 1 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, CreateDialog_WhoseObjectThrowsWhenAttached_LosesNothing)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    React(REACTION_SET_PARENT, DLG_A, [](CGUIObject*) { throw 7; });

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, M::ODA_NOTHING));

    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, CreateDialog_WhoseObjectThrowsWhenShownAndGoesBackWhenDestroyed_DeletesItOnce)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineReactingDialog(DLG_B, OBJ_2);
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    delete Manager().CreateDialog(DLG_B, M::ODA_NOTHING);
    React(REACTION_SET_INVISIBLE, DLG_B,
          [this](CGUIObject*)
          {
              React(REACTION_DESTRUCTOR, DLG_B, [this](CGUIObject*) { Manager().Back(true); });
              throw 7;
          });
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_B, M::ODA_NOTHING));

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CReentranceTest, CreateDialog_WithAChildThatDestroysItselfWhenAskedToTakeTheFocus_GoesOn)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    CodeFactory().RegisterBuilder(PathOf(DLG_A),
                                  [this]
                                  {
                                      CReactingObject* pkDialog = Make(DLG_A);
                                      Make(OBJ_1, pkDialog);
                                      Make(OBJ_2, pkDialog)->SetFocusable(true);
                                      return pkDialog;
                                  });
    React(REACTION_FOCUS_ANY, OBJ_1, Destroy);
    ClearEvents();

    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_A, M::ODA_NOTHING));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_2 focussed
    )");
}

TEST_F(CReentranceTest, AddDialog_OfADialogThatTheSinkDestroys_CallsNoHookForIt)
{
    CTraceMoment kMoment("new dialog has object ID", [this] { delete Object(DLG_A); });

    Manager().AddDialog(Attach("DLG_A"), M::ODA_NOTHING, true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::AddDialog: new dialog has object ID 1.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
    )");
}

TEST_F(CReentranceTest, DeletingADialog_WhileTheSinkMakesAnotherOneCurrent_LooksAtTheOneLeft)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    Attach("DLG_C");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_NOTHING);
    CTraceMoment kMoment("removing dialog with ID 2",
                         [this] { Manager().CreateDialog(DLG_C, M::ODA_NOTHING); });
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_B)
        OnDialogAdded(DLG_C)
        OnDialogActivation(DLG_C)
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_C
          DLG_A
    )");
}

TEST_F(CReentranceTest, Back_ToADialogThatDestroysItselfWhenShown_BringsNoneBack)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
    React(REACTION_SET_INVISIBLE, DLG_A, Destroy);
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, Back_ToADialogThatDestroysItselfWhenMadeAgain_BringsNoneBack)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_DELETE);
    React(REACTION_SET_INVISIBLE, DLG_A, Destroy, 2);
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnLastDialogDeletion()
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, Back_ToADialogThatTheSinkDestroysWhileItsFocusIsRecovered_CallsNoHookForIt)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
    Object(OBJ_1)->SetFocusable(false);
    CTraceMoment kMoment("RecoverFocus", [this] { delete Object(DLG_A); });
    ClearEvents();

    Manager().Back(true);

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
    )");
}

TEST_F(CReentranceTest, RecoveringTheFocus_WhenAnAncestorThatIsAskedDestroysItself_EndsThere)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
    Object(OBJ_1)->SetFocusable(false);
    React(REACTION_FOCUS_ANY, DLG_A, Destroy);
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
    )");
}

TEST_F(CReentranceTest, Back_FromADialogWhoseDestructorGoesBackToo_DeletesItOnce)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineReactingDialog(DLG_B, OBJ_2);
    DefineReactingDialog(DLG_C, OBJ_3);
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_C, M::ODA_NOTHING);
    React(REACTION_DESTRUCTOR, DLG_C, [this](CGUIObject*) { Manager().Back(true); });
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_C) -> true
        OnDialogDeletion(DLG_C) -> true
        OnDialogActivation(DLG_B)
        OnAfterDialogDeletion(DLG_C, DLG_B)
        OnDialogActivation(DLG_A)
        OnAfterDialogDeletion(DLG_C, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_B
            OBJ_2 focusable
          DLG_A
            OBJ_1 focussed
    )");
}

TEST_F(CReentranceTest, CreateDialog_FromTheDestructorsOfTwoDialogsBeingDeleted_DeletesEachOnce)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineReactingDialog(DLG_B, OBJ_2);
    DefineReactingDialog(DLG_C, OBJ_3);
    DefineDialog(DLG_D, "DLG_D { OBJ_4 focusable }");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_C, M::ODA_NOTHING);
    React(REACTION_DESTRUCTOR, DLG_C,
          [this](CGUIObject*)
          {
              React(REACTION_DESTRUCTOR, DLG_B,
                    [this](CGUIObject*) { Manager().ClearDialogHistory(0, true, true); });
              Manager().ClearDialogHistory(0, true, false);
          });
    ClearEvents();

    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_D, M::ODA_DELETE));

    EXPECT_HOOKS(R"(
        OnDialogDeletion(DLG_C) -> true
        OnDialogDeletion(DLG_B) -> true
        OnDialogDeletion(DLG_C) -> true
        OnAfterDialogDeletion(DLG_C, NO_HANDLE)
        OnDialogDeletion(DLG_A) -> true
        OnAfterDialogDeletion(DLG_A, NO_HANDLE)
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
        OnDialogAdded(DLG_D)
        OnDialogActivation(DLG_D)
    )");
    EXPECT_STATE(R"(
        current: DLG_D after ODA_DELETE
        history: NO_HANDLE ODA_DELETE focus OBJ_1 (after ODA_NOTHING)
        focus: OBJ_4
        tree:
          DLG_D
            OBJ_4 focussed
    )");
}

TEST_F(CReentranceTest, PrintDialogHistory_WhileTheSinkClearsTheHistory_EndsWithTheCurrentDialog)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    DefineDialog(DLG_C, "DLG_C");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_C, M::ODA_NOTHING);
    CTraceMoment kMoment("DialogID: 1 ", [this] { Manager().ClearDialogHistory(0, false, false); });
    ClearEvents();

    CGUITestAccess::PrintDialogHistory(Manager());

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::PrintDialogHistory:\n
        DEBUG: DialogID: 1 DialogAction executed by successor : 4\n
        DEBUG: CurrentDialog: 3 DialogAction executed on predecessors: 4\n
    )");
}

TEST_F(CReentranceTest, GetRegisteredDialogID_WhileTheSinkUnregistersWhatIsCompared_GoesOnWithTheNext)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    DefinePopup(POP_1, M::PRIO_LOW, 0, true, "POP_1");
    DefinePopup(POP_2, M::PRIO_LOW, 0, true, "POP_2");
    CTraceMoment kDialog("code:DLG_A", [this] { Manager().UnregisterDialogDefinition(DLG_A); });
    CTraceMoment kPopup("code:POP_1", [this] { Manager().UnregisterPopupDefinition(POP_1); });
    int iEntries = 0;
    CTraceMoment kFound("code:POP_2",
                        [this, &iEntries]
                        {
                            // The first entry says what is being looked for.
                            if (++iEntries == 2)
                            {
                                Manager().UnregisterPopupDefinition(POP_2);
                            }
                        });

    EXPECT_EQ(POP_2, Manager().GetRegisteredDialogID("code:POP_2"));

    EXPECT_TRACE(R"(
        DEBUG: code:POP_2.\n\n
        DEBUG: code:DLG_A.\n
        DEBUG: code:DLG_B.\n
        DEBUG: code:POP_1.\n
        DEBUG: code:POP_2.\n
    )");
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_B "code:DLG_B"
    )");
}

// --- Popups -------------------------------------------------------------------------------------------

TEST_F(CReentranceTest, ShowPopup_OfAPopupThatDestroysItselfWhenShown_LeavesItsEntryForTheNextRun)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 500, true);
    React(REACTION_SET_INVISIBLE, POP_1, Destroy, 3);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_HOOKS("");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 500 ms, delete on close
    )");
    Manager().UpdateActivePopups();
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, ShowPopup_OfAPopupThatDestroysItselfWhenAttached_LeavesItsEntryForTheNextRun)
{
    Manager().RegisterPopupDefinition(POP_1, M::PRIO_MEDIUM, 500, true, "");
    Manager().SetPopupCreator(POP_1, [this] { return Make(POP_1); });
    React(REACTION_SET_PARENT, POP_1, Destroy);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_1) -> POP_1
    )");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 500 ms, delete on close
    )");
}

TEST_F(CReentranceTest, ShowPopup_OfAPopupThatShowsItselfWhenAttached_CallsNoHookForIt)
{
    Manager().RegisterPopupDefinition(POP_1, M::PRIO_MEDIUM, 500, true, "");
    Manager().SetPopupCreator(POP_1, [this] { return Make(POP_1); });
    React(REACTION_SET_PARENT, POP_1, [](CGUIObject* pkObject) { pkObject->SetInvisible(false); });
    ClearEvents();

    EXPECT_NE(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_1) -> POP_1
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 500 ms, delete on close, shown, 500 ms left
        tree:
          POP_1
    )");
}

TEST_F(CReentranceTest, ShowPopup_OfAPopupThatTheRootDestroysWhenAttached_LeavesItsEntryForTheNextRun)
{
    /** A root that rejects every object. */
    class CStrictRoot : public CGUI
    {
    public:
        void AddObject(CGUIObject* pkObject) override { delete pkObject; }
    };
    DestroyRoot();
    const CStrictRoot kRoot;
    Manager().RegisterPopupDefinition(POP_1, M::PRIO_MEDIUM, 500, true, "");
    Manager().SetPopupCreator(POP_1, [this] { return Make(POP_1); });
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_HOOKS("CreatePopupImpl(POP_1) -> POP_1");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 500 ms, delete on close
    )");
}

TEST_F(CReentranceTest, ShowPopup_OfAPopupThatClosesItselfWhenShown_ThrowsAndStartsNobodysTime)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 500, false);
    DefinePopup(POP_2, M::PRIO_MEDIUM, 0, false, "POP_2");
    React(
        REACTION_SET_INVISIBLE, POP_1,
        [this](CGUIObject*)
        {
            Manager().ClosePopup(POP_1);
            Manager().ShowPopup(POP_2);
        },
        3);
    ClearEvents();

    EXPECT_THROW(Manager().ShowPopup(POP_1), int);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
            - focusable
          POP_2
    )");
}

TEST_F(CReentranceTest, ShowPopup_HidingAPopupThatClosesItselfWhenHidden_ThrowsAndStopsNobodysTime)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 0, false);
    DefinePopup(POP_2, M::PRIO_MEDIUM, 500, false, "POP_2");
    DefinePopup(POP_3, M::PRIO_HIGH, 0, false, "POP_3");
    Manager().ShowPopup(POP_1);
    React(REACTION_SET_INVISIBLE, POP_1,
          [this](CGUIObject*)
          {
              Manager().ClosePopup(POP_1);
              Manager().ClosePopup(POP_3);
              Manager().ShowPopup(POP_2);
          });
    ClearEvents();

    EXPECT_THROW(Manager().ShowPopup(POP_3), int);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_3)
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_3)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 500 ms, hide on close, shown, 500 ms left
        tree:
          POP_1 invisible
            - focusable
          POP_3 invisible
          POP_2
    )");
}

TEST_F(CReentranceTest, ShowPopup_HidingAPopupThatDestroysItselfWhenHidden_CallsNoHookForIt)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 500, false);
    DefinePopup(POP_2, M::PRIO_HIGH, 0, false, "POP_2");
    Manager().ShowPopup(POP_1);
    React(REACTION_SET_INVISIBLE, POP_1, Destroy);
    ClearEvents();

    EXPECT_NE(nullptr, Manager().ShowPopup(POP_2));

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 500 ms, hide on close
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CReentranceTest, ShowPopup_OfAListedPopupThatTheFirstSinkCloses_ReturnsNullAndChangesNothing)
{
    DefinePopup(POP_1, M::PRIO_MEDIUM, 500, true, "POP_1");
    Manager().ShowPopup(POP_1);
    CTraceMoment kMoment("is already contained", [this] { Manager().ClosePopup(POP_1); });
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, ShowPopup_OfAListedPopupThatTheSecondSinkCloses_StartsNoTime)
{
    DefinePopup(POP_1, M::PRIO_MEDIUM, 500, false, "POP_1");
    Manager().ShowPopup(POP_1);
    CTraceMoment kMoment("Timout", [this] { Manager().ClosePopup(POP_1); });
    ClearEvents();

    EXPECT_NE(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupThatIsClosedWhenHidden_ThrowsAndLeavesTheOthersAlone)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 0, false);
    DefinePopup(POP_2, M::PRIO_MEDIUM, 500, false, "POP_2");
    Manager().ShowPopup(POP_1);
    React(REACTION_SET_INVISIBLE, POP_1,
          [this](CGUIObject*)
          {
              Manager().ClosePopup(POP_1);
              Manager().ShowPopup(POP_2);
          });
    ClearEvents();

    EXPECT_THROW(Manager().ClosePopup(POP_1), int);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 500 ms, hide on close, shown, 500 ms left
        tree:
          POP_1 invisible
            - focusable
          POP_2
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupThatDestroysItselfWhenHidden_RemovesItsEntryWithoutTheHook)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 500, true);
    Manager().ShowPopup(POP_1);
    React(REACTION_SET_INVISIBLE, POP_1, Destroy);
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupThatRunsTheArbitrationWhenHidden_HidesItAgain)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 0, false);
    DefinePopup(POP_2, M::PRIO_LOW, 0, false, "POP_2");
    Manager().ShowPopup(POP_1);
    React(REACTION_SET_INVISIBLE, POP_1, [this](CGUIObject*) { Manager().ShowPopup(POP_2); });
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
            - focusable
          POP_2
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupThatThrowsWhenItIsShownMeanwhile_HidesItAgain)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 0, false);
    DefinePopup(POP_2, M::PRIO_LOW, 0, false, "POP_2");
    Manager().ShowPopup(POP_1);
    React(REACTION_SET_INVISIBLE, POP_1,
          [this](CGUIObject*)
          {
              React(REACTION_SET_INVISIBLE, POP_1, [](CGUIObject*) { throw 1; });
              EXPECT_THROW(Manager().ShowPopup(POP_2), int);
          });
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
            - focusable
          POP_2
    )");
}

TEST_F(CReentranceTest, APopupWhoseTimeIsUp_HasNoTimeLeftWhenItIsHidden)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 500, false);
    Manager().ShowPopup(POP_1);
    eC_UInt uiLeft = 0;
    React(REACTION_SET_INVISIBLE, POP_1,
          [&uiLeft](CGUIObject*) { uiLeft = GETTIMER.GetTimeUntilNextCallback(); });
    ClearEvents();

    Clock().Advance(500);

    EXPECT_EQ(CGUITimer::cuiNoCallback, uiLeft);
    EXPECT_HOOKS("OnPopupDeactivation(POP_1)");
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
            - focusable
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupInADialogThatItsDestructorLeaves_DeletesThePopupAlone)
{
    DefineReactingDialog(DLG_A, OBJ_1);
    DefineReactingDialog(DLG_B, OBJ_2);
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    CGUIObject* pkDialog = Manager().CreateDialog(DLG_B, M::ODA_NOTHING);
    Manager().RegisterPopupDefinition(POP_1, M::PRIO_MEDIUM, 0, true, "");
    Manager().SetPopupCreator(POP_1,
                              [&] { return Make(POP_1, static_cast<CGUICompositeObject*>(pkDialog)); });
    Manager().ShowPopup(POP_1);
    React(REACTION_DESTRUCTOR, POP_1, [this](CGUIObject*) { Manager().Back(true); });
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        OnPopupActivation(POP_1)
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
          DLG_B
            OBJ_2 focusable
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupWhoseDestructorListsAnotherOne_RemovesItsOwnEntry)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 0, true);
    DefinePopup(POP_2, M::PRIO_MEDIUM, 500, false, "POP_2");
    Manager().ShowPopup(POP_1);
    React(REACTION_DESTRUCTOR, POP_1, [this](CGUIObject*) { Manager().ShowPopup(POP_2); });
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_1)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 500 ms, hide on close, shown, 500 ms left
        tree:
          POP_2
    )");
}

TEST_F(CReentranceTest, ClosePopup_OfAPopupWhoseDestructorClosesItToo_DeletesItOnceAndThrows)
{
    DefineReactingPopup(POP_1, M::PRIO_MEDIUM, 0, true);
    DefinePopup(POP_2, M::PRIO_MEDIUM, 500, false, "POP_2");
    Manager().ShowPopup(POP_1);
    React(REACTION_DESTRUCTOR, POP_1,
          [this](CGUIObject*)
          {
              Manager().ClosePopup(POP_1);
              Manager().ShowPopup(POP_2);
          });
    ClearEvents();

    EXPECT_THROW(Manager().ClosePopup(POP_1), int);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 500 ms, hide on close, shown, 500 ms left
        tree:
          POP_2
    )");
}

TEST_F(CReentranceTest, Arbitration_WithASinkThatShowsAnErrorPopup_RemovesTheLostOneOnly)
{
    DefinePopup(POP_1, M::PRIO_MEDIUM, 0, true, "POP_1");
    DefinePopup(POP_2, M::PRIO_MEDIUM, 0, true, "POP_2");
    DefinePopup(POP_3, M::PRIO_MEDIUM, 500, true, "POP_3");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    delete Object(POP_2);
    CTraceMoment kMoment("contains NULL pointer", [this] { Manager().ShowPopup(POP_3); });
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_3)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 5, 500 ms, delete on close, shown, 500 ms left
        active: POP_1 prio 5, 0 ms, delete on close, shown
        tree:
          POP_1
          POP_3
    )");
}
} // namespace
