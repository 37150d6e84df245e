// SPDX-License-Identifier: MIT
// The code of Docs/Companions.md, and tests of what that page says.

#include "Companions/GUIDialogArguments.h"
#include "Companions/GUIDialogBudget.h"
#include "Companions/GUIDialogListener.h"
#include "Companions/GUIGuard.h"
#include "Companions/GUIIdleHome.h"
#include "Companions/GUIObservedDialogManager.h"
#include "Companions/GUIPopupPolicy.h"
#include "Companions/GUIPostQueue.h"
#include "Companions/GUIRestore.h"
#include "Companions/GUIWatch.h"
#include "Inspection/GUIInspector.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <optional>

namespace
{
/** The trees DLG_A and DLG_B, for managers that the tests create themselves. */
class CDocumentedCompanionsTest : public CCompanionTest
{
protected:
    CDocumentedCompanionsTest()
    {
        Attach("DLG_A");
        Attach("DLG_B")->SetInvisible(true);
    }
};

/** Counts how often a dialog was shown. */
class CVisits : public CGUIDialogListener
{
public:
    eC_UInt m_uiVisits = 0;

protected:
    void OnDialogActivation(CGUIObject* pDialog) override
    {
        m_uiVisits += pDialog->GetID() == DLG_A ? 1U : 0U;
    }
};

TEST_F(CDocumentedCompanionsTest, Listener_HearsItsHook)
{
    CGUIObservedDialogManager kManager;
    CVisits kVisits;
    kManager.AddListener(kVisits);

    kManager.CreateDialog(DLG_A, ODA_NOTHING);
    kManager.CreateDialog(DLG_B, ODA_INVISIBLE);
    kManager.Back(false);

    EXPECT_EQ(2U, kVisits.m_uiVisits);
}

/** Does its own part before the listeners hear of a new dialog. */
class CApplicationManager : public CGUIObservedDialogManager
{
public:
    eC_UInt m_uiAdded = 0;

protected:
    void OnDialogAdded(CGUIObject* pDialog) override
    {
        ++m_uiAdded;
        CGUIObservedDialogManager::OnDialogAdded(pDialog);
    }
};

TEST_F(CDocumentedCompanionsTest, DerivedManager_AndItsListenersHear)
{
    CApplicationManager kManager;
    CVisits kVisits;
    kManager.AddListener(kVisits);

    kManager.CreateDialog(DLG_A, ODA_NOTHING);

    EXPECT_EQ(1U, kManager.m_uiAdded);
    EXPECT_EQ(1U, kVisits.m_uiVisits);
}

// --- Post queue --------------------------------------------------------------------------------------

CGUIPostQueueOf<16> g_kPosts; // a power of two

void TankIsEmpty(CGUIDialogManager& kManager)
{
    if (!g_kPosts.SendShowPopup(kManager, POP_1))
    {
        // All places are taken: the main loop is late. g_kPosts.GetNOFRefused() counts this.
    }
}

void TurnMainLoop()
{
    g_kPosts.Process(8);
    GETTIMER.ProcessCallbacks();
}

TEST_F(CDocumentedCompanionsTest, PostQueue_MainLoopDoesWhatWasSent)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH);
    eC_Int iLevel = 0;

    TankIsEmpty(Manager());
    g_kPosts.Send([](void* pLevel, eC_Int iMillilitres, eC_Int)
                  { *static_cast<eC_Int*>(pLevel) = iMillilitres; },
                  &iLevel, 750);
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    TurnMainLoop();

    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_EQ(750, iLevel);
}

// --- Arguments and results ---------------------------------------------------------------------------

/** What a dialog needs to know about the drink that it is about. */
struct Drink_t
{
    eC_Int m_iKind;
    eC_Bool m_bLarge;
};

CGUIDialogArgumentsOf<8, sizeof(Drink_t)>* g_pkArguments; // eight values at the same time

/** A dialog that changes a drink, and its predecessor, which orders it. */
class CDrinkDialogs : public CGUIDialogListener
{
public:
    eC_Int m_iOrdered = 0;

protected:
    void OnDialogActivation(CGUIObject* pDialog) override
    {
        if (pDialog->GetID() == DLG_A)
        {
            const std::optional<Drink_t> kOrdered = g_pkArguments->TakeResult<Drink_t>();
            m_iOrdered = kOrdered.has_value() ? kOrdered->m_iKind : m_iOrdered;
        }
    }
};

void PressOrder(CGUIDialogManager& kManager)
{
    if (const Drink_t* const pkDrink = g_pkArguments->GetArgument<Drink_t>())
    {
        g_pkArguments->SetResult(*pkDrink);
        kManager.Back(true);
    }
}

TEST_F(CDocumentedCompanionsTest, Arguments_AreReadAndTheResultIsTaken)
{
    CGUIDialogArgumentsOf<8, sizeof(Drink_t)> kArguments(Manager());
    g_pkArguments = &kArguments;
    CDrinkDialogs kDialogs;
    Manager().AddListener(kDialogs);
    Manager().CreateDialog(DLG_A, ODA_NOTHING);

    g_pkArguments->CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE, Drink_t{3, true});
    PressOrder(Manager());

    EXPECT_EQ(3, kDialogs.m_iOrdered);
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

