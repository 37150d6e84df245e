// SPDX-License-Identifier: MIT
#include "Inspection/InspectionLink.h"
#include "Inspection/InspectionRing.h"

#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Inspection/CollectingChannel.h"
#include "Tests/Unit/UnitTestHandles.h"

class CInspectionLinkTest : public CGUITest
{
protected:
    static inline eC_UInt ms_uiCalls = 3; ///< of the first hook time

    static eC_Bool GetHookTime(eC_UInt uiPosition, HookTime_t& kTimeOUT)
    {
        const HookTime_t akTimes[] = {{"OnDialogActivation", DLG_B, ms_uiCalls, 20, 45},
                                      {"OnLastDialogDeletion", NO_HANDLE, 1, 7, 7}};
        if (uiPosition >= 2)
        {
            return false;
        }
        kTimeOUT = akTimes[uiPosition];
        return true;
    }

    static HeapFigures_t GetHeapFigures() { return {100, 200, 4096}; }

    /** @return the output of one turn */
    std::string Run()
    {
        m_kLink.Run();
        return m_kChannel.TakeLines();
    }

    /** @return the output of a turn with one input line, without the lines of the state */
    std::string Send(const std::string& kLine)
    {
        m_kChannel.Receive(kLine);
        std::string kReplies;
        for (const std::string& kOut : SplitLines(Run()))
        {
            kReplies += kOut.find("\"type\":\"state\"") == std::string::npos ? kOut + "\n" : "";
        }
        return kReplies;
    }

    void AllowInput() { m_kLink.AllowInput(m_kCommands, m_acInput, sizeof(m_acInput)); }

    /** Creates two dialogs, a popup with time left and one that waits. */
    void MakeState()
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; - { - } }");
        DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable; OBJ_4 focusable }");
        DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
        DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
        Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE_ALL);
        Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
        Manager().ShowPopup(POP_1);
        Manager().ShowPopup(POP_2);
        Manager().CreateDynamicObjectID();
        Clock().Advance(500);
        m_kChannel.TakeLines();
    }

    CCollectingChannel m_kChannel;
    eC_Char m_acLine[512];
    eC_Char m_acInput[64];
    CInspectionLink m_kLink{Manager(), m_kChannel, m_acLine, sizeof(m_acLine)};
    CInspectionCommands m_kCommands{Manager()};
};

// --- State ---------------------------------------------------------------------------------------------

TEST_F(CInspectionLinkTest, TheFirstTurn_SendsTheWholeState)
{
    EXPECT_TEXT(R"(
        {"type":"state","time":0,"part":"current","from":0,"items":[{"id":0,"name":"NO_HANDLE","after":"ODA_NOTHING","deletion":true,"recovery":true}],"more":false}
        {"type":"state","time":0,"part":"history","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"dialogs","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"popups","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"active","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"remembered","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"dynamic","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"focus","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"tree","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"timers","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"hooks","from":0,"items":[],"more":false}
        {"type":"state","time":0,"part":"heap","from":0,"items":[],"more":false}
    )",
                Run());
}

