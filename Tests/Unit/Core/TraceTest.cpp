// SPDX-License-Identifier: MIT
// Use the header's own default, not the level of the build.
#undef GUI_TRACE_LEVEL

#include "Core/GUITrace.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Core/TraceLevels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/** The four texts of an entry. */
using Entry_t = std::vector<std::string>;

std::string Bytes(const eC_String& kString)
{
    return std::string(kString.GetText(), kString.GetLength());
}

/** Keeps the entries, then runs an action of the test inside the sink. */
class CKeepingSink : public CGUITraceSink
{
public:
    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override
    {
        m_kEntries.push_back({Bytes(kPrefix), Bytes(kMessage), Bytes(kFile), Bytes(kLine)});
        if (m_fnThen)
        {
            m_fnThen();
        }
    }

    std::vector<Entry_t> m_kEntries;
    std::function<void()> m_fnThen;
};

/** Installs its own sink while the test runs. */
class CTraceTest : public ::testing::Test
{
protected:
    CTraceTest() : m_pkSinkBefore(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(&m_kSink);
    }

    ~CTraceTest() override { CGUITrace::GetInstance().SetSink(m_pkSinkBefore); }

    CKeepingSink m_kSink;
    std::vector<Entry_t>& m_kEntries = m_kSink.m_kEntries;

private:
    CGUITraceSink* m_pkSinkBefore;
};

using CTraceSinksTest = CTraceTest;
using CTraceMacrosTest = CTraceTest;
using CTraceLevelsTest = CTraceTest;

/** Calls one of the functions of TraceLevels.h. */
eC_Int CountEvaluated(void (*pfnLog)(eC_Int&))
{
    eC_Int iEvaluated = 0;
    try
    {
        pfnLog(iEvaluated);
        ADD_FAILURE() << "threw nothing";
    }
    catch (int iException)
    {
        EXPECT_EQ(7, iException);
    }
    return iEvaluated;
}

std::string Format(const eC_Char* pcMessage, const eC_Char* pcFile = "", const eC_Char* pcLine = "")
{
    return Bytes(FormatTraceEntry("ERROR: ", pcMessage, pcFile, pcLine));
}

/** Writes an entry that is stored as the text and a line break. */
void Write(CGUITraceRing& kRing, const eC_Char* pcText)
{
    kRing.Write("", pcText, "", "");
}
} // namespace

// --- The trace -----------------------------------------------------------------------------------

TEST_F(CTraceTest, GetInstance_IsAlwaysTheSame)
{
    EXPECT_EQ(&CGUITrace::GetInstance(), &CGUITrace::GetInstance());
}

TEST_F(CTraceTest, Log_PassesTheFourTextsOn)
{
    CGUITrace::GetInstance().Log("ERROR: ", "message\nwith a break\n", "File.cpp", "12");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"ERROR: ", "message\nwith a break\n", "File.cpp", "12"}));
}

TEST_F(CTraceTest, Log_WithoutFileAndLine_PassesEmptyOnes)
{
    CGUITrace::GetInstance().Log("INFO: ", "message");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"INFO: ", "message", "", ""}));
}

TEST_F(CTraceTest, Log_AllocatesNothingItself)
{
    eC_Char acMemory[100];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    CGUITrace::GetInstance().SetSink(&kRing);
    const eC_String kPrefix("ERROR: ");
    const eC_String kMessage("a message that needs an array");
    const eC_String kFile("Source/A/File.cpp");
    const eC_String kLine("1234");
    const CAllocationCounter kCounter;

    CGUITrace::GetInstance().Log(kPrefix, kMessage, kFile, kLine);

    EXPECT_EQ(0u, kCounter.GetNumber());
    EXPECT_EQ("ERROR: a message that needs an array (Source/A/File.cpp:1234)\n", Bytes(kRing.GetText()));
}

