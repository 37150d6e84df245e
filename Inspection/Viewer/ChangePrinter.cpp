// SPDX-License-Identifier: MIT
#include "Inspection/Viewer/ChangePrinter.h"

#include "Scenario/TextLines.h"

#include <utility>

void CChangePrinter::OnLine(const InspectedLine_t& kLine)
{
    if (kLine.m_uiDropped > 0)
    {
        Print(kLine, "# ", std::to_string(kLine.m_uiDropped) + " lines were dropped");
    }
    switch (kLine.m_eType)
    {
    case LINE_TRACE:
        PrintTrace(kLine);
        break;
    case LINE_STATE:
        PrintPart(kLine);
        break;
    case LINE_REPLY:
        ++m_uiReplies;
        Print(kLine, kLine.m_bIsError ? "! " : "= ", kLine.m_kText + (kLine.m_bIsCut ? "..." : ""));
        break;
    case LINE_START:
        Print(kLine, "# ", "the program records its run");
        break;
    case LINE_INPUT:
        Print(kLine, "> ", kLine.m_kText);
        break;
    case LINE_TURN:
        break;
    }
}

std::string CChangePrinter::TakeText()
{
    return std::exchange(m_kText, std::string());
}

/** Each line of the text gets the time and the sign; an empty text is nothing to print. */
void CChangePrinter::Print(const InspectedLine_t& kLine, const std::string& kSign, const std::string& kText)
{
    const std::string kBefore = std::to_string(kLine.m_uiTime) + " ms " + kSign;
    for (const std::string& kPrinted : SplitLines(kText))
    {
        m_kText += kBefore;
        m_kText += kPrinted;
        m_kText += "\n";
    }
}

void CChangePrinter::PrintTrace(const InspectedLine_t& kLine)
{
    const std::string kAbout =
        kLine.m_kHazard.empty() ? std::string() : kLine.m_kHazard + " " + kLine.m_kAbout.GetText() + ": ";
    Print(kLine, kLine.m_kLevel + ": " + kAbout, kLine.m_kText);
    if (!kLine.m_kFile.empty())
    {
        Print(kLine, "", "  at " + kLine.m_kFile + ":" + std::to_string(kLine.m_uiLine));
    }
}

void CChangePrinter::PrintPart(const InspectedLine_t& kLine)
{
    std::string& kBefore = m_akPrinted[kLine.m_ePart];
    std::string kNow = kLine.m_bMore ? kBefore : m_kState.PrintWithoutTimes(kLine.m_ePart);
    if (kNow != kBefore)
    {
        for (const std::string& kChange : SplitLines(DiffLines(kBefore, kNow)))
        {
            Print(kLine, "", kChange.front() != ' ' ? kChange : std::string());
        }
        kBefore = std::move(kNow);
    }
}
