// SPDX-License-Identifier: MIT
#include "Tests/OtherFramework/OtherFramework.h"
#include "Core/GUIAnimatable.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"

#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <string>
#include <vector>

#if defined(CORE_GUITIMER_H) || defined(CORE_GUITRACE_H) || defined(CORE_CONTROL_GUIOBJECT_H) ||             \
    defined(CORE_UTILS_EC_STRING_H) || defined(CORE_GUIEVENTHANDLER_H) ||                                    \
    defined(CORE_GUIFACTORYMANAGER_H) || defined(GUICONFIG_GUIOBJECTHANDLERESOURCE_H)
#error "the library's own framework headers were found before those of the other framework"
#endif

namespace
{
using Texts_t = std::vector<std::string>;

eC_String Path(const eC_Char* pcPath)
{
    return eC_String(pcPath, 0, eC_String::eASCII);
}

class COtherFrameworkTest : public ::testing::Test
{
protected:
    COtherFrameworkTest()
    {
        COtherFramework::Reset();
        CGUIFactoryManager::CreateInstance();
    }

    /** Registers two dialogs and a popup for the one file that the factory knows. */
    void RegisterDefinitions()
    {
        m_kManager.RegisterDialogDefinition(Path("dialog"), DLG_FIRST);
        m_kManager.RegisterDialogDefinition(Path("dialog"), DLG_SECOND);
        m_kManager.RegisterPopupDefinition(POP_NOTE, CGUIDialogManager::PRIO_HIGH, 500, true, Path("dialog"));
    }

    std::string GetShown() const { return COtherFramework::DescribeChildren(m_kRoot); }

