// SPDX-License-Identifier: MIT
#include "Scenario/ScenarioPlayer.h"

#include "Core/Control/GUI.h"
#include "Scenario/ManagerCommands.h"
#include "Scenario/ObjectTree.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/TextLines.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

namespace
{
constexpr eC_UInt cuiAnyNumber = 0xFFFFFFFFU;

/** Collects a result. */
class CResultText : public CCommandResult
{
public:
    void Add(const eC_Char* pcText) override { m_kText += pcText; }

    const std::string& GetText() const { return m_kText; }

private:
    std::string m_kText;
};

/** Builds what a line describes; a wrong description makes the line wrong. */
CGUIObject* BuildTree(const std::string& kTree, CGUICompositeObject* pkParent)
{
    try
    {
        return CObjectTree(kTree).Build(pkParent);
    }
    catch (const std::invalid_argument& kException)
    {
        throw ScenarioError_t{kException.what()};
    }
}
} // namespace

CScenarioPlayer::CScenarioPlayer(CGUIDialogManager& kManager, CSteppedClock& kClock, CEventLog& kEventLog)
    : m_kManager(kManager), m_kClock(kClock), m_kEventLog(kEventLog)
{
    AddManagerCommands();
    AddApplicationActs();
}

eC_Bool CScenarioPlayer::Play(const std::string& kName, const std::string& kScript)
{
    m_kError.clear();
    m_kNestedError.clear();
    eC_UInt uiLine = 0;
    for (const std::string& kLine : SplitLines(kScript))
    {
        ++uiLine;
        try
        {
            PlayLine(kLine);
        }
        catch (const ScenarioError_t& kError)
        {
            m_kError = kName + ":" + std::to_string(uiLine) + ": " + kError.m_kText;
            WriteLine(m_kError);
            return false;
        }
    }
    return true;
}

std::string CScenarioPlayer::Run(const std::string& kLine)
{
    m_kNestedError.clear();
    const CScenarioArguments kArguments(kLine);
    const Command_t kCommand = FindCommand(kArguments);
    std::string kResult = Execute(kCommand, kArguments);
    if (!m_kNestedError.empty())
    {
        throw ScenarioError_t{m_kNestedError};
    }
    return kResult;
}

std::vector<std::string> CScenarioPlayer::GetUsages() const
{
    std::vector<std::string> kUsages;
    for (const Command_t& kCommand : m_kCommands)
    {
        kUsages.push_back(kCommand.m_kUsage);
    }
    return kUsages;
}

void CScenarioPlayer::AddCommand(const std::string& kUsage, Handler_t kHandler, ECommandKind eKind)
{
    const CScenarioArguments kParameters(kUsage);
    Command_t kCommand{kParameters.GetCommand(), kUsage, 0, kParameters.GetCount(),
                       std::move(kHandler),      eKind};
    for (eC_UInt uiIndex = 0; uiIndex < kParameters.GetCount(); ++uiIndex)
    {
        const std::string& kParameter = kParameters.GetText(uiIndex);
        kCommand.m_uiFewestArguments += kParameter.front() == '[' ? 0U : 1U;
        if (kParameter.find("...") != std::string::npos)
        {
            kCommand.m_uiMostArguments = cuiAnyNumber;
        }
    }
    for (Command_t& kOther : m_kCommands)
    {
        if (kOther.m_kName == kCommand.m_kName)
        {
            kOther = kCommand;
            return;
        }
    }
    m_kCommands.push_back(kCommand);
}

void CScenarioPlayer::PlayNested(const std::string& kLine)
{
    const CEventLog::Ticket_t uiTicket = m_kEventLog.Add(EVENT_NOTE, "nested: " + kLine);
    try
    {
        const CScenarioArguments kArguments(kLine);
        const std::string kResult = RunHandler(FindCommand(kArguments).m_kHandler, kArguments);
        m_kEventLog.Amend(uiTicket, kResult.empty() ? kResult : " = " + kResult);
    }
    catch (const ScenarioError_t& kError)
    {
        // Operations of the manager that catch everything would swallow it.
        m_kNestedError = kLine + ": " + kError.m_kText;
    }
}

std::string CScenarioPlayer::RunHandler(const Handler_t& kHandler, const CScenarioArguments& kArguments)
{
    return kHandler(kArguments);
}

void CScenarioPlayer::CheckLine(const std::string& kLine) const
{
    FindCommand(CScenarioArguments(kLine));
}

std::string CScenarioPlayer::GetState()
{
    return PrintState(m_kManager, STATE_ALL & ~STATE_DEFINITIONS);
}

void CScenarioPlayer::WriteLine(const std::string& kLine)
{
    m_kTranscript += kLine + "\n";
}

