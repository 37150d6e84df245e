// SPDX-License-Identifier: MIT
#include "Flow/Check/PushdownRuns.h"

#include <algorithm>
#include <map>

CPushdownRuns::CPushdownRuns(const StateSpace_t& kSpace, const CPushdownDistances::Goal_t& fnIsIn,
                             eC_Bool bMayEnd)
    : m_kSpace(kSpace),
      m_kPushdown(kSpace.m_kPushdown),
      m_fnIsIn(fnIsIn),
      m_bMayEnd(bMayEnd),
      m_kDistances(
          kSpace, [](std::uint32_t) { return false; },
          [&kSpace](const CheckedStep_t& kStep)
          { return kSpace.m_kInputs[kStep.m_uiInput].m_eKind == CheckedInput_t::EXPIRY ? 0 : cuiFar; },
          0, fnIsIn)
{
    for (const Pushdown_t::Item_t& kItem : m_kPushdown.m_kItems)
    {
        m_kBad.push_back(m_fnIsIn(kItem.m_uiState) ? BY_ITSELF : GOOD);
        m_kByExit.push_back(0);
    }
    for (const Pushdown_t::Frame_t& kFrame : m_kPushdown.m_kFrames)
    {
        m_kBadExits.emplace_back(kFrame.m_uiExits);
    }
    // All are bad by themselves, except those that neither end nor go on to a bad one.
    eC_Bool bHasChanged = true;
    while (bHasChanged)
    {
        bHasChanged = false;
        for (std::uint32_t uiItem = 0; uiItem < m_kBad.size(); ++uiItem)
        {
            if (m_kBad[uiItem] == BY_ITSELF && !Ends(uiItem) && !GoesOn(uiItem))
            {
                m_kBad[uiItem] = GOOD;
                bHasChanged = true;
            }
        }
    }
    while (FindBadExits() || FindBadItems())
    {
    }
}

eC_Bool CPushdownRuns::IsTime(const Pushdown_t::Edge_t& kEdge) const
{
    return m_kSpace.m_kInputs[m_kSpace.m_kSteps[kEdge.m_uiStep].m_uiInput].m_eKind == CheckedInput_t::EXPIRY;
}

eC_Bool CPushdownRuns::Ends(std::uint32_t uiItem) const
{
    const std::vector<Pushdown_t::Edge_t>& kEdges = m_kPushdown.m_kItems[uiItem].m_kEdges;
    return m_bMayEnd && std::none_of(kEdges.begin(), kEdges.end(),
                                     [this](const Pushdown_t::Edge_t& kEdge) { return IsTime(kEdge); });
}

/** @return whether it goes on to an item that is bad by itself, without leaving the frame */
eC_Bool CPushdownRuns::GoesOn(std::uint32_t uiItem) const
{
    for (const Pushdown_t::Edge_t& kEdge : m_kPushdown.m_kItems[uiItem].m_kEdges)
    {
        if (!IsTime(kEdge) || kEdge.m_eKind == Pushdown_t::EXIT)
        {
            continue;
        }
        if (kEdge.m_eKind == Pushdown_t::INSIDE)
        {
            if (m_kBad[kEdge.m_uiTarget] == BY_ITSELF)
            {
                return true;
            }
            continue;
        }
        const Pushdown_t::Frame_t& kFrame = m_kPushdown.m_kFrames[kEdge.m_uiTarget];
        const std::vector<Pushdown_t::Return_t>& kReturns = kFrame.m_kReturns[kEdge.m_uiCaller];
        eC_Bool bGoesOn = m_kBad[kFrame.m_uiFirstItem] == BY_ITSELF;
        for (std::uint32_t uiExit = 0; uiExit < kReturns.size() && !bGoesOn; ++uiExit)
        {
            bGoesOn = m_kDistances.GetToExit(kFrame.m_uiFirstItem, uiExit) != cuiFar &&
                      kReturns[uiExit].m_eKind == Pushdown_t::Return_t::TO_ITEM &&
                      m_kBad[kReturns[uiExit].m_uiTarget] == BY_ITSELF;
        }
        if (bGoesOn)
        {
            return true;
        }
    }
    return false;
}

