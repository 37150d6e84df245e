// SPDX-License-Identifier: MIT
#include "Simulator/TextScreen.h"

#include <gtest/gtest.h>

namespace
{
using Lines = std::vector<std::string>;
} // namespace

TEST(CTextScreenTest, NewScreen_IsBlank)
{
    EXPECT_EQ("+---+\n|   |\n|   |\n+---+\n", CTextScreen(3, 2).GetFrame());
    EXPECT_EQ("++\n++\n", CTextScreen(0, 0).GetFrame());
}

TEST(CTextScreenTest, Write_GivesAnUmlautOneColumn)
{
    CTextScreen kScreen(6, 1);

    EXPECT_EQ(4, kScreen.Write(0, 0,
                               "\xC3\x9C"
                               "ber"));
    kScreen.Write(4, 0, "|");
    EXPECT_EQ("\xC3\x9C"
              "ber| ",
              kScreen.GetRow(0));
    EXPECT_EQ(4, CountColumns("\xC3\x9C"
                              "ber"));
}

TEST(CTextScreenTest, Write_GivesAWideCharacterTwoColumnsAndACombiningOneNone)
{
    CTextScreen kScreen(5, 1);

    EXPECT_EQ(3, kScreen.Write(0, 0,
                               "\xE6\xB0\xB4"
                               "e\xCC\x81")); // water, e with an acute accent
    EXPECT_EQ("\xE6\xB0\xB4"
              "e  ",
              kScreen.GetRow(0));
    EXPECT_STREQ("", kScreen.GetCell(1, 0).m_acBytes);
}

TEST(CTextScreenTest, Write_ControlCharacters_AreBlanks)
{
    CTextScreen kScreen(4, 1);
    kScreen.Write(0, 0,
                  "a\n\x1B"
                  "b");

    EXPECT_EQ("a  b", kScreen.GetRow(0));
}

TEST(CTextScreenTest, Write_CutsOffWhatIsOutside)
{
    CTextScreen kScreen(6, 3);
    kScreen.Write(-2, 1, "left");
    kScreen.Write(4, 1, "right");
    kScreen.Write(0, -1, "above");
    kScreen.Write(0, 3, "below");

    EXPECT_EQ("+------+\n|      |\n|ft  ri|\n|      |\n+------+\n", kScreen.GetFrame());
}

TEST(CTextScreenTest, Write_RemembersTheStyle)
{
    CTextScreen kScreen(3, 1);
    kScreen.Write(1, 0, "x", STYLE_FOCUS);

    EXPECT_EQ(STYLE_PLAIN, kScreen.GetCell(0, 0).m_eStyle);
    EXPECT_EQ(STYLE_FOCUS, kScreen.GetCell(1, 0).m_eStyle);
    kScreen.SetStyle({0, 0, 9, 9}, STYLE_DIM);
    EXPECT_EQ(STYLE_DIM, kScreen.GetCell(1, 0).m_eStyle);
    EXPECT_EQ(STYLE_PLAIN, kScreen.GetCell(3, 0).m_eStyle);
}

TEST(CTextScreenTest, WriteShort_MarksWhatIsCutOff)
{
    CTextScreen kScreen(8, 1);
    kScreen.WriteShort(0, 0, 3, "abc");
    kScreen.WriteShort(4, 0, 3, "abcd");
    kScreen.WriteShort(0, 0, 0, "nothing");

    EXPECT_EQ("abc ab~ ", kScreen.GetRow(0));
}

TEST(CTextScreenTest, DrawBox_HasATitleInItsEdge)
{
    CTextScreen kScreen(9, 3);
    kScreen.Fill({0, 0, 9, 3}, '.');
    kScreen.DrawBox({0, 0, 9, 3}, '=', "Hi", STYLE_POPUP);

    EXPECT_EQ("+= Hi ==+", kScreen.GetRow(0));
    EXPECT_EQ("|       |", kScreen.GetRow(1));
    EXPECT_EQ("+=======+", kScreen.GetRow(2));
    EXPECT_EQ(STYLE_TITLE, kScreen.GetCell(3, 0).m_eStyle);
    EXPECT_EQ(STYLE_POPUP, kScreen.GetCell(0, 2).m_eStyle);
}

TEST(CTextScreenTest, Copy_TakesAPartOfAnotherScreen)
{
    CTextScreen kFrom(4, 1);
    kFrom.Write(0, 0, "abcd", STYLE_VALUE);
    CTextScreen kTo(3, 2);
    kTo.Copy(kFrom, {1, 0, 3, 1}, 1, 1);

    EXPECT_EQ("   ", kTo.GetRow(0));
    EXPECT_EQ(" bc", kTo.GetRow(1));
    EXPECT_EQ(STYLE_VALUE, kTo.GetCell(1, 1).m_eStyle);
}

TEST(CTextScreenTest, Clear_LeavesBlanks)
{
    CTextScreen kScreen(2, 1);
    kScreen.Write(0, 0, "ab", STYLE_VALUE);
    kScreen.Clear();

    EXPECT_EQ("  ", kScreen.GetRow(0));
    EXPECT_EQ(STYLE_PLAIN, kScreen.GetCell(0, 0).m_eStyle);
}

TEST(CTextScreenTest, CutColumns_NeverCutsACharacter)
{
    EXPECT_EQ("\xC3\x9C"
              "b",
              CutColumns("\xC3\x9C"
                         "ber",
                         2));
    EXPECT_EQ("", CutColumns("\xE6\xB0\xB4", 1));
    EXPECT_EQ("ab", CutColumns("ab", 9));
}

TEST(CTextScreenTest, WrapText_BreaksAtBlanks)
{
    EXPECT_EQ((Lines{"one two", "three"}), WrapText("one two three", 7));
    EXPECT_EQ((Lines{"one", "two"}), WrapText("one two", 6));
    EXPECT_EQ((Lines{"a_lo", "ng_w", "ord"}), WrapText("a_long_word", 4));
    EXPECT_EQ((Lines{""}), WrapText("", 4));
    EXPECT_EQ((Lines{"", "a"}), WrapText("\xE6\xB0\xB4"
                                         "a",
                                         1));
}
