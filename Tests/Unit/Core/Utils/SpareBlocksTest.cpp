// SPDX-License-Identifier: MIT
#include "Core/Utils/eC_SpareBlocks.h"

#include "Tests/AllocationCounter/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace
{
// The usual configuration, even if the rest of this build keeps no spare blocks.
using SpareBlocks_t = eC_TSpareBlocks<EC_SPAREBLOCKS_POISON, 16>;

constexpr std::size_t cuiGrain = 2 * sizeof(void*);
constexpr std::size_t cuiLargestKept = 8 * cuiGrain;

/** Begins and ends without spare blocks. */
class CSpareBlocksTest : public ::testing::Test
{
protected:
    CSpareBlocksTest() { SpareBlocks_t::ReleaseAll(); }
    ~CSpareBlocksTest() override { SpareBlocks_t::ReleaseAll(); }

    /** Allocates this many blocks of a size and releases them all. */
    static void TakeAndGive(std::size_t uiNumber, std::size_t uiSize)
    {
        std::vector<void*> kBlocks;
        kBlocks.reserve(uiNumber);
        for (std::size_t i = 0; i < uiNumber; ++i)
        {
            kBlocks.push_back(SpareBlocks_t::Take(uiSize));
        }
        for (void* pBlock : kBlocks)
        {
            SpareBlocks_t::Give(pBlock, uiSize);
        }
    }
};

TEST_F(CSpareBlocksTest, Take_WithoutSpareBlocks_AsksTheHeapForTheRoundedSize)
{
    const CAllocationCounter kCounter;
    void* pBlock = SpareBlocks_t::Take(cuiGrain + 1);
    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(kCounter.GetBytes(), 2 * cuiGrain);
    SpareBlocks_t::Give(pBlock, cuiGrain + 1);
}

TEST_F(CSpareBlocksTest, Take_AfterGive_ReturnsTheSameBlockForEverySizeThatRoundsAlike)
{
    void* pBlock = SpareBlocks_t::Take(cuiGrain + 1);
    SpareBlocks_t::Give(pBlock, cuiGrain + 1);

    const CAllocationCounter kCounter;
    EXPECT_EQ(SpareBlocks_t::Take(2 * cuiGrain), pBlock);
    EXPECT_EQ(0u, kCounter.GetNumber());
    SpareBlocks_t::Give(pBlock, 2 * cuiGrain);
}

TEST_F(CSpareBlocksTest, Take_ForAnotherSize_LeavesASpareBlockAlone)
{
    void* pSmall = SpareBlocks_t::Take(cuiGrain);
    SpareBlocks_t::Give(pSmall, cuiGrain);

    void* pLarger = SpareBlocks_t::Take(cuiGrain + 1);
    EXPECT_NE(pLarger, pSmall);
    EXPECT_EQ(SpareBlocks_t::Take(cuiGrain), pSmall);
    SpareBlocks_t::Give(pSmall, cuiGrain);
    SpareBlocks_t::Give(pLarger, cuiGrain + 1);
}

TEST_F(CSpareBlocksTest, Take_OfSeveralSpareBlocks_ReturnsTheOneGivenBackLast)
{
    void* pFirst = SpareBlocks_t::Take(1);
    void* pSecond = SpareBlocks_t::Take(1);
    SpareBlocks_t::Give(pFirst, 1);
    SpareBlocks_t::Give(pSecond, 1);

    EXPECT_EQ(SpareBlocks_t::Take(1), pSecond);
    EXPECT_EQ(SpareBlocks_t::Take(1), pFirst);
    SpareBlocks_t::Give(pFirst, 1);
    SpareBlocks_t::Give(pSecond, 1);
}

TEST_F(CSpareBlocksTest, Give_KeepsSixteenBlocksOfASize)
{
    TakeAndGive(20, cuiGrain);
    const CAllocationCounter kCounter;
    TakeAndGive(20, cuiGrain);
    // Four blocks, and the vector that holds all twenty.
    EXPECT_EQ(kCounter.GetNumber(), 4u + 1u);
}

TEST_F(CSpareBlocksTest, Take_OfTheLargestSizeKept_UsesASpareBlock)
{
    void* pBlock = SpareBlocks_t::Take(cuiLargestKept);
    SpareBlocks_t::Give(pBlock, cuiLargestKept);
    const CAllocationCounter kCounter;
    EXPECT_EQ(SpareBlocks_t::Take(cuiLargestKept), pBlock);
    EXPECT_EQ(0u, kCounter.GetNumber());
    SpareBlocks_t::Give(pBlock, cuiLargestKept);
}

TEST_F(CSpareBlocksTest, Take_OfALargerSize_AlwaysAsksTheHeapForExactlyThatSize)
{
    void* pBlock = SpareBlocks_t::Take(cuiLargestKept + 1);
    SpareBlocks_t::Give(pBlock, cuiLargestKept + 1);
    const CAllocationCounter kCounter;
    pBlock = SpareBlocks_t::Take(cuiLargestKept + 1);
    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(kCounter.GetBytes(), cuiLargestKept + 1);
    SpareBlocks_t::Give(pBlock, cuiLargestKept + 1);
}

TEST_F(CSpareBlocksTest, Take_WithoutMemory_ThrowsAndKeepsWhatIsSpare)
{
    void* pBlock = SpareBlocks_t::Take(1);
    SpareBlocks_t::Give(pBlock, 1);
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(SpareBlocks_t::Take(cuiGrain + 1), std::bad_alloc);
    }
    SpareBlocks_t::ReleaseAll();
}

