// SPDX-License-Identifier: MIT
#include "Tests/Model/Operations.h"

#include "Tests/Model/ModelHandles.h"

#include <exception>
#include <ostream>

namespace
{
constexpr unsigned int cuiMostObjects = 60;

const char* const capcOperationNames[OP_COUNT] = {"CreateDialog",
                                                  "AddDialog",
                                                  "Back",
                                                  "BackToDialog",
                                                  "ClearDialogHistory",
                                                  "ShowPopup",
                                                  "ClosePopup",
                                                  "RegisterDialogDefinition",
                                                  "UnregisterDialogDefinition",
                                                  "RegisterPopupDefinition",
                                                  "UnregisterPopupDefinition",
                                                  "UpdateRegisteredPopupDisplayTime",
                                                  "Query",
                                                  "GetRegisteredDialogID",
                                                  "CreateDynamicObjectID",
                                                  "PrintDialogHistory",
                                                  "UpdateActivePopups",
                                                  "GetDialogObject",
                                                  "LoadDialogDescription",
                                                  "Build",
                                                  "Delete",
                                                  "Focus",
                                                  "FocusAny",
                                                  "SetInvisible",
                                                  "SetFocusable",
                                                  "SetParent",
                                                  "SetID",
                                                  "Raise",
                                                  "Advance",
                                                  "BeLate",
                                                  "SetFile",
                                                  "SetDialogCreator",
                                                  "SetPopupCreator",
                                                  "Veto",
                                                  "FailLoad",
                                                  "FailHook",
                                                  "InHook",
                                                  "ThrowInHook"};

template <typename T, unsigned int uiCount>
T Pick(const T (&aValues)[uiCount], unsigned int uiNumber)
{
    return aValues[uiNumber % uiCount];
}

/** Mostly an identifier of the right kind, but now and then one of another kind. */
int PickDialog(unsigned int uiNumber)
{
    const int aiDialogs[] = {DLG_A, DLG_B, DLG_C, DLG_D, DLG_A, DLG_B, DLG_C, DLG_D, POP_1, OBJ_1, NO_HANDLE};
    return Pick(aiDialogs, uiNumber);
}

int PickPopup(unsigned int uiNumber)
{
    const int aiPopups[] = {POP_1, POP_2, POP_3, POP_4, POP_1, POP_2, POP_3, POP_4, DLG_A, OBJ_1, NO_HANDLE};
    return Pick(aiPopups, uiNumber);
}

int PickID(unsigned int uiNumber)
{
    const int aiIDs[] = {OBJ_1, OBJ_2,     OBJ_3, DLG_A, DLG_B, DLG_C,
                         POP_1, NO_HANDLE, POP_2, POP_3, POP_4, OBJ_3 + 1};
    return Pick(aiIDs, uiNumber);
}

int PickAction(unsigned int uiNumber)
{
    const int aiActions[] = {0, 1, 2, 3, 4, 0, 1, 2, 3, 4, 200};
    return Pick(aiActions, uiNumber);
}

std::string PickPath(unsigned int uiNumber)
{
    const char* const apcPaths[] = {"code:1", "code:2", "code:3", "code:4", "code:5", "code:6", ""};
    return Pick(apcPaths, uiNumber);
}

unsigned int PickTime(unsigned int uiNumber)
{
    const unsigned int auiTimes[] = {0, 500, 700, 1000, 1500, 3000};
    return Pick(auiTimes, uiNumber);
}

/** Picks the object made last first, so that short sequences are meaningful. */
int PickObject(const CDialogSystem& kSystem, unsigned int uiNumber)
{
    const std::vector<int> kObjects = kSystem.GetObjects();
    return kObjects[kObjects.size() - 1 - uiNumber % kObjects.size()];
}

int PickObjectButRoot(const CDialogSystem& kSystem, unsigned int uiNumber)
{
    const std::vector<int> kObjects = kSystem.GetObjects();
    return kObjects.size() < 2 ? -1 : kObjects[kObjects.size() - 1 - uiNumber % (kObjects.size() - 1)];
}

/** @return mostly the root, else none or any object */
int PickParent(const CDialogSystem& kSystem, unsigned int uiNumber)
{
    switch (uiNumber % 4)
    {
    case 0:
    case 1:
        return 0;
    case 2:
        return -1;
    default:
        return PickObject(kSystem, uiNumber / 4);
    }
}

bool IsOdd(unsigned int uiNumber)
{
    return uiNumber % 2 != 0;
}

std::string PerformAct(CDialogSystem& kSystem, const Operation_t& kOperation)
{
    const unsigned int uiFirst = kOperation.m_uiFirst;
    const unsigned int uiSecond = kOperation.m_uiSecond;
    const unsigned int uiThird = kOperation.m_uiThird;
    if (kOperation.m_eOperation == OP_BUILD)
    {
        const Shape_t& kShape = GetShapes()[uiFirst % GetShapes().size()];
        return kSystem.GetObjects().size() > cuiMostObjects
                   ? "too many objects"
                   : kSystem.Build(kShape, PickID(uiSecond), PickParent(kSystem, uiThird));
    }
    if (kOperation.m_eOperation == OP_SET_INVISIBLE)
    {
        return kSystem.SetInvisible(PickObject(kSystem, uiFirst), IsOdd(uiSecond));
    }
    const int iObject = PickObjectButRoot(kSystem, uiFirst);
    if (iObject < 0)
    {
        return "no object";
    }
    switch (kOperation.m_eOperation)
    {
    case OP_DELETE:
        return kSystem.Delete(iObject);
    case OP_FOCUS:
        return kSystem.Focus(iObject);
    case OP_FOCUS_ANY:
        return kSystem.FocusAny(iObject);
    case OP_SET_FOCUSABLE:
        return kSystem.SetFocusable(iObject, IsOdd(uiSecond));
    case OP_SET_PARENT:
        return kSystem.SetParent(iObject, PickParent(kSystem, uiSecond));
    case OP_SET_ID:
        return kSystem.SetID(iObject, PickID(uiSecond));
    default:
        return kSystem.Raise(iObject);
    }
}

std::string PerformPreparation(CDialogSystem& kSystem, const Operation_t& kOperation)
{
    const unsigned int uiFirst = kOperation.m_uiFirst;
    const unsigned int uiSecond = kOperation.m_uiSecond;
    const unsigned int uiThird = kOperation.m_uiThird;
    const unsigned int uiFourth = kOperation.m_uiFourth;
    constexpr unsigned int cuiHooks = 10;
    const int iHook = static_cast<int>(kOperation.m_uiHook % cuiHooks);
    const int iShape = static_cast<int>(uiSecond % GetShapes().size());
    const ECreation eCreation = static_cast<ECreation>(uiThird % CREATION_COUNT);
    switch (kOperation.m_eOperation)
    {
    case OP_SET_FILE:
        return kSystem.SetFile(PickPath(uiFirst % 6), uiThird % 5 == 4 ? -1 : iShape);
    case OP_SET_DIALOG_CREATOR:
        return kSystem.SetDialogCreator(PickDialog(uiFirst), iShape, eCreation, IsOdd(uiFourth),
                                        IsOdd(uiFourth / 2));
    case OP_SET_POPUP_CREATOR:
        return kSystem.SetPopupCreator(PickPopup(uiFirst), iShape, eCreation);
    case OP_VETO:
        return kSystem.Veto(PickDialog(uiFirst), IsOdd(uiSecond));
    case OP_FAIL_LOAD:
        return kSystem.FailLoad(1 + uiFirst % 3, static_cast<int>(uiSecond % 3));
    case OP_FAIL_HOOK:
        return kSystem.FailHook(1 + uiFirst % 4, static_cast<int>(1 + uiSecond % 2));
    case OP_THROW_IN_HOOK:
        return kSystem.ThrowInHook(iHook, static_cast<int>(1 + uiFirst % 2));
    default:
    {
        Operation_t kInner = kOperation;
        kInner.m_eOperation = kOperation.m_eInner;
        return kSystem.DoInHook(iHook, kInner);
    }
    }
}

std::string PerformOnRegistry(CDialogSystem& kSystem, const Operation_t& kOperation)
{
    const unsigned int uiFirst = kOperation.m_uiFirst;
    const unsigned int uiSecond = kOperation.m_uiSecond;
    const unsigned int uiThird = kOperation.m_uiThird;
    const int aiPriorities[] = {5, 7, 9, 5, 200};
    switch (kOperation.m_eOperation)
    {
    case OP_REGISTER_DIALOG:
        return kSystem.RegisterDialog(PickDialog(uiFirst), PickPath(uiSecond));
    case OP_UNREGISTER_DIALOG:
        return kSystem.UnregisterDialog(PickDialog(uiFirst));
    case OP_REGISTER_POPUP:
        return kSystem.RegisterPopup(PickPopup(uiFirst), Pick(aiPriorities, uiSecond), PickTime(uiThird / 2),
                                     IsOdd(uiThird), PickPath(kOperation.m_uiFourth));
    case OP_UNREGISTER_POPUP:
        return kSystem.UnregisterPopup(PickPopup(uiFirst));
    case OP_UPDATE_TIME:
        return kSystem.UpdateTime(PickPopup(uiFirst), PickTime(uiSecond));
    case OP_QUERY:
        return kSystem.Query(PickID(uiFirst));
    default:
        return kSystem.FindPath(PickPath(uiFirst));
    }
}
} // namespace

