// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_SCENARIOTORTURESETUP_H
#define TESTS_TORTURE_SCENARIOTORTURESETUP_H

/** @file
 *  The setup for scenarios of the manager itself.
 */

#include "Tests/Torture/TortureSetup.h"

/** @return a setup for scenarios with a recording manager and dialogs built in code */
std::unique_ptr<CTortureSetup> MakeScenarioTortureSetup();

#endif
