// SPDX-License-Identifier: MIT
#include "Device/Board/HeapArena.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace
{
constexpr std::size_t cuiHeader = 2 * sizeof(std::size_t);
constexpr std::size_t cuiSize = 1024;

/** An arena of 1024 bytes. */
class CHeapArenaTest : public ::testing::Test
{
protected:
    CHeapArenaTest() : m_kArena(m_acMemory, cuiSize) {}

    /** Expects nothing to be in use and all memory to be one free block. */
    void ExpectOneFreeBlock()
    {
        EXPECT_EQ(0U, m_kArena.GetUsed());
        void* pAll = m_kArena.Allocate(cuiSize - cuiHeader);
        EXPECT_EQ(m_acMemory + cuiHeader, pAll);
        m_kArena.Free(pAll);
    }

    alignas(std::max_align_t) char m_acMemory[cuiSize];
    CHeapArena m_kArena;
};
} // namespace

TEST_F(CHeapArenaTest, New_IsOneFreeBlock)
{
    EXPECT_EQ(cuiSize, m_kArena.GetSize());
    EXPECT_EQ(0U, m_kArena.GetUsed());
    EXPECT_EQ(0U, m_kArena.GetPeak());
    ExpectOneFreeBlock();
}

TEST_F(CHeapArenaTest, Allocate_GivesAlignedBlocksThatDoNotOverlap)
{
    void* pFirst = m_kArena.Allocate(1);
    void* pSecond = m_kArena.Allocate(100);
    void* pThird = m_kArena.Allocate(0);

    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(pFirst) % alignof(std::max_align_t));
    EXPECT_EQ(0U, reinterpret_cast<std::uintptr_t>(pSecond) % alignof(std::max_align_t));
    EXPECT_GE(static_cast<char*>(pSecond), static_cast<char*>(pFirst) + 1 + cuiHeader);
    EXPECT_GE(static_cast<char*>(pThird), static_cast<char*>(pSecond) + 100 + cuiHeader);
}

TEST_F(CHeapArenaTest, Allocate_MoreThanThereIs_GivesNullAndChangesNothing)
{
    EXPECT_EQ(nullptr, m_kArena.Allocate(cuiSize - cuiHeader + 1));
    EXPECT_EQ(nullptr, m_kArena.Allocate(SIZE_MAX));
    EXPECT_EQ(0U, m_kArena.GetPeak());
    ExpectOneFreeBlock();
}

TEST_F(CHeapArenaTest, Allocate_WhenExhausted_GivesNullUntilSomethingIsFreed)
{
    void* pFirst = m_kArena.Allocate(480);
    void* pSecond = m_kArena.Allocate(480);
    EXPECT_NE(nullptr, pSecond);
    EXPECT_EQ(nullptr, m_kArena.Allocate(480));

    m_kArena.Free(pFirst);

    EXPECT_EQ(pFirst, m_kArena.Allocate(480));
}

TEST_F(CHeapArenaTest, Free_JoinsWithFreeNeighboursInEveryOrder)
{
    const std::vector<std::vector<int>> kOrders = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2},
                                                   {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
    for (const std::vector<int>& kOrder : kOrders)
    {
        void* apBlocks[] = {m_kArena.Allocate(100), m_kArena.Allocate(200), m_kArena.Allocate(300)};
        for (int iBlock : kOrder)
        {
            m_kArena.Free(apBlocks[iBlock]);
        }
        ExpectOneFreeBlock();
    }
}

TEST_F(CHeapArenaTest, Free_Null_IsIgnored)
{
    m_kArena.Free(nullptr);

    ExpectOneFreeBlock();
}

TEST_F(CHeapArenaTest, GetPeak_IsTheMostThatWasInUseWithHeaders)
{
    void* pFirst = m_kArena.Allocate(160);
    void* pSecond = m_kArena.Allocate(320);
    m_kArena.Free(pFirst);
    EXPECT_EQ(320 + cuiHeader, m_kArena.GetUsed());
    m_kArena.Allocate(16);
    m_kArena.Free(pSecond);

    EXPECT_EQ(160 + 320 + 2 * cuiHeader, m_kArena.GetPeak());
}

TEST_F(CHeapArenaTest, Reallocate_Smaller_StaysAndGivesTheRestBack)
{
    void* pBlock = m_kArena.Allocate(640);
    std::memcpy(pBlock, "content", 8);

    EXPECT_EQ(pBlock, m_kArena.Reallocate(pBlock, 64));

    EXPECT_STREQ("content", static_cast<char*>(pBlock));
    EXPECT_EQ(64 + cuiHeader, m_kArena.GetUsed());
    m_kArena.Free(pBlock);
    ExpectOneFreeBlock();
}

TEST_F(CHeapArenaTest, Reallocate_Larger_MovesTheContent)
{
    void* pBlock = m_kArena.Allocate(16);
    void* pBehind = m_kArena.Allocate(16);
    std::memcpy(pBlock, "content", 8);

    void* pMoved = m_kArena.Reallocate(pBlock, 320);

    EXPECT_NE(pBlock, pMoved);
    EXPECT_STREQ("content", static_cast<char*>(pMoved));
    m_kArena.Free(pBehind);
    m_kArena.Free(pMoved);
    ExpectOneFreeBlock();
}

TEST_F(CHeapArenaTest, Reallocate_WithoutMemory_GivesNullAndKeepsTheBlock)
{
    void* pBlock = m_kArena.Allocate(640);
    std::memcpy(pBlock, "content", 8);

    EXPECT_EQ(nullptr, m_kArena.Reallocate(pBlock, cuiSize));
    EXPECT_EQ(nullptr, m_kArena.Reallocate(pBlock, SIZE_MAX));

    EXPECT_STREQ("content", static_cast<char*>(pBlock));
    EXPECT_EQ(640 + cuiHeader, m_kArena.GetUsed());
}

TEST_F(CHeapArenaTest, ManyBlocksInChangingOrder_KeepTheirContentAndLeaveOneFreeBlock)
{
    std::vector<char*> kBlocks(12, nullptr);
    unsigned uiRandom = 1;
    for (int iStep = 0; iStep < 5000; ++iStep)
    {
        uiRandom = uiRandom * 1664525U + 1013904223U;
        const std::size_t uiSlot = (uiRandom >> 16) % kBlocks.size();
        const std::string kContent(1 + uiSlot * 17, static_cast<char>('a' + uiSlot));
        char*& pcBlock = kBlocks[uiSlot];
        if (pcBlock != nullptr)
        {
            ASSERT_EQ(kContent, std::string(pcBlock, kContent.size()));
            m_kArena.Free(pcBlock);
            pcBlock = nullptr;
        }
        else
        {
            pcBlock = static_cast<char*>(m_kArena.Allocate(kContent.size()));
            if (pcBlock != nullptr)
            {
                std::memcpy(pcBlock, kContent.data(), kContent.size());
            }
        }
    }
    for (char* pcBlock : kBlocks)
    {
        m_kArena.Free(pcBlock);
    }

    ExpectOneFreeBlock();
}
