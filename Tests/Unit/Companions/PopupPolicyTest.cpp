// SPDX-License-Identifier: MIT
#include "Companions/GUIPopupPolicy.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <new>
#include <random>
#include <string>

namespace
{
/** A policy with three places, two popups of low, three of medium and one of high priority. */
class CPopupPolicyTest : public CCompanionTest
{
protected:
    CPopupPolicyTest()
    {
        DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW);
        DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW);
        DefinePopup(POP_3, CGUIDialogManager::PRIO_MEDIUM);
        DefinePopup(POP_4, CGUIDialogManager::PRIO_MEDIUM, 1000, true);
        DefinePopup(POP_5, CGUIDialogManager::PRIO_MEDIUM);
        DefinePopup(POP_6, CGUIDialogManager::PRIO_HIGH);
        Manager().AddListener(m_kListener);
    }

    CGUIPopupPolicy& Policy() { return *m_pkPolicy; }

    /** @return the listed popups, highest priority first, each with its state */
    std::string Listed()
    {
        std::string kListed;
        for (ObjectHandle_t eID : {POP_6, POP_5, POP_4, POP_3, POP_2, POP_1})
        {
            if (Manager().IsPopupInPopupList(eID))
            {
                kListed += NameOfHandle(eID) + (Manager().IsPopupDisplayed(eID) ? " shown " : " hidden ");
            }
        }
        return kListed;
    }

    int CountListed(std::initializer_list<ObjectHandle_t> kPopups)
    {
        int iNumber = 0;
        for (const ObjectHandle_t eID : kPopups)
        {
            iNumber += Manager().IsPopupInPopupList(eID) ? 1 : 0;
        }
        return iNumber;
    }

    /** Takes all places: the next request closes POP_3, which POP_5 waits for, and POP_1 is behind. */
    void FillPlaces()
    {
        Policy().SetFullRule(CGUIPopupPolicy::FULL_OLDEST_GOES);
        Policy().Show(POP_3);
        Policy().Show(POP_5);
        Policy().Show(POP_1);
        EXPECT_EQ("POP_3 shown POP_1 hidden ", Listed());
        EXPECT_EQ(3U, Policy().GetNOFPopups());
    }

    /** Runs an action inside OnPopupActivation of one popup, once. */
    void WhenShown(ObjectHandle_t eID, const std::function<void()>& kAction)
    {
        m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION,
                            [=](CGUIObject* pkPopup)
                            {
                                if (pkPopup->GetID() == eID)
                                {
                                    kAction();
                                }
                                else
                                {
                                    WhenShown(eID, kAction);
                                }
                            });
    }

    /** A clock that advances whenever it is read. */
    static eC_UInt Tick() { return ms_uiTicks++; }

    static eC_UInt ms_uiTicks;
    CRecordingListener m_kListener{Events(), "Listener"};
    std::unique_ptr<CGUIPopupPolicyOf<3>> m_pkPolicy = std::make_unique<CGUIPopupPolicyOf<3>>(Manager());
};

eC_UInt CPopupPolicyTest::ms_uiTicks = 0;

using Policy_t = CGUIPopupPolicy;

// --- One at a time per priority ----------------------------------------------------------------------

TEST_F(CPopupPolicyTest, Show_PriorityIsFree_IsDisplayed)
{
    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_1));

    EXPECT_EQ("POP_1 shown ", Listed());
    EXPECT_EQ(1U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, Show_OtherPriorities_TheManagerDecidesWhichIsDisplayed)
{
    Policy().Show(POP_3);
    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_1));
    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_6));

    EXPECT_EQ("POP_6 shown POP_3 hidden POP_1 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, Show_PriorityIsTaken_WaitsUntilTheOtherOneIsClosed)
{
    Policy().Show(POP_1);
    ClearEvents();

    EXPECT_EQ(Policy_t::POPUP_WAITS, Policy().Show(POP_2));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIPopupPolicy::Show: Popup with id 10 waits for one of its priority.\n
    )");
    EXPECT_EQ("POP_1 shown ", Listed());
    EXPECT_TRUE(Policy().Close(POP_1));
    EXPECT_EQ("POP_2 shown ", Listed());
    EXPECT_EQ(1U, Policy().GetNOFPopups());
    EXPECT_EVENTS(R"(
        Listener OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIPopupPolicy::Settle: Popup with id 10 is next.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        Listener OnPopupActivation(POP_2)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 3 is activated with a display time of 0 ms.\n
    )");
}

