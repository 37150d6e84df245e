// SPDX-License-Identifier: MIT
#ifndef DEVICE_BOARD_BOARD_H
#define DEVICE_BOARD_BOARD_H

/** @file
 *  What the board provides for its programs.
 *
 *  Standard output, standard error and the exit status go to the computer that debugs the board
 *  (semihosting).
 */

#include <cstddef>

/** Prints one line on standard error and ends the program with status 1. Needs neither heap nor C library.
 *  @param pcReason what has happened
 */
[[noreturn]] void StopBoard(const char* pcReason);

/** How much of its memory the program has used, in bytes. */
struct MemoryUse_t
{
    std::size_t m_uiPeak; ///< the most that was in use at one time
    std::size_t m_uiSize; ///< the size of the memory
};

/** @return the use of the heap, including what the allocator itself needs */
MemoryUse_t GetBoardHeapUse();

/** @return how much of the heap is in use now, in bytes */
std::size_t GetBoardHeapUsedNow();

/** @return the use of the program's stack, without that of interrupts */
MemoryUse_t GetBoardStackUse();

#endif
