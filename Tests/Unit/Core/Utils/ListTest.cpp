// SPDX-License-Identifier: MIT
#include "Core/Utils/eC_TList_doubleLinked.h"

#include "Core/Utils/eC_String.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Core/Utils/ListChecks.h"
#include "Tests/Unit/VirtualSlot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <new>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

namespace
{
using IntList_t = eC_TListDoubleLinked<int>;

/** An element that equals others with the same key; the tag distinguishes them. */
struct TaggedKey_t
{
    int m_iKey = 0;
    char m_cTag = '?';

    bool operator==(const TaggedKey_t& kOther) const { return m_iKey == kOther.m_iKey; }
    bool operator>(const TaggedKey_t& kOther) const { return m_iKey > kOther.m_iKey; }
};

void PrintTo(const TaggedKey_t& kValue, std::ostream* pStream)
{
    *pStream << kValue.m_iKey << kValue.m_cTag;
}

using TaggedList_t = eC_TListDoubleLinked<TaggedKey_t>;

/** An element with only what the list requires of all elements, and what finding and sorting need. */
class CAssignable
{
public:
    CAssignable() = default;
    explicit CAssignable(int iValue) : m_iValue(iValue) {}
    CAssignable(const CAssignable&) = delete;
    CAssignable& operator=(const CAssignable&) = default;
    bool operator==(const CAssignable& kOther) const { return m_iValue == kOther.m_iValue; }
    bool operator>(const CAssignable& kOther) const { return m_iValue > kOther.m_iValue; }

    int m_iValue = 0;
};

void PrintTo(const CAssignable& kValue, std::ostream* pStream)
{
    *pStream << kValue.m_iValue;
}

/** An element that can be ordered but not compared for equality. */
struct OrderOnly_t
{
    bool operator>(const OrderOnly_t& kOther) const { return m_iValue > kOther.m_iValue; }

    int m_iValue = 0;
};

void PrintTo(const OrderOnly_t& kValue, std::ostream* pStream)
{
    *pStream << kValue.m_iValue;
}

/** An element that counts how it got its value. */
struct Counting_t
{
    Counting_t() { ++ms_iDefaultConstructions; }
    Counting_t(const Counting_t&) { ++ms_iCopyConstructions; }
    Counting_t& operator=(const Counting_t&)
    {
        ++ms_iAssignments;
        return *this;
    }

    static inline int ms_iDefaultConstructions = 0;
    static inline int ms_iCopyConstructions = 0;
    static inline int ms_iAssignments = 0;
};

/** An element that calls back when it is destroyed inside a list. */
struct Mortal_t
{
    Mortal_t() = default;
    Mortal_t(int iValue, const std::function<void(int)>* pkOnDestruction)
        : m_iValue(iValue), m_pkOnDestruction(pkOnDestruction)
    {
    }
    Mortal_t(const Mortal_t&) = delete;
    Mortal_t& operator=(const Mortal_t&) = default;
    ~Mortal_t()
    {
        if (m_pkOnDestruction != nullptr && *m_pkOnDestruction)
        {
            (*m_pkOnDestruction)(m_iValue);
        }
    }

    int m_iValue = 0;
    const std::function<void(int)>* m_pkOnDestruction = nullptr;
};

void PrintTo(const Mortal_t& kValue, std::ostream* pStream)
{
    *pStream << kValue.m_iValue;
}

/** An element whose assignment fails for one value, as if an allocation in it had failed. */
struct Failing_t
{
    Failing_t() = default;
    explicit Failing_t(int iValue) : m_iValue(iValue) {}
    Failing_t(const Failing_t&) = default;
    Failing_t& operator=(const Failing_t& kOther)
    {
        if (kOther.m_iValue == ms_iFailsOn)
        {
            throw std::string("no memory");
        }
        m_iValue = kOther.m_iValue;
        return *this;
    }

    int m_iValue = 0;
    static inline int ms_iFailsOn = 0;
};

/** One of those, counted. */
struct CountedFailing_t : public Failing_t
{
    CountedFailing_t() { ++ms_iAlive; }
    explicit CountedFailing_t(int iValue) : Failing_t(iValue) { ++ms_iAlive; }
    CountedFailing_t(const CountedFailing_t& kOther) : Failing_t(kOther) { ++ms_iAlive; }
    CountedFailing_t& operator=(const CountedFailing_t& kOther) = default;
    ~CountedFailing_t() { --ms_iAlive; }

