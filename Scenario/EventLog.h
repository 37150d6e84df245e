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

    /** Adds an event at the end.
     *  @param kText what happened; it may end with its line break, as the texts of trace entries do
     *  @param kPlace where it happened, shown behind the text
     *  @return the event's ticket
     */
    Ticket_t Add(EEventKind eKind, const std::string& kText, const std::string& kPlace = std::string());

    /** Appends text to an event; one that was taken meanwhile is left alone. */
    void Amend(Ticket_t uiTicket, const std::string& kText);

    /** @return all events in order, each on one line, with every line break as the two characters \n; they
     *          leave the log
     */
    std::vector<std::string> Take();

    /** @return the events of one kind, likewise; they leave the log, the others stay */
    std::vector<std::string> Take(EEventKind eKind);

    /** @return all events in order, as one reads them: without the line break that ends the text; other line
     *          breaks stay; they leave the log
     */
    std::vector<std::string> TakeReadable();

    /** Drops all events. */
    void Clear() { m_kEvents.clear(); }

private:
    struct Event_t
    {
        Ticket_t m_uiTicket;
        EEventKind m_eKind;
        std::string m_kText;
        std::string m_kPlace;
    };

    static std::string GetLine(const Event_t& kEvent);

    std::vector<Event_t> m_kEvents;
    Ticket_t m_uiNextTicket = 0;
};

#endif
