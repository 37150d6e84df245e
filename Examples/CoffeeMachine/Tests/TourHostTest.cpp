// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogXMLReader.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/Simulation.h"
#include "Simulator/SimulationPlayer.h"
#include "Tests/CoffeeMachineTest.h"

#include <fstream>
#include <iterator>
#include <set>

namespace
{
std::string ReadFile(const std::string& kName)
{
    std::ifstream kFile(COFFEE_MACHINE_DIRECTORY "/" + kName, std::ios::binary);
    EXPECT_TRUE(kFile.good()) << kName;
    return {std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
}

/** Plays scenarios with dialog files below a directory. */
class CTourTest : public ::testing::Test
{
protected:
    std::string Play(const std::string& kScript, const std::string& kBaseDirectory = COFFEE_MACHINE_DIRECTORY)
    {
        const ObjectCensus_t kBefore = TakeObjectCensus();
        CGUIDialogXMLReader kReader(kBaseDirectory.c_str());
        CSimulatedCoffeeMachine kCoffeeMachine(kReader);
        m_kTranscript.clear();
        std::string kError =
            PlayTranscript(kCoffeeMachine, "Test.scenario", kScript,
                           [this](const std::string& kLine) { m_kTranscript += kLine + "\n"; });
        EXPECT_EQ("", CompareObjectCensus(kBefore, TakeObjectCensus()));
        return kError;
    }

    std::string m_kTranscript;
};
} // namespace

TEST_F(CTourTest, Tour_GivesTheRecordedTranscript)
{
    EXPECT_EQ("", Play(ReadFile("Tour.scenario")));

    const std::string kRecorded = ReadFile("Tour.golden");
    EXPECT_TRUE(kRecorded == m_kTranscript) << DiffLines(kRecorded, m_kTranscript);
}

TEST_F(CTourTest, Tour_UsesEveryPublicOperationOfTheManager)
{
    std::set<std::string> kCommands;
    for (const std::string& kLine : SplitLines(ReadFile("Tour.scenario")))
    {
        kCommands.insert(kLine.substr(0, kLine.find(' ')));
    }

    for (const char* pcOperation : {"CreateDialog",
                                    "AddDialog",
                                    "Back",
                                    "BackToDialog",
                                    "ClearDialogHistory",
                                    "GetCurrentDialogID",
                                    "GetCurrentDialog",
                                    "GetHistoryStackSize",
                                    "ContainsDialog",
                                    "GetLastDialogID",
                                    "RegisterDialogDefinition",
                                    "UnregisterDialogDefinition",
                                    "GetRegisteredPath",
                                    "GetRegisteredDialogID",
                                    "CreateDynamicObjectID",
                                    "RegisterPopupDefinition",
                                    "UnregisterPopupDefinition",
                                    "UpdateRegisteredPopupDisplayTime",
                                    "GetRegisteredPopupDisplayTime",
                                    "GetRegisteredPopupInfo",
                                    "ShowPopup",
                                    "ClosePopup",
                                    "IsPopupDisplayed",
                                    "IsPopupInPopupList"})
    {
        EXPECT_EQ(1U, kCommands.count(pcOperation)) << pcOperation;
    }
}

TEST_F(CTourTest, Tour_ShowsEveryDialogEveryPopupEveryActionAndEveryHook)
{
    ASSERT_EQ("", Play(ReadFile("Tour.scenario")));

    for (eC_UInt uiHandle = 0; uiHandle < cuiNOFApplicationHandles; ++uiHandle)
    {
        const std::string kName = cpkApplicationHandles[uiHandle].m_pcName;
        if (kName.compare(0, 4, "DLG_") == 0)
        {
            EXPECT_NE(std::string::npos, m_kTranscript.find("| current: " + kName)) << kName;
        }
        if (kName.compare(0, 4, "POP_") == 0)
        {
            EXPECT_NE(std::string::npos, m_kTranscript.find("hook OnPopupActivation(" + kName)) << kName;
        }
    }
    for (const char* pcAction :
         {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE", "ODA_DELETE_ALL", "ODA_NOTHING"})
    {
        EXPECT_NE(std::string::npos, m_kTranscript.find(std::string(" after ") + pcAction + "\n"))
            << pcAction;
    }
    for (const char* pcHook :
         {"CreateDialogImpl", "OnDialogAdded", "OnDialogActivation", "OnDialogDeactivation",
          "OnDialogDeletion", "OnAfterDialogDeletion", "OnLastDialogDeletion", "OnPopupActivation",
          "OnPopupDeactivation", "CreatePopupImpl"})
    {
        EXPECT_NE(std::string::npos, m_kTranscript.find(std::string("INFO: hook ") + pcHook + "(")) << pcHook;
    }
}

TEST_F(CTourTest, WrongLine_StopsTheTourAndNamesTheLine)
{
    EXPECT_EQ("Test.scenario:3: touch: expected touch <object>, found 0 arguments",
              Play("# comment\npower-on\ntouch\nkey home\n"));
    EXPECT_EQ(std::string::npos, m_kTranscript.find("key home"));
}

TEST_F(CTourTest, Tour_BackInTime_HasTheStatesOfBefore)
{
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CSimulatedCoffeeMachine kCoffeeMachine(kReader);
    CSimulation kSimulation(kCoffeeMachine);
    const auto State = [&]
    {
        return PaintFrame(ckCoffeeMachineDevice) +
               PrintState(kCoffeeMachine.GetManager(), STATE_ALL | STATE_TIMERS);
    };
    std::vector<std::string> kStates = {State()};
    for (const std::string& kLine : SplitLines(ReadFile("Tour.scenario")))
    {
        ASSERT_TRUE(kSimulation.Run(kLine).m_bIsExecuted) << kLine;
        kStates.resize(kSimulation.GetPosition(), kStates.back());
        kStates.push_back(State());
    }
    const std::vector<SimulatedTrace_t> kTrace = kSimulation.GetTrace();

    // Not every one: each way back plays all the lines before it.
    for (std::size_t uiPosition = kSimulation.GetPosition(); uiPosition > 20; uiPosition -= 7)
    {
        kSimulation.GoTo(uiPosition);
        ASSERT_EQ(kStates[uiPosition], State()) << kSimulation.GetLines()[uiPosition - 1];
    }
    kSimulation.GoTo(kSimulation.GetLines().size());
    EXPECT_EQ(kStates.back(), State());
    ASSERT_EQ(kTrace.size(), kSimulation.GetTrace().size());
    for (std::size_t uiEntry = 0; uiEntry < kTrace.size(); ++uiEntry)
    {
        EXPECT_EQ(kTrace[uiEntry].m_uiLine, kSimulation.GetTrace()[uiEntry].m_uiLine);
        EXPECT_EQ(kTrace[uiEntry].m_uiTime, kSimulation.GetTrace()[uiEntry].m_uiTime);
        EXPECT_EQ(FormatTraceLine(kTrace[uiEntry].m_kEntry),
                  FormatTraceLine(kSimulation.GetTrace()[uiEntry].m_kEntry));
    }
}

TEST_F(CTourTest, MissingDialogFile_IsToldBeforeAnythingIsPlayed)
{
    const std::string kError = Play("power-on\n", "/nonexistent");

    EXPECT_EQ(0U, kError.find("cannot load Dialogs/Home.xml (")) << kError;
    EXPECT_EQ(std::string::npos, kError.find('\n'));
    EXPECT_EQ("", m_kTranscript);
}
