// SPDX-License-Identifier: MIT
#ifndef DEVICE_BOARD_HEAPARENA_H
#define DEVICE_BOARD_HEAPARENA_H

/** @file
 *  A heap in memory of a fixed size.
 */

#include <cstddef>

/** Allocates blocks in one piece of memory: it takes the first free block that is large enough and cuts it to
 *  size. A freed block is joined with its free neighbours at once. The arena needs nothing from the system.
 *
 *  Every block has a header of two words and is aligned for any type. Not for use by several tasks or by
 *  interrupts.
 */
class CHeapArena
{
public:
    /** Makes one free block of the memory.
     *  @param pMemory the memory, not owned, aligned for any type
     *  @param uiSize its size in bytes, enough for at least one block; only a multiple of the alignment is
     *         used
     */
    CHeapArena(void* pMemory, std::size_t uiSize);

    CHeapArena(const CHeapArena&) = delete;
    CHeapArena& operator=(const CHeapArena&) = delete;

    /** @param uiBytes any number, also 0
     *  @return a block of at least that size, or null if no free one is large enough
     */
    void* Allocate(std::size_t uiBytes);

    /** Changes the size of a block. Its content stays, as far as it fits.
     *  @param pBlock a block of this arena, not null
     *  @return the block, perhaps moved, or null if there is no memory; the block then stays as it was
     */
    void* Reallocate(void* pBlock, std::size_t uiBytes);

    /** Frees a block.
     *  @param pBlock a block of this arena, or null, which is ignored
     */
    void Free(void* pBlock);

    /** @return the bytes in use now, including headers */
    std::size_t GetUsed() const { return m_uiUsed; }

    /** @return the largest number of bytes that were in use at one time, including headers */
    std::size_t GetPeak() const { return m_uiPeak; }

    /** @return the size of the memory in bytes, including headers */
    std::size_t GetSize() const { return m_uiSize; }

private:
    struct Block_t;
    struct FreeBlock_t;

    Block_t* GetNext(Block_t* pkBlock) const;
    FreeBlock_t* FindFree(std::size_t uiSize) const;
    void AddFree(Block_t* pkBlock);
    void RemoveFree(Block_t* pkBlock);
    void Shrink(Block_t* pkBlock, std::size_t uiSize);
    void Resize(Block_t* pkBlock, std::size_t uiSize);

    char* m_pcEnd;
    FreeBlock_t* m_pkFirstFree;
    std::size_t m_uiSize;
    std::size_t m_uiUsed;
    std::size_t m_uiPeak;
};

#endif
