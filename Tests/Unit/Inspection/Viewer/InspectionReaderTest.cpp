// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/InspectionReader.h"

#include "Inspection/InspectionLink.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/Inspection/CollectingChannel.h"
#include "Tests/Unit/UnitTestHandles.h"

namespace
{
/** Collects what it is told. */
class CLines : public CInspectedLineListener
{
public:
    void OnLine(const InspectedLine_t& kLine) override { m_kLines.push_back(kLine); }

    std::vector<InspectedLine_t> m_kLines;
};

/** @return what is wrong with a line */
std::string Refusal(const std::string& kLine)
{
    InspectedLine_t kRead;
    kRead.m_uiTime = 77;
    std::string kError = ReadInspectionLine(kLine, kRead);
    EXPECT_EQ(kError.empty() ? kRead.m_uiTime : 77, kRead.m_uiTime);
    return kError;
}

std::string PartLine(const std::string& kPart, const std::string& kItems,
                     const std::string& kRest = "\"more\":false")
{
    return R"({"type":"state","time":5,"part":")" + kPart + R"(","from":0,"items":[)" + kItems + "]," +
           kRest + "}";
}
} // namespace

/** A program, and a reader of what its inspection sends. */
class CInspectionReaderTest : public CGUITest
{
protected:
    static HeapFigures_t GetHeapFigures() { return {100, 200, 4096}; }

    /** @return the reader's state, by the program's time */
    std::string ReadTurn(CInspectionLink& kLink)
    {
        kLink.Run();
        EXPECT_EQ("", m_kReader.Take(m_kChannel.TakeLines()));
        return m_kReader.GetState().Print(Clock().GetTime());
    }

    std::string WholeState() { return PrintState(Manager(), STATE_ALL | STATE_TIMERS); }

    /** A history, popups of which one was destroyed, one waits and one is shown, and timers. */
    void MakeState()
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; - { - } }");
        DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable; OBJ_4 focusable }");
        DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
        DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
        DefinePopup(POP_3, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_3");
        Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE_ALL);
        Manager().CreateDialog(DLG_B, static_cast<CGUIDialogManager::EOldDialogAction>(9));
        Manager().ShowPopup(POP_1);
        Manager().ShowPopup(POP_2);
        Manager().ShowPopup(POP_3);
        delete Object(POP_3);
        Manager().CreateDynamicObjectID();
        Clock().Set(150);
    }

    CCollectingChannel m_kChannel;
    eC_Char m_acLine[512];
    CLines m_kLines;
    CInspectionReader m_kReader{&m_kLines};
};

TEST_F(CInspectionReaderTest, WhatALinkSends_IsTheStateOfTheProgram)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, sizeof(m_acLine));
    EXPECT_EQ(WholeState(), ReadTurn(kLink));

    MakeState();

    EXPECT_EQ(WholeState(), ReadTurn(kLink));
    Manager().ClosePopup(POP_1);
    Manager().Back(true);
    EXPECT_EQ(WholeState(), ReadTurn(kLink));
    EXPECT_EQ(150U, m_kReader.GetTime());
    EXPECT_EQ(0U, m_kReader.GetDropped());
}

TEST_F(CInspectionReaderTest, PartsInSeveralLines_AreJoined)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, 256);
    MakeState();

    EXPECT_EQ(WholeState(), ReadTurn(kLink));
    EXPECT_LT(20U, m_kReader.GetLines());
}

TEST_F(CInspectionReaderTest, TimePasses_ForWhatIsLeftToo)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, sizeof(m_acLine));
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    ReadTurn(kLink);

    Clock().Set(1000);

    EXPECT_EQ("", m_kChannel.TakeLines());
    EXPECT_EQ(WholeState(), m_kReader.GetState().Print(1000));
    Clock().Set(4000);
    EXPECT_EQ(WholeState(), m_kReader.GetState().Print(4000));
    EXPECT_TEXT(R"(
        timer: POP_1 every 3000 ms
    )",
                m_kReader.GetState().PrintWithoutTimes(PART_TIMERS));
}

