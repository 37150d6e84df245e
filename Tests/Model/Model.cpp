#include "Tests/Model/Model.h"

#include <algorithm>
#include <stdexcept>

namespace
{
enum EModelHook : unsigned char
{
    CREATE_DIALOG_IMPL,
    ON_DIALOG_ADDED,
    ON_DIALOG_ACTIVATION,
    ON_DIALOG_DEACTIVATION,
    ON_DIALOG_DELETION,
    ON_AFTER_DIALOG_DELETION,
    ON_LAST_DIALOG_DELETION,
    ON_POPUP_ACTIVATION,
    ON_POPUP_DEACTIVATION,
    CREATE_POPUP_IMPL
};

const char* const capcHooks[] = {"CreateDialogImpl",     "OnDialogAdded",     "OnDialogActivation",
                                 "OnDialogDeactivation", "OnDialogDeletion",  "OnAfterDialogDeletion",
                                 "OnLastDialogDeletion", "OnPopupActivation", "OnPopupDeactivation",
                                 "CreatePopupImpl"};

const char* const capcIDs[] = {"NO_HANDLE", "DLG_A", "DLG_B", "DLG_C", "DLG_D", "POP_1",
                               "POP_2",     "POP_3", "POP_4", "OBJ_1", "OBJ_2", "OBJ_3"};
constexpr int ciIDs = 12;

const char* const capcActions[] = {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE", "ODA_DELETE_ALL",
                                   "ODA_NOTHING"};

constexpr int ciInvisible = 0;
constexpr int ciInvisibleAll = 1;
constexpr int ciDelete = 2;
constexpr int ciDeleteAll = 3;
constexpr int ciNothing = 4;
constexpr int ciActions = 5;

const char* const cpcForgotten =
    "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\\n";

/** The stepwise way back that does not end. */
struct Endless_t
{
};

std::string NameOf(int iID)
{
    return iID < ciIDs ? capcIDs[iID] : std::to_string(iID);
}

std::string NameOfAction(int iAction)
{
    return iAction < ciActions ? capcActions[iAction] : std::to_string(iAction);
}

std::string NameOfFlag(bool bFlag)
{
    return bFlag ? "true" : "false";
}

std::string NameOfFlags(bool bOne, bool bOther)
{
    return NameOfFlag(bOne) + ", " + NameOfFlag(bOther);
}

void ThrowIt(int iHow)
{
    if (iHow == 1)
    {
        throw 7;
    }
    if (iHow == 2)
    {
        throw std::runtime_error("deliberate failure");
    }
}

std::string PrintSettings(int iPriority, unsigned int uiTime, bool bDeleteOnClose)
{
    return "prio " + std::to_string(iPriority) + ", " + std::to_string(uiTime) + " ms, " +
           (bDeleteOnClose ? "delete on close" : "hide on close");
}
} // namespace

/** No hook may change the history meanwhile. */
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

/** A walk over the active popups while hooks may change them. It follows the rules of a safe iterator: an
 *  entry that is removed leaves a gap, and what is listed exactly in that gap takes its place.
 */
class CModel::CWalk
{
public:
    CWalk(CModel& kModel, int iIndex) : m_kModel(kModel), m_uiCursor(kModel.m_kCursors.size())
    {
        kModel.m_kCursors.push_back(
            {kModel.GetNumberAt(iIndex), kModel.GetNumberAt(iIndex + 1), kModel.GetNumberAt(iIndex - 1)});
    }
    CWalk(const CWalk&) = delete;
    CWalk& operator=(const CWalk&) = delete;
    ~CWalk() { m_kModel.m_kCursors.pop_back(); }

    int GetEntry() const { return m_kModel.m_kCursors[m_uiCursor].m_iEntry; }

    /** @return the entry */
    const ActivePopup_t& Require() const
    {
        if (GetEntry() < 0)
        {
            throw 0;
        }
        return m_kModel.m_kActive[static_cast<std::size_t>(m_kModel.FindEntry(GetEntry()))];
    }

    void StepBack()
    {
        Cursor_t& kCursor = m_kModel.m_kCursors[m_uiCursor];
        if (kCursor.m_iEntry >= 0)
        {
            kCursor.m_iNext = kCursor.m_iEntry;
        }
        kCursor.m_iEntry = kCursor.m_iPrevious;
        if (kCursor.m_iEntry >= 0)
        {
            kCursor.m_iPrevious = m_kModel.GetNumberAt(m_kModel.FindEntry(kCursor.m_iEntry) - 1);
        }
    }

private:
    CModel& m_kModel;
    std::size_t m_uiCursor;
};

CModel::CModel(unsigned int uiTime, int iFirstDynamicID) : m_uiTime(uiTime), m_iDynamicID(iFirstDynamicID)
{
    Object_t kRoot;
    kRoot.m_bIsComposite = true;
    m_kObjects.push_back(kRoot);
}

// --- The tree and the focus ---------------------------------------------------------------------------

bool CModel::IsUnder(int iObject, int iAncestor) const
{
    for (int iParent = At(iObject).m_iParent; iParent >= 0; iParent = At(iParent).m_iParent)
    {
        if (iParent == iAncestor)
        {
            return true;
        }
    }
    return false;
}

