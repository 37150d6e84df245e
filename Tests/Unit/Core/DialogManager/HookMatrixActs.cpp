#include "Tests/Unit/Core/DialogManager/HookMatrix.h"

#include <string>

namespace
{
using Action_t = CGUIDialogManager::EOldDialogAction;
using Priority_t = CGUIDialogManager::PopupPriority_t;

std::string NameOf(eC_Bool bFlag)
{
    return bFlag ? "true" : "false";
}

template <ObjectHandle_t eID, Action_t eAction>
std::string Create(CHookStage& kStage, CGUIObject*)
{
    return NameOfObject(kStage.Manager().CreateDialog(eID, eAction));
}

std::string CreateCurrent(CHookStage& kStage, CGUIObject*)
{
    const ObjectHandle_t eID = kStage.Manager().GetCurrentDialogID();
    return NameOfObject(kStage.Manager().CreateDialog(eID, CGUIDialogManager::ODA_DELETE));
}

template <Action_t eAction>
std::string AddNew(CHookStage& kStage, CGUIObject*)
{
    kStage.Manager().AddDialog(kStage.Attach("DLG_F { OBJ_6 focusable }"), eAction, true);
    return "ended";
}

std::string AddCurrent(CHookStage& kStage, CGUIObject*)
{
    kStage.Manager().AddDialog(kStage.Manager().GetCurrentDialog(), CGUIDialogManager::ODA_INVISIBLE, false);
    return "ended";
}

std::string AddNull(CHookStage& kStage, CGUIObject*)
{
    kStage.Manager().AddDialog(nullptr, CGUIDialogManager::ODA_INVISIBLE, true);
    return "ended";
}

template <eC_Bool bDelete>
std::string Back(CHookStage& kStage, CGUIObject*)
{
    kStage.Manager().Back(bDelete);
    return "ended";
}

template <ObjectHandle_t eID, eC_Bool bDelete, eC_Bool bStepwise>
std::string BackTo(CHookStage& kStage, CGUIObject*)
{
    return NameOf(kStage.Manager().BackToDialog(eID, bDelete, bStepwise));
}

template <eC_UInt uiKeep, eC_Bool bDelete, eC_Bool bDeleteCurrent>
std::string Clear(CHookStage& kStage, CGUIObject*)
{
    kStage.Manager().ClearDialogHistory(uiKeep, bDelete, bDeleteCurrent);
    return "ended";
}

std::string RegisterDialog(CHookStage& kStage, CGUIObject*)
{
    return NameOf(kStage.Manager().RegisterDialogDefinition(CHookStage::PathOf(DLG_E).c_str(), DLG_H));
}

template <ObjectHandle_t eID>
std::string UnregisterDialog(CHookStage& kStage, CGUIObject*)
{
    return NameOf(kStage.Manager().UnregisterDialogDefinition(eID));
}

std::string RegisterPopup(CHookStage& kStage, CGUIObject*)
{
    return NameOf(
        kStage.Manager().RegisterPopupDefinition(POP_7, CGUIDialogManager::PRIO_HIGHEST, 0, true, ""));
}

template <ObjectHandle_t eID>
std::string UnregisterPopup(CHookStage& kStage, CGUIObject*)
{
    return NameOf(kStage.Manager().UnregisterPopupDefinition(eID));
}

template <ObjectHandle_t eID>
std::string UpdateTime(CHookStage& kStage, CGUIObject*)
{
    return NameOf(kStage.Manager().UpdateRegisteredPopupDisplayTime(eID, 500));
}

std::string GetTime(CHookStage& kStage, CGUIObject*)
{
    eC_UInt uiTime = 0;
    const eC_Bool bIsRegistered = kStage.Manager().GetRegisteredPopupDisplayTime(POP_1, uiTime);
    return NameOf(bIsRegistered) + " " + std::to_string(uiTime);
}

std::string GetInfo(CHookStage& kStage, CGUIObject*)
{
    CGUIDialogManager::RegisteredPopup_t kPopup = {};
    const eC_Bool bIsRegistered = kStage.Manager().GetRegisteredPopupInfo(POP_1, kPopup);
    return NameOf(bIsRegistered) + " " + PrintPopupDefinition(kPopup);
}

template <ObjectHandle_t eID>
std::string Show(CHookStage& kStage, CGUIObject*)
{
    return NameOfObject(kStage.Manager().ShowPopup(eID));
}

template <ObjectHandle_t eID>
std::string Close(CHookStage& kStage, CGUIObject*)
{
    return NameOf(kStage.Manager().ClosePopup(eID));
}

std::string CloseAll(CHookStage& kStage, CGUIObject*)
{
    std::string kResult;
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        kResult += (eID == POP_1 ? "" : " ") + NameOf(kStage.Manager().ClosePopup(eID));
    }
    return kResult;
}

std::string ReplacePopups(CHookStage& kStage, CGUIObject* pkObject)
{
    std::string kResult = CloseAll(kStage, pkObject);
    for (const ObjectHandle_t eID : {POP_6, POP_5, POP_4})
    {
        kResult += " " + NameOfObject(kStage.Manager().ShowPopup(eID));
    }
    return kResult;
}

