// SPDX-License-Identifier: MIT
#include "Application/Widgets.h"

#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"

#include <cstring>

CWidget* CWidget::ms_pkFirst = nullptr;

namespace
{
/** Reads a number of characters, 0 to 99. */
EAttributeResult ReadCharacters(const eC_Char* pcValue, eC_Int& iCharactersOUT, eC_String& kExpectedOUT)
{
    eC_Int iCharacters = 0;
    eC_UInt uiDigits = 0;
    while (pcValue[uiDigits] >= '0' && pcValue[uiDigits] <= '9' && uiDigits < 2)
    {
        iCharacters = iCharacters * 10 + (pcValue[uiDigits] - '0');
        ++uiDigits;
    }
    if (uiDigits == 0 || pcValue[uiDigits] != '\0')
    {
        kExpectedOUT = "a number from 0 to 99";
        return ATTRIBUTE_BAD_VALUE;
    }
    iCharactersOUT = iCharacters;
    return ATTRIBUTE_SET;
}

EAttributeResult ReadTextKey(const eC_Char* pcValue, ETextKey& eTextOUT, eC_String& kExpectedOUT)
{
    if (!FindTextKey(pcValue, eTextOUT))
    {
        kExpectedOUT = "the key of a text, such as TXT_BACK";
        return ATTRIBUTE_BAD_VALUE;
    }
    return ATTRIBUTE_SET;
}

EAttributeResult ReadValue(const eC_Char* pcValue, EValue& eValueOUT, eC_String& kExpectedOUT)
{
    if (!FindValue(pcValue, eValueOUT))
    {
        kExpectedOUT = "the name of a value, such as WATER";
        return ATTRIBUTE_BAD_VALUE;
    }
    return ATTRIBUTE_SET;
}

EAttributeResult ReadFlag(const eC_Char* pcValue, eC_Bool& bFlagOUT, eC_String& kExpectedOUT)
{
    const eC_Bool bIsTrue = std::strcmp(pcValue, "true") == 0;
    if (!bIsTrue && std::strcmp(pcValue, "false") != 0)
    {
        kExpectedOUT = "true or false";
        return ATTRIBUTE_BAD_VALUE;
    }
    bFlagOUT = bIsTrue;
    return ATTRIBUTE_SET;
}

/** Appends the attributes of the base class to those of the derived one. */
EAttributeResult WithOwnNames(EAttributeResult eBaseResult, const eC_Char* pcOwnNames,
                              eC_String& kExpectedOUT)
{
    if (eBaseResult == ATTRIBUTE_UNKNOWN)
    {
        kExpectedOUT = pcOwnNames + kExpectedOUT;
    }
    return eBaseResult;
}
} // namespace

// ---- CWidget ---------------------------------------------------------------------------------------

CWidget::CWidget(const CGUIObject& kObject)
    : m_kObject(kObject),
      m_pkPrevious(nullptr),
      m_pkNext(ms_pkFirst),
      m_iX(0),
      m_iY(0),
      m_eText(TXT_NONE),
      m_eValue(VALUE_NONE)
{
    if (m_pkNext != nullptr)
    {
        m_pkNext->m_pkPrevious = this;
    }
    ms_pkFirst = this;
}

CWidget::~CWidget()
{
    if (m_pkNext != nullptr)
    {
        m_pkNext->m_pkPrevious = m_pkPrevious;
    }
    (m_pkPrevious != nullptr ? m_pkPrevious->m_pkNext : ms_pkFirst) = m_pkNext;
}

const CWidget* CWidget::Find(const CGUIObject* pkObject)
{
    const CWidget* pkWidget = ms_pkFirst;
    while (pkWidget != nullptr && &pkWidget->m_kObject != pkObject)
    {
        pkWidget = pkWidget->m_pkNext;
    }
    return pkWidget;
}

void CWidget::SetPosition(eC_Int iX, eC_Int iY)
{
    m_iX = iX;
    m_iY = iY;
}

EAttributeResult CWidget::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                             eC_String& kExpectedOUT)
{
    if (std::strcmp(pcName, "x") == 0)
    {
        return ReadCharacters(pcValue, m_iX, kExpectedOUT);
    }
    if (std::strcmp(pcName, "y") == 0)
    {
        return ReadCharacters(pcValue, m_iY, kExpectedOUT);
    }
    if (std::strcmp(pcName, "text") == 0)
    {
        return ReadTextKey(pcValue, m_eText, kExpectedOUT);
    }
    if (std::strcmp(pcName, "value") == 0)
    {
        return ReadValue(pcValue, m_eValue, kExpectedOUT);
    }
    kExpectedOUT = "x, y, text, value";
    return ATTRIBUTE_UNKNOWN;
}