TEST_F(CTraceTest, LogOfEachLevel_HasItsPrefix)
{
    CGUITrace::LogWarning(eC_String("one"));
    CGUITrace::LogDebug(eC_String("two"));
    CGUITrace::LogInformation(eC_String("three"));
    CGUITrace::LogError(eC_String("four"), "Source/A/File.cpp", 12);
    CGUITrace::LogWarning("five");
    CGUITrace::LogDebug("six");
    CGUITrace::LogInformation("seven");
    CGUITrace::LogError("eight", "Source/A/File.cpp", 13);

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"WARNING: ", "one", "", ""},
                                        Entry_t{"DEBUG: ", "two", "", ""}, Entry_t{"INFO: ", "three", "", ""},
                                        Entry_t{"ERROR: ", "four", "Source/A/File.cpp", "12"},
                                        Entry_t{"WARNING: ", "five", "", ""},
                                        Entry_t{"DEBUG: ", "six", "", ""}, Entry_t{"INFO: ", "seven", "", ""},
                                        Entry_t{"ERROR: ", "eight", "Source/A/File.cpp", "13"}));
}

TEST_F(CTraceTest, LogOfALiteral_NeedsNoMemory)
{
    eC_Char acMemory[100];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    CGUITrace::GetInstance().SetSink(&kRing);
    {
        const CAllocationFailure kFailure;
        CGUITrace::LogDebug("a message that would need an array of its own");
    }
    EXPECT_EQ("DEBUG: a message that would need an array of its own\n", Bytes(kRing.GetText()));
}

TEST_F(CTraceTest, LogOfALiteralThatIsNoASCII_IsConvertedAsEveryText)
{
    CGUITrace::LogDebug("caf\xC3\xA9");
    CGUITrace::LogDebug("caf\xE9");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"DEBUG: ", "caf\xC3\xA9", "", ""},
                                        Entry_t{"DEBUG: ", "caf\xEF\xBF\xBD", "", ""}));
}

TEST_F(CTraceTest, LogOfANullText_IsAnEmptyMessage)
{
    const eC_Char* const pcNone = nullptr;
    CGUITrace::LogDebug(pcNone);

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"DEBUG: ", "", "", ""}));
}

TEST_F(CTraceTest, LogError_WithoutMemory_StillTellsItsFile)
{
    eC_Char acMemory[100];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    CGUITrace::GetInstance().SetSink(&kRing);
    const eC_String kMessage("a message that needs an array");
    {
        const CAllocationFailure kFailure;
        CGUITrace::LogError(kMessage, "Source/A/LongerThanAShortString.cpp", 12);
    }
    EXPECT_EQ("ERROR: a message that needs an array (Source/A/LongerThanAShortString.cpp:12)\n",
              Bytes(kRing.GetText()));
}

TEST_F(CTraceTest, TextsOfAnEntryThatASinkCopies_AreItsOwn)
{
    struct CCopyingSink : public CGUITraceSink
    {
        void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                   const eC_String& kLine) override
        {
            m_kPrefix = kPrefix;
            m_kFile = kFile;
            m_kSum = kFile + ":" + kLine + " " + kMessage;
        }
        eC_String m_kPrefix;
        eC_String m_kFile;
        eC_String m_kSum;
    };
    CCopyingSink kSink;
    CGUITrace::GetInstance().SetSink(&kSink);
    char acFile[] = "Source/A/LongerThanAShortString.cpp";
    CGUITrace::LogError("gone", acFile, 12);
    acFile[0] = 'X';
    kSink.m_kPrefix += "more";

    EXPECT_EQ("ERROR: more", Bytes(kSink.m_kPrefix));
    EXPECT_EQ("Source/A/LongerThanAShortString.cpp", Bytes(kSink.m_kFile));
    EXPECT_EQ("Source/A/LongerThanAShortString.cpp:12 gone", Bytes(kSink.m_kSum));
}

TEST_F(CTraceTest, LogError_WithoutFile_TellsNoPlace)
{
    eC_Char acMemory[100];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    CGUITrace::GetInstance().SetSink(&kRing);

    CGUITrace::LogError("nowhere", "", 12);
    CGUITrace::LogError("somewhere", nullptr, 12);

    EXPECT_EQ("ERROR: nowhere\nERROR: somewhere\n", Bytes(kRing.GetText()));
}

TEST_F(CTraceTest, Log_WithoutSink_DropsTheEntry)
{
    CGUITrace::GetInstance().SetSink(nullptr);
    CGUITrace::GetInstance().Log("INFO: ", "dropped");

    EXPECT_EQ(nullptr, CGUITrace::GetInstance().GetSink());
    EXPECT_THAT(m_kEntries, IsEmpty());
}

