// SPDX-License-Identifier: MIT
#include "Companions/GUIIdleHome.h"

#include "Companions/TraceText.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

namespace
{
constexpr eC_UInt cuiSoon = 1;          ///< milliseconds: once the current operation is over
constexpr eC_UInt cuiNowAndThen = 1000; ///< milliseconds between looks while something holds it off
} // namespace

CGUIIdleHome::CGUIIdleHome(CGUIObservedDialogManager& kManager, ObjectHandle_t eHome,
                           CGUIDialogManager::EOldDialogAction eAction, eC_UInt uiIdleTime)
    : m_eHome(eHome), m_uiIdleTime(uiIdleTime), m_eAction(eAction)
{
    kManager.AddListener(*this);
}

CGUIIdleHome::~CGUIIdleHome() = default;

void CGUIIdleHome::SetWarning(ObjectHandle_t ePopup, eC_UInt uiTime)
{
    EndWarning();
    m_eWarning = ePopup;
    m_uiWarningTime = uiTime;
    LookAgainSoon();
}

void CGUIIdleHome::SetHoldOffs(const ObjectHandle_t* peIDs, eC_UInt uiNOFIDs)
{
    m_peHoldOffs = peIDs;
    m_uiNOFHoldOffs = uiNOFIDs;
    LookAgainSoon();
}

void CGUIIdleHome::Start()
{
    m_bIsStarted = true;
    m_bIsWaiting = false;
    LookAgainSoon();
    NoteInput();
}

void CGUIIdleHome::Stop()
{
    m_bIsStarted = false;
    GETTIMER.RemoveAnimationCallback(this);
    EndWarning();
}

eC_Bool CGUIIdleHome::NoteInput()
{
    // The timer stays as it is: when it fires, it finds out how much time is left.
    m_uiSince = GETTIMER.GetTime();
    return EndWarning();
}

eC_Bool CGUIIdleHome::EndWarning()
{
    if (!m_bIsWarning)
    {
        return false;
    }
    m_bIsWarning = false;
    if (GetManager() != nullptr)
    {
        GetManager()->ClosePopup(m_eWarning);
    }
    return true;
}

// --- Looking -----------------------------------------------------------------------------------------

void CGUIIdleHome::OnDialogAdded(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    LookAgainSoon();
}

void CGUIIdleHome::OnDialogActivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    LookAgainSoon();
}

void CGUIIdleHome::OnPopupActivation(CGUIObject* pPopup)
{
    static_cast<void>(pPopup);
    LookAgainSoon();
}

void CGUIIdleHome::OnPopupDeactivation(CGUIObject* pPopup)
{
    static_cast<void>(pPopup);
    LookAgainSoon();
}

void CGUIIdleHome::LookAgainSoon()
{
    if (m_bIsStarted)
    {
        GETTIMER.AddAnimationCallback(cuiSoon, this);
    }
}

void CGUIIdleHome::DoAnimate(const eC_Value& vTimes)
{
    static_cast<void>(vTimes);
    if (GetManager() == nullptr)
    {
        GETTIMER.RemoveAnimationCallback(this);
        return;
    }
    Look();
}

void CGUIIdleHome::Look()
{
    const eC_Bool bIsHeldOff = IsHeldOff();
    if (bIsHeldOff || GetManager()->GetCurrentDialogID() == m_eHome)
    {
        m_bIsWaiting = true;
        // Leaving home calls a hook. What holds it off may end without one, so look regularly.
        if (bIsHeldOff)
        {
            GETTIMER.AddAnimationCallback(cuiNowAndThen, this);
        }
        else
        {
            GETTIMER.RemoveAnimationCallback(this);
        }
        EndWarning();
        return;
    }
    if (m_bIsWaiting)
    {
        m_bIsWaiting = false;
        m_uiSince = GETTIMER.GetTime();
    }
    Act();
}

eC_Bool CGUIIdleHome::IsHeldOff() const
{
    for (eC_UInt uiHoldOff = 0; uiHoldOff < m_uiNOFHoldOffs; ++uiHoldOff)
    {
        const ObjectHandle_t eID = m_peHoldOffs[uiHoldOff];
        if (GetManager()->GetCurrentDialogID() == eID || GetManager()->IsPopupInPopupList(eID))
        {
            return true;
        }
    }
    return false;
}

// --- Acting ------------------------------------------------------------------------------------------

// Warns or goes home when it is time. The timer is set first, because a hook may throw or set an earlier
// time.
void CGUIIdleHome::Act()
{
    const eC_UInt uiPassed = GETTIMER.GetTime() - m_uiSince;
    if (uiPassed >= m_uiIdleTime)
    {
        GETTIMER.AddAnimationCallback(cuiSoon, this);
        GoHome();
        return;
    }
    const eC_UInt uiLeft = m_uiIdleTime - uiPassed;
    const eC_Bool bWarningComes = m_eWarning != NO_HANDLE && !m_bIsWarning;
    if (bWarningComes && uiLeft > m_uiWarningTime)
    {
        GETTIMER.AddAnimationCallback(uiLeft - m_uiWarningTime, this);
        return;
    }
    GETTIMER.AddAnimationCallback(uiLeft, this);
    if (bWarningComes)
    {
        m_bIsWarning = true;
        GetManager()->ShowPopup(m_eWarning);
    }
}

void CGUIIdleHome::GoHome()
{
    GUILOG(GUI_TRACE_DEBUG, TraceText("CGUIIdleHome::GoHome: Going to dialog with ID ", m_eHome, ".\n"));
    // If this fails, try again after another whole idle time.
    m_uiSince = GETTIMER.GetTime();
    EndWarning();
    if (m_eWay == WAY_BACK && GetManager()->ContainsDialog(m_eHome, false))
    {
        const eC_Bool bDelete =
            m_eAction == CGUIDialogManager::ODA_DELETE || m_eAction == CGUIDialogManager::ODA_DELETE_ALL;
        GetManager()->BackToDialog(m_eHome, bDelete, false);
    }
    else
    {
        GetManager()->CreateDialog(m_eHome, m_eAction);
    }
}
