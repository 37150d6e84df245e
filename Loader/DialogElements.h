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

/** The levels of elements that a description may have. An application may set fewer, so that destruction and
 * the search for a focus, which go down level by level, fit its stack. Compile the loader and all users of
 * its headers with the same value.
 */
#ifndef GUI_MOST_DIALOG_LEVELS
#define GUI_MOST_DIALOG_LEVELS 32
#endif

constexpr std::size_t cuiMaxElementDepth = GUI_MOST_DIALOG_LEVELS; ///< the top element is on the first level
constexpr std::size_t cuiMaxNOFAttributes = 64;                    ///< attributes of one element

static_assert(cuiMaxElementDepth >= 1 && cuiMaxElementDepth <= 255, "a level is a number of eight bits");

#endif
