// SPDX-License-Identifier: MIT
#ifndef SCENARIO_STATEACCESS_H
#define SCENARIO_STATEACCESS_H

/** @file
 *  The private state of a dialog manager, for tools that show it.
 */

#include "Core/GUIDialogManager.h"
#include "Core/GUITimer.h"
#include "Core/Utils/SafeGUIObjectPtr.h"
#include "Core/Utils/eC_TList_doubleLinked.h"

/** The friend of the dialog manager and the timer that only reads. It returns private members by name; their
 *  declarations say what they mean.
 */
class CGUIStateAccess
{
public:
    using DialogDescription_t = CGUIDialogManager::DialogDescription; ///< the current dialog
    using HistoryEntry_t = CGUIDialogManager::HistoryEntry;           ///< a remembered dialog
    using PopupDescription_t = CGUIDialogManager::PopupDescription;   ///< a listed popup
    using RegisteredDialog_t = CGUIDialogManager::RegisteredDialog_t; ///< the definition of a dialog
    using RegisteredPopup_t = CGUIDialogManager::RegisteredPopup_t;   ///< the definition of a popup
    using TimerCallback_t = CGUITimer::AnimationCallback_t;           ///< what the timer calls

    /** @return the remembered dialogs, the most recent one first */
    static const eC_TListDoubleLinked<HistoryEntry_t>& GetHistory(const CGUIDialogManager& kManager)
    {
        return kManager.m_History;
    }

    /** @return the current dialog's four fields */
    static const DialogDescription_t& GetCurrentDialog(const CGUIDialogManager& kManager)
    {
        return kManager.m_CurrentDialog;
    }

    /** @return the object that gets the focus back when the last popup closes */
    static const CSafeGUIObjectPtr& GetCurrentDialogFocus(const CGUIDialogManager& kManager)
    {
        return kManager.m_pCurrentDialogFocus;
    }

    /** @return the identifiers given out */
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

    /** @return the registration of an animatable, null when there is none */
    static const TimerCallback_t* FindTimerCallback(const CGUITimer& kTimer,
                                                    const CGUIAnimatable* pkAnimatable)
    {
        return kTimer.FindCallback(pkAnimatable);
    }

    /** @param pkBefore a registration, null for the first one
     *  @return the registration that is due next after that one, in the order in which they are called; null
     *          when there is none. The steps grow with the number of registrations.
     */
    static const TimerCallback_t* GetNextTimerCallback(const CGUITimer& kTimer,
                                                       const TimerCallback_t* pkBefore);

private:
    static const TimerCallback_t* GetNextInTree(const TimerCallback_t* pkCallback);
};

#endif
