#include "Core/GUIEventHandler.h"

#include "Core/Control/GUI.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
/** The tree root { dialog { panel { button }; other } }, all visible, button and other focusable. */
class CFocusTest : public ::testing::Test
{
protected:
    CFocusTest()
        : m_kBefore(TakeObjectCensus()),
          m_pkRoot(new CGUI),
          m_pkDialog(new CGUICompositeObject(m_pkRoot.get(), DLG_A)),
          m_pkPanel(new CGUICompositeObject(m_pkDialog, OBJ_1)),
          m_pkButton(new CGUIObject(m_pkPanel, OBJ_2)),
          m_pkOther(new CGUIObject(m_pkDialog, OBJ_3))
    {
        m_pkButton->SetFocusable(true);
        m_pkOther->SetFocusable(true);
    }

    ~CFocusTest() override
    {
        m_pkRoot.reset();
        EXPECT_EQ(nullptr, Focus());
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    static CGUIObject* Focus() { return CGUIEventHandler::GetInstance().GetFocussedObject(); }

    ObjectCensus_t m_kBefore;
    std::unique_ptr<CGUI> m_pkRoot;
    CGUICompositeObject* m_pkDialog;
    CGUICompositeObject* m_pkPanel;
    CGUIObject* m_pkButton;
    CGUIObject* m_pkOther;
};

TEST_F(CFocusTest, Nobody_HasTheFocusInTheBeginning)
{
    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, RequestFocus_GivesTheFocusToAFocusableVisibleObjectUnderTheRoot)
{
    EXPECT_TRUE(m_pkButton->RequestFocus());
    EXPECT_EQ(m_pkButton, Focus());

    EXPECT_TRUE(m_pkOther->RequestFocus());
    EXPECT_EQ(m_pkOther, Focus());

    EXPECT_TRUE(m_pkOther->RequestFocus());
    EXPECT_EQ(m_pkOther, Focus());
}

TEST_F(CFocusTest, RequestFocus_OfAnObjectThatIsNotFocusable_FailsAndLeavesTheFocus)
{
    m_pkOther->RequestFocus();

    EXPECT_FALSE(m_pkPanel->RequestFocus());

    EXPECT_EQ(m_pkOther, Focus());
}

TEST_F(CFocusTest, RequestFocus_OfAnInvisibleObject_Fails)
{
    m_pkButton->SetInvisible(true);

    EXPECT_FALSE(m_pkButton->RequestFocus());

    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, RequestFocus_UnderAnInvisibleAncestor_Fails)
{
    m_pkDialog->SetInvisible(true);
    EXPECT_FALSE(m_pkButton->RequestFocus());
    m_pkDialog->SetInvisible(false);

    m_pkRoot->SetInvisible(true);
    EXPECT_FALSE(m_pkButton->RequestFocus());
    m_pkRoot->SetInvisible(false);

    EXPECT_TRUE(m_pkButton->RequestFocus());
}

TEST_F(CFocusTest, RequestFocus_OutsideTheRoot_Fails)
{
    m_pkDialog->SetParent(nullptr);

    EXPECT_FALSE(m_pkButton->RequestFocus());
    EXPECT_EQ(nullptr, Focus());

    m_pkDialog->SetParent(m_pkRoot.get());
    EXPECT_TRUE(m_pkButton->RequestFocus());
}

TEST_F(CFocusTest, RequestFocus_OfTheRootItself_FailsSinceItHangsUnderNothing)
{
    m_pkRoot->SetFocusable(true);

    EXPECT_FALSE(m_pkRoot->RequestFocus());

    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, FocusAny_TakesTheFirstInPreOrder)
{
    EXPECT_TRUE(m_pkRoot->FocusAny());
    EXPECT_EQ(m_pkButton, Focus());

    m_pkDialog->DrawOnTop(m_pkPanel);
    EXPECT_TRUE(m_pkRoot->FocusAny());
    EXPECT_EQ(m_pkOther, Focus());
}

TEST_F(CFocusTest, FocusAny_TakesTheObjectItselfBeforeItsChildren)
{
    m_pkPanel->SetFocusable(true);

    EXPECT_TRUE(m_pkPanel->FocusAny());

    EXPECT_EQ(m_pkPanel, Focus());
}

TEST_F(CFocusTest, FocusAny_OfAPlainObject_IsRequestFocus)
{
    EXPECT_TRUE(m_pkOther->FocusAny());
    EXPECT_EQ(m_pkOther, Focus());

    m_pkButton->SetFocusable(false);
    EXPECT_FALSE(m_pkButton->FocusAny());
    EXPECT_EQ(m_pkOther, Focus());
}

TEST_F(CFocusTest, FocusAny_SkipsInvisibleSubtrees)
{
    m_pkPanel->SetInvisible(true);

    EXPECT_TRUE(m_pkRoot->FocusAny());

    EXPECT_EQ(m_pkOther, Focus());
}

TEST_F(CFocusTest, FocusAny_WithNothingThatTakesTheFocus_FailsAndLeavesTheFocus)
{
    m_pkOther->RequestFocus();
    m_pkButton->SetFocusable(false);
    EXPECT_FALSE(m_pkPanel->FocusAny());
    EXPECT_EQ(m_pkOther, Focus());

    m_pkButton->SetFocusable(true);
    m_pkPanel->SetInvisible(true);
    EXPECT_FALSE(m_pkPanel->FocusAny());
    EXPECT_EQ(m_pkOther, Focus());
}

TEST_F(CFocusTest, FocusAny_UnderAnInvisibleAncestor_Fails)
{
    m_pkDialog->SetInvisible(true);

    EXPECT_FALSE(m_pkPanel->FocusAny());

    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, FocusAny_AsksTheOverridesOfTheChildren)
{
    class CRefusing : public CGUICompositeObject
    {
    public:
        using CGUICompositeObject::CGUICompositeObject;
        eC_Bool FocusAny() override { return false; }
    };
    auto* pkRefusing = new CRefusing(m_pkRoot.get(), OBJ_4);
    auto* pkInside = new CGUIObject(pkRefusing, OBJ_5);
    pkInside->SetFocusable(true);
    m_pkRoot->DrawOnTop(m_pkDialog);

    EXPECT_TRUE(m_pkRoot->FocusAny());

    EXPECT_EQ(m_pkButton, Focus());
}

TEST_F(CFocusTest, BecomingInvisible_TakesTheFocusAndGivesItToNobody)
{
    m_pkButton->RequestFocus();

    m_pkButton->SetInvisible(true);
    EXPECT_EQ(nullptr, Focus());

    m_pkButton->SetInvisible(false);
    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, AnAncestorThatBecomesInvisible_TakesTheFocus)
{
    m_pkButton->RequestFocus();
    m_pkDialog->SetInvisible(true);
    EXPECT_EQ(nullptr, Focus());

    m_pkDialog->SetInvisible(false);
    m_pkButton->RequestFocus();
    m_pkRoot->SetInvisible(true);
    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, AnotherObjectThatBecomesInvisible_LeavesTheFocus)
{
    m_pkButton->RequestFocus();

    m_pkOther->SetInvisible(true);

    EXPECT_EQ(m_pkButton, Focus());
}

TEST_F(CFocusTest, BecomingNotFocusable_TakesTheFocus)
{
    m_pkButton->RequestFocus();
    m_pkOther->SetFocusable(false);
    EXPECT_EQ(m_pkButton, Focus());

    m_pkButton->SetFocusable(false);

    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, DetachingTheObjectOrAnAncestor_TakesTheFocus)
{
    m_pkButton->RequestFocus();
    m_pkButton->SetParent(nullptr);
    EXPECT_EQ(nullptr, Focus());

    m_pkButton->SetParent(m_pkPanel);
    EXPECT_EQ(nullptr, Focus());
    m_pkButton->RequestFocus();
    m_pkDialog->SetParent(nullptr);
    EXPECT_EQ(nullptr, Focus());
    m_pkDialog->SetParent(m_pkRoot.get());
}

TEST_F(CFocusTest, MovingUnderTheRoot_KeepsTheFocus)
{
    m_pkButton->RequestFocus();

    m_pkButton->SetParent(m_pkDialog);
    EXPECT_EQ(m_pkButton, Focus());

    m_pkRoot->DrawOnTop(m_pkDialog);
    m_pkButton->SetParent(m_pkDialog);
    EXPECT_EQ(m_pkButton, Focus());
}

TEST_F(CFocusTest, MovingUnderAnInvisibleOrDetachedParent_TakesTheFocus)
{
    m_pkPanel->SetInvisible(true);
    m_pkOther->RequestFocus();
    m_pkOther->SetParent(m_pkPanel);
    EXPECT_EQ(nullptr, Focus());

    m_pkPanel->SetInvisible(false);
    m_pkButton->RequestFocus();
    CGUICompositeObject kDetached;
    m_pkButton->SetParent(&kDetached);
    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, DestroyingTheObjectOrAnAncestor_TakesTheFocus)
{
    m_pkOther->RequestFocus();
    delete m_pkOther;
    EXPECT_EQ(nullptr, Focus());

    m_pkButton->RequestFocus();
    delete m_pkDialog;
    EXPECT_EQ(nullptr, Focus());
}

TEST_F(CFocusTest, DestroyingAnotherObject_LeavesTheFocus)
{
    m_pkButton->RequestFocus();

    delete m_pkOther;

    EXPECT_EQ(m_pkButton, Focus());
}

TEST_F(CFocusTest, ANewIdentifier_LeavesTheFocus)
{
    m_pkButton->RequestFocus();

    m_pkButton->SetID(OBJ_9);

    EXPECT_EQ(m_pkButton, Focus());
}
} // namespace
