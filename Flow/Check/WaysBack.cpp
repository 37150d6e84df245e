// SPDX-License-Identifier: MIT
#include "Flow/Check/WaysBack.h"

#include "Scenario/Names.h"

#include <algorithm>
#include <map>
#include <set>

std::string DescribeFault(const StateSpace_t& kSpace, const Back_t& kBack, std::uint32_t uiLeft)
{
    const std::string kFrom = "back from " + NameOfHandle(kBack.m_eLeft);
    if (kBack.m_eLeft == NO_HANDLE)
    {
        return "no dialog is current, so going back never leads to " + NameOfHandle(kBack.m_eDialog);
    }
    if (kBack.m_eCurrent != kBack.m_eDialog)
    {
        return kFrom + " leads to " + NameOfHandle(kBack.m_eCurrent) + " instead of " +
               NameOfHandle(kBack.m_eDialog);
    }
    if (!kBack.m_bIsVisible)
    {
        return kFrom + ": " + NameOfHandle(kBack.m_eDialog) + " is current and not visible";
    }
    if (uiLeft == cuiNoState)
    {
        return "";
    }
    const ReachedState_t& kLeft = kSpace.m_kStates[uiLeft];
    if (kBack.m_uiVisible != kLeft.m_uiVisible)
    {
        return kFrom + " shows " + kSpace.m_kTexts.GetText(kBack.m_uiVisible) + " instead of " +
               kSpace.m_kTexts.GetText(kLeft.m_uiVisible);
    }
    // A popup may have the focus instead.
    if (kLeft.m_uiListed == 0 && !kBack.m_bHasPopups && kBack.m_eFocus != NO_HANDLE &&
        kBack.m_eFocussed != kBack.m_eFocus)
    {
        return kFrom + ": the focus is on " + NameOfHandle(kBack.m_eFocussed) + " instead of " +
               NameOfHandle(kBack.m_eFocus);
    }
    return "";
}

std::uint32_t GetLeftState(const StateSpace_t& kSpace, std::uint32_t uiState, const Back_t& kBack)
{
    return kSpace.m_kStates[uiState].m_eCurrent == kBack.m_eDialog ? uiState : cuiNoState;
}

const Back_t* GetBack(const StateSpace_t& kSpace, std::uint32_t uiState, eC_UInt uiBacks)
{
    std::uint32_t uiBack = kSpace.m_kStates[uiState].m_uiBack;
    for (; uiBacks > 0; --uiBacks)
    {
        uiBack = kSpace.m_kBacks[uiBack].m_uiNext; // of number 0: 0
    }
    return uiBack != 0 ? &kSpace.m_kBacks[uiBack] : nullptr;
}

namespace
{
/** Follows every entry along every way, with what was left when it was made. */
class CLeftPictures
{
public:
    /** @param bWithTimes whether times may forbid a way */
    CLeftPictures(const StateSpace_t& kSpace, eC_Bool bWithTimes) : m_kSpace(kSpace), m_bWithTimes(bWithTimes)
    {
        m_kNodesOf.resize(kSpace.m_kStates.size());
        CountKept();
    }

    std::vector<BackFault_t> Find()
    {
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            ReportStepsThatLeadElsewhere(uiState);
            // In the order of lengths: first the nodes that are nearer than this state's.
            while (m_uiNext < m_kNodes.size() &&
                   m_kNodes[m_uiNext].m_uiLength <= m_kSpace.m_kStates[uiState].m_uiDepth)
            {
                Follow(m_uiNext++);
            }
            AddEntries(uiState);
        }
        while (m_uiNext < m_kNodes.size())
        {
            Follow(m_uiNext++);
        }
        return std::move(m_kFaults);
    }

private:
    static constexpr std::uint32_t cuiNone = 0xFFFFFFFFU;

    /** An entry of a state's history, and what was left when it was made. */
    struct Node_t
    {
        std::uint32_t m_uiState;
        std::uint32_t m_uiStep;   ///< the last one
        std::uint32_t m_uiBefore; ///< the node before it; cuiNone: the step has made the entry
        std::uint32_t m_uiLeft;   ///< a state that looks like what was left
        std::uint32_t m_uiLength; ///< of the way
        std::uint32_t m_uiMaker;  ///< the state in which the entry was made
        eC_UInt m_uiHeight;       ///< the entry's, 1: the oldest
    };

    const ReachedState_t& Get(std::uint32_t uiState) const { return m_kSpace.m_kStates[uiState]; }
    eC_UInt GetHeight(std::uint32_t uiState) const
    {
        return m_kSpace.m_kHistories.GetHeight(Get(uiState).m_uiHistory);
    }

