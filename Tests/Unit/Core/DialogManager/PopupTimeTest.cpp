// SPDX-License-Identifier: MIT
#include "Tests/Unit/TraceMoment.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/VirtualSlot.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <type_traits>

namespace
{
using PopupDescription_t = CGUITestAccess::PopupDescription_t;

class CPopupTimeTest : public CGUITest
{
};

TEST_F(CPopupTimeTest, TimedPopup_ClosesItselfExactlyWhenItsTimeIsUp)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Clock().Advance(2999);
    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 1 ms left
        tree:
          POP_1
    )");

    Clock().Advance(1);
    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CPopupTimeTest, TimedPopup_ThatHidesOnClose_IsHiddenAndCanBeShownAgain)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, false, "POP_1");
    Manager().ShowPopup(POP_1);

    Clock().Advance(3000);
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");

    Manager().ShowPopup(POP_1);
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, hide on close, shown, 3000 ms left
        tree:
          POP_1
    )");
}

TEST_F(CPopupTimeTest, AListedPopupThatTheApplicationHasShownItself_GetsItsTimeWhenItBecomesTheHighest)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, false, "POP_2");
    Manager().ShowPopup(POP_2);
    Manager().ShowPopup(POP_1);
    Object(POP_1)->SetInvisible(false);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    ClearEvents();

    Manager().ClosePopup(POP_2);

    EXPECT_HOOKS("OnPopupDeactivation(POP_2)");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, hide on close, shown, 3000 ms left
        tree:
          POP_2 invisible
          POP_1
    )");
    Clock().Advance(3000);
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_2 invisible
          POP_1 invisible
    )");
}

TEST_F(CPopupTimeTest, TheShortestTime_IsKeptWhenThePopupIsShownAndWhenItIsShownAgain)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 1, false, "POP_1");
    Manager().ShowPopup(POP_1);
    EXPECT_EQ(1U, GETTIMER.GetTimeUntilNextCallback());

    Manager().ShowPopup(POP_1);
    EXPECT_EQ(1U, GETTIMER.GetTimeUntilNextCallback());

    Clock().Advance(1);
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
}

TEST_F(CPopupTimeTest, ShownAgain_LogsTheRestartBeforeTheTimeIsStopped)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, false, "POP_1");
    Manager().ShowPopup(POP_1);
    Clock().Advance(1000);
    const CTraceMoment kMoment("Timout of is restarted",
                               [] { EXPECT_EQ(2000U, GETTIMER.GetTimeUntilNextCallback()); });

    Manager().ShowPopup(POP_1);

    EXPECT_EQ(1, kMoment.GetEntries());
    EXPECT_EQ(3000U, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CPopupTimeTest, PopupWithoutLimit_StaysUntilItIsClosed)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1");
    Manager().ShowPopup(POP_1);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());

    Clock().Advance(1000000000U);
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));

    EXPECT_TRUE(Manager().ClosePopup(POP_1));
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
}

TEST_F(CPopupTimeTest, DialogSwitches_DoNotProlongTheDisplay)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);

    Clock().Advance(1000);
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Clock().Advance(1000);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    Clock().Advance(500);
    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 500 ms left
        tree:
          DLG_A
          POP_1
    )");
    Clock().Advance(500);
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CPopupTimeTest, ShowPopupAgain_CountsFromTheSecondCall)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Clock().Advance(2000);
    Manager().ShowPopup(POP_1);

    Clock().Advance(2999);
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));

    Clock().Advance(1);
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
}

TEST_F(CPopupTimeTest, PopupThatWaited_GetsItsWholeTimeFromTheEntryAndNotFromTheRegistry)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 1000, true, "POP_2");
    Manager().ShowPopup(POP_1);
    Clock().Advance(2900);
    Manager().ShowPopup(POP_2);
    Manager().UpdateRegisteredPopupDisplayTime(POP_1, 10);

    Clock().Advance(1000);

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 3000 ms left
        tree:
          POP_1
    )");
}