    static inline int ms_iAlive = 0;
};

void PrintTo(const Failing_t& kValue, std::ostream* pStream)
{
    *pStream << kValue.m_iValue;
}

// --- Data --------------------------------------------------------------------------------------

TEST(CUpdateNoticeTest, Values_AreZeroToThreeInOneByte)
{
    EXPECT_EQ(0, static_cast<int>(REMOVED));
    EXPECT_EQ(1, static_cast<int>(ADDED));
    EXPECT_EQ(2, static_cast<int>(KILL));
    EXPECT_EQ(3, static_cast<int>(REVERSE_ORDER));
    EXPECT_EQ(1U, sizeof(Update_t));
}

TEST(CListNodeTest, NewNode_IsUnlinkedAndHoldsTheValue)
{
    const ListNode<int> kNode(7);
    EXPECT_EQ(nullptr, kNode.m_pkNext);
    EXPECT_EQ(nullptr, kNode.m_pkPrevious);
    EXPECT_EQ(7, kNode.m_tValue);
}

TEST(CListNodeTest, NewNode_DefaultConstructsItsValueAndThenAssignsIt)
{
    const Counting_t kValue;
    Counting_t::ms_iDefaultConstructions = 0;
    Counting_t::ms_iCopyConstructions = 0;
    Counting_t::ms_iAssignments = 0;
    const ListNode<Counting_t> kNode(kValue);
    EXPECT_EQ(1, Counting_t::ms_iDefaultConstructions);
    EXPECT_EQ(0, Counting_t::ms_iCopyConstructions);
    EXPECT_EQ(1, Counting_t::ms_iAssignments);
}

TEST(CListNodeTest, Members_AreLaidOutAsNextPreviousValue)
{
    const ListNode<int> kNode(7);
    const std::vector<const void*> kAddresses = {&kNode.m_pkNext, &kNode.m_pkPrevious, &kNode.m_tValue};
    EXPECT_TRUE(std::is_sorted(kAddresses.begin(), kAddresses.end(), std::less<const void*>()));
}

TEST(CListTest, NestedTypes_AreTheTemplatesOfTheSameElement)
{
    EXPECT_TRUE((std::is_same_v<IntList_t::Node, ListNode<int>>));
    EXPECT_TRUE((std::is_same_v<IntList_t::Iterator, eC_TIterator<int>>));
    EXPECT_TRUE((std::is_same_v<IntList_t::SafeIterator, eC_TSafeIterator<int>>));
}

TEST(CListTest, DefaultConstruction_ZeroesAllMembersAndAllocatesNoRegister)
{
    const IntList_t kList;
    EXPECT_EQ(nullptr, CGUITestAccess::GetFront(kList));
    EXPECT_EQ(nullptr, CGUITestAccess::GetLast(kList));
    EXPECT_EQ(nullptr, CGUITestAccess::GetCursor(kList));
    EXPECT_EQ(0U, kList.GetQuantity());
    EXPECT_FALSE(CGUITestAccess::HasRegister(kList));
    EXPECT_EQ(0U, CGUITestAccess::GetRegister(kList).size());
    EXPECT_EQ(0U, CGUITestAccess::GetRegisterSize(kList));
}

TEST(CListTest, Members_AreLaidOutInTheOrderOfTheirDeclaration)
{
    const IntList_t kList;
    const std::vector<const void*> kAddresses = CGUITestAccess::GetMemberAddresses(kList);
    EXPECT_EQ(7U, kAddresses.size());
    EXPECT_EQ(kAddresses.front(), static_cast<const void*>(&kList));
    EXPECT_TRUE(std::is_sorted(kAddresses.begin(), kAddresses.end(), std::less<const void*>()));
}

TEST(CListTest, Elements_NeedNoMoreThanDefaultConstructionAndAssignment)
{
    eC_TListDoubleLinked<CAssignable> kList;
    for (const int iValue : {2, 3, 1, 3})
    {
        kList.AddAtEnd(CAssignable(iValue));
    }
    kList.Sort(true);
    EXPECT_EQ("1 2 3 3", Describe(kList));
    auto kFirst = kList.GetBegin();
    auto kLast = kList.GetEnd();
    kList.Swap(kFirst, kLast);
    EXPECT_EQ("3 2 3 1", Describe(kList));
    kList.RemoveAll(CAssignable(3));
    EXPECT_EQ("2 1", Describe(kList));
    const eC_TListDoubleLinked<CAssignable> kCopy(kList);
    EXPECT_EQ("2 1", Describe(kCopy));
}

// --- Quantity ----------------------------------------------------------------------------------

TEST(CListTest, QuantityAndEmptiness_FollowInsertionsAndRemovals)
{
    IntList_t kList;
    EXPECT_EQ(0U, kList.GetQuantity());
    EXPECT_TRUE(kList.IsEmpty());
    EXPECT_TRUE(kList.Empty());
    kList.Add(4);
    kList.Add(4);
    EXPECT_EQ(2U, kList.GetQuantity());
    EXPECT_FALSE(kList.IsEmpty());
    EXPECT_FALSE(kList.Empty());
    kList.Remove(4);
    EXPECT_EQ(1U, kList.GetQuantity());
    EXPECT_FALSE(kList.IsEmpty());
    kList.Remove(4);
    EXPECT_EQ(0U, kList.GetQuantity());
    EXPECT_TRUE(kList.IsEmpty());
    EXPECT_TRUE(kList.Empty());
}

// --- Insertion ---------------------------------------------------------------------------------

TEST(CListTest, Add_InsertsAtTheFront)
{
    IntList_t kList;
    kList.Add(1);
    EXPECT_EQ("1", Describe(kList));
    kList.Add(2);
    EXPECT_EQ("2 1", Describe(kList));
    kList.Add(3);
    EXPECT_EQ("3 2 1", Describe(kList));
}

TEST(CListTest, AddAtEnd_InsertsAtTheEnd)
{
    IntList_t kList;
    kList.AddAtEnd(1);
    EXPECT_EQ("1", Describe(kList));
    kList.AddAtEnd(2);
    EXPECT_EQ("1 2", Describe(kList));
    kList.AddAtEnd(3);
    EXPECT_EQ("1 2 3", Describe(kList));
}

TEST(CListTest, Insertion_CopiesTheValue)
{
    IntList_t kList;
    int iValue = 1;
    kList.Add(iValue);
    iValue = 9;
    EXPECT_EQ("1", Describe(kList));
}

TEST(CListTest, AddBefore_InsertsBeforeTheIteratorsNode)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    IntList_t::Iterator kIterator = kList.GetAt(1);
    kList.AddBefore(8, kIterator);
    EXPECT_EQ("1 8 2 3", Describe(kList));
    EXPECT_EQ("[2]", Describe(kIterator));
}

TEST(CListTest, AddBefore_TheFirstNode_MakesANewFront)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t::Iterator kIterator = kList.GetBegin();
    kList.AddBefore(8, kIterator);
    EXPECT_EQ("8 1 2", Describe(kList));
}

TEST(CListTest, AddBefore_WithAnIteratorOnNoNode_InsertsAtTheFront)
{
    IntList_t kList;
    IntList_t::Iterator kNowhere;
    kList.AddBefore(1, kNowhere);
    EXPECT_EQ("1", Describe(kList));
    kList.AddBefore(2, kNowhere);
    EXPECT_EQ("2 1", Describe(kList));
}

TEST(CListTest, AddAfter_InsertsAfterTheIteratorsNode)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    IntList_t::Iterator kIterator = kList.GetAt(1);
    kList.AddAfter(8, kIterator);
    EXPECT_EQ("1 2 8 3", Describe(kList));
    EXPECT_EQ("[2]", Describe(kIterator));
}

TEST(CListTest, AddAfter_TheLastNode_MakesANewLast)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t::Iterator kIterator = kList.GetEnd();
    kList.AddAfter(8, kIterator);
    EXPECT_EQ("1 2 8", Describe(kList));
}

TEST(CListTest, AddAfter_WithAnIteratorOnNoNode_InsertsAtTheEnd)
{
    IntList_t kList;
    IntList_t::Iterator kNowhere;
    kList.AddAfter(1, kNowhere);
    EXPECT_EQ("1", Describe(kList));
    kList.AddAfter(2, kNowhere);
    EXPECT_EQ("1 2", Describe(kList));
}

TEST(CListTest, AddSorted_IntoAnEmptyList_InsertsTheOnlyElement)
{
    IntList_t kList;
    kList.AddSorted(5);
    EXPECT_EQ("5", Describe(kList));
}

