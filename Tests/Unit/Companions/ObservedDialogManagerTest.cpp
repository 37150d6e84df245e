// SPDX-License-Identifier: MIT
#include "Companions/GUIObservedDialogManager.h"

#include "Companions/GUIDialogListener.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

namespace
{
/** Two listeners, One added before Two, and a third one that is not added. */
class CObservedDialogManagerTest : public CCompanionTest
{
protected:
    CObservedDialogManagerTest()
    {
        EXPECT_TRUE(Manager().AddListener(*m_pkOne));
        EXPECT_TRUE(Manager().AddListener(*m_pkTwo));
        DefineEmptyDialogs(DLG_A, DLG_B);
        DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM);
        DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH);
    }

    CRecordingListener& One() { return *m_pkOne; }
    CRecordingListener& Two() { return *m_pkTwo; }
    CRecordingListener& Three() { return m_kThree; }

    std::unique_ptr<CRecordingListener> m_pkOne = std::make_unique<CRecordingListener>(Events(), "One");
    std::unique_ptr<CRecordingListener> m_pkTwo = std::make_unique<CRecordingListener>(Events(), "Two");
    CRecordingListener m_kThree{Events(), "Three"};
};

// --- All hooks ---------------------------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, SwitchingAndGoingBack_EveryListenerHearsEachHookInOrder)
{
    Manager().CreateDialog(DLG_A, ODA_NOTHING);
    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);
    Manager().Back(true);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        Two OnDialogActivation(DLG_A)
        One OnDialogDeactivation(DLG_A)
        Two OnDialogDeactivation(DLG_A)
        One OnDialogAdded(DLG_B)
        Two OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
        Two OnDialogActivation(DLG_B)
        One OnDialogDeletion(DLG_B)
        Two OnDialogDeletion(DLG_B)
        One OnDialogActivation(DLG_A)
        Two OnDialogActivation(DLG_A)
        One OnAfterDialogDeletion(DLG_B, DLG_A)
        Two OnAfterDialogDeletion(DLG_B, DLG_A)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

TEST_F(CObservedDialogManagerTest, Popups_EveryListenerHearsEachHookInOrder)
{
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().ClosePopup(POP_2);

    EXPECT_HOOKS(R"(
        One OnPopupActivation(POP_1)
        Two OnPopupActivation(POP_1)
        One OnPopupActivation(POP_2)
        Two OnPopupActivation(POP_2)
        One OnPopupDeactivation(POP_1)
        Two OnPopupDeactivation(POP_1)
        One OnPopupDeactivation(POP_2)
        Two OnPopupDeactivation(POP_2)
        One OnPopupActivation(POP_1)
        Two OnPopupActivation(POP_1)
    )");
}

TEST_F(CObservedDialogManagerTest, NoDialogComesBack_EveryListenerHearsOfIt)
{
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_DELETE);
    CodeFactory().Unregister(PathOf(DLG_A));

    Manager().Back(false);

    EXPECT_HOOKS(R"(
        One OnDialogDeactivation(DLG_B)
        Two OnDialogDeactivation(DLG_B)
        One CreateDialogImpl(DLG_A, false, false)
        Two CreateDialogImpl(DLG_A, false, false)
        One OnLastDialogDeletion()
        Two OnLastDialogDeletion()
        One OnAfterDialogDeletion(DLG_B, NO_HANDLE)
        Two OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
}

// --- Creating ----------------------------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, CreateDialogImpl_FirstAnswers_SecondIsNotAskedAndTheFlagsCount)
{
    Go(DLG_A, ODA_NOTHING);
    One().m_eBuilds = DLG_C;
    One().m_bAllowDeletion = false;
    One().m_bRecoverFocus = false;

    ExpectIsObject(DLG_C, Manager().CreateDialog(DLG_C, ODA_INVISIBLE));
    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_C ODA_INVISIBLE (after ODA_INVISIBLE, no deletion, no recovery)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C invisible
          DLG_B
    )");
    EXPECT_EQ("One CreateDialogImpl(DLG_C, true, true)", TakeHooks().front());
}

TEST_F(CObservedDialogManagerTest, CreateDialogImpl_FirstDeclines_WhatItLeftInTheFlagsIsForgotten)
{
    One().m_bAllowDeletion = false;
    One().m_bRecoverFocus = false;
    Two().m_eBuilds = DLG_C;

    ExpectIsObject(DLG_C, Manager().CreateDialog(DLG_C, ODA_INVISIBLE));

    EXPECT_HOOKS(R"(
        One CreateDialogImpl(DLG_C, true, true)
        Two CreateDialogImpl(DLG_C, true, true)
        One OnDialogAdded(DLG_C)
        Two OnDialogAdded(DLG_C)
        One OnDialogActivation(DLG_C)
        Two OnDialogActivation(DLG_C)
    )");
    EXPECT_STATE(R"(
        current: DLG_C after ODA_INVISIBLE
        tree:
          DLG_C
    )");
}

