// SPDX-License-Identifier: MIT
#include "Loader/GUIDialogROMReader.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "Scenario/EventLog.h"
#include "Scenario/TraceRecorder.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/UnitTestHandles.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
/** Has a text and no children. */
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
        if (std::strcmp(pcName, "throw") == 0)
        {
            throw std::runtime_error(pcValue);
        }
        return CGUIObject::SetAttribute(pcName, pcValue, kExpectedOUT);
    }

    const eC_String& GetText() const { return m_kText; }

private:
    eC_String m_kText;
};

// Positions: 1:1, 2:3 with 2:10 and 2:15 ..., written as the table has them.
constexpr DialogElement_t cakTreeElements[] = {{"Composite", DLG_A, 0, 1, cuiNoAttribute},
                                               {"Label", NO_HANDLE, 1, 2, 0},
                                               {"Composite", NO_HANDLE, 1, 0, cuiNoAttribute},
                                               {"Object", OBJ_2, 2, 1, cuiNoAttribute},
                                               {"Label", static_cast<ObjectHandle_t>(77), 1, 2, 1}};
constexpr DialogAttribute_t cakTreeAttributes[] = {{"invisible", "true"},
                                                   {"id", "OBJ_1"},
                                                   {"text", "Gr\xC3\xBC\xC3\x9F"
                                                            "e"},
                                                   {"focusable", "true"},
                                                   {"text", "\n"},
                                                   {"id", "OBJ_MSGBOX_OK"}};

constexpr DialogElement_t cakUnknownElements[] = {{"Composite", NO_HANDLE, 0, 0, cuiNoAttribute},
                                                  {"Dialog", NO_HANDLE, 1, 0, cuiNoAttribute}};
constexpr unsigned char cauiUnknownElementPositions[] = {0, 0, 2, 3};

constexpr DialogElement_t cakNotMadeAtTheTopElements[] = {{"Clock", OBJ_1, 0, 1, cuiNoAttribute},
                                                          {"Object", NO_HANDLE, 1, 0, cuiNoAttribute}};
constexpr DialogAttribute_t cakNotMadeAtTheTopAttributes[] = {{"text", "a"}};
constexpr unsigned char cauiNotMadeAtTheTopPositions[] = {1, 3, 0, 7, 0, 6, 0, 3};

constexpr DialogElement_t cakNotMadeInsideElements[] = {{"Composite", NO_HANDLE, 0, 0, cuiNoAttribute},
                                                        {"Label", NO_HANDLE, 1, 1, cuiNoAttribute},
                                                        {"Clock", NO_HANDLE, 1, 0, cuiNoAttribute},
                                                        {"Object", NO_HANDLE, 2, 0, cuiNoAttribute}};
constexpr unsigned char cauiNotMadeInsidePositions[] = {0, 0, 1, 2, 0, 7, 0, 6, 1, 2, 0, 7};

constexpr DialogElement_t cakInsideElements[] = {{"Composite", NO_HANDLE, 0, 0, cuiNoAttribute},
                                                 {"Label", NO_HANDLE, 1, 1, cuiNoAttribute},
                                                 {"Object", NO_HANDLE, 2, 0, cuiNoAttribute}};
constexpr DialogAttribute_t cakInsideAttributes[] = {{"text", "a"}};
constexpr unsigned char cauiInsidePositions[] = {0, 0, 1, 2, 0, 7, 0, 6, 0xAC, 0x02, 0x80, 0x01};

constexpr DialogElement_t cakHandleElements[] = {{"Composite", NO_HANDLE, 0, 1, cuiNoAttribute},
                                                 {"Label", NO_HANDLE, 1, 2, 1}};
constexpr DialogAttribute_t cakHandleAttributes[] = {
    {"invisible", "true"}, {"text", "a"}, {"id", "DLG_NONE"}};
constexpr unsigned char cauiHandlePositions[] = {0, 0, 0, 11, 0, 11, 1, 3, 0, 7, 0, 6, 0, 3, 0, 4};

