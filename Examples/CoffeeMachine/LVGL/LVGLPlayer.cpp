// SPDX-License-Identifier: MIT
#include "LVGL/LVGLPlayer.h"

#include <utility>

namespace
{
constexpr unsigned cuiUntilDrawn = 100; ///< milliseconds

/** Widens a colour of some bits to eight. */
unsigned char Widen(unsigned uiColor, unsigned uiBits)
{
    const unsigned uiMost = (1U << uiBits) - 1;
    return static_cast<unsigned char>((uiColor & uiMost) * 255U / uiMost);
}
} // namespace

CLVGLPlayer::CLVGLPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                         LineWriter_t kWriter, CBoard& kBoard, CGUILVGL& kLVGL, CPresses& kPresses,
                         std::string kPictures)
    : CDrawnPlayer(kCoffeeMachine, kClock, kEventLog, std::move(kWriter), kPresses, std::move(kPictures)),
      m_kController(kCoffeeMachine.GetController()),
      m_kBoard(kBoard),
      m_kLVGL(kLVGL)
{
}

void CLVGLPlayer::Draw()
{
    m_kBoard.Run(cuiUntilDrawn);
}

eC_Bool CLVGLPlayer::HasNative(const CGUIObject& kObject)
{
    return m_kLVGL.GetNative(&kObject) != nullptr;
}

void CLVGLPlayer::TouchNative(const CGUIObject& kObject)
{
    lv_area_t kArea;
    lv_obj_get_coords(m_kLVGL.GetNative(&kObject), &kArea);
    m_kBoard.Touch((kArea.x1 + kArea.x2) / 2, (kArea.y1 + kArea.y2) / 2);
}

void CLVGLPlayer::PressNative(EKey eKey)
{
    switch (eKey)
    {
    case KEY_NEXT:
        m_kBoard.PressKey(LV_KEY_NEXT);
        break;
    case KEY_OK:
        m_kBoard.PressKey(LV_KEY_ENTER);
        break;
    default:
        // These keys are not for what is on the display.
        m_kController.PressKey(eKey);
        break;
    }
}

Picture_t CLVGLPlayer::TakePicture()
{
    Picture_t kPicture = {m_kBoard.GetWidth(), m_kBoard.GetHeight(), {}};
    for (int iPixel = 0; iPixel < m_kBoard.GetWidth() * m_kBoard.GetHeight(); ++iPixel)
    {
        const unsigned uiColor = m_kBoard.GetPixels()[iPixel];
        kPicture.m_kBytes.insert(kPicture.m_kBytes.end(),
                                 {Widen(uiColor >> 11U, 5), Widen(uiColor >> 5U, 6), Widen(uiColor, 5)});
    }
    return kPicture;
}