TEST_F(CPopupTimeTest, LateMainLoop_ClosesThePopupOnce)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_1");
    Manager().ShowPopup(POP_1);
    ClearEvents();
    Clock().Set(100000);

    GETTIMER.ProcessCallbacks();

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
}

TEST_F(CPopupTimeTest, LateMainLoop_GivesThePopupThatComesUpItsWholeTime)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 300, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 100, true, "POP_2");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Clock().Set(5000);

    GETTIMER.ProcessCallbacks();

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 300 ms, delete on close, shown, 300 ms left
        tree:
          POP_1
    )");
}

TEST_F(CPopupTimeTest, DisplayTime_RunsAcrossTheWrapAroundOfTheClock)
{
    Clock().Set(0xFFFFFF00U);
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);

    Clock().Advance(2999);
    EXPECT_EQ(2743U, Clock().GetTime());
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));

    Clock().Advance(1);
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
}

TEST_F(CPopupTimeTest, TimeOfAPopupWhoseObjectIsGone_DoesNothingAndEndsWithTheEntry)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_1");
    delete Manager().ShowPopup(POP_1);
    ClearEvents();

    Clock().Advance(100);

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 100 ms, delete on close, 100 ms left
    )");

    Manager().UpdateActivePopups();
    EXPECT_STATE(R"(
        current: none
    )");
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
}

TEST_F(CPopupTimeTest, DoAnimate_IgnoresItsValueAndClosesThroughTheManager)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_1");
    Manager().ShowPopup(POP_1);

    CGUITestAccess::GetActivePopup(Manager(), POP_1)->DoAnimate(0.0F);

    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupTimeTest, DoAnimate_StopsTheTimeOfADescriptionOutsideTheListBeforeItCloses)
{
    const std::unique_ptr<CGUIObject> pkObject(CObjectTree("POP_1").Build());
    PopupDescription_t kPopup(pkObject.get(), CGUIDialogManager::PRIO_LOW, 100, false, &Manager());
    GETTIMER.AddAnimationCallback(100, &kPopup);

    kPopup.DoAnimate(1.0F);

    EXPECT_FALSE(kPopup.IsAnimating());
    EXPECT_EVENTS("");
}

TEST_F(CPopupTimeTest, DoAnimate_WithoutManagerOrObject_DoesNothingAndStaysRegistered)
{
    const std::unique_ptr<CGUIObject> pkObject(CObjectTree("POP_1").Build());
    PopupDescription_t kWithoutManager(pkObject.get(), CGUIDialogManager::PRIO_LOW, 100, true, nullptr);
    PopupDescription_t kWithoutObject(nullptr, CGUIDialogManager::PRIO_LOW, 100, true, &Manager());
    GETTIMER.AddAnimationCallback(100, &kWithoutManager);
    GETTIMER.AddAnimationCallback(100, &kWithoutObject);

    Clock().Advance(100);

    EXPECT_TRUE(kWithoutManager.IsAnimating());
    EXPECT_TRUE(kWithoutObject.IsAnimating());
    EXPECT_FALSE(pkObject->IsInvisible());
    EXPECT_EVENTS("");
}

TEST_F(CPopupTimeTest, PopupDescription_DefaultDescribesNoPopup)
{
    const PopupDescription_t kPopup;

    EXPECT_EQ(nullptr, kPopup.GetObject());
    EXPECT_EQ(nullptr, kPopup.m_pDialogManager);
    EXPECT_EQ(CGUIDialogManager::PRIO_LOW, kPopup.GetPriority());
    EXPECT_EQ(0U, kPopup.GetDisplayTime());
    EXPECT_TRUE(kPopup.m_bDeleteOnClose);
}

