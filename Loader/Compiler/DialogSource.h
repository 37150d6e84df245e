#ifndef LOADER_COMPILER_DIALOGSOURCE_H
#define LOADER_COMPILER_DIALOGSOURCE_H

/** @file
 *  The C++ text of compiled dialogs.
 */

#include "Loader/Compiler/DialogCompiler.h"

#include <string>
#include <vector>

/** @param kName the name of the constant
 *  @return a header that declares it
 */
std::string WriteDialogHeader(const std::string& kName);

/** @param kName the name of the constant
 *  @param kHeader the header that declares it, as it is to be included
 *  @param kHandleHeader the header with the application's handles, empty: none is needed
 *  @param kDialogs the dialogs, sorted by path; no two have the same one
 *  @return a source file that defines the constant
 */
std::string WriteDialogSource(const std::string& kName, const std::string& kHeader,
                              const std::string& kHandleHeader,
                              const std::vector<CompiledDialog_t>& kDialogs);

#endif
