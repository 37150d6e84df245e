// SPDX-License-Identifier: MIT
// Runs the tests like GoogleMock's main function. If the environment variable MUTANTS_REACHED names a file,
// it records there which mutants each test reaches, in whatever process: one line per test, with its name and
// the mutants' numbers. The name * stands for code reached outside of tests.

#include "Mutants.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace
{
class CReachRecorder : public ::testing::EmptyTestEventListener
{
public:
    explicit CReachRecorder(const char* pcPath) : m_pkFile(std::fopen(pcPath, "w")) {}

    ~CReachRecorder() override { std::fclose(m_pkFile); }

    void OnTestStart(const ::testing::TestInfo& /*kTest*/) override { WriteReached("*"); }

    void OnTestEnd(const ::testing::TestInfo& kTest) override
    {
        WriteReached(std::string(kTest.test_suite_name()) + "." + kTest.name());
    }

    void OnTestProgramEnd(const ::testing::UnitTest& /*kProgram*/) override { WriteReached("*"); }

private:
    void WriteReached(const std::string& kName)
    {
        std::fputs(kName.c_str(), m_pkFile);
        for (unsigned uiNumber = 0; uiNumber < cuiMaxMutants; ++uiNumber)
        {
            if (g_pbReached[uiNumber])
            {
                std::fprintf(m_pkFile, " %u", uiNumber);
                g_pbReached[uiNumber] = false;
            }
        }
        std::fputs("\n", m_pkFile);
    }

    std::FILE* m_pkFile;
};
} // namespace

int main(int iArguments, char** ppcArguments)
{
    ::testing::InitGoogleMock(&iArguments, ppcArguments);
    const char* pcPath = std::getenv("MUTANTS_REACHED");
    if (pcPath != nullptr)
    {
        ::testing::UnitTest::GetInstance()->listeners().Append(new CReachRecorder(pcPath));
    }
    return RUN_ALL_TESTS();
}
