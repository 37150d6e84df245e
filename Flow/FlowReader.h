// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWREADER_H
#define FLOW_FLOWREADER_H

/** @file
 *  Reads flow files.
 */

#include "Flow/FlowModel.h"

#include <memory>
#include <string>

/** Reads a flow file and the dialog files that it names.
 *
 *  A dialog file that cannot be read or built is no mistake of the flow: its error is kept with the dialog
 *  (FlowScreen_t::m_kError) and logged when the dialog is loaded.
 *  @param kPath the file
 *  @param kErrorOUT receives the first mistake, "path:line:column: found; expected what"; untouched on
 *         success
 *  @return the flow; null if there is a mistake
 *  @throw std::bad_alloc
 */
std::shared_ptr<const FlowModel_t> ReadFlow(const std::string& kPath, std::string& kErrorOUT);

/** Reads a flow from a text. @param kPath the path that mistakes name, and where dialog files are looked for
 */
std::shared_ptr<const FlowModel_t> ParseFlow(const std::string& kPath, const std::string& kText,
                                             std::string& kErrorOUT);

#endif
