#include "Scenario/StatePrinter.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"
#include "Scenario/Names.h"
#include "Scenario/StateAccess.h"

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

std::string PrintCurrent(const CGUIDialogManager& kManager)
{
    const Access::DialogDescription_t& kDialog = Access::GetCurrentDialog(kManager);
    const std::string kName =
        kDialog.m_eDialogID != NO_HANDLE ? NameOfHandle(kDialog.m_eDialogID) : std::string("none");
    const Access::DialogDescription_t kNone;
    const bool bIsNone = kDialog.m_eDialogID == NO_HANDLE &&
                         kDialog.m_eOldDialogAction == kNone.m_eOldDialogAction &&
                         kDialog.m_bAllowObjectDeletion && kDialog.m_bRecoverFocus;
    return "current: " + kName + (bIsNone ? "" : " " + PrintDescription(kDialog)) + "\n";
}

std::string PrintHistory(const CGUIDialogManager& kManager)
{
    std::string kText;
    for (auto kIterator = Access::GetHistory(kManager).GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        const Access::HistoryEntry_t& kEntry = *kIterator;
        kText +=
            "history: " + NameOfHandle(kEntry.m_Dialog.m_eDialogID) + " " + NameOfAction(kEntry.m_eAction);
        if (kEntry.m_eFocussedObject != NO_HANDLE)
        {
            kText += " focus " + NameOfHandle(kEntry.m_eFocussedObject);
        }
        kText += " (" + PrintDescription(kEntry.m_Dialog) + ")\n";
    }
    return kText;
}

std::string PrintPath(const eC_String& kPath)
{
    return "\"" + std::string(kPath.GetText()) + "\"";
}

std::string PrintDialogDefinitions(const CGUIDialogManager& kManager)
{
    std::string kText;
    for (auto kIterator = Access::GetRegisteredDialogs(kManager).GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        const Access::RegisteredDialog_t& kDefinition = *kIterator;
        kText +=
            "dialog: " + NameOfHandle(kDefinition.m_eDialogID) + " " + PrintPath(kDefinition.m_kPath) + "\n";
    }
    return kText;
}

/** @return the settings that definitions and active popups share */
std::string PrintPopupSettings(CGUIDialogManager::PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                               eC_Bool bDeleteOnClose)
{
    return "prio " + std::to_string(static_cast<eC_UInt>(ePriority)) + ", " + std::to_string(uiDisplayTime) +
           " ms, " + (bDeleteOnClose ? "delete on close" : "hide on close");
}

std::string PrintPopupDefinitions(const CGUIDialogManager& kManager)
{
    std::string kText;
    for (auto kIterator = Access::GetRegisteredPopups(kManager).GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        kText += "popup: " + PrintPopupDefinition(*kIterator) + "\n";
    }
    return kText;
}

std::string PrintActivePopup(const Access::PopupDescription_t& kPopup)
{
    const CGUIObject* pkObject = kPopup.GetObject();
    std::string kText =
        "active: " + (pkObject != nullptr ? NameOrDash(*pkObject) : std::string("gone")) + " " +
        PrintPopupSettings(kPopup.GetPriority(), kPopup.GetDisplayTime(), kPopup.m_bDeleteOnClose);
    if (pkObject != nullptr)
    {
        kText += pkObject->IsInvisible() ? ", hidden" : ", shown";
        kText += pkObject->IsDescendantOf(CGUI::ms_pInstance) ? "" : ", detached";
    }
    if (kPopup.IsAnimating())
    {
        kText += ", " + std::to_string(GETTIMER.GetTimeUntilCallback(&kPopup)) + " ms left";
    }
    return kText + "\n";
}

std::string PrintActivePopups(const CGUIDialogManager& kManager)
{
    std::string kText;
    for (auto kIterator = Access::GetActivePopups(kManager).GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        kText += PrintActivePopup(*kIterator);
    }
    return kText;
}

std::string PrintRememberedFocus(const CGUIDialogManager& kManager)
{
    const CGUIObject* pkFocus = Access::GetCurrentDialogFocus(kManager);
    return pkFocus != nullptr ? "remembered: " + NameOrDash(*pkFocus) + "\n" : std::string();
}

std::string PrintDynamicIdentifiers(const CGUIDialogManager& kManager)
{
    std::string kNumbers;
    for (auto kIterator = Access::GetDynamicObjectIDs(kManager).GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        kNumbers += " " + std::to_string(*kIterator);
    }
    return kNumbers.empty() ? kNumbers : "dynamic:" + kNumbers + "\n";
}

std::string PrintFocus()
{
    const CGUIObject* pkFocus = CGUIEventHandler::GetInstance().GetFocussedObject();
    return pkFocus != nullptr ? "focus: " + NameOrDash(*pkFocus) + "\n" : std::string();
}

std::string PrintChildren(const CGUICompositeObject& kParent, const std::string& kIndent)
{
    std::string kText;
    for (const CGUIObject* pkChild = kParent.GetFirstChild(); pkChild != nullptr;
         pkChild = pkChild->GetNextSibling())
    {
        kText += kIndent + NameOrDash(*pkChild) + (pkChild->IsInvisible() ? " invisible" : "");
        if (CGUIEventHandler::GetInstance().GetFocussedObject() == pkChild)
        {
            kText += " focussed";
        }
        else if (pkChild->IsFocusable())
        {
            kText += " focusable";
        }
        kText += "\n";
        if (pkChild->IsCompositeObject())
        {
            kText += PrintChildren(static_cast<const CGUICompositeObject&>(*pkChild), kIndent + "  ");
        }
    }
    return kText;
}

std::string PrintTree()
{
    const std::string kChildren =
        CGUI::ms_pInstance != nullptr ? PrintChildren(*CGUI::ms_pInstance, "  ") : std::string();
    return kChildren.empty() ? kChildren : "tree:\n" + kChildren;
}
} // namespace

std::string PrintState(const CGUIDialogManager& kManager, eC_UInt uiParts)
{
    std::string kText;
    kText += (uiParts & STATE_CURRENT) != 0 ? PrintCurrent(kManager) : "";
    kText += (uiParts & STATE_HISTORY) != 0 ? PrintHistory(kManager) : "";
    kText += (uiParts & STATE_DIALOG_DEFINITIONS) != 0 ? PrintDialogDefinitions(kManager) : "";
    kText += (uiParts & STATE_POPUP_DEFINITIONS) != 0 ? PrintPopupDefinitions(kManager) : "";
    kText += (uiParts & STATE_ACTIVE_POPUPS) != 0 ? PrintActivePopups(kManager) : "";
    kText += (uiParts & STATE_REMEMBERED_FOCUS) != 0 ? PrintRememberedFocus(kManager) : "";
    kText += (uiParts & STATE_DYNAMIC_IDENTIFIERS) != 0 ? PrintDynamicIdentifiers(kManager) : "";
    kText += (uiParts & STATE_FOCUS) != 0 ? PrintFocus() : "";
    kText += (uiParts & STATE_TREE) != 0 ? PrintTree() : "";
    return kText;
}

std::string PrintPopupDefinition(const CGUIDialogManager::RegisteredPopup_t& kDefinition)
{
    return NameOfHandle(kDefinition.m_ePopupID) + " " +
           PrintPopupSettings(kDefinition.m_ePriority, kDefinition.m_uiDisplayTime,
                              kDefinition.m_bDeleteOnClose) +
           ", " + PrintPath(kDefinition.m_kPath);
}