TEST(CListTest, AddSorted_KeepsAscendingOrder)
{
    IntList_t kList;
    Fill(kList, {2, 4, 6});
    kList.AddSorted(5);
    EXPECT_EQ("2 4 5 6", Describe(kList));
    kList.AddSorted(1);
    EXPECT_EQ("1 2 4 5 6", Describe(kList));
    kList.AddSorted(3);
    EXPECT_EQ("1 2 3 4 5 6", Describe(kList));
}

TEST(CListTest, AddSorted_AValueGreaterThanEveryElement_GoesLast)
{
    IntList_t kList;
    Fill(kList, {2, 4});
    kList.AddSorted(7);
    EXPECT_EQ("2 4 7", Describe(kList));
}

TEST(CListTest, AddSorted_AnEqualValue_GoesInFrontOfTheEqualOnes)
{
    TaggedList_t kList;
    Fill<TaggedKey_t>(kList, {{1, 'a'}, {2, 'a'}, {2, 'b'}, {3, 'a'}});
    kList.AddSorted({2, 'n'});
    EXPECT_EQ("1a 2n 2a 2b 3a", Describe(kList));
    kList.AddSorted({1, 'n'});
    EXPECT_EQ("1n 1a 2n 2a 2b 3a", Describe(kList));
    kList.AddSorted({3, 'n'});
    EXPECT_EQ("1n 1a 2n 2a 2b 3n 3a", Describe(kList));
}

TEST(CListTest, AddSorted_UsesOnlyGreaterThan)
{
    eC_TListDoubleLinked<OrderOnly_t> kList;
    for (const int iValue : {3, 1, 2, 2, 4})
    {
        kList.AddSorted(OrderOnly_t{iValue});
    }
    EXPECT_EQ("1 2 2 3 4", Describe(kList));
}

TEST(CListTest, AddUnique_InsertsANewValueAtTheFrontAndLeavesOutAnEqualOne)
{
    TaggedList_t kList;
    EXPECT_TRUE(kList.AddUnique({1, 'a'}));
    EXPECT_TRUE(kList.AddUnique({2, 'a'}));
    EXPECT_EQ("2a 1a", Describe(kList));
    EXPECT_FALSE(kList.AddUnique({1, 'b'}));
    EXPECT_FALSE(kList.AddUnique({2, 'b'}));
    EXPECT_EQ("2a 1a", Describe(kList));
}

TEST(CListTest, AddUniqueAtEnd_InsertsANewValueAtTheEndAndLeavesOutAnEqualOne)
{
    TaggedList_t kList;
    EXPECT_TRUE(kList.AddUniqueAtEnd({1, 'a'}));
    EXPECT_TRUE(kList.AddUniqueAtEnd({2, 'a'}));
    EXPECT_EQ("1a 2a", Describe(kList));
    EXPECT_FALSE(kList.AddUniqueAtEnd({1, 'b'}));
    EXPECT_FALSE(kList.AddUniqueAtEnd({2, 'b'}));
    EXPECT_EQ("1a 2a", Describe(kList));
}

TEST(CListTest, AddUniqueSorted_InsertsANewValueInOrderAndLeavesOutAnEqualOne)
{
    TaggedList_t kList;
    EXPECT_TRUE(kList.AddUniqueSorted({3, 'a'}));
    EXPECT_TRUE(kList.AddUniqueSorted({1, 'a'}));
    EXPECT_TRUE(kList.AddUniqueSorted({2, 'a'}));
    EXPECT_EQ("1a 2a 3a", Describe(kList));
    EXPECT_FALSE(kList.AddUniqueSorted({2, 'b'}));
    EXPECT_EQ("1a 2a 3a", Describe(kList));
}

TEST(CListTest, Insertion_ThatFailsToCopyTheValue_ChangesNothing)
{
    eC_TListDoubleLinked<Failing_t> kList;
    kList.AddAtEnd(Failing_t(1));
    Failing_t::ms_iFailsOn = 2;
    EXPECT_THROW(kList.Add(Failing_t(2)), std::string);
    EXPECT_THROW(kList.AddAtEnd(Failing_t(2)), std::string);
    EXPECT_EQ("1", Describe(kList));
}

// --- Removal -----------------------------------------------------------------------------------

TEST(CListTest, Remove_ByIterator_TakesOutFrontMiddleLastAndOnlyElement)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3, 4});
    auto kFront = kList.GetBeginSafe();
    EXPECT_TRUE(kList.Remove(kFront));
    EXPECT_EQ("2 3 4", Describe(kList));
    auto kMiddle = kList.GetAtSafe(1);
    EXPECT_TRUE(kList.Remove(kMiddle));
    EXPECT_EQ("2 4", Describe(kList));
    auto kLast = kList.GetEndSafe();
    EXPECT_TRUE(kList.Remove(kLast));
    EXPECT_EQ("2", Describe(kList));
    auto kOnly = kList.GetBeginSafe();
    EXPECT_TRUE(kList.Remove(kOnly));
    EXPECT_EQ("empty", Describe(kList));
}

TEST(CListTest, Remove_ByIterator_LeavesTheIteratorOnNoNode)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    auto kIterator = kList.GetAtSafe(1);
    EXPECT_TRUE(kList.Remove(kIterator));
    EXPECT_FALSE(kIterator.IsValid());
}

TEST(CListTest, Remove_ByIteratorOnNoNode_ReturnsFalseAndChangesNothing)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    auto kIterator = kList.GetEndSafe();
    ++kIterator;
    EXPECT_FALSE(kList.Remove(kIterator));
    EXPECT_EQ("1 2", Describe(kList));
    EXPECT_EQ("2 [-] -", Describe(kIterator));
}

TEST(CListTest, Remove_ByIteratorOfAnotherList_LeavesThatIteratorOnNoNode)
{
    IntList_t kEmpty;
    IntList_t kList;
    Fill(kList, {1});
    auto kIterator = kList.GetBeginSafe();
    EXPECT_FALSE(kEmpty.Remove(kIterator));
    EXPECT_FALSE(kIterator.IsValid());
    EXPECT_EQ("1", Describe(kList));
}

TEST(CListTest, Remove_ByValue_TakesOutOnlyTheEqualOneNearestTheFront)
{
    TaggedList_t kList;
    Fill<TaggedKey_t>(kList, {{1, 'a'}, {2, 'a'}, {2, 'b'}, {1, 'b'}});
    EXPECT_TRUE(kList.Remove({2, '?'}));
    EXPECT_EQ("1a 2b 1b", Describe(kList));
    EXPECT_TRUE(kList.Remove({1, '?'}));
    EXPECT_EQ("2b 1b", Describe(kList));
    EXPECT_TRUE(kList.Remove({1, '?'}));
    EXPECT_EQ("2b", Describe(kList));
}

