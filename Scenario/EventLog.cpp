// SPDX-License-Identifier: MIT
#include "Scenario/EventLog.h"

#include "Scenario/TextLines.h"

CEventLog::Ticket_t CEventLog::Add(EEventKind eKind, const std::string& kText, const std::string& kPlace)
{
    m_kEvents.push_back({m_uiNextTicket, eKind, kText, kPlace});
    return m_uiNextTicket++;
}

void CEventLog::Amend(Ticket_t uiTicket, const std::string& kText)
{
    for (Event_t& kEvent : m_kEvents)
    {
        if (kEvent.m_uiTicket == uiTicket)
        {
            kEvent.m_kText += kText;
        }
    }
}

std::vector<std::string> CEventLog::Take()
{
    std::vector<std::string> kTexts;
    for (const Event_t& kEvent : m_kEvents)
    {
        kTexts.push_back(GetLine(kEvent));
    }
    m_kEvents.clear();
    return kTexts;
}

std::vector<std::string> CEventLog::Take(EEventKind eKind)
{
    std::vector<std::string> kTexts;
    std::vector<Event_t> kOthers;
    for (const Event_t& kEvent : m_kEvents)
    {
        if (kEvent.m_eKind == eKind)
        {
            kTexts.push_back(GetLine(kEvent));
        }
        else
        {
            kOthers.push_back(kEvent);
        }
    }
    m_kEvents.swap(kOthers);
    return kTexts;
}

std::vector<std::string> CEventLog::TakeReadable()
{
    std::vector<std::string> kTexts;
    for (Event_t& kEvent : m_kEvents)
    {
        if (!kEvent.m_kText.empty() && kEvent.m_kText.back() == '\n')
        {
            kEvent.m_kText.pop_back();
        }
        kTexts.push_back(kEvent.m_kText + kEvent.m_kPlace);
    }
    m_kEvents.clear();
    return kTexts;
}

std::string CEventLog::GetLine(const Event_t& kEvent)
{
    return EscapeLineBreaks(kEvent.m_kText) + kEvent.m_kPlace;
}
