// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogBudget.h"

#include "Companions/TraceText.h"
#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUITrace.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

CGUIDialogBudget::CGUIDialogBudget(CGUIObservedDialogManager& kManager, eC_UInt uiMost, Measure_t pfnMeasure)
    : m_uiMost(uiMost), m_pfnMeasure(pfnMeasure)
{
    kManager.AddListener(*this);
}

CGUIDialogBudget::~CGUIDialogBudget() = default;

eC_UInt CGUIDialogBudget::CountObjects(const CGUIObject& kDialog)
{
    eC_UInt uiObjects = 1;
    if (kDialog.IsCompositeObject())
    {
        const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kDialog).GetFirstChild();
        for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            uiObjects += CountObjects(*pkChild);
        }
    }
    return uiObjects;
}

eC_UInt CGUIDialogBudget::GetUse() const
{
    if (GetManager() == nullptr)
    {
        return 0;
    }
    eC_UInt uiUse = 0;
    for (Entry_t kEntry = GetManager()->GetDialogHistory().GetBegin(); kEntry.IsValid(); ++kEntry)
    {
        const CGUIObject* const pkDialog = FindHidden(kEntry);
        uiUse += pkDialog != nullptr ? m_pfnMeasure(*pkDialog) : 0;
    }
    return uiUse;
}

// --- Hooks -------------------------------------------------------------------------------------------

void CGUIDialogBudget::OnDialogAdded(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    Settle();
}

void CGUIDialogBudget::OnDialogActivation(CGUIObject* pDialog)
{
    BuildPredecessorOf(pDialog);
    Settle();
}

void CGUIDialogBudget::OnDialogDeactivation(CGUIObject* pDialog)
{
    BuildPredecessorOf(pDialog);
}

eC_Bool CGUIDialogBudget::OnDialogDeletion(CGUIObject* pDialog)
{
    BuildPredecessorOf(pDialog);
    return true;
}

void CGUIDialogBudget::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
{
    if (eDeletedDialogID != GetManager()->GetCurrentDialogID() || eNewDialogID == NO_HANDLE)
    {
        // Back is complete, a dialog on the way was removed, or none comes back.
        return;
    }
    eC_Bool bIsFirst = true;
    for (eC_UInt uiPosition = 0; uiPosition < GetManager()->GetHistoryStackSize(); ++uiPosition)
    {
        if ((*GetManager()->GetDialogHistory().GetAt(uiPosition)).m_Dialog.m_eDialogID != eNewDialogID)
        {
            continue;
        }
        if (bIsFirst)
        {
            Build(uiPosition);
            bIsFirst = false;
        }
        // ClearDialogHistory counts its target from the other end than the dialogs that it keeps.
        Build(GetManager()->GetHistoryStackSize() - 1 - uiPosition);
    }
}

// --- Deleting ----------------------------------------------------------------------------------------

// Returns the dialog of an entry if it is kept and hidden, and has no more recent entry that counts.
CGUIObject* CGUIDialogBudget::FindHidden(const Entry_t& kEntry) const
{
    const ObjectHandle_t eID = (*kEntry).m_Dialog.m_eDialogID;
    CGUIObject* const pkDialog = CGUI::GetInstance().GetObjectByID(eID, false);
    if (pkDialog == nullptr || !pkDialog->IsInvisible() || eID == GetManager()->GetCurrentDialogID())
    {
        return nullptr;
    }
    Entry_t kMoreRecent = GetManager()->GetDialogHistory().GetBegin();
    while ((*kMoreRecent).m_Dialog.m_eDialogID != eID)
    {
        ++kMoreRecent;
    }
    return kMoreRecent == kEntry ? pkDialog : nullptr;
}

void CGUIDialogBudget::Settle()
{
    // Counted from the oldest entry, because hooks add and remove entries at the other end. The most recent
    // one stays.
    for (eC_UInt uiEntry = 1; uiEntry < GetManager()->GetHistoryStackSize() && GetUse() > m_uiMost; ++uiEntry)
    {
        const Entry_t kEntry =
            GetManager()->GetDialogHistory().GetAt(GetManager()->GetHistoryStackSize() - uiEntry);
        CGUIObject* const pkDialog = FindHidden(kEntry);
        if (pkDialog != nullptr && (*kEntry).m_Dialog.m_bAllowObjectDeletion)
        {
            Delete(pkDialog);
        }
    }
}

void CGUIDialogBudget::Delete(CGUIObject* pkDialog)
{
    const CSafeGUIObjectPtr pkSafeDialog = pkDialog;
    const ObjectHandle_t eID = pkDialog->GetID();
    const eC_Bool bIsAllowed = GetManager()->OnDialogDeletion(pkDialog);
    // The hook may have destroyed the dialog, or shown it.
    if (bIsAllowed && pkSafeDialog != nullptr && pkSafeDialog->IsInvisible())
    {
        GUILOG(GUI_TRACE_DEBUG,
               TraceText("CGUIDialogBudget::Delete: Deleting dialog with ID ", eID, ", there is no room.\n"));
        delete pkSafeDialog.get();
    }
}

// --- Building ----------------------------------------------------------------------------------------

void CGUIDialogBudget::BuildPredecessorOf(const CGUIObject* pkDialog) const
{
    if (pkDialog->GetID() == GetManager()->GetCurrentDialogID() && GetManager()->GetHistoryStackSize() > 0)
    {
        Build(0);
    }
}

void CGUIDialogBudget::Build(eC_UInt uiPosition) const
{
    const auto kEntry = *GetManager()->GetDialogHistory().GetAt(uiPosition);
    // The manager itself builds a dialog that is recorded as deleted.
    if (kEntry.m_eAction == CGUIDialogManager::ODA_DELETE ||
        kEntry.m_eAction == CGUIDialogManager::ODA_DELETE_ALL ||
        CGUI::GetInstance().GetObjectByID(kEntry.m_Dialog.m_eDialogID, false) != nullptr)
    {
        return;
    }
    try
    {
        eC_Bool bAllowDeletion = false;
        eC_Bool bRecoverFocus = false;
        CGUIObject* const pkDialog =
            GetManager()->GetDialogObject(kEntry.m_Dialog.m_eDialogID, bAllowDeletion, bRecoverFocus);
        if (pkDialog != nullptr)
        {
            pkDialog->SetInvisible(true);
        }
    }
    catch (...)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogBudget::Build: Caught an exception while a dialog was built again.\n");
    }
}