TEST(CListTest, Remove_ByValueThatIsAbsent_ReturnsFalseAndChangesNothing)
{
    IntList_t kList;
    EXPECT_FALSE(kList.Remove(1));
    Fill(kList, {1, 2});
    EXPECT_FALSE(kList.Remove(3));
    EXPECT_EQ("1 2", Describe(kList));
}

TEST(CListTest, RemoveLast_RemovesTheEqualValueNearestTheEnd)
{
    IntList_t kList;
    for (const int iValue : {7, 8, 7, 9})
    {
        kList.AddAtEnd(iValue);
    }
    const IntList_t::SafeIterator kIterator = kList.GetAtSafe(2);

    EXPECT_TRUE(kList.RemoveLast(7));
    EXPECT_EQ("7 8 9", Describe(kList));
    EXPECT_FALSE(kIterator.IsValid());
    EXPECT_TRUE(kList.RemoveLast(9));
    EXPECT_EQ("7 8", Describe(kList));
    EXPECT_FALSE(kList.RemoveLast(9));
    EXPECT_EQ("7 8", Describe(kList));
    EXPECT_FALSE(IntList_t().RemoveLast(7));
}

TEST(CListTest, Remove_ByNode_TakesOutTheNode)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    EXPECT_TRUE(CGUITestAccess::Remove(kList, CGUITestAccess::GetNext(*CGUITestAccess::GetFront(kList))));
    EXPECT_EQ("1 3", Describe(kList));
}

TEST(CListTest, Remove_OfANullNodeOrOnAnEmptyList_ReturnsFalseAndNotifiesNobody)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    auto kIterator = kList.GetBeginSafe();
    // This iterator has no previous node, so an update about a null node would fail an assertion.
    EXPECT_FALSE(CGUITestAccess::Remove<int>(kList, nullptr));
    EXPECT_EQ("1 2", Describe(kList));
    EXPECT_EQ("- [1] 2", Describe(kIterator));

    IntList_t kEmpty;
    ListNode<int>* pForeign = CGUITestAccess::GetFront(kList);
    kIterator = kEmpty.GetBeginSafe();
    EXPECT_FALSE(CGUITestAccess::Remove(kEmpty, pForeign));
    EXPECT_EQ("empty", Describe(kEmpty));
    EXPECT_EQ("1 2", Describe(kList));
    EXPECT_EQ("- [-] -", Describe(kIterator));
}

TEST(CListTest, Remove_DestroysTheElementAfterItWasUnlinkedCountedOffAndNotified)
{
    std::function<void(int)> kOnDestruction;
    eC_TListDoubleLinked<Mortal_t> kList;
    kList.AddAtEnd(Mortal_t(1, &kOnDestruction));
    kList.AddAtEnd(Mortal_t(2, &kOnDestruction));
    kList.AddAtEnd(Mortal_t(3, &kOnDestruction));
    auto kStandsThere = kList.GetAtSafe(1);
    auto kBefore = kList.GetBeginSafe();
    std::vector<std::string> kSeen;
    kOnDestruction = [&](int iValue)
    {
        kSeen.push_back(std::to_string(iValue) + " gone, list: " + Describe(kList) +
                        ", iterators: " + Describe(kStandsThere) + ", " + Describe(kBefore));
    };
    auto kIterator = kList.GetAtSafe(1);
    EXPECT_TRUE(kList.Remove(kIterator));
    kOnDestruction = nullptr;
    EXPECT_EQ(kSeen, (std::vector<std::string>{"2 gone, list: 1 3, iterators: 1 [-] 3, - [1] 3"}));
}

TEST(CListTest, RemoveFront_CopiesOutUnlinksNotifiesAndThenDestroys)
{
    std::function<void(int)> kOnDestruction;
    Mortal_t kTaken;
    eC_TListDoubleLinked<Mortal_t> kList;
    kList.AddAtEnd(Mortal_t(1, &kOnDestruction));
    kList.AddAtEnd(Mortal_t(2, &kOnDestruction));
    auto kIterator = kList.GetBeginSafe();
    std::vector<std::string> kSeen;
    kOnDestruction = [&](int iValue)
    {
        kSeen.push_back(std::to_string(iValue) + " gone, taken: " + std::to_string(kTaken.m_iValue) +
                        ", list: " + Describe(kList) + ", iterator: " + Describe(kIterator));
    };
    EXPECT_TRUE(kList.RemoveFront(kTaken));
    kOnDestruction = nullptr;
    EXPECT_EQ(kSeen, (std::vector<std::string>{"1 gone, taken: 1, list: 2, iterator: - [-] 2"}));
}

TEST(CListTest, RemoveFront_TakesTheElementsFromTheFront)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    int iTaken = 0;
    EXPECT_TRUE(kList.RemoveFront(iTaken));
    EXPECT_EQ(1, iTaken);
    EXPECT_EQ("2", Describe(kList));
    EXPECT_TRUE(kList.RemoveFront(iTaken));
    EXPECT_EQ(2, iTaken);
    EXPECT_EQ("empty", Describe(kList));
}

TEST(CListTest, RemoveFront_OnAnEmptyList_ReturnsFalseAndLeavesItsArgument)
{
    IntList_t kList;
    int iTaken = 77;
    EXPECT_FALSE(kList.RemoveFront(iTaken));
    EXPECT_EQ(77, iTaken);
}

TEST(CListTest, RemoveEnd_TakesTheElementsFromTheEnd)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    int iTaken = 0;
    EXPECT_TRUE(kList.RemoveEnd(iTaken));
    EXPECT_EQ(2, iTaken);
    EXPECT_EQ("1", Describe(kList));
    EXPECT_TRUE(kList.RemoveEnd(iTaken));
    EXPECT_EQ(1, iTaken);
    EXPECT_EQ("empty", Describe(kList));
}

TEST(CListTest, RemoveEnd_OnAnEmptyList_ReturnsFalseAndLeavesItsArgument)
{
    IntList_t kList;
    int iTaken = 77;
    EXPECT_FALSE(kList.RemoveEnd(iTaken));
    EXPECT_EQ(77, iTaken);
}

TEST(CListTest, RemoveAll_EmptiesTheListWhichCanBeFilledAgain)
{
    IntList_t kList;
    kList.RemoveAll();
    EXPECT_EQ("empty", Describe(kList));
    Fill(kList, {1, 2, 3});
    kList.RemoveAll();
    EXPECT_EQ("empty", Describe(kList));
    kList.AddAtEnd(4);
    EXPECT_EQ("4", Describe(kList));
}

