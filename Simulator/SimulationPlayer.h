// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SIMULATIONPLAYER_H
#define SIMULATOR_SIMULATIONPLAYER_H

/** @file
 *  Plays scenarios on a simulated application.
 */

#include "Scenario/ScenarioPlayer.h"
#include "Simulator/SimulatedApplication.h"

/** Takes one line of a transcript, without its line break. */
using LineWriter_t = std::function<void(const std::string&)>;

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
 *
 *  After each command the transcript has the screen, the current dialog, the history, the popups with their
 *  remaining time, and the focus. There is an empty line before each command and its comments, and before a
 *  heading (##).
 */
class CSimulationPlayer : public CScenarioPlayer
{
public:
    /** @param kApplication started; it, the clock and the log are not owned and must outlive the player
     *  @param fnWriter takes the transcript; null: there is none
     */
    CSimulationPlayer(CSimulatedApplication& kApplication, CSteppedClock& kClock, CEventLog& kEventLog,
                      LineWriter_t fnWriter = nullptr);

protected:
    std::string GetState() override;
    void WriteLine(const std::string& kLine) override;

private:
    void AddKeyCommands();
    void AddTouchCommands();

    CSimulatedApplication& m_kApplication;
    LineWriter_t m_fnWriter;
    std::string m_kLastLine; ///< of the transcript
};

/** Starts an application, checks its files, plays a scenario on a stepped clock, and stops the application.
 *  @param kApplication stopped
 *  @param kName the scenario's name, for messages
 *  @param kScript its text
 *  @param kWriter takes the transcript
 *  @return empty, or what went wrong
 *  @throws what the application's Start throws
 */
std::string PlayTranscript(CSimulatedApplication& kApplication, const std::string& kName,
                           const std::string& kScript, const LineWriter_t& kWriter);

#endif
