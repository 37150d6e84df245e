// SPDX-License-Identifier: MIT
// The coffee machine on the board: it plays the tour with the system timer, and the dialogs are in flash. The
// transcript goes to standard output, the memory used to standard error.

#include "Device/Board/Board.h"
#include "Device/EmbeddedTexts.h"
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

void ReportUse(const char* pcName, const MemoryUse_t& kUse)
{
    std::fprintf(stderr, "%s: at most %u of %u bytes in use\n", pcName, static_cast<unsigned>(kUse.m_uiPeak),
                 static_cast<unsigned>(kUse.m_uiSize));
}
} // namespace

int main()
{
    ReportUse("heap before main", GetBoardHeapUse());
    CGUIDialogROMReader kReader(ckDialogs);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    const EmbeddedText_t& kScenario = g_akEmbeddedTexts[0];
    const std::string kError =
        PlayTranscript(kCoffeeMachine, kScenario.m_pcName, kScenario.m_pcText, &WriteLine);

    ReportUse("heap", GetBoardHeapUse());
    ReportUse("stack", GetBoardStackUse());
    if (!kError.empty())
    {
        std::fprintf(stderr, "CoffeeMachine: %s\n", kError.c_str());
    }
    return kError.empty() ? 0 : 1;
}
