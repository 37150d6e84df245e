// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_TORTURESETUP_H
#define TESTS_TORTURE_TORTURESETUP_H

/** @file
 *  Plays a scenario with a failure.
 */

#include "Scenario/EventLog.h"
#include "Scenario/ScenarioPlayer.h"
#include "Scenario/SteppedClock.h"
#include "Scenario/TraceRecorder.h"
#include "TestSupport/CodeFactory.h"
#include "Tests/AllocationCounter/AllocationCounter.h"
#include "Tests/Torture/EndlessLoopGuard.h"
#include "Tests/Torture/Injection.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/** Records trace entries, and reports those that end a step back to the guard. */
class CTortureTrace : public CTraceRecorder
{
public:
    CTortureTrace(CEventLog& kEvents, CEndlessLoopGuard& kGuard) : CTraceRecorder(kEvents), m_kGuard(kGuard)
    {
    }

    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String& kLine) override;

private:
    CEndlessLoopGuard& m_kGuard;
};

/** A complete framework with a manager, a player for its scenario, and one failure.
 *
 *  Allocations fail in the library and in the application that the scenario's commands run, but not in hook
 *  recorders, trace recorders and scenario players.
 */
class CTortureSetup
{
public:
    CTortureSetup() = default;
    CTortureSetup(const CTortureSetup&) = delete;
    CTortureSetup& operator=(const CTortureSetup&) = delete;
    virtual ~CTortureSetup() = default;

    virtual CGUIDialogManager& GetManager() = 0;

    /** Plays one line. @return false if the line is wrong */
    virtual bool PlayLine(const std::string& kLine) = 0;

    /** Sets the failure. */
    void Arm(const Injection_t& kInjection);

    /** @return whether it has happened */
    virtual bool HasFired() const;

    /** @return whether every failed allocation so far returned null instead of throwing */
    bool WasSilent();

    /** Ends the failures. */
    virtual void Disarm();

    /** Undoes the scenario's special arrangements, so that nothing later depends on them. */
    virtual void ForgetArrangements() = 0;

    /** @return the transcript's lines since the last call */
    std::vector<std::string> TakeLines();

    CEventLog& GetEvents() { return m_kEvents; }
    CSteppedClock& GetClock() { return m_kClock; }
    CCodeFactory& GetCodeFactory() { return m_kCodeFactory; }

protected:
    /** The reader whose loads fail. */
    virtual CFaultyReader& GetReader() = 0;
    virtual void FailHook(eC_UInt uiNumber, EFailure eFailure) = 0;

    CEventLog m_kEvents;
    CSteppedClock m_kClock;
    CCodeFactory m_kCodeFactory;
    std::vector<std::string> m_kLines;

private:
    std::optional<CAllocationFailure> m_pkFailure;
};

/** Creates setups of one kind. */
using SetupMaker_t = std::unique_ptr<CTortureSetup> (*)();

/** @return the target if the words are a stepwise BackToDialog, otherwise NO_HANDLE */
ObjectHandle_t GetStepwiseTarget(const CScenarioArguments& kArguments);

#endif
