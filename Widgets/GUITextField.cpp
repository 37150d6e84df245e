// SPDX-License-Identifier: MIT
#include "Widgets/GUITextField.h"

#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/WidgetAttributes.h"
#include "Widgets/WidgetState.h"

#include <cstring>

CGUITextField::CGUITextField(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    : CGUIWidgetObject(pkParent, eID)
{
    SetFocusable(true);
}

void CGUITextField::Accept(CGUIWidgetVisitor& kVisitor, const GUIArea_t& kArea) const
{
    kVisitor.OnTextField(*this, kArea);
}

void CGUITextField::ReserveAll()
{
    m_kText.Reserve(m_uiMostCharacters * cuiBytesPerCharacter);
}

eC_Bool CGUITextField::SetText(const eC_Char* pcText)
{
    ReserveAll();
    const eC_Char* const pcNew = pcText != nullptr ? pcText : "";
    if (!m_kText.Set(pcNew, CGUIText::GetLengthOf(pcNew, m_uiMostCharacters)))
    {
        return false;
    }
    m_uiCursor = m_kText.GetLength();
    MarkContent();
    return true;
}

void CGUITextField::SetMostCharacters(eC_UInt uiCharacters)
{
    if (uiCharacters == m_uiMostCharacters)
    {
        return;
    }
    m_uiMostCharacters = uiCharacters;
    MarkContent();
    Remove(CGUIText::GetLengthOf(GetText(), uiCharacters), m_kText.GetLength());
}

eC_UInt CGUITextField::GetCursorColumn() const
{
    return CGUIText::CountCharacters(GetText()) - CGUIText::CountCharacters(GetText() + m_uiCursor);
}

void CGUITextField::SetCursorColumn(eC_UInt uiColumn)
{
    MoveCursor(CGUIText::GetLengthOf(GetText(), uiColumn));
}

eC_Bool CGUITextField::Insert(const eC_Char* pcText)
{
    ReserveAll();
    eC_UInt uiRoom = m_uiMostCharacters - CGUIText::CountCharacters(GetText());
    const eC_UInt uiBefore = m_uiCursor;
    while (*pcText != '\0' && uiRoom > 0)
    {
        const eC_UInt uiLength = CGUIText::GetLengthOf(pcText, 1);
        const auto uiByte = static_cast<unsigned char>(*pcText);
        if (uiByte >= ' ' && uiByte != 0x7F && uiLength <= cuiBytesPerCharacter)
        {
            m_kText.Insert(m_uiCursor, pcText, uiLength);
            m_uiCursor += uiLength;
            --uiRoom;
        }
        pcText += uiLength;
    }
    if (m_uiCursor == uiBefore)
    {
        return false;
    }
    MarkContent();
    return true;
}

EGUIReaction CGUITextField::OnKey(EGUIKey eKey)
{
    switch (eKey)
    {
    case GUIKEY_LEFT:
        return MoveCursor(m_kText.GetPrevious(m_uiCursor));
    case GUIKEY_RIGHT:
        return MoveCursor(m_kText.GetNext(m_uiCursor));
    case GUIKEY_HOME:
        return MoveCursor(0);
    case GUIKEY_END:
        return MoveCursor(m_kText.GetLength());
    case GUIKEY_BACKSPACE:
        return Remove(m_kText.GetPrevious(m_uiCursor), m_uiCursor);
    case GUIKEY_DELETE:
        return Remove(m_uiCursor, m_kText.GetNext(m_uiCursor));
    default:
        return CGUIWidgetObject::OnKey(eKey);
    }
}

EGUIReaction CGUITextField::OnType(const eC_Char* pcText)
{
    return Insert(pcText) ? REACTION_CHANGED : REACTION_USED;
}

EGUIReaction CGUITextField::OnTouch(eC_Int, eC_Int, const GUIArea_t&)
{
    // A touch only moves the focus here, where typed text goes then; the text is not finished yet.
    return REACTION_USED;
}

EGUIReaction CGUITextField::MoveCursor(eC_UInt uiCursor)
{
    if (uiCursor != m_uiCursor)
    {
        m_uiCursor = uiCursor;
        MarkChanged();
    }
    return REACTION_USED;
}

EGUIReaction CGUITextField::Remove(eC_UInt uiFrom, eC_UInt uiTo)
{
    if (uiFrom >= uiTo)
    {
        return REACTION_USED;
    }
    m_kText.Remove(uiFrom, uiTo);
    m_uiCursor = m_uiCursor < uiFrom ? m_uiCursor : uiFrom;
    MarkContent();
    return REACTION_CHANGED;
}

eC_UInt CGUITextField::SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const
{
    const eC_UInt uiState = cuiNumberBytes + m_kText.GetLength();
    if (uiState <= uiSize)
    {
        SaveNumber(static_cast<eC_Int>(GetCursorColumn()), puiStateOUT, uiSize);
        std::memcpy(puiStateOUT + cuiNumberBytes, GetText(), m_kText.GetLength());
    }
    return uiState;
}

eC_Bool CGUITextField::RestoreState(const unsigned char* puiState, eC_UInt uiSize)
{
    if (uiSize < cuiNumberBytes)
    {
        return false;
    }
    CGUIText kText;
    kText.Insert(0, reinterpret_cast<const eC_Char*>(puiState) + cuiNumberBytes, uiSize - cuiNumberBytes);
    SetText(kText.GetText());
    SetCursorColumn(static_cast<eC_UInt>(ReadSavedNumber(puiState)));
    return true;
}

EAttributeResult CGUITextField::SetWidgetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                                   eC_String& kExpectedOUT)
{
    if (IsName(pcName, "length"))
    {
        auto iCharacters = static_cast<eC_Int>(m_uiMostCharacters);
        const EAttributeResult eResult =
            ReadNumber(pcValue, 1, static_cast<eC_Int>(cuiGreatestLength), iCharacters, kExpectedOUT);
        SetMostCharacters(static_cast<eC_UInt>(iCharacters));
        return eResult;
    }
    return WithOwnNames(CGUIWidgetObject::SetWidgetAttribute(pcName, pcValue, kExpectedOUT), "length",
                        kExpectedOUT);
}
