// SPDX-License-Identifier: MIT
/** @file
 *  A million random operations on one manager. After each one, its state is compared with the expected one,
 *  and the memory in use with what an equal state used before.
 *
 *  Arguments: the number of operations and the seed; both are optional.
 */

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Scenario/Names.h"
#include "Scenario/SteppedClock.h"
#include "TestSupport/StructureChecker.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Endurance/Expectation.h"

#include <array>
#include <cstdio>
#include <random>

namespace
{
using Manager = CGUIDialogManager;

constexpr eC_UInt cuiDialogs = 10;
constexpr eC_UInt cuiMostInHistory = 6;
constexpr eC_UInt cuiPopups = 6;
constexpr eC_Int ciFirstDialog = 1001;
constexpr eC_Int ciFirstPopup = 2001;
constexpr eC_Int ciFirstButton = 3001;

const std::array<ExpectedDefinition_t, cuiPopups> cakPopups = {{{Manager::PRIO_LOW, 2000, true},
                                                                {Manager::PRIO_LOW, 0, false},
                                                                {Manager::PRIO_MEDIUM, 7000, false},
                                                                {Manager::PRIO_MEDIUM, 1500, true},
                                                                {Manager::PRIO_HIGHEST, 90000, true},
                                                                {Manager::PRIO_HIGHEST, 400, false}}};

ObjectHandle_t GetDialogID(eC_UInt uiDialog)
{
    return static_cast<ObjectHandle_t>(ciFirstDialog + static_cast<eC_Int>(uiDialog));
}

ObjectHandle_t GetPopupID(eC_UInt uiPopup)
{
    return static_cast<ObjectHandle_t>(ciFirstPopup + static_cast<eC_Int>(uiPopup));
}

/** Loads an object with a button for every path. */
class CReader : public CGUIDialogReader
{
public:
    CGUIObject* Read(const eC_String&) override
    {
        auto* pkObject = new CGUICompositeObject;
        auto* pkButton = new CGUIObject(pkObject, static_cast<ObjectHandle_t>(ciFirstButton));
        pkButton->SetFocusable(true);
        return pkObject;
    }
};

/** The memory that a state uses. */
struct HeapOfState_t
{
    std::uint64_t m_uiHash = 0;
    HeapUse_t m_kUse;
};

/** The memory in use by state. It keeps one state for each remainder of the hash. */
class CHeapByState
{
public:
    /** @return false if this state used less or more memory before */
    bool Compare(std::uint64_t uiHash, const HeapUse_t& kUse)
    {
        HeapOfState_t& kEntry = s_akEntries[uiHash % cuiEntries];
        if (kEntry.m_uiHash != uiHash)
        {
            kEntry = {uiHash, kUse};
            return true;
        }
        ++m_uiCompared;
        return kEntry.m_kUse.m_uiBlocks == kUse.m_uiBlocks && kEntry.m_kUse.m_uiBytes == kUse.m_uiBytes;
    }

    eC_UInt GetCompared() const { return m_uiCompared; }

private:
    static constexpr std::size_t cuiEntries = 1U << 18U;
    static inline std::array<HeapOfState_t, cuiEntries> s_akEntries; ///< static: not part of what is measured

    eC_UInt m_uiCompared = 0;
};

/** One manager with its framework, the expected state, and a record of what happened to it. */
class CLife
{
public:
    explicit CLife(eC_UInt uiSeed)
        : m_kRandom(uiSeed),
          m_kClock(cuiFirstTime),
          m_kExpected(cuiDialogs, {cakPopups.begin(), cakPopups.end()}, cuiFirstTime)
    {
        CGUITrace::GetInstance().SetSink(nullptr);
        CGUIFactoryManager::CreateInstance().RegisterReaderForPathPrefix("", &m_kReader);
        for (eC_UInt uiDialog = 0; uiDialog < cuiDialogs; ++uiDialog)
        {
            m_kManager.RegisterDialogDefinition("dialog", GetDialogID(uiDialog));
        }
        for (eC_UInt uiPopup = 0; uiPopup < cuiPopups; ++uiPopup)
        {
            const ExpectedDefinition_t& kPopup = cakPopups[uiPopup];
            m_kManager.RegisterPopupDefinition(GetPopupID(uiPopup), kPopup.m_ePriority,
                                               kPopup.m_uiDisplayTime, kPopup.m_bDeleteOnClose, "popup");
        }
        UseEverythingOnce();
        MeasureDynamicIdentifiers();
    }

