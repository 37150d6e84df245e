// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <memory>
#include <vector>

namespace
{
/** A composite that records when it is asked to focus anything. */
class CAskedComposite : public CGUICompositeObject
{
public:
    CAskedComposite(CGUICompositeObject* pkParent, ObjectHandle_t eID, std::vector<ObjectHandle_t>& kAsked)
        : CGUICompositeObject(pkParent, eID), m_kAsked(kAsked)
    {
    }

    eC_Bool FocusAny() override
    {
        m_kAsked.push_back(GetID());
        return CGUICompositeObject::FocusAny();
    }

private:
    std::vector<ObjectHandle_t>& m_kAsked;
};

class CFocusPreservationTest : public CDialogTest
{
protected:
    /** Takes the focus away. */
    void LoseFocus()
    {
        CGUIObject* pkObject = Focus();
        ASSERT_NE(nullptr, pkObject);
        pkObject->SetFocusable(false);
        pkObject->SetFocusable(true);
        EXPECT_EQ(nullptr, Focus());
    }

    std::string History() { return PrintState(Manager(), STATE_HISTORY); }
};

// --- Recording -------------------------------------------------------------------------------------

TEST_F(CFocusPreservationTest, Leave_WithoutFocus_RecordsNoHandle)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    EXPECT_EQ(nullptr, Focus());

    Go(DLG_B, ODA_NOTHING);

    EXPECT_EQ(NO_HANDLE, (*Access::GetHistory(Manager()).GetBegin()).m_eFocussedObject);
    EXPECT_STATE(R"(
        current: DLG_B after ODA_NOTHING
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        tree:
          DLG_A
          DLG_B
    )");
}

TEST_F(CFocusPreservationTest, Leave_WithAnAnonymousFocusInside_GivesItADynamicIdentifierAndRecordsThat)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 { - focusable } }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE focus 29 (after ODA_NOTHING)
        dynamic: 29
        tree:
          DLG_A invisible
            OBJ_1
              29 focusable
          DLG_B
    )");
}

TEST_F(CFocusPreservationTest, Leave_TheDynamicIdentifierStaysOnTheObjectWhenTheEntryIsGone)
{
    DefineDialog(DLG_A, "DLG_A { - focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        dynamic: 29
        focus: 29
        tree:
          DLG_A
            29 focussed
    )");
}

TEST_F(CFocusPreservationTest, Leave_WithTheFocusOutsideTheDialog_RecordsItAsItIs)
{
    DefineEmptyDialogs();
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);
    Go(DLG_A, ODA_NOTHING);

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE focus OBJ_9 (after ODA_NOTHING)
        focus: OBJ_9
        tree:
          OBJ_9 focussed
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CFocusPreservationTest, Leave_WithAnAnonymousFocusOutsideTheDialog_GivesItNoIdentifier)
{
    DefineEmptyDialogs();
    EXPECT_TRUE(Attach("- focusable")->RequestFocus());
    Go(DLG_A, ODA_NOTHING);

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        focus: -
        tree:
          - focussed
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CFocusPreservationTest, Leave_ADialogThatIsNoComposite_RecordsTheFocusAsItIs)
{
    DefineDialog(DLG_A, "Object DLG_A focusable");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    EXPECT_EQ(Object(DLG_A), Focus());

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_TEXT("history: DLG_A ODA_INVISIBLE focus DLG_A (after ODA_NOTHING)\n", History());
}

TEST_F(CFocusPreservationTest, Leave_ADialogThatIsNoComposite_GivesAnAnonymousFocusNoIdentifier)
{
    DefineDialog(DLG_A, "Object DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    CGUIObject* pkFocussed = Attach("- focusable");
    EXPECT_TRUE(pkFocussed->RequestFocus());
    Go(DLG_A, ODA_NOTHING);

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ(NO_HANDLE, pkFocussed->GetID());
    EXPECT_TEXT("history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)\n", History());
}

TEST_F(CFocusPreservationTest, Leave_RecordsWhatHadTheFocusBeforeAnythingWasLoaded)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    CodeFactory().RegisterBuilder("code:DLG_B",
                                  [this]
                                  {
                                      SetFocus(OBJ_2);
                                      return new CGUICompositeObject(nullptr, DLG_B);
                                  });
    Manager().RegisterDialogDefinition("code:DLG_B", DLG_B);
    Go(DLG_A, ODA_NOTHING);
    EXPECT_EQ(Object(OBJ_1), Focus());

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_TEXT("history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)\n", History());
}

