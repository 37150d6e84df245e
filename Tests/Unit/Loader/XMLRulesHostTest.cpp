// SPDX-License-Identifier: MIT
#include "Loader/DialogDocument.h"

#include "Scenario/TextLines.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <vector>

namespace
{
/** A text, whether the reader accepts it, and whether it is well-formed XML. */
struct Verdict_t
{
    std::string m_kText;
    bool m_bIsAccepted;
    bool m_bIsWellFormed;
};

constexpr bool cbAccepted = true;
constexpr bool cbRefused = false;
constexpr bool cbWellFormed = true;
constexpr bool cbMalformed = false;

std::string InTop(const std::string& kContent)
{
    return "<a>" + kContent + "</a>";
}

std::string InValue(const std::string& kValue)
{
    return "<a b=\"" + kValue + "\"/>";
}

const std::vector<Verdict_t>& GetVerdicts()
{
    static const std::vector<Verdict_t> s_kVerdicts = {
        // Accepted
        {"<a/>", cbAccepted, cbWellFormed},
        {"\xEF\xBB\xBF<a/>", cbAccepted, cbWellFormed},
        {"<?xml version='1.0'?><a/>", cbAccepted, cbWellFormed},
        {"<?xml version=\"1.0\" encoding='utf-8' standalone = 'yes' ?>\r\n<a\r\n/>\r\n", cbAccepted,
         cbWellFormed},
        {"<?a?><!-- b --><a></a ><!----><?c d ? > ?>", cbAccepted, cbWellFormed},
        {InTop("<b c='1' d=\"2\"\n\te = '3'/> <b><!-- - -> --></b>"), cbAccepted, cbWellFormed},
        {InValue("&lt;&gt;&amp;&quot;&apos;&#10;&#x10FFFF;>'\t\n"), cbAccepted, cbWellFormed},
        {InValue("]]> -- ?> \xC3\xA4\xF0\x9F\x98\x80\xEF\xBF\xBD\x7F\xC2\x80"), cbAccepted, cbWellFormed},
        {InTop("<_/><\xC3\x80/><a-.0\xC2\xB7\xCC\x80/>"), cbAccepted, cbWellFormed},
        // Well-formed, but not a dialog description
        {"<!DOCTYPE a><a/>", cbRefused, cbWellFormed},
        {"<!DOCTYPE a [<!ENTITY b 'c'>]><a b='&b;'/>", cbRefused, cbWellFormed},
        {"<?xml version='1.0' encoding='ISO-8859-1'?><a/>", cbRefused, cbWellFormed},
        {std::string("\xFF\xFE<\0a\0/\0>\0", 10), cbRefused, cbWellFormed},
        {InTop("text"), cbRefused, cbWellFormed},
        {InTop("&#32;"), cbRefused, cbWellFormed},
        {InTop("<![CDATA[b]]>"), cbRefused, cbWellFormed},
        {"<a xml:lang='de'/>", cbRefused, cbWellFormed},
        {"<b:a xmlns:b='urn:b'/>", cbRefused, cbWellFormed},
        // Malformed: the file as a whole
        {"", cbRefused, cbMalformed},
        {" \n", cbRefused, cbMalformed},
        {"\xEF\xBB\xBF", cbRefused, cbMalformed},
        {"<!-- a -->", cbRefused, cbMalformed},
        {"text", cbRefused, cbMalformed},
        {"<a/>text", cbRefused, cbMalformed},
        {"text<a/>", cbRefused, cbMalformed},
        {"<a/><a/>", cbRefused, cbMalformed},
        {"<a></a></a>", cbRefused, cbMalformed},
        {"<a/>&#32;", cbRefused, cbMalformed},
        {"<a/><![CDATA[]]>", cbRefused, cbMalformed},
        {"<a/>\xEF\xBB\xBF", cbRefused, cbMalformed},
        {"<a/><!DOCTYPE a>", cbRefused, cbMalformed},
        // Malformed: characters
        {InValue("\x01"), cbRefused, cbMalformed},
        {InValue("\x1F"), cbRefused, cbMalformed},
        {InValue(std::string(1, '\0')), cbRefused, cbMalformed},
        {InValue("\xEF\xBF\xBE"), cbRefused, cbMalformed},
        {InValue("\xEF\xBF\xBF"), cbRefused, cbMalformed},
        {InValue("\x80"), cbRefused, cbMalformed},
        {InValue("\xC3"), cbRefused, cbMalformed},
        {InValue("\xC0\x80"), cbRefused, cbMalformed},
        {InValue("\xC1\xBF"), cbRefused, cbMalformed},
        {InValue("\xE0\x80\x80"), cbRefused, cbMalformed},
        {InValue("\xED\xA0\x80"), cbRefused, cbMalformed},
        {InValue("\xF0\x80\x80\x80"), cbRefused, cbMalformed},
        {InValue("\xF4\x90\x80\x80"), cbRefused, cbMalformed},
        {InValue("\xFE"), cbRefused, cbMalformed},
        {"<!-- \x02 --><a/>", cbRefused, cbMalformed},
        {"<?b \x02?><a/>", cbRefused, cbMalformed},
        {"<a/>\x0C", cbRefused, cbMalformed},
        // Malformed: the declaration
        {" <?xml version='1.0'?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0'?><?xml version='1.0'?><a/>", cbRefused, cbMalformed},
        {"<?xml?><a/>", cbRefused, cbMalformed},
        {"<?xml encoding='UTF-8'?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0' encoding=UTF-8?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0\"?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0'encoding='UTF-8'?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0' standalone='YES'?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0' standalone='yes' encoding='UTF-8'?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0' more='1'?><a/>", cbRefused, cbMalformed},
        {"<?xml version='1.0'><a/>", cbRefused, cbMalformed},
        // Malformed: tags
        {"<a>", cbRefused, cbMalformed},
        {"<a", cbRefused, cbMalformed},
        {"<", cbRefused, cbMalformed},
        {"<a/", cbRefused, cbMalformed},
        {"<a/ >", cbRefused, cbMalformed},
        {"<a / >", cbRefused, cbMalformed},
        {"< a/>", cbRefused, cbMalformed},
        {"<1/>", cbRefused, cbMalformed},
        {"<-a/>", cbRefused, cbMalformed},
        {"<\xC3\x97/>", cbRefused, cbMalformed},
        {"<\xCC\x80/>", cbRefused, cbMalformed},
        {"<a\xE2\x80\x94/>", cbRefused, cbMalformed},
        {"<>", cbRefused, cbMalformed},
        {"</a>", cbRefused, cbMalformed},
        {"<a></b>", cbRefused, cbMalformed},
        {"<a></A>", cbRefused, cbMalformed},
        {"<a></a b='1'>", cbRefused, cbMalformed},
        {"<a></ a>", cbRefused, cbMalformed},
        {"<a></a", cbRefused, cbMalformed},
        {"<a></>", cbRefused, cbMalformed},
        {"<a><b></a></b>", cbRefused, cbMalformed},
        {InTop("<b"), cbRefused, cbMalformed},
        {InTop("]]>"), cbRefused, cbMalformed},
        {InTop("&"), cbRefused, cbMalformed},
        {InTop("<!DOCTYPE b>"), cbRefused, cbMalformed},
        {InTop("<!b>"), cbRefused, cbMalformed},
        {InTop("<![CDATA[b"), cbRefused, cbMalformed},
        // Malformed: attributes
        {"<a b/>", cbRefused, cbMalformed},
        {"<a b=1/>", cbRefused, cbMalformed},
        {"<a b='1/>", cbRefused, cbMalformed},
        {"<a b='1\"/>", cbRefused, cbMalformed},
        {"<a b='1'c='2'/>", cbRefused, cbMalformed},
        {"<a b='1' b='2'/>", cbRefused, cbMalformed},
        {"<a b='1' c='2' b='1'/>", cbRefused, cbMalformed},
        {"<a 'b'/>", cbRefused, cbMalformed},
        {"<a 1='b'/>", cbRefused, cbMalformed},
        {"<a =''/>", cbRefused, cbMalformed},
        {"<a b=='1'/>", cbRefused, cbMalformed},
        {"<a b='1'/ c='2'>", cbRefused, cbMalformed},
        {"<a <!-- -->/>", cbRefused, cbMalformed},
        {InValue("<"), cbRefused, cbMalformed},
        {InValue("&"), cbRefused, cbMalformed},
        {InValue("& "), cbRefused, cbMalformed},
        {InValue("&;"), cbRefused, cbMalformed},
        {InValue("&amp"), cbRefused, cbMalformed},
        {InValue("&nbsp;"), cbRefused, cbMalformed},
        {InValue("&AMP;"), cbRefused, cbMalformed},
        {InValue("&1;"), cbRefused, cbMalformed},
        {InValue("&#;"), cbRefused, cbMalformed},
        {InValue("&#x;"), cbRefused, cbMalformed},
        {InValue("&#X41;"), cbRefused, cbMalformed},
        {InValue("&#4 1;"), cbRefused, cbMalformed},
        {InValue("&#xg;"), cbRefused, cbMalformed},
        {InValue("&#65"), cbRefused, cbMalformed},
        {InValue("&#0;"), cbRefused, cbMalformed},
        {InValue("&#8;"), cbRefused, cbMalformed},
        {InValue("&#xD800;"), cbRefused, cbMalformed},
        {InValue("&#xFFFF;"), cbRefused, cbMalformed},
        {InValue("&#x110000;"), cbRefused, cbMalformed},
        {InValue("&#4294967361;"), cbRefused, cbMalformed},
        {InValue("&#-65;"), cbRefused, cbMalformed},
        // Malformed: comments and instructions
        {"<a/><!--", cbRefused, cbMalformed},
        {"<a/><!-- -- -->", cbRefused, cbMalformed},
        {"<a/><!-- --->", cbRefused, cbMalformed},
        {"<a/><!-->", cbRefused, cbMalformed},
        {"<a/><!--->", cbRefused, cbMalformed},
        {"<a/><!- - -->", cbRefused, cbMalformed},
        {"<a/><?", cbRefused, cbMalformed},
        {"<a/><?b", cbRefused, cbMalformed},
        {"<a/><?b>", cbRefused, cbMalformed},
        {"<a/><? b?>", cbRefused, cbMalformed},
        {"<a/><?b+c?>", cbRefused, cbMalformed},
        {"<a/><?xml b?>", cbRefused, cbMalformed},
    };
    return s_kVerdicts;
}

bool IsAccepted(const std::string& kText)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    return kDocument.Parse(kText, kError);
}

