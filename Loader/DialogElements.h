// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGELEMENTS_H
#define LOADER_DIALOGELEMENTS_H

/** @file
 *  The elements of a dialog description, as they come from a file or lie in a table.
 */

#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

#include <cstddef>

/** One attribute of an element. */
struct DialogAttribute_t
{
    const eC_Char* m_pcName;  ///< zero-terminated
    const eC_Char* m_pcValue; ///< zero-terminated UTF-8; the references in it are resolved
};

/** One element. */
struct DialogElement_t
{
    const eC_Char* m_pcName;          ///< the name of its object class, zero-terminated; it does not change
    ObjectHandle_t m_eID;             ///< its identifier, unless an attribute says it
    unsigned char m_uiLevel;          ///< how many elements stand around it; 0 at the top
    unsigned char m_uiNOFAttributes;  ///< how many it has
    unsigned char m_uiNamedAttribute; ///< which of them says its identifier, or cuiNoAttribute
};

constexpr unsigned char cuiNoAttribute = 0xFF; ///< no attribute says the identifier

/** All elements of a description. */
struct DialogElements_t
{
    const DialogElement_t* m_pkElements;     ///< an element first, then the elements inside it
    eC_UInt m_uiNOFElements;                 ///< at least 1
    const DialogAttribute_t* m_pkAttributes; ///< in the order of the elements; null when there are none
};

constexpr std::size_t cuiMaxElementDepth = 32;  ///< levels of elements, the top element being the first
constexpr std::size_t cuiMaxNOFAttributes = 64; ///< attributes of one element

#endif
