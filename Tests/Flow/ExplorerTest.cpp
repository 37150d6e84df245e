// SPDX-License-Identifier: MIT
#include "CheckedFlow.h"
#include "Flow/Check/CheckCommand.h"
#include "Flow/Check/CheckReport.h"

#include <gtest/gtest.h>

#include <unistd.h>

namespace
{
/** Two popups whose times run out: which one first depends on the pause between two keys. */
std::string MakeTwoTimers(const eC_Char* pcFirst, const eC_Char* pcSecond)
{
    return MakeFlow(std::string("<Timer name='t' time='") + pcFirst + "'/><Timer name='u' time='" + pcSecond +
                    "'/><Flag name='a'/><Flag name='b'/><Flag name='ab'/><Flag name='ba'/>"
                    "<On button='BTN_A'><start timer='t'/></On><On button='BTN_A2'><start timer='u'/></On>"
                    "<On timer='t'><set flag='ba' when='b'/><set flag='a'/></On>"
                    "<On timer='u'><set flag='ab' when='a'/><set flag='b'/></On>"
                    "<Never name='first t' when='ab'/><Never name='first u' when='ba'/>");
}

/** An application whose key back never comes back from the second dialog. */
class CHangingApplication : public CFlowApplication
{
public:
    explicit CHangingApplication(const std::shared_ptr<const FlowModel_t>& pkFlow) : CFlowApplication(pkFlow)
    {
    }

    eC_Bool PressKey(eC_UInt uiKey) override
    {
        volatile eC_Bool bIsHanging = uiKey == 2 && GetManager().GetHistoryStackSize() != 0;
        while (bIsHanging)
        {
        }
        return CFlowApplication::PressKey(uiKey);
    }
};

/** Checks it, with the report on standard error, where a death test reads. */
void CheckHangingApplication(eC_Bool bWritesJSON)
{
    CHangingApplication kApplication(ReadText(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>")));
    CFlowSubject kSubject(kApplication);
    CheckOptions_t kOptions;
    kOptions.m_bWritesJSON = bWritesJSON;
    kOptions.m_uiLongestOperation = 1;
    dup2(STDERR_FILENO, STDOUT_FILENO);
    RunCheck(kSubject, kOptions);
}
} // namespace

TEST(CExplorerTest, EveryOrderOfTimersThatPausesCanBringAbout_IsExplored)
{
    CCheckedFlow kFlow(MakeTwoTimers("1000", "5000"));
    EXPECT_EQ("first t (never ab): not in DLG_A: ok, next, ok, t runs out, u runs out\n"
              "first u (never ba): not in DLG_A: next, ok, next, ok, u runs out, t runs out\n",
              kFlow.GetFindings(10));
    kFlow.ExpectThatScenariosLeadToTheirStates(10);
}

TEST(CExplorerTest, TheScenarioNamesTheTimersAndHasTheirPauses)
{
    CCheckedFlow kFlow(MakeFlow("<Timer name='t' time='1000'/><On button='BTN_A'><start timer='t'/></On>"
                                "<On timer='t'><create dialog='DLG_B'/></On><Never when='DLG_B'/>"));
    EXPECT_EQ("power-on\nadvance 1\nkey ok\n# t runs out\nadvance 1000\n", kFlow.GetScenario(10));
}

TEST(CExplorerTest, AnOrderThatNoPauseCanBringAbout_IsNotExplored)
{
    // Both start with the same key, so the shorter one always runs out first.
    CCheckedFlow kFlow(MakeFlow("<Timer name='t' time='1000'/><Timer name='u' time='1500'/><Flag name='b'/>"
                                "<On button='BTN_A'><set flag='b' value='false'/><start timer='t'/>"
                                "<start timer='u'/></On><On timer='u'><set flag='b'/></On>"
                                "<On timer='t'><create dialog='DLG_B' when='b'/></On><Never when='DLG_B'/>"));
    EXPECT_EQ("", kFlow.GetFindings(10));
}

TEST(CExplorerTest, TimersThatMustRunOutTogether_RunOutTogether)
{
    CCheckedFlow kFlow(MakeFlow("<Timer name='t' time='1000'/><Timer name='u' time='1000'/><Flag name='a'/>"
                                "<On button='BTN_A'><start timer='t'/><start timer='u'/></On>"
                                "<On timer='t'><set flag='a'/></On>"
                                "<On timer='u'><create dialog='DLG_B' when='a'/></On><Never when='DLG_B'/>"));
    EXPECT_EQ("never DLG_B: not in DLG_B: ok, t runs out\n", kFlow.GetFindings(10));
    kFlow.ExpectThatScenariosLeadToTheirStates(10);
}

TEST(CExplorerTest, APointInTime_MayComeInEveryState)
{
    CCheckedFlow kFlow(
        MakeFlow("<At time='60000'><show-popup popup='POP_P'/></At>"
                 "<On button='BTN_A'><create dialog='DLG_B'/></On>"
                 "<Never name='in A' when='DLG_A POP_P'/><Never name='in B' when='DLG_B POP_P'/>"));
    EXPECT_EQ("in A (never DLG_A POP_P): not in DLG_A: at-60000 runs out\n"
              "in B (never DLG_B POP_P): not in DLG_B: ok, at-60000 runs out\n",
              kFlow.GetFindings(10));
    EXPECT_TRUE(kFlow.m_kSpace.m_bIsComplete);
}

TEST(CExplorerTest, TheBoundIsStated)
{
    ExplorerBounds_t kBounds;
    kBounds.m_uiDepth = 1;
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<On button='BTN_B'><show-popup popup='POP_P'/></On>"),
                       kBounds);
    EXPECT_FALSE(kFlow.m_kSpace.m_bIsComplete);
    EXPECT_EQ("up to depth 1", DescribeBound(kFlow.m_kSpace));
    EXPECT_EQ("POP_P was not reached\n", kFlow.GetFindings(1));
}

TEST(CExplorerTest, TouchesAreTried_OnlyWhereAModalPopupLetsThem)
{
    const std::string kStatements =
        "<PopupDefinition id='POP_M'><Popup modal='true'><Button id='BTN_M'/></Popup></PopupDefinition>"
        "<On button='BTN_A'><show-popup popup='POP_M'/></On><On button='BTN_M'><close-popup "
        "popup='POP_M'/></On>"
        "<On button='BTN_A2'><create dialog='DLG_B'/></On><Never when='DLG_B POP_M'/>";
    std::string kText = MakeFlow(kStatements);
    kText.replace(kText.find("home="), 0, "touch='true' ");
    CCheckedFlow kFlow(kText);
    EXPECT_EQ("", kFlow.GetFindings(10));
    EXPECT_EQ("from DLG_B no keys lead to DLG_A: BTN_A2\n", kFlow.GetFindings(2));
}

TEST(CExplorerTest, ASignal_IsNoKeyOfTheUser)
{
    CCheckedFlow kFlow(MakeFlow("<Signal name='s'/><On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<On signal='s'><back/></On><Within reach='DLG_A' keys='3'/>"));
    EXPECT_EQ("", kFlow.GetFindings(2));
    EXPECT_EQ("DLG_A within 3 keys: from DLG_B no keys are enough: ok\n", kFlow.GetFindings(10));
}

TEST(CExplorerTest, TheWorstCase_IsMeasuredWithTheKeysThatLeadThere)
{
    CCheckedFlow kFlow(
        MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                 "<On button='BTN_B'><show-popup popup='POP_P'/></On><On key='back'><back/></On>"));
    EXPECT_EQ("6 objects: ok, ok\n1 history entries: ok\n1 popups listed: ok, ok\n", kFlow.GetMeasures(5));
}

