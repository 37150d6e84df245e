// SPDX-License-Identifier: MIT
#include "Companions/GUIRestore.h"

#include "Companions/GUIGuard.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Companions/CompanionTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace
{
/** Is thrown when the power fails. */
struct PowerFailure_t
{
};

/** Two slots in memory, and a power supply that fails. */
class CMemoryStorage : public CGUIRestoreStorage
{
public:
    /** How a write that is cut short looks. */
    enum EMedium : unsigned char
    {
        OVERWRITES, ///< the bytes after those written keep their contents
        ERASES,     ///< flash: the slot is erased first
        FORWARDS,   ///< a file: what comes after those written is gone
        BACKWARDS   ///< the last byte is written first
    };

    eC_Bool WriteSlot(eC_UInt uiSlot, const unsigned char* puiBytes, eC_UInt uiSize) override
    {
        std::vector<unsigned char>& kSlot = m_akSlots[uiSlot];
        ++m_uiNOFWrites;
        if (m_bIsBroken)
        {
            return false;
        }
        PrepareSlot(kSlot, uiSize);
        for (eC_UInt uiByte = 0; uiByte < uiSize; ++uiByte)
        {
            if (m_uiBytesLeft == 0)
            {
                throw PowerFailure_t();
            }
            --m_uiBytesLeft;
            const eC_UInt uiPlace = m_eMedium == BACKWARDS ? uiSize - 1 - uiByte : uiByte;
            kSlot.resize(std::max<std::size_t>(kSlot.size(), uiPlace + 1));
            kSlot[uiPlace] = puiBytes[uiPlace];
        }
        return true;
    }

    eC_UInt ReadSlot(eC_UInt uiSlot, unsigned char* puiBytes, eC_UInt uiSize) override
    {
        const std::vector<unsigned char>& kSlot = m_akSlots[uiSlot];
        const eC_UInt uiRead = std::min(uiSize, static_cast<eC_UInt>(kSlot.size()));
        std::copy_n(kSlot.begin(), uiRead, puiBytes);
        return uiRead;
    }

    std::vector<unsigned char> m_akSlots[2];
    EMedium m_eMedium = OVERWRITES;
    eC_UInt m_uiBytesLeft = 0xFFFFFFFFU; ///< until the power fails
    eC_UInt m_uiNOFWrites = 0;
    bool m_bIsBroken = false;

private:
    void PrepareSlot(std::vector<unsigned char>& kSlot, eC_UInt uiSize) const
    {
        if (m_eMedium == ERASES)
        {
            kSlot.assign(200, 0xFF);
        }
        else if (m_eMedium == FORWARDS)
        {
            kSlot.clear();
        }
        else if (m_eMedium == BACKWARDS)
        {
            kSlot.resize(uiSize);
        }
    }
};

/** Saves one number for each dialog that is in a table. */
class CNumbers : public CGUIRestoreArguments
{
public:
    explicit CNumbers(CGUIDialogManager& kManager) : m_kManager(kManager) {}

    eC_UInt SaveArgument(ObjectHandle_t eID, eC_UInt uiLevel, unsigned char* puiBytes,
                         eC_UInt uiSize) override
    {
        if (uiSize >= 2 && eID != DLG_A)
        {
            puiBytes[0] = static_cast<unsigned char>(uiLevel);
            puiBytes[1] = 77;
        }
        return eID != DLG_A ? 2 : 0;
    }

    CGUIObject* CreateDialog(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction,
                             const unsigned char* puiBytes, eC_UInt uiSize) override
    {
        m_kShown += NameOfHandle(eID) + ":" + std::to_string(puiBytes[0]) + "," +
                    std::to_string(puiBytes[1]) + "," + std::to_string(uiSize) + " ";
        return m_kManager.CreateDialog(eID, eAction);
    }

    std::string m_kShown;

private:
    CGUIDialogManager& m_kManager;
};

/** @return the checksum of a block, computed in another way than by the class: with the bits not reflected */
eC_UInt GetChecksum(const std::vector<unsigned char>& kBlock)
{
    eC_UInt uiChecksum = 0xFFFFFFFFU;
    for (std::size_t uiBit = 0; uiBit < (kBlock.size() - 4) * 8; ++uiBit)
    {
        const eC_UInt uiIn = (static_cast<eC_UInt>(kBlock[uiBit / 8]) >> uiBit % 8) & 1U;
        uiChecksum = uiChecksum << 1U ^ ((uiChecksum >> 31U) != uiIn ? 0x04C11DB7U : 0U);
    }
    eC_UInt uiReflected = 0;
    for (eC_UInt uiBit = 0; uiBit < 32; ++uiBit)
    {
        uiReflected = uiReflected << 1U | ((~uiChecksum >> uiBit) & 1U);
    }
    return uiReflected;
}

constexpr eC_UInt cuiApplication = 0xC0FFEE;
constexpr eC_UInt cuiContents = 3;

/** A device with five dialogs of which four can be saved. DLG_A is home, POP_1 to POP_3 are restored. */
class CRestoreTest : public CCompanionTest
{
protected:
    using Restore_t = CGUIRestoreOf<4, 2, 6>;

    CRestoreTest() { Boot(); }
    ~CRestoreTest() override { SwitchOff(); }

    /** Everything but the storage is new. */
    void Boot()
    {
        SwitchOff();
        m_pkManager = std::make_unique<CGUIObservedDialogManager>();
        m_pkRestore =
            std::make_unique<Restore_t>(*m_pkManager, m_kStorage, DLG_A, m_uiApplication, m_uiContents);
        m_pkRestore->SetPopups(m_aePopups, 3);
        m_pkManager->AddListener(m_kListener);
        for (const ObjectHandle_t eDialog : {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E})
        {
            const std::string kName = NameOfHandle(eDialog);
            CodeFactory().RegisterTree(PathOf(eDialog),
                                       kName + " { OBJ_1 focusable; OBJ_2 focusable; - focusable }");
            m_pkManager->RegisterDialogDefinition(PathOf(eDialog).c_str(), eDialog);
        }
        for (const ObjectHandle_t ePopup : {POP_1, POP_2, POP_3, POP_4})
        {
            CodeFactory().RegisterTree(PathOf(ePopup), NameOfHandle(ePopup) + " { OBJ_9 focusable }");
            m_pkManager->RegisterPopupDefinition(ePopup, CGUIDialogManager::PRIO_MEDIUM, 0, false,
                                                 PathOf(ePopup).c_str());
        }
        ClearEvents();
    }

    /** Gives the block in the first slot the checksum that belongs to it. */
    void Sign()
    {
        std::vector<unsigned char>& kSlot = m_kStorage.m_akSlots[0];
        const eC_UInt uiChecksum = GetChecksum(kSlot);
        for (std::size_t uiByte = 0; uiByte < 4; ++uiByte)
        {
            kSlot[kSlot.size() - 4 + uiByte] = static_cast<unsigned char>(uiChecksum >> 8 * uiByte);
        }
    }

    void SwitchOff()
    {
        m_pkRestore.reset();
        m_pkManager.reset();
        while (Root().GetFirstChild() != nullptr)
        {
            delete Root().GetFirstChild();
        }
    }

    CGUIObservedDialogManager& Manager() { return *m_pkManager; }
    Restore_t& Restore() { return *m_pkRestore; }
    ObjectHandle_t Current() { return m_pkManager->GetCurrentDialogID(); }
    std::string State() { return PrintState(*m_pkManager, STATE_ALL & ~STATE_DEFINITIONS); }

    void Go(ObjectHandle_t eID, CGUIDialogManager::EOldDialogAction eAction = ODA_INVISIBLE)
    {
        EXPECT_NE(nullptr, m_pkManager->CreateDialog(eID, eAction));
        ClearEvents();
    }

    /** Restores, expects the home dialog, and what was logged before it was shown. */
    void ExpectHome(const std::string& kTrace)
    {
        EXPECT_FALSE(Restore().Restore());
        EXPECT_EQ(DLG_A, Current());
        EXPECT_EQ(0U, Manager().GetHistoryStackSize());
        EXPECT_TEXT(kTrace +
                        "INFO: Time for loading code:DLG_A: 0.\\n\n"
                        "DEBUG: CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\\n\n",
                    JoinLines(TakeTrace()));
    }

    CMemoryStorage m_kStorage;
    eC_UInt m_uiApplication = cuiApplication;
    eC_UInt m_uiContents = cuiContents;
    const ObjectHandle_t m_aePopups[3] = {POP_1, POP_2, POP_3};
    CRecordingListener m_kListener{Events(), "Listener"};
    std::unique_ptr<CGUIObservedDialogManager> m_pkManager;
    std::unique_ptr<Restore_t> m_pkRestore;
};

// --- What is restored --------------------------------------------------------------------------------

TEST_F(CRestoreTest, Restore_TheStateIsAsItWas)
{
    Go(DLG_A, CGUIDialogManager::ODA_DELETE_ALL);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_DELETE);
    SetFocus(OBJ_2);
    Go(DLG_C, ODA_NOTHING);
    Object(DLG_C)->GetObjectByID(OBJ_1, false)->RequestFocus();
    Go(DLG_D, CGUIDialogManager::ODA_INVISIBLE_ALL);
    Object(DLG_D)->GetObjectByID(OBJ_2, false)->RequestFocus();
    Manager().ShowPopup(POP_2);
    const std::string kBefore = State();
    EXPECT_TRUE(Restore().Save());

    Boot();
    EXPECT_TRUE(Restore().Restore());

    EXPECT_EQ(kBefore, State());
    EXPECT_TEXT(R"(
        current: DLG_D after ODA_INVISIBLE_ALL
        history: DLG_C ODA_INVISIBLE_ALL focus OBJ_1 (after ODA_NOTHING)
        history: DLG_B ODA_NOTHING focus OBJ_2 (after ODA_DELETE)
        history: DLG_A ODA_DELETE focus OBJ_2 (after ODA_DELETE_ALL)
        active: POP_2 prio 5, 0 ms, hide on close, shown
        remembered: OBJ_2
        focus: OBJ_2
        tree:
          DLG_B invisible
            OBJ_1 focusable
            OBJ_2 focusable
            - focusable
          DLG_C invisible
            OBJ_1 focusable
            OBJ_2 focusable
            - focusable
          DLG_D
            OBJ_1 focusable
            OBJ_2 focussed
            - focusable
          POP_2
            OBJ_9 focusable
    )",
                kBefore);
}