    CLife(const CLife&) = delete;
    CLife& operator=(const CLife&) = delete;
    ~CLife() { CGUIFactoryManager::DestroyInstance(); }

    /** Performs one random operation. @return what is not as expected, or the empty string */
    std::string Live()
    {
        const char* pcOperation = Operate();
        ++m_uiOperations;
        std::string kFault = Compare();
        constexpr eC_UInt cuiBetweenWalks = 1000;
        if (m_uiOperations % cuiBetweenWalks == 0)
        {
            kFault += CheckStructures(m_kManager);
            StartOver();
            kFault += Compare();
        }
        return kFault.empty() ? kFault : pcOperation + ("\n" + kFault);
    }

    void Print() const
    {
        std::printf(
            "endurance: %u operations (%u switches, %u ways back, %u popups shown, %u closed by their "
            "time), %u wrap-arounds of the clock, %u of them with popups running, heap compared at "
            "%u equal states: no growth; CreateDynamicObjectID keeps %zu bytes in %zu block per "
            "call\n",
            m_uiOperations, m_uiSwitches, m_uiWaysBack, m_uiShown, m_uiTimedOut, m_uiWraps,
            m_uiWrapsWithPopups, m_kHeap.GetCompared(), m_kPerIdentifier.m_uiBytes,
            m_kPerIdentifier.m_uiBlocks);
    }

private:
    static constexpr eC_UInt cuiFirstTime = 0xFFFF0000U;

    eC_UInt Random(eC_UInt uiNumber) { return static_cast<eC_UInt>(m_kRandom() % uiNumber); }
    bool RandomFlag() { return Random(2) == 1; }

    /** Some memory grows once and then stays (registers of iterators, the index). This makes it grow before
     *  anything is measured.
     */
    void UseEverythingOnce()
    {
        for (eC_UInt uiDialog = 0; uiDialog < cuiDialogs; ++uiDialog)
        {
            // Only a dialog that was left shown makes the manager walk the history with a safe iterator.
            m_kManager.CreateDialog(GetDialogID(uiDialog),
                                    uiDialog % 2 == 0 ? Manager::ODA_INVISIBLE_ALL : Manager::ODA_NOTHING);
        }
        for (eC_UInt uiPopup = 0; uiPopup < cuiPopups; ++uiPopup)
        {
            m_kManager.ShowPopup(GetPopupID(uiPopup));
        }
        for (eC_UInt uiPopup = 0; uiPopup < cuiPopups; ++uiPopup)
        {
            m_kManager.ClosePopup(GetPopupID(uiPopup));
        }
        m_kManager.ClearDialogHistory(0, true, true);
        m_kManager.UnregisterDialogDefinition(NO_HANDLE);
        m_kManager.UnregisterPopupDefinition(NO_HANDLE);
        DestroyChildren();
    }

    void MeasureDynamicIdentifiers()
    {
        constexpr eC_UInt cuiCalls = 1000;
        const HeapUse_t kBefore = GetUse();
        for (eC_UInt uiCall = 0; uiCall < cuiCalls; ++uiCall)
        {
            m_kManager.CreateDynamicObjectID();
        }
        const HeapUse_t kAfter = GetUse();
        m_kPerIdentifier = {(kAfter.m_uiBlocks - kBefore.m_uiBlocks) / cuiCalls,
                            (kAfter.m_uiBytes - kBefore.m_uiBytes) / cuiCalls};
    }

