// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_LVGL_LVGLPLAYER_H
#define EXAMPLES_COFFEEMACHINE_LVGL_LVGLPLAYER_H

/** @file
 *  Plays a scenario on the coffee machine with the touch panel and the keys of LVGL.
 */

#include "Adapters/LVGL/GUILVGL.h"
#include "LVGL/Board.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/SimulationPlayer.h"

#include <string>

/** Passes what the user does to the controller. */
class CPresses : public CGUIWidgetListener
{
public:
    explicit CPresses(CController& kController) : m_kController(kController) {}

    void OnActivated(CGUIWidget& kWidget) override
    {
        m_bIsPressed = true;
        m_kController.OnActivated(kWidget);
    }

    eC_Bool m_bIsPressed = false;

private:
    CController& m_kController;
};

/** A player that touches and presses through LVGL's input devices, and has a command of its own:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | picture name | writes what is on the display to name.png in the folder of pictures |
 */
class CLVGLPlayer : public CSimulationPlayer
{
public:
    /** @param kBoard, kLVGL, kPresses the display and what happens on it, not owned; must outlive the player
     *  @param kPictures the folder of pictures
     */
    CLVGLPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                LineWriter_t kWriter, CBoard& kBoard, CGUILVGL& kLVGL, CPresses& kPresses,
                std::string kPictures);

protected:
    std::string GetState() override;

private:
    eC_Bool Touch(ObjectHandle_t eButton);
    void PressKey(EKey eKey);
    lv_obj_t* FindButton(ObjectHandle_t eButton) const;

    CController& m_kController;
    CBoard& m_kBoard;
    CGUILVGL& m_kLVGL;
    CPresses& m_kPresses;
    std::string m_kPictures;
};

#endif
