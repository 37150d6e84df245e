// SPDX-License-Identifier: MIT
#include "Scenario/Names.h"
#include "Core/Control/GUIObject.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

using Manager = CGUIDialogManager;

TEST(CNamesTest, NameOfHandle_GivesTheConstantsNameOrTheNumber)
{
    EXPECT_EQ("DLG_A", NameOfHandle(DLG_A));
    EXPECT_EQ("OBJ_MSGBOX_OK", NameOfHandle(OBJ_MSGBOX_OK));
    EXPECT_EQ("NO_HANDLE", NameOfHandle(NO_HANDLE));
    EXPECT_EQ("29", NameOfHandle(static_cast<ObjectHandle_t>(29)));
    EXPECT_EQ("-100", NameOfHandle(static_cast<ObjectHandle_t>(-100)));
}

TEST(CNamesTest, NameOfObject_GivesItsIdentifierOrNull)
{
    const CGUIObject kObject(nullptr, OBJ_1);
    EXPECT_EQ("OBJ_1", NameOfObject(&kObject));
    EXPECT_EQ("null", NameOfObject(nullptr));
}

TEST(CNamesTest, NameOfAction_AndParseAction_NameEachOther)
{
    const std::pair<Manager::EOldDialogAction, const char*> akActions[] = {
        {Manager::ODA_INVISIBLE, "ODA_INVISIBLE"}, {Manager::ODA_INVISIBLE_ALL, "ODA_INVISIBLE_ALL"},
        {Manager::ODA_DELETE, "ODA_DELETE"},       {Manager::ODA_DELETE_ALL, "ODA_DELETE_ALL"},
        {Manager::ODA_NOTHING, "ODA_NOTHING"},     {static_cast<Manager::EOldDialogAction>(9), "9"}};
    for (const auto& [eAction, pcName] : akActions)
    {
        EXPECT_EQ(pcName, NameOfAction(eAction));
        Manager::EOldDialogAction eParsed = static_cast<Manager::EOldDialogAction>(100);
        EXPECT_TRUE(ParseAction(pcName, eParsed));
        EXPECT_EQ(eAction, eParsed);
    }
}

TEST(CNamesTest, ParseAction_RefusesOtherTextsAndLeavesTheActionAlone)
{
    Manager::EOldDialogAction eAction = Manager::ODA_DELETE;
    EXPECT_FALSE(ParseAction("oda_delete", eAction));
    EXPECT_FALSE(ParseAction("256", eAction));
    EXPECT_FALSE(ParseAction("", eAction));
    EXPECT_EQ(Manager::ODA_DELETE, eAction);
}

TEST(CNamesTest, ParsePriority_TakesEveryNameAndNumbersOfAByte)
{
    const std::pair<const char*, int> akPriorities[] = {{"PRIO_LOWEST", 1},    {"PRIO_VERY_LOW", 2},
                                                        {"PRIO_LOW", 3},       {"PRIO_BELOW_MEDIUM", 4},
                                                        {"PRIO_MEDIUM", 5},    {"PRIO_HIGH", 7},
                                                        {"PRIO_VERY_HIGH", 8}, {"PRIO_ABOVE_MEDIUM", 6},
                                                        {"PRIO_HIGHEST", 9},   {"0", 0},
                                                        {"255", 255}};
    for (const auto& [pcName, iPriority] : akPriorities)
    {
        Manager::PopupPriority_t ePriority = static_cast<Manager::PopupPriority_t>(100);
        EXPECT_TRUE(ParsePriority(pcName, ePriority)) << pcName;
        EXPECT_EQ(iPriority, ePriority) << pcName;
    }
}

TEST(CNamesTest, ParsePriority_RefusesOtherTextsAndLeavesThePriorityAlone)
{
    Manager::PopupPriority_t ePriority = Manager::PRIO_HIGH;
    EXPECT_FALSE(ParsePriority("PRIO_", ePriority));
    EXPECT_FALSE(ParsePriority("256", ePriority));
    EXPECT_EQ(Manager::PRIO_HIGH, ePriority);
}

TEST(CNamesTest, ParseNumber_TakesDecimalNumbersUpToTheMaximum)
{
    eC_UInt uiNumber = 5;
    EXPECT_TRUE(ParseNumber("4294967295", 0xFFFFFFFFU, uiNumber));
    EXPECT_EQ(0xFFFFFFFFU, uiNumber);
    EXPECT_TRUE(ParseNumber("0", 0, uiNumber));
    EXPECT_EQ(0U, uiNumber);
}

TEST(CNamesTest, ParseNumber_RefusesEverythingElseAndLeavesTheNumberAlone)
{
    eC_UInt uiNumber = 5;
    for (const char* pcText :
         {"", "-1", "+1", " 1", "1 ", "0x1", "4294967296", "99999999999", "18446744073709551617", "one"})
    {
        EXPECT_FALSE(ParseNumber(pcText, 0xFFFFFFFFU, uiNumber)) << pcText;
    }
    EXPECT_FALSE(ParseNumber("8", 7, uiNumber));
    EXPECT_EQ(5U, uiNumber);
}
