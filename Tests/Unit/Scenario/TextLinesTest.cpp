// SPDX-License-Identifier: MIT
#include "Scenario/TextLines.h"

#include <gtest/gtest.h>

TEST(CTextLinesTest, EscapeLineBreaks_WritesEveryLineBreakAsTwoCharacters)
{
    EXPECT_EQ("a\\nb\\n\\n", EscapeLineBreaks("a\nb\n\n"));
    EXPECT_EQ("", EscapeLineBreaks(""));
}

TEST(CTextLinesTest, JoinLines_EndsEveryLineWithALineBreak)
{
    EXPECT_EQ("a\n\nb\n", JoinLines({"a", "", "b"}));
    EXPECT_EQ("", JoinLines({}));
}

TEST(CTextLinesTest, SplitLines_IsTheInverseOfJoinLines)
{
    EXPECT_EQ((std::vector<std::string>{"a", "", "b"}), SplitLines("a\n\nb\n"));
    EXPECT_EQ((std::vector<std::string>{"a"}), SplitLines("a"));
    EXPECT_TRUE(SplitLines("").empty());
}

TEST(CTextLinesTest, Unindent_TakesAwayWhatARawStringHasAroundItsText)
{
    EXPECT_EQ("current: A\n  deeper\n", Unindent("\n        current: A\n          deeper\n    "));
}

TEST(CTextLinesTest, Unindent_LeavesAPlainTextAsItIs)
{
    EXPECT_EQ("a\n b\n", Unindent("a\n b\n"));
    EXPECT_EQ("a\n", Unindent("a"));
    EXPECT_EQ("", Unindent(""));
    EXPECT_EQ("", Unindent("\n    "));
}

TEST(CTextLinesTest, Unindent_IgnoresEmptyLinesInsideWhenItMeasuresTheIndent)
{
    EXPECT_EQ("a\n\nb\n", Unindent("\n  a\n\n  b\n"));
}

TEST(CTextLinesTest, DiffLines_MarksWhatIsMissingAndWhatIsTooMuch)
{
    EXPECT_EQ("  a\n- b\n+ x\n  c\n+ d\n", DiffLines("a\nb\nc\n", "a\nx\nc\nd\n"));
    EXPECT_EQ("- a\n  b\n", DiffLines("a\nb\n", "b\n"));
}

TEST(CTextLinesTest, DiffLines_OfEqualTextsIsEmpty)
{
    EXPECT_EQ("", DiffLines("a\nb\n", "a\nb\n"));
}
