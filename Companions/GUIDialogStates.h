// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIDIALOGSTATES_H
#define COMPANIONS_GUIDIALOGSTATES_H

/** @file
 *  Keeps what dialogs contain while they are deleted.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/Control/GUIObjectState.h"
#include "Core/Utils/SafeGUIObjectPtr.h"

/** Saves the states of a dialog's objects before the manager deletes the dialog, and gives them to the
 *  objects with the same identifiers when the dialog has been built again.
 *
 *  Saved are the objects of the dialog that have a state (see CGUIObjectState) and an identifier; if several
 *  have the same one, the first in pre-order. A state is saved when a listener is asked in OnDialogDeletion,
 *  and restored in OnDialogAdded or OnDialogActivation: in the first of these hooks, of whatever dialog, that
 *  finds the dialog built again. It is given back once; a dialog that is neither deleted nor built again
 *  keeps what it contains. What an object does not take is forgotten.
 *
 *  All states together have a limit in bytes, see CGUIDialogStatesOf; no heap memory is used. If there is no
 *  room for a new state, those that were saved first are forgotten.
 *
 *  Create this object after the listeners that veto deletions, so that it is not asked in vain, and before
 *  those that read the contents of a dialog. Because of what is logged, OnDialogDeletion may throw
 *  std::bad_alloc. What SaveState or RestoreState throws leaves the hook; a state that could not be restored
 *  is tried again in the next hook. The manager may be destroyed first; nothing happens after that. A hook
 *  may call any operation, but must not destroy the object.
 */
class CGUIDialogStates : private CGUIDialogListener
{
public:
    /** Finds the state of an object. @return the state, or null if it has none */
    using Find_t = CGUIObjectState* (*)(CGUIObject* pkObject);

    /** Which dialogs get their states back. */
    enum EScope : unsigned char
    {
        STATES_OF_ALL,    ///< every dialog that is built again
        STATES_OF_HISTORY ///< only those on the way back: one that was left by going back starts anew
    };

    CGUIDialogStates(const CGUIDialogStates&) = delete;
    CGUIDialogStates& operator=(const CGUIDialogStates&) = delete;

    /** Sets which dialogs get their states back; STATES_OF_ALL by default. States that are saved already
     *  stay.
     */
    void SetScope(EScope eScope) { m_eScope = eScope; }

    /** Forgets the state of a dialog. @return false if there is none */
    eC_Bool Forget(ObjectHandle_t eDialogID);

    /** @return how many bytes are used: 12 for each dialog, 8 for each object, and the states themselves */
    eC_UInt GetNOFBytes() const { return m_uiUsed; }

protected:
    /** Listens to the manager.
     *  @param pfnFind finds the states, not null
     *  @param puiBytes, uiSize the memory, not owned; not touched yet
     */
    CGUIDialogStates(CGUIObservedDialogManager& kManager, Find_t pfnFind, unsigned char* puiBytes,
                     eC_UInt uiSize);

    ~CGUIDialogStates() override;

private:
    struct Dialog_t;
    struct Object_t;

    static constexpr eC_UInt cuiDialogBytes = 12; ///< the size of a Dialog_t
    static constexpr eC_UInt cuiObjectBytes = 8;  ///< the size of an Object_t

    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;

    void Save(CGUIObject& kDialog);
    eC_UInt SaveObjects(CGUIObject& kDialog, CGUIObject& kObject, unsigned char* puiStatesOUT,
                        eC_UInt uiSize) const;
    eC_UInt SaveObject(const CGUIObject& kDialog, CGUIObject& kObject, unsigned char* puiStatesOUT,
                       eC_UInt uiSize) const;
    eC_Bool MakeRoom(ObjectHandle_t eDialogID, eC_UInt uiSize);
    void Restore();
    void RestoreObjects(const CGUIObject& kDialog, const unsigned char* puiStates, eC_UInt uiSize) const;
    void NoteDestroyed();
    eC_UInt FindDialog(ObjectHandle_t eDialogID) const;
    Dialog_t ReadDialog(eC_UInt uiOffset) const;
    void RemoveDialog(eC_UInt uiOffset);

    Find_t m_pfnFind;
    unsigned char* m_puiBytes; ///< for each dialog a Dialog_t, and for each of its objects an Object_t and
                               ///< the state; the dialog that was saved first comes first
    eC_UInt m_uiSize;
    eC_UInt m_uiUsed = 0;
    CSafeGUIObjectPtr m_pkLeaving; ///< the dialog that was saved last, until it is destroyed
    ObjectHandle_t m_eLeavingID = NO_HANDLE;
    EScope m_eScope = STATES_OF_ALL;
};

/** A CGUIDialogStates with its memory.
 *  @tparam uiBytes the limit, for all states together; see GetNOFBytes
 */
template <eC_UInt uiBytes>
class CGUIDialogStatesOf : public CGUIDialogStates
{
    static_assert(uiBytes > 20, "room for a state at least");

public:
    /** @param kManager the manager, not owned
     *  @param pfnFind finds the state of an object, not null; CGUIWidget::FindState does for widgets
     *  @throws std::bad_alloc
     */
    CGUIDialogStatesOf(CGUIObservedDialogManager& kManager, Find_t pfnFind)
        : CGUIDialogStates(kManager, pfnFind, m_auiBytes, uiBytes)
    {
    }

private:
    unsigned char m_auiBytes[uiBytes];
};

#endif
