// SPDX-License-Identifier: MIT
#include "Core/GUIDialogManager.h"

#include "Tests/Unit/Core/DialogManager/DialogTest.h"

namespace
{
class CDialogRegistryTest : public CDialogTest
{
protected:
    static constexpr auto PRIO_LOW = CGUIDialogManager::PRIO_LOW;
};

// --- Registering -----------------------------------------------------------------------------------

TEST_F(CDialogRegistryTest, Register_AppendsTheDefinitionAndOpensNothing)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:a", DLG_A));
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:b", DLG_B));

    EXPECT_EVENTS("");
    EXPECT_EQ(0U, CodeFactory().GetLoads());
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_A "code:a"
        dialog: DLG_B "code:b"
    )");
}

TEST_F(CDialogRegistryTest, Register_OfARegisteredDialog_IsRefusedWithAnError)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:a", DLG_E));

    EXPECT_FALSE(Manager().RegisterDialogDefinition("code:b", DLG_E));

    EXPECT_EVENTS("ERROR: CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id 5 already "
                  "registered.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_E "code:a"
    )");
}

TEST_F(CDialogRegistryTest, Register_OfARegisteredPopup_IsRefusedWithAnError)
{
    EXPECT_TRUE(Manager().RegisterPopupDefinition(DLG_E, PRIO_LOW, 0, true, "code:popup"));

    EXPECT_FALSE(Manager().RegisterDialogDefinition("code:dialog", DLG_E));

    EXPECT_EVENTS("ERROR: CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id 5 already "
                  "registered.\\n @Source/Core/GUIDialogManager.cpp:#\n");
    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: DLG_E prio 3, 0 ms, delete on close, "code:popup"
    )");
}

TEST_F(CDialogRegistryTest, Register_OfAPopupWithAnEmptyPath_IsAccepted)
{
    EXPECT_TRUE(Manager().RegisterPopupDefinition(DLG_E, PRIO_LOW, 0, true, ""));

    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:dialog", DLG_E));

    EXPECT_EVENTS("");
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_E "code:dialog"
        popup: DLG_E prio 3, 0 ms, delete on close, ""
    )");
}

TEST_F(CDialogRegistryTest, Register_OfANegativeIdentifierTwice_ErrorShowsItsSign)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:a", OBJ_MSGBOX_OK));

    EXPECT_FALSE(Manager().RegisterDialogDefinition("code:a", OBJ_MSGBOX_OK));

    EXPECT_EVENTS("ERROR: CGUIDialogManager::RegisterDialogDefinition: Dialog or popup with id -5 already "
                  "registered.\\n @Source/Core/GUIDialogManager.cpp:#\n");
}

TEST_F(CDialogRegistryTest, Register_TwoIdentifiersWithOnePath_IsAcceptedAndTheFirstIsFound)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:same", DLG_B));
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:same", DLG_A));

    EXPECT_EQ(DLG_B, Manager().GetRegisteredDialogID("code:same"));
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_B "code:same"
        dialog: DLG_A "code:same"
    )");
}

TEST_F(CDialogRegistryTest, Register_WithAnEmptyPath_LooksUnregisteredAndCanBeRepeated_Intended)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("", DLG_G));
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:real", DLG_G));
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:more", DLG_G));
    EXPECT_EVENTS("");
    EXPECT_STREQ("", Manager().GetRegisteredPath(DLG_G).GetText());

    EXPECT_EQ(nullptr, Manager().LoadDialogDescription(DLG_G));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::LoadDialogDescription: No dialog registered with id 7.\n
    )");
    EXPECT_EQ(0U, CodeFactory().GetLoads());
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_G ""
        dialog: DLG_G "code:real"
        dialog: DLG_G "code:more"
    )");
}

TEST_F(CDialogRegistryTest, Unregister_OfTheEmptyDefinition_UncoversTheRealOne)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("", DLG_G));
    EXPECT_TRUE(Manager().RegisterDialogDefinition("code:real", DLG_G));

    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_G));

    EXPECT_STREQ("code:real", Manager().GetRegisteredPath(DLG_G).GetText());
    EXPECT_FALSE(Manager().RegisterDialogDefinition("code:more", DLG_G));
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_G "code:real"
    )");
}

