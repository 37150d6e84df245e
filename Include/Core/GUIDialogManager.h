// SPDX-License-Identifier: MIT
#ifndef CORE_GUIDIALOGMANAGER_H
#define CORE_GUIDIALOGMANAGER_H

/** @file
 *  The dialog manager: full-screen dialogs with a history, and popups by priority.
 */

#include "Core/Control/GUI.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIAnimatable.h"
#include "Core/GUITrace.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_TList_doubleLinked.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

/** Shows one full-screen dialog at a time, keeps a history of them, and shows popups over them.
 *
 *  An application registers definitions (an identifier and the path of a description file) and from then
 *  on uses identifiers only. It makes one manager, or an object of a derived class that overrides hooks,
 *  after the root, and destroys it before the root. Only one thread, the GUI task, may use it.
 *
 *  Dialogs and popups are direct children of the root (CGUI). The manager keeps no pointer to a dialog
 *  between calls: it finds dialogs again by identifier. It owns its records, but no object. It deletes a
 *  dialog only when the dialog's description allows it and OnDialogDeletion does not veto, and a popup only
 *  when it closes one that is registered as delete-on-close.
 *
 *  Errors show as a result (false, null, NO_HANDLE, the empty string), as a trace entry, or, when a list is
 *  read where it has no element, as an `int` exception with the value 0. Every operation that needs the root
 *  asserts that there is one. std::bad_alloc may come from every operation that logs a text with a number or
 *  a path, follows an object or adds to a list. No list is broken then, and nothing leaks, apart from an
 *  object of CreatePopupImpl that could not be listed. Docs/HookContract.md says how far each operation gets.
 *
 *  ## Messages
 *
 *  Message texts are part of the interface, slips included. Docs/Messages.md lists each text with its level
 *  and when it is logged; the comments here give levels and conditions. They use these groups:
 *  - *Loading*: DEBUG without a path; otherwise INFO, even if the load failed, and then ERROR if it failed.
 *  - *Deleting*, for every dialog to be deleted or hidden on the way back and for every one that a deleting
 *    action reaches: DEBUG, even if it is not in the tree; DEBUG if deletion was requested and is refused;
 *    WARNING before the deletion if the history has a focussed object with a dynamic identifier for it.
 *  - *Bringing back*, for the dialog that returns and those that are shown again with it: *loading* for one
 *    that is not in the tree and, unless it is loaded, what CreateDialogImpl logs; ERROR for the one that
 *    returns, if it was left hidden and is gone; ERROR if its focussed object exists but refuses the focus;
 *    *deleting* for the dialogs that are to be gone while it is current; *arbitration* if it came back.
 *  - *Arbitration*: what UpdateActivePopups logs.
 *
 *  ## Hooks
 *
 *  A derived class customises the manager through the protected virtual hooks only. They run synchronously
 *  inside the operation. Going back means Back, BackToDialog and ClearDialogHistory; CreateDialog and going
 *  back build a dialog that is not in the tree. Popups are arbitrated by ShowPopup, by ClosePopup, after
 *  every successful switch, and by Back even if no dialog came back.
 *
 *  | Hook                  | Called by          | When                                     | Arguments     |
 *  |-----------------------|--------------------|------------------------------------------|---------------|
 *  | CreateDialogImpl      | building a dialog  | neither in the tree nor loadable         | id, 2 flags   |
 *  | OnDialogAdded         | CreateDialog       | current, and not in the history (1)      | new dialog    |
 *  | OnDialogAdded         | AddDialog          | always; no OnDialogActivation follows    | added dialog  |
 *  | OnDialogActivation    | CreateDialog       | current and shown (1)                    | new dialog    |
 *  | OnDialogActivation    | going back         | current again, has its focus (1)         | that dialog   |
 *  | OnDialogDeactivation  | hiding a dialog    | before a visible dialog is hidden (2)    | the dialog    |
 *  | OnDialogDeactivation  | ODA_NOTHING        | the replaced dialog stays visible        | the dialog    |
 *  | OnDialogDeletion      | deleting a dialog  | requested, allowed, nothing deleted yet  | the dialog    |
 *  | OnAfterDialogDeletion | Back               | last of all                              | left, current |
 *  | OnAfterDialogDeletion | BackToDialog (3)   | after each dialog removed, current first | that, target  |
 *  | OnAfterDialogDeletion | ClearDialogHistory | after each dialog removed, current first | that, target  |
 *  | OnLastDialogDeletion  | Back               | no dialog came back; before arbitration  | -             |
 *  | OnLastDialogDeletion  | BackToDialog (3)   | target did not come back, ERROR logged   | -             |
 *  | OnPopupActivation     | arbitration        | an invisible popup was made visible      | the popup     |
 *  | OnPopupDeactivation   | arbitration        | hidden for one of higher priority        | the popup     |
 *  | OnPopupDeactivation   | ClosePopup         | hidden, timer stopped; not yet deleted   | the popup     |
 *  | CreatePopupImpl       | ShowPopup          | neither in the tree nor loadable         | id            |
 *
 *  1. OnDialogAdded comes first. CreateDialog ensures the focus after both; popups are arbitrated last.
 *  2. Also if its deletion was refused or not requested. A dialog that is deleted does not get this hook.
 *  3. In the direct mode. The stepwise mode calls Back for each step, with all its hooks.
 *
 *  A hook may call the manager, and may destroy or change anything but the manager itself. So may a trace
 *  sink, and what an application overrides in its objects. Docs/HookContract.md has the rules. Do not change
 *  the history in hooks while the manager goes back: what becomes of it is unspecified, but safe.
 */
