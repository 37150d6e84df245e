// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_PUSHDOWNDISTANCES_H
#define FLOW_CHECK_PUSHDOWNDISTANCES_H

/** @file
 *  How far it is to a goal, whatever lies in the history.
 */

#include "Flow/Check/StateSpace.h"

#include <functional>

constexpr eC_UInt cuiFar = 0xFFFFFFFFU; ///< a distance: no way

/** Finds for every state with every history how many keys it takes to a goal.
 *
 *  Inside a frame that depends on the history only where the way leads out of the frame. So first the
 * distances to the goal and to the exits are found for all items (backward reachability, pre* of a weighted
 * pushdown system; T. Reps, S. Schwoon, S. Jha, D. Melski: Weighted Pushdown Systems and Their Application to
 * Interprocedural Dataflow Analysis, 2005). Then all contexts are visited: a context of a frame is how far it
 * is from each of its exits. Distances above a limit count as one more than the limit, so there are finitely
 * many contexts.
 */
class CPushdownDistances
{
public:
    using Goal_t = std::function<eC_Bool(std::uint32_t uiState)>;
    using Cost_t = std::function<eC_UInt(const CheckedStep_t& kStep)>; ///< cuiFar: may not be taken
    using Visit_t = std::function<void(std::uint32_t uiItem, eC_UInt uiDistance, std::uint32_t uiContext)>;

    /** @param uiLimit above which distances are not told apart
     *  @param fnMayPass the states that may be gone on from
     */
    CPushdownDistances(
        const StateSpace_t& kSpace, const Goal_t& fnIsGoal, const Cost_t& fnCost, eC_UInt uiLimit,
        const Goal_t& fnMayPass = [](std::uint32_t) { return true; });

    /** Visits every item in every context. @return false if there were too many contexts, and not all were */
    eC_Bool Visit(const Visit_t& fnVisit);

    /** @return a way from the start to an item in a context */
    Way_t GetWay(std::uint32_t uiContext, std::uint32_t uiItem) const;

    /** @return the distance from an item to an exit of its frame, if the way stays in the frame */
    eC_UInt GetToExit(std::uint32_t uiItem, std::uint32_t uiExit) const { return m_kToExits[uiItem][uiExit]; }

private:
    struct Context_t
    {
        std::uint32_t m_uiFrame;
        std::uint32_t m_uiOuter;  ///< the context of the caller
        std::uint32_t m_uiCaller; ///< of the frame
        std::vector<eC_UInt> m_kExits;
    };

    eC_UInt Add(eC_UInt uiOne, eC_UInt uiOther) const;
    eC_Bool Improve(std::uint32_t uiItem, const Cost_t& fnCost);
    eC_Bool ImproveByCall(std::uint32_t uiItem, const Pushdown_t::Edge_t& kEdge, eC_UInt uiCost);
    eC_UInt GetDistance(std::uint32_t uiItem, const Context_t& kContext) const;
    std::vector<eC_UInt> GetExits(std::uint32_t uiFrame, std::uint32_t uiCaller,
                                  const Context_t& kOuter) const;

    const StateSpace_t& m_kSpace;
    eC_UInt m_uiLimit;
    std::vector<eC_UInt> m_kToGoal;               ///< of each item, inside its frame
    std::vector<std::vector<eC_UInt>> m_kToExits; ///< likewise
    std::vector<Context_t> m_kContexts;
};

#endif
