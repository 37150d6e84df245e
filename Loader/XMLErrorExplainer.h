// SPDX-License-Identifier: MIT
#ifndef LOADER_XMLERROREXPLAINER_H
#define LOADER_XMLERROREXPLAINER_H

/** @file
 *  What is wrong with a text that the XML parser refuses, in words.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/** The first place at which a text breaks the rules. */
struct XMLError_t
{
    std::size_t m_uiOffset = 0; ///< in bytes from the beginning of the text
    eC_String m_kFound;         ///< what is wrong there
    eC_String m_kExpected;      ///< what would have been right
};

/** How far the parser got before it refused a text. */
struct XMLProgress_t
{
    /** The offset of what is not there. */
    static constexpr std::size_t cuiNowhere = static_cast<std::size_t>(-1);

    /** The open elements, the outermost first. */
    std::vector<std::string_view> m_kOpenElements;

    /** The '<' of the last accepted start tag, or cuiNowhere. No start tag comes between it and the error. */
    std::size_t m_uiLastStartTag = cuiNowhere;

    std::size_t m_uiLastLevel = 0; ///< the number of elements around the last accepted start tag

    /** The character at which the parser stopped, or cuiNowhere when it did not stop because of a character.
     */
    std::size_t m_uiWrongCharacter = cuiNowhere;
};

/** Says why the parser refused a text. The parser alone decides whether a text is right; this function only
 *  looks for the place and the words, from the last accepted start tag on.
 *  @param kText the refused text
 *  @param kProgress how far the parser got
 *  @return the first error
 */
XMLError_t ExplainXMLError(const std::string& kText, const XMLProgress_t& kProgress);

/** What is expected when the explainer finds no error. No text is known that leads here. */
constexpr const eC_Char* cpcExpectedWithoutExplanation = "well-formed XML 1.0";

#endif
