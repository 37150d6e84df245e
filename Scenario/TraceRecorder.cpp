// SPDX-License-Identifier: MIT
#include "Scenario/TraceRecorder.h"

#include "Scenario/TextLines.h"

namespace
{
std::string ShortenPath(const std::string& kPath)
{
    for (const char* pcDirectory :
         {"Source/", "Loader/", "Companions/", "TestSupport/", "Examples/", "Tests/"})
    {
        const std::size_t uiBegin = kPath.rfind(pcDirectory);
        if (uiBegin != std::string::npos && (uiBegin == 0 || kPath[uiBegin - 1] == '/'))
        {
            return kPath.substr(uiBegin);
        }
    }
    return kPath;
}

bool IsPositiveNumber(const std::string& kText)
{
    return !kText.empty() && kText.front() != '0' &&
           kText.find_first_not_of("0123456789") == std::string::npos;
}

std::string FormatPlace(const TraceEntry_t& kEntry)
{
    if (kEntry.m_kFile.empty() && kEntry.m_kLine.empty())
    {
        return std::string();
    }
    return " @" + ShortenPath(kEntry.m_kFile) + ":" +
           (IsPositiveNumber(kEntry.m_kLine) ? "#" : kEntry.m_kLine);
}
} // namespace

std::string FormatTraceLine(const TraceEntry_t& kEntry)
{
    return EscapeLineBreaks(kEntry.m_kPrefix + kEntry.m_kMessage) + FormatPlace(kEntry);
}

void AddTraceEvent(CEventLog& kEventLog, const TraceEntry_t& kEntry)
{
    kEventLog.Add(EVENT_TRACE, kEntry.m_kPrefix + kEntry.m_kMessage, FormatPlace(kEntry));
}

CTraceRecorder::CTraceRecorder(CEventLog& kEventLog)
    : m_kEventLog(kEventLog), m_pkPreviousSink(CGUITrace::GetInstance().GetSink())
{
    CGUITrace::GetInstance().SetSink(this);
}

CTraceRecorder::~CTraceRecorder()
{
    CGUITrace::GetInstance().SetSink(m_pkPreviousSink);
}

void CTraceRecorder::Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                           const eC_String& kLine)
{
    m_kEntries.push_back({kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()});
    AddTraceEvent(m_kEventLog, m_kEntries.back());
}