TEST_F(CRestoreTest, Restore_GoingBackWorksAsBefore)
{
    Go(DLG_A);
    SetFocus(OBJ_2);
    Go(DLG_B, ODA_DELETE);
    Restore().Save();
    Boot();
    Restore().Restore();
    ClearEvents();

    Manager().Back(true);

    EXPECT_STATE(R"(
        current: DLG_A after ODA_INVISIBLE
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
            - focusable
    )");
}

TEST_F(CRestoreTest, Restore_TheHooksAreThoseOfTheSwitches)
{
    Go(DLG_A);
    Go(DLG_B, ODA_DELETE);
    Restore().Save();
    Boot();
    bool bWasRestoring = false;
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED, [&](CGUIObject*) { bWasRestoring = Restore().IsRestoring(); });

    Restore().Restore();

    EXPECT_TRUE(bWasRestoring);
    EXPECT_FALSE(Restore().IsRestoring());
    EXPECT_HOOKS(R"(
        Listener OnDialogAdded(DLG_A)
        Listener OnDialogActivation(DLG_A)
        Listener OnDialogDeletion(DLG_A)
        Listener OnDialogAdded(DLG_B)
        Listener OnDialogActivation(DLG_B)
    )");
}

TEST_F(CRestoreTest, SameDialogTwice_IsRestoredTwice)
{
    Go(DLG_A);
    Go(DLG_B);
    Go(DLG_A);
    const std::string kBefore = State();
    Restore().Save();

    Boot();
    Restore().Restore();

    EXPECT_EQ(kBefore, State());
}

