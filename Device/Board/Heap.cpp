// SPDX-License-Identifier: MIT
// The heap of the program: malloc and its relatives, which operator new and the C library call. The heap of
// the C library would grow until it meets the stack, and does not report its use.

#include "Device/Board/Board.h"
#include "Device/Board/HeapArena.h"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>

extern "C"
{
    extern char BoardHeapStart[];
    extern char BoardHeapEnd[];
}

namespace
{
/** @return the program's heap, which outlives all static objects and exists before them */
CHeapArena& GetHeap()
{
    static CHeapArena s_kHeap(BoardHeapStart, static_cast<std::size_t>(BoardHeapEnd - BoardHeapStart));
    return s_kHeap;
}

void* KeepOrFail(void* pBlock)
{
    if (pBlock == nullptr)
    {
        errno = ENOMEM;
    }
    return pBlock;
}
} // namespace

extern "C" void* malloc(std::size_t uiBytes) noexcept
{
    return KeepOrFail(GetHeap().Allocate(uiBytes));
}

extern "C" void free(void* pBlock) noexcept
{
    GetHeap().Free(pBlock);
}

extern "C" void* calloc(std::size_t uiNumber, std::size_t uiBytes) noexcept
{
    std::size_t uiAll = 0;
    if (__builtin_mul_overflow(uiNumber, uiBytes, &uiAll))
    {
        return KeepOrFail(nullptr);
    }
    void* pBlock = KeepOrFail(GetHeap().Allocate(uiAll));
    return pBlock == nullptr ? nullptr : std::memset(pBlock, 0, uiAll);
}

extern "C" void* realloc(void* pBlock, std::size_t uiBytes) noexcept
{
    return pBlock == nullptr ? malloc(uiBytes) : KeepOrFail(GetHeap().Reallocate(pBlock, uiBytes));
}

extern "C" void* _malloc_r(struct _reent*, std::size_t uiBytes) noexcept
{
    return malloc(uiBytes);
}

extern "C" void* _calloc_r(struct _reent*, std::size_t uiNumber, std::size_t uiBytes) noexcept
{
    return calloc(uiNumber, uiBytes);
}

extern "C" void* _realloc_r(struct _reent*, void* pBlock, std::size_t uiBytes) noexcept
{
    return realloc(pBlock, uiBytes);
}

extern "C" void _free_r(struct _reent*, void* pBlock) noexcept
{
    free(pBlock);
}

MemoryUse_t GetBoardHeapUse()
{
    MemoryUse_t kUse = {};
    kUse.m_uiPeak = GetHeap().GetPeak();
    kUse.m_uiSize = GetHeap().GetSize();
    return kUse;
}

std::size_t GetBoardHeapUsedNow()
{
    return GetHeap().GetUsed();
}
