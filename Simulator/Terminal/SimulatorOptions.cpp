// SPDX-License-Identifier: MIT
#include "Simulator/Terminal/SimulatorOptions.h"

#include "Scenario/Names.h"

namespace
{
using Options = SimulatorOptions_t;

constexpr eC_UInt cuiGreatestSize = 500;

/** An option with a value. */
struct ValueOption_t
{
    const eC_Char* m_pcName;
    const eC_Char* m_pcValue;
    std::string Options::*m_pkValue;
};

constexpr ValueOption_t cakValueOptions[] = {{"--from", "a scenario", &Options::m_kFrom},
                                             {"--goto", "a dialog or popup", &Options::m_kGoTo},
                                             {"--record", "a file", &Options::m_kRecord},
                                             {"--shot", "a file", &Options::m_kShot}};

/** An option that says what to do. */
struct TaskOption_t
{
    const eC_Char* m_pcName;
    Options::ETask m_eTask;
};

constexpr TaskOption_t cakTaskOptions[] = {{"--help", Options::TASK_HELP},
                                           {"--play", Options::TASK_PLAY},
                                           {"--json", Options::TASK_JSON},
                                           {"--shot", Options::TASK_SHOT},
                                           {"--list", Options::TASK_LIST}};

/** Reads "100x30". */
std::string ReadSize(const std::string& kText, Options& kOptionsOUT)
{
    const std::size_t uiCross = kText.find('x');
    eC_UInt uiWidth = 0;
    eC_UInt uiHeight = 0;
    if (uiCross == std::string::npos ||
        !ParseNumber(kText.substr(0, uiCross).c_str(), cuiGreatestSize, uiWidth) ||
        !ParseNumber(kText.substr(uiCross + 1).c_str(), cuiGreatestSize, uiHeight) || uiWidth == 0 ||
        uiHeight == 0)
    {
        return "--size: expected columns and rows, 1x1 to 500x500, found '" + kText + "'";
    }
    kOptionsOUT.m_iWidth = static_cast<eC_Int>(uiWidth);
    kOptionsOUT.m_iHeight = static_cast<eC_Int>(uiHeight);
    return std::string();
}

/** Reads the arguments one after the other. */
class CReader
{
public:
    CReader(const std::vector<std::string>& kArguments, Options& kOptions, const ProgramSyntax_t& kSyntax)
        : m_kArguments(kArguments), m_kOptions(kOptions), m_kSyntax(kSyntax)
    {
    }

    std::string Read()
    {
        while (m_uiNext < m_kArguments.size())
        {
            std::string kFault = ReadOne(m_kArguments[m_uiNext++]);
            if (!kFault.empty())
            {
                return kFault;
            }
        }
        return CheckTogether();
    }

private:
    std::string ReadOne(const std::string& kArgument)
    {
        if (kArgument == "-" || kArgument.compare(0, 1, "-") != 0)
        {
            return ReadName(kArgument);
        }
        for (const TaskOption_t& kTask : cakTaskOptions)
        {
            if (kArgument == kTask.m_pcName)
            {
                std::string kFault = Choose(kTask);
                if (!kFault.empty())
                {
                    return kFault;
                }
            }
        }
        for (const ValueOption_t& kOption : cakValueOptions)
        {
            if (kArgument == kOption.m_pcName)
            {
                return ReadValue(kOption.m_pcName, kOption.m_pcValue, m_kOptions.*kOption.m_pkValue);
            }
        }
        for (const ProgramOption_t& kOption : m_kSyntax.m_kOptions)
        {
            if (kArgument == kOption.m_pcName)
            {
                return ReadValue(kOption.m_pcName, kOption.m_pcValue, *kOption.m_pkValueOUT);
            }
        }
        if (kArgument == "--size")
        {
            return m_uiNext < m_kArguments.size() ? ReadSize(m_kArguments[m_uiNext++], m_kOptions)
                                                  : "--size: expected columns and rows, found nothing";
        }
        return m_pcTask == nullptr || kArgument != m_pcTask ? "unknown option " + kArgument : std::string();
    }

