// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"
#include "Widgets/GUIWidgetLayout.h"
#include "Widgets/GUIWidgetVisitor.h"

#include <string>

namespace
{
/** Every character takes one unit. */
class CCharacterMetrics : public CGUIWidgetMetrics
{
public:
    void Measure(const CGUIWidget& kWidget, eC_Int& iWidthOUT, eC_Int& iHeightOUT) const override
    {
        iWidthOUT = static_cast<eC_Int>(CGUIText::CountCharacters(kWidget.GetText()));
        iHeightOUT = 1;
    }
};

std::string Describe(const GUIArea_t& kArea)
{
    return std::to_string(kArea.m_iX) + "," + std::to_string(kArea.m_iY) + " " +
           std::to_string(kArea.m_iWidth) + "x" + std::to_string(kArea.m_iHeight);
}

/** Records what it is called with. */
class CWritingVisitor : public CGUIWidgetVisitor
{
public:
    std::string m_kLines;

    void OnScreen(const CGUIScreen& kScreen, const GUIArea_t& kArea) override
    {
        Write("Screen", kScreen, kArea);
    }
    void OnPopup(const CGUIPopup& kPopup, const GUIArea_t& kArea) override { Write("Popup", kPopup, kArea); }
    void OnContainer(const CGUIContainer& kContainer, const GUIArea_t& kArea) override
    {
        Write("Container", kContainer, kArea);
    }
    void OnLabel(const CGUILabel& kLabel, const GUIArea_t& kArea) override { Write("Label", kLabel, kArea); }
    void OnImage(const CGUIImage& kImage, const GUIArea_t& kArea) override { Write("Image", kImage, kArea); }
    void OnButton(const CGUIButton& kButton, const GUIArea_t& kArea) override
    {
        Write("Button", kButton, kArea);
    }
    void OnCheckBox(const CGUICheckBox& kBox, const GUIArea_t& kArea) override
    {
        Write("CheckBox", kBox, kArea);
    }
    void OnBar(const CGUIBar& kBar, const GUIArea_t& kArea) override { Write("Bar", kBar, kArea); }
    void OnSlider(const CGUISlider& kSlider, const GUIArea_t& kArea) override
    {
        Write("Slider", kSlider, kArea);
    }
    void OnList(const CGUIList& kList, const GUIArea_t& kArea) override { Write("List", kList, kArea); }
    void OnTextField(const CGUITextField& kField, const GUIArea_t& kArea) override
    {
        Write("TextField", kField, kArea);
    }
    void OnWidget(const CGUIWidget&, const GUIArea_t&) override { FAIL() << "each class has a function"; }
    void OnEnd(const CGUIWidget& kWidget) override
    {
        m_kLines += "end " + NameOfHandle(kWidget.GetObject().GetID()) + "\n";
    }

private:
    void Write(const eC_Char* pcClass, const CGUIWidget& kWidget, const GUIArea_t& kArea)
    {
        m_kLines += std::string(pcClass) + " " + NameOfHandle(kWidget.GetObject().GetID()) + " " +
                    Describe(kArea) + "\n";
    }
};

class CWidgetLayoutTest : public CWidgetsTest
{
protected:
    CWidgetLayoutTest() : m_kLayout(40, 12, &m_kMetrics) {}

    std::string Visit() const
    {
        CWritingVisitor kVisitor;
        m_kLayout.Visit(kVisitor);
        return kVisitor.m_kLines;
    }

    std::string AreaOf(ObjectHandle_t eID) const { return Describe(m_kLayout.GetArea(*Object(eID))); }

    /** Adds a label with a text and a size. */
    static CGUILabel* AddLabel(CGUICompositeObject* pkParent, ObjectHandle_t eID, const eC_Char* pcText,
                               eC_Int iWidth = CGUIWidget::ciNatural, eC_Int iHeight = CGUIWidget::ciNatural)
    {
        auto* pkLabel = new CGUILabel(pkParent, eID);
        pkLabel->SetText(pcText);
        pkLabel->SetSize(iWidth, iHeight);
        return pkLabel;
    }

