// SPDX-License-Identifier: MIT
#include "Simulator/SimulatorView.h"

#include "Simulator/ScreenPicture.h"
#include "TestSupport/GTest/ExpectText.h"
#include "Tests/Unit/Simulator/SampleDevice.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

namespace
{
class CSimulatorViewTest : public ::testing::Test
{
protected:
    CSimulatorViewTest() : m_kSimulation(m_kDevice), m_kDesk(m_kSimulation, "## 1. ON. It is on.\npower-on\n")
    {
    }

    /** @return the rows of a desk of 80 x 24, without the blanks at their ends */
    std::string Draw(eC_Int iWidth = 80, eC_Int iHeight = 24)
    {
        const CTextScreen kScreen = DrawDesk(m_kDesk, iWidth, iHeight);
        std::string kText;
        for (eC_Int iY = 0; iY < iHeight; ++iY)
        {
            std::string kRow = kScreen.GetRow(iY);
            kRow.erase(kRow.find_last_not_of(' ') + 1);
            kText += kRow + "\n";
        }
        return kText;
    }

    eC_Bool Shows(const std::string& kText, eC_Int iWidth = 80, eC_Int iHeight = 24)
    {
        return Draw(iWidth, iHeight).find(kText) != std::string::npos;
    }

    CSampleDevice m_kDevice;
    CSimulation m_kSimulation;
    CSimulatorDesk m_kDesk;
};
} // namespace

TEST_F(CSimulatorViewTest, Desk_HasDeviceInspectorAndTrace)
{
    m_kSimulation.Run("power-on");
    m_kSimulation.Run("weigh 7");
    m_kSimulation.Advance(1234);

    EXPECT_EQ(R"( SIMULATOR: Sample                                   live   1.234 s x1   ? help
┌─ simulated screen ─┐ ─ inspector, i I scroll ─────────────────────────────────
│ First              │ current dialog
│--------------------│   DLG_A
│>[ Go ]<            │     after ODA_NOTHING
│ O--------- 0%      │ history, most recent first
│ __________         │   empty
│                    │ popups, lowest priority first
└────────────────────┘   none
[OK] [Back]            focus
                         OBJ_1
                       tree, in drawing order
─ trace ────────────────────────────────────────────────────────────────────────
> power-on
    0.000    DEBUG: LoadDialogDescription: No dialog registered with id 1.
    0.000    DEBUG: UpdateActivePopups: The active popup list is empty!
> weigh 7
    0.000    INFO: weighs 7.
> advance 1234





)",
              Draw());
}

TEST_F(CSimulatorViewTest, Errors_AreMarked)
{
    m_kSimulation.Run("CreateDialog DLG_H ODA_DELETE");

    EXPECT_TRUE(Shows(" 0.000 !! ERROR: CreateDialog: Createing dialog with ID 8 failed! The"));
    EXPECT_EQ(STYLE_ERROR, DrawDesk(m_kDesk, 80, 24).GetCell(20, 15).m_eStyle);
}

TEST_F(CSimulatorViewTest, Scrolled_ShowsOlderEntries)
{
    m_kSimulation.Run("power-on");
    for (eC_UInt uiGrams = 0; uiGrams < 50; ++uiGrams)
    {
        m_kSimulation.Run("weigh " + std::to_string(uiGrams));
    }

    EXPECT_TRUE(Shows("INFO: weighs 49."));
    m_kDesk.ScrollTrace(40);
    EXPECT_TRUE(Shows("─ trace, 40 newer below ─"));
    EXPECT_TRUE(Shows("INFO: weighs 29."));
    EXPECT_FALSE(Shows("INFO: weighs 49."));
}

TEST_F(CSimulatorViewTest, Filter_IsInTheHeading)
{
    m_kSimulation.Run("power-on");
    m_kSimulation.Run("weigh 1");
    for (const eC_Char* pcKey : {"/", "W", "e", "i", "Enter"})
    {
        m_kDesk.PressKey(pcKey);
    }

    EXPECT_TRUE(Shows("─ trace, with 'Wei' ─"));
    EXPECT_TRUE(Shows("> weigh 1\n    0.000    INFO: weighs 1.\n\n"));
}