TEST(CListTest, RemoveAll_DestroysFromTheFrontToTheEndBeforeItNotifies)
{
    std::function<void(int)> kOnDestruction;
    eC_TListDoubleLinked<Mortal_t> kList;
    kList.AddAtEnd(Mortal_t(1, &kOnDestruction));
    kList.AddAtEnd(Mortal_t(2, &kOnDestruction));
    kList.AddAtEnd(Mortal_t(3, &kOnDestruction));
    const auto kIterator = kList.GetBeginSafe();
    std::vector<std::string> kSeen;
    kOnDestruction = [&](int iValue)
    { kSeen.push_back(std::to_string(iValue) + (kIterator.IsValid() ? " before KILL" : " after KILL")); };
    kList.RemoveAll();
    kOnDestruction = nullptr;
    EXPECT_EQ(kSeen, (std::vector<std::string>{"1 before KILL", "2 before KILL", "3 before KILL"}));
    EXPECT_FALSE(kIterator.IsValid());
}

TEST(CListTest, RemoveAll_LeavesTheCursorOfGetNextAsItIs)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    int iValue = 0;
    kList.GetFirst(iValue);
    const ListNode<int>* pCursor = CGUITestAccess::GetCursor(kList);
    kList.RemoveAll();
    EXPECT_NE(nullptr, pCursor);
    EXPECT_EQ(CGUITestAccess::GetCursor(kList), pCursor);
}

TEST(CListTest, Destruction_DestroysAllElementsFromTheFrontToTheEnd)
{
    std::vector<int> kSeen;
    std::function<void(int)> kOnDestruction;
    {
        eC_TListDoubleLinked<Mortal_t> kList;
        kList.AddAtEnd(Mortal_t(1, &kOnDestruction));
        kList.AddAtEnd(Mortal_t(2, &kOnDestruction));
        kOnDestruction = [&kSeen](int iValue) { kSeen.push_back(iValue); };
    }
    EXPECT_EQ(kSeen, (std::vector<int>{1, 2}));
}

TEST(CListTest, RemoveAll_OfAValue_TakesOutEveryEqualOne)
{
    TaggedList_t kList;
    Fill<TaggedKey_t>(kList, {{2, 'a'}, {1, 'a'}, {2, 'b'}, {2, 'c'}, {3, 'a'}, {2, 'd'}});
    EXPECT_TRUE(kList.RemoveAll({2, '?'}));
    EXPECT_EQ("1a 3a", Describe(kList));
    EXPECT_EQ(0U, CGUITestAccess::GetRegister(kList).size());
    EXPECT_FALSE(kList.RemoveAll({2, '?'}));
    EXPECT_EQ("1a 3a", Describe(kList));
}

TEST(CListTest, RemoveAll_OfAnElementOfItsOwn_TakesOutEveryEqualOne)
{
    IntList_t kList;
    Fill(kList, {1, 2, 1, 1});
    EXPECT_TRUE(kList.RemoveAll(*kList.GetBegin()));
    EXPECT_EQ("2", Describe(kList));
}

TEST(CListTest, RemoveAll_OfAValue_SendsOneRemovedNoticeForEach)
{
    IntList_t kList;
    Fill(kList, {1, 2, 1, 3});
    const auto kIterator = kList.GetAtSafe(1);
    EXPECT_TRUE(kList.RemoveAll(1));
    EXPECT_EQ("- [2] 3", Describe(kIterator));
}

// --- Looking up --------------------------------------------------------------------------------

TEST(CListTest, Contains_FindsEqualValuesAtEveryPlace)
{
    IntList_t kList;
    EXPECT_FALSE(kList.Contains(1));
    Fill(kList, {1, 2, 3});
    EXPECT_TRUE(kList.Contains(1));
    EXPECT_TRUE(kList.Contains(2));
    EXPECT_TRUE(kList.Contains(3));
    EXPECT_FALSE(kList.Contains(4));
}

TEST(CListTest, GetBeginAndGetEnd_StandOnTheFirstAndTheLastNode)
{
    IntList_t kList;
    EXPECT_EQ("[-]", Describe(kList.GetBegin()));
    EXPECT_EQ("[-]", Describe(kList.GetEnd()));
    Fill(kList, {1, 2, 3});
    EXPECT_EQ("[1]", Describe(kList.GetBegin()));
    EXPECT_EQ("[3]", Describe(kList.GetEnd()));
}

TEST(CListTest, GetAt_CountsFromTheFrontAndStandsOnNoNodeBeyondTheEnd)
{
    IntList_t kList;
    EXPECT_EQ("[-]", Describe(kList.GetAt(0)));
    Fill(kList, {1, 2, 3});
    EXPECT_EQ("[1]", Describe(kList.GetAt(0)));
    EXPECT_EQ("[2]", Describe(kList.GetAt(1)));
    EXPECT_EQ("[3]", Describe(kList.GetAt(2)));
    EXPECT_EQ("[-]", Describe(kList.GetAt(3)));
    EXPECT_EQ("[-]", Describe(kList.GetAt(0xFFFFFFFFU)));
}

TEST(CListTest, GetFind_StandsOnTheFirstEqualOneOrOnNoNode)
{
    TaggedList_t kList;
    EXPECT_EQ("[-]", Describe(kList.GetFind({1, '?'})));
    Fill<TaggedKey_t>(kList, {{1, 'a'}, {2, 'a'}, {2, 'b'}});
    EXPECT_EQ("[1a]", Describe(kList.GetFind({1, '?'})));
    EXPECT_EQ("[2a]", Describe(kList.GetFind({2, '?'})));
    EXPECT_EQ("[-]", Describe(kList.GetFind({3, '?'})));
}

TEST(CListTest, GetFirstAndGetNext_WalkFromTheFrontToTheEnd)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    int iValue = 0;
    EXPECT_TRUE(kList.GetFirst(iValue));
    EXPECT_EQ(1, iValue);
    EXPECT_TRUE(kList.GetNext(iValue));
    EXPECT_EQ(2, iValue);
    EXPECT_TRUE(kList.GetNext(iValue));
    EXPECT_EQ(3, iValue);
    EXPECT_FALSE(kList.GetNext(iValue));
    EXPECT_FALSE(kList.GetNext(iValue));
    EXPECT_EQ(3, iValue);
    EXPECT_TRUE(kList.GetFirst(iValue));
    EXPECT_EQ(1, iValue);
}

TEST(CListTest, GetFirstAndGetNext_OnAnEmptyListOrWithoutGetFirst_ReturnFalseAndLeaveTheirArgument)
{
    IntList_t kList;
    int iValue = 77;
    EXPECT_FALSE(kList.GetFirst(iValue));
    EXPECT_FALSE(kList.GetNext(iValue));
    EXPECT_EQ(77, iValue);
    kList.Add(1);
    EXPECT_FALSE(kList.GetNext(iValue));
    EXPECT_EQ(77, iValue);
}

