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

/** A list of 1, 2, 3, 4, 5 and iterators that know their places. */
class SafeIterator : public ::testing::Test
{
protected:
    SafeIterator() { Fill(m_kList, {1, 2, 3, 4, 5}); }

    /** The register must be whole at the end of each test as well. */
    void TearDown() override { EXPECT_EQ(FindBrokenChain(m_kList) + FindBrokenRegister(m_kList), ""); }

    Register_t GetRegister() const { return CGUITestAccess::GetRegister(m_kList); }

    IntList_t m_kList;
};

// --- Construction and attachment ---------------------------------------------------------------

TEST_F(SafeIterator, DefaultConstruction_StandsOnNoNodeUnattached)
{
    const SafeIterator_t kIterator;
    EXPECT_EQ(Describe(kIterator), "- [-] -");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), nullptr);
    EXPECT_FALSE(kIterator.IsValid());
    EXPECT_FALSE(kIterator.IsInsideList());
    EXPECT_FALSE(kIterator.IsNextValid());
    EXPECT_FALSE(kIterator.IsPreviousValid());
}

TEST_F(SafeIterator, Members_AreLaidOutAsNodeListNextPrevious)
{
    const SafeIterator_t kIterator;
    const std::vector<const void*> kAddresses = CGUITestAccess::GetMemberAddresses(kIterator);
    EXPECT_TRUE(std::is_sorted(kAddresses.begin(), kAddresses.end(), std::less<const void*>()));
    EXPECT_TRUE((std::is_base_of_v<IntList_t::Iterator, SafeIterator_t>));
}

TEST_F(SafeIterator, GetBeginSafe_StandsOnTheFirstNodeAndIsRegistered)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_EQ(Describe(kIterator), "- [1] 2");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(SafeIterator, GetEndSafe_StandsOnTheLastNodeAndIsRegistered)
{
    const SafeIterator_t kIterator = m_kList.GetEndSafe();
    EXPECT_EQ(Describe(kIterator), "4 [5] -");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(SafeIterator, GetAtSafe_StandsThatManyStepsFromTheFrontAndIsRegistered)
{
    const SafeIterator_t kFront = m_kList.GetAtSafe(0);
    const SafeIterator_t kMiddle = m_kList.GetAtSafe(2);
    const SafeIterator_t kBeyond = m_kList.GetAtSafe(5);
    EXPECT_EQ(Describe(kFront), "- [1] 2");
    EXPECT_EQ(Describe(kMiddle), "2 [3] 4");
    EXPECT_EQ(Describe(kBeyond), "- [-] -");
    EXPECT_EQ(GetRegister(), (Register_t{&kFront, &kMiddle, &kBeyond}));
}

TEST_F(SafeIterator, GetFindSafe_StandsOnTheFirstEqualElementAndIsRegistered)
{
    m_kList.AddAtEnd(2);
    const SafeIterator_t kFound = m_kList.GetFindSafe(2);
    const SafeIterator_t kMissing = m_kList.GetFindSafe(9);
    EXPECT_EQ(Describe(kFound), "1 [2] 3");
    EXPECT_EQ(Describe(kMissing), "- [-] -");
    EXPECT_EQ(GetRegister(), (Register_t{&kFound, &kMissing}));
}

TEST_F(SafeIterator, OnAnEmptyList_StandsOnNoNodeAndIsRegistered)
{
    IntList_t kEmpty;
    const SafeIterator_t kBegin = kEmpty.GetBeginSafe();
    const SafeIterator_t kEnd = kEmpty.GetEndSafe();
    EXPECT_EQ(Describe(kBegin), "- [-] -");
    EXPECT_EQ(Describe(kEnd), "- [-] -");
    EXPECT_EQ(CGUITestAccess::GetRegister(kEmpty), (Register_t{&kBegin, &kEnd}));
}

TEST_F(SafeIterator, CopyConstruction_TakesThePlaceAndAnEntryOfItsOwn)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    const SafeIterator_t kCopy(kIterator);
    EXPECT_EQ(Describe(kCopy), "2 [3] 4");
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator, &kCopy}));
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "3 [4] 5");
    EXPECT_EQ(Describe(kCopy), "2 [3] 4");
}

