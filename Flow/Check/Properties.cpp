// SPDX-License-Identifier: MIT
#include "Flow/Check/Properties.h"

#include "Flow/Check/PushdownDistances.h"
#include "Flow/Check/PushdownRuns.h"
#include "Flow/Check/WaysBack.h"
#include "Scenario/Names.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <set>

namespace
{
constexpr eC_UInt cuiFarthestHome = 100; ///< keys that are told apart when histories have no bound

struct Title_t
{
    const eC_Char* m_pcTitle;
    const eC_Char* m_pcMeaning;
};

constexpr Title_t cakTitles[cuiProperties] = {
    {"every dialog and popup can be reached, and every name is registered and loads", "dead design"},
    {"home can be reached from every state", "dead end"},
    {"going back leads to the first dialog, and each step brings back what was left", "broken undo"},
    {"the history is bounded", "memory grows"},
    {"the worst case is within its limits", "how much RAM"},
    {"every popup can be seen, and none waits for ever", "starvation"},
    {"the focus is on a visible object that can be found again", "lost focus"},
    {"every stepwise way back ends", "hangs"},
    {"left alone, every state goes where it should", "stuck"},
    {"what the flow claims is true", "access"},
    {"a second press is harmless where the flow says so", "double tap"},
    {"no unexpected ERROR is logged", "broken at run time"}};

std::vector<std::uint16_t> GetInputs(const StateSpace_t& kSpace, const Witness_t& kWitness,
                                     std::vector<const TimerChanges_t*>& kChangesOUT);

/** @return whether there are pauses for the timers of a witness. A step leads to a state that covers the one
 * it really leads to, so what follows may be impossible.
 */
eC_Bool IsPossible(const StateSpace_t& kSpace, const Witness_t& kWitness)
{
    std::vector<const TimerChanges_t*> kChanges;
    std::vector<eC_UInt> kPauses;
    GetInputs(kSpace, kWitness, kChanges);
    return FindPauses(kChanges, {}, true, 1, kPauses);
}

/** Checks the properties. */
class CPropertyChecker
{
public:
    CPropertyChecker(const CCheckSubject& kSubject, const StateSpace_t& kSpace)
        : m_kSubject(kSubject), m_kSpace(kSpace)
    {
        ReverseSteps();
    }

    PropertyResult_t Check(eC_UInt uiProperty)
    {
        using Check_t = void (CPropertyChecker::*)();
        static constexpr Check_t s_apfnChecks[cuiProperties] = {
            &CPropertyChecker::CheckReachability, &CPropertyChecker::CheckHome,
            &CPropertyChecker::CheckGoingBack,    &CPropertyChecker::CheckHistory,
            &CPropertyChecker::CheckWorstCase,    &CPropertyChecker::CheckPopups,
            &CPropertyChecker::CheckFocus,        &CPropertyChecker::CheckEnding,
            &CPropertyChecker::CheckLeftAlone,    &CPropertyChecker::CheckClaims,
            &CPropertyChecker::CheckSecondPress,  &CPropertyChecker::CheckErrors};
        m_kResult = PropertyResult_t();
        m_kResult.m_uiNumber = uiProperty;
        m_kResult.m_kTitle = cakTitles[uiProperty - 1].m_pcTitle;
        m_kResult.m_kMeaning = cakTitles[uiProperty - 1].m_pcMeaning;
        m_kResult.m_pkSpace = &m_kSpace;
        (this->*s_apfnChecks[uiProperty - 1])();
        ApplyExpectations();
        return m_kResult;
    }

private:
    struct Reverse_t
    {
        std::uint32_t m_uiSource;
        std::uint32_t m_uiStep;
    };

    using States_t = std::vector<std::uint32_t>;
    using Filter_t = std::function<eC_Bool(std::uint32_t)>;

    // --- The graph ------------------------------------------------------------------------------------

