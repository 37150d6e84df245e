// SPDX-License-Identifier: MIT
#include "Flow/Check/ExactExplorer.h"
#include "CheckedFlow.h"
#include "RandomFlow.h"
#include "Simulator/Simulation.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace
{
constexpr eC_UInt cuiMostStates = 1500;

/** Violations, without what depends on which of several ways was found. */
using Findings_t = std::set<std::string>;

/** Both explorations of a flow. */
class CBothWays
{
public:
    explicit CBothWays(const std::string& kText, eC_UInt uiDepth)
        : m_kApplication(ReadText(kText)), m_kSubject(m_kApplication)
    {
        ExplorerBounds_t kBounds;
        kBounds.m_uiDepth = 0;
        kBounds.m_uiStates = cuiMostStates;
        m_kExact = CExactExplorer(m_kSubject).ExploreExactly(kBounds, m_kObstacle);
        if (!m_kObstacle.empty())
        {
            return; // there is nothing to compare
        }
        kBounds.m_uiDepth = uiDepth;
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

    /** @param uiLongest leaves out what more steps lead to */
    Findings_t GetFindings(const StateSpace_t& kSpace, eC_UInt uiProperty, std::size_t uiLongest = 1000) const
    {
        Findings_t kFindings;
        const PropertyResult_t kResult = CheckProperties(m_kSubject, kSpace, 1U << uiProperty).front();
        for (const Finding_t& kFinding : kResult.m_kFindings)
        {
            const std::size_t uiSteps =
                kSpace.GetPath(kFinding.m_kWitness.m_uiState).size() + kFinding.m_kWitness.m_kSteps.size();
            if (uiSteps <= uiLongest)
            {
                const eC_Bool bIsClaim = uiProperty == 9 || uiProperty == 10 || uiProperty == 11;
                kFindings.insert(uiProperty == 4 ? "grows"
                                 : bIsClaim      ? kFinding.m_kText.substr(0, kFinding.m_kText.find(": "))
                                                 : kFinding.m_kText);
            }
        }
        return kFindings;
    }

    CFlowApplication m_kApplication;
    CFlowSubject m_kSubject;
    std::string m_kObstacle;
    StateSpace_t m_kExact;
    StateSpace_t m_kBounded;
};

/** Plays the ways of P3 and goes back, with a look at the screen at each entry: something must differ. */
void ExpectThatBackIsBroken(CBothWays& kFlow, const std::string& kWhere)
{
    const PropertyResult_t kResult = CheckProperties(kFlow.m_kSubject, kFlow.m_kExact, 1U << 3U).front();
    for (const Finding_t& kFinding : kResult.m_kFindings)
    {
        CSimulation kSimulation(kFlow.m_kApplication);
        std::vector<CheckedState_t> kLeft;
        CheckedState_t kBefore;
        for (const std::string& kLine : MakeScenario(kFlow.m_kExact, kFinding.m_kWitness))
        {
            kSimulation.Run(kLine);
            const CheckedState_t kNow = ReadCheckedState(kFlow.m_kSubject);
            if (kNow.m_kHistory.size() > kLeft.size())
            {
                kLeft.push_back(kBefore);
            }
            kLeft.resize(kNow.m_kHistory.size());
            kBefore = kNow;
        }
        eC_Bool bIsBroken = false;
        for (; !kLeft.empty() && !bIsBroken; kLeft.pop_back())
        {
            const ObjectHandle_t eFocus = ReadCheckedState(kFlow.m_kSubject).m_kHistoryFocus.back();
            kFlow.m_kApplication.GetManager().Back(true);
            const CheckedState_t kNow = ReadCheckedState(kFlow.m_kSubject);
            bIsBroken = kNow.m_eCurrent != kLeft.back().m_eCurrent ||
                        kNow.m_kVisible != kLeft.back().m_kVisible || kNow.m_eFocus != eFocus ||
                        std::count(kNow.m_kVisible.begin(), kNow.m_kVisible.end(), kNow.m_eCurrent) == 0;
        }
        EXPECT_TRUE(bIsBroken) << kWhere << ": " << kFinding.m_kText;
    }
}

void ExpectThatItContains(const Findings_t& kAll, const Findings_t& kSome, const std::string& kWhere)
{
    for (const std::string& kFinding : kSome)
    {
        EXPECT_EQ(1U, kAll.count(kFinding)) << kWhere << ": " << kFinding;
    }
}

/** Compares the verdicts on all properties. */
void ExpectSameVerdicts(const CBothWays& kFlow, const std::string& kText, eC_UInt uiDepth)
{
    for (const eC_UInt uiProperty : {1U, 2U, 3U, 4U, 6U, 7U, 8U, 9U, 10U, 11U, 12U})
    {
        const std::string kWhere = "P" + std::to_string(uiProperty) + " of " + kText;
        const Findings_t kExact = kFlow.GetFindings(kFlow.m_kExact, uiProperty);
        const Findings_t kBounded = kFlow.GetFindings(kFlow.m_kBounded, uiProperty);
        if (kFlow.m_kBounded.m_bIsComplete)
        {
            EXPECT_EQ(kExact, kBounded) << kWhere;
        }
        else if (uiProperty != 1)
        {
            // What is found up to a depth is found with any history, too; P1 is about what is not found.
            ExpectThatItContains(kExact, kBounded, kWhere + "\nbounded");
            const eC_Bool bIsFoundAtOnce =
                uiProperty == 7 || uiProperty == 8 || uiProperty == 11 || uiProperty == 12;
            if (bIsFoundAtOnce && kFlow.m_kBounded.m_uiDepth == uiDepth)
            {
                ExpectThatItContains(kBounded, kFlow.GetFindings(kFlow.m_kExact, uiProperty, uiDepth),
                                     kWhere + "\nexact");
            }
        }
    }
}
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

TEST(CExactExplorerTest, AWayHomeThatGrowsWithTheHistory_IsToldWithoutBound)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<On button='BTN_B'><create dialog='DLG_B'/></On><On key='back'><back/></On>"
                                "<Within reach='DLG_A' keys='5'/>"));
    EXPECT_EQ("", kFlow.GetFindings(10));
    kFlow.ExploreExactly();
    EXPECT_EQ("", kFlow.GetFindings(2));
    EXPECT_EQ(0U, kFlow.GetMeasures(2).find("more than 100 keys, and with longer histories more and more"));
    EXPECT_EQ("DLG_A within 5 keys: from DLG_B it takes more keys: ok, ok, ok, ok, ok, ok\n",
              kFlow.GetFindings(10));
}

