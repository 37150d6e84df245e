// SPDX-License-Identifier: MIT
#ifndef TESTS_HOOKMATRIX_RECORDEDOUTCOMES_H
#define TESTS_HOOKMATRIX_RECORDEDOUTCOMES_H

/** @file
 *  The files below Outcomes/, read when the tests run, or linked into the program on the board.
 */

#include <string>

/** @param kGroup the name of a file, without ".txt"
 *  @return its text, which stays valid; "" when there is no such file
 */
const char* GetRecordedOutcomes(const std::string& kGroup);

#endif
