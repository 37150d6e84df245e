#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <stdexcept>
#include <string>
#include <tuple>

namespace
{
class CPopupHookTest : public CGUITest
{
protected:
    /** Registers a popup that is loaded in code. */
    void Define(ObjectHandle_t ePopupID, int iPriority, eC_UInt uiDisplayTime = 0,
                eC_Bool bDeleteOnClose = false)
    {
        DefinePopup(ePopupID, static_cast<CGUIDialogManager::PopupPriority_t>(iPriority), uiDisplayTime,
                    bDeleteOnClose, NameOfHandle(ePopupID));
    }

    /** Runs an operation and expects that the `int` 0 comes out of it. */
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

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
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

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        OnPopupActivation(POP_2)
        OnPopupDeactivation(POP_3)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
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

    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_3)
        OnPopupActivation(POP_1)
        OnPopupDeactivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
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
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        OnPopupActivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 100 ms.\n
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

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
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

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        OnPopupActivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
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

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        OnPopupActivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 0 ms.\n
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_2)
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 100 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
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

    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
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

    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
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

    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is already contained in active popup list.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
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

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        CreatePopupImpl(POP_1) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

// --- Every call from inside every hook ------------------------------------------------------------------

enum EPopupHookPlace
{
    PLACE_ACTIVATION_BY_SHOWING,
    PLACE_ACTIVATION_BY_CLOSING,
    PLACE_DEACTIVATION_BY_SHOWING,
    PLACE_DEACTIVATION_BY_CLOSING,
    PLACE_DEACTIVATION_BY_TIME,
    PLACE_CREATION
};

const char* const capcPlaces[] = {"ActivationByShowing",   "ActivationByClosing", "DeactivationByShowing",
                                  "DeactivationByClosing", "DeactivationByTime",  "Creation"};

enum EReentrantCall
{
    CALL_CREATE_DIALOG_INVISIBLE_ALL,
    CALL_CREATE_DIALOG_DELETE_ALL,
    CALL_CREATE_CURRENT_DIALOG_DELETE,
    CALL_ADD_DIALOG,
    CALL_BACK,
    CALL_BACK_TO_DIALOG,
    CALL_CLEAR_HISTORY,
    CALL_SHOW_HIGHER,
    CALL_SHOW_EQUAL,
    CALL_SHOW_LOWER,
    CALL_SHOW_SAME,
    CALL_CLOSE_FIRST,
    CALL_CLOSE_SECOND,
    CALL_CLOSE_THIRD,
    CALL_CLOSE_ALL,
    CALL_CLOSE_ALL_AND_SHOW_OTHERS,
    CALL_UNREGISTER_ALL,
    CALL_ARBITRATE,
    CALL_RUN_TIMER,
    CALL_CHANGE_IDENTIFIERS,
    CALL_DESTROY_FIRST,
    CALL_DESTROY_SECOND,
    CALL_DESTROY_EVERYTHING,
    CALL_DETACH_SECOND
};

const char* const capcCalls[] = {"CreateDialogInvisibleAll",
                                 "CreateDialogDeleteAll",
                                 "CreateCurrentDialogDelete",
                                 "AddDialog",
                                 "Back",
                                 "BackToDialog",
                                 "ClearDialogHistory",
                                 "ShowHigher",
                                 "ShowEqual",
                                 "ShowLower",
                                 "ShowSame",
                                 "CloseFirst",
                                 "CloseSecond",
                                 "CloseThird",
                                 "CloseAll",
                                 "CloseAllAndShowOthers",
                                 "UnregisterAll",
                                 "Arbitrate",
                                 "RunTimer",
                                 "ChangeIdentifiers",
                                 "DestroyFirst",
                                 "DestroySecond",
                                 "DestroyEverything",
                                 "DetachSecond"};

/** The popups POP_1 and POP_3 (priority 5) are listed, POP_2 (7) is shown or closed; POP_4 (9), POP_5 (7)
 *  and POP_6 (1) come in from inside. DLG_A is in the history, DLG_B current.
 */
