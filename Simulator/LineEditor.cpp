// SPDX-License-Identifier: MIT
#include "Simulator/LineEditor.h"

#include "Inspection/InspectionLine.h"

void CLineEditor::SetText(const std::string& kText)
{
    m_kText = kText;
    m_uiCursor = kText.size();
    m_bIsReplaced = true;
}

eC_Bool CLineEditor::PressKey(const std::string& kKey)
{
    const eC_Bool bIsReplaced = m_bIsReplaced;
    m_bIsReplaced = false;
    if (IsCharacter(kKey))
    {
        if (bIsReplaced)
        {
            Remove(0, m_kText.size());
        }
        m_kText.insert(m_uiCursor, kKey);
        m_uiCursor += kKey.size();
    }
    else if (kKey == "Backspace")
    {
        Remove(GetPrevious(), m_uiCursor);
    }
    else if (kKey == "Delete")
    {
        Remove(m_uiCursor, GetNext());
    }
    else if (kKey == "ArrowLeft")
    {
        m_uiCursor = GetPrevious();
    }
    else if (kKey == "ArrowRight")
    {
        m_uiCursor = GetNext();
    }
    else if (kKey == "Home")
    {
        m_uiCursor = 0;
    }
    else if (kKey == "End")
    {
        m_uiCursor = m_kText.size();
    }
    else
    {
        m_bIsReplaced = bIsReplaced;
        return false;
    }
    return true;
}

std::size_t CLineEditor::GetPrevious() const
{
    std::size_t uiPrevious = m_uiCursor;
    do
    {
        uiPrevious -= uiPrevious > 0 ? 1U : 0U;
    } while (uiPrevious > 0 && (static_cast<unsigned char>(m_kText[uiPrevious]) & 0xC0U) == 0x80U);
    return uiPrevious;
}

std::size_t CLineEditor::GetNext() const
{
    const std::size_t uiLeft = m_kText.size() - m_uiCursor;
    return uiLeft == 0
               ? m_uiCursor
               : m_uiCursor + GetCharacterLength(m_kText.data() + m_uiCursor, static_cast<eC_UInt>(uiLeft));
}

void CLineEditor::Remove(std::size_t uiFrom, std::size_t uiTo)
{
    m_kText.erase(uiFrom, uiTo - uiFrom);
    m_uiCursor = uiFrom;
}

eC_Bool IsCharacter(const std::string& kKey)
{
    const auto uiLength = static_cast<eC_UInt>(kKey.size());
    return uiLength > 0 && GetCharacterLength(kKey.data(), uiLength) == uiLength &&
           static_cast<unsigned char>(kKey.front()) >= ' ' && kKey.front() != 0x7F;
}
