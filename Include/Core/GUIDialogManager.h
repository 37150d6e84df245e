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
 *  on speaks of identifiers only. It makes one manager, or an object of a derived class that overrides
 *  hooks, after the root, and destroys it before the root. One thread uses it: the GUI task.
 *
 *  Dialogs and popups are direct children of the root (CGUI). The manager keeps no pointer to a dialog
 *  between calls, it finds dialogs again by identifier. It owns its records, never the objects; it
 *  deletes a dialog only when the description of the dialog allows it and OnDialogDeletion does not
 *  veto, and a popup only when it closes one that is registered as delete-on-close.
 *
 *  Errors surface as a result (false, null, NO_HANDLE, the empty string), as a trace entry, or, when a
 *  list is read where it has no element, as an `int` exception with the value 0. Every operation that
 *  needs the root asserts that there is one.
 *
 *  ## Hooks
 *
 *  A derived class customises the manager through the protected virtual hooks only. They run
 *  synchronously inside the operation.
 *
 *  | Hook                  | Called by        | When                                       | Arguments     |
 *  |-----------------------|------------------|--------------------------------------------|---------------|
 *  | CreateDialogImpl      | CreateDialog (1) | neither in the tree nor loadable           | id, 2 flags   |
 *  | OnDialogAdded         | CreateDialog     | current, and not in the history            | new dialog    |
 *  | OnDialogAdded         | AddDialog        | always; no OnDialogActivation follows      | added dialog  |
 *  | OnDialogActivation    | CreateDialog     | current and shown (2)                      | new dialog    |
 *  | OnDialogActivation    | going back (3)   | current again, has its focus (2)           | that dialog   |
 *  | OnDialogDeactivation  | hiding a dialog  | before a visible dialog is hidden (4)      | the dialog    |
 *  | OnDialogDeactivation  | ODA_NOTHING      | the replaced dialog stays visible          | the dialog    |
 *  | OnDialogDeletion      | deleting one     | asked for and allowed, nothing deleted (5) | the dialog    |
 *  | OnAfterDialogDeletion | Back             | last of all                                | left, current |
 *  | OnAfterDialogDeletion | BackToDialog (6) | after each dialog removed, current first   | that, target  |
 *  | OnAfterDialogDeletion | ClearDialog-     | after each dialog removed, current first   | that, target  |
 *  |                       | History          | if it is removed                           | (see there)   |
 *  | OnLastDialogDeletion  | Back             | none came back (7)                         | -             |
 *  | OnLastDialogDeletion  | BackToDialog (6) | target did not come back, ERROR logged     | -             |
 *  | OnPopupActivation     | arbitration (8)  | an invisible popup was made visible        | the popup     |
 *  | OnPopupDeactivation   | arbitration (8)  | hidden for one of higher priority          | the popup     |
 *  | OnPopupDeactivation   | ClosePopup       | hidden, timer stopped; not yet deleted     | the popup     |
 *  | CreatePopupImpl       | ShowPopup        | neither in the tree nor loadable           | id            |
 *
 *  1. Also when a dialog of the history is made again. The hook may change both flags.
 *  2. Before popups are arbitrated; in CreateDialog also before the focus is ensured. OnDialogAdded comes
 *     first.
 *  3. Back, BackToDialog and ClearDialogHistory.
 *  4. Also when the deletion of the dialog was refused or not asked for.
 *  5. False vetoes: the dialog is hidden instead. A dialog that is deleted gets no OnDialogDeactivation.
 *  6. In the direct mode. The stepwise mode calls Back for each step, with all its hooks.
 *  7. Before popups are arbitrated and before OnAfterDialogDeletion.
 *  8. ShowPopup, ClosePopup, every successful switch, and Back also when no dialog came back.
 *
 *  A hook may call the manager, and may destroy or change anything but the manager itself. So may a trace
 *  sink, and what an application overrides in its objects: SetInvisible, SetParent, AddObject, FocusAny and
 *  the destructor. The manager then never touches freed memory: identifiers, priorities and times are read
 *  before, objects are followed by safe pointers or found again by identifier. In detail:
 *  - A dialog that its own OnDialogDeactivation destroyed is not hidden, nor is an object that has its
 *    identifier afterwards.
 *  - A dialog that its own OnDialogDeletion destroyed is not deleted a second time, nor is an object that
 *    has its identifier afterwards.
 *  - A new dialog that OnDialogAdded destroyed gets no OnDialogActivation, CreateDialog returns null,
 *    and its identifier stays current.
 *  - A popup whose hook (OnPopupActivation or OnPopupDeactivation) removed its entry from the list ends
 *    the operation with the `int` exception 0; what other popup the hook listed instead stays. If the hook
 *    listed the same object again, the operation goes on with that entry when it is in the place of the
 *    old one. A newer popup of the same priority comes between the two: then the `int` 0 is thrown, although
 *    the popup is listed.
 *  - A popup is still listed while ClosePopup calls OnPopupDeactivation for it. If it is of the highest
 *    listed priority, a hook that shows or closes another popup or switches the dialog there makes it visible
 *    once more, with OnPopupActivation. ClosePopup then hides it again, or deletes it if it is
 *    delete-on-close, without a second OnPopupDeactivation.
 *  - A dialog that did not survive being shown or given its focus gets no hook any more. CreateDialog returns
 *    null then and none is current; going back, its identifier stays current unless it went when shown.
 *  - A popup that did not survive being attached, shown or hidden gets no hook any more; its entry goes with
 *    the operation or with the next arbitration. One that was closed meanwhile ends the operation with the
 *    `int` 0.
 *  - What the manager deletes it deletes once, also when the destructor lets the manager leave or close the
 *    object, or delete what the object is in: that then stays. The destructor of a popup's object must
 *    neither close that popup nor do anything that arbitrates: until it has run the popup is listed, so
 *    OnPopupDeactivation and OnPopupActivation would get half an object. An object that somebody else
 *    deletes, the application or its parent, must not let the manager delete it again.
 *  - A dialog that a sink switches to inside another switch stays shown, but the switch around it goes on
 *    and decides which dialog is current in the end.
 *  - The history must not be changed from hooks that run inside Back, BackToDialog and
 *    ClearDialogHistory; what the operation then makes of the history is unspecified, but safe.
 *
 *  ## What several operations log
 *
 *  The operations name these groups; `<id>` is the identifier in decimal.
 *  - *Loading*: DEBUG "CGUIDialogManager::LoadDialogDescription: No dialog registered with id <id>.\n" when
 *    there is no path; otherwise INFO "Time for loading <path>: <milliseconds>.\n", also when loading failed,
 *    and then ERROR "CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID <id> with
 *    registered path <path>.\n.".
 *  - *Deleting*, for every dialog that is to be deleted or hidden on the way back and for every one that a
 *    deleting action meets: DEBUG "CGUIDialogManager::DeleteDialog: removing dialog with ID <id>.\n", also
 *    when it is not in the tree; DEBUG "CGUIDialogManager::DeleteDialog: Dialog with ID <id> may not be
 *    deleted and will be set invisible instead.\n" when deletion was asked for and its description or
 *    OnDialogDeletion refuses it; WARNING "CGUIDialogManager::DeleteDialog: A dialog with a focussed object
 *    having a dynamic object ID,is deleted. This destroys the focus history.\n" before it is deleted when the
 *    history records such an object for it.
 *  - *Bringing back*, for the dialog that returns and those that are shown again with it: *loading* for one
 *    that is not in the tree and, unless it is loaded, what CreateDialogImpl logs; ERROR
 *    "CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been deleted in the
 *    mean time.\n" for the one that returns, when it was left hidden and is gone; ERROR
 *    "CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id <id> Trying to recover focus
 *    on ancestors.\n" when its object exists but refuses the focus; *deleting* for the dialogs recorded as
 *    deleted; *arbitration* if it came back.
 *  - *Arbitration*: what UpdateActivePopups logs.
 *
 *  ## When memory runs out
 *
 *  std::bad_alloc may come from every operation that logs a text with a number or a path, follows an object
 *  or adds to a list. Nothing leaks then, apart from an object of CreatePopupImpl that could not be
 *  listed, no list is broken, and the operation can be called again; what it
 *  had done stays done.
 */
