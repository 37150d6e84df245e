// SPDX-License-Identifier: MIT
#include "Flow/Check/CheckCommand.h"

#include "Flow/Check/CheckReport.h"
#include "Flow/Check/DialogGraph.h"
#include "Flow/Check/ExactExplorer.h"
#include "Flow/Check/Watchdog.h"
#include "Scenario/Names.h"
#include "Scenario/TraceRecorder.h"
#include "Simulator/SimulationPlayer.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <sstream>

namespace
{
constexpr eC_UInt cuiMost = 0xFFFFFFF0U;

eC_Bool ReadProperties(const std::string& kText, eC_UInt& uiPropertiesOUT)
{
    uiPropertiesOUT = 0;
    std::istringstream kWords(kText);
    std::string kWord;
    while (std::getline(kWords, kWord, ','))
    {
        eC_UInt uiNumber = 0;
        if (kWord.size() < 2 || kWord[0] != 'P' || !ParseNumber(kWord.c_str() + 1, cuiProperties, uiNumber) ||
            uiNumber == 0)
        {
            return false;
        }
        uiPropertiesOUT |= 1U << uiNumber;
    }
    return uiPropertiesOUT != 0;
}

/** Draws a line on standard error that shows how far the exploration is. */
class CProgressBar
{
public:
    CProgressBar() : m_bIsShown(isatty(STDERR_FILENO) != 0) {}
    CProgressBar(const CProgressBar&) = delete;
    CProgressBar& operator=(const CProgressBar&) = delete;
    ~CProgressBar()
    {
        if (m_bIsShown)
        {
            std::fputs("\r\033[K", stderr);
        }
    }

