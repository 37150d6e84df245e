// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"
#include "Widgets/GUITextField.h"

#include <string>
#include <vector>

namespace
{
class CTextFieldTest : public CWidgetsTest
{
protected:
    /** @return the text, with | at the cursor */
    std::string Shown() const
    {
        std::string kText = m_kField.GetText();
        return kText.insert(m_kField.GetCursor(), "|");
    }

    CGUITextField m_kField;
};
} // namespace

TEST_F(CTextFieldTest, Typing_InsertsAtTheCursor)
{
    EXPECT_EQ("|", Shown());
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnType("Tr"));
    EXPECT_EQ("Tr|", Shown());
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnType("ü€𝄞"));
    EXPECT_EQ("Trü€𝄞|", Shown());
    EXPECT_EQ(5U, m_kField.GetCursorColumn());
    m_kField.SetCursorColumn(2);
    m_kField.OnType("+");
    EXPECT_EQ("Tr+|ü€𝄞", Shown());
}

TEST_F(CTextFieldTest, Keys_MoveByWholeCharactersAndStopAtTheEnds)
{
    m_kField.SetText("aü€");
    std::vector<std::string> kShown;
    for (const EGUIKey eKey : {GUIKEY_RIGHT, GUIKEY_LEFT, GUIKEY_LEFT, GUIKEY_LEFT, GUIKEY_LEFT, GUIKEY_RIGHT,
                               GUIKEY_END, GUIKEY_HOME})
    {
        EXPECT_EQ(REACTION_USED, m_kField.OnKey(eKey));
        kShown.push_back(Shown());
    }
    EXPECT_EQ((std::vector<std::string>{"aü€|", "aü|€", "a|ü€", "|aü€", "|aü€", "a|ü€", "aü€|", "|aü€"}),
              kShown);
}

TEST_F(CTextFieldTest, Keys_RemoveWholeCharactersBeforeAndBehindTheCursor)
{
    m_kField.SetText("aü€b");
    m_kField.SetCursorColumn(2);
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnKey(GUIKEY_BACKSPACE));
    EXPECT_EQ("a|€b", Shown());
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnKey(GUIKEY_DELETE));
    EXPECT_EQ("a|b", Shown());
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnKey(GUIKEY_BACKSPACE));
    EXPECT_EQ(REACTION_USED, m_kField.OnKey(GUIKEY_BACKSPACE)) << "nothing before it";
    EXPECT_EQ("|b", Shown());
    m_kField.OnKey(GUIKEY_DELETE);
    EXPECT_EQ(REACTION_USED, m_kField.OnKey(GUIKEY_DELETE)) << "nothing after it";
    EXPECT_EQ("|", Shown());
}

TEST_F(CTextFieldTest, Keys_ThatItDoesNotNeedAreLeftToOthers)
{
    EXPECT_EQ(REACTION_ACTIVATED, m_kField.OnKey(GUIKEY_ACTIVATE));
    EXPECT_EQ(REACTION_NONE, m_kField.OnKey(GUIKEY_NEXT));
    EXPECT_EQ(REACTION_NONE, m_kField.OnKey(GUIKEY_UP));
    EXPECT_EQ(REACTION_USED, m_kField.OnTouch(0, 0, {0, 0, 10, 1}));
}

TEST_F(CTextFieldTest, Length_IsLimitedInCharacters)
{
    Set(m_kField, "length", "3");
    EXPECT_EQ(3U, m_kField.GetMostCharacters());
    EXPECT_TRUE(m_kField.SetText("üüüü"));
    EXPECT_EQ("üüü|", Shown());
    EXPECT_FALSE(m_kField.SetText("üüüx")) << "the same when it is cut off";
    EXPECT_EQ(REACTION_USED, m_kField.OnType("x"));
    m_kField.OnKey(GUIKEY_BACKSPACE);
    m_kField.OnKey(GUIKEY_HOME);
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnType("xyz")) << "as much as there is room for";
    EXPECT_EQ("x|üü", Shown());
    m_kField.OnKey(GUIKEY_END);
    m_kField.SetMostCharacters(2);
    EXPECT_EQ("xü|", Shown());
    m_kField.OnKey(GUIKEY_HOME);
    m_kField.SetMostCharacters(1);
    EXPECT_EQ("|x", Shown()) << "the cursor was before what is cut off";
}

TEST_F(CTextFieldTest, Typing_LeavesOutControlCharacters)
{
    EXPECT_EQ(REACTION_USED, m_kField.OnType("\x1b\t\x7f\n"));
    EXPECT_EQ(REACTION_CHANGED, m_kField.OnType("a\nb"));
    EXPECT_EQ("ab|", Shown());
    EXPECT_EQ(REACTION_USED, m_kField.OnType("a\x80\x80\x80\x80")) << "too long for a character";
}

TEST_F(CTextFieldTest, MalformedText_IsEditedAsWell)
{
    m_kField.SetText("\x80\x80"
                     "a\xC3");
    EXPECT_EQ(3U, m_kField.GetCursorColumn());
    m_kField.OnKey(GUIKEY_BACKSPACE);
    m_kField.OnKey(GUIKEY_BACKSPACE);
    EXPECT_STREQ("\x80\x80", m_kField.GetText());
    m_kField.OnKey(GUIKEY_BACKSPACE);
    EXPECT_EQ("|", Shown());
}

TEST_F(CTextFieldTest, Memory_IsTakenOnceForTheLongestText)
{
    const CAllocationCounter kCounter;
    m_kField.OnType("€");
    EXPECT_EQ(1U, kCounter.GetNumber());
    for (eC_UInt uiTyped = 1; uiTyped < 40; ++uiTyped)
    {
        m_kField.OnType("€");
    }
    m_kField.SetText(nullptr);
    m_kField.SetText("again");
    EXPECT_EQ(1U, kCounter.GetNumber());
}

TEST_F(CTextFieldTest, State_IsTextAndCursor)
{
    m_kField.SetText("für dich");
    m_kField.SetCursorColumn(3);
    unsigned char auiState[16] = {};
    EXPECT_EQ(13U, m_kField.SaveState(auiState, 12)) << "no room";
    EXPECT_EQ(0, auiState[0]);
    EXPECT_EQ(13U, m_kField.SaveState(auiState, 13));

    m_kField.SetText("");
    EXPECT_FALSE(m_kField.RestoreState(auiState, 3));
    EXPECT_EQ("|", Shown());
    EXPECT_TRUE(m_kField.RestoreState(auiState, 13));
    EXPECT_EQ("für| dich", Shown());
}
