// SPDX-License-Identifier: MIT
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"

#include "TestSupport/GTest/GUITestFixture.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

namespace
{
class CShowPopupTest : public CGUITest
{
protected:
    /** Registers a popup that only the creation hook can create, from a description in code. */
    void DefineHookPopup(ObjectHandle_t eID, CGUIDialogManager::PopupPriority_t ePriority,
                         eC_UInt uiDisplayTime, eC_Bool bDeleteOnClose, const std::string& kTree)
    {
        EXPECT_TRUE(Manager().RegisterPopupDefinition(eID, ePriority, uiDisplayTime, bDeleteOnClose, ""));
        Manager().SetPopupCreator(eID, [kTree] { return CObjectTree(kTree).Build(); });
    }
};

TEST_F(CShowPopupTest, ShowPopup_OfAnUnregisteredIdentifier_ReturnsNullAndChangesNothing)
{
    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        ERROR: CGUIDialogManager::ShowPopup: Popup with id 9 is not registered and therefore can not be displayed.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_WHOLE_STATE(R"(
        current: none
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAnUnregisteredIdentifier_ReturnsNullEvenIfTheObjectIsThere)
{
    Attach("DLG_A { OBJ_1 focusable }");
    Attach("POP_1 invisible");
    Manager().AddDialog(Object(DLG_A), CGUIDialogManager::ODA_NOTHING, true);
    Manager().RegisterDialogDefinition("dialog.xml", POP_1);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        ERROR: CGUIDialogManager::ShowPopup: Popup with id 9 is not registered and therefore can not be displayed.\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: DLG_A after ODA_NOTHING, no deletion
        focus: OBJ_1
        tree:
          DLG_A
            OBJ_1 focussed
          POP_1 invisible
    )");
}

TEST_F(CShowPopupTest, ShowPopup_LoadsListsAndShowsThePopup)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1 { OBJ_1 }");

    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);

    EXPECT_NE(nullptr, pkPopup);
    EXPECT_EQ(Object(POP_1), pkPopup);
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 3000 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 3000 ms left
        tree:
          POP_1
            OBJ_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_TakesAHiddenObjectFromTheTreeInsteadOfLoadingIt)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    CGUIObject* pkPopup = Attach("POP_1 invisible { OBJ_1 }");
    Attach("DLG_A");

    EXPECT_EQ(pkPopup, Manager().ShowPopup(POP_1));

    EXPECT_EQ(0U, CodeFactory().GetLoads());
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
          POP_1
            OBJ_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAVisibleObjectInTheTree_HidesItFirstSoThatItIsActivated)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Attach("POP_1");

    Manager().ShowPopup(POP_1);

    EXPECT_HOOKS(R"(
        OnPopupActivation(POP_1)
    )");
}

TEST_F(CShowPopupTest, ShowPopup_WithoutPathOrOverride_LogsTheDefaultHookAndTheFailedStepIntended)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        CreatePopupImpl(POP_1) -> null
        DEBUG: CGUIDialogManager::CreatePopupImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreatePopup: Creating popup with ID 9 failed!\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CShowPopupTest, ShowPopup_WhenLoadingFails_AsksTheHook)
{
    EXPECT_TRUE(
        Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "code:nothing"));
    Manager().SetPopupCreator(POP_1, [] { return CObjectTree("POP_1").Build(); });

    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);

    EXPECT_EQ(Object(POP_1), pkPopup);
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        ERROR: CCodeFactory::Read: There is no builder for code:nothing.\n @TestSupport/CodeFactory.cpp:#
        INFO: Time for loading code:nothing: 0.\n
        ERROR: CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID 9 with registered path code:nothing.\n. @Source/Core/GUIDialogManager.cpp:#
        CreatePopupImpl(POP_1) -> POP_1
        OnPopupActivation(POP_1)
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          POP_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_WhenNothingMakesThePopup_LeavesTheListAndShowsNothing)
{
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 100, false, "POP_2");
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    Manager().ShowPopup(POP_2);
    CodeFactory().Unregister(PathOf(POP_1));
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        ERROR: CCodeFactory::Read: There is no builder for code:POP_1.\n @TestSupport/CodeFactory.cpp:#
        INFO: Time for loading code:POP_1: 0.\n
        ERROR: CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID 9 with registered path code:POP_1.\n. @Source/Core/GUIDialogManager.cpp:#
        CreatePopupImpl(POP_1) -> null
        DEBUG: CGUIDialogManager::CreatePopupImpl has been called.Maybe you have forgotten to implement the CreateDialogImpl in you derived class.\n
        ERROR: CGUIDialogManager::CreatePopup: Creating popup with ID 9 failed!\n @Source/Core/GUIDialogManager.cpp:#
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 100 ms, hide on close, shown, 100 ms left
        tree:
          POP_2
    )");
}