TEST_F(CPopupPolicyTest, Show_SeveralWait_TheyComeInTheOrderInWhichTheyWereAskedFor)
{
    Policy().Show(POP_4);
    Policy().Show(POP_5);
    Policy().Show(POP_3);

    Policy().Close(POP_4);
    EXPECT_EQ("POP_5 shown ", Listed());
    Policy().Close(POP_5);
    EXPECT_EQ("POP_3 shown ", Listed());
}

TEST_F(CPopupPolicyTest, PopupClosesItself_TheNextOneComesAMillisecondLater)
{
    Policy().Show(POP_4);
    Policy().Show(POP_5);

    Clock().Advance(1000);
    EXPECT_EQ("", Listed());
    Clock().Advance(1);
    EXPECT_EQ("POP_5 shown ", Listed());
    EXPECT_EQ(1U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, PopupIsClosedThroughTheManager_TheNextOneComesAMillisecondLater)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    Manager().ClosePopup(POP_1);
    EXPECT_EQ("", Listed());
    Clock().Advance(1);
    EXPECT_EQ("POP_2 shown ", Listed());
}

TEST_F(CPopupPolicyTest, PopupLosesItsObject_TheNextOneComesWithinASecond)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    delete Object(POP_1);
    Clock().Advance(1000);

    EXPECT_EQ("POP_2 shown ", Listed());
    EXPECT_EQ(1U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, NothingWaits_TheTimerIsLeftAlone)
{
    Policy().Show(POP_1);
    Clock().Advance(1);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());

    Policy().Close(POP_1);
    Clock().Advance(1);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_EQ(0U, Policy().GetNOFPopups());
}

// --- No duplicates -----------------------------------------------------------------------------------

TEST_F(CPopupPolicyTest, Show_IsListed_ItsTimeIsNotStartedAgain)
{
    Policy().Show(POP_4);
    Clock().Advance(600);
    ClearEvents();

    EXPECT_EQ(Policy_t::POPUP_IS_THERE, Policy().Show(POP_4));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIPopupPolicy::Show: Popup with id 12 is there already.\n
    )");
    Clock().Advance(400);
    EXPECT_EQ("", Listed());
}

TEST_F(CPopupPolicyTest, Show_WaitsAlready_ComesOnce)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    EXPECT_EQ(Policy_t::POPUP_IS_THERE, Policy().Show(POP_2));

    EXPECT_EQ(2U, Policy().GetNOFPopups());
    Policy().Close(POP_1);
    Policy().Close(POP_2);
    EXPECT_EQ("", Listed());
}

TEST_F(CPopupPolicyTest, Show_NotRegistered_IsRefusedAsByTheManager)
{
    EXPECT_EQ(Policy_t::POPUP_REFUSED, Policy().Show(POP_8));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 16 is activated.\n
        ERROR: CGUIDialogManager::ShowPopup: Popup with id 16 is not registered and therefore can not be displayed.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_EQ(0U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, Show_CannotBeLoaded_IsRefusedAndTheNextOneComes)
{
    CodeFactory().Unregister(PathOf(POP_1));

    EXPECT_EQ(Policy_t::POPUP_REFUSED, Policy().Show(POP_1));

    EXPECT_EQ(0U, Policy().GetNOFPopups());
    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_2));
}

// --- Minimum time ------------------------------------------------------------------------------------

