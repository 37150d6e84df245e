// SPDX-License-Identifier: MIT
// The coffee machine on LVGL on the board: it plays a scenario with real touches and keys on a display of 320
// x 240 pixels, with the dialogs in flash. The transcript goes to standard output, the memory used to
// standard error. The arguments are the number of the scenario, 0 for the tour and 1 for the one with
// pictures, and the folder of the debugging computer that gets these.

#include "Device/Board/Board.h"
#include "Device/EmbeddedTexts.h"
#include "Dialogs.h"
#include "Drawn/DrawnPlayer.h"
#include "LVGL/BoardPicture.h"
#include "LVGL/LVGLPlayer.h"
#include "LVGL/Look.h"
#include "Loader/GUIDialogROMReader.h"

#include <cstdio>
#include <string>

namespace
{
constexpr int ciWidth = 320;
constexpr int ciHeight = 240;
constexpr int ciLines = 24; ///< drawn at a time

__attribute__((section(".display"))) unsigned short g_auiDisplay[ciWidth * ciHeight];
alignas(LV_DRAW_BUF_ALIGN) unsigned short g_auiDrawn[ciWidth * ciLines];

void WriteLine(const std::string& kLine)
{
    std::puts(kLine.c_str());
}

void ReportUse(const char* pcName, const MemoryUse_t& kUse)
{
    std::fprintf(stderr, "%s: at most %u of %u bytes in use\n", pcName, static_cast<unsigned>(kUse.m_uiPeak),
                 static_cast<unsigned>(kUse.m_uiSize));
}

std::string Play(CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses, const EmbeddedText_t& kScenario,
                 CEventLog& kEventLog, const std::string& kFolder)
{
    CBoard kBoard(ciWidth, ciHeight, g_auiDisplay, g_auiDrawn, ciLines);
    CLook kLook(ckSizesFor320x240);
    CGUILVGL kLVGL(kLook.GetOptions(), kPresses);
    kLook.AddTo(kLVGL);
    CSteppedClock kClock; // the scenario moves it, not LVGL
    CLVGLPlayer kPlayer(kCoffeeMachine, kClock, kEventLog, &WriteLine, kBoard, kLVGL, kPresses,
                        [&kBoard, &kFolder](const std::string& kPicture)
                        { return WritePlainPicture(kBoard, kFolder + "/" + kPicture + ".ppm"); });
    kPlayer.Play(kScenario.m_pcName, kScenario.m_pcText);
    lv_mem_monitor_t kUse;
    lv_mem_monitor(&kUse);
    ReportUse("heap of LVGL", {kUse.max_used, LV_MEM_SIZE});
    return kPlayer.GetError();
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const EmbeddedText_t& kScenario = g_akEmbeddedTexts[iArguments > 1 && *ppcArguments[1] == '1' ? 1 : 0];
    const std::string kFolder = iArguments > 2 ? ppcArguments[2] : ".";
    CGUIDialogROMReader kReader(ckDialogs);
    const std::string kError =
        PlayOnDisplay(kReader, [&kScenario, &kFolder](CSimulatedCoffeeMachine& kCoffeeMachine,
                                                      CPresses& kPresses, CEventLog& kEventLog)
                      { return Play(kCoffeeMachine, kPresses, kScenario, kEventLog, kFolder); });

    ReportUse("heap of the program", GetBoardHeapUse());
    ReportUse("stack", GetBoardStackUse());
    if (!kError.empty())
    {
        std::fprintf(stderr, "CoffeeMachineLVGL: %s\n", kError.c_str());
    }
    return kError.empty() ? 0 : 1;
}
