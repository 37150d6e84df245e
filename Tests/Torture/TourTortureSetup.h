// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_TOURTORTURESETUP_H
#define TESTS_TORTURE_TOURTORTURESETUP_H

/** @file
 *  The setup for the coffee machine's tour.
 */

#include "Tests/Torture/TortureSetup.h"

/** @return a setup with a coffee machine that reads its dialog files */
std::unique_ptr<CTortureSetup> MakeTourTortureSetup();

#endif
