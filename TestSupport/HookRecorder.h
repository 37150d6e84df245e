// SPDX-License-Identifier: MIT
#ifndef TESTSUPPORT_HOOKRECORDER_H
#define TESTSUPPORT_HOOKRECORDER_H

/** @file
 *  A dialog manager that records its hook calls and runs actions of tests inside them.
 */

#include "Core/GUIDialogManager.h"
#include "Scenario/EventLog.h"
#include "TestSupport/CodeFactory.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

/** The hooks, in the order in which they are declared. */
enum EHook : unsigned char
{
    HOOK_CREATE_DIALOG_IMPL,
    HOOK_ON_DIALOG_ADDED,
    HOOK_ON_DIALOG_ACTIVATION,
    HOOK_ON_DIALOG_DEACTIVATION,
    HOOK_ON_DIALOG_DELETION,
    HOOK_ON_AFTER_DIALOG_DELETION,
    HOOK_ON_LAST_DIALOG_DELETION,
    HOOK_ON_POPUP_ACTIVATION,
    HOOK_ON_POPUP_DEACTIVATION,
    HOOK_CREATE_POPUP_IMPL
};

constexpr eC_UInt cuiNOFHooks = HOOK_CREATE_POPUP_IMPL + 1;

/** @return the name of the hook, for example "OnDialogAdded" */
const char* NameOfHook(EHook eHook);

/** Records every hook call at its beginning, as one event: the name, the arguments by name, and the result if
 *  there is one:
 *
 *      OnDialogDeletion(DLG_A) -> true
 *      OnAfterDialogDeletion(DLG_A, NO_HANDLE)
 *      CreateDialogImpl(DLG_A, true, true) -> DLG_A (false, true)
 *      OnDialogAdded(DLG_A) throws int 7
 *
 *  The flags after the result of CreateDialogImpl are those that it leaves. Without any settings the hooks
 *  behave as those of CGUIDialogManager, including what they log.
 */
class CRecordingDialogManager : public CGUIDialogManager
{
public:
    /** Runs inside a hook, with the object that the hook is about, or null if there is none. */
    using Action_t = std::function<void(CGUIObject*)>;

    /** Builds a dialog or popup for a creation hook. The object is used as it is. */
    using Creator_t = std::function<CGUIObject*()>;

    /** @param kEventLog receives the hook calls; not owned, outlives the manager */
    explicit CRecordingDialogManager(CEventLog& kEventLog) : m_kEventLog(kEventLog) {}

    /** Sets whether OnDialogDeletion refuses the deletion of a dialog. */
    void SetVeto(ObjectHandle_t eDialogID, eC_Bool bVeto = true);

    /** Makes CreateDialogImpl build a dialog.
     *  @param bAllowDeletion, bRecoverFocus what the hook leaves in its flags
     */
    void SetDialogCreator(ObjectHandle_t eID, Creator_t kCreator, eC_Bool bAllowDeletion = true,
                          eC_Bool bRecoverFocus = true);

    /** Makes CreatePopupImpl build a popup. */
    void SetPopupCreator(ObjectHandle_t eID, Creator_t kCreator);

    /** Runs an action inside a hook, after the call was recorded and before anything else happens in it.
     *  Several actions for one hook run in the order in which they were set.
     */
    void RunOnce(EHook eHook, Action_t kAction) { m_kActions.push_back({eHook, true, std::move(kAction)}); }
    void RunAlways(EHook eHook, Action_t kAction)
    {
        m_kActions.push_back({eHook, false, std::move(kAction)});
    }

    /** Forgets all actions. */
    void ClearActions() { m_kActions.clear(); }

    /** Makes one of the coming hook calls throw, no matter which hook.
     *  @param uiCall which one, 1 for the next
     *  @param eFailure FAILURE_INT or FAILURE_EXCEPTION
     */
    void FailHook(eC_UInt uiCall, EFailure eFailure);

    /** @return how many hooks were called */
    eC_UInt GetHookCalls() const { return m_uiHookCalls; }

    using CGUIDialogManager::GetActivePopup;
    using CGUIDialogManager::GetDialogHistory;
    using CGUIDialogManager::GetDialogObject;
    using CGUIDialogManager::LoadDialogDescription;
    using CGUIDialogManager::UpdateActivePopups;

protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override;
    void OnDialogAdded(CGUIObject* pDialog) override;
    void OnDialogActivation(CGUIObject* pDialog) override;
    void OnDialogDeactivation(CGUIObject* pDialog) override;
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override;
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override;
    void OnLastDialogDeletion() override;
    void OnPopupActivation(CGUIObject* pPopup) override;
    void OnPopupDeactivation(CGUIObject* pPopup) override;
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override;

private:
    struct HookAction_t
    {
        EHook m_eHook;
        eC_Bool m_bOnce;
        Action_t m_kAction;
    };

    struct Creation_t
    {
        ObjectHandle_t m_eID;
        Creator_t m_kCreator;
        eC_Bool m_bAllowDeletion;
        eC_Bool m_bRecoverFocus;
    };

    static const Creation_t* FindCreation(const std::vector<Creation_t>& kCreations, ObjectHandle_t eID);
    static void SetCreation(std::vector<Creation_t>& kCreations, Creation_t kCreation);

    template <typename TBody>
    void Record(EHook eHook, const std::string& kArguments, CGUIObject* pkObject, TBody kBody) const;
    void RecordNotification(EHook eHook, const std::string& kArguments, CGUIObject* pkObject) const;
    void RunActions(EHook eHook, CGUIObject* pkObject) const;

    CEventLog& m_kEventLog;
    std::vector<ObjectHandle_t> m_kVetoes;
    std::vector<Creation_t> m_kDialogCreations;
    std::vector<Creation_t> m_kPopupCreations;

    // Mutable, because CreateDialogImpl is const and its calls count like any other.
    mutable std::vector<HookAction_t> m_kActions;
    mutable eC_UInt m_uiHookCalls = 0;
    eC_UInt m_uiFailingCall = 0; ///< counted from the first call, 0: none
    EFailure m_eFailure = FAILURE_NULL;
};

#endif
