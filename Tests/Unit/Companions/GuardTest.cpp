// SPDX-License-Identifier: MIT
#include "Companions/GUIGuard.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

namespace
{
/** DLG_A is home, DLG_C and DLG_D are guarded, DLG_E asks; DLG_B and DLG_F are free. */
class CGuardTest : public CCompanionTest
{
protected:
    CGuardTest()
    {
        DefineEmptyDialogs(DLG_A, DLG_B, DLG_E, DLG_F);
        DefineDialog(DLG_C, "DLG_C { OBJ_1 focusable; OBJ_2 focusable }");
        DefineDialog(DLG_D, "DLG_D");
        Manager().AddListener(m_kListener);
        Go(DLG_A, ODA_NOTHING);
    }

    CGUIGuard& Guard() { return *m_pkGuard; }
    ObjectHandle_t Current() { return Manager().GetCurrentDialogID(); }

    bool IsVisible(ObjectHandle_t eID) const
    {
        const CGUIObject* pkObject = Object(eID);
        return pkObject != nullptr && !pkObject->IsInvisible();
    }

    static bool IsGuarded(ObjectHandle_t eID) { return eID == DLG_C || eID == DLG_D; }

    /** With the right, DLG_C is shown after DLG_B; then the right ends. */
    void VisitGuardedOnceAndLeave()
    {
        Guard().Grant();
        Go(DLG_C);
        Go(DLG_B);
        Guard().Revoke();
        Clock().Advance(1);
        ClearEvents();
    }

