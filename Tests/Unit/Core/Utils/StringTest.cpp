// SPDX-License-Identifier: MIT
#include "Core/Utils/eC_String.h"

#include "Core/Utils/eC_SpareBlocks.h"
#include "Tests/AllocationCounter/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace
{
const std::string R = "\xEF\xBF\xBD"; ///< U+FFFD

/** @return the bytes of a string, including zeros, after checking the terminating zero */
std::string Bytes(const eC_String& kString)
{
    EXPECT_EQ('\0', kString.GetText()[kString.GetLength()]);
    EXPECT_EQ(kString.GetLength() == 0, kString.IsEmpty());
    return std::string(kString.GetText(), kString.GetLength());
}

/** @return a string made from bytes that end where their memory ends */
eC_String FromBytes(const std::string& kBytes, eC_String::eStringFormat_t eFormat = eC_String::eUTF8)
{
    const std::unique_ptr<eC_Char[]> pcBytes(new eC_Char[kBytes.size()]);
    std::memcpy(pcBytes.get(), kBytes.data(), kBytes.size());
    return eC_String(pcBytes.get(), static_cast<eC_UInt>(kBytes.size()), eFormat);
}

/** @return a string made from 16-bit units that end where their memory ends */
eC_String FromUnits(const std::vector<char16_t>& kUnits)
{
    const std::unique_ptr<eC_Char[]> pcBytes(new eC_Char[2 * kUnits.size()]);
    std::memcpy(pcBytes.get(), kUnits.data(), 2 * kUnits.size());
    return eC_String(pcBytes.get(), static_cast<eC_UInt>(kUnits.size()), eC_String::eUTF16);
}

const eC_Char* AsCharacters(const char16_t* pcUnits)
{
    return reinterpret_cast<const eC_Char*>(pcUnits);
}

/** Passes a string as one that may be moved from and still be read afterwards. */
eC_String&& AsTemporary(eC_String& kString)
{
    return static_cast<eC_String&&>(kString);
}

/** @return how many allocations an operation makes, without spare memory at the beginning */
template <typename Operation_t>
std::size_t CountAllocations(Operation_t fnOperation)
{
    eC_SpareBlocks::ReleaseAll();
    const CAllocationCounter kCounter;
    fnOperation();
    return kCounter.GetNumber();
}

const eC_Char* const pcShortest = "a";
const eC_Char* const pcFifteen = "fifteen bytes!!";
const eC_Char* const pcSixteen = "sixteen bytes!!!";
} // namespace

// --- From characters -----------------------------------------------------------------------------

TEST(CStringTest, Default_IsEmpty)
{
    const eC_String kString;

    EXPECT_TRUE(kString.IsEmpty());
    EXPECT_EQ(0u, kString.GetLength());
    EXPECT_STREQ("", kString.GetText());
}

TEST(CStringTest, NullText_IsEmpty_WhateverTheLengthAndTheFormat)
{
    const eC_Char* const pcNull = nullptr;

    EXPECT_EQ("", Bytes(eC_String(pcNull)));
    EXPECT_EQ("", Bytes(eC_String(pcNull, 7, eC_String::eASCII)));
    EXPECT_EQ("", Bytes(eC_String(pcNull, 7, eC_String::eUTF8)));
    EXPECT_EQ("", Bytes(eC_String(pcNull, 7, eC_String::eUTF16)));
}

TEST(CStringTest, EmptyText_IsEmpty)
{
    EXPECT_EQ("", Bytes(eC_String("")));
    EXPECT_EQ("", Bytes(eC_String("", 0, eC_String::eASCII)));
    EXPECT_EQ("", Bytes(eC_String(AsCharacters(u""), 0, eC_String::eUTF16)));
}

TEST(CStringTest, FormatValues)
{
    EXPECT_EQ(0, static_cast<int>(eC_String::eASCII));
    EXPECT_EQ(1, static_cast<int>(eC_String::eUTF8));
    EXPECT_EQ(2, static_cast<int>(eC_String::eUTF16));
}

TEST(CStringTest, LengthZero_TakesTheTextUpToItsTerminatingZero)
{
    EXPECT_EQ("short", Bytes(eC_String("short\0hidden", 0, eC_String::eASCII)));
    EXPECT_EQ("a text of more than fifteen bytes",
              Bytes(eC_String("a text of more than fifteen bytes\0hidden", 0, eC_String::eUTF8)));
}

TEST(CStringTest, Length_CutsTheTextAndKeepsZeros)
{
    EXPECT_EQ("sho", Bytes(eC_String("short", 3)));
    EXPECT_EQ(std::string("a\0b\0", 4), Bytes(eC_String("a\0b\0c", 4, eC_String::eASCII)));
    EXPECT_EQ(std::string("a\0b\0", 4), Bytes(eC_String("a\0b\0c", 4, eC_String::eUTF8)));
}

