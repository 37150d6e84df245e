// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_DIALOGSOURCE_H
#define LOADER_COMPILER_DIALOGSOURCE_H

/** @file
 *  The C++ text of compiled dialogs.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/Compiler/DialogCompiler.h"

#include <string>
#include <vector>

/** The first line of every file of compiled dialogs, by which they are told from files of other origin. */
constexpr const eC_Char* cpcDialogOrigin =
    "// Made by dialogc from dialog description files. Changes here are lost.\n";

/** What the source file of compiled dialogs is written from. */
struct DialogSource_t
{
    std::string m_kName;                      ///< of the constant
    std::string m_kFile;                      ///< the source file itself, as compilers are to name it
    std::string m_kHeader;                    ///< which declares the constant, as it is to be included
    std::string m_kHandleHeader;              ///< with the application's handles, empty: none is needed
    std::vector<CompiledDialog_t> m_kDialogs; ///< sorted by path; no two have the same one
};

/** @param kName the name of the constant
 *  @return a header that declares it
 */
std::string WriteDialogHeader(const std::string& kName);

/** @return a source file that defines the constant. What a compiler says of an element's identifier, it says
 *          of the place in the description file where that stands.
 */
std::string WriteDialogSource(const DialogSource_t& kSource);

#endif
