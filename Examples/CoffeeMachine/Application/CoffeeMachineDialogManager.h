// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_COFFEEMACHINEDIALOGMANAGER_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_COFFEEMACHINEDIALOGMANAGER_H

/** @file
 *  The application's dialog manager: what happens when dialogs and popups come and go.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

class CMachine;

/** Overrides every hook. Each one does a small job and logs an INFO entry, and then lets the listeners do
 *  theirs: the classes of Companions/ that the controller uses.
 *
 *  A hook only handles the dialog or popup for which it is called. None of them starts a switch inside a
 *  switch: it takes a note, and the controller switches when the operation is over.
 */
class CCoffeeMachineDialogManager : public CGUIObservedDialogManager
{
public:
    /** @param kMachine the machine, not owned; must outlive the manager */
    explicit CCoffeeMachineDialogManager(CMachine& kMachine);

    /** @return whether the screen has been without a dialog since the last call */
    eC_Bool TakeScreenIsEmpty();

    /** @return the displayed popup that contains an object, NO_HANDLE if none does */
    ObjectHandle_t GetPopupAround(const CGUIObject* pkObject) const;

protected:
    /** Builds the brewing dialog. */
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override;

    /** Gives the focus to the dialog. */
    void OnDialogAdded(CGUIObject* pDialog) override;

    /** Gives the focus to the dialog, and opens the valve for the rinsing step. */
    void OnDialogActivation(CGUIObject* pDialog) override;

    /** Closes the valve when the rinsing step is hidden. */
    void OnDialogDeactivation(CGUIObject* pDialog) override;

    /** Keeps the brewing dialog while a cup is being made. Closes the valve when the rinsing step is deleted,
     *  because deleted dialogs are not deactivated.
     */
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override;

    /** Deletes a dialog that was built in code and added: the manager only hides these. */
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;

    /** Notes that there is no dialog any more. */
    void OnLastDialogDeletion() override;

    /** Gives the focus to the popup's button, if it has one. */
    void OnPopupActivation(CGUIObject* pPopup) override;

    /** Gives the focus to the topmost dialog or popup, if it was in this popup. */
    void OnPopupDeactivation(CGUIObject* pPopup) override;

    /** Builds the popup about a saved setting. */
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override;

private:
    void FocusDialog(CGUIObject* pkDialog) const;
    void FocusWhatRemains() const;

    CMachine& m_kMachine;
    eC_Bool m_bScreenIsEmpty;
    CSafeGUIObjectPtr m_pkDialogFocus; ///< had the focus in the dialog when a popup took it
};

#endif
