// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

#include <stdexcept>

namespace
{
class CDialogLoadingTest : public CDialogTest
{
protected:
    /** Defines a dialog that takes a while to load. */
    void DefineSlowDialog(ObjectHandle_t eID, eC_UInt uiMilliseconds)
    {
        CodeFactory().RegisterBuilder(PathOf(eID),
                                      [this, eID, uiMilliseconds]
                                      {
                                          Clock().Set(Clock().GetTime() + uiMilliseconds);
                                          return new CGUICompositeObject(nullptr, eID);
                                      });
        EXPECT_TRUE(Manager().RegisterDialogDefinition(PathOf(eID).c_str(), eID));
    }
};

// --- LoadDialogDescription -------------------------------------------------------------------------

TEST_F(CDialogLoadingTest, Load_AttachesTheDialogToTheRootAndLogsTheTime)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 }");

    CGUIObject* pkDialog = Manager().LoadDialogDescription(DLG_A);

    ASSERT_NE(nullptr, pkDialog);
    EXPECT_EQ(Object(DLG_A), pkDialog);
    EXPECT_EQ(&Root(), pkDialog->GetParent());
    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
            OBJ_1
    )");
}

TEST_F(CDialogLoadingTest, Load_LogsTheElapsedMillisecondsWithEmptyFileAndLine)
{
    Clock().Set(1000);
    DefineSlowDialog(DLG_A, 345);

    EXPECT_NE(nullptr, Manager().LoadDialogDescription(DLG_A));

    ASSERT_EQ(1U, TraceRecorder().GetEntries().size());
    const TraceEntry_t& kEntry = TraceRecorder().GetEntries().front();
    EXPECT_EQ("INFO: ", kEntry.m_kPrefix);
    EXPECT_EQ("Time for loading code:DLG_A: 345.\n", kEntry.m_kMessage);
    EXPECT_EQ("", kEntry.m_kFile);
    EXPECT_EQ("", kEntry.m_kLine);
}

TEST_F(CDialogLoadingTest, Load_AcrossTheWrapAroundOfTheClock_LogsTheElapsedTime)
{
    Clock().Set(0xFFFFFFF0U);
    DefineSlowDialog(DLG_A, 0x20);

    EXPECT_NE(nullptr, Manager().LoadDialogDescription(DLG_A));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 32.\n
    )");
    EXPECT_EQ(0x10U, Clock().GetTime());
}

TEST_F(CDialogLoadingTest, Load_OfMoreThanHalfTheClocksRange_LogsAnUnsignedNumber)
{
    DefineSlowDialog(DLG_A, 0xFFFFFFFFU);

    EXPECT_NE(nullptr, Manager().LoadDialogDescription(DLG_A));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 4294967295.\n
    )");
}

TEST_F(CDialogLoadingTest, Load_OfADialogThatIsHiddenInItsFile_ShowsIt)
{
    DefineDialog(DLG_A, "DLG_A invisible");

    EXPECT_NE(nullptr, Manager().LoadDialogDescription(DLG_A));

    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
    )");
}

TEST_F(CDialogLoadingTest, Load_OfADialogWithAnotherIdentifierInItsFile_OverridesThat)
{
    DefineDialog(DLG_A, "DLG_B invisible { OBJ_1 }");

    CGUIObject* pkDialog = Manager().LoadDialogDescription(DLG_A);

    EXPECT_EQ(Object(DLG_A), pkDialog);
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
            OBJ_1
    )");
}

TEST_F(CDialogLoadingTest, Load_OfADialogWithoutIdentifier_GivesItTheRegisteredOne)
{
    DefineDialog(DLG_A, "-");

    EXPECT_NE(nullptr, Manager().LoadDialogDescription(DLG_A));

    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A
    )");
}

TEST_F(CDialogLoadingTest, Load_OfAPopup_LoadsThePopupsFile)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 0, true, "POP_1");

    EXPECT_NE(nullptr, Manager().LoadDialogDescription(POP_1));

    EXPECT_EVENTS(R"(
        INFO: Time for loading code:POP_1: 0.\n
    )");
    EXPECT_STATE(R"(
        current: none
        tree:
          POP_1
    )");
}

