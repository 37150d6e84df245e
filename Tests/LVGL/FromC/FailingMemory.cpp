// SPDX-License-Identifier: MIT
#include "Tests/LVGL/FromC/FailingMemory.h"

#include "Tests/AllocationCounter/AllocationCounter.h"

#include <optional>

static std::optional<CAllocationFailure> s_kFailure;

void let_memory_fail(unsigned uiGranted, int iAll)
{
    s_kFailure.emplace(uiGranted, iAll != 0 ? CAllocationFailure::ALL_FURTHER : CAllocationFailure::ONE);
}

unsigned stop_failing()
{
    const auto uiRefused = static_cast<unsigned>(s_kFailure->GetRefused());
    s_kFailure.reset();
    return uiRefused;
}