TEST_F(CObservedDialogManagerTest, CreateDialogImpl_NobodyAnswers_FailsAsWithoutListeners)
{
    One().m_bAllowDeletion = false;

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_C, ODA_INVISIBLE));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 3.\n
        One CreateDialogImpl(DLG_C, true, true)
        Two CreateDialogImpl(DLG_C, true, true)
        DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 3 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CObservedDialogManagerTest, CreatePopupImpl_SecondAnswers_BothWereAsked)
{
    Two().m_eBuilds = POP_3;
    EXPECT_TRUE(Manager().RegisterPopupDefinition(POP_3, CGUIDialogManager::PRIO_LOW, 0, true, ""));

    ExpectIsObject(POP_3, Manager().ShowPopup(POP_3));

    EXPECT_HOOKS(R"(
        One CreatePopupImpl(POP_3)
        Two CreatePopupImpl(POP_3)
        One OnPopupActivation(POP_3)
        Two OnPopupActivation(POP_3)
    )");
}

TEST_F(CObservedDialogManagerTest, CreatePopupImpl_NobodyAnswers_FailsAsWithoutListeners)
{
    EXPECT_TRUE(Manager().RegisterPopupDefinition(POP_3, CGUIDialogManager::PRIO_LOW, 0, true, ""));

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_3));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 11 is activated.\n
        One CreatePopupImpl(POP_3)
        Two CreatePopupImpl(POP_3)
        DEBUG: CGUIDialogManager::CreatePopupImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreatePopup: Creating popup with ID 11 failed!\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

// --- Deleting ----------------------------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, OnDialogDeletion_FirstVetoes_SecondIsNotAskedAndTheDialogIsHidden)
{
    Go(DLG_A, ODA_NOTHING);
    One().m_eVetoes = DLG_A;

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        One OnDialogDeletion(DLG_A)
        One OnDialogDeactivation(DLG_A)
        Two OnDialogDeactivation(DLG_A)
        One OnDialogAdded(DLG_B)
        Two OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
        Two OnDialogActivation(DLG_B)
    )");
    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}

TEST_F(CObservedDialogManagerTest, OnDialogDeletion_SecondVetoes_TheDialogIsHidden)
{
    Go(DLG_A, ODA_NOTHING);
    Two().m_eVetoes = DLG_A;

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_NE(nullptr, Object(DLG_A));
    EXPECT_EQ("One OnDialogDeletion(DLG_A)", TakeHooks().front());
}

TEST_F(CObservedDialogManagerTest, OnDialogDeletion_FirstDestroysTheDialog_SecondIsNotAskedAndItIsDeletedOnce)
{
    Go(DLG_A, ODA_NOTHING);
    Two().m_eVetoes = DLG_A;
    One().RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject* pkDialog) { delete pkDialog; });

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_HOOKS(R"(
        One OnDialogDeletion(DLG_A)
        One OnDialogAdded(DLG_B)
        Two OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
        Two OnDialogActivation(DLG_B)
    )");
    EXPECT_EQ(nullptr, Object(DLG_A));
}

// --- Objects that do not survive ---------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, OnDialogAdded_FirstDestroysTheDialog_NobodyElseHearsOfIt)
{
    One().RunOnce(HOOK_ON_DIALOG_ADDED, [](CGUIObject* pkDialog) { delete pkDialog; });

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, OnPopupActivation_FirstDestroysThePopup_NobodyElseHearsOfIt)
{
    One().RunOnce(HOOK_ON_POPUP_ACTIVATION, [](CGUIObject* pkPopup) { delete pkPopup; });

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_HOOKS(R"(
        One OnPopupActivation(POP_1)
    )");
}

// --- Exceptions --------------------------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, ListenerThrows_InCreateDialog_PassesAndLaterListenersDoNotHear)
{
    Go(DLG_A, ODA_NOTHING);
    One().RunOnce(HOOK_ON_DIALOG_ACTIVATION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Manager().CreateDialog(DLG_B, ODA_INVISIBLE), int);

    EXPECT_HOOKS(R"(
        One OnDialogDeactivation(DLG_A)
        Two OnDialogDeactivation(DLG_A)
        One OnDialogAdded(DLG_B)
        Two OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
    )");
    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    Manager().Back(true);
    EXPECT_EQ("Two OnAfterDialogDeletion(DLG_B, DLG_A)", TakeHooks().back());
}

