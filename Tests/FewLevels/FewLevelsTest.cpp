// SPDX-License-Identifier: MIT
// Both readers in a program that allows three levels of elements.

#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"
#include "Loader/DialogElements.h"
#include "Loader/GUIDialogROMReader.h"
#include "Loader/GUIDialogXMLReader.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>

namespace
{
/** Collects the messages, without the source file and line. */
class CMessages : public CGUITraceSink
{
public:
    CMessages() : m_pkBefore(CGUITrace::GetInstance().GetSink()) { CGUITrace::GetInstance().SetSink(this); }
    ~CMessages() override { CGUITrace::GetInstance().SetSink(m_pkBefore); }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& /*kFile*/,
               const eC_String& /*kLine*/) override
    {
        m_kText += kPrefix.GetText();
        m_kText += kMessage.GetText();
    }

    std::string m_kText;

private:
    CGUITraceSink* m_pkBefore;
};

class CFewLevelsTest : public testing::Test
{
protected:
    CFewLevelsTest() { CGUIFactoryManager::CreateInstance(); }

    ~CFewLevelsTest() override
    {
        CGUIFactoryManager::DestroyInstance();
        EXPECT_EQ(0U, CGUIObject::GetNOFObjects());
    }

    eC_Bool Read(CGUIDialogReader& kReader, const eC_Char* pcPath)
    {
        return std::unique_ptr<CGUIObject>(kReader.Read(pcPath)) != nullptr;
    }

    CMessages m_kMessages;
};

TEST_F(CFewLevelsTest, XMLReader_RefusesTheFourthLevelWithItsPlace)
{
    const std::string kFolder = testing::TempDir();
    std::ofstream(kFolder + "three.xml") << "<Composite>\n <Composite>\n  <Object/></Composite></Composite>";
    std::ofstream(kFolder + "four.xml") << "<Composite>\n <Composite>\n  <Composite>\n   <Object/>"
                                        << "</Composite></Composite></Composite>";
    CGUIDialogXMLReader kReader(kFolder.c_str());

    EXPECT_TRUE(Read(kReader, "three.xml"));
    EXPECT_EQ("", m_kMessages.m_kText);
    EXPECT_FALSE(Read(kReader, "four.xml"));
    EXPECT_EQ("ERROR: CGUIDialogXMLReader::Read: four.xml:4:4: element nested too deeply; expected at most 3 "
              "levels.\n",
              m_kMessages.m_kText);
}

TEST_F(CFewLevelsTest, ROMReader_RefusesTheFourthLevelOfATableWithItsPlace)
{
    const DialogElement_t akElements[] = {{"Composite", NO_HANDLE, 0, 0, cuiNoAttribute},
                                          {"Composite", NO_HANDLE, 1, 0, cuiNoAttribute},
                                          {"Composite", NO_HANDLE, 2, 0, cuiNoAttribute},
                                          {"Object", NO_HANDLE, 3, 0, cuiNoAttribute}};
    const unsigned char auiPositions[] = {0, 0, 1, 2, 1, 3, 1, 4};
    const DialogROMTable_t akTables[] = {{"four.xml", {akElements, 4, nullptr}, auiPositions},
                                         {"three.xml", {akElements, 3, nullptr}, auiPositions}};
    const DialogROMTables_t kTables = {akTables, 2};
    CGUIDialogROMReader kReader(kTables);

    EXPECT_TRUE(Read(kReader, "three.xml"));
    EXPECT_EQ("", m_kMessages.m_kText);
    EXPECT_FALSE(Read(kReader, "four.xml"));
    EXPECT_EQ("ERROR: CGUIDialogROMReader::Read: four.xml:4:4: element nested too deeply; expected at most 3 "
              "levels.\n",
              m_kMessages.m_kText);
}
} // namespace
