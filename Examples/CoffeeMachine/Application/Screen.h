// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_SCREEN_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_SCREEN_H

/** @file
 *  The machine's display: a grid of characters.
 */

#include "Core/Utils/eC_String.h"
#include "Core/Utils/eC_Types.h"

#include <array>

/** A place on the screen and a size, in characters. (0, 0) is the upper left corner. */
struct Rectangle_t
{
    eC_Int m_iX;
    eC_Int m_iY;
    eC_Int m_iWidth;
    eC_Int m_iHeight;
};

/** A display of 40 by 12 characters. Anything outside is clipped. Texts are UTF-8, and every code point takes
 *  one character.
 */
class CScreen
{
public:
    static constexpr eC_Int ciWidth = 40;
    static constexpr eC_Int ciHeight = 12;

    /** Creates an empty screen. */
    CScreen() : m_kRows() { Clear(); }

    /** Fills the screen with blanks. */
    void Clear();

    /** Writes a text from left to right. */
    void Write(eC_Int iX, eC_Int iY, const eC_Char* pcText);

    /** Fills a rectangle with one ASCII character. */
    void Fill(const Rectangle_t& kArea, eC_Char cCharacter);

    /** Draws an empty box with a title in its upper edge.
     *  @param cEdge the ASCII character of the horizontal edges
     *  @param pcTitle the title, may be empty
     */
    void DrawBox(const Rectangle_t& kArea, eC_Char cEdge, const eC_Char* pcTitle);

    /** @return all rows from top to bottom, framed, each with a line break at its end, including blanks at
     *          the right
     */
    eC_String GetFrame() const;

private:
    /** One character in UTF-8, zero-terminated. */
    struct Cell_t
    {
        eC_Char m_acBytes[5];
    };

    using Row_t = std::array<Cell_t, ciWidth>;

    void Put(eC_Int iX, eC_Int iY, const eC_Char* pcBytes, eC_UInt uiLength);

    std::array<Row_t, ciHeight> m_kRows;
};

/** @return the number of characters that a UTF-8 text takes on the screen */
eC_Int CountColumns(const eC_Char* pcText);

#endif
