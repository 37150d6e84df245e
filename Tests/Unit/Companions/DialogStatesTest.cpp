// SPDX-License-Identifier: MIT
#include "Companions/GUIDialogStates.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <string>

namespace
{
/** The state of any object: a text, which counts its bytes. */
class CTextState : public CGUIObjectState
{
public:
    eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const override
    {
        const auto uiLength = static_cast<eC_UInt>(m_kText.size());
        if (uiLength > 0 && uiLength <= uiSize)
        {
            std::memcpy(puiStateOUT, m_kText.data(), uiLength);
        }
        return m_uiClaimed != 0 ? m_uiClaimed : uiLength + (++m_uiSaves > 1 ? m_uiGrowth : 0);
    }

    eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) override
    {
        if (m_bThrowsOnce)
        {
            m_bThrowsOnce = false;
            throw std::bad_alloc();
        }
        m_kText.assign(reinterpret_cast<const char*>(puiState), uiSize);
        return true;
    }

    std::string m_kText;
    eC_UInt m_uiClaimed = 0;
    eC_UInt m_uiGrowth = 0;
    mutable eC_UInt m_uiSaves = 0;
    eC_Bool m_bThrowsOnce = false;
};

/** The states of all objects that were given one; a new object with the same address has none. */
std::map<const CGUIObject*, CTextState> g_kStates;

class CStatefulObject : public CGUIObject
{
public:
    CStatefulObject(CGUICompositeObject* pkParent, ObjectHandle_t eID) : CGUIObject(pkParent, eID)
    {
        g_kStates[this] = CTextState();
    }
    CStatefulObject(const CStatefulObject&) = delete;
    CStatefulObject& operator=(const CStatefulObject&) = delete;
    ~CStatefulObject() override { g_kStates.erase(this); }
};

CGUIObjectState* FindState(CGUIObject* pkObject)
{
    const auto kFound = g_kStates.find(pkObject);
    return kFound != g_kStates.end() ? &kFound->second : nullptr;
}

/** Builds each dialog with the stateful objects OBJ_1 and OBJ_2, one inside a group, and one without
 *  identifier.
 */
class CBuilder : public CGUIDialogListener
{
protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) override
    {
        auto* const pkDialog = new CGUICompositeObject(&CGUI::GetInstance(), eID);
        new CStatefulObject(pkDialog, OBJ_1);
        new CStatefulObject(new CGUICompositeObject(pkDialog, OBJ_3), OBJ_2);
        new CStatefulObject(pkDialog, NO_HANDLE);
        return pkDialog;
    }
};

using States_t = CGUIDialogStatesOf<100>;

class CDialogStatesTest : public CCompanionTest
{
protected:
    CDialogStatesTest()
    {
        Manager().AddListener(m_kBuilder);
        m_pkStates = std::make_unique<States_t>(Manager(), &FindState);
        Manager().AddListener(m_kListener);
        Go(DLG_A, ODA_NOTHING);
    }

    States_t& States() { return *m_pkStates; }

    /** @return the state of an object of a dialog */
    CTextState& StateOf(ObjectHandle_t eDialogID, ObjectHandle_t eID)
    {
        CGUIObject* const pkDialog = Object(eDialogID);
        EXPECT_NE(nullptr, pkDialog);
        return g_kStates.at(pkDialog->GetObjectByID(eID, false));
    }

    std::string& Text(ObjectHandle_t eDialogID, ObjectHandle_t eID)
    {
        return StateOf(eDialogID, eID).m_kText;
    }

    /** @return the trace entries of one class */
    std::string TraceOf(const std::string& kClass)
    {
        std::string kEntries;
        for (const std::string& kEntry : TakeTrace())
        {
            kEntries += kEntry.find(kClass) != std::string::npos ? kEntry : "";
        }
        return kEntries;
    }

    CBuilder m_kBuilder;
    std::unique_ptr<States_t> m_pkStates;
    CRecordingListener m_kListener{Events(), "Listener"};
};

// --- Saving and restoring ----------------------------------------------------------------------------