TEST_F(CInspectionReaderTest, TimesOfHooks_AreALine)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, sizeof(m_acLine));
    kLink.GetInspector().SetHookTimes(
        [](eC_UInt uiPosition, HookTime_t& kTimeOUT)
        {
            kTimeOUT = {"OnDialogActivation", DLG_A, 3, 50, 120};
            return uiPosition == 0;
        });
    ReadTurn(kLink);

    EXPECT_EQ("hook: OnDialogActivation DLG_A, 3 calls, 120 in all, at most 50\n",
              m_kReader.GetState().Print(PART_HOOKS, 0));
}

TEST_F(CInspectionReaderTest, EveryPart_HasTheNumberOfItsName)
{
    const std::vector<std::string> kNames = {"current", "history",    "dialogs", "popups",
                                             "active",  "remembered", "dynamic", "focus",
                                             "tree",    "timers",     "hooks",   "heap"};
    ASSERT_EQ(kNames.size(), cuiInspectionParts);
    for (eC_UInt uiPart = 0; uiPart < cuiInspectionParts; ++uiPart)
    {
        EXPECT_EQ(kNames[uiPart], cakInspectionParts[uiPart].m_pcName);
    }
    EXPECT_STREQ("tree", cakInspectionParts[PART_TREE].m_pcName);
    EXPECT_STREQ("heap", cakInspectionParts[PART_HEAP].m_pcName);
}

TEST_F(CInspectionReaderTest, HeapFigures_AreALine)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, sizeof(m_acLine));
    kLink.GetInspector().SetHeap(&GetHeapFigures);
    ReadTurn(kLink);

    EXPECT_TEXT("heap: 100 of 4096 bytes used, at most 200\n", m_kReader.GetState().Print(PART_HEAP, 0));
}

TEST_F(CInspectionReaderTest, TraceAndReplies_ReachTheListener)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, sizeof(m_acLine));
    CInspectionCommands kCommands(Manager());
    eC_Char acInput[64];
    kLink.AllowInput(kCommands, acInput, sizeof(acInput));
    CGUITrace::LogWarning("two\nlines\x1B[2J\n");
    kLink.OnHazard({HAZARD_NO_FOCUS, DLG_A, "no-focus", "Nobody has it."});
    m_kChannel.Receive("GetHistoryStackSize\nBack\n");
    kLink.Run();

    EXPECT_EQ("", m_kReader.Take(m_kChannel.TakeLines()));

    const std::vector<InspectedLine_t>& kLines = m_kLines.m_kLines;
    ASSERT_LT(4U, kLines.size());
    EXPECT_EQ("WARNING two\nlines\xEF\xBF\xBD[2J\n", kLines[0].m_kLevel + " " + kLines[0].m_kText);
    EXPECT_EQ("no-focus DLG_A", kLines[1].m_kHazard + " " + kLines[1].m_kAbout.GetText());
    EXPECT_EQ(LINE_REPLY, kLines[2].m_eType);
    EXPECT_EQ("0", kLines[2].m_kText);
    EXPECT_FALSE(kLines[2].m_bIsError);
    EXPECT_TRUE(kLines[3].m_bIsError);
    EXPECT_EQ(2U, kLines[3].m_uiLine);
}

// --- Streams -------------------------------------------------------------------------------------------

TEST_F(CInspectionReaderTest, Bytes_MayComeInAnyPieces)
{
    CInspectionLink kLink(Manager(), m_kChannel, m_acLine, sizeof(m_acLine));
    MakeState();
    kLink.Run();
    for (const char cByte : m_kChannel.TakeLines())
    {
        EXPECT_EQ("", m_kReader.Take(std::string(1, cByte)));
        EXPECT_EQ(cByte != '\n', m_kReader.IsInLine());
    }
    EXPECT_EQ(WholeState(), m_kReader.GetState().Print(Clock().GetTime()));
}

TEST_F(CInspectionReaderTest, AWrongLine_IsReported_AndTheOthersCount)
{
    EXPECT_EQ("line 2: expected an object of JSON on one line, found no JSON",
              m_kReader.Take("{\"type\":\"turn\",\"time\":1}\nGarbage\n{\"type\":\"turn\",\"time\":2}\n"));
    EXPECT_EQ(1U, m_kReader.GetTime());

    EXPECT_EQ("", m_kReader.Take(""));

    EXPECT_EQ(2U, m_kReader.GetTime());
    EXPECT_EQ(3U, m_kReader.GetLines());
}

