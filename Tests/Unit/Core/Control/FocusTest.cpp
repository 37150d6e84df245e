// SPDX-License-Identifier: MIT
#include "Core/GUIEventHandler.h"

#include "Core/Control/GUI.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "TestSupport/ObjectCensus.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
/** The tree root { dialog { panel { button }; other } }, all visible, with button and other focusable. */
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

/** The tree root { dialog { button A; panel { button B; label; button C }; button D }; other { button } },
 *  with focusable buttons.
 */
class CFocusMoveTest : public ::testing::Test
{
protected:
    CFocusMoveTest()
        : m_kBefore(TakeObjectCensus()),
          m_pkRoot(new CGUI),
          m_pkDialog(new CGUICompositeObject(m_pkRoot.get(), DLG_A)),
          m_pkA(MakeButton(m_pkDialog, OBJ_1)),
          m_pkPanel(new CGUICompositeObject(m_pkDialog, OBJ_2)),
          m_pkB(MakeButton(m_pkPanel, OBJ_3)),
          m_pkLabel(new CGUIObject(m_pkPanel, OBJ_4)),
          m_pkC(MakeButton(m_pkPanel, OBJ_5)),
          m_pkD(MakeButton(m_pkDialog, OBJ_6)),
          m_pkOther(new CGUICompositeObject(m_pkRoot.get(), DLG_B)),
          m_pkOutside(MakeButton(m_pkOther, OBJ_7))
    {
    }

    ~CFocusMoveTest() override
    {
        m_pkRoot.reset();
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    static CGUIObject* MakeButton(CGUICompositeObject* pkParent, ObjectHandle_t eID)
    {
        CGUIObject* pkButton = new CGUIObject(pkParent, eID);
        pkButton->SetFocusable(true);
        return pkButton;
    }

    static eC_Bool FocusNext(CGUIObject* pkTop) { return CGUIEventHandler::GetInstance().FocusNext(pkTop); }

    static eC_Bool FocusPrevious(CGUIObject* pkTop)
    {
        return CGUIEventHandler::GetInstance().FocusPrevious(pkTop);
    }

    static CGUIObject* Focus() { return CGUIEventHandler::GetInstance().GetFocussedObject(); }

    ObjectCensus_t m_kBefore;
    std::unique_ptr<CGUI> m_pkRoot;
    CGUICompositeObject* m_pkDialog;
    CGUIObject* m_pkA;
    CGUICompositeObject* m_pkPanel;
    CGUIObject* m_pkB;
    CGUIObject* m_pkLabel;
    CGUIObject* m_pkC;
    CGUIObject* m_pkD;
    CGUICompositeObject* m_pkOther;
    CGUIObject* m_pkOutside;
};

TEST_F(CFocusMoveTest, FocusNext_GoesThroughTheSubtreeInPreOrderAndRoundToTheFirst)
{
    m_pkA->RequestFocus();

    for (const CGUIObject* pkExpected : {m_pkB, m_pkC, m_pkD, m_pkA})
    {
        EXPECT_TRUE(FocusNext(m_pkDialog));
        EXPECT_EQ(pkExpected, Focus());
    }
}

TEST_F(CFocusMoveTest, FocusPrevious_GoesThroughTheSubtreeTheOtherWayAndRoundToTheLast)
{
    m_pkD->RequestFocus();

    for (const CGUIObject* pkExpected : {m_pkC, m_pkB, m_pkA, m_pkD})
    {
        EXPECT_TRUE(FocusPrevious(m_pkDialog));
        EXPECT_EQ(pkExpected, Focus());
    }
}

TEST_F(CFocusMoveTest, Moves_FollowTheDrawingOrder)
{
    m_pkDialog->DrawOnTop(m_pkA);
    m_pkD->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());
    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkB, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());
}

TEST_F(CFocusMoveTest, Moves_UnderTheRoot_ReachEverything)
{
    m_pkD->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkRoot.get()));
    EXPECT_EQ(m_pkOutside, Focus());
    EXPECT_TRUE(FocusNext(m_pkRoot.get()));
    EXPECT_EQ(m_pkA, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkRoot.get()));
    EXPECT_EQ(m_pkOutside, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkRoot.get()));
    EXPECT_EQ(m_pkD, Focus());
}

TEST_F(CFocusMoveTest, Moves_StayInTheSubtreeAlsoBehindItsEnd)
{
    m_pkC->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkPanel));
    EXPECT_EQ(m_pkB, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkPanel));
    EXPECT_EQ(m_pkC, Focus());
}

