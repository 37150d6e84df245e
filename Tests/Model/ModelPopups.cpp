// SPDX-License-Identifier: MIT
#include "Tests/Model/Model.h"
#include "Tests/Model/ModelTexts.h"

#include <algorithm>

/** An iteration over the active popups that hooks may change. It follows the rules of a safe iterator: a
 *  removed entry leaves a gap, and a popup that is listed exactly in that gap takes its place.
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

/** @return the number of the entry at that index, -1 if there is none */
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

/** Called after a hook: an entry that the hook listed in the same place belongs to another popup. */
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
