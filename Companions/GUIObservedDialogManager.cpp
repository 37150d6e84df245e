// SPDX-License-Identifier: MIT
#include "Companions/GUIObservedDialogManager.h"

#include "Core/Utils/SafeGUIObjectPtr.h"

/** One hook call on its way from listener to listener. Passes nest, because a listener may call the manager.
 *  When a listener is added or removed, the manager updates all of them.
 */
class CGUIObservedDialogManager::CPass
{
public:
    // Not inlined into every hook: one copy is shorter, and when inlined g++ reports the stored pointer as
    // dangling although the destructor resets it.
    [[gnu::noinline]] explicit CPass(const CGUIObservedDialogManager& kManager)
        : m_kManager(kManager), m_pkOuter(kManager.m_pkInnermostPass), m_pkNext(kManager.m_pkFirst)
    {
        kManager.m_pkInnermostPass = this;
    }
    CPass(const CPass&) = delete;
    CPass& operator=(const CPass&) = delete;
    ~CPass() { m_kManager.m_pkInnermostPass = m_pkOuter; }

    /** @return the listener whose turn it is, or null after the last one */
    CGUIDialogListener* Take()
    {
        CGUIDialogListener* const pkListener = m_pkNext == m_pkEnd ? nullptr : m_pkNext;
        if (pkListener != nullptr)
        {
            m_pkNext = pkListener->m_pkNext;
        }
        return pkListener;
    }

    static void NotifyOfAdding(CPass* pkPass, CGUIDialogListener* pkListener)
    {
        for (; pkPass != nullptr; pkPass = pkPass->m_pkOuter)
        {
            // A pass ends at the first listener added since it began, even if it had already reached the last
            // one.
            if (pkPass->m_pkEnd == nullptr)
            {
                pkPass->m_pkEnd = pkListener;
                pkPass->m_pkNext = pkPass->m_pkNext == nullptr ? pkListener : pkPass->m_pkNext;
            }
        }
    }

    static void NotifyOfRemoval(CPass* pkPass, const CGUIDialogListener* pkListener)
    {
        for (; pkPass != nullptr; pkPass = pkPass->m_pkOuter)
        {
            pkPass->m_pkNext = pkPass->m_pkNext == pkListener ? pkListener->m_pkNext : pkPass->m_pkNext;
            pkPass->m_pkEnd = pkPass->m_pkEnd == pkListener ? pkListener->m_pkNext : pkPass->m_pkEnd;
        }
    }

private:
    const CGUIObservedDialogManager& m_kManager;
    CPass* m_pkOuter;
    CGUIDialogListener* m_pkNext;
    CGUIDialogListener* m_pkEnd = nullptr; ///< the first listener added since the pass began
};

CGUIObservedDialogManager::~CGUIObservedDialogManager()
{
    while (m_pkFirst != nullptr)
    {
        RemoveListener(*m_pkFirst);
    }
}

eC_Bool CGUIObservedDialogManager::AddListener(CGUIDialogListener& kListener)
{
    if (kListener.m_pkManager != nullptr)
    {
        return false;
    }
    kListener.m_pkManager = this;
    kListener.m_pkPrevious = m_pkLast;
    (m_pkLast != nullptr ? m_pkLast->m_pkNext : m_pkFirst) = &kListener;
    m_pkLast = &kListener;
    CPass::NotifyOfAdding(m_pkInnermostPass, &kListener);
    return true;
}

eC_Bool CGUIObservedDialogManager::RemoveListener(CGUIDialogListener& kListener)
{
    if (kListener.m_pkManager != this)
    {
        return false;
    }
    CPass::NotifyOfRemoval(m_pkInnermostPass, &kListener);
    CGUIDialogListener* const pkPrevious = kListener.m_pkPrevious;
    CGUIDialogListener* const pkNext = kListener.m_pkNext;
    (pkPrevious != nullptr ? pkPrevious->m_pkNext : m_pkFirst) = pkNext;
    (pkNext != nullptr ? pkNext->m_pkPrevious : m_pkLast) = pkPrevious;
    kListener.m_pkManager = nullptr;
    kListener.m_pkPrevious = nullptr;
    kListener.m_pkNext = nullptr;
    return true;
}

