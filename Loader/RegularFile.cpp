// SPDX-License-Identifier: MIT
#include "Loader/RegularFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#if defined(__unix__) || defined(__APPLE__)
#define LOADER_HAS_POSIX_FILES
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace
{
#ifdef LOADER_HAS_POSIX_FILES
/** A file that is open for reading. */
class COpenFile
{
public:
    /** Opens the file. A FIFO without a writer opens at once, and reading never waits. */
    explicit COpenFile(const std::filesystem::path& kFile)
        : m_iFile(open(kFile.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK))
    {
    }
    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;
    ~COpenFile()
    {
        if (IsOpen())
        {
            close(m_iFile);
        }
    }

    eC_Bool IsOpen() const { return m_iFile >= 0; }

    eC_Bool IsRegular() const
    {
        struct stat kStatus = {};
        return fstat(m_iFile, &kStatus) == 0 && S_ISREG(kStatus.st_mode);
    }

    /** @return how many bytes were read, 0 at the end of the file, -1 with errno on failure */
    std::ptrdiff_t Read(eC_Char* pcBlock, std::size_t uiSize)
    {
        std::ptrdiff_t iLength = -1;
        do
        {
            iLength = read(m_iFile, pcBlock, uiSize);
        } while (iLength < 0 && errno == EINTR);
        return iLength;
    }

private:
    int m_iFile;
};
#else
/** A file that is open for reading. */
class COpenFile
{
public:
    explicit COpenFile(const std::filesystem::path& kFile)
        : m_pkStream(std::fopen(kFile.string().c_str(), "rb"))
    {
    }
    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;
    ~COpenFile()
    {
        if (IsOpen())
        {
            std::fclose(m_pkStream);
        }
    }

    eC_Bool IsOpen() const { return m_pkStream != nullptr; }

    /** An open stream does not tell what it reads from. */
    eC_Bool IsRegular() const { return true; }

    /** @return how many bytes were read, 0 at the end of the file, -1 with errno on failure */
    std::ptrdiff_t Read(eC_Char* pcBlock, std::size_t uiSize)
    {
        const std::size_t uiLength = std::fread(pcBlock, 1, uiSize, m_pkStream);
        return uiLength == 0 && std::ferror(m_pkStream) != 0 ? -1 : static_cast<std::ptrdiff_t>(uiLength);
    }

private:
    std::FILE* m_pkStream;
};
#endif

eC_Bool Fail(const eC_String& kFound, DialogFileError_t& kErrorOUT)
{
    kErrorOUT = {TextPosition_t(), kFound, "a readable file"};
    return false;
}

eC_Bool Fail(const eC_Char* pcFound, const std::error_code& kReason, DialogFileError_t& kErrorOUT)
{
    return Fail(eC_String(pcFound) + " (" + kReason.message().c_str() + ")", kErrorOUT);
}

std::error_code GetLastError()
{
    return std::error_code(errno, std::generic_category());
}

/** Checks the path before the file is opened, because merely opening a device can have an effect. */
eC_Bool CheckPath(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT)
{
    if (kFile.native().find(std::filesystem::path::value_type()) != std::filesystem::path::string_type::npos)
    {
        kErrorOUT = MakePathError();
        return false;
    }
    std::error_code kReason;
    const std::filesystem::file_status kStatus = std::filesystem::status(kFile, kReason);
    if (!std::filesystem::exists(kStatus))
    {
        return Fail("cannot open", kReason, kErrorOUT);
    }
    return std::filesystem::is_regular_file(kStatus) || Fail("not a file", kErrorOUT);
}
} // namespace

eC_Bool ReadRegularFile(const std::filesystem::path& kFile, std::size_t uiMaxSize, std::string& kBytesOUT,
                        DialogFileError_t& kErrorOUT)
{
    if (!CheckPath(kFile, kErrorOUT))
    {
        return false;
    }
    COpenFile kOpenFile(kFile);
    if (!kOpenFile.IsOpen())
    {
        return Fail("cannot open", GetLastError(), kErrorOUT);
    }
    if (!kOpenFile.IsRegular())
    {
        return Fail("not a file", kErrorOUT);
    }
    kBytesOUT.clear();
    eC_Char acBlock[16384];
    std::ptrdiff_t iLength = 0;
    while ((iLength = kOpenFile.Read(acBlock, sizeof acBlock)) > 0)
    {
        kBytesOUT.append(acBlock, static_cast<std::size_t>(iLength));
        if (kBytesOUT.size() > uiMaxSize)
        {
            kErrorOUT = MakeFileSizeError(uiMaxSize);
            return false;
        }
    }
    return iLength == 0 || Fail("cannot read", GetLastError(), kErrorOUT);
}