TEST_F(CInspectionLinkTest, EveryPart_HasItsItems)
{
    m_kLink.GetInspector().SetHeap(&GetHeapFigures);
    m_kLink.GetInspector().SetHookTimes(&GetHookTime);
    MakeState();
    EXPECT_TEXT(R"(
        {"type":"state","time":500,"part":"current","from":0,"items":[{"id":2,"name":"DLG_B","after":"ODA_INVISIBLE","deletion":true,"recovery":true}],"more":false}
        {"type":"state","time":500,"part":"history","from":0,"items":[{"id":1,"name":"DLG_A","after":"ODA_DELETE_ALL","deletion":true,"recovery":true,"left":"ODA_INVISIBLE","focus":{"id":17,"name":"OBJ_1"}}],"more":false}
        {"type":"state","time":500,"part":"dialogs","from":0,"items":[{"id":1,"name":"DLG_A","path":"code:DLG_A"},{"id":2,"name":"DLG_B","path":"code:DLG_B"}],"more":false}
        {"type":"state","time":500,"part":"popups","from":0,"items":[{"id":9,"name":"POP_1","priority":5,"time":3000,"delete":true,"path":"code:POP_1"},{"id":10,"name":"POP_2","priority":3,"time":0,"delete":false,"path":"code:POP_2"}],"more":false}
        {"type":"state","time":500,"part":"active","from":0,"items":[{"id":10,"name":"POP_2","shown":false,"detached":false,"gone":false,"priority":3,"time":0,"delete":false},{"id":9,"name":"POP_1","shown":true,"detached":false,"gone":false,"priority":5,"time":3000,"delete":true,"left":2500}],"more":false}
        {"type":"state","time":500,"part":"remembered","from":0,"items":[{"id":19,"name":"OBJ_3"}],"more":false}
        {"type":"state","time":500,"part":"dynamic","from":0,"items":[{"id":29}],"more":false}
        {"type":"state","time":500,"part":"focus","from":0,"items":[{"id":19,"name":"OBJ_3"}],"more":false}
        {"type":"state","time":500,"part":"tree","from":0,"items":[{"depth":0,"id":1,"name":"DLG_A","invisible":true},{"depth":1,"id":17,"name":"OBJ_1","focusable":true},{"depth":1,"id":0,"name":"NO_HANDLE"},{"depth":2,"id":0,"name":"NO_HANDLE"},{"depth":0,"id":2,"name":"DLG_B"},{"depth":1,"id":19,"name":"OBJ_3","focusable":true,"focussed":true},{"depth":1,"id":20,"name":"OBJ_4","focusable":true},{"depth":0,"id":10,"name":"POP_2","invisible":true},{"depth":0,"id":9,"name":"POP_1"}],"more":false}
        {"type":"state","time":500,"part":"timers","from":0,"items":[{"popup":{"id":9,"name":"POP_1"},"interval":3000,"left":2500}],"more":false}
        {"type":"state","time":500,"part":"hooks","from":0,"items":[{"hook":"OnDialogActivation","id":2,"name":"DLG_B","calls":3,"time":45,"most":20},{"hook":"OnLastDialogDeletion","id":0,"name":"NO_HANDLE","calls":1,"time":7,"most":7}],"more":false}
        {"type":"state","time":500,"part":"heap","from":0,"items":[{"used":100,"most":200,"size":4096}],"more":false}
    )",
                Run());
}

TEST_F(CInspectionLinkTest, TheTimesOfHooks_AreSentAgainAfterACall)
{
    m_kLink.GetInspector().SetHookTimes(&GetHookTime);
    Run();
    EXPECT_EQ("", Run());

    ms_uiCalls = 4;
    const std::string kLines = Run();
    ms_uiCalls = 3;

    EXPECT_TEXT(R"(
        {"type":"state","time":0,"part":"hooks","from":0,"items":[{"hook":"OnDialogActivation","id":2,"name":"DLG_B","calls":4,"time":45,"most":20},{"hook":"OnLastDialogDeletion","id":0,"name":"NO_HANDLE","calls":1,"time":7,"most":7}],"more":false}
    )",
                kLines);
}

TEST_F(CInspectionLinkTest, APart_IsSentAgainWhenItDiffers)
{
    MakeState();
    Run();
    EXPECT_EQ("", Run());

    Object(OBJ_4)->SetFocusable(false);
    Clock().Advance(10);

    EXPECT_TEXT(R"(
        {"type":"state","time":510,"part":"tree","from":0,"items":[{"depth":0,"id":1,"name":"DLG_A","invisible":true},{"depth":1,"id":17,"name":"OBJ_1","focusable":true},{"depth":1,"id":0,"name":"NO_HANDLE"},{"depth":2,"id":0,"name":"NO_HANDLE"},{"depth":0,"id":2,"name":"DLG_B"},{"depth":1,"id":19,"name":"OBJ_3","focusable":true,"focussed":true},{"depth":1,"id":20,"name":"OBJ_4"},{"depth":0,"id":10,"name":"POP_2","invisible":true},{"depth":0,"id":9,"name":"POP_1"}],"more":false}
    )",
                Run());
    EXPECT_EQ("", Run());
}