class CPopupReentrancyTest : public CPopupHookTest,
                             public ::testing::WithParamInterface<std::tuple<int, int, bool>>
{
protected:
    void Call(EReentrantCall eCall)
    {
        switch (eCall)
        {
        case CALL_CREATE_DIALOG_INVISIBLE_ALL:
            Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE_ALL);
            break;
        case CALL_CREATE_DIALOG_DELETE_ALL:
            Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_DELETE_ALL);
            break;
        case CALL_CREATE_CURRENT_DIALOG_DELETE:
            Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
            break;
        case CALL_ADD_DIALOG:
            Manager().AddDialog(Attach("- { OBJ_4 focusable }"), CGUIDialogManager::ODA_DELETE, true);
            break;
        case CALL_BACK:
            Manager().Back(true);
            break;
        case CALL_BACK_TO_DIALOG:
            Manager().BackToDialog(DLG_A, true, false);
            break;
        case CALL_CLEAR_HISTORY:
            Manager().ClearDialogHistory(0, true, true);
            break;
        case CALL_SHOW_HIGHER:
            Manager().ShowPopup(POP_4);
            break;
        case CALL_SHOW_EQUAL:
            Manager().ShowPopup(POP_5);
            break;
        case CALL_SHOW_LOWER:
            Manager().ShowPopup(POP_6);
            break;
        case CALL_SHOW_SAME:
            Manager().ShowPopup(POP_1);
            break;
        case CALL_CLOSE_FIRST:
            Manager().ClosePopup(POP_1);
            break;
        case CALL_CLOSE_SECOND:
            Manager().ClosePopup(POP_2);
            break;
        case CALL_CLOSE_THIRD:
            Manager().ClosePopup(POP_3);
            break;
        case CALL_CLOSE_ALL_AND_SHOW_OTHERS:
        case CALL_CLOSE_ALL:
            for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
            {
                Manager().ClosePopup(eID);
            }
            if (eCall == CALL_CLOSE_ALL_AND_SHOW_OTHERS)
            {
                Manager().ShowPopup(POP_6);
                Manager().ShowPopup(POP_5);
                Manager().ShowPopup(POP_4);
            }
            break;
        case CALL_UNREGISTER_ALL:
            for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
            {
                Manager().UnregisterPopupDefinition(eID);
            }
            break;
        case CALL_ARBITRATE:
            Manager().UpdateActivePopups();
            break;
        case CALL_RUN_TIMER:
            Clock().Set(Clock().GetTime() + 5000);
            GETTIMER.ProcessCallbacks();
            break;
        case CALL_CHANGE_IDENTIFIERS:
            for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
            {
                if (Object(eID) != nullptr)
                {
                    Object(eID)->SetID(OBJ_9);
                }
            }
            break;
        case CALL_DESTROY_FIRST:
            delete Object(POP_1);
            break;
        case CALL_DESTROY_SECOND:
            delete Object(POP_2);
            break;
        case CALL_DESTROY_EVERYTHING:
            while (Root().GetFirstChild() != nullptr)
            {
                delete Root().GetFirstChild();
            }
            break;
        case CALL_DETACH_SECOND:
            if (Object(POP_2) != nullptr)
            {
                m_pkDetached = Object(POP_2);
                m_pkDetached->SetParent(nullptr);
            }
            break;
        }
    }

    void RunOperation(EPopupHookPlace ePlace, const CRecordingDialogManager::Action_t& kAction)
    {
        switch (ePlace)
        {
        case PLACE_ACTIVATION_BY_SHOWING:
            Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, kAction);
            Manager().ShowPopup(POP_2);
            break;
        case PLACE_DEACTIVATION_BY_SHOWING:
            Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, kAction);
            Manager().ShowPopup(POP_2);
            break;
        case PLACE_CREATION:
            CodeFactory().FailLoad(1, FAILURE_NULL);
            Manager().RunOnce(HOOK_CREATE_POPUP_IMPL, kAction);
            Manager().ShowPopup(POP_2);
            break;
        case PLACE_ACTIVATION_BY_CLOSING:
            Manager().ShowPopup(POP_2);
            Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, kAction);
            Manager().ClosePopup(POP_2);
            break;
        case PLACE_DEACTIVATION_BY_CLOSING:
            Manager().ShowPopup(POP_2);
            Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, kAction);
            Manager().ClosePopup(POP_2);
            break;
        case PLACE_DEACTIVATION_BY_TIME:
            Manager().ShowPopup(POP_2);
            Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, kAction);
            Clock().Advance(1000);
            break;
        }
    }

    /** Expects an ascending list without dead objects, of which exactly the highest priority is shown. */
    void ExpectArbitrated()
    {
        const auto* pkLast = CGUITestAccess::GetLast(CGUITestAccess::GetActivePopups(Manager()));
        for (const auto* pkNode = pkLast; pkNode != nullptr; pkNode = pkNode->m_pkPrevious)
        {
            ASSERT_NE(nullptr, pkNode->m_tValue.GetObject()) << State();
            EXPECT_EQ(pkNode->m_tValue.GetPriority() != pkLast->m_tValue.GetPriority(),
                      pkNode->m_tValue.GetObject()->IsInvisible())
                << State();
            if (pkNode->m_pkNext != nullptr)
            {
                EXPECT_LE(pkNode->m_tValue.GetPriority(), pkNode->m_pkNext->m_tValue.GetPriority())
                    << State();
            }
        }
    }

    CSafeGUIObjectPtr m_pkDetached;
};

