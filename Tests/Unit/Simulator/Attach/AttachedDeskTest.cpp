// SPDX-License-Identifier: MIT
#include "Simulator/Attach/AttachedView.h"
#include "Simulator/Simulation.h"
#include "Tests/Unit/Simulator/SampleDevice.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

namespace
{
using Lines = std::vector<std::string>;

/** A desk that is told by lines, as if they came from elsewhere. */
class CAttachedDeskTest : public ::testing::Test
{
protected:
    CAttachedDeskTest() : m_kDesk(m_kReader, ":4000", true) { m_kReader.SetListener(&m_kDesk); }

    void Tell(const std::string& kLine) { EXPECT_EQ("", m_kReader.Take(kLine + "\n")) << kLine; }

    void TellTrace(const std::string& kLevel, const std::string& kText)
    {
        Tell(R"({"type":"trace","time":1200,"level":")" + kLevel + R"(","text":")" + kText + R"("})");
    }

    void Press(const Lines& kKeys)
    {
        for (const std::string& kKey : kKeys)
        {
            m_kDesk.PressKey(kKey);
        }
    }

    void Type(const std::string& kText)
    {
        for (const eC_Char cCharacter : kText)
        {
            m_kDesk.PressKey(std::string(1, cCharacter));
        }
    }

    std::string Frame(eC_Int iWidth = 80, eC_Int iHeight = 24) const
    {
        return DrawAttached(m_kDesk, iWidth, iHeight).GetFrame();
    }

    eC_Bool Shows(const std::string& kText) const { return Frame().find(kText) != std::string::npos; }

    CInspectionReader m_kReader;
    CAttachedDesk m_kDesk;
};

std::string Join(const std::vector<StyledLine_t>& kLines)
{
    std::string kText;
    for (const StyledLine_t& kLine : kLines)
    {
        kText += std::to_string(kLine.m_eStyle) + " " + kLine.m_kText + "\n";
    }
    return kText;
}
} // namespace

TEST_F(CAttachedDeskTest, StateThatIsTold_IsDescribedLikeTheOneThatIsRead)
{
    CSampleDevice kDevice;
    CSimulation kSimulation(kDevice, [this](const std::string& kLine) { Tell(kLine); });
    for (const eC_Char* pcLine :
         {"power-on", "touch OBJ_1", "touch OBJ_1", "advance 300", "focusable OBJ_1 false",
          "CreateDynamicObjectID", "RegisterDialogDefinition \"\" DLG_C",
          "RegisterPopupDefinition POP_2 PRIO_LOW 3000 false \"\"", "advance 5", "state", "ClosePopup POP_1",
          "delete DLG_A", "Back true", "state"})
    {
        EXPECT_TRUE(kSimulation.Run(pcLine).m_bIsExecuted) << pcLine;
        EXPECT_EQ(Join(DescribeState(kSimulation.GetInspector())),
                  Join(DescribeState(m_kReader.GetState(), m_kReader.GetTime())))
            << pcLine;
    }
}

TEST_F(CAttachedDeskTest, Columns_HaveTogetherWhatAllHave)
{
    CSampleDevice kDevice;
    CSimulation kSimulation(kDevice, [this](const std::string& kLine) { Tell(kLine); });
    kSimulation.Run("power-on");
    const CInspectedState& kState = m_kReader.GetState();
    EXPECT_EQ(DescribeState(kState, 0).size(), DescribeState(kState, 0, COLUMN_SITUATION).size() +
                                                   DescribeState(kState, 0, COLUMN_OBJECTS).size());
}

TEST_F(CAttachedDeskTest, HookTimesAndHeap_AreShownIfThereAreAny)
{
    EXPECT_FALSE(Shows("hooks"));
    EXPECT_FALSE(Shows("heap"));
    Tell(R"({"type":"state","time":5,"part":"hooks","from":0,"items":[{"hook":"OnDialogActivation","id":1,)"
         R"("name":"DLG_A","calls":3,"time":120,"most":50}],"more":false})");
    Tell(R"({"type":"state","time":5,"part":"heap","from":0,"items":[{"used":100,"most":200,"size":4096}],)"
         R"("more":false})");
    const std::string kState = Join(DescribeState(m_kReader.GetState(), 5, COLUMN_SITUATION));
    EXPECT_NE(std::string::npos,
              kState.find("hooks\n0   OnDialogActivation DLG_A\n10     3 calls, 120 in all, "
                          "at most 50\n11 heap\n0   100 bytes, at most 200 of 4096\n"))
        << kState;
}

