// SPDX-License-Identifier: MIT
#include "Inspection/InspectionCommands.h"

#include "Scenario/ScenarioPlayer.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <algorithm>
#include <cstring>

class CInspectionCommandsTest : public CGUITest
{
protected:
    /** @return the result, or the complaint after "! " */
    std::string Execute(const std::string& kLine) { return Execute(m_kCommands, kLine); }

    static std::string Execute(CInspectionCommands& kCommands, const std::string& kLine)
    {
        std::string kCopy = kLine;
        CInspectionReply kReply;
        kCommands.Execute(kCopy.data(), kReply);
        return (kReply.IsRefusal() ? "! " : "") + std::string(kReply.GetText());
    }

    /** @return the same from the scenario player */
    std::string Play(const std::string& kLine)
    {
        try
        {
            return m_kPlayer.Run(kLine);
        }
        catch (const ScenarioError_t& kError)
        {
            return "! " + kError.m_kText;
        }
    }

    CInspectionCommands m_kCommands{Manager()};
    CScenarioPlayer m_kPlayer{Manager(), Clock(), Events()};
};

TEST_F(CInspectionCommandsTest, EveryCommand_HasTheResultAndTheEffectThatItHasInAScenario)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 }");
    DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, false, "POP_1");
    const std::vector<std::string> kLines = {"CreateDialog DLG_A ODA_NOTHING",
                                             "GetCurrentDialog",
                                             "focusable OBJ_2 true",
                                             "focus OBJ_2",
                                             "CreateDialog DLG_B ODA_INVISIBLE",
                                             "GetCurrentDialogID",
                                             "GetHistoryStackSize",
                                             "ContainsDialog DLG_A false",
                                             "GetLastDialogID",
                                             "RegisterDialogDefinition \"a path\" DLG_C",
                                             "GetRegisteredPath DLG_C",
                                             "GetRegisteredDialogID \"a path\"",
                                             "UnregisterDialogDefinition DLG_C",
                                             "RegisterPopupDefinition POP_2 PRIO_HIGH 10 true \"\"",
                                             "UpdateRegisteredPopupDisplayTime POP_2 4294967295",
                                             "GetRegisteredPopupDisplayTime POP_2",
                                             "GetRegisteredPopupDisplayTime POP_3",
                                             "GetRegisteredPopupInfo POP_2",
                                             "GetRegisteredPopupInfo POP_1",
                                             "GetRegisteredPopupInfo POP_3",
                                             "UnregisterPopupDefinition POP_2",
                                             "ShowPopup POP_1",
                                             "IsPopupDisplayed POP_1",
                                             "IsPopupInPopupList 9",
                                             "ClosePopup POP_1",
                                             "hide OBJ_3",
                                             "show OBJ_3",
                                             "focus-any DLG_B",
                                             "delete OBJ_3",
                                             "BackToDialog DLG_A true true",
                                             "AddDialog DLG_A ODA_NOTHING false",
                                             "Back true",
                                             "ClearDialogHistory 0 true false",
                                             "GetCurrentDialog"};
    std::string kPlayed;
    for (const std::string& kLine : kLines)
    {
        kPlayed += kLine + " = " + Play(kLine) + "\n" + WholeState();
    }
    Manager().ClearDialogHistory(0, true, true);
    Manager().ClosePopup(POP_1);
    while (CGUIObject* const pkObject = Root().GetFirstChild())
    {
        delete pkObject;
    }
    CGUITestAccess::GetCurrentDialog(Manager()) = CGUITestAccess::DialogDescription_t();

    std::string kExecuted;
    for (const std::string& kLine : kLines)
    {
        kExecuted += kLine + " = " + Execute(kLine) + "\n" + WholeState();
    }

    EXPECT_EQ(kPlayed, kExecuted);
}

