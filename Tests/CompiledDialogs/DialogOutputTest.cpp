// SPDX-License-Identifier: MIT
// What dialogc leaves behind when it fails.

#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <filesystem>
#include <set>
#include <string>
#include <utility>

namespace
{
using Files_t = std::set<std::string>;

class CDialogOutputTest : public CDialogCompilerTest
{
protected:
    CDialogOutputTest() { Write("a.xml", "<Object/>"); }

    void Compile(const std::string& kArguments) const { EXPECT_EQ("[0]\n", Run(kArguments)); }
};

TEST_F(CDialogOutputTest, FileThatCannotBeRead_LeavesNoOutput)
{
    WriteOutput("Out");
    EXPECT_EQ("b.xml:1:1: cannot open (No such file or directory); expected a readable file.\n[1]\n",
              Run("--output Out b.xml"));
    EXPECT_EQ((Files_t{"a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, OneWrongFileOfSeveral_LeavesNoOutput)
{
    Write("b.xml", "<Object>");
    Write("c.xml", "<Object/>");
    EXPECT_EQ("b.xml:1:9: end of the file; expected an element or the end tag of 'Object'.\n[1]\n",
              Run("--output Out c.xml b.xml a.xml"));
    EXPECT_EQ((Files_t{"a.xml", "b.xml", "c.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, WrongArguments_LeaveNoOutputOfAnEarlierRun)
{
    for (const std::string kArguments :
         {"--output Out", "--output Out -v a.xml", "-v a.xml --output Out", "--output Out --name 1 a.xml",
          "--output Out --base nowhere a.xml", "--output Out --handles Nowhere.h a.xml",
          "--output Out a.xml a.xml", "--name --output Out --output=Out", "'a\xFF' --output Out",
          "-v --help --output Out a.xml", "-v --version --output Out a.xml"})
    {
        SCOPED_TRACE(kArguments);
        WriteOutput("Out");
        EXPECT_NE(std::string::npos, Run(kArguments).find("\n[2]\n"));
        EXPECT_EQ((Files_t{"a.xml"}), GetFiles());
    }
}

TEST_F(CDialogOutputTest, TwoOutputs_AreBothGone)
{
    WriteOutput("Out");
    WriteOutput("Other");
    EXPECT_EQ("dialogc: --output is given twice; give it once\n[2]\n",
              Run("--output Out --output Other a.xml"));
    EXPECT_EQ((Files_t{"a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, FileThatIsNotFromDialogc_IsNeitherOverwrittenNorRemoved)
{
    for (const std::string kFile : {"Out.h", "Out.cpp"})
    {
        for (const std::string kText : {"#pragma once\n", "// Made by hand from dialog description files."})
        {
            SCOPED_TRACE(kText);
            SCOPED_TRACE(kFile);
            Write(kFile, kText);
            EXPECT_EQ("dialogc: '" + kFile +
                          "' is there and not from dialogc; move it away or give another --output\n[1]\n",
                      Run("--output Out a.xml"));
            EXPECT_EQ((Files_t{"a.xml", kFile}), GetFiles());
            EXPECT_EQ(kText, Read(kFile));
            EXPECT_EQ("b.xml:1:1: cannot open (No such file or directory); expected a readable file.\n[1]\n",
                      Run("--output Out b.xml"));
            EXPECT_EQ(kText, Read(kFile));
        }
        std::filesystem::remove(GetDirectory() / kFile);
    }
}

TEST_F(CDialogOutputTest, FileThatCannotBeRead_IsNotOverwritten)
{
    // A process's own memory is a file whose first bytes can neither be read nor written.
    Link("/proc/self/mem", "Out.h");
    EXPECT_EQ("dialogc: 'Out.h' is there and not from dialogc; move it away or give another --output\n[1]\n",
              Run("--output Out a.xml"));
    EXPECT_EQ((Files_t{"Out.h", "a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, EmptyFile_IsOverwrittenButNotRemoved)
{
    Write("Out.cpp", "");
    EXPECT_EQ("dialogc: there is no file to compile; name one or more\n[2]\n", Run("--output Out"));
    EXPECT_EQ((Files_t{"Out.cpp", "a.xml"}), GetFiles());
    Compile("--output Out a.xml");
    EXPECT_EQ((Files_t{"Out.cpp", "Out.h", "a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, FileThatAnEarlierRunHasBegun_IsOverwritten)
{
    Compile("--output Out a.xml");
    const std::string kHeader = Read("Out.h");
    for (const std::size_t uiLength : {std::size_t{1}, std::size_t{40}, kHeader.size() - 1})
    {
        Write("Out.h", kHeader.substr(0, uiLength));
        Compile("--output Out a.xml");
        EXPECT_EQ(kHeader, Read("Out.h"));
    }
}

TEST_F(CDialogOutputTest, OutputOfAnEarlierRun_IsReplaced)
{
    Write("b.xml", "<Composite/>");
    Compile("--output Out b.xml a.xml");
    Compile("--output Out a.xml");
    const std::string kSource = Read("Out.cpp");
    std::filesystem::remove(GetDirectory() / "Out.cpp");
    Compile("--output Out a.xml");
    EXPECT_EQ(kSource, Read("Out.cpp"));
}

TEST_F(CDialogOutputTest, OutputThatCannotBeWritten_IsReportedAndLeavesNoOther)
{
    const std::string kAdvice = "; give another --output or make it writable\n[1]\n";
    EXPECT_EQ("dialogc: cannot write 'nowhere/Out.h' (No such file or directory)" + kAdvice,
              Run("--output nowhere/Out a.xml"));
    Link("Out.cpp", "Out.cpp");
    EXPECT_EQ("dialogc: cannot write 'Out.cpp' (Too many levels of symbolic links)" + kAdvice,
              Run("--output Out a.xml"));
    EXPECT_EQ((Files_t{"Out.cpp", "a.xml"}), GetFiles());
    std::filesystem::remove(GetDirectory() / "Out.cpp");
    Write("Out.cpp/file", "in a directory of that name");
    EXPECT_EQ("dialogc: 'Out.cpp' is no regular file; move it away or give another --output\n[1]\n",
              Run("--output Out a.xml"));
    EXPECT_EQ((Files_t{"Out.cpp", "a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, OutputThatIsNoRegularFile_IsRefusedUnopened)
{
    for (const std::string kFile : {"Out.h", "Out.cpp"})
    {
        // A program that opens this for writing blocks until there is a reader.
        EXPECT_EQ("[0]\n", RunCommand("mkfifo " + kFile));
        EXPECT_EQ("dialogc: '" + kFile + "' is no regular file; move it away or give another --output\n[1]\n",
                  RunCommand("timeout 20 '" DIALOGC "' --output Out a.xml"));
        EXPECT_EQ((Files_t{kFile, "a.xml"}), GetFiles());
        std::filesystem::remove(GetDirectory() / kFile);
    }
}

TEST_F(CDialogOutputTest, OutputsThatAreOneFile_AreRefused)
{
    const std::string kMessage =
        "dialogc: 'Out.h' and 'Out.cpp' are one file; remove the link or give another --output\n[1]\n";
    Link("Out.cpp", "Out.h");
    EXPECT_EQ(kMessage, Run("--output Out a.xml"));
    EXPECT_EQ((Files_t{"Out.h", "a.xml"}), GetFiles());
    std::filesystem::remove(GetDirectory() / "Out.h");
    Link("Out.h", "Out.cpp");
    EXPECT_EQ(kMessage, Run("--output Out a.xml"));
    EXPECT_EQ((Files_t{"Out.cpp", "a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, FileThatMayNotGrow_IsRemoved)
{
    Write("a.xml", "<Label text='" + std::string(100000, 'a') + "'/>");
    for (const auto& [pcBlocks, pcFile] : {std::pair("0", "Out.h"), std::pair("8", "Out.cpp")})
    {
        EXPECT_EQ(std::string("dialogc: cannot write '") + pcFile +
                      "' (File too large); give another --output or make it writable\n[1]\n",
                  RunCommand(std::string("( trap '' XFSZ; ulimit -f ") + pcBlocks +
                             "; '" DIALOGC "' --output Out a.xml )"));
        EXPECT_EQ((Files_t{"a.xml"}), GetFiles());
    }
}

TEST_F(CDialogOutputTest, EmptyFileThatWasNotOpenedYet_StaysWhenTheFirstOneMayNotGrow)
{
    Write("Out.cpp", "");
    EXPECT_EQ(
        "dialogc: cannot write 'Out.h' (File too large); give another --output or make it writable\n[1]\n",
        RunCommand("( trap '' XFSZ; ulimit -f 0; '" DIALOGC "' --output Out a.xml )"));
    EXPECT_EQ((Files_t{"Out.cpp", "a.xml"}), GetFiles());
}

TEST_F(CDialogOutputTest, Link_StaysAndItsTargetIsTheOutput)
{
    std::filesystem::create_directory(GetDirectory() / "sub");
    Link("sub/Real.cpp", "Out.cpp");
    Compile("--output Out a.xml");
    EXPECT_TRUE(std::filesystem::is_symlink(GetDirectory() / "Out.cpp"));
    EXPECT_TRUE(std::filesystem::exists(GetDirectory() / "sub/Real.cpp"));
    EXPECT_EQ("dialogc: there is no file to compile; name one or more\n[2]\n", Run("--output Out"));
    EXPECT_TRUE(std::filesystem::is_symlink(GetDirectory() / "Out.cpp"));
    EXPECT_FALSE(std::filesystem::exists(GetDirectory() / "sub/Real.cpp"));
    EXPECT_EQ((Files_t{"Out.cpp", "a.xml", "sub"}), GetFiles());
}
} // namespace
