// SPDX-License-Identifier: MIT
#include "LVGL/Look.h"

#include "Simulation/SimulatedCoffeeMachine.h"

namespace
{
constexpr unsigned cuiCream = 0xF7F2EA;
constexpr unsigned cuiWhite = 0xFFFFFF;
constexpr unsigned cuiEspresso = 0x35251C;
constexpr unsigned cuiMilk = 0xE6DACB;
constexpr unsigned cuiCopper = 0xB8652B;
constexpr unsigned cuiDarkCopper = 0x8F4C1E;

constexpr int ciLessInWindow = 4; ///< pixels to the left of a title

lv_color_t Color(unsigned uiColor)
{
    return lv_color_hex(uiColor);
}

void SetBackground(lv_style_t& kStyle, unsigned uiColor)
{
    lv_style_set_bg_color(&kStyle, Color(uiColor));
    lv_style_set_bg_opa(&kStyle, LV_OPA_COVER);
}

void SetEdge(lv_style_t& kStyle, int iRadius, int iBorder, unsigned uiColor)
{
    lv_style_set_radius(&kStyle, iRadius);
    lv_style_set_border_width(&kStyle, iBorder);
    lv_style_set_border_color(&kStyle, Color(uiColor));
}

void SetTitle(lv_style_t& kStyle, unsigned uiColor, const lv_font_t& kFont, int iLeft, int iTop)
{
    SetBackground(kStyle, uiColor);
    lv_style_set_text_color(&kStyle, Color(cuiCream));
    lv_style_set_text_font(&kStyle, &kFont);
    lv_style_set_pad_left(&kStyle, iLeft);
    lv_style_set_pad_top(&kStyle, iTop);
}

void SetShadow(lv_style_t& kStyle)
{
    lv_style_set_shadow_width(&kStyle, 24);
    lv_style_set_shadow_color(&kStyle, Color(cuiEspresso));
    lv_style_set_shadow_opa(&kStyle, LV_OPA_40);
    lv_style_set_shadow_offset_y(&kStyle, 6);
    lv_style_set_clip_corner(&kStyle, true);
}
} // namespace

const LookSizes_t ckSizesFor480x320 = {
    &lv_font_montserrat_18, &lv_font_montserrat_14, 46, 27, 18, 12, 5, 5, 152, 24};
const LookSizes_t ckSizesFor320x240 = {
    &lv_font_montserrat_14, &lv_font_montserrat_12, 34, 20, 10, 9, 3, 3, 100, 18};

