// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/ChangePrinter.h"

#include "Inspection/InspectionLink.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/Inspection/CollectingChannel.h"
#include "Tests/Unit/UnitTestHandles.h"

class CChangePrinterTest : public CGUITest
{
protected:
    CChangePrinterTest()
    {
        m_kReader.SetListener(&m_kPrinter);
        m_kLink.AllowInput(m_kCommands, m_acInput, sizeof(m_acInput));
    }

    /** @return what is printed after a turn with that input */
    std::string Turn(const std::string& kInput = std::string())
    {
        m_kChannel.Receive(kInput);
        m_kLink.Run();
        EXPECT_EQ("", m_kReader.Take(m_kChannel.TakeLines()));
        return m_kPrinter.TakeText();
    }

    CCollectingChannel m_kChannel;
    eC_Char m_acLine[512] = {};
    eC_Char m_acInput[64] = {};
    CInspectionLink m_kLink{Manager(), m_kChannel, m_acLine, sizeof(m_acLine)};
    CInspectionCommands m_kCommands{Manager()};
    CInspectionReader m_kReader;
    CChangePrinter m_kPrinter{m_kReader.GetState()};
};

TEST_F(CChangePrinterTest, EachChange_IsPrintedOnce)
{
    EXPECT_TEXT(R"(
        0 ms + current: none
    )",
                Turn());
    EXPECT_EQ("", Turn());
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    Clock().Set(1200);
    EXPECT_TEXT(R"(
        1200 ms INFO: Time for loading code:DLG_A: 0.
        1200 ms DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!
        1200 ms = DLG_A
        1200 ms ! expected a command, found 'Toch'
        1200 ms - current: none
        1200 ms + current: DLG_A after ODA_NOTHING
        1200 ms + dialog: DLG_A "code:DLG_A"
        1200 ms + focus: OBJ_1
        1200 ms + tree:
        1200 ms +   DLG_A
        1200 ms +     OBJ_1 focussed
    )",
                Turn("CreateDialog DLG_A ODA_NOTHING\nToch\n"));
    EXPECT_EQ(2U, m_kPrinter.GetReplies());
    EXPECT_TEXT(R"(
        1200 ms - focus: OBJ_1
        1200 ms -     OBJ_1 focussed
        1200 ms +     OBJ_1 invisible focusable
    )",
                Turn("hide OBJ_1\n"));
    EXPECT_EQ("", Turn("state\n"));
}

TEST_F(CChangePrinterTest, TimesThatAreLeft_AreNoChange)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Turn("ShowPopup POP_1\n");
    Clock().Set(1000);
    EXPECT_EQ("", Turn("state\n"));
}

TEST_F(CChangePrinterTest, Errors_Hazards_AndWhatWasDropped_ArePrinted)
{
    Turn();
    m_kChannel.SetRoom(0);
    CGUITrace::LogWarning("lost");
    m_kChannel.SetRoom(CCollectingChannel::cuiAnyNumber);
    CGUITrace::LogError("two\nlines\n", "Source/File.cpp", 7);
    m_kLink.OnHazard({HAZARD_NO_FOCUS, DLG_A, "no-focus", "Nobody has it."});
    m_kLink.RecordStart();
    m_kLink.RecordInput("key ok");
    m_kLink.RecordTurn();
    EXPECT_TEXT(R"(
        0 ms # 1 lines were dropped
        0 ms ERROR: two
        0 ms ERROR: lines
        0 ms   at Source/File.cpp:7
        0 ms HAZARD: no-focus DLG_A: Nobody has it.
        0 ms # the program records its run
        0 ms > key ok
    )",
                Turn());
}
