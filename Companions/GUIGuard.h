// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIGUARD_H
#define COMPANIONS_GUIGUARD_H

/** @file
 *  Dialogs that are shown only with a right.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/GUIAnimatable.h"

/** Guards dialogs that need a right, for example service dialogs behind a code or a key switch. Without the
 *  right it shows a question, a dialog of the application, which calls Grant or Refuse. There is one guard
 *  for each right; a manager can have several.
 *
 *  Show asks before it switches. Whatever else makes a guarded dialog current without the right (going back
 *  to it, directly or stepwise, a switch without the guard, a restored history), the guard hides it inside
 *  the hook, before the operation returns; with it goes the focus. The question follows when the operation
 *  is over: from the timer one millisecond later, or earlier from Settle. A guarded dialog below the current
 *  one (ODA_NOTHING) is hidden likewise, and stays hidden until it becomes current with the right.
 *
 *  Call Settle before drawing: then no picture shows a guarded dialog without the right, even if a hook has
 *  thrown, and none lacks the question. Without it, the same holds unless a hook throws in the middle of a
 *  switch or of going back.
 *
 *  Hooks are called for a dialog that becomes current hidden as for any other: OnDialogActivation, and
 *  OnDialogDeactivation when another one becomes current. What a right protects besides the sight of a dialog
 *  belongs behind HasRight.
 *
 *  It uses one timer registration; because of it and of what is logged, every operation that is not const
 *  and the hooks of dialogs may throw std::bad_alloc, after hiding. The manager may be destroyed first;
 *  nothing happens after that. A hook may call the guard, but must not destroy it.
 */
class CGUIGuard : private CGUIDialogListener, private CGUIAnimatable
{
public:
    /** When the right ends, apart from its time. */
    enum EEnd : unsigned char
    {
        END_ON_REVOKE,  ///< only by Revoke
        END_WITH_GROUP, ///< when a dialog of the group has been current and one outside becomes current
        END_AT_ONCE     ///< when any dialog other than the first guarded one becomes current
    };

    /** What became of a requested dialog. */
    enum EShown : unsigned char
    {
        GUARD_SHOWS, ///< it is shown
        GUARD_ASKS,  ///< the question is shown
        GUARD_FAILS  ///< neither could be shown
    };

    /** Listens to the manager. There is no right at first.
     *  @param kManager the manager, not owned
     *  @param eQuestion the dialog that asks for the right
     *  @param peDialogs the guarded dialogs, not owned; they must stay. The question is not one of them.
     *  @param uiNOFDialogs how many
     */
    CGUIGuard(CGUIObservedDialogManager& kManager, ObjectHandle_t eQuestion, const ObjectHandle_t* peDialogs,
              eC_UInt uiNOFDialogs);

    /** Stops guarding. What is hidden stays hidden. */
    ~CGUIGuard() override;

    /** Sets when the right ends; END_ON_REVOKE by default. */
    void SetEnd(EEnd eEnd) { m_eEnd = eEnd; }

    /** Sets the time after which the right ends, in addition.
     *  @param uiTime milliseconds since Grant, at most 0x7FFFFFFF; 0 for no limit, as at first
     */
    void SetTime(eC_UInt uiTime);

    /** Sets which dialogs belong to the group besides the guarded ones and the question, for example windows
     *  over them. They need no right, but being there does not end it.
     *  @param peDialogs the dialogs, not owned; they must stay until others are set
     *  @param uiNOFDialogs how many, 0 for none
     */
    void SetGroup(const ObjectHandle_t* peDialogs, eC_UInt uiNOFDialogs);

    /** Switches to a dialog if that needs no right or the right is there. Otherwise it hides the current
     *  dialog, shows the question, and remembers what was requested for Grant. If the question is current
     *  already, only the latter.
     *  Hooks and exceptions are those of CGUIDialogManager::CreateDialog. Logged: DEBUG if it asks; what
     *  CreateDialog logs.
     *  @param eID the dialog, guarded or not
     *  @param eAction what to do with the dialog that is left
     */
    EShown Show(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction);