TEST_F(CFocusPreservationTest, Leave_AfterIdentifyingAnAnonymousFocus_RecordsWhatHasTheFocusThen)
{
    DefineDialog(DLG_A, "DLG_A { - focusable; OBJ_2 focusable }");
    CodeFactory().RegisterBuilder("code:DLG_B",
                                  [this]
                                  {
                                      SetFocus(OBJ_2);
                                      return new CGUICompositeObject(nullptr, DLG_B);
                                  });
    Manager().RegisterDialogDefinition("code:DLG_B", DLG_B);
    Go(DLG_A, ODA_NOTHING);

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE focus OBJ_2 (after ODA_NOTHING)
        dynamic: 29
        tree:
          DLG_A invisible
            29 focusable
            OBJ_2 focusable
          DLG_B
    )");
}

TEST_F(CFocusPreservationTest, Leave_AfterIdentifyingAnAnonymousFocusThatWasLost_RecordsNoHandle)
{
    DefineDialog(DLG_A, "DLG_A { - focusable }");
    CodeFactory().RegisterBuilder("code:DLG_B",
                                  [this]
                                  {
                                      LoseFocus();
                                      return new CGUICompositeObject(nullptr, DLG_B);
                                  });
    Manager().RegisterDialogDefinition("code:DLG_B", DLG_B);
    Go(DLG_A, ODA_NOTHING);

    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        dynamic: 29
        tree:
          DLG_A invisible
            29 focusable
          DLG_B
    )");
}

// --- Restoring in CreateDialog ---------------------------------------------------------------------

TEST_F(CFocusPreservationTest, CreateDialog_OfADialogInTheHistory_RecoversItsFocusBeforeTheHooks)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable }");
    Go(DLG_A, ODA_NOTHING);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [this](CGUIObject*) { EXPECT_EQ(Object(OBJ_2), Focus()); });

    Manager().CreateDialog(DLG_A, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE, no deletion
        history: DLG_B ODA_INVISIBLE focus OBJ_3 (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE focus OBJ_2 (after ODA_NOTHING)
        focus: OBJ_2
        tree:
          DLG_B invisible
            OBJ_3 focusable
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
    )");
}

TEST_F(CFocusPreservationTest, CreateDialog_OfADialogWithoutRecovery_RequestsNothingButEnsuresSomeFocus)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A { OBJ_1 focusable; OBJ_2 focusable }"); }, true, false);
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_INVISIBLE);

    Manager().CreateDialog(DLG_A, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE, no deletion, no recovery
        history: DLG_B ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE focus OBJ_2 (after ODA_NOTHING, no recovery)
        focus: OBJ_1
        tree:
          DLG_B invisible
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CFocusPreservationTest, CreateDialog_UsesTheMostRecentEntryOfTheDialog)
{
    Attach("DLG_A invisible { OBJ_1 focusable; OBJ_2 focusable; OBJ_3 focusable }");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, OBJ_2);
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, OBJ_3);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_EQ(Object(OBJ_3), Focus());
}

TEST_F(CFocusPreservationTest, CreateDialog_DoesNotLookForTheRecordedObjectOutsideTheDialog)
{
    Attach("DLG_A invisible { OBJ_1 focusable }");
    Attach("OBJ_9 focusable");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, OBJ_9);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_TRACE(
        "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
        "the id 1 is already contained in the GUI.\\n\n"
        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n");
    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CFocusPreservationTest, CreateDialog_MovesAnExistingFocusToTheRecordedObject)
{
    Attach("DLG_A invisible { OBJ_1 focusable }");
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, OBJ_1);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CFocusPreservationTest, CreateDialog_WhenTheRecordedObjectIsHidden_FindsItAndTriesItsAncestors)
{
    Attach("DLG_A invisible { OBJ_1 focusable invisible; OBJ_2 focusable }");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, OBJ_1);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
        "the id 1 is already contained in the GUI.\\n\n"
        "ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 17 Trying to "
        "recover focus on ancestors.\\n @Source/Core/GUIDialogManager.cpp:#\n"
        "OnDialogActivation(DLG_A)\n"
        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n");
    EXPECT_EQ(Object(OBJ_2), Focus());
}

TEST_F(CFocusPreservationTest, CreateDialog_LoadedAgain_RecoversTheFocusOfTheNewObjects)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_DELETE);

    Manager().CreateDialog(DLG_A, ODA_INVISIBLE);

    EXPECT_EQ(Object(OBJ_2), Focus());
}

// --- Restoring when going back ---------------------------------------------------------------------

TEST_F(CFocusPreservationTest, Back_RecoversTheFocusBeforeTheActivation)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable }");
    Go(DLG_A, ODA_NOTHING);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_INVISIBLE);
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [this](CGUIObject*) { EXPECT_EQ(Object(OBJ_2), Focus()); });

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
    )");
}

