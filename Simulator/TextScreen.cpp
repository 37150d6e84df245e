// SPDX-License-Identifier: MIT
#include "Simulator/TextScreen.h"

#include <algorithm>
#include <cstring>

namespace
{
/** A character of a text. */
struct Character_t
{
    std::size_t m_uiLength; ///< in bytes
    eC_Int m_iColumns;
};

struct CodePoints_t
{
    char32_t m_cFirst;
    char32_t m_cLast;
};

constexpr CodePoints_t cakWide[] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF},   {0xAC00, 0xD7A3},
                                    {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
                                    {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF}, {0x20000, 0x3FFFD}};
constexpr CodePoints_t cakCombining[] = {
    {0x300, 0x36F}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};

template <std::size_t uiRanges>
eC_Bool Contains(const CodePoints_t (&akRanges)[uiRanges], char32_t cCodePoint)
{
    return std::any_of(std::begin(akRanges), std::end(akRanges),
                       [cCodePoint](const CodePoints_t& kRange)
                       { return cCodePoint >= kRange.m_cFirst && cCodePoint <= kRange.m_cLast; });
}

/** A code point is one byte and all continuation bytes after it. */
Character_t ReadCharacter(const eC_Char* pcText)
{
    const auto ucFirst = static_cast<unsigned char>(*pcText);
    char32_t cCodePoint =
        ucFirst < 0x80 ? ucFirst : ucFirst & (ucFirst < 0xE0 ? 0x1FU : (ucFirst < 0xF0 ? 0xFU : 7U));
    std::size_t uiLength = 1;
    while ((static_cast<unsigned char>(pcText[uiLength]) & 0xC0U) == 0x80U)
    {
        cCodePoint = (cCodePoint << 6U) | (static_cast<unsigned char>(pcText[uiLength]) & 0x3FU);
        ++uiLength;
    }
    return {uiLength, Contains(cakCombining, cCodePoint) ? 0 : (Contains(cakWide, cCodePoint) ? 2 : 1)};
}

GUIArea_t Intersect(const GUIArea_t& kArea, eC_Int iWidth, eC_Int iHeight)
{
    const eC_Int iLeft = std::max(kArea.m_iX, 0);
    const eC_Int iTop = std::max(kArea.m_iY, 0);
    return {iLeft, iTop, std::min(kArea.m_iX + kArea.m_iWidth, iWidth) - iLeft,
            std::min(kArea.m_iY + kArea.m_iHeight, iHeight) - iTop};
}
} // namespace

CTextScreen::CTextScreen(eC_Int iWidth, eC_Int iHeight)
    : m_iWidth(iWidth),
      m_iHeight(iHeight),
      m_kCells(static_cast<std::size_t>(iWidth) * static_cast<std::size_t>(iHeight))
{
}

std::size_t CTextScreen::GetIndex(eC_Int iX, eC_Int iY) const
{
    return static_cast<std::size_t>(iY) * static_cast<std::size_t>(m_iWidth) + static_cast<std::size_t>(iX);
}

const TextCell_t& CTextScreen::GetCell(eC_Int iX, eC_Int iY) const
{
    static const TextCell_t s_kOutside = TextCell_t();
    const eC_Bool bIsOnScreen = iX >= 0 && iX < m_iWidth && iY >= 0 && iY < m_iHeight;
    return bIsOnScreen ? m_kCells[GetIndex(iX, iY)] : s_kOutside;
}

void CTextScreen::Clear()
{
    std::fill(m_kCells.begin(), m_kCells.end(), TextCell_t());
}

eC_Int CTextScreen::Write(eC_Int iX, eC_Int iY, const eC_Char* pcText, ETextStyle eStyle)
{
    const eC_Int iBegin = iX;
    while (*pcText != '\0')
    {
        const Character_t kCharacter = ReadCharacter(pcText);
        const auto ucFirst = static_cast<unsigned char>(*pcText);
        if (kCharacter.m_iColumns > 0)
        {
            const eC_Bool bIsControl = ucFirst < ' ' || ucFirst == 0x7F;
            Put(iX, iY, bIsControl ? " " : pcText, kCharacter.m_uiLength, eStyle);
        }
        if (kCharacter.m_iColumns > 1)
        {
            Put(iX + 1, iY, "", 0, eStyle);
        }
        pcText += kCharacter.m_uiLength;
        iX += kCharacter.m_iColumns;
    }
    return iX - iBegin;
}

void CTextScreen::WriteShort(eC_Int iX, eC_Int iY, eC_Int iColumns, const std::string& kText,
                             ETextStyle eStyle)
{
    if (iColumns <= 0)
    {
        return;
    }
    if (CountColumns(kText.c_str()) <= iColumns)
    {
        Write(iX, iY, kText.c_str(), eStyle);
        return;
    }
    const std::string kBegin = CutColumns(kText, iColumns - 1);
    const eC_Int iWritten = Write(iX, iY, kBegin.c_str(), eStyle);
    Write(iX + iWritten, iY, "~", eStyle);
}

void CTextScreen::Fill(const GUIArea_t& kArea, eC_Char cCharacter, ETextStyle eStyle)
{
    const GUIArea_t kShown = Intersect(kArea, m_iWidth, m_iHeight);
    for (eC_Int iRow = 0; iRow < kShown.m_iHeight; ++iRow)
    {
        for (eC_Int iColumn = 0; iColumn < kShown.m_iWidth; ++iColumn)
        {
            Put(kShown.m_iX + iColumn, kShown.m_iY + iRow, &cCharacter, 1, eStyle);
        }
    }
}

