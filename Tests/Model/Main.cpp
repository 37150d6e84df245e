/** @file
 *  Compares the library with the model over random sequences of operations.
 *
 *      ModelTests [operations]
 *
 *  compares at least that many operations (default: the environment variable MODEL_OPERATIONS, or
 *  100000). A difference is reported with the shortest sequence found that shows it and with the line
 *  that repeats the run; it ends the program with status 1.
 */

#include "Core/GUIAnimatable.h"
#include "TestSupport/ObjectCensus.h"
#include "TestSupport/TextLines.h"
#include "Tests/Model/LibrarySide.h"
#include "Tests/Model/Model.h"
#include "Tests/Model/ModelHandles.h"

#include <rapidcheck.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace
{
constexpr unsigned long cuiDefaultOperations = 100000;
constexpr unsigned long cuiLongestSequence = 240;
constexpr unsigned long cuiMeanLength = cuiLongestSequence / 4;

// Some popups are up when the clock wraps around.
constexpr unsigned int cuiBeginning = 0U - 20000U;

unsigned long long uiComparedOperations = 0;

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

/** Any operation of the manager and any act on objects; hooks neither move the clock nor prepare others. */
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
         {4, OP_SET_PARENT},     {4, OP_SET_ID},           {1, OP_RAISE}});
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

Operation_t Operation(EOperation eOperation, unsigned int uiFirst, unsigned int uiSecond,
                      unsigned int uiThird = 0, unsigned int uiFourth = 0)
{
    return {eOperation, OP_QUERY, 0, uiFirst, uiSecond, uiThird, uiFourth};
}

/** @return what every sequence begins with: definitions and files of most dialogs and popups, creation
 *          hooks for the others. Nothing of it changes the state of the object tree.
 */
std::vector<Operation_t> GetBeginning()
{
    return {Operation(OP_SET_FILE, 0, 0),
            Operation(OP_SET_FILE, 1, 3),
            Operation(OP_SET_FILE, 2, 5),
            Operation(OP_SET_FILE, 3, 2),
            Operation(OP_SET_FILE, 4, 4),
            Operation(OP_SET_FILE, 5, 1),
            Operation(OP_REGISTER_DIALOG, 0, 0),
            Operation(OP_REGISTER_DIALOG, 1, 1),
            Operation(OP_REGISTER_DIALOG, 2, 5),
            Operation(OP_SET_DIALOG_CREATOR, 3, 0, CREATION_UNDER_ROOT, 3),
            Operation(OP_REGISTER_POPUP, 0, 0, 7, 2),
            Operation(OP_REGISTER_POPUP, 1, 0, 8, 4),
            Operation(OP_REGISTER_POPUP, 2, 1, 0, 6),
            Operation(OP_REGISTER_POPUP, 3, 2, 3, 6),
            Operation(OP_SET_POPUP_CREATOR, 2, 0, CREATION_DETACHED),
            Operation(OP_SET_POPUP_CREATOR, 3, 1, CREATION_UNDER_ROOT)};
}

/** @return what happened, as the sides are compared: result, hook calls and trace entries, state */
std::string Describe(CSide& kSide, const std::string& kResult)
{
    return "= " + kResult + "\n" + JoinLines(kSide.TakeEvents()) + kSide.GetState();
}

/** Does an operation on both sides.
 *  @return what differs, or the empty string
 */
std::string DoAndCompare(CModel& kModel, CLibrarySide& kLibrary, const Operation_t& kOperation)
{
    const std::string kExpected = Describe(kModel, PerformAndCatch(kModel, kOperation));
    kLibrary.SetPermissions(kModel.TakePermissions());
    const std::string kActual = Describe(kLibrary, PerformAndCatch(kLibrary, kOperation));
    return kExpected == kActual ? std::string() : DiffLines(kExpected, kActual);
}

void Compare(const std::vector<Operation_t>& kOperations)
{
    const ObjectCensus_t kBefore = TakeObjectCensus();
    std::string kStory;
    std::string kDifference;
    {
        CModel kModel(cuiBeginning, static_cast<int>(cuiNOFObjectHandles) - 8);
        CLibrarySide kLibrary(cuiBeginning);
        for (const Operation_t& kOperation : GetBeginning())
        {
            RC_ASSERT(DoAndCompare(kModel, kLibrary, kOperation).empty());
        }
        for (const Operation_t& kOperation : kOperations)
        {
            if (!kModel.Permits(kOperation))
            {
                continue;
            }
            kStory += PrintOperation(kOperation) + "\n";
            kDifference = DoAndCompare(kModel, kLibrary, kOperation);
            ++uiComparedOperations;
            if (!kDifference.empty())
            {
                break;
            }
        }
    }
    if (!kDifference.empty())
    {
        RC_FAIL("the last of these operations differs:\n" + kStory +
                "\n- is what the model expects, + what the library did:\n" + kDifference);
    }
    const std::string kLeft = CompareObjectCensus(kBefore, TakeObjectCensus());
    if (!kLeft.empty())
    {
        RC_FAIL("these operations leave something behind:\n" + kStory + kLeft);
    }
}

unsigned long GetWantedOperations(int iArguments, const char* const* ppcArguments)
{
    const char* pcNumber = iArguments > 1 ? ppcArguments[1] : std::getenv("MODEL_OPERATIONS");
    return pcNumber != nullptr ? std::strtoul(pcNumber, nullptr, 10) : cuiDefaultOperations;
}

/** Completes what the user gave in RC_PARAMS, so that every run can be repeated.
 *  @return the parameters
 */
std::string SetParameters(unsigned long uiOperations)
{
    const char* pcGiven = std::getenv("RC_PARAMS");
    std::string kParameters = pcGiven != nullptr ? pcGiven : "";
    // A few sequences more than needed on average: their lengths are random too.
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
} // namespace

int main(int iArguments, char** ppcArguments)
{
    const std::string kParameters = SetParameters(GetWantedOperations(iArguments, ppcArguments));
    const bool bIsEqual =
        rc::check("the library and the model do the same", [] { Compare(*GenerateOperations()); });
    if (!bIsEqual)
    {
        std::cout << "\nThis repeats it:\nRC_PARAMS=\"" << kParameters << "\" " << ppcArguments[0] << "\n";
        return EXIT_FAILURE;
    }
    std::cout << uiComparedOperations << " operations compared\n";
    return EXIT_SUCCESS;
}