TEST(CStringTest, AZeroByteInFront_IsATextLikeAnyOther)
{
    const eC_Char acShort[] = "\0short";
    const eC_Char acLong[] = "\0longer than the fifteen bytes";
    for (const std::string& kText : {std::string(acShort, 6), std::string(acLong, 30), std::string(1, '\0')})
    {
        for (const eC_String::eStringFormat_t eFormat : {eC_String::eASCII, eC_String::eUTF8})
        {
            const eC_String kString(kText.data(), static_cast<eC_UInt>(kText.size()), eFormat);
            EXPECT_EQ(kText, Bytes(kString));
            EXPECT_FALSE(kString.IsEmpty());
            EXPECT_FALSE(kString == eC_String());

            eC_String kCopy(kString);
            EXPECT_EQ(kText, Bytes(kCopy));
            EXPECT_TRUE(kCopy == kString);
            const eC_String kMoved(std::move(kCopy));
            EXPECT_EQ(kText, Bytes(kMoved));
            eC_String kAssigned("something else");
            kAssigned = kString;
            EXPECT_EQ(kText, Bytes(kAssigned));

            EXPECT_EQ(kText + kText, Bytes(kString + kString));
            EXPECT_EQ(kText + " behind", Bytes(kString + " behind"));
            EXPECT_EQ("before " + kText, Bytes("before " + kString));
            kAssigned += kString;
            EXPECT_EQ(kText + kText, Bytes(kAssigned));
        }
    }
    EXPECT_EQ(std::string("\0a", 2), Bytes(FromUnits({0, 'a'})));
}

TEST(CStringTest, IsMadeFromALiteral_WhereverAStringIsAskedFor)
{
    EXPECT_TRUE((std::is_convertible<const eC_Char*, eC_String>::value));
    EXPECT_FALSE((std::is_convertible<eC_Int, eC_String>::value));
    EXPECT_FALSE((std::is_convertible<eC_UInt, eC_String>::value));
}

TEST(CStringTest, ASCII_EveryByteAbove7F_BecomesOneReplacementCharacter)
{
    EXPECT_EQ("\x7F" + R + R, Bytes(FromBytes("\x7F\x80\xFF", eC_String::eASCII)));
    EXPECT_EQ("caf" + R + R + "!", Bytes(eC_String("caf\xC3\xA9!", 0, eC_String::eASCII)));
}

TEST(CStringTest, UTF8_WellFormedText_StaysAsItIs)
{
    const std::string kTexts[] = {
        "\x01\x7F",                             // the shortest form's limits
        "\xC2\x80\xDF\xBF",                     // U+0080, U+07FF
        "\xE0\xA0\x80\xE1\x80\x80\xEC\xBF\xBF", // U+0800, U+1000, U+CFFF
        "\xED\x80\x80\xED\x9F\xBF",             // U+D000, U+D7FF
        "\xEE\x80\x80\xEF\xBF\xBD\xEF\xBF\xBF", // U+E000, U+FFFD, U+FFFF
        "\xF0\x90\x80\x80\xF1\x80\x80\x80",     // U+10000, U+40000
        "\xF3\xBF\xBF\xBF\xF4\x8F\xBF\xBF",     // U+FFFFF, U+10FFFF
        "Gr\xC3\xB6\xC3\x9Fly \xE2\x82\xAC \xF0\x9F\x98\x80",
    };
    for (const std::string& kText : kTexts)
    {
        EXPECT_EQ(kText, Bytes(FromBytes(kText)));
    }
}

