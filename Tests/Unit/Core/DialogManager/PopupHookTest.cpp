// SPDX-License-Identifier: MIT
#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace
{
class CPopupHookTest : public CGUITest
{
protected:
    /** Registers a popup that is loaded from code. */
    void Define(ObjectHandle_t ePopupID, int iPriority, eC_UInt uiDisplayTime = 0,
                eC_Bool bDeleteOnClose = false)
    {
        DefinePopup(ePopupID, static_cast<CGUIDialogManager::PopupPriority_t>(iPriority), uiDisplayTime,
                    bDeleteOnClose, NameOfHandle(ePopupID));
    }

    /** Runs an operation and expects it to throw the `int` 0. */
    static void ExpectIntZero(const std::function<void()>& kOperation)
    {
        try
        {
            kOperation();
            ADD_FAILURE() << "expected an exception";
        }
        catch (int iValue)
        {
            EXPECT_EQ(0, iValue);
        }
    }

    static CRecordingDialogManager::Action_t DestroyObject()
    {
        return [](CGUIObject* pkObject) { delete pkObject; };
    }

    CRecordingDialogManager::Action_t Close(ObjectHandle_t ePopupID)
    {
        return [this, ePopupID](CGUIObject*) { EXPECT_TRUE(Manager().ClosePopup(ePopupID)); };
    }

    CRecordingDialogManager::Action_t CloseAndShow(ObjectHandle_t eClosedID, ObjectHandle_t eShownID)
    {
        return [this, eClosedID, eShownID](CGUIObject*)
        {
            EXPECT_TRUE(Manager().ClosePopup(eClosedID));
            EXPECT_NE(nullptr, Manager().ShowPopup(eShownID));
        };
    }

    CRecordingDialogManager::Action_t Show(ObjectHandle_t ePopupID)
    {
        return [this, ePopupID](CGUIObject*) { Manager().ShowPopup(ePopupID); };
    }
};

// --- OnPopupActivation -------------------------------------------------------------------------------

TEST_F(CPopupHookTest, OnPopupActivation_DestroysThePopup_ShowPopupReturnsNullAndTheEntryGoesWithTheNextRun)
{
    Define(POP_1, 5, 100);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, DestroyObject());

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 100 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 100 ms, hide on close, 100 ms left
    )");

    Manager().UpdateActivePopups();
    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_ClosesThePopup_ShowPopupThrowsIntZero)
{
    Define(POP_1, 5, 100, true);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, Close(POP_1));

    ExpectIntZero([this] { Manager().ShowPopup(POP_1); });

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_ClosesAPopupOfLowerPriority_TheWalkGoesOn)
{
    Define(POP_1, 5, 100);
    Define(POP_2, 7);
    Define(POP_3, 3);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_3);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, Close(POP_3));
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_3)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_3 invisible
          POP_1 invisible
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_ClosesThePopupThatTheWalkWouldVisitNext_ItIsNotVisited)
{
    Define(POP_1, 5);
    Define(POP_2, 5, 0, true);
    Define(POP_3, 9);
    Manager().ShowPopup(POP_3);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, Close(POP_2));
    ClearEvents();

    Manager().ClosePopup(POP_3);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_3)
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          POP_3 invisible
          POP_1
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_DestroysAnotherPopupAheadInTheWalk_ThatIsDroppedInTheSameRun)
{
    Define(POP_1, 5);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, [this](CGUIObject*) { delete Object(POP_1); });
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        OnPopupActivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_ShowsAPopupOfHigherPriority_ThatOneEndsUpDisplayed)
{
    Define(POP_1, 5, 100);
    Define(POP_2, 7);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, Show(POP_2));

    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);

    EXPECT_EQ(Object(POP_1), pkPopup);
    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1)
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_SwitchesTheDialog_ThePopupStaysOnTop)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Define(POP_1, 5, 100);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING); });

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 100 ms, hide on close, shown, 100 ms left
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
          POP_1
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_ChangesTheEntry_TheMessageTellsWhatWasActivated)
{
    Define(POP_1, 5, 100);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION,
                      [this](CGUIObject* pkPopup)
                      {
                          Manager().UpdateRegisteredPopupDisplayTime(POP_1, 700);
                          Manager().ShowPopup(POP_1);
                          pkPopup->SetID(POP_2);
                          CGUITestAccess::GetActivePopup(Manager(), POP_2)->m_ePriority =
                              CGUIDialogManager::PRIO_LOWEST;
                      });

    Manager().ShowPopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is already contained in active popup list.\n
        DEBUG: CGUIDialogManager::ShowPopup: Timout of is restarted with 700 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 100 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 1, 700 ms, hide on close, shown, 700 ms left
        tree:
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupActivation_Throws_TheExceptionPassesAndThePopupStaysDisplayed)
{
    Define(POP_1, 5, 100);
    Manager().FailHook(1, FAILURE_EXCEPTION);

    EXPECT_THROW(Manager().ShowPopup(POP_1), std::runtime_error);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, hide on close, shown, 100 ms left
        tree:
          POP_1
    )");
}