eC_Bool CPushdownRuns::FindBadExits()
{
    eC_Bool bHasFound = false;
    for (std::uint32_t uiFrame = 0; uiFrame < m_kPushdown.m_kFrames.size(); ++uiFrame)
    {
        const Pushdown_t::Frame_t& kFrame = m_kPushdown.m_kFrames[uiFrame];
        for (std::uint32_t uiCaller = 0; uiCaller < kFrame.m_kCallers.size(); ++uiCaller)
        {
            const std::uint32_t uiOuter =
                m_kPushdown.m_kItems[kFrame.m_kCallers[uiCaller].m_uiItem].m_uiFrame;
            for (std::uint32_t uiExit = 0; uiExit < kFrame.m_uiExits; ++uiExit)
            {
                const Pushdown_t::Return_t& kReturn = kFrame.m_kReturns[uiCaller][uiExit];
                const eC_Bool bIsBad = kReturn.m_eKind == Pushdown_t::Return_t::TO_ITEM
                                           ? m_kBad[kReturn.m_uiTarget] != GOOD
                                       : kReturn.m_eKind == Pushdown_t::Return_t::TO_EXIT
                                           ? m_kBadExits[uiOuter][kReturn.m_uiTarget].m_bIsBad
                                           : false;
                if (bIsBad && !m_kBadExits[uiFrame][uiExit].m_bIsBad)
                {
                    m_kBadExits[uiFrame][uiExit] = {true, uiCaller};
                    bHasFound = true;
                }
            }
        }
    }
    return bHasFound;
}

eC_Bool CPushdownRuns::FindBadItems()
{
    eC_Bool bHasFound = false;
    for (std::uint32_t uiItem = 0; uiItem < m_kBad.size(); ++uiItem)
    {
        const std::vector<BadExit_t>& kExits = m_kBadExits[m_kPushdown.m_kItems[uiItem].m_uiFrame];
        for (std::uint32_t uiExit = 0; uiExit < kExits.size() && m_kBad[uiItem] == GOOD; ++uiExit)
        {
            if (kExits[uiExit].m_bIsBad && m_kDistances.GetToExit(uiItem, uiExit) != cuiFar)
            {
                m_kBad[uiItem] = BY_CALLER;
                m_kByExit[uiItem] = uiExit;
                bHasFound = true;
            }
        }
    }
    return bHasFound;
}

// --- Witnesses -------------------------------------------------------------------------------------------

/** @return the callers that make an item bad, down to a frame that any callers do for */
CPushdownRuns::Callers_t CPushdownRuns::GetCallers(std::uint32_t uiItem, std::uint32_t& uiOuterFrameOUT) const
{
    Callers_t kCallers;
    while (m_kBad[uiItem] == BY_CALLER)
    {
        std::uint32_t uiFrame = m_kPushdown.m_kItems[uiItem].m_uiFrame;
        std::uint32_t uiExit = m_kByExit[uiItem];
        Pushdown_t::Return_t kReturn;
        do
        {
            const std::uint32_t uiCaller = m_kBadExits[uiFrame][uiExit].m_uiCaller;
            const Pushdown_t::Frame_t& kFrame = m_kPushdown.m_kFrames[uiFrame];
            kCallers.insert(kCallers.begin(), {uiFrame, uiCaller});
            kReturn = kFrame.m_kReturns[uiCaller][uiExit];
            uiFrame = m_kPushdown.m_kItems[kFrame.m_kCallers[uiCaller].m_uiItem].m_uiFrame;
            uiExit = kReturn.m_uiTarget;
        } while (kReturn.m_eKind == Pushdown_t::Return_t::TO_EXIT);
        uiItem = kReturn.m_uiTarget;
    }
    uiOuterFrameOUT = m_kPushdown.m_kItems[uiItem].m_uiFrame;
    return kCallers;
}

Way_t CPushdownRuns::GetWay(std::uint32_t uiItem) const
{
    std::uint32_t uiFrame = 0;
    const Callers_t kCallers = GetCallers(uiItem, uiFrame);
    Way_t kWay = m_kPushdown.GetWay(uiFrame);
    const auto Append = [&kWay](const Way_t& kMore) { kWay.insert(kWay.end(), kMore.begin(), kMore.end()); };
    for (const Place_t& kPlace : kCallers)
    {
        const Pushdown_t::Caller_t& kCaller =
            m_kPushdown.m_kFrames[kPlace.m_uiFrame].m_kCallers[kPlace.m_uiCaller];
        Append(m_kPushdown.m_kItems[kCaller.m_uiItem].m_kWay);
        kWay.push_back(kCaller.m_uiStep);
    }
    Append(m_kPushdown.m_kItems[uiItem].m_kWay);
    return kWay;
}

