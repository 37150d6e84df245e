// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogStates.h"

#include "Companions/TraceText.h"
#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/GUITrace.h"

#include <cstring>

/** The beginning of the states of a dialog. */
struct CGUIDialogStates::Dialog_t
{
    ObjectHandle_t m_eID;
    eC_UInt m_uiSize;        ///< with everything up to the next dialog
    eC_UInt m_uiIsDestroyed; ///< 1: the dialog that was saved is gone, so another one is the new one
};

/** The beginning of the state of an object. */
struct CGUIDialogStates::Object_t
{
    ObjectHandle_t m_eID;
    eC_UInt m_uiSize; ///< of the state that follows
};

CGUIDialogStates::CGUIDialogStates(CGUIObservedDialogManager& kManager, Find_t pfnFind,
                                   unsigned char* puiBytes, eC_UInt uiSize)
    : m_pfnFind(pfnFind), m_puiBytes(puiBytes), m_uiSize(uiSize)
{
    static_assert(sizeof(Dialog_t) == cuiDialogBytes && sizeof(Object_t) == cuiObjectBytes, "no padding");
    kManager.AddListener(*this);
}

CGUIDialogStates::~CGUIDialogStates() = default;

eC_Bool CGUIDialogStates::Forget(ObjectHandle_t eDialogID)
{
    const eC_UInt uiOffset = FindDialog(eDialogID);
    if (uiOffset == m_uiUsed)
    {
        return false;
    }
    RemoveDialog(uiOffset);
    return true;
}

// --- Hooks -------------------------------------------------------------------------------------------

void CGUIDialogStates::OnDialogAdded(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    Restore();
}

void CGUIDialogStates::OnDialogActivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    Restore();
}

eC_Bool CGUIDialogStates::OnDialogDeletion(CGUIObject* pDialog)
{
    Save(*pDialog);
    return true;
}

void CGUIDialogStates::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
{
    if (m_eScope == STATES_OF_HISTORY && eDeletedDialogID != eNewDialogID &&
        !GetManager()->ContainsDialog(eDeletedDialogID, false))
    {
        Forget(eDeletedDialogID);
    }
}

// --- Saving ------------------------------------------------------------------------------------------

void CGUIDialogStates::Save(CGUIObject& kDialog)
{
    NoteDestroyed();
    const ObjectHandle_t eDialogID = kDialog.GetID();
    Forget(eDialogID);
    const eC_UInt uiStates = SaveObjects(kDialog, kDialog, nullptr, 0);
    if (uiStates == 0 || !MakeRoom(eDialogID, uiStates))
    {
        return;
    }
    const Dialog_t kSaved = {eDialogID, cuiDialogBytes + uiStates, 0};
    std::memcpy(m_puiBytes + m_uiUsed, &kSaved, sizeof(kSaved));
    if (SaveObjects(kDialog, kDialog, m_puiBytes + m_uiUsed + cuiDialogBytes, uiStates) != uiStates)
    {
        // An object needs another size than it has just said: what was written may have gaps.
        return;
    }
    m_uiUsed += kSaved.m_uiSize;
    m_pkLeaving = &kDialog;
    m_eLeavingID = eDialogID;
}

// Saves an object and those below it as far as there is room. Returns how many bytes all of them need.
eC_UInt CGUIDialogStates::SaveObjects(CGUIObject& kDialog, CGUIObject& kObject, unsigned char* puiStatesOUT,
                                      eC_UInt uiSize) const
{
    eC_UInt uiNeeded = SaveObject(kDialog, kObject, puiStatesOUT, uiSize);
    if (kObject.IsCompositeObject())
    {
        CGUIObject* pkChild = static_cast<CGUICompositeObject&>(kObject).GetFirstChild();
        for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            const eC_UInt uiTaken = uiNeeded < uiSize ? uiNeeded : uiSize;
            uiNeeded += SaveObjects(kDialog, *pkChild, puiStatesOUT + uiTaken, uiSize - uiTaken);
        }
    }
    return uiNeeded;
}

eC_UInt CGUIDialogStates::SaveObject(const CGUIObject& kDialog, CGUIObject& kObject,
                                     unsigned char* puiStatesOUT, eC_UInt uiSize) const
{
    const ObjectHandle_t eID = kObject.GetID();
    const CGUIObjectState* const pkState = eID != NO_HANDLE ? m_pfnFind(&kObject) : nullptr;
    if (pkState == nullptr || kDialog.GetObjectByID(eID, false) != &kObject)
    {
        return 0;
    }
    const eC_Bool bHasRoom = uiSize > cuiObjectBytes;
    const eC_UInt uiState = pkState->SaveState(bHasRoom ? puiStatesOUT + cuiObjectBytes : nullptr,
                                               bHasRoom ? uiSize - cuiObjectBytes : 0);
    if (uiState == 0)
    {
        return 0;
    }
    // A state that can never fit counts as the whole room, so that the sum does not overflow.
    const eC_UInt uiNeeded = uiState < m_uiSize ? uiState + cuiObjectBytes : m_uiSize;
    if (bHasRoom && uiNeeded <= uiSize)
    {
        const Object_t kSaved = {eID, uiState};
        std::memcpy(puiStatesOUT, &kSaved, sizeof(kSaved));
    }
    return uiNeeded;
}

