// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"
#include "Widgets/GUIWidgetInput.h"
#include "Widgets/GUIWidgetLayout.h"

#include <string>

namespace
{
class CNoMetrics : public CGUIWidgetMetrics
{
public:
    void Measure(const CGUIWidget&, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        iWidthOUT = 1;
        iHeightOUT = 1;
    }
};

/** Records its calls, and destroys the widget's window if told to. */
class CWritingListener : public CGUIWidgetListener
{
public:
    std::string m_kHeard;
    CGUIObject* m_pkDestroyed = nullptr;

    void OnActivated(CGUIWidget& kWidget) override
    {
        m_kHeard += "activated " + NameOfHandle(kWidget.GetObject().GetID()) + "\n";
        delete m_pkDestroyed;
    }

    void OnChanged(CGUIWidget& kWidget) override
    {
        m_kHeard += "changed " + NameOfHandle(kWidget.GetObject().GetID()) + " " +
                    std::to_string(kWidget.GetValue()) + " '" + kWidget.GetText() + "'\n";
    }
};

/** Overrides OnActivated only. */
class CActivationListener : public CGUIWidgetListener
{
public:
    void OnActivated(CGUIWidget&) override {}
};

class CWidgetInputTest : public CWidgetsTest
{
protected:
    CWidgetInputTest() : m_kInput(m_kListener), m_pkScreen(new CGUIScreen(&Root(), DLG_A)) {}

    /** @return the calls recorded since the last one */
    std::string TakeHeard()
    {
        std::string kHeard;
        kHeard.swap(m_kListener.m_kHeard);
        return kHeard;
    }

    static std::string FocusName() { return Focus() != nullptr ? NameOfHandle(Focus()->GetID()) : "none"; }

    CWritingListener m_kListener;
    CGUIWidgetInput m_kInput;
    CGUIScreen* m_pkScreen;
};
} // namespace

TEST_F(CWidgetInputTest, Keys_ThatAWidgetDoesNotNeedMoveTheFocusInItsWindow)
{
    new CGUIButton(m_pkScreen, OBJ_1);
    new CGUIButton(m_pkScreen, OBJ_2);
    new CGUIButton(m_pkScreen, OBJ_3);
    new CGUIButton(new CGUIScreen(&Root(), DLG_B), OBJ_4);
    SetFocus(OBJ_1);

    for (const EGUIKey eKey : {GUIKEY_NEXT, GUIKEY_DOWN})
    {
        EXPECT_TRUE(m_kInput.PressKey(eKey));
    }
    EXPECT_EQ("OBJ_3", FocusName());
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_RIGHT));
    EXPECT_EQ("OBJ_1", FocusName());
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_PREVIOUS));
    EXPECT_EQ("OBJ_3", FocusName());
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_UP));
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_LEFT));
    EXPECT_EQ("OBJ_1", FocusName());
    EXPECT_FALSE(m_kInput.PressKey(GUIKEY_BACKSPACE));
    EXPECT_EQ("", TakeHeard());
}

TEST_F(CWidgetInputTest, Keys_GoToTheTopmostVisibleWindowWhenNobodyHasTheFocus)
{
    EXPECT_EQ(m_pkScreen, CGUIWidgetInput::GetWindow());
    EXPECT_FALSE(m_kInput.PressKey(GUIKEY_ACTIVATE));
    EXPECT_FALSE(m_kInput.PressKey(GUIKEY_NEXT));
    EXPECT_FALSE(m_kInput.Type("a"));
    auto* pkUpper = new CGUIScreen(&Root(), DLG_B);
    new CGUIButton(pkUpper, OBJ_1);
    (new CGUIScreen(&Root(), DLG_C))->SetInvisible(true);
    EXPECT_EQ(pkUpper, CGUIWidgetInput::GetWindow());
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_NEXT));
    EXPECT_EQ("OBJ_1", FocusName());

    delete m_pkScreen;
    delete pkUpper;
    EXPECT_EQ(nullptr, CGUIWidgetInput::GetWindow());
    EXPECT_FALSE(m_kInput.PressKey(GUIKEY_NEXT));
}

