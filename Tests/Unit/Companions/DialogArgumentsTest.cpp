// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogArguments.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace
{
/** An argument that counts how many of it are alive. */
class CCounted
{
public:
    explicit CCounted(int iNumber) : m_iNumber(iNumber) { ++ms_iAlive; }
    CCounted(const CCounted& kOther) : m_iNumber(kOther.m_iNumber) { ++ms_iAlive; }
    CCounted& operator=(const CCounted&) = delete;
    ~CCounted() { --ms_iAlive; }

    int m_iNumber;
    static int ms_iAlive;
};
int CCounted::ms_iAlive = 0;

/** Throws when it is copied. */
struct Uncopyable_t
{
    Uncopyable_t() = default;
    Uncopyable_t(const Uncopyable_t&) { throw 7; }
    Uncopyable_t& operator=(const Uncopyable_t&) = delete;
    ~Uncopyable_t() = default;
};

using Arguments_t = CGUIDialogArgumentsOf<4, 32>;

/** Dialogs that may be deleted, the current one DLG_A, and a listener after the arguments. */
class CDialogArgumentsTest : public CCompanionTest
{
protected:
    CDialogArgumentsTest()
    {
        DefineEmptyDialogs(DLG_A, DLG_B, DLG_C, DLG_D);
        Manager().AddListener(m_kListener);
        Go(DLG_A, ODA_NOTHING);
    }

    ~CDialogArgumentsTest() override
    {
        m_pkArguments.reset();
        EXPECT_EQ(0, CCounted::ms_iAlive);
    }

    Arguments_t& Arguments() { return *m_pkArguments; }

    void Show(ObjectHandle_t eID, int iNumber, CGUIDialogManager::EOldDialogAction eAction = ODA_DELETE)
    {
        EXPECT_NE(nullptr, Arguments().CreateDialog(eID, eAction, CCounted(iNumber)));
    }

    /** @return the number in the argument of the current dialog, 0 if there is none */
    int Argument() { return NumberOf(Arguments().GetArgument<CCounted>()); }

    int ArgumentOf(ObjectHandle_t eID) { return NumberOf(Arguments().GetArgument<CCounted>(eID)); }

    /** Takes the result for the current dialog. @return its number, 0 if there is none */
    int TakeResult()
    {
        const std::optional<CCounted> kResult = Arguments().TakeResult<CCounted>();
        return kResult.has_value() ? kResult->m_iNumber : 0;
    }

    /** In the listener's next call of a hook: notes the argument of the current dialog. */
    void NoteArgumentIn(EHook eHook)
    {
        m_kListener.RunOnce(eHook, [this](CGUIObject*) { m_iNoted = Argument(); });
    }

    std::unique_ptr<Arguments_t> m_pkArguments = std::make_unique<Arguments_t>(Manager());
    CRecordingListener m_kListener{Events(), "Listener"};
    int m_iNoted = -1;

private:
    static int NumberOf(const CCounted* pkArgument)
    {
        return pkArgument != nullptr ? pkArgument->m_iNumber : 0;
    }
};

// --- Arguments ---------------------------------------------------------------------------------------

TEST_F(CDialogArgumentsTest, CreateDialog_TheHooksFindTheArgument)
{
    NoteArgumentIn(HOOK_ON_DIALOG_ADDED);
    Show(DLG_B, 5);
    EXPECT_EQ(5, m_iNoted);

    NoteArgumentIn(HOOK_ON_DIALOG_ACTIVATION);
    Show(DLG_C, 6);
    EXPECT_EQ(6, m_iNoted);
    EXPECT_EQ(6, Argument());
    EXPECT_EQ(2, CCounted::ms_iAlive);
    EXPECT_EQ(2U, Arguments().GetNOFValues());
}

TEST_F(CDialogArgumentsTest, CreateDialogImpl_FindsTheArgumentOfTheDialogThatItBuilds)
{
    m_kListener.m_eBuilds = DLG_E;
    int iNoted = 0;
    m_kListener.RunOnce(HOOK_CREATE_DIALOG_IMPL, [&](CGUIObject*) { iNoted = ArgumentOf(DLG_E); });

    Show(DLG_E, 5);

    EXPECT_EQ(5, iNoted);
}

TEST_F(CDialogArgumentsTest, NoArgument_NullAndNothingLogged)
{
    Go(DLG_B);

    EXPECT_EQ(nullptr, Arguments().GetArgument<CCounted>());
    EXPECT_EQ(nullptr, Arguments().GetArgument<CCounted>(DLG_B));
    EXPECT_EQ(std::nullopt, Arguments().TakeResult<int>());
    EXPECT_TRACE("");
}

TEST_F(CDialogArgumentsTest, AnotherType_NullAndLogged)
{
    Arguments().CreateDialog(DLG_B, ODA_DELETE, 5);
    EXPECT_TRUE(Arguments().SetResult(6U));
    ClearEvents();

    EXPECT_EQ(nullptr, Arguments().GetArgument<unsigned>());
    EXPECT_TRACE(R"(
        ERROR: CGUIDialogArguments::IsOf: The value for dialog with ID 2 has another type.\n @Companions/GUIDialogArguments.cpp:#
    )");
    EXPECT_EQ(5, *Arguments().GetArgument<int>());
    Manager().Back(true);
    EXPECT_EQ(std::nullopt, Arguments().TakeResult<int>());
    EXPECT_EQ(6U, Arguments().TakeResult<unsigned>());
}

TEST_F(CDialogArgumentsTest, MovableType_IsMovedInAndOut)
{
    const int* const piArgument = new int(5);
    Arguments().CreateDialog(DLG_B, ODA_DELETE, std::unique_ptr<const int>(piArgument));
    EXPECT_EQ(piArgument, Arguments().GetArgument<std::unique_ptr<const int>>()->get());

    EXPECT_TRUE(Arguments().SetResult(std::make_unique<int>(6)));
    Manager().Back(true);

    EXPECT_EQ(6, **Arguments().TakeResult<std::unique_ptr<int>>());
    EXPECT_EQ(std::nullopt, Arguments().TakeResult<std::unique_ptr<int>>());
    EXPECT_EQ(0U, Arguments().GetNOFValues());
}

TEST_F(CDialogArgumentsTest, LargestValue_IsAlignedAndKeptWhole)
{
    struct Large_t
    {
        alignas(std::max_align_t) std::array<unsigned char, 32> m_auiBytes;
    };
    Large_t kLarge = {};
    kLarge.m_auiBytes.back() = 9;
    Arguments().CreateDialog(DLG_B, ODA_DELETE, 1);
    Arguments().CreateDialog(DLG_C, ODA_DELETE, kLarge);

    EXPECT_EQ(9, Arguments().GetArgument<Large_t>()->m_auiBytes.back());
    EXPECT_EQ(0U,
              reinterpret_cast<std::size_t>(Arguments().GetArgument<Large_t>()) % alignof(std::max_align_t));
}

TEST_F(CDialogArgumentsTest, DeletedDialogIsRebuilt_HasItsArgumentAsItWasChanged)
{
    Show(DLG_B, 5);
    Arguments().GetArgument<CCounted>()->m_iNumber = 50;
    Show(DLG_C, 6);
    EXPECT_EQ(nullptr, Object(DLG_B));

    NoteArgumentIn(HOOK_ON_DIALOG_ACTIVATION);
    Manager().Back(true);

    EXPECT_NE(nullptr, Object(DLG_B));
    EXPECT_EQ(50, m_iNoted);
    EXPECT_EQ(50, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, LeftByGoingBack_TheArgumentIsGone)
{
    Show(DLG_B, 5);

    Manager().Back(false);
    EXPECT_EQ(0, CCounted::ms_iAlive);
    Go(DLG_B);

    EXPECT_EQ(0, Argument());
}

TEST_F(CDialogArgumentsTest, SameDialogSeveralTimes_EachVisitHasItsOwnArgument)
{
    Show(DLG_B, 5);
    Show(DLG_B, 6, ODA_INVISIBLE);
    Show(DLG_C, 7);
    Go(DLG_B);
    EXPECT_EQ(0, Argument());
    EXPECT_EQ(6, ArgumentOf(DLG_B)) << "of the most recent visit that has one";

    Manager().Back(true);
    EXPECT_EQ(7, Argument());
    Manager().Back(true);
    EXPECT_EQ(6, Argument());
    Manager().Back(false);
    EXPECT_EQ(5, Argument());
    Manager().Back(true);
    EXPECT_EQ(0, Argument());
    EXPECT_EQ(0, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, GetArgument_OfALevel_IsThatOfTheVisit)
{
    Show(DLG_B, 5);
    Show(DLG_B, 6);

    EXPECT_EQ(5, Arguments().GetArgument<CCounted>(DLG_B, 1)->m_iNumber);
    EXPECT_EQ(6, Arguments().GetArgument<CCounted>(DLG_B, 2)->m_iNumber);
    EXPECT_EQ(nullptr, Arguments().GetArgument<CCounted>(DLG_A, 0));
    EXPECT_EQ(nullptr, Arguments().GetArgument<CCounted>(DLG_A, 1));
}

TEST_F(CDialogArgumentsTest, GetArgumentOfADialog_PlacesAreUsedAgain_IsThatOfTheMostRecentVisit)
{
    Show(DLG_B, 5);
    Show(DLG_B, 6);
    Manager().ClearDialogHistory(1, true, false);
    Show(DLG_B, 7);

    EXPECT_EQ(7, ArgumentOf(DLG_B));
    EXPECT_EQ(2, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, SwitchToItself_TheLeavingHookFindsTheOldArgumentAndTheNewOneIsAsked)
{
    Show(DLG_B, 5);
    NoteArgumentIn(HOOK_ON_DIALOG_DEACTIVATION);

    Show(DLG_B, 6, ODA_INVISIBLE);

    EXPECT_EQ(5, m_iNoted);
    EXPECT_EQ(6, Argument());
}

TEST_F(CDialogArgumentsTest, BackToDialogDirectly_TheArgumentsOnTheWayAreGone)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    Show(DLG_D, 7);
    m_kListener.RunOnce(HOOK_ON_AFTER_DIALOG_DELETION,
                        [this](CGUIObject*) { m_iNoted = CCounted::ms_iAlive; });

    Manager().BackToDialog(DLG_B, true, false);

    EXPECT_EQ(2, m_iNoted) << "that of the current dialog goes first";
    EXPECT_EQ(5, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, BackToDialogStepwise_TheArgumentsOnTheWayAreGone)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    Show(DLG_D, 7);

    Manager().BackToDialog(DLG_B, true, true);

    EXPECT_EQ(5, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, BackToTheSameDialogDirectly_HasTheArgumentOfThatVisit)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    Show(DLG_B, 7);

    Manager().BackToDialog(DLG_B, true, false);

    EXPECT_EQ(5, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, ClearDialogHistory_TheCurrentDialogKeepsItsArgument)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    Show(DLG_D, 7);

    Manager().ClearDialogHistory(1, true, false);

    EXPECT_EQ(7, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
    Show(DLG_B, 8);
    Manager().Back(true);
    EXPECT_EQ(7, Argument());
    Manager().Back(true);
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
    EXPECT_EQ(0, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, ClearDialogHistory_WithTheCurrentDialog_OnlyTheKeptEntriesHaveArguments)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    Show(DLG_D, 7);

    Manager().ClearDialogHistory(2, true, true);
    EXPECT_EQ(5, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);

    Manager().ClearDialogHistory(0, true, true);
    EXPECT_EQ(0, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, AddDialog_HasItsArgumentAndDynamicIdentifier)
{
    CGUIObject* const pkDialog = Attach("NO_HANDLE");
    NoteArgumentIn(HOOK_ON_DIALOG_ADDED);

    EXPECT_TRUE(Arguments().AddDialog(*pkDialog, ODA_DELETE, true, CCounted(5)));

    EXPECT_EQ(5, m_iNoted);
    EXPECT_EQ(5, Argument());
    EXPECT_EQ(Manager().CreateDynamicObjectID(), pkDialog->GetID());
}

TEST_F(CDialogArgumentsTest, DialogsBeforeTheArgumentsExist_HaveNone)
{
    Go(DLG_B);
    const Arguments_t kLater(Manager());

    EXPECT_EQ(nullptr, kLater.GetArgument<int>());
    Manager().Back(true);
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
    EXPECT_EQ(nullptr, kLater.GetArgument<int>());
}

// --- Results -----------------------------------------------------------------------------------------

TEST_F(CDialogArgumentsTest, Result_ThePredecessorTakesItOnceInItsActivation)
{
    Go(DLG_B, ODA_DELETE);
    EXPECT_TRUE(Arguments().SetResult(CCounted(5)));
    EXPECT_EQ(0, TakeResult()) << "it is for the predecessor";
    m_kListener.RunOnce(HOOK_ON_DIALOG_ACTIVATION, [this](CGUIObject*) { m_iNoted = TakeResult(); });

    Manager().Back(true);

    EXPECT_EQ(5, m_iNoted);
    EXPECT_EQ(0, TakeResult());
    EXPECT_EQ(0, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, ResultAndArgument_OfTheSameDialog_AreApart)
{
    Show(DLG_B, 5);
    Go(DLG_C, ODA_DELETE);
    Arguments().SetResult(CCounted(6));

    Manager().Back(true);

    EXPECT_EQ(5, Argument());
    EXPECT_EQ(6, TakeResult());
    EXPECT_EQ(5, Argument());
}

TEST_F(CDialogArgumentsTest, SetResult_Again_ReplacesTheFirstOne)
{
    Go(DLG_B);
    Arguments().SetResult(CCounted(5));
    EXPECT_TRUE(Arguments().SetResult(CCounted(6)));
    EXPECT_EQ(1, CCounted::ms_iAlive);

    Manager().Back(true);

    EXPECT_EQ(6, TakeResult());
}

TEST_F(CDialogArgumentsTest, SetResult_InTheHookThatSaysTheDialogIsLeft_IsTaken)
{
    Go(DLG_B);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION,
                        [this](CGUIObject*) { EXPECT_TRUE(Arguments().SetResult(CCounted(5))); });

    Manager().Back(true);

    EXPECT_EQ(5, TakeResult());
}

TEST_F(CDialogArgumentsTest, SetResult_WithoutPredecessor_False)
{
    EXPECT_FALSE(Arguments().SetResult(CCounted(5)));
    Manager().ClearDialogHistory(0, true, true);
    EXPECT_FALSE(Arguments().SetResult(CCounted(5)));

    EXPECT_EQ(0, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, ResultNotTaken_IsGoneWhenThePredecessorSwitchesOn)
{
    Go(DLG_B);
    Arguments().SetResult(CCounted(5));
    Manager().Back(true);

    Go(DLG_C);
    EXPECT_EQ(0, CCounted::ms_iAlive);
    Manager().Back(true);

    EXPECT_EQ(0, TakeResult());
}

TEST_F(CDialogArgumentsTest, ResultOfADialogThatSwitchesOn_WaitsForThePredecessor)
{
    Go(DLG_B);
    Arguments().SetResult(CCounted(5));
    Go(DLG_C);
    EXPECT_EQ(1, CCounted::ms_iAlive);

    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_EQ(5, TakeResult());
}

TEST_F(CDialogArgumentsTest, ResultForADialogOnTheWay_IsGoneWithItsEntry)
{
    Go(DLG_B);
    Go(DLG_C);
    Arguments().SetResult(CCounted(5));

    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_EQ(0, CCounted::ms_iAlive);
    EXPECT_EQ(0, TakeResult());
}

TEST_F(CDialogArgumentsTest, SwitchForwardToThePredecessor_DoesNotGetTheResult)
{
    Go(DLG_B);
    Arguments().SetResult(CCounted(5));

    Go(DLG_A);

    EXPECT_EQ(0, TakeResult());
    Manager().BackToDialog(DLG_A, true, false);
    EXPECT_EQ(5, TakeResult()) << "the visit that it was for";
}

// --- When something fails ----------------------------------------------------------------------------

TEST_F(CDialogArgumentsTest, SwitchFails_TheArgumentIsDestroyedAndNothingElseChanges)
{
    Show(DLG_B, 5);

    EXPECT_EQ(nullptr, Arguments().CreateDialog(DLG_F, ODA_DELETE, CCounted(6)));

    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_EQ(5, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, SwitchToItselfFails_KeepsItsArgument)
{
    Show(DLG_B, 5);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DEACTIVATION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Arguments().CreateDialog(DLG_B, ODA_INVISIBLE, CCounted(6)), int);

    EXPECT_EQ(5, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, NoRoom_TheSwitchIsRefusedAndLogged)
{
    for (int iDialog = 1; iDialog <= 4; ++iDialog)
    {
        Show(DLG_B, iDialog, ODA_INVISIBLE);
    }
    CGUIObject* const pkDialog = Attach("DLG_C");
    ClearEvents();

    EXPECT_EQ(nullptr, Arguments().CreateDialog(DLG_D, ODA_INVISIBLE, CCounted(5)));
    EXPECT_FALSE(Arguments().AddDialog(*pkDialog, ODA_INVISIBLE, true, CCounted(5)));
    EXPECT_FALSE(Arguments().SetResult(CCounted(5)));

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogArguments::CreateDialog: No room for the argument of dialog with ID 4. The current dialog stays active.\n @Companions/GUIDialogArguments.cpp:#
        ERROR: CGUIDialogArguments::AddDialog: No room for the argument of dialog with ID 3. The current dialog stays active.\n @Companions/GUIDialogArguments.cpp:#
        ERROR: CGUIDialogArguments::SetResult: No room for the result for dialog with ID 2.\n @Companions/GUIDialogArguments.cpp:#
    )");
    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_EQ(4, Argument());
    EXPECT_EQ(4, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, CopyingTheValueThrows_NothingChangesAndThePlaceIsFree)
{
    const Uncopyable_t kValue;

    EXPECT_THROW(Arguments().CreateDialog(DLG_B, ODA_DELETE, kValue), int);

    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
    EXPECT_EQ(0U, Arguments().GetNOFValues());
}

TEST_F(CDialogArgumentsTest, EarlierListenerThrowsWhenTheDialogIsShown_ItHasItsArgument)
{
    Manager().RemoveListener(m_kListener);
    m_pkArguments.reset();
    Manager().AddListener(m_kListener);
    m_pkArguments = std::make_unique<Arguments_t>(Manager());
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Arguments().CreateDialog(DLG_B, ODA_DELETE, CCounted(5)), int);

    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_EQ(5, Argument());
}

TEST_F(CDialogArgumentsTest, EarlierListenerSwitchesOn_TheDialogBelowHasNoArgument)
{
    Manager().RemoveListener(m_kListener);
    m_pkArguments.reset();
    Manager().AddListener(m_kListener);
    m_pkArguments = std::make_unique<Arguments_t>(Manager());
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED, [this](CGUIObject*) { Show(DLG_C, 6, ODA_INVISIBLE); });

    EXPECT_NE(nullptr, Arguments().CreateDialog(DLG_B, ODA_DELETE, CCounted(5)));

    EXPECT_EQ(6, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
    Manager().Back(true);
    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_EQ(0, Argument());
}

TEST_F(CDialogArgumentsTest, EarlierListenerThrowsInBack_ThePredecessorHasItsArgumentAndTheNextSwitchItsOwn)
{
    Show(DLG_B, 5);
    Manager().RemoveListener(m_kListener);
    m_pkArguments.reset();
    Manager().AddListener(m_kListener);
    m_pkArguments = std::make_unique<Arguments_t>(Manager());
    Show(DLG_C, 6);
    Show(DLG_D, 7);
    m_kListener.RunOnce(HOOK_ON_DIALOG_ACTIVATION, [](CGUIObject*) { throw 7; });

    Manager().Back(true);
    EXPECT_EQ(DLG_C, Manager().GetCurrentDialogID());
    EXPECT_EQ(6, Argument());
    Go(DLG_D);

    EXPECT_EQ(0, Argument());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, DialogCannotBeBroughtBack_ItsArgumentIsGone)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_B));

    Manager().Back(true);

    EXPECT_EQ(NO_HANDLE, Manager().GetCurrentDialogID());
    EXPECT_EQ(0, CCounted::ms_iAlive);
    EXPECT_EQ(0, Argument());
}

TEST_F(CDialogArgumentsTest, InsideAHook_AnotherSwitch_EachDialogHasItsOwnArgument)
{
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [this](CGUIObject*) { Show(DLG_C, 6); });
    Show(DLG_B, 5);
    EXPECT_EQ(5, Argument());
    Manager().Back(true);
    EXPECT_EQ(6, Argument());

    m_kListener.RunOnce(HOOK_ON_DIALOG_ACTIVATION, [this](CGUIObject*) { Show(DLG_D, 8, ODA_INVISIBLE); });
    Show(DLG_B, 7);
    EXPECT_EQ(8, Argument());
    Manager().Back(true);
    EXPECT_EQ(7, Argument());
}

TEST_F(CDialogArgumentsTest, InsideAHook_SwitchToTheSameDialog_EachVisitHasItsOwnArgument)
{
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [this](CGUIObject*) { Show(DLG_B, 6); });

    Show(DLG_B, 5);

    EXPECT_EQ(5, Argument());
    Manager().Back(true);
    EXPECT_EQ(6, Argument());
}

TEST_F(CDialogArgumentsTest, InsideAHook_GoesBack_NothingDangles)
{
    Show(DLG_B, 5);
    Show(DLG_C, 6);
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [this](CGUIObject*) { Manager().Back(true); });

    Show(DLG_D, 7);

    EXPECT_EQ(7, Argument());
    EXPECT_EQ(2U, Manager().GetHistoryStackSize());
    EXPECT_EQ(2, CCounted::ms_iAlive);
}

