// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIBUTTON_H
#define WIDGETS_GUIBUTTON_H

/** @file
 *  Widgets that the user presses.
 */

#include "Widgets/GUIWidget.h"

/** A button. The application decides by its identifier what a press does. */
class CGUIButton : public CGUIWidgetObject<CGUIObject>
{
public:
    /** Creates a button that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUIButton(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;
};

/** A box that is checked (value 1) or not (0). A press toggles it. */
class CGUICheckBox : public CGUIWidgetObject<CGUIObject>
{
public:
    /** Creates an unchecked box that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUICheckBox(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** @return true if it has its tick */
    eC_Bool IsChecked() const { return m_bIsChecked; }

    /** @param iValue 0: not checked; anything else: checked. @return whether this is a change */
    eC_Bool SetValue(eC_Int iValue) override;

    eC_Int GetValue() const override { return m_bIsChecked ? 1 : 0; }
    EGUIReaction OnKey(EGUIKey eKey) override;
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override;
    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) override;

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;
    void TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue) override;

private:
    eC_Bool m_bIsChecked = false;
};

#endif
