// SPDX-License-Identifier: MIT
#ifndef TESTS_FLOW_FLOWTEXTS_H
#define TESTS_FLOW_FLOWTEXTS_H

/** @file
 *  Flows as texts.
 */

#include "Flow/FlowReader.h"

#include <memory>
#include <string>

/** @return a flow around a text: two dialogs, a popup, and keys to move the focus, to press and to go back */
std::string MakeFlow(const std::string& kStatements);

/** Reads a flow that must be right; otherwise the test fails with its mistake. */
std::shared_ptr<const FlowModel_t> ReadText(const std::string& kText);

/** @return the mistake in a flow */
std::string GetMistake(const std::string& kText);

#endif
