#ifndef SCENARIO_STEPPEDCLOCK_H
#define SCENARIO_STEPPEDCLOCK_H

/** @file
 *  A clock for the framework's timer that moves only when it is told to.
 */

#include "Core/Utils/eC_Types.h"

/** The timer's clock while it lives. There is one at a time. */
class CSteppedClock
{
public:
    /** Sets the timer's clock to this one.
     *  @param uiTime the time in milliseconds to begin with
     */
    explicit CSteppedClock(eC_UInt uiTime = 0);

    CSteppedClock(const CSteppedClock&) = delete;
    CSteppedClock& operator=(const CSteppedClock&) = delete;

    /** Gives the timer its default clock back. */
    ~CSteppedClock();

    /** @return the time in milliseconds */
    eC_UInt GetTime() const;

    /** Sets the time without running anything: a main loop that comes late.
     *  @param uiTime milliseconds
     */
    void Set(eC_UInt uiTime);

    /** Lets time pass, and runs the timer's callbacks at each moment at which one is due, so that each
     *  runs at its exact time. What is overdue at the beginning runs first. An exception out of a
     *  callback passes to the caller, and the clock stands at that moment.
     *  @param uiMilliseconds how much time passes
     */
    void Advance(eC_UInt uiMilliseconds);
};

#endif
