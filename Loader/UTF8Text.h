// SPDX-License-Identifier: MIT
#ifndef LOADER_UTF8TEXT_H
#define LOADER_UTF8TEXT_H

/** @file
 *  What the loader needs to know about the characters of a description: decoding, positions, quoting.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

#include <cstddef>
#include <string_view>

/** A place in a text as an editor shows it. */
struct TextPosition_t
{
    eC_UInt m_uiLine = 1;   ///< from 1; LF, CR LF and a CR alone each end a line
    eC_UInt m_uiColumn = 1; ///< from 1, in characters (code points; a tab is one)
};

/** Decodes the first character of a text, strictly: overlong forms, surrogates and values above U+10FFFF
 *  are malformed.
 *  @param kText the text, not empty
 *  @param cCharacterOUT receives the code point; untouched when the text begins malformed
 *  @return the number of bytes that the character takes, 0 when the text begins malformed
 */
GUI_API std::size_t DecodeUTF8(std::string_view kText, char32_t& cCharacterOUT);

/** @param kText well-formed UTF-8 up to the offset at least; a byte order mark at its beginning takes no
 *         column
 *  @param uiOffset an offset into it, in bytes; its length means the end
 *  @return the position of that byte
 */
GUI_API TextPosition_t LocateInText(std::string_view kText, std::size_t uiOffset);

/** Goes on from a position that is known.
 *  @param uiFrom the offset of that position, as above
 *  @param uiTo the offset to go on to, not before uiFrom
 *  @param kPositionOUT the position of the byte uiFrom, becomes that of the byte uiTo
 */
GUI_API void AdvanceInText(std::string_view kText, std::size_t uiFrom, std::size_t uiTo,
                           TextPosition_t& kPositionOUT);

/** Quotes a text for one line of the log.
 *  @param kText well-formed UTF-8
 *  @return the text in single quotes; control characters become '?', and what goes beyond
 *          cuiMaxQuotedLength characters becomes "..."
 */
GUI_API eC_String QuoteForMessage(std::string_view kText);

constexpr std::size_t cuiMaxQuotedLength = 40; ///< characters that QuoteForMessage keeps

/** The UTF-8 form of U+FEFF, which some editors put at the beginning of a file. */
constexpr std::string_view ckByteOrderMark = "\xEF\xBB\xBF";

#endif
