// SPDX-License-Identifier: MIT
#include "Simulator/TextPainter.h"

#include "TestSupport/GTest/ExpectText.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"
#include "Widgets/GUIWidgets.h"

#include <gtest/gtest.h>

namespace
{
constexpr Device_t ckDevice = {"Test", 24, 5, 1, 1, nullptr, 0};
constexpr Device_t ckPixels = {"Test", 192, 80, 8, 16, nullptr, 0};

class CTextPainterTest : public CWidgetsTest
{
protected:
    CTextPainterTest() : m_pkScreen(new CGUIScreen(&Root(), DLG_A)) { m_pkScreen->SetText("Title"); }

    template <typename TWidget>
    TWidget* Add(eC_Int iX, eC_Int iY, const eC_Char* pcText = "")
    {
        auto* const pkWidget = new TWidget(m_pkScreen, OBJ_1);
        pkWidget->SetPosition(iX, iY);
        pkWidget->SetText(pcText);
        return pkWidget;
    }

    /** @return a row of the device, without the blanks at its end */
    static std::string Row(eC_Int iY, const Device_t& kDevice = ckDevice)
    {
        std::string kRow = PaintDevice(kDevice).GetRow(iY);
        kRow.erase(kRow.find_last_not_of(' ') + 1);
        return kRow;
    }

    CGUIScreen* m_pkScreen;
};
} // namespace

TEST_F(CTextPainterTest, Screen_HasItsTitleAndALine)
{
    EXPECT_EQ(" Title", Row(0));
    EXPECT_EQ("------------------------", Row(1));
    EXPECT_EQ("", Row(2));
}

TEST_F(CTextPainterTest, SmallerScreen_IsABoxOverTheOther)
{
    auto* const pkWindow = new CGUIScreen(&Root(), DLG_B);
    pkWindow->SetText("Box");
    pkWindow->SetPosition(2, 2);
    pkWindow->SetSize(10, 3);

    EXPECT_EQ(" Title", Row(0));
    EXPECT_EQ("  +- Box --+", Row(2));
    EXPECT_EQ("  |        |", Row(3));
}

TEST_F(CTextPainterTest, Popup_HasDoubleEdges)
{
    auto* const pkPopup = new CGUIPopup(&Root(), POP_1);
    pkPopup->SetText("Hi");
    pkPopup->SetPosition(2, 2);
    pkPopup->SetSize(10, 3);

    EXPECT_EQ("  += Hi ===+", Row(2));
    EXPECT_EQ("  +========+", Row(4));
}

TEST_F(CTextPainterTest, Button_WithFocus_IsBetweenArrows)
{
    auto* const pkButton = Add<CGUIButton>(1, 2, "Go");

    EXPECT_EQ(" [ Go ]", Row(2));
    pkButton->RequestFocus();
    EXPECT_EQ(">[ Go ]<", Row(2));
    EXPECT_EQ(STYLE_FOCUS, PaintDevice(ckDevice).GetCell(3, 2).m_eStyle);
}

TEST_F(CTextPainterTest, CheckBox_ShowsItsMark)
{
    auto* const pkCheckBox = Add<CGUICheckBox>(1, 2, "Milk");

    EXPECT_EQ(" [ ] Milk", Row(2));
    pkCheckBox->SetValue(1);
    pkCheckBox->RequestFocus();
    EXPECT_EQ(">[x] Milk<", Row(2));
}

TEST_F(CTextPainterTest, Bar_ShowsItsValueInPercentOrAsItIs)
{
    auto* const pkBar = Add<CGUIBar>(1, 2);
    pkBar->SetValue(39);

    EXPECT_EQ(" ###------- 39%", Row(2));
    pkBar->SetRange(0, 40);
    EXPECT_EQ(" #########- 39", Row(2));
}

TEST_F(CTextPainterTest, Slider_ShowsItsKnobWhereATouchSetsItsValue)
{
    auto* const pkSlider = Add<CGUISlider>(1, 2);
    pkSlider->RequestFocus();

    EXPECT_EQ(">O---------<0%", Row(2));
    pkSlider->SetValue(100);
    EXPECT_EQ(">---------O<100%", Row(2));
    pkSlider->OnTouch(4, 0, {1, 2, 10, 1});
    EXPECT_EQ(">----O-----<44%", Row(2));
}

