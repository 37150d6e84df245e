// SPDX-License-Identifier: MIT
#include "Flow/FlowApplication.h"

#include "Core/GUIEventHandler.h"
#include "FlowTexts.h"
#include "Simulator/Simulation.h"

#include <gtest/gtest.h>

namespace
{
std::string NameOf(ObjectHandle_t eHandle)
{
    const eC_Char* pcName = GetObjectHandleName(eHandle);
    return pcName != nullptr ? pcName : std::to_string(eHandle);
}

/** A flow that runs. */
class CRunningFlow
{
public:
    explicit CRunningFlow(const std::string& kStatements)
        : m_kApplication(ReadText(MakeFlow(kStatements))), m_kSimulation(m_kApplication)
    {
        Run("power-on");
    }

    void Run(const std::string& kLine)
    {
        const SimulatedResult_t kResult = m_kSimulation.Run(kLine);
        EXPECT_TRUE(kResult.m_bIsExecuted) << kResult.m_kText;
        m_kResult = kResult.m_kText;
    }

    std::string GetCurrent() { return NameOf(m_kApplication.GetManager().GetCurrentDialogID()); }

    std::string GetFocus()
    {
        const CGUIObject* pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
        return pkFocussed != nullptr ? NameOf(pkFocussed->GetID()) : "none";
    }

    /** @return the ERROR entries, without their ends */
    std::string GetErrors()
    {
        std::string kErrors;
        for (const SimulatedTrace_t& kTrace : m_kSimulation.GetTrace())
        {
            kErrors += kTrace.m_kEntry.m_kPrefix == "ERROR: " ? kTrace.m_kEntry.m_kMessage : "";
        }
        return kErrors;
    }

    CFlowApplication m_kApplication;
    CSimulation m_kSimulation;
    std::string m_kResult;
};
} // namespace

TEST(CFlowApplicationTest, PowerOn_ShowsTheFirstDialog)
{
    CRunningFlow kFlow("");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    EXPECT_EQ("BTN_A", kFlow.GetFocus());
    EXPECT_EQ("", kFlow.GetErrors());
}

TEST(CFlowApplicationTest, AButtonAndAKey_DoWhatTheFlowSays)
{
    CRunningFlow kFlow("<On button='BTN_A2'><create dialog='DLG_B'/></On><On key='back'><back/></On>");
    kFlow.Run("key next");
    EXPECT_EQ("BTN_A2", kFlow.GetFocus());
    kFlow.Run("key ok");
    EXPECT_EQ("DLG_B", kFlow.GetCurrent());
    EXPECT_EQ(1U, kFlow.m_kApplication.GetManager().GetHistoryStackSize());
    kFlow.Run("key back");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    EXPECT_EQ("BTN_A2", kFlow.GetFocus());
    EXPECT_EQ("", kFlow.GetErrors());
}

TEST(CFlowApplicationTest, TheFirstReactionWhoseConditionHolds_Happens)
{
    CRunningFlow kFlow("<Flag name='f'/><On key='back' when='f DLG_A'><create dialog='DLG_B'/></On>"
                       "<On key='back' when='!past:DLG_A'><set flag='f'/></On>"
                       "<On key='back'><back/></On>");
    kFlow.Run("key back");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    kFlow.Run("key back");
    EXPECT_EQ("DLG_B", kFlow.GetCurrent());
    kFlow.Run("key back");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
}

TEST(CFlowApplicationTest, TheConditionOfAnAction_IsReadWhenItsTurnComes)
{
    CRunningFlow kFlow("<Flag name='f'/><On key='back'><set flag='f' value='toggle'/>"
                       "<create dialog='DLG_B' when='f'/></On>");
    kFlow.Run("key back");
    EXPECT_EQ("DLG_B", kFlow.GetCurrent());
}

TEST(CFlowApplicationTest, AKeyWithoutReaction_HasNoEffect)
{
    CRunningFlow kFlow("");
    kFlow.Run("key back");
    EXPECT_EQ("no effect", kFlow.m_kResult);
}