TEST_F(CWidgetInputTest, Keys_WithTheFocusOnAnObjectThatIsNoWidget_MoveIt)
{
    auto* pkPlain = new CGUIObject(m_pkScreen, OBJ_1);
    pkPlain->SetFocusable(true);
    new CGUIButton(m_pkScreen, OBJ_2);
    SetFocus(OBJ_1);
    EXPECT_FALSE(m_kInput.PressKey(GUIKEY_ACTIVATE));
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_NEXT));
    EXPECT_EQ("OBJ_2", FocusName());
}

TEST_F(CWidgetInputTest, Button_IsActivatedAndMayBeDestroyedThen)
{
    new CGUIButton(m_pkScreen, OBJ_1);
    SetFocus(OBJ_1);
    m_kListener.m_pkDestroyed = m_pkScreen;
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_ACTIVATE));
    EXPECT_EQ("activated OBJ_1\n", TakeHeard());
    EXPECT_EQ("none", FocusName());
}

TEST_F(CWidgetInputTest, Touch_GivesTheFocusAndActivates)
{
    auto* pkButton = new CGUIButton(m_pkScreen, OBJ_1);
    auto* pkLabel = new CGUILabel(m_pkScreen, OBJ_2);
    EXPECT_TRUE(m_kInput.Touch(pkButton));
    EXPECT_EQ("activated OBJ_1\n", TakeHeard());
    EXPECT_EQ("OBJ_1", FocusName());
    EXPECT_FALSE(m_kInput.Touch(pkLabel)) << "not focusable";
    EXPECT_FALSE(m_kInput.Touch(nullptr));
    CGUIObject kPlain(&Root(), OBJ_3);
    kPlain.SetFocusable(true);
    EXPECT_FALSE(m_kInput.Touch(&kPlain)) << "no widget";
    pkButton->SetInvisible(true);
    EXPECT_FALSE(m_kInput.Touch(pkButton)) << "invisible";
    EXPECT_EQ("", TakeHeard());
}

TEST_F(CWidgetInputTest, ModalPopup_TakesAllInputWhileItIsShown)
{
    auto* pkBelow = new CGUIButton(m_pkScreen, OBJ_1);
    pkBelow->SetSize(5, 1);
    SetFocus(OBJ_1);
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetPosition(10, 5);
    pkPopup->SetSize(10, 5);
    pkPopup->SetModal(true);
    auto* pkInside = new CGUIButton(pkPopup, OBJ_2);
    (new CGUIPopup(&Root(), POP_2))->SetInvisible(true);
    const CNoMetrics kMetrics;
    const CGUIWidgetLayout kLayout(40, 12, &kMetrics);

    EXPECT_FALSE(m_kInput.PressKey(GUIKEY_ACTIVATE));
    EXPECT_FALSE(m_kInput.Touch(pkBelow));
    EXPECT_FALSE(m_kInput.TouchAt(0, 0, kLayout));
    EXPECT_EQ("OBJ_1", FocusName());
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_NEXT));
    EXPECT_EQ("OBJ_2", FocusName());
    EXPECT_TRUE(m_kInput.TouchAt(10, 5, kLayout));
    EXPECT_EQ("activated OBJ_2\n", TakeHeard());
    EXPECT_TRUE(m_kInput.Touch(pkInside));
    EXPECT_EQ("activated OBJ_2\n", TakeHeard());
    pkPopup->SetInvisible(true);
    EXPECT_TRUE(m_kInput.TouchAt(0, 0, kLayout));
    EXPECT_EQ("activated OBJ_1\n", TakeHeard());
}

TEST_F(CWidgetInputTest, CheckBox_IsToggledByKeyAndTouch)
{
    auto* pkCheckBox = new CGUICheckBox(m_pkScreen, OBJ_1);
    SetFocus(OBJ_1);
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_ACTIVATE));
    EXPECT_EQ("changed OBJ_1 1 ''\n", TakeHeard());
    EXPECT_TRUE(m_kInput.Touch(pkCheckBox));
    EXPECT_EQ("changed OBJ_1 0 ''\n", TakeHeard());
    Set(*pkCheckBox, "checked", "true");
    EXPECT_TRUE(pkCheckBox->IsChecked());
    EXPECT_FALSE(pkCheckBox->SetValue(7)) << "checked already";
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_LEFT)) << "moves the focus";
    EXPECT_EQ("", TakeHeard());
}