    void Show(const ExplorerProgress_t& kProgress)
    {
        const auto kNow = std::chrono::steady_clock::now();
        if (!m_bIsShown || kNow - m_kLast < std::chrono::milliseconds(200))
        {
            return;
        }
        m_kLast = kNow;
        constexpr std::size_t cuiWidth = 30;
        const std::size_t uiDone = cuiWidth * kProgress.m_uiExpanded / kProgress.m_uiStates;
        const std::chrono::duration<double> kTime = kNow - m_kBegin;
        std::fprintf(stderr, "\r[%s%s] %zu of %zu states, depth %u, %.0f states/s\033[K",
                     std::string(uiDone, '#').c_str(), std::string(cuiWidth - uiDone, '-').c_str(),
                     kProgress.m_uiExpanded, kProgress.m_uiStates, kProgress.m_uiDepth,
                     static_cast<double>(kProgress.m_uiExpanded) / kTime.count());
    }

private:
    eC_Bool m_bIsShown;
    std::chrono::steady_clock::time_point m_kBegin = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point m_kLast = m_kBegin;
};

eC_Bool WriteFile(const std::string& kFile, const std::string& kText)
{
    std::ofstream kStream(kFile, std::ios::binary | std::ios::trunc);
    kStream << kText;
    kStream.flush();
    if (!kStream)
    {
        std::fprintf(stderr, "dialogcheck: cannot write %s; expected a place for a file\n", kFile.c_str());
        return false;
    }
    return true;
}

std::string JoinLines(const std::vector<std::string>& kLines)
{
    std::string kText;
    for (const std::string& kLine : kLines)
    {
        kText += kLine + "\n";
    }
    return kText;
}

eC_Bool WriteScenarios(const CheckReport_t& kReport, const std::string& kDirectory)
{
    std::error_code kError;
    std::filesystem::create_directories(kDirectory, kError);
    eC_Bool bIsWritten = true;
    for (const PropertyResult_t& kResult : kReport.m_kResults)
    {
        eC_UInt uiNumber = 0;
        for (const Finding_t& kFinding : kResult.m_kFindings)
        {
            ++uiNumber;
            if (kFinding.m_bHasWitness)
            {
                bIsWritten = bIsWritten &&
                             WriteFile(kDirectory + "/P" + std::to_string(kResult.m_uiNumber) + "-" +
                                           std::to_string(uiNumber) + ".scenario",
                                       "# " + kFinding.m_kText + "\n" +
                                           JoinLines(MakeScenario(*kResult.m_pkSpace, kFinding.m_kWitness)));
            }
        }
    }
    return bIsWritten;
}

/** Runs a program of Graphviz. @return whether it has written the file */
eC_Bool DrawGraph(const std::string& kSource, const std::string& kFile)
{
    std::string kType = "-T" + kFile.substr(kFile.rfind('.') + 1);
    std::string kOutput = "-o" + kFile;
    std::string kInput = kSource;
    std::string kName = "dot";
    eC_Char* apcArguments[] = {kName.data(), kType.data(), kOutput.data(), kInput.data(), nullptr};
    pid_t iProcess = 0;
    int iStatus = 0;
    return posix_spawnp(&iProcess, "dot", nullptr, nullptr, apcArguments, environ) == 0 &&
           waitpid(iProcess, &iStatus, 0) == iProcess && WIFEXITED(iStatus) && WEXITSTATUS(iStatus) == 0;
}

/** Writes the graph: as DOT, unless the file has the ending of a picture and Graphviz can draw it. */
eC_Bool WriteGraph(const CheckReport_t& kReport, const std::string& kFile)
{
    const std::string kEnding = std::filesystem::path(kFile).extension().string();
    if (kEnding == ".dot" || kEnding.empty())
    {
        return WriteFile(kFile, WriteDOT(kReport));
    }
    const std::string kSource = kFile + ".dot";
    if (!WriteFile(kSource, WriteDOT(kReport)))
    {
        return false;
    }
    if (!DrawGraph(kSource, kFile))
    {
        std::fprintf(stderr, "dialogcheck: Graphviz cannot draw %s; its source is %s\n", kFile.c_str(),
                     kSource.c_str());
        return true;
    }
    std::error_code kError;
    std::filesystem::remove(kSource, kError);
    return true;
}

/** @return what a scenario prints */
std::string PlayScenario(CSimulatedApplication& kApplication, const std::string& kName,
                         const std::string& kScenario)
{
    CEventLog kLog;
    CSteppedClock kClock;
    CTraceRecorder kRecorder(kLog);
    kApplication.Start();
    std::string kTranscript;
    {
        CSimulationPlayer kPlayer(kApplication, kClock, kLog,
                                  [&kTranscript](const std::string& kLine) { kTranscript += kLine + "\n"; });
        kPlayer.Play(kName, kScenario);
    }
    kApplication.Stop();
    return kTranscript;
}

eC_Bool WriteTests(const CheckReport_t& kReport, CSimulatedApplication& kApplication,
                   const std::string& kDirectory)
{
    std::error_code kError;
    std::filesystem::create_directories(kDirectory, kError);
    eC_UInt uiNumber = 0;
    for (const Witness_t& kWay : FindCoveringWays(*kReport.m_pkSpace))
    {
        const std::string kName = "Way" + std::to_string(++uiNumber);
        const std::string kScenario = JoinLines(MakeScenario(*kReport.m_pkSpace, kWay));
        const std::string kStem = std::string(kDirectory).append("/").append(kName);
        if (!WriteFile(kStem + ".scenario", kScenario) ||
            !WriteFile(kStem + ".golden", PlayScenario(kApplication, kName, kScenario)))
        {
            return false;
        }
    }
    return true;
}

eC_Bool WriteFiles(const CheckReport_t& kReport, CSimulatedApplication& kApplication,
                   const CheckOptions_t& kOptions)
{
    return (kOptions.m_kGraphFile.empty() || WriteGraph(kReport, kOptions.m_kGraphFile)) &&
           (kOptions.m_kTestDirectory.empty() ||
            WriteTests(kReport, kApplication, kOptions.m_kTestDirectory)) &&
           (kOptions.m_kJUnitFile.empty() || WriteFile(kOptions.m_kJUnitFile, WriteJUnit(kReport))) &&
           (kOptions.m_kSARIFFile.empty() || WriteFile(kOptions.m_kSARIFFile, WriteSARIF(kReport))) &&
           (kOptions.m_kScenarioDirectory.empty() || WriteScenarios(kReport, kOptions.m_kScenarioDirectory));
}

eC_Bool ReadOption(const std::string& kName, const std::string& kValue, CheckOptions_t& kOptions,
                   std::string& kErrorOUT)
{
    if (kName == "--only")
    {
        kErrorOUT = "--only " + kValue + "; expected properties like P2,P6, from P1 to P12";
        return ReadProperties(kValue, kOptions.m_uiProperties);
    }
    if (kName == "--depth" || kName == "--states")
    {
        kErrorOUT = kName + " " + kValue + "; expected a number from 1 to " + std::to_string(cuiMost);
        eC_UInt& uiBound = kName == "--depth" ? kOptions.m_kBounds.m_uiDepth : kOptions.m_kBounds.m_uiStates;
        return ParseNumber(kValue.c_str(), cuiMost, uiBound) && uiBound != 0;
    }
    const std::pair<const eC_Char*, std::string*> akFiles[] = {
        {"--junit", &kOptions.m_kJUnitFile},
        {"--sarif", &kOptions.m_kSARIFFile},
        {"--scenarios", &kOptions.m_kScenarioDirectory},
        {"--graph", &kOptions.m_kGraphFile},
        {"--tests", &kOptions.m_kTestDirectory}};
    for (const auto& kFile : akFiles)
    {
        if (kName == kFile.first)
        {
            *kFile.second = kValue;
        }
    }
    kErrorOUT = "nothing after " + kName + "; expected the name of a file or directory";
    return !kValue.empty();
}
eC_Bool HasValue(const std::string& kName)
{
    const std::initializer_list<const eC_Char*> kNames = {"--only",  "--depth",     "--states", "--junit",
                                                          "--sarif", "--scenarios", "--graph",  "--tests"};
    return std::find(kNames.begin(), kNames.end(), kName) != kNames.end();
}

StateSpace_t ExploreApplication(CCheckSubject& kSubject, const CheckOptions_t& kOptions,
                                std::string& kObstacleOUT)
{
    const CWatchdog kWatchdog(kOptions.m_uiLongestOperation, kOptions.m_bWritesJSON);
    CExactExplorer kExplorer(kSubject);
    CProgressBar kBar;
    kExplorer.SetHeap(kOptions.m_pfnHeap);
    kExplorer.SetProgress([&kBar](const ExplorerProgress_t& kProgress) { kBar.Show(kProgress); });
    return kOptions.m_bIsBounded ? kExplorer.Explore(kOptions.m_kBounds)
                                 : kExplorer.ExploreExactly(kOptions.m_kBounds, kObstacleOUT);
}
} // namespace

