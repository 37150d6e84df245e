// SPDX-License-Identifier: MIT
#include "Scenario/TraceRecorder.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CTraceRecorderTest, Write_KeepsTheFourTextsAndLogsOneLine)
{
    CEventLog kLog;
    const CTraceRecorder kRecorder(kLog);

    CGUITrace::GetInstance().Log("ERROR: ", "Broken.\n", "/anywhere/Source/Core/Part.cpp", "12");

    ASSERT_EQ(1U, kRecorder.GetEntries().size());
    EXPECT_EQ("ERROR: ", kRecorder.GetEntries()[0].m_kPrefix);
    EXPECT_EQ("Broken.\n", kRecorder.GetEntries()[0].m_kMessage);
    EXPECT_EQ("/anywhere/Source/Core/Part.cpp", kRecorder.GetEntries()[0].m_kFile);
    EXPECT_EQ("12", kRecorder.GetEntries()[0].m_kLine);
    EXPECT_THAT(kLog.Take(EVENT_TRACE), ElementsAre("ERROR: Broken.\\n @Source/Core/Part.cpp:#"));
}

TEST(CTraceRecorderTest, Write_KeepsTheLineBreakApartFromThePlace)
{
    CEventLog kLog;
    const CTraceRecorder kRecorder(kLog);

    CGUITrace::GetInstance().Log("ERROR: ", "Broken.\n", "/anywhere/Source/Core/Part.cpp", "12");

    EXPECT_THAT(kLog.TakeReadable(), ElementsAre("ERROR: Broken. @Source/Core/Part.cpp:#"));
}

TEST(CTraceRecorderTest, Clear_ForgetsTheEntriesAndNotTheLines)
{
    CEventLog kLog;
    CTraceRecorder kRecorder(kLog);
    CGUITrace::GetInstance().Log("DEBUG: ", "Here.");

    kRecorder.Clear();

    EXPECT_THAT(kRecorder.GetEntries(), IsEmpty());
    EXPECT_THAT(kLog.Take(), ElementsAre("DEBUG: Here."));
}

TEST(CTraceRecorderTest, Destruction_RestoresTheSinkThatWasSetBefore)
{
    CEventLog kOuterLog;
    const CTraceRecorder kOuter(kOuterLog);
    {
        CEventLog kInnerLog;
        const CTraceRecorder kInner(kInnerLog);
        CGUITrace::GetInstance().Log("INFO: ", "inner");
        EXPECT_THAT(kInnerLog.Take(), ElementsAre("INFO: inner"));
    }
    CGUITrace::GetInstance().Log("INFO: ", "outer");
    EXPECT_THAT(kOuterLog.Take(), ElementsAre("INFO: outer"));
}

TEST(CTraceRecorderTest, FormatTraceLine_ShowsLineBreaksInsideAndAtTheEnd)
{
    EXPECT_EQ("DEBUG: one\\ntwo\\n\\n", FormatTraceLine({"DEBUG: ", "one\ntwo\n\n", "", ""}));
}

TEST(CTraceRecorderTest, FormatTraceLine_ShortensThePathFromTheDirectoryOfTheProjectOn)
{
    EXPECT_EQ("ERROR: x @Source/Core/A.cpp:#", FormatTraceLine({"ERROR: ", "x", "Source/Core/A.cpp", "1"}));
    EXPECT_EQ("ERROR: x @Loader/B.cpp:#", FormatTraceLine({"ERROR: ", "x", "/a/b/Loader/B.cpp", "1"}));
    EXPECT_EQ("ERROR: x @TestSupport/C.cpp:#",
              FormatTraceLine({"ERROR: ", "x", "/a/TestSupport/C.cpp", "1"}));
    EXPECT_EQ("ERROR: x @/a/OtherSource/D.cpp:#",
              FormatTraceLine({"ERROR: ", "x", "/a/OtherSource/D.cpp", "1"}));
}

TEST(CTraceRecorderTest, FormatTraceLine_ShowsALineThatIsNoPositiveNumber)
{
    EXPECT_EQ("ERROR: x @A.cpp:", FormatTraceLine({"ERROR: ", "x", "A.cpp", ""}));
    EXPECT_EQ("ERROR: x @A.cpp:0", FormatTraceLine({"ERROR: ", "x", "A.cpp", "0"}));
    EXPECT_EQ("ERROR: x @A.cpp:1a", FormatTraceLine({"ERROR: ", "x", "A.cpp", "1a"}));
    EXPECT_EQ("DEBUG: x @:#", FormatTraceLine({"DEBUG: ", "x", "", "7"}));
}