TEST_F(CInspectionLinkTest, TimeThatPasses_SendsNothingAndARestartedTimeDoes)
{
    MakeState();
    Run();
    Clock().Advance(700);
    EXPECT_EQ("", Run());
    Clock().Set(9000);
    EXPECT_EQ("", Run());
    Clock().Set(1200);

    Manager().ShowPopup(POP_1);
    m_kChannel.TakeLines();

    EXPECT_TEXT(R"(
        {"type":"state","time":1200,"part":"active","from":0,"items":[{"id":10,"name":"POP_2","shown":false,"detached":false,"gone":false,"priority":3,"time":0,"delete":false},{"id":9,"name":"POP_1","shown":true,"detached":false,"gone":false,"priority":5,"time":3000,"delete":true,"left":3000}],"more":false}
        {"type":"state","time":1200,"part":"timers","from":0,"items":[{"popup":{"id":9,"name":"POP_1"},"interval":3000,"left":3000}],"more":false}
    )",
                Run());
}

TEST_F(CInspectionLinkTest, APopupThatIsGoneOrDetached_SaysSo)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 50, true, "");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "");
    for (const ObjectHandle_t ePopup : {POP_1, POP_2})
    {
        Manager().SetPopupCreator(ePopup, [] { return new CGUIObject; });
        Manager().ShowPopup(ePopup);
    }
    delete Object(POP_1);
    m_kChannel.TakeLines();

    const std::string kLines = Run();

    EXPECT_NE(
        std::string::npos,
        kLines.find(
            R"("part":"active","from":0,"items":[{"id":10,"name":"POP_2","shown":false,"detached":true,)"
            R"("gone":false,"priority":3,"time":0,"delete":true},{"gone":true,"priority":7,"time":50,)"
            R"("delete":true,"left":50}],"more":false})"))
        << kLines;
    EXPECT_NE(
        std::string::npos,
        kLines.find(
            R"("part":"timers","from":0,"items":[{"popup":{"id":0,"name":"NO_HANDLE"},"interval":50,"left":50}])"))
        << kLines;
    Manager().ClosePopup(POP_2);
}

TEST_F(CInspectionLinkTest, Timers_StandInTheOrderInWhichTheyAreCalled)
{
    CGUIAnimatable akAnimatables[5];
    const eC_UInt auiIntervals[] = {300, 100, 200, 301, 101};
    for (eC_UInt uiPlace = 0; uiPlace < 5; ++uiPlace)
    {
        GETTIMER.AddAnimationCallback(auiIntervals[uiPlace], &akAnimatables[uiPlace]);
        Clock().Advance(uiPlace == 2 ? 1 : 0);
    }
    // Due at 100, 102, 200, 300 and 302.
    const std::string kLines = Run();
    EXPECT_NE(
        std::string::npos,
        kLines.find(
            R"("items":[{"interval":100,"left":99},{"interval":101,"left":101},{"interval":200,"left":199},)"
            R"({"interval":300,"left":299},{"interval":301,"left":301}],"more":false})"))
        << kLines;
}

TEST_F(CInspectionLinkTest, AnActionWithoutName_IsANumber)
{
    CGUITestAccess::GetCurrentDialog(Manager()) = CGUITestAccess::DialogDescription_t(
        DLG_A, static_cast<CGUIDialogManager::EOldDialogAction>(9), false, false);
    EXPECT_EQ(
        R"({"type":"state","time":0,"part":"current","from":0,"items":[{"id":1,"name":"DLG_A","after":9,)"
        R"("deletion":false,"recovery":false}],"more":false})",
        SplitLines(Run()).front());
}

