// SPDX-License-Identifier: MIT
#ifndef SCENARIO_TRACERECORDER_H
#define SCENARIO_TRACERECORDER_H

/** @file
 *  A trace sink that keeps every entry.
 */

#include "Core/GUITrace.h"
#include "Scenario/EventLog.h"

#include <string>
#include <vector>

/** The four texts of one trace entry. */
struct TraceEntry_t
{
    std::string m_kPrefix;  ///< "ERROR: ", "WARNING: ", "DEBUG: " or "INFO: "
    std::string m_kMessage; ///< with its line breaks
    std::string m_kFile;    ///< empty unless the entry is an ERROR
    std::string m_kLine;    ///< empty unless the entry is an ERROR
};

/** @return the entry on one line: prefix and message with line breaks as \n, then " @file:line" if the entry
 *          has a file or a line. The file is shortened to its path from Source, Loader, TestSupport,
 *          Examples or Tests on. A positive line number is shown as #, because lines move with every edit;
 *          anything else is shown as it is.
 */
std::string FormatTraceLine(const TraceEntry_t& kEntry);

/** Adds an entry to a log: prefix, message, and the place as FormatTraceLine writes it. */
void AddTraceEvent(CEventLog& kEventLog, const TraceEntry_t& kEntry);

/** Replaces the sink of the trace as long as it exists, and keeps all entries. */
class CTraceRecorder : public CGUITraceSink
{
public:
    /** Becomes the sink of the trace.
     *  @param kEventLog receives every entry; not owned, must outlive the recorder
     */
    explicit CTraceRecorder(CEventLog& kEventLog);

    CTraceRecorder(const CTraceRecorder&) = delete;
    CTraceRecorder& operator=(const CTraceRecorder&) = delete;

    /** Restores the sink that was set before. */
    ~CTraceRecorder() override;

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;

    /** @return all entries since construction or the last Clear */
    const std::vector<TraceEntry_t>& GetEntries() const { return m_kEntries; }

    /** Forgets the entries; the event log keeps its lines. */
    void Clear() { m_kEntries.clear(); }

private:
    CEventLog& m_kEventLog;
    CGUITraceSink* m_pkPreviousSink;
    std::vector<TraceEntry_t> m_kEntries;
};

#endif