TEST_F(CRestoreTest, OnlyDialog_IsRestored_ItsActionBecomesNothing_Intended)
{
    Go(DLG_B, ODA_DELETE);
    Restore().Save();

    Boot();
    EXPECT_TRUE(Restore().Restore());

    EXPECT_STATE(R"(
        current: DLG_B after ODA_NOTHING
        focus: OBJ_1
        tree:
          DLG_B
            OBJ_1 focussed
            OBJ_2 focusable
            - focusable
    )");
}

TEST_F(CRestoreTest, EntriesWereRemovedFromTheHistory_TheActionIsThatOfThePredecessor_Intended)
{
    Go(DLG_A, ODA_NOTHING);
    Go(DLG_B, ODA_DELETE);
    Go(DLG_C, ODA_INVISIBLE);
    Manager().ClearDialogHistory(1, true, false);
    Restore().Save();

    Boot();
    Restore().Restore();

    EXPECT_EQ(DLG_C, Current());
    EXPECT_NE(std::string::npos, State().find("current: DLG_C after ODA_DELETE\n")) << State();
}

TEST_F(CRestoreTest, DialogWithADynamicIdentifier_AndAllAfterIt_AreNotSaved)
{
    Go(DLG_A);
    Go(DLG_B);
    Manager().AddDialog(Attach("-"), ODA_INVISIBLE, true);
    Go(DLG_C);
    Restore().Save();

    Boot();
    Restore().Restore();

    EXPECT_EQ(DLG_B, Current());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CRestoreTest, CurrentDialogWithADynamicIdentifier_ThoseBeforeItAreSaved)
{
    Go(DLG_A);
    Go(DLG_B);
    Manager().AddDialog(Attach("-"), ODA_INVISIBLE, true);
    Restore().Save();

    Boot();
    Restore().Restore();

    EXPECT_EQ(DLG_B, Current());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
}

