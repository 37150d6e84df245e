// SPDX-License-Identifier: MIT
#include "Scenario/ManagerCommands.h"

#include "Core/Control/GUI.h"
#include "Scenario/Names.h"

#include <cstring>

namespace
{
using Manager = CGUIDialogManager;
using Result = CCommandResult;

constexpr eC_UInt cuiGreatestNumber = 0xFFFFFFFFU;

// --- Dialogs -------------------------------------------------------------------------------------------

void CreateDialog(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddObject(kManager.CreateDialog(pkWords[0].m_eHandle, pkWords[1].m_eAction));
}

void AddDialog(Manager& kManager, const WordValue_t* pkWords, Result&)
{
    kManager.AddDialog(pkWords[0].m_pkObject, pkWords[1].m_eAction, pkWords[2].m_bFlag);
}

void Back(Manager& kManager, const WordValue_t* pkWords, Result&)
{
    kManager.Back(pkWords[0].m_bFlag);
}

void BackToDialog(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.BackToDialog(pkWords[0].m_eHandle, pkWords[1].m_bFlag, pkWords[2].m_bFlag));
}

void ClearDialogHistory(Manager& kManager, const WordValue_t* pkWords, Result&)
{
    kManager.ClearDialogHistory(pkWords[0].m_uiNumber, pkWords[1].m_bFlag, pkWords[2].m_bFlag);
}

void GetCurrentDialogID(Manager& kManager, const WordValue_t*, Result& kResult)
{
    kResult.AddHandle(kManager.GetCurrentDialogID());
}

void GetCurrentDialog(Manager& kManager, const WordValue_t*, Result& kResult)
{
    kResult.AddObject(kManager.GetCurrentDialog());
}

void GetHistoryStackSize(Manager& kManager, const WordValue_t*, Result& kResult)
{
    kResult.AddNumber(kManager.GetHistoryStackSize());
}

void ContainsDialog(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.ContainsDialog(pkWords[0].m_eHandle, pkWords[1].m_bFlag));
}

void GetLastDialogID(Manager& kManager, const WordValue_t*, Result& kResult)
{
    kResult.AddHandle(kManager.GetLastDialogID());
}

// --- Definitions of dialogs ----------------------------------------------------------------------------

void RegisterDialogDefinition(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.RegisterDialogDefinition(pkWords[0].m_pcText, pkWords[1].m_eHandle));
}

void UnregisterDialogDefinition(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.UnregisterDialogDefinition(pkWords[0].m_eHandle));
}

void GetRegisteredPath(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddQuoted(kManager.GetRegisteredPath(pkWords[0].m_eHandle).GetText());
}

void GetRegisteredDialogID(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddHandle(kManager.GetRegisteredDialogID(pkWords[0].m_pcText));
}

void CreateDynamicObjectID(Manager& kManager, const WordValue_t*, Result& kResult)
{
    kResult.AddHandle(kManager.CreateDynamicObjectID());
}

// --- Definitions of popups -----------------------------------------------------------------------------

void RegisterPopupDefinition(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.RegisterPopupDefinition(pkWords[0].m_eHandle, pkWords[1].m_ePriority,
                                                     pkWords[2].m_uiNumber, pkWords[3].m_bFlag,
                                                     pkWords[4].m_pcText));
}

void UnregisterPopupDefinition(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.UnregisterPopupDefinition(pkWords[0].m_eHandle));
}

void UpdateRegisteredPopupDisplayTime(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.UpdateRegisteredPopupDisplayTime(pkWords[0].m_eHandle, pkWords[1].m_uiNumber));
}

void GetRegisteredPopupDisplayTime(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    eC_UInt uiDisplayTime = 0;
    const eC_Bool bFound = kManager.GetRegisteredPopupDisplayTime(pkWords[0].m_eHandle, uiDisplayTime);
    kResult.AddFlag(bFound);
    if (bFound)
    {
        kResult.Add(", ");
        kResult.AddNumber(uiDisplayTime);
        kResult.Add(" ms");
    }
}