    void ReverseSteps()
    {
        m_kReverse.resize(m_kSpace.m_kStates.size());
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = m_kSpace.m_kStates[uiState];
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps; ++uiStep)
            {
                m_kReverse[m_kSpace.m_kSteps[uiStep].m_uiTarget].push_back({uiState, uiStep});
            }
        }
    }

    const ReachedState_t& Get(std::uint32_t uiState) const { return m_kSpace.m_kStates[uiState]; }

    CheckedInput_t::EKind GetKind(const CheckedStep_t& kStep) const
    {
        return m_kSpace.m_kInputs[kStep.m_uiInput].m_eKind;
    }

    /** @return whether what comes after a state is unknown */
    eC_Bool IsOpen(std::uint32_t uiState) const
    {
        return !Get(uiState).m_bIsExpanded && !Get(uiState).m_bIsHanging;
    }

    /** @param bSignals whether signals may help; they count as keys
     *  @return how many keys it takes from each state to one of the goals, if times run out as it suits
     */
    std::vector<eC_UInt> GetDistances(const Filter_t& fnIsGoal, eC_Bool bSignals) const
    {
        std::vector<eC_UInt> kDistances(m_kSpace.m_kStates.size(), cuiFar);
        std::deque<std::uint32_t> kQueue;
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            if (fnIsGoal(uiState))
            {
                kDistances[uiState] = 0;
                kQueue.push_back(uiState);
            }
        }
        while (!kQueue.empty())
        {
            const std::uint32_t uiState = kQueue.front();
            kQueue.pop_front();
            for (const Reverse_t& kReverse : m_kReverse[uiState])
            {
                const CheckedInput_t::EKind eKind = GetKind(m_kSpace.m_kSteps[kReverse.m_uiStep]);
                const eC_UInt uiCost = eKind == CheckedInput_t::EXPIRY ? 0 : 1;
                if ((bSignals || eKind != CheckedInput_t::SIGNAL) &&
                    kDistances[uiState] + uiCost < kDistances[kReverse.m_uiSource])
                {
                    kDistances[kReverse.m_uiSource] = kDistances[uiState] + uiCost;
                    uiCost == 0 ? kQueue.push_front(kReverse.m_uiSource)
                                : kQueue.push_back(kReverse.m_uiSource);
                }
            }
        }
        return kDistances;
    }

    template <typename Condition_t>
    std::uint32_t FindState(Condition_t fnHolds) const
    {
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            if (fnHolds(Get(uiState)))
            {
                return uiState;
            }
        }
        return cuiNoState;
    }

    // --- Histories without bound ----------------------------------------------------------------------

    const Pushdown_t::Item_t& GetItem(std::uint32_t uiItem) const
    {
        return m_kSpace.m_kPushdown.m_kItems[uiItem];
    }

    const ReachedState_t& GetStateOf(std::uint32_t uiItem) const { return Get(GetItem(uiItem).m_uiState); }

    /** @return what a step costs; @param bSignals whether signals may help */
    CPushdownDistances::Cost_t CountKeys(eC_Bool bSignals) const
    {
        return [this, bSignals](const CheckedStep_t& kStep)
        {
            const CheckedInput_t::EKind eKind = GetKind(kStep);
            return eKind == CheckedInput_t::EXPIRY                ? 0U
                   : eKind == CheckedInput_t::SIGNAL && !bSignals ? cuiFar
                                                                  : 1U;
        };
    }

    /** Visits what is too far from a goal: every item that a filter lets through, in every context. */
    template <typename Report_t>
    void VisitFar(CPushdownDistances& kDistances, eC_UInt uiMost, const Filter_t& fnIsMeant,
                  Report_t fnReport)
    {
        const eC_Bool bAreAll = kDistances.Visit(
            [&](std::uint32_t uiItem, eC_UInt uiDistance, std::uint32_t uiContext)
            {
                if (uiDistance > uiMost && fnIsMeant(GetItem(uiItem).m_uiState))
                {
                    fnReport(uiItem, uiDistance, uiContext);
                }
            });
        if (!bAreAll)
        {
            SetTooManyHistories();
        }
    }

    void SetTooManyHistories()
    {
        m_kResult.m_kBound =
            "up to depth " + std::to_string(m_kSpace.m_uiDepth) + ", as there are too many histories";
    }

    // --- Findings -------------------------------------------------------------------------------------

    void Report(const std::string& kText, const Witness_t& kWitness, eC_UInt uiLine = 0)
    {
        m_kResult.m_kFindings.push_back({kText, uiLine, true, kWitness, {}});
    }

    void ReportWithoutWitness(const std::string& kText, eC_UInt uiLine)
    {
        m_kResult.m_kFindings.push_back({kText, uiLine, false, {}, {}});
    }

    void ApplyExpectations()
    {
        const std::string kProperty = "P" + std::to_string(m_kResult.m_uiNumber);
        std::vector<FlowExpectation_t> kUnmet;
        for (const FlowExpectation_t& kExpectation : m_kSubject.GetExpectations())
        {
            eC_Bool bIsMet = kExpectation.m_kProperty != kProperty;
            for (Finding_t& kFinding : m_kResult.m_kFindings)
            {
                if (kExpectation.m_kProperty == kProperty &&
                    kFinding.m_kText.find(kExpectation.m_kAbout) != std::string::npos)
                {
                    kFinding.m_kReason = kExpectation.m_kReason;
                    bIsMet = true;
                }
            }
            if (!bIsMet)
            {
                kUnmet.push_back(kExpectation);
            }
        }
        for (const FlowExpectation_t& kExpectation : kUnmet)
        {
            ReportUnmet(kExpectation);
        }
    }

    /** What is not found up to a bound may lie beyond; where all is known, it is gone. */
    void ReportUnmet(const FlowExpectation_t& kExpectation)
    {
        const std::string kWhich = "the Expect about '" + kExpectation.m_kAbout + "'";
        const eC_UInt uiLine = kExpectation.m_kPosition.m_uiLine;
        if (IsAboutAllHistories())
        {
            ReportWithoutWitness(kWhich + " is out of date: there is no such violation", uiLine);
        }
        else
        {
            Warn(kWhich + " may be out of date: no such violation was found", uiLine);
        }
    }

    void Warn(const std::string& kText, eC_UInt uiLine)
    {
        m_kResult.m_kWarnings.push_back({kText, uiLine, false, {}, {}});
    }

    eC_Bool IsAboutAllHistories() const
    {
        return (m_kSpace.m_bIsComplete || m_kSpace.m_bIsExact) && m_kResult.m_kBound.empty();
    }

    // --- P1 -------------------------------------------------------------------------------------------

    void CheckReachability()
    {
        for (const BrokenName_t& kName : m_kSubject.GetBrokenNames())
        {
            ReportWithoutWitness(kName.m_kText, kName.m_uiLine);
        }
        for (const ObjectHandle_t eDialog : m_kSpace.m_kDialogs)
        {
            if (FindState([eDialog](const ReachedState_t& kState) { return kState.m_eCurrent == eDialog; }) ==
                cuiNoState)
            {
                ReportUnreached(eDialog);
            }
        }
        for (std::size_t uiPopup = 0; uiPopup < m_kSpace.m_kPopups.size(); ++uiPopup)
        {
            if (FindState([uiPopup](const ReachedState_t& kState)
                          { return (kState.m_uiListed >> uiPopup & 1U) != 0; }) == cuiNoState)
            {
                ReportUnreached(m_kSpace.m_kPopups[uiPopup]);
            }
        }
        ReportErrors(
            [](const std::string& kError)
            {
                return kError.find(" failed!") != std::string::npos ||
                       kError.find("is not registered") != std::string::npos;
            });
    }

    void ReportUnreached(ObjectHandle_t eID)
    {
        ReportWithoutWitness(NameOfHandle(eID) +
                                 (IsAboutAllHistories() ? " cannot be reached" : " was not reached"),
                             m_kSubject.GetLine(eID));
    }

    void ReportErrors(const std::function<eC_Bool(const std::string&)>& fnIsMeant)
    {
        std::set<std::uint16_t> kReported;
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = Get(uiState);
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps; ++uiStep)
            {
                const std::uint16_t uiError = m_kSpace.m_kSteps[uiStep].m_uiError;
                if (uiError != 0 && fnIsMeant(m_kSpace.m_kTexts.GetText(uiError)) &&
                    kReported.insert(uiError).second)
                {
                    Report(m_kSpace.m_kTexts.GetText(uiError), {uiState, {uiStep}});
                }
            }
        }
    }

    // --- P2 -------------------------------------------------------------------------------------------

    void CheckHome()
    {
        const ObjectHandle_t eHome = m_kSpace.m_eHome;
        const std::vector<eC_UInt> kOptimistic =
            GetDistances([this, eHome](std::uint32_t uiState)
                         { return Get(uiState).m_eCurrent == eHome || IsOpen(uiState); },
                         true);
        std::set<ObjectHandle_t> kReported;
        for (std::uint32_t uiState = 0; uiState < kOptimistic.size(); ++uiState)
        {
            if (kOptimistic[uiState] == cuiFar && kReported.insert(Get(uiState).m_eCurrent).second)
            {
                Report("from " + NameOfHandle(Get(uiState).m_eCurrent) + " no keys lead to " +
                           NameOfHandle(eHome),
                       {uiState, {}});
            }
        }
        if (m_kSpace.NeedsPushdown())
        {
            CheckHomeExactly(eHome, kReported);
        }
        else
        {
            MeasureWayHome(eHome);
        }
    }

    void CheckHomeExactly(ObjectHandle_t eHome, std::set<ObjectHandle_t>& kReported)
    {
        CPushdownDistances kDistances(
            m_kSpace, [this, eHome](std::uint32_t uiState) { return Get(uiState).m_eCurrent == eHome; },
            CountKeys(true), cuiFarthestHome);
        eC_UInt uiMost = 0;
        Witness_t kMost;
        ObjectHandle_t eMost = Get(0).m_eCurrent;
        const eC_Bool bAreAll = kDistances.Visit(
            [&](std::uint32_t uiItem, eC_UInt uiDistance, std::uint32_t uiContext)
            {
                const ObjectHandle_t eCurrent = GetStateOf(uiItem).m_eCurrent;
                if (uiDistance == cuiFar)
                {
                    if (kReported.insert(eCurrent).second)
                    {
                        Report("from " + NameOfHandle(eCurrent) + " no keys lead to " + NameOfHandle(eHome),
                               {0, kDistances.GetWay(uiContext, uiItem)});
                    }
                }
                else if (uiDistance > uiMost)
                {
                    uiMost = uiDistance;
                    eMost = eCurrent;
                    kMost = {0, kDistances.GetWay(uiContext, uiItem)};
                }
            });
        if (!bAreAll)
        {
            SetTooManyHistories();
        }
        const std::string kKeys = uiMost > cuiFarthestHome
                                      ? "more than " + std::to_string(cuiFarthestHome) +
                                            " keys, and with longer histories more and more"
                                      : "at most " + std::to_string(uiMost) + " keys";
        m_kResult.m_kMeasures.push_back({kKeys + ", from " + NameOfHandle(eMost), kMost});
    }

    void MeasureWayHome(ObjectHandle_t eHome)
    {
        const std::vector<eC_UInt> kDistances = GetDistances(
            [this, eHome](std::uint32_t uiState) { return Get(uiState).m_eCurrent == eHome; }, true);
        std::uint32_t uiFarthest = 0;
        for (std::uint32_t uiState = 0; uiState < kDistances.size(); ++uiState)
        {
            if (kDistances[uiState] != cuiFar && kDistances[uiState] > kDistances[uiFarthest])
            {
                uiFarthest = uiState;
            }
        }
        Measure("at most " + std::to_string(kDistances[uiFarthest]) + " keys, from " +
                    NameOfHandle(Get(uiFarthest).m_eCurrent),
                uiFarthest);
    }

    void Measure(const std::string& kText, std::uint32_t uiState)
    {
        m_kResult.m_kMeasures.push_back({kText, {uiState, {}}});
    }

    // --- P3, P4, P5 -----------------------------------------------------------------------------------

    void CheckGoingBack()
    {
        std::vector<BackFault_t> kFaults = FindBackFaults(m_kSpace, false);
        if (!std::all_of(kFaults.begin(), kFaults.end(),
                         [this](const BackFault_t& kFault)
                         { return IsPossible(m_kSpace, GetWitness(kFault)); }))
        {
            kFaults = FindBackFaults(m_kSpace, true);
        }
        kFaults.insert(kFaults.end(), m_kSpace.m_kBackFaults.begin(), m_kSpace.m_kBackFaults.end());
        std::set<std::string> kReported;
        for (const BackFault_t& kFault : kFaults)
        {
            if (kReported.count(kFault.m_kText) == 0 && IsPossible(m_kSpace, GetWitness(kFault)))
            {
                kReported.insert(kFault.m_kText);
                Report(kFault.m_kText, GetWitness(kFault));
            }
        }
    }

    static Witness_t GetWitness(const BackFault_t& kFault) { return {kFault.m_uiState, kFault.m_kWay}; }

    void CheckHistory()
    {
        std::set<ObjectHandle_t> kReported;
        for (const Pump_t& kPump : m_kSpace.m_kPumps)
        {
            const std::size_t uiWay = Get(kPump.m_uiTo).m_uiDepth - Get(kPump.m_uiFrom).m_uiDepth;
            if (kReported.insert(Get(kPump.m_uiTo).m_eCurrent).second)
            {
                ReportPump(Get(kPump.m_uiTo).m_eCurrent, uiWay, {kPump.m_uiTo, {}});
            }
        }
        if (m_kSpace.NeedsPushdown() && kReported.empty())
        {
            const Growth_t kGrowth = FindGrowth();
            if (kGrowth.m_uiSteps != 0)
            {
                ReportPump(kGrowth.m_eDialog, kGrowth.m_uiSteps, {0, kGrowth.m_kWay});
            }
        }
    }

    /** A way to a dialog, whose last steps can be repeated for ever. */
    struct Growth_t
    {
        ObjectHandle_t m_eDialog = NO_HANDLE;
        std::size_t m_uiSteps = 0; ///< 0: there is none
        Way_t m_kWay;
    };

    void ReportPump(ObjectHandle_t eDialog, std::size_t uiSteps, const Witness_t& kWitness)
    {
        Report("in " + NameOfHandle(eDialog) + " the last " +
                   (uiSteps == 1 ? "step" : std::to_string(uiSteps) + " steps") +
                   " can be repeated for ever, and each time the history grows",
               kWitness);
    }

    /** A history grows for ever where a frame is entered again before it is left. */
    Growth_t FindGrowth() const
    {
        const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
        for (std::uint32_t uiFrame = 1; uiFrame < kPushdown.m_kFrames.size(); ++uiFrame)
        {
            const Way_t kRound = FindRound(uiFrame);
            if (!kRound.empty())
            {
                Way_t kWay = kPushdown.GetWay(uiFrame);
                kWay.insert(kWay.end(), kRound.begin(), kRound.end());
                return {GetStateOf(kPushdown.m_kFrames[uiFrame].m_uiFirstItem).m_eCurrent, kRound.size(),
                        kWay};
            }
        }
        return {};
    }

    /** @return the way from the beginning of a frame to where it is entered again; empty: there is none */
    Way_t FindRound(std::uint32_t uiFrame) const
    {
        const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
        std::map<std::uint32_t, Way_t> kWays = {{uiFrame, {}}}; // to the beginning of the frame
        States_t kQueue = {uiFrame};
        for (std::size_t uiOn = 0; uiOn < kQueue.size(); ++uiOn)
        {
            for (const Pushdown_t::Caller_t& kCaller : kPushdown.m_kFrames[kQueue[uiOn]].m_kCallers)
            {
                const Pushdown_t::Item_t& kItem = GetItem(kCaller.m_uiItem);
                Way_t kWay = kItem.m_kWay;
                kWay.push_back(kCaller.m_uiStep);
                const Way_t& kRest = kWays[kQueue[uiOn]];
                kWay.insert(kWay.end(), kRest.begin(), kRest.end());
                if (kItem.m_uiFrame == uiFrame)
                {
                    return kWay;
                }
                if (kWays.emplace(kItem.m_uiFrame, kWay).second)
                {
                    kQueue.push_back(kItem.m_uiFrame);
                }
            }
        }
        return {};
    }

    eC_UInt GetAmount(FlowClaim_t::EAmount eAmount, const ReachedState_t& kState) const
    {
        eC_UInt uiPopups = 0;
        switch (eAmount)
        {
        case FlowClaim_t::OBJECTS:
            return kState.m_uiObjects;
        case FlowClaim_t::BYTES:
            return kState.m_uiBytes;
        case FlowClaim_t::ENTRIES:
            return m_kSpace.m_kHistories.GetHeight(kState.m_uiHistory);
        case FlowClaim_t::POPUPS:
            break;
        }
        for (std::uint64_t uiBits = kState.m_uiListed; uiBits != 0; uiBits &= uiBits - 1)
        {
            ++uiPopups;
        }
        return uiPopups;
    }

    void MeasureMost(const std::string& kWhat, FlowClaim_t::EAmount eAmount)
    {
        std::uint32_t uiMost = 0;
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            uiMost = GetAmount(eAmount, Get(uiState)) > GetAmount(eAmount, Get(uiMost)) ? uiState : uiMost;
        }
        Measure(std::to_string(GetAmount(eAmount, Get(uiMost))) + " " + kWhat, uiMost);
    }

    void CheckWorstCase()
    {
        for (const FlowClaim_t& kClaim : m_kSubject.GetClaims())
        {
            if (kClaim.m_eKind == FlowClaim_t::AT_MOST)
            {
                CheckAtMost(kClaim);
            }
        }
        MeasureMost("objects", FlowClaim_t::OBJECTS);
        // Where histories grow for ever, these do: the most that was seen.
        const std::string kSeen = m_kSpace.m_bIsComplete ? "" : ", as far as was explored";
        if (CountsBytes())
        {
            MeasureMost("bytes of heap" + kSeen, FlowClaim_t::BYTES);
        }
        MeasureMost("history entries" + kSeen, FlowClaim_t::ENTRIES);
        MeasureMost("popups listed", FlowClaim_t::POPUPS);
    }

    eC_Bool CountsBytes() const { return Get(0).m_uiBytes != 0; }

    void CheckAtMost(const FlowClaim_t& kClaim)
    {
        const std::uint32_t uiState =
            FindState([this, &kClaim](const ReachedState_t& kState)
                      { return GetAmount(kClaim.m_eAmount, kState) > kClaim.m_uiMost; });
        const eC_UInt uiLine = kClaim.m_kPosition.m_uiLine;
        if (uiState != cuiNoState)
        {
            Report(kClaim.m_kText + ": " + std::to_string(GetAmount(kClaim.m_eAmount, Get(uiState))) +
                       " in " + NameOfHandle(Get(uiState).m_eCurrent),
                   {uiState, {}}, uiLine);
        }
        else if (kClaim.m_eAmount == FlowClaim_t::BYTES && !CountsBytes())
        {
            Warn(kClaim.m_kText + ": this program does not count bytes", uiLine);
        }
        else if (kClaim.m_eAmount == FlowClaim_t::BYTES || kClaim.m_eAmount == FlowClaim_t::ENTRIES)
        {
            CheckGrowth(kClaim);
        }
    }

    /** Whatever the most is: a history that grows for ever comes to have more, and its entries take bytes. */
    void CheckGrowth(const FlowClaim_t& kClaim)
    {
        const Growth_t kGrowth = m_kSpace.NeedsPushdown() ? FindGrowth() : Growth_t();
        if (!m_kSpace.m_kPumps.empty() || kGrowth.m_uiSteps != 0)
        {
            Report(kClaim.m_kText + ": the history grows for ever",
                   m_kSpace.m_kPumps.empty() ? Witness_t{0, kGrowth.m_kWay}
                                             : Witness_t{m_kSpace.m_kPumps.front().m_uiTo, {}},
                   kClaim.m_kPosition.m_uiLine);
        }
        else if (m_kSpace.NeedsPushdown())
        {
            m_kResult.m_kBound = "up to depth " + std::to_string(m_kSpace.m_uiDepth);
        }
    }

    // --- P6 -------------------------------------------------------------------------------------------

    void CheckPopups()
    {
        for (std::size_t uiPopup = 0; uiPopup < m_kSpace.m_kPopups.size(); ++uiPopup)
        {
            const std::uint64_t uiBit = std::uint64_t(1) << uiPopup;
            const std::uint32_t uiListed =
                FindState([uiBit](const ReachedState_t& kState) { return (kState.m_uiListed & uiBit) != 0; });
            const std::uint32_t uiShown =
                FindState([uiBit](const ReachedState_t& kState) { return (kState.m_uiShown & uiBit) != 0; });
            const std::string kName = NameOfHandle(m_kSpace.m_kPopups[uiPopup]);
            if (uiListed != cuiNoState && uiShown == cuiNoState)
            {
                Report(kName + " is listed and never shown", {uiListed, {}},
                       m_kSubject.GetLine(m_kSpace.m_kPopups[uiPopup]));
            }
            else
            {
                CheckWaiting(uiBit, kName, m_kSubject.GetLine(m_kSpace.m_kPopups[uiPopup]));
            }
        }
    }

    eC_Bool IsWaiting(std::uint32_t uiState, std::uint64_t uiBit) const
    {
        return (Get(uiState).m_uiListed & uiBit) != 0 && (Get(uiState).m_uiShown & uiBit) == 0;
    }

    void CheckWaiting(std::uint64_t uiBit, const std::string& kName, eC_UInt uiLine)
    {
        // Whatever may happen may end the waiting: signals too.
        States_t kQueue;
        std::vector<eC_Bool> kEnds(m_kSpace.m_kStates.size(), false);
        for (std::uint32_t uiState = 0; uiState < kEnds.size(); ++uiState)
        {
            kEnds[uiState] = !IsWaiting(uiState, uiBit) || IsOpen(uiState);
            if (kEnds[uiState])
            {
                kQueue.push_back(uiState);
            }
        }
        while (!kQueue.empty())
        {
            const std::uint32_t uiState = kQueue.back();
            kQueue.pop_back();
            for (const Reverse_t& kReverse : m_kReverse[uiState])
            {
                if (!kEnds[kReverse.m_uiSource])
                {
                    kEnds[kReverse.m_uiSource] = true;
                    kQueue.push_back(kReverse.m_uiSource);
                }
            }
        }
        for (std::uint32_t uiState = 0; uiState < kEnds.size(); ++uiState)
        {
            if (!kEnds[uiState])
            {
                ReportWaiting(kName, {uiState, {}}, uiLine);
                return;
            }
        }
        if (m_kSpace.NeedsPushdown() && CheckWaitingExactly(uiBit, kName, uiLine))
        {
            return;
        }
        const States_t kCircle =
            FindCircle([this, uiBit](std::uint32_t uiState) { return IsWaiting(uiState, uiBit); });
        if (!kCircle.empty() && IsPossible(m_kSpace, {kCircle.front(), StepsAlong(kCircle)}))
        {
            ReportCircle(kName, {kCircle.front(), StepsAlong(kCircle)}, uiLine);
        }
        else if (m_kSpace.NeedsPushdown())
        {
            CheckCircleExactly(uiBit, kName, uiLine);
        }
    }

    void ReportWaiting(const std::string& kName, const Witness_t& kWitness, eC_UInt uiLine)
    {
        Report(kName + " waits for ever: nothing shows or closes it", kWitness, uiLine);
    }

    void ReportCircle(const std::string& kName, const Witness_t& kWitness, eC_UInt uiLine)
    {
        Report(kName + " waits for ever when nobody presses a key: others run out and come again", kWitness,
               uiLine);
    }

    eC_Bool CheckWaitingExactly(std::uint64_t uiBit, const std::string& kName, eC_UInt uiLine)
    {
        CPushdownDistances kDistances(
            m_kSpace, [this, uiBit](std::uint32_t uiState) { return !IsWaiting(uiState, uiBit); },
            [](const CheckedStep_t&) { return 0U; }, 0);
        eC_Bool bIsReported = false;
        VisitFar(
            kDistances, 0, [](std::uint32_t) { return true; },
            [&](std::uint32_t uiItem, eC_UInt, std::uint32_t uiContext)
            {
                if (!bIsReported)
                {
                    ReportWaiting(kName, {0, kDistances.GetWay(uiContext, uiItem)}, uiLine);
                    bIsReported = true;
                }
            });
        return bIsReported;
    }

    void CheckCircleExactly(std::uint64_t uiBit, const std::string& kName, eC_UInt uiLine)
    {
        const CPushdownRuns kRuns(
            m_kSpace, [this, uiBit](std::uint32_t uiState) { return IsWaiting(uiState, uiBit); }, false);
        for (std::uint32_t uiItem = 0; uiItem < m_kSpace.m_kPushdown.m_kItems.size(); ++uiItem)
        {
            if (kRuns.IsBad(uiItem))
            {
                std::uint32_t uiLast = 0;
                eC_Bool bEnds = false;
                const Witness_t kWitness = GetRun(kRuns, uiItem, uiLast, bEnds);
                if (IsPossible(m_kSpace, kWitness))
                {
                    ReportCircle(kName, kWitness, uiLine);
                    return;
                }
            }
        }
    }

    static Witness_t GetRun(const CPushdownRuns& kRuns, std::uint32_t uiItem, std::uint32_t& uiLastOUT,
                            eC_Bool& bEndsOUT)
    {
        Way_t kWay = kRuns.GetWay(uiItem);
        const Way_t kRun = kRuns.GetRun(uiItem, uiLastOUT, bEndsOUT);
        kWay.insert(kWay.end(), kRun.begin(), kRun.end());
        return {0, kWay};
    }

    /** @return states that times alone lead through in a circle, without leaving the filter */
    States_t FindCircle(const Filter_t& fnIsIn) const
    {
        enum EColour : unsigned char
        {
            WHITE,
            GREY,
            BLACK
        };
        std::vector<EColour> kColours;
        kColours.resize(m_kSpace.m_kStates.size(), WHITE);
        States_t kPath;
        for (std::uint32_t uiRoot = 0; uiRoot < kColours.size(); ++uiRoot)
        {
            if (kColours[uiRoot] != WHITE || !fnIsIn(uiRoot))
            {
                continue;
            }
            std::vector<std::pair<std::uint32_t, std::uint32_t>> kStack = {{uiRoot, 0}};
            kColours[uiRoot] = GREY;
            while (!kStack.empty())
            {
                const std::uint32_t uiState = kStack.back().first;
                const std::uint32_t uiStep = kStack.back().second++;
                if (uiStep == Get(uiState).m_uiSteps)
                {
                    kColours[uiState] = BLACK;
                    kStack.pop_back();
                    continue;
                }
                const CheckedStep_t& kStep = m_kSpace.GetSteps(Get(uiState))[uiStep];
                if (GetKind(kStep) != CheckedInput_t::EXPIRY || !fnIsIn(kStep.m_uiTarget))
                {
                    continue;
                }
                if (kColours[kStep.m_uiTarget] == GREY)
                {
                    auto kFirst = std::find_if(kStack.begin(), kStack.end(),
                                               [&kStep](const auto& kOnPath)
                                               { return kOnPath.first == kStep.m_uiTarget; });
                    for (; kFirst != kStack.end(); ++kFirst)
                    {
                        kPath.push_back(kFirst->first);
                    }
                    kPath.push_back(kStep.m_uiTarget);
                    return kPath;
                }
                if (kColours[kStep.m_uiTarget] == WHITE)
                {
                    kColours[kStep.m_uiTarget] = GREY;
                    kStack.emplace_back(kStep.m_uiTarget, 0);
                }
            }
        }
        return kPath;
    }

    /** @return the steps of times from each state to the next one */
    std::vector<std::uint32_t> StepsAlong(const States_t& kStates) const
    {
        std::vector<std::uint32_t> kSteps;
        for (std::size_t uiState = 1; uiState < kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = Get(kStates[uiState - 1]);
            std::uint32_t uiStep = kState.m_uiFirstStep;
            while (m_kSpace.m_kSteps[uiStep].m_uiTarget != kStates[uiState] ||
                   GetKind(m_kSpace.m_kSteps[uiStep]) != CheckedInput_t::EXPIRY)
            {
                ++uiStep;
            }
            kSteps.push_back(uiStep);
        }
        return kSteps;
    }

    // --- P7, P8 ---------------------------------------------------------------------------------------

    void CheckFocus()
    {
        std::set<std::string> kReported;
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = Get(uiState);
            std::string kText;
            switch (kState.m_eFocusFault)
            {
            case FOCUS_NOWHERE:
                kText = "in " + NameOfHandle(kState.m_eCurrent) + " nothing has the focus";
                break;
            case FOCUS_ANONYMOUS:
                kText = "in " + NameOfHandle(kState.m_eCurrent) +
                        " the focus is on an object without identifier, which cannot be found again";
                break;
            case FOCUS_AMBIGUOUS:
                kText = "in " + NameOfHandle(kState.m_eCurrent) + " the focus is on one of several " +
                        NameOfHandle(kState.m_eFocus);
                break;
            case FOCUS_RIGHT:
                continue;
            }
            if (kReported.insert(kText).second)
            {
                Report(kText, {uiState, {}}, m_kSubject.GetLine(kState.m_eCurrent));
            }
        }
    }

    void CheckEnding()
    {
        const std::uint32_t uiHanging =
            FindState([](const ReachedState_t& kState) { return kState.m_bIsHanging; });
        if (uiHanging != cuiNoState)
        {
            Report("a stepwise way back never ends", {uiHanging, {}});
        }
    }

    // --- P9 -------------------------------------------------------------------------------------------

    void CheckLeftAlone()
    {
        std::uint64_t uiAll = 0;
        const std::vector<FlowClaim_t>& kClaims = m_kSubject.GetClaims();
        for (std::size_t uiClaim = 0; uiClaim < kClaims.size(); ++uiClaim)
        {
            if (kClaims[uiClaim].m_eKind == FlowClaim_t::LEFT_ALONE)
            {
                uiAll |= std::uint64_t(1) << uiClaim;
                CheckLeftAlone(uiClaim, kClaims[uiClaim]);
            }
        }
        CheckStaying(uiAll);
    }

    /** A state that no claim covers stays where it is. */
    void CheckStaying(std::uint64_t uiClaims)
    {
        std::set<std::string> kReported;
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = Get(uiState);
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps; ++uiStep)
            {
                const CheckedStep_t& kStep = m_kSpace.m_kSteps[uiStep];
                if ((kState.m_uiFrom & uiClaims) != 0 || GetKind(kStep) != CheckedInput_t::EXPIRY ||
                    Get(kStep.m_uiTarget).m_eCurrent == kState.m_eCurrent)
                {
                    continue;
                }
                const std::string kText = NameOfHandle(kState.m_eCurrent) +
                                          " does not stay: " + m_kSpace.m_kInputs[kStep.m_uiInput].m_kTitle +
                                          ", and " + NameOfHandle(Get(kStep.m_uiTarget).m_eCurrent) +
                                          " comes";
                if (kReported.insert(kText).second)
                {
                    Report(kText, {uiState, {uiStep}});
                }
            }
        }
    }

    void CheckLeftAlone(std::size_t uiClaim, const FlowClaim_t& kClaim)
    {
        const std::uint64_t uiBit = std::uint64_t(1) << uiClaim;
        // A state is bad if times alone may never bring about what is claimed: all are, until a way is found
        // that each order of the times ends on.
        std::vector<eC_Bool> kBad(m_kSpace.m_kStates.size(), true);
        std::vector<eC_UInt> kBadSteps(m_kSpace.m_kStates.size(), 0);
        States_t kQueue;
        for (std::uint32_t uiState = 0; uiState < kBad.size(); ++uiState)
        {
            const ReachedState_t& kState = Get(uiState);
            for (std::uint32_t uiStep = 0; uiStep < kState.m_uiSteps; ++uiStep)
            {
                kBadSteps[uiState] +=
                    GetKind(m_kSpace.GetSteps(kState)[uiStep]) == CheckedInput_t::EXPIRY ? 1U : 0U;
            }
            if ((kState.m_uiWhen & uiBit) != 0 || IsOpen(uiState))
            {
                kBad[uiState] = false;
                kQueue.push_back(uiState);
            }
        }
        while (!kQueue.empty())
        {
            const std::uint32_t uiState = kQueue.back();
            kQueue.pop_back();
            for (const Reverse_t& kReverse : m_kReverse[uiState])
            {
                if (GetKind(m_kSpace.m_kSteps[kReverse.m_uiStep]) == CheckedInput_t::EXPIRY &&
                    kBad[kReverse.m_uiSource] && --kBadSteps[kReverse.m_uiSource] == 0)
                {
                    kBad[kReverse.m_uiSource] = false;
                    kQueue.push_back(kReverse.m_uiSource);
                }
            }
        }
        if (!ReportBad(kBad, uiBit, kClaim) && m_kSpace.NeedsPushdown())
        {
            CheckLeftAloneExactly(uiBit, kClaim);
        }
    }

    void CheckLeftAloneExactly(std::uint64_t uiBit, const FlowClaim_t& kClaim)
    {
        const CPushdownRuns kRuns(
            m_kSpace, [this, uiBit](std::uint32_t uiState) { return (Get(uiState).m_uiWhen & uiBit) == 0; },
            true);
        for (std::uint32_t uiItem = 0; uiItem < m_kSpace.m_kPushdown.m_kItems.size(); ++uiItem)
        {
            if (!kRuns.IsBad(uiItem) || (GetStateOf(uiItem).m_uiFrom & uiBit) == 0)
            {
                continue;
            }
            std::uint32_t uiLast = 0;
            eC_Bool bEnds = false;
            const Witness_t kWitness = GetRun(kRuns, uiItem, uiLast, bEnds);
            if (IsPossible(m_kSpace, kWitness))
            {
                ReportLeftAlone(kClaim, GetStateOf(uiItem).m_eCurrent,
                                bEnds ? GetStateOf(uiLast).m_eCurrent : NO_HANDLE, !bEnds, kWitness);
                return;
            }
        }
    }

    void ReportLeftAlone(const FlowClaim_t& kClaim, ObjectHandle_t eFrom, ObjectHandle_t eLast,
                         eC_Bool bGoesRound, const Witness_t& kWitness)
    {
        Report(kClaim.m_kText + ": " + NameOfHandle(eFrom) +
                   (bGoesRound ? " goes round in circles" : " ends in " + NameOfHandle(eLast)),
               kWitness, kClaim.m_kPosition.m_uiLine);
    }

    eC_Bool ReportBad(const std::vector<eC_Bool>& kBad, std::uint64_t uiBit, const FlowClaim_t& kClaim)
    {
        for (std::uint32_t uiState = 0; uiState < kBad.size(); ++uiState)
        {
            if (!kBad[uiState] || (Get(uiState).m_uiFrom & uiBit) == 0)
            {
                continue;
            }
            States_t kWay = {uiState};
            std::uint32_t uiNext = NextBad(kBad, uiState);
            while (uiNext != cuiNoState && std::find(kWay.begin(), kWay.end(), uiNext) == kWay.end())
            {
                kWay.push_back(uiNext);
                uiNext = NextBad(kBad, uiNext);
            }
            const Witness_t kWitness = {uiState, StepsAlong(kWay)};
            if (!IsPossible(m_kSpace, kWitness))
            {
                continue;
            }
            ReportLeftAlone(kClaim, Get(uiState).m_eCurrent, Get(kWay.back()).m_eCurrent,
                            uiNext != cuiNoState, kWitness);
            return true;
        }
        return false;
    }

    std::uint32_t NextBad(const std::vector<eC_Bool>& kBad, std::uint32_t uiState) const
    {
        const ReachedState_t& kState = Get(uiState);
        for (std::uint32_t uiStep = 0; uiStep < kState.m_uiSteps; ++uiStep)
        {
            const CheckedStep_t& kStep = m_kSpace.GetSteps(kState)[uiStep];
            if (GetKind(kStep) == CheckedInput_t::EXPIRY && kBad[kStep.m_uiTarget])
            {
                return kStep.m_uiTarget;
            }
        }
        return cuiNoState;
    }

    // --- P10, P11, P12 --------------------------------------------------------------------------------

    void CheckClaims()
    {
        const std::vector<FlowClaim_t>& kClaims = m_kSubject.GetClaims();
        for (std::size_t uiClaim = 0; uiClaim < kClaims.size(); ++uiClaim)
        {
            const std::uint64_t uiBit = std::uint64_t(1) << uiClaim;
            const FlowClaim_t& kClaim = kClaims[uiClaim];
            switch (kClaim.m_eKind)
            {
            case FlowClaim_t::NEVER:
                ReportFirst(kClaim,
                            [uiBit](const ReachedState_t& kState) { return (kState.m_uiWhen & uiBit) != 0; });
                break;
            case FlowClaim_t::ALWAYS:
                ReportFirst(kClaim, [uiBit](const ReachedState_t& kState)
                            { return (kState.m_uiFrom & uiBit) != 0 && (kState.m_uiWhen & uiBit) == 0; });
                break;
            case FlowClaim_t::WITHIN:
                CheckWithin(uiBit, kClaim);
                break;
            case FlowClaim_t::LEFT_ALONE:
            case FlowClaim_t::HARMLESS:
            case FlowClaim_t::AT_MOST:
                break;
            }
        }
    }

    template <typename Condition_t>
    void ReportFirst(const FlowClaim_t& kClaim, Condition_t fnIsWrong)
    {
        const std::uint32_t uiState = FindState(fnIsWrong);
        if (uiState != cuiNoState)
        {
            Report(kClaim.m_kText + ": not in " + NameOfHandle(Get(uiState).m_eCurrent), {uiState, {}},
                   kClaim.m_kPosition.m_uiLine);
        }
    }

    void CheckWithin(std::uint64_t uiBit, const FlowClaim_t& kClaim)
    {
        const std::vector<eC_UInt> kDistances =
            GetDistances([this, uiBit](std::uint32_t uiState)
                         { return (Get(uiState).m_uiWhen & uiBit) != 0 || IsOpen(uiState); },
                         false);
        for (std::uint32_t uiState = 0; uiState < kDistances.size(); ++uiState)
        {
            if ((Get(uiState).m_uiFrom & uiBit) != 0 && kDistances[uiState] > kClaim.m_uiKeys)
            {
                ReportWithin(kClaim, uiState,
                             kDistances[uiState] == cuiFar
                                 ? "no keys are enough"
                                 : "it takes " + std::to_string(kDistances[uiState]) + " keys",
                             {uiState, {}});
                return;
            }
        }
        if (m_kSpace.NeedsPushdown())
        {
            CheckWithinExactly(uiBit, kClaim);
        }
    }

    void ReportWithin(const FlowClaim_t& kClaim, std::uint32_t uiState, const std::string& kNeeded,
                      const Witness_t& kWitness)
    {
        Report(kClaim.m_kText + ": from " + NameOfHandle(Get(uiState).m_eCurrent) + " " + kNeeded, kWitness,
               kClaim.m_kPosition.m_uiLine);
    }

    void CheckWithinExactly(std::uint64_t uiBit, const FlowClaim_t& kClaim)
    {
        CPushdownDistances kDistances(
            m_kSpace, [this, uiBit](std::uint32_t uiState) { return (Get(uiState).m_uiWhen & uiBit) != 0; },
            CountKeys(false), kClaim.m_uiKeys);
        eC_Bool bIsReported = false;
        VisitFar(
            kDistances, kClaim.m_uiKeys,
            [this, uiBit](std::uint32_t uiState) { return (Get(uiState).m_uiFrom & uiBit) != 0; },
            [&](std::uint32_t uiItem, eC_UInt uiDistance, std::uint32_t uiContext)
            {
                if (!bIsReported)
                {
                    ReportWithin(kClaim, GetItem(uiItem).m_uiState,
                                 uiDistance == cuiFar ? "no keys are enough" : "it takes more keys",
                                 {0, kDistances.GetWay(uiContext, uiItem)});
                    bIsReported = true;
                }
            });
    }

    void CheckSecondPress()
    {
        const std::vector<FlowClaim_t>& kClaims = m_kSubject.GetClaims();
        for (std::size_t uiClaim = 0; uiClaim < kClaims.size(); ++uiClaim)
        {
            const std::uint64_t uiBit = std::uint64_t(1) << uiClaim;
            if (kClaims[uiClaim].m_eKind == FlowClaim_t::HARMLESS &&
                !CheckHarmless(uiBit, kClaims[uiClaim]) && m_kSpace.NeedsPushdown())
            {
                CheckHarmlessExactly(uiBit, kClaims[uiClaim]);
            }
        }
    }

    eC_Bool IsMeant(const FlowClaim_t& kClaim, const ReachedState_t& kState, const CheckedStep_t& kStep) const
    {
        const CheckedInput_t& kInput = m_kSpace.m_kInputs[kStep.m_uiInput];
        if (kClaim.m_eButton == NO_HANDLE)
        {
            return kInput.m_eKind == CheckedInput_t::KEY && kInput.m_uiNumber == kClaim.m_uiKey;
        }
        return kInput.m_eKind == CheckedInput_t::TOUCH
                   ? static_cast<ObjectHandle_t>(kInput.m_uiNumber) == kClaim.m_eButton
                   : kInput.m_bIsActivation && kState.m_eFocus == kClaim.m_eButton;
    }

    eC_Bool CheckHarmless(std::uint64_t uiBit, const FlowClaim_t& kClaim)
    {
        for (std::uint32_t uiState = 0; uiState < m_kSpace.m_kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = Get(uiState);
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps && (kState.m_uiFrom & uiBit) != 0; ++uiStep)
            {
                const CheckedStep_t& kFirst = m_kSpace.m_kSteps[uiStep];
                const std::uint32_t uiSecond = IsMeant(kClaim, kState, kFirst)
                                                   ? FindStep(kFirst.m_uiTarget, kFirst.m_uiInput)
                                                   : cuiNoState;
                if (uiSecond != cuiNoState &&
                    IsHarm(kFirst.m_uiTarget, m_kSpace.m_kSteps[uiSecond].m_uiTarget))
                {
                    ReportHarm(kClaim, kFirst.m_uiTarget, uiSecond, {uiState, {uiStep, uiSecond}});
                    return true;
                }
            }
        }
        return false;
    }

    void ReportHarm(const FlowClaim_t& kClaim, std::uint32_t uiBetween, std::uint32_t uiSecond,
                    const Witness_t& kWitness)
    {
        Report(kClaim.m_kText + ": the second press leads from " + NameOfHandle(Get(uiBetween).m_eCurrent) +
                   " to " + NameOfHandle(Get(m_kSpace.m_kSteps[uiSecond].m_uiTarget).m_eCurrent),
               kWitness, kClaim.m_kPosition.m_uiLine);
    }

    /** An item after a step, and the way from the start to the frame of the item before it. */
    struct Landing_t
    {
        std::uint32_t m_uiItem;
        Way_t m_kWay;
    };

    struct Exit_t
    {
        std::uint32_t m_uiFrame;
        std::uint32_t m_uiExit;
        Way_t m_kInner; ///< the way from the beginning of the frame to that of the item
    };

    /** @return where the edge of an item leads, with every caller of its frame */
    std::vector<Landing_t> GetLandings(const Pushdown_t::Item_t& kItem, const Pushdown_t::Edge_t& kEdge) const
    {
        const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
        if (kEdge.m_eKind != Pushdown_t::EXIT)
        {
            return {{kEdge.m_eKind == Pushdown_t::INSIDE
                         ? kEdge.m_uiTarget
                         : kPushdown.m_kFrames[kEdge.m_uiTarget].m_uiFirstItem,
                     kPushdown.GetWay(kItem.m_uiFrame)}};
        }
        // Each exit to a caller may be an exit of the caller's frame; one visit of each shows all landings.
        std::vector<Landing_t> kLandings;
        std::vector<Exit_t> kExits = {{kItem.m_uiFrame, kEdge.m_uiTarget, {}}};
        std::set<std::pair<std::uint32_t, std::uint32_t>> kVisited;
        while (!kExits.empty())
        {
            const Exit_t kExit = kExits.back();
            kExits.pop_back();
            if (kVisited.emplace(kExit.m_uiFrame, kExit.m_uiExit).second)
            {
                Leave(kExit, kExits, kLandings);
            }
        }
        return kLandings;
    }

    void Leave(const Exit_t& kExit, std::vector<Exit_t>& kExits, std::vector<Landing_t>& kLandings) const
    {
        const Pushdown_t& kPushdown = m_kSpace.m_kPushdown;
        const Pushdown_t::Frame_t& kFrame = kPushdown.m_kFrames[kExit.m_uiFrame];
        for (std::size_t uiCaller = 0; uiCaller < kFrame.m_kCallers.size(); ++uiCaller)
        {
            const Pushdown_t::Caller_t& kCaller = kFrame.m_kCallers[uiCaller];
            const Pushdown_t::Item_t& kFrom = GetItem(kCaller.m_uiItem);
            const Pushdown_t::Return_t& kReturn = kFrame.m_kReturns[uiCaller][kExit.m_uiExit];
            Way_t kWay = kFrom.m_kWay;
            kWay.push_back(kCaller.m_uiStep);
            kWay.insert(kWay.end(), kExit.m_kInner.begin(), kExit.m_kInner.end());
            if (kReturn.m_eKind == Pushdown_t::Return_t::TO_EXIT)
            {
                kExits.push_back({kFrom.m_uiFrame, kReturn.m_uiTarget, kWay});
            }
            else if (kReturn.m_eKind == Pushdown_t::Return_t::TO_ITEM)
            {
                Way_t kWhole = kPushdown.GetWay(kFrom.m_uiFrame);
                kWhole.insert(kWhole.end(), kWay.begin(), kWay.end());
                kLandings.push_back({kReturn.m_uiTarget, kWhole});
            }
        }
    }

    void CheckHarmlessExactly(std::uint64_t uiBit, const FlowClaim_t& kClaim)
    {
        for (const Pushdown_t::Item_t& kItem : m_kSpace.m_kPushdown.m_kItems)
        {
            for (const Pushdown_t::Edge_t& kEdge : kItem.m_kEdges)
            {
                const CheckedStep_t& kStep = m_kSpace.m_kSteps[kEdge.m_uiStep];
                if ((Get(kItem.m_uiState).m_uiFrom & uiBit) != 0 &&
                    IsMeant(kClaim, Get(kItem.m_uiState), kStep) && ReportSecond(kClaim, kItem, kEdge))
                {
                    return;
                }
            }
        }
    }

    eC_Bool ReportSecond(const FlowClaim_t& kClaim, const Pushdown_t::Item_t& kItem,
                         const Pushdown_t::Edge_t& kEdge)
    {
        for (const Landing_t& kLanding : GetLandings(kItem, kEdge))
        {
            const std::uint32_t uiBetween = GetItem(kLanding.m_uiItem).m_uiState;
            const std::uint32_t uiSecond = FindStep(uiBetween, m_kSpace.m_kSteps[kEdge.m_uiStep].m_uiInput);
            if (uiSecond != cuiNoState && IsHarm(uiBetween, m_kSpace.m_kSteps[uiSecond].m_uiTarget))
            {
                Way_t kWay = kLanding.m_kWay;
                kWay.insert(kWay.end(), kItem.m_kWay.begin(), kItem.m_kWay.end());
                kWay.push_back(kEdge.m_uiStep);
                kWay.push_back(uiSecond);
                ReportHarm(kClaim, uiBetween, uiSecond, {0, kWay});
                return true;
            }
        }
        return false;
    }

    std::uint32_t FindStep(std::uint32_t uiState, std::uint16_t uiInput) const
    {
        const ReachedState_t& kState = Get(uiState);
        for (std::uint32_t uiStep = kState.m_uiFirstStep; uiStep < kState.m_uiFirstStep + kState.m_uiSteps;
             ++uiStep)
        {
            if (m_kSpace.m_kSteps[uiStep].m_uiInput == uiInput)
            {
                return uiStep;
            }
        }
        return cuiNoState;
    }

    eC_Bool IsHarm(std::uint32_t uiFirst, std::uint32_t uiSecond) const
    {
        return Get(uiFirst).m_uiOutcome != Get(uiSecond).m_uiOutcome ||
               Get(uiFirst).m_uiHistory != Get(uiSecond).m_uiHistory;
    }

    void CheckErrors()
    {
        ReportErrors([](const std::string&) { return true; });
    }

    const CCheckSubject& m_kSubject;
    const StateSpace_t& m_kSpace;
    std::vector<std::vector<Reverse_t>> m_kReverse;
    PropertyResult_t m_kResult{};
};

