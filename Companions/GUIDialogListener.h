// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIDIALOGLISTENER_H
#define COMPANIONS_GUIDIALOGLISTENER_H

/** @file
 *  What hears the hooks of a CGUIObservedDialogManager.
 */

#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

class CGUIObject;
class CGUIObservedDialogManager;

/** Hears the ten hooks of a CGUIObservedDialogManager: when each is called and what may be done in it is
 *  that of the hook of the same name (see CGUIDialogManager). The defaults do nothing, veto nothing and
 *  build nothing.
 *
 *  A listener listens to one manager at a time. It is a link of the manager's chain itself, so adding it
 *  allocates nothing; destroying it removes it. Inside any hook it may remove or destroy itself and every
 *  other listener, and add others.
 */
class CGUIDialogListener
{
public:
    /** Makes a listener that listens to no manager. */
    CGUIDialogListener() = default;

    CGUIDialogListener(const CGUIDialogListener&) = delete;
    CGUIDialogListener& operator=(const CGUIDialogListener&) = delete;

    /** Stops listening. */
    virtual ~CGUIDialogListener();

    /** @return the manager that it listens to, or null */
    CGUIObservedDialogManager* GetManager() const { return m_pkManager; }

protected:
    friend class CGUIObservedDialogManager;

    /** May build a dialog. Listeners are asked in the order in which they were added, until one answers.
     *  @param eID the dialog asked for
     *  @param bAllowDeletionOUT, bRecoverFocusOUT as for the manager's hook; what a listener leaves here
     *         counts only if it answers
     *  @return the dialog, or null to leave it to the next listener
     */
    virtual CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                         eC_Bool& bRecoverFocusOUT);

    /** A dialog has become current that was not in the history. @param pDialog the dialog */
    virtual void OnDialogAdded(CGUIObject* pDialog);

    /** A dialog has become current. @param pDialog the dialog */
    virtual void OnDialogActivation(CGUIObject* pDialog);

    /** A dialog is about to be hidden, or was replaced and stays shown. @param pDialog the dialog */
    virtual void OnDialogDeactivation(CGUIObject* pDialog);

    /** A dialog is about to be deleted, unless a listener vetoes. The first veto ends the asking, so a
     *  listener that allows the deletion may still see the dialog kept.
     *  @param pDialog the dialog
     *  @return false to keep it, hidden
     */
    virtual eC_Bool OnDialogDeletion(CGUIObject* pDialog);

    /** A dialog was left on the way back.
     *  @param eDeletedDialogID the dialog left
     *  @param eNewDialogID the dialog that the operation goes to, NO_HANDLE for none
     */
    virtual void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID);

    /** No dialog could be brought back. */
    virtual void OnLastDialogDeletion();

    /** A popup has become visible. @param pPopup the popup */
    virtual void OnPopupActivation(CGUIObject* pPopup);

    /** A popup was hidden or is being closed. @param pPopup the popup */
    virtual void OnPopupDeactivation(CGUIObject* pPopup);

    /** May build a popup. Listeners are asked in the order in which they were added, until one answers.
     *  @param eID the popup asked for
     *  @return the popup, or null to leave it to the next listener
     */
    virtual CGUIObject* CreatePopupImpl(ObjectHandle_t eID);

private:
    CGUIObservedDialogManager* m_pkManager = nullptr;
    CGUIDialogListener* m_pkPrevious = nullptr;
    CGUIDialogListener* m_pkNext = nullptr;
};

#endif
