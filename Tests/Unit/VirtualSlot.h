// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_VIRTUALSLOT_H
#define TESTS_UNIT_VIRTUALSLOT_H

/** @file
 *  The position of a virtual function in its class's virtual table.
 *
 *  Defined only if the compiler follows the common C++ ABI, where the first word of a pointer to member marks
 *  a virtual function. Tests that ask for slots must be inside `#ifdef TESTS_HAVE_VIRTUAL_SLOTS`.
 */

#if defined(__GXX_ABI_VERSION) && !defined(__arm__) && !defined(__aarch64__)
#define TESTS_HAVE_VIRTUAL_SLOTS

#include <cstddef>
#include <cstring>

/** @param pfnOperation a virtual member function
 *  @return its slot, counted from 0; a virtual destructor occupies two. -1 if it is not virtual.
 */
template <typename TPointerToMember>
std::ptrdiff_t GetVirtualSlot(TPointerToMember pfnOperation)
{
    std::ptrdiff_t aiWords[2] = {};
    static_assert(sizeof(pfnOperation) == sizeof(aiWords));
    std::memcpy(aiWords, &pfnOperation, sizeof(aiWords));
    if (aiWords[0] % 2 == 0)
    {
        return -1;
    }
    return (aiWords[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

#endif

#endif
