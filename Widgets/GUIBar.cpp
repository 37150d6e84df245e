// SPDX-License-Identifier: MIT
#include "Widgets/GUIBar.h"

#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/WidgetAttributes.h"
#include "Widgets/WidgetState.h"

#include <climits>
#include <cstdint>

void CGUIBar::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnBar(*this, kArea);
}

void CGUIBar::SetRange(eC_Int iMinimum, eC_Int iMaximum)
{
    if (iMinimum != m_iMinimum || iMaximum != m_iMaximum)
    {
        m_iMinimum = iMinimum;
        m_iMaximum = iMaximum;
        MarkChanged();
    }
}

eC_Bool CGUIBar::SetValue(eC_Int iValue)
{
    const eC_Int iBefore = GetValue();
    m_iValue = iValue;
    if (GetValue() == iBefore)
    {
        return false;
    }
    MarkChanged();
    return true;
}

eC_Int CGUIBar::GetValue() const
{
    const eC_Int iAtMost = m_iValue > GetMaximum() ? GetMaximum() : m_iValue;
    return iAtMost < m_iMinimum ? m_iMinimum : iAtMost;
}

eC_Int CGUIBar::GetFilled(eC_Int iLength) const
{
    const std::int64_t iRange = static_cast<std::int64_t>(GetMaximum()) - m_iMinimum;
    const std::int64_t iValue = static_cast<std::int64_t>(GetValue()) - m_iMinimum;
    return iRange == 0 ? 0 : static_cast<eC_Int>(iValue * iLength / iRange);
}

EAttributeResult CGUIBar::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                             eC_String& kExpectedOUT)
{
    eC_Int iValue = m_iValue;
    eC_Int iMinimum = m_iMinimum;
    eC_Int iMaximum = m_iMaximum;
    EAttributeResult eResult = ATTRIBUTE_SET;
    if (IsName(pcName, "value"))
    {
        eResult = ReadNumber(pcValue, INT_MIN, INT_MAX, iValue, kExpectedOUT);
    }
    else if (IsName(pcName, "minimum"))
    {
        eResult = ReadNumber(pcValue, INT_MIN, INT_MAX, iMinimum, kExpectedOUT);
    }
    else if (IsName(pcName, "maximum"))
    {
        eResult = ReadNumber(pcValue, INT_MIN, INT_MAX, iMaximum, kExpectedOUT);
    }
    else
    {
        return WithOwnNames(CGUIWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT),
                            "value, minimum, maximum", kExpectedOUT);
    }
    SetRange(iMinimum, iMaximum);
    SetValue(iValue);
    return eResult;
}

void CGUIBar::TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue)
{
    SetValue(kValues.GetValueNumber(uiValue));
}

CGUISlider::CGUISlider(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIBar(pkParent, eID)
{
    SetFocusable(true);
}

void CGUISlider::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnSlider(*this, kArea);
}

void CGUISlider::SetStep(eC_Int iStep)
{
    if (iStep != m_iStep)
    {
        m_iStep = iStep;
        MarkChanged();
    }
}

EGUIReaction CGUISlider::OnKey(EGUIKey eKey)
{
    const eC_Int iValue = GetValue();
    switch (eKey)
    {
    case GUIKEY_LEFT:
        return Move(static_cast<std::int64_t>(iValue) - m_iStep < GetMinimum() ? GetMinimum()
                                                                               : iValue - m_iStep);
    case GUIKEY_RIGHT:
        return Move(static_cast<std::int64_t>(iValue) + m_iStep > GetMaximum() ? GetMaximum()
                                                                               : iValue + m_iStep);
    case GUIKEY_HOME:
        return Move(GetMinimum());
    case GUIKEY_END:
        return Move(GetMaximum());
    default:
        return CGUIBar::OnKey(eKey);
    }
}

EGUIReaction CGUISlider::OnTouch(eC_Int iX, eC_Int, const GUIArea_t& kArea)
{
    // The last unit of the slider stands for its maximum.
    const std::int64_t iRange = static_cast<std::int64_t>(GetMaximum()) - GetMinimum();
    const eC_Int iLast = kArea.m_iWidth > 1 ? kArea.m_iWidth - 1 : 1;
    const eC_Int iPlace = iX < 0 ? 0 : (iX > iLast ? iLast : iX);
    return Move(static_cast<eC_Int>(GetMinimum() + (iRange * iPlace + iLast / 2) / iLast));
}

eC_UInt CGUISlider::SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const
{
    return SaveNumber(GetValue(), puiStateOUT, uiSize);
}

eC_Bool CGUISlider::RestoreState(const unsigned char* puiState, eC_UInt uiSize)
{
    return RestoreNumber(*this, puiState, uiSize);
}

EAttributeResult CGUISlider::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                eC_String& kExpectedOUT)
{
    if (IsName(pcName, "step"))
    {
        eC_Int iStep = m_iStep;
        const EAttributeResult eResult = ReadNumber(pcValue, 1, INT_MAX, iStep, kExpectedOUT);
        SetStep(iStep);
        return eResult;
    }
    return WithOwnNames(CGUIBar::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "step", kExpectedOUT);
}

EGUIReaction CGUISlider::Move(eC_Int iValue)
{
    return SetValue(iValue) ? REACTION_CHANGED : REACTION_USED;
}
