// SPDX-License-Identifier: MIT
#include "Simulator/Attach/AttachedDesk.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr eC_Int ciPage = 5; ///< lines to scroll

std::string DescribeHazard(const InspectedLine_t& kLine)
{
    return kLine.m_kHazard.empty() ? std::string() : kLine.m_kHazard + " " + kLine.m_kAbout.GetText() + ": ";
}
} // namespace

CAttachedDesk::CAttachedDesk(const CInspectionReader& kReader, const std::string& kName, eC_Bool bTakesInput)
    : m_kReader(kReader), m_kName(kName), m_bTakesInput(bTakesInput)
{
}

void CAttachedDesk::OnLine(const InspectedLine_t& kLine)
{
    if (kLine.m_uiDropped > 0)
    {
        Add({TraceItem_t::COMMENT, "", "# " + std::to_string(kLine.m_uiDropped) + " lines were dropped", 0});
    }
    switch (kLine.m_eType)
    {
    case LINE_TRACE:
        Add({TraceItem_t::ENTRY, kLine.m_kLevel, DescribeHazard(kLine) + kLine.m_kText, kLine.m_uiTime});
        break;
    case LINE_INPUT:
        // A program that records its input repeats what was sent to it.
        if (m_kUnanswered.empty() || m_kUnanswered.front() != kLine.m_kText)
        {
            Add({TraceItem_t::INPUT, "", kLine.m_kText, 0});
        }
        break;
    case LINE_REPLY:
        if (!m_kUnanswered.empty())
        {
            m_kUnanswered.pop_front();
        }
        if (!kLine.m_kText.empty())
        {
            Add({kLine.m_bIsError ? TraceItem_t::REFUSAL : TraceItem_t::RESULT, "",
                 kLine.m_kText + (kLine.m_bIsCut ? "..." : ""), 0});
        }
        break;
    case LINE_START:
        Add({TraceItem_t::COMMENT, "", "# the program records its run", 0});
        break;
    case LINE_STATE:
    case LINE_TURN:
        break;
    }
}

void CAttachedDesk::Complain(const std::string& kFault)
{
    m_bHasFault = true;
    Add({TraceItem_t::REFUSAL, "", kFault, 0});
    Say(kFault, STYLE_ERROR);
}

void CAttachedDesk::SetGone()
{
    m_bIsGone = true;
    m_eMode = m_eMode == MODE_LINE ? MODE_VIEW : m_eMode;
    if (!m_bHasFault)
    {
        Say("the program is gone; this is what it has told. q leaves");
    }
}

void CAttachedDesk::Add(const TraceItem_t& kItem)
{
    m_kTrace.push_back(kItem);
    if (m_kTrace.size() > cuiMostItems)
    {
        m_kTrace.pop_front();
    }
    // Who reads older lines keeps them before the eyes.
    if (m_kTracePane.GetScroll() > 0 && m_kTracePane.IsShown(kItem))
    {
        m_kTracePane.Scroll(1, m_kTrace.size());
    }
}

void CAttachedDesk::Say(const std::string& kText, ETextStyle eStyle)
{
    m_kMessage = kText;
    m_eMessageStyle = eStyle;
}

std::vector<std::string> CAttachedDesk::TakeLines()
{
    return std::exchange(m_kLines, {});
}

void CAttachedDesk::PressKey(const std::string& kKey)
{
    switch (m_eMode)
    {
    case MODE_HELP:
        m_eMode = MODE_VIEW;
        break;
    case MODE_LINE:
    case MODE_FILTER:
        PressKeyInPrompt(kKey);
        break;
    case MODE_VIEW:
        PressKeyInView(kKey);
        break;
    }
}

void CAttachedDesk::PressKeyInView(const std::string& kKey)
{
    if (kKey == "?" || kKey == "F1")
    {
        m_eMode = MODE_HELP;
    }
    else if (kKey == "q")
    {
        m_bIsOver = true;
    }
    else if (kKey == ":")
    {
        AskForLine();
    }
    else if (kKey == "/")
    {
        m_eMode = MODE_FILTER;
        m_kEditor = CLineEditor(m_kTracePane.GetFilter());
    }
    else if (kKey == "e")
    {
        m_kTracePane.ChangeLevel();
    }
    else if (kKey == "PageUp" || kKey == "PageDown")
    {
        ScrollTrace(kKey == "PageUp" ? ciPage : -ciPage);
    }
    else if (kKey == "i" || kKey == "I")
    {
        ScrollState(kKey == "i" ? ciPage : -ciPage);
    }
    else
    {
        Say(kKey + " does nothing here; ? lists the keys");
    }
}

void CAttachedDesk::AskForLine()
{
    if (m_bIsGone)
    {
        Say("the program is gone", STYLE_ERROR);
    }
    else if (!m_bTakesInput)
    {
        Say("nothing can be sent to a program whose lines arrive on standard input", STYLE_ERROR);
    }
    else
    {
        m_eMode = MODE_LINE;
        m_kEditor = CLineEditor();
    }
}

void CAttachedDesk::PressKeyInPrompt(const std::string& kKey)
{
    if (kKey == "Enter")
    {
        FinishPrompt();
    }
    else if (kKey == "Escape")
    {
        m_eMode = MODE_VIEW;
    }
    else
    {
        m_kEditor.PressKey(kKey);
    }
}

void CAttachedDesk::FinishPrompt()
{
    const std::string& kText = m_kEditor.GetText();
    if (m_eMode == MODE_FILTER)
    {
        m_kTracePane.SetFilter(kText);
    }
    else if (kText.find_first_not_of(' ') != std::string::npos)
    {
        Say("");
        m_kLines.push_back(kText);
        m_kUnanswered.push_back(kText);
        m_kTracePane.ScrollToNewest();
        Add({TraceItem_t::INPUT, "", kText, 0});
    }
    m_eMode = MODE_VIEW;
}

void CAttachedDesk::ScrollTrace(eC_Int iLines)
{
    m_kTracePane.Scroll(iLines, m_kTrace.size());
}

void CAttachedDesk::ScrollState(eC_Int iLines)
{
    const CInspectedState& kState = m_kReader.GetState();
    const std::size_t uiLines = std::max(DescribeState(kState, 0, COLUMN_SITUATION).size(),
                                         DescribeState(kState, 0, COLUMN_OBJECTS).size());
    m_iStateScroll = std::clamp(m_iStateScroll + iLines, 0, static_cast<eC_Int>(uiLines) - 1);
}

const std::vector<DeskKey_t>& CAttachedDesk::GetKeys()
{
    static const std::vector<DeskKey_t> s_kKeys = {{":", "type a line for the program"},
                                                   {"/ e", "filter the trace by text, by level"},
                                                   {"PgUp PgDn", "scroll the trace"},
                                                   {"i I", "scroll the state"},
                                                   {"q", "leave; the program goes on"}};
    return s_kKeys;
}
