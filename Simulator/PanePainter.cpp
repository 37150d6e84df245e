// SPDX-License-Identifier: MIT
#include "Simulator/PanePainter.h"

#include <algorithm>

void DrawFrame(CTextScreen& kScreen, const GUIArea_t& kInside, const std::string& kTitle)
{
    const eC_Int iRight = kInside.m_iX + kInside.m_iWidth;
    const eC_Int iBottom = kInside.m_iY + kInside.m_iHeight;
    kScreen.Fill(kInside, ' ');
    for (eC_Int iX = kInside.m_iX; iX < iRight; ++iX)
    {
        kScreen.Write(iX, kInside.m_iY - 1, "\xE2\x94\x80", STYLE_CHROME);
        kScreen.Write(iX, iBottom, "\xE2\x94\x80", STYLE_CHROME);
    }
    for (eC_Int iY = kInside.m_iY; iY < iBottom; ++iY)
    {
        kScreen.Write(kInside.m_iX - 1, iY, "\xE2\x94\x82", STYLE_CHROME);
        kScreen.Write(iRight, iY, "\xE2\x94\x82", STYLE_CHROME);
    }
    kScreen.Write(kInside.m_iX - 1, kInside.m_iY - 1, "\xE2\x94\x8C", STYLE_CHROME);
    kScreen.Write(iRight, kInside.m_iY - 1, "\xE2\x94\x90", STYLE_CHROME);
    kScreen.Write(kInside.m_iX - 1, iBottom, "\xE2\x94\x94", STYLE_CHROME);
    kScreen.Write(iRight, iBottom, "\xE2\x94\x98", STYLE_CHROME);
    kScreen.WriteShort(kInside.m_iX + 1, kInside.m_iY - 1, kInside.m_iWidth - 2, " " + kTitle + " ",
                       STYLE_CHROME);
}

void DrawHeading(CTextScreen& kScreen, const GUIArea_t& kArea, const std::string& kTitle)
{
    for (eC_Int iX = 0; iX < kArea.m_iWidth; ++iX)
    {
        kScreen.Write(kArea.m_iX + iX, kArea.m_iY, "\xE2\x94\x80", STYLE_CHROME);
    }
    kScreen.WriteShort(kArea.m_iX + 1, kArea.m_iY, kArea.m_iWidth - 2, " " + kTitle + " ", STYLE_CHROME);
}

void DrawLines(CTextScreen& kScreen, const GUIArea_t& kArea, const std::string& kTitle,
               const std::vector<StyledLine_t>& kLines, eC_Int iScroll)
{
    if (kArea.m_iHeight <= 0)
    {
        return;
    }
    DrawHeading(kScreen, kArea, kTitle);
    const auto iLines = static_cast<eC_Int>(kLines.size());
    for (eC_Int iRow = 1; iRow < kArea.m_iHeight && iScroll + iRow <= iLines; ++iRow)
    {
        const StyledLine_t& kLine = kLines[static_cast<std::size_t>(iScroll + iRow - 1)];
        kScreen.WriteShort(kArea.m_iX, kArea.m_iY + iRow, kArea.m_iWidth, kLine.m_kText, kLine.m_eStyle);
    }
}

void DrawTracePane(CTextScreen& kScreen, const GUIArea_t& kArea, const CTracePane& kPane,
                   const CTracePane::OlderItem_t& fnOlder)
{
    const auto uiRows = static_cast<std::size_t>(std::max(kArea.m_iHeight - 1, 0));
    DrawLines(kScreen, kArea, kPane.GetHeading(), kPane.Describe(uiRows, fnOlder), 0);
}

void DrawEditor(CTextScreen& kScreen, const CLineEditor& kEditor, eC_Int iX, eC_Int iY, eC_Int iColumns)
{
    const eC_Int iCursor = CountColumns(kEditor.GetBeforeCursor().c_str());
    const eC_Int iHidden = std::max(0, iCursor - iColumns + 1);
    const std::string kShown = kEditor.GetText().substr(CutColumns(kEditor.GetText(), iHidden).size());
    kScreen.Write(iX, iY, CutColumns(kShown, std::max(iColumns, 0)).c_str());
    kScreen.SetStyle({iX + iCursor - iHidden, iY, 1, 1}, STYLE_CURSOR);
}