TEST_P(CPopupReentrancyTest, AnyCallFromInsideTheHook_LeavesTheManagerInOrder)
{
    const auto ePlace = static_cast<EPopupHookPlace>(std::get<0>(GetParam()));
    const auto eCall = static_cast<EReentrantCall>(std::get<1>(GetParam()));
    const eC_Bool bDeleteOnClose = std::get<2>(GetParam());
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    DefineDialog(DLG_C, "DLG_C { OBJ_3 focusable }");
    Define(POP_1, 5, 3000, bDeleteOnClose);
    Define(POP_3, 5, 0, bDeleteOnClose);
    Define(POP_2, 7, 1000, bDeleteOnClose);
    Define(POP_4, 9, 1000, bDeleteOnClose);
    Define(POP_5, 7, 1000, bDeleteOnClose);
    Define(POP_6, 1, 0, bDeleteOnClose);
    Manager().SetPopupCreator(POP_2,
                              [this]
                              {
                                  m_pkDetached = CObjectTree("POP_2").Build();
                                  return m_pkDetached;
                              });
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_NOTHING);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_3);
    eC_UInt uiCalls = 0;

    try
    {
        RunOperation(ePlace,
                     [this, eCall, &uiCalls](CGUIObject*)
                     {
                         ++uiCalls;
                         Call(eCall);
                     });
    }
    catch (int iValue)
    {
        EXPECT_EQ(0, iValue) << "only an entry that has gone ends an operation early";
    }

    EXPECT_EQ(1U, uiCalls);
    Manager().ClearActions();
    Manager().UpdateActivePopups();
    Manager().UpdateActivePopups();
    ExpectArbitrated();
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3, POP_4, POP_5, POP_6, OBJ_9, OBJ_9, OBJ_9})
    {
        Manager().ClosePopup(eID);
    }
    EXPECT_TRUE(CGUITestAccess::GetActivePopups(Manager()).IsEmpty()) << State();
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    if (m_pkDetached != nullptr && m_pkDetached->GetParent() == nullptr)
    {
        delete m_pkDetached.get();
    }
}

INSTANTIATE_TEST_SUITE_P(AllHooks, CPopupReentrancyTest,
                         ::testing::Combine(::testing::Range(0, static_cast<int>(std::size(capcPlaces))),
                                            ::testing::Range(0, static_cast<int>(std::size(capcCalls))),
                                            ::testing::Bool()),
                         [](const ::testing::TestParamInfo<CPopupReentrancyTest::ParamType>& kInfo)
                         {
                             return std::string(capcPlaces[std::get<0>(kInfo.param)]) + "_" +
                                    capcCalls[std::get<1>(kInfo.param)] +
                                    (std::get<2>(kInfo.param) ? "_DeleteOnClose" : "_HideOnClose");
                         });
} // namespace
