// SPDX-License-Identifier: MIT
#include "Tests/Model/Model.h"
#include "Tests/Model/ModelTexts.h"

#include <algorithm>

/** While it exists, no hook may change the history. */
class CModel::CWhileHistoryIsClosed
{
public:
    explicit CWhileHistoryIsClosed(CModel& kModel) : m_kModel(kModel) { ++m_kModel.m_iHistoryClosed; }
    CWhileHistoryIsClosed(const CWhileHistoryIsClosed&) = delete;
    CWhileHistoryIsClosed& operator=(const CWhileHistoryIsClosed&) = delete;
    ~CWhileHistoryIsClosed() { --m_kModel.m_iHistoryClosed; }

private:
    CModel& m_kModel;
};

// --- Obtaining dialogs --------------------------------------------------------------------------------

int CModel::LoadDialogDescription(int iID)
{
    const std::string kPath = FindRegisteredPath(iID);
    if (kPath.empty())
    {
        Debug("CGUIDialogManager::LoadDialogDescription: No dialog registered with id " +
              std::to_string(iID) + ".\\n");
        return -1;
    }
    const unsigned int uiBefore = m_uiTime;
    const int iDialog = LoadFile(kPath);
    Log("INFO: Time for loading " + kPath + ": " + std::to_string(m_uiTime - uiBefore) + ".\\n");
    if (iDialog < 0)
    {
        Error("CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID " +
              std::to_string(iID) + " with registered path " + kPath + ".\\n.");
        return -1;
    }
    At(iDialog).m_iID = iID;
    Attach(iDialog, 0);
    Hide(iDialog, false);
    return iDialog;
}

int CModel::GetDialogObject(int iID, bool& bAllowDeletion, bool& bRecoverFocus)
{
    const int iFound = Find(0, iID);
    if (iFound >= 0)
    {
        if (bAllowDeletion)
        {
            bAllowDeletion = false;
            Debug("CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
                  "the id " +
                  std::to_string(iID) + " is already contained in the GUI.\\n");
        }
        const Entry_t* pkEntry = FindInHistory(iID);
        if (pkEntry != nullptr)
        {
            bRecoverFocus = pkEntry->m_kDialog.m_bRecoverFocus;
        }
        return iFound;
    }
    const int iLoaded = LoadDialogDescription(iID);
    return iLoaded >= 0 ? iLoaded : CallCreateDialogImpl(iID, bAllowDeletion, bRecoverFocus);
}

std::string CModel::Obtain(int iID, bool bAllowDeletion, bool bRecoverFocus)
{
    const int iDialog = GetDialogObject(iID, bAllowDeletion, bRecoverFocus);
    return std::to_string(iDialog) + " " + NameOfFlags(bAllowDeletion, bRecoverFocus);
}

std::string CModel::Load(int iID)
{
    return std::to_string(LoadDialogDescription(iID));
}

int CModel::ObtainForCreateDialog(int iID, bool& bAllowDeletion, bool& bRecoverFocus)
{
    bAllowDeletion = true;
    bRecoverFocus = true;
    try
    {
        return GetDialogObject(iID, bAllowDeletion, bRecoverFocus);
    }
    catch (...)
    {
        Error("CGUIDialogManager::CreateDialog: Caught an exception during dialog creation.\\n");
        return -1;
    }
}

// --- Switching ----------------------------------------------------------------------------------------

std::string CModel::CreateDialog(int iID, int iAction)
{
    const int iFocus = m_iFocus;
    bool bAllowDeletion = true;
    bool bRecoverFocus = true;
    int iDialog = ObtainForCreateDialog(iID, bAllowDeletion, bRecoverFocus);
    if (iDialog < 0)
    {
        Error("CGUIDialogManager::CreateDialog: Createing dialog with ID " + std::to_string(iID) +
              " failed!\\nThe current dialog stays active.\\n");
        return "-1";
    }
    StoreCurrentDialog(iAction, AliveOrNone(iFocus));
    if (!IsAlive(iDialog))
    {
        iDialog = ObtainForCreateDialog(iID, bAllowDeletion, bRecoverFocus);
    }
    MakeVisible(iDialog);
    if (iDialog < 0)
    {
        return "-1";
    }
    const Entry_t* pkEntry = FindInHistory(iID);
    const bool bIsKnown = pkEntry != nullptr;
    if (bIsKnown)
    {
        const int iFocussed = Find(iDialog, pkEntry->m_iFocus);
        if (iFocussed >= 0 && pkEntry->m_kDialog.m_bRecoverFocus)
        {
            RecoverFocus(iFocussed);
        }
    }
    m_kCurrent = {At(iDialog).m_iID, iAction, bAllowDeletion, bRecoverFocus};
    if (!bIsKnown)
    {
        Hook(ON_DIALOG_ADDED, NameOfObject(iDialog));
    }
    if (IsAlive(iDialog))
    {
        Hook(ON_DIALOG_ACTIVATION, NameOfObject(iDialog));
    }
    EnsureFocus(iDialog);
    UpdateActivePopups();
    return std::to_string(AliveOrNone(iDialog));
}

