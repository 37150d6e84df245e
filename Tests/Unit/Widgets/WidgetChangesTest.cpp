// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"
#include "Widgets/GUIWidgetChanges.h"

#include <memory>
#include <string>

namespace
{
class CWidgetChangesTest : public CWidgetsTest
{
protected:
    CWidgetChangesTest()
        : m_pkScreen(new CGUIScreen(&Root(), DLG_A)),
          m_pkLabel(new CGUILabel(m_pkScreen, OBJ_1)),
          m_pkButton(new CGUIButton(m_pkScreen, OBJ_2))
    {
        m_kChanges.Settle();
    }

    std::string TakeChanged() { return TakeAll(m_kChanges); }

    CGUIWidgetChanges m_kChanges;
    CGUIScreen* m_pkScreen;
    CGUILabel* m_pkLabel;
    CGUIButton* m_pkButton;
};

class CDestroyedWidgets : public CGUIWidgetChanges
{
public:
    std::string m_kNames;

protected:
    void OnWidgetDestroyed(const CGUIWidget& kWidget) override
    {
        m_kNames += NameOfHandle(kWidget.GetObject().GetID()) + " ";
    }
};
} // namespace

TEST_F(CWidgetChangesTest, Newcomer_IsGivenAllWidgetsParentsFirst)
{
    CGUIWidgetChanges kChanges;
    EXPECT_TRUE(kChanges.IsChanged());
    EXPECT_EQ("DLG_A OBJ_1 OBJ_2", TakeAll(kChanges));
    EXPECT_FALSE(kChanges.IsChanged());
}

TEST_F(CWidgetChangesTest, Nothing_IsChangedWhenWhatIsSetWasSetAlready)
{
    m_pkLabel->SetText("1");
    m_pkLabel->SetStyle("small");
    m_pkScreen->SetInvisible(true);
    m_kChanges.Settle();

    m_pkLabel->SetText("1");
    m_pkLabel->SetStyle("small");
    m_pkLabel->SetPosition(0, 0);
    m_pkLabel->SetSize(CGUIWidget::ciNatural, CGUIWidget::ciNatural);
    m_pkLabel->SetTextKey(cuiNoContent);
    m_pkScreen->SetLayout(LAYOUT_ABSOLUTE);
    m_pkScreen->SetInvisible(true);
    CGUIWidget::UpdateValues();

    EXPECT_FALSE(m_kChanges.IsChanged());
    EXPECT_EQ("", TakeChanged());
}

TEST_F(CWidgetChangesTest, EachChange_MarksItsWidget)
{
    m_pkLabel->SetText("1");
    EXPECT_TRUE(m_kChanges.IsChanged());
    EXPECT_EQ("OBJ_1", TakeChanged());
    EXPECT_FALSE(m_kChanges.IsChanged());
    m_pkLabel->SetTextKey(1);
    EXPECT_EQ("OBJ_1", TakeChanged());
    m_pkLabel->SetStyle("big");
    EXPECT_EQ("OBJ_1", TakeChanged());
    m_pkButton->SetPosition(1, 0);
    EXPECT_EQ("OBJ_2", TakeChanged());
    m_pkButton->SetSize(1, 1);
    EXPECT_EQ("OBJ_2", TakeChanged());
    m_pkButton->SetInvisible(true);
    EXPECT_EQ("OBJ_2", TakeChanged());
    m_pkButton->SetInvisible(false);
    EXPECT_EQ("OBJ_2", TakeChanged());
    m_pkButton->SetParent(&Root());
    EXPECT_EQ("OBJ_2", TakeChanged());
    m_pkScreen->SetLayout(LAYOUT_COLUMN);
    EXPECT_EQ("DLG_A", TakeChanged());
}

