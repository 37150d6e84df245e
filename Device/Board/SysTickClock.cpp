// SPDX-License-Identifier: MIT
#include "Device/Board/SysTickClock.h"

#include "Device/Board/Registers.h"

namespace
{
constexpr std::uint32_t cuiProcessorClock = 25000000; ///< in Hertz
constexpr std::uint32_t cuiTicksPerMillisecond = cuiProcessorClock / 1000;

// One word: a read during the interrupt gives the old or the new time, never a mixture.
volatile eC_UInt g_uiMilliseconds = 0;

void (*volatile g_pfnFunction)() = nullptr;
} // namespace

extern "C" void SysTickHandler();

extern "C" void SysTickHandler()
{
    g_uiMilliseconds = g_uiMilliseconds + 1;
    if (void (*const pfnFunction)() = g_pfnFunction)
    {
        pfnFunction();
    }
}

void CSysTickClock::SetFunction(void (*pfnFunction)())
{
    g_pfnFunction = pfnFunction;
}

void CSysTickClock::Start()
{
    SYSTICK.m_uiReload = cuiTicksPerMillisecond - 1;
    SYSTICK.m_uiCurrent = 0;
    SYSTICK.m_uiControl = cuiSysTickEnable | cuiSysTickInterrupt | cuiSysTickProcessorClock;
}

void CSysTickClock::Stop()
{
    SYSTICK.m_uiControl = 0;
}

void CSysTickClock::SetTime(eC_UInt uiTime)
{
    g_uiMilliseconds = uiTime;
}

eC_UInt CSysTickClock::GetTime()
{
    return g_uiMilliseconds;
}

void CSysTickClock::Sleep()
{
    asm volatile("wfi" ::: "memory");
}
