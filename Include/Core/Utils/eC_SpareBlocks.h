// SPDX-License-Identifier: MIT
#ifndef CORE_UTILS_EC_SPAREBLOCKS_H
#define CORE_UTILS_EC_SPAREBLOCKS_H

/** @file
 *  Small memory blocks that are kept for their next use.
 */

#include "Core/Utils/eC_Types.h"

#include <cstddef>
#include <new>

#if defined(__SANITIZE_ADDRESS__)
#define EC_SPAREBLOCKS_POISON true
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define EC_SPAREBLOCKS_POISON true
#endif
#endif
#ifdef EC_SPAREBLOCKS_POISON
#include <sanitizer/asan_interface.h>
#else
#define EC_SPAREBLOCKS_POISON false ///< true under the address sanitizer
#endif

/** How many blocks of each size are kept. 0: none, and no buffer either; a build with the address sanitizer
 *  then sees every use after release, even where the block would be in use again. Compile the library and
 *  all users of its headers with the same value.
 */
#ifndef EC_SPAREBLOCKS_MOST_PER_SIZE
#define EC_SPAREBLOCKS_MOST_PER_SIZE 16
#endif

/** The memory of list nodes and of growing texts. A released block is kept for the next node of about the
 *  same size, up to cuiMostPerSize blocks of each size, and one buffer is kept for the next text; the rest
 *  goes back to the heap. A device that switches dialogs and logs all day neither waits for its heap nor
 *  fragments it.
 *
 *  Nobody may touch a block that is kept: code built with the address sanitizer poisons it, so that the
 *  sanitizer reports any use. Nothing is logged. Not thread-safe. Usable by static objects of any translation
 *  unit.
 *
 *  The library may be built with the sanitizer and the application without, or the other way round. Each then
 *  keeps its own blocks: the one that keeps a block decides whether it is poisoned, and nobody ever takes a
 *  poisoned one.
 *
 *  The template parameters distinguish what is compiled differently: of functions with the same name the
 *  linker would keep only one, the library's or the application's. eC_SpareBlocks has the parameters of the
 *  unit that uses it.
 *  @tparam bPoison whether the blocks kept are poisoned
 *  @tparam uiMostPerSize how many blocks of each size are kept; 0: none, and no buffer
 */
template <eC_Bool bPoison, unsigned char uiMostPerSize>
class GUI_API eC_TSpareBlocks
{
public:
    /** Sizes are rounded up to a multiple of this many bytes. */
    static constexpr std::size_t cuiGrain = 2 * sizeof(void*);

    /** How many sizes are kept. Larger blocks always come from the heap and go back to it. */
    static constexpr std::size_t cuiNOFSizes = 8;

    /** How many blocks of each size are kept. */
    static constexpr unsigned char cuiMostPerSize = uiMostPerSize;

    /** @param uiSize bytes, at least 1
     *  @return a block of at least that size, aligned as by `operator new`; a spare one if there is one
     *  @throws std::bad_alloc when a new one is needed and the heap has none
     */
    static void* Take(std::size_t uiSize)
    {
        const std::size_t uiClass = GetClass(uiSize);
        if (uiClass >= cuiNOFSizes)
        {
            return ::operator new(uiSize);
        }
        return TakeOfClass(uiClass);
    }

    /** Gives a block back.
     *  @param pBlock a block from Take
     *  @param uiSize the size that Take was called with
     */
    static void Give(void* pBlock, std::size_t uiSize) noexcept
    {
        const std::size_t uiClass = GetClass(uiSize);
        if (uiClass >= cuiNOFSizes)
        {
            ::operator delete(pBlock);
            return;
        }
        GiveOfClass(pBlock, uiClass);
    }

    /** The largest buffer that is kept, in bytes. */
    static constexpr std::size_t cuiLargestBuffer = cuiMostPerSize > 0 ? 512 : 0;

    /** @param uiSize bytes, at least 1
     *  @param uiSizeOUT receives the size of the buffer, to be passed to GiveBuffer
     *  @return a buffer of at least that size; the spare one if it is large enough
     *  @throws std::bad_alloc when a new one is needed and the heap has none
     */
    static void* TakeBuffer(std::size_t uiSize, std::size_t& uiSizeOUT)
    {
        if (ms_uiBufferSize < uiSize)
        {
            uiSizeOUT = uiSize;
            return ::operator new(uiSize);
        }
        void* pBuffer = ms_pBuffer;
        uiSizeOUT = ms_uiBufferSize;
        Unpoison(pBuffer, ms_uiBufferSize);
        ms_pBuffer = nullptr;
        ms_uiBufferSize = 0;
        return pBuffer;
    }

