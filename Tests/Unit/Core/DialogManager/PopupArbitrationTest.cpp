// SPDX-License-Identifier: MIT
#include "Tests/Unit/TraceMoment.h"
#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

namespace
{
class CPopupArbitrationTest : public CGUITest
{
protected:
    /** Registers a popup that is loaded from code and hidden on close. */
    void Define(ObjectHandle_t ePopupID, int iPriority, eC_UInt uiDisplayTime = 0)
    {
        DefinePopup(ePopupID, static_cast<CGUIDialogManager::PopupPriority_t>(iPriority), uiDisplayTime,
                    false, NameOfHandle(ePopupID));
    }
};

TEST_F(CPopupArbitrationTest, HigherPriority_HidesTheLowerOneAndClosingItShowsThatAgainWithFreshTime)
{
    Define(POP_1, 5, 3000);
    Define(POP_2, 7, 1000);
    Manager().ShowPopup(POP_1);
    Clock().Advance(500);
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, hide on close, hidden
        active: POP_2 prio 7, 1000 ms, hide on close, shown, 1000 ms left
        tree:
          POP_1 invisible
          POP_2
    )");

    Clock().Advance(500);
    ClearEvents();
    Manager().ClosePopup(POP_2);
    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_2)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, hide on close, shown, 3000 ms left
        tree:
          POP_2 invisible
          POP_1
    )");
}

TEST_F(CPopupArbitrationTest, EqualHighestPriority_ShowsBothWithTheLaterOneOnTopIntended)
{
    Define(POP_1, 5, 300);
    Define(POP_2, 5);
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 0 ms, hide on close, shown
        active: POP_1 prio 5, 300 ms, hide on close, shown, 300 ms left
        tree:
          POP_1
          POP_2
    )");
}

TEST_F(CPopupArbitrationTest, EveryRun_RaisesEqualPopupsSoThatTheNewestIsOnTopIntended)
{
    Define(POP_1, 5);
    Define(POP_2, 5);
    Define(POP_3, 5);
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        Manager().ShowPopup(eID);
    }
    Root().DrawOnTop(Object(POP_1));
    Attach("DLG_A");

    Manager().UpdateActivePopups();

    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 5, 0 ms, hide on close, shown
        active: POP_2 prio 5, 0 ms, hide on close, shown
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
          POP_1
          POP_2
          POP_3
    )");
}

TEST_F(CPopupArbitrationTest, ThreePriorities_ShowOnlyTheHighestWhateverTheOrderOfShowing)
{
    Define(POP_1, 9);
    Define(POP_2, 1);
    Define(POP_3, 5);
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        Manager().ShowPopup(eID);
    }
    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1)
    )");

    Manager().ClosePopup(POP_1);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_3)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 1, 0 ms, hide on close, hidden
        active: POP_3 prio 5, 0 ms, hide on close, shown
        tree:
          POP_2 invisible
          POP_1 invisible
          POP_3
    )");
}

TEST_F(CPopupArbitrationTest, NeighbouringPriorities_AreNotTakenForEqual)
{
    Define(POP_1, 6);
    Define(POP_2, 7);
    Define(POP_3, 8);
    for (const ObjectHandle_t eID : {POP_2, POP_1, POP_3})
    {
        Manager().ShowPopup(eID);
    }

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 6, 0 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, hidden
        active: POP_3 prio 8, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2 invisible
          POP_3
    )");
}

TEST_F(CPopupArbitrationTest, PrioritiesOutsideTheNamedOnes_OrderAsTheirNumberDoes)
{
    Define(POP_1, 9);
    Define(POP_2, 255);
    Define(POP_3, 0);
    Define(POP_4, 1);
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3, POP_4})
    {
        Manager().ShowPopup(eID);
    }

    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 0, 0 ms, hide on close, hidden
        active: POP_4 prio 1, 0 ms, hide on close, hidden
        active: POP_1 prio 9, 0 ms, hide on close, hidden
        active: POP_2 prio 255, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_3 invisible
          POP_4 invisible
          POP_2
    )");
}

TEST_F(CPopupArbitrationTest, LowerPopupThatIsHiddenAlready_GetsNoHookAndNoEntry)
{
    Define(POP_1, 5);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
    )");
}

