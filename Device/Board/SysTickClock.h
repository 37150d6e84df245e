// SPDX-License-Identifier: MIT
#ifndef DEVICE_BOARD_SYSTICKCLOCK_H
#define DEVICE_BOARD_SYSTICKCLOCK_H

/** @file
 *  A clock that uses the system timer of the processor.
 */

#include "Core/Utils/eC_Types.h"

/** Milliseconds, counted by the interrupt of the system timer. The clock does not run until it is started. */
class CSysTickClock
{
public:
    /** Starts the clock: the first millisecond ends one millisecond from now. */
    static void Start();

    /** Sets what each interrupt of the clock calls. @param pfnFunction null for nothing */
    static void SetFunction(void (*pfnFunction)());

    /** Stops the clock, which keeps its time. */
    static void Stop();

    /** Sets the time. @param uiTime milliseconds */
    static void SetTime(eC_UInt uiTime);

    /** @return the time in milliseconds, modulo 2 to the power of 32; a CGUITimer::Clock_t */
    static eC_UInt GetTime();

    /** Lets the processor sleep until an interrupt: at most one millisecond while the clock runs, otherwise
     *  forever.
     */
    static void Sleep();
};

#endif
