// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <set>
#include <string>

// The states in which operations leave the manager when memory runs out, for each allocation that may fail.

namespace
{
using M = CGUIDialogManager;

class CMemoryShortageTest : public CGUITest
{
protected:
    CMemoryShortageTest()
    {
        // A recording sink would need memory too.
        CGUITrace::GetInstance().SetSink(nullptr);
    }

    ~CMemoryShortageTest() override { CGUITrace::GetInstance().SetSink(&TraceRecorder()); }

    /** Makes one allocation after the other fail, each time in a new situation, until none does.
     *  @param kPrepare creates the situation
     *  @param kOperate the operation that runs out of memory
     *  @param kDescribe describes the result
     *  @return the results after failures
     */
    std::set<std::string> FailEverywhere(const std::function<void(M&)>& kPrepare,
                                         const std::function<void(M&)>& kOperate,
                                         const std::function<std::string(M&)>& kDescribe)
    {
        std::set<std::string> kStates;
        eC_Bool bHasFailed = true;
        for (std::size_t uiGranted = 0; bHasFailed; ++uiGranted)
        {
            const std::unique_ptr<M> pkManager(new M);
            kPrepare(*pkManager);
            // Releases spare memory, which would be used instead of the heap.
            GetHeapUse();
            bHasFailed = FailOnce(uiGranted, *pkManager, kOperate);
            if (bHasFailed)
            {
                kStates.insert(kDescribe(*pkManager));
            }
            while (Root().GetFirstChild() != nullptr)
            {
                delete Root().GetFirstChild();
            }
        }
        return kStates;
    }

