#ifndef BENCHMARKS_INSTRUCTIONCOUNTER_H
#define BENCHMARKS_INSTRUCTIONCOUNTER_H

#include <cstdint>

/** The processor's count of the instructions that this program executes, where the system gives access. */
class CInstructionCounter
{
public:
    CInstructionCounter();
    CInstructionCounter(const CInstructionCounter&) = delete;
    CInstructionCounter& operator=(const CInstructionCounter&) = delete;
    ~CInstructionCounter();

    /** @return whether the processor counts; virtual machines often do not let it */
    bool IsAvailable() const { return m_iFile >= 0; }

    /** @return how many instructions were executed so far, 0 when the processor does not count */
    std::uint64_t Read() const;

private:
    int m_iFile;
};

#endif
