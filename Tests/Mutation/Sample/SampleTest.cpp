#include "Sample.h"

#include <gtest/gtest.h>

TEST(CSampleTest, Contains_AtBothEnds_IncludesTheFirstOnly)
{
    CRange kRange(CRange::ciStart, 7);
    EXPECT_TRUE(kRange.Contains(5));
    EXPECT_FALSE(kRange.Contains(4));
    EXPECT_TRUE(kRange.Contains(6));
    EXPECT_FALSE(kRange.Contains(7));
    EXPECT_EQ(4, kRange.m_iCalls);
}

TEST(CSampleTest, Clear_ForgetsTheEnd)
{
    CRange kRange(1, 7);
    kRange.Clear();
    EXPECT_EQ(0, kRange.m_iTo);
}

TEST(CSampleTest, Stack_PushAndDrop_ShowsTheNewestValue)
{
    CStack<int> kStack;
    EXPECT_EQ(nullptr, kStack.Top());
    kStack.Push(1);
    kStack.Push(2);
    EXPECT_EQ(2, *kStack.Top());
    kStack.Drop();
    EXPECT_EQ(1, *kStack.Top());
}

TEST(CSampleTest, SumUpTo_Three_IsSix)
{
    EXPECT_EQ(6, SumUpTo(3));
}

TEST(CSampleTest, Difference_TakesTheFirstFromTheSecond)
{
    EXPECT_EQ(2, Difference(3, 5));
}

TEST(CSampleTest, NameOf_Green_IsLogged)
{
    EXPECT_STREQ("red", NameOf(RED));
    EXPECT_STREQ("", g_pcLogged);
    EXPECT_STREQ("green", NameOf(GREEN));
    EXPECT_STREQ("green was asked for", g_pcLogged);
}
