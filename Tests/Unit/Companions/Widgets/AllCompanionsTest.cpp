// SPDX-License-Identifier: MIT
// Random operations with all companions, with and without failures.

#include "Companions/GUIDialogArguments.h"
#include "Companions/GUIDialogBudget.h"
#include "Companions/GUIDialogStates.h"
#include "Companions/GUIGuard.h"
#include "Companions/GUIIdleHome.h"
#include "Companions/GUIObservedDialogManager.h"
#include "Companions/GUIPopupPolicy.h"
#include "Companions/GUIPostQueue.h"
#include "Companions/GUIRestore.h"
#include "Companions/GUIWatch.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "TestSupport/StructureChecker.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Widgets/GUITextField.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace
{
#if defined(__arm__)
constexpr unsigned cuiSequences = 10;
#else
constexpr unsigned cuiSequences = 150;
#endif
constexpr unsigned cuiOperations = 60;
constexpr eC_UInt cuiMostBytes = 120;
constexpr eC_UInt cuiMostPopups = 4;

const ObjectHandle_t aeDialogs[] = {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E, DLG_F};
const ObjectHandle_t aePopups[] = {POP_1, POP_2, POP_3, POP_4, POP_5};
const ObjectHandle_t aeGuarded[] = {DLG_E, DLG_F};

/** Numbers that are the same in every run with the same seed. */
class CRandom
{
public:
    explicit CRandom(unsigned uiSeed) : m_kEngine(uiSeed) {}

    /** @return 0 to uiEnd - 1 */
    unsigned Below(unsigned uiEnd) { return static_cast<unsigned>(m_kEngine() % uiEnd); }

    eC_Bool Bool() { return Below(2) == 0; }
    ObjectHandle_t Dialog() { return aeDialogs[Below(6)]; }
    ObjectHandle_t Popup() { return aePopups[Below(5)]; }
    CGUIDialogManager::EOldDialogAction Action()
    {
        return static_cast<CGUIDialogManager::EOldDialogAction>(Below(5));
    }

private:
    std::mt19937 m_kEngine;
};

/** An argument that knows for which dialog it is, and how many of it are alive. */
class CLabelled
{
public:
    CLabelled(ObjectHandle_t eID, int iNumber) : m_eID(eID), m_iNumber(iNumber) { ++ms_uiAlive; }
    CLabelled(const CLabelled& kOther) : m_eID(kOther.m_eID), m_iNumber(kOther.m_iNumber) { ++ms_uiAlive; }
    CLabelled& operator=(const CLabelled&) = delete;
    ~CLabelled() { --ms_uiAlive; }

    ObjectHandle_t m_eID;
    int m_iNumber;
    static eC_UInt ms_uiAlive;
};
eC_UInt CLabelled::ms_uiAlive = 0;

using Manager_t = CGUIWatchedManager<CGUIObservedDialogManager>;
using Arguments_t = CGUIDialogArgumentsOf<6, sizeof(CLabelled)>;

/** Builds DLG_D, DLG_E and the question DLG_G in code, each with a text field. */
class CFieldBuilder : public CGUIDialogListener
{
protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) override
    {
        if (eID != DLG_D && eID != DLG_E && eID != DLG_G)
        {
            return nullptr;
        }
        auto pkDialog = std::make_unique<CGUICompositeObject>(nullptr, eID);
        new CGUITextField(pkDialog.get(), OBJ_1);
        pkDialog->SetParent(&CGUI::GetInstance());
        return pkDialog.release();
    }
};

using Restore_t = CGUIRestoreOf<4, 2, 8>;

/** Two slots in memory. */
class CMemorySlots : public CGUIRestoreStorage
{
public:
    eC_Bool WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize) override
    {
        std::memcpy(m_auiSlots[uiSlot], puiBytes, uiSize);
        m_auiSizes[uiSlot] = uiSize;
        return true;
    }

    eC_UInt ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize) override
    {
        const eC_UInt uiRead = uiSize < m_auiSizes[uiSlot] ? uiSize : m_auiSizes[uiSlot];
        std::memcpy(puiBytes, m_auiSlots[uiSlot], uiRead);
        return uiRead;
    }

private:
    unsigned char m_auiSlots[2][Restore_t::cuiSize] = {};
    eC_UInt m_auiSizes[2] = {};
};

/** Saves the number of each argument. */
class CLabelledArguments : public CGUIRestoreArguments
{
public:
    explicit CLabelledArguments(Arguments_t& kArguments) : m_kArguments(kArguments) {}

