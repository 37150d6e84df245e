// SPDX-License-Identifier: MIT
#include "TestSupport/GTest/GUITestFixture.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gmock/gmock.h>

#include <stdexcept>

using ::testing::HasSubstr;

class CTreeDescriptionTest : public CGUITest
{
protected:
    /** @return the message for a wrong description, or "built" */
    static std::string GetComplaint(const std::string& kText)
    {
        try
        {
            delete CObjectTree(kText).Build();
        }
        catch (const std::invalid_argument& kException)
        {
            return kException.what();
        }
        return "built";
    }
};

TEST_F(CTreeDescriptionTest, Build_MakesTheWholeTreeUnderTheParent)
{
    CObjectTree("DLG_A invisible { OBJ_1 focusable; OBJ_2 { - ; OBJ_3 focusable=true }; 40 }").Build(&Root());

    EXPECT_STATE(R"(
        current: none
        tree:
          DLG_A invisible
            OBJ_1 focusable
            OBJ_2
              -
              OBJ_3 focusable
            40
    )");
}

TEST_F(CTreeDescriptionTest, Build_TakesCompositesForTheTopAndForBracesAndObjectsOtherwise)
{
    Attach("DLG_A { OBJ_1; OBJ_2 {}; Composite OBJ_3 }");
    Attach("Object DLG_B");

    EXPECT_TRUE(Object(DLG_A)->IsCompositeObject());
    EXPECT_FALSE(Object(OBJ_1)->IsCompositeObject());
    EXPECT_TRUE(Object(OBJ_2)->IsCompositeObject());
    EXPECT_TRUE(Object(OBJ_3)->IsCompositeObject());
    EXPECT_FALSE(Object(DLG_B)->IsCompositeObject());
}

TEST_F(CTreeDescriptionTest, Build_CanBeRepeated)
{
    const CObjectTree kTree("DLG_A");
    CGUIObject* pkFirst = kTree.Build(&Root());
    CGUIObject* pkSecond = kTree.Build(&Root());
    EXPECT_NE(pkFirst, pkSecond);
}

TEST_F(CTreeDescriptionTest, Build_UsesTheClassesOfTheApplication)
{
    class CLabel : public CGUIObject
    {
    public:
        using CGUIObject::CGUIObject;

        EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                      eC_String& kExpectedOUT) override
        {
            if (std::string(pcName) != "text")
            {
                return CGUIObject::SetAttribute(pcName, pcValue, kExpectedOUT);
            }
            m_kText = pcValue;
            return ATTRIBUTE_SET;
        }

        std::string m_kText;
    };
    CGUIFactoryManager::GetInstance().RegisterObjectClass<CLabel>("Label");

    Attach("DLG_A { Label OBJ_1 text=\"two words; {and} = signs\" focusable }");

    EXPECT_EQ("two words; {and} = signs", static_cast<CLabel*>(Object(OBJ_1))->m_kText);
    EXPECT_TRUE(Object(OBJ_1)->IsFocusable());
}

TEST_F(CTreeDescriptionTest, Build_ThatFailsLeavesNothingUnderTheParent)
{
    EXPECT_THROW(Attach("DLG_A { OBJ_1; OBJ_2 { Nonsense OBJ_3 } }"), std::invalid_argument);
    EXPECT_EQ(nullptr, Root().GetFirstChild());
}

TEST_F(CTreeDescriptionTest, WrongText_IsToldWithWhatWasExpectedAndFound)
{
    EXPECT_EQ("expected an object class or an identifier, found the end in: ", GetComplaint(""));
    EXPECT_EQ("expected an identifier, found the end in: Composite", GetComplaint("Composite"));
    EXPECT_EQ("expected an identifier, found '{' in: DLG_X {", GetComplaint("DLG_X {"));
    EXPECT_EQ("expected an object class or an identifier, found the end in: DLG_A {",
              GetComplaint("DLG_A {"));
    EXPECT_EQ("expected ; or }, found the end in: DLG_A { OBJ_1", GetComplaint("DLG_A { OBJ_1"));
    EXPECT_EQ("expected ; or }, found 'OBJ_2' in: DLG_A { OBJ_1 {} OBJ_2 }",
              GetComplaint("DLG_A { OBJ_1 {} OBJ_2 }"));
    EXPECT_EQ("expected the end, found '}' in: DLG_A }", GetComplaint("DLG_A }"));
    EXPECT_EQ("expected an attribute, found '=' in: DLG_A =", GetComplaint("DLG_A ="));
    EXPECT_EQ("expected a value for text, found '}' in: DLG_A { OBJ_1 text=}",
              GetComplaint("DLG_A { OBJ_1 text=}"));
    EXPECT_EQ("expected a closing quote in: DLG_A text=\"a", GetComplaint("DLG_A text=\"a"));
}

TEST_F(CTreeDescriptionTest, UnknownClassAndAttribute_AreToldWithThoseThatAreKnown)
{
    EXPECT_EQ("expected an object class (Object, Composite), found 'Button'", GetComplaint("Button DLG_A"));
    EXPECT_THAT(GetComplaint("DLG_A colour=red"), HasSubstr("found 'colour=red'"));
    EXPECT_THAT(GetComplaint("DLG_A focusable=maybe"), HasSubstr("found 'focusable=maybe'"));
    EXPECT_EQ("expected a class that takes children, found 'Object'", GetComplaint("Object DLG_A { OBJ_1 }"));
}
