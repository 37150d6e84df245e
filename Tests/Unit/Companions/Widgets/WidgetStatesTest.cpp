// SPDX-License-Identifier: MIT
// The states of widgets across the deletion of their dialog. The code in Docs/Companions.md about them is
// from here.

#include "Companions/GUIDialogStates.h"
#include "Tests/Unit/Companions/CompanionTest.h"
#include "Widgets/GUIWidgets.h"

#include <gtest/gtest.h>

namespace
{
/** Builds DLG_A with one widget of each class in which a user enters something. */
class CFormBuilder : public CGUIDialogListener
{
protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) override
    {
        if (eID != DLG_A)
        {
            return nullptr;
        }
        auto* const pkForm = new CGUIScreen(&CGUI::GetInstance(), eID);
        new CGUITextField(pkForm, OBJ_1);
        new CGUISlider(pkForm, OBJ_2);
        new CGUICheckBox(pkForm, OBJ_3);
        eC_String kExpected;
        EXPECT_EQ(ATTRIBUTE_SET,
                  (new CGUIList(pkForm, OBJ_4))->SetAttribute("entries", "one|two|three", kExpected));
        new CGUILabel(pkForm, OBJ_5);
        return pkForm;
    }
};

class CWidgetStatesTest : public CCompanionTest
{
protected:
    CWidgetStatesTest() { Manager().AddListener(m_kBuilder); }

    CGUIWidget& Widget(ObjectHandle_t eID) { return *CGUIWidget::Find(Object(eID)); }

    CFormBuilder m_kBuilder;
};

TEST_F(CWidgetStatesTest, DialogIsDeletedAndBuiltAgain_ShowsWhatTheUserEntered)
{
    DefineEmptyDialogs(DLG_B);
    CGUIObservedDialogManager& kManager = Manager();

    CGUIDialogStatesOf<2000> kStates(kManager, &CGUIWidget::FindState); // at most 2000 bytes
    kStates.SetScope(CGUIDialogStates::STATES_OF_HISTORY);

    Go(DLG_A);
    Widget(OBJ_1).OnType("M\xC3\xBCller");
    Widget(OBJ_1).OnKey(GUIKEY_LEFT);
    Widget(OBJ_2).SetValue(70);
    Widget(OBJ_3).SetValue(1);
    Widget(OBJ_4).SetValue(2);
    Go(DLG_B, ODA_DELETE);
    EXPECT_EQ(nullptr, Object(OBJ_1));
    kManager.Back(true);

    EXPECT_STREQ("M\xC3\xBCller", Widget(OBJ_1).GetText());
    EXPECT_EQ(5U, static_cast<CGUITextField*>(Object(OBJ_1))->GetCursorColumn());
    EXPECT_EQ(70, Widget(OBJ_2).GetValue());
    EXPECT_EQ(1, Widget(OBJ_3).GetValue());
    EXPECT_EQ(2, Widget(OBJ_4).GetValue());
}

TEST_F(CWidgetStatesTest, FindState_OfAnObjectThatIsNoWidget_Null)
{
    CGUIObject kObject;
    CGUISlider kSlider;

    EXPECT_EQ(nullptr, CGUIWidget::FindState(&kObject));
    EXPECT_EQ(&kSlider, CGUIWidget::FindState(&kSlider));
}
} // namespace
