// SPDX-License-Identifier: MIT
#ifndef INSPECTION_INSPECTEDMANAGER_H
#define INSPECTION_INSPECTEDMANAGER_H

/** @file
 *  A dialog manager whose hooks are watched for hazards.
 */

#include "Core/Control/GUI.h"
#include "Inspection/HazardWatch.h"

#include <utility>

/** A manager that behaves as the application's class does, and reports to a watch what happens in its hooks:
 *
 *      CInspectedManager<CMyDialogManager> kManager(...); // as CMyDialogManager kManager(...);
 *
 *  Call Back, BackToDialog and ClearDialogHistory through this class, so that it knows when the manager is
 *  going back. Called through CGUIDialogManager they do the same, but what hooks do to the history is then
 *  noticed only in OnAfterDialogDeletion. Without a watch, each hook costs one comparison.
 *
 *  TManager must not hide the hooks or declare them final.
 */
template <typename TManager>
class CInspectedManager : public TManager
{
public:
    /** Takes what TManager takes. */
    template <typename... Arguments_t>
    explicit CInspectedManager(Arguments_t&&... tArguments)
        : TManager(std::forward<Arguments_t>(tArguments)...)
    {
    }

    /** Sets the watch that receives the reports. @param pkWatch not owned; null: none, as at first */
    void SetHazardWatch(CHazardWatch* pkWatch) { m_pkWatch = pkWatch; }

    /** As CGUIDialogManager::Back. */
    void Back(eC_Bool bDeleteObject)
    {
        const CWayBack kWayBack(m_uiWaysBack);
        TManager::Back(bDeleteObject);
    }

    /** As CGUIDialogManager::BackToDialog. In the stepwise mode it compares the state after each step. */
    eC_Bool BackToDialog(ObjectHandle_t eDialogID, eC_Bool bDeleteDialogsIfAllowed,
                         eC_Bool bHistoryActivation)
    {
        const CWayBack kWayBack(m_uiWaysBack);
        if (bHistoryActivation && IsWatching(HAZARD_GOING_BACK_IN_CIRCLES) &&
            this->ContainsDialog(eDialogID, false))
        {
            GoBackStepwise(eDialogID, bDeleteDialogsIfAllowed);
            return true;
        }
        return TManager::BackToDialog(eDialogID, bDeleteDialogsIfAllowed, bHistoryActivation);
    }

    /** As CGUIDialogManager::ClearDialogHistory. */
    void ClearDialogHistory(eC_UInt uiKeepDialogs, eC_Bool bDeleteDialogs, eC_Bool bDeleteCurrent)
    {
        const CWayBack kWayBack(m_uiWaysBack);
        TManager::ClearDialogHistory(uiKeepDialogs, bDeleteDialogs, bDeleteCurrent);
    }

protected:
    /** Calls the hook of the manager and reports what the watch is looking for.
     *  @{
     */
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override
    {
        CGUIObject* pkDialog = nullptr;
        WatchHistory(false, eID,
                     [&]
                     { pkDialog = TManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT); });
        if (IsWatching(HAZARD_CREATED_ELSEWHERE) && pkDialog != nullptr &&
            (pkDialog->GetID() != eID || !pkDialog->IsDescendantOf(CGUI::ms_pInstance)))
        {
            m_pkWatch->Report(HAZARD_CREATED_ELSEWHERE, eID);
        }
        return pkDialog;
    }

    void OnDialogAdded(CGUIObject* pDialog) override
    {
        WatchHistory(false, pDialog->GetID(), [&] { TManager::OnDialogAdded(pDialog); });
    }

    void OnDialogActivation(CGUIObject* pDialog) override
    {
        WatchHistory(false, pDialog->GetID(), [&] { TManager::OnDialogActivation(pDialog); });
    }

    void OnDialogDeactivation(CGUIObject* pDialog) override
    {
        WatchHistory(false, pDialog->GetID(), [&] { TManager::OnDialogDeactivation(pDialog); });
    }

    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override
    {
        eC_Bool bIsAllowed = true;
        WatchHistory(false, pDialog->GetID(), [&] { bIsAllowed = TManager::OnDialogDeletion(pDialog); });
        return bIsAllowed;
    }

    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override
    {
        WatchHistory(true, eDeletedDialogID,
                     [&] { TManager::OnAfterDialogDeletion(eDeletedDialogID, eNewDialogID); });
    }

    void OnLastDialogDeletion() override
    {
        WatchHistory(true, NO_HANDLE, [&] { TManager::OnLastDialogDeletion(); });
    }

    void OnPopupActivation(CGUIObject* pPopup) override
    {
        WatchHistory(false, pPopup->GetID(), [&] { TManager::OnPopupActivation(pPopup); });
    }

    void OnPopupDeactivation(CGUIObject* pPopup) override
    {
        WatchHistory(false, pPopup->GetID(), [&] { TManager::OnPopupDeactivation(pPopup); });
    }
    /** @} */

