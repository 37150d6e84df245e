// SPDX-License-Identifier: MIT
#include "Simulator/SimulatorDesk.h"

#include "Scenario/StatePrinter.h"
#include "Scenario/TextLines.h"
#include "Tests/Unit/Simulator/SampleDevice.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace
{
using Lines = std::vector<std::string>;

constexpr const eC_Char* cpcTour = "## A TOUR\n"
                                   "# About the transcript.\n"
                                   "\n"
                                   "## 1. ON. The first dialog.\n"
                                   "power-on\n"
                                   "# The second one.\n"
                                   "touch OBJ_1\n"
                                   "## 2. POPUP. It goes by itself.\n"
                                   "key ok\n"
                                   "advance 1000\n";
constexpr eC_UInt cuiLong = 100000; ///< longer than the tour

class CSimulatorDeskTest : public ::testing::Test
{
protected:
    CSimulatorDeskTest() : m_kSimulation(m_kDevice), m_kDesk(m_kSimulation, cpcTour) {}

    void PowerOn() { m_kSimulation.Run("power-on"); }

    void Press(const Lines& kKeys)
    {
        for (const std::string& kKey : kKeys)
        {
            m_kDesk.PressKey(kKey);
        }
    }

    const Lines& Session() { return m_kSimulation.GetLines(); }

    std::string Value(ObjectHandle_t eID)
    {
        return std::to_string(CGUIWidget::Find(CGUI::GetInstance().GetObjectByID(eID, true))->GetValue());
    }

    CSampleDevice m_kDevice;
    CSimulation m_kSimulation;
    CSimulatorDesk m_kDesk;
};
} // namespace

/** A source that says what a test wants. */
class CToldSource : public CSimulatedSource
{
public:
    explicit CToldSource(CSampleDevice& kDevice) : m_kDevice(kDevice) {}

    ENews Look(CSimulation& kSimulation, std::string& kTextOUT) override
    {
        if (m_eNews == NEWS_CHANGED)
        {
            kSimulation.Change([this]() { m_kDevice.m_bHasNoScales = true; });
        }
        kTextOUT = m_eNews == NEWS_NONE ? kTextOUT : m_kText;
        return m_eNews;
    }

    ENews m_eNews = NEWS_NONE;
    std::string m_kText;

private:
    CSampleDevice& m_kDevice;
};

TEST_F(CSimulatorDeskTest, LookForChange_MistakeIsShownUntilItIsPutRight)
{
    CToldSource kSource(m_kDevice);
    PowerOn();
    m_kDesk.LookForChange(kSource);
    EXPECT_EQ("", m_kDesk.GetMistake());
    EXPECT_EQ("", m_kDesk.GetMessage());

    kSource.m_eNews = CSimulatedSource::NEWS_MISTAKE;
    kSource.m_kText = "a.xml:1:2: found this; expected that";
    m_kDesk.LookForChange(kSource);
    kSource.m_eNews = CSimulatedSource::NEWS_NONE;
    m_kDesk.LookForChange(kSource);
    Press({"Tab", "?", "Escape"});
    EXPECT_EQ("a.xml:1:2: found this; expected that", m_kDesk.GetMistake());

    kSource.m_eNews = CSimulatedSource::NEWS_CHANGED;
    kSource.m_kText = "it has changed";
    m_kDesk.LookForChange(kSource);
    EXPECT_EQ("", m_kDesk.GetMistake());
    EXPECT_EQ("it has changed", m_kDesk.GetMessage());
}

TEST_F(CSimulatorDeskTest, LookForChange_EndsATourOnlyIfTheApplicationIsAnotherOne)
{
    CToldSource kSource(m_kDevice);
    m_kDesk.PlayTour();
    m_kDesk.PassTime(cuiLong / 20);
    kSource.m_eNews = CSimulatedSource::NEWS_MISTAKE;
    m_kDesk.LookForChange(kSource);
    EXPECT_TRUE(m_kDesk.IsTouring());
    const Lines kLines = Session();
    kSource.m_eNews = CSimulatedSource::NEWS_CHANGED;
    m_kDesk.LookForChange(kSource);
    EXPECT_FALSE(m_kDesk.IsTouring());
    EXPECT_EQ(kLines, Session());
}