void GetRegisteredPopupInfo(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    Manager::RegisteredPopup_t kInfo;
    const eC_Bool bFound = kManager.GetRegisteredPopupInfo(pkWords[0].m_eHandle, kInfo);
    kResult.AddFlag(bFound);
    if (bFound)
    {
        kResult.Add(", ");
        kResult.AddHandle(kInfo.m_ePopupID);
        kResult.Add(" prio ");
        kResult.AddNumber(kInfo.m_ePriority);
        kResult.Add(", ");
        kResult.AddNumber(kInfo.m_uiDisplayTime);
        kResult.Add(kInfo.m_bDeleteOnClose ? " ms, delete on close, " : " ms, hide on close, ");
        kResult.AddQuoted(kInfo.m_kPath.GetText());
    }
}

// --- Popups --------------------------------------------------------------------------------------------

void ShowPopup(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddObject(kManager.ShowPopup(pkWords[0].m_eHandle));
}

void ClosePopup(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.ClosePopup(pkWords[0].m_eHandle));
}

void IsPopupDisplayed(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.IsPopupDisplayed(pkWords[0].m_eHandle));
}

void IsPopupInPopupList(Manager& kManager, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(kManager.IsPopupInPopupList(pkWords[0].m_eHandle));
}

// --- Objects -------------------------------------------------------------------------------------------

void Focus(Manager&, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(pkWords[0].m_pkObject->RequestFocus());
}

void FocusAny(Manager&, const WordValue_t* pkWords, Result& kResult)
{
    kResult.AddFlag(pkWords[0].m_pkObject->FocusAny());
}

void SetFocusable(Manager&, const WordValue_t* pkWords, Result&)
{
    pkWords[0].m_pkObject->SetFocusable(pkWords[1].m_bFlag);
}

void Hide(Manager&, const WordValue_t* pkWords, Result&)
{
    pkWords[0].m_pkObject->SetInvisible(true);
}

void Show(Manager&, const WordValue_t* pkWords, Result&)
{
    pkWords[0].m_pkObject->SetInvisible(false);
}

void Delete(Manager&, const WordValue_t* pkWords, Result&)
{
    delete pkWords[0].m_pkObject;
}

constexpr ManagerCommand_t cakCommands[] = {
    {"CreateDialog <dialog> <action>", "ha", &CreateDialog, false},
    {"AddDialog <dialog> <action> <recover-focus>", "oaf", &AddDialog, false},
    {"Back <delete>", "f", &Back, false},
    {"BackToDialog <dialog> <delete> <stepwise>", "hff", &BackToDialog, false},
    {"ClearDialogHistory <keep> <delete> <delete-current>", "nff", &ClearDialogHistory, false},
    {"GetCurrentDialogID", "", &GetCurrentDialogID, false},
    {"GetCurrentDialog", "", &GetCurrentDialog, false},
    {"GetHistoryStackSize", "", &GetHistoryStackSize, false},
    {"ContainsDialog <dialog> <consider-current>", "hf", &ContainsDialog, false},
    {"GetLastDialogID", "", &GetLastDialogID, false},
    {"RegisterDialogDefinition <path> <dialog>", "th", &RegisterDialogDefinition, true},
    {"UnregisterDialogDefinition <dialog>", "h", &UnregisterDialogDefinition, true},
    {"GetRegisteredPath <dialog>", "h", &GetRegisteredPath, false},
    {"GetRegisteredDialogID <path>", "t", &GetRegisteredDialogID, false},
    {"CreateDynamicObjectID", "", &CreateDynamicObjectID, false},
    {"RegisterPopupDefinition <popup> <priority> <display-time> <delete-on-close> <path>", "hpnft",
     &RegisterPopupDefinition, true},
    {"UnregisterPopupDefinition <popup>", "h", &UnregisterPopupDefinition, true},
    {"UpdateRegisteredPopupDisplayTime <popup> <display-time>", "hn", &UpdateRegisteredPopupDisplayTime,
     true},
    {"GetRegisteredPopupDisplayTime <popup>", "h", &GetRegisteredPopupDisplayTime, false},
    {"GetRegisteredPopupInfo <popup>", "h", &GetRegisteredPopupInfo, false},
    {"ShowPopup <popup>", "h", &ShowPopup, false},
    {"ClosePopup <popup>", "h", &ClosePopup, false},
    {"IsPopupDisplayed <popup>", "h", &IsPopupDisplayed, false},
    {"IsPopupInPopupList <popup>", "h", &IsPopupInPopupList, false},
    {"focus <object>", "o", &Focus, false},
    {"focus-any <object>", "o", &FocusAny, false},
    {"focusable <object> <flag>", "of", &SetFocusable, false},
    {"hide <object>", "o", &Hide, false},
    {"show <object>", "o", &Show, false},
    {"delete <object>", "o", &Delete, false}};

