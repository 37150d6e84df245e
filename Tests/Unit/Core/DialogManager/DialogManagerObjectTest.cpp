// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"
#include "Tests/Unit/VirtualSlot.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <vector>

namespace
{
/** A manager that overrides nothing and makes the hooks accessible to tests. */
class CPlainManager : public CGUIDialogManager
{
public:
    using CGUIDialogManager::CreateDialogImpl;
    using CGUIDialogManager::CreatePopupImpl;
    using CGUIDialogManager::GetDialogObject;
    using CGUIDialogManager::OnAfterDialogDeletion;
    using CGUIDialogManager::OnDialogActivation;
    using CGUIDialogManager::OnDialogAdded;
    using CGUIDialogManager::OnDialogDeactivation;
    using CGUIDialogManager::OnDialogDeletion;
    using CGUIDialogManager::OnLastDialogDeletion;
    using CGUIDialogManager::OnPopupActivation;
    using CGUIDialogManager::OnPopupDeactivation;
};

/** A manager that records its destruction. */
class CMortalManager : public CGUIDialogManager
{
public:
    explicit CMortalManager(bool& bIsDestroyed) : m_bIsDestroyed(bIsDestroyed) {}
    ~CMortalManager() override { m_bIsDestroyed = true; }

private:
    bool& m_bIsDestroyed;
};

class CDialogManagerObjectTest : public CDialogTest
{
};

// --- The class and its records ---------------------------------------------------------------------

TEST_F(CDialogManagerObjectTest, Class_IsPolymorphicAndNotCopyable)
{
    EXPECT_TRUE(std::is_polymorphic<CGUIDialogManager>::value);
    EXPECT_TRUE(std::has_virtual_destructor<CGUIDialogManager>::value);
    EXPECT_FALSE(std::is_copy_constructible<CGUIDialogManager>::value);
    EXPECT_FALSE(std::is_copy_assignable<CGUIDialogManager>::value);
}

TEST_F(CDialogManagerObjectTest, DataMembers_StandInTheOrderOfTheirDeclaration)
{
    const std::vector<const void*> kAddresses = {&Access::GetHistory(Manager()),
                                                 &Access::GetCurrentDialog(Manager()),
                                                 &Access::GetCurrentDialogFocus(Manager()),
                                                 &Access::GetLastDynObjID(Manager()),
                                                 &Access::GetDynamicObjectIDs(Manager()),
                                                 &Access::GetRegisteredDialogs(Manager()),
                                                 &Access::GetRegisteredPopups(Manager()),
                                                 &Access::GetActivePopups(Manager())};

    for (std::size_t uiIndex = 1; uiIndex < kAddresses.size(); ++uiIndex)
    {
        EXPECT_TRUE(std::less<const void*>()(kAddresses[uiIndex - 1], kAddresses[uiIndex])) << uiIndex;
    }
}

TEST_F(CDialogManagerObjectTest, Actions_HaveTheirNumbersAndFitOneUnsignedByte)
{
    EXPECT_EQ(0, CGUIDialogManager::ODA_INVISIBLE);
    EXPECT_EQ(1, CGUIDialogManager::ODA_INVISIBLE_ALL);
    EXPECT_EQ(2, CGUIDialogManager::ODA_DELETE);
    EXPECT_EQ(3, CGUIDialogManager::ODA_DELETE_ALL);
    EXPECT_EQ(4, CGUIDialogManager::ODA_NOTHING);
    EXPECT_EQ(1U, sizeof(CGUIDialogManager::EOldDialogAction));
    EXPECT_TRUE(std::is_unsigned<std::underlying_type<CGUIDialogManager::EOldDialogAction>::type>::value);
}

TEST_F(CDialogManagerObjectTest, DialogDescription_Default_StandsForNoDialog)
{
    const Access::DialogDescription_t kDialog;

    EXPECT_EQ(NO_HANDLE, kDialog.m_eDialogID);
    EXPECT_EQ(ODA_NOTHING, kDialog.m_eOldDialogAction);
    EXPECT_TRUE(kDialog.m_bAllowObjectDeletion);
    EXPECT_TRUE(kDialog.m_bRecoverFocus);
}

TEST_F(CDialogManagerObjectTest, DialogDescription_TakesItsValuesInTheOrderOfItsFields)
{
    const Access::DialogDescription_t kNoDeletion(DLG_B, ODA_DELETE, false, true);
    const Access::DialogDescription_t kNoRecovery(DLG_C, ODA_INVISIBLE_ALL, true, false);

    EXPECT_EQ(DLG_B, kNoDeletion.m_eDialogID);
    EXPECT_EQ(ODA_DELETE, kNoDeletion.m_eOldDialogAction);
    EXPECT_FALSE(kNoDeletion.m_bAllowObjectDeletion);
    EXPECT_TRUE(kNoDeletion.m_bRecoverFocus);
    EXPECT_EQ(DLG_C, kNoRecovery.m_eDialogID);
    EXPECT_EQ(ODA_INVISIBLE_ALL, kNoRecovery.m_eOldDialogAction);
    EXPECT_TRUE(kNoRecovery.m_bAllowObjectDeletion);
    EXPECT_FALSE(kNoRecovery.m_bRecoverFocus);
    EXPECT_LT(static_cast<const void*>(&kNoDeletion.m_eDialogID),
              static_cast<const void*>(&kNoDeletion.m_eOldDialogAction));
    EXPECT_LT(static_cast<const void*>(&kNoDeletion.m_eOldDialogAction),
              static_cast<const void*>(&kNoDeletion.m_bAllowObjectDeletion));
    EXPECT_LT(static_cast<const void*>(&kNoDeletion.m_bAllowObjectDeletion),
              static_cast<const void*>(&kNoDeletion.m_bRecoverFocus));
}

TEST_F(CDialogManagerObjectTest, HistoryEntry_Default_HasDeleteAllAsItsAction_Intended)
{
    const Access::HistoryEntry_t kEntry;

    EXPECT_EQ(NO_HANDLE, kEntry.m_Dialog.m_eDialogID);
    EXPECT_EQ(ODA_NOTHING, kEntry.m_Dialog.m_eOldDialogAction);
    EXPECT_TRUE(kEntry.m_Dialog.m_bAllowObjectDeletion);
    EXPECT_TRUE(kEntry.m_Dialog.m_bRecoverFocus);
    EXPECT_EQ(ODA_DELETE_ALL, kEntry.m_eAction);
    EXPECT_EQ(NO_HANDLE, kEntry.m_eFocussedObject);
}

TEST_F(CDialogManagerObjectTest, HistoryEntry_CopiesItsThreeValues)
{
    const Access::HistoryEntry_t kEntry(Access::DialogDescription_t(DLG_D, ODA_DELETE, false, false),
                                        ODA_INVISIBLE, OBJ_3);

    EXPECT_EQ(DLG_D, kEntry.m_Dialog.m_eDialogID);
    EXPECT_EQ(ODA_DELETE, kEntry.m_Dialog.m_eOldDialogAction);
    EXPECT_FALSE(kEntry.m_Dialog.m_bAllowObjectDeletion);
    EXPECT_FALSE(kEntry.m_Dialog.m_bRecoverFocus);
    EXPECT_EQ(ODA_INVISIBLE, kEntry.m_eAction);
    EXPECT_EQ(OBJ_3, kEntry.m_eFocussedObject);
}

TEST_F(CDialogManagerObjectTest, HistoryEntry_EqualsAnotherOfTheSameDialogActionAndFocus)
{
    const Access::DialogDescription_t kDialog(DLG_A, ODA_DELETE, false, false);
    const Access::DialogDescription_t kSameID(DLG_A, ODA_INVISIBLE, true, true);
    const Access::DialogDescription_t kOtherID(DLG_B, ODA_DELETE, false, false);
    Access::HistoryEntry_t kEntry(kDialog, ODA_NOTHING, OBJ_1);

    EXPECT_TRUE(kEntry == Access::HistoryEntry_t(kSameID, ODA_NOTHING, OBJ_1));
    EXPECT_FALSE(kEntry == Access::HistoryEntry_t(kOtherID, ODA_NOTHING, OBJ_1));
    EXPECT_FALSE(kEntry == Access::HistoryEntry_t(kDialog, ODA_DELETE, OBJ_1));
    EXPECT_FALSE(kEntry == Access::HistoryEntry_t(kDialog, ODA_NOTHING, OBJ_2));
}

TEST_F(CDialogManagerObjectTest, RegisteredDialog_Default_HasAnEmptyPath)
{
    const Access::RegisteredDialog_t kDialog{};

    EXPECT_TRUE(kDialog.m_kPath.IsEmpty());
    EXPECT_LT(static_cast<const void*>(&kDialog.m_kPath), static_cast<const void*>(&kDialog.m_eDialogID));
}

#ifdef TESTS_HAVE_VIRTUAL_SLOTS
TEST_F(CDialogManagerObjectTest, Hooks_StandInTheirSlotsBehindTheDestructors)
{
    EXPECT_EQ(2, GetVirtualSlot(&CPlainManager::CreateDialogImpl));
    EXPECT_EQ(3, GetVirtualSlot(&CPlainManager::OnDialogAdded));
    EXPECT_EQ(4, GetVirtualSlot(&CPlainManager::OnDialogActivation));
    EXPECT_EQ(5, GetVirtualSlot(&CPlainManager::OnDialogDeactivation));
    EXPECT_EQ(6, GetVirtualSlot(&CPlainManager::OnDialogDeletion));
    EXPECT_EQ(7, GetVirtualSlot(&CPlainManager::OnAfterDialogDeletion));
    EXPECT_EQ(8, GetVirtualSlot(&CPlainManager::OnLastDialogDeletion));
    EXPECT_EQ(9, GetVirtualSlot(&CPlainManager::OnPopupActivation));
    EXPECT_EQ(10, GetVirtualSlot(&CPlainManager::OnPopupDeactivation));
    EXPECT_EQ(11, GetVirtualSlot(&CPlainManager::CreatePopupImpl));
}
#endif

// --- Construction ----------------------------------------------------------------------------------

TEST_F(CDialogManagerObjectTest, Construct_GivesAnEmptyManager)
{
    EXPECT_EQ(NO_HANDLE, Manager().GetCurrentDialogID());
    EXPECT_EQ(nullptr, Manager().GetCurrentDialog());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
    EXPECT_EQ(NO_HANDLE, Manager().GetLastDialogID());
    EXPECT_FALSE(Manager().ContainsDialog(DLG_A, true));
    EXPECT_EQ(nullptr, Access::GetCurrentDialogFocus(Manager()).get());
    EXPECT_WHOLE_STATE("current: none\n");
}

TEST_F(CDialogManagerObjectTest, Construct_LogsNothingAndCallsNoHook)
{
    EXPECT_EVENTS("");
    EXPECT_EQ(0U, CodeFactory().GetLoads());
}

TEST_F(CDialogManagerObjectTest, Construct_TakesDynamicIdentifiersFromBehindTheStaticHandles)
{
    EXPECT_EQ(37U, cuiNOFObjectHandles);
    EXPECT_EQ(29, Access::GetLastDynObjID(Manager()));
}

TEST_F(CDialogManagerObjectTest, Construct_EntersOneSafePointerAndDestructionTakesItOut)
{
    const std::size_t uiBefore = Access::GetSafePointers().size();
    {
        CGUIDialogManager kManager;

        EXPECT_EQ(uiBefore + 1, Access::GetSafePointers().size());
        EXPECT_EQ(&Access::GetCurrentDialogFocus(kManager), Access::GetSafePointers().back());
    }
    EXPECT_EQ(uiBefore, Access::GetSafePointers().size());
}

TEST_F(CDialogManagerObjectTest, Construct_NeedsNoRoot)
{
    DestroyManager();
    DestroyRoot();

    CGUIDialogManager kManager;

    EXPECT_EQ(NO_HANDLE, kManager.GetCurrentDialogID());
    EXPECT_EVENTS("");
}

// --- Destruction -----------------------------------------------------------------------------------

TEST_F(CDialogManagerObjectTest, Destroy_WithDialogsHistoryAndPopups_DeletesNothingCallsNoHookAndLogsNothing)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 3000, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    EXPECT_NE(nullptr, Manager().ShowPopup(POP_1));
    EXPECT_NE(nullptr, Manager().ShowPopup(POP_2));
    EXPECT_EQ(3000U, GETTIMER.GetTimeUntilNextCallback());
    ClearEvents();

