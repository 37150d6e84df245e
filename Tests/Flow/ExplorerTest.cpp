// SPDX-License-Identifier: MIT
#include "CheckedFlow.h"
#include "Flow/Check/CheckCommand.h"
#include "Flow/Check/CheckReport.h"
#include "Flow/Check/WaysBack.h"

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

/** An application that counts how often it is started. */
class CCountingApplication : public CFlowApplication
{
public:
    explicit CCountingApplication(const std::shared_ptr<const FlowModel_t>& pkFlow) : CFlowApplication(pkFlow)
    {
    }

    void Start() override
    {
        ++m_uiStarts;
        CFlowApplication::Start();
    }

    eC_UInt m_uiStarts = 0;
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

TEST(CExplorerTest, TheApplicationIsStartedAnew_OnlyWhereNoKnownKeysLeadBack)
{
    CCountingApplication kApplication(ReadText(MakeFlow(
        "<DialogDefinition id='DLG_C'><Screen><Button id='BTN_C'/></Screen></DialogDefinition><Signal "
        "name='s'/>"
        "<Timer name='t' time='1000'/><On button='BTN_A'><create dialog='DLG_B'/><start timer='t'/></On>"
        "<On button='BTN_B'><create dialog='DLG_C'/></On><On key='back'><back/></On>"
        "<On timer='t'><show-popup popup='POP_P'/></On><On signal='s'><close-popup popup='POP_P'/></On>")));
    CFlowSubject kSubject(kApplication);
    const StateSpace_t kSpace = CExplorer(kSubject).Explore(ExplorerBounds_t());
    EXPECT_TRUE(kSpace.m_bIsComplete);
    EXPECT_EQ(216U, kSpace.m_kSteps.size());
    EXPECT_EQ(51U, kApplication.m_uiStarts);
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

TEST(CExplorerTest, GoingBack_IsComparedAlongEveryWay_AlsoWhereAStepTakesBackSeveralEntriesAndMakesOne)
{
    // BTN_B is gone when the user comes back to B. The shortest way there leaves B with a popup, which may
    // have had the focus; only the longer one shows what is wrong.
    CCheckedFlow kFlow(MakeFlow(
        "<Flag name='f'/><Flag name='g'/><Signal name='p'/><Signal name='d'/>"
        "<DialogDefinition id='DLG_C'><Screen/></DialogDefinition>"
        "<On button='BTN_A'><create dialog='DLG_B'/></On><On button='BTN_B'><create dialog='DLG_C'/></On>"
        "<On signal='p' when='DLG_B'><show-popup popup='POP_P'/></On>"
        "<On signal='d' when='DLG_C POP_P'><close-popup popup='POP_P'/><destroy object='BTN_B'/></On>"
        "<On signal='d' when='DLG_C g'><destroy object='BTN_B'/><set flag='f' value='false'/>"
        "<set flag='g' value='false'/></On>"
        "<On signal='d' when='DLG_C f'><set flag='g'/></On><On signal='d' when='DLG_C'><set flag='f'/></On>"
        "<On key='back' when='past:DLG_B'><back/><back/><create dialog='DLG_C' action='ODA_DELETE'/></On>"));
    EXPECT_TRUE(kFlow.m_kSpace.m_bIsComplete);
    EXPECT_EQ("back from DLG_C: the focus is on NO_HANDLE instead of BTN_B: ok, ok, d, d, d\n",
              kFlow.GetFindings(3));
    kFlow.ExpectThatScenariosLeadToTheirStates(3);
    kFlow.ExploreExactly();
    EXPECT_EQ("back makes several entries of the history, or takes back several and makes one",
              kFlow.m_kObstacle);
}

TEST(CExplorerTest, GoingBack_IsNotComparedAlongAWayThatTimersForbid)
{
    // An entry is made in state 0 without a popup and in state 1 with one; both lead to state 2. In state 3,
    // after t, the way back loses the focus, which is wrong only without a popup. Then t needs longer than u,
    // though.
    StateSpace_t kSpace;
    kSpace.m_kInputs = {{CheckedInput_t::KEY, 0, "key ok", "ok", true},
                        {CheckedInput_t::EXPIRY, 0, "", "t runs out", false}};
    kSpace.m_kTexts.Get("");
    const CZone::Clock_t kShort = {1, 500};
    const CZone::Clock_t kLong = {0, 1000};
    kSpace.m_kChanges = {{}, {{kLong, kShort}, {}, {}}, {{kLong}, {}, {}}, {{}, {}, {0}}};
    CZone kOfState2; // as it is after state 1: u does not run
    kOfState2.Start(kLong);
    kSpace.m_kZones = {CZone(), kOfState2};
    const auto eDialog = static_cast<ObjectHandle_t>(1);
    const auto eFocus = static_cast<ObjectHandle_t>(2);
    const auto eOther = static_cast<ObjectHandle_t>(3);
    kSpace.m_kBacks = {{},
                       {eOther, eDialog, eFocus, eDialog, eFocus, 0, 0, true, false, 0},
                       {eOther, eDialog, eFocus, eDialog, NO_HANDLE, 0, 0, true, false, 0}};
    kSpace.m_kStates.resize(4);
    kSpace.m_kStates[0].m_eCurrent = kSpace.m_kStates[1].m_eCurrent = eDialog;
    kSpace.m_kStates[1].m_uiListed = 1;
    kSpace.m_kStates[2].m_uiHistory = kSpace.m_kStates[3].m_uiHistory = kSpace.m_kHistories.Push(0, 0);
    kSpace.m_kStates[2].m_uiZone = 1;
    kSpace.m_kStates[2].m_uiBack = 1;
    kSpace.m_kStates[3].m_uiBack = 2;
    const std::uint32_t auiChanges[] = {1, 2, 3};
    const std::uint32_t auiTargets[] = {2, 2, 3};
    for (std::uint32_t uiState = 0; uiState < 3; ++uiState)
    {
        kSpace.m_kStates[uiState].m_uiFirstStep = uiState;
        kSpace.m_kStates[uiState].m_uiSteps = 1;
        kSpace.m_kSteps.push_back(
            {auiTargets[uiState], auiChanges[uiState], std::uint16_t(uiState == 2 ? 1 : 0), 0});
    }
    EXPECT_EQ(1U, FindBackFaults(kSpace, false).size());
    EXPECT_EQ(0U, FindBackFaults(kSpace, true).size());
    kSpace.m_kChanges[1] = kSpace.m_kChanges[2];
    const std::vector<BackFault_t> kFaults = FindBackFaults(kSpace, true);
    ASSERT_EQ(1U, kFaults.size());
    EXPECT_EQ(0U, kFaults.front().m_uiState);
    EXPECT_EQ((Way_t{0, 2}), kFaults.front().m_kWay);
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

TEST(CExplorerTest, AnExpectationOfWhatNoLongerHappens_IsAViolation)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<Expect property='P2' about='DLG_B' reason='the end'/>"
                                "<Expect property='P2' about='DLG_C' reason='long gone'/>"
                                "<Expect property='P7' about='' reason='touch'/>"));
    for (eC_UInt uiRound = 0; uiRound < 2; ++uiRound)
    {
        const PropertyResult_t kResult =
            CheckProperties(*kFlow.m_pkSubject, kFlow.m_kSpace, 1U << 2U).front();
        EXPECT_EQ("(the end) from DLG_B no keys lead to DLG_A: ok\n"
                  "the Expect about 'DLG_C' is out of date: there is no such violation\n",
                  kFlow.GetFindings(2));
        EXPECT_EQ(7U, kResult.m_kFindings.back().m_uiLine);
        EXPECT_EQ(1U, kResult.CountUnexpected());
        EXPECT_EQ(0U, kResult.m_kWarnings.size());
        kFlow.ExploreExactly(); // for all histories
    }
}

