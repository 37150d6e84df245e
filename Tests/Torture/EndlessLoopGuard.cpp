#include "Tests/Torture/EndlessLoopGuard.h"

#include "TestSupport/TestAccess.h"

eC_UInt CEndlessLoopGuard::ms_uiLoops = 0;

void CEndlessLoopGuard::Begin(ObjectHandle_t eTarget)
{
    m_eTarget = eTarget;
    // Without a current dialog there will not be a single step.
    if (m_kManager.ContainsDialog(eTarget, false))
    {
        OnStep();
    }
}

void CEndlessLoopGuard::OnStep()
{
    ObjectHandle_t& eCurrentID = CGUITestAccess::GetCurrentDialog(m_kManager).m_eDialogID;
    const bool bCanGoOn = eCurrentID != NO_HANDLE && m_kManager.GetHistoryStackSize() > 0;
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
