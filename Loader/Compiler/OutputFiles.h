// SPDX-License-Identifier: MIT
#ifndef LOADER_COMPILER_OUTPUTFILES_H
#define LOADER_COMPILER_OUTPUTFILES_H

/** @file
 *  The files that dialogc writes or removes.
 */

#include "Core/Utils/eC_Types.h"

#include <string>
#include <vector>

/** Header and source file of compiled dialogs: both, or neither.
 *
 *  Unless both were written, the destructor removes what this object or an earlier run of dialogc wrote, so
 *  that nobody takes it for the result of this run. A file that dialogc did not write is neither overwritten
 *  nor removed; an empty one is overwritten. Links are followed and kept. Only regular files are opened.
 */
class COutputFiles
{
public:
    /** @param kStems the files without their endings. There is more than one when the arguments contradict
     *         each other; then nothing is written
     */
    explicit COutputFiles(const std::vector<std::string>& kStems);
    COutputFiles(const COutputFiles&) = delete;
    COutputFiles& operator=(const COutputFiles&) = delete;
    ~COutputFiles();

    /** Writes both files of the one stem.
     *  @return what is wrong and what to do about it; empty when both were written
     */
    std::string Write(const std::string& kHeader, const std::string& kSource);

private:
    std::vector<std::string> m_kFiles;  ///< header and source of each stem
    std::vector<std::string> m_kOpened; ///< those that this run has begun to write
    eC_Bool m_bIsComplete = false;
};

#endif