// --- Unregistering ---------------------------------------------------------------------------------

TEST_F(CDialogRegistryTest, Unregister_RemovesTheDefinitionAndLogsNothing)
{
    Manager().RegisterDialogDefinition("code:a", DLG_A);
    Manager().RegisterDialogDefinition("code:b", DLG_B);
    Manager().RegisterDialogDefinition("code:c", DLG_C);

    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_B));

    EXPECT_EVENTS("");
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_A "code:a"
        dialog: DLG_C "code:c"
    )");
}

TEST_F(CDialogRegistryTest, Unregister_OfAnUnknownDialog_IsFalseAndLogsNothing)
{
    EXPECT_FALSE(Manager().UnregisterDialogDefinition(DLG_A));
    Manager().RegisterDialogDefinition("code:a", DLG_A);

    EXPECT_FALSE(Manager().UnregisterDialogDefinition(DLG_B));

    EXPECT_EVENTS("");
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_A "code:a"
    )");
}

TEST_F(CDialogRegistryTest, Unregister_SearchesDialogDefinitionsOnly)
{
    Manager().RegisterPopupDefinition(POP_1, PRIO_LOW, 0, false, "code:popup");

    EXPECT_FALSE(Manager().UnregisterDialogDefinition(POP_1));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 3, 0 ms, hide on close, "code:popup"
    )");
}

TEST_F(CDialogRegistryTest, Unregister_RemovesOneOfSeveralEntriesPerCall)
{
    Manager().RegisterDialogDefinition("", DLG_A);
    Manager().RegisterDialogDefinition("code:b", DLG_B);
    Manager().RegisterDialogDefinition("code:a", DLG_A);

    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_A));
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_B "code:b"
        dialog: DLG_A "code:a"
    )");

    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_A));
    EXPECT_FALSE(Manager().UnregisterDialogDefinition(DLG_A));
    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_B "code:b"
    )");
}

TEST_F(CDialogRegistryTest, Unregister_LeavesALoadedDialogAlone)
{
    DefineEmptyDialogs();
    Go(DLG_A, ODA_NOTHING);

    EXPECT_TRUE(Manager().UnregisterDialogDefinition(DLG_A));

    EXPECT_EVENTS("");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING
        tree:
          DLG_A
    )");
}

// --- Looking up ------------------------------------------------------------------------------------

TEST_F(CDialogRegistryTest, GetRegisteredPath_SearchesDialogsThenPopupsAndLogsNothing)
{
    Manager().RegisterPopupDefinition(POP_1, PRIO_LOW, 0, false, "code:popup");
    Manager().RegisterPopupDefinition(DLG_B, PRIO_LOW, 0, false, "code:other popup");
    Manager().RegisterDialogDefinition("code:a", DLG_A);

    EXPECT_STREQ("code:a", Manager().GetRegisteredPath(DLG_A).GetText());
    EXPECT_STREQ("code:popup", Manager().GetRegisteredPath(POP_1).GetText());
    EXPECT_STREQ("code:other popup", Manager().GetRegisteredPath(DLG_B).GetText());
    EXPECT_TRUE(Manager().GetRegisteredPath(DLG_C).IsEmpty());
    EXPECT_EVENTS("");
}

TEST_F(CDialogRegistryTest, GetRegisteredPath_OfAnIdentifierRegisteredAsBoth_IsThatOfTheDialog)
{
    Manager().RegisterDialogDefinition("code:dialog", DLG_A);
    EXPECT_TRUE(Manager().RegisterPopupDefinition(DLG_A, PRIO_LOW, 0, false, "code:popup"));

    EXPECT_STREQ("code:dialog", Manager().GetRegisteredPath(DLG_A).GetText());
}

TEST_F(CDialogRegistryTest, GetRegisteredPath_OfAnEmptyDialogDefinition_HidesThePathOfThePopup)
{
    Manager().RegisterDialogDefinition("", DLG_A);
    Manager().RegisterPopupDefinition(DLG_A, PRIO_LOW, 0, false, "code:popup");

    EXPECT_STREQ("", Manager().GetRegisteredPath(DLG_A).GetText());
}

