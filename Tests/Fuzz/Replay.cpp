// SPDX-License-Identifier: MIT
/** @file
 *  The main function of a fuzz target without a fuzzer. It checks inputs from files.
 *
 *      <program> <file or directory> ...
 *
 *  It ends with status 1 if there is no input at all.
 */

#include "Tests/Fuzz/FuzzTarget.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace
{
void Check(const std::filesystem::path& kFile)
{
    std::ifstream kStream(kFile, std::ios::binary);
    const std::vector<char> kBytes((std::istreambuf_iterator<char>(kStream)),
                                   std::istreambuf_iterator<char>());
    std::cout << kFile.string() << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(kBytes.data()), kBytes.size());
}

/** @return the files of a directory, or the file itself */
std::vector<std::filesystem::path> GetFiles(const std::filesystem::path& kPath)
{
    if (!std::filesystem::is_directory(kPath))
    {
        return {kPath};
    }
    std::vector<std::filesystem::path> kFiles;
    for (const std::filesystem::directory_entry& kEntry : std::filesystem::directory_iterator(kPath))
    {
        kFiles.push_back(kEntry.path());
    }
    return kFiles;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    std::size_t uiInputs = 0;
    for (int iArgument = 1; iArgument < iArguments; ++iArgument)
    {
        for (const std::filesystem::path& kFile : GetFiles(ppcArguments[iArgument]))
        {
            Check(kFile);
            ++uiInputs;
        }
    }
    std::cout << uiInputs << " inputs checked\n";
    return uiInputs > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