class GUI_API CGUIDialogManager
{
public:
    /** What to do with the dialog that a new one replaces; recorded, and undone on the way back. */
    enum EOldDialogAction : unsigned char
    {
        ODA_INVISIBLE = 0,     ///< hidden, stays in the tree; shown again on the way back
        ODA_INVISIBLE_ALL = 1, ///< likewise, and all dialogs of the history are hidden
        ODA_DELETE = 2,        ///< deleted if its description allows it; made again on the way back
        ODA_DELETE_ALL = 3,    ///< likewise, and the dialogs of the history that are still shown or were
                               ///< deleted are deleted; those recorded as hidden are kept, hidden
        ODA_NOTHING = 4        ///< stays visible; only OnDialogDeactivation is called
    };

    /** Priority of a popup; the greater value wins. Values without a name are ordered by their number. */
    enum PopupPriority_t : unsigned char
    {
        PRIO_LOWEST = 1,
        PRIO_VERY_LOW = 2,
        PRIO_LOW = 3,
        PRIO_BELOW_MEDIUM = 4,
        PRIO_MEDIUM = 5,
        PRIO_ABOVE_MEDIUM = 6,
        PRIO_HIGH = 7,
        PRIO_VERY_HIGH = 8,
        PRIO_HIGHEST = 9
    };

    /** One registered popup definition. */
    struct RegisteredPopup_t
    {
        eC_String m_kPath;           ///< for the factory; empty: in the tree or from CreatePopupImpl
        ObjectHandle_t m_ePopupID;   ///< the popup's object
        PopupPriority_t m_ePriority; ///< greater wins
        eC_UInt m_uiDisplayTime;     ///< milliseconds until it closes itself; 0: stays until it is closed
        eC_Bool m_bDeleteOnClose;    ///< true: closing deletes the object, false: it only hides it
    };

    /** Makes a manager without dialogs, history, definitions and popups. Loads and logs nothing. */
    CGUIDialogManager();

    CGUIDialogManager(const CGUIDialogManager&) = delete;
    CGUIDialogManager& operator=(const CGUIDialogManager&) = delete;

    /** Drops all records and stops the timers of shown popups. Deletes no dialog and no popup, calls no hook
     *  and logs nothing. The framework's timer must still exist.
     */
    virtual ~CGUIDialogManager();

    // --- Switching ----------------------------------------------------------------------------------

