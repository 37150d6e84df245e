// SPDX-License-Identifier: MIT
/** @file
 *  Compares the library with the model over random sequences of operations.
 *
 *      ModelTests [operations]
 *
 *  Compares at least that many operations (default: the environment variable MODEL_OPERATIONS, or 100000),
 *  and prints how often each thing happened on the way. A difference is reported with the shortest sequence
 *  found that shows it and with the line that repeats the run; the program then ends with status 1. A
 *  sequence that crashes or never ends is reported in the same way: sequences run in a separate process, and
 *  after the first crash each one gets its own.
 */

#include "TestSupport/ObjectCensus.h"
#include "Tests/Model/Comparison.h"
#include "Tests/Model/SharedText.h"

#include <rapidcheck.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <functional>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr unsigned long cuiDefaultOperations = 100000;
constexpr unsigned long cuiLongestSequence = 240;
constexpr unsigned long cuiMeanLength = cuiLongestSequence / 4;
constexpr unsigned int cuiLongestTime = 20; // seconds for one sequence

/** How often each operation is drawn. */
rc::Gen<EOperation> GenerateOperation()
{
    return rc::gen::weightedElement<EOperation>({{12, OP_CREATE_DIALOG},
                                                 {4, OP_ADD_DIALOG},
                                                 {6, OP_BACK},
                                                 {4, OP_BACK_TO_DIALOG},
                                                 {3, OP_CLEAR_HISTORY},
                                                 {12, OP_SHOW_POPUP},
                                                 {5, OP_CLOSE_POPUP},
                                                 {6, OP_REGISTER_DIALOG},
                                                 {1, OP_UNREGISTER_DIALOG},
                                                 {8, OP_REGISTER_POPUP},
                                                 {1, OP_UNREGISTER_POPUP},
                                                 {1, OP_UPDATE_TIME},
                                                 {2, OP_QUERY},
                                                 {1, OP_FIND_PATH},
                                                 {1, OP_DYNAMIC_ID},
                                                 {1, OP_PRINT_HISTORY},
                                                 {1, OP_ARBITRATE},
                                                 {1, OP_OBTAIN},
                                                 {1, OP_LOAD},
                                                 {3, OP_BUILD},
                                                 {3, OP_DELETE},
                                                 {2, OP_FOCUS},
                                                 {1, OP_FOCUS_ANY},
                                                 {2, OP_SET_INVISIBLE},
                                                 {1, OP_SET_FOCUSABLE},
                                                 {2, OP_SET_PARENT},
                                                 {1, OP_SET_ID},
                                                 {1, OP_RAISE},
                                                 {5, OP_ADVANCE},
                                                 {1, OP_BE_LATE},
                                                 {6, OP_SET_FILE},
                                                 {4, OP_SET_DIALOG_CREATOR},
                                                 {3, OP_SET_POPUP_CREATOR},
                                                 {2, OP_VETO},
                                                 {1, OP_FAIL_LOAD},
                                                 {1, OP_FAIL_HOOK},
                                                 {8, OP_IN_HOOK},
                                                 {2, OP_THROW_IN_HOOK}});
}

/** Any operation of the manager or on objects. Inside a hook nothing moves the clock or prepares other
 *  operations.
 */
rc::Gen<EOperation> GenerateInnerOperation()
{
    return rc::gen::weightedElement<EOperation>(
        {{6, OP_CREATE_DIALOG},  {3, OP_ADD_DIALOG},       {3, OP_BACK},
         {2, OP_BACK_TO_DIALOG}, {2, OP_CLEAR_HISTORY},    {6, OP_SHOW_POPUP},
         {6, OP_CLOSE_POPUP},    {1, OP_REGISTER_DIALOG},  {1, OP_UNREGISTER_DIALOG},
         {1, OP_REGISTER_POPUP}, {1, OP_UNREGISTER_POPUP}, {1, OP_UPDATE_TIME},
         {1, OP_QUERY},          {1, OP_DYNAMIC_ID},       {1, OP_PRINT_HISTORY},
         {2, OP_ARBITRATE},      {1, OP_OBTAIN},           {1, OP_LOAD},
         {2, OP_BUILD},          {10, OP_DELETE},          {2, OP_FOCUS},
         {1, OP_FOCUS_ANY},      {4, OP_SET_INVISIBLE},    {1, OP_SET_FOCUSABLE},
         {4, OP_SET_PARENT},     {4, OP_SET_ID},           {1, OP_RAISE},
         {1, OP_FIND_PATH}});
}

