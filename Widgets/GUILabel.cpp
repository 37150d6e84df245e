// SPDX-License-Identifier: MIT
#include "Widgets/GUILabel.h"

#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/WidgetAttributes.h"

void CGUILabel::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnLabel(*this, kArea);
}

void CGUIImage::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnImage(*this, kArea);
}

void CGUIImage::SetImage(const eC_Char* pcImage)
{
    if (m_kImage.Set(pcImage))
    {
        MarkContent();
    }
}

EAttributeResult CGUIImage::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                               eC_String& kExpectedOUT)
{
    if (IsName(pcName, "image"))
    {
        SetImage(pcValue);
        return ATTRIBUTE_SET;
    }
    return WithOwnNames(CGUIWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "image",
                        kExpectedOUT);
}
