// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_LINEEDITOR_H
#define SIMULATOR_LINEEDITOR_H

/** @file
 *  A line of text that somebody types.
 */

#include "Core/Utils/eC_Types.h"

#include <string>

/** A text with a cursor. */
class CLineEditor
{
public:
    /** @param kText what is there at first; the first character typed replaces it */
    explicit CLineEditor(const std::string& kText = std::string()) { SetText(kText); }

    /** Sets a text, which the next character typed replaces. */
    void SetText(const std::string& kText);

    /** @param kKey a character in UTF-8, or "Backspace", "Delete", "ArrowLeft", "ArrowRight", "Home" or "End"
     *  @return false, with nothing changed, for any other key
     */
    eC_Bool PressKey(const std::string& kKey);

    const std::string& GetText() const { return m_kText; }

    /** @return the text before the cursor */
    std::string GetBeforeCursor() const { return m_kText.substr(0, m_uiCursor); }

private:
    std::size_t GetPrevious() const;
    std::size_t GetNext() const;
    void Remove(std::size_t uiFrom, std::size_t uiTo);

    std::string m_kText;
    std::size_t m_uiCursor = 0; ///< in bytes
    eC_Bool m_bIsReplaced = false;
};

/** @return true for one printable character in UTF-8, false for the name of a key */
eC_Bool IsCharacter(const std::string& kKey);

#endif
