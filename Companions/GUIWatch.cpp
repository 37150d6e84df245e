// SPDX-License-Identifier: MIT
#include "Companions/GUIWatch.h"

#include "Companions/TraceText.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"

namespace
{
// Stays at the greatest value.
eC_UInt AddUp(eC_UInt uiSum, eC_UInt uiMore)
{
    constexpr eC_UInt cuiMost = 0xFFFFFFFFU;
    return uiMore < cuiMost - uiSum ? uiSum + uiMore : cuiMost;
}
} // namespace

CGUIWatch::CMeasurement::CMeasurement(CGUIWatch* pkWatch, EHook eHook, ObjectHandle_t eID)
    : m_pkWatch(pkWatch), m_eID(eID), m_eHook(eHook)
{
    if (m_pkWatch != nullptr)
    {
        m_pkOuter = m_pkWatch->m_pkInnermost;
        m_pkWatch->m_pkInnermost = this;
        m_uiStart = m_pkWatch->ReadClock();
    }
}

CGUIWatch::CMeasurement::~CMeasurement()
{
    if (m_pkWatch == nullptr)
    {
        return;
    }
    const eC_UInt uiTime = m_pkWatch->ReadClock() - m_uiStart;
    m_pkWatch->m_pkInnermost = m_pkOuter;
    if (m_pkOuter != nullptr)
    {
        m_pkOuter->m_uiNested += uiTime;
    }
    m_pkWatch->Note(m_eHook, m_eID, uiTime - m_uiNested);
}

void CGUIWatch::SetLimit(eC_UInt uiLimit, Report_t pfnReport, void* pContext)
{
    m_uiLimit = uiLimit;
    m_pfnReport = pfnReport;
    m_pContext = pContext;
}

eC_Bool CGUIWatch::GetFigures(eC_UInt uiPosition, Figures_t& kFiguresOUT) const
{
    // The places are taken in order and never given back.
    if (uiPosition >= m_uiNOFPlaces || m_pkPlaces[uiPosition].m_uiCalls == 0)
    {
        return false;
    }
    kFiguresOUT = m_pkPlaces[uiPosition];
    return true;
}

void CGUIWatch::Clear()
{
    for (eC_UInt uiPlace = 0; uiPlace < m_uiNOFPlaces; ++uiPlace)
    {
        m_pkPlaces[uiPlace] = Figures_t();
    }
}

const eC_Char* CGUIWatch::GetHookName(EHook eHook)
{
    static const eC_Char* const apcNames[] = {
        "CreateDialogImpl",    "OnDialogAdded",         "OnDialogActivation",   "OnDialogDeactivation",
        "OnDialogDeletion",    "OnAfterDialogDeletion", "OnLastDialogDeletion", "OnPopupActivation",
        "OnPopupDeactivation", "CreatePopupImpl"};
    return apcNames[eHook];
}

eC_UInt CGUIWatch::ReadClock() const
{
    return m_pfnClock != nullptr ? m_pfnClock() : GETTIMER.GetTime();
}

void CGUIWatch::Note(EHook eHook, ObjectHandle_t eID, eC_UInt uiTime)
{
    Figures_t* const pkPlace = FindPlace(eHook, eID, uiTime);
    if (pkPlace != nullptr)
    {
        pkPlace->m_uiCalls = AddUp(pkPlace->m_uiCalls, 1);
        pkPlace->m_uiLongest = uiTime > pkPlace->m_uiLongest ? uiTime : pkPlace->m_uiLongest;
        pkPlace->m_uiTotal = AddUp(pkPlace->m_uiTotal, uiTime);
    }
    if (uiTime > m_uiLimit)
    {
        Report(eHook, eID, uiTime);
    }
}

// The pair's place, else a free one, else the one with the shortest longest time if the pair took longer.
CGUIWatch::Figures_t* CGUIWatch::FindPlace(EHook eHook, ObjectHandle_t eID, eC_UInt uiTime)
{
    Figures_t* pkShortest = m_pkPlaces;
    Figures_t* pkPlace = m_pkPlaces;
    for (; pkPlace != m_pkPlaces + m_uiNOFPlaces && pkPlace->m_uiCalls != 0; ++pkPlace)
    {
        if (pkPlace->m_eHook == eHook && pkPlace->m_eID == eID)
        {
            return pkPlace;
        }
        pkShortest = pkPlace->m_uiLongest < pkShortest->m_uiLongest ? pkPlace : pkShortest;
    }
    if (pkPlace == m_pkPlaces + m_uiNOFPlaces)
    {
        if (uiTime <= pkShortest->m_uiLongest)
        {
            return nullptr;
        }
        pkPlace = pkShortest;
    }
    *pkPlace = Figures_t();
    pkPlace->m_eHook = eHook;
    pkPlace->m_eID = eID;
    return pkPlace;
}

// Called by a destructor, possibly because the hook has thrown: nothing may leave it.
void CGUIWatch::Report(EHook eHook, ObjectHandle_t eID, eC_UInt uiTime) const
{
    try
    {
        GUILOG(GUI_TRACE_WARNING, TraceText("CGUIWatch::Report: For object with ID ", eID, " the hook ") +
                                      GetHookName(eHook) + " took " + eC_String(uiTime) + ".\n");
        if (m_pfnReport != nullptr)
        {
            m_pfnReport(m_pContext, eHook, eID, uiTime);
        }
    }
    catch (...)
    {
        // The hook's outcome is not this one's to change.
        return;
    }
}