eC_Bool CGUIObservedDialogManager::GetPastDialog(eC_UInt uiPosition, PastDialog_t& kDialogOUT) const
{
    if (uiPosition >= GetHistoryStackSize())
    {
        return false;
    }
    const HistoryEntry& kEntry = *GetDialogHistory().GetAt(uiPosition);
    kDialogOUT = {kEntry.m_Dialog.m_eDialogID, kEntry.m_eFocussedObject, kEntry.m_eAction,
                  kEntry.m_Dialog.m_eOldDialogAction};
    return true;
}

void CGUIObservedDialogManager::Tell(ObjectHook_t pfnHook, CGUIObject* pkObject)
{
    if (m_pkFirst == nullptr)
    {
        return;
    }
    const CSafeGUIObjectPtr pkSafeObject = pkObject;
    CPass kPass(*this);
    CGUIDialogListener* pkListener = kPass.Take();
    while (pkListener != nullptr && pkSafeObject != nullptr)
    {
        (pkListener->*pfnHook)(pkSafeObject);
        pkListener = kPass.Take();
    }
}

CGUIObject* CGUIObservedDialogManager::CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                                        eC_Bool& bRecoverFocusOUT) const
{
    {
        CPass kPass(*this);
        while (CGUIDialogListener* pkListener = kPass.Take())
        {
            eC_Bool bAllowDeletion = bAllowDeletionOUT;
            eC_Bool bRecoverFocus = bRecoverFocusOUT;
            CGUIObject* const pkDialog = pkListener->CreateDialogImpl(eID, bAllowDeletion, bRecoverFocus);
            if (pkDialog != nullptr)
            {
                bAllowDeletionOUT = bAllowDeletion;
                bRecoverFocusOUT = bRecoverFocus;
                return pkDialog;
            }
        }
    }
    return CGUIDialogManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT);
}

void CGUIObservedDialogManager::OnDialogAdded(CGUIObject* pDialog)
{
    Tell(&CGUIDialogListener::OnDialogAdded, pDialog);
}

void CGUIObservedDialogManager::OnDialogActivation(CGUIObject* pDialog)
{
    Tell(&CGUIDialogListener::OnDialogActivation, pDialog);
}

void CGUIObservedDialogManager::OnDialogDeactivation(CGUIObject* pDialog)
{
    Tell(&CGUIDialogListener::OnDialogDeactivation, pDialog);
}

eC_Bool CGUIObservedDialogManager::OnDialogDeletion(CGUIObject* pDialog)
{
    if (m_pkFirst == nullptr)
    {
        return true;
    }
    const CSafeGUIObjectPtr pkDialog = pDialog;
    CPass kPass(*this);
    eC_Bool bIsAllowed = true;
    CGUIDialogListener* pkListener = kPass.Take();
    while (pkListener != nullptr && pkDialog != nullptr && bIsAllowed)
    {
        bIsAllowed = pkListener->OnDialogDeletion(pkDialog);
        pkListener = kPass.Take();
    }
    return bIsAllowed;
}

void CGUIObservedDialogManager::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID,
                                                      ObjectHandle_t eNewDialogID)
{
    CPass kPass(*this);
    while (CGUIDialogListener* pkListener = kPass.Take())
    {
        pkListener->OnAfterDialogDeletion(eDeletedDialogID, eNewDialogID);
    }
}

void CGUIObservedDialogManager::OnLastDialogDeletion()
{
    CPass kPass(*this);
    while (CGUIDialogListener* pkListener = kPass.Take())
    {
        pkListener->OnLastDialogDeletion();
    }
}

void CGUIObservedDialogManager::OnPopupActivation(CGUIObject* pPopup)
{
    Tell(&CGUIDialogListener::OnPopupActivation, pPopup);
}

void CGUIObservedDialogManager::OnPopupDeactivation(CGUIObject* pPopup)
{
    Tell(&CGUIDialogListener::OnPopupDeactivation, pPopup);
}

CGUIObject* CGUIObservedDialogManager::CreatePopupImpl(ObjectHandle_t eID)
{
    {
        CPass kPass(*this);
        while (CGUIDialogListener* pkListener = kPass.Take())
        {
            CGUIObject* const pkPopup = pkListener->CreatePopupImpl(eID);
            if (pkPopup != nullptr)
            {
                return pkPopup;
            }
        }
    }
    return CGUIDialogManager::CreatePopupImpl(eID);
}
