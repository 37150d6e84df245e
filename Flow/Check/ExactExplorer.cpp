// SPDX-License-Identifier: MIT
#include "Flow/Check/ExactExplorer.h"

#include "Flow/Check/WaysBack.h"

#include <algorithm>
#include <cstring>
#include <set>

StateSpace_t CExactExplorer::ExploreExactly(const ExplorerBounds_t& kBounds, std::string& kObstacleOUT)
{
    ExploreUpTo(kBounds);
    if (m_kSpace.m_bIsComplete)
    {
        return std::move(m_kSpace);
    }
    const std::size_t uiPumps = m_kSpace.m_kPumps.size();
    const std::size_t uiMost = m_kSpace.m_kStates.size() + kBounds.m_uiStates;
    const std::vector<Pushdown_t::Item_t>& kItems = m_kSpace.m_kPushdown.m_kItems;
    AddFrame(0);
    for (std::uint32_t uiItem = 0; uiItem < kItems.size() && m_kObstacle.empty(); ++uiItem)
    {
        TakeSteps(uiItem);
        if (m_fnProgress)
        {
            m_fnProgress({kItems.size(), uiItem + 1U, m_kSpace.m_uiDepth});
        }
        if (m_kSpace.m_kStates.size() > uiMost)
        {
            m_kObstacle = "more than " + std::to_string(uiMost) + " states";
        }
    }
    if (m_kObstacle.empty())
    {
        // Further ones are not the shortest ways to what they show.
        m_kSpace.m_kPumps.resize(uiPumps);
        KeepProvenPumps();
        GoBackEverywhere();
    }
    kObstacleOUT = m_kObstacle;
    m_kSpace.m_bIsExact = m_kObstacle.empty();
    return std::move(m_kSpace);
}

// --- Controls and symbols --------------------------------------------------------------------------------

/** A control with the times of the timers that run. */
std::uint32_t CExactExplorer::GetControl(std::uint32_t uiState)
{
    const ReachedState_t& kState = m_kSpace.m_kStates[uiState];
    const std::uint32_t uiZone = m_kZoneNumbers.Get(m_kSpace.m_kZones[kState.m_uiZone].Describe());
    return m_kControlNumbers
        .emplace(std::make_pair(kState.m_uiControl, uiZone),
                 static_cast<std::uint32_t>(m_kControlNumbers.size()))
        .first->second;
}

/** The top entry with the summary of what lies below it. */
std::uint32_t CExactExplorer::GetSymbol(std::uint32_t uiHistory)
{
    if (uiHistory == CStacks::cuiEmpty)
    {
        return cuiNoState;
    }
    const std::uint32_t uiBelow = m_kSummaries.Get(Summarise(m_kSpace.m_kHistories.Pop(uiHistory)));
    return m_kSymbolNumbers
        .emplace(std::make_pair(m_kSpace.m_kHistories.GetSymbol(uiHistory), uiBelow),
                 static_cast<std::uint32_t>(m_kSymbolNumbers.size()))
        .first->second;
}

namespace
{
// The parts of an entry's text, as CheckedState_t has it: the dialog, what it did to the one before it,
// whether it may be deleted and gets its focus back, what was done to it, what had the focus.
constexpr std::size_t cuiFlags = sizeof(ObjectHandle_t) + 1;
constexpr std::size_t cuiAction = cuiFlags + 1;
constexpr std::size_t cuiFocus = cuiAction + 1;
constexpr eC_Char cMayBeDeleted = 1;
} // namespace

ObjectHandle_t CExactExplorer::GetDialog(std::uint32_t uiEntry) const
{
    ObjectHandle_t eDialog = NO_HANDLE;
    std::memcpy(&eDialog, m_kSpace.m_kEntries.GetText(uiEntry).data(), sizeof eDialog);
    return eDialog;
}

