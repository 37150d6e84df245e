// SPDX-License-Identifier: MIT
#include "Inspection/InspectedState.h"

#include "Core/Control/GUIObject.h"
#include "Scenario/Names.h"

#include <algorithm>
#include <utility>

namespace
{
/** The program's time, if the times that are left are wanted. */
using Time_t = std::optional<eC_UInt>;

std::string NameOrDash(const InspectedHandle_t& kHandle)
{
    return kHandle.m_eID != NO_HANDLE ? kHandle.GetText() : "-";
}

std::string PrintLeft(const std::optional<eC_UInt>& uiDue, const Time_t& uiTime)
{
    if (!uiDue.has_value() || !uiTime.has_value())
    {
        return std::string();
    }
    // The clock wraps around, so only the difference counts; what is overdue has nothing left.
    const auto iLeft = static_cast<eC_Int>(*uiDue - *uiTime);
    return ", " + std::to_string(iLeft > 0 ? iLeft : 0) + " ms left";
}

std::string PrintDescription(const InspectedItem_t& kItem)
{
    return "after " + kItem.m_kAfter + (kItem.m_bDeletion ? "" : ", no deletion") +
           (kItem.m_bRecovery ? "" : ", no recovery");
}

std::string PrintSettings(const InspectedItem_t& kItem)
{
    return "prio " + std::to_string(kItem.m_uiPriority) + ", " + std::to_string(kItem.m_uiTime) + " ms, " +
           (kItem.m_bDeleteOnClose ? "delete on close" : "hide on close");
}

std::string PrintPath(const InspectedItem_t& kItem)
{
    return "\"" + kItem.m_kPath + "\"";
}

std::string PrintCurrent(const InspectedItem_t& kItem, const Time_t&)
{
    const std::string kDescription = PrintDescription(kItem);
    const eC_Bool bIsNone = kItem.m_kHandle.m_eID == NO_HANDLE;
    return "current: " + (bIsNone ? "none" : kItem.m_kHandle.GetText()) +
           (bIsNone && kDescription == "after ODA_NOTHING" ? "" : " " + kDescription);
}

std::string PrintEntry(const InspectedItem_t& kItem, const Time_t&)
{
    return "history: " + kItem.m_kHandle.GetText() + " " + kItem.m_kLeft +
           (kItem.m_kFocus.has_value() ? " focus " + kItem.m_kFocus->GetText() : "") + " (" +
           PrintDescription(kItem) + ")";
}

std::string PrintDialog(const InspectedItem_t& kItem, const Time_t&)
{
    return "dialog: " + kItem.m_kHandle.GetText() + " " + PrintPath(kItem);
}

std::string PrintPopup(const InspectedItem_t& kItem, const Time_t&)
{
    return "popup: " + kItem.m_kHandle.GetText() + " " + PrintSettings(kItem) + ", " + PrintPath(kItem);
}

std::string PrintActive(const InspectedItem_t& kItem, const Time_t& uiTime)
{
    const char* const pcShown = kItem.m_bIsShown ? ", shown" : ", hidden";
    return "active: " + (kItem.m_bIsGone ? "gone" : NameOrDash(kItem.m_kHandle)) + " " +
           PrintSettings(kItem) + (kItem.m_bIsGone ? "" : pcShown) +
           (kItem.m_bIsDetached ? ", detached" : "") + PrintLeft(kItem.m_uiDue, uiTime);
}

std::string PrintRemembered(const InspectedItem_t& kItem, const Time_t&)
{
    return "remembered: " + NameOrDash(kItem.m_kHandle);
}

std::string PrintFocus(const InspectedItem_t& kItem, const Time_t&)
{
    return "focus: " + NameOrDash(kItem.m_kHandle);
}

std::string PrintDynamic(const InspectedItem_t& kItem, const Time_t&)
{
    return std::to_string(kItem.m_kHandle.m_eID);
}

std::string PrintObject(const InspectedItem_t& kItem, const Time_t&)
{
    // A program's tree is not deeper, but a line that somebody else wrote may say so.
    constexpr eC_UInt cuiDeepest = 1000;
    const char* const pcFocus = kItem.m_bHasFocus ? " focussed" : kItem.m_bIsFocusable ? " focusable" : "";
    return std::string(std::size_t{2} * (std::min(kItem.m_uiDepth, cuiDeepest) + 1), ' ') +
           NameOrDash(kItem.m_kHandle) + (kItem.m_bIsInvisible ? " invisible" : "") + pcFocus;
}

std::string PrintTimer(const InspectedItem_t& kItem, const Time_t& uiTime)
{
    return "timer: " + (kItem.m_kPopup.has_value() ? kItem.m_kPopup->GetText() : "-") + " every " +
           std::to_string(kItem.m_uiInterval) + " ms" + PrintLeft(kItem.m_uiDue, uiTime);
}

std::string PrintHook(const InspectedItem_t& kItem, const Time_t&)
{
    return "hook: " + kItem.m_kHook + " " + NameOrDash(kItem.m_kHandle) + ", " +
           std::to_string(kItem.m_uiCalls) + " calls, " + std::to_string(kItem.m_uiTime) +
           " in all, at most " + std::to_string(kItem.m_uiMost);
}

std::string PrintHeap(const InspectedItem_t& kItem, const Time_t&)
{
    return "heap: " + std::to_string(kItem.m_uiUsed) + " of " + std::to_string(kItem.m_uiSize) +
           " bytes used, at most " + std::to_string(kItem.m_uiMost);
}

using Print_t = std::string (*)(const InspectedItem_t& kItem, const Time_t& uiTime);

/** How a part is printed: the text before it, between its items and after it, if there are any. */
struct PartText_t
{
    Print_t m_pfnItem;
    const char* m_pcBefore;
    const char* m_pcBetween;
};

constexpr PartText_t cakPartTexts[] = {
    {&PrintCurrent, "", "\n"},         {&PrintEntry, "", "\n"},  {&PrintDialog, "", "\n"},
    {&PrintPopup, "", "\n"},           {&PrintActive, "", "\n"}, {&PrintRemembered, "", "\n"},
    {&PrintDynamic, "dynamic: ", " "}, {&PrintFocus, "", "\n"},  {&PrintObject, "tree:\n", "\n"},
    {&PrintTimer, "", "\n"},           {&PrintHook, "", "\n"},   {&PrintHeap, "", "\n"}};
static_assert(sizeof(cakPartTexts) / sizeof(cakPartTexts[0]) == cuiInspectionParts);

std::string PrintItems(EInspectedPart ePart, const std::vector<InspectedItem_t>& kItems, const Time_t& uiTime)
{
    const PartText_t& kText = cakPartTexts[ePart];
    std::string kPrinted;
    for (const InspectedItem_t& kItem : kItems)
    {
        kPrinted +=
            (kPrinted.empty() ? kText.m_pcBefore : kText.m_pcBetween) + kText.m_pfnItem(kItem, uiTime);
    }
    return kPrinted.empty() ? kPrinted : kPrinted + "\n";
}

InspectedHandle_t DescribeHandle(ObjectHandle_t eID)
{
    const eC_Char* const pcName = GetObjectHandleName(eID);
    return {eID, pcName != nullptr ? pcName : ""};
}

/** Collects the items of one part. */
class CItemCollector : public CStateVisitor
{
public:
    std::vector<InspectedItem_t> m_kItems;

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override { AddDialog(kDialog); }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        InspectedItem_t& kItem = AddDialog(kEntry.m_Dialog);
        kItem.m_kLeft = NameOfAction(kEntry.m_eAction);
        if (kEntry.m_eFocussedObject != NO_HANDLE)
        {
            kItem.m_kFocus = DescribeHandle(kEntry.m_eFocussedObject);
        }
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        Add(kDefinition.m_eDialogID).m_kPath = kDefinition.m_kPath.GetText();
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        InspectedItem_t& kItem = AddPopup(kDefinition.m_ePopupID, kDefinition.m_ePriority,
                                          kDefinition.m_uiDisplayTime, kDefinition.m_bDeleteOnClose);
        kItem.m_kPath = kDefinition.m_kPath.GetText();
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        const CGUIObject* const pkObject = kPopup.m_pkObject;
        InspectedItem_t& kItem =
            AddPopup(pkObject != nullptr ? pkObject->GetID() : static_cast<ObjectHandle_t>(NO_HANDLE),
                     kPopup.m_ePriority, kPopup.m_uiDisplayTime, kPopup.m_bDeleteOnClose);
        kItem.m_bIsGone = pkObject == nullptr;
        kItem.m_bIsShown = pkObject != nullptr && !pkObject->IsInvisible();
        kItem.m_bIsDetached = kPopup.m_bIsDetached;
        if (kPopup.m_bHasTimer)
        {
            kItem.m_uiDue = kPopup.m_uiTimeLeft;
        }
    }

