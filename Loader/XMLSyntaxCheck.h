// SPDX-License-Identifier: MIT
#ifndef LOADER_XMLSYNTAXCHECK_H
#define LOADER_XMLSYNTAXCHECK_H

/** @file
 *  The strict look at a description before it is parsed.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

#include <cstddef>
#include <string>

/** The first place at which a text breaks the rules. */
struct XMLSyntaxError_t
{
    std::size_t m_uiOffset = 0; ///< in bytes from the beginning of the text
    eC_String m_kFound;         ///< what is wrong there
    eC_String m_kExpected;      ///< what would have been right
};

/** Checks that a text is well-formed XML 1.0 in UTF-8 of the kind that describes dialogs: one top
 *  element, elements and attributes, comments and processing instructions, and nothing else. Document
 *  types (and with them entities of one's own), namespaces and text between elements are refused, and so
 *  is a tree above cuiMaxElementDepth and cuiMaxNOFAttributes.
 *
 *  The parser behind it is built for speed and passes over much of what XML forbids. Everything that is
 *  to be refused is refused here, so that it never sees a text that it could misread.
 *  @param kText the text
 *  @param kErrorOUT receives the first error; untouched when there is none
 *  @return true when there is no error
 */
eC_Bool CheckXMLSyntax(const std::string& kText, XMLSyntaxError_t& kErrorOUT);

#endif