TEST_F(CShowPopupTest, ShowPopup_LoadsTheDialogDefinitionOfTheSameIdentifierFirst)
{
    DefineDialog(POP_1, "POP_1 { OBJ_1 }");
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "code:popup");
    CodeFactory().RegisterTree("code:popup", "POP_1 { OBJ_2 }");

    Manager().ShowPopup(POP_1);

    EXPECT_EQ(0U, CodeFactory().GetLoads("code:popup"));
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          POP_1
            OBJ_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_WithoutAPopupPath_DoesNotLoadTheDialogDefinitionEither)
{
    DefineDialog(POP_1, "POP_1");
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_1));

    EXPECT_EQ(0U, CodeFactory().GetLoads());
    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_1) -> null
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfALoadedObjectWithAnotherIdentifier_GivesItTheRegisteredOne)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_2 invisible");

    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);

    EXPECT_EQ(Object(POP_1), pkPopup);
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          POP_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAHookMadeObjectWithAnotherIdentifier_GivesItTheRegisteredOne)
{
    DefineHookPopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_2");
    DefineHookPopup(POP_3, CGUIDialogManager::PRIO_MEDIUM, 0, false, "-");

    CGUIObject* pkFirst = Manager().ShowPopup(POP_1);
    CGUIObject* pkSecond = Manager().ShowPopup(POP_3);

    EXPECT_EQ(Object(POP_1), pkFirst);
    EXPECT_EQ(Object(POP_3), pkSecond);
    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_1) -> POP_2
        OnPopupActivation(POP_1)
        CreatePopupImpl(POP_3) -> NO_HANDLE
        OnPopupActivation(POP_3)
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_3 prio 5, 0 ms, hide on close, shown
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          POP_1
          POP_3
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAHookMadePopupThatWaits_LeavesItDetachedUntilItWinsIntended)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    DefineHookPopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "POP_2");
    Manager().ShowPopup(POP_1);
    ClearEvents();

    CGUIObject* pkPopup = Manager().ShowPopup(POP_2);

    EXPECT_NE(nullptr, pkPopup);
    EXPECT_HOOKS(R"(
        CreatePopupImpl(POP_2) -> POP_2
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, delete on close, hidden, detached
        active: POP_1 prio 7, 0 ms, delete on close, shown
        tree:
          POP_1
    )");

    Manager().ClosePopup(POP_1);
    EXPECT_EQ(pkPopup, Object(POP_2));
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, delete on close, shown
        tree:
          POP_2
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfALoadedPopupThatWaits_HidesItUnderTheRootWithoutHook)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 500, true, "POP_2");
    Manager().ShowPopup(POP_1);
    ClearEvents();

    CGUIObject* pkPopup = Manager().ShowPopup(POP_2);

    EXPECT_EQ(Object(POP_2), pkPopup);
    EXPECT_NE(nullptr, pkPopup);
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 7 is activated with a display time of 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 500 ms, delete on close, hidden
        active: POP_1 prio 7, 0 ms, delete on close, shown
        tree:
          POP_2 invisible
          POP_1
    )");
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_2));
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_2));
}

