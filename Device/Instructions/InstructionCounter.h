#ifndef DEVICE_INSTRUCTIONS_INSTRUCTIONCOUNTER_H
#define DEVICE_INSTRUCTIONS_INSTRUCTIONCOUNTER_H

/** @file
 *  Counts the instructions that something takes.
 */

#include <cstdint>

/** Something that is done again and again. */
class COperation
{
public:
    virtual ~COperation() = default;

    /** Does what is counted. It must take the same number of instructions every time. */
    virtual void Do() = 0;

    /** Makes everything as it was before Do. */
    virtual void Undo() = 0;
};

/** Counts the instructions of an operation, to the very instruction.
 *
 *  It counts time, and needs an emulator in which every instruction takes one nanosecond. The system timer
 *  ticks only every 40 ns; so the operation is done 40 times, each time begun one instruction later behind a
 *  tick. Then as many ticks are seen in all as the operation takes instructions.
 *
 *  @param kOperation what is done, and before it is counted a few times in vain
 *  @return the instructions of Do, its call not included
 *
 *  Ends the program when the operation does not take the same number every time, or so many that the timer
 *  comes round.
 */
std::uint32_t CountInstructions(COperation& kOperation);

/** Ends the program unless instructions of which the number is known are counted right. */
void CheckInstructionCounter();

#endif