// --- OnPopupDeactivation, called by the arbitration ----------------------------------------------------

TEST_F(CPopupHookTest, OnPopupDeactivationByPriority_DestroysThePopup_TheEntryGoesWithTheNextRun)
{
    Define(POP_1, 5, 100);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, DestroyObject());
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 100 ms, hide on close
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_2
    )");

    Manager().ClosePopup(POP_2);
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_2 invisible
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByPriority_ClosesThePopup_ShowPopupThrowsIntZero)
{
    Define(POP_1, 5, 100, true);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_1));
    ClearEvents();

    ExpectIntZero([this] { Manager().ShowPopup(POP_2); });

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByPriority_ClosesTheHigherPopup_ThePopupIsDisplayedAgain)
{
    Define(POP_1, 5, 100);
    Define(POP_2, 7, 0, true);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_2));
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_2));

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_2)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, hide on close, shown, 100 ms left
        tree:
          POP_1
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByPriority_ChangesTheEntry_TheMessageTellsWhatWasDeactivated)
{
    Define(POP_1, 5);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                      [this](CGUIObject* pkPopup)
                      {
                          CGUITestAccess::GetActivePopup(Manager(), POP_1)->m_ePriority =
                              CGUIDialogManager::PRIO_LOWEST;
                          pkPopup->SetID(POP_3);
                      });
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByPriority_Throws_TheExceptionPassesWithThePopupHiddenAndStopped)
{
    Define(POP_1, 5, 100);
    Define(POP_2, 7);
    Manager().ShowPopup(POP_1);
    Manager().FailHook(2, FAILURE_EXCEPTION);
    ClearEvents();

    EXPECT_THROW(Manager().ShowPopup(POP_2), std::runtime_error);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_1) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2
    )");
}

// --- OnPopupDeactivation, called by ClosePopup ---------------------------------------------------------

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_DestroysThePopup_ItIsNotDeletedTwice)
{
    Define(POP_1, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, DestroyObject());
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_ClosesThePopupAgain_ClosePopupThrowsIntZero)
{
    Define(POP_1, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_1));
    ClearEvents();

    ExpectIntZero([this] { Manager().ClosePopup(POP_1); });

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_ClosesAPopupThatHidesOnCloseAgain_ThrowsIntZeroToo)
{
    Define(POP_1, 5, 100);
    Define(POP_2, 3);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_1));

    ExpectIntZero([this] { Manager().ClosePopup(POP_1); });

    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_ReplacesThePopupByAnother_ThatOneStaysAndIntZeroIsThrown)
{
    Define(POP_1, 5, 0, true);
    Define(POP_2, 5, 0, true);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_1));
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Show(POP_2));

    ExpectIntZero([this] { Manager().ClosePopup(POP_1); });

    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 0 ms, delete on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_ShowsThePopupAgain_ItIsClosedAllTheSame)
{
    Define(POP_1, 5, 100);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Show(POP_1));
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_GivesThePopupAnotherIdentifier_ItIsClosedAllTheSame)
{
    Define(POP_1, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [](CGUIObject* pkPopup) { pkPopup->SetID(POP_2); });

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_ClosesAnotherPopup_BothAreClosed)
{
    Define(POP_1, 5, 0, true);
    Define(POP_2, 3, 0, true);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_2));

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, OnPopupDeactivationByClosing_Throws_TheEntryStaysHiddenAndStopped)
{
    Define(POP_1, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().FailHook(1, FAILURE_EXCEPTION);
    ClearEvents();

    EXPECT_THROW(Manager().ClosePopup(POP_1), std::runtime_error);

    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_1) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, delete on close, hidden
        tree:
          POP_1 invisible
    )");
    EXPECT_TRUE(Manager().ClosePopup(POP_1));
}

