// SPDX-License-Identifier: MIT
#ifndef TESTS_ENDURANCE_EXPECTATION_H
#define TESTS_ENDURANCE_EXPECTATION_H

/** @file
 *  The expected state of a dialog manager, modelled with a few vectors and flags.
 */

#include "Core/GUIDialogManager.h"

#include <cstdint>
#include <vector>

/** One dialog as the manager describes it. */
struct ExpectedDialog_t
{
    eC_UInt m_uiDialog = 0;
    CGUIDialogManager::EOldDialogAction m_eAfter = CGUIDialogManager::ODA_NOTHING;
    bool m_bAllowDeletion = true;
};

/** One entry of the history. */
struct ExpectedEntry_t
{
    ExpectedDialog_t m_kDialog;
    CGUIDialogManager::EOldDialogAction m_eAction = CGUIDialogManager::ODA_NOTHING;
};

/** One popup that is listed. */
struct ExpectedPopup_t
{
    eC_UInt m_uiPopup = 0;
    eC_UInt m_uiDisplayTime = 0; ///< milliseconds
    bool m_bRuns = false;        ///< its time is running
    eC_UInt m_uiDue = 0;         ///< when its time is up
};

/** A dialog or popup object. */
struct ExpectedObject_t
{
    bool m_bLives = false;
    bool m_bIsInvisible = false;
};

/** The definition of a popup. */
struct ExpectedDefinition_t
{
    CGUIDialogManager::PopupPriority_t m_ePriority;
    eC_UInt m_uiDisplayTime;
    bool m_bDeleteOnClose;
};

/** The state after a sequence of operations. It assumes that no operation switches to a dialog that is
 *  current or in the history, that every dialog and popup can be loaded, and that no hook does anything.
 *  Dialogs and popups are counted from 0.
 */
class CExpectation
{
public:
    CExpectation(eC_UInt uiDialogs, std::vector<ExpectedDefinition_t> kDefinitions, eC_UInt uiTime);

    void CreateDialog(eC_UInt uiDialog, CGUIDialogManager::EOldDialogAction eAction);
    void Back(bool bDelete);

    /** The dialog must be in the history. @return false if the stepwise mode would never end */
    bool BackToDialog(eC_UInt uiDialog, bool bDelete, bool bStepwise);

    void ClearDialogHistory(eC_UInt uiKeep, bool bDelete, bool bDeleteCurrent);
    void ShowPopup(eC_UInt uiPopup);
    void ClosePopup(eC_UInt uiPopup);
    void UpdateDisplayTime(eC_UInt uiPopup, eC_UInt uiDisplayTime);
    void Advance(eC_UInt uiMilliseconds);

    /** Destroys a hidden dialog that is neither current nor in the history, or a popup that is not listed. */
    void DestroyDialog(eC_UInt uiDialog) { m_kDialogs[uiDialog] = {}; }
    void DestroyPopup(eC_UInt uiPopup) { m_kPopups[uiPopup] = {}; }

    /** Sets the time; no popup's time may be running. */
    void SetTime(eC_UInt uiTime) { m_uiTime = uiTime; }

    bool HasCurrent() const { return m_bHasCurrent; }
    eC_UInt GetCurrent() const { return m_kCurrent.m_uiDialog; }

    /** @return the history, the most recent entry last */
    const std::vector<ExpectedEntry_t>& GetHistory() const { return m_kHistory; }

    /** @return whether the dialog is current or in the history */
    bool IsUsed(eC_UInt uiDialog) const;

    /** @return the listed popups, as the manager lists them */
    const std::vector<ExpectedPopup_t>& GetActivePopups() const { return m_kActive; }

    bool IsListed(eC_UInt uiPopup) const { return FindActive(uiPopup) < m_kActive.size(); }

    const ExpectedObject_t& GetDialog(eC_UInt uiDialog) const { return m_kDialogs[uiDialog]; }
    const ExpectedObject_t& GetPopup(eC_UInt uiPopup) const { return m_kPopups[uiPopup]; }
    eC_UInt GetDisplayTime(eC_UInt uiPopup) const { return m_kDefinitions[uiPopup].m_uiDisplayTime; }
    eC_UInt GetTime() const { return m_uiTime; }

    /** @return the milliseconds until the first display time is up, CGUITimer::cuiNoCallback if none is
     *         running
     */
    eC_UInt GetTimeUntilNext() const;

    /** @return a number that equal states share; it ignores the time, which needs no memory */
    std::uint64_t GetHash() const;

private:
    void Hide(eC_UInt uiDialog) { m_kDialogs[uiDialog].m_bIsInvisible = m_kDialogs[uiDialog].m_bLives; }
    void Obtain(eC_UInt uiDialog) { m_kDialogs[uiDialog] = {true, false}; }
    void Delete(const ExpectedDialog_t& kDialog, bool bDelete);
    void ApplyToHistory(CGUIDialogManager::EOldDialogAction eAction);
    void RemoveMostRecent(bool bDelete);
    void BringBack();

    std::size_t FindActive(eC_UInt uiPopup) const;
    void Arbitrate();
    void StartTime(ExpectedPopup_t& kPopup) const;

    std::vector<ExpectedObject_t> m_kDialogs;
    std::vector<ExpectedObject_t> m_kPopups;
    std::vector<ExpectedDefinition_t> m_kDefinitions;
    std::vector<ExpectedEntry_t> m_kHistory;
    std::vector<ExpectedPopup_t> m_kActive;
    ExpectedDialog_t m_kCurrent;
    bool m_bHasCurrent = false;
    eC_UInt m_uiTime;
};

#endif