    /** Switches to a dialog.
     *
     *  The manager takes the dialog from the tree, else loads it from its definition, else asks
     *  CreateDialogImpl. It records the current dialog in the history with the action and the focussed object
     *  (an anonymous one inside the dialog gets a dynamic identifier), and executes the action on it. The new
     *  dialog is shown on top. If it is in the history, and its focus is to be restored, the object recorded
     *  there gets the focus. Then it becomes current. If the action destroys the very object to be shown, the
     *  dialog is obtained again, as if it had not been in the tree; if that fails, no dialog is current,
     *  unless CreateDialogImpl itself has switched to one.
     *  Hooks, in order: CreateDialogImpl; OnDialogDeactivation or OnDialogDeletion for the dialogs left;
     *  OnDialogAdded, only if the dialog is not in the history (a switch to the current dialog finds it
     *  there); OnDialogActivation; those of the arbitration.
     *  Logged: DEBUG if the dialog is in the tree, otherwise *loading* and what CreateDialogImpl logs; ERROR
     *  if loading or CreateDialogImpl throws; ERROR if there is no dialog; with a deleting action *deleting*;
     *  ERROR if the dialog was destroyed and could not be obtained again; ERROR if the object recorded as
     *  focussed refuses the focus; *arbitration*.
     *  Throws what hooks other than CreateDialogImpl throw, the `int` 0 of UpdateActivePopups, and
     *  std::bad_alloc, unless it comes from obtaining the dialog, which counts as failure.
     *  @param eID the dialog
     *  @param eAction what to do with the dialog that is current now
     *  @return the dialog; null if it could not be obtained (then nothing else changed), or if it did not
     *          survive the operation
     */
    CGUIObject* CreateDialog(ObjectHandle_t eID, EOldDialogAction eAction);

    /** Makes an object that the application built the current dialog.
     *
     *  The current dialog is recorded and left as by CreateDialog. The caller must attach the object to the
     *  root and show it, and OnDialogActivation is not called: both intended. An object without identifier
     *  gets a dynamic one. A deleting action later hides this dialog: the manager never deletes it.
     *  Hooks, in order: OnDialogDeactivation or OnDialogDeletion for the dialogs left; OnDialogAdded; those
     *  of the arbitration.
     *  Logged: with a deleting action *deleting*; DEBUG unless the object is null; *arbitration*; ERROR for
     *  null, also if the action destroyed the object (then no dialog is current); ERROR if anything throws,
     *  which skips the rest. Throws nothing, even when memory runs out.
     *  @param pNewCurrentDialog the dialog
     *  @param eAction what to do with the dialog that is current now
     *  @param bRecoverFocus whether coming back to the dialog restores the focus that it had when it was left
     */
    void AddDialog(CGUIObject* pNewCurrentDialog, EOldDialogAction eAction, eC_Bool bRecoverFocus);

    // --- History ------------------------------------------------------------------------------------

    /** Leaves the current dialog and brings back the most recent one of the history, with its focus. The
     *  dialogs that remain in the history return to the state that they were in when that dialog was current.
     *  Does nothing without a current dialog or with an empty history: this never leaves the last dialog.
     *  Hooks, in order: OnDialogDeletion or OnDialogDeactivation for the dialog left; those for the dialogs
     *  of the history; CreateDialogImpl; OnDialogActivation; those of the arbitration; OnLastDialogDeletion
     *  if no dialog came back; those of the arbitration; OnAfterDialogDeletion.
     *  Logged: *deleting*; *bringing back*; *arbitration*, also if no dialog came back; ERROR if anything
     *  throws, which ends the operation. Throws nothing, even when memory runs out.
     *  @param bDeleteObject true: delete the dialog left, if it allows it; false: hide it
     */
    void Back(eC_Bool bDeleteObject);

    /** Goes back to a dialog of the history.
     *
     *  The direct mode removes the dialogs on the way without showing them, and does not undo their recorded
     *  actions. The stepwise mode calls Back until the dialog is current. It loops forever when a dialog on
     *  the way cannot be brought back or a hook throws each time: intended, use the direct mode there.
     *  Hooks in the direct mode: for the current dialog and then for each one on the way OnDialogDeletion or
     *  OnDialogDeactivation, and OnAfterDialogDeletion; those of bringing the target back;
     *  OnLastDialogDeletion if that failed.
     *  Logged: ERROR if the dialog is not in the history; in the direct mode *deleting*, *bringing back*, and
     *  ERROR if the target did not come back; in the stepwise mode what Back logs.
     *  Throws in the direct mode what hooks and loading throw, std::bad_alloc, the `int` 0 of
     *  UpdateActivePopups, and one when the history runs out before the target; in the stepwise mode only
     *  std::bad_alloc, if there is no memory for that first ERROR.
     *  @param eDialogID the dialog to go back to
     *  @param bDeleteDialogsIfAllowed true: delete the dialogs left, if they allow it; false: hide them
     *  @param bHistoryActivation true: stepwise; false: direct
     *  @return true when the dialog was in the history, even if it could not be brought back
     */
    eC_Bool BackToDialog(ObjectHandle_t eDialogID, eC_Bool bDeleteDialogsIfAllowed,
                         eC_Bool bHistoryActivation);