const std::vector<Shape_t>& GetShapes()
{
    static const std::vector<Shape_t> kShapes = {
        {{0, NO_HANDLE, true, false, false}, {1, OBJ_1, false, true, false}, {1, OBJ_2, false, true, false}},
        {{0, DLG_C, true, false, false}, {1, NO_HANDLE, false, true, false}},
        {{0, NO_HANDLE, false, false, false}},
        {{0, NO_HANDLE, true, false, true},
         {1, OBJ_3, true, false, false},
         {2, OBJ_1, false, true, false},
         {1, OBJ_2, true, true, true}},
        {{0, POP_2, false, true, false}},
        {{0, NO_HANDLE, true, true, false}, {1, POP_1, true, false, false}, {2, OBJ_2, false, true, false}}};
    return kShapes;
}

const char* NameOfOperation(EOperation eOperation)
{
    return capcOperationNames[eOperation];
}

bool CanHappenInHook(EOperation eOperation)
{
    return eOperation < OP_ADVANCE;
}

std::string PrintOperation(const Operation_t& kOperation)
{
    std::string kText = capcOperationNames[kOperation.m_eOperation];
    if (kOperation.m_eOperation == OP_IN_HOOK)
    {
        kText += std::string(" ") + capcOperationNames[kOperation.m_eInner];
    }
    if (kOperation.m_eOperation == OP_IN_HOOK || kOperation.m_eOperation == OP_THROW_IN_HOOK)
    {
        kText += " hook " + std::to_string(kOperation.m_uiHook);
    }
    return kText + " (" + std::to_string(kOperation.m_uiFirst) + ", " +
           std::to_string(kOperation.m_uiSecond) + ", " + std::to_string(kOperation.m_uiThird) + ", " +
           std::to_string(kOperation.m_uiFourth) + ")";
}

