// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_PUSHDOWNRUNS_H
#define FLOW_CHECK_PUSHDOWNRUNS_H

/** @file
 *  What times alone may lead to, whatever lies in the history.
 */

#include "Flow/Check/PushdownDistances.h"

#include <vector>

/** Finds the states from which times alone may never leave a set of states: because no time runs any more, or
 * because they go on for ever.
 *
 *  A run that goes on for ever comes to its lowest history at last. From there on it makes entries that it
 * takes back again, and others that stay: so it repeats an item of a frame (repeated heads of a pushdown
 * system; J. Esparza, D. Hansel, P. Rossmanith, S. Schwoon: Efficient Algorithms for Model Checking Pushdown
 * Systems, 2000).
 */
class CPushdownRuns
{
public:
    /** @param fnIsIn the set
     *  @param bMayEnd whether a state in which no time runs is left by nothing, too
     */
    CPushdownRuns(const StateSpace_t& kSpace, const CPushdownDistances::Goal_t& fnIsIn, eC_Bool bMayEnd);

    /** @return whether there is a history with which times may never leave the set */
    eC_Bool IsBad(std::uint32_t uiItem) const { return m_kBad[uiItem] != GOOD; }

    /** @return from the start to the item, with such a history */
    Way_t GetWay(std::uint32_t uiItem) const;

    /** @return how times go on from there: to the last state, or to one that repeats
     *  @param uiLastOUT receives the last item
     *  @param bEndsOUT receives whether no time runs there
     */
    Way_t GetRun(std::uint32_t uiItem, std::uint32_t& uiLastOUT, eC_Bool& bEndsOUT) const;

private:
    enum EBad : unsigned char
    {
        GOOD,
        BY_CALLER, ///< some callers of the frame are bad
        BY_ITSELF  ///< without leaving the frame
    };

    /** A caller of a frame. */
    struct Place_t
    {
        std::uint32_t m_uiFrame;
        std::uint32_t m_uiCaller;
    };

    /** Why an exit is bad: because of one of the frame's callers. */
    struct BadExit_t
    {
        eC_Bool m_bIsBad = false;
        std::uint32_t m_uiCaller = 0;
    };

    using Callers_t = std::vector<Place_t>; ///< the innermost one last

    eC_Bool IsTime(const Pushdown_t::Edge_t& kEdge) const;
    eC_Bool Ends(std::uint32_t uiItem) const;
    eC_Bool GoesOn(std::uint32_t uiItem) const;
    eC_Bool FindBadExits();
    eC_Bool FindBadItems();
    eC_Bool IsBad(std::uint32_t uiItem, const Callers_t& kCallers) const;
    eC_Bool Leave(std::uint32_t uiExit, Callers_t& kCallers, std::uint32_t& uiItemOUT) const;
    Callers_t GetCallers(std::uint32_t uiItem, std::uint32_t& uiOuterFrameOUT) const;
    eC_Bool Step(std::uint32_t& uiItem, Callers_t& kCallers, Way_t& kRun) const;

    const StateSpace_t& m_kSpace;
    const Pushdown_t& m_kPushdown;
    CPushdownDistances::Goal_t m_fnIsIn;
    eC_Bool m_bMayEnd;
    CPushdownDistances m_kDistances;
    std::vector<EBad> m_kBad;
    std::vector<std::uint32_t> m_kByExit; ///< for BY_CALLER
    std::vector<std::vector<BadExit_t>> m_kBadExits;
};

#endif