TEST(CListTest, OnlyGetFirstAndGetNext_MoveTheCursor)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    int iValue = 0;
    kList.GetFirst(iValue);
    kList.Add(0);
    kList.AddAtEnd(4);
    kList.Remove(2);
    kList.GetAt(2);
    kList.GetFind(3);
    EXPECT_EQ("1", Describe(CGUITestAccess::GetCursor(kList)));
    EXPECT_TRUE(kList.GetNext(iValue));
    EXPECT_EQ(3, iValue);
}

// --- Order -------------------------------------------------------------------------------------

TEST(CListTest, Swap_ExchangesTheValuesUnderTwoIterators)
{
    IntList_t kList;
    Fill(kList, {1, 2, 3});
    IntList_t::Iterator kFirst = kList.GetAt(0);
    IntList_t::Iterator kSecond = kList.GetAt(2);
    EXPECT_TRUE(kList.Swap(kFirst, kSecond));
    EXPECT_EQ("3 2 1", Describe(kList));
    EXPECT_EQ("[3]", Describe(kFirst));
    EXPECT_EQ("[1]", Describe(kSecond));
    EXPECT_TRUE(kList.Swap(kFirst, kFirst));
    EXPECT_EQ("3 2 1", Describe(kList));
}

TEST(CListTest, Swap_WithAnIteratorOnNoNode_ReturnsFalseAndChangesNothing)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t::Iterator kFirst = kList.GetBegin();
    IntList_t::Iterator kNowhere;
    EXPECT_FALSE(kList.Swap(kFirst, kNowhere));
    EXPECT_FALSE(kList.Swap(kNowhere, kFirst));
    EXPECT_FALSE(kList.Swap(kNowhere, kNowhere));
    EXPECT_EQ("1 2", Describe(kList));
}

TEST(CListTest, Swap_ThatFailsToCopyTheFirstValue_ChangesNothing)
{
    eC_TListDoubleLinked<Failing_t> kList;
    Failing_t::ms_iFailsOn = 0;
    Fill(kList, {Failing_t(1), Failing_t(2), Failing_t(3)});
    const auto kIterator = kList.GetAtSafe(1);
    auto kFirst = kList.GetAt(0);
    auto kSecond = kList.GetAt(2);
    Failing_t::ms_iFailsOn = 1;
    EXPECT_THROW(kList.Swap(kFirst, kSecond), std::string);
    EXPECT_EQ("1 2 3", Describe(kList));
    EXPECT_EQ("1 [2] 3", Describe(kIterator));
}

TEST(CListTest, Swap_ThatFailsToCopyTheSecondValue_ChangesNothing)
{
    eC_TListDoubleLinked<Failing_t> kList;
    Failing_t::ms_iFailsOn = 0;
    Fill(kList, {Failing_t(1), Failing_t(2), Failing_t(3)});
    const auto kIterator = kList.GetAtSafe(1);
    auto kFirst = kList.GetAt(0);
    auto kSecond = kList.GetAt(2);
    Failing_t::ms_iFailsOn = 3;
    EXPECT_THROW(kList.Swap(kFirst, kSecond), std::string);
    EXPECT_EQ("1 2 3", Describe(kList));
    EXPECT_EQ("1 [2] 3", Describe(kIterator));
}

TEST(CListTest, Swap_WithoutMemoryForTheThirdAssignment_LeavesTheSecondValueInBothPlaces)
{
    eC_TListDoubleLinked<eC_String> kList;
    kList.AddAtEnd(eC_String("the first text, too long for no array"));
    kList.AddAtEnd(eC_String("the second text, too long for no array"));
    auto kFirst = kList.GetAt(0);
    auto kSecond = kList.GetAt(1);
    for (const std::size_t uiGranted : {0u, 1u})
    {
        {
            const CAllocationFailure kFailure(uiGranted);
            EXPECT_THROW(kList.Swap(kFirst, kSecond), std::bad_alloc);
        }
        EXPECT_STREQ("the first text, too long for no array", (*kFirst).GetText());
        EXPECT_STREQ("the second text, too long for no array", (*kSecond).GetText());
    }
    {
        const CAllocationFailure kFailure(2);
        EXPECT_THROW(kList.Swap(kFirst, kSecond), std::bad_alloc);
    }
    EXPECT_EQ(2u, kList.GetQuantity());
    EXPECT_STREQ("the second text, too long for no array", (*kFirst).GetText());
    EXPECT_STREQ("the second text, too long for no array", (*kSecond).GetText());
}

TEST(CListTest, ReverseOrder_TurnsTheListAround)
{
    IntList_t kList;
    kList.ReverseOrder();
    EXPECT_EQ("empty", Describe(kList));
    kList.AddAtEnd(1);
    kList.ReverseOrder();
    EXPECT_EQ("1", Describe(kList));
    Fill(kList, {2, 3});
    kList.ReverseOrder();
    EXPECT_EQ("3 2 1", Describe(kList));
}

TEST(CListTest, Sort_BothWays_GivesAscendingOrder)
{
    for (const bool bStable : {false, true})
    {
        IntList_t kList;
        kList.Sort(bStable);
        EXPECT_EQ("empty", Describe(kList));
        Fill(kList, {5});
        kList.Sort(bStable);
        EXPECT_EQ("5", Describe(kList));
        Fill(kList, {3, 9, 1, 5, 7, 2, 8});
        kList.Sort(bStable);
        EXPECT_EQ("1 2 3 5 5 7 8 9", Describe(kList));
        kList.ReverseOrder();
        kList.Sort(bStable);
        EXPECT_EQ("1 2 3 5 5 7 8 9", Describe(kList));
    }
}

TEST(CListTest, Sort_OfTwoElements_GivesAscendingOrder)
{
    for (const bool bStable : {false, true})
    {
        IntList_t kList;
        Fill(kList, {2, 1});
        kList.Sort(bStable);
        EXPECT_EQ("1 2", Describe(kList));
    }
}

TEST(CListTest, Sort_Unstable_AllocatesNothingButTheArrayOfNodes)
{
    IntList_t kList;
    Fill(kList, {3, 9, 1, 5, 7, 2, 8});
    const CAllocationCounter kCounter;
    kList.Sort(false);
    EXPECT_EQ(1U, kCounter.GetNumber());
    EXPECT_EQ(7 * sizeof(void*), kCounter.GetBytes());
}

