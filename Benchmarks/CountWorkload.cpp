// SPDX-License-Identifier: MIT
#include "Benchmarks/CountWorkload.h"

#include "Benchmarks/Allocations.h"

#include <valgrind/callgrind.h>

#include <cstdio>

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
} // namespace

void CountWorkload(CWorkload& kWorkload, const std::string& kName, unsigned uiSteps, unsigned uiTimes)
{
    // What only the first times cost, such as the growth of a buffer, does not count.
    kWorkload.Repeat(uiTimes);

    const std::uint64_t uiBefore = GetNOFAllocations();
    kWorkload.Repeat(uiTimes);
    const double dAllocations = static_cast<double>(GetNOFAllocations() - uiBefore);

    CountInstructions(kWorkload, uiTimes, kName + " less");
    CountInstructions(kWorkload, 2 * uiTimes, kName + " more");
    const unsigned uiOperations = uiTimes * uiSteps;
    std::printf("%s %u %.4f\n", kName.c_str(), uiOperations, dAllocations / uiOperations);
}