    const ObjectHandle_t m_aeGuarded[2] = {DLG_C, DLG_D};
    CRecordingListener m_kListener{Events(), "Listener"};
    std::unique_ptr<CGUIGuard> m_pkGuard = std::make_unique<CGUIGuard>(Manager(), DLG_E, m_aeGuarded, 2U);
};

// --- Asking ------------------------------------------------------------------------------------------

TEST_F(CGuardTest, Show_OfAFreeDialog_Switches)
{
    EXPECT_EQ(CGUIGuard::GUARD_SHOWS, Guard().Show(DLG_B, ODA_INVISIBLE));

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CGuardTest, Show_WithoutTheRight_ShowsTheQuestion)
{
    EXPECT_EQ(CGUIGuard::GUARD_ASKS, Guard().Show(DLG_C, ODA_DELETE));

    EXPECT_TRUE(Guard().IsAsking());
    EXPECT_FALSE(Guard().HasRight());
    EXPECT_STATE(R"(
        current: DLG_E after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_E
    )");
}

TEST_F(CGuardTest, Show_OfTheGuardedDialogsWhileAsking_TheLastOneIsWanted)
{
    Guard().Show(DLG_C, ODA_DELETE);
    EXPECT_EQ(CGUIGuard::GUARD_ASKS, Guard().Show(DLG_D, ODA_INVISIBLE));

    Guard().Grant();

    EXPECT_EQ(DLG_D, Current());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CGuardTest, Grant_GoesOnToTheDialog_AsIfTheQuestionHadNotBeenThere)
{
    Guard().Show(DLG_C, ODA_DELETE);
    ClearEvents();

    Guard().Grant();

    EXPECT_TRUE(Guard().HasRight());
    EXPECT_STATE(R"(
        current: DLG_C after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        focus: OBJ_1
        tree:
          DLG_C
            OBJ_1 focussed
            OBJ_2 focusable
    )");
    EXPECT_EVENTS(R"(
        DEBUG: CGUIGuard::Grant: Dialog with ID 5 is answered.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 5.\n
        Listener OnDialogDeletion(DLG_E)
        Listener OnDialogActivation(DLG_A)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        Listener OnAfterDialogDeletion(DLG_E, DLG_A)
        INFO: Time for loading code:DLG_C: 0.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
        Listener OnDialogDeletion(DLG_A)
        Listener OnDialogAdded(DLG_C)
        Listener OnDialogActivation(DLG_C)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CGuardTest, Grant_TheQuestionIsTheFirstDialog_IsNotInTheHistoryAfterwards)
{
    CGUIObservedDialogManager kManager;
    CGUIGuard kGuard(kManager, DLG_E, m_aeGuarded, 2);
    Attach("DLG_E");
    Attach("DLG_D")->SetInvisible(true);
    EXPECT_EQ(CGUIGuard::GUARD_ASKS, kGuard.Show(DLG_D, ODA_INVISIBLE));
    EXPECT_FALSE(kGuard.Refuse());
    EXPECT_TRUE(kGuard.IsAsking());

    kGuard.Grant();

    EXPECT_EQ(DLG_D, kManager.GetCurrentDialogID());
    EXPECT_EQ(0U, kManager.GetHistoryStackSize());
}

TEST_F(CGuardTest, Grant_FromAQuestionWithAnotherDialogOverIt_GoesOnWhenItIsCurrentAgain)
{
    Guard().Show(DLG_C, ODA_INVISIBLE);
    Go(DLG_F);

    Guard().Grant();
    EXPECT_EQ(DLG_F, Current());
    Manager().Back(true);
    Guard().Grant();

    EXPECT_EQ(DLG_C, Current());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CGuardTest, Grant_AfterTheQuestionWasLeftOtherwise_ShowsNothing)
{
    Guard().Show(DLG_C, ODA_INVISIBLE);
    Manager().Back(true);

    Guard().Grant();

    EXPECT_EQ(DLG_A, Current());
    EXPECT_EQ(CGUIGuard::GUARD_SHOWS, Guard().Show(DLG_C, ODA_INVISIBLE));
}

TEST_F(CGuardTest, Refuse_GoesBackToWhereItWasRequested)
{
    Guard().Show(DLG_C, ODA_DELETE);

    EXPECT_TRUE(Guard().Refuse());
    EXPECT_FALSE(Guard().Refuse());

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CGuardTest, Show_TheQuestionCannotBeShown_Fails)
{
    m_pkGuard = std::make_unique<CGUIGuard>(Manager(), DLG_H, m_aeGuarded, 2U);

    EXPECT_EQ(CGUIGuard::GUARD_FAILS, Guard().Show(DLG_C, ODA_INVISIBLE));
    Guard().Grant();
    EXPECT_EQ(CGUIGuard::GUARD_FAILS, Guard().Show(DLG_G, ODA_INVISIBLE));

    EXPECT_EQ(DLG_A, Current());
}

// --- The end of the right ----------------------------------------------------------------------------

TEST_F(CGuardTest, Time_EndsTheRightAndLocksTheDialog)
{
    Guard().SetTime(10000);
    Guard().Grant();
    Go(DLG_C);
    SetFocus(OBJ_2);

    Clock().Advance(9999);
    EXPECT_TRUE(Guard().HasRight());
    EXPECT_EQ(DLG_C, Current());
    Clock().Advance(1);

    EXPECT_FALSE(Guard().HasRight());
    EXPECT_EQ(DLG_E, Current());
    EXPECT_FALSE(IsVisible(DLG_C));
    Guard().Grant();
    EXPECT_EQ(DLG_C, Current());
    EXPECT_EQ(Object(OBJ_2), Focus());
}

TEST_F(CGuardTest, Time_AcrossTheWrapOfTheClock_EndsTheRight)
{
    Clock().Set(0xFFFFFFFFU - 5000);
    Guard().Grant();
    Guard().SetTime(10000);
    Go(DLG_C);

    Clock().Advance(9999);
    EXPECT_EQ(DLG_C, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_E, Current());
}

TEST_F(CGuardTest, Time_IsOverBeforeTheTimerRuns_ThereIsNoRight)
{
    Guard().SetTime(10000);
    Guard().Grant();

    Clock().Set(10000);

    EXPECT_EQ(CGUIGuard::GUARD_ASKS, Guard().Show(DLG_C, ODA_INVISIBLE));
}

TEST_F(CGuardTest, GrantAgain_TheTimeCountsAnew)
{
    Guard().SetTime(10000);
    Guard().Grant();
    Go(DLG_C);
    Clock().Advance(9000);

    Guard().Grant();

    Clock().Advance(9999);
    EXPECT_EQ(DLG_C, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_E, Current());
}

TEST_F(CGuardTest, Group_StaysInIt_TheRightStays)
{
    const ObjectHandle_t aeGroup[] = {DLG_F};
    Guard().SetEnd(CGUIGuard::END_WITH_GROUP);
    Guard().SetGroup(aeGroup, 1);
    Guard().Grant();

    Go(DLG_B);
    Go(DLG_C);
    Go(DLG_D);
    Go(DLG_F);
    EXPECT_TRUE(Guard().HasRight());

    Go(DLG_B);
    EXPECT_FALSE(Guard().HasRight());
}

TEST_F(CGuardTest, Group_AnsweredQuestion_TheWayFromItDoesNotEndTheRight)
{
    Guard().SetEnd(CGUIGuard::END_WITH_GROUP);
    Guard().Show(DLG_C, ODA_INVISIBLE);

    Guard().Grant();

    EXPECT_TRUE(Guard().HasRight());
    EXPECT_EQ(DLG_C, Current());
    Manager().Back(true);
    EXPECT_FALSE(Guard().HasRight());
}

TEST_F(CGuardTest, AtOnce_TheRightIsForOneDialogAsLongAsItIsCurrent)
{
    Guard().SetEnd(CGUIGuard::END_AT_ONCE);
    Guard().Show(DLG_C, ODA_INVISIBLE);
    Guard().Grant();
    EXPECT_EQ(DLG_C, Current());
    EXPECT_TRUE(Guard().HasRight());

    EXPECT_EQ(CGUIGuard::GUARD_ASKS, Guard().Show(DLG_D, ODA_INVISIBLE));
    EXPECT_FALSE(Guard().HasRight());
    Guard().Grant();

    EXPECT_EQ(DLG_D, Current());
    Manager().Back(true);
    EXPECT_FALSE(IsVisible(DLG_C));
    Guard().Settle();
    EXPECT_TRUE(Guard().IsAsking());
}

TEST_F(CGuardTest, AtOnce_GoingToAnotherGuardedDialogWithoutTheGuard_IsHidden)
{
    Guard().SetEnd(CGUIGuard::END_AT_ONCE);
    Guard().Grant();
    Go(DLG_C);

    Manager().CreateDialog(DLG_D, CGUIDialogManager::ODA_NOTHING);

    EXPECT_FALSE(IsVisible(DLG_C));
    EXPECT_FALSE(IsVisible(DLG_D));
}

TEST_F(CGuardTest, Revoke_AGuardedDialogIsCurrent_TheQuestionFollows)
{
    Guard().Grant();
    Go(DLG_C);

    Guard().Revoke();
    EXPECT_EQ(DLG_C, Current());
    Clock().Advance(1);

    EXPECT_STATE(R"(
        current: DLG_E after ODA_INVISIBLE
        history: DLG_C ODA_INVISIBLE focus OBJ_1 (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C invisible
            OBJ_1 focusable
            OBJ_2 focusable
          DLG_E
    )");
    EXPECT_HOOKS(R"(
        Listener OnDialogDeactivation(DLG_C)
        Listener OnDialogAdded(DLG_E)
        Listener OnDialogActivation(DLG_E)
    )");
}

// --- Going back --------------------------------------------------------------------------------------

TEST_F(CGuardTest, Back_ToAGuardedDialog_IsHiddenBeforeBackReturns_ThenItAsks)
{
    VisitGuardedOnceAndLeave();

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C invisible
            OBJ_1 focusable
            OBJ_2 focusable
    )");
    Guard().Settle();
    EXPECT_STATE(R"(
        current: DLG_E after ODA_INVISIBLE
        history: DLG_C ODA_INVISIBLE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C invisible
            OBJ_1 focusable
            OBJ_2 focusable
          DLG_E
    )");
    EXPECT_HOOKS(R"(
        Listener OnDialogDeletion(DLG_B)
        Listener OnDialogActivation(DLG_C)
        Listener OnAfterDialogDeletion(DLG_B, DLG_C)
        Listener OnDialogDeactivation(DLG_C)
        Listener OnDialogAdded(DLG_E)
        Listener OnDialogActivation(DLG_E)
    )");
}

TEST_F(CGuardTest, Back_ToAGuardedDialog_TheQuestionFollowsFromTheTimer)
{
    VisitGuardedOnceAndLeave();

    Manager().Back(true);
    Clock().Advance(1);

    EXPECT_TRUE(Guard().IsAsking());
    Clock().Advance(1);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CGuardTest, Back_ToAGuardedDialog_Answered_IsShownWithItsFocus)
{
    Guard().Grant();
    Go(DLG_C);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_DELETE);
    Guard().Revoke();
    Manager().Back(true);
    EXPECT_EQ(nullptr, Focus());
    Guard().Settle();

    Guard().Grant();

    EXPECT_EQ(DLG_C, Current());
    EXPECT_TRUE(IsVisible(DLG_C));
    EXPECT_EQ(Object(OBJ_2), Focus());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CGuardTest, Back_AtTheQuestionBeforeAGuardedDialog_GoesFurtherBack)
{
    VisitGuardedOnceAndLeave();
    Manager().Back(true);
    Guard().Settle();
    ClearEvents();

    Manager().Back(true);
    EXPECT_FALSE(IsVisible(DLG_C));
    Guard().Settle();

    EXPECT_EQ(DLG_A, Current());
    EXPECT_TRUE(IsVisible(DLG_A));
    EXPECT_HOOKS(R"(
        Listener OnDialogDeletion(DLG_E)
        Listener OnDialogActivation(DLG_C)
        Listener OnAfterDialogDeletion(DLG_E, DLG_C)
        Listener OnDialogDeletion(DLG_C)
        Listener OnAfterDialogDeletion(DLG_C, DLG_A)
        Listener OnDialogActivation(DLG_A)
    )");
}

TEST_F(CGuardTest, Refuse_AtTheQuestionBeforeAGuardedDialog_GoesPastAllGuardedDialogs)
{
    Guard().Grant();
    Go(DLG_C);
    Go(DLG_D);
    Go(DLG_B);
    Guard().Revoke();
    Manager().Back(true);
    Guard().Settle();
    ClearEvents();

    EXPECT_TRUE(Guard().Refuse());

    EXPECT_EQ(DLG_A, Current());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
    EXPECT_TRACE(R"(
        DEBUG: CGUIGuard::GoFurtherBack: Going back to dialog with ID 1.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 5.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 4.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CGuardTest, Refuse_NoFreeDialogIsBehind_TheQuestionStays)
{
    Guard().Grant();
    Go(DLG_C);
    Go(DLG_B);
    Manager().ClearDialogHistory(0, true, false);
    Guard().Show(DLG_C, ODA_INVISIBLE);
    Guard().Revoke();
    Manager().ClearDialogHistory(0, true, false);
    Guard().Settle();

    EXPECT_FALSE(Guard().Refuse());
    EXPECT_TRUE(Guard().IsAsking());
    // Back leads to the guarded dialog, which asks again.
    Manager().Back(true);
    Guard().Settle();
    EXPECT_TRUE(Guard().IsAsking());
    EXPECT_FALSE(IsVisible(DLG_C));
}

TEST_F(CGuardTest, Refuse_WhereItWasRequestedTheRightHasEnded_GoesFurtherBack)
{
    Guard().SetEnd(CGUIGuard::END_AT_ONCE);
    Guard().Grant();
    Go(DLG_C);
    Guard().Show(DLG_D, ODA_INVISIBLE);

    EXPECT_TRUE(Guard().Refuse());

    EXPECT_EQ(DLG_A, Current());
    EXPECT_FALSE(IsVisible(DLG_C));
}

TEST_F(CGuardTest, BackToDialog_Directly_IsHidden)
{
    VisitGuardedOnceAndLeave();
    Go(DLG_F);

    Manager().BackToDialog(DLG_C, true, false);

    EXPECT_FALSE(IsVisible(DLG_C));
    Guard().Settle();
    EXPECT_TRUE(Guard().IsAsking());
}

TEST_F(CGuardTest, BackToDialog_Stepwise_PassesAGuardedDialogUnseen)
{
    VisitGuardedOnceAndLeave();
    bool bWasVisible = false;
    m_kListener.RunOnce(HOOK_ON_AFTER_DIALOG_DELETION, [&](CGUIObject*) { bWasVisible = IsVisible(DLG_C); });

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, false, true));
    EXPECT_FALSE(bWasVisible);
    Guard().Settle();

