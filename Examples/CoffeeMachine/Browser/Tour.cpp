// SPDX-License-Identifier: MIT
// The tour as WebAssembly, without a page: node runs it. The scenario comes from standard input, the
// transcript goes to standard output, and the dialogs are compiled in.

#include "Dialogs.h"
#include "Loader/GUIDialogROMReader.h"
#if __has_include("Tour/TourPlayer.h")
#include "Core/GUIFactoryManager.h"
#include "Tour/TourPlayer.h"
#else
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/SimulationPlayer.h"
#endif

#include <cstdio>
#include <string>

namespace
{
void WriteLine(const std::string& kLine)
{
    std::puts(kLine.c_str());
}

std::string Play(CGUIDialogROMReader& kReader, const std::string& kScript)
{
#if __has_include("Tour/TourPlayer.h")
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &kReader);
    std::string kError = PlayTour("standard input", kScript, &WriteLine);
    CGUIFactoryManager::DestroyInstance();
    return kError;
#else
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    return PlayTranscript(kCoffeeMachine, "standard input", kScript, &WriteLine);
#endif
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
    const std::string kError = Play(kReader, kScript);
    if (!kError.empty())
    {
        std::fprintf(stderr, "CoffeeMachineTour: %s\n", kError.c_str());
    }
    return kError.empty() ? 0 : 1;
}