std::string CExactExplorer::Summarise(std::uint32_t uiHistory) const
{
    std::vector<std::uint32_t> kEntries; // the oldest first
    for (std::uint32_t uiOn = uiHistory; uiOn != CStacks::cuiEmpty; uiOn = m_kSpace.m_kHistories.Pop(uiOn))
    {
        kEntries.insert(kEntries.begin(), m_kSpace.m_kHistories.GetSymbol(uiOn));
    }
    const EHistoryCut eCut = m_kSubject.GetHistoryCut();
    std::string kSummary = Reduce(kEntries, kEntries.size());
    std::set<ObjectHandle_t> kSeen;
    for (std::size_t uiEntry = kEntries.size(); uiEntry > 0; --uiEntry)
    {
        // A search finds the topmost entry of a dialog, with its flags and its focus.
        const std::string& kText = m_kSpace.m_kEntries.GetText(kEntries[uiEntry - 1]);
        if (kSeen.insert(GetDialog(kEntries[uiEntry - 1])).second)
        {
            kSummary +=
                "/" + kText.substr(0, sizeof(ObjectHandle_t)) + kText[cuiFlags] + kText.substr(cuiFocus);
            if (eCut == HISTORY_CUT_AT_DIALOG || eCut == HISTORY_CUT_UNKNOWN)
            {
                kSummary += "/" + Reduce(kEntries, uiEntry - 1);
            }
        }
    }
    if (eCut == HISTORY_CUT_AT_HEIGHT || eCut == HISTORY_CUT_UNKNOWN)
    {
        const std::size_t uiOldest = std::min<std::size_t>(kEntries.size(), m_kSubject.GetMostKept() + 1U);
        for (std::size_t uiEntry = 0; uiEntry < uiOldest; ++uiEntry)
        {
            kSummary += "_" + std::to_string(kEntries[uiEntry]);
        }
    }
    return kSummary;
}

/** @return what the first entries do to their dialogs, without those that do the same again among them */
std::string CExactExplorer::Reduce(const std::vector<std::uint32_t>& kEntries, std::size_t uiCount) const
{
    std::vector<std::string> kEffects;
    for (std::size_t uiEntry = 0; uiEntry < uiCount; ++uiEntry)
    {
        const std::string& kText = m_kSpace.m_kEntries.GetText(kEntries[uiEntry]);
        const std::string kEffect = kText.substr(0, sizeof(ObjectHandle_t)) + kText[cuiAction] +
                                    static_cast<eC_Char>('0' + ((kText[cuiFlags] - '0') & cMayBeDeleted));
        kEffects.erase(std::remove(kEffects.begin(), kEffects.end(), kEffect), kEffects.end());
        kEffects.push_back(kEffect);
    }
    std::string kReduced;
    for (const std::string& kEffect : kEffects)
    {
        kReduced += kEffect;
    }
    return kReduced;
}

// --- Frames ----------------------------------------------------------------------------------------------

std::uint32_t CExactExplorer::AddFrame(std::uint32_t uiState)
{
    const auto uiFrame = static_cast<std::uint32_t>(m_kFrames.size());
    m_kFrames.emplace_back();
    m_kSpace.m_kPushdown.m_kFrames.push_back(
        {static_cast<std::uint32_t>(m_kSpace.m_kPushdown.m_kItems.size()), 0, {}, {}});
    AddItem(uiFrame, uiState, {});
    return uiFrame;
}

std::uint32_t CExactExplorer::AddItem(std::uint32_t uiFrame, std::uint32_t uiState, const Way_t& kWay)
{
    std::vector<Pushdown_t::Item_t>& kItems = m_kSpace.m_kPushdown.m_kItems;
    const std::uint32_t uiSymbol = GetSymbol(m_kSpace.m_kStates[uiState].m_uiHistory);
    const auto kPlace = m_kItemNumbers.emplace(std::make_tuple(uiFrame, GetControl(uiState), uiSymbol),
                                               static_cast<std::uint32_t>(kItems.size()));
    if (kPlace.second)
    {
        kItems.push_back({uiFrame, uiState, kWay, {}});
    }
    return kPlace.first->second;
}

void CExactExplorer::AddEdge(std::uint32_t uiItem, const Pushdown_t::Edge_t& kEdge)
{
    m_kSpace.m_kPushdown.m_kItems[uiItem].m_kEdges.push_back(kEdge);
}

