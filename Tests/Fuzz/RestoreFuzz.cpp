// SPDX-License-Identifier: MIT
/** @file
 *  Restores from arbitrary bytes in both slots, as they are, and with a mark, a size and a checksum that are
 *  right, so that what comes after them is read. Nothing breaks, some dialog is current afterwards, and what
 *  is saved then is restored to the same dialogs.
 */

#include "Companions/GUIRestore.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/SteppedClock.h"
#include "TestSupport/CodeFactory.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/StructureChecker.h"
#include "Tests/Fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>

namespace
{
// Away from the dynamic identifiers, which are not saved.
constexpr auto ceHome = static_cast<ObjectHandle_t>(101);
constexpr auto ceOther = static_cast<ObjectHandle_t>(102);
constexpr auto ceLast = static_cast<ObjectHandle_t>(103);
constexpr auto cePopup = static_cast<ObjectHandle_t>(104);
constexpr eC_UInt cuiApplication = 5;
constexpr eC_UInt cuiContents = 6;

constexpr eC_UInt cuiMostDialogs = 4;
using Restore_t = CGUIRestoreOf<cuiMostDialogs, 2, 8>;

/** Two slots in memory. */
class CSlots : public CGUIRestoreStorage
{
public:
    eC_Bool WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize) override
    {
        m_akSlots[uiSlot].assign(puiBytes, puiBytes + uiSize);
        return true;
    }

    eC_UInt ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize) override
    {
        const std::size_t uiRead = m_akSlots[uiSlot].copy(reinterpret_cast<char*>(puiBytes), uiSize);
        return static_cast<eC_UInt>(uiRead);
    }

    std::array<std::string, 2> m_akSlots;
};

/** Takes arguments of any size. */
class CArguments : public CGUIRestoreArguments
{
public:
    explicit CArguments(CGUIDialogManager& kManager) : m_kManager(kManager) {}

    eC_UInt SaveArgument(ObjectHandle_t, eC_UInt uiLevel, unsigned char* puiBytes, eC_UInt uiSize) override
    {
        std::fill_n(puiBytes, std::min(uiLevel, uiSize), static_cast<unsigned char>(uiLevel));
        return uiLevel;
    }

    CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                             const unsigned char* puiBytes, eC_UInt uiSize) override
    {
        m_uiSum = std::accumulate(puiBytes, puiBytes + uiSize, m_uiSum);
        return m_kManager.CreateDialog(eID, eAction);
    }

private:
    CGUIDialogManager& m_kManager;
    eC_UInt m_uiSum = 0; ///< reads every byte
};

/** What is new after a reset: everything but the slots. */
class CDevice
{
public:
    explicit CDevice(CSlots& kSlots) : m_kRestore(m_kManager, kSlots, ceHome, cuiApplication, cuiContents)
    {
        CGUIFactoryManager::GetInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix, &m_kFactory);
        for (const ObjectHandle_t eID : {ceHome, ceOther, ceLast, cePopup})
        {
            const std::string kName = std::to_string(eID);
            m_kFactory.RegisterTree("code:" + kName, kName + " { 11 focusable; 12 focusable }");
            eID == cePopup ? m_kManager.RegisterPopupDefinition(eID, CGUIDialogManager::PRIO_HIGH, 0, true,
                                                                ("code:" + kName).c_str())
                           : m_kManager.RegisterDialogDefinition(("code:" + kName).c_str(), eID);
        }
        m_kRestore.SetPopups(&m_ePopup, 1);
        m_kRestore.SetArguments(&m_kArguments);
    }

    CCodeFactory m_kFactory;
    CGUI m_kRoot;
    CGUIObservedDialogManager m_kManager;
    Restore_t m_kRestore;

private:
    const ObjectHandle_t m_ePopup = cePopup;
    CArguments m_kArguments{m_kManager};
};

eC_UInt GetChecksum(const std::string& kBytes)
{
    eC_UInt uiChecksum = 0xFFFFFFFFU;
    for (const char cByte : kBytes)
    {
        uiChecksum ^= static_cast<unsigned char>(cByte);
        for (unsigned uiBit = 0; uiBit < 8; ++uiBit)
        {
            uiChecksum = (uiChecksum & 1U) != 0 ? uiChecksum >> 1U ^ 0xEDB88320U : uiChecksum >> 1U;
        }
    }
    return ~uiChecksum;
}

std::string GetBytes(eC_UInt uiNumber, unsigned uiSize)
{
    std::string kBytes;
    for (unsigned uiByte = 0; uiByte < uiSize; ++uiByte)
    {
        kBytes += static_cast<char>(uiNumber >> 8 * uiByte);
    }
    return kBytes;
}