TEST(CDialogDocumentTest, Parse_NastyTexts_AcceptsNoneThatIsMalformed)
{
    const CTemporaryDirectory kDirectory;
    for (std::size_t uiText = 0; uiText < GetVerdicts().size(); ++uiText)
    {
        kDirectory.Write(std::to_string(uiText) + ".xml", GetVerdicts()[uiText].m_kText);
    }

    const std::vector<std::string> kWellFormed =
        RunShell("cd '" + kDirectory.GetPath().string() +
                 "' && for File in *.xml; do xmllint --noout --nonet $File 2>/dev/null && echo $File; done");

    const std::set<std::string> kWellFormedNames(kWellFormed.begin(), kWellFormed.end());
    for (std::size_t uiText = 0; uiText < GetVerdicts().size(); ++uiText)
    {
        const Verdict_t& kVerdict = GetVerdicts()[uiText];
        SCOPED_TRACE(kVerdict.m_kText);
        EXPECT_EQ(kVerdict.m_bIsAccepted, IsAccepted(kVerdict.m_kText));
        EXPECT_EQ(kVerdict.m_bIsWellFormed, kWellFormedNames.count(std::to_string(uiText) + ".xml") != 0);
        EXPECT_TRUE(kVerdict.m_bIsWellFormed || !kVerdict.m_bIsAccepted);
    }
}

