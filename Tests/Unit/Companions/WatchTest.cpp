// SPDX-License-Identifier: MIT
#include "Companions/GUIWatch.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace
{
/** A watched manager whose listener takes as long as a test says, and a clock of its own in microseconds. */
class CWatchTest : public CCompanionTest
{
protected:
    CWatchTest()
    {
        ms_uiNow = 0xFFFFFFF0U;
        Attach("DLG_A");
        Attach("DLG_B")->SetInvisible(true);
        Attach("DLG_C")->SetInvisible(true);
        CodeFactory().RegisterTree(PathOf(POP_1), "POP_1");
        m_kManager.RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, false,
                                           PathOf(POP_1).c_str());
        m_kManager.AddListener(m_kListener);
        m_kWatch.SetClock(&GetNow);
        m_kManager.SetWatch(&m_kWatch);
        m_kManager.CreateDialog(DLG_A, ODA_NOTHING);
        m_kWatch.Clear();
        ClearEvents();
    }

    static eC_UInt GetNow() { return ms_uiNow; }

    /** Lets a hook take some time, once. */
    void TakeTime(EHook eHook, eC_UInt uiTime)
    {
        m_kListener.RunOnce(eHook, [=](CGUIObject*) { ms_uiNow += uiTime; });
    }

    static void Report(void* pReports, CGUIWatch::EHook eHook, ObjectHandle_t eID, eC_UInt uiTime)
    {
        *static_cast<std::string*>(pReports) += std::string(CGUIWatch::GetHookName(eHook)) + " " +
                                                NameOfHandle(eID) + " " + std::to_string(uiTime) + "\n";
    }

    std::string Figures() const
    {
        std::string kFigures;
        CGUIWatch::Figures_t kPlace;
        for (eC_UInt uiPosition = 0; m_kWatch.GetFigures(uiPosition, kPlace); ++uiPosition)
        {
            kFigures += std::string(CGUIWatch::GetHookName(kPlace.m_eHook)) + " " +
                        NameOfHandle(kPlace.m_eID) + ": " + std::to_string(kPlace.m_uiCalls) + " calls, " +
                        std::to_string(kPlace.m_uiLongest) + ", " + std::to_string(kPlace.m_uiTotal) + "\n";
        }
        return kFigures;
    }

    CGUIWatchOf<6> m_kWatch;
    CGUIWatchedManager<CGUIObservedDialogManager> m_kManager;
    CRecordingListener m_kListener{Events(), "Listener"};
    static eC_UInt ms_uiNow;
};

eC_UInt CWatchTest::ms_uiNow = 0;

TEST_F(CWatchTest, EachHook_IsMeasuredByDialog_AcrossTheWrapOfTheClock)
{
    TakeTime(HOOK_ON_DIALOG_DEACTIVATION, 20);
    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);
    TakeTime(HOOK_ON_DIALOG_ACTIVATION, 300);
    m_kManager.Back(false);
    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_TEXT(R"(
        OnDialogDeactivation DLG_A: 2 calls, 20, 20
        OnDialogAdded DLG_B: 2 calls, 0, 0
        OnDialogActivation DLG_B: 2 calls, 0, 0
        OnDialogDeactivation DLG_B: 1 calls, 0, 0
        OnDialogActivation DLG_A: 1 calls, 300, 300
        OnAfterDialogDeletion DLG_B: 1 calls, 0, 0
    )",
                Figures());
}

TEST_F(CWatchTest, TheOtherHooks_AreMeasured)
{
    TakeTime(HOOK_CREATE_DIALOG_IMPL, 1);
    m_kManager.CreateDialog(DLG_H, ODA_INVISIBLE);
    TakeTime(HOOK_ON_POPUP_ACTIVATION, 2);
    m_kManager.ShowPopup(POP_1);
    TakeTime(HOOK_ON_POPUP_DEACTIVATION, 3);
    m_kManager.ClosePopup(POP_1);
    m_kManager.RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_HIGH, 0, false, "");
    TakeTime(HOOK_CREATE_POPUP_IMPL, 4);
    m_kManager.ShowPopup(POP_2);

    EXPECT_TEXT(R"(
        CreateDialogImpl DLG_H: 1 calls, 1, 1
        OnPopupActivation POP_1: 1 calls, 2, 2
        OnPopupDeactivation POP_1: 1 calls, 3, 3
        CreatePopupImpl POP_2: 1 calls, 4, 4
    )",
                Figures());
}

TEST_F(CWatchTest, TheHooksOfDeletion_AreMeasured)
{
    m_kListener.m_eBuilds = DLG_D;
    m_kManager.CreateDialog(DLG_D, ODA_INVISIBLE);
    delete Object(DLG_A);
    m_kWatch.Clear();
    TakeTime(HOOK_ON_DIALOG_DELETION, 5);

    m_kManager.Back(true);

    EXPECT_TEXT(R"(
        OnDialogDeletion DLG_D: 1 calls, 5, 5
        OnLastDialogDeletion NO_HANDLE: 1 calls, 0, 0
        OnAfterDialogDeletion DLG_D: 1 calls, 0, 0
    )",
                Figures());
}