TEST_F(CWidgetInputTest, Slider_MovesByItsStepUpToTheEndsOfItsRange)
{
    auto* pkSlider = new CGUISlider(m_pkScreen, OBJ_1);
    Set(*pkSlider, "minimum", "-10");
    Set(*pkSlider, "maximum", "10");
    Set(*pkSlider, "step", "15");
    Set(*pkSlider, "value", "0");
    SetFocus(OBJ_1);
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_RIGHT));
    EXPECT_EQ("changed OBJ_1 10 ''\n", TakeHeard());
    EXPECT_TRUE(m_kInput.PressKey(GUIKEY_RIGHT)) << "used, though it is at its end";
    EXPECT_EQ("", TakeHeard());
    m_kInput.PressKey(GUIKEY_LEFT);
    m_kInput.PressKey(GUIKEY_LEFT);
    EXPECT_EQ("changed OBJ_1 -5 ''\nchanged OBJ_1 -10 ''\n", TakeHeard());
    m_kInput.PressKey(GUIKEY_END);
    m_kInput.PressKey(GUIKEY_HOME);
    EXPECT_EQ("changed OBJ_1 10 ''\nchanged OBJ_1 -10 ''\n", TakeHeard());
    m_kInput.PressKey(GUIKEY_ACTIVATE);
    EXPECT_EQ("activated OBJ_1\n", TakeHeard());
    EXPECT_EQ(15, pkSlider->GetStep());
}

TEST_F(CWidgetInputTest, Slider_OfTheWidestRange_DoesNotOverflow)
{
    CGUISlider kSlider;
    kSlider.SetRange(-2147483647 - 1, 2147483647);
    kSlider.SetStep(2147483647);
    kSlider.SetValue(2147483647);
    EXPECT_EQ(100, kSlider.GetFilled(100));
    EXPECT_EQ(REACTION_USED, kSlider.OnKey(GUIKEY_RIGHT));
    EXPECT_EQ(REACTION_CHANGED, kSlider.OnKey(GUIKEY_LEFT));
    EXPECT_EQ(0, kSlider.GetValue());
    EXPECT_EQ(REACTION_CHANGED, kSlider.OnKey(GUIKEY_LEFT));
    EXPECT_EQ(REACTION_CHANGED, kSlider.OnKey(GUIKEY_LEFT));
    EXPECT_EQ(-2147483647 - 1, kSlider.GetValue());
    EXPECT_EQ(0, kSlider.GetFilled(100));
}

TEST_F(CWidgetInputTest, Slider_GoesToTheFinger)
{
    auto* pkSlider = new CGUISlider(m_pkScreen, OBJ_1);
    pkSlider->SetPosition(5, 1);
    pkSlider->SetSize(11, 1);
    const CNoMetrics kMetrics;
    const CGUIWidgetLayout kLayout(40, 12, &kMetrics);
    EXPECT_TRUE(m_kInput.TouchAt(15, 1, kLayout));
    EXPECT_TRUE(m_kInput.TouchAt(8, 1, kLayout));
    EXPECT_EQ("changed OBJ_1 100 ''\nchanged OBJ_1 30 ''\n", TakeHeard());
    EXPECT_EQ(REACTION_CHANGED, pkSlider->OnTouch(-3, 0, {0, 0, 1, 1})) << "dragged over the edge";
    EXPECT_EQ(0, pkSlider->GetValue());
    EXPECT_EQ(REACTION_CHANGED, pkSlider->OnTouch(9, 0, {0, 0, 1, 1}));
    EXPECT_EQ(100, pkSlider->GetValue());
}

TEST_F(CWidgetInputTest, Bar_ShowsItsValueWithinItsRange)
{
    CGUIBar kBar;
    EXPECT_TRUE(kBar.SetValue(150));
    EXPECT_EQ(100, kBar.GetValue());
    EXPECT_FALSE(kBar.SetValue(120)) << "nothing else is shown";
    EXPECT_EQ(20, kBar.GetFilled(20));
    kBar.SetRange(100, 200);
    EXPECT_EQ(120, kBar.GetValue());
    EXPECT_EQ(4, kBar.GetFilled(20));
    kBar.SetRange(7, 3);
    EXPECT_EQ(7, kBar.GetMinimum());
    EXPECT_EQ(7, kBar.GetMaximum());
    EXPECT_EQ(7, kBar.GetValue());
    EXPECT_EQ(0, kBar.GetFilled(20));
}

