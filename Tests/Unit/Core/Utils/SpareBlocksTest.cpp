#include "Core/Utils/eC_SpareBlocks.h"

#include "Tests/Unit/AllocationCounter.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace
{
constexpr std::size_t cuiGrain = 2 * sizeof(void*);
constexpr std::size_t cuiLargestKept = 8 * cuiGrain;

/** Begins and ends with nothing spare. */
class SpareBlocks : public ::testing::Test
{
protected:
    SpareBlocks() { eC_SpareBlocks::ReleaseAll(); }
    ~SpareBlocks() override { eC_SpareBlocks::ReleaseAll(); }

    /** Takes that many blocks of a size and gives them all back. */
    static void TakeAndGive(std::size_t uiNumber, std::size_t uiSize)
    {
        std::vector<void*> kBlocks;
        kBlocks.reserve(uiNumber);
        for (std::size_t i = 0; i < uiNumber; ++i)
        {
            kBlocks.push_back(eC_SpareBlocks::Take(uiSize));
        }
        for (void* pBlock : kBlocks)
        {
            eC_SpareBlocks::Give(pBlock, uiSize);
        }
    }
};

TEST_F(SpareBlocks, Take_WithoutSpareBlocks_AsksTheHeapForTheRoundedSize)
{
    const CAllocationCounter kCounter;
    void* pBlock = eC_SpareBlocks::Take(cuiGrain + 1);
    EXPECT_EQ(kCounter.GetNumber(), 1u);
    EXPECT_EQ(kCounter.GetBytes(), 2 * cuiGrain);
    eC_SpareBlocks::Give(pBlock, cuiGrain + 1);
}

TEST_F(SpareBlocks, Take_AfterGive_ReturnsTheSameBlockForEverySizeThatRoundsAlike)
{
    void* pBlock = eC_SpareBlocks::Take(cuiGrain + 1);
    eC_SpareBlocks::Give(pBlock, cuiGrain + 1);

    const CAllocationCounter kCounter;
    EXPECT_EQ(eC_SpareBlocks::Take(2 * cuiGrain), pBlock);
    EXPECT_EQ(kCounter.GetNumber(), 0u);
    eC_SpareBlocks::Give(pBlock, 2 * cuiGrain);
}

TEST_F(SpareBlocks, Take_ForAnotherSize_LeavesASpareBlockAlone)
{
    void* pSmall = eC_SpareBlocks::Take(cuiGrain);
    eC_SpareBlocks::Give(pSmall, cuiGrain);

    void* pLarger = eC_SpareBlocks::Take(cuiGrain + 1);
    EXPECT_NE(pLarger, pSmall);
    EXPECT_EQ(eC_SpareBlocks::Take(cuiGrain), pSmall);
    eC_SpareBlocks::Give(pSmall, cuiGrain);
    eC_SpareBlocks::Give(pLarger, cuiGrain + 1);
}

TEST_F(SpareBlocks, Take_OfSeveralSpareBlocks_ReturnsTheOneGivenBackLast)
{
    void* pFirst = eC_SpareBlocks::Take(1);
    void* pSecond = eC_SpareBlocks::Take(1);
    eC_SpareBlocks::Give(pFirst, 1);
    eC_SpareBlocks::Give(pSecond, 1);

    EXPECT_EQ(eC_SpareBlocks::Take(1), pSecond);
    EXPECT_EQ(eC_SpareBlocks::Take(1), pFirst);
    eC_SpareBlocks::Give(pFirst, 1);
    eC_SpareBlocks::Give(pSecond, 1);
}

TEST_F(SpareBlocks, Give_KeepsSixteenBlocksOfASize)
{
    TakeAndGive(20, cuiGrain);
    const CAllocationCounter kCounter;
    TakeAndGive(20, cuiGrain);
    // Four blocks, and the vector that holds all twenty.
    EXPECT_EQ(kCounter.GetNumber(), 4u + 1u);
}

TEST_F(SpareBlocks, Take_OfTheLargestSizeKept_UsesASpareBlock)
{
    void* pBlock = eC_SpareBlocks::Take(cuiLargestKept);
    eC_SpareBlocks::Give(pBlock, cuiLargestKept);
    const CAllocationCounter kCounter;
    EXPECT_EQ(eC_SpareBlocks::Take(cuiLargestKept), pBlock);
    EXPECT_EQ(kCounter.GetNumber(), 0u);
    eC_SpareBlocks::Give(pBlock, cuiLargestKept);
}

TEST_F(SpareBlocks, Take_OfALargerSize_AlwaysAsksTheHeapForExactlyThatSize)
{
    void* pBlock = eC_SpareBlocks::Take(cuiLargestKept + 1);
    eC_SpareBlocks::Give(pBlock, cuiLargestKept + 1);
    const CAllocationCounter kCounter;
    pBlock = eC_SpareBlocks::Take(cuiLargestKept + 1);
    EXPECT_EQ(kCounter.GetNumber(), 1u);
    EXPECT_EQ(kCounter.GetBytes(), cuiLargestKept + 1);
    eC_SpareBlocks::Give(pBlock, cuiLargestKept + 1);
}

TEST_F(SpareBlocks, Take_WithoutMemory_ThrowsAndKeepsWhatIsSpare)
{
    void* pBlock = eC_SpareBlocks::Take(1);
    eC_SpareBlocks::Give(pBlock, 1);
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(eC_SpareBlocks::Take(cuiGrain + 1), std::bad_alloc);
    }
    eC_SpareBlocks::ReleaseAll();
}

