// SPDX-License-Identifier: MIT
#include "Loader/UTF8Text.h"

#include <algorithm>

namespace
{
struct SequenceForm_t
{
    unsigned char m_cLeadMask;
    unsigned char m_cLeadBits;
    std::size_t m_uiLength;
    char32_t m_cFirst; ///< the lowest code point that needs this length
};

constexpr SequenceForm_t cakSequenceForms[] = {
    {0x80, 0x00, 1, 0x0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

constexpr unsigned char ccContinuationMask = 0xC0;
constexpr unsigned char ccContinuationBits = 0x80;

eC_Bool IsContinuation(eC_Char cByte)
{
    return (static_cast<unsigned char>(cByte) & ccContinuationMask) == ccContinuationBits;
}

eC_Bool IsSurrogate(char32_t cCharacter)
{
    return cCharacter >= 0xD800 && cCharacter <= 0xDFFF;
}

std::size_t DecodeSequence(std::string_view kText, const SequenceForm_t& kForm, char32_t& cCharacterOUT)
{
    if (kText.size() < kForm.m_uiLength)
    {
        return 0;
    }
    char32_t cCharacter =
        static_cast<unsigned char>(kText[0]) & static_cast<unsigned char>(~kForm.m_cLeadMask);
    for (std::size_t uiByte = 1; uiByte < kForm.m_uiLength; ++uiByte)
    {
        if (!IsContinuation(kText[uiByte]))
        {
            return 0;
        }
        cCharacter = (cCharacter << 6) | (static_cast<unsigned char>(kText[uiByte]) & 0x3F);
    }
    if (cCharacter < kForm.m_cFirst || cCharacter > 0x10FFFF || IsSurrogate(cCharacter))
    {
        return 0;
    }
    cCharacterOUT = cCharacter;
    return kForm.m_uiLength;
}

eC_Bool IsControl(eC_Char cByte)
{
    return static_cast<unsigned char>(cByte) < ' ' || cByte == '\x7F';
}
} // namespace

std::size_t DecodeUTF8(std::string_view kText, char32_t& cCharacterOUT)
{
    for (const SequenceForm_t& kForm : cakSequenceForms)
    {
        if ((static_cast<unsigned char>(kText[0]) & kForm.m_cLeadMask) == kForm.m_cLeadBits)
        {
            return DecodeSequence(kText, kForm, cCharacterOUT);
        }
    }
    return 0;
}

TextPosition_t LocateInText(std::string_view kText, std::size_t uiOffset)
{
    TextPosition_t kPosition;
    AdvanceInText(kText, 0, uiOffset, kPosition);
    return kPosition;
}

void AdvanceInText(std::string_view kText, std::size_t uiFrom, std::size_t uiTo, TextPosition_t& kPositionOUT)
{
    const eC_Bool bHasMark = kText.substr(0, ckByteOrderMark.size()) == ckByteOrderMark;
    const std::size_t uiFirst = bHasMark ? std::max(uiFrom, ckByteOrderMark.size()) : uiFrom;
    for (std::size_t uiByte = uiFirst; uiByte < uiTo; ++uiByte)
    {
        const eC_Bool bIsBeforeLF = uiByte + 1 < kText.size() && kText[uiByte + 1] == '\n';
        if (kText[uiByte] == '\n' || (kText[uiByte] == '\r' && !bIsBeforeLF))
        {
            ++kPositionOUT.m_uiLine;
            kPositionOUT.m_uiColumn = 1;
        }
        else if (!IsContinuation(kText[uiByte]))
        {
            ++kPositionOUT.m_uiColumn;
        }
    }
}

eC_String QuoteForMessage(std::string_view kText)
{
    constexpr std::string_view ckCut = "...";
    constexpr std::size_t cuiLongestCharacter = 4;
    eC_Char acQuoted[1 + cuiMaxQuotedLength * cuiLongestCharacter + ckCut.size() + 1];
    eC_Char* pcEnd = acQuoted;
    *pcEnd++ = '\'';
    std::size_t uiCharacters = 0;
    for (const eC_Char cByte : kText)
    {
        uiCharacters += IsContinuation(cByte) ? 0U : 1U;
        const eC_Bool bIsFull = pcEnd == acQuoted + 1 + cuiMaxQuotedLength * cuiLongestCharacter;
        if (uiCharacters > cuiMaxQuotedLength || bIsFull)
        {
            pcEnd = std::copy(ckCut.begin(), ckCut.end(), pcEnd);
            break;
        }
        *pcEnd++ = IsControl(cByte) ? '?' : cByte;
    }
    *pcEnd++ = '\'';
    return eC_String(acQuoted, static_cast<eC_UInt>(pcEnd - acQuoted));
}