TEST(CStringTest, UTF8_EveryMalformedSequence_BecomesOneReplacementCharacter)
{
    const struct
    {
        std::string m_kInput;
        std::string m_kExpected;
    } akCases[] = {
        // A following byte without its first one.
        {"\x80", R},
        {"\xBF\x80", R + R},
        // Overlong forms.
        {"\xC0\xAF", R + R},
        {"\xC1\xBF", R + R},
        {"\xE0\x80\x80", R + R + R},
        {"\xE0\x9F\xBF", R + R + R},
        {"\xF0\x80\x80\x80", R + R + R + R},
        {"\xF0\x8F\xBF\xBF", R + R + R + R},
        // Surrogates.
        {"\xED\xA0\x80", R + R + R},
        {"\xED\xBF\xBF", R + R + R},
        // Above U+10FFFF.
        {"\xF4\x90\x80\x80", R + R + R + R},
        {"\xF5\x80\x80\x80", R + R + R + R},
        // Bytes that begin nothing.
        {"\xF8\x88\x80\x80\x80", R + R + R + R + R},
        {"\xFE\xFF", R + R},
        // Characters that end with the text.
        {"\xC2", R},
        {"\xE0\xA0", R},
        {"\xE1", R},
        {"\xED\x9F", R},
        {"\xEF\xBF", R},
        {"\xF0\x90", R},
        {"\xF1\x80\x80", R},
        {"\xF4\x8F\xBF", R},
        // Characters that are cut by another one.
        {"\xC2s", R + "s"},
        {"\xE0\xA0s", R + "s"},
        {"\xE1\x80\xC3\xA9", R + "\xC3\xA9"},
        {"\xF1\x80\x80s", R + "s"},
        {"\xF1\x80\xE2\x82\xAC", R + "\xE2\x82\xAC"},
        {"\xC3\xC0", R + R},
        {"\xE1\x80\xC0", R + R},
        // All in a row.
        {"s\xF1\x80\x80\xE1\x80\xC2t\x80u\x80\xBFv", "s" + R + R + R + "t" + R + "u" + R + R + "v"},
    };
    for (const auto& kCase : akCases)
    {
        EXPECT_EQ(kCase.m_kExpected, Bytes(FromBytes(kCase.m_kInput)))
            << ::testing::PrintToString(kCase.m_kInput);
    }
}

TEST(CStringTest, Bytes_AreCheckedAtEveryDistanceFromTheFront)
{
    for (std::size_t uiDistance = 0; uiDistance < 40; ++uiDistance)
    {
        const std::string kBefore(uiDistance, 'x');

        EXPECT_EQ(kBefore + R + "tail", Bytes(FromBytes(kBefore + "\xFFtail", eC_String::eASCII)));
        EXPECT_EQ(kBefore + R + "tail", Bytes(FromBytes(kBefore + "\xFFtail")));
        EXPECT_EQ(kBefore + "\xC3\xA9tail", Bytes(FromBytes(kBefore + "\xC3\xA9tail")));
        EXPECT_EQ(kBefore + R, Bytes(FromBytes(kBefore + "\xF0\x9F\x98")));

        const std::string kDigits(uiDistance, '1'); // bytes with few bits set, around one with its top bit
        const std::string kZeros = kDigits + std::string(7, '\0');
        EXPECT_EQ(kZeros + R, Bytes(FromBytes(kZeros + "\x80")));
        EXPECT_EQ(kDigits + R + "23456789", Bytes(FromBytes(kDigits + "\x80" + "23456789")));
    }
}

TEST(CStringTest, UTF16_BecomesUTF8)
{
    EXPECT_EQ("Aa\x7F", Bytes(eC_String(AsCharacters(u"Aa\x7F"), 0, eC_String::eUTF16)));
    EXPECT_EQ("\xC2\x80\xDF\xBF", Bytes(FromUnits({0x80, 0x7FF})));
    EXPECT_EQ("\xE0\xA0\x80\xED\x9F\xBF", Bytes(FromUnits({0x800, 0xD7FF})));
    EXPECT_EQ("\xEE\x80\x80\xEF\xBF\xBF", Bytes(FromUnits({0xE000, 0xFFFF})));
    EXPECT_EQ("\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", Bytes(FromUnits({0xD800, 0xDC00, 0xDBFF, 0xDFFF})));
    EXPECT_EQ("\xF0\x9F\x98\x80", Bytes(FromUnits({0xD83D, 0xDE00})));
}

TEST(CStringTest, UTF16_SurrogateWithoutPartner_BecomesOneReplacementCharacter)
{
    EXPECT_EQ(R, Bytes(FromUnits({0xD800})));
    EXPECT_EQ(R, Bytes(FromUnits({0xDFFF})));
    EXPECT_EQ(R + "A", Bytes(FromUnits({0xDBFF, 'A'})));
    EXPECT_EQ(R + "A", Bytes(FromUnits({0xDC00, 'A'})));
    EXPECT_EQ(R + R, Bytes(FromUnits({0xDC00, 0xD800})));
    EXPECT_EQ(R + R, Bytes(FromUnits({0xDC00, 0xDC00})));
    EXPECT_EQ(R + "\xF0\x90\x80\x80", Bytes(FromUnits({0xD800, 0xD800, 0xDC00})));
    EXPECT_EQ(R + "\xEE\x80\x80", Bytes(FromUnits({0xD800, 0xE000})));
}

TEST(CStringTest, UTF16_LengthCountsUnitsAndKeepsZeros)
{
    EXPECT_EQ("ab", Bytes(eC_String(AsCharacters(u"abc"), 2, eC_String::eUTF16)));
    EXPECT_EQ(std::string("a\0b", 3), Bytes(FromUnits({'a', 0, 'b'})));
    EXPECT_EQ("a" + R, Bytes(eC_String(AsCharacters(u"a\U0001F600"), 2, eC_String::eUTF16)));
}

