// SPDX-License-Identifier: MIT
#include "Flow/FlowReload.h"

#include "FlowTexts.h"
#include "Scenario/StatePrinter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace
{
using Lines = std::vector<std::string>;

constexpr const eC_Char* cpcStatements =
    "<Flag name='f'/><Timer name='t' time='1000'/><DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
    "<On button='BTN_A'><create dialog='DLG_B' action='ODA_DELETE'/><set flag='f'/><start timer='t'/></On>"
    "<On button='BTN_B'><create dialog='DLG_C'/><show-popup popup='POP_P'/></On><On key='back'><back/></On>";

/** A flow in a file, which runs. */
class CFlowReloadTest : public ::testing::Test
{
protected:
    CFlowReloadTest()
    {
        // A folder of its own for each test, because several programs may run at once.
        std::string kPattern = (std::filesystem::temp_directory_path() / "flow-XXXXXX").string();
        m_kFolder = mkdtemp(kPattern.data());
    }

    ~CFlowReloadTest() override { std::filesystem::remove_all(m_kFolder); }

    void Write(const std::string& kName, const std::string& kText) const
    {
        std::ofstream(GetPath(kName), std::ios::binary) << kText;
    }

    std::string GetPath(const std::string& kName) const { return (m_kFolder / kName).string(); }

    /** Starts the flow with statements, and executes lines. */
    void Start(const std::string& kFlow, const Lines& kLines)
    {
        Write("Test.xml", kFlow);
        std::string kMistake;
        m_pkApplication = std::make_unique<CFlowApplication>(ReadFlow(GetPath("Test.xml"), kMistake));
        ASSERT_EQ("", kMistake);
        m_pkReload = std::make_unique<CFlowReload>(*m_pkApplication);
        m_pkSimulation = std::make_unique<CSimulation>(*m_pkApplication);
        for (const std::string& kLine : kLines)
        {
            EXPECT_TRUE(m_pkSimulation->Run(kLine).m_bIsExecuted) << kLine;
        }
    }

    /** @return what has happened, and the text */
    std::string Look()
    {
        static const eC_Char* const s_apcNews[] = {"none", "changed: ", "mistake: "};
        std::string kText;
        const CSimulatedSource::ENews eNews = m_pkReload->Look(*m_pkSimulation, kText);
        return s_apcNews[eNews] + kText;
    }

    std::string Change(const std::string& kFlow)
    {
        Write("Test.xml", kFlow);
        return Look();
    }

    std::string State()
    {
        return PrintState(m_pkApplication->GetManager(),
                          STATE_CURRENT | STATE_HISTORY | STATE_ACTIVE_POPUPS | STATE_FOCUS);
    }

    std::filesystem::path m_kFolder;
    std::unique_ptr<CFlowApplication> m_pkApplication;
    std::unique_ptr<CFlowReload> m_pkReload;
    std::unique_ptr<CSimulation> m_pkSimulation;
};

constexpr const eC_Char* cpcDeepState = "current: DLG_C after ODA_INVISIBLE\n"
                                        "history: DLG_B ODA_INVISIBLE focus BTN_B (after ODA_DELETE)\n"
                                        "history: DLG_A ODA_DELETE focus BTN_A (after ODA_NOTHING)\n"
                                        "active: POP_P prio 5, 0 ms, delete on close, shown\n";
} // namespace

TEST_F(CFlowReloadTest, UnchangedFiles_AreNoNews)
{
    Start(MakeFlow(cpcStatements), {"power-on", "key ok"});
    EXPECT_EQ("none", Look());
    EXPECT_EQ("none", Change(MakeFlow(cpcStatements)));
    EXPECT_EQ((Lines{"power-on", "key ok"}), m_pkSimulation->GetLines());
}