    HeapUse_t GetUse() const { return GetHeapUse(); }

    /** Returns to an empty state, as an application that starts over. The time may be anything. */
    void StartOver()
    {
        for (eC_UInt uiPopup = 0; uiPopup < cuiPopups; ++uiPopup)
        {
            m_kManager.ClosePopup(GetPopupID(uiPopup));
            m_kExpected.ClosePopup(uiPopup);
        }
        m_kManager.ClearDialogHistory(0, true, true);
        m_kExpected.ClearDialogHistory(0, true, true);
        DestroyChildren();
        for (eC_UInt uiDialog = 0; uiDialog < cuiDialogs; ++uiDialog)
        {
            m_kExpected.DestroyDialog(uiDialog);
        }
        for (eC_UInt uiPopup = 0; uiPopup < cuiPopups; ++uiPopup)
        {
            m_kExpected.DestroyPopup(uiPopup);
        }
        constexpr eC_UInt cuiSpan = 200000;
        const eC_UInt uiTime = 0U - Random(cuiSpan);
        m_kClock.Set(uiTime);
        m_kExpected.SetTime(uiTime);
    }

    static void DestroyChildren()
    {
        while (CGUI::GetInstance().GetFirstChild() != nullptr)
        {
            delete CGUI::GetInstance().GetFirstChild();
        }
    }

    const char* Operate()
    {
        constexpr eC_UInt cuiKinds = 100;
        const eC_UInt uiKind = Random(cuiKinds);
        if (uiKind < 30)
        {
            return Switch();
        }
        if (uiKind < 50)
        {
            return GoBack();
        }
        if (uiKind < 70)
        {
            return Show();
        }
        if (uiKind < 78)
        {
            return Close();
        }
        if (uiKind < 80)
        {
            return ChangeTime();
        }
        return uiKind < 99 ? Wait() : Identify();
    }

    const char* Switch()
    {
        const eC_UInt uiDialog = Random(cuiDialogs);
        if (m_kExpected.IsUsed(uiDialog) || m_kExpected.GetHistory().size() == cuiMostInHistory)
        {
            return GoBack();
        }
        const auto eAction = static_cast<Manager::EOldDialogAction>(Random(Manager::ODA_NOTHING + 1U));
        ++m_uiSwitches;
        const CGUIObject* pkDialog = m_kManager.CreateDialog(GetDialogID(uiDialog), eAction);
        m_kExpected.CreateDialog(uiDialog, eAction);
        m_bResultIsRight = pkDialog != nullptr && pkDialog == m_kManager.GetCurrentDialog();
        return "CreateDialog";
    }

    const char* GoBack()
    {
        const bool bDelete = RandomFlag();
        const eC_UInt uiInHistory = static_cast<eC_UInt>(m_kExpected.GetHistory().size());
        const eC_UInt uiKind = Random(8);
        ++m_uiWaysBack;
        if (uiKind == 0)
        {
            const eC_UInt uiKeep = Random(cuiMostInHistory);
            const bool bDeleteCurrent = RandomFlag();
            m_kManager.ClearDialogHistory(uiKeep, bDelete, bDeleteCurrent);
            m_kExpected.ClearDialogHistory(uiKeep, bDelete, bDeleteCurrent);
            return "ClearDialogHistory";
        }
        if (uiKind < 4 && uiInHistory > 0)
        {
            const eC_UInt uiDialog = m_kExpected.GetHistory()[Random(uiInHistory)].m_kDialog.m_uiDialog;
            // An entry that was cleared can no longer undo what its switch did to older dialogs. One of
            // them may be gone, and going back to it step by step would never end.
            const bool bStepwise =
                RandomFlag() && CExpectation(m_kExpected).BackToDialog(uiDialog, bDelete, true);
            m_bResultIsRight = m_kManager.BackToDialog(GetDialogID(uiDialog), bDelete, bStepwise);
            m_kExpected.BackToDialog(uiDialog, bDelete, bStepwise);
            return bStepwise ? "BackToDialog, stepwise" : "BackToDialog, direct";
        }
        m_kManager.Back(bDelete);
        m_kExpected.Back(bDelete);
        return "Back";
    }

