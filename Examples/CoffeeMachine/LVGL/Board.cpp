// SPDX-License-Identifier: MIT
#include "LVGL/Board.h"

#include <cstdint>
#include <initializer_list>

namespace
{
constexpr unsigned cuiStep = 5;
constexpr unsigned cuiPress = 100;    ///< longer than LVGL waits between two looks at a device
constexpr unsigned cuiAlignment = 64; ///< pixels to spare for aligning them

std::uint32_t g_uiNow = 0;

std::uint32_t ReadTick()
{
    return g_uiNow;
}

void Flush(lv_display_t* pkDisplay, const lv_area_t*, std::uint8_t*)
{
    lv_display_flush_ready(pkDisplay);
}
} // namespace

CBoard::CBoard(int iWidth, int iHeight)
    : m_iWidth(iWidth),
      m_iHeight(iHeight),
      m_puiPixels(new unsigned short[static_cast<unsigned>(iWidth * iHeight) + cuiAlignment]())
{
    lv_init();
    lv_tick_set_cb(&ReadTick);
    lv_display_t* pkDisplay = lv_display_create(iWidth, iHeight);
    m_puiAligned = static_cast<unsigned short*>(lv_draw_buf_align(m_puiPixels.get(), LV_COLOR_FORMAT_RGB565));
    lv_display_set_flush_cb(pkDisplay, &Flush);
    lv_display_set_buffers(pkDisplay, m_puiAligned, nullptr, static_cast<std::uint32_t>(iWidth * iHeight * 2),
                           LV_DISPLAY_RENDER_MODE_DIRECT);
    lv_indev_t* pkPanel = lv_indev_create();
    lv_indev_set_type(pkPanel, LV_INDEV_TYPE_POINTER);
    lv_indev_set_user_data(pkPanel, this);
    lv_indev_set_read_cb(pkPanel, &ReadPanel);
    lv_indev_t* pkKeys = lv_indev_create();
    lv_indev_set_type(pkKeys, LV_INDEV_TYPE_KEYPAD);
    lv_indev_set_user_data(pkKeys, this);
    lv_indev_set_read_cb(pkKeys, &ReadKeys);
}

CBoard::~CBoard()
{
    lv_deinit();
}

void CBoard::Run(unsigned uiMilliseconds)
{
    for (unsigned uiTime = 0; uiTime < uiMilliseconds; uiTime += cuiStep)
    {
        g_uiNow += cuiStep;
        lv_timer_handler();
    }
}

void CBoard::SetFinger(int iX, int iY, bool bIsTouched)
{
    m_kFinger = {iX, iY};
    m_bIsTouched = bIsTouched;
}

void CBoard::SetKey(unsigned uiKey, bool bIsPressed)
{
    m_uiKey = uiKey;
    m_bIsKeyPressed = bIsPressed;
}

void CBoard::Touch(int iX, int iY)
{
    for (const bool bIsTouched : {true, false})
    {
        SetFinger(iX, iY, bIsTouched);
        Run(cuiPress);
    }
}

void CBoard::PressKey(unsigned uiKey)
{
    for (const bool bIsPressed : {true, false})
    {
        SetKey(uiKey, bIsPressed);
        Run(cuiPress);
    }
}

void CBoard::ReadPanel(lv_indev_t* pkDevice, lv_indev_data_t* pkData)
{
    const auto& kThis = *static_cast<const CBoard*>(lv_indev_get_user_data(pkDevice));
    pkData->point = kThis.m_kFinger;
    pkData->state = kThis.m_bIsTouched ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
}

void CBoard::ReadKeys(lv_indev_t* pkDevice, lv_indev_data_t* pkData)
{
    const auto& kThis = *static_cast<const CBoard*>(lv_indev_get_user_data(pkDevice));
    pkData->key = kThis.m_uiKey;
    pkData->state = kThis.m_bIsKeyPressed ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
}
