// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_COMPILERTASK_H
#define LOADER_COMPILER_COMPILERTASK_H

/** @file
 *  What the arguments of dialogc ask for.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <vector>

/** The arguments, each where it belongs. */
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

/** Sorts arguments. All are read even where one is wrong, so that all outputs are known; what asks for help
 *  or the version stops the reading, unless something before it was wrong.
 *  @param kArgumentsOUT receives what was understood
 *  @return what is wrong first and what to do about it; empty when nothing is
 */
std::string ReadArguments(const std::vector<std::string>& kArguments, CompilerArguments_t& kArgumentsOUT);

/** Makes a task of arguments that are right one by one.
 *  @param kTaskOUT receives the task; of no use when something is wrong
 *  @return as above
 */
std::string MakeTask(const CompilerArguments_t& kArguments, CompilerTask_t& kTaskOUT);

#endif
