// SPDX-License-Identifier: MIT
#include "Adapters/LVGL/LVGLWidgets.h"

#include "Adapters/Mirror/GUIWidgetLooks.h"
#include "Widgets/GUIWidgetVisitor.h"
#include "Widgets/GUIWidgets.h"

#include <cstring>
#include <memory>

namespace
{
class CMaker : public CGUIWidgetVisitor
{
public:
    explicit CMaker(lv_obj_t* pkParent) : m_pkParent(pkParent) {}

    lv_obj_t* m_pkMade = nullptr;

    void OnScreen(const CGUIScreen&, const GUIArea_t&) override { MakeWindow(); }
    void OnPopup(const CGUIPopup&, const GUIArea_t&) override { MakeWindow(); }
    void OnContainer(const CGUIContainer&, const GUIArea_t&) override
    {
        MakeBox();
        lv_obj_remove_style_all(m_pkMade);
    }
    void OnLabel(const CGUILabel&, const GUIArea_t&) override { m_pkMade = lv_label_create(m_pkParent); }
    void OnImage(const CGUIImage&, const GUIArea_t&) override { m_pkMade = lv_image_create(m_pkParent); }
    void OnButton(const CGUIButton&, const GUIArea_t&) override
    {
        m_pkMade = lv_button_create(m_pkParent);
        lv_obj_t* pkText = lv_label_create(m_pkMade);
        lv_label_set_long_mode(pkText, LV_LABEL_LONG_MODE_DOTS);
        lv_obj_set_align(pkText, LV_ALIGN_CENTER);
    }
    void OnCheckBox(const CGUICheckBox&, const GUIArea_t&) override
    {
        m_pkMade = lv_checkbox_create(m_pkParent);
    }
    void OnBar(const CGUIBar&, const GUIArea_t&) override { m_pkMade = lv_bar_create(m_pkParent); }
    void OnSlider(const CGUISlider&, const GUIArea_t&) override { m_pkMade = lv_slider_create(m_pkParent); }
    void OnList(const CGUIList&, const GUIArea_t&) override { m_pkMade = lv_roller_create(m_pkParent); }
    void OnTextField(const CGUITextField&, const GUIArea_t&) override
    {
        m_pkMade = lv_textarea_create(m_pkParent);
        lv_textarea_set_one_line(m_pkMade, true);
    }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}

private:
    void MakeBox()
    {
        m_pkMade = lv_obj_create(m_pkParent);
        lv_obj_remove_flag(m_pkMade, LV_OBJ_FLAG_SCROLLABLE);
        lv_obj_set_style_pad_all(m_pkMade, 0, 0);
    }

    void MakeWindow()
    {
        MakeBox();
        lv_obj_t* pkTitle = lv_label_create(m_pkMade);
        lv_label_set_long_mode(pkTitle, LV_LABEL_LONG_MODE_DOTS);
    }

    lv_obj_t* m_pkParent;
};

void SetLabel(lv_obj_t* pkLabel, const eC_Char* pcText)
{
    // Setting a text again would draw it again.
    if (std::strcmp(lv_label_get_text(pkLabel), pcText) != 0)
    {
        lv_label_set_text(pkLabel, pcText);
    }
}

class CUpdater : public CGUIWidgetVisitor
{
public:
    CUpdater(lv_obj_t* pkObject, const LVGLLook_t& kLook) : m_pkObject(pkObject), m_kLook(kLook) {}

