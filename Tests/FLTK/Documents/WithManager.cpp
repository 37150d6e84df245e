// SPDX-License-Identifier: MIT
// Two screens of an application with FLTK, as on the page about adapters.
#include "Adapters/FLTK/GUIFLTK.h"
#include "Adapters/Mirror/GUIMirroredManager.h"
#include "Core/Control/GUI.h"

#include <FL/Fl_Button.H>
#include <FL/Fl_Double_Window.H>

#define HANDLES(HANDLE) HANDLE(DLG_HOME) HANDLE(DLG_MENU) HANDLE(BTN_MENU) HANDLE(BTN_BACK)
GUI_DECLARE_OBJECT_HANDLES(HANDLES)
GUI_DEFINE_OBJECT_HANDLES(HANDLES)

struct Application_t : CGUIWidgetListener
{
    CGUI m_kRoot;
    Fl_Double_Window m_kWindow{480, 320};
    CGUIFLTK m_kFLTK{{{}, &m_kWindow}, *this};
    CGUIMirroredManager m_kDialogs{m_kFLTK.GetMirror()};

    void OnActivated(CGUIWidget&) override {} // a button of a dialog file
};

static Fl_Widget* BuildHome(Fl_Group* pkParent, void* pApplication)
{
    auto& kApplication = *static_cast<Application_t*>(pApplication);
    auto* pkScreen = new Fl_Group(0, 0, pkParent->w(), pkParent->h());
    pkScreen->box(FL_FLAT_BOX);
    auto* pkMenu = new Fl_Button(20, 20, 160, 40, "Menu");
    pkMenu->callback(
        [](Fl_Widget*, void* pManager) {
            static_cast<CGUIMirroredManager*>(pManager)->CreateDialog(DLG_MENU,
                                                                      CGUIDialogManager::ODA_DELETE);
        },
        &kApplication.m_kDialogs);
    kApplication.m_kFLTK.Identify(*pkMenu, BTN_MENU);
    pkScreen->end();
    return pkScreen;
}

static Fl_Widget* BuildMenu(Fl_Group* pkParent, void* pApplication);

int main()
{
    Application_t kApplication;
    CGUIFLTKBuilder kBuildsHome(&BuildHome, &kApplication);
    CGUIFLTKBuilder kBuildsMenu(&BuildMenu, &kApplication);
    kApplication.m_kFLTK.GetMirror().AddBuilder(DLG_HOME, kBuildsHome);
    kApplication.m_kFLTK.GetMirror().AddBuilder(DLG_MENU, kBuildsMenu);
    kApplication.m_kDialogs.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING);
    kApplication.m_kWindow.show();
    return Fl::run();
}

static Fl_Widget* BuildMenu(Fl_Group* pkParent, void* pApplication)
{
    auto& kApplication = *static_cast<Application_t*>(pApplication);
    auto* pkBack = new Fl_Button(0, 0, pkParent->w(), pkParent->h(), "Back");
    pkBack->callback([](Fl_Widget*, void* pManager)
                     { static_cast<CGUIMirroredManager*>(pManager)->Back(true); },
                     &kApplication.m_kDialogs);
    kApplication.m_kFLTK.Identify(*pkBack, BTN_BACK);
    return pkBack;
}
