// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogXMLReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/SimulationPlayer.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;

constexpr const char* cpcHelp =
    "Usage: CoffeeMachine SCENARIO\n"
    "\n"
    "Plays a scenario on the coffee machine and prints, after each command, the trace, the screen,\n"
    "the history and the popups, for example Tour.scenario. README.md lists the commands; it and the dialog\n"
    "files are in " COFFEE_MACHINE_DIRECTORY ".\n";

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "CoffeeMachine: %s\n", kMessage.c_str());
    return iStatus;
}

/** @return false if the file cannot be read; errno says why */
bool ReadFile(const char* pcPath, std::string& kTextOUT)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pkFile(std::fopen(pcPath, "rb"), &std::fclose);
    if (pkFile == nullptr)
    {
        return false;
    }
    char acBlock[4096];
    std::size_t uiRead = 0;
    while ((uiRead = std::fread(acBlock, 1, sizeof(acBlock), pkFile.get())) > 0)
    {
        kTextOUT.append(acBlock, uiRead);
    }
    return std::ferror(pkFile.get()) == 0;
}

void WriteLine(const std::string& kLine)
{
    std::fputs((kLine + "\n").c_str(), stdout);
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments != 2)
    {
        return Fail(ciWrongUsage, "expected one argument, the scenario; see --help");
    }
    const char* pcScenario = ppcArguments[1];
    if (std::strcmp(pcScenario, "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    if (pcScenario[0] == '-')
    {
        return Fail(ciWrongUsage, std::string("unknown option ") + pcScenario + "; see --help");
    }

    std::string kScript;
    if (!ReadFile(pcScenario, kScript))
    {
        return Fail(ciFailure, std::string("cannot read ") + pcScenario + ": " + std::strerror(errno));
    }

    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    const std::string kError = PlayTranscript(kCoffeeMachine, pcScenario, kScript, &WriteLine);

    const bool bIsWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (!kError.empty())
    {
        return Fail(ciFailure, kError);
    }
    return bIsWritten ? 0 : Fail(ciFailure, "cannot write the transcript");
}
