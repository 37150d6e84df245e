// SPDX-License-Identifier: MIT
#include "Loader/DialogDocument.h"

#include "Loader/RegularFile.h"
#include "Loader/XMLSyntaxCheck.h"

#include <pugixml.hpp>

#include <cstring>
#include <new>

namespace
{
/** Collects the elements of a tree that has nothing else. */
class CElementCollector : public pugi::xml_tree_walker
{
public:
    CElementCollector(std::vector<DialogElement_t>& kElementsOUT,
                      std::vector<DialogAttribute_t>& kAttributesOUT)
        : m_kElementsOUT(kElementsOUT), m_kAttributesOUT(kAttributesOUT)
    {
    }

    bool for_each(pugi::xml_node& kNode) override
    {
        DialogElement_t kElement = {kNode.name(), NO_HANDLE, static_cast<unsigned char>(depth()), 0,
                                    cuiNoAttribute};
        for (pugi::xml_attribute kAttribute = kNode.first_attribute(); !kAttribute.empty();
             kAttribute = kAttribute.next_attribute())
        {
            const eC_Char* pcName = kAttribute.name();
            if (std::strcmp(pcName, cpcIdentifierAttribute) == 0)
            {
                kElement.m_uiNamedAttribute = kElement.m_uiNOFAttributes;
            }
            ++kElement.m_uiNOFAttributes;
            m_kAttributesOUT.push_back({pcName, kAttribute.value()});
        }
        m_kElementsOUT.push_back(kElement);
        return true;
    }

private:
    std::vector<DialogElement_t>& m_kElementsOUT;
    std::vector<DialogAttribute_t>& m_kAttributesOUT;
};
} // namespace

eC_Bool CDialogDocument::Load(const std::filesystem::path& kFile, DialogFileError_t& kErrorOUT)
{
    Clear();
    return ReadRegularFile(kFile, cuiMaxDialogFileSize, m_kText, kErrorOUT) && ParseText(kErrorOUT);
}

eC_Bool CDialogDocument::Parse(const std::string& kText, DialogFileError_t& kErrorOUT)
{
    Clear();
    m_kText = kText;
    return ParseText(kErrorOUT);
}

eC_Bool CDialogDocument::ParseText(DialogFileError_t& kErrorOUT)
{
    XMLSyntaxError_t kError;
    if (!CheckXMLSyntax(m_kText, kError))
    {
        kErrorOUT.m_kPosition = LocateInText(m_kText, kError.m_uiOffset);
        kErrorOUT.m_kFound = kError.m_kFound;
        kErrorOUT.m_kExpected = kError.m_kExpected;
        return false;
    }
    CollectElements();
    m_bIsParsed = true;
    return true;
}

/** Fills the elements from a text that passed the check. */
void CDialogDocument::CollectElements()
{
    // The tree's names and values lie in the text that it is parsed from, so that they outlive the tree.
    m_kParsedText = m_kText;
    pugi::xml_document kTree;
    constexpr unsigned int cuiOptions = pugi::parse_escapes | pugi::parse_wconv_attribute;
    // Every text that passed the check can be parsed, so that only memory can be wanting.
    if (!kTree.load_buffer_inplace(m_kParsedText.data(), m_kParsedText.size(), cuiOptions,
                                   pugi::encoding_utf8))
    {
        throw std::bad_alloc();
    }
    m_kElements.clear();
    m_kAttributes.clear();
    CElementCollector kCollector(m_kElements, m_kAttributes);
    kTree.traverse(kCollector);
}

void CDialogDocument::Clear()
{
    m_bIsParsed = false;
    m_uiLocatedOffset = 0;
    m_kLocatedPosition = TextPosition_t();
}

DialogElements_t CDialogDocument::GetElements() const
{
    if (!m_bIsParsed)
    {
        return {nullptr, 0, nullptr};
    }
    return {m_kElements.data(), static_cast<eC_UInt>(m_kElements.size()), m_kAttributes.data()};
}

TextPosition_t CDialogDocument::LocateElement(const DialogElement_t& kElement) const
{
    return LocateParsed(kElement.m_pcName - 1);
}

TextPosition_t CDialogDocument::LocateName(const DialogAttribute_t& kAttribute) const
{
    return LocateParsed(kAttribute.m_pcName);
}

TextPosition_t CDialogDocument::LocateValue(const DialogAttribute_t& kAttribute) const
{
    return LocateParsed(kAttribute.m_pcValue);
}

TextPosition_t CDialogDocument::LocateParsed(const eC_Char* pcParsed) const
{
    const std::size_t uiOffset = static_cast<std::size_t>(pcParsed - m_kParsedText.data());
    if (uiOffset < m_uiLocatedOffset)
    {
        m_uiLocatedOffset = 0;
        m_kLocatedPosition = TextPosition_t();
    }
    AdvanceInText(m_kText, m_uiLocatedOffset, uiOffset, m_kLocatedPosition);
    m_uiLocatedOffset = uiOffset;
    return m_kLocatedPosition;
}
