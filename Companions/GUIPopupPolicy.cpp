// SPDX-License-Identifier: MIT
#include "Companions/GUIPopupPolicy.h"

#include "Companions/TraceText.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

namespace
{
constexpr eC_UInt cuiSoon = 1;          ///< milliseconds: once the current operation is over
constexpr eC_UInt cuiNowAndThen = 1000; ///< milliseconds between looks while a popup waits for another one

// Correct even when the counter has wrapped around.
eC_Bool IsBefore(eC_UInt uiOne, eC_UInt uiOther)
{
    return static_cast<eC_Int>(uiOne - uiOther) < 0;
}

eC_UInt GetTimeUntil(eC_UInt uiTime)
{
    const eC_UInt uiNow = GETTIMER.GetTime();
    return IsBefore(uiNow, uiTime) ? uiTime - uiNow : cuiSoon;
}

/** Keeps a place BUSY while the manager lists or closes its popup, and sets the next state even after an
 *  exception.
 */
class CBusy
{
public:
    CBusy(CGUIPopupPolicy::Place_t& kPlace, CGUIPopupPolicy::Place_t::EState eStateAfter)
        : m_kPlace(kPlace), m_eStateAfter(eStateAfter)
    {
        m_kPlace.m_eState = CGUIPopupPolicy::Place_t::BUSY;
    }
    CBusy(const CBusy&) = delete;
    CBusy& operator=(const CBusy&) = delete;
    ~CBusy()
    {
        // A hook may have snoozed the popup, and the place may belong to another one by now, which is not
        // busy: what made it so inside the hook is over.
        if (m_kPlace.m_eState == CGUIPopupPolicy::Place_t::BUSY)
        {
            m_kPlace.m_eState = m_eStateAfter;
        }
    }

private:
    CGUIPopupPolicy::Place_t& m_kPlace;
    CGUIPopupPolicy::Place_t::EState m_eStateAfter;
};
} // namespace

CGUIPopupPolicy::CGUIPopupPolicy(CGUIObservedDialogManager& kManager, Place_t* pkPlaces, eC_UInt uiNOFPlaces)
    : m_pkPlaces(pkPlaces), m_uiNOFPlaces(uiNOFPlaces)
{
    kManager.AddListener(*this);
}

CGUIPopupPolicy::~CGUIPopupPolicy() = default;

// --- The front ---------------------------------------------------------------------------------------

CGUIPopupPolicy::EShown CGUIPopupPolicy::Show(ObjectHandle_t eID)
{
    CGUIDialogManager* const pkManager = GetManager();
    if (pkManager == nullptr)
    {
        return POPUP_REFUSED;
    }
    Settle();
    if (Place_t* const pkThere = Find(eID))
    {
        return Keep(*pkThere);
    }
    CGUIDialogManager::RegisteredPopup_t kRegistered;
    if (!pkManager->GetRegisteredPopupInfo(eID, kRegistered))
    {
        // ShowPopup logs the reason.
        pkManager->ShowPopup(eID);
        return POPUP_REFUSED;
    }
    Place_t* const pkPlace = MakeRoom(eID, kRegistered.m_ePriority);
    if (Place_t* const pkThere = Find(eID))
    {
        // A hook of the one that went has requested it as well; the place found is not needed.
        const EShown eShown = Keep(*pkThere);
        Settle();
        return eShown;
    }
    if (pkPlace == nullptr)
    {
        GUILOG(GUI_TRACE_WARNING,
               TraceText("CGUIPopupPolicy::Show: Popup with id ", eID, " is refused, there are too many.\n"));
        return POPUP_REFUSED;
    }
    pkPlace->m_eID = eID;
    pkPlace->m_ePriority = kRegistered.m_ePriority;
    pkPlace->m_uiOrder = m_uiOrder++;
    // It is a waiting one from here on, whatever a hook of this or of another popup does or throws.
    pkPlace->m_eState = Place_t::WAITING;
    if (IsNext(*pkPlace))
    {
        List(*pkPlace);
    }
    else
    {
        LookAgainIn(cuiNowAndThen);
    }
    Settle();
    if (pkPlace->m_eID != eID || pkPlace->m_eState == Place_t::FREE)
    {
        return POPUP_REFUSED;
    }
    if (pkPlace->m_eState != Place_t::WAITING)
    {
        return POPUP_LISTED;
    }
    GUILOG(GUI_TRACE_DEBUG,
           TraceText("CGUIPopupPolicy::Show: Popup with id ", eID, " waits for one of its priority.\n"));
    return POPUP_WAITS;
}

