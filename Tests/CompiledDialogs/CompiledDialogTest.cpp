// SPDX-License-Identifier: MIT
#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "ExampleHandles.h"
#include "Examples.h"
#include "Loader/GUIDialogROMReader.h"
#include "Loader/GUIDialogXMLReader.h"
#include "NamedExamples.h"
#include "RandomDialogs.h"
#include "Scenario/EventLog.h"
#include "Scenario/TraceRecorder.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{
/** The attributes that were set on each object, in order. */
std::map<const CGUIObject*, std::string>& GetAttributes()
{
    static std::map<const CGUIObject*, std::string> kAttributes;
    return kAttributes;
}

/** Keeps all attributes, and accepts any that the framework does not know. */
template <typename TBase>
class CKeepingObject : public TBase
{
public:
    using TBase::TBase;
    CKeepingObject(const CKeepingObject&) = delete;
    CKeepingObject& operator=(const CKeepingObject&) = delete;
    ~CKeepingObject() override { GetAttributes().erase(this); }

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override
    {
        GetAttributes()[this] += std::string(pcName) + "='" + pcValue + "' ";
        const EAttributeResult eResult = TBase::SetAttribute(pcName, pcValue, kExpectedOUT);
        return eResult == ATTRIBUTE_UNKNOWN ? ATTRIBUTE_SET : eResult;
    }
};

/** Accepts a text and a number, but no children. */
class CLeaf : public CKeepingObject<CGUIObject>
{
public:
    using CKeepingObject::CKeepingObject;

    EAttributeResult SetAttribute(const eC_Char* pcName, const eC_Char* pcValue,
                                  eC_String& kExpectedOUT) override
    {
        const eC_Bool bIsWidth = std::strcmp(pcName, "width") == 0;
        if (bIsWidth && (*pcValue == '\0' || std::strspn(pcValue, "0123456789") != std::strlen(pcValue)))
        {
            kExpectedOUT = "a number";
            return ATTRIBUTE_BAD_VALUE;
        }
        if (std::strcmp(pcName, "strange") == 0)
        {
            kExpectedOUT = "text, width, invisible, focusable";
            return ATTRIBUTE_UNKNOWN;
        }
        return CKeepingObject::SetAttribute(pcName, pcValue, kExpectedOUT);
    }
};

std::string Describe(const CGUIObject& kObject)
{
    const auto kAttributes = GetAttributes().find(&kObject);
    std::string kText = (kObject.IsCompositeObject() ? "C " : "O ") + std::to_string(kObject.GetID()) +
                        (kObject.IsInvisible() ? " invisible " : " ") +
                        (kObject.IsFocusable() ? "focusable " : "") +
                        (kAttributes != GetAttributes().end() ? kAttributes->second : "");
    if (kObject.IsCompositeObject())
    {
        const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kObject).GetFirstChild();
        for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            kText += "\n(" + Describe(*pkChild) + ")";
        }
    }
    return kText;
}

std::string ReadText(const std::filesystem::path& kFile)
{
    std::ostringstream kText;
    kText << std::ifstream(kFile, std::ios::binary).rdbuf();
    return kText.str();
}

/** Loads dialogs through the factory and describes the result. */
class CCompiledDialogsTest : public testing::Test
{
protected:
    CCompiledDialogsTest() : m_kRecorder(m_kEventLog), m_uiNOFObjectsBefore(CGUIObject::GetNOFObjects()) {}

    void TearDown() override { EXPECT_EQ(m_uiNOFObjectsBefore, CGUIObject::GetNOFObjects()); }

    /** @return the tree, or what was logged after the name of the reader */
    std::string Load(CGUIDialogReader& kReader, const std::string& kPath)
    {
        CGUIFactoryManager& kFactory = CGUIFactoryManager::CreateInstance();
        kFactory.RegisterReaderForFileType("xml", &kReader);
        for (const eC_Char* pcName : {"Dialog", "Screen", "Popup", "Label", "Button", "Bar"})
        {
            kFactory.RegisterObjectClass<CKeepingObject<CGUICompositeObject>>(pcName);
        }
        kFactory.RegisterObjectClass<CLeaf>("Leaf");
        m_kRecorder.Clear();
        const std::unique_ptr<CGUIObject> kObject(kFactory.LoadDialogFromFile(kPath.c_str()));
        std::string kResult = kObject ? Describe(*kObject) : "nothing";
        for (const TraceEntry_t& kEntry : m_kRecorder.GetEntries())
        {
            const std::size_t uiReader = kEntry.m_kMessage.find("Reader::Read: ");
            EXPECT_NE(std::string::npos, uiReader) << kEntry.m_kMessage;
            kResult += "\n" + kEntry.m_kPrefix + kEntry.m_kMessage.substr(uiReader);
        }
        CGUIFactoryManager::DestroyInstance();
        return kResult;
    }