    /** Shortens the history to its oldest entries.
     *
     *  With bDeleteCurrent the current dialog is removed too, and the most recent of the entries kept becomes
     *  current. With uiKeepDialogs 0 no dialog is current then, and OnLastDialogDeletion is not called.
     *  Nothing happens if there are not more than uiKeepDialogs dialogs (entries, and the current one if it
     *  is to be removed).
     *  Hooks: for each dialog removed OnDialogDeletion or OnDialogDeactivation, and OnAfterDialogDeletion;
     *  then, with bDeleteCurrent, those of bringing a dialog back. The target that OnAfterDialogDeletion gets
     *  is the entry at position uiKeepDialogs - 1, counted from the most recent one although the oldest ones
     *  are kept (intended: hooks have always received it), if bDeleteCurrent is true, uiKeepDialogs is not 0
     *  and the history has that many entries; otherwise NO_HANDLE.
     *  Logged: *deleting*; with bDeleteCurrent *bringing back*; ERROR if anything throws, which ends the
     *  operation; what was removed stays removed. Throws nothing, even when memory runs out.
     *  @param uiKeepDialogs how many entries to keep
     *  @param bDeleteDialogs true: delete the dialogs removed, if they allow it; false: hide them
     *  @param bDeleteCurrent whether the current dialog is removed too
     */
    void ClearDialogHistory(eC_UInt uiKeepDialogs, eC_Bool bDeleteDialogs, eC_Bool bDeleteCurrent);

    ObjectHandle_t GetCurrentDialogID() const { return m_CurrentDialog.m_eDialogID; } ///< NO_HANDLE: none
    eC_UInt GetHistoryStackSize() const { return m_History.GetQuantity(); } ///< how many entries there are

    /** @return the current dialog, also when it is invisible; null when no object has its identifier */
    CGUIObject* GetCurrentDialog() const
    {
        return CGUI::GetInstance().GetObjectByID(m_CurrentDialog.m_eDialogID, false);
    }

    /** @return true when the dialog is in the history, or current if bConsiderCurrentDialog is true */
    eC_Bool ContainsDialog(ObjectHandle_t eDialogID, eC_Bool bConsiderCurrentDialog) const;

    /** @return the dialog that Back would bring back, NO_HANDLE when the history is empty */
    ObjectHandle_t GetLastDialogID() const
    {
        return m_History.IsEmpty() ? NO_HANDLE : (*m_History.GetBegin()).m_Dialog.m_eDialogID;
    }

    // --- Popups -------------------------------------------------------------------------------------

    /** Lists a registered popup and shows it if no popup of higher priority is listed.
     *
     *  The manager takes the object from the tree, else loads it from its definition, else asks
     *  CreatePopupImpl. The first popup makes it remember the focus of the current dialog, which gets it back
     *  when the last popup is closed. A popup that is already listed takes the registered display time and,
     *  if it is displayed, its time starts again.
     *  Hooks, in order: CreatePopupImpl; those of the arbitration.
     *  Logged: DEBUG on every call; ERROR if the popup is not registered; *loading* if it is not in the tree
     *  and its registered path is not empty; DEBUG if it is already listed, and DEBUG if it is also
     *  displayed; if it is not listed and still has no object, what CreatePopupImpl logs, and ERROR if that
     *  returns none; *arbitration* if it is newly listed.
     *  Throws what hooks and loading throw, std::bad_alloc, and the `int` 0 when OnPopupActivation or
     *  OnPopupDeactivation removed the entry of its own popup.
     *  @return the popup's object, also while a higher priority keeps it waiting; null if it is not
     *          registered, could not be obtained, or did not survive the operation. For a listed popup whose
     *          object is not under the root: an object loaded anew if it has a path, otherwise null.
     */
    CGUIObject* ShowPopup(ObjectHandle_t eID);