    const char* Show()
    {
        const eC_UInt uiPopup = Random(cuiPopups);
        ++m_uiShown;
        const CGUIObject* pkPopup = m_kManager.ShowPopup(GetPopupID(uiPopup));
        m_kExpected.ShowPopup(uiPopup);
        m_bResultIsRight = pkPopup != nullptr && pkPopup->GetID() == GetPopupID(uiPopup);
        return "ShowPopup";
    }

    const char* Close()
    {
        const eC_UInt uiPopup = Random(cuiPopups);
        const bool bIsListed = m_kExpected.IsListed(uiPopup);
        m_bResultIsRight = m_kManager.ClosePopup(GetPopupID(uiPopup)) == bIsListed;
        m_kExpected.ClosePopup(uiPopup);
        return "ClosePopup";
    }

    const char* ChangeTime()
    {
        constexpr eC_UInt cuiLongest = 20000;
        const eC_UInt uiPopup = Random(cuiPopups);
        const eC_UInt uiTime = RandomFlag() ? Random(cuiLongest) : cakPopups[uiPopup].m_uiDisplayTime;
        m_bResultIsRight = m_kManager.UpdateRegisteredPopupDisplayTime(GetPopupID(uiPopup), uiTime);
        m_kExpected.UpdateDisplayTime(uiPopup, uiTime);
        return "UpdateRegisteredPopupDisplayTime";
    }

    const char* Wait()
    {
        constexpr eC_UInt cuiShort = 3000;
        constexpr eC_UInt cuiLong = 60000;
        const eC_UInt uiMilliseconds = Random(Random(8) == 0 ? cuiLong : cuiShort);
        const eC_UInt uiBefore = m_kExpected.GetTime();
        const std::size_t uiListed = m_kExpected.GetActivePopups().size();
        const bool bRuns = m_kExpected.GetTimeUntilNext() != CGUITimer::cuiNoCallback;
        m_kClock.Advance(uiMilliseconds);
        m_kExpected.Advance(uiMilliseconds);
        m_uiTimedOut += static_cast<eC_UInt>(uiListed - m_kExpected.GetActivePopups().size());
        if (m_kExpected.GetTime() < uiBefore)
        {
            ++m_uiWraps;
            m_uiWrapsWithPopups += bRuns ? 1U : 0U;
        }
        return "advance";
    }

    const char* Identify()
    {
        const ObjectHandle_t eID = m_kManager.CreateDynamicObjectID();
        m_bResultIsRight = static_cast<eC_UInt>(eID) == cuiNOFObjectHandles - 8;
        ++m_uiIdentifiers;
        return "CreateDynamicObjectID";
    }

