// SPDX-License-Identifier: MIT
#include "Scenario/ScenarioArguments.h"
#include "Core/Control/GUI.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

namespace
{
template <typename TRead>
std::string GetComplaint(TRead kRead)
{
    try
    {
        kRead();
    }
    catch (const ScenarioError_t& kError)
    {
        return kError.m_kText;
    }
    return "read";
}
} // namespace

TEST(CScenarioArgumentsTest, Words_AreSeparatedByBlanks)
{
    const CScenarioArguments kArguments("  command \t one  two ");
    EXPECT_EQ("command", kArguments.GetCommand());
    ASSERT_EQ(2U, kArguments.GetCount());
    EXPECT_EQ("one", kArguments.GetText(0));
    EXPECT_EQ("two", kArguments.GetText(1));
}

TEST(CScenarioArgumentsTest, QuotedWords_MayHoldBlanksOrNothing)
{
    const CScenarioArguments kArguments("command \"two words\" \"\" last");
    ASSERT_EQ(3U, kArguments.GetCount());
    EXPECT_EQ("two words", kArguments.GetText(0));
    EXPECT_EQ("", kArguments.GetText(1));
    EXPECT_EQ("last", kArguments.GetText(2));
}

TEST(CScenarioArgumentsTest, EmptyLine_HasNoCommandAndNoArguments)
{
    const CScenarioArguments kArguments("   ");
    EXPECT_EQ("", kArguments.GetCommand());
    EXPECT_EQ(0U, kArguments.GetCount());
}

TEST(CScenarioArgumentsTest, GetRest_GivesTheLineAsItIsWritten)
{
    const CScenarioArguments kArguments("tree code:A  \"x\" {  y }");
    EXPECT_EQ("\"x\" {  y }", kArguments.GetRest(1));
}

TEST(CScenarioArgumentsTest, Values_AreReadByName)
{
    const CScenarioArguments kArguments("command DLG_A -5 ODA_DELETE PRIO_HIGH 4294967295 true false");
    EXPECT_EQ(DLG_A, kArguments.GetHandle(0));
    EXPECT_EQ(OBJ_MSGBOX_OK, kArguments.GetHandle(1));
    EXPECT_EQ(CGUIDialogManager::ODA_DELETE, kArguments.GetAction(2));
    EXPECT_EQ(CGUIDialogManager::PRIO_HIGH, kArguments.GetPriority(3));
    EXPECT_EQ(0xFFFFFFFFU, kArguments.GetNumber(4));
    EXPECT_TRUE(kArguments.GetFlag(5));
    EXPECT_FALSE(kArguments.GetFlag(6));
    EXPECT_EQ(1U, kArguments.GetChoice(5, {"maybe", "true"}));
}

TEST(CScenarioArgumentsTest, GetObject_FindsHiddenObjectsUnderTheRoot)
{
    CGUI kRoot;
    CGUIObject* pkObject = new CGUIObject(&kRoot, OBJ_1);
    pkObject->SetInvisible(true);
    EXPECT_EQ(pkObject, CScenarioArguments("hide OBJ_1").GetObject(0));
}

TEST(CScenarioArgumentsTest, MissingWord_IsToldAsTheEndOfTheLine)
{
    const CScenarioArguments kArguments("command one");
    EXPECT_EQ("expected a word, found the end of the line", GetComplaint([&] { kArguments.GetText(1); }));
    EXPECT_EQ("expected a word, found the end of the line", GetComplaint([&] { kArguments.GetRest(1); }));
    EXPECT_EQ("expected a word, found the end of the line", GetComplaint([&] { kArguments.GetFlag(1); }));
}
