// SPDX-License-Identifier: MIT
#include "Application/CoffeeMachineDialogManager.h"

#include "Application/BuiltDialogs.h"
#include "Application/Definitions.h"
#include "Application/Handles.h"
#include "Application/Machine.h"
#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITrace.h"

namespace
{
eC_String GetName(ObjectHandle_t eID)
{
    const eC_Char* pcName = GetObjectHandleName(eID);
    return pcName != nullptr ? eC_String(pcName) : eC_String(static_cast<eC_Int>(eID));
}

void LogHook(const eC_Char* pcHook, ObjectHandle_t eID)
{
    GUILOGMESSAGE("hook " + eC_String(pcHook) + "(" + GetName(eID) + ").\n");
}

CGUIObject* GetFocussedObject()
{
    return CGUIEventHandler::GetInstance().GetFocussedObject();
}

eC_Bool IsInside(const CGUIObject* pkObject, const CGUIObject* pkAround)
{
    return pkObject != nullptr && (pkObject == pkAround || pkObject->IsDescendantOf(pkAround));
}

/** Asks all objects in drawing order, so that the topmost one gets the focus last. */
void FocusTopmost()
{
    for (CGUIObject* pkObject = CGUI::GetInstance().GetFirstChild(); pkObject != nullptr;
         pkObject = pkObject->GetNextSibling())
    {
        pkObject->FocusAny();
    }
}
} // namespace

CCoffeeMachineDialogManager::CCoffeeMachineDialogManager(CMachine& kMachine)
    : m_kMachine(kMachine), m_bScreenIsEmpty(false)
{
}

eC_Bool CCoffeeMachineDialogManager::TakeScreenIsEmpty()
{
    const eC_Bool bScreenIsEmpty = m_bScreenIsEmpty;
    m_bScreenIsEmpty = false;
    return bScreenIsEmpty;
}

ObjectHandle_t CCoffeeMachineDialogManager::GetPopupAround(const CGUIObject* pkObject) const
{
    for (const PopupDefinition_t& kPopup : cakPopupDefinitions)
    {
        const PopupDescription* pkActive = GetActivePopup(kPopup.m_ePopupID);
        if (pkActive != nullptr && !pkActive->GetObject()->IsInvisible() &&
            IsInside(pkObject, pkActive->GetObject()))
        {
            return kPopup.m_ePopupID;
        }
    }
    return NO_HANDLE;
}

CGUIObject* CCoffeeMachineDialogManager::CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                                          eC_Bool& bRecoverFocusOUT) const
{
    if (eID == DLG_BREWING)
    {
        LogHook("CreateDialogImpl", eID);
        // A user who returns to a cup wants to see it, whatever had the focus before.
        bRecoverFocusOUT = false;
        return BuildBrewingDialog();
    }
    return CGUIObservedDialogManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT);
}

void CCoffeeMachineDialogManager::OnDialogAdded(CGUIObject* pDialog)
{
    LogHook("OnDialogAdded", pDialog->GetID());
    // AddDialog calls no OnDialogActivation, so a dialog that is added gets the focus here.
    FocusDialog(pDialog);
    CGUIObservedDialogManager::OnDialogAdded(pDialog);
}

void CCoffeeMachineDialogManager::OnDialogActivation(CGUIObject* pDialog)
{
    LogHook("OnDialogActivation", pDialog->GetID());
    FocusDialog(pDialog);
    if (pDialog->GetID() == DLG_CLEANING_RINSE)
    {
        m_kMachine.SetValveOpen(true);
    }
    CGUIObservedDialogManager::OnDialogActivation(pDialog);
}

void CCoffeeMachineDialogManager::OnDialogDeactivation(CGUIObject* pDialog)
{
    LogHook("OnDialogDeactivation", pDialog->GetID());
    if (pDialog->GetID() == DLG_CLEANING_RINSE)
    {
        m_kMachine.SetValveOpen(false);
    }
    CGUIObservedDialogManager::OnDialogDeactivation(pDialog);
}

eC_Bool CCoffeeMachineDialogManager::OnDialogDeletion(CGUIObject* pDialog)
{
    LogHook("OnDialogDeletion", pDialog->GetID());
    if (pDialog->GetID() == DLG_CLEANING_RINSE)
    {
        m_kMachine.SetValveOpen(false);
    }
    const eC_Bool bIsNeeded = pDialog->GetID() == DLG_BREWING && m_kMachine.IsBrewing();
    return CGUIObservedDialogManager::OnDialogDeletion(pDialog) && !bIsNeeded;
}

void CCoffeeMachineDialogManager::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID,
                                                        ObjectHandle_t eNewDialogID)
{
    GUILOGMESSAGE("hook OnAfterDialogDeletion(" + GetName(eDeletedDialogID) + ", " + GetName(eNewDialogID) +
                  ").\n");
    CGUIObservedDialogManager::OnAfterDialogDeletion(eDeletedDialogID, eNewDialogID);
    const eC_Bool bHasDynamicID = GetObjectHandleName(eDeletedDialogID) == nullptr;
    if (bHasDynamicID)
    {
        delete CGUI::GetInstance().GetObjectByID(eDeletedDialogID, false);
    }
}

void CCoffeeMachineDialogManager::OnLastDialogDeletion()
{
    GUILOGMESSAGE("hook OnLastDialogDeletion().\n");
    m_bScreenIsEmpty = true;
    CGUIObservedDialogManager::OnLastDialogDeletion();
}

void CCoffeeMachineDialogManager::OnPopupActivation(CGUIObject* pPopup)
{
    LogHook("OnPopupActivation", pPopup->GetID());
    CGUIObject* pkFocussed = GetFocussedObject();
    if (IsInside(pkFocussed, GetCurrentDialog()))
    {
        m_pkDialogFocus = pkFocussed;
    }
    pPopup->FocusAny();
    CGUIObservedDialogManager::OnPopupActivation(pPopup);
}

void CCoffeeMachineDialogManager::OnPopupDeactivation(CGUIObject* pPopup)
{
    LogHook("OnPopupDeactivation", pPopup->GetID());
    if (GetFocussedObject() == nullptr)
    {
        FocusWhatRemains();
    }
    CGUIObservedDialogManager::OnPopupDeactivation(pPopup);
}

void CCoffeeMachineDialogManager::FocusWhatRemains() const
{
    // The manager gives the focus back to the dialog when the last popup has closed. Until then it goes to
    // another popup, or to where it was in the dialog.
    FocusTopmost();
    const eC_Bool bIsInPopup = GetPopupAround(GetFocussedObject()) != NO_HANDLE;
    if (!bIsInPopup && IsInside(m_pkDialogFocus, GetCurrentDialog()))
    {
        m_pkDialogFocus->RequestFocus();
    }
}

CGUIObject* CCoffeeMachineDialogManager::CreatePopupImpl(ObjectHandle_t eID)
{
    if (eID == POP_SAVED)
    {
        LogHook("CreatePopupImpl", eID);
        return BuildSavedPopup();
    }
    return CGUIObservedDialogManager::CreatePopupImpl(eID);
}

void CCoffeeMachineDialogManager::FocusDialog(CGUIObject* pkDialog) const
{
    // The manager never moves an existing focus. This moves it out of a dialog that stays visible below, but
    // not away from where it was restored, nor out of a popup.
    CGUIObject* pkFocussed = GetFocussedObject();
    if (!IsInside(pkFocussed, pkDialog) && GetPopupAround(pkFocussed) == NO_HANDLE)
    {
        pkDialog->FocusAny();
    }
}
