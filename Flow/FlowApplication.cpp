// SPDX-License-Identifier: MIT
#include "Flow/FlowApplication.h"

#include "Scenario/StateAccess.h"

#include <algorithm>
#include <utility>

CFlowApplication::CFlowApplication(std::shared_ptr<const FlowModel_t> pkFlow) : m_pkFlow(std::move(pkFlow))
{
    DescribeDevice();
}

CFlowApplication::~CFlowApplication() = default;

void CFlowApplication::SetFlow(std::shared_ptr<const FlowModel_t> pkFlow, const FlowMemory_t& kMemory)
{
    m_pkFlow = std::move(pkFlow);
    m_kMemory = kMemory;
    DescribeDevice();
}

void CFlowApplication::DescribeDevice()
{
    m_kKeys.clear();
    for (const FlowKey_t& kKey : m_pkFlow->m_kKeys)
    {
        m_kKeys.push_back({kKey.m_kName.c_str(), kKey.m_kLabel.c_str(), kKey.m_kKeyboard.c_str()});
    }
    m_kDevice = {
        m_pkFlow->m_kName.c_str(),           m_pkFlow->m_iWidth, m_pkFlow->m_iHeight, 1, 1, m_kKeys.data(),
        static_cast<eC_UInt>(m_kKeys.size())};
}

FlowMemory_t CFlowApplication::GetMemory() const
{
    using Access = CGUIStateAccess;
    const CGUIDialogManager& kManager = m_pkRuntime->GetManager();
    FlowMemory_t kMemory;
    for (auto kEntry = Access::GetHistory(kManager).GetEnd(); kEntry.IsValid(); --kEntry)
    {
        kMemory.m_kDialogs.push_back({(*kEntry).m_Dialog.m_eDialogID, (*kEntry).m_eAction});
    }
    kMemory.m_kDialogs.push_back({kManager.GetCurrentDialogID(), CGUIDialogManager::ODA_NOTHING});
    for (const FlowPopup_t& kPopup : m_pkFlow->m_kPopups)
    {
        if (kManager.IsPopupInPopupList(kPopup.m_eID))
        {
            kMemory.m_kPopups.push_back(kPopup.m_eID);
        }
    }
    for (eC_UInt uiFlag = 0; uiFlag < m_pkFlow->m_kFlags.size(); ++uiFlag)
    {
        if (m_pkRuntime->IsSet(uiFlag))
        {
            kMemory.m_kFlags.push_back(m_pkFlow->m_kFlags[uiFlag].m_kName);
        }
    }
    for (eC_UInt uiTimer = 0; uiTimer < m_pkFlow->m_kTimers.size(); ++uiTimer)
    {
        if (m_pkRuntime->IsRunning(uiTimer))
        {
            kMemory.m_kRunningTimers.push_back(m_pkFlow->m_kTimers[uiTimer].m_kName);
        }
    }
    return kMemory;
}

void CFlowApplication::Start()
{
    m_pkRuntime = std::make_unique<CFlowRuntime>(*m_pkFlow);
}

void CFlowApplication::Stop()
{
    m_pkRuntime.reset();
}

eC_Bool CFlowApplication::PowerOn()
{
    if (!m_kMemory.m_kDialogs.empty())
    {
        Restore(m_kMemory);
    }
    if (GetManager().GetCurrentDialogID() == NO_HANDLE)
    {
        m_pkRuntime->StartTimers();
        m_pkRuntime->RunStart();
    }
    return GetManager().GetCurrentDialogID() != NO_HANDLE;
}

void CFlowApplication::Restore(const FlowMemory_t& kMemory)
{
    const auto IsDefined = [this](ObjectHandle_t eID)
    { return !GetManager().GetRegisteredPath(eID).IsEmpty(); };
    CGUIDialogManager::EOldDialogAction eAction = CGUIDialogManager::ODA_NOTHING;
    for (const FlowMemory_t::Dialog_t& kDialog : kMemory.m_kDialogs)
    {
        if (IsDefined(kDialog.m_eID) && GetManager().CreateDialog(kDialog.m_eID, eAction) != nullptr)
        {
            eAction = kDialog.m_eAction;
        }
    }
    const auto IsIn = [](const std::vector<std::string>& kNames, const std::string& kName)
    { return std::find(kNames.begin(), kNames.end(), kName) != kNames.end(); };
    for (eC_UInt uiFlag = 0; uiFlag < m_pkFlow->m_kFlags.size(); ++uiFlag)
    {
        m_pkRuntime->Set(uiFlag, IsIn(kMemory.m_kFlags, m_pkFlow->m_kFlags[uiFlag].m_kName));
    }
    for (eC_UInt uiTimer = 0; uiTimer < m_pkFlow->m_kTimers.size(); ++uiTimer)
    {
        if (IsIn(kMemory.m_kRunningTimers, m_pkFlow->m_kTimers[uiTimer].m_kName))
        {
            m_pkRuntime->StartTimer(uiTimer);
        }
    }
    for (const FlowPopup_t& kPopup : m_pkFlow->m_kPopups)
    {
        if (std::find(kMemory.m_kPopups.begin(), kMemory.m_kPopups.end(), kPopup.m_eID) !=
            kMemory.m_kPopups.end())
        {
            GetManager().ShowPopup(kPopup.m_eID);
        }
    }
}
