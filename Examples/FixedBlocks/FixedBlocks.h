#ifndef EXAMPLES_FIXEDBLOCKS_FIXEDBLOCKS_H
#define EXAMPLES_FIXEDBLOCKS_FIXEDBLOCKS_H

/** @file
 *  Fixed blocks instead of a heap: the program's `operator new` and `operator delete` hand out blocks of six
 *  sizes from static memory. They cannot be fragmented, and each takes the same short time.
 */

#include <cstddef>

/** How many sizes of blocks there are. */
constexpr std::size_t cuiNOFPools = 6;

/** The blocks of one size. */
struct PoolUse_t
{
    std::size_t m_uiBlockSize; ///< bytes
    std::size_t m_uiBlocks;    ///< how many there are
    std::size_t m_uiMostUsed;  ///< the most that were in use at one time
};

/** What was asked of the blocks so far. */
struct Requests_t
{
    std::size_t m_uiNumber;    ///< allocations
    std::size_t m_uiBytes;     ///< the bytes that they asked for
    std::size_t m_uiBytesHeld; ///< bytes in blocks that are in use now
};

/** @param uiPool 0 for the smallest blocks, less than cuiNOFPools */
PoolUse_t GetPoolUse(std::size_t uiPool);

/** @return what was asked since the program began */
Requests_t GetRequests();

#endif
