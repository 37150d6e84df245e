// SPDX-License-Identifier: MIT
#include "Loader/XMLErrorExplainer.h"

#include "Loader/DialogElements.h"
#include "Loader/DialogFileError.h"
#include "Loader/UTF8Text.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>

namespace
{
eC_Bool IsWhiteSpace(eC_Char cByte)
{
    return cByte == ' ' || cByte == '\t' || cByte == '\n' || cByte == '\r';
}

eC_Bool IsCharacter(char32_t cCharacter)
{
    return cCharacter >= ' ' ? cCharacter != 0xFFFE && cCharacter != 0xFFFF
                             : cCharacter == '\t' || cCharacter == '\n' || cCharacter == '\r';
}

/** Accepts all characters beyond ASCII: the parser gives the place of one that no name may have. */
eC_Bool IsNameStart(eC_Char cByte)
{
    return (cByte >= 'A' && cByte <= 'Z') || (cByte >= 'a' && cByte <= 'z') || cByte == '_' ||
           static_cast<unsigned char>(cByte) >= 0x80;
}

eC_Bool IsNameByte(eC_Char cByte)
{
    return IsNameStart(cByte) || (cByte >= '0' && cByte <= '9') || cByte == '-' || cByte == '.';
}

/** Walks over a text until it finds the error. A function that explains or skips something returns false when
 *  it has found it.
 */
class CXMLErrorExplainer
{
public:
    CXMLErrorExplainer(const std::string& kText, const XMLProgress_t& kProgress)
        : m_kText(kText), m_kProgress(kProgress), m_pcAt(kText.c_str())
    {
    }

    XMLError_t Explain();

private:
    eC_Bool ExplainCharacters();
    eC_Bool ExplainMarkup();
    eC_Bool ExplainBeforeTopElement();
    eC_Bool ExplainAfterTopElement();
    eC_Bool ExplainContent();

    void SkipLastStartTag();
    eC_Bool SkipAcceptedEndTag();
    eC_Bool SkipMiscellany();
    eC_Bool SkipDeclaration();
    eC_Bool SkipDeclarationItem(std::string_view kName, std::initializer_list<std::string_view> kValues,
                                const eC_Char* pcExpected);
    eC_Bool SkipComment();
    eC_Bool SkipInstruction();
    eC_Bool SkipStartTag();
    eC_Bool SkipEndTag();
    eC_Bool SkipAttribute();
    eC_Bool SkipEqualsSign();
    eC_Bool SkipValue();
    eC_Bool SkipReference();
    eC_Bool SkipCharacterReference();
    eC_Bool SkipName(const eC_Char* pcExpected, std::string_view& kNameOUT);
    eC_Bool SkipWhiteSpace();

    eC_Bool StartsWith(std::string_view kText) const;
    eC_Bool IsAtEnd() const { return *m_pcAt == '\0'; }
    eC_Bool IsAtNameStart() const { return IsNameStart(*m_pcAt) && !IsAtWrongCharacter(); }
    eC_Bool IsAtWrongCharacter() const;
    std::string_view GetRest() const;
    eC_String DescribeHere() const;
    eC_Bool FailAt(const eC_Char* pcAt, const eC_String& kFound, const eC_String& kExpected);
    eC_Bool FailHere(const eC_String& kExpected) { return FailAt(m_pcAt, DescribeHere(), kExpected); }