int CModel::Find(int iTop, int iID) const
{
    if (iID == 0)
    {
        return -1;
    }
    if (At(iTop).m_iID == iID)
    {
        return iTop;
    }
    for (const int iChild : At(iTop).m_kChildren)
    {
        const int iFound = Find(iChild, iID);
        if (iFound >= 0)
        {
            return iFound;
        }
    }
    return -1;
}

bool CModel::CanHaveFocus(int iObject) const
{
    if (!At(iObject).m_bIsFocusable || !At(iObject).m_bIsAlive || !IsUnder(iObject, 0))
    {
        return false;
    }
    for (int iOne = iObject; iOne >= 0; iOne = At(iOne).m_iParent)
    {
        if (At(iOne).m_bIsInvisible)
        {
            return false;
        }
    }
    return true;
}

bool CModel::RequestFocus(int iObject)
{
    if (!CanHaveFocus(iObject))
    {
        return false;
    }
    m_iFocus = iObject;
    return true;
}

bool CModel::FocusFirst(int iObject)
{
    if (RequestFocus(iObject))
    {
        return true;
    }
    const std::vector<int>& kChildren = At(iObject).m_kChildren;
    return std::any_of(kChildren.begin(), kChildren.end(), [this](int iChild) { return FocusFirst(iChild); });
}

void CModel::CheckFocus()
{
    if (m_iFocus >= 0 && !CanHaveFocus(m_iFocus))
    {
        m_iFocus = -1;
    }
}

void CModel::Detach(int iObject)
{
    if (At(iObject).m_iParent >= 0)
    {
        std::vector<int>& kSiblings = At(At(iObject).m_iParent).m_kChildren;
        kSiblings.erase(std::find(kSiblings.begin(), kSiblings.end(), iObject));
        At(iObject).m_iParent = -1;
    }
}

void CModel::Attach(int iObject, int iParent)
{
    Detach(iObject);
    if (iParent >= 0)
    {
        At(iParent).m_kChildren.push_back(iObject);
        At(iObject).m_iParent = iParent;
    }
    CheckFocus();
}

void CModel::Destroy(int iObject)
{
    Detach(iObject);
    while (!At(iObject).m_kChildren.empty())
    {
        Destroy(At(iObject).m_kChildren.front());
    }
    At(iObject).m_bIsAlive = false;
    CheckFocus();
}

void CModel::Hide(int iObject, bool bInvisible)
{
    At(iObject).m_bIsInvisible = bInvisible;
    CheckFocus();
}

int CModel::BuildShape(const Shape_t& kShape)
{
    std::vector<int> kPath;
    for (const ShapeNode_t& kNode : kShape)
    {
        const int iObject = static_cast<int>(m_kObjects.size());
        Object_t kObject;
        kObject.m_iID = kNode.m_iID;
        kObject.m_bIsComposite = kNode.m_bIsComposite;
        kObject.m_bIsFocusable = kNode.m_bIsFocusable;
        kObject.m_bIsInvisible = kNode.m_bIsInvisible;
        m_kObjects.push_back(kObject);
        kPath.resize(static_cast<std::size_t>(kNode.m_iDepth));
        if (!kPath.empty())
        {
            Attach(iObject, kPath.back());
        }
        kPath.push_back(iObject);
    }
    return kPath.front();
}

std::vector<int> CModel::GetObjects() const
{
    std::vector<int> kObjects;
    for (std::size_t uiObject = 0; uiObject < m_kObjects.size(); ++uiObject)
    {
        if (m_kObjects[uiObject].m_bIsAlive)
        {
            kObjects.push_back(static_cast<int>(uiObject));
        }
    }
    return kObjects;
}

// --- Files and the timer ------------------------------------------------------------------------------

int CModel::LoadFile(const std::string& kPath)
{
    ++m_uiLoads;
    for (const Failure_t& kFailure : m_kLoadFailures)
    {
        if (kFailure.m_uiCall == m_uiLoads)
        {
            ++m_auiFailedLoads[kFailure.m_iHow];
            ThrowIt(kFailure.m_iHow);
            return -1;
        }
    }
    for (const File_t& kFile : m_kFiles)
    {
        if (kFile.m_kPath == kPath)
        {
            m_uiTime += static_cast<unsigned int>(kFile.m_iShape);
            return BuildShape(GetShapes()[static_cast<std::size_t>(kFile.m_iShape)]);
        }
    }
    Log("ERROR: CCodeFactory::Read: There is no builder for " + kPath +
        ".\\n @TestSupport/CodeFactory.cpp:#");
    return -1;
}

void CModel::StartTimer(unsigned int uiInterval, int iPopup)
{
    for (const Callback_t& kCallback : m_kCallbacks)
    {
        if (kCallback.m_iPopup == iPopup && kCallback.m_uiInterval == uiInterval)
        {
            return;
        }
    }
    if (uiInterval != 0)
    {
        StopTimer(iPopup);
        m_kCallbacks.push_back({iPopup, uiInterval, m_uiTime, m_iPass});
    }
}

