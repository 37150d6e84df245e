// SPDX-License-Identifier: MIT
#include "Benchmarks/TraceSettings.h"

namespace
{
constexpr eC_UInt cuiRingSize = 16384;

CGUITraceSink* GetRing()
{
    static eC_Char s_acMemory[cuiRingSize];
    static CGUITraceRing s_kRing(s_acMemory, cuiRingSize);
    return &s_kRing;
}
} // namespace

const std::vector<TraceSetting_t>& GetTraceSettings(ETraceUse eTraceUse)
{
    static const std::vector<TraceSetting_t> s_kNone;
    static const std::vector<TraceSetting_t> s_kOff = {{"off", nullptr}};
    static const std::vector<TraceSetting_t> s_kIrrelevant = {{"-", nullptr}};
    static const std::vector<TraceSetting_t> s_kOn = {{"null", nullptr}, {"ring", GetRing()}};
    if (GUI_TRACE_LEVEL > GUI_TRACE_OFF)
    {
        return eTraceUse == LOGS_NOTHING ? s_kNone : s_kOn;
    }
    switch (eTraceUse)
    {
    case LOGS_NOTHING:
        return s_kIrrelevant;
    case LOGS:
        return s_kOff;
    case LOGS_ONLY:
        break;
    }
    return s_kNone;
}

void SetTrace(const TraceSetting_t& kSetting)
{
    CGUITrace::GetInstance().SetSink(kSetting.m_pkSink);
}