    void VisitRememberedFocus(const CGUIObject& kObject) override { Add(kObject.GetID()); }
    void VisitDynamicIdentifier(ObjectHandle_t eID) override { Add(eID); }
    void VisitFocus(const CGUIObject& kObject) override { Add(kObject.GetID()); }

    void VisitObject(const ObjectState_t& kObject) override
    {
        InspectedItem_t& kItem = Add(kObject.m_pkObject->GetID());
        kItem.m_uiDepth = kObject.m_uiDepth;
        kItem.m_bIsInvisible = kObject.m_pkObject->IsInvisible();
        kItem.m_bIsFocusable = kObject.m_pkObject->IsFocusable();
        kItem.m_bHasFocus = kObject.m_bHasFocus;
    }

    void VisitTimer(const TimerState_t& kTimer) override
    {
        InspectedItem_t& kItem = Add(NO_HANDLE);
        if (kTimer.m_bIsPopup)
        {
            kItem.m_kPopup = DescribeHandle(kTimer.m_ePopupID);
        }
        kItem.m_uiInterval = kTimer.m_uiInterval;
        kItem.m_uiDue = kTimer.m_uiTimeLeft;
    }

    void AddHeap(const HeapFigures_t& kFigures)
    {
        InspectedItem_t& kItem = Add(NO_HANDLE);
        kItem.m_uiUsed = kFigures.m_uiUsed;
        kItem.m_uiMost = kFigures.m_uiMost;
        kItem.m_uiSize = kFigures.m_uiSize;
    }

