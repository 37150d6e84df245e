// SPDX-License-Identifier: MIT
// Prints how many instructions the operations of the dialog manager take on the board, one per line.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITrace.h"
#include "Device/Board/Board.h"
#include "Device/Instructions/InstructionCounter.h"

#include <cstdio>

namespace
{
constexpr eC_UInt cuiObjectsPerDialog = 10;

/** The size of the application. */
struct Size_t
{
    const char* m_pcName;
    eC_UInt m_uiHistory; ///< dialogs in the history
    eC_UInt m_uiObjects; ///< objects below the root
};

constexpr Size_t ckSizes[] = {{"empty history, 30 objects", 0, 30},
                              {"empty history, 100 objects", 0, 100},
                              {"empty history, 1000 objects", 0, 1000},
                              {"10 dialogs in the history, 1030 objects", 10, 1030},
                              {"100 dialogs in the history, 1030 objects", 100, 1030}};

void Require(eC_Bool bIsTrue)
{
    if (!bIsTrue)
    {
        StopBoard("the dialog manager did not do what was to be counted");
    }
}

/** @return the identifier of a dialog, the popup, or an object in it */
constexpr ObjectHandle_t GetID(eC_UInt uiDialog, eC_UInt uiObject = 0)
{
    return static_cast<ObjectHandle_t>(1000 + 1000 * uiDialog + uiObject);
}

/** Builds a composite object with children; the first one can have the focus. */
void BuildDialog(eC_UInt uiDialog, eC_UInt uiObjects)
{
    auto* pkDialog = new CGUICompositeObject(&CGUI::GetInstance(), GetID(uiDialog));
    pkDialog->SetInvisible(true);
    for (eC_UInt uiObject = 1; uiObject < uiObjects; ++uiObject)
    {
        auto* pkObject = new CGUIObject(pkDialog, GetID(uiDialog, uiObject));
        pkObject->SetFocusable(uiObject == 1);
    }
}

/** An application of a given size that keeps everything it builds. */
class CApplication
{
public:
    explicit CApplication(const Size_t& kSize) : m_uiNext(kSize.m_uiHistory + 1), m_uiPopup(m_uiNext + 1)
    {
        for (eC_UInt uiDialog = 0; uiDialog <= m_uiPopup; ++uiDialog)
        {
            BuildDialog(uiDialog, cuiObjectsPerDialog);
        }
        // The rest of the application.
        const eC_UInt uiBuilt = (m_uiPopup + 1) * cuiObjectsPerDialog;
        if (uiBuilt < kSize.m_uiObjects)
        {
            BuildDialog(m_uiPopup + 1, kSize.m_uiObjects - uiBuilt);
        }
        m_kManager.RegisterPopupDefinition(GetID(m_uiPopup), CGUIDialogManager::PRIO_HIGHEST, 0, false, "");
        for (eC_UInt uiDialog = 0; uiDialog < m_uiNext; ++uiDialog)
        {
            m_kManager.CreateDialog(GetID(uiDialog), CGUIDialogManager::ODA_INVISIBLE);
        }
        Require(m_kManager.GetHistoryStackSize() == kSize.m_uiHistory);
    }

    void Switch()
    {
        m_kManager.CreateDialog(GetID(m_uiNext), CGUIDialogManager::ODA_INVISIBLE);
        Require(m_kManager.GetCurrentDialogID() == GetID(m_uiNext));
    }

    void Back()
    {
        m_kManager.Back(false);
        Require(m_kManager.GetCurrentDialogID() == GetID(m_uiNext - 1));
    }

    void ShowPopup() { Require(m_kManager.ShowPopup(GetID(m_uiPopup)) != nullptr); }

    void ClosePopup() { Require(m_kManager.ClosePopup(GetID(m_uiPopup))); }

private:
    CGUI m_kRoot;
    CGUIDialogManager m_kManager;
    eC_UInt m_uiNext;  ///< the dialog to switch to
    eC_UInt m_uiPopup; ///< the popup to show
};

/** One step of the application, and the one that reverses it. */
class CAct : public COperation
{
public:
    using Function_t = void (CApplication::*)();

    CAct(CApplication& kApplication, CGUITraceRing& kRing, Function_t pfnDo, Function_t pfnUndo)
        : m_kApplication(kApplication), m_kRing(kRing), m_pfnDo(pfnDo), m_pfnUndo(pfnUndo)
    {
    }

    void Do() override { (m_kApplication.*m_pfnDo)(); }

    void Undo() override
    {
        (m_kApplication.*m_pfnUndo)();
        // The instructions for a message depend on where in the ring it begins.
        m_kRing.Clear();
    }

private:
    CApplication& m_kApplication;
    CGUITraceRing& m_kRing;
    Function_t m_pfnDo;
    Function_t m_pfnUndo;
};

void Print(const Size_t& kSize, const char* pcOperation, CAct kAct)
{
    std::printf("%-14s %-42s %7lu\n", pcOperation, kSize.m_pcName,
                static_cast<unsigned long>(CountInstructions(kAct)));
}
} // namespace

int main()
{
    // A device keeps its newest messages in memory.
    static eC_Char s_acMessages[1024];
    CGUITraceRing kRing(s_acMessages, sizeof(s_acMessages));
    CGUITrace::GetInstance().SetSink(&kRing);

    CheckInstructionCounter();
    for (const Size_t& kSize : ckSizes)
    {
        CApplication kApplication(kSize);
        Print(kSize, "switch", CAct(kApplication, kRing, &CApplication::Switch, &CApplication::Back));
        kApplication.Switch();
        Print(kSize, "back", CAct(kApplication, kRing, &CApplication::Back, &CApplication::Switch));
        kApplication.Back();
        Print(kSize, "popup shown",
              CAct(kApplication, kRing, &CApplication::ShowPopup, &CApplication::ClosePopup));
        kApplication.ShowPopup();
        Print(kSize, "popup closed",
              CAct(kApplication, kRing, &CApplication::ClosePopup, &CApplication::ShowPopup));
        kApplication.ClosePopup();
    }
    CGUITrace::GetInstance().SetSink(nullptr);
    return 0;
}
