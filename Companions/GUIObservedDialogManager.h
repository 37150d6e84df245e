// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIOBSERVEDDIALOGMANAGER_H
#define COMPANIONS_GUIOBSERVEDDIALOGMANAGER_H

/** @file
 *  A dialog manager that passes its hook calls to listeners.
 */

#include "Companions/GUIDialogListener.h"
#include "Core/GUIDialogManager.h"

/** A dialog manager that passes each hook call to its listeners, in the order in which they were added.
 *
 *  - A hook about an object is passed on as long as the object is alive: if a listener destroys it, the
 *    remaining listeners are not called.
 *  - A creation hook asks the listeners until one returns an object. If none does, it behaves as in
 *    CGUIDialogManager.
 *  - OnDialogDeletion asks the listeners until one vetoes. If none does, the deletion goes ahead.
 *  - An exception from a listener leaves the hook as if the hook itself had thrown it; the remaining
 *    listeners are not called.
 *  - A listener added during a call hears the next one; a listener removed during a call hears nothing more.
 *
 *  A derived class may override hooks as with CGUIDialogManager. The override decides whether the listeners
 *  are called, and when: it calls the hook of this class before or after its own work, or not at all.
 *
 *  Nothing is logged. While there are listeners, a call for an object tracks it with a safe pointer, so it
 *  may throw std::bad_alloc before any listener is called.
 */
class CGUIObservedDialogManager : public CGUIDialogManager
{
public:
    /** One dialog of the history, as companions read it. */
    struct PastDialog_t
    {
        ObjectHandle_t m_eDialogID;          ///< the dialog
        ObjectHandle_t m_eFocussedObject;    ///< what had the focus when it was left, or NO_HANDLE
        EOldDialogAction m_eAction;          ///< what its successor did to it
        EOldDialogAction m_eOldDialogAction; ///< what it did to its predecessor
    };

    /** Creates a manager without listeners. */
    CGUIObservedDialogManager() = default;

    CGUIObservedDialogManager(const CGUIObservedDialogManager&) = delete;
    CGUIObservedDialogManager& operator=(const CGUIObservedDialogManager&) = delete;

    /** Removes all listeners without calling them. */
    ~CGUIObservedDialogManager() override;

    /** Adds a listener after the existing ones. Allocates nothing and throws nothing.
     *  @param kListener the listener, not owned
     *  @return false, with nothing changed, if it already listens to this manager or another one
     */
    eC_Bool AddListener(CGUIDialogListener& kListener);

    /** Removes a listener. Allocates nothing and throws nothing.
     *  @param kListener the listener
     *  @return false, with nothing changed, if it does not listen to this manager
     */
    eC_Bool RemoveListener(CGUIDialogListener& kListener);

    /** Reads the history. Allocates nothing and throws nothing.
     *  @param uiPosition 0 for the most recent entry, GetHistoryStackSize() - 1 for the oldest one
     *  @param kDialogOUT is set to the entry, or left as it is
     *  @return false if there is no such entry
     */
    eC_Bool GetPastDialog(eC_UInt uiPosition, PastDialog_t& kDialogOUT) const;

protected:
    friend class CGUIDialogBudget; ///< reads the history, asks OnDialogDeletion and builds dialogs again
    friend class CGUIGuard;        ///< calls OnDialogDeactivation for a dialog that it has hidden

    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override;
    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnDialogDeactivation(CGUIObject* pDialog) override;
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;
    void OnLastDialogDeletion() override;
    void OnPopupActivation(CGUIObject* pPopup) override;
    void OnPopupDeactivation(CGUIObject* pPopup) override;
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override;

private:
    class CPass;
    using ObjectHook_t = void (CGUIDialogListener::*)(CGUIObject*);

    void Tell(ObjectHook_t pfnHook, CGUIObject* pkObject);

    CGUIDialogListener* m_pkFirst = nullptr;
    CGUIDialogListener* m_pkLast = nullptr;
    mutable CPass* m_pkInnermostPass = nullptr; ///< changed by CreateDialogImpl too, which is const
};

#endif
