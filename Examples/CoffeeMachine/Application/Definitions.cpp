// SPDX-License-Identifier: MIT
#include "Application/Definitions.h"

#include "Application/Handles.h"

#include <cassert>

#define DIALOG_FILE(Name) "Dialogs/" Name ".xml"

// DLG_BREWING is not here, because the hook CreateDialogImpl builds it; nor is the about dialog, which the
// controller builds and adds.
const DialogDefinition_t cakDialogDefinitions[cuiNOFDialogDefinitions] = {
    {DLG_HOME, DIALOG_FILE("Home")},
    {DLG_DRINKS, DIALOG_FILE("Drinks")},
    {DLG_DRINK_DETAIL, DIALOG_FILE("DrinkDetail")},
    {DLG_SETTINGS, DIALOG_FILE("Settings")},
    {DLG_LANGUAGE, DIALOG_FILE("Language")},
    {DLG_CLEANING_TABLET, DIALOG_FILE("CleaningTablet")},
    {DLG_CLEANING_RINSE, DIALOG_FILE("CleaningRinse")},
    {DLG_CLEANING_EMPTY, DIALOG_FILE("CleaningEmpty")},
    {DLG_SERVICE, DIALOG_FILE("Service")},
    {DLG_CODE, DIALOG_FILE("Code")},
};

// A popup that stops the machine has priority and stays until the cause is fixed. The two hints have the same
// priority, so both can be read at once. Frequent popups are kept, hidden, when they close.
const PopupDefinition_t cakPopupDefinitions[cuiNOFPopupDefinitions] = {
    {POP_WATER_EMPTY, CGUIDialogManager::PRIO_HIGHEST, 0, true, DIALOG_FILE("WaterEmpty")},
    {POP_TRAY_MISSING, CGUIDialogManager::PRIO_HIGH, 0, false, DIALOG_FILE("TrayMissing")},
    {POP_BEANS_LOW, CGUIDialogManager::PRIO_MEDIUM, 0, true, DIALOG_FILE("BeansLow")},
    {POP_DESCALE, CGUIDialogManager::PRIO_MEDIUM, 5000, true, DIALOG_FILE("Descale")},
    {POP_SAVED, CGUIDialogManager::PRIO_LOW, 2000, false, ""},
};

const eC_Char* const cpcSimpleHomePath = DIALOG_FILE("HomeSimple");

const PopupDefinition_t& GetPopupDefinition(ObjectHandle_t ePopupID)
{
    eC_UInt uiPopup = 0;
    while (cakPopupDefinitions[uiPopup].m_ePopupID != ePopupID)
    {
        ++uiPopup;
        assert(uiPopup < cuiNOFPopupDefinitions);
    }
    return cakPopupDefinitions[uiPopup];
}

void RegisterDefinitions(CGUIDialogManager& kManager)
{
    for (const DialogDefinition_t& kDialog : cakDialogDefinitions)
    {
        kManager.RegisterDialogDefinition(kDialog.m_pcPath, kDialog.m_eDialogID);
    }
    for (const PopupDefinition_t& kPopup : cakPopupDefinitions)
    {
        kManager.RegisterPopupDefinition(kPopup.m_ePopupID, kPopup.m_ePriority, kPopup.m_uiDisplayTime,
                                         kPopup.m_bDeleteOnClose, kPopup.m_pcPath);
    }
}
