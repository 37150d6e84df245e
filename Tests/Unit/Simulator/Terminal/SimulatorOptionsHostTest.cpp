// SPDX-License-Identifier: MIT
#include "Simulator/Terminal/SimulatorOptions.h"

#include <gtest/gtest.h>

namespace
{
using Options = SimulatorOptions_t;

std::string Fault(const std::vector<std::string>& kArguments)
{
    Options kOptions;
    return ReadSimulatorOptions(kArguments, kOptions);
}

Options Read(const std::vector<std::string>& kArguments)
{
    Options kOptions;
    EXPECT_EQ("", ReadSimulatorOptions(kArguments, kOptions));
    return kOptions;
}
} // namespace

TEST(CSimulatorOptionsTest, WithoutArguments_TheDeskOpens)
{
    EXPECT_EQ(Options::TASK_DESK, Read({}).m_eTask);
}

TEST(CSimulatorOptionsTest, Tasks_AreReadWithTheirValues)
{
    EXPECT_EQ(Options::TASK_HELP, Read({"--help"}).m_eTask);
    EXPECT_EQ(Options::TASK_LIST, Read({"--list"}).m_eTask);
    EXPECT_EQ(Options::TASK_PLAY, Read({"--play"}).m_eTask);
    EXPECT_EQ("", Read({"--play"}).m_kScenario);
    EXPECT_EQ("a", Read({"--play", "a"}).m_kScenario);
    EXPECT_EQ(Options::TASK_JSON, Read({"--json", "-"}).m_eTask);
    EXPECT_EQ("-", Read({"--json", "-"}).m_kScenario);
    EXPECT_EQ(Options::TASK_SHOT, Read({"--shot", "f"}).m_eTask);
    EXPECT_EQ("f", Read({"--shot", "f"}).m_kShot);
}

TEST(CSimulatorOptionsTest, ScenarioAlone_IsPlayed)
{
    EXPECT_EQ(Options::TASK_PLAY, Read({"a"}).m_eTask);
    EXPECT_EQ("a", Read({"a"}).m_kScenario);
}

TEST(CSimulatorOptionsTest, Beginning_IsReadForDeskJSONAndShot)
{
    const Options kOptions = Read({"--from", "a", "--goto", "b", "--record", "c"});
    EXPECT_EQ(Options::TASK_DESK, kOptions.m_eTask);
    EXPECT_EQ("a", kOptions.m_kFrom);
    EXPECT_EQ("b", kOptions.m_kGoTo);
    EXPECT_EQ("c", kOptions.m_kRecord);
    EXPECT_EQ("b", Read({"--json", "--goto", "b"}).m_kGoTo);
    EXPECT_EQ("a", Read({"--shot", "f", "--from", "a"}).m_kFrom);
}

TEST(CSimulatorOptionsTest, Size_IsReadInCharacters)
{
    EXPECT_EQ(140, Read({"--shot", "f", "--size", "140x45"}).m_iWidth);
    EXPECT_EQ(45, Read({"--shot", "f", "--size", "140x45"}).m_iHeight);
    for (const eC_Char* pcSize : {"", "80", "x24", "80x", "0x1", "1x0", "501x1", "80 x 24", "80x24x"})
    {
        EXPECT_EQ("--size: expected columns and rows, 1x1 to 500x500, found '" + std::string(pcSize) + "'",
                  Fault({"--size", pcSize}));
    }
    EXPECT_EQ("--size: expected columns and rows, found nothing", Fault({"--size"}));
}

TEST(CSimulatorOptionsTest, WrongUsage_IsExplained)
{
    EXPECT_EQ("unknown option --jump", Fault({"--jump"}));
    EXPECT_EQ("unknown option -x", Fault({"-x"}));
    EXPECT_EQ("--play and --list exclude each other", Fault({"--play", "--list"}));
    EXPECT_EQ("--play and --play exclude each other", Fault({"--play", "--play"}));
    EXPECT_EQ("expected one scenario, found a and b", Fault({"a", "b"}));
    EXPECT_EQ("--from: expected a scenario, found nothing", Fault({"--from"}));
    EXPECT_EQ("--goto: expected a dialog or popup, found nothing", Fault({"--goto", ""}));
    EXPECT_EQ("--shot: expected a file, found nothing", Fault({"--shot"}));
    EXPECT_EQ("--from is there twice", Fault({"--from", "a", "--from", "b"}));
    EXPECT_EQ("expected --play, --json or no option with the scenario a", Fault({"--list", "a"}));
    EXPECT_EQ("--from and --goto are for the terminal, --json and --shot", Fault({"--play", "--goto", "a"}));
    EXPECT_EQ("--record is for the terminal", Fault({"--list", "--record", "a"}));
}

TEST(CSimulatorOptionsTest, Help_NamesEveryOption)
{
    const std::string kHelp = GetSimulatorOptionsHelp();
    for (const eC_Char* pcOption :
         {"--play", "--json", "--shot", "--size", "--list", "--from", "--goto", "--record", "--help"})
    {
        EXPECT_NE(std::string::npos, kHelp.find(pcOption)) << pcOption;
    }
}

TEST(CSimulatorOptionsTest, FileOfAProgram_IsTheFirstNameWhereverOptionsStand)
{
    const ProgramSyntax_t kSyntax{true, {}};
    for (const std::vector<std::string>& kArguments :
         std::vector<std::vector<std::string>>{{"f", "s"}, {"--play", "f", "s"}, {"f", "--play", "s"}})
    {
        Options kOptions;
        EXPECT_EQ("", ReadSimulatorOptions(kArguments, kOptions, kSyntax));
        EXPECT_EQ("f", kOptions.m_kFile);
        EXPECT_EQ("s", kOptions.m_kScenario);
        EXPECT_EQ(Options::TASK_PLAY, kOptions.m_eTask);
    }
    Options kOptions;
    EXPECT_EQ("", ReadSimulatorOptions({"--goto", "g", "f"}, kOptions, kSyntax));
    EXPECT_EQ("f", kOptions.m_kFile);
    EXPECT_EQ("g", kOptions.m_kGoTo);
    EXPECT_EQ("", kOptions.m_kScenario);
    EXPECT_EQ(Options::TASK_DESK, kOptions.m_eTask);
    EXPECT_EQ("expected one scenario, found s and t",
              ReadSimulatorOptions({"f", "s", "t"}, kOptions, kSyntax));
    EXPECT_EQ("", Read({"s"}).m_kFile);
}

TEST(CSimulatorOptionsTest, OptionsOfAProgram_AreReadWithTheirValues)
{
    std::string kValue;
    Options kOptions;
    const ProgramSyntax_t kSyntax{false, {{"--near", "a place", &kValue}}};
    EXPECT_EQ("", ReadSimulatorOptions({"--near", "here", "s"}, kOptions, kSyntax));
    EXPECT_EQ("here", kValue);
    EXPECT_EQ("s", kOptions.m_kScenario);
    EXPECT_EQ("--near is there twice", ReadSimulatorOptions({"--near", "x"}, kOptions, kSyntax));
    kValue.clear();
    EXPECT_EQ("--near: expected a place, found nothing", ReadSimulatorOptions({"--near"}, kOptions, kSyntax));
    EXPECT_EQ("unknown option --near", Fault({"--near", "x"}));
}