TEST(CExplorerTest, TheWorstCase_CountsWhatIsHiddenAndNotWhatIsDeleted)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B' action='ODA_DELETE'/></On>"
                                "<On key='back'><back/></On>"));
    EXPECT_EQ("3 objects: at the start\n1 history entries: ok\n0 popups listed: at the start\n",
              kFlow.GetMeasures(5));
}

TEST(CExplorerTest, TheWorstCase_OfPopups_IsWhereAllAreListed)
{
    CCheckedFlow kFlow(
        MakeFlow("<PopupDefinition id='POP_Q' priority='9'><Popup><Label/></Popup></PopupDefinition>"
                 "<On button='BTN_A'><show-popup popup='POP_P'/></On>"
                 "<On button='BTN_A2'><show-popup popup='POP_Q'/></On>"));
    EXPECT_EQ("6 objects: ok, next, ok\n0 history entries: at the start\n2 popups listed: ok, next, ok\n",
              kFlow.GetMeasures(5));
}

TEST(CExplorerTest, AnExpectedViolation_HasItsReason)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<Expect property='P2' about='DLG_B' reason='the end'/>"));
    EXPECT_EQ("(the end) from DLG_B no keys lead to DLG_A: ok\n", kFlow.GetFindings(2));
    EXPECT_EQ(0U, CheckProperties(*kFlow.m_pkSubject, kFlow.m_kSpace, 1U << 2U).front().CountUnexpected());
}

TEST(CExplorerTest, AnExpectationThatNothingMatches_IsAWarning)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<Expect property='P2' about='DLG_B' reason='the end'/>"
                                "<Expect property='P2' about='DLG_C' reason='long gone'/>"
                                "<Expect property='P7' about='' reason='touch'/>"));
    const PropertyResult_t kResult = CheckProperties(*kFlow.m_pkSubject, kFlow.m_kSpace, 1U << 2U).front();
    ASSERT_EQ(1U, kResult.m_kWarnings.size());
    EXPECT_EQ("no violation matches the Expect about 'DLG_C'", kResult.m_kWarnings.front().m_kText);
    EXPECT_EQ(7U, kResult.m_kWarnings.front().m_uiLine);
    EXPECT_EQ(0U, kResult.CountUnexpected());
}

TEST(CWatchdogDeathTest, AnOperationThatDoesNotEnd_IsReportedWithItsKeys)
{
    EXPECT_EXIT(
        CheckHangingApplication(false), testing::ExitedWithCode(CHECK_VIOLATION),
        "P8  every stepwise way back ends: 1 violation, hangs\n    violation: an operation does not end\n"
        "      > power-on\n      > advance 1\n      > key ok\n      > advance 1\n      > key back\n");
}

TEST(CWatchdogDeathTest, AnOperationThatDoesNotEnd_IsReportedAsJSON)
{
    EXPECT_EXIT(CheckHangingApplication(true), testing::ExitedWithCode(CHECK_VIOLATION),
                "\"P8\", \"violations\": 1, .*\"scenario\": .\"power-on\", \"advance 1\", \"key ok\", "
                "\"advance 1\", \"key back\"");
}
