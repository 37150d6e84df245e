// SPDX-License-Identifier: MIT
#ifndef INSPECTION_VIEWER_TIMELINE_H
#define INSPECTION_VIEWER_TIMELINE_H

/** @file
 *  A run as a time line: when each dialog and each popup was where.
 */

#include "Inspection/Viewer/InspectionReader.h"

#include <cstdint>
#include <string>
#include <vector>

/** Where a dialog or a popup was for some time. */
enum EWhere : unsigned char
{
    WHERE_NOWHERE,
    WHERE_CURRENT, ///< the current dialog
    WHERE_BELOW,   ///< in the history, and still to be seen below the current dialog
    WHERE_HIDDEN,  ///< in the history, in memory but invisible
    WHERE_DELETED, ///< in the history, to be made again
    WHERE_SHOWN,   ///< a popup that is shown
    WHERE_WAITING  ///< a popup that is listed, and waits for more important ones
};

/** A part of a lane. The time counts from the beginning of the run, in milliseconds. */
struct TimelineSpan_t
{
    EWhere m_eWhere;
    std::uint64_t m_uiFrom;
    std::uint64_t m_uiTo;
};

/** The lane of one dialog or popup. */
struct TimelineLane_t
{
    InspectedHandle_t m_kHandle;
    eC_Bool m_bIsPopup;
    eC_UInt m_uiPriority;                 ///< of a popup
    std::vector<TimelineSpan_t> m_kSpans; ///< in order; where there is none, it is nowhere
};

/** Something that happened at one moment. */
struct TimelineMark_t
{
    enum EKind : unsigned char
    {
        INPUT,
        WARNING,
        HAZARD,
        ERROR
    };

    EKind m_eKind;
    std::uint64_t m_uiTime;
    std::string m_kText; ///< in one line
};

/** A run. */
struct Timeline_t
{
    std::vector<TimelineLane_t> m_kLanes; ///< dialogs, then popups, each in order of appearance
    std::vector<TimelineMark_t> m_kMarks; ///< in order
    std::uint64_t m_uiLength = 0;         ///< milliseconds
};

/** Collects a time line from the lines of an inspection. What lasts no time, because it came and went in one
 *  moment of the program's clock, is left out.
 */
class CTimelineBuilder : private CInspectedLineListener
{
public:
    CTimelineBuilder() : m_kReader(this) {}

    /** Takes bytes. @return empty, or what is wrong with which line */
    std::string Take(const std::string& kBytes);

    /** @return true if the last line is not complete */
    eC_Bool IsInLine() const { return m_kReader.IsInLine(); }

    /** @return how many lines there were */
    eC_UInt GetLines() const { return m_kReader.GetLines(); }

    /** @return the time line, to the last line */
    Timeline_t Finish();

private:
    void OnLine(const InspectedLine_t& kLine) override;
    void GoOn(eC_UInt uiTime);
    void KeepState();
    TimelineLane_t& GetLane(const InspectedItem_t& kItem, eC_Bool bIsPopup);
    void Put(TimelineLane_t& kLane, EWhere eWhere);
    EWhere FindDialog(const InspectedHandle_t& kHandle) const;

    CInspectionReader m_kReader;
    Timeline_t m_kTimeline;
    eC_Bool m_bHasBegun = false;
    eC_UInt m_uiClock = 0;      ///< of the program at the last line
    std::uint64_t m_uiTime = 0; ///< of the last line, since the beginning
    std::string m_kError;
};

/** Prints a time line with a column for each piece of time and a line for each lane.
 *  @param uiColumns how many columns the time has, at least 10
 */
std::string PrintTimeline(const Timeline_t& kTimeline, eC_UInt uiColumns);

/** Draws a time line as a picture that suits light and dark pages. @return a document of SVG */
std::string DrawTimeline(const Timeline_t& kTimeline);

/** @return the distance of the marks of a scale: 1, 2 or 5 times a power of ten, so that the length has at
 *          most uiMost of them
 */
std::uint64_t GetScaleStep(std::uint64_t uiLength, eC_UInt uiMost);

/** @return a time as a scale has it: "0 s", "1.5 s", "250 ms" */
std::string PrintScaleTime(std::uint64_t uiTime, std::uint64_t uiStep);

#endif
