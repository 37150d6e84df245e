// SPDX-License-Identifier: MIT
#include "Flow/FlowContents.h"

#include "Widgets/GUIWidget.h"

CFlowContents* CFlowContents::ms_pkUsed = nullptr;

CFlowContents::CFlowContents(const FlowModel_t& kFlow) : m_kFlow(kFlow), m_pkBefore(ms_pkUsed)
{
    Use(this);
}

CFlowContents::~CFlowContents()
{
    Use(m_pkBefore);
}

void CFlowContents::Use(CFlowContents* pkContents)
{
    ms_pkUsed = pkContents;
    CGUIWidget::SetTranslator(pkContents);
    CGUIWidget::SetValueSource(pkContents);
}

eC_Bool CFlowContents::FindText(const eC_Char* pcName, GUIContentKey_t& uiKeyOUT) const
{
    for (std::size_t uiText = 0; uiText < m_kFlow.m_kTexts.size(); ++uiText)
    {
        if (m_kFlow.m_kTexts[uiText].m_kName == pcName)
        {
            uiKeyOUT = static_cast<GUIContentKey_t>(uiText + 1);
            return true;
        }
    }
    return false;
}

const eC_Char* CFlowContents::GetText(GUIContentKey_t uiKey) const
{
    return m_kFlow.m_kTexts[uiKey - 1U].m_kText.c_str();
}

eC_Bool CFlowContents::FindValue(const eC_Char* /*pcName*/, GUIContentKey_t& uiValueOUT) const
{
    uiValueOUT = 1;
    return true;
}

const eC_Char* CFlowContents::GetValueText(GUIContentKey_t /*uiValue*/) const
{
    return "";
}

eC_Int CFlowContents::GetValueNumber(GUIContentKey_t /*uiValue*/) const
{
    return 0;
}
