// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <ostream>
#include <stdexcept>
#include <string>

namespace
{
/** What an action does to the dialog of a history entry. */
enum EOutcome : unsigned char
{
    OUTCOME_HIDDEN,
    OUTCOME_DELETED,
    OUTCOME_RECREATED,
    OUTCOME_UNTOUCHED
};

/** One cell of the table. */
struct Cell_t
{
    CGUIDialogManager::EOldDialogAction m_eAction;   ///< applied to the history
    CGUIDialogManager::EOldDialogAction m_eRecorded; ///< recorded in the entry
    EOutcome m_eOutcome;
};

void PrintTo(const Cell_t& kCell, std::ostream* pStream)
{
    *pStream << NameOfAction(kCell.m_eAction) << " on " << NameOfAction(kCell.m_eRecorded);
}

constexpr auto INVISIBLE = CGUIDialogManager::ODA_INVISIBLE;
constexpr auto INVISIBLE_ALL = CGUIDialogManager::ODA_INVISIBLE_ALL;
constexpr auto DELETE = CGUIDialogManager::ODA_DELETE;
constexpr auto DELETE_ALL = CGUIDialogManager::ODA_DELETE_ALL;
constexpr auto NOTHING = CGUIDialogManager::ODA_NOTHING;
constexpr auto FIVE = static_cast<CGUIDialogManager::EOldDialogAction>(5);
constexpr auto LAST = static_cast<CGUIDialogManager::EOldDialogAction>(255);

// Intended: deleting all leaves hidden dialogs alive while it deletes those that are still shown.
constexpr Cell_t cakCells[] = {
    {INVISIBLE, INVISIBLE, OUTCOME_HIDDEN},
    {INVISIBLE, INVISIBLE_ALL, OUTCOME_HIDDEN},
    {INVISIBLE, DELETE, OUTCOME_DELETED},
    {INVISIBLE, DELETE_ALL, OUTCOME_DELETED},
    {INVISIBLE, NOTHING, OUTCOME_RECREATED},
    {INVISIBLE, FIVE, OUTCOME_UNTOUCHED},
    {INVISIBLE, LAST, OUTCOME_UNTOUCHED},

    {INVISIBLE_ALL, INVISIBLE, OUTCOME_HIDDEN},
    {INVISIBLE_ALL, INVISIBLE_ALL, OUTCOME_HIDDEN},
    {INVISIBLE_ALL, DELETE, OUTCOME_HIDDEN},
    {INVISIBLE_ALL, DELETE_ALL, OUTCOME_HIDDEN},
    {INVISIBLE_ALL, NOTHING, OUTCOME_HIDDEN},
    {INVISIBLE_ALL, FIVE, OUTCOME_HIDDEN},
    {INVISIBLE_ALL, LAST, OUTCOME_HIDDEN},

    {DELETE, INVISIBLE, OUTCOME_HIDDEN},
    {DELETE, INVISIBLE_ALL, OUTCOME_HIDDEN},
    {DELETE, DELETE, OUTCOME_DELETED},
    {DELETE, DELETE_ALL, OUTCOME_DELETED},
    {DELETE, NOTHING, OUTCOME_RECREATED},
    {DELETE, FIVE, OUTCOME_UNTOUCHED},
    {DELETE, LAST, OUTCOME_UNTOUCHED},

    {DELETE_ALL, INVISIBLE, OUTCOME_HIDDEN},
    {DELETE_ALL, INVISIBLE_ALL, OUTCOME_HIDDEN},
    {DELETE_ALL, DELETE, OUTCOME_DELETED},
    {DELETE_ALL, DELETE_ALL, OUTCOME_DELETED},
    {DELETE_ALL, NOTHING, OUTCOME_DELETED},
    {DELETE_ALL, FIVE, OUTCOME_DELETED},
    {DELETE_ALL, LAST, OUTCOME_DELETED},

    {NOTHING, INVISIBLE, OUTCOME_HIDDEN},
    {NOTHING, INVISIBLE_ALL, OUTCOME_HIDDEN},
    {NOTHING, DELETE, OUTCOME_DELETED},
    {NOTHING, DELETE_ALL, OUTCOME_DELETED},
    {NOTHING, NOTHING, OUTCOME_RECREATED},
    {NOTHING, FIVE, OUTCOME_UNTOUCHED},
    {NOTHING, LAST, OUTCOME_UNTOUCHED},

    {FIVE, INVISIBLE, OUTCOME_UNTOUCHED},
    {FIVE, INVISIBLE_ALL, OUTCOME_UNTOUCHED},
    {FIVE, DELETE, OUTCOME_UNTOUCHED},
    {FIVE, DELETE_ALL, OUTCOME_UNTOUCHED},
    {FIVE, NOTHING, OUTCOME_UNTOUCHED},
    {FIVE, FIVE, OUTCOME_UNTOUCHED},
    {FIVE, LAST, OUTCOME_UNTOUCHED},

    {LAST, INVISIBLE, OUTCOME_UNTOUCHED},
    {LAST, INVISIBLE_ALL, OUTCOME_UNTOUCHED},
    {LAST, DELETE, OUTCOME_UNTOUCHED},
    {LAST, DELETE_ALL, OUTCOME_UNTOUCHED},
    {LAST, NOTHING, OUTCOME_UNTOUCHED},
    {LAST, FIVE, OUTCOME_UNTOUCHED},
    {LAST, LAST, OUTCOME_UNTOUCHED},
};

std::string NameOfCell(const ::testing::TestParamInfo<Cell_t>& kInfo)
{
    return NameOfAction(kInfo.param.m_eAction) + "_On_" + NameOfAction(kInfo.param.m_eRecorded);
}

/** DLG_A is in the history, and DLG_B is above it in the tree. */
class CHistoryActionTableTest : public CDialogTest, public ::testing::WithParamInterface<Cell_t>
{
protected:
    void Record() { AddHistoryEntry(DLG_A, GetParam().m_eRecorded, NO_HANDLE, ODA_INVISIBLE); }

