// SPDX-License-Identifier: MIT
#include "Loader/DialogParser.h"

#include "Loader/DialogFileError.h"

#include <expat.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

static_assert(std::is_same<XML_Char, eC_Char>::value, "expat is built for UTF-8");

namespace
{
// expat gets its memory from operator new, like everything else here. Each block starts with its size,
// because expat does not say how large a block was when it wants a larger one.
constexpr std::size_t cuiHeader = alignof(std::max_align_t);
static_assert(cuiHeader >= sizeof(std::size_t), "the size fits into the header");

void* Allocate(std::size_t uiBytes)
{
    auto* pcBlock = static_cast<eC_Char*>(::operator new(cuiHeader + uiBytes, std::nothrow));
    if (pcBlock == nullptr)
    {
        return nullptr;
    }
    std::memcpy(pcBlock, &uiBytes, sizeof uiBytes);
    return pcBlock + cuiHeader;
}

void Free(void* pMemory)
{
    if (pMemory != nullptr)
    {
        ::operator delete(static_cast<eC_Char*>(pMemory) - cuiHeader);
    }
}

void* Reallocate(void* pMemory, std::size_t uiBytes)
{
    void* pLarger = Allocate(uiBytes);
    if (pLarger != nullptr && pMemory != nullptr)
    {
        std::size_t uiBytesBefore = 0;
        std::memcpy(&uiBytesBefore, static_cast<eC_Char*>(pMemory) - cuiHeader, sizeof uiBytesBefore);
        std::memcpy(pLarger, pMemory, std::min(uiBytesBefore, uiBytes));
        Free(pMemory);
    }
    return pLarger;
}

constexpr XML_Memory_Handling_Suite ckMemory = {Allocate, Reallocate, Free};

eC_Bool IsWhiteSpace(eC_Char cByte)
{
    return cByte == ' ' || cByte == '\n' || cByte == '\t' || cByte == '\r';
}

eC_Bool HasNamespace(const eC_Char* pcName)
{
    return std::strchr(pcName, ':') != nullptr;
}

/** @return whether expat might read the text as UTF-16, in which every tag has a zero byte */
eC_Bool MayBeUTF16(const std::string& kText)
{
    return kText.find('\0') != std::string::npos;
}

/** Copies a text for expat, with a space for each LF, which means the same everywhere in a description. expat
 * would report an LF and the spaces after it one by one, which takes a load 10 % more instructions. A text
 * with a CR stays as it is, because in a value CR LF means one space.
 */
void CopyBlankingLineFeeds(std::string_view kText, eC_Char* pcCopyOUT)
{
    if (kText.find('\r') != std::string_view::npos)
    {
        std::memcpy(pcCopyOUT, kText.data(), kText.size());
        return;
    }
    // Compilers replace the bytes of a block at once, because its size is fixed.
    eC_Char acBlock[16];
    std::size_t uiDone = 0;
    for (; kText.size() - uiDone >= sizeof acBlock; uiDone += sizeof acBlock)
    {
        std::memcpy(acBlock, kText.data() + uiDone, sizeof acBlock);
        for (eC_Char& cByte : acBlock)
        {
            cByte = cByte == '\n' ? ' ' : cByte;
        }
        std::memcpy(pcCopyOUT + uiDone, acBlock, sizeof acBlock);
    }
    std::replace_copy(kText.data() + uiDone, kText.data() + kText.size(), pcCopyOUT + uiDone, '\n', ' ');
}
} // namespace

/** The last names of their places, because elements of a level and their attributes mostly have the same
 * ones. */
struct CDialogParser::LastNames_t
{
    LastNames_t()
    {
        std::fill(std::begin(m_apcElements), std::end(m_apcElements), "");
        std::fill(std::begin(m_apcAttributes), std::end(m_apcAttributes), "");
    }

    const eC_Char* m_apcElements[cuiMaxElementDepth];    ///< by level
    const eC_Char* m_apcAttributes[cuiMaxNOFAttributes]; ///< by their place in the element
};

/** What expat calls. It is written in C, so no exception may pass through it. */
struct CDialogParser::Handlers_t
{
    static void XMLCALL OnStartElement(void* pParser, const XML_Char* pcName, const XML_Char** ppcAttributes)
    {
        auto* pkParser = static_cast<CDialogParser*>(pParser);
        try
        {
            pkParser->StartElement(pcName, ppcAttributes);
        }
        catch (...)
        {
            pkParser->m_pException = std::current_exception();
            pkParser->Refuse();
        }
    }

    static void XMLCALL OnEndElement(void* pParser, const XML_Char*)
    {
        auto* pkParser = static_cast<CDialogParser*>(pParser);
        pkParser->m_uiDepth -= pkParser->m_bIsRefused ? 0 : 1;
    }

