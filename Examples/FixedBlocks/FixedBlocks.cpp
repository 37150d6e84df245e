// SPDX-License-Identifier: MIT
#include "Examples/FixedBlocks/FixedBlocks.h"

#include <new>

namespace
{
/** An unused block. */
struct FreeBlock_t
{
    FreeBlock_t* m_pkNext;
};

/** Blocks of one size, in their own memory. */
struct Pool_t
{
    std::size_t m_uiBlockSize;
    std::size_t m_uiBlocks;
    unsigned char* m_pucMemory;
    FreeBlock_t* m_pkFree;   ///< freed
    std::size_t m_uiTouched; ///< how many blocks at the front of the memory were ever used
    std::size_t m_uiUsed;
    std::size_t m_uiMostUsed;
};

template <std::size_t uiSize, std::size_t uiBlocks>
constexpr Pool_t MakePool(unsigned char (&aucMemory)[uiSize * uiBlocks])
{
    return {uiSize, uiBlocks, aucMemory, nullptr, 0, 0, 0};
}

// Sizes in words, because the library mostly allocates pointers.
constexpr std::size_t cuiWord = sizeof(void*);

alignas(std::max_align_t) unsigned char g_aucOf4[4 * cuiWord * 48];
alignas(std::max_align_t) unsigned char g_aucOf8[8 * cuiWord * 48];
alignas(std::max_align_t) unsigned char g_aucOf16[16 * cuiWord * 64];
alignas(std::max_align_t) unsigned char g_aucOf32[32 * cuiWord * 8];
alignas(std::max_align_t) unsigned char g_aucOf64[64 * cuiWord * 4];
alignas(std::max_align_t) unsigned char g_aucOf128[128 * cuiWord * 2];

Pool_t g_akPools[cuiNOFPools] = {
    MakePool<4 * cuiWord, 48>(g_aucOf4),   MakePool<8 * cuiWord, 48>(g_aucOf8),
    MakePool<16 * cuiWord, 64>(g_aucOf16), MakePool<32 * cuiWord, 8>(g_aucOf32),
    MakePool<64 * cuiWord, 4>(g_aucOf64),  MakePool<128 * cuiWord, 2>(g_aucOf128),
};

Requests_t g_kRequests = {};

void* TakeFrom(Pool_t& kPool)
{
    void* pBlock = kPool.m_pkFree;
    if (pBlock != nullptr)
    {
        kPool.m_pkFree = kPool.m_pkFree->m_pkNext;
    }
    else if (kPool.m_uiTouched < kPool.m_uiBlocks)
    {
        pBlock = kPool.m_pucMemory + kPool.m_uiTouched * kPool.m_uiBlockSize;
        ++kPool.m_uiTouched;
    }
    else
    {
        return nullptr;
    }
    ++kPool.m_uiUsed;
    if (kPool.m_uiUsed > kPool.m_uiMostUsed)
    {
        kPool.m_uiMostUsed = kPool.m_uiUsed;
    }
    g_kRequests.m_uiBytesHeld += kPool.m_uiBlockSize;
    return pBlock;
}

/** @return a free block of the smallest size that fits, or null */
void* Take(std::size_t uiBytes)
{
    ++g_kRequests.m_uiNumber;
    g_kRequests.m_uiBytes += uiBytes;
    void* pBlock = nullptr;
    for (std::size_t uiPool = 0; pBlock == nullptr && uiPool < cuiNOFPools; ++uiPool)
    {
        if (uiBytes <= g_akPools[uiPool].m_uiBlockSize)
        {
            pBlock = TakeFrom(g_akPools[uiPool]);
        }
    }
    return pBlock;
}

bool IsFrom(const Pool_t& kPool, const void* pBlock)
{
    const unsigned char* pucBlock = static_cast<const unsigned char*>(pBlock);
    return pucBlock >= kPool.m_pucMemory &&
           pucBlock < kPool.m_pucMemory + kPool.m_uiBlocks * kPool.m_uiBlockSize;
}

void Give(void* pBlock)
{
    for (Pool_t& kPool : g_akPools)
    {
        if (IsFrom(kPool, pBlock))
        {
            kPool.m_pkFree = new (pBlock) FreeBlock_t{kPool.m_pkFree};
            --kPool.m_uiUsed;
            g_kRequests.m_uiBytesHeld -= kPool.m_uiBlockSize;
        }
    }
}
} // namespace

PoolUse_t GetPoolUse(std::size_t uiPool)
{
    const Pool_t& kPool = g_akPools[uiPool];
    return {kPool.m_uiBlockSize, kPool.m_uiBlocks, kPool.m_uiMostUsed};
}

Requests_t GetRequests()
{
    return g_kRequests;
}

void* operator new(std::size_t uiBytes)
{
    void* pBlock = Take(uiBytes);
    if (pBlock == nullptr)
    {
        throw std::bad_alloc();
    }
    return pBlock;
}

void* operator new[](std::size_t uiBytes)
{
    return operator new(uiBytes);
}

void* operator new(std::size_t uiBytes, const std::nothrow_t&) noexcept
{
    return Take(uiBytes);
}

void* operator new[](std::size_t uiBytes, const std::nothrow_t&) noexcept
{
    return Take(uiBytes);
}

void operator delete(void* pBlock) noexcept
{
    Give(pBlock);
}

void operator delete[](void* pBlock) noexcept
{
    Give(pBlock);
}

void operator delete(void* pBlock, std::size_t) noexcept
{
    Give(pBlock);
}

void operator delete[](void* pBlock, std::size_t) noexcept
{
    Give(pBlock);
}

void operator delete(void* pBlock, const std::nothrow_t&) noexcept
{
    Give(pBlock);
}

void operator delete[](void* pBlock, const std::nothrow_t&) noexcept
{
    Give(pBlock);
}
