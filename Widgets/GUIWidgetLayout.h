// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETLAYOUT_H
#define WIDGETS_GUIWIDGETLAYOUT_H

/** @file
 *  Where widgets lie on a display.
 */

#include "Widgets/GUIWidget.h"

class CGUIWidgetVisitor;

/** What only a front end knows: the room that contents take in its fonts and pictures. */
class CGUIWidgetMetrics
{
public:
    /** Measures a widget of which the width or the height is CGUIWidget::ciNatural.
     *  @param kWidget it is not a screen, popup or container unless the dialog file says so
     *  @param iWidthOUT, iHeightOUT receive units, at least 0; each counts where it is natural
     */
    virtual void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const = 0;

protected:
    ~CGUIWidgetMetrics() = default;
};

/** Computes areas, each time anew: it keeps nothing, allocates nothing and throws nothing of its own.
 *
 *  A child of a container with an absolute layout lies at its place from the container's upper left corner,
 *  with its size; ciFill is what is left up to the container's right or lower edge. In a row the visible
 *  children follow each other from left to right, and what their widths leave over is divided equally among
 *  those with ciFill; in height ciFill is the whole row. A column does so from top to bottom. Their places x
 * and y do not count. What does not fit goes over the edge.
 *
 *  An object that is no widget takes its parent's area, and no room in a row or column.
 */
class CGUIWidgetLayout
{
public:
    /** @param iWidth, iHeight the size of the display, which the root fills
     *  @param pkMetrics not owned; null: natural sizes are 0
     */
    CGUIWidgetLayout(eC_Int iWidth, eC_Int iHeight, const CGUIWidgetMetrics* pkMetrics = nullptr);

    /** Visits all visible widgets under the root in drawing order, a widget before its children. */
    void Visit(CGUIWidgetVisitor& kVisitor) const;

    /** @return the area of an object. When it is invisible in a row or column, it is empty. One step for each
     *          ancestor, and in rows and columns for each sibling
     */
    GUIArea_t GetArea(const CGUIObject& kObject) const;

    /** @return the topmost focusable widget at a point that no window covers there, null: there is none */
    CGUIWidget* FindAt(eC_Int iX, eC_Int iY) const;

private:
    friend class CGUIWidgetPlaces;

    void VisitObject(CGUIWidgetVisitor& kVisitor, const CGUIObject& kObject, const GUIArea_t& kArea) const;
    void FindBelow(const CGUIObject& kObject, const GUIArea_t& kArea, eC_Int iX, eC_Int iY,
                   CGUIWidget*& pkFoundOUT) const;

    GUIArea_t m_kDisplay;
    const CGUIWidgetMetrics* m_pkMetrics;
};

#endif
