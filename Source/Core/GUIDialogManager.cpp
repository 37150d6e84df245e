// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Core/Control/GUI.h"
#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

namespace
{
// The first statically defined object handle. Counting all static handles from here gives the first
// identifier after them.
const eC_Int ciCalculatedObjStartTag = -8;

// False in builds without the messages of level DEBUG: then no sink can change anything between two steps. A
// framework that has no GUI_TRACE_LEVEL may log at any time.
#ifdef GUI_TRACE_LEVEL
constexpr eC_Bool cbLogsSteps = GUI_TRACE_LEVEL >= GUI_TRACE_DEBUG;
#else
constexpr eC_Bool cbLogsSteps = true;
#endif

eC_Int GetFirstDynamicID()
{
    return static_cast<eC_Int>(cuiNOFObjectHandles + static_cast<eC_UInt>(ciCalculatedObjStartTag));
}

eC_String Text(const eC_Char* pcText)
{
    return eC_String(pcText, 0, eC_String::eASCII);
}

eC_String Number(eC_Int iNumber)
{
    return eC_String(iNumber);
}

eC_String Message(const eC_Char* pcBefore, eC_Int iNumber, const eC_Char* pcAfter)
{
    return Text(pcBefore) + Number(iNumber) + pcAfter;
}

CGUIObject* FindUnderRoot(ObjectHandle_t eID)
{
    // Hidden dialogs and popups count as well.
    return CGUI::GetInstance().GetObjectByID(eID, false);
}

eC_Bool IsVisible(const CGUIObject* pkObject)
{
    return pkObject != nullptr && !pkObject->IsInvisible();
}

eC_Bool WasHidden(CGUIDialogManager::EOldDialogAction eAction)
{
    return eAction == CGUIDialogManager::ODA_INVISIBLE || eAction == CGUIDialogManager::ODA_INVISIBLE_ALL;
}

// Removes the first definition of an identifier.
template <typename T>
eC_Bool RemoveDefinition(eC_TListDoubleLinked<T>& kDefinitions, ObjectHandle_t T::*peID, ObjectHandle_t eID)
{
    eC_TSafeIterator<T> kIterator = kDefinitions.GetBeginSafe();
    while (kIterator.IsValid() && (*kIterator).*peID != eID)
    {
        ++kIterator;
    }
    return kDefinitions.Remove(kIterator);
}

eC_Bool HasID(const CGUIObject* pkObject, ObjectHandle_t eID)
{
    return pkObject != nullptr && pkObject->GetID() == eID;
}

/** An object that DeleteOnce is deleting. */
struct Deletion_t
{
    const CGUIObject* m_pkObject;
    const Deletion_t* m_pkOuter;
};

const Deletion_t* s_pkInnermostDeletion = nullptr;

// Deletes an object, unless it or something under it is already being deleted: a destructor may call the
// manager, which still finds the object until the destructor of CGUIObject detaches it and resets the safe
// pointers.
void DeleteOnce(CGUIObject* pkObject)
{
    const Deletion_t* pkDeletion = s_pkInnermostDeletion;
    while (pkDeletion != nullptr && pkDeletion->m_pkObject != pkObject &&
           !pkDeletion->m_pkObject->IsDescendantOf(pkObject))
    {
        pkDeletion = pkDeletion->m_pkOuter;
    }
    if (pkDeletion == nullptr)
    {
        const Deletion_t kDeletion = {pkObject, s_pkInnermostDeletion};
        s_pkInnermostDeletion = &kDeletion;
        delete pkObject;
        s_pkInnermostDeletion = kDeletion.m_pkOuter;
    }
}

// Counts the popups that arbitrations have shown. A call during which it changed has run an arbitration.
eC_UInt s_uiNOFPopupsShown = 0;

/** Owns a loaded object until it is released. Holds null if somebody else destroys the object. */
class CLoadedObject
{
public:
    CLoadedObject() = default;
    CLoadedObject(const CLoadedObject&) = delete;
    CLoadedObject& operator=(const CLoadedObject&) = delete;
    ~CLoadedObject() { DeleteOnce(m_pkObject); }

    CGUIObject* Release()
    {
        CGUIObject* pkObject = m_pkObject;
        m_pkObject.Reset();
        return pkObject;
    }

    CSafeGUIObjectPtr m_pkObject;
};

// A callback for a popup must leave the popup's entry in the list. Otherwise the iterator has no element,
// and reading it throws, or it has moved to an entry that the operation must not touch.
template <typename T>
T& RequireEntryOf(const CGUIObject* pkPopup, const eC_TSafeIterator<T>& kIterator)
{
    T& kEntry = *kIterator;
    if (kEntry.GetObject() != pkPopup)
    {
        throw 0;
    }
    return kEntry;
}

eC_String PopupMessage(ObjectHandle_t eID, eC_Int iPriority)
{
    return Message("CGUIDialogManager::UpdateActivePopups: Popup with id ", eID, " with priority ") +
           Number(iPriority);
}
} // namespace

CGUIDialogManager::CGUIDialogManager() : m_iLastDynObjID(GetFirstDynamicID()) {}

CGUIDialogManager::~CGUIDialogManager() = default;

// --- Switching ----------------------------------------------------------------------------------

CGUIObject* CGUIDialogManager::CreateDialog(ObjectHandle_t eID, EOldDialogAction eAction)
{
    CSafeGUIObjectPtr pkDialog;
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;
    CGUIObject* const pkFocussed = ObtainDialog(eID, pkDialog, bAllowDeletion, bRecoverFocus);
    if (pkDialog == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR, Message("CGUIDialogManager::CreateDialog: Createing dialog with ID ", eID,
                                        " failed!\nThe current dialog stays active.\n"));
        return nullptr;
    }
    StoreCurrentDialogInHistory(eAction, pkFocussed);
    if (pkDialog == nullptr)
    {
        ObtainDialog(eID, pkDialog, bAllowDeletion, bRecoverFocus);
    }
    MakeDialogVisible(pkDialog);

    // Looked up after the old dialog was stored: a dialog that switches to itself finds its own entry.
    const HistoryEntry* pkEntry = FindDialogInHistory(eID);
    const eC_Bool bIsInHistory = pkEntry != nullptr;
    if (bIsInHistory && pkDialog != nullptr)
    {
        RestoreRecordedFocus(*pkEntry, pkDialog);
    }
    // Null when it could not be obtained again, or did not survive being shown or given its focus.
    if (pkDialog == nullptr)
    {
        return nullptr;
    }
    m_CurrentDialog = DialogDescription(pkDialog->GetID(), eAction, bAllowDeletion, bRecoverFocus);

    if (!bIsInHistory)
    {
        OnDialogAdded(pkDialog);
    }
    if (pkDialog != nullptr)
    {
        OnDialogActivation(pkDialog);
    }
    EnsureFocus(pkDialog);
    UpdateActivePopups();
    return pkDialog;
}