/** @return the inputs of a witness, and what each of its steps does to timers, the start first */
std::vector<std::uint16_t> GetInputs(const StateSpace_t& kSpace, const Witness_t& kWitness,
                                     std::vector<const TimerChanges_t*>& kChangesOUT)
{
    for (const std::uint32_t uiState : kSpace.GetStates(kWitness.m_uiState))
    {
        kChangesOUT.push_back(&kSpace.m_kChanges[kSpace.m_kStates[uiState].m_uiChanges]);
    }
    std::vector<std::uint16_t> kInputs = kSpace.GetPath(kWitness.m_uiState);
    for (const std::uint32_t uiStep : kWitness.m_kSteps)
    {
        kInputs.push_back(kSpace.m_kSteps[uiStep].m_uiInput);
        kChangesOUT.push_back(&kSpace.m_kChanges[kSpace.m_kSteps[uiStep].m_uiChanges]);
    }
    return kInputs;
}
} // namespace

eC_UInt PropertyResult_t::CountUnexpected() const
{
    return static_cast<eC_UInt>(std::count_if(m_kFindings.begin(), m_kFindings.end(),
                                              [](const Finding_t& kFinding)
                                              { return kFinding.m_kReason.empty(); }));
}

std::vector<PropertyResult_t> CheckProperties(const CCheckSubject& kSubject, const StateSpace_t& kSpace,
                                              eC_UInt uiProperties)
{
    CPropertyChecker kChecker(kSubject, kSpace);
    std::vector<PropertyResult_t> kResults;
    for (eC_UInt uiProperty = 1; uiProperty <= cuiProperties; ++uiProperty)
    {
        if ((uiProperties >> uiProperty & 1U) != 0)
        {
            kResults.push_back(kChecker.Check(uiProperty));
        }
    }
    return kResults;
}

