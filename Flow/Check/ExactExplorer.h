// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_EXACTEXPLORER_H
#define FLOW_CHECK_EXACTEXPLORER_H

/** @file
 *  Explores an application whose history may grow without bound.
 */

#include "Flow/Check/Explorer.h"

#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

/** Finds every control that an application can reach, with histories of any length.
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
 *  It does not apply, and says so, where one step takes back several entries one after the other (a stepwise
 * way back, or more than one back in a reaction), where it takes back several and makes a new one, and where
 * it makes several.
 */
class CExactExplorer : public CExplorer
{
public:
    /** @param uiMostKept the most entries that a clearing of the history keeps */
    CExactExplorer(CCheckSubject& kSubject, eC_UInt uiMostKept)
        : CExplorer(kSubject), m_uiMostKept(uiMostKept)
    {
    }

    /** Explores the application.
     *  @param uiMostStates a bound, so that it ends in any case
     *  @param kObstacleOUT receives why the result is not exact; empty: it is
     *  @throw what the application throws
     */
    StateSpace_t ExploreExactly(eC_UInt uiMostStates, std::string& kObstacleOUT);

private:
    using Way_t = std::vector<std::uint16_t>;

    /** Where an entry was made: a state, and the input that makes the entry. */
    struct Caller_t
    {
        std::size_t m_uiItem;
        std::uint16_t m_uiInput;
    };

    /** How an entry was taken back: the way from the state after it was made. */
    struct Exit_t
    {
        Way_t m_kWay;
        std::uint32_t m_uiControl; ///< then
        eC_Bool m_bGoesOn;         ///< more entries are taken back, up to the topmost one of a dialog
        ObjectHandle_t m_eUpTo;    ///< that dialog; NO_HANDLE: up to a height
        eC_UInt m_uiHeight;        ///< that height
    };

    /** What can happen while an entry is there. */
    struct Frame_t
    {
        std::uint32_t m_uiState; ///< one right after the entry was made
        std::vector<Caller_t> m_kCallers;
        std::vector<Exit_t> m_kExits;
        std::set<std::tuple<std::uint32_t, eC_Bool, ObjectHandle_t, eC_UInt>> m_kKnownExits;
    };

    /** A control and a symbol that are reached inside a frame. */
    struct Item_t
    {
        std::size_t m_uiFrame;
        std::uint32_t m_uiState;
        Way_t m_kWay; ///< from the beginning of the frame
    };

    std::uint32_t GetControl(std::uint32_t uiState);
    std::uint32_t GetSymbol(std::uint32_t uiHistory);
    std::string Summarise(std::uint32_t uiHistory) const;
    std::string Reduce(const std::vector<std::uint32_t>& kEntries, std::size_t uiCount) const;
    ObjectHandle_t GetDialog(std::uint32_t uiEntry) const;

    void AddItem(std::size_t uiFrame, std::uint32_t uiState, const Way_t& kWay);
    void TakeSteps(std::size_t uiItem);
    void TakeStep(std::size_t uiItem, const CheckedStep_t& kStep);
    void Call(std::size_t uiItem, const CheckedStep_t& kStep);
    void Leave(std::size_t uiItem, const CheckedStep_t& kStep, eC_UInt uiPopped, eC_UInt uiCommon);
    void AddExit(std::size_t uiFrame, const Exit_t& kExit);
    void Return(std::size_t uiFrame, std::size_t uiCaller, std::size_t uiExit);
    std::uint32_t Walk(std::uint32_t uiState, const Way_t& kWay);

    eC_UInt m_uiMostKept;
    std::string m_kObstacle;
    CTextNumbers m_kZoneNumbers;
    CTextNumbers m_kSummaries;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> m_kControlNumbers;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint32_t> m_kSymbolNumbers;
    std::vector<Frame_t> m_kFrames;
    std::vector<Item_t> m_kItems;
    std::map<std::pair<std::uint32_t, std::uint32_t>, std::size_t> m_kFrameNumbers;
    std::map<std::tuple<std::size_t, std::uint32_t, std::uint32_t>, std::size_t> m_kItemNumbers;
};

#endif