TEST_F(CWidgetChangesTest, EachAttribute_OfAClass_MarksItsWidgetWhenItChanges)
{
    struct Case_t
    {
        const eC_Char* m_pcElement;
        const eC_Char* m_pcName;
        const eC_Char* m_pcValue;
    };
    for (const Case_t& kCase : {Case_t{"Popup", "modal", "true"},
                                {"Popup", "gap", "1"},
                                {"Popup", "padding", "1"},
                                {"Image", "image", "logo"},
                                {"CheckBox", "checked", "true"},
                                {"Bar", "value", "1"},
                                {"Bar", "minimum", "-1"},
                                {"Bar", "maximum", "99"},
                                {"Slider", "step", "2"},
                                {"List", "rowheight", "2"},
                                {"TextField", "length", "31"}})
    {
        CGUIObject* pkObject =
            CGUIFactoryManager::GetInstance().CreateObject(kCase.m_pcElement, m_pkScreen, OBJ_9);
        m_kChanges.Settle();
        Set(*pkObject, kCase.m_pcName, kCase.m_pcValue);
        EXPECT_EQ("OBJ_9", TakeChanged()) << kCase.m_pcElement << " " << kCase.m_pcName;
        Set(*pkObject, kCase.m_pcName, kCase.m_pcValue);
        EXPECT_FALSE(m_kChanges.IsChanged()) << kCase.m_pcElement << " " << kCase.m_pcName;
        delete pkObject;
    }
}

TEST_F(CWidgetChangesTest, SelectionEntriesAndCursor_MarkTheirWidgets)
{
    auto* pkList = new CGUIList(m_pkScreen, OBJ_3);
    auto* pkTextField = new CGUITextField(m_pkScreen, OBJ_4);
    m_kChanges.Settle();
    Set(*pkList, "entries", "a|b");
    EXPECT_EQ("OBJ_3", TakeChanged());
    pkList->OnKey(GUIKEY_DOWN);
    EXPECT_EQ("OBJ_3", TakeChanged());
    pkList->SetEntries(nullptr);
    EXPECT_EQ("OBJ_3", TakeChanged());
    pkTextField->OnType("a");
    EXPECT_EQ("OBJ_4", TakeChanged());
    pkTextField->OnKey(GUIKEY_LEFT);
    EXPECT_EQ("OBJ_4", TakeChanged());
    pkTextField->OnKey(GUIKEY_LEFT);
    EXPECT_FALSE(m_kChanges.IsChanged());
    pkTextField->OnKey(GUIKEY_DELETE);
    EXPECT_EQ("OBJ_4", TakeChanged());
}

TEST_F(CWidgetChangesTest, Changes_ComeOnceAndInTheOrderOfTheLastMark)
{
    m_pkLabel->SetText("1");
    m_pkButton->SetText("1");
    m_pkLabel->SetText("2");
    EXPECT_EQ("OBJ_2 OBJ_1", TakeChanged());
}

TEST_F(CWidgetChangesTest, Changes_AreKeptForEachReader)
{
    CGUIWidgetChanges kOther;
    kOther.Settle();
    m_pkLabel->SetText("1");
    EXPECT_EQ("OBJ_1", TakeChanged());
    m_pkButton->SetText("1");
    EXPECT_EQ("OBJ_2", TakeChanged());
    EXPECT_EQ("OBJ_1 OBJ_2", TakeAll(kOther));
}

TEST_F(CWidgetChangesTest, Readers_GoInAnyOrder)
{
    auto pkFirst = std::make_unique<CGUIWidgetChanges>();
    auto pkSecond = std::make_unique<CGUIWidgetChanges>();
    pkFirst.reset();
    pkSecond->Settle();
    m_pkLabel->SetText("1");
    EXPECT_EQ("OBJ_1", TakeAll(*pkSecond));
    pkSecond.reset();
    m_pkLabel->SetText("2");
    EXPECT_EQ("OBJ_1", TakeChanged());
}

TEST_F(CWidgetChangesTest, RowOrColumn_IsMarkedBehindTheChildThatMovesItsSiblings)
{
    m_pkScreen->SetLayout(LAYOUT_ROW);
    m_kChanges.Settle();
    m_pkLabel->SetInvisible(true);
    EXPECT_EQ("OBJ_1 DLG_A", TakeChanged());
    m_pkLabel->SetSize(4, 1);
    EXPECT_EQ("OBJ_1 DLG_A", TakeChanged());
    m_pkLabel->SetText("of a fixed size");
    EXPECT_EQ("OBJ_1", TakeChanged());
    m_pkButton->SetText("of the size of its text");
    EXPECT_EQ("OBJ_2 DLG_A", TakeChanged());
    delete m_pkButton;
    EXPECT_EQ("DLG_A", TakeChanged());
    m_pkLabel->SetParent(nullptr);
    EXPECT_EQ("DLG_A OBJ_1", TakeChanged());
    delete m_pkLabel;
    EXPECT_EQ("", TakeChanged());
}

