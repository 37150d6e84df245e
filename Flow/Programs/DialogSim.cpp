// SPDX-License-Identifier: MIT
#include "Flow/FlowApplication.h"
#include "Flow/FlowReader.h"
#include "Scenario/EventLog.h"
#include "Scenario/SteppedClock.h"
#include "Scenario/TraceRecorder.h"
#include "Simulator/SimulationPlayer.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUse = 2;
constexpr const eC_Char* cpcUsage = "usage: dialogsim [--play <scenario>] <flow>\n";

/** Prints each line of a transcript at once. */
class CPrintingPlayer : public CSimulationPlayer
{
public:
    using CSimulationPlayer::CSimulationPlayer;

protected:
    void WriteLine(const std::string& kLine) override { std::printf("%s\n", kLine.c_str()); }
};

/** A flow that runs, with everything around it. */
class CRun
{
public:
    explicit CRun(CFlowApplication& kApplication) : m_kApplication(kApplication), m_kRecorder(m_kLog)
    {
        m_kApplication.Start();
        m_pkPlayer = std::make_unique<CPrintingPlayer>(m_kApplication, m_kClock, m_kLog);
    }
    CRun(const CRun&) = delete;
    CRun& operator=(const CRun&) = delete;
    ~CRun()
    {
        m_pkPlayer.reset();
        m_kApplication.Stop();
    }

    eC_Bool Play(const std::string& kName, const std::string& kScript)
    {
        return m_pkPlayer->Play(kName, kScript);
    }

private:
    CFlowApplication& m_kApplication;
    CEventLog m_kLog;
    CSteppedClock m_kClock;
    CTraceRecorder m_kRecorder;
    std::unique_ptr<CPrintingPlayer> m_pkPlayer;
};

/** Takes the lines of the standard input. Before each one it looks whether the flow has changed. */
class CDialogue
{
public:
    CDialogue(const std::string& kFile, std::shared_ptr<const FlowModel_t> pkFlow)
        : m_kFile(kFile), m_kTime(GetFileTime()), m_kApplication(std::move(pkFlow))
    {
    }

    void Run()
    {
        m_pkRun = std::make_unique<CRun>(m_kApplication);
        m_pkRun->Play("start", "power-on");
        std::string kLine;
        while (std::getline(std::cin, kLine))
        {
            ReadChangedFlow();
            m_pkRun->Play("input", kLine);
            std::fflush(stdout);
        }
    }

private:
    std::filesystem::file_time_type GetFileTime() const
    {
        std::error_code kError;
        return std::filesystem::last_write_time(m_kFile, kError);
    }

    /** After a mistake the last good flow goes on. */
    void ReadChangedFlow()
    {
        const std::filesystem::file_time_type kTime = GetFileTime();
        if (kTime == m_kTime)
        {
            return;
        }
        m_kTime = kTime;
        std::string kError;
        const std::shared_ptr<const FlowModel_t> pkFlow = ReadFlow(m_kFile, kError);
        if (pkFlow == nullptr)
        {
            std::printf("%s\n", kError.c_str());
            return;
        }
        const FlowMemory_t kMemory = m_kApplication.GetMemory();
        m_pkRun.reset();
        m_kApplication.SetFlow(pkFlow, kMemory);
        m_pkRun = std::make_unique<CRun>(m_kApplication);
        std::printf("# the flow has changed\n");
        m_pkRun->Play("start", "power-on");
    }

    std::string m_kFile;
    std::filesystem::file_time_type m_kTime;
    CFlowApplication m_kApplication;
    std::unique_ptr<CRun> m_pkRun;
};

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "%s\n", kMessage.c_str());
    return iStatus;
}

int Simulate(const std::vector<std::string>& kArguments)
{
    const eC_Bool bPlays = kArguments.size() == 3 && kArguments[0] == "--play";
    if (!bPlays && (kArguments.size() != 1 || kArguments[0].compare(0, 1, "-") == 0))
    {
        std::fputs(cpcUsage, stderr);
        return ciWrongUse;
    }
    std::string kError;
    const std::shared_ptr<const FlowModel_t> pkFlow = ReadFlow(kArguments.back(), kError);
    if (pkFlow == nullptr)
    {
        return Fail(ciWrongUse, kError);
    }
    if (!bPlays)
    {
        CDialogue(kArguments.back(), pkFlow).Run();
        return 0;
    }
    std::ifstream kFile(kArguments[1], std::ios::binary);
    std::ostringstream kScript;
    kScript << kFile.rdbuf();
    if (!kFile)
    {
        return Fail(ciFailure, "dialogsim: cannot read " + kArguments[1] + "; expected a scenario");
    }
    CFlowApplication kApplication(pkFlow);
    return CRun(kApplication).Play(kArguments[1], kScript.str()) ? 0 : ciFailure;
}
} // namespace

int main(int iNOFArguments, char* apcArguments[])
{
    try
    {
        return Simulate(std::vector<std::string>(apcArguments + 1, apcArguments + iNOFArguments));
    }
    catch (const std::exception& kException)
    {
        return Fail(ciFailure, std::string("dialogsim: ") + kException.what());
    }
}
