// SPDX-License-Identifier: MIT
#include "TestSupport/HookRecorder.h"

#include "Scenario/Names.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace
{
const char* const capcHookNames[cuiNOFHooks] = {
    "CreateDialogImpl",    "OnDialogAdded",         "OnDialogActivation",   "OnDialogDeactivation",
    "OnDialogDeletion",    "OnAfterDialogDeletion", "OnLastDialogDeletion", "OnPopupActivation",
    "OnPopupDeactivation", "CreatePopupImpl"};

std::string NameOfFlag(eC_Bool bFlag)
{
    return bFlag ? "true" : "false";
}

std::string NameOfFlags(eC_Bool bAllowDeletion, eC_Bool bRecoverFocus)
{
    return NameOfFlag(bAllowDeletion) + ", " + NameOfFlag(bRecoverFocus);
}
} // namespace

const char* NameOfHook(EHook eHook)
{
    return capcHookNames[eHook];
}

void CRecordingDialogManager::SetVeto(ObjectHandle_t eDialogID, eC_Bool bVeto)
{
    m_kVetoes.erase(std::remove(m_kVetoes.begin(), m_kVetoes.end(), eDialogID), m_kVetoes.end());
    if (bVeto)
    {
        m_kVetoes.push_back(eDialogID);
    }
}

void CRecordingDialogManager::SetDialogCreator(ObjectHandle_t eID, Creator_t kCreator, eC_Bool bAllowDeletion,
                                               eC_Bool bRecoverFocus)
{
    SetCreation(m_kDialogCreations, {eID, std::move(kCreator), bAllowDeletion, bRecoverFocus});
}

void CRecordingDialogManager::SetPopupCreator(ObjectHandle_t eID, Creator_t kCreator)
{
    SetCreation(m_kPopupCreations, {eID, std::move(kCreator), true, true});
}

void CRecordingDialogManager::FailHook(eC_UInt uiCall, EFailure eFailure)
{
    m_uiFailingCall = m_uiHookCalls + uiCall;
    m_eFailure = eFailure;
}

CGUIObject* CRecordingDialogManager::CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                                      eC_Bool& bRecoverFocusOUT) const
{
    CGUIObject* pkDialog = nullptr;
    const std::string kArguments =
        NameOfHandle(eID) + ", " + NameOfFlags(bAllowDeletionOUT, bRecoverFocusOUT);
    Record(HOOK_CREATE_DIALOG_IMPL, kArguments, nullptr,
           [&]
           {
               const Creation_t* pkCreation = FindCreation(m_kDialogCreations, eID);
               if (pkCreation == nullptr)
               {
                   pkDialog = CGUIDialogManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT);
                   return " -> " + NameOfObject(pkDialog);
               }
               const Creation_t kCreation = *pkCreation; // copied, because the creator may set others
               bAllowDeletionOUT = kCreation.m_bAllowDeletion;
               bRecoverFocusOUT = kCreation.m_bRecoverFocus;
               pkDialog = kCreation.m_kCreator();
               return " -> " + NameOfObject(pkDialog) + " (" +
                      NameOfFlags(bAllowDeletionOUT, bRecoverFocusOUT) + ")";
           });
    return pkDialog;
}

void CRecordingDialogManager::OnDialogAdded(CGUIObject* pDialog)
{
    RecordNotification(HOOK_ON_DIALOG_ADDED, NameOfObject(pDialog), pDialog);
}

void CRecordingDialogManager::OnDialogActivation(CGUIObject* pDialog)
{
    RecordNotification(HOOK_ON_DIALOG_ACTIVATION, NameOfObject(pDialog), pDialog);
}

void CRecordingDialogManager::OnDialogDeactivation(CGUIObject* pDialog)
{
    RecordNotification(HOOK_ON_DIALOG_DEACTIVATION, NameOfObject(pDialog), pDialog);
}

eC_Bool CRecordingDialogManager::OnDialogDeletion(CGUIObject* pDialog)
{
    // An action inside the hook may destroy the dialog.
    const ObjectHandle_t eID = pDialog->GetID();
    eC_Bool bAllowed = true;
    Record(HOOK_ON_DIALOG_DELETION, NameOfHandle(eID), pDialog,
           [&]
           {
               bAllowed = std::find(m_kVetoes.begin(), m_kVetoes.end(), eID) == m_kVetoes.end();
               return " -> " + NameOfFlag(bAllowed);
           });
    return bAllowed;
}