    /** @return what is not as expected */
    std::string Compare()
    {
        const auto& kHistory = m_kExpected.GetHistory();
        const ObjectHandle_t eCurrentID =
            m_kExpected.HasCurrent() ? GetDialogID(m_kExpected.GetCurrent()) : NO_HANDLE;
        const ObjectHandle_t eLastID =
            kHistory.empty() ? NO_HANDLE : GetDialogID(kHistory.back().m_kDialog.m_uiDialog);
        std::string kFault;
        Expect(m_bResultIsRight, "result", kFault);
        m_bResultIsRight = true;
        Expect(m_kManager.GetCurrentDialogID() == eCurrentID, "current dialog", kFault);
        Expect(m_kManager.GetHistoryStackSize() == kHistory.size(), "history", kFault);
        Expect(m_kManager.GetLastDialogID() == eLastID, "last dialog", kFault);
        for (eC_UInt uiDialog = 0; uiDialog < cuiDialogs; ++uiDialog)
        {
            Expect(IsAsExpected(GetDialogID(uiDialog), m_kExpected.GetDialog(uiDialog)), "dialog", kFault);
        }
        for (eC_UInt uiPopup = 0; uiPopup < cuiPopups; ++uiPopup)
        {
            Expect(IsAsExpected(GetPopupID(uiPopup), m_kExpected.GetPopup(uiPopup)), "popup", kFault);
            Expect(m_kManager.IsPopupInPopupList(GetPopupID(uiPopup)) == m_kExpected.IsListed(uiPopup),
                   "list of popups", kFault);
        }
        Expect(m_kClock.GetTime() == m_kExpected.GetTime(), "time", kFault);
        Expect(GETTIMER.GetTimeUntilNextCallback() == m_kExpected.GetTimeUntilNext(), "display time", kFault);
        // Describing a fault uses memory itself.
        if (kFault.empty())
        {
            Expect(CompareHeap(), "memory in use", kFault);
        }
        return kFault;
    }

    bool CompareHeap()
    {
        HeapUse_t kUse = GetUse();
        kUse.m_uiBlocks -= m_uiIdentifiers * m_kPerIdentifier.m_uiBlocks;
        kUse.m_uiBytes -= m_uiIdentifiers * m_kPerIdentifier.m_uiBytes;
        return m_kHeap.Compare(m_kExpected.GetHash(), kUse);
    }

    static void Expect(bool bHolds, const char* pcWhat, std::string& kFault)
    {
        if (!bHolds)
        {
            kFault += std::string("not as expected: ") + pcWhat + "\n";
        }
    }

    static bool IsAsExpected(ObjectHandle_t eID, const ExpectedObject_t& kExpected)
    {
        const CGUIObject* pkObject = CGUI::GetInstance().GetObjectByID(eID, false);
        return (pkObject != nullptr) == kExpected.m_bLives &&
               (pkObject == nullptr || pkObject->IsInvisible() == kExpected.m_bIsInvisible);
    }

    std::mt19937 m_kRandom;
    CSteppedClock m_kClock;
    CReader m_kReader;
    CGUI m_kRoot;
    Manager m_kManager;
    CExpectation m_kExpected;
    CHeapByState m_kHeap;
    HeapUse_t m_kPerIdentifier;
    std::size_t m_uiIdentifiers = 0;
    bool m_bResultIsRight = true;
    eC_UInt m_uiOperations = 0;
    eC_UInt m_uiSwitches = 0;
    eC_UInt m_uiWaysBack = 0;
    eC_UInt m_uiShown = 0;
    eC_UInt m_uiTimedOut = 0;
    eC_UInt m_uiWraps = 0;
    eC_UInt m_uiWrapsWithPopups = 0;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    constexpr eC_UInt cuiGreatest = 0xFFFFFFFFU;
    eC_UInt uiOperations = 1000000;
    eC_UInt uiSeed = 1;
    if (iArguments > 3 || (iArguments > 1 && !ParseNumber(ppcArguments[1], cuiGreatest, uiOperations)) ||
        (iArguments > 2 && !ParseNumber(ppcArguments[2], cuiGreatest, uiSeed)))
    {
        std::printf("usage: EnduranceTests [operations [seed]]\n");
        return 2;
    }
    CLife kLife(uiSeed);
    for (eC_UInt uiOperation = 1; uiOperation <= uiOperations; ++uiOperation)
    {
        const std::string kFault = kLife.Live();
        if (!kFault.empty())
        {
            std::printf("operation %u: %sThis repeats it: EnduranceTests %u %u\n", uiOperation,
                        kFault.c_str(), uiOperation, uiSeed);
            return 1;
        }
    }
    kLife.Print();
    return 0;
}
