// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_ASSERTIONDEATH_H
#define TESTS_UNIT_ASSERTIONDEATH_H

/** @file
 *  Death tests of assertions.
 */

#include <gtest/gtest.h>

#if GTEST_HAS_DEATH_TEST
#include <gmock/gmock.h>

#include <string>

/** @return a matcher for what the standard library prints when an assertion fails
 *  @param kFile the source file with the assertion, relative to the top of the sources
 *  @param kExpression the expression as written there
 */
inline testing::Matcher<const std::string&> IsAssertion(const std::string& kFile,
                                                        const std::string& kExpression)
{
    return testing::AllOf(testing::HasSubstr(kFile + ":"),
                          testing::HasSubstr("Assertion `" + kExpression + "' failed"));
}

/** Expects a statement to fail an assertion. Every assertion of the library needs one of these; a test
 *  compares them with the sources to find assertions without one.
 */
#define EXPECT_ASSERTION(Statement, pcFile, pcExpression)                                                    \
    EXPECT_DEATH(Statement, IsAssertion(pcFile, pcExpression))
#endif

#endif
