// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_CONSTANTNAME_H
#define LOADER_COMPILER_CONSTANTNAME_H

/** @file
 *  Which names the constants of a C++ program can have.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <string_view>

/** @return whether a word is a keyword of C++17 or of a later standard */
eC_Bool IsKeyword(std::string_view kWord);

/** @param kName the name that the constant of compiled dialogs is to have
 *  @return why it cannot have it, worded to follow the name in a message; empty when it can
 */
std::string FindNameFault(const std::string& kName);

#endif
