// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIPOPUPPOLICY_H
#define COMPANIONS_GUIPOPUPPOLICY_H

/** @file
 *  Rules for popups, in front of CGUIDialogManager::ShowPopup and ClosePopup.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/GUIAnimatable.h"

/** A front of ShowPopup and ClosePopup with rules:
 *
 *  - One at a time of a priority. A popup whose priority is taken waits until the one before it is closed,
 *    by whomever; those that wait come in the order in which they were asked for.
 *  - No duplicates. Asking for a popup that is there changes nothing: neither its time nor its place.
 *  - A least time on screen. A popup that is closed before is closed when that time is over. A popup of
 *    a higher priority need not wait for it, nor does the display time of the popup itself.
 *  - Snooze: a popup goes and comes back after some time.
 *  - A cap on the popups that are listed, wait or are snoozed, with a rule who goes when there is one more.
 *
 *  The rules hold among popups that are shown through the policy. It hears of popups that close themselves
 *  or are closed through the manager, and looks for them from the timer, one millisecond later: it never
 *  acts inside a hook. Popups that lose their object otherwise are noticed within a second.
 *
 *  It takes the memory of its places, see CGUIPopupPolicyOf, and one registration with the timer; for that,
 *  and for what is logged, std::bad_alloc may come from every operation, and from OnPopupDeactivation. The
 *  manager may be destroyed first: then nothing can be shown any more. A hook may call the policy, but not
 *  destroy it.
 */
class CGUIPopupPolicy : private CGUIDialogListener, private CGUIAnimatable
{
public:
    /** What became of a popup that was asked for. */
    enum EShown : unsigned char
    {
        POPUP_LISTED,   ///< the manager has it: it is displayed, or waits for one of a higher priority
        POPUP_WAITS,    ///< for one of its own priority
        POPUP_IS_THERE, ///< it was listed, waited or was snoozed; a delayed closing is called off
        POPUP_REFUSED   ///< it is not registered, could not be obtained or did not survive, or there are too
                        ///< many
    };

    /** Who goes when there is one popup too many. */
    enum EFullRule : unsigned char
    {
        FULL_NEW_GOES,    ///< the one that is asked for is refused
        FULL_LOWEST_GOES, ///< that of the lowest priority, the oldest of them; the new one if it is lower
        FULL_OLDEST_GOES  ///< the one that was asked for first
    };

    /** One popup that is listed, waits or is snoozed. */
    struct Place_t
    {
        /** What is going on with it. */
        enum EState : unsigned char
        {
            FREE,    ///< no popup
            ASKED,   ///< for, just now
            WAITING, ///< for the others of its priority
            BUSY,    ///< the manager is about to list it or to close it
            LISTED,  ///< by the manager
            CLOSING, ///< listed, and closed when its least time is over
            SNOOZED  ///< until m_uiTime
        };

        ObjectHandle_t m_eID = NO_HANDLE;
        EState m_eState = FREE;
        CGUIDialogManager::PopupPriority_t m_ePriority = CGUIDialogManager::PRIO_LOWEST;
        eC_UInt m_uiOrder = 0; ///< counts the popups asked for
        eC_UInt m_uiTime = 0;  ///< when it was last displayed, or when its snooze ends
    };

    CGUIPopupPolicy(const CGUIPopupPolicy&) = delete;
    CGUIPopupPolicy& operator=(const CGUIPopupPolicy&) = delete;

    /** Sets the least time on screen, 0 at first. @param uiTime milliseconds, at most 0x7FFFFFFF */
    void SetLeastTime(eC_UInt uiTime) { m_uiLeastTime = uiTime; }

    /** Sets who goes when there is one popup too many; at first FULL_NEW_GOES. */
    void SetFullRule(EFullRule eRule) { m_eFullRule = eRule; }

