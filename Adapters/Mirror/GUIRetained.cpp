// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUIRetained.h"

#include "Core/Utils/eC_SpareBlocks.h"

#include <new>

namespace
{
constexpr std::size_t cuiGrain = 2 * sizeof(void*);
constexpr std::size_t cuiNOFSizes = 32; ///< greater objects always come from the heap

struct Block_t
{
    Block_t* m_pkNext;
};

Block_t* s_apkKept[cuiNOFSizes];
eC_UInt s_uiNOFMirrors = 0;

std::size_t GetClass(std::size_t uiSize)
{
    return (uiSize - 1) / cuiGrain;
}

eC_Bool IsKept(std::size_t uiClass)
{
    return uiClass < cuiNOFSizes && s_uiNOFMirrors > 0 && eC_SpareBlocks::cuiMostPerSize > 0;
}

/** Makes the memory behind the pointer to the next block accessible, or inaccessible. */
void SetPoison([[maybe_unused]] Block_t* pkBlock, [[maybe_unused]] std::size_t uiClass,
               [[maybe_unused]] eC_Bool bIsPoisoned)
{
#if EC_SPAREBLOCKS_POISON
    (bIsPoisoned ? __asan_poison_memory_region : __asan_unpoison_memory_region)(pkBlock + 1,
                                                                                uiClass * cuiGrain);
#endif
}
} // namespace

void* CGUIRetainedMemory::Take(std::size_t uiSize)
{
    const std::size_t uiClass = GetClass(uiSize);
    if (uiClass >= cuiNOFSizes || s_apkKept[uiClass] == nullptr)
    {
        return ::operator new((uiClass + 1) * cuiGrain);
    }
    Block_t* pkBlock = s_apkKept[uiClass];
    s_apkKept[uiClass] = pkBlock->m_pkNext;
    SetPoison(pkBlock, uiClass, false);
    return pkBlock;
}

void CGUIRetainedMemory::Give(void* pMemory, std::size_t uiSize)
{
    const std::size_t uiClass = GetClass(uiSize);
    if (!IsKept(uiClass))
    {
        ::operator delete(pMemory);
        return;
    }
    s_apkKept[uiClass] = new (pMemory) Block_t{s_apkKept[uiClass]};
    SetPoison(s_apkKept[uiClass], uiClass, true);
}

void CGUIRetainedMemory::Retain()
{
    ++s_uiNOFMirrors;
}

void CGUIRetainedMemory::Release()
{
    if (--s_uiNOFMirrors > 0)
    {
        return;
    }
    for (std::size_t uiClass = 0; uiClass < cuiNOFSizes; ++uiClass)
    {
        while (Block_t* pkBlock = s_apkKept[uiClass])
        {
            s_apkKept[uiClass] = pkBlock->m_pkNext;
            SetPoison(pkBlock, uiClass, false);
            ::operator delete(pkBlock);
        }
    }
}
