// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogBudget.h"

#include "Companions/GUIDialogArguments.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>

namespace
{
/** Each dialog has 3 objects, of which one takes the focus; the limit is 6, two hidden dialogs. */
class CDialogBudgetTest : public CCompanionTest
{
protected:
    CDialogBudgetTest()
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 focusable }");
        DefineDialog(DLG_B, "DLG_B { OBJ_3 focusable; OBJ_4 focusable }");
        DefineDialog(DLG_C, "DLG_C { OBJ_5 focusable; OBJ_6 focusable }");
        DefineDialog(DLG_D, "DLG_D { OBJ_7 focusable; OBJ_8 focusable }");
        DefineDialog(DLG_E, "DLG_E { OBJ_9 focusable; OBJ_10 focusable }");
        Manager().AddListener(m_kListener);
        Go(DLG_A, ODA_NOTHING);
    }

    CGUIDialogBudget& Budget() { return *m_pkBudget; }

    /** Goes from DLG_A to DLG_D; each one on the way has the focus on its second object. */
    void GoToD()
    {
        SetFocus(OBJ_2);
        Go(DLG_B);
        SetFocus(OBJ_4);
        Go(DLG_C);
        SetFocus(OBJ_6);
        Go(DLG_D);
    }

    /** @return the dialogs that exist, the hidden ones in small letters */
    std::string Dialogs()
    {
        std::string kDialogs;
        for (const ObjectHandle_t eID : {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E})
        {
            const CGUIObject* const pkDialog = Object(eID);
            const char cLetter = NameOfHandle(eID).back();
            kDialogs += pkDialog == nullptr       ? ""
                        : pkDialog->IsInvisible() ? std::string(1, static_cast<char>(cLetter + 'a' - 'A'))
                                                  : std::string(1, cLetter);
        }
        return kDialogs;
    }

    std::unique_ptr<CGUIDialogBudget> m_pkBudget = std::make_unique<CGUIDialogBudget>(Manager(), 6U);
    CRecordingListener m_kListener{Events(), "Listener"};
};

// --- Deleting ----------------------------------------------------------------------------------------

TEST_F(CDialogBudgetTest, UnderTheLimit_NothingIsDeleted)
{
    Go(DLG_B);
    Go(DLG_C);

    EXPECT_EQ("abC", Dialogs());
    EXPECT_EQ(6U, Budget().GetUse());
}

TEST_F(CDialogBudgetTest, OverTheLimit_TheDialogCurrentLongestAgoIsDeletedAndTheHistoryStays)
{
    Go(DLG_B);
    Go(DLG_C);

    Manager().CreateDialog(DLG_D, ODA_INVISIBLE);

    EXPECT_HOOKS(R"(
        Listener OnDialogDeactivation(DLG_C)
        Listener OnDialogDeletion(DLG_A)
        Listener OnDialogAdded(DLG_D)
        Listener OnDialogActivation(DLG_D)
    )");
    EXPECT_EQ("bcD", Dialogs());
    EXPECT_STATE(R"(
        current: DLG_D after ODA_INVISIBLE
        history: DLG_C ODA_INVISIBLE focus OBJ_5 (after ODA_INVISIBLE)
        history: DLG_B ODA_INVISIBLE focus OBJ_3 (after ODA_INVISIBLE)
        history: DLG_A ODA_INVISIBLE focus OBJ_1 (after ODA_NOTHING)
        focus: OBJ_7
        tree:
          DLG_B invisible
            OBJ_3 focusable
            OBJ_4 focusable
          DLG_C invisible
            OBJ_5 focusable
            OBJ_6 focusable
          DLG_D
            OBJ_7 focussed
            OBJ_8 focusable
    )");
}

TEST_F(CDialogBudgetTest, Deletion_IsLogged)
{
    Go(DLG_B);
    Go(DLG_C);
    Manager().CreateDialog(DLG_D, ODA_INVISIBLE);

    const std::string kTrace = JoinLines(TakeTrace());
    EXPECT_NE(std::string::npos,
              kTrace.find("DEBUG: CGUIDialogBudget::Delete: Deleting dialog with ID 1, there is no room.\\n"))
        << kTrace;
}