TEST_F(CPopupPolicyTest, Close_BeforeTheLeastTime_IsClosedWhenThatIsOver)
{
    Policy().SetLeastTime(300);
    Policy().Show(POP_1);
    Clock().Advance(100);
    ClearEvents();

    EXPECT_TRUE(Policy().Close(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIPopupPolicy::Close: Popup with id 9 stays for its least time.\n
    )");
    Clock().Advance(199);
    EXPECT_EQ("POP_1 shown ", Listed());
    Clock().Advance(1);
    EXPECT_EQ("", Listed());
    EXPECT_EQ(0U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, Close_AcrossTheWrapOfTheClock_IsClosedWhenTheLeastTimeIsOver)
{
    Clock().Set(0xFFFFFFFFU - 50);
    Policy().SetLeastTime(300);
    Policy().Show(POP_1);
    Clock().Advance(100);

    EXPECT_TRUE(Policy().Close(POP_1));

    Clock().Advance(199);
    EXPECT_EQ("POP_1 shown ", Listed());
    Clock().Advance(1);
    EXPECT_EQ("", Listed());
}

TEST_F(CPopupPolicyTest, Close_AfterTheLeastTime_IsClosedAtOnce)
{
    Policy().SetLeastTime(300);
    Policy().Show(POP_1);
    Clock().Advance(300);

    EXPECT_TRUE(Policy().Close(POP_1));

    EXPECT_EQ("", Listed());
}

TEST_F(CPopupPolicyTest, Close_HiddenForAHigherOne_IsClosedAtOnce)
{
    Policy().SetLeastTime(300);
    Policy().Show(POP_1);
    Policy().Show(POP_6);
    EXPECT_EQ("POP_6 shown POP_1 hidden ", Listed());

    EXPECT_TRUE(Policy().Close(POP_1));

    EXPECT_EQ("POP_6 shown ", Listed());
}

TEST_F(CPopupPolicyTest, Show_WhileItsClosingIsDelayed_ItStays)
{
    Policy().SetLeastTime(300);
    Policy().Show(POP_1);
    Policy().Close(POP_1);

    EXPECT_EQ(Policy_t::POPUP_IS_THERE, Policy().Show(POP_1));

    Clock().Advance(1000);
    EXPECT_EQ("POP_1 shown ", Listed());
}

TEST_F(CPopupPolicyTest, Close_OneThatWaits_NeverComes)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    EXPECT_TRUE(Policy().Close(POP_2));

    EXPECT_EQ(1U, Policy().GetNOFPopups());
    Policy().Close(POP_1);
    EXPECT_EQ("", Listed());
}

TEST_F(CPopupPolicyTest, Close_ShownThroughTheManager_IsClosedThroughTheManager)
{
    Manager().ShowPopup(POP_1);

    EXPECT_TRUE(Policy().Close(POP_1));
    EXPECT_FALSE(Policy().Close(POP_1));

    EXPECT_EQ("", Listed());
}

// --- Snooze ------------------------------------------------------------------------------------------

TEST_F(CPopupPolicyTest, Snooze_GoesAtOnceAndComesBackAfterItsTime)
{
    Policy().SetLeastTime(10000);
    Policy().Show(POP_1);
    ClearEvents();

    EXPECT_TRUE(Policy().Snooze(POP_1, 500));

    EXPECT_EQ("DEBUG: CGUIPopupPolicy::Snooze: Popup with id 9 is snoozed.\\n", TakeTrace().front());
    EXPECT_EQ("", Listed());
    EXPECT_EQ(Policy_t::POPUP_IS_THERE, Policy().Show(POP_1));
    Clock().Advance(499);
    EXPECT_EQ("", Listed());
    Clock().Advance(1);
    EXPECT_EQ("POP_1 shown ", Listed());
}

TEST_F(CPopupPolicyTest, Snooze_FreesItsPriorityForTheNextOneAndWaitsForItAfterwards)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    Policy().Snooze(POP_1, 500);
    EXPECT_EQ("POP_2 shown ", Listed());
    Clock().Advance(500);
    EXPECT_EQ("POP_2 shown ", Listed());
    Policy().Close(POP_2);
    EXPECT_EQ("POP_1 shown ", Listed());
}

TEST_F(CPopupPolicyTest, Snooze_AcrossTheWrapOfTheClock_ComesBackAfterItsTime)
{
    Clock().Set(0xFFFFFFFFU - 50);
    Policy().Show(POP_1);

    Policy().Snooze(POP_1, 500);

    Clock().Advance(499);
    EXPECT_EQ("", Listed());
    Clock().Advance(1);
    EXPECT_EQ("POP_1 shown ", Listed());
}

TEST_F(CPopupPolicyTest, Close_WhileSnoozed_NeverComesBack)
{
    Policy().Show(POP_1);
    Policy().Snooze(POP_1, 500);

    EXPECT_TRUE(Policy().Close(POP_1));

    Clock().Advance(1000);
    EXPECT_EQ("", Listed());
    EXPECT_EQ(0U, Policy().GetNOFPopups());
    EXPECT_FALSE(Policy().Snooze(POP_1, 500));
}

