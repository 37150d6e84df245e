// SPDX-License-Identifier: MIT
#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

namespace
{
/** A current dialog DLG_A whose OBJ_1 has the focus, and popups POP_1 and POP_2 with OBJ_11 and OBJ_12. */
class CPopupFocusTest : public CGUITest
{
protected:
    void SetUp() override
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
        DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable }");
        DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1 { OBJ_11 focusable }");
        DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_2 { OBJ_12 focusable }");
        Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
        ClearEvents();
    }
};

TEST_F(CPopupFocusTest, ShowPopup_RemembersTheFocusAndGivesItToNoPopupIntended)
{
    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, delete on close, shown
        remembered: OBJ_1
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
          POP_1
            OBJ_11 focusable
    )");
}

TEST_F(CPopupFocusTest, ShowPopup_WhoseLoadThrows_RemembersNothing)
{
    CodeFactory().FailLoad(1, FAILURE_INT);

    EXPECT_THROW(Manager().ShowPopup(POP_1), int);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, ShowPopup_WhoseLoadMovesTheFocus_RemembersWhereItIsThen)
{
    CodeFactory().RegisterBuilder(PathOf(POP_1),
                                  [this]
                                  {
                                      SetFocus(OBJ_2);
                                      return new CGUICompositeObject(nullptr, POP_1);
                                  });

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, delete on close, shown
        remembered: OBJ_2
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
          POP_1
    )");
}

TEST_F(CPopupFocusTest, ClosingTheLastPopup_GivesTheFocusBackAndForgetsIt)
{
    Manager().ShowPopup(POP_1);
    SetFocus(OBJ_11);
    ClearEvents();

    Manager().ClosePopup(POP_1);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_1)
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, ClosingTheLastPopup_MovesTheFocusEvenIfAnotherObjectOfTheDialogHasItNow)
{
    Manager().ShowPopup(POP_1);
    SetFocus(OBJ_2);

    Manager().ClosePopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, ASecondPopup_DoesNotChangeWhatIsRememberedAndClosingOneOfTwoGivesNothingBack)
{
    Manager().ShowPopup(POP_1);
    SetFocus(OBJ_2);
    Manager().ShowPopup(POP_2);
    SetFocus(OBJ_12);

    Manager().ClosePopup(POP_2);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, delete on close, shown
        remembered: OBJ_1
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focusable
          POP_1
            OBJ_11 focusable
    )");

    Manager().ClosePopup(POP_1);
    EXPECT_EQ(Object(OBJ_1), Focus());
}

TEST_F(CPopupFocusTest, ShowPopup_WithTheFocusOutsideTheDialog_RemembersNothing)
{
    Attach("OBJ_9 focusable");
    SetFocus(OBJ_9);

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, delete on close, shown
        focus: OBJ_9
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focusable
          OBJ_9 focussed
          POP_1
            OBJ_11 focusable
    )");
    Manager().ClosePopup(POP_1);
    EXPECT_EQ(Object(OBJ_9), Focus());
}

TEST_F(CPopupFocusTest, ShowPopup_WithTheFocusOnTheDialogItself_RemembersNothing)
{
    Object(DLG_A)->SetFocusable(true);
    SetFocus(DLG_A);

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, delete on close, shown
        focus: DLG_A
        tree:
          DLG_A focussed
            OBJ_1 focusable
            OBJ_2 focusable
          POP_1
            OBJ_11 focusable
    )");
}

TEST_F(CPopupFocusTest, ShowPopup_WithoutFocus_RemembersNothing)
{
    Object(OBJ_1)->SetFocusable(false);

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        active: POP_1 prio 5, 0 ms, delete on close, shown
        tree:
          DLG_A
            OBJ_1
            OBJ_2 focusable
          POP_1
            OBJ_11 focusable
    )");
}

TEST_F(CPopupFocusTest, ShowPopup_WithoutCurrentDialog_RemembersNothing)
{
    Manager().ClearDialogHistory(0, false, true);
    Object(DLG_A)->SetInvisible(false);
    SetFocus(OBJ_1);

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, delete on close, shown
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
          POP_1
            OBJ_11 focusable
    )");
}

TEST_F(CPopupFocusTest, ShowPopup_OfAnUnregisteredPopup_RemembersNothing)
{
    Manager().ShowPopup(POP_3);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, ShowPopup_ThatFailsToMakeThePopup_KeepsWhatItRemembered)
{
    Manager().RegisterPopupDefinition(POP_3, CGUIDialogManager::PRIO_MEDIUM, 0, true, "");

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_3));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        remembered: OBJ_1
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, RememberedObjectThatIsDestroyed_IsForgotten)
{
    Manager().ShowPopup(POP_1);
    delete Object(OBJ_1);
    SetFocus(OBJ_2);

    Manager().ClosePopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_2 focussed
    )");
}

TEST_F(CPopupFocusTest, RememberedObjectThatRefusesTheFocus_IsForgottenWithoutAnyEntry)
{
    Manager().ShowPopup(POP_1);
    Object(OBJ_1)->SetFocusable(false);
    ClearEvents();

    Manager().ClosePopup(POP_1);

    EXPECT_EVENTS(R"(
        OnPopupDeactivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
            OBJ_1
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, RememberedObjectOfAnotherDialog_StaysRememberedUntilItsDialogIsBack)
{
    Manager().ShowPopup(POP_1);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_NOTHING);
    SetFocus(OBJ_3);

    Manager().ClosePopup(POP_1);

    EXPECT_STATE(R"(
        current: DLG_B after ODA_NOTHING
        history: DLG_A ODA_NOTHING focus OBJ_1 (after ODA_NOTHING)
        remembered: OBJ_1
        focus: OBJ_3
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focusable
          DLG_B
            OBJ_3 focussed
    )");

    Manager().Back(true);
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, RememberedObject_StaysRememberedWhileNoDialogIsCurrent)
{
    Manager().ShowPopup(POP_1);
    Manager().ClearDialogHistory(0, false, true);

    Manager().ClosePopup(POP_1);

    EXPECT_STATE(R"(
        current: none
        remembered: OBJ_1
        tree:
          DLG_A invisible
            OBJ_1 focusable
            OBJ_2 focusable
    )");
}

TEST_F(CPopupFocusTest, ThePopupAfterTheLastOneWasClosed_RemembersAnew)
{
    Manager().ShowPopup(POP_1);
    Manager().ClosePopup(POP_1);
    SetFocus(OBJ_2);

    Manager().ShowPopup(POP_2);
    SetFocus(OBJ_12);
    Manager().ClosePopup(POP_2);

    EXPECT_EQ(Object(OBJ_2), Focus());
}

TEST_F(CPopupFocusTest, APopupWhoseTimeIsUp_GivesTheFocusBackToo)
{
    Manager().UpdateRegisteredPopupDisplayTime(POP_1, 250);
    Manager().ShowPopup(POP_1);
    SetFocus(OBJ_11);

    Clock().Advance(250);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
            OBJ_2 focusable
    )");
}
} // namespace
