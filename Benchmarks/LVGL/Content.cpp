// SPDX-License-Identifier: MIT
#include "Benchmarks/LVGL/Content.h"

namespace
{
constexpr int ciWidth = 320;
constexpr int ciHeight = 240;
constexpr unsigned cuiFrame = LV_DEF_REFR_PERIOD + 2; ///< milliseconds, until a frame is drawn
constexpr unsigned cuiColor = 0xF7F2EA;
constexpr unsigned cuiWhite = 0xFFFFFF;
constexpr unsigned cuiText = 0x35251C;
constexpr int ciRow = 24;
constexpr int ciColumn = 155;
constexpr int ciButtonWidth = 140;
constexpr int ciButtonHeight = 36;
constexpr int ciButtonRow = 46;

lv_style_t
    g_kScreenStyle; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): LVGL keeps its address
lv_style_t g_kPopupStyle; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void MakeStyle(lv_style_t& kStyle, unsigned uiColor, int iRadius)
{
    lv_style_init(&kStyle);
    lv_style_set_bg_color(&kStyle, lv_color_hex(uiColor));
    lv_style_set_bg_opa(&kStyle, LV_OPA_COVER);
    lv_style_set_radius(&kStyle, iRadius);
    lv_style_set_text_color(&kStyle, lv_color_hex(cuiText));
    lv_style_set_text_font(&kStyle, &lv_font_montserrat_14);
}

lv_obj_t* AddButton(lv_obj_t* pkParent, int iX, int iY, const char* pcText)
{
    lv_obj_t* pkButton = lv_button_create(pkParent);
    lv_obj_set_pos(pkButton, iX, iY);
    lv_obj_set_size(pkButton, ciButtonWidth, ciButtonHeight);
    lv_obj_t* pkText = lv_label_create(pkButton);
    lv_label_set_text_static(pkText, pcText);
    lv_obj_center(pkText);
    return pkButton;
}
} // namespace

CDisplay::CDisplay() : m_kBoard(ciWidth, ciHeight)
{
    for (lv_indev_t* pkDevice = lv_indev_get_next(nullptr); pkDevice != nullptr;
         pkDevice = lv_indev_get_next(pkDevice))
    {
        if (lv_indev_get_type(pkDevice) == LV_INDEV_TYPE_KEYPAD)
        {
            m_pkKeys = pkDevice;
        }
    }
    MakeStyle(g_kScreenStyle, cuiColor, 0);
    MakeStyle(g_kPopupStyle, cuiWhite, 8);
}

CDisplay::~CDisplay()
{
    lv_style_reset(&g_kScreenStyle);
    lv_style_reset(&g_kPopupStyle);
}

void CDisplay::Draw()
{
    m_kBoard.Run(cuiFrame);
}

unsigned CDisplay::GetNOFPixels()
{
    return static_cast<unsigned>(ciWidth * ciHeight);
}

int CDisplay::GetFocussed() const
{
    const lv_group_t* pkGroup = lv_indev_get_group(m_pkKeys);
    const lv_obj_t* pkFocussed = pkGroup != nullptr ? lv_group_get_focused(pkGroup) : nullptr;
    const bool bIsButton = pkFocussed != nullptr && lv_obj_check_type(pkFocussed, &lv_button_class);
    return bIsButton ? static_cast<int>(lv_obj_get_index(pkFocussed)) : -1;
}

Content_t BuildContent(lv_obj_t* pkParent, unsigned uiScreen)
{
    Content_t kContent = {lv_obj_create(pkParent), {}};
    lv_obj_remove_style_all(kContent.m_pkScreen);
    lv_obj_add_style(kContent.m_pkScreen, &g_kScreenStyle, 0);
    lv_obj_set_size(kContent.m_pkScreen, LV_PCT(100), LV_PCT(100));
    for (unsigned uiButton = 0; uiButton < cuiButtonsPerScreen; ++uiButton)
    {
        kContent.m_apkButtons[uiButton] =
            AddButton(kContent.m_pkScreen, 8, 6 + static_cast<int>(uiButton) * ciButtonRow,
                      uiScreen % 2 == 0 ? "Select" : "Change");
    }
    for (unsigned uiLabel = 0; uiLabel < cuiObjectsPerScreen - 1 - cuiButtonsPerScreen; ++uiLabel)
    {
        lv_obj_t* pkLabel = lv_label_create(kContent.m_pkScreen);
        lv_label_set_text_static(pkLabel, uiScreen % 2 == 0 ? "Milk foam" : "Water");
        lv_obj_set_pos(pkLabel, ciColumn + static_cast<int>(uiLabel % 2) * (ciColumn / 2),
                       6 + static_cast<int>(uiLabel / 2) * ciRow);
    }
    return kContent;
}

Content_t BuildPopupContent(lv_obj_t* pkParent)
{
    Content_t kContent = {lv_obj_create(pkParent), {}};
    lv_obj_remove_style_all(kContent.m_pkScreen);
    lv_obj_add_style(kContent.m_pkScreen, &g_kPopupStyle, 0);
    lv_obj_set_size(kContent.m_pkScreen, ciWidth / 2, ciHeight / 2);
    lv_obj_center(kContent.m_pkScreen);
    kContent.m_apkButtons[0] = AddButton(kContent.m_pkScreen, 10, ciHeight / 4, "OK");
    lv_obj_t* pkLabel = lv_label_create(kContent.m_pkScreen);
    lv_label_set_text_static(pkLabel, "Please fill the tank");
    lv_obj_set_pos(pkLabel, 10, 10);
    return kContent;
}