TEST_F(CDialogBudgetTest, ShownAgainLater_CountsAsRecentlyUsed)
{
    Budget().SetLimit(9);
    Go(DLG_B);
    Go(DLG_C);
    // Found in the tree, so that the manager may not delete it any more.
    Go(DLG_A);
    Go(DLG_D);
    EXPECT_EQ("abcD", Dialogs());

    Go(DLG_E);

    EXPECT_EQ("acdE", Dialogs());
}

TEST_F(CDialogBudgetTest, VisibleAndCurrentDialogs_AreNotCounted)
{
    Go(DLG_B, ODA_NOTHING);
    Go(DLG_C);
    Go(DLG_D);
    EXPECT_EQ("AbcD", Dialogs());
    EXPECT_EQ(6U, Budget().GetUse());

    Go(DLG_B);

    EXPECT_EQ("ABcd", Dialogs());
    EXPECT_EQ(6U, Budget().GetUse());
}

TEST_F(CDialogBudgetTest, AddedByTheApplication_IsNotDeleted)
{
    Manager().AddDialog(Attach("DLG_F { OBJ_11; OBJ_12 }"), ODA_INVISIBLE, true);
    Go(DLG_B);
    Go(DLG_C);
    Go(DLG_D);

    EXPECT_EQ("cD", Dialogs());
    EXPECT_NE(nullptr, Object(DLG_F));
    EXPECT_EQ(6U, Budget().GetUse());
}

TEST_F(CDialogBudgetTest, Vetoed_TheNextOneGoes)
{
    m_kListener.m_eVetoes = DLG_A;
    Go(DLG_B);
    Go(DLG_C);
    Go(DLG_D);

    EXPECT_EQ("acD", Dialogs());
    EXPECT_EQ(6U, Budget().GetUse());
}

TEST_F(CDialogBudgetTest, OnlyThePredecessorIsOverTheLimit_ItStays)
{
    Budget().SetLimit(0);
    Go(DLG_B);
    EXPECT_EQ("aB", Dialogs());
    Go(DLG_C);
    EXPECT_EQ("bC", Dialogs());
    EXPECT_EQ(3U, Budget().GetUse());
}

TEST_F(CDialogBudgetTest, Measure_OfTheApplication_CountsInItsUnit)
{
    m_pkBudget = std::make_unique<CGUIDialogBudget>(
        Manager(), 250U, [](const CGUIObject& kDialog) { return kDialog.GetID() == DLG_A ? 200U : 50U; });
    Go(DLG_B);
    Go(DLG_C);
    EXPECT_EQ(250U, Budget().GetUse());

    Go(DLG_D);

    EXPECT_EQ("bcD", Dialogs());
    EXPECT_EQ(100U, Budget().GetUse());
}

// --- Building again ----------------------------------------------------------------------------------

TEST_F(CDialogBudgetTest, Back_EachDialogComesBackWithItsFocus)
{
    Budget().SetLimit(0);
    GoToD();
    EXPECT_EQ("cD", Dialogs());

    Manager().Back(true);
    EXPECT_EQ("bC", Dialogs());
    EXPECT_EQ(OBJ_6, Focus()->GetID());
    Manager().Back(true);
    EXPECT_EQ("aB", Dialogs());
    EXPECT_EQ(OBJ_4, Focus()->GetID());
    Manager().Back(true);
    EXPECT_EQ("A", Dialogs());
    EXPECT_EQ(OBJ_2, Focus()->GetID());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
}

TEST_F(CDialogBudgetTest, Back_TheHooksAreThoseOfADialogThatWasKept)
{
    Budget().SetLimit(0);
    GoToD();
    Manager().Back(true);
    ClearEvents();

    Manager().Back(true);

    EXPECT_HOOKS(R"(
        Listener OnDialogDeletion(DLG_C)
        Listener OnDialogActivation(DLG_B)
        Listener OnAfterDialogDeletion(DLG_C, DLG_B)
    )");
}

TEST_F(CDialogBudgetTest, BackToDialogDirectly_TheTargetIsBuiltAndTheOthersAreNot)
{
    Budget().SetLimit(0);
    GoToD();
    ClearEvents();

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, false));

    EXPECT_EQ("A", Dialogs());
    EXPECT_EQ(OBJ_2, Focus()->GetID());
    const std::string kTrace = JoinLines(TakeTrace());
    EXPECT_EQ(std::string::npos, kTrace.find("loading code:DLG_B")) << kTrace;
}

