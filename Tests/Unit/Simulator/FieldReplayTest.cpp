// SPDX-License-Identifier: MIT
#include "Simulator/Replay/FieldReplay.h"

#include "Core/GUITrace.h"
#include "Inspection/Host/ScenarioCommands.h"
#include "Inspection/InspectionLink.h"
#include "Inspection/InspectionTurns.h"
#include "Scenario/TextLines.h"
#include "Simulator/SimulationPlayer.h"
#include "TestSupport/GTest/ExpectText.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Unit/Inspection/CollectingChannel.h"
#include "Tests/Unit/Simulator/SampleDevice.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
/** A device with a main loop, which records. */
class CRecordingDevice
{
public:
    explicit CRecordingDevice(eC_UInt uiTime, eC_UInt uiMemory = 256)
        : m_kTurns(uiTime),
          m_kStarted(m_kDevice),
          m_kMemory(uiMemory, '\0'),
          m_kInput(m_kChannel, m_acRecorded, sizeof(m_acRecorded)),
          m_kLink(m_kDevice.GetManager(), m_kInput, m_kMemory.data(), uiMemory),
          m_kPlayer(m_kDevice, m_kUnused, m_kEvents),
          m_kCommands(m_kPlayer)
    {
        m_kLink.AllowInput(m_kCommands, m_acInput, sizeof(m_acInput));
        m_kInput.Record(m_kLink);
        m_kTurns.Record(m_kLink);
        m_kLink.RecordInput("power-on");
        m_kDevice.PowerOn();
        m_kLink.Run();
    }

    /** A turn at that time, with lines that arrive in it. */
    void Turn(eC_UInt uiTime, const std::string& kInput = std::string())
    {
        EXPECT_TRUE(m_kTurns.Begin(uiTime));
        m_kChannel.Receive(kInput);
        m_kLink.Run();
    }

    /** A turn in which somebody presses a key. */
    void PressKey(eC_UInt uiTime)
    {
        EXPECT_TRUE(m_kTurns.Begin(uiTime));
        m_kLink.RecordInput("key ok");
        m_kDevice.PressKey(0);
        m_kLink.Run();
    }

    std::string TakeLog() { return m_kChannel.TakeLines(); }

    CSampleDevice m_kDevice;

private:
    struct CStarted
    {
        explicit CStarted(CSampleDevice& kDevice) : m_kDevice(kDevice) { m_kDevice.Start(); }
        CStarted(const CStarted&) = delete;
        CStarted& operator=(const CStarted&) = delete;
        ~CStarted() { m_kDevice.Stop(); }
        CSampleDevice& m_kDevice;
    };

    CSteppedClock m_kUnused; ///< the player wants one; the turns replace it
    CInspectionTurns m_kTurns;
    CStarted m_kStarted;
    CCollectingChannel m_kChannel;
    std::string m_kMemory;
    eC_Char m_acRecorded[64] = {};
    CRecordedInput m_kInput;
    CInspectionLink m_kLink;
    CEventLog m_kEvents;
    CSimulationPlayer m_kPlayer;
    CScenarioCommands m_kCommands;
    eC_Char m_acInput[64] = {};
};

/** A run in which everything happens that a log can have: late turns, several inputs in a turn, input that is
 *  refused or throws, and popups that close themselves.
 */
std::string Record(eC_UInt uiTime, eC_UInt uiMemory = 256)
{
    CRecordingDevice kDevice(uiTime, uiMemory);
    kDevice.PressKey(uiTime + 1);
    kDevice.Turn(uiTime + 5, "touch OBJ_1\nweigh 7\n");
    kDevice.Turn(uiTime + 6);
    kDevice.Turn(uiTime + 900, "touch OBJ_1\nNonsense\nweigh 150\n# nothing\nstate\n");
    kDevice.Turn(uiTime + 2345);
    kDevice.Turn(uiTime + 2346, "ShowPopup 99\n\xFF\nBack true\n");
    kDevice.PressKey(uiTime + 5000);
    kDevice.Turn(uiTime + 6000);
    return kDevice.TakeLog();
}

class CFieldReplayTest : public ::testing::Test
{
protected:
    CFieldReplayTest() : m_pkSink(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(nullptr);
    }