    /** Finds out how many entries each step keeps. */
    void CountKept()
    {
        m_kKept.resize(m_kSpace.m_kSteps.size());
        for (const ReachedState_t& kState : m_kSpace.m_kStates)
        {
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps; ++uiStep)
            {
                m_kKept[uiStep] = m_kSpace.CountCommon(kState.m_uiHistory,
                                                       Get(m_kSpace.m_kSteps[uiStep].m_uiTarget).m_uiHistory);
            }
        }
    }

    void ReportStepsThatLeadElsewhere(std::uint32_t uiState)
    {
        for (std::uint32_t uiBack = Get(uiState).m_uiBack; uiBack != 0;
             uiBack = m_kSpace.m_kBacks[uiBack].m_uiNext)
        {
            AddFault(DescribeFault(m_kSpace, m_kSpace.m_kBacks[uiBack], cuiNoState), {"", uiState, {}});
        }
    }

    void AddFault(const std::string& kText, BackFault_t kFault)
    {
        if (!kText.empty() && m_kKnownFaults.insert(kText).second)
        {
            kFault.m_kText = kText;
            m_kFaults.push_back(std::move(kFault));
        }
    }

    /** Adds the entries that the steps of a state make. */
    void AddEntries(std::uint32_t uiState)
    {
        const ReachedState_t& kState = Get(uiState);
        const eC_UInt uiHeight = GetHeight(uiState);
        for (std::uint32_t uiStep = kState.m_uiFirstStep; uiStep < kState.m_uiFirstStep + kState.m_uiSteps;
             ++uiStep)
        {
            const std::uint32_t uiTarget = m_kSpace.m_kSteps[uiStep].m_uiTarget;
            const Back_t* const pkBack = GetBack(m_kSpace, uiTarget, 0);
            if (m_kKept[uiStep] != uiHeight || GetHeight(uiTarget) != uiHeight + 1 || pkBack == nullptr ||
                GetLeftState(m_kSpace, uiState, *pkBack) == cuiNoState)
            {
                continue;
            }
            AddNode({uiTarget, uiStep, cuiNone, GetPicture(uiState), kState.m_uiDepth + 1U, uiState,
                     uiHeight + 1},
                    m_kSpace.m_kZones[kState.m_uiZone]);
        }
    }

    /** @return the first state that looks like this one to DescribeFault */
    std::uint32_t GetPicture(std::uint32_t uiState)
    {
        return m_kPictures
            .emplace(std::make_pair(Get(uiState).m_uiVisible, Get(uiState).m_uiListed == 0), uiState)
            .first->second;
    }

    void Follow(std::uint32_t uiNode)
    {
        const std::uint32_t uiState = m_kNodes[uiNode].m_uiState;
        for (std::uint32_t uiStep = Get(uiState).m_uiFirstStep;
             uiStep < Get(uiState).m_uiFirstStep + Get(uiState).m_uiSteps; ++uiStep)
        {
            if (m_kKept[uiStep] >= m_kNodes[uiNode].m_uiHeight)
            {
                Node_t kNode = m_kNodes[uiNode];
                kNode.m_uiState = m_kSpace.m_kSteps[uiStep].m_uiTarget;
                kNode.m_uiStep = uiStep;
                kNode.m_uiBefore = uiNode;
                ++kNode.m_uiLength;
                AddNode(kNode, m_bWithTimes ? m_kZones[uiNode] : CZone());
            }
        }
    }

    /** @param kZone the times before its last step */
    void AddNode(const Node_t& kNode, CZone kZone)
    {
        const CheckedStep_t& kStep = m_kSpace.m_kSteps[kNode.m_uiStep];
        if ((m_bWithTimes &&
             !TakeStep(kZone, m_kSpace.m_kInputs[kStep.m_uiInput], m_kSpace.m_kChanges[kStep.m_uiChanges])) ||
            IsKnown(kNode, kZone))
        {
            return;
        }
        m_kNodesOf[kNode.m_uiState].push_back(static_cast<std::uint32_t>(m_kNodes.size()));
        m_kNodes.push_back(kNode);
        if (m_bWithTimes)
        {
            m_kZones.push_back(std::move(kZone));
        }
        const Back_t* const pkBack =
            GetBack(m_kSpace, kNode.m_uiState, GetHeight(kNode.m_uiState) - kNode.m_uiHeight);
        if (pkBack != nullptr)
        {
            const std::string kText = DescribeFault(m_kSpace, *pkBack, kNode.m_uiLeft);
            if (!kText.empty())
            {
                AddFault(kText, GetWay(kNode));
            }
        }
    }

    eC_Bool IsKnown(const Node_t& kNode, const CZone& kZone) const
    {
        const std::vector<std::uint32_t>& kNodes = m_kNodesOf[kNode.m_uiState];
        return std::any_of(kNodes.begin(), kNodes.end(),
                           [&](std::uint32_t uiOther)
                           {
                               return m_kNodes[uiOther].m_uiHeight == kNode.m_uiHeight &&
                                      m_kNodes[uiOther].m_uiLeft == kNode.m_uiLeft &&
                                      (!m_bWithTimes || m_kZones[uiOther].Includes(kZone));
                           });
    }

    BackFault_t GetWay(const Node_t& kNode) const
    {
        BackFault_t kFault = {"", kNode.m_uiMaker, {kNode.m_uiStep}};
        for (std::uint32_t uiNode = kNode.m_uiBefore; uiNode != cuiNone; uiNode = m_kNodes[uiNode].m_uiBefore)
        {
            kFault.m_kWay.push_back(m_kNodes[uiNode].m_uiStep);
        }
        std::reverse(kFault.m_kWay.begin(), kFault.m_kWay.end());
        return kFault;
    }

    const StateSpace_t& m_kSpace;
    eC_Bool m_bWithTimes;
    std::vector<eC_UInt> m_kKept; ///< of each step
    std::map<std::pair<std::uint32_t, eC_Bool>, std::uint32_t> m_kPictures;
    std::vector<Node_t> m_kNodes; ///< in the order of their lengths
    std::vector<CZone> m_kZones;  ///< of each node, with times
    std::uint32_t m_uiNext = 0;
    std::vector<std::vector<std::uint32_t>> m_kNodesOf; ///< of each state
    std::set<std::string> m_kKnownFaults;
    std::vector<BackFault_t> m_kFaults;
};
} // namespace

std::vector<BackFault_t> FindBackFaults(const StateSpace_t& kSpace, eC_Bool bWithTimes)
{
    return CLeftPictures(kSpace, bWithTimes).Find();
}
