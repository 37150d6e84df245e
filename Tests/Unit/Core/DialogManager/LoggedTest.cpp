// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

// Everything that the operations log, from the first entry to the last.

namespace
{
using M = CGUIDialogManager;

class CLoggedTest : public CGUITest
{
protected:
    /** DLG_A was left hidden with its focus on OBJ_1, DLG_B stays shown with its focus on an anonymous
     *  object; DLG_C is current.
     */
    void Begin()
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
        DefineDialog(DLG_B, "DLG_B { Object - focusable }");
        DefineDialog(DLG_C, "DLG_C { OBJ_3 focusable }");
        Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
        Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
        Manager().CreateDialog(DLG_C, M::ODA_NOTHING);
        ClearEvents();
    }

    /** POP_1 is hidden on close; POP_2, which has a higher priority, is deleted. Both have a display time. */
    void DefinePopups()
    {
        DefinePopup(POP_1, M::PRIO_MEDIUM, 3000, false, "POP_1");
        DefinePopup(POP_2, M::PRIO_HIGH, 1000, true, "POP_2");
    }

    void RefuseFocus() { Object(OBJ_1)->SetFocusable(false); }
};

TEST_F(CLoggedTest, CreateDialog_OfADialogOfTheHistoryThatRefusesTheFocus)
{
    Begin();
    RefuseFocus();

    Manager().CreateDialog(DLG_A, M::ODA_DELETE_ALL);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 1 is already contained in the GUI.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        WARNING: CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic object ID,is deleted. This destroys the focus history.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 17 Trying to recover focus on ancestors.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, CreateDialog_WithARefusedDeletion)
{
    Begin();
    Manager().SetVeto(DLG_C);

    Manager().CreateDialog(DLG_A, M::ODA_DELETE);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 1 is already contained in the GUI.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: Dialog with ID 3 may not be deleted and will be set invisible instead.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ToADialogThatIsGone)
{
    Begin();
    Manager().Back(true);
    delete Object(DLG_A);
    ClearEvents();

    Manager().Back(true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been deleted in the mean time.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ToADialogThatRefusesTheFocus)
{
    Begin();
    Manager().Back(true);
    RefuseFocus();
    ClearEvents();

    Manager().Back(false);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 17 Trying to recover focus on ancestors.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ToADialogThatIsLoadedAgain)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_DELETE);
    ClearEvents();

    Manager().Back(true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        INFO: Time for loading code:DLG_A: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ToADialogThatNothingGives)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_DELETE);
    Manager().UnregisterDialogDefinition(DLG_A);
    ClearEvents();

    Manager().Back(true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 1.\n
        DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ThatBringsNothingBack_ArbitratesToo)
{
    DefineDialog(DLG_A, "DLG_A");
    DefineDialog(DLG_B, "DLG_B");
    DefinePopup(POP_1, M::PRIO_LOW, 0, true, "POP_1");
    Manager().CreateDialog(DLG_A, M::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, M::ODA_INVISIBLE);
    Manager().ShowPopup(POP_1)->SetInvisible(true);
    delete Object(DLG_A);
    ClearEvents();

    Manager().Back(true);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        OnDialogDeletion(DLG_B) -> true
        ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been deleted in the mean time.\n @Source/Core/GUIDialogManager.cpp:#
        OnLastDialogDeletion()
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 3 is activated with a display time of 0 ms.\n
        OnAfterDialogDeletion(DLG_B, NO_HANDLE)
    )");
}

