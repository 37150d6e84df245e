// SPDX-License-Identifier: MIT
#include "Simulator/Terminal/RunSimulator.h"

#include "Scenario/TextLines.h"
#include "Simulator/ScreenPicture.h"
#include "Simulator/ShortTour.h"
#include "Simulator/SimulationPlayer.h"
#include "Simulator/SimulatorView.h"
#include "Simulator/Terminal/SimulatorOptions.h"
#include "Simulator/Terminal/Terminal.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>

namespace
{
constexpr int ciFailure = 1;
constexpr int ciWrongUsage = 2;
constexpr const eC_Char* cpcShortestTour = "## The first screen\npower-on\n";
constexpr eC_UInt cuiFrameTime = 40;         ///< milliseconds
constexpr eC_UInt cuiFramesBetweenLooks = 8; ///< at files that may have changed
constexpr eC_UInt cuiLongestPause =
    250; ///< of real time that counts: a program that was stopped does not catch up

/** What cannot be done, as one line. */
struct Failure_t
{
    int m_iStatus;
    std::string m_kReason;
};

std::string ReadFile(const std::string& kPath)
{
    errno = 0;
    std::ifstream kFile(kPath, std::ios::binary);
    std::string kText{std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
    if (!kFile.is_open() || kFile.bad() || errno != 0)
    {
        throw Failure_t{ciFailure, "cannot read " + kPath + ": " + std::strerror(errno)};
    }
    return kText;
}

void WriteFile(const std::string& kPath, const std::string& kText)
{
    errno = 0;
    std::ofstream kFile(kPath, std::ios::binary);
    kFile << kText;
    kFile.close();
    if (!kFile)
    {
        throw Failure_t{ciFailure, "cannot write " + kPath + ": " + std::strerror(errno)};
    }
}

void Print(const std::string& kLine)
{
    std::fputs((kLine + "\n").c_str(), stdout);
}

void CheckPrinted()
{
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
    {
        throw Failure_t{ciFailure, "cannot write to standard output"};
    }
}

/** Runs one application as the options say. */
class CProgram
{
public:
    CProgram(CSimulatedApplication& kApplication, const SimulatorProgram_t& kProgram,
             const SimulatorOptions_t& kOptions)
        : m_kApplication(kApplication), m_kProgram(kProgram), m_kOptions(kOptions)
    {
    }

    void Run()
    {
        switch (m_kOptions.m_eTask)
        {
        case SimulatorOptions_t::TASK_HELP:
            std::fputs(("Usage: " + std::string(m_kProgram.m_pcName) + " [OPTION ...] [SCENARIO]\n\n" +
                        GetSimulatorOptionsHelp())
                           .c_str(),
                       stdout);
            break;
        case SimulatorOptions_t::TASK_PLAY:
            Play();
            break;
        case SimulatorOptions_t::TASK_JSON:
            WriteJSON();
            break;
        case SimulatorOptions_t::TASK_SHOT:
            WriteShot();
            break;
        case SimulatorOptions_t::TASK_LIST:
            List();
            break;
        case SimulatorOptions_t::TASK_DESK:
            RunDesk();
            break;
        }
        CheckPrinted();
    }

private:
    eC_Bool HasTour() const { return *m_kProgram.m_pcTour != '\0'; }

    /** @return the scenario that is asked for, or the tour */
    std::string GetScenarioName() const
    {
        if (m_kOptions.m_kScenario.empty() && !HasTour())
        {
            throw Failure_t{ciWrongUsage, "expected a scenario, because there is no tour"};
        }
        return m_kOptions.m_kScenario.empty() ? m_kProgram.m_pcTour : m_kOptions.m_kScenario;
    }

    void Play()
    {
        const std::string kName = GetScenarioName();
        const std::string kError = PlayTranscript(m_kApplication, kName, ReadFile(kName), &Print);
        if (!kError.empty())
        {
            CheckPrinted();
            throw Failure_t{ciFailure, kError};
        }
    }

    /** Runs the lines of a scenario; the first wrong one is a failure. */
    static void RunScenario(CSimulation& kSimulation, const std::string& kName)
    {
        std::size_t uiLine = 0;
        for (const std::string& kLine : SplitLines(ReadFile(kName)))
        {
            ++uiLine;
            const SimulatedResult_t kResult = kSimulation.Run(kLine);
            if (!kResult.m_bIsExecuted)
            {
                throw Failure_t{ciFailure, kName + ":" + std::to_string(uiLine) + ": " + kResult.m_kText};
            }
        }
    }

    /** Executes --from and --goto; without --from the device is switched on. */
    void Begin(CSimulation& kSimulation) const
    {
        const std::string kFault = m_kApplication.CheckFiles();
        if (!kFault.empty())
        {
            throw Failure_t{ciFailure, kFault};
        }
        if (m_kOptions.m_kFrom.empty())
        {
            kSimulation.Run("power-on");
        }
        else
        {
            RunScenario(kSimulation, m_kOptions.m_kFrom);
        }
        if (!m_kOptions.m_kGoTo.empty())
        {
            GoTo(kSimulation);
        }
    }

    void GoTo(CSimulation& kSimulation) const
    {
        const std::string& kName = m_kOptions.m_kGoTo;
        ObjectHandle_t eID = NO_HANDLE;
        if (!ParseObjectHandle(kName.c_str(), eID))
        {
            throw Failure_t{ciWrongUsage,
                            "--goto: expected the name of a dialog or popup (--list prints them), found '" +
                                kName + "'"};
        }
        CGUIDialogManager::RegisteredPopup_t kPopup;
        const eC_Bool bIsPopup = m_kApplication.GetManager().GetRegisteredPopupInfo(eID, kPopup);
        const SimulatedResult_t kResult =
            kSimulation.Run(bIsPopup ? "ShowPopup " + kName : "CreateDialog " + kName + " ODA_INVISIBLE");
        if (kResult.m_kText == "null")
        {
            throw Failure_t{ciFailure, "--goto: " + kName + " cannot be shown"};
        }
    }

    void WriteJSON()
    {
        CSimulation kSimulation(m_kApplication, &Print);
        if (!m_kOptions.m_kFrom.empty() || !m_kOptions.m_kGoTo.empty())
        {
            Begin(kSimulation);
        }
        if (m_kOptions.m_kScenario != "-")
        {
            RunScenario(kSimulation, GetScenarioName());
            return;
        }
        std::string kLine;
        while (std::getline(std::cin, kLine))
        {
            LookForChange(kSimulation);
            kSimulation.Run(kLine);
            std::fflush(stdout);
        }
    }

    void LookForChange(CSimulation& kSimulation) const
    {
        std::string kText;
        if (m_kProgram.m_pkSource != nullptr &&
            m_kProgram.m_pkSource->Look(kSimulation, kText) == CSimulatedSource::NEWS_MISTAKE)
        {
            std::fprintf(stderr, "%s\n", kText.c_str());
        }
    }

    void WriteShot()
    {
        CSimulation kSimulation(m_kApplication);
        Begin(kSimulation);
        const CSimulatorDesk kDesk(kSimulation, std::string());
        WriteFile(m_kOptions.m_kShot, Draw(kDesk, m_kOptions.m_iWidth, m_kOptions.m_iHeight));
    }

    std::string Draw(const CSimulatorDesk& kDesk, eC_Int iWidth, eC_Int iHeight) const
    {
        return WriteSVG(DrawDesk(kDesk, iWidth, iHeight),
                        std::string(m_kApplication.GetDevice().m_pcName) + " in the simulator");
    }

    void List()
    {
        CSimulation kSimulation(m_kApplication);
        Begin(kSimulation);
        const CGUIDialogManager& kManager = m_kApplication.GetManager();
        const StateNames_t kNames = CollectNames(kSimulation.GetInspector());
        for (const std::string& kName : kNames.m_kDialogs)
        {
            ObjectHandle_t eID = NO_HANDLE;
            ParseObjectHandle(kName.c_str(), eID);
            PrintDefinition("dialog", kName, kManager.GetRegisteredPath(eID));
        }
        for (const std::string& kName : kNames.m_kPopups)
        {
            ObjectHandle_t eID = NO_HANDLE;
            CGUIDialogManager::RegisteredPopup_t kPopup;
            ParseObjectHandle(kName.c_str(), eID);
            kManager.GetRegisteredPopupInfo(eID, kPopup);
            PrintDefinition("popup", kName, kPopup.m_kPath);
        }
    }

    /** Prints a definition; what has no file is built in code. */
    static void PrintDefinition(const eC_Char* pcKind, const std::string& kName, const eC_String& kPath)
    {
        const std::string kFile = kPath.GetText();
        Print(std::string(pcKind) + " " + kName + (kFile.empty() ? "" : " " + kFile));
    }

    void RunDesk()
    {
        const std::string kTour = HasTour() ? ReadFile(m_kProgram.m_pcTour) : std::string();
        CSimulation kSimulation(m_kApplication);
        if (!CTerminal::IsThere())
        {
            PrintShortTour(kSimulation, kTour);
            return;
        }
        CSimulatorDesk kDesk(kSimulation, kTour);
        Begin(kSimulation);
        kDesk.Say("? lists the keys, q leaves");
        if (HasTour() && m_kOptions.m_kFrom.empty() && m_kOptions.m_kGoTo.empty())
        {
            kDesk.PlayTour();
        }
        std::exception_ptr pkException;
        try
        {
            if (!RunInTerminal(kDesk))
            {
                PrintShortTour(kSimulation, kTour);
                return;
            }
        }
        catch (...)
        {
            // What was done until then is worth the most.
            pkException = std::current_exception();
        }
        Record(kSimulation);
        if (pkException != nullptr)
        {
            std::rethrow_exception(pkException);
        }
    }

    void Record(const CSimulation& kSimulation) const
    {
        if (!m_kOptions.m_kRecord.empty())
        {
            const auto kEnd =
                kSimulation.GetLines().begin() + static_cast<std::ptrdiff_t>(kSimulation.GetPosition());
            WriteFile(m_kOptions.m_kRecord, JoinLines({kSimulation.GetLines().begin(), kEnd}));
        }
    }

    /** @return false if the terminal cannot be used */
    eC_Bool RunInTerminal(CSimulatorDesk& kDesk) const
    {
        using Clock = std::chrono::steady_clock;
        CTerminal kTerminal;
        if (!kTerminal.IsUsable())
        {
            return false;
        }
        Clock::time_point kBefore = Clock::now();
        eC_UInt uiFrames = 0;
        while (!kDesk.IsOver() && CTerminal::GetSignal() == 0)
        {
            kTerminal.Show(DrawDesk(kDesk, kTerminal.GetWidth(), kTerminal.GetHeight()));
            TakeInput(kTerminal, kDesk);
            if (m_kProgram.m_pkSource != nullptr && ++uiFrames % cuiFramesBetweenLooks == 0)
            {
                kDesk.LookForChange(*m_kProgram.m_pkSource);
            }
            const Clock::time_point kNow = Clock::now();
            const auto iPassed = std::chrono::duration_cast<std::chrono::milliseconds>(kNow - kBefore);
            kBefore += iPassed;
            kDesk.PassTime(std::min(static_cast<eC_UInt>(iPassed.count()), cuiLongestPause));
            WriteRequestedShot(kTerminal, kDesk);
        }
        return true;
    }

    static void TakeInput(CTerminal& kTerminal, CSimulatorDesk& kDesk)
    {
        TakeTerminalInput(kTerminal, cuiFrameTime,
                          [&](const TerminalInput_t& kInput)
                          {
                              Take(kInput, kTerminal.GetWidth(), kTerminal.GetHeight(), kDesk);
                              return !kDesk.IsOver();
                          });
    }

    static void Take(const TerminalInput_t& kInput, eC_Int iWidth, eC_Int iHeight, CSimulatorDesk& kDesk)
    {
        if (kInput.m_eKind == TerminalInput_t::INPUT_KEY)
        {
            kDesk.PressKey(kInput.m_kKey);
        }
        else if (kInput.m_eKind == TerminalInput_t::INPUT_CLICK)
        {
            ClickDesk(kDesk, iWidth, iHeight, kInput.m_iX, kInput.m_iY);
        }
        else
        {
            ScrollDesk(kDesk, iWidth, iHeight, kInput.m_iX, kInput.m_iY, kInput.m_iLines);
        }
    }

    void WriteRequestedShot(const CTerminal& kTerminal, CSimulatorDesk& kDesk) const
    {
        const std::string kFile = kDesk.TakeShotRequest();
        if (kFile.empty())
        {
            return;
        }
        try
        {
            WriteFile(kFile, Draw(kDesk, kTerminal.GetWidth(), kTerminal.GetHeight()));
            kDesk.Say("the picture is in " + kFile);
        }
        catch (const Failure_t& kFailure)
        {
            kDesk.Say(kFailure.m_kReason, STYLE_ERROR);
        }
    }

    void PrintShortTour(CSimulation& kSimulation, const std::string& kTour) const
    {
        const std::string kFault = m_kApplication.CheckFiles();
        if (!kFault.empty())
        {
            throw Failure_t{ciFailure, kFault};
        }
        std::string kError;
        for (const std::string& kLine :
             TellShortTour(kSimulation, HasTour() ? kTour : cpcShortestTour, kError))
        {
            Print(kLine);
        }
        if (!kError.empty())
        {
            CheckPrinted();
            throw Failure_t{ciFailure, std::string(m_kProgram.m_pcTour) + ": " + kError};
        }
        Print(HasTour() ? "This is the short tour: in a terminal it plays by itself, and you can take over. "
                          "--play prints all of it."
                        : "This is what it shows first: in a terminal you can use it. --play SCENARIO prints "
                          "what a scenario does.");
    }

    CSimulatedApplication& m_kApplication;
    const SimulatorProgram_t& m_kProgram;
    const SimulatorOptions_t& m_kOptions;
};

int Fail(const SimulatorProgram_t& kProgram, int iStatus, const std::string& kReason)
{
    std::fprintf(stderr, "%s: %s\n", kProgram.m_pcName, kReason.c_str());
    return iStatus;
}
} // namespace

int RunSimulator(int iArguments, char** ppcArguments, CSimulatedApplication& kApplication,
                 const SimulatorProgram_t& kProgram)
{
    SimulatorOptions_t kOptions;
    const std::vector<std::string> kArguments(ppcArguments + std::min(iArguments, 1),
                                              ppcArguments + iArguments);
    const std::string kFault = ReadSimulatorOptions(kArguments, kOptions);
    return kFault.empty() ? RunSimulator(kOptions, kApplication, kProgram)
                          : Fail(kProgram, ciWrongUsage, kFault + "; see --help");
}

int RunSimulator(const SimulatorOptions_t& kOptions, CSimulatedApplication& kApplication,
                 const SimulatorProgram_t& kProgram)
{
    try
    {
        CProgram(kApplication, kProgram, kOptions).Run();
    }
    catch (const Failure_t& kFailure)
    {
        return Fail(kProgram, kFailure.m_iStatus, kFailure.m_kReason);
    }
    catch (const std::exception& kException)
    {
        return Fail(kProgram, ciFailure,
                    std::string("an exception ended the simulator: ") + kException.what());
    }
    catch (...)
    {
        return Fail(kProgram, ciFailure, "an exception ended the simulator");
    }
    const int iSignal = CTerminal::GetSignal();
    if (iSignal != 0)
    {
        // The handlers of before are back: the program ends as the sender of the signal expects.
        std::raise(iSignal);
    }
    return 0;
}
