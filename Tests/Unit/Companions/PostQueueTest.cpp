// SPDX-License-Identifier: MIT
#include "Companions/GUIPostQueue.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <new>
#include <vector>

namespace
{
/** A queue of four places, and calls that record their values. */
class CPostQueueTest : public CCompanionTest
{
protected:
    using Numbers_t = std::vector<int>;

    static void Note(void* pTest, eC_Int iFirst, eC_Int iSecond)
    {
        static_cast<CPostQueueTest*>(pTest)->m_kNoted.push_back(iFirst);
        static_cast<CPostQueueTest*>(pTest)->m_kNoted.push_back(iSecond);
    }

    eC_Bool SendNote(eC_Int iFirst, eC_Int iSecond = 0)
    {
        return m_kQueue.Send(&Note, this, iFirst, iSecond);
    }

    /** @return what was recorded since the last call */
    Numbers_t TakeNoted()
    {
        Numbers_t kNoted;
        kNoted.swap(m_kNoted);
        return kNoted;
    }

    CGUIPostQueueOf<4> m_kQueue;
    Numbers_t m_kNoted;
};

TEST_F(CPostQueueTest, NothingSent_IsEmptyAndProcessRunsNothing)
{
    EXPECT_TRUE(m_kQueue.IsEmpty());
    EXPECT_EQ(0U, m_kQueue.Process(10));
    EXPECT_EQ(0U, m_kQueue.GetNOFRefused());
}

TEST_F(CPostQueueTest, Process_RunsCallsInOrderWithTheirValues)
{
    EXPECT_TRUE(SendNote(1, -1));
    EXPECT_TRUE(SendNote(2, -2));
    EXPECT_FALSE(m_kQueue.IsEmpty());
    EXPECT_EQ(Numbers_t{}, TakeNoted());

    EXPECT_EQ(2U, m_kQueue.Process(10));

    EXPECT_EQ((Numbers_t{1, -1, 2, -2}), TakeNoted());
    EXPECT_TRUE(m_kQueue.IsEmpty());
}

TEST_F(CPostQueueTest, Process_RunsNoMoreThanItsLimit)
{
    SendNote(1);
    SendNote(2);
    SendNote(3);

    EXPECT_EQ(2U, m_kQueue.Process(2));
    EXPECT_EQ((Numbers_t{1, 0, 2, 0}), TakeNoted());
    EXPECT_EQ(0U, m_kQueue.Process(0));
    EXPECT_EQ(1U, m_kQueue.Process(2));
    EXPECT_EQ((Numbers_t{3, 0}), TakeNoted());
}

TEST_F(CPostQueueTest, Send_AllPlacesTaken_IsRefusedAndCounted)
{
    for (eC_Int iCall = 0; iCall < 4; ++iCall)
    {
        EXPECT_TRUE(SendNote(iCall));
    }

    EXPECT_FALSE(SendNote(4));
    EXPECT_FALSE(SendNote(5));

    EXPECT_EQ(2U, m_kQueue.GetNOFRefused());
    EXPECT_EQ(1U, m_kQueue.Process(1));
    EXPECT_TRUE(SendNote(6));
    EXPECT_EQ(4U, m_kQueue.Process(10));
    EXPECT_EQ((Numbers_t{0, 0, 1, 0, 2, 0, 3, 0, 6, 0}), TakeNoted());
    EXPECT_EQ(2U, m_kQueue.GetNOFRefused());
}

TEST_F(CPostQueueTest, ManyRounds_AcrossTheWrapOfItsCounters_NothingIsLostOrDoubled)
{
    // The counters wrap around after two rounds of four.
    for (eC_Int iCall = 0; iCall < 1000; iCall += 3)
    {
        SendNote(iCall);
        SendNote(iCall + 1);
        SendNote(iCall + 2);
        EXPECT_EQ(3U, m_kQueue.Process(10));
        EXPECT_EQ((Numbers_t{iCall, 0, iCall + 1, 0, iCall + 2, 0}), TakeNoted());
    }
    EXPECT_EQ(0U, m_kQueue.GetNOFRefused());
}

TEST_F(CPostQueueTest, CountersWrapWhileFull_IsStillFull)
{
    for (eC_Int iCall = 0; iCall < 6; ++iCall)
    {
        SendNote(iCall);
        m_kQueue.Process(1);
    }
    for (eC_Int iCall = 0; iCall < 4; ++iCall)
    {
        EXPECT_TRUE(SendNote(iCall));
    }
    EXPECT_FALSE(SendNote(4));
    EXPECT_EQ(4U, m_kQueue.Process(10));
}

TEST_F(CPostQueueTest, TwoPlaces_AreBothUsed)
{
    CGUIPostQueueOf<2> kQueue;
    for (eC_Int iRound = 0; iRound < 10; ++iRound)
    {
        EXPECT_TRUE(kQueue.Send(&Note, this, 1));
        EXPECT_TRUE(kQueue.Send(&Note, this, 2));
        EXPECT_FALSE(kQueue.Send(&Note, this, 3));
        EXPECT_EQ(2U, kQueue.Process(10));
        EXPECT_EQ((Numbers_t{1, 0, 2, 0}), TakeNoted());
    }
}

TEST_F(CPostQueueTest, CallThrows_CountsAsRunAndTheRestRunsNextTime)
{
    m_kQueue.Send([](void*, eC_Int iFirst, eC_Int) { throw iFirst; }, nullptr, 7);
    SendNote(1);
    m_kQueue.Send([](void*, eC_Int, eC_Int) { throw std::bad_alloc(); }, nullptr);
    SendNote(2);

    EXPECT_THROW(m_kQueue.Process(10), int);
    EXPECT_EQ(Numbers_t{}, TakeNoted());
    EXPECT_THROW(m_kQueue.Process(10), std::bad_alloc);
    EXPECT_EQ((Numbers_t{1, 0}), TakeNoted());
    EXPECT_EQ(1U, m_kQueue.Process(10));
    EXPECT_EQ((Numbers_t{2, 0}), TakeNoted());
}

TEST_F(CPostQueueTest, CallThrowsWhileFull_ItsPlaceIsFree)
{
    m_kQueue.Send([](void*, eC_Int iFirst, eC_Int) { throw iFirst; }, nullptr, 7);
    SendNote(1);
    SendNote(2);
    SendNote(3);
    EXPECT_THROW(m_kQueue.Process(1), int);

    EXPECT_TRUE(SendNote(4));
    EXPECT_FALSE(SendNote(5));
}

/** Sends the next lower number, down to 0. */
void CountDown(void* pQueue, eC_Int iNumber, eC_Int)
{
    if (iNumber > 0)
    {
        static_cast<CGUIPostQueue*>(pQueue)->Send(&CountDown, pQueue, iNumber - 1);
    }
}

TEST_F(CPostQueueTest, CallSends_TheNewCallCountsAgainstTheLimit)
{
    m_kQueue.Send(&CountDown, &m_kQueue, 9);

    EXPECT_EQ(4U, m_kQueue.Process(4));
    EXPECT_EQ(6U, m_kQueue.Process(100));
}

TEST_F(CPostQueueTest, CallProcesses_TheInnerRunTakesTheRestAndNothingRunsTwice)
{
    m_kQueue.Send([](void* pQueue, eC_Int, eC_Int)
                  { EXPECT_EQ(2U, static_cast<CGUIPostQueue*>(pQueue)->Process(10)); },
                  &m_kQueue);
    SendNote(1);
    SendNote(2);

    EXPECT_EQ(1U, m_kQueue.Process(10));

    EXPECT_EQ((Numbers_t{1, 0, 2, 0}), TakeNoted());
}

TEST_F(CPostQueueTest, OperationsOfTheManager_RunInOrder)
{
    DefineEmptyDialogs(DLG_A, DLG_B);
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW);
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH);
    m_kQueue.SendCreateDialog(Manager(), DLG_A, ODA_NOTHING);
    m_kQueue.SendCreateDialog(Manager(), DLG_B, ODA_DELETE);
    m_kQueue.SendShowPopup(Manager(), POP_1);
    m_kQueue.SendShowPopup(Manager(), POP_2);
    EXPECT_STATE(R"(
        current: none
    )");

    EXPECT_EQ(4U, m_kQueue.Process(10));

    EXPECT_STATE(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        active: POP_1 prio 3, 0 ms, hide on close, hidden
        active: POP_2 prio 7, 0 ms, hide on close, shown
        tree:
          DLG_B
          POP_1 invisible
          POP_2
    )");

    m_kQueue.SendClosePopup(Manager(), POP_2);
    m_kQueue.SendClosePopup(Manager(), POP_1);
    m_kQueue.SendBack(Manager(), false);
    EXPECT_EQ(3U, m_kQueue.Process(10));
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_B invisible
          POP_2 invisible
          POP_1 invisible
          DLG_A
    )");
    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);
    m_kQueue.SendBack(Manager(), true);
    EXPECT_EQ(1U, m_kQueue.Process(10));
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

TEST_F(CPostQueueTest, SendingAndProcessing_AllocatesNothing)
{
    const CAllocationCounter kAllocations;
    CGUIPostQueueOf<8> kQueue;
    kQueue.Send(&CountDown, &kQueue, 20);
    EXPECT_EQ(21U, kQueue.Process(100));
    EXPECT_EQ(0U, kAllocations.GetNumber());
}
} // namespace