TEST_F(CDialogArgumentsTest, InsideAHook_TheDialogIsDestroyed_ItsVisitHasTheArgument)
{
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED, [](CGUIObject* pkDialog) { delete pkDialog; });

    EXPECT_EQ(nullptr, Arguments().CreateDialog(DLG_B, ODA_DELETE, CCounted(5)));

    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());
    EXPECT_EQ(5, Argument());
}

TEST_F(CDialogArgumentsTest, ManagerIsDestroyedFirst_NothingHappens)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    Arguments_t kArguments(*pkManager);
    EXPECT_NE(nullptr, kArguments.CreateDialog(DLG_A, ODA_NOTHING, CCounted(5)));

    pkManager.reset();

    EXPECT_EQ(nullptr, kArguments.CreateDialog(DLG_A, ODA_NOTHING, CCounted(6)));
    EXPECT_FALSE(kArguments.AddDialog(*Object(DLG_A), ODA_NOTHING, true, CCounted(6)));
    EXPECT_FALSE(kArguments.SetResult(CCounted(6)));
    EXPECT_EQ(nullptr, kArguments.GetArgument<CCounted>());
    EXPECT_EQ(std::nullopt, kArguments.TakeResult<int>());
    EXPECT_EQ(1, CCounted::ms_iAlive);
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CDialogArgumentsTest, SteadyState_SwitchingWithArgumentsAndResults_AllocatesNothing)
{
    Attach("DLG_B")->SetInvisible(true);
    Manager().RemoveListener(m_kListener);
    CGUITrace::GetInstance().SetSink(nullptr);
    const auto kSwitchAndBack = [this]
    {
        Arguments().CreateDialog(DLG_B, ODA_INVISIBLE, 5);
        Arguments().SetResult(6);
        Manager().Back(false);
        EXPECT_EQ(6, Arguments().TakeResult<int>());
    };
    kSwitchAndBack();

    const CAllocationCounter kAllocations;
    kSwitchAndBack();
    EXPECT_EQ(0U, kAllocations.GetNumber());
}
#endif
} // namespace
