// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_SIMULATION_SIMULATEDCOFFEEMACHINE_H
#define EXAMPLES_COFFEEMACHINE_SIMULATION_SIMULATEDCOFFEEMACHINE_H

/** @file
 *  The coffee machine as the simulator runs it.
 */

#include "Application/CoffeeMachine.h"
#include "Application/RetainedMemory.h"
#include "Simulator/SimulatedApplication.h"

#include <memory>

class CGUIDialogReader;

/** The display of 40 by 12 characters, and the keys below it. */
extern const Device_t ckCoffeeMachineDevice;

/** Adds to the scenario language what happens to the machine besides touches and keys:
 *
 *  | Command | Effect |
 *  |---|---|
 *  | water millilitres, beans grams | sets the contents of the tank, the hopper |
 *  | tray in/out | puts the drip tray in or takes it out |
 *  | cups number | sets the number of cups since the last descaling |
 */
class CSimulatedCoffeeMachine : public CSimulatedApplication
{
public:
    /** @param kReader reads the dialog files; not owned */
    explicit CSimulatedCoffeeMachine(CGUIDialogReader& kReader) : m_kReader(kReader) {}

    const Device_t& GetDevice() const override { return ckCoffeeMachineDevice; }
    void Start() override;
    void Stop() override;
    std::string CheckFiles() override;
    void Settle() override { m_pkCoffeeMachine->GetController().Settle(); }
    eC_Bool PowerOn() override { return m_pkCoffeeMachine->Start(); }
    CGUIDialogManager& GetManager() override { return m_pkCoffeeMachine->GetManager(); }
    CGUIWidgetInput& GetInput() override { return m_pkCoffeeMachine->GetController().GetInput(); }
    eC_Bool PressKey(eC_UInt uiKey) override;
    eC_Bool Touch(ObjectHandle_t eObject) override;
    void AddCommands(CSimulatedCommands& kCommands) override;

    /** @return what handles its buttons; between Start and Stop */
    CController& GetController() { return m_pkCoffeeMachine->GetController(); }
    const CController& GetController() const { return m_pkCoffeeMachine->GetController(); }

    /** @return the machine; between Start and Stop */
    const CMachine& GetMachine() const { return m_pkCoffeeMachine->GetMachine(); }

private:
    CGUIDialogReader& m_kReader;
    std::unique_ptr<CRetainedMemory> m_pkMemory;
    std::unique_ptr<CCoffeeMachine> m_pkCoffeeMachine;
};

/** A coffee machine that is started as long as it exists. */
class CRunningCoffeeMachine : public CSimulatedCoffeeMachine
{
public:
    explicit CRunningCoffeeMachine(CGUIDialogReader& kReader) : CSimulatedCoffeeMachine(kReader)
    {
        CSimulatedCoffeeMachine::Start();
    }
    CRunningCoffeeMachine(const CRunningCoffeeMachine&) = delete;
    CRunningCoffeeMachine& operator=(const CRunningCoffeeMachine&) = delete;
    ~CRunningCoffeeMachine() override { CSimulatedCoffeeMachine::Stop(); }
};

#endif
