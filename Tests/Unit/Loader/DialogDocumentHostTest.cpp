// SPDX-License-Identifier: MIT
#include "Loader/DialogDocument.h"

#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <cerrno>
#include <new>
#include <string>
#include <vector>

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

/** @return the elements, each with its depth and its attributes */
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

TEST(CDialogDocumentTest, NewDocument_HasNoElements)
{
    EXPECT_EQ("", Describe(CDialogDocument().GetElements()));
}

TEST(CDialogDocumentTest, Parse_GoodText_GivesElementsInTheirOrder)
{
    EXPECT_EQ("0 c d=[<1]\n"
              "1 f\n"
              "1 g h=[]\n"
              "2 i\n"
              "1 j\n",
              Parse("<?a?><!-- b --><c d='&lt;1'> <!-- --> <?e?> <f/> <g h=''><i></i></g ><j/> </c>"));
}

TEST(CDialogDocumentTest, Parse_Identifier_IsMarkedAmongTheAttributes)
{
    EXPECT_EQ("0 a *id=[1]\n1 b c=[2] *id=[3] d=[4]\n1 e ID=[5] i=[6] idd=[7]\n",
              Parse("<a id='1'><b c='2' id='3' d='4'/><e ID='5' i='6' idd='7'/></a>"));
}

TEST(CDialogDocumentTest, Parse_NamesThatComeAgainOrChange_BelongToTheirElements)
{
    EXPECT_EQ("0 a b=[1] *id=[2]\n"
              "1 a b=[3] *id=[4]\n"
              "1 a *id=[5] b=[6]\n"
              "1 c b=[7]\n"
              "2 a b=[8] *id=[9]\n"
              "1 c *id=[0]\n",
              Parse("<a b='1' id='2'><a b='3' id='4'/><a id='5' b='6'/><c b='7'><a b='8' id='9'/></c>"
                    "<c id='0'/></a>"));
}

TEST(CDialogDocumentTest, Parse_LineBreakInAValue_IsABlankAtEveryPlace)
{
    for (std::size_t uiSize = 1; uiSize < 50; ++uiSize)
    {
        for (std::size_t uiPlace = 0; uiPlace < uiSize; ++uiPlace)
        {
            std::string kText = "<a b='" + std::string(uiSize, 'x') + "'/>";
            kText[6 + uiPlace] = '\n';
            std::string kExpected = "0 a b=[" + std::string(uiSize, 'x') + "]\n";
            kExpected[7 + uiPlace] = ' ';
            EXPECT_EQ(kExpected, Parse(kText));
        }
    }
}

TEST(CDialogDocumentTest, Parse_WhiteSpaceAroundNames_BelongsToNone)
{
    EXPECT_EQ("0 a b=[1] c=[2]\n1 d\n", Parse("<a\nb\t=\r\n'1' c\n= \"2\"\n>\t <d\t/>\r \r\n\t</a\n>\n"));
}

TEST(CDialogDocumentTest, Parse_ReferencesAndLineBreaksInValues_AreReplaced)
{
    const auto ReadValue = [](const std::string& kValue) { return Parse("<a b=\"" + kValue + "\"/>"); };
    EXPECT_EQ("0 a b=[]\n", ReadValue(""));
    EXPECT_EQ("0 a b=[<>&\"']\n", ReadValue("&lt;&gt;&amp;&quot;&apos;"));
    EXPECT_EQ("0 a b=[&lt;]\n", ReadValue("&amp;lt;"));
    EXPECT_EQ("0 a b=[it's > ]\n", ReadValue("it's > "));
    EXPECT_EQ("0 a b=[ 1   2 3 4 ]\n", ReadValue("\t1\n\r\n\r2\r3\n4\r\n"));
    EXPECT_EQ("0 a b=[ 1  2 3 ]\n", ReadValue("\n1\n\n2\n3\n"));
    EXPECT_EQ("0 a b=[\n\r\t A]\n", ReadValue("&#10;&#xD;&#9;&#32;&#x041;"));
    EXPECT_EQ("0 a b=[\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBD\xF0\x90\x80\x80\xF4\x8F\xBF\xBF]\n",
              ReadValue("&#127;&#128;&#x7fF;&#x800;&#xFFFD;&#65536;&#x10FFFF;"));
    EXPECT_EQ("0 a b=[x\xC3\xA4&\xE2\x82\xACy]\n", ReadValue("x\xC3\xA4&amp;\xE2\x82\xACy"));
}

