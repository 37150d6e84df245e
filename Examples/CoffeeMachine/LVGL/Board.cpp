// SPDX-License-Identifier: MIT
#include "LVGL/Board.h"

#include <cstddef>
#include <cstring>
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

} // namespace

CBoard::CBoard(int iWidth, int iHeight)
    : m_iWidth(iWidth),
      m_iHeight(iHeight),
      m_puiOwn(new unsigned short[static_cast<unsigned>(iWidth * iHeight) + cuiAlignment]()),
      m_puiPixels(nullptr)
{
    lv_display_t* pkDisplay = Start();
    m_puiPixels = static_cast<unsigned short*>(lv_draw_buf_align(m_puiOwn.get(), LV_COLOR_FORMAT_RGB565));
    lv_display_set_buffers(pkDisplay, m_puiPixels, nullptr, static_cast<std::uint32_t>(iWidth * iHeight * 2),
                           LV_DISPLAY_RENDER_MODE_DIRECT);
}

CBoard::CBoard(int iWidth, int iHeight, unsigned short* puiPixels, unsigned short* puiLines, int iLines)
    : m_iWidth(iWidth), m_iHeight(iHeight), m_puiPixels(puiPixels)
{
    lv_display_set_buffers(Start(), puiLines, nullptr, static_cast<std::uint32_t>(iWidth * iLines * 2),
                           LV_DISPLAY_RENDER_MODE_PARTIAL);
}

lv_display_t* CBoard::Start()
{
    lv_init();
    lv_tick_set_cb(&ReadTick);
    lv_display_t* pkDisplay = lv_display_create(m_iWidth, m_iHeight);
    lv_display_set_user_data(pkDisplay, this);
    lv_display_set_flush_cb(pkDisplay, &Flush);
    lv_indev_t* pkPanel = lv_indev_create();
    lv_indev_set_type(pkPanel, LV_INDEV_TYPE_POINTER);
    lv_indev_set_user_data(pkPanel, this);
    lv_indev_set_read_cb(pkPanel, &ReadPanel);
    lv_indev_t* pkKeys = lv_indev_create();
    lv_indev_set_type(pkKeys, LV_INDEV_TYPE_KEYPAD);
    lv_indev_set_user_data(pkKeys, this);
    lv_indev_set_read_cb(pkKeys, &ReadKeys);
    return pkDisplay;
}

CBoard::~CBoard()
{
    lv_deinit();
}

void CBoard::Flush(lv_display_t* pkDisplay, const lv_area_t* pkArea, std::uint8_t* puiDrawn)
{
    const auto& kThis = *static_cast<const CBoard*>(lv_display_get_user_data(pkDisplay));
    if (kThis.m_puiOwn == nullptr)
    {
        const auto uiBytes = static_cast<std::size_t>(lv_area_get_width(pkArea)) * 2;
        for (int iY = pkArea->y1; iY <= pkArea->y2; ++iY)
        {
            const std::ptrdiff_t iRow = static_cast<std::ptrdiff_t>(iY) * kThis.m_iWidth;
            std::memcpy(kThis.m_puiPixels + iRow + pkArea->x1, puiDrawn, uiBytes);
            puiDrawn += uiBytes;
        }
    }
    lv_display_flush_ready(pkDisplay);
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
