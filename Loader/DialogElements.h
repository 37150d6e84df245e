// SPDX-License-Identifier: MIT
#ifndef LOADER_DIALOGELEMENTS_H
#define LOADER_DIALOGELEMENTS_H

/** @file
 *  The elements of a dialog description, from a file or from a table.
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
    const eC_Char* m_pcName;          ///< its object class, zero-terminated; elements may share one name
    ObjectHandle_t m_eID;             ///< its identifier, unless an attribute gives it
    unsigned char m_uiLevel;          ///< the number of elements around it; 0 for the top element
    unsigned char m_uiNOFAttributes;  ///< the number of its attributes
    unsigned char m_uiNamedAttribute; ///< the index of the attribute with its identifier, or cuiNoAttribute
};

constexpr unsigned char cuiNoAttribute = 0xFF; ///< no attribute gives the identifier

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