TEST_F(CTraceTest, SetSink_SendsFurtherEntriesToTheNewOne)
{
    CKeepingSink kOther;
    CGUITrace::GetInstance().Log("INFO: ", "one");
    CGUITrace::GetInstance().SetSink(&kOther);
    CGUITrace::GetInstance().Log("INFO: ", "two");

    EXPECT_EQ(&kOther, CGUITrace::GetInstance().GetSink());
    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"INFO: ", "one", "", ""}));
    EXPECT_THAT(kOther.m_kEntries, ElementsAre(Entry_t{"INFO: ", "two", "", ""}));
}

TEST_F(CTraceTest, SetSink_FromInsideTheSink_HoldsFromTheNextEntryOn)
{
    CKeepingSink kOther;
    m_kSink.m_fnThen = [&kOther] { CGUITrace::GetInstance().SetSink(&kOther); };

    CGUITrace::GetInstance().Log("INFO: ", "one");
    CGUITrace::GetInstance().Log("INFO: ", "two");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"INFO: ", "one", "", ""}));
    EXPECT_THAT(kOther.m_kEntries, ElementsAre(Entry_t{"INFO: ", "two", "", ""}));
}

TEST_F(CTraceTest, ExceptionOfTheSink_NeverReachesTheCaller_AndTheNextEntryIsWritten)
{
    const std::vector<std::function<void()>> kExceptions = {[] { throw 0; }, [] { throw "text"; },
                                                            [] { throw std::runtime_error("failure"); },
                                                            [] { throw std::bad_alloc(); }};
    for (const std::function<void()>& fnThrow : kExceptions)
    {
        m_kEntries.clear();
        m_kSink.m_fnThen = fnThrow;

        EXPECT_NO_THROW(CGUITrace::GetInstance().Log("INFO: ", "one"));
        EXPECT_NO_THROW(CGUITrace::GetInstance().Log("INFO: ", "two"));

        EXPECT_THAT(m_kEntries,
                    ElementsAre(Entry_t{"INFO: ", "one", "", ""}, Entry_t{"INFO: ", "two", "", ""}));
    }
}

TEST_F(CTraceTest, EntryLoggedFromInsideTheSink_IsIgnored)
{
    m_kSink.m_fnThen = [] { CGUITrace::GetInstance().Log("ERROR: ", "from inside"); };

    CGUITrace::GetInstance().Log("INFO: ", "one");
    CGUITrace::GetInstance().Log("INFO: ", "two");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"INFO: ", "one", "", ""}, Entry_t{"INFO: ", "two", "", ""}));
}

TEST_F(CTraceTest, EntryLoggedFromInsideTheSink_IsIgnoredAlsoWhenTheSinkHasJustSetAnother)
{
    CKeepingSink kOther;
    m_kSink.m_fnThen = [&kOther]
    {
        CGUITrace::GetInstance().SetSink(&kOther);
        CGUITrace::GetInstance().Log("ERROR: ", "from inside");
    };

    CGUITrace::GetInstance().Log("INFO: ", "one");
    CGUITrace::GetInstance().Log("INFO: ", "two");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"INFO: ", "one", "", ""}));
    EXPECT_THAT(kOther.m_kEntries, ElementsAre(Entry_t{"INFO: ", "two", "", ""}));
}

// --- The form of an entry ------------------------------------------------------------------------

TEST(CTraceEntryTest, EndsInExactlyOneLineBreak)
{
    EXPECT_EQ("ERROR: message\n", Format("message"));
    EXPECT_EQ("ERROR: message\n", Format("message\n"));
    EXPECT_EQ("ERROR: message\n", Format("message\n\n\n"));
}

TEST(CTraceEntryTest, KeepsTheLineBreaksInsideTheMessage)
{
    EXPECT_EQ("ERROR: \none\n\ntwo\n.\n", Format("\none\n\ntwo\n."));
}

