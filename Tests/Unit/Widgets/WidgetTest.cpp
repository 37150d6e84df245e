// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"
#include "Widgets/GUIWidget.h"

#include <memory>
#include <random>
#include <string>
#include <vector>

using CWidgetTest = CWidgetsTest;

TEST_F(CWidgetTest, Find_GivesTheWidgetOfAnObjectAndNothingForOthers)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkLabel = new CGUILabel(pkScreen, OBJ_1);
    const CGUIObject kPlain;

    EXPECT_EQ(pkScreen, CGUIWidget::Find(Object(DLG_A)));
    EXPECT_EQ(pkLabel, CGUIWidget::Find(Object(OBJ_1)));
    EXPECT_EQ(pkLabel, &static_cast<CGUILabel&>(CGUIWidget::Find(Object(OBJ_1))->GetObject()));
    EXPECT_EQ(nullptr, CGUIWidget::Find(&Root()));
    EXPECT_EQ(nullptr, CGUIWidget::Find(&kPlain));
    EXPECT_EQ(nullptr, CGUIWidget::Find(nullptr));
}

TEST_F(CWidgetTest, Find_GivesEachOfManyWhateverTheOrderInWhichTheyComeAndGo)
{
    std::mt19937 kRandom(42);
    std::vector<std::unique_ptr<CGUILabel>> kLabels;
    for (eC_UInt uiStep = 0; uiStep < 600; ++uiStep)
    {
        if (kLabels.empty() || kRandom() % 3 != 0)
        {
            kLabels.push_back(std::make_unique<CGUILabel>());
        }
        else
        {
            std::swap(kLabels[kRandom() % kLabels.size()], kLabels.back());
            const CGUIObject* pkGone = kLabels.back().get();
            kLabels.pop_back();
            ASSERT_EQ(nullptr, CGUIWidget::Find(pkGone)) << uiStep;
        }
        for (const auto& pkLabel : kLabels)
        {
            ASSERT_EQ(pkLabel.get(), CGUIWidget::Find(pkLabel.get())) << uiStep;
        }
    }
}

TEST_F(CWidgetTest, Attributes_OfEveryWidget_AreTaken)
{
    CGUILabel kLabel;
    Set(kLabel, "x", "-32768");
    Set(kLabel, "y", "32767");
    Set(kLabel, "width", "12");
    Set(kLabel, "height", "fill");
    Set(kLabel, "textkey", "TXT_BACK");
    Set(kLabel, "text", "now");
    Set(kLabel, "style", "warning");
    Set(kLabel, "source", "LEVEL");
    Set(kLabel, "invisible", "true");

    EXPECT_EQ(-32768, kLabel.GetX());
    EXPECT_EQ(32767, kLabel.GetY());
    EXPECT_EQ(12, kLabel.GetWidth());
    EXPECT_EQ(CGUIWidget::ciFill, kLabel.GetHeight());
    EXPECT_EQ(1, kLabel.GetTextKey());
    EXPECT_STREQ("Back", kLabel.GetCaption());
    EXPECT_STREQ("now", kLabel.GetText());
    EXPECT_STREQ("warning", kLabel.GetStyle());
    EXPECT_EQ(1, kLabel.GetSource());
    EXPECT_TRUE(kLabel.IsInvisible());
    EXPECT_EQ(0, kLabel.GetValue());
    EXPECT_FALSE(kLabel.SetValue(5));
}

