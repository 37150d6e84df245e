// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUIMIRROR_H
#define ADAPTERS_MIRROR_GUIMIRROR_H

/** @file
 *  Keeps the native objects of a toolkit as the object tree is.
 */

#include "Adapters/Mirror/GUINativeToolkit.h"
#include "Widgets/GUIWidgetChanges.h"
#include "Widgets/GUIWidgetLayout.h"
#include "Widgets/GUIWidgetVisitor.h"

#include <memory>

/** Mirrors the dialogs and popups under the root into native objects.
 *
 *  The object tree is the truth. Commit, called once in each turn of the main loop, makes the native objects
 *  equal to it: it deletes those whose widgets are gone, makes those that are shown for the first time, and
 *  updates, shows, hides and raises the others. Then it tells the toolkit where input goes. Nothing native
 *  changes in between, neither inside an operation of the dialog manager nor in a hook or a native event
 *  handler; a builder only adds objects that nobody sees yet.
 *
 *  A commit takes constant time if nothing has changed, and otherwise a time that depends on the widgets that
 *  have changed (see CGUIWidget), on the windows shown and, for a changed row or column, on what is in it. It
 *  allocates only for widgets that are new, and uses the memory of earlier ones again. So do the objects of
 *  windows that a builder makes.
 *
 *  A window is a direct child of the root. It must be a widget; anything else under the root is reported and
 *  not mirrored. What Widgets/ does not mark (see CGUIWidget) a commit does not notice.
 *
 *  There is one task, as for the whole tree. The mirror may be destroyed before or after the root; that
 *  deletes all native objects.
 */
class CGUIMirror : private CGUIWidgetChanges, private CGUIWidgetVisitor
{
public:
    /** @param kToolkit not owned, outlives the mirror
     *  @param iWidth, iHeight the size of the display in units of the widgets
     */
    CGUIMirror(CGUINativeToolkit& kToolkit, eC_Int iWidth, eC_Int iHeight);
    CGUIMirror(const CGUIMirror&) = delete;
    CGUIMirror& operator=(const CGUIMirror&) = delete;

    /** Deletes all native objects. */
    ~CGUIMirror() override;

    /** Makes the native objects equal to the tree. Does nothing while it runs already.
     *  Logged: ERROR for a widget that the toolkit cannot make, for a window that is no widget, and for a
     *  builder that fails when its window is made again. Exceptions of the toolkit and of builders pass
     *  through; the next commit goes on with what has changed since.
     */
    void Commit();

    /** Deletes all native objects, as the destructor does, for an adapter that is the toolkit and owns the
     *  mirror. After that a commit makes only what has changed since.
     */
    void DeleteAll();

    // --- Windows that a builder makes ---------------------------------------------------------------

    /** Sets how a dialog or popup is built.
     *  @param kBuilder not owned, outlives the mirror or its removal
     *  @return false, with nothing changed, if the identifier has a builder already
     *  @throws std::bad_alloc with nothing changed
     */
    eC_Bool AddBuilder(ObjectHandle_t eID, CGUIWindowBuilder& kBuilder);

    /** Removes a builder. Windows that it has built stay. @return false if there was none */
    eC_Bool RemoveBuilder(ObjectHandle_t eID);

    /** @return whether a dialog or popup has a builder */
    eC_Bool HasBuilder(ObjectHandle_t eID) const { return FindBuilder(eID) != nullptr; }

    /** Builds a dialog, for CGUIDialogManager::CreateDialogImpl.
     *  Logged: WARNING if the builder returns null. What the builder throws passes through, with nothing
     *  left.
     *  @return the new CGUIScreen below the root, null if there is no builder or it returned null
     */
    CGUIObject* BuildDialog(ObjectHandle_t eID);

    /** Builds a popup that keeps input from everything below it, for CGUIDialogManager::CreatePopupImpl.
     *  CGUIPopup::SetModal changes that. Otherwise as BuildDialog.
     *  @return the new CGUIPopup below the root, invisible, or null
     */
    CGUIObject* BuildPopup(ObjectHandle_t eID);

    /** Names a native object that a builder has made, while the builder runs: it gets an object in the tree,
     *  below the window's, that accepts the focus. The history remembers the focus by that identifier.
     *  Logged: ERROR outside a builder, and if the window has a part of that identifier already.
     *  @param pNative the native object
     *  @param eID the identifier; NO_HANDLE cannot be restored when the window is built again
     *  @return what stands for it, for OnNativeFocus and OnNativeDeleted; null if it was refused
     *  @throws std::bad_alloc with nothing changed
     */
    CGUIMirrored* AddPart(void* pNative, ObjectHandle_t eID);

    // --- For the native event handlers of an adapter ------------------------------------------------

    /** The native focus has moved. The widget takes the focus of the tree, unless a modal popup keeps it;
     *  then the next commit moves the native focus back. Ignored during a commit and in a builder, whose own
     *  doing it is.
     */
    void OnNativeFocus(CGUIMirrored& kMirrored);

    /** A native object is being deleted with everything in it. If the mirror did not ask for it, that is an
     *  ERROR, and the next commit makes it again; a part is not made again and refuses the focus. Throws
     *  nothing, even when memory runs out, because toolkits call their handlers from C.
     */
    void OnNativeDeleted(CGUIMirrored& kMirrored);