    DestroyManager();

    EXPECT_EVENTS("");
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());
    CGUIDialogManager kOtherManager;
    EXPECT_TEXT(R"(
        focus: OBJ_2
        tree:
          DLG_A invisible
            OBJ_1 focusable
          DLG_B
            OBJ_2 focussed
          POP_2 invisible
          POP_1
    )",
                PrintState(kOtherManager, STATE_FOCUS | STATE_TREE));
}

TEST_F(CDialogManagerObjectTest, Destroy_WhilePopupsAreActive_CallsNothingWhenTheirTimeIsUp)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 3000, true, "POP_1");
    EXPECT_NE(nullptr, Manager().ShowPopup(POP_1));
    DestroyManager();
    ClearEvents();

    Clock().Advance(10000);

    EXPECT_EVENTS("");
    EXPECT_NE(nullptr, Object(POP_1));
}

TEST_F(CDialogManagerObjectTest, Destroy_ThroughTheBaseClass_DestroysTheDerivedManager)
{
    bool bIsDestroyed = false;
    std::unique_ptr<CGUIDialogManager> pkManager(new CMortalManager(bIsDestroyed));

    pkManager.reset();

    EXPECT_TRUE(bIsDestroyed);
}

TEST_F(CDialogManagerObjectTest, Destroy_AfterTheRoot_TouchesNoObject)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 3000, true, "POP_1");
    Go(DLG_A, ODA_NOTHING);
    EXPECT_NE(nullptr, Manager().ShowPopup(POP_1));
    ClearEvents();

    DestroyRoot();
    DestroyManager();

    EXPECT_EVENTS("");
}

