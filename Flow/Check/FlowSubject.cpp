// SPDX-License-Identifier: MIT
#include "Flow/Check/FlowSubject.h"

#include <algorithm>

eC_Bool CFlowSubject::IsActivation(eC_UInt uiKey) const
{
    const FlowKey_t& kKey = GetFlow().m_kKeys[uiKey];
    return kKey.m_bIsInput && kKey.m_eInput == GUIKEY_ACTIVATE;
}

void CFlowSubject::AppendState(std::string& kState) const
{
    for (eC_UInt uiFlag = 0; uiFlag < GetFlow().m_kFlags.size(); ++uiFlag)
    {
        kState += m_kFlowApplication.GetRuntime().IsSet(uiFlag) ? '1' : '0';
    }
}

std::vector<RunningTimer_t> CFlowSubject::GetTimers() const
{
    std::vector<RunningTimer_t> kTimers;
    const std::vector<FlowTimer_t>& kOfFlow = GetFlow().m_kTimers;
    for (eC_UInt uiTimer = 0; uiTimer < kOfFlow.size(); ++uiTimer)
    {
        if (m_kFlowApplication.GetRuntime().IsRunning(uiTimer))
        {
            kTimers.push_back({kOfFlow[uiTimer].m_kName, kOfFlow[uiTimer].m_uiTime,
                               m_kFlowApplication.GetRuntime().GetTimeLeft(uiTimer)});
        }
    }
    return kTimers;
}

EHistoryCut CFlowSubject::GetHistoryCut() const
{
    eC_Bool bHasDialogs = false;
    eC_Bool bHasHeights = false;
    for (const FlowReaction_t& kReaction : GetFlow().m_kReactions)
    {
        eC_UInt uiCuts = 0;
        for (const FlowAction_t& kAction : kReaction.m_kActions)
        {
            const eC_Bool bIsCut = kAction.m_eKind == FLOW_BACK || kAction.m_eKind == FLOW_BACK_TO ||
                                   kAction.m_eKind == FLOW_CLEAR;
            uiCuts += bIsCut ? 1U : 0U;
            bHasDialogs = bHasDialogs || kAction.m_eKind == FLOW_BACK_TO;
            bHasHeights = bHasHeights || kAction.m_eKind == FLOW_CLEAR;
            if (uiCuts > 1 || (kAction.m_eKind == FLOW_BACK_TO && kAction.m_bStepwise))
            {
                return HISTORY_CUT_UNKNOWN;
            }
        }
    }
    if (bHasDialogs == bHasHeights)
    {
        return bHasDialogs ? HISTORY_CUT_UNKNOWN : HISTORY_CUT_NONE;
    }
    return bHasDialogs ? HISTORY_CUT_AT_DIALOG : HISTORY_CUT_AT_HEIGHT;
}

eC_UInt CFlowSubject::GetMostKept() const
{
    eC_UInt uiMost = 0;
    for (const FlowReaction_t& kReaction : GetFlow().m_kReactions)
    {
        for (const FlowAction_t& kAction : kReaction.m_kActions)
        {
            uiMost = kAction.m_eKind == FLOW_CLEAR ? std::max(uiMost, kAction.m_uiKeep) : uiMost;
        }
    }
    return uiMost;
}

std::vector<BrokenName_t> CFlowSubject::GetBrokenNames() const
{
    std::vector<BrokenName_t> kNames;
    const auto Add = [&kNames](const FlowDialog_t& kDialog)
    {
        if (!kDialog.m_kScreen.m_kError.empty())
        {
            kNames.push_back({kDialog.m_kName + " does not load: " + kDialog.m_kScreen.m_kError,
                              kDialog.m_kPosition.m_uiLine});
        }
    };
    for (const FlowDialog_t& kDialog : GetFlow().m_kDialogs)
    {
        Add(kDialog);
    }
    for (const FlowPopup_t& kPopup : GetFlow().m_kPopups)
    {
        Add(kPopup);
    }
    return kNames;
}

eC_UInt CFlowSubject::GetLine(ObjectHandle_t eID) const
{
    for (const FlowDialog_t& kDialog : GetFlow().m_kDialogs)
    {
        if (kDialog.m_eID == eID)
        {
            return kDialog.m_kPosition.m_uiLine;
        }
    }
    for (const FlowPopup_t& kPopup : GetFlow().m_kPopups)
    {
        if (kPopup.m_eID == eID)
        {
            return kPopup.m_kPosition.m_uiLine;
        }
    }
    return 0;
}