TEST_F(CSimulatorViewTest, Tour_HasItsCaption)
{
    m_kDesk.PlayTour();

    EXPECT_TRUE(Shows("\n 1. ON. It is on.\n"));
    EXPECT_TRUE(Shows("tour: keys of the device take over"));
    EXPECT_TRUE(Shows("\nnext: power-on\n"));
}

TEST_F(CSimulatorViewTest, Mistake_IsBelowTheDeviceAsAnError)
{
    /** Finds a mistake. */
    class CWrongSource : public CSimulatedSource
    {
    public:
        ENews Look(CSimulation&, std::string& kTextOUT) override
        {
            kTextOUT =
                "/home/user/flows/Lamp.xml:12:18: unknown action 'beck'; expected one of create, back, "
                "back-to, clear, show-popup, close-popup, focus, hide, destroy, set, start, stop";
            return NEWS_MISTAKE;
        }
    };
    CWrongSource kSource;
    m_kDesk.LookForChange(kSource);
    const CTextScreen kScreen = DrawDesk(m_kDesk, 80, 24);
    const std::string kFrame = kScreen.GetFrame();
    EXPECT_NE(std::string::npos, kFrame.find("!! /home/user/flows/Lamp.xml:12:18: unknown action 'beck';"));
    EXPECT_NE(std::string::npos, kFrame.find("set, start, stop"));
    for (eC_Int iY = 0; iY < 24; ++iY)
    {
        if (kScreen.GetRow(iY).find("!! /home") != std::string::npos)
        {
            EXPECT_EQ(STYLE_ERROR, kScreen.GetCell(1, iY).m_eStyle);
        }
    }
}

TEST_F(CSimulatorViewTest, Help_NamesEveryKey)
{
    m_kDesk.PressKey("?");
    const std::string kHelp = Draw();

    EXPECT_NE(std::string::npos, kHelp.find("Enter     OK"));
    for (const DeskKey_t& kKey : CSimulatorDesk::GetKeys())
    {
        EXPECT_NE(std::string::npos, kHelp.find(std::string(" ") + kKey.m_pcKey + " ")) << kKey.m_pcKey;
        EXPECT_NE(std::string::npos, kHelp.find(kKey.m_pcText)) << kKey.m_pcText;
    }
}

TEST_F(CSimulatorViewTest, MenuAndForm_AreOverTheDesk)
{
    m_kSimulation.Run("power-on");
    m_kDesk.PressKey("o");
    EXPECT_TRUE(Shows(" >a CreateDialog <dialog> <action> "));
    EXPECT_TRUE(Shows(" weigh <grams> "));

    m_kDesk.PressKey("c");
    EXPECT_TRUE(Shows("┌─ Back ─"));
    EXPECT_TRUE(Shows("│ > delete            true "));
    EXPECT_TRUE(Shows("│ choices: true false "));
}

TEST_F(CSimulatorViewTest, SizesOfAllKinds_AreDrawn)
{
    m_kSimulation.Run("power-on");
    for (const eC_Char* pcKey : {"z", "?", "z", "o", "k", "Escape", ":", "Escape", "T"})
    {
        m_kDesk.PressKey(pcKey);
        for (eC_Int iSize = 0; iSize < 40; ++iSize)
        {
            EXPECT_EQ(iSize, DrawDesk(m_kDesk, iSize, 40 - iSize).GetWidth());
        }
    }
    EXPECT_TRUE(Shows("simulated screen", 140, 45));
}

TEST_F(CSimulatorViewTest, SmallScreen_ShowsThePartOfTheDeviceThatHasTheFocus)
{
    m_kSimulation.Run("power-on");
    m_kSimulation.Run("touch OBJ_3");

    EXPECT_FALSE(Shows(" First ", 40, 12));
    EXPECT_TRUE(Shows("─ part of the sim", 40, 12));
    EXPECT_TRUE(Shows(">___", 40, 12));
    EXPECT_TRUE(Shows("80x24 shows all", 40, 12));
}