    EXPECT_EQ(DLG_A, Current());
    // The dialog that was passed hears that it is left.
    EXPECT_HOOKS(R"(
        Listener OnDialogDeactivation(DLG_B)
        Listener OnDialogActivation(DLG_C)
        Listener OnAfterDialogDeletion(DLG_B, DLG_C)
        Listener OnDialogDeactivation(DLG_C)
        Listener OnDialogActivation(DLG_A)
        Listener OnAfterDialogDeletion(DLG_C, DLG_A)
    )");
}

TEST_F(CGuardTest, ClearDialogHistory_AGuardedDialogBecomesCurrent_IsHidden)
{
    VisitGuardedOnceAndLeave();
    Go(DLG_F);

    Manager().ClearDialogHistory(2, true, true);

    EXPECT_EQ(DLG_C, Current());
    EXPECT_FALSE(IsVisible(DLG_C));
}

TEST_F(CGuardTest, GuardedDialogBelowAWindow_IsHiddenWhenTheRightEnds_AndShownWhenCurrentWithTheRight)
{
    Guard().Grant();
    Go(DLG_C);
    Go(DLG_F, ODA_NOTHING);
    EXPECT_TRUE(IsVisible(DLG_C));

    Guard().Revoke();
    Guard().Settle();
    EXPECT_FALSE(IsVisible(DLG_C));
    EXPECT_EQ(DLG_F, Current());
    Go(DLG_B);
    Manager().Back(true);
    EXPECT_FALSE(IsVisible(DLG_C));

    Guard().Grant();
    Manager().Back(true);
    EXPECT_EQ(DLG_C, Current());
    EXPECT_TRUE(IsVisible(DLG_C));
}