TEST_F(SafeIterator, CopyConstruction_InAGap_KnowsTheSameNeighbours)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    SafeIterator_t kCopy(kIterator);
    EXPECT_EQ(Describe(kCopy), "2 [-] 4");
    ++kCopy;
    EXPECT_EQ(Describe(kCopy), "2 [4] 5");
}

TEST_F(SafeIterator, CopyConstruction_OfAnUnattachedOne_StaysUnattached)
{
    const SafeIterator_t kIterator;
    const SafeIterator_t kCopy(kIterator);
    EXPECT_EQ(Describe(kCopy), "- [-] -");
    EXPECT_EQ(CGUITestAccess::GetList(kCopy), nullptr);
}

TEST_F(SafeIterator, Assignment_WithinOneList_TakesThePlaceAndKeepsTheEntry)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    const SafeIterator_t kOther = m_kList.GetAtSafe(3);
    EXPECT_EQ(&(kIterator = kOther), &kIterator);
    EXPECT_EQ(Describe(kIterator), "3 [4] 5");
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator, &kOther}));
}

TEST_F(SafeIterator, Assignment_InAGap_KnowsTheSameNeighbours)
{
    SafeIterator_t kGap = m_kList.GetAtSafe(2);
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    m_kList.Remove(kGap);
    kIterator = kGap;
    EXPECT_EQ(Describe(kIterator), "2 [-] 4");
}

TEST_F(SafeIterator, Assignment_ToAnUnattachedOne_Registers)
{
    SafeIterator_t kIterator;
    kIterator = m_kList.GetBeginSafe();
    EXPECT_EQ(Describe(kIterator), "- [1] 2");
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(SafeIterator, Assignment_FromAnUnattachedOne_LeavesTheRegister)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    kIterator = SafeIterator_t();
    EXPECT_EQ(Describe(kIterator), "- [-] -");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), nullptr);
    EXPECT_EQ(GetRegister(), Register_t());
}

TEST_F(SafeIterator, Assignment_FromAnotherList_ChangesTheRegisterAndEntersItOnce)
{
    IntList_t kOtherList;
    Fill(kOtherList, {7, 8});
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    const SafeIterator_t kStays = m_kList.GetEndSafe();
    const SafeIterator_t kOther = kOtherList.GetEndSafe();
    kIterator = kOther;
    EXPECT_EQ(Describe(kIterator), "7 [8] -");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kOtherList);
    EXPECT_EQ(GetRegister(), (Register_t{&kStays}));
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), (Register_t{&kOther, &kIterator}));
    kOtherList.AddAtEnd(9);
    EXPECT_EQ(Describe(kIterator), "7 [8] 9");
}

TEST_F(SafeIterator, Assignment_WithoutMemoryForTheRegister_LeavesItDetachedOnNoNode)
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
        EXPECT_EQ(kFailure.GetRefused(), 1u);
    }
    EXPECT_EQ(Describe(kIterator), "- [-] -");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), nullptr);
    EXPECT_EQ(GetRegister(), (Register_t{&kStays}));
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), kRegister);

    // Nothing is left that would keep it from being used on.
    kIterator = kFirst;
    EXPECT_EQ(Describe(kIterator), "7 [8] -");
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kOtherList);
    kRegister.push_back(&kIterator);
    EXPECT_EQ(CGUITestAccess::GetRegister(kOtherList), kRegister);
}

TEST_F(SafeIterator, Construction_WithoutMemoryForTheRegister_LeavesTheRegisterAlone)
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