    /** Closes a listed popup, displayed or waiting: hides it, stops its time, and deletes its object if it
     *  was shown as delete-on-close.
     *  Hooks, in order: OnPopupDeactivation, also for a popup that was never displayed; those of the
     *  arbitration. Logged: *arbitration*.
     *  Throws what hooks throw, the `int` 0 when OnPopupDeactivation removed the entry itself and that of
     *  UpdateActivePopups, and std::bad_alloc, before anything is done or, from the arbitration, after the
     *  popup is closed.
     *  @return false, with nothing changed, when the popup is not listed
     */
    eC_Bool ClosePopup(ObjectHandle_t eID);

    eC_Bool IsPopupDisplayed(ObjectHandle_t eID); ///< @return true when it is listed and not invisible

    /** @return true when the popup is listed, displayed or waiting */
    eC_Bool IsPopupInPopupList(ObjectHandle_t eID) const { return GetActivePopup(eID) != nullptr; }

    // --- Definitions --------------------------------------------------------------------------------

    /** Registers the description file of a dialog, a path for the factory. The file is not opened.
     *  An identifier that is registered with a path, for a dialog or for a popup, is refused with ERROR. A
     *  definition with an empty path counts as none, so its identifier can be registered again and then has
     *  two definitions: intended.
     *  @return true when registered
     */
    eC_Bool RegisterDialogDefinition(const eC_String& kDefinitionFilePath, ObjectHandle_t eDialogID);

    /** Removes the first dialog definition of an identifier. Loaded dialogs do not change, and nothing is
     *  logged. std::bad_alloc comes before anything is removed. @return true when there was one
     */
    eC_Bool UnregisterDialogDefinition(ObjectHandle_t eDialogID);

    /** Nothing is logged. @return the path registered first for a dialog or popup, among the dialogs and then
     *  among the popups; the empty string when there is none
     */
    eC_String GetRegisteredPath(ObjectHandle_t eDialogID) const;

    /** Logs DEBUG for the path and for every registered path that it is compared with. @return the identifier
     *  registered first for the path, among the dialogs and then among the popups, or NO_HANDLE
     */
    ObjectHandle_t GetRegisteredDialogID(const eC_String& kDialogPath) const;

    /** Registers a popup with the values of a RegisteredPopup_t. Nothing is loaded and no value is checked.
     *  An identifier that is registered as a popup is refused with ERROR; one that is registered as a dialog
     *  is accepted, and the path of the dialog overrides the popup's: intended.
     *  @return true when registered
     */
    eC_Bool RegisterPopupDefinition(ObjectHandle_t ePopupID, PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                                    eC_Bool bDeleteOnClose, const eC_String& kDefinitionFilePath);

    /** Removes a popup definition. A listed popup keeps the settings it was shown with, and nothing is
     *  logged. std::bad_alloc comes before anything is removed. @return true when there was one
     */
    eC_Bool UnregisterPopupDefinition(ObjectHandle_t ePopupID);

    /** Changes the display time of a popup definition (milliseconds, 0: no limit) for the next ShowPopup. A
     *  popup that is shown keeps its running time. Nothing is logged. @return true when it is registered
     */
    eC_Bool UpdateRegisteredPopupDisplayTime(ObjectHandle_t eID, eC_UInt uiDisplayTime);

    /** Reads a popup definition's display time in milliseconds, or all five fields. Nothing is logged.
     *  @return true when the popup is registered; otherwise the last argument is unchanged
     */
    eC_Bool GetRegisteredPopupDisplayTime(ObjectHandle_t eID, eC_UInt& uiDisplayTime);
    eC_Bool GetRegisteredPopupInfo(ObjectHandle_t eID, RegisteredPopup_t& kPopupInfo) const; ///< likewise

    // --- Dynamic identifiers ------------------------------------------------------------------------

    /** Hands out an identifier for an object that has none. Nothing is logged.
     *  Every call returns the same value, cuiNOFObjectHandles - 8, the first one after the static handles,
     *  and records one more copy of it: intended. Objects that get it cannot be told apart, and a search
     *  finds the first one in pre-order, so give identifiers of your own to dialogs that you add and to
     *  focusable objects. Only if that value is 0x7FFFFFFF are the records searched for a free one.
     */
    ObjectHandle_t CreateDynamicObjectID();

protected:
    // --- History ------------------------------------------------------------------------------------