// --- The same, when the timer closes ------------------------------------------------------------------

TEST_F(CPopupHookTest, TimeIsUp_TheHookClosesThePopupItself_IntZeroReachesTheMainLoop)
{
    Define(POP_1, 5, 100, true);
    Define(POP_2, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_1));

    ExpectIntZero([this] { Clock().Advance(100); });
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 100 ms, delete on close, shown, 0 ms left
        tree:
          POP_2
    )");

    GETTIMER.ProcessCallbacks();
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, TimeIsUp_TheHookClosesTheOtherPopupThatIsDue_ItIsNotCalledAnyMore)
{
    Define(POP_1, 5, 100, true);
    Define(POP_2, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, Close(POP_2));
    ClearEvents();

    Clock().Advance(100);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_2)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupHookTest, TimeIsUp_TheHookThrows_ThePopupStaysListedWithoutTime)
{
    Define(POP_1, 5, 100, true);
    Manager().ShowPopup(POP_1);
    Manager().FailHook(1, FAILURE_INT);

    EXPECT_THROW(Clock().Advance(100), int);

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 100 ms, delete on close, hidden
        tree:
          POP_1 invisible
    )");
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

// --- CreatePopupImpl ---------------------------------------------------------------------------------

TEST_F(CPopupHookTest, CreatePopupImpl_UnregistersThePopup_ItIsShownAsItWasRegistered)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 100, true, "");
    Manager().SetPopupCreator(POP_1,
                              [this]
                              {
                                  Manager().UnregisterPopupDefinition(POP_1);
                                  return CObjectTree("POP_1").Build();
                              });

    Manager().ShowPopup(POP_1);

    EXPECT_WHOLE_STATE(R"(
        current: none
        active: POP_1 prio 7, 100 ms, delete on close, shown, 100 ms left
        tree:
          POP_1
    )");
}

TEST_F(CPopupHookTest, CreatePopupImpl_ShowsAnotherPopup_BothAreListed)
{
    Define(POP_2, 5);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "");
    Manager().SetPopupCreator(POP_1,
                              [this]
                              {
                                  Manager().ShowPopup(POP_2);
                                  return CObjectTree("POP_1").Build();
                              });

    Manager().ShowPopup(POP_1);

    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_1) -> POP_1
        OnPopupActivation(POP_2)
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 0 ms, hide on close, hidden
        active: POP_1 prio 7, 0 ms, delete on close, shown
        tree:
          POP_2 invisible
          POP_1
    )");
}

TEST_F(CPopupHookTest, CreatePopupImpl_Throws_TheExceptionPassesWithNothingListed)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "");
    Manager().FailHook(1, FAILURE_EXCEPTION);

    EXPECT_THROW(Manager().ShowPopup(POP_1), std::runtime_error);

    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_1) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

// --- A popup that takes the place of the one that the hook closed -------------------------------

TEST_F(CPopupHookTest, ShowPopup_WhenOnPopupActivationPutsAnotherInThePlace_ThrowsIntZeroAndThatOneStays)
{
    Define(POP_1, 5, 0, true);
    Define(POP_2, 5, 0, true);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, CloseAndShow(POP_1, POP_2));

    ExpectIntZero([this] { Manager().ShowPopup(POP_1); });

    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 0 ms, delete on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CPopupHookTest, ClosePopup_WhenOnPopupDeactivationListsThePopupAgainInItsPlace_ClosesItAllTheSame)
{
    Define(POP_1, 5);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, CloseAndShow(POP_1, POP_1));

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}
} // namespace
