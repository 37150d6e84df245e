// SPDX-License-Identifier: MIT
// The output of dialogc for description files.

#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <algorithm>
#include <string>

namespace
{
class CDialogTablesTest : public CDialogCompilerTest
{
protected:
    /** Writes a header of handles and compiles "Out.cpp" with the compiler that compiled this test.
     *  @return the compiler's output, followed by its status in brackets
     */
    std::string CompileOutput() const
    {
        return RunCommand("'" CXX_COMPILER "' -std=c++17 -Wall -Wextra -Wpedantic -Werror -fsyntax-only"
                          " -I'" DIALOGMANAGER_SOURCE_DIRECTORY "'"
                          " -I'" DIALOGMANAGER_SOURCE_DIRECTORY "/Include' Out.cpp");
    }

    /** @return the bytes of the positions of the first dialog in "Out.cpp" */
    std::string ReadPositions() const
    {
        const std::string kSource = Read("Out.cpp");
        const std::string kBegin = "cauiPositions0[] = {\n    ";
        const std::size_t uiBegin = kSource.find(kBegin) + kBegin.size();
        return kSource.substr(uiBegin, kSource.find("\n};", uiBegin) - uiBegin);
    }

    static constexpr const char* cpcHandleHeader = "#include \"GUIConfig/GUIObjectHandleResource.h\"\n"
                                                   "#define HANDLES(HANDLE) HANDLE(DLG_HOME)\n"
                                                   "GUI_DECLARE_OBJECT_HANDLES(HANDLES)\n";
};

TEST_F(CDialogTablesTest, File_BecomesHeaderAndSource)
{
    Write("Dialogs/Home.xml", "<Window id='DLG_HOME'>\n  <Object id='OBJ_MSGBOX_OK'/>\n"
                              "  <Label text='&quot;\xC3\xA4\xC2\xA7?\\~&#10;1' id='-3'/>\n</Window>\n");
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
              "#line 1 \"Dialogs/Home.xml\"\n"
              "    {\"Window\",\n"
              "#line 1\n"
              "            NO_HANDLE, 0, 1, 0},\n"
              "    {\"Object\",\n"
              "#line 2\n"
              "              OBJ_MSGBOX_OK, 1, 0, cuiNoAttribute},\n"
              "    {\"Label\",\n"
              "#line 3\n"
              "                                      OBJ_KEYBOARD_LAYOUT_ABC, 1, 1, cuiNoAttribute},\n"
              "};\n"
              "#line 20 \"Home.cpp\"\n"
              "constexpr DialogAttribute_t cakAttributes0[] = {\n"
              "    {\"id\", \"DLG_HOME\"},\n"
              "    {\"text\", \"\\042\\303\\244\\302\\247\\077\\134~\\0121\"},\n"
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

TEST_F(CDialogTablesTest, FileWithoutAttributes_HasNoTableOfThem)
{
    ExpectCompiled("<Composite>\n <Object/>\n</Composite>");
    EXPECT_EQ("// Made by dialogc from dialog description files. Changes here are lost.\n"
              "#include \"Out.h\"\n"
              "\n"
              "namespace\n"
              "{\n"
              "// \"a.xml\"\n"
              "constexpr DialogElement_t cakElements0[] = {\n"
              "#line 1 \"a.xml\"\n"
              "    {\"Composite\",\n"
              "#line 1\n"
              "NO_HANDLE, 0, 0, cuiNoAttribute},\n"
              "    {\"Object\",\n"
              "#line 2\n"
              " NO_HANDLE, 1, 0, cuiNoAttribute},\n"
              "};\n"
              "#line 17 \"Out.cpp\"\n"
              "constexpr const DialogAttribute_t* cakAttributes0 = nullptr;\n"
              "constexpr unsigned char cauiPositions0[] = {\n"
              "    0, 0, 1, 2,\n"
              "};\n"
              "\n"
              "constexpr DialogROMTable_t cakTables[] = {\n"
              "    {\"a.xml\", {cakElements0, 2, cakAttributes0}, cauiPositions0},\n"
              "};\n"
              "} // namespace\n"
              "\n"
              "extern const DialogROMTables_t ckOut = {cakTables, 1};\n",
              Read("Out.cpp"));
}

TEST_F(CDialogTablesTest, Handles_AreConstantsOfTheHeaderWhereOneIsGiven)
{
    Write("App/Handles.h", "");
    ExpectCompiled("<Window id='DLG_HOME'><Window id='12' text=''/><Object/></Window>",
                   "--handles App/Handles.h");
    const std::string kSource = Read("Out.cpp");
    EXPECT_NE(std::string::npos, kSource.find("#include \"Out.h\"\n#include \"App/Handles.h\"\n"));
    EXPECT_NE(std::string::npos, kSource.find(" DLG_HOME, 0, 0, cuiNoAttribute},\n"));
    EXPECT_NE(std::string::npos, kSource.find(" static_cast<ObjectHandle_t>(12), 1, 1, cuiNoAttribute},\n"));
    EXPECT_NE(std::string::npos, kSource.find(" NO_HANDLE, 1, 0, cuiNoAttribute},\n"));
}

TEST_F(CDialogTablesTest, Handle_HasThePlaceOfItsValueOrOfItsElement)
{
    ExpectCompiled("<Window text='a'>\n<Window id='3' text='b'/></Window>");
    EXPECT_NE(std::string::npos, Read("Out.cpp").find("    {\"Window\",\n"
                                                      "#line 1\n"
                                                      "NO_HANDLE, 0, 1, cuiNoAttribute},\n"
                                                      "    {\"Window\",\n"
                                                      "#line 2\n"
                                                      "            static_cast<ObjectHandle_t>(3), 1, 1, "
                                                      "cuiNoAttribute},\n"
                                                      "};\n"));
}

TEST_F(CDialogTablesTest, SameFilesInAnyOrder_GiveTheSameOutput)
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
    EXPECT_EQ("[0]\n", Run("b.xml --output Out --base . a.xml B/c.xml"));
    EXPECT_EQ(kSource, Read("Out.cpp"));
}

TEST_F(CDialogTablesTest, Name_IsTheOneGiven)
{
    ExpectCompiled("<Object/>", "--name cakMine");
    EXPECT_NE(std::string::npos, Read("Out.h").find("extern const DialogROMTables_t cakMine;"));
    EXPECT_NE(std::string::npos,
              Read("Out.cpp").find("extern const DialogROMTables_t cakMine = {cakTables, 1};"));
}

TEST_F(CDialogTablesTest, FileWithWrongXML_IsRefused)
{
    ExpectRefused("", "1:1: empty file; expected a top element");
    ExpectRefused("<Window>\n  <Label/>\n</Windows>",
                  "3:1: end tag of 'Windows'; expected the end tag of 'Window'");
    ExpectRefused("<Window>\xFF</Window>", "1:9: malformed UTF-8; expected text in UTF-8");
}

TEST_F(CDialogTablesTest, FileWithMistakeThatEveryApplicationRefuses_IsRefused)
{
    ExpectRefused("<Window>\n <Object text='a'/></Window>",
                  "2:10: unknown attribute 'text' of 'Object'; expected one of id, invisible, focusable");
    ExpectRefused("<Composite invisible='yes'/>",
                  "1:23: bad value 'yes' of attribute 'invisible'; expected true or false");
    ExpectRefused("<Window><Object><Window/></Object></Window>",
                  "1:17: element 'Window' inside 'Object'; expected no elements inside an object that is not "
                  "composite");
    ExpectRefused("<Window id='2147483648'/>",
                  "1:13: number out of range '2147483648'; expected the name of a handle or a number from "
                  "-2147483648 to 2147483647");
}

TEST_F(CDialogTablesTest, NameThatNoHandleCanHave_IsRefusedWithAndWithoutHeader)
{
    Write("Handles.h", "");
    // Among them the neighbours of letters and digits in ASCII.
    for (const char* pcName :
         {"", " 1", "DLG HOME", "0a", "1a", "9a", "a-b", "a/b", "a:b", "a@b", "a[b", "a`b", "a{b",
          "OBJ_START_TAG", "NOF_OBJECTHANDLES", "QUORVANE_INTERNAL_ID", "class", "xor_eq", "co_await"})
    {
        for (const char* pcOptions : {"", "--handles Handles.h"})
        {
            ExpectRefused("<Window id='" + std::string(pcName) + "'/>",
                          "1:13: unknown handle '" + std::string(pcName) +
                              "'; expected the name of a handle or a number from -2147483648 to 2147483647",
                          pcOptions);
        }
    }
}

TEST_F(CDialogTablesTest, FileWithWhatOnlyTheApplicationKnows_IsCompiled)
{
    ExpectCompiled("<Window colour='red' focusable='maybe'><Label><Label/></Label></Window>");
    ExpectCompiled("<Window id='DLG_UNHEARD_OF'/>");
    ExpectCompiled("<Window id='_G\xC3\xB6tter1'/>");
    ExpectCompiled("<Window id='AMZamz059_\xC3\x80'/>");
}

TEST_F(CDialogTablesTest, UnknownHandle_IsReportedByTheCompilerWhereTheDescriptionFileHasIt)
{
    Write("Handles.h", cpcHandleHeader);
    Write("Gr\xC3\xBC\xC3\x9F\"e.xml", "<Composite id='DLG_HOME'>\n"
                                       "  <!-- \xC3\xA4 -->\n"
                                       "  <Object invisible='true'\n"
                                       "          id='BTN_STRAT'/>\n"
                                       "</Composite>\n");
    EXPECT_EQ("[0]\n", Run("--output Out --handles Handles.h Gr\xC3\xBC\xC3\x9F\\\"e.xml"));
    const std::string kOutput = CompileOutput();
    EXPECT_EQ(0u, kOutput.find("Gr\xC3\xBC\xC3\x9F\"e.xml:4:15: error: ")) << kOutput;
    EXPECT_NE(std::string::npos, kOutput.find("BTN_STRAT")) << kOutput;
    EXPECT_EQ(std::string::npos, kOutput.find("Out.cpp")) << kOutput;
}

TEST_F(CDialogTablesTest, UnknownHandleFarToTheRight_IsReportedInItsLine)
{
    Write("Handles.h", cpcHandleHeader);
    const std::string kFar(100000, ' ');
    ExpectCompiled("<Composite>\n<Object" + kFar + "id='BTN_STRAT'/></Composite>", "--handles Handles.h");
    EXPECT_GT(2000u, Read("Out.cpp").size());
    EXPECT_EQ(0u, CompileOutput().find("a.xml:2:120: error: "));
}

TEST_F(CDialogTablesTest, MistakeBehindTheElements_IsReportedInTheSourceFile)
{
    Write("Handles.h", std::string(cpcHandleHeader) + "#define cakTables !\n");
    ExpectCompiled("<Composite id='DLG_HOME'>\n<Object/></Composite>", "--handles Handles.h");
    const std::string kSource = Read("Out.cpp");
    const auto iLine = std::count(
        kSource.begin(), kSource.begin() + static_cast<std::ptrdiff_t>(kSource.find("cakTables")), '\n');
    EXPECT_NE(std::string::npos, CompileOutput().find("Out.cpp:" + std::to_string(iLine + 1) + ":"));
}

TEST_F(CDialogTablesTest, Output_CompilesWithoutWarning)
{
    Write("Handles.h", cpcHandleHeader);
    ExpectCompiled("<Composite id='DLG_HOME'>\n<Object/><Label id='3' text='?\?/'/></Composite>",
                   "--handles Handles.h");
    EXPECT_EQ("[0]\n", CompileOutput());
    ExpectCompiled("<Composite id='DLG_HOME'/>");
    EXPECT_EQ("[0]\n", CompileOutput());
}

TEST_F(CDialogTablesTest, TwentyPositions_FillALine)
{
    ExpectCompiled(
        "<Composite><Object/><Object/><Object/><Object/><Object/><Object/><Object/><Object/><Object/>"
        "</Composite>");
    EXPECT_EQ("0, 0, 0, 11, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9,", ReadPositions());
    ExpectCompiled(
        "<Composite><Object/><Object/><Object/><Object/><Object/><Object/><Object/><Object/><Object/>"
        "<Object/></Composite>");
    EXPECT_EQ("0, 0, 0, 11, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9, 0, 9,\n    0, 9,", ReadPositions());
}

TEST_F(CDialogTablesTest, PositionsOfAnyStep_AreWritten)
{
    const auto WriteSteps = [this](std::size_t uiColumns, std::size_t uiLines)
    {
        ExpectCompiled("<Composite>" + std::string(uiColumns - 11, ' ') + "<Object/>" +
                       std::string(uiLines, '\n') + "<Object/></Composite>");
        return ReadPositions();
    };
    EXPECT_EQ("0, 0, 0, 127, 127, 1,", WriteSteps(127, 127));
    EXPECT_EQ("0, 0, 0, 128, 1, 128, 1, 1,", WriteSteps(128, 128));
    EXPECT_EQ("0, 0, 0, 129, 1, 129, 1, 1,", WriteSteps(129, 129));
    EXPECT_EQ("0, 0, 0, 128, 128, 1, 255, 255, 1, 1,", WriteSteps(16384, 32767));
    EXPECT_EQ("0, 0, 0, 128, 128, 2, 128, 128, 4, 1,", WriteSteps(32768, 65536));
}
} // namespace
