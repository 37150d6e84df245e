// SPDX-License-Identifier: MIT
#include "Core/Utils/eC_TList_doubleLinked.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/AssertionDeath.h"
#include "Tests/Unit/Core/Utils/ListChecks.h"
#include "Tests/Unit/VirtualSlot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <vector>

namespace
{
using IntList_t = eC_TListDoubleLinked<int>;
using SafeIterator_t = IntList_t::SafeIterator;
using Register_t = std::vector<const SafeIterator_t*>;

/** A list of 1, 2, 3, 4, 5, and iterators on known elements. */
class CSafeIteratorTest : public ::testing::Test
{
protected:
    CSafeIteratorTest() { Fill(m_kList, {1, 2, 3, 4, 5}); }

    /** The register must be intact at the end of each test too. */
    void TearDown() override { EXPECT_EQ("", FindBrokenChain(m_kList) + FindBrokenRegister(m_kList)); }

    Register_t GetRegister() const { return CGUITestAccess::GetRegister(m_kList); }

    IntList_t m_kList;
};

// --- Construction and attachment ---------------------------------------------------------------

TEST_F(CSafeIteratorTest, DefaultConstruction_StandsOnNoNodeUnattached)
{
    const SafeIterator_t kIterator;
    EXPECT_EQ("- [-] -", Describe(kIterator));
    EXPECT_EQ(nullptr, CGUITestAccess::GetList(kIterator));
    EXPECT_FALSE(kIterator.IsValid());
    EXPECT_FALSE(kIterator.IsInsideList());
    EXPECT_FALSE(kIterator.IsNextValid());
    EXPECT_FALSE(kIterator.IsPreviousValid());
}

TEST_F(CSafeIteratorTest, Members_AreLaidOutAsNodeListNextPrevious)
{
    const SafeIterator_t kIterator;
    const std::vector<const void*> kAddresses = CGUITestAccess::GetMemberAddresses(kIterator);
    EXPECT_TRUE(std::is_sorted(kAddresses.begin(), kAddresses.end(), std::less<const void*>()));
    EXPECT_TRUE((std::is_base_of_v<IntList_t::Iterator, SafeIterator_t>));
}

TEST_F(CSafeIteratorTest, GetBeginSafe_StandsOnTheFirstNodeAndIsRegistered)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_EQ("- [1] 2", Describe(kIterator));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(CSafeIteratorTest, GetEndSafe_StandsOnTheLastNodeAndIsRegistered)
{
    const SafeIterator_t kIterator = m_kList.GetEndSafe();
    EXPECT_EQ("4 [5] -", Describe(kIterator));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(CSafeIteratorTest, GetAtSafe_StandsThatManyStepsFromTheFrontAndIsRegistered)
{
    const SafeIterator_t kFront = m_kList.GetAtSafe(0);
    const SafeIterator_t kMiddle = m_kList.GetAtSafe(2);
    const SafeIterator_t kBeyond = m_kList.GetAtSafe(5);
    EXPECT_EQ("- [1] 2", Describe(kFront));
    EXPECT_EQ("2 [3] 4", Describe(kMiddle));
    EXPECT_EQ("- [-] -", Describe(kBeyond));
    EXPECT_EQ(GetRegister(), (Register_t{&kFront, &kMiddle, &kBeyond}));
}

TEST_F(CSafeIteratorTest, GetFindSafe_StandsOnTheFirstEqualElementAndIsRegistered)
{
    m_kList.AddAtEnd(2);
    const SafeIterator_t kFound = m_kList.GetFindSafe(2);
    const SafeIterator_t kMissing = m_kList.GetFindSafe(9);
    EXPECT_EQ("1 [2] 3", Describe(kFound));
    EXPECT_EQ("- [-] -", Describe(kMissing));
    EXPECT_EQ(GetRegister(), (Register_t{&kFound, &kMissing}));
}

TEST_F(CSafeIteratorTest, OnAnEmptyList_StandsOnNoNodeAndIsRegistered)
{
    IntList_t kEmpty;
    const SafeIterator_t kBegin = kEmpty.GetBeginSafe();
    const SafeIterator_t kEnd = kEmpty.GetEndSafe();
    EXPECT_EQ("- [-] -", Describe(kBegin));
    EXPECT_EQ("- [-] -", Describe(kEnd));
    EXPECT_EQ(CGUITestAccess::GetRegister(kEmpty), (Register_t{&kBegin, &kEnd}));
}

TEST_F(CSafeIteratorTest, CopyConstruction_TakesThePlaceAndAnEntryOfItsOwn)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    const SafeIterator_t kCopy(kIterator);
    EXPECT_EQ("2 [3] 4", Describe(kCopy));
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator, &kCopy}));
    ++kIterator;
    EXPECT_EQ("3 [4] 5", Describe(kIterator));
    EXPECT_EQ("2 [3] 4", Describe(kCopy));
}

