// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIBAR_H
#define WIDGETS_GUIBAR_H

/** @file
 *  Widgets that show a value within a range.
 */

#include "Widgets/GUIWidget.h"

/** A bar that is filled as far as its value is in its range, which is 0 to 100 at first. */
class CGUIBar : public CGUIWidgetObject<CGUIObject>
{
public:
    using CGUIWidgetObject::CGUIWidgetObject;

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets the range. @param iMaximum one that is less than the minimum counts as the minimum */
    void SetRange(eC_Int iMinimum, eC_Int iMaximum);

    eC_Int GetMinimum() const { return m_iMinimum; }
    eC_Int GetMaximum() const { return m_iMaximum < m_iMinimum ? m_iMinimum : m_iMaximum; }

    /** Sets the value. One outside the range is kept for a range that has it.
     *  @return whether the value that is shown differs
     */
    eC_Bool SetValue(eC_Int iValue) override;

    /** @return the value, or the end of the range that is nearer to it */
    eC_Int GetValue() const override;

    /** @param iLength what a full bar is long, units, at least 0
     *  @return how much of it is filled, rounded down; nothing in a range of one value
     */
    eC_Int GetFilled(eC_Int iLength) const;

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;
    void TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue) override;

private:
    eC_Int m_iValue = 0;
    eC_Int m_iMinimum = 0;
    eC_Int m_iMaximum = 100;
};

/** A bar whose value the user changes, from left to right. */
class CGUISlider : public CGUIBar
{
public:
    /** Makes a slider that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUISlider(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets what a key adds or takes. @param iStep at least 1 */
    void SetStep(eC_Int iStep);

    eC_Int GetStep() const { return m_iStep; }
    EGUIReaction OnKey(EGUIKey eKey) override;
    EGUIReaction OnTouch(eC_Int iX, eC_Int iY, const GUIArea_t& kArea) override;
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override;
    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) override;

protected:
    EAttributeResult SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                        eC_String& kExpectedOUT) override;

private:
    EGUIReaction Move(eC_Int iValue);

    eC_Int m_iStep = 1;
};

#endif
