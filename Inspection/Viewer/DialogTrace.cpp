// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/Timeline.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;
constexpr eC_UInt cuiFewestColumns = 10;
constexpr eC_UInt cuiMostColumns = 10000;

constexpr const char* cpcHelp =
    "Usage: dialogtrace [--svg | --columns NUMBER] LOG\n"
    "\n"
    "Prints a run as a time line: when each dialog and each popup was where. LOG has what an inspection\n"
    "has sent, from the host or from a device; - is standard input.\n"
    "\n"
    "  --svg             draw a picture instead\n"
    "  --columns NUMBER  how wide the time is printed, 10 to 10000; 100 without it\n";

struct Options_t
{
    std::string m_kLog;
    eC_UInt m_uiColumns = 100;
    bool m_bIsPicture = false;
};

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "dialogtrace: %s\n", kMessage.c_str());
    return iStatus;
}

/** @return what is wrong with an option, or the empty string */
std::string ReadColumns(const char* pcText, eC_UInt& uiColumnsOUT)
{
    char* pcEnd = nullptr;
    const unsigned long uiColumns = pcText != nullptr ? std::strtoul(pcText, &pcEnd, 10) : 0;
    if (pcText == nullptr || *pcText < '0' || *pcText > '9' || *pcEnd != '\0' ||
        uiColumns < cuiFewestColumns || uiColumns > cuiMostColumns)
    {
        return std::string("--columns: expected a number from 10 to 10000, found ") +
               (pcText != nullptr ? pcText : "none");
    }
    uiColumnsOUT = static_cast<eC_UInt>(uiColumns);
    return std::string();
}

/** @return what is wrong with the arguments, or the empty string */
std::string ReadArguments(char** ppcArguments, Options_t& kOptionsOUT)
{
    bool bHasColumns = false;
    for (++ppcArguments; *ppcArguments != nullptr; ++ppcArguments)
    {
        const std::string kArgument = *ppcArguments;
        std::string kError;
        if (kArgument == "--svg")
        {
            kOptionsOUT.m_bIsPicture = true;
        }
        else if (kArgument == "--columns")
        {
            bHasColumns = true;
            kError = ReadColumns(ppcArguments[1], kOptionsOUT.m_uiColumns);
            ppcArguments += kError.empty() ? 1 : 0;
        }
        else if (kArgument.size() > 1 && kArgument.front() == '-')
        {
            kError = "unknown option " + kArgument;
        }
        else if (!kOptionsOUT.m_kLog.empty())
        {
            kError = "expected one log, found " + kArgument + " as well";
        }
        else
        {
            kOptionsOUT.m_kLog = kArgument;
        }
        if (!kError.empty())
        {
            return kError;
        }
    }
    if (bHasColumns && kOptionsOUT.m_bIsPicture)
    {
        return "expected --svg or --columns, found both";
    }
    return kOptionsOUT.m_kLog.empty() ? "expected a log" : "";
}

/** Reads a log. @return what is wrong, or the empty string */
std::string ReadLog(const std::string& kName, std::FILE* pkFile, CTimelineBuilder& kBuilder)
{
    char acBlock[65536];
    std::size_t uiRead = 0;
    while ((uiRead = std::fread(acBlock, 1, sizeof(acBlock), pkFile)) > 0)
    {
        std::string kError = kBuilder.Take(std::string(acBlock, uiRead));
        if (!kError.empty())
        {
            return kError.insert(0, kName + ": ");
        }
    }
    if (std::ferror(pkFile) != 0)
    {
        return kName + ": cannot read (" + std::strerror(errno) + ")";
    }
    return kBuilder.GetLines() == 0 ? kName + ": expected lines of an inspection, found none" : std::string();
}

int CloseUnlessStandard(std::FILE* pkFile)
{
    return pkFile != nullptr && pkFile != stdin ? std::fclose(pkFile) : 0;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments == 2 && std::strcmp(ppcArguments[1], "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    Options_t kOptions;
    const std::string kWrong = ReadArguments(ppcArguments, kOptions);
    if (!kWrong.empty())
    {
        return Fail(ciWrongUsage, kWrong + "; see --help");
    }
    const bool bIsStandard = kOptions.m_kLog == "-";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pkFile(
        bIsStandard ? stdin : std::fopen(kOptions.m_kLog.c_str(), "rb"), &CloseUnlessStandard);
    if (pkFile == nullptr)
    {
        return Fail(ciFailure, kOptions.m_kLog + ": cannot open (" + std::strerror(errno) + ")");
    }
    const std::string kName = bIsStandard ? "standard input" : kOptions.m_kLog;
    CTimelineBuilder kBuilder;
    const std::string kError = ReadLog(kName, pkFile.get(), kBuilder);
    if (!kError.empty())
    {
        return Fail(ciFailure, kError);
    }
    if (kBuilder.IsInLine())
    {
        Fail(0, kName + ": the last line is not complete, and is left out");
    }
    const Timeline_t kTimeline = kBuilder.Finish();
    const std::string kText =
        kOptions.m_bIsPicture ? DrawTimeline(kTimeline) : PrintTimeline(kTimeline, kOptions.m_uiColumns);
    const bool bIsWritten =
        std::fwrite(kText.data(), 1, kText.size(), stdout) == kText.size() && std::fflush(stdout) == 0;
    return bIsWritten ? 0 : Fail(ciFailure, "cannot write the time line");
}