TEST_F(CRestoreTest, TheDialogItselfHasTheFocus_GetsItBack)
{
    CodeFactory().RegisterTree(PathOf(DLG_B), "DLG_B focusable { OBJ_1 focusable }");
    Go(DLG_A);
    Go(DLG_B);
    Object(DLG_B)->RequestFocus();
    Restore().Save();

    Boot();
    CodeFactory().RegisterTree(PathOf(DLG_B), "DLG_B { OBJ_1 focusable }");
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                        [this](CGUIObject*) {
                            m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                                                [](CGUIObject* pkDialog) { pkDialog->SetFocusable(true); });
                        });
    Restore().Restore();

    EXPECT_EQ(Object(DLG_B), Focus());
}

TEST_F(CRestoreTest, DialogIsLeftForOneThatIsDestroyed_TheFocusIsGivenWhereItIs)
{
    Go(DLG_A);
    SetFocus(OBJ_2);
    Restore().Save();
    Boot();
    m_kListener.RunOnce(HOOK_ON_DIALOG_ACTIVATION,
                        [this](CGUIObject*)
                        {
                            Manager().CreateDialog(DLG_C, ODA_NOTHING);
                            delete Object(DLG_C);
                        });

    EXPECT_TRUE(Restore().Restore());

    EXPECT_STATE(R"(
        current: DLG_C after ODA_NOTHING
        history: DLG_A ODA_NOTHING (after ODA_NOTHING)
        focus: OBJ_2
        tree:
          DLG_A
            OBJ_1 focusable
            OBJ_2 focussed
            - focusable
    )");
}

TEST_F(CRestoreTest, DynamicFocus_IsNotSaved)
{
    Go(DLG_A);
    CGUIEventHandler::GetInstance().FocusPrevious(Object(DLG_A));
    Go(DLG_B);
    Restore().Save();
    Boot();
    Restore().Restore();

    EXPECT_NE(std::string::npos, State().find("history: DLG_A ODA_INVISIBLE focus OBJ_1")) << State();
}

TEST_F(CRestoreTest, MoreDialogsThanThereIsRoomFor_TheMostRecentAreSaved)
{
    for (const ObjectHandle_t eDialog : {DLG_A, DLG_B, DLG_C, DLG_D, DLG_E})
    {
        Go(eDialog);
    }
    Restore().Save();

    Boot();
    Restore().Restore();

    EXPECT_EQ(DLG_E, Current());
    EXPECT_EQ(3U, Manager().GetHistoryStackSize());
    EXPECT_FALSE(Manager().ContainsDialog(DLG_A, true));
}

TEST_F(CRestoreTest, Popups_ThoseOfTheListAreSavedAsFarAsThereIsRoom)
{
    Go(DLG_A);
    for (const ObjectHandle_t ePopup : {POP_4, POP_3, POP_2, POP_1})
    {
        Manager().ShowPopup(ePopup);
    }
    Restore().Save();

    Boot();
    Restore().Restore();

    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_2));
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_3));
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_4));
}

TEST_F(CRestoreTest, PopupThatIsNoLongerToBeRestored_IsNotShown)
{
    Go(DLG_A);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Restore().Save();

    Boot();
    Restore().SetPopups(m_aePopups + 1, 2);
    Restore().Restore();

    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_2));
}

TEST_F(CRestoreTest, PopupHasTheFocus_ThatOfTheDialogIsTheOneSavedLast)
{
    Go(DLG_A);
    Object(DLG_A)->GetObjectByID(OBJ_2, false)->RequestFocus();
    Restore().Save();
    Manager().ShowPopup(POP_1);
    Object(OBJ_9)->RequestFocus();
    Restore().Save();

    Boot();
    Restore().Restore();

    ASSERT_NE(nullptr, Focus());
    EXPECT_EQ(OBJ_2, Focus()->GetID());
}

TEST_F(CRestoreTest, NoDialogIsCurrent_LeadsHomeWithoutAWarning)
{
    EXPECT_TRUE(Restore().Save());

    Boot();

    ExpectHome("");
}

TEST_F(CRestoreTest, Arguments_AreRestoredAsFarAsThereIsRoom)
{
    CNumbers kNumbers(Manager());
    Restore().SetArguments(&kNumbers);
    Go(DLG_A);
    Go(DLG_B);
    Go(DLG_C);
    Go(DLG_D);
    EXPECT_TRUE(Restore().Save());
    EXPECT_EQ(26U + 4 * 11 + 3 * 2, m_kStorage.m_akSlots[0].size());

    Boot();
    CNumbers kOthers(Manager());
    Restore().SetArguments(&kOthers);
    Restore().Restore();
    EXPECT_EQ("DLG_B:1,77,2 DLG_C:2,77,2 DLG_D:3,77,2 ", kOthers.m_kShown);
    EXPECT_EQ(DLG_D, Current());

    // One more does not fit.
    Go(DLG_E);
    Go(DLG_B);
    Restore().Save();
    Boot();
    CNumbers kAgain(Manager());
    Restore().SetArguments(&kAgain);
    Restore().Restore();
    EXPECT_EQ("DLG_C:2,77,2 DLG_D:3,77,2 DLG_E:4,77,2 ", kAgain.m_kShown);
    EXPECT_EQ(DLG_B, Current());
}