TEST(CStringTest, UTF16_LengthZero_EndsAtAZeroUnitAndNotAtAZeroByte)
{
    EXPECT_EQ("\xC4\x80s\xC8\x80", Bytes(eC_String(AsCharacters(u"\u0100s\u0200\0b"), 0, eC_String::eUTF16)));
}

TEST(CStringTest, UTF16_AtAnOddAddress_IsRead)
{
    alignas(char16_t) eC_Char acMemory[1 + 3 * sizeof(char16_t)];
    const char16_t acUnits[] = {u'x', u'\u20AC', 0};
    std::memcpy(acMemory + 1, acUnits, sizeof(acUnits));

    EXPECT_EQ("x\xE2\x82\xAC", Bytes(eC_String(acMemory + 1, 0, eC_String::eUTF16)));
    EXPECT_EQ("x\xE2\x82\xAC", Bytes(eC_String(acMemory + 1, 2, eC_String::eUTF16)));
}

// --- From numbers --------------------------------------------------------------------------------

TEST(CStringTest, SignedNumber_IsDecimal)
{
    EXPECT_EQ("0", Bytes(eC_String(0)));
    EXPECT_EQ("7", Bytes(eC_String(7)));
    EXPECT_EQ("-1", Bytes(eC_String(-1)));
    EXPECT_EQ("10", Bytes(eC_String(10)));
    EXPECT_EQ("-908", Bytes(eC_String(-908)));
    EXPECT_EQ("2147483647", Bytes(eC_String(2147483647)));
    EXPECT_EQ("-2147483648", Bytes(eC_String(-2147483647 - 1)));
}

TEST(CStringTest, UnsignedNumber_IsDecimal)
{
    EXPECT_EQ("0", Bytes(eC_String(0u)));
    EXPECT_EQ("1234567890", Bytes(eC_String(1234567890u)));
    EXPECT_EQ("4294967295", Bytes(eC_String(4294967295u)));
}

TEST(CStringTest, Number_NeedsNoHeap)
{
    EXPECT_EQ(0u, CountAllocations([] { eC_String(-2147483647 - 1).GetLength(); }));
    EXPECT_EQ(0u, CountAllocations([] { eC_String(4294967295u).GetLength(); }));
}

// --- Value semantics -----------------------------------------------------------------------------

TEST(CStringTest, Copy_IsIndependentOfItsSource)
{
    for (const eC_Char* pcText : {"", pcShortest, pcFifteen, pcSixteen})
    {
        eC_String kSource(pcText);
        const eC_String kCopy(kSource);
        eC_String kAssigned("overwritten, whatever its length was");
        kAssigned = kSource;
        kSource += " more";

        EXPECT_EQ(pcText, Bytes(kCopy));
        EXPECT_EQ(pcText, Bytes(kAssigned));
        EXPECT_EQ(std::string(pcText) + " more", Bytes(kSource));
    }
}

TEST(CStringTest, Copy_KeepsZeros)
{
    const eC_String kSource("zeros\0inside\0the text", 21);

    EXPECT_EQ(std::string("zeros\0inside\0the text", 21), Bytes(eC_String(kSource)));
}

TEST(CStringTest, Copy_TakesAnArrayOfExactlyItsLength)
{
    const eC_String kShort(pcFifteen);
    const eC_String kLong(pcSixteen);
    const CAllocationCounter kCounter;

    const eC_String kShortCopy(kShort);
    EXPECT_EQ(0u, kCounter.GetNumber());

    const eC_String kLongCopy(kLong);
    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(17u, kCounter.GetBytes());
}

TEST(CStringTest, Move_TakesTheTextAndLeavesTheSourceEmpty)
{
    for (const eC_Char* pcText : {"", pcShortest, pcFifteen, pcSixteen})
    {
        eC_String kSource(pcText);
        eC_String kSecondSource(pcText);
        eC_String kAssigned("overwritten, whatever its length was");
        const CAllocationCounter kCounter;

        const eC_String kMoved(AsTemporary(kSource));
        kAssigned = AsTemporary(kSecondSource);

        EXPECT_EQ(0u, kCounter.GetNumber());
        EXPECT_EQ(pcText, Bytes(kMoved));
        EXPECT_EQ(pcText, Bytes(kAssigned));
        EXPECT_EQ("", Bytes(kSource));
        EXPECT_EQ("", Bytes(kSecondSource));
    }
}

TEST(CStringTest, MovedFrom_IsUsedOn)
{
    eC_String kSource(pcSixteen);
    const eC_String kMoved(AsTemporary(kSource));

    kSource += pcSixteen;
    kSource += pcShortest;

    EXPECT_EQ("sixteen bytes!!!a", Bytes(kSource));
    EXPECT_EQ("sixteen bytes!!!", Bytes(kMoved));
}

