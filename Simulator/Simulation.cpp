// SPDX-License-Identifier: MIT
#include "Simulator/Simulation.h"

#include "Inspection/InspectionLink.h"
#include "Scenario/Names.h"
#include "Simulator/SimulationPlayer.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr const eC_Char* cpcNotStarted = "the application is not started";
const std::string ckAdvance = "advance ";

std::string GetFirstWord(const std::string& kLine)
{
    const std::size_t uiBegin = kLine.find_first_not_of(" \t");
    return kLine.substr(uiBegin, kLine.find_first_of(" \t", uiBegin) - uiBegin);
}

eC_Bool IsComment(const std::string& kLine)
{
    return GetFirstWord(kLine).front() == '#';
}

/** @return empty if a line is a text that can be recorded and sent, otherwise what was expected */
std::string FindFault(const std::string& kLine)
{
    if (kLine.size() > CSimulation::cuiLongestLine)
    {
        return "expected a line of at most " + std::to_string(CSimulation::cuiLongestLine) + " bytes";
    }
    std::size_t uiByte = 0;
    while (uiByte < kLine.size())
    {
        const auto ucByte = static_cast<unsigned char>(kLine[uiByte]);
        const eC_UInt uiCharacter =
            GetCharacterLength(kLine.data() + uiByte, static_cast<eC_UInt>(kLine.size() - uiByte));
        if (uiCharacter == 0 || (ucByte < ' ' && ucByte != '\t') || ucByte == 0x7F)
        {
            return "expected a line of printable characters in UTF-8";
        }
        uiByte += uiCharacter;
    }
    return std::string();
}

/** Executes a line. An exception becomes the result. */
SimulatedResult_t Play(CSimulationPlayer& kPlayer, const std::string& kLine)
{
    try
    {
        return {true, kPlayer.Run(kLine)};
    }
    catch (const ScenarioError_t& kError)
    {
        return {false, kError.m_kText};
    }
    catch (...)
    {
        // The player makes a text of what has one.
        return {true, "throws"};
    }
}
} // namespace

/** The sink of the trace: keeps the entries with the lines that have caused them. */
class CSimulation::CTraceKeeper : public CGUITraceSink
{
public:
    explicit CTraceKeeper(CSimulation& kSimulation)
        : m_kSimulation(kSimulation), m_pkPreviousSink(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(this);
    }

    CTraceKeeper(const CTraceKeeper&) = delete;
    CTraceKeeper& operator=(const CTraceKeeper&) = delete;
    ~CTraceKeeper() override { CGUITrace::GetInstance().SetSink(m_pkPreviousSink); }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override
    {
        m_kSimulation.m_kTrace.push_back(
            {{kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()},
             m_kSimulation.m_uiPosition,
             m_kSimulation.GetTime()});
    }

private:
    CSimulation& m_kSimulation;
    CGUITraceSink* m_pkPreviousSink;
};

/** The running application, with what reads its state and executes lines. */
class CSimulation::CParts : public CInspectionChannel, public CInspectionHandler
{
public:
    explicit CParts(CSimulation& kSimulation)
        : m_kSimulation(kSimulation), m_kApplication(kSimulation.m_kApplication), m_kKeeper(kSimulation)
    {
        try
        {
            m_kApplication.Start();
            m_pkInspector = std::make_unique<CGUIInspector>(m_kApplication.GetManager());
            m_pkPlayer = std::make_unique<CSimulationPlayer>(m_kApplication, m_kClock, m_kEventLog);
        }
        catch (...)
        {
            m_kApplication.Stop();
            throw;
        }
    }

    CParts(const CParts&) = delete;
    CParts& operator=(const CParts&) = delete;

    ~CParts() override
    {
        m_pkLink.reset();
        m_pkPlayer.reset();
        m_pkInspector.reset();
        m_kApplication.Stop();
    }

