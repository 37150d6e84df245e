// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWAPPLICATION_H
#define FLOW_FLOWAPPLICATION_H

/** @file
 *  Runs a flow as an application.
 */

#include "Flow/FlowModel.h"
#include "Flow/FlowRuntime.h"
#include "Simulator/SimulatedApplication.h"

#include <memory>
#include <string>
#include <vector>

/** Where a user is in a flow, by names, so that it can be found again in a changed one. */
struct FlowMemory_t
{
    /** A dialog on the way. */
    struct Dialog_t
    {
        ObjectHandle_t m_eID;                          ///< which one
        CGUIDialogManager::EOldDialogAction m_eAction; ///< what its successor did to it
    };

    std::vector<Dialog_t> m_kDialogs;          ///< the oldest first, the current one last
    std::vector<ObjectHandle_t> m_kPopups;     ///< the listed ones
    std::vector<std::string> m_kFlags;         ///< the ones that are set
    std::vector<std::string> m_kRunningTimers; ///< by name
};

/** An application that a flow file describes. It needs the root, the factory and the event handler for
 * itself, and a program with the table of FlowHandles.h.
 *
 *  It logs, as ERROR: an action whose object is not there or refuses the focus; a manager's exception; a
 *  stepwise back-to that would never end, which it stops.
 */
class CFlowApplication : public CSimulatedApplication
{
public:
    /** @param pkFlow the flow */
    explicit CFlowApplication(std::shared_ptr<const FlowModel_t> pkFlow);
    CFlowApplication(const CFlowApplication&) = delete;
    CFlowApplication& operator=(const CFlowApplication&) = delete;
    ~CFlowApplication() override;

    /** @return the flow that it runs */
    const FlowModel_t& GetFlow() const { return *m_pkFlow; }

    /** Replaces the flow, while the application is stopped. */
    void SetFlow(std::shared_ptr<const FlowModel_t> pkFlow);

    /** @return where the user is now; between Start and Stop */
    FlowMemory_t GetMemory() const;

    /** @return whether a condition holds now; between Start and Stop */
    eC_Bool Holds(const FlowCondition_t& kCondition) const { return m_pkRuntime->Holds(kCondition); }

    /** @return what runs the flow; between Start and Stop */
    CFlowRuntime& GetRuntime() { return *m_pkRuntime; }

    const Device_t& GetDevice() const override { return m_kDevice; }
    void Start() override;
    void Stop() override;
    eC_Bool PowerOn() override;
    /** @return the manager, between Start and Stop */
    CGUIDialogManager& GetManager() override { return m_pkRuntime->GetManager(); }
    CGUIWidgetInput& GetInput() override { return m_pkRuntime->GetInput(); }
    eC_Bool PressKey(eC_UInt uiKey) override { return m_pkRuntime->PressKey(uiKey); }

    /** Adds "set <flag> <value>", "start <timer>" and "stop <timer>", if the flow has flags and timers. */
    void AddCommands(CSimulatedCommands& kCommands) override;

private:
    void DescribeDevice();

    std::shared_ptr<const FlowModel_t> m_pkFlow;
    std::vector<DeviceKey_t> m_kKeys;
    Device_t m_kDevice{};
    std::unique_ptr<CFlowRuntime> m_pkRuntime;
};

#endif