TEST_F(CSpareBlocksTest, TakeBuffer_WithoutASpareOne_AsksTheHeapForExactlyThatSize)
{
    const CAllocationCounter kCounter;
    std::size_t uiSize = 0;
    void* pBuffer = SpareBlocks_t::TakeBuffer(100, uiSize);
    EXPECT_EQ(100u, uiSize);
    EXPECT_EQ(100u, kCounter.GetBytes());
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
}

TEST_F(CSpareBlocksTest, TakeBuffer_WithALargeEnoughSpareOne_ReturnsItWithItsSize)
{
    std::size_t uiSize = 0;
    void* pBuffer = SpareBlocks_t::TakeBuffer(100, uiSize);
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);

    const CAllocationCounter kCounter;
    EXPECT_EQ(SpareBlocks_t::TakeBuffer(20, uiSize), pBuffer);
    EXPECT_EQ(100u, uiSize);
    EXPECT_EQ(0u, kCounter.GetNumber());

    std::size_t uiSecondSize = 0;
    void* pSecond = SpareBlocks_t::TakeBuffer(20, uiSecondSize);
    EXPECT_NE(pSecond, pBuffer);
    EXPECT_EQ(20u, uiSecondSize);
    SpareBlocks_t::GiveBuffer(pSecond, uiSecondSize);
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
}

TEST_F(CSpareBlocksTest, TakeBuffer_LargerThanTheSpareOne_LeavesThatAlone)
{
    std::size_t uiSize = 0;
    void* pBuffer = SpareBlocks_t::TakeBuffer(100, uiSize);
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);

    std::size_t uiLargerSize = 0;
    void* pLarger = SpareBlocks_t::TakeBuffer(101, uiLargerSize);
    EXPECT_EQ(101u, uiLargerSize);
    EXPECT_EQ(SpareBlocks_t::TakeBuffer(100, uiSize), pBuffer);
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
    SpareBlocks_t::GiveBuffer(pLarger, uiLargerSize);
}

TEST_F(CSpareBlocksTest, GiveBuffer_OfALargerOneThanTheSpareOne_KeepsTheLargerAndFreesTheOther)
{
    const HeapUse_t kBefore = GetHeapUse();
    std::size_t uiSmall = 0;
    std::size_t uiLarge = 0;
    void* pSmall = SpareBlocks_t::TakeBuffer(50, uiSmall);
    void* pLarge = SpareBlocks_t::TakeBuffer(60, uiLarge);
    SpareBlocks_t::GiveBuffer(pSmall, uiSmall);
    SpareBlocks_t::GiveBuffer(pLarge, uiLarge);

    // Addresses prove nothing, because the heap may also return the last released block first.
    const CAllocationCounter kCounter;
    pLarge = SpareBlocks_t::TakeBuffer(60, uiLarge);
    EXPECT_EQ(0u, kCounter.GetNumber());
    EXPECT_EQ(60u, uiLarge);
    pSmall = SpareBlocks_t::TakeBuffer(1, uiSmall);
    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(1u, uiSmall);
    SpareBlocks_t::GiveBuffer(pSmall, uiSmall);
    SpareBlocks_t::GiveBuffer(pLarge, uiLarge);
    SpareBlocks_t::ReleaseAll();
    EXPECT_EQ(GetHeapUse().m_uiBlocks, kBefore.m_uiBlocks);
}

