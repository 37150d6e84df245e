// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_DRAWN_DRAWNPROGRAM_H
#define EXAMPLES_COFFEEMACHINE_DRAWN_DRAWNPROGRAM_H

/** @file
 *  What programs have in common that play a scenario from a file, with dialogs from files.
 */

#include "Drawn/DrawnPlayer.h"

/** Makes a display of the machine, and plays a script. @return empty, or what went wrong */
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
