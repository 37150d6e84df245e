// SPDX-License-Identifier: MIT
#include "Flow/Check/StateSpace.h"

#include <algorithm>
#include <map>

std::uint32_t CTextNumbers::Get(const std::string& kText)
{
    const auto kPlace = m_kNumbers.emplace(kText, static_cast<std::uint32_t>(m_kTexts.size()));
    if (kPlace.second)
    {
        m_kTexts.push_back(&kPlace.first->first);
    }
    return kPlace.first->second;
}

std::uint32_t CStacks::Push(std::uint32_t uiStack, std::uint32_t uiSymbol)
{
    const std::uint64_t uiKey = (std::uint64_t(uiStack) << 32U) | uiSymbol;
    const auto kPlace = m_kNumbers.emplace(uiKey, static_cast<std::uint32_t>(m_kTops.size()));
    if (kPlace.second)
    {
        m_kTops.push_back({uiStack, uiSymbol, GetHeight(uiStack) + 1});
    }
    return kPlace.first->second;
}

std::uint32_t CStacks::CutTo(std::uint32_t uiStack, eC_UInt uiHeight) const
{
    while (GetHeight(uiStack) > uiHeight)
    {
        uiStack = Pop(uiStack);
    }
    return uiStack;
}

Way_t Pushdown_t::GetWay(std::uint32_t uiFrame) const
{
    // Backwards, breadth-first, from the frame to frame 0.
    std::vector<const Caller_t*> kNext(m_kFrames.size(), nullptr);
    std::vector<std::uint32_t> kInner(m_kFrames.size(), uiFrame);
    std::vector<std::uint32_t> kQueue = {uiFrame};
    for (std::size_t uiOn = 0; uiOn < kQueue.size() && kQueue[uiOn] != 0; ++uiOn)
    {
        for (const Caller_t& kCaller : m_kFrames[kQueue[uiOn]].m_kCallers)
        {
            const std::uint32_t uiOuter = m_kItems[kCaller.m_uiItem].m_uiFrame;
            if (kNext[uiOuter] == nullptr && uiOuter != uiFrame)
            {
                kNext[uiOuter] = &kCaller;
                kInner[uiOuter] = kQueue[uiOn];
                kQueue.push_back(uiOuter);
            }
        }
    }
    Way_t kWay;
    for (std::uint32_t uiOn = 0; uiOn != uiFrame; uiOn = kInner[uiOn])
    {
        const Way_t& kInside = m_kItems[kNext[uiOn]->m_uiItem].m_kWay;
        kWay.insert(kWay.end(), kInside.begin(), kInside.end());
        kWay.push_back(kNext[uiOn]->m_uiStep);
    }
    return kWay;
}

std::vector<std::uint32_t> StateSpace_t::GetStates(std::uint32_t uiState) const
{
    std::vector<std::uint32_t> kStates;
    for (std::uint32_t uiOn = uiState; uiOn != cuiNoState; uiOn = m_kStates[uiOn].m_uiParent)
    {
        kStates.push_back(uiOn);
    }
    std::reverse(kStates.begin(), kStates.end());
    return kStates;
}

std::vector<std::uint16_t> StateSpace_t::GetPath(std::uint32_t uiState) const
{
    std::vector<std::uint16_t> kInputs;
    for (const std::uint32_t uiOn : GetStates(uiState))
    {
        if (m_kStates[uiOn].m_uiParent != cuiNoState)
        {
            kInputs.push_back(m_kStates[uiOn].m_uiInput);
        }
    }
    return kInputs;
}

eC_UInt StateSpace_t::CountCommon(std::uint32_t uiHistory, std::uint32_t uiOther) const
{
    const eC_UInt uiLower = std::min(m_kHistories.GetHeight(uiHistory), m_kHistories.GetHeight(uiOther));
    uiHistory = m_kHistories.CutTo(uiHistory, uiLower);
    uiOther = m_kHistories.CutTo(uiOther, uiLower);
    while (uiHistory != uiOther)
    {
        uiHistory = m_kHistories.Pop(uiHistory);
        uiOther = m_kHistories.Pop(uiOther);
    }
    return m_kHistories.GetHeight(uiHistory);
}

eC_Bool TakeStep(CZone& kZone, const CheckedInput_t& kInput, const TimerChanges_t& kChanges)
{
    const eC_Bool bIsPossible =
        kInput.m_eKind == CheckedInput_t::EXPIRY
            ? kZone.ElapseUntilExpiry(kInput.m_uiNumber, kChanges.m_kExpired.size() > 1)
            : kZone.ElapseUntilKey();
    if (!bIsPossible)
    {
        return false;
    }
    for (const eC_UInt uiExpired : kChanges.m_kExpired)
    {
        kZone.Stop(uiExpired);
    }
    for (const eC_UInt uiStopped : kChanges.m_kStopped)
    {
        kZone.Stop(uiStopped);
    }
    for (const CZone::Clock_t& kStarted : kChanges.m_kStarted)
    {
        kZone.Start(kStarted);
    }
    return true;
}

