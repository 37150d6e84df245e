// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/Timeline.h"

#include <algorithm>

namespace
{
constexpr eC_UInt cuiMostForward = 0x7FFFFFFFU; ///< milliseconds; more is a clock that goes back

/** @return the text without line breaks at its end, and with blanks for those inside */
std::string PutInOneLine(std::string kText)
{
    kText.erase(kText.find_last_not_of('\n') + 1);
    std::replace(kText.begin(), kText.end(), '\n', ' ');
    return kText;
}

eC_Bool IsInHistory(const CInspectedState& kState, ObjectHandle_t eID)
{
    const std::vector<InspectedItem_t>& kHistory = kState.GetItems(PART_HISTORY);
    return std::any_of(kHistory.begin(), kHistory.end(),
                       [eID](const InspectedItem_t& kEntry) { return kEntry.m_kHandle.m_eID == eID; });
}

EWhere FindInTree(const CInspectedState& kState, ObjectHandle_t eID)
{
    for (const InspectedItem_t& kObject : kState.GetItems(PART_TREE))
    {
        if (kObject.m_kHandle.m_eID == eID)
        {
            return kObject.m_bIsInvisible ? WHERE_HIDDEN : WHERE_BELOW;
        }
    }
    return WHERE_DELETED;
}
} // namespace

std::string CTimelineBuilder::Take(const std::string& kBytes)
{
    const std::string kError = m_kReader.Take(kBytes);
    return kError.empty() ? m_kError : kError;
}

Timeline_t CTimelineBuilder::Finish()
{
    // What the last line told is to be seen, too.
    constexpr std::uint64_t cuiPieces = 40;
    const std::uint64_t uiRest = std::max<std::uint64_t>(m_uiTime / cuiPieces, 1);
    m_kTimeline.m_uiLength = m_uiTime + uiRest;
    for (TimelineLane_t& kLane : m_kTimeline.m_kLanes)
    {
        if (!kLane.m_kSpans.empty() && kLane.m_kSpans.back().m_uiTo == m_uiTime)
        {
            kLane.m_kSpans.back().m_uiTo += uiRest;
        }
        kLane.m_kSpans.erase(std::remove_if(kLane.m_kSpans.begin(), kLane.m_kSpans.end(),
                                            [](const TimelineSpan_t& kSpan)
                                            { return kSpan.m_eWhere == WHERE_NOWHERE; }),
                             kLane.m_kSpans.end());
    }
    std::vector<TimelineLane_t>& kLanes = m_kTimeline.m_kLanes;
    kLanes.erase(std::remove_if(kLanes.begin(), kLanes.end(),
                                [](const TimelineLane_t& kLane) { return kLane.m_kSpans.empty(); }),
                 kLanes.end());
    std::stable_partition(kLanes.begin(), kLanes.end(),
                          [](const TimelineLane_t& kLane) { return !kLane.m_bIsPopup; });
    return m_kTimeline;
}

void CTimelineBuilder::OnLine(const InspectedLine_t& kLine)
{
    GoOn(kLine.m_uiTime);
    if (kLine.m_eType == LINE_STATE)
    {
        KeepState();
    }
    const eC_Bool bIsHazard = kLine.m_kLevel == "HAZARD";
    if (kLine.m_eType == LINE_INPUT)
    {
        m_kTimeline.m_kMarks.push_back({TimelineMark_t::INPUT, m_uiTime, kLine.m_kText});
    }
    else if (kLine.m_kLevel == "ERROR" || kLine.m_kLevel == "WARNING" || bIsHazard)
    {
        const auto eKind = bIsHazard                   ? TimelineMark_t::HAZARD
                           : kLine.m_kLevel == "ERROR" ? TimelineMark_t::ERROR
                                                       : TimelineMark_t::WARNING;
        const std::string kAbout = bIsHazard ? kLine.m_kHazard + " " + kLine.m_kAbout.GetText() + ": " : "";
        m_kTimeline.m_kMarks.push_back({eKind, m_uiTime, kAbout + PutInOneLine(kLine.m_kText)});
    }
}

void CTimelineBuilder::GoOn(eC_UInt uiTime)
{
    const eC_UInt uiPassed = m_bHasBegun ? uiTime - m_uiClock : 0;
    if (uiPassed > cuiMostForward)
    {
        m_kError = m_kError.empty()
                       ? "line " + std::to_string(m_kReader.GetLines()) + ": time: expected at least " +
                             std::to_string(m_uiClock) + ", found " + std::to_string(uiTime) +
                             "; the program was started again: give each run a file of its own"
                       : m_kError;
        return;
    }
    m_bHasBegun = true;
    m_uiClock = uiTime;
    if (uiPassed > 0)
    {
        m_uiTime += uiPassed;
        for (TimelineLane_t& kLane : m_kTimeline.m_kLanes)
        {
            kLane.m_kSpans.back().m_uiTo = m_uiTime;
        }
    }
}