private:
    /** Counts the nested operations that go back. */
    class CWayBack
    {
    public:
        explicit CWayBack(eC_UInt& uiWaysBack) : m_uiWaysBack(uiWaysBack) { ++m_uiWaysBack; }
        CWayBack(const CWayBack&) = delete;
        CWayBack& operator=(const CWayBack&) = delete;
        ~CWayBack() { --m_uiWaysBack; }

    private:
        eC_UInt& m_uiWaysBack;
    };

    eC_Bool IsWatching(EHazard eHazard) const
    {
        return m_pkWatch != nullptr && m_pkWatch->IsWatching(eHazard);
    }

    template <typename Hook_t>
    void WatchHistory(eC_Bool bIsOnWayBack, ObjectHandle_t eID, Hook_t fnHook) const
    {
        if (!IsWatching(HAZARD_HISTORY_CHANGED) || (!bIsOnWayBack && m_uiWaysBack == 0))
        {
            fnHook();
            return;
        }
        const CGUIInspector& kInspector = m_pkWatch->GetInspector();
        const std::uint64_t uiBefore = kInspector.GetFingerprint(STATE_HISTORY);
        fnHook();
        if (kInspector.GetFingerprint(STATE_HISTORY) != uiBefore)
        {
            m_pkWatch->Report(HAZARD_HISTORY_CHANGED, eID);
        }
    }

    /** Goes back as BackToDialog does. It keeps one state for twice as many steps as the last one, so it
     *  meets that state again if the steps run in a circle, however long the circle is.
     */
    void GoBackStepwise(ObjectHandle_t eDialogID, eC_Bool bDeleteDialogsIfAllowed)
    {
        constexpr eC_UInt cuiParts = STATE_ALL & ~STATE_DYNAMIC_IDENTIFIERS;
        const CGUIInspector& kInspector = m_pkWatch->GetInspector();
        std::uint64_t uiKept = kInspector.GetFingerprint(cuiParts, CGUIInspector::TIMES_IGNORED);
        eC_UInt uiSteps = 0;
        eC_UInt uiStepsToKeep = 1;
        eC_Bool bIsReported = false;
        while (this->GetCurrentDialogID() != eDialogID)
        {
            TManager::Back(bDeleteDialogsIfAllowed);
            const std::uint64_t uiNow = kInspector.GetFingerprint(cuiParts, CGUIInspector::TIMES_IGNORED);
            if (uiNow == uiKept && !bIsReported)
            {
                m_pkWatch->Report(HAZARD_GOING_BACK_IN_CIRCLES, eDialogID);
                bIsReported = true;
            }
            if (++uiSteps == uiStepsToKeep)
            {
                uiKept = uiNow;
                uiSteps = 0;
                uiStepsToKeep *= 2;
            }
        }
    }

    CHazardWatch* m_pkWatch = nullptr;
    eC_UInt m_uiWaysBack = 0;
};

#endif
