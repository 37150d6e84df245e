// SPDX-License-Identifier: MIT
// The code of Docs/DialogFiles.md as a program, and tests of what the page says.

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"
#include "GUIConfig/GUIObjectHandleResource.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Scenario/TextLines.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace
{
/** A line of text. */
class CLabel : public CGUIObject
{
public:
    using CGUIObject::CGUIObject;

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override
    {
        if (std::strcmp(pcName, "text") == 0)
        {
            m_kText = pcValue;
            return ATTRIBUTE_SET;
        }
        if (std::strcmp(pcName, "width") == 0)
        {
            return SetWidth(pcValue, kExpectedOUT);
        }
        const EAttributeResult eResult = CGUIObject::SetAttribute(pcName, pcValue, kExpectedOUT);
        if (eResult == ATTRIBUTE_UNKNOWN)
        {
            kExpectedOUT = "text, width, " + kExpectedOUT;
        }
        return eResult;
    }

    const eC_String& GetText() const { return m_kText; }
    eC_Int GetWidth() const { return m_iWidth; }

private:
    EAttributeResult SetWidth(const eC_Char* pcValue, eC_String& kExpectedOUT)
    {
        const std::size_t uiNOFDigits = std::strspn(pcValue, "0123456789");
        if (uiNOFDigits == 0 || uiNOFDigits > 2 || pcValue[uiNOFDigits] != '\0')
        {
            kExpectedOUT = "a number from 0 to 99";
            return ATTRIBUTE_BAD_VALUE;
        }
        m_iWidth = std::atoi(pcValue);
        return ATTRIBUTE_SET;
    }

    eC_String m_kText;
    eC_Int m_iWidth = 0;
};

void RegisterObjectClasses(CGUIFactoryManager& kFactory)
{
    kFactory.RegisterObjectClass<CLabel>("Label");
}

/** Makes dialogs that are too simple for a file. */
class CBlankDialogReader : public CGUIDialogReader
{
public:
    static constexpr const eC_Char* cpcPrefix = "blank:";

    CGUIObject* Read(const eC_String& kPath) override
    {
        ObjectHandle_t eID = NO_HANDLE;
        if (!ParseObjectHandle(kPath.GetText() + std::strlen(cpcPrefix), eID))
        {
            GUILOG(GUI_TRACE_ERROR, "CBlankDialogReader::Read: " + kPath +
                                        ":1:7: unknown handle; expected the name of a handle.\n");
            return nullptr;
        }
        return new CGUICompositeObject(nullptr, eID);
    }
};

void RegisterReaders(CGUIFactoryManager& kFactory, CBlankDialogReader& kBlankReader,
                     CGUIDialogXMLReader& kXMLReader)
{
    kFactory.RegisterReaderForPathPrefix(CBlankDialogReader::cpcPrefix, &kBlankReader);
    kFactory.RegisterReaderForFileType("xml", &kXMLReader);
}

/** @return the first two cells of each row of the document where both are code */
std::vector<std::pair<std::string, std::string>> GetExamples()
{
    std::vector<std::pair<std::string, std::string>> kExamples;
    for (const std::string& kLine : SplitLines(ReadSourceFile("Docs/DialogFiles.md")))
    {
        const std::size_t uiBetween = kLine.find("` | `");
        const std::size_t uiEnd = kLine.rfind("` |");
        if (kLine.rfind("| `<", 0) == 0 || kLine.rfind("| `H", 0) == 0)
        {
            kExamples.emplace_back(kLine.substr(3, uiBetween - 3),
                                   kLine.substr(uiBetween + 5, uiEnd - uiBetween - 5));
        }
    }
    return kExamples;
}

/** The factory as the document sets it up. */
class CDialogFilesDocumentTest : public CDialogFileTest
{
protected:
    CDialogFilesDocumentTest()
    {
        CGUIFactoryManager::DestroyInstance();
        CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
        RegisterObjectClasses(kFactory);
        RegisterReaders(kFactory, m_kBlankReader, m_kReader);
    }

    CBlankDialogReader m_kBlankReader;
};

TEST_F(CDialogFilesDocumentTest, File_GivesItsTree)
{
    ASSERT_EQ(1u, GetDocumentBlocks("xml").size());
    ExpectTree(GetDocumentBlocks("xml")[0],
               "Composite 1 { Object Composite { Object 17 focusable Object 18 invisible focusable } }");
}

TEST_F(CDialogFilesDocumentTest, ErrorExamples_GiveTheirMessages)
{
    const std::vector<std::pair<std::string, std::string>> kExamples = GetExamples();
    EXPECT_EQ(40u, kExamples.size());
    for (const auto& [kFile, kMessage] : kExamples)
    {
        ExpectRefused(kFile, kMessage);
    }
}

TEST_F(CDialogFilesDocumentTest, Label_TakesItsAttributes)
{
    const std::unique_ptr<CGUIObject> kObject = LoadText("<Label text='a' width='42'/>");
    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    const CLabel& kLabel = static_cast<const CLabel&>(*kObject);
    EXPECT_STREQ("a", kLabel.GetText().GetText());
    EXPECT_EQ(42, kLabel.GetWidth());
}

TEST_F(CDialogFilesDocumentTest, BlankDialogReader_MakesDialogsByTheirHandle)
{
    const std::unique_ptr<CGUIObject> kObject = LoadFile("blank:DLG_C");
    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ("Composite 3 { }", DescribeTree(*kObject));
}

TEST_F(CDialogFilesDocumentTest, BlankDialogReader_UnknownHandle_IsRefused)
{
    EXPECT_EQ(nullptr, LoadFile("blank:DLG_NONE"));
    EXPECT_EQ(std::vector<std::string>{"ERROR: CBlankDialogReader::Read: blank:DLG_NONE:1:7: unknown handle; "
                                       "expected the name of a handle.\\n "
                                       "@Loader/DialogFilesDocumentHostTest.cpp:#"},
              TakeLog());
}
} // namespace
