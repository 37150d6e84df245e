// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_TOUR_TOURPLAYER_H
#define EXAMPLES_COFFEEMACHINE_TOUR_TOURPLAYER_H

/** @file
 *  Plays a scenario on the coffee machine and writes what is visible.
 */

#include "Application/CoffeeMachine.h"
#include "Scenario/ScenarioPlayer.h"

#include <functional>
#include <string>

/** Takes one line of a transcript, without its line break. */
using LineWriter_t = std::function<void(const std::string&)>;

/** A scenario player with commands for what the user of the machine does:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | power-on | registers the definitions and shows the home screen |
 *  | touch button | touches a button on the screen |
 *  | key next/ok/back/home/service | presses a key |
 *  | water millilitres, beans grams | sets the contents of the tank, the hopper |
 *  | tray in/out | puts the drip tray in or takes it out |
 *  | cups number | sets the number of cups since the last descaling |
 *
 *  After each command the transcript has the screen, the current dialog, the history, the popups with their
 *  remaining time, and the focus. There is an empty line before each command and its comments, and before a
 *  heading (##).
 */
class CTourPlayer : public CScenarioPlayer
{
public:
    /** @param kCoffeeMachine, kClock, kEventLog not owned; all must outlive the player
     *  @param kWriter takes the transcript
     */
    CTourPlayer(CCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                LineWriter_t kWriter);

protected:
    std::string GetState() override;
    void WriteLine(const std::string& kLine) override;

private:
    void AddUserCommands();
    void AddMachineCommands();

    CCoffeeMachine& m_kCoffeeMachine;
    LineWriter_t m_kWriter;
    std::string m_kLastLine;
};

/** Plays a scenario on a new coffee machine and a stepped clock. The factory must exist, with a reader for
 *  the dialog files.
 *
 *  Every dialog file is loaded once before the tour starts, so that it never stops in the middle because of a
 *  missing or wrong file.
 *  @param kName the scenario's name, for messages
 *  @param kScript its text
 *  @param kWriter takes the transcript
 *  @return empty, or what went wrong
 */
std::string PlayTour(const std::string& kName, const std::string& kScript, const LineWriter_t& kWriter);

#endif