std::string Arbitrate(CHookStage& kStage, CGUIObject*)
{
    kStage.Manager().UpdateActivePopups();
    return "ended";
}

std::string RunTimer(CHookStage& kStage, CGUIObject*)
{
    kStage.Clock().Set(kStage.Clock().GetTime() + 5000);
    GETTIMER.ProcessCallbacks();
    return "ended";
}

/** @return what the hook is about, or else the current dialog */
CGUIObject* Subject(CHookStage& kStage, CGUIObject* pkObject)
{
    return pkObject != nullptr ? pkObject : kStage.Manager().GetCurrentDialog();
}

std::string Destroy(CHookStage& kStage, CGUIObject* pkObject)
{
    CGUIObject* pkSubject = Subject(kStage, pkObject);
    std::string kName = NameOfObject(pkSubject);
    delete pkSubject;
    return kName;
}

template <ObjectHandle_t eID>
std::string DestroyPopup(CHookStage& kStage, CGUIObject*)
{
    CGUIObject* pkPopup = kStage.Object(eID);
    std::string kName = NameOfObject(pkPopup);
    delete pkPopup;
    return kName;
}

std::string DestroyAll(CHookStage& kStage, CGUIObject*)
{
    while (kStage.Root().GetFirstChild() != nullptr)
    {
        delete kStage.Root().GetFirstChild();
    }
    return "done";
}

std::string Rename(CHookStage& kStage, CGUIObject* pkObject)
{
    CGUIObject* pkSubject = Subject(kStage, pkObject);
    std::string kName = NameOfObject(pkSubject);
    if (pkSubject != nullptr)
    {
        pkSubject->SetID(OBJ_9);
    }
    return kName;
}

std::string RenamePopups(CHookStage& kStage, CGUIObject*)
{
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        CGUIObject* pkPopup = kStage.Object(eID);
        if (pkPopup != nullptr)
        {
            pkPopup->SetID(OBJ_9);
        }
    }
    return "done";
}

std::string Detach(CHookStage& kStage, CGUIObject* pkObject)
{
    CGUIObject* pkSubject = Subject(kStage, pkObject);
    std::string kName = NameOfObject(pkSubject);
    if (pkSubject != nullptr)
    {
        kStage.Adopt(pkSubject)->SetParent(nullptr);
    }
    return kName;
}

template <EFailure eFailure>
std::string Throw(CHookStage&, CGUIObject*)
{
    ThrowFailure(eFailure);
    return "nothing thrown";
}
} // namespace

