// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogArguments.h"

#include "Companions/TraceText.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUITrace.h"

namespace
{
constexpr eC_UInt cuiHighest = 0xFFFFFFFFU; ///< no dialog has a higher level
} // namespace

/** Ends a switch, also after an exception. */
class CGUIDialogArguments::CSwitch
{
public:
    CSwitch(CGUIDialogArguments& kArguments, Place_t& kArgument, ObjectHandle_t eID)
        : m_kArguments(kArguments),
          m_kArgument(kArgument),
          m_eIDBefore(kArguments.GetManager()->GetCurrentDialogID()),
          m_uiLevelBefore(kArguments.GetManager()->GetHistoryStackSize())
    {
        kArgument.m_eDialogID = eID;
        // A switch inside a hook of this one comes first.
        kArgument.m_uiLevel = ++kArguments.m_uiNOFSwitches;
        kArgument.m_eState = Place_t::SWITCHING;
    }
    CSwitch(const CSwitch&) = delete;
    CSwitch& operator=(const CSwitch&) = delete;
    ~CSwitch()
    {
        --m_kArguments.m_uiNOFSwitches;
        // No hook has told that the dialog is shown: the switch failed, or an earlier listener threw.
        if (m_kArgument.m_eState != Place_t::SWITCHING)
        {
            return;
        }
        const CGUIObservedDialogManager* const pkManager = m_kArguments.GetManager();
        const ObjectHandle_t eID = m_kArgument.m_eDialogID;
        const eC_Bool bIsShown = pkManager->GetCurrentDialogID() == eID &&
                                 (m_eIDBefore != eID || pkManager->GetHistoryStackSize() != m_uiLevelBefore);
        if (bIsShown)
        {
            m_kArguments.NoteNewVisit();
        }
        else
        {
            m_kArguments.Free(m_kArgument);
        }
    }

private:
    CGUIDialogArguments& m_kArguments;
    Place_t& m_kArgument;
    ObjectHandle_t m_eIDBefore;
    eC_UInt m_uiLevelBefore;
};

CGUIDialogArguments::CGUIDialogArguments(CGUIObservedDialogManager& kManager, Place_t* pkPlaces,
                                         eC_UInt uiNOFPlaces, unsigned char* puiValues, std::size_t uiValue)
    : m_pkPlaces(pkPlaces),
      m_uiNOFPlaces(uiNOFPlaces),
      m_puiValues(puiValues),
      m_uiValue(uiValue),
      m_uiLevel(kManager.GetHistoryStackSize()),
      m_eDialogID(kManager.GetCurrentDialogID())
{
    kManager.AddListener(*this);
}

CGUIDialogArguments::~CGUIDialogArguments() = default;

eC_UInt CGUIDialogArguments::GetNOFValues() const
{
    eC_UInt uiNumber = 0;
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        uiNumber += m_pkPlaces[uiPlace].m_eState != Place_t::FREE ? 1U : 0U;
    }
    return uiNumber;
}

// --- Switching and results ---------------------------------------------------------------------------

CGUIObject* CGUIDialogArguments::CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                                              Place_t* pkArgument)
{
    if (pkArgument == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               TraceText("CGUIDialogArguments::CreateDialog: No room for the argument of dialog with ID ",
                         eID, ". The current dialog stays active.\n"));
        return nullptr;
    }
    const CSwitch kSwitch(*this, *pkArgument, eID);
    return GetManager()->CreateDialog(eID, eAction);
}

eC_Bool CGUIDialogArguments::AddDialog(CGUIObject& kDialog, CGUIDialogManager::EOldDialogAction eAction,
                                       eC_Bool bRecoverFocus, Place_t* pkArgument)
{
    const ObjectHandle_t eID = kDialog.GetID();
    if (pkArgument == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               TraceText("CGUIDialogArguments::AddDialog: No room for the argument of dialog with ID ", eID,
                         ". The current dialog stays active.\n"));
        return false;
    }
    if (eID == NO_HANDLE)
    {
        kDialog.SetID(GetManager()->CreateDynamicObjectID());
    }
    const CSwitch kSwitch(*this, *pkArgument, kDialog.GetID());
    GetManager()->AddDialog(&kDialog, eAction, bRecoverFocus);
    return true;
}