    /** Gets the text between the tags in pieces, such as one for each reference and each CR LF. */
    static void XMLCALL OnText(void* pParser, const XML_Char* pcText, int iLength)
    {
        auto* pkParser = static_cast<CDialogParser*>(pParser);
        const eC_Char* const pcEnd = pcText + iLength;
        // Nearly all texts are indentations, which are worth a short way.
        while (pcText != pcEnd && *pcText == ' ')
        {
            ++pcText;
        }
        if (pcText != pcEnd || pkParser->m_bHasReferences)
        {
            pkParser->CheckText(pcText, pcEnd);
        }
    }

    static void XMLCALL OnCDATASection(void* pParser) { static_cast<CDialogParser*>(pParser)->Refuse(); }

    static void XMLCALL OnInstruction(void* pParser, const XML_Char* pcTarget, const XML_Char*)
    {
        if (HasNamespace(pcTarget))
        {
            static_cast<CDialogParser*>(pParser)->Refuse();
        }
    }

    static void XMLCALL OnDeclaration(void* pParser, const XML_Char* pcVersion, const XML_Char* pcEncoding,
                                      int)
    {
        const eC_Bool bIsUTF8 = pcEncoding == nullptr || std::strcmp(pcEncoding, "UTF-8") == 0 ||
                                std::strcmp(pcEncoding, "utf-8") == 0;
        if (!bIsUTF8 || pcVersion == nullptr || std::strcmp(pcVersion, "1.0") != 0)
        {
            static_cast<CDialogParser*>(pParser)->Refuse();
        }
    }

    static void XMLCALL OnDocumentType(void* pParser, const XML_Char*, const XML_Char*, const XML_Char*, int)
    {
        static_cast<CDialogParser*>(pParser)->Refuse();
    }
};

void CDialogParser::ParserDeleter_t::operator()(XML_ParserStruct* pkParser) const
{
    XML_ParserFree(pkParser);
}

CDialogParser::CDialogParser() = default;

CDialogParser::~CDialogParser() = default;

eC_Bool CDialogParser::Parse(const std::string& kText, ParsedDialog_t& kDialogOUT, XMLError_t& kErrorOUT)
{
    Prepare(kText, kDialogOUT);
    const eC_Bool bIsParsed = !MayBeUTF16(kText) && ParseText(kText);
    if (m_pException)
    {
        std::rethrow_exception(std::exchange(m_pException, nullptr));
    }
    if (bIsParsed)
    {
        return true;
    }
    const XML_Error eError = XML_GetErrorCode(m_pkParser.get());
    if (eError == XML_ERROR_NO_MEMORY)
    {
        throw std::bad_alloc();
    }
    const std::size_t uiWrongCharacter =
        eError == XML_ERROR_INVALID_TOKEN
            ? static_cast<std::size_t>(XML_GetCurrentByteIndex(m_pkParser.get()))
            : XMLProgress_t::cuiNowhere;
    kErrorOUT = ExplainXMLError(kText, GetProgress(uiWrongCharacter));
    return false;
}

eC_Bool CDialogParser::ParseText(const std::string& kText)
{
    const int iBytes = static_cast<int>(kText.size());
    auto* const pcBuffer = static_cast<eC_Char*>(XML_GetBuffer(m_pkParser.get(), iBytes));
    if (pcBuffer == nullptr)
    {
        return false;
    }
    CopyBlankingLineFeeds(kText, pcBuffer);
    LastNames_t kLastNames;
    m_pkLastNames = &kLastNames;
    const eC_Bool bIsParsed = XML_ParseBuffer(m_pkParser.get(), iBytes, XML_TRUE) != 0;
    m_pkLastNames = nullptr;
    return bIsParsed;
}

void CDialogParser::Prepare(const std::string& kText, ParsedDialog_t& kDialogOUT)
{
    kDialogOUT.m_kElements.clear();
    kDialogOUT.m_kAttributes.clear();
    kDialogOUT.m_kStartTags.clear();
    // All names and values fit, each with its zero: resolving references makes no value longer, and in the
    // text at least one more character follows each.
    if (kDialogOUT.m_kNamesAndValues.size() < kText.size())
    {
        kDialogOUT.m_kNamesAndValues.resize(kText.size());
    }
    m_pkDialog = &kDialogOUT;
    m_pcNextKept = kDialogOUT.m_kNamesAndValues.data();
    m_pkText = &kText;
    m_bHasReferences = kText.find('&') != std::string::npos;
    m_uiDepth = 0;
    m_bIsRefused = false;

    // An encoding given here overrides the one in the declaration.
    constexpr const XML_Char* cpcEncoding = "UTF-8";
    if (m_pkParser == nullptr)
    {
        m_pkParser.reset(XML_ParserCreate_MM(cpcEncoding, &ckMemory, nullptr));
        if (m_pkParser == nullptr)
        {
            throw std::bad_alloc();
        }
    }
    else
    {
        XML_ParserReset(m_pkParser.get(), cpcEncoding);
    }
    XML_SetUserData(m_pkParser.get(), this);
    XML_SetElementHandler(m_pkParser.get(), Handlers_t::OnStartElement, Handlers_t::OnEndElement);
    XML_SetCharacterDataHandler(m_pkParser.get(), Handlers_t::OnText);
    XML_SetStartCdataSectionHandler(m_pkParser.get(), Handlers_t::OnCDATASection);
    XML_SetProcessingInstructionHandler(m_pkParser.get(), Handlers_t::OnInstruction);
    XML_SetXmlDeclHandler(m_pkParser.get(), Handlers_t::OnDeclaration);
    XML_SetStartDoctypeDeclHandler(m_pkParser.get(), Handlers_t::OnDocumentType);
}

