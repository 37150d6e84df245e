#ifndef TESTS_TORTURE_JUDGE_H
#define TESTS_TORTURE_JUDGE_H

/** @file
 *  What the headers say about failures, applied to a transcript.
 */

#include "Tests/Torture/Injection.h"

#include <string>
#include <vector>

/** The command in which something went wrong. */
struct JudgedCommand_t
{
    EInjection m_eInjection = INJECTION_ALLOCATION;
    bool m_bIsSilent = false;          ///< only allocations have failed that ask for null
    bool m_bIsUnchanged = false;       ///< the whole state is as it was before
    std::vector<std::string> m_kLines; ///< its part of the transcript
};

/** Judges the command in which something went wrong.
 *
 *  - AddDialog, Back, ClearDialogHistory and the stepwise BackToDialog throw nothing: they log that they
 *    caught an exception, also when memory has run out. The entry of a BackToDialog to a dialog that is
 *    not in the history finds room in the spare buffer that earlier entries have left; in a build that keeps
 *  no buffer it may throw std::bad_alloc, with nothing changed.
 *  - CreateDialog does so for what loading and CreateDialogImpl throw; it then returns null, and nothing
 *    has changed. Its second entry, which names the dialog, takes memory: without it std::bad_alloc passes.
 *    It lets other exceptions pass.
 *  - All others let exceptions pass.
 *  - A load that gives null is logged and throws nothing.
 *  - The root's index grows only when there is memory: whoever asks for null instead of an exception goes
 *    on, and nothing shows it.
 *  A command that calls the manager more than once, in a hook or in an application, may have the exception
 *  caught inside of one that lets it pass.
 *  @return what is not so, empty when all is
 */
std::string JudgeCommand(const JudgedCommand_t& kJudged);

#endif
