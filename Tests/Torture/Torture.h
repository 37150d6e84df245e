// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_TORTURE_H
#define TESTS_TORTURE_TORTURE_H

/** @file
 *  Plays scenarios again and again, with a different failure each time.
 */

#include "Tests/Torture/TortureSetup.h"

#include <string>
#include <vector>

/** One scenario and its transcript without failures. */
struct Scenario_t
{
    std::string m_kName;
    std::vector<std::string> m_kLines;
    std::string m_kGolden; ///< the transcript
};

/** What a torture program plays. */
struct Torture_t
{
    const char* m_pcName; ///< the program's, for the line that repeats a run
    std::vector<Scenario_t> m_kScenarios;
    SetupMaker_t m_pfnMakeSetup;
    std::vector<EInjection> m_kInjections;

    std::string m_kUsableScript; ///< Usable.scenario
    std::string m_kUsableGolden; ///< its transcript with a manager that works like a new one
};

/** @return a file of the source directory */
std::string ReadSourceFile(const std::string& kName);

/** Runs a torture program: each scenario with the first, second, third, ... of each kind of failure, until
 *  the failure no longer occurs; that last run must give the golden transcript. Every run checks
 *  - that the failure surfaces as the headers say: the exception reaches the caller, or an operation catches
 *    and logs it, and nothing changes that must not change,
 *  - that all structures are consistent after every command from the failure on, and at the end,
 *  - that the manager can be emptied, and then performs a standard sequence exactly like a new one,
 *  - that every object, safe pointer, timer callback and block of memory is gone at the end.
 *
 *  Arguments: none for everything; a number k for every k-th allocation (loads and hooks are not affected);
 *  or a scenario, a kind and a number for one run, whose transcript is printed.
 *  @return the program's status
 */
int RunTorture(const Torture_t& kTorture, int iArguments, const char* const* ppcArguments);

#endif
