// SPDX-License-Identifier: MIT
#ifndef TESTS_FLOW_CHECKEDFLOW_H
#define TESTS_FLOW_CHECKEDFLOW_H

/** @file
 *  Flows that are explored.
 */

#include "Flow/Check/Explorer.h"
#include "Flow/Check/FlowSubject.h"
#include "Flow/Check/Properties.h"
#include "FlowTexts.h"

#include <memory>
#include <string>

/** A flow, its states and what is wrong with it. */
class CCheckedFlow
{
public:
    /** @param kText the whole flow */
    explicit CCheckedFlow(const std::string& kText, const ExplorerBounds_t& kBounds = ExplorerBounds_t());

    /** Explores the flow for all histories; nothing of it breadth-first, so that all comes from there. */
    void ExploreExactly();

    /** @return the violations of a property with their ways, a line each: "text: ok, next" */
    std::string GetFindings(eC_UInt uiProperty);

    /** @return how many steps lead to the violation whose line is or contains a text; 0: it has no way */
    std::size_t GetStepsOf(eC_UInt uiProperty, const std::string& kLine);

    /** @return the figures of a property with their ways, a line each */
    std::string GetMeasures(eC_UInt uiProperty);

    /** @return the first violation's scenario, a line each */
    std::string GetScenario(eC_UInt uiProperty);

    /** Plays the scenario of each violation on the simulator, which must come to the same dialog, history and
     *  popups.
     */
    void ExpectThatScenariosLeadToTheirStates(eC_UInt uiProperty);

    std::unique_ptr<CFlowApplication> m_pkApplication;
    std::unique_ptr<CFlowSubject> m_pkSubject;
    StateSpace_t m_kSpace;
    std::string m_kObstacle;

private:
    PropertyResult_t Check(eC_UInt uiProperty);
};

#endif