/** Changes a text in one to four places: deletes, repeats, replaces or inserts something. */
std::string Mutate(const std::string& kText, std::mt19937& kRandom)
{
    static const std::vector<std::string> s_kPieces = {"<",
                                                       ">",
                                                       "/",
                                                       "/>",
                                                       "</",
                                                       "<a>",
                                                       "</a>",
                                                       "=",
                                                       "'",
                                                       "\"",
                                                       "&",
                                                       ";",
                                                       "&#",
                                                       "&lt;",
                                                       "&#x41;",
                                                       "--",
                                                       "<!--",
                                                       "-->",
                                                       "<?",
                                                       "?>",
                                                       "xml",
                                                       " ",
                                                       "\n",
                                                       "\r\n",
                                                       "a='1'",
                                                       "]]>",
                                                       "<![CDATA[",
                                                       "<!DOCTYPE a>",
                                                       "\xC3\xA4",
                                                       "\xC3",
                                                       "\xEF\xBB\xBF",
                                                       "\x01",
                                                       ":",
                                                       "1",
                                                       "-",
                                                       "."};
    const auto Draw = [&kRandom](std::size_t uiBound)
    { return static_cast<std::size_t>(kRandom()) % uiBound; };
    std::string kResult = kText;
    for (std::size_t uiChange = Draw(4) + 1; uiChange > 0; --uiChange)
    {
        const std::size_t uiAt = Draw(kResult.size() + 1);
        const std::size_t uiLength = Draw(6);
        switch (Draw(3))
        {
        case 0:
            kResult.erase(uiAt, uiLength);
            break;
        case 1:
            kResult.insert(uiAt, std::string(kResult, uiAt, uiLength));
            break;
        default:
            kResult.replace(uiAt, Draw(2), s_kPieces[Draw(s_kPieces.size())]);
            break;
        }
    }
    return kResult;
}

TEST(CDialogDocumentTest, Parse_MutatedTexts_AcceptsOnlyWhatIsWellFormed)
{
    constexpr unsigned int cuiSeed = 20240607;
    constexpr std::size_t cuiMaxNOFFiles = 1000;
    SCOPED_TRACE("seed " + std::to_string(cuiSeed));
    const std::string kOriginal =
        "<?xml version=\"1.0\"?>\n<!-- a -->\n<a b='1' c=\"&amp;\"><?d e?><f/>\n<g></g></a>\n";
    std::mt19937 kRandom(cuiSeed);
    std::set<std::string> kAccepted;
    for (int iRound = 0; iRound < 100000 && kAccepted.size() < cuiMaxNOFFiles; ++iRound)
    {
        const std::string kText = Mutate(kOriginal, kRandom);
        if (IsAccepted(kText))
        {
            kAccepted.insert(kText);
        }
    }
    ASSERT_EQ(cuiMaxNOFFiles, kAccepted.size());
    const CTemporaryDirectory kDirectory;
    std::size_t uiNumber = 0;
    for (const std::string& kText : kAccepted)
    {
        kDirectory.Write(std::to_string(uiNumber++) + ".xml", kText);
    }

    const std::vector<std::string> kComplaints =
        RunShell("cd '" + kDirectory.GetPath().string() +
                 "' && xmllint --noout --nonet --nowarning *.xml 2>&1; echo status $?");

    EXPECT_EQ(std::vector<std::string>{"status 0"}, kComplaints);
}
} // namespace
