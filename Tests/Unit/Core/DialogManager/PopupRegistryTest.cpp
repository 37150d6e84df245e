// SPDX-License-Identifier: MIT
#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

namespace
{
class CPopupRegistryTest : public CGUITest
{
};

static_assert(std::is_same_v<std::underlying_type_t<CGUIDialogManager::PopupPriority_t>, unsigned char>,
              "priorities are compared as byte values");

template <typename T, typename = void>
struct IsComparable_t : std::false_type
{
};

template <typename T>
struct IsComparable_t<T, decltype(static_cast<void>(std::declval<const T&>() == std::declval<const T&>()))>
    : std::true_type
{
};

TEST(CRegisteredDefinitionTest, TheRecords_CannotBeCompared)
{
    EXPECT_TRUE(IsComparable_t<eC_String>::value);
    EXPECT_FALSE(IsComparable_t<CGUIDialogManager::RegisteredPopup_t>::value);
    EXPECT_FALSE(IsComparable_t<CGUITestAccess::RegisteredDialog_t>::value);
}

TEST_F(CPopupRegistryTest, Priorities_CountFromOneToNine)
{
    EXPECT_EQ(1, CGUIDialogManager::PRIO_LOWEST);
    EXPECT_EQ(2, CGUIDialogManager::PRIO_VERY_LOW);
    EXPECT_EQ(3, CGUIDialogManager::PRIO_LOW);
    EXPECT_EQ(4, CGUIDialogManager::PRIO_BELOW_MEDIUM);
    EXPECT_EQ(5, CGUIDialogManager::PRIO_MEDIUM);
    EXPECT_EQ(6, CGUIDialogManager::PRIO_ABOVE_MEDIUM);
    EXPECT_EQ(7, CGUIDialogManager::PRIO_HIGH);
    EXPECT_EQ(8, CGUIDialogManager::PRIO_VERY_HIGH);
    EXPECT_EQ(9, CGUIDialogManager::PRIO_HIGHEST);
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_AppendsAllFiveFieldsInTheOrderOfRegistration)
{
    EXPECT_TRUE(
        Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_HIGHEST, 1500, true, "two.xml"));
    EXPECT_TRUE(
        Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOWEST, 0, false, "one.xml"));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_2 prio 9, 1500 ms, delete on close, "two.xml"
        popup: POP_1 prio 1, 0 ms, hide on close, "one.xml"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_Twice_KeepsTheFirstOneAndLogsOneError)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "first.xml");

    EXPECT_FALSE(
        Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 4000, false, "second.xml"));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 5, 3000 ms, delete on close, "first.xml"
    )");
    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::RegisterPopupDefinition: Popup or dialog with id 9 already registered.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_TwiceWithAnEmptyPath_IsRefusedTheSameWay)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "");

    EXPECT_FALSE(
        Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGH, 1, false, "late.xml"));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 5, 3000 ms, delete on close, ""
    )");
    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::RegisterPopupDefinition: Popup or dialog with id 9 already registered.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_OfANegativeIdentifier_LogsItWithItsSign)
{
    Manager().RegisterPopupDefinition(OBJ_MSGBOX_OK, CGUIDialogManager::PRIO_LOW, 0, false, "");

    EXPECT_FALSE(Manager().RegisterPopupDefinition(OBJ_MSGBOX_OK, CGUIDialogManager::PRIO_LOW, 0, false, ""));

    EXPECT_EVENTS(R"(
        ERROR: CGUIDialogManager::RegisterPopupDefinition: Popup or dialog with id -5 already registered.\n @Source/Core/GUIDialogManager.cpp:#
    )");
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_OfAnIdentifierRegisteredAsDialog_IsAcceptedIntended)
{
    EXPECT_TRUE(Manager().RegisterDialogDefinition("dialog.xml", POP_1));

    EXPECT_TRUE(
        Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "popup.xml"));

    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: POP_1 "dialog.xml"
        popup: POP_1 prio 5, 0 ms, delete on close, "popup.xml"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_TakesAnyPathTimeAndPriorityUnchecked)
{
    const auto eBelow = static_cast<CGUIDialogManager::PopupPriority_t>(0);
    const auto eAbove = static_cast<CGUIDialogManager::PopupPriority_t>(255);

    EXPECT_TRUE(Manager().RegisterPopupDefinition(POP_1, eBelow, 0, false, ""));
    EXPECT_TRUE(Manager().RegisterPopupDefinition(POP_2, eAbove, 0xFFFFFFFFU, true, "no such file"));
    EXPECT_TRUE(Manager().RegisterPopupDefinition(NO_HANDLE, eBelow, 1, false, "x"));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 0, 0 ms, hide on close, ""
        popup: POP_2 prio 255, 4294967295 ms, delete on close, "no such file"
        popup: NO_HANDLE prio 0, 1 ms, hide on close, "x"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, RegisterPopupDefinition_CopiesThePath)
{
    eC_String kPath("before.xml");
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, false, kPath);

    kPath = "after.xml";

    EXPECT_EQ(eC_String("before.xml"), Manager().GetRegisteredPath(POP_1));
}

