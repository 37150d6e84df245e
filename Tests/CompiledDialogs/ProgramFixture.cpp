// SPDX-License-Identifier: MIT
#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>

namespace
{
struct PipeCloser_t
{
    void operator()(std::FILE* pkPipe) const { pclose(pkPipe); }
};
} // namespace

CProgramFixture::CProgramFixture()
{
    std::string kTemplate = std::filesystem::temp_directory_path() / "CompiledDialogs.XXXXXX";
    m_kDirectory = std::filesystem::canonical(mkdtemp(kTemplate.data()));
}

CProgramFixture::~CProgramFixture()
{
    std::filesystem::remove_all(m_kDirectory);
}

void CProgramFixture::Write(const std::string& kFile, const std::string& kText) const
{
    std::filesystem::create_directories((m_kDirectory / kFile).parent_path());
    std::ofstream(m_kDirectory / kFile, std::ios::binary) << kText;
}

std::string CProgramFixture::Read(const std::string& kFile) const
{
    std::ostringstream kText;
    kText << std::ifstream(m_kDirectory / kFile, std::ios::binary).rdbuf();
    return kText.str();
}

void CProgramFixture::Link(const std::string& kTarget, const std::string& kLink) const
{
    std::filesystem::create_symlink(kTarget, m_kDirectory / kLink);
}

std::string CProgramFixture::RunCommand(const std::string& kCommand) const
{
    const std::string kLine = "cd '" + m_kDirectory.string() + "' && " + kCommand + " 2>&1; echo \"[$?]\"";
    const std::unique_ptr<std::FILE, PipeCloser_t> kPipe(popen(kLine.c_str(), "r"));
    std::string kOutput;
    char acBlock[4096];
    while (const std::size_t uiLength = std::fread(acBlock, 1, sizeof acBlock, kPipe.get()))
    {
        kOutput.append(acBlock, uiLength);
    }
    return kOutput;
}

std::set<std::string> CProgramFixture::GetFiles() const
{
    std::set<std::string> kFiles;
    for (const auto& kEntry : std::filesystem::directory_iterator(m_kDirectory))
    {
        kFiles.insert(kEntry.path().filename().string());
    }
    return kFiles;
}

void CProgramFixture::ExpectFiles(const std::set<std::string>& kExpected) const
{
    EXPECT_EQ(kExpected, GetFiles());
}

std::string CDialogCompilerTest::Run(const std::string& kArguments) const
{
    return RunCommand("'" DIALOGC "' " + kArguments);
}

void CDialogCompilerTest::ExpectWrong(const std::string& kArguments, const std::string& kMessage) const
{
    SCOPED_TRACE(kArguments);
    const std::set<std::string> kBefore = GetFiles();
    EXPECT_EQ("dialogc: " + kMessage + "\n[2]\n", Run(kArguments));
    ExpectFiles(kBefore);
}

void CDialogCompilerTest::ExpectRefused(const std::string& kText, const std::string& kError,
                                        const std::string& kOptions) const
{
    SCOPED_TRACE(kText);
    const std::set<std::string> kBefore = GetFiles();
    WriteOutput("Out");
    Write("a.xml", kText);
    EXPECT_EQ("a.xml:" + kError + ".\n[1]\n", Run("--output Out a.xml " + kOptions));
    std::set<std::string> kExpected = kBefore;
    kExpected.insert("a.xml");
    ExpectFiles(kExpected);
}

void CDialogCompilerTest::ExpectCompiled(const std::string& kText, const std::string& kOptions) const
{
    SCOPED_TRACE(kText);
    Write("a.xml", kText);
    std::set<std::string> kExpected = GetFiles();
    kExpected.insert({"Out.cpp", "Out.h"});
    EXPECT_EQ("[0]\n", Run("--output Out a.xml " + kOptions));
    ExpectFiles(kExpected);
}

void CDialogCompilerTest::WriteOutput(const std::string& kStem) const
{
    Write("a.xml", "<Object/>");
    EXPECT_EQ("[0]\n", Run("--output " + kStem + " a.xml"));
}
