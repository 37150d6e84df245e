// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_DIALOGGRAPH_H
#define FLOW_CHECK_DIALOGGRAPH_H

/** @file
 *  The dialogs and popups of an application, what leads from one to the other, and scenarios that go
 * everywhere.
 */

#include "Flow/Check/CheckReport.h"

#include <string>
#include <vector>

/** What leads from a dialog to another one, or to a popup over it. */
struct GraphEdge_t
{
    ObjectHandle_t m_eFrom;
    ObjectHandle_t m_eTo;
    std::string m_kLabel;    ///< the button, key or timer, and what it does to the dialog that is left
    eC_Bool m_bIsPopup;      ///< the second one is a popup
    std::uint32_t m_uiState; ///< where a shortest way begins with it
    std::uint32_t m_uiStep;  ///< the step that it is
};

/** @return the edges, each once, in the order in which they were found */
std::vector<GraphEdge_t> FindEdges(const StateSpace_t& kSpace);

/** @return the graph in Graphviz's language. Dialogs with a violation are red, unreached ones dashed */
std::string WriteDOT(const CheckReport_t& kReport);

/** @return ways on which every edge occurs, and then ways on which every edge occurs right after every one
 * that can precede it
 */
std::vector<Witness_t> FindCoveringWays(const StateSpace_t& kSpace);

#endif
