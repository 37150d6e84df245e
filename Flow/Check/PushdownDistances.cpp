// SPDX-License-Identifier: MIT
#include "Flow/Check/PushdownDistances.h"

#include <algorithm>
#include <set>

namespace
{
constexpr std::size_t cuiMostContexts = 50'000;

eC_Bool Lower(eC_UInt& uiValue, eC_UInt uiOther)
{
    const eC_Bool bIsLower = uiOther < uiValue;
    uiValue = bIsLower ? uiOther : uiValue;
    return bIsLower;
}
} // namespace

CPushdownDistances::CPushdownDistances(const StateSpace_t& kSpace, const Goal_t& fnIsGoal,
                                       const Cost_t& fnCost, eC_UInt uiLimit, const Goal_t& fnMayPass)
    : m_kSpace(kSpace), m_uiLimit(uiLimit)
{
    const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
    for (const Pushdown_t::Item_t& kItem : kPushdown.m_kItems)
    {
        m_kToGoal.push_back(fnIsGoal(kItem.m_uiState) ? 0 : cuiFar);
        m_kToExits.emplace_back(kPushdown.m_kFrames[kItem.m_uiFrame].m_uiExits, cuiFar);
    }
    eC_Bool bHasImproved = true;
    while (bHasImproved)
    {
        bHasImproved = false;
        for (auto uiItem = static_cast<std::uint32_t>(kPushdown.m_kItems.size()); uiItem-- > 0;)
        {
            bHasImproved =
                (fnMayPass(kPushdown.m_kItems[uiItem].m_uiState) && Improve(uiItem, fnCost)) || bHasImproved;
        }
    }
}

eC_UInt CPushdownDistances::Add(eC_UInt uiOne, eC_UInt uiOther) const
{
    return uiOne == cuiFar || uiOther == cuiFar ? cuiFar : std::min(uiOne + uiOther, m_uiLimit + 1);
}

eC_Bool CPushdownDistances::Improve(std::uint32_t uiItem, const Cost_t& fnCost)
{
    eC_Bool bHasImproved = false;
    std::vector<eC_UInt>& kToExits = m_kToExits[uiItem];
    for (const Pushdown_t::Edge_t& kEdge : m_kSpace.m_kPushdown.m_kItems[uiItem].m_kEdges)
    {
        const eC_UInt uiCost = fnCost(m_kSpace.m_kSteps[kEdge.m_uiStep]);
        switch (kEdge.m_eKind)
        {
        case Pushdown_t::INSIDE:
            bHasImproved = Lower(m_kToGoal[uiItem], Add(uiCost, m_kToGoal[kEdge.m_uiTarget])) || bHasImproved;
            for (std::size_t uiExit = 0; uiExit < kToExits.size(); ++uiExit)
            {
                bHasImproved = Lower(kToExits[uiExit], Add(uiCost, m_kToExits[kEdge.m_uiTarget][uiExit])) ||
                               bHasImproved;
            }
            break;
        case Pushdown_t::CALL:
            bHasImproved = ImproveByCall(uiItem, kEdge, uiCost) || bHasImproved;
            break;
        case Pushdown_t::EXIT:
            bHasImproved = Lower(kToExits[kEdge.m_uiTarget], Add(uiCost, 0)) || bHasImproved;
            break;
        }
    }
    return bHasImproved;
}

eC_Bool CPushdownDistances::ImproveByCall(std::uint32_t uiItem, const Pushdown_t::Edge_t& kEdge,
                                          eC_UInt uiCost)
{
    const Pushdown_t::Frame_t& kFrame = m_kSpace.m_kPushdown.m_kFrames[kEdge.m_uiTarget];
    const std::vector<Pushdown_t::Return_t>& kReturns = kFrame.m_kReturns[kEdge.m_uiCaller];
    eC_Bool bHasImproved = Lower(m_kToGoal[uiItem], Add(uiCost, m_kToGoal[kFrame.m_uiFirstItem]));
    for (std::size_t uiCalled = 0; uiCalled < kReturns.size(); ++uiCalled)
    {
        const eC_UInt uiThere = Add(uiCost, m_kToExits[kFrame.m_uiFirstItem][uiCalled]);
        const Pushdown_t::Return_t& kReturn = kReturns[uiCalled];
        if (kReturn.m_eKind == Pushdown_t::Return_t::TO_EXIT)
        {
            bHasImproved = Lower(m_kToExits[uiItem][kReturn.m_uiTarget], uiThere) || bHasImproved;
        }
        else if (kReturn.m_eKind == Pushdown_t::Return_t::TO_ITEM)
        {
            bHasImproved =
                Lower(m_kToGoal[uiItem], Add(uiThere, m_kToGoal[kReturn.m_uiTarget])) || bHasImproved;
            for (std::size_t uiExit = 0; uiExit < m_kToExits[uiItem].size(); ++uiExit)
            {
                bHasImproved =
                    Lower(m_kToExits[uiItem][uiExit], Add(uiThere, m_kToExits[kReturn.m_uiTarget][uiExit])) ||
                    bHasImproved;
            }
        }
    }
    return bHasImproved;
}

