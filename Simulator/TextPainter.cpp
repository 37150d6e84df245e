// SPDX-License-Identifier: MIT
#include "Simulator/TextPainter.h"

#include "Simulator/SimulationLayout.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

#include <algorithm>
#include <cstdint>

namespace
{
constexpr eC_UInt cuiLongestContent = 400;

/** What a widget shows. */
class CContent
{
public:
    explicit CContent(const CGUIWidget& kWidget) { kWidget.CopyContent(m_acText, sizeof(m_acText)); }

    const eC_Char* GetText() const { return m_acText; }

private:
    eC_Char m_acText[cuiLongestContent];
};

/** Draws each class of widgets. */
class CPainter : public CGUIWidgetVisitor
{
public:
    CPainter(CTextScreen& kScreen, const Device_t& kDevice) : m_kScreen(kScreen), m_kDevice(kDevice) {}

    void OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea) override
    {
        const CContent kTitle(kScreen);
        const GUIArea_t kPlace = GetCells(kArea);
        if (kPlace.m_iWidth < m_kScreen.GetWidth())
        {
            m_kScreen.DrawBox(kPlace, '-', kTitle.GetText(), STYLE_TITLE);
            return;
        }
        m_kScreen.Fill(kPlace, ' ');
        m_kScreen.Write(kPlace.m_iX + 1, kPlace.m_iY, kTitle.GetText(), STYLE_TITLE);
        m_kScreen.Fill({kPlace.m_iX, kPlace.m_iY + 1, kPlace.m_iWidth, 1}, '-', STYLE_TITLE);
    }

    void OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea) override
    {
        m_kScreen.DrawBox(GetCells(kArea), '=', CContent(kPopup).GetText(), STYLE_POPUP);
    }

    void OnButton(const CGUIButton& kButton, const GUIArea_t& kArea) override
    {
        WriteFocussable(kButton, kArea, "[ " + std::string(CContent(kButton).GetText()) + " ]");
    }

    void OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t& kArea) override
    {
        const std::string kMark = kCheckBox.IsChecked() ? "[x] " : "[ ] ";
        WriteFocussable(kCheckBox, kArea, kMark + CContent(kCheckBox).GetText());
    }

    void OnBar(const CGUIBar& kBar, const GUIArea_t& kArea) override
    {
        const GUIArea_t kPlace = GetCells(kArea);
        m_kScreen.Fill({kPlace.m_iX, kPlace.m_iY, kPlace.m_iWidth, 1}, '-');
        m_kScreen.Fill({kPlace.m_iX, kPlace.m_iY, kBar.GetFilled(kPlace.m_iWidth), 1}, '#', STYLE_VALUE);
        WriteValue(kBar, kPlace);
    }

    void OnSlider(const CGUISlider& kSlider, const GUIArea_t& kArea) override
    {
        const GUIArea_t kPlace = GetCells(kArea);
        std::string kTrack(static_cast<std::size_t>(std::max(kPlace.m_iWidth, 1)), '-');
        kTrack[GetKnob(kSlider, kTrack.size() - 1)] = 'O';
        WriteFocussable(kSlider, kArea, kTrack);
        WriteValue(kSlider, kPlace);
    }

    void OnList(const CGUIList& kList, const GUIArea_t& kArea) override
    {
        const eC_UInt uiFirst = kList.GetFirstShown(kArea.m_iHeight);
        for (eC_UInt uiEntry = uiFirst; uiEntry < kList.GetNOFEntries(); ++uiEntry)
        {
            const eC_Int iBelow = static_cast<eC_Int>(uiEntry - uiFirst) * kList.GetRowHeight();
            if (iBelow + kList.GetRowHeight() > kArea.m_iHeight)
            {
                return;
            }
            WriteEntry(kList, uiEntry,
                       GetCells({kArea.m_iX, kArea.m_iY + iBelow, kArea.m_iWidth, kList.GetRowHeight()}));
        }
    }

    void OnTextField(const CGUITextField& kTextField, const GUIArea_t& kArea) override
    {
        const GUIArea_t kPlace = GetCells(kArea);
        const eC_Int iColumns = std::max(kPlace.m_iWidth, 1);
        const std::string kText = kTextField.GetText();
        // What is left of the cursor stays visible.
        const eC_Int iCursor = CountColumns(kText.substr(0, kTextField.GetCursor()).c_str());
        const eC_Int iHidden = std::max(0, iCursor - iColumns + 1);
        const std::string kShown = CutColumns(kText.substr(CutColumns(kText, iHidden).size()), iColumns);

        m_kScreen.Fill({kPlace.m_iX, kPlace.m_iY, iColumns, 1}, '_', STYLE_BUTTON);
        WriteFocusMarks(kTextField, {kPlace.m_iX, kPlace.m_iY, iColumns, 1});
        const eC_Bool bIsEmpty = kText.empty();
        m_kScreen.Write(kPlace.m_iX, kPlace.m_iY,
                        bIsEmpty ? CutColumns(kTextField.GetCaption(), iColumns).c_str() : kShown.c_str(),
                        bIsEmpty ? STYLE_DIM : GetStyle(kTextField));
        if (kTextField.HasFocus())
        {
            m_kScreen.SetStyle({kPlace.m_iX + iCursor - iHidden, kPlace.m_iY, 1, 1}, STYLE_CURSOR);
        }
    }

    void OnImage(const CGUIImage& kImage, const GUIArea_t& kArea) override
    {
        const GUIArea_t kPlace = GetCells(kArea);
        m_kScreen.Write(kPlace.m_iX, kPlace.m_iY, ("<" + std::string(kImage.GetImage()) + ">").c_str(),
                        STYLE_DIM);
    }

    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea) override
    {
        const GUIArea_t kPlace = GetCells(kArea);
        m_kScreen.Write(kPlace.m_iX, kPlace.m_iY, CContent(kWidget).GetText());
    }

