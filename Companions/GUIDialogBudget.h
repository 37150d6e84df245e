// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIDIALOGBUDGET_H
#define COMPANIONS_GUIDIALOGBUDGET_H

/** @file
 *  Limits how much the hidden dialogs of the history take.
 */

#include "Companions/GUIObservedDialogManager.h"

/** Deletes the hidden dialogs that were current longest ago while all of them take more than a limit, and
 *  builds them again on the way back.
 *
 *  It counts the dialogs of the history that are kept and hidden: those left with ODA_INVISIBLE or
 *  ODA_INVISIBLE_ALL, and those whose deletion was refused. After each switch and each step back it deletes
 *  as many as needed, but only those that their descriptions allow to be deleted, and that no listener and no
 *  derived manager vetoes in OnDialogDeletion. The history does not change.
 *
 *  The dialog that Back would show always stays, or is built again: when its successor becomes current, a
 *  dialog that is missing below it is obtained as by CGUIDialogManager::GetDialogObject, and hidden. So Back
 *  shows it with its recorded focus, like one that was never deleted. Before BackToDialog and
 *  ClearDialogHistory bring a dialog back, it is built in OnAfterDialogDeletion. A dialog of the history that
 *  somebody else has destroyed is built again likewise.
 *
 *  It needs no memory for each dialog, and looks at the history after each switch. Logged: DEBUG for each
 *  dialog that it deletes; *loading* and what CreateDialogImpl logs for each one that it builds; ERROR if
 *  that throws, and it is tried again when the current dialog is about to be left. The hooks OnDialogAdded
 *  and OnDialogActivation may throw what OnDialogDeletion throws, and std::bad_alloc. The manager may be
 *  destroyed first; nothing happens after that. A hook may call any operation, but must not destroy the
 *  object.
 */
class CGUIDialogBudget : private CGUIDialogListener
{
public:
    /** Measures a dialog. It must return the same as long as the dialog has the same objects. */
    using Measure_t = eC_UInt (*)(const CGUIObject& kDialog);

    /** Listens to the manager.
     *  @param kManager the manager, not owned
     *  @param uiMost how much all hidden dialogs of the history together may take, in the unit of the measure
     *  @param pfnMeasure measures a dialog, not null; for a limit in bytes, a function of the application
     * that knows its object classes
     */
    CGUIDialogBudget(CGUIObservedDialogManager& kManager, eC_UInt uiMost,
                     Measure_t pfnMeasure = &CountObjects);

    ~CGUIDialogBudget() override;

    /** Changes the limit, from the next switch on. */
    void SetLimit(eC_UInt uiMost) { m_uiMost = uiMost; }

    /** @return how much the hidden dialogs of the history take */
    eC_UInt GetUse() const;

    /** @return how many objects a dialog has, itself included */
    static eC_UInt CountObjects(const CGUIObject& kDialog);

private:
    using Entry_t = CGUIObservedDialogManager::CDialogHistoryList_t::Iterator;

    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnDialogDeactivation(CGUIObject* pDialog) override;
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;

    CGUIObject* FindHidden(const Entry_t& kEntry) const;
    void Settle();
    void Delete(CGUIObject* pkDialog);
    void BuildPredecessorOf(const CGUIObject* pkDialog) const;
    void Build(eC_UInt uiPosition) const;

    eC_UInt m_uiMost;
    Measure_t m_pfnMeasure;
};

#endif
