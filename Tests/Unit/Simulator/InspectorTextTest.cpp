// SPDX-License-Identifier: MIT
#include "Simulator/InspectorText.h"

#include "Simulator/LineEditor.h"
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

namespace
{
using Lines = std::vector<std::string>;

class CInspectorTextTest : public CGUITest
{
protected:
    /** @return the lines below a heading */
    std::string Section(const std::string& kHeading)
    {
        std::string kSection;
        eC_Bool bIsIn = false;
        for (const StyledLine_t& kLine : DescribeState(CGUIInspector(Manager())))
        {
            const eC_Bool bIsHeading = kLine.m_eStyle == STYLE_STRONG;
            bIsIn = bIsHeading ? kLine.m_kText.compare(0, kHeading.size(), kHeading) == 0 : bIsIn;
            kSection += bIsIn && !bIsHeading ? kLine.m_kText + "\n" : "";
        }
        return kSection;
    }
};
} // namespace

TEST_F(CInspectorTextTest, Describe_WithoutAnything_SaysWhatIsMissing)
{
    EXPECT_EQ("  none\n", Section("current dialog"));
    EXPECT_EQ("  empty\n", Section("history"));
    EXPECT_EQ("  none\n", Section("popups, "));
    EXPECT_EQ("  nothing has it\n", Section("focus"));
    EXPECT_EQ("  empty\n", Section("tree"));
    EXPECT_EQ("  none\n", Section("timers"));
    EXPECT_EQ("", Section("heap"));
}

TEST_F(CInspectorTextTest, Describe_HasEverythingThatTheInspectorReads)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable }");
    DefineDialog(DLG_B, "DLG_B { OBJ_2 focusable }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 3000, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, false, "POP_2 { OBJ_3 focusable }");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().CreateDynamicObjectID();

    EXPECT_EQ("  DLG_B\n    after ODA_INVISIBLE\n", Section("current dialog"));
    EXPECT_EQ("  DLG_A ODA_INVISIBLE\n    focus OBJ_1\n", Section("history"));
    EXPECT_EQ("  POP_1 prio 3 waiting\n    no time limit, deleted on close\n"
              "  POP_2 prio 7 shown\n    no time limit, hidden on close\n",
              Section("popups, "));
    EXPECT_EQ("  OBJ_2\n  OBJ_2 gets it back\n", Section("focus"));
    EXPECT_EQ("  DLG_A invisible\n    OBJ_1 focusable\n  DLG_B\n    OBJ_2 focussed\n"
              "  POP_1 invisible\n  POP_2\n    OBJ_3 focusable\n",
              Section("tree"));
    EXPECT_EQ("  DLG_A\n    code:DLG_A\n  DLG_B\n    code:DLG_B\n", Section("dialogs registered"));
    EXPECT_EQ("  POP_1 prio 3\n    code:POP_1\n    3.000 s, deleted on close\n"
              "  POP_2 prio 7\n    code:POP_2\n    no time limit, hidden on close\n",
              Section("popups registered"));
    EXPECT_EQ("  " + std::to_string(cuiNOFObjectHandles - 8) + "\n", Section("dynamic"));
}

TEST_F(CInspectorTextTest, Describe_TimeLeftOfAShownPopup)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);

    EXPECT_EQ("  POP_1 prio 3 shown\n    3.000 s left, deleted on close\n", Section("popups, "));
    EXPECT_EQ("  POP_1 in 3.000 s, every 3.000 s\n", Section("timers"));
}

TEST_F(CInspectorTextTest, Describe_Heap_WhenTheApplicationReportsIt)
{
    CGUIInspector kInspector(Manager());
    kInspector.SetHeap([] { return HeapFigures_t{10, 20, 30}; });

    EXPECT_EQ("  10 bytes, at most 20 of 30", DescribeState(kInspector).back().m_kText);
}

TEST_F(CInspectorTextTest, CollectNames_HasEachNameOnce)
{
    DefineDialog(DLG_A, "DLG_A { OBJ_1; OBJ_1 }");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 3000, true, "POP_1");
    Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
    Manager().ShowPopup(POP_1);

    const StateNames_t kNames = CollectNames(CGUIInspector(Manager()));
    EXPECT_EQ(Lines{"DLG_A"}, kNames.m_kDialogs);
    EXPECT_EQ(Lines{"POP_1"}, kNames.m_kPopups);
    EXPECT_EQ((Lines{"DLG_A", "OBJ_1", "POP_1"}), kNames.m_kObjects);
    EXPECT_EQ((Lines{"\"code:DLG_A\"", "\"code:POP_1\""}), kNames.m_kPaths);
}

TEST(CLineEditorTest, PressKey_EditsCharacterByCharacter)
{
    CLineEditor kEditor;
    for (const eC_Char* pcKey :
         {"a", "\xC3\xA4", "c", "ArrowLeft", "ArrowLeft", "x", "Delete", "End", "Backspace", "Backspace",
          "Home", "Backspace", "1", "ArrowRight", "ArrowRight", "ArrowRight"})
    {
        EXPECT_TRUE(kEditor.PressKey(pcKey));
    }
    EXPECT_EQ("1a", kEditor.GetText());
    EXPECT_EQ("1a", kEditor.GetBeforeCursor());
    EXPECT_FALSE(kEditor.PressKey("Enter"));
    EXPECT_FALSE(kEditor.PressKey("\x01"));
}

TEST(CLineEditorTest, FirstCharacter_ReplacesTheTextThatWasSet)
{
    CLineEditor kEditor("abc");
    EXPECT_FALSE(kEditor.PressKey("Tab"));
    kEditor.PressKey("x");
    kEditor.PressKey("y");
    EXPECT_EQ("xy", kEditor.GetText());

    kEditor.SetText("abc");
    kEditor.PressKey("ArrowLeft");
    kEditor.PressKey("x");
    EXPECT_EQ("abxc", kEditor.GetText());
}
