// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/Timeline.h"

#include <algorithm>

namespace
{
constexpr std::uint64_t cuiColumnsPerMark = 12;

/** By EWhere. */
constexpr char cacSigns[] = {' ', '#', '=', '-', '.', '#', '~'};
constexpr char cacMarks[] = {'v', 'w', '!', 'E'};

/** @return where the columns of a time begin, so that what follows something begins where that ends */
std::uint64_t GetEdge(const Timeline_t& kTimeline, std::uint64_t uiTime, eC_UInt uiColumns)
{
    return (uiTime * uiColumns + kTimeline.m_uiLength / 2) / kTimeline.m_uiLength;
}

std::uint64_t GetColumn(const Timeline_t& kTimeline, std::uint64_t uiTime, eC_UInt uiColumns)
{
    return std::min<std::uint64_t>(GetEdge(kTimeline, uiTime, uiColumns), uiColumns - 1);
}

std::string PrintScale(const Timeline_t& kTimeline, eC_UInt uiColumns)
{
    const auto uiMost = static_cast<eC_UInt>(std::max<std::uint64_t>(uiColumns / cuiColumnsPerMark, 1));
    const std::uint64_t uiStep = GetScaleStep(kTimeline.m_uiLength, uiMost);
    std::string kLine(uiColumns, ' ');
    for (std::uint64_t uiTime = 0; uiTime < kTimeline.m_uiLength; uiTime += uiStep)
    {
        const std::string kMark = "|" + PrintScaleTime(uiTime, uiStep);
        const std::uint64_t uiColumn = GetColumn(kTimeline, uiTime, uiColumns);
        if (uiColumn + kMark.size() <= uiColumns)
        {
            kLine.replace(uiColumn, kMark.size(), kMark);
        }
    }
    return kLine;
}

/** What is shorter than a column has one, too. */
std::string PrintLane(const Timeline_t& kTimeline, const TimelineLane_t& kLane, eC_UInt uiColumns)
{
    std::string kLine(uiColumns, ' ');
    for (const TimelineSpan_t& kSpan : kLane.m_kSpans)
    {
        const std::uint64_t uiFrom = GetColumn(kTimeline, kSpan.m_uiFrom, uiColumns);
        const std::uint64_t uiTo = std::max(GetEdge(kTimeline, kSpan.m_uiTo, uiColumns), uiFrom + 1);
        for (std::uint64_t uiColumn = uiFrom; uiColumn < uiTo; ++uiColumn)
        {
            kLine[uiColumn] = cacSigns[kSpan.m_eWhere];
        }
    }
    return kLine;
}

std::string PrintMarks(const Timeline_t& kTimeline, eC_UInt uiColumns)
{
    std::string kLine(uiColumns, ' ');
    for (const TimelineMark_t& kMark : kTimeline.m_kMarks)
    {
        char& cMark = kLine[GetColumn(kTimeline, kMark.m_uiTime, uiColumns)];
        const auto* const pcBefore = std::find(std::begin(cacMarks), std::end(cacMarks), cMark);
        const eC_Bool bIsWorse = cMark == ' ' || pcBefore < cacMarks + kMark.m_eKind;
        cMark = bIsWorse ? cacMarks[kMark.m_eKind] : cMark;
    }
    return kLine;
}

void AddLine(std::string& kText, const std::string& kLine)
{
    kText += kLine.substr(0, kLine.find_last_not_of(' ') + 1) + "\n";
}

/** @return the lane's name with the priority of a popup */
std::string GetLabel(const TimelineLane_t& kLane)
{
    return kLane.m_kHandle.GetText() + (kLane.m_bIsPopup ? " " + std::to_string(kLane.m_uiPriority) : "");
}
} // namespace

std::string PrintTimeline(const Timeline_t& kTimeline, eC_UInt uiColumns)
{
    std::size_t uiLabel = 0;
    for (const TimelineLane_t& kLane : kTimeline.m_kLanes)
    {
        uiLabel = std::max(uiLabel, GetLabel(kLane).size());
    }
    const std::string kBefore(uiLabel + 1, ' ');
    std::string kText;
    AddLine(kText, kBefore + PrintScale(kTimeline, uiColumns));
    if (!kTimeline.m_kMarks.empty())
    {
        AddLine(kText, kBefore + PrintMarks(kTimeline, uiColumns));
    }
    for (const TimelineLane_t& kLane : kTimeline.m_kLanes)
    {
        const std::string kLabel = GetLabel(kLane);
        AddLine(kText, kLabel + std::string(uiLabel + 1 - kLabel.size(), ' ') +
                           PrintLane(kTimeline, kLane, uiColumns));
    }
    kText += "\n# current, or a popup that is shown   = still visible below   - hidden   . deleted, to be "
             "made again\n"
             "~ a popup that waits   v input   w warning   ! hazard   E error\n";
    for (const TimelineMark_t& kMark : kTimeline.m_kMarks)
    {
        kText +=
            std::to_string(kMark.m_uiTime) + " ms " + cacMarks[kMark.m_eKind] + " " + kMark.m_kText + "\n";
    }
    return kText;
}