TEST_F(CPopupRegistryTest, UnregisterPopupDefinition_OfAnUnknownIdentifier_ReturnsFalseSilently)
{
    Manager().RegisterDialogDefinition("dialog.xml", POP_2);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 0, false, "popup.xml");

    EXPECT_FALSE(Manager().UnregisterPopupDefinition(POP_2));

    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: POP_2 "dialog.xml"
        popup: POP_1 prio 3, 0 ms, hide on close, "popup.xml"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, UnregisterPopupDefinition_RemovesThatOneOnlyAndKeepsTheOrder)
{
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        Manager().RegisterPopupDefinition(eID, CGUIDialogManager::PRIO_LOW, 10, false, "x");
    }
    Manager().RegisterDialogDefinition("dialog.xml", DLG_A);

    EXPECT_TRUE(Manager().UnregisterPopupDefinition(POP_2));
    EXPECT_FALSE(Manager().UnregisterPopupDefinition(POP_2));
    EXPECT_TRUE(Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_HIGH, 20, true, "y"));

    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: DLG_A "dialog.xml"
        popup: POP_1 prio 3, 10 ms, hide on close, "x"
        popup: POP_3 prio 3, 10 ms, hide on close, "x"
        popup: POP_2 prio 7, 20 ms, delete on close, "y"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, UnregisterPopupDefinition_OfADisplayedPopup_LeavesItUntilItIsClosed)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    Manager().ShowPopup(POP_1);
    ClearEvents();

    EXPECT_TRUE(Manager().UnregisterPopupDefinition(POP_1));

    EXPECT_WHOLE_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          POP_1
    )");
    EXPECT_EVENTS("");

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        ERROR: CGUIDialogManager::ShowPopup: Popup with id 9 is not registered and therefore can not be displayed.\n @Source/Core/GUIDialogManager.cpp:#
    )");

    EXPECT_TRUE(Manager().ClosePopup(POP_1));
    EXPECT_WHOLE_STATE(R"(
        current: none
        tree:
          POP_1 invisible
    )");
}

TEST_F(CPopupRegistryTest, UnregisterPopupDefinition_OfADisplayedPopup_LeavesItUntilItsTimeIsUp)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Clock().Advance(1000);

    EXPECT_TRUE(Manager().UnregisterPopupDefinition(POP_1));

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 2000 ms left
        tree:
          POP_1
    )");
    Clock().Advance(2000);
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CPopupRegistryTest, UpdateRegisteredPopupDisplayTime_ChangesOnlyThatFieldOfThatDefinition)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_HIGH, 20, true, "two.xml");
    Manager().RegisterPopupDefinition(POP_3, CGUIDialogManager::PRIO_HIGH, 30, true, "three.xml");

    EXPECT_TRUE(Manager().UpdateRegisteredPopupDisplayTime(POP_2, 2500));
    EXPECT_TRUE(Manager().UpdateRegisteredPopupDisplayTime(POP_3, 0));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 3, 10 ms, hide on close, "one.xml"
        popup: POP_2 prio 7, 2500 ms, delete on close, "two.xml"
        popup: POP_3 prio 7, 0 ms, delete on close, "three.xml"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, UpdateRegisteredPopupDisplayTime_OfAnUnknownIdentifier_ReturnsFalseSilently)
{
    Manager().RegisterDialogDefinition("dialog.xml", POP_2);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");

    EXPECT_FALSE(Manager().UpdateRegisteredPopupDisplayTime(POP_2, 2500));

    EXPECT_WHOLE_STATE(R"(
        current: none
        dialog: POP_2 "dialog.xml"
        popup: POP_1 prio 3, 10 ms, hide on close, "one.xml"
    )");
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, UpdateRegisteredPopupDisplayTime_OfADisplayedPopup_TakesEffectWithTheNextShowPopup)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Clock().Advance(1000);
    ClearEvents();

    EXPECT_TRUE(Manager().UpdateRegisteredPopupDisplayTime(POP_1, 500));

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 5, 500 ms, delete on close, "code:POP_1"
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 2000 ms left
        tree:
          POP_1
    )");
    EXPECT_EVENTS("");

    Manager().ShowPopup(POP_1);
    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 5, 500 ms, delete on close, "code:POP_1"
        active: POP_1 prio 5, 500 ms, delete on close, shown, 500 ms left
        tree:
          POP_1
    )");
}