void showValue(const Operation_t& kOperation, std::ostream& kStream)
{
    kStream << PrintOperation(kOperation);
}

std::string Perform(CDialogSystem& kSystem, const Operation_t& kOperation)
{
    const unsigned int uiFirst = kOperation.m_uiFirst;
    const unsigned int uiSecond = kOperation.m_uiSecond;
    const unsigned int uiThird = kOperation.m_uiThird;
    switch (kOperation.m_eOperation)
    {
    case OP_CREATE_DIALOG:
        return kSystem.CreateDialog(PickDialog(uiFirst), PickAction(uiSecond));
    case OP_ADD_DIALOG:
        return kSystem.AddDialog(uiFirst % 16 == 15 ? -1 : PickObjectButRoot(kSystem, uiFirst),
                                 PickAction(uiSecond), IsOdd(uiThird));
    case OP_BACK:
        return kSystem.Back(IsOdd(uiFirst));
    case OP_BACK_TO_DIALOG:
        return kSystem.BackToDialog(PickDialog(uiFirst), IsOdd(uiSecond), IsOdd(uiThird));
    case OP_CLEAR_HISTORY:
        return kSystem.ClearDialogHistory(uiFirst % 4, IsOdd(uiSecond), IsOdd(uiThird));
    case OP_SHOW_POPUP:
        return kSystem.ShowPopup(PickPopup(uiFirst));
    case OP_CLOSE_POPUP:
        return kSystem.ClosePopup(PickPopup(uiFirst));
    case OP_DYNAMIC_ID:
        return kSystem.CreateDynamicID();
    case OP_PRINT_HISTORY:
        return kSystem.PrintHistory();
    case OP_ARBITRATE:
        return kSystem.Arbitrate();
    case OP_OBTAIN:
        return kSystem.Obtain(PickDialog(uiFirst), IsOdd(uiSecond), IsOdd(uiThird));
    case OP_LOAD:
        return kSystem.Load(PickDialog(uiFirst));
    case OP_ADVANCE:
        return kSystem.Advance(uiFirst % 20 * 100);
    case OP_BE_LATE:
        return kSystem.BeLate(uiFirst % 20 * 100);
    default:
        break;
    }
    if (kOperation.m_eOperation >= OP_SET_FILE)
    {
        return PerformPreparation(kSystem, kOperation);
    }
    return kOperation.m_eOperation >= OP_BUILD ? PerformAct(kSystem, kOperation)
                                               : PerformOnRegistry(kSystem, kOperation);
}

std::string PerformAndCatch(CDialogSystem& kSystem, const Operation_t& kOperation)
{
    try
    {
        return Perform(kSystem, kOperation);
    }
    catch (int iValue)
    {
        return "throws int " + std::to_string(iValue);
    }
    catch (const std::exception& kException)
    {
        return std::string("throws ") + kException.what();
    }
}

bool ChangesHistory(EOperation eOperation)
{
    return eOperation <= OP_CLEAR_HISTORY;
}