    void Apply()
    {
        ClearEvents();
        Access::ApplyActionToHistory(Manager(), GetParam().m_eAction);
    }

    void ExpectHistoryUnchanged()
    {
        EXPECT_TEXT("history: DLG_A " + NameOfAction(GetParam().m_eRecorded) + " (after ODA_INVISIBLE)\n",
                    PrintState(Manager(), STATE_HISTORY));
    }

    std::string Tree() { return PrintState(Manager(), STATE_CURRENT | STATE_TREE); }
};

INSTANTIATE_TEST_SUITE_P(Table, CHistoryActionTableTest, ::testing::ValuesIn(cakCells), NameOfCell);

TEST_P(CHistoryActionTableTest, Apply_ToADialogThatIsShown)
{
    DefineDialog(DLG_A, "DLG_A");
    Attach("DLG_A");
    Attach("DLG_B");
    Record();

    Apply();

    switch (GetParam().m_eOutcome)
    {
    case OUTCOME_HIDDEN:
        EXPECT_EVENTS("OnDialogDeactivation(DLG_A)\n");
        EXPECT_TEXT("current: none\ntree:\n  DLG_A invisible\n  DLG_B\n", Tree());
        break;
    case OUTCOME_DELETED:
        EXPECT_HOOKS(R"(
            OnDialogDeletion(DLG_A) -> true
        )");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n", Tree());
        break;
    case OUTCOME_RECREATED:
        EXPECT_EVENTS("");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n  DLG_A\n", Tree());
        break;
    case OUTCOME_UNTOUCHED:
        EXPECT_EVENTS("");
        EXPECT_TEXT("current: none\ntree:\n  DLG_A\n  DLG_B\n", Tree());
        break;
    }
    EXPECT_EQ(0U, CodeFactory().GetLoads());
    ExpectHistoryUnchanged();
}

TEST_P(CHistoryActionTableTest, Apply_ToADialogThatIsHidden)
{
    DefineDialog(DLG_A, "DLG_A");
    Attach("DLG_A invisible");
    Attach("DLG_B");
    Record();

    Apply();

    switch (GetParam().m_eOutcome)
    {
    case OUTCOME_DELETED:
        EXPECT_HOOKS(R"(
            OnDialogDeletion(DLG_A) -> true
        )");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n", Tree());
        break;
    case OUTCOME_RECREATED:
        EXPECT_EVENTS("");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n  DLG_A\n", Tree());
        break;
    case OUTCOME_HIDDEN:
    case OUTCOME_UNTOUCHED:
        EXPECT_EVENTS("");
        EXPECT_TEXT("current: none\ntree:\n  DLG_A invisible\n  DLG_B\n", Tree());
        break;
    }
    EXPECT_EQ(0U, CodeFactory().GetLoads());
    ExpectHistoryUnchanged();
}

TEST_P(CHistoryActionTableTest, Apply_ToADialogThatIsGone)
{
    DefineDialog(DLG_A, "DLG_A");
    Attach("DLG_B");
    Record();

    Apply();

    switch (GetParam().m_eOutcome)
    {
    case OUTCOME_DELETED:
        EXPECT_EVENTS(R"(
            DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
        )");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n", Tree());
        break;
    case OUTCOME_RECREATED:
        EXPECT_EVENTS(R"(
            INFO: Time for loading code:DLG_A: 0.\n
        )");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n  DLG_A\n", Tree());
        break;
    case OUTCOME_HIDDEN:
    case OUTCOME_UNTOUCHED:
        EXPECT_EVENTS("");
        EXPECT_TEXT("current: none\ntree:\n  DLG_B\n", Tree());
        break;
    }
    ExpectHistoryUnchanged();
}