TEST_F(CWidgetChangesTest, Focus_IsAChangeWithoutAWidget)
{
    m_pkButton->RequestFocus();
    EXPECT_TRUE(m_kChanges.IsChanged());
    EXPECT_EQ("", TakeChanged());
    EXPECT_FALSE(m_kChanges.IsChanged());
}

TEST_F(CWidgetChangesTest, Destruction_IsToldAndTheWidgetComesNoMore)
{
    CDestroyedWidgets kDestroyed;
    kDestroyed.Settle();
    m_pkLabel->SetText("1");
    m_pkButton->SetText("1");

    delete m_pkLabel;

    EXPECT_EQ("OBJ_1 ", kDestroyed.m_kNames);
    EXPECT_TRUE(kDestroyed.IsChanged());
    EXPECT_EQ("OBJ_2", TakeAll(kDestroyed));
    EXPECT_FALSE(kDestroyed.IsChanged());

    delete m_pkScreen;
    EXPECT_EQ("OBJ_1 DLG_A OBJ_2 ", kDestroyed.m_kNames);
    EXPECT_TRUE(m_kChanges.IsChanged());
    EXPECT_EQ("", TakeChanged());
}

TEST_F(CWidgetChangesTest, Taker_MayMarkAndDestroyWhatComesNext)
{
    CGUIWidgetChanges kChanges;
    EXPECT_EQ(static_cast<const CGUIWidget*>(m_pkScreen), kChanges.TakeNext());
    delete m_pkLabel;
    m_pkScreen->SetText("again");
    EXPECT_EQ("OBJ_2 DLG_A", TakeAll(kChanges));
}

TEST_F(CWidgetChangesTest, Language_MarksTheWidgetsWithKeysOnly)
{
    m_pkLabel->SetTextKey(1);
    auto* pkList = new CGUIList(m_pkScreen, OBJ_3);
    Set(*pkList, "entrykeys", "TXT_BACK|TXT_NEXT");
    m_kChanges.Settle();
    m_kTranslator.m_bIsGerman = true;

    CGUIWidget::MarkTexts();

    const std::string kChanged = TakeChanged();
    EXPECT_TRUE(kChanged == "OBJ_1 OBJ_3" || kChanged == "OBJ_3 OBJ_1") << kChanged;
    EXPECT_STREQ("Zurück", m_pkLabel->GetCaption());
    EXPECT_STREQ("Weiter", pkList->GetEntry(1));
}

TEST_F(CWidgetChangesTest, DialogManager_MarksWhatItShowsHidesAndRaises)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    new CGUIScreen(&Root(), DLG_B);
    (new CGUIPopup(&Root(), POP_1))->SetInvisible(true);
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    m_kChanges.Settle();

    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ("DLG_A DLG_B", TakeChanged());
    Manager().Back(false);
    EXPECT_EQ("DLG_B DLG_A", TakeChanged());
    // As visible as before, but now on top.
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_NOTHING);
    m_kChanges.Settle();
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    EXPECT_EQ("DLG_A", TakeChanged());
}

TEST_F(CWidgetChangesTest, Marking_TakesNoMemory)
{
    m_pkLabel->SetText("12");
    const CAllocationCounter kCounter;
    for (eC_UInt uiTurn = 0; uiTurn < 100; ++uiTurn)
    {
        m_pkLabel->SetText(uiTurn % 2 == 0 ? "1" : "2");
        m_pkLabel->SetInvisible(uiTurn % 2 == 0);
        m_pkButton->SetPosition(static_cast<eC_Int>(uiTurn), 0);
        m_pkScreen->SetParent(&Root());
        while (m_kChanges.TakeNext() != nullptr)
        {
        }
        m_kChanges.Settle();
    }
    EXPECT_EQ(0U, kCounter.GetNumber());
}
