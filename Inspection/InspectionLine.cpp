// SPDX-License-Identifier: MIT
#include "Inspection/InspectionLine.h"

#include <cstring>

namespace
{
constexpr unsigned char cucFirstPrintable = 0x20;

/** The valid range of a character's second byte. It depends on the first byte, to exclude overlong forms,
 *  surrogates and everything beyond U+10FFFF.
 */
eC_Bool IsSecondByte(unsigned char ucFirst, unsigned char ucSecond)
{
    const unsigned char ucLowest = ucFirst == 0xE0 ? 0xA0 : (ucFirst == 0xF0 ? 0x90 : 0x80);
    const unsigned char ucHighest = ucFirst == 0xED ? 0x9F : (ucFirst == 0xF4 ? 0x8F : 0xBF);
    return ucSecond >= ucLowest && ucSecond <= ucHighest;
}
} // namespace

eC_UInt GetCharacterLength(const eC_Char* pcText, eC_UInt uiLength)
{
    const auto ucFirst = static_cast<unsigned char>(pcText[0]);
    if (ucFirst < 0x80)
    {
        return 1;
    }
    if (ucFirst < 0xC2 || ucFirst > 0xF4)
    {
        return 0;
    }
    const eC_UInt uiCharacter = ucFirst < 0xE0 ? 2 : (ucFirst < 0xF0 ? 3 : 4);
    if (uiCharacter > uiLength || !IsSecondByte(ucFirst, static_cast<unsigned char>(pcText[1])))
    {
        return 0;
    }
    for (eC_UInt uiByte = 2; uiByte < uiCharacter; ++uiByte)
    {
        if ((static_cast<unsigned char>(pcText[uiByte]) & 0xC0U) != 0x80U)
        {
            return 0;
        }
    }
    return uiCharacter;
}

void CInspectionLine::Begin()
{
    m_uiLength = 0;
    m_uiReserved = 0;
    m_bIsTooLong = false;
    Append('{');
}

void CInspectionLine::End()
{
    AppendPlain("}\n");
}

void CInspectionLine::BeginObject()
{
    Separate();
    Append('{');
}

void CInspectionLine::BeginList(const eC_Char* pcKey)
{
    Key(pcKey);
    Append('[');
}

void CInspectionLine::Text(const eC_Char* pcKey, const eC_Char* pcText)
{
    Text(pcKey, pcText, static_cast<eC_UInt>(std::strlen(pcText)));
}

void CInspectionLine::Text(const eC_Char* pcKey, const eC_Char* pcText, eC_UInt uiLength)
{
    Key(pcKey);
    Append('"');
    eC_UInt uiByte = 0;
    while (uiByte < uiLength)
    {
        eC_UInt uiCharacter = GetCharacterLength(pcText + uiByte, uiLength - uiByte);
        if (uiCharacter == 0)
        {
            AppendPlain("\\ufffd");
            ++uiByte;
        }
        for (; uiCharacter > 0; --uiCharacter)
        {
            AppendEscaped(static_cast<unsigned char>(pcText[uiByte++]));
        }
    }
    Append('"');
}

void CInspectionLine::Number(const eC_Char* pcKey, eC_UInt uiNumber)
{
    Key(pcKey);
    AppendNumber(uiNumber);
}

void CInspectionLine::Integer(const eC_Char* pcKey, eC_Int iNumber)
{
    const eC_UInt uiNumber = static_cast<eC_UInt>(iNumber);
    Key(pcKey);
    AppendPlain(iNumber < 0 ? "-" : "");
    AppendNumber(iNumber < 0 ? 0U - uiNumber : uiNumber);
}

void CInspectionLine::Flag(const eC_Char* pcKey, eC_Bool bFlag)
{
    Key(pcKey);
    AppendPlain(bFlag ? "true" : "false");
}

void CInspectionLine::Handle(const eC_Char* pcKey, ObjectHandle_t eHandle)
{
    Key(pcKey);
    Append('{');
    HandleMembers(eHandle);
    Append('}');
}

void CInspectionLine::HandleMembers(ObjectHandle_t eHandle)
{
    Integer("id", eHandle);
    const eC_Char* const pcName = GetObjectHandleName(eHandle);
    if (pcName != nullptr)
    {
        Text("name", pcName);
    }
}

void CInspectionLine::ReturnTo(eC_UInt uiLength)
{
    m_uiLength = uiLength;
    m_bIsTooLong = false;
}

void CInspectionLine::Append(eC_Char cCharacter)
{
    if (m_bIsTooLong || m_uiLength + m_uiReserved >= m_uiSize)
    {
        m_bIsTooLong = true;
        return;
    }
    m_pcMemory[m_uiLength++] = cCharacter;
}

void CInspectionLine::AppendPlain(const eC_Char* pcText)
{
    for (; *pcText != '\0'; ++pcText)
    {
        Append(*pcText);
    }
}

void CInspectionLine::AppendNumber(eC_UInt uiNumber)
{
    eC_UInt uiPower = 1;
    while (uiNumber / uiPower >= 10)
    {
        uiPower *= 10;
    }
    for (; uiPower > 0; uiPower /= 10)
    {
        Append(static_cast<eC_Char>('0' + uiNumber / uiPower % 10));
    }
}

void CInspectionLine::AppendEscaped(unsigned char cCharacter)
{
    if (cCharacter == '"' || cCharacter == '\\')
    {
        Append('\\');
        Append(static_cast<eC_Char>(cCharacter));
    }
    else if (cCharacter == '\n')
    {
        AppendPlain("\\n");
    }
    else if (cCharacter < cucFirstPrintable)
    {
        AppendPlain("\\u00");
        Append(static_cast<eC_Char>('0' + cCharacter / 16));
        Append("0123456789abcdef"[cCharacter % 16]);
    }
    else
    {
        Append(static_cast<eC_Char>(cCharacter));
    }
}

void CInspectionLine::Separate()
{
    const eC_Char cLast = m_uiLength > 0 ? m_pcMemory[m_uiLength - 1] : '{';
    if (cLast != '{' && cLast != '[')
    {
        Append(',');
    }
}

void CInspectionLine::Key(const eC_Char* pcKey)
{
    Separate();
    Append('"');
    AppendPlain(pcKey);
    AppendPlain("\":");
}