TEST(CDialogDocumentTest, Parse_TwoKindsOfQuotes_EndTheirOwnValues)
{
    EXPECT_EQ("0 a b=[\"] c=['] d=['']\n", Parse("<a b='\"' c=\"'\" d=\"''\"/>"));
}

TEST(CDialogDocumentTest, Parse_CharacterErrorAfterAnotherError_IsReportedFirst)
{
    EXPECT_EQ("1:17: character U+0001; expected characters that XML allows", Parse("<a b=1 b=2 c d='\x01"));
}

TEST(CDialogDocumentTest, Parse_CharacterError_IsFoundAtEveryPlace)
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

TEST(CDialogDocumentTest, Parse_GoodText_LeavesTheErrorUntouched)
{
    CDialogDocument kDocument;
    DialogFileError_t kError = {{3, 5}, "this", "that"};

    EXPECT_TRUE(kDocument.Parse("<a/>", kError));

    EXPECT_EQ("3:5: this; expected that", Describe(kError));
}

TEST(CDialogDocumentTest, Parse_BadTextAfterAGoodOne_LeavesNoElements)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<a/>", kError));

    EXPECT_FALSE(kDocument.Parse("<a>\n<b>", kError));

    EXPECT_EQ("2:4: end of the file; expected an element or the end tag of 'b'", Describe(kError));
    EXPECT_EQ("", Describe(kDocument.GetElements()));
}

TEST(CDialogDocumentTest, Parse_GoodTextAfterAnotherOne_LeavesNothingOfThatOne)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<aaaa b='cccc'><d/></aaaa>", kError));

    ASSERT_TRUE(kDocument.Parse("\n<e f='g'/>", kError));

    EXPECT_EQ("0 e f=[g]\n", Describe(kDocument.GetElements()));
    EXPECT_EQ("2:1", Describe(kDocument.LocateElement(*kDocument.GetElements().m_pkElements)));
}

TEST(CDialogDocumentTest, Parse_TextAfterAnother_UsesItsMemory)
{
    const std::string kText = "<a b='c'><d/><e f='&lt;'/></a>";
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse(kText, kError));
    const CAllocationCounter kCounter;

    EXPECT_TRUE(kDocument.Parse(kText, kError));

    EXPECT_GT(10u, kCounter.GetNumber());
    EXPECT_GT(1000u, kCounter.GetBytes());
}

TEST(CDialogDocumentTest, Load_MissingFileAfterAGoodOne_LeavesNoElements)
{
    const CTemporaryDirectory kDirectory;
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Load(kDirectory.Write("a.xml", "<a/>"), kError));

    EXPECT_FALSE(kDocument.Load(kDirectory.GetPath() / "b.xml", kError));

    EXPECT_EQ("1:1: cannot open (No such file or directory); expected a readable file", Describe(kError));
    EXPECT_EQ("", Describe(kDocument.GetElements()));
}

TEST(CDialogDocumentTest, Load_ShorterFileAfterALongerOne_LeavesNothingOfThatOne)
{
    const CTemporaryDirectory kDirectory;
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Load(kDirectory.Write("a.xml", "<a><b/><c/></a>"), kError));

    ASSERT_TRUE(kDocument.Load(kDirectory.Write("b.xml", "<d/>"), kError));

    EXPECT_EQ("0 d\n", Describe(kDocument.GetElements()));
}