    std::string Choose(const TaskOption_t& kTask)
    {
        if (m_pcTask != nullptr)
        {
            return std::string(m_pcTask) + " and " + kTask.m_pcName + " exclude each other";
        }
        m_pcTask = kTask.m_pcName;
        m_kOptions.m_eTask = kTask.m_eTask;
        return std::string();
    }

    std::string ReadName(const std::string& kArgument)
    {
        if (m_kSyntax.m_bTakesFile && m_kOptions.m_kFile.empty())
        {
            m_kOptions.m_kFile = kArgument;
            return std::string();
        }
        if (!m_kOptions.m_kScenario.empty())
        {
            return "expected one scenario, found " + m_kOptions.m_kScenario + " and " + kArgument;
        }
        m_kOptions.m_kScenario = kArgument;
        return std::string();
    }

    std::string ReadValue(const std::string& kName, const eC_Char* pcExpected, std::string& kValueOUT)
    {
        if (!kValueOUT.empty())
        {
            return kName + " is there twice";
        }
        if (m_uiNext == m_kArguments.size() || m_kArguments[m_uiNext].empty())
        {
            return kName + ": expected " + pcExpected + ", found nothing";
        }
        kValueOUT = m_kArguments[m_uiNext++];
        return std::string();
    }

    std::string CheckTogether()
    {
        const eC_Bool bHasScenario = !m_kOptions.m_kScenario.empty();
        if (m_pcTask == nullptr && bHasScenario)
        {
            // A scenario alone is played, as always.
            m_kOptions.m_eTask = Options::TASK_PLAY;
        }
        const Options::ETask eTask = m_kOptions.m_eTask;
        const eC_Bool bTakesScenario = eTask == Options::TASK_PLAY || eTask == Options::TASK_JSON;
        if (bHasScenario && !bTakesScenario)
        {
            return "expected --play, --json or no option with the scenario " + m_kOptions.m_kScenario;
        }
        const eC_Bool bBegins = !m_kOptions.m_kFrom.empty() || !m_kOptions.m_kGoTo.empty();
        if (bBegins && (eTask == Options::TASK_PLAY || eTask == Options::TASK_LIST))
        {
            return "--from and --goto are for the terminal, --json and --shot";
        }
        if (!m_kOptions.m_kRecord.empty() && eTask != Options::TASK_DESK)
        {
            return "--record is for the terminal";
        }
        return std::string();
    }

    const std::vector<std::string>& m_kArguments;
    Options& m_kOptions;
    const ProgramSyntax_t& m_kSyntax;
    std::size_t m_uiNext = 0;
    const eC_Char* m_pcTask = nullptr;
};
} // namespace

std::string ReadSimulatorOptions(const std::vector<std::string>& kArguments, SimulatorOptions_t& kOptionsOUT,
                                 const ProgramSyntax_t& kSyntax)
{
    kOptionsOUT = SimulatorOptions_t();
    return CReader(kArguments, kOptionsOUT, kSyntax).Read();
}

std::string GetSimulatorOptionsHelp()
{
    return "Without options it runs in the terminal and plays the tour; any key of the device takes over. "
           "Where\n"
           "there is no terminal, it prints a short tour.\n"
           "\n"
           "  --play [SCENARIO]  print the transcript of a scenario, of the whole tour if none is given; a\n"
           "                     SCENARIO without an option does the same\n"
           "  --json [SCENARIO]  execute a scenario, and print trace, states and replies as lines of JSON;\n"
           "                     - reads lines from standard input\n"
           "  --shot FILE.svg    write a picture of the simulator; --size 140x45 sets its columns and rows\n"
           "  --list             print the registered dialogs and popups\n"
           "  --from SCENARIO    begin with the state after a scenario\n"
           "  --goto DIALOG      show this dialog or popup first\n"
           "  --record FILE      write the session at its end; --play repeats it\n"
           "  --help             print this\n"
           "\n"
           "The status is 0, 1 if something could not be done, or 2 for a wrong command line.\n";
}