    eC_UInt SaveArgument(ObjectHandle_t eID, eC_UInt uiLevel, unsigned char* puiBytes,
                         eC_UInt uiSize) override
    {
        const CLabelled* const pkArgument = m_kArguments.GetArgument<CLabelled>(eID, uiLevel);
        if (pkArgument != nullptr && uiSize >= sizeof(int))
        {
            std::memcpy(puiBytes, &pkArgument->m_iNumber, sizeof(int));
        }
        return pkArgument != nullptr ? sizeof(int) : 0;
    }

    CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                             const unsigned char* puiBytes, eC_UInt) override
    {
        int iNumber = 0;
        std::memcpy(&iNumber, puiBytes, sizeof(int));
        return m_kArguments.CreateDialog(eID, eAction, CLabelled(eID, iNumber));
    }

private:
    Arguments_t& m_kArguments;
};

/** Everything that there is for an application with all companions. */
class CEverything
{
public:
    explicit CEverything(CCodeFactory& kFactory)
    {
        m_kManager.SetWatch(&m_kWatch);
        m_kWatch.SetLimit(0);
        for (const ObjectHandle_t eID : {DLG_A, DLG_B, DLG_C, DLG_F})
        {
            Register(kFactory, eID, NameOfHandle(eID) + " { OBJ_2 focusable; OBJ_3 focusable }");
            m_kManager.RegisterDialogDefinition(PathOf(eID).c_str(), eID);
        }
        for (unsigned uiPopup = 0; uiPopup < 5; ++uiPopup)
        {
            const ObjectHandle_t eID = aePopups[uiPopup];
            Register(kFactory, eID, NameOfHandle(eID) + " { OBJ_4 focusable }");
            m_kManager.RegisterPopupDefinition(
                eID, static_cast<CGUIDialogManager::PopupPriority_t>(4 + uiPopup / 2),
                uiPopup == 1 ? 500U : 0U, uiPopup % 2 == 0, PathOf(eID).c_str());
        }
        m_kIdle.SetWarning(POP_5, 300);
        m_kIdle.SetHoldOffs(&aePopups[3], 1);
        m_kIdle.Start();
        m_kPolicy.SetLeastTime(50);
        m_kGuard.SetEnd(CGUIGuard::END_WITH_GROUP);
        m_kRestore.SetPopups(aePopups, 5);
        m_kRestore.SetArguments(&m_kRestoreArguments);
        m_kRestore.Start(20);
    }

    static std::string PathOf(ObjectHandle_t eID) { return CCodeFactory::cpcPrefix + NameOfHandle(eID); }

    Manager_t m_kManager;
    CGUIWatchOf<8> m_kWatch;
    CFieldBuilder m_kBuilder;
    Arguments_t m_kArguments{m_kManager};
    CGUIDialogStatesOf<cuiMostBytes> m_kStates{m_kManager, &CGUIWidget::FindState};
    CGUIDialogBudget m_kBudget{m_kManager, 4};
    CGUIGuard m_kGuard{m_kManager, DLG_G, aeGuarded, 2};
    CGUIIdleHome m_kIdle{m_kManager, DLG_A, CGUIDialogManager::ODA_DELETE, 1000};
    CGUIPopupPolicyOf<cuiMostPopups> m_kPolicy{m_kManager};
    CGUIPostQueueOf<4> m_kPosts;
    CMemorySlots m_kSlots;
    CLabelledArguments m_kRestoreArguments{m_kArguments};
    Restore_t m_kRestore{m_kManager, m_kSlots, DLG_A, 1, 1};

private:
    static void Register(CCodeFactory& kFactory, ObjectHandle_t eID, const std::string& kTree)
    {
        kFactory.RegisterTree(PathOf(eID), kTree);
    }
};

/** Calls operations at random, from outside and, if it is told to, inside hooks, where it also throws, vetoes
 *  and destroys dialogs.
 */
class CChaos : public CGUIDialogListener
{
public:
    CChaos(CEverything& kAll, CSteppedClock& kClock, unsigned uiSeed)
        : m_kAll(kAll), m_kClock(kClock), m_kRandom(uiSeed)
    {
        kAll.m_kManager.AddListener(kAll.m_kBuilder);
    }

    CRandom& Random() { return m_kRandom; }

    /** Sets whether hooks do something. */
    void SetActive(eC_Bool bIsActive) { m_bIsActive = bIsActive; }

