// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_EXACTEXPLORER_H
#define FLOW_CHECK_EXACTEXPLORER_H

/** @file
 *  Explores an application whose history may grow without bound.
 */

#include "Flow/Check/Explorer.h"

#include <deque>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

/** Explores breadth-first, and where that does not come to an end, finds every control that the application
 * can reach with histories of any length, and how it gets from one to the other.
 *
 *  The history is a stack over finitely many controls, so this is reachability of a pushdown system (A.
 * Bouajjani, J. Esparza, O. Maler: Reachability Analysis of Pushdown Automata, 1997; S. Schwoon:
 * Model-Checking Pushdown Systems, 2002). It is decided by summaries, as a procedure's calls and returns are
 * (T. Reps, S. Horwitz, M. Sagiv: Precise Interprocedural Dataflow Analysis via Graph Reachability, 1995):
 * what can happen from the step that makes an entry until the entry is taken back is explored once for each
 * control and each symbol, and used wherever the same entry is made again.
 *
 *  A symbol is an entry and a summary of all below it, because going back and the actions for all dialogs
 * walk the whole history. The summary is what these operations can tell apart:
 *  - the entries without those that occur again further up. Hiding, deleting and showing a dialog a second
 * time undoes what was done to it in between, so only the last of equal entries counts.
 *  - the same for the entries below the topmost one of each dialog, for going back to that dialog,
 *  - the oldest entries, as many as a clearing of the history may keep.
 *
 *  The application itself takes every step, so each state found is one that it really comes to.
 *
 *  Whether going back is right (P3) depends on the way that led to a state, as what was left must come back.
 * So all ways to an entry are compared with all ways back to it.
 *
 *  It does not apply, and says so, where one step takes back several entries one after the other (a stepwise
 * way back, or more than one back in a reaction), where it takes back several and makes a new one, and where
 * it makes several.
 */
class CExactExplorer : public CExplorer
{
public:
    explicit CExactExplorer(CCheckSubject& kSubject) : CExplorer(kSubject) {}

    /** Explores the application.
     *  @param kBounds of the part that is explored breadth-first; as many states more are then looked at, so
     * that it ends in any case
     *  @param kObstacleOUT receives why the result is not exact; empty: it is, or every state is known anyway
     *  @throw what the application throws
     */
    StateSpace_t ExploreExactly(const ExplorerBounds_t& kBounds, std::string& kObstacleOUT);

private:
    /** How an entry was taken back. */
    struct Exit_t
    {
        Way_t m_kWay;              ///< from the beginning of the frame
        std::uint32_t m_uiControl; ///< then
        eC_Bool m_bGoesOn;         ///< more entries are taken back, up to the topmost one of a dialog
        ObjectHandle_t m_eUpTo;    ///< that dialog; NO_HANDLE: up to a height
        eC_UInt m_uiHeight;        ///< that height
    };

    /** What is known of a frame while it is explored. */
    struct Frame_t
    {
        std::vector<Exit_t> m_kExits;
        std::map<std::tuple<std::uint32_t, eC_Bool, ObjectHandle_t, eC_UInt>, std::uint32_t> m_kKnownExits;
    };

    /** A state of a frame, and after how many steps back the next one takes back the frame's entry. */
    struct Left_t
    {
        std::uint32_t m_uiFrame;
        std::uint32_t m_uiState;
        Way_t m_kWay; ///< from the beginning of the frame
        eC_UInt m_uiBacks;
    };

    std::uint32_t GetControl(std::uint32_t uiState);
    std::uint32_t GetSymbol(std::uint32_t uiHistory);
    std::string Summarise(std::uint32_t uiHistory) const;
    std::string Reduce(const std::vector<std::uint32_t>& kEntries, std::size_t uiCount) const;
    ObjectHandle_t GetDialog(std::uint32_t uiEntry) const;

    std::uint32_t AddFrame(std::uint32_t uiState);
    std::uint32_t AddItem(std::uint32_t uiFrame, std::uint32_t uiState, const Way_t& kWay);
    void TakeSteps(std::uint32_t uiItem);
    void TakeStep(std::uint32_t uiItem, std::uint32_t uiStep);
    void AddEdge(std::uint32_t uiItem, const Pushdown_t::Edge_t& kEdge);
    void Call(std::uint32_t uiItem, std::uint32_t uiStep);
    void Leave(std::uint32_t uiItem, std::uint32_t uiStep, eC_UInt uiPopped, eC_UInt uiCommon);
    std::uint32_t AddExit(std::uint32_t uiFrame, const Exit_t& kExit);
    void Return(std::uint32_t uiFrame, std::uint32_t uiCaller, std::uint32_t uiExit);
    Pushdown_t::Return_t FindReturn(const Pushdown_t::Caller_t& kCaller, const Exit_t& kExit);
    std::uint32_t Walk(std::uint32_t uiState, const Way_t& kWay);
    std::uint32_t Follow(std::uint32_t uiState, std::uint16_t uiInput);

    void KeepProvenPumps();
    eC_Bool IsProven(const Pump_t& kPump);
    void GoBackEverywhere();
    void GoBackFrom(const Left_t& kLeft);
    eC_Bool IsNewLeft(std::uint32_t uiFrame, std::uint32_t uiControl, std::uint32_t uiHistory);
    void AddBackFault(const std::string& kFault, std::uint32_t uiFrame, const Way_t& kWay);

    std::string m_kObstacle;
    CTextNumbers m_kZoneNumbers;
    CTextNumbers m_kSummaries;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> m_kControlNumbers;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> m_kSymbolNumbers;
    std::vector<Frame_t> m_kFrames;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> m_kFrameNumbers;
    std::map<std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>, std::uint32_t> m_kItemNumbers;
    std::deque<Left_t> m_kLeft;
    std::set<std::tuple<std::uint32_t, std::uint32_t, std::uint32_t>> m_kKnownLeft;
};

#endif
