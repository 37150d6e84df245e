// SPDX-License-Identifier: MIT
#include "Simulator/Simulation.h"

#include "Inspection/GUIInspector.h"
#include "Scenario/StatePrinter.h"
#include "TestSupport/GTest/ExpectText.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Unit/Simulator/SampleDevice.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

namespace
{
using Lines = std::vector<std::string>;

class CSimulationTest : public ::testing::Test
{
protected:
    ~CSimulationTest() override
    {
        m_pkSimulation.reset();
        EXPECT_EQ(0U, m_kDevice.m_uiStarts);
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    /** Runs lines on a new simulation; all must be right. */
    void Play(
        Lines kLines) // NOLINT(performance-unnecessary-value-param): those of the simulation would go with it
    {
        m_pkSimulation.reset(); // there is one at a time
        m_pkSimulation = std::make_unique<CSimulation>(m_kDevice, m_fnWriter);
        for (const std::string& kLine : kLines)
        {
            EXPECT_TRUE(Simulation().Run(kLine).m_bIsExecuted) << kLine;
        }
    }

    CSimulation& Simulation() { return *m_pkSimulation; }

    /** @return the result of a line; of a wrong one, the fault with "wrong: " before it */
    std::string Run(const std::string& kLine)
    {
        const SimulatedResult_t kResult = Simulation().Run(kLine);
        return (kResult.m_bIsExecuted ? "" : "wrong: ") + kResult.m_kText;
    }

    /** @return the clock, the whole state and the trace */
    std::string State()
    {
        std::string kState = std::to_string(Simulation().GetTime()) + " ms\n" +
                             PrintState(m_kDevice.GetManager(), STATE_ALL | STATE_TIMERS);
        for (const SimulatedTrace_t& kTrace : Simulation().GetTrace())
        {
            kState += std::to_string(kTrace.m_uiLine) + "@" + std::to_string(kTrace.m_uiTime) + " " +
                      FormatTraceLine(kTrace.m_kEntry) + "\n";
        }
        return kState;
    }

    std::string Focus() { return PrintState(m_kDevice.GetManager(), STATE_FOCUS); }

    ObjectCensus_t m_kBefore = TakeObjectCensus();
    CSampleDevice m_kDevice;
    CSimulation::Writer_t m_fnWriter;
    std::unique_ptr<CSimulation> m_pkSimulation;
};

const Lines ckSession = {"power-on", "touch OBJ_1", "key ok", "advance 400", "weigh 7", "key back"};
} // namespace

// ---- Input
// -------------------------------------------------------------------------------------------------

TEST_F(CSimulationTest, NewSimulation_IsStartedAndNotPoweredOn)
{
    Play({});

    EXPECT_EQ("0 ms\ncurrent: none\n", State());
    EXPECT_EQ(Lines(), Simulation().GetLines());
}

TEST_F(CSimulationTest, PowerOn_ShowsTheFirstDialog)
{
    Play({"power-on"});

    EXPECT_EQ("current: DLG_A after ODA_NOTHING\n", PrintState(m_kDevice.GetManager(), STATE_CURRENT));
}

TEST_F(CSimulationTest, PowerOn_WithoutFirstDialog_SaysSo)
{
    m_kDevice.m_bHasNoDialog = true;
    Play({});

    EXPECT_EQ("no first dialog", Run("power-on"));
}

TEST_F(CSimulationTest, Key_IsAKeyOfTheDevice)
{
    Play({"power-on"});

    EXPECT_EQ("no effect", Run("key back"));
    EXPECT_EQ("", Run("key ok"));
    EXPECT_EQ(DLG_B, m_kDevice.GetManager().GetCurrentDialogID());
    EXPECT_EQ("wrong: key: expected one of ok, back, found 'next'", Run("key next"));
}

TEST_F(CSimulationTest, Press_IsAKeyThatTheDeviceDoesNotHave)
{
    Play({"power-on"});

    EXPECT_EQ("", Run("press next"));
    EXPECT_EQ("focus: OBJ_2\n", Focus());
    EXPECT_EQ("", Run("press end"));
    EXPECT_EQ(100, CGUIWidget::Find(CGUI::GetInstance().GetObjectByID(OBJ_2, true))->GetValue());
    EXPECT_EQ("no effect", Run("press delete"));
}

TEST_F(CSimulationTest, Touch_ReachesTheVisibleObject)
{
    Play({"power-on", "touch OBJ_1"});
    ASSERT_EQ(DLG_B, m_kDevice.GetManager().GetCurrentDialogID());

    // Both dialogs have this button; the one of the hidden dialog would show DLG_B again.
    EXPECT_EQ("", Run("touch OBJ_1"));
    EXPECT_TRUE(m_kDevice.GetManager().IsPopupDisplayed(POP_1));
    EXPECT_EQ("no effect", Run("touch OBJ_2"));
    EXPECT_EQ("wrong: touch: expected the name of a handle or a number, found 'OBJ'", Run("touch OBJ"));
}

TEST_F(CSimulationTest, TouchAt_ReachesTheWidgetThere)
{
    Play({"power-on"});

    EXPECT_EQ("", Run("touch-at 5 3"));
    EXPECT_EQ("focus: OBJ_2\n", Focus());
    EXPECT_EQ(44, CGUIWidget::Find(CGUI::GetInstance().GetObjectByID(OBJ_2, true))->GetValue());
    EXPECT_EQ("no effect", Run("touch-at 0 0"));
    EXPECT_EQ("no effect", Run("touch-at 4294967295 3"));
}

TEST_F(CSimulationTest, Type_TypesTheRestOfTheLineWithoutItsSingleQuotes)
{
    Play({"power-on"});
    const auto Text = []
    { return CGUIWidget::Find(CGUI::GetInstance().GetObjectByID(OBJ_3, true))->GetText(); };

    EXPECT_EQ("no effect", Run("type x"));
    Run("touch OBJ_3");
    EXPECT_EQ("", Run("type two words"));
    EXPECT_EQ("", Run("type ' '"));
    EXPECT_EQ("", Run("type '\"\xC3\xA4'"));
    EXPECT_EQ("", Run("type '''"));
    EXPECT_EQ("", Run("type '"));
    EXPECT_STREQ("two words \"\xC3\xA4''", Text());
}

TEST_F(CSimulationTest, Run_ExecutesTheApplicationsCommandsAndTheManagersOperations)
{
    Play({"power-on"});

    EXPECT_EQ("7 g", Run("weigh 7"));
    EXPECT_EQ("DLG_B", Run("CreateDialog DLG_B ODA_DELETE"));
    EXPECT_EQ("1", Run("GetHistoryStackSize"));
    EXPECT_EQ("", Run("state"));
}

// ---- Lines
// -------------------------------------------------------------------------------------------------

TEST_F(CSimulationTest, Run_WrongLine_ChangesNothingAndIsNotKept)
{
    Play(ckSession);
    const std::string kState = State();

    EXPECT_EQ(0U, Run("jump").find("wrong: expected a command (CreateDialog, "));
    EXPECT_EQ("wrong: weigh: expected weigh <grams>, found 0 arguments", Run("weigh"));
    EXPECT_EQ("wrong: state: expected state, found 1 arguments", Run("state now"));
    EXPECT_EQ("wrong: expected a line of printable characters in UTF-8", Run("weigh\n7"));
    EXPECT_EQ("wrong: expected a line of printable characters in UTF-8", Run("type \xC3"));
    EXPECT_EQ("wrong: expected a line of at most 1000 bytes", Run(std::string(1001, 'x')));

    EXPECT_EQ(kState, State());
    EXPECT_EQ(ckSession, Simulation().GetLines());
}

TEST_F(CSimulationTest, Run_Exception_IsTheResultAndKept)
{
    Play({"power-on"});

    EXPECT_EQ("throws int 5", Run("weigh 101"));
    EXPECT_EQ("throws too heavy", Run("weigh 201"));
    EXPECT_EQ("throws", Run("weigh 301"));
    EXPECT_EQ((Lines{"power-on", "weigh 101", "weigh 201", "weigh 301"}), Simulation().GetLines());
}

TEST_F(CSimulationTest, Run_CommentsAreKept_EmptyLinesAreNot)
{
    Play({"# begins", "", " \t", "  # indented"});

    EXPECT_EQ((Lines{"# begins", "  # indented"}), Simulation().GetLines());
    EXPECT_EQ("0 ms\ncurrent: none\n", State());
}

TEST_F(CSimulationTest, Trace_NamesLineAndTime)
{
    Play({"power-on", "advance 30"});
    const std::size_t uiBefore = Simulation().GetTrace().size();
    Run("weigh 7");

    ASSERT_EQ(uiBefore + 1, Simulation().GetTrace().size());
    const SimulatedTrace_t& kTrace = Simulation().GetTrace().back();
    EXPECT_EQ("INFO: weighs 7.\\n", FormatTraceLine(kTrace.m_kEntry));
    EXPECT_EQ(2U, kTrace.m_uiLine);
    EXPECT_EQ(30U, kTrace.m_uiTime);
}

// ---- Time
// --------------------------------------------------------------------------------------------------

TEST_F(CSimulationTest, Advance_BitByBit_IsOneLineUntilSomethingHappens)
{
    Play({"power-on", "touch OBJ_1", "key ok"}); // the popup stays for a second
    for (eC_UInt uiBit = 0; uiBit < 30; ++uiBit)
    {
        Simulation().Advance(40);
    }

    EXPECT_EQ((Lines{"power-on", "touch OBJ_1", "key ok", "advance 1000", "advance 200"}),
              Simulation().GetLines());
    EXPECT_EQ(1200U, Simulation().GetTime());
    // The popup was closed by the line that ends then.
    EXPECT_EQ(3U, Simulation().GetTrace().back().m_uiLine);
    const std::string kState = State();

    Play(Simulation().GetLines());
    EXPECT_EQ(kState, State());
}

TEST_F(CSimulationTest, Advance_AfterALineOfItsOwn_BeginsAnother)
{
    Play({"power-on", "advance 10"});
    Simulation().Advance(20);
    Simulation().Advance(30);

    EXPECT_EQ((Lines{"power-on", "advance 10", "advance 50"}), Simulation().GetLines());
}

TEST_F(CSimulationTest, Advance_BeyondTheLongestLine_BeginsAnotherLine)
{
    Play({"power-on"});
    for (eC_UInt uiBit = 0; uiBit < 5; ++uiBit)
    {
        Simulation().Advance(40, 100);
    }
    Simulation().Advance(120, 100);

    EXPECT_EQ((Lines{"power-on", "advance 80", "advance 80", "advance 40", "advance 120"}),
              Simulation().GetLines());
}

TEST_F(CSimulationTest, Advance_BeyondTheGreatestNumber_BeginsAnotherLine)
{
    Play({});
    Simulation().Advance(4294967290U);
    Simulation().Advance(5);
    Simulation().Advance(1);

    EXPECT_EQ((Lines{"advance 4294967295", "advance 1"}), Simulation().GetLines());
}

TEST_F(CSimulationTest, GoTo_GivesTheStateAfterThatLine_BackAndForth)
{
    Lines kStates;
    Play({});
    kStates.push_back(State());
    for (const std::string& kLine : ckSession)
    {
        Run(kLine);
        kStates.push_back(State());
    }

    for (const std::size_t uiPosition : {4U, 3U, 5U, 0U, 6U, 1U, 2U})
    {
        Simulation().GoTo(uiPosition);
        EXPECT_EQ(uiPosition, Simulation().GetPosition());
        EXPECT_EQ(kStates[uiPosition], State()) << uiPosition;
        EXPECT_EQ(ckSession, Simulation().GetLines());
    }
    Simulation().GoTo(99);
    EXPECT_EQ(kStates[6], State());
}

TEST_F(CSimulationTest, GoTo_Comments_CountAsLines)
{
    Play({"# begins", "power-on", "# ends"});

    Simulation().GoTo(2);
    EXPECT_EQ(DLG_A, m_kDevice.GetManager().GetCurrentDialogID());
    Simulation().GoTo(1);
    EXPECT_EQ(NO_HANDLE, m_kDevice.GetManager().GetCurrentDialogID());
}

TEST_F(CSimulationTest, Run_AfterGoingBack_ForgetsTheLaterLines)
{
    Play(ckSession);
    Simulation().GoTo(2);

    Run("weigh 8");
    EXPECT_EQ((Lines{"power-on", "touch OBJ_1", "weigh 8"}), Simulation().GetLines());
    EXPECT_EQ(3U, Simulation().GetPosition());
}

TEST_F(CSimulationTest, Advance_AfterGoingBack_ForgetsTheLaterLines)
{
    Play({"power-on"});
    Simulation().Advance(100);
    Run("weigh 8");
    Simulation().GoTo(2);

    Simulation().Advance(50);
    EXPECT_EQ((Lines{"power-on", "advance 100", "advance 50"}), Simulation().GetLines());
}

TEST_F(CSimulationTest, Restart_ForgetsEverything)
{
    Play(ckSession);
    Simulation().Restart();

    EXPECT_EQ("0 ms\ncurrent: none\n", State());
    EXPECT_EQ(Lines(), Simulation().GetLines());
    EXPECT_EQ(0U, Simulation().GetPosition());
}

TEST_F(CSimulationTest, Change_ExecutesTheLinesAgainWithoutThoseThatAreWrongNow)
{
    Play({"power-on", "weigh 50", "touch OBJ_1", "# a comment", "advance 5"});
    eC_UInt uiStarts = 1;
    EXPECT_EQ(0U, Simulation().Change([&]() { uiStarts = m_kDevice.m_uiStarts; }));
    EXPECT_EQ(0U, uiStarts); // it is stopped meanwhile
    EXPECT_EQ((Lines{"power-on", "weigh 50", "touch OBJ_1", "# a comment", "advance 5"}),
              Simulation().GetLines());
    const std::string kState = State();

    EXPECT_EQ(1U, Simulation().Change([this]() { m_kDevice.m_bHasNoScales = true; }));
    EXPECT_EQ((Lines{"power-on", "touch OBJ_1", "# a comment", "advance 5"}), Simulation().GetLines());
    EXPECT_EQ(4U, Simulation().GetPosition());
    EXPECT_NE(kState, State());
    Play(Simulation().GetLines());
}

TEST_F(CSimulationTest, Change_InThePast_StaysThereAndKeepsTheLaterLines)
{
    Play({"power-on", "weigh 50", "touch OBJ_1", "touch OBJ_1"});
    Simulation().GoTo(3);
    EXPECT_EQ(1U, Simulation().Change([this]() { m_kDevice.m_bHasNoScales = true; }));
    EXPECT_EQ((Lines{"power-on", "touch OBJ_1", "touch OBJ_1"}), Simulation().GetLines());
    EXPECT_EQ(2U, Simulation().GetPosition());
    const std::string kState = State();
    Simulation().GoTo(3);
    EXPECT_NE(kState, State());
    Simulation().GoTo(2);
    EXPECT_EQ(kState, State());
}

TEST_F(CSimulationTest, Change_ThatThrows_LeavesTheApplicationStoppedAndKeepsTheLines)
{
    Play({"power-on", "weigh 50"});
    EXPECT_THROW(Simulation().Change([]() { throw 7; }), int);
    EXPECT_FALSE(Simulation().Run("weigh 50").m_bIsExecuted);
    EXPECT_EQ((Lines{"power-on", "weigh 50"}), Simulation().GetLines());
    m_kDevice.m_bMustFail = true;
    EXPECT_THROW(Simulation().Change([]() {}), int);
    m_kDevice.m_bMustFail = false;
    EXPECT_EQ((Lines{"power-on", "weigh 50"}), Simulation().GetLines());
    Simulation().GoTo(2);
    EXPECT_EQ(2U, Simulation().GetPosition());
}

TEST_F(CSimulationTest, StartThatThrows_LeavesTheApplicationStoppedUntilOneSucceeds)
{
    m_kDevice.m_bMustFail = true;
    EXPECT_THROW(CSimulation kSimulation(m_kDevice), int);
    EXPECT_EQ(0U, m_kDevice.m_uiStarts);

    m_kDevice.m_bMustFail = false;
    Play({"power-on", "weigh 7"});
    m_kDevice.m_bMustFail = true;
    EXPECT_THROW(Simulation().GoTo(1), int);
    EXPECT_EQ(0U, m_kDevice.m_uiStarts);
    EXPECT_EQ("wrong: the application is not started", Run("power-on"));
    EXPECT_EQ("the application is not started", Simulation().Advance(1).m_kText);

    m_kDevice.m_bMustFail = false;
    Simulation().GoTo(2);
    EXPECT_EQ(DLG_A, m_kDevice.GetManager().GetCurrentDialogID());
    EXPECT_EQ((Lines{"power-on", "weigh 7"}), Simulation().GetLines());
}

// ---- JSON
// --------------------------------------------------------------------------------------------------

class CSimulationWriterTest : public CSimulationTest
{
protected:
    CSimulationWriterTest()
    {
        m_fnWriter = [this](const std::string& kLine) { m_kWritten.push_back(kLine); };
    }

