// SPDX-License-Identifier: MIT
#include "Scenario/StatePrinter.h"

#include "Core/Control/GUIObject.h"
#include "Scenario/Names.h"

#include <cstddef>

namespace
{
using Access = CGUIStateAccess;

std::string NameOrDash(const CGUIObject& kObject)
{
    return kObject.GetID() != NO_HANDLE ? NameOfHandle(kObject.GetID()) : "-";
}

/** @return how the dialog was shown, with what is unusual */
std::string PrintDescription(const Access::DialogDescription_t& kDialog)
{
    return "after " + NameOfAction(kDialog.m_eOldDialogAction) +
           (kDialog.m_bAllowObjectDeletion ? "" : ", no deletion") +
           (kDialog.m_bRecoverFocus ? "" : ", no recovery");
}

std::string PrintPath(const eC_String& kPath)
{
    return "\"" + std::string(kPath.GetText()) + "\"";
}

/** @return the settings that definitions and active popups share */
std::string PrintPopupSettings(CGUIDialogManager::PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                               eC_Bool bDeleteOnClose)
{
    return "prio " + std::to_string(static_cast<eC_UInt>(ePriority)) + ", " + std::to_string(uiDisplayTime) +
           " ms, " + (bDeleteOnClose ? "delete on close" : "hide on close");
}

std::string PrintTimeLeft(eC_UInt uiTimeLeft)
{
    return ", " + std::to_string(uiTimeLeft) + " ms left";
}

/** Collects the lines of the items that it visits. */
class CPrinter : public CStateVisitor
{
public:
    const std::string& GetText() const { return m_kText; }

    void VisitCurrent(const Access::DialogDescription_t& kDialog) override
    {
        const std::string kName =
            kDialog.m_eDialogID != NO_HANDLE ? NameOfHandle(kDialog.m_eDialogID) : std::string("none");
        const Access::DialogDescription_t kNone;
        const bool bIsNone = kDialog.m_eDialogID == NO_HANDLE &&
                             kDialog.m_eOldDialogAction == kNone.m_eOldDialogAction &&
                             kDialog.m_bAllowObjectDeletion && kDialog.m_bRecoverFocus;
        m_kText += "current: " + kName + (bIsNone ? "" : " " + PrintDescription(kDialog)) + "\n";
    }

    void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) override
    {
        m_kText +=
            "history: " + NameOfHandle(kEntry.m_Dialog.m_eDialogID) + " " + NameOfAction(kEntry.m_eAction);
        if (kEntry.m_eFocussedObject != NO_HANDLE)
        {
            m_kText += " focus " + NameOfHandle(kEntry.m_eFocussedObject);
        }
        m_kText += " (" + PrintDescription(kEntry.m_Dialog) + ")\n";
    }

    void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) override
    {
        m_kText +=
            "dialog: " + NameOfHandle(kDefinition.m_eDialogID) + " " + PrintPath(kDefinition.m_kPath) + "\n";
    }

    void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) override
    {
        m_kText += "popup: " + PrintPopupDefinition(kDefinition) + "\n";
    }

    void VisitActivePopup(const ActivePopupState_t& kPopup) override
    {
        const CGUIObject* pkObject = kPopup.m_pkObject;
        m_kText += "active: " + (pkObject != nullptr ? NameOrDash(*pkObject) : std::string("gone")) + " " +
                   PrintPopupSettings(kPopup.m_ePriority, kPopup.m_uiDisplayTime, kPopup.m_bDeleteOnClose);
        if (pkObject != nullptr)
        {
            m_kText += pkObject->IsInvisible() ? ", hidden" : ", shown";
        }
        m_kText += kPopup.m_bIsDetached ? ", detached" : "";
        m_kText += kPopup.m_bHasTimer ? PrintTimeLeft(kPopup.m_uiTimeLeft) : "";
        m_kText += "\n";
    }

    void VisitRememberedFocus(const CGUIObject& kObject) override
    {
        m_kText += "remembered: " + NameOrDash(kObject) + "\n";
    }

    void VisitDynamicIdentifier(ObjectHandle_t eID) override
    {
        // All are on one line: the next one replaces the line break.
        if (m_bHasDynamicIdentifiers)
        {
            m_kText.pop_back();
        }
        m_kText += m_bHasDynamicIdentifiers ? " " : "dynamic: ";
        m_kText += std::to_string(static_cast<eC_Int>(eID)) + "\n";
        m_bHasDynamicIdentifiers = true;
    }

    void VisitFocus(const CGUIObject& kObject) override { m_kText += "focus: " + NameOrDash(kObject) + "\n"; }

    void VisitObject(const ObjectState_t& kObject) override
    {
        const CGUIObject& kVisited = *kObject.m_pkObject;
        m_kText += m_bHasTree ? "" : "tree:\n";
        m_bHasTree = true;
        m_kText += std::string(std::size_t{2} * (kObject.m_uiDepth + 1), ' ') + NameOrDash(kVisited) +
                   (kVisited.IsInvisible() ? " invisible" : "");
        if (kObject.m_bHasFocus)
        {
            m_kText += " focussed";
        }
        else if (kVisited.IsFocusable())
        {
            m_kText += " focusable";
        }
        m_kText += "\n";
    }

    void VisitTimer(const TimerState_t& kTimer) override
    {
        m_kText += "timer: " + (kTimer.m_bIsPopup ? NameOfHandle(kTimer.m_ePopupID) : std::string("-")) +
                   " every " + std::to_string(kTimer.m_uiInterval) + " ms" +
                   PrintTimeLeft(kTimer.m_uiTimeLeft) + "\n";
    }

private:
    std::string m_kText;
    bool m_bHasDynamicIdentifiers = false;
    bool m_bHasTree = false;
};
} // namespace

std::string PrintState(const CGUIDialogManager& kManager, eC_UInt uiParts)
{
    CPrinter kPrinter;
    VisitState(kManager, uiParts, kPrinter);
    return kPrinter.GetText();
}

std::string PrintPopupDefinition(const CGUIDialogManager::RegisteredPopup_t& kDefinition)
{
    return NameOfHandle(kDefinition.m_ePopupID) + " " +
           PrintPopupSettings(kDefinition.m_ePriority, kDefinition.m_uiDisplayTime,
                              kDefinition.m_bDeleteOnClose) +
           ", " + PrintPath(kDefinition.m_kPath);
}
