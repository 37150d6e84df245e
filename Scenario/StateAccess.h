#ifndef SCENARIO_STATEACCESS_H
#define SCENARIO_STATEACCESS_H

/** @file
 *  What tools that show the state of a dialog manager may read behind its public declarations.
 */

#include "Core/GUIDialogManager.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Core/Utils/eC_TList_doubleLinked.h"

/** The friend of the dialog manager that reads and never changes anything. It hands out private members by
 *  name; what they mean stands at their declarations.
 */
class CGUIStateAccess
{
public:
    using DialogDescription_t = CGUIDialogManager::DialogDescription;
    using HistoryEntry_t = CGUIDialogManager::HistoryEntry;
    using PopupDescription_t = CGUIDialogManager::PopupDescription;
    using RegisteredDialog_t = CGUIDialogManager::RegisteredDialog_t;
    using RegisteredPopup_t = CGUIDialogManager::RegisteredPopup_t;

    /** @return the remembered dialogs, the most recent one first */
    static const eC_TListDoubleLinked<HistoryEntry_t>& GetHistory(const CGUIDialogManager& kManager)
    {
        return kManager.m_History;
    }

    static const DialogDescription_t& GetCurrentDialog(const CGUIDialogManager& kManager)
    {
        return kManager.m_CurrentDialog;
    }

    /** @return what gets the focus back when the last popup is closed */
    static const CSafeGUIObjectPtr& GetCurrentDialogFocus(const CGUIDialogManager& kManager)
    {
        return kManager.m_pCurrentDialogFocus;
    }

    /** @return the identifiers handed out */
    static const eC_TListDoubleLinked<int>& GetDynamicObjectIDs(const CGUIDialogManager& kManager)
    {
        return kManager.m_DynamicObjectIDs;
    }

    /** @return the definitions of dialogs, in order of registration */
    static const eC_TListDoubleLinked<RegisteredDialog_t>&
    GetRegisteredDialogs(const CGUIDialogManager& kManager)
    {
        return kManager.m_RegisteredDialogDefinitions;
    }

    /** @return the definitions of popups, in order of registration */
    static const eC_TListDoubleLinked<RegisteredPopup_t>&
    GetRegisteredPopups(const CGUIDialogManager& kManager)
    {
        return kManager.m_RegisteredPopupDefinitions;
    }

    /** @return the active popups, the lowest priority first */
    static const eC_TListDoubleLinked<PopupDescription_t>& GetActivePopups(const CGUIDialogManager& kManager)
    {
        return kManager.m_ActivePopups;
    }
};

#endif
