#ifndef DEVICE_BOARD_BOARD_H
#define DEVICE_BOARD_BOARD_H

/** @file
 *  What the board tells and does for its programs.
 *
 *  Standard output, standard error and the exit status go to the computer that debugs the board, through
 *  the debugger's interface (semihosting).
 */

#include <cstddef>

/** Ends the program with status 1 after one line on standard error. It needs neither heap nor C library.
 *  @param pcReason what has happened
 */
[[noreturn]] void StopBoard(const char* pcReason);

/** What the program has used of the memory given to it, in bytes. */
struct MemoryUse_t
{
    std::size_t m_uiPeak; ///< the most that was in use at one time
    std::size_t m_uiSize; ///< what there is
};

/** @return the use of the heap, what the allocator itself needs included */
MemoryUse_t GetBoardHeapUse();

/** @return the use of the stack of the program, not that of interrupts */
MemoryUse_t GetBoardStackUse();

#endif
