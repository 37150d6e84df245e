#ifndef CORE_GUIEVENTHANDLER_H
#define CORE_GUIEVENTHANDLER_H

/** @file
 *  The owner of the keyboard focus.
 */

#include "Core/Utils/eC_Types.h"

class CGUIObject;

/** Knows which object has the keyboard focus.
 *
 *  Objects take the focus with CGUIObject::RequestFocus or CGUIObject::FocusAny. The object that has it
 *  always hangs under the root, is focusable, and neither it nor an ancestor is invisible: when that
 *  ends, nobody has the focus.
 */
class CGUIEventHandler
{
public:
    /** @return the one event handler; usable at any time, also by static objects */
    static CGUIEventHandler& GetInstance();

    /** @return the object that has the focus, or null */
    CGUIObject* GetFocussedObject() const { return m_pkFocussedObject; }

private:
    friend class CGUIObject;

    constexpr CGUIEventHandler() : m_pkFocussedObject(nullptr) {}

    CGUIObject* m_pkFocussedObject;

    static CGUIEventHandler ms_kInstance;
};

#endif
