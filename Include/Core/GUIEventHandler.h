// SPDX-License-Identifier: MIT
#ifndef CORE_GUIEVENTHANDLER_H
#define CORE_GUIEVENTHANDLER_H

/** @file
 *  The owner of the keyboard focus.
 */

#include "Core/Utils/eC_Types.h"

class CGUIObject;

/** Knows which object has the keyboard focus.
 *
 *  Objects take the focus with CGUIObject::RequestFocus or CGUIObject::FocusAny; FocusNext and FocusPrevious
 *  move it as keys do. The object that has it is always under the root and focusable, and neither it nor an
 *  ancestor is invisible: when that ends, nobody has the focus.
 *
 *  Nothing here logs, allocates, throws or calls a virtual operation.
 */
class GUI_API CGUIEventHandler
{
public:
    /** @return the one event handler; usable at any time, also by static objects */
    static CGUIEventHandler& GetInstance() { return ms_kInstance; }

    /** @return the object that has the focus, or null */
    CGUIObject* GetFocussedObject() const { return m_pkFocussedObject; }

    /** Gives the focus to the next object in pre-order (see CGUIObject), among an object and everything below
     *  it; after the last one comes the first. Objects that cannot have the focus are skipped: those that are
     *  not focusable, and invisible ones with everything under them. When the focus is elsewhere or nobody
     *  has it, the first one takes it. At most one step for each object in the subtree.
     *  @param pkTop the top of the subtree, for example the current dialog; null: an empty subtree
     *  @return true when an object of the subtree has the focus now, even if it is the only one and had it
     *  before; false when none can have it, and the focus stays where it was
     */
    eC_Bool FocusNext(CGUIObject* pkTop);

    /** Likewise the other way round: the previous object in pre-order takes the focus; before the first one
     *  comes the last. When the focus is elsewhere or nobody has it, the last one takes it.
     *  @param pkTop as for FocusNext
     *  @return as from FocusNext
     */
    eC_Bool FocusPrevious(CGUIObject* pkTop);

private:
    friend class CGUIObject;

    constexpr CGUIEventHandler() : m_pkFocussedObject(nullptr) {}

    static CGUIObject* GetNextVisible(CGUIObject* pkObject, const CGUIObject* pkTop);

    CGUIObject* m_pkFocussedObject;

    static CGUIEventHandler ms_kInstance;
};

#endif
