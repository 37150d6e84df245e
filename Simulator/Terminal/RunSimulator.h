// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TERMINAL_RUNSIMULATOR_H
#define SIMULATOR_TERMINAL_RUNSIMULATOR_H

/** @file
 *  The main function of a simulator in a terminal.
 */

#include "Simulator/SimulatedSource.h"
#include "Simulator/Terminal/SimulatorOptions.h"

/** What a program says about itself. */
struct SimulatorProgram_t
{
    const eC_Char* m_pcName; ///< its name, for messages
    const eC_Char* m_pcTour; ///< the file with its tour, empty for none

    /** Looked at all the time in the terminal, and before each line of standard input; null: nothing changes.
     *  Not owned.
     */
    CSimulatedSource* m_pkSource = nullptr;
};

/** Runs an application as the command line says; --help lists the options:
 *
 *      int main(int iArguments, char** ppcArguments)
 *      {
 *          CMyApplication kApplication;
 *          return RunSimulator(iArguments, ppcArguments, kApplication, {"MyApplication", TOUR_FILE});
 *      }
 *
 *  @param kApplication stopped
 *  @return the status to end with. Errors are one line on standard error. Exceptions of the application
 * become such a line, too. A signal that asks the program to end does so, after the terminal is given back
 *          and the session is recorded.
 */
int RunSimulator(int iArguments, char** ppcArguments, CSimulatedApplication& kApplication,
                 const SimulatorProgram_t& kProgram);

/** Runs an application as options say that were read before, for a program that has more options than
 *  these.
 *  @param kApplication stopped
 *  @return as above
 */
int RunSimulator(const SimulatorOptions_t& kOptions, CSimulatedApplication& kApplication,
                 const SimulatorProgram_t& kProgram);

#endif
