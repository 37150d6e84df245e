// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_WAYSBACK_H
#define FLOW_CHECK_WAYSBACK_H

/** @file
 *  Whether going back brings back what was left.
 */

#include "Flow/Check/StateSpace.h"

#include <string>
#include <vector>

/** Compares one step back with the state in which its dialog was left.
 *  @param uiLeft that state; cuiNoState: unknown
 *  @return what is wrong; empty: nothing
 */
std::string DescribeFault(const StateSpace_t& kSpace, const Back_t& kBack, std::uint32_t uiLeft);

/** @return a state from which an entry was made, if it is the one that a step back brings back; otherwise
 *          cuiNoState: the step that made the entry did more, and no state shows what it left
 */
std::uint32_t GetLeftState(const StateSpace_t& kSpace, std::uint32_t uiState, const Back_t& kBack);

/** @return the step back from a state that comes after so many others; null: they lead elsewhere */
const Back_t* GetBack(const StateSpace_t& kSpace, std::uint32_t uiState, eC_UInt uiBacks);

/** Compares every step back from every state with all that may have been left: the same entry may have been
 *  made in several states, and several ways lead from there to the state. Each way among the known states
 * counts, not only the shortest one.
 *  @param bWithTimes whether the timers must allow a way. Without, it takes less, and a way may be impossible
 *  @return one fault for each text, with the shortest way to it
 */
std::vector<BackFault_t> FindBackFaults(const StateSpace_t& kSpace, eC_Bool bWithTimes);

#endif