std::string CModel::AddDialog(int iObject, int iAction, bool bRecoverFocus)
{
    const std::string kNull = "CGUIDialogManager::AddDialog: Try to add a null pointer as dialog.\\n";
    if (iObject < 0)
    {
        Error(kNull);
        return "";
    }
    try
    {
        StoreCurrentDialog(iAction, m_iFocus);
        if (!IsAlive(iObject))
        {
            Error(kNull);
            return "";
        }
        if (At(iObject).m_iID == 0)
        {
            At(iObject).m_iID = NextDynamicID();
        }
        Debug("CGUIDialogManager::AddDialog: new dialog has object ID " + std::to_string(At(iObject).m_iID) +
              ".\\n");
        m_kCurrent = {At(iObject).m_iID, iAction, false, bRecoverFocus};
        Hook(ON_DIALOG_ADDED, NameOfObject(iObject));
        EnsureFocus(iObject);
        UpdateActivePopups();
    }
    catch (...)
    {
        Error("CGUIDialogManager::AddDialog: Caught an exception during adding a dialog.\\n");
    }
    return "";
}

void CModel::StoreCurrentDialog(int iAction, int iFocus)
{
    const int iCurrent = GetCurrent();
    if (iCurrent >= 0)
    {
        int iFocusID = iFocus >= 0 ? At(iFocus).m_iID : 0;
        if (iFocus >= 0 && iFocusID == 0 && At(iCurrent).m_bIsComposite && IsUnder(iFocus, iCurrent))
        {
            At(iFocus).m_iID = NextDynamicID();
            iFocusID = m_iFocus >= 0 ? At(m_iFocus).m_iID : 0;
        }
        if (iAction == ciInvisibleAll || iAction == ciDeleteAll)
        {
            ApplyActionToHistory(iAction);
        }
        if (iAction == ciInvisible || iAction == ciInvisibleAll)
        {
            MakeInvisible(AliveOrNone(iCurrent));
        }
        else if (iAction == ciDelete || iAction == ciDeleteAll)
        {
            DeleteDialog(m_kCurrent, true);
        }
        else if (iAction == ciNothing)
        {
            Hook(ON_DIALOG_DEACTIVATION, NameOfObject(iCurrent));
        }
        m_kHistory.insert(m_kHistory.begin(), {m_kCurrent, iAction, iFocusID});
    }
    m_kCurrent = Description_t();
}

void CModel::ApplyActionToHistory(int iAction)
{
    const CWhileHistoryIsClosed kClosed(*this);
    for (std::size_t uiEntry = m_kHistory.size(); uiEntry-- > 0;)
    {
        const Entry_t kEntry = m_kHistory[uiEntry];
        const bool bWasHidden = kEntry.m_iAction == ciInvisible || kEntry.m_iAction == ciInvisibleAll;
        const bool bWasDeleted = kEntry.m_iAction == ciDelete || kEntry.m_iAction == ciDeleteAll;
        if (iAction >= ciActions)
        {
            continue;
        }
        if (iAction == ciInvisibleAll || bWasHidden)
        {
            MakeInvisible(Find(0, kEntry.m_kDialog.m_iID));
        }
        else if (iAction == ciDeleteAll || bWasDeleted)
        {
            DeleteDialog(kEntry.m_kDialog, true);
        }
        else if (kEntry.m_iAction == ciNothing)
        {
            ReCreateDialog(kEntry.m_kDialog);
        }
    }
}