TEST(CTraceEntryTest, KeepsACarriageReturnBeforeTheClosingLineBreakIntended)
{
    EXPECT_EQ("ERROR: message\r\n", Format("message\r\n"));
    EXPECT_EQ("ERROR: message\r\n", Format("message\r"));
    EXPECT_EQ("ERROR: message\r\n\r\n", Format("message\r\n\r\n"));
    EXPECT_EQ("ERROR: message\r (Source/File.cpp:12)\n", Format("message\r\n", "Source/File.cpp", "12"));
}

TEST(CTraceEntryTest, WithoutMessage_IsThePrefix)
{
    EXPECT_EQ("ERROR: \n", Format(""));
    EXPECT_EQ("ERROR: \n", Format("\n\n"));
    EXPECT_EQ("\n", Bytes(FormatTraceEntry("", "", "", "")));
}

TEST(CTraceEntryTest, WithFile_NamesFileAndLineBeforeTheClosingLineBreak)
{
    EXPECT_EQ("ERROR: message (Source/File.cpp:12)\n", Format("message", "Source/File.cpp", "12"));
    EXPECT_EQ("ERROR: one\ntwo (Source/File.cpp:12)\n", Format("one\ntwo\n\n", "Source/File.cpp", "12"));
    EXPECT_EQ("ERROR:  (Source/File.cpp:12)\n", Format("\n", "Source/File.cpp", "12"));
}

TEST(CTraceEntryTest, WithoutFile_NamesNoLine)
{
    EXPECT_EQ("ERROR: message\n", Format("message", "", "12"));
}

TEST(CTraceEntryTest, KeepsZerosInTheMessage)
{
    EXPECT_EQ(std::string("INFO: a\0b\n", 10),
              Bytes(FormatTraceEntry("INFO: ", eC_String("a\0b\n", 4), "", "")));
}

// --- The sinks -----------------------------------------------------------------------------------

TEST_F(CTraceSinksTest, Function_IsCalledWithItsPointerAndTheFourTexts)
{
    std::vector<Entry_t> kEntries;
    CGUITraceFunction kFunction(
        [](void* pContext, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
           const eC_String& kLine)
        {
            static_cast<std::vector<Entry_t>*>(pContext)->push_back(
                {Bytes(kPrefix), Bytes(kMessage), Bytes(kFile), Bytes(kLine)});
        },
        &kEntries);
    CGUITrace::GetInstance().SetSink(&kFunction);

    CGUITrace::GetInstance().Log("ERROR: ", "message\n", "File.cpp", "12");

    EXPECT_THAT(kEntries, ElementsAre(Entry_t{"ERROR: ", "message\n", "File.cpp", "12"}));
}

