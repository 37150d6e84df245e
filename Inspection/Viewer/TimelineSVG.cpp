// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/SVG.h"
#include "Inspection/Viewer/Timeline.h"

#include <algorithm>

namespace
{
constexpr std::uint64_t cuiWidth = 880; ///< all measures are pixels
constexpr std::uint64_t cuiMargin = 16;
constexpr std::uint64_t cuiLane = 26;
constexpr std::uint64_t cuiBar = 16;
constexpr std::uint64_t cuiLabelRow = 18;
constexpr std::uint64_t cuiBaseLine = 17; ///< of the text in a lane
constexpr eC_UInt cuiMostScaleMarks = 10;
constexpr std::size_t cuiMostLabelRows = 8;
constexpr std::size_t cuiLongestName = 40;

struct Look_t
{
    const char* m_pcClass;
    const char* m_pcMeaning;
};

/** By EWhere. */
constexpr Look_t cakLooks[] = {{"", ""},
                               {"strong", "current"},
                               {"medium", "visible below"},
                               {"weak", "hidden"},
                               {"outline", "deleted, to be made again"},
                               {"popup", "popup shown"},
                               {"waiting", "popup waiting"}};

std::string GetLabel(const TimelineLane_t& kLane)
{
    const std::string kName = kLane.m_kHandle.GetText().substr(0, cuiLongestName);
    return kName + (kLane.m_bIsPopup ? "  " + std::to_string(kLane.m_uiPriority) : "");
}

/** Draws a time line from the top down. */
class CDrawing
{
public:
    explicit CDrawing(const Timeline_t& kTimeline) : m_kTimeline(kTimeline), m_kPicture(cuiWidth)
    {
        std::size_t uiLongest = 0;
        for (const TimelineLane_t& kLane : kTimeline.m_kLanes)
        {
            uiLongest = std::max(uiLongest, GetLabel(kLane).size());
        }
        m_uiLeft = 2 * cuiMargin + uiLongest * CSVG::cuiCharacterWidth;
    }

    std::string Draw()
    {
        PlaceInputLabels();
        m_uiTop = cuiMargin + m_uiLabelRows * cuiLabelRow + (m_uiLabelRows == 0 ? 0 : cuiMargin / 2);
        m_uiBottom = m_uiTop + m_kTimeline.m_kLanes.size() * cuiLane;
        DrawRows();
        DrawScale();
        DrawInputs();
        DrawLanes();
        DrawFaults();
        return m_kPicture.Finish(DrawLegend(), "Dialogs and popups of a run over time");
    }

private:
    std::uint64_t GetX(std::uint64_t uiTime) const
    {
        return m_uiLeft + uiTime * (cuiWidth - cuiMargin - m_uiLeft) / m_kTimeline.m_uiLength;
    }

    /** Finds a row for the label of each input: above those of the later inputs that begin below it, so that
     *  no line down from a label crosses another one.
     */
    void PlaceInputLabels()
    {
        for (auto kMark = m_kTimeline.m_kMarks.rbegin(); kMark != m_kTimeline.m_kMarks.rend(); ++kMark)
        {
            if (kMark->m_eKind == TimelineMark_t::INPUT)
            {
                PlaceInputLabel(*kMark);
            }
        }
    }

    void PlaceInputLabel(const TimelineMark_t& kMark)
    {
        const std::uint64_t uiEnd =
            GetX(kMark.m_uiTime) + (kMark.m_kText.size() + 2) * CSVG::cuiCharacterWidth;
        Input_t kInput = {&kMark, 0, uiEnd <= cuiWidth};
        for (const Input_t& kLater : m_kInputs)
        {
            if (kLater.m_bHasLabel && GetX(kLater.m_pkMark->m_uiTime) < uiEnd)
            {
                kInput.m_uiRow = std::max(kInput.m_uiRow, kLater.m_uiRow + 1);
            }
        }
        kInput.m_bHasLabel = kInput.m_bHasLabel && kInput.m_uiRow < cuiMostLabelRows;
        m_uiLabelRows = std::max(m_uiLabelRows, kInput.m_bHasLabel ? kInput.m_uiRow + 1 : 0);
        m_kInputs.push_back(kInput);
    }

    void DrawRows()
    {
        for (std::size_t uiLane = 0; uiLane < m_kTimeline.m_kLanes.size(); uiLane += 2)
        {
            m_kPicture.Box("row", cuiMargin / 2, m_uiTop + uiLane * cuiLane, cuiWidth - cuiMargin, cuiLane,
                           4);
        }
    }

