// SPDX-License-Identifier: MIT
#include "Tests/Torture/TortureSetup.h"

#include <utility>

namespace
{
bool BeginsWith(const eC_String& kText, const std::string& kBeginning)
{
    return kBeginning.compare(0, kBeginning.size(), kText.GetText(), 0, kBeginning.size()) == 0;
}
} // namespace

void CTortureTrace::Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                          const eC_String& kLine)
{
    const CAllocationFailureScope kSpared(false);
    CTraceRecorder::Write(kPrefix, kMessage, kFile, kLine);
    // A step ends with its last hook, which the application's managers log, or with an exception.
    if (BeginsWith(kMessage, "hook OnAfterDialogDeletion(") ||
        BeginsWith(kMessage, "CGUIDialogManager::Back: Caught an exception"))
    {
        m_kGuard.OnStep();
    }
}

void CTortureSetup::Arm(const Injection_t& kInjection)
{
    if (IsAllocation(kInjection.m_eKind))
    {
        m_pkFailure.emplace(kInjection.m_uiNumber - 1, kInjection.m_eKind == INJECTION_ALLOCATION
                                                           ? CAllocationFailure::ONE
                                                           : CAllocationFailure::ALL_FURTHER);
    }
    else if (IsHook(kInjection.m_eKind))
    {
        FailHook(kInjection.m_uiNumber, GetFailure(kInjection.m_eKind));
    }
    else
    {
        GetReader().FailLoad(kInjection.m_uiNumber, GetFailure(kInjection.m_eKind));
    }
}

bool CTortureSetup::HasFired() const
{
    return m_pkFailure.has_value() && m_pkFailure->GetRefused() > 0;
}

bool CTortureSetup::WasSilent()
{
    return m_pkFailure.has_value() && m_pkFailure->GetThrown() == 0 && !GetReader().HasRunOutOfMemory();
}

void CTortureSetup::Disarm()
{
    m_pkFailure.reset();
    GetReader().FailLoad(0, FAILURE_NULL);
}

std::vector<std::string> CTortureSetup::TakeLines()
{
    return std::exchange(m_kLines, {});
}

ObjectHandle_t GetStepwiseTarget(const CScenarioArguments& kArguments)
{
    const bool bIsStepwise = kArguments.GetCommand() == "BackToDialog" && kArguments.GetText(2) == "true";
    return bIsStepwise ? kArguments.GetHandle(0) : NO_HANDLE;
}