constexpr DialogElement_t cakAttributeElements[] = {{"Composite", NO_HANDLE, 0, 0, cuiNoAttribute},
                                                    {"Label", OBJ_1, 1, 2, cuiNoAttribute}};
constexpr DialogAttribute_t cakUnknownAttributes[] = {{"text", "a"}, {"txt", "b"}};
constexpr DialogAttribute_t cakBadValueAttributes[] = {{"text", "a"}, {"focusable", "maybe"}};
constexpr DialogAttribute_t cakThrowingAttributes[] = {{"text", "a"}, {"throw", "no such font"}};
constexpr unsigned char cauiAttributePositions[] = {0, 0, 1, 3, 0, 7, 0, 6, 0, 3, 0, 5};

// At 131072:40000, 131072:72768 and 131072:89152.
constexpr DialogElement_t cakFarUnknownElements[] = {{"Dialog", NO_HANDLE, 0, 1, cuiNoAttribute}};
constexpr DialogElement_t cakFarElements[] = {{"Label", NO_HANDLE, 0, 1, cuiNoAttribute}};
constexpr DialogAttribute_t cakFarUnknownAttributes[] = {{"txt", "a"}};
constexpr DialogAttribute_t cakFarBadValueAttributes[] = {{"focusable", "maybe"}};
constexpr unsigned char cauiFarPositions[] = {0xFF, 0xFF, 0x07, 0xC0, 0xB8, 0x02, 0,
                                              0x80, 0x80, 0x02, 0,    0x80, 0x80, 0x01};

constexpr DialogElement_t cakUnknownWithWrongHandleElements[] = {{"Dialog", NO_HANDLE, 0, 1, 0}};
constexpr DialogAttribute_t cakWrongHandleAttributes[] = {{"id", "DLG_NONE"}};
constexpr unsigned char cauiWrongHandlePositions[] = {0, 0, 0, 8, 0, 4};

constexpr DialogROMTable_t cakTables[] = {
    {"a/bad value.xml", {cakAttributeElements, 2, cakBadValueAttributes}, cauiAttributePositions},
    {"a/inside.xml", {cakInsideElements, 3, cakInsideAttributes}, cauiInsidePositions},
    {"b", {cakAttributeElements, 1, nullptr}, cauiAttributePositions},
    {"far element.xml", {cakFarUnknownElements, 1, cakFarUnknownAttributes}, cauiFarPositions},
    {"far name.xml", {cakFarElements, 1, cakFarUnknownAttributes}, cauiFarPositions},
    {"far value.xml", {cakFarElements, 1, cakFarBadValueAttributes}, cauiFarPositions},
    {"handle.xml", {cakHandleElements, 2, cakHandleAttributes}, cauiHandlePositions},
    {"not made at the top.xml",
     {cakNotMadeAtTheTopElements, 2, cakNotMadeAtTheTopAttributes},
     cauiNotMadeAtTheTopPositions},
    {"not made inside.xml",
     {cakNotMadeInsideElements, 4, cakNotMadeAtTheTopAttributes},
     cauiNotMadeInsidePositions},
    {"throwing.xml", {cakAttributeElements, 2, cakThrowingAttributes}, cauiAttributePositions},
    {"tree.xml", {cakTreeElements, 5, cakTreeAttributes}, nullptr},
    {"two\nlines.xml", {cakAttributeElements, 1, nullptr}, cauiAttributePositions},
    {"unknown attribute.xml", {cakAttributeElements, 2, cakUnknownAttributes}, cauiAttributePositions},
    {"unknown element with wrong handle.xml",
     {cakUnknownWithWrongHandleElements, 1, cakWrongHandleAttributes},
     cauiWrongHandlePositions},
    {"unknown element.xml", {cakUnknownElements, 2, nullptr}, cauiUnknownElementPositions},
    {"\xC3\xA4.xml", {cakAttributeElements, 1, nullptr}, cauiAttributePositions}};
constexpr DialogROMTables_t ckTables = {cakTables, sizeof cakTables / sizeof cakTables[0]};