TEST_F(CFocusPreservationTest, Back_ToADialogWithoutRecovery_RequestsNothing)
{
    DefineEmptyDialogs();
    Manager().AddDialog(Attach("DLG_E { OBJ_1 focusable }"), ODA_NOTHING, false);
    EXPECT_EQ(Object(OBJ_1), Focus());
    Go(DLG_B, ODA_INVISIBLE);

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_E after ODA_NOTHING, no deletion, no recovery
        tree:
          DLG_E
            OBJ_1 focusable
    )");
}

TEST_F(CFocusPreservationTest, Back_ToADialogWithoutRecordedFocus_EnsuresNone)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    LoseFocus();
    Go(DLG_B, ODA_INVISIBLE);

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
            OBJ_1 focusable
    )");
}

TEST_F(CFocusPreservationTest, Back_LooksForTheRecordedObjectInTheDialogFirst)
{
    Attach("OBJ_9 { OBJ_1 focusable }");
    CGUIObject* pkDialog = Attach("DLG_A invisible { OBJ_1 focusable }");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE, OBJ_1);

    Access::CreateDialogFromHistory(Manager());

    ASSERT_NE(nullptr, Focus());
    EXPECT_EQ(OBJ_1, Focus()->GetID());
    EXPECT_TRUE(Focus()->IsDescendantOf(pkDialog));
}

TEST_F(CFocusPreservationTest, Back_LooksForTheRecordedObjectUnderTheRootThen)
{
    DefineEmptyDialogs();
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    LoseFocus();

    Manager().Back(true);

    EXPECT_EQ(Object(OBJ_9), Focus());
}

TEST_F(CFocusPreservationTest, Back_ToARebuiltDialogWithADynamicFocus_FindsNothingAndRequestsNothing)
{
    DefineDialog(DLG_A, "DLG_A { - focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
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
        dynamic: 29
        tree:
          DLG_A
            - focusable
    )");
}

// --- RecoverFocus ----------------------------------------------------------------------------------

TEST_F(CFocusPreservationTest, RecoverFocus_OfNull_DoesNothing)
{
    Attach("OBJ_9 focusable");

    Access::RecoverFocus(Manager(), nullptr);

    EXPECT_EQ(nullptr, Focus());
    EXPECT_EVENTS("");
}

TEST_F(CFocusPreservationTest, RecoverFocus_OfAnObjectThatTakesIt_LogsNothing)
{
    Attach("DLG_A { OBJ_1 focusable; OBJ_2 focusable }");

    Access::RecoverFocus(Manager(), Object(OBJ_2));

    EXPECT_EQ(Object(OBJ_2), Focus());
    EXPECT_EVENTS("");
}