TEST_F(CAttachedDeskTest, View_HasStateObjectsAndTraceInPanes)
{
    CSampleDevice kDevice;
    CSimulation kSimulation(kDevice, [this](const std::string& kLine) { Tell(kLine); });
    kSimulation.Run("power-on");
    kSimulation.Run("touch OBJ_1");
    kSimulation.Run("touch OBJ_1");
    kSimulation.Run("advance 300");
    kSimulation.Run("state");
    Tell(
        R"({"type":"trace","time":300,"level":"ERROR","text":"CGUIDialogManager::CreateDialog: It failed!\n"})");
    for (const eC_Char* pcText : {" ATTACHED: :4000", "live   0.300 s   ? help", "current dialog", "DLG_B",
                                  "history, most recent first", "DLG_A ODA_INVISIBLE", "POP_1 prio",
                                  "0.700 s left, deleted on close", "tree, in drawing order", "OBJ_1",
                                  "dialogs registered", "    0.300 !! ERROR: CreateDialog: It failed!"})
    {
        EXPECT_TRUE(Frame(80, 50).find(pcText) != std::string::npos) << pcText << Frame(80, 50);
    }
}

TEST_F(CAttachedDeskTest, Trace_HasEverythingButStates)
{
    TellTrace("INFO", "one\\n");
    Tell(
        R"({"type":"trace","time":1,"level":"HAZARD","text":"Nobody.","hazard":"no-focus","about":{"id":0,"name":"NO_HANDLE"}})");
    Tell(R"({"type":"input","time":1,"dropped":2,"text":"key ok"})");
    Tell(R"({"type":"start","time":0,"memory":512})");
    Tell(R"({"type":"turn","time":0})");
    Tell(R"({"type":"reply","time":1,"line":1,"result":"done","cut":true})");
    Tell(R"({"type":"reply","time":1,"line":2,"result":""})");
    Tell(R"({"type":"reply","time":1,"line":3,"error":"expected more"})");
    m_kDesk.Complain("line 8: expected JSON");
    Lines kShown;
    for (const TraceItem_t& kItem : m_kDesk.GetTrace())
    {
        kShown.push_back(std::to_string(kItem.m_eKind) + kItem.m_kLevel + " " + kItem.m_kText);
    }
    EXPECT_EQ(
        (Lines{"0INFO one\n", "0HAZARD no-focus NO_HANDLE: Nobody.", "2 # 2 lines were dropped", "1 key ok",
               "2 # the program records its run", "3 done...", "4 expected more", "4 line 8: expected JSON"}),
        kShown);
    EXPECT_TRUE(Shows("!! expected more"));
    EXPECT_TRUE(Shows(" !  HAZARD: no-focus"));
}

TEST_F(CAttachedDeskTest, LevelAndFilter_ChooseWhatIsShown)
{
    TellTrace("INFO", "hook one\\n");
    TellTrace("WARNING", "hook two\\n");
    TellTrace("ERROR", "three\\n");
    Press({"e"});
    EXPECT_FALSE(Shows("hook one"));
    EXPECT_TRUE(Shows("hook two") && Shows("three") && Shows("trace: warnings and errors"));
    Press({"e"});
    EXPECT_TRUE(!Shows("hook two") && Shows("three"));
    Press({"e", "/"});
    Type("HOOK");
    EXPECT_TRUE(Shows("show only lines with: HOOK"));
    Press({"Enter"});
    EXPECT_TRUE(Shows("hook one") && Shows("hook two") && !Shows("three"));
    EXPECT_TRUE(Shows("trace, with 'HOOK'"));
}

TEST_F(CAttachedDeskTest, ScrolledTrace_StaysWhereItIsWhenLinesCome)
{
    for (eC_UInt uiLine = 0; uiLine < 40; ++uiLine)
    {
        TellTrace("INFO", "entry " + std::to_string(uiLine) + ".\\n");
    }
    EXPECT_TRUE(Shows("entry 39."));
    Press({"PageUp"});
    EXPECT_TRUE(Shows("entry 34.") && !Shows("entry 35.") && Shows("5 newer below"));
    TellTrace("INFO", "entry 40.\\n");
    EXPECT_TRUE(Shows("entry 34.") && !Shows("entry 35.") && Shows("6 newer below"));
    m_kDesk.ScrollTrace(1000);
    EXPECT_EQ(41, m_kDesk.GetTracePane().GetScroll());
    ScrollAttached(m_kDesk, 24, 23, 1000);
    EXPECT_TRUE(Shows("entry 40."));
    ScrollAttached(m_kDesk, 24, 2, 3);
    EXPECT_EQ(3, m_kDesk.GetStateScroll());
    Press({"I"});
    EXPECT_EQ(0, m_kDesk.GetStateScroll());
    Press({"i", "i", "i", "i", "i", "i", "i", "i", "i", "i", "i", "i"});
    EXPECT_FALSE(Shows("current dialog"));
}