    ~CFieldReplayTest() override
    {
        EXPECT_EQ(nullptr, CGUITrace::GetInstance().GetSink());
        CGUITrace::GetInstance().SetSink(m_pkSink);
        EXPECT_EQ(0U, m_kDevice.m_uiStarts);
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    FieldReplay_t Replay(const std::string& kLog) { return ReplayFieldLog(kLog, m_kDevice); }

    ObjectCensus_t m_kBefore = TakeObjectCensus();
    CGUITraceSink* m_pkSink;
    CSampleDevice m_kDevice;
};

/** @return how many lines are trace or state, without heap and hooks */
eC_UInt CountCompared(const std::string& kLog)
{
    eC_UInt uiCompared = 0;
    for (const std::string& kLine : SplitLines(kLog))
    {
        const bool bIsCompared = kLine.find("\"type\":\"trace\"") != std::string::npos ||
                                 kLine.find("\"type\":\"state\"") != std::string::npos;
        uiCompared += bIsCompared && kLine.find("\"part\":\"h") == kLine.find("\"part\":\"history") ? 1U : 0U;
    }
    return uiCompared;
}

/** @return the log without the first line that has this text */
std::string Without(const std::string& kLog, const std::string& kText)
{
    std::string kRest;
    bool bIsFound = false;
    for (const std::string& kLine : SplitLines(kLog))
    {
        const bool bIsIt = !bIsFound && kLine.find(kText) != std::string::npos;
        kRest += bIsIt ? "" : kLine + "\n";
        bIsFound = bIsFound || bIsIt;
    }
    EXPECT_TRUE(bIsFound) << kText;
    return kRest;
}
} // namespace

TEST_F(CFieldReplayTest, ARecordedRun_GivesTheSameTraceAndStates)
{
    const std::string kLog = Record(0);
    const FieldReplay_t kReplay = Replay(kLog);

    EXPECT_EQ("", kReplay.m_kError) << kLog;
    EXPECT_EQ(12U, kReplay.m_uiInputs);
    EXPECT_EQ(CountCompared(kLog), kReplay.m_uiCompared);
    EXPECT_LT(40U, kReplay.m_uiCompared);
}

TEST_F(CFieldReplayTest, ADeviceThatHasRunForLong_AndOneWithLittleMemory_AreReplayedToo)
{
    EXPECT_EQ("", Replay(Record(0U - 1000)).m_kError);
    EXPECT_EQ("", Replay(Record(77, 1000)).m_kError);
}

TEST_F(CFieldReplayTest, ALogMayEndAnywhere)
{
    const std::string kLog = Record(0);
    for (std::size_t uiEnd = kLog.find('\n'); uiEnd != std::string::npos; uiEnd = kLog.find('\n', uiEnd + 1))
    {
        EXPECT_EQ("", Replay(kLog.substr(0, uiEnd + 1)).m_kError);
    }
    EXPECT_EQ("", Replay(kLog.substr(0, kLog.size() / 2)).m_kError);
}

TEST_F(CFieldReplayTest, AnythingThatIsMissing_IsADifference)
{
    const std::string kLog = Record(0);
    EXPECT_NE("", Replay(Without(kLog, "\"text\":\"weigh 7\"")).m_kError);
    EXPECT_NE("", Replay(Without(kLog, "\"text\":\"touch OBJ_1\"")).m_kError);
    EXPECT_NE("", Replay(Without(kLog, "\"type\":\"turn\"")).m_kError);
    EXPECT_NE("", Replay(Without(kLog, "weighs 7")).m_kError);
    EXPECT_NE("", Replay(Without(kLog, "\"part\":\"history\"")).m_kError);
}

TEST_F(CFieldReplayTest, TheFirstDifference_IsReportedWithItsLine)
{
    std::string kLog = Record(0);
    const std::size_t uiPlace = kLog.find("weighs 7");
    kLog.replace(uiPlace, 8, "weighs 8");
    const auto uiLine = std::to_string(
        1 + std::count(kLog.begin(), kLog.begin() + static_cast<std::ptrdiff_t>(uiPlace), '\n'));

    EXPECT_EQ(
        "line " + uiLine +
            R"(: the device sent this, but the replay {"type":"trace","time":5,"level":"INFO","text":"weighs 7.\n"})",
        Replay(kLog).m_kError);
}