class GUI_API CGUIDialogManager
{
public:
    /** What is done to the dialog that a new dialog replaces. It is recorded in the history and undone
     *  on the way back.
     */
    enum EOldDialogAction : unsigned char
    {
        ODA_INVISIBLE = 0,     ///< hidden, stays in the tree; shown again on the way back
        ODA_INVISIBLE_ALL = 1, ///< likewise, and all dialogs of the history are hidden
        ODA_DELETE = 2,        ///< deleted if its description allows it; made again on the way back
        ODA_DELETE_ALL = 3,    ///< likewise, and the dialogs of the history that are still shown or were
                               ///< deleted are deleted; those recorded as hidden stay alive and hidden
        ODA_NOTHING = 4        ///< stays visible; only OnDialogDeactivation is called
    };

    /** Priority of a popup; the greater value wins, from PRIO_LOWEST up to PRIO_HIGHEST. Values outside the
     *  named ones order as their number does.
     */
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
        eC_String m_kPath;           ///< file that the popup is loaded from, may be empty
        ObjectHandle_t m_ePopupID;   ///< the popup's object
        PopupPriority_t m_ePriority; ///< greater wins
        eC_UInt m_uiDisplayTime;     ///< milliseconds; 0: until closed
        eC_Bool m_bDeleteOnClose;    ///< true: closing deletes the object, false: it only hides it
    };

    /** Makes a manager without dialogs, history, definitions and popups. Loads and logs nothing. */
    CGUIDialogManager();

    CGUIDialogManager(const CGUIDialogManager&) = delete;
    CGUIDialogManager& operator=(const CGUIDialogManager&) = delete;

    /** Drops all records; timers of popups that are shown are stopped. Deletes no dialog and no popup,
     *  calls no hook and logs nothing. The framework's timer must still exist.
     */
    virtual ~CGUIDialogManager();

    // --- Dialogs -------------------------------------------------------------------------------

    /** Switches to a dialog.
     *
     *  The dialog is looked for in the tree, then loaded from its definition, then asked of
     *  CreateDialogImpl. The current dialog is recorded in the history with the action and the focussed
     *  object (an anonymous focussed object inside it gets a dynamic identifier), and the action is
     *  executed on it. The new dialog is shown on top; if it is recorded in the history, the object
     *  recorded there as focussed gets the focus. Then it becomes the current dialog.
     *
     *  Hooks, in order: CreateDialogImpl; for the dialogs left OnDialogDeactivation or OnDialogDeletion;
     *  OnDialogAdded (only if the dialog is not in the history, which a switch to the current dialog
     *  itself finds there); OnDialogActivation; those of the popup arbitration.
     *
     *  When the action destroys the very object that was to be shown, the dialog is obtained once more
     *  as if it had not been in the tree. If that fails, no dialog is current, unless CreateDialogImpl
     *  itself has switched to one.
     *
     *  Logged: DEBUG "CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object
     *  with the id <id> is already contained in the GUI.\n" when it is in the tree, otherwise *loading*, and
     *  what CreateDialogImpl logs; ERROR "CGUIDialogManager::CreateDialog: Caught an
     *  exception during dialog creation.\n" when loading or CreateDialogImpl throws; ERROR
     *  "CGUIDialogManager::CreateDialog: Createing dialog with ID <id> failed!\nThe current dialog stays
     *  active.\n" when there is no dialog; with a deleting action *deleting*; ERROR
     *  "CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been deleted in
     *  the mean time.\n" when it was destroyed and could not be obtained again; ERROR
     *  "CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id <id> Trying to recover
     *  focus on ancestors.\n" when the object recorded as focussed refuses the focus; *arbitration*.
     *
     *  Exceptions of hooks other than CreateDialogImpl pass through, and so does the `int` 0 of the
     *  arbitration (see UpdateActivePopups). std::bad_alloc passes too, unless it comes from obtaining the
     *  dialog, which counts as failure. Before the action nothing has changed but that the new dialog may
     *  have been made, and is in the tree. During the action the old dialog stays current, and may be hidden
     *  or deleted though it is not recorded. While the focus is recovered none is current, and the new dialog
     *  is shown. Later the switch is complete, but popups may lie below the new dialog.
     *  @param eID the dialog
     *  @param eAction what to do with the dialog that is current now
     *  @return the dialog; null when it could not be obtained (then nothing else changed), or when it
     *          did not survive the operation
     */
    CGUIObject* CreateDialog(ObjectHandle_t eID, EOldDialogAction eAction);

    /** Makes an object that the application built the current dialog.
     *
     *  The current dialog is recorded and left as CreateDialog does it. Attaching the object to the root
     *  and showing it is the caller's business, and OnDialogActivation is not called: both intended. An
     *  object without identifier gets a dynamic one. The manager never deletes a dialog that was added
     *  this way, a deleting action hides it.
     *
     *  Hooks, in order: OnDialogDeactivation or OnDialogDeletion for the dialogs left; OnDialogAdded;
     *  those of the popup arbitration.
     *
     *  Logged: with a deleting action *deleting*; DEBUG "CGUIDialogManager::AddDialog: new dialog has object
     *  ID <id>.\n" unless it is null; *arbitration*; ERROR
     *  "CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\n" for null, also when the
     *  action destroyed the object (then no dialog is current); ERROR "CGUIDialogManager::AddDialog:
     *  Caught an exception during adding a dialog.\n" when anything throws, which skips the rest.
     *  Throws nothing, also when memory has run out.
     *  @param pNewCurrentDialog the dialog
     *  @param eAction what to do with the dialog that is current now
     *  @param bRecoverFocus whether the object that has the focus when the dialog is left gets it back
     *         when the dialog becomes current again
     */
    void AddDialog(CGUIObject* pNewCurrentDialog, EOldDialogAction eAction, eC_Bool bRecoverFocus);

    /** Leaves the current dialog and brings back the most recent one of the history, with its focus.
     *  Without a current dialog, or with an empty history, nothing happens: the last dialog is never
     *  left this way.
     *
     *  The dialogs that are still in the history are put back into the state that they were in when the
     *  returning dialog was current.
     *
     *  Hooks, in order: OnDialogDeletion or OnDialogDeactivation for the dialog left; those for the
     *  dialogs of the history; CreateDialogImpl; OnDialogActivation; arbitration; OnLastDialogDeletion
     *  if no dialog came back; arbitration; OnAfterDialogDeletion.
     *
     *  Logged: *deleting*; *bringing back*; *arbitration*, also when none came back; ERROR
     * "CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n" when anything
     *  throws, which ends the operation. Throws nothing, also when memory has run out.
     *  @param bDeleteObject true: delete the dialog left, if it allows it; false: hide it
     */
    void Back(eC_Bool bDeleteObject);

    /** Goes back to a dialog of the history.
     *
     *  In the direct mode the dialogs on the way are removed without being shown, and their recorded
     *  actions are not undone. In the stepwise mode Back is called until the dialog is current; when a
     *  dialog on the way cannot be brought back, or a hook throws each time, that loop does not end. This
     *  is intended; use the direct mode where that may happen.
     *
     *  Hooks in the direct mode: for the current dialog and then for each one on the way
     *  OnDialogDeletion or OnDialogDeactivation, and OnAfterDialogDeletion; then those of bringing the
     *  target back; OnLastDialogDeletion if that failed.
     *
     *  Logged: ERROR "CGUIDialogManager::BackToDialog: The dialog with id <id> is not contained in the
     *  dialog history.\n"; ERROR "CGUIDialogManager::BackToDialog: Unable to reactivate dialog with id
     *  <id>.\n" when the target did not come back in the direct mode. In that mode *deleting* and *bringing
     *  back*, in the stepwise mode what Back logs. Exceptions of hooks and of loading pass through in the
     *  direct mode, and an `int` 0 is thrown there when the history runs out before the target. In both modes
     *  std::bad_alloc passes when there is no memory for the first of these entries.
     *  @param eDialogID the dialog to go back to
     *  @param bDeleteDialogsIfAllowed true: delete the dialogs left, if they allow it; false: hide them
     *  @param bHistoryActivation true: stepwise; false: direct
     *  @return true when the dialog was in the history, also when it could not be brought back
     */
    eC_Bool BackToDialog(ObjectHandle_t eDialogID, eC_Bool bDeleteDialogsIfAllowed,
                         eC_Bool bHistoryActivation);

    /** Shortens the history to its oldest entries.
     *
     *  With bDeleteCurrent the current dialog is removed too and the most recent of the entries kept
     *  becomes current; with uiKeepDialogs 0 no dialog is current then, and OnLastDialogDeletion is not
     *  called. Nothing happens while there are not more dialogs (entries, and the current one if it is
     *  to be removed) than are to be kept.
     *
     *  OnAfterDialogDeletion gets as its second argument the identifier of the entry at position
     *  uiKeepDialogs - 1 from the most recent end, when uiKeepDialogs is not 0, bDeleteCurrent is true
     *  and the history holds that many entries; otherwise NO_HANDLE. That the entries kept are counted
     *  from the oldest end is intended: hooks have always received this identifier.
     *
     *  Hooks: for each dialog removed OnDialogDeletion or OnDialogDeactivation, and
     *  OnAfterDialogDeletion; then, with bDeleteCurrent, those of bringing a dialog back.
     *
     *  Logged: *deleting*; with bDeleteCurrent *bringing back*; ERROR "CGUIDialogManager::ClearDialogHistory:
     *  Caught an exception during deletion of the dialog history.\n" when anything throws, which ends the
     *  operation; what was removed stays removed. Throws nothing, also when memory has run out.
     *  @param uiKeepDialogs how many entries to keep
     *  @param bDeleteDialogs true: delete the dialogs removed, if they allow it; false: hide them
     *  @param bDeleteCurrent whether the current dialog is removed too
     */
    void ClearDialogHistory(eC_UInt uiKeepDialogs, eC_Bool bDeleteDialogs, eC_Bool bDeleteCurrent);

    /** @return the identifier of the current dialog, NO_HANDLE when there is none */
    ObjectHandle_t GetCurrentDialogID() const { return m_CurrentDialog.m_eDialogID; }

    /** @return the current dialog, also when it is invisible; null when no object bears its identifier */
    CGUIObject* GetCurrentDialog() const
    {
        return CGUI::GetInstance().GetObjectByID(m_CurrentDialog.m_eDialogID, false);
    }

    /** @return the number of entries in the history */
    eC_UInt GetHistoryStackSize() const { return m_History.GetQuantity(); }

    /** @param eDialogID a dialog
     *  @param bConsiderCurrentDialog whether the current dialog counts
     *  @return true when the dialog is in the history (or current, if that counts)
     */
    eC_Bool ContainsDialog(ObjectHandle_t eDialogID, eC_Bool bConsiderCurrentDialog) const
    {
        return (bConsiderCurrentDialog && m_CurrentDialog.m_eDialogID == eDialogID) ||
               FindDialogInHistory(eDialogID) != nullptr;
    }

    /** @return the dialog that Back would bring back, NO_HANDLE when the history is empty */
    ObjectHandle_t GetLastDialogID() const
    {
        return m_History.IsEmpty() ? NO_HANDLE : (*m_History.GetBegin()).m_Dialog.m_eDialogID;
    }

    // --- Dialog definitions --------------------------------------------------------------------

    /** Registers the description file of a dialog. Nothing is loaded, the file is not opened.
     *
     *  An identifier that is registered with a path, for a dialog or for a popup, is refused with ERROR
     *  "CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id <id> already registered.\n".
     *  A definition with an empty path looks unregistered, so its identifier can be registered again and
     *  the registry then holds two entries for it: intended.
     *  @param kDefinitionFilePath the path for the factory
     *  @param eDialogID the dialog
     *  @return true when registered
     */
    eC_Bool RegisterDialogDefinition(const eC_String& kDefinitionFilePath, ObjectHandle_t eDialogID);

    /** Removes the first dialog definition of an identifier. Dialogs already loaded are not touched,
     *  nothing is logged. std::bad_alloc comes before anything is removed.
     *  @param eDialogID the dialog
     *  @return true when there was one
     */
    eC_Bool UnregisterDialogDefinition(ObjectHandle_t eDialogID);

    /** Finds the path for an identifier. Nothing is logged.
     *  @param eDialogID a dialog or popup
     *  @return the path registered first for it, among the dialogs and then among the popups; the empty
     *          string when there is none
     */
    eC_String GetRegisteredPath(ObjectHandle_t eDialogID) const;

    /** Finds the identifier for a path, among the dialogs first and then among the popups. Logs the path
     *  ("<path>.\n\n") and every registered path that it is compared with ("<path>.\n"), all DEBUG.
     *  @param kDialogPath the path as it was registered
     *  @return the identifier registered first for the path, or NO_HANDLE
     */
    ObjectHandle_t GetRegisteredDialogID(const eC_String& kDialogPath) const;

    /** Hands out an identifier for an object that has none.
     *
     *  Every call returns the same value, cuiNOFObjectHandles - 8, the first one behind the static
     *  handles, and records one more copy of it: intended. Objects that were given it cannot be told apart,
     *  the first one in pre-order is found; so give identifiers of your own to dialogs that you add and to
     *  focusable objects. Only if that value is 0x7FFFFFFF the records are searched for a free one. Nothing
     *  is logged.
     *  @return the identifier
     */
    ObjectHandle_t CreateDynamicObjectID();

    // --- Popup definitions ---------------------------------------------------------------------

    /** Registers a popup. Nothing is loaded and no value is checked.
     *
     *  An identifier that is registered as a popup is refused with ERROR
     *  "CGUIDialogManager::RegisterPopupDefinition: Popup or dialog with id <id> already registered.\n";
     *  one that is registered as a dialog is accepted, although the message speaks of both: intended.
     *  @param ePopupID the popup
     *  @param ePriority its priority, the greater one wins
     *  @param uiDisplayTime milliseconds until it closes itself, 0: it stays until it is closed
     *  @param bDeleteOnClose true: closing deletes the object, false: it only hides it
     *  @param kDefinitionFilePath the path for the factory. A dialog definition of the same identifier
     *         overrides it. Empty: the object must be in the tree or come from CreatePopupImpl.
     *  @return true when registered
     */
    eC_Bool RegisterPopupDefinition(ObjectHandle_t ePopupID, PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                                    eC_Bool bDeleteOnClose, const eC_String& kDefinitionFilePath);

    /** Removes a popup definition. A popup that is listed stays with the settings it was shown with;
     *  nothing is logged. std::bad_alloc comes before anything is removed.
     *  @param ePopupID the popup
     *  @return true when there was one
     */
    eC_Bool UnregisterPopupDefinition(ObjectHandle_t ePopupID);

    /** Changes the display time of a popup definition. A popup that is shown keeps its running time; the
     *  next ShowPopup uses the new one. Nothing is logged.
     *  @param eID the popup
     *  @param uiDisplayTime milliseconds, 0: no limit
     *  @return true when the popup is registered
     */
    eC_Bool UpdateRegisteredPopupDisplayTime(ObjectHandle_t eID, eC_UInt uiDisplayTime);

    /** Reads the display time of a popup definition. Nothing is logged.
     *  @param eID the popup
     *  @param uiDisplayTime receives the milliseconds; untouched when the popup is not registered
     *  @return true when the popup is registered
     */
    eC_Bool GetRegisteredPopupDisplayTime(ObjectHandle_t eID, eC_UInt& uiDisplayTime);

    /** Reads a popup definition. Nothing is logged.
     *  @param eID the popup
     *  @param kPopupInfo receives all five fields; untouched when the popup is not registered
     *  @return true when the popup is registered
     */
    eC_Bool GetRegisteredPopupInfo(ObjectHandle_t eID, RegisteredPopup_t& kPopupInfo) const;

    // --- Popups --------------------------------------------------------------------------------

    /** Lists a registered popup and shows it if no popup of higher priority is listed.
     *
     *  The object is looked for in the tree, then loaded from its definition, then asked of
     *  CreatePopupImpl. With the first popup the focus of the current dialog is remembered, to be given
     *  back when the last one is closed. A popup that is listed already takes over the registered display
     *  time and, if it is displayed, its time starts again.
     *
     *  Hooks, in order: CreatePopupImpl; those of the arbitration.
     *
     *  Logged: DEBUG "CGUIDialogManager::ShowPopup: Popup with id <id> is activated.\n" on every call;
     *  ERROR "CGUIDialogManager::ShowPopup: Popup with id <id> is not registered and therefore can not be
     *  displayed.\n"; *loading* when it is not in the tree and its registered path is not empty; DEBUG
     * "CGUIDialogManager::ShowPopup: Popup with id <id> is already contained in active popup list.\n" and, if
     *  it is displayed, DEBUG "CGUIDialogManager::ShowPopup: Timout of is restarted with <time> ms.\n"; for
     *  one that is not listed and still has no object what CreatePopupImpl logs and, if that gives none,
     *  ERROR "CGUIDialogManager::CreatePopup: Creating popup with ID <id> failed!\n" (the step, though no
     *  operation has that name: intended); *arbitration* if it is newly listed.
     *
     *  Exceptions of hooks and of loading pass through, and so does the `int` 0 when OnPopupActivation or
     *  OnPopupDeactivation removed the entry of its own popup. So does std::bad_alloc: until the popup is
     *  listed, its object may have been loaded, and is then in the tree, visible or not; later it is listed,
     *  and the arbitration is not complete.
     *  @param eID the popup
     *  @return the popup's object, also when it waits behind a higher priority; null when it is not
     *          registered, could not be obtained, or did not survive the operation. For a popup that is
     *          listed already but whose object does not hang under the root: an object that was loaded anew
     *          if it has a path, otherwise null.
     */
    CGUIObject* ShowPopup(ObjectHandle_t eID);

    /** Closes a listed popup, displayed or waiting: hides it, stops its time, and deletes its object if
     *  it was shown as delete-on-close.
     *
     *  Hooks, in order: OnPopupDeactivation, also for a popup that was never displayed; those of the
     *  arbitration. Exceptions of hooks pass through; when OnPopupDeactivation removed the entry itself,
     *  the `int` 0 is thrown. std::bad_alloc comes either before anything is done, or from the arbitration:
     *  then the popup is closed. Logged: *arbitration*.
     *  @param eID the popup
     *  @return false, with nothing changed, when the popup is not listed
     */
    eC_Bool ClosePopup(ObjectHandle_t eID);

    /** @param eID a popup
     *  @return true when the popup is listed and its object is not invisible
     */
    eC_Bool IsPopupDisplayed(ObjectHandle_t eID);

    /** @param eID a popup
     *  @return true when the popup is listed, displayed or waiting
     */
    eC_Bool IsPopupInPopupList(ObjectHandle_t eID) const { return GetActivePopup(eID) != nullptr; }

