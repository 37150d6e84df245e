// SPDX-License-Identifier: MIT
#ifndef TESTS_MODEL_LIBRARYSYSTEM_H
#define TESTS_MODEL_LIBRARYSYSTEM_H

/** @file
 *  The library as the comparison with the model drives it.
 */

#include "Core/Control/GUI.h"
#include "Scenario/EventLog.h"
#include "Scenario/SteppedClock.h"
#include "Scenario/TraceRecorder.h"
#include "TestSupport/CodeFactory.h"
#include "TestSupport/HookRecorder.h"
#include "TestSupport/StructureChecker.h"
#include "Tests/Model/Operations.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/** A root, a factory, a clock and a recording manager. Its destructor destroys them and every object. */
class CLibrarySystem : public CDialogSystem
{
public:
    /** @param uiTime the initial time */
    explicit CLibrarySystem(unsigned int uiTime);
    CLibrarySystem(const CLibrarySystem&) = delete;
    CLibrarySystem& operator=(const CLibrarySystem&) = delete;
    ~CLibrarySystem() override;

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
    std::vector<int> GetObjects() const override;
    std::string GetState() override;
    std::vector<std::string> TakeEvents() override { return m_kEvents.Take(); }

    /** Runs an action, which may be any operation, once: inside one of the coming calls of SetInvisible,
     *  SetParent and FocusAny on objects, after the call has done its work. Calls for objects under
     *  construction do not count.
     *  @param uiCall which call, 1 for the next one; 0: none
     */
    void ReactInCall(unsigned int uiCall, std::function<void()> kReaction)
    {
        m_uiReactingCall = uiCall;
        m_kReaction = std::move(kReaction);
    }

    /** @return what is wrong with the lists and the tree, or the empty string */
    std::string CheckStructures() { return ::CheckStructures(*m_pkManager); }

    /** Called by the objects after each such call. */
    void React();

    /** Sets for each operation inside a hook, in order, whether it may run; any further ones may not. */
    void SetPermissions(const std::vector<bool>& kPermissions);

private:
    CGUIObject* GetObject(int iObject) const;
    CGUICompositeObject* GetComposite(int iObject) const;
    int GetNumber(const CGUIObject* pkObject) const;
    CGUIObject* BuildShape(int iShape);
    CGUIObject* BuildShape(const Shape_t& kShape);
    CGUIObject* MakeByHook(int iID, int iShape, ECreation eCreation);
    void Do(const Operation_t& kInner);

    CEventLog m_kEvents;
    CTraceRecorder m_kTraceRecorder;
    CSteppedClock m_kClock;
    CCodeFactory m_kCodeFactory;
    std::vector<CGUIObject*> m_kObjects; ///< in the order of their creation, null once destroyed
    unsigned int m_uiReactingCall = 0;
    std::function<void()> m_kReaction;
    int m_iBuilding = 0;
    std::vector<bool> m_kPermissions;
    std::size_t m_uiNextPermission = 0;
    std::unique_ptr<CGUI> m_pkRoot;
    std::unique_ptr<CRecordingDialogManager> m_pkManager;
};

#endif
