// SPDX-License-Identifier: MIT
// The tour as WebAssembly, without a page: node runs it. The scenario comes from standard input, the
// transcript goes to standard output, and the dialogs are compiled in.

#include "Dialogs.h"
#include "Loader/GUIDialogROMReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/SimulationPlayer.h"

#include <cstdio>
#include <string>

namespace
{
void WriteLine(const std::string& kLine)
{
    std::puts(kLine.c_str());
}
} // namespace

int main()
{
    std::string kScript;
    char acBlock[4096];
    std::size_t uiRead = 0;
    while ((uiRead = std::fread(acBlock, 1, sizeof(acBlock), stdin)) > 0)
    {
        kScript.append(acBlock, uiRead);
    }

    CGUIDialogROMReader kReader(ckDialogs);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    const std::string kError = PlayTranscript(kCoffeeMachine, "standard input", kScript, &WriteLine);
    if (!kError.empty())
    {
        std::fprintf(stderr, "CoffeeMachineTour: %s\n", kError.c_str());
    }
    return kError.empty() ? 0 : 1;
}
