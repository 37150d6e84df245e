#include "Tests/Unit/AllocationCounter.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace
{
constexpr std::size_t cuiUnlimited = std::numeric_limits<std::size_t>::max();

std::size_t g_uiNumber = 0;
std::size_t g_uiBytes = 0;
std::size_t g_uiGranted = cuiUnlimited;

void* Allocate(std::size_t uiBytes) noexcept
{
    if (g_uiGranted == 0)
    {
        return nullptr;
    }
    if (g_uiGranted != cuiUnlimited)
    {
        --g_uiGranted;
    }
    ++g_uiNumber;
    g_uiBytes += uiBytes;
    return std::malloc(uiBytes == 0 ? 1 : uiBytes);
}

void* AllocateOrThrow(std::size_t uiBytes)
{
    void* pMemory = Allocate(uiBytes);
    if (nullptr == pMemory)
    {
        throw std::bad_alloc();
    }
    return pMemory;
}
} // namespace

// Every form is replaced, because the sanitizers' own forms must not meet memory of these.

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
    std::free(pMemory);
}

void operator delete[](void* pMemory) noexcept
{
    std::free(pMemory);
}

void operator delete(void* pMemory, std::size_t) noexcept
{
    std::free(pMemory);
}

void operator delete[](void* pMemory, std::size_t) noexcept
{
    std::free(pMemory);
}

void operator delete(void* pMemory, const std::nothrow_t&) noexcept
{
    std::free(pMemory);
}

void operator delete[](void* pMemory, const std::nothrow_t&) noexcept
{
    std::free(pMemory);
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

CAllocationFailure::CAllocationFailure(std::size_t uiGranted)
{
    g_uiGranted = uiGranted;
}

CAllocationFailure::~CAllocationFailure()
{
    g_uiGranted = cuiUnlimited;
}