rc::Gen<unsigned int> GenerateArgument()
{
    constexpr unsigned int cuiBehindLast = 120;
    return rc::gen::inRange<unsigned int>(0, cuiBehindLast);
}

rc::Gen<std::vector<Operation_t>> GenerateOperations()
{
    return rc::gen::container<std::vector<Operation_t>>(rc::gen::build<Operation_t>(
        rc::gen::set(&Operation_t::m_eOperation, GenerateOperation()),
        rc::gen::set(&Operation_t::m_eInner, GenerateInnerOperation()),
        rc::gen::set(&Operation_t::m_uiHook, rc::gen::inRange<unsigned int>(0, 10)),
        rc::gen::set(&Operation_t::m_uiFirst, GenerateArgument()),
        rc::gen::set(&Operation_t::m_uiSecond, GenerateArgument()),
        rc::gen::set(&Operation_t::m_uiThird, GenerateArgument()),
        rc::gen::set(&Operation_t::m_uiFourth, GenerateArgument())));
}

/** Compares a sequence.
 *  @param kStory receives each operation before it runs
 *  @return what is wrong, or the empty string
 */
std::string Compare(const std::vector<Operation_t>& kOperations, CSharedText& kStory, CTally& kTally)
{
    alarm(cuiLongestTime);
    const ObjectCensus_t kBefore = TakeObjectCensus();
    std::string kDifference;
    {
        CComparison kComparison(kTally);
        for (const Operation_t& kOperation : kOperations)
        {
            if (kComparison.Permits(kOperation))
            {
                kStory.Append(PrintOperation(kOperation) + "\n");
                kComparison.Do(kOperation);
            }
        }
        kDifference = kComparison.GetDifference();
    }
    if (!kDifference.empty())
    {
        return "the last operation differs; - is what the model expects, + what the library did:\n" +
               kDifference;
    }
    return CompareObjectCensus(kBefore, TakeObjectCensus());
}

/** Runs something in a separate process.
 *  @return the status of that process, as waitpid returns it
 */
int RunInProcess(const std::function<int()>& kBody)
{
    std::cout.flush();
    const pid_t iProcess = fork();
    if (iProcess < 0)
    {
        throw std::runtime_error(std::string("no further process: ") + std::strerror(errno));
    }
    if (iProcess == 0)
    {
        std::exit(kBody());
    }
    int iStatus = 0;
    waitpid(iProcess, &iStatus, 0);
    return iStatus;
}

std::string DescribeEnd(int iStatus)
{
    return WIFSIGNALED(iStatus) ? std::string("signal ") + strsignal(WTERMSIG(iStatus))
                                : "status " + std::to_string(WEXITSTATUS(iStatus));
}

void Report(const std::string& kWrong, const std::string& kStory)
{
    if (!kWrong.empty())
    {
        RC_FAIL("these operations:\n" + kStory + "\n" + kWrong);
    }
}

/** @return true if the library behaved as the model expects in all sequences, and everything happened */
bool CheckAll(CSharedText& kStory, unsigned long uiOperations)
{
    CTally kTally;
    const bool bIsEqual = rc::check("the library and the model do the same",
                                    [&]
                                    {
                                        kStory.Clear();
                                        Report(Compare(*GenerateOperations(), kStory, kTally), kStory.Get());
                                    });
    std::cout << "\nHow often what happened:\n" << kTally.Print();
    const std::string kMissing = uiOperations < cuiDefaultOperations ? "" : kTally.PrintMissing();
    if (bIsEqual && !kMissing.empty())
    {
        std::cout << "\nThis never happened, although everything should:\n" << kMissing;
    }
    std::cout << kTally.GetOperations() << " operations compared\n";
    return bIsEqual && kMissing.empty();
}