    /** Calls an operation, from outside. What it throws is lost. */
    void Do()
    {
        try
        {
            DoOne();
        }
        catch (...)
        {
            ++m_uiExceptions;
        }
    }

    unsigned GetNOFExceptions() const { return m_uiExceptions; }
    unsigned GetNOFInside() const { return m_uiInside; }

protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t, eC_Bool&, eC_Bool&) override
    {
        Act();
        return nullptr;
    }
    void OnDialogAdded(CGUIObject*) override { Act(); }
    void OnDialogActivation(CGUIObject*) override { Act(); }
    void OnDialogDeactivation(CGUIObject*) override { Act(); }
    eC_Bool OnDialogDeletion(CGUIObject*) override
    {
        Act();
        return !m_bIsActive || m_kRandom.Below(6) != 0;
    }
    void OnAfterDialogDeletion(ObjectHandle_t, ObjectHandle_t) override { Act(); }
    void OnLastDialogDeletion() override { Act(); }
    void OnPopupActivation(CGUIObject*) override { Act(); }
    void OnPopupDeactivation(CGUIObject*) override { Act(); }

private:
    void Act()
    {
        if (!m_bIsActive || m_uiDepth > 1)
        {
            return;
        }
        struct Depth_t
        {
            unsigned& m_uiDepth;
            explicit Depth_t(unsigned& uiDepth) : m_uiDepth(uiDepth) { ++m_uiDepth; }
            Depth_t(const Depth_t&) = delete;
            Depth_t& operator=(const Depth_t&) = delete;
            ~Depth_t() { --m_uiDepth; }
        } const kDepth(m_uiDepth);
        const unsigned uiWhat = m_kRandom.Below(40);
        if (uiWhat == 0)
        {
            throw 7;
        }
        if (uiWhat == 1)
        {
            delete CGUI::GetInstance().GetObjectByID(m_kRandom.Dialog(), false);
        }
        else if (uiWhat < 6)
        {
            ++m_uiInside;
            DoOne();
        }
    }

    void DoOne()
    {
        switch (m_kRandom.Below(4))
        {
        case 0:
            DoPopups();
            break;
        case 1:
            DoOthers();
            break;
        default:
            DoDialogs();
            break;
        }
    }

    void DoDialogs()
    {
        Manager_t& kManager = m_kAll.m_kManager;
        const ObjectHandle_t eID = m_kRandom.Dialog();
        switch (m_kRandom.Below(10))
        {
        case 0:
            kManager.CreateDialog(eID, m_kRandom.Action());
            break;
        case 1:
        case 2:
        case 3:
            m_kAll.m_kArguments.CreateDialog(eID, m_kRandom.Action(), CLabelled(eID, ++m_iNumber));
            break;
        case 4:
        case 5:
            kManager.Back(m_kRandom.Bool());
            break;
        case 6:
            kManager.BackToDialog(eID, m_kRandom.Bool(), false);
            break;
        case 7:
            kManager.ClearDialogHistory(m_kRandom.Below(4), m_kRandom.Bool(), m_kRandom.Bool());
            break;
        case 8:
            AddDialog();
            break;
        default:
            m_kAll.m_kGuard.Show(eID, m_kRandom.Action());
            break;
        }
    }

    void AddDialog()
    {
        // Whatever happens, it belongs to the root.
        auto* const pkDialog = new CGUICompositeObject(&CGUI::GetInstance(), DLG_H);
        if (m_kRandom.Bool())
        {
            m_kAll.m_kArguments.AddDialog(*pkDialog, m_kRandom.Action(), true, CLabelled(DLG_H, ++m_iNumber));
        }
        else
        {
            m_kAll.m_kManager.AddDialog(pkDialog, m_kRandom.Action(), false);
        }
    }

    void DoPopups()
    {
        const ObjectHandle_t eID = m_kRandom.Popup();
        switch (m_kRandom.Below(7))
        {
        case 0:
            m_kAll.m_kManager.ShowPopup(eID);
            break;
        case 1:
            m_kAll.m_kManager.ClosePopup(eID);
            break;
        case 2:
            m_kAll.m_kPolicy.Close(eID);
            break;
        case 3:
            m_kAll.m_kPolicy.Snooze(eID, 100);
            break;
        case 4:
            m_kAll.m_kPolicy.SetFullRule(static_cast<CGUIPopupPolicy::EFullRule>(m_kRandom.Below(3)));
            break;
        default:
            m_kAll.m_kPolicy.Show(eID);
            break;
        }
    }

    void DoOthers()
    {
        switch (m_kRandom.Below(16))
        {
        case 0:
            m_kAll.m_kArguments.SetResult(CLabelled(NO_HANDLE, ++m_iNumber));
            break;
        case 1:
            m_kAll.m_kArguments.TakeResult<CLabelled>();
            break;
        case 2:
            m_kAll.m_kArguments.TakeResult<int>();
            break;
        case 3:
            m_kAll.m_kStates.Forget(m_kRandom.Dialog());
            break;
        case 4:
            m_kAll.m_kStates.SetScope(m_kRandom.Bool() ? CGUIDialogStates::STATES_OF_ALL
                                                       : CGUIDialogStates::STATES_OF_HISTORY);
            break;
        case 5:
            m_kAll.m_kBudget.SetLimit(m_kRandom.Below(12));
            break;
        case 6:
            m_kAll.m_kIdle.NoteInput();
            break;
        case 7:
            m_kAll.m_kGuard.Grant();
            break;
        case 8:
            m_kAll.m_kGuard.Revoke();
            break;
        case 9:
            m_kAll.m_kGuard.Refuse();
            break;
        case 10:
            m_kAll.m_kPosts.SendCreateDialog(m_kAll.m_kManager, m_kRandom.Dialog(), m_kRandom.Action());
            break;
        case 11:
            m_kAll.m_kPosts.SendShowPopup(m_kAll.m_kManager, m_kRandom.Popup());
            break;
        case 12:
            Type();
            break;
        case 13:
            m_kAll.m_kRestore.Save();
            break;
        case 14:
            ResetAndRestore();
            break;
        default:
            TurnMainLoop();
            break;
        }
    }

    void ResetAndRestore()
    {
        if (m_uiDepth == 0)
        {
            m_kAll.m_kManager.ClearDialogHistory(0, true, true);
            m_kAll.m_kRestore.Restore();
        }
    }

    void Type()
    {
        CGUIObject* const pkDialog = m_kAll.m_kManager.GetCurrentDialog();
        CGUIWidget* const pkField =
            pkDialog != nullptr ? CGUIWidget::Find(pkDialog->GetObjectByID(OBJ_1, false)) : nullptr;
        if (pkField != nullptr)
        {
            pkField->OnType("some text");
        }
    }

    void TurnMainLoop()
    {
        // Timers and the settling of the guard are for the main loop, not for hooks.
        if (m_uiDepth == 0)
        {
            m_kAll.m_kPosts.Process(2);
            m_kClock.Advance(m_kRandom.Below(400));
            m_kAll.m_kGuard.Settle();
        }
    }

    CEverything& m_kAll;
    CSteppedClock& m_kClock;
    CRandom m_kRandom;
    eC_Bool m_bIsActive = false;
    unsigned m_uiDepth = 0;
    unsigned m_uiExceptions = 0;
    unsigned m_uiInside = 0;
    int m_iNumber = 0;
};