void CModel::StopTimer(int iPopup)
{
    m_kCallbacks.erase(std::remove_if(m_kCallbacks.begin(), m_kCallbacks.end(),
                                      [iPopup](const Callback_t& kCallback)
                                      { return kCallback.m_iPopup == iPopup; }),
                       m_kCallbacks.end());
}

unsigned int CModel::GetTimeUntil(const Callback_t& kCallback) const
{
    const unsigned int uiElapsed = m_uiTime - kCallback.m_uiStart;
    return uiElapsed >= kCallback.m_uiInterval ? 0 : kCallback.m_uiInterval - uiElapsed;
}

/** One pass: the most overdue one first, each at most once. */
void CModel::RunCallbacks()
{
    ++m_iPass;
    const unsigned int uiNow = m_uiTime;
    while (true)
    {
        Callback_t* pkNext = nullptr;
        unsigned int uiMost = 0;
        for (Callback_t& kCallback : m_kCallbacks)
        {
            const unsigned int uiElapsed = uiNow - kCallback.m_uiStart;
            if (kCallback.m_iPass == m_iPass || uiElapsed < kCallback.m_uiInterval)
            {
                continue;
            }
            const unsigned int uiOverdue = uiElapsed - kCallback.m_uiInterval;
            if (pkNext == nullptr || uiOverdue > uiMost)
            {
                pkNext = &kCallback;
                uiMost = uiOverdue;
            }
        }
        if (pkNext == nullptr)
        {
            return;
        }
        pkNext->m_iPass = m_iPass;
        pkNext->m_uiStart += (uiNow - pkNext->m_uiStart) / pkNext->m_uiInterval * pkNext->m_uiInterval;
        const int iPopup = pkNext->m_iPopup;
        const int iObject = m_kActive[static_cast<std::size_t>(FindEntry(iPopup))].m_iObject;
        if (IsAlive(iObject))
        {
            StopTimer(iPopup);
            CloseActivePopup(At(iObject).m_iID);
        }
    }
}

std::string CModel::Advance(unsigned int uiTime)
{
    unsigned int uiLeft = uiTime;
    while (true)
    {
        unsigned int uiNext = uiLeft + 1;
        for (const Callback_t& kCallback : m_kCallbacks)
        {
            uiNext = std::min(uiNext, GetTimeUntil(kCallback));
        }
        if (uiNext > uiLeft)
        {
            break;
        }
        m_uiTime += uiNext;
        uiLeft -= uiNext;
        RunCallbacks();
    }
    m_uiTime += uiLeft;
    return "";
}

std::string CModel::BeLate(unsigned int uiTime)
{
    m_uiTime += uiTime;
    return "";
}

// --- Recording and hooks ------------------------------------------------------------------------------

void CModel::Error(const std::string& kMessage)
{
    Log("ERROR: " + kMessage + " @Source/Core/GUIDialogManager.cpp:#");
}

std::string CModel::NameOfObject(int iObject) const
{
    return iObject >= 0 ? NameOf(At(iObject).m_iID) : "null";
}

template <typename TBody>
void CModel::Hook(int iHook, const std::string& kArguments, TBody kBody)
{
    const std::size_t uiEvent = m_kEvents.size();
    Log(std::string(capcHooks[iHook]) + "(" + kArguments + ")");
    try
    {
        ++m_uiHooks;
        if (m_uiHooks == m_kHookFailure.m_uiCall)
        {
            ThrowIt(m_kHookFailure.m_iHow);
        }
        std::vector<InHook_t> kNow;
        std::vector<InHook_t> kLater;
        for (const InHook_t& kInHook : m_kInHooks)
        {
            std::vector<InHook_t>& kTarget = kInHook.m_iHook == iHook ? kNow : kLater;
            kTarget.push_back(kInHook);
        }
        m_kInHooks = kLater;
        for (const InHook_t& kInHook : kNow)
        {
            ThrowIt(kInHook.m_iThrow);
            const bool bPermitted = Permits(kInHook.m_kOperation);
            m_kPermissions.push_back(bPermitted);
            Log("> " + PrintOperation(kInHook.m_kOperation) + (bPermitted ? "" : " skipped"));
            if (bPermitted)
            {
                const std::string kResult = Perform(*this, kInHook.m_kOperation);
                Log("= " + kResult);
            }
        }
        m_kEvents[uiEvent] += kBody();
    }
    catch (int iValue)
    {
        m_kEvents[uiEvent] += " throws int " + std::to_string(iValue);
        throw;
    }
    catch (const std::exception& kException)
    {
        m_kEvents[uiEvent] += std::string(" throws ") + kException.what();
        throw;
    }
}

void CModel::Hook(int iHook, const std::string& kArguments)
{
    Hook(iHook, kArguments, [] { return std::string(); });
}

int CModel::MakeByHook(const Creator_t& kCreator)
{
    if (kCreator.m_eCreation == CREATION_NULL)
    {
        return -1;
    }
    const int iObject = BuildShape(GetShapes()[static_cast<std::size_t>(kCreator.m_iShape)]);
    if (kCreator.m_eCreation != CREATION_WITH_OWN_ID)
    {
        At(iObject).m_iID = kCreator.m_iID;
    }
    if (kCreator.m_eCreation != CREATION_DETACHED)
    {
        Attach(iObject, 0);
    }
    return iObject;
}