TEST_F(CInspectionLinkTest, APartThatIsLongerThanTheMemory_ComesInSeveralLines)
{
    eC_Char acSmall[CInspectionLink::cuiLeastMemory];
    CInspectionLink kSmall(Manager(), m_kChannel, acSmall, sizeof(acSmall));
    Attach("DLG_A { OBJ_1 focusable; OBJ_2 focusable; OBJ_3 focusable; OBJ_4 focusable }");
    kSmall.Run();
    std::vector<std::string> kTree;
    for (const std::string& kLine : SplitLines(m_kChannel.TakeLines()))
    {
        EXPECT_GE(CInspectionLink::cuiLeastMemory, kLine.size() + 1);
        if (kLine.find("\"tree\"") != std::string::npos)
        {
            kTree.push_back(kLine);
        }
    }
    EXPECT_TEXT(R"(
        {"type":"state","time":0,"part":"tree","from":0,"items":[{"depth":0,"id":1,"name":"DLG_A"},{"depth":1,"id":17,"name":"OBJ_1","focusable":true}],"more":true}
        {"type":"state","time":0,"part":"tree","from":2,"items":[{"depth":1,"id":18,"name":"OBJ_2","focusable":true},{"depth":1,"id":19,"name":"OBJ_3","focusable":true}],"more":true}
        {"type":"state","time":0,"part":"tree","from":4,"items":[{"depth":1,"id":20,"name":"OBJ_4","focusable":true}],"more":false}
    )",
                JoinLines(kTree));
}

TEST_F(CInspectionLinkTest, APartForWhichThereIsNoRoom_GoesOnInALaterTurn)
{
    eC_Char acSmall[CInspectionLink::cuiLeastMemory];
    CInspectionLink kSmall(Manager(), m_kChannel, acSmall, sizeof(acSmall));
    Attach("DLG_A { OBJ_1 focusable; OBJ_2 focusable; OBJ_3 focusable }");
    m_kChannel.SetRoom(9);
    kSmall.Run();
    m_kChannel.TakeLines();

    m_kChannel.SetRoom(1);
    kSmall.Run();

    EXPECT_TEXT(
        R"(
        {"type":"state","time":0,"part":"tree","from":2,"items":[{"depth":1,"id":18,"name":"OBJ_2","focusable":true},{"depth":1,"id":19,"name":"OBJ_3","focusable":true}],"more":false}
    )",
        m_kChannel.TakeLines());
    EXPECT_EQ(0U, kSmall.GetDropped());
}

TEST_F(CInspectionLinkTest, APartThatChangesWhileItIsSent_BeginsAgain)
{
    eC_Char acSmall[CInspectionLink::cuiLeastMemory];
    CInspectionLink kSmall(Manager(), m_kChannel, acSmall, sizeof(acSmall));
    Attach("DLG_A { OBJ_1 focusable; OBJ_2 focusable; OBJ_3 focusable }");
    m_kChannel.SetRoom(9);
    kSmall.Run();
    m_kChannel.TakeLines();

    Object(OBJ_1)->SetInvisible(true);
    m_kChannel.SetRoom(1);
    kSmall.Run();

    EXPECT_TEXT(
        R"(
        {"type":"state","time":0,"part":"tree","from":0,"items":[{"depth":0,"id":1,"name":"DLG_A"},{"depth":1,"id":17,"name":"OBJ_1","invisible":true,"focusable":true}],"more":true}
    )",
        m_kChannel.TakeLines());
}

