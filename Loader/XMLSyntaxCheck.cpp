// SPDX-License-Identifier: MIT
#include "Loader/XMLSyntaxCheck.h"

#include "Loader/DialogElements.h"
#include "Loader/UTF8Text.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <string_view>

namespace
{
struct CharacterRange_t
{
    char32_t m_cFirst;
    char32_t m_cLast;
};

// The characters with which a name begins, without the colon, which only namespaces need.
constexpr CharacterRange_t cakNameStartCharacters[] = {
    {'A', 'Z'},       {'_', '_'},       {'a', 'z'},       {0xC0, 0xD6},     {0xD8, 0xF6},
    {0xF8, 0x2FF},    {0x370, 0x37D},   {0x37F, 0x1FFF},  {0x200C, 0x200D}, {0x2070, 0x218F},
    {0x2C00, 0x2FEF}, {0x3001, 0xD7FF}, {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}, {0x10000, 0xEFFFF}};

constexpr CharacterRange_t cakFurtherNameCharacters[] = {
    {'-', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t uiSize>
constexpr eC_Bool IsInOneOf(const CharacterRange_t (&akRanges)[uiSize], char32_t cCharacter)
{
    eC_Bool bIsInside = false;
    for (const CharacterRange_t& kRange : akRanges)
    {
        bIsInside = bIsInside || (cCharacter >= kRange.m_cFirst && cCharacter <= kRange.m_cLast);
    }
    return bIsInside;
}

constexpr eC_Bool IsNameStartCharacter(char32_t cCharacter)
{
    return IsInOneOf(cakNameStartCharacters, cCharacter);
}

constexpr eC_Bool IsNameCharacter(char32_t cCharacter)
{
    return IsNameStartCharacter(cCharacter) || IsInOneOf(cakFurtherNameCharacters, cCharacter);
}

constexpr eC_Bool IsWhiteSpace(char32_t cCharacter)
{
    return cCharacter == ' ' || cCharacter == '\t' || cCharacter == '\n' || cCharacter == '\r';
}

constexpr eC_Bool IsCharacter(char32_t cCharacter)
{
    return cCharacter >= ' ' ? cCharacter != 0xFFFE && cCharacter != 0xFFFF : IsWhiteSpace(cCharacter);
}

/** What a byte can be in a text; a byte of a longer character has no bit. */
enum EByteKind : unsigned char
{
    BYTE_WHITE_SPACE = 1,
    BYTE_ALLOWED = 2,    ///< a character of one byte that XML allows
    BYTE_NAME_START = 4, ///< a character of one byte that begins a name
    BYTE_NAME = 8,       ///< a character of one byte inside a name
    BYTE_IN_VALUE = 16   ///< nothing that ends or interrupts a value; bytes of longer characters, too
};

struct ByteKinds_t
{
    unsigned char m_auiKinds[256];
};

constexpr ByteKinds_t MakeByteKinds()
{
    ByteKinds_t kKinds{};
    for (unsigned int uiByte = 0; uiByte < 256; ++uiByte)
    {
        const eC_Bool bIsASCII = uiByte < 0x80;
        const eC_Bool bEndsValue =
            uiByte == '\0' || uiByte == '"' || uiByte == '\'' || uiByte == '<' || uiByte == '&';
        kKinds.m_auiKinds[uiByte] = static_cast<unsigned char>(
            (IsWhiteSpace(uiByte) ? BYTE_WHITE_SPACE : 0) |
            (bIsASCII && IsCharacter(uiByte) ? BYTE_ALLOWED : 0) |
            (bIsASCII && IsNameStartCharacter(uiByte) ? BYTE_NAME_START : 0) |
            (bIsASCII && IsNameCharacter(uiByte) ? BYTE_NAME : 0) | (bEndsValue ? 0 : BYTE_IN_VALUE));
    }
    return kKinds;
}

constexpr ByteKinds_t ckByteKinds = MakeByteKinds();

eC_Bool IsOfKind(eC_Char cByte, EByteKind eKind)
{
    return (ckByteKinds.m_auiKinds[static_cast<unsigned char>(cByte)] & eKind) != 0;
}

const eC_Char* SkipKind(const eC_Char* pcAt, EByteKind eKind)
{
    while (IsOfKind(*pcAt, eKind))
    {
        ++pcAt;
    }
    return pcAt;
}

/** Skips characters of one byte that XML allows. */
const eC_Char* SkipAllowed(const eC_Char* pcAt, const eC_Char* pcEnd)
{
    // In blocks, so that compilers can look at many bytes at once.
    constexpr std::ptrdiff_t ciBlock = 32;
    while (pcEnd - pcAt >= ciBlock)
    {
        unsigned char uiNotAllowed = 0;
        for (std::ptrdiff_t iByte = 0; iByte < ciBlock; ++iByte)
        {
            const signed char cByte = static_cast<signed char>(pcAt[iByte]);
            const eC_Bool bIsAllowed = cByte >= ' ' || cByte == '\t' || cByte == '\n' || cByte == '\r';
            uiNotAllowed |= static_cast<unsigned char>(bIsAllowed ? 0 : 1);
        }
        if (uiNotAllowed != 0)
        {
            break;
        }
        pcAt += ciBlock;
    }
    return SkipKind(pcAt, BYTE_ALLOWED);
}

/** Walks over a text, from the beginning to the first error. */
class CXMLSyntaxCheck
{
public:
    CXMLSyntaxCheck(const std::string& kText, XMLSyntaxError_t& kErrorOUT)
        : m_kText(kText), m_pcAt(kText.c_str()), m_kErrorOUT(kErrorOUT)
    {
    }

    eC_Bool Check() { return CheckCharacters() && CheckDocument(); }

private:
    eC_Bool CheckCharacters();
    eC_Bool CheckDocument();
    eC_Bool CheckDeclaration();
    eC_Bool CheckDeclarationItem(std::string_view kName, std::initializer_list<std::string_view> kValues,
                                 const eC_Char* pcExpected);
    eC_Bool CheckTopElement();
    eC_Bool CheckContent();
    eC_Bool CheckBehindTopElement();
    eC_Bool CheckStartTag();
    eC_Bool CheckEndTag();
    eC_Bool CheckAttribute(std::size_t uiNOFAttributes);
    eC_Bool CheckEqualsSign();
    eC_Bool CheckValue();
    eC_Bool CheckReference();
    eC_Bool CheckCharacterReference(const eC_Char* pcReference);
    eC_Bool SkipMiscellany()
    {
        SkipWhiteSpace();
        return (*m_pcAt == '<' && m_pcAt[1] != '!' && m_pcAt[1] != '?') || SkipMarkup();
    }
    eC_Bool SkipMarkup();
    eC_Bool CheckComment();
    eC_Bool CheckInstruction();
    eC_Bool CheckName(const eC_Char* pcExpected, std::string_view& kNameOUT)
    {
        const eC_Char* const pcName = m_pcAt;
        const eC_Char* const pcEnd = SkipKind(pcName, BYTE_NAME);
        if (!IsOfKind(*pcName, BYTE_NAME_START) || *pcEnd == ':' ||
            static_cast<unsigned char>(*pcEnd) >= 0x80)
        {
            return CheckUnusualName(pcExpected, kNameOUT);
        }
        m_pcAt = pcEnd;
        kNameOUT = std::string_view(pcName, static_cast<std::size_t>(pcEnd - pcName));
        return true;
    }
    eC_Bool CheckUnusualName(const eC_Char* pcExpected, std::string_view& kNameOUT);

    eC_Bool StartsWith(std::string_view kText) const;
    eC_Bool IsAtEnd() const { return *m_pcAt == '\0'; }
    eC_Bool SkipWhiteSpace()
    {
        const eC_Char* const pcBefore = m_pcAt;
        m_pcAt = SkipKind(pcBefore, BYTE_WHITE_SPACE);
        return m_pcAt != pcBefore;
    }
    eC_Bool IsAtNameStart() const;
    std::size_t MeasureLongCharacter(eC_Bool (*pfnBelongs)(char32_t)) const;
    std::string_view GetRest() const;
    eC_String DescribeHere() const;
    eC_Bool FailAt(const eC_Char* pcAt, const eC_String& kFound, const eC_String& kExpected);
    eC_Bool FailHere(const eC_String& kExpected) { return FailAt(m_pcAt, DescribeHere(), kExpected); }

    // Making strings is long code, which must not stand in the way of a text without errors.
    [[gnu::cold]] eC_Bool FailAt(const eC_Char* pcAt, const eC_Char* pcFound, const eC_Char* pcExpected);
    [[gnu::cold]] eC_Bool FailHere(const eC_Char* pcExpected);
    [[gnu::cold]] eC_Bool FailAtLimit(const eC_Char* pcAt, const eC_Char* pcFound, std::size_t uiLimit,
                                      const eC_Char* pcUnit);
    [[gnu::cold]] eC_Bool FailAtSecond(std::string_view kAttribute);
    [[gnu::cold]] eC_Bool FailAtEndTag(const eC_Char* pcTag, std::string_view kName);
    [[gnu::cold]] eC_Bool FailAtContent();

    const std::string& m_kText;
    const eC_Char* m_pcAt; ///< up to here the text is right; it ends with a zero and has none inside
    XMLSyntaxError_t& m_kErrorOUT;
    std::string_view m_akOpenElements[cuiMaxElementDepth];
    std::size_t m_uiDepth = 0;
    std::string_view m_akAttributes[cuiMaxNOFAttributes]; ///< of the element whose tag is being checked
};

eC_Bool CXMLSyntaxCheck::CheckCharacters()
{
    const eC_Char* const pcEnd = m_kText.data() + m_kText.size();
    const eC_Char* pcAt = SkipAllowed(m_kText.data(), pcEnd);
    while (pcAt != pcEnd)
    {
        char32_t cCharacter = 0;
        const std::size_t uiLength =
            DecodeUTF8(std::string_view(pcAt, static_cast<std::size_t>(pcEnd - pcAt)), cCharacter);
        if (uiLength == 0)
        {
            return FailAt(pcAt, "malformed UTF-8", "text in UTF-8");
        }
        if (!IsCharacter(cCharacter))
        {
            eC_Char acCharacter[16];
            std::snprintf(acCharacter, sizeof acCharacter, "U+%04X", static_cast<eC_UInt>(cCharacter));
            return FailAt(pcAt, eC_String("character ") + acCharacter, "characters that XML allows");
        }
        pcAt = SkipAllowed(pcAt + uiLength, pcEnd);
    }
    return true;
}

eC_Bool CXMLSyntaxCheck::CheckDocument()
{
    if (m_kText.empty())
    {
        return FailAt(m_pcAt, "empty file", "a top element");
    }
    if (StartsWith(ckByteOrderMark))
    {
        m_pcAt += ckByteOrderMark.size();
    }
    return CheckDeclaration() && SkipMiscellany() && CheckTopElement() && SkipMiscellany() &&
           CheckBehindTopElement();
}

eC_Bool CXMLSyntaxCheck::CheckDeclaration()
{
    constexpr std::string_view ckStart = "<?xml";
    if (!StartsWith(ckStart) || !IsWhiteSpace(static_cast<unsigned char>(m_pcAt[ckStart.size()])))
    {
        return true;
    }
    m_pcAt += ckStart.size();
    SkipWhiteSpace();
    if (!StartsWith("version"))
    {
        return FailHere("version=\"1.0\"");
    }
    if (!CheckDeclarationItem("version", {"1.0"}, "\"1.0\"") ||
        !CheckDeclarationItem("encoding", {"UTF-8", "utf-8"}, "\"UTF-8\"") ||
        !CheckDeclarationItem("standalone", {"yes", "no"}, "\"yes\" or \"no\""))
    {
        return false;
    }
    if (!StartsWith("?>"))
    {
        return FailHere("'?>'");
    }
    m_pcAt += 2;
    return true;
}

eC_Bool CXMLSyntaxCheck::CheckDeclarationItem(std::string_view kName,
                                              std::initializer_list<std::string_view> kValues,
                                              const eC_Char* pcExpected)
{
    if (!StartsWith(kName))
    {
        return true;
    }
    m_pcAt += kName.size();
    if (!CheckEqualsSign())
    {
        return false;
    }
    const eC_Char cQuote = *m_pcAt;
    for (const std::string_view kValue : kValues)
    {
        const std::string_view kRest = GetRest();
        const eC_Bool bIsQuoted = cQuote == '"' || cQuote == '\'';
        if (bIsQuoted && kRest.substr(1, kValue.size()) == kValue &&
            kRest.substr(1 + kValue.size(), 1) == std::string_view(&cQuote, 1))
        {
            m_pcAt += kValue.size() + 2;
            return SkipWhiteSpace() || StartsWith("?>") || FailHere("white space or '?>'");
        }
    }
    return FailHere(pcExpected);
}

eC_Bool CXMLSyntaxCheck::CheckTopElement()
{
    if (IsAtEnd())
    {
        return FailHere("a top element");
    }
    if (StartsWith("<!DOCTYPE"))
    {
        return FailAt(m_pcAt, "document type declaration", "a top element");
    }
    if (*m_pcAt != '<' || StartsWith("<![CDATA["))
    {
        return FailAt(m_pcAt, "text before the top element", "a top element");
    }
    if (!CheckStartTag())
    {
        return false;
    }
    while (m_uiDepth > 0)
    {
        if (!SkipMiscellany() || !CheckContent())
        {
            return false;
        }
    }
    return true;
}

eC_Bool CXMLSyntaxCheck::CheckContent()
{
    if (*m_pcAt == '<' && m_pcAt[1] == '/')
    {
        return CheckEndTag();
    }
    if (*m_pcAt == '<' && !(m_pcAt[1] == '!' && StartsWith("<![CDATA[")))
    {
        return CheckStartTag();
    }
    return FailAtContent();
}

eC_Bool CXMLSyntaxCheck::CheckBehindTopElement()
{
    if (IsAtEnd())
    {
        return true;
    }
    const eC_Char* pcElement = m_pcAt++;
    if (*pcElement == '<' && IsAtNameStart())
    {
        return FailAt(pcElement, "second top element", "the end of the file");
    }
    m_pcAt = pcElement;
    return FailHere("the end of the file");
}

eC_Bool CXMLSyntaxCheck::CheckStartTag()
{
    if (m_uiDepth == cuiMaxElementDepth)
    {
        return FailAtLimit(m_pcAt, "element nested too deeply", cuiMaxElementDepth, " levels");
    }
    ++m_pcAt;
    std::string_view kName;
    if (!CheckName("an element name", kName))
    {
        return false;
    }
    m_akOpenElements[m_uiDepth] = kName;
    ++m_uiDepth;
    for (std::size_t uiNOFAttributes = 0;; ++uiNOFAttributes)
    {
        const eC_Bool bIsSeparated = SkipWhiteSpace();
        if (*m_pcAt == '>')
        {
            ++m_pcAt;
            return true;
        }
        if (*m_pcAt == '/' && m_pcAt[1] == '>')
        {
            m_pcAt += 2;
            --m_uiDepth;
            return true;
        }
        if (!bIsSeparated)
        {
            return FailHere("white space, '>' or '/>'");
        }
        if (!CheckAttribute(uiNOFAttributes))
        {
            return false;
        }
    }
}

eC_Bool CXMLSyntaxCheck::CheckEndTag()
{
    const eC_Char* pcTag = m_pcAt;
    const std::string_view kOpenElement = m_akOpenElements[m_uiDepth - 1];
    std::string_view kName;
    m_pcAt += 2;
    if (!CheckName("an element name", kName))
    {
        return false;
    }
    if (kName != kOpenElement)
    {
        return FailAtEndTag(pcTag, kName);
    }
    SkipWhiteSpace();
    if (*m_pcAt != '>')
    {
        return FailHere("'>'");
    }
    ++m_pcAt;
    --m_uiDepth;
    return true;
}

eC_Bool CXMLSyntaxCheck::CheckAttribute(std::size_t uiNOFAttributes)
{
    const eC_Char* pcAttribute = m_pcAt;
    std::string_view kName;
    if (!CheckName("an attribute name, '>' or '/>'", kName))
    {
        return false;
    }
    if (uiNOFAttributes == cuiMaxNOFAttributes)
    {
        return FailAtLimit(pcAttribute, "too many attributes", cuiMaxNOFAttributes, "");
    }
    const std::string_view* const pkEnd = m_akAttributes + uiNOFAttributes;
    if (std::find(static_cast<const std::string_view*>(m_akAttributes), pkEnd, kName) != pkEnd)
    {
        return FailAtSecond(kName);
    }
    m_akAttributes[uiNOFAttributes] = kName;
    return CheckEqualsSign() && CheckValue();
}

eC_Bool CXMLSyntaxCheck::CheckEqualsSign()
{
    SkipWhiteSpace();
    if (*m_pcAt != '=')
    {
        return FailHere("'='");
    }
    ++m_pcAt;
    SkipWhiteSpace();
    return true;
}

eC_Bool CXMLSyntaxCheck::CheckValue()
{
    const eC_Char cQuote = *m_pcAt;
    if (cQuote != '"' && cQuote != '\'')
    {
        return FailHere("a value in quotes");
    }
    ++m_pcAt;
    for (;;)
    {
        m_pcAt = SkipKind(m_pcAt, BYTE_IN_VALUE);
        if (*m_pcAt == cQuote)
        {
            ++m_pcAt;
            return true;
        }
        if (IsAtEnd())
        {
            return FailHere("the closing quote of the value");
        }
        if (*m_pcAt == '<')
        {
            return FailAt(m_pcAt, "'<' in a value", "'&lt;' or the closing quote");
        }
        if (*m_pcAt != '&')
        {
            ++m_pcAt; // the other kind of quote
        }
        else if (!CheckReference())
        {
            return false;
        }
    }
}

eC_Bool CXMLSyntaxCheck::CheckReference()
{
    const eC_Char* pcReference = m_pcAt++;
    std::string_view kName;
    if (*m_pcAt == '#')
    {
        return CheckCharacterReference(pcReference);
    }
    if (!CheckName("", kName) || *m_pcAt != ';')
    {
        return FailAt(pcReference, "'&' that begins no reference", "'&amp;'");
    }
    for (const eC_Char* pcKnown : {"lt", "gt", "amp", "quot", "apos"})
    {
        if (kName == pcKnown)
        {
            return true;
        }
    }
    return FailAt(pcReference, eC_String("unknown entity ") + QuoteForMessage(kName),
                  "one of lt, gt, amp, quot, apos");
}

eC_Bool CXMLSyntaxCheck::CheckCharacterReference(const eC_Char* pcReference)
{
    const eC_Bool bIsHexadecimal = pcReference[2] == 'x';
    const std::string_view kDigits = bIsHexadecimal ? "0123456789ABCDEFabcdef" : "0123456789";
    const eC_Char* pcDigits = pcReference + (bIsHexadecimal ? 3 : 2);
    const std::size_t uiNOFDigits = std::strspn(pcDigits, kDigits.data());
    m_pcAt = pcDigits + uiNOFDigits;
    if (uiNOFDigits == 0 || *m_pcAt != ';')
    {
        return FailAt(pcReference, "'&#' that begins no character reference",
                      "'&#' and decimal digits or '&#x' and hexadecimal digits, then ';'");
    }
    char32_t cCharacter = 0;
    for (const eC_Char* pcDigit = pcDigits; pcDigit != m_pcAt && cCharacter <= 0x10FFFF; ++pcDigit)
    {
        std::uint32_t uiValue = static_cast<std::uint32_t>(*pcDigit - '0');
        if (*pcDigit > '9')
        {
            uiValue = static_cast<std::uint32_t>((*pcDigit | 0x20) - 'a' + 10);
        }
        cCharacter = cCharacter * (bIsHexadecimal ? 16 : 10) + uiValue;
    }
    ++m_pcAt;
    const eC_Bool bIsSurrogate = cCharacter >= 0xD800 && cCharacter <= 0xDFFF;
    if (cCharacter > 0x10FFFF || bIsSurrogate || !IsCharacter(cCharacter))
    {
        const std::string_view kReference(pcReference, static_cast<std::size_t>(m_pcAt - pcReference));
        return FailAt(pcReference, eC_String("reference to no character ") + QuoteForMessage(kReference),
                      "a character that XML allows");
    }
    return true;
}

/** Skips comments and processing instructions, the white space behind them, and nothing else. */
eC_Bool CXMLSyntaxCheck::SkipMarkup()
{
    for (;;)
    {
        const eC_Bool bIsComment = StartsWith("<!--");
        if (!bIsComment && !StartsWith("<?"))
        {
            return true;
        }
        if (bIsComment ? !CheckComment() : !CheckInstruction())
        {
            return false;
        }
        SkipWhiteSpace();
    }
}

eC_Bool CXMLSyntaxCheck::CheckComment()
{
    const eC_Char* pcHyphens = std::strstr(m_pcAt + 4, "--");
    if (pcHyphens == nullptr)
    {
        return FailAt(m_pcAt, "comment without an end", "'-->'");
    }
    if (pcHyphens[2] != '>')
    {
        return FailAt(pcHyphens, "'--' in a comment", "'-->' at its end only");
    }
    m_pcAt = pcHyphens + 3;
    return true;
}

eC_Bool CXMLSyntaxCheck::CheckInstruction()
{
    const eC_Char* pcInstruction = m_pcAt;
    std::string_view kTarget;
    m_pcAt += 2;
    if (!CheckName("the name of a processing instruction", kTarget))
    {
        return false;
    }
    const eC_Bool bIsReserved = kTarget.size() == 3 && (kTarget[0] | 0x20) == 'x' &&
                                (kTarget[1] | 0x20) == 'm' && (kTarget[2] | 0x20) == 'l';
    if (bIsReserved)
    {
        return FailAt(pcInstruction, "XML declaration", "'<?xml version=\"1.0\"?>' at the beginning only");
    }
    if (!SkipWhiteSpace() && !StartsWith("?>"))
    {
        return FailHere("white space or '?>'");
    }
    const eC_Char* pcEnd = std::strstr(m_pcAt, "?>");
    if (pcEnd == nullptr)
    {
        return FailAt(pcInstruction, "processing instruction without an end", "'?>'");
    }
    m_pcAt = pcEnd + 2;
    return true;
}

/** Checks a name with characters of several bytes, or none. */
eC_Bool CXMLSyntaxCheck::CheckUnusualName(const eC_Char* pcExpected, std::string_view& kNameOUT)
{
    if (!IsAtNameStart())
    {
        return FailHere(pcExpected);
    }
    const eC_Char* pcName = m_pcAt;
    m_pcAt = SkipKind(m_pcAt, BYTE_NAME);
    while (const std::size_t uiLength = MeasureLongCharacter(IsNameCharacter))
    {
        m_pcAt = SkipKind(m_pcAt + uiLength, BYTE_NAME);
    }
    kNameOUT = std::string_view(pcName, static_cast<std::size_t>(m_pcAt - pcName));
    return *m_pcAt != ':' || FailHere("a name without a namespace");
}

eC_Bool CXMLSyntaxCheck::StartsWith(std::string_view kText) const
{
    const eC_Char* pcAt = m_pcAt;
    for (const eC_Char cByte : kText)
    {
        if (*pcAt++ != cByte)
        {
            return false;
        }
    }
    return true;
}

eC_Bool CXMLSyntaxCheck::IsAtNameStart() const
{
    return IsOfKind(*m_pcAt, BYTE_NAME_START) || MeasureLongCharacter(IsNameStartCharacter) != 0;
}

std::size_t CXMLSyntaxCheck::MeasureLongCharacter(eC_Bool (*pfnBelongs)(char32_t)) const
{
    if (static_cast<unsigned char>(*m_pcAt) < 0x80)
    {
        return 0;
    }
    char32_t cCharacter = 0;
    const std::size_t uiLength = DecodeUTF8(GetRest(), cCharacter);
    return pfnBelongs(cCharacter) ? uiLength : 0;
}

std::string_view CXMLSyntaxCheck::GetRest() const
{
    return std::string_view(m_kText).substr(static_cast<std::size_t>(m_pcAt - m_kText.data()));
}

eC_String CXMLSyntaxCheck::DescribeHere() const
{
    if (IsAtEnd())
    {
        return "end of the file";
    }
    if (IsWhiteSpace(static_cast<unsigned char>(*m_pcAt)))
    {
        return "white space";
    }
    char32_t cCharacter = 0;
    return QuoteForMessage(GetRest().substr(0, DecodeUTF8(GetRest(), cCharacter)));
}

eC_Bool CXMLSyntaxCheck::FailAt(const eC_Char* pcAt, const eC_Char* pcFound, const eC_Char* pcExpected)
{
    return FailAt(pcAt, eC_String(pcFound), eC_String(pcExpected));
}

eC_Bool CXMLSyntaxCheck::FailHere(const eC_Char* pcExpected)
{
    return FailAt(m_pcAt, DescribeHere(), pcExpected);
}

eC_Bool CXMLSyntaxCheck::FailAtLimit(const eC_Char* pcAt, const eC_Char* pcFound, std::size_t uiLimit,
                                     const eC_Char* pcUnit)
{
    return FailAt(pcAt, pcFound, eC_String("at most ") + eC_String(static_cast<eC_UInt>(uiLimit)) + pcUnit);
}

eC_Bool CXMLSyntaxCheck::FailAtSecond(std::string_view kAttribute)
{
    return FailAt(kAttribute.data(), eC_String("second attribute ") + QuoteForMessage(kAttribute),
                  "each attribute once");
}

eC_Bool CXMLSyntaxCheck::FailAtEndTag(const eC_Char* pcTag, std::string_view kName)
{
    return FailAt(pcTag, eC_String("end tag of ") + QuoteForMessage(kName),
                  eC_String("the end tag of ") + QuoteForMessage(m_akOpenElements[m_uiDepth - 1]));
}

eC_Bool CXMLSyntaxCheck::FailAtContent()
{
    const eC_String kExpected =
        eC_String("an element or the end tag of ") + QuoteForMessage(m_akOpenElements[m_uiDepth - 1]);
    return IsAtEnd() ? FailHere(kExpected) : FailAt(m_pcAt, "text between elements", kExpected);
}

eC_Bool CXMLSyntaxCheck::FailAt(const eC_Char* pcAt, const eC_String& kFound, const eC_String& kExpected)
{
    m_kErrorOUT.m_uiOffset = static_cast<std::size_t>(pcAt - m_kText.data());
    m_kErrorOUT.m_kFound = kFound;
    m_kErrorOUT.m_kExpected = kExpected;
    return false;
}
} // namespace

eC_Bool CheckXMLSyntax(const std::string& kText, XMLSyntaxError_t& kErrorOUT)
{
    return CXMLSyntaxCheck(kText, kErrorOUT).Check();
}