TEST_F(CPopupPolicyTest, TimesEndWhileThePolicyLooks_ItClosesAndBringsBackAllTheSame)
{
    GETTIMER.SetClock(&Tick);
    Policy().SetLeastTime(300);
    for (eC_UInt uiSnooze = 270; uiSnooze < 330 && !HasFailure(); ++uiSnooze)
    {
        SCOPED_TRACE("snoozed for " + std::to_string(uiSnooze));
        ms_uiTicks = 0;
        Policy().Show(POP_3);
        Policy().Snooze(POP_3, uiSnooze);
        Policy().Show(POP_1);
        Policy().Close(POP_1);
        EXPECT_EQ("POP_1 shown ", Listed());

        while (ms_uiTicks < 500)
        {
            GETTIMER.ProcessCallbacks();
        }

        EXPECT_EQ("POP_3 shown ", Listed());
        EXPECT_EQ(1U, Policy().GetNOFPopups());
        Policy().Snooze(POP_3, 1);
        Policy().Close(POP_3);
        ClearEvents();
    }
}

// --- Too many ----------------------------------------------------------------------------------------

TEST_F(CPopupPolicyTest, TooMany_NewGoes_IsRefused)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);
    Policy().Show(POP_3);
    ClearEvents();

    EXPECT_EQ(Policy_t::POPUP_REFUSED, Policy().Show(POP_6));

    EXPECT_EVENTS(R"(
        WARNING: CGUIPopupPolicy::Show: Popup with id 14 is refused, there are too many.\n
    )");
    EXPECT_EQ("POP_3 shown POP_1 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, TooMany_LowestGoes_TheOldestOfTheLowestPriorityGoes)
{
    Policy().SetFullRule(Policy_t::FULL_LOWEST_GOES);
    Policy().Show(POP_3);
    Policy().Show(POP_1);
    Policy().Show(POP_2);
    ClearEvents();

    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_6));

    EXPECT_EQ(
        "WARNING: CGUIPopupPolicy::Show: Popup with id 9 goes for popup with id 14, there are too many.\\n",
        TakeTrace().front());
    EXPECT_EQ("POP_6 shown POP_3 hidden POP_2 hidden ", Listed());
    EXPECT_EQ(3U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, TooMany_LowestGoes_NewOneIsTheLowest_IsRefused)
{
    Policy().SetFullRule(Policy_t::FULL_LOWEST_GOES);
    Policy().Show(POP_3);
    Policy().Show(POP_4);
    Policy().Show(POP_5);

    EXPECT_EQ(Policy_t::POPUP_REFUSED, Policy().Show(POP_1));

    EXPECT_EQ("POP_3 shown ", Listed());
    EXPECT_EQ(3U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, TooMany_OldestGoes_WhateverItsPriority)
{
    Policy().SetFullRule(Policy_t::FULL_OLDEST_GOES);
    Policy().Show(POP_6);
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_3));

    EXPECT_EQ("POP_3 shown POP_1 hidden ", Listed());
    EXPECT_EQ(3U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, TooMany_OldestGoes_WhoWaitedForItComesBeforeTheNewOne)
{
    Policy().SetFullRule(Policy_t::FULL_OLDEST_GOES);
    Policy().Show(POP_3);
    Policy().Show(POP_4);
    Policy().Show(POP_1);

    EXPECT_EQ(Policy_t::POPUP_WAITS, Policy().Show(POP_5));

    EXPECT_EQ("POP_4 shown POP_1 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, TooMany_LowestGoes_ThoseBeingShownStay)
{
    CGUIPopupPolicyOf<1> kPolicy(Manager());
    kPolicy.SetFullRule(Policy_t::FULL_LOWEST_GOES);
    WhenShown(POP_1, [&] { EXPECT_EQ(Policy_t::POPUP_REFUSED, kPolicy.Show(POP_6)); });

    EXPECT_EQ(Policy_t::POPUP_LISTED, kPolicy.Show(POP_1));

    EXPECT_EQ("POP_1 shown ", Listed());
}

// --- Inside hooks, and when something fails ----------------------------------------------------------

TEST_F(CPopupPolicyTest, InsideAHook_ShowOfTheSamePriority_WaitsForTheOneThatIsBeingShown)
{
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION,
                        [this](CGUIObject*) { EXPECT_EQ(Policy_t::POPUP_WAITS, Policy().Show(POP_2)); });

    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_1));

    EXPECT_EQ("POP_1 shown ", Listed());
    Policy().Close(POP_1);
    EXPECT_EQ("POP_2 shown ", Listed());
}

