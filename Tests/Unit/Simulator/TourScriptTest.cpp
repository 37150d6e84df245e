// SPDX-License-Identifier: MIT
#include "Simulator/TourScript.h"
#include "Simulator/ShortTour.h"
#include "Tests/Unit/Simulator/SampleDevice.h"

#include <gtest/gtest.h>

namespace
{
using Lines = std::vector<std::string>;
} // namespace

TEST(CTourScriptTest, ReadTour_AttachesCommentsToTheCommandBehindThem)
{
    const std::vector<TourStep_t> kSteps =
        ReadTour("## 8. ADDED. One that\n# is long.\ntouch A\n\n# Now\nkey ok\n");

    ASSERT_EQ(2U, kSteps.size());
    EXPECT_EQ((Lines{"## 8. ADDED. One that", "# is long.", "touch A"}), kSteps[0].m_kLines);
    EXPECT_EQ("8. ADDED", kSteps[0].m_kChapter);
    EXPECT_EQ("One that is long.", kSteps[0].m_kCaption);
    EXPECT_EQ("touch A", kSteps[0].m_kCommand);
    EXPECT_TRUE(kSteps[0].m_bBeginsChapter);
    EXPECT_EQ("8. ADDED", kSteps[1].m_kChapter);
    EXPECT_EQ("Now", kSteps[1].m_kCaption);
    EXPECT_FALSE(kSteps[1].m_bBeginsChapter);
}

TEST(CTourScriptTest, ReadTour_HeadingWithoutCommand_IsAStep)
{
    const std::vector<TourStep_t> kSteps = ReadTour("## TITLE\n# More.\n## 1. ONE\npower-on\n# The end.\n");

    ASSERT_EQ(3U, kSteps.size());
    EXPECT_EQ("TITLE", kSteps[0].m_kChapter);
    EXPECT_EQ("More.", kSteps[0].m_kCaption);
    EXPECT_EQ("", kSteps[0].m_kCommand);
    EXPECT_EQ("1. ONE", kSteps[1].m_kChapter);
    EXPECT_EQ("The end.", kSteps[2].m_kCaption);
    EXPECT_EQ("", kSteps[2].m_kCommand);
}

TEST(CTourScriptTest, ReadTour_EmptyScript_HasNoSteps)
{
    EXPECT_TRUE(ReadTour("\n \n").empty());
}

TEST(CTourScriptTest, ReadingTime_GrowsWithTheText)
{
    EXPECT_EQ(0U, GetReadingTime(""));
    EXPECT_EQ(700U + 45 * 10, GetReadingTime("ten letter"));
}

TEST(CShortTourTest, Tell_GivesASentenceAndTheMostDifferentFrameOfEachChapter)
{
    CSampleDevice kDevice;
    CSimulation kSimulation(kDevice);
    std::string kError;
    const Lines kLines =
        TellShortTour(kSimulation,
                      "## TITLE\n# Not told.\n## 1. ON. It is on. More.\npower-on\nGetCurrentDialogID\n"
                      "## 2. BACK\ntouch OBJ_1\nkey back\n",
                      kError);

    EXPECT_EQ("", kError);
    EXPECT_EQ((Lines{"1. ON: It is on.", "+--------------------+", "| First              |",
                     "|--------------------|", "|>[ Go ]<            |", "| O--------- 0%      |",
                     "| __________         |", "+--------------------+", "2. BACK", "+--------------------+",
                     "| Second             |", "|--------------------|", "|>[ Go ]<            |",
                     "+--------------------+"}),
              kLines);
}

TEST(CShortTourTest, Tell_LongTour_IsCutAndSaysSo)
{
    CSampleDevice kDevice;
    CSimulation kSimulation(kDevice);
    std::string kScript;
    for (eC_UInt uiChapter = 0; uiChapter < 60; ++uiChapter)
    {
        kScript += "## CHAPTER\npower-on\n";
    }
    std::string kError;
    const Lines kLines = TellShortTour(kSimulation, kScript, kError);

    EXPECT_LE(kLines.size(), cuiMostShortTourLines);
    EXPECT_GT(kLines.size(), cuiMostShortTourLines - 10);
    EXPECT_EQ("36 more chapters are in the whole tour.", kLines.back());
}

TEST(CShortTourTest, Tell_WrongLine_SaysWhich)
{
    CSampleDevice kDevice;
    CSimulation kSimulation(kDevice);
    std::string kError;
    TellShortTour(kSimulation, "## ONE\npower-on\nkey up\n", kError);

    EXPECT_EQ("key up: key: expected one of ok, back, found 'up'", kError);
}
