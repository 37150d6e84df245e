// SPDX-License-Identifier: MIT
// The classes, their schema, their documentation and their tables in ROM must agree.

#include "Loader/GUIDialogXMLReader.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"
#include "Tests/Unit/UnitTestHandles.h"
#include "Tests/Unit/Widgets/WidgetsTest.h"

#include <algorithm>
#include <map>
#include <pugixml.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{
using Attributes_t = std::map<std::string, std::set<std::string>>;

/** @return the names between backticks */
std::vector<std::string> GetQuoted(const std::string& kCell)
{
    std::vector<std::string> kNames;
    std::string kPart;
    std::istringstream kParts(kCell);
    for (bool bIsQuoted = false; std::getline(kParts, kPart, '`'); bIsQuoted = !bIsQuoted)
    {
        if (bIsQuoted)
        {
            kNames.push_back(kPart);
        }
    }
    return kNames;
}

/** @return the cells of the rows of the tables of Docs/Widgets.md */
std::vector<std::vector<std::string>> GetTableRows()
{
    std::vector<std::vector<std::string>> kRows;
    std::istringstream kText(ReadSourceFile("Docs/Widgets.md"));
    for (std::string kLine; std::getline(kText, kLine);)
    {
        if (kLine.compare(0, 3, "| `") == 0)
        {
            std::istringstream kCells(kLine.substr(1));
            kRows.emplace_back();
            for (std::string kCell; std::getline(kCells, kCell, '|');)
            {
                kRows.back().push_back(kCell);
            }
        }
    }
    return kRows;
}

class CWidgetFilesTest : public CWidgetsTest
{
protected:
    CWidgetFilesTest()
    {
        m_kDirectory.Write("DialogFile.xsd", ReadSourceFile("Docs/DialogFile.xsd"));
        m_kDirectory.Write("Widgets.xsd", ReadSourceFile("Docs/Widgets.xsd"));
    }

    /** @return the attributes known to the objects of each documented class */
    static Attributes_t GetKnownAttributes()
    {
        Attributes_t kAttributes;
        for (const std::string& kElement : GetElements())
        {
            const std::unique_ptr<CGUIObject> pkObject(
                CGUIFactoryManager::GetInstance().CreateObject(kElement.c_str(), nullptr, NO_HANDLE));
            EXPECT_NE(nullptr, pkObject) << kElement;
            eC_String kNames;
            EXPECT_EQ(ATTRIBUTE_UNKNOWN, pkObject->SetAttribute("colour", "red", kNames));
            std::istringstream kParts(kNames.GetText());
            for (std::string kName; std::getline(kParts >> std::ws, kName, ',');)
            {
                kAttributes[kElement].insert(kName);
            }
        }
        return kAttributes;
    }

    static std::vector<std::string> GetElements()
    {
        std::vector<std::string> kElements;
        for (const auto& kRow : GetTableRows())
        {
            if (kRow[1].find("`CGUI") != std::string::npos)
            {
                kElements.push_back(GetQuoted(kRow[0]).front());
            }
        }
        return kElements;
    }

    /** @return whether xmllint and the reader accept a file; they must agree */
    eC_Bool IsTaken(const std::string& kText)
    {
        const std::string kPath = m_kDirectory.Write("dialog.xml", kText);
        const std::vector<std::string> kLines =
            RunShell("cd '" + m_kDirectory.GetPath().string() +
                     "' && xmllint --noout --nonet --schema Widgets.xsd dialog.xml 2>&1");
        const eC_Bool bIsValid = kLines == std::vector<std::string>{"dialog.xml validates"};
        CGUIDialogXMLReader kReader;
        const std::unique_ptr<CGUIObject> pkObject(kReader.Read(eC_String(kPath.c_str())));
        EXPECT_EQ(bIsValid, pkObject != nullptr) << kText << "\n" << JoinLines(kLines);
        return bIsValid;
    }

    CTemporaryDirectory m_kDirectory;
};

void CollectAttributes(const pugi::xml_node& kSchema, const std::string& kType,
                       std::set<std::string>& kNamesOUT)
{
    pugi::xml_node kNode = kSchema.find_child_by_attribute("xs:complexType", "name", kType.c_str());
    if (!kNode)
    {
        kNode = kSchema.find_child_by_attribute("xs:attributeGroup", "name", kType.c_str());
    }
    for (const auto& kFound : kNode.select_nodes(".//xs:attribute"))
    {
        kNamesOUT.insert(kFound.node().attribute("name").value());
    }
    for (const auto& kFound : kNode.select_nodes(".//xs:attributeGroup[@ref] | .//xs:extension"))
    {
        const eC_Char* pcUsed = kFound.node().attribute("ref").value();
        CollectAttributes(kSchema, *pcUsed != '\0' ? pcUsed : kFound.node().attribute("base").value(),
                          kNamesOUT);
    }
}
} // namespace

