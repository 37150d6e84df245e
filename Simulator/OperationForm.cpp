// SPDX-License-Identifier: MIT
#include "Simulator/OperationForm.h"

#include "Scenario/ScenarioArguments.h"

#include <algorithm>

namespace
{
using Names = std::vector<std::string>;

eC_Bool IsFlag(const std::string& kLabel)
{
    static const Names s_kFlags = {"delete",          "recover-focus",    "stepwise", "delete-current",
                                   "delete-on-close", "consider-current", "flag"};
    return std::find(s_kFlags.begin(), s_kFlags.end(), kLabel) != s_kFlags.end();
}

Names GetChoicesFor(const std::string& kLabel, const StateNames_t& kNames)
{
    if (kLabel == "dialog")
    {
        return kNames.m_kDialogs;
    }
    if (kLabel == "popup")
    {
        return kNames.m_kPopups;
    }
    if (kLabel == "object")
    {
        return kNames.m_kObjects;
    }
    if (kLabel == "path")
    {
        return kNames.m_kPaths;
    }
    if (kLabel == "action")
    {
        return {"ODA_INVISIBLE", "ODA_INVISIBLE_ALL", "ODA_DELETE", "ODA_DELETE_ALL", "ODA_NOTHING"};
    }
    if (kLabel == "priority")
    {
        return {"PRIO_MEDIUM",       "PRIO_LOWEST", "PRIO_VERY_LOW",  "PRIO_LOW",    "PRIO_BELOW_MEDIUM",
                "PRIO_ABOVE_MEDIUM", "PRIO_HIGH",   "PRIO_VERY_HIGH", "PRIO_HIGHEST"};
    }
    return IsFlag(kLabel) ? Names{"true", "false"} : Names();
}

/** "<dialog>", "[<dialog>]" and "<text...>" without their brackets and dots. */
std::string GetLabelOf(const std::string& kParameter)
{
    const std::size_t uiBegin = kParameter.find_first_not_of("<[");
    const std::size_t uiEnd = kParameter.find_first_of(".>]", uiBegin);
    return uiBegin == std::string::npos ? kParameter : kParameter.substr(uiBegin, uiEnd - uiBegin);
}
} // namespace

COperationForm::COperationForm(const std::string& kUsage, const StateNames_t& kNames)
{
    const CScenarioArguments kParameters(kUsage);
    m_kCommand = kParameters.GetCommand();
    for (eC_UInt uiIndex = 0; uiIndex < kParameters.GetCount(); ++uiIndex)
    {
        Field_t kField;
        kField.m_kLabel = GetLabelOf(kParameters.GetText(uiIndex));
        kField.m_kChoices = GetChoicesFor(kField.m_kLabel, kNames);
        kField.m_kEditor.SetText(kField.m_kChoices.empty() ? std::string() : kField.m_kChoices.front());
        m_kFields.push_back(kField);
    }
}

eC_Bool COperationForm::PressKey(const std::string& kKey)
{
    if (m_kFields.empty())
    {
        return kKey == "Enter";
    }
    const eC_Bool bIsLast = m_uiSelected + 1 == m_kFields.size();
    Field_t& kField = m_kFields[m_uiSelected];
    if (kKey == "Enter" || kKey == "Tab")
    {
        m_uiSelected = bIsLast ? (kKey == "Tab" ? 0 : m_uiSelected) : m_uiSelected + 1;
        return bIsLast && kKey == "Enter";
    }
    if (kKey == "BackTab")
    {
        m_uiSelected = (m_uiSelected == 0 ? m_kFields.size() : m_uiSelected) - 1;
    }
    else if (kKey == "ArrowUp" || kKey == "ArrowDown")
    {
        Choose(kKey == "ArrowDown");
    }
    else if (kField.m_kEditor.PressKey(kKey))
    {
        kField.m_kTyped = kField.m_kEditor.GetText();
    }
    return false;
}

std::string COperationForm::GetLine() const
{
    std::string kLine = m_kCommand;
    for (const Field_t& kField : m_kFields)
    {
        kLine += kField.m_kEditor.GetText().empty() ? "" : " " + kField.m_kEditor.GetText();
    }
    return kLine;
}

std::vector<std::string> COperationForm::GetChoices() const
{
    std::vector<std::string> kChoices;
    if (m_uiSelected < m_kFields.size())
    {
        const Field_t& kField = m_kFields[m_uiSelected];
        std::copy_if(kField.m_kChoices.begin(), kField.m_kChoices.end(), std::back_inserter(kChoices),
                     [&kField](const std::string& kChoice)
                     { return kChoice.find(kField.m_kTyped) != std::string::npos; });
    }
    return kChoices;
}

void COperationForm::Choose(eC_Bool bNext)
{
    const std::vector<std::string> kChoices = GetChoices();
    if (kChoices.empty())
    {
        return;
    }
    CLineEditor& kEditor = m_kFields[m_uiSelected].m_kEditor;
    const auto kChosen = std::find(kChoices.begin(), kChoices.end(), kEditor.GetText());
    const auto uiChosen = static_cast<std::size_t>(kChosen - kChoices.begin());
    const std::size_t uiNext = kChosen == kChoices.end() ? (bNext ? 0 : kChoices.size() - 1)
                                                         : uiChosen + (bNext ? 1 : kChoices.size() - 1);
    kEditor.SetText(kChoices[uiNext % kChoices.size()]);
}
