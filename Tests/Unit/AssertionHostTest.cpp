// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace
{
const std::filesystem::path kSources = DIALOGMANAGER_SOURCE_DIRECTORY;

std::string ReadFile(const std::filesystem::path& kFile)
{
    std::ifstream kStream(kFile);
    return {std::istreambuf_iterator<char>(kStream), std::istreambuf_iterator<char>()};
}

/** @return the headers and sources below a directory, relative to the top of the sources */
std::set<std::string> GetFiles(const std::string& kDirectory)
{
    std::set<std::string> kFiles;
    for (const auto& kEntry : std::filesystem::recursive_directory_iterator(kSources / kDirectory))
    {
        const std::string kEnding = kEntry.path().extension().string();
        if (kEnding == ".h" || kEnding == ".cpp")
        {
            kFiles.insert(std::filesystem::relative(kEntry.path(), kSources).string());
        }
    }
    return kFiles;
}

/** @return the arguments of a call, up to its closing parenthesis, in one line */
std::string GetArguments(const std::string& kText, std::size_t uiBegin)
{
    std::string kArguments;
    int iDepth = 1;
    for (std::size_t uiPlace = uiBegin; uiPlace < kText.size(); ++uiPlace)
    {
        const char cOne = kText[uiPlace];
        iDepth += cOne == '(' ? 1 : 0;
        iDepth -= cOne == ')' ? 1 : 0;
        if (iDepth == 0)
        {
            break;
        }
        const bool bIsBlank = cOne == ' ' || cOne == '\n';
        if (!bIsBlank)
        {
            kArguments += cOne;
        }
        else if (!kArguments.empty() && kArguments.back() != ' ')
        {
            kArguments += ' ';
        }
    }
    return kArguments;
}

/** @return the arguments of each call of a function or macro in a text */
std::vector<std::string> FindCalls(const std::string& kText, const std::string& kName)
{
    std::vector<std::string> kCalls;
    const std::string kCall = kName + "(";
    for (std::size_t uiPlace = kText.find(kCall); uiPlace != std::string::npos;
         uiPlace = kText.find(kCall, uiPlace + 1))
    {
        // Skip longer names, such as static_assert.
        const char cBefore = uiPlace > 0 ? kText[uiPlace - 1] : ' ';
        if (cBefore != '_' && std::isalnum(static_cast<unsigned char>(cBefore)) == 0)
        {
            kCalls.push_back(GetArguments(kText, uiPlace + kCall.size()));
        }
    }
    return kCalls;
}

/** @return every assertion of the library: file, colon, expression; repeated if it occurs more than once */
std::vector<std::string> FindAssertions()
{
    std::vector<std::string> kAssertions;
    for (const char* pcDirectory : {"Include", "Source", "Loader"})
    {
        for (const std::string& kFile : GetFiles(pcDirectory))
        {
            for (const std::string& kExpression : FindCalls(ReadFile(kSources / kFile), "assert"))
            {
                kAssertions.push_back(std::string(kFile).append(": ").append(kExpression));
            }
        }
    }
    std::sort(kAssertions.begin(), kAssertions.end());
    return kAssertions;
}

/** @return the string literals in the arguments of a call, adjacent ones joined */
std::vector<std::string> FindTexts(const std::string& kArguments)
{
    std::vector<std::string> kTexts;
    std::size_t uiEnd = std::string::npos;
    for (std::size_t uiBegin = kArguments.find('"'); uiBegin != std::string::npos;
         uiBegin = kArguments.find('"', uiEnd + 1))
    {
        const bool bGoesOn = !kTexts.empty() && kArguments.substr(uiEnd + 1, uiBegin - uiEnd - 1) == " ";
        uiEnd = kArguments.find('"', uiBegin + 1);
        const std::string kText = kArguments.substr(uiBegin + 1, uiEnd - uiBegin - 1);
        if (bGoesOn)
        {
            kTexts.back() += kText;
        }
        else
        {
            kTexts.push_back(kText);
        }
    }
    return kTexts;
}

/** @return the assertions that death tests cover, in the form of FindAssertions, each one once */
std::vector<std::string> FindBrokenAssertions()
{
    std::set<std::string> kAssertions;
    for (const std::string& kFile : GetFiles("Tests/Unit"))
    {
        for (const std::string& kCall : FindCalls(ReadFile(kSources / kFile), "EXPECT_ASSERTION"))
        {
            const std::vector<std::string> kTexts = FindTexts(kCall);
            if (kTexts.size() >= 2)
            {
                kAssertions.insert(kTexts[kTexts.size() - 2] + ": " + kTexts.back());
            }
        }
    }
    return {kAssertions.begin(), kAssertions.end()};
}

TEST(CAssertionTest, EveryAssertionOfTheLibrary_IsBrokenByADeathTest)
{
    EXPECT_EQ(FindBrokenAssertions(), FindAssertions());
}
} // namespace