TEST_F(SafeIterator, Assignment_ToItself_ChangesNothing)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    const SafeIterator_t& kSame = kIterator;
    kIterator = kSame;
    EXPECT_EQ(Describe(kIterator), "2 [3] 4");
    EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
}

TEST_F(SafeIterator, Destruction_LeavesTheRegister)
{
    {
        const SafeIterator_t kIterator = m_kList.GetBeginSafe();
        EXPECT_EQ(GetRegister(), (Register_t{&kIterator}));
    }
    EXPECT_EQ(GetRegister(), Register_t());
    // A notice to an iterator that is gone would be a use after its scope.
    m_kList.Add(0);
}

TEST_F(SafeIterator, Comparison_IsThatOfTheNodes)
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

TEST_F(SafeIterator, Dereference_GivesTheElementItself)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    *kIterator = 8;
    EXPECT_EQ(Describe(m_kList), "8 2 3 4 5");
}

TEST_F(SafeIterator, Dereference_OnNoNode_ThrowsTheIntZero)
{
    EXPECT_EQ(GetThrownByDereferencing(SafeIterator_t()), 0);
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_EQ(GetThrownByDereferencing(kIterator), -1);
    m_kList.Remove(kIterator);
    EXPECT_EQ(GetThrownByDereferencing(kIterator), 0);
}

// --- The register ------------------------------------------------------------------------------

TEST_F(SafeIterator, Register_GrowsByFiveWhenItIsFullAndNeverShrinks)
{
    // Each iterator is built in its place: a temporary would take an entry of its own.
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
    EXPECT_EQ(CGUITestAccess::GetRegisterSize(m_kList), 15U);
    kIterators.emplace_back(new SafeIterator_t(m_kList.GetBeginSafe()));
    EXPECT_EQ(CGUITestAccess::GetRegisterSize(m_kList), 15U);
}

TEST_F(SafeIterator, SixthIterator_GrowsTheRegisterFromFiveToTen)
{
    const SafeIterator_t akFive[] = {m_kList.GetAtSafe(0), m_kList.GetAtSafe(1), m_kList.GetAtSafe(2),
                                     m_kList.GetAtSafe(3), m_kList.GetAtSafe(4)};
    EXPECT_EQ(CGUITestAccess::GetRegisterSize(m_kList), 5U);
    const SafeIterator_t kSixth = m_kList.GetBeginSafe();
    EXPECT_EQ(CGUITestAccess::GetRegisterSize(m_kList), 10U);
    EXPECT_EQ(GetRegister(),
              (Register_t{&akFive[0], &akFive[1], &akFive[2], &akFive[3], &akFive[4], &kSixth}));
    m_kList.RemoveAll(3);
    EXPECT_EQ(Describe(akFive[2]), "2 [-] 4");
}

TEST_F(SafeIterator, Unregistering_KeepsTheOthersInTheirOrder)
{
    const SafeIterator_t kFirst = m_kList.GetBeginSafe();
    std::unique_ptr<SafeIterator_t> pSecond(new SafeIterator_t(m_kList.GetBeginSafe()));
    const SafeIterator_t kThird = m_kList.GetBeginSafe();
    const SafeIterator_t kFourth = m_kList.GetBeginSafe();
    pSecond.reset();
    EXPECT_EQ(GetRegister(), (Register_t{&kFirst, &kThird, &kFourth}));
    EXPECT_EQ(CGUITestAccess::GetRegisterSize(m_kList), 5U);
}

TEST_F(SafeIterator, UnregisterIterator_DetachesTheIteratorWithoutMovingIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    const SafeIterator_t kOther = m_kList.GetBeginSafe();
    CGUITestAccess::UnregisterIterator(m_kList, &kIterator);
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), nullptr);
    EXPECT_EQ(Describe(kIterator), "2 [3] 4");
    EXPECT_EQ(GetRegister(), (Register_t{&kOther}));
}

TEST_F(SafeIterator, UnregisterIterator_OfNullOrOfAStranger_ChangesNothing)
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

