#ifndef TESTS_UNIT_ALLOCATIONCOUNTER_H
#define TESTS_UNIT_ALLOCATIONCOUNTER_H

/** @file
 *  Heap allocations seen and refused. The unit tests' `operator new` and `operator delete`, in all forms
 *  but the over-aligned ones, hand on to malloc and free and count on the way.
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

/** Makes allocations fail with std::bad_alloc while it lives. One at a time. */
class CAllocationFailure
{
public:
    /** @param uiGranted how many allocations still succeed before all further ones fail */
    explicit CAllocationFailure(std::size_t uiGranted = 0);

    CAllocationFailure(const CAllocationFailure&) = delete;
    CAllocationFailure& operator=(const CAllocationFailure&) = delete;

    ~CAllocationFailure();
};

#endif