TEST_F(CAttachedDeskTest, OldestEntries_AreForgotten)
{
    for (std::size_t uiLine = 0; uiLine <= CAttachedDesk::cuiMostItems; ++uiLine)
    {
        TellTrace("INFO", std::to_string(uiLine));
    }
    EXPECT_EQ(CAttachedDesk::cuiMostItems, m_kDesk.GetTrace().size());
    EXPECT_EQ("1", m_kDesk.GetTrace().front().m_kText);
}

TEST_F(CAttachedDeskTest, LineThatIsTyped_IsSentAndShownOnce)
{
    Press({":"});
    Type("key ok");
    EXPECT_TRUE(Shows(":key ok"));
    Press({"Enter", ":", "Enter", ":"});
    Type("x");
    Press({"Escape"});
    EXPECT_EQ(Lines{"key ok"}, m_kDesk.TakeLines());
    EXPECT_EQ(Lines{}, m_kDesk.TakeLines());
    // A program that records its input tells the line, too.
    Tell(R"({"type":"input","time":1,"text":"key ok"})");
    Tell(R"({"type":"reply","time":1,"line":1,"result":""})");
    EXPECT_EQ(1U, m_kDesk.GetTrace().size());
    Tell(R"({"type":"input","time":1,"text":"key ok"})");
    EXPECT_EQ(2U, m_kDesk.GetTrace().size());
}

TEST_F(CAttachedDeskTest, ProgramWhoseLinesArriveOnStandardInput_TakesNoLine)
{
    CAttachedDesk kDesk(m_kReader, "-", false);
    kDesk.PressKey(":");
    EXPECT_EQ(CAttachedDesk::MODE_VIEW, kDesk.GetMode());
    EXPECT_EQ("nothing can be sent to a program whose lines arrive on standard input", kDesk.GetMessage());
}

TEST_F(CAttachedDeskTest, ProgramThatIsGone_LeavesWhatItHasTold)
{
    TellTrace("INFO", "the last words");
    Press({":", "x"});
    m_kDesk.SetGone();
    EXPECT_TRUE(Shows("the last words") && Shows("gone   1.200 s"));
    EXPECT_TRUE(Shows("the program is gone; this is what it has told. q leaves"));
    Press({":"});
    EXPECT_EQ("the program is gone", m_kDesk.GetMessage());
    EXPECT_FALSE(m_kDesk.IsOver());
    Press({"q"});
    EXPECT_TRUE(m_kDesk.IsOver());

    CAttachedDesk kOther(m_kReader, "-", false);
    kOther.PressKey(":"); // which is refused
    kOther.SetGone();
    EXPECT_EQ("the program is gone; this is what it has told. q leaves", kOther.GetMessage());
    kOther.Complain("the last line is not complete");
    kOther.SetGone();
    EXPECT_EQ("the last line is not complete", kOther.GetMessage());
}

TEST_F(CAttachedDeskTest, Help_NamesEveryKey)
{
    Press({"?"});
    for (const DeskKey_t& kKey : CAttachedDesk::GetKeys())
    {
        EXPECT_TRUE(Shows(kKey.m_pcKey) && Shows(kKey.m_pcText)) << kKey.m_pcKey;
    }
    Press({"q"});
    EXPECT_FALSE(m_kDesk.IsOver());
    EXPECT_FALSE(Shows("help: any key"));
    Press({"z"});
    EXPECT_EQ("z does nothing here; ? lists the keys", m_kDesk.GetMessage());
}

TEST_F(CAttachedDeskTest, SizesOfAllKinds_AreDrawn)
{
    TellTrace("INFO", "entry");
    for (const eC_Char* pcKey : {"", "?", "x", "/", "Enter", ":"})
    {
        m_kDesk.PressKey(pcKey);
        for (const eC_Int iWidth : {0, 1, 2, 10, 79, 80, 300})
        {
            for (const eC_Int iHeight : {0, 1, 2, 3, 10, 24, 100})
            {
                const CTextScreen kScreen = DrawAttached(m_kDesk, iWidth, iHeight);
                EXPECT_EQ(iWidth, kScreen.GetWidth());
                EXPECT_EQ(iHeight, kScreen.GetHeight());
            }
        }
    }
}