std::string Describe(const CGUIObject& kObject)
{
    std::string kText = kObject.IsCompositeObject() ? "Composite" : "Object";
    kText += " " + std::to_string(kObject.GetID());
    kText += kObject.IsInvisible() ? " invisible" : "";
    kText += kObject.IsFocusable() ? " focusable" : "";
    if (kObject.IsCompositeObject())
    {
        kText += " {";
        const CGUIObject* pkChild = static_cast<const CGUICompositeObject&>(kObject).GetFirstChild();
        for (; pkChild != nullptr; pkChild = pkChild->GetNextSibling())
        {
            kText += " " + Describe(*pkChild);
        }
        kText += " }";
    }
    return kText;
}

/** Reads the tables above. Each test must leave as many objects as it found. */
class CDialogROMReaderTest : public testing::Test
{
protected:
    CDialogROMReaderTest()
        : m_kRecorder(m_kEventLog), m_kReader(ckTables), m_uiNOFObjectsBefore(CGUIObject::GetNOFObjects())
    {
        CGUIFactoryManager::DestroyInstance();
        CGUIFactoryManager::CreateInstance().RegisterObjectClass<CLabel>("Label");
    }

    ~CDialogROMReaderTest() override { CGUIFactoryManager::DestroyInstance(); }

    void TearDown() override { EXPECT_EQ(m_uiNOFObjectsBefore, CGUIObject::GetNOFObjects()); }

    /** Expects one log entry for a path, and no object left. */
    void ExpectRefused(const std::string& kPath, const std::string& kError)
    {
        EXPECT_EQ(nullptr, std::unique_ptr<CGUIObject>(m_kReader.Read(kPath.c_str())));
        EXPECT_EQ(std::vector<std::string>{"ERROR: CGUIDialogROMReader::Read: " + kPath + ":" + kError +
                                           ".\\n @Loader/GUIDialogROMReader.cpp:#"},
                  m_kEventLog.Take(EVENT_TRACE));
        EXPECT_EQ(m_uiNOFObjectsBefore, CGUIObject::GetNOFObjects());
    }

    CEventLog m_kEventLog;
    CTraceRecorder m_kRecorder;
    CGUIDialogROMReader m_kReader;
    eC_UInt m_uiNOFObjectsBefore;
};

TEST_F(CDialogROMReaderTest, Read_Table_GivesItsTreeWithoutParent)
{
    const std::unique_ptr<CGUIObject> kObject(m_kReader.Read("tree.xml"));

    EXPECT_EQ(std::vector<std::string>{}, m_kEventLog.Take());
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(nullptr, kObject->GetParent());
    EXPECT_EQ("Composite 1 invisible { Object 17 Composite 0 { Object 18 focusable } Object -5 }",
              Describe(*kObject));
    const CGUIObject* pkLabel = static_cast<const CGUICompositeObject&>(*kObject).GetFirstChild();
    EXPECT_STREQ("Gr\xC3\xBC\xC3\x9F"
                 "e",
                 static_cast<const CLabel*>(pkLabel)->GetText().GetText());
}

TEST_F(CDialogROMReaderTest, Read_ByFactory_UsesTheSamePathAsAFile)
{
    CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &m_kReader);
    const std::unique_ptr<CGUIObject> kObject(
        CGUIFactoryManager::GetInstance().LoadDialogFromFile("tree.xml"));
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(DLG_A, kObject->GetID());
}

TEST_F(CDialogROMReaderTest, Read_EveryPathOfTheTables_IsFound)
{
    for (const eC_Char* pcPath : {"b", "\xC3\xA4.xml"})
    {
        const std::unique_ptr<CGUIObject> kObject(m_kReader.Read(pcPath));
        ASSERT_NE(nullptr, kObject);
        EXPECT_EQ("Composite 0 { }", Describe(*kObject));
    }
    EXPECT_EQ(std::vector<std::string>{}, m_kEventLog.Take());
}

