// SPDX-License-Identifier: MIT
#include "Widgets/GUIButton.h"

#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/WidgetAttributes.h"
#include "Widgets/WidgetState.h"

CGUIButton::CGUIButton(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIWidgetObject(pkParent, eID)
{
    SetFocusable(true);
}

void CGUIButton::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnButton(*this, kArea);
}

CGUICheckBox::CGUICheckBox(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    : CGUIWidgetObject(pkParent, eID)
{
    SetFocusable(true);
}

void CGUICheckBox::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnCheckBox(*this, kArea);
}

eC_Bool CGUICheckBox::SetValue(eC_Int iValue)
{
    const eC_Bool bIsChecked = iValue != 0;
    if (bIsChecked == m_bIsChecked)
    {
        return false;
    }
    m_bIsChecked = bIsChecked;
    MarkChanged();
    return true;
}

EGUIReaction CGUICheckBox::OnKey(EGUIKey eKey)
{
    if (eKey != GUIKEY_ACTIVATE)
    {
        return REACTION_NONE;
    }
    SetValue(m_bIsChecked ? 0 : 1);
    return REACTION_CHANGED;
}

eC_UInt CGUICheckBox::SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const
{
    return SaveNumber(GetValue(), puiStateOUT, uiSize);
}

eC_Bool CGUICheckBox::RestoreState(const unsigned char* puiState, eC_UInt uiSize)
{
    return RestoreNumber(*this, puiState, uiSize);
}

EAttributeResult CGUICheckBox::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                  eC_String& kExpectedOUT)
{
    if (IsName(pcName, "checked"))
    {
        eC_Bool bIsChecked = m_bIsChecked;
        const EAttributeResult eResult = ReadFlag(pcValue, bIsChecked, kExpectedOUT);
        SetValue(bIsChecked ? 1 : 0);
        return eResult;
    }
    return WithOwnNames(CGUIWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "checked",
                        kExpectedOUT);
}

void CGUICheckBox::TakeValue(const CGUIValueSource& kValues, GUIContentKey_t uiValue)
{
    SetValue(kValues.GetValueNumber(uiValue));
}