// ---- Keys of the device
// ------------------------------------------------------------------------------------

TEST_F(CSimulatorDeskTest, PressKey_KeyOfTheDevice_IsPressed)
{
    PowerOn();
    Press({"Enter", "Escape"});

    EXPECT_EQ((Lines{"power-on", "key ok", "key back"}), Session());
    EXPECT_EQ("> key back", m_kDesk.GetMessage());
}

TEST_F(CSimulatorDeskTest, PressKey_OtherKeyOfTheKeyboard_GoesToTheWidgets)
{
    PowerOn();
    Press({"Tab", "End", "ArrowLeft", "BackTab"});

    EXPECT_EQ((Lines{"power-on", "press next", "press end", "press left", "press previous"}), Session());
    EXPECT_EQ("99", Value(OBJ_2));
}

TEST_F(CSimulatorDeskTest, PressKey_Letter_IsTypedOnlyIntoATextField)
{
    PowerOn();
    Press({"BackTab"});
    ASSERT_TRUE(m_kDesk.IsTyping());
    Press({"q", "'", "\"", " ", "\xC3\xA4", "Backspace"});

    EXPECT_STREQ("q'\" ", CGUIWidget::Find(CGUI::GetInstance().GetObjectByID(OBJ_3, true))->GetText());
    EXPECT_FALSE(m_kDesk.IsOver());
    Press({"Ctrl+T", "q"});
    EXPECT_TRUE(m_kDesk.IsOver());
}

TEST_F(CSimulatorDeskTest, PressKey_WithoutMeaning_SaysSo)
{
    PowerOn();
    Press({"z"});

    EXPECT_EQ("z does nothing here; ? lists the keys", m_kDesk.GetMessage());
    EXPECT_EQ(Lines{"power-on"}, Session());
}

TEST_F(CSimulatorDeskTest, Touch_TouchesTheDevice)
{
    PowerOn();
    m_kDesk.TouchDevice(2, 2);
    m_kDesk.PressDeviceKey(1);

    EXPECT_EQ((Lines{"power-on", "touch-at 2 2", "key back"}), Session());
}

// ---- Time
// --------------------------------------------------------------------------------------------------

TEST_F(CSimulatorDeskTest, Time_PassesUnlessPausedOrSomethingIsOpen)
{
    PowerOn();
    m_kDesk.PassTime(40);
    Press({"p"});
    m_kDesk.PassTime(1000);
    Press({"p", "?"});
    m_kDesk.PassTime(1000);
    Press({"x"});
    m_kDesk.PassTime(2);

    EXPECT_EQ(42U, m_kSimulation.GetTime());
}

TEST_F(CSimulatorDeskTest, Speed_GoesFromAQuarterTo64)
{
    PowerOn();
    EXPECT_EQ("x1", m_kDesk.GetSpeed());
    Press({"-", "-", "-"});
    EXPECT_EQ("x1/4", m_kDesk.GetSpeed());
    for (eC_UInt uiMillisecond = 0; uiMillisecond < 10; ++uiMillisecond)
    {
        m_kDesk.PassTime(1);
    }
    EXPECT_EQ(2U, m_kSimulation.GetTime());
    Press(Lines(20, "+"));
    EXPECT_EQ("x64", m_kDesk.GetSpeed());
    m_kDesk.PassTime(1);
    EXPECT_EQ(66U, m_kSimulation.GetTime());
}

TEST_F(CSimulatorDeskTest, Step_PausesAndGoesToWhatIsDueNext)
{
    PowerOn();
    Press({"Enter", "Enter", "s"}); // the popup stays for a second

    EXPECT_TRUE(m_kDesk.IsPaused());
    EXPECT_EQ(1000U, m_kSimulation.GetTime());
    EXPECT_FALSE(m_kDevice.GetManager().IsPopupDisplayed(POP_1));
    Press({"s"});
    EXPECT_EQ(2000U, m_kSimulation.GetTime());
}