// --- Budget ------------------------------------------------------------------------------------------

TEST_F(CDocumentedCompanionsTest, Budget_CountsObjectsOrWhatAFunctionReturns)
{
    DefineEmptyDialogs(DLG_C);
    CGUIObservedDialogManager& kManager = Manager();

    CGUIDialogBudget kBudget(kManager, 200); // at most 200 hidden objects
    CGUIDialogBudget kBytes(kManager, 20000,
                            [](const CGUIObject& kDialog)
                            { return CGUIDialogBudget::CountObjects(kDialog) * 120; });
    kManager.CreateDialog(DLG_A, ODA_NOTHING);
    kManager.CreateDialog(DLG_C, ODA_INVISIBLE);

    EXPECT_EQ(1U, kBudget.GetUse());
    EXPECT_EQ(120U, kBytes.GetUse());
}

// --- Idle to home ------------------------------------------------------------------------------------

eC_UInt g_uiPresses = 0;

void Press(CGUIObject& kFocussed)
{
    g_uiPresses += kFocussed.GetID() == OBJ_1 ? 1U : 0U;
}

void OnKey(CGUIIdleHome& kIdle, CGUIObject& kFocussed)
{
    if (!kIdle.NoteInput())
    {
        Press(kFocussed);
    }
}

TEST_F(CDocumentedCompanionsTest, IdleHome_WarnsAndGoesHome)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH);
    CGUIObservedDialogManager& kManager = Manager();
    const ObjectHandle_t aeHoldOffs[] = {DLG_C, POP_2};
    kManager.CreateDialog(DLG_A, ODA_NOTHING);
    kManager.CreateDialog(DLG_B, ODA_INVISIBLE);
    CGUIObject kButton(nullptr, OBJ_1);

    CGUIIdleHome kIdle(kManager, DLG_A, CGUIDialogManager::ODA_DELETE, 60000); // home after a minute
    kIdle.SetWarning(POP_1, 10000);                                            // the last ten seconds
    kIdle.SetHoldOffs(aeHoldOffs, 2);
    kIdle.Start();

    Clock().Advance(55000);
    EXPECT_TRUE(kManager.IsPopupDisplayed(POP_1));
    OnKey(kIdle, kButton);
    EXPECT_EQ(0U, g_uiPresses);
    OnKey(kIdle, kButton);
    EXPECT_EQ(1U, g_uiPresses);
    EXPECT_EQ(DLG_B, kManager.GetCurrentDialogID());
    Clock().Advance(60000);
    EXPECT_EQ(DLG_A, kManager.GetCurrentDialogID());
}

// --- Popup policy ------------------------------------------------------------------------------------

TEST_F(CDocumentedCompanionsTest, PopupPolicy_OneAtATimeOfAPriority)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM);
    DefinePopup(POP_2, CGUIDialogManager::PRIO_MEDIUM);
    CGUIObservedDialogManager& kManager = Manager();

    CGUIPopupPolicyOf<8> kPolicy(kManager); // at most eight popups
    kPolicy.SetLeastTime(2000);
    kPolicy.SetFullRule(CGUIPopupPolicy::FULL_LOWEST_GOES);
    kPolicy.Show(POP_1);
    kPolicy.Show(POP_2); // of the same priority: it waits until the first one is closed

    EXPECT_FALSE(kManager.IsPopupInPopupList(POP_2));
    kPolicy.Close(POP_1);
    EXPECT_TRUE(kManager.IsPopupDisplayed(POP_1));
    Clock().Advance(2000);
    EXPECT_TRUE(kManager.IsPopupDisplayed(POP_2));
}

// --- Guard -------------------------------------------------------------------------------------------

constexpr eC_UInt cuiRightCode = 1234;

void OnCodeEntered(CGUIGuard& kGuard, eC_UInt uiCode)
{
    if (uiCode == cuiRightCode)
    {
        kGuard.Grant(); // goes on to the dialog
    }
    else
    {
        kGuard.Refuse(); // goes back
    }
}

void DrawPicture(CGUIGuard& kGuard)
{
    kGuard.Settle();
    // draw what is visible
}

TEST_F(CDocumentedCompanionsTest, Guard_AsksAndGoesOn)
{
    DefineEmptyDialogs(DLG_C, DLG_D);
    CGUIObservedDialogManager& kManager = Manager();
    kManager.CreateDialog(DLG_A, ODA_NOTHING);

    static const ObjectHandle_t aeServiceDialogs[] = {DLG_C, DLG_D};
    CGUIGuard kGuard(kManager, DLG_B, aeServiceDialogs, 2); // DLG_B asks for the code
    kGuard.SetEnd(CGUIGuard::END_WITH_GROUP);               // asks again after leaving the service dialogs,
    kGuard.SetTime(600000);                                 // and after ten minutes

    kGuard.Show(DLG_C, CGUIDialogManager::ODA_DELETE); // instead of kManager.CreateDialog

    EXPECT_EQ(DLG_B, kManager.GetCurrentDialogID());
    OnCodeEntered(kGuard, 1);
    EXPECT_EQ(DLG_A, kManager.GetCurrentDialogID());
    kGuard.Show(DLG_C, CGUIDialogManager::ODA_DELETE);
    OnCodeEntered(kGuard, cuiRightCode);
    EXPECT_EQ(DLG_C, kManager.GetCurrentDialogID());
    kManager.CreateDialog(DLG_A, ODA_INVISIBLE);
    kManager.Back(true);
    EXPECT_TRUE(Object(DLG_C)->IsInvisible());
    DrawPicture(kGuard);
    EXPECT_TRUE(kGuard.IsAsking());
}

