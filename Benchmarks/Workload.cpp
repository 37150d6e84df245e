// SPDX-License-Identifier: MIT
#include "Benchmarks/Workload.h"

Comparisons_t GetComparisons()
{
    Comparisons_t kComparisons;
    AddSwitchComparisons(kComparisons);
    AddPopupComparisons(kComparisons);
    AddTreeComparisons(kComparisons);
    AddListComparisons(kComparisons);
    AddLoadComparisons(kComparisons);
    AddTraceComparisons(kComparisons);
    AddCompanionComparisons(kComparisons);
    AddMirrorComparisons(kComparisons);
    return kComparisons;
}