    void OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea) override { ShowTitle(kScreen, kArea); }
    void OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea) override { ShowTitle(kPopup, kArea); }
    void OnContainer(const CGUIContainer&, const GUIArea_t&) override {}
    void OnLabel(const CGUILabel& kLabel, const GUIArea_t&) override
    {
        SetLabel(m_pkObject, CGUIShownText(kLabel).GetText());
    }
    void OnImage(const CGUIImage& kImage, const GUIArea_t&) override
    {
        const void* pSource = m_kLook.m_pfnImage(m_kLook.m_pContext, kImage.GetImage());
        if (pSource != nullptr && pSource != lv_image_get_src(m_pkObject))
        {
            lv_image_set_src(m_pkObject, pSource);
        }
    }
    void OnButton(const CGUIButton& kButton, const GUIArea_t&) override
    {
        SetLabel(lv_obj_get_child(m_pkObject, 0), CGUIShownText(kButton).GetText());
    }
    void OnCheckBox(const CGUICheckBox& kCheckBox, const GUIArea_t&) override
    {
        const CGUIShownText kContent(kCheckBox);
        if (std::strcmp(lv_checkbox_get_text(m_pkObject), kContent.GetText()) != 0)
        {
            lv_checkbox_set_text(m_pkObject, kContent.GetText());
        }
        (kCheckBox.IsChecked() ? lv_obj_add_state : lv_obj_remove_state)(m_pkObject, LV_STATE_CHECKED);
    }
    void OnBar(const CGUIBar& kBar, const GUIArea_t&) override
    {
        lv_bar_set_range(m_pkObject, kBar.GetMinimum(), kBar.GetMaximum());
        lv_bar_set_value(m_pkObject, kBar.GetValue(), LV_ANIM_OFF);
    }
    void OnSlider(const CGUISlider& kSlider, const GUIArea_t& kArea) override { OnBar(kSlider, kArea); }
    void OnList(const CGUIList& kList, const GUIArea_t& kArea) override;
    void OnTextField(const CGUITextField& kTextField, const GUIArea_t&) override
    {
        lv_textarea_set_max_length(m_pkObject, kTextField.GetMostCharacters());
        lv_textarea_set_placeholder_text(m_pkObject, kTextField.GetCaption());
        if (std::strcmp(lv_textarea_get_text(m_pkObject), kTextField.GetText()) != 0)
        {
            lv_textarea_set_text(m_pkObject, kTextField.GetText());
        }
    }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}

private:
    void ShowTitle(const CGUIWidget& kWidget, const GUIArea_t& kArea);

    lv_obj_t* m_pkObject;
    const LVGLLook_t& m_kLook;
};

void CUpdater::ShowTitle(const CGUIWidget& kWidget, const GUIArea_t& kArea)
{
    const lv_display_t* pkDisplay = lv_obj_get_display(m_pkObject);
    const eC_Bool bIsWholeScreen = kArea.m_iWidth >= lv_display_get_horizontal_resolution(pkDisplay);
    lv_obj_t* pkTitle = lv_obj_get_child(m_pkObject, 0);
    const CGUIShownText kTitle(kWidget);
    SetLabel(pkTitle, kTitle.GetText());
    lv_obj_set_size(pkTitle, LV_PCT(100), bIsWholeScreen ? m_kLook.m_iScreenTitle : m_kLook.m_iWindowTitle);
    if (!lv_obj_has_flag(pkTitle, LV_OBJ_FLAG_USER_1))
    {
        lv_obj_add_flag(pkTitle, LV_OBJ_FLAG_USER_1);
        m_kLook.m_pfnStyle(m_kLook.m_pContext, pkTitle, bIsWholeScreen ? "ScreenTitle" : "WindowTitle");
        m_kLook.m_pfnStyle(m_kLook.m_pContext, m_pkObject, bIsWholeScreen ? "WholeScreen" : "Window");
    }
    (*kTitle.GetText() == '\0' ? lv_obj_add_flag : lv_obj_remove_flag)(pkTitle, LV_OBJ_FLAG_HIDDEN);
}

void CUpdater::OnList(const CGUIList& kList, const GUIArea_t& kArea)
{
    std::size_t uiLength = 1;
    for (eC_UInt uiEntry = 0; uiEntry < kList.GetNOFEntries(); ++uiEntry)
    {
        uiLength += std::strlen(kList.GetEntry(uiEntry)) + 1;
    }
    const std::unique_ptr<eC_Char[]> pcEntries(new eC_Char[uiLength]);
    eC_Char* pcEnd = pcEntries.get();
    for (eC_UInt uiEntry = 0; uiEntry < kList.GetNOFEntries(); ++uiEntry)
    {
        const eC_Char* pcEntry = kList.GetEntry(uiEntry);
        const std::size_t uiEntryLength = std::strlen(pcEntry);
        *pcEnd = '\n';
        pcEnd += uiEntry == 0 ? 0 : 1;
        std::memcpy(pcEnd, pcEntry, uiEntryLength);
        pcEnd += uiEntryLength;
    }
    *pcEnd = '\0';
    if (std::strcmp(lv_roller_get_options(m_pkObject), pcEntries.get()) != 0)
    {
        lv_roller_set_options(m_pkObject, pcEntries.get(), LV_ROLLER_MODE_NORMAL);
    }
    lv_obj_set_height(m_pkObject, kArea.m_iHeight);
    if (lv_roller_get_selected(m_pkObject) != static_cast<eC_UInt>(kList.GetValue()))
    {
        lv_roller_set_selected(m_pkObject, static_cast<eC_UInt>(kList.GetValue()), LV_ANIM_OFF);
    }
}

