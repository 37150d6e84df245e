// SPDX-License-Identifier: MIT
#include "Tests/Torture/ScenarioTortureSetup.h"

#include "Core/Control/GUI.h"
#include "TestSupport/HookRecorder.h"
#include "TestSupport/RecordingScenarioPlayer.h"

#include <algorithm>
#include <array>

namespace
{
/** Records its hooks, exempts their allocations, and tells the guard when a step back is over. */
class CTortureManager : public CRecordingDialogManager
{
public:
    explicit CTortureManager(CEventLog& kEvents) : CRecordingDialogManager(kEvents), m_kGuard(*this) {}

    /** Deletes popups from the creation hook that were never displayed, because nobody else owns them. */
    ~CTortureManager() override
    {
        for (const CSafeGUIObjectPtr& pkPopup : m_kCreatedPopups)
        {
            if (pkPopup != nullptr && pkPopup->GetParent() == nullptr)
            {
                delete pkPopup.get();
            }
        }
    }

    CEndlessLoopGuard& GetGuard() { return m_kGuard; }

protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override
    {
        const CAllocationFailureScope kSpared(false);
        return CRecordingDialogManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT);
    }

    void OnDialogAdded(CGUIObject* pDialog) override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnDialogAdded(pDialog);
    }

    void OnDialogActivation(CGUIObject* pDialog) override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnDialogActivation(pDialog);
    }

    void OnDialogDeactivation(CGUIObject* pDialog) override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnDialogDeactivation(pDialog);
    }

    eC_Bool OnDialogDeletion(CGUIObject* pDialog) override
    {
        const CAllocationFailureScope kSpared(false);
        return CRecordingDialogManager::OnDialogDeletion(pDialog);
    }

    void OnAfterDialogDeletion(ObjectHandle_t eDeletedDialogID, ObjectHandle_t eNewDialogID) override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnAfterDialogDeletion(eDeletedDialogID, eNewDialogID);
        m_kGuard.OnStep();
    }

    void OnLastDialogDeletion() override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnLastDialogDeletion();
    }

    void OnPopupActivation(CGUIObject* pPopup) override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnPopupActivation(pPopup);
    }

    void OnPopupDeactivation(CGUIObject* pPopup) override
    {
        const CAllocationFailureScope kSpared(false);
        CRecordingDialogManager::OnPopupDeactivation(pPopup);
    }

    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override
    {
        const CAllocationFailureScope kSpared(false);
        CGUIObject* pkPopup = CRecordingDialogManager::CreatePopupImpl(eID);
        m_kCreatedPopups.emplace_back(pkPopup);
        return pkPopup;
    }

private:
    CEndlessLoopGuard m_kGuard;
    std::vector<CSafeGUIObjectPtr> m_kCreatedPopups;
};

/** Makes allocations fail in the commands that belong to the scenario's application. */
class CTorturePlayer : public CRecordingScenarioPlayer
{
public:
    CTorturePlayer(CTortureManager& kManager, CSteppedClock& kClock, CEventLog& kEvents,
                   CCodeFactory& kCodeFactory, std::vector<std::string>& kLines)
        : CRecordingScenarioPlayer(kManager, kClock, kEvents, kCodeFactory),
          m_kGuard(kManager.GetGuard()),
          m_kLines(kLines)
    {
    }

protected:
    std::string RunHandler(const Handler_t& kHandler, const CScenarioArguments& kArguments) override
    {
        // These commands prepare the test or build an object for it.
        static const std::array<const char*, 10> s_kOfTheTest = {
            "tree",         "no-tree", "fail-load", "veto",  "create-dialog",
            "create-popup", "hook",    "throw",     "state", "attach"};
        const bool bIsOfTheTest = std::find(s_kOfTheTest.begin(), s_kOfTheTest.end(),
                                            kArguments.GetCommand()) != s_kOfTheTest.end();
        const ObjectHandle_t eTarget = GetStepwiseTarget(kArguments);
        const CAllocationFailureScope kScope(!bIsOfTheTest);
        if (eTarget == NO_HANDLE)
        {
            return CRecordingScenarioPlayer::RunHandler(kHandler, kArguments);
        }
        m_kGuard.Begin(eTarget);
        std::string kResult;
        try
        {
            kResult = CRecordingScenarioPlayer::RunHandler(kHandler, kArguments);
        }
        catch (...)
        {
            m_kGuard.End();
            throw;
        }
        m_kGuard.End();
        return kResult;
    }

    void WriteLine(const std::string& kLine) override { m_kLines.push_back(kLine); }

private:
    CEndlessLoopGuard& m_kGuard;
    std::vector<std::string>& m_kLines;
};

class CScenarioTortureSetup : public CTortureSetup
{
public:
    CScenarioTortureSetup()
        : m_kReader(m_kCodeFactory, true),
          m_kManager(m_kEvents),
          m_kTrace(m_kEvents, m_kManager.GetGuard()),
          m_kPlayer(m_kManager, m_kClock, m_kEvents, m_kCodeFactory, m_kLines)
    {
        CGUIFactoryManager::CreateInstance().RegisterReaderForPathPrefix(CCodeFactory::cpcPrefix, &m_kReader);
    }

    ~CScenarioTortureSetup() override { CGUIFactoryManager::DestroyInstance(); }

    CGUIDialogManager& GetManager() override { return m_kManager; }

    bool PlayLine(const std::string& kLine) override { return m_kPlayer.Play("line", kLine); }

    bool HasFired() const override
    {
        return CTortureSetup::HasFired() || m_kReader.HasFailed() ||
               (m_uiFailingHook != 0 && m_kManager.GetHookCalls() >= m_uiFailingHook);
    }

    void Disarm() override
    {
        CTortureSetup::Disarm();
        FailHook(0, FAILURE_NULL);
    }

    void ForgetArrangements() override
    {
        m_kManager.ClearActions();
        m_kCodeFactory.ClearFailures();
        for (eC_UInt uiHandle = 0; uiHandle < cuiNOFApplicationHandles; ++uiHandle)
        {
            m_kManager.SetVeto(cpkApplicationHandles[uiHandle].m_eHandle, false);
        }
    }

protected:
    CFaultyReader& GetReader() override { return m_kReader; }

    void FailHook(eC_UInt uiNumber, EFailure eFailure) override
    {
        m_uiFailingHook = uiNumber;
        // Counting starts with the next call; a call that already happened cannot fail.
        m_kManager.FailHook(uiNumber, eFailure);
    }

private:
    CFaultyReader m_kReader;
    CGUI m_kRoot;
    CTortureManager m_kManager;
    CTortureTrace m_kTrace;
    CTorturePlayer m_kPlayer;
    eC_UInt m_uiFailingHook = 0;
};
} // namespace

std::unique_ptr<CTortureSetup> MakeScenarioTortureSetup()
{
    return std::make_unique<CScenarioTortureSetup>();
}
