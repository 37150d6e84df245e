// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_GTEST_EXPECTTEXT_H
#define TESTSUPPORT_GTEST_EXPECTTEXT_H

/** @file
 *  Compares texts of several lines and shows the lines that differ.
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

/** Expects a text of several lines. The expected text may be a raw string literal, indented like the code
 *  around it and with empty first and last lines (see Unindent).
 */
#define EXPECT_TEXT(kExpected, kActual) EXPECT_PRED_FORMAT2(CompareText, kExpected, kActual)

#endif
