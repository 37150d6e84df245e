// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_FAILURERULES_H
#define TESTS_TORTURE_FAILURERULES_H

/** @file
 *  Checks in a transcript what the headers say about failures.
 */

#include "Tests/Torture/Injection.h"

#include <string>
#include <vector>

/** The command in which something went wrong. */
struct FailedCommand_t
{
    EInjection m_eInjection = INJECTION_ALLOCATION;
    bool m_bIsSilent = false;          ///< only allocations have failed that ask for null
    bool m_bIsUnchanged = false;       ///< the whole state is as it was before
    std::vector<std::string> m_kLines; ///< its part of the transcript
};

/** Checks the command in which something went wrong.
 *
 *  - AddDialog, Back, ClearDialogHistory and the stepwise BackToDialog throw nothing: they log that they
 *    caught an exception, also when memory has run out. When BackToDialog logs that a dialog is
 *    not in the history, the text fits into a spare buffer of earlier entries; a build that keeps no spare
 *    buffers may throw std::bad_alloc, with nothing changed.
 *  - CreateDialog does the same for what loading and CreateDialogImpl throw; it then returns null and
 *    changes nothing. Its second message, which names the dialog, allocates: when that fails, CreateDialog
 *    throws std::bad_alloc. It does not catch other exceptions.
 *  - All others catch nothing.
 *  - A load that gives null is logged and throws nothing.
 *  - The root's index grows only when there is memory: an allocation that returns null shows nowhere.
 *  In a command that calls the manager more than once, from a hook or an application, an outer operation may
 *  catch what an inner one throws.
 *  @return the rules that were broken, empty for none
 */
std::string CheckFailedCommand(const FailedCommand_t& kFailed);

#endif
