// SPDX-License-Identifier: MIT
#ifndef ADAPTERS_MIRROR_GUIMIRROREDMANAGER_H
#define ADAPTERS_MIRROR_GUIMIRROREDMANAGER_H

/** @file
 *  A dialog manager that lets builders make its dialogs and popups.
 */

#include "Adapters/Mirror/GUIMirror.h"
#include "Core/GUIDialogManager.h"

/** A manager whose dialogs and popups come from the builders of a mirror, unless there is an object in the
 * tree or a registered file. A derived class that overrides CreateDialogImpl or CreatePopupImpl calls the
 * hook of this class for what it does not make itself. Dialogs from files need no particular manager.
 */
class CGUIMirroredManager : public CGUIDialogManager
{
public:
    /** @param kMirror not owned, outlives the manager */
    explicit CGUIMirroredManager(CGUIMirror& kMirror) : m_kMirror(kMirror) {}

protected:
    /** Lets the builder of the dialog make it; without one it behaves as in CGUIDialogManager. */
    CGUIObject* CreateDialogImpl(ObjectHandle_t eID, eC_Bool& bAllowDeletionOUT,
                                 eC_Bool& bRecoverFocusOUT) const override;

    /** Lets the builder of the popup make it; without one it behaves as in CGUIDialogManager. */
    CGUIObject* CreatePopupImpl(ObjectHandle_t eID) override;

private:
    CGUIMirror& m_kMirror;
};

#endif