TEST_F(CPopupPolicyTest, InsideAHook_CloseOfAnotherOne_TheNextOneComes)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, [this](CGUIObject*) { Policy().Close(POP_1); });

    Policy().Show(POP_6);

    EXPECT_EQ("POP_6 shown POP_2 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, InsideAHookOfAnotherOne_TheOneBeingRequestedIsClosed_IsRefusedAndNeverComes)
{
    FillPlaces();
    WhenShown(POP_5, [this] { EXPECT_TRUE(Policy().Close(POP_2)); });

    EXPECT_EQ(Policy_t::POPUP_REFUSED, Policy().Show(POP_2));

    EXPECT_EQ("POP_5 shown POP_1 hidden ", Listed());
    EXPECT_EQ(2U, Policy().GetNOFPopups());
    Policy().Close(POP_1);
    EXPECT_EQ("POP_5 shown ", Listed());
}

TEST_F(CPopupPolicyTest, InsideAHook_OfTheOneThatGoes_TheSameOneIsRequested_IsThereOnce)
{
    Policy().SetFullRule(Policy_t::FULL_OLDEST_GOES);
    Policy().Show(POP_3);
    Policy().Show(POP_1);
    Policy().Show(POP_2);
    m_kListener.RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                        [this](CGUIObject*) { EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_6)); });

    EXPECT_EQ(Policy_t::POPUP_IS_THERE, Policy().Show(POP_6));

    EXPECT_EQ("POP_6 shown POP_2 hidden ", Listed());
    EXPECT_EQ(2U, Policy().GetNOFPopups());
    Policy().Close(POP_6);
    EXPECT_EQ("POP_2 shown ", Listed());
}

TEST_F(CPopupPolicyTest, InsideAHook_OfTheOneThatGoes_TheSameOneIsRequestedAndClosed_RequestingItKeepsIt)
{
    Policy().SetFullRule(Policy_t::FULL_OLDEST_GOES);
    Policy().Show(POP_3);
    Policy().Show(POP_1);
    Policy().Show(POP_2);
    Policy().SetLeastTime(100);
    m_kListener.RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                        [this](CGUIObject*)
                        {
                            EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_6));
                            EXPECT_TRUE(Policy().Close(POP_6));
                        });

    EXPECT_EQ(Policy_t::POPUP_IS_THERE, Policy().Show(POP_6));
    Clock().Advance(1000);

    EXPECT_EQ("POP_6 shown POP_2 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, InsideAHook_DelayedClosingIsCalledAgain_IsClosedOnce)
{
    Policy().SetLeastTime(100);
    Policy().Show(POP_1);
    Policy().Close(POP_1);
    m_kListener.RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                        [this](CGUIObject*) { EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_6)); });

    Clock().Advance(100);

    EXPECT_EQ("POP_6 shown ", Listed());
    EXPECT_EQ(1U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, InsideAHookOfSnooze_ItsPlaceGoesToAnotherOne_ThatIsNotSnoozed)
{
    Policy().Show(POP_1);
    Policy().Show(POP_3);
    WhenShown(POP_1,
              [this]
              {
                  EXPECT_TRUE(Policy().Snooze(POP_3, 10));
                  EXPECT_TRUE(Policy().Close(POP_3));
                  EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_6));
              });

    EXPECT_TRUE(Policy().Snooze(POP_3, 500));

    EXPECT_EQ("POP_6 shown POP_1 hidden ", Listed());
    Clock().Advance(1000);
    EXPECT_EQ("POP_6 shown POP_1 hidden ", Listed());
    EXPECT_EQ(2U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, InsideAHookOfSnooze_ThePopupIsShownAgainThroughTheManager_ItStays)
{
    Policy().Show(POP_1);
    Policy().Show(POP_3);
    WhenShown(POP_1, [this] { Manager().ShowPopup(POP_3); });

    EXPECT_TRUE(Policy().Snooze(POP_3, 500));

    EXPECT_EQ("POP_3 shown POP_1 hidden ", Listed());
    EXPECT_EQ(2U, Policy().GetNOFPopups());
    Clock().Advance(1000);
    EXPECT_EQ("POP_3 shown POP_1 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, HooksKeepAskingForPopupsThatTheyDestroy_TheTimerGoesOnLater)
{
    eC_UInt uiShown = 0;
    const std::function<void(CGUIObject*)> fnAskForTheOther = [&](CGUIObject* pkPopup)
    {
        ++uiShown;
        const ObjectHandle_t eID = pkPopup->GetID();
        m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, fnAskForTheOther);
        delete pkPopup;
        Policy().Show(eID == POP_3 ? POP_5 : POP_3);
    };
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, fnAskForTheOther);

    // Two steps for each: it is found gone, and the other one is listed.
    Policy().Show(POP_3);
    EXPECT_EQ(1U + 6, uiShown);
    Clock().Advance(1);
    EXPECT_EQ(1U + 6 + 6, uiShown);

    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, nullptr);
    Clock().Advance(1000);
    EXPECT_EQ(1, CountListed({POP_3, POP_5}));
    EXPECT_EQ(1U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, HookDestroysThePopup_IsRefusedAndLeavesNoPlaceTaken)
{
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, [](CGUIObject* pkPopup) { delete pkPopup; });

    EXPECT_EQ(Policy_t::POPUP_REFUSED, Policy().Show(POP_1));

    EXPECT_EQ(0U, Policy().GetNOFPopups());
    EXPECT_EQ(Policy_t::POPUP_LISTED, Policy().Show(POP_2));
}

