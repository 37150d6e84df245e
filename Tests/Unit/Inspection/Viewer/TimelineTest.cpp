// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/Timeline.h"

#include "Inspection/Viewer/SVG.h"
#include "TestSupport/GTest/ExpectText.h"

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include <algorithm>

namespace
{
std::string Line(eC_UInt uiTime, const std::string& kRest)
{
    return "{\"time\":" + std::to_string(uiTime) + "," + kRest + "}\n";
}

std::string Part(eC_UInt uiTime, const std::string& kPart, const std::string& kItems)
{
    return Line(uiTime, R"("type":"state","part":")" + kPart + R"(","from":0,"items":[)" + kItems +
                            R"(],"more":false)");
}

std::string Current(eC_UInt uiTime, const std::string& kName, int iID)
{
    return Part(uiTime, "current",
                "{\"id\":" + std::to_string(iID) + ",\"name\":\"" + kName +
                    R"(","after":"ODA_DELETE","deletion":true,"recovery":true})");
}

std::string History(eC_UInt uiTime, const std::string& kName, int iID)
{
    return Part(uiTime, "history",
                "{\"id\":" + std::to_string(iID) + ",\"name\":\"" + kName +
                    R"(","after":"ODA_DELETE","deletion":true,"recovery":true,"left":"ODA_DELETE"})");
}

std::string Popup(const std::string& kName, int iID, bool bIsShown)
{
    return "{\"id\":" + std::to_string(iID) + ",\"name\":\"" + kName +
           "\",\"shown\":" + (bIsShown ? "true" : "false") +
           R"(,"detached":false,"gone":false,"priority":5,"time":0,"delete":true})";
}

Timeline_t Build(const std::string& kLines)
{
    CTimelineBuilder kBuilder;
    EXPECT_EQ("", kBuilder.Take(kLines));
    return kBuilder.Finish();
}

/** A run in which each kind of span and mark occurs. */
std::string GetRun(eC_UInt uiStart)
{
    return Part(uiStart, "tree", R"({"depth":0,"id":1})") + Current(uiStart, "DLG_A", 1) +
           Line(uiStart + 1000, R"("type":"input","text":"touch BTN_B")") +
           Current(uiStart + 1000, "DLG_B", 2) + History(uiStart + 1000, "DLG_A", 1) +
           Part(uiStart + 1000, "tree", R"({"depth":0,"id":1},{"depth":0,"id":2})") +
           Part(uiStart + 2000, "tree", R"({"depth":0,"id":1,"invisible":true},{"depth":0,"id":2})") +
           Part(uiStart + 2000, "active", Popup("POP_1", 5, true)) +
           Line(uiStart + 3000, R"("type":"trace","level":"WARNING","text":"Not yet.\n")") +
           Part(uiStart + 3000, "active", Popup("POP_1", 5, false) + "," + Popup("POP_2", 6, true)) +
           Part(uiStart + 4000, "tree", R"({"depth":0,"id":2})") + Part(uiStart + 4000, "active", "") +
           Line(uiStart + 5000,
                R"("type":"trace","level":"ERROR","text":"No\nfile.\n","file":"a","line":1)") +
           Line(uiStart + 6000,
                R"("type":"trace","level":"HAZARD","hazard":"no-focus","about":{"id":2},"text":"So.")") +
           Current(uiStart + 7000, "DLG_A", 1) + Part(uiStart + 7000, "history", "") +
           Line(uiStart + 8000, R"("type":"turn")");
}

} // namespace

TEST(CTimelineTest, ARun_IsPrintedWithALaneForEachDialogAndPopup)
{
    const std::string kPrinted = PrintTimeline(Build(GetRun(0)), 60);
    EXPECT_TEXT(R"(
                |0 s           |2 s          |4 s           |6 s
                       v              w              E      !
        DLG_A   #######========--------------......................#########
        DLG_B          ############################################
        POP_1 5                #######~~~~~~~
        POP_2 5                       #######

        # current, or a popup that is shown   = still visible below   - hidden   . deleted, to be made again
        ~ a popup that waits   v input   w warning   ! hazard   E error
        1000 ms v touch BTN_B
        3000 ms w Not yet.
        5000 ms E No file.
        6000 ms ! no-focus 2: So.
    )",
                kPrinted);
}

TEST(CTimelineTest, AClockThatWrapsAround_GoesOn)
{
    EXPECT_EQ(PrintTimeline(Build(GetRun(0)), 60), PrintTimeline(Build(GetRun(0U - 3500)), 60));
}

TEST(CTimelineTest, AClockThatGoesBack_IsRefused)
{
    CTimelineBuilder kBuilder;
    EXPECT_EQ(
        "line 2: time: expected at least 500, found 499; the program was started again: give each run a file "
        "of its own",
        kBuilder.Take(Line(500, R"("type":"turn")") + Line(499, R"("type":"turn")")));
}

TEST(CTimelineTest, WhatLastsNoTime_IsLeftOut)
{
    const Timeline_t kTimeline =
        Build(Current(0, "DLG_A", 1) + Current(0, "DLG_B", 2) + Current(9, "DLG_C", 3));

    ASSERT_EQ(2U, kTimeline.m_kLanes.size());
    EXPECT_EQ("DLG_B", kTimeline.m_kLanes[0].m_kHandle.m_kName);
    EXPECT_EQ("DLG_C", kTimeline.m_kLanes[1].m_kHandle.m_kName);
    EXPECT_EQ(10U, kTimeline.m_uiLength);
}

