// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TERMINAL_SIMULATOROPTIONS_H
#define SIMULATOR_TERMINAL_SIMULATOROPTIONS_H

/** @file
 *  The command line of a simulator.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <vector>

/** What a simulator is asked to do. */
struct SimulatorOptions_t
{
    enum ETask : unsigned char
    {
        TASK_DESK, ///< run in the terminal; without one, print the short tour
        TASK_HELP,
        TASK_PLAY, ///< print the transcript of a scenario
        TASK_JSON, ///< execute a scenario, and print the lines of an inspection
        TASK_SHOT, ///< write one picture
        TASK_LIST  ///< print the dialogs and popups
    };

    ETask m_eTask = TASK_DESK;
    std::string m_kScenario; ///< to play; empty: the application's tour
    std::string m_kFrom;     ///< a scenario to begin with, empty for none
    std::string m_kGoTo;     ///< a dialog or popup to show then, empty for none
    std::string m_kRecord;   ///< the file for the session, empty for none
    std::string m_kShot;     ///< the file for the picture
    eC_Int m_iWidth = 100;   ///< of the picture, in characters
    eC_Int m_iHeight = 30;
};

/** Reads a command line.
 *  @param kArguments without the name of the program
 *  @param kOptionsOUT receives what is asked for
 *  @return empty, or what is wrong
 */
std::string ReadSimulatorOptions(const std::vector<std::string>& kArguments, SimulatorOptions_t& kOptionsOUT);

/** @return the help about the options. @param kProgram the name of the program */
std::string GetSimulatorHelp(const std::string& kProgram);

#endif
