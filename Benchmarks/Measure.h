#ifndef BENCHMARKS_MEASURE_H
#define BENCHMARKS_MEASURE_H

/** @file
 *  Measures work against its floor, with Google Benchmark around it.
 */

#include "Benchmarks/TraceSettings.h"
#include "Benchmarks/Workload.h"

/** Work as it is measured. */
struct Measured_t
{
    Comparison_t m_kComparison;
    TraceSetting_t m_kSetting; ///< its name comes before that of the work
};

/** Measures everything; the arguments are those of Google Benchmark.
 *
 *  The work and its floor take turns in short batches, and the fastest batch of each counts: what disturbs
 *  the machine for a while disturbs both, what comes and goes disturbs neither, and neither has the caches
 *  for itself.
 *
 *  Counters of a result: floor (ns), ratio, allocations and floor_allocations (per operation), and
 *  instructions where the processor counts them.
 *  @return the status for the end of the program
 */
int MeasureAll(int iArguments, char** ppcArguments, const std::vector<Measured_t>& kMeasured);

#endif
