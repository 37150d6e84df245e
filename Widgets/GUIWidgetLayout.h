// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETLAYOUT_H
#define WIDGETS_GUIWIDGETLAYOUT_H

/** @file
 *  Where widgets are on a display.
 */

#include "Widgets/GUIWidget.h"

class CGUIWidgetVisitor;

/** What only a front end knows: the space that contents need in its fonts and pictures. */
class CGUIWidgetMetrics
{
public:
    /** Measures a widget whose width or height is CGUIWidget::ciNatural.
     *  @param kWidget not a screen, popup or container unless the dialog file asks for it
     *  @param iWidthOUT, iHeightOUT receive units, at least 0; only a natural one is used
     */
    virtual void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const = 0;

protected:
    ~CGUIWidgetMetrics() = default;
};

/** Computes areas on request: it stores nothing, allocates nothing and throws nothing by itself.
 *
 *  In an absolute layout a child is at its place relative to the container's upper left corner, with its own
 *  size; ciFill extends it to the container's right or lower edge. In a row the visible children follow each
 *  other from left to right, and the width left over is divided equally among those with ciFill; ciFill as a
 *  height means the whole row. A column does the same from top to bottom. Rows and columns ignore x and y.
 *  What does not fit runs over the edge.
 *
 *  An object that is no widget gets its parent's area, and takes no space in a row or column.
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

    /** Visits an object, even if it is invisible or below something invisible, and all visible widgets below
     *  it, in drawing order. Finding its own area takes what GetArea takes.
     */
    void Visit(CGUIWidgetVisitor& kVisitor, const CGUIObject& kTop) const;

    /** @return the area of an object; empty if it is invisible in a row or column. Takes one step for each
     *         ancestor, and in rows and columns one for each sibling
     */
    GUIArea_t GetArea(const CGUIObject& kObject) const { return Place(kObject, CGUIWidget::Find(&kObject)); }

    /** @return the same of the object of a widget, without a search for it */
    GUIArea_t GetAreaOf(const CGUIWidget& kWidget) const { return Place(kWidget.GetObject(), &kWidget); }

    /** @return the topmost focusable widget at a point that no window covers there, null if there is none */
    CGUIWidget* FindAt(eC_Int iX, eC_Int iY) const;

private:
    friend class CGUIWidgetPlaces;

    GUIArea_t Place(const CGUIObject& kObject, const CGUIWidget* pkWidget) const;
    void VisitObject(CGUIWidgetVisitor& kVisitor, const CGUIObject& kObject, const GUIArea_t& kArea) const;
    void FindBelow(const CGUIObject& kObject, const GUIArea_t& kArea, eC_Int iX, eC_Int iY,
                   CGUIWidget*& pkFoundOUT) const;

    GUIArea_t m_kDisplay;
    const CGUIWidgetMetrics* m_pkMetrics;
};

#endif