int CModel::CallCreateDialogImpl(int iID, bool& bAllowDeletion, bool& bRecoverFocus)
{
    int iDialog = -1;
    Hook(CREATE_DIALOG_IMPL, NameOf(iID) + ", " + NameOfFlags(bAllowDeletion, bRecoverFocus),
         [&]
         {
             for (const Creator_t& kCreator : m_kDialogCreators)
             {
                 if (kCreator.m_iID == iID)
                 {
                     bAllowDeletion = kCreator.m_bAllowDeletion;
                     bRecoverFocus = kCreator.m_bRecoverFocus;
                     iDialog = MakeByHook(kCreator);
                     return " -> " + NameOfObject(iDialog) + " (" +
                            NameOfFlags(bAllowDeletion, bRecoverFocus) + ")";
                 }
             }
             Debug(std::string("CGUIDialogManager::CreateDialogImpl has been called.") + cpcForgotten);
             return std::string(" -> null");
         });
    return iDialog;
}

int CModel::CallCreatePopupImpl(int iID)
{
    int iPopup = -1;
    Hook(CREATE_POPUP_IMPL, NameOf(iID),
         [&]
         {
             for (const Creator_t& kCreator : m_kPopupCreators)
             {
                 if (kCreator.m_iID == iID)
                 {
                     iPopup = MakeByHook(kCreator);
                     return " -> " + NameOfObject(iPopup);
                 }
             }
             Debug(std::string("CGUIDialogManager::CreatePopupImpl has been called.") + cpcForgotten);
             return std::string(" -> null");
         });
    return iPopup;
}

bool CModel::Permits(const Operation_t& kOperation) const
{
    if (m_iHistoryClosed > 0 && ChangesHistory(kOperation.m_eOperation))
    {
        return false;
    }
    if (kOperation.m_eOperation != OP_BACK_TO_DIALOG)
    {
        return true;
    }
    CModel kCopy(*this);
    try
    {
        PerformAndCatch(kCopy, kOperation);
    }
    catch (const Endless_t&)
    {
        return false;
    }
    return true;
}

// --- Definitions --------------------------------------------------------------------------------------

std::string CModel::FindRegisteredPath(int iID) const
{
    for (const Dialog_t& kDialog : m_kDialogs)
    {
        if (kDialog.m_iID == iID)
        {
            return kDialog.m_kPath;
        }
    }
    const Popup_t* pkPopup = FindRegisteredPopup(iID);
    return pkPopup != nullptr ? pkPopup->m_kPath : "";
}

const CModel::Popup_t* CModel::FindRegisteredPopup(int iID) const
{
    for (const Popup_t& kPopup : m_kPopups)
    {
        if (kPopup.m_iID == iID)
        {
            return &kPopup;
        }
    }
    return nullptr;
}

std::string CModel::RegisterDialog(int iID, const std::string& kPath)
{
    if (!FindRegisteredPath(iID).empty())
    {
        Error("CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id " + std::to_string(iID) +
              " already registered.\\n");
        return "false";
    }
    m_kDialogs.push_back({iID, kPath});
    return "true";
}

std::string CModel::UnregisterDialog(int iID)
{
    for (std::size_t uiDialog = 0; uiDialog < m_kDialogs.size(); ++uiDialog)
    {
        if (m_kDialogs[uiDialog].m_iID == iID)
        {
            m_kDialogs.erase(m_kDialogs.begin() + static_cast<std::ptrdiff_t>(uiDialog));
            return "true";
        }
    }
    return "false";
}

std::string CModel::RegisterPopup(int iID, int iPriority, unsigned int uiTime, bool bDeleteOnClose,
                                  const std::string& kPath)
{
    if (FindRegisteredPopup(iID) != nullptr)
    {
        Error("CGUIDialogManager::RegisterPopupDefinition: Popup or dialog with id " + std::to_string(iID) +
              " already registered.\\n");
        return "false";
    }
    m_kPopups.push_back({iID, iPriority, uiTime, bDeleteOnClose, kPath});
    return "true";
}

std::string CModel::UnregisterPopup(int iID)
{
    for (std::size_t uiPopup = 0; uiPopup < m_kPopups.size(); ++uiPopup)
    {
        if (m_kPopups[uiPopup].m_iID == iID)
        {
            m_kPopups.erase(m_kPopups.begin() + static_cast<std::ptrdiff_t>(uiPopup));
            return "true";
        }
    }
    return "false";
}

std::string CModel::UpdateTime(int iID, unsigned int uiTime)
{
    for (Popup_t& kPopup : m_kPopups)
    {
        if (kPopup.m_iID == iID)
        {
            kPopup.m_uiTime = uiTime;
            return "true";
        }
    }
    return "false";
}

