// SPDX-License-Identifier: MIT
#include "Simulator/TracePane.h"

#include <algorithm>
#include <cctype>

namespace
{
eC_Bool ContainsWord(const std::string& kText, const std::string& kWord)
{
    const auto IsSame = [](eC_Char cOne, eC_Char cOther)
    {
        return std::tolower(static_cast<unsigned char>(cOne)) ==
               std::tolower(static_cast<unsigned char>(cOther));
    };
    return std::search(kText.begin(), kText.end(), kWord.begin(), kWord.end(), IsSame) != kText.end();
}

eC_Bool IsError(const TraceItem_t& kItem)
{
    return kItem.m_eKind == TraceItem_t::REFUSAL ||
           (kItem.m_eKind == TraceItem_t::ENTRY && kItem.m_kLevel == "ERROR");
}

eC_Bool IsWarning(const TraceItem_t& kItem)
{
    return kItem.m_eKind == TraceItem_t::ENTRY && (kItem.m_kLevel == "WARNING" || kItem.m_kLevel == "HAZARD");
}

StyledLine_t DescribeEntry(const TraceItem_t& kItem)
{
    std::string kMessage = kItem.m_kText;
    kMessage.erase(kMessage.find_last_not_of('\n') + 1);
    const std::size_t uiScope = kMessage.find("::");
    if (uiScope < kMessage.find(' '))
    {
        kMessage.erase(0, uiScope + 2);
    }
    std::string kTime = FormatSeconds(kItem.m_uiTime);
    kTime.insert(0, kTime.size() < 9 ? 9 - kTime.size() : 0, ' ');
    return {kTime + (IsError(kItem) ? " !! " : (IsWarning(kItem) ? " !  " : "    ")) + kItem.m_kLevel + ": " +
                kMessage,
            IsError(kItem) ? STYLE_ERROR : (IsWarning(kItem) ? STYLE_WARNING : STYLE_PLAIN)};
}

StyledLine_t DescribeItem(const TraceItem_t& kItem)
{
    switch (kItem.m_eKind)
    {
    case TraceItem_t::INPUT:
        return {"> " + kItem.m_kText, STYLE_STRONG};
    case TraceItem_t::COMMENT:
        return {kItem.m_kText, STYLE_DIM};
    case TraceItem_t::RESULT:
        return {"= " + kItem.m_kText, STYLE_PLAIN};
    case TraceItem_t::REFUSAL:
        return {"!! " + kItem.m_kText, STYLE_ERROR};
    case TraceItem_t::ENTRY:
        break;
    }
    return DescribeEntry(kItem);
}
} // namespace

void CTracePane::SetFilter(const std::string& kFilter)
{
    m_kFilter = kFilter;
    m_iScroll = 0;
}

void CTracePane::ChangeLevel()
{
    m_eLevel = static_cast<ELevel>((m_eLevel + 1) % NOF_LEVELS);
    m_iScroll = 0;
}

void CTracePane::Scroll(eC_Int iLines, std::size_t uiMost)
{
    const auto iMost = static_cast<eC_Int>(std::min<std::size_t>(uiMost, 0x7FFFFFFF));
    m_iScroll = std::clamp(m_iScroll + iLines, 0, iMost);
}

eC_Bool CTracePane::IsShown(const TraceItem_t& kItem) const
{
    const eC_Bool bHasLevel =
        m_eLevel == LEVEL_ALL || IsError(kItem) || (m_eLevel == LEVEL_WARNINGS && IsWarning(kItem));
    const eC_Bool bIsEntry = kItem.m_eKind == TraceItem_t::ENTRY;
    return bHasLevel && ContainsWord((bIsEntry ? kItem.m_kLevel + ": " : "") + kItem.m_kText, m_kFilter);
}

std::string CTracePane::GetHeading() const
{
    static const eC_Char* const s_apcLevels[] = {"trace", "trace: warnings and errors", "trace: errors"};
    const std::string kFilter = m_kFilter.empty() ? "" : ", with '" + m_kFilter + "'";
    return s_apcLevels[m_eLevel] + kFilter +
           (m_iScroll > 0 ? ", " + std::to_string(m_iScroll) + " newer below" : "");
}

std::vector<StyledLine_t> CTracePane::Describe(std::size_t uiRows, const OlderItem_t& fnOlder) const
{
    const std::size_t uiMost = uiRows + static_cast<std::size_t>(m_iScroll);
    std::vector<StyledLine_t> kLines;
    TraceItem_t kItem;
    while (kLines.size() < uiMost && fnOlder(kItem))
    {
        if (IsShown(kItem))
        {
            kLines.push_back(DescribeItem(kItem));
        }
    }
    std::reverse(kLines.begin(), kLines.end());
    // At the oldest end the pane stays full.
    kLines.resize(std::min(kLines.size(), uiRows), {std::string(), STYLE_PLAIN});
    return kLines;
}