TEST_F(CRestoreTest, Arguments_WithoutSomebodyWhoTakesThem_AreIgnored)
{
    CNumbers kNumbers(Manager());
    Restore().SetArguments(&kNumbers);
    Go(DLG_B);
    Restore().Save();

    Boot();
    EXPECT_TRUE(Restore().Restore());

    EXPECT_EQ(DLG_B, Current());
}

TEST_F(CRestoreTest, GuardedDialog_IsNotSeenAfterwards)
{
    const ObjectHandle_t aeGuarded[] = {DLG_C};
    Go(DLG_A);
    Go(DLG_C);
    Restore().Save();
    Boot();
    CGUIGuard kGuard(Manager(), DLG_E, aeGuarded, 1);

    EXPECT_TRUE(Restore().Restore());

    EXPECT_TRUE(Object(DLG_C)->IsInvisible());
    kGuard.Settle();
    EXPECT_TRUE(kGuard.IsAsking());
    EXPECT_TRUE(kGuard.Refuse());
    EXPECT_EQ(DLG_A, Current());
}

// --- What is not restored ----------------------------------------------------------------------------

TEST_F(CRestoreTest, NothingWasSaved_LeadsHomeWithoutAWarning)
{
    ExpectHome("");
}

TEST_F(CRestoreTest, ErasedFlash_LeadsHomeWithoutAWarning)
{
    m_kStorage.m_akSlots[0].assign(200, 0xFF);
    m_kStorage.m_akSlots[1].assign(200, 0x00);

    ExpectHome("");
}

TEST_F(CRestoreTest, BlockOfAnotherApplication_LeadsHomeWithOneWarning)
{
    Go(DLG_B);
    Restore().Save();
    ++m_uiApplication;
    Boot();

    ExpectHome("WARNING: CGUIRestore::Restore: Nothing is restored, because the block is of another "
               "application.\\n\n");
}

TEST_F(CRestoreTest, BlockOfOtherContents_LeadsHomeWithOneWarning_AndIsReplaced)
{
    Go(DLG_B);
    Restore().Save();
    --m_uiContents;
    Boot();

    ExpectHome(
        "WARNING: CGUIRestore::Restore: Nothing is restored, because the block is of other contents.\\n\n");
    EXPECT_TRUE(Restore().Save());
    Boot();
    EXPECT_TRUE(Restore().Restore());
}

TEST_F(CRestoreTest, BlockOfAnotherVersion_LeadsHomeWithOneWarning)
{
    Go(DLG_B);
    Restore().Save();
    m_kStorage.m_akSlots[0][4] = 2;
    Boot();

    ExpectHome(
        "WARNING: CGUIRestore::Restore: Nothing is restored, because the block has another version.\\n\n");
}

TEST_F(CRestoreTest, BlockWithAnyWrongBit_LeadsHomeWithOneWarning)
{
    Go(DLG_A);
    Go(DLG_B);
    Restore().Save();
    const std::vector<unsigned char> kBlock = m_kStorage.m_akSlots[0];
    for (std::size_t uiBit = 0; uiBit < kBlock.size() * 8 && !HasFailure(); ++uiBit)
    {
        SCOPED_TRACE("bit " + std::to_string(uiBit));
        m_kStorage.m_akSlots[0] = kBlock;
        m_kStorage.m_akSlots[0][uiBit / 8] ^= static_cast<unsigned char>(1U << uiBit % 8);
        Boot();
        const bool bIsVersion = uiBit / 8 == 4 || uiBit / 8 == 5;
        ExpectHome(std::string("WARNING: CGUIRestore::Restore: Nothing is restored, because the block ") +
                   (bIsVersion ? "has another version" : "is damaged") + ".\\n\n");
    }
}

TEST_F(CRestoreTest, ValidBlockThatEndsTooEarly_WhatIsMissingIsZero)
{
    CNumbers kNumbers(Manager());
    Restore().SetArguments(&kNumbers);
    Go(DLG_A);
    Go(DLG_B);
    Restore().Save();
    // The argument of DLG_B is said to be longer than the block, and a third dialog to follow.
    std::vector<unsigned char>& kSlot = m_kStorage.m_akSlots[0];
    ASSERT_EQ(26U + 2 * 11 + 2, kSlot.size());
    kSlot[20] = 3;
    kSlot[21 + 2 * 11 - 2] = 99;
    Sign();
    Boot();
    CNumbers kOthers(Manager());
    Restore().SetArguments(&kOthers);
    m_kListener.m_eBuilds = DLG_H;

    EXPECT_TRUE(Restore().Restore());

    EXPECT_EQ("", kOthers.m_kShown);
    EXPECT_EQ(DLG_B, Current());
    EXPECT_EQ(1U, Manager().GetHistoryStackSize());
    EXPECT_NE(std::string::npos,
              JoinLines(TakeTrace())
                  .find("WARNING: CGUIRestore::ShowDialog: Dialog with ID 0 cannot be restored.\\n\n"));
}

