// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_WIDGETS_WIDGETSTEST_H
#define TESTS_UNIT_WIDGETS_WIDGETSTEST_H

/** @file
 *  What the tests of widgets share: a framework, texts in two languages, and values.
 */

#include "TestSupport/GTest/GUITestFixture.h"
#include "Widgets/GUIWidgetChanges.h"
#include "Widgets/GUIWidgets.h"

#include <string>
#include <vector>

/** The texts TXT_BACK (1) and TXT_NEXT (2). */
class CTestTranslator : public CGUITranslator
{
public:
    eC_Bool m_bIsGerman = false;

    eC_Bool FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const override
    {
        const std::string kName(pcName);
        uiKeyOUT = kName == "TXT_BACK"   ? GUIContentKey_t(1)
                   : kName == "TXT_NEXT" ? GUIContentKey_t(2)
                                         : uiKeyOUT;
        return kName == "TXT_BACK" || kName == "TXT_NEXT";
    }

    const eC_Char* GetText(GUIContentKey_t uiKey) const override
    {
        const eC_Char* pcBack = m_bIsGerman ? "Zurück" : "Back";
        const eC_Char* pcNext = m_bIsGerman ? "Weiter" : "Next";
        return uiKey == 1 ? pcBack : pcNext;
    }
};

/** The value LEVEL (1). */
class CTestValues : public CGUIValueSource
{
public:
    eC_Int m_iLevel = 0;
    std::string m_kText = "none";

    eC_Bool FindValue(const eC_Char* pcName, GUIContentKey_t& uiValueOUT) const override
    {
        const eC_Bool bIsLevel = std::string(pcName) == "LEVEL";
        uiValueOUT = bIsLevel ? GUIContentKey_t(1) : uiValueOUT;
        return bIsLevel;
    }

    const eC_Char* GetValueText(GUIContentKey_t) const override { return m_kText.c_str(); }
    eC_Int GetValueNumber(GUIContentKey_t) const override { return m_iLevel; }
};

class CWidgetsTest : public CGUITest
{
protected:
    CWidgetsTest()
    {
        RegisterGUIWidgets(CGUIFactoryManager::GetInstance());
        CGUIWidget::SetTranslator(&m_kTranslator);
        CGUIWidget::SetValueSource(&m_kValues);
    }

    ~CWidgetsTest() override
    {
        CGUIWidget::SetTranslator(nullptr);
        CGUIWidget::SetValueSource(nullptr);
    }

    /** Sets an attribute, which must be accepted. */
    static void Set(CGUIObject& kObject, const eC_Char* pcName, const eC_Char* pcValue)
    {
        eC_String kExpected;
        EXPECT_EQ(ATTRIBUTE_SET, kObject.SetAttribute(pcName, pcValue, kExpected))
            << pcName << "=" << pcValue << ": " << kExpected.GetText();
    }

    /** Expects an attribute to be refused. @param pcExpected what the message says was expected */
    static void ExpectBadValue(CGUIObject& kObject, const eC_Char* pcName, const eC_Char* pcValue,
                               const eC_Char* pcExpected)
    {
        eC_String kExpected;
        EXPECT_EQ(ATTRIBUTE_BAD_VALUE, kObject.SetAttribute(pcName, pcValue, kExpected))
            << pcName << "=" << pcValue;
        EXPECT_STREQ(pcExpected, kExpected.GetText()) << pcName << "=" << pcValue;
    }

    /** @return the widgets that were not taken yet, by their identifiers, in order */
    static std::string TakeAll(CGUIWidgetChanges& kChanges)
    {
        std::string kNames;
        while (const CGUIWidget* pkWidget = kChanges.TakeNext())
        {
            kNames += (kNames.empty() ? "" : " ") + NameOfHandle(pkWidget->GetObject().GetID());
        }
        kChanges.Settle();
        return kNames;
    }

    CTestTranslator m_kTranslator;
    CTestValues m_kValues;
};

#endif
