// SPDX-License-Identifier: MIT
// The arguments of dialogc.

#include "Core/GUIVersion.h"
#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <filesystem>
#include <regex>
#include <set>
#include <string>

namespace
{
class CDialogArgumentsTest : public CDialogCompilerTest
{
protected:
    CDialogArgumentsTest() { Write("a.xml", "<Object/>"); }

    /** Expects arguments to be accepted for the file "a.xml". */
    void ExpectGood(const std::string& kArguments, const std::set<std::string>& kFiles) const
    {
        SCOPED_TRACE(kArguments);
        std::set<std::string> kExpected = GetFiles();
        kExpected.insert(kFiles.begin(), kFiles.end());
        EXPECT_EQ("[0]\n", Run(kArguments));
        EXPECT_EQ(kExpected, GetFiles());
    }
};

TEST_F(CDialogArgumentsTest, Help_TellsEveryOption)
{
    const std::string kHelp = Run("--help");
    EXPECT_EQ(0u, kHelp.find("Usage: dialogc --output <stem> [option ...] <file> ...\n"));
    for (const char* pcOption : {"--output <stem>", "--name <constant>", "--base <directory>",
                                 "--handles <header>", "--include <directory>", "--help, -h", "--version"})
    {
        EXPECT_NE(std::string::npos, kHelp.find(std::string("\n  ") + pcOption)) << pcOption;
    }
    EXPECT_NE(std::string::npos, kHelp.find("[0]\n"));
    EXPECT_EQ(std::set<std::string>{"a.xml"}, GetFiles());
}

TEST_F(CDialogArgumentsTest, Help_MayStandAnywhereAndCompilesNothing)
{
    const std::string kHelp = Run("--help");
    for (const char* pcArguments :
         {"-h", "--output Out a.xml --help", "a.xml -h --output Out", "--help --nonsense", "-h --version"})
    {
        EXPECT_EQ(kHelp, Run(pcArguments)) << pcArguments;
    }
    EXPECT_EQ(std::set<std::string>{"a.xml"}, GetFiles());
}

TEST_F(CDialogArgumentsTest, Version_IsThatOfTheHeader)
{
    for (const char* pcArguments : {"--version", "--output Out a.xml --version", "--version --nonsense"})
    {
        EXPECT_EQ("dialogc " GUI_VERSION "\n[0]\n", Run(pcArguments)) << pcArguments;
    }
    EXPECT_EQ(std::set<std::string>{"a.xml"}, GetFiles());
}

TEST_F(CDialogArgumentsTest, HelpAndVersionThatCannotBePrinted_AreReported)
{
    for (const char* pcOption : {"--help", "--version"})
    {
        EXPECT_EQ("dialogc: cannot write to the standard output; give it another place\n[1]\n",
                  RunCommand("( '" DIALOGC "' " + std::string(pcOption) + " 2>&1 >/dev/full )"));
    }
}

TEST_F(CDialogArgumentsTest, SignsInNames_AreKeptWhereIncludeTakesThem)
{
    Write("~a!#%.h", "");
    ExpectGood("--output 'Out~!#%' --name ckMine --handles '~a!#%.h' a.xml", {"Out~!#%.h", "Out~!#%.cpp"});
    EXPECT_NE(std::string::npos, Read("Out~!#%.cpp").find("#include \"Out~!#%.h\"\n#include \"~a!#%.h\"\n"));
}

TEST_F(CDialogArgumentsTest, Value_MayStandBehindAnEqualsSign)
{
    Write("App/Handles.h", "");
    ExpectGood("--output=Out --name=ckMine --base=. --include=App --handles=Handles.h a.xml",
               {"Out.h", "Out.cpp"});
    EXPECT_NE(std::string::npos, Read("Out.cpp").find("#include \"Handles.h\"\n"));
    EXPECT_NE(std::string::npos, Read("Out.cpp").find("extern const DialogROMTables_t ckMine = "));
    ExpectGood("--output==Out --name ckOther a.xml", {"=Out.h", "=Out.cpp"});
}

TEST_F(CDialogArgumentsTest, Stem_IsTakenAsItIs)
{
    std::filesystem::create_directory(GetDirectory() / "sub");
    ExpectGood("--output Out.v1 --name ckOut a.xml", {"Out.v1.h", "Out.v1.cpp"});
    EXPECT_NE(std::string::npos, Read("Out.v1.cpp").find("#include \"Out.v1.h\"\n"));
    ExpectGood("--output sub/Out a.xml", {});
    EXPECT_NE(std::string::npos, Read("sub/Out.cpp").find("#include \"Out.h\"\n"));
    EXPECT_NE(std::string::npos, Read("sub/Out.h").find("extern const DialogROMTables_t ckOut;"));
    ExpectGood("--output .Out --name ckOut a.xml", {".Out.h", ".Out.cpp"});
    ExpectGood("--output \"Ou't\" --name ckOut a.xml", {"Ou't.h", "Ou't.cpp"});
}

TEST_F(CDialogArgumentsTest, Stem_ThatCannotBeIncluded_IsRefused)
{
    const std::string kQuoted = " has a quote or a backslash in it, which #include does not take; rename it";
    ExpectWrong("--output 'O\"ut' --name ckOut a.xml", "'O\"ut'" + kQuoted);
    ExpectWrong("--output 'Out\\' --name ckOut a.xml", "'Out\\'" + kQuoted);
    ExpectWrong("--output 'O\nut' --name ckOut a.xml", "'O\\x0Aut' has a control character in it; rename it");
    ExpectWrong("--output 'O\xFFut' --name ckOut a.xml", "'O\\xFFut' is not in UTF-8; rename it");
}

TEST_F(CDialogArgumentsTest, Stem_ThatIsADirectory_IsRefused)
{
    std::filesystem::create_directory(GetDirectory() / "sub");
    for (const std::string kStem : {".", "..", "sub/", "sub/.", "/"})
    {
        ExpectWrong("--name ckOut a.xml --output " + kStem,
                    "--output '" + kStem + "' names a directory; add the name of the two files");
    }
}

TEST_F(CDialogArgumentsTest, Name_IsTheOneGiven)
{
    ExpectGood("--output Out --name a a.xml", {"Out.h", "Out.cpp"});
    ExpectGood("--output Out --name AZaz_09 a.xml", {"Out.h", "Out.cpp"});
    ExpectGood("--output Out --name cakMine a.xml", {"Out.h", "Out.cpp"});
    EXPECT_NE(std::string::npos, Read("Out.h").find("extern const DialogROMTables_t cakMine;"));
    EXPECT_NE(std::string::npos,
              Read("Out.cpp").find("extern const DialogROMTables_t cakMine = {cakTables, 1};"));
}

TEST_F(CDialogArgumentsTest, Name_ThatNoConstantCanHave_IsRefused)
{
    const auto ExpectFault =
        [this](const std::string& kArguments, const std::string& kName, const std::string& kReason)
    {
        ExpectWrong(kArguments + " a.xml", "'" + kName + "' cannot be the name of the constant: " + kReason +
                                               "; give another one with --name");
    };
    const std::string kIdentifier = "it is no identifier of letters, digits and '_'";
    ExpectFault("--output Out --name 1st", "1st", kIdentifier);
    ExpectFault("--output Out --name 'a b'", "a b", kIdentifier);
    ExpectFault("--output Out --name \xC3\xA4", "\xC3\xA4", kIdentifier);
    // The neighbours of letters and digits in ASCII.
    for (const char* pcSign : {"/", ":", "@", "[", "`", "{"})
    {
        ExpectFault("--output Out --name 'ck" + std::string(pcSign) + "'", "ck" + std::string(pcSign),
                    kIdentifier);
    }
    ExpectFault("--output Out-put", "ckOut-put", kIdentifier);
    ExpectFault("--output Out.v1", "ckOut.v1", kIdentifier);
    for (const char* pcKeyword : {"class", "alignas", "xor_eq", "requires", "char8_t"})
    {
        ExpectFault("--output Out --name " + std::string(pcKeyword), pcKeyword, "it is a keyword of C++");
    }
    for (const char* pcReserved : {"_Dialogs", "_dialogs", "ck__Dialogs", "ck__"})
    {
        ExpectFault("--output Out --name " + std::string(pcReserved), pcReserved,
                    "C++ reserves names that begin with '_' or contain '__'");
    }
}

TEST_F(CDialogArgumentsTest, Name_ThatCompilersDefine_IsRefused)
{
    for (const char* pcMacro : {"linux", "unix"})
    {
        ExpectWrong("--output Out a.xml --name " + std::string(pcMacro),
                    "'" + std::string(pcMacro) +
                        "' cannot be the name of the constant: some compilers define it as a macro; give "
                        "another one with --name");
    }
    ExpectGood("--output Out a.xml --name linux_dialogs", {"Out.h", "Out.cpp"});
}

TEST_F(CDialogArgumentsTest, Name_OfTheTables_IsRefused)
{
    for (const char* pcName :
         {"cakTables", "cakElements0", "cakElements9", "cakAttributes12", "cauiPositions3", "main", "std",
          "NULL", "size_t", "OBJ_MSGBOX_OK", "NOF_OBJECTHANDLES", "DialogROMTables_t"})
    {
        ExpectWrong("--output Out a.xml --name " + std::string(pcName),
                    "'" + std::string(pcName) +
                        "' cannot be the name of the constant: the headers of the tables use that name "
                        "themselves; give another one with --name");
    }
    ExpectGood("--output Out a.xml --name cakElementsOfOut", {"Out.h", "Out.cpp"});
}

/** @return the words of a C++ text outside its comments */
std::set<std::string> FindWords(const std::string& kText)
{
    const std::string kCode = std::regex_replace(kText, std::regex("/\\*[^]*?\\*/|//.*"), "");
    const std::regex kWord("[A-Za-z_][A-Za-z0-9_]*");
    return {std::sregex_token_iterator(kCode.begin(), kCode.end(), kWord), std::sregex_token_iterator()};
}

TEST_F(CDialogArgumentsTest, Name_OfTheHeadersOfTheTables_IsRefusedOrCompiles)
{
    std::string kDeclarations;
    std::set<std::string> kWords;
    for (const std::string kHeader :
         {"Loader/DialogROMTable.h", "Loader/DialogElements.h", "Include/Core/Utils/eC_Types.h",
          "Include/GUIConfig/GUIObjectHandleResource.h"})
    {
        kDeclarations += "#include \"" + kHeader + "\"\n";
        kWords.merge(FindWords(Read(DIALOGMANAGER_SOURCE_DIRECTORY "/" + kHeader)));
    }
    std::size_t uiNOFRefused = 0;
    for (const std::string& kWord : kWords)
    {
        const bool bIsRefused = Run("--output Out a.xml --name " + kWord) != "[0]\n";
        uiNOFRefused += bIsRefused ? 1 : 0;
        kDeclarations += bIsRefused ? "" : "extern const DialogROMTables_t " + kWord + ";\n";
    }
    Write("All.cpp", kDeclarations);
    EXPECT_EQ("[0]\n", RunCommand("'" CXX_COMPILER "' -std=c++17 -fsyntax-only"
                                  " -I'" DIALOGMANAGER_SOURCE_DIRECTORY "'"
                                  " -I'" DIALOGMANAGER_SOURCE_DIRECTORY "/Include' All.cpp"));
    EXPECT_LT(50u, uiNOFRefused);
    EXPECT_NE(std::string::npos, kDeclarations.find(" m_pcPath;\n"));
}

TEST_F(CDialogArgumentsTest, Name_OfAHandleInADialog_IsRefusedWhereHandlesAreConstants)
{
    Write("Handles.h", "");
    Write("a.xml", "<Object id='ckOut'/>");
    ExpectWrong(
        "--output Out --handles Handles.h a.xml",
        "'ckOut' cannot be the name of the constant: it is a handle in 'a.xml'; give another one with "
        "--name");
    ExpectGood("--output Out a.xml", {"Out.h", "Out.cpp"});
}

TEST_F(CDialogArgumentsTest, HandleHeader_IsFoundFromHereFromTheOutputAndFromIncludeDirectories)
{
    Write("Here.h", "");
    Write("sub/ThatOfTheOutput.h", "");
    Write("a/App/Handles.h", "");
    Write("b/Other.h", "");
    for (const std::string kHeader : {"Here.h", "ThatOfTheOutput.h", "App/Handles.h", "Other.h"})
    {
        ExpectGood("--output sub/Out --include a --include=b a.xml --handles " + kHeader, {});
        EXPECT_NE(std::string::npos, Read("sub/Out.cpp").find("#include \"" + kHeader + "\"\n"));
    }
    ExpectGood("--output Out a.xml --handles " + (GetDirectory() / "b/Other.h").string(),
               {"Out.h", "Out.cpp"});
}

TEST_F(CDialogArgumentsTest, HandleHeader_ThatIsMissing_IsRefused)
{
    Write("a/Handles.h", "");
    const std::string kMessage = "; give the directory from which it is included with --include";
    ExpectWrong("--output Out --handles Handles.h a.xml", "there is no header 'Handles.h'" + kMessage);
    ExpectWrong("--output Out --handles Handles.h --include nowhere a.xml",
                "there is no header 'Handles.h'" + kMessage);
    ExpectWrong("--output Out --handles a a.xml", "there is no header 'a'" + kMessage);
    ExpectWrong("--output Out --handles 'a\"b.h' a.xml",
                "'a\"b.h' has a quote or a backslash in it, which #include does not take; rename it");
}

TEST_F(CDialogArgumentsTest, WrongArguments_AreRefused)
{
    Write("Handles.h", "");
    const std::string kNoOption = "; dialogc --help lists them";
    const std::string kLacksValue = " lacks its value; dialogc --help tells which";
    ExpectWrong("", "--output is missing; say where the two files go");
    ExpectWrong("a.xml", "--output is missing; say where the two files go");
    ExpectWrong("--output Out", "there is no file to compile; name one or more");
    ExpectWrong("--output", "--output" + kLacksValue);
    ExpectWrong("a.xml --output Out --base", "--base" + kLacksValue);
    ExpectWrong("a.xml --output ''", "--output" + kLacksValue);
    ExpectWrong("a.xml --output=", "--output" + kLacksValue);
    ExpectWrong("a.xml --output Out --handles=", "--handles" + kLacksValue);
    ExpectWrong("--output Out a.xml ''", "'' is no file; leave the empty argument out");
    ExpectWrong("--output Out -v a.xml", "there is no option '-v'" + kNoOption);
    ExpectWrong("--output Out - a.xml", "there is no option '-'" + kNoOption);
    ExpectWrong("--output Out --outp=Out a.xml", "there is no option '--outp=Out'" + kNoOption);
    ExpectWrong("--output Out --help=all a.xml", "there is no option '--help=all'" + kNoOption);
    ExpectWrong("--nonsense --help", "there is no option '--nonsense'" + kNoOption);
    ExpectWrong("'--non\nsense\xFF' a.xml", "there is no option '--non\\x0Asense\\xFF'" + kNoOption);
    ExpectWrong("--output Out a.xml --output Out", "--output is given twice; give it once");
    ExpectWrong("--output=Out a.xml --output=Other", "--output is given twice; give it once");
    ExpectWrong("--output Out a.xml --name ckA --name ckA", "--name is given twice; give it once");
    ExpectWrong("--output Out a.xml --base . --base .", "--base is given twice; give it once");
    ExpectWrong("--output Out a.xml --handles Handles.h --handles=Handles.h",
                "--handles is given twice; give it once");
    ExpectWrong("--output Out a.xml -v -w", "there is no option '-v'" + kNoOption);
}
} // namespace
