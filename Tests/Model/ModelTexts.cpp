// SPDX-License-Identifier: MIT
#include "Tests/Model/ModelTexts.h"

#include "Tests/Model/Model.h"

namespace
{
const char* const capcHooks[] = {"CreateDialogImpl",     "OnDialogAdded",     "OnDialogActivation",
                                 "OnDialogDeactivation", "OnDialogDeletion",  "OnAfterDialogDeletion",
                                 "OnLastDialogDeletion", "OnPopupActivation", "OnPopupDeactivation",
                                 "CreatePopupImpl"};

const char* const capcIDs[] = {"NO_HANDLE", "DLG_A", "DLG_B", "DLG_C", "DLG_D", "POP_1",
                               "POP_2",     "POP_3", "POP_4", "OBJ_1", "OBJ_2", "OBJ_3"};
constexpr int ciIDs = 12;

const char* const capcActions[] = {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE", "ODA_DELETE_ALL",
                                   "ODA_NOTHING"};
} // namespace

const char* NameOfModelHook(int iHook)
{
    return capcHooks[iHook];
}

std::string NameOf(int iID)
{
    return iID < ciIDs ? capcIDs[iID] : std::to_string(iID);
}

std::string NameOfAction(int iAction)
{
    return iAction < ciActions ? capcActions[iAction] : std::to_string(iAction);
}

std::string NameOfFlag(bool bFlag)
{
    return bFlag ? "true" : "false";
}

std::string NameOfFlags(bool bOne, bool bOther)
{
    return NameOfFlag(bOne) + ", " + NameOfFlag(bOther);
}

std::string PrintSettings(int iPriority, unsigned int uiTime, bool bDeleteOnClose)
{
    return "prio " + std::to_string(iPriority) + ", " + std::to_string(uiTime) + " ms, " +
           (bDeleteOnClose ? "delete on close" : "hide on close");
}

std::string CModel::PrintDescription(const Description_t& kDialog) const
{
    return "after " + NameOfAction(kDialog.m_iAction) + (kDialog.m_bAllowDeletion ? "" : ", no deletion") +
           (kDialog.m_bRecoverFocus ? "" : ", no recovery");
}

std::string CModel::PrintActivePopup(const ActivePopup_t& kPopup) const
{
    const bool bIsAlive = IsAlive(kPopup.m_iObject);
    const int iID = bIsAlive ? At(kPopup.m_iObject).m_iID : 0;
    std::string kText = bIsAlive ? (iID != 0 ? NameOf(iID) : "-") : "gone";
    kText += " " + PrintSettings(kPopup.m_iPriority, kPopup.m_uiTime, kPopup.m_bDeleteOnClose);
    if (bIsAlive)
    {
        kText += At(kPopup.m_iObject).m_bIsInvisible ? ", hidden" : ", shown";
        kText += IsUnder(kPopup.m_iObject, 0) ? "" : ", detached";
    }
    for (const Callback_t& kCallback : m_kCallbacks)
    {
        if (kCallback.m_iPopup == kPopup.m_iNumber)
        {
            kText += ", " + std::to_string(GetTimeUntil(kCallback)) + " ms left";
        }
    }
    return kText;
}

std::string CModel::PrintTree(int iParent, const std::string& kIndent) const
{
    std::string kText;
    for (const int iChild : At(iParent).m_kChildren)
    {
        const Object_t& kChild = At(iChild);
        kText += kIndent + (kChild.m_iID != 0 ? NameOf(kChild.m_iID) : "-") +
                 (kChild.m_bIsInvisible ? " invisible" : "");
        kText += m_iFocus == iChild ? " focussed" : (kChild.m_bIsFocusable ? " focusable" : "");
        kText += "\n" + PrintTree(iChild, kIndent + "  ");
    }
    return kText;
}

std::string CModel::GetState()
{
    const Description_t& kCurrent = m_kCurrent;
    const bool bIsNone = kCurrent.m_iID == 0 && kCurrent.m_iAction == ciNothing &&
                         kCurrent.m_bAllowDeletion && kCurrent.m_bRecoverFocus;
    std::string kText = "current: " + (kCurrent.m_iID != 0 ? NameOf(kCurrent.m_iID) : "none") +
                        (bIsNone ? "" : " " + PrintDescription(kCurrent)) + "\n";
    for (const Entry_t& kEntry : m_kHistory)
    {
        kText += "history: " + NameOf(kEntry.m_kDialog.m_iID) + " " + NameOfAction(kEntry.m_iAction) +
                 (kEntry.m_iFocus != 0 ? " focus " + NameOf(kEntry.m_iFocus) : "") + " (" +
                 PrintDescription(kEntry.m_kDialog) + ")\n";
    }
    for (const Dialog_t& kDialog : m_kDialogs)
    {
        kText += "dialog: " + NameOf(kDialog.m_iID) + " \"" + kDialog.m_kPath + "\"\n";
    }
    for (const Popup_t& kPopup : m_kPopups)
    {
        kText += "popup: " + NameOf(kPopup.m_iID) + " " +
                 PrintSettings(kPopup.m_iPriority, kPopup.m_uiTime, kPopup.m_bDeleteOnClose) + ", \"" +
                 kPopup.m_kPath + "\"\n";
    }
    for (const ActivePopup_t& kPopup : m_kActive)
    {
        kText += "active: " + PrintActivePopup(kPopup) + "\n";
    }
    if (IsAlive(m_iRememberedFocus))
    {
        const int iID = At(m_iRememberedFocus).m_iID;
        kText += "remembered: " + (iID != 0 ? NameOf(iID) : "-") + "\n";
    }
    kText += m_uiDynamicIDs > 0 ? "dynamic:" : "";
    for (unsigned int uiID = 0; uiID < m_uiDynamicIDs; ++uiID)
    {
        kText += " " + std::to_string(m_iDynamicID);
    }
    kText += m_uiDynamicIDs > 0 ? "\n" : "";
    if (m_iFocus >= 0)
    {
        kText += "focus: " + (At(m_iFocus).m_iID != 0 ? NameOf(At(m_iFocus).m_iID) : "-") + "\n";
    }
    const std::string kTree = PrintTree(0, "  ");
    kText += kTree.empty() ? "" : "tree:\n" + kTree;
    for (const int iObject : GetObjects())
    {
        const Object_t& kObject = At(iObject);
        kText += "object " + std::to_string(iObject) + " " + NameOf(kObject.m_iID) + " under " +
                 std::to_string(kObject.m_iParent) + " " +
                 NameOfFlags(kObject.m_bIsInvisible, kObject.m_bIsFocusable) + "\n";
    }
    return kText;
}
