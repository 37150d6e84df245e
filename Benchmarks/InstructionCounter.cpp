// SPDX-License-Identifier: MIT
#include "Benchmarks/InstructionCounter.h"

#include <linux/perf_event.h>
#include <sys/syscall.h>
#include <unistd.h>

CInstructionCounter::CInstructionCounter() : m_iFile(-1)
{
    perf_event_attr kAttributes{};
    kAttributes.size = sizeof kAttributes;
    kAttributes.type = PERF_TYPE_HARDWARE;
    kAttributes.config = PERF_COUNT_HW_INSTRUCTIONS;
    kAttributes.exclude_kernel = 1;
    kAttributes.exclude_hv = 1;
    m_iFile = static_cast<int>(syscall(SYS_perf_event_open, &kAttributes, 0, -1, -1, 0));
}

CInstructionCounter::~CInstructionCounter()
{
    if (IsAvailable())
    {
        close(m_iFile);
    }
}

std::uint64_t CInstructionCounter::Read() const
{
    std::uint64_t uiCount = 0;
    if (!IsAvailable() || read(m_iFile, &uiCount, sizeof uiCount) != sizeof uiCount)
    {
        return 0;
    }
    return uiCount;
}
