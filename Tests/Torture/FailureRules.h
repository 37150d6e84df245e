// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_FAILURERULES_H
#define TESTS_TORTURE_FAILURERULES_H

/** @file
 *  Checks a transcript against what the headers say about failures.
 */

#include "Tests/Torture/Injection.h"

#include <string>
#include <vector>

/** The command in which something went wrong. */
struct FailedCommand_t
{
    EInjection m_eInjection = INJECTION_ALLOCATION;
    bool m_bIsSilent = false;          ///< the only allocations that failed were those that return null
    bool m_bIsUnchanged = false;       ///< the whole state is as before
    std::vector<std::string> m_kLines; ///< its part of the transcript
};

/** Checks the command in which something went wrong.
 *
 *  - AddDialog, Back, ClearDialogHistory and the stepwise BackToDialog throw nothing: they catch exceptions
 *    and log that, even if memory has run out. If BackToDialog logs that a dialog is not in the history, the
 *    text fits into a spare buffer of earlier entries; a build without spare buffers may throw
 *    std::bad_alloc, with nothing changed.
 *  - CreateDialog does the same for exceptions from loading and CreateDialogImpl; it then returns null and
 *    changes nothing. Its second message, which names the dialog, allocates: if that fails, CreateDialog
 *    throws std::bad_alloc. It catches no other exceptions.
 *  - All others catch nothing.
 *  - A load that returns null is logged and throws nothing.
 *  - The root's index grows only if there is memory; when its allocation returns null, nothing shows it.
 *  In a command that calls the manager more than once, from a hook or an application, an outer operation may
 *  catch an exception from an inner one.
 *  @return the rules that were broken, empty if none
 */
std::string CheckFailedCommand(const FailedCommand_t& kFailed);

#endif
