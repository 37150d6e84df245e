// SPDX-License-Identifier: MIT
#include "Simulator/Browser/ScreenLine.h"

#include "Core/Control/GUIObject.h"
#include "Simulator/SimulationLayout.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

#include <string>

namespace
{
/** Writes an item for each widget. */
class CScreenWriter : public CGUIWidgetVisitor
{
public:
    explicit CScreenWriter(CInspectionLine& kLine) : m_kLine(kLine) {}

    void OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea) override
    {
        Begin("screen", kScreen, kArea);
        EndAndEnter();
    }

    void OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea) override
    {
        Begin("popup", kPopup, kArea);
        FlagIf("modal", kPopup.IsModal());
        EndAndEnter();
    }

    void OnContainer(const CGUIContainer& kContainer, const GUIArea_t& kArea) override
    {
        Begin("container", kContainer, kArea);
        EndAndEnter();
    }

    void OnEnd(const CGUIWidget&) override { --m_uiDepth; }

    void OnLabel(const CGUILabel& kLabel, const GUIArea_t& kArea) override { Write("label", kLabel, kArea); }
    void OnButton(const CGUIButton& kButton, const GUIArea_t& kArea) override
    {
        Write("button", kButton, kArea);
    }

    void OnImage(const CGUIImage& kImage, const GUIArea_t& kArea) override
    {
        Begin("image", kImage, kArea);
        m_kLine.Text("image", kImage.GetImage());
        m_kLine.EndObject();
    }

    void OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t& kArea) override
    {
        Begin("checkbox", kCheckBox, kArea);
        m_kLine.Integer("value", kCheckBox.GetValue());
        m_kLine.EndObject();
    }

    void OnBar(const CGUIBar& kBar, const GUIArea_t& kArea) override { WriteBar("bar", kBar, kArea); }
    void OnSlider(const CGUISlider& kSlider, const GUIArea_t& kArea) override
    {
        WriteBar("slider", kSlider, kArea);
    }

    void OnList(const CGUIList& kList, const GUIArea_t& kArea) override
    {
        Begin("list", kList, kArea);
        m_kLine.Integer("value", kList.GetValue());
        m_kLine.Integer("rowheight", kList.GetRowHeight());
        eC_UInt uiEntry = kList.GetFirstShown(kArea.m_iHeight);
        m_kLine.Number("first", uiEntry);
        m_kLine.BeginList("entries");
        const eC_Int iRows = (kArea.m_iHeight + kList.GetRowHeight() - 1) / kList.GetRowHeight();
        for (eC_Int iRow = 0; iRow < iRows && uiEntry < kList.GetNOFEntries(); ++iRow)
        {
            m_kLine.BeginObject();
            m_kLine.Text("text", kList.GetEntry(uiEntry++));
            m_kLine.EndObject();
        }
        m_kLine.EndList();
        m_kLine.EndObject();
    }

    void OnTextField(const CGUITextField& kTextField, const GUIArea_t& kArea) override
    {
        Begin("textfield", kTextField, kArea, kTextField.GetCaption());
        m_kLine.Text("entry", kTextField.GetText());
        m_kLine.Number("cursor", kTextField.GetCursorColumn());
        m_kLine.EndObject();
    }

    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea) override
    {
        Write("widget", kWidget, kArea);
    }

private:
    void FlagIf(const eC_Char* pcKey, eC_Bool bIsSet)
    {
        if (bIsSet)
        {
            m_kLine.Flag(pcKey, true);
        }
    }

    void Begin(const eC_Char* pcKind, const CGUIWidget& kWidget, const GUIArea_t& kArea)
    {
        kWidget.CopyContent(m_kContent.data(), static_cast<eC_UInt>(m_kContent.size()));
        Begin(pcKind, kWidget, kArea, m_kContent.c_str());
    }

    void Begin(const eC_Char* pcKind, const CGUIWidget& kWidget, const GUIArea_t& kArea,
               const eC_Char* pcText)
    {
        m_kLine.BeginObject();
        m_kLine.Text("kind", pcKind);
        m_kLine.Number("depth", m_uiDepth);
        m_kLine.HandleMembers(kWidget.GetObject().GetID());
        m_kLine.Integer("x", kArea.m_iX);
        m_kLine.Integer("y", kArea.m_iY);
        m_kLine.Integer("width", kArea.m_iWidth);
        m_kLine.Integer("height", kArea.m_iHeight);
        m_kLine.Text("text", pcText);
        if (*kWidget.GetStyle() != '\0')
        {
            m_kLine.Text("style", kWidget.GetStyle());
        }
        FlagIf("focusable", kWidget.GetObject().IsFocusable());
        FlagIf("focus", kWidget.HasFocus());
    }

    void EndAndEnter()
    {
        m_kLine.EndObject();
        ++m_uiDepth;
    }

    void Write(const eC_Char* pcKind, const CGUIWidget& kWidget, const GUIArea_t& kArea)
    {
        Begin(pcKind, kWidget, kArea);
        m_kLine.EndObject();
    }

    void WriteBar(const eC_Char* pcKind, const CGUIBar& kBar, const GUIArea_t& kArea)
    {
        Begin(pcKind, kBar, kArea);
        m_kLine.Integer("value", kBar.GetValue());
        m_kLine.Integer("minimum", kBar.GetMinimum());
        m_kLine.Integer("maximum", kBar.GetMaximum());
        m_kLine.EndObject();
    }

    CInspectionLine& m_kLine;
    eC_UInt m_uiDepth = 0;
    std::string m_kContent = std::string(4096, '\0'); ///< of one widget; too large for the stack of a device
};
} // namespace

void WriteScreen(CInspectionLine& kLine, const Device_t& kDevice)
{
    CScreenWriter kWriter(kLine);
    kLine.BeginList("widgets");
    CSimulationLayout(kDevice).Get().Visit(kWriter);
    kLine.EndList();
}