TEST_F(CShowPopupTest, ShowPopup_KeepsTheListAscendingWithNewerPopupsBeforeEqualOnes)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_2");
    DefinePopup(POP_3, CGUIDialogManager::PRIO_MEDIUM, 0, true, "POP_3");
    DefinePopup(POP_4, CGUIDialogManager::PRIO_LOWEST, 0, true, "POP_4");
    DefinePopup(POP_5, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_5");

    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3, POP_4, POP_5})
    {
        Manager().ShowPopup(eID);
    }

    EXPECT_STATE(R"(
        current: none
        active: POP_4 prio 1, 0 ms, delete on close, hidden
        active: POP_3 prio 5, 0 ms, delete on close, hidden
        active: POP_1 prio 5, 0 ms, delete on close, hidden
        active: POP_5 prio 7, 0 ms, delete on close, shown
        active: POP_2 prio 7, 0 ms, delete on close, shown
        tree:
          POP_1 invisible
          POP_3 invisible
          POP_4 invisible
          POP_2
          POP_5
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfADisplayedPopup_RestartsItsTimeWithoutArbitration)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);
    Clock().Advance(2999);
    ClearEvents();

    EXPECT_EQ(pkPopup, Manager().ShowPopup(POP_1));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is already contained in active popup list.\n
        DEBUG: CGUIDialogManager::ShowPopup: Timout of is restarted with 3000 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 3000 ms, delete on close, shown, 3000 ms left
        tree:
          POP_1
    )");
    EXPECT_EQ(1U, CodeFactory().GetLoads());
}

TEST_F(CShowPopupTest, ShowPopup_OfADisplayedPopup_TakesTheLastPlaceAmongTimersThatRunOutTogether)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_MEDIUM, 100, true, "POP_2");
    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_2);
    Manager().ShowPopup(POP_1);
    ClearEvents();

    Clock().Advance(100);

    EXPECT_HOOKS(R"(
        OnPopupDeactivation(POP_2)
        OnPopupDeactivation(POP_1)
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfADisplayedPopupWhoseRegisteredTimeIsZeroNow_StopsItsTime)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Manager().UpdateRegisteredPopupDisplayTime(POP_1, 0);
    ClearEvents();

    Manager().ShowPopup(POP_1);

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is already contained in active popup list.\n
        DEBUG: CGUIDialogManager::ShowPopup: Timout of is restarted with 0 ms.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, delete on close, shown
        tree:
          POP_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfADisplayedPopup_LogsTheTimeUnsigned)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 4294967295U, true, "POP_1");

    Manager().ShowPopup(POP_1);
    Manager().ShowPopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:POP_1: 0.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 4294967295 ms.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is already contained in active popup list.\n
        DEBUG: CGUIDialogManager::ShowPopup: Timout of is restarted with 4294967295 ms.\n
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAWaitingPopup_TakesOverTheTimeButStartsNoTimer)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 500, true, "POP_2");
    Manager().ShowPopup(POP_1);
    CGUIObject* pkPopup = Manager().ShowPopup(POP_2);
    Manager().UpdateRegisteredPopupDisplayTime(POP_2, 700);
    ClearEvents();

    EXPECT_EQ(pkPopup, Manager().ShowPopup(POP_2));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is already contained in active popup list.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 700 ms, delete on close, hidden
        active: POP_1 prio 7, 0 ms, delete on close, shown
        tree:
          POP_2 invisible
          POP_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAListedPopup_RefreshesNeitherPriorityNorDeleteOnClose)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, true, "POP_1");
    Manager().ShowPopup(POP_1);
    Manager().UnregisterPopupDefinition(POP_1);
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_HIGHEST, 900, false, "");

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 900 ms, delete on close, shown, 900 ms left
        tree:
          POP_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAListedPopupOutsideTheTreeWithoutPath_ReturnsNull)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    DefineHookPopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "POP_2");
    Manager().ShowPopup(POP_1);
    const std::unique_ptr<CGUIObject> pkPopup(Manager().ShowPopup(POP_2));
    EXPECT_NE(nullptr, pkPopup);
    ClearEvents();

    EXPECT_EQ(nullptr, Manager().ShowPopup(POP_2));

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is already contained in active popup list.\n
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAListedPopupWithoutIdentifier_LoadsAndReturnsAnotherObject)
{
    DefinePopup(NO_HANDLE, CGUIDialogManager::PRIO_HIGH, 0, true, "NO_HANDLE");
    const CGUIObject* pkListed = Manager().ShowPopup(NO_HANDLE);

    const CGUIObject* pkPopup = Manager().ShowPopup(NO_HANDLE);

    EXPECT_EQ(Root().GetFirstChild(), pkListed);
    ASSERT_NE(nullptr, pkPopup);
    EXPECT_EQ(pkListed->GetNextSibling(), pkPopup);
    EXPECT_STATE(R"(
        current: none
        active: - prio 7, 0 ms, delete on close, shown
        tree:
          -
          -
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAListedPopupOutsideTheTreeWithPath_LoadsAndReturnsAnotherObject)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_HIGH, 0, true, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, true, "POP_2 { OBJ_1 }");
    Manager().SetPopupCreator(POP_2, [] { return CObjectTree("POP_2").Build(); });
    Manager().ShowPopup(POP_1);
    CodeFactory().FailLoad(1, FAILURE_NULL);
    const std::unique_ptr<CGUIObject> pkWaiting(Manager().ShowPopup(POP_2));
    ClearEvents();

    CGUIObject* pkPopup = Manager().ShowPopup(POP_2);

    EXPECT_EQ(Object(POP_2), pkPopup);
    EXPECT_NE(pkWaiting.get(), pkPopup);
    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is activated.\n
        INFO: Time for loading code:POP_2: 0.\n
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 10 is already contained in active popup list.\n
    )");
    EXPECT_STATE(R"(
        current: none
        active: POP_2 prio 3, 0 ms, delete on close, hidden, detached
        active: POP_1 prio 7, 0 ms, delete on close, shown
        tree:
          POP_1
          POP_2
            OBJ_1
    )");
}