TEST_F(CFlowReloadTest, ChangedFlow_HasTheSameHistoryAfterTheSameInput)
{
    Start(MakeFlow(cpcStatements), {"power-on", "key ok", "key ok"});
    EXPECT_EQ(cpcDeepState, State());
    EXPECT_EQ("changed: the flow has changed",
              Change(MakeFlow(std::string(cpcStatements) + "<Flag name='g' value='true'/>")));
    EXPECT_EQ(cpcDeepState, State());
    EXPECT_EQ((Lines{"power-on", "key ok", "key ok"}), m_pkSimulation->GetLines());
    EXPECT_TRUE(m_pkApplication->GetRuntime().IsSet(0));
    EXPECT_TRUE(m_pkApplication->GetRuntime().IsSet(1));
    EXPECT_EQ("none", Look());
    m_pkSimulation->GoTo(1);
    EXPECT_EQ("current: DLG_A after ODA_NOTHING\nfocus: BTN_A\n", State());
}

TEST_F(CFlowReloadTest, LinesThatAreWrongNow_AreLeftOut)
{
    const std::string kSignal = "<Signal name='door'/><On signal='door'><show-popup popup='POP_P'/></On>";
    Start(MakeFlow(cpcStatements + kSignal), {"power-on", "key door", "key ok"});
    EXPECT_EQ("changed: the flow has changed; lines that are wrong now were left out: 1",
              Change(MakeFlow(cpcStatements)));
    EXPECT_EQ((Lines{"power-on", "key ok"}), m_pkSimulation->GetLines());
    EXPECT_EQ("current: DLG_B after ODA_DELETE\n"
              "history: DLG_A ODA_DELETE focus BTN_A (after ODA_NOTHING)\nfocus: BTN_B\n",
              State());
}

TEST_F(CFlowReloadTest, KeysThatLeadElsewhereNow_DoNotCostTheHistory)
{
    Start(MakeFlow(cpcStatements), {"power-on", "key ok", "key ok"});
    std::string kFlow = MakeFlow(cpcStatements);
    const std::string kFirst = "<Screen><Button id='BTN_A'/>";
    kFlow.replace(kFlow.find(kFirst), kFirst.size(), "<Screen><Button id='BTN_NEW'/><Button id='BTN_A'/>");
    EXPECT_EQ("changed: the flow has changed; the history is built again", Change(kFlow));
    EXPECT_EQ("current: DLG_C after ODA_INVISIBLE\n"
              "history: DLG_B ODA_INVISIBLE focus BTN_B (after ODA_DELETE)\n"
              "history: DLG_A ODA_DELETE focus BTN_NEW (after ODA_NOTHING)\n"
              "active: POP_P prio 5, 0 ms, delete on close, shown\n",
              State());
    EXPECT_TRUE(m_pkApplication->GetRuntime().IsSet(0));
    EXPECT_TRUE(m_pkApplication->GetRuntime().IsRunning(0));
    // The lines are a session that leads to this state from the start.
    const Lines kLines = m_pkSimulation->GetLines();
    EXPECT_EQ((Lines{"power-on", "key ok", "key ok", "ClearDialogHistory 0 true true",
                     "CreateDialog DLG_A ODA_NOTHING", "CreateDialog DLG_B ODA_DELETE",
                     "CreateDialog DLG_C ODA_INVISIBLE", "set f true", "start t", "ShowPopup POP_P"}),
              kLines);
    const std::string kState = State();
    m_pkSimulation->GoTo(0);
    m_pkSimulation->GoTo(kLines.size());
    EXPECT_EQ(kState, State());
}

TEST_F(CFlowReloadTest, DialogThatIsGone_IsLeftOutOfTheHistory)
{
    Start(MakeFlow(cpcStatements), {"power-on", "key ok", "key ok", "ClosePopup POP_P"});
    EXPECT_EQ("changed: the flow has changed; the history is built again", Change(MakeFlow("")));
    EXPECT_EQ("current: DLG_B after ODA_DELETE\n"
              "history: DLG_A ODA_DELETE focus BTN_A (after ODA_NOTHING)\nfocus: BTN_B\n",
              State());
}