namespace
{
/** A moment is at least so much later than another one. */
struct Distance_t
{
    std::size_t m_uiFrom;
    std::size_t m_uiTo;
    std::int64_t m_iLeast;
};

/** Collects what the timers demand of the moments of the steps. */
class CMoments
{
public:
    void AddStep(std::size_t uiMoment, const TimerChanges_t& kChanges)
    {
        Expire(uiMoment, kChanges.m_kExpired);
        for (const eC_UInt uiStopped : kChanges.m_kStopped)
        {
            EndBefore(uiStopped, uiMoment, 1);
        }
        for (const CZone::Clock_t& kStarted : kChanges.m_kStarted)
        {
            EndBefore(kStarted.m_uiID, uiMoment, 1);
            m_kRuns[kStarted.m_uiID] = {uiMoment, std::int64_t(kStarted.m_uiDuration)};
        }
    }

    /** Adds the last moment. All timers that run and do not expire then run on. */
    void End(std::size_t uiLast, const std::vector<eC_UInt>& kExpired, eC_Bool bMayTie)
    {
        Expire(uiLast, kExpired);
        while (!m_kRuns.empty())
        {
            EndBefore(m_kRuns.begin()->first, uiLast, bMayTie ? 0 : 1);
        }
    }

    std::vector<Distance_t> m_kDistances;

private:
    struct Run_t
    {
        std::size_t m_uiStart;
        std::int64_t m_iDuration;
    };

    void Expire(std::size_t uiMoment, const std::vector<eC_UInt>& kExpired)
    {
        for (const eC_UInt uiExpired : kExpired)
        {
            const Run_t& kRun = m_kRuns[uiExpired];
            m_kDistances.push_back({kRun.m_uiStart, uiMoment, kRun.m_iDuration});
            m_kDistances.push_back({uiMoment, kRun.m_uiStart, -kRun.m_iDuration});
            m_kRuns.erase(uiExpired);
        }
    }

    void EndBefore(eC_UInt uiTimer, std::size_t uiMoment, std::int64_t iLeft)
    {
        const auto kRun = m_kRuns.find(uiTimer);
        if (kRun != m_kRuns.end())
        {
            m_kDistances.push_back({uiMoment, kRun->second.m_uiStart, iLeft - kRun->second.m_iDuration});
            m_kRuns.erase(kRun);
        }
    }

    std::map<eC_UInt, Run_t> m_kRuns;
};
} // namespace

eC_Bool FindPauses(const std::vector<const TimerChanges_t*>& kChanges, const std::vector<eC_UInt>& kExpired,
                   eC_Bool bMayTie, eC_UInt uiLeastPause, std::vector<eC_UInt>& kPausesOUT)
{
    // The earliest moments that keep all distances: longest paths, by the algorithm of Bellman and Ford.
    const std::size_t uiLast = kChanges.size();
    CMoments kMoments;
    for (std::size_t uiMoment = 1; uiMoment <= uiLast; ++uiMoment)
    {
        kMoments.m_kDistances.push_back({uiMoment - 1, uiMoment, std::int64_t(uiLeastPause)});
    }
    for (std::size_t uiMoment = 0; uiMoment < uiLast; ++uiMoment)
    {
        kMoments.AddStep(uiMoment, *kChanges[uiMoment]);
    }
    kMoments.End(uiLast, kExpired, bMayTie);
    std::vector<std::int64_t> kTimes(uiLast + 1, 0);
    eC_Bool bHasChanged = true;
    for (std::size_t uiRound = 0; bHasChanged; ++uiRound)
    {
        if (uiRound > uiLast + 1)
        {
            return false;
        }
        bHasChanged = false;
        for (const Distance_t& kDistance : kMoments.m_kDistances)
        {
            const std::int64_t iEarliest = kTimes[kDistance.m_uiFrom] + kDistance.m_iLeast;
            if (kTimes[kDistance.m_uiTo] < iEarliest)
            {
                kTimes[kDistance.m_uiTo] = iEarliest;
                bHasChanged = true;
            }
        }
    }
    kPausesOUT.clear();
    for (std::size_t uiMoment = 1; uiMoment <= uiLast; ++uiMoment)
    {
        kPausesOUT.push_back(static_cast<eC_UInt>(kTimes[uiMoment] - kTimes[uiMoment - 1]));
    }
    return kTimes[0] == 0;
}
