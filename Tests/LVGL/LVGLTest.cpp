// SPDX-License-Identifier: MIT
#include "Tests/LVGL/LVGLTest.h"

namespace
{
constexpr int ciWidth = 320;
constexpr int ciHeight = 240;
unsigned g_uiTick = 0;

unsigned ReadTick()
{
    return g_uiTick;
}

void Flush(lv_display_t* pkDisplay, const lv_area_t*, unsigned char*)
{
    lv_display_flush_ready(pkDisplay);
}
} // namespace

CLVGLBoard::CLVGLBoard() : m_kPixels(static_cast<std::size_t>(ciWidth * ciHeight) * 2 + 64)
{
    lv_init();
    lv_tick_set_cb([]() -> std::uint32_t { return ReadTick(); });
    m_pkDisplay = lv_display_create(ciWidth, ciHeight);
    lv_display_set_flush_cb(m_pkDisplay, &Flush);
    void* pAligned = lv_draw_buf_align(m_kPixels.data(), LV_COLOR_FORMAT_RGB565);
    lv_display_set_buffers(m_pkDisplay, pAligned, nullptr, static_cast<std::uint32_t>(ciWidth * ciHeight * 2),
                           LV_DISPLAY_RENDER_MODE_DIRECT);
    const auto Add = [this](lv_indev_type_t eType, lv_indev_read_cb_t pfnRead)
    {
        lv_indev_t* pkDevice = lv_indev_create();
        lv_indev_set_type(pkDevice, eType);
        lv_indev_set_user_data(pkDevice, this);
        lv_indev_set_read_cb(pkDevice, pfnRead);
        return pkDevice;
    };
    m_pkKeypad = Add(LV_INDEV_TYPE_KEYPAD, &ReadKeypad);
    m_pkEncoder = Add(LV_INDEV_TYPE_ENCODER, &ReadEncoder);
    m_pkPanel = Add(LV_INDEV_TYPE_POINTER, &ReadPanel);
}

CLVGLBoard::~CLVGLBoard()
{
    lv_deinit();
}

void CLVGLBoard::Run(unsigned uiMilliseconds)
{
    for (unsigned uiTime = 0; uiTime < uiMilliseconds; uiTime += 5)
    {
        g_uiTick += 5;
        lv_timer_handler();
    }
}

void CLVGLBoard::ReadKeypad(lv_indev_t* pkDevice, lv_indev_data_t* pkData)
{
    const auto& kThis = *static_cast<const CLVGLBoard*>(lv_indev_get_user_data(pkDevice));
    pkData->key = kThis.m_uiKey;
    pkData->state = kThis.m_bIsKeyPressed ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
}

void CLVGLBoard::ReadEncoder(lv_indev_t* pkDevice, lv_indev_data_t* pkData)
{
    auto& kThis = *static_cast<CLVGLBoard*>(lv_indev_get_user_data(pkDevice));
    pkData->enc_diff = static_cast<std::int16_t>(kThis.m_iSteps);
    pkData->state = kThis.m_bIsKnobPressed ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
    kThis.m_iSteps = 0;
}

void CLVGLBoard::ReadPanel(lv_indev_t* pkDevice, lv_indev_data_t* pkData)
{
    const auto& kThis = *static_cast<const CLVGLBoard*>(lv_indev_get_user_data(pkDevice));
    pkData->point = kThis.m_kPoint;
    pkData->state = kThis.m_bIsTouched ? LV_INDEV_STATE_PRESSED : LV_INDEV_STATE_RELEASED;
}

void CLVGLBoard::PressKey(unsigned uiKey)
{
    m_uiKey = uiKey;
    m_bIsKeyPressed = true;
    Run();
    m_bIsKeyPressed = false;
    Run();
}

void CLVGLBoard::Turn(int iSteps)
{
    m_iSteps = iSteps;
    Run();
}

void CLVGLBoard::Click()
{
    m_bIsKnobPressed = true;
    Run();
    m_bIsKnobPressed = false;
    Run();
}

void CLVGLBoard::Touch(int iX, int iY)
{
    m_kPoint = {iX, iY};
    m_bIsTouched = true;
    Run();
    m_bIsTouched = false;
    Run();
}

void CLVGLBoard::Touch(const lv_obj_t* pkObject)
{
    lv_area_t kArea;
    lv_obj_get_coords(pkObject, &kArea);
    Touch((kArea.x1 + kArea.x2) / 2, (kArea.y1 + kArea.y2) / 2);
}

CLVGLTest::CLVGLTest() : m_pkBoard(new CLVGLBoard)
{
    Restart();
}

void CLVGLTest::Restart()
{
    m_pkDialogs.reset();
    m_pkLVGL.reset();
    m_pkLVGL.reset(new CGUILVGL(GUILVGLOptions_t(), m_kUser));
    m_pkDialogs.reset(new CGUIMirroredManager(m_pkLVGL->GetMirror()));
}

CLVGLTest::~CLVGLTest()
{
    DestroyManager();
    m_pkDialogs.reset();
    DestroyRoot();
    m_pkLVGL.reset();
    m_pkBoard.reset();
}
