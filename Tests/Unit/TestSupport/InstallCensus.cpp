// SPDX-License-Identifier: MIT
/** @file
 *  Makes the census watch every test of the program, whatever its fixture.
 */

#include "TestSupport/GTest/CensusListener.h"

namespace
{
bool InstallCensus()
{
    ::testing::UnitTest::GetInstance()->listeners().Append(new CCensusListener);
    return true;
}

[[maybe_unused]] const bool bCensusIsInstalled = InstallCensus();
} // namespace