/** Puts each dialog and popup where it is now. */
void CTimelineBuilder::KeepState()
{
    const CInspectedState& kState = m_kReader.GetState();
    for (const EInspectedPart ePart : {PART_CURRENT, PART_HISTORY})
    {
        for (const InspectedItem_t& kDialog : kState.GetItems(ePart))
        {
            if (kDialog.m_kHandle.m_eID != NO_HANDLE)
            {
                GetLane(kDialog, false);
            }
        }
    }
    for (const InspectedItem_t& kPopup : kState.GetItems(PART_ACTIVE))
    {
        if (!kPopup.m_bIsGone)
        {
            TimelineLane_t& kLane = GetLane(kPopup, true);
            kLane.m_uiPriority = kPopup.m_uiPriority;
        }
    }
    for (TimelineLane_t& kLane : m_kTimeline.m_kLanes)
    {
        EWhere eWhere = kLane.m_bIsPopup ? WHERE_NOWHERE : FindDialog(kLane.m_kHandle);
        for (const InspectedItem_t& kPopup : kState.GetItems(PART_ACTIVE))
        {
            if (kLane.m_bIsPopup && !kPopup.m_bIsGone && kPopup.m_kHandle.m_eID == kLane.m_kHandle.m_eID)
            {
                eWhere = kPopup.m_bIsShown ? WHERE_SHOWN : WHERE_WAITING;
            }
        }
        Put(kLane, eWhere);
    }
}

TimelineLane_t& CTimelineBuilder::GetLane(const InspectedItem_t& kItem, eC_Bool bIsPopup)
{
    std::vector<TimelineLane_t>& kLanes = m_kTimeline.m_kLanes;
    const auto kFound = std::find_if(kLanes.begin(), kLanes.end(),
                                     [&](const TimelineLane_t& kLane) {
                                         return kLane.m_bIsPopup == bIsPopup &&
                                                kLane.m_kHandle.m_eID == kItem.m_kHandle.m_eID;
                                     });
    if (kFound != kLanes.end())
    {
        return *kFound;
    }
    kLanes.push_back({kItem.m_kHandle, bIsPopup, 0, {{WHERE_NOWHERE, 0, m_uiTime}}});
    return kLanes.back();
}

void CTimelineBuilder::Put(TimelineLane_t& kLane, EWhere eWhere)
{
    std::vector<TimelineSpan_t>& kSpans = kLane.m_kSpans;
    // What was there at this moment has lasted no time.
    if (kSpans.size() > 1 && kSpans.back().m_uiFrom == m_uiTime)
    {
        kSpans.pop_back();
    }
    if (kSpans.back().m_eWhere != eWhere)
    {
        kSpans.push_back({eWhere, m_uiTime, m_uiTime});
    }
}

EWhere CTimelineBuilder::FindDialog(const InspectedHandle_t& kHandle) const
{
    const CInspectedState& kState = m_kReader.GetState();
    const std::vector<InspectedItem_t>& kCurrent = kState.GetItems(PART_CURRENT);
    if (!kCurrent.empty() && kCurrent.front().m_kHandle.m_eID == kHandle.m_eID)
    {
        return WHERE_CURRENT;
    }
    return IsInHistory(kState, kHandle.m_eID) ? FindInTree(kState, kHandle.m_eID) : WHERE_NOWHERE;
}

std::uint64_t GetScaleStep(std::uint64_t uiLength, eC_UInt uiMost)
{
    std::uint64_t uiStep = 1;
    // 1, 2, 5, 10, 20, 50 ...
    for (eC_UInt uiPlace = 0; uiLength / uiStep > uiMost; ++uiPlace)
    {
        uiStep = uiPlace % 3 == 1 ? uiStep / 2 * 5 : uiStep * 2;
    }
    return uiStep;
}

std::string PrintScaleTime(std::uint64_t uiTime, std::uint64_t uiStep)
{
    constexpr std::uint64_t cuiSecond = 1000;
    if (uiStep < cuiSecond / 10)
    {
        return std::to_string(uiTime) + " ms";
    }
    const std::string kTenths = uiStep < cuiSecond ? "." + std::to_string(uiTime % cuiSecond / 100) : "";
    return std::to_string(uiTime / cuiSecond) + kTenths + " s";
}
