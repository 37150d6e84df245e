// SPDX-License-Identifier: MIT
#include "Flow/FlowRuntime.h"

#include "Core/GUITimer.h"
#include "Core/GUITrace.h"
#include "Loader/DialogFileError.h"
#include "Loader/DialogTreeBuilder.h"
#include "Widgets/GUIWidgets.h"

#include <algorithm>
#include <cstring>

// --- Dialogs ---------------------------------------------------------------------------------------------

CFlowDialogReader::CFlowDialogReader(const FlowModel_t& kFlow)
{
    for (const FlowDialog_t& kDialog : kFlow.m_kDialogs)
    {
        m_kScreens[kDialog.m_kScreen.m_kPath] = &kDialog.m_kScreen;
    }
    for (const FlowPopup_t& kPopup : kFlow.m_kPopups)
    {
        m_kScreens[kPopup.m_kScreen.m_kPath] = &kPopup.m_kScreen;
    }
}

CGUIObject* CFlowDialogReader::Read(const eC_String& kPath)
{
    const auto kFound = m_kScreens.find(kPath.GetText() + std::strlen(cpcPrefix));
    if (kFound == m_kScreens.end())
    {
        GUILOG(GUI_TRACE_ERROR, "CFlowDialogReader::Read: " + kPath + " is not in the flow.\n");
        return nullptr;
    }
    const FlowScreen_t& kScreen = *kFound->second;
    if (!kScreen.m_kError.empty())
    {
        GUILOG(GUI_TRACE_ERROR, "CFlowDialogReader::Read: " + eC_String(kScreen.m_kError.c_str()) + ".\n");
        return nullptr;
    }
    const DialogElements_t kElements = kScreen.GetElements();
    return CDialogTreeBuilder(kElements).Build().release();
}

// --- The flow --------------------------------------------------------------------------------------------

CFlowRuntime::CFlowRuntime(const FlowModel_t& kFlow)
    : m_kFlow(kFlow), m_kContents(kFlow), m_kReader(kFlow), m_kInput(*this)
{
    CGUIFactoryManager& kFactory = CGUIFactoryManager::GetInstance();
    RegisterGUIWidgets(kFactory);
    kFactory.RegisterReaderForPathPrefix(CFlowDialogReader::cpcPrefix, &m_kReader);
    for (const FlowDialog_t& kDialog : kFlow.m_kDialogs)
    {
        m_kManager.RegisterDialogDefinition(
            eC_String(CFlowDialogReader::cpcPrefix) + kDialog.m_kScreen.m_kPath.c_str(), kDialog.m_eID);
    }
    for (const FlowPopup_t& kPopup : kFlow.m_kPopups)
    {
        m_kManager.RegisterPopupDefinition(
            kPopup.m_eID, kPopup.m_ePriority, kPopup.m_uiTime, kPopup.m_bDeleteOnClose,
            eC_String(CFlowDialogReader::cpcPrefix) + kPopup.m_kScreen.m_kPath.c_str());
    }
    for (const FlowFlag_t& kFlag : kFlow.m_kFlags)
    {
        m_kFlags.push_back(kFlag.m_bValue);
    }
    for (eC_UInt uiTimer = 0; uiTimer < kFlow.m_kTimers.size(); ++uiTimer)
    {
        m_kTimers.emplace_back(*this, uiTimer);
    }
}

CFlowRuntime::~CFlowRuntime() = default;

void CFlowRuntime::StartTimers()
{
    for (eC_UInt uiTimer = 0; uiTimer < m_kTimers.size(); ++uiTimer)
    {
        if (m_kFlow.m_kTimers[uiTimer].m_bStarts)
        {
            StartTimer(uiTimer);
        }
    }
}

void CFlowRuntime::RunStart()
{
    for (const FlowReaction_t& kReaction : m_kFlow.m_kReactions)
    {
        if (kReaction.m_eOccasion == FlowReaction_t::START)
        {
            Run(kReaction);
        }
    }
}