void CTextScreen::SetStyle(const GUIArea_t& kArea, ETextStyle eStyle)
{
    const GUIArea_t kShown = Intersect(kArea, m_iWidth, m_iHeight);
    for (eC_Int iRow = 0; iRow < kShown.m_iHeight; ++iRow)
    {
        for (eC_Int iColumn = 0; iColumn < kShown.m_iWidth; ++iColumn)
        {
            FindCell(kShown.m_iX + iColumn, kShown.m_iY + iRow)->m_eStyle = eStyle;
        }
    }
}

void CTextScreen::DrawBox(const GUIArea_t& kArea, eC_Char cEdge, const eC_Char* pcTitle, ETextStyle eStyle)
{
    const eC_Int iRight = kArea.m_iX + kArea.m_iWidth - 1;
    const eC_Int iBottom = kArea.m_iY + kArea.m_iHeight - 1;

    Fill(kArea, ' ');
    Fill({kArea.m_iX, kArea.m_iY, 1, kArea.m_iHeight}, '|', eStyle);
    Fill({iRight, kArea.m_iY, 1, kArea.m_iHeight}, '|', eStyle);
    Fill({kArea.m_iX, kArea.m_iY, kArea.m_iWidth, 1}, cEdge, eStyle);
    Fill({kArea.m_iX, iBottom, kArea.m_iWidth, 1}, cEdge, eStyle);
    for (const eC_Int iX : {kArea.m_iX, iRight})
    {
        Write(iX, kArea.m_iY, "+", eStyle);
        Write(iX, iBottom, "+", eStyle);
    }
    if (*pcTitle != '\0')
    {
        Write(kArea.m_iX + 2, kArea.m_iY, (" " + std::string(pcTitle) + " ").c_str(), STYLE_TITLE);
    }
}

void CTextScreen::Copy(const CTextScreen& kFrom, const GUIArea_t& kPart, eC_Int iX, eC_Int iY)
{
    for (eC_Int iRow = 0; iRow < kPart.m_iHeight; ++iRow)
    {
        for (eC_Int iColumn = 0; iColumn < kPart.m_iWidth; ++iColumn)
        {
            TextCell_t* const pkCell = FindCell(iX + iColumn, iY + iRow);
            if (pkCell != nullptr)
            {
                *pkCell = kFrom.GetCell(kPart.m_iX + iColumn, kPart.m_iY + iRow);
            }
        }
    }
}

std::string CTextScreen::GetRow(eC_Int iY) const
{
    std::string kRow;
    for (eC_Int iX = 0; iX < m_iWidth; ++iX)
    {
        kRow += GetCell(iX, iY).m_acBytes;
    }
    return kRow;
}

std::string CTextScreen::GetFrame() const
{
    const std::string kEdge = "+" + std::string(static_cast<std::size_t>(m_iWidth), '-') + "+\n";
    std::string kFrame = kEdge;
    for (eC_Int iY = 0; iY < m_iHeight; ++iY)
    {
        kFrame += "|" + GetRow(iY) + "|\n";
    }
    return kFrame + kEdge;
}

TextCell_t* CTextScreen::FindCell(eC_Int iX, eC_Int iY)
{
    const eC_Bool bIsOnScreen = iX >= 0 && iX < m_iWidth && iY >= 0 && iY < m_iHeight;
    return bIsOnScreen ? &m_kCells[GetIndex(iX, iY)] : nullptr;
}

void CTextScreen::Put(eC_Int iX, eC_Int iY, const eC_Char* pcBytes, std::size_t uiLength, ETextStyle eStyle)
{
    TextCell_t* const pkCell = FindCell(iX, iY);
    if (pkCell != nullptr && uiLength < sizeof(pkCell->m_acBytes))
    {
        std::memcpy(pkCell->m_acBytes, pcBytes, uiLength);
        pkCell->m_acBytes[uiLength] = '\0';
        pkCell->m_eStyle = eStyle;
    }
}

eC_Int CountColumns(const eC_Char* pcText)
{
    eC_Int iColumns = 0;
    while (*pcText != '\0')
    {
        const Character_t kCharacter = ReadCharacter(pcText);
        iColumns += kCharacter.m_iColumns;
        pcText += kCharacter.m_uiLength;
    }
    return iColumns;
}

std::string CutColumns(const std::string& kText, eC_Int iColumns)
{
    std::size_t uiEnd = 0;
    while (uiEnd < kText.size())
    {
        const Character_t kCharacter = ReadCharacter(kText.c_str() + uiEnd);
        iColumns -= kCharacter.m_iColumns;
        if (iColumns < 0)
        {
            break;
        }
        uiEnd += kCharacter.m_uiLength;
    }
    return kText.substr(0, uiEnd);
}

std::vector<std::string> WrapText(const std::string& kText, eC_Int iColumns)
{
    std::vector<std::string> kLines;
    std::string kRest = kText;
    while (CountColumns(kRest.c_str()) > iColumns)
    {
        std::string kLine = CutColumns(kRest, iColumns);
        std::size_t uiNext = kLine.size();
        const std::size_t uiBlank = kRest[uiNext] == ' ' ? uiNext : kLine.rfind(' ');
        if (uiBlank != std::string::npos && uiBlank > 0)
        {
            kLine.resize(uiBlank);
            uiNext = uiBlank + 1;
        }
        // A wide character does not fit into one column.
        uiNext = uiNext == 0 ? ReadCharacter(kRest.c_str()).m_uiLength : uiNext;
        kLines.push_back(kLine);
        kRest.erase(0, uiNext);
    }
    kLines.push_back(kRest);
    return kLines;
}
