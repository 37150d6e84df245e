// SPDX-License-Identifier: MIT
#include "Tests/Torture/Torture.h"

#include "Core/Control/GUI.h"
#include "Scenario/Names.h"
#include "Scenario/ObjectTree.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/TextLines.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/StructureChecker.h"
#include "TestSupport/TestAccess.h"
#include "Tests/Torture/FailureRules.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace
{
/** The line that repeats the current run, in case the program crashes. */
std::array<char, 200> g_acRepeat = {};

void PrintRepeat(int iSignal)
{
    std::fputs(g_acRepeat.data(), stderr);
    std::signal(iSignal, SIG_DFL);
    std::raise(iSignal);
}

/** The result of one run. */
struct Outcome_t
{
    bool m_bFired = false;
    std::string m_kFaults;
    std::string m_kTranscript;
};

/** Plays the sequence that shows whether a manager is usable, with dialogs of its own. */
class CUsablePlayer : public CScenarioPlayer
{
public:
    explicit CUsablePlayer(CTortureSetup& kSetup)
        : CScenarioPlayer(kSetup.GetManager(), kSetup.GetClock(), kSetup.GetEvents())
    {
        AddCommand(
            "tree <path> <tree...>",
            [&kSetup](const CScenarioArguments& kArguments)
            {
                kSetup.GetCodeFactory().RegisterTree(kArguments.GetText(0), kArguments.GetRest(1));
                return std::string();
            },
            COMMAND_PREPARATION);
    }

protected:
    // Dynamic identifiers and definitions may remain: they are not part of a dialog's state.
    std::string GetState() override
    {
        return PrintState(GetManager(), STATE_ALL & ~(STATE_DEFINITIONS | STATE_DYNAMIC_IDENTIFIERS));
    }
};

void Empty(CTortureSetup& kSetup)
{
    kSetup.ForgetArrangements();
    // Long enough for everything that an application has started to end.
    constexpr eC_UInt cuiLongTime = 3600000;
    kSetup.GetClock().Advance(cuiLongTime);
    kSetup.GetManager().ClearDialogHistory(0, true, true);
    while (CGUI::GetInstance().GetFirstChild() != nullptr)
    {
        delete CGUI::GetInstance().GetFirstChild();
    }
    CGUITestAccess::UpdateActivePopups(kSetup.GetManager());
    kSetup.GetEvents().Clear();
}

/** @return how the manager differs from a new one, or the empty string */
std::string CheckUsable(CTortureSetup& kSetup, const Torture_t& kTorture)
{
    Empty(kSetup);
    std::string kFaults = CheckStructures(kSetup.GetManager());
    CUsablePlayer kPlayer(kSetup);
    kPlayer.Play("Usable.scenario", kTorture.m_kUsableScript);
    if (kPlayer.GetTranscript() != kTorture.m_kUsableGolden)
    {
        kFaults += "the manager is not usable as before:\n" +
                   DiffLines(kTorture.m_kUsableGolden, kPlayer.GetTranscript());
    }
    return kFaults + CheckStructures(kSetup.GetManager());
}

Outcome_t PlayScenario(CTortureSetup& kSetup, const Torture_t& kTorture, const Scenario_t& kScenario,
                       const Injection_t& kInjection)
{
    Outcome_t kOutcome;
    kSetup.Arm(kInjection);
    for (const std::string& kLine : kScenario.m_kLines)
    {
        const bool bHadFired = kOutcome.m_bFired;
        const std::string kStateBefore = PrintState(kSetup.GetManager());
        const bool bIsRight = kSetup.PlayLine(kLine);
        const std::vector<std::string> kLines = kSetup.TakeLines();
        kOutcome.m_kTranscript += JoinLines(kLines);
        kOutcome.m_bFired = bHadFired || kSetup.HasFired();
        // A later line may be wrong because the object that it names was never created.
        std::string kFaults = bIsRight || kOutcome.m_bFired ? "" : "the line is wrong\n";
        kFaults += CheckStructures(kSetup.GetManager());
        if (kOutcome.m_bFired && !bHadFired)
        {
            const bool bIsUnchanged = PrintState(kSetup.GetManager()) == kStateBefore;
            kFaults += CheckFailedCommand({kInjection.m_eKind, kSetup.WasSilent(), bIsUnchanged, kLines});
            kSetup.Disarm();
        }
        if (!kFaults.empty())
        {
            kOutcome.m_kFaults.append("at ").append(kLine).append("\n").append(kFaults);
        }
    }
    kSetup.Disarm();
    kOutcome.m_kFaults += CheckUsable(kSetup, kTorture);
    return kOutcome;
}

std::size_t CountBlocksAtRest()
{
    return GetHeapUse().m_uiBlocks;
}

Outcome_t Run(const Torture_t& kTorture, const Scenario_t& kScenario, const Injection_t& kInjection)
{
    const CAllocationFailureScope kSpared(false);
    std::snprintf(g_acRepeat.data(), g_acRepeat.size(), "This repeats it: %s %s %s %u\n", kTorture.m_pcName,
                  kScenario.m_kName.c_str(), NameOfInjection(kInjection.m_eKind), kInjection.m_uiNumber);
    const ObjectCensus_t kCensus = TakeObjectCensus();
    std::size_t uiBlocks = CountBlocksAtRest();
    Outcome_t kOutcome;
    {
        const std::unique_ptr<CTortureSetup> pkSetup = kTorture.m_pfnMakeSetup();
        kOutcome = PlayScenario(*pkSetup, kTorture, kScenario, kInjection);
    }
    kOutcome.m_kFaults += CompareObjectCensus(kCensus, TakeObjectCensus());
    // The outcome's own memory is not the library's.
    for (const std::string* pkText : {&kOutcome.m_kFaults, &kOutcome.m_kTranscript})
    {
        uiBlocks += pkText->capacity() > std::string().capacity() ? 1U : 0U;
    }
    const std::size_t uiBlocksAfter = CountBlocksAtRest();
    if (uiBlocksAfter != uiBlocks)
    {
        kOutcome.m_kFaults += std::to_string(static_cast<long>(uiBlocksAfter) - static_cast<long>(uiBlocks)) +
                              " blocks of memory more than before\n";
    }
    return kOutcome;
}

/** Counts runs and failures, and prints the faults. */
class CTortureReport
{
public:
    explicit CTortureReport(const Torture_t& kTorture) : m_kTorture(kTorture) {}

    void Add(const Injection_t& kInjection, const Outcome_t& kOutcome)
    {
        ++m_uiRuns;
        m_auiInjections[kInjection.m_eKind] += kOutcome.m_bFired ? 1U : 0U;
        if (kOutcome.m_kFaults.empty())
        {
            return;
        }
        ++m_uiFaultyRuns;
        constexpr eC_UInt cuiMostPrinted = 20;
        if (m_uiFaultyRuns <= cuiMostPrinted)
        {
            std::printf("%s%s\n", kOutcome.m_kFaults.c_str(), g_acRepeat.data());
        }
    }

    int Print() const
    {
        std::string kInjections;
        for (const EInjection eInjection : m_kTorture.m_kInjections)
        {
            kInjections += std::string(kInjections.empty() ? "" : ", ") +
                           std::to_string(m_auiInjections[eInjection]) + " " + NameOfInjection(eInjection);
        }
        std::printf("%s: %zu scenarios, %u runs, failures injected: %s; %u endless loops ended, %u faulty "
                    "runs\n",
                    m_kTorture.m_pcName, m_kTorture.m_kScenarios.size(), m_uiRuns, kInjections.c_str(),
                    CEndlessLoopGuard::GetNOFLoops(), m_uiFaultyRuns);
        return m_uiFaultyRuns == 0 ? 0 : 1;
    }

private:
    const Torture_t& m_kTorture;
    eC_UInt m_uiRuns = 0;
    eC_UInt m_uiFaultyRuns = 0;
    std::array<eC_UInt, cuiNOFInjections> m_auiInjections = {};
};

void RunUntilUntouched(const Torture_t& kTorture, const Scenario_t& kScenario, EInjection eInjection,
                       eC_UInt uiFirst, eC_UInt uiStep, CTortureReport& kReport)
{
    Injection_t kInjection{eInjection, uiFirst};
    bool bFired = true;
    while (bFired)
    {
        Outcome_t kOutcome = Run(kTorture, kScenario, kInjection);
        bFired = kOutcome.m_bFired;
        if (!bFired && kOutcome.m_kTranscript != kScenario.m_kGolden)
        {
            kOutcome.m_kFaults +=
                "the run is not untouched:\n" + DiffLines(kScenario.m_kGolden, kOutcome.m_kTranscript);
        }
        kReport.Add(kInjection, kOutcome);
        kInjection.m_uiNumber += uiStep;
    }
}

int RunAll(const Torture_t& kTorture, eC_UInt uiStep)
{
    CTortureReport kReport(kTorture);
    eC_UInt uiScenario = 0;
    for (const Scenario_t& kScenario : kTorture.m_kScenarios)
    {
        for (const EInjection eInjection : kTorture.m_kInjections)
        {
            // With slices, each scenario makes different allocations fail.
            const bool bIsSliced = IsAllocation(eInjection);
            const eC_UInt uiFirst = bIsSliced ? 1 + (uiScenario + eInjection) % uiStep : 1;
            RunUntilUntouched(kTorture, kScenario, eInjection, uiFirst, bIsSliced ? uiStep : 1, kReport);
        }
        ++uiScenario;
    }
    return kReport.Print();
}

int RunOne(const Torture_t& kTorture, const std::string& kName, const std::string& kInjection,
           eC_UInt uiNumber)
{
    for (const Scenario_t& kScenario : kTorture.m_kScenarios)
    {
        for (const EInjection eInjection : kTorture.m_kInjections)
        {
            if (kScenario.m_kName == kName && kInjection == NameOfInjection(eInjection))
            {
                const Outcome_t kOutcome = Run(kTorture, kScenario, {eInjection, uiNumber});
                std::printf("%s\n%s", kOutcome.m_kTranscript.c_str(), kOutcome.m_kFaults.c_str());
                return kOutcome.m_kFaults.empty() ? 0 : 1;
            }
        }
    }
    std::printf("there is no scenario %s or no failure %s\n", kName.c_str(), kInjection.c_str());
    return 2;
}
} // namespace

std::string ReadSourceFile(const std::string& kName)
{
    std::ifstream kFile(DIALOGMANAGER_SOURCE_DIRECTORY "/" + kName, std::ios::binary);
    return {std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
}

int RunTorture(const Torture_t& kTorture, int iArguments, const char* const* ppcArguments)
{
    constexpr eC_UInt cuiGreatest = 1000000;
    std::signal(SIGSEGV, &PrintRepeat);
    std::signal(SIGABRT, &PrintRepeat);
    eC_UInt uiNumber = 1;
    if (iArguments == 1)
    {
        return RunAll(kTorture, 1);
    }
    if (iArguments == 2 && ParseNumber(ppcArguments[1], cuiGreatest, uiNumber) && uiNumber > 0)
    {
        return RunAll(kTorture, uiNumber);
    }
    if (iArguments == 4 && ParseNumber(ppcArguments[3], cuiGreatest, uiNumber) && uiNumber > 0)
    {
        return RunOne(kTorture, ppcArguments[1], ppcArguments[2], uiNumber);
    }
    std::printf("usage: %s [every k-th allocation | scenario failure number]\n", kTorture.m_pcName);
    return 2;
}
