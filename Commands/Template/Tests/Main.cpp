// Plays Application.scenario and compares the transcript with Application.golden. --update writes a new one.

#include "Application/SimulatedDevice.h"
#include "Scenario/TextLines.h"
#include "Simulator/SimulationPlayer.h"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>

namespace
{
constexpr const char* cpcGolden = TEST_DIRECTORY "/Application.golden";

std::string ReadFile(const char* pcPath)
{
    std::ifstream kFile(pcPath, std::ios::binary);
    if (!kFile)
    {
        std::fprintf(stderr, "cannot read %s\n", pcPath);
    }
    return {std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
}

bool WriteFile(const char* pcPath, const std::string& kText)
{
    std::ofstream kFile(pcPath, std::ios::binary);
    kFile << kText << std::flush;
    if (!kFile)
    {
        std::fprintf(stderr, "cannot write %s\n", pcPath);
    }
    return kFile.good();
}

/** @return the transcript, including the message about a wrong line */
std::string Play(const std::string& kScript)
{
    std::string kTranscript;
    CSimulatedDevice kDevice;
    PlayTranscript(kDevice, "Application.scenario", kScript,
                   [&kTranscript](const std::string& kLine) { kTranscript += kLine + "\n"; });
    return kTranscript;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const bool bUpdates = iArguments == 2 && std::strcmp(ppcArguments[1], "--update") == 0;
    if (iArguments > 1 && !bUpdates)
    {
        std::fputs("expected no argument, or --update\n", stderr);
        return 2;
    }

    const std::string kTranscript = Play(ReadFile(TEST_DIRECTORY "/Application.scenario"));
    if (bUpdates)
    {
        return WriteFile(cpcGolden, kTranscript) ? 0 : 1;
    }
    const std::string kDifference = DiffLines(ReadFile(cpcGolden), kTranscript);
    std::fputs(kDifference.c_str(), stdout);
    std::puts(kDifference.empty()
                  ? "everything happens as recorded"
                  : "this differs from what is recorded: - is missing, + is new; --update records it");
    return kDifference.empty() ? 0 : 1;
}