eC_Bool CGUIPopupPolicy::Close(ObjectHandle_t eID)
{
    CGUIDialogManager* const pkManager = GetManager();
    if (pkManager == nullptr)
    {
        return false;
    }
    Place_t* const pkPlace = Find(eID);
    if (pkPlace != nullptr &&
        (pkPlace->m_eState == Place_t::WAITING || pkPlace->m_eState == Place_t::SNOOZED))
    {
        pkPlace->m_eState = Place_t::FREE;
        return true;
    }
    if (pkPlace != nullptr && IsOnScreenTooShortly(*pkPlace))
    {
        GUILOG(GUI_TRACE_DEBUG,
               TraceText("CGUIPopupPolicy::Close: Popup with id ", eID, " stays for its least time.\n"));
        pkPlace->m_eState = Place_t::CLOSING;
        LookAgainIn(GetTimeUntilNeeded(*pkPlace));
        return true;
    }
    const eC_Bool bIsClosed = pkManager->ClosePopup(eID);
    Settle();
    return bIsClosed;
}

eC_Bool CGUIPopupPolicy::Snooze(ObjectHandle_t eID, eC_UInt uiTime)
{
    Place_t* const pkPlace = Find(eID);
    if (pkPlace == nullptr || GetManager() == nullptr)
    {
        return false;
    }
    GUILOG(GUI_TRACE_DEBUG, TraceText("CGUIPopupPolicy::Snooze: Popup with id ", eID, " is snoozed.\n"));
    LookAgainIn(uiTime);
    if (CloseNow(*pkPlace))
    {
        pkPlace->m_eState = Place_t::SNOOZED;
        pkPlace->m_uiTime = GETTIMER.GetTime() + uiTime;
    }
    Settle();
    return true;
}

eC_UInt CGUIPopupPolicy::GetNOFPopups() const
{
    eC_UInt uiNumber = 0;
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        uiNumber += m_pkPlaces[uiPlace].m_eState != Place_t::FREE ? 1U : 0U;
    }
    return uiNumber;
}

// --- Places ------------------------------------------------------------------------------------------

CGUIPopupPolicy::Place_t* CGUIPopupPolicy::Find(ObjectHandle_t eID) const
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        if (m_pkPlaces[uiPlace].m_eState != Place_t::FREE && m_pkPlaces[uiPlace].m_eID == eID)
        {
            return &m_pkPlaces[uiPlace];
        }
    }
    return nullptr;
}

// A popup that is requested once more is not closed as soon as it has been on the screen long enough.
CGUIPopupPolicy::EShown CGUIPopupPolicy::Keep(Place_t& kPlace)
{
    GUILOG(GUI_TRACE_DEBUG,
           TraceText("CGUIPopupPolicy::Show: Popup with id ", kPlace.m_eID, " is there already.\n"));
    kPlace.m_eState = kPlace.m_eState == Place_t::CLOSING ? Place_t::LISTED : kPlace.m_eState;
    return POPUP_IS_THERE;
}