    /** Expects only documented states. Which of them occur depends on what memory an operation released
     *  itself and finds spare.
     */
    static void ExpectAmong(const std::set<std::string>& kDocumented, const std::set<std::string>& kStates)
    {
        for (const std::string& kState : kStates)
        {
            EXPECT_EQ(1U, kDocumented.count(kState)) << kState;
        }
    }

private:
    static eC_Bool FailOnce(std::size_t uiGranted, M& kManager, const std::function<void(M&)>& kOperate)
    {
        const CAllocationFailure kFailure(uiGranted, CAllocationFailure::ONE);
        try
        {
            kOperate(kManager);
        }
        catch (const std::bad_alloc&)
        {
            return true;
        }
        return kFailure.GetRefused() > 0;
    }
};

TEST_F(CMemoryShortageTest, CreateDialog_LeavesTheOldDialogCurrentOrNoneOrTheNewOne)
{
    const auto kPrepare = [this](M& kManager)
    {
        Attach("DLG_B { OBJ_2 focusable }");
        Attach("DLG_A { OBJ_1 focusable }");
        Attach("POP_1");
        kManager.CreateDialog(DLG_B, M::ODA_NOTHING);
        kManager.CreateDialog(DLG_A, M::ODA_INVISIBLE);
        Object(OBJ_2)->SetFocusable(false);
        kManager.RegisterPopupDefinition(POP_1, M::PRIO_LOW, 0, false, "");
        kManager.ShowPopup(POP_1);
    };
    const auto kDescribe = [this](M& kManager)
    {
        std::string kText = NameOfHandle(kManager.GetCurrentDialogID());
        kText += ", history " + std::to_string(kManager.GetHistoryStackSize());
        kText += Object(DLG_A)->IsInvisible() ? ", A hidden" : ", A shown";
        kText += Object(DLG_B)->IsInvisible() ? ", B hidden" : ", B shown";
        // The operation can be called again.
        EXPECT_NE(nullptr, kManager.CreateDialog(DLG_B, M::ODA_INVISIBLE));
        EXPECT_EQ(DLG_B, kManager.GetCurrentDialogID());
        return kText;
    };

    const std::set<std::string> kStates = FailEverywhere(
        kPrepare, [](M& kManager) { kManager.CreateDialog(DLG_B, M::ODA_INVISIBLE); }, kDescribe);

    ExpectAmong({"DLG_A, history 1, A shown, B hidden", "DLG_A, history 1, A hidden, B hidden",
                 "NO_HANDLE, history 2, A hidden, B shown", "DLG_B, history 2, A hidden, B shown"},
                kStates);
    EXPECT_EQ(1U, kStates.count("DLG_A, history 1, A shown, B hidden"));
}

TEST_F(CMemoryShortageTest, Back_TakesNothingOffTheHistoryUnlessTheDialogComesBack)
{
    const auto kPrepare = [this](M& kManager)
    {
        Attach("DLG_A { OBJ_1 focusable }");
        Attach("DLG_B { OBJ_2 focusable }");
        kManager.CreateDialog(DLG_A, M::ODA_NOTHING);
        kManager.CreateDialog(DLG_B, M::ODA_INVISIBLE);
    };
    const auto kDescribe = [](M& kManager)
    {
        return NameOfHandle(kManager.GetCurrentDialogID()) + ", history " +
               std::to_string(kManager.GetHistoryStackSize());
    };

    const std::set<std::string> kStates = FailEverywhere(
        kPrepare, [](M& kManager) { kManager.Back(false); }, kDescribe);

    ExpectAmong({"DLG_B, history 1", "DLG_A, history 0"}, kStates);
    EXPECT_EQ(1U, kStates.count("DLG_B, history 1"));
}

TEST_F(CMemoryShortageTest, ShowPopup_LeavesThePopupListedOrAsItWasOrHidden)
{
    const auto kPrepare = [this](M& kManager)
    {
        Attach("POP_1");
        kManager.RegisterPopupDefinition(POP_1, M::PRIO_LOW, 500, false, "");
    };
    const auto kDescribe = [this](M& kManager)
    {
        std::string kText = kManager.IsPopupInPopupList(POP_1) ? "listed" : "not listed";
        kText += Object(POP_1)->IsInvisible() ? ", hidden" : ", visible";
        EXPECT_EQ(Object(POP_1), kManager.ShowPopup(POP_1));
        EXPECT_TRUE(kManager.ClosePopup(POP_1));
        return kText;
    };

    const std::set<std::string> kStates = FailEverywhere(
        kPrepare, [](M& kManager) { kManager.ShowPopup(POP_1); }, kDescribe);

    ExpectAmong({"not listed, visible", "not listed, hidden", "listed, hidden", "listed, visible"}, kStates);
    EXPECT_EQ(1U, kStates.count("not listed, visible"));
}

TEST_F(CMemoryShortageTest, ClosePopup_DoesNothingOrCloses)
{
    const auto kPrepare = [this](M& kManager)
    {
        Attach("POP_1");
        Attach("POP_2");
        kManager.RegisterPopupDefinition(POP_1, M::PRIO_LOW, 500, false, "");
        kManager.RegisterPopupDefinition(POP_2, M::PRIO_MEDIUM, 0, true, "");
        kManager.ShowPopup(POP_1);
        kManager.ShowPopup(POP_2);
    };
    const auto kDescribe = [this](M& kManager)
    {
        std::string kText = kManager.IsPopupDisplayed(POP_2) ? "displayed" : "not displayed";
        kText += kManager.IsPopupInPopupList(POP_2) ? ", listed" : ", not listed";
        kText += Object(POP_2) != nullptr ? ", alive" : ", deleted";
        return kText;
    };

    const std::set<std::string> kStates = FailEverywhere(
        kPrepare, [](M& kManager) { kManager.ClosePopup(POP_2); }, kDescribe);

    ExpectAmong({"displayed, listed, alive", "not displayed, not listed, deleted"}, kStates);
    EXPECT_EQ(1U, kStates.count("displayed, listed, alive"));
}

TEST_F(CMemoryShortageTest, UnregisterDefinitions_RemovesNothing)
{
    const auto kPrepare = [](M& kManager)
    {
        kManager.RegisterDialogDefinition("a", DLG_A);
        kManager.RegisterPopupDefinition(POP_1, M::PRIO_LOW, 0, false, "p");
    };
    const auto kOperate = [](M& kManager)
    {
        kManager.UnregisterDialogDefinition(DLG_A);
        kManager.UnregisterPopupDefinition(POP_1);
    };
    const auto kDescribe = [](M& kManager)
    {
        return std::string(kManager.GetRegisteredPath(DLG_A).GetText()) +
               kManager.GetRegisteredPath(POP_1).GetText();
    };

    EXPECT_EQ((std::set<std::string>{"ap", "p"}), FailEverywhere(kPrepare, kOperate, kDescribe));
}
} // namespace
