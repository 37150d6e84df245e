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

/** The first line of every file of compiled dialogs, which tells them from other files. */
constexpr const eC_Char* cpcDialogOrigin =
    "// Made by dialogc from dialog description files. Changes here are lost.\n";

/** What the source file of compiled dialogs is written from. */
struct DialogSource_t
{
    std::string m_kName;                      ///< of the constant
    std::string m_kFile;                      ///< the source file itself, as compilers shall name it
    std::string m_kHeader;                    ///< declares the constant; as the source file includes it
    std::string m_kHandleHeader;              ///< with the application's handles; empty when none is needed
    std::vector<CompiledDialog_t> m_kDialogs; ///< sorted by path; no two have the same one
};

/** @param kName the name of the constant
 *  @return a header that declares it
 */
std::string WriteDialogHeader(const std::string& kName);

/** @return a source file that defines the constant. A compiler's message about an element's identifier names
 *          the identifier's place in the description file.
 */
std::string WriteDialogSource(const DialogSource_t& kSource);

#endif