TEST_F(CPopupPolicyTest, HookThrowsWhileShowing_ThePopupIsListedAndKnown)
{
    m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Policy().Show(POP_1), int);

    EXPECT_EQ(Policy_t::POPUP_WAITS, Policy().Show(POP_2));
    EXPECT_TRUE(Policy().Close(POP_1));
    EXPECT_EQ("POP_2 shown ", Listed());
}

TEST_F(CPopupPolicyTest, HookOfAnotherOneThrowsInARequest_TheRequestedOneWaits)
{
    FillPlaces();
    WhenShown(POP_5, [] { throw 7; });

    EXPECT_THROW(Policy().Show(POP_2), int);

    EXPECT_EQ(3U, Policy().GetNOFPopups());
    Clock().Advance(10);
    delete Object(POP_1);
    Clock().Advance(1000);
    EXPECT_EQ("POP_5 shown POP_2 hidden ", Listed());
}

TEST_F(CPopupPolicyTest, HookOfAnotherOneThrowsInARequest_TheRequestedOneIsClosed_NeverComes)
{
    FillPlaces();
    WhenShown(POP_5, [] { throw 7; });
    EXPECT_THROW(Policy().Show(POP_2), int);

    EXPECT_TRUE(Policy().Close(POP_2));

    EXPECT_EQ(2U, Policy().GetNOFPopups());
    Policy().Close(POP_1);
    Clock().Advance(1000);
    EXPECT_EQ("POP_5 shown ", Listed());
}

