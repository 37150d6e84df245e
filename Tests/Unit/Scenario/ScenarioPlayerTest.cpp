// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "TestSupport/RecordingScenarioPlayer.h"
#include "Tests/Unit/UnitTestHandles.h"

namespace
{
/** A player with its own command and state, like that of an application. */
class CApplicationPlayer : public CScenarioPlayer
{
public:
    CApplicationPlayer(CGUIDialogManager& kManager, CSteppedClock& kClock, CEventLog& kEventLog)
        : CScenarioPlayer(kManager, kClock, kEventLog)
    {
        AddCommand("press <key> [<times>]",
                   [this](const CScenarioArguments& kArguments)
                   {
                       m_uiPressed += kArguments.GetCount() > 1 ? kArguments.GetNumber(1) : 1;
                       return kArguments.GetText(0) + " pressed";
                   });
        AddCommand("advance <milliseconds>",
                   [](const CScenarioArguments&) { return std::string("never mind the time"); });
    }

    std::vector<std::string> m_kLines;

private:
    std::string GetState() override { return "pressed " + std::to_string(m_uiPressed) + " times\n"; }
    void WriteLine(const std::string& kLine) override { m_kLines.push_back(kLine); }

    eC_UInt m_uiPressed = 0;
};
} // namespace

class CScenarioPlayerTest : public CGUITest
{
protected:
    CScenarioPlayerTest() : m_kPlayer(Manager(), Clock(), Events(), CodeFactory()) {}

    /** @return the message for a script whose third line is wrong */
    std::string GetError(const std::string& kLine)
    {
        EXPECT_FALSE(m_kPlayer.Play("test.scenario", "# comment\n\n" + kLine + "\nCreateDynamicObjectID\n"));
        return m_kPlayer.GetError();
    }

    CRecordingScenarioPlayer m_kPlayer;
};

TEST_F(CScenarioPlayerTest, Play_WritesCommandResultEventsAndState)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
# Home comes first.
  # Indented comments are kept as they are.
tree code:A DLG_A { OBJ_1 focusable }
RegisterDialogDefinition code:A DLG_A
CreateDialog DLG_A ODA_INVISIBLE
GetCurrentDialogID
)"));

    EXPECT_TEXT(R"(
        # Home comes first.
          # Indented comments are kept as they are.
        > tree code:A DLG_A { OBJ_1 focusable }
        > RegisterDialogDefinition code:A DLG_A
        = true
        > CreateDialog DLG_A ODA_INVISIBLE
        = DLG_A
          INFO: Time for loading code:A: 0.
          OnDialogAdded(DLG_A)
          OnDialogActivation(DLG_A)
          DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!
        | current: DLG_A after ODA_INVISIBLE
        | focus: OBJ_1
        | tree:
        |   DLG_A
        |     OBJ_1 focussed
        > GetCurrentDialogID
        = DLG_A
        | unchanged
    )",
                m_kPlayer.GetTranscript());
    EXPECT_EQ("", m_kPlayer.GetError());
}

TEST_F(CScenarioPlayerTest, Play_WritesTheStateBehindTheFirstCommandEvenIfThatChangedNothing)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", "Back true\nBack true"));
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", "Back true"));

    EXPECT_TEXT(R"(
        > Back true
        | current: none
        > Back true
        | unchanged
        > Back true
        | unchanged
    )",
                m_kPlayer.GetTranscript());
}

TEST_F(CScenarioPlayerTest, Play_WritesTraceEntriesWithoutTheirLineBreakAndMarksTheirFurtherLines)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
GetRegisteredDialogID nowhere
UnregisterPopupDefinition POP_1
CreateDialog DLG_A ODA_NOTHING
)"));

    EXPECT_TEXT(R"(
        > GetRegisteredDialogID nowhere
        = NO_HANDLE
          DEBUG: nowhere.
          :
        | current: none
        > UnregisterPopupDefinition POP_1
        = false
        > CreateDialog DLG_A ODA_NOTHING
        = null
          DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 1.
          CreateDialogImpl(DLG_A, true, true) -> null
          DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.
          ERROR: CGUIDialogManager::CreateDialog: Createing dialog with ID 1 failed!
          : The current dialog stays active. @Source/Core/GUIDialogManager.cpp:#
        | unchanged
    )",
                m_kPlayer.GetTranscript());
}

TEST_F(CScenarioPlayerTest, Play_TellsAnExceptionAsTheResult)
{
    DefineDialog(DLG_A, "DLG_A");
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
throw OnDialogAdded int
CreateDialog DLG_A ODA_INVISIBLE
throw OnDialogActivation exception
CreateDialog DLG_A 9
)"));

    EXPECT_TEXT(R"(
        > throw OnDialogAdded int
        > CreateDialog DLG_A ODA_INVISIBLE
        = throws int 7
          INFO: Time for loading code:DLG_A: 0.
          OnDialogAdded(DLG_A) throws int 7
        | current: DLG_A after ODA_INVISIBLE
        | tree:
        |   DLG_A
        > throw OnDialogActivation exception
        > CreateDialog DLG_A 9
        = throws deliberate failure
          DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 1 is already contained in the GUI.
          OnDialogActivation(DLG_A) throws deliberate failure
        | current: DLG_A after 9, no deletion
        | history: DLG_A 9 (after ODA_INVISIBLE)
        | tree:
        |   DLG_A
    )",
                m_kPlayer.GetTranscript());
}