std::string CModel::Query(int iID)
{
    const int iActive = FindActivePopup(iID);
    const Popup_t* pkPopup = FindRegisteredPopup(iID);
    const bool bIsDisplayed =
        iActive >= 0 && !At(m_kActive[static_cast<std::size_t>(iActive)].m_iObject).m_bIsInvisible;
    return NameOf(m_kCurrent.m_iID) + " " + std::to_string(GetCurrent()) + " " +
           std::to_string(m_kHistory.size()) + " " +
           NameOfFlags(m_kCurrent.m_iID == iID || FindInHistory(iID) != nullptr,
                       FindInHistory(iID) != nullptr) +
           " " + NameOf(m_kHistory.empty() ? 0 : m_kHistory.front().m_kDialog.m_iID) + " " +
           NameOfFlags(bIsDisplayed, iActive >= 0) + " \"" + FindRegisteredPath(iID) + "\" " +
           (pkPopup == nullptr
                ? std::string("none")
                : PrintSettings(pkPopup->m_iPriority, pkPopup->m_uiTime, pkPopup->m_bDeleteOnClose) + " " +
                      pkPopup->m_kPath + " " + std::to_string(pkPopup->m_uiTime));
}

std::string CModel::FindPath(const std::string& kPath)
{
    Debug(kPath + ".\\n\\n");
    for (const Dialog_t& kDialog : m_kDialogs)
    {
        Debug(kDialog.m_kPath + ".\\n");
        if (kDialog.m_kPath == kPath)
        {
            return NameOf(kDialog.m_iID);
        }
    }
    for (const Popup_t& kPopup : m_kPopups)
    {
        Debug(kPopup.m_kPath + ".\\n");
        if (kPopup.m_kPath == kPath)
        {
            return NameOf(kPopup.m_iID);
        }
    }
    return "NO_HANDLE";
}

int CModel::NextDynamicID()
{
    ++m_uiDynamicIDs;
    return m_iDynamicID;
}

std::string CModel::CreateDynamicID()
{
    return NameOf(NextDynamicID());
}

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

/** @return whether a dialog was brought back */
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
            throw Endless_t();
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

// --- Popups -------------------------------------------------------------------------------------------

int CModel::FindActivePopup(int iID) const
{
    for (std::size_t uiPopup = 0; uiPopup < m_kActive.size(); ++uiPopup)
    {
        const int iObject = m_kActive[uiPopup].m_iObject;
        if (IsAlive(iObject) && At(iObject).m_iID == iID)
        {
            return static_cast<int>(uiPopup);
        }
    }
    return -1;
}

int CModel::FindEntry(int iNumber) const
{
    for (std::size_t uiPopup = 0; uiPopup < m_kActive.size(); ++uiPopup)
    {
        if (m_kActive[uiPopup].m_iNumber == iNumber)
        {
            return static_cast<int>(uiPopup);
        }
    }
    return -1;
}

/** @return the number of the entry at that place, -1 when there is no such place */
int CModel::GetNumberAt(int iIndex) const
{
    const bool bIsInside = iIndex >= 0 && iIndex < static_cast<int>(m_kActive.size());
    return bIsInside ? m_kActive[static_cast<std::size_t>(iIndex)].m_iNumber : -1;
}

void CModel::InsertEntry(std::size_t uiPlace, const ActivePopup_t& kPopup)
{
    m_kActive.insert(m_kActive.begin() + static_cast<std::ptrdiff_t>(uiPlace), kPopup);
    const int iPrevious = GetNumberAt(static_cast<int>(uiPlace) - 1);
    const int iNext = GetNumberAt(static_cast<int>(uiPlace) + 1);
    for (Cursor_t& kCursor : m_kCursors)
    {
        if (kCursor.m_iEntry >= 0 && kCursor.m_iEntry == iNext)
        {
            kCursor.m_iPrevious = kPopup.m_iNumber;
        }
        else if (kCursor.m_iEntry >= 0 && kCursor.m_iEntry == iPrevious)
        {
            kCursor.m_iNext = kPopup.m_iNumber;
        }
        else if (kCursor.m_iEntry < 0 && kCursor.m_iPrevious == iPrevious && kCursor.m_iNext == iNext)
        {
            kCursor.m_iEntry = kPopup.m_iNumber;
        }
    }
}

void CModel::RemoveEntry(int iNumber)
{
    const int iIndex = FindEntry(iNumber);
    const int iPrevious = GetNumberAt(iIndex - 1);
    const int iNext = GetNumberAt(iIndex + 1);
    m_kActive.erase(m_kActive.begin() + iIndex);
    for (Cursor_t& kCursor : m_kCursors)
    {
        if (kCursor.m_iEntry == iNumber)
        {
            kCursor.m_iEntry = -1;
        }
        else if (kCursor.m_iNext == iNumber)
        {
            kCursor.m_iNext = iNext;
        }
        else if (kCursor.m_iPrevious == iNumber)
        {
            kCursor.m_iPrevious = iPrevious;
        }
    }
    StopTimer(iNumber);
}

