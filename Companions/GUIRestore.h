// SPDX-License-Identifier: MIT
#ifndef COMPANIONS_GUIRESTORE_H
#define COMPANIONS_GUIRESTORE_H

/** @file
 *  Brings the dialogs back after a reset.
 */

#include "Companions/GUIObservedDialogManager.h"
#include "Core/GUIAnimatable.h"

/** Where a CGUIRestore keeps its blocks: two slots, for example two sectors of flash or two files. */
class CGUIRestoreStorage
{
public:
    /** Replaces the contents of a slot. The power may fail at any byte: a slot may then have any contents,
     *  but the other one must keep its own.
     *  @param uiSlot 0 or 1
     *  @param puiBytes, uiSize the new contents
     *  @return false if it failed
     */
    virtual eC_Bool WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize) = 0;

    /** Reads the beginning of a slot.
     *  @param uiSlot 0 or 1
     *  @param puiBytes receives the bytes
     *  @param uiSize the most bytes to read
     *  @return how many were read; what follows the contents does not matter. 0 for a slot that was never
     *          written; one that was erased may also be read, as bytes that are all the same.
     */
    virtual eC_UInt ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize) = 0;

protected:
    ~CGUIRestoreStorage() = default;
};

/** Saves and restores the arguments with which dialogs are shown. An application that has none needs none. */
class CGUIRestoreArguments
{
public:
    /** Writes the argument of a dialog, if it is one that may be restored.
     *  @param eID the dialog
     *  @param uiLevel how many dialogs are below it: 0 for the oldest one
     *  @param puiBytes receives the bytes
     *  @param uiSize the room for them
     *  @return how many bytes were written, 0 for no argument, more than uiSize if there is not enough room
     */
    virtual eC_UInt SaveArgument(ObjectHandle_t eID, eC_UInt uiLevel, unsigned char* puiBytes,
                                 eC_UInt uiSize) = 0;

    /** Switches to a dialog with the argument that was saved, or as CGUIDialogManager::CreateDialog does if
     *  the bytes mean nothing.
     *  @return the dialog, or null
     */
    virtual CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                                     const unsigned char* puiBytes, eC_UInt uiSize) = 0;

protected:
    ~CGUIRestoreArguments() = default;
};

/** Saves which dialogs and popups are shown, and shows them again after a reset.
 *
 *  What is saved: the dialogs of the history and the current one, with their actions and the identifiers of
 *  their focussed objects, arguments that allow it, and which popups of a list are listed. It is one block of
 *  bytes with the version of its layout, the numbers of the application and of its contents, and a checksum.
 *  Blocks go to two slots in turn, so that a power failure at any byte leaves the one before.
 *
 *  Restoring repeats the switches, through the public operations of the manager, with all their hooks. So
 *  everything is as it was, except:
 *  - A dialog with a dynamic identifier (AddDialog of an object without one) and all after it are not saved.
 *    Of more dialogs than there is room for, the oldest are not saved. A dialog that cannot be obtained ends
 *    the restoring; those before it are shown. If none is current then, the home dialog is shown.
 *  - Every dialog is built again: its contents are new, and one that was found in the tree when it was shown,
 *    so that the manager would not delete it, may be deleted now. (A repeated one is found in the tree
 * again.)
 *  - The focus is restored by identifier, unless that is dynamic; where nobody had it, any object may have
 * it. While a popup has the focus, that of the current dialog is the one that Save last found there.
 *  - What a dialog did to its predecessor is taken from what the predecessor suffered. This is the same
 * unless ClearDialogHistory or a hook removed entries between them. The action of an only dialog becomes
 *    ODA_NOTHING; there is nothing that it could undo.
 *  - Display times of popups start again. Popups are listed in the order of the list given, so those of equal
 *    priority may lie in another order.
 *
 *  Start saves from the timer, some time after a hook; Save saves now. Only what differs from the last block
 *  is written. Nothing is allocated but one timer registration and the log entries, so Start, Save, Restore
 *  and the hooks of dialogs and popups may throw std::bad_alloc. The manager may be destroyed first; nothing
 *  happens after that. A hook may call the operations of this class, but must not destroy the object.
 */
