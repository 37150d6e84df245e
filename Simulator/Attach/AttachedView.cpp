// SPDX-License-Identifier: MIT
#include "Simulator/Attach/AttachedView.h"

#include "Simulator/PanePainter.h"

#include <algorithm>

namespace
{
constexpr eC_Int ciHelpWidth = 50;

/** @return the first row of the trace */
eC_Int GetTop(eC_Int iHeight)
{
    return std::max(iHeight * 3 / 5, 1);
}

/** Draws one desk. */
class CAttachedPainter
{
public:
    CAttachedPainter(const CAttachedDesk& kDesk, eC_Int iWidth, eC_Int iHeight)
        : m_kDesk(kDesk), m_kScreen(iWidth, iHeight)
    {
    }

    const CTextScreen& Draw()
    {
        DrawBanner();
        DrawState();
        DrawTrace();
        DrawStatus();
        if (m_kDesk.GetMode() == CAttachedDesk::MODE_HELP)
        {
            DrawHelp();
        }
        return m_kScreen;
    }

private:
    void DrawBanner()
    {
        const eC_Int iWidth = m_kScreen.GetWidth();
        m_kScreen.Fill({0, 0, iWidth, 1}, ' ', STYLE_BANNER);
        const eC_Int iName = m_kScreen.Write(0, 0, (" ATTACHED: " + m_kDesk.GetName()).c_str(), STYLE_BANNER);
        const std::string kState = std::string(m_kDesk.IsGone() ? "gone" : "live") + "   " +
                                   FormatSeconds(m_kDesk.GetReader().GetTime()) + " s   ? help ";
        const eC_Int iColumns = CountColumns(kState.c_str());
        m_kScreen.Write(std::max(iWidth - iColumns, iName + 1), 0, kState.c_str(), STYLE_BANNER);
    }

    void DrawState()
    {
        const eC_Int iWidth = m_kScreen.GetWidth();
        const eC_Int iLeft = iWidth / 2;
        const eC_Int iRows = GetTop(m_kScreen.GetHeight()) - 1;
        DrawColumn({0, 1, std::max(iLeft - 1, 0), iRows}, "state, i I scroll", COLUMN_SITUATION);
        DrawColumn({iLeft, 1, iWidth - iLeft, iRows}, "objects", COLUMN_OBJECTS);
    }

    void DrawColumn(const GUIArea_t& kArea, const std::string& kTitle, EStateColumns eColumn)
    {
        const CInspectionReader& kReader = m_kDesk.GetReader();
        DrawLines(m_kScreen, kArea, kTitle, DescribeState(kReader.GetState(), kReader.GetTime(), eColumn),
                  m_kDesk.GetStateScroll());
    }

    void DrawTrace()
    {
        const eC_Int iTop = GetTop(m_kScreen.GetHeight());
        auto kItem = m_kDesk.GetTrace().rbegin();
        const auto GetOlder = [this, &kItem](TraceItem_t& kItemOUT)
        {
            if (kItem == m_kDesk.GetTrace().rend())
            {
                return false;
            }
            kItemOUT = *kItem++;
            return true;
        };
        DrawTracePane(m_kScreen, {0, iTop, m_kScreen.GetWidth(), m_kScreen.GetHeight() - 1 - iTop},
                      m_kDesk.GetTracePane(), GetOlder);
    }

    void DrawStatus()
    {
        const eC_Int iRow = m_kScreen.GetHeight() - 1;
        const eC_Int iWidth = m_kScreen.GetWidth();
        const CAttachedDesk::EMode eMode = m_kDesk.GetMode();
        if (eMode == CAttachedDesk::MODE_LINE || eMode == CAttachedDesk::MODE_FILTER)
        {
            const eC_Char* const pcPrompt =
                eMode == CAttachedDesk::MODE_LINE ? ":" : "show only lines with: ";
            const eC_Int iPrompt = m_kScreen.Write(0, iRow, pcPrompt, STYLE_STRONG);
            DrawEditor(m_kScreen, m_kDesk.GetEditor(), iPrompt, iRow, iWidth - iPrompt);
            return;
        }
        const eC_Bool bIsError = m_kDesk.GetMessageStyle() == STYLE_ERROR;
        m_kScreen.WriteShort(0, iRow, iWidth, (bIsError ? "!! " : "") + m_kDesk.GetMessage(),
                             m_kDesk.GetMessageStyle());
    }

    void DrawHelp()
    {
        const auto iRows = static_cast<eC_Int>(CAttachedDesk::GetKeys().size());
        const eC_Int iWidth = std::min(ciHelpWidth, m_kScreen.GetWidth() - 2);
        const GUIArea_t kInside = {(m_kScreen.GetWidth() - iWidth) / 2, (m_kScreen.GetHeight() - iRows) / 2,
                                   iWidth, iRows};
        DrawFrame(m_kScreen, kInside, "help: any key closes it");
        eC_Int iRow = kInside.m_iY;
        for (const DeskKey_t& kKey : CAttachedDesk::GetKeys())
        {
            m_kScreen.Write(kInside.m_iX + 1, iRow, kKey.m_pcKey, STYLE_STRONG);
            m_kScreen.WriteShort(kInside.m_iX + 12, iRow, iWidth - 12, kKey.m_pcText);
            ++iRow;
        }
    }

    const CAttachedDesk& m_kDesk;
    CTextScreen m_kScreen;
};
} // namespace

CTextScreen DrawAttached(const CAttachedDesk& kDesk, eC_Int iWidth, eC_Int iHeight)
{
    return CAttachedPainter(kDesk, iWidth, iHeight).Draw();
}

void ScrollAttached(CAttachedDesk& kDesk, eC_Int iHeight, eC_Int iY, eC_Int iLines)
{
    if (iY >= GetTop(iHeight))
    {
        kDesk.ScrollTrace(-iLines);
    }
    else
    {
        kDesk.ScrollState(iLines);
    }
}
