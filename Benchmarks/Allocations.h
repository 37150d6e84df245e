// SPDX-License-Identifier: MIT
#ifndef BENCHMARKS_ALLOCATIONS_H
#define BENCHMARKS_ALLOCATIONS_H

#include <cstdint>

/** @return the number of heap allocations of the program, however they were made */
std::uint64_t GetNOFAllocations();

#endif
