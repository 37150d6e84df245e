// SPDX-License-Identifier: MIT
#include "Tests/HookMatrix/HookMatrix.h"

#include <string>

namespace
{
using Action_t = CGUIDialogManager::EOldDialogAction;

constexpr Action_t ODA_INVISIBLE = CGUIDialogManager::ODA_INVISIBLE;
constexpr Action_t ODA_INVISIBLE_ALL = CGUIDialogManager::ODA_INVISIBLE_ALL;
constexpr Action_t ODA_DELETE = CGUIDialogManager::ODA_DELETE;
constexpr Action_t ODA_DELETE_ALL = CGUIDialogManager::ODA_DELETE_ALL;
constexpr Action_t ODA_NOTHING = CGUIDialogManager::ODA_NOTHING;

// --- Situations -------------------------------------------------------------------------------------

/** DLG_C is current. DLG_B was left with one action and, before it, DLG_A with another. POP_1 is shown and
 *  POP_3 waits.
 */
void Begin(CHookMatrixFixture& kFixture, Action_t eActionOnA, Action_t eActionOnB)
{
    kFixture.Manager().CreateDialog(DLG_A, ODA_NOTHING);
    kFixture.Manager().CreateDialog(DLG_B, eActionOnA);
    kFixture.Manager().CreateDialog(DLG_C, eActionOnB);
    kFixture.Manager().ShowPopup(POP_3);
    kFixture.Manager().ShowPopup(POP_1);
}

/** DLG_A is hidden, DLG_B deleted. */
void BeginMixed(CHookMatrixFixture& kFixture)
{
    Begin(kFixture, ODA_INVISIBLE, ODA_DELETE);
}

/** All three dialogs are shown. */
void BeginShown(CHookMatrixFixture& kFixture)
{
    Begin(kFixture, ODA_NOTHING, ODA_NOTHING);
}

/** DLG_A and DLG_B are deleted. */
void BeginDeleted(CHookMatrixFixture& kFixture)
{
    Begin(kFixture, ODA_DELETE, ODA_DELETE);
}

void BeginMixedWithDFromHook(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.BuildInHook(DLG_D);
}

void BeginMixedWithDFromHookInsideC(CHookMatrixFixture& kFixture)
{
    BeginMixedWithDFromHook(kFixture);
    CObjectTree("DLG_D {}").Build(static_cast<CGUICompositeObject*>(kFixture.Object(DLG_C)));
}

void BeginMixedWithBFromHook(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.BuildInHook(DLG_B);
}

void BeginShownWithAGone(CHookMatrixFixture& kFixture)
{
    BeginShown(kFixture);
    delete kFixture.Object(DLG_A);
    kFixture.BuildInHook(DLG_A);
}

void BeginDeletedWithAFromHook(CHookMatrixFixture& kFixture)
{
    BeginDeleted(kFixture);
    kFixture.BuildInHook(DLG_A);
}

void BeginMixedWithVeto(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.Manager().SetVeto(DLG_C);
}

void BeginMixedWithAShown(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.Object(DLG_A)->SetInvisible(false);
}

/** A hook refused to delete DLG_A, so it is hidden; DLG_B is hidden too. */
void BeginWithRefusedA(CHookMatrixFixture& kFixture)
{
    kFixture.Manager().SetVeto(DLG_A);
    Begin(kFixture, ODA_DELETE, ODA_INVISIBLE);
    kFixture.Manager().SetVeto(DLG_A, false);
}

void BeginMixedWithBLost(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.MakeUnobtainable(DLG_B);
}

void BeginDeletedWithALost(CHookMatrixFixture& kFixture)
{
    BeginDeleted(kFixture);
    kFixture.MakeUnobtainable(DLG_A);
}

void HidePopup1(CHookMatrixFixture& kFixture)
{
    kFixture.Object(POP_1)->SetInvisible(true);
}

void ShowPopup3(CHookMatrixFixture& kFixture)
{
    kFixture.Object(POP_3)->SetInvisible(false);
}

void BeginMixedWithPopupHidden(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    HidePopup1(kFixture);
}

void BeginMixedWithBLostAndPopupHidden(CHookMatrixFixture& kFixture)
{
    BeginMixedWithBLost(kFixture);
    HidePopup1(kFixture);
}

void BeginMixedWithPopupShown(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    ShowPopup3(kFixture);
}

void BeginMixedWithBLostAndPopupShown(CHookMatrixFixture& kFixture)
{
    BeginMixedWithBLost(kFixture);
    ShowPopup3(kFixture);
}

void BeginMixedWithPopup2(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.Manager().ShowPopup(POP_2);
}

void BeginMixedWithPopup2AndPopup3Shown(CHookMatrixFixture& kFixture)
{
    BeginMixedWithPopup2(kFixture);
    ShowPopup3(kFixture);
}

void BeginMixedWithPopup2FromHook(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.CodeFactory().Unregister(CHookMatrixFixture::PathOf(POP_2));
    kFixture.Manager().SetPopupCreator(POP_2,
                                       [&kFixture] { return kFixture.Adopt(CObjectTree("POP_2").Build()); });
}

void BeginMixedWithFocusRefused(CHookMatrixFixture& kFixture)
{
    Begin(kFixture, ODA_INVISIBLE, ODA_INVISIBLE);
    kFixture.Object(OBJ_1)->SetFocusable(false);
    kFixture.Object(OBJ_2)->SetFocusable(false);
}

void BeginMixedWithPopup1Lost(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    delete kFixture.Object(POP_1);
}

void BeginMixedWithReactingPopup2FromHook(CHookMatrixFixture& kFixture)
{
    BeginMixed(kFixture);
    kFixture.CodeFactory().Unregister(CHookMatrixFixture::PathOf(POP_2));
    kFixture.Manager().SetPopupCreator(POP_2, [&kFixture] { return kFixture.Adopt(kFixture.Make(POP_2)); });
}

void BeginMixedWithPopup2AndItsChild(CHookMatrixFixture& kFixture)
{
    BeginMixedWithPopup2(kFixture);
    kFixture.Make(NO_HANDLE, static_cast<CGUICompositeObject*>(kFixture.Object(POP_2)));
}

// --- Operations -------------------------------------------------------------------------------------

std::string Create(CHookMatrixFixture& kFixture, ObjectHandle_t eID, Action_t eAction)
{
    return NameOfObject(kFixture.Manager().CreateDialog(eID, eAction));
}

std::string CreateInvisible(CHookMatrixFixture& kFixture)
{
    return Create(kFixture, DLG_D, ODA_INVISIBLE);
}

std::string CreateInvisibleAll(CHookMatrixFixture& kFixture)
{
    return Create(kFixture, DLG_D, ODA_INVISIBLE_ALL);
}

std::string CreateDelete(CHookMatrixFixture& kFixture)
{
    return Create(kFixture, DLG_D, ODA_DELETE);
}

std::string CreateDeleteAll(CHookMatrixFixture& kFixture)
{
    return Create(kFixture, DLG_D, ODA_DELETE_ALL);
}

std::string CreateNothing(CHookMatrixFixture& kFixture)
{
    return Create(kFixture, DLG_D, ODA_NOTHING);
}

std::string CreateOldInvisible(CHookMatrixFixture& kFixture)
{
    return Create(kFixture, DLG_A, ODA_INVISIBLE);
}

std::string AddInvisible(CHookMatrixFixture& kFixture)
{
    kFixture.Manager().AddDialog(kFixture.Attach("DLG_D { OBJ_4 focusable }"), ODA_INVISIBLE, true);
    return "ended";
}

std::string AddDelete(CHookMatrixFixture& kFixture)
{
    kFixture.Manager().AddDialog(kFixture.Attach("DLG_D { OBJ_4 focusable }"), ODA_DELETE, true);
    return "ended";
}

std::string BackDelete(CHookMatrixFixture& kFixture)
{
    kFixture.Manager().Back(true);
    return "ended";
}

std::string BackHide(CHookMatrixFixture& kFixture)
{
    kFixture.Manager().Back(false);
    return "ended";
}

std::string BackTo(CHookMatrixFixture& kFixture, eC_Bool bDelete, eC_Bool bStepwise)
{
    return kFixture.Manager().BackToDialog(DLG_A, bDelete, bStepwise) ? "true" : "false";
}

std::string BackToDelete(CHookMatrixFixture& kFixture)
{
    return BackTo(kFixture, true, false);
}

std::string BackToHide(CHookMatrixFixture& kFixture)
{
    return BackTo(kFixture, false, false);
}

std::string BackToDeleteStepwise(CHookMatrixFixture& kFixture)
{
    return BackTo(kFixture, true, true);
}

std::string BackToHideStepwise(CHookMatrixFixture& kFixture)
{
    return BackTo(kFixture, false, true);
}

std::string Clear(CHookMatrixFixture& kFixture, eC_UInt uiKeep, eC_Bool bDelete, eC_Bool bDeleteCurrent)
{
    kFixture.Manager().ClearDialogHistory(uiKeep, bDelete, bDeleteCurrent);
    return "ended";
}

std::string ClearAllButOldest(CHookMatrixFixture& kFixture)
{
    return Clear(kFixture, 1, true, true);
}

std::string ClearDelete(CHookMatrixFixture& kFixture)
{
    return Clear(kFixture, 0, true, true);
}

std::string ClearDeleteHistory(CHookMatrixFixture& kFixture)
{
    return Clear(kFixture, 0, true, false);
}

std::string ClearHide(CHookMatrixFixture& kFixture)
{
    return Clear(kFixture, 0, false, true);
}

std::string ClearHideHistory(CHookMatrixFixture& kFixture)
{
    return Clear(kFixture, 0, false, false);
}

std::string Obtain(CHookMatrixFixture& kFixture)
{
    eC_Bool bAllowDeletion = true;
    eC_Bool bRecoverFocus = true;
    return NameOfObject(kFixture.Manager().GetDialogObject(DLG_D, bAllowDeletion, bRecoverFocus));
}

std::string Show2(CHookMatrixFixture& kFixture)
{
    return NameOfObject(kFixture.Manager().ShowPopup(POP_2));
}

std::string Show1(CHookMatrixFixture& kFixture)
{
    return NameOfObject(kFixture.Manager().ShowPopup(POP_1));
}

std::string Close(CHookMatrixFixture& kFixture, ObjectHandle_t eID)
{
    return kFixture.Manager().ClosePopup(eID) ? "true" : "false";
}

std::string Close1(CHookMatrixFixture& kFixture)
{
    return Close(kFixture, POP_1);
}

std::string Close2(CHookMatrixFixture& kFixture)
{
    return Close(kFixture, POP_2);
}

std::string Close3(CHookMatrixFixture& kFixture)
{
    return Close(kFixture, POP_3);
}

std::string WaitForPopup2(CHookMatrixFixture& kFixture)
{
    kFixture.Clock().Advance(1000);
    return "ended";
}

std::string WaitForPopup1(CHookMatrixFixture& kFixture)
{
    kFixture.Clock().Advance(3000);
    return "ended";
}

std::string Arbitrate(CHookMatrixFixture& kFixture)
{
    kFixture.Manager().UpdateActivePopups();
    return "ended";
}
} // namespace