    /** Makes the next commit tell the toolkit where input goes, even if that has not changed. */
    void RenewInput() { m_bIsInputStale = true; }

    /** @return whether Commit would do anything */
    eC_Bool HasChanges() const { return IsChanged() || m_bIsInputStale; }

    /** @return the native counterpart of an object, null if it has none */
    CGUIMirrored* Find(const CGUIObject* pkObject) const;

    /** @return the topmost shown window that keeps input from those below it, null if there is none */
    CGUIMirrored* GetModal() const;

    /** Where input goes, as CGUINativeToolkit::SetInput is told. */
    struct Input_t
    {
        CGUIMirrored* m_pkModal;    ///< keeps input from what is below it; null: none does
        CGUIMirrored* m_pkWindow;   ///< gets keys; null: none does
        CGUIMirrored* m_pkFocussed; ///< has the focus; null: nothing has
    };

    /** @return where input goes by what is shown and has the focus now; inside SetShown(..., true), where it
     *          will go after this commit
     */
    Input_t GetInput() const;

private:
    struct Builder_t
    {
        ObjectHandle_t m_eID;
        CGUIWindowBuilder* m_pkBuilder;
    };

    class CQueue
    {
    public:
        void Append(CGUIMirrored& kMirrored);
        CGUIMirrored* TakeFirst();
        CGUIMirrored* GetFirst() const { return m_pkFirst; }

    private:
        CGUIMirrored* m_pkFirst = nullptr;
        CGUIMirrored* m_pkLast = nullptr;
    };

    class CScope;

    // --- What CGUIWidgetChanges and CGUIWidgetVisitor call
    void OnWidgetDestroyed(const CGUIWidget& kWidget) override;
    void OnWidget(const CGUIWidget& kWidget, const GUIArea_t& kArea) override;

    // --- The steps of a commit
    void DeleteGone();
    void QueueMarked();
    void Queue(CGUIMirrored& kMirrored);
    void ForgetMarked();
    void Synchronise(CGUIMirrored& kMirrored);
    void SynchroniseContainer(CGUIMirrored& kMirrored, const GUILayout_t& kLayout);
    void SynchroniseArea(CGUIMirrored& kMirrored, const GUIArea_t& kArea);
    void Order();
    void ShowOrHide(eC_Bool bIsShown);
    void DirectInput();

    // --- Making and deleting
    CGUIMirrored* Enter(const CGUIWidget& kWidget);
    void Make(CGUIMirrored& kMirrored);
    void DeleteNative(CGUIMirrored& kMirrored);
    void ForgetBelow(CGUIMirrored& kMirrored);
    void Recycle(CGUIMirrored& kMirrored);
    CGUIObject* BuildWindow(std::unique_ptr<CGUIObject> pkObject, CGUIWindowBuilder& kBuilder);
    void* CallBuilder(CGUIMirrored& kWindow, CGUIWindowBuilder& kBuilder);
    CGUIWindowBuilder* FindBuilder(ObjectHandle_t eID) const;

    // --- Order among siblings
    eC_Bool IsToBeListed(const CGUIMirrored& kMirrored) const;
    static void Link(CGUIMirrored& kMirrored, CGUIMirrored* pkAbove);
    static void Unlink(CGUIMirrored& kMirrored);
    CGUIMirrored* FindAbove(const CGUIMirrored& kMirrored) const;
    void Restack(const CGUIMirrored& kParent);

    CGUIMirrored* FindParent(const CGUIObject& kObject);
    eC_Bool HasNative(const CGUIMirrored& kMirrored) const;
    static eC_Bool IsToBeShown(const CGUIObject& kObject);
    GUIArea_t MakeRelative(const CGUIMirrored& kMirrored, const GUIArea_t& kArea) const;

    // --- The table, by objects
    CGUIMirrored** GetBucket(const CGUIObject* pkObject) const;
    eC_Bool Grow();
    void Remove(CGUIMirrored& kMirrored);

    CGUINativeToolkit& m_kToolkit;
    CGUIWidgetLayout m_kLayout;
    CGUIMirrored m_kRoot; ///< the parent of all windows; it has no native object
    CQueue m_kMarked;     ///< during a commit
    CQueue m_kGone;       ///< their widgets are destroyed
    CGUIMirrored* m_pkFree = nullptr;

    std::unique_ptr<CGUIMirrored*[]> m_ppkBuckets;
    eC_UInt m_uiNOFBuckets = 0; ///< 0 or a power of 2
    eC_UInt m_uiNOFMirrored = 0;

    std::unique_ptr<Builder_t[]> m_pkBuilders; ///< sorted by identifier
    eC_UInt m_uiNOFBuilders = 0;
    eC_UInt m_uiRoomForBuilders = 0;

    CGUIMirrored* m_pkBuilt = nullptr;   ///< the window whose builder is running
    CGUIMirrored* m_pkDeleted = nullptr; ///< what the toolkit is deleting
    const CGUIObject* m_pkReported = nullptr;

    // What SetInput was told.
    void* m_pModal = nullptr;
    void* m_pWindow = nullptr;
    void* m_pFocussed = nullptr;
    eC_Bool m_bIsInputStale = false;
    eC_Bool m_bIsCommitting = false;
};

#endif