TEST_F(CSafeIteratorTest, CopyConstruction_InAGap_KnowsTheSameNeighbours)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    SafeIterator_t kCopy(kIterator);
    EXPECT_EQ("2 [-] 4", Describe(kCopy));
    ++kCopy;
    EXPECT_EQ("2 [4] 5", Describe(kCopy));
}

TEST_F(CSafeIteratorTest, CopyConstruction_OfAnUnattachedOne_StaysUnattached)
{
    const SafeIterator_t kIterator;
    const SafeIterator_t kCopy(kIterator);
    EXPECT_EQ("- [-] -", Describe(kCopy));
    EXPECT_EQ(nullptr, CGUITestAccess::GetList(kCopy));
}

TEST_F(CSafeIteratorTest, Assignment_WithinOneList_TakesThePlaceAndKeepsTheEntry)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    const SafeIterator_t kOther = m_kList.GetAtSafe(3);
    EXPECT_EQ(&(kIterator = kOther), &kIterator);
    EXPECT_EQ("3 [4] 5", Describe(kIterator));
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator, &kOther}));
}

TEST_F(CSafeIteratorTest, Assignment_InAGap_KnowsTheSameNeighbours)
{
    SafeIterator_t kGap = m_kList.GetAtSafe(2);
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    m_kList.Remove(kGap);
    kIterator = kGap;
    EXPECT_EQ("2 [-] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Assignment_ToAnUnattachedOne_Registers)
{
    SafeIterator_t kIterator;
    kIterator = m_kList.GetBeginSafe();
    EXPECT_EQ("- [1] 2", Describe(kIterator));
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(CSafeIteratorTest, Assignment_FromAnUnattachedOne_LeavesTheRegister)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    kIterator = SafeIterator_t();
    EXPECT_EQ("- [-] -", Describe(kIterator));
    EXPECT_EQ(nullptr, CGUITestAccess::GetList(kIterator));
    EXPECT_EQ(GetRegister(), Register_t());
}

TEST_F(CSafeIteratorTest, Assignment_FromAnotherList_ChangesTheRegisterAndEntersItOnce)
{
    IntList_t kOtherList;
    Fill(kOtherList, {7, 8});
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    const SafeIterator_t kStays = m_kList.GetEndSafe();
    const SafeIterator_t kOther = kOtherList.GetEndSafe();
    kIterator = kOther;
    EXPECT_EQ("7 [8] -", Describe(kIterator));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kOtherList);
    EXPECT_EQ(GetRegister(), (Register_t{&kStays}));
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), (Register_t{&kOther, &kIterator}));
    kOtherList.AddAtEnd(9);
    EXPECT_EQ("7 [8] 9", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Assignment_WithoutMemoryForTheRegister_LeavesItDetachedOnNoNode)
{
    IntList_t kOtherList;
    Fill(kOtherList, {7, 8});
    const SafeIterator_t kFirst = kOtherList.GetEndSafe();
    const std::vector<SafeIterator_t> kFillTheRegister(4, kFirst);
    const SafeIterator_t kStays = m_kList.GetEndSafe();
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    Register_t kRegister = CGUITestAccess::GetRegister(kOtherList);
    ASSERT_EQ(kRegister.size(), CGUITestAccess::GetRegisterSize(kOtherList));
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(kIterator = kFirst, std::bad_alloc);
        EXPECT_EQ(1u, kFailure.GetRefused());
    }
    EXPECT_EQ("- [-] -", Describe(kIterator));
    EXPECT_EQ(nullptr, CGUITestAccess::GetList(kIterator));
    EXPECT_EQ(GetRegister(), (Register_t{&kStays}));
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), kRegister);

    // The iterator can be used again.
    kIterator = kFirst;
    EXPECT_EQ("7 [8] -", Describe(kIterator));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kOtherList);
    kRegister.push_back(&kIterator);
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), kRegister);
}

TEST_F(CSafeIteratorTest, Construction_WithoutMemoryForTheRegister_LeavesTheRegisterAlone)
{
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(m_kList.GetBeginSafe(), std::bad_alloc);
    }
    EXPECT_EQ(GetRegister(), Register_t());

    const SafeIterator_t kFirst = m_kList.GetBeginSafe();
    const std::vector<SafeIterator_t> kFillTheRegister(4, kFirst);
    const Register_t kRegister = GetRegister();
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(SafeIterator_t{kFirst}, std::bad_alloc);
    }
    EXPECT_EQ(GetRegister(), kRegister);
}

