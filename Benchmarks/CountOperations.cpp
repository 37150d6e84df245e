// SPDX-License-Identifier: MIT
// Counts the instructions and heap allocations of every workload. Callgrind counts the instructions: for each
// workload the program writes two dumps, one of some repetitions and one of twice as many. Their difference
// is the cost of the repetitions, and it is the same every time.

#include "Benchmarks/Allocations.h"
#include "Benchmarks/TraceSettings.h"
#include "Benchmarks/Workload.h"
#include "Core/GUITimer.h"

#include <valgrind/callgrind.h>

#include <cstdio>
#include <filesystem>

namespace
{
/** Does the work while callgrind counts. */
void CountInstructions(CWorkload& kWorkload, unsigned uiTimes, const std::string& kName)
{
    CALLGRIND_START_INSTRUMENTATION;
    kWorkload.Repeat(uiTimes);
    CALLGRIND_STOP_INSTRUMENTATION;
    CALLGRIND_DUMP_STATS_AT(kName.c_str());
}

void Count(const Comparison_t& kComparison, const TraceSetting_t& kSetting)
{
    SetTrace(kSetting);
    const std::unique_ptr<CWorkload> pkWorkload = kComparison.m_kMake();
    const unsigned uiTimes = kComparison.m_uiCountedTimes;
    // What only the first times cost, such as the growth of a buffer, does not count.
    pkWorkload->Repeat(uiTimes);

    const std::uint64_t uiBefore = GetNOFAllocations();
    pkWorkload->Repeat(uiTimes);
    const double dAllocations = static_cast<double>(GetNOFAllocations() - uiBefore);

    const std::string kName = kSetting.m_pcName + ("/" + kComparison.m_kName);
    CountInstructions(*pkWorkload, uiTimes, kName + " less");
    CountInstructions(*pkWorkload, 2 * uiTimes, kName + " more");
    const unsigned uiOperations = uiTimes * kComparison.m_uiSteps;
    std::printf("%s %u %.4f\n", kName.c_str(), uiOperations, dAllocations / uiOperations);
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    static_cast<void>(iArguments);
    // The trace logs how long loading took, and its number of digits changes the number of instructions.
    GETTIMER.SetClock([]() -> eC_UInt { return 0; });
    std::filesystem::current_path(std::filesystem::absolute(ppcArguments[0]).parent_path());
    for (const Comparison_t& kComparison : GetComparisons())
    {
        for (const TraceSetting_t& kSetting : GetTraceSettings(kComparison.m_eTraceUse))
        {
            if (kComparison.m_uiCountedTimes > 0)
            {
                Count(kComparison, kSetting);
            }
        }
    }
    return EXIT_SUCCESS;
}
