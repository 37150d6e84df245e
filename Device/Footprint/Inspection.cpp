// SPDX-License-Identifier: MIT
// Programs of which the sizes differ by what an inspection costs. INSPECTION_EXTENT says how much of it there
// is: 0 for nothing, 1 for trace and state over a channel, 2 for commands besides, 3 for hazards besides.

#include "Core/Control/GUI.h"
#include "Core/GUIEventHandler.h"
#include "Core/GUITimer.h"
#include "Inspection/HazardWatch.h"
#include "Inspection/InspectionLink.h"
#include "Inspection/InspectionRing.h"

namespace
{
/** Calls every operation of the manager, and logs: what the library has is not the inspection's. */
void UseAll(CGUIDialogManager& kManager, CGUIObject* pkObject)
{
    constexpr ObjectHandle_t eID = OBJ_MSGBOX_OK;
    CGUIDialogManager::RegisteredPopup_t kInfo;
    eC_UInt uiTime = 0;
    kManager.CreateDialog(eID, CGUIDialogManager::ODA_DELETE);
    kManager.AddDialog(pkObject, CGUIDialogManager::ODA_DELETE, true);
    kManager.Back(true);
    kManager.BackToDialog(eID, true, true);
    kManager.ClearDialogHistory(0, true, true);
    kManager.GetCurrentDialog();
    kManager.GetHistoryStackSize();
    kManager.ContainsDialog(eID, true);
    kManager.GetLastDialogID();
    kManager.RegisterDialogDefinition("a", eID);
    kManager.UnregisterDialogDefinition(eID);
    kManager.GetRegisteredPath(eID);
    kManager.GetRegisteredDialogID("a");
    kManager.CreateDynamicObjectID();
    kManager.RegisterPopupDefinition(eID, CGUIDialogManager::PRIO_LOW, 0, true, "a");
    kManager.UnregisterPopupDefinition(eID);
    kManager.UpdateRegisteredPopupDisplayTime(eID, 1);
    kManager.GetRegisteredPopupDisplayTime(eID, uiTime);
    kManager.GetRegisteredPopupInfo(eID, kInfo);
    kManager.ShowPopup(eID);
    kManager.ClosePopup(eID);
    kManager.IsPopupDisplayed(eID);
    kManager.IsPopupInPopupList(eID);
    pkObject->RequestFocus();
    pkObject->FocusAny();
    pkObject->SetFocusable(true);
    pkObject->SetInvisible(GetObjectHandleName(eID) != nullptr);
    ObjectHandle_t eParsed = eID;
    if (ParseObjectHandle("1", eParsed))
    {
        delete pkObject;
    }
    CGUITrace::LogDebug("a");
    GETTIMER.ProcessCallbacks();
    GETTIMER.GetTimeUntilNextCallback();
}

#if INSPECTION_EXTENT > 0
eC_Char acOut[320];
eC_Char acLine[256];
#endif
#if INSPECTION_EXTENT > 1
eC_Char acInput[64];
eC_Char acIn[48];
#endif
} // namespace

int main()
{
    static CGUI s_kRoot;
    static CGUIDialogManager s_kManager;
#if INSPECTION_EXTENT == 1
    static CInspectionRing s_kRing(acOut, sizeof(acOut));
#elif INSPECTION_EXTENT > 1
    static CInspectionRing s_kRing(acOut, sizeof(acOut), acIn, sizeof(acIn));
#endif
#if INSPECTION_EXTENT > 0
    static CInspectionLink s_kLink(s_kManager, s_kRing, acLine, sizeof(acLine));
#endif
#if INSPECTION_EXTENT > 1
    static CInspectionCommands s_kCommands(s_kManager);
    s_kLink.AllowInput(s_kCommands, acInput, sizeof(acInput));
#endif
#if INSPECTION_EXTENT > 2
    static CHazardWatch s_kWatch(s_kLink.GetInspector(), s_kLink);
    s_kWatch.Watch(HAZARD_ALL);
    s_kWatch.Check();
#endif
    UseAll(s_kManager, new CGUICompositeObject(&s_kRoot));
#if INSPECTION_EXTENT > 0
    s_kLink.Run();
    eC_Char acSent[16];
    return static_cast<int>(s_kRing.TakeOut(acSent, sizeof(acSent)));
#else
    return 0;
#endif
}
