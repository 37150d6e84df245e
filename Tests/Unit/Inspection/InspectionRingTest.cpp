// SPDX-License-Identifier: MIT
#include "Inspection/InspectionRing.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
/** A ring that holds 7 bytes. */
class CInspectionRingTest : public ::testing::Test
{
protected:
    eC_Bool Put(const std::string& kBytes)
    {
        return m_kRing.Put(kBytes.data(), static_cast<eC_UInt>(kBytes.size()));
    }

    std::string Take(eC_UInt uiSize)
    {
        std::string kBytes(uiSize, '~');
        kBytes.resize(m_kRing.Take(kBytes.data(), uiSize));
        return kBytes;
    }

    eC_Char m_acMemory[8] = {};
    CByteRing m_kRing{m_acMemory, sizeof(m_acMemory)};
};
} // namespace

TEST_F(CInspectionRingTest, Take_GivesWhatWasPutInInOrder)
{
    EXPECT_TRUE(m_kRing.IsEmpty());
    EXPECT_TRUE(Put("abc"));
    EXPECT_TRUE(Put("de"));
    EXPECT_FALSE(m_kRing.IsEmpty());
    EXPECT_EQ("ab", Take(2));
    EXPECT_EQ("cde", Take(10));
    EXPECT_EQ("", Take(10));
    EXPECT_TRUE(m_kRing.IsEmpty());
}

TEST_F(CInspectionRingTest, Put_TakesAllOrNothing)
{
    EXPECT_FALSE(Put("12345678"));
    EXPECT_TRUE(Put("1234567"));
    EXPECT_FALSE(Put("8"));
    EXPECT_EQ("1", Take(1));
    EXPECT_FALSE(Put("89"));
    EXPECT_TRUE(Put("8"));
    EXPECT_EQ("2345678", Take(10));
}

TEST_F(CInspectionRingTest, Bytes_RunOnAtTheBeginningOfTheMemory)
{
    for (int iRound = 0; iRound < 100; ++iRound)
    {
        const std::string kBytes = std::to_string(10000 + iRound);
        ASSERT_TRUE(Put(kBytes)) << iRound;
        ASSERT_EQ(kBytes, Take(10)) << iRound;
    }
}

TEST_F(CInspectionRingTest, ARingWithoutMemory_TakesNothing)
{
    CByteRing kNone(nullptr, 0);
    EXPECT_FALSE(kNone.Put("a", 1));
    eC_Char cByte = 'x';
    EXPECT_EQ(0U, kNone.Take(&cByte, 1));
}

TEST(CInspectionRingChannelTest, BothDirections_AreApart)
{
    eC_Char acOut[8];
    eC_Char acIn[4];
    CInspectionRing kRing(acOut, sizeof(acOut), acIn, sizeof(acIn));
    eC_Char acBytes[8];

    EXPECT_TRUE(kRing.WriteLine("{}\n", 3));
    EXPECT_FALSE(kRing.WriteLine("{   }\n", 6));
    EXPECT_TRUE(kRing.PutIn("abc", 3));
    EXPECT_FALSE(kRing.PutIn("d", 1));
    ASSERT_EQ(3U, kRing.Read(acBytes, sizeof(acBytes)));
    EXPECT_EQ("abc", std::string(acBytes, 3));
    ASSERT_EQ(3U, kRing.TakeOut(acBytes, sizeof(acBytes)));
    EXPECT_EQ("{}\n", std::string(acBytes, 3));
    EXPECT_EQ(1U, kRing.GetReaders());
}