eC_Bool ReadCheckOptions(const std::vector<std::string>& kArguments, CheckOptions_t& kOptionsOUT,
                         std::string& kErrorOUT)
{
    for (std::size_t uiArgument = 0; uiArgument < kArguments.size(); ++uiArgument)
    {
        const std::string& kArgument = kArguments[uiArgument];
        if (kArgument == "--json")
        {
            kOptionsOUT.m_bWritesJSON = true;
        }
        else if (kArgument == "--bounded")
        {
            kOptionsOUT.m_bIsBounded = true;
        }
        else if (HasValue(kArgument))
        {
            ++uiArgument;
            const std::string kValue = uiArgument < kArguments.size() ? kArguments[uiArgument] : "";
            if (!ReadOption(kArgument, kValue, kOptionsOUT, kErrorOUT))
            {
                return false;
            }
        }
        else if (kArgument.compare(0, 1, "-") == 0 || !kOptionsOUT.m_kFile.empty())
        {
            kErrorOUT = "unknown argument " + kArgument;
            return false;
        }
        else
        {
            kOptionsOUT.m_kFile = kArgument;
        }
    }
    return true;
}

int RunCheck(CCheckSubject& kSubject, const CheckOptions_t& kOptions)
{
    CheckReport_t kReport;
    const StateSpace_t kSpace = ExploreApplication(kSubject, kOptions, kReport.m_kObstacle);
    kReport.m_kName = kSubject.GetApplication().GetDevice().m_pcName;
    kReport.m_kFile = kSubject.GetFile();
    kReport.m_pkSpace = &kSpace;
    kReport.m_kResults = CheckProperties(kSubject, kSpace, kOptions.m_uiProperties);
    const std::string kText = kOptions.m_bWritesJSON ? WriteJSON(kReport) : WriteText(kReport);
    std::fputs(kText.c_str(), stdout);
    if (!WriteFiles(kReport, kSubject.GetApplication(), kOptions))
    {
        return CHECK_WRONG_USE;
    }
    for (const PropertyResult_t& kResult : kReport.m_kResults)
    {
        if (kResult.CountUnexpected() != 0)
        {
            return CHECK_VIOLATION;
        }
    }
    return CHECK_CLEAN;
}