    /** Gives the right, or its time anew. If the question is current, it is left with Back and deleted, and
     *  the requested dialog is shown with its action, so that the history is the same as without the
     *  question; if nothing was requested, the question stood before a dialog of the history, to which Back
     *  leads.
     *  Hooks and exceptions are those of Back and CreateDialog; the right remains given. Logged: DEBUG; what
     *  Back and CreateDialog log.
     */
    void Grant();

    /** Ends the right. If a guarded dialog is current, the question is shown a millisecond later, from the
     *  timer, or earlier by Settle. Calls no hook. Logged: DEBUG if there was a right.
     */
    void Revoke();

    /** Answers the question with no: goes back to the dialog where the guarded one was requested, or, if that
     *  one was reached by going back, directly to the first dialog below it that is not guarded. Back at the
     *  question does the same.
     *  Hooks and exceptions are those of Back and BackToDialog. Logged: what they log.
     *  @return false, with nothing changed, if the question is not current or there is no dialog to go to
     */
    eC_Bool Refuse();

    /** @return whether the right is there */
    eC_Bool HasRight() const;

    /** @return whether the question is the current dialog */
    eC_Bool IsAsking() const;

    /** Does at once what the timer would do: shows the question if a guarded dialog is current without the
     *  right, and hides all others. Call it before drawing; without need it only looks.
     *  If the question cannot be shown, it goes back as Refuse does; if that is impossible too, the screen
     *  stays without a dialog and this is tried again with each call. Not inside a hook of going back.
     *  Hooks and exceptions are those of CreateDialog and BackToDialog; what must not be seen is hidden even
     *  if they throw. Logged: DEBUG if it asks or goes back; what CreateDialog and BackToDialog log.
     */
    void Settle();

private:
    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnDialogDeactivation(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;
    void DoAnimate(const eC_Value& vTimes) override;

    eC_Bool IsGuarded(ObjectHandle_t eID) const;
    eC_Bool IsInGroup(ObjectHandle_t eID) const;
    eC_Bool MayShow(ObjectHandle_t eID) const;
    void Look();
    void UseRight(ObjectHandle_t eCurrent);
    void EndRight();
    void HideAll();
    void Hide(CGUIObject& kDialog);
    void ShowAgain(ObjectHandle_t eID);
    void TellOwed(ObjectHandle_t eCurrent);
    void Ask();
    void GoOn();
    eC_Bool GoFurtherBack();
    void SetTimer();

    const ObjectHandle_t* m_peDialogs;
    const ObjectHandle_t* m_peGroup = nullptr;
    eC_UInt m_uiNOFDialogs;
    eC_UInt m_uiNOFGroup = 0;
    eC_UInt m_uiTime = 0;  ///< after which the right ends
    eC_UInt m_uiSince = 0; ///< when the right was given
    ObjectHandle_t m_eQuestion;
    ObjectHandle_t m_eWanted = NO_HANDLE;         ///< shown when the question is answered
    ObjectHandle_t m_eFor = NO_HANDLE;            ///< the dialog for which an END_AT_ONCE right is used
    ObjectHandle_t m_eOwed = NO_HANDLE;           ///< was activated while hidden, and not yet deactivated
    ObjectHandle_t m_eFocussedDialog = NO_HANDLE; ///< had the focus when it was hidden
    ObjectHandle_t m_eFocussedObject = NO_HANDLE; ///< in that dialog
    CGUIDialogManager::EOldDialogAction m_eAction = CGUIDialogManager::ODA_INVISIBLE; ///< for m_eWanted
    EEnd m_eEnd = END_ON_REVOKE;
    eC_Bool m_bHasRight = false;
    eC_Bool m_bIsUsed = false;    ///< a dialog of the group was current with the right
    eC_Bool m_bIsRefused = false; ///< Back at the question led to a guarded dialog
    eC_Bool m_bIsGoingOn = false; ///< dialogs on the way from the question do not end the right
    eC_Bool m_bIsSettling = false;
};

#endif
