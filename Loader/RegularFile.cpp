// SPDX-License-Identifier: MIT
#include "Loader/RegularFile.h"

#include <algorithm>
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
constexpr std::size_t cuiMoreBytes = 16384; ///< the room for what a file has beyond the size that it claims

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

    /** @param uiSizeOUT receives the size that the file claims, which some files of the system leave at 0 */
    eC_Bool IsRegular(std::size_t& uiSizeOUT) const
    {
        struct stat kStatus = {};
        const eC_Bool bIsRegular = fstat(m_iFile, &kStatus) == 0 && S_ISREG(kStatus.st_mode);
        uiSizeOUT = static_cast<std::size_t>(kStatus.st_size);
        return bIsRegular;
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

    /** An open stream does not tell what it reads from. @param uiSizeOUT receives 0 */
    eC_Bool IsRegular(std::size_t& uiSizeOUT) const
    {
        uiSizeOUT = 0;
        return true;
    }

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
    std::size_t uiSize = 0;
    if (!kOpenFile.IsRegular(uiSize))
    {
        return Fail("not a file", kErrorOUT);
    }
    // One byte more than the file claims to have, in order to read up to its end.
    kBytesOUT.resize(std::min(uiSize, uiMaxSize) + 1);
    std::size_t uiRead = 0;
    std::ptrdiff_t iLength = 0;
    while ((iLength = kOpenFile.Read(&kBytesOUT[uiRead], kBytesOUT.size() - uiRead)) > 0)
    {
        uiRead += static_cast<std::size_t>(iLength);
        if (uiRead > uiMaxSize)
        {
            kErrorOUT = MakeFileSizeError(uiMaxSize);
            return false;
        }
        if (uiRead == kBytesOUT.size())
        {
            kBytesOUT.resize(uiRead + cuiMoreBytes);
        }
    }
    kBytesOUT.resize(uiRead);
    return iLength == 0 || Fail("cannot read", GetLastError(), kErrorOUT);
}