void CExactExplorer::TakeSteps(std::uint32_t uiItem)
{
    const std::uint32_t uiState = m_kSpace.m_kPushdown.m_kItems[uiItem].m_uiState;
    if (m_kSpace.m_kStates[uiState].m_bIsHanging)
    {
        return;
    }
    if (!m_kSpace.m_kStates[uiState].m_bIsExpanded)
    {
        Expand(uiState);
    }
    const std::uint32_t uiFirst = m_kSpace.m_kStates[uiState].m_uiFirstStep;
    const std::uint32_t uiEnd = uiFirst + m_kSpace.m_kStates[uiState].m_uiSteps;
    for (std::uint32_t uiStep = uiFirst; uiStep < uiEnd && m_kObstacle.empty(); ++uiStep)
    {
        TakeStep(uiItem, uiStep);
    }
}

void CExactExplorer::TakeStep(std::uint32_t uiItem, std::uint32_t uiStep)
{
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const Pushdown_t::Item_t& kItem = m_kSpace.m_kPushdown.m_kItems[uiItem];
    const CheckedStep_t& kStep = m_kSpace.m_kSteps[uiStep];
    const std::uint32_t uiBefore = m_kSpace.m_kStates[kItem.m_uiState].m_uiHistory;
    const std::uint32_t uiAfter = m_kSpace.m_kStates[kStep.m_uiTarget].m_uiHistory;
    const eC_UInt uiCommon = m_kSpace.CountCommon(uiBefore, uiAfter);
    const eC_UInt uiPopped = kHistories.GetHeight(uiBefore) - uiCommon;
    const eC_UInt uiPushed = kHistories.GetHeight(uiAfter) - uiCommon;
    if (uiPushed > 1 || (uiPopped > 1 && uiPushed > 0))
    {
        m_kObstacle = m_kSpace.m_kInputs[kStep.m_uiInput].m_kTitle +
                      " makes several entries of the history, or "
                      "takes back several and makes one";
    }
    else if (uiPushed == uiPopped || (uiPopped > 0 && kItem.m_uiFrame == 0))
    {
        // What is taken back in frame 0 was made by the start, and only becomes less.
        Way_t kWay = kItem.m_kWay;
        kWay.push_back(uiStep);
        const std::uint32_t uiTarget = AddItem(kItem.m_uiFrame, kStep.m_uiTarget, kWay);
        AddEdge(uiItem, {uiStep, Pushdown_t::INSIDE, uiTarget, 0});
    }
    else if (uiPushed == 1)
    {
        Call(uiItem, uiStep);
    }
    else
    {
        Leave(uiItem, uiStep, uiPopped, uiCommon);
    }
}

void CExactExplorer::Call(std::uint32_t uiItem, std::uint32_t uiStep)
{
    const std::uint32_t uiState = m_kSpace.m_kSteps[uiStep].m_uiTarget;
    const std::uint32_t uiSymbol = GetSymbol(m_kSpace.m_kStates[uiState].m_uiHistory);
    const auto kPlace = m_kFrameNumbers.emplace(std::make_pair(GetControl(uiState), uiSymbol), 0);
    if (kPlace.second)
    {
        kPlace.first->second = AddFrame(uiState);
    }
    const std::uint32_t uiFrame = kPlace.first->second;
    Pushdown_t::Frame_t& kFrame = m_kSpace.m_kPushdown.m_kFrames[uiFrame];
    const auto uiCaller = static_cast<std::uint32_t>(kFrame.m_kCallers.size());
    kFrame.m_kCallers.push_back({uiItem, uiStep});
    kFrame.m_kReturns.emplace_back();
    AddEdge(uiItem, {uiStep, Pushdown_t::CALL, uiFrame, uiCaller});
    for (std::uint32_t uiExit = 0; uiExit < m_kFrames[uiFrame].m_kExits.size(); ++uiExit)
    {
        Return(uiFrame, uiCaller, uiExit);
    }
}