TEST(CFlowApplicationTest, ATimer_RunsOnceAfterItsStart)
{
    CRunningFlow kFlow("<Timer name='t' time='1000'/><On key='back'><start timer='t'/></On>"
                       "<On timer='t'><create dialog='DLG_B'/></On>");
    kFlow.Run("advance 5000");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    kFlow.Run("key back");
    kFlow.Run("advance 999");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    kFlow.Run("advance 1");
    EXPECT_EQ("DLG_B", kFlow.GetCurrent());
    kFlow.Run("advance 5000");
    EXPECT_EQ(1U, kFlow.m_kApplication.GetManager().GetHistoryStackSize());
}

TEST(CFlowApplicationTest, StartingATimerAgain_BeginsItsTimeAgain)
{
    CRunningFlow kFlow("<Timer name='t' time='1000'/><On key='back'><start timer='t'/></On>"
                       "<On timer='t'><create dialog='DLG_B'/></On>");
    kFlow.Run("key back");
    kFlow.Run("advance 600");
    kFlow.Run("key back");
    kFlow.Run("advance 999");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    kFlow.Run("advance 1");
    EXPECT_EQ("DLG_B", kFlow.GetCurrent());
}

TEST(CFlowApplicationTest, ARepeatingTimer_RunsUntilItIsStopped)
{
    CRunningFlow kFlow("<Timer name='t' time='100' repeats='true' starts='true'/>"
                       "<On timer='t' when='past:DLG_A'><stop timer='t'/></On>"
                       "<On timer='t'><create dialog='DLG_B'/></On>");
    kFlow.Run("advance 100");
    EXPECT_EQ("DLG_B", kFlow.GetCurrent());
    EXPECT_TRUE(kFlow.m_kApplication.GetRuntime().IsRunning(0));
    kFlow.Run("advance 100");
    EXPECT_FALSE(kFlow.m_kApplication.GetRuntime().IsRunning(0));
}

TEST(CFlowApplicationTest, APointInTime_ComesOnce)
{
    CRunningFlow kFlow("<At time='300'><show-popup popup='POP_P'/></At>");
    kFlow.Run("advance 299");
    EXPECT_EQ(0U, kFlow.m_kApplication.GetMemory().m_kPopups.size());
    kFlow.Run("advance 1");
    EXPECT_EQ(1U, kFlow.m_kApplication.GetMemory().m_kPopups.size());
}

TEST(CFlowApplicationTest, FocusHideAndDestroy_ActOnTheObjectInTheCurrentDialogFirst)
{
    CRunningFlow kFlow(
        "<DialogDefinition id='DLG_C'><Screen><Button id='BTN_A'/><Button id='BTN_A2'/></Screen>"
        "</DialogDefinition><Signal name='focus'/><Signal name='hide'/><Signal name='destroy'/>"
        "<On key='back'><create dialog='DLG_C'/></On>"
        "<On signal='focus'><focus object='BTN_A2'/></On>"
        "<On signal='hide'><hide object='BTN_A2'/></On>"
        "<On signal='destroy'><destroy object='BTN_A'/></On>");
    kFlow.Run("key back");
    kFlow.Run("key focus");
    EXPECT_EQ("BTN_A2", kFlow.GetFocus());
    EXPECT_TRUE(CGUIEventHandler::GetInstance().GetFocussedObject()->IsDescendantOf(
        kFlow.m_kApplication.GetManager().GetCurrentDialog()));
    kFlow.Run("key hide");
    EXPECT_EQ("none", kFlow.GetFocus());
    EXPECT_EQ("", kFlow.GetErrors());
    kFlow.Run("key focus");
    EXPECT_EQ("CFlowRuntime::Run: Test.xml:7:237: BTN_A2: the object does not take the focus.\n",
              kFlow.GetErrors().substr(0, kFlow.GetErrors().find('\n') + 1));
    kFlow.Run("key destroy");
    kFlow.Run("key destroy");
    EXPECT_EQ(nullptr, CGUI::GetInstance().GetObjectByID(kFlow.m_kApplication.GetFlow().m_eHome, true));
}

