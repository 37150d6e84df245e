// SPDX-License-Identifier: MIT
#include "Tests/Endurance/Expectation.h"

#include "Core/GUITimer.h"

#include <algorithm>
#include <utility>

using Manager = CGUIDialogManager;

namespace
{
bool Hides(Manager::EOldDialogAction eAction)
{
    return eAction == Manager::ODA_INVISIBLE || eAction == Manager::ODA_INVISIBLE_ALL;
}

bool Deletes(Manager::EOldDialogAction eAction)
{
    return eAction == Manager::ODA_DELETE || eAction == Manager::ODA_DELETE_ALL;
}
} // namespace

CExpectation::CExpectation(eC_UInt uiDialogs, std::vector<ExpectedDefinition_t> kDefinitions, eC_UInt uiTime)
    : m_kDialogs(uiDialogs),
      m_kPopups(kDefinitions.size()),
      m_kDefinitions(std::move(kDefinitions)),
      m_uiTime(uiTime)
{
    // Allocate now: this object's memory must not change while the library's is measured.
    m_kHistory.reserve(uiDialogs);
    m_kActive.reserve(m_kPopups.size());
}

void CExpectation::CreateDialog(eC_UInt uiDialog, Manager::EOldDialogAction eAction)
{
    const bool bIsNew = !m_kDialogs[uiDialog].m_bLives;
    if (m_bHasCurrent)
    {
        if (eAction == Manager::ODA_INVISIBLE_ALL || eAction == Manager::ODA_DELETE_ALL)
        {
            ApplyToHistory(eAction);
        }
        if (eAction != Manager::ODA_NOTHING)
        {
            Delete(m_kCurrent, Deletes(eAction));
        }
        m_kHistory.push_back({m_kCurrent, eAction});
    }
    Obtain(uiDialog);
    m_kCurrent = {uiDialog, eAction, bIsNew};
    m_bHasCurrent = true;
}

void CExpectation::Back(bool bDelete)
{
    if (m_bHasCurrent && !m_kHistory.empty())
    {
        Delete(m_kCurrent, bDelete);
        BringBack();
    }
}

bool CExpectation::BackToDialog(eC_UInt uiDialog, bool bDelete, bool bStepwise)
{
    if (bStepwise)
    {
        while (m_bHasCurrent && !m_kHistory.empty() && m_kCurrent.m_uiDialog != uiDialog)
        {
            Back(bDelete);
        }
        return m_bHasCurrent && m_kCurrent.m_uiDialog == uiDialog;
    }
    if (m_bHasCurrent)
    {
        Delete(m_kCurrent, bDelete);
    }
    while (m_kHistory.back().m_kDialog.m_uiDialog != uiDialog)
    {
        RemoveMostRecent(bDelete);
    }
    BringBack();
    return true;
}

void CExpectation::ClearDialogHistory(eC_UInt uiKeep, bool bDelete, bool bDeleteCurrent)
{
    const bool bCurrentGoes = bDeleteCurrent && m_bHasCurrent;
    if (m_kHistory.size() + (bCurrentGoes ? 1U : 0U) <= uiKeep)
    {
        return;
    }
    if (bCurrentGoes)
    {
        Delete(m_kCurrent, bDelete);
    }
    while (m_kHistory.size() > uiKeep)
    {
        RemoveMostRecent(bDelete);
    }
    if (bDeleteCurrent)
    {
        BringBack();
    }
}

void CExpectation::ShowPopup(eC_UInt uiPopup)
{
    const ExpectedDefinition_t& kDefinition = m_kDefinitions[uiPopup];
    const std::size_t uiActive = FindActive(uiPopup);
    if (uiActive < m_kActive.size())
    {
        ExpectedPopup_t& kPopup = m_kActive[uiActive];
        kPopup.m_uiDisplayTime = kDefinition.m_uiDisplayTime;
        if (!m_kPopups[uiPopup].m_bIsInvisible)
        {
            kPopup.m_bRuns = false;
            StartTime(kPopup);
        }
        return;
    }
    m_kPopups[uiPopup] = {true, true};
    const auto kPlace =
        std::find_if(m_kActive.begin(), m_kActive.end(),
                     [this, &kDefinition](const ExpectedPopup_t& kOther)
                     { return m_kDefinitions[kOther.m_uiPopup].m_ePriority >= kDefinition.m_ePriority; });
    m_kActive.insert(kPlace, {uiPopup, kDefinition.m_uiDisplayTime, false, 0});
    Arbitrate();
}

void CExpectation::ClosePopup(eC_UInt uiPopup)
{
    const std::size_t uiActive = FindActive(uiPopup);
    if (uiActive == m_kActive.size())
    {
        return;
    }
    m_kPopups[uiPopup] = {!m_kDefinitions[uiPopup].m_bDeleteOnClose,
                          !m_kDefinitions[uiPopup].m_bDeleteOnClose};
    m_kActive.erase(m_kActive.begin() + static_cast<std::ptrdiff_t>(uiActive));
    Arbitrate();
}

void CExpectation::UpdateDisplayTime(eC_UInt uiPopup, eC_UInt uiDisplayTime)
{
    m_kDefinitions[uiPopup].m_uiDisplayTime = uiDisplayTime;
}

