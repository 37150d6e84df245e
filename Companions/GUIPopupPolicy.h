// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIPOPUPPOLICY_H
#define COMPANIONS_GUIPOPUPPOLICY_H

/** @file
 *  Rules for popups, on top of CGUIDialogManager::ShowPopup and ClosePopup.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/GUIAnimatable.h"

/** Shows and closes popups by rules, on top of ShowPopup and ClosePopup:
 *
 *  - One at a time per priority. A popup whose priority is taken waits until the one before it is closed, no
 *    matter how; waiting popups are shown in the order in which they were requested.
 *  - No duplicates. Requesting a popup that is already there changes neither its time nor its place.
 *  - A minimum time on screen. A popup closed earlier stays until that time is over. A popup of a higher
 *    priority need not wait for it, nor does the popup's own display time.
 *  - Snooze: a popup goes and comes back after some time.
 *  - A cap on the popups that are listed, waiting or snoozed, with a rule for which one goes when there is
 *    one too many.
 *
 *  The rules apply to popups shown through the policy. It notices when a popup closes itself or is closed
 *  through the manager, and handles this from the timer one millisecond later: it never acts inside a hook. A
 *  popup that loses its object in any other way is noticed within a second.
 *
 *  It uses the memory of its places, see CGUIPopupPolicyOf, and one timer registration. Because of that
 *  registration and of what is logged, every operation and OnPopupDeactivation may throw std::bad_alloc. The
 *  manager may be destroyed first; nothing can be shown after that. A hook may call the policy, but must not
 *  destroy it.
 */
class CGUIPopupPolicy : private CGUIDialogListener, private CGUIAnimatable
{
public:
    /** What became of a requested popup. */
    enum EShown : unsigned char
    {
        POPUP_LISTED,   ///< the manager has it: it is displayed, or waits for one of a higher priority
        POPUP_WAITS,    ///< it waits for another one of its own priority
        POPUP_IS_THERE, ///< it was listed, waiting or snoozed already; a delayed closing is cancelled
        POPUP_REFUSED   ///< it is not registered, could not be obtained or did not survive, or there are too
                        ///< many
    };

    /** Which popup goes when there is one too many. */
    enum EFullRule : unsigned char
    {
        FULL_NEW_GOES,    ///< the requested one is refused
        FULL_LOWEST_GOES, ///< the oldest one of the lowest priority; the new one if its priority is lower
        FULL_OLDEST_GOES  ///< the one that was requested first
    };

    /** One popup that is listed, waiting or snoozed. */
    struct Place_t
    {
        /** What is happening to it. */
        enum EState : unsigned char
        {
            FREE,    ///< no popup
            WAITING, ///< waits for the others of its priority
            BUSY,    ///< the manager is about to list it or to close it
            LISTED,  ///< listed by the manager
            CLOSING, ///< listed; is closed when its minimum time is over
            SNOOZED  ///< until m_uiTime
        };

        ObjectHandle_t m_eID = NO_HANDLE; ///< the popup
        EState m_eState = FREE;           ///< what is going on with it
        CGUIDialogManager::PopupPriority_t m_ePriority = CGUIDialogManager::PRIO_LOWEST; ///< as registered
        eC_UInt m_uiOrder = 0; ///< counts the requests
        eC_UInt m_uiTime = 0;  ///< when it was last displayed, or when its snooze ends
    };

    CGUIPopupPolicy(const CGUIPopupPolicy&) = delete;
    CGUIPopupPolicy& operator=(const CGUIPopupPolicy&) = delete;

    /** Sets the minimum time on screen; 0 by default. @param uiTime milliseconds, at most 0x7FFFFFFF */
    void SetLeastTime(eC_UInt uiTime) { m_uiLeastTime = uiTime; }

    /** Sets which popup goes when there is one too many; FULL_NEW_GOES by default. */
    void SetFullRule(EFullRule eRule) { m_eFullRule = eRule; }

    /** Requests a popup. Hooks and exceptions are those of CGUIDialogManager::ShowPopup, and those of
     *  ClosePopup if another popup has to go. After an exception of another popup's hook the requested one
     *  is listed or waits if a place was found for it; Close ends that.
     *
     *  Logged: DEBUG if it is already there, or waits, and later when its turn comes; WARNING if another one
     *  goes for it, or if it is refused because there are too many; what ShowPopup logs if it is listed or
     *  not registered.
     */
    EShown Show(ObjectHandle_t eID);

    /** Closes a popup: a listed one when its minimum time on screen is over, a waiting or snoozed one at
     *  once. A popup that was not shown through the policy is closed through the manager. Hooks and
     *  exceptions are those of CGUIDialogManager::ClosePopup; after an exception it may be called again.
     *
     *  Logged: DEBUG if the closing is delayed; what ClosePopup logs; what ShowPopup logs for a popup that
     *  was waiting.
     *  @return false, with nothing changed, if there is no such popup
     */
    eC_Bool Close(ObjectHandle_t eID);

    /** Closes a popup now, regardless of its minimum time, and requests it again later. Hooks and exceptions
     *  are those of CGUIDialogManager::ClosePopup; after an exception the popup is not snoozed, and this may
     *  be called again. Logged: DEBUG; what ClosePopup logs; what ShowPopup logs for a popup that was
     *  waiting.
     *  @param uiTime milliseconds, 1 to 0x7FFFFFFF; snoozing a snoozed popup restarts its time
     *  @return false, with nothing changed, if it was not shown through the policy
     */
    eC_Bool Snooze(ObjectHandle_t eID, eC_UInt uiTime);

    /** @return how many popups are listed, waiting or snoozed */
    eC_UInt GetNOFPopups() const;

protected:
    /** Listens to the manager.
     *  @param pkPlaces the places, not owned; not touched before the first popup
     *  @param uiNOFPlaces the maximum number of popups, at least 1
     */
    CGUIPopupPolicy(CGUIObservedDialogManager& kManager, Place_t* pkPlaces, eC_UInt uiNOFPlaces);

    /** Closes no popup; waiting and snoozed ones are forgotten. */
    ~CGUIPopupPolicy() override;

private:
    void OnPopupActivation(CGUIObject* pPopup) override;
    void OnPopupDeactivation(CGUIObject* pPopup) override;
    void DoAnimate(const eC_Value& vTimes) override;

    Place_t* Find(ObjectHandle_t eID) const;
    static EShown Keep(Place_t& kPlace);
    Place_t* FindWhoGoes(CGUIDialogManager::PopupPriority_t ePriority) const;
    Place_t* MakeRoom(ObjectHandle_t eID, CGUIDialogManager::PopupPriority_t ePriority);
    eC_Bool IsTaken(CGUIDialogManager::PopupPriority_t ePriority) const;
    eC_Bool IsNext(const Place_t& kWaiting) const;
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
 *  @tparam uiMost how many popups may be listed, waiting or snoozed, at least 1
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