TEST_F(SpareBlocks, TakeBuffer_WithoutASpareOne_AsksTheHeapForExactlyThatSize)
{
    const CAllocationCounter kCounter;
    std::size_t uiSize = 0;
    void* pBuffer = eC_SpareBlocks::TakeBuffer(100, uiSize);
    EXPECT_EQ(uiSize, 100u);
    EXPECT_EQ(kCounter.GetBytes(), 100u);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
}

TEST_F(SpareBlocks, TakeBuffer_WithALargeEnoughSpareOne_ReturnsItWithItsSize)
{
    std::size_t uiSize = 0;
    void* pBuffer = eC_SpareBlocks::TakeBuffer(100, uiSize);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);

    const CAllocationCounter kCounter;
    EXPECT_EQ(eC_SpareBlocks::TakeBuffer(20, uiSize), pBuffer);
    EXPECT_EQ(uiSize, 100u);
    EXPECT_EQ(kCounter.GetNumber(), 0u);

    std::size_t uiSecondSize = 0;
    void* pSecond = eC_SpareBlocks::TakeBuffer(20, uiSecondSize);
    EXPECT_NE(pSecond, pBuffer);
    EXPECT_EQ(uiSecondSize, 20u);
    eC_SpareBlocks::GiveBuffer(pSecond, uiSecondSize);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
}

TEST_F(SpareBlocks, TakeBuffer_LargerThanTheSpareOne_LeavesThatAlone)
{
    std::size_t uiSize = 0;
    void* pBuffer = eC_SpareBlocks::TakeBuffer(100, uiSize);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);

    std::size_t uiLargerSize = 0;
    void* pLarger = eC_SpareBlocks::TakeBuffer(101, uiLargerSize);
    EXPECT_EQ(uiLargerSize, 101u);
    EXPECT_EQ(eC_SpareBlocks::TakeBuffer(100, uiSize), pBuffer);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
    eC_SpareBlocks::GiveBuffer(pLarger, uiLargerSize);
}

