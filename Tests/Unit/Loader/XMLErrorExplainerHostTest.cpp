// SPDX-License-Identifier: MIT
#include "Loader/XMLErrorExplainer.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string Explain(const std::string& kText, const XMLProgress_t& kProgress)
{
    const XMLError_t kError = ExplainXMLError(kText, kProgress);
    return std::to_string(kError.m_uiOffset) + ": " + kError.m_kFound.GetText() + "; expected " +
           kError.m_kExpected.GetText();
}

TEST(CXMLErrorExplainerTest, TextWithoutAnError_IsWrongWhereTheExplanationEndsOrTheParserStoppedBefore)
{
    XMLProgress_t kProgress;
    EXPECT_EQ("2: '/'; expected well-formed XML 1.0", Explain("<a/>", kProgress));
    kProgress.m_uiWrongCharacter = 3;
    EXPECT_EQ("2: '/'; expected well-formed XML 1.0", Explain("<a/>", kProgress));
    kProgress.m_uiWrongCharacter = 0;
    EXPECT_EQ("0: '<'; expected well-formed XML 1.0", Explain("<a/>", kProgress));
}

TEST(CXMLErrorExplainerTest, TagsWithoutAnError_AreExplainedUpToTheirEnds)
{
    XMLProgress_t kProgress;
    EXPECT_EQ("8: '>'; expected well-formed XML 1.0", Explain("<a b='c'></a>", kProgress));
    EXPECT_EQ("8: '/'; expected well-formed XML 1.0", Explain("<a b='c'/>", kProgress));
    kProgress.m_kOpenElements = {"a"};
    kProgress.m_uiLastStartTag = 0;
    EXPECT_EQ("12: '>'; expected well-formed XML 1.0", Explain("<a b='c'></a>", kProgress));
    EXPECT_EQ("13: '>'; expected well-formed XML 1.0", Explain("<a b='c'></a >", kProgress));
    EXPECT_EQ("11: '/'; expected well-formed XML 1.0", Explain("<a b='c'><b/>", kProgress));
}
} // namespace