    CCharacterMetrics m_kMetrics;
    CGUIWidgetLayout m_kLayout;
};
} // namespace

TEST_F(CWidgetLayoutTest, AreaOfAWidget_IsThatOfItsObject)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetLayout(LAYOUT_COLUMN, 1, 2);
    AddLabel(pkScreen, OBJ_1, "One");
    CGUILabel* pkLabel = AddLabel(pkScreen, OBJ_2, "Two");
    EXPECT_EQ("0,0 40x12", Describe(m_kLayout.GetAreaOf(*pkScreen)));
    EXPECT_EQ("2,4 3x1", Describe(m_kLayout.GetAreaOf(*pkLabel)));
    EXPECT_EQ("2,4 3x1", AreaOf(OBJ_2));
}

TEST_F(CWidgetLayoutTest, Root_IsNoWidget)
{
    EXPECT_EQ(nullptr, CGUIWidget::Find(&Root()));
    EXPECT_EQ(nullptr, CGUIWidget::Find(nullptr));
}

TEST_F(CWidgetLayoutTest, Visit_GoesThroughEveryClassInDrawingOrder)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    new CGUIContainer(pkScreen, OBJ_1);
    new CGUILabel(pkScreen, OBJ_2);
    new CGUIImage(pkScreen, OBJ_3);
    new CGUIButton(pkScreen, OBJ_4);
    new CGUICheckBox(pkScreen, OBJ_5);
    new CGUIBar(pkScreen, OBJ_6);
    new CGUISlider(pkScreen, OBJ_7);
    new CGUIList(pkScreen, OBJ_8);
    new CGUITextField(pkScreen, OBJ_9);
    new CGUIPopup(&Root(), POP_1);
    pkScreen->DrawOnTop(Object(OBJ_2));

    EXPECT_EQ("Screen DLG_A 0,0 40x12\n"
              "Container OBJ_1 0,0 40x12\n"
              "end OBJ_1\n"
              "Image OBJ_3 0,0 0x1\n"
              "Button OBJ_4 0,0 0x1\n"
              "CheckBox OBJ_5 0,0 0x1\n"
              "Bar OBJ_6 0,0 0x1\n"
              "Slider OBJ_7 0,0 0x1\n"
              "List OBJ_8 0,0 0x1\n"
              "TextField OBJ_9 0,0 0x1\n"
              "Label OBJ_2 0,0 0x1\n"
              "end DLG_A\n"
              "Popup POP_1 0,0 40x12\n"
              "end POP_1\n",
              Visit());
}

TEST_F(CWidgetLayoutTest, Visit_WithAVisitorOfOneFunction_GivesItEveryClass)
{
    class CCountingVisitor : public CGUIWidgetVisitor
    {
    public:
        eC_UInt m_uiNOFWidgets = 0;
        void OnWidget(const CGUIWidget&, const GUIArea_t&) override { ++m_uiNOFWidgets; }
    } kVisitor;
    for (const eC_Char* pcClass : {"Screen", "Popup", "Container", "Label", "Image", "Button", "CheckBox",
                                   "Bar", "Slider", "List", "TextField"})
    {
        ASSERT_NE(nullptr, CGUIFactoryManager::GetInstance().CreateObject(pcClass, &Root(), NO_HANDLE))
            << pcClass;
    }
    m_kLayout.Visit(kVisitor);
    EXPECT_EQ(11U, kVisitor.m_uiNOFWidgets);
}