TEST_F(SafeIterator, RegisterIterator_OfNull_ChangesNothing)
{
    CGUITestAccess::RegisterIterator<int>(m_kList, nullptr);
    EXPECT_EQ(GetRegister(), Register_t());
    EXPECT_FALSE(CGUITestAccess::HasRegister(m_kList));
}

TEST_F(SafeIterator, Intended_RegisterIteratorCalledDirectly_EntersAnIteratorAttachedElsewhereTwice)
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

TEST_F(SafeIterator, SetList_RegistersOnceMovesAndDetaches)
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
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), nullptr);
}

/** Iterators that outlive their list: they stand in memory of their own and forget it at the end. */
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

TEST(SafeIteratorOfADestroyedList, TheOnlyOne_IsDetachedOnNoNode)
{
    EXPECT_EQ(GetAttachedAfterListDestruction(1), "detached - [-] -");
}

TEST(SafeIteratorOfADestroyedList, Intended_OnlyEverySecondOneIsDetached)
{
    EXPECT_EQ(GetAttachedAfterListDestruction(2), "detached - [-] -, attached - [-] -");
    EXPECT_EQ(GetAttachedAfterListDestruction(3), "detached - [-] -, attached - [-] -, detached - [-] -");
    EXPECT_EQ(GetAttachedAfterListDestruction(6),
              "detached - [-] -, attached - [-] -, detached - [-] -, attached - [-] -, "
              "detached - [-] -, attached - [-] -");
}

// --- Movement ----------------------------------------------------------------------------------

TEST_F(SafeIterator, Increment_WalksToTheEndAndPastIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(3);
    EXPECT_EQ(&++kIterator, &kIterator);
    EXPECT_EQ(Describe(kIterator), "4 [5] -");
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "5 [-] -");
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "5 [-] -");
}

TEST_F(SafeIterator, Decrement_WalksToTheFrontAndBeforeIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(1);
    EXPECT_EQ(&--kIterator, &kIterator);
    EXPECT_EQ(Describe(kIterator), "- [1] 2");
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "- [-] 1");
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "- [-] 1");
}

TEST_F(SafeIterator, FromPastTheEnd_DecrementReturnsToTheLastNode)
{
    SafeIterator_t kIterator = m_kList.GetEndSafe();
    ++kIterator;
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "4 [5] -");
}

TEST_F(SafeIterator, FromBeforeTheFront_IncrementReturnsToTheFirstNode)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    --kIterator;
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "- [1] 2");
}

TEST_F(SafeIterator, NextAndPreviousValid_TellWhereMovementLeads)
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

TEST_F(SafeIterator, IsInsideList_OnANodeOrJustBeforeTheFront)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_TRUE(kIterator.IsInsideList());
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "- [-] 1");
    EXPECT_TRUE(kIterator.IsInsideList());
    kIterator = m_kList.GetEndSafe();
    EXPECT_TRUE(kIterator.IsInsideList());
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "5 [-] -");
    EXPECT_FALSE(kIterator.IsInsideList());
}

TEST_F(SafeIterator, IsInsideList_InTheGapOfARemovedMiddleNode_IsFalseAlthoughIncrementLeadsOn)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    EXPECT_EQ(Describe(kIterator), "2 [-] 4");
    EXPECT_FALSE(kIterator.IsInsideList());
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "2 [4] 5");
    EXPECT_TRUE(kIterator.IsInsideList());
}

TEST_F(SafeIterator, IsInsideList_OfTheRemovedFrontNode_IsTrue)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    m_kList.Remove(kIterator);
    EXPECT_EQ(Describe(kIterator), "- [-] 2");
    EXPECT_TRUE(kIterator.IsInsideList());
}

