// SPDX-License-Identifier: MIT
// The code of Docs/Recipes.md, and tests of what that page says.

#include "Companions/GUIDialogListener.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

namespace
{
/** Shows a dialog. One that is in the history already comes back, and those opened since then go. */
void Show(CGUIDialogManager& kManager, ObjectHandle_t eID)
{
    if (kManager.ContainsDialog(eID, false))
    {
        kManager.BackToDialog(eID, true, true);
    }
    else
    {
        kManager.CreateDialog(eID, CGUIDialogManager::ODA_DELETE);
    }
}

/** Keeps home and the dialog after it, so that the history never has more than cuiMost entries. */
void ShowAtMost(CGUIDialogManager& kManager, ObjectHandle_t eID)
{
    constexpr eC_UInt cuiMost = 4;
    if (kManager.GetHistoryStackSize() >= cuiMost)
    {
        kManager.ClearDialogHistory(2, true, false);
    }
    kManager.CreateDialog(eID, CGUIDialogManager::ODA_DELETE);
}

/** Moves the focus with a key. While the alarm is shown, the focus stays inside it. */
void OnKeyNext(CGUIDialogManager& kManager)
{
    CGUIObject* pkAlarm =
        kManager.IsPopupDisplayed(POP_1) ? CGUI::GetInstance().GetObjectByID(POP_1, true) : nullptr;
    CGUIObject* pkTop = pkAlarm != nullptr ? pkAlarm : kManager.GetCurrentDialog();
    CGUIEventHandler::GetInstance().FocusNext(pkTop);
}

/** Ignores a second tap that comes before the user can have seen the new dialog. */
class CDoubleTaps : public CGUIDialogListener
{
public:
    eC_Bool IsTooEarly() const { return m_bHasSwitched && GETTIMER.GetTime() - m_uiSwitched < 300; }

protected:
    void OnDialogActivation(CGUIObject* /*pDialog*/) override
    {
        m_bHasSwitched = true;
        m_uiSwitched = GETTIMER.GetTime();
    }

private:
    eC_Bool m_bHasSwitched = false;
    eC_UInt m_uiSwitched = 0;
};

class CRecipesTest : public CCompanionTest
{
protected:
    CRecipesTest()
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
        DefineEmptyDialogs(DLG_B, DLG_C, DLG_D, DLG_E, DLG_F);
        CodeFactory().RegisterTree(PathOf(POP_1), "POP_1 { OBJ_3 focusable; OBJ_4 focusable }");
        EXPECT_TRUE(Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true,
                                                      PathOf(POP_1).c_str()));
    }
};

TEST_F(CRecipesTest, HistoryByDialog_NeverHasADialogTwice)
{
    for (const ObjectHandle_t eID : {DLG_A, DLG_B, DLG_C, DLG_A, DLG_B, DLG_C, DLG_B})
    {
        Show(Manager(), eID);
    }

    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
    EXPECT_TRUE(Manager().ContainsDialog(DLG_A, false));
}

TEST_F(CRecipesTest, HistoryWithALimit_KeepsTheOldestTwo)
{
    for (const ObjectHandle_t eID : {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E})
    {
        ShowAtMost(Manager(), eID);
    }
    EXPECT_EQ(4U, Manager().GetHistoryStackSize());

    ShowAtMost(Manager(), DLG_F);

    EXPECT_EQ(DLG_F, Manager().GetCurrentDialogID());
    EXPECT_EQ(3U, Manager().GetHistoryStackSize());
    EXPECT_TRUE(Manager().ContainsDialog(DLG_A, false));
    EXPECT_TRUE(Manager().ContainsDialog(DLG_B, false));
    EXPECT_FALSE(Manager().ContainsDialog(DLG_C, false));
    EXPECT_FALSE(Manager().ContainsDialog(DLG_D, false));
}

TEST_F(CRecipesTest, FocusInAPopup_StaysThereUntilItIsClosed)
{
    Go(DLG_A);
    Manager().ShowPopup(POP_1);

    OnKeyNext(Manager());
    ExpectIsObject(OBJ_3, CGUIEventHandler::GetInstance().GetFocussedObject());
    OnKeyNext(Manager());
    OnKeyNext(Manager());
    ExpectIsObject(OBJ_3, CGUIEventHandler::GetInstance().GetFocussedObject());

    Manager().ClosePopup(POP_1);
    OnKeyNext(Manager());
    ExpectIsObject(OBJ_2, CGUIEventHandler::GetInstance().GetFocussedObject());
}

TEST_F(CRecipesTest, DoubleTap_IsIgnoredForAMomentAfterEachSwitch)
{
    CDoubleTaps kDoubleTaps;
    Manager().AddListener(kDoubleTaps);
    EXPECT_FALSE(kDoubleTaps.IsTooEarly());

    Go(DLG_A);
    EXPECT_TRUE(kDoubleTaps.IsTooEarly());
    Clock().Advance(299);
    EXPECT_TRUE(kDoubleTaps.IsTooEarly());
    Clock().Advance(1);
    EXPECT_FALSE(kDoubleTaps.IsTooEarly());
}
} // namespace