TEST_F(CSpareBlocksTest, GiveBuffer_OfASmallerOneThanTheSpareOne_KeepsTheSpareOneAndFreesTheSmaller)
{
    const HeapUse_t kBefore = GetHeapUse();
    std::size_t uiSmall = 0;
    std::size_t uiLarge = 0;
    void* pSmall = SpareBlocks_t::TakeBuffer(50, uiSmall);
    void* pLarge = SpareBlocks_t::TakeBuffer(60, uiLarge);
    SpareBlocks_t::GiveBuffer(pLarge, uiLarge);
    SpareBlocks_t::GiveBuffer(pSmall, uiSmall);

    const CAllocationCounter kCounter;
    pLarge = SpareBlocks_t::TakeBuffer(60, uiLarge);
    EXPECT_EQ(0u, kCounter.GetNumber());
    EXPECT_EQ(60u, uiLarge);
    pSmall = SpareBlocks_t::TakeBuffer(1, uiSmall);
    EXPECT_EQ(1u, kCounter.GetNumber());
    EXPECT_EQ(1u, uiSmall);
    SpareBlocks_t::GiveBuffer(pSmall, uiSmall);
    SpareBlocks_t::GiveBuffer(pLarge, uiLarge);
    SpareBlocks_t::ReleaseAll();
    EXPECT_EQ(GetHeapUse().m_uiBlocks, kBefore.m_uiBlocks);
}

TEST_F(CSpareBlocksTest, GiveBuffer_KeepsFiveHundredAndTwelveBytesAndNotMore)
{
    std::size_t uiSize = 0;
    void* pBuffer = SpareBlocks_t::TakeBuffer(513, uiSize);
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
    const CAllocationCounter kTooLarge;
    pBuffer = SpareBlocks_t::TakeBuffer(512, uiSize);
    EXPECT_EQ(1u, kTooLarge.GetNumber());
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
    const CAllocationCounter kKept;
    pBuffer = SpareBlocks_t::TakeBuffer(512, uiSize);
    EXPECT_EQ(0u, kKept.GetNumber());
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
}

TEST_F(CSpareBlocksTest, WithNoneToKeep_EverythingGoesBackToTheHeapAtOnce)
{
    using NoSpareBlocks_t = eC_TSpareBlocks<EC_SPAREBLOCKS_POISON, 0>;
    const HeapUse_t kBefore = GetHeapUse();
    std::size_t uiSize = 0;
    for (int i = 0; i < 2; ++i)
    {
        const CAllocationCounter kCounter;
        void* pBlock = NoSpareBlocks_t::Take(1);
        void* pBuffer = NoSpareBlocks_t::TakeBuffer(1, uiSize);
        EXPECT_EQ(2u, kCounter.GetNumber());
        EXPECT_EQ(1u, uiSize);
        NoSpareBlocks_t::Give(pBlock, 1);
        NoSpareBlocks_t::GiveBuffer(pBuffer, uiSize);
        EXPECT_EQ(GetHeapUse().m_uiBlocks, kBefore.m_uiBlocks);
    }
}

TEST_F(CSpareBlocksTest, ReleaseAll_LeavesNothingSpare)
{
    std::size_t uiSize = 0;
    SpareBlocks_t::GiveBuffer(SpareBlocks_t::TakeBuffer(100, uiSize), 100);
    SpareBlocks_t::Give(SpareBlocks_t::Take(1), 1);
    SpareBlocks_t::Give(SpareBlocks_t::Take(cuiLargestKept), cuiLargestKept);
    SpareBlocks_t::ReleaseAll();

    const CAllocationCounter kCounter;
    void* pBuffer = SpareBlocks_t::TakeBuffer(100, uiSize);
    void* pSmall = SpareBlocks_t::Take(1);
    void* pLarge = SpareBlocks_t::Take(cuiLargestKept);
    EXPECT_EQ(3u, kCounter.GetNumber());
    SpareBlocks_t::GiveBuffer(pBuffer, uiSize);
    SpareBlocks_t::Give(pSmall, 1);
    SpareBlocks_t::Give(pLarge, cuiLargestKept);
}
} // namespace