TEST_F(CGuardTest, SwitchWithoutTheGuard_IsHidden_AndTheQuestionFollows)
{
    Manager().CreateDialog(DLG_C, ODA_INVISIBLE);

    EXPECT_FALSE(IsVisible(DLG_C));
    EXPECT_EQ(nullptr, Focus());
    Guard().Settle();
    EXPECT_TRUE(Guard().IsAsking());
}

TEST_F(CGuardTest, AddDialog_OfAGuardedDialog_IsHidden)
{
    Manager().AddDialog(Attach("DLG_D"), ODA_INVISIBLE, true);

    EXPECT_FALSE(IsVisible(DLG_D));
}

TEST_F(CGuardTest, Settle_TheQuestionCannotBeShown_GoesFurtherBack)
{
    VisitGuardedOnceAndLeave();
    Manager().UnregisterDialogDefinition(DLG_E);
    delete Object(DLG_E);
    Manager().Back(true);

    Guard().Settle();

    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CGuardTest, TheDialogItselfHasTheFocus_GetsItBackWithTheRight)
{
    Guard().Grant();
    Go(DLG_D);
    Object(DLG_D)->SetFocusable(true);
    EXPECT_TRUE(Object(DLG_D)->RequestFocus());
    Guard().Revoke();
    Go(DLG_B, ODA_NOTHING);
    EXPECT_FALSE(IsVisible(DLG_D));

    Guard().Grant();
    Manager().Back(true);

    EXPECT_EQ(DLG_D, Current());
    EXPECT_EQ(Object(DLG_D), Focus());
}

