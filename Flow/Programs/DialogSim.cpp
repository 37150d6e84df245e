// SPDX-License-Identifier: MIT
#include "Flow/FlowReader.h"
#include "Flow/FlowReload.h"
#include "Inspection/Viewer/PlainAttachment.h"
#include "Scenario/Names.h"
#include "Simulator/Attach/RunAttached.h"
#include "Simulator/Terminal/RunSimulator.h"
#include "Simulator/Terminal/Terminal.h"

#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

namespace
{
constexpr const eC_Char* cpcName = "dialogsim";
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;
constexpr eC_UInt cuiUsualBaud = 115200;
constexpr eC_UInt cuiMostBaud = 921600;

constexpr const eC_Char* cpcUsage =
    "Usage: dialogsim FLOW.xml [OPTION ...] [SCENARIO]\n"
    "       dialogsim --attach TARGET [--baud RATE]\n"
    "\n"
    "Runs a flow file as a device. Its tour is the scenario of the same name beside it, FLOW.scenario.\n";

constexpr const eC_Char* cpcAttachHelp =
    "\n"
    "Or it looks into a running program: in a terminal with state, objects and trace in panes, where ? "
    "lists\n"
    "the keys. Elsewhere it prints everything that changes, each line with the program's time.\n"
    "\n"
    "  --attach TARGET    host:port, or :port for this machine; the path of a serial device; or - for lines\n"
    "                     that arrive on standard input\n"
    "  --baud RATE        of a serial device, 9600 to 921600; 115200 without it\n"
    "\n"
    "What you type goes to the program, line by line, if it takes commands; Docs/Inspection.md lists them. "
    "At\n"
    "the end of the input dialogsim waits for the replies, and leaves.\n";

/** What the command line asks for. */
struct Request_t
{
    SimulatorOptions_t m_kOptions;
    std::string m_kTarget;
    std::string m_kBaud;
};

int Fail(int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "%s: %s\n", cpcName, kMessage.c_str());
    return iStatus;
}

/** @return what is wrong with the arguments, or the empty string */
std::string ReadArguments(const std::vector<std::string>& kArguments, Request_t& kRequestOUT)
{
    SimulatorOptions_t& kOptions = kRequestOUT.m_kOptions;
    const ProgramSyntax_t kSyntax{true,
                                  {{"--attach", "where a program is", &kRequestOUT.m_kTarget},
                                   {"--baud", "a number from 9600 to 921600", &kRequestOUT.m_kBaud}}};
    std::string kFault = ReadSimulatorOptions(kArguments, kOptions, kSyntax);
    if (!kFault.empty() || kOptions.m_eTask == SimulatorOptions_t::TASK_HELP)
    {
        return kFault;
    }
    if (kRequestOUT.m_kTarget.empty())
    {
        kFault = kRequestOUT.m_kBaud.empty() ? "" : "--baud is for --attach";
        return kOptions.m_kFile.empty() ? "expected a flow file, or --attach and where a program is" : kFault;
    }
    // Whatever else was given is meant for a flow.
    const eC_UInt uiWords = kRequestOUT.m_kBaud.empty() ? 2 : 4;
    return kArguments.size() == uiWords ? "" : "expected nothing with --attach but --baud";
}

int Attach(const Request_t& kRequest)
{
    eC_UInt uiBaud = cuiUsualBaud;
    if (!kRequest.m_kBaud.empty() && !ParseNumber(kRequest.m_kBaud.c_str(), cuiMostBaud, uiBaud))
    {
        return Fail(ciWrongUsage, "--baud: expected a number from 9600 to 921600, found " + kRequest.m_kBaud +
                                      "; see --help");
    }
    // A program that goes while a line is sent must not end this one without a word.
    std::signal(SIGPIPE, SIG_IGN);
    CConnection kConnection;
    const std::string kError = kConnection.Open(kRequest.m_kTarget, uiBaud);
    if (!kError.empty())
    {
        return Fail(ciFailure, kError);
    }
    const eC_Bool bShows = isatty(STDOUT_FILENO) != 0;
    const eC_Bool bHasKeys = kRequest.m_kTarget != "-" || (bShows && kConnection.LeaveStandardInput());
    std::string kFault;
    if (!bHasKeys || !CTerminal::IsThere() || !AttachInTerminal(kConnection, kRequest.m_kTarget, kFault))
    {
        return AttachInPlainText(kConnection, cpcName) ? 0 : ciFailure;
    }
    const int iSignal = CTerminal::GetSignal();
    if (iSignal != 0)
    {
        // The handlers of before are back: the program ends as the sender of the signal expects.
        std::raise(iSignal);
    }
    return kFault.empty() ? 0 : Fail(ciFailure, kFault);
}

int RunFlow(const SimulatorOptions_t& kOptions)
{
    std::string kError;
    const std::shared_ptr<const FlowModel_t> pkFlow = ReadFlow(kOptions.m_kFile, kError);
    if (pkFlow == nullptr)
    {
        // Without the program's name, so that editors find the place.
        std::fprintf(stderr, "%s\n", kError.c_str());
        return ciWrongUsage;
    }
    std::filesystem::path kTour(kOptions.m_kFile);
    kTour.replace_extension(".scenario");
    std::error_code kNone;
    const std::string kTourName = std::filesystem::exists(kTour, kNone) ? kTour.string() : "";
    CFlowApplication kApplication(pkFlow);
    CFlowReload kReload(kApplication);
    return RunSimulator(kOptions, kApplication, {cpcName, kTourName.c_str(), &kReload});
}

int Run(const std::vector<std::string>& kArguments)
{
    Request_t kRequest;
    const std::string kFault = ReadArguments(kArguments, kRequest);
    if (!kFault.empty())
    {
        return Fail(ciWrongUsage, kFault + "; see --help");
    }
    if (kRequest.m_kOptions.m_eTask == SimulatorOptions_t::TASK_HELP)
    {
        std::fputs((cpcUsage + GetSimulatorOptionsHelp() + cpcAttachHelp).c_str(), stdout);
        return 0;
    }
    return kRequest.m_kTarget.empty() ? RunFlow(kRequest.m_kOptions) : Attach(kRequest);
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    try
    {
        return Run(
            std::vector<std::string>(ppcArguments + (iArguments > 0 ? 1 : 0), ppcArguments + iArguments));
    }
    catch (const std::exception& kException)
    {
        return Fail(ciFailure, kException.what());
    }
}