    /** How a dialog was brought up and how it may be treated. The default describes no dialog. */
    struct DialogDescription
    {
        /** Takes the four values in the order of the members. */
        DialogDescription(ObjectHandle_t eCurrentDialogID = NO_HANDLE,
                          EOldDialogAction eOldDialogAction = ODA_NOTHING,
                          eC_Bool bAllowObjectDeletion = true, eC_Bool bRecoverFocus = true);

        ObjectHandle_t m_eDialogID;          ///< the dialog's object
        EOldDialogAction m_eOldDialogAction; ///< what this dialog did to the one it replaced
        eC_Bool m_bAllowObjectDeletion;      ///< false: hidden instead of deleted
        eC_Bool m_bRecoverFocus;             ///< the focussed object gets the focus back on return
    };

    /** One dialog that was replaced. */
    struct HistoryEntry
    {
        /** Default entries only receive another one: that their action is ODA_DELETE_ALL is deliberate. */
        HistoryEntry(const DialogDescription& dialog = DialogDescription(),
                     EOldDialogAction eAction = ODA_DELETE_ALL, ObjectHandle_t eFocussedObject = NO_HANDLE);

        bool operator==(const HistoryEntry& kOther); ///< compares dialog, action and focussed object

        DialogDescription m_Dialog;       ///< the dialog as it was while it was current
        EOldDialogAction m_eAction;       ///< what its successor did to it
        ObjectHandle_t m_eFocussedObject; ///< what had the focus when it was left, or NO_HANDLE
    };

    /** The history, the most recent entry at the front. */
    typedef eC_TListDoubleLinked<HistoryEntry> CDialogHistoryList_t;
    const CDialogHistoryList_t& GetDialogHistory() const { return m_History; } ///< @return it, to be read

    // --- Popups -------------------------------------------------------------------------------------

    /** A popup that is displayed or waiting. The timer calls it back when its display time is up. */
    class PopupDescription : public CGUIAnimatable
    {
    public:
        PopupDescription() : PopupDescription(nullptr, PRIO_LOW, 0, true, nullptr) {} ///< of no popup

        /** Takes the five values. The manager closes the popup when its time is up. */
        PopupDescription(CGUIObject* pPopup, PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                         eC_Bool bDeleteOnClose, CGUIDialogManager* pkDialogManager)
            : m_pObject(pPopup),
              m_pDialogManager(pkDialogManager),
              m_ePriority(ePriority),
              m_uiDisplayTime(uiDisplayTime),
              m_bDeleteOnClose(bDeleteOnClose)
        {
        }

        PopupDescription(const PopupDescription&) = default; ///< the copy is not registered with the timer
        PopupDescription& operator=(const PopupDescription&) = default; ///< keeps its registration
        ~PopupDescription() override = default; ///< stops the display time; neither hides nor deletes

        /** Closes the popup through the manager, which destroys this description. Does nothing, and stays
         *  registered, when there is no object or no manager. The argument is ignored.
         */
        void DoAnimate(const eC_Value& vTimes) override;

        /** @return true when this priority is strictly greater */
        eC_Bool operator>(const PopupDescription& ePopup) const { return m_ePriority > ePopup.m_ePriority; }

        eC_Bool operator==(ObjectHandle_t eID) const; ///< whether it has an object with the identifier

        PopupPriority_t GetPriority() const { return m_ePriority; } ///< the greater one wins
        CGUIObject* GetObject() const { return m_pObject.get(); }   ///< null when it was destroyed
        eC_UInt GetDisplayTime() const { return m_uiDisplayTime; }  ///< milliseconds, 0: no limit

        CSafeGUIObjectPtr m_pObject;         ///< the popup's object
        CGUIDialogManager* m_pDialogManager; ///< not owned
        PopupPriority_t m_ePriority;         ///< as registered when the popup was shown
        eC_UInt m_uiDisplayTime;             ///< milliseconds, 0: no limit
        eC_Bool m_bDeleteOnClose;            ///< whether closing deletes the object
    };

