// SPDX-License-Identifier: MIT
// CMake's messages when dialogs are compiled into a target in a wrong way.

#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <regex>
#include <string>

namespace
{
class CWrongUseOfCMakeTest : public CProgramFixture
{
protected:
    CWrongUseOfCMakeTest()
    {
        Write("Home.xml", "<Object/>");
        Write("App.cpp", "");
    }

    /** @return what CMake reports for a program configured by these lines, in one line, and its status */
    std::string Configure(const std::string& kLines, const std::string& kOptions = "") const
    {
        Write("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\n"
                                "project(Outside LANGUAGES NONE)\n"
                                "include(\"" DIALOGMANAGER_SOURCE_DIRECTORY
                                "/CMake/DialogManagerCompiledDialogs.cmake\")\n"
                                "add_library(App STATIC App.cpp)\n"
                                "add_library(DialogManager::ROMLoader INTERFACE IMPORTED)\n" +
                                    kLines + "message(STATUS \"All is right\")\n");
        const std::string kOutput = RunCommand("'" CMAKE_PROGRAM "' -G '" CMAKE_GENERATOR_NAME
                                               "' -S . -B build -DDIALOGMANAGER_DIALOGC='" DIALOGC "' " +
                                               kOptions);
        return std::regex_replace(kOutput, std::regex("[ \n]+"), " ");
    }

    void ExpectRefused(const std::string& kArguments, const std::string& kMessage) const
    {
        ExpectLinesRefused("dialogmanager_add_compiled_dialogs(" + kArguments + ")\n", kMessage);
    }

    void ExpectLinesRefused(const std::string& kLines, const std::string& kMessage,
                            const std::string& kOptions = "") const
    {
        const std::string kOutput = Configure(kLines, kOptions);
        EXPECT_NE(std::string::npos,
                  kOutput.find(" dialogmanager_add_compiled_dialogs" + kMessage + " Call Stack"))
            << kOutput;
        EXPECT_EQ(std::string::npos, kOutput.find("All is right")) << kOutput;
        EXPECT_NE(std::string::npos, kOutput.find("[1] ")) << kOutput;
    }

    /** CMake looks for headers of handles only after it has read the whole project. */
    void ExpectHandlesRefused(const std::string& kHandles, const std::string& kMessage,
                              const std::string& kLines = "") const
    {
        const std::string kOutput =
            Configure("dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml HANDLES " + kHandles +
                      ")\n" + kLines);
        EXPECT_NE(std::string::npos,
                  kOutput.find("All is right CMake Error at " DIALOGMANAGER_SOURCE_DIRECTORY
                               "/CMake/DialogManagerCompiledDialogs.cmake"))
            << kOutput;
        EXPECT_NE(std::string::npos,
                  kOutput.find(" dialogmanager_add_compiled_dialogs" + kMessage + " Call Stack"))
            << kOutput;
        EXPECT_NE(std::string::npos, kOutput.find("[1] ")) << kOutput;
    }

    void ExpectRight(const std::string& kLines) const
    {
        // A program would need a compiler, which these tests avoid; everything of interest happens before
        // that.
        const std::string kOutput = Configure(kLines);
        EXPECT_NE(std::string::npos, kOutput.find("All is right")) << kOutput;
        EXPECT_EQ(std::string::npos, kOutput.find("dialogmanager_add_compiled_dialogs(")) << kOutput;
    }

