// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogListener.h"

#include "Companions/GUIObservedDialogManager.h"

CGUIDialogListener::~CGUIDialogListener()
{
    if (m_pkManager != nullptr)
    {
        m_pkManager->RemoveListener(*this);
    }
}

CGUIObject* CGUIDialogListener::CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                                 eC_Bool& bRecoverFocusOUT)
{
    static_cast<void>(eID);
    static_cast<void>(bAllowDeletionOUT);
    static_cast<void>(bRecoverFocusOUT);
    return nullptr;
}

void CGUIDialogListener::OnDialogAdded(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
}

void CGUIDialogListener::OnDialogActivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
}

void CGUIDialogListener::OnDialogDeactivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
}

eC_Bool CGUIDialogListener::OnDialogDeletion(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    return true;
}

void CGUIDialogListener::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
{
    static_cast<void>(eDeletedDialogID);
    static_cast<void>(eNewDialogID);
}

void CGUIDialogListener::OnLastDialogDeletion() {}

void CGUIDialogListener::OnPopupActivation(CGUIObject* pPopup)
{
    static_cast<void>(pPopup);
}

void CGUIDialogListener::OnPopupDeactivation(CGUIObject* pPopup)
{
    static_cast<void>(pPopup);
}

CGUIObject* CGUIDialogListener::CreatePopupImpl(ObjectHandle_t eID)
{
    static_cast<void>(eID);
    return nullptr;
}