void CGUIDialogManager::AddDialog(CGUIObject* pNewCurrentDialog, EOldDialogAction eAction,
                                  eC_Bool bRecoverFocus)
{
    try
    {
        CSafeGUIObjectPtr pkDialog = pNewCurrentDialog;
        if (pkDialog != nullptr)
        {
            StoreCurrentDialogInHistory(eAction, CGUIEventHandler::GetInstance().GetFocussedObject());
        }
        // The action on the old dialogs may have destroyed the new one.
        if (pkDialog == nullptr)
        {
            GUILOG(GUI_TRACE_ERROR, "CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\n");
            return;
        }
        if (pkDialog->GetID() == NO_HANDLE)
        {
            pkDialog->SetID(CreateDynamicObjectID());
        }
        const ObjectHandle_t eID = pkDialog->GetID();
        GUILOG(GUI_TRACE_DEBUG,
               Message("CGUIDialogManager::AddDialog: new dialog has object ID ", eID, ".\n"));
        m_CurrentDialog = DialogDescription(eID, eAction, false, bRecoverFocus);

        // Neither shown nor activated: intended, that is up to the caller, who built the dialog. The sink may
        // have destroyed it.
        if (pkDialog != nullptr)
        {
            OnDialogAdded(pkDialog);
        }
        EnsureFocus(pkDialog);
        UpdateActivePopups();
    }
    catch (...)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogManager::AddDialog: Caught an exception during adding a dialog.\n");
    }
}

CGUIObject* CGUIDialogManager::ObtainDialog(ObjectHandle_t eID, CSafeGUIObjectPtr& pkDialogOUT,
                                            eC_Bool& bAllowDeletionOUT, eC_Bool& bRecoverFocusOUT) const
{
    bAllowDeletionOUT = true;
    bRecoverFocusOUT = true;
    // Loading, CreateDialogImpl or a sink may destroy the focussed object. The dialog's pointer guards it
    // until there is a dialog: one more safe pointer would slow down every switch by 5 %.
    pkDialogOUT = CGUIEventHandler::GetInstance().GetFocussedObject();
    CGUIObject* pkDialog = nullptr;
    try
    {
        pkDialog = GetDialogObject(eID, bAllowDeletionOUT, bRecoverFocusOUT);
    }
    catch (...)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.\n");
    }
    CGUIObject* const pkFocussed = pkDialogOUT;
    pkDialogOUT = pkDialog;
    return pkFocussed;
}

void CGUIDialogManager::StoreCurrentDialogInHistory(EOldDialogAction eAction, CGUIObject* pkFocusedObj)
{
    CGUIObject* pkCurrentDialog = GetCurrentDialog();
    if (pkCurrentDialog != nullptr)
    {
        const ObjectHandle_t eFocussedObject = IdentifyFocussedObject(pkCurrentDialog, pkFocusedObj);
        ExecuteActionOnCurrentDialog(eAction, pkCurrentDialog);
        m_History.Add(HistoryEntry(m_CurrentDialog, eAction, eFocussedObject));
    }
    m_CurrentDialog = DialogDescription();
}

void CGUIDialogManager::ExecuteActionOnCurrentDialog(EOldDialogAction eAction, CGUIObject* pkCurrentDialog)
{
    switch (eAction)
    {
    case ODA_INVISIBLE:
        MakeDialogInvisible(pkCurrentDialog);
        break;
    case ODA_INVISIBLE_ALL:
    {
        // The hooks for the older dialogs may destroy this one.
        const CSafeGUIObjectPtr pkSafeDialog = pkCurrentDialog;
        ApplyActionToHistory(eAction);
        MakeDialogInvisible(pkSafeDialog);
        break;
    }
    case ODA_DELETE:
        DeleteDialog(m_CurrentDialog, true);
        break;
    case ODA_DELETE_ALL:
        ApplyActionToHistory(eAction);
        DeleteDialog(m_CurrentDialog, true);
        break;
    case ODA_NOTHING:
        OnDialogDeactivation(pkCurrentDialog);
        break;
    default:
        break;
    }
}

void CGUIDialogManager::DeleteDialog(const DialogDescription& dialog, eC_Bool bDeleteObject)
{
    // Sinks and hooks may change the description, which may be m_CurrentDialog: copy it.
    const ObjectHandle_t eDialogID = dialog.m_eDialogID;
    const eC_Bool bAllowObjectDeletion = dialog.m_bAllowObjectDeletion;
    GUILOG(GUI_TRACE_DEBUG,
           Message("CGUIDialogManager::DeleteDialog: removing dialog with ID ", eDialogID, ".\n"));
    CGUIObject* pkDialog = FindUnderRoot(eDialogID);
    if (pkDialog == nullptr)
    {
        return;
    }
    if (!bDeleteObject)
    {
        MakeDialogInvisible(pkDialog);
        return;
    }
    const CSafeGUIObjectPtr pkSafeDialog = pkDialog;
    if (!bAllowObjectDeletion || !OnDialogDeletion(pkDialog))
    {
        GUILOG(GUI_TRACE_DEBUG, Message("CGUIDialogManager::DeleteDialog: Dialog with ID ", eDialogID,
                                        " may not be deleted and will be set invisible instead.\n"));
        MakeDialogInvisible(FindUnderRoot(eDialogID));
        return;
    }
    const HistoryEntry* pkEntry = FindDialogInHistory(eDialogID);
    if (pkEntry != nullptr && pkEntry->m_eFocussedObject > NOF_OBJECTHANDLES)
    {
        GUILOG(GUI_TRACE_WARNING,
               "CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic object "
               "ID,"
               "is deleted. This destroys the focus history.\n");
    }
    // Null if the hook has deleted the dialog itself.
    DeleteOnce(pkSafeDialog);
}

