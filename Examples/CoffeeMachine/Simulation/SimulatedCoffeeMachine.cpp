// SPDX-License-Identifier: MIT
#include "Simulation/SimulatedCoffeeMachine.h"

#include "Application/Definitions.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITrace.h"

#include <vector>

namespace
{
// In the order of EKey. The service key is under the cover.
constexpr DeviceKey_t cakKeys[] = {{"next", "Next", "Tab"},
                                   {"ok", "OK", "Enter"},
                                   {"back", "Back", "Escape"},
                                   {"home", "Home", "Home"},
                                   {"service", "Service", "F12"}};

/** Keeps the message of the last entry, without its line break. */
void KeepMessage(void* pContext, const eC_String&, const eC_String& kMessage, const eC_String&,
                 const eC_String&)
{
    std::string& kLastMessage = *static_cast<std::string*>(pContext);
    kLastMessage = kMessage.GetText();
    kLastMessage.erase(kLastMessage.find_last_not_of('\n') + 1);
}

std::vector<const eC_Char*> GetPaths()
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
    return kPaths;
}
} // namespace

const Device_t ckCoffeeMachineDevice = {
    "Coffee machine", 40, 12, 1, 1, cakKeys, sizeof(cakKeys) / sizeof(cakKeys[0])};

void CSimulatedCoffeeMachine::Start()
{
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &m_kReader);
    // Erased: a session must not begin with what another one has left.
    m_pkMemory = std::make_unique<CRetainedMemory>();
    m_pkCoffeeMachine = std::make_unique<CCoffeeMachine>(m_pkMemory.get());
}

void CSimulatedCoffeeMachine::Stop()
{
    m_pkCoffeeMachine.reset();
    m_pkMemory.reset();
    CGUIFactoryManager::DestroyInstance();
}

std::string CSimulatedCoffeeMachine::CheckFiles()
{
    std::string kMessage;
    CGUITraceFunction kSink(&KeepMessage, &kMessage);
    CGUITraceSink* const pkPreviousSink = CGUITrace::GetInstance().GetSink();
    CGUITrace::GetInstance().SetSink(&kSink);
    std::string kFault;
    for (const eC_Char* pcPath : GetPaths())
    {
        const std::unique_ptr<CGUIObject> pkObject(
            CGUIFactoryManager::GetInstance().LoadDialogFromFile(pcPath));
        if (pkObject == nullptr && kFault.empty())
        {
            kFault = std::string("cannot load ") + pcPath + " (" + kMessage + ")";
        }
    }
    CGUITrace::GetInstance().SetSink(pkPreviousSink);
    return kFault;
}

eC_Bool CSimulatedCoffeeMachine::PressKey(eC_UInt uiKey)
{
    m_pkCoffeeMachine->GetController().PressKey(static_cast<EKey>(uiKey));
    return true;
}

eC_Bool CSimulatedCoffeeMachine::Touch(ObjectHandle_t eObject)
{
    return m_pkCoffeeMachine->GetController().Touch(eObject);
}

void CSimulatedCoffeeMachine::AddCommands(CSimulatedCommands& kCommands)
{
    CMachine& kMachine = m_pkCoffeeMachine->GetMachine();
    CSensors& kSensors = m_pkCoffeeMachine->GetSensors();
    kCommands.Add("water <millilitres>",
                  [&kSensors](const CScenarioArguments& kArguments)
                  {
                      kSensors.NoteWater(kArguments.GetNumber(0));
                      kSensors.Process();
                      return std::string();
                  });
    kCommands.Add("beans <grams>",
                  [&kSensors](const CScenarioArguments& kArguments)
                  {
                      kSensors.NoteBeans(kArguments.GetNumber(0));
                      kSensors.Process();
                      return std::string();
                  });
    kCommands.Add("tray <place>",
                  [&kSensors](const CScenarioArguments& kArguments)
                  {
                      kSensors.NoteTray(kArguments.GetChoice(0, {"out", "in"}) == 1);
                      kSensors.Process();
                      return std::string();
                  });
    kCommands.Add("cups <number>",
                  [&kMachine](const CScenarioArguments& kArguments)
                  {
                      kMachine.SetCups(kArguments.GetNumber(0));
                      return std::string();
                  });
}