TEST_F(CPopupRegistryTest, GetRegisteredPopupDisplayTime_ReadsTheTimeOfThatDefinition)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_LOW, 20, false, "two.xml");
    eC_UInt uiTime = 77;

    EXPECT_TRUE(Manager().GetRegisteredPopupDisplayTime(POP_2, uiTime));

    EXPECT_EQ(20U, uiTime);
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, GetRegisteredPopupDisplayTime_OfAnUnknownIdentifier_LeavesTheVariableAsItWas)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");
    Manager().RegisterDialogDefinition("dialog.xml", POP_2);
    eC_UInt uiTime = 77;

    EXPECT_FALSE(Manager().GetRegisteredPopupDisplayTime(POP_2, uiTime));

    EXPECT_EQ(77U, uiTime);
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, GetRegisteredPopupInfo_CopiesAllFiveFields)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");
    Manager().RegisterPopupDefinition(POP_2, CGUIDialogManager::PRIO_HIGH, 20, true, "two.xml");
    CGUIDialogManager::RegisteredPopup_t kInfo;
    EXPECT_TRUE(kInfo.m_kPath.IsEmpty());

    EXPECT_TRUE(Manager().GetRegisteredPopupInfo(POP_2, kInfo));

    EXPECT_EQ(eC_String("two.xml"), kInfo.m_kPath);
    EXPECT_EQ(POP_2, kInfo.m_ePopupID);
    EXPECT_EQ(CGUIDialogManager::PRIO_HIGH, kInfo.m_ePriority);
    EXPECT_EQ(20U, kInfo.m_uiDisplayTime);
    EXPECT_TRUE(kInfo.m_bDeleteOnClose);
    EXPECT_EVENTS("");

    EXPECT_TRUE(Manager().GetRegisteredPopupInfo(POP_1, kInfo));
    EXPECT_EQ(eC_String("one.xml"), kInfo.m_kPath);
    EXPECT_EQ(POP_1, kInfo.m_ePopupID);
    EXPECT_EQ(CGUIDialogManager::PRIO_LOW, kInfo.m_ePriority);
    EXPECT_EQ(10U, kInfo.m_uiDisplayTime);
    EXPECT_FALSE(kInfo.m_bDeleteOnClose);
}

TEST_F(CPopupRegistryTest, GetRegisteredPopupInfo_OfAnUnknownIdentifier_LeavesTheRecordAsItWas)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");
    Manager().RegisterDialogDefinition("dialog.xml", POP_2);
    CGUIDialogManager::RegisteredPopup_t kInfo = {"mine.xml", POP_5, CGUIDialogManager::PRIO_HIGHEST, 99,
                                                  true};

    EXPECT_FALSE(Manager().GetRegisteredPopupInfo(POP_2, kInfo));

    EXPECT_EQ(eC_String("mine.xml"), kInfo.m_kPath);
    EXPECT_EQ(POP_5, kInfo.m_ePopupID);
    EXPECT_EQ(CGUIDialogManager::PRIO_HIGHEST, kInfo.m_ePriority);
    EXPECT_EQ(99U, kInfo.m_uiDisplayTime);
    EXPECT_TRUE(kInfo.m_bDeleteOnClose);
    EXPECT_EVENTS("");
}

TEST_F(CPopupRegistryTest, GetRegisteredPopupInfo_GivesACopy)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_LOW, 10, false, "one.xml");
    CGUIDialogManager::RegisteredPopup_t kInfo;
    Manager().GetRegisteredPopupInfo(POP_1, kInfo);

    kInfo.m_uiDisplayTime = 99;

    EXPECT_WHOLE_STATE(R"(
        current: none
        popup: POP_1 prio 3, 10 ms, hide on close, "one.xml"
    )");
}

TEST_F(CPopupRegistryTest, DisplayTimeZero_MeansNoLimit)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1");
    eC_UInt uiTime = 77;
    EXPECT_TRUE(Manager().GetRegisteredPopupDisplayTime(POP_1, uiTime));
    EXPECT_EQ(0U, uiTime);
    Manager().ShowPopup(POP_1);

    Clock().Advance(0x7FFFFFFFU);

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, delete on close, shown
        tree:
          POP_1
    )");
}
} // namespace
