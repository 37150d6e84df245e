// SPDX-License-Identifier: MIT
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

/** @return the settings that this program measures: "off" if the trace is compiled out, otherwise "null" for
 *          no sink and "ring". Work that logs nothing has the single setting "-", with the trace compiled
 *          out.
 */
const std::vector<TraceSetting_t>& GetTraceSettings(ETraceUse eTraceUse);

/** Sends all further entries to where the setting says. */
void SetTrace(const TraceSetting_t& kSetting);

#endif