TEST_F(CPopupArbitrationTest, LowerPopupThatSomebodyMadeVisible_IsHiddenAgain)
{
    Define(POP_1, 5, 400);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Object(POP_1)->SetInvisible(false);
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 400 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2
    )");
}

TEST_F(CPopupArbitrationTest, Deactivation_HidesAndStopsTheTimeBeforeTheHookAndLogsBehindIt)
{
    Define(POP_1, 5, 400);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    std::string kStateInHook;
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [&](CGUIObject*) { kStateInHook = State(); });

    Manager().ShowPopup(POP_2);

    EXPECT_TEXT(R"(
        current: none
        active: POP_1 prio 5, 400 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2
    )",
                kStateInHook);
}

TEST_F(CPopupArbitrationTest, Activation_AttachesRaisesShowsAndStartsTheTimeBeforeTheHook)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 400, false, "");
    Manager().SetPopupCreator(POP_1, [] { return CObjectTree("POP_1").Build(); });
    Attach("DLG_A");
    std::string kStateInHook;
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, [&](CGUIObject*) { kStateInHook = State(); });

    Manager().ShowPopup(POP_1);

    EXPECT_TEXT(R"(
        current: none
        active: POP_1 prio 5, 400 ms, hide on close, shown, 400 ms left
        tree:
          DLG_A
          POP_1
    )",
                kStateInHook);
}

TEST_F(CPopupArbitrationTest, DisplayedPopupThatSomebodyHid_IsActivatedAgain)
{
    Define(POP_1, 5);
    Manager().ShowPopup(POP_1)->SetInvisible(true);
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
    )");
}

TEST_F(CPopupArbitrationTest, DisplayedPopupThatSomebodyDetached_IsAttachedToTheRootAgain)
{
    Define(POP_1, 5);
    Manager().ShowPopup(POP_1)->SetParent(nullptr);
    Attach("DLG_A");

    Manager().UpdateActivePopups();

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
          POP_1
    )");
}

TEST_F(CPopupArbitrationTest, PopupWithAParent_IsRaisedThereAndNotMovedToTheRootIntended)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 }");
    Manager().SetPopupCreator(
        POP_1,
        [pkDialog] { return CObjectTree("POP_1").Build(static_cast<CGUICompositeObject*>(pkDialog)); });
    Manager().ShowPopup(POP_1);
    CObjectTree("OBJ_2").Build(static_cast<CGUICompositeObject*>(pkDialog));

    Manager().UpdateActivePopups();

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
            OBJ_1
            OBJ_2
            POP_1
    )");
}

TEST_F(CPopupArbitrationTest, DialogSwitch_RaisesDisplayedPopupsWithoutActivatingThemAgain)
{
    DefineDialog(DLG_A, "DLG_A");
    Define(POP_1, 5, 3000);
    Define(POP_2, 5);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Clock().Advance(100);
    ClearEvents();

    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
        OnDialogAdded(DLG_A)
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 5 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_2 prio 5, 0 ms, hide on close, shown
        active: POP_1 prio 5, 3000 ms, hide on close, shown, 2900 ms left
        tree:
          DLG_A
          POP_1
          POP_2
    )");
}

TEST_F(CPopupArbitrationTest, AddDialog_RaisesDisplayedPopupsBehindTheHook)
{
    Define(POP_1, 5);
    Manager().ShowPopup(POP_1);
    CGUIObject* pkDialog = Attach("DLG_A");
    ClearEvents();

    Manager().AddDialog(pkDialog, CGUIDialogManager::ODA_NOTHING, true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::AddDialog: new dialog has object ID 1.\n
        OnDialogAdded(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
          POP_1
    )");
}

TEST_F(CPopupArbitrationTest, Back_ArbitratesTwiceWhenADialogComesBack)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    Define(POP_1, 5);
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
        OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
          POP_1
    )");
}