TEST_F(CWidgetInputTest, List_IsWalkedThroughWithAKnobThatReachesWhatIsBeforeAndBehind)
{
    new CGUIButton(m_pkScreen, OBJ_1);
    auto* pkList = new CGUIList(m_pkScreen, OBJ_2);
    new CGUIButton(m_pkScreen, OBJ_3);
    Set(*pkList, "entries", "mild|medium|strong");
    SetFocus(OBJ_1);
    for (eC_UInt uiTurn = 0; uiTurn < 4; ++uiTurn)
    {
        EXPECT_TRUE(m_kInput.PressKey(GUIKEY_DOWN));
    }
    EXPECT_EQ("changed OBJ_2 1 ''\nchanged OBJ_2 2 ''\n", TakeHeard());
    EXPECT_EQ("OBJ_3", FocusName());
    m_kInput.PressKey(GUIKEY_UP);
    m_kInput.PressKey(GUIKEY_UP);
    m_kInput.PressKey(GUIKEY_ACTIVATE);
    EXPECT_EQ("changed OBJ_2 1 ''\nactivated OBJ_2\n", TakeHeard());
    m_kInput.PressKey(GUIKEY_HOME);
    m_kInput.PressKey(GUIKEY_UP);
    EXPECT_EQ("OBJ_1", FocusName());
    m_kInput.PressKey(GUIKEY_NEXT);
    m_kInput.PressKey(GUIKEY_END);
    EXPECT_EQ("changed OBJ_2 0 ''\nchanged OBJ_2 2 ''\n", TakeHeard());
    m_kInput.PressKey(GUIKEY_PREVIOUS);
    EXPECT_EQ("OBJ_1", FocusName()) << "this key leaves a list at once";
}

TEST_F(CWidgetInputTest, List_TakesTheEntryThatAFingerTouches)
{
    auto* pkList = new CGUIList(m_pkScreen, OBJ_1);
    Set(*pkList, "entries", "a|b|c|d|e");
    Set(*pkList, "rowheight", "2");
    Set(*pkList, "value", "4");
    pkList->SetSize(5, 6);
    EXPECT_EQ(2U, pkList->GetFirstShown(6));
    const CNoMetrics kMetrics;
    const CGUIWidgetLayout kLayout(40, 12, &kMetrics);
    EXPECT_TRUE(m_kInput.TouchAt(0, 3, kLayout));
    EXPECT_EQ(3, pkList->GetValue());
    EXPECT_EQ("activated OBJ_1\n", TakeHeard());
    EXPECT_EQ(REACTION_USED, pkList->OnTouch(0, 12, {0, 0, 5, 20})) << "below the last entry";
    EXPECT_EQ(REACTION_USED, pkList->OnTouch(0, -1, {0, 0, 5, 20}));
    EXPECT_EQ(3, pkList->GetValue());
    EXPECT_EQ(0U, pkList->GetFirstShown(1)) << "no room for a single entry";
}

TEST_F(CWidgetInputTest, List_OfTheApplication_StaysWithinItsEntries)
{
    struct CTestEntries : CGUIListEntries
    {
        eC_UInt m_uiNOFEntries = 3;
        eC_UInt GetNOFEntries() const override { return m_uiNOFEntries; }
        const eC_Char* GetEntry(eC_UInt uiEntry) const override { return uiEntry == 0 ? "first" : "other"; }
    } kEntries;
    CGUIList kList;
    EXPECT_EQ(0U, kList.GetNOFEntries());
    EXPECT_EQ(0, kList.GetValue());
    EXPECT_EQ(REACTION_USED, kList.OnKey(GUIKEY_ACTIVATE)) << "without entries";
    EXPECT_EQ(REACTION_USED, kList.OnKey(GUIKEY_END));
    Set(kList, "entries", "");
    EXPECT_EQ(0U, kList.GetNOFEntries());
    Set(kList, "entries", "one||three");
    EXPECT_EQ(3U, kList.GetNOFEntries());
    EXPECT_STREQ("", kList.GetEntry(1));
    EXPECT_STREQ("three", kList.GetEntry(2));

    kList.SetEntries(&kEntries);
    EXPECT_TRUE(kList.SetValue(2));
    EXPECT_STREQ("first", kList.GetEntry(0));
    kEntries.m_uiNOFEntries = 2;
    EXPECT_EQ(1, kList.GetValue());
    kEntries.m_uiNOFEntries = 0;
    EXPECT_EQ(0, kList.GetValue());
    kList.SetEntries(nullptr);
    EXPECT_STREQ("one", kList.GetEntry(0));
}

