// SPDX-License-Identifier: MIT
#include "Flow/Check/ExactExplorer.h"

#include <algorithm>
#include <cstring>
#include <set>

StateSpace_t CExactExplorer::ExploreExactly(eC_UInt uiMostStates, std::string& kObstacleOUT)
{
    Begin();
    m_kFrames.push_back({0, {}, {}, {}});
    AddItem(0, 0, {});
    for (std::size_t uiItem = 0; uiItem < m_kItems.size() && m_kObstacle.empty(); ++uiItem)
    {
        TakeSteps(uiItem);
        if (m_kSpace.m_kStates.size() > uiMostStates)
        {
            m_kObstacle = "more than " + std::to_string(uiMostStates) + " states";
        }
    }
    kObstacleOUT = m_kObstacle;
    m_kSpace.m_bIsExact = m_kObstacle.empty();
    m_kSpace.m_bIsComplete = m_kSpace.m_bIsExact;
    for (const ReachedState_t& kState : m_kSpace.m_kStates)
    {
        m_kSpace.m_uiDepth = std::max(m_kSpace.m_uiDepth, eC_UInt(kState.m_uiDepth));
    }
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
        const std::size_t uiOldest = std::min<std::size_t>(kEntries.size(), m_uiMostKept + 1U);
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

void CExactExplorer::AddItem(std::size_t uiFrame, std::uint32_t uiState, const Way_t& kWay)
{
    const std::uint32_t uiSymbol = GetSymbol(m_kSpace.m_kStates[uiState].m_uiHistory);
    const auto kPlace =
        m_kItemNumbers.emplace(std::make_tuple(uiFrame, GetControl(uiState), uiSymbol), m_kItems.size());
    if (kPlace.second)
    {
        m_kItems.push_back({uiFrame, uiState, kWay});
    }
}

void CExactExplorer::TakeSteps(std::size_t uiItem)
{
    const std::uint32_t uiState = m_kItems[uiItem].m_uiState;
    if (m_kSpace.m_kStates[uiState].m_bIsHanging)
    {
        return;
    }
    if (!m_kSpace.m_kStates[uiState].m_bIsExpanded)
    {
        Expand(uiState);
    }
    const ReachedState_t kState = m_kSpace.m_kStates[uiState];
    for (std::uint32_t uiStep = kState.m_uiFirstStep;
         uiStep < kState.m_uiFirstStep + kState.m_uiSteps && m_kObstacle.empty(); ++uiStep)
    {
        TakeStep(uiItem, CheckedStep_t(m_kSpace.m_kSteps[uiStep]));
    }
}

void CExactExplorer::TakeStep(std::size_t uiItem, const CheckedStep_t& kStep)
{
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const std::uint32_t uiBefore = m_kSpace.m_kStates[m_kItems[uiItem].m_uiState].m_uiHistory;
    const std::uint32_t uiAfter = m_kSpace.m_kStates[kStep.m_uiTarget].m_uiHistory;
    eC_UInt uiCommon = std::min(kHistories.GetHeight(uiBefore), kHistories.GetHeight(uiAfter));
    while (kHistories.CutTo(uiBefore, uiCommon) != kHistories.CutTo(uiAfter, uiCommon))
    {
        --uiCommon;
    }
    const eC_UInt uiPopped = kHistories.GetHeight(uiBefore) - uiCommon;
    const eC_UInt uiPushed = kHistories.GetHeight(uiAfter) - uiCommon;
    if (uiPushed > 1 || (uiPopped > 1 && uiPushed > 0))
    {
        m_kObstacle = m_kSpace.m_kInputs[kStep.m_uiInput].m_kTitle +
                      " makes several entries of the history, or "
                      "takes back several and makes one";
    }
    else if (uiPushed == uiPopped)
    {
        Way_t kWay = m_kItems[uiItem].m_kWay;
        kWay.push_back(kStep.m_uiInput);
        AddItem(m_kItems[uiItem].m_uiFrame, kStep.m_uiTarget, kWay);
    }
    else if (uiPushed == 1)
    {
        Call(uiItem, kStep);
    }
    else
    {
        Leave(uiItem, kStep, uiPopped, uiCommon);
    }
}

void CExactExplorer::Call(std::size_t uiItem, const CheckedStep_t& kStep)
{
    const std::uint32_t uiSymbol = GetSymbol(m_kSpace.m_kStates[kStep.m_uiTarget].m_uiHistory);
    const auto kPlace =
        m_kFrameNumbers.emplace(std::make_pair(GetControl(kStep.m_uiTarget), uiSymbol), m_kFrames.size());
    const std::size_t uiFrame = kPlace.first->second;
    if (kPlace.second)
    {
        m_kFrames.push_back({kStep.m_uiTarget, {}, {}, {}});
        AddItem(uiFrame, kStep.m_uiTarget, {});
    }
    m_kFrames[uiFrame].m_kCallers.push_back({uiItem, kStep.m_uiInput});
    for (std::size_t uiExit = 0; uiExit < m_kFrames[uiFrame].m_kExits.size(); ++uiExit)
    {
        Return(uiFrame, m_kFrames[uiFrame].m_kCallers.size() - 1, uiExit);
    }
}

void CExactExplorer::Leave(std::size_t uiItem, const CheckedStep_t& kStep, eC_UInt uiPopped, eC_UInt uiCommon)
{
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const std::uint32_t uiBefore = m_kSpace.m_kStates[m_kItems[uiItem].m_uiState].m_uiHistory;
    Exit_t kExit = {m_kItems[uiItem].m_kWay, GetControl(kStep.m_uiTarget), uiPopped > 1, NO_HANDLE, 0};
    kExit.m_kWay.push_back(kStep.m_uiInput);
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
    AddExit(m_kItems[uiItem].m_uiFrame, kExit);
}

void CExactExplorer::AddExit(std::size_t uiFrame, const Exit_t& kExit)
{
    const auto kKey = std::make_tuple(kExit.m_uiControl, kExit.m_bGoesOn, kExit.m_eUpTo, kExit.m_uiHeight);
    if (!m_kFrames[uiFrame].m_kKnownExits.insert(kKey).second)
    {
        return;
    }
    m_kFrames[uiFrame].m_kExits.push_back(kExit);
    for (std::size_t uiCaller = 0; uiCaller < m_kFrames[uiFrame].m_kCallers.size(); ++uiCaller)
    {
        Return(uiFrame, uiCaller, m_kFrames[uiFrame].m_kExits.size() - 1);
    }
}

/** Uses a way out of a frame where the frame was entered. */
void CExactExplorer::Return(std::size_t uiFrame, std::size_t uiCaller, std::size_t uiExit)
{
    const Caller_t kCaller = m_kFrames[uiFrame].m_kCallers[uiCaller];
    const Exit_t kExit = m_kFrames[uiFrame].m_kExits[uiExit];
    const Item_t kFrom = m_kItems[kCaller.m_uiItem];
    Way_t kWay = kFrom.m_kWay;
    kWay.push_back(kCaller.m_uiInput);
    kWay.insert(kWay.end(), kExit.m_kWay.begin(), kExit.m_kWay.end());
    if (!kExit.m_bGoesOn)
    {
        const std::uint32_t uiState = Walk(m_kFrames[kFrom.m_uiFrame].m_uiState, kWay);
        if (uiState != cuiNoState)
        {
            AddItem(kFrom.m_uiFrame, uiState, kWay);
        }
        return;
    }
    // The entry of the frame around is taken back as well; it is the last one if it is what was looked for.
    const CStacks& kHistories = m_kSpace.m_kHistories;
    const std::uint32_t uiHistory = m_kSpace.m_kStates[kFrom.m_uiState].m_uiHistory;
    if (uiHistory == CStacks::cuiEmpty)
    {
        return;
    }
    Exit_t kOuter = {kWay, kExit.m_uiControl, true, kExit.m_eUpTo, kExit.m_uiHeight};
    kOuter.m_bGoesOn = kExit.m_eUpTo != NO_HANDLE
                           ? GetDialog(kHistories.GetSymbol(uiHistory)) != kExit.m_eUpTo
                           : kHistories.GetHeight(uiHistory) - 1 > kExit.m_uiHeight;
    AddExit(kFrom.m_uiFrame, kOuter);
}

/** Takes steps one after the other. @return where they end */
std::uint32_t CExactExplorer::Walk(std::uint32_t uiState, const Way_t& kWay)
{
    for (const std::uint16_t uiInput : kWay)
    {
        uiState = uiState != cuiNoState ? Try(uiState, uiInput).m_uiTarget : uiState;
    }
    return uiState;
}
