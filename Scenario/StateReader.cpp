// SPDX-License-Identifier: MIT
#include "Scenario/StateReader.h"

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"

namespace
{
using Access = CGUIStateAccess;

template <typename T, typename Visit_t>
void VisitEach(const eC_TListDoubleLinked<T>& kList, Visit_t fnVisit)
{
    for (auto kIterator = kList.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        fnVisit(*kIterator);
    }
}

ActivePopupState_t GetPopupState(const Access::PopupDescription_t& kPopup)
{
    ActivePopupState_t kState;
    kState.m_pkObject = kPopup.GetObject();
    kState.m_ePriority = kPopup.GetPriority();
    kState.m_uiDisplayTime = kPopup.GetDisplayTime();
    kState.m_bDeleteOnClose = kPopup.m_bDeleteOnClose;
    kState.m_bIsDetached =
        kState.m_pkObject != nullptr && !kState.m_pkObject->IsDescendantOf(CGUI::ms_pInstance);
    const Access::TimerCallback_t* const pkCallback = Access::FindTimerCallback(GETTIMER, &kPopup);
    kState.m_bHasTimer = pkCallback != nullptr;
    kState.m_uiDue = kState.m_bHasTimer ? static_cast<eC_UInt>(pkCallback->m_uiDue) : 0;
    kState.m_uiTimeLeft = kState.m_bHasTimer ? GETTIMER.GetTimeUntilCallback(&kPopup) : 0;
    return kState;
}

void VisitTree(CStateVisitor& kVisitor)
{
    const CGUIObject* const pkRoot = CGUI::ms_pInstance;
    const CGUIObject* pkObject = pkRoot != nullptr ? CGUI::ms_pInstance->GetFirstChild() : nullptr;
    eC_UInt uiDepth = 0;
    while (pkObject != nullptr)
    {
        const eC_Bool bHasFocus = CGUIEventHandler::GetInstance().GetFocussedObject() == pkObject;
        kVisitor.VisitObject({pkObject, uiDepth, bHasFocus});
        const CGUIObject* const pkFirstChild =
            pkObject->IsCompositeObject() ? static_cast<const CGUICompositeObject*>(pkObject)->GetFirstChild()
                                          : nullptr;
        if (pkFirstChild != nullptr)
        {
            pkObject = pkFirstChild;
            ++uiDepth;
            continue;
        }
        while (pkObject->GetNextSibling() == nullptr && pkObject->GetParent() != pkRoot)
        {
            pkObject = pkObject->GetParent();
            --uiDepth;
        }
        pkObject = pkObject->GetNextSibling();
    }
}

TimerState_t GetTimerState(const CGUIDialogManager& kManager, const Access::TimerCallback_t& kCallback)
{
    TimerState_t kState = {false, NO_HANDLE, kCallback.m_uiInterval, static_cast<eC_UInt>(kCallback.m_uiDue),
                           GETTIMER.GetTimeUntilCallback(kCallback.m_pkAnimatable)};
    VisitEach(Access::GetActivePopups(kManager),
              [&kState, &kCallback](const Access::PopupDescription_t& kPopup)
              {
                  if (&kPopup == kCallback.m_pkAnimatable)
                  {
                      kState.m_bIsPopup = true;
                      kState.m_ePopupID =
                          kPopup.GetObject() != nullptr ? kPopup.GetObject()->GetID() : NO_HANDLE;
                  }
              });
    return kState;
}

void VisitTimers(const CGUIDialogManager& kManager, CStateVisitor& kVisitor)
{
    const Access::TimerCallback_t* pkCallback = nullptr;
    while ((pkCallback = Access::GetNextTimerCallback(GETTIMER, pkCallback)) != nullptr)
    {
        kVisitor.VisitTimer(GetTimerState(kManager, *pkCallback));
    }
}

void VisitRecords(const CGUIDialogManager& kManager, eC_UInt uiParts, CStateVisitor& kVisitor)
{
    if ((uiParts & STATE_CURRENT) != 0)
    {
        kVisitor.VisitCurrent(Access::GetCurrentDialog(kManager));
    }
    if ((uiParts & STATE_HISTORY) != 0)
    {
        VisitEach(Access::GetHistory(kManager),
                  [&kVisitor](const Access::HistoryEntry_t& kEntry) { kVisitor.VisitHistoryEntry(kEntry); });
    }
    if ((uiParts & STATE_DIALOG_DEFINITIONS) != 0)
    {
        VisitEach(Access::GetRegisteredDialogs(kManager),
                  [&kVisitor](const Access::RegisteredDialog_t& kDialog)
                  { kVisitor.VisitDialogDefinition(kDialog); });
    }
    if ((uiParts & STATE_POPUP_DEFINITIONS) != 0)
    {
        VisitEach(Access::GetRegisteredPopups(kManager), [&kVisitor](const Access::RegisteredPopup_t& kPopup)
                  { kVisitor.VisitPopupDefinition(kPopup); });
    }
    if ((uiParts & STATE_ACTIVE_POPUPS) != 0)
    {
        VisitEach(Access::GetActivePopups(kManager), [&kVisitor](const Access::PopupDescription_t& kPopup)
                  { kVisitor.VisitActivePopup(GetPopupState(kPopup)); });
    }
}
} // namespace

