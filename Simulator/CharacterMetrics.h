// SPDX-License-Identifier: MIT
#ifndef SIMULATOR_CHARACTERMETRICS_H
#define SIMULATOR_CHARACTERMETRICS_H

/** @file
 *  The sizes of widgets whose texts are characters of one width.
 */

#include "Widgets/GUIWidgetLayout.h"

/** Measures widgets in characters: a text is one line high and as wide as its characters; buttons and check
 *  boxes have room for their frame; bars, sliders and text fields are ten characters wide. All front ends of
 *  the simulator use these sizes, so that a touch recorded in one hits the same widget in another.
 */
class CCharacterMetrics : public CGUIWidgetMetrics
{
public:
    /** @param iColumnWidth, iRowHeight the size of a character in units of the display, at least 1 */
    CCharacterMetrics(eC_Int iColumnWidth, eC_Int iRowHeight)
        : m_iColumnWidth(iColumnWidth), m_iRowHeight(iRowHeight)
    {
    }

    void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override;

private:
    eC_Int m_iColumnWidth;
    eC_Int m_iRowHeight;
};

#endif
