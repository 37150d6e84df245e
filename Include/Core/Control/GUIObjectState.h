// SPDX-License-Identifier: MIT
#ifndef CORE_CONTROL_GUIOBJECTSTATE_H
#define CORE_CONTROL_GUIOBJECTSTATE_H

/** @file
 *  What an object keeps when it is destroyed and built again.
 */

#include "Core/Utils/eC_Types.h"

/** The state of an object that a new object of the same class can take over: a text typed, a position in a
 *  list. An object class implements this beside CGUIObject.
 *
 *  CGUIObject does not know of it, so that objects without state pay nothing. Whoever keeps states is given a
 *  function that finds the state of an object.
 *
 *  Neither function may attach, detach or destroy an object, or call the dialog manager.
 */
class CGUIObjectState
{
public:
    /** Saves the state.
     *  @param puiStateOUT receives it if the room is large enough; may be null if there is no room
     *  @param uiSize bytes of room
     *  @return the number of bytes needed, 0 if there is nothing to keep
     */
    virtual eC_UInt SaveState(unsigned char* puiStateOUT, eC_UInt uiSize) const = 0;

    /** Restores what SaveState saved from an object of the same class.
     *  @return false, with nothing changed, if the bytes are not from such an object
     */
    virtual eC_Bool RestoreState(const unsigned char* puiState, eC_UInt uiSize) = 0;

protected:
    ~CGUIObjectState() = default;
};

#endif
