// SPDX-License-Identifier: MIT
#include "Loader/DialogTreeBuilder.h"

#include "Core/Control/GUICompositeObject.h"
#include "Core/Control/GUIObject.h"
#include "Core/GUIFactoryManager.h"

#include <cstring>
#include <utility>

CDialogTreeBuilder::CDialogTreeBuilder(const DialogElements_t& kElements)
    : m_kElements(kElements),
      m_kFactory(CGUIFactoryManager::GetInstance()),
      m_pkElement(kElements.m_pkElements),
      m_pkAttribute(kElements.m_pkAttributes)
{
}

CDialogTreeBuilder::~CDialogTreeBuilder() = default;

std::unique_ptr<CGUIObject> CDialogTreeBuilder::Build()
{
    const DialogElement_t* const pkEnd = m_kElements.m_pkElements + m_kElements.m_uiNOFElements;
    for (; m_pkElement != pkEnd; ++m_pkElement)
    {
        if (!BuildElement())
        {
            m_kTop.reset();
            break;
        }
    }
    return std::move(m_kTop);
}

eC_Bool CDialogTreeBuilder::BuildElement()
{
    // A table may be from a compiler that allows more.
    if (m_pkElement->m_uiLevel >= cuiMaxElementDepth)
    {
        return Fail(TOO_DEEP);
    }
    CGUIObject* pkParent = m_pkElement->m_uiLevel == 0 ? nullptr : m_apkOpen[m_pkElement->m_uiLevel - 1];
    if (pkParent != nullptr && !pkParent->IsCompositeObject())
    {
        return Fail(ELEMENT_INSIDE);
    }
    ObjectHandle_t eID = m_pkElement->m_eID;
    if (m_pkElement->m_uiNamedAttribute != cuiNoAttribute && !ReadIdentifier(eID))
    {
        return false;
    }
    // Elements in a row with the same name mostly share its address, in a table and in a document.
    if (m_kClass.m_pcName != m_pkElement->m_pcName)
    {
        FindCreator(m_pkElement->m_pcName);
    }
    if (m_kClass.m_pfnCreate == nullptr)
    {
        return Fail(UNKNOWN_ELEMENT);
    }
    CGUIObject* pkObject = m_kClass.m_pfnCreate(static_cast<CGUICompositeObject*>(pkParent), eID);
    if (pkObject == nullptr)
    {
        return Fail(NOT_MADE);
    }
    if (pkParent == nullptr)
    {
        m_kTop.reset(pkObject);
    }
    m_apkOpen[m_pkElement->m_uiLevel] = pkObject;
    return m_pkElement->m_uiNOFAttributes == 0 || SetAttributes(*pkObject);
}

void CDialogTreeBuilder::FindCreator(const eC_Char* pcClass)
{
    // Containers and what they contain take turns.
    std::swap(m_kClass, m_kOtherClass);
    if (m_kClass.m_pcName == pcClass)
    {
        return;
    }
    if (m_kClass.m_pcName == nullptr || std::strcmp(m_kClass.m_pcName, pcClass) != 0)
    {
        m_kClass.m_pfnCreate = m_kFactory.FindCreator(pcClass);
    }
    m_kClass.m_pcName = pcClass;
}

eC_Bool CDialogTreeBuilder::ReadIdentifier(ObjectHandle_t& eIDOUT)
{
    const DialogAttribute_t* pkName = m_pkAttribute + m_pkElement->m_uiNamedAttribute;
    if (ParseObjectHandle(pkName->m_pcValue, eIDOUT))
    {
        return true;
    }
    m_pkAttribute = pkName;
    return Fail(WRONG_HANDLE);
}

eC_Bool CDialogTreeBuilder::SetAttributes(CGUIObject& kObject)
{
    for (unsigned char i = 0; i < m_pkElement->m_uiNOFAttributes; ++i, ++m_pkAttribute)
    {
        if (i == m_pkElement->m_uiNamedAttribute)
        {
            continue;
        }
        eC_String kExpected;
        const EAttributeResult eResult =
            kObject.SetAttribute(m_pkAttribute->m_pcName, m_pkAttribute->m_pcValue, kExpected);
        if (eResult != ATTRIBUTE_SET)
        {
            m_kExpected = kExpected;
            return Fail(eResult == ATTRIBUTE_UNKNOWN ? UNKNOWN_ATTRIBUTE : BAD_VALUE);
        }
    }
    return true;
}

eC_Bool CDialogTreeBuilder::Fail(EFailure eFailure)
{
    m_eFailure = eFailure;
    return false;
}

CDialogTreeBuilder::EPart CDialogTreeBuilder::GetPart() const
{
    switch (m_eFailure)
    {
    case UNKNOWN_ATTRIBUTE:
        return ATTRIBUTE_NAME;
    case WRONG_HANDLE:
    case BAD_VALUE:
        return ATTRIBUTE_VALUE;
    case UNKNOWN_ELEMENT:
    case ELEMENT_INSIDE:
    case TOO_DEEP:
    case NOT_MADE:
        break;
    }
    return ELEMENT;
}

DialogFileError_t CDialogTreeBuilder::MakeError(const TextPosition_t& kPosition) const
{
    switch (m_eFailure)
    {
    case ELEMENT_INSIDE:
        return MakeElementInsideError(kPosition, m_pkElement->m_pcName, GetOuterElementName());
    case TOO_DEEP:
        return MakeTooDeepError(kPosition);
    case NOT_MADE:
        return MakeNotMadeError(kPosition, m_pkElement->m_pcName);
    case WRONG_HANDLE:
        return MakeHandleError(kPosition, m_pkAttribute->m_pcValue);
    case UNKNOWN_ATTRIBUTE:
        return MakeUnknownAttributeError(kPosition, m_pkAttribute->m_pcName, m_pkElement->m_pcName,
                                         m_kExpected);
    case BAD_VALUE:
        return MakeBadValueError(kPosition, m_pkAttribute->m_pcName, m_pkAttribute->m_pcValue, m_kExpected);
    case UNKNOWN_ELEMENT:
        break;
    }
    return MakeUnknownElementError(kPosition, m_pkElement->m_pcName);
}

const eC_Char* CDialogTreeBuilder::GetOuterElementName() const
{
    const DialogElement_t* pkOuter = m_pkElement;
    while (pkOuter->m_uiLevel >= m_pkElement->m_uiLevel)
    {
        --pkOuter;
    }
    return pkOuter->m_pcName;
}