TEST_F(CScenarioPlayerTest, Play_StopsAtAWrongLineAndSaysWhich)
{
    EXPECT_FALSE(
        m_kPlayer.Play("test.scenario", "CreateDynamicObjectID\n\nBack maybe\nCreateDynamicObjectID\n"));

    EXPECT_EQ("test.scenario:3: Back: expected one of false, true, found 'maybe'", m_kPlayer.GetError());
    EXPECT_TEXT(R"(
        > CreateDynamicObjectID
        = 29
        | current: none
        | dynamic: 29
        > Back maybe
        test.scenario:3: Back: expected one of false, true, found 'maybe'
    )",
                m_kPlayer.GetTranscript());
}

TEST_F(CScenarioPlayerTest, Play_ForgetsTheErrorOfTheScriptBefore)
{
    EXPECT_FALSE(m_kPlayer.Play("first", "Back"));
    EXPECT_TRUE(m_kPlayer.Play("second", "Back true"));
    EXPECT_EQ("", m_kPlayer.GetError());
}

TEST_F(CScenarioPlayerTest, EveryKindOfWrongWord_IsToldWithWhatWasExpected)
{
    EXPECT_EQ(
        0U, GetError("Create DLG_A").find("test.scenario:3: expected a command (CreateDialog, AddDialog, "));
    EXPECT_NE(std::string::npos, m_kPlayer.GetError().find("), found 'Create'"));
    EXPECT_EQ("test.scenario:3: CreateDialog: expected CreateDialog <dialog> <action>, found 1 arguments",
              GetError("CreateDialog DLG_A"));
    EXPECT_EQ("test.scenario:3: Back: expected Back <delete>, found 2 arguments", GetError("Back true true"));
    EXPECT_EQ("test.scenario:3: CreateDialog: expected the name of a handle or a number, found 'DLG_X'",
              GetError("CreateDialog DLG_X ODA_DELETE"));
    EXPECT_EQ(
        "test.scenario:3: CreateDialog: expected an action (ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_DELETE, "
        "ODA_DELETE_ALL, ODA_NOTHING), found 'DELETE'",
        GetError("CreateDialog DLG_A DELETE"));
    EXPECT_EQ(
        "test.scenario:3: RegisterPopupDefinition: expected a priority (PRIO_LOWEST to PRIO_HIGHEST, or a "
        "number up to 255), found '256'",
        GetError("RegisterPopupDefinition POP_1 256 0 true code:A"));
    EXPECT_EQ("test.scenario:3: advance: expected a number from 0 to 4294967295, found '-1'",
              GetError("advance -1"));
    EXPECT_EQ("test.scenario:3: hide: expected an object under the root, found 'OBJ_1'",
              GetError("hide OBJ_1"));
    EXPECT_EQ("test.scenario:3: expected a closing quote, found the end of the line",
              GetError("GetRegisteredDialogID \"code:A"));
    EXPECT_EQ("test.scenario:3: attach: expected ; or }, found the end in: DLG_A { OBJ_1",
              GetError("attach DLG_A { OBJ_1"));
    EXPECT_EQ("test.scenario:3: tree: expected an object class (Object, Composite), found 'Button'",
              GetError("tree code:A Button DLG_A"));
    EXPECT_EQ("test.scenario:3: fail-load: expected one of null, int, exception, found 'often'",
              GetError("fail-load 1 often"));
    EXPECT_EQ("test.scenario:3: throw: expected one of CreateDialogImpl, OnDialogAdded, OnDialogActivation, "
              "OnDialogDeactivation, OnDialogDeletion, OnAfterDialogDeletion, OnLastDialogDeletion, "
              "OnPopupActivation, OnPopupDeactivation, CreatePopupImpl, found 'OnBack'",
              GetError("throw OnBack int"));
    EXPECT_EQ("test.scenario:3: hook: Back: expected Back <delete>, found 0 arguments",
              GetError("hook OnDialogAdded once Back"));
}

TEST_F(CScenarioPlayerTest, AWrongWordInANestedCommand_EndsTheScriptAlthoughTheManagerCatchesEverything)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    EXPECT_FALSE(m_kPlayer.Play("test.scenario", R"(CreateDialog DLG_A ODA_NOTHING
CreateDialog DLG_B ODA_NOTHING
hook OnDialogDeletion once Back maybe
Back true
CreateDynamicObjectID)"));
    EXPECT_EQ("test.scenario:4: Back maybe: expected one of false, true, found 'maybe'",
              m_kPlayer.GetError());

    EXPECT_TRUE(m_kPlayer.Play("test.scenario", "CreateDynamicObjectID"));
}

