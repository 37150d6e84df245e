// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_FIXEDBLOCKS_FIXEDBLOCKS_H
#define EXAMPLES_FIXEDBLOCKS_FIXEDBLOCKS_H

/** @file
 *  Fixed blocks instead of a heap: the program's `operator new` and `operator delete` use blocks of six sizes
 *  in static memory. They cannot become fragmented, and take the same short time every time.
 */

#include <cstddef>

/** The number of block sizes. */
constexpr std::size_t cuiNOFPools = 6;

/** The blocks of one size. */
struct PoolUse_t
{
    std::size_t m_uiBlockSize; ///< bytes
    std::size_t m_uiBlocks;    ///< the number of blocks
    std::size_t m_uiMostUsed;  ///< the most that were in use at one time
};

/** The allocations so far. */
struct Requests_t
{
    std::size_t m_uiNumber;    ///< allocations
    std::size_t m_uiBytes;     ///< the bytes that they requested
    std::size_t m_uiBytesHeld; ///< bytes in blocks that are in use now
};

/** @param uiPool 0 for the smallest blocks, less than cuiNOFPools */
PoolUse_t GetPoolUse(std::size_t uiPool);

/** @return the allocations since the program began */
Requests_t GetRequests();

#endif
