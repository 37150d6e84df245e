// SPDX-License-Identifier: MIT
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include "Scenario/TextLines.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

namespace
{
struct PipeCloser_t
{
    void operator()(std::FILE* pkPipe) const { pclose(pkPipe); }
};
} // namespace

CTemporaryDirectory::CTemporaryDirectory()
{
    std::string kTemplate = std::filesystem::temp_directory_path() / "DialogFileTest.XXXXXX";
    m_kPath = mkdtemp(kTemplate.data());
}

CTemporaryDirectory::~CTemporaryDirectory()
{
    std::filesystem::remove_all(m_kPath);
}

std::string CTemporaryDirectory::Write(const std::string& kName, const std::string& kBytes) const
{
    const std::filesystem::path kFile = m_kPath / kName;
    std::ofstream(kFile, std::ios::binary) << kBytes;
    return kFile;
}

EAttributeResult CTestLabel::SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                          eC_String& kExpectedOUT)
{
    if (std::strcmp(pcName, "text") == 0)
    {
        m_kText = pcValue;
        return ATTRIBUTE_SET;
    }
    if (std::strcmp(pcName, "width") == 0)
    {
        m_kWidth = pcValue;
        const eC_Bool bIsNumber = !m_kWidth.empty() && m_kWidth.size() <= 2 &&
                                  m_kWidth.find_first_not_of("0123456789") == std::string::npos;
        kExpectedOUT = "a number from 0 to 99";
        return bIsNumber ? ATTRIBUTE_SET : ATTRIBUTE_BAD_VALUE;
    }
    const EAttributeResult eResult = CGUIObject::SetAttribute(pcName, pcValue, kExpectedOUT);
    if (eResult == ATTRIBUTE_UNKNOWN)
    {
        kExpectedOUT = "text, width, " + kExpectedOUT;
    }
    return eResult;
}

CDialogFileTest::CDialogFileTest()
    : m_kRecorder(m_kEventLog),
      m_kReader(m_kDirectory.GetPath().c_str()),
      m_uiNOFObjectsBefore(CGUIObject::GetNOFObjects())
{
    CGUIFactoryManager::DestroyInstance();
    CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
    kFactory.RegisterObjectClass<CTestLabel>("Label");
    kFactory.RegisterReaderForFileType("xml", &m_kReader);
}

CDialogFileTest::~CDialogFileTest()
{
    CGUIFactoryManager::DestroyInstance();
}

void CDialogFileTest::TearDown()
{
    EXPECT_EQ(m_uiNOFObjectsBefore, CGUIObject::GetNOFObjects());
}

std::unique_ptr<CGUIObject> CDialogFileTest::LoadText(const std::string& kText)
{
    m_kDirectory.Write("dialog.xml", kText);
    return LoadFile("dialog.xml");
}

std::unique_ptr<CGUIObject> CDialogFileTest::LoadFile(const std::string& kPath)
{
    return std::unique_ptr<CGUIObject>(CGUIFactoryManager::GetInstance().LoadDialogFromFile(
        eC_String(kPath.data(), static_cast<eC_UInt>(kPath.size()))));
}

std::vector<std::string> CDialogFileTest::TakeLog()
{
    return m_kEventLog.Take(EVENT_TRACE);
}

void CDialogFileTest::ExpectRefused(const std::string& kText, const std::string& kError)
{
    SCOPED_TRACE(EscapeLineBreaks(kText.substr(0, 200)));
    const eC_UInt uiNOFObjects = CGUIObject::GetNOFObjects();
    EXPECT_EQ(nullptr, LoadText(kText));
    EXPECT_EQ(std::vector<std::string>{"ERROR: CGUIDialogXMLReader::Read: dialog.xml:" + kError +
                                       ".\\n @Loader/GUIDialogXMLReader.cpp:#"},
              TakeLog());
    EXPECT_EQ(uiNOFObjects, CGUIObject::GetNOFObjects());
}

void CDialogFileTest::ExpectTree(const std::string& kText, const std::string& kTree)
{
    SCOPED_TRACE(EscapeLineBreaks(kText.substr(0, 200)));
    const std::unique_ptr<CGUIObject> kObject = LoadText(kText);
    EXPECT_EQ(std::vector<std::string>{}, TakeLog());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(nullptr, kObject->GetParent());
    EXPECT_EQ(kTree, DescribeTree(*kObject));
}

std::string DescribeTree(const CGUIObject& kObject)
{
    std::string kText = kObject.IsCompositeObject() ? "Composite" : "Object";
    kText += kObject.GetID() != NO_HANDLE ? " " + std::to_string(kObject.GetID()) : "";
    kText += kObject.IsInvisible() ? " invisible" : "";
    kText += kObject.IsFocusable() ? " focusable" : "";
    if (kObject.IsCompositeObject())
    {
        kText += " {";
        const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kObject).GetFirstChild();
        for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            kText += " " + DescribeTree(*pkChild);
        }
        kText += " }";
    }
    return kText;
}

std::vector<std::string> RunShell(const std::string& kCommand)
{
    std::string kOutput;
    const std::unique_ptr<std::FILE, PipeCloser_t> kPipe(popen(kCommand.c_str(), "r"));
    char acBlock[4096];
    while (const std::size_t uiLength = std::fread(acBlock, 1, sizeof acBlock, kPipe.get()))
    {
        kOutput.append(acBlock, uiLength);
    }
    return SplitLines(kOutput);
}

std::string ReadSourceFile(const std::string& kPath)
{
    std::ostringstream kText;
    kText << std::ifstream(std::string(DIALOGMANAGER_SOURCE_DIRECTORY "/") + kPath).rdbuf();
    return kText.str();
}

std::vector<std::string> GetDocumentBlocks(const std::string& kLanguage)
{
    const std::string kDocument = ReadSourceFile("Docs/DialogFiles.md");
    const std::string kBegin = "\n```" + kLanguage + "\n";
    std::vector<std::string> kBlocks;
    for (std::size_t uiAt = kDocument.find(kBegin); uiAt != std::string::npos;)
    {
        const std::size_t uiBlock = uiAt + kBegin.size();
        const std::size_t uiEnd = kDocument.find("\n```\n", uiBlock);
        kBlocks.push_back(kDocument.substr(uiBlock, uiEnd + 1 - uiBlock));
        uiAt = kDocument.find(kBegin, uiEnd);
    }
    return kBlocks;
}
