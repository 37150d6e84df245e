// SPDX-License-Identifier: MIT
#include "Simulator/InspectorText.h"

#include "Core/Control/GUIObject.h"
#include "Scenario/Names.h"

#include <algorithm>

namespace
{
using Access = CGUIStateAccess;

std::string NameOrDash(const InspectedHandle_t& kHandle)
{
    return kHandle.m_eID != NO_HANDLE ? kHandle.GetText() : "-";
}

std::string InSeconds(eC_UInt uiMilliseconds)
{
    return FormatSeconds(uiMilliseconds) + " s";
}

/** @return how much time is left. The clock wraps around, so only the difference counts. */
std::string InSecondsFrom(eC_UInt uiTime, eC_UInt uiDue)
{
    const auto iLeft = static_cast<eC_Int>(uiDue - uiTime);
    return InSeconds(iLeft > 0 ? static_cast<eC_UInt>(iLeft) : 0U);
}

/** What is unusual about a dialog. */
std::string DescribeExceptions(const InspectedItem_t& kDialog)
{
    return std::string(kDialog.m_bDeletion ? "" : ", not deleted") +
           (kDialog.m_bRecovery ? "" : ", focus not restored");
}

std::string DescribeClosing(const InspectedItem_t& kPopup)
{
    return kPopup.m_bDeleteOnClose ? ", deleted on close" : ", hidden on close";
}

/** Collects the lines of items. */
class CDescriber
{
public:
    std::vector<StyledLine_t> m_kLines;

    explicit CDescriber(eC_UInt uiTime) : m_uiTime(uiTime) {}

    void BeginSection(const std::string& kHeading) { m_kLines.push_back({kHeading, STYLE_STRONG}); }

    void EndSection(const std::string& kIfEmpty)
    {
        if (m_kLines.back().m_eStyle == STYLE_STRONG)
        {
            Add(kIfEmpty, STYLE_DIM);
        }
    }

    void DescribeCurrent(const InspectedItem_t& kItem)
    {
        if (kItem.m_kHandle.m_eID == NO_HANDLE)
        {
            Add("none");
            return;
        }
        Add(kItem.m_kHandle.GetText());
        Add("  after " + kItem.m_kAfter + DescribeExceptions(kItem), STYLE_DIM);
    }

    void DescribeHistoryEntry(const InspectedItem_t& kItem)
    {
        Add(kItem.m_kHandle.GetText() + " " + kItem.m_kLeft);
        if (kItem.m_kFocus.has_value())
        {
            Add("  focus " + kItem.m_kFocus->GetText() + DescribeExceptions(kItem), STYLE_DIM);
        }
    }

    void DescribeActivePopup(const InspectedItem_t& kItem)
    {
        const eC_Bool bIsShown = kItem.m_bIsShown && !kItem.m_bIsDetached;
        const std::string kState = kItem.m_bIsGone       ? "gone"
                                   : kItem.m_bIsDetached ? "detached"
                                   : kItem.m_bIsShown    ? "shown"
                                                         : "waiting";
        Add(NameOrDash(kItem.m_kHandle) + " prio " + std::to_string(kItem.m_uiPriority) + " " + kState,
            bIsShown ? STYLE_POPUP : STYLE_PLAIN);
        const std::string kTime = kItem.m_uiDue.has_value()
                                      ? InSecondsFrom(m_uiTime, *kItem.m_uiDue) + " left"
                                      : std::string("no time limit");
        Add("  " + kTime + DescribeClosing(kItem), STYLE_DIM);
    }

    void DescribeRememberedFocus(const InspectedItem_t& kItem)
    {
        Add(NameOrDash(kItem.m_kHandle) + " gets it back", STYLE_DIM);
    }

    void DescribeFocus(const InspectedItem_t& kItem) { Add(NameOrDash(kItem.m_kHandle), STYLE_FOCUS); }

    void DescribeObject(const InspectedItem_t& kItem)
    {
        // A program's tree is not deeper, but a line that somebody else wrote may say so.
        constexpr eC_UInt cuiDeepest = 1000;
        const std::string kName = std::string(std::size_t{2} * std::min(kItem.m_uiDepth, cuiDeepest), ' ') +
                                  NameOrDash(kItem.m_kHandle);
        if (kItem.m_bHasFocus)
        {
            Add(kName + " focussed", STYLE_FOCUS);
        }
        else if (kItem.m_bIsInvisible)
        {
            Add(kName + " invisible", STYLE_DIM);
        }
        else
        {
            Add(kName + (kItem.m_bIsFocusable ? " focusable" : ""));
        }
    }

