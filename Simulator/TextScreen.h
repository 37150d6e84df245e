// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TEXTSCREEN_H
#define SIMULATOR_TEXTSCREEN_H

/** @file
 *  A screen of characters.
 */

#include "Widgets/GUIWidget.h"

#include <string>
#include <vector>

/** What a character belongs to, for front ends with colours. */
enum ETextStyle : unsigned char
{
    STYLE_PLAIN,
    STYLE_TITLE,    ///< of a window, and the line below it
    STYLE_BUTTON,   ///< anything that takes input
    STYLE_FOCUS,    ///< what has the focus
    STYLE_CURSOR,   ///< the place where typed text goes
    STYLE_VALUE,    ///< the filled part of a bar
    STYLE_POPUP,    ///< the edge of a popup
    STYLE_CHROME,   ///< the simulator itself, around the device
    STYLE_BANNER,   ///< the line that says that it is the simulator
    STYLE_CAPTION,  ///< what a tour explains
    STYLE_DIM,      ///< of less importance
    STYLE_STRONG,   ///< of more importance
    STYLE_WARNING,  ///< an entry of the trace
    STYLE_ERROR,    ///< likewise
    STYLE_SELECTED, ///< the chosen line of a list
    NOF_TEXT_STYLES
};

/** A place on the screen. */
struct TextCell_t
{
    eC_Char m_acBytes[5] = " "; ///< one character in UTF-8, zero-terminated; empty to the right of a wide one
    ETextStyle m_eStyle = STYLE_PLAIN; ///< how it looks
};

/** A grid of characters. Anything outside is clipped. Texts are UTF-8; a character takes one column, East
 * Asian ones take two, and combining ones none: these are left out.
 */
class CTextScreen
{
public:
    /** Creates an empty screen. @param iWidth, iHeight in characters, at least 0 */
    CTextScreen(eC_Int iWidth, eC_Int iHeight);

    eC_Int GetWidth() const { return m_iWidth; }   ///< @return the number of columns
    eC_Int GetHeight() const { return m_iHeight; } ///< @return the number of rows

    /** @return a place; outside the screen an empty one */
    const TextCell_t& GetCell(eC_Int iX, eC_Int iY) const;

    /** Fills the screen with blanks. */
    void Clear();

    /** Writes a text from left to right.
     *  @param pcText zero-terminated; control characters are shown as blanks
     *  @return how many columns it takes
     */
    eC_Int Write(eC_Int iX, eC_Int iY, const eC_Char* pcText, ETextStyle eStyle = STYLE_PLAIN);

    /** Writes as much of a text as fits into some columns; if it is longer, the last one is "~". */
    void WriteShort(eC_Int iX, eC_Int iY, eC_Int iColumns, const std::string& kText,
                    ETextStyle eStyle = STYLE_PLAIN);

    /** Fills a rectangle with one ASCII character. */
    void Fill(const GUIArea_t& kArea, eC_Char cCharacter, ETextStyle eStyle = STYLE_PLAIN);

    /** Gives a rectangle another style. */
    void SetStyle(const GUIArea_t& kArea, ETextStyle eStyle);

    /** Draws an empty box of ASCII characters, with a title in its upper edge.
     *  @param cEdge the character of the horizontal edges
     *  @param pcTitle the title, may be empty
     */
    void DrawBox(const GUIArea_t& kArea, eC_Char cEdge, const eC_Char* pcTitle, ETextStyle eStyle);

    /** Copies a part of another screen to a place on this one. */
    void Copy(const CTextScreen& kFrom, const GUIArea_t& kPart, eC_Int iX, eC_Int iY);

    /** @return a row, with the blanks at its end. @param iY on the screen */
    std::string GetRow(eC_Int iY) const;

    /** @return all rows from top to bottom in a frame, each with a line break at its end, with the blanks at
     *          the right
     */
    std::string GetFrame() const;

private:
    std::size_t GetIndex(eC_Int iX, eC_Int iY) const;
    TextCell_t* FindCell(eC_Int iX, eC_Int iY);
    void Put(eC_Int iX, eC_Int iY, const eC_Char* pcBytes, std::size_t uiLength, ETextStyle eStyle);

    eC_Int m_iWidth;
    eC_Int m_iHeight;
    std::vector<TextCell_t> m_kCells;
};

/** @return the number of columns that a UTF-8 text takes. @param pcText zero-terminated */
eC_Int CountColumns(const eC_Char* pcText);

/** @return the beginning of a text that fits into some columns */
std::string CutColumns(const std::string& kText, eC_Int iColumns);

/** Breaks a text at blanks into lines of some columns. A longer word is cut.
 *  @param iColumns at least 1
 *  @return at least one line
 */
std::vector<std::string> WrapText(const std::string& kText, eC_Int iColumns);

#endif
