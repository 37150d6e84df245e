// SPDX-License-Identifier: MIT
// An application with a dialog in a window of FLTK. It shows nothing, so it needs no display.

#include "Adapters/FLTK/GUIFLTK.h"
#include "Adapters/Mirror/GUIMirroredManager.h"

#define HANDLES(HANDLE) HANDLE(DLG_HOME)
GUI_DECLARE_OBJECT_HANDLES(HANDLES)
GUI_DEFINE_OBJECT_HANDLES(HANDLES)

#include <cstdio>

namespace
{
Fl_Widget* BuildHome(Fl_Group* pkParent, void*)
{
    return new Fl_Box(0, 0, pkParent->w(), pkParent->h());
}
} // namespace

int main(int iArguments, char**)
{
    CGUIFLTKBuilder kBuilder(&BuildHome, nullptr);
    Fl_Group kGroup(0, 0, 48, 32);
    kGroup.end();
    if (iArguments > 1)
    {
        GUIFLTKOptions_t kOptions;
        kOptions.m_pkParent = &kGroup;
        struct Listener_t : CGUIWidgetListener
        {
            void OnActivated(CGUIWidget&) override {}
        } kListener;
        CGUIFLTK kFLTK(kOptions, kListener);
        kFLTK.GetMirror().AddBuilder(DLG_HOME, kBuilder);
    }
    std::printf("%d\n", static_cast<Fl_Widget*>(kBuilder.Build(&kGroup))->w());
    return 0;
}