TEST(CExactExplorerTest, TimesThatMakeTheHistoryGrow_GoOnForEver)
{
    CCheckedFlow kFlow(MakeFlow("<Timer name='t' time='1000' repeats='true'/>"
                                "<On button='BTN_A'><start timer='t'/></On>"
                                "<On timer='t'><create dialog='DLG_B'/></On><On key='back'><back/></On>"
                                "<LeftAlone reach='POP_P' from='DLG_B'/>"));
    kFlow.ExploreExactly();
    EXPECT_EQ("left alone from DLG_B, POP_P: DLG_B goes round in circles: ok, t runs out, t runs out, t runs "
              "out, t runs out, t runs out\n",
              kFlow.GetFindings(9).substr(0, kFlow.GetFindings(9).find('\n') + 1));
}

TEST(CExactExplorerTest, WhatTheStartPutsIntoTheHistory_IsTakenBackToo)
{
    CCheckedFlow kFlow("<Flow name='Test'><Key name='ok' input='activate'/><Key name='back'/>"
                       "<DialogDefinition id='DLG_A'><Screen><Button id='BTN_A'/></Screen></DialogDefinition>"
                       "<DialogDefinition id='DLG_B'><Screen><Button id='BTN_B'/></Screen></DialogDefinition>"
                       "<Start><create dialog='DLG_A'/><create dialog='DLG_B'/></Start>"
                       "<On button='BTN_B'><create dialog='DLG_B'/></On>"
                       "<On key='back' when='past:DLG_A'><back/></On><Never when='DLG_A'/></Flow>");
    kFlow.ExploreExactly();
    EXPECT_EQ("never DLG_A: not in DLG_A: back\n", kFlow.GetFindings(10));
}

