// SPDX-License-Identifier: MIT
// The coffee machine on LVGL: plays a scenario with real touches and keys, and writes pictures.
#include "Drawn/DrawnProgram.h"
#include "LVGL/BoardPicture.h"
#include "LVGL/LVGLPlayer.h"
#include "LVGL/Look.h"

#include <cstdio>
#include <cstring>

namespace
{
constexpr int ciWrongUsage = 2;

constexpr const char* cpcProgram = "CoffeeMachineLVGL";
constexpr const char* cpcHelp =
    "Usage: CoffeeMachineLVGL [--small] SCENARIO FOLDER\n"
    "\n"
    "Plays a scenario on the coffee machine, drawn by LVGL into memory. Prints the transcript, and writes "
    "the\n"
    "pictures that the scenario asks for to a folder. README.md lists the commands.\n"
    "\n"
    "  --small  on a display of 320 x 240 pixels instead of 480 x 320, with pictures in the format PPM, as "
    "the\n"
    "           program for the board in Device/ of the project does\n";

/** A display and how the coffee machine looks on it. */
struct Display_t
{
    int m_iWidth;
    int m_iHeight;
    const LookSizes_t& m_kSizes;
    std::string (*m_pfnWritePicture)(const CBoard& kBoard, const std::string& kFolder,
                                     const std::string& kName);
};

const Display_t ckDisplay = {480, 320, ckSizesFor480x320,
                             [](const CBoard& kBoard, const std::string& kFolder, const std::string& kName)
                             { return WritePicture(TakePicture(kBoard), kFolder, kName); }};
const Display_t ckSmallDisplay = {
    320, 240, ckSizesFor320x240,
    [](const CBoard& kBoard, const std::string& kFolder, const std::string& kName)
    { return WritePlainPicture(kBoard, kFolder + "/" + kName + ".ppm"); }};

int Play(const Display_t& kDisplay, const char* pcScenario, const char* pcFolder)
{
    return PlayDrawn(cpcProgram, pcScenario,
                     [&kDisplay, pcFolder](CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses,
                                           const std::string& kName, const std::string& kScript,
                                           const LineWriter_t& kWriter, CEventLog& kEventLog)
                     {
                         CBoard kBoard(kDisplay.m_iWidth, kDisplay.m_iHeight);
                         CLook kLook(kDisplay.m_kSizes);
                         CGUILVGL kLVGL(kLook.GetOptions(), kPresses);
                         kLook.AddTo(kLVGL);
                         CSteppedClock kClock; // the scenario moves it, not LVGL
                         CLVGLPlayer kPlayer(
                             kCoffeeMachine, kClock, kEventLog, kWriter, kBoard, kLVGL, kPresses,
                             [&kDisplay, &kBoard, pcFolder](const std::string& kPicture)
                             { return kDisplay.m_pfnWritePicture(kBoard, pcFolder, kPicture); });
                         kPlayer.Play(kName, kScript);
                         return kPlayer.GetError();
                     });
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments == 2 && std::strcmp(ppcArguments[1], "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    const bool bIsSmall = iArguments == 4 && std::strcmp(ppcArguments[1], "--small") == 0;
    if (iArguments != 3 && !bIsSmall)
    {
        return FailDrawn(cpcProgram, ciWrongUsage,
                         "expected the scenario and the folder of pictures, with or without --small before "
                         "them; see --help");
    }
    return Play(bIsSmall ? ckSmallDisplay : ckDisplay, ppcArguments[iArguments - 2],
                ppcArguments[iArguments - 1]);
}