TEST_F(CDialogStatesTest, DeletedAndBuiltAgain_EachObjectHasItsState)
{
    Text(DLG_A, OBJ_1) = "one";
    Text(DLG_A, OBJ_2) = "second";
    Go(DLG_B, ODA_DELETE);
    EXPECT_EQ(nullptr, Object(DLG_A));
    EXPECT_EQ(12U + 8U + 3U + 8U + 6U, States().GetNOFBytes());
    std::string kNoted;
    m_kListener.RunOnce(HOOK_ON_DIALOG_ACTIVATION, [&](CGUIObject*) { kNoted = Text(DLG_A, OBJ_1); });

    Manager().Back(true);

    EXPECT_EQ("one", kNoted);
    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
    EXPECT_EQ("second", Text(DLG_A, OBJ_2));
    EXPECT_EQ(0U, States().GetNOFBytes());
}

TEST_F(CDialogStatesTest, ObjectsWithoutIdentifierOrState_AreNotSaved)
{
    for (auto& kState : g_kStates)
    {
        kState.second.m_kText = kState.first->GetID() == NO_HANDLE ? "lost" : "";
    }

    Go(DLG_B, ODA_DELETE);

    EXPECT_EQ(0U, States().GetNOFBytes());
}

TEST_F(CDialogStatesTest, SeveralObjectsWithOneIdentifier_TheFirstOneIsSaved)
{
    new CStatefulObject(static_cast<CGUICompositeObject*>(Object(DLG_A)), OBJ_1);
    for (auto& kState : g_kStates)
    {
        kState.second.m_kText =
            kState.first == Object(DLG_A)->GetObjectByID(OBJ_1, false) ? "first" : "other";
    }

    Go(DLG_B, ODA_DELETE);
    Manager().Back(true);

    EXPECT_EQ("first", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, Hidden_KeepsWhatItContains)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_INVISIBLE);
    EXPECT_EQ(0U, States().GetNOFBytes());
    Text(DLG_A, OBJ_1) = "changed";

    Manager().Back(true);

    EXPECT_EQ("changed", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, VetoedLater_KeepsWhatItContainsWhenItIsShownAgain)
{
    Text(DLG_A, OBJ_1) = "one";
    m_kListener.m_eVetoes = DLG_A;
    Go(DLG_B, ODA_DELETE);
    EXPECT_NE(nullptr, Object(DLG_A));
    Text(DLG_A, OBJ_1) = "changed";

    Manager().Back(true);
    EXPECT_EQ("changed", Text(DLG_A, OBJ_1));

    m_kListener.m_eVetoes = NO_HANDLE;
    Go(DLG_B, ODA_DELETE);
    Manager().Back(true);
    EXPECT_EQ("changed", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, VetoedAndDeletedByTheApplication_HasTheStateOfTheVeto)
{
    Text(DLG_A, OBJ_1) = "one";
    m_kListener.m_eVetoes = DLG_A;
    Go(DLG_B, ODA_DELETE);
    delete Object(DLG_A);

    Manager().Back(true);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, SwitchToItselfWithDeletion_TheNewOneHasTheState)
{
    Text(DLG_A, OBJ_1) = "one";

    Go(DLG_A, ODA_DELETE);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
    EXPECT_EQ(0U, States().GetNOFBytes());
}

TEST_F(CDialogStatesTest, BuiltAgainBelowTheReturningDialog_HasItsState)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_NOTHING);
    Text(DLG_B, OBJ_1) = "two";
    Go(DLG_C, CGUIDialogManager::ODA_DELETE_ALL);
    EXPECT_EQ(nullptr, Object(DLG_A));

    Manager().Back(true);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1)) << "shown again with DLG_B";
    EXPECT_EQ("two", Text(DLG_B, OBJ_1));
}

TEST_F(CDialogStatesTest, ScopeOfAll_LeftByGoingBack_HasItsStateTheNextTime)
{
    Go(DLG_B);
    Text(DLG_B, OBJ_1) = "two";
    Manager().Back(true);

    Go(DLG_B);

    EXPECT_EQ("two", Text(DLG_B, OBJ_1));
}

