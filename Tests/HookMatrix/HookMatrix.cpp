// SPDX-License-Identifier: MIT
#include "Tests/HookMatrix/HookMatrix.h"

#include "Tests/HookMatrix/RecordedOutcomes.h"
#include "Tests/Unit/TraceMoment.h"

#include <algorithm>
#include <cstring>
#include <exception>

namespace
{
const char* const capcCallers[CALLER_COUNT - cuiNOFHooks] = {"sink", "SetInvisible", "SetParent", "FocusAny",
                                                             "destructor"};

constexpr const char* cpcDoesNotEnd = "does not end";

/** @return the result of an operation, or the exception it throws */
template <typename TOperation>
std::string ResultOf(TOperation kOperation)
{
    try
    {
        return kOperation();
    }
    catch (int iValue)
    {
        return "throws int " + std::to_string(iValue);
    }
    catch (const std::exception& kException)
    {
        return std::string("throws ") + kException.what();
    }
}

/** Performs the operation of a place, with the action inside it. */
std::string OperateAndCallBack(CHookMatrixFixture& kFixture, const HookPlace_t& kPlace,
                               const CRecordingDialogManager::Action_t& kAction)
{
    if (kPlace.m_uiCaller < cuiNOFHooks)
    {
        kFixture.Manager().RunAlways(static_cast<EHook>(kPlace.m_uiCaller), kAction);
        return kPlace.m_pOperate(kFixture);
    }
    if (kPlace.m_uiCaller == CALLER_SINK)
    {
        const CTraceMoment kMoment(kPlace.m_pcEntry, [&kAction] { kAction(nullptr); });
        return kPlace.m_pOperate(kFixture);
    }
    kFixture.SetReaction(
        [&](EReaction eReaction, CGUIObject* pkObject)
        {
            if (eReaction == static_cast<EReaction>(kPlace.m_uiCaller - CALLER_SET_INVISIBLE))
            {
                kAction(eReaction == REACTION_DESTRUCTOR ? nullptr : pkObject);
            }
        });
    return kPlace.m_pOperate(kFixture);
}

/** @return the items of one state that differ from another state, or "=" */
std::string PrintDifferentItems(const std::string& kState, const std::string& kOther)
{
    std::string kText;
    std::size_t uiBegin = 0;
    for (std::size_t uiEnd = kState.find("; "); uiEnd != std::string::npos;
         uiEnd = kState.find("; ", uiBegin))
    {
        const std::string kItem = kState.substr(uiBegin, uiEnd - uiBegin);
        if (("; " + kOther).find("; " + kItem + "; ") == std::string::npos)
        {
            kText += (kText.empty() ? "" : "; ") + kItem;
        }
        uiBegin = uiEnd + 2;
    }
    return kText.empty() ? "=" : kText;
}

/** @return the part of the calls that differs from those when the inner action does nothing, with ".." for
 *         what is left out before and after it; "=" if nothing differs and the inner action called nothing
 */
std::string PrintDifferentCalls(const std::string& kCalls, const std::string& kNothing)
{
    if (kCalls == kNothing)
    {
        return "=";
    }
    const std::size_t uiShorter = std::min(kCalls.size(), kNothing.size());
    std::size_t uiBegin = 0;
    std::size_t uiPrefix = 0;
    for (; uiPrefix < uiShorter && kCalls[uiPrefix] == kNothing[uiPrefix]; ++uiPrefix)
    {
        uiBegin = kCalls[uiPrefix] == ' ' ? uiPrefix + 1 : uiBegin;
    }
    std::size_t uiEnd = kCalls.size();
    for (std::size_t uiSuffix = 1; uiSuffix <= uiShorter - uiBegin; ++uiSuffix)
    {
        const char cLetter = kCalls[kCalls.size() - uiSuffix];
        if (cLetter != kNothing[kNothing.size() - uiSuffix])
        {
            break;
        }
        uiEnd = cLetter == ' ' ? kCalls.size() - uiSuffix : uiEnd;
    }
    const std::string kMiddle = kCalls.substr(uiBegin, uiEnd - uiBegin);
    return (uiBegin > 0 ? ".. " : "") + kMiddle + (uiEnd < kCalls.size() ? " .." : "");
}
} // namespace

const char* NameOfCaller(eC_UInt uiCaller)
{
    return uiCaller < cuiNOFHooks ? NameOfHook(static_cast<EHook>(uiCaller))
                                  : capcCallers[uiCaller - cuiNOFHooks];
}

std::string NameOfGroup(eC_UInt uiGroup)
{
    return uiGroup < cuiNOFHooks ? NameOfCaller(uiGroup) : "BesideTheHooks";
}

std::string PrintHookHeadline(const HookPlace_t& kPlace)
{
    return std::string(NameOfCaller(kPlace.m_uiCaller)) + " | " + kPlace.m_pcName;
}