TEST_F(CDialogBudgetTest, BackToDialogStepwise_Arrives)
{
    Budget().SetLimit(0);
    GoToD();

    EXPECT_TRUE(Manager().BackToDialog(DLG_A, true, true));

    EXPECT_EQ("A", Dialogs());
    EXPECT_EQ(OBJ_2, Focus()->GetID());
}

TEST_F(CDialogBudgetTest, ClearDialogHistoryWithTheCurrentDialog_TheMostRecentOneKeptComesBack)
{
    Budget().SetLimit(0);
    GoToD();
    Go(DLG_E);

    Manager().ClearDialogHistory(1, true, true);

    EXPECT_EQ("A", Dialogs());
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
    EXPECT_EQ(OBJ_2, Focus()->GetID());
}

TEST_F(CDialogBudgetTest, ClearDialogHistory_ForEachNumberKept_TheDialogComesBack)
{
    Budget().SetLimit(0);
    const ObjectHandle_t aeKept[] = {DLG_A, DLG_B, DLG_C, DLG_D};
    for (eC_UInt uiKept = 1; uiKept <= 4; ++uiKept)
    {
        GoToD();
        Go(DLG_E);

        Manager().ClearDialogHistory(uiKept, true, true);

        EXPECT_EQ(aeKept[uiKept - 1], Manager().GetCurrentDialogID()) << uiKept;
        EXPECT_NE(nullptr, Manager().GetCurrentDialog()) << uiKept;
        if (uiKept > 1)
        {
            Manager().BackToDialog(DLG_A, true, false);
        }
        EXPECT_EQ("A", Dialogs()) << uiKept;
    }
}

TEST_F(CDialogBudgetTest, ClearDialogHistory_TargetIsInTheHistoryTwiceAndCurrent_TheDialogComesBack)
{
    Budget().SetLimit(0);
    for (const ObjectHandle_t eID : {DLG_B, DLG_C, DLG_D, DLG_B, DLG_D, DLG_B})
    {
        Go(eID);
    }
    // The history is A B C D B D. The target is at position 1 from the most recent one, B, which is at 4 too.
    Manager().ClearDialogHistory(2, true, true);

    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_NE(nullptr, Manager().GetCurrentDialog());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
    Manager().Back(false);
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

TEST_F(CDialogBudgetTest, SwitchForward_ToADialogThatWasDeleted_BuildsIt)
{
    Budget().SetLimit(0);
    GoToD();

    EXPECT_NE(nullptr, Manager().CreateDialog(DLG_A, ODA_INVISIBLE));

    EXPECT_EQ("Ad", Dialogs());
    EXPECT_EQ(OBJ_2, Focus()->GetID());
    Manager().Back(false);
    EXPECT_EQ("cD", Dialogs());
}

TEST_F(CDialogBudgetTest, BackAndForwardAgain_StaysUnderTheLimit)
{
    GoToD();
    for (int iTimes = 0; iTimes < 3; ++iTimes)
    {
        Manager().Back(true);
        Manager().Back(true);
        EXPECT_EQ("aB", Dialogs());
        Go(DLG_C);
        Go(DLG_D);
        EXPECT_EQ("bcD", Dialogs());
    }
}

TEST_F(CDialogBudgetTest, LeftWithDeletion_IsBuiltByTheManagerAsAlways)
{
    Go(DLG_B, ODA_DELETE);
    Go(DLG_C);
    EXPECT_EQ("bC", Dialogs());

    Manager().Back(true);
    EXPECT_EQ("B", Dialogs()) << "not built in advance";
    Manager().Back(true);
    EXPECT_EQ("A", Dialogs());
}

// --- When something fails, and inside hooks ----------------------------------------------------------

TEST_F(CDialogBudgetTest, BuildingFails_IsTriedAgainWhenTheDialogIsLeft)
{
    Budget().SetLimit(0);
    GoToD();
    CodeFactory().FailLoad(1, FAILURE_INT);
    ClearEvents();

    Manager().Back(true);

    EXPECT_EQ("C", Dialogs());
    const std::string kTrace = JoinLines(TakeTrace());
    EXPECT_NE(
        std::string::npos,
        kTrace.find("ERROR: CGUIDialogBudget::Build: Caught an exception while a dialog was built again.\\n"))
        << kTrace;
    Manager().Back(true);
    EXPECT_EQ("aB", Dialogs());
    EXPECT_EQ(OBJ_4, Focus()->GetID());
}

TEST_F(CDialogBudgetTest, CannotBeBuilt_BackFailsAsIfItHadBeenDestroyed)
{
    Budget().SetLimit(0);
    GoToD();
    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_B));

    Manager().Back(true);
    EXPECT_EQ("C", Dialogs());
    Manager().Back(true);

    EXPECT_EQ(NO_HANDLE, Manager().GetCurrentDialogID());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CDialogBudgetTest, VetoThrows_PassesAndTheSwitchIsDone)
{
    Budget().SetLimit(0);
    Go(DLG_B);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Manager().CreateDialog(DLG_C, ODA_INVISIBLE), int);
    EXPECT_EQ("abC", Dialogs());
    EXPECT_EQ(DLG_C, Manager().GetCurrentDialogID());

    Go(DLG_D);
    EXPECT_EQ("cD", Dialogs());
}

