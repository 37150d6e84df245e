// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_FLOWSUBJECT_H
#define FLOW_CHECK_FLOWSUBJECT_H

/** @file
 *  A flow as the checker sees it.
 */

#include "Flow/Check/CheckSubject.h"
#include "Flow/FlowApplication.h"

/** A flow that is checked. */
class CFlowSubject : public CCheckSubject
{
public:
    /** @param kApplication not owned, outlives the subject */
    explicit CFlowSubject(CFlowApplication& kApplication)
        : CCheckSubject(kApplication), m_kFlowApplication(kApplication)
    {
    }

    std::string GetFile() const override { return GetFlow().m_kFile; }
    eC_Bool IsSignal(eC_UInt uiKey) const override { return GetFlow().m_kKeys[uiKey].m_bIsSignal; }
    eC_Bool IsActivation(eC_UInt uiKey) const override;
    eC_Bool HasTouch() const override { return GetFlow().m_bHasTouch; }
    void AppendState(std::string& kState) const override;
    std::vector<RunningTimer_t> GetTimers() const override;
    eC_Bool IsHanging() const override { return m_kFlowApplication.GetRuntime().IsHanging(); }
    eC_Bool Holds(const FlowCondition_t& kCondition) const override
    {
        return m_kFlowApplication.Holds(kCondition);
    }
    const std::vector<FlowClaim_t>& GetClaims() const override { return GetFlow().m_kClaims; }
    const std::vector<FlowExpectation_t>& GetExpectations() const override
    {
        return GetFlow().m_kExpectations;
    }
    EHistoryCut GetHistoryCut() const override;
    eC_UInt GetMostKept() const override;
    ObjectHandle_t GetHome() const override { return GetFlow().m_eHome; }
    std::vector<BrokenName_t> GetBrokenNames() const override;
    eC_UInt GetLine(ObjectHandle_t eID) const override;

private:
    const FlowModel_t& GetFlow() const { return m_kFlowApplication.GetFlow(); }

    CFlowApplication& m_kFlowApplication;
};

#endif