void CScenarioPlayer::PlayLine(const std::string& kLine)
{
    const std::size_t uiBegin = kLine.find_first_not_of(" \t");
    if (uiBegin == std::string::npos)
    {
        return;
    }
    if (kLine[uiBegin] == '#')
    {
        WriteLine(kLine);
        return;
    }
    WriteLine("> " + kLine);
    const CScenarioArguments kArguments(kLine);
    const Command_t kCommand = FindCommand(kArguments);
    const std::string kResult = Execute(kCommand, kArguments);
    if (!kResult.empty())
    {
        WriteLine("= " + kResult);
    }
    WriteEvents();
    if (!m_kNestedError.empty())
    {
        throw ScenarioError_t{m_kNestedError};
    }
    if (kCommand.m_eKind == COMMAND_ACT)
    {
        WriteState();
    }
}

const CScenarioPlayer::Command_t& CScenarioPlayer::FindCommand(const CScenarioArguments& kArguments) const
{
    for (const Command_t& kCommand : m_kCommands)
    {
        if (kCommand.m_kName == kArguments.GetCommand())
        {
            if (kArguments.GetCount() < kCommand.m_uiFewestArguments ||
                kArguments.GetCount() > kCommand.m_uiMostArguments)
            {
                throw ScenarioError_t{kCommand.m_kName + ": expected " + kCommand.m_kUsage + ", found " +
                                      std::to_string(kArguments.GetCount()) + " arguments"};
            }
            return kCommand;
        }
    }
    std::string kNames;
    for (const Command_t& kCommand : m_kCommands)
    {
        kNames += (kNames.empty() ? "" : ", ") + kCommand.m_kName;
    }
    throw ScenarioError_t{"expected a command (" + kNames + "), found '" + kArguments.GetCommand() + "'"};
}

std::string CScenarioPlayer::Execute(const Command_t& kCommand, const CScenarioArguments& kArguments)
{
    try
    {
        return RunHandler(kCommand.m_kHandler, kArguments);
    }
    catch (const ScenarioError_t& kError)
    {
        throw ScenarioError_t{kCommand.m_kName + ": " + kError.m_kText};
    }
    catch (int iValue)
    {
        return "throws int " + std::to_string(iValue);
    }
    catch (const std::exception& kException)
    {
        return std::string("throws ") + kException.what();
    }
}

void CScenarioPlayer::WriteEvents()
{
    for (const std::string& kEvent : m_kEventLog.TakeReadable())
    {
        // A line break at the end begins one more line, which SplitLines would leave out.
        const std::vector<std::string> kLines = SplitLines(kEvent + "\n");
        WriteLine("  " + kLines.front());
        for (std::size_t uiLine = 1; uiLine < kLines.size(); ++uiLine)
        {
            WriteLine(kLines[uiLine].empty() ? "  :" : "  : " + kLines[uiLine]);
        }
    }
}

void CScenarioPlayer::WriteState()
{
    const std::string kState = GetState();
    if (kState == m_kLastState)
    {
        WriteLine("| unchanged");
        return;
    }
    m_kLastState = kState;
    for (const std::string& kLine : SplitLines(kState))
    {
        WriteLine("| " + kLine);
    }
}

void CScenarioPlayer::AddManagerCommands()
{
    eC_UInt uiCount = 0;
    const ManagerCommand_t* const pkCommands = GetManagerCommands(uiCount);
    for (eC_UInt uiCommand = 0; uiCommand < uiCount; ++uiCommand)
    {
        const ManagerCommand_t& kCommand = pkCommands[uiCommand];
        AddCommand(
            kCommand.m_pcUsage,
            [this, &kCommand](const CScenarioArguments& kArguments)
            {
                WordValue_t akWords[cuiMostCommandWords];
                for (eC_UInt uiWord = 0; kCommand.m_pcKinds[uiWord] != '\0'; ++uiWord)
                {
                    akWords[uiWord] =
                        kArguments.GetValue(uiWord, static_cast<EWordKind>(kCommand.m_pcKinds[uiWord]));
                }
                CResultText kResult;
                kCommand.m_pfnExecute(m_kManager, akWords, kResult);
                return kResult.GetText();
            },
            kCommand.m_bIsPreparation ? COMMAND_PREPARATION : COMMAND_ACT);
    }
}

void CScenarioPlayer::AddApplicationActs()
{
    AddCommand("AddDialog <dialog> <action> <recover-focus>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kManager.AddDialog(GetDialogToAdd(kArguments), kArguments.GetAction(1),
                                        kArguments.GetFlag(2));
                   return std::string();
               });
    AddCommand("advance <milliseconds>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kClock.Advance(kArguments.GetNumber(0));
                   return std::string();
               });
    AddCommand("attach <tree...>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_pkAttached = BuildTree(kArguments.GetRest(0), &CGUI::GetInstance());
                   return std::string();
               });
    AddCommand(
        "state",
        [this](const CScenarioArguments&)
        {
            for (const std::string& kLine : SplitLines(PrintState(m_kManager)))
            {
                WriteLine("| " + kLine);
            }
            return std::string();
        },
        COMMAND_PREPARATION);
}

CGUIObject* CScenarioPlayer::GetDialogToAdd(const CScenarioArguments& kArguments)
{
    if (kArguments.GetText(0) == "null")
    {
        return nullptr;
    }
    return kArguments.GetText(0) == "attached" ? m_pkAttached.get() : kArguments.GetObject(0);
}