/** Leaves a frame. @return false: its callers are not known, or times do not allow it */
eC_Bool CPushdownRuns::Leave(std::uint32_t uiExit, Callers_t& kCallers, std::uint32_t& uiItemOUT) const
{
    while (!kCallers.empty())
    {
        const Place_t kPlace = kCallers.back();
        kCallers.pop_back();
        const Pushdown_t::Return_t& kReturn =
            m_kPushdown.m_kFrames[kPlace.m_uiFrame].m_kReturns[kPlace.m_uiCaller][uiExit];
        if (kReturn.m_eKind != Pushdown_t::Return_t::TO_EXIT)
        {
            uiItemOUT = kReturn.m_uiTarget;
            return kReturn.m_eKind == Pushdown_t::Return_t::TO_ITEM;
        }
        uiExit = kReturn.m_uiTarget;
    }
    return false;
}

eC_Bool CPushdownRuns::IsBad(std::uint32_t uiItem, const Callers_t& kCallers) const
{
    if (m_kBad[uiItem] == BY_ITSELF || kCallers.empty() || !m_fnIsIn(m_kPushdown.m_kItems[uiItem].m_uiState))
    {
        return m_kBad[uiItem] == BY_ITSELF;
    }
    eC_Bool bIsBad = false;
    const std::uint32_t uiExits = m_kPushdown.m_kFrames[kCallers.back().m_uiFrame].m_uiExits;
    for (std::uint32_t uiExit = 0; uiExit < uiExits && !bIsBad; ++uiExit)
    {
        Callers_t kOuter = kCallers;
        std::uint32_t uiReturned = 0;
        bIsBad = m_kDistances.GetToExit(uiItem, uiExit) != cuiFar && Leave(uiExit, kOuter, uiReturned) &&
                 IsBad(uiReturned, kOuter);
    }
    return bIsBad;
}

/** Takes one step of time to a bad state. @return false: there is none */
eC_Bool CPushdownRuns::Step(std::uint32_t& uiItem, Callers_t& kCallers, Way_t& kRun) const
{
    for (const Pushdown_t::Edge_t& kEdge : m_kPushdown.m_kItems[uiItem].m_kEdges)
    {
        if (!IsTime(kEdge))
        {
            continue;
        }
        Callers_t kThen = kCallers;
        std::uint32_t uiNext = kEdge.m_uiTarget;
        if (kEdge.m_eKind == Pushdown_t::CALL)
        {
            kThen.push_back({kEdge.m_uiTarget, kEdge.m_uiCaller});
            uiNext = m_kPushdown.m_kFrames[kEdge.m_uiTarget].m_uiFirstItem;
        }
        if ((kEdge.m_eKind != Pushdown_t::EXIT || Leave(kEdge.m_uiTarget, kThen, uiNext)) &&
            IsBad(uiNext, kThen))
        {
            uiItem = uiNext;
            kCallers = kThen;
            kRun.push_back(kEdge.m_uiStep);
            return true;
        }
    }
    return false;
}

Way_t CPushdownRuns::GetRun(std::uint32_t uiItem, std::uint32_t& uiLastOUT, eC_Bool& bEndsOUT) const
{
    std::uint32_t uiFrame = 0;
    Callers_t kCallers = GetCallers(uiItem, uiFrame);
    std::map<std::uint32_t, std::size_t> kHeights; // of each item that was passed
    Way_t kRun;
    eC_Bool bGoesOn = true;
    while (bGoesOn && kHeights.emplace(uiItem, kCallers.size()).second)
    {
        bGoesOn = !Ends(uiItem) && Step(uiItem, kCallers, kRun);
        // What was passed with a longer history does not count as repeated.
        for (auto kHeight = kHeights.begin(); kHeight != kHeights.end();)
        {
            kHeight = kHeight->second > kCallers.size() ? kHeights.erase(kHeight) : std::next(kHeight);
        }
    }
    uiLastOUT = uiItem;
    bEndsOUT = Ends(uiItem);
    return kRun;
}