void CExpectation::Advance(eC_UInt uiMilliseconds)
{
    eC_UInt uiLeft = uiMilliseconds;
    for (eC_UInt uiNext = GetTimeUntilNext(); uiNext != CGUITimer::cuiNoCallback && uiNext <= uiLeft;
         uiNext = GetTimeUntilNext())
    {
        m_uiTime += uiNext;
        uiLeft -= uiNext;
        const auto kDue = std::find_if(m_kActive.begin(), m_kActive.end(),
                                       [this](const ExpectedPopup_t& kPopup)
                                       { return kPopup.m_bRuns && kPopup.m_uiDue == m_uiTime; });
        ClosePopup(kDue->m_uiPopup);
    }
    m_uiTime += uiLeft;
}

bool CExpectation::IsUsed(eC_UInt uiDialog) const
{
    return (m_bHasCurrent && m_kCurrent.m_uiDialog == uiDialog) ||
           std::any_of(m_kHistory.begin(), m_kHistory.end(),
                       [uiDialog](const ExpectedEntry_t& kEntry)
                       { return kEntry.m_kDialog.m_uiDialog == uiDialog; });
}

eC_UInt CExpectation::GetTimeUntilNext() const
{
    eC_UInt uiShortest = CGUITimer::cuiNoCallback;
    for (const ExpectedPopup_t& kPopup : m_kActive)
    {
        if (kPopup.m_bRuns)
        {
            uiShortest = std::min(uiShortest, kPopup.m_uiDue - m_uiTime);
        }
    }
    return uiShortest;
}

std::uint64_t CExpectation::GetHash() const
{
    std::uint64_t uiHash = 0xCBF29CE484222325U;
    const auto Mix = [&uiHash](std::uint64_t uiValue)
    {
        uiHash = (uiHash ^ uiValue) * 0x9E3779B97F4A7C15U;
        uiHash ^= uiHash >> 29U;
    };
    Mix(m_bHasCurrent ? 1 + m_kCurrent.m_uiDialog : 0);
    for (const ExpectedEntry_t& kEntry : m_kHistory)
    {
        Mix(kEntry.m_kDialog.m_uiDialog * 8U + kEntry.m_eAction);
    }
    for (const ExpectedObject_t& kObject : m_kDialogs)
    {
        Mix(kObject.m_bLives ? 1 : 0);
    }
    for (const ExpectedPopup_t& kPopup : m_kActive)
    {
        Mix(kPopup.m_uiPopup * 2U + (kPopup.m_bRuns ? 1 : 0));
    }
    for (const ExpectedObject_t& kObject : m_kPopups)
    {
        Mix(kObject.m_bLives ? 1 : 0);
    }
    return uiHash;
}

void CExpectation::Delete(const ExpectedDialog_t& kDialog, bool bDelete)
{
    if (bDelete && kDialog.m_bAllowDeletion)
    {
        m_kDialogs[kDialog.m_uiDialog] = {};
    }
    else
    {
        Hide(kDialog.m_uiDialog);
    }
}

void CExpectation::ApplyToHistory(Manager::EOldDialogAction eAction)
{
    for (const ExpectedEntry_t& kEntry : m_kHistory)
    {
        if (Hides(kEntry.m_eAction) || eAction == Manager::ODA_INVISIBLE_ALL)
        {
            Hide(kEntry.m_kDialog.m_uiDialog);
        }
        else if (Deletes(kEntry.m_eAction) || eAction == Manager::ODA_DELETE_ALL)
        {
            Delete(kEntry.m_kDialog, true);
        }
        else
        {
            Obtain(kEntry.m_kDialog.m_uiDialog);
        }
    }
}

void CExpectation::RemoveMostRecent(bool bDelete)
{
    const ExpectedDialog_t kDialog = m_kHistory.back().m_kDialog;
    m_kHistory.pop_back();
    Delete(kDialog, bDelete);
}

void CExpectation::BringBack()
{
    m_bHasCurrent = false;
    if (m_kHistory.empty())
    {
        return;
    }
    const ExpectedEntry_t kEntry = m_kHistory.back();
    m_kHistory.pop_back();
    ApplyToHistory(kEntry.m_kDialog.m_eAfter);
    const eC_UInt uiDialog = kEntry.m_kDialog.m_uiDialog;
    const bool bIsThere = m_kDialogs[uiDialog].m_bLives || Deletes(kEntry.m_eAction);
    if (bIsThere && kEntry.m_eAction != Manager::ODA_NOTHING)
    {
        Obtain(uiDialog);
    }
    m_kCurrent = kEntry.m_kDialog;
    m_bHasCurrent = bIsThere;
}

std::size_t CExpectation::FindActive(eC_UInt uiPopup) const
{
    const auto kFound =
        std::find_if(m_kActive.begin(), m_kActive.end(),
                     [uiPopup](const ExpectedPopup_t& kPopup) { return kPopup.m_uiPopup == uiPopup; });
    return static_cast<std::size_t>(kFound - m_kActive.begin());
}

void CExpectation::Arbitrate()
{
    for (ExpectedPopup_t& kPopup : m_kActive)
    {
        const bool bIsDisplayed = m_kDefinitions[kPopup.m_uiPopup].m_ePriority ==
                                  m_kDefinitions[m_kActive.back().m_uiPopup].m_ePriority;
        m_kPopups[kPopup.m_uiPopup].m_bIsInvisible = !bIsDisplayed;
        if (!bIsDisplayed)
        {
            kPopup.m_bRuns = false;
        }
        else if (!kPopup.m_bRuns)
        {
            StartTime(kPopup);
        }
    }
}

void CExpectation::StartTime(ExpectedPopup_t& kPopup) const
{
    kPopup.m_bRuns = kPopup.m_uiDisplayTime != 0;
    kPopup.m_uiDue = m_uiTime + kPopup.m_uiDisplayTime;
}
