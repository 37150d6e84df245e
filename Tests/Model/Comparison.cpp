// SPDX-License-Identifier: MIT
#include "Tests/Model/Comparison.h"

#include "Scenario/TextLines.h"
#include "TestSupport/HookRecorder.h"
#include "Tests/Model/ModelHandles.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace
{
// Chosen so that some popups are shown while the clock wraps around.
constexpr unsigned int cuiBeginning = 0U - 20000U;

const char* const capcTracePrefixes[] = {"ERROR: ", "WARNING: ", "DEBUG: "};
const char* const cpcVeto = "deletions refused";
const char* const capcFailedLoads[] = {"loads that gave nothing", "loads that threw an int",
                                       "loads that threw an exception"};
const char* const cpcEmptyHand = "creation hooks that gave nothing";

std::string NameInHook(EOperation eOperation)
{
    return std::string(NameOfOperation(eOperation)) + " inside a hook";
}

std::string NameThrowing(EOperation eOperation)
{
    return std::string(NameOfOperation(eOperation)) + " throwing";
}

std::string NameOfHookCalls(EHook eHook)
{
    return std::string("calls of ") + NameOfHook(eHook);
}

std::string NameOfHookThrowing(EHook eHook)
{
    return NameOfHookCalls(eHook) + " throwing";
}

std::string NameOfTrace(const std::string& kPrefix)
{
    return "trace entries " + kPrefix.substr(0, kPrefix.find(':'));
}

bool BeginsWith(const std::string& kText, const std::string& kBeginning)
{
    return kText.compare(0, kBeginning.size(), kBeginning) == 0;
}

bool Contains(const std::string& kText, const char* pcPart)
{
    return kText.find(pcPart) != std::string::npos;
}

/** @return true for operations that pass on exceptions from a hook or a reader. The others catch them, or
 *         call hooks and readers too rarely to rely on.
 */
bool LetsExceptionsPass(EOperation eOperation)
{
    return eOperation == OP_CREATE_DIALOG || eOperation == OP_BACK_TO_DIALOG || eOperation == OP_SHOW_POPUP ||
           eOperation == OP_CLOSE_POPUP || eOperation == OP_OBTAIN;
}

/** @return everything that must happen over many operations */
std::vector<std::string> GetNames()
{
    std::vector<std::string> kNames;
    for (unsigned int uiOperation = 0; uiOperation < OP_COUNT; ++uiOperation)
    {
        const EOperation eOperation = static_cast<EOperation>(uiOperation);
        kNames.emplace_back(NameOfOperation(eOperation));
        if (CanHappenInHook(eOperation))
        {
            kNames.push_back(NameInHook(eOperation));
        }
        if (LetsExceptionsPass(eOperation))
        {
            kNames.push_back(NameThrowing(eOperation));
        }
    }
    for (unsigned int uiHook = 0; uiHook < cuiNOFHooks; ++uiHook)
    {
        kNames.push_back(NameOfHookCalls(static_cast<EHook>(uiHook)));
        kNames.push_back(NameOfHookThrowing(static_cast<EHook>(uiHook)));
    }
    kNames.emplace_back(cpcVeto);
    kNames.emplace_back(cpcEmptyHand);
    kNames.insert(kNames.end(), std::begin(capcFailedLoads), std::end(capcFailedLoads));
    for (const char* pcPrefix : capcTracePrefixes)
    {
        kNames.push_back(NameOfTrace(pcPrefix));
    }
    return kNames;
}

Operation_t Operation(EOperation eOperation, unsigned int uiFirst, unsigned int uiSecond,
                      unsigned int uiThird = 0, unsigned int uiFourth = 0)
{
    return {eOperation, OP_QUERY, 0, uiFirst, uiSecond, uiThird, uiFourth};
}

/** @return what happened, in the form that is compared: result, hook calls and trace entries, state */
std::string Describe(CDialogSystem& kSystem, const std::string& kResult,
                     const std::vector<std::string>& kEvents)
{
    return "= " + kResult + "\n" + JoinLines(kEvents) + kSystem.GetState();
}
} // namespace

// --- The tally ----------------------------------------------------------------------------------------

