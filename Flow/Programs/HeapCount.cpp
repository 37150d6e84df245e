// SPDX-License-Identifier: MIT
#include "Flow/Programs/HeapCount.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace
{
std::size_t s_uiInUse = 0;
} // namespace

std::size_t GetHeapInUse()
{
    return s_uiInUse;
}

void* operator new(std::size_t uiSize)
{
    void* pBlock = std::malloc(uiSize == 0 ? 1 : uiSize);
    if (pBlock == nullptr)
    {
        throw std::bad_alloc();
    }
    s_uiInUse += malloc_usable_size(pBlock);
    return pBlock;
}

void operator delete(void* pBlock) noexcept
{
    if (pBlock != nullptr)
    {
        s_uiInUse -= malloc_usable_size(pBlock);
        std::free(pBlock);
    }
}

void operator delete(void* pBlock, std::size_t /*uiSize*/) noexcept
{
    operator delete(pBlock);
}