TEST_F(CFlowReloadTest, Mistake_KeepsTheLastGoodFlowUntilItIsRight)
{
    Start(MakeFlow(cpcStatements), {"power-on", "key ok"});
    const std::string kState = State();
    std::string kWrong = MakeFlow(cpcStatements);
    kWrong.replace(kWrong.find("<back/>"), 7, "<beck/>");
    const std::string kMistake = Change(kWrong);
    EXPECT_EQ("mistake: " + GetPath("Test.xml") + ":7:", kMistake.substr(0, kMistake.find(":7:") + 3));
    EXPECT_NE(std::string::npos, kMistake.find("unknown action 'beck'; expected one of ")) << kMistake;
    EXPECT_EQ(kState, State());
    EXPECT_EQ("none", Look());
    EXPECT_TRUE(m_pkSimulation->Run("key ok").m_bIsExecuted);
    EXPECT_EQ(cpcDeepState, State());
    EXPECT_EQ("changed: the flow has changed", Change(MakeFlow(cpcStatements)));
    EXPECT_EQ(cpcDeepState, State());
}

TEST_F(CFlowReloadTest, FileThatIsGone_IsAMistake)
{
    Start(MakeFlow(cpcStatements), {"power-on"});
    std::filesystem::remove(GetPath("Test.xml"));
    const std::string kMistake = Look();
    EXPECT_EQ("mistake: " + GetPath("Test.xml") +
                  ":1:1: cannot open (No such file or directory); expected a readable file",
              kMistake);
    EXPECT_EQ("none", Look());
}

TEST_F(CFlowReloadTest, DialogFile_IsFollowedToo)
{
    Write("C.xml", "<Screen><Button id='BTN_C'/></Screen>");
    const std::string kFlow = MakeFlow(
        "<DialogDefinition id='DLG_C' file='C.xml'/><On button='BTN_A'><create dialog='DLG_C'/></On>");
    Start(kFlow, {"power-on", "key ok"});
    EXPECT_NE(std::string::npos, State().find("focus: BTN_C\n"));
    Write("C.xml", "<Screen><Button id='BTN_D'/></Screen>");
    EXPECT_EQ("changed: the flow has changed", Look());
    EXPECT_NE(std::string::npos, State().find("focus: BTN_D\n"));
    Write("C.xml", "<Screen><Button id='BTN_D'></Screen>");
    const std::string kMistake = Look();
    EXPECT_EQ("mistake: " + GetPath("C.xml") + ":1:", kMistake.substr(0, kMistake.find(":1:") + 3));
    EXPECT_NE(std::string::npos, State().find("focus: BTN_D\n"));
}

TEST_F(CFlowReloadTest, DialogFileThatWasWrongBefore_DoesNotHoldUpAChange)
{
    const std::string kFile = "<DialogDefinition id='DLG_C' file='C.xml'/>";
    Start(MakeFlow(kFile), {"power-on"});
    EXPECT_EQ("changed: the flow has changed", Change(MakeFlow(kFile + "<Flag name='f'/>")));
    Write("C.xml", "<Screen><Button id='BTN_C'/></Screen>");
    EXPECT_EQ("changed: the flow has changed", Look());
}

TEST_F(CFlowReloadTest, ChangeInThePast_KeepsTheLaterLines)
{
    Start(MakeFlow(cpcStatements), {"power-on", "key ok", "key ok"});
    m_pkSimulation->GoTo(2);
    EXPECT_EQ("changed: the flow has changed",
              Change(MakeFlow(std::string(cpcStatements) + "<Flag name='g'/>")));
    EXPECT_EQ(2U, m_pkSimulation->GetPosition());
    EXPECT_EQ(3U, m_pkSimulation->GetLines().size());
    m_pkSimulation->GoTo(3);
    EXPECT_EQ(cpcDeepState, State());
}
