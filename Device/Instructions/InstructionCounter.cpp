// SPDX-License-Identifier: MIT
#include "Device/Instructions/InstructionCounter.h"

#include "Device/Board/Board.h"
#include "Device/Board/Registers.h"

namespace
{
constexpr std::uint32_t cuiInstructionsPerTick = 40;
constexpr std::uint32_t cuiGreatestCount = 0x00FFFFFFU;
constexpr int ciTimesInVain = 4;

/** Executes a number of additional instructions, 0 to 39. */
__attribute__((noinline)) void Delay(std::uint32_t uiInstructions)
{
    std::uint32_t uiAddress = 0;
    asm volatile("adr %0, 1f\n"
                 "sub %0, %0, %1, lsl #1\n"
                 "orr %0, %0, #1\n"
                 "bx %0\n"
                 ".rept 40\n"
                 "nop\n"
                 ".endr\n"
                 ".balign 4\n"
                 "1:\n"
                 : "=&r"(uiAddress)
                 : "r"(uiInstructions));
}

/** @return the ticks between setting and reading the timer */
__attribute__((noinline)) std::uint32_t CountTicks(COperation& kOperation, std::uint32_t uiDelay)
{
    SYSTICK.m_uiControl = 0;
    SYSTICK.m_uiReload = cuiGreatestCount;
    SYSTICK.m_uiCurrent = 0;
    SYSTICK.m_uiControl = cuiSysTickEnable | cuiSysTickProcessorClock;
    Delay(uiDelay);
    kOperation.Do();
    // The timer stays at 0 until its first tick, and then counts down from its greatest value.
    return (0U - SYSTICK.m_uiCurrent) & cuiGreatestCount;
}

/** @return the instructions of the operation, plus those of the counting itself */
std::uint32_t CountAll(COperation& kOperation)
{
    for (int iTime = 0; iTime < ciTimesInVain; ++iTime)
    {
        CountTicks(kOperation, 0);
        kOperation.Undo();
    }
    std::uint32_t uiSum = 0;
    std::uint32_t uiLast = 0;
    for (std::uint32_t uiDelay = 0; uiDelay < cuiInstructionsPerTick; ++uiDelay)
    {
        const std::uint32_t uiTicks = CountTicks(kOperation, uiDelay);
        kOperation.Undo();
        if (uiDelay > 0 && uiTicks != uiLast && uiTicks != uiLast + 1)
        {
            StopBoard("an operation does not take the same number of instructions every time");
        }
        uiLast = uiTicks;
        uiSum += uiTicks;
    }
    if (uiLast > cuiGreatestCount / 2)
    {
        StopBoard("an operation takes too many instructions to be counted");
    }
    return uiSum;
}

/** Does nothing. */
class CNothing : public COperation
{
public:
    void Do() override {}
    void Undo() override {}
};

/** Executes a known number of instructions. */
class CKnown : public COperation
{
public:
    explicit CKnown(std::uint32_t uiRounds) : m_uiRounds(uiRounds) {}

    static constexpr std::uint32_t cuiInstructionsPerRound = 9;
    static constexpr std::uint32_t cuiOtherInstructions = 1;

    void Do() override
    {
        std::uint32_t uiRounds = m_uiRounds; // one instruction; the loop has nine
        asm volatile("1:\n"
                     ".rept 7\n"
                     "nop\n"
                     ".endr\n"
                     "subs %0, %0, #1\n"
                     "bne 1b\n"
                     : "+r"(uiRounds)
                     :
                     : "cc");
    }

    void Undo() override {}

private:
    std::uint32_t m_uiRounds;
};
} // namespace

std::uint32_t CountInstructions(COperation& kOperation)
{
    CNothing kNothing;
    return CountAll(kOperation) - CountAll(kNothing);
}

void CheckInstructionCounter()
{
    for (std::uint32_t uiRounds = 1; uiRounds < 200; ++uiRounds)
    {
        CKnown kKnown(uiRounds);
        if (CountInstructions(kKnown) !=
            uiRounds * CKnown::cuiInstructionsPerRound + CKnown::cuiOtherInstructions)
        {
            StopBoard("the instruction counter miscounts");
        }
    }
}