void CGUIDialogManager::MakeDialogVisible(const CSafeGUIObjectPtr& pkDialog) const
{
    if (pkDialog == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
               "deleted in the mean time.\n");
        return;
    }
    pkDialog->SetInvisible(false);
    if (pkDialog != nullptr && pkDialog->GetParent() != nullptr)
    {
        pkDialog->GetParent()->DrawOnTop(pkDialog);
    }
}

void CGUIDialogManager::MakeDialogInvisible(CGUIObject* pkDialog)
{
    if (IsVisible(pkDialog))
    {
        HideDialog(pkDialog);
    }
}

void CGUIDialogManager::HideDialog(CGUIObject* pkDialog)
{
    // The hook may destroy it.
    const CSafeGUIObjectPtr pkSafeDialog = pkDialog;
    OnDialogDeactivation(pkDialog);
    if (pkSafeDialog != nullptr)
    {
        pkSafeDialog->SetInvisible(true);
    }
}

// --- History ------------------------------------------------------------------------------------

void CGUIDialogManager::Back(eC_Bool bDeleteObject)
{
    const ObjectHandle_t eDeletedDialogID = m_CurrentDialog.m_eDialogID;
    if (eDeletedDialogID == NO_HANDLE || m_History.IsEmpty())
    {
        return;
    }
    try
    {
        DeleteDialog(m_CurrentDialog, bDeleteObject);
        // Hooks may have emptied the history.
        const CGUIObject* pkDialog = m_History.IsEmpty() ? nullptr : CreateDialogFromHistory();
        if (pkDialog == nullptr)
        {
            OnLastDialogDeletion();
        }
        UpdateActivePopups();
        OnAfterDialogDeletion(eDeletedDialogID, m_CurrentDialog.m_eDialogID);
    }
    catch (...)
    {
        GUILOG(GUI_TRACE_ERROR,
               "CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\n");
    }
}

eC_Bool CGUIDialogManager::BackToDialog(ObjectHandle_t eDialogID, eC_Bool bDeleteDialogsIfAllowed,
                                        eC_Bool bHistoryActivation)
{
    if (!ContainsDialog(eDialogID, false))
    {
        GUILOG(GUI_TRACE_ERROR, Message("CGUIDialogManager::BackToDialog: The dialog with id ", eDialogID,
                                        " is not contained in the dialog history.\n"));
        return false;
    }
    if (bHistoryActivation)
    {
        // Loops forever when a dialog on the way cannot be brought back: intended, use the direct mode then.
        while (m_CurrentDialog.m_eDialogID != eDialogID)
        {
            Back(bDeleteDialogsIfAllowed);
        }
        return true;
    }
    DeleteDialog(m_CurrentDialog, bDeleteDialogsIfAllowed);
    OnAfterDialogDeletion(m_CurrentDialog.m_eDialogID, eDialogID);
    while ((*m_History.GetBegin()).m_Dialog.m_eDialogID != eDialogID)
    {
        RemoveMostRecentDialog(bDeleteDialogsIfAllowed, eDialogID);
    }
    if (CreateDialogFromHistory() == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               Message("CGUIDialogManager::BackToDialog: Unable to reactivate dialog with id ", eDialogID,
                       ".\n"));
        OnLastDialogDeletion();
    }
    return true;
}

void CGUIDialogManager::ClearDialogHistory(eC_UInt uiKeepDialogs, eC_Bool bDeleteDialogs,
                                           eC_Bool bDeleteCurrent)
{
    const eC_UInt uiNOFEntries = m_History.GetQuantity();
    const eC_Bool bCurrentCounts = bDeleteCurrent && m_CurrentDialog.m_eDialogID != NO_HANDLE;
    if (uiNOFEntries + (bCurrentCounts ? 1U : 0U) <= uiKeepDialogs)
    {
        return;
    }
    // At least uiKeepDialogs entries exist from here on.
    try
    {
        // Counted from the most recent entry, although the oldest ones are kept: intended, it is the
        // identifier that OnAfterDialogDeletion has always received.
        ObjectHandle_t eTargetID = NO_HANDLE;
        if (uiKeepDialogs != 0 && bDeleteCurrent)
        {
            eTargetID = (*m_History.GetAt(uiKeepDialogs - 1)).m_Dialog.m_eDialogID;
        }
        if (bDeleteCurrent)
        {
            DeleteDialog(m_CurrentDialog, bDeleteDialogs);
            OnAfterDialogDeletion(m_CurrentDialog.m_eDialogID, eTargetID);
        }
        while (m_History.GetQuantity() > uiKeepDialogs)
        {
            RemoveMostRecentDialog(bDeleteDialogs, eTargetID);
        }
        if (bDeleteCurrent)
        {
            CreateDialogFromHistory();
        }
    }
    catch (...)
    {
        GUILOG(GUI_TRACE_ERROR, "CGUIDialogManager::ClearDialogHistory: Caught an exception during "
                                "deletion of the dialog history.\n");
    }
}

eC_Bool CGUIDialogManager::ContainsDialog(ObjectHandle_t eDialogID, eC_Bool bConsiderCurrentDialog) const
{
    return (bConsiderCurrentDialog && m_CurrentDialog.m_eDialogID == eDialogID) ||
           FindDialogInHistory(eDialogID) != nullptr;
}

CGUIDialogManager::DialogDescription::DialogDescription(ObjectHandle_t eCurrentDialogID,
                                                        EOldDialogAction eOldDialogAction,
                                                        eC_Bool bAllowObjectDeletion, eC_Bool bRecoverFocus)
    : m_eDialogID(eCurrentDialogID),
      m_eOldDialogAction(eOldDialogAction),
      m_bAllowObjectDeletion(bAllowObjectDeletion),
      m_bRecoverFocus(bRecoverFocus)
{
}

