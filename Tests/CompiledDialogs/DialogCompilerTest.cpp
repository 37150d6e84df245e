// dialogc as a program.

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>
#include <string>

namespace
{
struct PipeCloser_t
{
    void operator()(std::FILE* pkPipe) const { pclose(pkPipe); }
};

/** Runs dialogc in a directory of its own. */
class DialogCompiler : public testing::Test
{
protected:
    DialogCompiler()
    {
        std::string kTemplate = std::filesystem::temp_directory_path() / "DialogCompiler.XXXXXX";
        m_kDirectory = mkdtemp(kTemplate.data());
    }

    ~DialogCompiler() override { std::filesystem::remove_all(m_kDirectory); }

    void Write(const std::string& kFile, const std::string& kText) const
    {
        std::filesystem::create_directories((m_kDirectory / kFile).parent_path());
        std::ofstream(m_kDirectory / kFile, std::ios::binary) << kText;
    }

    std::string Read(const std::string& kFile) const
    {
        std::ostringstream kText;
        kText << std::ifstream(m_kDirectory / kFile, std::ios::binary).rdbuf();
        return kText.str();
    }

    /** @return what dialogc writes to both of its outputs, and behind it its status in brackets */
    std::string Run(const std::string& kArguments) const
    {
        const std::string kCommand =
            "cd '" + m_kDirectory.string() + "' && '" DIALOGC "' " + kArguments + " 2>&1; echo \"[$?]\"";
        const std::unique_ptr<std::FILE, PipeCloser_t> kPipe(popen(kCommand.c_str(), "r"));
        std::string kOutput;
        char acBlock[4096];
        while (const std::size_t uiLength = std::fread(acBlock, 1, sizeof acBlock, kPipe.get()))
        {
            kOutput.append(acBlock, uiLength);
        }
        return kOutput;
    }

    std::set<std::string> GetFiles() const
    {
        std::set<std::string> kFiles;
        for (const auto& kEntry : std::filesystem::directory_iterator(m_kDirectory))
        {
            kFiles.insert(kEntry.path().filename().string());
        }
        return kFiles;
    }

    /** Expects that a file "a.xml" is refused, and that what an earlier run wrote is gone. */
    void ExpectRefused(const std::string& kText, const std::string& kError)
    {
        SCOPED_TRACE(kText);
        Write("Out.h", "from before");
        Write("Out.cpp", "from before");
        Write("a.xml", kText);
        EXPECT_EQ("a.xml:" + kError + ".\n[1]\n", Run("--output Out a.xml"));
        EXPECT_EQ((std::set<std::string>{"a.xml"}), GetFiles());
    }

