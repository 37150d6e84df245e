// SPDX-License-Identifier: MIT
#include "Simulator/Browser/BrowserSession.h"

#include "Core/Control/GUI.h"
#include "Tests/Unit/Simulator/SampleDevice.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace
{
constexpr OfferedLine_t cakOffered[] = {{"Weigh", "weigh 7"}, {"Say \"hello\"", "type 'hello'"}};

using Lines = std::vector<std::string>;

Lines Split(const std::string& kText)
{
    Lines kLines;
    std::size_t uiFrom = 0;
    for (std::size_t uiEnd = kText.find('\n'); uiEnd != std::string::npos; uiEnd = kText.find('\n', uiFrom))
    {
        kLines.push_back(kText.substr(uiFrom, uiEnd - uiFrom));
        uiFrom = uiEnd + 1;
    }
    return kLines;
}
} // namespace

class CBrowserSessionTest : public ::testing::Test
{
protected:
    CBrowserSessionTest() : m_kSession(m_kDevice, {cakOffered, 2}) {}

    /** @return the lines of an answer that have a type */
    static Lines Find(const std::string& kAnswer, const std::string& kType)
    {
        Lines kFound;
        for (const std::string& kLine : Split(kAnswer))
        {
            if (kLine.rfind("{\"type\":\"" + kType + "\"", 0) == 0)
            {
                kFound.push_back(kLine);
            }
        }
        return kFound;
    }

    std::string Run(const std::string& kLine) { return m_kSession.Run(kLine); }

    CSampleDevice m_kDevice;
    CBrowserSession m_kSession;
};

TEST_F(CBrowserSessionTest, Describe_HasTheDeviceFirstAndThenTheState)
{
    const Lines kLines = Split(m_kSession.Describe());

    EXPECT_THAT(kLines.front(),
                StartsWith("{\"type\":\"device\",\"time\":0,\"title\":\"Sample\",\"width\":20,\"height\":6,"
                           "\"columnwidth\":1,\"rowheight\":1,\"keys\":[{\"name\":\"ok\",\"label\":\"OK\","
                           "\"keyboard\":\"Enter\"},{\"name\":\"back\",\"label\":\"Back\",\"keyboard\":"
                           "\"Escape\"}],\"commands\":[{\"usage\":\""));
    EXPECT_THAT(kLines.front(), HasSubstr("{\"usage\":\"weigh <grams>\"}"));
    EXPECT_THAT(kLines.front(), HasSubstr("{\"usage\":\"ShowPopup <"));
    EXPECT_THAT(kLines.front(),
                ::testing::EndsWith("\"offered\":[{\"label\":\"Weigh\",\"line\":\"weigh 7\"},"
                                    "{\"label\":\"Say \\\"hello\\\"\",\"line\":\"type 'hello'\"}]}"));
    EXPECT_THAT(kLines[1], StartsWith("{\"type\":\"state\",\"time\":0,\"part\":\"current\","));
    EXPECT_EQ("{\"type\":\"session\",\"time\":0,\"lines\":0,\"position\":0,\"line\":\"\"}", kLines.back());
}

TEST(CBrowserCommandsTest, Describe_HasEveryCommandThatALineCanBe)
{
    CSampleDevice kDevice;
    const Lines kUsages = CSimulation(kDevice).GetUsages();
    std::string kExpected;
    for (const std::string& kUsage : kUsages)
    {
        kExpected += (kExpected.empty() ? "" : ",") + ("{\"usage\":\"" + kUsage + "\"}");
    }
    CBrowserSession kSession(kDevice, {cakOffered, 2});
    const std::string kAnswer = kSession.Describe();
    const std::string kDescribed = kAnswer.substr(0, kAnswer.find('\n'));
    EXPECT_THAT(kDescribed, HasSubstr("\"commands\":[" + kExpected + "],\"offered\""));
    EXPECT_THAT(kDescribed, HasSubstr("{\"usage\":\"touch <object>\"}"));
}

