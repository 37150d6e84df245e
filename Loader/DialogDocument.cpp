// SPDX-License-Identifier: MIT
#include "Loader/DialogDocument.h"

#include "Loader/RegularFile.h"

CDialogDocument::CDialogDocument() = default;

CDialogDocument::~CDialogDocument() = default;

eC_Bool CDialogDocument::Load(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT)
{
    Clear();
    return ReadRegularFile(kFile, cuiMaxDialogFileSize, m_kText, kErrorOUT) && ParseText(kErrorOUT);
}

eC_Bool CDialogDocument::Parse(const std::string& kText, DialogFileError_t& kErrorOUT)
{
    Clear();
    if (kText.size() > cuiMaxDialogFileSize)
    {
        kErrorOUT = MakeFileSizeError(cuiMaxDialogFileSize);
        return false;
    }
    m_kText = kText;
    return ParseText(kErrorOUT);
}

eC_Bool CDialogDocument::ParseText(DialogFileError_t& kErrorOUT)
{
    XMLError_t kError;
    m_bIsParsed = m_kParser.Parse(m_kText, m_kDialog, kError);
    if (!m_bIsParsed)
    {
        kErrorOUT = {LocateInText(m_kText, kError.m_uiOffset), kError.m_kFound, kError.m_kExpected};
    }
    return m_bIsParsed;
}

void CDialogDocument::Clear()
{
    m_bIsParsed = false;
    m_uiLocatedElement = 0;
    m_uiLocatedAttribute = 0;
    m_uiLocatedOffset = 0;
    m_kLocatedPosition = TextPosition_t();
}

DialogElements_t CDialogDocument::GetElements() const
{
    if (!m_bIsParsed)
    {
        return {nullptr, 0, nullptr};
    }
    return {m_kDialog.m_kElements.data(), static_cast<eC_UInt>(m_kDialog.m_kElements.size()),
            m_kDialog.m_kAttributes.data()};
}

TextPosition_t CDialogDocument::LocateElement(const DialogElement_t& kElement) const
{
    return LocateOffset(
        m_kDialog.m_kStartTags[static_cast<std::size_t>(&kElement - m_kDialog.m_kElements.data())]);
}

TextPosition_t CDialogDocument::LocateName(const DialogAttribute_t& kAttribute) const
{
    return LocateOffset(FindAttribute(kAttribute).m_uiName);
}

TextPosition_t CDialogDocument::LocateValue(const DialogAttribute_t& kAttribute) const
{
    return LocateOffset(FindAttribute(kAttribute).m_uiValue);
}

/** Looks into the start tag, which is well-formed. */
CDialogDocument::AttributePlace_t CDialogDocument::FindAttribute(const DialogAttribute_t& kAttribute) const
{
    const std::size_t uiAttribute = static_cast<std::size_t>(&kAttribute - m_kDialog.m_kAttributes.data());
    if (uiAttribute < m_uiLocatedAttribute)
    {
        m_uiLocatedElement = 0;
        m_uiLocatedAttribute = 0;
    }
    for (; uiAttribute - m_uiLocatedAttribute >= m_kDialog.m_kElements[m_uiLocatedElement].m_uiNOFAttributes;
         ++m_uiLocatedElement)
    {
        m_uiLocatedAttribute += m_kDialog.m_kElements[m_uiLocatedElement].m_uiNOFAttributes;
    }

    constexpr const eC_Char* cpcWhiteSpace = " \t\n\r";
    std::size_t uiEnd = m_kText.find_first_of(cpcWhiteSpace, m_kDialog.m_kStartTags[m_uiLocatedElement]);
    for (std::size_t uiNext = m_uiLocatedAttribute;; ++uiNext)
    {
        const std::size_t uiName = m_kText.find_first_not_of(cpcWhiteSpace, uiEnd);
        const std::size_t uiQuote = m_kText.find_first_of("\"'", uiName);
        if (uiNext == uiAttribute)
        {
            return {uiName, uiQuote + 1};
        }
        uiEnd = m_kText.find(m_kText[uiQuote], uiQuote + 1) + 1;
    }
}

TextPosition_t CDialogDocument::LocateOffset(std::size_t uiOffset) const
{
    if (uiOffset < m_uiLocatedOffset)
    {
        m_uiLocatedOffset = 0;
        m_kLocatedPosition = TextPosition_t();
    }
    AdvanceInText(m_kText, m_uiLocatedOffset, uiOffset, m_kLocatedPosition);
    m_uiLocatedOffset = uiOffset;
    return m_kLocatedPosition;
}