TEST_F(CShowPopupTest, ShowPopup_OfAPopupThatIsAttachedElsewhere_RaisesItThere)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "");
    Attach("DLG_A { POP_1; OBJ_1 }");
    Attach("DLG_B");

    Manager().ShowPopup(POP_1);

    EXPECT_STATE(R"(
        current: none
        active: POP_1 prio 5, 0 ms, hide on close, shown
        tree:
          DLG_A
            OBJ_1
            POP_1
          DLG_B
    )");
}

TEST_F(CShowPopupTest, ShowPopup_WhenLoadingThrows_PassesTheExceptionOnWithNothingListed)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    CodeFactory().FailLoad(1, FAILURE_INT);

    try
    {
        Manager().ShowPopup(POP_1);
        FAIL() << "expected the exception of the factory";
    }
    catch (int iValue)
    {
        EXPECT_EQ(7, iValue);
    }

    EXPECT_EVENTS(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
    )");
    EXPECT_STATE(R"(
        current: none
    )");
}

TEST_F(CShowPopupTest, LoadTime_IsMeasuredForPopupsToo)
{
    Manager().RegisterPopupDefinition(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "code:slow");
    CodeFactory().RegisterBuilder("code:slow",
                                  [this]
                                  {
                                      Clock().Set(Clock().GetTime() + 123);
                                      return CObjectTree("POP_1").Build();
                                  });
    Clock().Set(0xFFFFFFF0U);

    Manager().ShowPopup(POP_1);

    EXPECT_TRACE(R"(
        DEBUG: CGUIDialogManager::ShowPopup: Popup with id 9 is activated.\n
        INFO: Time for loading code:slow: 123.\n
        DEBUG: CGUIDialogManager::UpdateActivePopups: Popup with id 9 with priority 5 is activated with a display time of 0 ms.\n
    )");
}

