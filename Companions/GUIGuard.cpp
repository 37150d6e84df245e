// SPDX-License-Identifier: MIT
#include "Companions/GUIGuard.h"

#include "Companions/FlagScope.h"
#include "Companions/TraceText.h"
#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

namespace
{
constexpr eC_UInt cuiSoon = 1; ///< milliseconds: once the current operation is over

eC_Bool Contains(const ObjectHandle_t* peIDs, eC_UInt uiNOFIDs, ObjectHandle_t eID)
{
    eC_UInt uiPlace = 0;
    while (uiPlace < uiNOFIDs && peIDs[uiPlace] != eID)
    {
        ++uiPlace;
    }
    return uiPlace < uiNOFIDs;
}
} // namespace

CGUIGuard::CGUIGuard(CGUIObservedDialogManager& kManager, ObjectHandle_t eQuestion,
                     const ObjectHandle_t* peDialogs, eC_UInt uiNOFDialogs)
    : m_peDialogs(peDialogs), m_uiNOFDialogs(uiNOFDialogs), m_eQuestion(eQuestion)
{
    kManager.AddListener(*this);
}

CGUIGuard::~CGUIGuard() = default;

void CGUIGuard::SetGroup(const ObjectHandle_t* peDialogs, eC_UInt uiNOFDialogs)
{
    m_peGroup = peDialogs;
    m_uiNOFGroup = uiNOFDialogs;
}

void CGUIGuard::SetTime(eC_UInt uiTime)
{
    m_uiTime = uiTime;
    SetTimer();
}

// --- Asking ------------------------------------------------------------------------------------------

CGUIGuard::EShown CGUIGuard::Show(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction)
{
    if (GetManager() == nullptr)
    {
        return GUARD_FAILS;
    }
    if (MayShow(eID))
    {
        return GetManager()->CreateDialog(eID, eAction) != nullptr ? GUARD_SHOWS : GUARD_FAILS;
    }
    GUILOG(GUI_TRACE_DEBUG, TraceText("CGUIGuard::Show: Dialog with ID ", eID, " needs a right.\n"));
    m_eWanted = eID;
    m_eAction = eAction;
    // Hidden, not left with the action: that is executed when the question is answered.
    const eC_Bool bIsAsking =
        IsAsking() || GetManager()->CreateDialog(m_eQuestion, CGUIDialogManager::ODA_INVISIBLE) != nullptr;
    return bIsAsking ? GUARD_ASKS : GUARD_FAILS;
}

void CGUIGuard::Grant()
{
    m_bHasRight = true;
    m_bIsUsed = false;
    m_eFor = NO_HANDLE;
    m_uiSince = GETTIMER.GetTime();
    SetTimer();
    GUILOG(GUI_TRACE_DEBUG, TraceText("CGUIGuard::Grant: Dialog with ID ", m_eQuestion, " is answered.\n"));
    if (GetManager() != nullptr)
    {
        if (IsAsking())
        {
            GoOn();
        }
        UseRight(GetManager()->GetCurrentDialogID());
    }
}

void CGUIGuard::GoOn()
{
    const CFlagScope kScope(m_bIsGoingOn);
    const ObjectHandle_t eWanted = m_eWanted;
    m_eWanted = NO_HANDLE;
    GetManager()->Back(true);
    if (eWanted == NO_HANDLE)
    {
        return;
    }
    const eC_Bool bIsFirst = IsAsking();
    GetManager()->CreateDialog(eWanted, bIsFirst ? CGUIDialogManager::ODA_DELETE : m_eAction);
    if (bIsFirst && !IsAsking())
    {
        // Back stays at the only dialog, so the question has just been recorded.
        GetManager()->ClearDialogHistory(GetManager()->GetHistoryStackSize() - 1, true, false);
    }
}

void CGUIGuard::Revoke()
{
    EndRight();
    GETTIMER.AddAnimationCallback(cuiSoon, this);
}

eC_Bool CGUIGuard::Refuse()
{
    if (!IsAsking())
    {
        return false;
    }
    if (m_eWanted == NO_HANDLE)
    {
        return GoFurtherBack();
    }
    if (GetManager()->GetHistoryStackSize() == 0)
    {
        return false;
    }
    GetManager()->Back(true);
    Settle();
    return true;
}

