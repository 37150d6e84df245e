// SPDX-License-Identifier: MIT
// The least that a device needs: a clock, a root, a manager and a main loop. A popup closes itself when its
// time is up; the program succeeds if that was the right time.

#include "Core/Control/GUI.h"
#include "Core/GUIDialogManager.h"
#include "Core/GUITimer.h"
#include "Core/GUITrace.h"
#include "Device/Board/SysTickClock.h"

#include <cstdio>

#define MAIN_LOOP_HANDLES(HANDLE)                                                                            \
    HANDLE(DLG_HOME)                                                                                         \
    HANDLE(POP_SAVED)
GUI_DECLARE_OBJECT_HANDLES(MAIN_LOOP_HANDLES)
GUI_DEFINE_OBJECT_HANDLES(MAIN_LOOP_HANDLES)

namespace
{
constexpr eC_UInt cuiDisplayTime = 250; ///< milliseconds

/** Builds its dialog and its popup in code. */
class CDeviceDialogManager : public CGUIDialogManager
{
protected:
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool&, eC_Bool&) const override
    {
        return new CGUICompositeObject(&CGUI::GetInstance(), eID);
    }

    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override
    {
        return new CGUICompositeObject(&CGUI::GetInstance(), eID);
    }
};
} // namespace

int main()
{
    GETTIMER.SetClock(&CSysTickClock::GetTime);
    CSysTickClock::Start();
    CGUITrace::GetInstance().SetSink(nullptr);
    CGUI kRoot;
    CDeviceDialogManager kManager;
    kManager.RegisterPopupDefinition(POP_SAVED, CGUIDialogManager::PRIO_MEDIUM, cuiDisplayTime, true, "");
    kManager.CreateDialog(DLG_HOME, CGUIDialogManager::ODA_NOTHING);

    const eC_UInt uiStart = CSysTickClock::GetTime();
    kManager.ShowPopup(POP_SAVED);
    while (kManager.IsPopupDisplayed(POP_SAVED))
    {
        CSysTickClock::Sleep();
        GETTIMER.ProcessCallbacks();
    }

    const eC_UInt uiShown = CSysTickClock::GetTime() - uiStart;
    std::printf("the popup was shown for %u ms\n", uiShown);
    return uiShown == cuiDisplayTime ? 0 : 1;
}