    /** Gives a buffer back. The larger one of two is kept, unless it is larger than cuiLargestBuffer.
     *  @param pBuffer a buffer from TakeBuffer
     *  @param uiSize its size
     */
    static void GiveBuffer(void* pBuffer, std::size_t uiSize) noexcept
    {
        if (uiSize <= ms_uiBufferSize || uiSize > cuiLargestBuffer)
        {
            ::operator delete(pBuffer);
            return;
        }
        ReleaseBuffer();
        Poison(pBuffer, uiSize);
        ms_pBuffer = pBuffer;
        ms_uiBufferSize = uiSize;
    }

    /** Gives all spare blocks and the spare buffer that this build keeps back to the heap. */
    static void ReleaseAll() noexcept
    {
        ReleaseBuffer();
        for (std::size_t uiClass = 0; uiClass < cuiNOFSizes; ++uiClass)
        {
            while (ms_apSpare[uiClass] != nullptr)
            {
                ::operator delete(Take(GetRoundedSize(uiClass)));
            }
        }
    }

private:
    static constexpr std::size_t GetClass(std::size_t uiSize) { return (uiSize - 1) / cuiGrain; }
    static constexpr std::size_t GetRoundedSize(std::size_t uiClass) { return (uiClass + 1) * cuiGrain; }

    // Take and Give stay small without these two, so that they are inlined, and the class of a constant size
    // is a constant.
    static void* TakeOfClass(std::size_t uiClass)
    {
        void* pBlock = ms_apSpare[uiClass];
        if (pBlock == nullptr)
        {
            return ::operator new(GetRoundedSize(uiClass));
        }
        ms_apSpare[uiClass] = GetLink(pBlock, uiClass);
        --ms_auiNumber[uiClass];
        Unpoison(pBlock, GetRoundedSize(uiClass));
        return pBlock;
    }

    static void GiveOfClass(void* pBlock, std::size_t uiClass) noexcept
    {
        if (ms_auiNumber[uiClass] == cuiMostPerSize)
        {
            ::operator delete(pBlock);
            return;
        }
        GetLink(pBlock, uiClass) = ms_apSpare[uiClass];
        Poison(pBlock, GetRoundedSize(uiClass) - sizeof(void*));
        ms_apSpare[uiClass] = pBlock;
        ++ms_auiNumber[uiClass];
    }

    // The last word holds the chain: a use by mistake most often hits the first words, where a node has its
    // links.
    static void*& GetLink(void* pBlock, std::size_t uiClass)
    {
        return static_cast<void**>(pBlock)[GetRoundedSize(uiClass) / sizeof(void*) - 1];
    }

    static void ReleaseBuffer() noexcept
    {
        // The heap may write to it: an application's own heap may keep its bookkeeping there.
        Unpoison(ms_pBuffer, ms_uiBufferSize);
        ::operator delete(ms_pBuffer);
        ms_pBuffer = nullptr;
        ms_uiBufferSize = 0;
    }

#if EC_SPAREBLOCKS_POISON
    static void Poison(void* pBlock, std::size_t uiSize)
    {
        __asan_poison_memory_region(pBlock, uiSize);
    }
    static void Unpoison(void* pBlock, std::size_t uiSize)
    {
        __asan_unpoison_memory_region(pBlock, uiSize);
    }
#else
    static void Poison(const void*, std::size_t) {}
    static void Unpoison(const void*, std::size_t) {}
#endif

    inline static void* ms_apSpare[cuiNOFSizes] = {};           ///< the spare blocks of each size, chained
    inline static unsigned char ms_auiNumber[cuiNOFSizes] = {}; ///< how many there are
    inline static void* ms_pBuffer = nullptr;                   ///< the spare buffer
    inline static std::size_t ms_uiBufferSize = 0;              ///< its size, 0 without one
};

/** The spare blocks with the parameters of the unit that uses them. */
using eC_SpareBlocks = eC_TSpareBlocks<EC_SPAREBLOCKS_POISON, EC_SPAREBLOCKS_MOST_PER_SIZE>;

#endif
