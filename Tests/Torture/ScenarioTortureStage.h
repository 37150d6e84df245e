#ifndef TESTS_TORTURE_SCENARIOTORTURESTAGE_H
#define TESTS_TORTURE_SCENARIOTORTURESTAGE_H

/** @file
 *  The stage for scenarios of the manager itself.
 */

#include "Tests/Torture/TortureStage.h"

/** @return a stage for scenarios with a recording manager and dialogs built in code */
std::unique_ptr<CTortureStage> MakeScenarioTortureStage();

#endif