TEST_F(CFocusPreservationTest, RecoverFocus_OfAnObjectThatRefuses_AsksItsAncestorsUntilOneSucceeds)
{
    std::vector<ObjectHandle_t> kAsked;
    auto* pkDialog = new CAskedComposite(&Root(), DLG_A, kAsked);
    auto* pkGroup = new CAskedComposite(pkDialog, OBJ_1, kAsked);
    auto* pkInnerGroup = new CAskedComposite(pkGroup, OBJ_2, kAsked);
    auto* pkObject = new CGUIObject(pkInnerGroup, OBJ_3);
    (new CGUIObject(pkGroup, OBJ_4))->SetFocusable(true);

    Access::RecoverFocus(Manager(), pkObject);

    EXPECT_EVENTS(
        "ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 19 Trying to "
        "recover focus on ancestors.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    // The outer group asks the inner one again.
    EXPECT_EQ((std::vector<ObjectHandle_t>{OBJ_2, OBJ_1, OBJ_2}), kAsked);
    EXPECT_EQ(Object(OBJ_4), Focus());
}

TEST_F(CFocusPreservationTest, RecoverFocus_WhenNoAncestorBelowTheRootTakesIt_AsksTheRoot)
{
    Attach("DLG_A { OBJ_1 { OBJ_2 } }");
    Attach("OBJ_9 focusable");

    Access::RecoverFocus(Manager(), Object(OBJ_2));

    EXPECT_EQ(Object(OBJ_9), Focus());
    EXPECT_EVENTS(
        "ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 18 Trying to "
        "recover focus on ancestors.\\n @Source/Core/GUIDialogManager.cpp:#\n");
}

TEST_F(CFocusPreservationTest,
       RecoverFocus_OfADetachedObject_LogsAnErrorWithoutAFullStopBehindTheIdentifier_Intended)
{
    const std::unique_ptr<CGUIObject> pkObject(CObjectTree("Object OBJ_3 focusable").Build());
    Attach("OBJ_9 focusable");

    Access::RecoverFocus(Manager(), pkObject.get());

    EXPECT_EQ(nullptr, Focus());
    EXPECT_EVENTS(
        "ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 19 Trying to "
        "recover focus on ancestors.\\n @Source/Core/GUIDialogManager.cpp:#\n");
}

TEST_F(CFocusPreservationTest, RecoverFocus_WhenNothingTakesIt_LogsNothingFurther)
{
    Attach("DLG_A { OBJ_1 { OBJ_2 } }");

    Access::RecoverFocus(Manager(), Object(OBJ_2));

    EXPECT_EQ(nullptr, Focus());
    EXPECT_EVENTS(
        "ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 18 Trying to "
        "recover focus on ancestors.\\n @Source/Core/GUIDialogManager.cpp:#\n");
}

TEST_F(CFocusPreservationTest, Back_ToADialogWithItsFocusOnTheFirstHandle_RestoresIt)
{
    EXPECT_EQ(1, DLG_A);
    DefineDialog(DLG_B, "DLG_B { OBJ_1 focusable; DLG_A focusable }");
    DefineDialog(DLG_C, "DLG_C { OBJ_2 focusable }");
    Go(DLG_B, ODA_NOTHING);
    SetFocus(DLG_A);
    Go(DLG_C, ODA_INVISIBLE);

    Manager().Back(true);

    EXPECT_EQ(Object(DLG_A), Focus());
}

TEST_F(CFocusPreservationTest, Back_WhenTheFocussedObjectWasHidden_GoesToItsAncestorsAndNotToItsNamesake)
{
    Attach("OBJ_2 focusable");
    DefineDialog(DLG_A, "DLG_A { OBJ_2 focusable; OBJ_3 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Go(DLG_A, ODA_NOTHING);
    CGUIObject* pkInside = Object(DLG_A)->GetObjectByID(OBJ_2, false);
    EXPECT_TRUE(pkInside->RequestFocus());
    Go(DLG_B, ODA_INVISIBLE);
    pkInside->SetInvisible(true);

    Manager().Back(true);

    EXPECT_EQ(Object(OBJ_3), Focus());
}

// --- EnsureFocus -----------------------------------------------------------------------------------

TEST_F(CFocusPreservationTest, EnsureFocus_NeverMovesAnExistingFocus)
{
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);
    Attach("DLG_A { OBJ_1 focusable }");

    Access::EnsureFocus(Manager(), Object(DLG_A));

    EXPECT_EQ(Object(OBJ_9), Focus());
}

TEST_F(CFocusPreservationTest, EnsureFocus_AsksTheDialogBeforeTheRoot)
{
    Attach("OBJ_9 focusable");
    Attach("DLG_A { OBJ_1 focusable }");

    Access::EnsureFocus(Manager(), Object(DLG_A));

    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CFocusPreservationTest, EnsureFocus_WhenNothingTakesTheFocus_DoesNotMind)
{
    Attach("DLG_A { OBJ_1 }");

    Access::EnsureFocus(Manager(), Object(DLG_A));

    EXPECT_EQ(nullptr, Focus());
    EXPECT_EVENTS("");
}

TEST_F(CFocusPreservationTest, CreateDialog_OfADialogWithNothingToFocus_AsksTheRoot)
{
    DefineEmptyDialogs();
    Attach("OBJ_9 focusable");

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_EQ(Object(OBJ_9), Focus());
}

TEST_F(CFocusPreservationTest, CreateDialog_WhileSomethingOutsideTheDialogsHasTheFocus_LeavesItThere)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_EQ(Object(OBJ_9), Focus());
}

TEST_F(CFocusPreservationTest, CreateDialog_EnsuresTheFocusBetweenTheActivationAndTheArbitration)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Object(POP_1)->SetInvisible(true);
    ClearEvents();
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [](CGUIObject*) { EXPECT_EQ(nullptr, Focus()); });
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, [this](CGUIObject*) { EXPECT_EQ(Object(OBJ_1), Focus()); });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
        OnPopupActivation(POP_1)
    )");
}

TEST_F(CFocusPreservationTest, Switching_DoesNotTouchTheFocusRememberedForPopups)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");
    Go(DLG_A, ODA_NOTHING);
    Manager().ShowPopup(POP_1);
    EXPECT_EQ(Object(OBJ_1), Access::GetCurrentDialogFocus(Manager()).get());

    Go(DLG_B, ODA_INVISIBLE);
    Manager().Back(true);

    EXPECT_EQ(Object(OBJ_1), Access::GetCurrentDialogFocus(Manager()).get());
}
} // namespace
