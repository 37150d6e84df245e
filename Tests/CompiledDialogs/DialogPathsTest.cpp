// SPDX-License-Identifier: MIT
// The paths under which compiled dialogs are loaded.

#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <filesystem>
#include <set>
#include <string>

namespace
{
class CDialogPathsTest : public CDialogCompilerTest
{
protected:
    /** Expects the paths of the tables, in order. */
    void ExpectPaths(const std::string& kArguments, const std::string& kPaths) const
    {
        SCOPED_TRACE(kArguments);
        EXPECT_EQ("[0]\n", Run("--output Out " + kArguments));
        const std::string kSource = Read("Out.cpp");
        std::string kFound;
        std::size_t uiAt = kSource.find("cakTables[] = ");
        while ((uiAt = kSource.find("\n    {\"", uiAt)) != std::string::npos)
        {
            uiAt += 7;
            kFound += (kFound.empty() ? "" : " ") + kSource.substr(uiAt, kSource.find('"', uiAt) - uiAt);
        }
        EXPECT_EQ(kPaths, kFound);
    }

    void ExpectOutside(const std::string& kFile, const std::string& kBase) const
    {
        ExpectWrong("--output Out --base " + kBase + " " + kFile,
                    "'" + kFile + "' does not lie below '" + kBase + "'; give another --base");
    }
};

TEST_F(CDialogPathsTest, PathThatCannotBeFollowed_IsReportedInOneLine)
{
    Link("loop", "loop");
    const std::string kMessage = "dialogc: cannot find out where 'loop/a.xml' lies below '.' "
                                 "(Too many levels of symbolic links); give paths that exist\n[2]\n";
    EXPECT_EQ(kMessage, Run("--output Out --base . loop/a.xml"));
    EXPECT_EQ("dialogc: cannot find out where 'a.xml' lies below '/' (No such file or directory); "
              "give paths that exist\n[2]\n",
              RunCommand("mkdir gone && cd gone && rmdir ../gone && '" DIALOGC
                         "' --output /nowhere/Out --base / a.xml"));
}

TEST_F(CDialogPathsTest, WithoutBase_PathIsTheOneGiven)
{
    Write("Dialogs/a.xml", "<Object/>");
    const std::string kAbsolute = (GetDirectory() / "Dialogs/a.xml").string();
    ExpectPaths("Dialogs/../Dialogs/a.xml ./Dialogs/a.xml Dialogs/a.xml " + kAbsolute,
                "./Dialogs/a.xml " + kAbsolute + " Dialogs/../Dialogs/a.xml Dialogs/a.xml");
}

TEST_F(CDialogPathsTest, Base_NeedNotBeInItsShortestForm)
{
    Write("Dialogs/Sub/a.xml", "<Object/>");
    for (const std::string kBase :
         {"Dialogs", "Dialogs/", "./Dialogs//", "Dialogs/Sub/..", "Dialogs/.", "Dialogs/Sub/../../Dialogs"})
    {
        ExpectPaths("--base " + kBase + " Dialogs/Sub/a.xml", "Sub/a.xml");
        ExpectPaths("--base " + (GetDirectory() / kBase).string() + " ./Dialogs/Sub/../Sub//a.xml",
                    "Sub/a.xml");
    }
    ExpectPaths("--base / Dialogs/Sub/a.xml",
                (GetDirectory() / "Dialogs/Sub/a.xml").relative_path().string());
}

TEST_F(CDialogPathsTest, HiddenFilesAndDirectories_AreFilesAndDirectoriesAsAnyOther)
{
    for (const char* pcFile : {".a.xml", "..a.xml", "...xml", ".hidden/a.xml", "..hidden/a.xml"})
    {
        Write(pcFile, "<Object/>");
        ExpectPaths("--base . " + std::string(pcFile), pcFile);
        ExpectPaths(pcFile, pcFile);
    }
}

TEST_F(CDialogPathsTest, FileBesideTheBase_IsRefused)
{
    Write("a.xml", "<Object/>");
    Write("Dialogs/a.xml", "<Object/>");
    Write("DialogsOfOthers/a.xml", "<Object/>");
    ExpectOutside("a.xml", "Dialogs");
    ExpectOutside("Dialogs/../a.xml", "Dialogs");
    ExpectOutside("DialogsOfOthers/a.xml", "Dialogs");
    ExpectOutside("Dialogs/a.xml", "DialogsOfOthers");
    ExpectOutside("..", ".");
}

TEST_F(CDialogPathsTest, LinkToTheBaseOrOnTheWayToTheFile_IsFollowed)
{
    Write("Real/Dialogs/a.xml", "<Object/>");
    Link("Real", "Alias");
    Link("Real/Dialogs", "Shortcut");
    for (const char* pcBase : {"Real", "Alias"})
    {
        for (const char* pcFile :
             {"Real/Dialogs/a.xml", "Alias/Dialogs/a.xml", "Shortcut/a.xml", "Shortcut/../Dialogs/a.xml"})
        {
            ExpectPaths("--base " + std::string(pcBase) + " " + pcFile, "Dialogs/a.xml");
        }
    }
}

TEST_F(CDialogPathsTest, LinkThatLeadsOutOfTheBase_IsRefused)
{
    Write("Outside/a.xml", "<Object/>");
    Write("Base/a.xml", "<Object/>");
    Link("../Outside", "Base/Link");
    ExpectOutside("Base/Link/a.xml", "Base");
    ExpectOutside("Base/Link/../a.xml", "Base");
}

TEST_F(CDialogPathsTest, FileThatIsALink_KeepsTheNameOfTheLink)
{
    Write("Outside/a.xml", "<Object/>");
    Write("Base/b.xml", "<Object/>");
    Link("../Outside/a.xml", "Base/a.xml");
    Link("b.xml", "Base/c.xml");
    ExpectPaths("--base Base Base/a.xml Base/b.xml Base/c.xml", "a.xml b.xml c.xml");
}

TEST_F(CDialogPathsTest, BaseThatIsNoDirectory_IsRefused)
{
    Write("a.xml", "<Object/>");
    for (const char* pcBase : {"nowhere", "a.xml", "a.xml/"})
    {
        ExpectWrong("--output Out a.xml --base " + std::string(pcBase),
                    "--base '" + std::string(pcBase) +
                        "' is no directory; give the one that the paths of dialogs begin in");
    }
}

TEST_F(CDialogPathsTest, FileGivenTwice_IsRefused)
{
    Write("a.xml", "<Object/>");
    Write("Dialogs/b.xml", "<Object/>");
    Link("Dialogs", "Link");
    ExpectWrong("--output Out a.xml a.xml", "'a.xml' is given twice; give each file once");
    ExpectWrong("--output Out --base . a.xml Dialogs/../a.xml",
                "'a.xml' is given twice; give each file once");
    ExpectWrong("--output Out --base . Link/b.xml Dialogs/b.xml",
                "'Dialogs/b.xml' is given twice; give each file once");
}

TEST_F(CDialogPathsTest, NameThatIsNotUTF8OrHasAControlCharacter_IsRefused)
{
    Write("a\xFF.xml", "<Object/>");
    Write("a\nb.xml", "<Object/>");
    Write("\xC0\xAF/a.xml", "<Object/>");
    Link("\xC0\xAF", "Link");
    ExpectWrong("--output Out 'a\xFF.xml'", "'a\\xFF.xml' is not in UTF-8; rename it");
    ExpectWrong("--output Out 'a\nb.xml'", "'a\\x0Ab.xml' has a control character in it; rename it");
    ExpectWrong("--output Out a.xml --base '\xC0\xAF'", "'\\xC0\\xAF' is not in UTF-8; rename it");
    ExpectWrong("--output Out --base . Link/a.xml", "'\\xC0\\xAF/a.xml' is not in UTF-8; rename it");
    ExpectWrong("--output Out 'a\x7F.xml'", "'a\\x7F.xml' has a control character in it; rename it");
}

TEST_F(CDialogPathsTest, NameWithQuotesAndCharactersBeyondASCII_IsKept)
{
    Write("\xC3\xA4 \"b'.xml", "<Object/>");
    ExpectPaths("\"\xC3\xA4 \\\"b'.xml\"", "\\303\\244 \\042b'.xml");
}
} // namespace
