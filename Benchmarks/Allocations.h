#ifndef BENCHMARKS_ALLOCATIONS_H
#define BENCHMARKS_ALLOCATIONS_H

#include <cstdint>

/** @return how often the program has taken memory from the heap, by whatever way */
std::uint64_t GetNOFAllocations();

#endif