void CTally::Count(const Operation_t& kOperation, const std::string& kResult,
                   const std::vector<std::string>& kEvents)
{
    ++m_uiOperations;
    ++m_kCounts[NameOfOperation(kOperation.m_eOperation)];
    if (BeginsWith(kResult, "throws "))
    {
        ++m_kCounts[NameThrowing(kOperation.m_eOperation)];
    }
    for (const std::string& kEvent : kEvents)
    {
        CountEvent(kEvent);
    }
}

void CTally::CountEvent(const std::string& kEvent)
{
    for (const char* pcPrefix : capcTracePrefixes)
    {
        if (BeginsWith(kEvent, pcPrefix))
        {
            ++m_kCounts[NameOfTrace(pcPrefix)];
            return;
        }
    }
    for (unsigned int uiOperation = 0; uiOperation < OP_COUNT; ++uiOperation)
    {
        const EOperation eOperation = static_cast<EOperation>(uiOperation);
        if (BeginsWith(kEvent, std::string("> ") + NameOfOperation(eOperation) + " ") &&
            !Contains(kEvent, " skipped"))
        {
            ++m_kCounts[NameInHook(eOperation)];
            return;
        }
    }
    for (unsigned int uiHook = 0; uiHook < cuiNOFHooks; ++uiHook)
    {
        const EHook eHook = static_cast<EHook>(uiHook);
        if (BeginsWith(kEvent, std::string(NameOfHook(eHook)) + "("))
        {
            ++m_kCounts[NameOfHookCalls(eHook)];
            m_kCounts[NameOfHookThrowing(eHook)] += Contains(kEvent, " throws ") ? 1 : 0;
            m_kCounts[cpcVeto] += eHook == HOOK_ON_DIALOG_DELETION && Contains(kEvent, " -> false") ? 1 : 0;
            m_kCounts[cpcEmptyHand] += Contains(kEvent, " -> null") ? 1 : 0;
            return;
        }
    }
}

void CTally::CountFailedLoads(const CModel& kModel)
{
    for (int iHow = 0; iHow < 3; ++iHow)
    {
        m_kCounts[capcFailedLoads[iHow]] += kModel.GetFailedLoads(iHow);
    }
}

unsigned long CTally::Get(const std::string& kName) const
{
    const auto kPlace = m_kCounts.find(kName);
    return kPlace == m_kCounts.end() ? 0 : kPlace->second;
}

std::string CTally::Print() const
{
    constexpr std::size_t cuiWidth = 8;
    std::string kText;
    for (const std::string& kName : GetNames())
    {
        const std::string kCount = std::to_string(Get(kName));
        kText.append(cuiWidth - std::min(cuiWidth, kCount.size()), ' ');
        kText.append(kCount).append(" ").append(kName).append("\n");
    }
    return kText;
}

std::string CTally::PrintMissing() const
{
    std::string kText;
    for (const std::string& kName : GetNames())
    {
        kText += Get(kName) == 0 ? kName + "\n" : "";
    }
    return kText;
}

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

// --- The comparison -----------------------------------------------------------------------------------

CComparison::CComparison(CTally& kTally)
    : m_kModel(cuiBeginning, static_cast<int>(cuiNOFObjectHandles) - 8), m_kLibrary(cuiBeginning)
{
    for (const Operation_t& kOperation : GetBeginning())
    {
        Do(kOperation);
    }
    m_pkTally = &kTally;
}

CComparison::~CComparison()
{
    m_pkTally->CountFailedLoads(m_kModel);
}

bool CComparison::Do(const Operation_t& kOperation)
{
    if (!m_kDifference.empty())
    {
        return false;
    }
    const std::string kExpectedResult = PerformAndCatch(m_kModel, kOperation);
    const std::vector<std::string> kEvents = m_kModel.TakeEvents();
    const std::string kExpected = Describe(m_kModel, kExpectedResult, kEvents);
    m_kLibrary.SetPermissions(m_kModel.TakePermissions());
    const std::string kResult = PerformAndCatch(m_kLibrary, kOperation);
    const std::string kActual = Describe(m_kLibrary, kResult, m_kLibrary.TakeEvents());
    if (kExpected != kActual)
    {
        m_kDifference = DiffLines(kExpected, kActual);
        return false;
    }
    if (m_pkTally != nullptr)
    {
        m_pkTally->Count(kOperation, kResult, kEvents);
    }
    return true;
}