void CDialogParser::StartElement(const eC_Char* pcName, const eC_Char** ppcAttributes)
{
    if (m_uiDepth == cuiMaxElementDepth)
    {
        Refuse();
        return;
    }
    const eC_Char*& pcKeptName = m_pkLastNames->m_apcElements[m_uiDepth];
    if (std::strcmp(pcName, pcKeptName) != 0 && !KeepName(pcName, pcKeptName))
    {
        Refuse();
        return;
    }
    DialogElement_t kElement = {pcKeptName, NO_HANDLE, static_cast<unsigned char>(m_uiDepth), 0,
                                cuiNoAttribute};
    if (*ppcAttributes != nullptr && !KeepAttributes(ppcAttributes, kElement))
    {
        Refuse();
        return;
    }
    m_pkDialog->m_kStartTags.push_back(static_cast<eC_UInt>(XML_GetCurrentByteIndex(m_pkParser.get())));
    m_pkDialog->m_kElements.push_back(kElement);
    ++m_uiDepth;
}

/** Adds the attributes to the dialog and describes them in the element. @return false: refuse them */
eC_Bool CDialogParser::KeepAttributes(const eC_Char** ppcAttributes, DialogElement_t& kElement)
{
    for (; *ppcAttributes != nullptr; ppcAttributes += 2)
    {
        if (kElement.m_uiNOFAttributes == cuiMaxNOFAttributes)
        {
            return false;
        }
        const eC_Char*& pcKeptName = m_pkLastNames->m_apcAttributes[kElement.m_uiNOFAttributes];
        if (std::strcmp(ppcAttributes[0], pcKeptName) != 0 && !KeepName(ppcAttributes[0], pcKeptName))
        {
            return false;
        }
        if (std::strcmp(pcKeptName, cpcIdentifierAttribute) == 0)
        {
            kElement.m_uiNamedAttribute = kElement.m_uiNOFAttributes;
        }
        ++kElement.m_uiNOFAttributes;
        m_pkDialog->m_kAttributes.push_back({pcKeptName, Keep(ppcAttributes[1])});
    }
    return true;
}

/** Keeps a name until another one follows at its place. @return false: refuse it */
eC_Bool CDialogParser::KeepName(const eC_Char* pcName, const eC_Char*& pcKeptOUT)
{
    pcKeptOUT = Keep(pcName);
    return !HasNamespace(pcName);
}

const eC_Char* CDialogParser::Keep(const eC_Char* pcText)
{
    const std::size_t uiBytes = std::strlen(pcText) + 1;
    const eC_Char* const pcKept = m_pcNextKept;
    std::memcpy(m_pcNextKept, pcText, uiBytes);
    m_pcNextKept += uiBytes;
    return pcKept;
}

/** Refuses text other than white space, and white space from a reference. */
void CDialogParser::CheckText(const eC_Char* pcText, const eC_Char* pcEnd)
{
    if (!std::all_of(pcText, pcEnd, IsWhiteSpace) || IsAtReference())
    {
        Refuse();
    }
}

/** @return whether the text that the parser reports is a reference, such as "&#32;" */
eC_Bool CDialogParser::IsAtReference() const
{
    return m_bHasReferences &&
           (*m_pkText)[static_cast<std::size_t>(XML_GetCurrentByteIndex(m_pkParser.get()))] == '&';
}

/** Stops the parser, which may still call a handler or two before it returns. */
void CDialogParser::Refuse()
{
    m_bIsRefused = true;
    XML_StopParser(m_pkParser.get(), XML_FALSE);
}

XMLProgress_t CDialogParser::GetProgress(std::size_t uiWrongCharacter) const
{
    XMLProgress_t kProgress;
    kProgress.m_uiWrongCharacter = uiWrongCharacter;
    kProgress.m_kOpenElements.resize(m_uiDepth);
    std::size_t uiMissing = m_uiDepth;
    for (std::size_t uiElement = m_pkDialog->m_kStartTags.size(); uiMissing > 0; --uiElement)
    {
        const DialogElement_t& kElement = m_pkDialog->m_kElements[uiElement - 1];
        if (kElement.m_uiLevel == uiMissing - 1)
        {
            kProgress.m_kOpenElements[--uiMissing] = kElement.m_pcName;
        }
    }
    if (!m_pkDialog->m_kElements.empty())
    {
        kProgress.m_uiLastStartTag = m_pkDialog->m_kStartTags[m_pkDialog->m_kElements.size() - 1];
        kProgress.m_uiLastLevel = m_pkDialog->m_kElements.back().m_uiLevel;
    }
    return kProgress;
}
