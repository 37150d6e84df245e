// SPDX-License-Identifier: MIT
#include "Scenario/ScenarioArguments.h"

#include <algorithm>

CScenarioArguments::CScenarioArguments(const std::string& kLine) : m_kLine(kLine)
{
    std::size_t uiBegin = kLine.find_first_not_of(" \t");
    while (uiBegin != std::string::npos)
    {
        const bool bIsQuoted = kLine[uiBegin] == '"';
        const std::size_t uiTextBegin = bIsQuoted ? uiBegin + 1 : uiBegin;
        const std::size_t uiTextEnd = kLine.find_first_of(bIsQuoted ? "\"" : " \t", uiTextBegin);
        if (bIsQuoted && uiTextEnd == std::string::npos)
        {
            throw ScenarioError_t{"expected a closing quote, found the end of the line"};
        }
        const std::size_t uiEnd = std::min(uiTextEnd, kLine.size());
        m_kWords.push_back({kLine.substr(uiTextBegin, uiEnd - uiTextBegin), uiBegin});
        uiBegin = kLine.find_first_not_of(" \t", bIsQuoted ? uiEnd + 1 : uiEnd);
    }
}

const std::string& CScenarioArguments::GetText(eC_UInt uiIndex) const
{
    if (uiIndex >= GetCount())
    {
        Fail(uiIndex, "a word");
    }
    return m_kWords[uiIndex + 1].m_kText;
}

std::string CScenarioArguments::GetRest(eC_UInt uiIndex) const
{
    if (uiIndex >= GetCount())
    {
        Fail(uiIndex, "a word");
    }
    return m_kLine.substr(m_kWords[uiIndex + 1].m_uiBegin);
}

ObjectHandle_t CScenarioArguments::GetHandle(eC_UInt uiIndex) const
{
    return GetValue(uiIndex, WORD_HANDLE).m_eHandle;
}

CGUIObject* CScenarioArguments::GetObject(eC_UInt uiIndex) const
{
    return GetValue(uiIndex, WORD_OBJECT).m_pkObject;
}

CGUIDialogManager::EOldDialogAction CScenarioArguments::GetAction(eC_UInt uiIndex) const
{
    return GetValue(uiIndex, WORD_ACTION).m_eAction;
}

CGUIDialogManager::PopupPriority_t CScenarioArguments::GetPriority(eC_UInt uiIndex) const
{
    return GetValue(uiIndex, WORD_PRIORITY).m_ePriority;
}

eC_UInt CScenarioArguments::GetNumber(eC_UInt uiIndex) const
{
    return GetValue(uiIndex, WORD_NUMBER).m_uiNumber;
}

eC_Bool CScenarioArguments::GetFlag(eC_UInt uiIndex) const
{
    return GetValue(uiIndex, WORD_FLAG).m_bFlag;
}

WordValue_t CScenarioArguments::GetValue(eC_UInt uiIndex, EWordKind eKind) const
{
    WordValue_t kValue;
    const eC_Char* const pcExpected = ReadWord(eKind, GetText(uiIndex).c_str(), kValue);
    if (pcExpected != nullptr)
    {
        Fail(uiIndex, pcExpected);
    }
    return kValue;
}

eC_UInt CScenarioArguments::GetChoice(eC_UInt uiIndex, const std::vector<std::string>& kChoices) const
{
    const auto kFound = std::find(kChoices.begin(), kChoices.end(), GetText(uiIndex));
    if (kFound == kChoices.end())
    {
        std::string kExpected;
        for (const std::string& kChoice : kChoices)
        {
            kExpected += (kExpected.empty() ? "" : ", ") + kChoice;
        }
        Fail(uiIndex, "one of " + kExpected);
    }
    return static_cast<eC_UInt>(kFound - kChoices.begin());
}

void CScenarioArguments::Fail(eC_UInt uiIndex, const std::string& kExpected) const
{
    const std::string kFound =
        uiIndex < GetCount() ? "'" + m_kWords[uiIndex + 1].m_kText + "'" : std::string("the end of the line");
    throw ScenarioError_t{"expected " + kExpected + ", found " + kFound};
}
