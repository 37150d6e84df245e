// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUITEXTFIELD_H
#define WIDGETS_GUITEXTFIELD_H

/** @file
 *  A text that the user can edit.
 */

#include "Widgets/GUIWidget.h"

/** A line of text with a cursor. The user edits the text that is not translated; the caption says what to
 *  enter. The first text that is set or typed allocates memory for the longest one; nothing after that
 *  allocates.
 */
class CGUITextField : public CGUIWidgetObject<CGUIObject>
{
public:
    static constexpr eC_UInt cuiUsualLength = 32;      ///< the maximum number of characters by default
    static constexpr eC_UInt cuiGreatestLength = 1000; ///< the greatest maximum that can be set

    /** Creates an empty field that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUITextField(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets the text, cut off after the maximum number of characters, and puts the cursor at its end.
     *  @return whether the text changed
     */
    eC_Bool SetText(const eC_Char* pcText) override;

    /** Sets the maximum length of the text, and cuts off what is longer.
     *  @param uiCharacters 1 to cuiGreatestLength
     */
    void SetMostCharacters(eC_UInt uiCharacters);

    /** @return the maximum number of characters */
    eC_UInt GetMostCharacters() const { return m_uiMostCharacters; }

    /** @return the position of the cursor, in bytes from the beginning of the text */
    eC_UInt GetCursor() const { return m_uiCursor; }

    /** @return the position of the cursor, in characters from the beginning of the text */
    eC_UInt GetCursorColumn() const;

    /** Puts the cursor before a character. @param uiColumn its number; a number beyond the text means the end
     */
    void SetCursorColumn(eC_UInt uiColumn);

    /** Inserts at the cursor, character by character while there is room. Control characters are skipped.
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
