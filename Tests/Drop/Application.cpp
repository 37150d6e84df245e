// SPDX-License-Identifier: MIT
// An application that uses the library as one header and one source file, with a dialog compiled into it.

#include "DialogManager.h"
#include "Home.h" // made by dialogc

#include <cstdio>

#define APPLICATION_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(BTN_START)                                                                                        \
    HANDLE(DLG_SETTINGS)
GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(APPLICATION_HANDLES)

namespace
{
class CManager : public CGUIDialogManager
{
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bRef1, eC_Bool& bRef2) const override
    {
        if (eID == DLG_SETTINGS)
        {
            return new CGUICompositeObject(&CGUI::GetInstance(), eID);
        }
        return CGUIDialogManager::CreateDialogImpl(eID, bRef1, bRef2);
    }
};

void Print(const char* pcStep, const CGUIDialogManager& kManager)
{
    std::printf("%s: %s, history %u\n", pcStep, GetObjectHandleName(kManager.GetCurrentDialogID()),
                kManager.GetHistoryStackSize());
}
} // namespace

int main()
{
    CGUIDialogROMReader kReader(ckHome);
    CGUI kRoot;
    CGUIFactoryManager::GetInstance().RegisterReaderForFileType("xml", &kReader);
    CManager kManager;
    kManager.RegisterDialogDefinition("Home.xml", DLG_HOME);

    kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING);
    Print("start", kManager);
    kManager.CreateDialog(DLG_SETTINGS, CGUIDialogManager::ODA_DELETE);
    Print("forth", kManager);
    kManager.Back(true);
    Print("back", kManager);
    const CGUIObject* pkButton = CGUI::GetInstance().GetObjectByID(BTN_START, true);
    std::printf("the button is %s, the first free identifier is %u\n",
                pkButton != nullptr ? "there" : "missing", cuiNOFObjectHandles - 8);
    return 0;
}
