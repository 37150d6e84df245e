// SPDX-License-Identifier: MIT
// An application that shows a dialog from a description file, and counts its objects with the library's test
// support.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUIFactoryManager.h"
#include "GUIConfig/GUIObjectHandleResource.h"
#include "Loader/GUIDialogXMLReader.h"
#include "TestSupport/ObjectCensus.h"

#include <cstdio>

#define APPLICATION_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(BTN_START)
GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(APPLICATION_HANDLES)

namespace
{
void ShowHome()
{
    CGUI kRoot;
    CGUIDialogManager kManager;
    kManager.RegisterDialogDefinition("Home.xml", DLG_HOME);

    const CGUIObject* pkHome = kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_DELETE);
    const bool bHasButton = pkHome != nullptr && pkHome->GetObjectByID(BTN_START, true) != nullptr;
    std::printf("the dialog %s its button\n", bHasButton ? "has" : "lacks");
}
} // namespace

int main()
{
    const ObjectCensus_t kBefore = TakeObjectCensus();
    CGUIDialogXMLReader kReader(DESCRIPTION_DIRECTORY);
    CGUIFactoryManager::CreateInstance().RegisterReaderForFileType("xml", &kReader);
    ShowHome();
    CGUIFactoryManager::DestroyInstance();

    const bool bIsClean = CompareObjectCensus(kBefore, TakeObjectCensus()).empty();
    std::printf("objects %s\n", bIsClean ? "are gone" : "were left");
    return 0;
}
