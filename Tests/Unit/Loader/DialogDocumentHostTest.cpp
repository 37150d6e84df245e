#include "Loader/DialogDocument.h"

#include "Loader/XMLSyntaxCheck.h"
#include "Tests/Unit/Loader/DialogFileHostTest.h"

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace
{
std::string Describe(const DialogFileError_t& kError)
{
    return std::to_string(kError.m_kPosition.m_uiLine) + ":" + std::to_string(kError.m_kPosition.m_uiColumn) +
           ": " + kError.m_kFound.GetText() + "; expected " + kError.m_kExpected.GetText();
}

TEST(DialogDocument, NewDocument_HasNoTopElement)
{
    EXPECT_TRUE(CDialogDocument().GetTopElement().empty());
}

TEST(DialogDocument, Parse_GoodText_GivesElementsOnly)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;

    ASSERT_TRUE(kDocument.Parse("<?a?><!-- b --><c d='&lt;1'> <!-- --> <?e?> <f/> <g></g> </c>", kError));

    const pugi::xml_node kTop = kDocument.GetTopElement();
    EXPECT_STREQ("c", kTop.name());
    EXPECT_STREQ("<1", kTop.attribute("d").value());
    EXPECT_STREQ("f", kTop.first_child().name());
    EXPECT_STREQ("g", kTop.first_child().next_sibling().name());
    EXPECT_TRUE(kTop.first_child().next_sibling().next_sibling().empty());
    EXPECT_TRUE(kTop.first_child().next_sibling().first_child().empty());
}

TEST(DialogDocument, Parse_BadTextAfterAGoodOne_LeavesNoElements)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("<a/>", kError));

    EXPECT_FALSE(kDocument.Parse("<a>\n<b>", kError));

    EXPECT_EQ("2:4: end of the file; expected an element or the end tag of 'b'", Describe(kError));
    EXPECT_TRUE(kDocument.GetTopElement().empty());
}

TEST(DialogDocument, Load_MissingFileAfterAGoodOne_LeavesNoElements)
{
    const CTemporaryDirectory kDirectory;
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Load(kDirectory.Write("a.xml", "<a/>"), kError));

    EXPECT_FALSE(kDocument.Load(kDirectory.GetPath() / "b.xml", kError));

    EXPECT_EQ("1:1: cannot open (No such file or directory); expected a readable file", Describe(kError));
    EXPECT_TRUE(kDocument.GetTopElement().empty());
}

TEST(DialogDocument, MakeError_PointsAtElementNameAndValue)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    ASSERT_TRUE(kDocument.Parse("\xEF\xBB\xBF<a>\r\n <b c = '\xC3\xA4\r\n&lt;' d\n=''/></a>", kError));
    const pugi::xml_node kTop = kDocument.GetTopElement();
    const pugi::xml_node kChild = kTop.first_child();

    EXPECT_EQ("1:1: x; expected y", Describe(kDocument.MakeErrorAt(kTop, "x", "y")));
    EXPECT_EQ("2:2: x; expected y", Describe(kDocument.MakeErrorAt(kChild, "x", "y")));
    EXPECT_EQ("2:5: x; expected y", Describe(kDocument.MakeErrorAtName(kChild.attribute("c"), "x", "y")));
    EXPECT_EQ("2:10: x; expected y", Describe(kDocument.MakeErrorAtValue(kChild.attribute("c"), "x", "y")));
    EXPECT_EQ("3:7: x; expected y", Describe(kDocument.MakeErrorAtName(kChild.attribute("d"), "x", "y")));
    EXPECT_EQ("4:3: x; expected y", Describe(kDocument.MakeErrorAtValue(kChild.attribute("d"), "x", "y")));
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

TEST(DialogDocument, Parse_WithoutMemory_Throws)
{
    CDialogDocument kDocument;
    DialogFileError_t kError;
    const CNoParserMemory kNoParserMemory;

    EXPECT_THROW(kDocument.Parse("<a/>", kError), std::bad_alloc);

    EXPECT_TRUE(kDocument.GetTopElement().empty());
}
} // namespace
