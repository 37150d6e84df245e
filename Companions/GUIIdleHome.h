// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIIDLEHOME_H
#define COMPANIONS_GUIIDLEHOME_H

/** @file
 *  Goes to the home dialog when nobody has touched the device for some time.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/GUIAnimatable.h"

/** Goes to the home dialog after a time without input, and can show a popup as a warning before that.
 *
 *  The time counts from the last input, from the moment when something other than the home dialog is shown
 *  again, or from the moment when the last hold-off ends, whichever is latest. At home nothing happens and no
 *  timer runs. All work is done from the timer, never inside a hook: it responds to a hook one millisecond
 *  later, and checks once a second while something holds it off. A popup that is listed below one of a higher
 *  priority calls no hook; it is noticed when the warning or the way home is due.
 *
 *  It uses one timer registration, so Start, OnDialogAdded, OnDialogActivation and the hooks of popups may
 *  throw std::bad_alloc. The manager may be destroyed first; nothing happens after that. A hook may call the
 *  operations of this class, but must not destroy the object.
 */
class CGUIIdleHome : private CGUIDialogListener, private CGUIAnimatable
{
public:
    /** How it goes to the home dialog. */
    enum EWay : unsigned char
    {
        WAY_SWITCH, ///< always with CreateDialog: the history grows by an entry
        WAY_BACK    ///< with BackToDialog, in direct mode, if home is in the history, else with CreateDialog
    };

    /** Listens to the manager, but does nothing before Start.
     *  @param kManager the manager, not owned
     *  @param eHome the dialog to go to
     *  @param eAction what to do with the dialog that is left. When it goes back instead (WAY_BACK), an
     *         action that deletes deletes the dialogs on the way if they allow it; any other action hides
     *         them.
     *  @param uiIdleTime milliseconds without input, 1 to 0x7FFFFFFF
     */
    CGUIIdleHome(CGUIObservedDialogManager& kManager, ObjectHandle_t eHome,
                 CGUIDialogManager::EOldDialogAction eAction, eC_UInt uiIdleTime);

    /** Stops. A visible warning stays. */
    ~CGUIIdleHome() override;

    /** Sets how to go home; WAY_BACK by default. */
    void SetWay(EWay eWay) { m_eWay = eWay; }

    /** Sets the warning; there is none by default.
     *  @param ePopup a registered popup, NO_HANDLE for none
     *  @param uiTime how many milliseconds before going home the warning is shown; less than the idle time
     */
    void SetWarning(ObjectHandle_t ePopup, eC_UInt uiTime);

    /** Sets what holds it off: the time does not count while one of these dialogs is current or one of these
     *  popups is listed. A visible warning is closed then.
     *  @param peIDs the dialogs and popups, not owned; they must stay until others are set
     *  @param uiNOFIDs how many, 0 for none
     */
    void SetHoldOffs(const ObjectHandle_t* peIDs, eC_UInt uiNOFIDs);

    /** Starts counting, or starts again from zero. Closes a visible warning, as NoteInput does. */
    void Start();

    /** Stops counting. Closes a visible warning, with the hooks and exceptions of
     *  CGUIDialogManager::ClosePopup.
     */
    void Stop();

    /** Reports input: a key or a touch. Call it for every input, before handling that input. Closes a visible
     *  warning, with the hooks and exceptions of CGUIDialogManager::ClosePopup; the current dialog stays.
     *  @return true if this input dismissed a warning: it should do nothing else then
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
    eC_UInt m_uiSince = 0; ///< when counting began
    CGUIDialogManager::EOldDialogAction m_eAction;
    EWay m_eWay = WAY_BACK;
    eC_Bool m_bIsStarted = false;
    eC_Bool m_bIsWaiting = false; ///< at home, or held off: the time does not count
    eC_Bool m_bIsWarning = false;
};

#endif
