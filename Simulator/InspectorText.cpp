// SPDX-License-Identifier: MIT
#include "Simulator/InspectorText.h"

#include "Core/Control/GUIObject.h"
#include "Scenario/Names.h"

#include <algorithm>

namespace
{
using Access = CGUIStateAccess;

std::string NameOrDash(const CGUIObject& kObject)
{
    return kObject.GetID() != NO_HANDLE ? NameOfHandle(kObject.GetID()) : "-";
}

std::string InSeconds(eC_UInt uiMilliseconds)
{
    const std::string kThousandths = std::to_string(uiMilliseconds % 1000 + 1000).substr(1);
    return std::to_string(uiMilliseconds / 1000) + "." + kThousandths + " s";
}

/** What is unusual about a dialog. */
std::string DescribeExceptions(const Access::DialogDescription_t& kDialog)
{
    return std::string(kDialog.m_bAllowObjectDeletion ? "" : ", not deleted") +
           (kDialog.m_bRecoverFocus ? "" : ", focus not restored");
}

/** Collects the lines of the items that it visits. */
class CDescriber : public CStateVisitor
{
public:
    std::vector<StyledLine_t> m_kLines;

    void BeginSection(const std::string& kHeading, const std::string& kIfEmpty)
    {
        m_kLines.push_back({kHeading, STYLE_STRONG});
        m_kIfEmpty = kIfEmpty;
    }

    void EndSection()
    {
        if (m_kLines.back().m_eStyle == STYLE_STRONG)
        {
            m_kLines.push_back({"  " + m_kIfEmpty, STYLE_DIM});
        }
    }

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override
    {
        if (kDialog.m_eDialogID == NO_HANDLE)
        {
            Add("none");
            return;
        }
        Add(NameOfHandle(kDialog.m_eDialogID));
        Add("  after " + NameOfAction(kDialog.m_eOldDialogAction) + DescribeExceptions(kDialog), STYLE_DIM);
    }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        Add(NameOfHandle(kEntry.m_Dialog.m_eDialogID) + " " + NameOfAction(kEntry.m_eAction));
        if (kEntry.m_eFocussedObject != NO_HANDLE)
        {
            Add("  focus " + NameOfHandle(kEntry.m_eFocussedObject) + DescribeExceptions(kEntry.m_Dialog),
                STYLE_DIM);
        }
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        const CGUIObject* const pkObject = kPopup.m_pkObject;
        const eC_Bool bIsShown = pkObject != nullptr && !pkObject->IsInvisible() && !kPopup.m_bIsDetached;
        const std::string kState = pkObject == nullptr       ? "gone"
                                   : kPopup.m_bIsDetached    ? "detached"
                                   : pkObject->IsInvisible() ? "waiting"
                                                             : "shown";
        Add((pkObject != nullptr ? NameOrDash(*pkObject) : std::string("-")) + " prio " +
                std::to_string(static_cast<eC_UInt>(kPopup.m_ePriority)) + " " + kState,
            bIsShown ? STYLE_POPUP : STYLE_PLAIN);
        const std::string kTime =
            kPopup.m_bHasTimer ? InSeconds(kPopup.m_uiTimeLeft) + " left" : std::string("no time limit");
        Add("  " + kTime + (kPopup.m_bDeleteOnClose ? ", deleted on close" : ", hidden on close"), STYLE_DIM);
    }

    void VisitRememberedFocus(const CGUIObject& kObject) override
    {
        Add(NameOrDash(kObject) + " gets it back", STYLE_DIM);
    }

    void VisitFocus(const CGUIObject& kObject) override { Add(NameOrDash(kObject), STYLE_FOCUS); }

    void VisitObject(const ObjectState_t& kObject) override
    {
        const CGUIObject& kVisited = *kObject.m_pkObject;
        const std::string kIndent(std::size_t{2} * kObject.m_uiDepth, ' ');
        if (kObject.m_bHasFocus)
        {
            Add(kIndent + NameOrDash(kVisited) + " focussed", STYLE_FOCUS);
        }
        else if (kVisited.IsInvisible())
        {
            Add(kIndent + NameOrDash(kVisited) + " invisible", STYLE_DIM);
        }
        else
        {
            Add(kIndent + NameOrDash(kVisited) + (kVisited.IsFocusable() ? " focusable" : ""));
        }
    }

