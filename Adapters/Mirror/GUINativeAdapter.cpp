// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUINativeAdapter.h"

#include "Adapters/Mirror/GUIWidgetLooks.h"
#include "Core/GUITrace.h"

#include <algorithm>

namespace
{
constexpr eC_UInt cuiLongestText = 256;

/** Rounds up to whole units. */
eC_Int ToUnits(eC_Int iPixels, eC_Int iUnit)
{
    return iUnit < 1 ? iPixels : (iPixels + iUnit - 1) / iUnit;
}
} // namespace

CGUINativeAdapter::CGUINativeAdapter(const GUIAdapterOptions_t& kOptions, eC_Int iWidth, eC_Int iHeight,
                                     CGUIWidgetListener& kListener)
    : m_kMirror(*this, kOptions.m_iWidth != 0 ? kOptions.m_iWidth : iWidth,
                kOptions.m_iHeight != 0 ? kOptions.m_iHeight : iHeight),
      m_kInput(kListener),
      m_kUnits(kOptions)
{
}

void CGUINativeAdapter::OnException()
{
    GUILOG(GUI_TRACE_ERROR, "CGUINativeAdapter: Caught an exception of the application.\n");
}

void CGUINativeAdapter::ReportMissingPicture(const eC_Char* pcName)
{
    GUILOG(GUI_TRACE_ERROR, "CGUINativeAdapter: There is no picture " + eC_String(pcName) + ".\n");
}

eC_Int CGUINativeAdapter::ToPixels(eC_Int iUnits, eC_Bool bIsWidth) const
{
    const eC_Int iAll = bIsWidth ? m_kUnits.m_iWidth : m_kUnits.m_iHeight;
    return iAll == 0 ? iUnits : iUnits * GetPixels(bIsWidth) / iAll;
}

GUIArea_t CGUINativeAdapter::ToPixels(const CGUIWidget& kWidget, const GUIArea_t& kArea) const
{
    GUIArea_t kPixels = {ToPixels(kArea.m_iX, true), ToPixels(kArea.m_iY, false), 0, 0};
    kPixels.m_iWidth = ToPixels(kArea.m_iX + kArea.m_iWidth, true) - kPixels.m_iX;
    kPixels.m_iHeight = ToPixels(kArea.m_iY + kArea.m_iHeight, false) - kPixels.m_iY;
    if (IsGUIThinBar(kWidget))
    {
        kPixels.m_iY += kPixels.m_iHeight / 4;
        kPixels.m_iHeight /= 2;
    }
    return kPixels;
}

void CGUINativeAdapter::Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const
{
    eC_Char acText[cuiLongestText];
    kWidget.CopyContent(acText, sizeof(acText));
    eC_Int iWidth = 0;
    eC_Int iHeight = 0;
    const eC_Int iLine = MeasureText(acText, iWidth, iHeight);
    if (kWidget.GetObject().IsFocusable())
    {
        iWidth = std::max(iWidth + 2 * iLine, m_kUnits.m_iButtonWidth);
        iHeight = std::max(iHeight, m_kUnits.m_iButtonHeight);
    }
    iWidthOUT = ToUnits(iWidth, ToPixels(1, true));
    iHeightOUT = ToUnits(iHeight, ToPixels(1, false));
}
