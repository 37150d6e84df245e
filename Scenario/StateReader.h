// SPDX-License-Identifier: MIT
#ifndef SCENARIO_STATEREADER_H
#define SCENARIO_STATEREADER_H

/** @file
 *  The state of a dialog manager and of the framework around it, item by item. Everything that shows or
 *  compares the state reads it here. Reading allocates nothing, logs nothing, calls no hook and needs a stack
 *  that does not grow with the state.
 */

#include "Scenario/StateAccess.h"

/** Parts of the state, to be combined with |. */
enum EStatePart : unsigned int
{
    STATE_CURRENT = 1U << 0U,
    STATE_HISTORY = 1U << 1U,
    STATE_DIALOG_DEFINITIONS = 1U << 2U,
    STATE_POPUP_DEFINITIONS = 1U << 3U,
    STATE_ACTIVE_POPUPS = 1U << 4U,
    STATE_REMEMBERED_FOCUS = 1U << 5U,
    STATE_DYNAMIC_IDENTIFIERS = 1U << 6U,
    STATE_FOCUS = 1U << 7U,
    STATE_TREE = 1U << 8U,
    STATE_TIMERS = 1U << 9U, ///< not among STATE_ALL: the active popups have their times with them
    STATE_DEFINITIONS = STATE_DIALOG_DEFINITIONS | STATE_POPUP_DEFINITIONS,
    STATE_ALL = (STATE_TREE << 1U) - 1U
};

/** A popup that is listed. */
struct ActivePopupState_t
{
    const CGUIObject* m_pkObject;                   ///< null when it was destroyed
    CGUIDialogManager::PopupPriority_t m_ePriority; ///< as registered
    eC_UInt m_uiDisplayTime;                        ///< milliseconds, 0 for no limit
    eC_Bool m_bDeleteOnClose;                       ///< whether closing deletes the object
    eC_Bool m_bIsDetached;                          ///< it has an object, which is not under the root
    eC_Bool m_bHasTimer;                            ///< the timer will call it
    eC_UInt m_uiDue;                                ///< when, by the timer's clock
    eC_UInt m_uiTimeLeft;                           ///< milliseconds until then
};

/** An object under the root. */
struct ObjectState_t
{
    const CGUIObject* m_pkObject; ///< itself
    eC_UInt m_uiDepth;            ///< 0 for a child of the root
    eC_Bool m_bHasFocus;          ///< the keyboard focus
};

/** What the timer will call. */
struct TimerState_t
{
    eC_Bool m_bIsPopup;        ///< it is the display time of an active popup
    ObjectHandle_t m_ePopupID; ///< of that popup; NO_HANDLE when its object is gone
    eC_UInt m_uiInterval;      ///< milliseconds
    eC_UInt m_uiDue;           ///< when it calls next, by its clock
    eC_UInt m_uiTimeLeft;      ///< milliseconds until then
};

/** Gets the items of the state. What is given lasts as long as the call. The operations change nothing that
 *  is read.
 */
class CStateVisitor
{
public:
    using Access = CGUIStateAccess; ///< where the types of the items come from

    virtual ~CStateVisitor() = default;

    /** The current dialog. */
    virtual void VisitCurrent(const Access::DialogDescription_t& kDialog) = 0;
    /** A remembered dialog, the most recent one first. */
    virtual void VisitHistoryEntry(const Access::HistoryEntry_t& kEntry) = 0;
    /** A registered dialog. */
    virtual void VisitDialogDefinition(const Access::RegisteredDialog_t& kDefinition) = 0;
    /** A registered popup. */
    virtual void VisitPopupDefinition(const Access::RegisteredPopup_t& kDefinition) = 0;
    /** A listed popup. */
    virtual void VisitActivePopup(const ActivePopupState_t& kPopup) = 0;
    /** The object that had the focus before the popups came. */
    virtual void VisitRememberedFocus(const CGUIObject& kObject) = 0;
    /** An identifier that was made at run time. */
    virtual void VisitDynamicIdentifier(ObjectHandle_t eID) = 0;
    /** The object that has the focus. */
    virtual void VisitFocus(const CGUIObject& kObject) = 0;
    /** An object under the root, parents before their children. */
    virtual void VisitObject(const ObjectState_t& kObject) = 0;
    /** What the timer will call. */
    virtual void VisitTimer(const TimerState_t& kTimer) = 0;
};

/** Visits items in the order of the parts: the current dialog (always one item), the history with the most
 *  recent entry first, definitions in order of registration, active popups with the lowest priority first,
 *  what gets the focus back, dynamic identifiers in order of creation, the focus, the objects under the root
 *  in pre-order, timers in the order in which they are due.
 *  @param kManager the manager; it is not changed
 *  @param uiParts which parts
 */
void VisitState(const CGUIDialogManager& kManager, eC_UInt uiParts, CStateVisitor& kVisitor);

#endif