TEST_F(CBrowserSessionTest, Run_AnswersWithWhatHappenedTheResultTheScreenAndThePlace)
{
    const Lines kLines = Split(Run("power-on"));

    EXPECT_THAT(kLines.front(), StartsWith("{\"type\":\"trace\",\"time\":0,"));
    ASSERT_GE(kLines.size(), 4U);
    EXPECT_EQ("{\"type\":\"result\",\"time\":0,\"executed\":true,\"text\":\"\"}", kLines[kLines.size() - 3]);
    EXPECT_THAT(kLines[kLines.size() - 2], StartsWith("{\"type\":\"screen\",\"time\":0,\"widgets\":["));
    EXPECT_EQ("{\"type\":\"session\",\"time\":0,\"lines\":1,\"position\":1,\"line\":\"power-on\"}",
              kLines.back());
}

TEST_F(CBrowserSessionTest, Run_WrongLine_SaysWhatWasExpectedAndIsNotKept)
{
    Run("power-on");
    const std::string kAnswer = Run("key \"x");

    EXPECT_THAT(Find(kAnswer, "result").front(),
                StartsWith("{\"type\":\"result\",\"time\":0,\"executed\":false,\"text\":\""));
    EXPECT_THAT(Find(kAnswer, "result").front(), HasSubstr("expected"));
    EXPECT_EQ((Lines{"{\"type\":\"session\",\"time\":0,\"lines\":1,\"position\":1,\"line\":\"power-on\"}"}),
              Find(kAnswer, "session"));
    EXPECT_EQ(Lines(), Find(kAnswer, "state"));
    EXPECT_EQ(Lines(), Find(kAnswer, "screen"));
}

TEST_F(CBrowserSessionTest, Screen_HasEveryWidgetWithItsPlaceAndContents)
{
    EXPECT_EQ("{\"type\":\"screen\",\"time\":0,\"widgets\":["
              "{\"kind\":\"screen\",\"depth\":0,\"id\":1,\"name\":\"DLG_A\",\"x\":0,\"y\":0,\"width\":20,"
              "\"height\":6,\"text\":\"First\"},"
              "{\"kind\":\"button\",\"depth\":1,\"id\":17,\"name\":\"OBJ_1\",\"x\":1,\"y\":2,\"width\":6,"
              "\"height\":1,\"text\":\"Go\",\"focusable\":true,\"focus\":true},"
              "{\"kind\":\"slider\",\"depth\":1,\"id\":18,\"name\":\"OBJ_2\",\"x\":1,\"y\":3,\"width\":10,"
              "\"height\":1,\"text\":\"\",\"focusable\":true,\"value\":0,\"minimum\":0,\"maximum\":100},"
              "{\"kind\":\"textfield\",\"depth\":1,\"id\":19,\"name\":\"OBJ_3\",\"x\":1,\"y\":4,\"width\":10,"
              "\"height\":1,\"text\":\"\",\"focusable\":true,\"entry\":\"\",\"cursor\":0}]}",
              Find(Run("power-on"), "screen").front());
}