eC_Bool CFlowRuntime::PressKey(eC_UInt uiKey)
{
    const FlowKey_t& kKey = m_kFlow.m_kKeys[uiKey];
    return kKey.m_bIsInput ? m_kInput.PressKey(kKey.m_eInput) : React(FlowReaction_t::KEY, NO_HANDLE, uiKey);
}

eC_Bool CFlowRuntime::Holds(const FlowCondition_t& kCondition) const
{
    return std::all_of(kCondition.begin(), kCondition.end(),
                       [this](const FlowTerm_t& kTerm) { return HoldsTerm(kTerm) != kTerm.m_bIsNegated; });
}

eC_Bool CFlowRuntime::HoldsTerm(const FlowTerm_t& kTerm) const
{
    switch (kTerm.m_eKind)
    {
    case FlowTerm_t::FLAG:
        return m_kFlags[kTerm.m_uiFlag];
    case FlowTerm_t::POPUP:
        return m_kManager.IsPopupInPopupList(kTerm.m_eHandle);
    case FlowTerm_t::PAST:
        return m_kManager.ContainsDialog(kTerm.m_eHandle, false);
    case FlowTerm_t::DIALOG:
        break;
    }
    return m_kManager.GetCurrentDialogID() == kTerm.m_eHandle;
}

// --- Timers ----------------------------------------------------------------------------------------------

void CFlowRuntime::CFlowTimer::DoAnimate(const eC_Value& /*vTimes*/)
{
    m_kRuntime.OnTimer(m_uiTimer);
}

eC_Bool CFlowRuntime::IsRunning(eC_UInt uiTimer) const
{
    return GETTIMER.IsAnimating(&m_kTimers[uiTimer]);
}

eC_UInt CFlowRuntime::GetTimeLeft(eC_UInt uiTimer) const
{
    return GETTIMER.GetTimeUntilCallback(&m_kTimers[uiTimer]);
}

void CFlowRuntime::StartTimer(eC_UInt uiTimer)
{
    StopTimer(uiTimer);
    GETTIMER.AddAnimationCallback(m_kFlow.m_kTimers[uiTimer].m_uiTime, &m_kTimers[uiTimer]);
}

void CFlowRuntime::StopTimer(eC_UInt uiTimer)
{
    GETTIMER.RemoveAnimationCallback(&m_kTimers[uiTimer]);
}

void CFlowRuntime::OnTimer(eC_UInt uiTimer)
{
    if (!m_kFlow.m_kTimers[uiTimer].m_bRepeats)
    {
        StopTimer(uiTimer);
    }
    React(FlowReaction_t::TIMER, NO_HANDLE, uiTimer);
}

// --- Reactions -------------------------------------------------------------------------------------------

void CFlowRuntime::OnActivated(CGUIWidget& kWidget)
{
    React(FlowReaction_t::BUTTON, kWidget.GetObject().GetID(), 0);
}

eC_Bool CFlowRuntime::React(FlowReaction_t::EOccasion eOccasion, ObjectHandle_t eButton, eC_UInt uiIndex)
{
    const auto kFound = std::find_if(m_kFlow.m_kReactions.begin(), m_kFlow.m_kReactions.end(),
                                     [&](const FlowReaction_t& kReaction)
                                     {
                                         return kReaction.m_eOccasion == eOccasion &&
                                                kReaction.m_eButton == eButton &&
                                                kReaction.m_uiIndex == uiIndex && Holds(kReaction.m_kWhen);
                                     });
    if (kFound == m_kFlow.m_kReactions.end())
    {
        return false;
    }
    Run(*kFound);
    return true;
}

void CFlowRuntime::Run(const FlowReaction_t& kReaction)
{
    for (const FlowAction_t& kAction : kReaction.m_kActions)
    {
        if (!Holds(kAction.m_kWhen))
        {
            continue;
        }
        try
        {
            Run(kAction);
        }
        catch (int)
        {
            Report(kAction, "the manager threw");
        }
    }
}