// --- Watch -------------------------------------------------------------------------------------------

/** An application's manager, one of whose hooks takes its time. */
class CSlowManager : public CGUIDialogManager
{
protected:
    void OnDialogActivation(CGUIObject* pDialog) override
    {
        const CGUITimer::Clock_t pfnLater = []() -> eC_UInt { return 80; };
        if (pDialog->GetID() == DLG_B)
        {
            GETTIMER.SetClock(pfnLater);
        }
    }
};

CGUIWatchOf<16> g_kWatch; // keeps the 16 pairs of hook and dialog that took longest

void OnSlowHook(void* pCount, CGUIWatch::EHook eHook, ObjectHandle_t eID, eC_UInt uiTime)
{
    // OnDialogActivation of DLG_B took 80 ms
    *static_cast<eC_UInt*>(pCount) += eHook == CGUIWatch::ON_DIALOG_ACTIVATION && eID == DLG_B ? uiTime : 0U;
}

eC_Bool GetHookTime(eC_UInt uiPosition, HookTime_t& kTimeOUT)
{
    CGUIWatch::Figures_t kFigures;
    if (!g_kWatch.GetFigures(uiPosition, kFigures))
    {
        return false;
    }
    kTimeOUT = {CGUIWatch::GetHookName(kFigures.m_eHook), kFigures.m_eID, kFigures.m_uiCalls,
                kFigures.m_uiLongest, kFigures.m_uiTotal};
    return true;
}

TEST_F(CDocumentedCompanionsTest, Watch_ReportsAHookThatTakesTooLong)
{
    eC_UInt uiCount = 0;
    CGUIWatchedManager<CSlowManager> kManager; // as CSlowManager kManager;
    kManager.SetWatch(&g_kWatch);
    g_kWatch.SetLimit(50, &OnSlowHook, &uiCount); // milliseconds, unless SetClock sets another clock

    kManager.CreateDialog(DLG_A, ODA_NOTHING);
    kManager.CreateDialog(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ(80U, uiCount);
    CGUIInspector kInspector(kManager);
    kInspector.SetHookTimes(&GetHookTime);
    eC_UInt uiTimes = 0;
    HookTime_t kTime;
    while (GetHookTime(uiTimes, kTime) && kTime.m_uiLongest != 80)
    {
        ++uiTimes;
    }
    EXPECT_STREQ("OnDialogActivation", kTime.m_pcHook);
    EXPECT_EQ(DLG_B, kTime.m_eID);
    g_kWatch.Clear();
}

// --- Restore -----------------------------------------------------------------------------------------

unsigned char g_aauiFlash[2][64]; // instead of two sectors of flash

/** Keeps the blocks in flash. */
class CFlash : public CGUIRestoreStorage
{
public:
    eC_Bool WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize) override
    {
        std::copy_n(puiBytes, uiSize, g_aauiFlash[uiSlot]);
        return true;
    }

    eC_UInt ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize) override
    {
        std::copy_n(g_aauiFlash[uiSlot], uiSize, puiBytes);
        return uiSize;
    }
};

/** What restoring and saving share. */
using Restore_t = CGUIRestoreOf<3, 1>; // at most three dialogs and one popup
static_assert(Restore_t::cuiSize <= sizeof(g_aauiFlash[0]), "a block fits into a sector");

TEST_F(CDocumentedCompanionsTest, Restore_ShowsWhatWasShown)
{
    static const ObjectHandle_t aePopups[] = {POP_1};
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH);
    CFlash kFlash;
    {
        CGUIObservedDialogManager kManager;
        constexpr eC_UInt cuiApplication = 0x1A2B3C4D; // any number that others do not have
        constexpr eC_UInt cuiContents = 7;             // changed with the dialogs and identifiers
        Restore_t kRestore(kManager, kFlash, DLG_A, cuiApplication, cuiContents);
        kRestore.SetPopups(aePopups, 1);
        kRestore.Restore();   // instead of showing DLG_A
        kRestore.Start(2000); // saves two seconds after a change

        kManager.CreateDialog(DLG_B, ODA_INVISIBLE);
        Clock().Advance(2000);
    }
    CGUIObservedDialogManager& kManager = Manager();
    Restore_t kRestore(kManager, kFlash, DLG_A, 0x1A2B3C4D, 7);
    EXPECT_TRUE(kRestore.Restore());
    EXPECT_EQ(DLG_B, kManager.GetCurrentDialogID());
    EXPECT_EQ(DLG_A, kManager.GetLastDialogID());
}
} // namespace
