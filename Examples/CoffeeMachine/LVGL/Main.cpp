// SPDX-License-Identifier: MIT
// The coffee machine on LVGL: plays a scenario with real touches and keys, and writes pictures.
#include "LVGL/LVGLPlayer.h"
#include "LVGL/Look.h"

#include <cstdio>
#include <cstring>

namespace
{
constexpr int ciWidth = 480;
constexpr int ciHeight = 320;
constexpr int ciWrongUsage = 2;

constexpr const char* cpcProgram = "CoffeeMachineLVGL";
constexpr const char* cpcHelp =
    "Usage: CoffeeMachineLVGL SCENARIO FOLDER\n"
    "\n"
    "Plays a scenario on the coffee machine, drawn by LVGL into memory. Prints the transcript, and writes "
    "the\n"
    "pictures that the scenario asks for to a folder. README.md lists the commands.\n";
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments == 2 && std::strcmp(ppcArguments[1], "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    if (iArguments != 3)
    {
        return FailDrawn(cpcProgram, ciWrongUsage,
                         "expected two arguments, the scenario and the folder of pictures; see --help");
    }
    return PlayDrawn(cpcProgram, ppcArguments[1],
                     [ppcArguments](CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses,
                                    const std::string& kName, const std::string& kScript,
                                    const LineWriter_t& kWriter, CEventLog& kEventLog)
                     {
                         CBoard kBoard(ciWidth, ciHeight);
                         CLook kLook;
                         CGUILVGL kLVGL(CLook::GetOptions(), kPresses);
                         kLook.AddTo(kLVGL);
                         CSteppedClock kClock; // the scenario moves it, not LVGL
                         CLVGLPlayer kPlayer(kCoffeeMachine, kClock, kEventLog, kWriter, kBoard, kLVGL,
                                             kPresses, ppcArguments[2]);
                         kPlayer.Play(kName, kScript);
                         return kPlayer.GetError();
                     });
}
