// SPDX-License-Identifier: MIT
#include "Flow/Check/DialogGraph.h"

#include "Scenario/Names.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace
{
/** Finds the edges, and to which edges each step belongs. */
class CEdgeFinder
{
public:
    explicit CEdgeFinder(const StateSpace_t& kSpace) : m_kSpace(kSpace), m_kOfStep(kSpace.m_kSteps.size())
    {
        for (std::uint32_t uiState = 0; uiState < kSpace.m_kStates.size(); ++uiState)
        {
            const ReachedState_t& kState = kSpace.m_kStates[uiState];
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps; ++uiStep)
            {
                AddStep(uiState, uiStep);
            }
        }
    }

    std::vector<GraphEdge_t> m_kEdges;

    const std::vector<std::size_t>& GetEdges(std::uint32_t uiStep) const { return m_kOfStep[uiStep]; }

private:
    void AddStep(std::uint32_t uiState, std::uint32_t uiStep)
    {
        const ReachedState_t& kFrom = m_kSpace.m_kStates[uiState];
        const ReachedState_t& kTo = m_kSpace.m_kStates[m_kSpace.m_kSteps[uiStep].m_uiTarget];
        const std::string kOccasion = GetOccasion(kFrom, m_kSpace.m_kSteps[uiStep]);
        if (kFrom.m_eCurrent != kTo.m_eCurrent || kFrom.m_uiHistory != kTo.m_uiHistory)
        {
            Add({kFrom.m_eCurrent, kTo.m_eCurrent, kOccasion + GetAction(kFrom, kTo), false, uiState,
                 uiStep});
        }
        for (std::size_t uiPopup = 0; uiPopup < m_kSpace.m_kPopups.size(); ++uiPopup)
        {
            const eC_Bool bWas = (kFrom.m_uiListed >> uiPopup & 1U) != 0;
            const eC_Bool bIs = (kTo.m_uiListed >> uiPopup & 1U) != 0;
            if (bWas != bIs)
            {
                Add({kFrom.m_eCurrent, m_kSpace.m_kPopups[uiPopup], kOccasion + (bIs ? "" : "\nclosed"), true,
                     uiState, uiStep});
            }
        }
    }

    void Add(const GraphEdge_t& kEdge)
    {
        const auto kPlace =
            m_kNumbers.emplace(std::make_tuple(kEdge.m_eFrom, kEdge.m_eTo, kEdge.m_kLabel), m_kEdges.size());
        if (kPlace.second)
        {
            m_kEdges.push_back(kEdge);
        }
        m_kOfStep[kEdge.m_uiStep].push_back(kPlace.first->second);
    }

    std::string GetOccasion(const ReachedState_t& kFrom, const CheckedStep_t& kStep) const
    {
        const CheckedInput_t& kInput = m_kSpace.m_kInputs[kStep.m_uiInput];
        return kInput.m_eKind == CheckedInput_t::KEY && kInput.m_bIsActivation && kFrom.m_eFocus != NO_HANDLE
                   ? NameOfHandle(kFrom.m_eFocus)
                   : kInput.m_kTitle;
    }

    /** @return what the step does to the dialog that is left */
    std::string GetAction(const ReachedState_t& kFrom, const ReachedState_t& kTo) const
    {
        const eC_UInt uiBefore = m_kSpace.m_kHistories.GetHeight(kFrom.m_uiHistory);
        const eC_UInt uiAfter = m_kSpace.m_kHistories.GetHeight(kTo.m_uiHistory);
        if (uiAfter <= uiBefore)
        {
            return "\nback";
        }
        // The action is in the entry, after the dialog's handle, action and flags.
        constexpr std::size_t cuiPlaceOfAction = sizeof(ObjectHandle_t) + 2;
        const std::string& kEntry =
            m_kSpace.m_kEntries.GetText(m_kSpace.m_kHistories.GetSymbol(kTo.m_uiHistory));
        return "\n" + NameOfAction(static_cast<CGUIDialogManager::EOldDialogAction>(
                          static_cast<unsigned char>(kEntry[cuiPlaceOfAction])));
    }

    const StateSpace_t& m_kSpace;
    std::map<std::tuple<ObjectHandle_t, ObjectHandle_t, std::string>, std::size_t> m_kNumbers;
    std::vector<std::vector<std::size_t>> m_kOfStep;
};

std::string QuoteDOT(const std::string& kText)
{
    std::string kQuoted = "\"";
    for (const eC_Char cCharacter : kText)
    {
        if (cCharacter == '\n')
        {
            kQuoted += "\\n";
            continue;
        }
        kQuoted += cCharacter == '"' || cCharacter == '\\' ? std::string("\\") + cCharacter
                                                           : std::string(1, cCharacter);
    }
    return kQuoted + "\"";
}

/** @return the dialogs and popups that a violation names or leads to */
std::set<std::string> FindMarked(const CheckReport_t& kReport)
{
    std::set<std::string> kMarked;
    for (const PropertyResult_t& kResult : kReport.m_kResults)
    {
        for (const Finding_t& kFinding : kResult.m_kFindings)
        {
            if (!kFinding.m_kReason.empty() || !kFinding.m_bHasWitness)
            {
                continue;
            }
            const Witness_t& kWitness = kFinding.m_kWitness;
            const StateSpace_t& kSpace = *kResult.m_pkSpace;
            const std::uint32_t uiEnd = kWitness.m_kSteps.empty()
                                            ? kWitness.m_uiState
                                            : kSpace.m_kSteps[kWitness.m_kSteps.back()].m_uiTarget;
            kMarked.insert(NameOfHandle(kSpace.m_kStates[uiEnd].m_eCurrent));
        }
    }
    return kMarked;
}
} // namespace