TEST(CDialogDocumentTest, Load_FileThatClaimsToBeEmpty_IsReadToItsEnd)
{
    // The system makes up the name of a thread when its file is read, and gives 0 as the size of that file.
    const CTemporaryDirectory kDirectory;
    std::filesystem::create_symlink("/proc/thread-self/comm", kDirectory.GetPath() / "a.xml");
    char acName[16];
    ASSERT_EQ(0, pthread_getname_np(pthread_self(), acName, sizeof acName));
    ASSERT_EQ(0, pthread_setname_np(pthread_self(), "<a><b/></a>"));
    CDialogDocument kDocument;
    DialogFileError_t kError;

    const eC_Bool bIsLoaded = kDocument.Load(kDirectory.GetPath() / "a.xml", kError);

    ASSERT_EQ(0, pthread_setname_np(pthread_self(), acName));
    EXPECT_TRUE(bIsLoaded) << Describe(kError);
    EXPECT_EQ("0 a\n1 b\n", Describe(kDocument.GetElements()));
}

TEST(CDialogDocumentTest, Locate_PointsAtElementNameAndValue)
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

TEST(CDialogDocumentTest, Locate_AfterAnotherText_GivesThePlacesInTheNewOne)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<a b='' c=''><d e='' f=''/></a>", kError));
    EXPECT_EQ("1:22", Describe(kDocument.LocateName(kDocument.GetElements().m_pkAttributes[3])));

    ASSERT_TRUE(kDocument.Parse("<a b='' c='' d='' e=''/>", kError));

    EXPECT_EQ("1:19", Describe(kDocument.LocateName(kDocument.GetElements().m_pkAttributes[3])));
    EXPECT_EQ("1:22", Describe(kDocument.LocateValue(kDocument.GetElements().m_pkAttributes[3])));
}

TEST(CDialogDocumentTest, Parse_WithoutMemoryAtAnyPoint_ThrowsAndLeavesNeitherElementsNorBlocks)
{
    // expat enlarges its blocks for such a name and for so many attributes, and could go on without memory as
    // far as the names of elements are known.
    const std::string kName(50, 'a');
    const std::string kText =
        "<?xml version='1.0'?><" + kName +
        " b='ccccccccccccccccc&lt;c'>"
        "<d e1='' e2='' e3='' e4='' e5='' e6='' e7='' e8='' e9='' e10='' e11='' e12='' e13='' e14='' e15=''"
        " e16='' e17='' e18=''/><d/><d/><d/><!-- i --></" +
        kName + ">";
    const HeapUse_t kBefore = GetHeapUse();
    for (const eC_Bool bIsFirst : {true, false})
    {
        std::size_t uiFailures = 0;
        for (eC_Bool bIsParsed = false; !bIsParsed; uiFailures += bIsParsed ? 0 : 1)
        {
            ASSERT_LT(uiFailures, 100u);
            CDialogDocument kDocument;
            DialogFileError_t kError;
            ASSERT_TRUE(bIsFirst || kDocument.Parse("<a/>", kError));
            try
            {
                const CAllocationFailure kFailure(uiFailures);
                bIsParsed = kDocument.Parse(kText, kError);
            }
            catch (const std::bad_alloc&)
            {
                EXPECT_EQ(0u, kDocument.GetElements().m_uiNOFElements);
                ASSERT_TRUE(kDocument.Parse("<f/>", kError));
                EXPECT_EQ("0 f\n", Describe(kDocument.GetElements()));
                continue;
            }
            EXPECT_EQ(
                "0 " + kName +
                    " b=[ccccccccccccccccc<c]\n"
                    "1 d e1=[] e2=[] e3=[] e4=[] e5=[] e6=[] e7=[] e8=[] e9=[] e10=[] e11=[] e12=[] e13=[]"
                    " e14=[] e15=[] e16=[] e17=[] e18=[]\n1 d\n1 d\n1 d\n",
                Describe(kDocument.GetElements()));
        }
        EXPECT_LT(bIsFirst ? 10u : 3u, uiFailures);
    }
    EXPECT_EQ(kBefore.m_uiBlocks, GetHeapUse().m_uiBlocks);
}

