// SPDX-License-Identifier: MIT
// A typical outside application: it has its own table of handles and uses only the library's core.

#include "Application.h"

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITrace.h"
#include "GUIConfig/GUIObjectHandleResource.h"

#include <cstdio>

#define APPLICATION_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_SETTINGS)
GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(APPLICATION_HANDLES)

namespace
{
class CDialogManager : public CGUIDialogManager
{
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) const override
    {
        return new CGUICompositeObject(&CGUI::GetInstance(), eID);
    }
};

class CPrintingSink : public CGUITraceSink
{
    void Write(const eC_String& kPrefix, const eC_String& kMessage, const eC_String& kFile,
               const eC_String&) override
    {
        if (kPrefix == "ERROR: ")
        {
            std::printf("error in %s: %s", kFile.GetText(), kMessage.GetText());
        }
    }
};

void PrintCurrentDialog(const CGUIDialogManager& kManager)
{
    std::printf("current dialog: %s\n", GetObjectHandleName(kManager.GetCurrentDialogID()));
}
} // namespace

int RunApplication()
{
    CPrintingSink kSink;
    CGUITrace::GetInstance().SetSink(&kSink);
    CGUI kRoot;
    CDialogManager kManager;

    kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_DELETE);
    kManager.CreateDialog(DLG_SETTINGS, CGUIDialogManager::ODA_DELETE);
    PrintCurrentDialog(kManager);
    kManager.Back(true);
    PrintCurrentDialog(kManager);
    kManager.AddDialog(nullptr, CGUIDialogManager::ODA_DELETE, false);

    CGUITrace::GetInstance().SetSink(nullptr);
    return 0;
}
