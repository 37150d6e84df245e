// SPDX-License-Identifier: MIT
#include "Application/Definitions.h"
#include "Tests/CoffeeMachineTest.h"
#include "Widgets/GUIWidgets.h"

#include <array>

using CWidgetsTest = CCoffeeMachineTest;

namespace
{
std::string RowOf(const CScreen& kScreen, eC_UInt uiRow)
{
    const std::string kFrame = kScreen.GetFrame().GetText();
    return SplitLines(kFrame).at(uiRow + 1);
}

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

TEST_F(CWidgetsTest, Painter_ShowsTheTextOfWidgetsThatTheDialogsDoWithout)
{
    PowerOn();
    auto* pkCheckBox = new CGUICheckBox(&CGUI::GetInstance());
    pkCheckBox->SetPosition(0, 11);
    pkCheckBox->SetText("a check box");

    EXPECT_NE(std::string::npos, Frame().find("|a check box "));
}

TEST_F(CWidgetsTest, Painter_SkipsObjectsThatAreNoWidgetsButDrawsTheirChildren)
{
    PowerOn();
    auto* pkComposite = new CGUICompositeObject(&CGUI::GetInstance());
    auto* pkLabel = new CGUILabel(pkComposite, NO_HANDLE);
    pkLabel->SetPosition(0, 11);
    pkLabel->SetTextKey(TXT_OK);

    EXPECT_NE(std::string::npos, Frame().find("|OK "));
}

TEST_F(CWidgetsTest, Painter_LeavesOutWhatIsInvisible)
{
    PowerOn();
    ASSERT_NE(std::string::npos, Frame().find("[ About ]"));

    Object(BTN_ABOUT)->SetInvisible(true);

    EXPECT_EQ(std::string::npos, Frame().find("[ About ]"));
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

TEST_F(CWidgetsTest, Screen_GivesAnUmlautOneColumn)
{
    CScreen kScreen;
    kScreen.Write(0, 0, "Über");
    kScreen.Write(4, 0, "|");

    EXPECT_EQ("|Über|" + std::string(35, ' ') + "|", RowOf(kScreen, 0));
    EXPECT_EQ(4, CountColumns("Über"));
}

TEST_F(CWidgetsTest, Screen_CutsOffWhatIsOutside)
{
    const std::string kEmptyRow = "|" + std::string(40, ' ') + "|";
    CScreen kScreen;
    kScreen.Write(-2, 5, "left");
    kScreen.Write(38, 5, "right");
    kScreen.Write(0, -1, "above");
    kScreen.Write(0, 12, "below");

    EXPECT_EQ(kEmptyRow, RowOf(kScreen, 4));
    EXPECT_EQ("|ft" + std::string(36, ' ') + "ri|", RowOf(kScreen, 5));
    EXPECT_EQ(kEmptyRow, RowOf(kScreen, 6));
    EXPECT_EQ(kEmptyRow, RowOf(kScreen, 0));
    EXPECT_EQ(kEmptyRow, RowOf(kScreen, 11));
}