TEST(CExactExplorerTest, ARepetitionThatEnds_DoesNotGrow)
{
    // It looks like one that goes on: four entries are made one after the other, but no fifth.
    CCheckedFlow kFlow(
        MakeFlow("<Timer name='t' time='1000'/><Flag name='a'/><Flag name='b'/><Flag name='c'/>"
                 "<On key='back' when='!c'><create dialog='DLG_B'/><set flag='c' when='b'/>"
                 "<set flag='b' when='a'/><set flag='a'/></On>"));
    EXPECT_EQ("", kFlow.GetFindings(4));
    kFlow.ExploreExactly();
    EXPECT_EQ("", kFlow.GetFindings(4));
}

TEST(CExactExplorerTest, AWayBackIsTriedAlongEveryWay_NotOnlyTheShortest)
{
    // Going back to B hides it, as it was there before; then B is left hidden, and comes back visible.
    CCheckedFlow kFlow(
        MakeFlow("<On button='BTN_A'><create dialog='DLG_B' action='ODA_NOTHING'/></On>"
                 "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition><Signal name='s'/>"
                 "<On signal='s' when='!DLG_C'><create dialog='DLG_C' action='ODA_NOTHING'/></On>"
                 "<On signal='s'><create dialog='DLG_B' action='ODA_NOTHING'/></On>"
                 "<On button='BTN_B'><create dialog='DLG_B' action='ODA_NOTHING'/></On>"
                 "<On key='back'><back/></On>"));
    const eC_Char* const pcFinding =
        "back from DLG_C shows DLG_A, DLG_B instead of DLG_A: ok, ok, back, s, ok\n";
    EXPECT_NE(std::string::npos, kFlow.GetFindings(3).find(pcFinding)) << kFlow.GetFindings(3);
    kFlow.ExploreExactly();
    EXPECT_NE(std::string::npos,
              kFlow.GetFindings(3).find("back from DLG_C shows DLG_A, DLG_B instead of DLG_A"))
        << kFlow.GetFindings(3);
}

TEST(CExactExplorerTest, AgreesWithTheBoundedExploration_OnRandomFlows)
{
    const eC_Char* pcFlows = std::getenv("DIALOGMANAGER_RANDOM_FLOWS");
    const unsigned long uiFlows = pcFlows != nullptr ? std::strtoul(pcFlows, nullptr, 10) : 60;
    eC_UInt uiDecided = 0;
    eC_UInt uiUnbounded = 0;
    eC_UInt uiSeed = 0;
    // Flows with more states than this test has time for do not count.
    for (; uiDecided < uiFlows && uiSeed < 2 * uiFlows; ++uiSeed)
    {
        const std::string kText = "seed " + std::to_string(uiSeed) + ":\n" + MakeRandomFlow(uiSeed);
        CBothWays kFlow(MakeRandomFlow(uiSeed), 6);
        if (!kFlow.m_kObstacle.empty())
        {
            ASSERT_EQ("more than", kFlow.m_kObstacle.substr(0, 9)) << kText;
            continue;
        }
        ++uiDecided;
        uiUnbounded += kFlow.m_kBounded.m_bIsComplete ? 0U : 1U;
        const std::set<std::string> kExact = CBothWays::GetControls(kFlow.m_kExact);
        const std::set<std::string> kBounded = CBothWays::GetControls(kFlow.m_kBounded);
        ExpectThatItContains(kExact, kBounded, kText);
        EXPECT_TRUE(!kFlow.m_kBounded.m_bIsComplete || kExact.size() == kBounded.size()) << kText;
        ExpectSameVerdicts(kFlow, kText, 6);
        ExpectThatBackIsBroken(kFlow, kText);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_EQ(uiFlows, uiDecided);
    EXPECT_GT(uiUnbounded, uiFlows / 4);
    std::printf(
        "%u random flows: both explorations agree, %u times beyond the bound (of %u, %u are too large)\n",
        uiDecided, uiUnbounded, uiSeed, uiSeed - uiDecided);
}
