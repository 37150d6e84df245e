// SPDX-License-Identifier: MIT
// The version that programs see and that CMake checks.

#include "Core/GUIVersion.h"
#include "Tests/CompiledDialogs/ProgramFixture.h"

#include <regex>
#include <string>

namespace
{
class CVersionTest : public CProgramFixture
{
protected:
    /** @return what CMake reports about a header when the project has version 1.12.3, in one line, and its
     *         status
     */
    std::string Check(const std::string& kHeader) const
    {
        Write("Version.h", kHeader);
        Write("CMakeLists.txt",
              "cmake_minimum_required(VERSION 3.25)\n"
              "project(Outside VERSION 1.12.3 LANGUAGES NONE)\n"
              "include(\"" DIALOGMANAGER_SOURCE_DIRECTORY "/CMake/DialogManagerVersion.cmake\")\n"
              "dialogmanager_check_version(Version.h ${PROJECT_VERSION})\n");
        return std::regex_replace(
            RunCommand("'" CMAKE_PROGRAM "' -G '" CMAKE_GENERATOR_NAME "' -S . -B build"),
            std::regex("[ \n]+"), " ");
    }

    static std::string WriteHeader(const std::string& kMajor, const std::string& kMinor,
                                   const std::string& kPatch)
    {
        return "#define GUI_VERSION_MAJOR " + kMajor + "\n#define GUI_VERSION_MINOR " + kMinor +
               "\n#define GUI_VERSION_PATCH " + kPatch + "\n#define GUI_VERSION \"1.12.3\"\n";
    }
};

TEST_F(CVersionTest, Header_HasTheVersionOfTheProject)
{
    EXPECT_STREQ(PROJECT_VERSION, GUI_VERSION);
    EXPECT_EQ(PROJECT_VERSION, std::to_string(GUI_VERSION_MAJOR) + "." + std::to_string(GUI_VERSION_MINOR) +
                                   "." + std::to_string(GUI_VERSION_PATCH));
}

TEST_F(CVersionTest, HeaderOfAnotherVersion_IsRefused)
{
    EXPECT_NE(std::string::npos, Check(WriteHeader("1", "12", "3")).find(" [0] "));
    for (const std::string& kHeader :
         {WriteHeader("2", "12", "3"), WriteHeader("1", "1", "3"), WriteHeader("1", "12", "0")})
    {
        const std::string kOutput = Check(kHeader);
        EXPECT_NE(std::string::npos, kOutput.find(" and project() says 1.12.3; correct the header "))
            << kOutput;
        EXPECT_NE(std::string::npos, kOutput.find("Version.h says version '")) << kOutput;
        EXPECT_NE(std::string::npos, kOutput.find(" [1] ")) << kOutput;
    }
    EXPECT_NE(std::string::npos, Check("").find("Version.h says version '' and "));
}
} // namespace