std::string CModel::ShowPopup(int iID)
{
    const std::string kID = std::to_string(iID);
    Debug("CGUIDialogManager::ShowPopup: Popup with id " + kID + " is activated.\\n");
    int iObject = Find(0, iID);
    if (FindRegisteredPopup(iID) == nullptr)
    {
        Error("CGUIDialogManager::ShowPopup: Popup with id " + kID +
              " is not registered and therefore can not be displayed.\\n");
        return "-1";
    }
    const Popup_t kRegistered = *FindRegisteredPopup(iID);
    if (iObject < 0 && !kRegistered.m_kPath.empty())
    {
        iObject = LoadDialogDescription(iID);
    }
    if (m_kActive.empty() && m_iFocus >= 0 && GetCurrent() >= 0 && IsUnder(m_iFocus, GetCurrent()))
    {
        m_iRememberedFocus = m_iFocus;
    }
    const int iActive = FindActivePopup(iID);
    if (iActive >= 0)
    {
        return std::to_string(ShowListedPopup(iActive, kRegistered, iObject));
    }
    if (iObject < 0)
    {
        iObject = CallCreatePopupImpl(iID);
    }
    if (iObject < 0)
    {
        Error("CGUIDialogManager::CreatePopup: Creating popup with ID " + kID + " failed!\\n");
        return "-1";
    }
    At(iObject).m_iID = iID;
    Hide(iObject, true);
    std::size_t uiPlace = 0;
    while (uiPlace < m_kActive.size() && m_kActive[uiPlace].m_iPriority < kRegistered.m_iPriority)
    {
        ++uiPlace;
    }
    InsertEntry(uiPlace, {m_iNextPopup++, iObject, kRegistered.m_iPriority, kRegistered.m_uiTime,
                          kRegistered.m_bDeleteOnClose});
    UpdateActivePopups();
    return std::to_string(AliveOrNone(iObject));
}

int CModel::ShowListedPopup(int iIndex, const Popup_t& kRegistered, int iObject)
{
    ActivePopup_t& kActive = m_kActive[static_cast<std::size_t>(iIndex)];
    Debug("CGUIDialogManager::ShowPopup: Popup with id " + std::to_string(kRegistered.m_iID) +
          " is already contained in active popup list.\\n");
    kActive.m_uiTime = kRegistered.m_uiTime;
    if (!At(kActive.m_iObject).m_bIsInvisible)
    {
        Debug("CGUIDialogManager::ShowPopup: Timout of is restarted with " +
              std::to_string(kRegistered.m_uiTime) + " ms.\\n");
        StopTimer(kActive.m_iNumber);
        StartTimer(kRegistered.m_uiTime, kActive.m_iNumber);
    }
    return iObject;
}

std::string CModel::ClosePopup(int iID)
{
    return NameOfFlag(CloseActivePopup(iID));
}

bool CModel::CloseActivePopup(int iID)
{
    for (std::size_t uiPopup = m_kActive.size(); uiPopup-- > 0;)
    {
        const int iObject = m_kActive[uiPopup].m_iObject;
        if (!IsAlive(iObject) || At(iObject).m_iID != iID)
        {
            continue;
        }
        const CWalk kWalk(*this, static_cast<int>(uiPopup));
        Hide(iObject, true);
        StopTimer(kWalk.GetEntry());
        Hook(ON_POPUP_DEACTIVATION, NameOfObject(iObject));
        RequireEntryOf(kWalk, iObject);
        if (IsAlive(iObject) && kWalk.Require().m_bDeleteOnClose)
        {
            Destroy(iObject);
        }
        else if (IsAlive(iObject))
        {
            Hide(iObject, true);
        }
        RemoveEntry(kWalk.GetEntry());
        UpdateActivePopups();
        return true;
    }
    return false;
}

void CModel::UpdateActivePopups()
{
    if (m_kActive.empty())
    {
        Debug("CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n");
        GiveFocusBack();
        return;
    }
    const int iHighest = m_kActive.back().m_iPriority;
    CWalk kWalk(*this, static_cast<int>(m_kActive.size()) - 1);
    for (; kWalk.GetEntry() >= 0; kWalk.StepBack())
    {
        const ActivePopup_t kPopup = kWalk.Require();
        if (!IsAlive(kPopup.m_iObject))
        {
            Error("CGUIDialogManager::UpdateActivePopups: The popup definition contains NULL pointer! The "
                  "popup is removed from the active popup list.\\n");
            RemoveEntry(kPopup.m_iNumber);
        }
        else if (kPopup.m_iPriority == iHighest)
        {
            Display(kWalk);
        }
        else if (!At(kPopup.m_iObject).m_bIsInvisible)
        {
            PutBehind(kWalk);
        }
    }
}

void CModel::GiveFocusBack()
{
    const int iCurrent = GetCurrent();
    if (IsAlive(m_iRememberedFocus) && iCurrent >= 0 && IsUnder(m_iRememberedFocus, iCurrent))
    {
        RequestFocus(m_iRememberedFocus);
        m_iRememberedFocus = -1;
    }
}

/** Behind a hook: what the hook listed in the place of the entry is another popup's. */
void CModel::RequireEntryOf(const CWalk& kWalk, int iObject) const
{
    if (AliveOrNone(kWalk.Require().m_iObject) != AliveOrNone(iObject))
    {
        throw 0;
    }
}

