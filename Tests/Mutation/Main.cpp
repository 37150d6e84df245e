// SPDX-License-Identifier: MIT
// Runs the tests like GoogleMock's main function, and in two more ways:
//
// If the environment variable MUTANTS_REACHED names a file, it records there which mutants each test reaches,
// in whatever process: one line per test, with its name, its processor time in microseconds and the mutants'
// numbers. The name * stands for code reached outside of tests.
//
// If MUTANTS_SERVED is set, it reads a line for each run of tests: the mutant's number, the seconds of
// processor time that it may take, a file for its output and the filter of its tests. It forks for each, so
// that no mutant has to wait for the start of the program, and answers with the status of the process as
// waitpid gives it.

#include "Mutants.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
/** @return microseconds of processor time taken so far, with ended child processes */
long long GetProcessorTime()
{
    long long iTime = 0;
    for (const int iWho : {RUSAGE_SELF, RUSAGE_CHILDREN})
    {
        rusage kUsage = {};
        getrusage(iWho, &kUsage);
        iTime += (kUsage.ru_utime.tv_sec + kUsage.ru_stime.tv_sec) * 1000000LL + kUsage.ru_utime.tv_usec +
                 kUsage.ru_stime.tv_usec;
    }
    return iTime;
}

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
        const long long iTime = GetProcessorTime();
        std::fprintf(m_pkFile, "%s %lld", kName.c_str(), iTime - m_iTime);
        m_iTime = iTime;
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
    long long m_iTime = GetProcessorTime();
};

/** One run of tests that was asked for. */
struct Run_t
{
    unsigned m_uiMutant = 0;
    unsigned m_uiSeconds = 0;
    std::string m_kLog;
    std::string m_kTests;
};

/** Runs the tests in a child process, which this turns into the leader of a group of its own. */
[[noreturn]] void RunInChild(const Run_t& kRun)
{
    setsid();
    const int iLog = open(kRun.m_kLog.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int iNothing = open("/dev/null", O_RDONLY);
    dup2(iNothing, STDIN_FILENO);
    dup2(iLog, STDOUT_FILENO);
    dup2(iLog, STDERR_FILENO);
    const rlimit kLimit = {kRun.m_uiSeconds, kRun.m_uiSeconds};
    setrlimit(RLIMIT_CPU, &kLimit);
    // A test that waits for nothing takes no processor time.
    alarm(30 * kRun.m_uiSeconds);
    // For the programs that the tests start.
    setenv("MUTANT", std::to_string(kRun.m_uiMutant).c_str(), 1);
    g_uiSwitchedOn = kRun.m_uiMutant;
    ::testing::GTEST_FLAG(filter) = kRun.m_kTests;
    std::exit(RUN_ALL_TESTS());
}

void Serve()
{
    // Not for the programs that the tests start, this one among them.
    unsetenv("MUTANTS_SERVED");
    std::string kLine;
    while (std::getline(std::cin, kLine))
    {
        Run_t kRun;
        std::istringstream(kLine) >> kRun.m_uiMutant >> kRun.m_uiSeconds >> kRun.m_kLog >> kRun.m_kTests;
        const pid_t iChild = fork();
        if (iChild == 0)
        {
            RunInChild(kRun);
        }
        siginfo_t kInformation = {};
        waitid(P_PID, static_cast<id_t>(iChild), &kInformation, WEXITED | WNOWAIT);
        // Includes processes that the tests have started, while the child still keeps the number of its
        // group.
        kill(-iChild, SIGKILL);
        int iStatus = 0;
        waitpid(iChild, &iStatus, 0);
        std::cout << iStatus << std::endl;
    }
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    ::testing::InitGoogleMock(&iArguments, ppcArguments);
    const char* pcPath = std::getenv("MUTANTS_REACHED");
    if (pcPath != nullptr)
    {
        ::testing::UnitTest::GetInstance()->listeners().Append(new CReachRecorder(pcPath));
    }
    if (std::getenv("MUTANTS_SERVED") != nullptr)
    {
        Serve();
        return 0;
    }
    return RUN_ALL_TESTS();
}