protected:
    /** How a dialog was brought up and how it may be treated. The default stands for no dialog. */
    struct DialogDescription
    {
        /** Takes the four values in the order of the members. */
        DialogDescription(ObjectHandle_t eCurrentDialogID = NO_HANDLE,
                          EOldDialogAction eOldDialogAction = ODA_NOTHING,
                          eC_Bool bAllowObjectDeletion = true, eC_Bool bRecoverFocus = true)
            : m_eDialogID(eCurrentDialogID),
              m_eOldDialogAction(eOldDialogAction),
              m_bAllowObjectDeletion(bAllowObjectDeletion),
              m_bRecoverFocus(bRecoverFocus)
        {
        }

        ObjectHandle_t m_eDialogID;          ///< the dialog's object
        EOldDialogAction m_eOldDialogAction; ///< what this dialog did to the one it replaced
        eC_Bool m_bAllowObjectDeletion;      ///< false: hidden where deletion is asked for
        eC_Bool m_bRecoverFocus;             ///< the focussed object gets the focus back on return
    };

    /** One dialog that was replaced. */
    struct HistoryEntry
    {
        /** Takes the three values in the order of the members. The default action is deliberate: a default
         *  entry only receives what is taken off the history.
         */
        HistoryEntry(const DialogDescription& dialog = DialogDescription(),
                     EOldDialogAction eAction = ODA_DELETE_ALL, ObjectHandle_t eFocussedObject = NO_HANDLE)
            : m_Dialog(dialog), m_eAction(eAction), m_eFocussedObject(eFocussedObject)
        {
        }

        /** @return true when both name the same dialog, action and focussed object */
        bool operator==(const HistoryEntry& kOther)
        {
            return m_Dialog.m_eDialogID == kOther.m_Dialog.m_eDialogID && m_eAction == kOther.m_eAction &&
                   m_eFocussedObject == kOther.m_eFocussedObject;
        }

        DialogDescription m_Dialog;       ///< the dialog as it was while it was current
        EOldDialogAction m_eAction;       ///< what its successor did to it
        ObjectHandle_t m_eFocussedObject; ///< what had the focus when it was left, or NO_HANDLE
    };

    /** The history, the most recent entry at the front. */
    typedef eC_TListDoubleLinked<HistoryEntry> CDialogHistoryList_t;

    /** A popup that is displayed or waiting. The timer calls it back when its display time is up. */
    class PopupDescription : public CGUIAnimatable
    {
    public:
        /** Makes a description of no popup. */
        PopupDescription() : PopupDescription(nullptr, PRIO_LOW, 0, true, nullptr) {}

        /** @param pPopup the popup's object
         *  @param ePriority the greater one wins
         *  @param uiDisplayTime milliseconds, 0: no limit
         *  @param bDeleteOnClose whether closing deletes the object
         *  @param pkDialogManager the manager that closes the popup when its time is up, not owned
         */
        PopupDescription(CGUIObject* pPopup, PopupPriority_t ePriority, eC_UInt uiDisplayTime,
                         eC_Bool bDeleteOnClose, CGUIDialogManager* pkDialogManager)
            : m_pObject(pPopup),
              m_pDialogManager(pkDialogManager),
              m_ePriority(ePriority),
              m_uiDisplayTime(uiDisplayTime),
              m_bDeleteOnClose(bDeleteOnClose)
        {
        }

        /** Copies the five values. The copy is not registered with the timer. */
        PopupDescription(const PopupDescription&) = default;

        /** Copies the five values. What is registered with the timer stays so. */
        PopupDescription& operator=(const PopupDescription&) = default;

        /** Neither hides nor deletes the object; a running display time is stopped. */
        ~PopupDescription() override = default;

        /** Closes the popup through the manager, which destroys this description. Does nothing, and
         *  stays registered, when there is no object or no manager.
         *  @param vTimes ignored
         */
        void DoAnimate(const eC_Value& vTimes) override;

        /** @return true when this priority is strictly greater */
        eC_Bool operator>(const PopupDescription& ePopup) const { return m_ePriority > ePopup.m_ePriority; }

        /** @return true when the description has an object and that bears the identifier */
        eC_Bool operator==(ObjectHandle_t eID) const
        {
            return m_pObject.get() != nullptr && m_pObject->GetID() == eID;
        }

        /** @return the priority, the greater one wins */
        PopupPriority_t GetPriority() const { return m_ePriority; }

        /** @return the popup's object, null when it was destroyed */
        CGUIObject* GetObject() const { return m_pObject; }

        /** @return the display time in milliseconds, 0 for no limit */
        eC_UInt GetDisplayTime() const { return m_uiDisplayTime; }

        CSafeGUIObjectPtr m_pObject;         ///< the popup's object
        CGUIDialogManager* m_pDialogManager; ///< not owned
        PopupPriority_t m_ePriority;         ///< as registered when the popup was shown
        eC_UInt m_uiDisplayTime;             ///< milliseconds, 0: no limit
        eC_Bool m_bDeleteOnClose;            ///< whether closing deletes the object
    };

    // The hooks. Their order is part of the interface. See the table above for when each one is called.

    /** Builds a dialog in code. The object is used as it comes: the hook attaches it to the root and
     *  gives it its identifier. The default logs a DEBUG entry and returns null.
     *  @param eID the dialog asked for
     *  @param bAllowDeletionOUT whether the manager may delete the dialog; the caller's value stands
     *         unless the hook changes it
     *  @param bRecoverFocusOUT whether the focus is restored when one comes back to the dialog; likewise
     *  @return the dialog, or null for failure
     */
    virtual CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                         eC_Bool& bRecoverFocusOUT) const
    {
        static_cast<void>(eID);
        static_cast<void>(bAllowDeletionOUT);
        static_cast<void>(bRecoverFocusOUT);
        GUILOG(GUI_TRACE_DEBUG,
               "CGUIDialogManager::CreateDialogImpl has been called."
               "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n");
        return nullptr;
    }

    /** A dialog has become current that was not in the history. @param pDialog the dialog */
    virtual void OnDialogAdded(CGUIObject* pDialog) { static_cast<void>(pDialog); }

    /** A dialog has become current. @param pDialog the dialog */
    virtual void OnDialogActivation(CGUIObject* pDialog) { static_cast<void>(pDialog); }

    /** A dialog is about to be hidden, or was replaced and stays shown. @param pDialog the dialog */
    virtual void OnDialogDeactivation(CGUIObject* pDialog) { static_cast<void>(pDialog); }

    /** A dialog is about to be deleted.
     *  @param pDialog the dialog
     *  @return false to keep it, hidden; the default allows every deletion
     */
    virtual eC_Bool OnDialogDeletion(CGUIObject* pDialog)
    {
        static_cast<void>(pDialog);
        return true;
    }

    /** A dialog was left on the way back.
     *  @param eDeletedDialogID the dialog left
     *  @param eNewDialogID the dialog that the operation goes to, NO_HANDLE for none
     */
    virtual void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
    {
        static_cast<void>(eDeletedDialogID);
        static_cast<void>(eNewDialogID);
    }

    /** No dialog could be brought back. */
    virtual void OnLastDialogDeletion() {}

    /** A popup has become visible. @param pPopup the popup */
    virtual void OnPopupActivation(CGUIObject* pPopup) { static_cast<void>(pPopup); }

    /** A popup was hidden or is being closed. @param pPopup the popup */
    virtual void OnPopupDeactivation(CGUIObject* pPopup) { static_cast<void>(pPopup); }

    /** Builds a popup in code. It is given the identifier. An object without parent is attached to the root
     *  when it is displayed for the first time; until then it belongs to the hook's author, also when it is
     *  closed without having been displayed and is not deleted on close. The default logs a DEBUG entry
     *  (which names CreateDialogImpl: intended) and returns null.
     *  @param eID the popup asked for
     *  @return the popup, or null for failure
     */
    virtual CGUIObject* CreatePopupImpl(ObjectHandle_t eID)
    {
        static_cast<void>(eID);
        GUILOG(GUI_TRACE_DEBUG,
               "CGUIDialogManager::CreatePopupImpl has been called."
               "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n");
        return nullptr;
    }

    /** @return the history, to be read */
    const CDialogHistoryList_t& GetDialogHistory() const { return m_History; }

    /** Obtains a dialog: from the tree, else from its definition, else from CreateDialogImpl.
     *
     *  A dialog that is in the tree already is not deleted through this request: bAllowDeletion becomes
     *  false, which is logged (DEBUG "CGUIDialogManager::GetDialogObject: AllowDeletion was set to false,
     *  since the object with the id <id> is already contained in the GUI.\n"), and bRecoverFocus takes
     *  the value recorded in the history, if it is there. Exceptions of loading and of the hook pass
     *  through.
     *  @param eID the dialog
     *  @param bAllowDeletion in and out: whether the manager may delete the dialog
     *  @param bRecoverFocus in and out: whether the focus is restored on return
     *  @return the dialog, or null
     */
    CGUIObject* GetDialogObject(ObjectHandle_t eID, eC_Bool& bAllowDeletion, eC_Bool& bRecoverFocus) const;

    /** Loads a dialog or popup from its definition; it comes back with the identifier asked for,
     *  attached to the root and visible.
     *
     *  Logged: DEBUG "CGUIDialogManager::LoadDialogDescription: No dialog registered with id <id>.\n";
     *  INFO "Time for loading <path>: <milliseconds>.\n", also when loading failed; ERROR
     *  "CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID <id> with registered path
     *  <path>.\n.". Exceptions of the factory pass through.
     *  @param eID the identifier
     *  @return the object, or null
     */
    CGUIObject* LoadDialogDescription(ObjectHandle_t eID) const;

    /** Shows all popups of the highest listed priority, raised above everything else under the root,
     *  hides the others, and starts and stops their display times. When no popup is listed, the focus
     *  that was remembered for the current dialog is given back.
     *
     *  Hooks: OnPopupActivation and OnPopupDeactivation, from the last list entry to the first.
     *
     *  Logged: DEBUG "CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n"; ERROR
     *  "CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The popup is
     *  removed from the active popup list.\n" for a popup whose object is gone; for each popup of the
     *  highest priority DEBUG "CGUIDialogManager::UpdateActivePopups: Popup with id <id> with priority
     *  <priority> is activated with a display time of <time> ms.\n"; for each one hidden DEBUG
     *  "CGUIDialogManager::UpdateActivePopups: Popup with id <id> with priority <priority> is
     *  deactivated, because popups with hiher priority are active.\n".
     *
     *  The highest priority is read at the beginning. When a hook lists a popup of a higher one, that is
     *  displayed at once, but the run goes on with the priority that it read; the next one puts it right.
     *
     *  Exceptions of hooks pass through, and an `int` 0 is thrown when a hook removed the entry of its own
     *  popup.
     */
    void UpdateActivePopups();

    /** @param eID a popup
     *  @return the list's entry of the popup, valid until the popup is closed, or null
     */
    PopupDescription* GetActivePopup(ObjectHandle_t eID) const;

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

    /** Logs the history, oldest entry first, and the current dialog, each as one DEBUG entry. */
    void PrintDialogHistory();

    RegisteredPopup_t* FindRegisteredPopup(ObjectHandle_t eID) const;
    CGUIObject* BuildDialog(ObjectHandle_t eID, eC_Bool& bAllowDeletion, eC_Bool& bRecoverFocus) const;
    CGUIObject* ObtainDialog(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT, eC_Bool& bRecoverFocusOUT) const;

    void StoreCurrentDialogInHistory(EOldDialogAction eAction, CGUIObject* pkFocusedObj);
    ObjectHandle_t IdentifyFocussedObject(const CGUIObject* pkCurrentDialog, CGUIObject* pkFocusedObj);
    void ExecuteActionOnCurrentDialog(EOldDialogAction eAction, CGUIObject* pkCurrentDialog);
    void ApplyActionToHistory(EOldDialogAction eAction);
    void ApplyActionToHistory(EOldDialogAction eAction, CSafeGUIObjectPtr& pkShown);
    void DeleteDialog(const DialogDescription& dialog, eC_Bool bDeleteObject);
    void ReCreateDialog(const DialogDescription& dialog, CSafeGUIObjectPtr& pkDialogOUT) const;
    void MakeDialogVisible(const CSafeGUIObjectPtr& pkDialog) const;
    void MakeDialogInvisible(CGUIObject* pkDialog);
    void HideDialog(CGUIObject* pkDialog);

    HistoryEntry* FindDialogInHistory(ObjectHandle_t eID) const;
    void RemoveMostRecentDialog(eC_Bool bDeleteDialog, ObjectHandle_t eTargetID);
    CGUIObject* CreateDialogFromHistory();
    void BringBack(const HistoryEntry& kEntry, CSafeGUIObjectPtr& pkDialogOUT);

    void RecoverFocus(CGUIObject* pObjectToFocus);
    void EnsureFocus(CGUIObject* pAddedDialog);

    void RememberDialogFocus();
    void GiveDialogFocusBack();
    void ShowActivePopupAgain(const RegisteredPopup_t& kRegistered);
    eC_Bool DeactivatePopup(const CSafeGUIObjectPtr& pkPopup,
                            PopupDescriptionList_t::SafeIterator& kIterator);
    static eC_Bool ShowOnTop(const CSafeGUIObjectPtr& pkPopup);
    void DisplayPopup(PopupDescriptionList_t::SafeIterator& kIterator);
    void HidePopup(PopupDescriptionList_t::SafeIterator& kIterator);

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