TEST_F(CShowPopupTest, IsPopupDisplayed_FollowsTheInvisibleFlagOfTheObject)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));

    CGUIObject* pkPopup = Manager().ShowPopup(POP_1);
    EXPECT_TRUE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_1));
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_2));
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_2));

    pkPopup->SetInvisible(true);
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_TRUE(Manager().IsPopupInPopupList(POP_1));

    delete pkPopup;
    EXPECT_FALSE(Manager().IsPopupDisplayed(POP_1));
    EXPECT_FALSE(Manager().IsPopupInPopupList(POP_1));
}

TEST_F(CShowPopupTest, GetActivePopup_PointsToTheEntryOfTheList)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 3000, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 200, true, "POP_2");
    CGUIObject* pkFirst = Manager().ShowPopup(POP_1);
    CGUIObject* pkSecond = Manager().ShowPopup(POP_2);

    auto* pkEntry = CGUITestAccess::GetActivePopup(Manager(), POP_1);
    ASSERT_NE(nullptr, pkEntry);
    EXPECT_EQ(&CGUITestAccess::GetLast(CGUITestAccess::GetActivePopups(Manager()))->m_tValue, pkEntry);
    EXPECT_EQ(pkFirst, pkEntry->GetObject());
    EXPECT_EQ(&Manager(), pkEntry->m_pDialogManager);
    EXPECT_EQ(CGUIDialogManager::PRIO_MEDIUM, pkEntry->GetPriority());
    EXPECT_EQ(3000U, pkEntry->GetDisplayTime());
    EXPECT_FALSE(pkEntry->m_bDeleteOnClose);

    pkEntry = CGUITestAccess::GetActivePopup(Manager(), POP_2);
    ASSERT_NE(nullptr, pkEntry);
    EXPECT_EQ(pkSecond, pkEntry->GetObject());
    EXPECT_EQ(nullptr, CGUITestAccess::GetActivePopup(Manager(), POP_3));
}

TEST_F(CShowPopupTest, GetActivePopup_OfTwoEntriesWithOneIdentifier_FindsTheOneNearerTheFront)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    DefinePopup(POP_2, CGUIDialogManager::PRIO_LOW, 0, false, "POP_2");
    CGUIObject* pkFirst = Manager().ShowPopup(POP_1);
    CGUIObject* pkSecond = Manager().ShowPopup(POP_2);

    pkFirst->SetID(POP_2);

    const auto* pkEntry = CGUITestAccess::GetActivePopup(Manager(), POP_2);
    ASSERT_NE(nullptr, pkEntry);
    EXPECT_EQ(pkSecond, pkEntry->GetObject());
    EXPECT_EQ(nullptr, CGUITestAccess::GetActivePopup(Manager(), POP_1));
}

TEST_F(CShowPopupTest, ShowPopup_WithoutMemoryForItsEntryInTheList_LeavesThePopupHidden)
{
    DefinePopup(POP_1, CGUIDialogManager::PRIO_MEDIUM, 0, false, "POP_1");
    CGUIObject* pkPopup = Attach("POP_1");
    bool bIsHiddenWithoutEntry = false;
    // For a popup that is not listed yet, the entry is the last allocation.
    for (std::size_t uiGranted = 0; !Manager().IsPopupInPopupList(POP_1); ++uiGranted)
    {
        bIsHiddenWithoutEntry = pkPopup->IsInvisible();
        pkPopup->SetInvisible(false);
        TraceRecorder().Clear();
        const CAllocationFailure kFailure(uiGranted);
        try
        {
            Manager().ShowPopup(POP_1);
        }
        catch (const std::bad_alloc&)
        {
        }
    }

    EXPECT_TRUE(bIsHiddenWithoutEntry);
}

#if GTEST_HAS_DEATH_TEST && !defined(NDEBUG)
TEST_F(CShowPopupTest, ShowPopup_WithoutRoot_TripsTheAssertion)
{
    DestroyRoot();

    EXPECT_DEATH(Manager().ShowPopup(POP_1), "NULL != ms_pInstance");
}
#endif
} // namespace