TEST(CListTest, Sort_Stable_KeepsTheOrderOfEqualElements)
{
    // Long enough that an unstable sort would change the order.
    TaggedList_t kList;
    std::string kExpected;
    for (int iKey = 0; iKey < 3; ++iKey)
    {
        for (char cTag = 'a'; cTag <= 'z'; ++cTag)
        {
            kExpected += (kExpected.empty() ? "" : " ") + std::to_string(iKey) + cTag;
        }
    }
    for (char cTag = 'a'; cTag <= 'z'; ++cTag)
    {
        Fill<TaggedKey_t>(kList, {{2, cTag}, {0, cTag}, {1, cTag}});
    }
    kList.Sort(true);
    EXPECT_EQ(Describe(kList), kExpected);
}

TEST(CListTest, Sort_MovesNodesAndNotValues)
{
    for (const bool bStable : {false, true})
    {
        IntList_t kList;
        Fill(kList, {3, 1, 2});
        const IntList_t::Iterator kIterator = kList.GetBegin();
        kList.Sort(bStable);
        EXPECT_EQ("1 2 3", Describe(kList));
        EXPECT_EQ("[3]", Describe(kIterator));
    }
}

/** A list that gives access to its functions for sorting an array of nodes. */
class CSortingList : public IntList_t
{
public:
    using IntList_t::SortArraysUsingMergeSort;
    using IntList_t::SortArraysUsingQuickSort;
};

/** @return the values of an array of nodes */
std::vector<int> GetValues(const std::vector<ListNode<int>*>& kNodes)
{
    std::vector<int> kValues;
    for (const ListNode<int>* pNode : kNodes)
    {
        kValues.push_back(pNode->m_tValue);
    }
    return kValues;
}

TEST(CListTest, SortArraysUsingQuickSort_SortsWhatStandsBetweenTwoPositions)
{
    ListNode<int> akNodes[] = {ListNode<int>(5), ListNode<int>(4), ListNode<int>(3), ListNode<int>(2),
                               ListNode<int>(1)};
    std::vector<ListNode<int>*> kNodes = {&akNodes[0], &akNodes[1], &akNodes[2], &akNodes[3], &akNodes[4]};
    CSortingList::SortArraysUsingQuickSort(kNodes.data(), 1, 3);
    EXPECT_EQ(GetValues(kNodes), (std::vector<int>{5, 2, 3, 4, 1}));
    CSortingList::SortArraysUsingQuickSort(kNodes.data(), 0, 1);
    EXPECT_EQ(GetValues(kNodes), (std::vector<int>{2, 5, 3, 4, 1}));
}

TEST(CListTest, SortArraysUsingQuickSort_UnlessTheLastPositionIsGreater_ChangesNothing)
{
    ListNode<int> akNodes[] = {ListNode<int>(3), ListNode<int>(2), ListNode<int>(1)};
    std::vector<ListNode<int>*> kNodes = {&akNodes[0], &akNodes[1], &akNodes[2]};
    CSortingList::SortArraysUsingQuickSort(kNodes.data(), 1, 1);
    CSortingList::SortArraysUsingQuickSort(kNodes.data(), 2, 0);
    EXPECT_EQ(GetValues(kNodes), (std::vector<int>{3, 2, 1}));
}

TEST(CListTest, SortArraysUsingMergeSort_SortsTheFirstEntries)
{
    ListNode<int> akNodes[] = {ListNode<int>(3), ListNode<int>(2), ListNode<int>(1)};
    std::vector<ListNode<int>*> kNodes = {&akNodes[0], &akNodes[1], &akNodes[2]};
    CSortingList::SortArraysUsingMergeSort(kNodes.data(), 2);
    EXPECT_EQ(GetValues(kNodes), (std::vector<int>{2, 3, 1}));
}

TEST(CListTest, AnIteratorThatLeavesAFullRegister_LeavesTheOthersInTheirOrder)
{
    IntList_t kList;
    IntList_t::SafeIterator akIterators[5];
    for (IntList_t::SafeIterator& kIterator : akIterators)
    {
        CGUITestAccess::SetList(kIterator, &kList);
    }
    EXPECT_EQ(5U, CGUITestAccess::GetRegisterSize(kList));

    CGUITestAccess::SetList(akIterators[1], static_cast<IntList_t*>(nullptr));

    const auto kEntries = CGUITestAccess::GetRegister(kList);
    const std::vector<const IntList_t::SafeIterator*> kActual(kEntries.begin(), kEntries.end());
    EXPECT_EQ(kActual, (std::vector<const IntList_t::SafeIterator*>{&akIterators[0], &akIterators[2],
                                                                    &akIterators[3], &akIterators[4]}));
}

// --- Copying -----------------------------------------------------------------------------------

TEST(CListTest, CopyConstruction_CopiesTheElementsAndLeavesTheIteratorsBehind)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    const auto kIterator = kList.GetBeginSafe();
    IntList_t kCopy(kList);
    EXPECT_EQ("1 2", Describe(kCopy));
    EXPECT_FALSE(CGUITestAccess::HasRegister(kCopy));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kList);
    kCopy.AddAtEnd(3);
    EXPECT_EQ("1 2", Describe(kList));
    EXPECT_EQ("1 2 3", Describe(kCopy));
}

TEST(CListTest, Assignment_ReplacesTheElements)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t kTarget;
    Fill(kTarget, {7, 8, 9});
    EXPECT_EQ(&(kTarget = kList), &kTarget);
    EXPECT_EQ("1 2", Describe(kTarget));
    EXPECT_EQ("1 2", Describe(kList));
    kTarget = IntList_t();
    EXPECT_EQ("empty", Describe(kTarget));
}

TEST(CListTest, Assignment_KeepsTheRegisteredIteratorsOfBothLists)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t kTarget;
    Fill(kTarget, {7});
    const auto kSource = kList.GetEndSafe();
    const auto kIterator = kTarget.GetBeginSafe();
    kTarget = kList;
    EXPECT_EQ(CGUITestAccess::GetList(kSource), &kList);
    EXPECT_EQ("1 [2] -", Describe(kSource));
    EXPECT_EQ(CGUITestAccess::GetList(kIterator), &kTarget);
    // KILL takes the iterator off its node; then it moves to the first node that is appended.
    EXPECT_EQ("- [1] 2", Describe(kIterator));
    EXPECT_EQ("1 2", Describe(kTarget));
}

TEST(CListTest, Assignment_ToItself_ChangesNothing)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    const auto kIterator = kList.GetEndSafe();
    const IntList_t& kSame = kList;
    kList = kSame;
    EXPECT_EQ("1 2", Describe(kList));
    EXPECT_EQ("1 [2] -", Describe(kIterator));
}

