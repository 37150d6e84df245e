// SPDX-License-Identifier: MIT
// Measures every workload against its floor.

#include "Benchmarks/Measure.h"

int main(int iArguments, char** ppcArguments)
{
    std::vector<Measured_t> kMeasured;
    for (const Comparison_t& kComparison : GetComparisons())
    {
        if (kComparison.m_bIsTimed)
        {
            for (const TraceSetting_t& kSetting : GetTraceSettings(kComparison.m_eTraceUse))
            {
                kMeasured.push_back({kComparison, kSetting});
            }
        }
    }
    return MeasureAll(iArguments, ppcArguments, kMeasured);
}
