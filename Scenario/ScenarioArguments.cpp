#include "Scenario/ScenarioArguments.h"

#include "Core/Control/GUI.h"
#include "Scenario/Names.h"

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
    ObjectHandle_t eHandle = NO_HANDLE;
    if (!ParseObjectHandle(GetText(uiIndex).c_str(), eHandle))
    {
        Fail(uiIndex, "the name of a handle or a number");
    }
    return eHandle;
}

CGUIObject* CScenarioArguments::GetObject(eC_UInt uiIndex) const
{
    CGUIObject* pkObject = CGUI::GetInstance().GetObjectByID(GetHandle(uiIndex), false);
    if (pkObject == nullptr)
    {
        Fail(uiIndex, "an object under the root");
    }
    return pkObject;
}

CGUIDialogManager::EOldDialogAction CScenarioArguments::GetAction(eC_UInt uiIndex) const
{
    CGUIDialogManager::EOldDialogAction eAction = CGUIDialogManager::ODA_NOTHING;
    if (!ParseAction(GetText(uiIndex), eAction))
    {
        Fail(uiIndex,
             "an action (ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_DELETE, ODA_DELETE_ALL, ODA_NOTHING)");
    }
    return eAction;
}

CGUIDialogManager::PopupPriority_t CScenarioArguments::GetPriority(eC_UInt uiIndex) const
{
    CGUIDialogManager::PopupPriority_t ePriority = CGUIDialogManager::PRIO_LOWEST;
    if (!ParsePriority(GetText(uiIndex), ePriority))
    {
        Fail(uiIndex, "a priority (PRIO_LOWEST to PRIO_HIGHEST, or a number up to 255)");
    }
    return ePriority;
}

eC_UInt CScenarioArguments::GetNumber(eC_UInt uiIndex) const
{
    constexpr eC_UInt cuiGreatest = 0xFFFFFFFFU;
    eC_UInt uiNumber = 0;
    if (!ParseNumber(GetText(uiIndex), cuiGreatest, uiNumber))
    {
        Fail(uiIndex, "a number from 0 to 4294967295");
    }
    return uiNumber;
}

eC_Bool CScenarioArguments::GetFlag(eC_UInt uiIndex) const
{
    const std::string& kText = GetText(uiIndex);
    if (kText != "false" && kText != "true")
    {
        Fail(uiIndex, "one of false, true");
    }
    return kText == "true";
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