TEST_F(CFocusMoveTest, Moves_IncludeTheTopItself)
{
    m_pkPanel->SetFocusable(true);
    m_pkC->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkPanel));
    EXPECT_EQ(m_pkPanel, Focus());
    EXPECT_TRUE(FocusNext(m_pkPanel));
    EXPECT_EQ(m_pkB, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkPanel));
    EXPECT_EQ(m_pkPanel, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkPanel));
    EXPECT_EQ(m_pkC, Focus());
}

TEST_F(CFocusMoveTest, Moves_FromOutsideTheSubtree_EnterItAtItsFirstOrLast)
{
    m_pkOutside->RequestFocus();
    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());

    m_pkOutside->RequestFocus();
    EXPECT_TRUE(FocusPrevious(m_pkDialog));
    EXPECT_EQ(m_pkD, Focus());

    EXPECT_TRUE(FocusNext(m_pkPanel));
    EXPECT_EQ(m_pkB, Focus());
}

TEST_F(CFocusMoveTest, Moves_WhenNobodyHasTheFocus_TakeTheFirstOrLast)
{
    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());

    m_pkA->SetFocusable(false);
    EXPECT_EQ(nullptr, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkDialog));
    EXPECT_EQ(m_pkD, Focus());
}

TEST_F(CFocusMoveTest, Moves_PassOverWhatIsNotFocusable)
{
    m_pkB->SetFocusable(false);
    m_pkA->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkC, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());
}

TEST_F(CFocusMoveTest, Moves_PassOverWhatIsInvisibleWithAllBelow)
{
    m_pkPanel->SetInvisible(true);
    m_pkA->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkD, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());

    m_pkD->SetInvisible(true);
    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(m_pkA, Focus());
}

TEST_F(CFocusMoveTest, Moves_WithOnlyOneThatCanHaveTheFocus_LeaveItThere)
{
    m_pkC->SetFocusable(false);
    m_pkB->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkPanel));
    EXPECT_EQ(m_pkB, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkPanel));
    EXPECT_EQ(m_pkB, Focus());
    EXPECT_TRUE(FocusNext(m_pkB));
    EXPECT_EQ(m_pkB, Focus());
}

TEST_F(CFocusMoveTest, Moves_WithNothingThatCanHaveTheFocus_FailAndLeaveItWhereItWas)
{
    m_pkOutside->RequestFocus();

    m_pkDialog->SetInvisible(true);
    EXPECT_FALSE(FocusNext(m_pkDialog));
    EXPECT_FALSE(FocusPrevious(m_pkDialog));
    EXPECT_FALSE(FocusNext(m_pkPanel));
    EXPECT_FALSE(FocusPrevious(m_pkPanel));
    m_pkDialog->SetInvisible(false);
    EXPECT_FALSE(FocusNext(m_pkLabel));
    EXPECT_FALSE(FocusPrevious(m_pkLabel));
    EXPECT_FALSE(FocusNext(nullptr));
    EXPECT_FALSE(FocusPrevious(nullptr));
    CGUICompositeObject kDetached;
    MakeButton(&kDetached, OBJ_8);
    EXPECT_FALSE(FocusNext(&kDetached));
    EXPECT_FALSE(FocusPrevious(&kDetached));

    EXPECT_EQ(m_pkOutside, Focus());
}

TEST_F(CFocusMoveTest, Moves_WithAFocusableRoot_PassOverItSinceItHangsUnderNothing)
{
    m_pkRoot->SetFocusable(true);

    EXPECT_TRUE(FocusNext(m_pkRoot.get()));
    EXPECT_EQ(m_pkA, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkRoot.get()));
    EXPECT_EQ(m_pkOutside, Focus());
}

TEST_F(CFocusMoveTest, Moves_CallNoOverrideSoThatNothingCanGoAwayMeanwhile)
{
    class CDestructive : public CGUICompositeObject
    {
    public:
        using CGUICompositeObject::CGUICompositeObject;
        eC_Bool FocusAny() override { return DestroyParent(); }
        void SetInvisible(const eC_Bool&) override { DestroyParent(); }
        void SetParent(CGUICompositeObject*) override { DestroyParent(); }
        eC_Bool IsCompositeObject() const override { return DestroyParent(); }

    private:
        eC_Bool DestroyParent() const
        {
            delete GetParent();
            return true;
        }
    };
    auto* pkDestructive = new CDestructive(m_pkPanel, OBJ_8);
    CGUIObject* pkInside = MakeButton(pkDestructive, OBJ_9);
    m_pkC->RequestFocus();

    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(pkInside, Focus());
    EXPECT_TRUE(FocusPrevious(m_pkDialog));
    EXPECT_EQ(m_pkC, Focus());

    pkDestructive->SetFocusable(true);
    EXPECT_TRUE(FocusNext(m_pkDialog));
    EXPECT_EQ(pkDestructive, Focus());
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