class CGUIRestore : private CGUIDialogListener, private CGUIAnimatable
{
public:
    /** The bytes of a block without dialogs and popups. */
    static constexpr eC_UInt cuiEmptyBlock = 26;

    /** The bytes that each dialog takes, besides those of its argument. */
    static constexpr eC_UInt cuiDialog = 11;

    /** The bytes that each popup takes. */
    static constexpr eC_UInt cuiPopup = 4;

    CGUIRestore(const CGUIRestore&) = delete;
    CGUIRestore& operator=(const CGUIRestore&) = delete;

    /** Sets which popups are restored, none at first.
     *  @param pePopups the popups, not owned; they must stay until others are set
     *  @param uiNOFPopups how many; those for which there is no room are not saved
     */
    void SetPopups(const ObjectHandle_t* pePopups, eC_UInt uiNOFPopups);

    /** Sets who saves arguments. @param pkArguments not owned; null for nobody, as at first */
    void SetArguments(CGUIRestoreArguments* pkArguments) { m_pkArguments = pkArguments; }

    /** Call it instead of showing the first dialog. Shows what the newest valid block says, or the home
     * dialog if there is none, with the hooks and exceptions of CreateDialog and ShowPopup. Saves nothing
     * meanwhile. Logged: DEBUG if it restores; one WARNING, with the reason, if there is a block but no valid
     * one of this version, application and contents, or if a dialog of it cannot be obtained; what
     * CreateDialog and ShowPopup log.
     *  @return true if the current dialog is that of a block, false if it is the home dialog or none
     */
    eC_Bool Restore();

    /** Writes a block if the state differs from that of the last one. Calls no hook.
     *  Logged: WARNING if writing failed; it is tried again with the next call.
     *  @return false if writing failed
     */
    eC_Bool Save();

    /** Writes a block without dialogs, so that the next reset leads home, without a WARNING: for example
     *  before Restore after a reset by the watchdog, so that no dialog can lead from reset to reset.
     *  @return as from Save, with the same messages; false while Restore is running
     */
    eC_Bool Forget();

    /** Saves automatically from now on: once, some time after the first hook since the last block. Moving the
     *  focus calls no hook.
     *  @param uiDelay milliseconds, 1 to 0x7FFFFFFF
     */
    void Start(eC_UInt uiDelay);

    void Stop(); ///< Saves no longer automatically; what has changed is not saved.

    /** @return whether Restore is running: a hook may do less then */
    eC_Bool IsRestoring() const { return m_bIsRestoring; }

protected:
    /** What a block has room for. */
    struct Limits_t
    {
        eC_UInt m_uiDialogs;   ///< how many dialogs, the current one included
        eC_UInt m_uiPopups;    ///< how many popups
        eC_UInt m_uiArguments; ///< bytes of all arguments together

        /** @return the size of the block */
        constexpr eC_UInt GetSize() const
        {
            return cuiEmptyBlock + m_uiDialogs * cuiDialog + m_uiPopups * cuiPopup + m_uiArguments;
        }
    };

    /** Listens to the manager.
     *  @param kStorage not owned
     *  @param puiBlock the memory for a block, not owned; not touched yet
     *  @param kLimits how much it holds
     */
    CGUIRestore(CGUIObservedDialogManager& kManager, CGUIRestoreStorage& kStorage, ObjectHandle_t eHome,
                eC_UInt uiApplication, eC_UInt uiContents, unsigned char* puiBlock, const Limits_t& kLimits);

    /** Stops. */
    ~CGUIRestore() override;

private:
    /** What a slot contains; the greater value says more about why nothing is restored. */
    enum EContents : unsigned char
    {
        CONTENTS_NONE, ///< never written
        CONTENTS_DAMAGED,
        CONTENTS_VERSION,     ///< a block of another version
        CONTENTS_APPLICATION, ///< a block of another application
        CONTENTS_OTHER,       ///< a block of other contents
        CONTENTS_VALID
    };

