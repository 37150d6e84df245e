// SPDX-License-Identifier: MIT
#ifndef SCENARIO_STEPPEDCLOCK_H
#define SCENARIO_STEPPEDCLOCK_H

/** @file
 *  A clock for the framework's timer that moves only when the program moves it.
 */

#include "Core/Utils/eC_Types.h"

/** The clock of the timer as long as this object exists. There is one at a time. */
class CSteppedClock
{
public:
    /** Makes this the clock of the timer.
     *  @param uiTime the initial time in milliseconds
     */
    explicit CSteppedClock(eC_UInt uiTime = 0);

    CSteppedClock(const CSteppedClock&) = delete;
    CSteppedClock& operator=(const CSteppedClock&) = delete;

    /** Restores the default clock of the timer. */
    ~CSteppedClock();

    /** @return the time in milliseconds */
    eC_UInt GetTime() const;

    /** Sets the time without running callbacks, like a late main loop.
     *  @param uiTime milliseconds
     */
    void Set(eC_UInt uiTime);

    /** Advances the time and runs each callback of the timer at the exact time when it is due. Overdue
     *  callbacks run first. If a callback throws, the exception passes to the caller, and the clock stays at
     *  the time of that callback.
     *  @param uiMilliseconds by how much the time advances
     */
    void Advance(eC_UInt uiMilliseconds);
};

#endif
