// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUITEXTFIELD_H
#define WIDGETS_GUITEXTFIELD_H

/** @file
 *  A text that the user edits.
 */

#include "Widgets/GUIWidget.h"

/** A line of text with a cursor. The text that is not translated is what the user edits; the caption says
 * what to enter. When the first text is set or typed, memory for the longest one is taken, and none
 * afterwards.
 */
class CGUITextField : public CGUIWidgetObject<CGUIObject>
{
public:
    static constexpr eC_UInt cuiUsualLength = 32; ///< the most characters, unless SetMostCharacters says so
    static constexpr eC_UInt cuiGreatestLength = 1000; ///< the most that can be asked for

    /** Makes an empty field that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUITextField(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets the text, cut off behind the most characters, with the cursor at its end.
     *  @return whether it differs from the one before
     */
    eC_Bool SetText(const eC_Char* pcText) override;

    /** Sets how long the text may get, and cuts off what is longer.
     *  @param uiCharacters 1 to cuiGreatestLength
     */
    void SetMostCharacters(eC_UInt uiCharacters);

    eC_UInt GetMostCharacters() const { return m_uiMostCharacters; }

    /** @return where the cursor is, in bytes from the beginning of the text */
    eC_UInt GetCursor() const { return m_uiCursor; }

    /** @return where the cursor is, in characters from the beginning of the text */
    eC_UInt GetCursorColumn() const;

    /** Puts the cursor before a character. @param uiColumn its number; more than there are: the end */
    void SetCursorColumn(eC_UInt uiColumn);

    /** Inserts at the cursor, character by character as long as there is room; control characters are left
     *  out.
     *  @param pcText zero-terminated UTF-8, not from this text
     *  @return whether anything was inserted
     */
    eC_Bool Insert(const eC_Char* pcText);

    EGUIReaction OnKey(EGUIKey eKey) override;
    EGUIReaction OnType(const eC_Char* pcText) override;
    EGUIReaction OnTouch(eC_Int iX, eC_Int iY, const GUIArea_t& kArea) override;
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override;
    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) override;

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    static constexpr eC_UInt cuiBytesPerCharacter = 4;

    void ReserveAll();
    EGUIReaction MoveCursor(eC_UInt uiCursor);
    EGUIReaction Remove(eC_UInt uiFrom, eC_UInt uiTo);

    eC_UInt m_uiMostCharacters = cuiUsualLength;
    eC_UInt m_uiCursor = 0;
};

#endif
