#ifndef DEVICE_BOARD_SYSTICKCLOCK_H
#define DEVICE_BOARD_SYSTICKCLOCK_H

/** @file
 *  A clock on the processor's system timer.
 */

#include "Core/Utils/eC_Types.h"

/** Milliseconds, counted by the interrupt of the system timer while it runs. It stands at first. */
class CSysTickClock
{
public:
    /** Lets the clock run: the first millisecond is over one millisecond from now. */
    static void Start();

    /** Sets what each interrupt of the clock calls. @param pfnFunction null for nothing */
    static void SetFunction(void (*pfnFunction)());

    /** Stops the clock, which keeps its time. */
    static void Stop();

    /** Sets the time. @param uiTime milliseconds */
    static void SetTime(eC_UInt uiTime);

    /** @return the time in milliseconds, modulo 2 to the power of 32; a CGUITimer::Clock_t */
    static eC_UInt GetTime();

    /** Lets the processor sleep until an interrupt has happened: at most one millisecond while the clock
     *  runs, forever while it stands.
     */
    static void Sleep();
};

#endif
