// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUIRETAINED_H
#define ADAPTERS_MIRROR_GUIRETAINED_H

/** @file
 *  Objects whose memory is used again, so that a dialog which comes and goes does not ask the heap each time.
 */

#include "Core/Utils/eC_Types.h"

#include <cstddef>

/** Memory that is kept for its next use as long as there is a mirror. Nobody may touch it meanwhile: code
 *  built with the address sanitizer poisons it. Nothing is kept in builds whose eC_SpareBlocks keep nothing.
 *  Nothing is logged. One task, as for the whole tree.
 */
class CGUIRetainedMemory
{
public:
    /** @return memory of at least that size, aligned as by `operator new`. @throws std::bad_alloc */
    static void* Take(std::size_t uiSize);

    /** Takes it back. @param uiSize as it was given to Take */
    static void Give(void* pMemory, std::size_t uiSize);

    /** There is one more mirror, and from then on what is given back is kept. */
    static void Retain();

    /** There is one mirror less. After the last one everything that is kept goes back to the heap. */
    static void Release();
};

/** An object of a class whose memory is retained. @tparam TObject the class */
template <typename TObject>
class CGUIRetained final : public TObject
{
public:
    using TObject::TObject;

    /** @return memory that was kept, or new memory. @throws std::bad_alloc */
    static void* operator new(std::size_t uiSize) { return CGUIRetainedMemory::Take(uiSize); }

    /** Keeps the memory. */
    static void operator delete(void* pMemory, std::size_t uiSize)
    {
        CGUIRetainedMemory::Give(pMemory, uiSize);
    }
};

#endif