TEST_F(CSafeIteratorTest, Assignment_ToItself_ChangesNothing)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    const SafeIterator_t& kSame = kIterator;
    kIterator = kSame;
    EXPECT_EQ("2 [3] 4", Describe(kIterator));
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(CSafeIteratorTest, Destruction_LeavesTheRegister)
{
    {
        const SafeIterator_t kIterator = m_kList.GetBeginSafe();
        EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
    }
    EXPECT_EQ(GetRegister(), Register_t());
    // An update of an iterator that is gone would be a use after scope.
    m_kList.Add(0);
}

TEST_F(CSafeIteratorTest, Comparison_IsThatOfTheNodes)
{
    const SafeIterator_t kFirst = m_kList.GetBeginSafe();
    const SafeIterator_t kSame = m_kList.GetAtSafe(0);
    const SafeIterator_t kLast = m_kList.GetEndSafe();
    EXPECT_TRUE(kFirst == kSame);
    EXPECT_FALSE(kFirst != kSame);
    EXPECT_FALSE(kFirst == kLast);
    EXPECT_TRUE(kFirst != kLast);
    EXPECT_TRUE(SafeIterator_t() == m_kList.GetAtSafe(9));
}

TEST_F(CSafeIteratorTest, Dereference_GivesTheElementItself)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    *kIterator = 8;
    EXPECT_EQ("8 2 3 4 5", Describe(m_kList));
}

TEST_F(CSafeIteratorTest, Dereference_OnNoNode_ThrowsTheIntZero)
{
    EXPECT_EQ(0, GetThrownByDereferencing(SafeIterator_t()));
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_EQ(-1, GetThrownByDereferencing(kIterator));
    m_kList.Remove(kIterator);
    EXPECT_EQ(0, GetThrownByDereferencing(kIterator));
}

// --- The register ------------------------------------------------------------------------------

TEST_F(CSafeIteratorTest, Register_GrowsByFiveWhenItIsFullAndNeverShrinks)
{
    // Each iterator is constructed in place, because a temporary would occupy an entry too.
    std::vector<std::unique_ptr<SafeIterator_t>> kIterators;
    std::vector<eC_UInt> kSizes = {CGUITestAccess::GetRegisterSize(m_kList)};
    Register_t kExpected;
    for (int iCount = 1; iCount <= 11; ++iCount)
    {
        kIterators.emplace_back(new SafeIterator_t(m_kList.GetBeginSafe()));
        kExpected.push_back(kIterators.back().get());
        EXPECT_EQ(GetRegister(), kExpected);
        kSizes.push_back(CGUITestAccess::GetRegisterSize(m_kList));
    }
    EXPECT_EQ(kSizes, (std::vector<eC_UInt>{0, 5, 5, 5, 5, 5, 10, 10, 10, 10, 10, 15}));
    kIterators.clear();
    EXPECT_EQ(GetRegister(), Register_t());
    EXPECT_EQ(15U, CGUITestAccess::GetRegisterSize(m_kList));
    kIterators.emplace_back(new SafeIterator_t(m_kList.GetBeginSafe()));
    EXPECT_EQ(15U, CGUITestAccess::GetRegisterSize(m_kList));
}

TEST_F(CSafeIteratorTest, SixthIterator_GrowsTheRegisterFromFiveToTen)
{
    const SafeIterator_t akFive[] = {m_kList.GetAtSafe(0), m_kList.GetAtSafe(1), m_kList.GetAtSafe(2),
                                     m_kList.GetAtSafe(3), m_kList.GetAtSafe(4)};
    EXPECT_EQ(5U, CGUITestAccess::GetRegisterSize(m_kList));
    const SafeIterator_t kSixth = m_kList.GetBeginSafe();
    EXPECT_EQ(10U, CGUITestAccess::GetRegisterSize(m_kList));
    EXPECT_EQ(GetRegister(),
              (Register_t{&akFive[0], &akFive[1], &akFive[2], &akFive[3], &akFive[4], &kSixth}));
    m_kList.RemoveAll(3);
    EXPECT_EQ("2 [-] 4", Describe(akFive[2]));
}

TEST_F(CSafeIteratorTest, Unregistering_KeepsTheOthersInTheirOrder)
{
    const SafeIterator_t kFirst = m_kList.GetBeginSafe();
    std::unique_ptr<SafeIterator_t> pSecond(new SafeIterator_t(m_kList.GetBeginSafe()));
    const SafeIterator_t kThird = m_kList.GetBeginSafe();
    const SafeIterator_t kFourth = m_kList.GetBeginSafe();
    pSecond.reset();
    EXPECT_EQ(GetRegister(), (Register_t{&kFirst, &kThird, &kFourth}));
    EXPECT_EQ(5U, CGUITestAccess::GetRegisterSize(m_kList));
}

