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
    std::string m_kFile;     ///< what the program runs, if its syntax has a file; empty for none
    std::string m_kScenario; ///< to play; empty: the application's tour
    std::string m_kFrom;     ///< a scenario to begin with, empty for none
    std::string m_kGoTo;     ///< a dialog or popup to show then, empty for none
    std::string m_kRecord;   ///< the file for the session, empty for none
    std::string m_kShot;     ///< the file for the picture
    eC_Int m_iWidth = 100;   ///< of the picture, in characters
    eC_Int m_iHeight = 30;
};

/** An option with a value that only one program has. */
struct ProgramOption_t
{
    const eC_Char* m_pcName;   ///< "--attach"
    const eC_Char* m_pcValue;  ///< what is expected behind it, for messages: "a program"
    std::string* m_pkValueOUT; ///< empty before; receives the value
};

/** What a program takes beside the options of every simulator. */
struct ProgramSyntax_t
{
    eC_Bool m_bTakesFile = false; ///< the first argument that is no option is the file that it runs
    std::vector<ProgramOption_t> m_kOptions;
};

/** Reads a command line.
 *  @param kArguments without the name of the program
 *  @param kOptionsOUT receives what is asked for
 *  @param kSyntax what this program takes beside
 *  @return empty, or what is wrong
 */
std::string ReadSimulatorOptions(const std::vector<std::string>& kArguments, SimulatorOptions_t& kOptionsOUT,
                                 const ProgramSyntax_t& kSyntax = ProgramSyntax_t());

/** @return what the options of every simulator do, without a line about the use of the program */
std::string GetSimulatorOptionsHelp();

#endif
