// SPDX-License-Identifier: MIT
#include "Simulator/Replay/FieldReplay.h"

#include "Core/GUITimer.h"
#include "Inspection/InspectionLink.h"
#include "Inspection/Viewer/InspectionReader.h"
#include "Simulator/SimulationPlayer.h"
#include "Simulator/StartedApplication.h"

#include <vector>

namespace
{
constexpr eC_UInt cuiMostMemory = 1U << 20U;

/** A line of a log. */
struct LogLine_t
{
    std::string m_kText;
    InspectedLine_t m_kLine;
    eC_UInt m_uiNumber;
};

std::string At(eC_UInt uiNumber, const std::string& kWhat)
{
    return "line " + std::to_string(uiNumber) + ": " + kWhat;
}

/** @return what makes a line unusable at its place in a log, or the empty string */
std::string FindFault(const LogLine_t& kLine)
{
    const eC_Bool bIsStart = kLine.m_kLine.m_eType == LINE_START;
    if (bIsStart != (kLine.m_uiNumber == 1))
    {
        return bIsStart ? "the device was started again: give each run a log of its own"
                        : "expected a line of the type start; the device must record from its start";
    }
    if (kLine.m_kLine.m_uiDropped > 0)
    {
        return "the device dropped " + std::to_string(kLine.m_kLine.m_uiDropped) +
               " lines: give its channel more room";
    }
    if (bIsStart && (kLine.m_kLine.m_uiMemory < CInspectionLink::cuiLeastMemory ||
                     kLine.m_kLine.m_uiMemory > cuiMostMemory))
    {
        return "memory: expected a number from " + std::to_string(CInspectionLink::cuiLeastMemory) + " to " +
               std::to_string(cuiMostMemory) + ", found " + std::to_string(kLine.m_kLine.m_uiMemory);
    }
    return std::string();
}

/** Reads a log; a last line without line break is left out. @return what is wrong, or the empty string */
std::string ReadLog(const std::string& kLog, std::vector<LogLine_t>& kLinesOUT)
{
    std::size_t uiBegin = 0;
    for (std::size_t uiEnd = kLog.find('\n'); uiEnd != std::string::npos; uiEnd = kLog.find('\n', uiBegin))
    {
        LogLine_t kLine;
        kLine.m_kText = kLog.substr(uiBegin, uiEnd - uiBegin);
        kLine.m_uiNumber = static_cast<eC_UInt>(kLinesOUT.size()) + 1;
        std::string kFault = ReadInspectionLine(kLine.m_kText, kLine.m_kLine);
        kFault = kFault.empty() ? FindFault(kLine) : kFault;
        if (!kFault.empty())
        {
            return At(kLine.m_uiNumber, kFault);
        }
        kLinesOUT.push_back(kLine);
        uiBegin = uiEnd + 1;
    }
    return kLinesOUT.empty() ? "expected lines of an inspection, found none" : std::string();
}

/** @return true for lines that are the same wherever the application runs */
eC_Bool IsCompared(const InspectedLine_t& kLine)
{
    return (kLine.m_eType == LINE_TRACE && kLine.m_kHazard.empty()) ||
           (kLine.m_eType == LINE_STATE && kLine.m_ePart != PART_HEAP && kLine.m_ePart != PART_HOOKS);
}

/** Where the sources were when they were compiled is no part of a run.
 *  @return the line with the name of its source file alone
 */
std::string ShortenFile(const std::string& kText)
{
    // Inside a text the quotes have a backslash before them.
    static const std::string s_kKey = "\"file\":\"";
    const std::size_t uiKey = kText.find(s_kKey);
    if (uiKey == std::string::npos)
    {
        return kText;
    }
    const std::size_t uiBegin = uiKey + s_kKey.size();
    const std::size_t uiSlash = kText.rfind('/', kText.find('"', uiBegin));
    return uiSlash == std::string::npos || uiSlash < uiBegin
               ? kText
               : kText.substr(0, uiBegin) + kText.substr(uiSlash + 1);
}

/** Compares what the replay sends with the log. */
class CComparison : public CInspectionChannel
{
public:
    CComparison(const std::vector<LogLine_t>& kLog, const std::function<void(const std::string&)>& fnWriter)
        : m_kLog(kLog), m_fnWriter(fnWriter)
    {
    }

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        const std::string kText(pcLine, uiLength - 1);
        InspectedLine_t kLine;
        ReadInspectionLine(kText, kLine);
        if (m_fnWriter)
        {
            m_fnWriter(kText);
        }
        if (IsCompared(kLine))
        {
            Compare(kText);
        }
        return true;
    }

    eC_UInt Read(eC_Char*, eC_UInt) override { return 0; }

