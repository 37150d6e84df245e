// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUINamedStyles.h"
#include "Adapters/Mirror/GUINativeAdapter.h"
#include "Adapters/Mirror/GUINativePart.h"
#include "Adapters/Mirror/GUIWidgetLooks.h"
#include "Tests/Unit/Adapters/MirrorTest.h"

namespace
{
/** An adapter for a display of 400 by 240 pixels, with characters of 8 by 16. */
class CFakeAdapter : public CGUINativeAdapter, private CGUIWidgetListener
{
public:
    explicit CFakeAdapter(const GUIAdapterOptions_t& kOptions) : CGUINativeAdapter(kOptions, 400, 240, *this)
    {
    }
    ~CFakeAdapter() { m_kMirror.DeleteAll(); }

    void Commit(const std::function<void()>& kInside = [] {})
    {
        RunTurn(
            [this, &kInside]
            {
                kInside();
                m_kMirror.Commit();
            });
    }

    std::string m_kAreas; ///< in pixels, as they were updated

private:
    void OnActivated(CGUIWidget&) override {}
    eC_Int GetPixels(eC_Bool bIsWidth) const override { return bIsWidth ? 400 : 240; }
    eC_Int MeasureText(const eC_Char* pcText, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        iWidthOUT = 8 * static_cast<eC_Int>(std::strlen(pcText));
        iHeightOUT = 16;
        return 16;
    }
    void* Create(CGUIMirrored&) override { return this; }
    void* Build(CGUIMirrored&, CGUIWindowBuilder& kBuilder) override { return kBuilder.Build(this); }
    void Update(CGUIMirrored& kMirrored, const GUIArea_t& kArea) override
    {
        const GUIArea_t kPixels = ToPixels(*kMirrored.GetWidget(), kArea);
        m_kAreas += NameOfHandle(kMirrored.GetWidget()->GetObject().GetID()) + " " +
                    std::to_string(kPixels.m_iX) + "," + std::to_string(kPixels.m_iY) + " " +
                    std::to_string(kPixels.m_iWidth) + "x" + std::to_string(kPixels.m_iHeight) + "; ";
    }
    void SetShown(CGUIMirrored&, eC_Bool) override {}
    void PutBelow(CGUIMirrored&, CGUIMirrored*) override {}
    void Delete(CGUIMirrored&) override {}
    void SetInput(CGUIMirrored*, CGUIMirrored*, CGUIMirrored*) override {}
};

GUIAdapterOptions_t UnitsOf(eC_Int iWidth, eC_Int iHeight)
{
    GUIAdapterOptions_t kOptions;
    kOptions.m_iWidth = iWidth;
    kOptions.m_iHeight = iHeight;
    return kOptions;
}
} // namespace

class CNativeAdapterTest : public CMirrorTest
{
protected:
    CNativeAdapterTest() : m_pkScreen(AddScreen(DLG_A, {OBJ_1}))
    {
        CGUIWidget::Find(Object(OBJ_1))->SetText("Home");
    }

    CGUIScreen* m_pkScreen;
};

TEST_F(CNativeAdapterTest, WithoutUnits_AreasArePixels)
{
    CFakeAdapter kAdapter{GUIAdapterOptions_t()};
    CGUIWidget::Find(Object(OBJ_1))->SetPosition(3, 7);
    kAdapter.Commit();
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_1 3,7 64x16; ", kAdapter.m_kAreas);
}

TEST_F(CNativeAdapterTest, WithUnits_AreasFillTheDisplayWithoutGaps)
{
    CFakeAdapter kAdapter(UnitsOf(30, 7));
    CGUIWidget::Find(Object(OBJ_1))->SetPosition(1, 1);
    CGUIWidget::Find(Object(OBJ_1))->SetSize(1, 1);
    kAdapter.Commit();
    // 13.3 pixels by 34.3: from one edge, rounded, to the next.
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_1 13,34 13x34; ", kAdapter.m_kAreas);
}

TEST_F(CNativeAdapterTest, NaturalSizes_AreWholeUnitsRoundedUp)
{
    CFakeAdapter kAdapter(UnitsOf(40, 12));
    new CGUILabel(m_pkScreen, OBJ_2);
    CGUIWidget::Find(Object(OBJ_2))->SetText("12345");
    kAdapter.Commit();
    // A button has a line's height on both sides: 32 + 32 pixels are 7 units of 10; the label's 40 are 4.
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_1 0,0 70x20; OBJ_2 0,0 40x20; ", kAdapter.m_kAreas);
}

TEST_F(CNativeAdapterTest, BarsOfNaturalHeight_AreThinAndInTheMiddleOfTheirLine)
{
    m_pkScreen->SetLayout(LAYOUT_COLUMN, 0, 0);
    delete Object(OBJ_1);
    (new CGUIBar(m_pkScreen, OBJ_2))->SetSize(100, CGUIWidget::ciNatural);
    (new CGUISlider(m_pkScreen, OBJ_3))->SetSize(100, CGUIWidget::ciNatural);
    (new CGUIBar(m_pkScreen, OBJ_4))->SetSize(100, 40);
    CFakeAdapter kAdapter(UnitsOf(0, 0));
    kAdapter.Commit();
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_2 0,4 100x8; OBJ_3 0,20 100x8; OBJ_4 0,32 100x40; ", kAdapter.m_kAreas);
}

