// SPDX-License-Identifier: MIT
#include "Simulator/ShortTour.h"

#include "Scenario/TextLines.h"
#include "Simulator/TextPainter.h"
#include "Simulator/TourScript.h"

#include <algorithm>

namespace
{
/** What is told of a chapter. */
struct Chapter_t
{
    std::string m_kSentence;
    CTextScreen m_kBefore;
    CTextScreen m_kFrame;
    eC_Int m_iDifference;
};

eC_Int CountDifferences(const CTextScreen& kOne, const CTextScreen& kOther)
{
    eC_Int iDifferences = 0;
    for (eC_Int iY = 0; iY < kOne.GetHeight(); ++iY)
    {
        for (eC_Int iX = 0; iX < kOne.GetWidth(); ++iX)
        {
            const std::string kBytes = kOne.GetCell(iX, iY).m_acBytes;
            iDifferences += kBytes == kOther.GetCell(iX, iY).m_acBytes ? 0 : 1;
        }
    }
    return iDifferences;
}

/** A frame without the empty rows at its bottom, which would only take space. */
std::vector<std::string> GetFrameLines(const CTextScreen& kScreen)
{
    std::vector<std::string> kLines = SplitLines(kScreen.GetFrame());
    const std::string kEdge = kLines.back();
    kLines.pop_back();
    while (kLines.size() > 2 && kLines.back().find_first_not_of("| ") == std::string::npos)
    {
        kLines.pop_back();
    }
    kLines.push_back(kEdge);
    return kLines;
}

std::vector<std::string> DescribeChapter(const Chapter_t& kChapter)
{
    std::vector<std::string> kLines = {kChapter.m_kSentence};
    const std::vector<std::string> kFrame = GetFrameLines(kChapter.m_kFrame);
    kLines.insert(kLines.end(), kFrame.begin(), kFrame.end());
    return kLines;
}

/** "2. DIALOGS: The list replaces the home screen." */
std::string GetSentence(const TourStep_t& kStep)
{
    const std::size_t uiEnd = kStep.m_kCaption.find(". ");
    return kStep.m_kChapter + (kStep.m_kCaption.empty() ? "" : ": ") +
           kStep.m_kCaption.substr(0, uiEnd == std::string::npos ? uiEnd : uiEnd + 1);
}
} // namespace

std::vector<std::string> TellShortTour(CSimulation& kSimulation, const std::string& kScript,
                                       std::string& kErrorOUT)
{
    const Device_t& kDevice = kSimulation.GetApplication().GetDevice();
    std::vector<Chapter_t> kChapters;
    kSimulation.Restart();
    kErrorOUT.clear();
    for (const TourStep_t& kStep : ReadTour(kScript))
    {
        if (kStep.m_bBeginsChapter && !kStep.m_kCommand.empty())
        {
            const CTextScreen kNow = PaintDevice(kDevice);
            kChapters.push_back({GetSentence(kStep), kNow, kNow, -1});
        }
        const SimulatedResult_t kResult = kSimulation.Run(kStep.m_kCommand);
        if (!kResult.m_bIsExecuted)
        {
            kErrorOUT = kStep.m_kCommand + ": " + kResult.m_kText;
            break;
        }
        const CTextScreen kNow = PaintDevice(kDevice);
        if (!kChapters.empty() &&
            CountDifferences(kChapters.back().m_kBefore, kNow) > kChapters.back().m_iDifference)
        {
            kChapters.back().m_kFrame = kNow;
            kChapters.back().m_iDifference = CountDifferences(kChapters.back().m_kBefore, kNow);
        }
    }

    std::vector<std::string> kLines;
    for (std::size_t uiChapter = 0; uiChapter < kChapters.size(); ++uiChapter)
    {
        const std::vector<std::string> kChapter = DescribeChapter(kChapters[uiChapter]);
        if (kLines.size() + kChapter.size() + 1 > cuiMostShortTourLines)
        {
            kLines.push_back(std::to_string(kChapters.size() - uiChapter) +
                             " more chapters are in the whole tour.");
            break;
        }
        kLines.insert(kLines.end(), kChapter.begin(), kChapter.end());
    }
    return kLines;
}
