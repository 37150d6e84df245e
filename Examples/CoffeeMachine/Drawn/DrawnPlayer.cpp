// SPDX-License-Identifier: MIT
#include "Drawn/DrawnPlayer.h"

#include "Core/Control/GUI.h"
#include "Scenario/TraceRecorder.h"

#include <utility>

CDrawnPlayer::CDrawnPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock,
                           CEventLog& kEventLog, LineWriter_t kWriter, CPresses& kPresses,
                           KeepPicture_t fnKeepPicture)
    : CSimulationPlayer(kCoffeeMachine, kClock, kEventLog, std::move(kWriter)),
      m_kPresses(kPresses),
      m_fnKeepPicture(std::move(fnKeepPicture))
{
    AddCommand("touch <object>", [this](const CScenarioArguments& kArguments)
               { return std::string(Touch(kArguments.GetHandle(0)) ? "" : "no effect"); });
    AddCommand("key <key>",
               [this](const CScenarioArguments& kArguments)
               {
                   const eC_UInt uiKey = kArguments.GetChoice(0, {"next", "ok", "back", "home", "service"});
                   Draw();
                   PressNative(static_cast<EKey>(uiKey));
                   return std::string();
               });
    AddCommand("picture <name>",
               [this](const CScenarioArguments& kArguments)
               {
                   Draw();
                   return m_fnKeepPicture(kArguments.GetText(0));
               });
}

const CGUIObject* CDrawnPlayer::FindButton(ObjectHandle_t eButton)
{
    // Several dialogs have a button of that identifier: the topmost one that is shown.
    const CGUIObject* pkFound = nullptr;
    for (const CGUIObject* pkWindow = CGUI::GetInstance().GetFirstChild(); pkWindow != nullptr;
         pkWindow = pkWindow->GetNextSibling())
    {
        const CGUIObject* pkButton = pkWindow->GetObjectByID(eButton, true);
        pkFound = pkButton != nullptr && HasNative(*pkButton) ? pkButton : pkFound;
    }
    return pkFound;
}

eC_Bool CDrawnPlayer::Touch(ObjectHandle_t eButton)
{
    Draw();
    const CGUIObject* pkButton = FindButton(eButton);
    if (pkButton == nullptr)
    {
        return false;
    }
    m_kPresses.m_bIsPressed = false;
    TouchNative(*pkButton);
    return m_kPresses.m_bIsPressed;
}

std::string CDrawnPlayer::GetState()
{
    Draw();
    return CSimulationPlayer::GetState();
}

namespace
{
void AddToEvents(void* pContext, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                 const eC_String& kLine)
{
    AddTraceEvent(*static_cast<CEventLog*>(pContext),
                  {kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()});
}
} // namespace

std::string PlayOnDisplay(CGUIDialogReader& kReader, const PlayOnDisplay_t& fnPlay)
{
    CEventLog kEventLog;
    CRunningCoffeeMachine kCoffeeMachine(kReader);
    CPresses kPresses(kCoffeeMachine.GetController());
    CGUITraceFunction kSink(&AddToEvents, &kEventLog);
    CGUITrace::GetInstance().SetSink(&kSink);
    std::string kError = fnPlay(kCoffeeMachine, kPresses, kEventLog);
    CGUITrace::GetInstance().SetSink(nullptr);
    return kError;
}