TEST_F(CSimulatorViewTest, Click_TouchesTheDeviceAndItsKeys)
{
    m_kSimulation.Run("power-on");
    ClickDesk(m_kDesk, 80, 24, 5, 4);
    EXPECT_EQ("touch-at 4 2", m_kSimulation.GetLines().back());
    ClickDesk(m_kDesk, 80, 24, 6, 9);
    EXPECT_EQ("key back", m_kSimulation.GetLines().back());
    ClickDesk(m_kDesk, 80, 24, 4, 9); // between two keys
    ClickDesk(m_kDesk, 80, 24, 60, 20);
    EXPECT_EQ(3U, m_kSimulation.GetLines().size());
}

TEST_F(CSimulatorViewTest, Click_ChoosesInTheMenuAndClosesWhatIsOpen)
{
    m_kSimulation.Run("power-on");
    m_kDesk.PressKey("o");
    ClickDesk(m_kDesk, 80, 24, 10, 5);
    EXPECT_EQ(CSimulatorDesk::MODE_FORM, m_kDesk.GetMode());
    ClickDesk(m_kDesk, 80, 24, 0, 0);
    EXPECT_EQ(CSimulatorDesk::MODE_DEVICE, m_kDesk.GetMode());
}

TEST_F(CSimulatorViewTest, Wheel_ScrollsWhatIsBelowIt)
{
    m_kSimulation.Run("power-on");
    ScrollDesk(m_kDesk, 80, 24, 5, 20, -3);
    EXPECT_EQ(3, m_kDesk.GetTracePane().GetScroll());
    ScrollDesk(m_kDesk, 80, 24, 60, 5, 3);
    EXPECT_EQ(3, m_kDesk.GetInspectorScroll());
    ScrollDesk(m_kDesk, 80, 24, 5, 5, 3);
    EXPECT_EQ(3, m_kDesk.GetInspectorScroll());
}

TEST_F(CSimulatorViewTest, Picture_DoesNotDependOnHowAViewerTreatsBlanks)
{
    CTextScreen kScreen(14, 1);
    kScreen.Write(1, 0, "\xE4\xB8\xAD b   c d", STYLE_PLAIN);

    const std::string kPicture = WriteSVG(kScreen, "Blanks");
    EXPECT_EQ(std::string::npos, kPicture.find("> "));
    EXPECT_EQ(std::string::npos, kPicture.find(" </text>"));
    // The wide character takes two columns.
    EXPECT_NE(std::string::npos, kPicture.find("<text x=\"21\" y=\"26\" textLength=\"36\""));
    EXPECT_NE(std::string::npos, kPicture.find(">\xE4\xB8\xAD b</text>"));
    EXPECT_NE(std::string::npos, kPicture.find("<text x=\"84\" y=\"26\" textLength=\"27\""));
    EXPECT_NE(std::string::npos, kPicture.find(">c d</text>"));
}

TEST_F(CSimulatorViewTest, Picture_HasTheCharactersAsText)
{
    CTextScreen kScreen(6, 1);
    kScreen.Write(0, 0, "a<&>", STYLE_ERROR);

    const std::string kPicture = WriteSVG(kScreen, "A & B");
    EXPECT_EQ(0U, kPicture.find("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"78\" height=\"43\""));
    EXPECT_NE(std::string::npos, kPicture.find("<title>A &amp; B</title>"));
    EXPECT_NE(std::string::npos, kPicture.find("<text x=\"12\" y=\"26\" textLength=\"36\""));
    EXPECT_NE(std::string::npos, kPicture.find(">a&lt;&amp;&gt;</text>"));
    EXPECT_EQ(kPicture, WriteSVG(kScreen, "A & B"));
}