const std::vector<HookAct_t>& GetHookActs()
{
    using M = CGUIDialogManager;
    static const std::vector<HookAct_t> kActs = {
        // clang-format off
        {"nothing", ACT_NOTHING, [](CHookStage&, CGUIObject*) { return std::string("done"); }},

        {"CreateDialog(D, INVISIBLE)", ACT_CHANGES_HISTORY, Create<DLG_D, M::ODA_INVISIBLE>},
        {"CreateDialog(D, INVISIBLE_ALL)", ACT_CHANGES_HISTORY, Create<DLG_D, M::ODA_INVISIBLE_ALL>},
        {"CreateDialog(D, DELETE)", ACT_CHANGES_HISTORY, Create<DLG_D, M::ODA_DELETE>},
        {"CreateDialog(D, DELETE_ALL)", ACT_CHANGES_HISTORY, Create<DLG_D, M::ODA_DELETE_ALL>},
        {"CreateDialog(D, NOTHING)", ACT_CHANGES_HISTORY, Create<DLG_D, M::ODA_NOTHING>},
        {"CreateDialog(current, DELETE)", ACT_CHANGES_HISTORY, CreateCurrent},
        {"CreateDialog(A, INVISIBLE)", ACT_CHANGES_HISTORY, Create<DLG_A, M::ODA_INVISIBLE>},
        {"CreateDialog(unknown, DELETE)", ACT_CALLS, Create<DLG_G, M::ODA_DELETE>},
        {"AddDialog(new, INVISIBLE)", ACT_CHANGES_HISTORY, AddNew<M::ODA_INVISIBLE>},
        {"AddDialog(new, DELETE_ALL)", ACT_CHANGES_HISTORY, AddNew<M::ODA_DELETE_ALL>},
        {"AddDialog(current, INVISIBLE)", ACT_CHANGES_HISTORY, AddCurrent},
        {"AddDialog(null)", ACT_CALLS, AddNull},
        {"Back(delete)", ACT_CHANGES_HISTORY, Back<true>},
        {"Back(hide)", ACT_CHANGES_HISTORY, Back<false>},
        {"BackToDialog(A, delete, direct)", ACT_CHANGES_HISTORY, BackTo<DLG_A, true, false>},
        {"BackToDialog(A, hide, direct)", ACT_CHANGES_HISTORY, BackTo<DLG_A, false, false>},
        {"BackToDialog(A, delete, stepwise)", ACT_CHANGES_HISTORY, BackTo<DLG_A, true, true>},
        {"BackToDialog(unknown)", ACT_CALLS, BackTo<DLG_G, true, false>},
        {"ClearDialogHistory(0, delete, current)", ACT_CHANGES_HISTORY, Clear<0, true, true>},
        {"ClearDialogHistory(0, hide, current)", ACT_CHANGES_HISTORY, Clear<0, false, true>},
        {"ClearDialogHistory(0, delete)", ACT_CHANGES_HISTORY, Clear<0, true, false>},
        {"ClearDialogHistory(1, delete, current)", ACT_CHANGES_HISTORY, Clear<1, true, true>},

        {"GetCurrentDialogID", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOfHandle(kStage.Manager().GetCurrentDialogID()); }},
        {"GetCurrentDialog", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOfObject(kStage.Manager().GetCurrentDialog()); }},
        {"GetHistoryStackSize", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return std::to_string(kStage.Manager().GetHistoryStackSize()); }},
        {"ContainsDialog(B)", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOf(kStage.Manager().ContainsDialog(DLG_B, false)); }},
        {"ContainsDialog(C, current counts)", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOf(kStage.Manager().ContainsDialog(DLG_C, true)); }},
        {"GetLastDialogID", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOfHandle(kStage.Manager().GetLastDialogID()); }},

        {"RegisterDialogDefinition(H)", ACT_CALLS, RegisterDialog},
        {"UnregisterDialogDefinition(A)", ACT_CALLS, UnregisterDialog<DLG_A>},
        {"UnregisterDialogDefinition(B)", ACT_CALLS, UnregisterDialog<DLG_B>},
        {"GetRegisteredPath(C)", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return std::string(kStage.Manager().GetRegisteredPath(DLG_C).GetText()); }},
        {"GetRegisteredDialogID(path of C)", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOfHandle(kStage.Manager().GetRegisteredDialogID(CHookStage::PathOf(DLG_C).c_str())); }},
        {"CreateDynamicObjectID", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOfHandle(kStage.Manager().CreateDynamicObjectID()); }},
        {"RegisterPopupDefinition(P7)", ACT_CALLS, RegisterPopup},
        {"UnregisterPopupDefinition(P1)", ACT_CALLS, UnregisterPopup<POP_1>},
        {"UnregisterPopupDefinition(P2)", ACT_CALLS, UnregisterPopup<POP_2>},
        {"UpdateRegisteredPopupDisplayTime(P1)", ACT_CALLS, UpdateTime<POP_1>},
        {"UpdateRegisteredPopupDisplayTime(P2)", ACT_CALLS, UpdateTime<POP_2>},
        {"GetRegisteredPopupDisplayTime(P1)", ACT_CALLS, GetTime},
        {"GetRegisteredPopupInfo(P1)", ACT_CALLS, GetInfo},

        {"ShowPopup(P4, highest)", ACT_CALLS, Show<POP_4>},
        {"ShowPopup(P5, as high as P2)", ACT_CALLS, Show<POP_5>},
        {"ShowPopup(P6, as high as P1)", ACT_CALLS, Show<POP_6>},
        {"ShowPopup(P1)", ACT_CALLS, Show<POP_1>},
        {"ShowPopup(P2)", ACT_CALLS, Show<POP_2>},
        {"ShowPopup(P3)", ACT_CALLS, Show<POP_3>},
        {"ShowPopup(unknown)", ACT_CALLS, Show<POP_7>},
        {"ClosePopup(P1)", ACT_CALLS, Close<POP_1>},
        {"ClosePopup(P2)", ACT_CALLS, Close<POP_2>},
        {"ClosePopup(P3)", ACT_CALLS, Close<POP_3>},
        {"ClosePopup(unknown)", ACT_CALLS, Close<POP_7>},
        {"IsPopupDisplayed(P1)", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOf(kStage.Manager().IsPopupDisplayed(POP_1)); }},
        {"IsPopupInPopupList(P2)", ACT_CALLS, [](CHookStage& kStage, CGUIObject*) { return NameOf(kStage.Manager().IsPopupInPopupList(POP_2)); }},
        {"close all popups", ACT_ACTS, CloseAll},
        {"close all popups and show P6, P5, P4", ACT_ACTS, ReplacePopups},
        {"UpdateActivePopups", ACT_CALLS, Arbitrate},

        {"run the timer five seconds late", ACT_ACTS, RunTimer},
        {"destroy the object", ACT_ACTS, Destroy},
        {"destroy the object of P1", ACT_ACTS, DestroyPopup<POP_1>},
        {"destroy the object of P2", ACT_ACTS, DestroyPopup<POP_2>},
        {"destroy all objects", ACT_ACTS, DestroyAll},
        {"give the object another identifier", ACT_ACTS, Rename},
        {"give all popups one identifier", ACT_ACTS, RenamePopups},
        {"detach the object", ACT_ACTS, Detach},
        {"throw an int", ACT_THROWS, Throw<FAILURE_INT>},
        {"throw a std::exception", ACT_THROWS, Throw<FAILURE_EXCEPTION>},
        // clang-format on
    };
    return kActs;
}
