// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIDIALOGLISTENER_H
#define COMPANIONS_GUIDIALOGLISTENER_H

/** @file
 *  The listener interface of CGUIObservedDialogManager.
 */

#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

class CGUIObject;
class CGUIObservedDialogManager;

/** Receives the ten hook calls of a CGUIObservedDialogManager. Each function is called when the hook of the
 *  same name is, and may do what that hook may do (see CGUIDialogManager). The defaults do nothing, veto
 *  nothing and build nothing.
 *
 *  A listener belongs to one manager at a time. It is itself a link of the manager's chain, so adding it
 *  allocates nothing; destroying it removes it. Inside any hook it may remove or destroy itself and any other
 *  listener, and add others.
 */
class CGUIDialogListener
{
public:
    /** Creates a listener that has not been added to any manager. */
    CGUIDialogListener() = default;

    CGUIDialogListener(const CGUIDialogListener&) = delete;
    CGUIDialogListener& operator=(const CGUIDialogListener&) = delete;

    /** Stops listening. */
    virtual ~CGUIDialogListener();

    /** @return the manager it listens to, or null */
    CGUIObservedDialogManager* GetManager() const { return m_pkManager; }

protected:
    friend class CGUIObservedDialogManager;

    /** May build a dialog. Listeners are asked in the order in which they were added, until one returns a
     *  dialog.
     *  @param eID the requested dialog
     *  @param bAllowDeletionOUT, bRecoverFocusOUT as in the manager's hook; ignored unless this listener
     *         returns a dialog
     *  @return the dialog, or null to leave it to the next listener
     */
    virtual CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                         eC_Bool& bRecoverFocusOUT);

    /** A dialog that was not in the history has become current. @param pDialog the dialog */
    virtual void OnDialogAdded(CGUIObject* pDialog);

    /** A dialog has become current. @param pDialog the dialog */
    virtual void OnDialogActivation(CGUIObject* pDialog);

    /** A dialog is about to be hidden, or was replaced and stays shown. @param pDialog the dialog */
    virtual void OnDialogDeactivation(CGUIObject* pDialog);

    /** A dialog is about to be deleted unless a listener vetoes. The first veto decides: the remaining
     *  listeners are not asked, and the dialog stays even if earlier ones allowed its deletion.
     *  @param pDialog the dialog
     *  @return false to keep it, hidden
     */
    virtual eC_Bool OnDialogDeletion(CGUIObject* pDialog);

    /** A dialog was left by going back.
     *  @param eDeletedDialogID the dialog that was left
     *  @param eNewDialogID the dialog that the operation goes to, NO_HANDLE if there is none
     */
    virtual void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID);

    /** No dialog could be brought back. */
    virtual void OnLastDialogDeletion();

    /** A popup has become visible. @param pPopup the popup */
    virtual void OnPopupActivation(CGUIObject* pPopup);

    /** A popup was hidden or is being closed. @param pPopup the popup */
    virtual void OnPopupDeactivation(CGUIObject* pPopup);

    /** May build a popup. Listeners are asked in the order in which they were added, until one returns a
     *  popup.
     *  @param eID the requested popup
     *  @return the popup, or null to leave it to the next listener
     */
    virtual CGUIObject* CreatePopupImpl(ObjectHandle_t eID);

private:
    CGUIObservedDialogManager* m_pkManager = nullptr;
    CGUIDialogListener* m_pkPrevious = nullptr;
    CGUIDialogListener* m_pkNext = nullptr;
};

#endif