eC_UInt CPushdownDistances::GetDistance(std::uint32_t uiItem, const Context_t& kContext) const
{
    eC_UInt uiDistance = m_kToGoal[uiItem];
    for (std::size_t uiExit = 0; uiExit < kContext.m_kExits.size(); ++uiExit)
    {
        Lower(uiDistance, Add(m_kToExits[uiItem][uiExit], kContext.m_kExits[uiExit]));
    }
    return uiDistance;
}

std::vector<eC_UInt> CPushdownDistances::GetExits(std::uint32_t uiFrame, std::uint32_t uiCaller,
                                                  const Context_t& kOuter) const
{
    std::vector<eC_UInt> kExits;
    for (const Pushdown_t::Return_t& kReturn : m_kSpace.m_kPushdown.m_kFrames[uiFrame].m_kReturns[uiCaller])
    {
        kExits.push_back(
            kReturn.m_eKind == Pushdown_t::Return_t::TO_ITEM   ? GetDistance(kReturn.m_uiTarget, kOuter)
            : kReturn.m_eKind == Pushdown_t::Return_t::TO_EXIT ? kOuter.m_kExits[kReturn.m_uiTarget]
                                                               : cuiFar);
    }
    return kExits;
}

eC_Bool CPushdownDistances::Visit(const Visit_t& fnVisit)
{
    const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
    std::vector<std::vector<std::uint32_t>> kItems(kPushdown.m_kFrames.size());
    for (std::uint32_t uiItem = 0; uiItem < kPushdown.m_kItems.size(); ++uiItem)
    {
        kItems[kPushdown.m_kItems[uiItem].m_uiFrame].push_back(uiItem);
    }
    std::set<std::pair<std::uint32_t, std::vector<eC_UInt>>> kKnown;
    m_kContexts = {{0, 0, 0, {}}};
    for (std::uint32_t uiContext = 0; uiContext < m_kContexts.size(); ++uiContext)
    {
        const Context_t kContext = m_kContexts[uiContext];
        for (const std::uint32_t uiItem : kItems[kContext.m_uiFrame])
        {
            fnVisit(uiItem, GetDistance(uiItem, kContext), uiContext);
            for (const Pushdown_t::Edge_t& kEdge : kPushdown.m_kItems[uiItem].m_kEdges)
            {
                if (kEdge.m_eKind != Pushdown_t::CALL)
                {
                    continue;
                }
                std::vector<eC_UInt> kExits = GetExits(kEdge.m_uiTarget, kEdge.m_uiCaller, kContext);
                if (kKnown.emplace(kEdge.m_uiTarget, kExits).second)
                {
                    m_kContexts.push_back({kEdge.m_uiTarget, uiContext, kEdge.m_uiCaller, std::move(kExits)});
                }
            }
        }
        if (m_kContexts.size() > cuiMostContexts)
        {
            return false;
        }
    }
    return true;
}

Way_t CPushdownDistances::GetWay(std::uint32_t uiContext, std::uint32_t uiItem) const
{
    const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
    Way_t kWay = kPushdown.m_kItems[uiItem].m_kWay;
    for (; m_kContexts[uiContext].m_uiFrame != 0; uiContext = m_kContexts[uiContext].m_uiOuter)
    {
        const Pushdown_t::Caller_t& kCaller = kPushdown.m_kFrames[m_kContexts[uiContext].m_uiFrame]
                                                  .m_kCallers[m_kContexts[uiContext].m_uiCaller];
        kWay.insert(kWay.begin(), kCaller.m_uiStep);
        const Way_t& kInside = kPushdown.m_kItems[kCaller.m_uiItem].m_kWay;
        kWay.insert(kWay.begin(), kInside.begin(), kInside.end());
    }
    return kWay;
}
