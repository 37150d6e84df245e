#include "Scenario/ScenarioPlayer.h"

#include "Core/Control/GUI.h"
#include "Scenario/Names.h"
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

std::string Quote(const eC_String& kText)
{
    return "\"" + std::string(kText.GetText()) + "\"";
}

std::string NameOfFlag(eC_Bool bFlag)
{
    return bFlag ? "true" : "false";
}

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
    AddDialogCommands();
    AddDialogDefinitionCommands();
    AddPopupDefinitionCommands();
    AddPopupCommands();
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

void CScenarioPlayer::AddDialogCommands()
{
    AddCommand(
        "CreateDialog <dialog> <action>", [this](const CScenarioArguments& kArguments)
        { return NameOfObject(m_kManager.CreateDialog(kArguments.GetHandle(0), kArguments.GetAction(1))); });
    AddCommand("AddDialog <dialog> <action> <recover-focus>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kManager.AddDialog(GetDialogToAdd(kArguments), kArguments.GetAction(1),
                                        kArguments.GetFlag(2));
                   return std::string();
               });
    AddCommand("Back <delete>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kManager.Back(kArguments.GetFlag(0));
                   return std::string();
               });
    AddCommand("BackToDialog <dialog> <delete> <stepwise>",
               [this](const CScenarioArguments& kArguments)
               {
                   return NameOfFlag(m_kManager.BackToDialog(kArguments.GetHandle(0), kArguments.GetFlag(1),
                                                             kArguments.GetFlag(2)));
               });
    AddCommand("ClearDialogHistory <keep> <delete> <delete-current>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kManager.ClearDialogHistory(kArguments.GetNumber(0), kArguments.GetFlag(1),
                                                 kArguments.GetFlag(2));
                   return std::string();
               });
    AddCommand("GetCurrentDialogID",
               [this](const CScenarioArguments&) { return NameOfHandle(m_kManager.GetCurrentDialogID()); });
    AddCommand("GetCurrentDialog",
               [this](const CScenarioArguments&) { return NameOfObject(m_kManager.GetCurrentDialog()); });
    AddCommand("GetHistoryStackSize", [this](const CScenarioArguments&)
               { return std::to_string(m_kManager.GetHistoryStackSize()); });
    AddCommand(
        "ContainsDialog <dialog> <consider-current>", [this](const CScenarioArguments& kArguments)
        { return NameOfFlag(m_kManager.ContainsDialog(kArguments.GetHandle(0), kArguments.GetFlag(1))); });
    AddCommand("GetLastDialogID",
               [this](const CScenarioArguments&) { return NameOfHandle(m_kManager.GetLastDialogID()); });
}

void CScenarioPlayer::AddDialogDefinitionCommands()
{
    AddCommand(
        "RegisterDialogDefinition <path> <dialog>",
        [this](const CScenarioArguments& kArguments)
        {
            return NameOfFlag(
                m_kManager.RegisterDialogDefinition(kArguments.GetText(0).c_str(), kArguments.GetHandle(1)));
        },
        COMMAND_PREPARATION);
    AddCommand(
        "UnregisterDialogDefinition <dialog>",
        [this](const CScenarioArguments& kArguments)
        { return NameOfFlag(m_kManager.UnregisterDialogDefinition(kArguments.GetHandle(0))); },
        COMMAND_PREPARATION);
    AddCommand("GetRegisteredPath <dialog>", [this](const CScenarioArguments& kArguments)
               { return Quote(m_kManager.GetRegisteredPath(kArguments.GetHandle(0))); });
    AddCommand("GetRegisteredDialogID <path>", [this](const CScenarioArguments& kArguments)
               { return NameOfHandle(m_kManager.GetRegisteredDialogID(kArguments.GetText(0).c_str())); });
    AddCommand("CreateDynamicObjectID", [this](const CScenarioArguments&)
               { return NameOfHandle(m_kManager.CreateDynamicObjectID()); });
}