TEST_F(CInspectionCommandsTest, EveryCommandOfTheTable_IsTried)
{
    eC_UInt uiCount = 0;
    const ManagerCommand_t* const pkCommands = GetManagerCommands(uiCount);
    EXPECT_EQ(30U, uiCount);
    for (eC_UInt uiCommand = 0; uiCommand < uiCount; ++uiCommand)
    {
        const std::string kUsage = pkCommands[uiCommand].m_pcUsage;
        EXPECT_EQ(std::count(kUsage.begin(), kUsage.end(), '<'),
                  static_cast<std::ptrdiff_t>(std::strlen(pkCommands[uiCommand].m_pcKinds)))
            << kUsage;
        EXPECT_GE(cuiMostCommandWords, std::strlen(pkCommands[uiCommand].m_pcKinds)) << kUsage;
    }
}

TEST_F(CInspectionCommandsTest, AWrongLine_SaysWhatWasExpectedAndFound)
{
    EXPECT_EQ("! expected a command, found 'Create'", Execute("Create DLG_A"));
    EXPECT_EQ("! expected a command, found 'CreateDialogs'", Execute("CreateDialogs DLG_A"));
    EXPECT_EQ("! expected a command, found the end of the line", Execute("  "));
    EXPECT_EQ("! expected the name of a handle or a number, found 'DLG_'",
              Execute("CreateDialog DLG_ ODA_DELETE"));
    EXPECT_EQ(
        "! expected an action (ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_DELETE, ODA_DELETE_ALL, ODA_NOTHING), "
        "found 'DELETE'",
        Execute("CreateDialog DLG_A DELETE"));
    EXPECT_EQ("! expected one of false, true, found '1'", Execute("Back 1"));
    EXPECT_EQ("! expected a number from 0 to 4294967295, found '-1'",
              Execute("ClearDialogHistory -1 true true"));
    EXPECT_EQ("! expected a priority (PRIO_LOWEST to PRIO_HIGHEST, or a number up to 255), found '256'",
              Execute("RegisterPopupDefinition POP_1 256 0 true path"));
    EXPECT_EQ("! expected an object under the root, found 'OBJ_1'", Execute("focus OBJ_1"));
    EXPECT_EQ("! expected Back <delete>, found the end of the line", Execute("Back"));
    EXPECT_EQ("! expected Back <delete>, found 'more'", Execute("Back true more"));
    EXPECT_EQ("! expected a closing quote, found 'a path'", Execute("RegisterDialogDefinition \"a path"));
    EXPECT_EQ("! expected a command, found '0123456789012345678901234567890123456789...'",
              Execute("01234567890123456789012345678901234567890"));
    EXPECT_STATE("current: none");
}

TEST_F(CInspectionCommandsTest, CommandsOfTheApplication_ComeFirst)
{
    const ManagerCommand_t akOwn[] = {
        {"touch <object>", "h",
         [](CGUIDialogManager&, const WordValue_t* pkWords, CCommandResult& kResult)
         { kResult.AddHandle(pkWords[0].m_eHandle); },
         false},
        {"Back", "",
         [](CGUIDialogManager&, const WordValue_t*, CCommandResult& kResult) { kResult.Add("own"); }, false}};
    CInspectionCommands kCommands(Manager(), akOwn, 2);
    EXPECT_EQ("OBJ_1", Execute(kCommands, "touch OBJ_1"));
    EXPECT_EQ("-9", Execute(kCommands, "touch -9"));
    EXPECT_EQ("own", Execute(kCommands, "Back"));
    EXPECT_EQ("0", Execute(kCommands, "GetHistoryStackSize"));
}

TEST_F(CInspectionCommandsTest, AWordThatIsCut_IsCutBetweenTwoCharacters)
{
    EXPECT_EQ("! expected a command, found '" + std::string(39, 'x') + "...'",
              Execute(std::string(39, 'x') + "\xC3\xA4"));
}

TEST_F(CInspectionCommandsTest, ExecutingACommand_AllocatesNothingOfItsOwn)
{
    eC_Char acLine[] = "GetHistoryStackSize";
    const CAllocationCounter kCounter;
    CInspectionReply kReply;
    m_kCommands.Execute(acLine, kReply);
    EXPECT_EQ(0U, kCounter.GetNumber());
}