CGUIDialogManager::HistoryEntry::HistoryEntry(const DialogDescription& dialog, EOldDialogAction eAction,
                                              ObjectHandle_t eFocussedObject)
    : m_Dialog(dialog), m_eAction(eAction), m_eFocussedObject(eFocussedObject)
{
}

bool CGUIDialogManager::HistoryEntry::operator==(const HistoryEntry& kOther)
{
    return m_Dialog.m_eDialogID == kOther.m_Dialog.m_eDialogID && m_eAction == kOther.m_eAction &&
           m_eFocussedObject == kOther.m_eFocussedObject;
}

CGUIObject* CGUIDialogManager::CreateDialogFromHistory()
{
    // Made first: if there is no memory for it, the history is still complete.
    CSafeGUIObjectPtr pkDialog;
    HistoryEntry kEntry;
    const eC_Bool bHasEntry = m_History.RemoveFront(kEntry);
    ApplyActionToHistory(kEntry.m_Dialog.m_eOldDialogAction, pkDialog);

    pkDialog.Reset();
    if (bHasEntry)
    {
        BringBack(kEntry, pkDialog);
    }
    CGUIObject* const pkBroughtBack = pkDialog;
    if (pkBroughtBack == nullptr)
    {
        m_CurrentDialog = DialogDescription();
        return nullptr;
    }
    m_CurrentDialog = kEntry.m_Dialog;
    // Unlike a switch, going back also finds an object outside the dialog: intended.
    if (kEntry.m_eFocussedObject != NO_HANDLE && kEntry.m_Dialog.m_bRecoverFocus)
    {
        CGUIObject* pkObjectToFocus = pkDialog->GetObjectByID(kEntry.m_eFocussedObject, false);
        RecoverFocus(pkObjectToFocus != nullptr ? pkObjectToFocus : FindUnderRoot(kEntry.m_eFocussedObject));
    }
    if (pkDialog != nullptr)
    {
        OnDialogActivation(pkDialog);
    }
    UpdateActivePopups();
    // Not null even if it has been destroyed since: it did come back.
    return pkBroughtBack;
}

void CGUIDialogManager::BringBack(const HistoryEntry& kEntry, CSafeGUIObjectPtr& pkDialogOUT)
{
    switch (kEntry.m_eAction)
    {
    case ODA_INVISIBLE:
    case ODA_INVISIBLE_ALL:
        pkDialogOUT = FindUnderRoot(kEntry.m_Dialog.m_eDialogID);
        MakeDialogVisible(pkDialogOUT);
        break;
    case ODA_DELETE:
    case ODA_DELETE_ALL:
        ReCreateDialog(kEntry.m_Dialog, pkDialogOUT);
        break;
    case ODA_NOTHING:
        pkDialogOUT = FindUnderRoot(kEntry.m_Dialog.m_eDialogID);
        break;
    default:
        break;
    }
}

void CGUIDialogManager::ReCreateDialog(const DialogDescription& dialog, CSafeGUIObjectPtr& pkDialogOUT) const
{
    pkDialogOUT = FindUnderRoot(dialog.m_eDialogID);
    if (pkDialogOUT == nullptr)
    {
        // The description already has the flags: ignore those that the build returns.
        eC_Bool bAllowDeletion = false;
        eC_Bool bRecoverFocus = false;
        pkDialogOUT = BuildDialog(dialog.m_eDialogID, bAllowDeletion, bRecoverFocus);
    }
    if (pkDialogOUT != nullptr)
    {
        MakeDialogVisible(pkDialogOUT);
    }
}

void CGUIDialogManager::RemoveMostRecentDialog(eC_Bool bDeleteDialog, ObjectHandle_t eTargetID)
{
    HistoryEntry kEntry;
    m_History.RemoveFront(kEntry);
    DeleteDialog(kEntry.m_Dialog, bDeleteDialog);
    OnAfterDialogDeletion(kEntry.m_Dialog.m_eDialogID, eTargetID);
}

void CGUIDialogManager::ApplyActionToHistory(EOldDialogAction eAction)
{
    CSafeGUIObjectPtr pkShown;
    ApplyActionToHistory(eAction, pkShown);
}

void CGUIDialogManager::ApplyActionToHistory(EOldDialogAction eAction, CSafeGUIObjectPtr& pkShown)
{
    // Every action keeps hidden what is recorded as hidden, so most often there is nothing to do. To find
    // that out without a safe iterator takes less than half the time.
    if (eAction > ODA_NOTHING || IsHistoryHidden())
    {
        return;
    }
    // The hooks called here may change the history: use a safe iterator and a copy of the entry.
    for (CDialogHistoryList_t::SafeIterator kIterator = m_History.GetEndSafe(); kIterator.IsValid();
         --kIterator)
    {
        const HistoryEntry kEntry = *kIterator;
        const eC_Bool bWasHidden = WasHidden(kEntry.m_eAction);
        const eC_Bool bWasDeleted = kEntry.m_eAction == ODA_DELETE || kEntry.m_eAction == ODA_DELETE_ALL;
        // ODA_DELETE_ALL keeps dialogs recorded as hidden: intended, going back shows them again.
        if (bWasHidden || eAction == ODA_INVISIBLE_ALL)
        {
            MakeDialogInvisible(FindUnderRoot(kEntry.m_Dialog.m_eDialogID));
        }
        else if (bWasDeleted || eAction == ODA_DELETE_ALL)
        {
            DeleteDialog(kEntry.m_Dialog, true);
        }
        else if (kEntry.m_eAction == ODA_NOTHING)
        {
            // The caller's safe pointer is reused: making one for each dialog would cost more than all else
            // here.
            ReCreateDialog(kEntry.m_Dialog, pkShown);
        }
    }
}

eC_Bool CGUIDialogManager::IsHistoryHidden() const
{
    CDialogHistoryList_t::Iterator kIterator = m_History.GetEnd();
    while (kIterator.IsValid() && WasHidden((*kIterator).m_eAction) &&
           !IsVisible(FindUnderRoot((*kIterator).m_Dialog.m_eDialogID)))
    {
        --kIterator;
    }
    return !kIterator.IsValid();
}