TEST(CStringTest, Moves_DoNotThrow)
{
    EXPECT_TRUE(std::is_nothrow_default_constructible<eC_String>::value);
    EXPECT_TRUE(std::is_nothrow_move_constructible<eC_String>::value);
    EXPECT_TRUE(std::is_nothrow_move_assignable<eC_String>::value);
}

TEST(CStringTest, AssignmentToItself_ChangesNothing)
{
    for (const eC_Char* pcText : {pcFifteen, pcSixteen})
    {
        eC_String kString(pcText);
        eC_String& kSame = kString;

        kString = kSame;
        EXPECT_EQ(pcText, Bytes(kString));

        kString = AsTemporary(kSame);
        EXPECT_EQ(pcText, Bytes(kString));
    }
}

TEST(CStringTest, Strings_AreEqualExactlyWhenTheirBytesAre)
{
    const eC_String kString("Dialogs/Home.xml");
    const eC_String kZero("a\0b", 3);

    EXPECT_TRUE(kString == eC_String("Dialogs/Home.xml"));
    EXPECT_TRUE(eC_String() == eC_String(""));
    EXPECT_TRUE(kZero == eC_String("a\0b", 3));
    for (const eC_Char* pcOther : {"", "Dialogs/Home.xm", "Dialogs/Home.xml ", "dialogs/Home.xml"})
    {
        EXPECT_FALSE(kString == eC_String(pcOther)) << pcOther;
        EXPECT_TRUE(kString != eC_String(pcOther)) << pcOther;
    }
    EXPECT_FALSE(kString != kString);
    EXPECT_FALSE(kZero == eC_String("a\0c", 3));
    EXPECT_FALSE(kZero == eC_String("a"));
}

// --- Appending -----------------------------------------------------------------------------------

TEST(CStringTest, Append_AddsTextsAndStrings)
{
    eC_String kString;
    kString += "ab";
    kString += eC_String("cd");
    kString += "";
    kString += eC_String();
    EXPECT_EQ("abcd", Bytes(kString));

    kString += " and so many more that they need an array";
    kString += eC_String(-12);
    EXPECT_EQ("abcd and so many more that they need an array-12", Bytes(kString));
}

TEST(CStringTest, AppendNull_AddsNothing)
{
    const eC_Char* const pcNull = nullptr;
    eC_String kString(pcSixteen);
    kString += pcNull;

    EXPECT_EQ(pcSixteen, Bytes(kString));
    EXPECT_EQ(pcSixteen, Bytes(kString + pcNull));
    EXPECT_EQ(pcSixteen, Bytes(eC_String(pcSixteen) + pcNull));
    EXPECT_EQ(pcSixteen, Bytes(pcNull + kString));
    EXPECT_EQ("", Bytes(pcNull + eC_String()));
}

TEST(CStringTest, Append_ReplacesMalformedBytes)
{
    eC_String kString("a");
    kString += "\xC3";
    kString += "\xA9";

    EXPECT_EQ("a" + R + R, Bytes(kString));
    EXPECT_EQ("a" + R + R + R, Bytes(kString + "\xFF"));
    EXPECT_EQ(R + "a", Bytes("\xFF" + eC_String("a")));
}

TEST(CStringTest, Append_KeepsTheZerosOfAString)
{
    const eC_String kZeros("x\0y", 3);
    eC_String kString("a");
    kString += kZeros;

    EXPECT_EQ(std::string("ax\0y", 4), Bytes(kString));
    EXPECT_EQ(std::string("ax\0yx\0y", 7), Bytes(kString + kZeros));
    EXPECT_EQ(std::string("x\0yx\0y", 6), Bytes(eC_String(kZeros) + kZeros));
    EXPECT_EQ(std::string("zx\0y", 4), Bytes("z" + kZeros));
}

TEST(CStringTest, AppendOfItself_Doubles)
{
    eC_String kString("1234567");
    std::string kExpected = "1234567";
    for (int i = 0; i < 8; ++i)
    {
        kString += kString;
        kExpected += kExpected;
        EXPECT_EQ(kExpected, Bytes(kString));
    }
}

TEST(CStringTest, AppendOfItself_IsSafe_WhenItOutgrowsAnArrayThatGoesBackToTheHeap)
{
    // Longer than any spare block: the old array is back on the heap before the append is over.
    std::string kExpected(600, 'x');
    kExpected[599] = 'y';
    eC_String kString(kExpected.c_str());
    for (int i = 0; i < 3; ++i)
    {
        const std::string kText = kExpected;
        kString += kString;
        kExpected = kText + kText;
        EXPECT_EQ(kExpected, Bytes(kString));
        kString += kString.GetText() + 599;
        kExpected += kExpected.substr(599);
        EXPECT_EQ(kExpected, Bytes(kString));
    }
}

