// SPDX-License-Identifier: MIT
#include "Flow/Check/CheckReport.h"

#include "Scenario/Names.h"

#include <algorithm>
#include <cstdio>

namespace
{
constexpr std::size_t cuiLongestDescription = 90;

std::string NameProperty(const PropertyResult_t& kResult)
{
    return "P" + std::to_string(kResult.m_uiNumber);
}

std::string QuoteJSON(const std::string& kText)
{
    std::string kQuoted = "\"";
    for (const eC_Char cCharacter : kText)
    {
        if (cCharacter == '"' || cCharacter == '\\')
        {
            kQuoted += '\\';
        }
        if (static_cast<unsigned char>(cCharacter) < ' ')
        {
            eC_Char acEscaped[8];
            std::snprintf(acEscaped, sizeof acEscaped, "\\u%04x", static_cast<unsigned int>(cCharacter));
            kQuoted += acEscaped;
            continue;
        }
        kQuoted += cCharacter;
    }
    return kQuoted + "\"";
}

std::string QuoteXML(const std::string& kText)
{
    std::string kQuoted;
    for (const eC_Char cCharacter : kText)
    {
        switch (cCharacter)
        {
        case '<':
            kQuoted += "&lt;";
            break;
        case '&':
            kQuoted += "&amp;";
            break;
        case '"':
            kQuoted += "&quot;";
            break;
        default:
            kQuoted += static_cast<unsigned char>(cCharacter) < ' ' && cCharacter != '\n' ? '?' : cCharacter;
            break;
        }
    }
    return kQuoted;
}

template <typename TItem, typename Write_t>
std::string Join(const std::vector<TItem>& kItems, const eC_Char* pcBetween, Write_t fnWrite)
{
    std::string kText;
    for (const TItem& tItem : kItems)
    {
        kText += (kText.empty() ? "" : pcBetween) + fnWrite(tItem);
    }
    return kText;
}

std::string WriteStrings(const std::vector<std::string>& kTexts)
{
    return "[" + Join(kTexts, ", ", QuoteJSON) + "]";
}

std::vector<std::string> NameReached(const StateSpace_t& kSpace)
{
    std::vector<std::string> kNames;
    std::vector<ObjectHandle_t> kReached;
    for (const ReachedState_t& kState : kSpace.m_kStates)
    {
        if (kState.m_eCurrent != NO_HANDLE &&
            std::find(kReached.begin(), kReached.end(), kState.m_eCurrent) == kReached.end())
        {
            kReached.push_back(kState.m_eCurrent);
            kNames.push_back(NameOfHandle(kState.m_eCurrent));
        }
    }
    std::sort(kNames.begin(), kNames.end());
    return kNames;
}

std::vector<std::string> NameListed(const StateSpace_t& kSpace)
{
    std::vector<std::string> kNames;
    for (std::size_t uiPopup = 0; uiPopup < kSpace.m_kPopups.size(); ++uiPopup)
    {
        if (std::any_of(kSpace.m_kStates.begin(), kSpace.m_kStates.end(),
                        [uiPopup](const ReachedState_t& kState)
                        { return (kState.m_uiListed >> uiPopup & 1U) != 0; }))
        {
            kNames.push_back(NameOfHandle(kSpace.m_kPopups[uiPopup]));
        }
    }
    std::sort(kNames.begin(), kNames.end());
    return kNames;
}

std::string Shorten(const std::string& kText)
{
    return kText.size() <= cuiLongestDescription ? kText : kText.substr(0, cuiLongestDescription) + " ...";
}

std::string WriteFinding(const CheckReport_t& kReport, const PropertyResult_t& kResult,
                         const Finding_t& kFinding)
{
    std::string kText =
        (kFinding.m_kReason.empty() ? "    violation: " : "    expected: ") + kFinding.m_kText;
    kText += kFinding.m_uiLine != 0 && !kReport.m_kFile.empty()
                 ? " (" + kReport.m_kFile + ":" + std::to_string(kFinding.m_uiLine) + ")\n"
                 : "\n";
    if (!kFinding.m_kReason.empty())
    {
        return kText + "      because " + kFinding.m_kReason + "\n";
    }
    if (kFinding.m_bHasWitness)
    {
        for (const std::string& kLine : MakeScenario(*kResult.m_pkSpace, kFinding.m_kWitness))
        {
            kText += "      > " + kLine + "\n";
        }
    }
    return kText;
}

std::string WriteProperty(const CheckReport_t& kReport, const PropertyResult_t& kResult)
{
    const std::string kName = NameProperty(kResult);
    const eC_UInt uiUnexpected = kResult.CountUnexpected();
    std::string kText = kName + std::string(kName.size() == 2 ? "  " : " ") + kResult.m_kTitle + ": ";
    kText += uiUnexpected == 0
                 ? "no violation " + DescribeBound(kResult)
                 : std::to_string(uiUnexpected) + (uiUnexpected == 1 ? " violation, " : " violations, ") +
                       kResult.m_kMeaning;
    kText += "\n";
    for (const Measure_t& kMeasure : kResult.m_kMeasures)
    {
        kText += "    " + kMeasure.m_kText + ": " +
                 Shorten(DescribeWitness(*kResult.m_pkSpace, kMeasure.m_kWitness)) + "\n";
    }
    for (const Finding_t& kFinding : kResult.m_kFindings)
    {
        kText += WriteFinding(kReport, kResult, kFinding);
    }
    for (const Finding_t& kWarning : kResult.m_kWarnings)
    {
        kText += "    warning: " + kWarning.m_kText + " (" + kReport.m_kFile + ":" +
                 std::to_string(kWarning.m_uiLine) + ")\n";
    }
    return kText;
}

std::string WriteJSONFinding(const PropertyResult_t& kResult, const Finding_t& kFinding)
{
    std::string kText = R"({"text": )" + QuoteJSON(kFinding.m_kText);
    if (kFinding.m_uiLine != 0)
    {
        kText += R"(, "line": )" + std::to_string(kFinding.m_uiLine);
    }
    if (kFinding.m_bHasWitness)
    {
        kText += R"(, "scenario": )" + WriteStrings(MakeScenario(*kResult.m_pkSpace, kFinding.m_kWitness));
    }
    if (!kFinding.m_kReason.empty())
    {
        kText += R"(, "expected": )" + QuoteJSON(kFinding.m_kReason);
    }
    return kText + "}";
}

std::string WriteJSONProperty(const PropertyResult_t& kResult)
{
    return R"({"property": ")" + NameProperty(kResult) + R"(", "title": )" + QuoteJSON(kResult.m_kTitle) +
           R"(, "bound": )" + QuoteJSON(DescribeBound(kResult)) + R"(, "violations": )" +
           std::to_string(kResult.CountUnexpected()) + R"(, "measures": [)" +
           Join(kResult.m_kMeasures, ", ",
                [&kResult](const Measure_t& kMeasure)
                {
                    return R"({"text": )" + QuoteJSON(kMeasure.m_kText) + R"(, "scenario": )" +
                           WriteStrings(MakeScenario(*kResult.m_pkSpace, kMeasure.m_kWitness)) + "}";
                }) +
           R"(], "findings": [)" +
           Join(kResult.m_kFindings, ", ",
                [&kResult](const Finding_t& kFinding) { return WriteJSONFinding(kResult, kFinding); }) +
           R"(], "warnings": [)" +
           Join(kResult.m_kWarnings, ", ",
                [&kResult](const Finding_t& kWarning) { return WriteJSONFinding(kResult, kWarning); }) +
           "]}";
}

std::string WriteJUnitCase(const CheckReport_t& kReport, const PropertyResult_t& kResult)
{
    const std::string kName = NameProperty(kResult) + " " + kResult.m_kTitle;
    std::string kText = "  <testcase classname=\"" + QuoteXML(kReport.m_kName) + "\" name=\"" +
                        QuoteXML(kName) + "\" time=\"0\">\n";
    for (const Finding_t& kFinding : kResult.m_kFindings)
    {
        if (kFinding.m_kReason.empty())
        {
            kText += "    <failure message=\"" + QuoteXML(kFinding.m_kText) + "\">" +
                     QuoteXML(WriteFinding(kReport, kResult, kFinding)) + "</failure>\n";
        }
    }
    return kText + "  </testcase>\n";
}

/** @return a path as a reference of a URI */
std::string EncodeURI(const std::string& kPath)
{
    std::string kURI;
    for (const eC_Char cCharacter : kPath)
    {
        const eC_Bool bIsPlain = (cCharacter >= 'a' && cCharacter <= 'z') ||
                                 (cCharacter >= 'A' && cCharacter <= 'Z') ||
                                 (cCharacter >= '0' && cCharacter <= '9') ||
                                 std::string("/._-~").find(cCharacter) != std::string::npos;
        eC_Char acEscaped[4];
        std::snprintf(acEscaped, sizeof acEscaped, "%%%02X", static_cast<unsigned char>(cCharacter));
        kURI += bIsPlain ? std::string(1, cCharacter) : acEscaped;
    }
    return kURI;
}

std::string WriteSARIFResult(const CheckReport_t& kReport, const PropertyResult_t& kResult,
                             const Finding_t& kFinding, const std::string& kLevel)
{
    std::string kMessage = kFinding.m_kText;
    if (kFinding.m_bHasWitness)
    {
        kMessage += ": " + DescribeWitness(*kResult.m_pkSpace, kFinding.m_kWitness);
    }
    std::string kText = R"({"ruleId": ")" + NameProperty(kResult) + R"(", "level": ")" + kLevel +
                        R"(", "message": {"text": )" + QuoteJSON(kMessage) + "}";
    if (!kReport.m_kFile.empty())
    {
        kText += R"(, "locations": [{"physicalLocation": {"artifactLocation": {"uri": )" +
                 QuoteJSON(EncodeURI(kReport.m_kFile)) + R"(}, "region": {"startLine": )" +
                 std::to_string(std::max(1U, kFinding.m_uiLine)) + "}}}]";
    }
    if (!kFinding.m_kReason.empty())
    {
        kText += R"(, "suppressions": [{"kind": "inSource", "justification": )" +
                 QuoteJSON(kFinding.m_kReason) + "}]";
    }
    return kText + "}";
}
} // namespace