TEST_F(CWatchTest, HookThatCallsTheManager_HooksInsideCountForThemselves)
{
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                        [this](CGUIObject*)
                        {
                            ms_uiNow += 10;
                            m_kListener.RunOnce(HOOK_ON_POPUP_ACTIVATION,
                                                [](CGUIObject*) { ms_uiNow += 500; });
                            m_kManager.ShowPopup(POP_1);
                            ms_uiNow += 7;
                        });

    m_kManager.CreateDialog(DLG_B, ODA_NOTHING);

    EXPECT_TEXT(R"(
        OnDialogDeactivation DLG_A: 1 calls, 0, 0
        OnPopupActivation POP_1: 1 calls, 500, 500
        OnDialogAdded DLG_B: 1 calls, 17, 17
        OnDialogActivation DLG_B: 1 calls, 0, 0
    )",
                Figures());
}

TEST_F(CWatchTest, Limit_WhatTakesLongerIsLoggedAndReported)
{
    std::string kReports;
    m_kWatch.SetLimit(100, &Report, &kReports);
    TakeTime(HOOK_ON_DIALOG_ACTIVATION, 100);
    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);
    EXPECT_EQ("", kReports);
    ClearEvents();

    TakeTime(HOOK_ON_DIALOG_ACTIVATION, 101);
    m_kManager.Back(false);

    EXPECT_EQ("OnDialogActivation DLG_A 101\n", kReports);
    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        WARNING: CGUIWatch::Report: For object with ID 1 the hook OnDialogActivation took 101.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CWatchTest, Limit_WithoutACallback_IsLogged)
{
    m_kWatch.SetLimit(0);
    TakeTime(HOOK_ON_DIALOG_ADDED, 1);

    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 2 is already contained in the GUI.\n
        WARNING: CGUIWatch::Report: For object with ID 2 the hook OnDialogAdded took 1.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CWatchTest, CallbackThrows_TheOperationGoesOn)
{
    m_kWatch.SetLimit(0, [](void*, CGUIWatch::EHook, ObjectHandle_t, eC_UInt) { throw 7; });
    TakeTime(HOOK_ON_DIALOG_ADDED, 1);

    EXPECT_NE(nullptr, m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE));
}

TEST_F(CWatchTest, HookThrows_IsMeasuredAndPasses)
{
    std::string kReports;
    m_kWatch.SetLimit(5, &Report, &kReports);
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                        [](CGUIObject*)
                        {
                            ms_uiNow += 6;
                            throw std::bad_alloc();
                        });

    EXPECT_THROW(m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE), std::bad_alloc);

    EXPECT_EQ("OnDialogAdded DLG_B 6\n", kReports);
}

TEST_F(CWatchTest, HookDestroysItsDialog_IsMeasured)
{
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                        [](CGUIObject* pkDialog)
                        {
                            ms_uiNow += 6;
                            delete pkDialog;
                        });

    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_TEXT(R"(
        OnDialogDeactivation DLG_A: 1 calls, 0, 0
        OnDialogAdded DLG_B: 1 calls, 6, 6
    )",
                Figures());
}

TEST_F(CWatchTest, NoRoom_ThePairsThatTookLongestAreKept)
{
    const ObjectHandle_t aeDialogs[] = {DLG_B, DLG_C, DLG_A};
    for (const ObjectHandle_t eDialog : aeDialogs)
    {
        m_kManager.CreateDialog(eDialog, ODA_INVISIBLE);
    }
    TakeTime(HOOK_ON_AFTER_DIALOG_DELETION, 50);
    m_kManager.Back(false);

    EXPECT_TEXT(R"(
        OnAfterDialogDeletion DLG_A: 1 calls, 50, 50
        OnDialogAdded DLG_B: 1 calls, 0, 0
        OnDialogActivation DLG_B: 1 calls, 0, 0
        OnDialogDeactivation DLG_B: 1 calls, 0, 0
        OnDialogAdded DLG_C: 1 calls, 0, 0
        OnDialogActivation DLG_C: 2 calls, 0, 0
    )",
                Figures());
}

TEST_F(CWatchTest, TotalTime_StaysAtItsGreatestValue)
{
    TakeTime(HOOK_ON_DIALOG_DEACTIVATION, 0xFFFFFF00U);
    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);
    m_kManager.Back(false);
    TakeTime(HOOK_ON_DIALOG_DEACTIVATION, 0x200U);
    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ("OnDialogDeactivation DLG_A: 2 calls, 4294967040, 4294967295",
              Figures().substr(0, Figures().find('\n')));
}

TEST_F(CWatchTest, WithoutAClock_TheTimerMeasuresInMilliseconds)
{
    m_kWatch.SetClock(nullptr);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [this](CGUIObject*) { Clock().Set(25); });

    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ("OnDialogDeactivation DLG_A: 1 calls, 25, 25", Figures().substr(0, Figures().find('\n')));
}

TEST_F(CWatchTest, WithoutAWatch_HooksRunAsBefore)
{
    m_kManager.SetWatch(nullptr);

    m_kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ("", Figures());
    EXPECT_HOOKS(R"(
        Listener OnDialogDeactivation(DLG_A)
        Listener OnDialogAdded(DLG_B)
        Listener OnDialogActivation(DLG_B)
    )");
}

TEST_F(CWatchTest, Measuring_AllocatesNothing)
{
    const CAllocationCounter kAllocations;
    for (eC_UInt uiTime = 0; uiTime < 100; ++uiTime)
    {
        const CGUIWatch::CMeasurement kOuter(&m_kWatch, CGUIWatch::ON_DIALOG_ADDED,
                                             static_cast<ObjectHandle_t>(uiTime));
        const CGUIWatch::CMeasurement kInner(&m_kWatch, CGUIWatch::ON_DIALOG_ACTIVATION, DLG_A);
        ++ms_uiNow;
    }
    EXPECT_EQ(0U, kAllocations.GetNumber());
}
} // namespace