void CModel::DeleteDialog(Description_t kDialog, bool bDelete)
{
    const std::string kID = std::to_string(kDialog.m_iID);
    Debug("CGUIDialogManager::DeleteDialog: removing dialog with ID " + kID + ".\\n");
    const int iDialog = Find(0, kDialog.m_iID);
    if (iDialog < 0)
    {
        return;
    }
    if (!bDelete)
    {
        MakeInvisible(iDialog);
        return;
    }
    bool bAllowed = kDialog.m_bAllowDeletion;
    if (bAllowed)
    {
        const int iID = At(iDialog).m_iID;
        Hook(ON_DIALOG_DELETION, NameOf(iID),
             [&]
             {
                 bAllowed = std::find(m_kVetoes.begin(), m_kVetoes.end(), iID) == m_kVetoes.end();
                 return " -> " + NameOfFlag(bAllowed);
             });
    }
    if (!bAllowed)
    {
        Debug("CGUIDialogManager::DeleteDialog: Dialog with ID " + kID +
              " may not be deleted and will be set invisible instead.\\n");
        MakeInvisible(Find(0, kDialog.m_iID));
        return;
    }
    const Entry_t* pkEntry = FindInHistory(kDialog.m_iID);
    if (pkEntry != nullptr && pkEntry->m_iFocus > 1)
    {
        Log("WARNING: CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic "
            "object ID,is deleted. This destroys the focus history.\\n");
    }
    if (IsAlive(iDialog))
    {
        Destroy(iDialog);
    }
}

void CModel::MakeInvisible(int iDialog)
{
    if (iDialog < 0 || At(iDialog).m_bIsInvisible)
    {
        return;
    }
    Hook(ON_DIALOG_DEACTIVATION, NameOfObject(iDialog));
    if (IsAlive(iDialog))
    {
        Hide(iDialog, true);
    }
}

void CModel::MakeVisible(int iDialog)
{
    if (iDialog < 0)
    {
        Error("CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been "
              "deleted in the mean time.\\n");
        return;
    }
    Hide(iDialog, false);
    Raise(iDialog);
}

int CModel::ReCreateDialog(const Description_t& kDialog)
{
    bool bAllowDeletion = false;
    bool bRecoverFocus = false;
    const int iDialog = GetDialogObject(kDialog.m_iID, bAllowDeletion, bRecoverFocus);
    if (iDialog >= 0)
    {
        MakeVisible(iDialog);
    }
    return iDialog;
}

const CModel::Entry_t* CModel::FindInHistory(int iID) const
{
    for (const Entry_t& kEntry : m_kHistory)
    {
        if (kEntry.m_kDialog.m_iID == iID)
        {
            return &kEntry;
        }
    }
    return nullptr;
}

// --- The way back -------------------------------------------------------------------------------------

/** @return whether a dialog was restored */
bool CModel::CreateDialogFromHistory()
{
    Entry_t kEntry = {Description_t(), ciDeleteAll, 0};
    const bool bIsThere = !m_kHistory.empty();
    if (bIsThere)
    {
        kEntry = m_kHistory.front();
        m_kHistory.erase(m_kHistory.begin());
    }
    ApplyActionToHistory(kEntry.m_kDialog.m_iAction);
    int iDialog = -1;
    if (bIsThere && (kEntry.m_iAction == ciInvisible || kEntry.m_iAction == ciInvisibleAll))
    {
        iDialog = Find(0, kEntry.m_kDialog.m_iID);
        MakeVisible(iDialog);
    }
    else if (bIsThere && (kEntry.m_iAction == ciDelete || kEntry.m_iAction == ciDeleteAll))
    {
        iDialog = ReCreateDialog(kEntry.m_kDialog);
    }
    else if (bIsThere && kEntry.m_iAction == ciNothing)
    {
        iDialog = Find(0, kEntry.m_kDialog.m_iID);
    }
    if (iDialog < 0)
    {
        m_kCurrent = Description_t();
        return false;
    }
    m_kCurrent = kEntry.m_kDialog;
    if (kEntry.m_iFocus != 0 && kEntry.m_kDialog.m_bRecoverFocus)
    {
        const int iInside = Find(iDialog, kEntry.m_iFocus);
        RecoverFocus(iInside >= 0 ? iInside : Find(0, kEntry.m_iFocus));
    }
    Hook(ON_DIALOG_ACTIVATION, NameOfObject(iDialog));
    UpdateActivePopups();
    return true;
}

std::string CModel::Back(bool bDelete)
{
    const int iLeft = m_kCurrent.m_iID;
    if (iLeft == 0 || m_kHistory.empty())
    {
        return "";
    }
    const CWhileHistoryIsClosed kClosed(*this);
    try
    {
        DeleteDialog(m_kCurrent, bDelete);
        if (!CreateDialogFromHistory())
        {
            Hook(ON_LAST_DIALOG_DELETION, "");
        }
        UpdateActivePopups();
        Hook(ON_AFTER_DIALOG_DELETION, NameOf(iLeft) + ", " + NameOf(m_kCurrent.m_iID));
    }
    catch (...)
    {
        Error("CGUIDialogManager::Back: Caught an exception during deletion of the current dialog.\\n");
    }
    return "";
}