TEST_F(CPopupArbitrationTest, BackToDialog_ArbitratesOnceBehindTheActivation)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    ClearEvents();

    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        OnAfterDialogDeletion(DLG_B, DLG_A)
        OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CPopupArbitrationTest, EmptyList_IsLoggedAndNothingElseHappens)
{
    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupArbitrationTest, PopupWhoseObjectIsGone_IsDroppedOnTheNextRunWithoutHook)
{
    Define(POP_1, 5, 3000);
    Define(POP_2, 5);
    Define(POP_3, 5);
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        Manager().ShowPopup(eID);
    }
    delete Object(POP_2);
    delete Object(POP_1);
    ClearEvents();
    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 5, 0 ms, hide on close, shown
        active: gone prio 5, 0 ms, hide on close
        active: gone prio 5, 3000 ms, hide on close, 3000 ms left
        tree:
          POP_3
    )");

    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 11 with priority 5 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 5, 0 ms, hide on close, shown
        tree:
          POP_3
    )");
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CPopupArbitrationTest, FirstEntryWhoseObjectIsGone_IsDroppedToo)
{
    Define(POP_1, 7);
    Define(POP_2, 5);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    delete Object(POP_2);

    Manager().UpdateActivePopups();

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1
    )");
}

TEST_F(CPopupArbitrationTest, LastEntryWhoseObjectIsGone_StillHidesAllLowerOnesInThatRunIntended)
{
    Define(POP_1, 5, 300);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    delete Object(POP_2);
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 300 ms, hide on close, hidden
        tree:
          POP_1 invisible
    )");

    Manager().UpdateActivePopups();
    EXPECT_EVENTS(R"(
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 300 ms.\n
    )");
}

TEST_F(CPopupArbitrationTest, LastEntryWhoseObjectIsGone_HidesALowerOneThatIsVisibleAndShowsItsEqualsIntended)
{
    Define(POP_1, 5);
    Define(POP_2, 7);
    Define(POP_3, 7);
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        Manager().ShowPopup(eID);
    }
    delete Object(POP_2);
    Object(POP_1)->SetInvisible(false);
    Object(POP_3)->SetInvisible(true);
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
        OnPopupActivation(POP_3)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 11 with priority 7 is activated with a display time of 0 ms.\n
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, hidden
        active: POP_3 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_3
    )");
}

TEST_F(CPopupArbitrationTest, OnlyEntryWhoseObjectIsGone_LeavesAnEmptyListWithoutGivingTheFocusBackInThatRun)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    Define(POP_1, 5);
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().ShowPopup(POP_1);
    SetFocus(OBJ_2);
    delete Object(POP_1);
    ClearEvents();

    Manager().UpdateActivePopups();

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        remembered: OBJ_1
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
    )");

    Manager().UpdateActivePopups();
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupArbitrationTest, AnEmptyList_IsLoggedBeforeTheFocusIsGivenBack)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
    Define(POP_1, 5);
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    SetFocus(OBJ_1);
    Manager().ShowPopup(POP_1);
    SetFocus(OBJ_2);
    const CTraceMoment kMoment("list is empty", [this] { EXPECT_EQ(Object(OBJ_2), Focus()); });

    Manager().ClosePopup(POP_1);

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CPopupArbitrationTest, ALostPopup_IsLoggedBeforeItIsRemoved)
{
    Define(POP_1, 5);
    Manager().ShowPopup(POP_1);
    delete Object(POP_1);
    const auto& kActive = CGUITestAccess::GetActivePopups(Manager());
    const CTraceMoment kMoment("contains NULL pointer", [&kActive] { EXPECT_EQ(1U, kActive.GetQuantity()); });

    Manager().UpdateActivePopups();

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_EQ(0U, kActive.GetQuantity());
}

TEST_F(CPopupArbitrationTest, APopupThatItsHookTookFromTheListWhileItWasHidden_IsNotLoggedAsDeactivated)
{
    Define(POP_1, 5);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                      [this](CGUIObject*) { CGUITestAccess::GetActivePopups(Manager()).RemoveAll(); });
    ClearEvents();

    EXPECT_THROW(Manager().ShowPopup(POP_2), int);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        OnPopupActivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        OnPopupDeactivation(POP_1)
    )");
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CPopupArbitrationTest, UpdateActivePopups_ThatNeedsTheRootWithoutOne_TripsTheAssertion)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Attach("POP_1");
    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);
    pkPopup->SetParent(nullptr);
    DestroyRoot();

    EXPECT_DEATH(Manager().UpdateActivePopups(), "NULL != ms_pInstance");

    delete pkPopup;
}
#endif
} // namespace