CGUIDialogManager::HistoryEntry* CGUIDialogManager::FindDialogInHistory(ObjectHandle_t eID) const
{
    for (CDialogHistoryList_t::Iterator kIterator = m_History.GetBegin(); kIterator.IsValid(); ++kIterator)
    {
        HistoryEntry& kEntry = *kIterator;
        if (kEntry.m_Dialog.m_eDialogID == eID)
        {
            return &kEntry;
        }
    }
    return nullptr;
}

void CGUIDialogManager::PrintDialogHistory()
{
    GUILOG(GUI_TRACE_DEBUG, "CGUIDialogManager::PrintDialogHistory:\n");
    // The sink may change the history: use a safe iterator.
    for (CDialogHistoryList_t::SafeIterator kIterator = m_History.GetEndSafe(); kIterator.IsValid();
         --kIterator)
    {
        GUILOG(GUI_TRACE_DEBUG, Message("DialogID: ", (*kIterator).m_Dialog.m_eDialogID,
                                        " DialogAction executed by successor : ") +
                                    Number((*kIterator).m_eAction) + "\n");
    }
    GUILOG(GUI_TRACE_DEBUG, Message("CurrentDialog: ", m_CurrentDialog.m_eDialogID,
                                    " DialogAction executed on predecessors: ") +
                                Number(m_CurrentDialog.m_eOldDialogAction) + "\n");
}

// --- Focus --------------------------------------------------------------------------------------

ObjectHandle_t CGUIDialogManager::IdentifyFocussedObject(const CGUIObject* pkCurrentDialog,
                                                         CGUIObject* pkFocusedObj)
{
    if (pkFocusedObj == nullptr)
    {
        return NO_HANDLE;
    }
    // An object without identifier could never be found again. One outside the dialog is left as it is.
    if (pkFocusedObj->GetID() == NO_HANDLE && pkCurrentDialog->IsCompositeObject() &&
        static_cast<const CGUICompositeObject*>(pkCurrentDialog)->IsAncestorOf(pkFocusedObj))
    {
        pkFocusedObj->SetID(CreateDynamicObjectID());
        pkFocusedObj = CGUIEventHandler::GetInstance().GetFocussedObject();
    }
    return pkFocusedObj != nullptr ? pkFocusedObj->GetID() : NO_HANDLE;
}

void CGUIDialogManager::RestoreRecordedFocus(const HistoryEntry& kEntry, const CGUIObject* pkDialog)
{
    if (kEntry.m_Dialog.m_bRecoverFocus)
    {
        RecoverFocus(pkDialog->GetObjectByID(kEntry.m_eFocussedObject, false));
    }
}

void CGUIDialogManager::RecoverFocus(CGUIObject* pObjectToFocus)
{
    if (pObjectToFocus == nullptr || pObjectToFocus->RequestFocus())
    {
        return;
    }
    // The sink, or an ancestor's FocusAny, may destroy the object.
    CSafeGUIObjectPtr pkAsked = pObjectToFocus;
    GUILOG(GUI_TRACE_ERROR,
           Message("CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id ",
                   pObjectToFocus->GetID(), " Trying to recover focus on ancestors.\n"));
    eC_Bool bIsFocussed = false;
    while (!bIsFocussed && pkAsked != nullptr && pkAsked->GetParent() != nullptr)
    {
        pkAsked = pkAsked->GetParent();
        bIsFocussed = pkAsked->FocusAny();
    }
}

void CGUIDialogManager::EnsureFocus(CGUIObject* pAddedDialog)
{
    if (CGUIEventHandler::GetInstance().GetFocussedObject() != nullptr)
    {
        return;
    }
    // A hook may have destroyed the dialog, but some object should have the focus after every switch.
    if (pAddedDialog == nullptr || !pAddedDialog->FocusAny())
    {
        CGUI::GetInstance().FocusAny();
    }
}

void CGUIDialogManager::RememberDialogFocus()
{
    CGUIObject* pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    if (pkFocussed != nullptr && pkFocussed->IsDescendantOf(GetCurrentDialog()))
    {
        m_pCurrentDialogFocus = pkFocussed;
    }
}

void CGUIDialogManager::GiveDialogFocusBack()
{
    // An object outside the current dialog stays remembered: intended, its dialog may come back.
    if (m_pCurrentDialogFocus != nullptr && m_pCurrentDialogFocus->IsDescendantOf(GetCurrentDialog()))
    {
        m_pCurrentDialogFocus->RequestFocus();
        m_pCurrentDialogFocus.Reset();
    }
}

// --- Popups -------------------------------------------------------------------------------------

CGUIObject* CGUIDialogManager::ShowPopup(ObjectHandle_t eID)
{
    GUILOG(GUI_TRACE_DEBUG, Message("CGUIDialogManager::ShowPopup: Popup with id ", eID, " is activated.\n"));
    CGUIObject* pkPopup = FindUnderRoot(eID);
    const RegisteredPopup_t* pkRegistered = FindRegisteredPopup(eID);
    if (pkRegistered == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR, Message("CGUIDialogManager::ShowPopup: Popup with id ", eID,
                                        " is not registered and therefore can not be displayed.\n"));
        return nullptr;
    }
    // Read before any call: a hook or a sink may unregister the popup.
    const PopupPriority_t ePriority = pkRegistered->m_ePriority;
    const eC_UInt uiDisplayTime = pkRegistered->m_uiDisplayTime;
    const eC_Bool bDeleteOnClose = pkRegistered->m_bDeleteOnClose;
    if (pkPopup == nullptr && !pkRegistered->m_kPath.IsEmpty())
    {
        pkPopup = LoadDialogDescription(eID);
    }
    if (m_ActivePopups.IsEmpty())
    {
        RememberDialogFocus();
    }
    if (GetActivePopup(eID) != nullptr)
    {
        // The sink may destroy it.
        const CSafeGUIObjectPtr pkSafePopup = pkPopup;
        ShowActivePopupAgain(eID, uiDisplayTime);
        return pkSafePopup;
    }
    if (pkPopup == nullptr)
    {
        pkPopup = CreatePopupImpl(eID);
    }
    if (pkPopup == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               Message("CGUIDialogManager::CreatePopup: Creating popup with ID ", eID, " failed!\n"));
        return nullptr;
    }
    if (pkPopup->GetID() != eID)
    {
        pkPopup->SetID(eID);
    }
    const PopupDescription kPopup(pkPopup, ePriority, uiDisplayTime, bDeleteOnClose, this);
    pkPopup->SetInvisible(true);
    m_ActivePopups.AddSorted(kPopup);
    UpdateActivePopups();
    // Null when a hook destroyed the object.
    return kPopup.GetObject();
}

