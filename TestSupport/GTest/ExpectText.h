// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_GTEST_EXPECTTEXT_H
#define TESTSUPPORT_GTEST_EXPECTTEXT_H

/** @file
 *  Comparison of texts of several lines that shows the lines that differ.
 */

#include "Scenario/TextLines.h"

#include <gtest/gtest.h>

#include <string>

/** The predicate behind EXPECT_TEXT. */
inline ::testing::AssertionResult CompareText(const char* pcExpectedExpression,
                                              const char* pcActualExpression, const std::string& kExpected,
                                              const std::string& kActual)
{
    static_cast<void>(pcExpectedExpression);
    const std::string kExpectedText = Unindent(kExpected);
    if (kExpectedText == kActual)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << pcActualExpression << " is\n"
                                         << kActual << "but differs from the expected text (-) by (+):\n"
                                         << DiffLines(kExpectedText, kActual);
}

/** Expects a text of several lines. The expected text may be a raw string literal that is indented as the
 *  code around it, with its first and last line empty (see Unindent).
 */
#define EXPECT_TEXT(kExpected, kActual) EXPECT_PRED_FORMAT2(CompareText, kExpected, kActual)

#endif
