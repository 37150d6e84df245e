// SPDX-License-Identifier: MIT
#include "Adapters/Mirror/GUIMirroredManager.h"

CGUIObject* CGUIMirroredManager::CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                                  eC_Bool& bRecoverFocusOUT) const
{
    return m_kMirror.HasBuilder(eID)
               ? m_kMirror.BuildDialog(eID)
               : CGUIDialogManager::CreateDialogImpl(eID, bAllowDeletionOUT, bRecoverFocusOUT);
}

CGUIObject* CGUIMirroredManager::CreatePopupImpl(ObjectHandle_t eID)
{
    return m_kMirror.HasBuilder(eID) ? m_kMirror.BuildPopup(eID) : CGUIDialogManager::CreatePopupImpl(eID);
}
