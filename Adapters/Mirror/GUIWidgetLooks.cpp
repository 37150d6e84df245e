// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUIWidgetLooks.h"

#include "Widgets/GUIWidgetVisitor.h"

namespace
{
class CClassFinder : public CGUIWidgetVisitor
{
public:
    const eC_Char* m_pcName = "";
    eC_Bool m_bIsPopup = false;
    eC_Bool m_bIsBar = false;

    void OnScreen(const CGUIScreen&, const GUIArea_t&) override { m_pcName = "Screen"; }
    void OnPopup(const CGUIPopup&, const GUIArea_t&) override
    {
        m_pcName = "Popup";
        m_bIsPopup = true;
    }
    void OnContainer(const CGUIContainer&, const GUIArea_t&) override { m_pcName = "Container"; }
    void OnLabel(const CGUILabel&, const GUIArea_t&) override { m_pcName = "Label"; }
    void OnImage(const CGUIImage&, const GUIArea_t&) override { m_pcName = "Image"; }
    void OnButton(const CGUIButton&, const GUIArea_t&) override { m_pcName = "Button"; }
    void OnCheckBox(const CGUICheckBox&, const GUIArea_t&) override { m_pcName = "CheckBox"; }
    void OnBar(const CGUIBar&, const GUIArea_t&) override
    {
        m_pcName = "Bar";
        m_bIsBar = true;
    }
    void OnSlider(const CGUISlider&, const GUIArea_t&) override
    {
        m_pcName = "Slider";
        m_bIsBar = true;
    }
    void OnList(const CGUIList&, const GUIArea_t&) override { m_pcName = "List"; }
    void OnTextField(const CGUITextField&, const GUIArea_t&) override { m_pcName = "TextField"; }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}
};

CClassFinder FindClass(const CGUIWidget& kWidget)
{
    CClassFinder kFinder;
    kWidget.Accept(kFinder, GUIArea_t());
    return kFinder;
}
} // namespace

const eC_Char* GetGUIClassName(const CGUIWidget& kWidget)
{
    return FindClass(kWidget).m_pcName;
}

eC_Bool IsGUIPopup(const CGUIWidget& kWidget)
{
    return FindClass(kWidget).m_bIsPopup;
}

eC_Bool IsGUIThinBar(const CGUIWidget& kWidget)
{
    return kWidget.GetHeight() == CGUIWidget::ciNatural && FindClass(kWidget).m_bIsBar;
}

CGUIShownText::CGUIShownText(const CGUIWidget& kWidget) : m_pcText(kWidget.GetText())
{
    if (*kWidget.GetCaption() == '\0')
    {
        return;
    }
    m_pcText = kWidget.GetCaption();
    if (*kWidget.GetText() != '\0')
    {
        kWidget.CopyContent(m_acBoth, sizeof(m_acBoth));
        m_pcText = m_acBoth;
    }
}