eC_Bool CGUIDialogArguments::PrepareResult()
{
    const CGUIDialogManager* const pkManager = GetManager();
    if (pkManager == nullptr || pkManager->GetCurrentDialogID() == NO_HANDLE ||
        pkManager->GetHistoryStackSize() == 0)
    {
        return false;
    }
    Place_t* const pkBefore =
        Find(Place_t::RESULT, pkManager->GetLastDialogID(), pkManager->GetHistoryStackSize() - 1);
    if (pkBefore != nullptr)
    {
        Free(*pkBefore);
    }
    return true;
}

eC_Bool CGUIDialogArguments::SetResult(Place_t* pkResult)
{
    const ObjectHandle_t eDialogID = GetManager()->GetLastDialogID();
    if (pkResult == nullptr)
    {
        GUILOG(GUI_TRACE_ERROR,
               TraceText("CGUIDialogArguments::SetResult: No room for the result for dialog with ID ",
                         eDialogID, ".\n"));
        return false;
    }
    pkResult->m_eDialogID = eDialogID;
    pkResult->m_uiLevel = GetManager()->GetHistoryStackSize() - 1;
    pkResult->m_eState = Place_t::RESULT;
    return true;
}

// --- Places ------------------------------------------------------------------------------------------

void* CGUIDialogArguments::GetValue(const Place_t& kPlace) const
{
    return m_puiValues + static_cast<std::size_t>(&kPlace - m_pkPlaces) * m_uiValue;
}

CGUIDialogArguments::Place_t* CGUIDialogArguments::TakePlace() const
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        if (m_pkPlaces[uiPlace].m_eState == Place_t::FREE)
        {
            m_pkPlaces[uiPlace].m_eState = Place_t::BUSY;
            return &m_pkPlaces[uiPlace];
        }
    }
    return nullptr;
}

CGUIDialogArguments::Place_t* CGUIDialogArguments::Find(Place_t::EState eState, ObjectHandle_t eDialogID,
                                                        eC_UInt uiLevel) const
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        Place_t& kPlace = m_pkPlaces[uiPlace];
        if (kPlace.m_eState == eState && kPlace.m_eDialogID == eDialogID && kPlace.m_uiLevel == uiLevel)
        {
            return &kPlace;
        }
    }
    return nullptr;
}

CGUIDialogArguments::Place_t* CGUIDialogArguments::FindArgument() const
{
    const CGUIDialogManager* const pkManager = GetManager();
    return pkManager != nullptr
               ? Find(Place_t::ARGUMENT, pkManager->GetCurrentDialogID(), pkManager->GetHistoryStackSize())
               : nullptr;
}

CGUIDialogArguments::Place_t* CGUIDialogArguments::FindArgument(ObjectHandle_t eDialogID) const
{
    Place_t* const pkSwitching = FindHighest(Place_t::SWITCHING, eDialogID);
    return pkSwitching != nullptr ? pkSwitching : FindHighest(Place_t::ARGUMENT, eDialogID);
}

CGUIDialogArguments::Place_t* CGUIDialogArguments::FindHighest(Place_t::EState eState,
                                                               ObjectHandle_t eDialogID) const
{
    Place_t* pkFound = nullptr;
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        Place_t& kPlace = m_pkPlaces[uiPlace];
        if (kPlace.m_eState == eState && kPlace.m_eDialogID == eDialogID &&
            (pkFound == nullptr || kPlace.m_uiLevel > pkFound->m_uiLevel))
        {
            pkFound = &kPlace;
        }
    }
    return pkFound;
}

CGUIDialogArguments::Place_t* CGUIDialogArguments::FindResult() const
{
    const CGUIDialogManager* const pkManager = GetManager();
    return pkManager != nullptr
               ? Find(Place_t::RESULT, pkManager->GetCurrentDialogID(), pkManager->GetHistoryStackSize())
               : nullptr;
}

eC_Bool CGUIDialogArguments::IsOf(const Place_t* pkPlace, const void* pType)
{
    if (pkPlace == nullptr)
    {
        return false;
    }
    const ObjectHandle_t eDialogID = pkPlace->m_eDialogID;
    if (pkPlace->m_pType != pType)
    {
        GUILOG(GUI_TRACE_ERROR, TraceText("CGUIDialogArguments::IsOf: The value for dialog with ID ",
                                          eDialogID, " has another type.\n"));
        return false;
    }
    return true;
}

