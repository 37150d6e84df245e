// SPDX-License-Identifier: MIT
#include "Drawn/DrawnProgram.h"

#include "Loader/GUIDialogXMLReader.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

int FailDrawn(const char* pcProgram, int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "%s: %s\n", pcProgram, kMessage.c_str());
    return iStatus;
}

namespace
{
void WriteLine(const std::string& kLine)
{
    std::fputs((kLine + "\n").c_str(), stdout);
}
} // namespace

int PlayDrawn(const char* pcProgram, const char* pcScenario, const PlayDrawn_t& fnPlay)
{
    constexpr int ciFailure = 1;
    std::ifstream kFile(pcScenario, std::ios::binary);
    const std::string kScript{std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
    if (kScript.empty())
    {
        return FailDrawn(pcProgram, ciFailure,
                         std::string("cannot read ") + pcScenario + ": " + std::strerror(errno));
    }
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    const std::string kError = PlayOnDisplay(
        kReader, [&](CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses, CEventLog& kEventLog)
        { return fnPlay(kCoffeeMachine, kPresses, pcScenario, kScript, &WriteLine, kEventLog); });
    const bool bIsWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (!kError.empty())
    {
        return FailDrawn(pcProgram, ciFailure, kError);
    }
    return bIsWritten ? 0 : FailDrawn(pcProgram, ciFailure, "cannot write the transcript");
}
