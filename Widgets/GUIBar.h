// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIBAR_H
#define WIDGETS_GUIBAR_H

/** @file
 *  Widgets that show a value within a range.
 */

#include "Widgets/GUIWidget.h"

/** A bar that shows where its value is within its range, which is 0 to 100 by default. */
class CGUIBar : public CGUIWidgetObject<CGUIObject>
{
public:
    using CGUIWidgetObject::CGUIWidgetObject;

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets the range. @param iMaximum a maximum below the minimum counts as the minimum */
    void SetRange(eC_Int iMinimum, eC_Int iMaximum);

    /** @return the lower end of the range */
    eC_Int GetMinimum() const { return m_iMinimum; }

    /** @return the upper end of the range, never less than the lower one */
    eC_Int GetMaximum() const { return m_iMaximum < m_iMinimum ? m_iMinimum : m_iMaximum; }

    /** Sets the value. A value outside the range is kept in case the range changes.
     *  @return whether the displayed value differs
     */
    eC_Bool SetValue(eC_Int iValue) override;

    /** @return the value, limited to the range */
    eC_Int GetValue() const override;

    /** @param iLength the length of a full bar in units, at least 0
     *  @return how much of it is filled, rounded down; 0 if the range is a single value
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
    /** Creates a slider that accepts the focus.
     *  @param pkParent the parent to attach to, or null. @param eID the identifier
     */
    explicit CGUISlider(CGUICompositeObject* pkParent = nullptr, ObjectHandle_t eID = NO_HANDLE);

    void Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const override;

    /** Sets how much a key adds or subtracts. @param iStep at least 1 */
    void SetStep(eC_Int iStep);

    /** @return by how much a key changes the value */
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