TEST_F(CSimulatorDeskTest, BackAndForth_GoThroughTheLines)
{
    PowerOn();
    Press({"Enter", "Escape", "b"});
    EXPECT_EQ(DLG_B, m_kDevice.GetManager().GetCurrentDialogID());
    EXPECT_TRUE(m_kDesk.IsPaused());
    EXPECT_EQ("line 2 of 3, after > key ok; b f go on, p lets time pass from here", m_kDesk.GetMessage());
    Press({"f"});
    EXPECT_EQ(3U, m_kSimulation.GetPosition());
    Press({"B", "b"});
    EXPECT_EQ(0U, m_kSimulation.GetPosition());
    Press({"F", "f"});
    EXPECT_EQ(3U, m_kSimulation.GetPosition());
}

TEST_F(CSimulatorDeskTest, StartAgain_IsANewSession)
{
    PowerOn();
    Press({"Enter", "R"});

    EXPECT_EQ(Lines{"power-on"}, Session());
    EXPECT_EQ(DLG_A, m_kDevice.GetManager().GetCurrentDialogID());
}

// ---- The tour
// ----------------------------------------------------------------------------------------------

TEST_F(CSimulatorDeskTest, Tour_PlaysToItsEnd_AndTheSessionIsTheTour)
{
    m_kDesk.PlayTour();
    m_kDesk.PassTime(cuiLong);

    EXPECT_FALSE(m_kDesk.IsTouring());
    EXPECT_EQ((Lines{"## A TOUR", "# About the transcript.", "## 1. ON. The first dialog.", "power-on",
                     "# The second one.", "touch OBJ_1", "## 2. POPUP. It goes by itself.", "key ok",
                     "advance 1000"}),
              Session());
    EXPECT_EQ(0U, m_kDesk.GetMessage().find("The tour is over"));
}

TEST_F(CSimulatorDeskTest, Tour_GivesTimeToReadBeforeEachLine)
{
    m_kDesk.PlayTour();
    EXPECT_EQ("A TOUR", m_kDesk.GetTourChapter());
    EXPECT_EQ(0U, m_kDesk.GetTourCaption().find("Left is the screen"));
    m_kDesk.PassTime(GetReadingTime(m_kDesk.GetTourCaption()));
    EXPECT_EQ("1. ON", m_kDesk.GetTourChapter());
    EXPECT_EQ("The first dialog.", m_kDesk.GetTourCaption());
    EXPECT_EQ("next: power-on", m_kDesk.GetMessage());
    m_kDesk.PassTime(GetReadingTime("The first dialog.") - 1);
    EXPECT_EQ(NO_HANDLE, m_kDevice.GetManager().GetCurrentDialogID());
    m_kDesk.PassTime(1);
    EXPECT_EQ(DLG_A, m_kDevice.GetManager().GetCurrentDialogID());
    EXPECT_EQ(0U, m_kSimulation.GetTime());
}

TEST_F(CSimulatorDeskTest, Tour_KeyOfTheDevice_TakesOver)
{
    m_kDesk.PlayTour();
    Press({"s", "s", "s"}); // the heading, power-on
    ASSERT_TRUE(m_kDesk.IsTouring());
    Press({"Enter"});

    EXPECT_FALSE(m_kDesk.IsTouring());
    EXPECT_FALSE(m_kDesk.IsPaused());
    EXPECT_EQ("key ok", Session().back());
    m_kDesk.PassTime(100);
    EXPECT_EQ(100U, m_kSimulation.GetTime());
}