void CModel::Display(const CWalk& kWalk)
{
    const ActivePopup_t kPopup = kWalk.Require();
    const int iObject = kPopup.m_iObject;
    if (At(iObject).m_iParent >= 0)
    {
        Raise(iObject);
    }
    else
    {
        Attach(iObject, 0);
    }
    const bool bWasInvisible = At(iObject).m_bIsInvisible;
    Hide(iObject, false);
    StartTimer(kPopup.m_uiTime, kPopup.m_iNumber);
    const int iID = At(iObject).m_iID;
    if (bWasInvisible)
    {
        Hook(ON_POPUP_ACTIVATION, NameOfObject(iObject));
        RequireEntryOf(kWalk, iObject);
    }
    Debug("CGUIDialogManager::UpdateActivePopups: Popup with id " + std::to_string(iID) + " with priority " +
          std::to_string(kPopup.m_iPriority) + " is activated with a display time of " +
          std::to_string(kPopup.m_uiTime) + " ms.\\n");
}

void CModel::PutBehind(const CWalk& kWalk)
{
    const ActivePopup_t kPopup = kWalk.Require();
    const int iID = At(kPopup.m_iObject).m_iID;
    Hide(kPopup.m_iObject, true);
    StopTimer(kPopup.m_iNumber);
    Hook(ON_POPUP_DEACTIVATION, NameOfObject(kPopup.m_iObject));
    RequireEntryOf(kWalk, kPopup.m_iObject);
    Debug("CGUIDialogManager::UpdateActivePopups: Popup with id " + std::to_string(iID) + " with priority " +
          std::to_string(kPopup.m_iPriority) +
          " is deactivated, because popups with hiher priority are active.\\n");
}

std::string CModel::Arbitrate()
{
    UpdateActivePopups();
    return "";
}

// --- What the application does ------------------------------------------------------------------------

std::string CModel::Build(const Shape_t& kShape, int iID, int iParent)
{
    const int iObject = BuildShape(kShape);
    At(iObject).m_iID = iID;
    if (iParent >= 0)
    {
        Attach(iObject, At(iParent).m_bIsComposite ? iParent : 0);
    }
    return "";
}

std::string CModel::Delete(int iObject)
{
    Destroy(iObject);
    return "";
}

std::string CModel::Focus(int iObject)
{
    return NameOfFlag(RequestFocus(iObject));
}

std::string CModel::FocusAny(int iObject)
{
    return NameOfFlag(FocusFirst(iObject));
}

std::string CModel::SetInvisible(int iObject, bool bInvisible)
{
    Hide(iObject, bInvisible);
    return "";
}

std::string CModel::SetFocusable(int iObject, bool bFocusable)
{
    At(iObject).m_bIsFocusable = bFocusable;
    CheckFocus();
    return "";
}

std::string CModel::SetParent(int iObject, int iParent)
{
    if (iParent >= 0 && (!At(iParent).m_bIsComposite || iParent == iObject || IsUnder(iParent, iObject)))
    {
        return "refused";
    }
    Attach(iObject, iParent);
    return "";
}

std::string CModel::SetID(int iObject, int iID)
{
    At(iObject).m_iID = iID;
    return "";
}

std::string CModel::Raise(int iObject)
{
    if (At(iObject).m_iParent >= 0)
    {
        Attach(iObject, At(iObject).m_iParent);
    }
    return "";
}

std::string CModel::SetFile(const std::string& kPath, int iShape)
{
    m_kFiles.erase(std::remove_if(m_kFiles.begin(), m_kFiles.end(),
                                  [&kPath](const File_t& kFile) { return kFile.m_kPath == kPath; }),
                   m_kFiles.end());
    if (iShape >= 0)
    {
        m_kFiles.push_back({kPath, iShape});
    }
    return "";
}

std::string CModel::SetDialogCreator(int iID, int iShape, ECreation eCreation, bool bAllowDeletion,
                                     bool bRecoverFocus)
{
    m_kDialogCreators.insert(m_kDialogCreators.begin(),
                             {iID, iShape, eCreation, bAllowDeletion, bRecoverFocus});
    return "";
}

std::string CModel::SetPopupCreator(int iID, int iShape, ECreation eCreation)
{
    m_kPopupCreators.insert(m_kPopupCreators.begin(), {iID, iShape, eCreation, true, true});
    return "";
}

std::string CModel::Veto(int iID, bool bVeto)
{
    m_kVetoes.erase(std::remove(m_kVetoes.begin(), m_kVetoes.end(), iID), m_kVetoes.end());
    if (bVeto)
    {
        m_kVetoes.push_back(iID);
    }
    return "";
}

std::string CModel::FailLoad(unsigned int uiLoad, int iHow)
{
    m_kLoadFailures.push_back({m_uiLoads + uiLoad, iHow});
    return "";
}

std::string CModel::FailHook(unsigned int uiCall, int iHow)
{
    m_kHookFailure = {m_uiHooks + uiCall, iHow};
    return "";
}

