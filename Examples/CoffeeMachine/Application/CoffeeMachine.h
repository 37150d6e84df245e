// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_COFFEEMACHINE_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_COFFEEMACHINE_H

/** @file
 *  The whole application in one object.
 */

#include "Application/CoffeeMachineDialogManager.h"
#include "Application/Controller.h"
#include "Application/Machine.h"
#include "Application/MachineValues.h"
#include "Application/Sensors.h"
#include "Core/Control/GUI.h"

/** The coffee machine. What its screen shows are the widgets under the root.
 *
 *  It does not depend on the system: a program creates the factory, registers a reader for the dialog files
 *  with it, creates this object, and then passes it touches and keys and calls the timer. There is one at a
 *  time, because there is one root.
 */
class CCoffeeMachine
{
public:
    /** Creates the root and all parts, and registers the object classes of the dialog files with the factory,
     *  which must exist.
     *  @param pkStorage keeps what is shown across power failures, not owned; null if nothing does
     */
    explicit CCoffeeMachine(CGUIRestoreStorage* pkStorage = nullptr);
    CCoffeeMachine(const CCoffeeMachine&) = delete;
    CCoffeeMachine& operator=(const CCoffeeMachine&) = delete;
    ~CCoffeeMachine();

    /** Shows what was shown when the power failed, otherwise the home screen.
     *  @return false if it could not be loaded; the trace says why
     */
    eC_Bool Start() { return m_kController.Start(); }

    CSensors& GetSensors() { return m_kSensors; }
    CMachine& GetMachine() { return m_kMachine; }
    CController& GetController() { return m_kController; }
    CCoffeeMachineDialogManager& GetManager() { return m_kManager; }

private:
    // In this order: the manager is created after the root and destroyed before it.
    CGUI m_kRoot;
    CMachine m_kMachine;
    CSensors m_kSensors;
    CCoffeeMachineDialogManager m_kManager;
    CController m_kController;
    CMachineValues m_kValues;
};

#endif