    /** Shows all popups of the highest listed priority, raised above everything else under the root, hides
     *  the others, and starts and stops their display times. When no popup is listed, the object of the
     *  current dialog whose focus was remembered gets it back.
     *  Hooks: OnPopupActivation and OnPopupDeactivation, from the last list entry to the first. If one lists
     *  a popup of a higher priority, that is displayed at once, but this run continues with the priority that
     *  it read at the beginning; the next one hides the popups of lower priority.
     *  Logged: DEBUG when no popup is listed; ERROR for a popup whose object is gone, which is removed from
     *  the list; DEBUG for each popup of the highest priority; DEBUG for each one hidden.
     *  Throws what hooks throw, and an `int` 0 when a hook removed the entry of its own popup.
     */
    void UpdateActivePopups();

    PopupDescription* GetActivePopup(ObjectHandle_t eID) const; ///< null, or valid until it is closed

    // --- Loading ------------------------------------------------------------------------------------

    /** Obtains a dialog: from the tree, else from its definition, else from CreateDialogImpl. Exceptions of
     *  loading and of the hook pass through. Logged: DEBUG if it is in the tree and bAllowDeletion was true;
     *  if it is not in the tree, *loading* and what CreateDialogImpl logs.
     *  @param bAllowDeletion in and out: whether the manager may delete the dialog; false for one in the tree
     *  @param bRecoverFocus in and out: whether coming back restores the focus; for one in the tree that is
     *         in the history too, as recorded there
     *  @return the dialog, or null
     */
    CGUIObject* GetDialogObject(ObjectHandle_t eID, eC_Bool& bAllowDeletion, eC_Bool& bRecoverFocus) const;

    /** Loads a dialog or popup from its definition, with the identifier requested, attached to the root and
     *  visible. Exceptions of the factory pass through. Logged: *loading*. @return the object, or null
     */
    CGUIObject* LoadDialogDescription(ObjectHandle_t eID) const;

    // --- Hooks, in the order of their slots, which is part of the interface --------------------------

    /** Builds a dialog in code. The hook attaches the object to the root and gives it its identifier; the
     *  manager uses the object as it is. The flags say whether the manager may delete the dialog and whether
     *  coming back to it restores the focus; both have the caller's values until they are set. The default
     *  logs DEBUG and returns null. @return the dialog, or null for failure
     */
    virtual CGUIObject* CreateDialogImpl(ObjectHandle_t /*eID*/, eC_Bool& /*bAllowDeletionOUT*/,
                                         eC_Bool& /*bRecoverFocusOUT*/) const
    {
        GUILOG(GUI_TRACE_DEBUG,
               "CGUIDialogManager::CreateDialogImpl has been called."
               "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n");
        return nullptr;
    }

    virtual void OnDialogAdded(CGUIObject* /*pDialog*/) {}        ///< is current, was not in the history
    virtual void OnDialogActivation(CGUIObject* /*pDialog*/) {}   ///< has become current
    virtual void OnDialogDeactivation(CGUIObject* /*pDialog*/) {} ///< will be hidden, or stays but is left

    /** A dialog is about to be deleted. @return false to keep it, hidden; the default returns true */
    virtual eC_Bool OnDialogDeletion(CGUIObject* /*pDialog*/) { return true; }

    /** A dialog was left on the way back to another one, or to none (NO_HANDLE). */
    virtual void OnAfterDialogDeletion(ObjectHandle_t /*eDeletedDialogID*/, ObjectHandle_t /*eNewID*/) {}

    virtual void OnLastDialogDeletion() {}                      ///< no dialog could be brought back
    virtual void OnPopupActivation(CGUIObject* /*pPopup*/) {}   ///< has become visible
    virtual void OnPopupDeactivation(CGUIObject* /*pPopup*/) {} ///< was hidden, or is being closed

    /** Builds a popup in code. The manager gives the object the identifier, and attaches one without parent
     *  to the root when it first displays it. Until then it belongs to the hook's author, even if it is
     *  closed before and is not delete-on-close. The default logs DEBUG and returns null. @return the popup,
     *  or null for failure
     */
    virtual CGUIObject* CreatePopupImpl(ObjectHandle_t /*eID*/)
    {
        GUILOG(GUI_TRACE_DEBUG,
               "CGUIDialogManager::CreatePopupImpl has been called."
               "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n");
        return nullptr;
    }

private:
    friend class CGUIStateAccess;
    friend class CGUITestAccess;

