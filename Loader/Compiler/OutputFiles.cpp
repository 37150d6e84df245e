// SPDX-License-Identifier: MIT
#include "Loader/Compiler/OutputFiles.h"

#include "Loader/Compiler/DialogSource.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace
{
namespace fs = std::filesystem;

constexpr std::string_view ckOrigin = cpcDialogOrigin;

eC_Bool IsRegularFile(const std::string& kFile)
{
    std::error_code kIgnored;
    return fs::is_regular_file(kFile, kIgnored);
}

/** @return whether something other than a regular file is there */
eC_Bool IsNoRegularFile(const std::string& kFile)
{
    std::error_code kIgnored;
    return fs::exists(kFile, kIgnored) && !IsRegularFile(kFile);
}

/** @return whether links make two names those of one file */
eC_Bool IsSameFile(const std::string& kFile, const std::string& kOther)
{
    std::error_code kIgnored;
    return fs::equivalent(kFile, kOther, kIgnored);
}

/** @param kTextOUT receives as much of a file as tells whether dialogc wrote it
 *  @return whether it could be read
 */
eC_Bool ReadBeginning(const std::string& kFile, std::string& kTextOUT)
{
    std::ifstream kStream(kFile, std::ios::binary);
    kTextOUT.resize(ckOrigin.size());
    kStream.read(kTextOUT.data(), static_cast<std::streamsize>(kTextOUT.size()));
    kTextOUT.resize(static_cast<std::size_t>(kStream.gcount()));
    return kStream.good() || kStream.eof();
}

/** @return whether an earlier run wrote a file, to its end or not; an empty one counts as such */
eC_Bool MayBeOverwritten(const std::string& kFile)
{
    std::string kBeginning;
    return ReadBeginning(kFile, kBeginning) && ckOrigin.substr(0, kBeginning.size()) == kBeginning;
}

eC_Bool IsOurs(const std::string& kFile)
{
    std::string kBeginning;
    return ReadBeginning(kFile, kBeginning) && kBeginning == ckOrigin;
}

/** @return why the last system call failed, in words */
std::string GetReason()
{
    return std::error_code(errno, std::generic_category()).message();
}

/** @return why the text was not written completely; empty when it was */
std::string WriteText(std::FILE* pkFile, const std::string& kText)
{
    std::string kReason;
    if (std::fwrite(kText.data(), 1, kText.size(), pkFile) != kText.size())
    {
        kReason = GetReason();
    }
    // What is still in the buffer may find the disk full.
    if (std::fclose(pkFile) != 0 && kReason.empty())
    {
        kReason = GetReason();
    }
    return kReason;
}

std::string MakeWriteFault(const std::string& kFile, const std::string& kReason)
{
    return "cannot write '" + kFile + "' (" + kReason + "); give another --output or make it writable";
}
} // namespace

COutputFiles::COutputFiles(const std::vector<std::string>& kStems)
{
    for (const std::string& kStem : kStems)
    {
        m_kFiles.push_back(kStem + ".h");
        m_kFiles.push_back(kStem + ".cpp");
    }
}

COutputFiles::~COutputFiles()
{
    for (const std::string& kFile : m_kFiles)
    {
        const eC_Bool bIsOpened = std::find(m_kOpened.begin(), m_kOpened.end(), kFile) != m_kOpened.end();
        if (!m_bIsComplete && IsRegularFile(kFile) && (bIsOpened || IsOurs(kFile)))
        {
            std::error_code kIgnored;
            fs::remove(fs::canonical(kFile, kIgnored), kIgnored);
        }
    }
}

std::string COutputFiles::Write(const std::string& kHeader, const std::string& kSource)
{
    for (const std::string& kFile : m_kFiles)
    {
        // Opening a FIFO would wait for its reader.
        if (IsNoRegularFile(kFile))
        {
            return "'" + kFile + "' is no regular file; move it away or give another --output";
        }
        if (IsRegularFile(kFile) && !MayBeOverwritten(kFile))
        {
            return "'" + kFile + "' is there and not from dialogc; move it away or give another --output";
        }
    }
    for (const std::string& kFile : m_kFiles)
    {
        if (!m_kOpened.empty() && IsSameFile(m_kOpened.front(), kFile))
        {
            return "'" + m_kOpened.front() + "' and '" + kFile +
                   "' are one file; remove the link or give another --output";
        }
        std::FILE* pkFile = std::fopen(kFile.c_str(), "wb");
        std::string kReason = pkFile == nullptr ? GetReason() : "";
        if (pkFile != nullptr)
        {
            m_kOpened.push_back(kFile);
            kReason = WriteText(pkFile, &kFile == &m_kFiles.front() ? kHeader : kSource);
        }
        if (!kReason.empty())
        {
            return MakeWriteFault(kFile, kReason);
        }
    }
    m_bIsComplete = true;
    return "";
}
