// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_ENDLESSLOOPGUARD_H
#define TESTS_TORTURE_ENDLESSLOOPGUARD_H

/** @file
 *  Ends loops that would never end by themselves.
 */

#include "Core/GUIDialogManager.h"

/** Ends a stepwise BackToDialog that has lost its target.
 *
 *  Such a loop never ends if the target, or a dialog on the way to it, cannot be restored: that is the
 *  documented price of the stepwise mode. These tests cause it all the time, and must go on. Call OnStep
 *  after each step back. If the target is not current and no further step can change anything, or if many
 *  steps have changed nothing, the guard makes the manager believe that it has arrived, and restores the true
 *  identifier afterwards.
 */
class CEndlessLoopGuard
{
public:
    explicit CEndlessLoopGuard(CGUIDialogManager& kManager) : m_kManager(kManager) {}

    /** A stepwise BackToDialog begins; NO_HANDLE if none does. */
    void Begin(ObjectHandle_t eTarget);

    /** One step is over. */
    void OnStep();

    /** The operation is over. */
    void End();

    /** @return how many loops all guards have ended */
    static eC_UInt GetNOFLoops() { return ms_uiLoops; }

private:
    CGUIDialogManager& m_kManager;
    ObjectHandle_t m_eTarget = NO_HANDLE;
    ObjectHandle_t m_eTrueID = NO_HANDLE;
    bool m_bIsEnded = false;
    ObjectHandle_t m_eLastID = NO_HANDLE; ///< the current dialog after the last step
    eC_UInt m_uiLastSize = 0;             ///< the size of the history after it
    eC_UInt m_uiStepsInVain = 0;

    static eC_UInt ms_uiLoops;
};

#endif
