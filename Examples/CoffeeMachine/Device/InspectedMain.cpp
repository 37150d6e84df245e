// SPDX-License-Identifier: MIT
// The coffee machine on the board, as a product is built: its main loop runs on the system timer. It is
// inspected over the serial line, which also brings the input of its user, and everything is recorded, so
// that the lines it sends can be replayed on the host.

#include "Application/CoffeeMachine.h"
#include "Core/GUIFactoryManager.h"
#include "Device/Board/Board.h"
#include "Device/Board/SerialLine.h"
#include "Device/Board/SysTickClock.h"
#include "Device/MachineCommands.h"
#include "Dialogs.h"
#include "Inspection/InspectionLink.h"
#include "Inspection/InspectionRing.h"
#include "Inspection/InspectionTurns.h"
#include "Loader/GUIDialogROMReader.h"

namespace
{
eC_Char g_acOut[16384];
eC_Char g_acIn[512];
eC_Char g_acLine[512];
eC_Char g_acInput[128];
eC_Char g_acRecorded[sizeof(g_acInput)];
CInspectionRing g_kRing(g_acOut, sizeof(g_acOut), g_acIn, sizeof(g_acIn));

/** An interrupt calls it. What does not fit is lost, and the line is refused. */
void Receive(eC_Char cByte)
{
    g_kRing.PutIn(&cByte, 1);
}

/** Sends what the line takes without waiting. */
void Send()
{
    static eC_Char s_cNext = '\0';
    static eC_Bool s_bHasNext = false;
    for (;;)
    {
        s_bHasNext = s_bHasNext || g_kRing.TakeOut(&s_cNext, 1) == 1;
        if (!s_bHasNext || !CSerialLine::Send(s_cNext))
        {
            return;
        }
        s_bHasNext = false;
    }
}

HeapFigures_t GetHeapFigures()
{
    const MemoryUse_t kUse = GetBoardHeapUse();
    return {static_cast<eC_UInt>(GetBoardHeapUsedNow()), static_cast<eC_UInt>(kUse.m_uiPeak),
            static_cast<eC_UInt>(kUse.m_uiSize)};
}
} // namespace

int main()
{
    CGUIDialogROMReader kReader(ckDialogs);
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &kReader);
    CGUITrace::GetInstance().SetSink(nullptr);
    CSysTickClock::Start();
    CInspectionTurns kTurns(CSysTickClock::GetTime());
    CCoffeeMachine kCoffeeMachine;
    CRecordedInput kInput(g_kRing, g_acRecorded, sizeof(g_acRecorded));
    CInspectionLink kLink(kCoffeeMachine.GetManager(), kInput, g_acLine, sizeof(g_acLine));
    kLink.GetInspector().SetHeap(&GetHeapFigures);
    eC_UInt uiCommands = 0;
    const ManagerCommand_t* const pkCommands = GetMachineCommands(kCoffeeMachine, uiCommands);
    CInspectionCommands kCommands(kCoffeeMachine.GetManager(), pkCommands, uiCommands);
    kLink.AllowInput(kCommands, g_acInput, sizeof(g_acInput));
    CSerialLine::Start(&Receive);

    kInput.Record(kLink);
    kTurns.Record(kLink);
    kLink.RecordInput("power-on");
    if (!kCoffeeMachine.Start())
    {
        StopBoard("there is no home screen");
    }
    for (;;)
    {
        kLink.Run();
        Send();
        do
        {
            CSysTickClock::Sleep();
        } while (!kTurns.Begin(CSysTickClock::GetTime()));
    }
}