/** Compares a sequence in a separate process and discards its output, which has been printed before. */
std::string CompareInProcess(const std::vector<Operation_t>& kOperations, CSharedText& kStory)
{
    CSharedText kWrong;
    kStory.Clear();
    const int iStatus = RunInProcess(
        [&]
        {
            const int iNowhere = open("/dev/null", O_WRONLY);
            dup2(iNowhere, STDOUT_FILENO);
            dup2(iNowhere, STDERR_FILENO);
            CTally kTally;
            kWrong.Append(Compare(kOperations, kStory, kTally));
            return EXIT_SUCCESS;
        });
    return iStatus == 0 ? kWrong.Get() : "end the program with " + DescribeEnd(iStatus);
}

void CheckEachInProcess(CSharedText& kStory)
{
    const std::string kSeen = kStory.Get();
    const bool bIsEqual = rc::check("no sequence ends the program",
                                    [&]
                                    {
                                        const std::string kWrong =
                                            CompareInProcess(*GenerateOperations(), kStory);
                                        Report(kWrong, kStory.Get());
                                    });
    if (bIsEqual)
    {
        std::cout << "\nNo sequence alone ends the program. It ended during these operations:\n" << kSeen;
    }
}

unsigned long GetWantedOperations(int iArguments, const char* const* ppcArguments)
{
    const char* pcNumber = iArguments > 1 ? ppcArguments[1] : std::getenv("MODEL_OPERATIONS");
    return pcNumber != nullptr ? std::strtoul(pcNumber, nullptr, 10) : cuiDefaultOperations;
}

/** Completes the user's RC_PARAMS so that every run can be repeated.
 *  @return the parameters
 */
std::string SetParameters(unsigned long uiOperations)
{
    const char* pcGiven = std::getenv("RC_PARAMS");
    std::string kParameters = pcGiven != nullptr ? pcGiven : "";
    // A few more sequences than needed on average, because their lengths are random.
    const unsigned long uiSequences = uiOperations / cuiMeanLength + uiOperations / cuiMeanLength / 4 + 4;
    const auto kAdd = [&kParameters](const std::string& kName, std::uint64_t uiValue)
    {
        if (kParameters.find(kName + "=") == std::string::npos)
        {
            kParameters += (kParameters.empty() ? "" : " ") + kName + "=" + std::to_string(uiValue);
        }
    };
    kAdd("seed", std::random_device()());
    kAdd("max_success", uiSequences);
    kAdd("max_size", cuiLongestSequence);
    setenv("RC_PARAMS", kParameters.c_str(), 1);
    return kParameters;
}

int Run(int iArguments, char** ppcArguments)
{
    const unsigned long uiOperations = GetWantedOperations(iArguments, ppcArguments);
    const std::string kParameters = SetParameters(uiOperations);
    CSharedText kStory;
    CSharedText kEnd;
    const int iStatus = RunInProcess(
        [&]
        {
            const bool bIsEqual = CheckAll(kStory, uiOperations);
            kEnd.Append("reached");
            return bIsEqual ? EXIT_SUCCESS : EXIT_FAILURE;
        });
    if (iStatus == 0)
    {
        return EXIT_SUCCESS;
    }
    if (kEnd.Get().empty())
    {
        std::cout << "\nA sequence ended the program with " << DescribeEnd(iStatus)
                  << ". Looking for the shortest:\n";
        CheckEachInProcess(kStory);
    }
    std::cout << "\nThis repeats it:\nRC_PARAMS=\"" << kParameters << "\" " << ppcArguments[0] << "\n";
    return EXIT_FAILURE;
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    try
    {
        return Run(iArguments, ppcArguments);
    }
    catch (const std::exception& kException)
    {
        std::fprintf(stderr, "ModelTests: %s\n", kException.what());
        return EXIT_FAILURE;
    }
}