TEST_F(SafeIterator, IsInsideList_IsReachedThroughTheBase)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    --kIterator;
    const IntList_t::Iterator& kBase = kIterator;
    EXPECT_TRUE(kBase.IsInsideList());
    EXPECT_FALSE(kBase.IsValid());
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST_F(SafeIterator, VirtualOperations_AreThoseOfTheBase)
{
    EXPECT_EQ(GetVirtualSlot(&SafeIterator_t::IsInsideList), 2);
    EXPECT_EQ(GetVirtualSlot(&SafeIterator_t::IsNextValid), -1);
}
#endif

// --- Removal -----------------------------------------------------------------------------------

TEST_F(SafeIterator, RemovedUnderIt_IncrementLandsOnTheOldSuccessor)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    EXPECT_TRUE(m_kList.Remove(3));
    EXPECT_EQ(Describe(kIterator), "2 [-] 4");
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "2 [4] 5");
}

TEST_F(SafeIterator, RemovedUnderIt_DecrementLandsOnTheOldPredecessor)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(3);
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "1 [2] 4");
}

TEST_F(SafeIterator, SuccessorRemoved_IncrementSkipsToTheNodeAfterIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(4);
    EXPECT_EQ(Describe(kIterator), "2 [3] 5");
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "3 [5] -");
}

TEST_F(SafeIterator, PredecessorRemoved_DecrementSkipsToTheNodeBeforeIt)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(2);
    EXPECT_EQ(Describe(kIterator), "1 [3] 4");
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "- [1] 3");
}

TEST_F(SafeIterator, InAGap_FollowsTheRemovalOfItsNeighbours)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(3);
    m_kList.Remove(4);
    EXPECT_EQ(Describe(kIterator), "2 [-] 5");
    m_kList.Remove(2);
    EXPECT_EQ(Describe(kIterator), "1 [-] 5");
    m_kList.Remove(5);
    EXPECT_EQ(Describe(kIterator), "1 [-] -");
    m_kList.Remove(1);
    EXPECT_EQ(Describe(kIterator), "- [-] -");
}

TEST_F(SafeIterator, RemovalElsewhere_LeavesItAlone)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(1);
    m_kList.Remove(5);
    EXPECT_EQ(Describe(kIterator), "2 [3] 4");
}

TEST_F(SafeIterator, RemoveFrontAndRemoveEnd_NotifyToo)
{
    const SafeIterator_t kFront = m_kList.GetBeginSafe();
    const SafeIterator_t kSecond = m_kList.GetAtSafe(1);
    const SafeIterator_t kFourth = m_kList.GetAtSafe(3);
    const SafeIterator_t kLast = m_kList.GetEndSafe();
    int iTaken = 0;
    m_kList.RemoveFront(iTaken);
    m_kList.RemoveEnd(iTaken);
    EXPECT_EQ(Describe(kFront), "- [-] 2");
    EXPECT_EQ(Describe(kSecond), "- [2] 3");
    EXPECT_EQ(Describe(kFourth), "3 [4] -");
    EXPECT_EQ(Describe(kLast), "4 [-] -");
}

TEST_F(SafeIterator, EveryIteratorIsNotified)
{
    const SafeIterator_t kFirst = m_kList.GetAtSafe(2);
    const SafeIterator_t kSecond = m_kList.GetAtSafe(2);
    const SafeIterator_t kThird = m_kList.GetAtSafe(2);
    m_kList.Remove(3);
    EXPECT_EQ(Describe(kFirst), "2 [-] 4");
    EXPECT_EQ(Describe(kSecond), "2 [-] 4");
    EXPECT_EQ(Describe(kThird), "2 [-] 4");
}

TEST_F(SafeIterator, ForwardLoop_MayRemoveEveryElementThatItStandsOn)
{
    std::string kVisited;
    for (SafeIterator_t kIterator = m_kList.GetBeginSafe(); kIterator.IsValid() || kIterator.IsNextValid();
         ++kIterator)
    {
        kVisited += std::to_string(*kIterator);
        m_kList.Remove(kIterator);
    }
    EXPECT_EQ(kVisited, "12345");
    EXPECT_EQ(Describe(m_kList), "empty");
}

