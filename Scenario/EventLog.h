// SPDX-License-Identifier: MIT
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
    EVENT_NOTE   ///< a test or a script did something
};

/** Collects events as text until they are taken.
 *
 *  Recorders that write to one log give one sequence, which shows the order of hooks and trace entries. With
 *  a log for each recorder they stay apart.
 */
class CEventLog
{
public:
    /** Identifies an event for Amend, even after other events were added. */
    using Ticket_t = std::size_t;

    /** Adds an event at the end.
     *  @param kText what happened; it may end with a line break, like the texts of trace entries
     *  @param kPlace where it happened, shown after the text
     *  @return the event's ticket
     */
    Ticket_t Add(EEventKind eKind, const std::string& kText, const std::string& kPlace = std::string());

    /** Appends text to an event. An event that was taken meanwhile does not change. */
    void Amend(Ticket_t uiTicket, const std::string& kText);

    /** @return all events in order, each on one line, with every line break as the two characters \n; they
     *          are removed from the log
     */
    std::vector<std::string> Take();

    /** @return the events of one kind in the same form; they are removed from the log, the others stay */
    std::vector<std::string> Take(EEventKind eKind);

    /** @return all events in order, for people: without the line break at the end of a text, but with all
     *          others; they are removed from the log
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