TEST_F(CWidgetTest, Attributes_WithABadValue_AreRefusedAndChangeNothing)
{
    constexpr const eC_Char* pcPlace = "a number from -32768 to 32767";
    constexpr const eC_Char* pcSize = "a number from 1 to 32767, natural or fill";
    constexpr const eC_Char* pcAny = "a number from -2147483648 to 2147483647";
    CGUILabel kLabel;
    kLabel.SetPosition(1, 2);
    kLabel.SetSize(3, 4);
    ExpectBadValue(kLabel, "x", "", pcPlace);
    ExpectBadValue(kLabel, "x", "-", pcPlace);
    ExpectBadValue(kLabel, "x", "+1", pcPlace);
    ExpectBadValue(kLabel, "x", " 1", pcPlace);
    ExpectBadValue(kLabel, "y", "32768", pcPlace);
    ExpectBadValue(kLabel, "y", "-32769", pcPlace);
    ExpectBadValue(kLabel, "y", "99999999999999999999", pcPlace);
    ExpectBadValue(kLabel, "width", "0", pcSize);
    ExpectBadValue(kLabel, "width", "-1", pcSize);
    ExpectBadValue(kLabel, "height", "Fill", pcSize);
    ExpectBadValue(kLabel, "textkey", "Back", "the key of a text of the application");
    ExpectBadValue(kLabel, "source", "level", "the name of a value of the application");
    EXPECT_EQ(1, kLabel.GetX());
    EXPECT_EQ(2, kLabel.GetY());
    EXPECT_EQ(3, kLabel.GetWidth());
    EXPECT_EQ(4, kLabel.GetHeight());

    CGUIPopup kPopup;
    ExpectBadValue(kPopup, "layout", "grid", "absolute, row or column");
    ExpectBadValue(kPopup, "gap", "-1", "a number from 0 to 32767");
    ExpectBadValue(kPopup, "padding", "wide", "a number from 0 to 32767");
    ExpectBadValue(kPopup, "modal", "yes", "true or false");
    CGUISlider kSlider;
    ExpectBadValue(kSlider, "value", "2147483648", pcAny);
    ExpectBadValue(kSlider, "minimum", "1.5", pcAny);
    ExpectBadValue(kSlider, "maximum", "1 ", pcAny);
    ExpectBadValue(kSlider, "step", "0", "a number from 1 to 2147483647");
    CGUICheckBox kCheckBox;
    ExpectBadValue(kCheckBox, "checked", "1", "true or false");
    CGUIList kList;
    ExpectBadValue(kList, "entrykeys", "TXT_BACK|TXT_FAR",
                   "keys of texts of the application, with | between them");
    ExpectBadValue(kList, "value", "-1", "a number from 0 to 2147483647");
    ExpectBadValue(kList, "rowheight", "0", "a number from 1 to 32767");
    CGUITextField kTextField;
    ExpectBadValue(kTextField, "length", "1001", "a number from 1 to 1000");
}

TEST_F(CWidgetTest, Keys_AreUnknownWithoutATranslatorAndValuesWithoutASource)
{
    CGUILabel kLabel;
    kLabel.SetTextKey(1);
    CGUIWidget::SetTranslator(nullptr);
    CGUIWidget::SetValueSource(nullptr);

    EXPECT_STREQ("", kLabel.GetCaption());
    ExpectBadValue(kLabel, "textkey", "TXT_BACK", "the key of a text of the application");
    ExpectBadValue(kLabel, "source", "LEVEL", "the name of a value of the application");
}

TEST_F(CWidgetTest, Content_IsCaptionAndTextWithABlankBetween)
{
    CGUILabel kLabel;
    eC_Char acContent[32];
    EXPECT_EQ(0U, kLabel.CopyContent(acContent, sizeof(acContent)));
    EXPECT_STREQ("", acContent);
    kLabel.SetText("2 s");
    EXPECT_EQ(3U, kLabel.CopyContent(acContent, sizeof(acContent)));
    EXPECT_STREQ("2 s", acContent);
    kLabel.SetTextKey(1);
    EXPECT_EQ(8U, kLabel.CopyContent(acContent, sizeof(acContent)));
    EXPECT_STREQ("Back 2 s", acContent);
    kLabel.SetText(nullptr);
    EXPECT_EQ(4U, kLabel.CopyContent(acContent, sizeof(acContent)));
    EXPECT_STREQ("Back", acContent);
}

TEST_F(CWidgetTest, Content_WithoutRoom_IsCutOffBehindAWholeCharacter)
{
    m_kTranslator.m_bIsGerman = true;
    CGUILabel kLabel;
    kLabel.SetTextKey(1);
    kLabel.SetText("ja");
    const std::vector<std::string> kExpected = {"",        "Z",        "Zu",        "Zur",
                                                "Zur",     "Zurü",     "Zurüc",     "Zurück",
                                                "Zurück ", "Zurück j", "Zurück ja", "Zurück ja"};
    for (eC_UInt uiSize = 1; uiSize <= kExpected.size(); ++uiSize)
    {
        eC_Char acContent[16];
        EXPECT_EQ(kExpected[uiSize - 1].size(), kLabel.CopyContent(acContent, uiSize)) << uiSize;
        EXPECT_EQ(kExpected[uiSize - 1], acContent);
    }
}

TEST_F(CWidgetTest, Text_NoLongerThanOneBefore_IsSetWithoutMemory)
{
    CGUILabel kLabel;
    kLabel.SetText("A text that needs an array of its own");
    const CAllocationCounter kCounter;

    EXPECT_TRUE(kLabel.SetText("Another text with such an array, too"));
    EXPECT_FALSE(kLabel.SetText("Another text with such an array, too"));
    EXPECT_TRUE(kLabel.SetText(kLabel.GetText() + 8)) << "a part of itself";

    EXPECT_STREQ("text with such an array, too", kLabel.GetText());
    EXPECT_EQ(0U, kCounter.GetNumber());
}

TEST_F(CWidgetTest, Text_WithoutMemory_StaysAsItWas)
{
    CGUILabel kLabel;
    kLabel.SetText("short");
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(kLabel.SetText("much longer than before"), std::bad_alloc);
    }
    EXPECT_STREQ("short", kLabel.GetText());
}

