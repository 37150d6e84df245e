// SPDX-License-Identifier: MIT
#include "Simulator/TourScript.h"

#include "Scenario/TextLines.h"

#include <algorithm>

namespace
{
constexpr eC_UInt cuiNoticeTime = 700;   ///< until people have noticed that there is something new
constexpr eC_UInt cuiCharacterTime = 45; ///< some 250 words per minute

std::string WithoutMarks(const std::string& kComment)
{
    const std::size_t uiBegin = kComment.find_first_not_of("# \t");
    return uiBegin == std::string::npos ? std::string() : kComment.substr(uiBegin);
}

void AddWords(std::string& kText, const std::string& kWords)
{
    kText += (kText.empty() || kWords.empty() ? "" : " ") + kWords;
}

/** Splits "2. DIALOGS. The list ..." after the name, whose number may end in a full stop itself. */
void SplitHeading(const std::string& kHeading, std::string& kChapterOUT, std::string& kCaptionOUT)
{
    const std::size_t uiName = kHeading.find_first_not_of("0123456789. ");
    const std::size_t uiEnd = kHeading.find(". ", uiName == std::string::npos ? 0 : uiName);
    kChapterOUT = kHeading.substr(0, uiEnd);
    kCaptionOUT = uiEnd == std::string::npos ? std::string() : kHeading.substr(uiEnd + 2);
}
} // namespace

std::vector<TourStep_t> ReadTour(const std::string& kScript)
{
    std::vector<TourStep_t> kSteps;
    TourStep_t kStep{{}, "", "", "", false};
    for (const std::string& kLine : SplitLines(kScript))
    {
        const std::size_t uiBegin = kLine.find_first_not_of(" \t");
        if (uiBegin == std::string::npos)
        {
            continue;
        }
        const eC_Bool bIsHeading = kLine.compare(uiBegin, 2, "##") == 0;
        if (bIsHeading && !kStep.m_kLines.empty())
        {
            kSteps.push_back(kStep);
            kStep = {{}, "", "", "", false};
        }
        kStep.m_kLines.push_back(kLine);
        if (bIsHeading)
        {
            SplitHeading(WithoutMarks(kLine), kStep.m_kChapter, kStep.m_kCaption);
            kStep.m_bBeginsChapter = true;
        }
        else if (kLine[uiBegin] == '#')
        {
            AddWords(kStep.m_kCaption, WithoutMarks(kLine));
        }
        else
        {
            kStep.m_kCommand = kLine;
            kSteps.push_back(kStep);
            kStep = {{}, kStep.m_kChapter, "", "", false};
        }
    }
    if (!kStep.m_kLines.empty())
    {
        kSteps.push_back(kStep);
    }
    return kSteps;
}

eC_UInt GetReadingTime(const std::string& kText)
{
    return kText.empty() ? 0 : cuiNoticeTime + cuiCharacterTime * static_cast<eC_UInt>(kText.size());
}
