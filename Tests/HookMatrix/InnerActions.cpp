// SPDX-License-Identifier: MIT
#include "Tests/HookMatrix/HookMatrix.h"

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
std::string Create(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOfObject(kFixture.Manager().CreateDialog(eID, eAction));
}

std::string CreateCurrent(CHookMatrixFixture& kFixture, CGUIObject*)
{
    const ObjectHandle_t eID = kFixture.Manager().GetCurrentDialogID();
    return NameOfObject(kFixture.Manager().CreateDialog(eID, CGUIDialogManager::ODA_DELETE));
}

template <Action_t eAction>
std::string AddNew(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Manager().AddDialog(kFixture.Attach("DLG_F { OBJ_6 focusable }"), eAction, true);
    return "ended";
}

std::string AddCurrent(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Manager().AddDialog(kFixture.Manager().GetCurrentDialog(), CGUIDialogManager::ODA_INVISIBLE,
                                 false);
    return "ended";
}

std::string AddNull(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Manager().AddDialog(nullptr, CGUIDialogManager::ODA_INVISIBLE, true);
    return "ended";
}

template <eC_Bool bDelete>
std::string Back(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Manager().Back(bDelete);
    return "ended";
}

template <ObjectHandle_t eID, eC_Bool bDelete, eC_Bool bStepwise>
std::string BackTo(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(kFixture.Manager().BackToDialog(eID, bDelete, bStepwise));
}

template <eC_UInt uiKeep, eC_Bool bDelete, eC_Bool bDeleteCurrent>
std::string Clear(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Manager().ClearDialogHistory(uiKeep, bDelete, bDeleteCurrent);
    return "ended";
}

std::string RegisterDialog(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(
        kFixture.Manager().RegisterDialogDefinition(CHookMatrixFixture::PathOf(DLG_E).c_str(), DLG_H));
}

template <ObjectHandle_t eID>
std::string UnregisterDialog(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(kFixture.Manager().UnregisterDialogDefinition(eID));
}

std::string RegisterPopup(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(
        kFixture.Manager().RegisterPopupDefinition(POP_7, CGUIDialogManager::PRIO_HIGHEST, 0, true, ""));
}

template <ObjectHandle_t eID>
std::string UnregisterPopup(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(kFixture.Manager().UnregisterPopupDefinition(eID));
}

template <ObjectHandle_t eID>
std::string UpdateTime(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(kFixture.Manager().UpdateRegisteredPopupDisplayTime(eID, 500));
}

std::string GetTime(CHookMatrixFixture& kFixture, CGUIObject*)
{
    eC_UInt uiTime = 0;
    const eC_Bool bIsRegistered = kFixture.Manager().GetRegisteredPopupDisplayTime(POP_1, uiTime);
    return NameOf(bIsRegistered) + " " + std::to_string(uiTime);
}

std::string GetInfo(CHookMatrixFixture& kFixture, CGUIObject*)
{
    CGUIDialogManager::RegisteredPopup_t kPopup = {};
    const eC_Bool bIsRegistered = kFixture.Manager().GetRegisteredPopupInfo(POP_1, kPopup);
    return NameOf(bIsRegistered) + " " + PrintPopupDefinition(kPopup);
}

template <ObjectHandle_t eID>
std::string Show(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOfObject(kFixture.Manager().ShowPopup(eID));
}

template <ObjectHandle_t eID>
std::string Close(CHookMatrixFixture& kFixture, CGUIObject*)
{
    return NameOf(kFixture.Manager().ClosePopup(eID));
}

std::string CloseAll(CHookMatrixFixture& kFixture, CGUIObject*)
{
    std::string kResult;
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        kResult += (eID == POP_1 ? "" : " ") + NameOf(kFixture.Manager().ClosePopup(eID));
    }
    return kResult;
}

std::string ReplacePopups(CHookMatrixFixture& kFixture, CGUIObject* pkObject)
{
    std::string kResult = CloseAll(kFixture, pkObject);
    for (const ObjectHandle_t eID : {POP_6, POP_5, POP_4})
    {
        kResult += " " + NameOfObject(kFixture.Manager().ShowPopup(eID));
    }
    return kResult;
}

std::string Arbitrate(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Manager().UpdateActivePopups();
    return "ended";
}

std::string RunTimer(CHookMatrixFixture& kFixture, CGUIObject*)
{
    kFixture.Clock().Set(kFixture.Clock().GetTime() + 5000);
    GETTIMER.ProcessCallbacks();
    return "ended";
}

/** @return the hook's object, or the current dialog if there is none */
CGUIObject* Subject(CHookMatrixFixture& kFixture, CGUIObject* pkObject)
{
    return pkObject != nullptr ? pkObject : kFixture.Manager().GetCurrentDialog();
}

