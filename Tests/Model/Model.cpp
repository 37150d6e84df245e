// SPDX-License-Identifier: MIT
#include "Tests/Model/Model.h"

#include "Tests/Model/ModelTexts.h"

#include <algorithm>
#include <stdexcept>

namespace
{
const char* const cpcForgotten =
    "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\\n";

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
} // namespace

CModel::CModel(unsigned int uiTime, int iFirstDynamicID) : m_uiTime(uiTime), m_iDynamicID(iFirstDynamicID) {}

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

/** One pass: the most overdue one first, each one at most once. */
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

void CModel::Hook(int iHook, const std::string& kArguments, const std::function<std::string()>& kBody)
{
    const std::size_t uiEvent = m_kEvents.size();
    Log(std::string(NameOfModelHook(iHook)) + "(" + kArguments + ")");
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
    catch (const EndlessWayBack_t&)
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