TEST_F(CInspectionReaderTest, ALineWithoutEnd_IsRefusedOnce)
{
    const std::string kHalf(CInspectionReader::cuiLongestLine / 2 + 1, 'x');
    EXPECT_EQ("", m_kReader.Take(kHalf));
    EXPECT_EQ("line 1: expected a shorter line", m_kReader.Take(kHalf));
    EXPECT_EQ("", m_kReader.Take(kHalf));
    EXPECT_EQ("", m_kReader.Take(kHalf));
    EXPECT_TRUE(m_kReader.IsInLine());
    EXPECT_EQ("", m_kReader.Take("x\n{\"type\":\"turn\",\"time\":2}\n"));
    EXPECT_EQ(2U, m_kReader.GetTime());
    EXPECT_EQ("line 3: expected a shorter line", m_kReader.Take(kHalf + kHalf + "\n"));
}

TEST_F(CInspectionReaderTest, APartThatBeganBefore_IsNotKnown)
{
    const std::string kRest =
        R"({"type":"state","time":5,"part":"dynamic","from":2,"items":[{"id":7}],"more":false})";
    EXPECT_EQ("", m_kReader.Take(kRest + "\n"));
    EXPECT_FALSE(m_kReader.GetState().IsKnown(PART_DYNAMIC));
    EXPECT_TRUE(m_kReader.GetState().GetItems(PART_DYNAMIC).empty());
}

TEST_F(CInspectionReaderTest, AnItemThatTheProgramLeftOut_LeavesAGap)
{
    EXPECT_EQ("", m_kReader.Take(PartLine("dynamic", R"({"id":5},{"id":6})", "\"more\":true") + "\n"));
    EXPECT_FALSE(m_kReader.GetState().IsKnown(PART_DYNAMIC));
    EXPECT_EQ("", m_kReader.Take(R"({"type":"state","time":5,"dropped":1,"part":"dynamic","from":3,)"
                                 R"("items":[{"id":8}],"more":false})"
                                 "\n"));
    EXPECT_EQ("dynamic: 5 6 8\n", m_kReader.GetState().Print(5));
    EXPECT_EQ(1U, m_kReader.GetDropped());
}

TEST_F(CInspectionReaderTest, ARepetition_IsRefused)
{
    EXPECT_EQ("", m_kReader.Take(PartLine("dynamic", R"({"id":5},{"id":6})", "\"more\":true") + "\n"));
    EXPECT_EQ("line 2: from: expected at least 2, found 1",
              m_kReader.Take(R"({"type":"state","time":5,"part":"dynamic","from":1,"items":[],"more":false})"
                             "\n"));
}

// --- Lines ---------------------------------------------------------------------------------------------

TEST(CInspectionLineReaderTest, WhatIsNoLine_IsRefused)
{
    EXPECT_EQ("expected an object of JSON on one line, found no JSON", Refusal(""));
    EXPECT_EQ("expected an object of JSON on one line, found no JSON",
              Refusal("{\"type\":\"turn\",\"time\":1"));
    EXPECT_EQ("expected an object of JSON on one line, found no JSON", Refusal("{\"type\":\"\xFF\"}"));
    EXPECT_EQ("expected an object of JSON on one line, found no JSON", Refusal(std::string(100000, '[')));
    EXPECT_EQ("expected an object, found a list", Refusal("[]"));
    EXPECT_EQ("expected an object, found 7", Refusal("7"));
    EXPECT_EQ("expected a member \"type\", found none", Refusal("{}"));
    EXPECT_EQ("type: expected trace, state, reply, start, input or turn, found \"x\"",
              Refusal(R"({"type":"x"})"));
    EXPECT_EQ("type: expected a text, found a list",
              Refusal("{\"type\":" + std::string(100000, '[') + std::string(100000, ']') + "}"));
}