TEST_F(CDialogROMReaderTest, Read_AnyNumberOfTables_FindsEachOfThem)
{
    const std::string kNames = "acegikmoqsuwy";
    std::vector<DialogROMTable_t> kTables;
    std::vector<std::string> kPaths;
    for (const char cName : kNames)
    {
        kPaths.emplace_back(1, cName);
    }
    for (std::size_t uiNOFTables = 0; uiNOFTables <= kPaths.size(); ++uiNOFTables)
    {
        const DialogROMTables_t kSome = {kTables.data(), static_cast<eC_UInt>(uiNOFTables)};
        CGUIDialogROMReader kReader(kSome);
        for (char cName = '`'; cName <= '{'; ++cName)
        {
            const eC_Bool bIsThere = kNames.substr(0, uiNOFTables).find(cName) != std::string::npos;
            const std::unique_ptr<CGUIObject> kObject(kReader.Read(std::string(1, cName).c_str()));
            EXPECT_EQ(bIsThere, kObject != nullptr) << cName << " of " << uiNOFTables;
        }
        if (uiNOFTables < kPaths.size())
        {
            kTables.push_back({kPaths[uiNOFTables].c_str(), {cakAttributeElements, 1, nullptr}, nullptr});
        }
    }
}

TEST_F(CDialogROMReaderTest, Read_UnknownPath_IsRefused)
{
    for (const eC_Char* pcPath : {"", "B", "tree", "tree.xml ", "Tree.xml", "/tree.xml", "zz"})
    {
        ExpectRefused(pcPath, "1:1: no such compiled dialog; expected a path that has a table");
    }
}

TEST_F(CDialogROMReaderTest, Read_WhatTheApplicationDoesNotHave_IsRefusedAtItsPlaceInTheFile)
{
    ExpectRefused("unknown element.xml",
                  "3:3: unknown element 'Dialog'; expected one of Object, Composite, Label");
    ExpectRefused("a/inside.xml", "302:128: element 'Object' inside 'Label'; expected no elements inside an "
                                  "object that is not composite");
    ExpectRefused("handle.xml", "2:23: unknown handle 'DLG_NONE'; expected the name of a handle or a number "
                                "from -2147483648 to 2147483647");
    ExpectRefused("unknown attribute.xml", "2:19: unknown attribute 'txt' of 'Label'; expected one of id, "
                                           "invisible, focusable");
    ExpectRefused("a/bad value.xml",
                  "2:24: bad value 'maybe' of attribute 'focusable'; expected true or false");
}

TEST_F(CDialogROMReaderTest, Read_ThirtyTwoLevels_AreTheMost)
{
    std::vector<DialogElement_t> kElements;
    std::vector<unsigned char> kPositions;
    for (unsigned char uiLevel = 0; uiLevel < 33; ++uiLevel)
    {
        kElements.push_back({"Composite", NO_HANDLE, uiLevel, 0, cuiNoAttribute});
        kPositions.insert(kPositions.end(), {1, 2});
    }
    const DialogROMTable_t akTables[] = {
        {"deep.xml", {kElements.data(), 32, nullptr}, kPositions.data()},
        {"too deep.xml", {kElements.data(), 33, nullptr}, kPositions.data()}};
    const DialogROMTables_t kTables = {akTables, 2};
    CGUIDialogROMReader kReader(kTables);

    EXPECT_NE(nullptr, std::unique_ptr<CGUIObject>(kReader.Read("deep.xml")));
    EXPECT_EQ(std::vector<std::string>{}, m_kEventLog.Take());

    EXPECT_EQ(nullptr, std::unique_ptr<CGUIObject>(kReader.Read("too deep.xml")));
    EXPECT_EQ(
        std::vector<std::string>{
            "ERROR: CGUIDialogROMReader::Read: too deep.xml:34:2: element nested too deeply; "
            "expected at most 32 levels.\\n @Loader/GUIDialogROMReader.cpp:#"},
        m_kEventLog.Take(EVENT_TRACE));
}

TEST_F(CDialogROMReaderTest, Read_ErrorFarDownOrToTheRight_IsReportedAtItsPlaceInTheFile)
{
    ExpectRefused("far element.xml",
                  "131072:40000: unknown element 'Dialog'; expected one of Object, Composite, Label");
    ExpectRefused(
        "far name.xml",
        "131072:72768: unknown attribute 'txt' of 'Label'; expected one of id, invisible, focusable");
    ExpectRefused("far value.xml",
                  "131072:89152: bad value 'maybe' of attribute 'focusable'; expected true or false");
}