TEST(CTraceRingTest, Default_IsEmpty)
{
    eC_Char acMemory[4];
    const CGUITraceRing kRing(acMemory, sizeof(acMemory));

    EXPECT_EQ("", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, KeepsEntriesInTheFormOfTheStandardErrorSink)
{
    eC_Char acMemory[200];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));

    kRing.Write("ERROR: ", "one\ntwo\n", "Source/File.cpp", "12");
    kRing.Write("DEBUG: ", "three\n\n", "", "");

    EXPECT_EQ("ERROR: one\ntwo (Source/File.cpp:12)\nDEBUG: three\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, ExactlyFull_KeepsEverything)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "abc");
    Write(kRing, "def");

    EXPECT_EQ("abc\ndef\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, Overfull_BeginsWithTheFirstWholeLine)
{
    eC_Char acMemory[10];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "abc");
    Write(kRing, "def");
    Write(kRing, "ghi"); // "c", a break and two entries

    EXPECT_EQ("def\nghi\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, Overfull_WithNothingWholeButAnEmptyEntry_KeepsThatOne)
{
    eC_Char acMemory[6];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "abcde");
    Write(kRing, ""); // "bcde", a break and another one

    EXPECT_EQ("\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, LineThatBeginsExactlyWhereOlderTextEnded_IsWhole)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "abc");
    Write(kRing, "def");
    Write(kRing, "ghi");

    EXPECT_EQ("def\nghi\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, EntryOfTheRingsSize_IsWhole)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "old");
    Write(kRing, "1234567");

    EXPECT_EQ("1234567\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, EntryLongerThanTheRing_KeepsItsEnd)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "old");
    Write(kRing, "a line longer than that");

    EXPECT_EQ("an that\n", Bytes(kRing.GetText()));

    Write(kRing, "new");
    EXPECT_EQ("new\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, GetText_ChangesNothing)
{
    eC_Char acMemory[10];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    for (const eC_Char* pcText : {"abc", "def", "ghi"})
    {
        Write(kRing, pcText);
        kRing.GetText();
    }
    EXPECT_EQ("def\nghi\n", Bytes(kRing.GetText()));
    EXPECT_EQ("def\nghi\n", Bytes(kRing.GetText()));

    Write(kRing, "j");
    EXPECT_EQ("def\nghi\nj\n", Bytes(kRing.GetText()));

    Write(kRing, "k");
    EXPECT_EQ("ghi\nj\nk\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, CharacterAcrossTheEndOfTheMemory_StaysWhole)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "12345");
    Write(kRing, "a\xE2\x82\xAC"); // its first byte is the memory's last one

    EXPECT_EQ("a\xE2\x82\xAC\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, Clear_ForgetsEverything)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "1234567890");
    kRing.Clear();
    EXPECT_EQ("", Bytes(kRing.GetText()));

    Write(kRing, "new");
    EXPECT_EQ("new\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, OverfullAndCleared_BeginsWithTheFirstLineWrittenSince)
{
    eC_Char acMemory[8];
    CGUITraceRing kRing(acMemory, sizeof(acMemory));
    Write(kRing, "1234567890");
    kRing.Clear();

    Write(kRing, "one");
    Write(kRing, "2");

    EXPECT_EQ("one\n2\n", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, WithoutMemory_KeepsNothing)
{
    CGUITraceRing kRing(nullptr, 0);
    Write(kRing, "text");

    EXPECT_EQ("", Bytes(kRing.GetText()));
}

TEST(CTraceRingTest, Write_StaysInsideItsMemory)
{
    eC_Char acMemory[] = "guard........guard";
    CGUITraceRing kRing(acMemory + 5, 8);
    for (int i = 0; i < 20; ++i)
    {
        Write(kRing, "1234567890");
    }

    EXPECT_EQ("guard", std::string(acMemory, 5));
    EXPECT_EQ("guard", std::string(acMemory + 13));
}

// --- The macros ----------------------------------------------------------------------------------

TEST_F(CTraceMacrosTest, Error_LogsFileAndLine)
{
    const eC_Int iLine = __LINE__ + 1;
    GUILOG(GUI_TRACE_ERROR, "message.\n");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"ERROR: ", "message.\n", "Tests/Unit/Core/TraceTest.cpp",
                                                std::to_string(iLine)}));
}

TEST_F(CTraceMacrosTest, Warning_LogsEmptyFileAndLine)
{
    GUILOG(GUI_TRACE_WARNING, "message.\n");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"WARNING: ", "message.\n", "", ""}));
}

TEST_F(CTraceMacrosTest, Debug_LogsEmptyFileAndLine)
{
    GUILOG(GUI_TRACE_DEBUG, "message.\n");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"DEBUG: ", "message.\n", "", ""}));
}

TEST_F(CTraceMacrosTest, Message_LogsEmptyFileAndLine)
{
    GUILOGMESSAGE("message.\n");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"INFO: ", "message.\n", "", ""}));
}

TEST_F(CTraceMacrosTest, Log_IsTheMacroOfTheLevel)
{
    GUILOG_GUI_TRACE_WARNING("one");
    GUILOG_GUI_TRACE_DEBUG("two");
    const eC_Int iLine = __LINE__ + 1;
    GUILOG_GUI_TRACE_ERROR("three");

    EXPECT_THAT(
        m_kEntries,
        ElementsAre(Entry_t{"WARNING: ", "one", "", ""}, Entry_t{"DEBUG: ", "two", "", ""},
                    Entry_t{"ERROR: ", "three", "Tests/Unit/Core/TraceTest.cpp", std::to_string(iLine)}));
}