// --- The hooks' defaults ---------------------------------------------------------------------------

TEST_F(CDialogManagerObjectTest, CreateDialogImpl_Default_LogsAHintAndReturnsNull)
{
    const CPlainManager kManager;
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = false;

    EXPECT_EQ(nullptr, kManager.CreateDialogImpl(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_TRUE(bAllowDeletion);
    EXPECT_FALSE(bRecoverFocus);
    ASSERT_EQ(1U, TraceRecorder().GetEntries().size());
    const TraceEntry_t& kEntry = TraceRecorder().GetEntries().front();
    EXPECT_EQ("DEBUG: ", kEntry.m_kPrefix);
    EXPECT_EQ("CGUIDialogManager::CreateDialogImpl has been called."
              "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n",
              kEntry.m_kMessage);
    EXPECT_EQ("", kEntry.m_kFile);
    EXPECT_EQ("", kEntry.m_kLine);
}

TEST_F(CDialogManagerObjectTest, CreateDialogImpl_Default_LeavesTheOppositeFlagsUntouchedToo)
{
    const CPlainManager kManager;
    eC_Bool bAllowDeletion = false;
    eC_Bool bRecoverFocus = true;

    EXPECT_EQ(nullptr, kManager.CreateDialogImpl(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_FALSE(bAllowDeletion);
    EXPECT_TRUE(bRecoverFocus);
}

TEST_F(CDialogManagerObjectTest, CreatePopupImpl_Default_NamesTheCreationOfDialogsInItsHint_Intended)
{
    CPlainManager kManager;

    EXPECT_EQ(nullptr, kManager.CreatePopupImpl(POP_1));

    ASSERT_EQ(1U, TraceRecorder().GetEntries().size());
    const TraceEntry_t& kEntry = TraceRecorder().GetEntries().front();
    EXPECT_EQ("DEBUG: ", kEntry.m_kPrefix);
    EXPECT_EQ("CGUIDialogManager::CreatePopupImpl has been called."
              "Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n",
              kEntry.m_kMessage);
    EXPECT_EQ("", kEntry.m_kFile);
    EXPECT_EQ("", kEntry.m_kLine);
}

TEST_F(CDialogManagerObjectTest, OnDialogDeletion_Default_AllowsEveryDeletion)
{
    CPlainManager kManager;

    EXPECT_TRUE(kManager.OnDialogDeletion(Attach("DLG_A")));
    EXPECT_TRUE(kManager.OnDialogDeletion(nullptr));
    EXPECT_EVENTS("");
}

TEST_F(CDialogManagerObjectTest, NotificationHooks_Default_DoNothing)
{
    CPlainManager kManager;
    CGUIObject* pkDialog = Attach("DLG_A { OBJ_1 focusable }");
    CGUIObject* pkPopup = Attach("POP_1 invisible");

    kManager.OnDialogAdded(pkDialog);
    kManager.OnDialogActivation(pkDialog);
    kManager.OnDialogDeactivation(pkDialog);
    kManager.OnAfterDialogDeletion(DLG_A, DLG_B);
    kManager.OnLastDialogDeletion();
    kManager.OnPopupActivation(pkPopup);
    kManager.OnPopupDeactivation(pkPopup);

    EXPECT_EVENTS("");
    EXPECT_TEXT(R"(
        current: none
        tree:
          DLG_A
            OBJ_1 focusable
          POP_1 invisible
    )",
                PrintState(kManager));
}

TEST_F(CDialogManagerObjectTest, DefaultHooks_DeletingSwitch_DeletesTheOldDialog)
{
    CPlainManager kManager;
    CodeFactory().RegisterTree("code:A", "DLG_A");
    CodeFactory().RegisterTree("code:B", "DLG_B");
    EXPECT_TRUE(kManager.RegisterDialogDefinition("code:A", DLG_A));
    EXPECT_TRUE(kManager.RegisterDialogDefinition("code:B", DLG_B));
    kManager.CreateDialog(DLG_A, ODA_NOTHING);

    kManager.CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_TEXT(R"(
        current: DLG_B after ODA_DELETE
        history: DLG_A ODA_DELETE (after ODA_NOTHING)
        tree:
          DLG_B
    )",
                PrintState(kManager, STATE_ALL & ~STATE_DEFINITIONS));
}

TEST_F(CDialogManagerObjectTest, GetDialogObject_WithoutOverrideAndDefinition_LogsBothHintsAndYieldsNull)
{
    const CPlainManager kManager;
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    EXPECT_EQ(nullptr, kManager.GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_TRUE(bAllowDeletion);
    EXPECT_TRUE(bRecoverFocus);
    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 1.\\n\n"
        "DEBUG: CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to implement "
        "the CreateDialogImpl in you derived class.\\n\n");
}

// --- Queries ---------------------------------------------------------------------------------------

TEST_F(CDialogManagerObjectTest, GetCurrentDialogID_FollowsTheCurrentDialog)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());

    Go(DLG_B, ODA_INVISIBLE);
    EXPECT_EQ(DLG_B, Manager().GetCurrentDialogID());

    Manager().Back(true);
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

TEST_F(CDialogManagerObjectTest, GetCurrentDialog_FindsAnInvisibleDialogToo)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    EXPECT_EQ(Object(DLG_B), Manager().GetCurrentDialog());

    Object(DLG_B)->SetInvisible(true);

    EXPECT_NE(nullptr, Manager().GetCurrentDialog());
    EXPECT_EQ(Object(DLG_B), Manager().GetCurrentDialog());
    EXPECT_EVENTS("");
}

