// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETCHANGES_H
#define WIDGETS_GUIWIDGETCHANGES_H

/** @file
 *  What has changed since a front end looked.
 */

#include "Core/Utils/eC_Types.h"

class CGUIObject;
class CGUIWidget;

/** The changes that one front end has not seen yet. Each front end has its own; there are few.
 *
 *  A front end that draws everything anew asks IsChanged and then calls Settle. One that keeps native objects
 *  takes one widget after the other, and then asks who has the focus:
 *
 *      while (const CGUIWidget* pkWidget = kChanges.TakeNext()) { ... }
 *      kChanges.Settle();
 *
 *  So a turn in which nothing changed costs nothing, and one in which something did costs what changed.
 *  Nothing here allocates or throws, whatever is marked, made or destroyed meanwhile, also by the taker.
 */
class CGUIWidgetChanges
{
public:
    /** All widgets that there are have changed for a newcomer. */
    CGUIWidgetChanges();
    CGUIWidgetChanges(const CGUIWidgetChanges&) = delete;
    CGUIWidgetChanges& operator=(const CGUIWidgetChanges&) = delete;
    virtual ~CGUIWidgetChanges();

    /** @return whether a widget was marked or destroyed, or the focus has moved, since Settle */
    eC_Bool IsChanged() const;

    /** Takes the widget that was marked the longest ago. Each comes once, however often it was marked; one
     *  that is marked again comes again. A parent that was made before its children comes before them.
     *  @return null when there is none
     */
    const CGUIWidget* TakeNext();

    /** Forgets all changes up to now. */
    void Settle();

protected:
    /** Called when a widget is destroyed: for its object's address and identifier, and the common part of the
     *  widget; what its class added is gone already. It may use no other widget, mark or destroy none and
     *  throw nothing. Here: nothing.
     */
    virtual void OnWidgetDestroyed(const CGUIWidget& kWidget);

private:
    friend class CGUIWidget;

    static void OnMarked(const CGUIWidget* pkWidget);
    static void OnLeaves(const CGUIWidget* pkWidget);
    static void OnDestroyed(const CGUIWidget& kWidget);

    static CGUIWidgetChanges* ms_pkFirst;

    CGUIWidgetChanges* m_pkNextChanges;
    const CGUIWidget* m_pkNextWidget; ///< of those not taken yet, the one that was marked first
    const CGUIObject* m_pkFocussed;   ///< by its address alone; it may be gone
    eC_Bool m_bIsAnyDestroyed;
};

#endif
