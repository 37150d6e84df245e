// SPDX-License-Identifier: MIT
#include "Companions/GUIIdleHome.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

namespace
{
/** DLG_A is home. The idle time is ten seconds; the warning is shown two seconds before it ends. */
class CIdleHomeTest : public CCompanionTest
{
protected:
    CIdleHomeTest()
    {
        DefineEmptyDialogs(DLG_A, DLG_B, DLG_C);
        DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH);
        DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 5000);
        Manager().AddListener(m_kListener);
        Go(DLG_A, ODA_NOTHING);
    }

    CGUIIdleHome& Idle() { return *m_pkIdle; }

    /** Starts at home and switches to DLG_B. */
    void StartAndLeaveHome()
    {
        Idle().Start();
        Clock().Advance(1);
        Go(DLG_B);
        // It responds to a hook one millisecond later.
        Clock().Advance(1);
    }

    ObjectHandle_t Current() { return Manager().GetCurrentDialogID(); }

    CRecordingListener m_kListener{Events(), "Listener"};
    std::unique_ptr<CGUIIdleHome> m_pkIdle =
        std::make_unique<CGUIIdleHome>(Manager(), DLG_A, ODA_DELETE, 10000U);
};

// --- Going home --------------------------------------------------------------------------------------

TEST_F(CIdleHomeTest, NoInput_GoesHomeWhenTheTimeIsOver)
{
    StartAndLeaveHome();

    Clock().Advance(9999);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CIdleHomeTest, NoInput_AcrossTheWrapOfTheClock_GoesHomeWhenTheTimeIsOver)
{
    Clock().Set(0xFFFFFFFFU - 5000);
    StartAndLeaveHome();

    Clock().Advance(9999);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, Input_TheTimeCountsAnew)
{
    StartAndLeaveHome();
    Clock().Advance(6000);

    EXPECT_FALSE(Idle().NoteInput());

    Clock().Advance(9999);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, MainLoopIsLate_GoesHomeOnce)
{
    StartAndLeaveHome();

    Clock().Set(500000);
    GETTIMER.ProcessCallbacks();
    Clock().Advance(20000);

    EXPECT_EQ(DLG_A, Current());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
}

TEST_F(CIdleHomeTest, WayBack_HomeIsInTheHistory_TheDialogsOnTheWayAreDeleted)
{
    StartAndLeaveHome();
    Go(DLG_C);

    Clock().Advance(10001);

    EXPECT_HOOKS(R"(
        Listener OnDialogDeletion(DLG_C)
        Listener OnAfterDialogDeletion(DLG_C, DLG_A)
        Listener OnDialogDeletion(DLG_B)
        Listener OnAfterDialogDeletion(DLG_B, DLG_A)
        Listener OnDialogActivation(DLG_A)
    )");
}

TEST_F(CIdleHomeTest, WayBack_WithAnActionThatHides_TheDialogsOnTheWayAreHidden)
{
    m_pkIdle = std::make_unique<CGUIIdleHome>(Manager(), DLG_A, ODA_INVISIBLE, 10000U);
    StartAndLeaveHome();

    Clock().Advance(10000);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_B invisible
          DLG_A
    )");
}

TEST_F(CIdleHomeTest, WayBack_HomeIsNotInTheHistory_SwitchesWithTheAction)
{
    m_pkIdle = std::make_unique<CGUIIdleHome>(Manager(), DLG_C, ODA_DELETE, 10000U);
    Idle().Start();

    Clock().Advance(10001);

    EXPECT_STATE(R"(
        current: DLG_C after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_C
    )");
}

TEST_F(CIdleHomeTest, WaySwitch_HomeIsInTheHistory_SwitchesWithTheAction)
{
    Idle().SetWay(CGUIIdleHome::WAY_SWITCH);
    StartAndLeaveHome();

    Clock().Advance(10000);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE, no deletion
        history: DLG_B ODA_DELETE (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A
    )");
}

TEST_F(CIdleHomeTest, AtHome_NothingHappensAndNoTimerRuns)
{
    Idle().Start();
    Clock().Advance(1);

    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    Clock().Advance(50000);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, LeftHomeWithoutInput_TheTimeCountsFromThen)
{
    Idle().Start();
    Clock().Advance(500000);
    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    Clock().Advance(10000);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, LeftHomeByAddDialog_TheTimeCountsFromThen)
{
    Idle().Start();
    Clock().Advance(1);
    Manager().AddDialog(Attach("DLG_D"), ODA_INVISIBLE, true);

    Clock().Advance(10001);

    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, Stop_NothingHappensUntilStart)
{
    StartAndLeaveHome();

    Idle().Stop();
    Clock().Advance(50000);
    EXPECT_EQ(DLG_B, Current());
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());

    Idle().Start();
    Clock().Advance(9999);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, NotStarted_NothingHappens)
{
    Go(DLG_B);
    Clock().Advance(50000);
    EXPECT_EQ(DLG_B, Current());
}