TEST_F(CDialogManagerObjectTest, GetCurrentDialog_WhenTheObjectIsGone_IsNullAndTheIdentifierStays)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    delete Object(DLG_A);

    EXPECT_EQ(nullptr, Manager().GetCurrentDialog());
    EXPECT_EQ(DLG_A, Manager().GetCurrentDialogID());
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CDialogManagerObjectTest, GetCurrentDialog_WithoutRoot_StopsTheProgram)
{
    DestroyRoot();

    EXPECT_DEATH(Manager().GetCurrentDialog(), "NULL != ms_pInstance");
}
#endif

TEST_F(CDialogManagerObjectTest, GetHistoryStackSize_CountsTheEntries)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());

    Go(DLG_B, ODA_INVISIBLE);
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());

    Go(DLG_C, ODA_DELETE);
    EXPECT_EQ(2U, Manager().GetHistoryStackSize());
}

TEST_F(CDialogManagerObjectTest, GetLastDialogID_IsTheMostRecentEntry)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    EXPECT_EQ(NO_HANDLE, Manager().GetLastDialogID());

    Go(DLG_B, ODA_INVISIBLE);
    EXPECT_EQ(DLG_A, Manager().GetLastDialogID());

    Go(DLG_C, ODA_INVISIBLE);
    EXPECT_EQ(DLG_B, Manager().GetLastDialogID());
}

