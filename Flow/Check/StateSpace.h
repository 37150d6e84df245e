// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_STATESPACE_H
#define FLOW_CHECK_STATESPACE_H

/** @file
 *  The states that an application can reach, and the steps between them.
 */

#include "Flow/Check/CheckedState.h"
#include "Flow/Check/Zone.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

/** Gives texts numbers: equal texts have the same one. */
class CTextNumbers
{
public:
    std::uint32_t Get(const std::string& kText);
    const std::string& GetText(std::uint32_t uiNumber) const { return *m_kTexts[uiNumber]; }
    std::size_t GetCount() const { return m_kTexts.size(); }

private:
    std::unordered_map<std::string, std::uint32_t> m_kNumbers;
    std::vector<const std::string*> m_kTexts;
};

/** Histories as stacks that share what they have in common. A stack is the number of its top; 0 is the empty
 * one.
 */
class CStacks
{
public:
    static constexpr std::uint32_t cuiEmpty = 0;

    std::uint32_t Push(std::uint32_t uiStack, std::uint32_t uiSymbol);
    std::uint32_t Pop(std::uint32_t uiStack) const { return m_kTops[uiStack].m_uiBelow; }
    std::uint32_t GetSymbol(std::uint32_t uiStack) const { return m_kTops[uiStack].m_uiSymbol; }
    eC_UInt GetHeight(std::uint32_t uiStack) const { return m_kTops[uiStack].m_uiHeight; }

    /** @return the stack without what is above a height */
    std::uint32_t CutTo(std::uint32_t uiStack, eC_UInt uiHeight) const;

private:
    struct Top_t
    {
        std::uint32_t m_uiBelow;
        std::uint32_t m_uiSymbol;
        eC_UInt m_uiHeight;
    };

    std::vector<Top_t> m_kTops = {{0, 0, 0}};
    std::unordered_map<std::uint64_t, std::uint32_t> m_kNumbers;
};

/** What can happen to an application. */
struct CheckedInput_t
{
    enum EKind : unsigned char
    {
        KEY,    ///< a key of the user
        SIGNAL, ///< a key that is a signal, or a command
        TOUCH,  ///< a touch of the user
        EXPIRY  ///< a timer runs out
    };

    EKind m_eKind;
    eC_UInt m_uiNumber;   ///< the index of the key, the object, or the number of the timer
    std::string m_kLine;  ///< in a scenario; empty for EXPIRY, which is an advance
    std::string m_kTitle; ///< for people
    eC_Bool m_bIsActivation;
};

/** The timers that a step has started, stopped and seen running out. */
struct TimerChanges_t
{
    std::vector<CZone::Clock_t> m_kStarted;
    std::vector<eC_UInt> m_kStopped;
    std::vector<eC_UInt> m_kExpired;
};

constexpr std::uint32_t cuiNoState = 0xFFFFFFFFU;

/** A step from one state to another. */
struct CheckedStep_t
{
    std::uint32_t m_uiTarget;
    std::uint32_t m_uiChanges; ///< what it does to timers
    std::uint16_t m_uiInput;
    std::uint16_t m_uiError; ///< 0: none; otherwise the number of the logged ERROR
};

/** A state that was reached. */
struct ReachedState_t
{
    std::uint32_t m_uiControl;
    std::uint32_t m_uiHistory;
    std::uint32_t m_uiZone;
    std::uint32_t m_uiParent; ///< where a shortest path comes from
    std::uint16_t m_uiInput;  ///< its last step
    std::uint16_t m_uiDepth;  ///< its length
    std::uint32_t m_uiChanges;
    std::uint32_t m_uiBack;    ///< what going back from it leads to, in StateSpace_t::m_kBacks; 0: nothing
    std::uint32_t m_uiVisible; ///< the number of the text that names what is visible under the root
    std::uint32_t m_uiOutcome;
    std::uint32_t m_uiTouchable;
    std::uint32_t m_uiNextOfSame; ///< the next state that differs only in its zone

    // For the properties:
    ObjectHandle_t m_eCurrent;
    ObjectHandle_t m_eFocus;
    std::uint64_t m_uiListed; ///< popups, one bit each
    std::uint64_t m_uiShown;
    std::uint64_t m_uiFrom; ///< claims whose condition "from" holds, one bit each
    std::uint64_t m_uiWhen; ///< claims whose condition holds
    std::uint32_t m_uiBytes;
    std::uint16_t m_uiObjects;
    EFocusFault m_eFocusFault;
    eC_Bool m_bIsExpanded;
    eC_Bool m_bIsHanging;
    eC_Bool m_bIsPumped; ///< a repetition of an earlier one with a longer history; not expanded

    std::uint32_t m_uiFirstStep;
    std::uint32_t m_uiSteps;
};

/** One step back, and what it brings. It follows from the control and the history that it is taken in. */
struct Back_t
{
    ObjectHandle_t m_eLeft;   ///< the current dialog before
    ObjectHandle_t m_eDialog; ///< the one that the topmost entry names
    ObjectHandle_t m_eFocus;  ///< what is to get the focus back, or NO_HANDLE

    // Afterwards:
    ObjectHandle_t m_eCurrent;
    ObjectHandle_t m_eFocussed;
    std::uint32_t m_uiControl;
    std::uint32_t m_uiVisible; ///< as in ReachedState_t
    eC_Bool m_bIsVisible;      ///< the current dialog
    eC_Bool m_bHasPopups;
    std::uint32_t m_uiNext; ///< the next step back; 0: none, or this one has not led to its dialog
};

/** A way to make the history longer and longer. */
struct Pump_t
{
    std::uint32_t m_uiFrom;
    std::uint32_t m_uiTo; ///< like the first, with a longer history on top of that of the first
};

