// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_COMPANIONS_COMPANIONTEST_H
#define TESTS_UNIT_COMPANIONS_COMPANIONTEST_H

/** @file
 *  What the tests of the companions have in common.
 */

#include "Companions/GUIDialogListener.h"
#include "Companions/GUIObservedDialogManager.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <functional>
#include <string>
#include <utility>

/** Records every hook call as "<name> <hook>(<arguments>)", and runs an action of the test inside. */
class CRecordingListener : public CGUIDialogListener
{
public:
    /** Runs inside a hook, with the object that the hook is about, or null if there is none. */
    using Action_t = std::function<void(CGUIObject*)>;

    CRecordingListener(CEventLog& kEvents, std::string kName) : m_kEvents(kEvents), m_kName(std::move(kName))
    {
    }

    /** Runs an action inside a hook, once. */
    void RunOnce(EHook eHook, Action_t kAction)
    {
        m_eHook = eHook;
        m_kAction = std::move(kAction);
    }

    ObjectHandle_t m_eBuilds = NO_HANDLE; ///< the identifier for which it builds dialogs and popups
    ObjectHandle_t m_eVetoes = NO_HANDLE; ///< the dialog whose deletion it refuses
    eC_Bool m_bAllowDeletion = true;      ///< what it leaves in the flags of CreateDialogImpl
    eC_Bool m_bRecoverFocus = true;       ///< the same

protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) override
    {
        Record(HOOK_CREATE_DIALOG_IMPL, NameOfHandle(eID) + Flag(bAllowDeletionOUT) + Flag(bRecoverFocusOUT),
               nullptr);
        bAllowDeletionOUT = m_bAllowDeletion;
        bRecoverFocusOUT = m_bRecoverFocus;
        return Build(eID);
    }
    void OnDialogAdded(CGUIObject* pDialog) override { Record(HOOK_ON_DIALOG_ADDED, pDialog); }
    void OnDialogActivation(CGUIObject* pDialog) override { Record(HOOK_ON_DIALOG_ACTIVATION, pDialog); }
    void OnDialogDeactivation(CGUIObject* pDialog) override { Record(HOOK_ON_DIALOG_DEACTIVATION, pDialog); }
    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override
    {
        const eC_Bool bIsVetoed = pDialog->GetID() == m_eVetoes;
        Record(HOOK_ON_DIALOG_DELETION, pDialog);
        return !bIsVetoed;
    }
    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override
    {
        Record(HOOK_ON_AFTER_DIALOG_DELETION,
               NameOfHandle(eDeletedDialogID) + ", " + NameOfHandle(eNewDialogID), nullptr);
    }
    void OnLastDialogDeletion() override { Record(HOOK_ON_LAST_DIALOG_DELETION, "", nullptr); }
    void OnPopupActivation(CGUIObject* pPopup) override { Record(HOOK_ON_POPUP_ACTIVATION, pPopup); }
    void OnPopupDeactivation(CGUIObject* pPopup) override { Record(HOOK_ON_POPUP_DEACTIVATION, pPopup); }
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override
    {
        Record(HOOK_CREATE_POPUP_IMPL, NameOfHandle(eID), nullptr);
        return Build(eID);
    }

private:
    static std::string Flag(eC_Bool bFlag) { return bFlag ? ", true" : ", false"; }

    CGUIObject* Build(ObjectHandle_t eID) const
    {
        return eID == m_eBuilds ? new CGUICompositeObject(&CGUI::GetInstance(), eID) : nullptr;
    }

    void Record(EHook eHook, CGUIObject* pkObject) { Record(eHook, NameOfObject(pkObject), pkObject); }

    void Record(EHook eHook, const std::string& kArguments, CGUIObject* pkObject)
    {
        m_kEvents.Add(EVENT_HOOK, m_kName + " " + NameOfHook(eHook) + "(" + kArguments + ")");
        if (m_kAction && m_eHook == eHook)
        {
            // Moved out, because the action may destroy this listener.
            Action_t kAction;
            kAction.swap(m_kAction);
            kAction(pkObject);
        }
    }

    CEventLog& m_kEvents;
    std::string m_kName;
    EHook m_eHook = HOOK_ON_DIALOG_ADDED;
    Action_t m_kAction;
};

/** A CGUITest whose manager has listeners. */
class CCompanionTest : public CGUITest
{
protected:
    static constexpr CGUIDialogManager::EOldDialogAction ODA_INVISIBLE = CGUIDialogManager::ODA_INVISIBLE;
    static constexpr CGUIDialogManager::EOldDialogAction ODA_DELETE = CGUIDialogManager::ODA_DELETE;
    static constexpr CGUIDialogManager::EOldDialogAction ODA_NOTHING = CGUIDialogManager::ODA_NOTHING;

    CGUIObservedDialogManager& Manager() { return m_kManager; }

    void DefineDialog(ObjectHandle_t eID, const std::string& kTree)
    {
        CodeFactory().RegisterTree(PathOf(eID), kTree);
        EXPECT_TRUE(m_kManager.RegisterDialogDefinition(PathOf(eID).c_str(), eID));
    }

    /** Defines dialogs without children. */
    template <typename... THandles>
    void DefineEmptyDialogs(THandles... eIDs)
    {
        (DefineDialog(eIDs, NameOfHandle(eIDs)), ...);
    }

    /** Defines a popup without children. */
    void DefinePopup(ObjectHandle_t eID, CGUIDialogManager::PopupPriority_t ePriority,
                     eC_UInt uiDisplayTime = 0, eC_Bool bDeleteOnClose = false)
    {
        CodeFactory().RegisterTree(PathOf(eID), NameOfHandle(eID));
        EXPECT_TRUE(m_kManager.RegisterPopupDefinition(eID, ePriority, uiDisplayTime, bDeleteOnClose,
                                                       PathOf(eID).c_str()));
    }

    /** Switches to a dialog, expects this to work, and forgets what was recorded. */
    void Go(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction = ODA_INVISIBLE)
    {
        EXPECT_NE(nullptr, m_kManager.CreateDialog(eID, eAction));
        ClearEvents();
    }

    /** Expects that an operation returned the object with that identifier under the root. */
    void ExpectIsObject(ObjectHandle_t eID, const CGUIObject* pkReturned)
    {
        EXPECT_NE(nullptr, pkReturned);
        EXPECT_EQ(Object(eID), pkReturned);
    }

    std::string State() { return PrintState(m_kManager, STATE_ALL & ~STATE_DEFINITIONS); }

private:
    CGUIObservedDialogManager m_kManager;
};

#endif