TEST_F(CDialogManagerObjectTest, ContainsDialog_ConsidersTheCurrentDialogOnlyOnRequest)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);
    Go(DLG_C, ODA_INVISIBLE);

    EXPECT_TRUE(Manager().ContainsDialog(DLG_A, false));
    EXPECT_TRUE(Manager().ContainsDialog(DLG_A, true));
    EXPECT_TRUE(Manager().ContainsDialog(DLG_B, false));
    EXPECT_TRUE(Manager().ContainsDialog(DLG_B, true));
    EXPECT_FALSE(Manager().ContainsDialog(DLG_C, false));
    EXPECT_TRUE(Manager().ContainsDialog(DLG_C, true));
    EXPECT_FALSE(Manager().ContainsDialog(DLG_D, false));
    EXPECT_FALSE(Manager().ContainsDialog(DLG_D, true));
}

TEST_F(CDialogManagerObjectTest, ContainsDialog_OfNoHandle_IsTrueWhenNoDialogIsCurrentAndThatCounts)
{
    EXPECT_TRUE(Manager().ContainsDialog(NO_HANDLE, true));
    EXPECT_FALSE(Manager().ContainsDialog(NO_HANDLE, false));
}

TEST_F(CDialogManagerObjectTest, FindDialogInHistory_GivesTheMostRecentEntryOfADialog)
{
    AddHistoryEntry(DLG_A, ODA_DELETE);
    AddHistoryEntry(DLG_B, ODA_INVISIBLE);
    AddHistoryEntry(DLG_A, ODA_NOTHING);
    AddHistoryEntry(DLG_C, ODA_INVISIBLE);

    const Access::HistoryEntry_t* pkEntry = Access::FindDialogInHistory(Manager(), DLG_A);

    ASSERT_NE(nullptr, pkEntry);
    EXPECT_EQ(ODA_NOTHING, pkEntry->m_eAction);
    EXPECT_EQ(&(*Access::GetHistory(Manager()).GetAt(1)), pkEntry);
    EXPECT_EQ(nullptr, Access::FindDialogInHistory(Manager(), DLG_D));
}