void CExactExplorer::Leave(std::uint32_t uiItem, std::uint32_t uiStep, eC_UInt uiPopped, eC_UInt uiCommon)
{
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const Pushdown_t::Item_t& kItem = m_kSpace.m_kPushdown.m_kItems[uiItem];
    const CheckedStep_t& kStep = m_kSpace.m_kSteps[uiStep];
    const std::uint32_t uiBefore = m_kSpace.m_kStates[kItem.m_uiState].m_uiHistory;
    Exit_t kExit = {kItem.m_kWay, GetControl(kStep.m_uiTarget), uiPopped > 1, NO_HANDLE, 0};
    kExit.m_kWay.push_back(uiStep);
    if (kExit.m_bGoesOn)
    {
        const EHistoryCut eCut = m_kSubject.GetHistoryCut();
        if (eCut == HISTORY_CUT_UNKNOWN)
        {
            m_kObstacle = m_kSpace.m_kInputs[kStep.m_uiInput].m_kTitle +
                          " takes back several entries, one after the other";
            return;
        }
        kExit.m_uiHeight = uiCommon;
        if (eCut == HISTORY_CUT_AT_DIALOG)
        {
            kExit.m_eUpTo = GetDialog(kHistories.GetSymbol(kHistories.CutTo(uiBefore, uiCommon + 1)));
            kExit.m_uiHeight = 0;
        }
    }
    const std::uint32_t uiExit = AddExit(kItem.m_uiFrame, kExit);
    AddEdge(uiItem, {uiStep, Pushdown_t::EXIT, uiExit, 0});
}

std::uint32_t CExactExplorer::AddExit(std::uint32_t uiFrame, const Exit_t& kExit)
{
    Frame_t& kFrame = m_kFrames[uiFrame];
    const auto uiNew = static_cast<std::uint32_t>(kFrame.m_kExits.size());
    const auto kPlace = kFrame.m_kKnownExits.emplace(
        std::make_tuple(kExit.m_uiControl, kExit.m_bGoesOn, kExit.m_eUpTo, kExit.m_uiHeight), uiNew);
    if (!kPlace.second)
    {
        return kPlace.first->second;
    }
    kFrame.m_kExits.push_back(kExit);
    ++m_kSpace.m_kPushdown.m_kFrames[uiFrame].m_uiExits;
    for (std::uint32_t uiCaller = 0; uiCaller < m_kSpace.m_kPushdown.m_kFrames[uiFrame].m_kCallers.size();
         ++uiCaller)
    {
        Return(uiFrame, uiCaller, uiNew);
    }
    return uiNew;
}

/** Uses a way out of a frame where the frame was entered. */
void CExactExplorer::Return(std::uint32_t uiFrame, std::uint32_t uiCaller, std::uint32_t uiExit)
{
    const Pushdown_t::Caller_t kCaller = m_kSpace.m_kPushdown.m_kFrames[uiFrame].m_kCallers[uiCaller];
    const Pushdown_t::Return_t kReturn = FindReturn(kCaller, Exit_t(m_kFrames[uiFrame].m_kExits[uiExit]));
    std::vector<Pushdown_t::Return_t>& kReturns =
        m_kSpace.m_kPushdown.m_kFrames[uiFrame].m_kReturns[uiCaller];
    if (kReturns.size() <= uiExit)
    {
        kReturns.resize(uiExit + 1U);
    }
    kReturns[uiExit] = kReturn;
}