std::vector<std::string> MakeScenario(const StateSpace_t& kSpace, const Witness_t& kWitness)
{
    std::vector<const TimerChanges_t*> kChanges;
    const std::vector<std::uint16_t> kInputs = GetInputs(kSpace, kWitness, kChanges);
    const eC_Bool bHasTimers =
        std::any_of(kChanges.begin(), kChanges.end(),
                    [&kSpace](const TimerChanges_t* pk) { return pk != kSpace.m_kChanges.data(); });
    std::vector<eC_UInt> kPauses(kInputs.size(), 0);
    // One more step, which is not taken: after it the user pauses for a moment.
    eC_Bool bHasPauses = bHasTimers && FindPauses(kChanges, {}, true, 1, kPauses);
    std::vector<std::string> kLines = {"power-on"};
    for (std::size_t uiStep = 0; uiStep < kInputs.size(); ++uiStep)
    {
        const CheckedInput_t& kInput = kSpace.m_kInputs[kInputs[uiStep]];
        if (kInput.m_eKind == CheckedInput_t::EXPIRY)
        {
            kLines.push_back("# " + kInput.m_kTitle);
        }
        if (bHasPauses)
        {
            kLines.push_back("advance " + std::to_string(kPauses[uiStep]));
        }
        if (kInput.m_eKind != CheckedInput_t::EXPIRY)
        {
            kLines.push_back(kInput.m_kLine);
        }
    }
    return kLines;
}

std::string DescribeWitness(const StateSpace_t& kSpace, const Witness_t& kWitness)
{
    std::vector<const TimerChanges_t*> kChanges;
    std::string kText;
    for (const std::uint16_t uiInput : GetInputs(kSpace, kWitness, kChanges))
    {
        kText += (kText.empty() ? "" : ", ") + kSpace.m_kInputs[uiInput].m_kTitle;
    }
    return kText.empty() ? "at the start" : kText;
}