/** Steps, one after the other, by their numbers in StateSpace_t::m_kSteps. */
using Way_t = std::vector<std::uint32_t>;

/** The application as a program that makes entries and takes them back: a frame is what can happen from the
 * step that makes an entry, like a call, until the entry is taken back, like a return. Frame 0 is where
 * nothing was made since the start. Each reachable state is an item, below it a chain of callers up to frame
 * 0, and every such chain can be reached.
 */
struct Pushdown_t
{
    enum EEdge : unsigned char
    {
        INSIDE, ///< to another item of the frame
        CALL,   ///< makes an entry
        EXIT    ///< takes the entry back
    };

    struct Edge_t
    {
        std::uint32_t m_uiStep;
        EEdge m_eKind;
        std::uint32_t m_uiTarget; ///< an item; the frame; the exit of this frame
        std::uint32_t m_uiCaller; ///< CALL: which one of the frame
    };

    /** A control and a symbol that are reached inside a frame. */
    struct Item_t
    {
        std::uint32_t m_uiFrame;
        std::uint32_t m_uiState;
        Way_t m_kWay; ///< from the beginning of the frame
        std::vector<Edge_t> m_kEdges;
    };

    /** Where an entry was made. */
    struct Caller_t
    {
        std::uint32_t m_uiItem;
        std::uint32_t m_uiStep;
    };

    /** Where an exit leads from a caller's point of view. */
    struct Return_t
    {
        enum EKind : unsigned char
        {
            IMPOSSIBLE,
            TO_ITEM,
            TO_EXIT ///< the caller's entry is taken back, too
        };

        EKind m_eKind = IMPOSSIBLE;
        std::uint32_t m_uiTarget = 0; ///< the item, or the exit of the caller's frame
    };

    struct Frame_t
    {
        std::uint32_t m_uiFirstItem; ///< right after the entry was made
        std::uint32_t m_uiExits;
        std::vector<Caller_t> m_kCallers;
        std::vector<std::vector<Return_t>> m_kReturns; ///< by caller and exit
    };

    std::vector<Frame_t> m_kFrames;
    std::vector<Item_t> m_kItems;

    /** @return a way from the start to the beginning of a frame, by as few calls as possible */
    Way_t GetWay(std::uint32_t uiFrame) const;
};

/** A way back that brings something else than what was left. */
struct BackFault_t
{
    std::string m_kText;
    std::uint32_t m_uiState; ///< reached by a shortest path
    Way_t m_kWay;            ///< and from there
};

/** Everything that was explored. */
struct StateSpace_t
{
    std::vector<CheckedInput_t> m_kInputs;
    std::vector<ReachedState_t> m_kStates; ///< in the order in which they were reached
    std::vector<CheckedStep_t> m_kSteps;
    std::vector<Pump_t> m_kPumps;
    std::vector<ObjectHandle_t> m_kDialogs; ///< as they are registered
    std::vector<ObjectHandle_t> m_kPopups;  ///< as they are registered; the bits of the states
    CTextNumbers m_kControls;
    CTextNumbers m_kEntries; ///< of histories
    CTextNumbers m_kTexts;   ///< number 0 is the empty one
    CStacks m_kHistories;
    std::vector<Back_t> m_kBacks; ///< number 0: none
    std::vector<std::vector<ObjectHandle_t>> m_kTouchables;
    std::vector<CZone> m_kZones;
    std::vector<TimerChanges_t> m_kChanges; ///< number 0: none
    std::vector<std::string> m_kTimers;     ///< the names of the timers
    eC_UInt m_uiDepth = 0;                  ///< all states up to this depth are known
    eC_Bool m_bIsComplete = false;          ///< no bound was reached
    eC_Bool m_bIsExact = false; ///< every control is known, with whatever history (see CExactExplorer)
    Pushdown_t m_kPushdown;     ///< if m_bIsExact
    std::vector<BackFault_t> m_kBackFaults; ///< likewise
    ObjectHandle_t m_eHome = NO_HANDLE;
    double m_vSeconds = 0;

    /** @return the steps of a state */
    const CheckedStep_t* GetSteps(const ReachedState_t& kState) const
    {
        return m_kSteps.data() + kState.m_uiFirstStep;
    }

    /** @return whether answers for all histories need m_kPushdown: not if every state is known */
    eC_Bool NeedsPushdown() const { return m_bIsExact && !m_bIsComplete; }

    /** @return the inputs that lead to a state by a shortest path */
    std::vector<std::uint16_t> GetPath(std::uint32_t uiState) const;

    /** @return the states on that path, from the first state to this one */
    std::vector<std::uint32_t> GetStates(std::uint32_t uiState) const;

    /** @return how many of the oldest entries two histories have in common */
    eC_UInt CountCommon(std::uint32_t uiHistory, std::uint32_t uiOther) const;
};

/** Takes a step with the times that a zone allows. @return false: they do not allow the step */
eC_Bool TakeStep(CZone& kZone, const CheckedInput_t& kInput, const TimerChanges_t& kChanges);

/** Finds pauses before each step of a path and one more, so that the timers run out in this order.
 *  @param kChanges what the start and each step of the path do to timers
 *  @param kExpired the timers that run out in the one more step; none: it is a key
 *  @param bMayTie whether others may run out at the same moment as these
 *  @param uiLeastPause how many milliseconds a user needs from one key to the next
 *  @param kPausesOUT receives the shortest pauses, in milliseconds
 *  @return false if there are none
 */
eC_Bool FindPauses(const std::vector<const TimerChanges_t*>& kChanges, const std::vector<eC_UInt>& kExpired,
                   eC_Bool bMayTie, eC_UInt uiLeastPause, std::vector<eC_UInt>& kPausesOUT);

#endif
