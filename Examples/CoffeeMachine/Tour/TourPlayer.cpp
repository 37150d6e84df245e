// SPDX-License-Identifier: MIT
#include "Tour/TourPlayer.h"

#include "Application/Definitions.h"
#include "Application/RetainedMemory.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/TraceRecorder.h"

#include <utility>
#include <vector>

namespace
{
/** Sets the sink of the trace, and restores it at the end. */
class CTraceSinkScope
{
public:
    explicit CTraceSinkScope(CGUITraceSink& kSink) : m_pkPreviousSink(CGUITrace::GetInstance().GetSink())
    {
        CGUITrace::GetInstance().SetSink(&kSink);
    }
    CTraceSinkScope(const CTraceSinkScope&) = delete;
    CTraceSinkScope& operator=(const CTraceSinkScope&) = delete;
    ~CTraceSinkScope() { CGUITrace::GetInstance().SetSink(m_pkPreviousSink); }

private:
    CGUITraceSink* m_pkPreviousSink;
};

/** Keeps the message of the last entry, without its line break. */
void KeepMessage(void* pContext, const eC_String&, const eC_String& kMessage, const eC_String&,
                 const eC_String&)
{
    std::string& kLastMessage = *static_cast<std::string*>(pContext);
    kLastMessage = kMessage.GetText();
    kLastMessage.erase(kLastMessage.find_last_not_of('\n') + 1);
}

void AddToEvents(void* pContext, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                 const eC_String& kLine)
{
    AddTraceEvent(*static_cast<CEventLog*>(pContext),
                  {kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()});
}

/** @return empty if all dialog files can be loaded, otherwise why one cannot */
std::string CheckDialogFiles()
{
    std::vector<const eC_Char*> kPaths;
    for (const DialogDefinition_t& kDialog : cakDialogDefinitions)
    {
        kPaths.push_back(kDialog.m_pcPath);
    }
    for (const PopupDefinition_t& kPopup : cakPopupDefinitions)
    {
        if (*kPopup.m_pcPath != '\0')
        {
            kPaths.push_back(kPopup.m_pcPath);
        }
    }
    kPaths.push_back(cpcSimpleHomePath);

    std::string kMessage;
    CGUITraceFunction kSink(&KeepMessage, &kMessage);
    const CTraceSinkScope kScope(kSink);
    for (const eC_Char* pcPath : kPaths)
    {
        const CGUIObject* pkObject = CGUIFactoryManager::GetInstance().LoadDialogFromFile(pcPath);
        if (pkObject == nullptr)
        {
            return std::string("cannot load ") + pcPath + " (" + kMessage + ")";
        }
        delete pkObject;
    }
    return std::string();
}
} // namespace

CTourPlayer::CTourPlayer(CCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEventLog,
                         LineWriter_t kWriter)
    : CScenarioPlayer(kCoffeeMachine.GetManager(), kClock, kEventLog),
      m_kCoffeeMachine(kCoffeeMachine),
      m_kWriter(std::move(kWriter))
{
    AddUserCommands();
    AddMachineCommands();
}

std::string CTourPlayer::GetState()
{
    return m_kCoffeeMachine.PaintFrame().GetText() +
           PrintState(GetManager(), STATE_CURRENT | STATE_HISTORY | STATE_ACTIVE_POPUPS | STATE_FOCUS);
}

void CTourPlayer::WriteLine(const std::string& kLine)
{
    const eC_Bool bIsHeading = kLine.compare(0, 2, "##") == 0;
    const eC_Bool bIsCommentOrCommand = kLine.front() == '#' || kLine.front() == '>';
    const eC_Bool bFollowsComment = !m_kLastLine.empty() && m_kLastLine.front() == '#';
    const eC_Bool bIsFirstLine = m_kLastLine.empty();
    if (!bIsFirstLine && (bIsHeading || (bIsCommentOrCommand && !bFollowsComment)))
    {
        m_kWriter(std::string());
    }
    m_kWriter(kLine);
    m_kLastLine = kLine;
}

void CTourPlayer::AddUserCommands()
{
    AddCommand("power-on", [this](const CScenarioArguments&)
               { return std::string(m_kCoffeeMachine.Start() ? "" : "no home screen"); });
    AddCommand("touch <button>",
               [this](const CScenarioArguments& kArguments)
               {
                   const eC_Bool bHasEffect = m_kCoffeeMachine.GetController().Touch(kArguments.GetHandle(0));
                   return std::string(bHasEffect ? "" : "no effect");
               });
    AddCommand("key <key>",
               [this](const CScenarioArguments& kArguments)
               {
                   const eC_UInt uiKey = kArguments.GetChoice(0, {"next", "ok", "back", "home", "service"});
                   m_kCoffeeMachine.GetController().PressKey(static_cast<EKey>(uiKey));
                   return std::string();
               });
}

void CTourPlayer::AddMachineCommands()
{
    AddCommand("water <millilitres>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kCoffeeMachine.GetSensors().NoteWater(kArguments.GetNumber(0));
                   m_kCoffeeMachine.GetSensors().Process();
                   return std::string();
               });
    AddCommand("beans <grams>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kCoffeeMachine.GetSensors().NoteBeans(kArguments.GetNumber(0));
                   m_kCoffeeMachine.GetSensors().Process();
                   return std::string();
               });
    AddCommand("tray <place>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kCoffeeMachine.GetSensors().NoteTray(kArguments.GetChoice(0, {"out", "in"}) == 1);
                   m_kCoffeeMachine.GetSensors().Process();
                   return std::string();
               });
    AddCommand("cups <number>",
               [this](const CScenarioArguments& kArguments)
               {
                   m_kCoffeeMachine.GetMachine().SetCups(kArguments.GetNumber(0));
                   return std::string();
               });
}

std::string PlayTour(const std::string& kName, const std::string& kScript, const LineWriter_t& kWriter)
{
    CSteppedClock kClock;
    CEventLog kEventLog;
    CRetainedMemory kMemory;
    CCoffeeMachine kCoffeeMachine(&kMemory);

    std::string kFileError = CheckDialogFiles();
    if (!kFileError.empty())
    {
        return kFileError;
    }

    CGUITraceFunction kSink(&AddToEvents, &kEventLog);
    const CTraceSinkScope kScope(kSink);
    CTourPlayer kPlayer(kCoffeeMachine, kClock, kEventLog, kWriter);
    kPlayer.Play(kName, kScript);
    return kPlayer.GetError();
}
