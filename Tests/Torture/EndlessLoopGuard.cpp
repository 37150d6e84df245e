// SPDX-License-Identifier: MIT
#include "Tests/Torture/EndlessLoopGuard.h"

#include "TestSupport/TestAccess.h"

eC_UInt CEndlessLoopGuard::ms_uiLoops = 0;

namespace
{
// No scenario that arrives takes this many steps without getting anywhere.
constexpr eC_UInt cuiPatience = 100;
} // namespace

void CEndlessLoopGuard::Begin(ObjectHandle_t eTarget)
{
    m_eTarget = eTarget;
    m_uiStepsInVain = 0;
    // Without a current dialog there is not even one step.
    if (m_kManager.ContainsDialog(eTarget, false))
    {
        OnStep();
    }
}

void CEndlessLoopGuard::OnStep()
{
    ObjectHandle_t& eCurrentID = CGUITestAccess::GetCurrentDialog(m_kManager).m_eDialogID;
    const bool bIsWhereItWas = eCurrentID == m_eLastID && m_kManager.GetHistoryStackSize() == m_uiLastSize;
    m_eLastID = eCurrentID;
    m_uiLastSize = m_kManager.GetHistoryStackSize();
    m_uiStepsInVain = bIsWhereItWas ? m_uiStepsInVain + 1 : 0;
    const bool bCanGoOn = eCurrentID != NO_HANDLE && m_uiLastSize > 0 && m_uiStepsInVain < cuiPatience;
    if (m_eTarget == NO_HANDLE || m_bIsEnded || eCurrentID == m_eTarget || bCanGoOn)
    {
        return;
    }
    m_eTrueID = eCurrentID;
    eCurrentID = m_eTarget;
    m_bIsEnded = true;
    ++ms_uiLoops;
}

void CEndlessLoopGuard::End()
{
    if (m_bIsEnded)
    {
        CGUITestAccess::GetCurrentDialog(m_kManager).m_eDialogID = m_eTrueID;
        m_bIsEnded = false;
    }
    m_eTarget = NO_HANDLE;
}