bool CanHappen(const HookPlace_t& kPlace, const InnerAction_t& kInner)
{
    return kPlace.m_uiCaller != CALLER_DESTRUCTOR || kInner.m_eKind != INNER_THROWS;
}

HookOutcome_t PlayHookCell(const HookPlace_t& kPlace, const InnerAction_t& kInner)
{
    CHookMatrixFixture kFixture;
    HookOutcome_t kOutcome;
    kPlace.m_pPrepare(kFixture);
    kFixture.Events().Clear();
    eC_UInt uiCalls = 0;
    const auto kAction = [&](CGUIObject* pkObject)
    {
        ++uiCalls;
        if (uiCalls != kPlace.m_uiCall)
        {
            return;
        }
        if (kInner.m_eKind == INNER_THROWS)
        {
            // A sink's exception is swallowed, so the calls must be those of doing nothing.
            if (kPlace.m_uiCaller == CALLER_SINK)
            {
                kFixture.Events().Add(EVENT_NOTE, "{}");
            }
            kInner.m_pPerform(kFixture, pkObject);
        }
        kFixture.Events().Add(EVENT_NOTE, "{");
        kOutcome.m_kInner = ResultOf([&] { return kInner.m_pPerform(kFixture, pkObject); });
        kFixture.Events().Add(EVENT_NOTE, "}");
    };

    kOutcome.m_kOuter = ResultOf([&] { return OperateAndCallBack(kFixture, kPlace, kAction); });
    kFixture.SetReaction(nullptr);

    const std::string kWhere = PrintHookHeadline(kPlace) + ": " + kInner.m_pcName;
    EXPECT_LE(kPlace.m_uiCall, uiCalls) << kWhere << ": the hook is not called";
    kOutcome.m_kCalls = kFixture.TakeHistoryOfCalls();
    kOutcome.m_kState = kFixture.PrintItems();
    kFixture.ExpectInOrder(kWhere);
    return kOutcome;
}

std::string PrintHookLine(const InnerAction_t& kInner, const HookOutcome_t& kOutcome,
                          const HookOutcome_t& kNothing)
{
    std::string kLine = kInner.m_pcName;
    kLine += " | " + (kOutcome.m_kInner.empty() ? "-" : kOutcome.m_kInner);
    kLine += " | " + (kOutcome.m_kOuter == kNothing.m_kOuter ? "=" : kOutcome.m_kOuter);
    kLine += " | " + PrintDifferentCalls(kOutcome.m_kCalls, kNothing.m_kCalls);
    return kLine + " | " + PrintDifferentItems(kOutcome.m_kState, kNothing.m_kState);
}

std::string PrintEndlessHookLine(const InnerAction_t& kInner)
{
    return std::string(kInner.m_pcName) + " | " + cpcDoesNotEnd;
}

std::vector<std::string> GetExpectedHookLines(const HookPlace_t& kPlace)
{
    static const char* const s_pcEndOfPlace = "\n\n";
    const std::string kHeadline = PrintHookHeadline(kPlace) + "\n";
    const char* pcBegin = GetRecordedOutcomes(NameOfGroup(kPlace.GetGroup()));
    while (std::strncmp(pcBegin, kHeadline.c_str(), kHeadline.size()) != 0)
    {
        const char* pcEndOfOther = std::strstr(pcBegin, s_pcEndOfPlace);
        if (pcEndOfOther == nullptr)
        {
            return {};
        }
        pcBegin = pcEndOfOther + std::strlen(s_pcEndOfPlace);
    }
    const char* pcEnd = std::strstr(pcBegin, s_pcEndOfPlace);
    return SplitLines(pcEnd != nullptr ? std::string(pcBegin, pcEnd) : std::string(pcBegin));
}

std::vector<std::string> PlayHookPlace(const HookPlace_t& kPlace)
{
    const std::vector<std::string> kExpected = GetExpectedHookLines(kPlace);
    std::vector<std::string> kLines = {PrintHookHeadline(kPlace)};
    if (kExpected.empty())
    {
        // The record says which cells never end; without it, playing the cells might hang.
        kLines.emplace_back("not recorded yet, see ./run hooks --update");
        return kLines;
    }
    HookOutcome_t kNothing;
    for (const InnerAction_t& kInner : GetInnerActions())
    {
        if (!CanHappen(kPlace, kInner))
        {
            continue;
        }
        const std::string kEndless = PrintEndlessHookLine(kInner);
        if (std::find(kExpected.begin(), kExpected.end(), kEndless) != kExpected.end())
        {
            kLines.push_back(kEndless);
            continue;
        }
        const HookOutcome_t kOutcome = PlayHookCell(kPlace, kInner);
        kLines.push_back(PrintHookLine(kInner, kOutcome, kNothing));
        if (kInner.m_eKind == INNER_NOTHING)
        {
            kNothing = kOutcome;
        }
    }
    return kLines;
}
