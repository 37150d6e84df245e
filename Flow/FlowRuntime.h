// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWRUNTIME_H
#define FLOW_FLOWRUNTIME_H

/** @file
 *  The objects of a running flow.
 */

#include "Core/Control/GUI.h"
#include "Core/GUIAnimatable.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIFactoryManager.h"
#include "Flow/FlowContents.h"
#include "Flow/FlowModel.h"
#include "Widgets/GUIWidgetInput.h"

#include <deque>
#include <unordered_map>
#include <vector>

/** Builds the dialogs of a flow from what its reader has kept; no file is read again. */
class CFlowDialogReader : public CGUIDialogReader
{
public:
    explicit CFlowDialogReader(const FlowModel_t& kFlow);

    /** @param kPath "flow:" and the path of a screen
     *  @return the object. Null for a screen with an error, which is logged as ERROR
     */
    CGUIObject* Read(const eC_String& kPath) override;

    static constexpr const eC_Char* cpcPrefix = "flow:";

private:
    std::unordered_map<std::string, const FlowScreen_t*> m_kScreens;
};

/** A flow between Start and Stop: the root, the manager and what the flow remembers. */
class CFlowRuntime final : private CGUIWidgetListener
{
public:
    /** @param kFlow outlives the runtime */
    explicit CFlowRuntime(const FlowModel_t& kFlow);
    CFlowRuntime(const CFlowRuntime&) = delete;
    CFlowRuntime& operator=(const CFlowRuntime&) = delete;
    ~CFlowRuntime();

    CGUIDialogManager& GetManager() { return m_kManager; }
    const CGUIDialogManager& GetManager() const { return m_kManager; }
    CGUIWidgetInput& GetInput() { return m_kInput; }

    /** Starts the timers of points in time and those that start by themselves. */
    void StartTimers();

    /** Carries out the actions of the elements Start. */
    void RunStart();

    /** @return false if it had no effect at all */
    eC_Bool PressKey(eC_UInt uiKey);

    eC_Bool Holds(const FlowCondition_t& kCondition) const;

    eC_Bool IsSet(eC_UInt uiFlag) const { return m_kFlags[uiFlag]; }
    void Set(eC_UInt uiFlag, eC_Bool bValue) { m_kFlags[uiFlag] = bValue; }

    eC_Bool IsRunning(eC_UInt uiTimer) const;
    eC_UInt GetTimeLeft(eC_UInt uiTimer) const; ///< milliseconds, of a running one
    void StartTimer(eC_UInt uiTimer);
    void StopTimer(eC_UInt uiTimer);

    /** @return whether a stepwise back-to would never have ended */
    eC_Bool IsHanging() const { return m_bIsHanging; }

private:
    /** Calls the runtime when a timer has run out. */
    class CFlowTimer : public CGUIAnimatable
    {
    public:
        CFlowTimer(CFlowRuntime& kRuntime, eC_UInt uiTimer) : m_kRuntime(kRuntime), m_uiTimer(uiTimer) {}
        void DoAnimate(const eC_Value& vTimes) override;

    private:
        CFlowRuntime& m_kRuntime;
        eC_UInt m_uiTimer;
    };

    void OnActivated(CGUIWidget& kWidget) override;
    void OnTimer(eC_UInt uiTimer);
    eC_Bool HoldsTerm(const FlowTerm_t& kTerm) const;
    eC_Bool React(FlowReaction_t::EOccasion eOccasion, ObjectHandle_t eButton, eC_UInt uiIndex);
    void Run(const FlowReaction_t& kReaction);
    void Run(const FlowAction_t& kAction);
    void RunOnManager(const FlowAction_t& kAction);
    void RunOnObject(const FlowAction_t& kAction, CGUIObject* pkObject);
    void GoBackTo(const FlowAction_t& kAction);
    void Report(const FlowAction_t& kAction, const eC_Char* pcWhat) const;

    const FlowModel_t& m_kFlow;
    CFlowContents m_kContents;
    CFlowDialogReader m_kReader;
    CGUI m_kRoot;
    CGUIDialogManager m_kManager;
    CGUIWidgetInput m_kInput;
    std::vector<eC_Bool> m_kFlags;
    std::deque<CFlowTimer> m_kTimers;
    eC_Bool m_bIsHanging = false;
};

#endif
