// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_CONSTANTNAME_H
#define LOADER_COMPILER_CONSTANTNAME_H

/** @file
 *  Which names the constants of a C++ program can have.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <string_view>

/** @return whether C++17 or a later standard keeps a word for itself, so that nothing can bear it as a name
 */
eC_Bool IsKeyword(std::string_view kWord);

/** @param kName the name that the constant of compiled dialogs is to have
 *  @return why it cannot have it, as it stands behind the name in a message; empty when it can
 */
std::string FindNameFault(const std::string& kName);

#endif
