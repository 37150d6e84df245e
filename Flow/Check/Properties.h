// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_PROPERTIES_H
#define FLOW_CHECK_PROPERTIES_H

/** @file
 *  What must be true of an application, and whether it is.
 */

#include "Flow/Check/CheckSubject.h"
#include "Flow/Check/StateSpace.h"

#include <string>
#include <vector>

constexpr eC_UInt cuiProperties = 12; ///< P1 to P12

/** A way to a state, and what happens then. */
struct Witness_t
{
    std::uint32_t m_uiState = 0;
    std::vector<std::uint32_t> m_kSteps; ///< by their numbers in StateSpace_t::m_kSteps, one after the other
};

/** A violation. */
struct Finding_t
{
    std::string m_kText;
    eC_UInt m_uiLine = 0; ///< of the file; 0: none
    eC_Bool m_bHasWitness = false;
    Witness_t m_kWitness;
    std::string m_kReason; ///< why it is expected; empty: it is not
};

/** A figure. */
struct Measure_t
{
    std::string m_kText;
    Witness_t m_kWitness; ///< how to reach it
};

/** What became of a property. */
struct PropertyResult_t
{
    eC_UInt m_uiNumber; ///< 1 to 12
    std::string m_kTitle;
    std::string m_kMeaning; ///< of a violation
    std::vector<Finding_t> m_kFindings;
    std::vector<Measure_t> m_kMeasures;
    std::vector<Finding_t> m_kWarnings; ///< what could not be checked; without ways
    const StateSpace_t* m_pkSpace;      ///< that it was checked in, and that the ways belong to
    std::string m_kBound;               ///< how far the answer goes; empty: as far as the space

    /** @return the violations that nobody expects */
    eC_UInt CountUnexpected() const;
};

/** Checks properties of a state space, for all histories if it is exact.
 *  @param uiProperties which: bit n stands for Pn
 *  @return their results, in order
 */
std::vector<PropertyResult_t> CheckProperties(const CCheckSubject& kSubject, const StateSpace_t& kSpace,
                                              eC_UInt uiProperties);

/** @return a witness as the lines of a scenario, with the pauses that its timers need */
std::vector<std::string> MakeScenario(const StateSpace_t& kSpace, const Witness_t& kWitness);

/** @return the steps of a witness for people: "ok, next, ok, cup runs out" */
std::string DescribeWitness(const StateSpace_t& kSpace, const Witness_t& kWitness);

#endif
