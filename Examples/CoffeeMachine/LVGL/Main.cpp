// SPDX-License-Identifier: MIT
// The coffee machine on LVGL: plays a scenario with real touches and keys, and writes pictures.
#include "LVGL/LVGLPlayer.h"
#include "LVGL/Look.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Scenario/TraceRecorder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace
{
constexpr int ciWidth = 480;
constexpr int ciHeight = 320;
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;

constexpr const char* cpcHelp =
    "Usage: CoffeeMachineLVGL SCENARIO FOLDER\n"
    "\n"
    "Plays a scenario on the coffee machine, drawn by LVGL into memory. Prints the transcript, and writes "
    "the\n"
    "pictures that the scenario asks for to a folder. README.md lists the commands.\n";

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "CoffeeMachineLVGL: %s\n", kMessage.c_str());
    return iStatus;
}

void AddToEvents(void* pContext, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                 const eC_String& kLine)
{
    AddTraceEvent(*static_cast<CEventLog*>(pContext),
                  {kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()});
}

void WriteLine(const std::string& kLine)
{
    std::fputs((kLine + "\n").c_str(), stdout);
}

std::string Play(CGUIDialogReader& kReader, const std::string& kName, const std::string& kScript,
                 const std::string& kPictures)
{
    CBoard kBoard(ciWidth, ciHeight);
    CLook kLook;
    CEventLog kEventLog;
    CRunningCoffeeMachine kCoffeeMachine(kReader);
    CPresses kPresses(kCoffeeMachine.GetController());
    CGUILVGL kLVGL(CLook::GetOptions(), kPresses);
    kLook.AddTo(kLVGL);
    CSteppedClock kClock; // the scenario moves it, not LVGL
    CGUITraceFunction kSink(&AddToEvents, &kEventLog);
    CGUITrace::GetInstance().SetSink(&kSink);
    CLVGLPlayer kPlayer(kCoffeeMachine, kClock, kEventLog, &WriteLine, kBoard, kLVGL, kPresses, kPictures);
    kPlayer.Play(kName, kScript);
    CGUITrace::GetInstance().SetSink(nullptr);
    return kPlayer.GetError();
}
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
        return Fail(ciWrongUsage,
                    "expected two arguments, the scenario and the folder of pictures; see --help");
    }
    std::ifstream kFile(ppcArguments[1], std::ios::binary);
    const std::string kScript{std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
    if (kScript.empty())
    {
        return Fail(ciFailure, std::string("cannot read ") + ppcArguments[1] + ": " + std::strerror(errno));
    }
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    const std::string kError = Play(kReader, ppcArguments[1], kScript, ppcArguments[2]);
    const bool bIsWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (!kError.empty())
    {
        return Fail(ciFailure, kError);
    }
    return bIsWritten ? 0 : Fail(ciFailure, "cannot write the transcript");
}
