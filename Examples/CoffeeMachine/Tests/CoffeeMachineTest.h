// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_TESTS_COFFEEMACHINETEST_H
#define EXAMPLES_COFFEEMACHINE_TESTS_COFFEEMACHINETEST_H

/** @file
 *  The fixture of the coffee machine's tests.
 */

#include "Application/CoffeeMachine.h"
#include "Application/Handles.h"
#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUIFactoryManager.h"
#include "Core/GUITimer.h"
#include "Scenario/EventLog.h"
#include "Scenario/StatePrinter.h"
#include "Scenario/SteppedClock.h"
#include "Scenario/TextLines.h"
#include "Scenario/TraceRecorder.h"
#include "Simulation/SimulatedCoffeeMachine.h"
#include "Simulator/TextPainter.h"
#include "TestSupport/GTest/ExpectText.h"
#include "TestSupport/ObjectCensus.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

/** Registers the reader of the dialog files with the factory. */
void RegisterDialogReader(CGUIFactoryManager& kFactory);

/** A coffee machine with a stepped clock, not started yet. A test that leaves an object or a callback fails.
 */
class CCoffeeMachineTest : public ::testing::Test
{
protected:
    CCoffeeMachineTest() : m_kBefore(TakeObjectCensus()), m_kTraceRecorder(m_kEvents)
    {
        RegisterDialogReader(CGUIFactoryManager::CreateInstance());
        m_pkCoffeeMachine = std::make_unique<CCoffeeMachine>();
    }

    ~CCoffeeMachineTest() override
    {
        m_pkCoffeeMachine.reset();
        CGUIFactoryManager::DestroyInstance();
        EXPECT_EQ("", CompareObjectCensus(m_kBefore, TakeObjectCensus()));
    }

    void PowerOn() { ASSERT_TRUE(m_pkCoffeeMachine->Start()); }

    /** Touches buttons one after the other; each must be there. */
    void Touch(std::initializer_list<ObjectHandle_t> kButtons)
    {
        for (const ObjectHandle_t eButton : kButtons)
        {
            EXPECT_TRUE(Controller().Touch(eButton)) << GetObjectHandleName(eButton);
        }
    }

    /** Presses the service key and enters the code. */
    void EnterService()
    {
        Controller().PressKey(KEY_SERVICE);
        Touch({BTN_DIGIT_3, BTN_DIGIT_1, BTN_DIGIT_2, BTN_DIGIT_1});
    }

    CController& Controller() { return m_pkCoffeeMachine->GetController(); }
    CMachine& Machine() { return m_pkCoffeeMachine->GetMachine(); }
    CCoffeeMachineDialogManager& Manager() { return m_pkCoffeeMachine->GetManager(); }
    CSteppedClock& Clock() { return m_kClock; }

    static CGUIObject* Object(ObjectHandle_t eID) { return CGUI::GetInstance().GetObjectByID(eID, false); }

    std::string Frame()
    {
        Controller().Settle();
        return PaintFrame(ckCoffeeMachineDevice);
    }

    /** @return current dialog, history, popups and focus */
    std::string State()
    {
        return PrintState(Manager(), STATE_CURRENT | STATE_HISTORY | STATE_ACTIVE_POPUPS | STATE_FOCUS);
    }

    /** @return the objects directly below the root, with their visibility */
    std::string Windows();

    /** @return the hook calls since the last call, without "INFO: hook " */
    std::string TakeHooks();

    std::vector<TraceEntry_t> GetTrace() const { return m_kTraceRecorder.GetEntries(); }

private:
    ObjectCensus_t m_kBefore;
    CSteppedClock m_kClock;
    CEventLog m_kEvents;
    CTraceRecorder m_kTraceRecorder;

protected:
    std::unique_ptr<CCoffeeMachine> m_pkCoffeeMachine; ///< after all that it needs
};

#endif
