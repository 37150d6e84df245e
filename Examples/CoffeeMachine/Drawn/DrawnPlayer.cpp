// SPDX-License-Identifier: MIT
#include "Drawn/DrawnPlayer.h"

#include "Core/Control/GUI.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Scenario/TraceRecorder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <utility>

CDrawnPlayer::CDrawnPlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock,
                           CEventLog& kEventLog, LineWriter_t kWriter, CPresses& kPresses,
                           std::string kPictures)
    : CSimulationPlayer(kCoffeeMachine, kClock, kEventLog, std::move(kWriter)),
      m_kPresses(kPresses),
      m_kPictures(std::move(kPictures))
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
                   const std::string kPath = m_kPictures + "/" + kArguments.GetText(0) + ".png";
                   return WritePicture(TakePicture(), kPath)
                              ? std::string()
                              : "cannot write " + kPath + ": " + std::strerror(errno);
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

int FailDrawn(const char* pcProgram, int iStatus, const std::string& kMessage)
{
    std::fprintf(stderr, "%s: %s\n", pcProgram, kMessage.c_str());
    return iStatus;
}

namespace
{
void AddToEvents(void* pContext, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                 const eC_String& kLine)
{
    AddTraceEvent(*static_cast<CEventLog*>(pContext),
                  {kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()});
}

void WriteLine(const std::string& kLine)
{
    std::fputs((kLine + "\n").c_str(), stdout);
}
} // namespace

int PlayDrawn(const char* pcProgram, const char* pcScenario, const PlayDrawn_t& fnPlay)
{
    constexpr int ciFailure = 1;
    std::ifstream kFile(pcScenario, std::ios::binary);
    const std::string kScript{std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
    if (kScript.empty())
    {
        return FailDrawn(pcProgram, ciFailure,
                         std::string("cannot read ") + pcScenario + ": " + std::strerror(errno));
    }
    CGUIDialogXMLReader kReader(COFFEE_MACHINE_DIRECTORY);
    CEventLog kEventLog;
    std::string kError;
    {
        CRunningCoffeeMachine kCoffeeMachine(kReader);
        CPresses kPresses(kCoffeeMachine.GetController());
        CGUITraceFunction kSink(&AddToEvents, &kEventLog);
        CGUITrace::GetInstance().SetSink(&kSink);
        kError = fnPlay(kCoffeeMachine, kPresses, pcScenario, kScript, &WriteLine, kEventLog);
        CGUITrace::GetInstance().SetSink(nullptr);
    }
    const bool bIsWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    if (!kError.empty())
    {
        return FailDrawn(pcProgram, ciFailure, kError);
    }
    return bIsWritten ? 0 : FailDrawn(pcProgram, ciFailure, "cannot write the transcript");
}
