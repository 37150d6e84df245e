// SPDX-License-Identifier: MIT
#include "Widgets/GUIText.h"

#include <cstring>
#include <utility>

namespace
{
eC_Bool IsContinuation(eC_Char cByte)
{
    return (static_cast<unsigned char>(cByte) & 0xC0U) == 0x80U;
}
} // namespace

void CGUIText::Reserve(eC_UInt uiCapacity)
{
    if (m_pcBuffer != nullptr && uiCapacity <= m_uiCapacity)
    {
        return;
    }
    std::unique_ptr<eC_Char[]> pcBuffer(new eC_Char[uiCapacity + 1]);
    std::memcpy(pcBuffer.get(), GetText(), m_uiLength + 1);
    m_pcBuffer = std::move(pcBuffer);
    m_uiCapacity = uiCapacity;
}

eC_Bool CGUIText::Set(const eC_Char* pcText)
{
    return pcText != nullptr ? Set(pcText, static_cast<eC_UInt>(std::strlen(pcText))) : Set("", 0);
}

eC_Bool CGUIText::Set(const eC_Char* pcText, eC_UInt uiLength)
{
    if (uiLength == m_uiLength && std::memcmp(pcText, GetText(), uiLength) == 0)
    {
        return false;
    }
    // There is always room for a part of this text itself, so it cannot move before it is copied.
    Reserve(uiLength);
    std::memmove(m_pcBuffer.get(), pcText, uiLength);
    m_pcBuffer[uiLength] = '\0';
    m_uiLength = uiLength;
    return true;
}

void CGUIText::Insert(eC_UInt uiOffset, const eC_Char* pcText, eC_UInt uiLength)
{
    Reserve(m_uiLength + uiLength);
    eC_Char* const pcPlace = m_pcBuffer.get() + uiOffset;
    std::memmove(pcPlace + uiLength, pcPlace, m_uiLength + 1 - uiOffset);
    std::memcpy(pcPlace, pcText, uiLength);
    m_uiLength += uiLength;
}

void CGUIText::Remove(eC_UInt uiFrom, eC_UInt uiTo)
{
    if (uiFrom < uiTo)
    {
        std::memmove(m_pcBuffer.get() + uiFrom, m_pcBuffer.get() + uiTo, m_uiLength + 1 - uiTo);
        m_uiLength -= uiTo - uiFrom;
    }
}

eC_UInt CGUIText::GetNext(eC_UInt uiOffset) const
{
    return uiOffset + GetLengthOf(GetText() + uiOffset, 1);
}

eC_UInt CGUIText::GetPrevious(eC_UInt uiOffset) const
{
    if (uiOffset == 0)
    {
        return 0;
    }
    --uiOffset;
    while (uiOffset > 0 && IsContinuation(GetText()[uiOffset]))
    {
        --uiOffset;
    }
    return uiOffset;
}

eC_UInt CGUIText::CountCharacters(const eC_Char* pcText)
{
    eC_UInt uiCharacters = 0;
    while (*pcText != '\0')
    {
        pcText += GetLengthOf(pcText, 1);
        ++uiCharacters;
    }
    return uiCharacters;
}

eC_UInt CGUIText::GetLengthOf(const eC_Char* pcText, eC_UInt uiCharacters)
{
    eC_UInt uiLength = 0;
    for (; uiCharacters > 0 && pcText[uiLength] != '\0'; --uiCharacters)
    {
        ++uiLength;
        while (IsContinuation(pcText[uiLength]))
        {
            ++uiLength;
        }
    }
    return uiLength;
}
