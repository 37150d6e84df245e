// SPDX-License-Identifier: MIT
#include "Application/Screen.h"

#include <cstddef>
#include <cstring>

namespace
{
/** A code point is one byte and all continuation bytes after it. */
eC_UInt GetCharacterLength(const eC_Char* pcText)
{
    eC_UInt uiLength = 1;
    while ((static_cast<unsigned char>(pcText[uiLength]) & 0xC0U) == 0x80U)
    {
        ++uiLength;
    }
    return uiLength;
}
} // namespace

eC_Int CountColumns(const eC_Char* pcText)
{
    eC_Int iColumns = 0;
    while (*pcText != '\0')
    {
        pcText += GetCharacterLength(pcText);
        ++iColumns;
    }
    return iColumns;
}

void CScreen::Clear()
{
    Fill({0, 0, ciWidth, ciHeight}, ' ');
}

void CScreen::Write(eC_Int iX, eC_Int iY, const eC_Char* pcText)
{
    while (*pcText != '\0')
    {
        const eC_UInt uiLength = GetCharacterLength(pcText);
        Put(iX, iY, pcText, uiLength);
        pcText += uiLength;
        ++iX;
    }
}

void CScreen::Fill(const Rectangle_t& kArea, eC_Char cCharacter)
{
    for (eC_Int iRow = 0; iRow < kArea.m_iHeight; ++iRow)
    {
        for (eC_Int iColumn = 0; iColumn < kArea.m_iWidth; ++iColumn)
        {
            Put(kArea.m_iX + iColumn, kArea.m_iY + iRow, &cCharacter, 1);
        }
    }
}

void CScreen::DrawBox(const Rectangle_t& kArea, eC_Char cEdge, const eC_Char* pcTitle)
{
    const eC_Int iRight = kArea.m_iX + kArea.m_iWidth - 1;
    const eC_Int iBottom = kArea.m_iY + kArea.m_iHeight - 1;

    Fill(kArea, ' ');
    Fill({kArea.m_iX, kArea.m_iY, 1, kArea.m_iHeight}, '|');
    Fill({iRight, kArea.m_iY, 1, kArea.m_iHeight}, '|');
    Fill({kArea.m_iX, kArea.m_iY, kArea.m_iWidth, 1}, cEdge);
    Fill({kArea.m_iX, iBottom, kArea.m_iWidth, 1}, cEdge);
    Write(kArea.m_iX, kArea.m_iY, "+");
    Write(iRight, kArea.m_iY, "+");
    Write(kArea.m_iX, iBottom, "+");
    Write(iRight, iBottom, "+");

    if (*pcTitle != '\0')
    {
        Write(kArea.m_iX + 2, kArea.m_iY, (" " + eC_String(pcTitle) + " ").GetText());
    }
}

eC_String CScreen::GetFrame() const
{
    eC_String kEdge("+");
    for (eC_Int iColumn = 0; iColumn < ciWidth; ++iColumn)
    {
        kEdge += "-";
    }
    kEdge += "+\n";

    eC_String kFrame(kEdge);
    for (const Row_t& kRow : m_kRows)
    {
        kFrame += "|";
        for (const Cell_t& kCell : kRow)
        {
            kFrame += kCell.m_acBytes;
        }
        kFrame += "|\n";
    }
    return kFrame + kEdge;
}

void CScreen::Put(eC_Int iX, eC_Int iY, const eC_Char* pcBytes, eC_UInt uiLength)
{
    const eC_Bool bIsOnScreen = iX >= 0 && iX < ciWidth && iY >= 0 && iY < ciHeight;
    if (bIsOnScreen && uiLength < sizeof(Cell_t::m_acBytes))
    {
        Cell_t& kCell = m_kRows[static_cast<std::size_t>(iY)][static_cast<std::size_t>(iX)];
        std::memcpy(kCell.m_acBytes, pcBytes, uiLength);
        kCell.m_acBytes[uiLength] = '\0';
    }
}
