// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_MODEL_H
#define TESTS_MODEL_MODEL_H

/** @file
 *  A second dialog manager with its framework, as simple as possible, for comparison with the library.
 */

#include "Tests/Model/ModelTree.h"
#include "Tests/Model/Operations.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/** A second implementation that shares nothing with the library: no pointers, no index, no lists with
 *  iterators. Objects are numbers, and every search is a plain loop. The model is a value type: Permits asks
 *  a copy of it what would happen.
 */
class CModel : public CDialogSystem, private CModelTree
{
public:
    /** @param uiTime the initial time
     *  @param iFirstDynamicID the first result of CreateDynamicObjectID
     */
    CModel(unsigned int uiTime, int iFirstDynamicID);

    std::string CreateDialog(int iID, int iAction) override;
    std::string AddDialog(int iObject, int iAction, bool bRecoverFocus) override;
    std::string Back(bool bDelete) override;
    std::string BackToDialog(int iID, bool bDelete, bool bStepwise) override;
    std::string ClearDialogHistory(unsigned int uiKeep, bool bDelete, bool bDeleteCurrent) override;
    std::string ShowPopup(int iID) override;
    std::string ClosePopup(int iID) override;
    std::string RegisterDialog(int iID, const std::string& kPath) override;
    std::string UnregisterDialog(int iID) override;
    std::string RegisterPopup(int iID, int iPriority, unsigned int uiTime, bool bDeleteOnClose,
                              const std::string& kPath) override;
    std::string UnregisterPopup(int iID) override;
    std::string UpdateTime(int iID, unsigned int uiTime) override;
    std::string Query(int iID) override;
    std::string FindPath(const std::string& kPath) override;
    std::string CreateDynamicID() override;
    std::string PrintHistory() override;
    std::string Arbitrate() override;
    std::string Obtain(int iID, bool bAllowDeletion, bool bRecoverFocus) override;
    std::string Load(int iID) override;
    std::string Build(const Shape_t& kShape, int iID, int iParent) override;
    std::string Delete(int iObject) override;
    std::string Focus(int iObject) override;
    std::string FocusAny(int iObject) override;
    std::string SetInvisible(int iObject, bool bInvisible) override;
    std::string SetFocusable(int iObject, bool bFocusable) override;
    std::string SetParent(int iObject, int iParent) override;
    std::string SetID(int iObject, int iID) override;
    std::string Raise(int iObject) override;
    std::string Advance(unsigned int uiTime) override;
    std::string BeLate(unsigned int uiTime) override;
    std::string SetFile(const std::string& kPath, int iShape) override;
    std::string SetDialogCreator(int iID, int iShape, ECreation eCreation, bool bAllowDeletion,
                                 bool bRecoverFocus) override;
    std::string SetPopupCreator(int iID, int iShape, ECreation eCreation) override;
    std::string Veto(int iID, bool bVeto) override;
    std::string FailLoad(unsigned int uiLoad, int iHow) override;
    std::string FailHook(unsigned int uiCall, int iHow) override;
    std::string ThrowInHook(int iHook, int iHow) override;
    std::string DoInHook(int iHook, const Operation_t& kInner) override;
    std::vector<int> GetObjects() const override { return GetLivingObjects(); }
    std::string GetState() override;
    std::vector<std::string> TakeEvents() override { return std::exchange(m_kEvents, {}); }

    /** @return false if the operation would never end, or would change the history where that is not allowed
     */
    bool Permits(const Operation_t& kOperation) const;

    /** @param iHow 0: with null, 1: with an int, 2: with an exception
     *  @return how many loads have failed in that way as arranged
     */
    unsigned int GetFailedLoads(int iHow) const { return m_auiFailedLoads[iHow]; }

    /** @return for each operation inside a hook, in order, whether it was permitted; then forgets them */
    std::vector<bool> TakePermissions() { return std::exchange(m_kPermissions, {}); }

private:
    /** Thrown when going back stepwise would never end. */
    struct EndlessWayBack_t
    {
    };

    struct Description_t
    {
        int m_iID = 0;
        int m_iAction = 4;
        bool m_bAllowDeletion = true;
        bool m_bRecoverFocus = true;
    };

    struct Entry_t
    {
        Description_t m_kDialog;
        int m_iAction;
        int m_iFocus;
    };

    struct Dialog_t
    {
        int m_iID;
        std::string m_kPath;
    };

    struct Popup_t
    {
        int m_iID;
        int m_iPriority;
        unsigned int m_uiTime;
        bool m_bDeleteOnClose;
        std::string m_kPath;
    };

    struct ActivePopup_t
    {
        int m_iNumber; ///< distinguishes entries
        int m_iObject;
        int m_iPriority;
        unsigned int m_uiTime;
        bool m_bDeleteOnClose;
    };

    struct Callback_t
    {
        int m_iPopup; ///< the number of the entry
        unsigned int m_uiInterval;
        unsigned int m_uiStart;
        int m_iPass;
    };

    struct File_t
    {
        std::string m_kPath;
        int m_iShape;
    };

