// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_TRACEPANE_H
#define SIMULATOR_TRACEPANE_H

/** @file
 *  What is shown of a trace: by level and by text, newest or older entries.
 */

#include "Simulator/InspectorText.h"

#include <functional>
#include <string>
#include <vector>

/** Something that happened, as a line of the pane. */
struct TraceItem_t
{
    /** What has happened. */
    enum EKind : unsigned char
    {
        ENTRY,   ///< of the trace
        INPUT,   ///< a line of a scenario
        COMMENT, ///< likewise, that does nothing; and what a program says about itself
        RESULT,  ///< of a line
        REFUSAL  ///< of a line
    };

    EKind m_eKind = ENTRY; ///< what it is
    std::string m_kLevel;  ///< of an entry: "ERROR"
    std::string m_kText;   ///< may end in a line break
    eC_UInt m_uiTime = 0;  ///< of an entry, in milliseconds
};

/** Says which part of a trace is shown. */
class CTracePane
{
public:
    /** Which entries are shown. */
    enum ELevel : unsigned char
    {
        LEVEL_ALL,      ///< with the lines of the session between them
        LEVEL_WARNINGS, ///< warnings, hazards and errors, and refused lines
        LEVEL_ERRORS,   ///< errors, and refused lines
        NOF_LEVELS
    };

    /** Gives the next older item, from the newest to the oldest. @return false if there is none */
    using OlderItem_t = std::function<eC_Bool(TraceItem_t& kItemOUT)>;

    /** Shows only what contains a text, whatever its case, from its newest item on. */
    void SetFilter(const std::string& kFilter);
    const std::string& GetFilter() const { return m_kFilter; } ///< @return the text, empty for none

    /** Goes to the next level, from its newest item on. */
    void ChangeLevel();

    /** Scrolls. @param iLines to older items; negative: to newer ones
     *  @param uiMost how many items there are
     */
    void Scroll(eC_Int iLines, std::size_t uiMost);
    void ScrollToNewest() { m_iScroll = 0; }       ///< Shows the newest item at the bottom.
    eC_Int GetScroll() const { return m_iScroll; } ///< @return how many of the newest items are not shown

    /** @return whether an item passes the filter */
    eC_Bool IsShown(const TraceItem_t& kItem) const;

    /** @return what is shown: "trace: errors, with 'hook', 5 newer below" */
    std::string GetHeading() const;

    /** @param uiRows how many lines there is room for
     *  @return the lines, oldest first. A message's class and its line breaks are left out.
     */
    std::vector<StyledLine_t> Describe(std::size_t uiRows, const OlderItem_t& fnOlder) const;

private:
    ELevel m_eLevel = LEVEL_ALL;
    std::string m_kFilter;
    eC_Int m_iScroll = 0;
};

#endif