    const std::string& m_kText;
    const XMLProgress_t& m_kProgress;
    const eC_Char* m_pcAt;                       ///< everything before is right
    std::size_t m_uiDepth = 0;                   ///< open elements here
    std::vector<std::string_view> m_kAttributes; ///< of the tag so far
    XMLError_t m_kError;
};

XMLError_t CXMLErrorExplainer::Explain()
{
    if (ExplainCharacters() && ExplainMarkup())
    {
        const std::size_t uiHere = static_cast<std::size_t>(m_pcAt - m_kText.data());
        m_pcAt = m_kText.data() + std::min(uiHere, m_kProgress.m_uiWrongCharacter);
        FailHere(cpcExpectedWithoutExplanation);
    }
    return m_kError;
}

/** Checks every character of the text, so that all other messages can quote from it. */
eC_Bool CXMLErrorExplainer::ExplainCharacters()
{
    for (std::size_t uiAt = 0; uiAt < m_kText.size();)
    {
        const eC_Char* const pcAt = m_kText.data() + uiAt;
        char32_t cCharacter = 0;
        const std::size_t uiLength = DecodeUTF8(std::string_view(pcAt, m_kText.size() - uiAt), cCharacter);
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
        uiAt += uiLength;
    }
    return true;
}

eC_Bool CXMLErrorExplainer::ExplainMarkup()
{
    if (m_kText.empty())
    {
        return FailAt(m_pcAt, "empty file", "a top element");
    }
    if (m_kProgress.m_uiLastStartTag == XMLProgress_t::cuiNowhere)
    {
        m_pcAt += StartsWith(ckByteOrderMark) ? ckByteOrderMark.size() : 0;
        return SkipDeclaration() && SkipMiscellany() && ExplainBeforeTopElement();
    }
    SkipLastStartTag();
    do
    {
        if (!SkipMiscellany())
        {
            return false;
        }
    } while (SkipAcceptedEndTag());
    return m_kProgress.m_kOpenElements.empty() ? ExplainAfterTopElement() : ExplainContent();
}

eC_Bool CXMLErrorExplainer::ExplainBeforeTopElement()
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
    return SkipStartTag();
}

eC_Bool CXMLErrorExplainer::ExplainAfterTopElement()
{
    const eC_Char* const pcElement = m_pcAt;
    if (!IsAtEnd())
    {
        ++m_pcAt;
        if (*pcElement == '<' && IsAtNameStart())
        {
            return FailAt(pcElement, "second top element", "the end of the file");
        }
    }
    m_pcAt = pcElement;
    return FailHere("the end of the file");
}

eC_Bool CXMLErrorExplainer::ExplainContent()
{
    if (StartsWith("</"))
    {
        return SkipEndTag();
    }
    if (*m_pcAt == '<' && !StartsWith("<![CDATA["))
    {
        return SkipStartTag();
    }
    const eC_String kExpected =
        eC_String("an element or the end tag of ") + QuoteForMessage(m_kProgress.m_kOpenElements.back());
    return IsAtEnd() ? FailHere(kExpected) : FailAt(m_pcAt, "text between elements", kExpected);
}

/** Skips to the end of the last start tag that the parser has accepted. */
void CXMLErrorExplainer::SkipLastStartTag()
{
    m_pcAt += m_kProgress.m_uiLastStartTag;
    while (*m_pcAt != '>')
    {
        const eC_Bool bIsQuote = *m_pcAt == '"' || *m_pcAt == '\'';
        m_pcAt = bIsQuote ? std::strchr(m_pcAt + 1, *m_pcAt) + 1 : m_pcAt + 1;
    }
    m_uiDepth = m_kProgress.m_uiLastLevel + (m_pcAt[-1] == '/' ? 0 : 1);
    ++m_pcAt;
}

/** Skips an end tag that the parser has accepted. @return false when there is none */
eC_Bool CXMLErrorExplainer::SkipAcceptedEndTag()
{
    if (m_uiDepth == m_kProgress.m_kOpenElements.size())
    {
        return false;
    }
    --m_uiDepth;
    m_pcAt = std::strchr(m_pcAt, '>') + 1;
    return true;
}

/** Skips comments, processing instructions and white space. */
eC_Bool CXMLErrorExplainer::SkipMiscellany()
{
    for (;;)
    {
        SkipWhiteSpace();
        const eC_Bool bIsComment = StartsWith("<!--");
        if (!bIsComment && !StartsWith("<?"))
        {
            return true;
        }
        if (bIsComment ? !SkipComment() : !SkipInstruction())
        {
            return false;
        }
    }
}

