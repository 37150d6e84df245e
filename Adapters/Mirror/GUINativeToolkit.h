// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUINATIVETOOLKIT_H
#define ADAPTERS_MIRROR_GUINATIVETOOLKIT_H

/** @file
 *  What a toolkit does for CGUIMirror. An adapter implements this.
 */

#include "Widgets/GUIWidget.h"
#include "Widgets/GUIWidgetLayout.h"

class CGUIMirror;

/** A widget and its native object. The address stays the same as long as the native object exists, so it can
 *  be the user data of native event handlers.
 */
class CGUIMirrored
{
public:
    CGUIMirrored() = default;
    CGUIMirrored(const CGUIMirrored&) = delete;
    CGUIMirrored& operator=(const CGUIMirrored&) = delete;

    /** @return the widget; null once it is destroyed, until the next commit deletes the native object */
    CGUIWidget* GetWidget() const { return m_pkWidget; }

    /** @return what Create or Build returned; null if it failed or was deleted by something else */
    void* GetNative() const { return m_pNative; }

    /** @return the container around it, null for a window */
    CGUIMirrored* GetParent() const { return IsWindow() ? nullptr : m_pkParent; }

    /** @return the dialog or popup around it, or itself */
    CGUIMirrored* GetWindow();

    /** @return whether it is a dialog or a popup */
    eC_Bool IsWindow() const { return m_pkParent != nullptr && m_pkParent->m_pkParent == nullptr; }

    /** @return whether it is a native object that the builder of its window has named */
    eC_Bool IsPart() const { return m_bIsBuilt && !IsWindow(); }

    void* m_pExtra = nullptr; ///< for the adapter, which sets it in Create and Build

private:
    friend class CGUIMirror;

    const CGUIObject* m_pkObject = nullptr; ///< the key of the table, even if it is destroyed
    CGUIWidget* m_pkWidget = nullptr;
    void* m_pNative = nullptr;
    GUIArea_t m_kArea = {0, 0, 0, 0}; ///< relative to the parent

    CGUIMirrored* m_pkParent = nullptr; ///< of a window the mirror's root, of which there is none

    // The native objects with the same parent, from the top down. Of the windows only those shown.
    CGUIMirrored* m_pkTop = nullptr; ///< of the children
    CGUIMirrored* m_pkAbove = nullptr;
    CGUIMirrored* m_pkBelow = nullptr;
    CGUIMirrored* m_pkWasAbove = nullptr; ///< before this commit
    CGUIMirrored* m_pkWasBelow = nullptr; ///< before this commit

    CGUIMirrored* m_pkNextInBucket = nullptr;
    CGUIMirrored* m_pkNextInQueue = nullptr; ///< of those marked, or those gone

    eC_Bool m_bIsListed = false;  ///< among the children of its parent
    eC_Bool m_bWasListed = false; ///< before this commit
    eC_Bool m_bIsQueued = false;
    eC_Bool m_bIsStale = false;   ///< the native object does not show the contents yet
    eC_Bool m_bIsShown = false;   ///< what SetShown was told
    eC_Bool m_bIsInLine = false;  ///< its children were last placed in a row or column
    eC_Bool m_bIsBuilt = false;   ///< by a builder: its contents are the application's
    eC_Bool m_bIsRefused = false; ///< the adapter cannot make it
    eC_Bool m_bIsReordered = false;
};

/** Builds a dialog or popup of native objects. An adapter derives from it for the types of its toolkit. */
class CGUIWindowBuilder
{
public:
    /** Makes the native objects, and names those that can have the focus with CGUIMirror::AddPart.
     *  @param pNativeParent where the outermost one goes; nothing in it is visible yet
     *  @return the outermost one, null if it could not be made; then nothing of it may be left
     */
    virtual void* Build(void* pNativeParent) = 0;

protected:
    ~CGUIWindowBuilder() = default;
};

/** The functions that a toolkit provides; CGUIWidgetMetrics adds the size of contents.
 *
 *  CGUIMirror calls them in Commit alone, and Build when a dialog or popup is obtained. A function must not
 *  change widgets; what native event handlers of the application do meanwhile takes effect in the next
 *  commit. Areas are in units of the widgets, relative to the native parent.
 */
class CGUINativeToolkit : public CGUIWidgetMetrics
{
public:
    /** Makes the native object of a widget, on top of its siblings: a window hidden, anything else shown.
     *  Update follows.
     *  @return null if the toolkit has nothing for that class; it is reported, and nothing below it is made
     */
    virtual void* Create(CGUIMirrored& kMirrored) = 0;

    /** Lets a builder make a window, hidden. @return what the builder returned */
    virtual void* Build(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder) = 0;

    /** Shows place, size, text, style and value of a widget; not called for what a builder has made. */
    virtual void Update(CGUIMirrored& kMirrored, const GUIArea_t& kArea) = 0;

    /** Shows or hides a native object with everything in it. */
    virtual void SetShown(CGUIMirrored& kMirrored, eC_Bool bIsShown) = 0;

    /** Puts a native object directly below a sibling. @param pkAbove the sibling; null: on top of all */
    virtual void PutBelow(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove) = 0;

    /** Deletes a native object with everything in it. */
    virtual void Delete(CGUIMirrored& kMirrored) = 0;

    /** Says where input goes.
     *  @param pkModal keeps input from all windows below it; null: none does
     *  @param pkWindow gets the keys; null if no window is shown
     *  @param pkFocussed gets the native focus; null: nothing in that window has it
     */
    virtual void SetInput(CGUIMirrored* pkModal, CGUIMirrored* pkWindow, CGUIMirrored* pkFocussed) = 0;

protected:
    ~CGUINativeToolkit() = default;
};

#endif