std::string Destroy(CHookMatrixFixture& kFixture, CGUIObject* pkObject)
{
    CGUIObject* pkSubject = Subject(kFixture, pkObject);
    std::string kName = NameOfObject(pkSubject);
    delete pkSubject;
    return kName;
}

template <ObjectHandle_t eID>
std::string DestroyPopup(CHookMatrixFixture& kFixture, CGUIObject*)
{
    CGUIObject* pkPopup = kFixture.Object(eID);
    std::string kName = NameOfObject(pkPopup);
    delete pkPopup;
    return kName;
}

std::string DestroyAll(CHookMatrixFixture& kFixture, CGUIObject*)
{
    while (kFixture.Root().GetFirstChild() != nullptr)
    {
        delete kFixture.Root().GetFirstChild();
    }
    return "done";
}

std::string Rename(CHookMatrixFixture& kFixture, CGUIObject* pkObject)
{
    CGUIObject* pkSubject = Subject(kFixture, pkObject);
    std::string kName = NameOfObject(pkSubject);
    if (pkSubject != nullptr)
    {
        pkSubject->SetID(OBJ_9);
    }
    return kName;
}

std::string RenamePopups(CHookMatrixFixture& kFixture, CGUIObject*)
{
    for (const ObjectHandle_t eID : {POP_1, POP_2, POP_3})
    {
        CGUIObject* pkPopup = kFixture.Object(eID);
        if (pkPopup != nullptr)
        {
            pkPopup->SetID(OBJ_9);
        }
    }
    return "done";
}

std::string Detach(CHookMatrixFixture& kFixture, CGUIObject* pkObject)
{
    CGUIObject* pkSubject = Subject(kFixture, pkObject);
    std::string kName = NameOfObject(pkSubject);
    if (pkSubject != nullptr)
    {
        kFixture.Adopt(pkSubject)->SetParent(nullptr);
    }
    return kName;
}

template <EFailure eFailure>
std::string Throw(CHookMatrixFixture&, CGUIObject*)
{
    ThrowFailure(eFailure);
    return "nothing thrown";
}
} // namespace

