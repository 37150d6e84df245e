// SPDX-License-Identifier: MIT
#include "Inspection/InspectionTurns.h"

#include "Core/GUITimer.h"
#include "Inspection/InspectionLink.h"

#include <cstring>

namespace
{
// The timer takes a plain function, so its time cannot be a member.
eC_UInt uiTimeOfTurn = 0;

eC_UInt GetTimeOfTurn()
{
    return uiTimeOfTurn;
}
} // namespace

eC_UInt CRecordedInput::Read(eC_Char* pcBytes, eC_UInt uiSize)
{
    // One byte at a time: a line is executed before the next one is recorded.
    const eC_UInt uiRead = uiSize > 0 ? m_kChannel.Read(pcBytes, 1) : 0;
    if (uiRead == 0)
    {
        return 0;
    }
    if (*pcBytes == '\n')
    {
        RecordLine();
        m_uiLength = 0;
    }
    else if (m_uiLength < m_uiSize)
    {
        m_pcMemory[m_uiLength++] = *pcBytes;
    }
    return uiRead;
}

void CRecordedInput::RecordLine()
{
    if (m_pkLink == nullptr || m_uiLength >= m_uiSize)
    {
        return;
    }
    m_uiLength -= m_uiLength > 0 && m_pcMemory[m_uiLength - 1] == '\r' ? 1U : 0U;
    m_pcMemory[m_uiLength] = '\0';
    const eC_Char* const pcText = m_pcMemory + std::strspn(m_pcMemory, " \t");
    if (*pcText != '\0' && *pcText != '#')
    {
        m_pkLink->RecordInput(pcText);
    }
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