TEST_F(CInspectionLinkTest, AnItemThatIsLongerThanTheMemory_IsLeftOutAndCounted)
{
    eC_Char acSmall[CInspectionLink::cuiLeastMemory];
    CInspectionLink kSmall(Manager(), m_kChannel, acSmall, sizeof(acSmall));
    Manager().RegisterDialogDefinition("short", DLG_A);
    Manager().RegisterDialogDefinition(std::string(200, 'x').c_str(), DLG_B);
    Manager().RegisterDialogDefinition("short", DLG_C);
    kSmall.Run();
    std::string kDialogs;
    for (const std::string& kLine : SplitLines(m_kChannel.TakeLines()))
    {
        kDialogs += kLine.find("\"dialogs\"") != std::string::npos ? kLine + "\n" : "";
    }
    EXPECT_TEXT(R"(
        {"type":"state","time":0,"part":"dialogs","from":0,"items":[{"id":1,"name":"DLG_A","path":"short"}],"more":true}
        {"type":"state","time":0,"dropped":1,"part":"dialogs","from":2,"items":[{"id":3,"name":"DLG_C","path":"short"}],"more":false}
    )",
                kDialogs);
}

TEST_F(CInspectionLinkTest, AnotherReader_IsToldEverything)
{
    const std::string kAll = Run();
    EXPECT_EQ("", Run());
    m_kChannel.AddReader();
    EXPECT_EQ(kAll, Run());
}

TEST_F(CInspectionLinkTest, ATurnWithNothingToSay_AllocatesNothing)
{
    MakeState();
    m_kLink.Run();
    const CAllocationCounter kCounter;
    m_kLink.Run();
    EXPECT_EQ(0U, kCounter.GetNumber());
}

// --- Trace ---------------------------------------------------------------------------------------------

TEST_F(CInspectionLinkTest, EveryEntryOfTheTrace_IsALineAndGoesOnToTheSinkBefore)
{
    Clock().Set(42);
    GUILOG(GUI_TRACE_WARNING, "a \"warning\"\nof two lines\n");
    CGUITrace::LogError("an error\n", "Source/a.cpp", 7);

    EXPECT_TEXT(R"(
        {"type":"trace","time":42,"level":"WARNING","text":"a \"warning\"\nof two lines\n"}
        {"type":"trace","time":42,"level":"ERROR","text":"an error\n","file":"Source/a.cpp","line":7}
    )",
                m_kChannel.TakeLines());
    EXPECT_TRACE(R"(
        WARNING: a "warning"\nof two lines\n
        ERROR: an error\n @Source/a.cpp:#
    )");
}

TEST_F(CInspectionLinkTest, LinesThatAreDropped_AreToldWithTheNextOne)
{
    m_kChannel.SetRoom(0);
    CGUITrace::LogDebug("one");
    CGUITrace::LogDebug("two");
    EXPECT_EQ(2U, m_kLink.GetDropped());
    m_kChannel.SetRoom(CCollectingChannel::cuiAnyNumber);
    CGUITrace::LogDebug(std::string(600, 'x').c_str());
    CGUITrace::LogDebug("four");
    CGUITrace::LogDebug("five");

    EXPECT_TEXT(R"(
        {"type":"trace","time":0,"dropped":3,"level":"DEBUG","text":"four"}
        {"type":"trace","time":0,"level":"DEBUG","text":"five"}
    )",
                m_kChannel.TakeLines());
    EXPECT_EQ(0U, m_kLink.GetDropped());
}

TEST_F(CInspectionLinkTest, Destruction_GivesTheSinkBack)
{
    CGUITraceSink* const pkBefore = CGUITrace::GetInstance().GetSink();
    {
        CInspectionLink kOther(Manager(), m_kChannel, m_acInput, sizeof(m_acInput));
        EXPECT_EQ(&kOther, CGUITrace::GetInstance().GetSink());
    }
    EXPECT_EQ(pkBefore, CGUITrace::GetInstance().GetSink());
}

TEST_F(CInspectionLinkTest, ALineOfTheTrace_AllocatesNothing)
{
    CGUITrace::GetInstance().SetSink(nullptr);
    eC_Char acLine[CInspectionLink::cuiLeastMemory];
    eC_Char acOut[1024];
    CInspectionRing kRing(acOut, sizeof(acOut));
    CInspectionLink kLink(Manager(), kRing, acLine, sizeof(acLine));
    const CAllocationCounter kCounter;
    CGUITrace::LogDebug("text");
    EXPECT_EQ(0U, kCounter.GetNumber());
    CGUITrace::GetInstance().SetSink(&m_kLink);
}