    /** @return the lines since the last call that contain a text */
    Lines Take(const std::string& kText)
    {
        Lines kLines;
        for (const std::string& kLine : m_kWritten)
        {
            if (kLine.find(kText) != std::string::npos)
            {
                kLines.push_back(kLine);
            }
        }
        m_kWritten.clear();
        return kLines;
    }

    Lines m_kWritten;
};

TEST_F(CSimulationWriterTest, NewSimulation_WritesTheWholeState)
{
    Play({});

    EXPECT_EQ(
        (Lines{R"({"type":"state","time":0,"part":"current","from":0,"items":[{"id":0,"name":"NO_HANDLE",)"
               R"("after":"ODA_NOTHING","deletion":true,"recovery":true}],"more":false})"}),
        Take("\"current\""));
}

TEST_F(CSimulationWriterTest, Run_WritesTraceReplyAndWhatHasChanged)
{
    Play({"power-on", "advance 5"});
    m_kWritten.clear();

    Run("weigh 7");
    EXPECT_EQ((Lines{R"({"type":"trace","time":5,"level":"INFO","text":"weighs 7.\n"})",
                     R"({"type":"reply","time":5,"line":3,"result":"7 g"})"}),
              Take(""));
    Run("key ok");
    EXPECT_EQ(1U, Take("\"part\":\"history\"").size());
}

TEST_F(CSimulationWriterTest, Run_WrongLine_IsRepliedToWithAnError)
{
    Play({"power-on"});
    m_kWritten.clear();

    EXPECT_EQ("wrong: weigh: expected weigh <grams>, found 0 arguments", Run("weigh"));
    EXPECT_EQ((Lines{R"({"type":"reply","time":0,"line":2,)"
                     R"("error":"weigh: expected weigh <grams>, found 0 arguments"})"}),
              Take(""));
    EXPECT_EQ("wrong: state: expected state, found 1 arguments", Run("state now"));
    EXPECT_EQ(1U, Take("\"error\"").size());
}

TEST_F(CSimulationWriterTest, Run_LongLine_IsExecuted)
{
    Play({"power-on"});
    m_kWritten.clear();

    EXPECT_EQ("7 g", Run("weigh 7" + std::string(CSimulation::cuiLongestLine - 7, ' ')));
    EXPECT_EQ(1U, Take("\"result\":\"7 g\"").size());
}

TEST_F(CSimulationWriterTest, State_WritesEverythingAgain)
{
    Play({"power-on"});
    m_kWritten.clear();

    EXPECT_EQ("", Run("state"));
    EXPECT_EQ(1U, Take("\"part\":\"tree\"").size());
}

TEST_F(CSimulationWriterTest, GoTo_WritesTheStateThereAndNothingFromTheWay)
{
    Play(ckSession);
    m_kWritten.clear();

    Simulation().GoTo(5);
    EXPECT_EQ(Lines(), Take("\"type\":\"trace\""));
    Simulation().GoTo(2);
    EXPECT_EQ(1U, Take("\"part\":\"current\"").size());
}

TEST_F(CSimulationWriterTest, Change_WritesTheStateAndNothingFromTheWay)
{
    Play({"power-on", "weigh 50"});
    m_kWritten.clear();
    Simulation().Change([]() {});
    EXPECT_EQ(2U, Simulation().GetLines().size());
    for (const std::string& kLine : m_kWritten)
    {
        EXPECT_EQ(0U, kLine.find("{\"type\":\"state\"")) << kLine;
    }
    EXPECT_FALSE(m_kWritten.empty());
    m_kWritten.clear();
    Simulation().Run("weigh 50");
    EXPECT_FALSE(m_kWritten.empty());
}

TEST_F(CSimulationWriterTest, WithAWriter_SessionsAreTheSameAsWithout)
{
    Play(ckSession);
    const std::string kState = State();
    m_fnWriter = nullptr;

    Play(ckSession);
    EXPECT_EQ(kState, State());
}