/** What a class does by itself in LVGL. */
class CTraits : public CGUIWidgetVisitor
{
public:
    explicit CTraits(const CGUIWidget& kWidget) { kWidget.Accept(*this, GUIArea_t()); }

    lv_event_code_t m_eCode = LV_EVENT_ALL; ///< of a widget that the user can change
    eC_Bool m_bSizesItself = false;         ///< by its contents

    void OnLabel(const CGUILabel&, const GUIArea_t&) override { m_bSizesItself = true; }
    void OnImage(const CGUIImage&, const GUIArea_t&) override { m_bSizesItself = true; }

    void OnButton(const CGUIButton&, const GUIArea_t&) override { m_eCode = LV_EVENT_CLICKED; }
    void OnCheckBox(const CGUICheckBox&, const GUIArea_t&) override
    {
        m_eCode = LV_EVENT_VALUE_CHANGED;
        m_bSizesItself = true;
    }
    void OnSlider(const CGUISlider&, const GUIArea_t&) override { m_eCode = LV_EVENT_VALUE_CHANGED; }
    void OnList(const CGUIList&, const GUIArea_t&) override { m_eCode = LV_EVENT_VALUE_CHANGED; }
    void OnTextField(const CGUITextField&, const GUIArea_t&) override { m_eCode = LV_EVENT_VALUE_CHANGED; }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override {}
};
} // namespace

lv_obj_t* CreateLVGLWidget(const CGUIWidget& kWidget, lv_obj_t* pkParent, const LVGLLook_t& kLook)
{
    CMaker kMaker(pkParent);
    kWidget.Accept(kMaker, GUIArea_t());
    if (kMaker.m_pkMade != nullptr)
    {
        AddLVGLStyles(kWidget, kMaker.m_pkMade, kLook);
    }
    return kMaker.m_pkMade;
}

void AddLVGLStyles(const CGUIWidget& kWidget, lv_obj_t* pkObject, const LVGLLook_t& kLook)
{
    kLook.m_pfnStyle(kLook.m_pContext, pkObject, GetGUIClassName(kWidget));
    kLook.m_pfnStyle(kLook.m_pContext, pkObject, kWidget.GetStyle());
}

void UpdateLVGLWidget(const CGUIWidget& kWidget, lv_obj_t* pkObject, const lv_obj_t* pkParent,
                      const GUIArea_t& kArea, const LVGLLook_t& kLook)
{
    lv_obj_set_pos(pkObject, kArea.m_iX - lv_obj_get_style_space_left(pkParent, LV_PART_MAIN),
                   kArea.m_iY - lv_obj_get_style_space_top(pkParent, LV_PART_MAIN));
    const eC_Bool bSizesItself = CTraits(kWidget).m_bSizesItself;
    lv_obj_set_size(
        pkObject,
        bSizesItself && kWidget.GetWidth() == CGUIWidget::ciNatural ? LV_SIZE_CONTENT : kArea.m_iWidth,
        bSizesItself && kWidget.GetHeight() == CGUIWidget::ciNatural ? LV_SIZE_CONTENT : kArea.m_iHeight);
    CUpdater kUpdater(pkObject, kLook);
    kWidget.Accept(kUpdater, kArea);
}

lv_event_code_t GetLVGLInputEvent(const CGUIWidget& kWidget)
{
    return CTraits(kWidget).m_eCode;
}
