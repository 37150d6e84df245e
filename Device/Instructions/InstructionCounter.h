// SPDX-License-Identifier: MIT
#ifndef DEVICE_INSTRUCTIONS_INSTRUCTIONCOUNTER_H
#define DEVICE_INSTRUCTIONS_INSTRUCTIONCOUNTER_H

/** @file
 *  Counts the instructions that something takes.
 */

#include <cstdint>

/** An operation that is repeated. */
class COperation
{
public:
    virtual ~COperation() = default;

    /** Does what is counted. Must take the same number of instructions every time. */
    virtual void Do() = 0;

    /** Restores everything as it was before Do. */
    virtual void Undo() = 0;
};

/** Counts the instructions of an operation exactly.
 *
 *  It measures time in an emulator in which every instruction takes one nanosecond. The system timer ticks
 *  only every 40 ns, so the operation is done 40 times, each time starting one instruction later after a
 *  tick. The total number of ticks is then the number of instructions of the operation.
 *
 *  @param kOperation what is done; it is done a few times before it is counted
 *  @return the instructions of Do, without its call
 *
 *  Ends the program if the operation does not take the same number every time, or so many that the timer
 *  wraps around.
 */
std::uint32_t CountInstructions(COperation& kOperation);

/** Ends the program unless a known number of instructions is counted correctly. */
void CheckInstructionCounter();

#endif