TEST_F(CSafeIteratorTest, UnregisterIterator_DetachesTheIteratorWithoutMovingIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    const SafeIterator_t kOther = m_kList.GetBeginSafe();
    CGUITestAccess::UnregisterIterator(m_kList, &kIterator);
    EXPECT_EQ(nullptr, CGUITestAccess::GetList(kIterator));
    EXPECT_EQ("2 [3] 4", Describe(kIterator));
    EXPECT_EQ(GetRegister(), (Register_t{&kOther}));
}

TEST_F(CSafeIteratorTest, UnregisterIterator_OfNullOrOfAStranger_ChangesNothing)
{
    IntList_t kOtherList;
    SafeIterator_t kStranger = kOtherList.GetBeginSafe();
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    CGUITestAccess::UnregisterIterator<int>(m_kList, nullptr);
    CGUITestAccess::UnregisterIterator(m_kList, &kStranger);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
    EXPECT_EQ(CGUITestAccess::GetList(kStranger), &kOtherList);
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), (Register_t{&kStranger}));
}

TEST_F(CSafeIteratorTest, RegisterIterator_OfNull_ChangesNothing)
{
    CGUITestAccess::RegisterIterator<int>(m_kList, nullptr);
    EXPECT_EQ(GetRegister(), Register_t());
    EXPECT_FALSE(CGUITestAccess::HasRegister(m_kList));
}

TEST_F(CSafeIteratorTest, Intended_RegisterIteratorCalledDirectly_EntersAnIteratorAttachedElsewhereTwice)
{
    IntList_t kOtherList;
    SafeIterator_t kIterator = kOtherList.GetBeginSafe();
    CGUITestAccess::RegisterIterator(m_kList, &kIterator);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator, &kIterator}));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &m_kList);
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), Register_t());
    CGUITestAccess::UnregisterIterator(m_kList, &kIterator);
    CGUITestAccess::UnregisterIterator(m_kList, &kIterator);
    EXPECT_EQ(GetRegister(), Register_t());
}

TEST_F(CSafeIteratorTest,
       RegisterIteratorCalledDirectly_WithoutMemory_LeavesAnIteratorAttachedElsewhereAsItIs)
{
    IntList_t kOtherList;
    SafeIterator_t kIterator = kOtherList.GetBeginSafe();
    {
        const CAllocationFailure kFailure;
        EXPECT_THROW(CGUITestAccess::RegisterIterator(m_kList, &kIterator), std::bad_alloc);
    }
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kOtherList);
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), (Register_t{&kIterator}));
    EXPECT_EQ(GetRegister(), Register_t());
}

TEST_F(CSafeIteratorTest, SetList_RegistersOnceMovesAndDetaches)
{
    IntList_t kOtherList;
    SafeIterator_t kIterator;
    CGUITestAccess::SetList(kIterator, &m_kList);
    CGUITestAccess::SetList(kIterator, &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
    CGUITestAccess::SetList(kIterator, &kOtherList);
    EXPECT_EQ(GetRegister(), Register_t());
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), (Register_t{&kIterator}));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kOtherList);
    CGUITestAccess::SetList<int>(kIterator, nullptr);
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), Register_t());
    EXPECT_EQ(nullptr, CGUITestAccess::GetList(kIterator));
}

/** Iterators that outlive their list: they are in separate memory and forget the list at the end. */
std::string GetAttachedAfterListDestruction(eC_UInt uiNOFIterators)
{
    alignas(IntList_t) std::byte aMemory[sizeof(IntList_t)];
    IntList_t* pList = new (aMemory) IntList_t;
    Fill(*pList, {1, 2, 3});
    std::vector<std::unique_ptr<SafeIterator_t>> kIterators;
    for (eC_UInt uiIndex = 0; uiIndex < uiNOFIterators; ++uiIndex)
    {
        kIterators.emplace_back(new SafeIterator_t(pList->GetAtSafe(1)));
    }
    pList->~IntList_t();
    std::string kText;
    for (const auto& pIterator : kIterators)
    {
        const bool bAttached = CGUITestAccess::GetList(*pIterator) == reinterpret_cast<IntList_t*>(aMemory);
        kText += std::string(kText.empty() ? "" : ", ") + (bAttached ? "attached " : "detached ") +
                 Describe(*pIterator);
        CGUITestAccess::ForgetList(*pIterator);
    }
    return kText;
}

TEST(CSafeIteratorOfADestroyedListTest, TheOnlyOne_IsDetachedOnNoNode)
{
    EXPECT_EQ("detached - [-] -", GetAttachedAfterListDestruction(1));
}

