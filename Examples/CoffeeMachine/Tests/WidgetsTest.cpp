// SPDX-License-Identifier: MIT
#include "Application/Definitions.h"
#include "Tests/CoffeeMachineTest.h"
#include "Widgets/GUIWidgets.h"

#include <array>

using CWidgetsTest = CCoffeeMachineTest;

namespace
{
std::vector<const eC_Char*> GetAllPaths()
{
    std::vector<const eC_Char*> kPaths = {cpcSimpleHomePath};
    for (const DialogDefinition_t& kDialog : cakDialogDefinitions)
    {
        kPaths.push_back(kDialog.m_pcPath);
    }
    for (const PopupDefinition_t& kPopup : cakPopupDefinitions)
    {
        if (*kPopup.m_pcPath != '\0')
        {
            kPaths.push_back(kPopup.m_pcPath);
        }
    }
    return kPaths;
}
} // namespace

TEST_F(CWidgetsTest, DialogFiles_AllLoadWithoutAnEntryInTheTrace)
{
    for (const eC_Char* pcPath : GetAllPaths())
    {
        const std::unique_ptr<CGUIObject> pkObject(
            CGUIFactoryManager::GetInstance().LoadDialogFromFile(pcPath));
        EXPECT_NE(nullptr, pkObject) << pcPath;
    }
    EXPECT_TRUE(GetTrace().empty());
}

TEST_F(CWidgetsTest, DialogFiles_GiveTheIdentifierThatTheyAreRegisteredFor)
{
    for (const DialogDefinition_t& kDialog : cakDialogDefinitions)
    {
        const std::unique_ptr<CGUIObject> pkObject(
            CGUIFactoryManager::GetInstance().LoadDialogFromFile(kDialog.m_pcPath));
        ASSERT_NE(nullptr, pkObject) << kDialog.m_pcPath;
        EXPECT_EQ(kDialog.m_eDialogID, pkObject->GetID()) << kDialog.m_pcPath;
    }
}

TEST_F(CWidgetsTest, DialogFiles_GiveEveryFocusableObjectAnIdentifierSoThatTheFocusFindsItAgain)
{
    for (const eC_Char* pcPath : GetAllPaths())
    {
        const std::unique_ptr<CGUIObject> pkWindow(
            CGUIFactoryManager::GetInstance().LoadDialogFromFile(pcPath));
        ASSERT_TRUE(pkWindow != nullptr && pkWindow->IsCompositeObject()) << pcPath;
        for (const CGUIObject* pkChild = static_cast<CGUICompositeObject&>(*pkWindow).GetFirstChild();
             pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            EXPECT_TRUE(!pkChild->IsFocusable() || pkChild->GetID() != NO_HANDLE) << pcPath;
        }
    }
}

TEST_F(CWidgetsTest, Attribute_WithANameThatIsNoTextOrValue_IsRefused)
{
    const CGUIFactoryManager& kFactory = CGUIFactoryManager::GetInstance();
    const std::unique_ptr<CGUIObject> pkLabel(kFactory.CreateObject("Label", nullptr, NO_HANDLE));
    for (const std::array<const eC_Char*, 2>& kAttribute : {std::array<const eC_Char*, 2>{"textkey", "Back"},
                                                            {"textkey", "TXT_NONE"},
                                                            {"source", "water"},
                                                            {"source", "NONE"}})
    {
        eC_String kExpected;
        EXPECT_EQ(ATTRIBUTE_BAD_VALUE, pkLabel->SetAttribute(kAttribute[0], kAttribute[1], kExpected))
            << kAttribute[0] << "=" << kAttribute[1];
    }
}

TEST_F(CWidgetsTest, Texts_AreThereInBothLanguages)
{
    for (eC_UInt uiKey = TXT_NONE + 1; uiKey < NOF_TEXTS; ++uiKey)
    {
        const auto eKey = static_cast<ETextKey>(uiKey);
        EXPECT_STRNE("", GetDisplayText(eKey, LANGUAGE_ENGLISH)) << uiKey;
        EXPECT_STRNE("", GetDisplayText(eKey, LANGUAGE_GERMAN)) << uiKey;
    }
    EXPECT_STREQ("Zurück", GetDisplayText(TXT_BACK, LANGUAGE_GERMAN));
}