    const CSteppedClock& GetClock() const { return m_kClock; }
    const CGUIInspector& GetInspector() const { return *m_pkInspector; }
    std::vector<std::string> GetUsages() const { return m_pkPlayer->GetUsages(); }

    SimulatedResult_t Execute(const std::string& kLine)
    {
        SimulatedResult_t kResult = m_pkLink != nullptr ? ExecuteOverLink(kLine) : Play(*m_pkPlayer, kLine);
        m_kApplication.Settle();
        CGUIWidget::UpdateValues();
        return kResult;
    }

    /** Sends the whole state, and from now on what happens. */
    void BeginToWrite()
    {
        m_pkLink = std::make_unique<CInspectionLink>(m_kApplication.GetManager(), *this, m_acOut,
                                                     static_cast<eC_UInt>(sizeof(m_acOut)));
        m_pkLink->AllowInput(*this, m_acIn, static_cast<eC_UInt>(sizeof(m_acIn)));
        m_pkLink->Run();
    }

    void EndWriting() { m_pkLink.reset(); }

    eC_Bool WriteLine(const eC_Char* pcLine, eC_UInt uiLength) override
    {
        m_kSimulation.m_fnWriter(std::string(pcLine, uiLength - 1));
        return true;
    }

    eC_UInt Read(eC_Char* pcBytes, eC_UInt uiSize) override
    {
        const std::size_t uiRead = m_kInput.copy(pcBytes, uiSize);
        m_kInput.erase(0, uiRead);
        return static_cast<eC_UInt>(uiRead);
    }

    void Execute(eC_Char* pcLine, CInspectionReply& kReply) override
    {
        m_kResult = Play(*m_pkPlayer, pcLine);
        m_kResult.m_bIsExecuted ? kReply.Add(m_kResult.m_kText.c_str())
                                : kReply.RefuseWith(m_kResult.m_kText.c_str());
    }

private:
    SimulatedResult_t ExecuteOverLink(const std::string& kLine)
    {
        // The link does not pass on the command state, which changes nothing.
        const eC_Bool bIsState = GetFirstWord(kLine) == "state";
        m_kResult = bIsState ? Play(*m_pkPlayer, kLine) : SimulatedResult_t{true, std::string()};
        m_kInput = kLine + "\n";
        while (!m_kInput.empty())
        {
            m_pkLink->Run();
        }
        return m_kResult;
    }

    CSimulation& m_kSimulation;
    CSimulatedApplication& m_kApplication;
    CSteppedClock m_kClock;
    CTraceKeeper m_kKeeper;
    CEventLog m_kEventLog;
    std::unique_ptr<CGUIInspector> m_pkInspector;
    std::unique_ptr<CSimulationPlayer> m_pkPlayer;
    std::unique_ptr<CInspectionLink> m_pkLink;
    std::string m_kInput; ///< what the link has not read yet
    SimulatedResult_t m_kResult{true, std::string()};
    eC_Char m_acOut[4096] = {};
    eC_Char m_acIn[cuiLongestLine + 2] = {};
};

CSimulation::CSimulation(CSimulatedApplication& kApplication, Writer_t fnWriter)
    : m_kApplication(kApplication), m_fnWriter(std::move(fnWriter))
{
    Start();
    BeginToWrite();
}

CSimulation::~CSimulation() = default;

SimulatedResult_t CSimulation::Run(const std::string& kLine)
{
    if (kLine.find_first_not_of(" \t") == std::string::npos)
    {
        return {true, std::string()};
    }
    const std::string kFault = m_pkParts == nullptr ? cpcNotStarted : FindFault(kLine);
    if (!kFault.empty())
    {
        return {false, kFault};
    }
    SimulatedResult_t kResult = Execute(kLine);
    if (kResult.m_bIsExecuted)
    {
        Keep(kLine);
    }
    return kResult;
}