    /** Nothing of the log may be left before this place. */
    void GoOnTo(std::size_t uiPlace)
    {
        GoToNext();
        if (m_uiPlace < uiPlace && m_kError.empty())
        {
            m_kError = At(m_kLog[m_uiPlace].m_uiNumber, "the device sent this, and the replay nothing");
        }
    }

    eC_UInt GetCompared() const { return m_uiCompared; }
    const std::string& GetError() const { return m_kError; }

private:
    void GoToNext()
    {
        while (m_uiPlace < m_kLog.size() && !IsCompared(m_kLog[m_uiPlace].m_kLine))
        {
            ++m_uiPlace;
        }
    }

    void Compare(const std::string& kText)
    {
        GoToNext();
        // A log may end anywhere.
        if (m_uiPlace == m_kLog.size() || !m_kError.empty())
        {
            return;
        }
        if (ShortenFile(m_kLog[m_uiPlace].m_kText) != ShortenFile(kText))
        {
            m_kError = At(m_kLog[m_uiPlace].m_uiNumber, "the device sent this, but the replay " + kText);
            return;
        }
        ++m_uiPlace;
        ++m_uiCompared;
    }

    const std::vector<LogLine_t>& m_kLog;
    const std::function<void(const std::string&)>& m_fnWriter;
    std::size_t m_uiPlace = 0;
    eC_UInt m_uiCompared = 0;
    std::string m_kError;
};

/** The application, with everything around it that the device has. */
class CReplay
{
public:
    CReplay(const std::vector<LogLine_t>& kLog, CSimulatedApplication& kApplication,
            const std::function<void(const std::string&)>& fnWriter)
        : m_kLog(kLog),
          m_kClock(kLog.front().m_kLine.m_uiTime),
          m_kStarted(kApplication),
          m_kComparison(kLog, fnWriter),
          m_kMemory(kLog.front().m_kLine.m_uiMemory, '\0'),
          m_kLink(kApplication.GetManager(), m_kComparison, m_kMemory.data(),
                  static_cast<eC_UInt>(m_kMemory.size())),
          m_kPlayer(kApplication, m_kClock, m_kEvents)
    {
    }

    FieldReplay_t Run()
    {
        FieldReplay_t kResult;
        for (std::size_t uiPlace = 0; uiPlace < m_kLog.size() && kResult.m_kError.empty(); ++uiPlace)
        {
            const InspectedLine_t& kLine = m_kLog[uiPlace].m_kLine;
            if (kLine.m_eType == LINE_TURN || kLine.m_eType == LINE_INPUT)
            {
                GoOnTo(kLine.m_uiTime, uiPlace);
            }
            if (kLine.m_eType == LINE_INPUT)
            {
                Execute(kLine.m_kText);
                ++kResult.m_uiInputs;
            }
            kResult.m_kError = m_kComparison.GetError();
        }
        m_kLink.Run();
        m_kComparison.GoOnTo(m_kLog.size());
        kResult.m_kError = m_kComparison.GetError();
        kResult.m_uiCompared = m_kComparison.GetCompared();
        return kResult;
    }

private:
    /** Ends the turn and begins the next, unless it is the same one. */
    void GoOnTo(eC_UInt uiTime, std::size_t uiPlace)
    {
        if (uiTime != m_kClock.GetTime())
        {
            m_kLink.Run();
            m_kComparison.GoOnTo(uiPlace);
            m_kClock.Set(uiTime);
            GETTIMER.ProcessCallbacks();
        }
    }

    void Execute(const std::string& kInput)
    {
        if (kInput == "state")
        {
            m_kLink.SendAll();
            return;
        }
        try
        {
            m_kPlayer.Run(kInput);
        }
        catch (const ScenarioError_t&)
        {
            // The device has refused it as well; what is refused is recorded, and changes nothing.
        }
    }

    const std::vector<LogLine_t>& m_kLog;
    CTraceSinkScope m_kSilence{nullptr};
    CSteppedClock m_kClock;
    CStartedApplication m_kStarted;
    CComparison m_kComparison;
    std::string m_kMemory;
    CInspectionLink m_kLink;
    CEventLog m_kEvents;
    CSimulationPlayer m_kPlayer;
};
} // namespace

FieldReplay_t ReplayFieldLog(const std::string& kLog, CSimulatedApplication& kApplication,
                             const std::function<void(const std::string&)>& fnWriter)
{
    std::vector<LogLine_t> kLines;
    FieldReplay_t kResult;
    kResult.m_kError = ReadLog(kLog, kLines);
    return kResult.m_kError.empty() ? CReplay(kLines, kApplication, fnWriter).Run() : kResult;
}