TEST_F(SpareBlocks, GiveBuffer_OfALargerOneThanTheSpareOne_KeepsTheLargerAndFreesTheOther)
{
    const HeapUse_t kBefore = GetHeapUse();
    std::size_t uiSmall = 0;
    std::size_t uiLarge = 0;
    void* pSmall = eC_SpareBlocks::TakeBuffer(50, uiSmall);
    void* pLarge = eC_SpareBlocks::TakeBuffer(60, uiLarge);
    eC_SpareBlocks::GiveBuffer(pSmall, uiSmall);
    eC_SpareBlocks::GiveBuffer(pLarge, uiLarge);

    // The addresses tell nothing: the heap, too, may return the block that it was given last.
    const CAllocationCounter kCounter;
    pLarge = eC_SpareBlocks::TakeBuffer(60, uiLarge);
    EXPECT_EQ(kCounter.GetNumber(), 0u);
    EXPECT_EQ(uiLarge, 60u);
    pSmall = eC_SpareBlocks::TakeBuffer(1, uiSmall);
    EXPECT_EQ(kCounter.GetNumber(), 1u);
    EXPECT_EQ(uiSmall, 1u);
    eC_SpareBlocks::GiveBuffer(pSmall, uiSmall);
    eC_SpareBlocks::GiveBuffer(pLarge, uiLarge);
    EXPECT_EQ(GetHeapUse().m_uiBlocks, kBefore.m_uiBlocks);
}

TEST_F(SpareBlocks, GiveBuffer_OfASmallerOneThanTheSpareOne_KeepsTheSpareOneAndFreesTheSmaller)
{
    const HeapUse_t kBefore = GetHeapUse();
    std::size_t uiSmall = 0;
    std::size_t uiLarge = 0;
    void* pSmall = eC_SpareBlocks::TakeBuffer(50, uiSmall);
    void* pLarge = eC_SpareBlocks::TakeBuffer(60, uiLarge);
    eC_SpareBlocks::GiveBuffer(pLarge, uiLarge);
    eC_SpareBlocks::GiveBuffer(pSmall, uiSmall);

    const CAllocationCounter kCounter;
    pLarge = eC_SpareBlocks::TakeBuffer(60, uiLarge);
    EXPECT_EQ(kCounter.GetNumber(), 0u);
    EXPECT_EQ(uiLarge, 60u);
    pSmall = eC_SpareBlocks::TakeBuffer(1, uiSmall);
    EXPECT_EQ(kCounter.GetNumber(), 1u);
    EXPECT_EQ(uiSmall, 1u);
    eC_SpareBlocks::GiveBuffer(pSmall, uiSmall);
    eC_SpareBlocks::GiveBuffer(pLarge, uiLarge);
    EXPECT_EQ(GetHeapUse().m_uiBlocks, kBefore.m_uiBlocks);
}

TEST_F(SpareBlocks, GiveBuffer_KeepsFiveHundredAndTwelveBytesAndNotMore)
{
    std::size_t uiSize = 0;
    void* pBuffer = eC_SpareBlocks::TakeBuffer(513, uiSize);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
    const CAllocationCounter kTooLarge;
    pBuffer = eC_SpareBlocks::TakeBuffer(512, uiSize);
    EXPECT_EQ(kTooLarge.GetNumber(), 1u);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
    const CAllocationCounter kKept;
    pBuffer = eC_SpareBlocks::TakeBuffer(512, uiSize);
    EXPECT_EQ(kKept.GetNumber(), 0u);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
}

TEST_F(SpareBlocks, ReleaseAll_LeavesNothingSpare)
{
    std::size_t uiSize = 0;
    eC_SpareBlocks::GiveBuffer(eC_SpareBlocks::TakeBuffer(100, uiSize), 100);
    eC_SpareBlocks::Give(eC_SpareBlocks::Take(1), 1);
    eC_SpareBlocks::Give(eC_SpareBlocks::Take(cuiLargestKept), cuiLargestKept);
    eC_SpareBlocks::ReleaseAll();

    const CAllocationCounter kCounter;
    void* pBuffer = eC_SpareBlocks::TakeBuffer(100, uiSize);
    void* pSmall = eC_SpareBlocks::Take(1);
    void* pLarge = eC_SpareBlocks::Take(cuiLargestKept);
    EXPECT_EQ(kCounter.GetNumber(), 3u);
    eC_SpareBlocks::GiveBuffer(pBuffer, uiSize);
    eC_SpareBlocks::Give(pSmall, 1);
    eC_SpareBlocks::Give(pLarge, cuiLargestKept);
}
} // namespace
