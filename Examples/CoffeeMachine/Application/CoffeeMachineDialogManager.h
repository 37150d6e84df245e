#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_COFFEEMACHINEDIALOGMANAGER_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_COFFEEMACHINEDIALOGMANAGER_H

/** @file
 *  The application's dialog manager: what happens when dialogs and popups come and go.
 */

#include "Core/GUIDialogManager.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

class CMachine;

/** Overrides every hook. Each one does a small job of its own and leaves an INFO entry in the trace.
 *
 *  Hooks do what belongs to the one dialog or popup they are called for. None of them starts a switch
 *  inside a switch: what needs one is noted, and the controller does it when the operation is over.
 */
class CCoffeeMachineDialogManager : public CGUIDialogManager
{
public:
    /** @param kMachine the machine, not owned; it outlives the manager */
    explicit CCoffeeMachineDialogManager(CMachine& kMachine);

    /** @return whether the screen was left without a dialog since the last call */
    eC_Bool TakeScreenIsEmpty();

    /** @return the displayed popup that lets no touch beside it through, or null */
    CGUIObject* GetModalPopup() const;

    /** @return the displayed popup that an object lies in, NO_HANDLE if it lies in none */
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

    /** Keeps the brewing dialog while a cup is being made. Closes the valve when the rinsing step goes:
     *  a dialog that is deleted is not deactivated before.
     */
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override;

    /** Deletes a dialog that was built in code and added: the manager only hides these. */
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;

    /** Notes that there is no dialog any more. */
    void OnLastDialogDeletion() override;

    /** Gives the focus to the popup's button, if it has one. */
    void OnPopupActivation(CGUIObject* pPopup) override;

    /** Gives the focus to what is on top now, if the popup took it with it. */
    void OnPopupDeactivation(CGUIObject* pPopup) override;

    /** Builds the popup that says that a setting was saved. */
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override;

private:
    void FocusDialog(CGUIObject* pkDialog) const;

    CMachine& m_kMachine;
    eC_Bool m_bScreenIsEmpty;
    CSafeGUIObjectPtr m_pkDialogFocus; ///< had the focus in the dialog when a popup took it
};

#endif
