// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

class CStatePrinterTest : public CGUITest
{
};

TEST_F(CStatePrinterTest, FreshManager_HasOneLine)
{
    EXPECT_WHOLE_STATE("current: none");
}

TEST_F(CStatePrinterTest, EveryPart_HasItsLines)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 { - } }");
    DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable; OBJ_4 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_DELETE_ALL);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().CreateDynamicObjectID();
    Clock().Advance(500);

    EXPECT_WHOLE_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_DELETE_ALL)
        dialog: DLG_A "code:DLG_A"
        dialog: DLG_B "code:DLG_B"
        popup: POP_1 prio 5, 3000 ms, delete on close, "code:POP_1"
        popup: POP_2 prio 3, 0 ms, hide on close, "code:POP_2"
        active: POP_2 prio 3, 0 ms, hide on close, hidden
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 2500 ms left
        remembered: OBJ_3
        dynamic: 29
        focus: OBJ_3
        tree:
          DLG_A invisible
            OBJ_1 focusable
            OBJ_2
              -
          DLG_B
            OBJ_3 focussed
            OBJ_4 focusable
          POP_2 invisible
          POP_1
    )");
}

TEST_F(CStatePrinterTest, History_StandsWithTheMostRecentEntryFirst)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    DefineDialog(DLG_C, "DLG_C");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_DELETE);
    Manager().CreateDialog(DLG_C, CGUIDialogManager::ODA_INVISIBLE);

    EXPECT_TEXT(R"(
        history: DLG_B ODA_INVISIBLE (after ODA_DELETE)
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
    )",
                PrintState(Manager(), STATE_HISTORY));
}

TEST_F(CStatePrinterTest, FlagsThatAreNotTheUsualOnes_Show)
{
    CGUITestAccess::GetCurrentDialog(Manager()) =
        CGUITestAccess::DialogDescription_t(DLG_A, CGUIDialogManager::ODA_DELETE, false, false);
    CGUITestAccess::GetHistory(Manager()).Add(CGUITestAccess::HistoryEntry_t(
        CGUITestAccess::DialogDescription_t(DLG_B, CGUIDialogManager::ODA_NOTHING, false, false),
        static_cast<CGUIDialogManager::EOldDialogAction>(9), static_cast<ObjectHandle_t>(29)));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_DELETE, no deletion, no recovery
        history: DLG_B 9 focus 29 (after ODA_NOTHING, no deletion, no recovery)
    )");
}

TEST_F(CStatePrinterTest, NoCurrentDialogWithLeftoversOfOne_Shows)
{
    CGUITestAccess::GetCurrentDialog(Manager()) =
        CGUITestAccess::DialogDescription_t(NO_HANDLE, CGUIDialogManager::ODA_DELETE, true, true);
    EXPECT_STATE("current: none after ODA_DELETE");
}

TEST_F(CStatePrinterTest, APopupWhoseObjectIsGone_Shows)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    delete Object(POP_1);

    EXPECT_STATE(R"(
        current: none
        active: gone prio 5, 3000 ms, delete on close, 3000 ms left
    )");
}

TEST_F(CStatePrinterTest, APopupOutsideTheTree_Shows)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "");
    Manager().SetPopupCreator(POP_2, [] { return new CGUIObject; });
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);

    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, delete on close, hidden, detached
        active: POP_1 prio 5, 0 ms, delete on close, shown
        tree:
          POP_1
    )");
    Manager().ClosePopup(POP_2);
}

TEST_F(CStatePrinterTest, Parts_AreChosenOneByOne)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().ShowPopup(POP_1);
    Manager().CreateDynamicObjectID();

    EXPECT_EQ("current: DLG_A after ODA_NOTHING\n", PrintState(Manager(), STATE_CURRENT));
    EXPECT_EQ("", PrintState(Manager(), STATE_HISTORY));
    EXPECT_EQ("dialog: DLG_A \"code:DLG_A\"\n", PrintState(Manager(), STATE_DIALOG_DEFINITIONS));
    EXPECT_EQ("popup: POP_1 prio 5, 0 ms, delete on close, \"code:POP_1\"\n",
              PrintState(Manager(), STATE_POPUP_DEFINITIONS));
    EXPECT_EQ("active: POP_1 prio 5, 0 ms, delete on close, shown\n",
              PrintState(Manager(), STATE_ACTIVE_POPUPS));
    EXPECT_EQ("remembered: OBJ_1\n", PrintState(Manager(), STATE_REMEMBERED_FOCUS));
    EXPECT_EQ("dynamic: 29\n", PrintState(Manager(), STATE_DYNAMIC_IDENTIFIERS));
    EXPECT_EQ("focus: OBJ_1\n", PrintState(Manager(), STATE_FOCUS));
    EXPECT_EQ("tree:\n  DLG_A\n    OBJ_1 focussed\n  POP_1\n", PrintState(Manager(), STATE_TREE));
}

TEST_F(CStatePrinterTest, Printing_LogsNothingAndWorksWithoutRoot)
{
    DestroyRoot();
    EXPECT_WHOLE_STATE("current: none");
    EXPECT_TRUE(TakeEvents().empty());
}
