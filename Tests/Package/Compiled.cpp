// SPDX-License-Identifier: MIT
// An application for a system without files: its dialog is compiled into it.

#include "Handles.h"
#include "Home.h"

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIFactoryManager.h"
#include "Loader/GUIDialogROMReader.h"

#include <cstdio>

GUI_DEFINE_OBJECT_HANDLES(APPLICATION_HANDLES)

int main()
{
    CGUIDialogROMReader kReader(ckHome);
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &kReader);
    {
        CGUI kRoot;
        CGUIDialogManager kManager;
        kManager.RegisterDialogDefinition("Home.xml", DLG_HOME);
        const CGUIObject* pkHome = kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_DELETE);
        const bool bHasButton = pkHome != nullptr && pkHome->GetObjectByID(BTN_START, true) != nullptr;
        std::printf("the compiled dialog %s its button\n", bHasButton ? "has" : "lacks");
    }
    CGUIFactoryManager::DestroyInstance();
    return 0;
}
