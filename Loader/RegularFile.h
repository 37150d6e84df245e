// SPDX-License-Identifier: MIT
#ifndef LOADER_REGULARFILE_H
#define LOADER_REGULARFILE_H

/** @file
 *  Reading files whose names cannot be trusted.
 */

#include "Core/Utils/eC_Types.h"
#include "Loader/DialogFileError.h"

#include <cstddef>
#include <filesystem>
#include <string>

/** Reads a regular file and follows symbolic links to one. A directory, a device, a FIFO or a socket is
 *  refused unread. On POSIX systems this holds even when another program replaces the file meanwhile, and
 *  the function never waits for another program.
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
