// SPDX-License-Identifier: MIT
#ifndef OTHERFRAMEWORK_CORE_GUIEVENTHANDLER_H
#define OTHERFRAMEWORK_CORE_GUIEVENTHANDLER_H

#include "Core/Utils/SafeGUIObjectPtr.h"

/** A focus owner that follows its object with a safe pointer. */
class CGUIEventHandler
{
public:
    static CGUIEventHandler& GetInstance();

    CGUIObject* GetFocussedObject() const { return m_pkFocussedObject; }

private:
    friend class CGUIObject;

    CSafeGUIObjectPtr m_pkFocussedObject;
};

#endif