TEST(CStringTest, AppendOfOwnText_IsSafe_WhereverItBegins)
{
    for (std::size_t uiLength = 0; uiLength < 130; ++uiLength)
    {
        const std::string kText(uiLength, 'x');
        for (const std::size_t uiBegin : {std::size_t{0}, uiLength / 2, uiLength})
        {
            eC_String kString(kText.c_str());
            kString += kString.GetText() + uiBegin;
            EXPECT_EQ(kText + kText.substr(uiBegin), Bytes(kString));

            // Now there is room, from the first growth.
            kString += kString.GetText() + uiBegin;
            EXPECT_EQ(kText + kText.substr(uiBegin) + (kText + kText.substr(uiBegin)).substr(uiBegin),
                      Bytes(kString));
        }
    }
}

TEST(CStringTest, AppendOfOwnText_FromInsideACharacter_ReplacesItsRest)
{
    eC_String kShort("\xE2\x82\xACs");
    kShort += kShort.GetText() + 1;
    EXPECT_EQ("\xE2\x82\xACs" + R + R + "s", Bytes(kShort));

    eC_String kLong("long enough to need an array \xE2\x82\xAC");
    kLong += kLong.GetText() + 31;
    EXPECT_EQ("long enough to need an array \xE2\x82\xAC" + R, Bytes(kLong));
}

TEST(CStringTest, Sum_LeavesNamedOperandsAlone)
{
    const eC_String kLeft("left, longer than fifteen bytes");
    const eC_String kRight("right");

    EXPECT_EQ("left, longer than fifteen bytesright", Bytes(kLeft + kRight));
    EXPECT_EQ("left, longer than fifteen bytes and text", Bytes(kLeft + " and text"));
    EXPECT_EQ("text and right", Bytes("text and " + kRight));
    EXPECT_EQ("left, longer than fifteen bytesleft, longer than fifteen bytes", Bytes(kLeft + kLeft));
    EXPECT_EQ("left, longer than fifteen bytes", Bytes(kLeft));
    EXPECT_EQ("right", Bytes(kRight));
}

TEST(CStringTest, Sum_OfATemporary_UsesTheTemporarysArray)
{
    eC_String kString(pcSixteen);
    const eC_Char* const pcArray = kString.GetText();

    const eC_String kSum = AsTemporary(kString) + " and" + eC_String(" more");

    EXPECT_EQ("sixteen bytes!!! and more", Bytes(kSum));
    EXPECT_EQ(pcArray, kSum.GetText());
    EXPECT_EQ("", Bytes(kString));
}

TEST(CStringTest, Sum_OfATemporaryAndItself_Doubles)
{
    eC_String kString(pcSixteen);

    EXPECT_EQ("sixteen bytes!!!sixteen bytes!!!", Bytes(AsTemporary(kString) + kString));
}

// --- Cost ----------------------------------------------------------------------------------------

TEST(CStringTest, FifteenBytes_NeedNoHeap)
{
    EXPECT_EQ(15u, eC_String::cuiShortCapacity);
    EXPECT_EQ(0u, CountAllocations([] { eC_String().GetLength(); }));
    EXPECT_EQ(0u, CountAllocations([] { eC_String{pcFifteen}.GetLength(); }));
    EXPECT_EQ(0u,
              CountAllocations([] { eC_String(AsCharacters(u"fifteen units!!"), 15, eC_String::eUTF16); }));
    EXPECT_EQ(0u, CountAllocations([] { (eC_String("ERROR: ") + eC_String(12345678)).GetLength(); }));
    EXPECT_EQ(1u, CountAllocations([] { eC_String{pcSixteen}.GetLength(); }));
}

TEST(CStringTest, ShortString_IsNoLargerThanThePointerTheLengthAndItsBytes)
{
    EXPECT_EQ(16u + 2 * sizeof(void*), sizeof(eC_String));
}

TEST(CStringTest, AnArrayMadeFromCharacters_HasRoomForAsMuchAgainAnd48Bytes)
{
    eC_SpareBlocks::ReleaseAll();
    const CAllocationCounter kCounter;
    const eC_String kString("0123456789012345678901234567890123456789");

    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(2u * 40 + 48 + 1, kCounter.GetBytes());
}

