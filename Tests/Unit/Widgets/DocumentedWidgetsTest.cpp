// SPDX-License-Identifier: MIT
// The code of Docs/Widgets.md.

#include "Widgets/GUIWidgetContents.h"
#include "Widgets/GUIWidgets.h"

#include "TestSupport/GTest/GUITestFixture.h"

namespace
{
/** The texts and values of an application that has none. */
class CNoContents : public CGUITranslator, public CGUIValueSource
{
public:
    eC_Bool FindText(const eC_Char* /*pcName*/, GUIContentKey_t& /*uiKeyOUT*/) const override
    {
        return false;
    }
    const eC_Char* GetText(GUIContentKey_t /*uiKey*/) const override { return ""; }
    eC_Bool FindValue(const eC_Char* /*pcName*/, GUIContentKey_t& /*uiValueOUT*/) const override
    {
        return false;
    }
    const eC_Char* GetValueText(GUIContentKey_t /*uiValue*/) const override { return ""; }
    eC_Int GetValueNumber(GUIContentKey_t /*uiValue*/) const override { return 0; }
};

class CDocumentedWidgetsTest : public CGUITest
{
};

TEST_F(CDocumentedWidgetsTest, Widgets_AreRegisteredWithTheirContents)
{
    CNoContents kTexts;
    CNoContents kValues;

    RegisterGUIWidgets(CGUIFactoryManager::GetInstance()); // the elements of dialog files
    CGUIWidget::SetTranslator(&kTexts);                    // what textkey names; optional
    CGUIWidget::SetValueSource(&kValues);                  // what source names; optional

    EXPECT_NE(nullptr, CGUIFactoryManager::GetInstance().FindCreator("Button"));
    CGUIWidget::SetTranslator(nullptr);
    CGUIWidget::SetValueSource(nullptr);
}
} // namespace