/** @return null when it is fulfilled, otherwise the expectation */
const eC_Char* Expect(const eC_Char* pcExpectation, eC_Bool bIsFulfilled)
{
    return bIsFulfilled ? nullptr : pcExpectation;
}

const eC_Char* ReadObject(const eC_Char* pcWord, WordValue_t& kValueOUT)
{
    const eC_Char* const pcExpected = ReadWord(WORD_HANDLE, pcWord, kValueOUT);
    if (pcExpected != nullptr)
    {
        return pcExpected;
    }
    kValueOUT.m_pkObject = CGUI::GetInstance().GetObjectByID(kValueOUT.m_eHandle, false);
    return Expect("an object under the root", kValueOUT.m_pkObject != nullptr);
}
} // namespace

const eC_Char* ReadWord(EWordKind eKind, const eC_Char* pcWord, WordValue_t& kValueOUT)
{
    kValueOUT.m_pcText = pcWord;
    switch (eKind)
    {
    case WORD_HANDLE:
        return Expect("the name of a handle or a number", ParseObjectHandle(pcWord, kValueOUT.m_eHandle));
    case WORD_OBJECT:
        return ReadObject(pcWord, kValueOUT);
    case WORD_ACTION:
        return Expect("an action (ODA_INVISIBLE, ODA_INVISIBLE_ALL, ODA_DELETE, ODA_DELETE_ALL, ODA_NOTHING)",
                      ParseAction(pcWord, kValueOUT.m_eAction));
    case WORD_PRIORITY:
        return Expect("a priority (PRIO_LOWEST to PRIO_HIGHEST, or a number up to 255)",
                      ParsePriority(pcWord, kValueOUT.m_ePriority));
    case WORD_NUMBER:
        return Expect("a number from 0 to 4294967295",
                      ParseNumber(pcWord, cuiGreatestNumber, kValueOUT.m_uiNumber));
    case WORD_FLAG:
        kValueOUT.m_bFlag = std::strcmp(pcWord, "true") == 0;
        return Expect("one of false, true", kValueOUT.m_bFlag || std::strcmp(pcWord, "false") == 0);
    case WORD_TEXT:
        break;
    }
    return nullptr;
}

void CCommandResult::AddNumber(eC_UInt uiNumber)
{
    eC_Char acDigits[11];
    eC_Char* pcFirst = acDigits + sizeof(acDigits) - 1;
    *pcFirst = '\0';
    do
    {
        *--pcFirst = static_cast<eC_Char>('0' + uiNumber % 10);
        uiNumber /= 10;
    } while (uiNumber != 0);
    Add(pcFirst);
}

void CCommandResult::AddInteger(eC_Int iNumber)
{
    const eC_UInt uiNumber = static_cast<eC_UInt>(iNumber);
    Add(iNumber < 0 ? "-" : "");
    AddNumber(iNumber < 0 ? 0U - uiNumber : uiNumber);
}

void CCommandResult::AddHandle(ObjectHandle_t eHandle)
{
    const eC_Char* const pcName = GetObjectHandleName(eHandle);
    if (pcName != nullptr)
    {
        Add(pcName);
        return;
    }
    AddInteger(eHandle);
}

void CCommandResult::AddObject(const CGUIObject* pkObject)
{
    if (pkObject == nullptr)
    {
        Add("null");
        return;
    }
    AddHandle(pkObject->GetID());
}

void CCommandResult::AddFlag(eC_Bool bFlag)
{
    Add(bFlag ? "true" : "false");
}

void CCommandResult::AddQuoted(const eC_Char* pcText)
{
    Add("\"");
    Add(pcText);
    Add("\"");
}

const ManagerCommand_t* GetManagerCommands(eC_UInt& uiCountOUT)
{
    uiCountOUT = sizeof(cakCommands) / sizeof(cakCommands[0]);
    return cakCommands;
}