class CAllCompanionsTest : public CGUITest
{
protected:
    CAllCompanionsTest() { CGUITrace::GetInstance().SetSink(&m_kNowhere); }

    /** Deletes what a sequence has left in the tree. */
    void DeleteObjects()
    {
        while (CGUIObject* const pkObject = Root().GetFirstChild())
        {
            delete pkObject;
        }
    }

    /** Expects that nothing is broken. */
    void ExpectWhole(CEverything& kAll)
    {
        EXPECT_EQ("", CheckStructures(kAll.m_kManager));
        EXPECT_EQ(CLabelled::ms_uiAlive, kAll.m_kArguments.GetNOFValues());
        const CLabelled* const pkArgument = kAll.m_kArguments.GetArgument<CLabelled>();
        EXPECT_TRUE(pkArgument == nullptr || pkArgument->m_eID == kAll.m_kManager.GetCurrentDialogID());
        EXPECT_GE(cuiMostBytes, kAll.m_kStates.GetNOFBytes());
        EXPECT_GE(cuiMostPopups, kAll.m_kPolicy.GetNOFPopups());
    }

    /** Expects that everything works after all those failures. */
    void ExpectUsable(CEverything& kAll)
    {
        Manager_t& kManager = kAll.m_kManager;
        kAll.m_kIdle.Stop();
        kAll.m_kRestore.Stop();
        kAll.m_kGuard.Grant();
        kManager.ClearDialogHistory(0, true, true);
        EXPECT_NE(nullptr, kManager.CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE));
        EXPECT_EQ(0U, kAll.m_kArguments.GetNOFValues());
        EXPECT_NE(nullptr,
                  kAll.m_kArguments.CreateDialog(DLG_D, CGUIDialogManager::ODA_DELETE, CLabelled(DLG_D, 5)));
        EXPECT_EQ(5, kAll.m_kArguments.GetArgument<CLabelled>()->m_iNumber);
        EXPECT_TRUE(kAll.m_kArguments.SetResult(CLabelled(DLG_A, 6)));
        kManager.Back(true);
        EXPECT_EQ(DLG_A, kManager.GetCurrentDialogID());
        EXPECT_EQ(6, kAll.m_kArguments.TakeResult<CLabelled>()->m_iNumber);
        for (const ObjectHandle_t ePopup : aePopups)
        {
            kAll.m_kPolicy.Close(ePopup);
            Clock().Advance(1000);
            kManager.ClosePopup(ePopup);
        }
        Clock().Advance(2000);
        EXPECT_EQ(CGUIPopupPolicy::POPUP_LISTED, kAll.m_kPolicy.Show(POP_3));
        EXPECT_TRUE(kManager.IsPopupDisplayed(POP_3));
    }

    /** Plays a sequence of operations. @param bFails with failing allocations and hooks that do anything */
    void Play(unsigned uiSeed, eC_Bool bFails)
    {
        DeleteObjects();
        CEverything kAll(CodeFactory());
        CChaos kChaos(kAll, Clock(), uiSeed);
        kAll.m_kManager.AddListener(kChaos);
        kChaos.SetActive(bFails);
        for (unsigned uiOperation = 0; uiOperation < cuiOperations && !HasFailure(); ++uiOperation)
        {
            if (bFails && kChaos.Random().Below(3) == 0)
            {
                const CAllocationFailure kFailure(kChaos.Random().Below(60),
                                                  kChaos.Random().Bool() ? CAllocationFailure::ONE
                                                                         : CAllocationFailure::ALL_FURTHER);
                kChaos.Do();
            }
            else
            {
                kChaos.Do();
            }
            ExpectWhole(kAll);
        }
        kChaos.SetActive(false);
        ExpectUsable(kAll);
        m_uiExceptions += kChaos.GetNOFExceptions();
        m_uiInside += kChaos.GetNOFInside();
    }

    unsigned m_uiExceptions = 0;
    unsigned m_uiInside = 0;