TEST_F(CRestoreTest, BlockThatIsCutShort_LeadsHomeWithOneWarning)
{
    Go(DLG_A);
    Go(DLG_B);
    Restore().Save();
    const std::vector<unsigned char> kBlock = m_kStorage.m_akSlots[0];
    for (std::size_t uiSize = 2; uiSize < kBlock.size() && !HasFailure(); ++uiSize)
    {
        SCOPED_TRACE("size " + std::to_string(uiSize));
        m_kStorage.m_akSlots[0].assign(kBlock.begin(), kBlock.begin() + static_cast<std::ptrdiff_t>(uiSize));
        Boot();
        ExpectHome("WARNING: CGUIRestore::Restore: Nothing is restored, because the block is damaged.\\n\n");
    }
}

TEST_F(CRestoreTest, DialogThatCannotBeObtained_EndsTheRestoringWithOneWarning_PopupsAreShown)
{
    Go(DLG_A);
    Go(DLG_B);
    Go(DLG_C);
    Go(DLG_D);
    Manager().ShowPopup(POP_1);
    Restore().Save();
    Boot();
    Manager().UnregisterDialogDefinition(DLG_C);

    EXPECT_TRUE(Restore().Restore());

    EXPECT_EQ(DLG_B, Current());
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
    const std::string kTrace = JoinLines(TakeTrace());
    EXPECT_NE(std::string::npos,
              kTrace.find("WARNING: CGUIRestore::ShowDialog: Dialog with ID 3 cannot be restored.\\n\n"));
    EXPECT_EQ(kTrace.find("WARNING"), kTrace.rfind("WARNING"));
}

TEST_F(CRestoreTest, FirstDialogCannotBeObtained_LeadsHomeWithOneWarning)
{
    Go(DLG_B);
    Go(DLG_C);
    Manager().ShowPopup(POP_1);
    Restore().Save();
    Boot();
    Manager().UnregisterDialogDefinition(DLG_B);

    EXPECT_FALSE(Restore().Restore());

    EXPECT_EQ(DLG_A, Current());
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
    const std::string kTrace = JoinLines(TakeTrace());
    EXPECT_NE(std::string::npos, kTrace.find("WARNING"));
    EXPECT_EQ(kTrace.find("WARNING"), kTrace.rfind("WARNING"));
}

TEST_F(CRestoreTest, DialogIsDestroyedByItsOwnSwitch_LeadsHomeWithOneWarning)
{
    Go(DLG_A);
    Go(DLG_C);
    Go(DLG_B, ODA_DELETE);
    Restore().Save();
    Boot();
    // In this build of the application it has become a part of the dialog that the switch deletes.
    Manager().UnregisterDialogDefinition(DLG_B);
    CodeFactory().RegisterTree(PathOf(DLG_C), "DLG_C { DLG_B }");

    EXPECT_FALSE(Restore().Restore());

    EXPECT_EQ(DLG_A, Current());
    EXPECT_EQ(0U, Manager().GetHistoryStackSize());
    const std::string kTrace = JoinLines(TakeTrace());
    EXPECT_NE(std::string::npos, kTrace.find("Dialog with ID 2 cannot be restored"));
    EXPECT_EQ(kTrace.find("WARNING"), kTrace.rfind("WARNING"));
}

TEST_F(CRestoreTest, Forget_TheNextResetLeadsHomeWithoutAWarning)
{
    Go(DLG_B);
    Restore().Save();
    Boot();

    EXPECT_TRUE(Restore().Forget());

    ExpectHome("");
}

TEST_F(CRestoreTest, Forget_AfterSaving_ReplacesTheNewestBlockOnly)
{
    Go(DLG_B);
    Restore().Save();

    EXPECT_TRUE(Restore().Forget());

    EXPECT_EQ(26U + 11, m_kStorage.m_akSlots[0].size());
    EXPECT_EQ(26U, m_kStorage.m_akSlots[1].size());
    Boot();
    ExpectHome("");
}