TEST_F(CSimulatorDeskTest, Tour_PauseStepsAndWayBack)
{
    m_kDesk.PlayTour();
    Press({"s", "s", "s", "s", "s"});
    EXPECT_EQ(DLG_B, m_kDevice.GetManager().GetCurrentDialogID());
    m_kDesk.PassTime(cuiLong);
    EXPECT_EQ(DLG_B, m_kDevice.GetManager().GetCurrentDialogID());
    EXPECT_EQ("The second one.", m_kDesk.GetTourCaption());

    Press({"b"});
    EXPECT_EQ(DLG_A, m_kDevice.GetManager().GetCurrentDialogID());
    EXPECT_EQ("next: touch OBJ_1", m_kDesk.GetMessage());
    Press({"b"});
    EXPECT_EQ(NO_HANDLE, m_kDevice.GetManager().GetCurrentDialogID());
    Press({"B", "p"});
    m_kDesk.PassTime(cuiLong);
    EXPECT_FALSE(m_kDesk.IsTouring());
    EXPECT_EQ(9U, Session().size());
}

TEST_F(CSimulatorDeskTest, Tour_TimePassesAsFastAsTheDesk)
{
    m_kDesk.PlayTour();
    while (m_kDesk.GetMessage() != "> advance 1000")
    {
        m_kDesk.PassTime(10);
    }
    m_kDesk.PassTime(300);
    EXPECT_NEAR(300.0, m_kSimulation.GetTime(), 20.0);
    EXPECT_TRUE(m_kDevice.GetManager().IsPopupDisplayed(POP_1));
    Press({"s"});
    EXPECT_EQ(1000U, m_kSimulation.GetTime());
}

TEST_F(CSimulatorDeskTest, Tour_WrongLine_EndsIt)
{
    CSimulatorDesk kDesk(m_kSimulation, "power-on\njump\n");
    kDesk.PlayTour();
    kDesk.PassTime(cuiLong);

    EXPECT_FALSE(kDesk.IsTouring());
    EXPECT_EQ(0U, kDesk.GetMessage().find("the tour ends at a wrong line: jump: expected a command"));
}

TEST_F(CSimulatorDeskTest, Tour_WithoutOne_SaysSo)
{
    CSimulatorDesk kDesk(m_kSimulation, "");
    kDesk.PlayTour();

    EXPECT_EQ("there is no tour", kDesk.GetMessage());
}

// ---- Forms
// -------------------------------------------------------------------------------------------------

TEST_F(CSimulatorDeskTest, Menu_EveryPublicOperationHasAForm)
{
    PowerOn();
    Press({"o"});
    ASSERT_EQ(CSimulatorDesk::MODE_MENU, m_kDesk.GetMode());
    const Lines& kMenu = m_kDesk.GetMenu();
    eC_UInt uiCommands = 0;
    const ManagerCommand_t* const pkCommands = GetManagerCommands(uiCommands);
    for (eC_UInt uiCommand = 0; uiCommand < uiCommands; ++uiCommand)
    {
        EXPECT_EQ(pkCommands[uiCommand].m_pcUsage, kMenu[uiCommand]);
        EXPECT_NE('\0', CSimulatorDesk::GetMenuLetter(uiCommand));
    }
    EXPECT_EQ("weigh <grams>", kMenu.back());
}

TEST_F(CSimulatorDeskTest, Menu_LetterOrArrowsAndEnter_OpenAForm)
{
    PowerOn();
    Press({"o", "c"});
    EXPECT_EQ("Back", m_kDesk.GetForm()->GetCommand());
    Press({"Escape", "o", "ArrowDown", "ArrowDown", "ArrowUp", "Enter"});
    EXPECT_EQ("AddDialog", m_kDesk.GetForm()->GetCommand());
    Press({"Escape", "o", "ArrowUp", "Enter"});
    EXPECT_EQ("weigh", m_kDesk.GetForm()->GetCommand());
    Press({"Escape", "o", "Escape"});
    EXPECT_EQ(CSimulatorDesk::MODE_DEVICE, m_kDesk.GetMode());
}