TEST(CDialogDocumentTest, Parse_WithoutMemoryForOneBlock_ThrowsOrSucceeds)
{
    const std::string kText = "<a b='c&lt;d'><e/></a>";
    const HeapUse_t kBefore = GetHeapUse();
    for (std::size_t uiGranted = 0; uiGranted < 50; ++uiGranted)
    {
        CDialogDocument kDocument;
        DialogFileError_t kError;
        try
        {
            const CAllocationFailure kFailure(uiGranted, CAllocationFailure::ONE);
            EXPECT_TRUE(kDocument.Parse(kText, kError)) << uiGranted;
        }
        catch (const std::bad_alloc&)
        {
            continue;
        }
        EXPECT_EQ("0 a b=[c<d]\n1 e\n", Describe(kDocument.GetElements()));
    }
    EXPECT_EQ(kBefore.m_uiBlocks, GetHeapUse().m_uiBlocks);
}

TEST(CDialogDocumentTest, Parse_TextThatIsTooLarge_IsRefused)
{
    const std::string kElement = "<a/>";
    EXPECT_EQ("0 a\n", Parse(kElement + std::string(cuiMaxDialogFileSize - kElement.size(), ' ')));
    EXPECT_EQ("1:1: file too large; expected at most 1048576 bytes",
              Parse(kElement + std::string(cuiMaxDialogFileSize + 1 - kElement.size(), ' ')));
}

TEST(CDialogDocumentTest, Parse_EntitiesOfADocumentType_AreRefusedBeforeTheyGrow)
{
    std::string kText = "<!DOCTYPE a [<!ENTITY b0 'bbbbbbbbbbbbbbbb'>";
    for (int iEntity = 1; iEntity < 30; ++iEntity)
    {
        const std::string kOther = "&b" + std::to_string(iEntity - 1) + ";";
        kText += "<!ENTITY b" + std::to_string(iEntity) + " '";
        kText += kOther + kOther;
        kText += kOther + kOther;
        kText += "'>";
    }
    const CAllocationCounter kCounter;
    EXPECT_EQ("1:1: document type declaration; expected a top element", Parse(kText + "]><a b='&b29;'/>"));
    EXPECT_GT(50000u, kCounter.GetBytes());
}