TEST_F(CScenarioPlayerTest, HookOnce_AndHookAlways_RunTheirCommandInside)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
attach DLG_A
attach DLG_B
CreateDialog DLG_A ODA_NOTHING
hook OnDialogActivation once GetHistoryStackSize
hook OnDialogActivation always GetCurrentDialogID
)"));
    const std::size_t uiBefore = m_kPlayer.GetTranscript().size();
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
CreateDialog DLG_B ODA_NOTHING
Back false
)"));

    EXPECT_TEXT(R"(
        > CreateDialog DLG_B ODA_NOTHING
        = DLG_B
          DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 2 is already contained in the GUI.
          OnDialogDeactivation(DLG_A)
          OnDialogAdded(DLG_B)
          OnDialogActivation(DLG_B)
          nested: GetHistoryStackSize = 1
          nested: GetCurrentDialogID = DLG_B
          DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!
        | current: DLG_B after ODA_NOTHING, no deletion
        | history: DLG_A ODA_NOTHING (after ODA_NOTHING, no deletion)
        | tree:
        |   DLG_A
        |   DLG_B
        > Back false
          DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.
          OnDialogDeactivation(DLG_B)
          OnDialogActivation(DLG_A)
          nested: GetCurrentDialogID = DLG_A
          DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!
          DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!
          OnAfterDialogDeletion(DLG_B, DLG_A)
        | current: DLG_A after ODA_NOTHING, no deletion
        | tree:
        |   DLG_A
        |   DLG_B invisible
    )",
                m_kPlayer.GetTranscript().substr(uiBefore));
}

TEST_F(CScenarioPlayerTest, ApplicationActs_ChangeTheFrameworkBehindTheManager)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
attach DLG_A { OBJ_1 focusable; OBJ_2 { OBJ_3 focusable } }
attach DLG_B
focus OBJ_1
focus DLG_A
focus-any OBJ_2
focusable OBJ_1 false
hide DLG_B
delete OBJ_2
advance 1500
)"));
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
            OBJ_1
          DLG_B invisible
    )");
    EXPECT_EQ(1500U, GETTIMER.GetTime());
    EXPECT_NE(std::string::npos, m_kPlayer.GetTranscript().find("> focus OBJ_1\n= true\n"));
    EXPECT_NE(std::string::npos, m_kPlayer.GetTranscript().find("> focus DLG_A\n= false\n"));
    EXPECT_NE(std::string::npos, m_kPlayer.GetTranscript().find("> focus-any OBJ_2\n= true\n"));

    EXPECT_TRUE(m_kPlayer.Play("test.scenario", "show DLG_B"));
    EXPECT_FALSE(Object(DLG_B)->IsInvisible());
}

TEST_F(CScenarioPlayerTest, AddDialog_TakesAHandleTheAttachedObjectOrNull)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
attach DLG_A
AddDialog DLG_A ODA_NOTHING true
attach -
AddDialog attached ODA_INVISIBLE false
AddDialog null ODA_NOTHING true
)"));
    EXPECT_STATE(R"(
        current: 29 after ODA_INVISIBLE, no deletion, no recovery
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING, no deletion)
        dynamic: 29
        tree:
          DLG_A invisible
          29
    )");
    EXPECT_NE(std::string::npos, m_kPlayer.GetTranscript().find("Try to add a null pointer as dialog."));
}

TEST_F(CScenarioPlayerTest, State_ShowsTheDefinitionsToo)
{
    EXPECT_TRUE(m_kPlayer.Play("test.scenario", R"(
RegisterDialogDefinition "" DLG_A
RegisterPopupDefinition POP_1 PRIO_HIGH 10 false "code:with blank"
state
)"));
    EXPECT_TEXT(R"(
        > RegisterDialogDefinition "" DLG_A
        = true
        > RegisterPopupDefinition POP_1 PRIO_HIGH 10 false "code:with blank"
        = true
        > state
        | current: none
        | dialog: DLG_A ""
        | popup: POP_1 prio 7, 10 ms, hide on close, "code:with blank"
    )",
                m_kPlayer.GetTranscript());
}

TEST_F(CScenarioPlayerTest, AnApplication_AddsAndReplacesCommandsAndPrintsItsOwnState)
{
    CApplicationPlayer kPlayer(Manager(), Clock(), Events());

    EXPECT_TRUE(kPlayer.Play("test.scenario", "press Enter\npress Up 2\nadvance 100\n"));

    EXPECT_TEXT(R"(
        > press Enter
        = Enter pressed
        | pressed 1 times
        > press Up 2
        = Up pressed
        | pressed 3 times
        > advance 100
        = never mind the time
        | unchanged
    )",
                JoinLines(kPlayer.m_kLines));
    EXPECT_EQ(0U, GETTIMER.GetTime());
    EXPECT_FALSE(kPlayer.Play("test.scenario", "press Up 2 3"));
    EXPECT_EQ("test.scenario:1: press: expected press <key> [<times>], found 3 arguments",
              kPlayer.GetError());
}