    /** Asks for a popup. Hooks and exceptions are those of CGUIDialogManager::ShowPopup, and when another
     *  one has to go for it those of ClosePopup.
     *
     *  Logged: DEBUG when it is there already, or waits, and later when its turn comes; WARNING when another
     *  one goes for it, or when it is refused because there are too many; what ShowPopup logs when it is
     *  listed or not registered.
     */
    EShown Show(ObjectHandle_t eID);

    /** Closes a popup: a listed one when its least time on screen is over, one that waits or is snoozed at
     *  once. One that was not shown through the policy is closed through the manager. Hooks and exceptions
     *  are those of CGUIDialogManager::ClosePopup; after an exception it may be called again.
     *
     *  Logged: DEBUG when the closing is delayed; what ClosePopup logs; what ShowPopup logs for one that
     *  waited.
     *  @return false, with nothing changed, when there is no such popup
     */
    eC_Bool Close(ObjectHandle_t eID);

    /** Closes a popup now, whatever its least time, and asks for it again later. Hooks and exceptions are
     *  those of CGUIDialogManager::ClosePopup; after an exception the popup is not snoozed, and it may be
     *  called again. Logged: DEBUG; what ClosePopup logs; what ShowPopup logs for one that waited.
     *  @param uiTime milliseconds, 1 to 0x7FFFFFFF; snoozing a snoozed one sets its time anew
     *  @return false, with nothing changed, when it was not shown through the policy
     */
    eC_Bool Snooze(ObjectHandle_t eID, eC_UInt uiTime);

    /** @return how many popups are listed, wait or are snoozed */
    eC_UInt GetNOFPopups() const;

protected:
    /** Listens to the manager.
     *  @param pkPlaces the places, not owned; not touched before the first popup
     *  @param uiNOFPlaces how many popups there may be, at least 1
     */
    CGUIPopupPolicy(CGUIObservedDialogManager& kManager, Place_t* pkPlaces, eC_UInt uiNOFPlaces);

    /** Closes no popup; what waits or is snoozed is forgotten. */
    ~CGUIPopupPolicy() override;

private:
    void OnPopupActivation(CGUIObject* pPopup) override;
    void OnPopupDeactivation(CGUIObject* pPopup) override;
    void DoAnimate(const eC_Value& vTimes) override;

    Place_t* Find(ObjectHandle_t eID) const;
    const Place_t* FindNext(CGUIDialogManager::PopupPriority_t ePriority) const;
    Place_t* FindWhoGoes(CGUIDialogManager::PopupPriority_t ePriority) const;
    Place_t* MakeRoom(ObjectHandle_t eID, CGUIDialogManager::PopupPriority_t ePriority);
    eC_Bool IsTaken(CGUIDialogManager::PopupPriority_t ePriority) const;
    eC_Bool IsOnScreenTooShortly(const Place_t& kPlace) const;
    eC_UInt GetTimeUntilNeeded(const Place_t& kPlace) const;
    eC_Bool CloseNow(Place_t& kPlace);
    void List(Place_t& kPlace);
    void Settle();
    eC_Bool SettleOne();
    eC_Bool Settle(Place_t& kPlace);
    void LookAgainIn(eC_UInt uiTime);

    Place_t* m_pkPlaces;
    eC_UInt m_uiNOFPlaces;
    eC_UInt m_uiLeastTime = 0;
    eC_UInt m_uiOrder = 0;
    EFullRule m_eFullRule = FULL_NEW_GOES;
};

/** A CGUIPopupPolicy with its places.
 *  @tparam uiMost how many popups may be listed, wait or be snoozed, at least 1
 */
template <eC_UInt uiMost>
class CGUIPopupPolicyOf : public CGUIPopupPolicy
{
    static_assert(uiMost > 0, "room for a popup at least");

public:
    /** @param kManager the manager, not owned */
    explicit CGUIPopupPolicyOf(CGUIObservedDialogManager& kManager)
        : CGUIPopupPolicy(kManager, m_akPlaces, uiMost)
    {
    }

private:
    Place_t m_akPlaces[uiMost];
};

#endif
