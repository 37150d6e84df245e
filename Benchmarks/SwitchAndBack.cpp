// Switches between two dialogs that are both kept, as often as the argument says. Two runs that differ in
// their number of switches tell what one switch and the way back cost.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITrace.h"
#include "GUIConfig/GUIObjectHandleResource.h"

#include <cstdio>
#include <cstdlib>

#define BENCHMARK_HANDLES(HANDLE)                                                                            \
    HANDLE(DLG_FIRST)                                                                                        \
    HANDLE(DLG_SECOND)                                                                                       \
    HANDLE(OBJ_BUTTON)
GUI_DECLARE_OBJECT_HANDLES(BENCHMARK_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(BENCHMARK_HANDLES)

namespace
{
constexpr int ciObjectsPerDialog = 20;

void BuildDialog(ObjectHandle_t eID)
{
    CGUICompositeObject* pkDialog = new CGUICompositeObject(&CGUI::GetInstance(), eID);
    pkDialog->SetInvisible(true);
    CGUIObject* pkButton = new CGUIObject(pkDialog, OBJ_BUTTON);
    pkButton->SetFocusable(true);
    for (int i = 1; i < ciObjectsPerDialog; ++i)
    {
        new CGUIObject(pkDialog);
    }
}
} // namespace

int main(int iArguments, char** ppcArguments)
{
    if (iArguments != 2)
    {
        std::fputs("Usage: SwitchAndBack <number of switches>\n", stderr);
        return EXIT_FAILURE;
    }

    CGUITrace::GetInstance().SetSink(nullptr);
    CGUI kRoot;
    BuildDialog(DLG_FIRST);
    BuildDialog(DLG_SECOND);

    CGUIDialogManager kManager;
    kManager.CreateDialog(DLG_FIRST, CGUIDialogManager::ODA_INVISIBLE);
    for (long iSwitches = std::atol(ppcArguments[1]); iSwitches > 0; --iSwitches)
    {
        kManager.CreateDialog(DLG_SECOND, CGUIDialogManager::ODA_INVISIBLE);
        kManager.Back(false);
    }
    return kManager.GetCurrentDialogID() == DLG_FIRST ? EXIT_SUCCESS : EXIT_FAILURE;
}
