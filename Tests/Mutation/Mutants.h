// SPDX-License-Identifier: MIT
#ifndef TESTS_MUTATION_MUTANTS_H
#define TESTS_MUTATION_MUTANTS_H

/** @file
 *  Included before everything else where the library is compiled with all its mutants in it. The environment
 *  variable MUTANT holds the number of the one that is switched on; without it the library is as it was
 *  written.
 */

#include <cstdlib>

/** More than there will ever be. */
constexpr unsigned cuiMaxMutants = 32768;

// Defined in every unit before anything that uses it: static objects come after it.
inline const unsigned cuiSwitchedOn = []
{
    const char* pcNumber = std::getenv("MUTANT");
    return pcNumber != nullptr ? static_cast<unsigned>(std::strtoul(pcNumber, nullptr, 10)) : 0U;
}();

inline bool g_abReached[cuiMaxMutants];

/** @return true when the mutant of that number is switched on; remembers that the place was reached */
inline bool Mutated(unsigned uiNumber)
{
    g_abReached[uiNumber] = true;
    return uiNumber == cuiSwitchedOn;
}

#endif
