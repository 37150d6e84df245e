// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_EXPLORER_H
#define FLOW_CHECK_EXPLORER_H

/** @file
 *  Explores an application by using it.
 */

#include "Flow/Check/CheckSubject.h"
#include "Flow/Check/StateSpace.h"
#include "Scenario/SteppedClock.h"

#include <cstddef>
#include <functional>
#include <memory>

/** How far to go. */
struct ExplorerBounds_t
{
    eC_UInt m_uiDepth = 1000;       ///< steps from the start
    eC_UInt m_uiStates = 1'000'000; ///< after which no further ones are looked at
    eC_Bool m_bRepeats = false;     ///< goes on where a history can grow for ever
};

/** What a progress bar shows. */
struct ExplorerProgress_t
{
    std::size_t m_uiStates;   ///< reached
    std::size_t m_uiExpanded; ///< whose steps are known
    eC_UInt m_uiDepth;
};

/** Explores breadth-first. It tries every key, signal, touch and every timer that may run out next in every
 *  state, on the application itself: there is no way to put one into a state but to start it and to repeat
 * the keys that lead there.
 *
 *  A user needs at least one millisecond from one key to the next.
 */
class CExplorer
{
public:
    using Progress_t = std::function<void(const ExplorerProgress_t&)>;
    using Heap_t = std::size_t (*)(); ///< bytes in use

    /** @param kSubject stopped; not owned */
    explicit CExplorer(CCheckSubject& kSubject);
    CExplorer(const CExplorer&) = delete;
    CExplorer& operator=(const CExplorer&) = delete;
    virtual ~CExplorer();

    void SetProgress(Progress_t fnProgress) { m_fnProgress = std::move(fnProgress); }
    void SetHeap(Heap_t pfnHeap) { m_pfnHeap = pfnHeap; }

    /** Explores the application. @throw what the application throws */
    StateSpace_t Explore(const ExplorerBounds_t& kBounds);

protected:
    class CCommands;
    class CErrorSink;

    void Begin();
    void ExploreUpTo(const ExplorerBounds_t& kBounds);
    void FindInputs();
    void AddInput(CheckedInput_t::EKind eKind, eC_UInt uiNumber, const std::string& kLine,
                  const std::string& kTitle, eC_Bool bIsActivation);
    void FindDefinitions();
    std::uint16_t GetTouch(ObjectHandle_t eObject);
    std::uint16_t GetExpiry(eC_UInt uiTimer);
    eC_UInt GetTimer(const std::string& kName);

    void AddFirstState();
    void Expand(std::uint32_t uiState);
    std::vector<std::uint16_t> GetInputs(const ReachedState_t& kState);
    CheckedStep_t Try(std::uint32_t uiState, std::uint16_t uiInput);
    eC_Bool GoTo(std::uint32_t uiState, const std::vector<eC_UInt>& kExpired);
    eC_Bool GoOn(const std::vector<std::uint32_t>& kStates,
                 const std::vector<const TimerChanges_t*>& kChanges, const std::vector<eC_UInt>& kExpired,
                 const std::vector<eC_UInt>& kPauses);
    Way_t FindWayTo(const std::vector<std::uint32_t>& kStates, std::size_t& uiMetOUT);
    void NoteKeys(const std::vector<std::uint32_t>& kStates, const std::vector<eC_UInt>& kPauses) const;
    void Restart();
    void Apply(std::uint16_t uiInput, eC_UInt uiPause);
    void NoteTimers(const std::vector<RunningTimer_t>& kTimers);
    TimerChanges_t GetChanges(const CheckedState_t& kState, eC_UInt uiPause);
    void MeasureBytes(std::uint32_t uiParent, std::uint16_t uiInput, CheckedState_t& kState);
    std::uint32_t AddChanges(const TimerChanges_t& kChanges);
    std::uint32_t AddState(CheckedState_t kState, const CZone& kZone, const TimerChanges_t& kChanges,
                           std::uint32_t uiParent, std::uint16_t uiInput);
    std::uint32_t FindState(std::uint32_t uiControl, std::uint32_t uiHistory, const CZone& kZone) const;
    void FillFacts(const CheckedState_t& kState, ReachedState_t& kReached);
    std::uint64_t GetPopups(const std::vector<ObjectHandle_t>& kPopups) const;
    std::uint32_t GetHistory(const CheckedState_t& kState);
    void FindPump(std::uint32_t uiState);
    eC_Bool IsPump(std::uint32_t uiFrom, std::uint32_t uiTo);
    std::uint32_t GoBack(CheckedState_t kState);
    void NotePlace(const CheckedState_t& kState);
    Back_t TakeStepBack(CheckedState_t& kState);
    std::string NameVisible(const CheckedState_t& kState) const;

    CCheckSubject& m_kSubject;
    CSteppedClock m_kClock;
    std::unique_ptr<CErrorSink> m_pkErrors;
    std::unique_ptr<CCommands> m_pkCommands;
    Progress_t m_fnProgress;
    Heap_t m_pfnHeap = nullptr;
    StateSpace_t m_kSpace;
    std::unordered_map<std::uint64_t, std::uint32_t> m_kFirstOfSame; ///< by control and history
    std::unordered_map<std::uint64_t, std::uint32_t> m_kBackNumbers; ///< likewise
    std::unordered_map<ObjectHandle_t, std::uint16_t> m_kTouches;
    std::vector<std::uint16_t> m_kAlways; ///< the inputs that are possible in every state
    std::unordered_map<eC_UInt, std::uint16_t> m_kExpiries;
    CTextNumbers m_kTimerNumbers;
    CTextNumbers m_kOutcomes;
    std::unordered_map<std::string, std::uint32_t> m_kTouchableNumbers;
    std::size_t m_uiBytes = 0;     ///< that the application has allocated since its start
    std::size_t m_uiMostBytes = 0; ///< of all states
    eC_Bool m_bIsStraight = true;  ///< the keys since its start are those of a path
    eC_Bool m_bIsStarted = false;
    eC_Bool m_bHasLines = false;
    std::uint32_t m_uiAt = cuiNoState;      ///< the state that the application is in, if that is certain
    std::vector<RunningTimer_t> m_kNow;     ///< there
    std::vector<RunningTimer_t> m_kRunning; ///< before the last step
    eC_UInt m_uiPause = 0;                  ///< before the step to be tried
};

#endif
