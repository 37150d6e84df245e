// SPDX-License-Identifier: MIT
// An application that stops where a debugger can inspect it, with something to see.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"

#define APPLICATION_HANDLES(HANDLE)                                                                          \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(DLG_SETTINGS)                                                                                     \
    HANDLE(DLG_LANGUAGE)                                                                                     \
    HANDLE(POP_SAVED)                                                                                        \
    HANDLE(POP_WARNING)                                                                                      \
    HANDLE(BTN_GO)
GUI_DECLARE_OBJECT_HANDLES(APPLICATION_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(APPLICATION_HANDLES)

class CManager : public CGUIDialogManager
{
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) const override
    {
        auto* pkDialog = new CGUICompositeObject(&CGUI::GetInstance(), eID);
        (new CGUIObject(pkDialog, BTN_GO))->SetFocusable(true);
        return pkDialog;
    }

    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override
    {
        return new CGUICompositeObject(&CGUI::GetInstance(), eID);
    }
};

[[gnu::noinline]] void LookHere(CGUIDialogManager& kManager, CSafeGUIObjectPtr& pkPopup, eC_String& kText,
                                eC_TListDoubleLinked<eC_String>& kTexts, ObjectHandle_t eDynamic)
{
    asm volatile("" : : "r"(&kManager), "r"(&pkPopup), "r"(&kText), "r"(&kTexts), "r"(eDynamic));
}

int main()
{
    CGUI kRoot;
    CManager kManager;
    kManager.RegisterPopupDefinition(POP_SAVED, CGUIDialogManager::PRIO_LOW, 2000, true, "Saved.xml");
    kManager.RegisterPopupDefinition(POP_WARNING, CGUIDialogManager::PRIO_HIGHEST, 0, false, "Warning.xml");
    kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING);
    kManager.CreateDialog(DLG_SETTINGS, CGUIDialogManager::ODA_INVISIBLE);
    kManager.CreateDialog(DLG_LANGUAGE, CGUIDialogManager::ODA_DELETE);
    CSafeGUIObjectPtr pkPopup(kManager.ShowPopup(POP_SAVED));
    kManager.ShowPopup(POP_WARNING);
    CSafeGUIObjectPtr pkNothing;
    eC_String kText("Gr\xC3\xBC\xC3\x9F Gott, a text that is longer than a short one", 0, eC_String::eUTF8);
    eC_TListDoubleLinked<eC_String> kTexts;
    LookHere(kManager, pkNothing, kText, kTexts, static_cast<ObjectHandle_t>(1000));
    kTexts.AddAtEnd("one");
    kTexts.AddAtEnd("two");
    LookHere(kManager, pkPopup, kText, kTexts, OBJ_MSGBOX_OK);
    return 0;
}
