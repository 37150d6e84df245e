// SPDX-License-Identifier: MIT
#ifndef FLOW_FLOWHANDLES_H
#define FLOW_FLOWHANDLES_H

/** @file
 *  Handles whose names are read from files while the program runs.
 */

#include "GUIConfig/GUIObjectHandleResource.h"

#include <string>

/** How many names there is room for in one run of the program. */
constexpr eC_UInt cuiMostFlowHandles = 1000;

/** Looks a name up in the table of handles, and adds it if it is not there. A name keeps its handle until the
 *  program ends, so objects and histories stay valid when a file is read again.
 *
 *  A program that calls this has a table of cuiMostFlowHandles lines, and no compiled one. Dynamic
 *  identifiers start after the last line, used or not.
 *  @param kName the name, a word of letters, digits and underscores that does not begin with a digit
 *  @return the handle; NO_HANDLE if there is no room left
 *  @throw std::bad_alloc
 */
ObjectHandle_t GetFlowHandle(const std::string& kName);

/** @return whether a text can be the name of a handle: letters, digits and underscores, no digit first */
eC_Bool IsHandleName(const std::string& kText);

#endif
