// SPDX-License-Identifier: MIT
#include "Inspection/InspectionTurns.h"

#include "Core/GUITimer.h"
#include "Inspection/InspectionLink.h"

namespace
{
// The timer takes a plain function, so its time cannot be a member.
eC_UInt uiTimeOfTurn = 0;

eC_UInt GetTimeOfTurn()
{
    return uiTimeOfTurn;
}
} // namespace

void CRecordedInput::OnLine(const eC_Char* pcLine)
{
    m_kLink.RecordInput(pcLine);
}

CInspectionTurns::CInspectionTurns(eC_UInt uiTime)
{
    uiTimeOfTurn = uiTime;
    GETTIMER.SetClock(&GetTimeOfTurn);
}

CInspectionTurns::~CInspectionTurns()
{
    GETTIMER.SetClock(nullptr);
}

void CInspectionTurns::Record(CInspectionLink& kLink)
{
    m_pkLink = &kLink;
    kLink.RecordStart();
}

eC_Bool CInspectionTurns::Begin(eC_UInt uiTime)
{
    if (uiTime == uiTimeOfTurn)
    {
        return false;
    }
    uiTimeOfTurn = uiTime;
    if (m_pkLink != nullptr && GETTIMER.GetTimeUntilNextCallback() == 0)
    {
        m_pkLink->RecordTurn();
    }
    GETTIMER.ProcessCallbacks();
    return true;
}