TEST_F(CWidgetLayoutTest, Visit_LeavesOutWhatIsInvisibleAndPassesThroughWhatIsNoWidget)
{
    auto* pkHidden = new CGUIScreen(&Root(), DLG_A);
    AddLabel(pkHidden, OBJ_1, "a");
    pkHidden->SetInvisible(true);
    auto* pkPlain = new CGUICompositeObject(&Root(), DLG_B);
    AddLabel(pkPlain, OBJ_2, "b");
    new CGUIObject(&Root(), OBJ_3);

    EXPECT_EQ("Label OBJ_2 0,0 1x1\n", Visit());
    Root().SetInvisible(true);
    EXPECT_EQ("", Visit());
}

TEST_F(CWidgetLayoutTest, VisitBelowAnObject_VisitsItAndWhatIsVisibleInItEvenIfItIsNot)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetPosition(2, 1);
    pkScreen->SetInvisible(true);
    (new CGUILabel(pkScreen, OBJ_1))->SetPosition(3, 4);
    (new CGUILabel(pkScreen, OBJ_2))->SetInvisible(true);
    new CGUIScreen(&Root(), DLG_B);

    CWritingVisitor kVisitor;
    m_kLayout.Visit(kVisitor, *pkScreen);

    EXPECT_EQ("Screen DLG_A 2,1 38x11\n"
              "Label OBJ_1 5,5 0x1\n"
              "end DLG_A\n",
              kVisitor.m_kLines);
}

TEST_F(CWidgetLayoutTest, Absolute_PlacesFromTheParentsCorner)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetPosition(10, 2);
    pkScreen->SetSize(20, 8);
    AddLabel(pkScreen, OBJ_1, "Häuser")->SetPosition(3, 4);
    AddLabel(pkScreen, OBJ_2, "", CGUIWidget::ciFill, CGUIWidget::ciFill)->SetPosition(5, 1);
    AddLabel(pkScreen, OBJ_3, "cut", 2, 9)->SetPosition(-1, 0);

    EXPECT_EQ("10,2 20x8", AreaOf(DLG_A));
    EXPECT_EQ("13,6 6x1", AreaOf(OBJ_1));
    EXPECT_EQ("15,3 15x7", AreaOf(OBJ_2));
    EXPECT_EQ("9,2 2x9", AreaOf(OBJ_3));
}

TEST_F(CWidgetLayoutTest, NaturalSizes_AreNothingWithoutMetrics)
{
    AddLabel(&Root(), OBJ_1, "text", CGUIWidget::ciNatural, 3);
    EXPECT_EQ("0,0 0x3", Describe(CGUIWidgetLayout(40, 12).GetArea(*Object(OBJ_1))));
}

TEST_F(CWidgetLayoutTest, Row_DividesWhatIsLeftAmongThoseWhoFill)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetLayout(LAYOUT_ROW, 2, 1);
    AddLabel(pkScreen, OBJ_1, "four")->SetPosition(7, 7);
    AddLabel(pkScreen, OBJ_2, "", CGUIWidget::ciFill, CGUIWidget::ciFill);
    AddLabel(pkScreen, OBJ_3, "hidden")->SetInvisible(true);
    new CGUIObject(pkScreen);
    AddLabel(pkScreen, OBJ_4, "", 5, 3);
    AddLabel(pkScreen, OBJ_5, "", CGUIWidget::ciFill, 2);

    // 38 inside the padding, minus 6 for the gaps between four children and 9 used: 23 for two.
    EXPECT_EQ("Screen DLG_A 0,0 40x12\n"
              "Label OBJ_1 1,1 4x1\n"
              "Label OBJ_2 7,1 11x10\n"
              "Label OBJ_4 20,1 5x3\n"
              "Label OBJ_5 27,1 12x2\n"
              "end DLG_A\n",
              Visit());
    EXPECT_EQ("27,1 12x2", AreaOf(OBJ_5));
    EXPECT_EQ("0,0 0x0", AreaOf(OBJ_3));
}

