// SPDX-License-Identifier: MIT
#include "Simulator/CharacterMetrics.h"

#include "Simulator/TextScreen.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

#include <algorithm>

namespace
{
constexpr eC_Int ciFrameWidth = 4;     ///< "[ " and " ]" around a button's text, "[x] " before a check box's
constexpr eC_Int ciUsualBarWidth = 10; ///< also of a slider
constexpr eC_Int ciUsualFieldWidth = 10; ///< of a text field
constexpr eC_Int ciMarkWidth = 2;        ///< "* " before the selected entry of a list
constexpr eC_Int ciBracketsWidth = 2;    ///< around the name of an image
constexpr eC_UInt cuiLongestContent = 400;

eC_Int CountContent(const CGUIWidget& kWidget)
{
    eC_Char acContent[cuiLongestContent];
    kWidget.CopyContent(acContent, sizeof(acContent));
    return CountColumns(acContent);
}

/** Measures the class of widget that it is shown to. */
class CMeasure : public CGUIWidgetVisitor
{
public:
    eC_Int m_iColumns = 0;
    eC_Int m_iRows = 1;
    eC_Int m_iUnitsHigh = 0; ///< of a list, which knows its height in units

    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t&) override
    {
        m_iColumns = CountContent(kWidget);
    }

    void OnButton(const CGUIButton& kButton, const GUIArea_t&) override
    {
        m_iColumns = CountContent(kButton) + ciFrameWidth;
    }

    void OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t&) override
    {
        m_iColumns = CountContent(kCheckBox) + ciFrameWidth;
    }

    void OnImage(const CGUIImage& kImage, const GUIArea_t&) override
    {
        m_iColumns = CountColumns(kImage.GetImage()) + ciBracketsWidth;
    }

    void OnBar(const CGUIBar&, const GUIArea_t&) override { m_iColumns = ciUsualBarWidth; }

    void OnSlider(const CGUISlider&, const GUIArea_t&) override { m_iColumns = ciUsualBarWidth; }

    void OnTextField(const CGUITextField&, const GUIArea_t&) override { m_iColumns = ciUsualFieldWidth; }

    void OnList(const CGUIList& kList, const GUIArea_t&) override
    {
        for (eC_UInt uiEntry = 0; uiEntry < kList.GetNOFEntries(); ++uiEntry)
        {
            m_iColumns = std::max(m_iColumns, CountColumns(kList.GetEntry(uiEntry)) + ciMarkWidth);
        }
        m_iRows = 0;
        m_iUnitsHigh = static_cast<eC_Int>(kList.GetNOFEntries()) * kList.GetRowHeight();
    }
};
} // namespace

void CCharacterMetrics::Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const
{
    CMeasure kMeasure;
    kWidget.Accept(kMeasure, GUIArea_t());
    iWidthOUT = kMeasure.m_iColumns * m_iColumnWidth;
    iHeightOUT = kMeasure.m_iRows * m_iRowHeight + kMeasure.m_iUnitsHigh;
}
