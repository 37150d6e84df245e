// SPDX-License-Identifier: MIT
#ifndef TESTS_MUTATION_MUTANTS_H
#define TESTS_MUTATION_MUTANTS_H

/** @file
 *  Included before everything else where the library is compiled with all its mutants in it. The environment
 *  variable MUTANT holds the number of the one that is switched on; without it the library is as it was
 *  written.
 */

#include <cstdlib>

/** Greater than the number of mutants will ever be. */
constexpr unsigned cuiMaxMutants = 131072;

// Defined in every unit before its first use, so static objects are initialised after it.
inline unsigned g_uiSwitchedOn = []
{
    const char* pcNumber = std::getenv("MUTANT");
    return pcNumber != nullptr ? static_cast<unsigned>(std::strtoul(pcNumber, nullptr, 10)) : 0U;
}();

/** @return where a process records which mutants it has reached. If the environment variable MUTANTS_REACHED
 * names a file, this is memory that it shares with the tests and with all other programs that they start.
 */
bool* MapReached();

inline bool* const g_pbReached = MapReached();

/** @return true if the mutant with that number is switched on; records that the place was reached */
inline bool Mutated(unsigned uiNumber)
{
    g_pbReached[uiNumber] = true;
    return uiNumber == g_uiSwitchedOn;
}

#endif