// --- Input ---------------------------------------------------------------------------------------------

TEST_F(CInspectionLinkTest, ALine_IsRefusedUnlessTheApplicationAllowsInput)
{
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"error\":\"expected no line: this program takes no "
              "commands\"}\n",
              Send("ShowPopup POP_1\n"));
    EXPECT_EQ("", Send("\n"));
    AllowInput();
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":3,\"result\":\"NO_HANDLE\"}\n",
              Send("GetCurrentDialogID\n"));
    m_kLink.RefuseInput();
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":4,\"error\":\"expected no line: this program takes no "
              "commands\"}\n",
              Send("state\n"));
}

TEST_F(CInspectionLinkTest, ACommand_IsExecutedAndItsTraceAndTheStateAreSent)
{
    AllowInput();
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Run();
    m_kChannel.Receive("CreateDialog DLG_A ODA_DELETE\r\n");
    EXPECT_TEXT(R"(
        {"type":"trace","time":0,"level":"INFO","text":"Time for loading code:DLG_A: 0.\n"}
        {"type":"trace","time":0,"level":"DEBUG","text":"CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n"}
        {"type":"reply","time":0,"line":1,"result":"DLG_A"}
        {"type":"state","time":0,"part":"current","from":0,"items":[{"id":1,"name":"DLG_A","after":"ODA_DELETE","deletion":true,"recovery":true}],"more":false}
        {"type":"state","time":0,"part":"focus","from":0,"items":[{"id":17,"name":"OBJ_1"}],"more":false}
        {"type":"state","time":0,"part":"tree","from":0,"items":[{"depth":0,"id":1,"name":"DLG_A"},{"depth":1,"id":17,"name":"OBJ_1","focusable":true,"focussed":true}],"more":false}
    )",
                Run());
}

TEST_F(CInspectionLinkTest, State_SendsTheWholeStateAgain)
{
    AllowInput();
    const std::string kAll = Run();
    m_kChannel.Receive("state\n");
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"result\":\"\"}\n" + kAll, Run());
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":2,\"error\":\"expected state, found 'all'\"}\n",
              Send("state all\n"));
}

TEST_F(CInspectionLinkTest, EmptyLinesAndComments_HaveNoReplyAndCount)
{
    AllowInput();
    EXPECT_EQ("", Send("\n\r\n  \t \n# a comment\n  # another\n"));
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":6,\"result\":\"0\"}\n",
              Send(" GetHistoryStackSize \n"));
}

TEST_F(CInspectionLinkTest, ALineThatComesInPieces_IsExecutedOnce)
{
    AllowInput();
    EXPECT_EQ("", Send("GetHistory"));
    EXPECT_EQ("", Send("StackSize"));
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"result\":\"0\"}\n", Send("\n"));
}

TEST_F(CInspectionLinkTest, AnEndlessLine_HasOneReplyAndTheNextOneIsTaken)
{
    AllowInput();
    std::string kReplies = Send(std::string(64, 'x'));
    for (int iPiece = 0; iPiece < 100; ++iPiece)
    {
        kReplies += Send(std::string(250, 'x'));
    }
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"error\":\"expected a shorter line\"}\n", kReplies);
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":2,\"result\":\"0\"}\n",
              Send("\nGetHistoryStackSize\n"));
}

TEST_F(CInspectionLinkTest, TheLongestLine_IsOneByteShorterThanItsMemory)
{
    AllowInput();
    const std::string kCommand = "GetHistoryStackSize";
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"result\":\"0\"}\n",
              Send(kCommand + std::string(63 - kCommand.size(), ' ') + "\n"));
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":2,\"error\":\"expected a shorter line\"}\n",
              Send(kCommand + std::string(64 - kCommand.size(), ' ') + "\n"));
}