void CGUIDialogArguments::Free(Place_t& kPlace)
{
    // Not free yet: the destructor may store another value.
    kPlace.m_eState = Place_t::BUSY;
    kPlace.m_pfnDestroy(GetValue(kPlace));
    kPlace.m_eState = Place_t::FREE;
}

void CGUIDialogArguments::FreeLevels(Place_t::EState eState, eC_UInt uiFirst, eC_UInt uiLast)
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        Place_t& kPlace = m_pkPlaces[uiPlace];
        if (kPlace.m_eState == eState && kPlace.m_uiLevel >= uiFirst && kPlace.m_uiLevel <= uiLast)
        {
            Free(kPlace);
        }
    }
}

void CGUIDialogArguments::FreeLevels(eC_UInt uiFirst, eC_UInt uiLast)
{
    FreeLevels(Place_t::ARGUMENT, uiFirst, uiLast);
    FreeLevels(Place_t::RESULT, uiFirst, uiLast);
}

void CGUIDialogArguments::FreeAll()
{
    FreeLevels(0, cuiHighest);
}

// --- Following the history ---------------------------------------------------------------------------

void CGUIDialogArguments::NoteNewVisit()
{
    m_uiLevel = GetManager()->GetHistoryStackSize();
    m_eDialogID = GetManager()->GetCurrentDialogID();
    FreeLevels(m_uiLevel, cuiHighest);
    if (m_uiLevel > 0)
    {
        // The predecessor has not taken it, and switches on.
        FreeLevels(Place_t::RESULT, m_uiLevel - 1, m_uiLevel - 1);
    }
    if (Place_t* const pkArgument = FindHighest(Place_t::SWITCHING, m_eDialogID))
    {
        pkArgument->m_uiLevel = m_uiLevel;
        pkArgument->m_eState = Place_t::ARGUMENT;
    }
}

void CGUIDialogArguments::NoteReturn()
{
    m_uiLevel = GetManager()->GetHistoryStackSize();
    m_eDialogID = GetManager()->GetCurrentDialogID();
    FreeLevels(m_uiLevel + 1, cuiHighest);
}

void CGUIDialogArguments::OnDialogAdded(CGUIObject* pDialog)
{
    // An earlier listener may have switched on.
    if (pDialog->GetID() == GetManager()->GetCurrentDialogID())
    {
        NoteNewVisit();
    }
}

void CGUIDialogArguments::OnDialogActivation(CGUIObject* pDialog)
{
    static_cast<void>(pDialog);
    const eC_UInt uiLevel = GetManager()->GetHistoryStackSize();
    const ObjectHandle_t eDialogID = GetManager()->GetCurrentDialogID();
    if (uiLevel < m_uiLevel)
    {
        NoteReturn();
    }
    else if (uiLevel != m_uiLevel || eDialogID != m_eDialogID)
    {
        // It is in the history, so there was no OnDialogAdded.
        NoteNewVisit();
    }
}

void CGUIDialogArguments::OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID)
{
    const eC_UInt uiLevel = GetManager()->GetHistoryStackSize();
    const ObjectHandle_t eDialogID = GetManager()->GetCurrentDialogID();
    if (eNewDialogID == eDialogID)
    {
        // Back is complete, but OnDialogActivation may not have come here.
        if (uiLevel < m_uiLevel)
        {
            NoteReturn();
        }
    }
    else if (uiLevel < m_uiLevel)
    {
        // An entry was removed; the current dialog, if it stays, is that much lower now.
        FreeLevels(uiLevel, m_uiLevel - 1);
        for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
        {
            Place_t& kPlace = m_pkPlaces[uiPlace];
            const eC_Bool bIsOfCurrent =
                kPlace.m_eState != Place_t::SWITCHING && kPlace.m_uiLevel == m_uiLevel;
            kPlace.m_uiLevel = bIsOfCurrent ? uiLevel : kPlace.m_uiLevel;
        }
        m_uiLevel = uiLevel;
    }
    else if (eDeletedDialogID == eDialogID)
    {
        FreeLevels(m_uiLevel, cuiHighest);
    }
}

void CGUIDialogArguments::OnLastDialogDeletion()
{
    if (GetManager()->GetCurrentDialogID() == NO_HANDLE)
    {
        m_uiLevel = GetManager()->GetHistoryStackSize();
        m_eDialogID = NO_HANDLE;
        FreeLevels(m_uiLevel, cuiHighest);
    }
}