    void DescribeTimer(const InspectedItem_t& kItem)
    {
        Add((kItem.m_kPopup.has_value() ? kItem.m_kPopup->GetText() : std::string("-")) + " in " +
            InSecondsFrom(m_uiTime, kItem.m_uiDue.value_or(m_uiTime)) + ", every " +
            InSeconds(kItem.m_uiInterval));
    }

    void DescribeDialogDefinition(const InspectedItem_t& kItem)
    {
        Add(kItem.m_kHandle.GetText());
        Add("  " + kItem.m_kPath, STYLE_DIM);
    }

    void DescribePopupDefinition(const InspectedItem_t& kItem)
    {
        Add(kItem.m_kHandle.GetText() + " prio " + std::to_string(kItem.m_uiPriority));
        Add("  " + (kItem.m_kPath.empty() ? std::string("no file") : kItem.m_kPath), STYLE_DIM);
        const std::string kTime =
            kItem.m_uiTime == 0 ? std::string("no time limit") : InSeconds(kItem.m_uiTime);
        Add("  " + kTime + DescribeClosing(kItem), STYLE_DIM);
    }

    void DescribeDynamicIdentifier(const InspectedItem_t& kItem)
    {
        Add(std::to_string(static_cast<eC_Int>(kItem.m_kHandle.m_eID)));
    }

    void DescribeHookTime(const InspectedItem_t& kItem)
    {
        Add(kItem.m_kHook + " " + NameOrDash(kItem.m_kHandle));
        Add("  " + std::to_string(kItem.m_uiCalls) + " calls, " + std::to_string(kItem.m_uiTime) +
                " in all, at most " + std::to_string(kItem.m_uiMost),
            STYLE_DIM);
    }

    void DescribeHeap(const InspectedItem_t& kItem)
    {
        Add(std::to_string(kItem.m_uiUsed) + " bytes, at most " + std::to_string(kItem.m_uiMost) + " of " +
            std::to_string(kItem.m_uiSize));
    }

private:
    void Add(const std::string& kText, ETextStyle eStyle = STYLE_PLAIN)
    {
        m_kLines.push_back({"  " + kText, eStyle});
    }

    eC_UInt m_uiTime;
};

using Describe_t = void (CDescriber::*)(const InspectedItem_t&);

/** A part of a section. */
struct SectionPart_t
{
    const eC_Char* m_pcHeading; ///< null: it belongs to the section before
    const eC_Char* m_pcIfEmpty; ///< null: the section is left out if it is empty
    EStateColumns m_eColumn;
    EInspectedPart m_ePart;
    Describe_t m_pfnDescribe;
};

constexpr SectionPart_t cakSections[] = {
    {"current dialog", "none", COLUMN_SITUATION, PART_CURRENT, &CDescriber::DescribeCurrent},
    {"history, most recent first", "empty", COLUMN_SITUATION, PART_HISTORY,
     &CDescriber::DescribeHistoryEntry},
    {"popups, lowest priority first", "none", COLUMN_SITUATION, PART_ACTIVE,
     &CDescriber::DescribeActivePopup},
    {"focus", "nothing has it", COLUMN_SITUATION, PART_FOCUS, &CDescriber::DescribeFocus},
    {nullptr, nullptr, COLUMN_SITUATION, PART_REMEMBERED, &CDescriber::DescribeRememberedFocus},
    {"tree, in drawing order", "empty", COLUMN_OBJECTS, PART_TREE, &CDescriber::DescribeObject},
    {"timers", "none", COLUMN_SITUATION, PART_TIMERS, &CDescriber::DescribeTimer},
    {"dialogs registered", "none", COLUMN_OBJECTS, PART_DIALOGS, &CDescriber::DescribeDialogDefinition},
    {"popups registered", "none", COLUMN_OBJECTS, PART_POPUPS, &CDescriber::DescribePopupDefinition},
    {"dynamic identifiers", "none", COLUMN_OBJECTS, PART_DYNAMIC, &CDescriber::DescribeDynamicIdentifier},
    {"hooks", nullptr, COLUMN_SITUATION, PART_HOOKS, &CDescriber::DescribeHookTime},
    {"heap", nullptr, COLUMN_SITUATION, PART_HEAP, &CDescriber::DescribeHeap}};

void AddOnce(std::vector<std::string>& kNames, const std::string& kName)
{
    if (std::find(kNames.begin(), kNames.end(), kName) == kNames.end())
    {
        kNames.push_back(kName);
    }
}

/** Collects the names of the items that it visits. */
class CNameCollector : public CStateVisitor
{
public:
    StateNames_t m_kNames;

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override { AddDialog(kDialog.m_eDialogID); }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        AddDialog(kEntry.m_Dialog.m_eDialogID);
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        AddDialog(kDefinition.m_eDialogID);
        AddPath(kDefinition.m_kPath);
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        AddOnce(m_kNames.m_kPopups, NameOfHandle(kDefinition.m_ePopupID));
        AddPath(kDefinition.m_kPath);
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        if (kPopup.m_pkObject != nullptr)
        {
            AddOnce(m_kNames.m_kPopups, NameOfHandle(kPopup.m_pkObject->GetID()));
        }
    }