void CRecordingDialogManager::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID,
                                                    ObjectHandle_t eNewDialogID)
{
    RecordNotification(HOOK_ON_AFTER_DIALOG_DELETION,
                       NameOfHandle(eDeletedDialogID) + ", " + NameOfHandle(eNewDialogID), nullptr);
}

void CRecordingDialogManager::OnLastDialogDeletion()
{
    RecordNotification(HOOK_ON_LAST_DIALOG_DELETION, std::string(), nullptr);
}

void CRecordingDialogManager::OnPopupActivation(CGUIObject* pPopup)
{
    RecordNotification(HOOK_ON_POPUP_ACTIVATION, NameOfObject(pPopup), pPopup);
}

void CRecordingDialogManager::OnPopupDeactivation(CGUIObject* pPopup)
{
    RecordNotification(HOOK_ON_POPUP_DEACTIVATION, NameOfObject(pPopup), pPopup);
}

CGUIObject* CRecordingDialogManager::CreatePopupImpl(ObjectHandle_t eID)
{
    CGUIObject* pkPopup = nullptr;
    Record(HOOK_CREATE_POPUP_IMPL, NameOfHandle(eID), nullptr,
           [&]
           {
               const Creation_t* pkCreation = FindCreation(m_kPopupCreations, eID);
               const Creator_t kCreator = pkCreation != nullptr ? pkCreation->m_kCreator : Creator_t();
               pkPopup = kCreator ? kCreator() : CGUIDialogManager::CreatePopupImpl(eID);
               return " -> " + NameOfObject(pkPopup);
           });
    return pkPopup;
}

const CRecordingDialogManager::Creation_t*
CRecordingDialogManager::FindCreation(const std::vector<Creation_t>& kCreations, ObjectHandle_t eID)
{
    for (const Creation_t& kCreation : kCreations)
    {
        if (kCreation.m_eID == eID)
        {
            return &kCreation;
        }
    }
    return nullptr;
}

void CRecordingDialogManager::SetCreation(std::vector<Creation_t>& kCreations, Creation_t kCreation)
{
    const ObjectHandle_t eID = kCreation.m_eID;
    kCreations.erase(std::remove_if(kCreations.begin(), kCreations.end(),
                                    [eID](const Creation_t& kOther) { return kOther.m_eID == eID; }),
                     kCreations.end());
    kCreations.push_back(std::move(kCreation));
}

/** Records a call, runs the actions that tests have set for the hook, then the body, which returns the text
 *  of the result.
 */
template <typename TBody>
void CRecordingDialogManager::Record(EHook eHook, const std::string& kArguments, CGUIObject* pkObject,
                                     TBody kBody) const
{
    const CEventLog::Ticket_t uiTicket =
        m_kEventLog.Add(EVENT_HOOK, std::string(NameOfHook(eHook)) + "(" + kArguments + ")");
    try
    {
        ++m_uiHookCalls;
        if (m_uiHookCalls == m_uiFailingCall)
        {
            ThrowFailure(m_eFailure);
        }
        RunActions(eHook, pkObject);
        m_kEventLog.Amend(uiTicket, kBody());
    }
    catch (int iValue)
    {
        m_kEventLog.Amend(uiTicket, " throws int " + std::to_string(iValue));
        throw;
    }
    catch (const std::exception& kException)
    {
        m_kEventLog.Amend(uiTicket, std::string(" throws ") + kException.what());
        throw;
    }
}

void CRecordingDialogManager::RecordNotification(EHook eHook, const std::string& kArguments,
                                                 CGUIObject* pkObject) const
{
    Record(eHook, kArguments, pkObject, [] { return std::string(); });
}

void CRecordingDialogManager::RunActions(EHook eHook, CGUIObject* pkObject) const
{
    std::vector<Action_t> kActions;
    for (const HookAction_t& kAction : m_kActions)
    {
        if (kAction.m_eHook == eHook)
        {
            kActions.push_back(kAction.m_kAction);
        }
    }
    // Remove actions that run once before running any: an action may call the manager and come back here.
    m_kActions.erase(std::remove_if(m_kActions.begin(), m_kActions.end(),
                                    [eHook](const HookAction_t& kAction)
                                    { return kAction.m_bOnce && kAction.m_eHook == eHook; }),
                     m_kActions.end());
    for (const Action_t& kAction : kActions)
    {
        kAction(pkObject);
    }
}