    void ExpectHandlesRight(const std::string& kHandles, const std::string& kLines) const
    {
        ExpectRight("dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml HANDLES " + kHandles +
                    ")\n" + kLines);
    }
};

TEST_F(CWrongUseOfCMakeTest, RightUse_IsTaken)
{
    Write("sub/Settings.xml", "<Object/>");
    Write("App/Handles.h", "");
    ExpectRight("target_include_directories(App PRIVATE .)\n"
                "dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml sub/Settings.xml "
                "BASE_DIRECTORY sub/.. HANDLES App/Handles.h)\n"
                "dialogmanager_add_compiled_dialogs(App NAME N FILES \"${CMAKE_SOURCE_DIR}/Home.xml\")\n");
}

TEST_F(CWrongUseOfCMakeTest, MissingArgument_IsToldByName)
{
    ExpectRefused("App FILES Home.xml", "(App): NAME is missing");
    ExpectRefused("App NAME Home", "(App): FILES is missing");
    ExpectRefused("App", "(App): NAME is missing");
}

TEST_F(CWrongUseOfCMakeTest, ArgumentWithoutItsValue_IsToldByName)
{
    ExpectRefused("App NAME FILES Home.xml", "(App): NAME has no value");
    ExpectRefused("App NAME Home FILES", "(App): FILES has no value");
    ExpectRefused("App NAME Home FILES Home.xml HANDLES", "(App): HANDLES has no value");
    ExpectRefused("App NAME Home FILES Home.xml BASE_DIRECTORY", "(App): BASE_DIRECTORY has no value");
    ExpectRefused("App NAME Home FILES Home.xml BASE_DIRECTORY \"\"", "(App): BASE_DIRECTORY has no value");
}

TEST_F(CWrongUseOfCMakeTest, ArgumentGivenTwice_IsToldByName)
{
    ExpectRefused("App NAME Home FILES Home.xml NAME Settings", "(App): NAME is given twice; give it once");
    ExpectRefused("App NAME Home FILES Home.xml FILES App.cpp", "(App): FILES is given twice; give it once");
}

TEST_F(CWrongUseOfCMakeTest, UnknownArgument_IsToldByName)
{
    ExpectRefused(
        "App HANDLE App/Handles.h NAME Home FILES Home.xml",
        "(App) does not know the argument 'HANDLE'; it takes NAME, FILES, BASE_DIRECTORY and HANDLES");
    ExpectRefused(
        "App NAME Home Settings FILES Home.xml",
        "(App) does not know the argument 'Settings'; it takes NAME, FILES, BASE_DIRECTORY and HANDLES");
}

TEST_F(CWrongUseOfCMakeTest, MissingFile_IsToldByName)
{
    const std::string kRest = ", and there is no such file; a rule that makes it must be above this call";
    ExpectRefused("App NAME Home FILES Home.xml Hom.xml", "(App): FILES names Hom.xml" + kRest);
    ExpectRefused("App NAME Home FILES Home.xml HANDLE Handles.h", "(App): FILES names HANDLE" + kRest);
    ExpectRefused("App NAME Home FILES ..", "(App): FILES names .." + kRest);
    ExpectLinesRefused("set(DIALOGMANAGER_DIALOGC /nowhere/dialogc)\n"
                       "dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml)\n",
                       "(App): DIALOGMANAGER_DIALOGC is /nowhere/dialogc" + kRest);
}

TEST_F(CWrongUseOfCMakeTest, FileGivenTwice_IsToldByName)
{
    ExpectRefused("App NAME Home FILES Home.xml ./Home.xml", "(App): FILES names ./Home.xml twice");
}

TEST_F(CWrongUseOfCMakeTest, FileOutsideTheBaseDirectory_IsToldByName)
{
    Write("sub/Settings.xml", "<Object/>");
    const std::string kRest = ", which is not below the base directory " + GetDirectory().string();
    ExpectRefused("App NAME Home FILES sub/Settings.xml Home.xml BASE_DIRECTORY sub",
                  "(App): FILES names Home.xml" + kRest + "/sub");
    ExpectRefused("App NAME Home FILES /dev/../etc/passwd", "(App): FILES names /dev/../etc/passwd" + kRest);
}

TEST_F(CWrongUseOfCMakeTest, FileBelowALinkToTheBaseDirectory_IsTaken)
{
    Write("sub/Settings.xml", "<Object/>");
    Link("sub", "link");
    ExpectRight(
        "dialogmanager_add_compiled_dialogs(App NAME N FILES sub/Settings.xml BASE_DIRECTORY link)\n");
}

TEST_F(CWrongUseOfCMakeTest, MissingHeaderOfHandles_IsToldByName)
{
    ExpectRefused("App NAME Home FILES Home.xml HANDLES /nowhere/Handles.h",
                  "(App): HANDLES names /nowhere/Handles.h, and there is no such file; a rule that makes it "
                  "must be above this call");
    const std::string kRest =
        ", which is in none of the target's include directories, and no rule makes it there";
    ExpectHandlesRefused("Handles.h", "(App): HANDLES names Handles.h" + kRest);
    Write("App/Handles.h", "");
    ExpectHandlesRefused("Handles.h", "(App): HANDLES names Handles.h" + kRest,
                         "target_include_directories(App PRIVATE . $<INSTALL_INTERFACE:App>\n"
                         "    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)\n");
    ExpectHandlesRefused("App", "(App): HANDLES names App" + kRest,
                         "target_include_directories(App PRIVATE .)\n");
}

TEST_F(CWrongUseOfCMakeTest, HeaderOfHandlesInAnIncludeDirectory_IsFoundWhereverThatIsAdded)
{
    Write("include/App/Handles.h", "");
    ExpectHandlesRight("App/Handles.h", "target_include_directories(App PRIVATE include)\n");
    ExpectHandlesRight("App/Handles.h", "add_library(Outer INTERFACE)\n"
                                        "add_library(Inner INTERFACE)\n"
                                        "target_link_libraries(App PRIVATE Outer)\n"
                                        "target_link_libraries(Outer INTERFACE Inner)\n"
                                        "target_link_libraries(Inner INTERFACE Outer)\n"
                                        "target_include_directories(Inner INTERFACE\n"
                                        "    $<INSTALL_INTERFACE:include>\n"
                                        "    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include>)\n");
}

TEST_F(CWrongUseOfCMakeTest, HeaderOfHandlesInAnIncludeDirectory_IsFoundThoughAParentAddsIt)
{
    Write("sub/CMakeLists.txt",
          "dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml HANDLES Handles.h)\n");
    Write("sub/Home.xml", "<Object/>");
    Write("include/Handles.h", "");
    ExpectRight("add_subdirectory(sub)\ntarget_include_directories(App PRIVATE include)\n");
}

TEST_F(CWrongUseOfCMakeTest, HeaderOfHandlesThatARuleMakes_NeedNotBeThere)
{
    ExpectHandlesRight("Handles.h", "target_include_directories(App PRIVATE \"${CMAKE_BINARY_DIR}/made\")\n"
                                    "add_custom_command(OUTPUT made/Handles.h COMMAND true)\n");
}

TEST_F(CWrongUseOfCMakeTest, HeaderOfHandlesWithAPlaceThatIsKnownLater_IsLeftToTheCompiler)
{
    ExpectHandlesRight("Handles.h",
                       "target_include_directories(App PRIVATE $<TARGET_PROPERTY:App,SOURCE_DIR>)\n");
    ExpectHandlesRight("Handles.h", "target_link_libraries(App PRIVATE m)\n");
}

TEST_F(CWrongUseOfCMakeTest, FileThatARuleMakes_NeedNotBeThere)
{
    ExpectRight("add_custom_command(OUTPUT Made.xml COMMAND true)\n"
                "dialogmanager_add_compiled_dialogs(App NAME Home BASE_DIRECTORY made\n"
                "    FILES \"${CMAKE_CURRENT_BINARY_DIR}/Made.xml\")\n");
}

TEST_F(CWrongUseOfCMakeTest, BaseThatIsNoDirectory_IsToldByName)
{
    ExpectRefused("App NAME Home FILES Home.xml BASE_DIRECTORY nowhere",
                  "(App): BASE_DIRECTORY names nowhere, which is not a directory");
    ExpectRefused("App NAME Home FILES Home.xml BASE_DIRECTORY Home.xml",
                  "(App): BASE_DIRECTORY names Home.xml, which is not a directory");
}

TEST_F(CWrongUseOfCMakeTest, NameThatIsNoneOrGivenTwice_IsToldByName)
{
    ExpectRefused("App NAME Home-1 FILES Home.xml", "(App): NAME is 'Home-1', which cannot be a part of the "
                                                    "constant's name; it takes letters, digits and '_'");
    for (const std::string kName : {"Ho__me", "Home_t"})
    {
        ExpectRefused("App NAME " + kName + " FILES Home.xml",
                      "(App): NAME is '" + kName +
                          "', which cannot be a part of the constant's name: names with '__' are reserved, "
                          "and names that end in '_t' are for types");
    }
    ExpectLinesRefused("dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml)\n"
                       "dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml)\n",
                       "(App): NAME is Home, and there is a target AppHome already; give each call another "
                       "name");
}

TEST_F(CWrongUseOfCMakeTest, TargetThatIsNotThere_IsToldByName)
{
    ExpectRefused("Ap NAME Home FILES Home.xml", "(Ap): there is no target Ap; add it before this call");
}

TEST_F(CWrongUseOfCMakeTest, WithoutCompiler_ItsVariableIsTold)
{
    ExpectLinesRefused("dialogmanager_add_compiled_dialogs(App NAME Home FILES Home.xml)\n",
                       "(App): set DIALOGMANAGER_DIALOGC to the path of dialogc, built for this machine",
                       "-DDIALOGMANAGER_DIALOGC=");
}
} // namespace
