// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATIONPLAYER_H
#define SIMULATOR_SIMULATIONPLAYER_H

/** @file
 *  Plays scenarios on a simulated application.
 */

#include "Scenario/ScenarioPlayer.h"
#include "Simulator/SimulatedApplication.h"

/** A scenario player with commands for what the user of a device does:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | power-on | registers the definitions and shows the first dialog |
 *  | key name | presses a key of the device |
 *  | touch object | touches an object |
 *  | touch-at x y | touches a point of the screen |
 *  | type text | types the rest of the line into what has the focus; single quotes around it are left out |
 *  | press key | presses a key that the device does not have: next, previous, up, down, left, right,
 * activate, backspace, delete, home, end |
 *
 *  and those that the application adds. The result of input without effect is "no effect".
 */
class CSimulationPlayer : public CScenarioPlayer
{
public:
    /** @param kApplication started; it, the clock and the log are not owned and must outlive the player */
    CSimulationPlayer(CSimulatedApplication& kApplication, CSteppedClock& kClock, CEventLog& kEventLog);

private:
    void AddKeyCommands();
    void AddTouchCommands();

    CSimulatedApplication& m_kApplication;
};

#endif