TEST(CFlowApplicationTest, AStepwiseBackToThatWouldNeverEnd_IsReportedAndStopped)
{
    CRunningFlow kFlow("<Signal name='destroy'/><DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
                       "<On signal='destroy'><destroy object='DLG_B'/></On>"
                       "<On button='BTN_A'><create dialog='DLG_B'/></On>"
                       "<On button='BTN_B'><create dialog='DLG_C'/></On>"
                       "<On key='back'><back-to dialog='DLG_A' stepwise='true'/></On>");
    kFlow.Run("key ok");
    kFlow.Run("key ok");
    kFlow.Run("key destroy");
    EXPECT_FALSE(kFlow.m_kApplication.GetRuntime().IsHanging());
    kFlow.Run("key back");
    EXPECT_TRUE(kFlow.m_kApplication.GetRuntime().IsHanging());
    EXPECT_NE(std::string::npos, kFlow.GetErrors().find("DLG_A: going back stepwise never ends.\n"));
}

TEST(CFlowApplicationTest, AStepwiseBackTo_BringsBackEachDialog)
{
    CRunningFlow kFlow("<DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
                       "<On button='BTN_A'><create dialog='DLG_B'/></On>"
                       "<On button='BTN_B'><create dialog='DLG_C' action='ODA_DELETE'/></On>"
                       "<On key='back'><back-to dialog='DLG_A' stepwise='true'/></On>");
    kFlow.Run("key ok");
    kFlow.Run("key ok");
    kFlow.Run("key back");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    EXPECT_EQ("", kFlow.GetErrors());
}

TEST(CFlowApplicationTest, ADialogWhoseFileIsWrong_IsAnErrorWhenItIsShown)
{
    CRunningFlow kFlow("<DialogDefinition id='DLG_C' file='/nowhere/C.xml'/>"
                       "<On key='back'><create dialog='DLG_C'/></On>");
    EXPECT_EQ("", kFlow.GetErrors());
    kFlow.Run("key back");
    EXPECT_EQ("DLG_A", kFlow.GetCurrent());
    EXPECT_EQ(0U, kFlow.GetErrors().find("CFlowDialogReader::Read: /nowhere/C.xml:1:1: cannot open (No such "
                                         "file or directory); expected a readable file.\n"));
}

TEST(CFlowApplicationTest, FlagsAndTimers_CanBeSetByLines)
{
    CRunningFlow kFlow("<Flag name='f'/><Timer name='t' time='1000'/>");
    kFlow.Run("set f true");
    kFlow.Run("start t");
    EXPECT_TRUE(kFlow.m_kApplication.GetRuntime().IsSet(0));
    EXPECT_TRUE(kFlow.m_kApplication.GetRuntime().IsRunning(0));
    kFlow.Run("set f false");
    kFlow.Run("stop t");
    EXPECT_FALSE(kFlow.m_kApplication.GetRuntime().IsSet(0));
    EXPECT_FALSE(kFlow.m_kApplication.GetRuntime().IsRunning(0));
    EXPECT_FALSE(kFlow.m_kSimulation.Run("set g true").m_bIsExecuted);
    EXPECT_FALSE(kFlow.m_kSimulation.Run("set f on").m_bIsExecuted);
    EXPECT_FALSE(kFlow.m_kSimulation.Run("start f").m_bIsExecuted);
}

TEST(CFlowApplicationTest, AFlowWithoutFlagsAndTimers_HasNoCommandsForThem)
{
    CRunningFlow kFlow("");
    for (const std::string& kUsage : kFlow.m_kSimulation.GetUsages())
    {
        const std::string kName = kUsage.substr(0, kUsage.find(' '));
        EXPECT_TRUE(kName != "set" && kName != "start" && kName != "stop") << kUsage;
    }
}
