// SPDX-License-Identifier: MIT
#include "Scenario/TextLines.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
/** Validates texts against the schema in Docs/DialogFiles.md that adds an element to Docs/DialogFile.xsd. */
class CDialogFileSchemaTest : public testing::Test
{
protected:
    CDialogFileSchemaTest()
    {
        m_kDirectory.Write("DialogFile.xsd", ReadSourceFile("Docs/DialogFile.xsd"));
        m_kDirectory.Write("Application.xsd", JoinLines(GetDocumentBlocks("xsd")));
    }

    /** @return "valid", or what xmllint reports */
    std::string Validate(const std::string& kText)
    {
        m_kDirectory.Write("dialog.xml", kText);
        const std::vector<std::string> kLines =
            RunShell("cd '" + m_kDirectory.GetPath().string() +
                     "' && xmllint --noout --nonet --schema Application.xsd dialog.xml 2>&1");
        return kLines == std::vector<std::string>{"dialog.xml validates"} ? "valid" : JoinLines(kLines);
    }

    void ExpectInvalid(const std::string& kText)
    {
        EXPECT_NE(std::string::npos, Validate(kText).find("dialog.xml fails to validate")) << kText;
    }

    CTemporaryDirectory m_kDirectory;
};

TEST_F(CDialogFileSchemaTest, Elements_OfFrameworkAndApplication_AreAllowedAnywhere)
{
    EXPECT_EQ("valid", Validate("<Object/>"));
    EXPECT_EQ("valid", Validate("<Label/>"));
    EXPECT_EQ("valid", Validate("<Composite><Label/><Composite><!-- --><Object/></Composite></Composite>"));
}

TEST_F(CDialogFileSchemaTest, Attributes_OfEveryObject_AreTyped)
{
    EXPECT_EQ("valid", Validate("<Object id='DLG_A' invisible='true' focusable='false'/>"));
    EXPECT_EQ("valid", Validate("<Composite id='-2147483648'><Label id='2147483647'/></Composite>"));
    ExpectInvalid("<Object id=''/>");
    ExpectInvalid("<Object id='2147483648'/>");
    ExpectInvalid("<Object id='-2147483649'/>");
    ExpectInvalid("<Label id='+1'/>");
    ExpectInvalid("<Object id='1.5'/>");
    ExpectInvalid("<Object id='DLG A'/>");
    ExpectInvalid("<Label invisible='1'/>");
    ExpectInvalid("<Composite focusable=''/>");
}

TEST_F(CDialogFileSchemaTest, Attributes_OfTheApplication_AreThoseOfTheClass)
{
    EXPECT_EQ("valid", Validate("<Label text='a' width='1'/>"));
    ExpectInvalid("<Label width='wide'/>");
    ExpectInvalid("<Label height='1'/>");
    ExpectInvalid("<Object text='a'/>");
}

TEST_F(CDialogFileSchemaTest, WhatTheReaderRefuses_IsInvalid)
{
    ExpectInvalid("<Dialog/>");
    ExpectInvalid("<AnyObject/>");
    ExpectInvalid("<Composite><Dialog/></Composite>");
    ExpectInvalid("<Composite><AnyObject/></Composite>");
    ExpectInvalid("<Object><Object/></Object>");
    ExpectInvalid("<Label><Object/></Label>");
    ExpectInvalid("<Composite>text</Composite>");
}

TEST_F(CDialogFileSchemaTest, FileOfTheDocument_IsValid)
{
    ASSERT_EQ(1u, GetDocumentBlocks("xml").size());
    EXPECT_EQ("valid", Validate(GetDocumentBlocks("xml")[0]));
}
} // namespace