TEST_F(CInspectionLinkTest, BytesThatAreNoText_AreRefusedAndChangeNothing)
{
    AllowInput();
    DefineDialog(DLG_A, "DLG_A");
    Run();
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"error\":\"expected a line in UTF-8\"}\n",
              Send("CreateDialog DLG_A ODA_DELETE \xC0\x80\n"));
    EXPECT_EQ(
        "{\"type\":\"reply\",\"time\":0,\"line\":2,\"error\":\"expected a line of printable characters\"}\n",
        Send(std::string("CreateDialog DLG_A ODA_DELETE\0\n", 31)));
    EXPECT_EQ(
        "{\"type\":\"reply\",\"time\":0,\"line\":3,\"error\":\"expected a line of printable characters\"}\n",
        Send("\x7F\n"));
    EXPECT_EQ("", Run());
    EXPECT_EQ(NO_HANDLE, Manager().GetCurrentDialogID());
}

TEST_F(CInspectionLinkTest, WhatAnOperationThrows_IsTheResult)
{
    AllowInput();
    DefineDialog(DLG_A, "DLG_A");
    for (const EFailure eFailure : {FAILURE_INT, FAILURE_EXCEPTION})
    {
        Manager().RunOnce(HOOK_ON_DIALOG_ADDED, [eFailure](CGUIObject*) { ThrowFailure(eFailure); });
    }
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, [](CGUIObject*) { throw 1.5; });
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1");
    const std::string kFirst = Send("CreateDialog DLG_A ODA_DELETE\n");
    EXPECT_NE(std::string::npos, kFirst.find("\"line\":1,\"result\":\"throws int 7\"}")) << kFirst;
    const std::string kThird = Send("ShowPopup POP_1\n");
    EXPECT_NE(std::string::npos, kThird.find("\"line\":2,\"result\":\"throws\"}")) << kThird;
}

TEST_F(CInspectionLinkTest, ACommandThatRunsTheMainLoop_IsExecutedBeforeTheLinesBehindIt)
{
    AllowInput();
    DefineDialog(DLG_A, "DLG_A");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*) { m_kLink.Run(); });
    const std::string kReplies = Send("CreateDialog DLG_A ODA_DELETE\nGetCurrentDialogID\n");
    EXPECT_LT(kReplies.find("\"line\":1,"), kReplies.find("\"line\":2,")) << kReplies;
}

TEST_F(CInspectionLinkTest, MoreInputThanATurnTakes_WaitsForTheNext)
{
    m_kChannel.Receive(std::string(300, '\n'));
    Run();
    EXPECT_EQ(44U, m_kChannel.GetInput().size());
    Run();
    EXPECT_EQ(0U, m_kChannel.GetInput().size());
}

TEST_F(CInspectionLinkTest, AReplyThatIsLongerThanTheMemory_IsCut)
{
    eC_Char acSmall[CInspectionLink::cuiLeastMemory];
    CInspectionLink kSmall(Manager(), m_kChannel, acSmall, sizeof(acSmall));
    kSmall.AllowInput(m_kCommands, m_acInput, sizeof(m_acInput));
    Manager().RegisterDialogDefinition(std::string(150, '"').c_str(), DLG_A);
    m_kChannel.Receive("GetRegisteredPath DLG_A\n");
    kSmall.Run();
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"result\":\"\",\"cut\":true}",
              SplitLines(m_kChannel.TakeLines()).front());

    Manager().RegisterDialogDefinition(std::string(300, 'x').c_str(), DLG_B);
    AllowInput();
    EXPECT_EQ("{\"type\":\"reply\",\"time\":0,\"line\":1,\"result\":\"\\\"" + std::string(158, 'x') +
                  "\",\"cut\":true}\n",
              Send("GetRegisteredPath DLG_B\n"));
}
