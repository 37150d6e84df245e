// SPDX-License-Identifier: MIT
// The stepped clock on the board. It too moves only when the program moves it, but here that takes real time:
// the system timer runs meanwhile, and the processor sleeps between its interrupts, as in the main loop of a
// device. This file replaces the one in Scenario.

#include "Scenario/SteppedClock.h"

#include "Core/GUITimer.h"
#include "Device/Board/SysTickClock.h"

namespace
{
void ProcessWhatIsDue()
{
    while (GETTIMER.GetTimeUntilNextCallback() == 0)
    {
        GETTIMER.ProcessCallbacks();
    }
}

void SleepForOneMillisecond()
{
    const eC_UInt uiBefore = CSysTickClock::GetTime();
    CSysTickClock::Start();
    while (CSysTickClock::GetTime() == uiBefore)
    {
        CSysTickClock::Sleep();
    }
    CSysTickClock::Stop();
}
} // namespace

CSteppedClock::CSteppedClock(eC_UInt uiTime)
{
    CSysTickClock::SetTime(uiTime);
    GETTIMER.SetClock(&CSysTickClock::GetTime);
}

CSteppedClock::~CSteppedClock()
{
    GETTIMER.SetClock(nullptr);
}

eC_UInt CSteppedClock::GetTime() const
{
    return CSysTickClock::GetTime();
}

void CSteppedClock::Set(eC_UInt uiTime)
{
    CSysTickClock::SetTime(uiTime);
}

void CSteppedClock::Advance(eC_UInt uiMilliseconds)
{
    const eC_UInt uiStart = CSysTickClock::GetTime();
    ProcessWhatIsDue();
    while (CSysTickClock::GetTime() - uiStart < uiMilliseconds)
    {
        SleepForOneMillisecond();
        ProcessWhatIsDue();
    }
}