// --- Warning -----------------------------------------------------------------------------------------

TEST_F(CIdleHomeTest, Warning_IsShownBeforeAndClosedOnTheWayHome)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();

    Clock().Advance(7999);
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_FALSE(Idle().IsWarning());
    Clock().Advance(1);
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_TRUE(Idle().IsWarning());
    Clock().Advance(1999);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);

    EXPECT_EQ(DLG_A, Current());
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_FALSE(Idle().IsWarning());
}

TEST_F(CIdleHomeTest, InputDuringTheWarning_StaysAndCountsAnew)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    Clock().Advance(9000);

    EXPECT_TRUE(Idle().NoteInput());
    EXPECT_FALSE(Idle().NoteInput());

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    Clock().Advance(7999);
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    Clock().Advance(1);
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(2000);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, InputBeforeTheWarning_NoWarningAtTheOldTime)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    Clock().Advance(7000);
    Idle().NoteInput();

    Clock().Advance(7999);
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    Clock().Advance(1);
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
}

TEST_F(CIdleHomeTest, WarningIsClosedBySomebodyElse_GoesHomeAllTheSame)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    Clock().Advance(9000);

    Manager().ClosePopup(POP_1);
    Clock().Advance(1000);

    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, WarningCannotBeShown_GoesHomeAllTheSame)
{
    Idle().SetWarning(POP_8, 2000);
    StartAndLeaveHome();

    Clock().Advance(10000);

    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, StopDuringTheWarning_ClosesIt)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    Clock().Advance(9000);

    Idle().Stop();

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
}

TEST_F(CIdleHomeTest, HomeIsShownDuringTheWarning_TheWarningIsClosed)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    Clock().Advance(9000);

    Manager().Back(true);
    Clock().Advance(1);

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_FALSE(Idle().IsWarning());
}

// --- Holding off -------------------------------------------------------------------------------------

TEST_F(CIdleHomeTest, DialogHoldsOff_TheTimeCountsFromItsEnd)
{
    const ObjectHandle_t aeHoldOffs[] = {DLG_C, POP_2};
    Idle().SetHoldOffs(aeHoldOffs, 2);
    StartAndLeaveHome();
    Go(DLG_C);
    Clock().Advance(50000);
    EXPECT_EQ(DLG_C, Current());

    Manager().Back(true);

    Clock().Advance(10000);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, PopupHoldsOff_AlsoWhileItWaits_TheTimeCountsFromItsEnd)
{
    const ObjectHandle_t aeHoldOffs[] = {DLG_C, POP_2};
    Idle().SetHoldOffs(aeHoldOffs, 2);
    StartAndLeaveHome();
    Clock().Advance(9000);
    Manager().ShowPopup(POP_2);
    Manager().ShowPopup(POP_1);
    Clock().Advance(50000);
    EXPECT_EQ(DLG_B, Current());

    Manager().ClosePopup(POP_1);
    Clock().Advance(5000);
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_2));

    Clock().Advance(10000);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, PopupThatHoldsOffLosesItsObject_IsNoticedWithinASecond)
{
    const ObjectHandle_t aeHoldOffs[] = {POP_1};
    Idle().SetHoldOffs(aeHoldOffs, 1);
    StartAndLeaveHome();
    Manager().ShowPopup(POP_1);
    Clock().Advance(3000);

    delete Object(POP_1);
    Clock().Advance(11000);

    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, HoldOffDuringTheWarning_ClosesTheWarning)
{
    const ObjectHandle_t aeHoldOffs[] = {POP_1};
    Idle().SetHoldOffs(aeHoldOffs, 1);
    Idle().SetWarning(POP_2, 2000);
    StartAndLeaveHome();
    Clock().Advance(9000);
    EXPECT_TRUE(Idle().IsWarning());

    Manager().ShowPopup(POP_1);
    Clock().Advance(1);

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_2));
    EXPECT_FALSE(Idle().IsWarning());
    Clock().Advance(20000);
    EXPECT_EQ(DLG_B, Current());
}

