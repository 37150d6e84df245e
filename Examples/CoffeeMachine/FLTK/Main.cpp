// SPDX-License-Identifier: MIT
// The coffee machine in a window of FLTK; or plays a scenario with the mouse and the keys, and writes
// pictures.
#include "Core/Control/GUI.h"
#include "Drawn/DrawnProgram.h"
#include "FLTK/FLTKPlayer.h"
#include "FLTK/Look.h"
#include "Loader/GUIDialogXMLReader.h"

#include <FL/Fl.H>

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;

constexpr const char* cpcProgram = "CoffeeMachineFLTK";
constexpr const char* cpcHelp =
    "Usage: CoffeeMachineFLTK [SCENARIO FOLDER]\n"
    "\n"
    "Opens the coffee machine in a window. Click, or press Tab, Enter, Escape (back), Home and F12 "
    "(service).\n"
    "\n"
    "With two arguments it plays a scenario instead, with the mouse and the keys of the display, which are "
    "moved\n"
    "by the program xdotool. It prints the transcript, and writes the pictures that the scenario asks for to "
    "a\n"
    "folder. README.md lists the commands.\n";

void EndWithoutDisplay(const char*, ...)
{
    const char* pcDisplay = std::getenv("DISPLAY");
    std::exit(FailDrawn(cpcProgram, ciFailure,
                        std::string("cannot open the display '") + (pcDisplay != nullptr ? pcDisplay : "") +
                            "'; run it on a desktop, or set DISPLAY"));
}

void Settle(void* pCoffeeMachine)
{
    static_cast<CSimulatedCoffeeMachine*>(pCoffeeMachine)->Settle();
}

int OpenWindow()
{
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CRunningCoffeeMachine kCoffeeMachine(kReader);
    CMachineWindow kWindow(kCoffeeMachine.GetController());
    CPresses kPresses(kCoffeeMachine.GetController());
    CGUIFLTK kFLTK(GetFLTKOptions(kWindow), kPresses);
    AddFLTKStyles(kFLTK);
    // FLTK calls what was added last first: before the adapter commits.
    Fl::add_check(&Settle, &kCoffeeMachine);
    if (!kCoffeeMachine.PowerOn())
    {
        return FailDrawn(cpcProgram, ciFailure, "cannot show the first dialog");
    }
    kWindow.show();
    const int iStatus = Fl::run();
    Fl::remove_check(&Settle, &kCoffeeMachine);
    return iStatus;
}

std::string PlayScenario(CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses,
                         const std::string& kName, const std::string& kScript, const LineWriter_t& kWriter,
                         CEventLog& kEventLog, const char* pcPictures)
{
    CMachineWindow kWindow(kCoffeeMachine.GetController());
    Fl::event_dispatch(&CFLTKPlayer::CountEvents);
    CGUIFLTK kFLTK(GetFLTKOptions(kWindow), kPresses);
    AddFLTKStyles(kFLTK);
    kWindow.show();
    kWindow.wait_for_expose();
    CSteppedClock kClock; // the scenario moves it
    try
    {
        CFLTKPlayer kPlayer(kCoffeeMachine, kClock, kEventLog, kWriter, kWindow, kFLTK, kPresses, pcPictures);
        kPlayer.Play(kName, kScript);
        return kPlayer.GetError();
    }
    catch (const std::exception& kException)
    {
        return kException.what();
    }
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments == 2 && std::strcmp(ppcArguments[1], "--help") == 0)
    {
        std::fputs(cpcHelp, stdout);
        return 0;
    }
    if (iArguments != 1 && iArguments != 3)
    {
        return FailDrawn(cpcProgram, ciWrongUsage,
                         "expected no arguments, or the scenario and the folder of pictures; see --help");
    }
    Fl::fatal = &EndWithoutDisplay;
    // The same letters everywhere, whatever a desktop takes for Helvetica.
    Fl::set_font(FL_HELVETICA, " DejaVu Sans");
    if (iArguments == 1)
    {
        return OpenWindow();
    }
    return PlayDrawn(cpcProgram, ppcArguments[1],
                     [ppcArguments](CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses,
                                    const std::string& kName, const std::string& kScript,
                                    const LineWriter_t& kWriter, CEventLog& kEventLog) {
                         return PlayScenario(kCoffeeMachine, kPresses, kName, kScript, kWriter, kEventLog,
                                             ppcArguments[2]);
                     });
}