Pushdown_t::Return_t CExactExplorer::FindReturn(const Pushdown_t::Caller_t& kCaller, const Exit_t& kExit)
{
    const Pushdown_t::Item_t kFrom = m_kSpace.m_kPushdown.m_kItems[kCaller.m_uiItem];
    Way_t kWay = kFrom.m_kWay;
    kWay.push_back(kCaller.m_uiStep);
    kWay.insert(kWay.end(), kExit.m_kWay.begin(), kExit.m_kWay.end());
    if (!kExit.m_bGoesOn || kFrom.m_uiFrame == 0)
    {
        const std::uint32_t uiState = Walk(m_kSpace.m_kSteps[kCaller.m_uiStep].m_uiTarget, kExit.m_kWay);
        return uiState == cuiNoState ? Pushdown_t::Return_t()
                                     : Pushdown_t::Return_t{Pushdown_t::Return_t::TO_ITEM,
                                                            AddItem(kFrom.m_uiFrame, uiState, kWay)};
    }
    // The entry of the frame around is taken back as well; it is the last one if it is what was looked for.
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const std::uint32_t uiHistory = m_kSpace.m_kStates[kFrom.m_uiState].m_uiHistory;
    Exit_t kOuter = {kWay, kExit.m_uiControl, true, kExit.m_eUpTo, kExit.m_uiHeight};
    kOuter.m_bGoesOn = kExit.m_eUpTo != NO_HANDLE
                           ? GetDialog(kHistories.GetSymbol(uiHistory)) != kExit.m_eUpTo
                           : kHistories.GetHeight(uiHistory) - 1 > kExit.m_uiHeight;
    return {Pushdown_t::Return_t::TO_EXIT, AddExit(kFrom.m_uiFrame, kOuter)};
}

/** Takes steps one after the other. @return where they end; cuiNoState: times make them impossible */
std::uint32_t CExactExplorer::Walk(std::uint32_t uiState, const Way_t& kWay)
{
    for (const std::uint32_t uiStep : kWay)
    {
        uiState = uiState != cuiNoState ? Follow(uiState, m_kSpace.m_kSteps[uiStep].m_uiInput) : uiState;
    }
    return uiState;
}

std::uint32_t CExactExplorer::Follow(std::uint32_t uiState, std::uint16_t uiInput)
{
    const ReachedState_t& kState = m_kSpace.m_kStates[uiState];
    const CheckedStep_t* const pkSteps = m_kSpace.GetSteps(kState);
    const CheckedStep_t* const pkEnd = pkSteps + kState.m_uiSteps;
    const CheckedStep_t* const pkStep = std::find_if(
        pkSteps, pkEnd, [uiInput](const CheckedStep_t& kStep) { return kStep.m_uiInput == uiInput; });
    return pkStep != pkEnd ? pkStep->m_uiTarget : Try(uiState, uiInput).m_uiTarget;
}

// --- Growing histories -----------------------------------------------------------------------------------

/** A repetition that was seen a few times may still come to an end. */
void CExactExplorer::KeepProvenPumps()
{
    std::vector<Pump_t> kPumps = std::move(m_kSpace.m_kPumps);
    kPumps.erase(std::remove_if(kPumps.begin(), kPumps.end(),
                                [this](const Pump_t& kPump) { return !IsProven(kPump); }),
                 kPumps.end());
    m_kSpace.m_kPumps = kPumps;
}

/** Repeats a way until it begins with the same control and symbol again: then it can be repeated for ever. */
eC_Bool CExactExplorer::IsProven(const Pump_t& kPump)
{
    constexpr eC_UInt cuiMostRounds = 16;
    std::vector<std::uint16_t> kWay;
    for (std::uint32_t uiOn = kPump.m_uiTo; uiOn != kPump.m_uiFrom;
         uiOn = m_kSpace.m_kStates[uiOn].m_uiParent)
    {
        kWay.insert(kWay.begin(), m_kSpace.m_kStates[uiOn].m_uiInput);
    }
    std::set<std::pair<std::uint32_t, std::uint32_t>> kBegins;
    std::uint32_t uiState = kPump.m_uiFrom;
    for (eC_UInt uiRound = 0; uiRound < cuiMostRounds && uiState != cuiNoState; ++uiRound)
    {
        const std::uint32_t uiHistory = m_kSpace.m_kStates[uiState].m_uiHistory;
        if (!kBegins.emplace(GetControl(uiState), GetSymbol(uiHistory)).second)
        {
            return true;
        }
        const CStacks& kHistories = m_kSpace.m_kHistories;
        const eC_UInt uiHeight = kHistories.GetHeight(uiHistory);
        eC_Bool bIsKept = true;
        for (const std::uint16_t uiInput : kWay)
        {
            uiState = uiState != cuiNoState ? Follow(uiState, uiInput) : uiState;
            bIsKept = bIsKept && uiState != cuiNoState &&
                      kHistories.CutTo(m_kSpace.m_kStates[uiState].m_uiHistory, uiHeight) == uiHistory;
        }
        if (!bIsKept || kHistories.GetHeight(m_kSpace.m_kStates[uiState].m_uiHistory) == uiHeight)
        {
            return false;
        }
    }
    return false;
}

