// SPDX-License-Identifier: MIT
#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{
class CClosePopupTest : public CGUITest
{
};

TEST_F(CClosePopupTest, ClosePopup_OfAnIdentifierThatIsNotListed_ReturnsFalseSilently)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, true, "POP_1");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_MEDIUM, 500, true, "");
    Attach("POP_2");
    Manager().ShowPopup(POP_1);
    ClearEvents();

    EXPECT_FALSE(Manager().ClosePopup(POP_2));

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 500 ms, delete on close, shown, 500 ms left
        tree:
          POP_2
          POP_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_OfAPopupThatHidesOnCloseAndThatTheHookDestroys_RemovesItsEntry)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, false, "POP_1");
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [](CGUIObject* pkPopup) { delete pkPopup; });
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

/** A popup that counts how often it was shown and hidden. */
class CCountingPopup : public CGUIObject
{
public:
    CCountingPopup(CGUICompositeObject* pkParent, std::string& kCalls)
        : CGUIObject(pkParent, POP_1), m_kCalls(kCalls)
    {
    }

    void SetInvisible(const eC_Bool& bInvisible) override
    {
        CGUIObject::SetInvisible(bInvisible);
        m_kCalls += bInvisible ? "hide " : "show ";
    }

private:
    std::string& m_kCalls;
};

TEST_F(CClosePopupTest, ClosePopup_OfAPopupThatHidesOnClose_HidesItOnce)
{
    std::string kCalls;
    new CCountingPopup(&Root(), kCalls);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Manager().ShowPopup(POP_1);
    kCalls.clear();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ("hide ", kCalls);
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WhoseHookRunsTheArbitration_HidesThePopupAgainThatThisHasShown)
{
    std::string kCalls;
    new CCountingPopup(&Root(), kCalls);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [this](CGUIObject*) { Manager().UpdateActivePopups(); });
    kCalls.clear();
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ("hide show hide ", kCalls);
    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WhoseHookShowsThePopup_HidesItAgain)
{
    std::string kCalls;
    new CCountingPopup(&Root(), kCalls);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [](CGUIObject* pkPopup) { pkPopup->SetInvisible(false); });
    kCalls.clear();
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ("hide show hide ", kCalls);
    EXPECT_HOOKS("OnPopupDeactivation(POP_1)");
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WhoseHookRunsTheArbitrationAndDestroysThePopup_RemovesTheEntry)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                      [this](CGUIObject* pkPopup)
                      {
                          Manager().UpdateActivePopups();
                          delete pkPopup;
                      });
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WhoseHookRunsTheArbitration_DoesNotShowAPopupBelowTheHighestPriority)
{
    std::string kCalls;
    new CCountingPopup(&Root(), kCalls);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_2");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [this](CGUIObject*) { Manager().UpdateActivePopups(); });
    kCalls.clear();
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ("hide ", kCalls);
    EXPECT_HOOKS("OnPopupDeactivation(POP_1)");
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_2));
}

TEST_F(CClosePopupTest, ClosePopup_WithDeleteOnCloseWhoseHookRunsTheArbitration_DeletesItWithoutHidingItAgain)
{
    std::string kCalls;
    new CCountingPopup(&Root(), kCalls);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "");
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [this](CGUIObject*) { Manager().UpdateActivePopups(); });
    kCalls.clear();
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ("hide show ", kCalls);
    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CClosePopupTest, ClosePopup_OfAPopupThatStaysVisibleWhenHidden_HidesItOnce)
{
    /** Fades out gradually, as some popups do. */
    class CFadingPopup : public CGUIObject
    {
    public:
        explicit CFadingPopup(CGUICompositeObject* pkParent) : CGUIObject(pkParent, POP_1) {}

        void SetInvisible(const eC_Bool& bInvisible) override
        {
            m_iHidden += bInvisible ? 1 : 0;
            CGUIObject::SetInvisible(false);
        }

        int m_iHidden = 0;
    };
    CFadingPopup* pkPopup = new CFadingPopup(&Root());
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Manager().ShowPopup(POP_1);
    pkPopup->m_iHidden = 0;

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ(1, pkPopup->m_iHidden);
}

TEST_F(CClosePopupTest, ClosePopup_WhoseHookListsTheSameObjectInItsPlace_GoesOnWithThatEntry)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
    Manager().ShowPopup(POP_2);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                      [this](CGUIObject*)
                      {
                          Manager().ClosePopup(POP_1);
                          Manager().ShowPopup(POP_1);
                      });

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, hide on close, shown
        tree:
          POP_1 invisible
          POP_2
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WhoseHookListsTheSameObjectBehindANewerOne_ThrowsThoughItIsListed)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_2");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION,
                      [this](CGUIObject*)
                      {
                          Manager().ClosePopup(POP_1);
                          Manager().ShowPopup(POP_1);
                      });

    EXPECT_THROW(Manager().ClosePopup(POP_1), int);

    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        active: POP_2 prio 5, 0 ms, hide on close, shown
        tree:
          POP_2
          POP_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WithAnEmptyList_ReturnsFalseSilently)
{
    EXPECT_FALSE(Manager().ClosePopup(POP_1));

    EXPECT_EVENTS("");
}

