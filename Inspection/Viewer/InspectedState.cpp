// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/InspectedState.h"

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
