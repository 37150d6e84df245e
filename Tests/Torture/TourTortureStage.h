#ifndef TESTS_TORTURE_TOURTORTURESTAGE_H
#define TESTS_TORTURE_TOURTORTURESTAGE_H

/** @file
 *  The stage for the coffee machine's tour.
 */

#include "Tests/Torture/TortureStage.h"

/** @return a stage with a coffee machine that reads its dialog files */
std::unique_ptr<CTortureStage> MakeTourTortureStage();

#endif
