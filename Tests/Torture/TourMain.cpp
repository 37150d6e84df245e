// SPDX-License-Identifier: MIT
/** @file
 *  Runs the coffee machine's tour with failures. Its hooks are its own and throw only when memory runs out.
 */

#include "Scenario/TextLines.h"
#include "Tests/Torture/Torture.h"
#include "Tests/Torture/TourTortureSetup.h"

int main(int iArguments, char** ppcArguments)
{
    const Torture_t kTorture = {"TourTortureTests",
                                {{"Tour", SplitLines(ReadSourceFile("Examples/CoffeeMachine/Tour.scenario")),
                                  ReadSourceFile("Examples/CoffeeMachine/Tour.golden")}},
                                &MakeTourTortureSetup,
                                {INJECTION_ALLOCATION, INJECTION_ALLOCATIONS, INJECTION_LOAD_NULL,
                                 INJECTION_LOAD_INT, INJECTION_LOAD_EXCEPTION},
                                ReadSourceFile("Tests/Torture/Usable.scenario"),
                                ReadSourceFile("Tests/Torture/UsableCoffeeMachine.golden")};
    return RunTorture(kTorture, iArguments, ppcArguments);
}
