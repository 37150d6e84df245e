// SPDX-License-Identifier: MIT
#include "Core/GUITrace.h"

#include "Tests/AllocationCounter/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace
{
/** Logs when it is destroyed at the end of the program, if told to. It is constructed before any part of the
 *  trace, and so destroyed after it.
 */
struct LogsWhenDestroyed_t
{
    ~LogsWhenDestroyed_t()
    {
        if (m_bLogs)
        {
            CGUITrace::GetInstance().Log("INFO: ", "logged by a static destructor");
        }
    }

    bool m_bLogs = false;
};

LogsWhenDestroyed_t g_kLogsWhenDestroyed;

/** Logs before main. */
struct LogsWhenConstructed_t
{
    LogsWhenConstructed_t() : m_pkDefaultSink(CGUITrace::GetInstance().GetSink())
    {
        CGUITraceFunction kFunction([](void* pContext, const eC_String&, const eC_String& kMessage,
                                       const eC_String&, const eC_String&)
                                    { *static_cast<std::string*>(pContext) += kMessage.GetText(); },
                                    &m_kMessages);
        CGUITrace::GetInstance().SetSink(&kFunction);
        CGUITrace::GetInstance().Log("INFO: ", "logged by a static constructor");
        CGUITrace::GetInstance().SetSink(m_pkDefaultSink);
    }

    CGUITraceSink* m_pkDefaultSink;
    std::string m_kMessages;
};

const LogsWhenConstructed_t g_kLogsWhenConstructed;

/** Installs the sink that the program starts with, while the test runs. */
class CTraceStandardErrorTest : public ::testing::Test
{
protected:
    CTraceStandardErrorTest() : m_pkSinkBefore(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(g_kLogsWhenConstructed.m_pkDefaultSink);
    }

    ~CTraceStandardErrorTest() override { CGUITrace::GetInstance().SetSink(m_pkSinkBefore); }

private:
    CGUITraceSink* m_pkSinkBefore;
};

/** @return the path of the running program */
const std::string& GetProgram()
{
    static const std::string s_kProgram = []
    {
        std::ifstream kFile("/proc/self/exe", std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(kFile), {});
    }();
    return s_kProgram;
}

/** @return whether the program contains a text that TraceLevels.h forms. The text is put together here, so
 *         that this file does not contain it.
 */
bool ProgramHasText(const std::string& kBuild, const std::string& kLevel)
{
    return GetProgram().find("build " + kBuild + ": text of " + kLevel) != std::string::npos;
}
} // namespace

TEST_F(CTraceStandardErrorTest, IsTheDefault)
{
    ::testing::internal::CaptureStderr();
    CGUITrace::GetInstance().Log("INFO: ", "message");

    EXPECT_EQ("INFO: message\n", ::testing::internal::GetCapturedStderr());
}

TEST_F(CTraceStandardErrorTest, WritesEntriesWithOneClosingLineBreak)
{
    ::testing::internal::CaptureStderr();
    CGUITrace::GetInstance().Log("ERROR: ", "one\ntwo\n\n", "Source/File.cpp", "12");
    CGUITrace::GetInstance().Log("WARNING: ", "three");
    CGUITrace::GetInstance().Log("DEBUG: ", eC_String("zero \0 inside\n", 14));

    EXPECT_EQ(std::string("ERROR: one\ntwo (Source/File.cpp:12)\nWARNING: three\nDEBUG: zero ") + '\0' +
                  " inside\n",
              ::testing::internal::GetCapturedStderr());
}

TEST_F(CTraceStandardErrorTest, WritesWithoutMemory)
{
    const eC_String kPrefix("ERROR: ");
    const eC_String kMessage("a message that needs an array");
    const eC_String kFile("Source/A/File.cpp");
    const eC_String kLine("1234");
    ::testing::internal::CaptureStderr();
    {
        const CAllocationFailure kFailure;
        CGUITrace::GetInstance().Log(kPrefix, kMessage, kFile, kLine);
    }

    EXPECT_EQ("ERROR: a message that needs an array (Source/A/File.cpp:1234)\n",
              ::testing::internal::GetCapturedStderr());
}

TEST_F(CTraceStandardErrorTest, StaticConstructors_CanLog)
{
    EXPECT_NE(nullptr, g_kLogsWhenConstructed.m_pkDefaultSink);
    EXPECT_EQ("logged by a static constructor", g_kLogsWhenConstructed.m_kMessages);
}

#if GTEST_HAS_DEATH_TEST
TEST_F(CTraceStandardErrorTest, StaticDestructors_CanLog)
{
    EXPECT_EXIT(
        {
            g_kLogsWhenDestroyed.m_bLogs = true;
            std::exit(0);
        },
        ::testing::ExitedWithCode(0), "INFO: logged by a static destructor\n");
}
#endif

TEST(CTraceTextsTest, OfKeptLevels_AreInTheProgram)
{
    EXPECT_TRUE(ProgramHasText("ERROR", "ERROR"));
    EXPECT_TRUE(ProgramHasText("ERROR", "EXCEPTION"));
    EXPECT_TRUE(ProgramHasText("WARNING", "WARNING"));
    EXPECT_TRUE(ProgramHasText("DEBUG", "DEBUG"));
    EXPECT_TRUE(ProgramHasText("DEBUG", "INFO"));
}

TEST(CTraceTextsTest, OfHigherLevels_AreNotInTheProgram)
{
    EXPECT_FALSE(ProgramHasText("OFF", "ERROR"));
    EXPECT_FALSE(ProgramHasText("OFF", "WARNING"));
    EXPECT_FALSE(ProgramHasText("OFF", "DEBUG"));
    EXPECT_FALSE(ProgramHasText("OFF", "INFO"));
    EXPECT_FALSE(ProgramHasText("OFF", "EXCEPTION"));
    EXPECT_FALSE(ProgramHasText("ERROR", "WARNING"));
    EXPECT_FALSE(ProgramHasText("ERROR", "DEBUG"));
    EXPECT_FALSE(ProgramHasText("ERROR", "INFO"));
    EXPECT_FALSE(ProgramHasText("WARNING", "DEBUG"));
    EXPECT_FALSE(ProgramHasText("WARNING", "INFO"));
}