const std::vector<InnerAction_t>& GetInnerActions()
{
    using M = CGUIDialogManager;
    static const std::vector<InnerAction_t> kActions = {
        // clang-format off
        {"nothing", INNER_NOTHING, [](CHookMatrixFixture&, CGUIObject*) { return std::string("done"); }},

        {"CreateDialog(D, INVISIBLE)", INNER_CHANGES_HISTORY, Create<DLG_D, M::ODA_INVISIBLE>},
        {"CreateDialog(D, INVISIBLE_ALL)", INNER_CHANGES_HISTORY, Create<DLG_D, M::ODA_INVISIBLE_ALL>},
        {"CreateDialog(D, DELETE)", INNER_CHANGES_HISTORY, Create<DLG_D, M::ODA_DELETE>},
        {"CreateDialog(D, DELETE_ALL)", INNER_CHANGES_HISTORY, Create<DLG_D, M::ODA_DELETE_ALL>},
        {"CreateDialog(D, NOTHING)", INNER_CHANGES_HISTORY, Create<DLG_D, M::ODA_NOTHING>},
        {"CreateDialog(current, DELETE)", INNER_CHANGES_HISTORY, CreateCurrent},
        {"CreateDialog(A, INVISIBLE)", INNER_CHANGES_HISTORY, Create<DLG_A, M::ODA_INVISIBLE>},
        {"CreateDialog(unknown, DELETE)", INNER_CALLS, Create<DLG_G, M::ODA_DELETE>},
        {"AddDialog(new, INVISIBLE)", INNER_CHANGES_HISTORY, AddNew<M::ODA_INVISIBLE>},
        {"AddDialog(new, DELETE_ALL)", INNER_CHANGES_HISTORY, AddNew<M::ODA_DELETE_ALL>},
        {"AddDialog(current, INVISIBLE)", INNER_CHANGES_HISTORY, AddCurrent},
        {"AddDialog(null)", INNER_CALLS, AddNull},
        {"Back(delete)", INNER_CHANGES_HISTORY, Back<true>},
        {"Back(hide)", INNER_CHANGES_HISTORY, Back<false>},
        {"BackToDialog(A, delete, direct)", INNER_CHANGES_HISTORY, BackTo<DLG_A, true, false>},
        {"BackToDialog(A, hide, direct)", INNER_CHANGES_HISTORY, BackTo<DLG_A, false, false>},
        {"BackToDialog(A, delete, stepwise)", INNER_CHANGES_HISTORY, BackTo<DLG_A, true, true>},
        {"BackToDialog(unknown)", INNER_CALLS, BackTo<DLG_G, true, false>},
        {"ClearDialogHistory(0, delete, current)", INNER_CHANGES_HISTORY, Clear<0, true, true>},
        {"ClearDialogHistory(0, hide, current)", INNER_CHANGES_HISTORY, Clear<0, false, true>},
        {"ClearDialogHistory(0, delete)", INNER_CHANGES_HISTORY, Clear<0, true, false>},
        {"ClearDialogHistory(1, delete, current)", INNER_CHANGES_HISTORY, Clear<1, true, true>},

        {"GetCurrentDialogID", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOfHandle(kFixture.Manager().GetCurrentDialogID()); }},
        {"GetCurrentDialog", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOfObject(kFixture.Manager().GetCurrentDialog()); }},
        {"GetHistoryStackSize", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return std::to_string(kFixture.Manager().GetHistoryStackSize()); }},
        {"ContainsDialog(B)", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOf(kFixture.Manager().ContainsDialog(DLG_B, false)); }},
        {"ContainsDialog(C, current counts)", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOf(kFixture.Manager().ContainsDialog(DLG_C, true)); }},
        {"GetLastDialogID", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOfHandle(kFixture.Manager().GetLastDialogID()); }},

        {"RegisterDialogDefinition(H)", INNER_CALLS, RegisterDialog},
        {"UnregisterDialogDefinition(A)", INNER_CALLS, UnregisterDialog<DLG_A>},
        {"UnregisterDialogDefinition(B)", INNER_CALLS, UnregisterDialog<DLG_B>},
        {"GetRegisteredPath(C)", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return std::string(kFixture.Manager().GetRegisteredPath(DLG_C).GetText()); }},
        {"GetRegisteredDialogID(path of C)", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOfHandle(kFixture.Manager().GetRegisteredDialogID(CHookMatrixFixture::PathOf(DLG_C).c_str())); }},
        {"CreateDynamicObjectID", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOfHandle(kFixture.Manager().CreateDynamicObjectID()); }},
        {"RegisterPopupDefinition(P7)", INNER_CALLS, RegisterPopup},
        {"UnregisterPopupDefinition(P1)", INNER_CALLS, UnregisterPopup<POP_1>},
        {"UnregisterPopupDefinition(P2)", INNER_CALLS, UnregisterPopup<POP_2>},
        {"UpdateRegisteredPopupDisplayTime(P1)", INNER_CALLS, UpdateTime<POP_1>},
        {"UpdateRegisteredPopupDisplayTime(P2)", INNER_CALLS, UpdateTime<POP_2>},
        {"GetRegisteredPopupDisplayTime(P1)", INNER_CALLS, GetTime},
        {"GetRegisteredPopupInfo(P1)", INNER_CALLS, GetInfo},

        {"ShowPopup(P4, highest)", INNER_CALLS, Show<POP_4>},
        {"ShowPopup(P5, as high as P2)", INNER_CALLS, Show<POP_5>},
        {"ShowPopup(P6, as high as P1)", INNER_CALLS, Show<POP_6>},
        {"ShowPopup(P1)", INNER_CALLS, Show<POP_1>},
        {"ShowPopup(P2)", INNER_CALLS, Show<POP_2>},
        {"ShowPopup(P3)", INNER_CALLS, Show<POP_3>},
        {"ShowPopup(unknown)", INNER_CALLS, Show<POP_7>},
        {"ClosePopup(P1)", INNER_CALLS, Close<POP_1>},
        {"ClosePopup(P2)", INNER_CALLS, Close<POP_2>},
        {"ClosePopup(P3)", INNER_CALLS, Close<POP_3>},
        {"ClosePopup(unknown)", INNER_CALLS, Close<POP_7>},
        {"IsPopupDisplayed(P1)", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOf(kFixture.Manager().IsPopupDisplayed(POP_1)); }},
        {"IsPopupInPopupList(P2)", INNER_CALLS, [](CHookMatrixFixture& kFixture, CGUIObject*) { return NameOf(kFixture.Manager().IsPopupInPopupList(POP_2)); }},
        {"close all popups", INNER_OTHER, CloseAll},
        {"close all popups and show P6, P5, P4", INNER_OTHER, ReplacePopups},
        {"UpdateActivePopups", INNER_CALLS, Arbitrate},

        {"run the timer five seconds late", INNER_OTHER, RunTimer},
        {"destroy the object", INNER_OTHER, Destroy},
        {"destroy the object of P1", INNER_OTHER, DestroyPopup<POP_1>},
        {"destroy the object of P2", INNER_OTHER, DestroyPopup<POP_2>},
        {"destroy all objects", INNER_OTHER, DestroyAll},
        {"give the object another identifier", INNER_OTHER, Rename},
        {"give all popups one identifier", INNER_OTHER, RenamePopups},
        {"detach the object", INNER_OTHER, Detach},
        {"throw an int", INNER_THROWS, Throw<FAILURE_INT>},
        {"throw a std::exception", INNER_THROWS, Throw<FAILURE_EXCEPTION>},
        // clang-format on
    };
    return kActions;
}