TEST(CSafeIteratorOfADestroyedListTest, Intended_OnlyEverySecondOneIsDetached)
{
    EXPECT_EQ("detached - [-] -, attached - [-] -", GetAttachedAfterListDestruction(2));
    EXPECT_EQ("detached - [-] -, attached - [-] -, detached - [-] -", GetAttachedAfterListDestruction(3));
    EXPECT_EQ("detached - [-] -, attached - [-] -, detached - [-] -, attached - [-] -, "
              "detached - [-] -, attached - [-] -",
              GetAttachedAfterListDestruction(6));
}

// --- Movement ----------------------------------------------------------------------------------

TEST_F(CSafeIteratorTest, Increment_WalksToTheEndAndPastIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(3);
    EXPECT_EQ(&++kIterator, &kIterator);
    EXPECT_EQ("4 [5] -", Describe(kIterator));
    ++kIterator;
    EXPECT_EQ("5 [-] -", Describe(kIterator));
    ++kIterator;
    EXPECT_EQ("5 [-] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Decrement_WalksToTheFrontAndBeforeIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(1);
    EXPECT_EQ(&--kIterator, &kIterator);
    EXPECT_EQ("- [1] 2", Describe(kIterator));
    --kIterator;
    EXPECT_EQ("- [-] 1", Describe(kIterator));
    --kIterator;
    EXPECT_EQ("- [-] 1", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, FromPastTheEnd_DecrementReturnsToTheLastNode)
{
    SafeIterator_t kIterator = m_kList.GetEndSafe();
    ++kIterator;
    --kIterator;
    EXPECT_EQ("4 [5] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, FromBeforeTheFront_IncrementReturnsToTheFirstNode)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    --kIterator;
    ++kIterator;
    EXPECT_EQ("- [1] 2", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, NextAndPreviousValid_TellWhereMovementLeads)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_TRUE(kIterator.IsNextValid());
    EXPECT_FALSE(kIterator.IsPreviousValid());
    ++kIterator;
    EXPECT_TRUE(kIterator.IsNextValid());
    EXPECT_TRUE(kIterator.IsPreviousValid());
    kIterator = m_kList.GetEndSafe();
    EXPECT_FALSE(kIterator.IsNextValid());
    EXPECT_TRUE(kIterator.IsPreviousValid());
}

TEST_F(CSafeIteratorTest, IsInsideList_OnANodeOrJustBeforeTheFront)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_TRUE(kIterator.IsInsideList());
    --kIterator;
    EXPECT_EQ("- [-] 1", Describe(kIterator));
    EXPECT_TRUE(kIterator.IsInsideList());
    kIterator = m_kList.GetEndSafe();
    EXPECT_TRUE(kIterator.IsInsideList());
    ++kIterator;
    EXPECT_EQ("5 [-] -", Describe(kIterator));
    EXPECT_FALSE(kIterator.IsInsideList());
}

TEST_F(CSafeIteratorTest, IsInsideList_InTheGapOfARemovedMiddleNode_IsFalseAlthoughIncrementLeadsOn)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    EXPECT_EQ("2 [-] 4", Describe(kIterator));
    EXPECT_FALSE(kIterator.IsInsideList());
    ++kIterator;
    EXPECT_EQ("2 [4] 5", Describe(kIterator));
    EXPECT_TRUE(kIterator.IsInsideList());
}

TEST_F(CSafeIteratorTest, IsInsideList_OfTheRemovedFrontNode_IsTrue)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    m_kList.Remove(kIterator);
    EXPECT_EQ("- [-] 2", Describe(kIterator));
    EXPECT_TRUE(kIterator.IsInsideList());
}

TEST_F(CSafeIteratorTest, IsInsideList_IsReachedThroughTheBase)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    --kIterator;
    const IntList_t::Iterator& kBase = kIterator;
    EXPECT_TRUE(kBase.IsInsideList());
    EXPECT_FALSE(kBase.IsValid());
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST_F(CSafeIteratorTest, VirtualOperations_AreThoseOfTheBase)
{
    EXPECT_EQ(2, GetVirtualSlot(&SafeIterator_t::IsInsideList));
    EXPECT_EQ(-1, GetVirtualSlot(&SafeIterator_t::IsNextValid));
}
#endif

// --- Removal -----------------------------------------------------------------------------------

