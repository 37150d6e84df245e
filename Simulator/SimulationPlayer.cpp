// SPDX-License-Identifier: MIT
#include "Simulator/SimulationPlayer.h"

#include "Core/GUITrace.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/TraceRecorder.h"
#include "Simulator/SimulationLayout.h"
#include "Simulator/StartedApplication.h"
#include "Simulator/TextPainter.h"

#include <utility>
#include <vector>

namespace
{
std::string Tell(eC_Bool bHasEffect)
{
    return bHasEffect ? std::string() : std::string("no effect");
}

/** Single quotes, because a word of a scenario cannot contain a double one. */
std::string Unquote(const std::string& kText)
{
    const eC_Bool bIsQuoted = kText.size() > 1 && kText.front() == '\'' && kText.back() == '\'';
    return bIsQuoted ? kText.substr(1, kText.size() - 2) : kText;
}

/** Passes the application's commands on. */
class CCommandsOf : public CSimulatedCommands
{
public:
    using Add_t = std::function<void(const std::string&, Handler_t)>;

    explicit CCommandsOf(Add_t fnAdd) : m_fnAdd(std::move(fnAdd)) {}

    void Add(const std::string& kUsage, Handler_t kHandler) override { m_fnAdd(kUsage, std::move(kHandler)); }

private:
    Add_t m_fnAdd;
};

void AddToEvents(void* pContext, const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
                 const eC_String& kLine)
{
    AddTraceEvent(*static_cast<CEventLog*>(pContext),
                  {kPrefix.GetText(), kMessage.GetText(), kFile.GetText(), kLine.GetText()});
}

std::vector<std::string> GetKeyNames(const Device_t& kDevice)
{
    std::vector<std::string> kNames;
    for (eC_UInt uiKey = 0; uiKey < kDevice.m_uiKeys; ++uiKey)
    {
        kNames.emplace_back(kDevice.m_pkKeys[uiKey].m_pcName);
    }
    return kNames;
}
} // namespace

CSimulationPlayer::CSimulationPlayer(CSimulatedApplication& kApplication, CSteppedClock& kClock,
                                     CEventLog& kEventLog, LineWriter_t fnWriter)
    : CScenarioPlayer(kApplication.GetManager(), kClock, kEventLog),
      m_kApplication(kApplication),
      m_fnWriter(std::move(fnWriter))
{
    AddKeyCommands();
    AddTouchCommands();
    CCommandsOf kCommands([this](const std::string& kUsage, CSimulatedCommands::Handler_t kHandler)
                          { AddCommand(kUsage, std::move(kHandler)); });
    m_kApplication.AddCommands(kCommands);
}

std::string CSimulationPlayer::GetState()
{
    m_kApplication.Settle();
    return PaintFrame(m_kApplication.GetDevice()) +
           PrintState(GetManager(), STATE_CURRENT | STATE_HISTORY | STATE_ACTIVE_POPUPS | STATE_FOCUS);
}

void CSimulationPlayer::WriteLine(const std::string& kLine)
{
    if (m_fnWriter == nullptr)
    {
        return;
    }
    const eC_Bool bIsHeading = kLine.compare(0, 2, "##") == 0;
    const eC_Bool bIsCommentOrCommand = kLine.front() == '#' || kLine.front() == '>';
    const eC_Bool bFollowsComment = !m_kLastLine.empty() && m_kLastLine.front() == '#';
    const eC_Bool bIsFirstLine = m_kLastLine.empty();
    if (!bIsFirstLine && (bIsHeading || (bIsCommentOrCommand && !bFollowsComment)))
    {
        m_fnWriter(std::string());
    }
    m_fnWriter(kLine);
    m_kLastLine = kLine;
}

void CSimulationPlayer::AddKeyCommands()
{
    AddCommand("power-on", [this](const CScenarioArguments&)
               { return std::string(m_kApplication.PowerOn() ? "" : "no first dialog"); });
    AddCommand("key <key>",
               [this](const CScenarioArguments& kArguments)
               {
                   const eC_UInt uiKey = kArguments.GetChoice(0, GetKeyNames(m_kApplication.GetDevice()));
                   return Tell(m_kApplication.PressKey(uiKey));
               });
    AddCommand("press <key>",
               [this](const CScenarioArguments& kArguments)
               {
                   // In the order of EGUIKey.
                   const eC_UInt uiKey =
                       kArguments.GetChoice(0, {"next", "previous", "up", "down", "left", "right", "activate",
                                                "backspace", "delete", "home", "end"});
                   return Tell(m_kApplication.GetInput().PressKey(static_cast<EGUIKey>(uiKey)));
               });
    AddCommand("type <text...>", [this](const CScenarioArguments& kArguments)
               { return Tell(m_kApplication.GetInput().Type(Unquote(kArguments.GetRest(0)).c_str())); });
}

void CSimulationPlayer::AddTouchCommands()
{
    AddCommand("touch <object>", [this](const CScenarioArguments& kArguments)
               { return Tell(m_kApplication.Touch(kArguments.GetHandle(0))); });
    AddCommand("touch-at <x> <y>",
               [this](const CScenarioArguments& kArguments)
               {
                   const eC_UInt uiX = kArguments.GetNumber(0);
                   const eC_UInt uiY = kArguments.GetNumber(1);
                   const CSimulationLayout kLayout(m_kApplication.GetDevice());
                   return Tell(m_kApplication.GetInput().TouchAt(static_cast<eC_Int>(uiX),
                                                                 static_cast<eC_Int>(uiY), kLayout.Get()));
               });
}

std::string PlayTranscript(CSimulatedApplication& kApplication, const std::string& kName,
                           const std::string& kScript, const LineWriter_t& kWriter)
{
    CSteppedClock kClock;
    CEventLog kEventLog;
    const CStartedApplication kStarted(kApplication);
    std::string kFault = kApplication.CheckFiles();
    if (!kFault.empty())
    {
        return kFault;
    }
    CGUITraceFunction kSink(&AddToEvents, &kEventLog);
    const CTraceSinkScope kScope(&kSink);
    CSimulationPlayer kPlayer(kApplication, kClock, kEventLog, kWriter);
    kPlayer.Play(kName, kScript);
    return kPlayer.GetError();
}