TEST(CListTest, Assignment_ThatFailsToCopyAValue_ChangesNothing)
{
    eC_TListDoubleLinked<Failing_t> kList;
    Failing_t::ms_iFailsOn = 0;
    Fill(kList, {Failing_t(1), Failing_t(2)});
    eC_TListDoubleLinked<Failing_t> kTarget;
    Fill(kTarget, {Failing_t(7), Failing_t(8)});
    const auto kIterator = kTarget.GetBeginSafe();
    Failing_t::ms_iFailsOn = 2;
    EXPECT_THROW(kTarget = kList, std::string);
    EXPECT_EQ("7 8", Describe(kTarget));
    EXPECT_EQ("- [7] 8", Describe(kIterator));
}

TEST(CListTest, CopyConstruction_ThatFailsToCopyAValue_DestroysWhatWasCopied)
{
    using List_t = eC_TListDoubleLinked<CountedFailing_t>;
    List_t kList;
    CountedFailing_t::ms_iFailsOn = 0;
    Fill(kList, {CountedFailing_t(1), CountedFailing_t(2)});
    CountedFailing_t::ms_iFailsOn = 2;
    EXPECT_THROW(const List_t kCopy(kList), std::string);
    EXPECT_EQ(2, CountedFailing_t::ms_iAlive);
}

// --- Plain iterators ---------------------------------------------------------------------------

TEST(CListIteratorTest, DefaultConstruction_StandsOnNoNode)
{
    const IntList_t::Iterator kIterator;
    EXPECT_EQ("[-]", Describe(kIterator));
    EXPECT_FALSE(kIterator.IsValid());
    EXPECT_FALSE(kIterator.IsInsideList());
}

TEST(CListIteratorTest, ConstructionFromANode_StandsOnIt)
{
    ListNode<int> kNode(7);
    const IntList_t::Iterator kIterator(&kNode);
    EXPECT_EQ("[7]", Describe(kIterator));
    EXPECT_TRUE(kIterator.IsValid());
    EXPECT_TRUE(kIterator.IsInsideList());
}

TEST(CListIteratorTest, CopyAndAssignment_StandOnTheSameNode)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t::Iterator kIterator = kList.GetEnd();
    const IntList_t::Iterator kCopy(kIterator);
    IntList_t::Iterator kAssigned;
    kAssigned = kIterator;
    --kIterator;
    EXPECT_EQ("[1]", Describe(kIterator));
    EXPECT_EQ("[2]", Describe(kCopy));
    EXPECT_EQ("[2]", Describe(kAssigned));
}

TEST(CListIteratorTest, Comparison_IsThatOfTheNodes)
{
    IntList_t kList;
    Fill(kList, {1, 1});
    const IntList_t::Iterator kFirst = kList.GetBegin();
    const IntList_t::Iterator kSecond = kList.GetEnd();
    const IntList_t::Iterator kNowhere;
    EXPECT_TRUE(kFirst == kList.GetBegin());
    EXPECT_FALSE(kFirst != kList.GetBegin());
    EXPECT_FALSE(kFirst == kSecond);
    EXPECT_TRUE(kFirst != kSecond);
    EXPECT_TRUE(kNowhere == IntList_t::Iterator());
    EXPECT_FALSE(kNowhere == kFirst);
}

TEST(CListIteratorTest, ComparisonWithANode_TellsWhetherItStandsThere)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    const ListNode<int>* pFront = CGUITestAccess::GetFront(kList);
    const ListNode<int>* pNone = nullptr;
    EXPECT_TRUE(kList.GetBegin() == pFront);
    EXPECT_FALSE(kList.GetEnd() == pFront);
    EXPECT_FALSE(kList.GetBegin() == pNone);
    EXPECT_TRUE(IntList_t::Iterator() == pNone);
}

TEST(CListIteratorTest, Increment_MovesToTheNextNodePastTheEndAndStaysThere)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t::Iterator kIterator = kList.GetBegin();
    EXPECT_EQ(&++kIterator, &kIterator);
    EXPECT_EQ("[2]", Describe(kIterator));
    EXPECT_EQ("[2]", Describe(kIterator++));
    EXPECT_EQ("[-]", Describe(kIterator));
    EXPECT_EQ("[-]", Describe(++kIterator));
    EXPECT_EQ("[-]", Describe(kIterator++));
    EXPECT_EQ("[-]", Describe(kIterator));
    EXPECT_EQ("[-]", Describe(--kIterator));
}

TEST(CListIteratorTest, Decrement_MovesToThePreviousNodeBeforeTheFrontAndStaysThere)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    IntList_t::Iterator kIterator = kList.GetEnd();
    EXPECT_EQ(&--kIterator, &kIterator);
    EXPECT_EQ("[1]", Describe(kIterator));
    EXPECT_EQ("[1]", Describe(kIterator--));
    EXPECT_EQ("[-]", Describe(kIterator));
    EXPECT_EQ("[-]", Describe(--kIterator));
    EXPECT_EQ("[-]", Describe(kIterator--));
    EXPECT_EQ("[-]", Describe(kIterator));
    EXPECT_EQ("[-]", Describe(++kIterator));
}

TEST(CListIteratorTest, Dereference_GivesTheElementItself)
{
    IntList_t kList;
    Fill(kList, {1, 2});
    const IntList_t::Iterator kIterator = kList.GetEnd();
    EXPECT_EQ(2, *kIterator);
    *kIterator = 5;
    EXPECT_EQ("1 5", Describe(kList));
}

TEST(CListIteratorTest, Dereference_OnNoNode_ThrowsTheIntZero)
{
    IntList_t kList;
    EXPECT_EQ(0, GetThrownByDereferencing(IntList_t::Iterator()));
    EXPECT_EQ(0, GetThrownByDereferencing(kList.GetBegin()));
    kList.Add(1);
    EXPECT_EQ(-1, GetThrownByDereferencing(kList.GetBegin()));
    EXPECT_EQ(0, GetThrownByDereferencing(++kList.GetBegin()));
    EXPECT_EQ(0, GetThrownByDereferencing(--kList.GetBegin()));
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST(CListIteratorTest, VirtualOperations_AreTheDestructorAndIsInsideList)
{
    EXPECT_TRUE(std::has_virtual_destructor_v<IntList_t::Iterator>);
    EXPECT_EQ(2, GetVirtualSlot(&IntList_t::Iterator::IsInsideList));
    EXPECT_EQ(-1, GetVirtualSlot(&IntList_t::Iterator::IsValid));
}
#endif
} // namespace
