// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TOURSCRIPT_H
#define SIMULATOR_TOURSCRIPT_H

/** @file
 *  A scenario as something that is shown to people.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <vector>

/** A command with what is said before it. */
struct TourStep_t
{
    std::vector<std::string> m_kLines; ///< of the scenario: comments, and the command if there is one
    std::string m_kChapter;            ///< "2. DIALOGS": the heading up to its first sentence
    std::string m_kCaption;            ///< the rest of the heading and the comments, in one line
    std::string m_kCommand;            ///< empty at the end of a scenario that ends with comments
    eC_Bool m_bBeginsChapter;          ///< it has a heading
};

/** Splits a scenario into steps. A line that begins with ## is the heading of a chapter, and further comments
 *  explain the command that follows.
 */
std::vector<TourStep_t> ReadTour(const std::string& kScript);

/** @return how long people take to read a text, in milliseconds */
eC_UInt GetReadingTime(const std::string& kText);

#endif