const std::vector<HookPlace_t>& GetHookPlaces()
{
    constexpr EHookOccasion S = OCCASION_SWITCHING;
    constexpr EHookOccasion B = OCCASION_GOING_BACK;
    constexpr EHookOccasion P = OCCASION_POPUPS;
    static const std::vector<HookPlace_t> kPlaces = {
        // clang-format off
        {HOOK_CREATE_DIALOG_IMPL, S, "CreateDialog", 1, BeginMixedWithDFromHook, CreateInvisible},
        {HOOK_CREATE_DIALOG_IMPL, S, "CreateDialog, once more: the action destroyed the dialog", 1, BeginMixedWithDFromHookInsideC, CreateDelete},
        {HOOK_CREATE_DIALOG_IMPL, S, "GetDialogObject, called by a derived class", 1, BeginMixedWithDFromHook, Obtain},
        {HOOK_CREATE_DIALOG_IMPL, B, "Back, the dialog that comes back", 1, BeginMixedWithBFromHook, BackDelete},
        {HOOK_CREATE_DIALOG_IMPL, B, "Back, an older dialog that was left shown and is gone", 1, BeginShownWithAGone, BackDelete},
        {HOOK_CREATE_DIALOG_IMPL, B, "BackToDialog, direct", 1, BeginDeletedWithAFromHook, BackToDelete},
        {HOOK_CREATE_DIALOG_IMPL, B, "BackToDialog, stepwise", 1, BeginDeletedWithAFromHook, BackToDeleteStepwise},
        {HOOK_CREATE_DIALOG_IMPL, B, "ClearDialogHistory", 1, BeginDeletedWithAFromHook, ClearAllButOldest},

        {HOOK_ON_DIALOG_ADDED, S, "CreateDialog", 1, BeginMixed, CreateInvisible},
        {HOOK_ON_DIALOG_ADDED, S, "AddDialog", 1, BeginMixed, AddInvisible},

        {HOOK_ON_DIALOG_ACTIVATION, S, "CreateDialog, a new dialog", 1, BeginMixed, CreateInvisible},
        {HOOK_ON_DIALOG_ACTIVATION, S, "CreateDialog, a dialog of the history", 1, BeginMixed, CreateOldInvisible},
        {HOOK_ON_DIALOG_ACTIVATION, B, "Back", 1, BeginMixed, BackDelete},
        {HOOK_ON_DIALOG_ACTIVATION, B, "BackToDialog, direct", 1, BeginMixed, BackToDelete},
        {HOOK_ON_DIALOG_ACTIVATION, B, "BackToDialog, stepwise, a dialog on the way", 1, BeginMixed, BackToDeleteStepwise},
        {HOOK_ON_DIALOG_ACTIVATION, B, "BackToDialog, stepwise, the last step", 2, BeginMixed, BackToDeleteStepwise},
        {HOOK_ON_DIALOG_ACTIVATION, B, "ClearDialogHistory", 1, BeginMixed, ClearAllButOldest},

        {HOOK_ON_DIALOG_DEACTIVATION, S, "CreateDialog with ODA_INVISIBLE", 1, BeginMixed, CreateInvisible},
        {HOOK_ON_DIALOG_DEACTIVATION, S, "CreateDialog with ODA_INVISIBLE_ALL, an older dialog", 1, BeginShown, CreateInvisibleAll},
        {HOOK_ON_DIALOG_DEACTIVATION, S, "CreateDialog with ODA_INVISIBLE_ALL, the current dialog", 3, BeginShown, CreateInvisibleAll},
        {HOOK_ON_DIALOG_DEACTIVATION, S, "CreateDialog with ODA_DELETE, refused", 1, BeginMixedWithVeto, CreateDelete},
        {HOOK_ON_DIALOG_DEACTIVATION, S, "CreateDialog with ODA_DELETE_ALL, a dialog recorded as hidden", 1, BeginMixedWithAShown, CreateDeleteAll},
        {HOOK_ON_DIALOG_DEACTIVATION, S, "CreateDialog with ODA_NOTHING", 1, BeginMixed, CreateNothing},
        {HOOK_ON_DIALOG_DEACTIVATION, S, "AddDialog", 1, BeginMixed, AddInvisible},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "Back, hiding", 1, BeginMixed, BackHide},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "Back, refused deletion", 1, BeginMixedWithVeto, BackDelete},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "Back, an older dialog recorded as hidden", 1, BeginMixedWithAShown, BackDelete},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "BackToDialog, direct, the current dialog", 1, BeginShown, BackToHide},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "BackToDialog, direct, a dialog on the way", 2, BeginShown, BackToHide},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "BackToDialog, stepwise, the first step", 1, BeginShown, BackToHideStepwise},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "BackToDialog, stepwise, the last step", 2, BeginShown, BackToHideStepwise},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "ClearDialogHistory, the current dialog", 1, BeginShown, ClearHide},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "ClearDialogHistory, a dialog of the history", 2, BeginShown, ClearHide},
        {HOOK_ON_DIALOG_DEACTIVATION, B, "ClearDialogHistory without the current dialog", 1, BeginShown, ClearHideHistory},

        {HOOK_ON_DIALOG_DELETION, S, "CreateDialog with ODA_DELETE", 1, BeginMixed, CreateDelete},
        {HOOK_ON_DIALOG_DELETION, S, "CreateDialog with ODA_DELETE_ALL, an older dialog", 1, BeginShown, CreateDeleteAll},
        {HOOK_ON_DIALOG_DELETION, S, "CreateDialog with ODA_DELETE_ALL, the current dialog", 3, BeginShown, CreateDeleteAll},
        {HOOK_ON_DIALOG_DELETION, S, "AddDialog", 1, BeginMixed, AddDelete},
        {HOOK_ON_DIALOG_DELETION, B, "Back", 1, BeginMixed, BackDelete},
        {HOOK_ON_DIALOG_DELETION, B, "Back, an older dialog recorded as deleted", 1, BeginWithRefusedA, BackHide},
        {HOOK_ON_DIALOG_DELETION, B, "BackToDialog, direct, the current dialog", 1, BeginShown, BackToDelete},
        {HOOK_ON_DIALOG_DELETION, B, "BackToDialog, direct, a dialog on the way", 2, BeginShown, BackToDelete},
        {HOOK_ON_DIALOG_DELETION, B, "BackToDialog, stepwise, the first step", 1, BeginShown, BackToDeleteStepwise},
        {HOOK_ON_DIALOG_DELETION, B, "BackToDialog, stepwise, the last step", 2, BeginShown, BackToDeleteStepwise},
        {HOOK_ON_DIALOG_DELETION, B, "ClearDialogHistory, the current dialog", 1, BeginShown, ClearDelete},
        {HOOK_ON_DIALOG_DELETION, B, "ClearDialogHistory, a dialog of the history", 2, BeginShown, ClearDelete},
        {HOOK_ON_DIALOG_DELETION, B, "ClearDialogHistory without the current dialog", 1, BeginShown, ClearDeleteHistory},

        {HOOK_ON_AFTER_DIALOG_DELETION, B, "Back", 1, BeginMixed, BackDelete},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "BackToDialog, direct, the current dialog", 1, BeginShown, BackToDelete},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "BackToDialog, direct, a dialog on the way", 2, BeginShown, BackToDelete},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "BackToDialog, stepwise, the first step", 1, BeginMixed, BackToDeleteStepwise},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "BackToDialog, stepwise, the last step", 2, BeginMixed, BackToDeleteStepwise},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "ClearDialogHistory, the current dialog", 1, BeginShown, ClearDelete},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "ClearDialogHistory, a dialog of the history", 2, BeginShown, ClearDelete},
        {HOOK_ON_AFTER_DIALOG_DELETION, B, "ClearDialogHistory without the current dialog", 1, BeginShown, ClearDeleteHistory},

        {HOOK_ON_LAST_DIALOG_DELETION, B, "Back", 1, BeginMixedWithBLost, BackDelete},
        {HOOK_ON_LAST_DIALOG_DELETION, B, "BackToDialog, direct", 1, BeginDeletedWithALost, BackToDelete},
        {HOOK_ON_LAST_DIALOG_DELETION, B, "BackToDialog, stepwise", 1, BeginMixedWithBLost, BackToDeleteStepwise},

        {HOOK_ON_POPUP_ACTIVATION, P, "ShowPopup", 1, BeginMixed, Show2},
        {HOOK_ON_POPUP_ACTIVATION, P, "ClosePopup, the next popup", 1, BeginMixedWithPopup2, Close2},
        {HOOK_ON_POPUP_ACTIVATION, P, "A popup's time is up, the next popup", 1, BeginMixedWithPopup2, WaitForPopup2},
        {HOOK_ON_POPUP_ACTIVATION, P, "UpdateActivePopups, called by a derived class", 1, BeginMixedWithPopupHidden, Arbitrate},
        {HOOK_ON_POPUP_ACTIVATION, S, "CreateDialog", 1, BeginMixedWithPopupHidden, CreateInvisible},
        {HOOK_ON_POPUP_ACTIVATION, S, "AddDialog", 1, BeginMixedWithPopupHidden, AddInvisible},
        {HOOK_ON_POPUP_ACTIVATION, B, "Back", 1, BeginMixedWithPopupHidden, BackDelete},
        {HOOK_ON_POPUP_ACTIVATION, B, "Back, no dialog came back", 1, BeginMixedWithBLostAndPopupHidden, BackDelete},
        {HOOK_ON_POPUP_ACTIVATION, B, "BackToDialog, direct", 1, BeginMixedWithPopupHidden, BackToDelete},
        {HOOK_ON_POPUP_ACTIVATION, B, "BackToDialog, stepwise", 1, BeginMixedWithPopupHidden, BackToDeleteStepwise},
        {HOOK_ON_POPUP_ACTIVATION, B, "ClearDialogHistory", 1, BeginMixedWithPopupHidden, ClearAllButOldest},

        {HOOK_ON_POPUP_DEACTIVATION, P, "ShowPopup, a popup of lower priority", 1, BeginMixed, Show2},
        {HOOK_ON_POPUP_DEACTIVATION, P, "ClosePopup, hide on close", 1, BeginMixed, Close1},
        {HOOK_ON_POPUP_DEACTIVATION, P, "ClosePopup, delete on close", 1, BeginMixedWithPopup2, Close2},
        {HOOK_ON_POPUP_DEACTIVATION, P, "ClosePopup, a waiting popup", 1, BeginMixed, Close3},
        {HOOK_ON_POPUP_DEACTIVATION, P, "ClosePopup, a popup of lower priority", 2, BeginMixedWithPopup2AndPopup3Shown, Close2},
        {HOOK_ON_POPUP_DEACTIVATION, P, "A popup's time is up, hide on close", 1, BeginMixed, WaitForPopup1},
        {HOOK_ON_POPUP_DEACTIVATION, P, "A popup's time is up, delete on close", 1, BeginMixedWithPopup2, WaitForPopup2},
        {HOOK_ON_POPUP_DEACTIVATION, P, "UpdateActivePopups, called by a derived class", 1, BeginMixedWithPopupShown, Arbitrate},
        {HOOK_ON_POPUP_DEACTIVATION, S, "CreateDialog", 1, BeginMixedWithPopupShown, CreateInvisible},
        {HOOK_ON_POPUP_DEACTIVATION, S, "AddDialog", 1, BeginMixedWithPopupShown, AddInvisible},
        {HOOK_ON_POPUP_DEACTIVATION, B, "Back", 1, BeginMixedWithPopupShown, BackDelete},
        {HOOK_ON_POPUP_DEACTIVATION, B, "Back, no dialog came back", 1, BeginMixedWithBLostAndPopupShown, BackDelete},
        {HOOK_ON_POPUP_DEACTIVATION, B, "BackToDialog, direct", 1, BeginMixedWithPopupShown, BackToDelete},
        {HOOK_ON_POPUP_DEACTIVATION, B, "BackToDialog, stepwise", 1, BeginMixedWithPopupShown, BackToDeleteStepwise},
        {HOOK_ON_POPUP_DEACTIVATION, B, "ClearDialogHistory", 1, BeginMixedWithPopupShown, ClearAllButOldest},

        {HOOK_CREATE_POPUP_IMPL, P, "ShowPopup", 1, BeginMixedWithPopup2FromHook, Show2},

        {CALLER_SINK, S, "CreateDialog, the dialog is in the tree", 1, BeginMixed, CreateOldInvisible, "AllowDeletion was set"},
        {CALLER_SINK, S, "CreateDialog with ODA_DELETE", 1, BeginMixed, CreateDelete, "removing dialog"},
        {CALLER_SINK, S, "CreateDialog, the focus is refused", 1, BeginMixedWithFocusRefused, CreateOldInvisible, "RecoverFocus"},
        {CALLER_SINK, S, "AddDialog", 1, BeginMixed, AddInvisible, "new dialog has object ID"},
        {CALLER_SINK, B, "Back, the dialog left", 1, BeginMixed, BackDelete, "removing dialog"},
        {CALLER_SINK, B, "Back, the focus is refused", 1, BeginMixedWithFocusRefused, BackDelete, "RecoverFocus"},
        {CALLER_SINK, P, "ShowPopup of a listed popup", 1, BeginMixed, Show1, "is already contained"},
        {CALLER_SINK, P, "ShowPopup of a displayed popup", 1, BeginMixed, Show1, "Timout"},
        {CALLER_SINK, P, "UpdateActivePopups, a popup is lost", 1, BeginMixedWithPopup1Lost, Arbitrate, "contains NULL pointer"},
        {CALLER_SINK, P, "UpdateActivePopups, a popup is displayed", 1, BeginMixed, Arbitrate, "is activated with"},
        {CALLER_SET_INVISIBLE, S, "CreateDialog, the dialog is loaded", 1, BeginMixed, CreateInvisible},
        {CALLER_SET_INVISIBLE, S, "CreateDialog, the dialog left is hidden", 2, BeginMixed, CreateInvisible},
        {CALLER_SET_INVISIBLE, S, "CreateDialog, the dialog is shown", 3, BeginMixed, CreateInvisible},
        {CALLER_SET_INVISIBLE, B, "Back, the dialog that comes back is shown", 1, BeginMixedWithFocusRefused, BackDelete},
        {CALLER_SET_INVISIBLE, B, "Back, an older dialog is shown", 1, BeginShown, BackDelete},
        {CALLER_SET_INVISIBLE, P, "ShowPopup, the popup is about to be listed", 2, BeginMixed, Show2},
        {CALLER_SET_INVISIBLE, P, "ShowPopup, the popup is shown", 3, BeginMixed, Show2},
        {CALLER_SET_INVISIBLE, P, "ShowPopup, a popup of lower priority is hidden", 4, BeginMixed, Show2},
        {CALLER_SET_INVISIBLE, P, "ClosePopup, hide on close", 1, BeginMixed, Close1},
        {CALLER_SET_INVISIBLE, P, "ClosePopup, delete on close", 1, BeginMixedWithPopup2, Close2},
        {CALLER_SET_PARENT, S, "CreateDialog, the dialog is loaded", 1, BeginMixed, CreateInvisible},
        {CALLER_SET_PARENT, P, "ShowPopup, a popup of CreatePopupImpl is attached", 1, BeginMixedWithReactingPopup2FromHook, Show2},
        {CALLER_FOCUS_ANY, S, "CreateDialog, a child of the new dialog is asked", 1, BeginMixed, CreateInvisible},
        {CALLER_FOCUS_ANY, S, "CreateDialog, the new dialog is asked", 2, BeginMixed, CreateInvisible},
        {CALLER_FOCUS_ANY, S, "CreateDialog, an ancestor is asked", 2, BeginMixedWithFocusRefused, CreateOldInvisible},
        {CALLER_FOCUS_ANY, B, "Back, an ancestor is asked", 2, BeginMixedWithFocusRefused, BackDelete},
        {CALLER_DESTRUCTOR, S, "CreateDialog with ODA_DELETE, a child of the dialog", 2, BeginMixed, CreateDelete},
        {CALLER_DESTRUCTOR, B, "Back, a child of the dialog left", 2, BeginMixed, BackDelete},
        {CALLER_DESTRUCTOR, P, "ClosePopup, a child of the popup", 2, BeginMixedWithPopup2AndItsChild, Close2},
        // clang-format on
    };
    return kPlaces;
}
