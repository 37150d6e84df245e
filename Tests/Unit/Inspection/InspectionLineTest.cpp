// SPDX-License-Identifier: MIT
#include "Inspection/InspectionLine.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
/** A line in memory of a given size. */
class CLineInMemory
{
public:
    explicit CLineInMemory(eC_UInt uiSize = 200) : m_kMemory(uiSize, '~'), m_kLine(m_kMemory.data(), uiSize)
    {
        m_kLine.Begin();
    }

    CInspectionLine* operator->() { return &m_kLine; }

    std::string End()
    {
        m_kLine.End();
        return std::string(m_kLine.GetText(), m_kLine.GetLength());
    }

private:
    std::string m_kMemory;
    CInspectionLine m_kLine;
};

std::string GetEscaped(const std::string& kText)
{
    CLineInMemory kLine;
    kLine->Text("t", kText.data(), static_cast<eC_UInt>(kText.size()));
    return kLine.End();
}
} // namespace

TEST(CInspectionLineTest, MembersOfAllKinds_AreSeparated)
{
    CLineInMemory kLine;
    kLine->Text("text", "a");
    kLine->Number("least", 0);
    kLine->Number("most", 4294967295U);
    kLine->Flag("yes", true);
    kLine->Flag("no", false);
    kLine->BeginList("items");
    kLine->BeginObject();
    kLine->EndObject();
    kLine->BeginObject();
    kLine->Number("n", 10);
    kLine->EndObject();
    kLine->EndList();
    EXPECT_EQ("{\"text\":\"a\",\"least\":0,\"most\":4294967295,\"yes\":true,\"no\":false,\"items\":[{},{"
              "\"n\":10}]}\n",
              kLine.End());
}

TEST(CInspectionLineTest, Handles_HaveTheirNumberAndTheNameOfTheirConstant)
{
    CLineInMemory kLine;
    kLine->Handle("a", DLG_A);
    kLine->Handle("b", static_cast<ObjectHandle_t>(29));
    kLine->Handle("c", OBJ_MSGBOX_OK);
    kLine->Handle("d", static_cast<ObjectHandle_t>(-2147483647 - 1));
    EXPECT_EQ(
        "{\"a\":{\"id\":1,\"name\":\"DLG_A\"},\"b\":{\"id\":29},\"c\":{\"id\":-5,\"name\":\"OBJ_MSGBOX_OK\"},"
        "\"d\":{\"id\":-2147483648}}\n",
        kLine.End());
}

TEST(CInspectionLineTest, SignsThatJSONHasAnotherUseFor_AreEscaped)
{
    EXPECT_EQ("{\"t\":\"\\\"\\\\\\n\\u0000\\u0009\\u001f/\x7F\"}\n", GetEscaped({"\"\\\n\0\t\x1F/\x7F", 8}));
}

TEST(CInspectionLineTest, CharactersOfUTF8_StayAsTheyAre)
{
    for (const char* pcText : {"\xC2\x80", "\xC3\xA4", "\xE0\xA0\x80", "\xE2\x82\xAC", "\xED\x9F\xBF",
                               "\xEE\x80\x80", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
    {
        EXPECT_EQ(std::string("{\"t\":\"") + pcText + "\"}\n", GetEscaped(pcText));
    }
}

TEST(CInspectionLineTest, BytesThatAreNoCharacter_BecomeTheReplacementCharacter)
{
    const std::string kOne = "\\ufffd";
    EXPECT_EQ("{\"t\":\"" + kOne + "a\"}\n", GetEscaped("\x80"
                                                        "a"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + "\"}\n", GetEscaped("\xC0\x80"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + kOne + "\"}\n", GetEscaped("\xE0\x9F\xBF"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + kOne + "\"}\n", GetEscaped("\xED\xA0\x80"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + kOne + kOne + "\"}\n", GetEscaped("\xF4\x90\x80\x80"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + kOne + kOne + "\"}\n", GetEscaped("\xF0\x8F\xBF\xBF"));
    EXPECT_EQ("{\"t\":\"" + kOne + "\"}\n", GetEscaped("\xF5"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + "\"}\n", GetEscaped("\xE2\x82"));
    EXPECT_EQ("{\"t\":\"" + kOne + "a\"}\n", GetEscaped("\xC3"
                                                        "a"));
    EXPECT_EQ("{\"t\":\"" + kOne + kOne + "a\"}\n", GetEscaped("\xE2\x82"
                                                               "a"));
}

TEST(CInspectionLineTest, ALineThatFillsTheMemory_Fits)
{
    CLineInMemory kLine(9);
    kLine->Number("n", 12);
    EXPECT_EQ("{\"n\":12}\n", kLine.End());
    EXPECT_FALSE(kLine->IsTooLong());
}

TEST(CInspectionLineTest, ALineThatIsLongerThanTheMemory_SaysSoAndWritesNothingBehindIt)
{
    eC_Char acMemory[12] = "...........";
    CInspectionLine kLine(acMemory, 8);
    kLine.Begin();
    kLine.Number("n", 12);
    kLine.End();
    EXPECT_TRUE(kLine.IsTooLong());
    EXPECT_EQ(8U, kLine.GetLength());
    EXPECT_STREQ("{\"n\":12}...", acMemory);
}

TEST(CInspectionLineTest, WhatWasTakenBack_IsNotInTheLine)
{
    CLineInMemory kLine(20);
    kLine->Number("n", 1);
    kLine->Reserve(10);
    const eC_UInt uiLength = kLine->GetLength();
    kLine->Number("m", 1234);
    EXPECT_TRUE(kLine->IsTooLong());
    kLine->ReturnTo(uiLength);
    kLine->Reserve(0);
    kLine->Flag("more", true);
    EXPECT_EQ("{\"n\":1,\"more\":true}\n", kLine.End());
    EXPECT_FALSE(kLine->IsTooLong());
}

TEST(CInspectionLineTest, Begin_ForgetsTheLineBefore)
{
    CLineInMemory kLine(8);
    kLine->Text("text", "too long");
    kLine->Begin();
    EXPECT_EQ("{}\n", kLine.End());
    EXPECT_FALSE(kLine->IsTooLong());
}