eC_Bool CGUIGuard::HasRight() const
{
    return m_bHasRight && (m_uiTime == 0 || GETTIMER.GetTime() - m_uiSince < m_uiTime);
}

eC_Bool CGUIGuard::IsAsking() const
{
    return GetManager() != nullptr && GetManager()->GetCurrentDialogID() == m_eQuestion;
}

void CGUIGuard::Settle()
{
    if (GetManager() == nullptr || m_bIsSettling)
    {
        return;
    }
    const CFlagScope kScope(m_bIsSettling);
    try
    {
        if (!MayShow(GetManager()->GetCurrentDialogID()) && !(m_bIsRefused && GoFurtherBack()))
        {
            Ask();
        }
    }
    catch (...)
    {
        HideAll();
        throw;
    }
    m_bIsRefused = false;
    HideAll();
}

void CGUIGuard::Ask()
{
    const ObjectHandle_t eCurrent = GetManager()->GetCurrentDialogID();
    GUILOG(GUI_TRACE_DEBUG, TraceText("CGUIGuard::Ask: Dialog with ID ", eCurrent, " needs a right.\n"));
    m_eWanted = NO_HANDLE;
    if (GetManager()->CreateDialog(m_eQuestion, CGUIDialogManager::ODA_INVISIBLE) == nullptr)
    {
        GoFurtherBack();
    }
}

// Goes back past all guarded dialogs and the question. Direct: none of them is activated on the way.
eC_Bool CGUIGuard::GoFurtherBack()
{
    CGUIObservedDialogManager::PastDialog_t kDialog = {};
    eC_UInt uiPosition = 0;
    while (GetManager()->GetPastDialog(uiPosition, kDialog) &&
           (IsGuarded(kDialog.m_eDialogID) || kDialog.m_eDialogID == m_eQuestion))
    {
        ++uiPosition;
    }
    if (uiPosition >= GetManager()->GetHistoryStackSize())
    {
        return false;
    }
    const ObjectHandle_t eFree = kDialog.m_eDialogID;
    GUILOG(GUI_TRACE_DEBUG,
           TraceText("CGUIGuard::GoFurtherBack: Going back to dialog with ID ", eFree, ".\n"));
    return GetManager()->BackToDialog(eFree, true, false);
}

// --- Looking -----------------------------------------------------------------------------------------

void CGUIGuard::OnDialogAdded(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    Look();
}

void CGUIGuard::OnDialogActivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    Look();
}

void CGUIGuard::OnDialogDeactivation(CGUIObject* pDialog)
{
    if (pDialog->GetID() == m_eOwed)
    {
        m_eOwed = NO_HANDLE;
    }
}

void CGUIGuard::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
{
    // BackToDialog and ClearDialogHistory call this before their target is current: they name it on purpose.
    const eC_Bool bIsBack = eNewDialogID == GetManager()->GetCurrentDialogID();
    if (eDeletedDialogID == m_eQuestion && bIsBack && !MayShow(eNewDialogID))
    {
        m_bIsRefused = true;
    }
}

void CGUIGuard::DoAnimate(const eC_Value& vTimes)
{
    static_cast<void>(vTimes);
    GETTIMER.RemoveAnimationCallback(this);
    if (m_bHasRight && !HasRight())
    {
        EndRight();
    }
    SetTimer();
    Settle();
}

// Looks after a dialog has become current: does that end the right, and who must not be seen?
void CGUIGuard::Look()
{
    const ObjectHandle_t eCurrent = GetManager()->GetCurrentDialogID();
    if (!m_bIsGoingOn)
    {
        UseRight(eCurrent);
    }
    if (!GetManager()->ContainsDialog(m_eQuestion, true))
    {
        m_eWanted = NO_HANDLE;
    }
    HideAll();
    const eC_Bool bMayShow = MayShow(eCurrent);
    if (bMayShow)
    {
        m_bIsRefused = false;
        ShowAgain(eCurrent);
    }
    else
    {
        GETTIMER.AddAnimationCallback(cuiSoon, this);
    }
    TellOwed(eCurrent);
    m_eOwed = bMayShow ? NO_HANDLE : eCurrent;
}

