// SPDX-License-Identifier: MIT
/** @file
 *  Feeds bytes into what reads and shows the lines of an inspection. Nothing breaks, a wrong line is reported
 *  once, and what is printed has no control characters, whatever a program sends.
 */

#include "Inspection/Viewer/Timeline.h"
#include "Tests/Fuzz/FuzzTarget.h"

#include <algorithm>

namespace
{
constexpr eC_UInt cuiColumns = 40;

void CheckPrinted(const std::string& kText)
{
    for (const char cByte : kText)
    {
        if (static_cast<unsigned char>(cByte) < ' ' && cByte != '\n')
        {
            Fail("a control character is printed: " + kText);
        }
    }
}

/** Feeds pieces. @return how many lines were refused */
std::size_t Feed(CDecisions& kDecisions, std::string& kBytesOUT)
{
    CInspectionReader kReader;
    CTimelineBuilder kBuilder;
    std::size_t uiRefused = 0;
    while (!kDecisions.IsEmpty())
    {
        const std::string kPiece = kDecisions.TakeText(1 + kDecisions.TakeByte());
        kBytesOUT += kPiece;
        kBuilder.Take(kPiece);
        for (std::string kError = kReader.Take(kPiece); !kError.empty(); kError = kReader.Take(""))
        {
            ShowStep(kError);
            CheckPrinted(kError);
            ++uiRefused;
        }
        CheckPrinted(kReader.GetState().Print(kReader.GetTime()));
    }
    const Timeline_t kTimeline = kBuilder.Finish();
    CheckPrinted(PrintTimeline(kTimeline, cuiColumns));
    CheckPrinted(DrawTimeline(kTimeline));
    return uiRefused;
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pcBytes, std::size_t uiSize)
{
    CDecisions kDecisions(pcBytes, uiSize);
    std::string kBytes;
    const std::size_t uiRefused = Feed(kDecisions, kBytes);
    if (uiRefused > static_cast<std::size_t>(std::count(kBytes.begin(), kBytes.end(), '\n')))
    {
        Fail("more lines were refused than there are");
    }
    return 0;
}