TEST_F(CDialogManagerObjectTest,
       FindDialogInHistory_InAHistoryOfAnyLength_FindsEachEntryAndTheMoreRecentOfTwo)
{
    for (eC_UInt uiLength = 1; uiLength <= 7; ++uiLength)
    {
        AddHistoryEntry(DLG_B, ODA_INVISIBLE);
        for (eC_UInt uiRecent = 0; uiRecent < uiLength; ++uiRecent)
        {
            for (eC_UInt uiOlder = uiRecent; uiOlder < uiLength; ++uiOlder)
            {
                Access::HistoryEntry_t& kRecent = *Access::GetHistory(Manager()).GetAt(uiRecent);
                Access::HistoryEntry_t& kOlder = *Access::GetHistory(Manager()).GetAt(uiOlder);
                kRecent.m_Dialog.m_eDialogID = DLG_A;
                kOlder.m_Dialog.m_eDialogID = DLG_A;

                EXPECT_EQ(&kRecent, Access::FindDialogInHistory(Manager(), DLG_A))
                    << uiRecent << " and " << uiOlder << " of " << uiLength;

                kRecent.m_Dialog.m_eDialogID = DLG_B;
                kOlder.m_Dialog.m_eDialogID = DLG_B;
                EXPECT_EQ(nullptr, Access::FindDialogInHistory(Manager(), DLG_A));
            }
        }
    }
}

TEST_F(CDialogManagerObjectTest, GetDialogHistory_IsTheHistoryItself)
{
    EXPECT_EQ(&Access::GetHistory(Manager()), &Manager().GetDialogHistory());
    EXPECT_TRUE(std::is_const<std::remove_reference<decltype(Manager().GetDialogHistory())>::type>::value);
}

TEST_F(CDialogManagerObjectTest, Queries_LogNothingAndChangeNothing)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_INVISIBLE);

    Manager().GetCurrentDialogID();
    Manager().GetCurrentDialog();
    Manager().GetHistoryStackSize();
    Manager().GetLastDialogID();
    Manager().ContainsDialog(DLG_A, true);
    Access::FindDialogInHistory(Manager(), DLG_A);

    EXPECT_EVENTS("");
    EXPECT_WHOLE_STATE(R"(
        current: DLG_B after ODA_INVISIBLE
        history: DLG_A ODA_INVISIBLE (after ODA_NOTHING)
        dialog: DLG_A "code:DLG_A"
        dialog: DLG_B "code:DLG_B"
        dialog: DLG_C "code:DLG_C"
        dialog: DLG_D "code:DLG_D"
        tree:
          DLG_A invisible
          DLG_B
    )");
}
} // namespace
