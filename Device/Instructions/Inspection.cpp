// SPDX-License-Identifier: MIT
// Prints how many instructions an inspection takes on the board, one operation per line.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITimer.h"
#include "Device/Board/Board.h"
#include "Device/Instructions/InstructionCounter.h"
#include "Inspection/HazardWatch.h"
#include "Inspection/InspectionLink.h"

#include <cstdio>
#include <cstring>

namespace
{
constexpr ObjectHandle_t eDialog = static_cast<ObjectHandle_t>(1000);

eC_UInt GetNoTime()
{
    return 0;
}

/** A channel that takes every line, and from which a line can come. What a ring takes depends on where in it
 * the line begins.
 */
class CEasyChannel : public CInspectionChannel
{
public:
    eC_Bool WriteLine(const eC_Char*, eC_UInt) override
    {
        ++m_uiLines;
        return true;
    }

    eC_UInt Read(eC_Char* pcBytes, eC_UInt) override
    {
        if (m_pcInput == nullptr || *m_pcInput == '\0')
        {
            return 0;
        }
        *pcBytes = *m_pcInput++;
        return 1;
    }

    const eC_Char* m_pcInput = nullptr;
    eC_UInt m_uiLines = 0;
};

/** A dialog with objects, looked into. */
class CInspected
{
public:
    explicit CInspected(eC_UInt uiObjects)
    {
        auto* const pkDialog = new CGUICompositeObject(&m_kRoot, eDialog);
        for (eC_UInt uiObject = 1; uiObject < uiObjects; ++uiObject)
        {
            auto* const pkObject = new CGUIObject(pkDialog, static_cast<ObjectHandle_t>(eDialog + uiObject));
            pkObject->SetFocusable(true);
        }
        m_kManager.CreateDialog(eDialog, CGUIDialogManager::ODA_INVISIBLE);
        m_kLink.AllowInput(m_kCommands, m_acInput, sizeof(m_acInput));
        m_kWatch.Watch(HAZARD_ALL);
        m_kLink.Run();
    }

    void RunOnly() { m_kLink.Run(); }

    void RunForANewReader()
    {
        m_kLink.SendAll();
        m_kLink.Run();
    }

    void RunWithACommand()
    {
        m_kChannel.m_pcInput = "GetCurrentDialogID\n";
        m_kLink.Run();
    }

    void RunWithAWrongLine()
    {
        m_kChannel.m_pcInput = "CreateDialog 1000 ODA_\n";
        m_kLink.Run();
    }

    void LogAnEntry()
    {
        CGUITrace::LogDebug("CGUIDialogManager::UpdateActivePopups: The active popup list is empty!\n");
    }
    void LookForHazards() { m_kWatch.Check(); }

    void Require()
    {
        if (m_kChannel.m_uiLines == 0 || m_kLink.GetDropped() != 0)
        {
            StopBoard("the inspection did not do what was to be counted");
        }
    }

private:
    CGUI m_kRoot;
    CGUIDialogManager m_kManager;
    CEasyChannel m_kChannel;
    eC_Char m_acLine[256];
    eC_Char m_acInput[64];
    CInspectionLink m_kLink{m_kManager, m_kChannel, m_acLine, sizeof(m_acLine)};
    CInspectionCommands m_kCommands{m_kManager};
    CHazardWatch m_kWatch{m_kLink.GetInspector(), m_kLink};
};

/** One act, in a new application each time: replies count. */
class CAct : public COperation
{
public:
    using Function_t = void (CInspected::*)();

    CAct(eC_UInt uiObjects, Function_t pfnDo) : m_uiObjects(uiObjects), m_pfnDo(pfnDo) { Renew(); }
    CAct(const CAct&) = delete;
    CAct& operator=(const CAct&) = delete;
    ~CAct() override { delete m_pkInspected; }

    void Do() override { (m_pkInspected->*m_pfnDo)(); }

    void Undo() override
    {
        m_pkInspected->Require();
        delete m_pkInspected;
        Renew();
    }

private:
    void Renew() { m_pkInspected = new CInspected(m_uiObjects); }

    eC_UInt m_uiObjects;
    Function_t m_pfnDo;
    CInspected* m_pkInspected = nullptr;
};

void Print(const char* pcOperation, eC_UInt uiObjects, CAct::Function_t pfnDo)
{
    CAct kAct(uiObjects, pfnDo);
    const eC_UInt uiInstructions = CountInstructions(kAct);
    std::printf("%-32s %4u objects %12lu\n", pcOperation, uiObjects,
                static_cast<unsigned long>(uiInstructions));
}
} // namespace

int main()
{
    CGUITrace::GetInstance().SetSink(nullptr);
    GETTIMER.SetClock(&GetNoTime);
    CheckInstructionCounter();
    for (const eC_UInt uiObjects : {30U, 100U})
    {
        Print("turn, nothing differs", uiObjects, &CInspected::RunOnly);
        Print("turn, everything is sent", uiObjects, &CInspected::RunForANewReader);
        Print("turn with a command", uiObjects, &CInspected::RunWithACommand);
        Print("turn with a wrong line", uiObjects, &CInspected::RunWithAWrongLine);
        Print("look for all hazards", uiObjects, &CInspected::LookForHazards);
    }
    Print("entry of the trace", 30, &CInspected::LogAnEntry);
    GETTIMER.SetClock(nullptr);
    return 0;
}