TEST_F(CSafeIteratorTest, RemovedUnderIt_IncrementLandsOnTheOldSuccessor)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    EXPECT_TRUE(m_kList.Remove(3));
    EXPECT_EQ("2 [-] 4", Describe(kIterator));
    ++kIterator;
    EXPECT_EQ("2 [4] 5", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, RemovedUnderIt_DecrementLandsOnTheOldPredecessor)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(3);
    --kIterator;
    EXPECT_EQ("1 [2] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, SuccessorRemoved_IncrementSkipsToTheNodeAfterIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(4);
    EXPECT_EQ("2 [3] 5", Describe(kIterator));
    ++kIterator;
    EXPECT_EQ("3 [5] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, PredecessorRemoved_DecrementSkipsToTheNodeBeforeIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(2);
    EXPECT_EQ("1 [3] 4", Describe(kIterator));
    --kIterator;
    EXPECT_EQ("- [1] 3", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, InAGap_FollowsTheRemovalOfItsNeighbours)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(3);
    m_kList.Remove(4);
    EXPECT_EQ("2 [-] 5", Describe(kIterator));
    m_kList.Remove(2);
    EXPECT_EQ("1 [-] 5", Describe(kIterator));
    m_kList.Remove(5);
    EXPECT_EQ("1 [-] -", Describe(kIterator));
    m_kList.Remove(1);
    EXPECT_EQ("- [-] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, RemovalElsewhere_LeavesItAlone)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(1);
    m_kList.Remove(5);
    EXPECT_EQ("2 [3] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, RemoveFrontAndRemoveEnd_NotifyToo)
{
    const SafeIterator_t kFront = m_kList.GetBeginSafe();
    const SafeIterator_t kSecond = m_kList.GetAtSafe(1);
    const SafeIterator_t kFourth = m_kList.GetAtSafe(3);
    const SafeIterator_t kLast = m_kList.GetEndSafe();
    int iTaken = 0;
    m_kList.RemoveFront(iTaken);
    m_kList.RemoveEnd(iTaken);
    EXPECT_EQ("- [-] 2", Describe(kFront));
    EXPECT_EQ("- [2] 3", Describe(kSecond));
    EXPECT_EQ("3 [4] -", Describe(kFourth));
    EXPECT_EQ("4 [-] -", Describe(kLast));
}

TEST_F(CSafeIteratorTest, EveryIteratorIsNotified)
{
    const SafeIterator_t kFirst = m_kList.GetAtSafe(2);
    const SafeIterator_t kSecond = m_kList.GetAtSafe(2);
    const SafeIterator_t kThird = m_kList.GetAtSafe(2);
    m_kList.Remove(3);
    EXPECT_EQ("2 [-] 4", Describe(kFirst));
    EXPECT_EQ("2 [-] 4", Describe(kSecond));
    EXPECT_EQ("2 [-] 4", Describe(kThird));
}

TEST_F(CSafeIteratorTest, ForwardLoop_MayRemoveEveryElementThatItStandsOn)
{
    std::string kVisited;
    for (SafeIterator_t kIterator = m_kList.GetBeginSafe(); kIterator.IsValid() || kIterator.IsNextValid();
         ++kIterator)
    {
        kVisited += std::to_string(*kIterator);
        m_kList.Remove(kIterator);
    }
    EXPECT_EQ("12345", kVisited);
    EXPECT_EQ("empty", Describe(m_kList));
}

TEST_F(CSafeIteratorTest, BackwardLoop_MayRemoveEveryElementThatItStandsOn)
{
    std::string kVisited;
    for (SafeIterator_t kIterator = m_kList.GetEndSafe(); kIterator.IsValid() || kIterator.IsPreviousValid();
         --kIterator)
    {
        kVisited += std::to_string(*kIterator);
        m_kList.Remove(kIterator);
    }
    EXPECT_EQ("54321", kVisited);
    EXPECT_EQ("empty", Describe(m_kList));
}

TEST_F(CSafeIteratorTest, ForwardLoop_SurvivesAnotherThatRemovesAhead)
{
    std::string kVisited;
    for (SafeIterator_t kIterator = m_kList.GetBeginSafe(); kIterator.IsValid(); ++kIterator)
    {
        kVisited += std::to_string(*kIterator);
        SafeIterator_t kAhead = kIterator;
        ++kAhead;
        m_kList.Remove(kAhead);
    }
    EXPECT_EQ("135", kVisited);
    EXPECT_EQ("1 3 5", Describe(m_kList));
}

TEST_F(CSafeIteratorTest, RemoveAll_TakesEveryIteratorOffTheListAndKeepsThemRegistered)
{
    SafeIterator_t kOnANode = m_kList.GetAtSafe(2);
    SafeIterator_t kInAGap = m_kList.GetAtSafe(3);
    m_kList.Remove(kInAGap);
    m_kList.RemoveAll();
    EXPECT_EQ("- [-] -", Describe(kOnANode));
    EXPECT_EQ("- [-] -", Describe(kInAGap));
    EXPECT_EQ(CGUITestAccess::GetList(kOnANode), &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kOnANode, &kInAGap}));
}

// --- Insertion ---------------------------------------------------------------------------------

TEST_F(CSafeIteratorTest, InsertedBeforeIt_DecrementLandsOnTheNewNode)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.AddBefore(9, kIterator);
    EXPECT_EQ("1 2 9 3 4 5", Describe(m_kList));
    EXPECT_EQ("9 [3] 4", Describe(kIterator));
    --kIterator;
    EXPECT_EQ("2 [9] 3", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, InsertedAfterIt_IncrementLandsOnTheNewNode)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.AddAfter(9, kIterator);
    EXPECT_EQ("1 2 3 9 4 5", Describe(m_kList));
    EXPECT_EQ("2 [3] 9", Describe(kIterator));
    ++kIterator;
    EXPECT_EQ("3 [9] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, EveryInsertion_NotifiesTheNeighbours)
{
    const SafeIterator_t kFront = m_kList.GetBeginSafe();
    const SafeIterator_t kLast = m_kList.GetEndSafe();
    m_kList.Add(0);
    EXPECT_EQ("0 [1] 2", Describe(kFront));
    m_kList.AddAtEnd(7);
    EXPECT_EQ("4 [5] 7", Describe(kLast));
    m_kList.AddSorted(6);
    EXPECT_EQ("4 [5] 6", Describe(kLast));
    m_kList.AddSorted(1);
    EXPECT_EQ("1 [1] 2", Describe(kFront));
}

TEST_F(CSafeIteratorTest, InsertionElsewhere_LeavesItAlone)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Add(0);
    m_kList.AddAtEnd(6);
    EXPECT_EQ("2 [3] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Intended_PastTheEnd_AdoptsANodeAppendedAfterwards)
{
    SafeIterator_t kIterator = m_kList.GetEndSafe();
    ++kIterator;
    EXPECT_EQ("5 [-] -", Describe(kIterator));
    m_kList.AddAtEnd(6);
    EXPECT_EQ("5 [6] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Intended_BeforeTheFront_AdoptsANodeInsertedAtTheFront)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    --kIterator;
    m_kList.Add(0);
    EXPECT_EQ("- [0] 1", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Intended_InAGap_AdoptsANodeInsertedExactlyThere)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    m_kList.AddSorted(3);
    EXPECT_EQ("1 2 3 4 5", Describe(m_kList));
    EXPECT_EQ("2 [3] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Intended_OnAnEmptyList_AdoptsTheFirstElement)
{
    IntList_t kEmpty;
    const SafeIterator_t kIterator = kEmpty.GetBeginSafe();
    kEmpty.Add(1);
    EXPECT_EQ("- [1] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, InAGap_DoesNotAdoptANodeInsertedElsewhere)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    m_kList.Add(0);
    m_kList.AddAtEnd(6);
    IntList_t::Iterator kTwo = m_kList.GetFind(2);
    IntList_t::Iterator kFour = m_kList.GetFind(4);
    m_kList.AddBefore(7, kTwo);
    m_kList.AddAfter(8, kFour);
    EXPECT_EQ("0 1 7 2 4 8 5 6", Describe(m_kList));
    EXPECT_EQ("2 [-] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, PastTheEnd_DoesNotAdoptANodeInsertedBeforeTheLast)
{
    SafeIterator_t kIterator = m_kList.GetEndSafe();
    ++kIterator;
    IntList_t::Iterator kLast = m_kList.GetEnd();
    m_kList.AddBefore(9, kLast);
    EXPECT_EQ("5 [-] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, BeyondTheEnd_AdoptsNothingAtEitherEnd)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(5);
    m_kList.Add(0);
    EXPECT_EQ("- [-] -", Describe(kIterator));
    m_kList.AddAtEnd(6);
    EXPECT_EQ("- [-] -", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, OnANode_AdoptsNothing)
{
    IntList_t kList;
    Fill(kList, {1});
    SafeIterator_t kIterator = kList.GetBeginSafe();
    ListNode<int> kBetweenTheSameNeighbours(2);
    CGUITestAccess::Validate(kIterator, &kBetweenTheSameNeighbours, ADDED);
    EXPECT_EQ("- [1] -", Describe(kIterator));
}

// --- Order -------------------------------------------------------------------------------------

TEST_F(CSafeIteratorTest, ReverseOrder_ExchangesTheNeighboursAndKeepsTheNode)
{
    SafeIterator_t kOnANode = m_kList.GetAtSafe(1);
    SafeIterator_t kInAGap = m_kList.GetAtSafe(3);
    m_kList.Remove(kInAGap);
    m_kList.ReverseOrder();
    EXPECT_EQ("5 3 2 1", Describe(m_kList));
    EXPECT_EQ("3 [2] 1", Describe(kOnANode));
    EXPECT_EQ("5 [-] 3", Describe(kInAGap));
    ++kOnANode;
    EXPECT_EQ("2 [1] -", Describe(kOnANode));
}

TEST_F(CSafeIteratorTest, Sort_KeepsTheNodeAndLearnsItsNewNeighbours)
{
    for (const bool bStable : {false, true})
    {
        IntList_t kList;
        Fill(kList, {4, 1, 3, 2});
        const SafeIterator_t kFour = kList.GetBeginSafe();
        const SafeIterator_t kOne = kList.GetAtSafe(1);
        const SafeIterator_t kThree = kList.GetAtSafe(2);
        SafeIterator_t kPastTheEnd = kList.GetEndSafe();
        ++kPastTheEnd;
        kList.Sort(bStable);
        EXPECT_EQ("1 2 3 4", Describe(kList));
        EXPECT_EQ("3 [4] -", Describe(kFour));
        EXPECT_EQ("- [1] 2", Describe(kOne));
        EXPECT_EQ("2 [3] 4", Describe(kThree));
        EXPECT_EQ("- [-] -", Describe(kPastTheEnd));
    }
}

TEST_F(CSafeIteratorTest, Swap_LeavesItOnItsNodeWithTheOtherValue)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(1);
    IntList_t::Iterator kSecond = m_kList.GetAt(1);
    IntList_t::Iterator kFourth = m_kList.GetAt(3);
    m_kList.Swap(kSecond, kFourth);
    EXPECT_EQ("1 [4] 3", Describe(kIterator));
}

// --- Notices -----------------------------------------------------------------------------------

TEST_F(CSafeIteratorTest, UnknownNotice_ChangesNothing)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    CGUITestAccess::UpdateIterators(m_kList, CGUITestAccess::GetNode(kIterator), static_cast<Update_t>(4));
    CGUITestAccess::UpdateIterators(m_kList, CGUITestAccess::GetNode(kIterator), static_cast<Update_t>(255));
    EXPECT_EQ("2 [3] 4", Describe(kIterator));
}

TEST_F(CSafeIteratorTest, Notices_ReachEveryRegisteredIteratorOfTheList)
{
    const SafeIterator_t kFirst = m_kList.GetAtSafe(1);
    const SafeIterator_t kSecond = m_kList.GetAtSafe(2);
    CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, REVERSE_ORDER);
    EXPECT_EQ("3 [2] 1", Describe(kFirst));
    EXPECT_EQ("4 [3] 2", Describe(kSecond));
    CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, KILL);
    EXPECT_EQ("- [-] -", Describe(kFirst));
    EXPECT_EQ("- [-] -", Describe(kSecond));
}

TEST_F(CSafeIteratorTest, RemovedNotice_MakesOnlyTheFirstRepairThatApplies)
{
    IntList_t kList;
    Fill(kList, {1});
    SafeIterator_t kIterator = kList.GetBeginSafe();
    ListNode<int>* pNode = CGUITestAccess::GetFront(kList);
    // During one update the node is its own successor, so the iterator takes it for its predecessor too.
    pNode->m_pkNext = pNode;
    CGUITestAccess::Validate(kIterator, pNode, ADDED);
    pNode->m_pkNext = nullptr;
    EXPECT_EQ("1 [1] -", Describe(kIterator));
    CGUITestAccess::Validate(kIterator, pNode, REMOVED);
    EXPECT_EQ("1 [-] -", Describe(kIterator));
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
using CSafeIteratorDeathTest = CSafeIteratorTest;

TEST_F(CSafeIteratorDeathTest, ANullEntryInTheRegister_IsABrokenInvariant)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_ASSERTION(
        {
            CGUITestAccess::SetRegisterEntry<int>(m_kList, 0, nullptr);
            m_kList.Add(0);
        },
        "Include/Core/Utils/eC_TList_doubleLinked.h", "m_ppIterRegister[i] != NULL");
}

TEST_F(CSafeIteratorDeathTest, ARemovedNodeThatIsTheMissingSuccessor_IsABrokenInvariant)
{
    const SafeIterator_t kIterator = m_kList.GetEndSafe();
    EXPECT_ASSERTION(CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, REMOVED),
                     "Include/Core/Utils/eC_TList_Iterators.h", "m_pSaveNextNode != NULL");
}

TEST_F(CSafeIteratorDeathTest, ARemovedNodeThatIsTheMissingPredecessor_IsABrokenInvariant)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_ASSERTION(CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, REMOVED),
                     "Include/Core/Utils/eC_TList_Iterators.h", "m_pSavePrevNode != NULL");
}
#endif
} // namespace
