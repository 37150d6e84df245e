#ifndef DEVICE_BOARD_HEAPARENA_H
#define DEVICE_BOARD_HEAPARENA_H

/** @file
 *  A heap in memory of a fixed size.
 */

#include <cstddef>

/** Hands out blocks of one piece of memory: the first free block that is large enough, cut to size. A block
 *  given back is joined with its free neighbours at once. Nothing is ever asked of the system.
 *
 *  Every block costs a header of two words more than was asked for, and is aligned for any type. Not for
 *  use by several tasks, nor by interrupts.
 */
class CHeapArena
{
public:
    /** Makes one free block of the memory.
     *  @param pMemory the memory, not owned, aligned for any type
     *  @param uiSize its size in bytes, enough for a block at least; what is beyond a multiple of the
     *         alignment is not used
     */
    CHeapArena(void* pMemory, std::size_t uiSize);

    CHeapArena(const CHeapArena&) = delete;
    CHeapArena& operator=(const CHeapArena&) = delete;

    /** @param uiBytes any number, also 0
     *  @return a block of that size at least, or null when no free one is large enough
     */
    void* Allocate(std::size_t uiBytes);

    /** Changes the size of a block. Its content stays, as far as it fits.
     *  @param pBlock a block of this arena, not null
     *  @return the block, perhaps moved, or null when there is no memory; then it is as before
     */
    void* Reallocate(void* pBlock, std::size_t uiBytes);

    /** Takes a block back.
     *  @param pBlock a block of this arena, or null, which is ignored
     */
    void Free(void* pBlock);

    /** @return the bytes in use now, headers included */
    std::size_t GetUsed() const { return m_uiUsed; }

    /** @return the most bytes that were in use at one time, headers included */
    std::size_t GetPeak() const { return m_uiPeak; }

    /** @return the bytes that there are, headers included */
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