TEST_F(CLoggedTest, BackToDialog_Direct_ToADialogThatRefusesTheFocus)
{
    Begin();
    RefuseFocus();

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 17 Trying to recover focus on ancestors.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, BackToDialog_Direct_ToADialogThatIsGone)
{
    Begin();
    delete Object(DLG_A);

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, false, false));

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been deleted in the mean time.\n @Source/Core/GUIDialogManager.cpp:#
        ERROR: CGUIDialogManager::BackToDialog: Unable to reactivate dialog with id 1.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CLoggedTest, ClearDialogHistory_ToADialogThatIsGone)
{
    Begin();
    delete Object(DLG_A);

    Manager().ClearDialogHistory(1, true, true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        ERROR: CGUIDialogManager::MakeDialogVisible: Dialog could not been made visible as it has been deleted in the mean time.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CLoggedTest, ClearDialogHistory_ToADialogThatRefusesTheFocus)
{
    Begin();
    RefuseFocus();

    Manager().ClearDialogHistory(1, true, true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        ERROR: CGUIDialogManager::RecoverFocus: Unable to recover focus on object with id 17 Trying to recover focus on ancestors.\n @Source/Core/GUIDialogManager.cpp:#
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, CreateDialog_ThatHidesTheOldDialog)
{
    Begin();

    Manager().CreateDialog(DLG_A, M::ODA_INVISIBLE);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 1 is already contained in the GUI.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, CreateDialog_ThatDeletesTheOldDialogUnderAPopup)
{
    Begin();
    DefinePopups();
    DefineDialog(DLG_D, "DLG_D");
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().CreateDialog(DLG_D, M::ODA_DELETE);

    EXPECT_TRACE(R"(
        INFO: Time for loading code:DLG_D: 0.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
    )");
}

TEST_F(CLoggedTest, AddDialog_ThatHidesTheOldDialog)
{
    Begin();
    CGUIObject* pkDialog = Attach("DLG_E");

    Manager().AddDialog(pkDialog, M::ODA_INVISIBLE, true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::AddDialog: new dialog has object ID 5.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, AddDialog_ThatDeletesTheOldDialogs)
{
    Begin();
    CGUIObject* pkDialog = Attach("DLG_E");

    Manager().AddDialog(pkDialog, M::ODA_DELETE_ALL, true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        WARNING: CGUIDialogManager::DeleteDialog: A dialog with a focussed object having a dynamic object ID,is deleted. This destroys the focus history.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::AddDialog: new dialog has object ID 5.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, AddedDialog_ThatIsToBeDeleted)
{
    Begin();
    Manager().AddDialog(Attach("DLG_E"), M::ODA_INVISIBLE, true);
    ClearEvents();

    Manager().CreateDialog(DLG_A, M::ODA_DELETE);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with the id 1 is already contained in the GUI.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 5.\n
        DEBUG: CGUIDialogManager::DeleteDialog: Dialog with ID 5 may not be deleted and will be set invisible instead.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ThatDeletes)
{
    Begin();

    Manager().Back(true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, Back_ThatHidesUnderAPopup)
{
    Begin();
    DefinePopups();
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().Back(false);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
    )");
}

TEST_F(CLoggedTest, BackToDialog_Direct)
{
    Begin();

    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, BackToDialog_Direct_WithoutCurrentDialog)
{
    Begin();
    Manager().AddDialog(Object(DLG_C), M::ODA_DELETE, true);
    ClearEvents();

    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 0.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, BackToDialog_Stepwise)
{
    Begin();

    Manager().BackToDialog(DLG_A, true, true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, ClearDialogHistory_WithoutTheCurrentDialog)
{
    Begin();

    Manager().ClearDialogHistory(0, true, false);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
    )");
}

TEST_F(CLoggedTest, ClearDialogHistory_WithTheCurrentDialog)
{
    Begin();

    Manager().ClearDialogHistory(0, false, true);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 3.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 2.\n
        DEBUG: CGUIDialogManager::DeleteDialog: removing dialog with ID 1.\n
    )");
}

TEST_F(CLoggedTest, ShowPopup_OfTheFirstPopup)
{
    DefinePopups();

    Manager().ShowPopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
    )");
}

TEST_F(CLoggedTest, ShowPopup_OfAMoreImportantPopup)
{
    DefinePopups();
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().ShowPopup(POP_2);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 1000 ms.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is deactivated, because popups with hiher priority are active.\n
    )");
}

TEST_F(CLoggedTest, ShowPopup_OfALessImportantPopup)
{
    DefinePopups();
    Manager().ShowPopup(POP_2);
    ClearEvents();

    Manager().ShowPopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 10 with priority 7 is activated with a display time of 1000 ms.\n
    )");
}

TEST_F(CLoggedTest, ShowPopup_OfADisplayedPopup)
{
    DefinePopups();
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().ShowPopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is already contained in active popup list.\n
        DEBUG: CGUIDialogManager::ShowPopup: Timout of is restarted with 3000 ms.\n
    )");
}

TEST_F(CLoggedTest, ClosePopup_OverALessImportantPopup)
{
    DefinePopups();
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    ClearEvents();

    Manager().ClosePopup(POP_2);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
    )");
}

TEST_F(CLoggedTest, ClosePopup_OfTheLastPopup)
{
    DefinePopups();
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Manager().ClosePopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}

TEST_F(CLoggedTest, APopup_WhoseTimeIsUp)
{
    DefinePopups();
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Clock().Advance(3000);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n
    )");
}
} // namespace
