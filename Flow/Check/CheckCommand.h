// SPDX-License-Identifier: MIT
#ifndef FLOW_CHECK_CHECKCOMMAND_H
#define FLOW_CHECK_CHECKCOMMAND_H

/** @file
 *  The command line of the checker.
 */

#include "Flow/Check/CheckSubject.h"
#include "Flow/Check/Explorer.h"

#include <string>
#include <vector>

/** What the user wants. */
struct CheckOptions_t
{
    eC_UInt m_uiProperties = (1U << 13U) - 2; ///< bit n stands for Pn
    ExplorerBounds_t m_kBounds;
    eC_Bool m_bIsBounded = false; ///< no answer for all histories is looked for
    eC_Bool m_bWritesJSON = false;
    std::string m_kJUnitFile;
    std::string m_kSARIFFile;
    std::string m_kScenarioDirectory;
    std::string m_kGraphFile;
    std::string m_kTestDirectory;
    std::string m_kFile;                   ///< the argument that is no option
    CExplorer::Heap_t m_pfnHeap = nullptr; ///< null: bytes are not measured
    eC_UInt m_uiLongestOperation = 10;     ///< seconds of processor time, after which an operation hangs
};

/** The statuses with which a checker ends. */
enum ECheckStatus : int
{
    CHECK_CLEAN = 0,
    CHECK_VIOLATION = 1,
    CHECK_WRONG_USE = 2
};

constexpr const eC_Char* cpcCheckOptions = "[--only P2,P6] [--depth <steps>] [--states <number>] [--bounded] "
                                           "[--json] [--junit <file>] [--sarif <file>] "
                                           "[--scenarios <directory>] [--graph <file>] [--tests <directory>]";

/** Reads the arguments. @param kErrorOUT receives what is wrong. @return false if something is */
eC_Bool ReadCheckOptions(const std::vector<std::string>& kArguments, CheckOptions_t& kOptionsOUT,
                         std::string& kErrorOUT);

/** Checks an application and writes the reports: to standard output, and to the files that the options name.
 * A progress bar goes to standard error while that is a terminal. If an operation of the application does not
 * end, the process does; see CWatchdog.
 *  @return the status
 */
int RunCheck(CCheckSubject& kSubject, const CheckOptions_t& kOptions);

#endif