    CGUI m_kRoot;
    CGUIDialogManager m_kManager;
};

TEST_F(COtherFrameworkTest, DestructionOfAnAnimatable_ThatTheTimerDoesNotHold_OnlyAsksTheTimer)
{
    auto pAnimatable = std::make_unique<CGUIAnimatable>();
    EXPECT_EQ(0, COtherFramework::GetNOFCalls("IsAnimating"));
    pAnimatable.reset();
    EXPECT_EQ(1, COtherFramework::GetNOFCalls("IsAnimating"));
    EXPECT_EQ(0, COtherFramework::GetNOFCalls("RemoveAnimationCallback"));
}

TEST_F(COtherFrameworkTest, DestructionOfAnAnimatable_ThatTheTimerHolds_RemovesItsCallback)
{
    auto pAnimatable = std::make_unique<CGUIAnimatable>();
    CGUITimer::ms_kTimer.AddAnimationCallback(100, pAnimatable.get());
    EXPECT_TRUE(pAnimatable->IsAnimating());
    pAnimatable.reset();
    EXPECT_EQ(1, COtherFramework::GetNOFCalls("RemoveAnimationCallback"));
    EXPECT_EQ(COtherFramework::GetIntervals(), std::vector<eC_UInt>());
}

TEST_F(COtherFrameworkTest, DefaultOperationsOfAnAnimatable_OnlyLog)
{
    CGUIAnimatable kAnimatable;
    kAnimatable.DoAnimate(1.0F);
    kAnimatable.StartAnimation();
    kAnimatable.StopAnimation();
    EXPECT_EQ(3U, COtherFramework::TakeTrace().size());
    EXPECT_EQ(0, COtherFramework::GetNOFCalls("AddAnimationCallback"));
    EXPECT_EQ(0, COtherFramework::GetNOFCalls("RemoveAnimationCallback"));
    EXPECT_EQ(0, COtherFramework::GetNOFCalls("IsAnimating"));
}

TEST_F(COtherFrameworkTest, CreateDialogAndBack_SwitchDialogsAndBringTheFocusBack)
{
    RegisterDefinitions();
    CGUIObject* pkFirst = m_kManager.CreateDialog(DLG_FIRST, CGUIDialogManager::ODA_NOTHING);
    ASSERT_NE(nullptr, pkFirst);
    CGUIObject* pkButton = CGUIEventHandler::GetInstance().GetFocussedObject();
    ASSERT_NE(nullptr, pkButton);
    EXPECT_TRUE(pkButton->IsDescendantOf(pkFirst));
    EXPECT_EQ("1", GetShown());

    ASSERT_NE(nullptr, m_kManager.CreateDialog(DLG_SECOND, CGUIDialogManager::ODA_INVISIBLE));
    EXPECT_EQ("(1) 2", GetShown());
    EXPECT_EQ(DLG_SECOND, m_kManager.GetCurrentDialogID());
    EXPECT_TRUE(
        CGUIEventHandler::GetInstance().GetFocussedObject()->IsDescendantOf(m_kManager.GetCurrentDialog()));
    // The button had no identifier, so it got the first one after the application's handles.
    EXPECT_EQ(5, pkButton->GetID());

    m_kManager.Back(true);
    EXPECT_EQ("1", GetShown());
    EXPECT_EQ(DLG_FIRST, m_kManager.GetCurrentDialogID());
    EXPECT_EQ(CGUIEventHandler::GetInstance().GetFocussedObject(), pkButton);
    EXPECT_EQ(2, COtherFramework::GetNOFCalls("LoadDialogFromFile"));
    EXPECT_EQ(4, COtherFramework::GetNOFCalls("GetTime"));
}

TEST_F(COtherFrameworkTest, ShowPopup_WithADisplayTime_ClosesItselfThroughTheTimer)
{
    RegisterDefinitions();
    m_kManager.CreateDialog(DLG_FIRST, CGUIDialogManager::ODA_NOTHING);
    ASSERT_NE(nullptr, m_kManager.ShowPopup(POP_NOTE));
    EXPECT_EQ("1 3", GetShown());
    EXPECT_TRUE(m_kManager.IsPopupDisplayed(POP_NOTE));
    EXPECT_EQ(COtherFramework::GetIntervals(), std::vector<eC_UInt>{500});

    COtherFramework::RunOnlyCallback();
    EXPECT_EQ("1", GetShown());
    EXPECT_FALSE(m_kManager.IsPopupInPopupList(POP_NOTE));
    EXPECT_EQ(COtherFramework::GetIntervals(), std::vector<eC_UInt>());
}

TEST_F(COtherFrameworkTest, DestructionOfTheManager_StopsTheTimeOfItsPopup)
{
    auto pManager = std::make_unique<CGUIDialogManager>();
    pManager->RegisterPopupDefinition(POP_NOTE, CGUIDialogManager::PRIO_HIGH, 500, true, Path("dialog"));
    pManager->ShowPopup(POP_NOTE);
    EXPECT_EQ(COtherFramework::GetIntervals(), std::vector<eC_UInt>{500});
    pManager.reset();
    EXPECT_EQ(COtherFramework::GetIntervals(), std::vector<eC_UInt>());
    EXPECT_EQ("3", GetShown());
}

TEST_F(COtherFrameworkTest, LoadingFailure_IsLoggedWithTheManagersSourceAndLine)
{
    m_kManager.RegisterDialogDefinition(Path("missing"), DLG_FIRST);
    COtherFramework::TakeTrace();
    EXPECT_EQ(nullptr, m_kManager.CreateDialog(DLG_FIRST, CGUIDialogManager::ODA_NOTHING));
    Texts_t kTrace = COtherFramework::TakeTrace();
    for (std::string& kEntry : kTrace)
    {
        kEntry = std::regex_replace(
            kEntry, std::regex("\\|[^|]*Source/Core/GUIDialogManager.cpp\\|[1-9][0-9]*$"), "|manager|line");
    }
    EXPECT_EQ(
        kTrace,
        (Texts_t{"INFO: |Time for loading missing: 1.\n||",
                 "ERROR: |CGUIDialogManager::LoadDialogDescription: Faild to load dialog with ID 1 with "
                 "registered path missing.\n.|manager|line",
                 "DEBUG: |CGUIDialogManager::CreateDialogImpl has been called.Maybe you have forgotten to "
                 "implement the CreateDialogImpl in you derived class.\n||",
                 "ERROR: |CGUIDialogManager::CreateDialog: Createing dialog with ID 1 failed!\nThe current "
                 "dialog stays active.\n|manager|line"}));
}
} // namespace
