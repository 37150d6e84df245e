// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_LVGLPLAYER_H
#define EXAMPLES_COFFEEMACHINE_LVGL_LVGLPLAYER_H

/** @file
 *  Plays a scenario on the coffee machine with the touch panel and the keys of LVGL.
 */

#include "Adapters/LVGL/GUILVGL.h"
#include "Drawn/DrawnPlayer.h"
#include "LVGL/Board.h"

/** A player that touches and presses through LVGL's input devices. */
class CLVGLPlayer : public CDrawnPlayer
{
public:
    /** @param kBoard, kLVGL, kPresses the display and what happens on it, not owned; must outlive the player
     */
    CLVGLPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                LineWriter_t kWriter, CBoard& kBoard, CGUILVGL& kLVGL, CPresses& kPresses,
                KeepPicture_t fnKeepPicture);

protected:
    void Draw() override;
    eC_Bool HasNative(const CGUIObject& kObject) override;
    void TouchNative(const CGUIObject& kObject) override;
    void PressNative(EKey eKey) override;

private:
    CController& m_kController;
    CBoard& m_kBoard;
    CGUILVGL& m_kLVGL;
};

#endif
