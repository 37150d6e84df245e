// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIIDLEHOME_H
#define COMPANIONS_GUIIDLEHOME_H

/** @file
 *  Leads home when nobody has touched the device for some time.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/GUIAnimatable.h"

/** Goes to the home dialog after a time without input, with a popup as a warning before.
 *
 *  The time counts from the last input, from the moment when something other than the home dialog is
 *  shown again, and from the moment when nothing holds it off any more, whichever is latest. At home nothing
 *  happens and no timer runs. Everything happens in the timer, never inside a hook; what the hooks tell of
 *  is looked at a millisecond later, and while something holds it off, every second. A popup that is listed
 *  behind a higher one calls no hook: it is noticed when the warning or the way home would be due.
 *
 *  It takes one registration with the timer: std::bad_alloc may come from Start, from OnDialogAdded and
 *  OnDialogActivation, and from the hooks of popups. The manager may be destroyed first: then nothing
 *  happens any more. A hook may call its operations, but not destroy it.
 */
class CGUIIdleHome : private CGUIDialogListener, private CGUIAnimatable
{
public:
    /** How it goes to the home dialog. */
    enum EWay : unsigned char
    {
        WAY_SWITCH, ///< always by CreateDialog: the history grows by an entry
        WAY_BACK    ///< by BackToDialog, in the direct mode, if home is in the history, else by CreateDialog
    };

    /** Listens to the manager. Nothing runs before Start.
     *  @param kManager the manager, not owned
     *  @param eHome the dialog to go to
     *  @param eAction what to do with the dialog that is left. When it goes back instead (WAY_BACK), the
     *         dialogs on the way are deleted, if they allow it, with an action that deletes; otherwise they
     *         are hidden.
     *  @param uiIdleTime milliseconds without input, 1 to 0x7FFFFFFF
     */
    CGUIIdleHome(CGUIObservedDialogManager& kManager, ObjectHandle_t eHome,
                 CGUIDialogManager::EOldDialogAction eAction, eC_UInt uiIdleTime);

    /** Stops. A warning that is shown stays. */
    ~CGUIIdleHome() override;

    /** Sets the way; at first WAY_BACK. */
    void SetWay(EWay eWay) { m_eWay = eWay; }

    /** Sets the warning; at first there is none.
     *  @param ePopup a registered popup, NO_HANDLE for none
     *  @param uiTime how long before it goes home the warning is shown: milliseconds, less than the idle
     *         time
     */
    void SetWarning(ObjectHandle_t ePopup, eC_UInt uiTime);

    /** Sets what holds it off: while one of these dialogs is current, or one of these popups listed. A
     *  warning that is shown is closed then.
     *  @param peIDs the dialogs and popups, not owned; they must stay until others are set
     *  @param uiNOFIDs how many, 0 for none
     */
    void SetHoldOffs(const ObjectHandle_t* peIDs, eC_UInt uiNOFIDs);

    /** Begins to count, or begins anew. Closes a warning that is shown, as NoteInput does. */
    void Start();

    /** Stops counting. A warning that is shown is closed, with the hooks and exceptions of
     *  CGUIDialogManager::ClosePopup.
     */
    void Stop();

    /** Notes that there was input: a key, a touch. Call it for every input, before the input does anything.
     *  Closes a warning that is shown, with the hooks and exceptions of CGUIDialogManager::ClosePopup; the
     *  current dialog stays.
     *  @return true when this input ended a warning: it should do nothing else then
     */
    eC_Bool NoteInput();

    /** @return true between showing the warning and going home */
    eC_Bool IsWarning() const { return m_bIsWarning; }

private:
    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnPopupActivation(CGUIObject* pPopup) override;
    void OnPopupDeactivation(CGUIObject* pPopup) override;
    void DoAnimate(const eC_Value& vTimes) override;

    eC_Bool IsHeldOff() const;
    void LookAgainSoon();
    void Look();
    void Act();
    eC_Bool EndWarning();
    void GoHome();

    const ObjectHandle_t* m_peHoldOffs = nullptr;
    eC_UInt m_uiNOFHoldOffs = 0;
    ObjectHandle_t m_eHome;
    ObjectHandle_t m_eWarning = NO_HANDLE;
    eC_UInt m_uiIdleTime;
    eC_UInt m_uiWarningTime = 0;
    eC_UInt m_uiSince = 0; ///< when the time began to count
    CGUIDialogManager::EOldDialogAction m_eAction;
    EWay m_eWay = WAY_BACK;
    eC_Bool m_bIsStarted = false;
    eC_Bool m_bIsWaiting = false; ///< at home, or held off: the time does not count
    eC_Bool m_bIsWarning = false;
};

#endif
