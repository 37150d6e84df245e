// SPDX-License-Identifier: MIT
#include "CheckedFlow.h"

#include "Flow/Check/ExactExplorer.h"
#include "Simulator/Simulation.h"

#include <gtest/gtest.h>

CCheckedFlow::CCheckedFlow(const std::string& kText, const ExplorerBounds_t& kBounds)
    : m_pkApplication(std::make_unique<CFlowApplication>(ReadText(kText))),
      m_pkSubject(std::make_unique<CFlowSubject>(*m_pkApplication))
{
    m_kSpace = CExplorer(*m_pkSubject).Explore(kBounds);
}

void CCheckedFlow::ExploreExactly()
{
    ExplorerBounds_t kBounds;
    kBounds.m_uiDepth = 0;
    kBounds.m_uiStates = 10'000;
    m_kSpace = CExactExplorer(*m_pkSubject).ExploreExactly(kBounds, m_kObstacle);
}

std::string CCheckedFlow::GetFindings(eC_UInt uiProperty)
{
    std::string kText;
    for (const Finding_t& kFinding : Check(uiProperty).m_kFindings)
    {
        kText += kFinding.m_kReason.empty() ? "" : "(" + kFinding.m_kReason + ") ";
        kText += kFinding.m_kText;
        kText += kFinding.m_bHasWitness ? ": " + DescribeWitness(m_kSpace, kFinding.m_kWitness) + "\n" : "\n";
    }
    return kText;
}

std::size_t CCheckedFlow::GetStepsOf(eC_UInt uiProperty, const std::string& kLine)
{
    for (const Finding_t& kFinding : Check(uiProperty).m_kFindings)
    {
        const std::string kText =
            kFinding.m_kText + ": " + DescribeWitness(m_kSpace, kFinding.m_kWitness) + "\n";
        if (kFinding.m_bHasWitness && kText.find(kLine) != std::string::npos)
        {
            return m_kSpace.GetPath(kFinding.m_kWitness.m_uiState).size() +
                   kFinding.m_kWitness.m_kSteps.size();
        }
    }
    return 0;
}

std::string CCheckedFlow::GetMeasures(eC_UInt uiProperty)
{
    std::string kText;
    for (const Measure_t& kMeasure : Check(uiProperty).m_kMeasures)
    {
        kText += kMeasure.m_kText + ": " + DescribeWitness(m_kSpace, kMeasure.m_kWitness) + "\n";
    }
    return kText;
}

std::string CCheckedFlow::GetScenario(eC_UInt uiProperty)
{
    std::string kText;
    for (const std::string& kLine : MakeScenario(m_kSpace, Check(uiProperty).m_kFindings.front().m_kWitness))
    {
        kText += kLine + "\n";
    }
    return kText;
}

PropertyResult_t CCheckedFlow::Check(eC_UInt uiProperty)
{
    return CheckProperties(*m_pkSubject, m_kSpace, 1U << uiProperty).front();
}

void CCheckedFlow::ExpectThatScenariosLeadToTheirStates(eC_UInt uiProperty)
{
    for (const Finding_t& kFinding : Check(uiProperty).m_kFindings)
    {
        if (!kFinding.m_bHasWitness)
        {
            continue;
        }
        const Witness_t& kWitness = kFinding.m_kWitness;
        const ReachedState_t& kState =
            m_kSpace.m_kStates[kWitness.m_kSteps.empty()
                                   ? kWitness.m_uiState
                                   : m_kSpace.m_kSteps[kWitness.m_kSteps.back()].m_uiTarget];
        CSimulation kSimulation(*m_pkApplication);
        for (const std::string& kLine : MakeScenario(m_kSpace, kWitness))
        {
            EXPECT_TRUE(kSimulation.Run(kLine).m_bIsExecuted) << kLine;
        }
        const CGUIDialogManager& kManager = m_pkApplication->GetManager();
        EXPECT_EQ(kState.m_eCurrent, kManager.GetCurrentDialogID()) << kFinding.m_kText;
        EXPECT_EQ(m_kSpace.m_kHistories.GetHeight(kState.m_uiHistory), kManager.GetHistoryStackSize());
        for (std::size_t uiPopup = 0; uiPopup < m_kSpace.m_kPopups.size(); ++uiPopup)
        {
            EXPECT_EQ((kState.m_uiListed >> uiPopup & 1U) != 0,
                      kManager.IsPopupInPopupList(m_kSpace.m_kPopups[uiPopup]));
        }
    }
}