TEST_F(CSimulatorDeskTest, Menu_OperationWithoutArguments_IsDoneAtOnce)
{
    PowerOn();
    Press({"o", "f"});

    EXPECT_EQ(CSimulatorDesk::MODE_DEVICE, m_kDesk.GetMode());
    EXPECT_EQ("> GetCurrentDialogID = DLG_A", m_kDesk.GetMessage());
}

TEST_F(CSimulatorDeskTest, Form_OffersWhatThereIs_AndExecutesTheLine)
{
    PowerOn();
    Press({"w"});
    ASSERT_EQ("ShowPopup", m_kDesk.GetForm()->GetCommand());
    EXPECT_EQ(Lines{"POP_1"}, m_kDesk.GetForm()->GetChoices());
    Press({"Enter"});

    EXPECT_EQ(CSimulatorDesk::MODE_DEVICE, m_kDesk.GetMode());
    EXPECT_EQ("> ShowPopup POP_1 = POP_1", m_kDesk.GetMessage());
    EXPECT_TRUE(m_kDevice.GetManager().IsPopupDisplayed(POP_1));
}

TEST_F(CSimulatorDeskTest, Form_TypedTextReplacesTheChoiceAndNarrowsTheOthers)
{
    PowerOn();
    Press({"c", "D", "L", "G", "_", "B", "Tab", "D", "E", "L"});
    EXPECT_EQ((Lines{"ODA_DELETE", "ODA_DELETE_ALL"}), m_kDesk.GetForm()->GetChoices());
    Press({"ArrowDown", "ArrowDown", "ArrowDown"});
    EXPECT_EQ("CreateDialog DLG_B ODA_DELETE", m_kDesk.GetForm()->GetLine());
    Press({"BackTab", "Tab", "ArrowUp", "Enter"});

    EXPECT_EQ("CreateDialog DLG_B ODA_DELETE_ALL", Session().back());
}

TEST_F(CSimulatorDeskTest, Form_WithAWrongArgument_StaysOpen)
{
    PowerOn();
    Press({"k", "y", "Enter"});

    EXPECT_EQ(CSimulatorDesk::MODE_FORM, m_kDesk.GetMode());
    EXPECT_EQ("Back: expected one of false, true, found 'y'", m_kDesk.GetMessage());
    EXPECT_EQ(STYLE_ERROR, m_kDesk.GetMessageStyle());
    EXPECT_EQ(Lines{"power-on"}, Session());
}

TEST_F(CSimulatorDeskTest, Prompt_ExecutesAnyLine)
{
    PowerOn();
    Press({":", "w", "e", "i", "g", "h", " ", "8", "7", "Backspace", "Enter"});
    EXPECT_EQ("> weigh 8 = 8 g", m_kDesk.GetMessage());
    Press({":", "Enter", ":", "x", "Escape"});
    EXPECT_EQ((Lines{"power-on", "weigh 8"}), Session());
}

TEST_F(CSimulatorDeskTest, Prompt_TimeThatWouldTakeTooLong_IsRefused)
{
    PowerOn();
    Press({":", "a", "d", "v", "a", "n", "c", "e", " ", "3", "6", "0", "0", "0", "0", "1", "Enter"});

    EXPECT_EQ("expected at most 3600000 milliseconds", m_kDesk.GetMessage());
    EXPECT_EQ(0U, m_kSimulation.GetTime());
}

// ---- Trace and files
// ---------------------------------------------------------------------------------------