SimulatedResult_t CSimulation::Advance(eC_UInt uiMilliseconds, eC_UInt uiLongest)
{
    if (m_pkParts == nullptr)
    {
        return {false, cpcNotStarted};
    }
    const std::size_t uiEntries = m_kTrace.size();
    const std::uint64_t uiState = GetInspector().GetFingerprint(STATE_ALL);
    const std::string kLine = ckAdvance + std::to_string(uiMilliseconds);
    eC_UInt uiBefore = 0;
    const eC_Bool bExtends =
        m_bMayExtend && m_uiPosition == m_kLines.size() && uiMilliseconds <= uiLongest &&
        ParseNumber(m_kLines.back().c_str() + ckAdvance.size(), uiLongest - uiMilliseconds, uiBefore);
    // What happens now has been caused by the line that becomes longer.
    m_uiPosition -= bExtends ? 1U : 0U;
    SimulatedResult_t kResult = Execute(kLine);
    if (bExtends)
    {
        m_kLines.back() = ckAdvance + std::to_string(uiBefore + uiMilliseconds);
        ++m_uiPosition;
    }
    else
    {
        Keep(kLine);
    }
    m_bMayExtend = kResult.m_kText.empty() && m_kTrace.size() == uiEntries &&
                   GetInspector().GetFingerprint(STATE_ALL) == uiState;
    return kResult;
}

void CSimulation::Restart()
{
    m_kLines.clear();
    Start();
    BeginToWrite();
}

void CSimulation::GoTo(std::size_t uiPosition)
{
    uiPosition = std::min(uiPosition, m_kLines.size());
    if (uiPosition == m_uiPosition && m_pkParts != nullptr)
    {
        return;
    }
    if (uiPosition < m_uiPosition || m_pkParts == nullptr)
    {
        Start();
    }
    m_pkParts->EndWriting();
    m_bMayExtend = false;
    while (m_uiPosition < uiPosition)
    {
        Execute(m_kLines[m_uiPosition]);
        ++m_uiPosition;
    }
    BeginToWrite();
}

std::size_t CSimulation::Change(const std::function<void()>& fnChange)
{
    const std::size_t uiWhere = m_uiPosition;
    m_pkParts.reset();
    fnChange();
    Start();
    std::vector<std::string> kLines;
    kLines.swap(m_kLines);
    std::size_t uiPosition = 0;
    for (std::size_t uiLine = 0; uiLine < kLines.size(); ++uiLine)
    {
        if (Execute(kLines[uiLine]).m_bIsExecuted)
        {
            Keep(kLines[uiLine]);
            uiPosition += uiLine < uiWhere ? 1U : 0U;
        }
    }
    if (uiPosition < m_uiPosition)
    {
        GoTo(uiPosition);
    }
    else
    {
        BeginToWrite();
    }
    return kLines.size() - m_kLines.size();
}

eC_UInt CSimulation::GetTime() const
{
    return m_pkParts != nullptr ? m_pkParts->GetClock().GetTime() : 0;
}

std::vector<std::string> CSimulation::GetUsages() const
{
    return m_pkParts != nullptr ? m_pkParts->GetUsages() : std::vector<std::string>();
}

const CGUIInspector& CSimulation::GetInspector() const
{
    return m_pkParts->GetInspector();
}

void CSimulation::Start()
{
    m_uiPosition = 0;
    m_bMayExtend = false;
    m_pkParts.reset();
    m_kTrace.clear();
    m_pkParts = std::make_unique<CParts>(*this);
}

void CSimulation::BeginToWrite()
{
    if (m_fnWriter != nullptr)
    {
        m_pkParts->BeginToWrite();
    }
}

SimulatedResult_t CSimulation::Execute(const std::string& kLine)
{
    return IsComment(kLine) ? SimulatedResult_t{true, std::string()} : m_pkParts->Execute(kLine);
}

void CSimulation::Keep(const std::string& kLine)
{
    m_kLines.resize(m_uiPosition);
    m_kLines.push_back(kLine);
    ++m_uiPosition;
    m_bMayExtend = false;
}
