// SPDX-License-Identifier: MIT
#include "Loader/UTF8Text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

namespace
{
/** @return the number of bytes and the code point of the first character; {0, 0} if it is malformed */
std::pair<std::size_t, char32_t> Decode(const std::string& kText)
{
    char32_t cCharacter = 0;
    const std::size_t uiLength = DecodeUTF8(kText, cCharacter);
    return {uiLength, cCharacter};
}

std::pair<eC_UInt, eC_UInt> Locate(const std::string& kText, std::size_t uiOffset)
{
    const TextPosition_t kPosition = LocateInText(kText, uiOffset);
    return {kPosition.m_uiLine, kPosition.m_uiColumn};
}

std::string Repeat(const std::string& kText, std::size_t uiTimes)
{
    std::string kResult;
    for (std::size_t uiTime = 0; uiTime < uiTimes; ++uiTime)
    {
        kResult += kText;
    }
    return kResult;
}

using Character_t = std::pair<std::size_t, char32_t>;
using Position_t = std::pair<eC_UInt, eC_UInt>;

TEST(CUTF8TextTest, DecodeUTF8_FirstAndLastOfEachLength_AreDecoded)
{
    EXPECT_EQ(Character_t(1, 0), Decode(std::string(1, '\0')));
    EXPECT_EQ(Character_t(1, 0x7F), Decode("\x7F"));
    EXPECT_EQ(Character_t(2, 0x80), Decode("\xC2\x80"));
    EXPECT_EQ(Character_t(2, 0x7FF), Decode("\xDF\xBF"));
    EXPECT_EQ(Character_t(3, 0x800), Decode("\xE0\xA0\x80"));
    EXPECT_EQ(Character_t(3, 0xD7FF), Decode("\xED\x9F\xBF"));
    EXPECT_EQ(Character_t(3, 0xE000), Decode("\xEE\x80\x80"));
    EXPECT_EQ(Character_t(3, 0xFFFF), Decode("\xEF\xBF\xBF"));
    EXPECT_EQ(Character_t(4, 0x10000), Decode("\xF0\x90\x80\x80"));
    EXPECT_EQ(Character_t(4, 0x10FFFF), Decode("\xF4\x8F\xBF\xBF"));
}

TEST(CUTF8TextTest, DecodeUTF8_MalformedSequence_GivesNoCharacter)
{
    EXPECT_EQ(Character_t(0, 0), Decode("\x80"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xBF"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xC1\xBF"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xE0\x9F\xBF"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xED\xA0\x80"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xED\xBF\xBF"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xF0\x8F\xBF\xBF"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xF4\x90\x80\x80"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xF8\x88\x80\x80\x80"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xC3"));
    EXPECT_EQ(Character_t(0, 0), Decode("\xC3("));
    EXPECT_EQ(Character_t(0, 0), Decode("\xE2\x82("));
}

TEST(CUTF8TextTest, DecodeUTF8_CharacterCutOffByTheEnd_IsMalformed)
{
    char32_t cCharacter = 'x';
    EXPECT_EQ(0u, DecodeUTF8(std::string_view("\xE2\x82\xAC", 2), cCharacter));
    EXPECT_EQ(0u, DecodeUTF8(std::string_view("\xC3\xA4", 1), cCharacter));
    EXPECT_EQ(U'x', cCharacter);
}

TEST(CUTF8TextTest, LocateInText_CountsLinesAndCharactersFromOne)
{
    EXPECT_EQ(Position_t(1, 1), Locate("", 0));
    EXPECT_EQ(Position_t(1, 1), Locate("ab", 0));
    EXPECT_EQ(Position_t(1, 3), Locate("ab", 2));
    EXPECT_EQ(Position_t(2, 1), Locate("a\nb", 2));
    EXPECT_EQ(Position_t(1, 2), Locate("\xE2\x82\xAC.", 3));
}

TEST(CUTF8TextTest, LocateInText_EveryLineEnd_IsOne)
{
    EXPECT_EQ(Position_t(3, 1), Locate("a\n\nb", 3));
    EXPECT_EQ(Position_t(3, 1), Locate("a\r\rb", 3));
    EXPECT_EQ(Position_t(2, 1), Locate("a\r\nb", 3));
    EXPECT_EQ(Position_t(3, 1), Locate("a\n\rb", 3));
    EXPECT_EQ(Position_t(2, 1), Locate("a\r", 2));
}

TEST(CUTF8TextTest, LocateInText_CRLFAtTheBeginningOrTheEnd_IsOneLineEnd)
{
    EXPECT_EQ(Position_t(2, 1), Locate("\r\n", 2));
    EXPECT_EQ(Position_t(2, 1), Locate("\r\nb", 2));
    EXPECT_EQ(Position_t(2, 1), Locate("a\r\n", 3));
}

TEST(CUTF8TextTest, LocateInText_CRAtTheEnd_EndsALineWhateverIsBehindTheText)
{
    const TextPosition_t kPosition = LocateInText(std::string_view("a\r\n", 2), 2);
    EXPECT_EQ(2u, kPosition.m_uiLine);
    EXPECT_EQ(1u, kPosition.m_uiColumn);
}

TEST(CUTF8TextTest, LocateInText_ByteOrderMark_TakesNoColumn)
{
    EXPECT_EQ(Position_t(1, 1), Locate("\xEF\xBB\xBF.", 3));
    EXPECT_EQ(Position_t(1, 1), Locate("\xEF\xBB\xBF", 0));
    EXPECT_EQ(Position_t(1, 3), Locate(".\xEF\xBB\xBF.", 4));
}

TEST(CUTF8TextTest, QuoteForMessage_LongText_IsCutBetweenCharacters)
{
    for (const std::string kCharacter : {"a", "\xC3\xA4", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"})
    {
        const std::string kForty = Repeat(kCharacter, 40);
        EXPECT_EQ("'" + kForty + "'", QuoteForMessage(kForty).GetText());
        EXPECT_EQ("'" + kForty + "...'", QuoteForMessage(kForty + kCharacter).GetText());
    }
}

TEST(CUTF8TextTest, QuoteForMessage_MalformedText_IsCutWhereTheLongestWellFormedOneIs)
{
    const std::string kReplaced = Repeat("\xEF\xBF\xBD", 160);
    EXPECT_EQ("'" + kReplaced + "'", QuoteForMessage(std::string(160, '\x80')).GetText());
    EXPECT_EQ("'" + kReplaced + "...'", QuoteForMessage(std::string(161, '\x80')).GetText());
}

TEST(CUTF8TextTest, QuoteForMessage_ControlCharacters_BecomeQuestionMarks)
{
    EXPECT_STREQ("'a?b?c d'", QuoteForMessage("a\nb\x7F"
                                              "c d")
                                  .GetText());
    EXPECT_STREQ("''", QuoteForMessage("").GetText());
}
} // namespace