void CFlowRuntime::Run(const FlowAction_t& kAction)
{
    switch (kAction.m_eKind)
    {
    case FLOW_FOCUS:
    case FLOW_HIDE:
    case FLOW_DESTROY:
        RunOnObject(kAction, CGUI::GetInstance().GetObjectByID(kAction.m_eTarget, false));
        break;
    case FLOW_SET:
        m_kFlags[kAction.m_uiIndex] = kAction.m_bToggle ? !m_kFlags[kAction.m_uiIndex] : kAction.m_bValue;
        break;
    case FLOW_START:
        StartTimer(kAction.m_uiIndex);
        break;
    case FLOW_STOP:
        StopTimer(kAction.m_uiIndex);
        break;
    default:
        RunOnManager(kAction);
        break;
    }
}

void CFlowRuntime::RunOnManager(const FlowAction_t& kAction)
{
    switch (kAction.m_eKind)
    {
    case FLOW_CREATE:
        m_kManager.CreateDialog(kAction.m_eTarget, kAction.m_eOldDialogAction);
        break;
    case FLOW_BACK:
        m_kManager.Back(kAction.m_bDelete);
        break;
    case FLOW_BACK_TO:
        GoBackTo(kAction);
        break;
    case FLOW_CLEAR:
        m_kManager.ClearDialogHistory(kAction.m_uiKeep, kAction.m_bDelete, kAction.m_bCurrent);
        break;
    case FLOW_SHOW_POPUP:
        m_kManager.ShowPopup(kAction.m_eTarget);
        break;
    default:
        m_kManager.ClosePopup(kAction.m_eTarget);
        break;
    }
}

void CFlowRuntime::RunOnObject(const FlowAction_t& kAction, CGUIObject* pkObject)
{
    // An object of the current dialog comes before one of the same name elsewhere.
    const CGUIObject* pkDialog = m_kManager.GetCurrentDialog();
    CGUIObject* pkInside = pkDialog != nullptr ? pkDialog->GetObjectByID(kAction.m_eTarget, false) : nullptr;
    pkObject = pkInside != nullptr ? pkInside : pkObject;
    if (pkObject == nullptr)
    {
        Report(kAction, "the object is not there");
    }
    else if (kAction.m_eKind == FLOW_HIDE)
    {
        pkObject->SetInvisible(true);
    }
    else if (kAction.m_eKind == FLOW_DESTROY)
    {
        delete pkObject;
    }
    else if (!pkObject->RequestFocus())
    {
        Report(kAction, "the object does not take the focus");
    }
}

void CFlowRuntime::GoBackTo(const FlowAction_t& kAction)
{
    if (!kAction.m_bStepwise || !m_kManager.ContainsDialog(kAction.m_eTarget, false))
    {
        m_kManager.BackToDialog(kAction.m_eTarget, kAction.m_bDelete, false);
        return;
    }
    // What the manager does in its stepwise mode, which would not end when a dialog on the way is gone.
    while (m_kManager.GetCurrentDialogID() != kAction.m_eTarget)
    {
        if (m_kManager.GetCurrentDialogID() == NO_HANDLE || m_kManager.GetHistoryStackSize() == 0)
        {
            m_bIsHanging = true;
            Report(kAction, "going back stepwise never ends");
            return;
        }
        m_kManager.Back(kAction.m_bDelete);
    }
}

void CFlowRuntime::Report(const FlowAction_t& kAction, const eC_Char* pcWhat) const
{
    const eC_Char* pcName = GetObjectHandleName(kAction.m_eTarget);
    GUILOG(GUI_TRACE_ERROR, "CFlowRuntime::Run: " + eC_String(m_kFlow.m_kFile.c_str()) + ":" +
                                eC_String(kAction.m_kPosition.m_uiLine) + ":" +
                                eC_String(kAction.m_kPosition.m_uiColumn) + ": " +
                                (pcName != nullptr ? pcName : "") + ": " + pcWhat + ".\n");
}