std::string DescribeBound(const StateSpace_t& kSpace)
{
    const std::string kDepth = "up to depth " + std::to_string(kSpace.m_uiDepth);
    if (kSpace.m_bIsComplete)
    {
        return "with any history (every state is known, " + kDepth + ")";
    }
    if (kSpace.m_bIsExact)
    {
        return "with any history";
    }
    return kSpace.m_kPumps.empty() ? kDepth : kDepth + ", without the repetitions of P4";
}

std::string DescribeBound(const PropertyResult_t& kResult)
{
    return kResult.m_kBound.empty() ? DescribeBound(*kResult.m_pkSpace) : kResult.m_kBound;
}

std::string WriteText(const CheckReport_t& kReport)
{
    const StateSpace_t& kSpace = *kReport.m_pkSpace;
    std::string kText = kReport.m_kName + ": " + std::to_string(kSpace.m_kStates.size()) + " states, " +
                        std::to_string(kSpace.m_kSteps.size()) + " steps\n";
    if (!kReport.m_kObstacle.empty())
    {
        kText += "There is no answer for all histories: " + kReport.m_kObstacle + "\n";
    }
    for (const PropertyResult_t& kResult : kReport.m_kResults)
    {
        kText += WriteProperty(kReport, kResult);
    }
    return kText;
}