    /** Loads every dialog of the tables, and from the files below a directory.
     *  @return the results by path
     */
    std::map<std::string, std::string> CompareAll(const DialogROMTables_t& kTables,
                                                  const std::string& kDirectory)
    {
        CGUIDialogROMReader kROMReader(kTables);
        CGUIDialogXMLReader kXMLReader(kDirectory.c_str());
        std::map<std::string, std::string> kResults;
        for (eC_UInt uiDialog = 0; uiDialog < kTables.m_uiNOFDialogs; ++uiDialog)
        {
            const std::string kPath = kTables.m_pkDialogs[uiDialog].m_pcPath;
            kResults[kPath] = Load(kROMReader, kPath);
            EXPECT_EQ(Load(kXMLReader, kPath), kResults[kPath])
                << ReadText(std::filesystem::path(kDirectory) / kPath);
        }
        return kResults;
    }

private:
    CEventLog m_kEventLog;
    CTraceRecorder m_kRecorder;
    eC_UInt m_uiNOFObjectsBefore;
};

const std::string ckSources = DIALOGMANAGER_SOURCE_DIRECTORY;

std::set<std::string> GetExampleFiles()
{
    std::set<std::string> kFiles;
    for (const auto& kEntry : std::filesystem::recursive_directory_iterator(ckSources + "/Examples"))
    {
        const std::string kPath = kEntry.path().lexically_relative(ckSources).string();
        // A flow is no dialog.
        if (kEntry.path().extension() == ".xml" && kPath.rfind("Examples/Flows/", 0) != 0)
        {
            kFiles.insert(kPath);
        }
    }
    return kFiles;
}

std::set<std::string> GetPaths(const std::map<std::string, std::string>& kResults)
{
    std::set<std::string> kPaths;
    for (const auto& [kPath, kResult] : kResults)
    {
        EXPECT_EQ(std::string::npos, kResult.find("ERROR")) << kResult;
        kPaths.insert(kPath);
    }
    return kPaths;
}

TEST_F(CCompiledDialogsTest, Examples_WithHandlesWhenCompiled_GiveTheTreesOfTheirFiles)
{
    EXPECT_EQ(GetExampleFiles(), GetPaths(CompareAll(ckExamples, ckSources)));
}

TEST_F(CCompiledDialogsTest, Examples_WithHandlesWhenLoaded_GiveTheTreesOfTheirFiles)
{
    EXPECT_EQ(GetExampleFiles(), GetPaths(CompareAll(ckNamedExamples, ckSources)));
}

TEST_F(CCompiledDialogsTest, Example_GivesItsTree)
{
    CGUIDialogROMReader kReader(ckExamples);
    EXPECT_EQ("C " + std::to_string(DLG_SETTINGS) + " \n(O " + std::to_string(BTN_SAVE) + " focusable )",
              Load(kReader, "Examples/FirstSteps/Settings.xml"));
}

TEST_F(CCompiledDialogsTest, RandomDialogs_GiveTheTreesAndErrorsOfTheirFiles)
{
    const std::map<std::string, std::string> kResults = CompareAll(ckRandomDialogs, RANDOM_DIALOG_DIRECTORY);

    EXPECT_EQ(300u, kResults.size());
    std::map<std::string, std::size_t> kNumbers;
    for (const auto& [kPath, kResult] : kResults)
    {
        for (const eC_Char* pcError : {"unknown element", "inside", "unknown handle", "unknown attribute",
                                       "bad value", "nothing", "C ", "O "})
        {
            kNumbers[pcError] += kResult.find(pcError) != std::string::npos ? 1 : 0;
        }
    }
    EXPECT_LT(100u, kResults.size() - kNumbers["nothing"]);
    for (const auto& [kWhat, uiNumber] : kNumbers)
    {
        EXPECT_LT(0u, uiNumber) << kWhat;
    }
}

TEST_F(CCompiledDialogsTest, UnknownPath_IsRefused)
{
    CGUIDialogROMReader kReader(ckExamples);
    for (const eC_Char* pcPath : {"Home.xml", "./Examples/FirstSteps/Home.xml", ".xml", "zzz.xml",
                                  "Examples/FirstSteps/Home.XML.xml"})
    {
        EXPECT_EQ(std::string("nothing\nERROR: Reader::Read: ") + pcPath +
                      ":1:1: no such compiled dialog; expected a path that has a table.\n",
                  Load(kReader, pcPath));
    }
}

/** @return whether memory is writable, according to the operating system */
bool IsWritable(const void* pAddress)
{
    std::ifstream kMap("/proc/self/maps");
    std::string kLine;
    while (std::getline(kMap, kLine))
    {
        char* pcRest = nullptr;
        const std::uintptr_t uiFirst = std::strtoull(kLine.c_str(), &pcRest, 16);
        const std::uintptr_t uiEnd = std::strtoull(pcRest + 1, &pcRest, 16);
        const std::uintptr_t uiAddress = reinterpret_cast<std::uintptr_t>(pAddress);
        if (uiAddress >= uiFirst && uiAddress < uiEnd)
        {
            return pcRest[2] == 'w';
        }
    }
    ADD_FAILURE() << "no such memory";
    return true;
}

TEST_F(CCompiledDialogsTest, Tables_LieInMemoryThatCannotBeWritten)
{
    int iOnTheStack = 0;
    EXPECT_TRUE(IsWritable(&iOnTheStack));
    EXPECT_FALSE(IsWritable(&ckExamples));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs[0].m_pcPath));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs[0].m_kElements.m_pkElements));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs[0].m_kElements.m_pkElements[0].m_pcName));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs[0].m_kElements.m_pkAttributes));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs[0].m_kElements.m_pkAttributes[0].m_pcValue));
    EXPECT_FALSE(IsWritable(ckExamples.m_pkDialogs[0].m_puiPositions));
}
} // namespace