TEST_F(CPopupTimeTest, PopupDescription_CopiesItsFiveFieldsButNoRegistration)
{
    CGUIObject* pkObject = Attach("POP_1");
    PopupDescription_t kPopup(pkObject, CGUIDialogManager::PRIO_HIGH, 100, false, &Manager());
    GETTIMER.AddAnimationCallback(100, &kPopup);

    const PopupDescription_t kCopy(kPopup);
    PopupDescription_t kAssigned;
    kAssigned = kPopup;

    for (const PopupDescription_t* pkPopup : {&kCopy, static_cast<const PopupDescription_t*>(&kAssigned)})
    {
        EXPECT_EQ(pkObject, pkPopup->GetObject());
        EXPECT_EQ(&Manager(), pkPopup->m_pDialogManager);
        EXPECT_EQ(CGUIDialogManager::PRIO_HIGH, pkPopup->GetPriority());
        EXPECT_EQ(100U, pkPopup->GetDisplayTime());
        EXPECT_FALSE(pkPopup->m_bDeleteOnClose);
        EXPECT_FALSE(pkPopup->IsAnimating());
    }
    EXPECT_TRUE(kPopup.IsAnimating());

    delete pkObject;
    EXPECT_EQ(nullptr, kPopup.GetObject());
    EXPECT_EQ(nullptr, kCopy.GetObject());
    EXPECT_EQ(nullptr, kAssigned.GetObject());
}

TEST_F(CPopupTimeTest, PopupDescription_ThatIsDestroyed_StopsItsTimeAndLeavesTheObject)
{
    CGUIObject* pkObject = Attach("POP_1");
    {
        PopupDescription_t kPopup(pkObject, CGUIDialogManager::PRIO_HIGH, 100, true, &Manager());
        GETTIMER.AddAnimationCallback(100, &kPopup);
    }

    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    EXPECT_EQ(Object(POP_1), pkObject);
    EXPECT_FALSE(pkObject->IsInvisible());
}

TEST_F(CPopupTimeTest, PopupDescription_IsGreaterOnlyWithAStrictlyGreaterPriority)
{
    const PopupDescription_t kLow(nullptr, CGUIDialogManager::PRIO_LOW, 9, true, nullptr);
    const PopupDescription_t kAlsoLow(nullptr, CGUIDialogManager::PRIO_LOW, 1, true, nullptr);
    const PopupDescription_t kHigh(nullptr, CGUIDialogManager::PRIO_HIGH, 0, true, nullptr);

    EXPECT_TRUE(kHigh > kLow);
    EXPECT_FALSE(kLow > kHigh);
    EXPECT_FALSE(kLow > kAlsoLow);
}

TEST_F(CPopupTimeTest, PopupDescription_EqualsTheIdentifierOfItsObject)
{
    const std::unique_ptr<CGUIObject> pkObject(CObjectTree("POP_1").Build());
    const PopupDescription_t kPopup(pkObject.get(), CGUIDialogManager::PRIO_LOW, 0, true, nullptr);
    const PopupDescription_t kWithoutObject;

    EXPECT_TRUE(kPopup == POP_1);
    EXPECT_FALSE(kPopup == POP_2);
    EXPECT_FALSE(kWithoutObject == NO_HANDLE);
}

TEST_F(CPopupTimeTest, PopupDescription_KeepsTheSlotsOfItsBase)
{
    static_assert(std::is_base_of_v<CGUIAnimatable, PopupDescription_t>);
#ifdef TESTS_HAVE_VIRTUAL_SLOTS
    EXPECT_EQ(2, GetVirtualSlot(&PopupDescription_t::DoAnimate));
    EXPECT_EQ(3, GetVirtualSlot(&PopupDescription_t::StartAnimation));
    EXPECT_EQ(4, GetVirtualSlot(&PopupDescription_t::StopAnimation));
    EXPECT_EQ(5, GetVirtualSlot(&PopupDescription_t::IsAnimating));
#endif
}

TEST_F(CPopupTimeTest, PopupDescription_MembersAreLaidOutInTheOrderOfTheirDeclaration)
{
    const PopupDescription_t kPopup;
    const void* apMembers[] = {&kPopup.m_pObject, &kPopup.m_pDialogManager, &kPopup.m_ePriority,
                               &kPopup.m_uiDisplayTime, &kPopup.m_bDeleteOnClose};

    for (std::size_t uiMember = 1; uiMember < std::size(apMembers); ++uiMember)
    {
        EXPECT_LT(apMembers[uiMember - 1], apMembers[uiMember]);
    }
}
} // namespace
