// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_INSTRUCTIONCOUNTER_H
#define BENCHMARKS_INSTRUCTIONCOUNTER_H

#include <cstdint>

/** The processor's count of instructions of this program, if the system gives access to it. */
class CInstructionCounter
{
public:
    CInstructionCounter();
    CInstructionCounter(const CInstructionCounter&) = delete;
    CInstructionCounter& operator=(const CInstructionCounter&) = delete;
    ~CInstructionCounter();

    /** @return whether the processor counts; on virtual machines it often cannot */
    bool IsAvailable() const { return m_iFile >= 0; }

    /** @return the number of instructions so far, 0 if the processor does not count */
    std::uint64_t Read() const;

private:
    int m_iFile;
};

#endif
