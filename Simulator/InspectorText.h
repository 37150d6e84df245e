// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_INSPECTORTEXT_H
#define SIMULATOR_INSPECTORTEXT_H

/** @file
 *  The state of an application as short lines, for a narrow pane.
 */

#include "Inspection/InspectedState.h"
#include "Simulator/TextScreen.h"

#include <string>
#include <vector>

/** A line of a pane. */
struct StyledLine_t
{
    std::string m_kText;
    ETextStyle m_eStyle;
};

/** Which sections of a state are described. */
enum EStateColumns : unsigned char
{
    COLUMNS_ALL,      ///< all, one below the other
    COLUMN_SITUATION, ///< where the user is: dialog, history, popups, focus, timers, and what the application
                      ///< adds
    COLUMN_OBJECTS    ///< what there is: the tree, the definitions and the dynamic identifiers
};

/** @param uiTime now, by the clock from which the state's times are counted
 *  @return a state in sections with a heading each (STYLE_STRONG): the current dialog, the history with the
 *          most recent entry first, the popups, what has the focus and what gets it back, the tree, timers,
 *          definitions, dynamic identifiers, and the times of hooks and the heap if there are any
 */
std::vector<StyledLine_t> DescribeState(const CInspectedState& kState, eC_UInt uiTime,
                                        EStateColumns eColumns = COLUMNS_ALL);

/** @return everything that the inspector reads, in the same way */
std::vector<StyledLine_t> DescribeState(const CGUIInspector& kInspector);

/** @return a time as "12.345" */
std::string FormatSeconds(eC_UInt uiMilliseconds);

/** @return the names of the definitions and of what the state refers to, each once: dialogs, popups and the
 *          objects under the root. They are what a form offers.
 */
struct StateNames_t
{
    std::vector<std::string> m_kDialogs; ///< defined, then current and remembered ones that are not
    std::vector<std::string> m_kPopups;  ///< defined, then listed ones that are not
    std::vector<std::string> m_kObjects; ///< in drawing order
    std::vector<std::string> m_kPaths;   ///< of the definitions, in quotes
};

StateNames_t CollectNames(const CGUIInspector& kInspector);

#endif