TEST_F(CDialogROMReaderTest, Read_UnknownElementWithWrongHandle_ReportsTheHandle_Intended)
{
    ExpectRefused(
        "unknown element with wrong handle.xml",
        "1:13: unknown handle 'DLG_NONE'; expected the name of a handle or a number from -2147483648 "
        "to 2147483647");
}

TEST_F(CDialogROMReaderTest, Read_CreatorThatReturnsNull_IsAnErrorAtThePlaceOfTheElement)
{
    CGUIFactoryManager::GetInstance().RegisterObjectClass(
        "Clock", [](CGUICompositeObject*, ObjectHandle_t) -> CGUIObject* { return nullptr; });
    const std::string kError =
        ": element 'Clock' could not be made; expected an object from the creator that is registered for it";
    ExpectRefused("not made at the top.xml", "2:3" + kError);
    ExpectRefused("not made inside.xml", "3:2" + kError);
}

TEST_F(CDialogROMReaderTest, Read_PathWithAZeroByteOrALineBreak_IsRefusedInOneLine)
{
    const auto ExpectPathRefused = [this](const std::string& kPath, const std::string& kShown)
    {
        const eC_String kGiven(kPath.data(), static_cast<eC_UInt>(kPath.size()));
        EXPECT_EQ(nullptr, std::unique_ptr<CGUIObject>(m_kReader.Read(kGiven)));
        EXPECT_EQ(std::vector<std::string>{"ERROR: CGUIDialogROMReader::Read: " + kShown +
                                           ":1:1: path with a zero byte or a line break; expected a path of "
                                           "one line.\\n @Loader/GUIDialogROMReader.cpp:#"},
                  m_kEventLog.Take(EVENT_TRACE));
    };
    ExpectPathRefused(std::string("b\0c", 3), "b\\0c");
    ExpectPathRefused("two\nlines.xml", "two\\nlines.xml");
    ExpectPathRefused("b\r", "b\\r");
}

TEST_F(CDialogROMReaderTest, Read_ExceptionOfAnObjectClass_PassesAndLeavesNoObject)
{
    EXPECT_THROW(m_kReader.Read("throwing.xml"), std::runtime_error);
    EXPECT_EQ(std::vector<std::string>{}, m_kEventLog.Take());
    EXPECT_EQ(m_uiNOFObjectsBefore, CGUIObject::GetNOFObjects());
}

TEST_F(CDialogROMReaderTest, Read_AllocatesNothingButTheObjects)
{
    const eC_String kPath("tree.xml");
    const CAllocationCounter kCounter;
    const std::unique_ptr<CGUIObject> kObject(m_kReader.Read(kPath));
    EXPECT_EQ(5u, kCounter.GetNumber());
}

TEST_F(CDialogROMReaderTest, Read_WithoutMemoryAtAnyPoint_ThrowsAndLeavesNothing)
{
    const eC_String kPath("tree.xml");
    const HeapUse_t kBefore = GetHeapUse();
    std::unique_ptr<CGUIObject> kObject;
    std::size_t uiFailures = 0;
    while (!kObject && uiFailures < 20)
    {
        try
        {
            const CAllocationFailure kFailure(uiFailures);
            kObject.reset(m_kReader.Read(kPath));
        }
        catch (const std::bad_alloc&)
        {
            ++uiFailures;
            EXPECT_EQ(m_uiNOFObjectsBefore, CGUIObject::GetNOFObjects());
            EXPECT_EQ(kBefore.m_uiBlocks, GetHeapUse().m_uiBlocks);
        }
    }
    EXPECT_EQ(5u, uiFailures);
    ASSERT_NE(nullptr, kObject);
    EXPECT_EQ(m_uiNOFObjectsBefore + 5, CGUIObject::GetNOFObjects());
}
} // namespace
