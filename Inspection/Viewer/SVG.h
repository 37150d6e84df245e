// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_SVG_H
#define INSPECTION_VIEWER_SVG_H

/** @file
 *  Writes pictures that suit light and dark pages.
 */

#include "Core/Utils/eC_Types.h"

#include <cstdint>
#include <string>

/** A document of SVG. Its colours are classes of a style sheet, which has them for light and for dark pages:
 *
 *  | Class | Colour of |
 *  |---|---|
 *  | page | the background |
 *  | frame | lines around things, without a filling |
 *  | grid | thin lines behind things |
 *  | text, quiet, inverse | text, text that is less important, and text on something strong |
 *  | row | every other row |
 *  | strong, medium, weak, outline | the same thing, less and less there |
 *  | popup, waiting | a popup, and one that waits |
 *  | good, bad | what is as wanted, and what is wrong |
 */
class CSVG
{
public:
    /** The width of a character in bytes of ASCII, in pixels. Texts have this width whatever the font. */
    static constexpr std::uint64_t cuiCharacterWidth = 7;

    /** @param uiWidth pixels */
    explicit CSVG(std::uint64_t uiWidth) : m_uiWidth(uiWidth) {}

    void Box(const char* pcClass, std::uint64_t uiX, std::uint64_t uiY, std::uint64_t uiWidth,
             std::uint64_t uiHeight, std::uint64_t uiRadius = 0, const std::string& kTitle = std::string());
    void Line(const char* pcClass, std::uint64_t uiX1, std::uint64_t uiY1, std::uint64_t uiX2,
              std::uint64_t uiY2);
    /** @param uiX, uiY where the text begins, on its base line */
    void Text(const char* pcClass, std::uint64_t uiX, std::uint64_t uiY, const std::string& kText);
    void Dot(const char* pcClass, std::uint64_t uiX, std::uint64_t uiY, std::uint64_t uiRadius,
             const std::string& kTitle);

    /** Adds elements that were written elsewhere. */
    void Raw(const std::string& kElements) { m_kElements += kElements; }

    /** @param kLabel what the picture shows, for those who do not see it
     *  @param kStyle more rules for the style sheet
     *  @return the document
     */
    std::string Finish(std::uint64_t uiHeight, const std::string& kLabel,
                       const std::string& kStyle = std::string()) const;

    /** @return the text as XML has it; a character that XML does not allow becomes U+FFFD */
    static std::string Escape(const std::string& kText);

private:
    std::uint64_t m_uiWidth;
    std::string m_kElements;
};

#endif