void CModel::RemoveCurrent(bool bDelete, int iTarget)
{
    const int iLeft = m_kCurrent.m_iID;
    DeleteDialog(m_kCurrent, bDelete);
    Hook(ON_AFTER_DIALOG_DELETION, NameOf(iLeft) + ", " + NameOf(iTarget));
}

void CModel::RemoveMostRecent(bool bDelete, int iTarget)
{
    const Entry_t kEntry = m_kHistory.front();
    m_kHistory.erase(m_kHistory.begin());
    DeleteDialog(kEntry.m_kDialog, bDelete);
    Hook(ON_AFTER_DIALOG_DELETION, NameOf(kEntry.m_kDialog.m_iID) + ", " + NameOf(iTarget));
}

std::string CModel::BackToDialog(int iID, bool bDelete, bool bStepwise)
{
    if (FindInHistory(iID) == nullptr)
    {
        Error("CGUIDialogManager::BackToDialog: The dialog with id " + std::to_string(iID) +
              " is not contained in the dialog history.\\n");
        return "false";
    }
    const CWhileHistoryIsClosed kClosed(*this);
    if (!bStepwise)
    {
        BackDirectly(iID, bDelete);
        return "true";
    }
    while (m_kCurrent.m_iID != iID)
    {
        if (m_kCurrent.m_iID == 0 || m_kHistory.empty())
        {
            throw EndlessWayBack_t();
        }
        Back(bDelete);
    }
    return "true";
}

void CModel::BackDirectly(int iID, bool bDelete)
{
    RemoveCurrent(bDelete, iID);
    while (m_kHistory.front().m_kDialog.m_iID != iID)
    {
        RemoveMostRecent(bDelete, iID);
    }
    if (!CreateDialogFromHistory())
    {
        Error("CGUIDialogManager::BackToDialog: Unable to reactivate dialog with id " + std::to_string(iID) +
              ".\\n");
        Hook(ON_LAST_DIALOG_DELETION, "");
    }
}

std::string CModel::ClearDialogHistory(unsigned int uiKeep, bool bDelete, bool bDeleteCurrent)
{
    const std::size_t uiEntries = m_kHistory.size();
    if (uiEntries + (m_kCurrent.m_iID != 0 && bDeleteCurrent ? 1 : 0) <= uiKeep)
    {
        return "";
    }
    const CWhileHistoryIsClosed kClosed(*this);
    try
    {
        const bool bHasTarget = uiKeep != 0 && bDeleteCurrent && uiEntries >= uiKeep;
        const int iTarget = bHasTarget ? m_kHistory[uiKeep - 1].m_kDialog.m_iID : 0;
        if (bDeleteCurrent)
        {
            RemoveCurrent(bDelete, iTarget);
        }
        while (m_kHistory.size() > uiKeep)
        {
            RemoveMostRecent(bDelete, iTarget);
        }
        if (bDeleteCurrent)
        {
            CreateDialogFromHistory();
        }
    }
    catch (...)
    {
        Error("CGUIDialogManager::ClearDialogHistory: Caught an exception during deletion of the dialog "
              "history.\\n");
    }
    return "";
}

std::string CModel::PrintHistory()
{
    Debug("CGUIDialogManager::PrintDialogHistory:\\n");
    for (std::size_t uiEntry = m_kHistory.size(); uiEntry-- > 0;)
    {
        Debug("DialogID: " + std::to_string(m_kHistory[uiEntry].m_kDialog.m_iID) +
              " DialogAction executed by successor : " + std::to_string(m_kHistory[uiEntry].m_iAction) +
              "\\n");
    }
    Debug("CurrentDialog: " + std::to_string(m_kCurrent.m_iID) +
          " DialogAction executed on predecessors: " + std::to_string(m_kCurrent.m_iAction) + "\\n");
    return "";
}

// --- The manager's use of the focus -------------------------------------------------------------------

void CModel::RecoverFocus(int iObject)
{
    if (iObject < 0 || RequestFocus(iObject))
    {
        return;
    }
    Error("CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id " +
          std::to_string(At(iObject).m_iID) + " Trying to recover focus on ancestors.\\n");
    for (int iOne = At(iObject).m_iParent; iOne >= 0 && !FocusFirst(iOne); iOne = At(iOne).m_iParent)
    {
    }
}

void CModel::EnsureFocus(int iDialog)
{
    if (m_iFocus < 0 && !(IsAlive(iDialog) && FocusFirst(iDialog)))
    {
        FocusFirst(0);
    }
}
