// SPDX-License-Identifier: MIT
#include "Benchmarks/Allocations.h"

#include <cstddef>

// The allocator of the C library. The functions below replace it in the whole program, so that allocations by
// operator new and other libraries count as well.
extern "C"
{
    void* __libc_malloc(std::size_t uiSize);                         // NOLINT(bugprone-reserved-identifier)
    void* __libc_calloc(std::size_t uiElements, std::size_t uiSize); // NOLINT(bugprone-reserved-identifier)
    void* __libc_realloc(void* pMemory, std::size_t uiSize);         // NOLINT(bugprone-reserved-identifier)
}

namespace
{
std::uint64_t s_uiAllocations = 0;
}

std::uint64_t GetNOFAllocations()
{
    return s_uiAllocations;
}

extern "C"
{
    void* malloc(std::size_t uiSize)
    {
        ++s_uiAllocations;
        return __libc_malloc(uiSize);
    }

    void* calloc(std::size_t uiElements, std::size_t uiSize)
    {
        ++s_uiAllocations;
        return __libc_calloc(uiElements, uiSize);
    }

    void* realloc(void* pMemory, std::size_t uiSize)
    {
        ++s_uiAllocations;
        return __libc_realloc(pMemory, uiSize);
    }
}
