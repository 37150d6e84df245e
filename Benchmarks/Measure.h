// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_MEASURE_H
#define BENCHMARKS_MEASURE_H

/** @file
 *  Measures work against its floor, with Google Benchmark.
 */

#include "Benchmarks/TraceSettings.h"
#include "Benchmarks/Workload.h"

/** Work as it is measured. */
struct Measured_t
{
    Comparison_t m_kComparison;
    TraceSetting_t m_kSetting; ///< its name precedes that of the work
};

/** Measures everything; the arguments are those of Google Benchmark.
 *
 *  The work and its floor take turns in short batches, and the fastest batch of each counts. A long
 *  disturbance thus affects both, a short one neither, and neither has the caches to itself.
 *
 *  Counters of a result: floor (ns), ratio, allocations and floor_allocations (per operation), and
 *  instructions where the processor counts them.
 *  @return the exit status of the program
 */
int MeasureAll(int iArguments, char** ppcArguments, const std::vector<Measured_t>& kMeasured);

#endif
