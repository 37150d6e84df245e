// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"

#include "Core/Utils/eC_SpareBlocks.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>

namespace
{
constexpr std::size_t cuiUnlimited = std::numeric_limits<std::size_t>::max();

// Code that retries as long as there is no memory would otherwise never end.
constexpr std::size_t cuiMostRefused = 10000;

// Every block begins with its size, so that it is known when the block is freed.
constexpr std::size_t cuiHeader = alignof(std::max_align_t);
static_assert(cuiHeader >= sizeof(std::size_t), "the size fits in front of the block");

std::size_t g_uiNumber = 0;
std::size_t g_uiBytes = 0;
HeapUse_t g_kUse;

std::size_t g_uiGranted = cuiUnlimited;
CAllocationFailure::EExtent g_eExtent = CAllocationFailure::ALL_FURTHER;
std::size_t g_uiRefused = 0;
std::size_t g_uiThrown = 0;
bool g_bCanFail = true;

bool IsRefused() noexcept
{
    if (!g_bCanFail || g_uiGranted == cuiUnlimited)
    {
        return false;
    }
    if (g_uiGranted > 0)
    {
        --g_uiGranted;
        return false;
    }
    ++g_uiRefused;
    if (g_eExtent == CAllocationFailure::ONE || g_uiRefused == cuiMostRefused)
    {
        g_uiGranted = cuiUnlimited;
    }
    return true;
}

void* Allocate(std::size_t uiBytes) noexcept
{
    void* pBlock = IsRefused() ? nullptr : std::malloc(cuiHeader + uiBytes);
    if (pBlock == nullptr)
    {
        return nullptr;
    }
    ++g_uiNumber;
    g_uiBytes += uiBytes;
    ++g_kUse.m_uiBlocks;
    g_kUse.m_uiBytes += uiBytes;
    std::memcpy(pBlock, &uiBytes, sizeof(uiBytes));
    return static_cast<unsigned char*>(pBlock) + cuiHeader;
}

void* AllocateOrThrow(std::size_t uiBytes)
{
    void* pMemory = Allocate(uiBytes);
    if (pMemory == nullptr)
    {
        ++g_uiThrown;
        throw std::bad_alloc();
    }
    return pMemory;
}

void Free(void* pMemory) noexcept
{
    if (pMemory == nullptr)
    {
        return;
    }
    void* pBlock = static_cast<unsigned char*>(pMemory) - cuiHeader;
    std::size_t uiBytes = 0;
    std::memcpy(&uiBytes, pBlock, sizeof(uiBytes));
    --g_kUse.m_uiBlocks;
    g_kUse.m_uiBytes -= uiBytes;
    // Overwritten, so that code that still reads it notices.
    std::memset(pMemory, 0xDD, uiBytes);
    std::free(pBlock);
}
} // namespace

// Replace every form, so that the sanitizers' own forms never get memory allocated here.

void* operator new(std::size_t uiBytes)
{
    return AllocateOrThrow(uiBytes);
}

void* operator new[](std::size_t uiBytes)
{
    return AllocateOrThrow(uiBytes);
}

void* operator new(std::size_t uiBytes, const std::nothrow_t&) noexcept
{
    return Allocate(uiBytes);
}

void* operator new[](std::size_t uiBytes, const std::nothrow_t&) noexcept
{
    return Allocate(uiBytes);
}

void operator delete(void* pMemory) noexcept
{
    Free(pMemory);
}

void operator delete[](void* pMemory) noexcept
{
    Free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept
{
    Free(pMemory);
}

void operator delete[](void* pMemory, std::size_t) noexcept
{
    Free(pMemory);
}

void operator delete(void* pMemory, const std::nothrow_t&) noexcept
{
    Free(pMemory);
}

void operator delete[](void* pMemory, const std::nothrow_t&) noexcept
{
    Free(pMemory);
}

CAllocationCounter::CAllocationCounter() : m_uiNumberBefore(g_uiNumber), m_uiBytesBefore(g_uiBytes) {}

std::size_t CAllocationCounter::GetNumber() const
{
    return g_uiNumber - m_uiNumberBefore;
}

std::size_t CAllocationCounter::GetBytes() const
{
    return g_uiBytes - m_uiBytesBefore;
}

HeapUse_t GetHeapUse()
{
    eC_SpareBlocks::ReleaseAll();
    return g_kUse;
}

CAllocationFailure::CAllocationFailure(std::size_t uiGranted, EExtent eExtent)
{
    // The library would use spare memory before it asks the heap.
    eC_SpareBlocks::ReleaseAll();
    g_uiGranted = uiGranted;
    g_eExtent = eExtent;
    g_uiRefused = 0;
    g_uiThrown = 0;
}

CAllocationFailure::~CAllocationFailure()
{
    g_uiGranted = cuiUnlimited;
}

std::size_t CAllocationFailure::GetRefused() const
{
    return g_uiRefused;
}

std::size_t CAllocationFailure::GetThrown() const
{
    return g_uiThrown;
}

CAllocationFailureScope::CAllocationFailureScope(bool bCanFail) : m_bBefore(g_bCanFail)
{
    g_bCanFail = bCanFail;
}

CAllocationFailureScope::~CAllocationFailureScope()
{
    g_bCanFail = m_bBefore;
}
