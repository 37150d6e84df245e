// SPDX-License-Identifier: MIT
#include "Inspection/InspectionTurns.h"

#include "Inspection/InspectionLink.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/Inspection/CollectingChannel.h"
#include "Tests/Unit/UnitTestHandles.h"

class CInspectionTurnsTest : public CGUITest
{
protected:
    CInspectionTurnsTest()
    {
        m_kLink.AllowInput(m_kCommands, m_acInput, sizeof(m_acInput));
        m_kLink.Run();
        m_kChannel.TakeLines();
        DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_1");
    }

    /** @return the lines sent, without those of the state and the trace */
    std::string TakeRecord()
    {
        std::string kRecord;
        for (const std::string& kLine : SplitLines(m_kChannel.TakeLines()))
        {
            const bool bIsOther = kLine.find("\"type\":\"state\"") != std::string::npos ||
                                  kLine.find("\"type\":\"trace\"") != std::string::npos;
            kRecord += bIsOther ? "" : kLine + "\n";
        }
        return kRecord;
    }

    CCollectingChannel m_kChannel;
    eC_Char m_acLine[512] = {};
    eC_Char m_acInput[32] = {};
    eC_Char m_acRecorded[32] = {};
    CRecordedInput m_kInput{m_kChannel, m_acRecorded, sizeof(m_acRecorded)};
    CInspectionLink m_kLink{Manager(), m_kInput, m_acLine, sizeof(m_acLine)};
    CInspectionCommands m_kCommands{Manager()};
};

TEST_F(CInspectionTurnsTest, TheClock_StandsStillDuringATurn)
{
    CInspectionTurns kTurns(7);
    EXPECT_EQ(7U, GETTIMER.GetTime());
    EXPECT_FALSE(kTurns.Begin(7));
    EXPECT_TRUE(kTurns.Begin(9));
    EXPECT_EQ(9U, GETTIMER.GetTime());
    EXPECT_TRUE(kTurns.Begin(0));
    EXPECT_EQ(0U, GETTIMER.GetTime());
}

TEST_F(CInspectionTurnsTest, WithoutARecord_TurnsRunWhatIsDue_AndSendNothing)
{
    CInspectionTurns kTurns(0);
    Manager().ShowPopup(POP_1);
    kTurns.Begin(99);
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_1));
    kTurns.Begin(100);
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    m_kChannel.Receive("GetHistoryStackSize\n");
    m_kLink.Run();
    EXPECT_TEXT(R"(
        {"type":"reply","time":100,"line":1,"result":"0"}
    )",
                TakeRecord());
}

TEST_F(CInspectionTurnsTest, ARecord_HasTheStart_Input_AndTurnsInWhichSomethingIsDue)
{
    CInspectionTurns kTurns(3);
    m_kInput.Record(m_kLink);
    kTurns.Record(m_kLink);
    kTurns.Begin(4);
    m_kLink.RecordInput("say \"x\"");
    m_kChannel.Receive("\tShowPopup POP_1\r\n  # a comment\n\n\r\nWrong\nstate\n" + std::string(31, 'x') +
                       "\n" + std::string(32, 'x') + "\n");
    m_kLink.Run();
    kTurns.Begin(50);
    m_kLink.Run();
    kTurns.Begin(106);
    m_kLink.Run();
    EXPECT_TEXT(R"(
        {"type":"start","time":3,"memory":512}
        {"type":"input","time":4,"text":"say \"x\""}
        {"type":"input","time":4,"text":"ShowPopup POP_1"}
        {"type":"reply","time":4,"line":1,"result":"POP_1"}
        {"type":"input","time":4,"text":"Wrong"}
        {"type":"reply","time":4,"line":5,"error":"expected a command, found 'Wrong'"}
        {"type":"input","time":4,"text":"state"}
        {"type":"reply","time":4,"line":6,"result":""}
        {"type":"input","time":4,"text":"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"}
        {"type":"reply","time":4,"line":7,"error":"expected a command, found 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'"}
        {"type":"reply","time":4,"line":8,"error":"expected a shorter line"}
        {"type":"turn","time":106}
    )",
                TakeRecord());
}

TEST_F(CInspectionTurnsTest, ATurn_IsRecordedBeforeWhatItRuns)
{
    CInspectionTurns kTurns(0);
    kTurns.Record(m_kLink);
    Manager().ShowPopup(POP_1);
    m_kLink.Run();
    m_kChannel.TakeLines();
    kTurns.Begin(100);
    EXPECT_EQ("{\"type\":\"turn\",\"time\":100}", SplitLines(m_kChannel.TakeLines()).front());
}

TEST_F(CInspectionTurnsTest, RecordsThatDoNotFit_AreCounted)
{
    CInspectionTurns kTurns(0);
    m_kChannel.SetRoom(0);
    kTurns.Record(m_kLink);
    m_kLink.RecordInput("key ok");
    m_kLink.RecordTurn();
    EXPECT_EQ(3U, m_kLink.GetDropped());
}
