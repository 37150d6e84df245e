// SPDX-License-Identifier: MIT
#include "Flow/FlowApplication.h"

#include "Scenario/StateAccess.h"

#include <utility>

namespace
{
/** @return the names of flags or timers */
template <class Item_t>
std::vector<std::string> GetNames(const std::vector<Item_t>& kItems)
{
    std::vector<std::string> kNames;
    kNames.reserve(kItems.size());
    for (const Item_t& kItem : kItems)
    {
        kNames.push_back(kItem.m_kName);
    }
    return kNames;
}
} // namespace

CFlowApplication::CFlowApplication(std::shared_ptr<const FlowModel_t> pkFlow) : m_pkFlow(std::move(pkFlow))
{
    DescribeDevice();
}

CFlowApplication::~CFlowApplication() = default;

void CFlowApplication::SetFlow(std::shared_ptr<const FlowModel_t> pkFlow)
{
    m_pkFlow = std::move(pkFlow);
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
    m_pkRuntime->StartTimers();
    m_pkRuntime->RunStart();
    return GetManager().GetCurrentDialogID() != NO_HANDLE;
}

void CFlowApplication::AddCommands(CSimulatedCommands& kCommands)
{
    const std::vector<std::string> kFlags = GetNames(m_pkFlow->m_kFlags);
    const std::vector<std::string> kTimers = GetNames(m_pkFlow->m_kTimers);
    if (!kFlags.empty())
    {
        kCommands.Add("set <flag> <value>",
                      [this, kFlags](const CScenarioArguments& kArguments)
                      {
                          const eC_UInt uiFlag = kArguments.GetChoice(0, kFlags);
                          m_pkRuntime->Set(uiFlag, kArguments.GetFlag(1));
                          return std::string();
                      });
    }
    if (!kTimers.empty())
    {
        kCommands.Add("start <timer>",
                      [this, kTimers](const CScenarioArguments& kArguments)
                      {
                          m_pkRuntime->StartTimer(kArguments.GetChoice(0, kTimers));
                          return std::string();
                      });
        kCommands.Add("stop <timer>",
                      [this, kTimers](const CScenarioArguments& kArguments)
                      {
                          m_pkRuntime->StopTimer(kArguments.GetChoice(0, kTimers));
                          return std::string();
                      });
    }
}