eC_Bool CGUIDialogManager::ClosePopup(ObjectHandle_t eID)
{
    PopupDescriptionList_t::SafeIterator kIterator = m_ActivePopups.GetEndSafe();
    while (kIterator.IsValid() && !HasID((*kIterator).GetObject(), eID))
    {
        --kIterator;
    }
    if (!kIterator.IsValid())
    {
        return false;
    }
    const CSafeGUIObjectPtr pkPopup = (*kIterator).GetObject();
    const eC_Bool bIsShownAgain = DeactivatePopup(pkPopup, kIterator);
    if ((*kIterator).m_bDeleteOnClose)
    {
        DeleteOnce(pkPopup);
    }
    else if (bIsShownAgain)
    {
        pkPopup->SetInvisible(true);
    }
    RequireEntryOf(pkPopup, kIterator);
    m_ActivePopups.Remove(kIterator);
    UpdateActivePopups();
    return true;
}

eC_Bool CGUIDialogManager::IsPopupDisplayed(ObjectHandle_t eID)
{
    const PopupDescription* pkPopup = GetActivePopup(eID);
    return pkPopup != nullptr && !pkPopup->GetObject()->IsInvisible();
}

eC_Bool CGUIDialogManager::PopupDescription::operator==(ObjectHandle_t eID) const
{
    return m_pObject.get() != nullptr && m_pObject->GetID() == eID;
}

void CGUIDialogManager::PopupDescription::DoAnimate(const eC_Value& vTimes)
{
    static_cast<void>(vTimes);
    if (m_pDialogManager == nullptr || m_pObject == nullptr)
    {
        return;
    }
    GETTIMER.RemoveAnimationCallback(this);
    // Closing destroys this description: do not touch it afterwards.
    m_pDialogManager->ClosePopup(m_pObject->GetID());
}

void CGUIDialogManager::UpdateActivePopups()
{
    if (m_ActivePopups.IsEmpty())
    {
        GUILOG(GUI_TRACE_DEBUG, "CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n");
        GiveDialogFocusBack();
        return;
    }
    PopupDescriptionList_t::SafeIterator kIterator = m_ActivePopups.GetEndSafe();
    // The list is sorted. The last entry sets the priority even if its object is gone: intended.
    const PopupPriority_t eHighestPriority = (*kIterator).m_ePriority;
    for (; kIterator.IsValid(); --kIterator)
    {
        const PopupDescription& kPopup = *kIterator;
        if (kPopup.m_pObject == nullptr)
        {
            GUILOG(GUI_TRACE_ERROR,
                   "CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The "
                   "popup is removed from the active popup list.\n");
            // The sink may have run an arbitration, which removes the entry too, and listed another popup in
            // its place.
            if (kIterator.IsValid() && (*kIterator).m_pObject == nullptr)
            {
                m_ActivePopups.Remove(kIterator);
            }
        }
        else if (kPopup.m_ePriority == eHighestPriority)
        {
            DisplayPopup(kIterator);
        }
        else if (!kPopup.m_pObject->IsInvisible())
        {
            HidePopup(kIterator);
        }
    }
}

CGUIDialogManager::PopupDescription* CGUIDialogManager::GetActivePopup(ObjectHandle_t eID) const
{
    for (PopupDescriptionList_t::Iterator kIterator = m_ActivePopups.GetBegin(); kIterator.IsValid();
         ++kIterator)
    {
        if (HasID((*kIterator).GetObject(), eID))
        {
            return &*kIterator;
        }
    }
    return nullptr;
}

void CGUIDialogManager::ShowActivePopupAgain(ObjectHandle_t eID, eC_UInt uiDisplayTime)
{
    GUILOG(GUI_TRACE_DEBUG, Message("CGUIDialogManager::ShowPopup: Popup with id ", eID,
                                    " is already contained in active popup list.\n"));
    // Looked up after each log entry: the sink may have closed the popup.
    PopupDescription* pkActive = GetActivePopup(eID);
    if (pkActive == nullptr)
    {
        return;
    }
    pkActive->m_uiDisplayTime = uiDisplayTime;
    if (pkActive->GetObject()->IsInvisible())
    {
        return;
    }
    GUILOG(GUI_TRACE_DEBUG, Text("CGUIDialogManager::ShowPopup: Timout of is restarted with ") +
                                eC_String(uiDisplayTime) + " ms.\n");
    // The timer ignores null.
    pkActive = GetActivePopup(eID);
    GETTIMER.RemoveAnimationCallback(pkActive);
    if (uiDisplayTime != 0)
    {
        GETTIMER.AddAnimationCallback(uiDisplayTime, pkActive);
    }
}

eC_Bool CGUIDialogManager::DeactivatePopup(const CSafeGUIObjectPtr& pkPopup,
                                           PopupDescriptionList_t::SafeIterator& kIterator)
{
    // SetInvisible or the hook may run an arbitration, which may show the popup again.
    const eC_UInt uiNOFPopupsShown = s_uiNOFPopupsShown;
    pkPopup->SetInvisible(true);
    GETTIMER.RemoveAnimationCallback(&RequireEntryOf(pkPopup, kIterator));
    if (pkPopup == nullptr)
    {
        return false;
    }
    const eC_Bool bWasHidden = pkPopup->IsInvisible();
    OnPopupDeactivation(pkPopup);
    RequireEntryOf(pkPopup, kIterator);
    const eC_Bool bMayBeShownAgain = bWasHidden || s_uiNOFPopupsShown != uiNOFPopupsShown;
    return bMayBeShownAgain && pkPopup != nullptr && !pkPopup->IsInvisible();
}