std::vector<GraphEdge_t> FindEdges(const StateSpace_t& kSpace)
{
    return CEdgeFinder(kSpace).m_kEdges;
}

std::string WriteDOT(const CheckReport_t& kReport)
{
    const StateSpace_t& kSpace = *kReport.m_pkSpace;
    const std::vector<GraphEdge_t> kEdges = FindEdges(kSpace);
    const std::set<std::string> kMarked = FindMarked(kReport);
    std::set<ObjectHandle_t> kReached;
    for (const ReachedState_t& kState : kSpace.m_kStates)
    {
        kReached.insert(kState.m_eCurrent);
    }
    std::string kText = "digraph " + QuoteDOT(kReport.m_kName) +
                        " {\n  node [fontname=\"sans-serif\", shape=box];\n  edge [fontname=\"sans-serif\", "
                        "fontsize=10];\n";
    const auto WriteNode = [&kText, &kMarked](ObjectHandle_t eID, eC_Bool bIsReached, const eC_Char* pcMore)
    {
        const std::string kName = NameOfHandle(eID);
        kText += "  " + QuoteDOT(kName) + " [" + (kMarked.count(kName) != 0 ? "color=red, " : "") +
                 (bIsReached ? "" : "color=red, style=dashed, ") + pcMore + "];\n";
    };
    std::set<ObjectHandle_t> kDialogs(kSpace.m_kDialogs.begin(), kSpace.m_kDialogs.end());
    kDialogs.insert(kReached.begin(), kReached.end());
    for (const ObjectHandle_t eDialog : kDialogs)
    {
        WriteNode(eDialog, kReached.count(eDialog) != 0,
                  eDialog == kSpace.m_eHome ? "penwidth=2" : "penwidth=1");
    }
    for (const ObjectHandle_t ePopup : kSpace.m_kPopups)
    {
        const eC_Bool bIsReached =
            std::any_of(kEdges.begin(), kEdges.end(),
                        [ePopup](const GraphEdge_t& kEdge) { return kEdge.m_eTo == ePopup; });
        WriteNode(ePopup, bIsReached, "shape=ellipse");
    }
    for (const GraphEdge_t& kEdge : kEdges)
    {
        kText += "  " + QuoteDOT(NameOfHandle(kEdge.m_eFrom)) + " -> " + QuoteDOT(NameOfHandle(kEdge.m_eTo)) +
                 " [label=" + QuoteDOT(kEdge.m_kLabel) + (kEdge.m_bIsPopup ? ", style=dotted" : "") + "];\n";
    }
    return kText + "}\n";
}

std::vector<Witness_t> FindCoveringWays(const StateSpace_t& kSpace)
{
    const CEdgeFinder kFinder(kSpace);
    std::vector<Witness_t> kWays;
    std::set<std::size_t> kCovered;
    // The longest first: they cover the edges at their beginnings.
    for (auto kEdge = kFinder.m_kEdges.rbegin(); kEdge != kFinder.m_kEdges.rend(); ++kEdge)
    {
        const std::size_t uiEdge = static_cast<std::size_t>(&*kEdge - kFinder.m_kEdges.data());
        if (kCovered.count(uiEdge) != 0)
        {
            continue;
        }
        kWays.push_back({kEdge->m_uiState, {kEdge->m_uiStep}});
        std::vector<std::uint32_t> kStates = kSpace.GetStates(kEdge->m_uiState);
        for (std::size_t uiOn = 1; uiOn < kStates.size(); ++uiOn)
        {
            const ReachedState_t& kState = kSpace.m_kStates[kStates[uiOn - 1]];
            for (std::uint32_t uiStep = kState.m_uiFirstStep;
                 uiStep < kState.m_uiFirstStep + kState.m_uiSteps; ++uiStep)
            {
                if (kSpace.m_kSteps[uiStep].m_uiInput == kSpace.m_kStates[kStates[uiOn]].m_uiInput)
                {
                    kCovered.insert(kFinder.GetEdges(uiStep).begin(), kFinder.GetEdges(uiStep).end());
                }
            }
        }
        kCovered.insert(kFinder.GetEdges(kEdge->m_uiStep).begin(), kFinder.GetEdges(kEdge->m_uiStep).end());
    }
    std::set<std::pair<std::size_t, std::size_t>> kPairs;
    for (std::uint32_t uiState = 0; uiState < kSpace.m_kStates.size(); ++uiState)
    {
        const ReachedState_t& kState = kSpace.m_kStates[uiState];
        for (std::uint32_t uiFirst = kState.m_uiFirstStep; uiFirst < kState.m_uiFirstStep + kState.m_uiSteps;
             ++uiFirst)
        {
            const ReachedState_t& kNext = kSpace.m_kStates[kSpace.m_kSteps[uiFirst].m_uiTarget];
            for (std::uint32_t uiSecond = kNext.m_uiFirstStep;
                 uiSecond < kNext.m_uiFirstStep + kNext.m_uiSteps; ++uiSecond)
            {
                eC_Bool bIsNew = false;
                for (const std::size_t uiOne : kFinder.GetEdges(uiFirst))
                {
                    for (const std::size_t uiOther : kFinder.GetEdges(uiSecond))
                    {
                        bIsNew = kPairs.emplace(uiOne, uiOther).second || bIsNew;
                    }
                }
                if (bIsNew)
                {
                    kWays.push_back({uiState, {uiFirst, uiSecond}});
                }
            }
        }
    }
    return kWays;
}