    void VisitRememberedFocus(const CGUIObject&) override {}
    void VisitDynamicIdentifier(ObjectHandle_t) override {}
    void VisitFocus(const CGUIObject&) override {}

    void VisitObject(const ObjectState_t& kObject) override
    {
        if (kObject.m_pkObject->GetID() != NO_HANDLE)
        {
            AddOnce(m_kNames.m_kObjects, NameOfHandle(kObject.m_pkObject->GetID()));
        }
    }

    void VisitTimer(const TimerState_t&) override {}

private:
    void AddDialog(ObjectHandle_t eID)
    {
        if (eID != NO_HANDLE)
        {
            AddOnce(m_kNames.m_kDialogs, NameOfHandle(eID));
        }
    }

    void AddPath(const eC_String& kPath)
    {
        AddOnce(m_kNames.m_kPaths, "\"" + std::string(kPath.GetText()) + "\"");
    }
};
} // namespace

std::vector<StyledLine_t> DescribeState(const CInspectedState& kState, eC_UInt uiTime, EStateColumns eColumns)
{
    CDescriber kDescriber(uiTime);
    const eC_Char* pcIfEmpty = nullptr;
    const auto EndSection = [&]()
    {
        if (pcIfEmpty != nullptr)
        {
            kDescriber.EndSection(pcIfEmpty);
        }
    };
    for (const SectionPart_t& kPart : cakSections)
    {
        const std::vector<InspectedItem_t>& kItems = kState.GetItems(kPart.m_ePart);
        const eC_Bool bIsLeftOut =
            kPart.m_pcHeading != nullptr && kPart.m_pcIfEmpty == nullptr && kItems.empty();
        if ((eColumns != COLUMNS_ALL && kPart.m_eColumn != eColumns) || bIsLeftOut)
        {
            continue;
        }
        if (kPart.m_pcHeading != nullptr)
        {
            EndSection();
            kDescriber.BeginSection(kPart.m_pcHeading);
            pcIfEmpty = kPart.m_pcIfEmpty;
        }
        for (const InspectedItem_t& kItem : kItems)
        {
            (kDescriber.*kPart.m_pfnDescribe)(kItem);
        }
    }
    EndSection();
    return kDescriber.m_kLines;
}

std::vector<StyledLine_t> DescribeState(const CGUIInspector& kInspector)
{
    return DescribeState(ReadInspectedState(kInspector), 0);
}

StateNames_t CollectNames(const CGUIInspector& kInspector)
{
    CNameCollector kCollector;
    kInspector.Visit(STATE_DEFINITIONS, kCollector);
    kInspector.Visit(STATE_CURRENT | STATE_HISTORY | STATE_ACTIVE_POPUPS | STATE_TREE, kCollector);
    return kCollector.m_kNames;
}

std::string FormatSeconds(eC_UInt uiMilliseconds)
{
    const std::string kThousandths = std::to_string(uiMilliseconds % 1000 + 1000).substr(1);
    return std::to_string(uiMilliseconds / 1000) + "." + kThousandths;
}