TEST(CTimelineTest, ARunOfOneMoment_AndOneWithoutDialogs_CanBeShown)
{
    EXPECT_NE("", DrawTimeline(Build(Current(7, "DLG_A", 1))));
    EXPECT_NE("", PrintTimeline(Build(Current(7, "DLG_A", 1)), 10));
    EXPECT_NE("", DrawTimeline(Build(Line(7, R"("type":"input","text":"x")"))));
    EXPECT_NE("", PrintTimeline(Build(Line(7, R"("type":"input","text":"x")")), 10));
    EXPECT_NE("", DrawTimeline(Build("")));
    EXPECT_NE("", PrintTimeline(Build(""), 10));
}

TEST(CTimelineTest, APicture_IsADocumentWithABarForEachSpan)
{
    pugi::xml_document kDocument;
    ASSERT_TRUE(kDocument.load_string(DrawTimeline(Build(GetRun(0))).c_str()));

    std::vector<std::string> kTitles;
    for (const pugi::xpath_node& kNode : kDocument.select_nodes("//title"))
    {
        kTitles.emplace_back(kNode.node().child_value());
    }
    const std::vector<std::string> kExpected = {"DLG_A: current, 0 to 1000 ms",
                                                "DLG_A: visible below, 1000 to 2000 ms",
                                                "DLG_A: hidden, 2000 to 4000 ms",
                                                "DLG_A: deleted, to be made again, 4000 to 7000 ms",
                                                "DLG_A: current, 7000 to 8200 ms",
                                                "DLG_B: current, 1000 to 7000 ms",
                                                "POP_1: popup shown, 2000 to 3000 ms",
                                                "POP_1: popup waiting, 3000 to 4000 ms",
                                                "POP_2: popup shown, 3000 to 4000 ms",
                                                "5000 ms: No file.",
                                                "6000 ms: no-focus 2: So."};
    EXPECT_EQ(kExpected, kTitles);
}

TEST(CTimelineTest, LabelsOfInputs_AreAboveThoseThatBeginBelowThem)
{
    std::string kLines = Current(0, "DLG_A", 1);
    for (const eC_UInt uiTime : {0U, 100U, 200U, 5000U, 9990U})
    {
        kLines += Line(uiTime, R"("type":"input","text":"key )" + std::to_string(uiTime) + "\"");
    }
    pugi::xml_document kDocument;
    ASSERT_TRUE(kDocument.load_string(DrawTimeline(Build(kLines + Line(10000, R"("type":"turn")"))).c_str()));

    std::vector<std::string> kLabels;
    for (const pugi::xpath_node& kNode : kDocument.select_nodes("//text[starts-with(., 'key')]"))
    {
        kLabels.push_back(std::string(kNode.node().child_value()) + " at " +
                          kNode.node().attribute("y").value());
    }
    // The last one has no room for a label.
    const std::vector<std::string> kExpected = {"key\xC2\xA0"
                                                "5000 at 70",
                                                "key\xC2\xA0"
                                                "200 at 70",
                                                "key\xC2\xA0"
                                                "100 at 52",
                                                "key\xC2\xA0"
                                                "0 at 34"};
    EXPECT_EQ(kExpected, kLabels);
}

TEST(CSVGTest, Texts_KeepTheirBlanksAndTheirWidth)
{
    CSVG kPicture(100);
    kPicture.Text("text", 10, 20, "  \xC3\xA4  b ");
    kPicture.Text("text", 10, 20, "   ");
    EXPECT_NE(std::string::npos, kPicture.Finish(50, "a & b")
                                     .find("<text class=\"text\" x=\"24\" y=\"20\" textLength=\"28\">"
                                           "\xC3\xA4\xC2\xA0\xC2\xA0"
                                           "b</text>\n</svg>"));
    EXPECT_NE(std::string::npos, kPicture.Finish(50, "a & b").find("aria-label=\"a &amp; b\""));
}

TEST(CTimelineTest, NamesOfSomebodyElse_DoNotBreakThePicture)
{
    pugi::xml_document kDocument;
    const std::string kPicture = DrawTimeline(Build(Current(0, R"(<\u0000&\"\u001b)", 1)));
    ASSERT_TRUE(kDocument.load_string(kPicture.c_str())) << kPicture;
    EXPECT_STREQ("<\xEF\xBF\xBD&\"\xEF\xBF\xBD: current, 0 to 1 ms",
                 kDocument.select_node("//title").node().child_value());
}

TEST(CTimelineTest, AScale_HasRoundSteps)
{
    EXPECT_EQ(1U, GetScaleStep(1, 10));
    EXPECT_EQ(1U, GetScaleStep(10, 10));
    EXPECT_EQ(2U, GetScaleStep(11, 10));
    EXPECT_EQ(5U, GetScaleStep(50, 10));
    EXPECT_EQ(10U, GetScaleStep(60, 10));
    EXPECT_EQ(20U, GetScaleStep(201, 10));
    EXPECT_EQ(50U, GetScaleStep(221, 10));
    EXPECT_EQ("20 ms", PrintScaleTime(20, 10));
    EXPECT_EQ("1.5 s", PrintScaleTime(1500, 500));
    EXPECT_EQ("3 s", PrintScaleTime(3000, 1000));
}
