// SPDX-License-Identifier: MIT
#include "Tests/Torture/TourTortureSetup.h"

#include "Examples/CoffeeMachine/Application/Handles.h"
#include "Examples/CoffeeMachine/Simulation/SimulatedCoffeeMachine.h"
#include "Loader/GUIDialogXMLReader.h"
#include "Simulator/SimulationPlayer.h"

namespace
{
/** Makes allocations fail in anything that the user does. */
class CTourTorturePlayer : public CSimulationPlayer
{
public:
    CTourTorturePlayer(CSimulatedCoffeeMachine& kCoffeeMachine, CSteppedClock& kClock, CEventLog& kEvents,
                       CEndlessLoopGuard& kGuard, std::vector<std::string>& kLines)
        : CSimulationPlayer(kCoffeeMachine, kClock, kEvents,
                            [&kLines](const std::string& kLine) { kLines.push_back(kLine); }),
          m_kGuard(kGuard)
    {
    }

protected:
    std::string RunHandler(const Handler_t& kHandler, const CScenarioArguments& kArguments) override
    {
        const bool bIsOfTheTest = kArguments.GetCommand() == "state";
        m_kGuard.Begin(GetTarget(kArguments));
        std::string kResult;
        try
        {
            const CAllocationFailureScope kScope(!bIsOfTheTest);
            kResult = CSimulationPlayer::RunHandler(kHandler, kArguments);
        }
        catch (...)
        {
            m_kGuard.End();
            throw;
        }
        m_kGuard.End();
        return kResult;
    }

private:
    ObjectHandle_t GetTarget(const CScenarioArguments& kArguments)
    {
        // The machine leaves its cleaning guide step by step.
        const bool bLeavesCleaning = kArguments.GetCommand() == "touch" &&
                                     kArguments.GetText(0) == "BTN_HOME" &&
                                     GetManager().ContainsDialog(DLG_CLEANING_TABLET, false);
        return bLeavesCleaning ? DLG_CLEANING_TABLET : GetStepwiseTarget(kArguments);
    }

    CEndlessLoopGuard& m_kGuard;
};

/** The factory, which must exist before the machine and outlive it. */
class CFactoryScope
{
public:
    explicit CFactoryScope(CGUIDialogReader& kCodeReader)
    {
        CGUIFactoryManager::CreateInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix,
                                                                         &kCodeReader);
    }
    CFactoryScope(const CFactoryScope&) = delete;
    CFactoryScope& operator=(const CFactoryScope&) = delete;
    ~CFactoryScope() { CGUIFactoryManager::DestroyInstance(); }
};

class CTourTortureSetup : public CTortureSetup
{
public:
    CTourTortureSetup()
        : m_kFileReader(DIALOGMANAGER_SOURCE_DIRECTORY "/Examples/CoffeeMachine"),
          m_kReader(m_kFileReader, false),
          m_kFactory(m_kCodeFactory),
          m_kCoffeeMachine(m_kReader),
          m_kGuard(m_kCoffeeMachine.GetManager()),
          m_kTrace(m_kEvents, m_kGuard),
          m_kPlayer(m_kCoffeeMachine, m_kClock, m_kEvents, m_kGuard, m_kLines)
    {
    }

    CGUIDialogManager& GetManager() override { return m_kCoffeeMachine.GetManager(); }

    bool PlayLine(const std::string& kLine) override { return m_kPlayer.Play("line", kLine); }

    bool HasFired() const override { return CTortureSetup::HasFired() || m_kReader.HasFailed(); }

    void ForgetArrangements() override {}

protected:
    CFaultyReader& GetReader() override { return m_kReader; }

    void FailHook(eC_UInt, EFailure) override {}

private:
    CGUIDialogXMLReader m_kFileReader;
    CFaultyReader m_kReader;
    CFactoryScope m_kFactory;
    CRunningCoffeeMachine m_kCoffeeMachine;
    CEndlessLoopGuard m_kGuard;
    CTortureTrace m_kTrace;
    CTourTorturePlayer m_kPlayer;
};
} // namespace

std::unique_ptr<CTortureSetup> MakeTourTortureSetup()
{
    return std::make_unique<CTourTortureSetup>();
}