TEST_F(CWidgetTest, IsShown_OnlyUnderTheRootWithNothingInvisibleAbove)
{
    CGUIScreen kScreen(&Root(), DLG_A);
    auto* pkLabel = new CGUILabel(&kScreen, OBJ_1);
    EXPECT_TRUE(pkLabel->IsShown());
    pkLabel->SetInvisible(true);
    EXPECT_FALSE(pkLabel->IsShown());
    pkLabel->SetInvisible(false);
    kScreen.SetInvisible(true);
    EXPECT_FALSE(pkLabel->IsShown());
    kScreen.SetInvisible(false);
    kScreen.SetParent(nullptr);
    EXPECT_FALSE(pkLabel->IsShown());
}

TEST_F(CWidgetTest, HasFocus_IsThatOfTheObject)
{
    auto* pkFirst = new CGUIButton(&Root(), OBJ_1);
    auto* pkSecond = new CGUIButton(&Root(), OBJ_2);
    pkSecond->RequestFocus();
    EXPECT_FALSE(pkFirst->HasFocus());
    EXPECT_TRUE(pkSecond->HasFocus());
}

TEST_F(CWidgetTest, UpdateValues_SetsWhatIsVisible)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkLabel = new CGUILabel(pkScreen, OBJ_1);
    auto* pkBar = new CGUIBar(pkScreen, OBJ_2);
    auto* pkHidden = new CGUILabel(pkScreen, OBJ_3);
    auto* pkPlain = new CGUILabel(pkScreen, OBJ_4);
    auto* pkCheckBox = new CGUICheckBox(pkScreen, OBJ_5);
    auto* pkList = new CGUIList(pkScreen, OBJ_6);
    Set(*pkList, "entries", "a|b|c");
    for (CGUIObject* pkObject : {Object(OBJ_1), Object(OBJ_2), Object(OBJ_3), Object(OBJ_5), Object(OBJ_6)})
    {
        Set(*pkObject, "source", "LEVEL");
    }
    pkHidden->SetInvisible(true);
    m_kValues.m_iLevel = 2;
    m_kValues.m_kText = "two";

    CGUIWidget::UpdateValues();

    EXPECT_STREQ("two", pkLabel->GetText());
    EXPECT_EQ(2, pkBar->GetValue());
    EXPECT_STREQ("", pkBar->GetText());
    EXPECT_STREQ("", pkHidden->GetText());
    EXPECT_STREQ("", pkPlain->GetText());
    EXPECT_TRUE(pkCheckBox->IsChecked());
    EXPECT_EQ(2, pkList->GetValue());
}

TEST_F(CWidgetTest, UpdateValues_WithoutASourceOrARoot_DoesNothing)
{
    CGUIWidget::SetValueSource(nullptr);
    CGUIWidget::UpdateValues();
    CGUIWidget::SetValueSource(&m_kValues);
    DestroyManager();
    DestroyRoot();
    CGUIWidget::UpdateValues();
}

TEST_F(CWidgetTest, Defaults_OfDescendants_AreTheirOwn)
{
    const CGUILabel kLabel;
    EXPECT_EQ(CGUIWidget::ciNatural, kLabel.GetWidth());
    EXPECT_EQ(CGUIWidget::ciNatural, kLabel.GetHeight());
    EXPECT_FALSE(kLabel.IsFocusable());
    EXPECT_FALSE(kLabel.IsWindow());
    EXPECT_FALSE(kLabel.IsModal());
    EXPECT_EQ(nullptr, kLabel.GetLayout());
    EXPECT_EQ(0U, kLabel.SaveState(nullptr, 0));

    CGUIPopup kPopup;
    EXPECT_EQ(CGUIWidget::ciFill, kPopup.GetWidth());
    EXPECT_EQ(CGUIWidget::ciFill, kPopup.GetHeight());
    EXPECT_TRUE(kPopup.IsWindow());
    EXPECT_FALSE(kPopup.IsModal());
    Set(kPopup, "modal", "true");
    EXPECT_TRUE(kPopup.IsModal());
    EXPECT_EQ(LAYOUT_ABSOLUTE, kPopup.GetLayout()->m_eLayout);
    EXPECT_TRUE(CGUIScreen().IsWindow());
    EXPECT_FALSE(CGUIContainer().IsWindow());
    EXPECT_TRUE(CGUIButton().IsFocusable());
}

TEST_F(CWidgetTest, Image_IsNamed)
{
    CGUIImage kImage;
    EXPECT_STREQ("", kImage.GetImage());
    Set(kImage, "image", "logo");
    EXPECT_STREQ("logo", kImage.GetImage());
}