TEST_F(CPopupPolicyTest, HookThrowsWhileClosing_ClosingAgainClosesIt)
{
    Policy().Show(POP_1);
    m_kListener.RunOnce(HOOK_ON_POPUP_DEACTIVATION, [](CGUIObject*) { throw std::bad_alloc(); });

    EXPECT_THROW(Policy().Close(POP_1), std::bad_alloc);
    EXPECT_EQ("POP_1 hidden ", Listed());
    EXPECT_TRUE(Policy().Close(POP_1));

    EXPECT_EQ("", Listed());
    EXPECT_EQ(0U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, HookThrowsInADelayedClosing_ItIsTriedAgain)
{
    Policy().SetLeastTime(100);
    Policy().Show(POP_1);
    Policy().Close(POP_1);
    m_kListener.RunOnce(HOOK_ON_POPUP_DEACTIVATION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Clock().Advance(100), int);
    Clock().Advance(100);

    EXPECT_EQ("", Listed());
    EXPECT_EQ(0U, Policy().GetNOFPopups());
}

TEST_F(CPopupPolicyTest, PolicyIsDestroyed_ThePopupsStay)
{
    Policy().Show(POP_1);
    Policy().Show(POP_2);

    m_pkPolicy.reset();
    Clock().Advance(5000);

    EXPECT_EQ("POP_1 shown ", Listed());
}

TEST_F(CPopupPolicyTest, ManagerIsDestroyedFirst_NothingCanBeShown)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    CGUIPopupPolicyOf<2> kPolicy(*pkManager);
    pkManager->RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, false, PathOf(POP_1).c_str());
    kPolicy.Show(POP_1);
    kPolicy.Snooze(POP_1, 10);

    pkManager.reset();
    Clock().Advance(1000);

    EXPECT_EQ(Policy_t::POPUP_REFUSED, kPolicy.Show(POP_1));
    EXPECT_FALSE(kPolicy.Close(POP_1));
    EXPECT_FALSE(kPolicy.Snooze(POP_1, 10));
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CPopupPolicyTest, SteadyState_ShowingAndClosing_AllocatesNothing)
{
    CGUITrace::GetInstance().SetSink(nullptr);
    Manager().RemoveListener(m_kListener);
    const auto Round = [this]
    {
        Policy().Show(POP_1);
        Policy().Show(POP_2);
        Policy().Close(POP_1);
        Policy().Snooze(POP_2, 10);
        Clock().Advance(10);
        Policy().Close(POP_2);
        Clock().Advance(10);
    };
    Round();

    const CAllocationCounter kAllocations;
    Round();
    EXPECT_EQ(0U, kAllocations.GetNumber());
    EXPECT_EQ("", Listed());
}
#endif

// What must hold after any sequence of operations, with hooks that call the policy, throw and destroy.
TEST_F(CPopupPolicyTest, RandomOperations_NeverTwoOfAPriorityAndNothingIsForgotten)
{
    std::mt19937 kRandom(20240601);
    const auto Draw = [&](unsigned uiBelow) { return static_cast<unsigned>(kRandom()) % uiBelow; };
    const auto DrawPopup = [&] { return static_cast<ObjectHandle_t>(POP_1 + static_cast<int>(Draw(6))); };
    const auto DoSomething = [&]
    {
        switch (Draw(6))
        {
        case 0:
        case 1:
            Policy().Show(DrawPopup());
            break;
        case 2:
            Policy().Close(DrawPopup());
            break;
        case 3:
            Policy().Snooze(DrawPopup(), 1 + Draw(300));
            break;
        case 4:
            Clock().Advance(Draw(200));
            break;
        default:
            Manager().ClosePopup(DrawPopup());
            break;
        }
    };
    for (unsigned uiStep = 0; uiStep < 5000; ++uiStep)
    {
        // The board has no room for all of them.
        ClearEvents();
        Policy().SetFullRule(static_cast<Policy_t::EFullRule>(Draw(3)));
        Policy().SetLeastTime(Draw(2) * 100);
        const unsigned uiTrouble = Draw(8);
        if (uiTrouble < 4)
        {
            m_kListener.RunOnce(Draw(2) == 0 ? HOOK_ON_POPUP_ACTIVATION : HOOK_ON_POPUP_DEACTIVATION,
                                [&, uiTrouble](CGUIObject* pkPopup)
                                {
                                    switch (uiTrouble)
                                    {
                                    case 0:
                                        throw 7;
                                    case 1:
                                        throw std::bad_alloc();
                                    case 2:
                                        delete pkPopup;
                                        break;
                                    default:
                                        DoSomething();
                                        break;
                                    }
                                });
        }
        try
        {
            DoSomething();
        }
        catch (int)
        {
        }
        catch (const std::bad_alloc&)
        {
        }
        EXPECT_GE(1, CountListed({POP_1, POP_2})) << uiStep;
        EXPECT_GE(1, CountListed({POP_3, POP_4, POP_5})) << uiStep;
        EXPECT_GE(3U, Policy().GetNOFPopups()) << uiStep;
    }
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED, nullptr);
    Policy().SetLeastTime(0);
    for (unsigned uiRound = 0; uiRound < 20; ++uiRound)
    {
        for (int iPopup = 0; iPopup < 6; ++iPopup)
        {
            Policy().Close(static_cast<ObjectHandle_t>(POP_1 + iPopup));
        }
        Clock().Advance(1000);
    }
    EXPECT_EQ("", Listed());
    EXPECT_EQ(0U, Policy().GetNOFPopups());
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}
} // namespace
