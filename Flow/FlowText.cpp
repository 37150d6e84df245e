// SPDX-License-Identifier: MIT
#include "Flow/FlowText.h"

#include "Scenario/Names.h"

#include <cstring>

namespace
{
constexpr eC_UInt cuiHighest = 0xFFFFFFFFU;

std::string Quote(const eC_Char* pcText)
{
    return QuoteForMessage(pcText).GetText();
}

[[noreturn]] void Throw(const TextPosition_t& kPosition, const std::string& kFound,
                        const std::string& kExpected)
{
    throw FlowMistake_t{{kPosition, kFound.c_str(), kExpected.c_str()}};
}
} // namespace

CFlowElement::CFlowElement(const CDialogDocument& kDocument, eC_UInt uiIndex)
    : m_kDocument(kDocument), m_uiIndex(uiIndex), m_pkElement(kDocument.GetElements().m_pkElements + uiIndex)
{
    for (eC_UInt uiBefore = 0; uiBefore < uiIndex; ++uiBefore)
    {
        m_uiFirstAttribute += GetAll().m_pkElements[uiBefore].m_uiNOFAttributes;
    }
}

eC_Bool CFlowElement::Is(const eC_Char* pcName) const
{
    return std::strcmp(m_pkElement->m_pcName, pcName) == 0;
}

std::vector<CFlowElement> CFlowElement::GetChildren() const
{
    std::vector<CFlowElement> kChildren;
    for (eC_UInt uiInside = m_uiIndex + 1; uiInside < GetEnd(); ++uiInside)
    {
        if (GetAll().m_pkElements[uiInside].m_uiLevel == m_pkElement->m_uiLevel + 1)
        {
            kChildren.emplace_back(m_kDocument, uiInside);
        }
    }
    return kChildren;
}

eC_UInt CFlowElement::GetEnd() const
{
    eC_UInt uiEnd = m_uiIndex + 1;
    while (uiEnd < GetAll().m_uiNOFElements &&
           GetAll().m_pkElements[uiEnd].m_uiLevel > m_pkElement->m_uiLevel)
    {
        ++uiEnd;
    }
    return uiEnd;
}

void CFlowElement::Allow(std::initializer_list<const eC_Char*> kNames) const
{
    for (eC_UInt uiAttribute = 0; uiAttribute < m_pkElement->m_uiNOFAttributes; ++uiAttribute)
    {
        const DialogAttribute_t& kAttribute = GetAll().m_pkAttributes[m_uiFirstAttribute + uiAttribute];
        eC_Bool bIsAllowed = false;
        std::string kExpected;
        for (const eC_Char* pcName : kNames)
        {
            bIsAllowed = bIsAllowed || std::strcmp(kAttribute.m_pcName, pcName) == 0;
            kExpected += (kExpected.empty() ? "one of " : ", ") + std::string(pcName);
        }
        if (!bIsAllowed)
        {
            Throw(m_kDocument.LocateName(kAttribute),
                  "unknown attribute " + Quote(kAttribute.m_pcName) + " of " + Quote(GetName()),
                  kExpected.empty() ? "no attributes" : kExpected);
        }
    }
}

void CFlowElement::AllowNoChildren() const
{
    for (const CFlowElement& kChild : GetChildren())
    {
        kChild.Fail("element " + Quote(kChild.GetName()) + " inside " + Quote(GetName()), "no elements here");
    }
}

const DialogAttribute_t* CFlowElement::Find(const eC_Char* pcName) const
{
    for (eC_UInt uiAttribute = 0; uiAttribute < m_pkElement->m_uiNOFAttributes; ++uiAttribute)
    {
        const DialogAttribute_t& kAttribute = GetAll().m_pkAttributes[m_uiFirstAttribute + uiAttribute];
        if (std::strcmp(kAttribute.m_pcName, pcName) == 0)
        {
            return &kAttribute;
        }
    }
    return nullptr;
}

const DialogAttribute_t& CFlowElement::Get(const eC_Char* pcName, const eC_Char* pcExpected) const
{
    const DialogAttribute_t* pkAttribute = Find(pcName);
    if (pkAttribute == nullptr)
    {
        Fail("element " + Quote(GetName()) + " without attribute " + Quote(pcName), pcExpected);
    }
    return *pkAttribute;
}

std::string CFlowElement::GetText(const eC_Char* pcName) const
{
    const DialogAttribute_t* pkAttribute = Find(pcName);
    return pkAttribute != nullptr ? pkAttribute->m_pcValue : "";
}

eC_Bool CFlowElement::GetFlag(const eC_Char* pcName, eC_Bool bDefault) const
{
    return GetWord<eC_Bool>(pcName, {{"true", true}, {"false", false}}, bDefault);
}

eC_UInt CFlowElement::GetNumber(const eC_Char* pcName, eC_UInt uiLeast, eC_UInt uiMost,
                                eC_UInt uiDefault) const
{
    const DialogAttribute_t* pkAttribute = Find(pcName);
    eC_UInt uiNumber = uiDefault;
    if (pkAttribute != nullptr && (!ParseNumber(pkAttribute->m_pcValue, cuiHighest, uiNumber) ||
                                   uiNumber < uiLeast || uiNumber > uiMost))
    {
        FailAt(*pkAttribute, "a number from " + std::to_string(uiLeast) + " to " + std::to_string(uiMost));
    }
    return uiNumber;
}

void CFlowElement::FailAt(const DialogAttribute_t& kAttribute, const std::string& kExpected) const
{
    FailAt(kAttribute, 0,
           "bad value " + Quote(kAttribute.m_pcValue) + " of attribute " + Quote(kAttribute.m_pcName),
           kExpected);
}

void CFlowElement::FailAt(const DialogAttribute_t& kAttribute, std::size_t uiOffset,
                          const std::string& kFound, const std::string& kExpected) const
{
    TextPosition_t kPosition = m_kDocument.LocateValue(kAttribute);
    AdvanceInText(kAttribute.m_pcValue, 0, uiOffset, kPosition);
    Throw(kPosition, kFound, kExpected);
}

void CFlowElement::Fail(const std::string& kFound, const std::string& kExpected) const
{
    Throw(GetPosition(), kFound, kExpected);
}