TEST_F(CGuardTest, WhatHadTheFocusIsDestroyedWhileHidden_IsShownWithoutFocus)
{
    Guard().Grant();
    Go(DLG_C);
    Guard().Revoke();
    Go(DLG_B, ODA_NOTHING);
    delete Object(OBJ_1);

    Guard().Grant();
    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C
            OBJ_2 focusable
    )");
}

TEST_F(CGuardTest, TheRootHasTheIdentifierOfAGuardedDialog_IsHiddenAndShownLikeOne)
{
    Root().SetID(DLG_D);
    Manager().AddDialog(&Root(), ODA_NOTHING, false);
    EXPECT_TRUE(Root().IsInvisible());

    Guard().Grant();
    Go(DLG_B, ODA_NOTHING);
    Manager().Back(true);

    EXPECT_EQ(DLG_D, Current());
    EXPECT_FALSE(Root().IsInvisible());
}

// --- When something fails ----------------------------------------------------------------------------

TEST_F(CGuardTest, HookThrowsInASwitchToAGuardedDialog_SettleHidesIt)
{
    m_kListener.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [](CGUIObject*) { throw 7; });
    EXPECT_THROW(Manager().CreateDialog(DLG_C, ODA_INVISIBLE), int);

    Guard().Settle();

    EXPECT_FALSE(IsVisible(DLG_C));
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CGuardTest, HookThrowsWhileItAsks_TheGuardedDialogIsHiddenAllTheSame)
{
    Guard().Grant();
    Go(DLG_C);
    Guard().Revoke();
    m_kListener.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Guard().Settle(), int);

    EXPECT_FALSE(IsVisible(DLG_C));
    Guard().Settle();
    EXPECT_TRUE(Guard().IsAsking());
}