TEST(CStringTest, Room_IsUsedToItsEnd)
{
    const std::string kRest(88, 'x');
    eC_SpareBlocks::ReleaseAll();
    eC_String kString("0123456789012345678901234567890123456789");

    EXPECT_EQ(0u, CountAllocations([&] { kString += kRest.c_str(); }));
    EXPECT_EQ(128u, kString.GetLength());
    EXPECT_EQ(1u, CountAllocations([&] { kString += "x"; }));
    EXPECT_EQ("0123456789012345678901234567890123456789" + kRest + "x", Bytes(kString));
}

TEST(CStringTest, LogMessage_OfLiteralsAndNumbers_TakesOneAllocation)
{
    // The framework's messages with the shortest beginnings and the longest ends.
    const eC_Int iLongest = -2147483647 - 1;
    eC_String kMessage;

    EXPECT_EQ(1u, CountAllocations(
                      [&]
                      {
                          kMessage = eC_String("Class::ShowTheObject: Object with the ident ", 0,
                                               eC_String::eASCII) +
                                     eC_String(iLongest) +
                                     " is not registered and therefore can not be displayed.\n";
                      }));
    EXPECT_EQ("Class::ShowTheObject: Object with the ident -2147483648 is not registered and therefore can "
              "not be displayed.\n",
              Bytes(kMessage));

    EXPECT_EQ(1u, CountAllocations(
                      [&]
                      {
                          kMessage = eC_String("Class::UpdateTheObjects: The object with identifier  ") +
                                     eC_String(iLongest) + " with priority " + eC_String(9u) +
                                     " is hidden, because objects of a higher priority are active.\n";
                      }));
    EXPECT_EQ("Class::UpdateTheObjects: The object with identifier  -2147483648 with priority 9 is hidden, "
              "because objects of a higher priority are active.\n",
              Bytes(kMessage));

    EXPECT_EQ(1u, CountAllocations(
                      [&] { kMessage = "Current: " + eC_String(iLongest) + " Action that was taken: "; }));
    EXPECT_EQ("Current: -2147483648 Action that was taken: ", Bytes(kMessage));
}

TEST(CStringTest, LogMessages_MadeOneAfterTheOther_LeaveTheHeapAlone)
{
    const auto fnMakeMessage = [](eC_Int iNumber)
    {
        return eC_String("Class::ShowTheObject: Object with the ident ") + eC_String(iNumber) +
               " is not registered.\n";
    };
    EXPECT_EQ("Class::ShowTheObject: Object with the ident -5 is not registered.\n",
              Bytes(fnMakeMessage(-5)));

    const CAllocationCounter kCounter;
    fnMakeMessage(7);
    fnMakeMessage(2147483647);
    // A build without spare blocks allocates each time.
    EXPECT_EQ(eC_SpareBlocks::cuiMostPerSize > 0 ? 0u : 2u, kCounter.GetNumber());
}

TEST(CStringTest, ACopy_GetsAnArrayOfItsLengthAlthoughALargerOneIsSpare)
{
    const eC_String kSource("0123456789012345678901234567890123456789");
    eC_SpareBlocks::ReleaseAll();
    {
        const eC_String kReleased("a text of a usual length, whose array is kept for the next one");
    }
    const CAllocationCounter kCounter;
    const eC_String kCopy(kSource);
    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(41u, kCounter.GetBytes());
    EXPECT_EQ("0123456789012345678901234567890123456789", Bytes(kCopy));
}

TEST(CStringTest, Sum_OfFifteenBytes_NeedsNoHeap)
{
    const eC_String kTen("0123456789");
    const eC_String kFifteen(pcFifteen);
    const eC_Char* const pcNull = nullptr;

    EXPECT_EQ(0u, CountAllocations([&] { (kTen + "01234").GetLength(); }));
    EXPECT_EQ(1u, CountAllocations([&] { (kTen + "012345").GetLength(); }));
    EXPECT_EQ(0u, CountAllocations([&] { (kFifteen + pcNull).GetLength(); }));
}

TEST(CStringTest, Sum_OfANamedString_TakesOneAllocation)
{
    const eC_String kPath("Dialogs/Settings/Language.xml");
    const eC_String kLong("a string that is much longer than the room that the sum of a path would leave it, "
                          "as far as paths of usual lengths go, so that it needs more");
    eC_String kSum;

    EXPECT_EQ(1u, CountAllocations([&] { kSum = kPath + " is missing.\n"; }));
    EXPECT_EQ("Dialogs/Settings/Language.xml is missing.\n", Bytes(kSum));
    EXPECT_EQ(1u, CountAllocations([&] { kSum = kPath + kLong; }));
    EXPECT_EQ(1u, CountAllocations([&] { kSum = kPath + kLong.GetText(); }));
    EXPECT_EQ(Bytes(kPath) + Bytes(kLong), Bytes(kSum));
}