const CGUIStateAccess::TimerCallback_t* CGUIStateAccess::GetNextTimerCallback(const CGUITimer& kTimer,
                                                                              const TimerCallback_t* pkBefore)
{
    const TimerCallback_t* pkNext = nullptr;
    const TimerCallback_t* pkCallback = kTimer.m_pkRoot;
    while (pkCallback != nullptr)
    {
        if ((pkBefore == nullptr || CGUITimer::IsDueBefore(*pkBefore, *pkCallback)) &&
            (pkNext == nullptr || CGUITimer::IsDueBefore(*pkCallback, *pkNext)))
        {
            pkNext = pkCallback;
        }
        pkCallback = GetNextInTree(pkCallback);
    }
    return pkNext;
}

const CGUIStateAccess::TimerCallback_t* CGUIStateAccess::GetNextInTree(const TimerCallback_t* pkCallback)
{
    for (const TimerCallback_t* pkChild : pkCallback->m_apkChildren)
    {
        if (pkChild != nullptr)
        {
            return pkChild;
        }
    }
    while (pkCallback->m_pkParent != nullptr)
    {
        const TimerCallback_t* const pkParent = pkCallback->m_pkParent;
        const TimerCallback_t* const pkSecond = pkParent->m_apkChildren[1];
        if (pkSecond != nullptr && pkSecond != pkCallback)
        {
            return pkSecond;
        }
        pkCallback = pkParent;
    }
    return nullptr;
}

void VisitState(const CGUIDialogManager& kManager, eC_UInt uiParts, CStateVisitor& kVisitor)
{
    VisitRecords(kManager, uiParts, kVisitor);
    const CGUIObject* const pkRemembered = Access::GetCurrentDialogFocus(kManager);
    if ((uiParts & STATE_REMEMBERED_FOCUS) != 0 && pkRemembered != nullptr)
    {
        kVisitor.VisitRememberedFocus(*pkRemembered);
    }
    if ((uiParts & STATE_DYNAMIC_IDENTIFIERS) != 0)
    {
        VisitEach(Access::GetDynamicObjectIDs(kManager), [&kVisitor](int iID)
                  { kVisitor.VisitDynamicIdentifier(static_cast<ObjectHandle_t>(iID)); });
    }
    const CGUIObject* const pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    if ((uiParts & STATE_FOCUS) != 0 && pkFocussed != nullptr)
    {
        kVisitor.VisitFocus(*pkFocussed);
    }
    if ((uiParts & STATE_TREE) != 0)
    {
        VisitTree(kVisitor);
    }
    if ((uiParts & STATE_TIMERS) != 0)
    {
        VisitTimers(kManager, kVisitor);
    }
}