TEST_F(CGuardTest, HookThrowsOnTheWayFromTheQuestion_TheRightIsGiven)
{
    Guard().Show(DLG_C, ODA_INVISIBLE);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Guard().Grant(), int);

    EXPECT_TRUE(Guard().HasRight());
    EXPECT_EQ(CGUIGuard::GUARD_SHOWS, Guard().Show(DLG_C, ODA_INVISIBLE));
}

TEST_F(CGuardTest, InsideAHook_SettleAndRevoke_AreObeyed)
{
    Guard().Show(DLG_C, ODA_INVISIBLE);
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                        [this](CGUIObject*)
                        {
                            Guard().Revoke();
                            Guard().Settle();
                        });

    Guard().Grant();
    Clock().Advance(1);

    EXPECT_FALSE(Guard().HasRight());
    EXPECT_FALSE(IsVisible(DLG_C));
}

TEST_F(CGuardTest, InsideAHookOfSettle_SettleDoesNothing)
{
    VisitGuardedOnceAndLeave();
    Manager().Back(true);
    ClearEvents();
    m_kListener.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { Guard().Settle(); });

    Guard().Settle();

    EXPECT_HOOKS(R"(
        Listener OnDialogDeactivation(DLG_C)
        Listener OnDialogAdded(DLG_E)
        Listener OnDialogActivation(DLG_E)
    )");
    EXPECT_EQ(2U, Manager().GetHistoryStackSize());
}

TEST_F(CGuardTest, HiddenDialogIsDestroyed_TheQuestionIsShown)
{
    VisitGuardedOnceAndLeave();
    Manager().Back(true);
    delete Object(DLG_C);

    Guard().Settle();

    EXPECT_TRUE(Guard().IsAsking());
    Guard().Grant();
    EXPECT_TRUE(Guard().HasRight());
}

TEST_F(CGuardTest, ManagerIsDestroyedFirst_NothingHappens)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    CGUIGuard kGuard(*pkManager, DLG_E, m_aeGuarded, 2);
    kGuard.SetTime(100);
    kGuard.Grant();

    pkManager.reset();
    Clock().Advance(1000);

    kGuard.Settle();
    kGuard.Grant();
    EXPECT_FALSE(kGuard.Refuse());
    EXPECT_FALSE(kGuard.IsAsking());
    EXPECT_EQ(CGUIGuard::GUARD_FAILS, kGuard.Show(DLG_C, ODA_INVISIBLE));
}

TEST_F(CGuardTest, TwoGuards_EachAsksItsOwnQuestion)
{
    const ObjectHandle_t aeOthers[] = {DLG_B};
    CGUIGuard kOther(Manager(), DLG_F, aeOthers, 1);
    EXPECT_EQ(CGUIGuard::GUARD_ASKS, kOther.Show(DLG_B, ODA_INVISIBLE));
    EXPECT_EQ(DLG_F, Current());
    kOther.Grant();
    EXPECT_EQ(DLG_B, Current());

    EXPECT_EQ(CGUIGuard::GUARD_ASKS, Guard().Show(DLG_C, ODA_INVISIBLE));
    kOther.Revoke();
    Guard().Grant();

    EXPECT_EQ(DLG_C, Current());
    Manager().Back(true);
    EXPECT_FALSE(IsVisible(DLG_B));
}

