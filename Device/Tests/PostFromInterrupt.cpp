// SPDX-License-Identifier: MIT
// The interrupt of the system timer and the task that it interrupts send numbered calls through one small
// queue. The program ends well when every call ran once, those of each sender in order, refusals were told
// and counted, and interrupts came while the task was sending.

#include "Companions/GUIPostQueue.h"
#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITrace.h"
#include "Device/Board/Registers.h"
#include "Device/Board/SysTickClock.h"

#include <cstdio>

namespace
{
constexpr eC_Int ciNOFCalls = 20000; ///< of each sender
constexpr eC_UInt cuiPerTurn = 3;    ///< the most calls in a turn of the main loop

enum ESender : unsigned char
{
    INTERRUPT,
    TASK,
    NOF_SENDERS
};

CGUIPostQueueOf<4> g_kQueue;
eC_Int g_aiReceived[NOF_SENDERS] = {};
eC_UInt g_uiNOFFaults = 0;

volatile eC_Int g_iSentByInterrupt = 0;
volatile eC_UInt g_uiRefusedToInterrupt = 0;
volatile eC_Bool g_bIsTaskSending = false;
volatile eC_UInt g_uiNOFInterruptionsOfSend = 0;

void Receive(void*, eC_Int iSender, eC_Int iNumber)
{
    g_uiNOFFaults += iNumber == g_aiReceived[iSender] ? 0U : 1U;
    g_aiReceived[iSender] = iNumber + 1;
}

void SendFromInterrupt()
{
    if (g_iSentByInterrupt >= ciNOFCalls)
    {
        return;
    }
    // Another rhythm every time, so that it comes at every place of the task.
    SYSTICK.m_uiReload = 4 + static_cast<std::uint32_t>(g_iSentByInterrupt) % 13;
    if (g_bIsTaskSending)
    {
        g_uiNOFInterruptionsOfSend = g_uiNOFInterruptionsOfSend + 1;
    }
    if (g_kQueue.Send(&Receive, nullptr, INTERRUPT, g_iSentByInterrupt))
    {
        g_iSentByInterrupt = g_iSentByInterrupt + 1;
    }
    else
    {
        g_uiRefusedToInterrupt = g_uiRefusedToInterrupt + 1;
    }
}

/** An interrupt asks for a popup, and the main loop shows it. */
eC_Bool ShowPopupFromInterrupt()
{
    static const ObjectHandle_t ePopup = static_cast<ObjectHandle_t>(1);
    static CGUIDialogManager* s_pkManager;
    CGUI kRoot;
    new CGUIObject(&kRoot, ePopup);
    CGUIDialogManager kManager;
    kManager.RegisterPopupDefinition(ePopup, CGUIDialogManager::PRIO_HIGH, 0, false, "");
    s_pkManager = &kManager;
    CSysTickClock::SetFunction(
        []()
        {
            g_kQueue.SendShowPopup(*s_pkManager, ePopup);
            CSysTickClock::SetFunction(nullptr);
        });
    CSysTickClock::Start();
    while (g_kQueue.Process(cuiPerTurn) == 0)
    {
        CSysTickClock::Sleep();
    }
    CSysTickClock::Stop();
    return kManager.IsPopupDisplayed(ePopup);
}
} // namespace

int main()
{
    CGUITrace::GetInstance().SetSink(nullptr);
    const eC_Bool bIsPopupShown = ShowPopupFromInterrupt();

    CSysTickClock::SetFunction(&SendFromInterrupt);
    CSysTickClock::Start();
    eC_Int iSent = 0;
    eC_UInt uiRefused = 0;
    while (g_aiReceived[INTERRUPT] < ciNOFCalls || g_aiReceived[TASK] < ciNOFCalls)
    {
        for (eC_UInt uiCall = 0; uiCall < cuiPerTurn && iSent < ciNOFCalls; ++uiCall)
        {
            g_bIsTaskSending = true;
            const eC_Bool bIsSent = g_kQueue.Send(&Receive, nullptr, TASK, iSent);
            g_bIsTaskSending = false;
            iSent += bIsSent ? 1 : 0;
            uiRefused += bIsSent ? 0U : 1U;
        }
        g_kQueue.Process(cuiPerTurn);
    }
    CSysTickClock::Stop();

    const eC_UInt uiAllRefused = uiRefused + g_uiRefusedToInterrupt;
    std::printf("%d calls of the interrupt and %d of the task ran once and in order; %u refused, %u counted; "
                "%u interrupts while the task was sending; %u faults; popup %s\n",
                g_aiReceived[INTERRUPT], g_aiReceived[TASK], uiAllRefused,
                static_cast<unsigned>(g_kQueue.GetNOFRefused()), g_uiNOFInterruptionsOfSend, g_uiNOFFaults,
                bIsPopupShown ? "shown" : "missing");
    const eC_Bool bAllIsWell = g_uiNOFFaults == 0 && g_kQueue.IsEmpty() && bIsPopupShown &&
                               uiAllRefused == g_kQueue.GetNOFRefused() && uiAllRefused > 0 &&
                               g_uiNOFInterruptionsOfSend > 100;
    return bAllIsWell ? 0 : 1;
}
