// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_GTEST_CENSUSLISTENER_H
#define TESTSUPPORT_GTEST_CENSUSLISTENER_H

/** @file
 *  Fails every test that leaks or over-deletes.
 */

#include "TestSupport/ObjectCensus.h"

#include <gtest/gtest.h>

#include <string>

/** Compares the census at the beginning of each test with that at its end, including fixtures. A test program
 *  appends one to its listeners:
 *
 *      ::testing::UnitTest::GetInstance()->listeners().Append(new CCensusListener);
 */
class CCensusListener : public ::testing::EmptyTestEventListener
{
private:
    void OnTestStart(const ::testing::TestInfo&) override { m_kBefore = TakeObjectCensus(); }

    void OnTestEnd(const ::testing::TestInfo&) override
    {
        const std::string kDifference = CompareObjectCensus(m_kBefore, TakeObjectCensus());
        if (!kDifference.empty())
        {
            ADD_FAILURE() << "The test does not leave things as it found them:\n" << kDifference;
        }
    }

    ObjectCensus_t m_kBefore;
};

#endif