TEST_F(CWidgetLayoutTest, Column_DividesWhatIsLeftAmongThoseWhoFill)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetLayout(LAYOUT_COLUMN, 1, 0);
    AddLabel(pkScreen, OBJ_1, "title");
    auto* pkRow = new CGUIContainer(pkScreen, OBJ_2);
    pkRow->SetLayout(LAYOUT_ROW, 0, 0);
    AddLabel(pkRow, OBJ_3, "", CGUIWidget::ciFill, 1);
    AddLabel(pkRow, OBJ_4, "", CGUIWidget::ciFill, CGUIWidget::ciFill);
    AddLabel(pkScreen, OBJ_5, "foot", CGUIWidget::ciFill, 2);

    EXPECT_EQ("0,0 5x1", AreaOf(OBJ_1));
    EXPECT_EQ("0,2 40x7", AreaOf(OBJ_2));
    EXPECT_EQ("0,2 20x1", AreaOf(OBJ_3));
    EXPECT_EQ("20,2 20x7", AreaOf(OBJ_4));
    EXPECT_EQ("0,10 40x2", AreaOf(OBJ_5));
}

TEST_F(CWidgetLayoutTest, Row_WithoutRoom_GivesThoseWhoFillNothingAndGoesOverTheEdge)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetLayout(LAYOUT_ROW);
    AddLabel(pkScreen, OBJ_1, "", 30, 1);
    AddLabel(pkScreen, OBJ_2, "", CGUIWidget::ciFill, 1);
    AddLabel(pkScreen, OBJ_3, "", 30, 1);

    EXPECT_EQ("30,0 0x1", AreaOf(OBJ_2));
    EXPECT_EQ("30,0 30x1", AreaOf(OBJ_3));
}

TEST_F(CWidgetLayoutTest, Layout_TakesNoMemory)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    pkScreen->SetLayout(LAYOUT_COLUMN);
    AddLabel(pkScreen, OBJ_1, "", CGUIWidget::ciFill, CGUIWidget::ciFill);
    AddLabel(pkScreen, OBJ_2, "text");
    const CAllocationCounter kCounter;
    for (eC_UInt uiTurn = 0; uiTurn < 10; ++uiTurn)
    {
        m_kLayout.GetArea(*Object(OBJ_2));
        m_kLayout.FindAt(0, 11);
    }
    EXPECT_EQ(0U, kCounter.GetNumber());
}

TEST_F(CWidgetLayoutTest, FindAt_GivesTheTopmostFocusableWidgetThatNoWindowCovers)
{
    auto* pkScreen = new CGUIScreen(&Root(), DLG_A);
    auto* pkButton = new CGUIButton(pkScreen, OBJ_1);
    pkButton->SetPosition(2, 2);
    pkButton->SetSize(20, 3);
    AddLabel(pkScreen, OBJ_2, "a label covers nothing")->SetPosition(2, 2);
    auto* pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetPosition(10, 0);
    pkPopup->SetSize(10, 12);
    auto* pkOK = new CGUIButton(pkPopup, OBJ_3);
    pkOK->SetPosition(1, 4);
    pkOK->SetSize(2, 1);

    EXPECT_EQ(pkButton, m_kLayout.FindAt(2, 2));
    EXPECT_EQ(pkButton, m_kLayout.FindAt(9, 4));
    EXPECT_EQ(nullptr, m_kLayout.FindAt(1, 2));
    EXPECT_EQ(nullptr, m_kLayout.FindAt(2, 5));
    EXPECT_EQ(nullptr, m_kLayout.FindAt(10, 2)) << "covered by the popup";
    EXPECT_EQ(pkButton, m_kLayout.FindAt(20, 2)) << "beside the popup";
    EXPECT_EQ(pkOK, m_kLayout.FindAt(12, 4));
    EXPECT_EQ(nullptr, m_kLayout.FindAt(13, 4));
    pkPopup->SetInvisible(true);
    EXPECT_EQ(pkButton, m_kLayout.FindAt(10, 2));
    EXPECT_EQ(nullptr, m_kLayout.FindAt(-1, -1));
}
