// SPDX-License-Identifier: MIT
#ifndef TESTS_ALLOCATIONCOUNTER_ALLOCATIONCOUNTER_H
#define TESTS_ALLOCATIONCOUNTER_ALLOCATIONCOUNTER_H

/** @file
 *  Heap allocations seen and refused. A program that links it has its own `operator new` and
 *  `operator delete`: all forms except the over-aligned ones count and call malloc and free.
 */

#include <cstddef>

/** Tells what was allocated since its construction. */
class CAllocationCounter
{
public:
    CAllocationCounter();

    /** @return the number of allocations */
    std::size_t GetNumber() const;

    /** @return the bytes that were asked for */
    std::size_t GetBytes() const;

private:
    std::size_t m_uiNumberBefore;
    std::size_t m_uiBytesBefore;
};

/** What is allocated and not freed. */
struct HeapUse_t
{
    std::size_t m_uiBlocks = 0;
    std::size_t m_uiBytes = 0; ///< as they were asked for
};

/** Gives back what the library keeps spare, which is nobody's.
 *  @return the use of this moment, of the whole program
 */
HeapUse_t GetHeapUse();

/** Makes allocations fail with std::bad_alloc while it lives. One at a time. */
class CAllocationFailure
{
public:
    /** Which allocations fail after those that are granted. */
    enum EExtent : unsigned char
    {
        ALL_FURTHER, ///< all, but no more than 10,000: then memory is available again
        ONE          ///< the first one; what comes later succeeds
    };

    /** @param uiGranted how many allocations still succeed before any fails */
    explicit CAllocationFailure(std::size_t uiGranted = 0, EExtent eExtent = ALL_FURTHER);

    CAllocationFailure(const CAllocationFailure&) = delete;
    CAllocationFailure& operator=(const CAllocationFailure&) = delete;

    ~CAllocationFailure();

    /** @return how many allocations have failed */
    std::size_t GetRefused() const;

    /** @return how many of them threw, as all do but those that ask for null instead */
    std::size_t GetThrown() const;
};

/** Decides, while it lives, whether allocations can fail: those that cannot are not counted by
 *  CAllocationFailure either. So a test can spare its own allocations. Scopes nest.
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
