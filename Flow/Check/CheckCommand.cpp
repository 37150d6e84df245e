// SPDX-License-Identifier: MIT
#include "Flow/Check/CheckCommand.h"

#include "Flow/Check/CheckReport.h"
#include "Scenario/Names.h"

#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
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
                                           JoinLines(MakeScenario(*kReport.m_pkSpace, kFinding.m_kWitness)));
            }
        }
    }
    return bIsWritten;
}

eC_Bool WriteFiles(const CheckReport_t& kReport, const CheckOptions_t& kOptions)
{
    return (kOptions.m_kJUnitFile.empty() || WriteFile(kOptions.m_kJUnitFile, WriteJUnit(kReport))) &&
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
    std::string& kFile = kName == "--junit"   ? kOptions.m_kJUnitFile
                         : kName == "--sarif" ? kOptions.m_kSARIFFile
                                              : kOptions.m_kScenarioDirectory;
    kErrorOUT = "no file after " + kName;
    kFile = kValue;
    return !kFile.empty();
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
        else if (kArgument == "--only" || kArgument == "--depth" || kArgument == "--states" ||
                 kArgument == "--junit" || kArgument == "--sarif" || kArgument == "--scenarios")
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
    StateSpace_t kSpace;
    {
        CExplorer kExplorer(kSubject);
        CProgressBar kBar;
        kExplorer.SetHeap(kOptions.m_pfnHeap);
        kExplorer.SetProgress([&kBar](const ExplorerProgress_t& kProgress) { kBar.Show(kProgress); });
        kSpace = kExplorer.Explore(kOptions.m_kBounds);
    }
    CheckReport_t kReport;
    kReport.m_kName = kSubject.GetApplication().GetDevice().m_pcName;
    kReport.m_kFile = kSubject.GetFile();
    kReport.m_pkSpace = &kSpace;
    kReport.m_kResults = CheckProperties(kSubject, kSpace, kOptions.m_uiProperties);
    const std::string kText = kOptions.m_bWritesJSON ? WriteJSON(kReport) : WriteText(kReport);
    std::fputs(kText.c_str(), stdout);
    if (!WriteFiles(kReport, kOptions))
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