    struct Creator_t
    {
        int m_iID;
        int m_iShape;
        ECreation m_eCreation;
        bool m_bAllowDeletion;
        bool m_bRecoverFocus;
    };

    struct InHook_t
    {
        int m_iHook;
        int m_iThrow; ///< 0: the operation runs, otherwise how it throws
        Operation_t m_kOperation;
    };

    struct Failure_t
    {
        unsigned int m_uiCall;
        int m_iHow;
    };

    /** The position of an iteration over the active popups: entries by number, -1 for none. */
    struct Cursor_t
    {
        int m_iEntry;
        int m_iNext;
        int m_iPrevious;
    };

    class CWhileHistoryIsClosed;
    class CWalk;

    // Files and the timer.
    int LoadFile(const std::string& kPath);
    int MakeByHook(const Creator_t& kCreator);
    void StartTimer(unsigned int uiInterval, int iPopup);
    void StopTimer(int iPopup);
    unsigned int GetTimeUntil(const Callback_t& kCallback) const;
    void RunCallbacks();

    // What is recorded.
    void Log(const std::string& kText) { m_kEvents.push_back(kText); }
    void Debug(const std::string& kMessage) { Log("DEBUG: " + kMessage); }
    void Error(const std::string& kMessage);
    void Hook(int iHook, const std::string& kArguments, const std::function<std::string()>& kBody);
    void Hook(int iHook, const std::string& kArguments);
    std::string NameOfObject(int iObject) const;

    // The manager.
    int GetCurrent() const { return Find(0, m_kCurrent.m_iID); }
    const Entry_t* FindInHistory(int iID) const;
    std::string FindRegisteredPath(int iID) const;
    const Popup_t* FindRegisteredPopup(int iID) const;
    int LoadDialogDescription(int iID);
    int CallCreateDialogImpl(int iID, bool& bAllowDeletion, bool& bRecoverFocus);
    int CallCreatePopupImpl(int iID);
    int GetDialogObject(int iID, bool& bAllowDeletion, bool& bRecoverFocus);
    int ObtainForCreateDialog(int iID, bool& bAllowDeletion, bool& bRecoverFocus);
    int NextDynamicID();
    void StoreCurrentDialog(int iAction, int iFocus);
    void ApplyActionToHistory(int iAction);
    void DeleteDialog(Description_t kDialog, bool bDelete);
    void MakeInvisible(int iDialog);
    void MakeVisible(int iDialog);
    int ReCreateDialog(const Description_t& kDialog);
    bool CreateDialogFromHistory();
    void RemoveCurrent(bool bDelete, int iTarget);
    void RemoveMostRecent(bool bDelete, int iTarget);
    void BackDirectly(int iID, bool bDelete);
    void RecoverFocus(int iObject);
    void EnsureFocus(int iDialog);
    int FindActivePopup(int iID) const;
    int FindEntry(int iNumber) const;
    int GetNumberAt(int iIndex) const;
    void InsertEntry(std::size_t uiPlace, const ActivePopup_t& kPopup);
    void RemoveEntry(int iNumber);
    void UpdateActivePopups();
    void GiveFocusBack();
    void RequireEntryOf(const CWalk& kWalk, int iObject) const;
    void Display(const CWalk& kWalk);
    void PutBehind(const CWalk& kWalk);
    bool CloseActivePopup(int iID);
    int ShowListedPopup(int iIndex, const Popup_t& kRegistered, int iObject);

    std::string PrintDescription(const Description_t& kDialog) const;
    std::string PrintActivePopup(const ActivePopup_t& kPopup) const;
    std::string PrintTree(int iParent, const std::string& kIndent) const;

    unsigned int m_uiTime;
    int m_iPass = 0;
    std::vector<Callback_t> m_kCallbacks;
    std::vector<File_t> m_kFiles;
    std::vector<Failure_t> m_kLoadFailures;
    unsigned int m_uiLoads = 0;
    unsigned int m_auiFailedLoads[3] = {0, 0, 0};

    std::vector<Creator_t> m_kDialogCreators;
    std::vector<Creator_t> m_kPopupCreators;
    std::vector<int> m_kVetoes;
    std::vector<InHook_t> m_kInHooks;
    unsigned int m_uiHooks = 0;
    Failure_t m_kHookFailure = {0, 0};
    int m_iHistoryClosed = 0;
    std::vector<bool> m_kPermissions;
    std::vector<std::string> m_kEvents;

    std::vector<Entry_t> m_kHistory; ///< the most recent one first
    Description_t m_kCurrent;
    int m_iRememberedFocus = -1;
    int m_iDynamicID;
    unsigned int m_uiDynamicIDs = 0;
    std::vector<Dialog_t> m_kDialogs;
    std::vector<Popup_t> m_kPopups;
    std::vector<ActivePopup_t> m_kActive; ///< ascending by priority
    int m_iNextPopup = 0;
    std::vector<Cursor_t> m_kCursors; ///< of the current iterations, the innermost one last
};

#endif