TEST(CDialogDocumentTest, Parse_TextCutOffAnywhere_SaysWhatIsMissing)
{
    const std::string kText = "<?xml version='1.0'?><!--a--><?b c?><d e='&lt;'>\n<f/></d >";
    const std::vector<std::string> kErrors = {
        "1:1: empty file; expected a top element",
        "1:2: end of the file; expected an element name",
        "1:3: end of the file; expected the name of a processing instruction",
        "1:4: end of the file; expected white space or '?>'",
        "1:5: end of the file; expected white space or '?>'",
        "1:1: XML declaration; expected '<?xml version=\"1.0\"?>' at the beginning only",
        "1:7: end of the file; expected version=\"1.0\"",
        "1:7: 'v'; expected version=\"1.0\"",
        "1:7: 'v'; expected version=\"1.0\"",
        "1:7: 'v'; expected version=\"1.0\"",
        "1:7: 'v'; expected version=\"1.0\"",
        "1:7: 'v'; expected version=\"1.0\"",
        "1:7: 'v'; expected version=\"1.0\"",
        "1:14: end of the file; expected '='",
        "1:15: end of the file; expected \"1.0\"",
        "1:15: '''; expected \"1.0\"",
        "1:15: '''; expected \"1.0\"",
        "1:15: '''; expected \"1.0\"",
        "1:15: '''; expected \"1.0\"",
        "1:20: end of the file; expected white space or '?>'",
        "1:20: '?'; expected white space or '?>'",
        "1:22: end of the file; expected a top element",
        "1:23: end of the file; expected an element name",
        "1:23: '!'; expected an element name",
        "1:23: '!'; expected an element name",
        "1:22: comment without an end; expected '-->'",
        "1:22: comment without an end; expected '-->'",
        "1:22: comment without an end; expected '-->'",
        "1:27: '--' in a comment; expected '-->' at its end only",
        "1:30: end of the file; expected a top element",
        "1:31: end of the file; expected an element name",
        "1:32: end of the file; expected the name of a processing instruction",
        "1:33: end of the file; expected white space or '?>'",
        "1:30: processing instruction without an end; expected '?>'",
        "1:30: processing instruction without an end; expected '?>'",
        "1:30: processing instruction without an end; expected '?>'",
        "1:37: end of the file; expected a top element",
        "1:38: end of the file; expected an element name",
        "1:39: end of the file; expected white space, '>' or '/>'",
        "1:40: end of the file; expected an attribute name, '>' or '/>'",
        "1:41: end of the file; expected '='",
        "1:42: end of the file; expected a value in quotes",
        "1:43: end of the file; expected the closing quote of the value",
        "1:43: '&' that begins no reference; expected '&amp;'",
        "1:43: '&' that begins no reference; expected '&amp;'",
        "1:43: '&' that begins no reference; expected '&amp;'",
        "1:47: end of the file; expected the closing quote of the value",
        "1:48: end of the file; expected white space, '>' or '/>'",
        "1:49: end of the file; expected an element or the end tag of 'd'",
        "2:1: end of the file; expected an element or the end tag of 'd'",
        "2:2: end of the file; expected an element name",
        "2:3: end of the file; expected white space, '>' or '/>'",
        "2:3: '/'; expected white space, '>' or '/>'",
        "2:5: end of the file; expected an element or the end tag of 'd'",
        "2:6: end of the file; expected an element name",
        "2:7: end of the file; expected an element name",
        "2:8: end of the file; expected '>'",
        "2:9: end of the file; expected '>'"};
    ASSERT_EQ(kText.size(), kErrors.size());
    for (std::size_t uiLength = 0; uiLength < kText.size(); ++uiLength)
    {
        EXPECT_EQ(kErrors[uiLength], Parse(kText.substr(0, uiLength)));
    }
    EXPECT_EQ("0 d e=[<]\n1 f\n", Parse(kText));
}

TEST(CDialogDocumentTest, Parse_ZeroByteAnywhere_IsRefusedAtItsPlace)
{
    const std::string kText = "<?xml version='1.0'?><!--a--><?b c?><d e='&lt;'> <f/></d >";
    for (std::size_t uiZero = 0; uiZero <= kText.size(); ++uiZero)
    {
        EXPECT_EQ("1:" + std::to_string(uiZero + 1) +
                      ": character U+0000; expected characters that XML allows",
                  Parse(std::string(kText).insert(uiZero, 1, '\0')));
    }
}

TEST(CDialogDocumentTest, Parse_WhiteSpaceWrittenAsAReference_IsTextBetweenElements)
{
    EXPECT_EQ("0 a b=[&]\n1 c\n", Parse("<a b='&amp;'> <c/>\n</a>"));
    EXPECT_EQ("2:1: text between elements; expected an element or the end tag of 'a'",
              Parse("<a>\n&#10;</a>"));
    EXPECT_EQ("1:8: text between elements; expected an element or the end tag of 'a'",
              Parse("<a><b/>&#x20;</a>"));
}

TEST(CDialogDocumentTest, Parse_CDATASectionOfWhiteSpace_IsTextBetweenElements)
{
    EXPECT_EQ("1:4: text between elements; expected an element or the end tag of 'a'",
              Parse("<a><![CDATA[ ]]></a>"));
    EXPECT_EQ("1:4: text between elements; expected an element or the end tag of 'a'",
              Parse("<a><![CDATA[]]></a>"));
}