TEST_F(CClosePopupTest, ClosePopup_WithDeleteOnClose_DeletesTheObjectAndTheNextShowPopupLoadsANewOne)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, true, "POP_1 { OBJ_1 }");
    const CSafeGUIObjectPtr pkPopup = Manager().ShowPopup(POP_1);
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_EQ(nullptr, pkPopup.get());
    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: none
    )");

    EXPECT_NE(nullptr, Manager().ShowPopup(POP_1));
    EXPECT_EQ(2U, CodeFactory().GetLoads(PathOf(POP_1)));
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 500 ms, delete on close, shown, 500 ms left
        tree:
          POP_1
            OBJ_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_WithoutDeleteOnClose_HidesTheObjectAndTheNextShowPopupReusesIt)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, false, "POP_1");
    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);
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

    EXPECT_EQ(pkPopup, Manager().ShowPopup(POP_1));
    EXPECT_EQ(1U, CodeFactory().GetLoads());
    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 500 ms, hide on close, shown, 500 ms left
        tree:
          POP_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_HidesAndStopsBeforeTheHookAndDeletesAndUnlistsBehindIt)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, true, "POP_1");
    Manager().ShowPopup(POP_1);
    std::string kStateInHook;
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, [&](CGUIObject*) { kStateInHook = State(); });

    Manager().ClosePopup(POP_1);

    EXPECT_TEXT(R"(
        current: none
        active: POP_1 prio 5, 500 ms, delete on close, hidden
        tree:
          POP_1 invisible
    )",
                kStateInHook);
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CClosePopupTest, ClosePopup_ShowsThePopupsOfTheNextLowerPriority)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, false, "POP_2");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Clock().Advance(400);
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_2));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_2)
        OnPopupActivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 500 ms, hide on close, shown, 500 ms left
        tree:
          POP_2 invisible
          POP_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_OfAWaitingPopup_CallsTheHookAlthoughItWasNeverActivated)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 500, true, "POP_2");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    ClearEvents();

    EXPECT_TRUE(Manager().ClosePopup(POP_2));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_2)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_OfADetachedWaitingPopup_LeavesItDetachedUnlessItIsDeletedOnClose)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, false, "POP_1");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "");
    Manager().RegisterPopupDefinition(POP_3, CGUIDialogManager::PRIO_LOW, 0, true, "");
    Manager().SetPopupCreator(POP_2, [] { return CObjectTree("POP_2").Build(); });
    Manager().SetPopupCreator(POP_3, [] { return CObjectTree("POP_3").Build(); });
    Manager().ShowPopup(POP_1);
    const std::unique_ptr<CGUIObject> pkKept(Manager().ShowPopup(POP_2));
    const CSafeGUIObjectPtr pkDeleted = Manager().ShowPopup(POP_3);

    EXPECT_TRUE(Manager().ClosePopup(POP_2));
    EXPECT_TRUE(Manager().ClosePopup(POP_3));

    EXPECT_EQ(nullptr, pkDeleted.get());
    EXPECT_EQ(nullptr, pkKept->GetParent());
    EXPECT_TRUE(pkKept->IsInvisible());
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 7, 0 ms, hide on close, shown
        tree:
          POP_1
    )");
}

TEST_F(CClosePopupTest, ClosePopup_SkipsEntriesWhoseObjectIsGone)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
    DefinePopup(POP_3, CGUIDialogManager::PRIO_LOW, 0, false, "POP_3");
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        Manager().ShowPopup(eID);
    }
    delete Object(POP_1);
    ClearEvents();

    EXPECT_FALSE(Manager().ClosePopup(POP_1));
    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 3, 0 ms, hide on close, shown
        active: POP_2 prio 3, 0 ms, hide on close, shown
        active: gone prio 3, 0 ms, hide on close
        tree:
          POP_2
          POP_3
    )");

    EXPECT_TRUE(Manager().ClosePopup(POP_3));
    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_3)
        ERROR: CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is removed from the active popup list.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 3 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, hide on close, shown
        tree:
          POP_3 invisible
          POP_2
    )");
}

TEST_F(CClosePopupTest, ClosePopup_OfTwoEntriesWithOneIdentifier_ClosesTheOneNearerTheEnd)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
    CGUIObject* pkFirst = Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    pkFirst->SetID(POP_2);

    EXPECT_TRUE(Manager().ClosePopup(POP_2));

    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, hide on close, shown
        tree:
          POP_2 invisible
          POP_2
    )");
    EXPECT_TRUE(pkFirst->IsInvisible());
}

TEST_F(CClosePopupTest, ClosePopup_GoesByTheIdentifierThatTheObjectBearsNow)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    Manager().ShowPopup(POP_1)->SetID(OBJ_1);
    ClearEvents();

    EXPECT_FALSE(Manager().ClosePopup(POP_1));
    EXPECT_TRUE(Manager().ClosePopup(OBJ_1));

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(OBJ_1)
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          OBJ_1 invisible
    )");
}

TEST_F(CClosePopupTest, ClosePopup_Twice_ReturnsFalseTheSecondTime)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    Manager().ShowPopup(POP_1);

    EXPECT_TRUE(Manager().ClosePopup(POP_1));
    EXPECT_FALSE(Manager().ClosePopup(POP_1));
}

TEST_F(CClosePopupTest, DestroyingTheManager_DropsTheEntriesAndTheirTimersButNoObject)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 500, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 500, true, "POP_2");
    const CSafeGUIObjectPtr pkShown = Manager().ShowPopup(POP_1);
    const CSafeGUIObjectPtr pkWaiting = Manager().ShowPopup(POP_2);
    EXPECT_EQ(500U, GETTIMER.GetTimeUntilNextCallback());
    ClearEvents();

    DestroyManager();

    EXPECT_EVENTS("");
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    ASSERT_NE(nullptr, pkShown.get());
    ASSERT_NE(nullptr, pkWaiting.get());
    EXPECT_FALSE(pkShown->IsInvisible());
    EXPECT_TRUE(pkWaiting->IsInvisible());
}
} // namespace
