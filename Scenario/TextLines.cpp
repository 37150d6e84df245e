// SPDX-License-Identifier: MIT
#include "Scenario/TextLines.h"

#include <algorithm>

namespace
{
/** For every pair of first lines, how many lines the rests of both texts have in common, in order. */
std::vector<std::vector<std::size_t>> CountCommonLines(const std::vector<std::string>& kExpected,
                                                       const std::vector<std::string>& kActual)
{
    std::vector<std::vector<std::size_t>> kCommon(kExpected.size() + 1,
                                                  std::vector<std::size_t>(kActual.size() + 1, 0));
    for (std::size_t uiExpected = kExpected.size(); uiExpected-- > 0;)
    {
        for (std::size_t uiActual = kActual.size(); uiActual-- > 0;)
        {
            kCommon[uiExpected][uiActual] =
                kExpected[uiExpected] == kActual[uiActual]
                    ? kCommon[uiExpected + 1][uiActual + 1] + 1
                    : std::max(kCommon[uiExpected + 1][uiActual], kCommon[uiExpected][uiActual + 1]);
        }
    }
    return kCommon;
}
} // namespace

std::string EscapeLineBreaks(const std::string& kText)
{
    std::string kEscaped;
    for (const char cCharacter : kText)
    {
        if (cCharacter == '\n')
        {
            kEscaped += "\\n";
        }
        else
        {
            kEscaped += cCharacter;
        }
    }
    return kEscaped;
}

std::string JoinLines(const std::vector<std::string>& kLines)
{
    std::string kText;
    for (const std::string& kLine : kLines)
    {
        kText += kLine + "\n";
    }
    return kText;
}

std::vector<std::string> SplitLines(const std::string& kText)
{
    std::vector<std::string> kLines;
    std::size_t uiBegin = 0;
    while (uiBegin < kText.size())
    {
        const std::size_t uiEnd = std::min(kText.find('\n', uiBegin), kText.size());
        kLines.push_back(kText.substr(uiBegin, uiEnd - uiBegin));
        uiBegin = uiEnd + 1;
    }
    return kLines;
}

std::string Unindent(const std::string& kText)
{
    std::vector<std::string> kLines = SplitLines(kText);
    if (!kLines.empty() && kLines.front().empty())
    {
        kLines.erase(kLines.begin());
    }
    if (!kLines.empty() && kLines.back().find_first_not_of(' ') == std::string::npos)
    {
        kLines.pop_back();
    }
    std::size_t uiIndent = std::string::npos;
    for (const std::string& kLine : kLines)
    {
        uiIndent = std::min(uiIndent, kLine.find_first_not_of(' '));
    }
    for (std::string& kLine : kLines)
    {
        kLine.erase(0, uiIndent);
    }
    return JoinLines(kLines);
}

std::string DiffLines(const std::string& kExpected, const std::string& kActual)
{
    if (kExpected == kActual)
    {
        return std::string();
    }
    const std::vector<std::string> kExpectedLines = SplitLines(kExpected);
    const std::vector<std::string> kActualLines = SplitLines(kActual);
    const auto kCommon = CountCommonLines(kExpectedLines, kActualLines);
    std::string kDiff;
    std::size_t uiExpected = 0;
    std::size_t uiActual = 0;
    while (uiExpected < kExpectedLines.size() || uiActual < kActualLines.size())
    {
        const bool bExpectedLeft = uiExpected < kExpectedLines.size();
        const bool bActualLeft = uiActual < kActualLines.size();
        if (bExpectedLeft && bActualLeft && kExpectedLines[uiExpected] == kActualLines[uiActual])
        {
            kDiff += "  " + kExpectedLines[uiExpected++] + "\n";
            ++uiActual;
        }
        else if (bExpectedLeft &&
                 (!bActualLeft || kCommon[uiExpected + 1][uiActual] >= kCommon[uiExpected][uiActual + 1]))
        {
            kDiff += "- " + kExpectedLines[uiExpected++] + "\n";
        }
        else
        {
            kDiff += "+ " + kActualLines[uiActual++] + "\n";
        }
    }
    return kDiff;
}
