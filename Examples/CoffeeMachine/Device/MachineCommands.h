// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_DEVICE_MACHINECOMMANDS_H
#define EXAMPLES_COFFEEMACHINE_DEVICE_MACHINECOMMANDS_H

/** @file
 *  What a user does to the coffee machine, as commands that need no heap.
 */

#include "Scenario/ManagerCommands.h"

class CCoffeeMachine;

/** @param kCoffeeMachine what the commands act on; not owned, there is one
 *  @param uiCountOUT receives how many commands there are
 *  @return the commands of README.md, with the same effects
 */
const ManagerCommand_t* GetMachineCommands(CCoffeeMachine& kCoffeeMachine, eC_UInt& uiCountOUT);

#endif
