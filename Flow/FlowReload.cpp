// SPDX-License-Identifier: MIT
#include "Flow/FlowReload.h"

#include "Core/GUIEventHandler.h"
#include "Flow/FlowReader.h"
#include "Scenario/Names.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace
{
/** @return each screen of a flow */
std::vector<const FlowScreen_t*> GetScreens(const FlowModel_t& kFlow)
{
    std::vector<const FlowScreen_t*> kScreens;
    for (const FlowDialog_t& kDialog : kFlow.m_kDialogs)
    {
        kScreens.push_back(&kDialog.m_kScreen);
    }
    for (const FlowPopup_t& kPopup : kFlow.m_kPopups)
    {
        kScreens.push_back(&kPopup.m_kScreen);
    }
    return kScreens;
}

std::vector<std::string> GetFiles(const FlowModel_t& kFlow)
{
    std::vector<std::string> kFiles = {kFlow.m_kFile};
    for (const FlowScreen_t* pkScreen : GetScreens(kFlow))
    {
        if (std::find(kFiles.begin(), kFiles.end(), pkScreen->m_kFile) == kFiles.end())
        {
            kFiles.push_back(pkScreen->m_kFile);
        }
    }
    return kFiles;
}

/** @return the mistake in a screen that had none before, empty if there is none */
std::string FindNewMistake(const FlowModel_t& kBefore, const FlowModel_t& kNow)
{
    const std::vector<const FlowScreen_t*> kOld = GetScreens(kBefore);
    for (const FlowScreen_t* pkScreen : GetScreens(kNow))
    {
        const eC_Bool bWasRight =
            std::any_of(kOld.begin(), kOld.end(),
                        [pkScreen](const FlowScreen_t* pkOther)
                        { return pkOther->m_kPath == pkScreen->m_kPath && pkOther->m_kError.empty(); });
        if (!pkScreen->m_kError.empty() && bWasRight)
        {
            return pkScreen->m_kError;
        }
    }
    return std::string();
}

eC_Bool IsIn(const std::vector<std::string>& kNames, const std::string& kName)
{
    return std::find(kNames.begin(), kNames.end(), kName) != kNames.end();
}

eC_Bool IsIn(const std::vector<ObjectHandle_t>& kHandles, ObjectHandle_t eHandle)
{
    return std::find(kHandles.begin(), kHandles.end(), eHandle) != kHandles.end();
}

/** @return the dialogs that a flow still defines. The action of one that is gone is forgotten with it. */
std::vector<FlowMemory_t::Dialog_t> KeepDefined(const std::vector<FlowMemory_t::Dialog_t>& kDialogs,
                                                const FlowModel_t& kFlow)
{
    std::vector<FlowMemory_t::Dialog_t> kKept;
    std::copy_if(kDialogs.begin(), kDialogs.end(), std::back_inserter(kKept),
                 [&kFlow](const FlowMemory_t::Dialog_t& kDialog)
                 {
                     return std::any_of(kFlow.m_kDialogs.begin(), kFlow.m_kDialogs.end(),
                                        [&kDialog](const FlowDialog_t& kDefined)
                                        { return kDefined.m_eID == kDialog.m_eID; });
                 });
    if (!kKept.empty())
    {
        kKept.back().m_eAction = CGUIDialogManager::ODA_NOTHING;
    }
    return kKept;
}

eC_Bool AreSame(const std::vector<FlowMemory_t::Dialog_t>& kOne,
                const std::vector<FlowMemory_t::Dialog_t>& kOther)
{
    return std::equal(kOne.begin(), kOne.end(), kOther.begin(), kOther.end(),
                      [](const FlowMemory_t::Dialog_t& kDialog, const FlowMemory_t::Dialog_t& kSame)
                      { return kDialog.m_eID == kSame.m_eID && kDialog.m_eAction == kSame.m_eAction; });
}

std::string NameOfFocus()
{
    const CGUIObject* const pkFocussed = CGUIEventHandler::GetInstance().GetFocussedObject();
    return pkFocussed != nullptr && pkFocussed->GetID() != NO_HANDLE ? NameOfHandle(pkFocussed->GetID())
                                                                     : std::string();
}

/** Brings a flow to where the user was, with lines of the session. */
class CRestorer
{
public:
    CRestorer(CFlowApplication& kApplication, CSimulation& kSimulation, const FlowMemory_t& kMemory)
        : m_kFlow(kApplication.GetFlow()),
          m_kSimulation(kSimulation),
          m_kMemory(kMemory),
          m_kNow(kApplication.GetMemory())
    {
    }

    void Restore(const std::vector<FlowMemory_t::Dialog_t>& kDialogs, const std::string& kFocus)
    {
        for (const ObjectHandle_t ePopup : m_kNow.m_kPopups)
        {
            m_kSimulation.Run("ClosePopup " + NameOfHandle(ePopup));
        }
        m_kSimulation.Run("ClearDialogHistory 0 true true");
        CGUIDialogManager::EOldDialogAction eAction = CGUIDialogManager::ODA_NOTHING;
        for (const FlowMemory_t::Dialog_t& kDialog : kDialogs)
        {
            m_kSimulation.Run("CreateDialog " + NameOfHandle(kDialog.m_eID) + " " + NameOfAction(eAction));
            eAction = kDialog.m_eAction;
        }
        RestoreFlagsAndTimers();
        for (const FlowPopup_t& kPopup : m_kFlow.m_kPopups)
        {
            if (IsIn(m_kMemory.m_kPopups, kPopup.m_eID))
            {
                m_kSimulation.Run("ShowPopup " + kPopup.m_kName);
            }
        }
        if (!kFocus.empty() && kFocus != NameOfFocus())
        {
            m_kSimulation.Run("focus " + kFocus);
        }
    }

private:
    void RestoreFlagsAndTimers()
    {
        for (const FlowFlag_t& kFlag : m_kFlow.m_kFlags)
        {
            const eC_Bool bIsSet = IsIn(m_kMemory.m_kFlags, kFlag.m_kName);
            if (bIsSet != IsIn(m_kNow.m_kFlags, kFlag.m_kName))
            {
                m_kSimulation.Run("set " + kFlag.m_kName + (bIsSet ? " true" : " false"));
            }
        }
        for (const FlowTimer_t& kTimer : m_kFlow.m_kTimers)
        {
            const eC_Bool bRuns = IsIn(m_kMemory.m_kRunningTimers, kTimer.m_kName);
            if (bRuns != IsIn(m_kNow.m_kRunningTimers, kTimer.m_kName))
            {
                m_kSimulation.Run((bRuns ? "start " : "stop ") + kTimer.m_kName);
            }
        }
    }

    const FlowModel_t& m_kFlow;
    CSimulation& m_kSimulation;
    const FlowMemory_t& m_kMemory;
    FlowMemory_t m_kNow;
};
} // namespace