TEST(CDialogDocumentTest, Parse_ExternalEntities_AreRefusedUnread)
{
    const CTemporaryDirectory kDirectory;
    const std::string kFile = kDirectory.Write("text", "b");
    const std::string kError = "1:1: document type declaration; expected a top element";
    EXPECT_EQ(kError, Parse("<!DOCTYPE a SYSTEM '" + kFile + "'><a/>"));
    EXPECT_EQ(kError, Parse("<!DOCTYPE a [<!ENTITY b SYSTEM '" + kFile + "'>]><a>&b;</a>"));
    EXPECT_EQ(kError, Parse("<!DOCTYPE a [<!ENTITY % b SYSTEM '" + kFile + "'> %b;]><a/>"));
    EXPECT_EQ(kError, Parse("<!DOCTYPE a [<!ATTLIST a b CDATA 'c'>]><a/>"));
}

TEST(CDialogDocumentTest, Parse_TagWithAsManyAttributesAsAFileHolds_IsRefusedAtTheFirstTooMany)
{
    std::string kText = "<a\n";
    for (int iAttribute = 10000; kText.size() < cuiMaxDialogFileSize - 20; ++iAttribute)
    {
        kText += "b" + std::to_string(iAttribute) + "=''\n";
    }
    EXPECT_EQ("66:1: too many attributes; expected at most 64", Parse(kText + "/>"));
}

TEST(CDialogDocumentTest, Parse_NameOrValueAsLongAsAFile_IsKeptWhole)
{
    const std::string kLong(cuiMaxDialogFileSize - 20, 'a');
    EXPECT_EQ("0 " + kLong + "\n", Parse("<" + kLong + "/>"));
    EXPECT_EQ("0 b c=[" + kLong + "]\n", Parse("<b c='" + kLong + "'/>"));
    EXPECT_EQ("0 b " + kLong + "=[]\n", Parse("<b " + kLong + "=''/>"));
}

TEST(CDialogDocumentTest, Parse_SeveralErrorsInATag_ReportsTheFirst)
{
    EXPECT_EQ("1:5: ':'; expected a name without a namespace", Parse("<gui:a b=1/>"));
    EXPECT_EQ("1:7: unknown entity 'c'; expected one of lt, gt, amp, quot, apos", Parse("<a b='&c;' d=1/>"));
    EXPECT_EQ("1:10: second attribute 'b'; expected each attribute once", Parse("<a b='1' b='2' c/>"));
    EXPECT_EQ("1:8: ':'; expected a name without a namespace", Parse("<a><b c:d='&e;'/>"));
    EXPECT_EQ("1:13: ':'; expected a name without a namespace", Parse("<a><b></b><b:/></a>"));
}

TEST(CDialogDocumentTest, Parse_ErrorAfterAnyWhiteSpace_IsFoundBehindIt)
{
    const std::string kError = ": second attribute 'b'; expected each attribute once";
    EXPECT_EQ("1:10" + kError, Parse("<a b='1' b='2'/>"));
    EXPECT_EQ("1:10" + kError, Parse("<a\tb='1'\tb='2'/>"));
    EXPECT_EQ("3:1" + kError, Parse("<a\nb='1'\nb='2'/>"));
    EXPECT_EQ("3:1" + kError, Parse("<a\rb='1'\rb='2'/>"));
    EXPECT_EQ("3:1" + kError, Parse("<a\r\nb='1'\r\nb='2'/>"));
    EXPECT_EQ("1:12" + kError, Parse("<a b = '1' b='2'/>"));
}

TEST(CDialogDocumentTest, Parse_ErrorAfterAnyInstruction_IsFoundBehindIt)
{
    // Among the names are those that resemble that of a declaration.
    for (const std::string kName : {"a", "xm", "abc", "aml", "xal", "xll", "xma", "xmla"})
    {
        for (const std::string kRest : {"", " b", " b ?"})
        {
            std::string kInstruction = "<?";
            kInstruction.append(kName).append(kRest).append("?>");
            EXPECT_EQ("1:" + std::to_string(kInstruction.size() + 1) +
                          ": text before the top element; expected a top element",
                      Parse(kInstruction + "text"));
        }
    }
}