TEST_F(CRestoreTest, HookThrowsWhileRestoring_Passes_AndSavingWorksAgain)
{
    Go(DLG_A);
    Go(DLG_B);
    Restore().Save();
    Boot();
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED, [](CGUIObject*) { throw 7; });

    EXPECT_THROW(Restore().Restore(), int);

    EXPECT_FALSE(Restore().IsRestoring());
    EXPECT_TRUE(Restore().Save());
}

// --- When it is saved --------------------------------------------------------------------------------

TEST_F(CRestoreTest, Save_OnlyWhatDiffersIsWritten_IntoTheSlotsInTurn)
{
    Go(DLG_A);
    Restore().Save();
    Restore().Save();
    EXPECT_EQ(1U, m_kStorage.m_uiNOFWrites);
    Go(DLG_B);
    Restore().Save();
    EXPECT_EQ(2U, m_kStorage.m_uiNOFWrites);
    EXPECT_EQ(26U + 11, m_kStorage.m_akSlots[0].size());
    EXPECT_EQ(26U + 2 * 11, m_kStorage.m_akSlots[1].size());

    Boot();
    Restore().Restore();
    Restore().Save();
    EXPECT_EQ(2U, m_kStorage.m_uiNOFWrites);
    Manager().Back(true);
    Restore().Save();
    EXPECT_EQ(3U, m_kStorage.m_uiNOFWrites);
    EXPECT_EQ(26U + 11, m_kStorage.m_akSlots[0].size());
}

TEST_F(CRestoreTest, Save_WithoutRestore_ContinuesWithTheOlderSlot)
{
    Go(DLG_A);
    Restore().Save();
    Go(DLG_B);
    Restore().Save();
    const std::vector<unsigned char> kNewest = m_kStorage.m_akSlots[1];
    Boot();

    Go(DLG_C);
    Restore().Save();

    EXPECT_EQ(kNewest, m_kStorage.m_akSlots[1]);
    Boot();
    Restore().Restore();
    EXPECT_EQ(DLG_C, Current());
}

TEST_F(CRestoreTest, SequenceNumber_AcrossItsWrap_TheNewerBlockIsRestored)
{
    Go(DLG_A);
    Restore().Save();
    // Rewrite the sequence number and the checksum: every later block counts on from there.
    std::vector<unsigned char>& kSlot = m_kStorage.m_akSlots[0];
    std::fill_n(kSlot.begin() + 8, 4, static_cast<unsigned char>(0xFF));
    Sign();
    Boot();
    EXPECT_TRUE(Restore().Restore());
    Go(DLG_B);
    Restore().Save();
    EXPECT_EQ(0, m_kStorage.m_akSlots[1][8]);

    Boot();
    Restore().Restore();

    EXPECT_EQ(DLG_B, Current());
}

TEST_F(CRestoreTest, Start_SavesSomeTimeAfterTheFirstHook)
{
    Go(DLG_A);
    Restore().Start(500);
    Clock().Advance(400);
    Go(DLG_B);
    Manager().ShowPopup(POP_1);

    Clock().Advance(99);
    EXPECT_EQ(0U, m_kStorage.m_uiNOFWrites);
    Clock().Advance(1);
    EXPECT_EQ(1U, m_kStorage.m_uiNOFWrites);
    EXPECT_EQ(CGUITimer::cuiNoCallback, GETTIMER.GetTimeUntilNextCallback());

    Manager().ClosePopup(POP_1);
    Clock().Advance(500);
    EXPECT_EQ(2U, m_kStorage.m_uiNOFWrites);
}

TEST_F(CRestoreTest, Stop_SavesNoMore)
{
    Go(DLG_A);
    Restore().Start(500);

    Restore().Stop();
    Go(DLG_B);
    Clock().Advance(1000);

    EXPECT_EQ(0U, m_kStorage.m_uiNOFWrites);
}

TEST_F(CRestoreTest, WritingFails_IsLogged_AndTriedAgain)
{
    Go(DLG_A);
    Restore().Save();
    Go(DLG_B);
    ClearEvents();
    m_kStorage.m_bIsBroken = true;

    EXPECT_FALSE(Restore().Save());

    EXPECT_TRACE(R"(
        WARNING: CGUIRestore::WriteBlock: The state cannot be saved.\n
    )");
    m_kStorage.m_bIsBroken = false;
    EXPECT_TRUE(Restore().Save());
    Boot();
    Restore().Restore();
    EXPECT_EQ(DLG_B, Current());
}

TEST_F(CRestoreTest, InsideAHookOfRestoring_NothingIsSavedOrForgotten)
{
    Go(DLG_A);
    Go(DLG_B);
    Restore().Save();
    Boot();
    bool bIsForgotten = true;
    m_kListener.RunOnce(HOOK_ON_DIALOG_ADDED,
                        [&](CGUIObject*)
                        {
                            EXPECT_TRUE(Restore().Save());
                            bIsForgotten = Restore().Forget();
                            EXPECT_FALSE(Restore().Restore());
                        });

    Restore().Restore();

    EXPECT_FALSE(bIsForgotten);
    EXPECT_EQ(DLG_B, Current());
    EXPECT_EQ(1U, m_kStorage.m_uiNOFWrites);
}

