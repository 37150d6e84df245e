// SPDX-License-Identifier: MIT
// What other programs can do to a file while it is opened and read.

#include "Loader/RegularFile.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstddef>
#include <fstream>
#include <functional>
#include <iterator>

namespace
{
/** While it exists, something happens at a certain moment of a load, which no other thread would hit
 * reliably. */
class CMeanwhile
{
public:
    CMeanwhile() { ms_pkInstance = this; }
    CMeanwhile(const CMeanwhile&) = delete;
    CMeanwhile& operator=(const CMeanwhile&) = delete;
    ~CMeanwhile() { ms_pkInstance = nullptr; }

    static CMeanwhile* GetInstance() { return ms_pkInstance; }

    std::function<void()> m_kBeforeOpening = [] {};
    std::function<void()> m_kBeforeReading = [] {};
    int m_iFlags = 0; ///< those with which the last file was opened

private:
    static CMeanwhile* ms_pkInstance;
};

CMeanwhile* CMeanwhile::ms_pkInstance = nullptr;
} // namespace

// This program calls these two instead of the system's functions of the same names, and they do the same.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name): the system's names are reserved ones

extern "C" int open(const char* pcPath, int iFlags, ...)
{
    va_list kArguments;
    va_start(kArguments, iFlags);
    const mode_t uiMode = (iFlags & O_CREAT) != 0 ? va_arg(kArguments, mode_t) : 0;
    va_end(kArguments);
    if (CMeanwhile* pkMeanwhile = CMeanwhile::GetInstance())
    {
        pkMeanwhile->m_iFlags = iFlags;
        pkMeanwhile->m_kBeforeOpening();
    }
    return openat(AT_FDCWD, pcPath, iFlags, uiMode);
}

extern "C" int fstat(int iFile, struct stat* pkStatus) noexcept
{
    const int iResult = fstatat(iFile, "", pkStatus, AT_EMPTY_PATH);
    if (CMeanwhile* pkMeanwhile = CMeanwhile::GetInstance())
    {
        pkMeanwhile->m_kBeforeReading();
    }
    return iResult;
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)

namespace
{
class CRegularFileTest : public CDialogFileTest
{
protected:
    std::filesystem::path GetFile() const { return m_kDirectory.GetPath() / "dialog.xml"; }

    void Append(const std::string& kText) const { std::ofstream(GetFile(), std::ios::app) << kText; }

    void ReplaceByFIFO() const
    {
        std::filesystem::remove(GetFile());
        EXPECT_EQ(0, mkfifo(GetFile().c_str(), S_IRUSR | S_IWUSR));
    }

    static std::ptrdiff_t CountOpenFiles()
    {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    }
};

TEST_F(CRegularFileTest, File_IsOpenedWithoutWaitingAndNotForOtherPrograms)
{
    const CMeanwhile kMeanwhile;
    ExpectTree("<Object/>", "Object");
    EXPECT_EQ(O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, kMeanwhile.m_iFlags);
}

TEST_F(CRegularFileTest, FIFOThatReplacesTheFileBeforeItIsOpened_IsRefusedWithoutWaiting)
{
    CMeanwhile kMeanwhile;
    kMeanwhile.m_kBeforeOpening = [this] { ReplaceByFIFO(); };
    ExpectRefused("<Object/>", "1:1: not a file; expected a readable file");
    EXPECT_TRUE(std::filesystem::is_fifo(GetFile()));
}

TEST_F(CRegularFileTest, FileThatIsRemovedBeforeItIsOpened_IsRefused)
{
    CMeanwhile kMeanwhile;
    kMeanwhile.m_kBeforeOpening = [this] { std::filesystem::remove(GetFile()); };
    ExpectRefused("<Object/>", "1:1: cannot open (No such file or directory); expected a readable file");
    EXPECT_FALSE(std::filesystem::exists(GetFile()));
}

TEST_F(CRegularFileTest, FileThatGrowsBeforeItIsRead_IsReadToItsNewEnd)
{
    for (const std::size_t uiBlanks : {1u, 3u, 16000u, 16384u, 50000u})
    {
        CMeanwhile kMeanwhile;
        kMeanwhile.m_kBeforeReading = [this, uiBlanks]
        { Append(std::string(uiBlanks, ' ') + "<Object id='5'/></Composite>"); };
        ExpectTree("<Composite>", "Composite { Object 5 }");
    }
}

TEST_F(CRegularFileTest, FileThatBecomesTooLargeBeforeItIsRead_IsRefused)
{
    CMeanwhile kMeanwhile;
    kMeanwhile.m_kBeforeReading = [this] { Append(std::string(std::size_t{1024} * 1024, ' ')); };
    ExpectRefused("<Object/>", "1:1: file too large; expected at most 1048576 bytes");
}

TEST_F(CRegularFileTest, FileThatGetsTheFirstDescriptor_IsRead)
{
    const int iInput = dup(STDIN_FILENO);
    close(STDIN_FILENO);
    const std::unique_ptr<CGUIObject> kObject = LoadText("<Object id='5'/>");
    dup2(iInput, STDIN_FILENO);
    close(iInput);

    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ("Object 5", DescribeTree(*kObject));
}

TEST_F(CRegularFileTest, EveryFileThatWasOpened_IsClosed)
{
    const std::ptrdiff_t iOpenBefore = CountOpenFiles();
    ExpectTree("<Object/>", "Object");
    ExpectRefused(std::string(std::size_t{1024} * 1024 + 1, ' '),
                  "1:1: file too large; expected at most 1048576 bytes");
    CMeanwhile kMeanwhile;
    kMeanwhile.m_kBeforeOpening = [this] { ReplaceByFIFO(); };
    ExpectRefused("<Object/>", "1:1: not a file; expected a readable file");
    EXPECT_EQ(iOpenBefore, CountOpenFiles());
}

TEST_F(CRegularFileTest, FileThatTellsItsSize_TakesOneBlockOfThatSize)
{
    const std::string kText(1000, 'a');
    const std::filesystem::path kFile = m_kDirectory.Write("a", kText);
    std::string kBytes;
    DialogFileError_t kError;
    const CAllocationCounter kCounter;

    EXPECT_TRUE(ReadRegularFile(kFile, 2000, kBytes, kError));

    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_GT(1100u, kCounter.GetBytes());
    EXPECT_EQ(kText, kBytes);
}
} // namespace