eC_Bool CGUIDialogStates::MakeRoom(ObjectHandle_t eDialogID, eC_UInt uiSize)
{
    if (uiSize > m_uiSize - cuiDialogBytes)
    {
        GUILOG(GUI_TRACE_WARNING, TraceText("CGUIDialogStates::Save: The state of dialog with ID ", eDialogID,
                                            " is larger than the limit and not saved.\n"));
        return false;
    }
    while (m_uiSize - m_uiUsed < cuiDialogBytes + uiSize)
    {
        const ObjectHandle_t eGoingID = ReadDialog(0).m_eID;
        RemoveDialog(0);
        GUILOG(GUI_TRACE_WARNING, TraceText("CGUIDialogStates::Save: The state of dialog with ID ", eGoingID,
                                            " is forgotten, there is no room.\n"));
    }
    return true;
}

// --- Restoring ---------------------------------------------------------------------------------------

void CGUIDialogStates::Restore()
{
    NoteDestroyed();
    eC_UInt uiOffset = 0;
    while (uiOffset < m_uiUsed)
    {
        const Dialog_t kSaved = ReadDialog(uiOffset);
        const CGUIObject* const pkDialog =
            kSaved.m_uiIsDestroyed != 0 ? CGUI::GetInstance().GetObjectByID(kSaved.m_eID, false) : nullptr;
        if (pkDialog != nullptr)
        {
            RestoreObjects(*pkDialog, m_puiBytes + uiOffset + cuiDialogBytes,
                           kSaved.m_uiSize - cuiDialogBytes);
            RemoveDialog(uiOffset);
        }
        else
        {
            uiOffset += kSaved.m_uiSize;
        }
    }
}

void CGUIDialogStates::RestoreObjects(const CGUIObject& kDialog, const unsigned char* puiStates,
                                      eC_UInt uiSize) const
{
    const unsigned char* const puiEnd = puiStates + uiSize;
    while (puiStates < puiEnd)
    {
        Object_t kSaved;
        std::memcpy(&kSaved, puiStates, sizeof(kSaved));
        puiStates += sizeof(kSaved);
        CGUIObject* const pkObject = kDialog.GetObjectByID(kSaved.m_eID, false);
        CGUIObjectState* const pkState = pkObject != nullptr ? m_pfnFind(pkObject) : nullptr;
        if (pkState != nullptr)
        {
            pkState->RestoreState(puiStates, kSaved.m_uiSize);
        }
        puiStates += kSaved.m_uiSize;
    }
}

// Notes which of the saved dialogs do not exist any more. As long as a dialog exists, its deletion is in
// progress or was vetoed, and what it contains counts.
void CGUIDialogStates::NoteDestroyed()
{
    eC_UInt uiOffset = 0;
    while (uiOffset < m_uiUsed)
    {
        Dialog_t kSaved = ReadDialog(uiOffset);
        const eC_Bool bExists = kSaved.m_eID == m_eLeavingID
                                    ? m_pkLeaving != nullptr
                                    : CGUI::GetInstance().GetObjectByID(kSaved.m_eID, false) != nullptr;
        if (!bExists)
        {
            kSaved.m_uiIsDestroyed = 1;
            std::memcpy(m_puiBytes + uiOffset, &kSaved, sizeof(kSaved));
        }
        uiOffset += kSaved.m_uiSize;
    }
}

// --- Saved dialogs -----------------------------------------------------------------------------------

CGUIDialogStates::Dialog_t CGUIDialogStates::ReadDialog(eC_UInt uiOffset) const
{
    Dialog_t kSaved;
    std::memcpy(&kSaved, m_puiBytes + uiOffset, sizeof(kSaved));
    return kSaved;
}

eC_UInt CGUIDialogStates::FindDialog(ObjectHandle_t eDialogID) const
{
    eC_UInt uiOffset = 0;
    while (uiOffset < m_uiUsed && ReadDialog(uiOffset).m_eID != eDialogID)
    {
        uiOffset += ReadDialog(uiOffset).m_uiSize;
    }
    return uiOffset;
}

void CGUIDialogStates::RemoveDialog(eC_UInt uiOffset)
{
    const eC_UInt uiSize = ReadDialog(uiOffset).m_uiSize;
    m_uiUsed -= uiSize;
    std::memmove(m_puiBytes + uiOffset, m_puiBytes + uiOffset + uiSize, m_uiUsed - uiOffset);
}
