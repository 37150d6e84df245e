// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <string>
#include <vector>

// Compares the manager's header with its source, as text.

namespace
{
using Strings_t = std::vector<std::string>;

const std::string ckHeader = DIALOGMANAGER_SOURCE_DIRECTORY "/Include/Core/GUIDialogManager.h";
const std::string ckSource = DIALOGMANAGER_SOURCE_DIRECTORY "/Source/Core/GUIDialogManager.cpp";

Strings_t ReadLines(const std::string& kPath)
{
    std::ifstream kFile(kPath);
    Strings_t kLines;
    for (std::string kLine; std::getline(kFile, kLine);)
    {
        kLines.push_back(kLine);
    }
    EXPECT_FALSE(kLines.empty()) << kPath;
    return kLines;
}

/** A section of a file, which begins with a line such as "// --- History ---". */
struct Section_t
{
    std::string m_kName;
    Strings_t m_kFunctions;
};

/** Lines without comments; what begins a function is joined with what follows, up to its end or its body. */
Strings_t ReadCode(const std::string& kPath)
{
    Strings_t kCode;
    bool bGoesOn = false;
    for (const std::string& kLine : ReadLines(kPath))
    {
        const std::string kText = std::regex_replace(kLine, std::regex("( *///?<|^ */?\\*).*"), "");
        if (bGoesOn)
        {
            kCode.back() += kText;
        }
        else
        {
            kCode.push_back(kText);
        }
        bGoesOn = kCode.back().find('(') != std::string::npos &&
                  kCode.back().find_first_of(";{}") == std::string::npos;
    }
    return kCode;
}

/** @param kFunction matches the line on which a function begins; its first group is the name */
std::vector<Section_t> ReadSections(const std::string& kPath, const std::regex& kFunction)
{
    const std::regex kTitle(R"( *// --- (\w+( \w+)*)[ ,].*-)");
    std::vector<Section_t> kSections;
    for (const std::string& kLine : ReadCode(kPath))
    {
        std::smatch kFound;
        if (std::regex_match(kLine, kFound, kTitle))
        {
            kSections.push_back({kFound[1], {}});
        }
        else if (!kSections.empty() && std::regex_search(kLine, kFound, kFunction))
        {
            kSections.back().m_kFunctions.push_back(kFound[1]);
        }
    }
    return kSections;
}

Strings_t GetNames(const std::vector<Section_t>& kSections)
{
    Strings_t kNames;
    for (const Section_t& kSection : kSections)
    {
        kNames.push_back(kSection.m_kName);
    }
    return kNames;
}

/** Declarations of members, without those that are defined in the header or belong to a nested class. */
std::vector<Section_t> ReadHeader()
{
    return ReadSections(ckHeader,
                        std::regex(R"(^    (?:virtual |static )?[A-Za-z][^(/}{]*[ *&](\w+)\([^}{]*$)"));
}

/** Definitions of members, without those of nested classes. */
std::vector<Section_t> ReadSource()
{
    return ReadSections(ckSource, std::regex(R"(^\w[^(]*[ *&]CGUIDialogManager::(\w+)\()"));
}

class CManagerLayoutTest : public ::testing::Test
{
};

TEST_F(CManagerLayoutTest, Source_BeginsWithTheMainPathAndHasOneSectionForEachMatter)
{
    EXPECT_THAT(GetNames(ReadSource()),
                ::testing::ElementsAre("Switching", "History", "Focus", "Popups", "Definitions", "Loading",
                                       "Dynamic identifiers"));
}

TEST_F(CManagerLayoutTest, Header_HasTheSectionsOfTheSourceInTheirOrderForEachAccess)
{
    EXPECT_THAT(GetNames(ReadHeader()),
                ::testing::ElementsAre("Switching", "History", "Popups", "Definitions", "Dynamic identifiers",
                                       "History", "Popups", "Loading", "Hooks", "Switching", "History",
                                       "Focus", "Popups", "Definitions", "Loading"));
}

TEST_F(CManagerLayoutTest, Header_DeclaresTheFunctionsOfASectionInTheOrderOfTheSource)
{
    const std::vector<Section_t> kHeader = ReadHeader();
    for (const Section_t& kSource : ReadSource())
    {
        Strings_t kDeclared;
        for (const Section_t& kSection : kHeader)
        {
            if (kSection.m_kName == kSource.m_kName)
            {
                kDeclared.insert(kDeclared.end(), kSection.m_kFunctions.begin(), kSection.m_kFunctions.end());
            }
        }
        EXPECT_EQ(kSource.m_kFunctions, kDeclared) << kSource.m_kName;
        EXPECT_FALSE(kDeclared.empty()) << kSource.m_kName;
    }
}

TEST_F(CManagerLayoutTest, Header_LeavesTheTextsOfMessagesToTheirPage)
{
    const Strings_t kLines = ReadLines(ckHeader);
    EXPECT_TRUE(std::none_of(kLines.begin(), kLines.end(),
                             [](const std::string& kLine)
                             {
                                 // The default hooks log theirs.
                                 return kLine.find("CGUIDialogManager::") != std::string::npos &&
                                        kLine.find('"') == std::string::npos;
                             }));
}
} // namespace
