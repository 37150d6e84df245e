// SPDX-License-Identifier: MIT
#include "Simulator/SimulatorDesk.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

TEST(CDocumentedKeysTest, Page_HasTheKeysOfTheSimulatorInTheOrderOfItsHelp)
{
    std::ifstream kFile(DIALOGMANAGER_SOURCE_DIRECTORY "/Docs/Simulator.md", std::ios::binary);
    const std::string kPage{std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
    std::string kTable = "| Key | What it does |\n|---|---|\n";
    for (const DeskKey_t& kKey : CSimulatorDesk::GetKeys())
    {
        kTable += std::string("| `") + kKey.m_pcKey + "` | " + kKey.m_pcText + " |\n";
    }
    EXPECT_NE(std::string::npos, kPage.find("\n\n" + kTable + "\n")) << kTable;
}