TEST_F(CDialogStatesTest, ScopeOfHistory_LeftByGoingBack_StartsAnew)
{
    States().SetScope(CGUIDialogStates::STATES_OF_HISTORY);
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_DELETE);
    Text(DLG_B, OBJ_1) = "two";
    Go(DLG_C, ODA_DELETE);
    Text(DLG_C, OBJ_1) = "three";

    Manager().Back(true);
    EXPECT_EQ("two", Text(DLG_B, OBJ_1));
    Go(DLG_C, ODA_DELETE);
    EXPECT_EQ("", Text(DLG_C, OBJ_1));
    Manager().BackToDialog(DLG_A, true, false);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
    EXPECT_EQ(0U, States().GetNOFBytes());
}

TEST_F(CDialogStatesTest, ScopeOfHistory_LeftButStillInTheHistory_KeepsItsState)
{
    States().SetScope(CGUIDialogStates::STATES_OF_HISTORY);
    Go(DLG_B, ODA_DELETE);
    Go(DLG_A, ODA_DELETE);
    Text(DLG_A, OBJ_1) = "one";

    Manager().Back(true);
    EXPECT_EQ(nullptr, Object(DLG_A));
    Manager().Back(true);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, Forget_TheDialogStartsAnew)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_DELETE);

    EXPECT_TRUE(States().Forget(DLG_A));
    EXPECT_FALSE(States().Forget(DLG_A));
    Manager().Back(true);

    EXPECT_EQ("", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, AddDialog_OfANewObject_HasTheState)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_DELETE);
    auto* const pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CStatefulObject(pkDialog, OBJ_1);

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, NewDialogLacksTheObjects_TheirStatesAreForgotten)
{
    Text(DLG_A, OBJ_1) = "one";
    Text(DLG_A, OBJ_2) = "second";
    Go(DLG_B, ODA_DELETE);
    auto* const pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    new CGUIObject(pkDialog, OBJ_1);

    Manager().AddDialog(pkDialog, ODA_INVISIBLE, true);

    EXPECT_EQ(0U, States().GetNOFBytes());
}

// --- Limit -------------------------------------------------------------------------------------------

TEST_F(CDialogStatesTest, NoRoom_TheDialogSavedFirstIsForgotten)
{
    Text(DLG_A, OBJ_1) = std::string(30, 'a');
    Go(DLG_B, ODA_DELETE);
    Text(DLG_B, OBJ_1) = std::string(10, 'b');
    Go(DLG_C, ODA_DELETE);
    EXPECT_EQ(80U, States().GetNOFBytes());
    Text(DLG_C, OBJ_1) = "c";
    ClearEvents();

    Manager().CreateDialog(DLG_D, ODA_DELETE);

    EXPECT_EQ(
        "WARNING: CGUIDialogStates::Save: The state of dialog with ID 1 is forgotten, there is no room.\\n",
        TraceOf("CGUIDialogStates"));
    EXPECT_EQ(51U, States().GetNOFBytes());
    Manager().Back(true);
    EXPECT_EQ("c", Text(DLG_C, OBJ_1));
    Manager().Back(true);
    EXPECT_EQ("bbbbbbbbbb", Text(DLG_B, OBJ_1));
    Manager().Back(true);
    EXPECT_EQ("", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, ExactlyTheLimit_IsSavedAndOneByteMoreIsNot)
{
    Text(DLG_A, OBJ_1) = std::string(80, 'a');
    Go(DLG_B, ODA_DELETE);
    EXPECT_EQ(100U, States().GetNOFBytes());
    Manager().Back(true);
    EXPECT_EQ(std::string(80, 'a'), Text(DLG_A, OBJ_1));
    Text(DLG_A, OBJ_1) += 'a';
    ClearEvents();

    Manager().CreateDialog(DLG_B, ODA_DELETE);

    EXPECT_EQ(
        "WARNING: CGUIDialogStates::Save: The state of dialog with ID 1 is larger than the limit and not "
        "saved.\\n",
        TraceOf("CGUIDialogStates"));
    EXPECT_EQ(0U, States().GetNOFBytes());
}

TEST_F(CDialogStatesTest, TooLarge_TheOthersAreKept)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_DELETE);
    StateOf(DLG_B, OBJ_1).m_uiClaimed = 0xFFFFFFFFU;

    Go(DLG_C, ODA_DELETE);

    EXPECT_EQ(23U, States().GetNOFBytes());
    Manager().BackToDialog(DLG_A, true, false);
    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, ObjectChangesItsMindAboutTheSize_TheDialogIsNotSaved)
{
    Text(DLG_A, OBJ_1) = "one";
    StateOf(DLG_A, OBJ_1).m_uiGrowth = 20;

    Go(DLG_B, ODA_DELETE);

    EXPECT_EQ(0U, States().GetNOFBytes());
    Manager().Back(true);
    EXPECT_EQ("", Text(DLG_A, OBJ_1));
}