void CGUIDialogManager::DisplayPopup(PopupDescriptionList_t::SafeIterator& kIterator)
{
    const PopupDescription& kPopup = *kIterator;
    const CSafeGUIObjectPtr pkPopup = kPopup.m_pObject;
    // Read before any call: a callback may destroy the object or change the entry.
    const ObjectHandle_t eID = pkPopup->GetID();
    const PopupPriority_t ePriority = kPopup.m_ePriority;
    const eC_UInt uiDisplayTime = kPopup.m_uiDisplayTime;
    const eC_Bool bWasInvisible = ShowOnTop(pkPopup);
    PopupDescription& kEntry = RequireEntryOf(pkPopup, kIterator);
    if (pkPopup == nullptr)
    {
        // The next arbitration removes the entry.
        return;
    }
    if (uiDisplayTime != 0)
    {
        GETTIMER.AddAnimationCallback(uiDisplayTime, &kEntry);
    }
    if (bWasInvisible)
    {
        OnPopupActivation(pkPopup);
        RequireEntryOf(pkPopup, kIterator);
    }
    GUILOG(GUI_TRACE_DEBUG, PopupMessage(eID, ePriority) + " is activated with a display time of " +
                                eC_String(uiDisplayTime) + " ms.\n");
}

eC_Bool CGUIDialogManager::ShowOnTop(const CSafeGUIObjectPtr& pkPopup)
{
    if (pkPopup->GetParent() != nullptr)
    {
        pkPopup->GetParent()->DrawOnTop(pkPopup);
    }
    else
    {
        CGUI::GetInstance().AddObject(pkPopup);
    }
    if (pkPopup == nullptr)
    {
        return false;
    }
    // Read after attaching: a popup that shows itself while it is attached gets no OnPopupActivation.
    const eC_Bool bWasInvisible = pkPopup->IsInvisible();
    ++s_uiNOFPopupsShown;
    pkPopup->SetInvisible(false);
    return bWasInvisible;
}

void CGUIDialogManager::HidePopup(PopupDescriptionList_t::SafeIterator& kIterator)
{
    // Read before any call: a callback may destroy the object or change the entry.
    CGUIObject* const pkPopup = (*kIterator).GetObject();
    const ObjectHandle_t eID = pkPopup->GetID();
    const PopupPriority_t ePriority = (*kIterator).m_ePriority;
    DeactivatePopup(pkPopup, kIterator);
    GUILOG(GUI_TRACE_DEBUG, PopupMessage(eID, ePriority) +
                                " is deactivated, because popups with hiher priority are active.\n");
}

// --- Definitions --------------------------------------------------------------------------------

eC_Bool CGUIDialogManager::RegisterDialogDefinition(const eC_String& kDefinitionFilePath,
                                                    ObjectHandle_t eDialogID)
{
    // A definition with an empty path counts as none: intended, a second one may supply the path.
    if (!GetRegisteredPath(eDialogID).IsEmpty())
    {
        GUILOG(GUI_TRACE_ERROR,
               Message("CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id ", eDialogID,
                       " already registered.\n"));
        return false;
    }
    RegisteredDialog_t kDialog;
    kDialog.m_kPath = kDefinitionFilePath;
    kDialog.m_eDialogID = eDialogID;
    m_RegisteredDialogDefinitions.AddAtEnd(kDialog);
    return true;
}

eC_Bool CGUIDialogManager::UnregisterDialogDefinition(ObjectHandle_t eDialogID)
{
    return RemoveDefinition(m_RegisteredDialogDefinitions, &RegisteredDialog_t::m_eDialogID, eDialogID);
}

eC_String CGUIDialogManager::GetRegisteredPath(ObjectHandle_t eDialogID) const
{
    for (RegisteredDialogList_t::Iterator kIterator = m_RegisteredDialogDefinitions.GetBegin();
         kIterator.IsValid(); ++kIterator)
    {
        if ((*kIterator).m_eDialogID == eDialogID)
        {
            return (*kIterator).m_kPath;
        }
    }
    const RegisteredPopup_t* pkPopup = FindRegisteredPopup(eDialogID);
    return pkPopup != nullptr ? pkPopup->m_kPath : eC_String();
}

ObjectHandle_t CGUIDialogManager::GetRegisteredDialogID(const eC_String& kDialogPath) const
{
    GUILOG(GUI_TRACE_DEBUG, kDialogPath + ".\n\n");
    // The sink may change the definitions: use safe iterators and read each definition before logging it.
    for (RegisteredDialogList_t::SafeIterator kIterator = m_RegisteredDialogDefinitions.GetBeginSafe();
         kIterator.IsValid(); ++kIterator)
    {
        const ObjectHandle_t eDialogID = (*kIterator).m_eDialogID;
        const eC_Bool bIsSought = (*kIterator).m_kPath == kDialogPath;
        GUILOG(GUI_TRACE_DEBUG, (*kIterator).m_kPath + ".\n");
        if (bIsSought)
        {
            return eDialogID;
        }
    }
    for (RegisteredPopupList_t::SafeIterator kIterator = m_RegisteredPopupDefinitions.GetBeginSafe();
         kIterator.IsValid(); ++kIterator)
    {
        const ObjectHandle_t ePopupID = (*kIterator).m_ePopupID;
        const eC_Bool bIsSought = (*kIterator).m_kPath == kDialogPath;
        GUILOG(GUI_TRACE_DEBUG, (*kIterator).m_kPath + ".\n");
        if (bIsSought)
        {
            return ePopupID;
        }
    }
    return NO_HANDLE;
}

eC_Bool CGUIDialogManager::RegisterPopupDefinition(ObjectHandle_t ePopupID, PopupPriority_t ePriority,
                                                   eC_UInt uiDisplayTime, eC_Bool bDeleteOnClose,
                                                   const eC_String& kDefinitionFilePath)
{
    // Only popups count as duplicates: intended, an identifier may be registered as a dialog and as a popup.
    if (FindRegisteredPopup(ePopupID) != nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               Message("CGUIDialogManager::RegisterPopupDefinition: Popup or dialog with id ", ePopupID,
                       " already registered.\n"));
        return false;
    }
    RegisteredPopup_t kPopup;
    kPopup.m_kPath = kDefinitionFilePath;
    kPopup.m_ePopupID = ePopupID;
    kPopup.m_ePriority = ePriority;
    kPopup.m_uiDisplayTime = uiDisplayTime;
    kPopup.m_bDeleteOnClose = bDeleteOnClose;
    m_RegisteredPopupDefinitions.AddAtEnd(kPopup);
    return true;
}

