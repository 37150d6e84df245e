// SPDX-License-Identifier: MIT
#include "TestSupport/StructureChecker.h"

#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

class CStructureCheckerTest : public CGUITest
{
protected:
    void ShowDialogsAndPopup()
    {
        DefineDialog(DLG_A, "DLG_A { OBJ_1 focusable; OBJ_2 }");
        DefineDialog(DLG_B, "DLG_B { OBJ_1 focusable; OBJ_2 }");
        DefinePopup(POP_1, CGUIDialogManager::PRIO_LOW, 1000, true, "POP_1");
        Manager().CreateDialog(DLG_A, CGUIDialogManager::ODA_NOTHING);
        Manager().CreateDialog(DLG_B, CGUIDialogManager::ODA_INVISIBLE);
        Manager().ShowPopup(POP_1);
    }
};

TEST_F(CStructureCheckerTest, EmptyManager_HasNoFault)
{
    EXPECT_EQ("", CheckStructures(Manager()));
}

TEST_F(CStructureCheckerTest, DialogsAndPopupsInUse_HaveNoFault)
{
    ShowDialogsAndPopup();

    EXPECT_EQ("", CheckStructures(Manager()));
}

TEST_F(CStructureCheckerTest, WrongPredecessorInAList_IsTold)
{
    ShowDialogsAndPopup();
    auto* pkNode = CGUITestAccess::GetFront(CGUITestAccess::GetRegisteredDialogs(Manager()));
    pkNode->m_pkPrevious = pkNode;

    EXPECT_EQ("dialog definitions: a node has a wrong predecessor\n", CheckStructures(Manager()));

    pkNode->m_pkPrevious = nullptr;
}

TEST_F(CStructureCheckerTest, ChainThatIsTooShort_IsTold)
{
    ShowDialogsAndPopup();
    auto* pkNode = CGUITestAccess::GetFront(CGUITestAccess::GetRegisteredDialogs(Manager()));
    auto* pkNext = pkNode->m_pkNext;
    pkNode->m_pkNext = nullptr;

    EXPECT_EQ("dialog definitions: the chain has not as many nodes as the list counts\n"
              "dialog definitions: the last node is not the end of the chain\n",
              CheckStructures(Manager()));

    pkNode->m_pkNext = pkNext;
}

TEST_F(CStructureCheckerTest, ChainThatRunsInACircle_IsTold)
{
    ShowDialogsAndPopup();
    auto* pkNode = CGUITestAccess::GetFront(CGUITestAccess::GetHistory(Manager()));
    pkNode->m_pkNext = pkNode;

    EXPECT_EQ("history: a node has a wrong predecessor\n"
              "history: the chain has not as many nodes as the list counts\n",
              CheckStructures(Manager()));

    pkNode->m_pkNext = nullptr;
}

TEST_F(CStructureCheckerTest, SafeIteratorThatIsLeft_IsTold)
{
    const auto kIterator = CGUITestAccess::GetActivePopups(Manager()).GetBeginSafe();

    EXPECT_EQ("active popups: a safe iterator is left registered\n", CheckStructures(Manager()));
}

TEST_F(CStructureCheckerTest, ObjectThatIsInTheTreeButNotInTheIndex_IsTold)
{
    ShowDialogsAndPopup();
    CGUIObject* pkDialog = Object(DLG_B);
    CGUITestAccess::GetIndex(Root()).Leave(pkDialog);

    EXPECT_EQ("index: has not as many entries as there are identified objects under the root\n"
              "index, identifier DLG_B: not the first object is found\n",
              CheckStructures(Manager()));

    CGUITestAccess::GetIndex(Root()).Enter(pkDialog);
}

TEST_F(CStructureCheckerTest, SafePointerThatIsRegisteredTwice_IsTold)
{
    CSafeGUIObjectPtr pkPointer;
    pkPointer.Register();

    EXPECT_EQ("safe pointers: one is registered twice\n", CheckStructures(Manager()));

    CGUITestAccess::GetSafePointerList().Remove(&pkPointer);
}

TEST_F(CStructureCheckerTest, PopupsThatAreNotInOrder_AreTold)
{
    ShowDialogsAndPopup();
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_2");
    Manager().ShowPopup(POP_2);
    CGUITestAccess::GetActivePopup(Manager(), POP_1)->m_ePriority = CGUIDialogManager::PRIO_HIGHEST;

    EXPECT_EQ("active popups: not in order of priority\n", CheckStructures(Manager()));
}