TEST_F(CDialogRegistryTest, GetRegisteredDialogID_LogsEveryPathItComparesUpToTheMatch)
{
    Manager().RegisterDialogDefinition("code:a", DLG_A);
    Manager().RegisterDialogDefinition("code:b", DLG_B);
    Manager().RegisterDialogDefinition("code:c", DLG_C);

    EXPECT_EQ(DLG_B, Manager().GetRegisteredDialogID("code:b"));

    EXPECT_EVENTS(R"(
        DEBUG: code:b.\n\n
        DEBUG: code:a.\n
        DEBUG: code:b.\n
    )");
}

TEST_F(CDialogRegistryTest, GetRegisteredDialogID_GoesOnWithThePopups)
{
    Manager().RegisterPopupDefinition(POP_1, PRIO_LOW, 0, false, "code:p1");
    Manager().RegisterPopupDefinition(POP_2, PRIO_LOW, 0, false, "code:p2");
    Manager().RegisterPopupDefinition(POP_3, PRIO_LOW, 0, false, "code:p2");
    Manager().RegisterDialogDefinition("code:a", DLG_A);

    EXPECT_EQ(POP_2, Manager().GetRegisteredDialogID("code:p2"));

    EXPECT_EVENTS(R"(
        DEBUG: code:p2.\n\n
        DEBUG: code:a.\n
        DEBUG: code:p1.\n
        DEBUG: code:p2.\n
    )");
}

TEST_F(CDialogRegistryTest, GetRegisteredDialogID_PrefersTheDialogOfAPathThatAPopupHasToo)
{
    Manager().RegisterPopupDefinition(POP_1, PRIO_LOW, 0, false, "code:same");
    Manager().RegisterDialogDefinition("code:same", DLG_A);

    EXPECT_EQ(DLG_A, Manager().GetRegisteredDialogID("code:same"));
}

TEST_F(CDialogRegistryTest, GetRegisteredDialogID_WithoutMatch_LogsEveryPathAndIsNoHandle)
{
    Manager().RegisterDialogDefinition("code:a", DLG_A);
    Manager().RegisterPopupDefinition(POP_1, PRIO_LOW, 0, false, "code:p1");

    EXPECT_EQ(NO_HANDLE, Manager().GetRegisteredDialogID("code:A"));

    EXPECT_EVENTS(R"(
        DEBUG: code:A.\n\n
        DEBUG: code:a.\n
        DEBUG: code:p1.\n
    )");
}

TEST_F(CDialogRegistryTest, GetRegisteredDialogID_LogsWithEmptyFileAndLine)
{
    Manager().RegisterDialogDefinition("code:a", DLG_A);
    Manager().RegisterPopupDefinition(POP_1, PRIO_LOW, 0, false, "code:p1");

    Manager().GetRegisteredDialogID("code:p1");

    ASSERT_EQ(3U, TraceRecorder().GetEntries().size());
    for (const TraceEntry_t& kEntry : TraceRecorder().GetEntries())
    {
        EXPECT_EQ("DEBUG: ", kEntry.m_kPrefix);
        EXPECT_EQ("", kEntry.m_kFile);
        EXPECT_EQ("", kEntry.m_kLine);
    }
    EXPECT_EQ("code:p1.\n\n", TraceRecorder().GetEntries()[0].m_kMessage);
    EXPECT_EQ("code:a.\n", TraceRecorder().GetEntries()[1].m_kMessage);
    EXPECT_EQ("code:p1.\n", TraceRecorder().GetEntries()[2].m_kMessage);
}

TEST_F(CDialogRegistryTest, GetRegisteredDialogID_OfTheEmptyPath_FindsADefinitionWithAnEmptyPath)
{
    Manager().RegisterDialogDefinition("", DLG_A);

    EXPECT_EQ(DLG_A, Manager().GetRegisteredDialogID(""));

    EXPECT_EVENTS(R"(
        DEBUG: .\n\n
        DEBUG: .\n
    )");
}
} // namespace
