// SPDX-License-Identifier: MIT
/** @file
 *  Plays every scenario in the program and compares the transcript with the golden one of the same name, byte
 *  for byte.
 */

#include "Tests/Scenario/ScenarioTest.h"
#include "Device/EmbeddedTexts.h"

#include <ostream>

struct EmbeddedScenario_t
{
    std::string m_kName;
    const char* m_pcScript;
    const char* m_pcGolden;
};

static void PrintTo(const EmbeddedScenario_t& kScenario, std::ostream* pkStream)
{
    *pkStream << kScenario.m_kName;
}

namespace
{
/** @return the text with that name, or an empty one */
const char* FindText(const std::string& kName)
{
    const EmbeddedText_t* pkText = g_akEmbeddedTexts;
    while (pkText->m_pcName != nullptr && kName != pkText->m_pcName)
    {
        ++pkText;
    }
    return pkText->m_pcName != nullptr ? pkText->m_pcText : "";
}

std::vector<EmbeddedScenario_t> FindScenarios()
{
    static const std::string s_kExtension = ".scenario";
    std::vector<EmbeddedScenario_t> kScenarios;
    for (const EmbeddedText_t* pkText = g_akEmbeddedTexts; pkText->m_pcName != nullptr; ++pkText)
    {
        const std::string kFile = pkText->m_pcName;
        const std::size_t uiEnd = kFile.rfind(s_kExtension);
        if (uiEnd != std::string::npos)
        {
            const std::string kName = kFile.substr(0, uiEnd);
            kScenarios.push_back({kName, pkText->m_pcText, FindText(kName + ".golden")});
        }
    }
    return kScenarios;
}
} // namespace

class CEmbeddedScenarioTest : public CScenarioTest, public ::testing::WithParamInterface<EmbeddedScenario_t>
{
};

TEST_P(CEmbeddedScenarioTest, Play_GivesTheGoldenTranscript)
{
    const std::string kTranscript = Play(GetParam().m_kName + ".scenario", GetParam().m_pcScript);

    EXPECT_TRUE(kTranscript == GetParam().m_pcGolden)
        << "The transcript differs from " << GetParam().m_kName << ".golden (- golden, + transcript):\n"
        << DiffLines(GetParam().m_pcGolden, kTranscript);
}

INSTANTIATE_TEST_SUITE_P(AllFiles, CEmbeddedScenarioTest, ::testing::ValuesIn(FindScenarios()),
                         [](const ::testing::TestParamInfo<EmbeddedScenario_t>& kInfo)
                         { return kInfo.param.m_kName; });
