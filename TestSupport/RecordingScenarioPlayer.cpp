// SPDX-License-Identifier: MIT
#include "TestSupport/RecordingScenarioPlayer.h"

#include "Core/Control/GUI.h"
#include "Scenario/ObjectTree.h"

#include <stdexcept>
#include <string>

namespace
{
/** Parses and tries out a description; a mistake in it is reported as one of the line. */
CObjectTree GetTree(const CScenarioArguments& kArguments, eC_UInt uiIndex)
{
    try
    {
        CObjectTree kTree(kArguments.GetRest(uiIndex));
        delete kTree.Build();
        return kTree;
    }
    catch (const std::invalid_argument& kException)
    {
        throw ScenarioError_t{kException.what()};
    }
}

EHook GetHook(const CScenarioArguments& kArguments, eC_UInt uiIndex)
{
    std::vector<std::string> kNames;
    for (eC_UInt uiHook = 0; uiHook < cuiNOFHooks; ++uiHook)
    {
        kNames.emplace_back(NameOfHook(static_cast<EHook>(uiHook)));
    }
    return static_cast<EHook>(kArguments.GetChoice(uiIndex, kNames));
}
} // namespace

CRecordingScenarioPlayer::CRecordingScenarioPlayer(CRecordingDialogManager& kManager, CSteppedClock& kClock,
                                                   CEventLog& kEventLog, CCodeFactory& kCodeFactory)
    : CScenarioPlayer(kManager, kClock, kEventLog),
      m_kRecordingManager(kManager),
      m_kCodeFactory(kCodeFactory)
{
    AddFactoryCommands();
    AddHookCommands();
}

void CRecordingScenarioPlayer::AddFactoryCommands()
{
    AddCommand(
        "tree <path> <tree...>",
        [this](const CScenarioArguments& kArguments)
        {
            const CObjectTree kTree = GetTree(kArguments, 1);
            m_kCodeFactory.RegisterBuilder(kArguments.GetText(0), [kTree] { return kTree.Build(); });
            return std::string();
        },
        COMMAND_PREPARATION);
    AddCommand(
        "no-tree <path>",
        [this](const CScenarioArguments& kArguments)
        {
            m_kCodeFactory.Unregister(kArguments.GetText(0));
            return std::string();
        },
        COMMAND_PREPARATION);
    AddCommand(
        "fail-load <number> <failure>",
        [this](const CScenarioArguments& kArguments)
        {
            m_kCodeFactory.FailLoad(kArguments.GetNumber(0), static_cast<EFailure>(kArguments.GetChoice(
                                                                 1, {"null", "int", "exception"})));
            return std::string();
        },
        COMMAND_PREPARATION);
}

void CRecordingScenarioPlayer::AddHookCommands()
{
    AddCommand(
        "veto <dialog> <flag>",
        [this](const CScenarioArguments& kArguments)
        {
            m_kRecordingManager.SetVeto(kArguments.GetHandle(0), kArguments.GetFlag(1));
            return std::string();
        },
        COMMAND_PREPARATION);
    AddCommand(
        "create-dialog <dialog> <allow-deletion> <recover-focus> <tree...>",
        [this](const CScenarioArguments& kArguments)
        {
            const CObjectTree kTree = GetTree(kArguments, 3);
            m_kRecordingManager.SetDialogCreator(
                kArguments.GetHandle(0), [kTree] { return kTree.Build(&CGUI::GetInstance()); },
                kArguments.GetFlag(1), kArguments.GetFlag(2));
            return std::string();
        },
        COMMAND_PREPARATION);
    AddCommand(
        "create-popup <popup> <tree...>",
        [this](const CScenarioArguments& kArguments)
        {
            const CObjectTree kTree = GetTree(kArguments, 1);
            m_kRecordingManager.SetPopupCreator(kArguments.GetHandle(0), [kTree] { return kTree.Build(); });
            return std::string();
        },
        COMMAND_PREPARATION);
    AddCommand(
        "hook <hook> <times> <command...>",
        [this](const CScenarioArguments& kArguments)
        {
            const EHook eHook = GetHook(kArguments, 0);
            const eC_Bool bOnce = kArguments.GetChoice(1, {"once", "always"}) == 0;
            const std::string kLine = kArguments.GetRest(2);
            CheckLine(kLine);
            const auto kAction = [this, kLine](CGUIObject*) { PlayNested(kLine); };
            bOnce ? m_kRecordingManager.RunOnce(eHook, kAction)
                  : m_kRecordingManager.RunAlways(eHook, kAction);
            return std::string();
        },
        COMMAND_PREPARATION);
    AddCommand(
        "throw <hook> <failure>",
        [this](const CScenarioArguments& kArguments)
        {
            const EFailure eFailure =
                kArguments.GetChoice(1, {"int", "exception"}) == 0 ? FAILURE_INT : FAILURE_EXCEPTION;
            m_kRecordingManager.RunOnce(GetHook(kArguments, 0),
                                        [eFailure](CGUIObject*) { ThrowFailure(eFailure); });
            return std::string();
        },
        COMMAND_PREPARATION);
}