TEST_F(SafeIterator, BackwardLoop_MayRemoveEveryElementThatItStandsOn)
{
    std::string kVisited;
    for (SafeIterator_t kIterator = m_kList.GetEndSafe(); kIterator.IsValid() || kIterator.IsPreviousValid();
         --kIterator)
    {
        kVisited += std::to_string(*kIterator);
        m_kList.Remove(kIterator);
    }
    EXPECT_EQ(kVisited, "54321");
    EXPECT_EQ(Describe(m_kList), "empty");
}

TEST_F(SafeIterator, ForwardLoop_SurvivesAnotherThatRemovesAhead)
{
    std::string kVisited;
    for (SafeIterator_t kIterator = m_kList.GetBeginSafe(); kIterator.IsValid(); ++kIterator)
    {
        kVisited += std::to_string(*kIterator);
        SafeIterator_t kAhead = kIterator;
        ++kAhead;
        m_kList.Remove(kAhead);
    }
    EXPECT_EQ(kVisited, "135");
    EXPECT_EQ(Describe(m_kList), "1 3 5");
}

TEST_F(SafeIterator, RemoveAll_TakesEveryIteratorOffTheListAndKeepsThemRegistered)
{
    SafeIterator_t kOnANode = m_kList.GetAtSafe(2);
    SafeIterator_t kInAGap = m_kList.GetAtSafe(3);
    m_kList.Remove(kInAGap);
    m_kList.RemoveAll();
    EXPECT_EQ(Describe(kOnANode), "- [-] -");
    EXPECT_EQ(Describe(kInAGap), "- [-] -");
    EXPECT_EQ(CGUITestAccess::GetList(kOnANode), &m_kList);
    EXPECT_EQ(GetRegister(), (Register_t{&kOnANode, &kInAGap}));
}

// --- Insertion ---------------------------------------------------------------------------------

TEST_F(SafeIterator, InsertedBeforeIt_DecrementLandsOnTheNewNode)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.AddBefore(9, kIterator);
    EXPECT_EQ(Describe(m_kList), "1 2 9 3 4 5");
    EXPECT_EQ(Describe(kIterator), "9 [3] 4");
    --kIterator;
    EXPECT_EQ(Describe(kIterator), "2 [9] 3");
}

TEST_F(SafeIterator, InsertedAfterIt_IncrementLandsOnTheNewNode)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.AddAfter(9, kIterator);
    EXPECT_EQ(Describe(m_kList), "1 2 3 9 4 5");
    EXPECT_EQ(Describe(kIterator), "2 [3] 9");
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "3 [9] 4");
}

TEST_F(SafeIterator, EveryInsertion_NotifiesTheNeighbours)
{
    const SafeIterator_t kFront = m_kList.GetBeginSafe();
    const SafeIterator_t kLast = m_kList.GetEndSafe();
    m_kList.Add(0);
    EXPECT_EQ(Describe(kFront), "0 [1] 2");
    m_kList.AddAtEnd(7);
    EXPECT_EQ(Describe(kLast), "4 [5] 7");
    m_kList.AddSorted(6);
    EXPECT_EQ(Describe(kLast), "4 [5] 6");
    m_kList.AddSorted(1);
    EXPECT_EQ(Describe(kFront), "1 [1] 2");
}

TEST_F(SafeIterator, InsertionElsewhere_LeavesItAlone)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Add(0);
    m_kList.AddAtEnd(6);
    EXPECT_EQ(Describe(kIterator), "2 [3] 4");
}

TEST_F(SafeIterator, Intended_PastTheEnd_AdoptsANodeAppendedAfterwards)
{
    SafeIterator_t kIterator = m_kList.GetEndSafe();
    ++kIterator;
    EXPECT_EQ(Describe(kIterator), "5 [-] -");
    m_kList.AddAtEnd(6);
    EXPECT_EQ(Describe(kIterator), "5 [6] -");
}

