// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_CHECKREPORT_H
#define FLOW_CHECK_CHECKREPORT_H

/** @file
 *  What the checker has found, in several formats.
 */

#include "Flow/Check/Properties.h"

#include <string>
#include <vector>

/** Everything that a report shows. */
struct CheckReport_t
{
    std::string m_kName; ///< of the device
    std::string m_kFile; ///< empty: none
    const StateSpace_t* m_pkSpace;
    std::string
        m_kObstacle; ///< why there is no answer for all histories; empty: there is one, or none is needed
    std::vector<PropertyResult_t> m_kResults;
};

/** @return how far the answers of a space go: "up to depth 12" */
std::string DescribeBound(const StateSpace_t& kSpace);

/** @return how far the answer goes for one property */
std::string DescribeBound(const PropertyResult_t& kResult);

/** @return the report for people, with a way to each violation */
std::string WriteText(const CheckReport_t& kReport);

/** @return the report as one JSON object, with the dialogs and popups that were reached */
std::string WriteJSON(const CheckReport_t& kReport);

/** @return the report for tools that show test results: a test case for each property */
std::string WriteJUnit(const CheckReport_t& kReport);

/** @return the report as SARIF 2.1.0, for tools that show findings in a file. Expected ones are suppressed */
std::string WriteSARIF(const CheckReport_t& kReport);

#endif
