// SPDX-License-Identifier: MIT
/** @file
 *  Plays every *.scenario file of this directory and compares the transcript with the *.golden file of the
 *  same name, byte for byte. A transcript that differs is written to ScenarioTranscripts/ in the working
 *  directory of the tests.
 *
 *  A golden file says what must happen, not what happened: read every line of a new or changed one before you
 *  commit it. With the environment variable DIALOGMANAGER_UPDATE_GOLDEN=1 the tests write the golden files
 *  instead of comparing them. Each one that changed still fails its test, so a run that wrote files cannot
 *  pass for one that compared them.
 */

#include "Tests/Scenario/ScenarioTest.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace
{
std::vector<std::string> FindScenarios()
{
    std::vector<std::string> kNames;
    for (const auto& kFile : std::filesystem::directory_iterator(DIALOGMANAGER_SCENARIO_DIRECTORY))
    {
        if (kFile.path().extension() == ".scenario")
        {
            kNames.push_back(kFile.path().stem().string());
        }
    }
    std::sort(kNames.begin(), kNames.end());
    return kNames;
}

std::string ReadFile(const std::filesystem::path& kPath)
{
    const std::ifstream kFile(kPath, std::ios::binary);
    std::ostringstream kText;
    kText << kFile.rdbuf();
    return kText.str();
}

void WriteFile(const std::filesystem::path& kPath, const std::string& kText)
{
    std::filesystem::create_directories(kPath.parent_path());
    std::ofstream(kPath, std::ios::binary) << kText;
}

bool IsUpdateAskedFor()
{
    const char* pcValue = std::getenv("DIALOGMANAGER_UPDATE_GOLDEN");
    return pcValue != nullptr && std::string(pcValue) == "1";
}
} // namespace

class CScenarioFileTest : public CScenarioTest, public ::testing::WithParamInterface<std::string>
{
protected:
    static std::filesystem::path GetFile(const char* pcExtension)
    {
        return std::filesystem::path(DIALOGMANAGER_SCENARIO_DIRECTORY) / (GetParam() + pcExtension);
    }
};

TEST_P(CScenarioFileTest, Play_GivesTheGoldenTranscript)
{
    const std::string kGolden = ReadFile(GetFile(".golden"));

    const std::string kTranscript = Play(GetParam() + ".scenario", ReadFile(GetFile(".scenario")));

    if (kTranscript == kGolden)
    {
        return;
    }
    if (IsUpdateAskedFor())
    {
        WriteFile(GetFile(".golden"), kTranscript);
    }
    const std::filesystem::path kWrong =
        std::filesystem::absolute("ScenarioTranscripts") / (GetParam() + ".transcript");
    WriteFile(kWrong, kTranscript);
    ADD_FAILURE() << "The transcript, " << kWrong.string() << ", differs from " << GetFile(".golden").string()
                  << " (- golden, + transcript):\n"
                  << DiffLines(kGolden, kTranscript);
}

INSTANTIATE_TEST_SUITE_P(AllFiles, CScenarioFileTest, ::testing::ValuesIn(FindScenarios()),
                         [](const ::testing::TestParamInfo<std::string>& kInfo) { return kInfo.param; });