    void DrawScale()
    {
        const std::uint64_t uiStep = GetScaleStep(m_kTimeline.m_uiLength, cuiMostScaleMarks);
        for (std::uint64_t uiTime = 0; uiTime < m_kTimeline.m_uiLength; uiTime += uiStep)
        {
            m_kPicture.Line("grid", GetX(uiTime), m_uiTop, GetX(uiTime), m_uiBottom + 4);
            m_kPicture.Text("quiet", GetX(uiTime), m_uiBottom + cuiLabelRow, PrintScaleTime(uiTime, uiStep));
        }
    }

    void DrawInputs()
    {
        for (const Input_t& kInput : m_kInputs)
        {
            const std::uint64_t uiX = GetX(kInput.m_pkMark->m_uiTime);
            m_kPicture.Line("grid", uiX, m_uiTop, uiX, m_uiBottom);
            if (kInput.m_bHasLabel)
            {
                const std::uint64_t uiY = m_uiTop - cuiMargin / 2 - kInput.m_uiRow * cuiLabelRow;
                m_kPicture.Line("frame", uiX, uiY - 8, uiX, m_uiTop);
                m_kPicture.Text("text", uiX + 4, uiY, kInput.m_pkMark->m_kText);
            }
        }
    }

    void DrawLanes()
    {
        std::uint64_t uiY = m_uiTop;
        for (const TimelineLane_t& kLane : m_kTimeline.m_kLanes)
        {
            m_kPicture.Text("text", cuiMargin, uiY + cuiBaseLine, GetLabel(kLane));
            for (const TimelineSpan_t& kSpan : kLane.m_kSpans)
            {
                const std::uint64_t uiX = GetX(kSpan.m_uiFrom);
                const std::uint64_t uiLength = std::max<std::uint64_t>(GetX(kSpan.m_uiTo) - uiX, 2);
                m_kPicture.Box(cakLooks[kSpan.m_eWhere].m_pcClass, uiX, uiY + (cuiLane - cuiBar) / 2,
                               uiLength, cuiBar, 3,
                               kLane.m_kHandle.GetText() + ": " + cakLooks[kSpan.m_eWhere].m_pcMeaning +
                                   ", " + std::to_string(kSpan.m_uiFrom) + " to " +
                                   std::to_string(kSpan.m_uiTo) + " ms");
            }
            uiY += cuiLane;
        }
    }

    void DrawFaults()
    {
        for (const TimelineMark_t& kMark : m_kTimeline.m_kMarks)
        {
            if (kMark.m_eKind > TimelineMark_t::WARNING)
            {
                m_kPicture.Line("bad", GetX(kMark.m_uiTime), m_uiTop, GetX(kMark.m_uiTime), m_uiBottom);
                m_kPicture.Dot("bad", GetX(kMark.m_uiTime), m_uiBottom, 4,
                               std::to_string(kMark.m_uiTime) + " ms: " + kMark.m_kText);
            }
        }
    }

    /** @return the height of the picture */
    std::uint64_t DrawLegend()
    {
        const std::uint64_t uiY = m_uiBottom + 2 * cuiLabelRow;
        std::uint64_t uiX = cuiMargin;
        for (std::size_t uiLook = WHERE_CURRENT; uiLook < std::size(cakLooks); ++uiLook)
        {
            const std::string kMeaning = cakLooks[uiLook].m_pcMeaning;
            m_kPicture.Box(cakLooks[uiLook].m_pcClass, uiX, uiY, cuiBar, cuiBar - 4, 3);
            m_kPicture.Text("quiet", uiX + cuiBar + 6, uiY + cuiBar - 6, kMeaning);
            uiX += cuiBar + 6 + (kMeaning.size() + 2) * CSVG::cuiCharacterWidth;
        }
        return uiY + cuiBar + cuiMargin / 2;
    }

    struct Input_t
    {
        const TimelineMark_t* m_pkMark;
        std::size_t m_uiRow;
        eC_Bool m_bHasLabel; ///< only where there is room for it
    };

    const Timeline_t& m_kTimeline;
    CSVG m_kPicture;
    std::vector<Input_t> m_kInputs; ///< the last one first
    std::size_t m_uiLabelRows = 0;
    std::uint64_t m_uiLeft = 0;
    std::uint64_t m_uiTop = 0;
    std::uint64_t m_uiBottom = 0;
};
} // namespace

std::string DrawTimeline(const Timeline_t& kTimeline)
{
    return CDrawing(kTimeline).Draw();
}