TEST_F(CTraceMacrosTest, ThrowException_LogsAsAnErrorFirst)
{
    eC_Int iLine = 0;
    try
    {
        iLine = __LINE__ + 1;
        GUILOG_THROW_EXCEPTION(4711, "message.\n");
        ADD_FAILURE() << "threw nothing";
    }
    catch (int iException)
    {
        EXPECT_EQ(4711, iException);
        EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"ERROR: ", "message.\n", "Tests/Unit/Core/TraceTest.cpp",
                                                    std::to_string(iLine)}));
    }
}

TEST_F(CTraceMacrosTest, Message_MayBeAnyExpressionThatBecomesAString)
{
    const eC_String kPath("Home.xml");
    GUILOG(GUI_TRACE_DEBUG, "loading " + kPath + " took " + eC_String(12u) + " ms");

    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"DEBUG: ", "loading Home.xml took 12 ms", "", ""}));
}

TEST_F(CTraceMacrosTest, Macros_AreOneStatement)
{
    for (const bool bFirst : {true, false})
    {
        // Without braces: the else must belong to the if even with a macro between them.
        // NOLINTBEGIN(readability-braces-around-statements)
        if (bFirst)
            GUILOG(GUI_TRACE_DEBUG, "first");
        else
            GUILOGMESSAGE("second");
        // NOLINTEND(readability-braces-around-statements)
    }

    EXPECT_THAT(m_kEntries,
                ElementsAre(Entry_t{"DEBUG: ", "first", "", ""}, Entry_t{"INFO: ", "second", "", ""}));
}

// --- The levels ----------------------------------------------------------------------------------

TEST_F(CTraceLevelsTest, Levels_HaveTheirNumbers_AndDebugIsTheDefault)
{
    EXPECT_EQ(-1, GUI_TRACE_OFF);
    EXPECT_EQ(0, GUI_TRACE_ERROR);
    EXPECT_EQ(1, GUI_TRACE_WARNING);
    EXPECT_EQ(2, GUI_TRACE_DEBUG);
    EXPECT_EQ(2, GUI_TRACE_LEVEL);
}

TEST_F(CTraceLevelsTest, Off_LogsAndEvaluatesNothing_ButThrows)
{
    EXPECT_EQ(0, CountEvaluated(LogInBuildOff));
    EXPECT_THAT(m_kEntries, IsEmpty());
}

TEST_F(CTraceLevelsTest, Error_LogsAndEvaluatesErrorsOnly)
{
    const eC_Char* const pcFile = "Tests/Unit/Core/TraceLevelError.cpp";

    EXPECT_EQ(2, CountEvaluated(LogInBuildError));
    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"ERROR: ", "build ERROR: text of ERROR", pcFile, "10"},
                                        Entry_t{"ERROR: ", "build ERROR: text of EXCEPTION", pcFile, "10"}));
}

TEST_F(CTraceLevelsTest, Warning_LogsAndEvaluatesErrorsAndWarnings)
{
    const eC_Char* const pcFile = "Tests/Unit/Core/TraceLevelWarning.cpp";

    EXPECT_EQ(3, CountEvaluated(LogInBuildWarning));
    EXPECT_THAT(m_kEntries,
                ElementsAre(Entry_t{"ERROR: ", "build WARNING: text of ERROR", pcFile, "10"},
                            Entry_t{"WARNING: ", "build WARNING: text of WARNING", "", ""},
                            Entry_t{"ERROR: ", "build WARNING: text of EXCEPTION", pcFile, "10"}));
}

TEST_F(CTraceLevelsTest, Debug_LogsAndEvaluatesEverything)
{
    const eC_Char* const pcFile = "Tests/Unit/Core/TraceLevelDebug.cpp";

    EXPECT_EQ(5, CountEvaluated(LogInBuildDebug));
    EXPECT_THAT(m_kEntries, ElementsAre(Entry_t{"ERROR: ", "build DEBUG: text of ERROR", pcFile, "10"},
                                        Entry_t{"WARNING: ", "build DEBUG: text of WARNING", "", ""},
                                        Entry_t{"DEBUG: ", "build DEBUG: text of DEBUG", "", ""},
                                        Entry_t{"INFO: ", "build DEBUG: text of INFO", "", ""},
                                        Entry_t{"ERROR: ", "build DEBUG: text of EXCEPTION", pcFile, "10"}));
}