// --- Going back ------------------------------------------------------------------------------------------

/** Goes back from every item to every entry that may lie below it. */
void CExactExplorer::GoBackEverywhere()
{
    const std::vector<Pushdown_t::Item_t>& kItems = m_kSpace.m_kPushdown.m_kItems;
    for (const Pushdown_t::Item_t& kItem : kItems)
    {
        const ReachedState_t& kState = m_kSpace.m_kStates[kItem.m_uiState];
        // In frame 0 the state itself has gone back to the beginning.
        if (kItem.m_uiFrame != 0 && !kState.m_bIsHanging &&
            IsNewLeft(kItem.m_uiFrame, kState.m_uiControl, kState.m_uiHistory))
        {
            m_kLeft.push_back({kItem.m_uiFrame, kItem.m_uiState, kItem.m_kWay, 0});
        }
    }
    while (!m_kLeft.empty())
    {
        const Left_t kLeft = m_kLeft.front();
        m_kLeft.pop_front();
        GoBackFrom(kLeft);
    }
}

eC_Bool CExactExplorer::IsNewLeft(std::uint32_t uiFrame, std::uint32_t uiControl, std::uint32_t uiHistory)
{
    return m_kKnownLeft.emplace(uiFrame, uiControl, GetSymbol(uiHistory)).second;
}

/** Compares one step back more with what was left by each caller of the frame. */
void CExactExplorer::GoBackFrom(const Left_t& kLeft)
{
    if (kLeft.m_uiFrame == 0)
    {
        return; // what the start has made lies below all callers
    }
    const Back_t* const pkBack = GetBack(m_kSpace, kLeft.m_uiState, kLeft.m_uiBacks);
    if (pkBack == nullptr)
    {
        return;
    }
    const Back_t kBack = *pkBack;
    const eC_Bool bLeadsThere = DescribeFault(m_kSpace, kBack, cuiNoState).empty();
    const std::vector<Pushdown_t::Caller_t> kCallers =
        m_kSpace.m_kPushdown.m_kFrames[kLeft.m_uiFrame].m_kCallers;
    for (const Pushdown_t::Caller_t& kCaller : kCallers)
    {
        const Pushdown_t::Item_t kFrom = m_kSpace.m_kPushdown.m_kItems[kCaller.m_uiItem];
        Way_t kWay = kFrom.m_kWay;
        kWay.push_back(kCaller.m_uiStep);
        kWay.insert(kWay.end(), kLeft.m_kWay.begin(), kLeft.m_kWay.end());
        AddBackFault(DescribeFault(m_kSpace, kBack, GetLeftState(m_kSpace, kFrom.m_uiState, kBack)),
                     kFrom.m_uiFrame, kWay);
        const std::uint32_t uiHistory = m_kSpace.m_kStates[kFrom.m_uiState].m_uiHistory;
        if (bLeadsThere && uiHistory != CStacks::cuiEmpty &&
            IsNewLeft(kFrom.m_uiFrame, kBack.m_uiControl, uiHistory))
        {
            const std::uint32_t uiState = Walk(m_kSpace.m_kSteps[kCaller.m_uiStep].m_uiTarget, kLeft.m_kWay);
            if (uiState != cuiNoState)
            {
                m_kLeft.push_back({kFrom.m_uiFrame, uiState, kWay, kLeft.m_uiBacks + 1});
            }
        }
    }
}

void CExactExplorer::AddBackFault(const std::string& kFault, std::uint32_t uiFrame, const Way_t& kWay)
{
    if (!kFault.empty())
    {
        Way_t kWhole = m_kSpace.m_kPushdown.GetWay(uiFrame);
        kWhole.insert(kWhole.end(), kWay.begin(), kWay.end());
        m_kSpace.m_kBackFaults.push_back({kFault, 0, kWhole});
    }
}
