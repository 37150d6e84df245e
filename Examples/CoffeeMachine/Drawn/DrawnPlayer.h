// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_DRAWN_DRAWNPLAYER_H
#define EXAMPLES_COFFEEMACHINE_DRAWN_DRAWNPLAYER_H

/** @file
 *  Plays a scenario on a coffee machine that a toolkit draws.
 */

#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/SimulationPlayer.h"

#include <functional>
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

/** Keeps what is on the display as a picture of that name. @return empty, or what went wrong */
using KeepPicture_t = std::function<std::string(const std::string& kName)>;

/** A player that touches and presses with the input of the toolkit, and has a command of its own:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | picture name | keeps what is on the display as a picture of that name |
 */
class CDrawnPlayer : public CSimulationPlayer
{
public:
    /** @param kPresses what happens on the display, not owned; must outlive the player
     */
    CDrawnPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                 LineWriter_t kWriter, CPresses& kPresses, KeepPicture_t fnKeepPicture);

protected:
    std::string GetState() override;

    /** Lets the toolkit draw all that has changed. */
    virtual void Draw() = 0;

    /** @return whether the toolkit has something for an object */
    virtual eC_Bool HasNative(const CGUIObject& kObject) = 0;

    /** Touches the middle of what the toolkit has for an object. */
    virtual void TouchNative(const CGUIObject& kObject) = 0;

    /** Presses a key of the device. */
    virtual void PressNative(EKey eKey) = 0;

private:
    eC_Bool Touch(ObjectHandle_t eButton);
    const CGUIObject* FindButton(ObjectHandle_t eButton);

    CPresses& m_kPresses;
    KeepPicture_t m_fnKeepPicture;
};

/** Plays a script on a display of the machine. @return empty, or what went wrong */
using PlayOnDisplay_t = std::function<std::string(CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses,
                                                  CEventLog& kEventLog)>;

/** Starts a coffee machine, whose trace goes to a log, and plays on it.
 *  @param kReader reads the dialogs
 *  @return what the function has returned
 */
std::string PlayOnDisplay(CGUIDialogReader& kReader, const PlayOnDisplay_t& fnPlay);

#endif