class CHistoryActionTest : public CDialogTest
{
};

TEST_F(CHistoryActionTest, Apply_WalksFromTheOldestEntryToTheNewest)
{
    Attach("DLG_A");
    Attach("DLG_B");
    Attach("DLG_C");
    AddHistoryEntry(DLG_B, ODA_NOTHING);
    AddHistoryEntry(DLG_A, ODA_DELETE);
    AddHistoryEntry(DLG_C, ODA_INVISIBLE);

    Access::ApplyActionToHistory(Manager(), ODA_INVISIBLE_ALL);

    EXPECT_EVENTS(R"(
        OnDialogDeactivation(DLG_B)
        OnDialogDeactivation(DLG_A)
        OnDialogDeactivation(DLG_C)
    )");
}

TEST_F(CHistoryActionTest, Apply_RestoresEveryEntryToItsOwnRecordedState)
{
    DefineDialog(DLG_D, "DLG_D { OBJ_4 }");
    Attach("DLG_A");
    Attach("DLG_B");
    Attach("DLG_C invisible");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE_ALL);
    AddHistoryEntry(DLG_B, ODA_DELETE_ALL);
    AddHistoryEntry(DLG_C, ODA_NOTHING);
    AddHistoryEntry(DLG_D, ODA_NOTHING);

    Access::ApplyActionToHistory(Manager(), ODA_DELETE);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogDeletion(DLG_B) -> true
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_D ODA_NOTHING (after ODA_NOTHING)
        history: DLG_C ODA_NOTHING (after ODA_NOTHING)
        history: DLG_B ODA_DELETE_ALL (after ODA_NOTHING)
        history: DLG_A ODA_INVISIBLE_ALL (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_C
          DLG_D
            OBJ_4
    )");
}

TEST_F(CHistoryActionTest, Apply_OfADeletingAction_UsesTheEntrysOwnDescription)
{
    Attach("DLG_A");
    const Access::DialogDescription_t kNoDeletion(DLG_A, ODA_NOTHING, false, true);
    Access::GetHistory(Manager()).Add(Access::HistoryEntry_t(kNoDeletion, ODA_NOTHING));

    Access::ApplyActionToHistory(Manager(), ODA_DELETE_ALL);

    EXPECT_HOOKS(R"(
        OnDialogDeactivation(DLG_A)
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_A ODA_NOTHING (after ODA_NOTHING, no deletion)
        tree:
          DLG_A invisible
    )");
}

TEST_F(CHistoryActionTest, Apply_ToAnEmptyHistory_DoesNothing)
{
    for (const EOldDialogAction eAction :
         {ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_DELETE, ODA_DELETE_ALL, ODA_NOTHING})
    {
        Access::ApplyActionToHistory(Manager(), eAction);
    }

    EXPECT_EVENTS("");
    EXPECT_STATE("current: none\n");
}

TEST_F(CHistoryActionTest, Apply_WhenAHookThrows_StopsThereAndPassesTheExceptionOn)
{
    Attach("DLG_A");
    Attach("DLG_B");
    Attach("DLG_C");
    AddHistoryEntry(DLG_A, ODA_INVISIBLE);
    AddHistoryEntry(DLG_B, ODA_INVISIBLE);
    AddHistoryEntry(DLG_C, ODA_INVISIBLE);
    Manager().FailHook(2, FAILURE_EXCEPTION);

    EXPECT_THROW(Access::ApplyActionToHistory(Manager(), ODA_INVISIBLE_ALL), std::runtime_error);

    EXPECT_EVENTS(R"(
        OnDialogDeactivation(DLG_A)
        OnDialogDeactivation(DLG_B) throws deliberate failure
    )");
    EXPECT_STATE(R"(
        current: none
        history: DLG_C ODA_INVISIBLE (after ODA_NOTHING)
        history: DLG_B ODA_INVISIBLE (after ODA_NOTHING)
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        tree:
          DLG_A invisible
          DLG_B
          DLG_C
    )");
}

TEST_F(CHistoryActionTest, Apply_WhenTheFactoryThrowsOnRecreation_PassesTheExceptionOn)
{
    DefineDialog(DLG_A, "DLG_A");
    AddHistoryEntry(DLG_A, ODA_NOTHING);
    CodeFactory().FailLoad(1, FAILURE_INT);

    EXPECT_THROW(Access::ApplyActionToHistory(Manager(), ODA_NOTHING), int);
}
} // namespace