TEST_F(CWidgetFilesTest, Classes_AreAllInTheDocumentation)
{
    const std::vector<std::string> kElements = GetElements();
    std::string kRegistered = CGUIFactoryManager::GetInstance().GetElementNames().GetText();
    for (const std::string& kElement : kElements)
    {
        const std::size_t uiPlace = kRegistered.find(", " + kElement);
        ASSERT_NE(std::string::npos, uiPlace) << kElement;
        kRegistered.erase(uiPlace, kElement.size() + 2);
    }
    EXPECT_EQ("Object, Composite", kRegistered);
    EXPECT_EQ(11U, kElements.size());
}

TEST_F(CWidgetFilesTest, Attributes_OfTheSchema_AreThoseOfTheClasses)
{
    pugi::xml_document kDocument;
    ASSERT_TRUE(kDocument.load_string(ReadSourceFile("Docs/Widgets.xsd").c_str()));
    const pugi::xml_node kSchema = kDocument.child("xs:schema");
    Attributes_t kAttributes;
    for (const pugi::xml_node& kElement : kSchema.children("xs:element"))
    {
        std::set<std::string>& kNames = kAttributes[kElement.attribute("name").value()];
        kNames = {"invisible", "focusable"};
        CollectAttributes(kSchema, kElement.attribute("type").value(), kNames);
    }
    EXPECT_EQ(GetKnownAttributes(), kAttributes);
}

TEST_F(CWidgetFilesTest, Attributes_OfTheDocumentation_AreThoseOfTheClasses)
{
    const std::vector<std::string> kElements = GetElements();
    Attributes_t kAttributes;
    for (const std::string& kElement : kElements)
    {
        kAttributes[kElement] = {"invisible", "focusable"};
    }
    for (const auto& kRow : GetTableRows())
    {
        const std::vector<std::string> kFirst = GetQuoted(kRow[0]);
        const eC_Bool bNamesElements =
            std::find(kElements.begin(), kElements.end(), kFirst.front()) != kElements.end();
        if (kRow[1].find("`CGUI") != std::string::npos)
        {
            continue;
        }
        const std::vector<std::string> kOwners = bNamesElements ? kFirst : kElements;
        for (const std::string& kOwner : kOwners)
        {
            for (const std::string& kName : bNamesElements ? GetQuoted(kRow[1]) : kFirst)
            {
                kAttributes[kOwner].insert(kName);
            }
        }
    }
    EXPECT_EQ(GetKnownAttributes(), kAttributes);
}

TEST_F(CWidgetFilesTest, Schema_TakesWhatTheClassesTake)
{
    EXPECT_TRUE(
        IsTaken("<Screen id='DLG_A' x='-3' y='7' width='10' height='fill' textkey='TXT_BACK' text='a' "
                "source='LEVEL' style='s' layout='column' gap='0' padding='32767'>"
                "<Popup modal='true'/><Container layout='row'/><Label width='natural'/><Image image='i'/>"
                "<Button focusable='false'/><CheckBox checked='true'/><Bar value='-1' minimum='-9'/>"
                "<Slider maximum='2147483647' step='1'/><List entries='a|b' value='1' rowheight='2'/>"
                "<List entrykeys='TXT_BACK|TXT_NEXT'/><TextField length='1000' invisible='true'/></Screen>"));
    for (const eC_Char* pcText : {"<Label x='32768'/>",
                                  "<Label x='+1'/>",
                                  "<Label width='0'/>",
                                  "<Label width='wide'/>",
                                  "<Label height='-1'/>",
                                  "<Label textkey=''/>",
                                  "<Label value='1'/>",
                                  "<Label><Label/></Label>",
                                  "<Screen modal='true'/>",
                                  "<Screen layout='grid'/>",
                                  "<Screen gap='-1'/>",
                                  "<Popup modal='1'/>",
                                  "<CheckBox checked='yes'/>",
                                  "<Bar value=''/>",
                                  "<Bar step='1'/>",
                                  "<Slider step='0'/>",
                                  "<List value='-1'/>",
                                  "<List rowheight='0'/>",
                                  "<TextField length='0'/>",
                                  "<TextField length='1001'/>",
                                  "<Dialog/>"})
    {
        EXPECT_FALSE(IsTaken(pcText)) << pcText;
    }
}
