// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{
std::string ReadSourceFile(const std::string& kPath)
{
    std::ifstream kFile(DIALOGMANAGER_SOURCE_DIRECTORY "/" + kPath);
    return {std::istreambuf_iterator<char>(kFile), {}};
}

/** @return the code blocks of a document, including line breaks */
std::vector<std::string> GetCode(const std::string& kDocument)
{
    const std::string kBegin = "\n```cpp\n";
    const std::string kEnd = "```";
    std::vector<std::string> kBlocks;
    for (std::size_t uiBegin = kDocument.find(kBegin); uiBegin != std::string::npos;
         uiBegin = kDocument.find(kBegin, uiBegin))
    {
        uiBegin += kBegin.size();
        kBlocks.push_back(kDocument.substr(uiBegin, kDocument.find(kEnd, uiBegin) - uiBegin));
    }
    return kBlocks;
}

TEST(CCompanionsDocumentTest, Code_IsCodeOfTheTestsThatRun)
{
    const std::string kProgram = ReadSourceFile("Tests/Unit/Companions/DocumentedCompanionsTest.cpp");
    const std::vector<std::string> kBlocks = GetCode(ReadSourceFile("Docs/Companions.md"));

    EXPECT_LE(3U, kBlocks.size());
    for (const std::string& kBlock : kBlocks)
    {
        EXPECT_NE(std::string::npos, kProgram.find("\n" + kBlock)) << kBlock;
    }
}
} // namespace
