#ifndef TESTS_TORTURE_TORTURESTAGE_H
#define TESTS_TORTURE_TORTURESTAGE_H

/** @file
 *  Where a scenario is played while something goes wrong.
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

/** Keeps trace entries, and tells the guard of those that end a step back. */
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

/** A whole framework with a manager, a player for its scenario, and one thing that goes wrong.
 *
 *  Allocations fail in what the commands of the scenario run, as far as it belongs to the library or to an
 *  application on it. Those of hook recorders, trace recorders and scenario players are spared.
 */
class CTortureStage
{
public:
    CTortureStage() = default;
    CTortureStage(const CTortureStage&) = delete;
    CTortureStage& operator=(const CTortureStage&) = delete;
    virtual ~CTortureStage() = default;

    virtual CGUIDialogManager& GetManager() = 0;

    /** Plays one line. @return false when the line is wrong */
    virtual bool PlayLine(const std::string& kLine) = 0;

    /** Arms what goes wrong. */
    void Arm(const Injection_t& kInjection);

    /** @return whether it has gone wrong */
    virtual bool HasFired() const;

    /** @return whether what has failed so far asked for null instead of an exception */
    bool WasSilent() const { return m_pkFailure.has_value() && m_pkFailure->GetThrown() == 0; }

    /** Nothing goes wrong any more. */
    virtual void Disarm();

    /** Takes the scenario's special arrangements back, so that what follows depends on none of them. */
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

/** Makes stages of one kind. */
using StageMaker_t = std::unique_ptr<CTortureStage> (*)();

/** @return the target when the words are a stepwise BackToDialog, otherwise NO_HANDLE */
ObjectHandle_t GetStepwiseTarget(const CScenarioArguments& kArguments);

#endif