    class CWriter;
    class CReader;

    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;
    void OnPopupActivation(CGUIObject* pPopup) override;
    void OnPopupDeactivation(CGUIObject* pPopup) override;
    void DoAnimate(const eC_Value& vTimes) override;

    void SaveLater();
    void WriteDialogs(CWriter& kWriter);
    void WriteDialog(CWriter& kWriter, eC_UInt uiLevel, eC_UInt& uiRoomForArguments);
    void WritePopups(CWriter& kWriter);
    eC_Bool WriteBlock(CWriter& kWriter);
    void NoteFocus();
    eC_UInt GetNOFDialogsToSave() const;
    EContents ReadBlock(eC_UInt uiSlot);
    EContents FindNewestBlock();
    EContents FindBlockToRestore();
    eC_Bool ShowState();
    eC_UInt ShowDialogs(CReader& kReader);
    eC_Bool ShowDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                       const unsigned char* puiArgument, eC_UInt uiArgument);
    void GiveFocus(ObjectHandle_t eID);
    void ShowPopups(CReader& kReader);

    CGUIRestoreStorage& m_kStorage;
    CGUIRestoreArguments* m_pkArguments = nullptr;
    const ObjectHandle_t* m_pePopups = nullptr;
    unsigned char* m_puiBlock;
    Limits_t m_kLimits;
    eC_UInt m_uiNOFPopups = 0;
    eC_UInt m_uiApplication;
    eC_UInt m_uiContents;
    eC_UInt m_uiSequence = 0; ///< of the newest block
    eC_UInt m_uiChecksum = 0; ///< of what the newest block says
    eC_UInt m_uiDelay = 0;    ///< 0: does not save automatically
    ObjectHandle_t m_eHome;
    ObjectHandle_t m_eFocussedDialog = NO_HANDLE; ///< whose focus is known
    ObjectHandle_t m_eFocussedObject = NO_HANDLE; ///< in that dialog
    unsigned char m_uiSlot = 1;                   ///< of the newest block
    eC_Bool m_bHasBlock = false;                  ///< there is a newest block
    eC_Bool m_bHasLooked = false;                 ///< for the newest block
    eC_Bool m_bIsRestoring = false;
};

/** A CGUIRestore with memory for a block.
 *  @tparam uiMostDialogs how many dialogs are saved, the current one included, 1 to 255
 *  @tparam uiMostPopups how many popups are saved, at most 255
 *  @tparam uiArguments the bytes for all arguments together
 */
template <eC_UInt uiMostDialogs, eC_UInt uiMostPopups = 0, eC_UInt uiArguments = 0>
class CGUIRestoreOf : public CGUIRestore
{
    static_assert(uiMostDialogs > 0 && uiMostDialogs < 256 && uiMostPopups < 256,
                  "both are counted in a byte");

public:
    /** The size of a slot: the most bytes that a block takes. */
    static constexpr eC_UInt cuiSize =
        cuiEmptyBlock + uiMostDialogs * cuiDialog + uiMostPopups * cuiPopup + uiArguments;

    static_assert(cuiSize < 0x10000U, "the size is counted in two bytes");

    /** Listens to the manager.
     *  @param kManager the manager, not owned
     *  @param kStorage where the blocks are kept, not owned
     *  @param eHome the dialog to show if there is nothing to restore
     *  @param uiApplication the number of the application: another one's blocks are not restored
     *  @param uiContents the number of its contents, which changes with its dialogs and identifiers, for
     *         example a checksum of the table of handles
     */
    CGUIRestoreOf(CGUIObservedDialogManager& kManager, CGUIRestoreStorage& kStorage, ObjectHandle_t eHome,
                  eC_UInt uiApplication, eC_UInt uiContents)
        : CGUIRestore(kManager, kStorage, eHome, uiApplication, uiContents, m_auiBlock,
                      {uiMostDialogs, uiMostPopups, uiArguments})
    {
    }

private:
    unsigned char m_auiBlock[cuiSize];
};

#endif
