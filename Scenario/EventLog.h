#ifndef SCENARIO_EVENTLOG_H
#define SCENARIO_EVENTLOG_H

/** @file
 *  What happened, in order: hook calls and trace entries as text.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <vector>

/** Where an event comes from. */
enum EEventKind : unsigned char
{
    EVENT_HOOK,  ///< a hook was called
    EVENT_TRACE, ///< an entry was logged
    EVENT_NOTE   ///< something that a test or a script did
};

/** Collects events as text until they are taken.
 *
 *  Recorders that write to one log give one sequence, in which the order of hooks relative to trace
 *  entries shows; recorders that write to logs of their own keep them apart.
 */
class CEventLog
{
public:
    /** Names an event for Amend, also after other events were added. */
    using Ticket_t = std::size_t;

    /** Adds an event at the end. @return the event's ticket */
    Ticket_t Add(EEventKind eKind, const std::string& kText);

    /** Appends text to an event; one that was taken meanwhile is left alone. */
    void Amend(Ticket_t uiTicket, const std::string& kText);

    /** @return all events in order; they leave the log */
    std::vector<std::string> Take();

    /** @return the events of one kind in order; they leave the log, the others stay */
    std::vector<std::string> Take(EEventKind eKind);

    /** Drops all events. */
    void Clear() { m_kEvents.clear(); }

private:
    struct Event_t
    {
        Ticket_t m_uiTicket;
        EEventKind m_eKind;
        std::string m_kText;
    };

    std::vector<Event_t> m_kEvents;
    Ticket_t m_uiNextTicket = 0;
};

#endif
