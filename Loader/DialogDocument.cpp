#include "Loader/DialogDocument.h"

#include "Loader/XMLSyntaxCheck.h"

#include <pugixml.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <system_error>

namespace
{
struct FileCloser_t
{
    void operator()(std::FILE* pkFile) const { std::fclose(pkFile); }
};

eC_Bool FailOnFile(const eC_String& kFound, DialogFileError_t& kErrorOUT)
{
    kErrorOUT.m_kPosition = TextPosition_t();
    kErrorOUT.m_kFound = kFound;
    kErrorOUT.m_kExpected = "a readable file";
    return false;
}

eC_Bool FailOnFile(const eC_Char* pcFound, const std::error_code& kReason, DialogFileError_t& kErrorOUT)
{
    return FailOnFile(eC_String(pcFound) + " (" + kReason.message().c_str() + ")", kErrorOUT);
}

std::error_code GetLastError()
{
    return std::error_code(errno, std::generic_category());
}

eC_Bool ReadFile(const std::filesystem::path& kFile, std::string& kTextOUT, DialogFileError_t& kErrorOUT)
{
    std::error_code kReason;
    const std::filesystem::file_status kStatus = std::filesystem::status(kFile, kReason);
    if (!std::filesystem::exists(kStatus))
    {
        return FailOnFile("cannot open", kReason, kErrorOUT);
    }
    if (!std::filesystem::is_regular_file(kStatus))
    {
        return FailOnFile("not a file", kErrorOUT);
    }
    const std::unique_ptr<std::FILE, FileCloser_t> kStream(std::fopen(kFile.c_str(), "rb"));
    if (!kStream)
    {
        return FailOnFile("cannot open", GetLastError(), kErrorOUT);
    }
    // The blocks are the buffer.
    std::setvbuf(kStream.get(), nullptr, _IONBF, 0);
    kTextOUT.clear();
    eC_Char acBlock[16384];
    while (const std::size_t uiLength = std::fread(acBlock, 1, sizeof acBlock, kStream.get()))
    {
        kTextOUT.append(acBlock, uiLength);
        if (kTextOUT.size() > cuiMaxDialogFileSize)
        {
            FailOnFile("file too large", kErrorOUT);
            kErrorOUT.m_kExpected =
                eC_String("at most ") + eC_String(static_cast<eC_UInt>(cuiMaxDialogFileSize)) + " bytes";
            return false;
        }
    }
    return std::ferror(kStream.get()) == 0 || FailOnFile("cannot read", GetLastError(), kErrorOUT);
}

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
    return ReadFile(kFile, m_kText, kErrorOUT) && ParseText(kErrorOUT);
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
