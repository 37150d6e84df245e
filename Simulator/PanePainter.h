// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_PANEPAINTER_H
#define SIMULATOR_PANEPAINTER_H

/** @file
 *  The panes around a device, and of a program that one looks into.
 */

#include "Simulator/LineEditor.h"
#include "Simulator/TextScreen.h"
#include "Simulator/TracePane.h"

#include <string>
#include <vector>

/** Draws a frame of lines around an area, with a title in its upper edge, and clears the area. */
void DrawFrame(CTextScreen& kScreen, const GUIArea_t& kInside, const std::string& kTitle);

/** Draws a heading across an area's first row. */
void DrawHeading(CTextScreen& kScreen, const GUIArea_t& kArea, const std::string& kTitle);

/** Draws a heading and lines below it. @param iScroll how many of the first lines are not shown */
void DrawLines(CTextScreen& kScreen, const GUIArea_t& kArea, const std::string& kTitle,
               const std::vector<StyledLine_t>& kLines, eC_Int iScroll);

/** Draws a trace with its heading. @param fnOlder gives its items, the newest first */
void DrawTracePane(CTextScreen& kScreen, const GUIArea_t& kArea, const CTracePane& kPane,
                   const CTracePane::OlderItem_t& fnOlder);

/** Draws a line that is edited, so that its cursor can be seen. */
void DrawEditor(CTextScreen& kScreen, const CLineEditor& kEditor, eC_Int iX, eC_Int iY, eC_Int iColumns);
#endif