void CGUIGuard::UseRight(ObjectHandle_t eCurrent)
{
    const eC_Bool bEnds = m_eEnd == END_AT_ONCE
                              ? m_eFor != NO_HANDLE && eCurrent != m_eFor
                              : m_eEnd == END_WITH_GROUP && m_bIsUsed && !IsInGroup(eCurrent);
    if (m_bHasRight && bEnds)
    {
        EndRight();
        return;
    }
    m_bIsUsed = m_bIsUsed || IsInGroup(eCurrent);
    m_eFor = m_eFor == NO_HANDLE && IsGuarded(eCurrent) ? eCurrent : m_eFor;
}

void CGUIGuard::EndRight()
{
    if (m_bHasRight)
    {
        m_bHasRight = false;
        GUILOG(GUI_TRACE_DEBUG,
               TraceText("CGUIGuard::EndRight: Dialog with ID ", m_eQuestion, " asks again.\n"));
    }
}

eC_Bool CGUIGuard::IsGuarded(ObjectHandle_t eID) const
{
    return Contains(m_peDialogs, m_uiNOFDialogs, eID);
}

eC_Bool CGUIGuard::IsInGroup(ObjectHandle_t eID) const
{
    return eID == m_eQuestion || IsGuarded(eID) || Contains(m_peGroup, m_uiNOFGroup, eID);
}

eC_Bool CGUIGuard::MayShow(ObjectHandle_t eID) const
{
    const eC_Bool bIsForAnother = m_eEnd == END_AT_ONCE && m_eFor != NO_HANDLE && m_eFor != eID;
    return !IsGuarded(eID) || (HasRight() && !bIsForAnother);
}

// Sets the one timer for the end of the right.
void CGUIGuard::SetTimer()
{
    if (HasRight() && m_uiTime != 0)
    {
        GETTIMER.AddAnimationCallback(m_uiTime - (GETTIMER.GetTime() - m_uiSince), this);
    }
}

// --- Hiding ------------------------------------------------------------------------------------------

void CGUIGuard::HideAll()
{
    for (eC_UInt uiDialog = 0; uiDialog < m_uiNOFDialogs; ++uiDialog)
    {
        if (!MayShow(m_peDialogs[uiDialog]))
        {
            CGUIObject* const pkDialog = CGUI::GetInstance().GetObjectByID(m_peDialogs[uiDialog], false);
            if (pkDialog != nullptr && !pkDialog->IsInvisible())
            {
                Hide(*pkDialog);
            }
        }
    }
}

void CGUIGuard::Hide(CGUIObject& kDialog)
{
    const CGUIObject* const pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    if (pkFocussed != nullptr && (pkFocussed == &kDialog || pkFocussed->IsDescendantOf(&kDialog)))
    {
        m_eFocussedDialog = kDialog.GetID();
        m_eFocussedObject = pkFocussed->GetID();
    }
    kDialog.SetInvisible(true);
}

// Shows a dialog that was hidden for lack of the right, and restores its focus: going back does not show one
// that was recorded with ODA_NOTHING, and knows no focus of one that was hidden.
void CGUIGuard::ShowAgain(ObjectHandle_t eID)
{
    CGUIObject* pkDialog = IsGuarded(eID) ? GetManager()->GetCurrentDialog() : nullptr;
    if (pkDialog != nullptr && pkDialog->IsInvisible())
    {
        if (pkDialog->GetParent() != nullptr)
        {
            pkDialog->GetParent()->DrawOnTop(pkDialog);
        }
        pkDialog->SetInvisible(false);
        // Showing it may have destroyed it.
        pkDialog = GetManager()->GetCurrentDialog();
    }
    if (pkDialog != nullptr && eID == m_eFocussedDialog)
    {
        CGUIObject* const pkFocussed = pkDialog->GetObjectByID(m_eFocussedObject, false);
        m_eFocussedDialog = NO_HANDLE;
        if (pkFocussed != nullptr)
        {
            pkFocussed->RequestFocus();
        }
    }
}

// Calls OnDialogDeactivation for a dialog that was activated while hidden, when it is no longer current. The
// manager does not: for it, the dialog was hidden already.
void CGUIGuard::TellOwed(ObjectHandle_t eCurrent)
{
    if (m_eOwed != NO_HANDLE && m_eOwed != eCurrent)
    {
        CGUIObject* const pkLeft = CGUI::GetInstance().GetObjectByID(m_eOwed, false);
        m_eOwed = NO_HANDLE;
        if (pkLeft != nullptr)
        {
            GetManager()->OnDialogDeactivation(pkLeft);
        }
    }
}
