// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_ATTACH_RUNATTACHED_H
#define SIMULATOR_ATTACH_RUNATTACHED_H

/** @file
 *  A look into a running program, in a terminal.
 */

#include "Inspection/Viewer/Connection.h"

#include <string>

/** Shows a running program in the terminal until the user leaves. A program that goes stays on the screen
 *  with all that it has told.
 *  @param kConnection open
 *  @param kName what the program is called
 *  @param kFaultOUT receives the last thing that was wrong; empty if nothing was
 *  @return false, with nothing shown, if the terminal cannot be used
 */
eC_Bool AttachInTerminal(CConnection& kConnection, const std::string& kName, std::string& kFaultOUT);

#endif