TEST(CInspectionLineReaderTest, WrongMembers_AreRefusedByName)
{
    EXPECT_EQ("expected a member \"time\", found none", Refusal(R"({"type":"turn"})"));
    EXPECT_EQ("time: expected a number from 0 to 4294967295, found -1",
              Refusal(R"({"type":"turn","time":-1})"));
    EXPECT_EQ("time: expected a number from 0 to 4294967295, found 4294967296",
              Refusal(R"({"type":"turn","time":4294967296})"));
    EXPECT_EQ("time: expected a number from 0 to 4294967295, found 1.0",
              Refusal(R"({"type":"turn","time":1.0})"));
    EXPECT_EQ(
        "time: expected a number from 0 to 4294967295, found \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...",
        Refusal(R"({"type":"turn","time":")" + std::string(100, 'x') + "\"}"));
    EXPECT_EQ("expected no member \"more\"", Refusal(R"({"type":"turn","time":1,"more":true})"));
    EXPECT_EQ("expected no member \"type,time\"", Refusal(R"({"type":"turn","time":1,"type,time":true})"));
    EXPECT_EQ("level: expected ERROR, WARNING, DEBUG, INFO or HAZARD, found \"BAD\"",
              Refusal(R"({"type":"trace","time":1,"level":"BAD","text":""})"));
    EXPECT_EQ("expected a member \"line\", found none",
              Refusal(R"({"type":"trace","time":1,"level":"ERROR","text":"","file":"a"})"));
    EXPECT_EQ("expected a member \"about\", found none",
              Refusal(R"({"type":"trace","time":1,"level":"HAZARD","text":"","hazard":"no-focus"})"));
    EXPECT_EQ("expected no member \"result\"",
              Refusal(R"({"type":"reply","time":1,"line":1,"result":"","error":""})"));
    EXPECT_EQ("cut: expected true, or no such member, found false",
              Refusal(R"({"type":"reply","time":1,"line":1,"result":"","cut":false})"));
}

TEST(CInspectionLineReaderTest, WrongStates_AreRefused)
{
    EXPECT_EQ("part: expected the name of a part, found \"x\"", Refusal(PartLine("x", "")));
    EXPECT_EQ("items: expected at most one, found 2", Refusal(PartLine("focus", R"({"id":1},{"id":2})")));
    EXPECT_EQ("expected an object, found 5", Refusal(PartLine("dynamic", "5")));
    EXPECT_EQ("expected a member \"id\", found none", Refusal(PartLine("dynamic", "{}")));
    EXPECT_EQ("id: expected a number from -2147483648 to 2147483647, found 2147483648",
              Refusal(PartLine("dynamic", R"({"id":2147483648})")));
    EXPECT_EQ("id: expected a number from -2147483648 to 2147483647, found -2147483649",
              Refusal(PartLine("dynamic", R"({"id":-2147483649})")));
    EXPECT_EQ("after: expected ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_DELETE, ODA_DELETE_ALL or ODA_NOTHING, "
              "found \"ODA\"",
              Refusal(PartLine("current", R"({"id":1,"after":"ODA","deletion":true,"recovery":true})")));
    EXPECT_EQ("after: expected a number from 0 to 255, found 256",
              Refusal(PartLine("current", R"({"id":1,"after":256,"deletion":true,"recovery":true})")));
    EXPECT_EQ("deletion: expected true or false, found 1",
              Refusal(PartLine("current", R"({"id":1,"after":"ODA_DELETE","deletion":1,"recovery":true})")));
    EXPECT_EQ("expected a member \"shown\", found none",
              Refusal(PartLine("active", R"({"id":1,"gone":false,"priority":1,"time":0,"delete":true})")));
    EXPECT_EQ("", Refusal(PartLine("active", R"({"gone":true,"priority":1,"time":0,"delete":true})")));
    EXPECT_EQ("expected no member \"x\"", Refusal(PartLine("tree", R"({"depth":0,"id":1,"x":1})")));
}

TEST(CInspectionLineReaderTest, DepthsOfSomebodyElse_ArePrintedWithinBounds)
{
    CInspectionReader kReader;
    EXPECT_EQ("", kReader.Take(PartLine("tree", R"({"depth":4294967295,"id":1})") + "\n"));
    EXPECT_EQ(2010U, kReader.GetState().Print(0).size());
}