// --- Whatever is done --------------------------------------------------------------------------------

/** Does random operations, through the guard and without it. */
class CGuardRandomTest : public CGuardTest
{
protected:
    unsigned TakeBelow(unsigned uiCount) { return static_cast<unsigned>(m_kRandom() % uiCount); }

    ObjectHandle_t TakeDialog() { return static_cast<ObjectHandle_t>(DLG_A + TakeBelow(6)); }

    CGUIDialogManager::EOldDialogAction TakeAction()
    {
        return static_cast<CGUIDialogManager::EOldDialogAction>(TakeBelow(5));
    }

    void DoAnything()
    {
        switch (TakeBelow(12))
        {
        case 0:
            Manager().Back(TakeBelow(2) != 0);
            break;
        case 1:
            Manager().BackToDialog(TakeDialog(), TakeBelow(2) != 0, false);
            break;
        case 2:
            // From a dialog that could not be brought back the stepwise mode does not return.
            if (Current() != NO_HANDLE)
            {
                Manager().BackToDialog(TakeDialog(), true, true);
            }
            break;
        case 3:
            Manager().ClearDialogHistory(TakeBelow(5), TakeBelow(2) != 0, TakeBelow(4) == 0);
            break;
        case 4:
            Guard().Grant();
            break;
        case 5:
            Guard().Revoke();
            break;
        case 6:
            Guard().Refuse();
            break;
        case 7:
            Guard().SetEnd(static_cast<CGUIGuard::EEnd>(TakeBelow(3)));
            Guard().SetTime(TakeBelow(3) * 50);
            break;
        case 8:
            Clock().Advance(TakeBelow(40));
            break;
        case 9:
            Guard().Show(TakeDialog(), TakeAction());
            break;
        default:
            Manager().CreateDialog(TakeDialog(), TakeAction());
            break;
        }
    }

    /** A right that was revoked, or is over, before the timer runs may still be seen. */
    void ExpectNothingIsSeen(unsigned uiStep)
    {
        for (const ObjectHandle_t eID : m_aeGuarded)
        {
            EXPECT_FALSE(IsVisible(eID) && !Guard().HasRight())
                << "step " << uiStep << ", " << NameOfHandle(eID);
        }
    }

    std::mt19937 m_kRandom{4711};
};

TEST_F(CGuardRandomTest, NoPictureShowsAGuardedDialogWithoutTheRight)
{
    for (unsigned uiStep = 0; uiStep < 3000 && !HasFailure(); ++uiStep)
    {
        DoAnything();
        Guard().Settle();
        ExpectNothingIsSeen(uiStep);
        EXPECT_FALSE(IsGuarded(Current()) && !Guard().HasRight()) << "step " << uiStep;
        ClearEvents();
    }
}

TEST_F(CGuardRandomTest, WithoutSettle_OperationsThatGoBackShowNoGuardedDialogWithoutTheRight)
{
    for (unsigned uiStep = 0; uiStep < 3000 && !HasFailure(); ++uiStep)
    {
        const bool bWasSeen = IsVisible(DLG_C) || IsVisible(DLG_D);
        DoAnything();
        if (!bWasSeen)
        {
            ExpectNothingIsSeen(uiStep);
        }
        ClearEvents();
    }
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CGuardTest, SteadyState_AskingAndGoingBack_AllocatesNothing)
{
    Attach("DLG_D")->SetInvisible(true);
    Attach("DLG_E")->SetInvisible(true);
    const auto fnVisit = [this]
    {
        Guard().Show(DLG_D, ODA_INVISIBLE);
        Guard().Grant();
        Guard().Revoke();
        Guard().Settle();
        Guard().Refuse();
    };
    CGUITrace::GetInstance().SetSink(nullptr);
    Manager().RemoveListener(m_kListener);
    fnVisit();
    fnVisit();

    const CAllocationCounter kAllocations;
    for (eC_UInt uiVisit = 0; uiVisit < 100; ++uiVisit)
    {
        fnVisit();
    }
    EXPECT_EQ(0U, kAllocations.GetNumber());
    EXPECT_EQ(DLG_A, Current());
}
#endif
} // namespace