TEST_F(SafeIterator, Intended_BeforeTheFront_AdoptsANodeInsertedAtTheFront)
{
    SafeIterator_t kIterator = m_kList.GetBeginSafe();
    --kIterator;
    m_kList.Add(0);
    EXPECT_EQ(Describe(kIterator), "- [0] 1");
}

TEST_F(SafeIterator, Intended_InAGap_AdoptsANodeInsertedExactlyThere)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    m_kList.AddSorted(3);
    EXPECT_EQ(Describe(m_kList), "1 2 3 4 5");
    EXPECT_EQ(Describe(kIterator), "2 [3] 4");
}

TEST_F(SafeIterator, Intended_OnAnEmptyList_AdoptsTheFirstElement)
{
    IntList_t kEmpty;
    const SafeIterator_t kIterator = kEmpty.GetBeginSafe();
    kEmpty.Add(1);
    EXPECT_EQ(Describe(kIterator), "- [1] -");
}

TEST_F(SafeIterator, InAGap_DoesNotAdoptANodeInsertedElsewhere)
{
    SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    m_kList.Remove(kIterator);
    m_kList.Add(0);
    m_kList.AddAtEnd(6);
    IntList_t::Iterator kTwo = m_kList.GetFind(2);
    IntList_t::Iterator kFour = m_kList.GetFind(4);
    m_kList.AddBefore(7, kTwo);
    m_kList.AddAfter(8, kFour);
    EXPECT_EQ(Describe(m_kList), "0 1 7 2 4 8 5 6");
    EXPECT_EQ(Describe(kIterator), "2 [-] 4");
}

TEST_F(SafeIterator, PastTheEnd_DoesNotAdoptANodeInsertedBeforeTheLast)
{
    SafeIterator_t kIterator = m_kList.GetEndSafe();
    ++kIterator;
    IntList_t::Iterator kLast = m_kList.GetEnd();
    m_kList.AddBefore(9, kLast);
    EXPECT_EQ(Describe(kIterator), "5 [-] -");
}

TEST_F(SafeIterator, BeyondTheEnd_AdoptsNothingAtEitherEnd)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(5);
    m_kList.Add(0);
    EXPECT_EQ(Describe(kIterator), "- [-] -");
    m_kList.AddAtEnd(6);
    EXPECT_EQ(Describe(kIterator), "- [-] -");
}

TEST_F(SafeIterator, OnANode_AdoptsNothing)
{
    IntList_t kList;
    Fill(kList, {1});
    SafeIterator_t kIterator = kList.GetBeginSafe();
    ListNode<int> kBetweenTheSameNeighbours(2);
    CGUITestAccess::Validate(kIterator, &kBetweenTheSameNeighbours, ADDED);
    EXPECT_EQ(Describe(kIterator), "- [1] -");
}

// --- Order -------------------------------------------------------------------------------------

TEST_F(SafeIterator, ReverseOrder_ExchangesTheNeighboursAndKeepsTheNode)
{
    SafeIterator_t kOnANode = m_kList.GetAtSafe(1);
    SafeIterator_t kInAGap = m_kList.GetAtSafe(3);
    m_kList.Remove(kInAGap);
    m_kList.ReverseOrder();
    EXPECT_EQ(Describe(m_kList), "5 3 2 1");
    EXPECT_EQ(Describe(kOnANode), "3 [2] 1");
    EXPECT_EQ(Describe(kInAGap), "5 [-] 3");
    ++kOnANode;
    EXPECT_EQ(Describe(kOnANode), "2 [1] -");
}

TEST_F(SafeIterator, Sort_KeepsTheNodeAndLearnsItsNewNeighbours)
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
        EXPECT_EQ(Describe(kList), "1 2 3 4");
        EXPECT_EQ(Describe(kFour), "3 [4] -");
        EXPECT_EQ(Describe(kOne), "- [1] 2");
        EXPECT_EQ(Describe(kThree), "2 [3] 4");
        EXPECT_EQ(Describe(kPastTheEnd), "- [-] -");
    }
}

