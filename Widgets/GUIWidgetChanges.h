// SPDX-License-Identifier: MIT
#ifndef WIDGETS_GUIWIDGETCHANGES_H
#define WIDGETS_GUIWIDGETCHANGES_H

/** @file
 *  What has changed since a front end last looked.
 */

#include "Core/Utils/eC_Types.h"

class CGUIObject;
class CGUIWidget;

/** The changes that one front end has not seen yet. Each front end has its own; there are few of them.
 *
 *  A front end that redraws everything asks IsChanged and then calls Settle. One that keeps native objects
 *  takes one widget after the other, and then checks who has the focus:
 *
 *      while (const CGUIWidget* pkWidget = kChanges.TakeNext()) { ... }
 *      kChanges.Settle();
 *
 *  So a turn without changes costs nothing, and any other turn costs only what changed. Nothing here
 *  allocates or throws, no matter which widgets are marked, created or destroyed in between, even by the
 *  front end itself.
 */
class CGUIWidgetChanges
{
public:
    /** A new front end starts with all existing widgets as changed. */
    CGUIWidgetChanges();
    CGUIWidgetChanges(const CGUIWidgetChanges&) = delete;
    CGUIWidgetChanges& operator=(const CGUIWidgetChanges&) = delete;
    virtual ~CGUIWidgetChanges();

    /** @return whether a widget was marked or destroyed, or the focus has moved, since Settle */
    eC_Bool IsChanged() const;

    /** Takes the widget that was marked the longest ago. Each one comes once, however often it was marked; a
     *  widget that is marked again comes again. A parent created before its children comes before them.
     *  @return null if there is none
     */
    const CGUIWidget* TakeNext();

    /** Forgets all changes up to now. */
    void Settle();

protected:
    /** Called when a widget is destroyed, with what is left of it: its object's address and identifier, and
     *  the part that all widgets share, but nothing that its own class added. It may use no other widget,
     *  must not mark or destroy any, and must not throw. Does nothing here.
     */
    virtual void OnWidgetDestroyed(const CGUIWidget& kWidget);

private:
    friend class CGUIWidget;

    static void OnMarked(const CGUIWidget* pkWidget);
    static void OnLeaves(const CGUIWidget* pkWidget);
    static void OnDestroyed(const CGUIWidget& kWidget);

    static CGUIWidgetChanges* ms_pkFirst;

    CGUIWidgetChanges* m_pkNextChanges;
    const CGUIWidget* m_pkNextWidget; ///< the one of the widgets not yet taken that was marked first
    const CGUIObject* m_pkFocussed;   ///< only its address; the object may be gone
    eC_Bool m_bIsAnyDestroyed;
};

#endif