TEST(CDialogDocumentTest, Parse_ErrorAfterNamesAndReferencesThatXMLAllows_IsFoundBehindThem)
{
    for (const std::string kName :
         {"A", "M", "Z", "a", "m", "z", "_", "A0", "a9", "a5-", "a.b", "\xC3\xA4", "\xC3\x80"})
    {
        const std::size_t uiCharacters = kName[0] == '\xC3' ? 1 : kName.size();
        std::string kText = "<" + kName;
        kText.append(" ").append(kName).append("='1' ").append(kName).append("='2'/>");
        EXPECT_EQ("1:" + std::to_string(8 + 2 * uiCharacters) + ": second attribute '" + kName +
                      "'; expected each attribute once",
                  Parse(kText));
    }
    for (const std::string kReference :
         {"&lt;",   "&gt;",     "&amp;",    "&quot;",   "&apos;",     "&#9;",      "&#10;",
          "&#13;",  "&#32;",    "&#65;",    "&#x41;",   "&#x4a;",     "&#x4A;",    "&#xff;",
          "&#xFF;", "&#xD7FF;", "&#xE000;", "&#xFFFD;", "&#x10FFFF;", "&#1114111;"})
    {
        EXPECT_EQ("1:" + std::to_string(9 + kReference.size()) +
                      ": second attribute 'b'; expected each attribute once",
                  Parse("<a b='" + kReference + "' b='2'/>"));
    }
    for (const std::string kReference :
         {"&#0;", "&#8;", "&#11;", "&#12;", "&#14;", "&#31;", "&#x1F;", "&#xD800;", "&#xDFFF;", "&#xFFFE;",
          "&#xFFFF;", "&#x110000;", "&#1114112;", "&#x10FFFF0;", "&#11141110;", "&#99999999999999999999;"})
    {
        EXPECT_EQ("1:7: reference to no character '" + kReference + "'; expected a character that XML allows",
                  Parse("<a b='" + kReference + "' b='2'/>"));
    }
}

TEST(CDialogDocumentTest, Load_WhileAnEarlierInterruptionIsStillRecorded_ReadsTheFile)
{
    const CTemporaryDirectory kDirectory;
    const std::string kFile = kDirectory.Write("a.xml", "<a/>");
    CDialogDocument kDocument;
    DialogFileError_t kError;
    errno = EINTR;

    EXPECT_TRUE(kDocument.Load(kFile, kError));

    EXPECT_EQ("0 a\n", Describe(kDocument.GetElements()));
}

TEST(CDialogDocumentTest, Parse_NameWithLettersOfTheFifthEdition_IsRefused)
{
    EXPECT_EQ("1:2: '\xF0\x9F\x98\x80'; expected an element name", Parse("<\xF0\x9F\x98\x80/>"));
    EXPECT_EQ("1:3: '\xF0\x9F\x98\x80'; expected white space, '>' or '/>'", Parse("<a\xF0\x9F\x98\x80/>"));
    EXPECT_EQ("1:4: '\xE1\x88\x80'; expected an attribute name, '>' or '/>'", Parse("<a \xE1\x88\x80=''/>"));
}

TEST(CDialogDocumentTest, Locate_InAnyOrder_GivesTheSamePlaces)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(
        kDocument.Parse("<a b=\"'='\"  c = '\"d=\"'><e/><f\ng='>'/><h></h><i j='/>' k='1'></i></a>", kError));
    const DialogAttribute_t* pkAttributes = kDocument.GetElements().m_pkAttributes;
    const std::vector<std::string> kPlaces = {"1:4 1:7", "1:13 1:18", "2:1 2:4", "2:18 2:21", "2:25 2:28"};
    for (const std::size_t uiAttribute : {0u, 1u, 2u, 3u, 4u, 4u, 3u, 2u, 1u, 0u, 4u, 0u, 2u})
    {
        EXPECT_EQ(kPlaces[uiAttribute], Describe(kDocument.LocateName(pkAttributes[uiAttribute])) + " " +
                                            Describe(kDocument.LocateValue(pkAttributes[uiAttribute])));
    }
}
} // namespace
