// SPDX-License-Identifier: MIT
#include "Scenario/SteppedClock.h"

#include "Core/GUITimer.h"

namespace
{
// The timer takes a plain function, so its time cannot be a member.
eC_UInt uiSteppedTime = 0;

eC_UInt GetSteppedTime()
{
    return uiSteppedTime;
}
} // namespace

CSteppedClock::CSteppedClock(eC_UInt uiTime)
{
    uiSteppedTime = uiTime;
    GETTIMER.SetClock(&GetSteppedTime);
}

CSteppedClock::~CSteppedClock()
{
    GETTIMER.SetClock(nullptr);
}

eC_UInt CSteppedClock::GetTime() const
{
    return uiSteppedTime;
}

void CSteppedClock::Set(eC_UInt uiTime)
{
    uiSteppedTime = uiTime;
}

void CSteppedClock::Advance(eC_UInt uiMilliseconds)
{
    eC_UInt uiLeft = uiMilliseconds;
    for (eC_UInt uiNext = GETTIMER.GetTimeUntilNextCallback();
         uiNext != CGUITimer::cuiNoCallback && uiNext <= uiLeft; uiNext = GETTIMER.GetTimeUntilNextCallback())
    {
        uiSteppedTime += uiNext;
        uiLeft -= uiNext;
        GETTIMER.ProcessCallbacks();
    }
    uiSteppedTime += uiLeft;
}
