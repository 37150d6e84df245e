// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_DRAWN_DRAWNPLAYER_H
#define EXAMPLES_COFFEEMACHINE_DRAWN_DRAWNPLAYER_H

/** @file
 *  Plays a scenario on a coffee machine that a toolkit draws.
 */

#include "Drawn/Picture.h"
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

/** A player that touches and presses with the input of the toolkit, and has a command of its own:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | picture name | writes what is on the display to name.png in the folder of pictures |
 */
class CDrawnPlayer : public CSimulationPlayer
{
public:
    /** @param kPresses what happens on the display, not owned; must outlive the player
     *  @param kPictures the folder of pictures
     */
    CDrawnPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                 LineWriter_t kWriter, CPresses& kPresses, std::string kPictures);

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

    /** @return what is on the display */
    virtual Picture_t TakePicture() = 0;

private:
    eC_Bool Touch(ObjectHandle_t eButton);
    const CGUIObject* FindButton(ObjectHandle_t eButton);

    CPresses& m_kPresses;
    std::string m_kPictures;
};

/** Makes a machine and its display, and plays a script. @return empty, or what went wrong */
using PlayDrawn_t = std::function<std::string(CSimulatedCoffeeMachine& kCoffeeMachine, CPresses& kPresses,
                                              const std::string& kName, const std::string& kScript,
                                              const LineWriter_t& kWriter, CEventLog& kEventLog)>;

/** Plays a scenario and prints the transcript.
 *  @param pcProgram for messages. @param pcScenario the path of the scenario
 *  @return the status of the program
 */
int PlayDrawn(const char* pcProgram, const char* pcScenario, const PlayDrawn_t& fnPlay);

/** Prints a message on standard error. @return the status */
int FailDrawn(const char* pcProgram, int iStatus, const std::string& kMessage);

#endif
