// SPDX-License-Identifier: MIT
#include "Simulation/SimulatedCoffeeMachine.h"

#include "Core/GUIFactoryManager.h"

namespace
{
// In the order of EKey. The service key is under the cover.
constexpr DeviceKey_t cakKeys[] = {{"next", "Next", "Tab"},
                                   {"ok", "OK", "Enter"},
                                   {"back", "Back", "Escape"},
                                   {"home", "Home", "Home"},
                                   {"service", "Service", "F12"}};

constexpr Device_t ckDevice = {"Coffee machine",
                               CScreen::ciWidth,
                               CScreen::ciHeight,
                               1,
                               1,
                               cakKeys,
                               sizeof(cakKeys) / sizeof(cakKeys[0])};
} // namespace

const Device_t& CSimulatedCoffeeMachine::GetDevice() const
{
    return ckDevice;
}

void CSimulatedCoffeeMachine::Start()
{
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &m_kReader);
    m_pkCoffeeMachine = std::make_unique<CCoffeeMachine>();
}

void CSimulatedCoffeeMachine::Stop()
{
    m_pkCoffeeMachine.reset();
    CGUIFactoryManager::DestroyInstance();
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