eC_Bool CXMLErrorExplainer::SkipDeclaration()
{
    constexpr std::string_view ckStart = "<?xml";
    if (!StartsWith(ckStart) || !IsWhiteSpace(m_pcAt[ckStart.size()]))
    {
        return true;
    }
    m_pcAt += ckStart.size();
    SkipWhiteSpace();
    if (!StartsWith("version"))
    {
        return FailHere("version=\"1.0\"");
    }
    if (!SkipDeclarationItem("version", {"1.0"}, "\"1.0\"") ||
        !SkipDeclarationItem("encoding", {"UTF-8", "utf-8"}, "\"UTF-8\"") ||
        !SkipDeclarationItem("standalone", {"yes", "no"}, "\"yes\" or \"no\""))
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

eC_Bool CXMLErrorExplainer::SkipDeclarationItem(std::string_view kName,
                                                std::initializer_list<std::string_view> kValues,
                                                const eC_Char* pcExpected)
{
    if (!StartsWith(kName))
    {
        return true;
    }
    m_pcAt += kName.size();
    if (!SkipEqualsSign())
    {
        return false;
    }
    for (const std::string_view kValue : kValues)
    {
        const eC_Char cQuote = *m_pcAt;
        const eC_Bool bIsValue =
            (cQuote == '"' || cQuote == '\'') && std::strncmp(m_pcAt + 1, kValue.data(), kValue.size()) == 0;
        if (bIsValue && m_pcAt[1 + kValue.size()] == cQuote)
        {
            m_pcAt += kValue.size() + 2;
            return SkipWhiteSpace() || StartsWith("?>") || FailHere("white space or '?>'");
        }
    }
    return FailHere(pcExpected);
}

eC_Bool CXMLErrorExplainer::SkipComment()
{
    const eC_Char* const pcHyphens = std::strstr(m_pcAt + 4, "--");
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

eC_Bool CXMLErrorExplainer::SkipInstruction()
{
    const eC_Char* const pcInstruction = m_pcAt;
    std::string_view kTarget;
    m_pcAt += 2;
    if (!SkipName("the name of a processing instruction", kTarget))
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
    const eC_Char* const pcEnd = std::strstr(m_pcAt, "?>");
    if (pcEnd == nullptr)
    {
        return FailAt(pcInstruction, "processing instruction without an end", "'?>'");
    }
    m_pcAt = pcEnd + 2;
    return true;
}

eC_Bool CXMLErrorExplainer::SkipStartTag()
{
    if (m_kProgress.m_kOpenElements.size() == cuiMaxElementDepth)
    {
        const DialogFileError_t kError = MakeTooDeepError(TextPosition_t());
        return FailAt(m_pcAt, kError.m_kFound, kError.m_kExpected);
    }
    ++m_pcAt;
    std::string_view kName;
    if (!SkipName("an element name", kName))
    {
        return false;
    }
    for (;;)
    {
        const eC_Bool bIsSeparated = SkipWhiteSpace();
        if (*m_pcAt == '>' || StartsWith("/>"))
        {
            return true;
        }
        if (!bIsSeparated)
        {
            return FailHere("white space, '>' or '/>'");
        }
        if (!SkipAttribute())
        {
            return false;
        }
    }
}

eC_Bool CXMLErrorExplainer::SkipEndTag()
{
    const eC_Char* const pcTag = m_pcAt;
    const std::string_view kOpenElement = m_kProgress.m_kOpenElements.back();
    std::string_view kName;
    m_pcAt += 2;
    if (!SkipName("an element name", kName))
    {
        return false;
    }
    if (kName != kOpenElement)
    {
        return FailAt(pcTag, eC_String("end tag of ") + QuoteForMessage(kName),
                      eC_String("the end tag of ") + QuoteForMessage(kOpenElement));
    }
    SkipWhiteSpace();
    return *m_pcAt == '>' || FailHere("'>'");
}

eC_Bool CXMLErrorExplainer::SkipAttribute()
{
    const eC_Char* const pcAttribute = m_pcAt;
    std::string_view kName;
    if (!SkipName("an attribute name, '>' or '/>'", kName))
    {
        return false;
    }
    if (m_kAttributes.size() == cuiMaxNOFAttributes)
    {
        return FailAt(pcAttribute, "too many attributes",
                      eC_String("at most ") + eC_String(static_cast<eC_UInt>(cuiMaxNOFAttributes)));
    }
    if (std::find(m_kAttributes.begin(), m_kAttributes.end(), kName) != m_kAttributes.end())
    {
        return FailAt(pcAttribute, eC_String("second attribute ") + QuoteForMessage(kName),
                      "each attribute once");
    }
    m_kAttributes.push_back(kName);
    return SkipEqualsSign() && SkipValue();
}

eC_Bool CXMLErrorExplainer::SkipEqualsSign()
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

eC_Bool CXMLErrorExplainer::SkipValue()
{
    const eC_Char cQuote = *m_pcAt;
    if (cQuote != '"' && cQuote != '\'')
    {
        return FailHere("a value in quotes");
    }
    ++m_pcAt;
    while (*m_pcAt != cQuote)
    {
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
            ++m_pcAt;
        }
        else if (m_pcAt[1] == '#' ? !SkipCharacterReference() : !SkipReference())
        {
            return false;
        }
    }
    ++m_pcAt;
    return true;
}

eC_Bool CXMLErrorExplainer::SkipReference()
{
    const eC_Char* const pcReference = m_pcAt++;
    std::string_view kName;
    if (!SkipName("", kName) || *m_pcAt != ';')
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

eC_Bool CXMLErrorExplainer::SkipCharacterReference()
{
    const eC_Char* const pcReference = m_pcAt;
    const eC_Bool bIsHexadecimal = pcReference[2] == 'x';
    const eC_Char* const pcDigits = pcReference + (bIsHexadecimal ? 3 : 2);
    const std::size_t uiNOFDigits =
        std::strspn(pcDigits, bIsHexadecimal ? "0123456789ABCDEFabcdef" : "0123456789");
    m_pcAt = pcDigits + uiNOFDigits;
    if (uiNOFDigits == 0 || *m_pcAt != ';')
    {
        return FailAt(pcReference, "'&#' that begins no character reference",
                      "'&#' and decimal digits or '&#x' and hexadecimal digits, then ';'");
    }
    char32_t cCharacter = 0;
    for (const eC_Char* pcDigit = pcDigits; pcDigit != m_pcAt && cCharacter <= 0x10FFFF; ++pcDigit)
    {
        const int iValue = *pcDigit > '9' ? (*pcDigit | 0x20) - 'a' + 10 : *pcDigit - '0';
        cCharacter = cCharacter * (bIsHexadecimal ? 16 : 10) + static_cast<char32_t>(iValue);
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

eC_Bool CXMLErrorExplainer::SkipName(const eC_Char* pcExpected, std::string_view& kNameOUT)
{
    if (!IsAtNameStart())
    {
        return FailHere(pcExpected);
    }
    const eC_Char* const pcName = m_pcAt;
    while (IsNameByte(*m_pcAt) && !IsAtWrongCharacter())
    {
        ++m_pcAt;
    }
    kNameOUT = std::string_view(pcName, static_cast<std::size_t>(m_pcAt - pcName));
    return *m_pcAt != ':' || FailHere("a name without a namespace");
}

eC_Bool CXMLErrorExplainer::SkipWhiteSpace()
{
    const eC_Char* const pcBefore = m_pcAt;
    while (IsWhiteSpace(*m_pcAt))
    {
        ++m_pcAt;
    }
    return m_pcAt != pcBefore;
}

eC_Bool CXMLErrorExplainer::StartsWith(std::string_view kText) const
{
    return std::strncmp(m_pcAt, kText.data(), kText.size()) == 0;
}

eC_Bool CXMLErrorExplainer::IsAtWrongCharacter() const
{
    return static_cast<std::size_t>(m_pcAt - m_kText.data()) == m_kProgress.m_uiWrongCharacter;
}

std::string_view CXMLErrorExplainer::GetRest() const
{
    return std::string_view(m_kText).substr(static_cast<std::size_t>(m_pcAt - m_kText.data()));
}

eC_String CXMLErrorExplainer::DescribeHere() const
{
    if (IsAtEnd())
    {
        return "end of the file";
    }
    if (IsWhiteSpace(*m_pcAt))
    {
        return "white space";
    }
    char32_t cCharacter = 0;
    return QuoteForMessage(GetRest().substr(0, DecodeUTF8(GetRest(), cCharacter)));
}

eC_Bool CXMLErrorExplainer::FailAt(const eC_Char* pcAt, const eC_String& kFound, const eC_String& kExpected)
{
    m_kError = {static_cast<std::size_t>(pcAt - m_kText.data()), kFound, kExpected};
    return false;
}
} // namespace

XMLError_t ExplainXMLError(const std::string& kText, const XMLProgress_t& kProgress)
{
    return CXMLErrorExplainer(kText, kProgress).Explain();
}
