// SPDX-License-Identifier: MIT
#include "Flow/Check/ExactExplorer.h"
#include "CheckedFlow.h"
#include "RandomFlow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace
{
constexpr eC_UInt cuiMostStates = 1500;

/** Both explorations of a flow. */
class CBothWays
{
public:
    explicit CBothWays(const std::string& kText, eC_UInt uiDepth)
        : m_kApplication(ReadText(kText)), m_kSubject(m_kApplication)
    {
        m_kExact =
            CExactExplorer(m_kSubject, m_kSubject.GetMostKept()).ExploreExactly(cuiMostStates, m_kObstacle);
        ExplorerBounds_t kBounds;
        kBounds.m_uiDepth = uiDepth;
        kBounds.m_uiStates = cuiMostStates;
        kBounds.m_bRepeats = true;
        m_kBounded = CExplorer(m_kSubject).Explore(kBounds);
    }

    static std::set<std::string> GetControls(const StateSpace_t& kSpace)
    {
        std::set<std::string> kControls;
        for (const ReachedState_t& kState : kSpace.m_kStates)
        {
            kControls.insert(kSpace.m_kControls.GetText(kState.m_uiControl));
        }
        return kControls;
    }

    CFlowApplication m_kApplication;
    CFlowSubject m_kSubject;
    std::string m_kObstacle;
    StateSpace_t m_kExact;
    StateSpace_t m_kBounded;
};
} // namespace

TEST(CExactExplorerTest, AHistoryThatGrowsForEver_IsDecided)
{
    CBothWays kFlow(MakeFlow("<Flag name='f'/><On button='BTN_A'><create dialog='DLG_B'/></On>"
                             "<On button='BTN_B'><create dialog='DLG_A'/></On><On key='back'><back/></On>"),
                    6);
    EXPECT_EQ("", kFlow.m_kObstacle);
    EXPECT_TRUE(kFlow.m_kExact.m_bIsExact);
    EXPECT_FALSE(kFlow.m_kBounded.m_bIsComplete);
}

TEST(CExactExplorerTest, WhatOnlyADeepHistoryBringsAbout_IsFound)
{
    // Each way to B changes the flag, and each way back to A is counted by another one: both ways are needed
    // twice.
    CBothWays kFlow(
        MakeFlow("<Flag name='f'/><Flag name='g'/><DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
                 "<On button='BTN_A'><create dialog='DLG_B'/></On>"
                 "<On button='BTN_B'><create dialog='DLG_A'/><set flag='f' value='toggle'/></On>"
                 "<On key='back' when='f DLG_A past:DLG_B'><back/><set flag='g'/></On>"
                 "<On key='back' when='g DLG_B'><create dialog='DLG_C'/></On>"),
        3);
    EXPECT_EQ("", kFlow.m_kObstacle);
    const auto Reaches = [](const StateSpace_t& kSpace)
    {
        return std::any_of(kSpace.m_kStates.begin(), kSpace.m_kStates.end(),
                           [](const ReachedState_t& kState)
                           { return std::string(GetObjectHandleName(kState.m_eCurrent)) == "DLG_C"; });
    };
    EXPECT_TRUE(Reaches(kFlow.m_kExact));
    EXPECT_FALSE(Reaches(kFlow.m_kBounded));
}

TEST(CExactExplorerTest, AStepwiseWayBack_IsNotDecided)
{
    CBothWays kFlow(
        MakeFlow("<DialogDefinition id='DLG_C'><Screen><Button id='BTN_C'/></Screen></DialogDefinition>"
                 "<On button='BTN_A'><create dialog='DLG_B'/></On>"
                 "<On button='BTN_B'><create dialog='DLG_C'/></On>"
                 "<On button='BTN_C'><create dialog='DLG_A'/></On>"
                 "<On key='back'><back-to dialog='DLG_A' stepwise='true' when='past:DLG_A'/></On>"),
        4);
    EXPECT_EQ("back takes back several entries, one after the other", kFlow.m_kObstacle);
    EXPECT_FALSE(kFlow.m_kExact.m_bIsExact);
}

TEST(CExactExplorerTest, TwoNewEntriesInOneStep_AreNotDecided)
{
    CBothWays kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/><create dialog='DLG_A'/></On>"), 3);
    EXPECT_EQ("ok makes several entries of the history, or takes back several and makes one",
              kFlow.m_kObstacle);
}

TEST(CExactExplorerTest, AgreesWithTheBoundedExploration_OnRandomFlows)
{
    const eC_Char* pcFlows = std::getenv("DIALOGMANAGER_RANDOM_FLOWS");
    const unsigned long uiFlows = pcFlows != nullptr ? std::strtoul(pcFlows, nullptr, 10) : 60;
    eC_UInt uiDecided = 0;
    eC_UInt uiUnbounded = 0;
    for (eC_UInt uiSeed = 0; uiSeed < uiFlows; ++uiSeed)
    {
        CBothWays kFlow(MakeRandomFlow(uiSeed), 6);
        if (!kFlow.m_kObstacle.empty())
        {
            EXPECT_EQ("more than " + std::to_string(cuiMostStates) + " states", kFlow.m_kObstacle) << uiSeed;
            continue;
        }
        ++uiDecided;
        uiUnbounded += kFlow.m_kBounded.m_bIsComplete ? 0U : 1U;
        const std::set<std::string> kExact = CBothWays::GetControls(kFlow.m_kExact);
        const std::set<std::string> kBounded = CBothWays::GetControls(kFlow.m_kBounded);
        for (const std::string& kControl : kBounded)
        {
            ASSERT_EQ(1U, kExact.count(kControl)) << "seed " << uiSeed << ":\n" << MakeRandomFlow(uiSeed);
        }
        if (kFlow.m_kBounded.m_bIsComplete)
        {
            ASSERT_EQ(kExact.size(), kBounded.size()) << "seed " << uiSeed << ":\n" << MakeRandomFlow(uiSeed);
        }
    }
    EXPECT_GT(uiDecided, uiFlows / 2);
    EXPECT_GT(uiUnbounded, uiFlows / 4);
    std::printf("%lu random flows: %u decided for all histories, %u of them beyond the bound\n", uiFlows,
                uiDecided, uiUnbounded);
}