    /** One registered dialog definition. */
    struct RegisteredDialog_t
    {
        eC_String m_kPath;          ///< file that the dialog is loaded from
        ObjectHandle_t m_eDialogID; ///< the dialog's object
    };

    typedef eC_TListDoubleLinked<RegisteredDialog_t> RegisteredDialogList_t;
    typedef eC_TListDoubleLinked<RegisteredPopup_t> RegisteredPopupList_t;
    typedef eC_TListDoubleLinked<PopupDescription> PopupDescriptionList_t;

    // --- Switching ----------------------------------------------------------------------------------
    CGUIObject* ObtainDialog(ObjectHandle_t eID, CSafeGUIObjectPtr& pkDialogOUT, eC_Bool& bAllowDeletionOUT,
                             eC_Bool& bRecoverFocusOUT) const;
    void StoreCurrentDialogInHistory(EOldDialogAction eAction, CGUIObject* pkFocusedObj);
    void ExecuteActionOnCurrentDialog(EOldDialogAction eAction, CGUIObject* pkCurrentDialog);
    void DeleteDialog(const DialogDescription& dialog, eC_Bool bDeleteObject);
    void MakeDialogVisible(const CSafeGUIObjectPtr& pkDialog) const;
    void MakeDialogInvisible(CGUIObject* pkDialog);
    void HideDialog(CGUIObject* pkDialog);
    // --- History ------------------------------------------------------------------------------------
    CGUIObject* CreateDialogFromHistory();
    void BringBack(const HistoryEntry& kEntry, CSafeGUIObjectPtr& pkDialogOUT);
    void ReCreateDialog(const DialogDescription& dialog, CSafeGUIObjectPtr& pkDialogOUT) const;
    void RemoveMostRecentDialog(eC_Bool bDeleteDialog, ObjectHandle_t eTargetID);
    void ApplyActionToHistory(EOldDialogAction eAction);
    void ApplyActionToHistory(EOldDialogAction eAction, CSafeGUIObjectPtr& pkShown);
    eC_Bool IsHistoryHidden() const;
    HistoryEntry* FindDialogInHistory(ObjectHandle_t eID) const;
    void PrintDialogHistory();
    // --- Focus --------------------------------------------------------------------------------------
    ObjectHandle_t IdentifyFocussedObject(const CGUIObject* pkCurrentDialog, CGUIObject* pkFocusedObj);
    void RestoreRecordedFocus(const HistoryEntry& kEntry, const CGUIObject* pkDialog);
    void RecoverFocus(CGUIObject* pObjectToFocus);
    void EnsureFocus(CGUIObject* pAddedDialog);
    void RememberDialogFocus();
    void GiveDialogFocusBack();
    // --- Popups -------------------------------------------------------------------------------------
    void ShowActivePopupAgain(ObjectHandle_t eID, eC_UInt uiDisplayTime);
    eC_Bool DeactivatePopup(const CSafeGUIObjectPtr& pkPopup,
                            PopupDescriptionList_t::SafeIterator& kIterator);
    void DisplayPopup(PopupDescriptionList_t::SafeIterator& kIterator);
    static eC_Bool ShowOnTop(const CSafeGUIObjectPtr& pkPopup);
    void HidePopup(PopupDescriptionList_t::SafeIterator& kIterator);
    // --- Definitions --------------------------------------------------------------------------------
    RegisteredPopup_t* FindRegisteredPopup(ObjectHandle_t eID) const;
    // --- Loading ------------------------------------------------------------------------------------
    CGUIObject* BuildDialog(ObjectHandle_t eID, eC_Bool& bAllowDeletion, eC_Bool& bRecoverFocus) const;

    CDialogHistoryList_t m_History;
    DialogDescription m_CurrentDialog;
    CSafeGUIObjectPtr m_pCurrentDialogFocus; ///< gets the focus back when the last popup is closed
    eC_Int m_iLastDynObjID;
    eC_TListDoubleLinked<int> m_DynamicObjectIDs;
    mutable RegisteredDialogList_t m_RegisteredDialogDefinitions; ///< walked by safe iterators, const or not
    mutable RegisteredPopupList_t m_RegisteredPopupDefinitions;   ///< likewise
    PopupDescriptionList_t m_ActivePopups; ///< ascending by priority, newer ones before equal ones
};

#endif
