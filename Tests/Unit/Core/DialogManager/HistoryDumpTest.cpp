// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

namespace
{
class CHistoryDumpTest : public CDialogTest
{
};

TEST_F(CHistoryDumpTest, Print_WithEmptyHistory_WritesTheHeaderAndTheCurrentDialog)
{
    Access::PrintDialogHistory(Manager());

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::PrintDialogHistory:\n
        DEBUG: CurrentDialog: 0 DialogAction executed on predecessors: 4\n
    )");
}

TEST_F(CHistoryDumpTest, Print_WritesTheOldestEntryFirstAndActionsAsNumbers_Intended)
{
    AddHistoryEntry(DLG_A, ODA_INVISIBLE);
    AddHistoryEntry(DLG_B, ODA_INVISIBLE_ALL);
    AddHistoryEntry(DLG_C, ODA_DELETE);
    AddHistoryEntry(OBJ_MSGBOX_OK, ODA_DELETE_ALL);
    AddHistoryEntry(DLG_D, ODA_NOTHING);
    AddHistoryEntry(DLG_E, eLastUnknownAction);
    Access::GetCurrentDialog(Manager()) = Access::DialogDescription_t(DLG_H, ODA_DELETE, true, true);

    Access::PrintDialogHistory(Manager());

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::PrintDialogHistory:\n
        DEBUG: DialogID: 1 DialogAction executed by successor : 0\n
        DEBUG: DialogID: 2 DialogAction executed by successor : 1\n
        DEBUG: DialogID: 3 DialogAction executed by successor : 2\n
        DEBUG: DialogID: -5 DialogAction executed by successor : 3\n
        DEBUG: DialogID: 4 DialogAction executed by successor : 4\n
        DEBUG: DialogID: 5 DialogAction executed by successor : 255\n
        DEBUG: CurrentDialog: 8 DialogAction executed on predecessors: 2\n
    )");
}

TEST_F(CHistoryDumpTest, Print_WritesTheActionExecutedByTheSuccessorAndNotTheOneOnPredecessors)
{
    AddHistoryEntry(DLG_A, ODA_DELETE, OBJ_1, ODA_INVISIBLE_ALL);

    Access::PrintDialogHistory(Manager());

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::PrintDialogHistory:\n
        DEBUG: DialogID: 1 DialogAction executed by successor : 2\n
        DEBUG: CurrentDialog: 0 DialogAction executed on predecessors: 4\n
    )");
}

TEST_F(CHistoryDumpTest, Print_WritesEveryLineAsAnEntryOfItsOwnWithEmptyFileAndLine)
{
    AddHistoryEntry(DLG_A, ODA_DELETE);

    Access::PrintDialogHistory(Manager());

    ASSERT_EQ(3U, TraceRecorder().GetEntries().size());
    for (const TraceEntry_t& kEntry : TraceRecorder().GetEntries())
    {
        EXPECT_EQ("DEBUG: ", kEntry.m_kPrefix);
        EXPECT_EQ("", kEntry.m_kFile);
        EXPECT_EQ("", kEntry.m_kLine);
    }
}

TEST_F(CHistoryDumpTest, Print_ChangesNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);

    Access::PrintDialogHistory(Manager());

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
    )");
}
} // namespace
