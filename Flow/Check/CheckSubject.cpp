// SPDX-License-Identifier: MIT
#include "Flow/Check/CheckSubject.h"

#include "Core/GUITimer.h"
#include "Scenario/StateReader.h"

namespace
{
/** Collects the timers that are no display times. */
class COtherTimers : public CStateVisitor
{
public:
    void VisitCurrent(const Access::DialogDescription_t& /*kDialog*/) override {}
    void VisitHistoryEntry(const Access::HistoryEntry_t& /*kEntry*/) override {}
    void VisitDialogDefinition(const Access::RegisteredDialog_t& /*kDefinition*/) override {}
    void VisitPopupDefinition(const Access::RegisteredPopup_t& /*kDefinition*/) override {}
    void VisitActivePopup(const ActivePopupState_t& /*kPopup*/) override {}
    void VisitRememberedFocus(const CGUIObject& /*kObject*/) override {}
    void VisitDynamicIdentifier(ObjectHandle_t /*eID*/) override {}
    void VisitFocus(const CGUIObject& /*kObject*/) override {}
    void VisitObject(const ObjectState_t& /*kObject*/) override {}

    void VisitTimer(const TimerState_t& kTimer) override
    {
        if (!kTimer.m_bIsPopup)
        {
            std::string kName = "timer-" + std::to_string(kTimer.m_uiInterval);
            for (const RunningTimer_t& kOther : m_kTimers)
            {
                kName += kOther.m_uiInterval == kTimer.m_uiInterval ? "'" : "";
            }
            m_kTimers.push_back({kName, kTimer.m_uiInterval, kTimer.m_uiTimeLeft});
        }
    }

    std::vector<RunningTimer_t> m_kTimers;
};
} // namespace

std::vector<RunningTimer_t> CCheckSubject::GetTimers() const
{
    COtherTimers kTimers;
    VisitState(m_kApplication.GetManager(), STATE_TIMERS, kTimers);
    return kTimers.m_kTimers;
}

const std::vector<FlowClaim_t>& CCheckSubject::GetClaims() const
{
    static const std::vector<FlowClaim_t> s_kNone;
    return s_kNone;
}

const std::vector<FlowExpectation_t>& CCheckSubject::GetExpectations() const
{
    static const std::vector<FlowExpectation_t> s_kNone;
    return s_kNone;
}