TEST_F(CTextPainterTest, List_MarksTheSelectedEntry)
{
    eC_String kExpected;
    auto* const pkList = Add<CGUIList>(2, 2);
    pkList->SetAttribute("entries", "one|two|three", kExpected);
    pkList->SetValue(1);

    EXPECT_EQ("    one", Row(2));
    EXPECT_EQ("  * two", Row(3));
    EXPECT_EQ("    three", Row(4));
    pkList->RequestFocus();
    EXPECT_EQ(" >* two  <", Row(3));
}

TEST_F(CTextPainterTest, List_ThatIsTooLow_ShowsTheSelectedEntry)
{
    eC_String kExpected;
    auto* const pkList = Add<CGUIList>(2, 2);
    pkList->SetAttribute("entries", "one|two|three", kExpected);
    pkList->SetSize(9, 2);
    pkList->SetValue(2);

    EXPECT_EQ("    two", Row(2));
    EXPECT_EQ("  * three", Row(3));
    EXPECT_EQ("", Row(4));
}

TEST_F(CTextPainterTest, TextField_ShowsItsTextAndTheCursor)
{
    auto* const pkField = Add<CGUITextField>(1, 2);

    EXPECT_EQ(" __________", Row(2));
    pkField->SetText("abc");
    pkField->RequestFocus();
    EXPECT_EQ(">abc_______<", Row(2));
    EXPECT_EQ(STYLE_CURSOR, PaintDevice(ckDevice).GetCell(4, 2).m_eStyle);
    pkField->SetCursorColumn(0);
    EXPECT_EQ(STYLE_CURSOR, PaintDevice(ckDevice).GetCell(1, 2).m_eStyle);
}

TEST_F(CTextPainterTest, TextField_WithALongText_ShowsWhereTheCursorIs)
{
    auto* const pkField = Add<CGUITextField>(1, 2, "0123456789abcdef");

    EXPECT_EQ(" 789abcdef_", Row(2));
    pkField->SetCursorColumn(2);
    EXPECT_EQ(" 0123456789", Row(2));
}

TEST_F(CTextPainterTest, Image_ShowsItsName)
{
    Add<CGUIImage>(1, 2)->SetImage("cup");

    EXPECT_EQ(" <cup>", Row(2));
}

TEST_F(CTextPainterTest, OtherWidget_ShowsItsText)
{
    Add<CGUILabel>(1, 2, "Hello");

    EXPECT_EQ(" Hello", Row(2));
}

TEST_F(CTextPainterTest, ObjectThatIsNoWidget_IsSkippedButNotItsChildren)
{
    auto* const pkComposite = new CGUICompositeObject(m_pkScreen);
    auto* const pkLabel = new CGUILabel(pkComposite);
    pkLabel->SetPosition(1, 2);
    pkLabel->SetText("Hello");

    EXPECT_EQ(" Hello", Row(2));
}

TEST_F(CTextPainterTest, InvisibleWidget_IsLeftOut)
{
    Add<CGUILabel>(1, 2, "Hello")->SetInvisible(true);

    EXPECT_EQ("", Row(2));
}

TEST_F(CTextPainterTest, DeviceWithPixels_IsPaintedInCharacters)
{
    Add<CGUIButton>(8, 32, "Go");
    auto* const pkBar = Add<CGUIBar>(8, 48);
    pkBar->SetValue(50);

    EXPECT_EQ(24, PaintDevice(ckPixels).GetWidth());
    EXPECT_EQ(5, PaintDevice(ckPixels).GetHeight());
    EXPECT_EQ(" [ Go ]", Row(2, ckPixels));
    EXPECT_EQ(" #####----- 50%", Row(3, ckPixels));
}

TEST_F(CTextPainterTest, Frame_HasTheSizeOfTheDevice)
{
    EXPECT_EQ("+------------------------+\n"
              "| Title                  |\n"
              "|------------------------|\n"
              "|                        |\n"
              "|                        |\n"
              "|                        |\n"
              "+------------------------+\n",
              PaintFrame(ckDevice));
}
