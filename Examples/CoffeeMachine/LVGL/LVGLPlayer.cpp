// SPDX-License-Identifier: MIT
#include "LVGL/LVGLPlayer.h"

#include <utility>

namespace
{
constexpr unsigned cuiUntilDrawn = 100; ///< milliseconds
} // namespace

CLVGLPlayer::CLVGLPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                         LineWriter_t kWriter, CBoard& kBoard, CGUILVGL& kLVGL, CPresses& kPresses,
                         KeepPicture_t fnKeepPicture)
    : CDrawnPlayer(kCoffeeMachine, kClock, kEventLog, std::move(kWriter), kPresses, std::move(fnKeepPicture)),
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