TEST_F(CWidgetInputTest, Toolkit_WithWidgetsOfItsOwn_TellsWhatTheUserHasSet)
{
    auto* pkSlider = new CGUISlider(m_pkScreen, OBJ_1);
    auto* pkTextField = new CGUITextField(m_pkScreen, OBJ_2);
    EXPECT_TRUE(m_kInput.ChangeValue(*pkSlider, 40));
    EXPECT_FALSE(m_kInput.ChangeValue(*pkSlider, 40));
    EXPECT_TRUE(m_kInput.ChangeText(*pkTextField, "tea"));
    EXPECT_FALSE(m_kInput.ChangeText(*pkTextField, "tea"));
    EXPECT_EQ("changed OBJ_1 40 ''\nchanged OBJ_2 0 'tea'\n", TakeHeard());

    CActivationListener kListener;
    EXPECT_TRUE(CGUIWidgetInput(kListener).ChangeValue(*pkSlider, 41));
}

TEST_F(CWidgetInputTest, State_IsRestoredInAnotherWidgetOfTheClass)
{
    unsigned char auiState[16];
    CGUISlider kSlider;
    kSlider.SetRange(-1000, 1000);
    kSlider.SetValue(-300);
    EXPECT_EQ(4U, kSlider.SaveState(nullptr, 0));
    EXPECT_EQ(4U, kSlider.SaveState(auiState, 4));
    CGUISlider kOther;
    kOther.SetRange(-1000, 1000);
    EXPECT_TRUE(kOther.RestoreState(auiState, 4));
    EXPECT_EQ(-300, kOther.GetValue());
    EXPECT_FALSE(kOther.RestoreState(auiState, 3));
    EXPECT_FALSE(CGUILabel().RestoreState(auiState, 4));

    CGUICheckBox kCheckBox;
    kCheckBox.SetValue(1);
    EXPECT_EQ(4U, kCheckBox.SaveState(auiState, sizeof(auiState)));
    CGUIList kList;
    Set(kList, "entries", "a|b");
    EXPECT_TRUE(kList.RestoreState(auiState, 4));
    EXPECT_EQ(1, kList.GetValue());
    EXPECT_EQ(4U, kList.SaveState(auiState, sizeof(auiState)));
    kCheckBox.SetValue(0);
    EXPECT_TRUE(kCheckBox.RestoreState(auiState, 4));
    EXPECT_TRUE(kCheckBox.IsChecked());
}

TEST_F(CWidgetInputTest, Input_TakesNoMemory)
{
    new CGUIButton(m_pkScreen, OBJ_1);
    auto* pkSlider = new CGUISlider(m_pkScreen, OBJ_2);
    auto* pkTextField = new CGUITextField(m_pkScreen, OBJ_3);
    pkTextField->SetText("x");
    CActivationListener kListener;
    CGUIWidgetInput kInput(kListener);
    SetFocus(OBJ_1);
    const CAllocationCounter kCounter;
    for (eC_UInt uiTurn = 0; uiTurn < 40; ++uiTurn)
    {
        kInput.PressKey(GUIKEY_ACTIVATE);
        kInput.PressKey(GUIKEY_NEXT);
        kInput.PressKey(GUIKEY_RIGHT);
        kInput.Type("ö");
    }
    EXPECT_EQ(0U, kCounter.GetNumber());
    EXPECT_LT(0, pkSlider->GetValue());
    EXPECT_STRNE("x", pkTextField->GetText());
}
