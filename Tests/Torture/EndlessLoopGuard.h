// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_ENDLESSLOOPGUARD_H
#define TESTS_TORTURE_ENDLESSLOOPGUARD_H

/** @file
 *  Ends what would never end by itself.
 */

#include "Core/GUIDialogManager.h"

/** Ends a stepwise BackToDialog that has lost its target.
 *
 *  Such a loop does not end when the target, or what would lead to it, cannot be brought back: that is the
 *  documented price of the stepwise mode. Here it is made to happen all the time, so that the runs must go
 *  on. Whoever learns that one step back is over asks the guard; when no further step can change anything
 *  and the target is not current, or many steps have changed nothing, the guard makes the manager believe
 *  that it has arrived, and gives it the true identifier back afterwards.
 */
class CEndlessLoopGuard
{
public:
    explicit CEndlessLoopGuard(CGUIDialogManager& kManager) : m_kManager(kManager) {}

    /** A stepwise BackToDialog begins; NO_HANDLE: none does. */
    void Begin(ObjectHandle_t eTarget);

    /** One step is over. */
    void OnStep();

    /** The operation is over. */
    void End();

    /** @return how many loops were ended, by all guards */
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