TEST_F(CObservedDialogManagerTest, ListenerThrows_InCreateDialogImpl_IsCaughtByCreateDialog)
{
    One().RunOnce(HOOK_CREATE_DIALOG_IMPL, [](CGUIObject*) { throw std::bad_alloc(); });

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_C, ODA_NOTHING));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 3.\n
        One CreateDialogImpl(DLG_C, true, true)
        ERROR: CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.\n @Source/Core/GUIDialogManager.cpp:#
        ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 3 failed!\nThe current dialog stays active.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CObservedDialogManagerTest, ListenerThrows_AfterChangingTheListeners_TheNextCallReachesAllOfThem)
{
    One().RunOnce(HOOK_ON_DIALOG_ADDED,
                  [this](CGUIObject*)
                  {
                      Manager().AddListener(Three());
                      Manager().RemoveListener(Two());
                      throw std::bad_alloc();
                  });
    EXPECT_THROW(Manager().CreateDialog(DLG_A, ODA_NOTHING), std::bad_alloc);
    ClearEvents();

    Manager().CreateDialog(DLG_B, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogDeactivation(DLG_A)
        Three OnDialogDeactivation(DLG_A)
        One OnDialogAdded(DLG_B)
        Three OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
        Three OnDialogActivation(DLG_B)
    )");
}

TEST_F(CObservedDialogManagerTest, NoMemoryToFollowTheObject_BadAllocBeforeAnyListenerHears)
{
    Go(DLG_A, ODA_NOTHING);
    eC_UInt uiThrown = 0;
    eC_Bool bIsDone = false;
    for (std::size_t uiGranted = 0; !bIsDone; ++uiGranted)
    {
        GetHeapUse(); // releases the spare blocks
        const CAllocationFailure kFailure(uiGranted);
        try
        {
            bIsDone = Manager().CreateDialog(DLG_B, ODA_DELETE) != nullptr;
        }
        catch (const std::bad_alloc&)
        {
            ++uiThrown;
        }
    }
    EXPECT_LT(0U, uiThrown);
    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
}

// --- Adding and removing -----------------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, AddListener_OneThatListensAlready_ChangesNothing)
{
    CGUIObservedDialogManager kOther;

    EXPECT_FALSE(Manager().AddListener(One()));
    EXPECT_FALSE(kOther.AddListener(One()));
    EXPECT_FALSE(kOther.RemoveListener(One()));

    EXPECT_EQ(&Manager(), One().GetManager());
    Manager().CreateDialog(DLG_A, ODA_NOTHING);
    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        Two OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, RemoveListener_HearsNothingMore)
{
    EXPECT_TRUE(Manager().RemoveListener(One()));
    EXPECT_FALSE(Manager().RemoveListener(One()));

    EXPECT_EQ(nullptr, One().GetManager());
    Manager().CreateDialog(DLG_A, ODA_NOTHING);
    EXPECT_HOOKS(R"(
        Two OnDialogAdded(DLG_A)
        Two OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, RemoveListener_AndAddAgain_ComesLast)
{
    Manager().RemoveListener(One());
    Manager().AddListener(One());

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        Two OnDialogAdded(DLG_A)
        One OnDialogAdded(DLG_A)
        Two OnDialogActivation(DLG_A)
        One OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, ListenerIsDestroyed_StopsListening)
{
    m_pkOne.reset();

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        Two OnDialogAdded(DLG_A)
        Two OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, ManagerIsDestroyed_ListenersAreFreeForAnotherOne)
{
    auto pkOther = std::make_unique<CGUIObservedDialogManager>();
    pkOther->AddListener(Three());

    pkOther.reset();

    EXPECT_EQ(nullptr, Three().GetManager());
    EXPECT_TRUE(Manager().AddListener(Three()));
}

// --- Inside a hook -----------------------------------------------------------------------------------

TEST_F(CObservedDialogManagerTest, InsideAHook_ListenerAdded_HearsTheNextCall)
{
    Two().RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*) { Manager().AddListener(Three()); });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        Two OnDialogActivation(DLG_A)
        Three OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_TwoListenersAdded_BothHearTheNextCall)
{
    CRecordingListener kFour(Events(), "Four");
    One().RunOnce(HOOK_ON_DIALOG_ACTIVATION,
                  [&](CGUIObject*)
                  {
                      Manager().AddListener(Three());
                      Manager().AddListener(kFour);
                  });
    Manager().CreateDialog(DLG_A, ODA_NOTHING);
    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        Two OnDialogActivation(DLG_A)
    )");

    Manager().CreateDialog(DLG_B, ODA_NOTHING);
    EXPECT_HOOKS(R"(
        One OnDialogDeactivation(DLG_A)
        Two OnDialogDeactivation(DLG_A)
        Three OnDialogDeactivation(DLG_A)
        Four OnDialogDeactivation(DLG_A)
        One OnDialogAdded(DLG_B)
        Two OnDialogAdded(DLG_B)
        Three OnDialogAdded(DLG_B)
        Four OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
        Two OnDialogActivation(DLG_B)
        Three OnDialogActivation(DLG_B)
        Four OnDialogActivation(DLG_B)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_ListenerRemovesItself_TheOthersHear)
{
    One().RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*) { Manager().RemoveListener(One()); });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        Two OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_ListenerDestroysItself_TheOthersHear)
{
    One().RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*) { m_pkOne.reset(); });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        Two OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_NextListenerIsDestroyed_HearsNothing)
{
    Manager().AddListener(Three());
    One().RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*) { m_pkTwo.reset(); });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Three OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        Three OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_AllListenersAreDestroyed_NobodyHearsAnyMore)
{
    One().RunOnce(HOOK_ON_DIALOG_ADDED,
                  [this](CGUIObject*)
                  {
                      m_pkTwo.reset();
                      m_pkOne.reset();
                  });

    ExpectIsObject(DLG_A, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_ListenerRemovesItselfAndComesBack_HearsTheNextCall)
{
    One().RunOnce(HOOK_ON_DIALOG_ADDED,
                  [this](CGUIObject*)
                  {
                      Manager().RemoveListener(One());
                      Manager().AddListener(One());
                  });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        Two OnDialogActivation(DLG_A)
        One OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_ListenerAddedAndRemovedAndAnotherAdded_NeitherHearsThisCall)
{
    CRecordingListener kFour(Events(), "Four");
    Two().RunOnce(HOOK_ON_DIALOG_ADDED,
                  [&](CGUIObject*)
                  {
                      Manager().AddListener(Three());
                      Manager().RemoveListener(Three());
                      Manager().AddListener(kFour);
                  });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        Two OnDialogActivation(DLG_A)
        Four OnDialogActivation(DLG_A)
    )");
}

