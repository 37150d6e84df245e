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

/** @return a matcher of what the standard library writes when an assertion is broken
 *  @param kFile the source file that asserts, from the top of the sources
 *  @param kExpression the expression as it stands there
 */
inline testing::Matcher<const std::string&> IsAssertion(const std::string& kFile,
                                                        const std::string& kExpression)
{
    return testing::AllOf(testing::HasSubstr(kFile + ":"),
                          testing::HasSubstr("Assertion `" + kExpression + "' failed"));
}

/** Expects that a statement breaks an assertion. Every assertion of the library has one of these; which one
 *  has none is found by comparing them with the sources.
 */
#define EXPECT_ASSERTION(Statement, pcFile, pcExpression)                                                    \
    EXPECT_DEATH(Statement, IsAssertion(pcFile, pcExpression))
#endif

#endif