TEST_F(CRestoreTest, ManagerIsDestroyedFirst_NothingHappens)
{
    Restore().Start(100);
    m_pkManager.reset();
    Clock().Advance(200);

    EXPECT_TRUE(Restore().Save());
    EXPECT_FALSE(Restore().Restore());
    EXPECT_EQ(0U, m_kStorage.m_uiNOFWrites);
}

#if EC_SPAREBLOCKS_MOST_PER_SIZE > 0
TEST_F(CRestoreTest, SteadyState_Saving_AllocatesNothing)
{
    Go(DLG_A);
    Go(DLG_B);
    Manager().ShowPopup(POP_1);
    Restore().Start(10);
    Restore().Save();
    Manager().Back(false);
    Restore().Save();
    Manager().CreateDialog(DLG_B, ODA_INVISIBLE);
    ClearEvents();
    m_kStorage.m_akSlots[0].reserve(200);
    m_kStorage.m_akSlots[1].reserve(200);

    const CAllocationCounter kAllocations;
    EXPECT_TRUE(Restore().Save());
    EXPECT_EQ(0U, kAllocations.GetNumber());
}
#endif

// --- When the power fails ----------------------------------------------------------------------------

/** The parameter is what a write that is cut short leaves. */
class CRestorePowerTest : public CRestoreTest, public testing::WithParamInterface<CMemoryStorage::EMedium>
{
protected:
    /** Saves DLG_A, then DLG_B over it, then loses the power while it saves a third state. */
    void FailAfter(eC_UInt uiBytes)
    {
        m_kStorage = CMemoryStorage();
        m_kStorage.m_eMedium = GetParam();
        Boot();
        Go(DLG_A);
        Restore().Save();
        Go(DLG_B);
        Restore().Save();
        Go(DLG_C);
        Manager().ShowPopup(POP_1);
        m_kStorage.m_uiBytesLeft = uiBytes;
        EXPECT_THROW(Restore().Save(), PowerFailure_t);
        m_kStorage.m_uiBytesLeft = 0xFFFFFFFFU;
    }
};

TEST_P(CRestorePowerTest, PowerFailsAtAnyByte_TheStateBeforeIsRestored_AndSavingGoesOn)
{
    const eC_UInt uiSize = 26 + 3 * 11 + 4;
    for (eC_UInt uiBytes = 0; uiBytes < uiSize && !HasFailure(); ++uiBytes)
    {
        SCOPED_TRACE("after " + std::to_string(uiBytes) + " bytes");
        FailAfter(uiBytes);
        // The first six bytes are the same in all blocks, so without them the block is complete.
        const bool bIsComplete = GetParam() == CMemoryStorage::BACKWARDS && uiBytes >= uiSize - 6;

        Boot();
        EXPECT_TRUE(Restore().Restore());
        EXPECT_EQ(bIsComplete ? DLG_C : DLG_B, Current());
        EXPECT_EQ(bIsComplete ? 2U : 1U, Manager().GetHistoryStackSize());
        EXPECT_EQ(std::string::npos, JoinLines(TakeTrace()).find("WARNING"));

        Go(DLG_D);
        EXPECT_TRUE(Restore().Save());
        Boot();
        EXPECT_TRUE(Restore().Restore());
        EXPECT_EQ(DLG_D, Current());
    }
}

TEST_P(CRestorePowerTest, PowerFailsAtAnyByteOfTheFirstBlock_LeadsHome)
{
    for (eC_UInt uiBytes = 0; uiBytes < 26 + 11 && !HasFailure(); ++uiBytes)
    {
        SCOPED_TRACE("after " + std::to_string(uiBytes) + " bytes");
        m_kStorage = CMemoryStorage();
        m_kStorage.m_eMedium = GetParam();
        Boot();
        Go(DLG_B);
        m_kStorage.m_uiBytesLeft = uiBytes;
        EXPECT_THROW(Restore().Save(), PowerFailure_t);
        m_kStorage.m_uiBytesLeft = 0xFFFFFFFFU;

        Boot();
        EXPECT_FALSE(Restore().Restore());
        EXPECT_EQ(DLG_A, Current());
    }
}

INSTANTIATE_TEST_SUITE_P(Media, CRestorePowerTest,
                         testing::Values(CMemoryStorage::OVERWRITES, CMemoryStorage::ERASES,
                                         CMemoryStorage::FORWARDS, CMemoryStorage::BACKWARDS));
} // namespace
