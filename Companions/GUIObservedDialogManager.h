// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIOBSERVEDDIALOGMANAGER_H
#define COMPANIONS_GUIOBSERVEDDIALOGMANAGER_H

/** @file
 *  A dialog manager whose hooks go to listeners.
 */

#include "Companions/GUIDialogListener.h"
#include "Core/GUIDialogManager.h"

/** A dialog manager that hands each of its hooks on to listeners, in the order in which they were added.
 *
 *  - A hook for an object goes on from listener to listener as long as the object lives: when one destroys
 *    it, those after it do not hear of it.
 *  - A creation hook asks until one answers. When none does, it does what it does in CGUIDialogManager.
 *  - OnDialogDeletion asks until one vetoes. When none does, the deletion goes ahead.
 *  - What a listener throws leaves the hook, as if the hook itself had thrown it; those after it do not
 *    hear of the call.
 *  - A listener that is added during a call hears the next one; one that is removed during a call hears
 *    nothing more.
 *
 *  A derived class may override hooks as with CGUIDialogManager. In the override it calls the hook of this
 *  class when the listeners are to hear it, before or after its own work, or not at all.
 *
 *  Nothing is logged. A call for an object follows it with one safe pointer while there are listeners, so
 *  std::bad_alloc may come from it before any listener hears the call.
 */
class CGUIObservedDialogManager : public CGUIDialogManager
{
public:
    /** Makes a manager without listeners. */
    CGUIObservedDialogManager() = default;

    CGUIObservedDialogManager(const CGUIObservedDialogManager&) = delete;
    CGUIObservedDialogManager& operator=(const CGUIObservedDialogManager&) = delete;

    /** Lets all listeners go; calls none. */
    ~CGUIObservedDialogManager() override;

    /** Adds a listener behind those that there are. Allocates and throws nothing.
     *  @param kListener the listener, not owned
     *  @return false, with nothing changed, when it listens already, to this manager or to another one
     */
    eC_Bool AddListener(CGUIDialogListener& kListener);

    /** Removes a listener. Allocates and throws nothing.
     *  @param kListener the listener
     *  @return false, with nothing changed, when it does not listen to this manager
     */
    eC_Bool RemoveListener(CGUIDialogListener& kListener);

protected:
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
    mutable CPass* m_pkInnermostPass = nullptr; ///< CreateDialogImpl, which is const, goes through them too
};

#endif