void CScenarioPlayer::AddPopupDefinitionCommands()
{
    AddCommand(
        "RegisterPopupDefinition <popup> <priority> <display-time> <delete-on-close> <path>",
        [this](const CScenarioArguments& kArguments)
        {
            return NameOfFlag(m_kManager.RegisterPopupDefinition(
                kArguments.GetHandle(0), kArguments.GetPriority(1), kArguments.GetNumber(2),
                kArguments.GetFlag(3), kArguments.GetText(4).c_str()));
        },
        COMMAND_PREPARATION);
    AddCommand(
        "UnregisterPopupDefinition <popup>",
        [this](const CScenarioArguments& kArguments)
        { return NameOfFlag(m_kManager.UnregisterPopupDefinition(kArguments.GetHandle(0))); },
        COMMAND_PREPARATION);
    AddCommand(
        "UpdateRegisteredPopupDisplayTime <popup> <display-time>",
        [this](const CScenarioArguments& kArguments)
        {
            return NameOfFlag(m_kManager.UpdateRegisteredPopupDisplayTime(kArguments.GetHandle(0),
                                                                          kArguments.GetNumber(1)));
        },
        COMMAND_PREPARATION);
    AddCommand("GetRegisteredPopupDisplayTime <popup>",
               [this](const CScenarioArguments& kArguments)
               {
                   eC_UInt uiDisplayTime = 0;
                   const eC_Bool bFound =
                       m_kManager.GetRegisteredPopupDisplayTime(kArguments.GetHandle(0), uiDisplayTime);
                   return bFound ? "true, " + std::to_string(uiDisplayTime) + " ms" : std::string("false");
               });
    AddCommand("GetRegisteredPopupInfo <popup>",
               [this](const CScenarioArguments& kArguments)
               {
                   CGUIDialogManager::RegisteredPopup_t kInfo;
                   return m_kManager.GetRegisteredPopupInfo(kArguments.GetHandle(0), kInfo)
                              ? "true, " + PrintPopupDefinition(kInfo)
                              : std::string("false");
               });
}

void CScenarioPlayer::AddPopupCommands()
{
    AddCommand("ShowPopup <popup>", [this](const CScenarioArguments& kArguments)
               { return NameOfObject(m_kManager.ShowPopup(kArguments.GetHandle(0))); });
    AddCommand("ClosePopup <popup>", [this](const CScenarioArguments& kArguments)
               { return NameOfFlag(m_kManager.ClosePopup(kArguments.GetHandle(0))); });
    AddCommand("IsPopupDisplayed <popup>", [this](const CScenarioArguments& kArguments)
               { return NameOfFlag(m_kManager.IsPopupDisplayed(kArguments.GetHandle(0))); });
    AddCommand("IsPopupInPopupList <popup>", [this](const CScenarioArguments& kArguments)
               { return NameOfFlag(m_kManager.IsPopupInPopupList(kArguments.GetHandle(0))); });
}

void CScenarioPlayer::AddApplicationActs()
{
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
    AddCommand("focus <object>", [](const CScenarioArguments& kArguments)
               { return NameOfFlag(kArguments.GetObject(0)->RequestFocus()); });
    AddCommand("focus-any <object>", [](const CScenarioArguments& kArguments)
               { return NameOfFlag(kArguments.GetObject(0)->FocusAny()); });
    AddCommand("focusable <object> <flag>",
               [](const CScenarioArguments& kArguments)
               {
                   kArguments.GetObject(0)->SetFocusable(kArguments.GetFlag(1));
                   return std::string();
               });
    AddCommand("hide <object>",
               [](const CScenarioArguments& kArguments)
               {
                   kArguments.GetObject(0)->SetInvisible(true);
                   return std::string();
               });
    AddCommand("show <object>",
               [](const CScenarioArguments& kArguments)
               {
                   kArguments.GetObject(0)->SetInvisible(false);
                   return std::string();
               });
    AddCommand("delete <object>",
               [](const CScenarioArguments& kArguments)
               {
                   delete kArguments.GetObject(0);
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
