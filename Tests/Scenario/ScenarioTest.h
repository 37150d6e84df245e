// SPDX-License-Identifier: MIT
#ifndef TESTS_SCENARIO_SCENARIOTEST_H
#define TESTS_SCENARIO_SCENARIOTEST_H

/** @file
 *  Plays scenarios, from files or from memory.
 */

#include "TestSupport/GTest/GUITestFixture.h"
#include "TestSupport/RecordingScenarioPlayer.h"

#include <string>

/** A complete framework for one scenario. */
class CScenarioTest : public CGUITest
{
protected:
    /** Plays a script, and expects all its lines to be valid.
     *  @param kName the script's name, for messages
     *  @return the transcript
     */
    std::string Play(const std::string& kName, const std::string& kScript)
    {
        CRecordingScenarioPlayer kPlayer(Manager(), Clock(), Events(), CodeFactory());
        EXPECT_TRUE(kPlayer.Play(kName, kScript)) << kPlayer.GetError();
        return kPlayer.GetTranscript();
    }
};

#endif