TEST_F(CFieldReplayTest, ALineThatTheReplayDoesNotSend_IsReported)
{
    const std::string kExtra = R"({"type":"trace","time":6000,"level":"INFO","text":"more"})";
    const std::string kLog = Record(0);
    EXPECT_EQ("line " + std::to_string(SplitLines(kLog).size() + 1) +
                  ": the device sent this, and the replay nothing",
              Replay(kLog + kExtra + "\n").m_kError);
}

TEST_F(CFieldReplayTest, WhatCannotBeTheSame_IsNotCompared)
{
    const std::string kLog =
        Record(0) +
        R"({"type":"state","time":6000,"part":"heap","from":0,"items":[],"more":false})"
        "\n"
        R"({"type":"trace","time":6000,"level":"HAZARD","hazard":"no-focus","about":{"id":1},"text":"x"})"
        "\n"
        R"({"type":"reply","time":6000,"line":99,"result":"x"})"
        "\n";
    EXPECT_EQ("", Replay(kLog).m_kError);
}

TEST_F(CFieldReplayTest, SourceFiles_AreComparedByName)
{
    std::string kLog = Record(0);
    const std::size_t uiFile = kLog.find("\"file\":\"") + 8;
    const std::size_t uiName = kLog.find("GUIDialogManager.cpp", uiFile);
    ASSERT_NE(std::string::npos, uiName);
    kLog.replace(uiFile, uiName - uiFile, "elsewhere/");
    EXPECT_EQ("", Replay(kLog).m_kError);
    kLog.replace(uiFile, 10, "");
    EXPECT_EQ("", Replay(kLog).m_kError);
    kLog.replace(uiFile, 3, "gui");
    EXPECT_NE("", Replay(kLog).m_kError);
}

TEST_F(CFieldReplayTest, TheLinesOfTheReplay_ReachTheWriter)
{
    std::string kSent;
    ReplayFieldLog(R"({"type":"start","time":7,"memory":256})"
                   "\n"
                   R"({"type":"input","time":7,"text":"weigh 3"})"
                   "\n",
                   m_kDevice, [&kSent](const std::string& kLine) { kSent += kLine + "\n"; });
    EXPECT_EQ(R"({"type":"trace","time":7,"level":"INFO","text":"weighs 3.\n"})", SplitLines(kSent).front());
    EXPECT_EQ(cuiInspectionParts + 1, SplitLines(kSent).size());
}

TEST_F(CFieldReplayTest, AStartThatThrows_StopsTheApplication)
{
    m_kDevice.m_bMustFail = true;
    EXPECT_THROW(Replay(Record(0)), int);
}

TEST_F(CFieldReplayTest, ALogThatCannotBeReplayed_SaysWhy)
{
    const std::string kStart = R"({"type":"start","time":0,"memory":256})"
                               "\n";
    const std::string kTurn = R"({"type":"turn","time":5})"
                              "\n";
    EXPECT_EQ("expected lines of an inspection, found none", Replay("").m_kError);
    EXPECT_EQ("line 1: expected an object of JSON on one line, found no JSON", Replay("x\n").m_kError);
    EXPECT_EQ("line 1: expected a line of the type start; the device must record from its start",
              Replay(kTurn + kStart).m_kError);
    EXPECT_EQ("line 3: the device was started again: give each run a log of its own",
              Replay(kStart + kTurn + kStart).m_kError);
    EXPECT_EQ("line 2: the device dropped 3 lines: give its channel more room",
              Replay(kStart + R"({"type":"turn","time":5,"dropped":3})" + "\n").m_kError);
    EXPECT_EQ("line 1: memory: expected a number from 192 to 1048576, found 191",
              Replay(R"({"type":"start","time":0,"memory":191})"
                     "\n")
                  .m_kError);
    EXPECT_EQ("line 2: time: expected a number from 0 to 4294967295, found -1",
              Replay(kStart + R"({"type":"turn","time":-1})" + "\n").m_kError);
}
