// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogXMLReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/Terminal/RunSimulator.h"

int main(int iArguments, char** ppcArguments)
{
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    return RunSimulator(iArguments, ppcArguments, kCoffeeMachine,
                        {"CoffeeMachine", COFFEE_MACHINE_DIRECTORY "/Tour.scenario"});
}