TEST(CExplorerTest, AnExpectationOfWhatIsNotFoundUpToABound_IsAWarning)
{
    ExplorerBounds_t kBounds;
    kBounds.m_uiDepth = 1;
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On>"
                                "<Expect property='P2' about='DLG_B' reason='the end'/>"),
                       kBounds);
    const PropertyResult_t kResult = CheckProperties(*kFlow.m_pkSubject, kFlow.m_kSpace, 1U << 2U).front();
    ASSERT_EQ(1U, kResult.m_kWarnings.size());
    EXPECT_EQ("the Expect about 'DLG_B' may be out of date: no such violation was found",
              kResult.m_kWarnings.front().m_kText);
    EXPECT_EQ(7U, kResult.m_kWarnings.front().m_uiLine);
    EXPECT_EQ(0U, kResult.CountUnexpected());
}

TEST(CExplorerTest, ALimitOfBytes_IsAWarning_WhereTheProgramCountsNone)
{
    CCheckedFlow kFlow(MakeFlow("<AtMost bytes='100'/>"));
    const PropertyResult_t kResult = CheckProperties(*kFlow.m_pkSubject, kFlow.m_kSpace, 1U << 5U).front();
    ASSERT_EQ(1U, kResult.m_kWarnings.size());
    EXPECT_EQ("at most 100 bytes: this program does not count bytes", kResult.m_kWarnings.front().m_kText);
    EXPECT_EQ(0U, kResult.CountUnexpected());
}

TEST(CExplorerTest, ALimitOfEntries_IsKeptUpToTheDepth_WhereTheirMostIsNotKnown)
{
    CCheckedFlow kFlow(MakeFlow("<On button='BTN_A'><create dialog='DLG_B'/></On><AtMost entries='1'/>"));
    kFlow.ExploreExactly();
    const PropertyResult_t kResult = CheckProperties(*kFlow.m_pkSubject, kFlow.m_kSpace, 1U << 5U).front();
    EXPECT_EQ(0U, kResult.CountUnexpected());
    EXPECT_EQ("up to depth 0", kResult.m_kBound);
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