CLook::CLook(const LookSizes_t& kSizes) : m_kSizes(kSizes)
{
    for (lv_style_t& kStyle : m_akStyles)
    {
        lv_style_init(&kStyle);
    }
    SetBackground(m_akStyles[STYLE_SCREEN], cuiCream);
    SetEdge(m_akStyles[STYLE_SCREEN], 0, 0, cuiCream);

    SetBackground(m_akStyles[STYLE_WINDOW], cuiWhite);
    SetEdge(m_akStyles[STYLE_WINDOW], 10, 0, cuiMilk);
    SetShadow(m_akStyles[STYLE_WINDOW]);
    SetBackground(m_akStyles[STYLE_POPUP], cuiWhite);

    SetTitle(m_akStyles[STYLE_SCREEN_TITLE], cuiEspresso, *kSizes.m_pkScreenTitleFont, kSizes.m_iLeft,
             kSizes.m_iAboveScreenTitle);
    SetTitle(m_akStyles[STYLE_WINDOW_TITLE], cuiCopper, *kSizes.m_pkFont, kSizes.m_iLeft - ciLessInWindow,
             kSizes.m_iAboveWindowTitle);

    lv_style_set_text_color(&m_akStyles[STYLE_LABEL], Color(cuiEspresso));
    lv_style_set_text_font(&m_akStyles[STYLE_LABEL], kSizes.m_pkFont);
    lv_style_set_pad_top(&m_akStyles[STYLE_LABEL], kSizes.m_iAboveLabel);

    SetBackground(m_akStyles[STYLE_BUTTON], cuiMilk);
    SetEdge(m_akStyles[STYLE_BUTTON], 6, 0, cuiMilk);
    lv_style_set_text_color(&m_akStyles[STYLE_BUTTON], Color(cuiEspresso));
    lv_style_set_text_font(&m_akStyles[STYLE_BUTTON], kSizes.m_pkFont);
    lv_style_set_shadow_width(&m_akStyles[STYLE_BUTTON], 0);
    lv_style_set_pad_all(&m_akStyles[STYLE_BUTTON], 0);
    // A gap between the buttons of neighbouring rows.
    lv_style_set_transform_height(&m_akStyles[STYLE_BUTTON], -1);

    SetBackground(m_akStyles[STYLE_FOCUSSED], cuiCopper);
    lv_style_set_text_color(&m_akStyles[STYLE_FOCUSSED], Color(cuiWhite));
    lv_style_set_outline_width(&m_akStyles[STYLE_FOCUSSED], 0);
    SetBackground(m_akStyles[STYLE_PRESSED], cuiDarkCopper);

    SetBackground(m_akStyles[STYLE_BAR], cuiMilk);
    lv_style_set_radius(&m_akStyles[STYLE_BAR], 5);
    SetBackground(m_akStyles[STYLE_FILLED], cuiCopper);
    lv_style_set_radius(&m_akStyles[STYLE_FILLED], 5);

    SetBackground(m_akStyles[STYLE_SHADE], cuiEspresso);
    lv_style_set_bg_opa(&m_akStyles[STYLE_SHADE], LV_OPA_50);
}

CLook::~CLook()
{
    for (lv_style_t& kStyle : m_akStyles)
    {
        lv_style_reset(&kStyle);
    }
}

GUILVGLOptions_t CLook::GetOptions() const
{
    GUILVGLOptions_t kOptions;
    kOptions.m_iWidth = ckCoffeeMachineDevice.m_iWidth;
    kOptions.m_iHeight = ckCoffeeMachineDevice.m_iHeight;
    kOptions.m_pkFont = m_kSizes.m_pkFont;
    kOptions.m_iScreenTitle = m_kSizes.m_iScreenTitle;
    kOptions.m_iWindowTitle = m_kSizes.m_iWindowTitle;
    kOptions.m_iButtonWidth = m_kSizes.m_iButtonWidth;
    kOptions.m_iButtonHeight = m_kSizes.m_iButtonHeight;
    return kOptions;
}

void CLook::AddTo(CGUILVGL& kLVGL)
{
    kLVGL.AddStyle("WholeScreen", &m_akStyles[STYLE_SCREEN]);
    kLVGL.AddStyle("Window", &m_akStyles[STYLE_WINDOW]);
    kLVGL.AddStyle("Popup", &m_akStyles[STYLE_POPUP]);
    kLVGL.AddStyle("ScreenTitle", &m_akStyles[STYLE_SCREEN_TITLE]);
    kLVGL.AddStyle("WindowTitle", &m_akStyles[STYLE_WINDOW_TITLE]);
    kLVGL.AddStyle("Label", &m_akStyles[STYLE_LABEL]);
    kLVGL.AddStyle("Button", &m_akStyles[STYLE_BUTTON]);
    kLVGL.AddStyle("Button", &m_akStyles[STYLE_FOCUSSED], LV_STATE_FOCUSED);
    kLVGL.AddStyle("Button", &m_akStyles[STYLE_FOCUSSED], LV_STATE_FOCUS_KEY);
    kLVGL.AddStyle("Button", &m_akStyles[STYLE_PRESSED], LV_STATE_PRESSED);
    kLVGL.AddStyle("Bar", &m_akStyles[STYLE_BAR]);
    kLVGL.AddStyle("Bar", &m_akStyles[STYLE_FILLED], LV_PART_INDICATOR);
    kLVGL.AddStyle("Shade", &m_akStyles[STYLE_SHADE]);
}