CGUIPopupPolicy::Place_t* CGUIPopupPolicy::MakeRoom(ObjectHandle_t eID,
                                                    CGUIDialogManager::PopupPriority_t ePriority)
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        if (m_pkPlaces[uiPlace].m_eState == Place_t::FREE)
        {
            return &m_pkPlaces[uiPlace];
        }
    }
    Place_t* const pkGoes = FindWhoGoes(ePriority);
    if (pkGoes == nullptr)
    {
        return nullptr;
    }
    const ObjectHandle_t eGoingID = pkGoes->m_eID;
    GUILOG(GUI_TRACE_WARNING,
           TraceText("CGUIPopupPolicy::Show: Popup with id ", eGoingID, " goes for popup with id ") +
               TraceText("", eID, ", there are too many.\n"));
    return CloseNow(*pkGoes) ? pkGoes : nullptr;
}

CGUIPopupPolicy::Place_t* CGUIPopupPolicy::FindWhoGoes(CGUIDialogManager::PopupPriority_t ePriority) const
{
    if (m_eFullRule == FULL_NEW_GOES)
    {
        return nullptr;
    }
    Place_t* pkGoes = nullptr;
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        Place_t& kPlace = m_pkPlaces[uiPlace];
        const eC_Bool bPriorityCounts =
            m_eFullRule == FULL_LOWEST_GOES && pkGoes != nullptr && kPlace.m_ePriority != pkGoes->m_ePriority;
        if (kPlace.m_eState != Place_t::BUSY &&
            (pkGoes == nullptr || (bPriorityCounts ? kPlace.m_ePriority < pkGoes->m_ePriority
                                                   : IsBefore(kPlace.m_uiOrder, pkGoes->m_uiOrder))))
        {
            pkGoes = &kPlace;
        }
    }
    const eC_Bool bNewIsLower =
        m_eFullRule == FULL_LOWEST_GOES && pkGoes != nullptr && ePriority < pkGoes->m_ePriority;
    return bNewIsLower ? nullptr : pkGoes;
}

eC_Bool CGUIPopupPolicy::IsTaken(CGUIDialogManager::PopupPriority_t ePriority) const
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        const Place_t& kPlace = m_pkPlaces[uiPlace];
        if (kPlace.m_ePriority == ePriority &&
            (kPlace.m_eState == Place_t::BUSY || kPlace.m_eState == Place_t::LISTED ||
             kPlace.m_eState == Place_t::CLOSING))
        {
            return true;
        }
    }
    return false;
}

eC_Bool CGUIPopupPolicy::IsOnScreenTooShortly(const Place_t& kPlace) const
{
    return GetManager()->IsPopupDisplayed(kPlace.m_eID) &&
           GETTIMER.GetTime() - kPlace.m_uiTime < m_uiLeastTime;
}

eC_UInt CGUIPopupPolicy::GetTimeUntilNeeded(const Place_t& kPlace) const
{
    switch (kPlace.m_eState)
    {
    case Place_t::CLOSING:
        return GetTimeUntil(kPlace.m_uiTime + m_uiLeastTime);
    case Place_t::SNOOZED:
        return GetTimeUntil(kPlace.m_uiTime);
    case Place_t::WAITING:
        return cuiNowAndThen;
    default:
        return CGUITimer::cuiNoCallback;
    }
}

// Closes a popup through the manager. Returns false if a hook has done something else with it, or has shown
// another one in its place.
eC_Bool CGUIPopupPolicy::CloseNow(Place_t& kPlace)
{
    const ObjectHandle_t eID = kPlace.m_eID;
    {
        const CBusy kBusy(kPlace, Place_t::LISTED);
        GetManager()->ClosePopup(eID);
    }
    return kPlace.m_eState == Place_t::LISTED && kPlace.m_eID == eID &&
           !GetManager()->IsPopupInPopupList(eID);
}

void CGUIPopupPolicy::List(Place_t& kPlace)
{
    // Set before anything can throw, so that the timer finds what was listed by then.
    LookAgainIn(cuiSoon);
    const ObjectHandle_t eID = kPlace.m_eID;
    const CBusy kBusy(kPlace, Place_t::LISTED);
    GetManager()->ShowPopup(eID);
}

