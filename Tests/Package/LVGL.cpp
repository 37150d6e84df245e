// SPDX-License-Identifier: MIT
// An application with a screen of its own on LVGL.

#include "Adapters/LVGL/GUILVGL.h"
#include "Adapters/Mirror/GUIMirroredManager.h"
#include "Core/Control/GUI.h"

#include <cstdio>

#define HANDLES(HANDLE) HANDLE(DLG_HOME)
GUI_DECLARE_OBJECT_HANDLES(HANDLES)
GUI_DEFINE_OBJECT_HANDLES(HANDLES)

namespace
{
class CNobody : public CGUIWidgetListener
{
public:
    void OnActivated(CGUIWidget&) override {}
};

lv_obj_t* BuildHome(lv_obj_t* pkParent, void*)
{
    return lv_obj_create(pkParent);
}
} // namespace

int main()
{
    lv_init();
    lv_display_create(48, 32);
    {
        CGUI kRoot;
        CNobody kNobody;
        CGUILVGL kLVGL(GUILVGLOptions_t(), kNobody);
        CGUILVGLBuilder kBuilder(&BuildHome, nullptr);
        kLVGL.GetMirror().AddBuilder(DLG_HOME, kBuilder);
        CGUIMirroredManager kManager(kLVGL.GetMirror());
        const CGUIObject* pkHome = kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING);
        kLVGL.Turn();
        std::printf("%s\n",
                    lv_obj_has_flag(kLVGL.GetNative(pkHome), LV_OBJ_FLAG_HIDDEN) ? "hidden" : "shown");
    }
    lv_deinit();
    return 0;
}
