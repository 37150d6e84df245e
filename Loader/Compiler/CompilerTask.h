// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_COMPILERTASK_H
#define LOADER_COMPILER_COMPILERTASK_H

/** @file
 *  What the arguments of dialogc ask for.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <vector>

/** The arguments, sorted by option. */
struct CompilerArguments_t
{
    eC_Bool m_bHelp = false;
    eC_Bool m_bVersion = false;
    std::vector<std::string> m_kOutputs;
    std::vector<std::string> m_kNames;
    std::vector<std::string> m_kBases;
    std::vector<std::string> m_kHandles;
    std::vector<std::string> m_kIncludes;
    std::vector<std::string> m_kFiles;
};

/** A description file and the path by which the application loads it. */
struct DialogFile_t
{
    std::string m_kPath;
    std::string m_kFile;
};

/** What is to be done. */
struct CompilerTask_t
{
    std::string m_kStem;                ///< of the two files to write
    std::string m_kName;                ///< of the constant
    std::string m_kHandleHeader;        ///< empty: handles are looked up when a dialog is loaded
    std::vector<DialogFile_t> m_kFiles; ///< sorted by path; no two have the same one
};

/** Sorts arguments. An error does not stop the reading, so that all outputs are known. --help and --version
 *  do, unless an error came before.
 *  @param kArgumentsOUT receives the arguments up to the end or to --help or --version
 *  @return what is wrong first and what to do about it; empty when nothing is
 */
std::string ReadArguments(const std::vector<std::string>& kArguments, CompilerArguments_t& kArgumentsOUT);

/** Makes a task from arguments in which ReadArguments found no error.
 *  @param kTaskOUT receives the task; unspecified when something is wrong
 *  @return as above
 */
std::string MakeTask(const CompilerArguments_t& kArguments, CompilerTask_t& kTaskOUT);

#endif
