// SPDX-License-Identifier: MIT
// Counts the instructions and heap allocations of every workload.

#include "Benchmarks/CountWorkload.h"
#include "Benchmarks/TraceSettings.h"
#include "Benchmarks/Workload.h"
#include "Core/GUITimer.h"

#include <filesystem>

namespace
{
void Count(const Comparison_t& kComparison, const TraceSetting_t& kSetting)
{
    SetTrace(kSetting);
    const std::unique_ptr<CWorkload> pkWorkload = kComparison.m_kMake();
    CountWorkload(*pkWorkload, kSetting.m_pcName + ("/" + kComparison.m_kName), kComparison.m_uiSteps,
                  kComparison.m_uiCountedTimes);
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