TEST_F(CNativeAdapterTest, ButtonsOfNaturalSize_HaveALeastSize)
{
    GUIAdapterOptions_t kOptions;
    kOptions.m_iButtonWidth = 150;
    kOptions.m_iButtonHeight = 24;
    CFakeAdapter kAdapter(kOptions);
    kAdapter.Commit();
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_1 0,0 150x24; ", kAdapter.m_kAreas);
}

TEST_F(CNativeAdapterTest, DisplayOfMoreUnitsThanPixels_MeasuresAtLeastItsPixels)
{
    CFakeAdapter kAdapter(UnitsOf(4000, 2400));
    kAdapter.Commit();
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_1 0,0 6x1; ", kAdapter.m_kAreas);
}

TEST_F(CNativeAdapterTest, ExceptionOfTheApplication_IsOneErrorAndTheNextTurnCommits)
{
    CFakeAdapter kAdapter{GUIAdapterOptions_t()};
    TakeErrors();
    kAdapter.Commit([] { throw std::runtime_error("wrong"); });
    EXPECT_EQ("", kAdapter.m_kAreas);
    EXPECT_EQ("ERROR: CGUINativeAdapter: Caught an exception of the application.\\n\n", TakeErrors());
    kAdapter.Commit();
    EXPECT_EQ("DLG_A 0,0 400x240; OBJ_1 0,0 64x16; ", kAdapter.m_kAreas);
    EXPECT_EQ("", TakeErrors());
}

TEST_F(CNativeAdapterTest, EveryClassOfWidgets_HasTheNameOfItsElement)
{
    new CGUIPopup(m_pkScreen, OBJ_2);
    new CGUIContainer(m_pkScreen, OBJ_3);
    new CGUILabel(m_pkScreen, OBJ_4);
    new CGUIImage(m_pkScreen, OBJ_5);
    new CGUICheckBox(m_pkScreen, OBJ_6);
    new CGUIBar(m_pkScreen, OBJ_7);
    new CGUISlider(m_pkScreen, OBJ_8);
    new CGUIList(m_pkScreen, OBJ_9);
    new CGUITextField(m_pkScreen, OBJ_10);
    new CGUINativePart(m_pkScreen, OBJ_11);
    std::string kNames;
    for (const ObjectHandle_t eID :
         {DLG_A, OBJ_1, OBJ_2, OBJ_3, OBJ_4, OBJ_5, OBJ_6, OBJ_7, OBJ_8, OBJ_9, OBJ_10, OBJ_11})
    {
        kNames += std::string(GetGUIClassName(*CGUIWidget::Find(Object(eID)))) + ";";
        EXPECT_EQ(eID == OBJ_2, IsGUIPopup(*CGUIWidget::Find(Object(eID))));
    }
    EXPECT_EQ("Screen;Button;Popup;Container;Label;Image;CheckBox;Bar;Slider;List;TextField;;", kNames);
}

TEST_F(CNativeAdapterTest, ShownText_IsCaptionAndText)
{
    class CTexts : public CGUITranslator
    {
    public:
        eC_Bool FindText(const eC_Char*, GUIContentKey_t&) const override { return false; }
        const eC_Char* GetText(GUIContentKey_t) const override { return "Level"; }
    } kTexts;
    CGUIWidget& kWidget = *CGUIWidget::Find(Object(OBJ_1));
    EXPECT_STREQ("Home", CGUIShownText(kWidget).GetText());
    CGUIWidget::SetTranslator(&kTexts);
    kWidget.SetTextKey(1);
    EXPECT_STREQ("Level Home", CGUIShownText(kWidget).GetText());
    kWidget.SetText("");
    EXPECT_STREQ("Level", CGUIShownText(kWidget).GetText());
    CGUIWidget::SetTranslator(nullptr);
}

TEST(CNamedStylesTest, Styles_AreFoundByTheirNameInTheOrderOfAdding)
{
    CGUINamedStyles<int> kStyles;
    kStyles.Add("warm", 1);
    kStyles.Add("cold", 2);
    kStyles.Add("warm", 3);
    kStyles.Add("", 4);
    const auto Find = [&kStyles](const char* pcName)
    {
        std::string kFound;
        kStyles.ForEach(pcName, [&kFound](int iStyle) { kFound += std::to_string(iStyle); });
        return kFound;
    };
    EXPECT_EQ("13", Find("warm"));
    EXPECT_EQ("2", Find("cold"));
    EXPECT_EQ("", Find("hot"));
    EXPECT_EQ("", Find(""));
    std::string kAll;
    kStyles.ForAll([&kAll](int iStyle) { kAll += std::to_string(iStyle); });
    EXPECT_EQ("1234", kAll);
}
