// SPDX-License-Identifier: MIT
#include "Loader/DialogDocument.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>

#include <new>
#include <string>

namespace
{
std::string Describe(const TextPosition_t& kPosition)
{
    return std::to_string(kPosition.m_uiLine) + ":" + std::to_string(kPosition.m_uiColumn);
}

std::string Describe(const DialogFileError_t& kError)
{
    return Describe(kError.m_kPosition) + ": " + kError.m_kFound.GetText() + "; expected " +
           kError.m_kExpected.GetText();
}

/** @return the elements, each with its level and its attributes */
std::string Describe(const DialogElements_t& kElements)
{
    std::string kText;
    const DialogAttribute_t* pkAttribute = kElements.m_pkAttributes;
    for (eC_UInt uiElement = 0; uiElement < kElements.m_uiNOFElements; ++uiElement)
    {
        const DialogElement_t& kElement = kElements.m_pkElements[uiElement];
        EXPECT_EQ(NO_HANDLE, kElement.m_eID);
        kText += std::to_string(kElement.m_uiLevel) + " " + kElement.m_pcName;
        for (unsigned char uiAttribute = 0; uiAttribute < kElement.m_uiNOFAttributes; ++uiAttribute)
        {
            kText += (uiAttribute == kElement.m_uiNamedAttribute ? " *" : " ");
            kText += std::string(pkAttribute->m_pcName) + "=[" + pkAttribute->m_pcValue + "]";
            ++pkAttribute;
        }
        kText += "\n";
    }
    return kText;
}

/** @return the elements of a text, or the error */
std::string Parse(const std::string& kText)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    return kDocument.Parse(kText, kError) ? Describe(kDocument.GetElements()) : Describe(kError);
}

TEST(DialogDocument, NewDocument_HasNoElements)
{
    EXPECT_EQ("", Describe(CDialogDocument().GetElements()));
}

TEST(DialogDocument, Parse_GoodText_GivesElementsInTheirOrder)
{
    EXPECT_EQ("0 c d=[<1]\n"
              "1 f\n"
              "1 g h=[]\n"
              "2 i\n"
              "1 j\n",
              Parse("<?a?><!-- b --><c d='&lt;1'> <!-- --> <?e?> <f/> <g h=''><i></i></g ><j/> </c>"));
}

TEST(DialogDocument, Parse_Identifier_IsMarkedAmongTheAttributes)
{
    EXPECT_EQ("0 a *id=[1]\n1 b c=[2] *id=[3] d=[4]\n1 e ID=[5] i=[6] idd=[7]\n",
              Parse("<a id='1'><b c='2' id='3' d='4'/><e ID='5' i='6' idd='7'/></a>"));
}

TEST(DialogDocument, Parse_WhiteSpaceAroundNames_BelongsToNone)
{
    EXPECT_EQ("0 a b=[1] c=[2]\n1 d\n", Parse("<a\nb\t=\r\n'1' c\n= \"2\"\n><d\t/></a\n>\n"));
}

TEST(DialogDocument, Parse_Values_AreWhatTheyStandFor)
{
    const auto ReadValue = [](const std::string& kValue) { return Parse("<a b=\"" + kValue + "\"/>"); };
    EXPECT_EQ("0 a b=[]\n", ReadValue(""));
    EXPECT_EQ("0 a b=[<>&\"']\n", ReadValue("&lt;&gt;&amp;&quot;&apos;"));
    EXPECT_EQ("0 a b=[&lt;]\n", ReadValue("&amp;lt;"));
    EXPECT_EQ("0 a b=[it's > ]\n", ReadValue("it's > "));
    EXPECT_EQ("0 a b=[ 1   2 3 4 ]\n", ReadValue("\t1\n\r\n\r2\r3\n4\r\n"));
    EXPECT_EQ("0 a b=[\n\r\t A]\n", ReadValue("&#10;&#xD;&#9;&#32;&#x041;"));
    EXPECT_EQ("0 a b=[\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x90\x80\x80\xF4\x8F\xBF\xBF]\n",
              ReadValue("&#127;&#128;&#x7fF;&#x800;&#xFFFD;&#65536;&#x10FFFF;"));
    EXPECT_EQ("0 a b=[x\xC3\xA4&\xE2\x82\xACy]\n", ReadValue("x\xC3\xA4&amp;\xE2\x82\xACy"));
}

TEST(DialogDocument, Parse_TwoKindsOfQuotes_EndTheirOwnValues)
{
    EXPECT_EQ("0 a b=[\"] c=['] d=['']\n", Parse("<a b='\"' c=\"'\" d=\"''\"/>"));
}

TEST(DialogDocument, Parse_CharacterErrorBehindAnotherOne_IsReportedFirst)
{
    EXPECT_EQ("1:17: character U+0001; expected characters that XML allows", Parse("<a b=1 b=2 c d='\x01"));
}

TEST(DialogDocument, Parse_CharacterError_IsFoundAtEveryPlace)
{
    for (std::size_t uiBlanks = 0; uiBlanks < 100; ++uiBlanks)
    {
        const std::string kBlanks(uiBlanks, ' ');
        const std::string kPlace = "1:" + std::to_string(5 + uiBlanks);
        EXPECT_EQ(kPlace + ": character U+001F; expected characters that XML allows",
                  Parse("<a/>" + kBlanks + "\x1F" + std::string(50, ' ')));
        EXPECT_EQ(kPlace + ": malformed UTF-8; expected text in UTF-8",
                  Parse("<a/>" + kBlanks + "\xC3" + std::string(50, ' ')));
        EXPECT_EQ("0 a\n1 b\n",
                  Parse(std::string("<a>").append(kBlanks).append("<!-- \xC3\xA4 --><b/></a>")));
    }
}

