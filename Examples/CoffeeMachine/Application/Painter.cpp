// SPDX-License-Identifier: MIT
#include "Application/Painter.h"

#include "Core/Utils/eC_String.h"
#include "Widgets/GUIWidgetLayout.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

namespace
{
constexpr eC_Int ciUsualBarWidth = 10;
constexpr eC_Int ciBracketsWidth = 4; ///< "[ " and " ]" around a button's text

/** What a widget shows, as far as a row of the screen can hold it. */
class CContent
{
public:
    explicit CContent(const CGUIWidget& kWidget) { kWidget.CopyContent(m_acText, sizeof(m_acText)); }

    const eC_Char* GetText() const { return m_acText; }
    eC_Int GetColumns() const { return CountColumns(m_acText); }

private:
    eC_Char m_acText[CScreen::ciWidth * 4 + 1];
};

/** Measures the class of widget that it is shown to. */
class CMeasure : public CGUIWidgetVisitor
{
public:
    eC_Int m_iWidth = 0;

    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t&) override
    {
        m_iWidth = CContent(kWidget).GetColumns();
    }
    void OnButton(const CGUIButton& kButton, const GUIArea_t&) override
    {
        m_iWidth = CContent(kButton).GetColumns() + ciBracketsWidth;
    }
    void OnBar(const CGUIBar&, const GUIArea_t&) override { m_iWidth = ciUsualBarWidth; }
};

class CMetrics : public CGUIWidgetMetrics
{
public:
    void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        CMeasure kMeasure;
        kWidget.Accept(kMeasure, GUIArea_t());
        iWidthOUT = kMeasure.m_iWidth;
        iHeightOUT = 1;
    }
};

/** Draws the classes that the dialogs are made of; any other one shows its text. */
class CPainter : public CGUIWidgetVisitor
{
public:
    explicit CPainter(CScreen& kScreen) : m_kScreen(kScreen) {}

    void OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea) override
    {
        const CContent kTitle(kScreen);
        const Rectangle_t kPlace = {kArea.m_iX, kArea.m_iY, kArea.m_iWidth, kArea.m_iHeight};
        if (kArea.m_iWidth < CScreen::ciWidth)
        {
            m_kScreen.DrawBox(kPlace, '-', kTitle.GetText());
        }
        else
        {
            m_kScreen.Fill(kPlace, ' ');
            m_kScreen.Write(kArea.m_iX + 1, kArea.m_iY, kTitle.GetText());
            m_kScreen.Fill({kArea.m_iX, kArea.m_iY + 1, kArea.m_iWidth, 1}, '-');
        }
    }

    void OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea) override
    {
        m_kScreen.DrawBox({kArea.m_iX, kArea.m_iY, kArea.m_iWidth, kArea.m_iHeight}, '=',
                          CContent(kPopup).GetText());
    }

    void OnButton(const CGUIButton& kButton, const GUIArea_t& kArea) override
    {
        const CContent kText(kButton);
        const eC_Int iBehind = kArea.m_iX + kText.GetColumns() + ciBracketsWidth;
        m_kScreen.Write(kArea.m_iX, kArea.m_iY, "[ ");
        m_kScreen.Write(kArea.m_iX + 2, kArea.m_iY, kText.GetText());
        m_kScreen.Write(iBehind - 2, kArea.m_iY, " ]");
        if (kButton.HasFocus())
        {
            m_kScreen.Write(kArea.m_iX - 1, kArea.m_iY, ">");
            m_kScreen.Write(iBehind, kArea.m_iY, "<");
        }
    }

    void OnBar(const CGUIBar& kBar, const GUIArea_t& kArea) override
    {
        m_kScreen.Fill({kArea.m_iX, kArea.m_iY, kArea.m_iWidth, 1}, '-');
        m_kScreen.Fill({kArea.m_iX, kArea.m_iY, kBar.GetFilled(kArea.m_iWidth), 1}, '#');
        m_kScreen.Write(kArea.m_iX + kArea.m_iWidth + 1, kArea.m_iY,
                        (eC_String(kBar.GetValue()) + "%").GetText());
    }

    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea) override
    {
        m_kScreen.Write(kArea.m_iX, kArea.m_iY, CContent(kWidget).GetText());
    }

private:
    CScreen& m_kScreen;
};
} // namespace

void PaintScreen(CScreen& kScreen)
{
    const CMetrics kMetrics;
    CPainter kPainter(kScreen);
    kScreen.Clear();
    CGUIWidgetLayout(CScreen::ciWidth, CScreen::ciHeight, &kMetrics).Visit(kPainter);
}