TEST_F(CBrowserSessionTest, Screen_HasWhatTheOtherClassesShow)
{
    Run("power-on");
    CGUICompositeObject& kRoot = CGUI::GetInstance();
    CGUIPopup* const pkPopup = new CGUIPopup(&kRoot, POP_1);
    pkPopup->SetModal(true);
    pkPopup->SetPosition(-2, 1);
    pkPopup->SetSize(8, 4);
    CGUIContainer* const pkContainer = new CGUIContainer(pkPopup);
    CGUICheckBox* const pkCheckBox = new CGUICheckBox(pkContainer, OBJ_1);
    pkCheckBox->SetValue(1);
    pkCheckBox->SetStyle("large");
    CGUIBar* const pkBar = new CGUIBar(pkContainer);
    pkBar->SetRange(-10, 10);
    pkBar->SetValue(-4);
    CGUIImage* const pkImage = new CGUIImage(pkPopup);
    pkImage->SetImage("cup");
    CGUILabel* const pkLabel = new CGUILabel(pkPopup);
    pkLabel->SetText("tab\tand \"quotes\"");
    CGUIList* const pkList = new CGUIList(pkPopup);
    eC_String kExpected;
    EXPECT_EQ(ATTRIBUTE_SET, pkList->SetAttribute("entries", "one|two|three|four", kExpected));
    pkList->SetSize(5, 2);
    pkList->SetValue(2);

    const std::string kScreen = Find(Run("# look"), "screen").front();
    EXPECT_THAT(kScreen,
                HasSubstr("{\"kind\":\"popup\",\"depth\":0,\"id\":9,\"name\":\"POP_1\",\"x\":-2,\"y\":1,"
                          "\"width\":8,\"height\":4,\"text\":\"\",\"modal\":true}"));
    EXPECT_THAT(kScreen, HasSubstr("{\"kind\":\"container\",\"depth\":1,\"id\":0,"));
    EXPECT_THAT(kScreen, HasSubstr("{\"kind\":\"checkbox\",\"depth\":2,\"id\":17,\"name\":\"OBJ_1\","));
    EXPECT_THAT(kScreen, HasSubstr("\"style\":\"large\",\"focusable\":true,\"value\":1}"));
    EXPECT_THAT(kScreen, HasSubstr("{\"kind\":\"bar\",\"depth\":2,"));
    EXPECT_THAT(kScreen, HasSubstr("\"value\":-4,\"minimum\":-10,\"maximum\":10}"));
    EXPECT_THAT(kScreen, HasSubstr("{\"kind\":\"image\",\"depth\":1,"));
    EXPECT_THAT(kScreen, HasSubstr("\"image\":\"cup\"}"));
    EXPECT_THAT(kScreen, HasSubstr("\"text\":\"tab\\u0009and \\\"quotes\\\"\"}"));
    EXPECT_THAT(kScreen, HasSubstr("\"value\":2,\"rowheight\":1,\"first\":1,\"entries\":[{\"text\":\"two\"},"
                                   "{\"text\":\"three\"}]}"));
}

TEST_F(CBrowserSessionTest, Screen_IsSentOnlyWhenItHasChanged)
{
    EXPECT_EQ(1U, Find(Run("power-on"), "screen").size());
    EXPECT_EQ(0U, Find(Run("advance 10"), "screen").size());
    EXPECT_EQ(1U, Find(Run("press down"), "screen").size());
    EXPECT_EQ(1U, Find(Run("press right"), "screen").size());
}

TEST_F(CBrowserSessionTest, Screen_LongerThanTheMemory_IsSentWhole)
{
    Run("power-on");
    for (eC_UInt uiLabel = 0; uiLabel < 200; ++uiLabel)
    {
        (new CGUILabel(&CGUI::GetInstance()))->SetText("a label that takes some room");
    }
    const std::string kScreen = Find(Run("# look"), "screen").front();

    EXPECT_GT(kScreen.size(), 20000U);
    EXPECT_THAT(kScreen, ::testing::EndsWith("\"text\":\"a label that takes some room\"}]}"));
}

TEST_F(CBrowserSessionTest, Advance_MakesLinesOfAtMostASecond)
{
    Run("power-on");
    for (eC_UInt uiBit = 0; uiBit < 60; ++uiBit)
    {
        m_kSession.Advance(40);
    }

    EXPECT_EQ(
        (Lines{"{\"type\":\"session\",\"time\":2440,\"lines\":4,\"position\":4,\"line\":\"advance 440\"}"}),
        Find(m_kSession.Advance(40), "session"));
    EXPECT_EQ("power-on\nadvance 1000\nadvance 1000\nadvance 440\n", m_kSession.GetLines());
}

TEST_F(CBrowserSessionTest, GoTo_AnswersWithTheWholeStateAndTheScreenThere)
{
    Run("power-on");
    Run("touch OBJ_1");
    const std::string kAnswer = m_kSession.GoTo(1);

    EXPECT_EQ("{\"type\":\"session\",\"time\":0,\"lines\":2,\"position\":1,\"line\":\"power-on\"}",
              Split(kAnswer).back());
    EXPECT_THAT(Find(kAnswer, "screen").front(), HasSubstr("\"text\":\"First\""));
    EXPECT_EQ(Lines(), Find(kAnswer, "trace"));
    EXPECT_EQ(12U, Find(kAnswer, "state").size()); // all parts

    EXPECT_THAT(m_kSession.GoTo(99), HasSubstr("\"lines\":2,\"position\":2,"));
}