TEST_F(CObservedDialogManagerTest, InsideAHook_AnotherSwitch_EveryListenerHearsItInsideAndTheOuterOneGoesOn)
{
    One().RunOnce(HOOK_ON_DIALOG_ACTIVATION,
                  [this](CGUIObject*)
                  {
                      Two().RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { m_pkTwo.reset(); });
                      Manager().AddListener(Three());
                      Manager().CreateDialog(DLG_B, ODA_INVISIBLE);
                  });

    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        One OnDialogAdded(DLG_A)
        Two OnDialogAdded(DLG_A)
        One OnDialogActivation(DLG_A)
        One OnDialogDeactivation(DLG_A)
        Two OnDialogDeactivation(DLG_A)
        Three OnDialogDeactivation(DLG_A)
        One OnDialogAdded(DLG_B)
        Three OnDialogAdded(DLG_B)
        One OnDialogActivation(DLG_B)
        Three OnDialogActivation(DLG_B)
    )");
    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
}

// --- Deriving ----------------------------------------------------------------------------------------

/** Overrides hooks just as for a CGUIDialogManager. */
class CDerivedManager : public CGUIObservedDialogManager
{
public:
    explicit CDerivedManager(CEventLog& kEvents) : m_kEvents(kEvents) {}

protected:
    void OnDialogAdded(CGUIObject* pDialog) override
    {
        m_kEvents.Add(EVENT_HOOK, "before the listeners");
        CGUIObservedDialogManager::OnDialogAdded(pDialog);
        m_kEvents.Add(EVENT_HOOK, "after the listeners");
    }

    void OnDialogActivation(CGUIObject* pDialog) override
    {
        m_kEvents.Add(EVENT_HOOK, "in place of the listeners: " + NameOfObject(pDialog));
    }

private:
    CEventLog& m_kEvents;
};

TEST_F(CObservedDialogManagerTest, DerivedManager_OverridesHooksAndDecidesWhatListenersHear)
{
    CDerivedManager kManager(Events());
    kManager.AddListener(Three());
    Attach("DLG_C");

    kManager.CreateDialog(DLG_C, ODA_NOTHING);

    EXPECT_HOOKS(R"(
        before the listeners
        Three OnDialogAdded(DLG_C)
        after the listeners
        in place of the listeners: DLG_C
    )");
}

// --- Cost --------------------------------------------------------------------------------------------

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CObservedDialogManagerTest, SteadyState_SwitchingAndBackWithListeners_AllocatesNothing)
{
    CGUIDialogListener kSilent;
    CGUIObservedDialogManager kManager;
    kManager.AddListener(kSilent);
    Attach("DLG_C");
    Attach("DLG_D");
    CGUITrace::GetInstance().SetSink(nullptr);
    kManager.CreateDialog(DLG_C, ODA_NOTHING);
    kManager.CreateDialog(DLG_D, ODA_INVISIBLE);
    kManager.Back(false);

    const CAllocationCounter kAllocations;
    kManager.CreateDialog(DLG_D, ODA_INVISIBLE);
    kManager.Back(false);
    EXPECT_EQ(0U, kAllocations.GetNumber());
}
#endif
} // namespace
