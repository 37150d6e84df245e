// SPDX-License-Identifier: MIT
#ifndef TESTS_ALLOCATIONCOUNTER_ALLOCATIONCOUNTER_H
#define TESTS_ALLOCATIONCOUNTER_ALLOCATIONCOUNTER_H

/** @file
 *  Counts heap allocations and makes them fail. A program that links this has its own `operator new` and
 *  `operator delete`: all forms except the over-aligned ones count, and call malloc and free.
 */

#include <cstddef>

/** Counts allocations since its construction. */
class CAllocationCounter
{
public:
    CAllocationCounter();

    /** @return the number of allocations */
    std::size_t GetNumber() const;

    /** @return the number of requested bytes */
    std::size_t GetBytes() const;

private:
    std::size_t m_uiNumberBefore;
    std::size_t m_uiBytesBefore;
};

/** Memory that is allocated and not freed. */
struct HeapUse_t
{
    std::size_t m_uiBlocks = 0;
    std::size_t m_uiBytes = 0; ///< the requested bytes
};

/** Releases the memory that the library keeps spare, so that only memory in use counts.
 *  @return the current use of the whole program
 */
HeapUse_t GetHeapUse();

/** Makes allocations fail with std::bad_alloc while it exists. Only one may exist at a time. */
class CAllocationFailure
{
public:
    /** Which allocations fail once the granted ones are used up. */
    enum EExtent : unsigned char
    {
        ALL_FURTHER, ///< all, but at most 10,000: after that memory is available again
        ONE          ///< the first one; later ones succeed
    };

    /** @param uiGranted how many allocations succeed before any fails */
    explicit CAllocationFailure(std::size_t uiGranted = 0, EExtent eExtent = ALL_FURTHER);

    CAllocationFailure(const CAllocationFailure&) = delete;
    CAllocationFailure& operator=(const CAllocationFailure&) = delete;

    ~CAllocationFailure();

    /** @return how many allocations have failed */
    std::size_t GetRefused() const;

    /** @return how many of them threw; the others return null instead */
    std::size_t GetThrown() const;
};

/** Determines, while it exists, whether allocations can fail. Those that cannot are not counted by
 *  CAllocationFailure either, so a test can exempt its own allocations. Scopes nest.
 */
class CAllocationFailureScope
{
public:
    explicit CAllocationFailureScope(bool bCanFail);

    CAllocationFailureScope(const CAllocationFailureScope&) = delete;
    CAllocationFailureScope& operator=(const CAllocationFailureScope&) = delete;

    ~CAllocationFailureScope();

private:
    bool m_bBefore;
};

#endif