eC_String CWidget::GetContent(const CValueSource& kValues) const
{
    const eC_String kText(GetDisplayText(m_eText, kValues.GetLanguage()));
    const eC_String kValue = kValues.GetValueText(m_eValue);
    return kText.IsEmpty() || kValue.IsEmpty() ? kText + kValue : kText + " " + kValue;
}

eC_Bool CWidget::HasFocus() const
{
    return CGUIEventHandler::GetInstance().GetFocussedObject() == &m_kObject;
}

// ---- CWindow ---------------------------------------------------------------------------------------

void CWindow::SetSize(eC_Int iWidth, eC_Int iHeight)
{
    m_iWidth = iWidth;
    m_iHeight = iHeight;
}

EAttributeResult CWindow::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                             eC_String& kExpectedOUT)
{
    if (std::strcmp(pcName, "width") == 0)
    {
        return ReadCharacters(pcValue, m_iWidth, kExpectedOUT);
    }
    if (std::strcmp(pcName, "height") == 0)
    {
        return ReadCharacters(pcValue, m_iHeight, kExpectedOUT);
    }
    return WithOwnNames(CWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "width, height, ",
                        kExpectedOUT);
}

// ---- CDialog and CPopup ----------------------------------------------------------------------------

void CDialog::Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const
{
    const Rectangle_t kArea = {iX, iY, GetWidth(), GetHeight()};
    const eC_String kTitle = GetContent(kValues);
    if (GetWidth() < CScreen::ciWidth)
    {
        kScreen.DrawBox(kArea, '-', kTitle.GetText());
    }
    else
    {
        kScreen.Fill(kArea, ' ');
        kScreen.Write(iX + 1, iY, kTitle.GetText());
        kScreen.Fill({iX, iY + 1, GetWidth(), 1}, '-');
    }
}

void CPopup::Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const
{
    kScreen.DrawBox({iX, iY, GetWidth(), GetHeight()}, '=', GetContent(kValues).GetText());
}

EAttributeResult CPopup::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                            eC_String& kExpectedOUT)
{
    if (std::strcmp(pcName, "modal") == 0)
    {
        return ReadFlag(pcValue, m_bIsModal, kExpectedOUT);
    }
    return WithOwnNames(CWindow::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "modal, ", kExpectedOUT);
}

// ---- CLabel, CButton and CGauge --------------------------------------------------------------------

void CLabel::Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const
{
    kScreen.Write(iX, iY, GetContent(kValues).GetText());
}

CButton::CButton(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CWidgetObject(pkParent, eID)
{
    SetFocusable(true);
}

void CButton::Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const
{
    const eC_String kText = "[ " + GetContent(kValues) + " ]";
    kScreen.Write(iX, iY, kText.GetText());
    if (HasFocus())
    {
        kScreen.Write(iX - 1, iY, ">");
        kScreen.Write(iX + CountColumns(kText.GetText()), iY, "<");
    }
}

void CGauge::Paint(CScreen& kScreen, const CValueSource& kValues, eC_Int iX, eC_Int iY) const
{
    const eC_UInt uiPercent = kValues.GetPercent(GetValue());
    const eC_Int iFilled = static_cast<eC_Int>(uiPercent) * m_iWidth / 100;
    kScreen.Fill({iX, iY, m_iWidth, 1}, '-');
    kScreen.Fill({iX, iY, iFilled, 1}, '#');
    kScreen.Write(iX + m_iWidth + 1, iY, (eC_String(uiPercent) + "%").GetText());
}

EAttributeResult CGauge::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                            eC_String& kExpectedOUT)
{
    if (std::strcmp(pcName, "width") == 0)
    {
        return ReadCharacters(pcValue, m_iWidth, kExpectedOUT);
    }
    return WithOwnNames(CWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "width, ",
                        kExpectedOUT);
}

void RegisterWidgets(CGUIFactoryManager& kFactory)
{
    kFactory.RegisterObjectClass<CDialog>("Dialog");
    kFactory.RegisterObjectClass<CPopup>("Popup");
    kFactory.RegisterObjectClass<CLabel>("Label");
    kFactory.RegisterObjectClass<CButton>("Button");
    kFactory.RegisterObjectClass<CGauge>("Gauge");
}
