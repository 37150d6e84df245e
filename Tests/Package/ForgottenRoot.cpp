// SPDX-License-Identifier: MIT
// An application that forgets to create the root. It ends with an assertion that says so.

#include "Core/GUIDialogManager.h"
#include "GUIConfig/GUIObjectHandleResource.h"

#define APPLICATION_HANDLES(HANDLE) HANDLE(DLG_HOME)
GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(APPLICATION_HANDLES)

int main()
{
    CGUIDialogManager kManager;
    kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_DELETE);
    return 0;
}