private:
    /** @return the characters that an area covers */
    GUIArea_t GetCells(const GUIArea_t& kArea) const
    {
        const eC_Int iX = kArea.m_iX / m_kDevice.m_iColumnWidth;
        const eC_Int iY = kArea.m_iY / m_kDevice.m_iRowHeight;
        return {iX, iY, (kArea.m_iX + kArea.m_iWidth) / m_kDevice.m_iColumnWidth - iX,
                (kArea.m_iY + kArea.m_iHeight) / m_kDevice.m_iRowHeight - iY};
    }

    /** @return where a touch sets the slider to its value, rounded. @param uiLast where it sets the maximum
     */
    static std::size_t GetKnob(const CGUISlider& kSlider, std::size_t uiLast)
    {
        const std::int64_t iRange = static_cast<std::int64_t>(kSlider.GetMaximum()) - kSlider.GetMinimum();
        const std::int64_t iValue = static_cast<std::int64_t>(kSlider.GetValue()) - kSlider.GetMinimum();
        const auto iLast = static_cast<std::int64_t>(uiLast);
        return iRange > 0 ? static_cast<std::size_t>((iValue * iLast + iRange / 2) / iRange) : 0;
    }

    static ETextStyle GetStyle(const CGUIWidget& kWidget)
    {
        return kWidget.HasFocus() ? STYLE_FOCUS : STYLE_BUTTON;
    }

    void WriteFocusMarks(const CGUIWidget& kWidget, const GUIArea_t& kPlace)
    {
        if (kWidget.HasFocus())
        {
            m_kScreen.Write(kPlace.m_iX - 1, kPlace.m_iY, ">", STYLE_FOCUS);
            m_kScreen.Write(kPlace.m_iX + kPlace.m_iWidth, kPlace.m_iY, "<", STYLE_FOCUS);
        }
    }

    void WriteFocussable(const CGUIWidget& kWidget, const GUIArea_t& kArea, const std::string& kText)
    {
        const GUIArea_t kPlace = GetCells(kArea);
        const eC_Int iColumns = m_kScreen.Write(kPlace.m_iX, kPlace.m_iY, kText.c_str(), GetStyle(kWidget));
        WriteFocusMarks(kWidget, {kPlace.m_iX, kPlace.m_iY, iColumns, 1});
    }

    void WriteEntry(const CGUIList& kList, eC_UInt uiEntry, const GUIArea_t& kPlace)
    {
        const eC_Bool bIsSelected = static_cast<eC_Int>(uiEntry) == kList.GetValue();
        const ETextStyle eStyle = bIsSelected ? GetStyle(kList) : STYLE_BUTTON;
        const std::string kText = (bIsSelected ? "* " : "  ") + std::string(kList.GetEntry(uiEntry));
        m_kScreen.WriteShort(kPlace.m_iX, kPlace.m_iY, kPlace.m_iWidth, kText, eStyle);
        if (bIsSelected)
        {
            WriteFocusMarks(kList, kPlace);
        }
    }

    void WriteValue(const CGUIBar& kBar, const GUIArea_t& kPlace)
    {
        const eC_Bool bIsPercentage = kBar.GetMinimum() == 0 && kBar.GetMaximum() == 100;
        const std::string kValue = std::to_string(kBar.GetValue()) + (bIsPercentage ? "%" : "");
        m_kScreen.Write(kPlace.m_iX + kPlace.m_iWidth + 1, kPlace.m_iY, kValue.c_str());
    }

    CTextScreen& m_kScreen;
    const Device_t& m_kDevice;
};
} // namespace

CTextScreen PaintDevice(const Device_t& kDevice)
{
    CTextScreen kScreen(kDevice.m_iWidth / kDevice.m_iColumnWidth, kDevice.m_iHeight / kDevice.m_iRowHeight);
    CPainter kPainter(kScreen, kDevice);
    CSimulationLayout(kDevice).Get().Visit(kPainter);
    return kScreen;
}

std::string PaintFrame(const Device_t& kDevice)
{
    CGUIWidget::UpdateValues();
    return PaintDevice(kDevice).GetFrame();
}