private:
    CGUITraceFunction m_kNowhere{
        [](void*, const eC_String&, const eC_String&, const eC_String&, const eC_String&) {}, nullptr};
};

TEST_F(CAllCompanionsTest, RandomOperations_WithAllOfThem_NothingBreaks)
{
    for (unsigned uiSeed = 1; uiSeed <= cuiSequences && !HasFailure(); ++uiSeed)
    {
        SCOPED_TRACE("seed " + std::to_string(uiSeed));
        Play(uiSeed, false);
    }
    EXPECT_EQ(0U, m_uiExceptions);
}

TEST_F(CAllCompanionsTest, RandomOperations_FailingAllocationsAndThrowingListeners_NothingBreaks)
{
    for (unsigned uiSeed = 1; uiSeed <= cuiSequences && !HasFailure(); ++uiSeed)
    {
        SCOPED_TRACE("seed " + std::to_string(uiSeed));
        Play(uiSeed, true);
    }
    EXPECT_LT(0U, m_uiExceptions);
    EXPECT_LT(0U, m_uiInside);
}

// --- Against a model ---------------------------------------------------------------------------------

/** A visit as a model has it. */
struct Visit_t
{
    ObjectHandle_t m_eID;
    int m_iArgument; ///< 0 for none
};

/** What the history is according to the operations, and the arguments in it. */
class CModel
{
public:
    void Switch(ObjectHandle_t eID, int iArgument)
    {
        if (m_kCurrent.m_eID != NO_HANDLE)
        {
            m_kHistory.push_back(m_kCurrent);
        }
        m_kCurrent = {eID, iArgument};
    }

    void Back()
    {
        if (m_kCurrent.m_eID != NO_HANDLE && !m_kHistory.empty())
        {
            Return();
        }
    }

    void BackTo(ObjectHandle_t eID)
    {
        for (const Visit_t& kVisit : m_kHistory)
        {
            if (kVisit.m_eID == eID)
            {
                do
                {
                    Return();
                } while (m_kCurrent.m_eID != eID);
                return;
            }
        }
    }

