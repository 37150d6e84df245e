// SPDX-License-Identifier: MIT
#include "Widgets/GUIContainer.h"

#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/WidgetAttributes.h"

#include <climits>

CGUIContainer::CGUIContainer(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    : CGUIWidgetObject(pkParent, eID), m_kLayout{LAYOUT_ABSOLUTE, 0, 0}
{
    SetSize(ciFill, ciFill);
}

void CGUIContainer::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnContainer(*this, kArea);
}

void CGUIContainer::SetLayout(EGUILayout eLayout, eC_Int iGap, eC_Int iPadding)
{
    if (eLayout != m_kLayout.m_eLayout || iGap != m_kLayout.m_iGap || iPadding != m_kLayout.m_iPadding)
    {
        m_kLayout = {eLayout, static_cast<short>(iGap), static_cast<short>(iPadding)};
        MarkChanged();
    }
}

EAttributeResult CGUIContainer::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                   eC_String& kExpectedOUT)
{
    EGUILayout eLayout = m_kLayout.m_eLayout;
    eC_Int iGap = m_kLayout.m_iGap;
    eC_Int iPadding = m_kLayout.m_iPadding;
    EAttributeResult eResult = ATTRIBUTE_SET;
    if (IsName(pcName, "layout"))
    {
        eLayout = IsName(pcValue, "row") ? LAYOUT_ROW : LAYOUT_COLUMN;
        eLayout = IsName(pcValue, "absolute") ? LAYOUT_ABSOLUTE : eLayout;
        if (eLayout == LAYOUT_COLUMN && !IsName(pcValue, "column"))
        {
            kExpectedOUT = "absolute, row or column";
            return ATTRIBUTE_BAD_VALUE;
        }
    }
    else if (IsName(pcName, "gap"))
    {
        eResult = ReadNumber(pcValue, 0, SHRT_MAX, iGap, kExpectedOUT);
    }
    else if (IsName(pcName, "padding"))
    {
        eResult = ReadNumber(pcValue, 0, SHRT_MAX, iPadding, kExpectedOUT);
    }
    else
    {
        return WithOwnNames(CGUIWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT),
                            "layout, gap, padding", kExpectedOUT);
    }
    SetLayout(eLayout, iGap, iPadding);
    return eResult;
}

void CGUIScreen::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnScreen(*this, kArea);
}

void CGUIPopup::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnPopup(*this, kArea);
}

void CGUIPopup::SetModal(eC_Bool bIsModal)
{
    if (bIsModal != m_bIsModal)
    {
        m_bIsModal = bIsModal;
        MarkChanged();
    }
}

EAttributeResult CGUIPopup::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                               eC_String& kExpectedOUT)
{
    if (IsName(pcName, "modal"))
    {
        eC_Bool bIsModal = m_bIsModal;
        const EAttributeResult eResult = ReadFlag(pcValue, bIsModal, kExpectedOUT);
        SetModal(bIsModal);
        return eResult;
    }
    return WithOwnNames(CGUIContainer::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "modal",
                        kExpectedOUT);
}
