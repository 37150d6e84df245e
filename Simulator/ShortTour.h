// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_SHORTTOUR_H
#define SIMULATOR_SHORTTOUR_H

/** @file
 *  A tour for where it is only read.
 */

#include "Simulator/Simulation.h"

/** The most lines of a short tour, without the one that a program adds. */
constexpr std::size_t cuiMostShortTourLines = 199;

/** Plays a scenario and describes it: for each chapter its heading and the frame that differs most from the
 *  one before the chapter.
 *  @param kSimulation is started again
 *  @param kScript the scenario
 *  @param kErrorOUT receives what is wrong with it, empty if nothing is
 *  @return at most cuiMostShortTourLines lines. If there are more chapters, the last line says how many.
 */
std::vector<std::string> TellShortTour(CSimulation& kSimulation, const std::string& kScript,
                                       std::string& kErrorOUT);

#endif