// --- When something fails ----------------------------------------------------------------------------

TEST_F(CDialogStatesTest, RestoreThrows_PassesAndTheNextHookTriesAgain)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_DELETE);
    m_kListener.RunOnce(HOOK_CREATE_DIALOG_IMPL, [](CGUIObject*) {});
    auto* const pkDialog = new CGUICompositeObject(&Root(), DLG_A);
    g_kStates[new CStatefulObject(pkDialog, OBJ_1)].m_bThrowsOnce = true;

    EXPECT_THROW(Manager().CreateDialog(DLG_A, ODA_INVISIBLE), std::bad_alloc);
    EXPECT_EQ("", Text(DLG_A, OBJ_1));
    EXPECT_EQ(23U, States().GetNOFBytes());
    Go(DLG_C);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
    EXPECT_EQ(0U, States().GetNOFBytes());
}

TEST_F(CDialogStatesTest, LaterListenerThrowsInTheDeletion_TheDialogKeepsWhatItContains)
{
    Text(DLG_A, OBJ_1) = "one";
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Manager().CreateDialog(DLG_B, ODA_DELETE), int);
    Text(DLG_A, OBJ_1) = "changed";
    Go(DLG_B, ODA_INVISIBLE);

    EXPECT_EQ("changed", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, InsideAHook_AnotherDialogIsDeleted_BothHaveTheirStates)
{
    Text(DLG_A, OBJ_1) = "one";
    Go(DLG_B, ODA_INVISIBLE);
    Text(DLG_B, OBJ_1) = "two";
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION,
                        [this](CGUIObject*) { Manager().ClearDialogHistory(0, true, false); });

    Go(DLG_C, ODA_DELETE);
    EXPECT_EQ(nullptr, Object(DLG_A));
    EXPECT_EQ(nullptr, Object(DLG_B));
    Go(DLG_A);
    Manager().Back(false);
    Manager().Back(false);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
    EXPECT_EQ("two", Text(DLG_B, OBJ_1));
}

TEST_F(CDialogStatesTest, InsideAHook_SwitchesAgainAndDestroys_NothingIsLost)
{
    Text(DLG_A, OBJ_1) = "one";
    m_kListener.RunOnce(HOOK_ON_DIALOG_DELETION,
                        [this](CGUIObject* pkDialog)
                        {
                            Manager().CreateDialog(DLG_B, ODA_INVISIBLE);
                            delete pkDialog;
                        });
    Go(DLG_C, ODA_DELETE);
    EXPECT_EQ(nullptr, Object(DLG_A));

    Go(DLG_A);

    EXPECT_EQ("one", Text(DLG_A, OBJ_1));
}

TEST_F(CDialogStatesTest, ManagerIsDestroyedFirst_NothingHappens)
{
    auto pkManager = std::make_unique<CGUIObservedDialogManager>();
    States_t kStates(*pkManager, &FindState);

    pkManager.reset();

    EXPECT_FALSE(kStates.Forget(DLG_A));
    EXPECT_EQ(0U, kStates.GetNOFBytes());
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CDialogStatesTest, SavingAndRestoring_AllocatesNothingOfItsOwn)
{
    Text(DLG_A, OBJ_1) = "one";
    CGUITrace::GetInstance().SetSink(nullptr);
    Manager().RemoveListener(m_kListener);
    const auto kCountSwitchAndBack = [this]
    {
        const CAllocationCounter kAllocations;
        Manager().CreateDialog(DLG_B, ODA_DELETE);
        Manager().Back(true);
        return kAllocations.GetNumber();
    };
    kCountSwitchAndBack();
    const std::size_t uiWith = kCountSwitchAndBack();
    EXPECT_EQ("one", Text(DLG_A, OBJ_1));

    m_pkStates.reset();
    EXPECT_EQ(kCountSwitchAndBack(), uiWith);
}
#endif
} // namespace