std::string CModel::ThrowInHook(int iHook, int iHow)
{
    m_kInHooks.push_back({iHook, iHow, Operation_t()});
    return "";
}

std::string CModel::DoInHook(int iHook, const Operation_t& kInner)
{
    m_kInHooks.push_back({iHook, 0, kInner});
    return "";
}

// --- The state as text --------------------------------------------------------------------------------

std::string CModel::PrintDescription(const Description_t& kDialog) const
{
    return "after " + NameOfAction(kDialog.m_iAction) + (kDialog.m_bAllowDeletion ? "" : ", no deletion") +
           (kDialog.m_bRecoverFocus ? "" : ", no recovery");
}

std::string CModel::PrintActivePopup(const ActivePopup_t& kPopup) const
{
    const bool bIsAlive = IsAlive(kPopup.m_iObject);
    const int iID = bIsAlive ? At(kPopup.m_iObject).m_iID : 0;
    std::string kText = bIsAlive ? (iID != 0 ? NameOf(iID) : "-") : "gone";
    kText += " " + PrintSettings(kPopup.m_iPriority, kPopup.m_uiTime, kPopup.m_bDeleteOnClose);
    if (bIsAlive)
    {
        kText += At(kPopup.m_iObject).m_bIsInvisible ? ", hidden" : ", shown";
        kText += IsUnder(kPopup.m_iObject, 0) ? "" : ", detached";
    }
    for (const Callback_t& kCallback : m_kCallbacks)
    {
        if (kCallback.m_iPopup == kPopup.m_iNumber)
        {
            kText += ", " + std::to_string(GetTimeUntil(kCallback)) + " ms left";
        }
    }
    return kText;
}

std::string CModel::PrintTree(int iParent, const std::string& kIndent) const
{
    std::string kText;
    for (const int iChild : At(iParent).m_kChildren)
    {
        const Object_t& kChild = At(iChild);
        kText += kIndent + (kChild.m_iID != 0 ? NameOf(kChild.m_iID) : "-") +
                 (kChild.m_bIsInvisible ? " invisible" : "");
        kText += m_iFocus == iChild ? " focussed" : (kChild.m_bIsFocusable ? " focusable" : "");
        kText += "\n" + PrintTree(iChild, kIndent + "  ");
    }
    return kText;
}

std::string CModel::GetState()
{
    const Description_t& kCurrent = m_kCurrent;
    const bool bIsNone = kCurrent.m_iID == 0 && kCurrent.m_iAction == ciNothing &&
                         kCurrent.m_bAllowDeletion && kCurrent.m_bRecoverFocus;
    std::string kText = "current: " + (kCurrent.m_iID != 0 ? NameOf(kCurrent.m_iID) : "none") +
                        (bIsNone ? "" : " " + PrintDescription(kCurrent)) + "\n";
    for (const Entry_t& kEntry : m_kHistory)
    {
        kText += "history: " + NameOf(kEntry.m_kDialog.m_iID) + " " + NameOfAction(kEntry.m_iAction) +
                 (kEntry.m_iFocus != 0 ? " focus " + NameOf(kEntry.m_iFocus) : "") + " (" +
                 PrintDescription(kEntry.m_kDialog) + ")\n";
    }
    for (const Dialog_t& kDialog : m_kDialogs)
    {
        kText += "dialog: " + NameOf(kDialog.m_iID) + " \"" + kDialog.m_kPath + "\"\n";
    }
    for (const Popup_t& kPopup : m_kPopups)
    {
        kText += "popup: " + NameOf(kPopup.m_iID) + " " +
                 PrintSettings(kPopup.m_iPriority, kPopup.m_uiTime, kPopup.m_bDeleteOnClose) + ", \"" +
                 kPopup.m_kPath + "\"\n";
    }
    for (const ActivePopup_t& kPopup : m_kActive)
    {
        kText += "active: " + PrintActivePopup(kPopup) + "\n";
    }
    if (IsAlive(m_iRememberedFocus))
    {
        const int iID = At(m_iRememberedFocus).m_iID;
        kText += "remembered: " + (iID != 0 ? NameOf(iID) : "-") + "\n";
    }
    kText += m_uiDynamicIDs > 0 ? "dynamic:" : "";
    for (unsigned int uiID = 0; uiID < m_uiDynamicIDs; ++uiID)
    {
        kText += " " + std::to_string(m_iDynamicID);
    }
    kText += m_uiDynamicIDs > 0 ? "\n" : "";
    if (m_iFocus >= 0)
    {
        kText += "focus: " + (At(m_iFocus).m_iID != 0 ? NameOf(At(m_iFocus).m_iID) : "-") + "\n";
    }
    const std::string kTree = PrintTree(0, "  ");
    kText += kTree.empty() ? "" : "tree:\n" + kTree;
    for (const int iObject : GetObjects())
    {
        const Object_t& kObject = At(iObject);
        kText += "object " + std::to_string(iObject) + " " + NameOf(kObject.m_iID) + " under " +
                 std::to_string(kObject.m_iParent) + " " +
                 NameOfFlags(kObject.m_bIsInvisible, kObject.m_bIsFocusable) + "\n";
    }
    return kText;
}
