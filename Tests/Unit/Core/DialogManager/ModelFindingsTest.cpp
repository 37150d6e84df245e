// SPDX-License-Identifier: MIT
#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <functional>
#include <string>

namespace
{
/** What the comparison with the model under Tests/Model showed, as single cases. */
class CModelFindingsTest : public CDialogTest
{
protected:
    /** Registers a popup of middle priority that is loaded in code. */
    void Define(ObjectHandle_t ePopupID, eC_Bool bDeleteOnClose)
    {
        DefinePopup(ePopupID, CGUIDialogManager::PRIO_MEDIUM, 0, bDeleteOnClose, NameOfHandle(ePopupID));
    }

    CRecordingDialogManager::Action_t CloseAndShow(ObjectHandle_t eClosedID, ObjectHandle_t eShownID)
    {
        return [this, eClosedID, eShownID](CGUIObject*)
        {
            EXPECT_TRUE(Manager().ClosePopup(eClosedID));
            EXPECT_NE(nullptr, Manager().ShowPopup(eShownID));
        };
    }

    /** @return the number that an operation throws, or the empty string */
    static std::string CatchInt(const std::function<void()>& kOperation)
    {
        try
        {
            kOperation();
            return std::string();
        }
        catch (int iValue)
        {
            return std::to_string(iValue);
        }
    }

    static void Destroy(CGUIObject* pkObject) { delete pkObject; }
};

// --- After every switch some object has the focus ----------------------------------------------------

TEST_F(CModelFindingsTest, CreateDialog_WhenOnDialogAddedDestroysTheDialog_GivesTheFocusToAnotherObject)
{
    Attach("DLG_E { OBJ_1 focusable }");
    DefineDialog(DLG_A, "DLG_A");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, Destroy);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_E
            OBJ_1 focussed
    )");
}

TEST_F(CModelFindingsTest, CreateDialog_WhenOnDialogActivationDestroysTheDialog_GivesTheFocusToAnotherObject)
{
    Attach("DLG_E { OBJ_1 focusable }");
    DefineDialog(DLG_A, "DLG_A");
    Manager().RunOnce(HOOK_ON_DIALOG_ACTIVATION, Destroy);

    EXPECT_EQ(nullptr, Manager().CreateDialog(DLG_A, ODA_NOTHING));

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_E
            OBJ_1 focussed
    )");
}

TEST_F(CModelFindingsTest, AddDialog_WhenOnDialogAddedDestroysTheDialog_GivesTheFocusToAnotherObject)
{
    Attach("DLG_E { OBJ_1 focusable }");
    Manager().RunOnce(HOOK_ON_DIALOG_ADDED, Destroy);

    Manager().AddDialog(Attach("DLG_A"), ODA_NOTHING, true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        focus: OBJ_1
        tree:
          DLG_E
            OBJ_1 focussed
    )");
}

// --- Switching inside the hook of a switch that fails ------------------------------------------------

TEST_F(CModelFindingsTest,
       CreateDialog_ThatCannotObtainItsDialogAgain_LeavesTheDialogCurrentThatTheHookSwitchedTo)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 }");
    Go(DLG_A, ODA_NOTHING);
    DefineDialog(DLG_B, "DLG_B");
    Manager().RunOnce(HOOK_CREATE_DIALOG_IMPL,
                      [this](CGUIObject*) { Manager().CreateDialog(DLG_B, ODA_INVISIBLE); });

    // The object lies inside the dialog that the action deletes, and nothing can make it again.
    EXPECT_EQ(nullptr, Manager().CreateDialog(OBJ_1, ODA_DELETE));

    EXPECT_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )");
}

// --- A popup that takes the very place of one that its own hook closed -------------------------------

TEST_F(CModelFindingsTest, ShowPopup_WhenOnPopupActivationPutsAnotherInThePlace_ThrowsIntZeroAndThatOneStays)
{
    Define(POP_1, true);
    Define(POP_2, true);
    Manager().RunOnce(HOOK_ON_POPUP_ACTIVATION, CloseAndShow(POP_1, POP_2));

    EXPECT_EQ("0", CatchInt([this] { Manager().ShowPopup(POP_1); }));

    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 5, 0 ms, delete on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CModelFindingsTest, ClosePopup_WhenOnPopupDeactivationListsThePopupAgainInItsPlace_ClosesItAllTheSame)
{
    Define(POP_1, false);
    Manager().ShowPopup(POP_1);
    Manager().RunOnce(HOOK_ON_POPUP_DEACTIVATION, CloseAndShow(POP_1, POP_1));

    EXPECT_TRUE(Manager().ClosePopup(POP_1));

    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}
} // namespace