TEST_F(CSimulatorDeskTest, Filter_ByTextAndLevel)
{
    const TraceItem_t kError = {TraceItem_t::ENTRY, "ERROR", "Something failed\n", 0};
    const TraceItem_t kWarning = {TraceItem_t::ENTRY, "WARNING", "Something odd\n", 0};
    const TraceItem_t kInfo = {TraceItem_t::ENTRY, "INFO", "Something\n", 0};
    const TraceItem_t kInput = {TraceItem_t::INPUT, "", "key ok", 0};
    EXPECT_TRUE(m_kDesk.GetTracePane().IsShown(kInfo));
    EXPECT_TRUE(m_kDesk.GetTracePane().IsShown(kInput));
    Press({"e"});
    EXPECT_TRUE(m_kDesk.GetTracePane().IsShown(kWarning));
    EXPECT_FALSE(m_kDesk.GetTracePane().IsShown(kInfo));
    EXPECT_FALSE(m_kDesk.GetTracePane().IsShown(kInput));
    Press({"e"});
    EXPECT_TRUE(m_kDesk.GetTracePane().IsShown(kError));
    EXPECT_FALSE(m_kDesk.GetTracePane().IsShown(kWarning));
    Press({"e", "/", "O", "D", "D", "Enter"});
    EXPECT_TRUE(m_kDesk.GetTracePane().IsShown(kWarning));
    EXPECT_FALSE(m_kDesk.GetTracePane().IsShown(kError));
    Press({"/", "Backspace", "Backspace", "Backspace", "Enter"});
    EXPECT_TRUE(m_kDesk.GetTracePane().IsShown(kError));
}

TEST_F(CSimulatorDeskTest, Scrolling_StaysWithinWhatThereIs)
{
    PowerOn();
    Press({"PageDown", "I"});
    EXPECT_EQ(0, m_kDesk.GetTracePane().GetScroll());
    EXPECT_EQ(0, m_kDesk.GetInspectorScroll());
    Press(Lines(100, "PageUp"));
    Press(Lines(100, "i"));
    EXPECT_EQ(static_cast<eC_Int>(m_kSimulation.GetTrace().size()) + 1, m_kDesk.GetTracePane().GetScroll());
    EXPECT_EQ(static_cast<eC_Int>(DescribeState(m_kSimulation.GetInspector()).size()) - 1,
              m_kDesk.GetInspectorScroll());
    Press({"Enter"});
    EXPECT_EQ(0, m_kDesk.GetTracePane().GetScroll());
}

TEST_F(CSimulatorDeskTest, Shot_IsAskedForOnce)
{
    Press({"v", "x", "Enter"});
    EXPECT_EQ("x", m_kDesk.TakeShotRequest());
    EXPECT_EQ("", m_kDesk.TakeShotRequest());
}

TEST_F(CSimulatorDeskTest, Record_ToAFolder_IsRefused)
{
    Press({"r", "/", "Enter"});

    EXPECT_EQ("cannot write /", m_kDesk.GetMessage());
    EXPECT_EQ(STYLE_ERROR, m_kDesk.GetMessageStyle());
}

TEST_F(CSimulatorDeskTest, RandomKeys_NeverLeaveTheSessionUnrepeatable)
{
    PowerOn();
    static const Lines s_kKeys = {
        "Enter",  "Escape", "Tab",  "BackTab",  "ArrowUp", "ArrowDown", "ArrowLeft", "End", "Backspace",
        "PageUp", "p",      "s",    "+",        "-",       "b",         "f",         "B",   "F",
        "o",      "c",      "a",    "k",        "w",       "x",         "/",         "e",   "i",
        "I",      "1",      "Home", "PageDown", "Ctrl+T",  "?",         "z",         ":"};
    unsigned uiRandom = 12345;
    for (eC_UInt uiKey = 0; uiKey < 3000; ++uiKey)
    {
        uiRandom = uiRandom * 1103515245U + 12345U;
        m_kDesk.PressKey(s_kKeys[(uiRandom >> 16U) % s_kKeys.size()]);
        m_kDesk.PassTime(uiRandom % 50U);
    }
    const std::string kState = PrintState(m_kDevice.GetManager(), STATE_ALL | STATE_TIMERS);
    const std::size_t uiPosition = m_kSimulation.GetPosition();
    ASSERT_GT(Session().size(), 3U);
    m_kSimulation.GoTo(0);
    m_kSimulation.GoTo(uiPosition);
    EXPECT_EQ(kState, PrintState(m_kDevice.GetManager(), STATE_ALL | STATE_TIMERS));
}