TEST(CStringTest, Chain_ThatBeginsWithANamedString_TakesOneAllocation)
{
    const eC_String kPath("Dialogs/Settings/Language.xml");
    eC_String kSum;

    EXPECT_EQ(1u, CountAllocations([&] { kSum = kPath + ": line " + eC_String(17) + ", in " + kPath; }));
    EXPECT_EQ("Dialogs/Settings/Language.xml: line 17, in Dialogs/Settings/Language.xml", Bytes(kSum));
    EXPECT_EQ(1u, CountAllocations([&] { kSum = kPath + kPath + " and" + " more" + " texts"; }));
    EXPECT_EQ("Dialogs/Settings/Language.xmlDialogs/Settings/Language.xml and more texts", Bytes(kSum));
}

TEST(CStringTest, LongLiteralBeyondASCII_TakesOneAllocationAndHasRoomToGrow)
{
    // U+00FC, "für", in each encoding and after more than fifteen bytes.
    eC_String kString;

    EXPECT_EQ(1u, CountAllocations([&] { kString = eC_String("nothing is there yet f\xC3\xBCr"); }));
    EXPECT_EQ("nothing is there yet f\xC3\xBCr", Bytes(kString));
    EXPECT_EQ(1u, CountAllocations(
                      [&] {
                          kString =
                              eC_String(AsCharacters(u"nothing is there yet f\u00FCr"), 0, eC_String::eUTF16);
                      }));
    EXPECT_EQ("nothing is there yet f\xC3\xBCr", Bytes(kString));
    EXPECT_EQ(1u, CountAllocations(
                      [&] { kString = eC_String("nothing is there yet f\xFCr", 0, eC_String::eASCII); }));
    EXPECT_EQ("nothing is there yet f" + R + "r", Bytes(kString));
    EXPECT_EQ(1u, CountAllocations(
                      [&] { kString = eC_String("nothing is there yet f\xC3\xBCr") + " all of " + "us"; }));
    EXPECT_EQ("nothing is there yet f\xC3\xBCr all of us", Bytes(kString));
}

TEST(CStringTest, LongChain_CopiesItsTextFewTimes)
{
    eC_SpareBlocks::ReleaseAll();
    eC_String kString;
    const CAllocationCounter kCounter;
    for (int i = 0; i < 10000; ++i)
    {
        kString = std::move(kString) + "0123456789";
    }

    EXPECT_EQ(100000u, kString.GetLength());
    EXPECT_EQ(11u, kCounter.GetNumber());
    EXPECT_LT(kCounter.GetBytes(), 4u * 100000);
}

// --- Without memory ------------------------------------------------------------------------------

TEST(CStringTest, WithoutMemory_NothingIsMade)
{
    const eC_String kSource(pcSixteen);
    const CAllocationFailure kFailure;

    EXPECT_THROW(eC_String(pcSixteen).GetLength(), std::bad_alloc);
    EXPECT_THROW(eC_String(kSource).GetLength(), std::bad_alloc);
    EXPECT_THROW(kSource + "", std::bad_alloc);
    EXPECT_THROW(kSource + eC_String(), std::bad_alloc);
    EXPECT_THROW("" + kSource, std::bad_alloc);
}

TEST(CStringTest, WithoutMemory_OperandsStayAsTheyAre)
{
    const eC_String kLong("a text that fits neither into fifteen bytes nor into the room of another one, "
                          "which was made of sixteen");
    eC_String kShort(pcFifteen);
    eC_String kArray(pcSixteen);
    {
        const CAllocationFailure kFailure;

        EXPECT_THROW(kShort += "!", std::bad_alloc);
        EXPECT_THROW(kShort += kShort, std::bad_alloc);
        EXPECT_THROW(kShort = kLong, std::bad_alloc);
        EXPECT_THROW(AsTemporary(kShort) + "!", std::bad_alloc);
        EXPECT_THROW(kArray += kLong, std::bad_alloc);
        EXPECT_THROW(kArray += kLong.GetText(), std::bad_alloc);
        EXPECT_THROW(kArray = kLong, std::bad_alloc);
        EXPECT_THROW(AsTemporary(kArray) + kLong, std::bad_alloc);
    }

    EXPECT_EQ(pcFifteen, Bytes(kShort));
    EXPECT_EQ(pcSixteen, Bytes(kArray));
}

TEST(CStringTest, TextOf1GiBOrMore_IsRefusedUnread)
{
    EXPECT_THROW(eC_String("", 0x40000000u, eC_String::eASCII).GetLength(), std::bad_alloc);
    EXPECT_THROW(eC_String("", 0x40000000u, eC_String::eUTF8).GetLength(), std::bad_alloc);
    EXPECT_THROW(eC_String("", 0xFFFFFFFFu, eC_String::eUTF16).GetLength(), std::bad_alloc);
}