TEST_F(CIdleHomeTest, PopupThatHoldsOffIsListedBehindTheWarning_IsNoticedWhenItWouldGoHome)
{
    const ObjectHandle_t aeHoldOffs[] = {POP_2};
    Idle().SetHoldOffs(aeHoldOffs, 1);
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    Clock().Advance(9000);
    Manager().ShowPopup(POP_2);

    Clock().Advance(1000);

    EXPECT_EQ(DLG_B, Current());
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_2));
}

// --- When something fails ----------------------------------------------------------------------------

TEST_F(CIdleHomeTest, HomeCannotBeBuilt_IsTriedAgainAfterAnotherWholeTime)
{
    m_pkIdle = std::make_unique<CGUIIdleHome>(Manager(), DLG_D, ODA_DELETE, 10000U);
    Idle().Start();
    Clock().Advance(10000);
    EXPECT_EQ(DLG_A, Current());
    DefineEmptyDialogs(DLG_D);

    Clock().Advance(9999);
    EXPECT_EQ(DLG_A, Current());
    Clock().Advance(1);
    EXPECT_EQ(DLG_D, Current());
}

TEST_F(CIdleHomeTest, HookThrowsOnTheWayHome_PassesAndTheNextTimeWorks)
{
    StartAndLeaveHome();
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Clock().Advance(10000), int);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(10000);

    EXPECT_EQ(DLG_A, Current());
}

TEST_F(CIdleHomeTest, HookThrowsAtTheWarning_GoesHomeAtTheRightTime)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, [](CGUIObject*) { throw std::bad_alloc(); });

    EXPECT_THROW(Clock().Advance(9000), std::bad_alloc);
    EXPECT_TRUE(Idle().IsWarning());
    Clock().Advance(1999);
    EXPECT_EQ(DLG_B, Current());
    Clock().Advance(1);

    EXPECT_EQ(DLG_A, Current());
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
}

TEST_F(CIdleHomeTest, InsideAHook_StopAndInput_AreObeyed)
{
    Idle().SetWarning(POP_1, 2000);
    StartAndLeaveHome();
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, [this](CGUIObject*) { m_pkIdle->SetHoldOffs(nullptr, 0); });
    Clock().Advance(8000);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [this](CGUIObject*) { Idle().Stop(); });

    Clock().Advance(2000);

    EXPECT_EQ(DLG_A, Current());
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CIdleHomeTest, ManagerIsDestroyedFirst_NothingHappens)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    CGUIIdleHome kIdle(*pkManager, DLG_B, ODA_DELETE, 100);
    kIdle.Start();

    pkManager.reset();
    Clock().Advance(1000);

    EXPECT_FALSE(kIdle.NoteInput());
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CIdleHomeTest, ManagerIsDestroyedDuringTheWarning_InputEndsIt)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    pkManager->RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, false, PathOf(POP_1).c_str());
    pkManager->CreateDialog(DLG_A, ODA_NOTHING);
    CGUIIdleHome kIdle(*pkManager, DLG_B, ODA_DELETE, 100);
    kIdle.SetWarning(POP_1, 50);
    kIdle.Start();
    Clock().Advance(60);
    EXPECT_TRUE(kIdle.IsWarning());

    pkManager.reset();

    EXPECT_TRUE(kIdle.NoteInput());
    EXPECT_FALSE(kIdle.IsWarning());
}

TEST_F(CIdleHomeTest, WayBack_WithDeletionOfAll_TheDialogsOnTheWayAreDeleted)
{
    m_pkIdle = std::make_unique<CGUIIdleHome>(Manager(), DLG_A, CGUIDialogManager::ODA_DELETE_ALL, 10000U);
    StartAndLeaveHome();

    Clock().Advance(10000);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CIdleHomeTest, Destroyed_NothingHappens)
{
    StartAndLeaveHome();
    m_pkIdle.reset();
    Clock().Advance(50000);
    EXPECT_EQ(DLG_B, Current());
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CIdleHomeTest, SteadyState_InputAndTime_AllocatesNothing)
{
    StartAndLeaveHome();

    const CAllocationCounter kAllocations;
    for (eC_UInt uiInput = 0; uiInput < 100; ++uiInput)
    {
        Clock().Advance(777);
        Idle().NoteInput();
    }
    EXPECT_EQ(0U, kAllocations.GetNumber());
    EXPECT_EQ(DLG_B, Current());
}
#endif
} // namespace