TEST_F(CDialogBudgetTest, InsideTheVeto_TheDialogIsDestroyed_IsNotDeletedAgain)
{
    Budget().SetLimit(0);
    Go(DLG_B);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject* pkDialog) { delete pkDialog; });

    Go(DLG_C);

    EXPECT_EQ("bC", Dialogs());
}

TEST_F(CDialogBudgetTest, InsideTheVeto_TheDialogIsShown_IsNotDeleted)
{
    Budget().SetLimit(0);
    Go(DLG_B);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [this](CGUIObject* pkDialog)
                        { Manager().CreateDialog(pkDialog->GetID(), ODA_INVISIBLE); });

    Go(DLG_C);

    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
    EXPECT_EQ("Ac", Dialogs());
}

TEST_F(CDialogBudgetTest, InsideTheVeto_TheHistoryIsCleared_NothingDangles)
{
    Budget().SetLimit(0);
    Go(DLG_B);
    Go(DLG_C);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION,
                        [this](CGUIObject*) { Manager().ClearDialogHistory(0, true, false); });

    Go(DLG_D);

    EXPECT_EQ("D", Dialogs());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
}

TEST_F(CDialogBudgetTest, InsideAHook_AnotherSwitch_BothAreInTheHistory)
{
    Budget().SetLimit(0);
    m_kListener.RunOnce(HOOK_ON_DIALOG_ACTIVATION,
                        [this](CGUIObject*) { Manager().CreateDialog(DLG_C, ODA_INVISIBLE); });

    Go(DLG_B);

    EXPECT_EQ("bC", Dialogs());
    Manager().Back(true);
    EXPECT_EQ("aB", Dialogs());
    Manager().Back(true);
    EXPECT_EQ("A", Dialogs());
}

TEST_F(CDialogBudgetTest, WithArguments_TheDialogThatIsBuiltAgainHasItsOwn)
{
    CGUIDialogArgumentsOf<8, sizeof(int)> kArguments(Manager());
    Budget().SetLimit(0);
    kArguments.CreateDialog(DLG_B, ODA_INVISIBLE, 2);
    kArguments.CreateDialog(DLG_C, ODA_INVISIBLE, 3);
    kArguments.CreateDialog(DLG_D, ODA_INVISIBLE, 4);
    EXPECT_EQ("cD", Dialogs());

    Manager().Back(true);
    EXPECT_EQ(3, *kArguments.GetArgument<int>());
    Manager().Back(true);
    EXPECT_EQ(2, *kArguments.GetArgument<int>());
}

TEST_F(CDialogBudgetTest, ManagerIsDestroyedFirst_NothingHappens)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    const CGUIDialogBudget kBudget(*pkManager, 1);

    pkManager.reset();

    EXPECT_EQ(0U, kBudget.GetUse());
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CDialogBudgetTest, SteadyState_SwitchingUnderTheLimit_AllocatesNothing)
{
    Go(DLG_B);
    Manager().RemoveListener(m_kListener);
    CGUITrace::GetInstance().SetSink(nullptr);
    const auto kSwitchAndBack = [this]
    {
        Manager().Back(false);
        Manager().CreateDialog(DLG_B, ODA_INVISIBLE);
    };
    kSwitchAndBack();

    const CAllocationCounter kAllocations;
    kSwitchAndBack();
    EXPECT_EQ(0U, kAllocations.GetNumber());
}
#endif
} // namespace