CFlowReload::CFlowReload(CFlowApplication& kApplication)
    : m_kApplication(kApplication), m_kFiles(GetFiles(kApplication.GetFlow())), m_kContents(ReadFiles())
{
}

CSimulatedSource::ENews CFlowReload::Look(CSimulation& kSimulation, std::string& kTextOUT)
{
    if (ReadFiles() == m_kContents)
    {
        return NEWS_NONE;
    }
    const FlowModel_t& kBefore = m_kApplication.GetFlow();
    std::string kMistake;
    std::shared_ptr<const FlowModel_t> pkFlow;
    do
    {
        // Contents that change while the flow is read are noticed by the next look, also in new files.
        m_kFiles = pkFlow != nullptr ? GetFiles(*pkFlow) : m_kFiles;
        m_kContents = ReadFiles();
        pkFlow = ReadFlow(kBefore.m_kFile, kMistake);
    } while (pkFlow != nullptr && GetFiles(*pkFlow) != m_kFiles);
    kMistake = pkFlow != nullptr ? FindNewMistake(kBefore, *pkFlow) : kMistake;
    if (!kMistake.empty())
    {
        kTextOUT = kMistake;
        return NEWS_MISTAKE;
    }
    kTextOUT = ChangeTo(pkFlow, kSimulation);
    return NEWS_CHANGED;
}

/** Reads all files. Their contents are compared, because times of change are too coarse to notice all. */
std::string CFlowReload::ReadFiles() const
{
    std::string kContents;
    for (const std::string& kName : m_kFiles)
    {
        std::ifstream kFile(kName, std::ios::binary);
        const std::string kText{std::istreambuf_iterator<char>(kFile), std::istreambuf_iterator<char>()};
        kContents += std::to_string(kText.size()) + (kFile.is_open() ? ":" : "none:") + kText;
    }
    return kContents;
}

std::string CFlowReload::ChangeTo(const std::shared_ptr<const FlowModel_t>& pkFlow, CSimulation& kSimulation)
{
    const FlowMemory_t kMemory = m_kApplication.GetMemory();
    const std::string kFocus = NameOfFocus();
    const std::size_t uiLeftOut = kSimulation.Change([this, &pkFlow]() { m_kApplication.SetFlow(pkFlow); });
    std::string kText = "the flow has changed";
    kText += uiLeftOut > 0 ? "; lines that are wrong now were left out: " + std::to_string(uiLeftOut) : "";
    const std::vector<FlowMemory_t::Dialog_t> kWanted = KeepDefined(kMemory.m_kDialogs, *pkFlow);
    if (kWanted.empty() || AreSame(kWanted, m_kApplication.GetMemory().m_kDialogs))
    {
        return kText;
    }
    CRestorer(m_kApplication, kSimulation, kMemory).Restore(kWanted, kFocus);
    const eC_Bool bIsKept = AreSame(kWanted, m_kApplication.GetMemory().m_kDialogs);
    return kText + (bIsKept ? "; the history is built again" : "; the history cannot be kept");
}