std::string WriteJSON(const CheckReport_t& kReport)
{
    const StateSpace_t& kSpace = *kReport.m_pkSpace;
    return R"({"name": )" + QuoteJSON(kReport.m_kName) + R"(, "file": )" + QuoteJSON(kReport.m_kFile) +
           R"(, "states": )" + std::to_string(kSpace.m_kStates.size()) + R"(, "steps": )" +
           std::to_string(kSpace.m_kSteps.size()) + R"(, "depth": )" + std::to_string(kSpace.m_uiDepth) +
           R"(, "complete": )" + (kSpace.m_bIsComplete ? "true" : "false") + R"(, "exact": )" +
           (kSpace.m_bIsComplete || kSpace.m_bIsExact ? "true" : "false") + R"(, "dialogs": )" +
           WriteStrings(NameReached(kSpace)) + R"(, "popups": )" + WriteStrings(NameListed(kSpace)) +
           ", \"properties\": [\n" +
           Join(kReport.m_kResults, ",\n",
                [](const PropertyResult_t& kResult) { return WriteJSONProperty(kResult); }) +
           "\n]}\n";
}

std::string WriteJUnit(const CheckReport_t& kReport)
{
    const auto uiFailures =
        std::count_if(kReport.m_kResults.begin(), kReport.m_kResults.end(),
                      [](const PropertyResult_t& kResult) { return kResult.CountUnexpected() != 0; });
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuite name=\"" + QuoteXML(kReport.m_kName) +
           "\" tests=\"" + std::to_string(kReport.m_kResults.size()) + "\" failures=\"" +
           std::to_string(uiFailures) + "\">\n" +
           Join(kReport.m_kResults, "",
                [&kReport](const PropertyResult_t& kResult) { return WriteJUnitCase(kReport, kResult); }) +
           "</testsuite>\n";
}

std::string WriteSARIF(const CheckReport_t& kReport)
{
    std::string kResults;
    for (const PropertyResult_t& kResult : kReport.m_kResults)
    {
        for (const Finding_t& kFinding : kResult.m_kFindings)
        {
            kResults +=
                (kResults.empty() ? "" : ",\n") + WriteSARIFResult(kReport, kResult, kFinding, "error");
        }
        for (const Finding_t& kWarning : kResult.m_kWarnings)
        {
            kResults +=
                (kResults.empty() ? "" : ",\n") + WriteSARIFResult(kReport, kResult, kWarning, "warning");
        }
    }
    return R"({"version": "2.1.0", "$schema": "https://json.schemastore.org/sarif-2.1.0.json", "runs": [{)"
           R"("tool": {"driver": {"name": "dialogcheck", "rules": [)"
           "\n" +
           Join(kReport.m_kResults, ",\n",
                [](const PropertyResult_t& kResult)
                {
                    return R"({"id": ")" + NameProperty(kResult) + R"(", "shortDescription": {"text": )" +
                           QuoteJSON(kResult.m_kTitle) + "}}";
                }) +
           "\n]}}, \"results\": [\n" + kResults + "\n]}]}\n";
}