    void Clear(std::size_t uiKeep, eC_Bool bCurrent)
    {
        const std::size_t uiCurrent = bCurrent && m_kCurrent.m_eID != NO_HANDLE ? 1 : 0;
        if (m_kHistory.size() + uiCurrent <= uiKeep)
        {
            return;
        }
        m_kHistory.resize(m_kHistory.size() < uiKeep ? m_kHistory.size() : uiKeep);
        if (bCurrent)
        {
            Return();
        }
    }

    std::size_t GetNOFArguments() const
    {
        std::size_t uiArguments = m_kCurrent.m_iArgument != 0 ? 1 : 0;
        for (const Visit_t& kVisit : m_kHistory)
        {
            uiArguments += kVisit.m_iArgument != 0 ? 1 : 0;
        }
        return uiArguments;
    }

    Visit_t m_kCurrent = {NO_HANDLE, 0};
    std::vector<Visit_t> m_kHistory;

private:
    void Return()
    {
        m_kCurrent = {NO_HANDLE, 0};
        if (!m_kHistory.empty())
        {
            m_kCurrent = m_kHistory.back();
            m_kHistory.pop_back();
        }
    }
};

TEST_F(CAllCompanionsTest, RandomSwitches_WithABudget_ArgumentsAndHistoryAreThoseOfAModel)
{
    for (unsigned uiSeed = 1; uiSeed <= cuiSequences && !HasFailure(); ++uiSeed)
    {
        SCOPED_TRACE("seed " + std::to_string(uiSeed));
        DeleteObjects();
        CGUIObservedDialogManager kManager;
        CGUIDialogArgumentsOf<200, sizeof(int)> kArguments(kManager);
        CGUIDialogBudget kBudget(kManager, uiSeed % 8);
        CModel kModel;
        CRandom kRandom(uiSeed);
        // One action for all: an entry that is recorded as deleted deletes the dialog of another entry that
        // is recorded as hidden, so the manager cannot bring that one back.
        const CGUIDialogManager::EOldDialogAction eAction =
            uiSeed % 2 == 0 ? CGUIDialogManager::ODA_DELETE : CGUIDialogManager::ODA_INVISIBLE;
        for (const ObjectHandle_t eID : aeDialogs)
        {
            CodeFactory().RegisterTree(CEverything::PathOf(eID), NameOfHandle(eID) + " { OBJ_2 focusable }");
            kManager.RegisterDialogDefinition(CEverything::PathOf(eID).c_str(), eID);
        }
        for (int iOperation = 1; iOperation <= 100 && !HasFailure(); ++iOperation)
        {
            const ObjectHandle_t eID = kRandom.Dialog();
            switch (kRandom.Below(8))
            {
            case 0:
            case 1:
                kManager.CreateDialog(eID, eAction);
                kModel.Switch(eID, 0);
                break;
            case 2:
            case 3:
            case 4:
                kArguments.CreateDialog(eID, eAction, iOperation);
                kModel.Switch(eID, iOperation);
                break;
            case 5:
                kManager.Back(false);
                kModel.Back();
                break;
            case 6:
            {
                const eC_Bool bStepwise = kRandom.Bool() && kManager.GetCurrentDialogID() != eID;
                kManager.BackToDialog(eID, false, bStepwise);
                kModel.BackTo(eID);
                break;
            }
            default:
            {
                const eC_UInt uiKeep = kRandom.Below(6);
                const eC_Bool bCurrent = kRandom.Bool();
                kManager.ClearDialogHistory(uiKeep, false, bCurrent);
                kModel.Clear(uiKeep, bCurrent);
                break;
            }
            }
            const int* const piArgument = kArguments.GetArgument<int>();
            EXPECT_EQ(kModel.m_kCurrent.m_eID, kManager.GetCurrentDialogID());
            EXPECT_EQ(kModel.m_kCurrent.m_iArgument, piArgument != nullptr ? *piArgument : 0);
            EXPECT_EQ(kModel.m_kHistory.size(), kManager.GetHistoryStackSize());
            EXPECT_EQ(kModel.m_kCurrent.m_eID != NO_HANDLE, kManager.GetCurrentDialog() != nullptr);
            EXPECT_GE(kModel.GetNOFArguments() + 1, kArguments.GetNOFValues());
            EXPECT_LE(kModel.GetNOFArguments(), kArguments.GetNOFValues());
        }
    }
}
} // namespace
