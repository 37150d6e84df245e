// SPDX-License-Identifier: MIT
#include "Device/Board/HeapArena.h"

#include <cassert>
#include <cstring>
#include <new>

namespace
{
constexpr std::size_t cuiAlignment = alignof(std::max_align_t);
} // namespace

/** The header before the memory of every block. Blocks follow each other without gaps. */
struct alignas(cuiAlignment) CHeapArena::Block_t
{
    std::size_t m_uiPreviousSize; ///< the size of the block before it, 0 for the first one
    std::size_t m_uiSizeAndUse;   ///< the size with this header; the last bit is 1 if the block is used

    std::size_t GetSize() const { return m_uiSizeAndUse & ~std::size_t(1); }
    bool IsUsed() const { return (m_uiSizeAndUse & 1U) != 0; }
    char* GetStart() { return reinterpret_cast<char*>(this); }
    void* GetMemory() { return this + 1; }
    static Block_t* Of(void* pMemory) { return static_cast<Block_t*>(pMemory) - 1; }
};

/** A free block is a member of a list, in no order. */
struct CHeapArena::FreeBlock_t : CHeapArena::Block_t
{
    FreeBlock_t* m_pkNextFree;
    FreeBlock_t* m_pkPreviousFree;

    static std::size_t Round(std::size_t uiBytes)
    {
        const std::size_t uiSize =
            (uiBytes + sizeof(Block_t) + cuiAlignment - 1) / cuiAlignment * cuiAlignment;
        return uiSize < sizeof(FreeBlock_t) ? sizeof(FreeBlock_t) : uiSize;
    }
};

CHeapArena::CHeapArena(void* pMemory, std::size_t uiSize)
    : m_pcEnd(nullptr),
      m_pkFirstFree(nullptr),
      m_uiSize(uiSize / cuiAlignment * cuiAlignment),
      m_uiUsed(0),
      m_uiPeak(0)
{
    assert(m_uiSize >= sizeof(FreeBlock_t));
    FreeBlock_t* pkBlock = new (pMemory) FreeBlock_t;
    pkBlock->m_uiPreviousSize = 0;
    pkBlock->m_uiSizeAndUse = m_uiSize;
    m_pcEnd = pkBlock->GetStart() + m_uiSize;
    AddFree(pkBlock);
}

void* CHeapArena::Allocate(std::size_t uiBytes)
{
    if (uiBytes > m_uiSize)
    {
        return nullptr;
    }
    const std::size_t uiSize = FreeBlock_t::Round(uiBytes);
    FreeBlock_t* pkBlock = FindFree(uiSize);
    if (pkBlock == nullptr)
    {
        return nullptr;
    }
    RemoveFree(pkBlock);
    pkBlock->m_uiSizeAndUse |= 1U;
    m_uiUsed += pkBlock->GetSize();
    Shrink(pkBlock, uiSize);
    m_uiPeak = m_uiUsed > m_uiPeak ? m_uiUsed : m_uiPeak;
    return pkBlock->GetMemory();
}

void* CHeapArena::Reallocate(void* pBlock, std::size_t uiBytes)
{
    Block_t* pkBlock = Block_t::Of(pBlock);
    if (uiBytes <= m_uiSize && FreeBlock_t::Round(uiBytes) <= pkBlock->GetSize())
    {
        Shrink(pkBlock, FreeBlock_t::Round(uiBytes));
        return pBlock;
    }
    void* pNew = Allocate(uiBytes);
    if (pNew != nullptr)
    {
        std::memcpy(pNew, pBlock, pkBlock->GetSize() - sizeof(Block_t));
        Free(pBlock);
    }
    return pNew;
}

void CHeapArena::Free(void* pBlock)
{
    if (pBlock == nullptr)
    {
        return;
    }
    Block_t* pkBlock = Block_t::Of(pBlock);
    assert(pkBlock->IsUsed());
    m_uiUsed -= pkBlock->GetSize();

    Block_t* pkNext = GetNext(pkBlock);
    if (pkNext != nullptr && !pkNext->IsUsed())
    {
        RemoveFree(pkNext);
        Resize(pkBlock, pkBlock->GetSize() + pkNext->GetSize());
    }
    if (pkBlock->m_uiPreviousSize != 0)
    {
        auto* pkPrevious = reinterpret_cast<Block_t*>(pkBlock->GetStart() - pkBlock->m_uiPreviousSize);
        if (!pkPrevious->IsUsed())
        {
            RemoveFree(pkPrevious);
            Resize(pkPrevious, pkPrevious->GetSize() + pkBlock->GetSize());
            pkBlock = pkPrevious;
        }
    }
    AddFree(pkBlock);
}

CHeapArena::Block_t* CHeapArena::GetNext(Block_t* pkBlock) const
{
    char* pcNext = pkBlock->GetStart() + pkBlock->GetSize();
    return pcNext == m_pcEnd ? nullptr : reinterpret_cast<Block_t*>(pcNext);
}

CHeapArena::FreeBlock_t* CHeapArena::FindFree(std::size_t uiSize) const
{
    FreeBlock_t* pkBlock = m_pkFirstFree;
    while (pkBlock != nullptr && pkBlock->GetSize() < uiSize)
    {
        pkBlock = pkBlock->m_pkNextFree;
    }
    return pkBlock;
}

void CHeapArena::AddFree(Block_t* pkBlock)
{
    pkBlock->m_uiSizeAndUse &= ~std::size_t(1);
    auto* pkFree = static_cast<FreeBlock_t*>(pkBlock);
    pkFree->m_pkPreviousFree = nullptr;
    pkFree->m_pkNextFree = m_pkFirstFree;
    if (m_pkFirstFree != nullptr)
    {
        m_pkFirstFree->m_pkPreviousFree = pkFree;
    }
    m_pkFirstFree = pkFree;
}

void CHeapArena::RemoveFree(Block_t* pkBlock)
{
    auto* pkFree = static_cast<FreeBlock_t*>(pkBlock);
    FreeBlock_t*& pkLink =
        pkFree->m_pkPreviousFree == nullptr ? m_pkFirstFree : pkFree->m_pkPreviousFree->m_pkNextFree;
    pkLink = pkFree->m_pkNextFree;
    if (pkFree->m_pkNextFree != nullptr)
    {
        pkFree->m_pkNextFree->m_pkPreviousFree = pkFree->m_pkPreviousFree;
    }
}

/** Frees the end of a used block, if it is large enough for a block. */
void CHeapArena::Shrink(Block_t* pkBlock, std::size_t uiSize)
{
    const std::size_t uiRest = pkBlock->GetSize() - uiSize;
    if (uiRest < sizeof(FreeBlock_t))
    {
        return;
    }
    Block_t* pkRest = new (pkBlock->GetStart() + uiSize) Block_t;
    pkRest->m_uiSizeAndUse = uiRest | 1U;
    Resize(pkRest, uiRest);
    Resize(pkBlock, uiSize);
    Free(pkRest->GetMemory());
}

/** Sets the size of a block, also in the header of the next block. */
void CHeapArena::Resize(Block_t* pkBlock, std::size_t uiSize)
{
    pkBlock->m_uiSizeAndUse = uiSize | (pkBlock->m_uiSizeAndUse & 1U);
    Block_t* pkNext = GetNext(pkBlock);
    if (pkNext != nullptr)
    {
        pkNext->m_uiPreviousSize = uiSize;
    }
}
