// SPDX-License-Identifier: MIT
#ifndef SCENARIO_TEXTLINES_H
#define SCENARIO_TEXTLINES_H

/** @file
 *  Texts of several lines, which recorders and printers return and tests compare.
 */

#include <string>
#include <vector>

/** @return the text with every line break as the two characters \n */
std::string EscapeLineBreaks(const std::string& kText);

/** @return the lines, each with a line break at its end */
std::string JoinLines(const std::vector<std::string>& kLines);

/** @return the lines of a text without their line breaks; a line break at the end begins no other line */
std::vector<std::string> SplitLines(const std::string& kText);

/** Converts a raw string literal that is indented like the code around it.
 *  @return the text without an empty first line, without a blank last line, without the blanks that all
 *          its lines begin with, and with a line break at the end of each line
 */
std::string Unindent(const std::string& kText);

/** Compares two texts line by line.
 *  @return the lines of both in order, "- " before one that only the expected text has, "+ " before one
 *          that only the actual text has, and two blanks before a common one; empty when both are equal
 */
std::string DiffLines(const std::string& kExpected, const std::string& kActual);

#endif
