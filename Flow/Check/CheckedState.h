// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_CHECKEDSTATE_H
#define FLOW_CHECK_CHECKEDSTATE_H

/** @file
 *  The state of an application in a form in which equal states are equal.
 */

#include "Flow/Check/CheckSubject.h"

#include <cstdint>
#include <string>
#include <vector>

/** What is wrong with the focus. */
enum EFocusFault : unsigned char
{
    FOCUS_RIGHT,
    FOCUS_NOWHERE,   ///< although something visible could have it
    FOCUS_ANONYMOUS, ///< its object has no identifier of its own
    FOCUS_AMBIGUOUS  ///< another object of the same window has its identifier
};

/** A state. What the user can tell apart, or the manager, is in the first two members: the control, which can
 *  only have finitely many values, and the history, which may grow. Times are left out, except which run.
 */
struct CheckedState_t
{
    std::string m_kControl;              ///< current dialog, popups, objects, focus, timers, flags
    std::vector<std::string> m_kHistory; ///< one text for each entry, the oldest first

    // What properties need to know, which follows from the above:
    std::vector<ObjectHandle_t> m_kHistoryDialogs;
    std::vector<ObjectHandle_t> m_kHistoryFocus; ///< what is to get the focus back, or NO_HANDLE
    ObjectHandle_t m_eCurrent = NO_HANDLE;
    ObjectHandle_t m_eFocus = NO_HANDLE;
    EFocusFault m_eFocusFault = FOCUS_RIGHT;
    std::vector<ObjectHandle_t> m_kListedPopups;
    std::vector<ObjectHandle_t> m_kShownPopups;
    std::vector<ObjectHandle_t> m_kVisible; ///< what is visible under the root, without popups, sorted
    std::vector<ObjectHandle_t> m_kTouchable;
    eC_UInt m_uiObjects = 0;
    std::string m_kOutcome; ///< what a second press must not change: dialogs, history, popups, own state
    std::vector<RunningTimer_t> m_kTimers; ///< display times, named after their popups, and the others
};

/** Reads the state of a running application. */
CheckedState_t ReadCheckedState(const CCheckSubject& kSubject);

#endif
