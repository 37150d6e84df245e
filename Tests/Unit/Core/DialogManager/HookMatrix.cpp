#include "Tests/Unit/Core/DialogManager/HookMatrix.h"

#include "Tests/Unit/Core/DialogManager/HookMatrixOutcomes.h"
#include "Tests/Unit/Core/DialogManager/TraceMoment.h"

#include <algorithm>
#include <exception>

namespace
{
const char* const* const capcOutcomes[cuiNOFHookGroups] = {
    capcCreateDialogImplOutcomes,     capcOnDialogAddedOutcomes,     capcOnDialogActivationOutcomes,
    capcOnDialogDeactivationOutcomes, capcOnDialogDeletionOutcomes,  capcOnAfterDialogDeletionOutcomes,
    capcOnLastDialogDeletionOutcomes, capcOnPopupActivationOutcomes, capcOnPopupDeactivationOutcomes,
    capcCreatePopupImplOutcomes,      capcBesideTheHooksOutcomes};

const char* const capcCallers[CALLER_COUNT - cuiNOFHooks] = {"sink", "SetInvisible", "SetParent", "FocusAny",
                                                             "destructor"};

constexpr const char* cpcDoesNotEnd = "does not end";

/** @return the result of an operation, or what it throws */
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

/** Does the operation of a place, and the action where the place says. */
std::string OperateAndCallBack(CHookStage& kStage, const HookPlace_t& kPlace,
                               const CRecordingDialogManager::Action_t& kAction)
{
    if (kPlace.m_uiCaller < cuiNOFHooks)
    {
        kStage.Manager().RunAlways(static_cast<EHook>(kPlace.m_uiCaller), kAction);
        return kPlace.m_pOperate(kStage);
    }
    if (kPlace.m_uiCaller == CALLER_SINK)
    {
        const CTraceMoment kMoment(kPlace.m_pcEntry, [&kAction] { kAction(nullptr); });
        return kPlace.m_pOperate(kStage);
    }
    kStage.SetReaction(
        [&](EReaction eReaction, CGUIObject* pkObject)
        {
            if (eReaction == static_cast<EReaction>(kPlace.m_uiCaller - CALLER_SET_INVISIBLE))
            {
                kAction(eReaction == REACTION_DESTRUCTOR ? nullptr : pkObject);
            }
        });
    return kPlace.m_pOperate(kStage);
}

/** @return the items of a state that differ from those of another one, or "=" */
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

/** @return the part of the calls that differs from those of doing nothing, ".." for what is left out on
 *          either side; "=" when the act called nothing and nothing else differs
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

std::string PrintHookHeadline(const HookPlace_t& kPlace)
{
    return std::string(NameOfCaller(kPlace.m_uiCaller)) + " | " + kPlace.m_pcName;
}

bool CanHappen(const HookPlace_t& kPlace, const HookAct_t& kAct)
{
    return kPlace.m_uiCaller != CALLER_DESTRUCTOR || kAct.m_eKind != ACT_THROWS;
}

HookOutcome_t PlayHookCell(const HookPlace_t& kPlace, const HookAct_t& kAct)
{
    CHookStage kStage;
    HookOutcome_t kOutcome;
    kPlace.m_pPrepare(kStage);
    kStage.Events().Clear();
    eC_UInt uiCalls = 0;
    const auto kAction = [&](CGUIObject* pkObject)
    {
        ++uiCalls;
        if (uiCalls != kPlace.m_uiCall)
        {
            return;
        }
        if (kAct.m_eKind == ACT_THROWS)
        {
            // A sink's exception is swallowed: the calls are to be those of doing nothing.
            if (kPlace.m_uiCaller == CALLER_SINK)
            {
                kStage.Events().Add(EVENT_NOTE, "{}");
            }
            kAct.m_pAct(kStage, pkObject);
        }
        kStage.Events().Add(EVENT_NOTE, "{");
        kOutcome.m_kInner = ResultOf([&] { return kAct.m_pAct(kStage, pkObject); });
        kStage.Events().Add(EVENT_NOTE, "}");
    };

    kOutcome.m_kOuter = ResultOf([&] { return OperateAndCallBack(kStage, kPlace, kAction); });
    kStage.SetReaction(nullptr);

    const std::string kWhere = PrintHookHeadline(kPlace) + ": " + kAct.m_pcName;
    EXPECT_LE(kPlace.m_uiCall, uiCalls) << kWhere << ": the hook is not called";
    kOutcome.m_kCalls = kStage.TakeHistoryOfCalls();
    kOutcome.m_kState = kStage.PrintItems();
    kStage.ExpectInOrder(kWhere);
    return kOutcome;
}

std::string PrintHookLine(const HookAct_t& kAct, const HookOutcome_t& kOutcome, const HookOutcome_t& kNothing)
{
    std::string kLine = kAct.m_pcName;
    kLine += " | " + (kOutcome.m_kInner.empty() ? "-" : kOutcome.m_kInner);
    kLine += " | " + (kOutcome.m_kOuter == kNothing.m_kOuter ? "=" : kOutcome.m_kOuter);
    kLine += " | " + PrintDifferentCalls(kOutcome.m_kCalls, kNothing.m_kCalls);
    return kLine + " | " + PrintDifferentItems(kOutcome.m_kState, kNothing.m_kState);
}

std::string PrintEndlessHookLine(const HookAct_t& kAct)
{
    return std::string(kAct.m_pcName) + " | " + cpcDoesNotEnd;
}

std::vector<std::string> GetExpectedHookLines(const HookPlace_t& kPlace)
{
    const char* const* ppcText = capcOutcomes[kPlace.GetGroup()];
    for (const HookPlace_t* pkOther = GetHookPlaces().data(); pkOther != &kPlace && *ppcText != nullptr;
         ++pkOther)
    {
        ppcText += pkOther->GetGroup() == kPlace.GetGroup() ? 1 : 0;
    }
    return *ppcText != nullptr ? SplitLines(Unindent(*ppcText)) : std::vector<std::string>();
}

std::vector<std::string> PlayHookPlace(const HookPlace_t& kPlace)
{
    const std::vector<std::string> kExpected = GetExpectedHookLines(kPlace);
    std::vector<std::string> kLines = {PrintHookHeadline(kPlace)};
    HookOutcome_t kNothing;
    for (const HookAct_t& kAct : GetHookActs())
    {
        if (!CanHappen(kPlace, kAct))
        {
            continue;
        }
        const std::string kEndless = PrintEndlessHookLine(kAct);
        if (std::find(kExpected.begin(), kExpected.end(), kEndless) != kExpected.end())
        {
            kLines.push_back(kEndless);
            continue;
        }
        const HookOutcome_t kOutcome = PlayHookCell(kPlace, kAct);
        kLines.push_back(PrintHookLine(kAct, kOutcome, kNothing));
        if (kAct.m_eKind == ACT_NOTHING)
        {
            kNothing = kOutcome;
        }
    }
    return kLines;
}