eC_Bool CGUIDialogManager::UnregisterPopupDefinition(ObjectHandle_t ePopupID)
{
    return RemoveDefinition(m_RegisteredPopupDefinitions, &RegisteredPopup_t::m_ePopupID, ePopupID);
}

eC_Bool CGUIDialogManager::UpdateRegisteredPopupDisplayTime(ObjectHandle_t eID, eC_UInt uiDisplayTime)
{
    RegisteredPopup_t* pkPopup = FindRegisteredPopup(eID);
    if (pkPopup == nullptr)
    {
        return false;
    }
    pkPopup->m_uiDisplayTime = uiDisplayTime;
    return true;
}

eC_Bool CGUIDialogManager::GetRegisteredPopupDisplayTime(ObjectHandle_t eID, eC_UInt& uiDisplayTime)
{
    const RegisteredPopup_t* pkPopup = FindRegisteredPopup(eID);
    if (pkPopup == nullptr)
    {
        return false;
    }
    uiDisplayTime = pkPopup->m_uiDisplayTime;
    return true;
}

eC_Bool CGUIDialogManager::GetRegisteredPopupInfo(ObjectHandle_t eID, RegisteredPopup_t& kPopupInfo) const
{
    const RegisteredPopup_t* pkPopup = FindRegisteredPopup(eID);
    if (pkPopup == nullptr)
    {
        return false;
    }
    kPopupInfo = *pkPopup;
    return true;
}

CGUIDialogManager::RegisteredPopup_t* CGUIDialogManager::FindRegisteredPopup(ObjectHandle_t eID) const
{
    for (RegisteredPopupList_t::Iterator kIterator = m_RegisteredPopupDefinitions.GetBegin();
         kIterator.IsValid(); ++kIterator)
    {
        if ((*kIterator).m_ePopupID == eID)
        {
            return &*kIterator;
        }
    }
    return nullptr;
}

// --- Loading ------------------------------------------------------------------------------------

CGUIObject* CGUIDialogManager::GetDialogObject(ObjectHandle_t eID, eC_Bool& bAllowDeletion,
                                               eC_Bool& bRecoverFocus) const
{
    CGUIObject* pkDialog = FindUnderRoot(eID);
    if (pkDialog != nullptr)
    {
        if (bAllowDeletion)
        {
            bAllowDeletion = false;
            GUILOG(GUI_TRACE_DEBUG,
                   Message("CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the "
                           "object with the id ",
                           eID, " is already contained in the GUI.\n"));
            // The sink may have destroyed it.
            // Not covered: the other way, since the level of messages is known when this is compiled.
            if (cbLogsSteps)
            {
                pkDialog = FindUnderRoot(eID);
            }
        }
        const HistoryEntry* pkEntry = FindDialogInHistory(eID);
        if (pkEntry != nullptr)
        {
            bRecoverFocus = pkEntry->m_Dialog.m_bRecoverFocus;
        }
        return pkDialog;
    }
    return BuildDialog(eID, bAllowDeletion, bRecoverFocus);
}

CGUIObject* CGUIDialogManager::LoadDialogDescription(ObjectHandle_t eID) const
{
    const eC_String kDialogPath = GetRegisteredPath(eID);
    if (kDialogPath.IsEmpty())
    {
        GUILOG(
            GUI_TRACE_DEBUG,
            Message("CGUIDialogManager::LoadDialogDescription: No dialog registered with id ", eID, ".\n"));
        return nullptr;
    }
    const eC_UInt uiTimeBefore = GETTIMER.GetTime();
    // Logging may throw for lack of memory: own the object until it is attached and shown. The sink, or the
    // object itself while it is attached or shown, may destroy it.
    CLoadedObject kLoaded;
    const CSafeGUIObjectPtr& pkDialog = kLoaded.m_pkObject;
    kLoaded.m_pkObject = CGUIFactoryManager::GetInstance().LoadDialogFromFile(kDialogPath);
    const eC_UInt uiLoadTime = GETTIMER.GetTime() - uiTimeBefore;
    GUILOGMESSAGE(Text("Time for loading ") + kDialogPath + ": " + eC_String(uiLoadTime) + ".\n");
    if (pkDialog == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               Message("CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID ", eID,
                       " with registered path ") +
                   kDialogPath + ".\n.");
        return nullptr;
    }
    if (pkDialog->GetID() != eID)
    {
        pkDialog->SetID(eID);
    }
    pkDialog->SetParent(&CGUI::GetInstance());
    if (pkDialog != nullptr)
    {
        pkDialog->SetInvisible(false);
    }
    return kLoaded.Release();
}

CGUIObject* CGUIDialogManager::BuildDialog(ObjectHandle_t eID, eC_Bool& bAllowDeletion,
                                           eC_Bool& bRecoverFocus) const
{
    CGUIObject* pkDialog = LoadDialogDescription(eID);
    return pkDialog != nullptr ? pkDialog : CreateDialogImpl(eID, bAllowDeletion, bRecoverFocus);
}

// --- Dynamic identifiers ------------------------------------------------------------------------

ObjectHandle_t CGUIDialogManager::CreateDynamicObjectID()
{
    // m_iLastDynObjID never advances: intended, every call returns the same identifier.
    eC_Int iNewID = m_iLastDynObjID;
    if (iNewID == 0x7FFFFFFF)
    {
        iNewID = static_cast<eC_Int>(static_cast<eC_UInt>(GetFirstDynamicID()) + 1U);
        eC_TListDoubleLinked<int>::Iterator kIterator = m_DynamicObjectIDs.GetBegin();
        while (kIterator.IsValid() && *kIterator == iNewID)
        {
            ++iNewID;
            ++kIterator;
        }
        if (kIterator.IsValid())
        {
            m_DynamicObjectIDs.AddBefore(iNewID, kIterator);
        }
    }
    m_DynamicObjectIDs.AddAtEnd(iNewID);
    return static_cast<ObjectHandle_t>(iNewID);
}