namespace
{
/** Files with which something has happened. */
class CSampleSource : public CSimulatedSource
{
public:
    ENews Look(CSimulation& kSimulation, std::string& kTextOUT) override
    {
        if (m_eNews == NEWS_CHANGED)
        {
            kSimulation.Change([]() {});
        }
        kTextOUT = m_kText;
        return m_eNews;
    }

    ENews m_eNews = NEWS_NONE;
    std::string m_kText;
};
} // namespace

TEST_F(CBrowserSessionTest, Look_SaysWhetherThereIsNewsAndGoesOn)
{
    CSampleSource kSource;
    Run("power-on");
    const std::string kSession =
        "{\"type\":\"session\",\"time\":0,\"lines\":1,\"position\":1,\"line\":\"power-on\"}\n";
    EXPECT_EQ("{\"type\":\"source\",\"time\":0,\"news\":\"none\",\"text\":\"\"}\n" + kSession,
              m_kSession.Look(kSource));

    kSource.m_eNews = CSimulatedSource::NEWS_MISTAKE;
    kSource.m_kText = "Sample.xml:1:2: nothing; expected \"more\"";
    EXPECT_EQ(
        "{\"type\":\"source\",\"time\":0,\"news\":\"mistake\",\"text\":\"Sample.xml:1:2: nothing; expected "
        "\\\"more\\\"\"}\n" +
            kSession,
        m_kSession.Look(kSource));
    EXPECT_EQ("power-on\n", m_kSession.GetLines());
}

TEST_F(CBrowserSessionTest, Look_AfterAChange_HasTheWholeStateAndTheScreen)
{
    CSampleSource kSource;
    kSource.m_eNews = CSimulatedSource::NEWS_CHANGED;
    kSource.m_kText = "the sample has changed";
    Run("power-on");
    Run("touch OBJ_1");
    const std::string kAnswer = m_kSession.Look(kSource);

    EXPECT_EQ(
        (Lines{"{\"type\":\"source\",\"time\":0,\"news\":\"changed\",\"text\":\"the sample has changed\"}"}),
        Find(kAnswer, "source"));
    EXPECT_EQ(12U, Find(kAnswer, "state").size()); // all parts
    EXPECT_EQ(1U, Find(kAnswer, "screen").size());
    EXPECT_EQ("{\"type\":\"session\",\"time\":0,\"lines\":2,\"position\":2,\"line\":\"touch OBJ_1\"}",
              Split(kAnswer).back());
}

TEST_F(CBrowserSessionTest, Describe_OnceMore_HasTheDeviceWithoutTheStateOfTheBeginning)
{
    m_kSession.Describe();
    Run("power-on");
    m_kSession.GetLines();
    const Lines kLines = Split(m_kSession.Describe());

    ASSERT_EQ(2U, kLines.size());
    EXPECT_THAT(kLines.front(), StartsWith("{\"type\":\"device\",\"time\":0,\"title\":\"Sample\","));
    EXPECT_EQ("{\"type\":\"session\",\"time\":0,\"lines\":1,\"position\":1,\"line\":\"power-on\"}",
              kLines.back());
}

TEST_F(CBrowserSessionTest, Restart_ForgetsTheLines)
{
    Run("power-on");
    const std::string kAnswer = m_kSession.Restart();

    EXPECT_EQ("{\"type\":\"session\",\"time\":0,\"lines\":0,\"position\":0,\"line\":\"\"}",
              Split(kAnswer).back());
    EXPECT_EQ((Lines{"{\"type\":\"screen\",\"time\":0,\"widgets\":[]}"}), Find(kAnswer, "screen"));
    EXPECT_EQ("", m_kSession.GetLines());
}