TEST_F(SafeIterator, Swap_LeavesItOnItsNodeWithTheOtherValue)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(1);
    IntList_t::Iterator kSecond = m_kList.GetAt(1);
    IntList_t::Iterator kFourth = m_kList.GetAt(3);
    m_kList.Swap(kSecond, kFourth);
    EXPECT_EQ(Describe(kIterator), "1 [4] 3");
}

// --- Notices -----------------------------------------------------------------------------------

TEST_F(SafeIterator, UnknownNotice_ChangesNothing)
{
    const SafeIterator_t kIterator = m_kList.GetAtSafe(2);
    CGUITestAccess::UpdateIterators(m_kList, CGUITestAccess::GetNode(kIterator), static_cast<Update_t>(4));
    CGUITestAccess::UpdateIterators(m_kList, CGUITestAccess::GetNode(kIterator), static_cast<Update_t>(255));
    EXPECT_EQ(Describe(kIterator), "2 [3] 4");
}

TEST_F(SafeIterator, Notices_ReachEveryRegisteredIteratorOfTheList)
{
    const SafeIterator_t kFirst = m_kList.GetAtSafe(1);
    const SafeIterator_t kSecond = m_kList.GetAtSafe(2);
    CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, REVERSE_ORDER);
    EXPECT_EQ(Describe(kFirst), "3 [2] 1");
    EXPECT_EQ(Describe(kSecond), "4 [3] 2");
    CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, KILL);
    EXPECT_EQ(Describe(kFirst), "- [-] -");
    EXPECT_EQ(Describe(kSecond), "- [-] -");
}

TEST_F(SafeIterator, RemovedNotice_MakesOnlyTheFirstRepairThatApplies)
{
    IntList_t kList;
    Fill(kList, {1});
    SafeIterator_t kIterator = kList.GetBeginSafe();
    ListNode<int>* pNode = CGUITestAccess::GetFront(kList);
    // For the length of one notice the node is its own successor: then the iterator takes it for its
    // predecessor too.
    pNode->m_pkNext = pNode;
    CGUITestAccess::Validate(kIterator, pNode, ADDED);
    pNode->m_pkNext = nullptr;
    EXPECT_EQ(Describe(kIterator), "1 [1] -");
    CGUITestAccess::Validate(kIterator, pNode, REMOVED);
    EXPECT_EQ(Describe(kIterator), "1 [-] -");
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
using SafeIteratorDeathTest = SafeIterator;

TEST_F(SafeIteratorDeathTest, ANullEntryInTheRegister_IsABrokenInvariant)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_ASSERTION(
        {
            CGUITestAccess::SetRegisterEntry<int>(m_kList, 0, nullptr);
            m_kList.Add(0);
        },
        "Include/Core/Utils/eC_TList_doubleLinked.h", "m_ppIterRegister[i] != NULL");
}

TEST_F(SafeIteratorDeathTest, ARemovedNodeThatIsTheMissingSuccessor_IsABrokenInvariant)
{
    const SafeIterator_t kIterator = m_kList.GetEndSafe();
    EXPECT_ASSERTION(CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, REMOVED),
                     "Include/Core/Utils/eC_TList_Iterators.h", "m_pSaveNextNode != NULL");
}

TEST_F(SafeIteratorDeathTest, ARemovedNodeThatIsTheMissingPredecessor_IsABrokenInvariant)
{
    const SafeIterator_t kIterator = m_kList.GetBeginSafe();
    EXPECT_ASSERTION(CGUITestAccess::UpdateIterators<int>(m_kList, nullptr, REMOVED),
                     "Include/Core/Utils/eC_TList_Iterators.h", "m_pSavePrevNode != NULL");
}
#endif
} // namespace