    void VisitTimer(const TimerState_t& kTimer) override
    {
        Add((kTimer.m_bIsPopup ? NameOfHandle(kTimer.m_ePopupID) : std::string("-")) + " in " +
            InSeconds(kTimer.m_uiTimeLeft) + ", every " + InSeconds(kTimer.m_uiInterval));
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        Add(NameOfHandle(kDefinition.m_eDialogID));
        Add("  " + std::string(kDefinition.m_kPath.GetText()), STYLE_DIM);
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        Add(NameOfHandle(kDefinition.m_ePopupID) + " prio " +
            std::to_string(static_cast<eC_UInt>(kDefinition.m_ePriority)));
        const std::string kPath = kDefinition.m_kPath.GetText();
        Add("  " + (kPath.empty() ? std::string("no file") : kPath), STYLE_DIM);
        const std::string kTime = kDefinition.m_uiDisplayTime == 0 ? std::string("no time limit")
                                                                   : InSeconds(kDefinition.m_uiDisplayTime);
        Add("  " + kTime + (kDefinition.m_bDeleteOnClose ? ", deleted on close" : ", hidden on close"),
            STYLE_DIM);
    }

    void VisitDynamicIdentifier(ObjectHandle_t eID) override
    {
        Add(std::to_string(static_cast<eC_Int>(eID)));
    }

private:
    void Add(const std::string& kText, ETextStyle eStyle = STYLE_PLAIN)
    {
        m_kLines.push_back({"  " + kText, eStyle});
    }

    std::string m_kIfEmpty;
};

struct Section_t
{
    const eC_Char* m_pcHeading;
    const eC_Char* m_pcIfEmpty;
    eC_UInt m_uiParts;
    eC_UInt m_uiPartsBelow; ///< shown after the others, whatever the order of the parts is
};

constexpr Section_t cakSections[] = {{"current dialog", "none", STATE_CURRENT, 0},
                                     {"history, most recent first", "empty", STATE_HISTORY, 0},
                                     {"popups, lowest priority first", "none", STATE_ACTIVE_POPUPS, 0},
                                     {"focus", "nothing has it", STATE_FOCUS, STATE_REMEMBERED_FOCUS},
                                     {"tree, in drawing order", "empty", STATE_TREE, 0},
                                     {"timers", "none", STATE_TIMERS, 0},
                                     {"dialogs registered", "none", STATE_DIALOG_DEFINITIONS, 0},
                                     {"popups registered", "none", STATE_POPUP_DEFINITIONS, 0},
                                     {"dynamic identifiers", "none", STATE_DYNAMIC_IDENTIFIERS, 0}};

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

std::vector<StyledLine_t> DescribeState(const CGUIInspector& kInspector)
{
    CDescriber kDescriber;
    for (const Section_t& kSection : cakSections)
    {
        kDescriber.BeginSection(kSection.m_pcHeading, kSection.m_pcIfEmpty);
        kInspector.Visit(kSection.m_uiParts, kDescriber);
        kInspector.Visit(kSection.m_uiPartsBelow, kDescriber);
        kDescriber.EndSection();
    }
    HeapFigures_t kHeap;
    if (kInspector.GetHeap(kHeap))
    {
        kDescriber.m_kLines.push_back({"heap", STYLE_STRONG});
        kDescriber.m_kLines.push_back({"  " + std::to_string(kHeap.m_uiUsed) + " bytes, at most " +
                                           std::to_string(kHeap.m_uiMost) + " of " +
                                           std::to_string(kHeap.m_uiSize),
                                       STYLE_PLAIN});
    }
    return kDescriber.m_kLines;
}

StateNames_t CollectNames(const CGUIInspector& kInspector)
{
    CNameCollector kCollector;
    kInspector.Visit(STATE_DEFINITIONS, kCollector);
    kInspector.Visit(STATE_CURRENT | STATE_HISTORY | STATE_ACTIVE_POPUPS | STATE_TREE, kCollector);
    return kCollector.m_kNames;
}