TEST(DialogDocument, Parse_BadTextAfterAGoodOne_LeavesNoElements)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<a/>", kError));

    EXPECT_FALSE(kDocument.Parse("<a>\n<b>", kError));

    EXPECT_EQ("2:4: end of the file; expected an element or the end tag of 'b'", Describe(kError));
    EXPECT_EQ("", Describe(kDocument.GetElements()));
}

TEST(DialogDocument, Parse_GoodTextAfterAnotherOne_LeavesNothingOfThatOne)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<aaaa b='cccc'><d/></aaaa>", kError));

    ASSERT_TRUE(kDocument.Parse("\n<e f='g'/>", kError));

    EXPECT_EQ("0 e f=[g]\n", Describe(kDocument.GetElements()));
    EXPECT_EQ("2:1", Describe(kDocument.LocateElement(*kDocument.GetElements().m_pkElements)));
}

TEST(DialogDocument, Load_MissingFileAfterAGoodOne_LeavesNoElements)
{
    const CTemporaryDirectory kDirectory;
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Load(kDirectory.Write("a.xml", "<a/>"), kError));

    EXPECT_FALSE(kDocument.Load(kDirectory.GetPath() / "b.xml", kError));

    EXPECT_EQ("1:1: cannot open (No such file or directory); expected a readable file", Describe(kError));
    EXPECT_EQ("", Describe(kDocument.GetElements()));
}

TEST(DialogDocument, Locate_PointsAtElementNameAndValue)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("\xEF\xBB\xBF<a>\r\n <b c = '\xC3\xA4\r\n&lt;' d\n=''/></a>", kError));
    const DialogElements_t kElements = kDocument.GetElements();
    const DialogAttribute_t* pkAttributes = kElements.m_pkAttributes;

    EXPECT_EQ("1:1", Describe(kDocument.LocateElement(kElements.m_pkElements[0])));
    EXPECT_EQ("2:2", Describe(kDocument.LocateElement(kElements.m_pkElements[1])));
    EXPECT_EQ("2:5", Describe(kDocument.LocateName(pkAttributes[0])));
    EXPECT_EQ("2:10", Describe(kDocument.LocateValue(pkAttributes[0])));
    EXPECT_EQ("3:7", Describe(kDocument.LocateName(pkAttributes[1])));
    EXPECT_EQ("4:3", Describe(kDocument.LocateValue(pkAttributes[1])));
    EXPECT_EQ("2:2", Describe(kDocument.LocateElement(kElements.m_pkElements[1])));
    EXPECT_EQ("1:1", Describe(kDocument.LocateElement(kElements.m_pkElements[0])));
}

/** While it lives the parser gets no memory. */
class CNoParserMemory
{
public:
    CNoParserMemory()
        : m_pfnAllocate(pugi::get_memory_allocation_function()),
          m_pfnDeallocate(pugi::get_memory_deallocation_function())
    {
        pugi::set_memory_management_functions([](std::size_t) -> void* { return nullptr; }, m_pfnDeallocate);
    }
    CNoParserMemory(const CNoParserMemory&) = delete;
    CNoParserMemory& operator=(const CNoParserMemory&) = delete;
    ~CNoParserMemory() { pugi::set_memory_management_functions(m_pfnAllocate, m_pfnDeallocate); }

private:
    pugi::allocation_function m_pfnAllocate;
    pugi::deallocation_function m_pfnDeallocate;
};

TEST(DialogDocument, Parse_WithoutMemoryForTheParser_ThrowsAndLeavesNoElements)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<a/>", kError));
    {
        const CNoParserMemory kNoParserMemory;
        EXPECT_THROW(kDocument.Parse("<a/>", kError), std::bad_alloc);
    }
    EXPECT_EQ("", Describe(kDocument.GetElements()));

    ASSERT_TRUE(kDocument.Parse("<b/>", kError));
    EXPECT_EQ("0 b\n", Describe(kDocument.GetElements()));
}

TEST(DialogDocument, Parse_WithoutMemory_ThrowsAndLeavesNoElements)
{
    const std::string kText = "<aaaaaaaaaaaaaaaaaaaaaa b='ccccccccccccccccccc'><d/></aaaaaaaaaaaaaaaaaaaaaa>";
    CDialogDocument kDocument;
    DialogFileError_t kError;
    std::size_t uiFailures = 0;
    for (eC_Bool bIsParsed = false; !bIsParsed; uiFailures += bIsParsed ? 0 : 1)
    {
        ASSERT_LT(uiFailures, 20u);
        const CAllocationFailure kFailure(uiFailures);
        try
        {
            bIsParsed = kDocument.Parse(kText, kError);
        }
        catch (const std::bad_alloc&)
        {
            EXPECT_EQ(0u, kDocument.GetElements().m_uiNOFElements);
        }
    }
    EXPECT_LT(0u, uiFailures);
    EXPECT_EQ("0 aaaaaaaaaaaaaaaaaaaaaa b=[ccccccccccccccccccc]\n1 d\n", Describe(kDocument.GetElements()));
}
} // namespace