    void AddHookTime(const HookTime_t& kTime)
    {
        InspectedItem_t& kItem = Add(kTime.m_eID);
        kItem.m_kHook = kTime.m_pcHook;
        kItem.m_uiCalls = kTime.m_uiCalls;
        kItem.m_uiTime = kTime.m_uiTotal;
        kItem.m_uiMost = kTime.m_uiLongest;
    }

private:
    InspectedItem_t& Add(ObjectHandle_t eID)
    {
        m_kItems.emplace_back();
        m_kItems.back().m_kHandle = DescribeHandle(eID);
        return m_kItems.back();
    }

    InspectedItem_t& AddDialog(const Access::DialogDescription_t& kDialog)
    {
        InspectedItem_t& kItem = Add(kDialog.m_eDialogID);
        kItem.m_kAfter = NameOfAction(kDialog.m_eOldDialogAction);
        kItem.m_bDeletion = kDialog.m_bAllowObjectDeletion;
        kItem.m_bRecovery = kDialog.m_bRecoverFocus;
        return kItem;
    }

    InspectedItem_t& AddPopup(ObjectHandle_t eID, eC_UInt uiPriority, eC_UInt uiTime, eC_Bool bDeleteOnClose)
    {
        InspectedItem_t& kItem = Add(eID);
        kItem.m_uiPriority = uiPriority;
        kItem.m_uiTime = uiTime;
        kItem.m_bDeleteOnClose = bDeleteOnClose;
        return kItem;
    }
};
} // namespace

void CInspectedState::SetItems(EInspectedPart ePart, std::vector<InspectedItem_t> kItems)
{
    m_akParts[ePart] = std::move(kItems);
}

const std::vector<InspectedItem_t>& CInspectedState::GetItems(EInspectedPart ePart) const
{
    static const std::vector<InspectedItem_t> s_kNone;
    return m_akParts[ePart].has_value() ? *m_akParts[ePart] : s_kNone;
}

std::string CInspectedState::Print(EInspectedPart ePart, eC_UInt uiTime) const
{
    return PrintItems(ePart, GetItems(ePart), uiTime);
}

std::string CInspectedState::PrintWithoutTimes(EInspectedPart ePart) const
{
    return PrintItems(ePart, GetItems(ePart), std::nullopt);
}

std::string CInspectedState::Print(eC_UInt uiTime) const
{
    std::string kPrinted;
    for (eC_UInt uiPart = 0; uiPart < cuiInspectionParts; ++uiPart)
    {
        kPrinted += Print(static_cast<EInspectedPart>(uiPart), uiTime);
    }
    return kPrinted;
}

CInspectedState ReadInspectedState(const CGUIInspector& kInspector)
{
    CInspectedState kState;
    for (eC_UInt uiPart = 0; uiPart < cuiInspectionParts; ++uiPart)
    {
        CItemCollector kCollector;
        kInspector.Visit(cakInspectionParts[uiPart].m_uiParts, kCollector);
        HookTime_t kTime;
        for (eC_UInt uiHook = 0; uiPart == PART_HOOKS && kInspector.GetHookTime(uiHook, kTime); ++uiHook)
        {
            kCollector.AddHookTime(kTime);
        }
        HeapFigures_t kHeap;
        if (uiPart == PART_HEAP && kInspector.GetHeap(kHeap))
        {
            kCollector.AddHeap(kHeap);
        }
        kState.SetItems(static_cast<EInspectedPart>(uiPart), std::move(kCollector.m_kItems));
    }
    return kState;
}