/** @return a block that is right but for what it says */
std::string Complete(const std::string& kSays, eC_UInt uiSequence)
{
    const auto uiSize = static_cast<eC_UInt>(20 + kSays.size() + 4);
    const std::string kBytes = "GERS" + GetBytes(1, 2) + GetBytes(uiSize, 2) + GetBytes(uiSequence, 4) +
                               GetBytes(cuiApplication, 4) + GetBytes(cuiContents, 4) + kSays;
    return kBytes + GetBytes(GetChecksum(kBytes), 4);
}

void TakeSlots(CDecisions& kDecisions, CSlots& kSlots)
{
    for (std::string& kSlot : kSlots.m_akSlots)
    {
        const bool bIsComplete = kDecisions.TakeBelow(4) != 0;
        const eC_UInt uiSequence = kDecisions.TakeNumber();
        kSlot = kDecisions.TakeText(kDecisions.TakeByte());
        kSlot = bIsComplete ? Complete(kSlot, uiSequence) : kSlot;
    }
}

bool IsRegistered(ObjectHandle_t eID)
{
    return eID >= ceHome && eID <= cePopup;
}

/** The current dialog and the history, as far as it can be saved. */
struct Dialogs_t
{
    std::string m_kNames;
    /** An object inside a dialog counts as a dialog too, but is found only while that one exists. If only the
     *  newest dialogs are saved, that one may be missing. */
    bool m_bCanBeFoundAgain;
};

Dialogs_t GetDialogs(CGUIObservedDialogManager& kManager)
{
    const bool bIsWhole = kManager.GetHistoryStackSize() < cuiMostDialogs;
    Dialogs_t kDialogs = {std::to_string(kManager.GetCurrentDialogID()),
                          bIsWhole || IsRegistered(kManager.GetCurrentDialogID())};
    CGUIObservedDialogManager::PastDialog_t kPast = {};
    for (eC_UInt uiPosition = 0; uiPosition < cuiMostDialogs - 1 && kManager.GetPastDialog(uiPosition, kPast);
         ++uiPosition)
    {
        kDialogs.m_kNames += " " + std::to_string(kPast.m_eDialogID) + "/" + std::to_string(kPast.m_eAction);
        kDialogs.m_bCanBeFoundAgain =
            kDialogs.m_bCanBeFoundAgain && (bIsWhole || IsRegistered(kPast.m_eDialogID));
    }
    return kDialogs;
}

/** Restores, checks, goes back as far as possible and saves. @return what was shown */
Dialogs_t UseDevice(CSlots& kSlots, bool bGoBack)
{
    CDevice kDevice(kSlots);
    const bool bIsRestored = kDevice.m_kRestore.Restore();
    Dialogs_t kDialogs = GetDialogs(kDevice.m_kManager);
    ShowStep((bIsRestored ? "restored: " : "home: ") + kDialogs.m_kNames);
    if (kDevice.m_kManager.GetCurrentDialogID() == NO_HANDLE)
    {
        Fail("no dialog is shown");
    }
    if (!kDevice.m_kRestore.Save())
    {
        Fail("the state cannot be saved");
    }
    while (bGoBack && kDevice.m_kManager.GetHistoryStackSize() > 0 &&
           kDevice.m_kManager.GetCurrentDialogID() != NO_HANDLE)
    {
        kDevice.m_kManager.Back(true);
    }
    const std::string kFaults = CheckStructures(kDevice.m_kManager);
    if (!kFaults.empty())
    {
        Fail(kFaults);
    }
    return kDialogs;
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    CGUITrace::GetInstance().SetSink(nullptr);
    const ObjectCensus_t kBefore = TakeObjectCensus();
    {
        CSteppedClock kClock;
        CDecisions kDecisions(pcBytes, uiSize);
        CSlots kSlots;
        TakeSlots(kDecisions, kSlots);
        const Dialogs_t kFirst = UseDevice(kSlots, kDecisions.TakeByte() % 2 == 0);
        const Dialogs_t kSecond = UseDevice(kSlots, false);
        if (kFirst.m_bCanBeFoundAgain && kFirst.m_kNames != kSecond.m_kNames)
        {
            Fail("saved with " + kFirst.m_kNames + ", restored to " + kSecond.m_kNames);
        }
    }
    const std::string kLeft = CompareObjectCensus(kBefore, TakeObjectCensus());
    if (!kLeft.empty())
    {
        Fail("left behind:\n" + kLeft);
    }
    return 0;
}
