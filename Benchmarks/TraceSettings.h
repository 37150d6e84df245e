#ifndef BENCHMARKS_TRACESETTINGS_H
#define BENCHMARKS_TRACESETTINGS_H

#include "Benchmarks/Workload.h"
#include "Core/GUITrace.h"

#include <vector>

/** Where the entries of the trace go. */
struct TraceSetting_t
{
    const char* m_pcName;
    CGUITraceSink* m_pkSink;
};

/** @return the settings in which work is measured with this program. With the trace compiled away that is
 *          the setting "off", else "null" for no sink and "ring". Work that logs nothing has one setting,
 *          "-", with the trace compiled away.
 */
const std::vector<TraceSetting_t>& GetTraceSettings(ETraceUse eTraceUse);

/** Sends what is logged from now on where the setting says. */
void SetTrace(const TraceSetting_t& kSetting);

#endif
