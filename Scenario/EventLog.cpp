#include "Scenario/EventLog.h"

CEventLog::Ticket_t CEventLog::Add(EEventKind eKind, const std::string& kText)
{
    m_kEvents.push_back({m_uiNextTicket, eKind, kText});
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
        kTexts.push_back(kEvent.m_kText);
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
            kTexts.push_back(kEvent.m_kText);
        }
        else
        {
            kOthers.push_back(kEvent);
        }
    }
    m_kEvents.swap(kOthers);
    return kTexts;
}