// --- Settling ----------------------------------------------------------------------------------------

void CGUIPopupPolicy::OnPopupActivation(CGUIObject* pPopup)
{
    if (Place_t* const pkPlace = Find(pPopup->GetID()))
    {
        pkPlace->m_uiTime = GETTIMER.GetTime();
    }
}

void CGUIPopupPolicy::OnPopupDeactivation(CGUIObject* pPopup)
{
    // The popup may still be listed and merely hidden.
    if (Find(pPopup->GetID()) != nullptr)
    {
        LookAgainIn(cuiSoon);
    }
}

void CGUIPopupPolicy::DoAnimate(const eC_Value& vTimes)
{
    static_cast<void>(vTimes);
    if (GetManager() == nullptr)
    {
        GETTIMER.RemoveAnimationCallback(this);
        return;
    }
    Settle();
    eC_UInt uiNeeded = CGUITimer::cuiNoCallback;
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        const eC_UInt uiTime = GetTimeUntilNeeded(m_pkPlaces[uiPlace]);
        uiNeeded = uiTime < uiNeeded ? uiTime : uiNeeded;
    }
    if (uiNeeded == CGUITimer::cuiNoCallback)
    {
        GETTIMER.RemoveAnimationCallback(this);
    }
    else
    {
        GETTIMER.AddAnimationCallback(uiNeeded, this);
    }
}

void CGUIPopupPolicy::LookAgainIn(eC_UInt uiTime)
{
    if (uiTime < GETTIMER.GetTimeUntilCallback(this))
    {
        GETTIMER.AddAnimationCallback(uiTime, this);
    }
}

void CGUIPopupPolicy::Settle()
{
    // Limited, because a hook may keep asking for popups that are closed: the next call does the rest.
    eC_UInt uiSteps = 4 * m_uiNOFPlaces;
    while (uiSteps > 0 && SettleOne())
    {
        --uiSteps;
    }
}

eC_Bool CGUIPopupPolicy::SettleOne()
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        if (Settle(m_pkPlaces[uiPlace]))
        {
            return true;
        }
    }
    return false;
}

// Tells whether it is the turn of a waiting popup.
eC_Bool CGUIPopupPolicy::IsNext(const Place_t& kWaiting) const
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        const Place_t& kPlace = m_pkPlaces[uiPlace];
        if (kPlace.m_eState == Place_t::WAITING && kPlace.m_ePriority == kWaiting.m_ePriority &&
            IsBefore(kPlace.m_uiOrder, kWaiting.m_uiOrder))
        {
            return false;
        }
    }
    return !IsTaken(kWaiting.m_ePriority);
}

// Takes one step with one popup. Returns false if there is nothing to do.
eC_Bool CGUIPopupPolicy::Settle(Place_t& kPlace)
{
    const ObjectHandle_t eID = kPlace.m_eID;
    switch (kPlace.m_eState)
    {
    case Place_t::WAITING:
        if (!IsNext(kPlace))
        {
            return false;
        }
        GUILOG(GUI_TRACE_DEBUG, TraceText("CGUIPopupPolicy::Settle: Popup with id ", eID, " is next.\n"));
        List(kPlace);
        return true;
    case Place_t::LISTED:
    case Place_t::CLOSING:
        if (!GetManager()->IsPopupInPopupList(eID))
        {
            kPlace.m_eState = Place_t::FREE;
            return true;
        }
        if (kPlace.m_eState == Place_t::CLOSING && !IsOnScreenTooShortly(kPlace))
        {
            const CBusy kBusy(kPlace, Place_t::CLOSING);
            GetManager()->ClosePopup(eID);
            return true;
        }
        return false;
    case Place_t::SNOOZED:
        if (IsBefore(GETTIMER.GetTime(), kPlace.m_uiTime))
        {
            return false;
        }
        kPlace.m_eState = Place_t::WAITING;
        return true;
    default:
        return false;
    }
}
