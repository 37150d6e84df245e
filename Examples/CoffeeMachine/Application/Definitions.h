// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_COFFEEMACHINE_APPLICATION_DEFINITIONS_H
#define EXAMPLES_COFFEEMACHINE_APPLICATION_DEFINITIONS_H

/** @file
 *  Which dialogs and popups there are, and the files that describe them.
 */

#include "Core/GUIDialogManager.h"
#include "Core/Utils/eC_Types.h"
#include "GUIConfig/GUIObjectHandleResource.h"

/** One dialog that is loaded from a file. */
struct DialogDefinition_t
{
    ObjectHandle_t m_eDialogID;
    const eC_Char* m_pcPath; ///< from the root of the repository
};

/** One popup. */
struct PopupDefinition_t
{
    ObjectHandle_t m_ePopupID;
    CGUIDialogManager::PopupPriority_t m_ePriority;
    eC_UInt m_uiDisplayTime; ///< milliseconds, 0: until closed
    eC_Bool m_bDeleteOnClose;
    const eC_Char* m_pcPath; ///< empty: built in code
};

constexpr eC_UInt cuiNOFDialogDefinitions = 10;
constexpr eC_UInt cuiNOFPopupDefinitions = 5;

/** The number of this application, and of its dialogs and identifiers: raise the latter when they change, so
 *  that nothing is restored that an older program has saved.
 */
constexpr eC_UInt cuiApplicationNumber = 0x43464645;
constexpr eC_UInt cuiContentsNumber = 1;

extern const DialogDefinition_t cakDialogDefinitions[cuiNOFDialogDefinitions];
extern const PopupDefinition_t cakPopupDefinitions[cuiNOFPopupDefinitions];

/** The other home screen, which a technician can choose. */
extern const eC_Char* const cpcSimpleHomePath;

/** @return the row of a popup, which must be in the table */
const PopupDefinition_t& GetPopupDefinition(ObjectHandle_t ePopupID);

/** Registers all dialogs and popups with the manager. Nothing is loaded yet. */
void RegisterDefinitions(CGUIDialogManager& kManager);

#endif
