// SPDX-License-Identifier: MIT
#ifndef LOADER_REGULARFILE_H
#define LOADER_REGULARFILE_H

/** @file
 *  Files as they are read when nobody knows who wrote their names.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/DialogFileError.h"

#include <cstddef>
#include <filesystem>
#include <string>

/** Reads a regular file, which symbolic links may lead to. A directory, a device, a FIFO or a socket is
 *  refused unread. On POSIX systems that holds even for what takes the place of a file while this function
 *  runs, and it never waits for another program.
 *  @param kFile the file; a path with a zero byte is refused
 *  @param uiMaxSize the most bytes that it may have
 *  @param kBytesOUT receives the bytes; unspecified on failure
 *  @param kErrorOUT receives what is wrong, at line 1, column 1; untouched on success
 *  @return true on success
 *  @throw std::bad_alloc
 */
eC_Bool ReadRegularFile(const std::filesystem::path& kFile, std::size_t uiMaxSize, std::string& kBytesOUT,
                        DialogFileError_t& kErrorOUT);

#endif