    /** Expects that a file "a.xml" is compiled. */
    void ExpectCompiled(const std::string& kText, const std::string& kOptions = "")
    {
        SCOPED_TRACE(kText);
        Write("a.xml", kText);
        EXPECT_EQ("[0]\n", Run("--output Out a.xml " + kOptions));
        EXPECT_EQ((std::set<std::string>{"Out.cpp", "Out.h", "a.xml"}), GetFiles());
    }

private:
    std::filesystem::path m_kDirectory;
};

TEST_F(DialogCompiler, Help_TellsEveryOption)
{
    const std::string kHelp = Run("--help");
    EXPECT_EQ(0u, kHelp.find("Usage: dialogc --output <stem> [option ...] <file> ...\n"));
    for (const char* pcOption :
         {"--output <stem>", "--name <constant>", "--base <directory>", "--handles <header>", "--help"})
    {
        EXPECT_NE(std::string::npos, kHelp.find(std::string("\n  ") + pcOption)) << pcOption;
    }
    EXPECT_NE(std::string::npos, kHelp.find("[0]\n"));
    EXPECT_EQ(std::set<std::string>{}, GetFiles());
}

TEST_F(DialogCompiler, File_BecomesHeaderAndSource)
{
    Write("Dialogs/Home.xml", "<Window id='DLG_HOME'>\n  <Object id='OBJ_MSGBOX_OK'/>\n"
                              "  <Label text='&quot;\xC3\xA4?\\&#10;1' id='-3'/>\n</Window>\n");
    EXPECT_EQ("[0]\n", Run("--output Home --base . Dialogs/Home.xml"));
    EXPECT_EQ("// Made by dialogc from dialog description files. Changes here are lost.\n"
              "#ifndef DIALOGS_ckHome_H\n"
              "#define DIALOGS_ckHome_H\n"
              "\n"
              "#include \"Loader/DialogROMTable.h\"\n"
              "\n"
              "extern const DialogROMTables_t ckHome;\n"
              "\n"
              "#endif\n",
              Read("Home.h"));
    EXPECT_EQ("// Made by dialogc from dialog description files. Changes here are lost.\n"
              "#include \"Home.h\"\n"
              "\n"
              "namespace\n"
              "{\n"
              "// \"Dialogs/Home.xml\"\n"
              "constexpr DialogElement_t cakElements0[] = {\n"
              "    {\"Window\", NO_HANDLE, 0, 1, 0}, // line 1\n"
              "    {\"Object\", OBJ_MSGBOX_OK, 1, 0, cuiNoAttribute}, // line 2\n"
              "    {\"Label\", OBJ_KEYBOARD_LAYOUT_ABC, 1, 1, cuiNoAttribute}, // line 3\n"
              "};\n"
              "constexpr DialogAttribute_t cakAttributes0[] = {\n"
              "    {\"id\", \"DLG_HOME\"},\n"
              "    {\"text\", \"\\042\\303\\244\\077\\134\\0121\"},\n"
              "};\n"
              "constexpr unsigned char cauiPositions0[] = {\n"
              "    0, 0, 0, 8, 0, 4, 1, 3, 1, 3, 0, 7, 0, 6,\n"
              "};\n"
              "\n"
              "constexpr DialogROMTable_t cakTables[] = {\n"
              "    {\"Dialogs/Home.xml\", {cakElements0, 3, cakAttributes0}, cauiPositions0},\n"
              "};\n"
              "} // namespace\n"
              "\n"
              "extern const DialogROMTables_t ckHome = {cakTables, 1};\n",
              Read("Home.cpp"));
}

TEST_F(DialogCompiler, Handles_AreConstantsOfTheHeaderWhereOneIsGiven)
{
    ExpectCompiled("<Window id='DLG_HOME'><Window id='12' text=''/><Object/></Window>",
                   "--handles App/Handles.h");
    const std::string kSource = Read("Out.cpp");
    EXPECT_NE(std::string::npos, kSource.find("#include \"Out.h\"\n#include \"App/Handles.h\"\n"));
    EXPECT_NE(std::string::npos, kSource.find("{\"Window\", DLG_HOME, 0, 0, cuiNoAttribute}"));
    EXPECT_NE(std::string::npos,
              kSource.find("{\"Window\", static_cast<ObjectHandle_t>(12), 1, 1, cuiNoAttribute}"));
    EXPECT_NE(std::string::npos, kSource.find("{\"Object\", NO_HANDLE, 1, 0, cuiNoAttribute}"));
}

TEST_F(DialogCompiler, SameFilesInAnyOrder_GiveTheSameOutput)
{
    Write("a.xml", "<Object/>");
    Write("b.xml", "<Composite><Label text='b'/></Composite>");
    Write("B/c.xml", "<Composite/>");
    EXPECT_EQ("[0]\n", Run("--output Out a.xml B/c.xml b.xml"));
    const std::string kSource = Read("Out.cpp");
    EXPECT_LT(kSource.find("{\"B/c.xml\", "), kSource.find("{\"a.xml\", "));
    EXPECT_LT(kSource.find("{\"a.xml\", "), kSource.find("{\"b.xml\", "));
    EXPECT_EQ("[0]\n", Run("--output Out b.xml a.xml B/c.xml"));
    EXPECT_EQ(kSource, Read("Out.cpp"));
    EXPECT_EQ("[0]\n", Run("b.xml --output Out --base . ./a.xml B/../B/c.xml"));
    EXPECT_EQ(kSource, Read("Out.cpp"));
}

TEST_F(DialogCompiler, Name_IsTheOneGiven)
{
    ExpectCompiled("<Object/>", "--name cakMine");
    EXPECT_NE(std::string::npos, Read("Out.h").find("extern const DialogROMTables_t cakMine;"));
    EXPECT_NE(std::string::npos,
              Read("Out.cpp").find("extern const DialogROMTables_t cakMine = {cakTables, 1};"));
}

TEST_F(DialogCompiler, FileWithWrongXML_IsRefused)
{
    ExpectRefused("", "1:1: empty file; expected a top element");
    ExpectRefused("<Window>\n  <Label/>\n</Windows>",
                  "3:1: end tag of 'Windows'; expected the end tag of 'Window'");
    ExpectRefused("<Window>\xFF</Window>", "1:9: malformed UTF-8; expected text in UTF-8");
}

TEST_F(DialogCompiler, FileWithMistakeThatEveryApplicationRefuses_IsRefused)
{
    const std::string kHandle = "; expected the name of a handle or a number from -2147483648 to 2147483647";
    ExpectRefused("<Window>\n <Object text='a'/></Window>",
                  "2:10: unknown attribute 'text' of 'Object'; expected one of id, invisible, focusable");
    ExpectRefused("<Composite invisible='yes'/>",
                  "1:23: bad value 'yes' of attribute 'invisible'; expected true or false");
    ExpectRefused("<Window><Object><Window/></Object></Window>",
                  "1:17: element 'Window' inside 'Object'; expected no elements inside an object that is not "
                  "composite");
    ExpectRefused("<Window id='2147483648'/>", "1:13: number out of range '2147483648'" + kHandle);
    for (const char* pcName :
         {"", " 1", "DLG HOME", "1a", "a-b", "OBJ_START_TAG", "NOF_OBJECTHANDLES", "QUORVANE_INTERNAL_ID"})
    {
        ExpectRefused("<Window id='" + std::string(pcName) + "'/>",
                      "1:13: unknown handle '" + std::string(pcName) + "'" + kHandle);
    }
}

TEST_F(DialogCompiler, FileWithWhatOnlyTheApplicationKnows_IsCompiled)
{
    ExpectCompiled("<Window colour='red' focusable='maybe'><Label><Label/></Label></Window>");
    ExpectCompiled("<Window id='DLG_UNHEARD_OF'/>");
    ExpectCompiled("<Window id='_G\xC3\xB6tter1'/>");
}

TEST_F(DialogCompiler, FileThatCannotBeRead_IsRefused)
{
    Write("Out.cpp", "from before");
    EXPECT_EQ("a.xml:1:1: cannot open (No such file or directory); expected a readable file.\n[1]\n",
              Run("--output Out a.xml"));
    EXPECT_EQ(std::set<std::string>{}, GetFiles());
}

TEST_F(DialogCompiler, OneWrongFileOfSeveral_LeavesNoOutput)
{
    Write("a.xml", "<Object/>");
    Write("b.xml", "<Object>");
    Write("c.xml", "<Object/>");
    EXPECT_EQ("b.xml:1:9: end of the file; expected an element or the end tag of 'Object'.\n[1]\n",
              Run("--output Out c.xml b.xml a.xml"));
    EXPECT_EQ((std::set<std::string>{"a.xml", "b.xml", "c.xml"}), GetFiles());
}

TEST_F(DialogCompiler, OutputThatCannotBeWritten_IsReportedAndLeavesNoOther)
{
    Write("a.xml", "<Object/>");
    EXPECT_EQ("dialogc: cannot write nowhere/Out.h\n[1]\n", Run("--output nowhere/Out a.xml"));
    Write("Out.cpp/file", "in a directory of that name");
    EXPECT_EQ("dialogc: cannot write Out.cpp\n[1]\n", Run("--output Out a.xml"));
    EXPECT_EQ((std::set<std::string>{"Out.cpp", "a.xml"}), GetFiles());
}

TEST_F(DialogCompiler, WrongArguments_AreRefused)
{
    Write("a.xml", "<Object/>");
    Write("Dialogs/b.xml", "<Object/>");
    const auto ExpectWrong = [this](const std::string& kArguments, const std::string& kMessage)
    { EXPECT_EQ("dialogc: " + kMessage + "\n[2]\n", Run(kArguments)) << kArguments; };

    ExpectWrong("", "--output is missing");
    ExpectWrong("a.xml", "--output is missing");
    ExpectWrong("--output Out", "there is no file to compile");
    ExpectWrong("--output", "--output wants a value");
    ExpectWrong("a.xml --output Out --base", "--base wants a value");
    ExpectWrong("a.xml --output ''", "--output wants a value");
    ExpectWrong("--output Out a.xml ''", "there is no option ''");
    ExpectWrong("--output Out -v a.xml", "there is no option '-v'");
    ExpectWrong("--output Out --name 1st a.xml", "'1st' cannot be the name of a constant");
    ExpectWrong("--output Out-put a.xml", "'ckOut-put' cannot be the name of a constant");
    ExpectWrong("--output Out a.xml a.xml", "a.xml is given twice");
    ExpectWrong("--output Out --base . a.xml Dialogs/../a.xml", "a.xml is given twice");
    ExpectWrong("--output Out --base Dialogs a.xml", "a.xml does not lie below Dialogs");
    EXPECT_EQ((std::set<std::string>{"Dialogs", "a.xml"}), GetFiles());
}
} // namespace
