// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_COUNTWORKLOAD_H
#define BENCHMARKS_COUNTWORKLOAD_H

#include "Benchmarks/Workload.h"

/** Counts the instructions and heap allocations of work, which is prepared already.
 *
 *  Callgrind counts the instructions: the program writes two dumps, one of some repetitions and one of twice
 *  as many. Their difference is the cost of the repetitions, and it is the same every time. Prints the name,
 *  the number of operations and the allocations of each, for Report/Counts.py.
 *  @param uiSteps the number of operations each time the work is done. @param uiTimes how often it is done
 */
void CountWorkload(CWorkload& kWorkload, const std::string& kName, unsigned uiSteps, unsigned uiTimes);

#endif