TEST_F(CDialogLoadingTest, Load_WithoutDefinition_LogsThatAndNoTime)
{
    EXPECT_EQ(nullptr, Manager().LoadDialogDescription(OBJ_MSGBOX_OK));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id -5.\n
    )");
    EXPECT_EQ(0U, CodeFactory().GetLoads());
    EXPECT_STATE("current: none\n");
}

TEST_F(CDialogLoadingTest,
       Load_WhenTheFactoryReturnsNull_LogsTheTimeAndThenAnErrorThatEndsInAFullStop_Intended)
{
    CodeFactory().RegisterBuilder("code:DLG_A",
                                  [this]() -> CGUIObject*
                                  {
                                      Clock().Set(12);
                                      return nullptr;
                                  });
    Manager().RegisterDialogDefinition("code:DLG_A", DLG_A);

    EXPECT_EQ(nullptr, Manager().LoadDialogDescription(DLG_A));

    EXPECT_EVENTS(
        "INFO: Time for loading code:DLG_A: 12.\\n\n"
        "ERROR: CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID 1 with registered "
        "path code:DLG_A.\\n. @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_STATE("current: none\n");
}

TEST_F(CDialogLoadingTest, Load_WhenTheFactoryThrows_PassesTheExceptionOnAndLogsNothing)
{
    DefineDialog(DLG_A, "DLG_A");
    CodeFactory().FailLoad(1, FAILURE_INT);
    CodeFactory().FailLoad(2, FAILURE_EXCEPTION);

    EXPECT_THROW(Manager().LoadDialogDescription(DLG_A), int);
    EXPECT_THROW(Manager().LoadDialogDescription(DLG_A), std::runtime_error);

    EXPECT_EVENTS("");
    EXPECT_STATE("current: none\n");
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CDialogLoadingTest, Load_WithoutRoot_StopsTheProgram)
{
    DefineDialog(DLG_A, "DLG_A");
    DestroyRoot();

    EXPECT_DEATH(Manager().LoadDialogDescription(DLG_A), "NULL != ms_pInstance");
}
#endif

// --- GetDialogObject -------------------------------------------------------------------------------

TEST_F(CDialogLoadingTest, GetDialogObject_InTheTree_TakesItFromThereAndForbidsItsDeletion)
{
    DefineDialog(DLG_A, "DLG_A");
    CGUIObject* pkDialog = Attach("DLG_A");
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    EXPECT_EQ(pkDialog, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_FALSE(bAllowDeletion);
    EXPECT_TRUE(bRecoverFocus);
    EXPECT_EVENTS(
        "DEBUG: CGUIDialogManager::GetDialogObject: AllowDeletion was set to false, since the object with "
        "the id 1 is already contained in the GUI.\\n\n");
    EXPECT_EQ(0U, CodeFactory().GetLoads());
}

TEST_F(CDialogLoadingTest, GetDialogObject_InTheTreeAndInvisible_IsFoundAndStaysInvisible)
{
    CGUIObject* pkDialog = Attach("DLG_A invisible");
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = false;

    EXPECT_EQ(pkDialog, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_FALSE(bAllowDeletion);
    EXPECT_FALSE(bRecoverFocus);
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A invisible
    )");
}

TEST_F(CDialogLoadingTest, GetDialogObject_InTheTreeWithDeletionForbiddenAlready_LogsNothing)
{
    CGUIObject* pkDialog = Attach("DLG_A");
    eC_Bool bAllowDeletion = false;
    eC_Bool bRecoverFocus = true;

    EXPECT_EQ(pkDialog, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_FALSE(bAllowDeletion);
    EXPECT_EVENTS("");
}

TEST_F(CDialogLoadingTest, GetDialogObject_InTheTreeAndInTheHistory_TakesTheRecoveryFromTheMostRecentEntry)
{
    Attach("DLG_A");
    Attach("DLG_B");
    const Access::DialogDescription_t kRecovery(DLG_A, ODA_NOTHING, true, true);
    const Access::DialogDescription_t kNoRecovery(DLG_A, ODA_NOTHING, true, false);
    const Access::DialogDescription_t kOther(DLG_B, ODA_NOTHING, true, true);
    Access::GetHistory(Manager()).Add(Access::HistoryEntry_t(kRecovery, ODA_INVISIBLE));
    Access::GetHistory(Manager()).Add(Access::HistoryEntry_t(kNoRecovery, ODA_INVISIBLE));
    Access::GetHistory(Manager()).Add(Access::HistoryEntry_t(kOther, ODA_INVISIBLE));
    eC_Bool bAllowDeletion = false;
    eC_Bool bRecoverFocus = true;

    Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus);
    EXPECT_FALSE(bRecoverFocus);

    Manager().GetDialogObject(DLG_B, bAllowDeletion, bRecoverFocus);
    EXPECT_TRUE(bRecoverFocus);
}

TEST_F(CDialogLoadingTest, GetDialogObject_NotInTheTree_LoadsItAndLeavesTheFlags)
{
    DefineDialog(DLG_A, "DLG_A");
    const Access::DialogDescription_t kNoRecovery(DLG_A, ODA_NOTHING, false, false);
    Access::GetHistory(Manager()).Add(Access::HistoryEntry_t(kNoRecovery, ODA_DELETE));
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    ExpectIsObject(DLG_A, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_TRUE(bAllowDeletion);
    EXPECT_TRUE(bRecoverFocus);
    EXPECT_EVENTS(R"(
        INFO: Time for loading code:DLG_A: 0.\n
    )");
}

TEST_F(CDialogLoadingTest, GetDialogObject_WithDefinition_DoesNotAskTheHook)
{
    DefineDialog(DLG_A, "DLG_A");
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A"); }, false, false);
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    EXPECT_NE(nullptr, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_TRUE(bAllowDeletion);
    EXPECT_TRUE(bRecoverFocus);
    EXPECT_HOOKS("");
}

TEST_F(CDialogLoadingTest, GetDialogObject_WithoutDefinition_AsksTheHookWhichMayChangeTheFlags)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A { OBJ_1 }"); }, false, false);
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    ExpectIsObject(DLG_A, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_FALSE(bAllowDeletion);
    EXPECT_FALSE(bRecoverFocus);
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 1.\n
        CreateDialogImpl(DLG_A, true, true) -> DLG_A (false, false)
    )");
}

TEST_F(CDialogLoadingTest, GetDialogObject_HandsTheCallersFlagsToTheHook)
{
    Manager().SetDialogCreator(
        DLG_A, [this] { return Attach("DLG_A"); }, true, false);
    eC_Bool bAllowDeletion = false;
    eC_Bool bRecoverFocus = true;

    EXPECT_NE(nullptr, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_TRUE(bAllowDeletion);
    EXPECT_FALSE(bRecoverFocus);
    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_A, false, true) -> DLG_A (true, false)
    )");
}

TEST_F(CDialogLoadingTest, GetDialogObject_WhenTheFileFailsToLoad_AsksTheHook)
{
    DefineDialog(DLG_A, "DLG_A");
    CodeFactory().FailLoad(1, FAILURE_NULL);
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_A"); });
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    EXPECT_NE(nullptr, Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus));

    EXPECT_EVENTS(
        "INFO: Time for loading code:DLG_A: 0.\\n\n"
        "ERROR: CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID 1 with registered "
        "path code:DLG_A.\\n. @Source/Core/GUIDialogManager.cpp:#\n"
        "CreateDialogImpl(DLG_A, true, true) -> DLG_A (true, true)\n");
}

TEST_F(CDialogLoadingTest, GetDialogObject_FromTheHook_IsUsedAsItComes)
{
    Manager().SetDialogCreator(DLG_A, [this] { return Attach("DLG_B invisible"); });
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    CGUIObject* pkDialog = Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus);

    EXPECT_EQ(Object(DLG_B), pkDialog);
    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_B invisible
    )");
}

TEST_F(CDialogLoadingTest, GetDialogObject_WhenTheFactoryThrows_PassesTheExceptionOnWithoutAskingTheHook)
{
    DefineDialog(DLG_A, "DLG_A");
    CodeFactory().FailLoad(1, FAILURE_INT);
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    EXPECT_THROW(Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus), int);

    EXPECT_EVENTS("");
}

TEST_F(CDialogLoadingTest, GetDialogObject_WhenTheHookThrows_PassesTheExceptionOn)
{
    Manager().FailHook(1, FAILURE_EXCEPTION);
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;

    EXPECT_THROW(Manager().GetDialogObject(DLG_A, bAllowDeletion, bRecoverFocus), std::runtime_error);

    EXPECT_HOOKS(R"(
        CreateDialogImpl(DLG_A, true, true) throws deliberate failure
    )");
}
} // namespace
